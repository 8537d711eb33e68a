// What the loading of a list does whatever its records are.
#include "cfgfile/named_sections.h"

namespace sys_context {

int32_t ReadAnnounced(const ListSection& list, Source& source, uint32_t& announced) {
  if (source.file() == nullptr) {
    Report(Gate::kAlways, list.null_file, LowBits(source.file()));
    return kNullArgument;
  }
  Value value;
  if (ReadKeyAndMove(source, list.section, list.count.key, value,
                     list.count_unreadable.value_or(list.key_unreadable)) != kOk) {
    return kKeyUnreadable;
  }
  if (const int32_t code = ParseCount(list.count, value, announced); code != kOk) {
    return code;
  }
  if (announced == 0 && list.empty_list) {
    Report(Gate::kAlways, *list.empty_list, announced);
  }
  return kOk;
}

int32_t FindEntry(const ListSection& list, Source& source, const char* section) {
  if (!list.goes_by_order()) {
    return kOk;
  }
  // The section is what is wanted. Its type is read again with the record.
  Value type;
  const int32_t code = ReadKeyAndMove(source, section, "Type", type, *list.section_not_found);
  return code == kOk ? kOk : kKeyUnreadable;
}

}  // namespace sys_context
