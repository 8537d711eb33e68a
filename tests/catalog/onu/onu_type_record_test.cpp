// One ONU type: reading it from its own section.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/onu/onu_type_files.h"
#include "support/null_arguments.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::ExpectedOnu;
using test::Names;
using test::OnuFaults;
using test::OnuSection;
using test::PortNames;

OnuInformation* const kUntouched = reinterpret_cast<OnuInformation*>(uintptr_t{0x1234});
const string k59(59, 'n');
const string k60(60, 'n');
const PortNames kOnePon = {{"GPON"}};
const PortNames kSome = {{"GPON", "XGSPON"}, {"GE", "FE", "GE"}, {"FXS"}, {"WLAN", "E1"}};

class OnuRecordTest : public test::LibraryTest {
 protected:
  // Releases an ONU type that has no list at its limit.
  void ExpectToRelease(const OnuFaults& faults, OnuInformation* onu) {
    EXPECT_EQ(ddFreeOneOnuAllObj(onu), 0);
    EXPECT_EQ(console_.Text(), "");
    EXPECT_EQ(faults.OwnBlocks(), 0u);
  }

  test::Console console_;
};

// ---- An ONU type that reads well ----------------------------------------------

struct ReadRow {
  const char* name;
  string file;
  ExpectedOnu onu;
  friend std::ostream& operator<<(std::ostream& out, const ReadRow& row) { return out << row.name; }
};

class ReadOnu : public OnuRecordTest, public testing::WithParamInterface<ReadRow> {};

TEST_P(ReadOnu, HandsOverARecord) {
  const ExpectedOnu& expected = GetParam().onu;
  for (const int32_t debug : {0, 1}) {
    OnuFaults faults(GetParam().file, debug);
    OnuInformation* onu = kUntouched;

    ASSERT_EQ(ddReadOneSupportedOnuInformation(OnuFaults::kPath, "Sec", 0, &onu), 0);

    EXPECT_EQ(console_.Text(), "");
    test::ExpectOnu(faults, onu, expected);
    EXPECT_EQ(faults.OwnBlocks(), test::BlocksOf(expected));
    EXPECT_EQ(faults.opens.count(), test::LookupsOf(expected));
    test::ExpectAllClosed(faults);
    ExpectToRelease(faults, onu);
  }
}

string Sec(const string& type, const string& name = "N") {
  return OnuSection("Sec", type, name, kSome);
}
ExpectedOnu SecOnu(uint32_t type, const string& name = "N") {
  return {type, name, kSome};
}

const ReadRow kReads[] = {
    {"Plain", Sec("7"), SecOnu(7)},
    {"OnePonPortOnly", OnuSection("Sec", "7", "N", kOnePon), {7, "N", kOnePon}},
    {"LanPorts", OnuSection("Sec", "7", "N", {{"GPON"}, {"GE"}}), {7, "N", {{"GPON"}, {"GE"}}}},
    {"PotsPorts",
     OnuSection("Sec", "7", "N", {{"GPON"}, {}, {"FXO"}}),
     {7, "N", {{"GPON"}, {}, {"FXO"}}}},
    {"SpecialPorts",
     OnuSection("Sec", "7", "N", {{"GPON"}, {}, {}, {"E1"}}),
     {7, "N", {{"GPON"}, {}, {}, {"E1"}}}},
    {"KeysInAnyOrder",
     "[Other]\nType=9\n[Sec]\nNameKeySpecialPort1=E1\nSpecialPortNum=1\nNameKeyPotsPort1=FXS\n"
     "PotsPortNum=1\nNameKeyLanPort1=GE\nLanPortNum=1\nNameKeyPon1=GPON\nPonNum=1\nSpeed=8\n"
     "Name=N\nType=7\n",
     {7, "N", {{"GPON"}, {"GE"}, {"FXS"}, {"E1"}}}},
    {"FirstKeyWins",
     Sec("7") + "Type=8\nName=B\nPonNum=0\nLanPortNum=0\nPotsPortNum=0\nSpecialPortNum=0\n",
     SecOnu(7)},
    {"FirstSectionWins", Sec("7") + OnuSection("Sec", "8", "B", kOnePon), SecOnu(7)},
    {"NameEmpty", Sec("1", ""), SecOnu(1, "")},
    {"NameWithBlanks", Sec("1", "two words"), SecOnu(1, "two words")},
    {"NameLongest", Sec("1", k59), SecOnu(1, k59)},
    {"MostPortsThatAreReleased",
     OnuSection("Sec", "1", "N",
                {Names(4, "GPON"), Names(99, "GE"), Names(99, "FXS"), Names(99, "E1")}),
     {1, "N", {Names(4, "GPON"), Names(99, "GE"), Names(99, "FXS"), Names(99, "E1")}}},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, ReadOnu, testing::ValuesIn(kReads),
                         testing::PrintToStringParamName());

std::vector<ReadRow> TypeReads() {
  std::vector<ReadRow> rows;
  for (const test::TypeRow& row : test::kTypes) {
    rows.push_back({row.name, Sec(row.text), SecOnu(row.type)});
  }
  return rows;
}
INSTANTIATE_TEST_SUITE_P(Types, ReadOnu, testing::ValuesIn(TypeReads()),
                         testing::PrintToStringParamName());

TEST_F(OnuRecordTest, AsManyPortsAsPossible) {
  const PortNames most = {Names(5, "GPON"), Names(100, "GE"), Names(100, "FXS"), Names(100, "E1")};
  OnuFaults faults(OnuSection("Sec", "1", "N", most));
  OnuInformation* onu = nullptr;
  ASSERT_EQ(ddReadOneSupportedOnuInformation(OnuFaults::kPath, "Sec", 0, &onu), 0);
  test::ExpectOnu(faults, onu, {1, "N", most});
  EXPECT_EQ(ddFreeOneOnuAllObj(onu), 0);
  test::ExpectAndReleaseLostPorts(faults, 305);  // of all four lists
}

TEST_F(OnuRecordTest, EveryKeyIsSearchedFromThePosition) {
  const PortNames other = {{"XGSPON"}, {"FE", "FE"}, {"FXO", "FXS"}, {"E1"}};
  const string first = OnuSection("Sec", "1", "First", kSome);
  const string file = first + OnuSection("Sec", "2", "Second", other);
  for (const size_t start : {size_t{0}, size_t{1}, first.size()}) {
    SCOPED_TRACE(start);
    OnuFaults faults(file);
    OnuInformation* onu = nullptr;
    ASSERT_EQ(ddReadOneSupportedOnuInformation(OnuFaults::kPath, "Sec", static_cast<int32_t>(start),
                                               &onu),
              0);
    test::ExpectOnu(faults, onu,
                    start == 0 ? ExpectedOnu{1, "First", kSome} : ExpectedOnu{2, "Second", other});
    ExpectToRelease(faults, onu);
  }
}

// ---- An ONU type that does not ------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  int32_t start = 0;
  size_t lost = 0;  // copies of ports that are not released
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToReadOnu : public OnuRecordTest, public testing::WithParamInterface<FailRow> {};

TEST_P(FailToReadOnu, ReleasesItAndClearsThePointer) {
  for (const int32_t debug : {0, 1}) {
    OnuFaults faults(GetParam().file, debug);
    OnuInformation* onu = kUntouched;

    EXPECT_EQ(ddReadOneSupportedOnuInformation(OnuFaults::kPath, "Sec", GetParam().start, &onu),
              GetParam().code);

    EXPECT_EQ(onu, nullptr);
    EXPECT_EQ(console_.Text(), GetParam().console);
    test::ExpectAllClosed(faults);
    EXPECT_EQ(faults.OwnBlocks(), GetParam().lost);
    test::ExpectAndReleaseLostPorts(faults, GetParam().lost);
  }
}

string NoKey(const string& code, const string& key) {
  return "\r\nddReadOneSupportedOnuInformation err! iResult = " + code +
         ", section = Sec, key = " + key;
}
string NameTooLong(const string& length) {
  return "\r\nddReadOneSupportedOnuInformation err! ulNameLen = " + length;
}
string NoPon(const string& reason) {
  return "\r\nddAddSupportedPonToOnuObj" + reason +
         "\r\nddReadOneSupportedOnuInformation->ddAddSupportedPonToOnuObj err! "
         "strOnuTypeSection = Sec";
}
string NoLan(const string& reason) {
  return "\r\nddAddSupportedLanToOnuObj" + reason +
         "\r\nddReadOneSupportedOnuInformation->ddAddSupportedLanToOnuObj err! "
         "strOnuTypeSection = Sec";
}
string NoPots(const string& reason) {
  return "\r\nddAddSupportedPotsToOnuObj" + reason +
         "\r\nddReadOneSupportedOnuInformation->ddAddSupportedPotsToOnuObj err! "
         "strOnuTypeSection = Sec";
}
string NoSpecial(const string& reason) {
  return "\r\nddAddSupportedSpecialPortToOnuObj" + reason +
         "\r\nddReadOneSupportedOnuInformation->ddAddSupportedSpecialPortToOnuObj err! "
         "strOnuTypeSection = Sec";
}
string Missing(const string& key) {
  return " err! iResult = -2, section = Sec, key = " + key;
}

// Ports of a kind, as many as there are names.
string Ports(size_t kind, const Names& names) {
  return string(test::OnuPortKinds()[kind].count_key) + "=" + std::to_string(names.size()) + "\n" +
         test::Numbered(test::OnuPortKinds()[kind].port_key, names);
}
// "Sec" with these behind its name.
string With(const string& ports) {
  return "[Sec]\nType=1\nName=N\n" + ports;
}
const string kPon2 = Ports(0, {"GPON", "XGSPON"});
const string kPon4 = Ports(0, Names(4, "GPON"));
const string kPon5 = Ports(0, Names(5, "GPON"));
const string kLan2 = Ports(1, {"GE", "FE"});
const string kLan99 = Ports(1, Names(99, "GE"));
const string kLan100 = Ports(1, Names(100, "GE"));
const string kPots2 = Ports(2, {"FXS", "FXO"});
const string kPots99 = Ports(2, Names(99, "FXS"));
const string kPots100 = Ports(2, Names(100, "FXS"));
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kFails[] = {
    {"NoSection", "[sec]\nType=1\nName=N\n", -31, NoKey("-1", "Type")},
    {"EmptySection", "[Sec]\n[Next]\nType=1\n", -31, NoKey("-2", "Type")},
    {"NoType", "[Sec]\nName=N\n" + kPon2, -31, NoKey("-2", "Type")},
    {"TypeOfOtherCase", "[Sec]\ntype=1\nName=N\n", -31, NoKey("-2", "Type")},
    {"BrokenBeforeType", "[Sec]\nnonsense\nType=1\nName=N\n", -31, NoKey("-14", "Type")},
    {"TooLongBeforeType", "[Sec]\n" + kTooLong + "Type=1\nName=N\n", -31, NoKey("-22", "Type")},
    {.name = "SectionBeforeThePosition",
     .file = Sec("1"),
     .code = -31,
     .console = NoKey("-1", "Type"),
     .start = 1},
    {.name = "PositionBehindTheFile",
     .file = Sec("1"),
     .code = -31,
     .console = NoKey("-1", "Type"),
     .start = 100000},
    {.name = "LargestPosition",
     .file = Sec("1"),
     .code = -31,
     .console = NoKey("-1", "Type"),
     .start = INT32_MAX},
    {"NoName", "[Sec]\nType=1\nSpeed=1\n" + kPon2, -31, NoKey("-2", "Speed")},
    {"BrokenBeforeName", "[Sec]\nType=1\nnonsense\nName=N\n", -31, NoKey("-14", "Speed")},
    {"TooLongBeforeName", "[Sec]\nType=1\n" + kTooLong + "Name=N\n", -31, NoKey("-22", "Speed")},
    {"NameTooLong", Sec("1", k60), -33, NameTooLong("61")},
    {"NameFarTooLong", Sec("1", string(507, 'n')), -33, NameTooLong("508")},
    {"NameTooLongAndNoPorts", "[Sec]\nType=1\nName=" + k60 + "\n", -33, NameTooLong("61")},

    {"NoPonNum", With(kLan2), -31, NoPon(Missing("PonNum"))},
    {"NoPonPort", With(Ports(0, {}) + kLan2), -17, NoPon(" ok! ulTotalPonNum = 0")},
    {"TooManyPonPorts", With("PonNum=6\n"), -17,
     NoPon(" err! ulTotalPonNum = 6, MAX_ONU_PON_NUM_PER_ONU = 5")},
    {"PonPortMissing", With("PonNum=2\nNameKeyPon1=GPON\n"), -1, NoPon(Missing("NameKeyPon2"))},

    {"NoLanNum", With(kPon2 + kPots2), -31, NoLan(Missing("LanPortNum"))},
    {"TooManyLanPorts", With(kPon2 + "LanPortNum=101\n"), -17,
     NoLan(" err! ulTotalLanNum = 101, MAX_ONU_LAN_NUM_PER_ONU = 100")},
    {"ThirdLanPortUnknown", With(kPon2 + Ports(1, {"GE", "FE", "none"})), -27,
     NoLan("->ddIsOnuLanTypeSupportedByName err! iResult = -32, strKey = NameKeyLanPort3, "
           "ulIndex = 0")},
    {"NoLanNumBehindFourPonPorts", With(kPon4), -31, NoLan(Missing("LanPortNum"))},
    {.name = "NoLanNumBehindFivePonPorts",
     .file = With(kPon5),
     .code = -31,
     .console = NoLan(Missing("LanPortNum")),
     .lost = 5},
    {.name = "LanPortMissingBehindFivePonPorts",
     .file = With(kPon5 + "LanPortNum=100\nNameKeyLanPort1=GE\n"),
     .code = -27,
     .console = NoLan(Missing("NameKeyLanPort2")),
     .lost = 5},

    {"NoPotsNum", With(kPon2 + kLan2), -31, NoPots(Missing("PotsPortNum"))},
    {"NegativePotsNum", With(kPon2 + kLan2 + "PotsPortNum=-1\n"), -17,
     NoPots(" err! ulTotalPotsNum = -1, MAX_ONU_POTS_NUM_PER_ONU = 100")},
    {"SecondPotsPortUnknown", With(kPon2 + kLan2 + Ports(2, {"FXS", "none"})), -1,
     NoPots("->ddIsOnuPotsTypeSupportedByName err! iResult = -32, strKey = NameKeyPotsPort2, "
            "ulIndex = 0")},
    {"NoPotsNumBehind99LanPorts", With(kPon4 + kLan99), -31, NoPots(Missing("PotsPortNum"))},
    {.name = "NoPotsNumBehind100LanPorts",
     .file = With(kPon4 + kLan100),
     .code = -31,
     .console = NoPots(Missing("PotsPortNum")),
     .lost = 100},
    {.name = "NoPotsNumBehindMostPorts",
     .file = With(kPon5 + kLan100),
     .code = -31,
     .console = NoPots(Missing("PotsPortNum")),
     .lost = 105},

    {"NoSpecialNum", With(kPon2 + kLan2 + kPots2), -31, NoSpecial(Missing("SpecialPortNum"))},
    {"TooManySpecialPorts", With(kPon2 + kLan2 + kPots2 + "SpecialPortNum=101\n"), -17,
     NoSpecial(" err! ulTotalSpecialPortNum = 101, MAX_ONU_SPECIAL_PORT_NUM_PER_ONU = 100")},
    {"SpecialPortUnknown", With(kPon2 + kLan2 + kPots2 + Ports(3, {"E1", "none"})), -1,
     NoSpecial("->ddIsOnuSpecialPortTypeSupportedByName err! iResult = -32, strKey = "
               "NameKeySpecialPort2, ulIndex = 0")},
    {"NoSpecialNumBehind99PotsPorts", With(kPon4 + kLan99 + kPots99), -31,
     NoSpecial(Missing("SpecialPortNum"))},
    {.name = "NoSpecialNumBehind100PotsPorts",
     .file = With(kPon4 + kLan99 + kPots100),
     .code = -31,
     .console = NoSpecial(Missing("SpecialPortNum")),
     .lost = 100},
    {.name = "NoSpecialNumBehindMostPorts",
     .file = With(kPon5 + kLan100 + kPots100),
     .code = -31,
     .console = NoSpecial(Missing("SpecialPortNum")),
     .lost = 205},
    {"LastOf100SpecialPortsMissing",
     With(kPon2 + kLan2 + kPots2 + "SpecialPortNum=100\n" +
          test::Numbered("NameKeySpecialPort", Names(99, "E1"))),
     -1, NoSpecial(Missing("NameKeySpecialPort100"))},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, FailToReadOnu, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

// ---- Arguments, memory --------------------------------------------------------

TEST_F(OnuRecordTest, NullArgumentsTouchNothing) {
  for (const int32_t start : {0, -1}) {  // looked at later only
    OnuInformation* onu = kUntouched;
    test::ExpectNullArgumentsRefused(
        console_,
        "\r\nddReadOneSupportedOnuInformation err! strFileName = {file}, strOnuTypeSection = "
        "{section}, pOnuTypeObjAddr = {record}",
        &onu, [&](const char* file, const char* section, OnuInformation** record) {
          return ddReadOneSupportedOnuInformation(file, section, start, record);
        });
    EXPECT_EQ(onu, kUntouched);
  }
}

TEST_F(OnuRecordTest, NegativePositionsTouchNothing) {
  for (const int32_t debug : {0, 1}) {
    for (const int32_t start : {-1, INT32_MIN}) {
      OnuFaults faults(Sec("1"), debug);
      OnuInformation* onu = kUntouched;
      EXPECT_EQ(ddReadOneSupportedOnuInformation(OnuFaults::kPath, "Sec", start, &onu), -31);
      EXPECT_EQ(console_.Text(),
                "\r\nddReadOneSupportedOnuInformation err! iOffsetIn = " + std::to_string(start));
      EXPECT_EQ(onu, kUntouched);
      EXPECT_EQ(faults.opens.count(), 0);
      EXPECT_EQ(faults.allocations.count(), 0);
    }
  }
}

TEST_F(OnuRecordTest, MissingFile) {
  OnuInformation* onu = kUntouched;
  EXPECT_EQ(ddReadOneSupportedOnuInformation("/nonexistent/onus.ini", "Sec", 0, &onu), -31);
  EXPECT_EQ(console_.Text(), NoKey("-10", "Type"));
  EXPECT_EQ(onu, nullptr);
}

TEST_F(OnuRecordTest, NoMemoryForTheRecord) {
  for (const int32_t debug : {0, 1}) {
    OnuFaults faults(Sec("1"), debug);
    faults.allocations.FailFrom(1, 1);
    OnuInformation* onu = kUntouched;
    EXPECT_EQ(ddReadOneSupportedOnuInformation(OnuFaults::kPath, "Sec", 0, &onu), -27);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadOneSupportedOnuInformation->malloc err! pstOnuInformation = 0x0");
    EXPECT_EQ(onu, nullptr);
    EXPECT_EQ(faults.opens.count(), 1);  // the type; nothing else is read
    EXPECT_EQ(faults.OwnBlocks(), 0u);
  }
}

}  // namespace
