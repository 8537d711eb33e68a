// The table of queries, and the ways in which they are asked; see the header.
#include "fuzz/queries.h"

#include <tuple>
#include <utility>

#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace fuzz {
namespace {

constexpr size_t kLongestList = MAX_SWITCH_CHIP_LOGIC_PORT_NUM;

// Calls with what the arguments pass, and notes the code and what they received.
template <typename Function, typename... Arguments>
bool Call(Answer& answer, Function function, Arguments&&... arguments) {
  const int32_t code = function(arguments.Pass()...);
  answer.push_back(static_cast<uint32_t>(code));
  bool is_sound = true;
  ((is_sound = arguments.Note(answer, code) && is_sound), ...);
  return is_sound;
}

// The first arguments of a function, as many as there are numbers.
template <typename... Types, size_t... places>
auto FirstArguments(int32_t (*)(Types...), Words& words, std::index_sequence<places...>) {
  using All = std::tuple<Types...>;
  return std::tuple{Argument<std::tuple_element_t<places, All>>(words)...};
}

template <typename... Types>
constexpr size_t CountParameters(int32_t (*)(Types...)) {
  return sizeof...(Types);
}

// One whose arguments are all told by their types.
template <auto query>
bool Ask(Words words, Answer& answer) {
  constexpr auto kAll = std::make_index_sequence<CountParameters(query)>();
  auto arguments = FirstArguments(query, words, kAll);
  return std::apply([&](auto&... each) { return Call(answer, query, each...); }, arguments);
}

// One whose outputs must be there.
template <auto query>
bool AskWithOutputs(Words, Answer& answer) {
  return Ask<query>(Words(""), answer);
}

// One that fills a list: its last parameters are the list, the room in it and the count. The
// list may get `lists` times as many numbers.
template <auto query, size_t lists = 1>
bool AskList(Words words, Answer& answer) {
  constexpr auto kInputs = std::make_index_sequence<CountParameters(query) - 3>();
  auto inputs = FirstArguments(query, words, kInputs);
  const Argument<uint32_t> room(words);
  const size_t size = lists * std::min<size_t>(room.Pass(), kLongestList);
  const Numbers<uint32_t> list(words, size);
  const Argument<uint32_t*> count(words);
  const bool is_sound = std::apply(
      [&](auto&... each) { return Call(answer, query, each..., list, room, count); }, inputs);
  return is_sound && (answer.back() <= size || answer.back() == kUntouched);
}

bool AskLogicPorts(Words words, Answer& answer) {
  const Argument<uint32_t> port(words);
  const Argument<const PortMap*> map(words);
  const Numbers<uint32_t> ports(words, kLongestList);
  Words none("");
  const Argument<uint32_t*> count(none);  // it must be there
  return Call(answer, ddGetSwitchChipLogicPortFromPhyPort, port, map, ports, count);
}

// The count is an input as well.
bool AskOnuTypes(Words words, Answer& answer) {
  uint32_t count = words.NextNumber();
  uint32_t* const in_out = words.NextOutputIsNull() ? nullptr : &count;
  const Numbers<uint32_t> types(words, MAX_ONU_TYPE_NUM);
  const auto ask = [in_out](uint32_t* array) { return ddGetAllSupportedOnuType(in_out, array); };
  const bool is_sound = Call(answer, ask, types);
  answer.push_back(count);
  return is_sound;
}

// Limits of optical modules: the last parameters are the number of paths and the paths.
template <auto query>
bool AskLimits(Words words, Answer& answer) {
  constexpr auto kInputs = std::make_index_sequence<CountParameters(query) - 2>();
  auto inputs = FirstArguments(query, words, kInputs);
  const auto room = static_cast<uint16_t>(words.NextNumber() % 16);
  uint16_t count = room;
  uint16_t* const in_out = words.NextOutputIsNull() ? nullptr : &count;
  const auto paths = std::make_unique<OptModuleThreshold[]>(room);
  OptModuleThreshold* const array = words.NextOutputIsNull() ? nullptr : paths.get();
  const auto ask = [=](auto... each) { return query(each..., in_out, array); };
  const bool is_sound =
      std::apply([&](auto&... each) { return Call(answer, ask, each...); }, inputs);
  answer.push_back(count);
  for (uint16_t i = 0; i < std::min(room, count); ++i) {
    for (const int32_t limit : {paths[i].inup, paths[i].indn, paths[i].outup, paths[i].outdn}) {
      answer.push_back(static_cast<uint32_t>(limit));
    }
  }
  return is_sound && count <= room;
}

#define QUERY(name) \
  { #name, Ask < name> }
#define LIST(name) \
  { #name, AskList < name> }

constexpr Query kQueries[] = {
    QUERY(ddIsContextVerMatchSoftVer),
    QUERY(ddGetModuleNameByType),
    QUERY(ddGetModuleTypeByName),
    QUERY(ddIsModuleInList),
    QUERY(ddGetModuleSize),
    QUERY(ddIsSysSupportFunc),
    QUERY(ddIsOltPortTypeSupportedByName),
    QUERY(ddCreateOneOltPortObjByName),
    QUERY(ddGetOltPortSplittingRatioByType),
    QUERY(ddGetMainBoardNameByType),
    QUERY(ddGetMainBoardTypeByName),
    QUERY(ddGetMainBoardObjByType),
    QUERY(ddGetSpecialLogicPortToPhyPortObjByType),
    QUERY(ddGetSwitchChipPhyPortFromLogicPort),
    {"ddGetSwitchChipLogicPortFromPhyPort", AskLogicPorts},
    QUERY(ddIsBoardTypeSupportedByName),
    QUERY(ddGetBoardNameByType),
    QUERY(ddGetBoardTypeByName),
    QUERY(ddGetBoardServePortAmountByType),
    QUERY(ddGetBoardSpecialPortNumByType),
    QUERY(ddGetBoardTotalSpecialPortNum),
    QUERY(ddGetPortTypeByBoardType),
    QUERY(ddGetSpecialPortTypeByBoardType),
    QUERY(ddGetPonMaxOnuNumByBoardType),
    QUERY(ddGetSupportedBoardMaxPonNum),
    QUERY(ddGetBoardTotailPortAmountByType),
    LIST(ddGetBoardAllPortTypesByType),
    QUERY(ddGetBoardOneTypePortsByType),
    QUERY(ddGetCardTypeByName),
    QUERY(ddGetCardTypeByNocaseName),
    QUERY(ddGetCardNameByType),
    QUERY(ddInquireFrameName),
    QUERY(ddCheckFrameInformation),
    QUERY(ddGetFrameName),
    QUERY(ddGetMaxOnuNum),
    QUERY(ddGetMaxUserNum),
    QUERY(ddGetMaxSlotNum),
    QUERY(ddGetServeBoardSlotAmount),
    QUERY(ddGetMaxMainSlot),
    QUERY(ddGetMinMainSlot),
    QUERY(ddGetRealSlotRange),
    QUERY(ddGetVirtualSlotRange),
    QUERY(ddGetMainSlotRange),
    QUERY(ddGetServeBoardSlotRange),
    QUERY(ddGetUplinkSlotRange),
    QUERY(ddGetFanSlotRange),
    QUERY(ddGetPowerSlotRange),
    QUERY(ddGetCioSlotRange),
    QUERY(ddGetHcuSlotRange),
    LIST(ddGetRealSlotList),
    LIST(ddGetVirtualSlotList),
    LIST(ddGetMainBoardSlotList),
    LIST(ddGetServeSlotList),
    LIST(ddGetUplinkSlotList),
    LIST(ddGetFanSlotList),
    LIST(ddGetPowerSlotList),
    LIST(ddGetCioSlotList),
    LIST(ddGetHcuSlotList),
    LIST(ddGetBoardSlotList),
    {"ddGetAllSlotList", AskList<ddGetAllSlotList, 2>},
    QUERY(ddIsRealSlot),
    QUERY(ddIsVirtualSlot),
    QUERY(ddIsMainBoardSlot),
    QUERY(ddIsServeBoardSlot),
    QUERY(ddIsUplinkBoardSlot),
    QUERY(ddIsFanBoardSlot),
    QUERY(ddIsPowerBoardSlot),
    QUERY(ddIsCioBoardSlot),
    QUERY(ddIsHcuBoardSlot),
    QUERY(ddIsSlotInSlotList),
    QUERY(ddIsValidSlot),
    QUERY(ddIsVectorBoardSlot),
    QUERY(ddCanBoardPlugInSlotByType),
    QUERY(get_switch_chip_logicport_portno_from_index),
    QUERY(get_switch_chip_logicport_index_from_portno),
    QUERY(get_balance_switch_logicport_portno_from_index),
    QUERY(get_balance_switch_logicport_index_from_portno),
    QUERY(ddGetSwitchChipLogicPortAmount),
    QUERY(get_balance_switch_logicport_amount),
    QUERY(ddGetSlotPortFromSwitchChipLogicPort),
    QUERY(ddGetObjectInfoFromSwitchChipLogicPort),
    QUERY(get_balance_slotport_from_switch_logicport),
    QUERY(get_balance_chipno_phyport_from_switch_logicport),
    QUERY(is_higigport_balance_switch_logicport),
    QUERY(ddGetSwitchChipLogicPortFromSlotPort),
    QUERY(get_balance_switch_logicport_from_chipno_phyport),
    QUERY(get_balance_switch_logicport_from_phyport),
    QUERY(get_balance_switch_logicport_from_slotport_chipno),
    QUERY(get_balance_switch_logicport_from_slotport),
    QUERY(ddGetEthLogicportRange),
    LIST(get_switch_logicportlist_from_slotport),
    LIST(get_switch_logicportlist_from_slot),
    LIST(get_balance_switch_logicportlist_from_slot),
    LIST(get_balance_switch_logicportlist_from_slotport),
    LIST(get_higicport_balance_switch_logicportlist),
    LIST(ddGetUplinkPortLogicPortListFromSlot),
    LIST(ddGetUplinkLogicPortListOnly),
    LIST(ddGetNonzeroPortSwitchChipLogicPortList),
    LIST(ddGetAllUserPortSwitchChipLogicPortList),
    LIST(get_balance_user_port_switch_logicportlist),
    LIST(ddGetUplinkLogicPortList),
    QUERY(get_current_frameno),
    QUERY(ddRunGetMainSlotType),
    QUERY(ddRunGetSwitchChipPhyPortFromLogicPort),
    QUERY(ddRunGetSwitchChipLogicPortFromPhyPort),
    QUERY(ddIsOnuPonTypeSupportedByName),
    QUERY(ddIsOnuLanTypeSupportedByName),
    QUERY(ddIsOnuPotsTypeSupportedByName),
    QUERY(ddIsOnuSpecialPortTypeSupportedByName),
    QUERY(ddIsOnuPonTypeSupportedByType),
    QUERY(ddIsOnuLanTypeSupportedByType),
    QUERY(ddIsOnuPotsTypeSupportedByType),
    QUERY(ddIsOnuSpecialPortTypeSupportedByType),
    QUERY(ddCreateOneOnuPonObjByName),
    QUERY(ddCreateOneOnuLanObjByName),
    QUERY(ddCreateOneOnuPotsObjByName),
    QUERY(ddCreateOneOnuSpecialPortObjByName),
    {"ddCheckSupportedOnuTypeNum", AskWithOutputs<ddCheckSupportedOnuTypeNum>},
    QUERY(ddGetOnuPonNumByType),
    QUERY(ddGetOnuLanPortNumByType),
    QUERY(ddGetOnuPotsPortNumByType),
    QUERY(ddGetOnuSpecialPortAmount),
    QUERY(ddGetOnuSpecialPortNumByType),
    QUERY(ddGetOnuPonPortTypeByType),
    QUERY(ddGetOnuLanPortTypeByType),
    QUERY(ddGetOnuPotsPortTypeByType),
    QUERY(ddGetOnuSpecialPortTypeByPortNo),
    LIST(ddGetOnuSpecialPortTypeList),
    QUERY(ddGetOnuNameByType),
    QUERY(ddGetOnuTypeByName),
    QUERY(ddIsOnuSupportedByType),
    {"ddGetAllSupportedOnuType", AskOnuTypes},
    QUERY(ddGetSupportedOnuMaxLanNum),
    {"get_port_optmodule_thresinfo", AskLimits<get_port_optmodule_thresinfo>},
    {"get_onu_optmodule_thresinfo", AskLimits<get_onu_optmodule_thresinfo>},
};

}  // namespace

std::span<const Query> AllQueries() {
  return kQueries;
}

const Query* QueryNamed(std::string_view name) {
  for (const Query& query : kQueries) {
    if (query.name == name) {
      return &query;
    }
  }
  return nullptr;
}

}  // namespace fuzz
