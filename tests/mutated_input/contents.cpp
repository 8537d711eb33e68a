// Taking what the tables hold; see the header.
#include "mutated_input/contents.h"

#include <cstdint>

#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace mutated {
namespace {

template <typename Value>
void AddBytes(std::string& bytes, const Value& value) {
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

// A record that leads to no other, and those that do.
template <typename Record>
void Add(std::string& bytes, const Record& record) {
  AddBytes(bytes, record);
}
void Add(std::string& bytes, const MainBoardInformation& board);
void Add(std::string& bytes, const BoardInformation& board);
void Add(std::string& bytes, const OnuInformation& onu);
void Add(std::string& bytes, const OptModuleInfo& module);

template <typename Record>
void AddRecords(std::string& bytes, uint32_t count, Record* const* records) {
  AddBytes(bytes, count);
  for (uint32_t i = 0; i < count; ++i) {
    Add(bytes, *records[i]);
  }
}

// Only what is in use: a record takes 100 KB.
void Add(std::string& bytes, const MainBoardInformation& board) {
  AddBytes(bytes, board.ulType);
  AddBytes(bytes, board.acName);
  AddBytes(bytes, board.ulSwitchChipLogicPortNum);
  for (uint32_t i = 0; i < board.ulChipLogicPortToPhyPortTypeNum; ++i) {
    const PortMap& map = board.astPortMap[i];
    AddBytes(bytes, map.acBoardName);
    bytes.append(reinterpret_cast<const char*>(map.astPortPair),
                 board.ulSwitchChipLogicPortNum * sizeof(PortPair));
  }
}

void Add(std::string& bytes, const BoardInformation& board) {
  AddBytes(bytes, board.ulType);
  AddBytes(bytes, board.acName);
  AddRecords(bytes, board.ulTotalServePortNum, board.pPortArray);
  AddRecords(bytes, board.ulTotalSpecialPortNum, board.pSpecialPortArray);
}

void Add(std::string& bytes, const OnuInformation& onu) {
  AddBytes(bytes, onu.ulOnuType);
  AddBytes(bytes, onu.acName);
  AddRecords(bytes, onu.ulTotalPonNum, onu.pOnuPonArray);
  AddRecords(bytes, onu.ulTotalLanPortNum, onu.pOnuLanPortArray);
  AddRecords(bytes, onu.ulTotalPotsNum, onu.pOnuPotsPortArray);
  AddRecords(bytes, onu.ulTotalSpecialPortNum, onu.pOnuSpecialPortArray);
}

void Add(std::string& bytes, const OptModuleInfo& module) {
  AddBytes(bytes, module.kind);
  AddBytes(bytes, module.porttype);
  AddBytes(bytes, module.phytype);
  AddRecords(bytes, module.pathnum, module.pathinfo);
}

// Without the address of the rows, which follow.
void AddFrame(std::string& bytes) {
  FrameInformation frame = gstFrame;
  frame.pstSlotArray = nullptr;
  AddBytes(bytes, frame);
  for (uint32_t slot = 0; gstFrame.pstSlotArray != nullptr && slot <= frame.stRealSlot.ulSlotEnd;
       ++slot) {
    AddBytes(bytes, gstFrame.pstSlotArray[slot]);
  }
}

}  // namespace

std::string Contents() {
  std::string bytes;
  AddBytes(bytes, gstVersionInformation);
  AddRecords(bytes, gstModuleTypeList.ulModuleTypeNum, gstModuleTypeList.pModuleTypeArray);
  AddBytes(bytes, gstSysSupportFuncType);
  AddRecords(bytes, gstSupportedOltPortType.ulSupportedOltPortTypeNum,
             gstSupportedOltPortType.pOltPortTypeArray);
  AddRecords(bytes, gstSupportedMainBoardType.ulSupportedBoardTypeNum,
             gstSupportedMainBoardType.pBoardTypeArray);
  AddRecords(bytes, gstSupportedBoardType.ulSupportedBoardTypeNum,
             gstSupportedBoardType.pBoardTypeArray);
  AddFrame(bytes);
  AddRecords(bytes, gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
             gstSupportedOnuPonType.pOnuPonTypeArray);
  AddRecords(bytes, gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
             gstSupportedOnuLanType.pOnuLanTypeArray);
  AddRecords(bytes, gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
             gstSupportedOnuPotsType.pOnuPotsTypeArray);
  AddRecords(bytes, gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
             gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray);
  AddRecords(bytes, gstSupportedOnuType.ulSupportedOnuTypeNum, gstSupportedOnuType.pOnuTypeArray);
  AddRecords(bytes, g_optmdule_infolist.listnum, g_optmdule_infolist.objlist);
  return bytes;
}

std::vector<Count> Counts() {
  return {
      {"versions", gstVersionInformation.ulSupportedSoftVerNum},
      {"modules", gstModuleTypeList.ulModuleTypeNum},
      {"functions", gstSysSupportFuncType.ulSupportedSysFunctionTypeNum},
      {"OLT port types", gstSupportedOltPortType.ulSupportedOltPortTypeNum},
      {"main boards", gstSupportedMainBoardType.ulSupportedBoardTypeNum},
      {"boards", gstSupportedBoardType.ulSupportedBoardTypeNum},
      {"real slots", gstFrame.stRealSlot.ulSlotAmount},
      {"logic ports", gstFrame.ulSwitchChipLogicPortNum},
      {"type-2 ports", gstFrame.ulType2SwitchChipLogicPortNum},
      {"PON types", gstSupportedOnuPonType.ulSupportedOnuPonTypeNum},
      {"LAN types", gstSupportedOnuLanType.ulSupportedOnuLanTypeNum},
      {"POTS types", gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum},
      {"special types", gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum},
      {"ONU types", gstSupportedOnuType.ulSupportedOnuTypeNum},
      {"optical modules", g_optmdule_infolist.listnum},
  };
}

}  // namespace mutated
