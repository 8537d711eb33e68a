// Can the table of ONU types be searched?
#include <cstdint>
#include <ostream>
#include <string>

#include "support/tables.h"
#include "support/text.h"
#include "sys_context/onu.h"

namespace {

using std::string;

struct CheckRow {
  const char* name;
  uint32_t count;
  bool has_array;
  int32_t code;
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const CheckRow& row) {
    return out << row.name;
  }
};

class OnuTableCheck : public test::LibraryTest, public testing::WithParamInterface<CheckRow> {
 protected:
  void TearDown() override {
    gstSupportedOnuType = {};  // its array is the test's
    LibraryTest::TearDown();
  }

  test::Console console_;
};

TEST_P(OnuTableCheck, LooksAtCountAndArray) {
  OnuInformation* places[1] = {};
  for (const int32_t debug : {0, 1}) {
    for (const uint32_t before : {0u, 1u, 7777u}) {
      gstSupportedOnuType = {GetParam().count, GetParam().has_array ? places : nullptr, 3, 4};
      ddDebugPrint = debug;
      uint32_t is_ok = before;

      EXPECT_EQ(ddCheckSupportedOnuTypeNum(&is_ok), GetParam().code);

      EXPECT_EQ(is_ok, GetParam().code == 0 ? 1u : 0u);
      EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
      EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, GetParam().count);
      EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuMaxLanOnuType, 3u);
      EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuMaxLanNum, 4u);
    }
  }
}

string TooMany(const string& count) {
  return "\r\nddCheckSupportedOnuTypeNum, ulSupportedOnuTypeNum = " + count +
         ", MAX_ONU_TYPE_NUM = 200";
}
string NoArray(const string& count) {
  return "\r\nddCheckSupportedOnuTypeNum, ulSupportedOnuTypeNum = " + count +
         ", pOnuTypeArray = 0x0";
}

const CheckRow kChecks[] = {
    {"NoOnuType", 0, true, 0},
    {"One", 1, true, 0},
    {"Most", 200, true, 0},
    {"OneTooMany", 201, true, -21, TooMany("201")},
    {"Above31Bits", 0x80000000, true, -21, TooMany("-2147483648")},
    {"LargestCount", 0xffffffff, true, -21, TooMany("-1")},
    {"OneTooManyAndNoArray", 201, false, -21, TooMany("201")},
    {"NoArray", 0, false, -10, NoArray("0")},
    {"NoArrayButACount", 3, false, -10, NoArray("3")},
    {"NoArrayButAFullCount", 200, false, -10, NoArray("200")},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, OnuTableCheck, testing::ValuesIn(kChecks),
                         testing::PrintToStringParamName());

}  // namespace
