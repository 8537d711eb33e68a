// Of which type a port of an ONU type is: port numbers, corrupt records, empty places.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/onu/onu_query_tables.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kNull;
using test::kUntouched;
using test::PlacedOnu;
using test::PlacedPorts;

struct Kind {
  const char* name;
  int32_t (*ask)(uint32_t type, uint32_t port, uint32_t* port_type);
  PlacedPorts PlacedOnu::*ports;
  uint32_t limit;
  int32_t no_such_port;
  int32_t corrupt_count;
  friend std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.name; }
};

const Kind kPon = {"Pon", ddGetOnuPonPortTypeByType, &PlacedOnu::pon, 5, -5, -5};
const Kind kLan = {"Lan", ddGetOnuLanPortTypeByType, &PlacedOnu::lan, 100, -8, -8};
const Kind kPots = {"Pots", ddGetOnuPotsPortTypeByType, &PlacedOnu::pots, 100, -17, -17};
const Kind kSpecial = {"Special", ddGetOnuSpecialPortTypeByPortNo, &PlacedOnu::special, 100, -17,
                       -14};

class OnuPortQuery : public test::OnuTableTest {
 protected:
  void Expect(const Kind& kind, uint32_t port, int32_t code, uint32_t expected,
              const std::vector<string>& asked = {}, const string& text = "") {
    SCOPED_TRACE("port " + std::to_string(port));
    AskPlatformTwice(asked, text, [&] {
      uint32_t port_type = kUntouched;
      EXPECT_EQ(kind.ask(7, port, &port_type), code);
      EXPECT_EQ(port_type, expected);
    });
  }

  // ONU type 7 has these ports of that kind, and some of the others; so has a second one.
  void PutPorts(const Kind& kind, const PlacedPorts& ports) {
    const PlacedPorts others = {{61, 62, 63, 64, 65}};
    PlacedOnu onu = {7, "KT-7", others, others, others, others};
    onu.*kind.ports = ports;
    PutOnus({onu, PlacedOnu{7, "SECOND", others, others, others, others}});
  }
};

// ---- Port numbers that are refused whatever the type -----------------------------------------

struct NumberRow {
  const char* name;
  const Kind& kind;
  uint32_t port;
  int32_t refused;  // 0: not refused
  const char* asked = nullptr;
  friend std::ostream& operator<<(std::ostream& out, const NumberRow& row) {
    return out << row.name;
  }
};

const NumberRow kNumbers[] = {
    {"Pon0", kPon, 0, -8},
    {"Pon1", kPon, 1, 0, "cs_get_onu_pon_port_type_by_type 7 1"},
    {"Pon5", kPon, 5, 0, "cs_get_onu_pon_port_type_by_type 7 5"},
    {"Pon6", kPon, 6, -8},
    {"Pon65537", kPon, 65537, -8},
    {"PonSignBit", kPon, 0x80000001, -8},
    {"PonLargest", kPon, 0xffffffff, -8},
    {"Lan0", kLan, 0, 0, "cs_get_onu_lan_port_type_by_type 7 0"},
    {"Lan100", kLan, 100, 0, "cs_get_onu_lan_port_type_by_type 7 100"},
    {"Lan101", kLan, 101, 0, "cs_get_onu_lan_port_type_by_type 7 101"},
    {"LanLargest", kLan, 0xffffffff, 0, "cs_get_onu_lan_port_type_by_type 7 4294967295"},
    {"Pots0", kPots, 0, -17},
    {"Pots1", kPots, 1, 0, "cs_get_onu_pots_port_type_by_type 7 1"},
    {"Pots100", kPots, 100, 0, "cs_get_onu_pots_port_type_by_type 7 100"},
    {"Pots101", kPots, 101, -17},
    {"Pots65537", kPots, 65537, -17},
    {"PotsSignBit", kPots, 0x80000001, -17},
    {"PotsLargest", kPots, 0xffffffff, -17},
    {"Special0", kSpecial, 0, -17},
    {"Special1", kSpecial, 1, 0, "cs_get_onu_special_port_type_by_port_no 7 1"},
    {"Special101", kSpecial, 101, 0, "cs_get_onu_special_port_type_by_port_no 7 101"},
    {"SpecialLargest", kSpecial, 0xffffffff, 0,
     "cs_get_onu_special_port_type_by_port_no 7 4294967295"},
};

class PortNumber : public OnuPortQuery, public testing::WithParamInterface<NumberRow> {};

TEST_P(PortNumber, OfATypeThatIsNotInTheTable) {
  PutOnus({PlacedOnu{8, "OTHER", {{1}}, {{1}}, {{1}}, {{1}}}});
  FakePlatform::Get().onu_result = 0;
  FakePlatform::Get().onu_number = 55;
  if (GetParam().refused != 0) {
    Expect(GetParam().kind, GetParam().port, GetParam().refused, kUntouched);
  } else {
    Expect(GetParam().kind, GetParam().port, 0, 55, {GetParam().asked});
  }
}

// The numbers come first.
TEST_P(PortNumber, WithoutATable) {
  gstSupportedOnuType.ulSupportedOnuTypeNum = 201;
  const int32_t refused = GetParam().refused;
  uint32_t port_type = kUntouched;
  ddDebugPrint = 1;
  EXPECT_EQ(GetParam().kind.ask(7, GetParam().port, &port_type), refused != 0 ? refused : -21);
  EXPECT_EQ(port_type, kUntouched);
  EXPECT_EQ(console_.Text().empty(), refused != 0);
  EXPECT_TRUE(FakePlatform::TakeAsked().empty());
}

TEST_P(PortNumber, WithoutAnOutput) {
  PutOnus({});
  EXPECT_EQ(GetParam().kind.ask(7, GetParam().port, nullptr), -2);
  EXPECT_TRUE(FakePlatform::TakeAsked().empty());
}

INSTANTIATE_TEST_SUITE_P(All, PortNumber, testing::ValuesIn(kNumbers),
                         testing::PrintToStringParamName());

// ---- Ports of a type of the table --------------------------------------------------------------

class PortOfTable : public OnuPortQuery, public testing::WithParamInterface<Kind> {
 protected:
  void Put(const PlacedPorts& ports) { PutPorts(GetParam(), ports); }
  void ExpectPort(uint32_t port, int32_t code, uint32_t expected = kUntouched) {
    Expect(GetParam(), port, code, expected);
  }
};

INSTANTIATE_TEST_SUITE_P(All, PortOfTable, testing::Values(kPon, kLan, kPots, kSpecial),
                         testing::PrintToStringParamName());

TEST_P(PortOfTable, IsEachOfAFullRecord) {
  Put(test::PortsOfTypesFrom(1001, GetParam().limit));
  for (uint32_t port = 1; port <= GetParam().limit; ++port) {
    ExpectPort(port, 0, 1000 + port);
  }
}

TEST_P(PortOfTable, HasATypeOf32Bits) {
  Put({{0, 0x10002, 0xffffffff}});
  ExpectPort(1, 0, 0);
  ExpectPort(2, 0, 0x10002);
  ExpectPort(3, 0, 0xffffffff);
}

TEST_P(PortOfTable, IsNotAskedOfThePlatformBehindTheLast) {
  Put({{11, 12}});
  ExpectPort(2, 0, 12);
  ExpectPort(3, GetParam().no_such_port);
  ExpectPort(4, GetParam().no_such_port);
  ExpectPort(GetParam().limit, GetParam().no_such_port);
}

TEST_P(PortOfTable, IsNoneWithoutPorts) {
  Put({});
  ExpectPort(1, GetParam().no_such_port);
  ExpectPort(GetParam().limit, GetParam().no_such_port);
}

TEST_P(PortOfTable, IsRefusedWhenTheRecordIsCorrupt) {
  for (const uint32_t count : {GetParam().limit + 1, 0x80000000u, 0xffffffffu}) {
    PlacedPorts ports = test::PortsOfTypesFrom(1001, GetParam().limit + 1);
    ports.count = count;
    Put(ports);
    ExpectPort(1, GetParam().corrupt_count);
    ExpectPort(GetParam().limit, GetParam().corrupt_count);
  }
}

TEST_P(PortOfTable, IsMissing) {
  Put({{kNull, 12, kNull}});
  ExpectPort(1, -2);
  ExpectPort(2, 0, 12);
  ExpectPort(3, -2);
}

// Numbers above the limit that are not refused at once.
struct NumberAboveLimitRow {
  const char* name;
  const Kind& kind;
  uint32_t count;  // of ports
  uint32_t port;
  int32_t code;
  friend std::ostream& operator<<(std::ostream& out, const NumberAboveLimitRow& row) {
    return out << row.name;
  }
};

const NumberAboveLimitRow kNumbersAboveLimit[] = {
    {"Lan0", kLan, 2, 0, -8},
    {"Lan0WithoutPorts", kLan, 0, 0, -8},
    {"Lan0Corrupt", kLan, 101, 0, -8},
    {"Lan101", kLan, 100, 101, -8},
    {"Lan101Corrupt", kLan, 101, 101, -8},
    {"Lan65537", kLan, 2, 65537, -8},
    {"LanSignBit", kLan, 2, 0x80000001, -8},
    {"LanLargest", kLan, 2, 0xffffffff, -8},
    {"Special101", kSpecial, 100, 101, -17},
    {"Special101Corrupt", kSpecial, 101, 101, -14},
    {"Special102Corrupt", kSpecial, 101, 102, -14},
    {"Special65537", kSpecial, 2, 65537, -17},
    {"SpecialSignBit", kSpecial, 2, 0x80000001, -17},
    {"SpecialLargest", kSpecial, 2, 0xffffffff, -17},
};

class PortAboveLimit : public OnuPortQuery,
                       public testing::WithParamInterface<NumberAboveLimitRow> {};

TEST_P(PortAboveLimit, IsNotAskedOfThePlatform) {
  PutPorts(GetParam().kind, test::PortsOfTypesFrom(1001, GetParam().count));
  Expect(GetParam().kind, GetParam().port, GetParam().code, kUntouched);
}

INSTANTIATE_TEST_SUITE_P(All, PortAboveLimit, testing::ValuesIn(kNumbersAboveLimit),
                         testing::PrintToStringParamName());

}  // namespace
