// The ONU type with most LAN ports.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/onu/onu_type_loads.h"

namespace {

using std::string;

struct Onu {
  uint32_t type;
  uint32_t lan_ports;
  bool present = true;
};

// A table that holds what no load has put there.
class MaxLanTest : public test::LibraryTest {
 protected:
  void TearDown() override {
    gstSupportedOnuType = {};  // its records are this fixture's
    LibraryTest::TearDown();
  }

  void Put(const std::vector<Onu>& onus) {
    records_.assign(onus.size(), OnuInformation());
    places_.assign(onus.size() + 1, nullptr);
    for (size_t i = 0; i < onus.size(); ++i) {
      records_[i].ulOnuType = onus[i].type;
      records_[i].ulTotalLanPortNum = onus[i].lan_ports;
      records_[i].ulTotalPonNum = 199;  // the others do not count
      records_[i].ulTotalPotsNum = 199;
      records_[i].ulTotalSpecialPortNum = 199;
      places_[i] = onus[i].present ? &records_[i] : nullptr;
    }
    gstSupportedOnuType = {static_cast<uint32_t>(onus.size()), places_.data(), 0x7e7e, 0x6d6d};
  }

  test::Console console_;
  std::vector<OnuInformation> records_;
  std::vector<OnuInformation*> places_;
};

struct FindRow {
  const char* name;
  std::vector<Onu> onus;
  uint32_t type;
  uint32_t ports;
  friend std::ostream& operator<<(std::ostream& out, const FindRow& row) { return out << row.name; }
};

class FindMaxLanOnu : public MaxLanTest, public testing::WithParamInterface<FindRow> {};

TEST_P(FindMaxLanOnu, AmongTheOnuTypes) {
  for (const int32_t debug : {0, 1}) {
    Put(GetParam().onus);
    ddDebugPrint = debug;

    EXPECT_EQ(ddFindSupportedOnuMaxLanNum(), 0);

    test::ExpectMaxLan(GetParam().type, GetParam().ports);
    EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, GetParam().onus.size());
    EXPECT_EQ(gstSupportedOnuType.pOnuTypeArray, places_.data());
    EXPECT_EQ(console_.Text(), "");
  }
}

std::vector<Onu> FullTable() {
  std::vector<Onu> onus;
  for (uint32_t i = 1; i <= 200; ++i) {
    onus.push_back({i, i});
  }
  return onus;
}

const FindRow kFinds[] = {
    {"One", {{7, 8}}, 7, 8},
    {"OneWithOnePort", {{7, 1}}, 7, 1},
    {"OneWithoutPorts", {{7, 0}}, 0, 0},
    {"AllWithoutPorts", {{7, 0}, {8, 0}}, 0, 0},
    {"First", {{1, 24}, {2, 8}, {3, 4}}, 1, 24},
    {"Second", {{1, 8}, {2, 24}, {3, 4}}, 2, 24},
    {"Last", {{1, 4}, {2, 8}, {3, 24}}, 3, 24},
    {"TieKeepsTheEarlier", {{1, 4}, {2, 8}, {3, 8}}, 2, 8},
    {"TieOfAll", {{3, 8}, {2, 8}, {1, 8}}, 3, 8},
    {"SameTypeTwice", {{1, 4}, {1, 8}}, 1, 8},
    {"TypeZero", {{0, 8}}, 0, 8},
    {"LargestType", {{0xffffffff, 8}}, 0xffffffff, 8},
    {"EmptyPlaces", {{9, 64, false}, {1, 4}, {9, 64, false}, {2, 8}, {9, 64, false}}, 2, 8},
    {"OnlyEmptyPlaces", {{9, 64, false}, {9, 64, false}}, 0, 0},
    {"MorePortsThanAnOnuHas",
     {{1, 100}, {2, 101}, {3, 0xffffffff}, {4, 0x7fffffff}},
     3,
     0xffffffff},
    {"FullTable", FullTable(), 200, 200},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, FindMaxLanOnu, testing::ValuesIn(kFinds),
                         testing::PrintToStringParamName());

struct NoneRow {
  const char* name;
  uint32_t count;
  int32_t code;
  string console;
  friend std::ostream& operator<<(std::ostream& out, const NoneRow& row) { return out << row.name; }
};

class FindNoMaxLanOnu : public MaxLanTest, public testing::WithParamInterface<NoneRow> {};

TEST_P(FindNoMaxLanOnu, ClearsTheMaximum) {
  for (const int32_t debug : {0, 1}) {
    for (const bool has_array : {true, false}) {
      Put(std::vector<Onu>(201, {7, 8}));
      gstSupportedOnuType.ulSupportedOnuTypeNum = GetParam().count;
      gstSupportedOnuType.pOnuTypeArray = has_array ? places_.data() : nullptr;
      ddDebugPrint = debug;

      EXPECT_EQ(ddFindSupportedOnuMaxLanNum(), GetParam().code);

      test::ExpectMaxLan(0, 0);
      EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, GetParam().count);
      EXPECT_EQ(console_.Text(), GetParam().console);
    }
  }
}

string TooMany(const string& count) {
  return "\r\nddFindSupportedOnuMaxLanNum err! ulSupportedOnuTypeNum = " + count +
         ", MAX_ONU_TYPE_NUM = 200";
}
const NoneRow kNones[] = {
    {"NoOnuType", 0, 0, "\r\nddFindSupportedOnuMaxLanNum ok! ulSupportedOnuTypeNum = 0"},
    {"OneTooMany", 201, -21, TooMany("201")},
    {"Above31Bits", 0x80000000, -21, TooMany("-2147483648")},
    {"LargestCount", 0xffffffff, -21, TooMany("-1")},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, FindNoMaxLanOnu, testing::ValuesIn(kNones),
                         testing::PrintToStringParamName());

}  // namespace
