// Loading the ONU types: what is kept, and the largest number of LAN ports.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/onu/onu_type_loads.h"
#include "support/text.h"

namespace {

using std::string;
using test::Decoy;
using test::ExpectedOnu;
using test::kNoOnuLeft;
using test::Left;
using test::NoListKey;
using test::NoOwnKey;
using test::NoPorts;
using test::OnuFaults;
using test::OnuList;
using test::OnuSection;
using test::Record;
using test::Section;
using test::WithSecond;

struct LoadRow {
  const char* name;
  string file;
  size_t announced;
  std::vector<ExpectedOnu> onus;
  string console = "";
  size_t lost = 0;  // copies of ports that are not released
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadOnus : public test::OnuLoadTest, public testing::WithParamInterface<LoadRow> {};

TEST_P(LoadOnus, KeepsWhatReadsWell) {
  for (const int32_t debug : {0, 1}) {
    test::TheMaxLanSearch() = {};
    OnuFaults faults(GetParam().file, debug);
    MarkTable();

    EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), 0);

    EXPECT_EQ(console_.Text(), GetParam().console);
    ASSERT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, GetParam().onus.size());
    ExpectOnus(faults, GetParam().announced, GetParam().onus);
    test::ExpectAndReleaseLostPorts(faults, GetParam().lost);
    test::ExpectNoLeak(faults);
    test::ExpectAllClosed(faults);
    EXPECT_EQ(test::TheMaxLanSearch().calls, 1);
    EXPECT_EQ(test::TheMaxLanSearch().count, GetParam().onus.size());
  }
}

const string k59(59, 'n');
const string k60(60, 'n');
const std::vector<ExpectedOnu> kAllThree = {Record(1), Record(2), Record(3)};
const std::vector<ExpectedOnu> kWithoutSecond = {Record(1), Record(3)};

const LoadRow kLoads[] = {
    {"One", OnuList({"S1"}) + Section(1), 1, {Record(1)}},
    {"Three", WithSecond(Section(2)), 3, kAllThree},
    {"ListSectionNotFirst", "; types\n[X]\nType=9\n" + WithSecond(Section(2)), 3, kAllThree},
    {"SectionsInFrontOfTheListAreNotSeen",
     Decoy("S3") + Decoy("S2") + Decoy("S1") + WithSecond(Section(2)), 3, kAllThree},
    {"SectionsInFrontOfTheOneBeforeAreNotSeen",
     OnuList({"S1", "S2", "S3"}) + Decoy("S3") + Decoy("S2") + Section(1) + Decoy("S3") +
         Section(2) + Section(3),
     3, kAllThree},
    {"FirstSectionBehindTheOneBeforeWins", WithSecond(Section(2) + Decoy("S1") + Decoy("S2")), 3,
     kAllThree},
    {"OtherSectionsBetween",
     OnuList({"S1", "S2", "S3"}) + "[X]\n" + Section(1) + "[Y]\nnonsense\n" + Section(2) +
         "[Z]\nType=5\n" + Section(3),
     3, kAllThree},
    {"FirstListWins",
     OnuList({"S1"}) + OnuList({"S1", "S2"}) + Section(1) + Section(2),
     1,
     {Record(1)}},
    {"ListInFrontOfALaterOne",
     OnuList({"S1", "S2"}) + Section(1) + OnuList({"S1", "S3"}) + Section(2) + Section(3),
     2,
     {Record(1), Record(2)}},
    {"NumberWithText", test::Announce(" +1x"), 1, {Record(1)}},
    {"MoreListedThanAnnounced", test::Announce("1"), 1, {Record(1)}},
    {"AsManyAsPossible", test::ManyOnus(200), 200, test::ManyRecords(200)},
    {"SameSectionTwice",
     OnuList({"S1", "S1", "S2"}) + Section(1) + Section(2),
     3,
     {Record(1), Record(1), Record(2)}},
    {"SameTypeTwice",
     WithSecond(OnuSection("S2", "1", "Other", {{"GPON"}})),
     3,
     {Record(1), {1, "Other", {{"GPON"}}}, Record(3)}},
    {"TypeIsText",
     WithSecond(OnuSection("S2", "G", "N2", {{"GPON"}})),
     3,
     {Record(1), {0, "N2", {{"GPON"}}}, Record(3)}},
    {"LongestName",
     WithSecond(OnuSection("S2", "2", k59, {{"GPON"}})),
     3,
     {Record(1), {2, k59, {{"GPON"}}}, Record(3)}},
};
INSTANTIATE_TEST_SUITE_P(Good, LoadOnus, testing::ValuesIn(kLoads),
                         testing::PrintToStringParamName());

// The section of an ONU type that ends behind these keys.
string Second(const string& keys) {
  return WithSecond("[S2]\nType=2\n" + keys);
}
const string kNoPon = NoPorts("Pon", "-17", "S2", " ok! ulTotalPonNum = 0");
string Missing(const string& key) {
  return " err! iResult = -2, section = S2, key = " + key;
}

const LoadRow kPartialLoads[] = {
    {"ListEntryMissing",
     test::Replaced(WithSecond(Section(2)), "SupportedOnuType2=", "SupportedOnuType_2="), 3,
     kWithoutSecond, NoListKey("-2", "SupportedOnuType2")},
    {"FirstListEntryMissing",
     "[SupportedOnuType]\nSupportedOnuTypeNum=2\nSupportedOnuType2=S2\n" + Decoy("S1") + Section(2),
     2,
     {Record(2)},
     NoListKey("-2", "SupportedOnuType1")},
    {"AllListEntriesMissing",
     "[SupportedOnuType]\nSupportedOnuTypeNum=2\n" + Section(1),
     2,
     {},
     NoListKey("-2", "SupportedOnuType1") + NoListKey("-2", "SupportedOnuType2") + kNoOnuLeft},
    {"FewerListedThanAnnounced",
     test::Announce("3"),
     3,
     {Record(1), Record(2)},
     NoListKey("-2", "SupportedOnuType3")},
    {"BrokenEntryInTheList",
     "[SupportedOnuType]\nSupportedOnuTypeNum=2\nSupportedOnuType1=S1\nnonsense\n"
     "SupportedOnuType2=S2\n" +
         Section(1) + Section(2),
     2,
     {Record(1)},
     NoListKey("-14", "SupportedOnuType2")},
    {"NameMissing", Second("PonNum=1\nNameKeyPon1=GPON\n"), 3, kWithoutSecond,
     NoOwnKey("-2", "S2", "Speed")},
    {"NameTooLong", WithSecond(OnuSection("S2", "2", k60, {{"GPON"}})), 3, kWithoutSecond,
     "\r\nddReadOneSupportedOnuInformation err! ulNameLen = 61" + Left("-33", "S2")},
    {"NoPonPort", WithSecond(OnuSection("S2", "2", "N2", {})), 3, kWithoutSecond, kNoPon},
    {"FivePonPortsAndNoLanNum",
     Second("Name=N2\nPonNum=5\n" + test::Numbered("NameKeyPon", test::Names(5, "GPON"))), 3,
     kWithoutSecond, NoPorts("Lan", "-31", "S2", Missing("LanPortNum")), 5},
    {"SearchGoesOnFromAFaultyOne",
     OnuList({"S1", "S2", "S3"}) + Section(1) + Decoy("S3") + OnuSection("S2", "2", "N2", {}) +
         Section(3),
     3, kWithoutSecond, kNoPon},
    {"FaultyOneTwice",
     OnuList({"S2", "S2", "S3"}) + OnuSection("S2", "2", "N2", {}) + Section(3),
     3,
     {Record(3)},
     kNoPon + kNoPon},
    {"AllFaulty", OnuList({"S2"}) + OnuSection("S2", "2", "N2", {}), 1, {}, kNoPon + kNoOnuLeft},
};
INSTANTIATE_TEST_SUITE_P(Partial, LoadOnus, testing::ValuesIn(kPartialLoads),
                         testing::PrintToStringParamName());

// ---- Most LAN ports -----------------------------------------------------------

using OnuLoad = test::OnuLoadTest;

string Lan(const string& section, const string& type, size_t ports) {
  return OnuSection(section, type, section, {{"GPON"}, test::Names(ports, "GE")});
}

TEST_F(OnuLoad, FindsMostLanPorts) {
  OnuFaults faults(OnuList({"A", "B", "C", "D"}) + Lan("A", "65", 4) + Lan("B", "66", 8) +
                   Lan("C", "67", 8) + Lan("D", "68", 0));
  MarkTable();
  EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), 0);
  EXPECT_EQ(console_.Text(), "");
  test::ExpectMaxLan(66, 8);
}

TEST_F(OnuLoad, FindsMostLanPortsAmongThoseThatAreKept) {
  OnuFaults faults(OnuList({"A", "B", "C"}) + Lan("A", "65", 4) +
                   test::Replaced(Lan("B", "66", 8), "PotsPortNum", "Other") + Lan("C", "67", 2));
  EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), 0);
  EXPECT_EQ(console_.Text(),
            NoPorts("Pots", "-31", "B", " err! iResult = -2, section = B, key = PotsPortNum"));
  test::ExpectMaxLan(65, 4);
}

TEST_F(OnuLoad, FindsNoLanPort) {
  OnuFaults faults(OnuList({"A", "B"}) + Lan("A", "65", 0) + Lan("B", "66", 0));
  MarkTable();
  EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), 0);
  EXPECT_EQ(console_.Text(), "");
  test::ExpectMaxLan(0, 0);
}

TEST_F(OnuLoad, TheSearchForMostLanPortsFails) {
  for (const int32_t code : {-77, -21, 3}) {
    for (const int32_t debug : {0, 1}) {
      test::TheMaxLanSearch() = {0, code, 0};
      OnuFaults faults(WithSecond(Section(2)), debug);
      EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), code);
      EXPECT_EQ(console_.Text(),
                "\r\nnddReadAllSupportedOnuInformation->ddFindSupportedOnuMaxLanNum err!");
      EXPECT_EQ(test::TheMaxLanSearch().calls, 1);
      EXPECT_EQ(test::TheMaxLanSearch().count, 3u);
      ExpectOnus(faults, 3, kAllThree);
      EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, 3u);
      test::ExpectMaxLan(0, 0);
      test::ExpectNoLeak(faults);
    }
  }
}

// ---- A second load ------------------------------------------------------------

TEST_F(OnuLoad, ASecondLoadForgetsTheFirst) {
  OnuFaults faults(WithSecond(Section(2)));
  ASSERT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), 0);
  const size_t first = faults.OwnBlocks();
  EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), 0);
  ExpectOnus(faults, 3, kAllThree);
  EXPECT_EQ(faults.frees, 0);
  test::ExpectAndReleaseLost(faults, first);
}

}  // namespace
