// Reading one module from its own section.
#include <cstdlib>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "support/definition_file.h"
#include "support/faults.h"
#include "support/null_arguments.h"
#include "support/records.h"
#include "support/rows.h"
#include "support/tables.h"
#include "support/text.h"

namespace {

using std::string;
using test::Hex;

ModuleInformation* const kUntouched = reinterpret_cast<ModuleInformation*>(0x1234);

struct RecordRow {
  const char* name;
  string file;
  uint32_t type;
  string module_name;
  uint32_t size;
  friend std::ostream& operator<<(std::ostream& out, const RecordRow& row) {
    return out << row.name;
  }
};

class ReadModule : public test::LibraryTest, public testing::WithParamInterface<RecordRow> {
 protected:
  test::Console console_;
};

TEST_P(ReadModule, HandsOverARecord) {
  const test::DefinitionFile file(GetParam().file);
  ModuleInformation* module = kUntouched;

  ASSERT_EQ(ddReadOneModuleInformation(file.path(), "Sec", &module), 0);

  ASSERT_NE(module, nullptr);
  const std::unique_ptr<ModuleInformation, decltype(&std::free)> owner(module, &std::free);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(module->ulModuleType, GetParam().type);
  test::ExpectName(module->acName, module->ulNameLen, GetParam().module_name);
  EXPECT_EQ(module->ulSize, GetParam().size);
}

string Sec(const string& type, const string& name, const string& size) {
  return "[Sec]\nType=" + type + "\nName=" + name + "\nSize=" + size + "\n";
}

const RecordRow kRecords[] = {
    {"Plain", Sec("7", "OMCI", "64"), 7, "OMCI", 64},
    {"KeysInAnyOrder", "[Sec]\nSize=64\nOther=1\nName=OMCI\nType=7\n", 7, "OMCI", 64},
    {"FirstKeyWins", Sec("7", "OMCI", "64") + "Type=8\nName=B\nSize=9\n", 7, "OMCI", 64},
    {"SizeZero", Sec("1", "N", "0"), 1, "N", 0},
    {"SizeEmpty", Sec("1", "N", ""), 1, "N", 0},
    {"SizeText", Sec("1", "N", "big"), 1, "N", 0},
    {"SizeAboveOneByte", Sec("1", "N", "300"), 1, "N", 300},
    {"SizeNegative", Sec("1", "N", "-1"), 1, "N", 4294967295},
    {"SizeAbove32Bits", Sec("1", "N", "99999999999"), 1, "N", 2147483647},
    {"NameEmpty", Sec("1", "", "1"), 1, "", 1},
    {"NameWithBlanks", Sec("1", "two words", "1"), 1, "two words", 1},
    {"NameLongest", Sec("1", string(59, 'n'), "1"), 1, string(59, 'n'), 1},
};
INSTANTIATE_TEST_SUITE_P(Modules, ReadModule, testing::ValuesIn(kRecords),
                         testing::PrintToStringParamName());

std::vector<RecordRow> TypeRecords() {
  std::vector<RecordRow> rows;
  for (const test::TypeRow& row : test::kTypes) {
    rows.push_back({row.name, Sec(row.text, "N", "1"), row.type, "N", 1});
  }
  return rows;
}
INSTANTIATE_TEST_SUITE_P(Types, ReadModule, testing::ValuesIn(TypeRecords()),
                         testing::PrintToStringParamName());

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  int failing_read = 0;
  int failing_open = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToReadModule : public test::LibraryTest, public testing::WithParamInterface<FailRow> {
 protected:
  test::Console console_;
};

TEST_P(FailToReadModule, FreesTheRecordAndClearsThePointer) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    ModuleInformation* module = kUntouched;
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);
    faults.opens.FailFrom(GetParam().failing_open, 1);

    EXPECT_EQ(ddReadOneModuleInformation(file.path(), "Sec", &module), GetParam().code);

    EXPECT_EQ(module, nullptr);
    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(faults.allocations.count(), 1);
    EXPECT_TRUE(faults.blocks.empty());
  }
}

string NoType(const string& code) {
  return "\r\nddReadOneModuleInformation err! iResult = " + code +
         ", strSectionFrameNameBuf = Sec, Key = Type";
}
string NoKey(const string& code, const string& key) {
  return "\r\nddReadOneModuleInformation err! iResult = " + code + ", section = Sec, key = " + key;
}
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kFails[] = {
    {"NoSection", "[sec]\nType=1\nName=N\nSize=1\n", -31, NoType("-1")},
    {"EmptySection", "[Sec]\n[Next]\nType=1\n", -31, NoType("-2")},
    {"NoType", "[Sec]\nName=N\nSize=1\n", -31, NoType("-2")},
    {"TypeOfOtherCase", "[Sec]\ntype=1\nName=N\nSize=1\n", -31, NoType("-2")},
    {"BrokenBeforeType", "[Sec]\nnonsense\nType=1\nName=N\nSize=1\n", -31, NoType("-14")},
    {"TooLongBeforeType", "[Sec]\n" + kTooLong + "Type=1\nName=N\nSize=1\n", -31, NoType("-22")},
    {.name = "TypeUnreadable",
     .file = Sec("1", "N", "1"),
     .code = -31,
     .console = NoType("-12"),
     .failing_read = 1},
    {.name = "TypeNotOpened",
     .file = Sec("1", "N", "1"),
     .code = -31,
     .console = NoType("-10"),
     .failing_open = 1},
    {"NoName", "[Sec]\nType=1\nSize=1\n", -31, NoKey("-2", "Name")},
    {"BrokenBeforeName", "[Sec]\nType=1\nnonsense\nName=N\nSize=1\n", -31, NoKey("-14", "Name")},
    {"TooLongBeforeName", "[Sec]\nType=1\n" + kTooLong + "Name=N\n", -31, NoKey("-22", "Name")},
    {.name = "NameNotOpened",
     .file = Sec("1", "N", "1"),
     .code = -31,
     .console = NoKey("-10", "Name"),
     .failing_open = 2},
    {"NameTooLong", Sec("1", string(60, 'n'), "1"), -33,
     "\r\nddReadOneModuleInformation err! ulNameLen = 61"},
    {"NameFarTooLong", Sec("1", string(507, 'n'), "1"), -33,
     "\r\nddReadOneModuleInformation err! ulNameLen = 508"},
    {"NameTooLongAndNoSize", "[Sec]\nType=1\nName=" + string(60, 'n') + "\n", -33,
     "\r\nddReadOneModuleInformation err! ulNameLen = 61"},
    {"NoSize", "[Sec]\nType=1\nName=N\n", -31, NoKey("-2", "Size")},
    {"BrokenBeforeSize", "[Sec]\nType=1\nName=N\nnonsense\nSize=1\n", -31, NoKey("-14", "Size")},
    {"TooLongBeforeSize", "[Sec]\nType=1\nName=N\n" + kTooLong, -31, NoKey("-22", "Size")},
    {.name = "SizeNotOpened",
     .file = Sec("1", "N", "1"),
     .code = -31,
     .console = NoKey("-10", "Size"),
     .failing_open = 3},
};
INSTANTIATE_TEST_SUITE_P(Modules, FailToReadModule, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

class ModuleRecord : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(ModuleRecord, NullArgumentsTouchNothing) {
  ModuleInformation* module = kUntouched;
  test::ExpectNullArgumentsRefused(
      console_,
      "\r\nddReadOneModuleInformation err! strFileName = {file}, strModuleSection = {section}, pModuleObjAddr = {record}",
      &module, ddReadOneModuleInformation);
  EXPECT_EQ(module, kUntouched);
}

TEST_F(ModuleRecord, NoMemory) {
  const test::DefinitionFile file(Sec("1", "N", "1"));
  for (const int calls : {1, test::FaultPlan::kForEver}) {
    ModuleInformation* module = kUntouched;
    test::Faults faults;
    faults.allocations.FailFrom(1, calls);
    EXPECT_EQ(ddReadOneModuleInformation(file.path(), "Sec", &module), -27);
    EXPECT_EQ(module, nullptr);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadOneModuleInformation->malloc err! pstModuleInformation = 0x0");
    EXPECT_EQ(faults.opens.count(), 0);
    EXPECT_TRUE(faults.blocks.empty());
  }
}

TEST_F(ModuleRecord, MissingFile) {
  ModuleInformation* module = kUntouched;
  EXPECT_EQ(ddReadOneModuleInformation("/nonexistent/device_definition.ini", "Sec", &module), -31);
  EXPECT_EQ(module, nullptr);
  EXPECT_EQ(console_.Text(), NoType("-10"));
}

}  // namespace
