// The name of the chassis: which one the equipment is, and which one was loaded.
#include "catalog/frame/frame_name.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/frame.h"
#include "sys_context/platform.h"

namespace sys_context {
namespace {

struct FrameType {
  int32_t device_type;
  const char* name;
};

constexpr FrameType kFrameTypes[] = {
    {6, "KT2200-A"},  {11, "KT2200-B"}, {12, "KT2200-C"}, {13, "KT2200-BX"}, {14, "KT2200-CX"},
    {15, "KT3300-L"}, {16, "KT3301-M"}, {17, "KT3300-N"}, {18, "KT3300-P"},  {1520, "KT3300-Q"},
};
constexpr char kDefaultName[] = "KT3300-L";

const char* NameOfDeviceType(int32_t device_type) {
  const FrameType* const found =
      std::find_if(std::begin(kFrameTypes), std::end(kFrameTypes),
                   [=](const FrameType& type) { return type.device_type == device_type; });
  if (found == std::end(kFrameTypes)) {
    Console("\r\nddGetFrameName err!, iFrameType = %d,set default KT3300_L_FRAME", device_type);
    return kDefaultName;
  }
  return found->name;
}

}  // namespace

int32_t CopyFrameName(const char* name, char* buffer) {
  const size_t size = std::strlen(name) + 1;
  if (size > MAX_FRAME_NAME_LEN) {
    Console("\r\nddGetFrameName err!, strlen(pstrName) + 1 = %d, MAX_FRAME_NAME_LEN = %d",
            static_cast<uint32_t>(size), MAX_FRAME_NAME_LEN);
    return kOwnFrameNameTooLong;
  }
  std::memcpy(buffer, name, size);
  return kOk;
}

}  // namespace sys_context

// kept as is: its messages name ddGetFrameName.
int32_t ddInquireFrameName(char* pcName) {
  using namespace sys_context;
  if (pcName == nullptr) {
    Console("\r\nddGetFrameName err!, pcName = 0x%x", LowBits(pcName));
    return kNullArgument;
  }
  return CopyFrameName(NameOfDeviceType(get_system_device_type()), pcName);
}

int32_t ddGetFrameName(char* pcName) {
  using namespace sys_context;
  if (pcName == nullptr) {
    DebugConsole("\r\nddGetFrameName err! pcName = 0x%x", LowBits(pcName));
    return kNullArgument;
  }
  // A length beyond the field is corrupt; the field is all there is to copy.
  std::memcpy(pcName, gstFrame.acName,
              std::min<size_t>(gstFrame.ulNameLen, sizeof gstFrame.acName));
  return kOk;
}
