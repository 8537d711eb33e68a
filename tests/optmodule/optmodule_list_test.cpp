// Loading the list: how many modules it announces, and where they are found.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "optmodule/optmodule_files.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"
#include "sys_context/cfgfile.h"

namespace {

using std::string;
using test::FakePlatform;
using test::ModuleFaults;
using test::ModuleList;
using test::ModuleSection;
using test::Names;
using test::OptModule;
using test::optical::BadPathCount;
using test::optical::Left;
using test::optical::NoEntry;
using test::optical::NoNumber;
using test::optical::NoPath;
using test::optical::NoSection;
using test::optical::PathNotRead;
using test::optical::PathTooLong;

class OptModuleListTest : public test::OptModuleTest {};

string Section(const string& number) {
  return ModuleSection("S" + number, "1", number, "7", {"1,2,3," + number});
}
OptModule Record(int32_t number) {
  return {1, static_cast<uint32_t>(number), 7, {{1, 2, 3, number}}};
}

// ---- Loads --------------------------------------------------------------------

struct LoadRow {
  const char* name;
  string file;
  size_t announced;
  std::vector<OptModule> modules;
  Names log = {};
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadOptModules : public OptModuleListTest, public testing::WithParamInterface<LoadRow> {};

TEST_P(LoadOptModules, KeepsWhatReadsWell) {
  Twice([&](int32_t debug) {
    ModuleFaults faults(GetParam().file, debug);
    EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), 0);
    test::ExpectModules(faults, GetParam().announced, GetParam().modules);
    EXPECT_EQ(FakePlatform::TakeLog(), GetParam().log);
    test::ExpectAllClosed(faults);
  });
}

const Names kS123 = {"S1", "S2", "S3"};
// A list of three modules, the second of which is this.
string WithSecond(const string& second) {
  return ModuleList(kS123) + Section("1") + second + Section("3");
}
const std::vector<OptModule> kAllThree = {Record(1), Record(2), Record(3)};
const std::vector<OptModule> kWithoutSecond = {Record(1), Record(3)};
const string kDecoy1 = ModuleSection("S1", "2", "91", "9");
const string kDecoy2 = ModuleSection("S2", "2", "92", "9");
const string kDecoy3 = ModuleSection("S3", "2", "93", "9");

string Announce(const string& count) {
  return "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=" + count +
         "\nSupportedOptModuleInfo1=S1\nSupportedOptModuleInfo2=S2\n" + Section("1") + Section("2");
}

string ManyModules(int count) {
  Names names;
  string sections;
  for (int i = 1; i <= count; ++i) {
    names.push_back("S" + std::to_string(i));
    sections += Section(std::to_string(i));
  }
  return ModuleList(names) + sections;
}
std::vector<OptModule> ManyRecords(int32_t count) {
  std::vector<OptModule> modules;
  for (int32_t i = 1; i <= count; ++i) {
    modules.push_back(Record(i));
  }
  return modules;
}

const LoadRow kLoads[] = {
    {"Three", WithSecond(Section("2")), 3, kAllThree},
    {"One", ModuleList({"S1"}) + Section("1"), 1, {Record(1)}},
    {"ListSectionNotFirst", "; modules\n[X]\nPortKind=9\n" + WithSecond(Section("2")), 3,
     kAllThree},
    {"CarriageReturns", test::With(WithSecond(Section("2")), "\n", "\r\n"), 3, kAllThree},
    {"SectionsInFrontOfTheListAreNotSeen", kDecoy3 + kDecoy2 + kDecoy1 + WithSecond(Section("2")),
     3, kAllThree},
    {"SectionsInFrontOfTheModuleBeforeAreNotSeen",
     ModuleList(kS123) + kDecoy3 + kDecoy2 + Section("1") + kDecoy3 + Section("2") + Section("3"),
     3, kAllThree},
    {"FirstSectionBehindTheModuleBeforeWins", WithSecond(Section("2") + kDecoy1 + kDecoy2), 3,
     kAllThree},
    {"FirstListWins",
     ModuleList({"S1"}) + ModuleList(kS123) + Section("1") + Section("2") + Section("3"),
     1,
     {Record(1)}},
    {"OtherSectionsBetween",
     ModuleList(kS123) + "[X]\n" + Section("1") + "[Y]\nnonsense\n" + Section("2") + Section("3"),
     3, kAllThree},
    {"BrokenHeaderBehindTheLast", WithSecond(Section("2")) + "[Broken\n", 3, kAllThree},
    {"SameSectionTwice",
     ModuleList({"S1", "S1", "S2"}) + Section("1") + Section("2"),
     3,
     {Record(1), Record(1), Record(2)}},
    {"WithoutPaths",
     WithSecond(ModuleSection("S2", "3", "2", "8", {"1,2,3,4"}, "5")),
     3,
     {Record(1), {3, 2, 8, {}}, Record(3)},
     {BadPathCount("5")}},
    {"LongName",
     test::With(ModuleList({"S1"}) + Section("1"), "S1", string(480, 'S')),
     1,
     {Record(1)}},
    {"MoreListedThanAnnounced", Announce("1"), 1, {Record(1)}},
    {"CountWithText", Announce(" +2x"), 2, {Record(1), Record(2)}},
    {"AsManyAsPossible", ManyModules(50), 50, ManyRecords(50)},
};
INSTANTIATE_TEST_SUITE_P(Good, LoadOptModules, testing::ValuesIn(kLoads),
                         testing::PrintToStringParamName());

// ---- Modules that are left out --------------------------------------------------

const Names kNoPortType = {NoNumber("-2", "S2", "PortType"), Left("-2", "S2")};
const string k41(41, '1');

const LoadRow kPartly[] = {
    {"EntryMissing",
     test::Replaced(WithSecond(Section("2")), "SupportedOptModuleInfo2=S2\n", ""),
     3,
     kWithoutSecond,
     {NoEntry("-2", "2")}},
    {"NonsenseInTheList",
     test::Replaced(WithSecond(Section("2")), "SupportedOptModuleInfo2=", "nonsense\nX="),
     3,
     {Record(1)},
     {NoEntry("-14", "2"), NoEntry("-14", "3")}},
    {"FewerListedThanAnnounced",
     Announce("4"),
     4,
     {Record(1), Record(2)},
     {NoEntry("-2", "3"), NoEntry("-2", "4")}},
    {"AllMissing",
     "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=2\n",
     2,
     {},
     {NoEntry("-2", "1"), NoEntry("-2", "2")}},
    {"LastOf50Missing",
     test::Replaced(ManyModules(50), "[S50]", "[X]"),
     50,
     ManyRecords(49),
     {NoSection("-1", "S50")}},
    {"EmptyEntry",
     test::Replaced(WithSecond(Section("2")), "SupportedOptModuleInfo2=S2",
                    "SupportedOptModuleInfo2="),
     3,
     kWithoutSecond,
     {NoSection("-1", "")}},
    // A section that is not found moves nothing: the third is found behind the first.
    {"SectionMissing", WithSecond(""), 3, kWithoutSecond, {NoSection("-1", "S2")}},
    {"FirstSectionMissing",
     ModuleList(kS123) + Section("2") + Section("3"),
     3,
     {Record(2), Record(3)},
     {NoSection("-1", "S1")}},
    {"SectionOfOtherCase",
     WithSecond(ModuleSection("s2", "1", "2", "7")),
     3,
     kWithoutSecond,
     {NoSection("-1", "S2")}},
    {"SectionInFrontOfTheListOnly",
     Section("2") + WithSecond(""),
     3,
     kWithoutSecond,
     {NoSection("-1", "S2")}},
    {"SectionInFrontOfTheModuleBefore",
     ModuleList(kS123) + Section("2") + Section("1") + Section("3"),
     3,
     kWithoutSecond,
     {NoSection("-1", "S2")}},
    {"SectionsInReverse",
     ModuleList(kS123) + Section("3") + Section("2") + Section("1"),
     3,
     {Record(1)},
     {NoSection("-1", "S2"), NoSection("-1", "S3")}},
    // Nor does one without kind.
    {"KindMissing",
     ModuleList(kS123) + Section("1") + Section("3") + "[S2]\nPortType=2\n",
     3,
     kWithoutSecond,
     {NoSection("-2", "S2")}},
    {"KindBehindNonsense",
     ModuleList(kS123) + Section("1") + Section("3") + "[S2]\nnonsense\nPortKind=2\n",
     3,
     kWithoutSecond,
     {NoSection("-14", "S2")}},
    {"SectionWithoutKindInFrontOfTheSectionWithOne",
     WithSecond("[S2]\nX=1\n" + Section("2")),
     3,
     kWithoutSecond,
     {NoSection("-2", "S2")}},
    {"BrokenHeaderInFront",
     WithSecond("[Broken\n" + Section("2")),
     3,
     {Record(1)},
     {NoSection("-14", "S2"), NoSection("-14", "S3")}},
    // A module that does not read well has moved it.
    {"ModuleReadsBadly", WithSecond("[S2]\nPortKind=1\n"), 3, kWithoutSecond, kNoPortType},
    {"NextInFrontOfTheModuleThatReadsBadly",
     ModuleList(kS123) + Section("1") + Section("3") + "[S2]\nPortKind=1\n",
     3,
     {Record(1)},
     {kNoPortType[0], kNoPortType[1], NoSection("-1", "S3")}},
    {"DecoyInFrontOfTheModuleThatReadsBadly",
     ModuleList(kS123) + Section("1") + kDecoy3 + "[S2]\nPortKind=1\n" + Section("3"), 3,
     kWithoutSecond, kNoPortType},
    {"PathMissing",
     WithSecond(ModuleSection("S2", "1", "2", "7", {"1,2,3,4"}, "2")),
     3,
     kWithoutSecond,
     {NoPath("-2", "S2", "Path2"), Left("-6", "S2")}},
    {"PathTooLong",
     WithSecond(ModuleSection("S2", "1", "2", "7", {k41})),
     3,
     kWithoutSecond,
     {PathTooLong(k41), PathNotRead("-33", k41), Left("-7", "S2")}},
};
INSTANTIATE_TEST_SUITE_P(Partly, LoadOptModules, testing::ValuesIn(kPartly),
                         testing::PrintToStringParamName());

// ---- Where lookups start ------------------------------------------------------

// Lines are counted from where a lookup starts: the header is the first.
TEST_F(OptModuleListTest, EntriesAreReadFromTheListSectionOn) {
  ModuleFaults faults("[X]\n;\n[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=1\n");
  EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), 0);
  EXPECT_EQ(CFG_section_line_no, 1);
  EXPECT_EQ(FakePlatform::TakeLog(), Names{NoEntry("-2", "1")});
}

TEST_F(OptModuleListTest, FirstModuleIsSearchedFromTheListSectionOn) {
  ModuleFaults faults("[X]\n;\n" + ModuleList({"S1"}) + "[S1]\nX=1\n");
  EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), 0);
  EXPECT_EQ(CFG_section_line_no, 4);
  EXPECT_EQ(FakePlatform::TakeLog(), Names{NoSection("-2", "S1")});
}

TEST_F(OptModuleListTest, NextModuleIsSearchedFromTheOneBeforeOn) {
  ModuleFaults faults("[X]\n" + ModuleList({"S1", "S2"}) + Section("1") + "[S2]\nX=1\n");
  EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), 0);
  EXPECT_EQ(CFG_section_line_no, 7);
  EXPECT_EQ(FakePlatform::TakeLog(), Names{NoSection("-2", "S2")});
}

TEST_F(OptModuleListTest, ModuleIsReadFromItsOwnSectionOn) {
  ModuleFaults faults("[X]\n" + ModuleList({"S1"}) + Section("1"));
  EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), 0);
  EXPECT_EQ(CFG_section_line_no, 1);
  EXPECT_EQ(CFG_key_line_no, 6);
  EXPECT_EQ(FakePlatform::TakeLog(), Names());
}

}  // namespace
