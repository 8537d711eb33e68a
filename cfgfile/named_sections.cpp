// The head of a list section.
#include "cfgfile/named_sections.h"

namespace sys_context {

int32_t ReadAnnounced(const ListSection& list, const char* file, uint32_t& announced) {
  if (file == nullptr) {
    Report(Gate::kAlways, list.null_file, LowBits(file));
    return kNullArgument;
  }
  Value number;
  if (ReadKey(file, list.section, list.count_key, number, list.key_unreadable) != kOk) {
    return kKeyUnreadable;
  }
  announced = ParseUnsigned(number.text);
  if (announced > list.limit) {
    Report(Gate::kAlways, list.above_limit, announced, list.limit);
    return list.above_limit_code;
  }
  return kOk;
}

}  // namespace sys_context
