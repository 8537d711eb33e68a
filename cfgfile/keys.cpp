// Reading a key for a loader.
#include "cfgfile/keys.h"

#include "common/codes.h"
#include "common/names.h"
#include "common/numbers.h"

namespace sys_context {
namespace {

int32_t ReportFailure(int32_t code, const char* section, const char* key, const KeyMessage& failure,
                      Gate gate) {
  if (code != kOk) {
    Report(gate, failure, code, failure.Section(section), failure.Key(key));
  }
  return code;
}

}  // namespace

int32_t Source::LookUp(const char* section, const char* key, Value& value) const {
  Source copy = *this;
  return copy.LookUpAndMove(section, key, value);
}

int32_t Source::LookUpAndMove(const char* section, const char* key, Value& value) {
  if (!start_) {
    return CFG_get_key(file_, section, key, value.text);
  }
  int32_t header = 0;
  const int32_t code = CFG_get_key_offset(file_, section, key, value.text, *start_, &header);
  if (code == kOk) {
    start_ = header;
  }
  return code;
}

int32_t ReadKey(const Source& source, const char* section, const char* key, Value& value,
                const KeyMessage& failure, Gate gate) {
  return ReportFailure(source.LookUp(section, key, value), section, key, failure, gate);
}

int32_t ReadKeyAndMove(Source& source, const char* section, const char* key, Value& value,
                       const KeyMessage& failure) {
  return ReportFailure(source.LookUpAndMove(section, key, value), section, key, failure,
                       Gate::kAlways);
}

int32_t ParseCount(const CountKey& key, const Value& value, uint32_t& count) {
  count = ParseUnsigned(value.text);
  if (count > key.limit) {
    Report(Gate::kAlways, key.above_limit, count, key.limit);
    return key.above_limit_code;
  }
  return kOk;
}

int32_t ReadName(const Source& source, const char* section, char* field, size_t size,
                 uint32_t& length, const KeyMessage& unreadable, const Message<uint32_t>& too_long,
                 const char* key) {
  Value name;
  if (ReadKey(source, section, key, name, unreadable) != kOk) {
    return kKeyUnreadable;
  }
  if (const uint32_t needed = StoreName(name.text, field, size, length); needed > size) {
    Report(Gate::kAlways, too_long, needed);
    return kTextTooLong;
  }
  return kOk;
}

}  // namespace sys_context
