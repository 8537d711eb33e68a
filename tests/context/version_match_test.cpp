// Is the running software's version among the supported ones?
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "support/definition_file.h"
#include "support/tables.h"

namespace {

using std::string;

void Put(const std::vector<string>& versions) {
  gstVersionInformation.ulSupportedSoftVerNum = static_cast<uint32_t>(versions.size());
  for (size_t i = 0; i < versions.size(); ++i) {
    SupportedSoftVer& entry = gstVersionInformation.astSupportedSoftVer[i];
    entry.ulSupportedSoftVerLen = static_cast<uint32_t>(versions[i].size() + 1);
    std::memcpy(entry.acSupportedSoftVer, versions[i].c_str(), versions[i].size() + 1);
  }
}

// 30 versions, of which only the last is called "last".
std::vector<string> ThirtyVersions() {
  std::vector<string> versions(30, "other");
  versions.back() = "last";
  return versions;
}

struct MatchRow {
  const char* name;
  std::vector<string> versions;
  string software;
  bool matches;
  friend std::ostream& operator<<(std::ostream& out, const MatchRow& row) {
    return out << row.name;
  }
};

class VersionMatch : public test::LibraryTest, public testing::WithParamInterface<MatchRow> {
 protected:
  test::Console console_;
};

TEST_P(VersionMatch, IsExact) {
  Put(GetParam().versions);
  // Without a byte to spare, so that a look behind its end is noticed.
  const string& text = GetParam().software;
  const std::vector<char> software(text.c_str(), text.c_str() + text.size() + 1);
  gstrddSoftwareVer = software.data();
  uint32_t supported = 77;

  EXPECT_EQ(ddIsContextVerMatchSoftVer(&supported), GetParam().matches ? 0 : -1);

  EXPECT_EQ(supported, GetParam().matches ? 1u : 0u);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(gstrddSoftwareVer, software.data());
}

const MatchRow kMatches[] = {
    {"Same", {"KT2200V4.0"}, "KT2200V4.0", true},
    {"Second", {"KT2200V3.8", "KT2200V4.0"}, "KT2200V4.0", true},
    {"Twice", {"KT2200V4.0", "KT2200V4.0"}, "KT2200V4.0", true},
    {"None", {"KT2200V3.8", "KT2200V3.9"}, "KT2200V4.0", false},
    {"NoEntries", {}, "KT2200V4.0", false},
    {"NoEntriesNoSoftware", {}, "", false},
    {"EntryShorter", {"KT2200"}, "KT2200V4.0", false},
    {"EntryLonger", {"KT2200V4.0.1"}, "KT2200V4.0", false},
    {"OtherCase", {"kt2200v4.0"}, "KT2200V4.0", false},
    {"BlankAtTheEnd", {"KT2200V4.0 "}, "KT2200V4.0", false},
    {"BlankAtTheStart", {" KT2200V4.0"}, "KT2200V4.0", false},
    {"EmptyEntryEmptySoftware", {""}, "", true},
    {"EmptyEntryOtherSoftware", {""}, "KT2200V4.0", false},
    {"EmptySoftwareOtherEntry", {"KT2200V4.0"}, "", false},
    {"EmptyEntryAmongOthers", {"a", "", "b"}, "b", true},
    {"Longest", {string(99, 'v')}, string(99, 'v'), true},
    {"LongestButTheLastCharacter", {string(99, 'v')}, string(98, 'v') + "w", false},
    {"SoftwareLongerThanAnyEntry", {string(99, 'v')}, string(100, 'v'), false},
    {"ThirtiethOfThirty", ThirtyVersions(), "last", true},
};
INSTANTIATE_TEST_SUITE_P(Versions, VersionMatch, testing::ValuesIn(kMatches),
                         testing::PrintToStringParamName());

TEST_F(VersionMatch, EntriesWithACorruptLengthMatchNothing) {
  Put({"KT2200V4.0"});
  gstrddSoftwareVer = "KT2200V4.0";
  for (const auto& [length, matches] : {std::pair{100u, true}, {101u, false}, {~0u, false}}) {
    gstVersionInformation.astSupportedSoftVer[0].ulSupportedSoftVerLen = length;
    uint32_t supported = 77;
    EXPECT_EQ(ddIsContextVerMatchSoftVer(&supported), matches ? 0 : -1);
    EXPECT_EQ(supported, matches ? 1u : 0u);
  }
}

struct LoadedRow {
  const char* name;
  const char* file;
  const char* software;
  bool matches;
  friend std::ostream& operator<<(std::ostream& out, const LoadedRow& row) {
    return out << row.name;
  }
};

class LoadedVersionMatch : public test::LibraryTest,
                           public testing::WithParamInterface<LoadedRow> {};

TEST_P(LoadedVersionMatch, FollowsTheFile) {
  const test::DefinitionFile file(GetParam().file);
  ASSERT_EQ(ddReadVersionInformation(file.path()), 0);
  if (GetParam().software != nullptr) {
    gstrddSoftwareVer = GetParam().software;
  }
  uint32_t supported = 77;
  EXPECT_EQ(ddIsContextVerMatchSoftVer(&supported), GetParam().matches ? 0 : -1);
  EXPECT_EQ(supported, GetParam().matches ? 1u : 0u);
}

constexpr LoadedRow kLoaded[] = {
    {"InitialVersion", "[Version]\nSupportedSoftwareVer=KT2200V4.0\n", nullptr, true},
    {"BlanksAroundTheSeparator", "[Version]\nSupportedSoftwareVer = KT2200V4.0 | KT2200V4.1\n",
     nullptr, false},
    {"EmptyValue", "[Version]\nSupportedSoftwareVer=\n", nullptr, false},
    {"EmptyValueEmptySoftware", "[Version]\nSupportedSoftwareVer=\n", "", true},
};
INSTANTIATE_TEST_SUITE_P(Versions, LoadedVersionMatch, testing::ValuesIn(kLoaded),
                         testing::PrintToStringParamName());

struct CountRow {
  const char* name;
  uint32_t count;
  const char* console;
  friend std::ostream& operator<<(std::ostream& out, const CountRow& row) {
    return out << row.name;
  }
};

class CorruptVersionCount : public test::LibraryTest, public testing::WithParamInterface<CountRow> {
 protected:
  test::Console console_;
};

TEST_P(CorruptVersionCount, IsRefusedWithTheResultUntouched) {
  Put({"KT2200V4.0"});  // would match
  gstVersionInformation.ulSupportedSoftVerNum = GetParam().count;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t supported = 77;
    EXPECT_EQ(ddIsContextVerMatchSoftVer(&supported), -30);
    EXPECT_EQ(supported, 77u);
    EXPECT_EQ(console_.Text(), GetParam().console);
  }
}

constexpr CountRow kCounts[] = {
    {"ThirtyOne", 31,
     "\r\nddIsContextVerMatchSoftVer err! ulSupportedSoftVerNum = 31, MAX_SUPPORTED_SOFT_VER_NUM = 30"},
    {"Largest", 0xffffffff,
     "\r\nddIsContextVerMatchSoftVer err! ulSupportedSoftVerNum = -1, MAX_SUPPORTED_SOFT_VER_NUM = 30"},
};
INSTANTIATE_TEST_SUITE_P(Versions, CorruptVersionCount, testing::ValuesIn(kCounts),
                         testing::PrintToStringParamName());

class SoftwareVersion : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(SoftwareVersion, NullResultIsReportedWhateverTheDebugSwitch) {
  gstVersionInformation.ulSupportedSoftVerNum = 31;  // looked at later only
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(ddIsContextVerMatchSoftVer(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddIsContextVerMatchSoftVer err! pulIsSupported = 0x0");
  }
}

TEST_F(SoftwareVersion, ThatIsUnknownMatchesNothing) {
  Put({"KT2200V4.0", ""});
  gstrddSoftwareVer = nullptr;
  uint32_t supported = 77;
  EXPECT_EQ(ddIsContextVerMatchSoftVer(&supported), -1);
  EXPECT_EQ(supported, 0u);
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(SoftwareVersion, IsAnsweredWithNoBeforeAnyLoad) {
  uint32_t supported = 77;
  EXPECT_EQ(ddIsContextVerMatchSoftVer(&supported), -1);
  EXPECT_EQ(supported, 0u);
}

}  // namespace
