// Loads of ONU types that end early.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/onu/onu_type_loads.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::Announce;
using test::ExpectedOnu;
using test::NoListKey;
using test::NoPorts;
using test::NoSection;
using test::OnuFaults;
using test::OnuList;
using test::OnuSection;
using test::Record;
using test::Section;
using test::WithSecond;

// ---- Nothing to load ----------------------------------------------------------

class LoadNoOnus : public test::OnuLoadTest, public testing::WithParamInterface<test::ZeroRow> {};

TEST_P(LoadNoOnus, ReportsAnEmptyListAndFindsNoMaximum) {
  for (const int32_t debug : {0, 1}) {
    for (const bool has_lan_types : {true, false}) {
      OnuFaults faults(Announce(GetParam().text), debug);
      const SupportedOnuLanType lan_types = gstSupportedOnuLanType;
      gstSupportedOnuLanType = has_lan_types ? lan_types : SupportedOnuLanType{};
      MarkTable();

      EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), 0);

      EXPECT_EQ(console_.Text(),
                "\r\nddReadAllSupportedOnuInformation ok! ulSupportedOnuTypeNum = 0");
      EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, 0u);
      EXPECT_EQ(gstSupportedOnuType.pOnuTypeArray, nullptr);
      test::ExpectMaxLan(0x7e7e, 0x6d6d);
      EXPECT_EQ(test::TheMaxLanSearch().calls, 0);
      EXPECT_EQ(faults.opens.count(), 1);
      EXPECT_EQ(faults.allocations.count(), 0);
      test::ExpectAllClosed(faults);
      gstSupportedOnuLanType = lan_types;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(OnuTypes, LoadNoOnus, testing::ValuesIn(test::kZeros),
                         testing::PrintToStringParamName());

// ---- No number ----------------------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  test::FaultPlan test::Faults::*failing = nullptr;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadOnus : public test::OnuLoadTest, public testing::WithParamInterface<FailRow> {};

TEST_P(FailToLoadOnus, ClearsTheCountOnly) {
  for (const int32_t debug : {0, 1}) {
    for (const bool has_lan_types : {true, false}) {
      OnuFaults faults(GetParam().file, debug);
      if (GetParam().failing != nullptr) {
        (faults.*GetParam().failing).FailFrom(1, 1);
      }
      const SupportedOnuLanType lan_types = gstSupportedOnuLanType;
      gstSupportedOnuLanType = has_lan_types ? lan_types : SupportedOnuLanType{};
      MarkTable();

      EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), GetParam().code);

      EXPECT_EQ(console_.Text(), GetParam().console);
      EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, 0u);
      EXPECT_EQ(gstSupportedOnuType.pOnuTypeArray, OldArray());
      test::ExpectMaxLan(0x7e7e, 0x6d6d);
      EXPECT_EQ(test::TheMaxLanSearch().calls, 0);
      EXPECT_EQ(faults.allocations.count(), 0);
      EXPECT_EQ(faults.opens.count(), 1);
      EXPECT_EQ(faults.closes, GetParam().failing == &test::Faults::opens ? 0 : 1);
      gstSupportedOnuType = {};
      gstSupportedOnuLanType = lan_types;
    }
  }
}

string TooMany(const string& number) {
  return "\r\nddReadAllSupportedOnuInformation err! ulSupportedOnuTypeNum = " + number +
         ", MAX_ONU_TYPE_NUM = 200";
}
string NoNumber(const string& code) {
  return "\r\nddReadAllSupportedOnuInformation err! iResult = " + code +
         ", section = SupportedOnuLanType, key = SupportedOnuLanTypeNum";
}

const FailRow kFails[] = {
    {"OneTooMany", Announce("201"), -21, TooMany("201")},
    {"OneTooManyListed", test::ManyOnus(201), -21, TooMany("201")},
    {"Negative", Announce("-1"), -21, TooMany("-1")},
    {"Largest", Announce("2147483647"), -21, TooMany("2147483647")},
    {"Above31Bits", Announce("2147483648"), -21, TooMany("2147483647")},
    {"Above32Bits", Announce("4294967297"), -21, TooMany("2147483647")},
    {"Below32Bits", Announce("-4294967295"), -21, TooMany("-2147483648")},
    {"NoSection", Section(1), -31, NoNumber("-1")},
    {"OnlyTheLanTypes", "[SupportedOnuLanType]\nSupportedOnuLanTypeNum=1\n", -31, NoNumber("-1")},
    {"NoKey", "[SupportedOnuType]\nSupportedOnuType1=S1\nSupportedOnuLanTypeNum=1\n" + Section(1),
     -31, NoNumber("-2")},
    {"BrokenEntry", "[SupportedOnuType]\nnonsense\nSupportedOnuTypeNum=1\n", -31, NoNumber("-14")},
    {"BrokenHeader", "[Broken\n" + Announce("1"), -31, NoNumber("-14")},
    {"EntryTooLong",
     "[SupportedOnuType]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') +
         "\nSupportedOnuTypeNum=1\n",
     -31, NoNumber("-22")},
    {"NotOpened", Announce("1"), -31, NoNumber("-10"), &test::Faults::opens},
    {"NotSought", Announce("1"), -31, NoNumber("-12"), &test::Faults::seeks},
    {"NotRead", Announce("1"), -31, NoNumber("-12"), &test::Faults::reads},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, FailToLoadOnus, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

using OnuLoadFailure = test::OnuLoadTest;

TEST_F(OnuLoadFailure, NullPath) {
  for (const int32_t debug : {0, 1}) {
    OnuFaults faults("", debug);
    MarkTable();
    EXPECT_EQ(ddReadAllSupportedOnuInformation(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddReadAllSupportedOnuInformation err!, strFileName = 0x0");
    EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, 0u);
    EXPECT_EQ(gstSupportedOnuType.pOnuTypeArray, OldArray());
    test::ExpectMaxLan(0x7e7e, 0x6d6d);
    EXPECT_EQ(faults.opens.count(), 0);
    gstSupportedOnuType = {};
  }
}

// ---- No array, of its own or of the LAN port types ----------------------------

struct NoArrayRow {
  const char* name;
  bool has_own;
  bool has_lan_types;
  uint32_t lan_types;
  friend std::ostream& operator<<(std::ostream& out, const NoArrayRow& row) {
    return out << row.name;
  }
};

class LoadWithoutArray : public test::OnuLoadTest,
                         public testing::WithParamInterface<NoArrayRow> {};

TEST_P(LoadWithoutArray, EndsBeforeAnyOnuIsRead) {
  for (const int32_t debug : {0, 1}) {
    OnuFaults faults(WithSecond(Section(2)), debug);
    if (!GetParam().has_own) {
      faults.allocations.FailFrom(1, 1);
    }
    const SupportedOnuLanType lan_types = gstSupportedOnuLanType;
    gstSupportedOnuLanType = {GetParam().lan_types,
                              GetParam().has_lan_types ? lan_types.pOnuLanTypeArray : nullptr};
    MarkTable();

    EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), -27);

    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllSupportedOnuInformation->malloc err! pOnuLanTypeArray = 0x0");
    EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, 0u);
    EXPECT_EQ(gstSupportedOnuType.pOnuTypeArray, nullptr);
    test::ExpectMaxLan(0x7e7e, 0x6d6d);
    EXPECT_EQ(test::TheMaxLanSearch().calls, 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.OwnBlocks(), 0u);
    gstSupportedOnuLanType = lan_types;
  }
}

const NoArrayRow kNoArrays[] = {
    {"NoMemory", false, true, 3},
    {"NoLanTypes", true, false, 0},
    {"NoArrayOfLanTypesButACount", true, false, 3},
    {"Neither", false, false, 0},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, LoadWithoutArray, testing::ValuesIn(kNoArrays),
                         testing::PrintToStringParamName());

TEST_F(OnuLoadFailure, AnArrayOfNoLanTypesWillDo) {
  OnuFaults faults(OnuList({"A"}) + OnuSection("A", "65", "A", {{"GPON"}}));
  gstSupportedOnuLanType.ulSupportedOnuLanTypeNum = 0;
  EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), 0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, 1u);
  gstSupportedOnuLanType.ulSupportedOnuLanTypeNum = 3;
  ExpectOnus(faults, 1, {{65, "A", {{"GPON"}}}});
}

// ---- Abandoned loads ----------------------------------------------------------

struct AbandonRow {
  const char* name;
  string file;
  size_t announced;
  std::vector<ExpectedOnu> onus;
  string console;
  friend std::ostream& operator<<(std::ostream& out, const AbandonRow& row) {
    return out << row.name;
  }
};

class AbandonOnus : public test::OnuLoadTest, public testing::WithParamInterface<AbandonRow> {
 protected:
  void ExpectToAbandon(const AbandonRow& row, int32_t debug);
};

void AbandonOnus::ExpectToAbandon(const AbandonRow& row, int32_t debug) {
  OnuFaults faults(row.file, debug);
  MarkTable();

  EXPECT_EQ(ddReadAllSupportedOnuInformation(OnuFaults::kPath), -31);

  EXPECT_EQ(console_.Text(), row.console);
  EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, 9u);  // untouched
  test::ExpectMaxLan(0x7e7e, 0x6d6d);
  EXPECT_EQ(test::TheMaxLanSearch().calls, 0);
  test::ExpectAllClosed(faults);
  // The ONU types stay where they are, and only the count does not tell of them.
  gstSupportedOnuType.ulSupportedOnuTypeNum = static_cast<uint32_t>(row.onus.size());
  ExpectOnus(faults, row.announced, row.onus);
  test::ExpectNoLeak(faults);
  gstSupportedOnuType.ulSupportedOnuTypeNum = 0;
  size_t blocks = 0;
  for (const ExpectedOnu& onu : row.onus) {
    blocks += test::BlocksOf(onu);
  }
  test::ExpectAndReleaseLost(faults, blocks);
}

TEST_P(AbandonOnus, LosesTheOnuTypesReadSoFar) {
  for (const int32_t debug : {0, 1}) {
    ExpectToAbandon(GetParam(), debug);
  }
}

const test::Names kS123 = {"S1", "S2", "S3"};
const string kFaulty2 = OnuSection("S2", "2", "N2", {});
const string kNoPon = NoPorts("Pon", "-17", "S2", " ok! ulTotalPonNum = 0");

const AbandonRow kAbandons[] = {
    {"FirstSectionMissing", OnuList(kS123) + Section(2) + Section(3), 3, {}, NoSection("-1", "S1")},
    {"SecondSectionMissing",
     OnuList(kS123) + Section(1) + Section(3),
     3,
     {Record(1)},
     NoSection("-1", "S2")},
    {"LastSectionMissing",
     OnuList(kS123) + Section(1) + Section(2),
     3,
     {Record(1), Record(2)},
     NoSection("-1", "S3")},
    {"SectionInFrontOfTheList", Section(1) + OnuList({"S1"}), 1, {}, NoSection("-1", "S1")},
    {"SecondSectionInFrontOfTheList",
     Section(2) + OnuList(kS123) + Section(1) + Section(3),
     3,
     {Record(1)},
     NoSection("-1", "S2")},
    {"TwoInReverseOrder",
     OnuList({"S1", "S2"}) + Section(2) + Section(1),
     2,
     {Record(1)},
     NoSection("-1", "S2")},
    {"LastTwoInReverseOrder",
     OnuList(kS123) + Section(1) + Section(3) + Section(2),
     3,
     {Record(1), Record(2)},
     NoSection("-1", "S3")},
    {"SameSectionAgainAfterAnother",
     OnuList({"S1", "S2", "S1"}) + Section(1) + Section(2),
     3,
     {Record(1), Record(2)},
     NoSection("-1", "S1")},
    {"EntryIsEmpty", OnuList({"S1", ""}) + Section(1), 2, {Record(1)}, NoSection("-1", "")},
    {"TypeMissing", WithSecond("[S2]\nName=N2\nPonNum=0\n"), 3, {Record(1)}, NoSection("-2", "S2")},
    {"TypeInTheNextSectionOfTheName",
     WithSecond("[S2]\nName=N2\n" + Section(2)),
     3,
     {Record(1)},
     NoSection("-2", "S2")},
    {"BrokenEntryBeforeTheType",
     WithSecond("[S2]\nnonsense\nType=2\n"),
     3,
     {Record(1)},
     NoSection("-14", "S2")},
    {"BrokenHeaderBetween",
     WithSecond("[Broken\n" + Section(2)),
     3,
     {Record(1)},
     NoSection("-14", "S2")},
    {"EntryBeforeTheTypeTooLong",
     WithSecond("[S2]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') + "\nType=2\n"),
     3,
     {Record(1)},
     NoSection("-22", "S2")},
    {"AfterAFaultyOne",
     OnuList(kS123) + Section(1) + Section(3) + kFaulty2,
     3,
     {Record(1)},
     kNoPon + NoSection("-1", "S3")},
    {"AfterAMissingEntry",
     "[SupportedOnuType]\nSupportedOnuTypeNum=3\nSupportedOnuType2=S2\nSupportedOnuType3=S1\n" +
         Section(1) + Section(2),
     3,
     {Record(2)},
     NoListKey("-2", "SupportedOnuType1") + NoSection("-1", "S1")},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, AbandonOnus, testing::ValuesIn(kAbandons),
                         testing::PrintToStringParamName());

}  // namespace
