// Reading a key for a loader: where it is looked up, and what is said when it
// cannot be read.
#include "cfgfile/keys.h"

#include <algorithm>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "support/definition_file.h"
#include "support/faults.h"
#include "support/tables.h"

namespace {

using std::string;
using sys_context::Gate;
using sys_context::KeyMessage;
using sys_context::Message;
using sys_context::NumberedKey;
using sys_context::ReadKey;
using sys_context::ReadKeyAndMove;
using sys_context::ReadName;
using sys_context::Source;
using sys_context::Value;

constexpr KeyMessage kFailure = "iResult = %d, section = %s, key = %s;";
constexpr Message<uint32_t> kTooLong = "ulNameLen = %d;";

// A value that no lookup has touched.
Value Traces() {
  Value value;
  std::memset(value.text, '#', sizeof value.text);
  return value;
}

bool IsUntouched(const Value& value) {
  return std::all_of(value.text, value.text + sizeof value.text, [](char c) { return c == '#'; });
}

// ---- Numbered keys ---------------------------------------------------------------

TEST(NumberedKeys, AreThePrefixAndTheNumber) {
  EXPECT_STREQ(NumberedKey("Module", 3).text, "Module3");
  EXPECT_STREQ(NumberedKey("Port", 128).text, "Port128");
  EXPECT_STREQ(NumberedKey("Port", 0).text, "Port0");
  EXPECT_STREQ(NumberedKey("", 17).text, "17");
  EXPECT_STREQ(NumberedKey("Port", 2147483647).text, "Port2147483647");
  EXPECT_STREQ(NumberedKey("Port", 2147483648u).text, "Port-2147483648");
  EXPECT_STREQ(NumberedKey("Port", 4294967295u).text, "Port-1");
}

TEST(NumberedKeys, AreCutAtTheLengthOfAValue) {
  const string longest(511, 'k');
  EXPECT_EQ(NumberedKey(longest.c_str(), 7).text, longest + "7");
  EXPECT_EQ(NumberedKey(longest.c_str(), 78).text, longest + "7");
  EXPECT_EQ(NumberedKey(string(600, 'k').c_str(), 7).text, string(512, 'k'));
}

// ---- Sources -------------------------------------------------------------------

// Sections "A" at 0, "B" at 8, "A" at 16, "C" at 24 and a broken header at 32.
constexpr char kFile[] = "[A]\nk=1\n[B]\nk=2\n[A]\nk=3\n[C]\nj=4\n[bad\n[D]\nk=5\n";

struct LookUpRow {
  const char* name;
  const char* section;
  const char* key;
  int32_t start;  // -1: the whole file
  int32_t code;
  string value = "";
  int32_t moved_to = -1;  // -1: nowhere
  friend std::ostream& operator<<(std::ostream& out, const LookUpRow& row) {
    return out << row.name;
  }
};

class Sources : public test::LibraryTest, public testing::WithParamInterface<LookUpRow> {
 protected:
  Source Open() const {
    return GetParam().start < 0 ? Source(file_.path()) : Source(file_.path(), GetParam().start);
  }
  // The source has moved as the row says, or stands where it was opened.
  static void ExpectAt(const Source& source, int32_t position) {
    EXPECT_EQ(source.start(), std::max(position, 0));
  }
  static void ExpectValue(const Value& value) {
    if (GetParam().code == 0) {
      EXPECT_EQ(value.text, GetParam().value);
    } else {
      EXPECT_TRUE(IsUntouched(value));
    }
  }
  static string Reported() {
    return GetParam().code == 0
               ? ""
               : "iResult = " + std::to_string(GetParam().code) +
                     ", section = " + GetParam().section + ", key = " + GetParam().key + ";";
  }

  test::DefinitionFile file_{kFile};
  test::Console console_;
};

TEST_P(Sources, LookUpStaysWhereItIs) {
  const Source source = Open();
  Value value = Traces();
  EXPECT_EQ(source.file(), file_.path());
  EXPECT_EQ(source.LookUp(GetParam().section, GetParam().key, value), GetParam().code);
  ExpectValue(value);
  ExpectAt(source, GetParam().start);
  EXPECT_EQ(console_.Text(), "");
}

TEST_P(Sources, LookUpAndMoveGoesToTheHeader) {
  Source source = Open();
  Value value = Traces();
  EXPECT_EQ(source.LookUpAndMove(GetParam().section, GetParam().key, value), GetParam().code);
  ExpectValue(value);
  ExpectAt(source, GetParam().moved_to < 0 ? GetParam().start : GetParam().moved_to);
  EXPECT_EQ(source.file(), file_.path());
  EXPECT_EQ(console_.Text(), "");
}

TEST_P(Sources, ReadKeyReportsAFailure) {
  const Source source = Open();
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    Value value = Traces();
    EXPECT_EQ(ReadKey(source, GetParam().section, GetParam().key, value, kFailure),
              GetParam().code);
    ExpectValue(value);
    EXPECT_EQ(console_.Text(), Reported());
    ExpectAt(source, GetParam().start);
  }
}

TEST_P(Sources, ReadKeyReportsBehindTheGateThatItIsGiven) {
  const Source source = Open();
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    Value value = Traces();
    EXPECT_EQ(ReadKey(source, GetParam().section, GetParam().key, value, kFailure, Gate::kDebug),
              GetParam().code);
    ExpectValue(value);
    EXPECT_EQ(console_.Text(), debug != 0 ? Reported() : "");
    EXPECT_EQ(ReadKey(source, GetParam().section, GetParam().key, value, kFailure, Gate::kAlways),
              GetParam().code);
    EXPECT_EQ(console_.Text(), Reported());
  }
}

TEST_P(Sources, ReadKeyAndMoveReportsAFailureAndMovesWithoutOne) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    Source source = Open();
    Value value = Traces();
    EXPECT_EQ(ReadKeyAndMove(source, GetParam().section, GetParam().key, value, kFailure),
              GetParam().code);
    ExpectValue(value);
    ExpectAt(source, GetParam().moved_to < 0 ? GetParam().start : GetParam().moved_to);
    EXPECT_EQ(console_.Text(), Reported());
  }
}

const LookUpRow kLookUps[] = {
    {"WholeFile", "A", "k", -1, 0, "1"},
    {"WholeFileLaterSection", "B", "k", -1, 0, "2"},
    {"WholeFileNoKey", "C", "k", -1, -2},
    {"WholeFileBrokenHeader", "D", "k", -1, -14},
    {"FromTheTop", "A", "k", 0, 0, "1", 0},
    {"FromTheTopLaterSection", "B", "k", 0, 0, "2", 8},
    {"FromAHeader", "B", "k", 8, 0, "2", 8},
    {"FromBehindTheFirst", "A", "k", 8, 0, "3", 16},
    {"FromBehindAHeader", "A", "k", 1, 0, "3", 16},
    {"SectionIsInFrontAndABrokenHeader", "B", "k", 16, -14},
    {"SectionIsInFrontOfTheRest", "A", "k", 37, -1},
    {"SectionWithoutTheKey", "C", "k", 8, -2},
    {"BrokenHeader", "D", "k", 8, -14},
    {"BehindTheBrokenHeader", "D", "k", 37, 0, "5", 37},
    {"BehindTheEnd", "A", "k", 1000, -1},
};
INSTANTIATE_TEST_SUITE_P(Keys, Sources, testing::ValuesIn(kLookUps),
                         testing::PrintToStringParamName());

class Keys : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(Keys, AWholeFileIsNeverLeft) {
  const test::DefinitionFile file(kFile);
  Source source(file.path());
  Value value;
  EXPECT_EQ(source.LookUpAndMove("B", "k", value), 0);
  EXPECT_EQ(source.LookUpAndMove("A", "k", value), 0);
  EXPECT_STREQ(value.text, "1");
}

// A list section and the sections it names, from header to header.
TEST_F(Keys, APositionOnlyGoesForward) {
  const test::DefinitionFile file("[Two]\nk=0\n[L]\nn=2\n[One]\nk=1\n[Two]\nk=2\n[One]\nk=9\n");
  Source source(file.path(), 0);
  Value value;
  EXPECT_EQ(ReadKeyAndMove(source, "L", "n", value, kFailure), 0);
  EXPECT_EQ(source.start(), 10);
  EXPECT_EQ(ReadKeyAndMove(source, "One", "k", value, kFailure), 0);
  EXPECT_STREQ(value.text, "1");
  EXPECT_EQ(ReadKeyAndMove(source, "Two", "k", value, kFailure), 0);
  EXPECT_STREQ(value.text, "2");
  EXPECT_EQ(ReadKeyAndMove(source, "One", "k", value, kFailure), 0);
  EXPECT_STREQ(value.text, "9");
  const int32_t last = source.start();
  EXPECT_EQ(ReadKeyAndMove(source, "L", "n", value, kFailure), -1);
  EXPECT_EQ(source.start(), last);
  EXPECT_EQ(console_.Text(), "iResult = -1, section = L, key = n;");
}

TEST_F(Keys, ACopyMovesOnItsOwn) {
  const test::DefinitionFile file(kFile);
  Source source(file.path(), 0);
  const Source copy = source;
  Value value;
  EXPECT_EQ(source.LookUpAndMove("B", "k", value), 0);
  EXPECT_EQ(source.start(), 8);
  EXPECT_EQ(copy.start(), 0);
}

struct FaultRow {
  const char* name;
  int32_t start;  // -1: the whole file
  int32_t code;
  test::FaultPlan test::Faults::*calls;
};

TEST_F(Keys, FaultsOfTheFileAreReported) {
  const test::DefinitionFile file(kFile);
  const FaultRow rows[] = {{"open", -1, -10, &test::Faults::opens},
                           {"open at a position", 8, -10, &test::Faults::opens},
                           {"read", -1, -12, &test::Faults::reads},
                           {"read at a position", 8, -12, &test::Faults::reads},
                           {"seek", 8, -12, &test::Faults::seeks}};
  for (const FaultRow& row : rows) {
    SCOPED_TRACE(row.name);
    Source source = row.start < 0 ? Source(file.path()) : Source(file.path(), row.start);
    Value value = Traces();
    test::Faults faults;
    (faults.*row.calls).FailFrom(1, 1);
    EXPECT_EQ(ReadKeyAndMove(source, "A", "k", value, kFailure), row.code);
    EXPECT_EQ(console_.Text(), "iResult = " + std::to_string(row.code) + ", section = A, key = k;");
    EXPECT_TRUE(IsUntouched(value));
    EXPECT_EQ(source.start(), std::max(row.start, 0));
    EXPECT_EQ(faults.closes, row.code == -10 ? 0 : 1);
  }
}

TEST_F(Keys, NegativePositionsCannotBeSought) {
  const test::DefinitionFile file(kFile);
  Source source(file.path(), -1);
  Value value = Traces();
  EXPECT_EQ(source.start(), -1);
  EXPECT_EQ(ReadKeyAndMove(source, "A", "k", value, kFailure), -12);
  EXPECT_EQ(console_.Text(), "iResult = -12, section = A, key = k;");
  EXPECT_TRUE(IsUntouched(value));
  EXPECT_EQ(source.start(), -1);
}

// ---- Messages that show other names --------------------------------------------------

struct ShownRow {
  const char* name;
  KeyMessage message;
  const char* console;
};

// What is looked up is not what is shown.
TEST_F(Keys, AMessageMayShowAnotherSectionOrKey) {
  const test::DefinitionFile file("[S]\nk=1\n[Other]\nj=2\nother=3\n");
  constexpr ShownRow kRows[] = {
      {"neither", KeyMessage("%d %s %s;"), "-2 S j;"},
      {"the section", KeyMessage("%d %s %s;", "Other"), "-2 Other j;"},
      {"the key", KeyMessage("%d %s %s;", nullptr, "other"), "-2 S other;"},
      {"both", KeyMessage("%d %s %s;", "Other", "other"), "-2 Other other;"},
      {"empty ones", KeyMessage("%d %s %s;", "", ""), "-2  ;"},
  };
  for (const ShownRow& row : kRows) {
    SCOPED_TRACE(row.name);
    Value value = Traces();
    EXPECT_EQ(ReadKey(file.path(), "S", "j", value, row.message), -2);
    EXPECT_EQ(console_.Text(), row.console);
    EXPECT_TRUE(IsUntouched(value));
    Source source(file.path(), 0);
    EXPECT_EQ(ReadKeyAndMove(source, "S", "j", value, row.message), -2);
    EXPECT_EQ(console_.Text(), row.console);
    EXPECT_EQ(ReadKey(file.path(), "S", "k", value, row.message), 0);
    EXPECT_STREQ(value.text, "1");
    EXPECT_EQ(console_.Text(), "");
  }
}

TEST_F(Keys, ANameMayBeReportedUnderAnotherKey) {
  const test::DefinitionFile file("[S]\nSpeed=fast\n");
  constexpr KeyMessage kSpeed("%d %s %s;", nullptr, "Speed");
  char field[8] = {};
  uint32_t length = 77;
  EXPECT_EQ(ReadName(file.path(), "S", field, length, kSpeed, kTooLong), -31);
  EXPECT_EQ(console_.Text(), "-2 S Speed;");
  EXPECT_STREQ(field, "");
  EXPECT_EQ(length, 77u);
}

// ---- Counts --------------------------------------------------------------------

struct CountRow {
  const char* text;
  uint32_t count;
  int32_t code;
  const char* console;
};

TEST_F(Keys, CountsAreHeldAgainstTheirLimit) {
  constexpr sys_context::CountKey kCount = {
      .key = "Num", .limit = 30, .above_limit_code = -11, .above_limit = "ulNum = %d, MAX = %d;"};
  const CountRow rows[] = {
      {"0", 0, 0, ""},
      {"", 0, 0, ""},
      {"many", 0, 0, ""},
      {" +7x", 7, 0, ""},
      {"30", 30, 0, ""},
      {"31", 31, -11, "ulNum = 31, MAX = 30;"},
      {"-1", 0xffffffff, -11, "ulNum = -1, MAX = 30;"},
      {"4294967297", 2147483647, -11, "ulNum = 2147483647, MAX = 30;"},
      {"-4294967295", 2147483648, -11, "ulNum = -2147483648, MAX = 30;"},
  };
  for (const CountRow& row : rows) {
    for (const int32_t debug : {0, 1}) {
      ddDebugPrint = debug;
      Value value;
      std::strcpy(value.text, row.text);
      uint32_t count = 77;
      EXPECT_EQ(sys_context::ParseCount(kCount, value, count), row.code) << row.text;
      EXPECT_EQ(count, row.count) << row.text;
      EXPECT_EQ(console_.Text(), row.console);
    }
  }
}

// ---- Names ---------------------------------------------------------------------

struct NameRow {
  const char* name;
  string file;
  int32_t code;
  string stored = "";
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const NameRow& row) { return out << row.name; }
};

class Names : public test::LibraryTest, public testing::WithParamInterface<NameRow> {
 protected:
  test::Console console_;
};

TEST_P(Names, GoIntoAFieldOfEight) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    char field[8];
    std::memset(field, '#', sizeof field);
    uint32_t length = 77;

    EXPECT_EQ(ReadName(file.path(), "Sec", field, length, kFailure, kTooLong), GetParam().code);

    EXPECT_EQ(console_.Text(), GetParam().console);
    string expected(8, '#');
    if (GetParam().code == 0) {
      const string& stored = GetParam().stored;
      std::copy_n(stored.c_str(), stored.size() + 1, expected.begin());
      EXPECT_EQ(length, stored.size() + 1);
    } else {
      EXPECT_EQ(length, 77u);
    }
    EXPECT_EQ(string(field, sizeof field), expected);
  }
}

const NameRow kNames[] = {
    {"Plain", "[Sec]\nName=GPON\n", 0, "GPON"},
    {"Empty", "[Sec]\nName=\n", 0, ""},
    {"Longest", "[Sec]\nName=1234567\n", 0, "1234567"},
    {"OneTooLong", "[Sec]\nName=12345678\n", -33, "", "ulNameLen = 9;"},
    {"FarTooLong", "[Sec]\nName=" + string(507, 'n') + "\n", -33, "", "ulNameLen = 508;"},
    {"NoName", "[Sec]\nname=GPON\n", -31, "", "iResult = -2, section = Sec, key = Name;"},
    {"NoSection", "[sec]\nName=GPON\n", -31, "", "iResult = -1, section = Sec, key = Name;"},
    {"BrokenEntry", "[Sec]\nnonsense\nName=GPON\n", -31, "",
     "iResult = -14, section = Sec, key = Name;"},
    {"EntryTooLong", "[Sec]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n", -31, "",
     "iResult = -22, section = Sec, key = Name;"},
};
INSTANTIATE_TEST_SUITE_P(Keys, Names, testing::ValuesIn(kNames), testing::PrintToStringParamName());

TEST_F(Keys, ANameIsReadFromThePositionOfItsSource) {
  const test::DefinitionFile file("[S]\nName=one\n[S]\nName=two\n");
  const Source source(file.path(), 4);
  char field[60] = {};
  uint32_t length = 77;
  EXPECT_EQ(ReadName(source, "S", field, length, kFailure, kTooLong), 0);
  EXPECT_STREQ(field, "two");
  EXPECT_EQ(length, 4u);
  EXPECT_EQ(source.start(), 4);
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(Keys, AFieldMayBeGivenByItsSize) {
  const test::DefinitionFile file("[S]\nName=abcd\n");
  std::vector<char> field(5, '#');
  uint32_t length = 77;
  EXPECT_EQ(ReadName(file.path(), "S", field.data(), 4, length, kFailure, kTooLong), -33);
  EXPECT_EQ(console_.Text(), "ulNameLen = 5;");
  EXPECT_EQ(field[0], '#');
  EXPECT_EQ(length, 77u);
  EXPECT_EQ(ReadName(file.path(), "S", field.data(), 5, length, kFailure, kTooLong), 0);
  EXPECT_STREQ(field.data(), "abcd");
  EXPECT_EQ(length, 5u);
}

}  // namespace
