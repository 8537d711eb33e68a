// How many ports an ONU type of the table has, whatever the platform says.
#include <ostream>
#include <vector>

#include "catalog/onu/onu_query_tables.h"

namespace {

using test::kNull;
using test::kUntouched;
using test::PlacedOnu;
using test::PlacedPorts;

struct CountRow {
  const char* name;
  int32_t (*ask)(uint32_t type, uint32_t* count);
  PlacedPorts PlacedOnu::*ports;
  bool is_limited = false;
  friend std::ostream& operator<<(std::ostream& out, const CountRow& row) {
    return out << row.name;
  }
};

const CountRow kCounts[] = {
    {"Pon", ddGetOnuPonNumByType, &PlacedOnu::pon},
    {"Lan", ddGetOnuLanPortNumByType, &PlacedOnu::lan},
    {"Pots", ddGetOnuPotsPortNumByType, &PlacedOnu::pots},
    {"Special", ddGetOnuSpecialPortAmount, &PlacedOnu::special, true},
};

class OnuPortCount : public test::OnuTableTest, public testing::WithParamInterface<CountRow> {
 protected:
  // The other kinds have 9 ports each.
  void PutCount(uint32_t count) {
    PlacedOnu onu = {7, "KT-7", {{}, 9}, {{}, 9}, {{}, 9}, {{}, 9}};
    onu.*GetParam().ports = {{}, count};
    PutOnus({onu, PlacedOnu{7, "SECOND", {{}, 8}, {{}, 8}, {{}, 8}, {{}, 8}}});
  }

  void Expect(int32_t code, uint32_t expected) {
    AskPlatformTwice({}, "", [=] {
      uint32_t count = kUntouched;
      EXPECT_EQ(GetParam().ask(7, &count), code);
      EXPECT_EQ(count, expected);
    });
  }
};

INSTANTIATE_TEST_SUITE_P(All, OnuPortCount, testing::ValuesIn(kCounts),
                         testing::PrintToStringParamName());

TEST_P(OnuPortCount, IsThatOfTheRecord) {
  for (const uint32_t count : {0u, 1u, 5u, 6u, 24u, 25u, 32u, 99u, 100u}) {
    PutCount(count);
    Expect(0, count);
  }
}

TEST_P(OnuPortCount, CorruptOnesAreRefusedForSpecialPortsOnly) {
  for (const uint32_t count : {101u, 0x80000000u, 0xffffffffu}) {
    PutCount(count);
    if (GetParam().is_limited) {
      Expect(-14, kUntouched);
    } else {
      Expect(0, count);
    }
  }
}

// ---- Special ports of one type -----------------------------------------------------------

class OnuSpecialPortNum : public test::OnuTableTest {
 protected:
  void Expect(uint32_t port_type, int32_t code, uint32_t expected) {
    AskPlatformTwice({}, "", [=] {
      uint32_t count = kUntouched;
      EXPECT_EQ(ddGetOnuSpecialPortNumByType(7, port_type, &count), code);
      EXPECT_EQ(count, expected);
    });
  }
};

TEST_F(OnuSpecialPortNum, CountsThoseOfTheType) {
  PutOnus({PlacedOnu{.type = 7, .special = {{7, 9, 7, 0x10009, 0, 0x80000007, kNull, 7}}},
           PlacedOnu{.type = 7, .special = {{9, 5}}}});
  const std::pair<uint32_t, uint32_t> rows[] = {{7, 3}, {9, 1}, {0x10009, 1},   {0x80000007, 1},
                                                {0, 1}, {5, 0}, {0xffffffff, 0}};
  for (const auto& [port_type, count] : rows) {
    SCOPED_TRACE(port_type);
    Expect(port_type, 0, count);
  }
}

TEST_F(OnuSpecialPortNum, IsZeroWithoutPorts) {
  PutOnus({PlacedOnu{.type = 7, .pon = {{9}}, .lan = {{9}}, .pots = {{9}}}});
  Expect(9, 0, 0);
}

TEST_F(OnuSpecialPortNum, CountsAllOfAFullRecord) {
  PlacedOnu onu = {.type = 7};
  onu.special.types.assign(100, 9);
  PutOnus({onu});
  Expect(9, 0, 100);
}

TEST_F(OnuSpecialPortNum, IsRefusedWhenTheRecordIsCorrupt) {
  PlacedOnu onu = {.type = 7};
  onu.special.types.assign(101, 9);
  for (const uint32_t count : {101u, 0x80000000u, 0xffffffffu}) {
    onu.special.count = count;
    PutOnus({onu});
    Expect(9, -14, kUntouched);
    Expect(5, -14, kUntouched);
  }
}

}  // namespace
