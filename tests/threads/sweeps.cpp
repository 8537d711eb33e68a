// The queries by family, and what they are asked for; see the header.
#include "threads/sweeps.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <set>

#include "support/sample_onu_service.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace test {
namespace {

Numbers From0To(uint32_t last) {
  Numbers numbers;
  for (uint32_t number = 0; number <= last; ++number) {
    numbers.push_back(number);
  }
  return numbers;
}

Numbers With(Numbers numbers, const Numbers& more) {
  numbers.insert(numbers.end(), more.begin(), more.end());
  return numbers;
}

const Numbers kSlots = With(From0To(40), {257, 801, 0xffffffff});
const Numbers kSlotPorts = With(From0To(17), {48, 49, 128, 129});
const Numbers kPorts = With(From0To(260), {1280, 1281, 65537, 0xffffffff});
const Numbers kChips = {0, 1, 2};
const Numbers kMaps = {0, 1, 2};
const Numbers kOnuPorts = With(From0To(6), {24, 25, 100, 101, 0xffffffff});

uint32_t LowBits(const void* pointer) {
  return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(pointer));
}

// Types and names of a table's records, with some that it does not have.
struct Known {
  Numbers types = {0, 0xffffffff};
  Names names = {"", "Unknown"};

  void Add(uint32_t type, const char* name) {
    types.push_back(type);
    names.push_back(name);
  }

  Names KnownNames() const { return Names(names.begin() + 2, names.end()); }
};

Known Modules() {
  Known modules;
  for (uint32_t i = 0; i < gstModuleTypeList.ulModuleTypeNum; ++i) {
    const ModuleInformation& module = *gstModuleTypeList.pModuleTypeArray[i];
    modules.Add(module.ulModuleType, module.acName);
  }
  return modules;
}

Known PortTypes() {
  Known types;
  for (uint32_t i = 0; i < gstSupportedOltPortType.ulSupportedOltPortTypeNum; ++i) {
    const OltPortInformation& type = *gstSupportedOltPortType.pOltPortTypeArray[i];
    types.Add(type.ulPortType, type.acName);
  }
  return types;
}

Known Cards() {
  Known cards;
  for (uint32_t i = 0; i < gstSupportedMainBoardType.ulSupportedBoardTypeNum; ++i) {
    const MainBoardInformation& board = *gstSupportedMainBoardType.pBoardTypeArray[i];
    cards.Add(board.ulType, board.acName);
  }
  for (uint32_t i = 0; i < gstSupportedBoardType.ulSupportedBoardTypeNum; ++i) {
    const BoardInformation& board = *gstSupportedBoardType.pBoardTypeArray[i];
    cards.Add(board.ulType, board.acName);
  }
  return cards;
}

#define SWEEP(query, ask, ...) \
  { #query, ask(query __VA_OPT__(, ) __VA_ARGS__) }

int32_t IsFunction(uint32_t type, uint32_t* is_supported) {
  return ddIsSysSupportFunc(static_cast<int32_t>(type), is_supported);
}

std::vector<Sweep> ContextSweeps() {
  const Known modules = Modules();
  return {
      SWEEP(ddIsContextVerMatchSoftVer, Ask),
      SWEEP(ddGetModuleNameByType, AskName, modules.types),
      SWEEP(ddGetModuleTypeByName, Ask, modules.names),
      SWEEP(ddIsModuleInList, Ask, modules.types),
      SWEEP(ddGetModuleSize, Ask, modules.types),
      {"ddIsSysSupportFunc", Ask(IsFunction, modules.types)},
  };
}

int32_t CreatePort(const char* name, uint32_t* type, uint32_t* ratio) {
  OltPortInformation* port = nullptr;
  const int32_t code = ddCreateOneOltPortObjByName(name, &port);
  if (port != nullptr) {
    *type = port->ulPortType;
    *ratio = port->ulSplittingRatio;
    std::free(port);
  }
  return code;
}

// Those that make copies tell everybody of names that they do not know.
std::vector<Sweep> PortTypeSweeps() {
  const Known types = PortTypes();
  return {
      SWEEP(ddIsOltPortTypeSupportedByName, Ask, types.names),
      {"ddCreateOneOltPortObjByName", Ask(CreatePort, types.KnownNames())},
      SWEEP(ddGetOltPortSplittingRatioByType, Ask, types.types),
  };
}

int32_t GetMainBoard(uint32_t type, uint32_t* address, uint32_t* record_type) {
  MainBoardInformation* board = nullptr;
  const int32_t code = ddGetMainBoardObjByType(type, &board);
  *address = LowBits(board);
  *record_type = board != nullptr ? board->ulType : 0;
  return code;
}

int32_t GetSpecialMap(uint32_t main_type, uint32_t type, uint32_t* address) {
  PortMap* map = nullptr;
  const int32_t code = ddGetSpecialLogicPortToPhyPortObjByType(main_type, type, &map);
  *address = LowBits(map);
  return code;
}

const PortMap* Map(uint32_t place) {
  return &gstSupportedMainBoardType.pBoardTypeArray[0]->astPortMap[place];
}

int32_t GetPhyPort(uint32_t port, uint32_t map, uint32_t* phy_port) {
  return ddGetSwitchChipPhyPortFromLogicPort(port, Map(map), phy_port);
}

int32_t GetLogicPorts(uint32_t port, uint32_t map, uint32_t* ports, uint32_t room,
                      uint32_t* count) {
  Numbers all(MAX_SWITCH_CHIP_LOGIC_PORT_NUM, kUntouched);
  const int32_t code = ddGetSwitchChipLogicPortFromPhyPort(port, Map(map), all.data(), count);
  std::copy_n(all.begin(), room, ports);
  return code;
}

std::vector<Sweep> MainBoardSweeps() {
  const Known cards = Cards();
  return {
      SWEEP(ddGetMainBoardNameByType, AskName, cards.types),
      SWEEP(ddGetMainBoardTypeByName, Ask, cards.names),
      {"ddGetMainBoardObjByType", Ask(GetMainBoard, cards.types)},
      {"ddGetSpecialLogicPortToPhyPortObjByType", Ask(GetSpecialMap, cards.types, cards.types)},
      {"ddGetSwitchChipPhyPortFromLogicPort", Ask(GetPhyPort, kPorts, kMaps)},
      {"ddGetSwitchChipLogicPortFromPhyPort", AskList(GetLogicPorts, kPorts, kMaps)},
  };
}

std::vector<Sweep> BoardSweeps() {
  const Known cards = Cards();
  const Numbers port_types = PortTypes().types;
  return {
      SWEEP(ddIsBoardTypeSupportedByName, Ask, cards.names),
      SWEEP(ddGetBoardNameByType, AskName, cards.types),
      SWEEP(ddGetBoardTypeByName, Ask, cards.names),
      SWEEP(ddGetBoardServePortAmountByType, Ask, cards.types),
      SWEEP(ddGetBoardSpecialPortNumByType, Ask, cards.types, port_types),
      SWEEP(ddGetBoardTotalSpecialPortNum, Ask, cards.types),
      SWEEP(ddGetPortTypeByBoardType, Ask, cards.types, kSlotPorts),
      SWEEP(ddGetSpecialPortTypeByBoardType, Ask, cards.types, kSlotPorts),
      SWEEP(ddGetPonMaxOnuNumByBoardType, Ask, cards.types, kSlotPorts),
      SWEEP(ddGetSupportedBoardMaxPonNum, Ask),
      {"ddGetBoardTotailPortAmountByType", Ask(ddGetBoardTotailPortAmountByType, cards.types),
       false},
      SWEEP(ddGetBoardAllPortTypesByType, AskList, cards.types),
      SWEEP(ddGetBoardOneTypePortsByType, Ask, cards.types, port_types),
      SWEEP(ddGetCardTypeByName, Ask, cards.names),
      SWEEP(ddGetCardTypeByNocaseName, Ask, cards.names),
      SWEEP(ddGetCardNameByType, AskName, cards.types),
  };
}

int32_t ListMainSlots(uint32_t* slots, uint32_t room, uint32_t* count) {
  return ddGetBoardSlotList(&gstFrame.stMainSlot, slots, room, count);
}

int32_t IsUplinkSlot(uint32_t slot, uint32_t* is_in) {
  return ddIsSlotInSlotList(slot, &gstFrame.stUplinkSlot, is_in);
}

std::vector<Sweep> SlotSweeps() {
  const Numbers card_types = Cards().types;
  return {
      SWEEP(ddInquireFrameName, AskName),
      SWEEP(ddCheckFrameInformation, Ask),
      SWEEP(ddGetFrameName, AskName),
      SWEEP(ddGetMaxOnuNum, Ask),
      SWEEP(ddGetMaxUserNum, Ask),
      SWEEP(ddGetMaxSlotNum, Ask),
      SWEEP(ddGetServeBoardSlotAmount, Ask),
      SWEEP(ddGetMaxMainSlot, Ask),
      SWEEP(ddGetMinMainSlot, Ask),
      SWEEP(ddGetRealSlotRange, Ask),
      SWEEP(ddGetVirtualSlotRange, Ask),
      SWEEP(ddGetMainSlotRange, Ask),
      SWEEP(ddGetServeBoardSlotRange, Ask),
      SWEEP(ddGetUplinkSlotRange, Ask),
      SWEEP(ddGetFanSlotRange, Ask),
      SWEEP(ddGetPowerSlotRange, Ask),
      SWEEP(ddGetCioSlotRange, Ask),
      SWEEP(ddGetHcuSlotRange, Ask),
      SWEEP(ddGetRealSlotList, AskList),
      SWEEP(ddGetVirtualSlotList, AskList),
      SWEEP(ddGetMainBoardSlotList, AskList),
      SWEEP(ddGetServeSlotList, AskList),
      SWEEP(ddGetUplinkSlotList, AskList),
      SWEEP(ddGetFanSlotList, AskList),
      SWEEP(ddGetPowerSlotList, AskList),
      SWEEP(ddGetCioSlotList, AskList),
      SWEEP(ddGetHcuSlotList, AskList),
      {"ddGetBoardSlotList", AskList(ListMainSlots)},
      SWEEP(ddGetAllSlotList, AskList),
      SWEEP(ddIsRealSlot, Ask, kSlots),
      SWEEP(ddIsVirtualSlot, Ask, kSlots),
      SWEEP(ddIsMainBoardSlot, Ask, kSlots),
      SWEEP(ddIsServeBoardSlot, Ask, kSlots),
      SWEEP(ddIsUplinkBoardSlot, Ask, kSlots),
      SWEEP(ddIsFanBoardSlot, Ask, kSlots),
      SWEEP(ddIsPowerBoardSlot, Ask, kSlots),
      SWEEP(ddIsCioBoardSlot, Ask, kSlots),
      SWEEP(ddIsHcuBoardSlot, Ask, kSlots),
      {"ddIsSlotInSlotList", Ask(IsUplinkSlot, kSlots)},
      SWEEP(ddIsValidSlot, Ask, kSlots),
      SWEEP(ddIsVectorBoardSlot, Ask, kSlots),
      SWEEP(ddCanBoardPlugInSlotByType, Ask, kSlots, card_types),
  };
}

std::vector<Sweep> LogicPortSweeps() {
  return {
      SWEEP(get_switch_chip_logicport_portno_from_index, Ask, kPorts),
      SWEEP(get_switch_chip_logicport_index_from_portno, Ask, kPorts),
      SWEEP(get_balance_switch_logicport_portno_from_index, Ask, kPorts),
      SWEEP(get_balance_switch_logicport_index_from_portno, Ask, kPorts),
      SWEEP(ddGetSwitchChipLogicPortAmount, Ask),
      SWEEP(get_balance_switch_logicport_amount, Ask),
      SWEEP(ddGetSlotPortFromSwitchChipLogicPort, Ask, kPorts),
      SWEEP(ddGetObjectInfoFromSwitchChipLogicPort, Ask, kPorts),
      SWEEP(get_balance_slotport_from_switch_logicport, Ask, kPorts),
      SWEEP(get_balance_chipno_phyport_from_switch_logicport, Ask, kPorts),
      SWEEP(is_higigport_balance_switch_logicport, Ask, kPorts),
      SWEEP(ddGetSwitchChipLogicPortFromSlotPort, Ask, kSlots, kSlotPorts),
      SWEEP(get_balance_switch_logicport_from_chipno_phyport, Ask, kChips, kPorts),
      SWEEP(get_balance_switch_logicport_from_phyport, Ask, kPorts),
      SWEEP(get_balance_switch_logicport_from_slotport_chipno, Ask, kSlots, kSlotPorts, kChips),
      SWEEP(get_balance_switch_logicport_from_slotport, Ask, kSlots, kSlotPorts),
      SWEEP(ddGetEthLogicportRange, Ask),
      SWEEP(get_switch_logicportlist_from_slotport, AskList, kSlots, kSlotPorts),
      SWEEP(get_switch_logicportlist_from_slot, AskList, kSlots),
      SWEEP(get_balance_switch_logicportlist_from_slot, AskList, kSlots),
      SWEEP(get_balance_switch_logicportlist_from_slotport, AskList, kSlots, kSlotPorts),
      SWEEP(get_higicport_balance_switch_logicportlist, AskList),
      SWEEP(ddGetUplinkPortLogicPortListFromSlot, AskList, kSlots),
      SWEEP(ddGetUplinkLogicPortListOnly, AskList),
      SWEEP(ddGetNonzeroPortSwitchChipLogicPortList, AskList),
      SWEEP(ddGetAllUserPortSwitchChipLogicPortList, AskList),
      SWEEP(get_balance_user_port_switch_logicportlist, AskList),
      SWEEP(ddGetUplinkLogicPortList, AskList),
  };
}

std::vector<Sweep> RunTimeMappingSweeps() {
  return {
      SWEEP(get_current_frameno, Ask),
      SWEEP(ddRunGetMainSlotType, Ask),
      SWEEP(ddRunGetSwitchChipPhyPortFromLogicPort, Ask, kPorts),
      {"ddRunGetSwitchChipLogicPortFromPhyPort",
       Ask(ddRunGetSwitchChipLogicPortFromPhyPort, kPorts), false},
  };
}

Known OnuPortTypes(uint32_t count, OnuPortTypeInformation* const* array) {
  Known types;
  for (uint32_t i = 0; i < count; ++i) {
    types.Add(array[i]->ulPortType, array[i]->acName);
  }
  return types;
}

template <int32_t (*create)(const char* name, OnuPortTypeInformation** copy)>
int32_t CreateOnuPort(const char* name, uint32_t* type) {
  OnuPortTypeInformation* port = nullptr;
  const int32_t code = create(name, &port);
  if (port != nullptr) {
    *type = port->ulPortType;
    std::free(port);
  }
  return code;
}

std::vector<Sweep> OnuPortTypeSweeps() {
  const Known pon = OnuPortTypes(gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
                                 gstSupportedOnuPonType.pOnuPonTypeArray);
  const Known lan = OnuPortTypes(gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
                                 gstSupportedOnuLanType.pOnuLanTypeArray);
  const Known pots = OnuPortTypes(gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
                                  gstSupportedOnuPotsType.pOnuPotsTypeArray);
  const Known special =
      OnuPortTypes(gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
                   gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray);
  return {
      SWEEP(ddIsOnuPonTypeSupportedByName, Ask, pon.names),
      SWEEP(ddIsOnuLanTypeSupportedByName, Ask, lan.names),
      SWEEP(ddIsOnuPotsTypeSupportedByName, Ask, pots.names),
      SWEEP(ddIsOnuSpecialPortTypeSupportedByName, Ask, special.names),
      SWEEP(ddIsOnuPonTypeSupportedByType, Ask, pon.types),
      SWEEP(ddIsOnuLanTypeSupportedByType, Ask, lan.types),
      SWEEP(ddIsOnuPotsTypeSupportedByType, Ask, pots.types),
      SWEEP(ddIsOnuSpecialPortTypeSupportedByType, Ask, special.types),
      {"ddCreateOneOnuPonObjByName",
       Ask(CreateOnuPort<ddCreateOneOnuPonObjByName>, pon.KnownNames())},
      {"ddCreateOneOnuLanObjByName",
       Ask(CreateOnuPort<ddCreateOneOnuLanObjByName>, lan.KnownNames())},
      {"ddCreateOneOnuPotsObjByName",
       Ask(CreateOnuPort<ddCreateOneOnuPotsObjByName>, pots.KnownNames())},
      {"ddCreateOneOnuSpecialPortObjByName",
       Ask(CreateOnuPort<ddCreateOneOnuSpecialPortObjByName>, special.KnownNames())},
  };
}

// Of the table, and of the platform.
Known Onus() {
  Known onus;
  for (uint32_t i = 0; i < gstSupportedOnuType.ulSupportedOnuTypeNum; ++i) {
    const OnuInformation& onu = *gstSupportedOnuType.pOnuTypeArray[i];
    onus.Add(onu.ulOnuType, onu.acName);
  }
  onus.Add(kServedOnuType, kServedOnuName);
  return onus;
}

// Its list has room for all.
int32_t GetAllOnuTypes(uint32_t* types, uint32_t, uint32_t* count) {
  *count = 0;
  return ddGetAllSupportedOnuType(count, types);
}

std::vector<Sweep> OnuSweeps() {
  const Known onus = Onus();
  return {
      SWEEP(ddCheckSupportedOnuTypeNum, Ask),
      SWEEP(ddGetOnuPonNumByType, Ask, onus.types),
      SWEEP(ddGetOnuLanPortNumByType, Ask, onus.types),
      SWEEP(ddGetOnuPotsPortNumByType, Ask, onus.types),
      SWEEP(ddGetOnuSpecialPortAmount, Ask, onus.types),
      SWEEP(ddGetOnuSpecialPortNumByType, Ask, onus.types, kOnuPorts),
      SWEEP(ddGetOnuPonPortTypeByType, Ask, onus.types, kOnuPorts),
      SWEEP(ddGetOnuLanPortTypeByType, Ask, onus.types, kOnuPorts),
      SWEEP(ddGetOnuPotsPortTypeByType, Ask, onus.types, kOnuPorts),
      SWEEP(ddGetOnuSpecialPortTypeByPortNo, Ask, onus.types, kOnuPorts),
      SWEEP(ddGetOnuSpecialPortTypeList, AskList, onus.types),
      SWEEP(ddGetOnuNameByType, AskName, onus.types),
      SWEEP(ddGetOnuTypeByName, Ask, onus.names),
      SWEEP(ddIsOnuSupportedByType, Ask, onus.types),
      {"ddGetAllSupportedOnuType", AskList(GetAllOnuTypes)},
      SWEEP(ddGetSupportedOnuMaxLanNum, Ask),
  };
}

// Those of the modules, with some that there are not.
Numbers PhyTypes() {
  std::set<uint32_t> types = {0, 65535};
  for (uint32_t i = 0; i < g_optmdule_infolist.listnum; ++i) {
    types.insert(g_optmdule_infolist.objlist[i]->phytype);
  }
  return Numbers(types.begin(), types.end());
}

// Asks for the limits of up to `room` paths. They go to `limits`, four for a path.
template <auto query, typename... Inputs>
int32_t GetLimits(uint32_t* limits, uint32_t room, uint32_t* path_count, Inputs... inputs) {
  std::vector<OptModuleThreshold> paths(MAX_OPTMODULE_PATH_NUM);
  auto count = static_cast<uint16_t>(std::min<size_t>(room, paths.size()));
  const int32_t code = query(inputs..., &count, paths.data());
  *path_count = count;
  for (const OptModuleThreshold& path : paths) {
    for (const int32_t limit : {path.inup, path.indn, path.outup, path.outdn}) {
      *limits++ = static_cast<uint32_t>(limit);
    }
  }
  return code;
}

int32_t GetPortLimits(uint32_t slot, uint32_t port, uint32_t phy_type, uint32_t* limits,
                      uint32_t room, uint32_t* path_count) {
  return GetLimits<get_port_optmodule_thresinfo>(limits, room, path_count, slot, port,
                                                 static_cast<uint16_t>(phy_type));
}

int32_t GetOnuLimits(uint32_t slot, uint32_t port, uint32_t number, uint32_t phy_type,
                     uint32_t* limits, uint32_t room, uint32_t* path_count) {
  return GetLimits<get_onu_optmodule_thresinfo>(limits, room, path_count, slot, port, number,
                                                static_cast<uint16_t>(phy_type));
}

std::vector<Sweep> OptModuleSweeps() {
  return {
      {"get_port_optmodule_thresinfo", AskList(GetPortLimits, kSlots, kSlotPorts, PhyTypes())},
      {"get_onu_optmodule_thresinfo",
       AskList(GetOnuLimits, From0To(17), From0To(17), From0To(2), Numbers{0, 1})},
  };
}

}  // namespace

std::vector<Sweep> AllSweeps() {
  std::vector<Sweep> all;
  for (const auto family :
       {ContextSweeps, PortTypeSweeps, MainBoardSweeps, BoardSweeps, SlotSweeps, LogicPortSweeps,
        RunTimeMappingSweeps, OnuPortTypeSweeps, OnuSweeps, OptModuleSweeps}) {
    std::vector<Sweep> sweeps = family();
    all.insert(all.end(), std::make_move_iterator(sweeps.begin()),
               std::make_move_iterator(sweeps.end()));
  }
  return all;
}

}  // namespace test
