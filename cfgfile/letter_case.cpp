// The case converters.
#include <cctype>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cfgfile.h"
#include "sys_context/platform.h"

namespace sys_context {
namespace {

constexpr uint32_t kLongestConversion = 500;
constexpr uint32_t kCharactersBetweenYields = 64;

struct LetterCase {
  int (*convert)(int);
  Message<uint32_t, uint32_t> null_argument;
  Message<uint32_t> too_long;
  Message<uint32_t, uint32_t> no_room;
};

constexpr LetterCase kUpper = {
    .convert = std::toupper,
    .null_argument = "\r\nddStringToUppercase, strOri = 0x%x, strDst = 0x%x",
    .too_long = "\r\nddStringToUppercase, ulOriLen = %d",
    .no_room = "\r\nddStringToUppercase, ulOriLen = %d, ulDstLen = %d",
};

constexpr LetterCase kLower = {
    .convert = std::tolower,
    .null_argument = "\r\nddStringToLowercase, strOri = 0x%x, strDst = 0x%x",
    .too_long = "\r\nddStringToLowercase, ulOriLen = %d",
    .no_room = "\r\nddStringToLowercase, ulOriLen = %d, ulDstLen = %d",
};

int32_t Convert(const LetterCase& letters, const char* source, uint32_t length, char* destination,
                uint32_t capacity) {
  if (source == nullptr || destination == nullptr) {
    Report(Gate::kDebug, letters.null_argument, LowBits(source), LowBits(destination));
    return kNullArgument;
  }
  if (length > kLongestConversion) {
    Report(Gate::kDebug, letters.too_long, length);
    return kTextTooLong;
  }
  if (capacity < length) {
    Report(Gate::kDebug, letters.no_room, length, capacity);
    return kTextTooLong;
  }
  for (uint32_t i = 0; i < length; ++i) {
    destination[i] = static_cast<char>(letters.convert(static_cast<unsigned char>(source[i])));
    if ((i + 1) % kCharactersBetweenYields == 0) {
      bep_taskDelayEx(1);
    }
  }
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddStringToUppercase(const char* strOri, uint32_t ulOriLen, char* strDst,
                            uint32_t ulDstLen) {
  using namespace sys_context;
  return Convert(kUpper, strOri, ulOriLen, strDst, ulDstLen);
}

int32_t ddStringToLowercase(const char* strOri, uint32_t ulOriLen, char* strDst,
                            uint32_t ulDstLen) {
  using namespace sys_context;
  return Convert(kLower, strOri, ulOriLen, strDst, ulDstLen);
}
