// The platform functions that answer from equipment.toml, and the module
// framework.
#include <arpa/inet.h>
#include <gmock/gmock.h>

#include <ostream>

#include "host/equipment.h"
#include "host/modules.h"
#include "sys_context/olt.h"
#include "sys_context/platform.h"

namespace sysctx {
namespace {

using testing::ElementsAre;

constexpr uint32_t kUntouched = 0xDEADBEEF;

class PlatformFacts : public testing::Test {
 protected:
  PlatformFacts() {
    Equipment facts;
    facts.device_type = 20;
    facts.main_card_type = 101;
    facts.main_card_slot = 9;
    facts.configured_cards = {{1, 3101}, {801, 624}};
    facts.card_kinds = {.pon = {3101}, .ethernet = {3201}, .service = {3101, 3201}, .uplink = {-1}};
    facts.fitted_onus = {{{1, 2, 3}, 6001}};
    facts.max_lan_ports = 8;
    facts.onu_types = {{9001, "ONE", {1, 2}, {3, 4, 5}, {6}, {7, 8, 7}},
                       {9002, "TWO", {}, {}, {}, {}}};
    facts.management_addresses = {htonl(0xC0A80801)};
    facts.outband_addresses = {htonl(0x0A0A0001)};
    SetEquipment(facts);
  }
  ~PlatformFacts() override { SetEquipment({}); }
};

TEST_F(PlatformFacts, CardsAndSlots) {
  EXPECT_EQ(get_system_device_type(), 20);
  EXPECT_EQ(get_core_card_detect_type(), 101);
  EXPECT_EQ(get_core_card_self_cardnumber(), 9);
  EXPECT_EQ(get_config_card_type(1), 3101);
  EXPECT_EQ(get_config_card_type(801), 624);
  EXPECT_EQ(get_config_card_type(0), -1);
  EXPECT_EQ(get_config_card_type(2), -1);
}

TEST_F(PlatformFacts, CardKinds) {
  EXPECT_EQ(caCheckCardTypeIsPonCard(3101), 0);
  EXPECT_EQ(caCheckCardTypeIsPonCard(3201), -1);
  EXPECT_EQ(caCheckCardTypeIsEthCard(3201), 0);
  EXPECT_EQ(caCheckCardTypeIsEthCard(3101), -1);
  EXPECT_EQ(caCheckCardTypeIsServiceCard(3101), 0);
  EXPECT_EQ(caCheckCardTypeIsServiceCard(3201), 0);
  EXPECT_EQ(caCheckCardTypeIsServiceCard(101), -1);
  EXPECT_EQ(caCheckCardTypeIsUplinkCard(-1), 0);
  EXPECT_EQ(caCheckCardTypeIsUplinkCard(3101), -1);
}

TEST_F(PlatformFacts, LibraryAsksWhichBoardsArePonCards) {
  BoardInformation boards[2] = {};
  boards[0].ulType = 3101;
  boards[0].ulTotalServePortNum = 8;
  boards[1].ulType = 3201;
  boards[1].ulTotalServePortNum = 48;
  BoardInformation* places[] = {&boards[0], &boards[1]};
  gstSupportedBoardType = {2, places, 0, 0};
  EXPECT_EQ(ddFindSupportedBoardMaxPonNum(), 0);
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonType, 3101u);
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonNum, 8u);
  gstSupportedBoardType = {};
}

TEST_F(PlatformFacts, FittedOnus) {
  EXPECT_EQ(get_valid_onu_type(1, 2, 3), 6001);
  EXPECT_EQ(get_valid_onu_type(3, 2, 1), -1);
  EXPECT_EQ(get_valid_onu_type(1, 2, 0), -1);
}

TEST_F(PlatformFacts, UploadAddresses) {
  EXPECT_NE(is_manage_ipAddr(inet_addr("192.168.8.1")), 0);
  EXPECT_EQ(is_manage_ipAddr(inet_addr("192.168.8.2")), 0);
  EXPECT_EQ(is_manage_ipAddr(0xC0A80801), htonl(1) == 1 ? 1 : 0);  // host order is another address
  EXPECT_NE(diags_is_outbandip("10.10.0.1"), 0);
  EXPECT_EQ(diags_is_outbandip("10.10.0.2"), 0);
  EXPECT_EQ(diags_is_outbandip("router"), 0);
  EXPECT_EQ(diags_is_outbandip(""), 0);
  EXPECT_EQ(diags_is_outbandip(nullptr), 0);
}

using CountFunction = int32_t (*)(uint32_t, uint32_t*);
using PortFunction = int32_t (*)(uint32_t, uint32_t, uint32_t*);

struct PortFamily {
  const char* name;
  CountFunction count;
  PortFunction port;
  uint32_t ports;
  uint32_t first;
  uint32_t last;
  friend std::ostream& operator<<(std::ostream& out, const PortFamily& row) {
    return out << row.name;
  }
};

class OnuService : public PlatformFacts, public testing::WithParamInterface<PortFamily> {};

TEST_P(OnuService, CountsPorts) {
  uint32_t result = kUntouched;
  EXPECT_EQ(GetParam().count(9001, &result), 0);
  EXPECT_EQ(result, GetParam().ports);
  EXPECT_EQ(GetParam().count(9002, &result), 0);
  EXPECT_EQ(result, 0u);
}

TEST_P(OnuService, PortsCountFromOne) {
  uint32_t result = kUntouched;
  EXPECT_EQ(GetParam().port(9001, 1, &result), 0);
  EXPECT_EQ(result, GetParam().first);
  EXPECT_EQ(GetParam().port(9001, GetParam().ports, &result), 0);
  EXPECT_EQ(result, GetParam().last);
}

TEST_P(OnuService, FailuresWriteNothing) {
  uint32_t result = kUntouched;
  EXPECT_EQ(GetParam().count(9003, &result), -1);
  EXPECT_EQ(GetParam().port(9003, 1, &result), -1);
  EXPECT_EQ(GetParam().port(9001, 0, &result), -1);
  EXPECT_EQ(GetParam().port(9001, GetParam().ports + 1, &result), -1);
  EXPECT_EQ(GetParam().port(9002, 1, &result), -1);
  EXPECT_EQ(GetParam().count(9001, nullptr), -1);
  EXPECT_EQ(GetParam().port(9001, 1, nullptr), -1);
  EXPECT_EQ(result, kUntouched);
}

const PortFamily kFamilies[] = {
    {"Pon", cs_get_onu_pon_num_by_type, cs_get_onu_pon_port_type_by_type, 2, 1, 2},
    {"Lan", cs_get_onu_lan_port_num_by_type, cs_get_onu_lan_port_type_by_type, 3, 3, 5},
    {"Pots", cs_get_onu_pots_port_num_by_type, cs_get_onu_pots_port_type_by_type, 1, 6, 6},
    {"Special", cs_get_onu_special_port_amount, cs_get_onu_special_port_type_by_port_no, 3, 7, 7},
};

INSTANTIATE_TEST_SUITE_P(All, OnuService, testing::ValuesIn(kFamilies),
                         testing::PrintToStringParamName());

TEST_F(PlatformFacts, SpecialPortsOfOneType) {
  uint32_t result = kUntouched;
  EXPECT_EQ(cs_get_onu_special_port_num_by_type(9001, 7, &result), 0);
  EXPECT_EQ(result, 2u);
  EXPECT_EQ(cs_get_onu_special_port_num_by_type(9001, 8, &result), 0);
  EXPECT_EQ(result, 1u);
  EXPECT_EQ(cs_get_onu_special_port_num_by_type(9001, 9, &result), 0);
  EXPECT_EQ(result, 0u);
  EXPECT_EQ(cs_get_onu_special_port_num_by_type(9003, 7, &result), -1);
  EXPECT_EQ(cs_get_onu_special_port_num_by_type(9001, 7, nullptr), -1);
}

TEST_F(PlatformFacts, SpecialPortTypesAreListedOnce) {
  uint32_t types[3] = {kUntouched, kUntouched, kUntouched};
  uint32_t amount = kUntouched;
  EXPECT_EQ(cs_get_onu_special_port_type_list(9001, types, 3, &amount), 0);
  EXPECT_EQ(amount, 2u);
  EXPECT_THAT(types, ElementsAre(7, 8, kUntouched));
}

TEST_F(PlatformFacts, SpecialPortTypeListStopsAtItsRoom) {
  uint32_t types[2] = {kUntouched, kUntouched};
  uint32_t amount = kUntouched;
  EXPECT_EQ(cs_get_onu_special_port_type_list(9001, types, 1, &amount), 0);
  EXPECT_EQ(amount, 1u);
  EXPECT_THAT(types, ElementsAre(7, kUntouched));
  EXPECT_EQ(cs_get_onu_special_port_type_list(9001, types, 0, &amount), 0);
  EXPECT_EQ(amount, 0u);
  EXPECT_EQ(cs_get_onu_special_port_type_list(9003, types, 2, &amount), -1);
  EXPECT_EQ(cs_get_onu_special_port_type_list(9001, nullptr, 2, &amount), -1);
  EXPECT_EQ(cs_get_onu_special_port_type_list(9001, types, 2, nullptr), -1);
}

TEST_F(PlatformFacts, OnuNames) {
  char name[60] = "before";
  EXPECT_EQ(cs_get_onu_name_by_type(9003, name), -1);
  EXPECT_STREQ(name, "before");
  EXPECT_EQ(cs_get_onu_name_by_type(9001, name), 0);
  EXPECT_STREQ(name, "ONE");
  EXPECT_EQ(cs_get_onu_name_by_type(9001, nullptr), -1);
  uint32_t type = kUntouched;
  EXPECT_EQ(cs_get_onu_type_by_name("two", &type), -1);
  EXPECT_EQ(cs_get_onu_type_by_name(nullptr, &type), -1);
  EXPECT_EQ(cs_get_onu_type_by_name("TWO", nullptr), -1);
  EXPECT_EQ(type, kUntouched);
  EXPECT_EQ(cs_get_onu_type_by_name("TWO", &type), 0);
  EXPECT_EQ(type, 9002u);
}

TEST_F(PlatformFacts, SupportedOnus) {
  uint32_t result = kUntouched;
  EXPECT_EQ(cs_is_onu_supported_by_type(9003, &result), -1);
  EXPECT_EQ(result, kUntouched);
  EXPECT_EQ(cs_is_onu_supported_by_type(9002, &result), 0);
  EXPECT_EQ(result, 1u);
  EXPECT_EQ(cs_get_supported_onu_max_lan_num(&result), 0);
  EXPECT_EQ(result, 8u);
  EXPECT_EQ(cs_get_supported_onu_max_lan_num(nullptr), -1);
}

TEST(Modules, RegisterWithIdsFromOneAndKeepTheirVersion) {
  const size_t before = RegisteredModules().size();
  const int32_t id = modInitRegister("First", 0, 0, 0, 0, 0, 0);
  EXPECT_EQ(id, static_cast<int32_t>(before) + 1);
  EXPECT_EQ(modInitRegister("Second", 0, 0, 0, 0, 0, 0), id + 1);
  EXPECT_EQ(setModVersion(id, 1, "Sep  2 2021 03:51:06"), 0);
  EXPECT_EQ(setModVersion(id + 2, 1, "nobody's"), -1);
  EXPECT_EQ(setModVersion(0, 1, "nobody's"), -1);
  EXPECT_EQ(setModVersion(id, 1, nullptr), -1);
  EXPECT_EQ(modInitRegister(nullptr, 0, 0, 0, 0, 0, 0), -1);
  ASSERT_EQ(RegisteredModules().size(), before + 2);
  EXPECT_EQ(RegisteredModules()[before].name, "First");
  EXPECT_EQ(RegisteredModules()[before].version, "Sep  2 2021 03:51:06");
  EXPECT_EQ(RegisteredModules()[before + 1].version, "");
}

TEST(Log, IsOneLineWithModuleAndLevel) {
  const int32_t id = modInitRegister("Logger", 0, 0, 0, 0, 0, 0);
  testing::internal::CaptureStderr();
  EXPECT_EQ(ulogPrintf(id, 3, "\r\nerr! slot = %d\r\n", 7), 0);
  EXPECT_EQ(ulogPrintf(devmgrModuRegId, 4, "%s", "plain"), 0);
  EXPECT_EQ(ulogPrintf(99999, 5, "unknown"), 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "log Logger level 3: err! slot = 7\n"
            "log devmgr level 4: plain\n"
            "log module 99999 level 5: unknown\n");
}

int64_t MillisecondsOfTwoTicks() {
  timespec before = {};
  timespec after = {};
  clock_gettime(CLOCK_MONOTONIC, &before);
  EXPECT_EQ(bep_taskDelayEx(2), 0);
  clock_gettime(CLOCK_MONOTONIC, &after);
  return (after.tv_sec - before.tv_sec) * 1000 + (after.tv_nsec - before.tv_nsec) / 1000000;
}

TEST(TaskDelay, WaitsTenMillisecondsPerTickWhenReal) {
  SetTaskDelays(true);
  EXPECT_GE(MillisecondsOfTwoTicks(), 20);
  EXPECT_EQ(bep_taskDelayEx(-1), 0);
  SetTaskDelays(false);
}

}  // namespace
}  // namespace sysctx
