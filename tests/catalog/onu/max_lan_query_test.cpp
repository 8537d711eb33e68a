// The most LAN ports that an ONU type has: the table's, or the platform's.
#include <string>
#include <utility>
#include <vector>

#include "catalog/onu/onu_query_tables.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kUntouched;
using test::PlacedOnu;

class MaxLanPorts : public test::OnuTableTest {
 protected:
  void Expect(int32_t code, uint32_t expected, const std::vector<string>& asked,
              const string& text = "") {
    AskPlatformTwice(asked, text, [&] {
      uint32_t most = kUntouched;
      EXPECT_EQ(ddGetSupportedOnuMaxLanNum(&most), code);
      EXPECT_EQ(most, expected);
    });
  }
};

TEST_F(MaxLanPorts, AreTheTablesOrThePlatforms) {
  const struct {
    uint32_t table;
    uint32_t platform;
    uint32_t most;
  } rows[] = {
      {8, 0, 8},
      {8, 7, 8},
      {8, 8, 8},
      {8, 9, 9},
      {8, 24, 24},
      {8, 32, 32},
      {1, 0, 1},
      {1, 101, 101},
      {100, 99, 100},
      {99, 100, 100},
      {8, 0x80000000, 0x80000000},
      {8, 0xffffffff, 0xffffffff},
  };
  for (const auto& [table, platform, most] : rows) {
    gstSupportedOnuType.ulSupportedOnuMaxLanNum = table;
    FakePlatform::Get().onu_number = platform;
    for (const int32_t result : {0, -1, 1}) {
      FakePlatform::Get().onu_result = result;
      Expect(0, most, {"cs_get_supported_onu_max_lan_num"});
    }
  }
}

TEST_F(MaxLanPorts, AreTheTablesWhenThePlatformStoresNothing) {
  gstSupportedOnuType.ulSupportedOnuMaxLanNum = 1;
  FakePlatform::Get().onu_stores = false;
  for (const int32_t result : {0, -1}) {
    FakePlatform::Get().onu_result = result;
    Expect(0, 1, {"cs_get_supported_onu_max_lan_num"});
  }
}

TEST_F(MaxLanPorts, OfTheTableMustBeFrom1To100) {
  FakePlatform::Get().onu_result = 0;
  FakePlatform::Get().onu_number = 50;
  const std::pair<uint32_t, const char*> rows[] = {
      {0, "0"}, {101, "101"}, {65537, "65537"}, {0x80000000, "-2147483648"}, {0xffffffff, "-1"}};
  for (const auto& [most, shown] : rows) {
    gstSupportedOnuType.ulSupportedOnuMaxLanNum = most;
    Expect(-17, kUntouched, {},
           string("\r\nddGetSupportedOnuMaxLanNum err! ulSupportedOnuMaxLanNum = ") + shown +
               ", MAX_ONU_LAN_NUM_PER_ONU = 100");
  }
}

// It is kept with the table; the types are not looked at.
TEST_F(MaxLanPorts, DoNotDependOnTheTypes) {
  PutOnus({PlacedOnu{.type = 1, .lan = {{}, 30}}});
  gstSupportedOnuType.ulSupportedOnuMaxLanNum = 4;
  Expect(0, 4, {"cs_get_supported_onu_max_lan_num"});
  gstSupportedOnuType.ulSupportedOnuTypeNum = 201;
  Expect(0, 4, {"cs_get_supported_onu_max_lan_num"});
}

TEST_F(MaxLanPorts, NeedAnOutput) {
  for (const uint32_t most : {0u, 4u}) {
    gstSupportedOnuType.ulSupportedOnuMaxLanNum = most;
    AskPlatformTwice({}, "\r\nddGetSupportedOnuMaxLanNum, pulSupportedOnuMaxLanNum = 0x0",
                     [] { EXPECT_EQ(ddGetSupportedOnuMaxLanNum(nullptr), -2); });
  }
}

}  // namespace
