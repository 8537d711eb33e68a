// Loading the OLT port types.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/port_types.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/leaks.h"
#include "support/rows.h"

namespace {

using std::string;
using test::AnnouncePortTypes;
using test::PortTypeSection;
using test::ThreePortTypes;

struct Type {
  uint32_t type;
  string name;
  uint32_t ratio;
};

// A list of `count` port types named N1, N2, ... with their sections.
string ManyTypes(int count) {
  string list = AnnouncePortTypes(std::to_string(count));
  string sections;
  for (int i = 1; i <= count; ++i) {
    const string n = std::to_string(i);
    list += "SupportedOltPortType" + n + "=S" + n + "\n";
    sections += PortTypeSection("S" + n, n, "N" + n, n);
  }
  return list + sections;
}

std::vector<Type> ManyRecords(uint32_t count) {
  std::vector<Type> records;
  for (uint32_t i = 1; i <= count; ++i) {
    records.push_back({i, "N" + std::to_string(i), i});
  }
  return records;
}

// ---- Loads that succeed --------------------------------------------------------

struct LoadRow {
  const char* name;
  string file;
  uint32_t announced;
  std::vector<Type> records;
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadPortTypes : public test::LibraryTest, public testing::WithParamInterface<LoadRow> {
 protected:
  void ExpectRecord(const test::Faults& faults, uint32_t place);
  void ExpectTable(const test::Faults& faults);
  test::Console console_;
};

void LoadPortTypes::ExpectRecord(const test::Faults& faults, uint32_t place) {
  OltPortInformation* const record = gstSupportedOltPortType.pOltPortTypeArray[place];
  const Type& expected = GetParam().records[place];
  ASSERT_NE(record, nullptr) << place;
  EXPECT_EQ(faults.blocks.at(record), sizeof(OltPortInformation));
  EXPECT_EQ(record->ulPortType, expected.type) << place;
  EXPECT_EQ(record->ulNameLen, expected.name.size() + 1) << place;
  string field = expected.name;
  field.resize(60);  // the rest is zero
  EXPECT_EQ(string(record->acName, sizeof record->acName), field) << place;
  EXPECT_EQ(record->ulSplittingRatio, expected.ratio) << place;
  EXPECT_EQ(record->ulLink, 0u) << place;
}

void LoadPortTypes::ExpectTable(const test::Faults& faults) {
  const auto count = static_cast<uint32_t>(GetParam().records.size());
  ASSERT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, count);
  OltPortInformation** const places = gstSupportedOltPortType.pOltPortTypeArray;
  ASSERT_NE(places, nullptr);
  EXPECT_EQ(faults.blocks.at(places), GetParam().announced * sizeof(OltPortInformation*));
  for (uint32_t i = 0; i < count; ++i) {
    ExpectRecord(faults, i);
  }
  for (uint32_t i = count; i < GetParam().announced; ++i) {
    EXPECT_EQ(places[i], nullptr) << i;
  }
  EXPECT_EQ(faults.blocks.size(), count + 1u);  // and nothing else is kept
}

TEST_P(LoadPortTypes, KeepsWhatReadsWell) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    gstSupportedOltPortType.ulSupportedOltPortTypeNum = 9;
    test::Faults faults;

    EXPECT_EQ(ddReadAllSupportedOltPortInformation(file.path()), 0);

    EXPECT_EQ(console_.Text(), GetParam().console);
    ExpectTable(faults);
    test::ExpectNoLeak(faults);
    EXPECT_EQ(faults.closes, faults.opens.count());
  }
}

const string kS1 = PortTypeSection("S1", "1", "N1", "10");
const string kS2 = PortTypeSection("S2", "2", "N2", "20");
const string kS3 = PortTypeSection("S3", "3", "N3", "30");
const std::vector<Type> kAllThree = {{1, "N1", 10}, {2, "N2", 20}, {3, "N3", 30}};
const std::vector<Type> kWithoutSecond = {{1, "N1", 10}, {3, "N3", 30}};
const std::vector<Type> kFirstOnly = {{1, "N1", 10}};
const string k59(59, 'n');
const string k60(60, 'n');

// A list that announces `number` port types and has the first one.
string AnnounceOne(const string& number) {
  return AnnouncePortTypes(number) + "SupportedOltPortType1=S1\n" + kS1;
}

string One(const string& type, const string& name, const string& ratio) {
  return AnnouncePortTypes("1") + "SupportedOltPortType1=S1\n" +
         PortTypeSection("S1", type, name, ratio);
}

// What the loader says when its own key cannot be read.
string NoListKey(const string& code, const string& key) {
  return "\r\nddReadAllSupportedOltPortInformation err! iResult = " + code +
         ", section = SupportedOltPortType, key = " + key;
}

// What it says when a port type is left out.
string LeftOut(const string& code, const string& section) {
  return "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOltPortInformation err! "
         "iResult = " +
         code + ", strValueBuf = " + section;
}

string NoType(const string& code, const string& section) {
  return "\r\nddReadOneSupportedOltPortInformation err! iResult = " + code +
         ", strSectionFrameNameBuf = " + section + ", Key = Type" + LeftOut("-31", section);
}

string NoKey(const string& code, const string& section, const string& key) {
  return "\r\nddReadOneSupportedOltPortInformation err! iResult = " + code +
         ", section = " + section + ", key = " + key + LeftOut("-31", section);
}

string RatioTooLarge(const string& ratio, const string& section) {
  return "\r\nddReadOneSupportedOltPortInformation err! ulSplittingRatio = " + ratio +
         ", DD_MAX_ONU_NUM_PER_PON = 512" + LeftOut("-34", section);
}

const LoadRow kLists[] = {
    {"Three", ThreePortTypes(kS1 + kS2 + kS3), 3, kAllThree},
    {"SectionsInAnyOrder", kS3 + kS2 + ThreePortTypes(kS1), 3, kAllThree},
    {"ListAtTheEnd", kS3 + kS1 + kS2 + ThreePortTypes(""), 3, kAllThree},
    {"NumberWithText", AnnounceOne(" +1x"), 1, kFirstOnly},
    {"MoreListedThanAnnounced",
     AnnouncePortTypes("1") + "SupportedOltPortType1=S1\nSupportedOltPortType2=S2\n" + kS1 + kS2, 1,
     kFirstOnly},
    {"EntriesCountFromOne",
     AnnouncePortTypes("1") + "SupportedOltPortType0=S2\nSupportedOltPortType1=S1\n" + kS1 + kS2, 1,
     kFirstOnly},
    {"TwentyNine", ManyTypes(29), 29, ManyRecords(29)},
    {"AsManyAsPossible", ManyTypes(30), 30, ManyRecords(30)},
    {"SameSectionTwice",
     AnnouncePortTypes("2") + "SupportedOltPortType1=S1\nSupportedOltPortType2=S1\n" + kS1,
     2,
     {{1, "N1", 10}, {1, "N1", 10}}},
    {"FirstOfTwoSectionsOfAName",
     ThreePortTypes(kS1 + PortTypeSection("S1", "9", "N9", "90") + kS2 + kS3), 3, kAllThree},
    {"SameTypeAndNameTwice",
     ThreePortTypes(kS1 + PortTypeSection("S2", "1", "N1", "20") + kS3),
     3,
     {{1, "N1", 10}, {1, "N1", 20}, {3, "N3", 30}}},
};
INSTANTIATE_TEST_SUITE_P(Lists, LoadPortTypes, testing::ValuesIn(kLists),
                         testing::PrintToStringParamName());

const LoadRow kSkips[] = {
    {"ListEntryMissing",
     AnnouncePortTypes("3") + "SupportedOltPortType1=S1\nSupportedOltPortType3=S3\n" + kS1 + kS2 +
         kS3,
     3, kWithoutSecond, NoListKey("-2", "SupportedOltPortType2")},
    {"AllListEntriesMissing",
     AnnouncePortTypes("2") + kS1,
     2,
     {},
     NoListKey("-2", "SupportedOltPortType1") + NoListKey("-2", "SupportedOltPortType2")},
    {"FewerListedThanPossible", AnnouncePortTypes("30") + "SupportedOltPortType30=S1\n" + kS1, 30,
     kFirstOnly,
     [] {
       string console;
       for (int i = 1; i <= 29; ++i) {
         console += NoListKey("-2", "SupportedOltPortType" + std::to_string(i));
       }
       return console;
     }()},
    {"BrokenEntryInTheList",
     AnnouncePortTypes("2") + "SupportedOltPortType1=S1\nnonsense\nSupportedOltPortType2=S2\n" +
         kS1 + kS2,
     2, kFirstOnly, NoListKey("-14", "SupportedOltPortType2")},
    {"EntryTooLongInTheList",
     AnnouncePortTypes("2") + "SupportedOltPortType1=S1\nX=" + string(500, 'a') + "+\n" +
         string(20, 'b') + "\nSupportedOltPortType2=S2\n" + kS1 + kS2,
     2, kFirstOnly, NoListKey("-22", "SupportedOltPortType2")},
    {"EntryNamesNoSection", ThreePortTypes(kS1 + kS3), 3, kWithoutSecond, NoType("-1", "S2")},
    {"EntryIsEmpty",
     AnnouncePortTypes("2") + "SupportedOltPortType1=\nSupportedOltPortType2=S1\n" + kS1, 2,
     kFirstOnly, NoType("-1", "")},
    {"TypeMissing", ThreePortTypes(kS1 + "[S2]\nName=N2\nSplittingRatio=20\n" + kS3), 3,
     kWithoutSecond, NoType("-2", "S2")},
    {"NameMissing", ThreePortTypes(kS1 + "[S2]\nType=2\nSplittingRatio=20\n" + kS3), 3,
     kWithoutSecond, NoKey("-2", "S2", "Name")},
    {"RatioMissing", ThreePortTypes(kS1 + "[S2]\nType=2\nName=N2\n" + kS3), 3, kWithoutSecond,
     NoKey("-2", "S2", "SplittingRatio")},
    {"RatioMissingInTheFirst",
     ThreePortTypes("[S1]\nType=1\nName=N1\n" + kS2 + kS3),
     3,
     {{2, "N2", 20}, {3, "N3", 30}},
     NoKey("-2", "S1", "SplittingRatio")},
    {"RatioMissingInTheLast",
     ThreePortTypes(kS1 + kS2 + "[S3]\nType=3\nName=N3\n"),
     3,
     {{1, "N1", 10}, {2, "N2", 20}},
     NoKey("-2", "S3", "SplittingRatio")},
    {"LongestName", One("1", k59, "1"), 1, {{1, k59, 1}}},
    {"NameTooLong", ThreePortTypes(kS1 + PortTypeSection("S2", "2", k60, "20") + kS3), 3,
     kWithoutSecond,
     "\r\nddReadOneSupportedOltPortInformation err! ulNameLen = 61" + LeftOut("-33", "S2")},
    {"LargestRatio", One("1", "N", "512"), 1, {{1, "N", 512}}},
    {"RatioTooLarge", ThreePortTypes(kS1 + PortTypeSection("S2", "2", "N2", "513") + kS3), 3,
     kWithoutSecond, RatioTooLarge("513", "S2")},
    {"RatioNegative", ThreePortTypes(kS1 + PortTypeSection("S2", "2", "N2", "-1") + kS3), 3,
     kWithoutSecond, RatioTooLarge("-1", "S2")},
    {"FirstAndLastFail",
     ThreePortTypes(kS2),
     3,
     {{2, "N2", 20}},
     NoType("-1", "S1") + NoType("-1", "S3")},
    {"AllFail",
     ThreePortTypes(PortTypeSection("S1", "1", k60, "1") + "[S2]\nType=2\nName=N2\n" +
                    PortTypeSection("S3", "3", "N3", "600")),
     3,
     {},
     "\r\nddReadOneSupportedOltPortInformation err! ulNameLen = 61" + LeftOut("-33", "S1") +
         NoKey("-2", "S2", "SplittingRatio") + RatioTooLarge("600", "S3")},
};
INSTANTIATE_TEST_SUITE_P(Skips, LoadPortTypes, testing::ValuesIn(kSkips),
                         testing::PrintToStringParamName());

// ---- Loads that fail -----------------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  int failing_read = 0;
  int failing_open = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadPortTypes : public test::LibraryTest, public testing::WithParamInterface<FailRow> {
 protected:
  test::Console console_;
};

TEST_P(FailToLoadPortTypes, LeavesNoPortTypes) {
  const test::DefinitionFile file(GetParam().file);
  OltPortInformation* place = nullptr;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstSupportedOltPortType = {9, &place};
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);
    faults.opens.FailFrom(GetParam().failing_open, 1);

    EXPECT_EQ(ddReadAllSupportedOltPortInformation(file.path()), GetParam().code);

    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, 0u);
    EXPECT_EQ(gstSupportedOltPortType.pOltPortTypeArray, &place);
    gstSupportedOltPortType = {};
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, GetParam().failing_open == 0 ? 1 : 0);
  }
}

string TooMany(const string& number) {
  return "\r\nddReadAllSupportedOltPortInformation err! ulSupportedOltPortTypeNum = " + number +
         ", MAX_OLT_PORT_TYPE_NUM = 30";
}
string NoNumber(const string& code) {
  return NoListKey(code, "SupportedOltPortTypeNum");
}

const FailRow kFails[] = {
    {"OneTooMany", ManyTypes(31), -11, TooMany("31")},
    {"Negative", AnnounceOne("-1"), -11, TooMany("-1")},
    {"Above31Bits", AnnounceOne("2147483648"), -11, TooMany("2147483647")},
    {"Above32Bits", AnnounceOne("4294967297"), -11, TooMany("2147483647")},
    {"Below31Bits", AnnounceOne("-2147483649"), -11, TooMany("-2147483648")},
    {"Below32Bits", AnnounceOne("-4294967295"), -11, TooMany("-2147483648")},
    {"NoSection", kS1, -31, NoNumber("-1")},
    {"SectionOfOtherCase", "[SupportedOLTPortType]\nSupportedOltPortTypeNum=1\n", -31,
     NoNumber("-1")},
    {"EmptyFile", "", -31, NoNumber("-1")},
    {"NoKey", "[SupportedOltPortType]\nSupportedOltPortType1=S1\n" + kS1, -31, NoNumber("-2")},
    {"KeyInASecondSection", "[SupportedOltPortType]\nX=1\n" + AnnounceOne("1"), -31,
     NoNumber("-2")},
    {"BrokenEntry", "[SupportedOltPortType]\nnonsense\nSupportedOltPortTypeNum=1\n", -31,
     NoNumber("-14")},
    {"BrokenHeader", "[Broken\n" + AnnounceOne("1"), -31, NoNumber("-14")},
    {"EntryTooLong",
     "[SupportedOltPortType]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') +
         "\nSupportedOltPortTypeNum=1\n",
     -31, NoNumber("-22")},
    {"ReadError", AnnounceOne("1"), -31, NoNumber("-12"), 1},
    {"NotOpened", AnnounceOne("1"), -31, NoNumber("-10"), 0, 1},
};
INSTANTIATE_TEST_SUITE_P(Lists, FailToLoadPortTypes, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

class PortTypeLoader : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(PortTypeLoader, MissingFile) {
  gstSupportedOltPortType.ulSupportedOltPortTypeNum = 9;
  EXPECT_EQ(ddReadAllSupportedOltPortInformation("/nonexistent/device_definition.ini"), -31);
  EXPECT_EQ(console_.Text(), NoNumber("-10"));
  EXPECT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, 0u);
}

TEST_F(PortTypeLoader, NullPath) {
  OltPortInformation* place = nullptr;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstSupportedOltPortType = {9, &place};
    test::Faults faults;
    EXPECT_EQ(ddReadAllSupportedOltPortInformation(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddReadAllSupportedOltPortInformation err!, strFileName = 0x0");
    EXPECT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, 0u);
    EXPECT_EQ(gstSupportedOltPortType.pOltPortTypeArray, &place);
    gstSupportedOltPortType = {};
    EXPECT_EQ(faults.opens.count(), 0);
    EXPECT_EQ(faults.allocations.count(), 0);
  }
}

TEST_F(PortTypeLoader, ASecondLoadForgetsTheFirst) {
  const test::DefinitionFile three(ThreePortTypes(kS1 + kS2 + kS3));
  const test::DefinitionFile one(One("7", "N7", "70"));
  test::Faults faults;
  EXPECT_EQ(ddReadAllSupportedOltPortInformation(three.path()), 0);
  EXPECT_EQ(ddReadAllSupportedOltPortInformation(one.path()), 0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(faults.frees, 0);
  EXPECT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, 1u);
  test::ExpectAndReleaseLost(faults, 4);
}

class LoadNoPortTypes : public PortTypeLoader, public testing::WithParamInterface<test::ZeroRow> {};

TEST_P(LoadNoPortTypes, LeavesNoArray) {
  const test::DefinitionFile file(AnnounceOne(GetParam().text));
  for (const int32_t debug : {0, 1}) {
    OltPortInformation* place = nullptr;
    ddDebugPrint = debug;
    gstSupportedOltPortType = {9, &place};
    test::Faults faults;
    EXPECT_EQ(ddReadAllSupportedOltPortInformation(file.path()), 0);
    EXPECT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, 0u);
    EXPECT_EQ(gstSupportedOltPortType.pOltPortTypeArray, nullptr);
    gstSupportedOltPortType = {};
    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllSupportedOltPortInformation err! ulSupportedOltPortTypeNum = 0");
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, 1);
  }
}
INSTANTIATE_TEST_SUITE_P(Lists, LoadNoPortTypes, testing::ValuesIn(test::kZeros),
                         testing::PrintToStringParamName());

// ---- What was loaded, asked for ----------------------------------------------------

struct AskedRow {
  const char* asked;
  int32_t code;
  uint32_t index;
};

TEST_F(PortTypeLoader, WhatIsLoadedIsFoundByItsWholeName) {
  const test::DefinitionFile file(ThreePortTypes(kS1 + PortTypeSection("S2", "2", k60, "20") +
                                                 PortTypeSection("S3", "1", k59, "512")));
  ASSERT_EQ(ddReadAllSupportedOltPortInformation(file.path()), 0);
  const AskedRow rows[] = {{"N1", 0, 0},    {k59.c_str(), 0, 1}, {"n1", -32, 0},
                           {"N11", -32, 0}, {"N", -32, 0},       {k60.c_str(), -33, 0}};
  for (const AskedRow& row : rows) {
    uint32_t is_supported = 77;
    uint32_t index = 77;
    EXPECT_EQ(ddIsOltPortTypeSupportedByName(row.asked, &is_supported, &index), row.code)
        << row.asked;
    EXPECT_EQ(is_supported, row.code == 0 ? 1u : 0u) << row.asked;
    EXPECT_EQ(index, row.index) << row.asked;
  }
}

TEST_F(PortTypeLoader, TheFirstOfTwoLoadedTypesAnswersForItsRatio) {
  const test::DefinitionFile file(ThreePortTypes(kS1 + PortTypeSection("S2", "2", "N2", "513") +
                                                 PortTypeSection("S3", "1", "N3", "512")));
  ASSERT_EQ(ddReadAllSupportedOltPortInformation(file.path()), 0);
  uint32_t ratio = 77;
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, &ratio), 0);
  EXPECT_EQ(ratio, 10u);
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(2, &ratio), -12);  // left out
  EXPECT_EQ(ratio, 0u);
}

}  // namespace
