// The main card that the equipment runs on.
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/frame.h"
#include "sys_context/platform.h"

int32_t get_current_frameno() {
  constexpr int32_t kOnlyFrame = 1;
  return kOnlyFrame;
}

int32_t ddRunGetMainSlotType(uint32_t* pulMainBoardType) {
  using namespace sys_context;
  if (pulMainBoardType == nullptr) {
    // kept as is: names another function.
    DebugConsole("\r\nddRealGetMainSlotType err! pulMainBoardType = 0x%x",
                 LowBits(pulMainBoardType));
    return kNullArgument;
  }
  *pulMainBoardType = static_cast<uint32_t>(get_core_card_detect_type());
  return kOk;
}
