// Is a slot of this class?
#include <algorithm>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/frame.h"

namespace sys_context {
namespace {

constexpr uint32_t kVectorBoardType = 598;

// A question, and the name of its output, as the messages show them.
struct SlotQuery {
  const char* name;
  const char* output;
};

// What a question does first: it refuses a null output and slot 0.
[[nodiscard]] int32_t Check(const SlotQuery& query, uint32_t slot, uint32_t* output) {
  if (output == nullptr) {
    DebugConsole("\r\n%s err! %s = 0x%x, ulSlotOut = %d", query.name, query.output, LowBits(output),
                 slot);
    return kNullArgument;
  }
  *output = 0;
  if (slot == 0) {
    DebugConsole("\r\n%s err! ulSlotOut = %d", query.name, slot);
    return kNotOfThatClass;
  }
  return kOk;
}

// Some questions also say that the slot is not listed.
enum class NotListed { kIsSilent, kIsReported };

int32_t IsInClass(const SlotQuery& query, const SlotClassInformation& slots, NotListed not_listed,
                  uint32_t slot, uint32_t* output) {
  if (const int32_t code = Check(query, slot, output); code != kOk) {
    return code;
  }
  const int32_t code = ddIsSlotInSlotList(slot, &slots, output);
  if (code != kOk && not_listed == NotListed::kIsReported) {
    DebugConsole("\r\n%s->ddIsSlotInSlotList err! iResult = %d, ulSlotOut = %d", query.name, code,
                 slot);
  }
  return code;
}

}  // namespace
}  // namespace sys_context

int32_t ddIsSlotInSlotList(uint32_t ulSlotOut, const SlotClassInformation* pstSlotClass,
                           uint32_t* pulIsIn) {
  using namespace sys_context;
  if (pstSlotClass == nullptr || pulIsIn == nullptr) {
    DebugConsole("\r\nddIsSlotInSlotList err! pstSlotClass = 0x%x, pulIsIn = 0x%x",
                 LowBits(pstSlotClass), LowBits(pulIsIn));
    return kNullArgument;
  }
  *pulIsIn = 0;
  if (ulSlotOut == 0) {
    DebugConsole("\r\nddIsSlotInSlotList err! ulSlotOut = %d", ulSlotOut);
    return kNotOfThatClass;
  }
  const uint32_t amount = pstSlotClass->ulSlotAmount;
  if (amount > MAX_SLOT_END) {
    // kept as is: names another function, and shows the amount twice.
    DebugConsole(
        "\r\nddGetBoardSlotList err! ulSlotAmount = %2d, MAX_SLOT_END = %d, ulSlotAmount = %d",
        amount, MAX_SLOT_END, amount);
    return kCorruptSlotClass;
  }
  const uint32_t* const end = pstSlotClass->ucSlotArray + amount;
  if (std::find(pstSlotClass->ucSlotArray, end, ulSlotOut) == end) {
    return kNotOfThatClass;
  }
  *pulIsIn = 1;
  return kOk;
}

// The question for one class.
#define SLOT_MEMBERSHIP(name, slots, output_name, not_listed)                             \
  int32_t name(uint32_t ulSlotOut, uint32_t* output) {                                    \
    return sys_context::IsInClass({#name, #output_name}, gstFrame.slots,                  \
                                  sys_context::NotListed::not_listed, ulSlotOut, output); \
  }

SLOT_MEMBERSHIP(ddIsRealSlot, stRealSlot, pulCanPlugIn, kIsReported)
SLOT_MEMBERSHIP(ddIsVirtualSlot, stVirtualSlot, pulCanPlugIn, kIsReported)
SLOT_MEMBERSHIP(ddIsMainBoardSlot, stMainSlot, pulCanPlugIn, kIsSilent)
SLOT_MEMBERSHIP(ddIsServeBoardSlot, stServeBoardSlot, pulIsTrue, kIsReported)
SLOT_MEMBERSHIP(ddIsUplinkBoardSlot, stUplinkSlot, pulIsTrue, kIsReported)
SLOT_MEMBERSHIP(ddIsFanBoardSlot, stFanSlot, pulIsTrue, kIsSilent)
SLOT_MEMBERSHIP(ddIsPowerBoardSlot, stPowerSlot, pulIsTrue, kIsSilent)
SLOT_MEMBERSHIP(ddIsCioBoardSlot, stCioSlot, pulIsTrue, kIsSilent)
SLOT_MEMBERSHIP(ddIsHcuBoardSlot, stHcuSlot, pulIsTrue, kIsSilent)

// kept as is: the messages double a prefix, and one names ddIsVirtualSlot.
int32_t ddIsValidSlot(uint32_t ulSlotOut, uint32_t* pulCanPlugIn) {
  using namespace sys_context;
  if (pulCanPlugIn == nullptr) {
    DebugConsole("\r\nddddIsValidSlot err! pulCanPlugIn = 0x%x, ulSlotOut = %d",
                 LowBits(pulCanPlugIn), ulSlotOut);
    return kNullArgument;
  }
  *pulCanPlugIn = 0;
  if (ulSlotOut == 0) {
    DebugConsole("\r\nddIsVirtualSlot err! ulSlotOut = %d", ulSlotOut);
    return kNotOfThatClass;
  }
  uint32_t found = 0;
  const int32_t in_real = ddIsSlotInSlotList(ulSlotOut, &gstFrame.stRealSlot, &found);
  const int32_t in_virtual = ddIsSlotInSlotList(ulSlotOut, &gstFrame.stVirtualSlot, &found);
  if (in_real != kOk && in_virtual != kOk) {
    DebugConsole(
        "\r\nddddIsValidSlot->ddIsSlotInSlotList err!             iResult1 = %d, iResult2 = %d, ulSlotOut = %d",
        in_real, in_virtual, ulSlotOut);
    return kBadSlot;
  }
  *pulCanPlugIn = 1;
  return kOk;
}

// kept as is: its messages name ddIsCioBoardSlot.
int32_t ddIsVectorBoardSlot(uint32_t ulSlotOut, uint32_t* pulIsTrue) {
  using namespace sys_context;
  if (const int32_t code = Check({"ddIsCioBoardSlot", "pulIsTrue"}, ulSlotOut, pulIsTrue);
      code != kOk) {
    return code;
  }
  return ddCanBoardPlugInSlotByType(ulSlotOut, kVectorBoardType, pulIsTrue);
}
