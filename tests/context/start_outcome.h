// What a start comes to: the records that it leaves in the tables, and what it says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

#include "support/onu_messages.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace test {

// What the frame holds.
struct FrameCounts {
  uint32_t name_length = 0;
  uint32_t onus = 0;
  uint32_t users = 0;
  uint32_t slots = 0;          // of all classes
  uint32_t boards = 0;         // that the slots take
  uint32_t logic_ports = 0;    // those counted that serve a slot
  uint32_t balance_ports = 0;  // the same, type 2

  static FrameCounts OfTheFrame() {
    FrameCounts counts;
    counts.name_length = gstFrame.ulNameLen;
    counts.onus = gstFrame.ulMaxOnuNum;
    counts.users = gstFrame.ulMaxUserNum;
    for (const SlotClassInformation* const slots :
         {&gstFrame.stRealSlot, &gstFrame.stVirtualSlot, &gstFrame.stHcuSlot, &gstFrame.stFanSlot,
          &gstFrame.stPowerSlot, &gstFrame.stCioSlot, &gstFrame.stServeBoardSlot,
          &gstFrame.stMainSlot, &gstFrame.stUplinkSlot}) {
      counts.slots += slots->ulSlotAmount;
    }
    for (uint32_t slot = 0;
         gstFrame.pstSlotArray != nullptr && slot <= gstFrame.stRealSlot.ulSlotEnd; ++slot) {
      for (const uint32_t type : gstFrame.pstSlotArray[slot].aulBoardType) {
        counts.boards += type != 0 ? 1 : 0;
      }
    }
    for (uint32_t i = 0; i < gstFrame.ulSwitchChipLogicPortNum; ++i) {
      counts.logic_ports += gstFrame.astSwitchChipLogicPort[i].ucSlotOut != 0 ? 1 : 0;
    }
    for (uint32_t i = 0; i < gstFrame.ulType2SwitchChipLogicPortNum; ++i) {
      counts.balance_ports += gstFrame.astType2SwitchChipLogicPort[i].ucSlotOut != 0 ? 1 : 0;
    }
    return counts;
  }
  bool operator==(const FrameCounts&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const FrameCounts& counts) {
    return out << "a frame with a name of " << counts.name_length << " bytes, " << counts.onus
               << " ONUs, " << counts.users << " users, " << counts.slots << " slots, "
               << counts.boards << " boards, " << counts.logic_ports << " logic ports, "
               << counts.balance_ports << " type-2 logic ports";
  }
};

// The frame of the complete file.
constexpr FrameCounts kWholeFrame = {.name_length = 9,
                                     .onus = 64,
                                     .users = 128,
                                     .slots = 6,
                                     .boards = 3,
                                     .logic_ports = 2,
                                     .balance_ports = 2};

// What the ONU catalog holds.
struct OnuCounts {
  uint32_t pon_types = 0;
  uint32_t lan_types = 0;
  uint32_t pots_types = 0;
  uint32_t special_types = 0;
  uint32_t onus = 0;
  uint32_t most_lan_ports = 0;

  static OnuCounts OfTheCatalog() {
    return {gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
            gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
            gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
            gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
            gstSupportedOnuType.ulSupportedOnuTypeNum,
            gstSupportedOnuType.ulSupportedOnuMaxLanNum};
  }
  bool operator==(const OnuCounts&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const OnuCounts& counts) {
    return out << counts.pon_types << " ONU PON types, " << counts.lan_types << " ONU LAN types, "
               << counts.pots_types << " ONU POTS types, " << counts.special_types
               << " ONU special port types, " << counts.onus << " ONU types with up to "
               << counts.most_lan_ports << " LAN ports";
  }
};

// What the list of optical modules holds.
struct OpticalCounts {
  uint32_t modules = 0;
  uint32_t paths = 0;  // of all modules

  static OpticalCounts OfTheList() {
    OpticalCounts counts = {g_optmdule_infolist.listnum, 0};
    for (uint32_t i = 0; i < counts.modules; ++i) {
      counts.paths += g_optmdule_infolist.objlist[i]->pathnum;
    }
    return counts;
  }
  bool operator==(const OpticalCounts&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const OpticalCounts& counts) {
    return out << counts.modules << " optical modules with " << counts.paths << " paths";
  }
};

// How many records each table holds.
struct Counts {
  uint32_t versions = 0;
  uint32_t modules = 0;
  uint32_t functions = 0;
  uint32_t port_types = 0;
  uint32_t main_boards = 0;
  uint32_t boards = 0;
  FrameCounts frame = {};
  OnuCounts onu = {};
  OpticalCounts optical = {};

  static Counts OfTheTables() {
    return {gstVersionInformation.ulSupportedSoftVerNum,
            gstModuleTypeList.ulModuleTypeNum,
            gstSysSupportFuncType.ulSupportedSysFunctionTypeNum,
            gstSupportedOltPortType.ulSupportedOltPortTypeNum,
            gstSupportedMainBoardType.ulSupportedBoardTypeNum,
            gstSupportedBoardType.ulSupportedBoardTypeNum,
            FrameCounts::OfTheFrame(),
            OnuCounts::OfTheCatalog(),
            OpticalCounts::OfTheList()};
  }
  bool operator==(const Counts&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Counts& counts) {
    return out << counts.versions << " versions, " << counts.modules << " modules, "
               << counts.functions << " functions, " << counts.port_types << " port types, "
               << counts.main_boards << " main boards, " << counts.boards << " boards, "
               << counts.frame << ", " << counts.onu << ", " << counts.optical;
  }
};

constexpr Counts kEverything = {.versions = 2,
                                .modules = 2,
                                .functions = 2,
                                .port_types = 2,
                                .main_boards = 1,
                                .boards = 2,
                                .frame = kWholeFrame,
                                .onu = {.pon_types = 1,
                                        .lan_types = 1,
                                        .pots_types = 1,
                                        .special_types = 1,
                                        .onus = 2,
                                        .most_lan_ports = 1},
                                .optical = {.modules = 2, .paths = 3}};

// What a start that meets a fault comes to.
struct Outcome {
  int32_t code = 0;
  Counts loaded = {};
  size_t lost = 0;  // blocks that no table leads to any more
};

// A start that succeeds, but leaves out what `change` takes away.
template <typename Change>
constexpr Outcome EverythingBut(Change change) {
  Counts loaded = kEverything;
  change(loaded);
  return {.loaded = loaded};
}

// One of the records is left out, and with it what needs it.
constexpr Outcome kWithoutAModule =
    EverythingBut([](Counts& all) { all.modules = all.functions = 1; });
constexpr Outcome kWithoutAFunction = EverythingBut([](Counts& all) { all.functions = 1; });
constexpr Outcome kWithoutAPortType = EverythingBut([](Counts& all) {
  all.port_types = all.boards = 1;
  all.frame.boards = 2;
});
constexpr Outcome kWithoutTheMainBoard = EverythingBut([](Counts& all) {
  all.main_boards = 0;
  all.frame.boards = 2;
});
constexpr Outcome kWithoutABoard = EverythingBut([](Counts& all) {
  all.boards = 1;
  all.frame.boards = 2;
});

// The ONU types that are left out: the first alone has LAN ports.
template <uint32_t OnuCounts::*types>
constexpr Outcome kWithoutTypesOfTheFirstOnu = EverythingBut([](Counts& all) {
  all.onu.*types = 0;
  all.onu.onus = 1;
  all.onu.most_lan_ports = 0;
});
constexpr Outcome kWithoutOnuPonTypes = EverythingBut([](Counts& all) {
  all.onu.pon_types = 0;
  all.onu.onus = all.onu.most_lan_ports = 0;
});
constexpr Outcome kWithoutTheFirstOnu = EverythingBut([](Counts& all) {
  all.onu.onus = 1;
  all.onu.most_lan_ports = 0;
});
constexpr Outcome kWithoutTheSecondOnu = EverythingBut([](Counts& all) { all.onu.onus = 1; });
constexpr Outcome kWithoutOnus =
    EverythingBut([](Counts& all) { all.onu.onus = all.onu.most_lan_ports = 0; });

// Optical modules that are left out.
constexpr Outcome kWithoutTheFirstOpticalModule = EverythingBut([](Counts& all) {
  all.optical = {1, 1};
});
constexpr Outcome kWithoutTheSecondOpticalModule = EverythingBut([](Counts& all) {
  all.optical = {1, 2};
});
constexpr Outcome kWithoutOpticalModules = EverythingBut([](Counts& all) { all.optical = {}; });

// A start that comes to `outcome`, but then stops with `code` at the list of optical modules.
constexpr Outcome StoppedAtOpticalModules(Outcome outcome, int32_t code) {
  outcome.code = code;
  outcome.loaded.optical = {};
  return outcome;
}

// What is loaded when a start stops in the ONU catalog: what it has by then.
constexpr Counts InOnus(const OnuCounts& onu) {
  Counts loaded = kEverything;
  loaded.onu = onu;
  loaded.optical = {};
  return loaded;
}

// What the driver and its callers say of a loader that failed with `code`.
inline std::string DriverSays(const std::string& loader, const std::string& code) {
  return "\r\nddParseContextFile->" + loader + " err! iResult = " + code +
         ", strDeviceDefFilePath = /mnt/work/device_definition.ini"
         "\r\nddReadContextFile->ddParseContextFile err! iResult = " +
         code + "ddInit initialize......failed!\r\n";
}

constexpr char kOpticalFailed[] = "ddInit optfile initialize......failed!\r\n";

// What the frame's loader says of a board that a slot takes, but that was left out.
// What stands in braces is said under the debug switch only.
inline std::string NoCard(const std::string& name, const std::string& where) {
  return "{\r\nddGetCardTypeByName err!, pcCardName = " + name +
         "}\r\nddReadSlotSupportBoard err! iResult = -32, _tmp = " + name + where +
         ", ulSLotEnd = 2";
}
inline std::string NoCardOfBoard(const std::string& number) {
  return NoCard(number == "1" ? "GP01A" : "ET01G", ", ulSlotListIndex = 0, ulSlotOut = 1");
}
inline std::string NoMainCard() {
  return NoCard("MCXA", ", ulSlotListIndex = 1, ulSlotOut = 2");
}

// What the ONU type loader says of a type with a port whose type was left out. An adder
// of ports fails with -1, but that of the LAN ports with -27.
inline std::string NoOnuPortType(const std::string& number, const std::string& kind,
                                 const std::string& key, const std::string& code) {
  return NoPorts(kind, code, "U" + number,
                 "->ddIsOnu" + kind + "TypeSupportedByName err! iResult = -32, strKey = " + key +
                     ", ulIndex = 0");
}
// What is said of the ONU types when a catalog's only type was left out.
inline std::string NoOnusOfPonType() {
  return NoOnuPortType("1", "Pon", "NameKeyPon1", "-1") +
         NoOnuPortType("2", "Pon", "NameKeyPon1", "-1") + kNoOnuLeft;
}
inline std::string NoOnuOfLanType() {
  return NoOnuPortType("1", "Lan", "NameKeyLanPort1", "-27");
}
inline std::string NoOnuOfPotsType() {
  return NoOnuPortType("1", "Pots", "NameKeyPotsPort1", "-1");
}
inline std::string NoOnuOfSpecialPortType() {
  return NoOnuPortType("1", "SpecialPort", "NameKeySpecialPort1", "-1");
}

// The text without the braces, or without what is in them as well.
inline std::string Said(std::string text, bool debug) {
  for (size_t open = 0; (open = text.find('{')) != std::string::npos;) {
    const size_t close = text.find('}', open);
    text = text.substr(0, open) + (debug ? text.substr(open + 1, close - open - 1) : "") +
           text.substr(close + 1);
  }
  return text;
}

}  // namespace test
