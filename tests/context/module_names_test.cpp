// Asking the module list for names and types.
#include <ostream>
#include <string>
#include <vector>

#include "context/module_list.h"
#include "support/records.h"

namespace {

using std::string;
using test::List;

// ---- Name by type ------------------------------------------------------------

struct NameRow {
  const char* name;
  List list;
  uint32_t type;
  int32_t code;
  string answer = "";
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const NameRow& row) { return out << row.name; }
};

class ModuleName : public test::ModuleListTest, public testing::WithParamInterface<NameRow> {};

TEST_P(ModuleName, ByType) {
  Put(GetParam().list);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    test::ExpectNameCopied(ddGetModuleNameByType, GetParam().type, GetParam().code,
                           GetParam().answer);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

const NameRow kNames[] = {
    {"First", List::kLoaded, 1, 0, "OMCI"},
    {"FirstOfTwo", List::kLoaded, 3, 0, "VLAN"},
    {"Longest", List::kLoaded, 6, 0, string(59, 'n')},
    {"Empty", List::kLoaded, 0xffffffff, 0, ""},
    {"TypeZero", List::kLoaded, 0, 0, "ZERO"},
    {"Unknown", List::kLoaded, 2, -29},
    {"BehindAnEmptyPlace", List::kEmptyPlace, 4, 0, "vlan"},
    {"UnknownWithAnEmptyPlace", List::kEmptyPlace, 2, -29},
    {"LastOfAFullList", List::kFull, 200, 0, "200"},
    {"NoList", List::kNone, 1, -10, "", "\r\nddGetModuleNameByType err!, pModuleTypeArray = 0x0"},
    {"NoListButACount", List::kNoneButCount, 1, -10, "",
     "\r\nddGetModuleNameByType err!, pModuleTypeArray = 0x0"},
    {"CorruptCount", List::kCorrupt, 1, -28, "",
     "\r\nddGetModuleNameByType err!, ulModuleTypeNum = 201, MAX_SUPPORTED_MODULE_TYPE_NUM = 200"},
    {"CorruptCountNoList", List::kCorruptNone, 1, -28, "",
     "\r\nddGetModuleNameByType err!, ulModuleTypeNum = 201, MAX_SUPPORTED_MODULE_TYPE_NUM = 200"},
    {"LargestCount", List::kCorruptMost, 1, -28, "",
     "\r\nddGetModuleNameByType err!, ulModuleTypeNum = -1, MAX_SUPPORTED_MODULE_TYPE_NUM = 200"},
};
INSTANTIATE_TEST_SUITE_P(Queries, ModuleName, testing::ValuesIn(kNames),
                         testing::PrintToStringParamName());

using ModuleList = test::ModuleListTest;

TEST_F(ModuleList, NameIntoANullBuffer) {
  Put(List::kCorruptNone);  // looked at later only
  EXPECT_EQ(ddGetModuleNameByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetModuleNameByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddGetModuleNameByType err!, pcModuleName = 0x0");
}

TEST_F(ModuleList, RecordsWithACorruptNameLengthHaveNoName) {
  Put(List::kLoaded);
  records_[1].ulNameLen = 61;  // the first of type 3
  char buffer[60] = {};
  EXPECT_EQ(ddGetModuleNameByType(3, buffer), 0);
  EXPECT_STREQ(buffer, "VLAN2");
  records_[3].ulNameLen = 0xffffffff;  // the second one
  buffer[0] = '#';
  EXPECT_EQ(ddGetModuleNameByType(3, buffer), -29);
  EXPECT_EQ(buffer[0], '#');
  records_[3].ulNameLen = 60;
  EXPECT_EQ(ddGetModuleNameByType(3, buffer), 0);
  EXPECT_STREQ(buffer, "VLAN2");
}

// ---- Type by name ------------------------------------------------------------

struct TypeRow {
  const char* name;
  List list;
  string asked;
  int32_t code;
  uint32_t answer = 77;  // untouched
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const TypeRow& row) { return out << row.name; }
};

class ModuleType : public test::ModuleListTest, public testing::WithParamInterface<TypeRow> {};

TEST_P(ModuleType, ByName) {
  Put(GetParam().list);
  // Without a byte to spare, so that a look behind its end is noticed.
  const string& text = GetParam().asked;
  const std::vector<char> asked(text.c_str(), text.c_str() + text.size() + 1);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t type = 77;
    EXPECT_EQ(ddGetModuleTypeByName(asked.data(), &type), GetParam().code);
    EXPECT_EQ(type, GetParam().answer);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

// The message names the limit of the boards.
constexpr char kCorruptForType[] =
    "\r\nddGetModuleTypeByName err!, ulModuleTypeNum = 201, MAX_OLT_BOARD_TYPE_NUM = 100";

const TypeRow kTypes[] = {
    {"First", List::kLoaded, "OMCI", 0, 1},
    {"FirstOfTwo", List::kLoaded, "VLAN", 0, 3},
    {"OtherCaseIsAnotherName", List::kLoaded, "vlan", 0, 4},
    {"LongerName", List::kLoaded, "VLAN2", 0, 3},
    {"Longest", List::kLoaded, string(59, 'n'), 0, 6},
    {"Empty", List::kLoaded, "", 0, 0xffffffff},
    {"TypeZero", List::kLoaded, "ZERO", 0, 0},
    {"StartOfAName", List::kLoaded, "VLA", -32},
    {"MoreThanAName", List::kLoaded, "VLAN23", -32},
    {"NoCaseOfAName", List::kLoaded, "Vlan", -32},
    {"BlankAtTheEnd", List::kLoaded, "VLAN ", -32},
    {"LongerThanAnyName", List::kLoaded, string(60, 'n'), -32},
    {"ShorterThanTheLongest", List::kLoaded, string(58, 'n'), -32},
    {"BehindAnEmptyPlace", List::kEmptyPlace, "vlan", 0, 4},
    {"UnknownWithAnEmptyPlace", List::kEmptyPlace, "none", -32},
    {"LastOfAFullList", List::kFull, "200", 0, 200},
    {"NoList", List::kNone, "VLAN", -10, 77,
     "\r\nddGetModuleTypeByName err!, pModuleTypeArray = 0x0"},
    {"NoListButACount", List::kNoneButCount, "VLAN", -10, 77,
     "\r\nddGetModuleTypeByName err!, pModuleTypeArray = 0x0"},
    {"CorruptCount", List::kCorrupt, "VLAN", -28, 77, kCorruptForType},
    {"CorruptCountNoList", List::kCorruptNone, "VLAN", -28, 77, kCorruptForType},
    {"LargestCount", List::kCorruptMost, "VLAN", -28, 77,
     "\r\nddGetModuleTypeByName err!, ulModuleTypeNum = -1, MAX_OLT_BOARD_TYPE_NUM = 100"},
};
INSTANTIATE_TEST_SUITE_P(Queries, ModuleType, testing::ValuesIn(kTypes),
                         testing::PrintToStringParamName());

TEST_F(ModuleList, TypeWithoutANameOrAResult) {
  Put(List::kCorruptNone);  // looked at later only
  uint32_t type = 77;
  EXPECT_EQ(ddGetModuleTypeByName(nullptr, &type), -2);
  EXPECT_EQ(ddGetModuleTypeByName("VLAN", nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetModuleTypeByName(nullptr, nullptr), -2);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetModuleTypeByName err!, pcModuleName = 0x0, pulModuleType = 0x0");
  EXPECT_EQ(ddGetModuleTypeByName(reinterpret_cast<const char*>(uintptr_t{0x1234}), nullptr), -2);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetModuleTypeByName err!, pcModuleName = 0x1234, pulModuleType = 0x0");
  EXPECT_EQ(ddGetModuleTypeByName(nullptr, reinterpret_cast<uint32_t*>(uintptr_t{0x1230})), -2);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetModuleTypeByName err!, pcModuleName = 0x0, pulModuleType = 0x1230");
  EXPECT_EQ(type, 77u);
}

TEST_F(ModuleList, RecordsWithACorruptNameLengthHaveNoType) {
  Put(List::kLoaded);
  records_[1].ulNameLen = 61;  // the first VLAN
  uint32_t type = 77;
  EXPECT_EQ(ddGetModuleTypeByName("VLAN", &type), 0);
  EXPECT_EQ(type, 5u);
  records_[4].ulNameLen = 0xffffffff;  // the second one
  type = 77;
  EXPECT_EQ(ddGetModuleTypeByName("VLAN", &type), -32);
  EXPECT_EQ(type, 77u);
  records_[4].ulNameLen = 60;
  EXPECT_EQ(ddGetModuleTypeByName("VLAN", &type), 0);
  EXPECT_EQ(type, 5u);
}

}  // namespace
