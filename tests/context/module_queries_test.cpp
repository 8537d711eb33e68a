// Asking the module list for what it holds, and for sizes.
#include <ostream>
#include <string>

#include "context/module_list.h"

namespace {

using std::string;
using test::List;
using ModuleList = test::ModuleListTest;

struct AskRow {
  const char* name;
  List list;
  uint32_t type;
  int32_t in_list_code;
  uint32_t in_list;
  int32_t size_code;
  uint8_t size;
  string debug_console = "";  // behind "\r\nddIsModuleInList" and "\r\nddGetModuleSize"
  friend std::ostream& operator<<(std::ostream& out, const AskRow& row) { return out << row.name; }
};

class AskForModule : public test::ModuleListTest, public testing::WithParamInterface<AskRow> {};

TEST_P(AskForModule, IsInList) {
  Put(GetParam().list);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    const string said = "\r\nddIsModuleInList" + GetParam().debug_console;
    uint32_t in_list = 77;
    EXPECT_EQ(ddIsModuleInList(GetParam().type, &in_list), GetParam().in_list_code);
    EXPECT_EQ(in_list, GetParam().in_list);
    EXPECT_EQ(console_.Text(), debug != 0 && !GetParam().debug_console.empty() ? said : "");
  }
}

TEST_P(AskForModule, Size) {
  Put(GetParam().list);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    const string said = "\r\nddGetModuleSize" + GetParam().debug_console;
    uint8_t size[3] = {77, 77, 77};  // one byte is written
    EXPECT_EQ(ddGetModuleSize(GetParam().type, &size[1]), GetParam().size_code);
    EXPECT_EQ(size[0], 77);
    EXPECT_EQ(size[1], GetParam().size);
    EXPECT_EQ(size[2], 77);
    EXPECT_EQ(console_.Text(), debug != 0 && !GetParam().debug_console.empty() ? said : "");
  }
}

const AskRow kAsked[] = {
    {"First", List::kLoaded, 1, 0, 1, 0, 64},
    {"FirstOfTwoAndSizeCut", List::kLoaded, 3, 0, 1, 0, 44},
    {"SizeOfOneByte", List::kLoaded, 4, 0, 1, 0, 255},
    {"SizeCutToNothing", List::kLoaded, 5, 0, 1, 0, 0},
    {"LargestSize", List::kLoaded, 6, 0, 1, 0, 255},
    {"LargestType", List::kLoaded, 0xffffffff, 0, 1, 0, 0x34},
    {"TypeZero", List::kLoaded, 0, 0, 1, 0, 0},
    {"Unknown", List::kLoaded, 2, 0, 0, -29, 0},
    {"BeforeAnEmptyPlace", List::kEmptyPlace, 1, 0, 1, 0, 64},
    {"BehindAnEmptyPlace", List::kEmptyPlace, 4, -2, 0, -2, 0,
     " err! ulModuleTypeNum = 9, ulModuleTypeIndex = 1, pstModuleInformation = 0x0"},
    {"UnknownWithAnEmptyPlace", List::kEmptyPlace, 2, -2, 0, -2, 0,
     " err! ulModuleTypeNum = 9, ulModuleTypeIndex = 1, pstModuleInformation = 0x0"},
    {"LastOfAFullList", List::kFull, 200, 0, 1, 0, 200},
    {"UnknownInAFullList", List::kFull, 201, 0, 0, -29, 0},
    {"NoList", List::kNone, 1, -10, 77, -10, 77, " err!, pModuleTypeArray = 0x0"},
    {"NoListButACount", List::kNoneButCount, 1, -10, 77, -10, 77, " err!, pModuleTypeArray = 0x0"},
    {"CorruptCount", List::kCorrupt, 1, -28, 0, -28, 0, " err! ulModuleTypeNum = 201"},
    {"CorruptCountNoList", List::kCorruptNone, 1, -28, 0, -28, 0, " err! ulModuleTypeNum = 201"},
    {"LargestCount", List::kCorruptMost, 1, -28, 0, -28, 0, " err! ulModuleTypeNum = -1"},
};
INSTANTIATE_TEST_SUITE_P(Queries, AskForModule, testing::ValuesIn(kAsked),
                         testing::PrintToStringParamName());

TEST_F(ModuleList, NullResults) {
  Put(List::kCorruptNone);  // looked at later only
  EXPECT_EQ(ddIsModuleInList(1, nullptr), -2);
  EXPECT_EQ(ddGetModuleSize(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddIsModuleInList(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddIsModuleInList err!, pulIsSupported = 0x0");
  EXPECT_EQ(ddGetModuleSize(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddGetModuleSize err!, pulSize = 0x0");
}

}  // namespace
