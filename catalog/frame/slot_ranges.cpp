// The first and the last slot of each class.
#include "catalog/frame/slot_numbers.h"
#include "common/codes.h"
#include "common/messages.h"

namespace sys_context {
namespace {

struct RangeQuery {
  SlotClassInformation FrameInformation::*slots;
  Message<uint32_t, uint32_t> null_output;  // both outputs
  Message<uint32_t, uint32_t> bad_range;    // the first and the last slot
  bool (*is_range)(uint32_t first, uint32_t last) = IsSlotRange;
};

bool IsHcuRange(uint32_t first, uint32_t last) {
  return first == kHcuSlot && last == kHcuSlot;
}

constexpr RangeQuery kReal = {
    .slots = &FrameInformation::stRealSlot,
    .null_output = "\r\nddGetRealSlotRange err! pulRealSlotStart = 0x%x, pulRealSlotEnd = 0x%x",
    .bad_range = "\r\nddGetRealSlotRange err! ulRealSlotStart = %d, ulRealSlotEnd = %d",
};
constexpr RangeQuery kVirtual = {
    .slots = &FrameInformation::stVirtualSlot,
    .null_output =
        "\r\nddGetVirtualSlotRange err! pulVirtualSlotStart = 0x%x, pulVirtualSlotEnd = 0x%x",
    .bad_range = "\r\nddGetVirtualSlotRange err! ulVirtualSlotStart = %d, ulVirtualSlotEnd = %d",
};
constexpr RangeQuery kMain = {
    .slots = &FrameInformation::stMainSlot,
    .null_output = "\r\nddGetMainSlotRange err! pulMainSlotStart = 0x%x, pulMainSlotEnd = 0x%x",
    .bad_range = "\r\nddGetMainSlotRange err! ulMainSlotStart = %d, ulMainSlotEnd = %d",
};
constexpr RangeQuery kServeBoard = {
    .slots = &FrameInformation::stServeBoardSlot,
    .null_output =
        "\r\nddGetServeBoardSlotRange err! pulServeBoardSlotStart = 0x%x, pulServeBoardSlotEnd = 0x%x",
    .bad_range =
        "\r\nddGetServeBoardSlotRange err! ulServeBoardSlotStart = %d, ulServeBoardSlotEnd = %d",
};
// kept as is: `bad_range` names ddGetMainSlotRange.
constexpr RangeQuery kUplink = {
    .slots = &FrameInformation::stUplinkSlot,
    .null_output =
        "\r\nddGetUplinkSlotRange err! pulUplinkSlotStart = 0x%x, pulUplinkSlotEnd = 0x%x",
    .bad_range = "\r\nddGetMainSlotRange err! ulUplinkSlotStart = %d, ulUplinkSlotEnd = %d",
};
constexpr RangeQuery kFan = {
    .slots = &FrameInformation::stFanSlot,
    .null_output = "\r\nddGetFanSlotRange err! pulFanSlotStart = 0x%x, pulFanSlotEnd = 0x%x",
    .bad_range = "\r\nddGetFanSlotRange err! ulFanSlotStart = %d, ulFanSlotEnd = %d",
};
constexpr RangeQuery kPower = {
    .slots = &FrameInformation::stPowerSlot,
    .null_output = "\r\nddGetPowerSlotRange err! pulSlotStart = 0x%x, pulSlotEnd = 0x%x",
    .bad_range = "\r\nddGetPowerSlotRange err! ulSlotStart = %d, ulSlotEnd = %d",
};
constexpr RangeQuery kCio = {
    .slots = &FrameInformation::stCioSlot,
    .null_output = "\r\nddGetCioSlotRange err! pulSlotStart = 0x%x, pulSlotEnd = 0x%x",
    .bad_range = "\r\nddGetCioSlotRange err! ulSlotStart = %d, ulSlotEnd = %d",
};
constexpr RangeQuery kHcu = {
    .slots = &FrameInformation::stHcuSlot,
    .null_output = "\r\nddGetHcuSlotRange err! pulHcuSlotStart = 0x%x, pulHcuSlotEnd = 0x%x",
    .bad_range = "\r\nddGetHcuSlotRange err! ulHcuSlotStart = %d, ulHcuSlotEnd = %d",
    .is_range = IsHcuRange,
};

int32_t GetRange(const RangeQuery& query, uint32_t* first, uint32_t* last) {
  if (first == nullptr || last == nullptr) {
    Report(Gate::kDebug, query.null_output, LowBits(first), LowBits(last));
    return kNullArgument;
  }
  const SlotClassInformation& slots = gstFrame.*query.slots;
  if (!query.is_range(slots.ulSlotStart, slots.ulSlotEnd)) {
    Report(Gate::kDebug, query.bad_range, slots.ulSlotStart, slots.ulSlotEnd);
    return kBadSlotRange;
  }
  *first = slots.ulSlotStart;
  *last = slots.ulSlotEnd;
  return kOk;
}

}  // namespace
}  // namespace sys_context

// The query for the range of one class.
#define SLOT_RANGE(name, query)                   \
  int32_t name(uint32_t* first, uint32_t* last) { \
    using namespace sys_context;                  \
    return GetRange(query, first, last);          \
  }

SLOT_RANGE(ddGetRealSlotRange, kReal)
SLOT_RANGE(ddGetVirtualSlotRange, kVirtual)
SLOT_RANGE(ddGetMainSlotRange, kMain)
SLOT_RANGE(ddGetServeBoardSlotRange, kServeBoard)
SLOT_RANGE(ddGetUplinkSlotRange, kUplink)
SLOT_RANGE(ddGetFanSlotRange, kFan)
SLOT_RANGE(ddGetPowerSlotRange, kPower)
SLOT_RANGE(ddGetCioSlotRange, kCio)
SLOT_RANGE(ddGetHcuSlotRange, kHcu)

int32_t ddGetMaxMainSlot() {
  using namespace sys_context;
  uint32_t first = 0;
  uint32_t last = 0;
  if (const int32_t code = ddGetMainSlotRange(&first, &last); code != kOk) {
    DebugConsole("\r\nddGetMaxMainSlot err!");
    return code;
  }
  return static_cast<int32_t>(last);
}

int32_t ddGetMinMainSlot() {
  using namespace sys_context;
  uint32_t first = 0;
  uint32_t last = 0;
  if (const int32_t code = ddGetMainSlotRange(&first, &last); code != kOk) {
    DebugConsole("\r\nddGetMinMainSlot err!");
    return code;
  }
  return static_cast<int32_t>(first);
}
