// Loading the catalogs of ONU port types.
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "catalog/onu/port_type_family.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/leaks.h"

namespace {

using std::string;
using test::AnnounceOnuPortTypes;
using test::FileOf;
using test::kPortTypeFamilies;
using test::OnuPortTypeSection;
using test::PortType;
using test::PortTypeFamily;
using test::ThreeOnuPortTypes;
using test::With;

struct Type {
  uint32_t type;
  string name;
};

// A list of `count` port types named N1, N2, ... with their sections.
string ManyTypes(int count) {
  string list = AnnounceOnuPortTypes(std::to_string(count));
  string sections;
  for (int i = 1; i <= count; ++i) {
    const string n = std::to_string(i);
    list += "{Entry}" + n + "=S" + n + "\n";
    sections += OnuPortTypeSection("S" + n, n, "N" + n);
  }
  return list + sections;
}

std::vector<Type> ManyRecords(uint32_t count) {
  std::vector<Type> records;
  for (uint32_t i = 1; i <= count; ++i) {
    records.push_back({i, "N" + std::to_string(i)});
  }
  return records;
}

// No other catalog than this one holds anything.
void ExpectOthersEmpty(const PortTypeFamily& family) {
  for (const PortTypeFamily& other : kPortTypeFamilies) {
    if (other.count != family.count) {
      EXPECT_EQ(*other.count, 0u) << other;
      EXPECT_EQ(*other.types, nullptr) << other;
    }
  }
}

// ---- Loads that succeed --------------------------------------------------------

// A thing that the loader says: the catalog's text, and what it shows.
struct Said {
  const char* PortTypeFamily::*text;
  string code;
  string section = "";
  string n = "";  // the number of the entry, or the name's length
};

string Console(const PortTypeFamily& family, const std::vector<Said>& all) {
  string console;
  for (const Said& said : all) {
    string text = With(With(family.*said.text, "{code}", said.code), "{section}", said.section);
    console += With(With(text, "{n}", said.n), "{length}", said.n);
  }
  return console;
}

struct LoadRow {
  const char* name;
  string file;
  uint32_t announced;
  std::vector<Type> records;
  std::vector<Said> console = {};
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadOnuPortTypes : public test::LibraryTest,
                         public testing::WithParamInterface<std::tuple<PortTypeFamily, LoadRow>> {
 protected:
  static void ExpectRecord(const test::Faults& faults, uint32_t place);
  static void ExpectTable(const test::Faults& faults);
  test::Console console_;
};

void LoadOnuPortTypes::ExpectRecord(const test::Faults& faults, uint32_t place) {
  const auto& [family, row] = GetParam();
  PortType* const record = (*family.types)[place];
  const Type& expected = row.records[place];
  ASSERT_NE(record, nullptr) << place;
  ASSERT_EQ(faults.blocks.count(record), 1u) << place;
  EXPECT_EQ(faults.blocks.at(record), sizeof(PortType));
  EXPECT_EQ(record->*family.type, expected.type) << place;
  EXPECT_EQ(record->ulNameLen, expected.name.size() + 1) << place;
  string field = expected.name;
  field.resize(60);  // the rest is zero
  EXPECT_EQ(string(record->acName, sizeof record->acName), field) << place;
}

void LoadOnuPortTypes::ExpectTable(const test::Faults& faults) {
  const auto& [family, row] = GetParam();
  const auto count = static_cast<uint32_t>(row.records.size());
  ASSERT_EQ(*family.count, count);
  PortType** const places = *family.types;
  ASSERT_EQ(faults.blocks.count(places), 1u);
  EXPECT_EQ(faults.blocks.at(places), row.announced * sizeof(PortType*));
  for (uint32_t i = 0; i < count; ++i) {
    ExpectRecord(faults, i);
  }
  for (uint32_t i = count; i < row.announced; ++i) {
    EXPECT_EQ(places[i], nullptr) << i;
  }
  EXPECT_EQ(faults.blocks.size(), count + 1u);  // and nothing else is kept
  ExpectOthersEmpty(family);
}

TEST_P(LoadOnuPortTypes, KeepsWhatReadsWell) {
  const auto& [family, row] = GetParam();
  const test::DefinitionFile file(FileOf(family, row.file));
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    *family.count = 9;
    test::Faults faults;

    EXPECT_EQ(family.read_all(file.path()), 0);

    EXPECT_EQ(console_.Text(), Console(family, row.console));
    ExpectTable(faults);
    test::ExpectNoLeak(faults);
    EXPECT_EQ(faults.closes, faults.opens.count());
    if (HasFailure()) {
      *family.count = 0;  // or the end would walk a table that is not there
      return;
    }
  }
}

const string kS1 = OnuPortTypeSection("S1", "1", "N1");
const string kS2 = OnuPortTypeSection("S2", "2", "N2");
const string kS3 = OnuPortTypeSection("S3", "3", "N3");
const std::vector<Type> kAllThree = {{1, "N1"}, {2, "N2"}, {3, "N3"}};
const std::vector<Type> kWithoutSecond = {{1, "N1"}, {3, "N3"}};
const std::vector<Type> kFirstOnly = {{1, "N1"}};
const string k59(59, 'n');
const string k60(60, 'n');

// A list that announces `number` port types and has the first one.
string AnnounceOne(const string& number) {
  return AnnounceOnuPortTypes(number) + "{Entry}1=S1\n" + kS1;
}

const LoadRow kLists[] = {
    {"One", AnnounceOne("1"), 1, kFirstOnly},
    {"Three", ThreeOnuPortTypes(kS1 + kS2 + kS3), 3, kAllThree},
    {"SectionsInAnyOrder", kS3 + kS2 + ThreeOnuPortTypes(kS1), 3, kAllThree},
    {"ListAtTheEnd", kS3 + kS1 + kS2 + ThreeOnuPortTypes(""), 3, kAllThree},
    {"NumberWithText", AnnounceOne(" +1x"), 1, kFirstOnly},
    {"MoreListedThanAnnounced",
     AnnounceOnuPortTypes("1") + "{Entry}1=S1\n{Entry}2=S2\n" + kS1 + kS2, 1, kFirstOnly},
    {"EntriesCountFromOne", AnnounceOnuPortTypes("1") + "{Entry}0=S2\n{Entry}1=S1\n" + kS1 + kS2, 1,
     kFirstOnly},
    {"TwentyNine", ManyTypes(29), 29, ManyRecords(29)},
    {"AsManyAsPossible", ManyTypes(30), 30, ManyRecords(30)},
    {"SameSectionTwice",
     AnnounceOnuPortTypes("2") + "{Entry}1=S1\n{Entry}2=S1\n" + kS1,
     2,
     {{1, "N1"}, {1, "N1"}}},
    {"FirstOfTwoSectionsOfAName",
     ThreeOnuPortTypes(kS1 + OnuPortTypeSection("S1", "9", "N9") + kS2 + kS3), 3, kAllThree},
    {"SameTypeAndNameTwice",
     ThreeOnuPortTypes(kS1 + OnuPortTypeSection("S2", "1", "N1") + kS3),
     3,
     {{1, "N1"}, {1, "N1"}, {3, "N3"}}},
    {"LongestName",
     AnnounceOnuPortTypes("1") + "{Entry}1=S1\n" + OnuPortTypeSection("S1", "1", k59),
     1,
     {{1, k59}}},
};
INSTANTIATE_TEST_SUITE_P(Lists, LoadOnuPortTypes,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kLists)),
                         test::KindAndRow());

Said NoEntry(const string& code, int number) {
  return {&PortTypeFamily::entry_unreadable, code, "", std::to_string(number)};
}
Said LeftOut(const string& code, const string& section) {
  return {&PortTypeFamily::entry_failed, code, section};
}
Said NoType(const string& code, const string& section) {
  return {&PortTypeFamily::type_unreadable, code, section};
}
Said NoName(const string& code, const string& section) {
  return {&PortTypeFamily::name_unreadable, code, section};
}
Said NameTooLong(const string& length) {
  return {&PortTypeFamily::name_too_long, "", "", length};
}

std::vector<Said> NoEntriesBefore30() {
  std::vector<Said> console;
  for (int i = 1; i <= 29; ++i) {
    console.push_back(NoEntry("-2", i));
  }
  return console;
}

const LoadRow kSkips[] = {
    {"ListEntryMissing",
     AnnounceOnuPortTypes("3") + "{Entry}1=S1\n{Entry}3=S3\n" + kS1 + kS2 + kS3,
     3,
     kWithoutSecond,
     {NoEntry("-2", 2)}},
    {"AllListEntriesMissing",
     AnnounceOnuPortTypes("2") + kS1,
     2,
     {},
     {NoEntry("-2", 1), NoEntry("-2", 2)}},
    {"OnlyTheLastListed", AnnounceOnuPortTypes("30") + "{Entry}30=S1\n" + kS1, 30, kFirstOnly,
     NoEntriesBefore30()},
    {"BrokenEntryInTheList",
     AnnounceOnuPortTypes("2") + "{Entry}1=S1\nnonsense\n{Entry}2=S2\n" + kS1 + kS2,
     2,
     kFirstOnly,
     {NoEntry("-14", 2)}},
    {"EntryNamesNoSection",
     ThreeOnuPortTypes(kS1 + kS3),
     3,
     kWithoutSecond,
     {NoType("-1", "S2"), LeftOut("-31", "S2")}},
    {"EntryIsEmpty",
     AnnounceOnuPortTypes("2") + "{Entry}1=\n{Entry}2=S1\n" + kS1,
     2,
     kFirstOnly,
     {NoType("-1", ""), LeftOut("-31", "")}},
    {"TypeMissing",
     ThreeOnuPortTypes(kS1 + "[S2]\nName=N2\n" + kS3),
     3,
     kWithoutSecond,
     {NoType("-2", "S2"), LeftOut("-31", "S2")}},
    {"NameMissing",
     ThreeOnuPortTypes(kS1 + "[S2]\nType=2\n" + kS3),
     3,
     kWithoutSecond,
     {NoName("-2", "S2"), LeftOut("-31", "S2")}},
    {"NameMissingInTheFirst",
     ThreeOnuPortTypes("[S1]\nType=1\n" + kS2 + kS3),
     3,
     {{2, "N2"}, {3, "N3"}},
     {NoName("-2", "S1"), LeftOut("-31", "S1")}},
    {"NameMissingInTheLast",
     ThreeOnuPortTypes(kS1 + kS2 + "[S3]\nType=3\n"),
     3,
     {{1, "N1"}, {2, "N2"}},
     {NoName("-2", "S3"), LeftOut("-31", "S3")}},
    {"NameTooLong",
     ThreeOnuPortTypes(kS1 + OnuPortTypeSection("S2", "2", k60) + kS3),
     3,
     kWithoutSecond,
     {NameTooLong("61"), LeftOut("-33", "S2")}},
    {"AllFail",
     ThreeOnuPortTypes(OnuPortTypeSection("S1", "1", k60) + "[S2]\nType=2\n"),
     3,
     {},
     {NameTooLong("61"), LeftOut("-33", "S1"), NoName("-2", "S2"), LeftOut("-31", "S2"),
      NoType("-1", "S3"), LeftOut("-31", "S3")}},
};
INSTANTIATE_TEST_SUITE_P(Skips, LoadOnuPortTypes,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kSkips)),
                         test::KindAndRow());

// ---- Loads that give no port types -----------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  const char* PortTypeFamily::*text;
  string shown;  // the lookup's code, or the number announced
  int failing_read = 0;
  int failing_open = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadOnuPortTypes
    : public test::LibraryTest,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, FailRow>> {
 protected:
  test::Console console_;
};

TEST_P(FailToLoadOnuPortTypes, ClearsTheCount) {
  const auto& [family, row] = GetParam();
  const test::DefinitionFile file(FileOf(family, row.file));
  PortType* place = nullptr;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    *family.count = 9;
    *family.types = &place;
    test::Faults faults;
    faults.reads.FailFrom(row.failing_read, 1);
    faults.opens.FailFrom(row.failing_open, 1);

    EXPECT_EQ(family.read_all(file.path()), row.code);

    EXPECT_EQ(*family.count, 0u);
    EXPECT_EQ(*family.types, &place);
    *family.types = nullptr;
    EXPECT_EQ(console_.Text(), With(With(family.*row.text, "{code}", row.shown), "{n}", row.shown));
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, row.failing_open == 0 ? 1 : 0);
    ExpectOthersEmpty(family);
  }
}

FailRow TooMany(const char* name, const string& file, const string& shown) {
  return {name, file, -16, &PortTypeFamily::too_many, shown};
}
FailRow NoNumber(const char* name, const string& file, const string& code, int failing_read = 0,
                 int failing_open = 0) {
  return {name, file, -31, &PortTypeFamily::number_unreadable, code, failing_read, failing_open};
}

const FailRow kFails[] = {
    TooMany("OneTooMany", ManyTypes(31), "31"),
    TooMany("Negative", AnnounceOne("-1"), "-1"),
    TooMany("Above31Bits", AnnounceOne("2147483648"), "2147483647"),
    TooMany("Above32Bits", AnnounceOne("4294967297"), "2147483647"),
    TooMany("Below32Bits", AnnounceOne("-4294967295"), "-2147483648"),
    NoNumber("NoSection", kS1, "-1"),
    NoNumber("EmptyFile", "", "-1"),
    NoNumber("NoKey", "[{List}]\n{Entry}1=S1\n" + kS1, "-2"),
    NoNumber("KeyInASecondSection", "[{List}]\nX=1\n" + AnnounceOne("1"), "-2"),
    NoNumber("BrokenEntry", "[{List}]\nnonsense\n{Num}=1\n", "-14"),
    NoNumber("BrokenHeader", "[Broken\n" + AnnounceOne("1"), "-14"),
    NoNumber("EntryTooLong",
             "[{List}]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n{Num}=1\n", "-22"),
    NoNumber("ReadError", AnnounceOne("1"), "-12", 1),
    NoNumber("NotOpened", AnnounceOne("1"), "-10", 0, 1),
    // The section and the key that are shown are not looked up.
    NoNumber("SectionOfTheOltPonTypes",
             "[SupportedOltPonType]\nSupportedOltPonTypeNum=1\n{Num}=1\n", "-1"),
    NoNumber("SectionMisspelt",
             "[SupportOnuSpecialPortType]\nSupportOnuSpecialPortTypeNum=1\n{Num}=1\n", "-1"),
    NoNumber("OtherKeys",
             "[{List}]\nSupportedOltPonTypeNum=1\nSupportOnuSpecialPortTypeNum=1\n{Entry}1=S1\n",
             "-2"),
};
INSTANTIATE_TEST_SUITE_P(PortTypes, FailToLoadOnuPortTypes,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kFails)),
                         test::KindAndRow());

class LoadNoOnuPortTypes
    : public test::LibraryTest,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, test::ZeroRow>> {
 protected:
  test::Console console_;
};

TEST_P(LoadNoOnuPortTypes, LeavesNoArray) {
  const auto& [family, row] = GetParam();
  const test::DefinitionFile file(FileOf(family, AnnounceOne(row.text)));
  for (const int32_t debug : {0, 1}) {
    PortType* place = nullptr;
    ddDebugPrint = debug;
    *family.count = 9;
    *family.types = &place;
    test::Faults faults;
    EXPECT_EQ(family.read_all(file.path()), 0);
    EXPECT_EQ(*family.count, 0u);
    EXPECT_EQ(*family.types, nullptr);
    *family.types = nullptr;
    EXPECT_EQ(console_.Text(), family.none_announced);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, 1);
    ExpectOthersEmpty(family);
  }
  ddDebugPrint = 0;
  uint32_t is_supported = 77;
  uint32_t index = 77;
  EXPECT_EQ(family.by_name("N1", &is_supported, &index), -10);
  EXPECT_EQ(family.by_type(1, &is_supported, &index), -10);
}
INSTANTIATE_TEST_SUITE_P(PortTypes, LoadNoOnuPortTypes,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(test::kZeros)),
                         test::KindAndRow());

// ---- Every catalog ---------------------------------------------------------------

class OnuPortTypeLoader : public test::LibraryTest,
                          public testing::WithParamInterface<PortTypeFamily> {
 protected:
  test::Console console_;
};

TEST_P(OnuPortTypeLoader, MissingFile) {
  *GetParam().count = 9;
  EXPECT_EQ(GetParam().read_all("/nonexistent/device_definition.ini"), -31);
  EXPECT_EQ(console_.Text(), With(GetParam().number_unreadable, "{code}", "-10"));
  EXPECT_EQ(*GetParam().count, 0u);
}

TEST_P(OnuPortTypeLoader, NullPath) {
  PortType* place = nullptr;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    *GetParam().count = 9;
    *GetParam().types = &place;
    test::Faults faults;
    EXPECT_EQ(GetParam().read_all(nullptr), -2);
    EXPECT_EQ(*GetParam().count, 0u);
    EXPECT_EQ(*GetParam().types, &place);
    *GetParam().types = nullptr;
    EXPECT_EQ(console_.Text(), GetParam().no_path);
    EXPECT_EQ(faults.opens.count(), 0);
    EXPECT_EQ(faults.allocations.count(), 0);
    ExpectOthersEmpty(GetParam());
  }
}

// Neither a load that succeeds nor one that fails releases an earlier one's records.
TEST_P(OnuPortTypeLoader, ASecondLoadForgetsTheFirst) {
  const test::DefinitionFile three(FileOf(GetParam(), ThreeOnuPortTypes(kS1 + kS2 + kS3)));
  const test::DefinitionFile one(FileOf(GetParam(), AnnounceOne("1")));
  test::Faults faults;
  EXPECT_EQ(GetParam().read_all(three.path()), 0);
  EXPECT_EQ(GetParam().read_all(one.path()), 0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(faults.frees, 0);
  EXPECT_EQ(*GetParam().count, 1u);
  test::ExpectAndReleaseLost(faults, 4);
}

TEST_P(OnuPortTypeLoader, AFailedSecondLoadLeavesTheArray) {
  const test::DefinitionFile one(FileOf(GetParam(), AnnounceOne("1")));
  test::Faults faults;
  EXPECT_EQ(GetParam().read_all(one.path()), 0);
  PortType** const places = *GetParam().types;
  EXPECT_EQ(GetParam().read_all(nullptr), -2);
  EXPECT_EQ(console_.Text(), GetParam().no_path);
  EXPECT_EQ(*GetParam().count, 0u);
  EXPECT_EQ(*GetParam().types, places);
  EXPECT_EQ(faults.frees, 0);
  test::ExpectAndReleaseLost(faults, 1);
}

struct AskedRow {
  string asked;
  int32_t code;
  uint32_t index;
};

TEST_P(OnuPortTypeLoader, WhatIsLoadedIsFound) {
  const test::DefinitionFile file(
      FileOf(GetParam(), ThreeOnuPortTypes(kS1 + OnuPortTypeSection("S2", "2", k60) +
                                           OnuPortTypeSection("S3", "3", k59))));
  ASSERT_EQ(GetParam().read_all(file.path()), 0);
  EXPECT_EQ(console_.Text(), Console(GetParam(), {NameTooLong("61"), LeftOut("-33", "S2")}));
  uint32_t is_supported = 77;
  uint32_t index = 77;
  const AskedRow rows[] = {{"N1", 0, 0},    {k59, 0, 1},   {"n1", -32, 0},
                           {"N11", -32, 0}, {"N", -32, 0}, {k60, -33, 0}};
  for (const AskedRow& row : rows) {
    EXPECT_EQ(GetParam().by_name(row.asked.c_str(), &is_supported, &index), row.code) << row.asked;
    EXPECT_EQ(is_supported, row.code == 0 ? 1u : 0u) << row.asked;
    EXPECT_EQ(index, row.index) << row.asked;
  }
  EXPECT_EQ(GetParam().by_type(3, &is_supported, &index), 0);
  EXPECT_EQ(index, 1u);
  EXPECT_EQ(GetParam().by_type(2, &is_supported, &index), GetParam().unknown_type);  // left out
}
INSTANTIATE_TEST_SUITE_P(PortTypes, OnuPortTypeLoader, testing::ValuesIn(kPortTypeFamilies),
                         testing::PrintToStringParamName());

// One file has all four lists; every loader takes its own.
TEST(OnuPortTypeCatalogs, AreLoadedFromTheirOwnLists) {
  test::ResetTables();
  string text;
  for (const PortTypeFamily& family : kPortTypeFamilies) {
    const string section = string("S") + family.name;
    text += FileOf(family, AnnounceOnuPortTypes("1") + "{Entry}1=" + section + "\n") +
            OnuPortTypeSection(section, "1", family.name);
  }
  const test::DefinitionFile file(text);
  for (const PortTypeFamily& family : kPortTypeFamilies) {
    EXPECT_EQ(family.read_all(file.path()), 0) << family;
  }
  for (const PortTypeFamily& family : kPortTypeFamilies) {
    ASSERT_EQ(*family.count, 1u) << family;
    EXPECT_STREQ((*family.types)[0]->acName, family.name);
  }
  test::ResetTables();
}

}  // namespace
