// Loading the module list.
#include <ostream>
#include <string>
#include <vector>

#include "support/definition_file.h"
#include "support/faults.h"
#include "support/rows.h"
#include "support/tables.h"

namespace {

using std::string;

struct Module {
  uint32_t type;
  string name;
  uint32_t size;
};

string Section(const string& section, const string& type, const string& name, const string& size) {
  return "[" + section + "]\nType=" + type + "\nName=" + name + "\nSize=" + size + "\n";
}

// A list of `count` modules named N1, N2, ... with their sections.
string ManyModules(int count) {
  string list = "[ModuleTypeList]\nModuleNum=" + std::to_string(count) + "\n";
  string sections;
  for (int i = 1; i <= count; ++i) {
    const string n = std::to_string(i);
    list += "Module" + n + "=S" + n + "\n";
    sections += Section("S" + n, n, "N" + n, n);
  }
  return list + sections;
}

std::vector<Module> ManyRecords(uint32_t count) {
  std::vector<Module> records;
  for (uint32_t i = 1; i <= count; ++i) {
    records.push_back({i, "N" + std::to_string(i), i});
  }
  return records;
}

struct LoadRow {
  const char* name;
  string file;
  uint32_t announced;
  std::vector<Module> records;
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadModules : public test::LibraryTest, public testing::WithParamInterface<LoadRow> {
 protected:
  void ExpectRecords(const test::Faults& faults);
  test::Console console_;
};

void LoadModules::ExpectRecords(const test::Faults& faults) {
  const std::vector<Module>& records = GetParam().records;
  ASSERT_EQ(gstModuleTypeList.ulModuleTypeNum, records.size());
  ModuleInformation** const slots = gstModuleTypeList.pModuleTypeArray;
  ASSERT_NE(slots, nullptr);
  EXPECT_EQ(faults.blocks.at(slots), GetParam().announced * sizeof(ModuleInformation*));
  for (size_t i = 0; i < GetParam().announced; ++i) {
    if (i >= records.size()) {
      EXPECT_EQ(slots[i], nullptr) << i;
      continue;
    }
    ASSERT_NE(slots[i], nullptr) << i;
    EXPECT_EQ(faults.blocks.at(slots[i]), sizeof(ModuleInformation));
    EXPECT_EQ(slots[i]->ulModuleType, records[i].type) << i;
    EXPECT_EQ(slots[i]->ulNameLen, records[i].name.size() + 1) << i;
    string field = records[i].name;
    field.resize(sizeof slots[i]->acName);  // the rest is zero
    EXPECT_EQ(string(slots[i]->acName, sizeof slots[i]->acName), field) << i;
    EXPECT_EQ(slots[i]->ulSize, records[i].size) << i;
  }
  EXPECT_EQ(faults.blocks.size(), records.size() + 1);  // and nothing else is kept
}

TEST_P(LoadModules, KeepsWhatReadsWell) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    test::Faults faults;

    EXPECT_EQ(ddReadAllModuleInformation(file.path()), 0);

    EXPECT_EQ(console_.Text(), GetParam().console);
    ExpectRecords(faults);
    EXPECT_EQ(faults.closes, faults.opens.count());
  }
}

// A list of three modules with the given sections.
string Three(const string& sections) {
  return "[ModuleTypeList]\nModuleNum=3\nModule1=S1\nModule2=S2\nModule3=S3\n" + sections;
}
const string kS1 = Section("S1", "1", "N1", "10");
const string kS2 = Section("S2", "2", "N2", "20");
const string kS3 = Section("S3", "3", "N3", "30");
const std::vector<Module> kWithoutSecond = {{1, "N1", 10}, {3, "N3", 30}};
const string k59(59, 'n');
const string k60(60, 'n');

string One(const string& type, const string& name, const string& size) {
  return "[ModuleTypeList]\nModuleNum=1\nModule1=S1\n" + Section("S1", type, name, size);
}

const LoadRow kLoads[] = {
    {"Three", Three(kS1 + kS2 + kS3), 3, {{1, "N1", 10}, {2, "N2", 20}, {3, "N3", 30}}},
    {"SectionsInAnyOrder",
     kS3 + kS2 + Three(kS1),
     3,
     {{1, "N1", 10}, {2, "N2", 20}, {3, "N3", 30}}},
    {"NumberWithText", "[ModuleTypeList]\nModuleNum= +1x\nModule1=S1\n" + kS1, 1, {{1, "N1", 10}}},
    {"MoreListedThanAnnounced",
     "[ModuleTypeList]\nModuleNum=1\nModule1=S1\nModule2=S2\n" + kS1 + kS2,
     1,
     {{1, "N1", 10}}},
    {"AsManyAsPossible", ManyModules(200), 200, ManyRecords(200)},
    {"SameSectionTwice",
     "[ModuleTypeList]\nModuleNum=2\nModule1=S1\nModule2=S1\n" + kS1,
     2,
     {{1, "N1", 10}, {1, "N1", 10}}},
    {"SameTypeTwice",
     Three(kS1 + kS1 + Section("S2", "1", "B", "2") + kS3),
     3,
     {{1, "N1", 10}, {1, "B", 2}, {3, "N3", 30}}},
    {"ListEntryMissing",
     "[ModuleTypeList]\nModuleNum=3\nModule1=S1\nModule3=S3\n" + kS1 + kS2 + kS3, 3, kWithoutSecond,
     "\r\nddReadAllModuleInformation err! iResult = -2, section = ModuleTypeList, key = Module2"},
    {"AllListEntriesMissing",
     "[ModuleTypeList]\nModuleNum=2\n",
     2,
     {},
     "\r\nddReadAllModuleInformation err! iResult = -2, section = ModuleTypeList, key = Module1"
     "\r\nddReadAllModuleInformation err! iResult = -2, section = ModuleTypeList, key = Module2"},
    {"BrokenEntryInTheList",
     "[ModuleTypeList]\nModuleNum=2\nModule1=S1\nnonsense\nModule2=S2\n" + kS1 + kS2,
     2,
     {{1, "N1", 10}},
     "\r\nddReadAllModuleInformation err! iResult = -14, section = ModuleTypeList, key = Module2"},
    {"EntryNamesNoSection", Three(kS1 + kS3), 3, kWithoutSecond,
     "\r\nddReadOneModuleInformation err! iResult = -1, strSectionFrameNameBuf = S2, Key = Type"
     "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S2"},
    {"EntryIsEmpty",
     "[ModuleTypeList]\nModuleNum=2\nModule1=\nModule2=S1\n" + kS1,
     2,
     {{1, "N1", 10}},
     "\r\nddReadOneModuleInformation err! iResult = -1, strSectionFrameNameBuf = , Key = Type"
     "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = "},
    {"TypeMissing", Three(kS1 + "[S2]\nName=N2\nSize=20\n" + kS3), 3, kWithoutSecond,
     "\r\nddReadOneModuleInformation err! iResult = -2, strSectionFrameNameBuf = S2, Key = Type"
     "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S2"},
    {"NameMissing", Three(kS1 + "[S2]\nType=2\nSize=20\n" + kS3), 3, kWithoutSecond,
     "\r\nddReadOneModuleInformation err! iResult = -2, section = S2, key = Name"
     "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S2"},
    {"SizeMissing", Three(kS1 + "[S2]\nType=2\nName=N2\n" + kS3), 3, kWithoutSecond,
     "\r\nddReadOneModuleInformation err! iResult = -2, section = S2, key = Size"
     "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S2"},
    {"LongestName", One("1", k59, "1"), 1, {{1, k59, 1}}},
    {"NameTooLong", Three(kS1 + Section("S2", "2", k60, "20") + kS3), 3, kWithoutSecond,
     "\r\nddReadOneModuleInformation err! ulNameLen = 61"
     "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -33, section = S2"},
    {"FirstAndLastFail",
     Three(kS2),
     3,
     {{2, "N2", 20}},
     "\r\nddReadOneModuleInformation err! iResult = -1, strSectionFrameNameBuf = S1, Key = Type"
     "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S1"
     "\r\nddReadOneModuleInformation err! iResult = -1, strSectionFrameNameBuf = S3, Key = Type"
     "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S3"},
};
INSTANTIATE_TEST_SUITE_P(Modules, LoadModules, testing::ValuesIn(kLoads),
                         testing::PrintToStringParamName());

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  int failing_read = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadModules : public test::LibraryTest, public testing::WithParamInterface<FailRow> {
 protected:
  test::Console console_;
};

TEST_P(FailToLoadModules, LeavesNoModules) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstModuleTypeList.ulModuleTypeNum = 9;
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);

    EXPECT_EQ(ddReadAllModuleInformation(file.path()), GetParam().code);

    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, 0u);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.closes, faults.opens.count());
  }
}

string Announce(const string& number) {
  return "[ModuleTypeList]\nModuleNum=" + number + "\nModule1=S1\n" + kS1;
}
string TooMany(const string& number) {
  return "\r\nddReadAllModuleInformation err! ulModuleTypeNum = " + number +
         ", MAX_SUPPORTED_MODULE_TYPE_NUM = 200";
}
string NoNumber(const string& code) {
  return "\r\nddReadAllModuleInformation err! iResult = " + code +
         ", section = ModuleTypeList, key = ModuleNum";
}

const FailRow kFails[] = {
    {"OneTooMany", Announce("201"), -28, TooMany("201")},
    {"Negative", Announce("-1"), -28, TooMany("-1")},
    {"Above31Bits", Announce("2147483648"), -28, TooMany("2147483647")},
    {"Above32Bits", Announce("4294967297"), -28, TooMany("2147483647")},
    {"Below32Bits", Announce("-4294967295"), -28, TooMany("-2147483648")},
    {"NoSection", kS1, -31, NoNumber("-1")},
    {"NoKey", "[ModuleTypeList]\nModule1=S1\n" + kS1, -31, NoNumber("-2")},
    {"BrokenEntry", "[ModuleTypeList]\nnonsense\nModuleNum=1\n", -31, NoNumber("-14")},
    {"BrokenHeader", "[Broken\n" + Announce("1"), -31, NoNumber("-14")},
    {"EntryTooLong",
     "[ModuleTypeList]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') + "\nModuleNum=1\n", -31,
     NoNumber("-22")},
    {"ReadError", Announce("1"), -31, NoNumber("-12"), 1},
};
INSTANTIATE_TEST_SUITE_P(Modules, FailToLoadModules, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

class Modules : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(Modules, MissingFile) {
  gstModuleTypeList.ulModuleTypeNum = 9;
  EXPECT_EQ(ddReadAllModuleInformation("/nonexistent/device_definition.ini"), -31);
  EXPECT_EQ(console_.Text(), NoNumber("-10"));
  EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, 0u);
}

TEST_F(Modules, NullPath) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstModuleTypeList.ulModuleTypeNum = 9;
    EXPECT_EQ(ddReadAllModuleInformation(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddReadAllModuleInformation err!, strFileName = 0x0");
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, 0u);
  }
}

class LoadNoModules : public Modules, public testing::WithParamInterface<test::ZeroRow> {};

TEST_P(LoadNoModules, LeavesNoList) {
  const test::DefinitionFile file(Announce(GetParam().text));
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstModuleTypeList = {9, reinterpret_cast<ModuleInformation**>(uintptr_t{0x1230})};
    test::Faults faults;
    EXPECT_EQ(ddReadAllModuleInformation(file.path()), 0);
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, 0u);
    EXPECT_EQ(gstModuleTypeList.pModuleTypeArray, nullptr);
    gstModuleTypeList = {};
    EXPECT_EQ(console_.Text(), "");
    EXPECT_TRUE(faults.blocks.empty());
    EXPECT_EQ(faults.closes, faults.opens.count());
  }
}
INSTANTIATE_TEST_SUITE_P(Modules, LoadNoModules, testing::ValuesIn(test::kZeros),
                         testing::PrintToStringParamName());

}  // namespace
