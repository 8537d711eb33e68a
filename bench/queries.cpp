// The queries and their expected answers; see the header.
#include "bench/queries.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "bench/full_onu_table.h"
#include "bench/full_optical_list.h"
#include "bench/loaders.h"
#include "bench/plain_queries.h"
#include "support/sample_onu_service.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace bench {
namespace {

using test::kServedOnuName;
using test::kServedOnuPorts;
using test::kServedOnuType;

// ---- Asking ------------------------------------------------------------------

// The tables as they were loaded.
struct LoadedTables {
  LoadedTables() {}  // so that no compiler calls it unused
};

// Calls in a row, with such tables. The compiler must make every call, and must believe
// that it may have done anything.
template <typename Tables, typename Call>
Answer Repeat(size_t times) {
  [[maybe_unused]] const Tables tables;
  Answer answer;
  for (; times > 0; --times) {
    answer = Call{}();
    asm volatile("" : : "m"(answer) : "memory");
  }
  return answer;
}

template <typename Tables = LoadedTables, typename Call>
constexpr Question Ask(Call, int32_t expected_code, uint32_t expected_value) {
  return {
      .ask = Repeat<Tables, Call>,
      .expected = {.code = expected_code, .value = expected_value},
  };
}

// By a plain loop.
template <typename Tables = LoadedTables, typename Call>
constexpr Question Loop(Call, uint32_t expected_value) {
  constexpr auto kCall = [] { return Answer{.value = Call{}()}; };
  return Ask<Tables>(kCall, 0, expected_value);
}

template <auto query, typename... Arguments>
Answer Number(Arguments... arguments) {
  uint32_t number = 0;
  const int32_t code = query(arguments..., &number);
  return {.code = code, .value = number};
}

template <auto query, typename... Arguments>
Answer Numbers(Arguments... arguments) {
  uint32_t first = 0;
  uint32_t second = 0;
  const int32_t code = query(arguments..., &first, &second);
  return {.code = code, .value = second};
}

template <auto query, typename... Arguments>
Answer Name(Arguments... arguments) {
  char name[60];
  name[0] = '\0';
  const int32_t code = query(arguments..., name);
  return {.code = code, .value = static_cast<uint8_t>(name[0])};
}

uint32_t list[MAX_SWITCH_CHIP_LOGIC_PORT_NUM];

template <auto query, typename... Arguments>
Answer List(Arguments... arguments) {
  uint32_t length = 0;
  const int32_t code = query(arguments..., list, std::size(list), &length);
  return {.code = code, .value = length};
}

// ---- The large sample ----------------------------------------------------------

constexpr uint32_t kNoType = 9999;
constexpr char kNoName[] = "NONE";
constexpr uint32_t kNoSlot = 99;

// Types: the two main boards; service boards, with their place among 22.
constexpr uint32_t kMcxa = 101;
constexpr uint32_t kMcxb = 102;
constexpr uint32_t kGp16a = 3101;  // 1st
constexpr uint32_t kEc16a = 3114;  // 11th
constexpr uint32_t kVt48a = 598;   // 12th, 48 ports
constexpr uint32_t kUp4x = 3301;   // 15th, has a special map
constexpr uint32_t kHcua = 624;    // 22nd

// An ONU type with ports of each kind, the 32nd of 68; and the 100th of 200.
constexpr uint32_t kX142d = 6203;
constexpr char kX142dName[] = "KT-X142D";
constexpr uint32_t kOnu100 = FullOnuType(100);
constexpr char kOnu100Name[] = "KT-FULL-100";
constexpr uint32_t kUsb = 4;

const PortMap& DefaultMap() {
  return gstSupportedMainBoardType.pBoardTypeArray[0]->astPortMap[0];
}

Answer MatchVersion(const char* version) {
  gstrddSoftwareVer = version;
  return Number<ddIsContextVerMatchSoftVer>();
}

// Answers with the record's type.
Answer MainBoard(uint32_t type) {
  MainBoardInformation* board = nullptr;
  const int32_t code = ddGetMainBoardObjByType(type, &board);
  return {.code = code, .value = board == nullptr ? 0 : board->ulType};
}

// Answers with the length of the map's name.
Answer SpecialMap(uint32_t main_board, uint32_t board) {
  PortMap* map = nullptr;
  const int32_t code = ddGetSpecialLogicPortToPhyPortObjByType(main_board, board, &map);
  return {.code = code, .value = map == nullptr ? 0 : map->ulBoardNameLen};
}

Answer PhyPortUsers(uint32_t phy_port) {
  uint32_t length = 0;
  const int32_t code = ddGetSwitchChipLogicPortFromPhyPort(phy_port, &DefaultMap(), list, &length);
  return {.code = code, .value = length};
}

Answer AllOnuTypes() {
  uint32_t length = 0;
  const int32_t code = ddGetAllSupportedOnuType(&length, list);
  return {.code = code, .value = length};
}

// Answers with the number of paths. The card in slot 1 is a GP16A, whose port type is that
// of the full list.
Answer PowerLimits(uint16_t phy_type) {
  OptModuleThreshold paths[MAX_OPTMODULE_PATH_NUM];
  uint16_t count = MAX_OPTMODULE_PATH_NUM;
  const int32_t code = get_port_optmodule_thresinfo(1, 16, phy_type, &count, paths);
  return {.code = code, .value = count};
}

uint32_t PlaceOfModule(uint16_t phy_type) {
  return plain::OptModule(OPTMODULE_KIND_OLT_PON, kFullListPortType, phy_type);
}

constexpr Query kQueries[] = {
    {"ddIsContextVerMatchSoftVer", "8 versions",
     Ask([] { return MatchVersion("KT3300V4.1"); }, 0, 1),
     Ask([] { return MatchVersion("KT3300V9.0"); }, -1, 0),
     Loop([] { return plain::Version("KT3300V9.0"); }, 0)},
    {"ddGetModuleNameByType", "20 modules",
     Ask([] { return Name<ddGetModuleNameByType>(10U); }, 0, 'L'),
     Ask([] { return Name<ddGetModuleNameByType>(kNoType); }, -29, 0),
     Loop([] { return plain::Module(kNoType); }, 0)},
    {"ddGetModuleTypeByName", "20 modules",
     Ask([] { return Number<ddGetModuleTypeByName>("LINK-AGGREGATION"); }, 0, 10),
     Ask([] { return Number<ddGetModuleTypeByName>(kNoName); }, -32, 0),
     Loop([] { return plain::Module(kNoName); }, 0)},
    {"ddIsSysSupportFunc", "14 functions", Ask([] { return Number<ddIsSysSupportFunc>(7); }, 0, 1),
     Ask([] { return Number<ddIsSysSupportFunc>(9999); }, -29, 0),
     Loop([] { return plain::SystemFunction(kNoType); }, 0)},
    {"ddGetOltPortSplittingRatioByType", "17 port types",
     Ask([] { return Number<ddGetOltPortSplittingRatioByType>(8U); }, 0, 128),
     Ask([] { return Number<ddGetOltPortSplittingRatioByType>(kNoType); }, -12, 0),
     Loop([] { return plain::OltPortType(kNoType); }, 0)},
    {"ddIsOltPortTypeSupportedByName", "17 port types",
     Ask([] { return Numbers<ddIsOltPortTypeSupportedByName>("COMBO-EPON-10GEPON"); }, 0, 7),
     Ask([] { return Numbers<ddIsOltPortTypeSupportedByName>(kNoName); }, -32, 0),
     Loop([] { return plain::OltPortType(kNoName); }, 0)},
    {"ddGetMainBoardNameByType", "2 boards",
     Ask([] { return Name<ddGetMainBoardNameByType>(kMcxb); }, 0, 'M')},
    {"ddGetMainBoardTypeByName", "2 boards",
     Ask([] { return Number<ddGetMainBoardTypeByName>("MCXB"); }, 0, kMcxb)},
    {"ddGetMainBoardObjByType", "2 boards", Ask([] { return MainBoard(kMcxb); }, 0, kMcxb)},
    {"ddGetSwitchChipPhyPortFromLogicPort", "1280 pairs",
     Ask([] { return Number<ddGetSwitchChipPhyPortFromLogicPort>(81U, &DefaultMap()); }, 0, 147),
     Ask([] { return Number<ddGetSwitchChipPhyPortFromLogicPort>(200U, &DefaultMap()); }, -22, 0),
     Loop([] { return plain::PhyPort(DefaultMap(), 200); }, 0)},
    {"ddGetSwitchChipLogicPortFromPhyPort", "1280 pairs",
     Ask([] { return PhyPortUsers(147); }, 0, 1), Ask([] { return PhyPortUsers(0); }, 0, 1118),
     Loop([] { return plain::PhyPortUsers(DefaultMap(), 0, list); }, 1118)},
    {"ddGetSpecialLogicPortToPhyPortObjByType", "boards, maps",
     Ask([] { return SpecialMap(kMcxa, kUp4x); }, 0, sizeof "UP4X"),
     Ask([] { return SpecialMap(kMcxa, kHcua); }, -18, 0)},
    {"ddGetBoardNameByType", "2 + 22 boards",
     Ask([] { return Name<ddGetBoardNameByType>(kEc16a); }, 0, 'E'),
     Ask([] { return Name<ddGetBoardNameByType>(kNoType); }, -18, 0)},
    {"ddGetBoardServePortAmountByType", "22 boards",
     Ask([] { return Number<ddGetBoardServePortAmountByType>(kEc16a); }, 0, 16),
     Ask([] { return Number<ddGetBoardServePortAmountByType>(kNoType); }, -18, 0),
     Loop([] { return plain::Board(kNoType); }, 0)},
    {"ddGetPortTypeByBoardType", "22 boards",
     Ask([] { return Number<ddGetPortTypeByBoardType>(kEc16a, 16U); }, 0, 8),
     Ask([] { return Number<ddGetPortTypeByBoardType>(kNoType, 16U); }, -18, 0)},
    {"ddGetPonMaxOnuNumByBoardType", "boards, port types",
     Ask([] { return Number<ddGetPonMaxOnuNumByBoardType>(kEc16a, 16U); }, 0, 128)},
    {"ddGetBoardAllPortTypesByType", "boards, ports",
     Ask([] { return List<ddGetBoardAllPortTypesByType>(kGp16a); }, 0, 1),
     Ask([] { return List<ddGetBoardAllPortTypesByType>(kVt48a); }, 0, 1)},
    {"ddGetCardTypeByName", "2 + 22 boards",
     Ask([] { return Number<ddGetCardTypeByName>("EC16A"); }, 0, kEc16a),
     Ask([] { return Number<ddGetCardTypeByName>(kNoName); }, -32, 0),
     Loop([] { return plain::Card(kNoName); }, 0)},
    {"ddGetCardTypeByNocaseName", "2 + 22 boards",
     Ask([] { return Number<ddGetCardTypeByNocaseName>("ec16a"); }, 0, kEc16a),
     Ask([] { return Number<ddGetCardTypeByNocaseName>("none"); }, -32, 0)},
    {"ddGetServeBoardSlotRange", "-",
     Ask([] { return Numbers<ddGetServeBoardSlotRange>(); }, 0, 18)},
    {"ddGetRealSlotList",
     "24 slots",
     Ask([] { return List<ddGetRealSlotList>(); }, 0, 24),
     {},
     Loop([] { return plain::Slots(gstFrame.stRealSlot, list); }, 24)},
    {"ddIsServeBoardSlot", "16 slots", Ask([] { return Number<ddIsServeBoardSlot>(8U); }, 0, 1),
     Ask([] { return Number<ddIsServeBoardSlot>(kNoSlot); }, -4, 0),
     Loop([] { return plain::Slot(gstFrame.stServeBoardSlot, kNoSlot); }, 0)},
    {"ddIsValidSlot", "24 + 2 slots", Ask([] { return Number<ddIsValidSlot>(12U); }, 0, 1),
     Ask([] { return Number<ddIsValidSlot>(kNoSlot); }, -3, 0)},
    {"ddCanBoardPlugInSlotByType", "100 types",
     Ask([] { return Number<ddCanBoardPlugInSlotByType>(1U, kEc16a); }, 0, 1),
     Ask([] { return Number<ddCanBoardPlugInSlotByType>(1U, kNoType); }, -18, 0),
     Loop([] { return plain::BoardOfSlot(1, kNoType); }, 0)},
    {"get_switch_chip_logicport_portno_from_index", "-",
     Ask([] { return Number<get_switch_chip_logicport_portno_from_index>(80U); }, 0, 81)},
    {"get_balance_switch_logicport_index_from_portno", "-",
     Ask([] { return Number<get_balance_switch_logicport_index_from_portno>(201U); }, 0, 57)},
    {"ddGetSlotPortFromSwitchChipLogicPort", "-",
     Ask([] { return Numbers<ddGetSlotPortFromSwitchChipLogicPort>(81U); }, 0, 7)},
    {"ddGetSwitchChipLogicPortFromSlotPort", "slots, 162 ports",
     Ask([] { return Number<ddGetSwitchChipLogicPortFromSlotPort>(19U, 1U); }, 0, 17),
     Ask([] { return Number<ddGetSwitchChipLogicPortFromSlotPort>(24U, 1U); }, -1, 0),
     Loop([] { return plain::LogicPort(24, 1); }, 0)},
    {"get_balance_slotport_from_switch_logicport", "-",
     Ask([] { return Numbers<get_balance_slotport_from_switch_logicport>(36U); }, 0, 4)},
    {"get_balance_switch_logicport_from_slotport_chipno", "58 ports",
     Ask([] { return Number<get_balance_switch_logicport_from_slotport_chipno>(15U, 0U, 1U); }, 0,
         29),
     Ask([] { return Number<get_balance_switch_logicport_from_slotport_chipno>(24U, 0U, 1U); }, -1,
         0),
     Loop([] { return plain::BalancePort(24, 0, 1); }, 0)},
    {"get_switch_logicportlist_from_slot", "162 ports",
     Ask([] { return List<get_switch_logicportlist_from_slot>(11U); }, 0, 1),
     Ask([] { return List<get_switch_logicportlist_from_slot>(16U); }, 0, 8),
     Loop([] { return plain::PortsOfSlot(16, 1, list); }, 8)},
    {"ddGetAllUserPortSwitchChipLogicPortList",
     "162 ports",
     Ask([] { return List<ddGetAllUserPortSwitchChipLogicPortList>(); }, 0, 162),
     {},
     Loop([] { return plain::UserPorts(list); }, 162)},
    {"ddGetUplinkLogicPortList",
     "24 slots, 162 ports",
     Ask([] { return List<ddGetUplinkLogicPortList>(); }, 0, 24),
     {},
     Loop([] { return plain::UplinkPorts(list); }, 24)},
    {"ddRunGetSwitchChipPhyPortFromLogicPort", "boards, maps, pairs",
     Ask([] { return Number<ddRunGetSwitchChipPhyPortFromLogicPort>(17U); }, 0, 68),
     Ask([] { return Number<ddRunGetSwitchChipPhyPortFromLogicPort>(146U); }, 0, 212)},
    {"ddIsOnuLanTypeSupportedByType", "6 port types",
     Ask([] { return Numbers<ddIsOnuLanTypeSupportedByType>(3U); }, 0, 2),
     Ask([] { return Numbers<ddIsOnuLanTypeSupportedByType>(kNoType); }, -32, 0)},
    {"ddIsOnuLanTypeSupportedByName", "6 port types",
     Ask([] { return Numbers<ddIsOnuLanTypeSupportedByName>("2.5GE"); }, 0, 2),
     Ask([] { return Numbers<ddIsOnuLanTypeSupportedByName>(kNoName); }, -32, 0),
     Loop([] { return plain::OnuLanPortType(kNoName); }, 0)},
    {"ddGetOnuLanPortNumByType", "68 ONU types",
     Ask([] { return Number<ddGetOnuLanPortNumByType>(kX142d); }, 0, 4),
     Ask([] { return Number<ddGetOnuLanPortNumByType>(kServedOnuType); }, 0, 24),
     Loop([] { return plain::OnuType(kServedOnuType); }, 0)},
    {"ddGetOnuLanPortTypeByType", "68 ONU types",
     Ask([] { return Number<ddGetOnuLanPortTypeByType>(kX142d, 4U); }, 0, 2),
     Ask([] { return Number<ddGetOnuLanPortTypeByType>(kServedOnuType, 4U); }, 0, 32)},
    {"ddGetOnuSpecialPortNumByType", "68 ONU types, ports",
     Ask([] { return Number<ddGetOnuSpecialPortNumByType>(kX142d, kUsb); }, 0, 1),
     Ask([] { return Number<ddGetOnuSpecialPortNumByType>(kServedOnuType, kServedOnuPorts); }, 0,
         24)},
    {"ddGetOnuSpecialPortTypeList", "68 ONU types, ports",
     Ask([] { return List<ddGetOnuSpecialPortTypeList>(kX142d); }, 0, 3),
     Ask([] { return List<ddGetOnuSpecialPortTypeList>(kServedOnuType); }, 0, 1)},
    {"ddGetOnuNameByType", "68 ONU types",
     Ask([] { return Name<ddGetOnuNameByType>(kX142d); }, 0, 'K'),
     Ask([] { return Name<ddGetOnuNameByType>(kServedOnuType); }, 0, 'K')},
    {"ddGetOnuTypeByName", "68 ONU types",
     Ask([] { return Number<ddGetOnuTypeByName>(kX142dName); }, 0, kX142d),
     Ask([] { return Number<ddGetOnuTypeByName>(kServedOnuName); }, 0, kServedOnuType),
     Loop([] { return plain::OnuType(kServedOnuName); }, 0)},
    {"ddIsOnuSupportedByType", "68 ONU types",
     Ask([] { return Number<ddIsOnuSupportedByType>(kX142d); }, 0, 1),
     Ask([] { return Number<ddIsOnuSupportedByType>(kServedOnuType); }, 0, 1)},
    {"ddGetSupportedOnuMaxLanNum", "-",
     Ask([] { return Number<ddGetSupportedOnuMaxLanNum>(); }, 0, 32)},
    {"ddGetAllSupportedOnuType",
     "68 ONU types",
     Ask([] { return AllOnuTypes(); }, 0, 68),
     {},
     Loop([] { return plain::OnuTypes(list); }, 68)},
    {"ddGetOnuLanPortNumByType, full table", "200 ONU types",
     Ask<FullOnuTable>([] { return Number<ddGetOnuLanPortNumByType>(kOnu100); }, 0, 4),
     Ask<FullOnuTable>([] { return Number<ddGetOnuLanPortNumByType>(kServedOnuType); }, 0, 24),
     Loop<FullOnuTable>([] { return plain::OnuType(kServedOnuType); }, 0)},
    {"ddGetOnuTypeByName, full table", "200 ONU types",
     Ask<FullOnuTable>([] { return Number<ddGetOnuTypeByName>(kOnu100Name); }, 0, kOnu100),
     Ask<FullOnuTable>([] { return Number<ddGetOnuTypeByName>(kServedOnuName); }, 0,
                       kServedOnuType),
     Loop<FullOnuTable>([] { return plain::OnuType(kServedOnuName); }, 0)},
    {"ddGetAllSupportedOnuType, full table",
     "200 ONU types",
     Ask<FullOnuTable>([] { return AllOnuTypes(); }, 0, 200),
     {},
     Loop<FullOnuTable>([] { return plain::OnuTypes(list); }, 200)},
    {"get_port_optmodule_thresinfo", "boards, 26 modules",
     Ask([] { return PowerLimits(2); }, 0, 1)},
    {"get_port_optmodule_thresinfo, full list", "boards, 50 modules",
     Ask<FullOpticalList>([] { return PowerLimits(FullListPhyType(25)); }, 0, 3),
     Ask<FullOpticalList>([] { return PowerLimits(FullListPhyType(50)); }, 0, 4),
     Loop<FullOpticalList>([] { return PlaceOfModule(FullListPhyType(50)); }, 50)},
};

}  // namespace

std::span<const Query> Queries() {
  return kQueries;
}

Question EmptyCall() {
  return Ask([] { return Answer{.code = context_module_init()}; }, 0, 0);
}

bool LoadSample() {
  constexpr Definitions kSample = {SYS_CONTEXT_SAMPLE, SYS_CONTEXT_OPTICAL_SAMPLE};
  return std::all_of(std::begin(kLoaders), std::end(kLoaders),
                     [&](const Loader& loader) { return loader.Load(kSample) == 0; });
}

bool AnswersAsExpected(const std::string& name, const Question& question) {
  const auto& [ask, expected] = question;
  const Answer answer = ask(1);
  if (answer != expected) {
    std::fprintf(stderr, "%s: code %d, value %u instead of %d and %u\n", name.c_str(),
                 static_cast<int>(answer.code), static_cast<unsigned>(answer.value),
                 static_cast<int>(expected.code), static_cast<unsigned>(expected.value));
  }
  return answer == expected;
}

}  // namespace bench
