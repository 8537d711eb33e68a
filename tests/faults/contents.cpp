// Taking the tables' contents.
#include "faults/contents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstring>
#include <map>

#include "support/fake_platform.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace faults {
namespace {

template <typename Value>
std::string Bytes(const Value& value) {
  return {reinterpret_cast<const char*>(&value), sizeof value};
}

template <typename Port>
std::string PortBytes(uint32_t count, Port* const* ports) {
  std::string bytes;
  for (uint32_t i = 0; i < count; ++i) {
    bytes += Bytes(*ports[i]);
  }
  return bytes;
}

template <typename Value>
std::string BytesOf(const Value& record) {
  return Bytes(record);
}

std::string BytesOf(const BoardInformation& board) {
  BoardInformation record = board;
  record.pPortArray = record.pSpecialPortArray = nullptr;
  return Bytes(record) + PortBytes(board.ulTotalServePortNum, board.pPortArray) +
         PortBytes(board.ulTotalSpecialPortNum, board.pSpecialPortArray);
}

std::string BytesOf(const OnuInformation& onu) {
  OnuInformation record = onu;
  record.pOnuPonArray = record.pOnuLanPortArray = nullptr;
  record.pOnuPotsPortArray = record.pOnuSpecialPortArray = nullptr;
  return Bytes(record) + PortBytes(onu.ulTotalPonNum, onu.pOnuPonArray) +
         PortBytes(onu.ulTotalLanPortNum, onu.pOnuLanPortArray) +
         PortBytes(onu.ulTotalPotsNum, onu.pOnuPotsPortArray) +
         PortBytes(onu.ulTotalSpecialPortNum, onu.pOnuSpecialPortArray);
}

std::string BytesOf(const OptModuleInfo& module) {
  OptModuleInfo record = {};
  record.kind = module.kind;
  record.porttype = module.porttype;
  record.phytype = module.phytype;
  record.pathnum = module.pathnum;
  return Bytes(record) + PortBytes(module.pathnum, module.pathinfo);
}

template <typename Value>
std::string NameOf(const Value& record) {
  return record.acName;
}

std::string NameOf(const OptModuleInfo& module) {
  return std::to_string(module.kind) + " " + std::to_string(module.porttype) + " " +
         std::to_string(module.phytype);
}

template <typename Value>
Table TableOf(uint32_t count, Value* const* records) {
  Table table = {records != nullptr, {}};
  for (uint32_t i = 0; i < count; ++i) {
    table.records.push_back({NameOf(*records[i]), BytesOf(*records[i])});
  }
  return table;
}

Table Versions() {
  Table table;
  if (gstVersionInformation.ulSupportedSoftVerNum != 0) {
    table.records.push_back({"versions", Bytes(gstVersionInformation)});
  }
  return table;
}

Table Functions() {
  Table table;
  for (uint32_t i = 0; i < gstSysSupportFuncType.ulSupportedSysFunctionTypeNum; ++i) {
    const uint32_t type = gstSysSupportFuncType.aulSupportedSysFunctionType[i];
    table.records.push_back({"type " + std::to_string(type), Bytes(type)});
  }
  return table;
}

const SlotClassInformation& SlotClass(const std::string& word) {
  static const std::map<std::string, SlotClassInformation FrameInformation::*> kClasses = {
      {"RealSlot", &FrameInformation::stRealSlot},
      {"VirtualSlot", &FrameInformation::stVirtualSlot},
      {"HcuSlot", &FrameInformation::stHcuSlot},
      {"FanSlot", &FrameInformation::stFanSlot},
      {"CioSlot", &FrameInformation::stCioSlot},
      {"PowerSlot", &FrameInformation::stPowerSlot},
      {"ServeBoardSlot", &FrameInformation::stServeBoardSlot},
      {"MainSlot", &FrameInformation::stMainSlot},
      {"UplinkSlot", &FrameInformation::stUplinkSlot}};
  return gstFrame.*kClasses.at(word);
}

bool EndsIn(const std::string& text, const std::string& ending, std::string& rest) {
  if (text.size() < ending.size() || text.substr(text.size() - ending.size()) != ending) {
    return false;
  }
  rest = text.substr(0, text.size() - ending.size());
  return true;
}

std::string SlotRow(size_t slot) {
  return gstFrame.pstSlotArray == nullptr ? Bytes(SlotSupportBoard{})
                                          : Bytes(gstFrame.pstSlotArray[slot]);
}

// The bytes of the frame's keys, in their order.
class FrameKeys {
 public:
  std::string BytesOf(const std::string& key) {
    if (key == "Type") {
      return Bytes(gstFrame.eType);
    }
    if (key == "Name") {
      return Bytes(gstFrame.ulNameLen) + Bytes(gstFrame.acName);
    }
    if (key == "MaxOnuNum") {
      return Bytes(gstFrame.ulMaxOnuNum);
    }
    if (key == "MaxUserNum") {
      return Bytes(gstFrame.ulMaxUserNum);
    }
    if (key == "SwitchChipLogicPortNum") {
      return Bytes(gstFrame.ulSwitchChipLogicPortNum);
    }
    if (key == "Type2SwitchChipLogicPortNum") {
      return Bytes(gstFrame.ulType2SwitchChipLogicPortNum);
    }
    if (IsNumbered(key, "SwitchChipLogicPort")) {
      return Bytes(gstFrame.astSwitchChipLogicPort[plain_++]);
    }
    if (IsNumbered(key, "Type2SwitchChipLogicPort")) {
      return Bytes(gstFrame.astType2SwitchChipLogicPort[balance_++]);
    }
    if (const std::string prefix = "SupportedBoardTypeSlot"; IsNumbered(key, prefix)) {
      return SlotRow(std::stoul(key.substr(prefix.size())));
    }
    std::string word;
    if (EndsIn(key, "List", word)) {
      const SlotClassInformation& slots = SlotClass(word);
      return Bytes(slots.ulSlotStart) + Bytes(slots.ulSlotEnd) + Bytes(slots.ucSlotArray);
    }
    if (EndsIn(key, "Num", word)) {
      return Bytes(SlotClass(word).ulSlotAmount);
    }
    ADD_FAILURE() << "what is " << key << "?";
    return "";
  }

 private:
  size_t plain_ = 0;
  size_t balance_ = 0;
};

Table Frame(const std::vector<std::string>& keys) {
  Table table = {gstFrame.pstSlotArray != nullptr, {}};
  FrameKeys frame;
  for (const std::string& key : keys) {
    table.records.push_back({key, frame.BytesOf(key)});
  }
  return table;
}

std::string DifferenceOf(const Table& expected, const Table& actual) {
  if (expected.has_array != actual.has_array) {
    return actual.has_array ? "an array" : "no array";
  }
  if (expected.records.size() != actual.records.size()) {
    return std::to_string(actual.records.size()) + " records instead of " +
           std::to_string(expected.records.size());
  }
  for (size_t i = 0; i < expected.records.size(); ++i) {
    if (expected.records[i] != actual.records[i]) {
      return "another " + actual.records[i].name + " where " + expected.records[i].name +
             " should be";
    }
  }
  return "";
}

}  // namespace

bool IsNumbered(const std::string& key, const std::string& prefix) {
  return key.size() > prefix.size() && key.compare(0, prefix.size(), prefix) == 0 &&
         std::isdigit(static_cast<unsigned char>(key[prefix.size()])) != 0;
}

Contents Contents::Take(const std::vector<std::string>& frame_keys) {
  return {{
      Versions(),
      TableOf(gstModuleTypeList.ulModuleTypeNum, gstModuleTypeList.pModuleTypeArray),
      Functions(),
      TableOf(gstSupportedOltPortType.ulSupportedOltPortTypeNum,
              gstSupportedOltPortType.pOltPortTypeArray),
      TableOf(gstSupportedMainBoardType.ulSupportedBoardTypeNum,
              gstSupportedMainBoardType.pBoardTypeArray),
      TableOf(gstSupportedBoardType.ulSupportedBoardTypeNum, gstSupportedBoardType.pBoardTypeArray),
      Frame(frame_keys),
      TableOf(gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
              gstSupportedOnuPonType.pOnuPonTypeArray),
      TableOf(gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
              gstSupportedOnuLanType.pOnuLanTypeArray),
      TableOf(gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
              gstSupportedOnuPotsType.pOnuPotsTypeArray),
      TableOf(gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
              gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray),
      TableOf(gstSupportedOnuType.ulSupportedOnuTypeNum, gstSupportedOnuType.pOnuTypeArray),
      TableOf(g_optmdule_infolist.listnum, g_optmdule_infolist.objlist),
  }};
}

std::string Difference(const Contents& expected, const Contents& actual) {
  for (size_t i = 0; i < kLoaderCount; ++i) {
    if (const std::string difference = DifferenceOf(expected.tables[i], actual.tables[i]);
        !difference.empty()) {
      return "table " + std::to_string(i) + " has " + difference;
    }
  }
  return "";
}

void ExpectMostPorts() {
  uint32_t most_pon_ports = 0;
  for (uint32_t i = 0; i < gstSupportedBoardType.ulSupportedBoardTypeNum; ++i) {
    const BoardInformation& board = *gstSupportedBoardType.pBoardTypeArray[i];
    if (test::FakePlatform::Get().pon_cards.count(static_cast<int16_t>(board.ulType)) != 0) {
      most_pon_ports = std::max(most_pon_ports, board.ulTotalServePortNum);
    }
  }
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonNum, most_pon_ports);
  uint32_t most_lan_ports = 0;
  for (uint32_t i = 0; i < gstSupportedOnuType.ulSupportedOnuTypeNum; ++i) {
    most_lan_ports =
        std::max(most_lan_ports, gstSupportedOnuType.pOnuTypeArray[i]->ulTotalLanPortNum);
  }
  EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuMaxLanNum, most_lan_ports);
}

}  // namespace faults
