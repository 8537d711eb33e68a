// Software versions: loading the list, and asking it.
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "support/definition_file.h"
#include "support/faults.h"
#include "support/tables.h"

namespace {

using std::string;

// `count` one-character versions, parted by "|".
string Pieces(int count) {
  string text = "v";
  for (int i = 1; i < count; ++i) {
    text += "|v";
  }
  return text;
}

string WithValue(const string& value) {
  return "[Version]\nSupportedSoftwareVer=" + value + "\n";
}

// Leaves over from an earlier life, to see what a loader writes.
void FillWithOldData() {
  std::memset(&gstVersionInformation, 0x5a, sizeof gstVersionInformation);
  gstVersionInformation.ulSupportedSoftVerNum = 17;
}

struct LoadRow {
  const char* name;
  string file;
  std::vector<string> versions;
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadVersions : public test::LibraryTest, public testing::WithParamInterface<LoadRow> {
 protected:
  test::Console console_;
};

TEST_P(LoadVersions, StoresThePieces) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    FillWithOldData();

    EXPECT_EQ(ddReadVersionInformation(file.path()), 0);

    EXPECT_EQ(console_.Text(), GetParam().console);
    ASSERT_EQ(gstVersionInformation.ulSupportedSoftVerNum, GetParam().versions.size());
    for (size_t i = 0; i < GetParam().versions.size(); ++i) {
      const SupportedSoftVer& stored = gstVersionInformation.astSupportedSoftVer[i];
      string field = GetParam().versions[i];
      EXPECT_EQ(stored.ulSupportedSoftVerLen, field.size() + 1) << i;
      field.resize(sizeof stored.acSupportedSoftVer);  // the rest is zero
      EXPECT_EQ(string(stored.acSupportedSoftVer, sizeof stored.acSupportedSoftVer), field) << i;
    }
  }
}

const string k99(99, 'x');
const string k100(100, 'y');
const string k101(101, 'z');
const char kSkipped101[] =
    "\r\nddReadVersionInformation err! ulSupportedSoftVerLen = 101, MAX_SUPPORTED_SOFT_VER_LEN = "
    "100";
const char kSkipped102[] =
    "\r\nddReadVersionInformation err! ulSupportedSoftVerLen = 102, MAX_SUPPORTED_SOFT_VER_LEN = "
    "100";
const char kSkipped492[] =
    "\r\nddReadVersionInformation err! ulSupportedSoftVerLen = 492, MAX_SUPPORTED_SOFT_VER_LEN = "
    "100";

const LoadRow kLoads[] = {
    {"One", WithValue("KT2200V4.0"), {"KT2200V4.0"}},
    {"Two", WithValue("KT2200V4.0|KT2200V4.1"), {"KT2200V4.0", "KT2200V4.1"}},
    {"BlanksBelongToTheVersions",
     "[Version]\nSupportedSoftwareVer = KT2200V4.0 | KT2200V4.1\n",
     {"KT2200V4.0 ", " KT2200V4.1"}},
    {"OtherSeparatorsAreText", WithValue("a,b;c d"), {"a,b;c d"}},
    {"EqualSignIsText", WithValue("a=1|b=2"), {"a=1", "b=2"}},
    {"DuplicatesStay", WithValue("a|a"), {"a", "a"}},
    {"EmptyValue", WithValue(""), {""}},
    {"OnlyASeparator", WithValue("|"), {"", ""}},
    {"EmptyInTheMiddle", WithValue("a||b"), {"a", "", "b"}},
    {"EmptyAtTheEnd", WithValue("a|"), {"a", ""}},
    {"EmptyAtTheStart", WithValue("|a"), {"", "a"}},
    {"Continued", WithValue("a|+\nb|+\nc"), {"a", "b", "c"}},
    {"LinesEndInCrLf", "[Version]\r\nSupportedSoftwareVer=a|b\r\n", {"a", "b"}},
    {"NoLineEnd", "[Version]\nSupportedSoftwareVer=a", {"a"}},
    {"CurlyBrackets", "{Version}\nSupportedSoftwareVer=a\n", {"a"}},
    {"FirstSectionWins", WithValue("a") + WithValue("b"), {"a"}},
    {"BehindOtherSections", "[Other]\nno entry\n[version]\nx=1\n" + WithValue("a"), {"a"}},
    {"TwentyNine", WithValue(Pieces(29)), std::vector<string>(29, "v")},
    {"Thirty", WithValue(Pieces(30)), std::vector<string>(30, "v")},
    {"ThirtyOne", WithValue(Pieces(31)), std::vector<string>(30, "v")},
    {"ThirtyFive", WithValue(Pieces(35)), std::vector<string>(30, "v")},
    {"ThirtyAndAnEmptyOne", WithValue(Pieces(30) + "|"), std::vector<string>(30, "v")},
    {"TooLongBehindThirtyIsNotReported", WithValue(Pieces(30) + "|" + k100),
     std::vector<string>(30, "v")},
    {"TooLongDoesNotCount", WithValue(k100 + "|" + Pieces(30)), std::vector<string>(30, "v"),
     kSkipped101},
    {"Longest", WithValue(k99), {k99}},
    {"OneCharacterTooLong", WithValue(k100), {}, kSkipped101},
    {"TwoCharactersTooLong", WithValue(k101), {}, kSkipped102},
    {"AsLongAsALine", WithValue(string(491, 'w')), {}, kSkipped492},
    {"TooLongInTheMiddle", WithValue("a|" + k100 + "|b"), {"a", "b"}, kSkipped101},
    {"TooLongAtTheEnd", WithValue("a|" + k101), {"a"}, kSkipped102},
    {"TooLongTwice",
     WithValue(k100 + "|a|" + k101 + "|" + k99),
     {"a", k99},
     string(kSkipped101) + kSkipped102},
};
INSTANTIATE_TEST_SUITE_P(Versions, LoadVersions, testing::ValuesIn(kLoads),
                         testing::PrintToStringParamName());

struct FailRow {
  const char* name;
  string file;
  string console;
  int failing_read = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadVersions : public test::LibraryTest, public testing::WithParamInterface<FailRow> {
 protected:
  test::Console console_;
};

TEST_P(FailToLoadVersions, ReportsTheLookupAndLeavesTheTable) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    FillWithOldData();
    const VersionInformation before = gstVersionInformation;
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);

    EXPECT_EQ(ddReadVersionInformation(file.path()), -31);

    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(std::memcmp(&gstVersionInformation, &before, sizeof before), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, 1);
  }
}

// The message names the section where the key should stand.
string LookupFailure(const string& code) {
  return "\r\nddReadVersionInformation err! iResult = " + code +
         ", section = Version, key = Version";
}

const FailRow kFails[] = {
    {"EmptyFile", "", LookupFailure("-1")},
    {"NoSection", "[ Version ]\nSupportedSoftwareVer=a\n", LookupFailure("-1")},
    {"NoKey", "[Version]\nsupportedSoftwareVer=a\n[Next]\n", LookupFailure("-2")},
    {"KeyInALaterSectionOnly", "[Version]\n[Next]\nSupportedSoftwareVer=a\n", LookupFailure("-2")},
    {"NoEntryBeforeTheKey", "[Version]\nnonsense\nSupportedSoftwareVer=a\n", LookupFailure("-14")},
    {"BrokenHeaderBeforeTheSection", "[Broken\n" + WithValue("a"), LookupFailure("-14")},
    {"EntryTooLong", WithValue(string(480, 'a') + "+\n" + string(40, 'b')), LookupFailure("-22")},
    {"ReadError", WithValue("a"), LookupFailure("-12"), 1},
};
INSTANTIATE_TEST_SUITE_P(Versions, FailToLoadVersions, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

class Versions : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(Versions, MissingFile) {
  FillWithOldData();
  const VersionInformation before = gstVersionInformation;
  EXPECT_EQ(ddReadVersionInformation("/nonexistent/device_definition.ini"), -31);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadVersionInformation err! iResult = -10, section = Version, key = Version");
  EXPECT_EQ(std::memcmp(&gstVersionInformation, &before, sizeof before), 0);
}

TEST_F(Versions, AFolderIsNoFile) {
  EXPECT_EQ(ddReadVersionInformation("/tmp"), -31);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadVersionInformation err! iResult = -12, section = Version, key = Version");
}

TEST_F(Versions, NullPath) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    FillWithOldData();
    const VersionInformation before = gstVersionInformation;
    EXPECT_EQ(ddReadVersionInformation(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddReadVersionInformation err!, strFileName = 0x0");
    EXPECT_EQ(std::memcmp(&gstVersionInformation, &before, sizeof before), 0);
  }
}

// A version that is left out does not touch the place that it would have had.
TEST_F(Versions, LeftOutVersionTouchesNoEntry) {
  FillWithOldData();
  const SupportedSoftVer before = gstVersionInformation.astSupportedSoftVer[1];
  const test::DefinitionFile file(WithValue("a|" + string(100, 'b')));
  EXPECT_EQ(ddReadVersionInformation(file.path()), 0);
  EXPECT_EQ(gstVersionInformation.ulSupportedSoftVerNum, 1u);
  EXPECT_EQ(std::memcmp(&gstVersionInformation.astSupportedSoftVer[1], &before, sizeof before), 0);
}

TEST_F(Versions, LoadAllocatesNothing) {
  const test::DefinitionFile file(WithValue("a|b"));
  test::Faults faults;
  EXPECT_EQ(ddReadVersionInformation(file.path()), 0);
  EXPECT_EQ(faults.allocations.count(), 0);
}

}  // namespace
