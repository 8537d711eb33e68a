// The limits of the optical module in a port: the card and its port, the kind that the
// card asks for, and the phy type.
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "optmodule/thresholds_test.h"
#include "support/optmodule_messages.h"

namespace {

using std::string;
using test::FakePlatform;
using test::OptModule;
using test::PathLimits;

constexpr PathLimits kOfPonCard = {11, 12, 13, 14};
constexpr PathLimits kOfUplinkCard = {21, 22, 23, 24};
constexpr PathLimits kOfOnu = {31, 32, 33, 34};

string NoneFits(const string& kind, const string& port_type, const string& phy_type) {
  return test::optical::NoneFits("get_port_optmodule_thresinfo", kind, port_type, phy_type);
}

class PortThresholds : public test::ThresholdsTest {
 protected:
  PortThresholds()
      : ThresholdsTest({OptModule{3, 21, 5, {kOfOnu}}, OptModule{2, 21, 5, {kOfUplinkCard}},
                        OptModule{1, 21, 5, {kOfPonCard}}}) {}

  void ExpectPortTold(uint32_t slot, uint32_t port, uint16_t phy_type, const test::Told& told) {
    ExpectTold(
        [=](uint16_t* count, OptModuleThreshold* paths) {
          return get_port_optmodule_thresinfo(slot, port, phy_type, count, paths);
        },
        told);
  }
};

// ---- The kind -----------------------------------------------------------------------

struct KindRow {
  const char* name;
  bool is_pon;
  bool is_uplink;
  test::Told told;
  friend std::ostream& operator<<(std::ostream& out, const KindRow& row) { return out << row.name; }
};

class PortThresholdsKind : public PortThresholds, public testing::WithParamInterface<KindRow> {};

TEST_P(PortThresholdsKind, IsTheCards) {
  PutCard(3102, {21});
  FakePlatform& platform = FakePlatform::Get();
  platform.configured_cards[4] = 3102;
  if (GetParam().is_pon) {
    platform.pon_cards = {3102};
  }
  if (GetParam().is_uplink) {
    platform.uplink_cards = {3102};
  }
  for (const int32_t no : {1, -1, 256, INT32_MIN}) {
    platform.not_of_that_kind = no;
    ExpectPortTold(4, 1, 5, GetParam().told);
  }
}

// It is the uplink cards that have Ethernet modules.
const KindRow kKinds[] = {
    {"Pon", true, false, {.code = 0, .paths = {kOfPonCard}, .asked = {"slot 4", "pon 3102"}}},
    {"PonAndUplink",
     true,
     true,
     {.code = 0, .paths = {kOfPonCard}, .asked = {"slot 4", "pon 3102"}}},
    {"Uplink",
     false,
     true,
     {.code = 0, .paths = {kOfUplinkCard}, .asked = {"slot 4", "pon 3102", "uplink 3102"}}},
    {"Neither", false, false, {.code = -102, .asked = {"slot 4", "pon 3102", "uplink 3102"}}},
};
INSTANTIATE_TEST_SUITE_P(OptModule, PortThresholdsKind, testing::ValuesIn(kKinds),
                         testing::PrintToStringParamName());

TEST_F(PortThresholds, NameTheKindOfAnUplinkCard) {
  PutCard(3102, {22});
  FakePlatform::Get().configured_cards[4] = 3102;
  FakePlatform::Get().uplink_cards = {3102};
  ExpectPortTold(4, 1, 5,
                 {.code = -1,
                  .log = {NoneFits("2", "22", "5")},
                  .asked = {"slot 4", "pon 3102", "uplink 3102"}});
}

// ---- The phy type -------------------------------------------------------------------

class PortThresholdsPhyType : public PortThresholds {
 protected:
  void SetUp() override {
    PortThresholds::SetUp();
    PutCard(3102, {21});
    FakePlatform::Get().configured_cards[4] = 3102;
    FakePlatform::Get().pon_cards = {3102};
  }
  const std::vector<string> asked_ = {"slot 4", "pon 3102"};
};

TEST_F(PortThresholdsPhyType, TellsModulesOfAPortTypeApart) {
  test::PutOptModules({OptModule{1, 21, 4, {kOfOnu}}, std::nullopt,
                       OptModule{1, 21, 5, {kOfPonCard}}, OptModule{1, 21, 65535, {kOfUplinkCard}},
                       OptModule{1, 21, 0, {kOfPonCard, kOfOnu}}});
  ExpectPortTold(4, 1, 4, {.code = 0, .paths = {kOfOnu}, .asked = asked_});
  ExpectPortTold(4, 1, 5, {.code = 0, .paths = {kOfPonCard}, .asked = asked_});
  ExpectPortTold(4, 1, 65535, {.code = 0, .paths = {kOfUplinkCard}, .asked = asked_});
  ExpectPortTold(4, 1, 0, {.code = 0, .paths = {kOfPonCard, kOfOnu}, .asked = asked_});
}

TEST_F(PortThresholdsPhyType, OfNoModule) {
  for (const uint16_t phy_type : std::initializer_list<uint16_t>{0, 4, 6, 5 + 256, 65535}) {
    ExpectPortTold(
        4, 1, phy_type,
        {.code = -1, .log = {NoneFits("1", "21", std::to_string(phy_type))}, .asked = asked_});
  }
}

// ---- The card and the port ----------------------------------------------------------

struct CardRow {
  const char* name;
  uint32_t slot;
  int32_t configured;
  uint32_t port;
  test::Told told;
  uint32_t known_card = 3102;
  friend std::ostream& operator<<(std::ostream& out, const CardRow& row) { return out << row.name; }
};

class PortThresholdsCard : public PortThresholds, public testing::WithParamInterface<CardRow> {};

TEST_P(PortThresholdsCard, AndItsPortDecide) {
  const CardRow& row = GetParam();
  PutCard(row.known_card, {21, 0, 22, 21});
  FakePlatform::Get().configured_cards[row.slot] = row.configured;
  FakePlatform::Get().pon_cards = {3102, 0};
  ExpectPortTold(row.slot, row.port, 5, row.told);
}

test::Told Found(const string& slot, const string& card) {
  return {.code = 0, .paths = {kOfPonCard}, .asked = {"slot " + slot, "pon " + card}};
}

// No kind of the card is asked for then.
test::Told NoPortType(const string& console = "") {
  return {.code = -5, .asked = {"slot 4"}, .console = console};
}

test::Told NoSuchPort(const string& port) {
  return NoPortType("\r\nddGetPortTypeByBoardType err! ulPortNo = " + port +
                    ", MAX_OLT_PORT_NUM_PER_BOARD = 128");
}

const CardRow kCards[] = {
    {"First", 4, 3102, 1, Found("4", "3102")},
    {"Last", 4, 3102, 4, Found("4", "3102")},
    {"AnotherPortType",
     4,
     3102,
     3,
     {.code = -1, .log = {NoneFits("1", "22", "5")}, .asked = {"slot 4", "pon 3102"}}},
    {"SlotZero", 0, 3102, 1, Found("0", "3102")},
    {"HcuSlot", 801, 3102, 1, Found("801", "3102")},
    {"LargestSlot", 0xffffffff, 3102, 1, Found("4294967295", "3102")},
    {"CardZeroIsACard", 4, 0, 1, Found("4", "0"), 0},
    {"CardZeroUnknown", 4, 0, 1, NoPortType()},
    {"CardAbove16Bits", 4, 65536 + 3102, 1, Found("4", "3102"), 65536 + 3102},
    {"CardOfTheSame16Bits", 4, 65536 + 3102, 1, NoPortType()},
    {"NoCard", 4, -1, 1, {.code = -101, .asked = {"slot 4"}}},
    {"NoCardAsLowAsPossible", 4, INT32_MIN, 1, {.code = -101, .asked = {"slot 4"}}},
    {"NoCardThoughItIsKnown", 4, -1, 1, {.code = -101, .asked = {"slot 4"}}, 0xffffffff},
    {"NoCardAndNoPort", 4, -1, 0, {.code = -101, .asked = {"slot 4"}}},
    {"CardUnknown", 4, 3103, 1, NoPortType()},
    {"PortTypeZero", 4, 3102, 2, NoPortType()},
    {"PortZero", 4, 3102, 0, NoSuchPort("0")},
    {"PortAboveAllCards", 4, 3102, 129, NoSuchPort("129")},
    {"LargestPort", 4, 3102, 0xffffffff, NoSuchPort("-1")},
    {"PortAboveTheCard", 4, 3102, 5,
     NoPortType("\r\nddGetPortTypeByBoardType err! ulPortNo = 5, ulTotalServePortNum = 4, "
                "MAX_OLT_PORT_NUM_PER_BOARD = 128")},
};
INSTANTIATE_TEST_SUITE_P(OptModule, PortThresholdsCard, testing::ValuesIn(kCards),
                         testing::PrintToStringParamName());

TEST_F(PortThresholds, WithoutCards) {
  FakePlatform::Get().configured_cards[4] = 3102;
  ExpectPortTold(4, 1, 5, NoPortType("\r\nddGetPortTypeByBoardType err! pBoardTypeArray = 0x0"));
}

}  // namespace
