// The frame and its loader: reads the section of the chassis that the equipment is.
#include <cstdio>
#include <cstdlib>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/messages.h"
#include "common/numbers.h"
#include "sys_context/frame.h"

constinit FrameInformation gstFrame = {};

// kept as is: the loader takes the keys from here, and nothing reads the section.
constinit const char* dd_gstrSectionFrameInfomation = "FrameInfomation";
constinit const char* dd_gstrKeyFrameName = "Name";
constinit const char* dd_gstrKeyFrameType = "Type";

namespace sys_context {
namespace {

int32_t ReadType(const char* file, const char* section) {
  static constexpr KeyMessage kUnreadable =
      "\r\nddReadFrameInformation err! iResult = %d, strSectionFrameNameBuf = %s, dd_gstrKeyFrameType = %s";
  Value type;
  if (ReadKey(file, section, dd_gstrKeyFrameType, type, kUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  gstFrame.eType = ParseNumber(type.text);
  return kOk;
}

int32_t ReadFrameName(const char* file, const char* section) {
  static constexpr KeyMessage kUnreadable =
      "\r\nddReadFrameInformation err! iResult = %d, strSectionFrameNameBuf = %s, dd_gstrKeyFrameName = %s";
  static constexpr Message<uint32_t> kTooLong =
      "\r\nddReadFrameInformation err! ulFrameNameLen = %d";
  return ReadName(file, section, gstFrame.acName, gstFrame.ulNameLen, kUnreadable, kTooLong,
                  dd_gstrKeyFrameName);
}

struct Capacity {
  CountKey key;
  uint32_t FrameInformation::*field;
};

constexpr Capacity kCapacities[] = {
    {
        .key =
            {
                .key = "MaxOnuNum",
                .limit = MAX_ONU_NUM_PER_FRAME,
                .above_limit_code = kAboveFrameLimit,
                .above_limit =
                    "\r\nddReadFrameInformation err! ulMaxOnuNum = %d, MAX_ONU_NUM_PER_FRAME = %d",
            },
        .field = &FrameInformation::ulMaxOnuNum,
    },
    {
        .key =
            {
                .key = "MaxUserNum",
                .limit = MAX_USER_NUM_PER_FRAME,
                .above_limit_code = kAboveFrameLimit,
                .above_limit =
                    "\r\nddReadFrameInformation err! ulMaxUserNum = %d, MAX_USER_NUM_PER_FRAME = %d",
            },
        .field = &FrameInformation::ulMaxUserNum,
    },
};

int32_t ReadCapacities(const char* file, const char* section) {
  static constexpr KeyMessage kUnreadable =
      "\r\nddReadFrameInformation err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s";
  for (const Capacity& capacity : kCapacities) {
    Value value;
    if (ReadKey(file, section, capacity.key.key, value, kUnreadable) != kOk) {
      return kKeyUnreadable;
    }
    uint32_t number = 0;
    if (const int32_t code = ParseCount(capacity.key, value, number); code != kOk) {
      return code;
    }
    gstFrame.*capacity.field = number;
  }
  return kOk;
}

struct SlotClass {
  const char* word;
  SlotClassInformation FrameInformation::*slots;
};

constexpr SlotClass kSlotClasses[] = {
    {"RealSlot", &FrameInformation::stRealSlot},
    {"VirtualSlot", &FrameInformation::stVirtualSlot},
    {"HcuSlot", &FrameInformation::stHcuSlot},
    {"FanSlot", &FrameInformation::stFanSlot},
    {"CioSlot", &FrameInformation::stCioSlot},
    {"PowerSlot", &FrameInformation::stPowerSlot},
    {"ServeBoardSlot", &FrameInformation::stServeBoardSlot},
    {"MainSlot", &FrameInformation::stMainSlot},
    {"UplinkSlot", &FrameInformation::stUplinkSlot},
};

int32_t ReadSlotClasses(const char* file, const char* section) {
  // The boards of an earlier load go by its real slots, and go with them.
  std::free(gstFrame.pstSlotArray);
  gstFrame.pstSlotArray = nullptr;
  for (const SlotClass& slot_class : kSlotClasses) {
    if (const int32_t code =
            ddReadOneSlotClass(file, section, slot_class.word, &(gstFrame.*slot_class.slots));
        code != kOk) {
      Console(
          "\r\nddReadFrameInformation->ddReadOneSlotClass err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s",
          code, section, slot_class.word);
      return code;
    }
  }
  return kOk;
}

// kept as is: their failures, and that of the check, are passed on only while
// ddDebugPrint is set.
struct Table {
  int32_t (*read)(const char* file, const char* section);
  Message<int32_t, const char*> failure;
};

constexpr Table kTables[] = {
    {ddReadSlotSupportBoard,
     "\r\nddReadFrameInformation->ddReadSlotSupportBoard err! iResult = %d, strSectionFrameNameBuf = %s"},
    {ddReadSwitchChipLogicPortToSlotPort,
     "\r\nddReadFrameInformation->ddReadSwitchChipLogicPortToSlotPort err! iResult = %d, strSectionFrameNameBuf = %s"},
    {read_balance_switch_logicport_to_portinfo,
     "\r\nddReadFrameInformation->read_balance_switch_logicport_to_portinfo err! iResult = %d, strSectionFrameNameBuf = %s"},
};

int32_t ReadTables(const char* file, const char* section) {
  for (const Table& table : kTables) {
    if (const int32_t code = table.read(file, section); code != kOk) {
      Report(Gate::kDebug, table.failure, code, section);
      return code;
    }
  }
  return kOk;
}

int32_t CheckOrEmpty() {
  const int32_t code = ddCheckFrameInformation();
  if (code != kOk) {
    DebugConsole("\r\nddReadFrameInformation->ddCheckFrameInformation err! iResult = %d", code);
    ddEmptyFrameInformation();
  }
  return code;
}

}  // namespace
}  // namespace sys_context

int32_t ddReadFrameInformation(const char* strFileName) {
  using namespace sys_context;
  if (strFileName == nullptr) {
    Console("\r\nddReadFrameInformation err!, strFileName = 0x%x", LowBits(strFileName));
    return kNullArgument;
  }
  char name[MAX_FRAME_NAME_LEN] = {};
  if (const int32_t code = ddInquireFrameName(name); code != kOk) {  // the name is too long
    Console("\r\nddReadFrameInformation->ddInquireFrameName err! iResult = %d", code);
    return kKeyUnreadable;
  }
  constexpr char kEnding[] = "_FrameInfomation";
  char section[sizeof name + sizeof kEnding];
  std::snprintf(section, sizeof section, "%s%s", name, kEnding);
  constexpr int32_t (*kSteps[])(const char* file, const char* section) = {
      ReadType, ReadFrameName, ReadCapacities, ReadSlotClasses, ReadTables};
  for (const auto step : kSteps) {
    if (const int32_t code = step(strFileName, section); code != kOk) {
      return code;
    }
  }
  return CheckOrEmpty();
}

int32_t ddEmptyFrameInformation() {
  std::free(gstFrame.pstSlotArray);
  gstFrame = {};
  return sys_context::kOk;
}
