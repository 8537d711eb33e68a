// Does the system support a module type?
#include <cstring>
#include <ostream>

#include "support/tables.h"

namespace {

struct AskRow {
  const char* name;
  uint32_t count;
  int32_t type;
  int32_t code;
  uint32_t flag;
  const char* debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const AskRow& row) { return out << row.name; }
};

class SystemFunction : public test::LibraryTest, public testing::WithParamInterface<AskRow> {
 protected:
  // Entries 10, 11, 12, ... but for the second, which is the largest number.
  void Put(uint32_t count) {
    for (uint32_t i = 0; i < MAX_SUPPORTED_MODULE_TYPE_NUM; ++i) {
      gstSysSupportFuncType.aulSupportedSysFunctionType[i] = 10 + i;
    }
    gstSysSupportFuncType.aulSupportedSysFunctionType[1] = 0xffffffff;
    gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = count;
  }
  test::Console console_;
};

TEST_P(SystemFunction, IsLookedUpInTheTable) {
  Put(GetParam().count);
  const SysSupportFuncType before = gstSysSupportFuncType;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t flag = 77;
    EXPECT_EQ(ddIsSysSupportFunc(GetParam().type, &flag), GetParam().code);
    EXPECT_EQ(flag, GetParam().flag);
    EXPECT_STREQ(console_.Text().c_str(), debug != 0 ? GetParam().debug_console : "");
  }
  EXPECT_EQ(std::memcmp(&gstSysSupportFuncType, &before, sizeof before), 0);
}

constexpr AskRow kAsked[] = {
    {"First", 3, 10, 0, 1},
    {"Last", 3, 12, 0, 1},
    {"NegativeIsTheLargestNumber", 3, -1, 0, 1},
    {"BehindTheCount", 3, 13, -29, 0},
    {"Unknown", 3, 9, -29, 0},
    {"Zero", 3, 0, -29, 0},
    {"EmptyTable", 0, 10, -29, 0},
    {"LastOfAFullTable", 200, 209, 0, 1},
    {"UnknownInAFullTable", 200, 210, -29, 0},
    {"CorruptCount", 201, 10, -28, 0, "\r\nddIsSysSupportFunc err! ulFuncType = 10"},
    {"LargestCount", 0xffffffff, -5, -28, 0, "\r\nddIsSysSupportFunc err! ulFuncType = -5"},
};
INSTANTIATE_TEST_SUITE_P(SystemFunctions, SystemFunction, testing::ValuesIn(kAsked),
                         testing::PrintToStringParamName());

using SystemFunctions = test::LibraryTest;

TEST_F(SystemFunctions, NullResult) {
  gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 201;  // looked at later only
  test::Console console;
  EXPECT_EQ(ddIsSysSupportFunc(1, nullptr), -2);
  EXPECT_EQ(console.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddIsSysSupportFunc(1, nullptr), -2);
  EXPECT_EQ(console.Text(), "\r\nddIsSysSupportFunc err! pulIsSupported = 0x0");
}

}  // namespace
