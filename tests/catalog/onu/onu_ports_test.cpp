// The ports of an ONU type that can be had, and those that cannot: all four kinds of
// them, by the same rows.
#include <cstdint>
#include <ostream>
#include <string>
#include <tuple>

#include "catalog/onu/onu_ports_fixture.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::Effect;
using test::kPortAdders;
using test::Names;
using test::NoKey;
using test::OnuFaults;
using test::OnuPortsTest;
using test::PortAdder;
using test::Sec;

// ---- Ports that can be had ----------------------------------------------------

struct AddRow {
  const char* name;
  string file;
  Names ports;
  friend std::ostream& operator<<(std::ostream& out, const AddRow& row) { return out << row.name; }
};

class AddOnuPorts : public OnuPortsTest,
                    public testing::WithParamInterface<std::tuple<PortAdder, AddRow>> {};

TEST_P(AddOnuPorts, KeepsACopyForEach) {
  const auto& [adder, row] = GetParam();
  const Names ports = adder.Types(row.ports);
  for (const int32_t debug : {0, 1}) {
    OnuFaults faults(adder.Text(row.file), debug);
    ExpectToAdd(adder, faults, 0, ports);
    EXPECT_EQ(faults.opens.count(), static_cast<int>(ports.size()) + 1);
    EXPECT_EQ(faults.allocations.count(), static_cast<int>(ports.size()) + 1);
  }
}

const AddRow kAdds[] = {
    {"One", Sec("1", {"{A}"}), {"{A}"}},
    {"SameTypeTwice", Sec("2", {"{B}", "{B}"}), {"{B}", "{B}"}},
    {"AllTypes", Sec("3", {"{C}", "{A}", "{B}"}), {"{C}", "{A}", "{B}"}},
    {"Five", Sec("5", Names(5, "{A}")), Names(5, "{A}")},
    {"MoreListedThanAnnounced", Sec("1", {"{A}", "none"}), {"{A}"}},
    {"NumberWithText", Sec(" +2x", {"{A}", "{B}"}), {"{A}", "{B}"}},
    {"KeysInAnyOrder", "[Sec]\n{port}2={B}\nOther=1\n{port}1={A}\n{count}=2\n", {"{A}", "{B}"}},
    {"FirstKeyWins", "[Sec]\n{count}=1\n{count}=2\n{port}1={A}\n{port}1={B}\n", {"{A}"}},
    {"OtherKindsBeside",
     "[Sec]\nPonNum=1\nLanPortNum=1\nPotsPortNum=1\nSpecialPortNum=1\nNameKeyPort1=none\n"
     "NameKeyPon2=none\nNameKeyLanPort2=none\nNameKeyPotsPort2=none\nNameKeySpecialPort2=none\n"
     "{count}=9\n{port}1={B}\n",
     {"{B}"}},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, AddOnuPorts,
                         testing::Combine(testing::ValuesIn(kPortAdders), testing::ValuesIn(kAdds)),
                         test::KindAndRow());

// ---- Ports that cannot --------------------------------------------------------

constexpr int32_t kOwnCode = 1;  // the kind's own, when a port cannot be had

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  Effect effect;
  string console;
  string debug_console = "";  // before `console`, under the debug switch
  void (*prepare)(const test::OnuPortKind& kind) = nullptr;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class AddNoOnuPorts : public OnuPortsTest,
                      public testing::WithParamInterface<std::tuple<PortAdder, FailRow>> {};

TEST_P(AddNoOnuPorts, KeepsNothing) {
  const auto& [adder, row] = GetParam();
  const test::OnuPortKind& kind = adder.Kind();
  for (const int32_t debug : {0, 1}) {
    OnuFaults faults(adder.Text(row.file), debug);
    const uint32_t count = *kind.catalog_count;
    OnuPortTypeInformation** const catalog = *kind.catalog;
    if (row.prepare != nullptr) {
      row.prepare(kind);
    }
    ExpectToFail(adder, faults, row.code == kOwnCode ? adder.failed_code : row.code, row.effect,
                 debug != 0 ? row.debug_console + row.console : row.console);
    *kind.catalog_count = count;
    *kind.catalog = catalog;
  }
}

string TooMany(const string& number) {
  return "\r\n{f} err! {field} = " + number + ", {limit}";
}
string NoType(const string& code, const string& number) {
  return "\r\n{f}->{find} err! iResult = " + code + ", strKey = {port}" + number + ", ulIndex = 0";
}
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kNumbers[] = {
    {"Negative", Sec("-1", {"{A}"}), -17, Effect::kNoCount, TooMany("-1")},
    {"Largest", Sec("2147483647", {"{A}"}), -17, Effect::kNoCount, TooMany("2147483647")},
    {"Above31Bits", Sec("2147483648", {"{A}"}), -17, Effect::kNoCount, TooMany("2147483647")},
    {"Above32Bits", Sec("4294967297", {"{A}"}), -17, Effect::kNoCount, TooMany("2147483647")},
    {"Below32Bits", Sec("-4294967295", {"{A}"}), -17, Effect::kNoCount, TooMany("-2147483648")},
    {"NoSection", "[sec]\n{count}=1\n{port}1={A}\n", -31, Effect::kNoCount, NoKey("-1", "{count}")},
    {"NoNumber", "[Sec]\n{port}1={A}\n[Next]\n{count}=1\n", -31, Effect::kNoCount,
     NoKey("-2", "{count}")},
    {"NumberOfOtherCase",
     "[Sec]\n{port}1={A}\nponNum=1\nlanPortNum=1\npotsPortNum=1\nspecialPortNum=1\n", -31,
     Effect::kNoCount, NoKey("-2", "{count}")},
    {"BrokenBeforeTheNumber", "[Sec]\nnonsense\n{count}=1\n{port}1={A}\n", -31, Effect::kNoCount,
     NoKey("-14", "{count}")},
    {"BrokenHeader", "[Broken\n" + Sec("1", {"{A}"}), -31, Effect::kNoCount,
     NoKey("-14", "{count}")},
    {"TooLongBeforeTheNumber", "[Sec]\n" + kTooLong + "{count}=1\n", -31, Effect::kNoCount,
     NoKey("-22", "{count}")},
};
INSTANTIATE_TEST_SUITE_P(Number, AddNoOnuPorts,
                         testing::Combine(testing::ValuesIn(kPortAdders),
                                          testing::ValuesIn(kNumbers)),
                         test::KindAndRow());

FailRow PortRow(const char* name, const string& file, const string& console,
                const string& debug_console = "",
                void (*prepare)(const test::OnuPortKind& kind) = nullptr) {
  return {name, file, kOwnCode, Effect::kNoCountNoArray, console, debug_console, prepare};
}

const FailRow kPorts[] = {
    PortRow("FirstMissing", "[Sec]\n{count}=2\n{port}2={A}\n", NoKey("-2", "{port}1")),
    PortRow("SecondMissing", "[Sec]\n{count}=3\n{port}1={A}\n{port}3={A}\n",
            NoKey("-2", "{port}2")),
    PortRow("LastOfFiveMissing", Sec("5", Names(4, "{A}")), NoKey("-2", "{port}5")),
    PortRow("PortInTheNextSection", Sec("1", {}) + "[Next]\n{port}1={A}\n", NoKey("-2", "{port}1")),
    PortRow("BrokenBeforeAPort", "[Sec]\n{count}=2\n{port}1={A}\nnonsense\n{port}2={B}\n",
            NoKey("-14", "{port}2")),
    PortRow("TooLongBeforeAPort", "[Sec]\n{count}=2\n{port}1={A}\n" + kTooLong,
            NoKey("-22", "{port}2")),
    PortRow("FirstUnknown", Sec("3", {"none", "{A}", "{A}"}), NoType("-32", "1")),
    PortRow("SecondUnknown", Sec("3", {"{A}", "none", "{A}"}), NoType("-32", "2")),
    PortRow("ThirdUnknown", Sec("3", {"{A}", "{B}", "none"}), NoType("-32", "3")),
    PortRow("EmptyName", Sec("1", {""}), NoType("-32", "1")),
    PortRow("MoreThanAName", Sec("1", {"{A}2"}), NoType("-32", "1")),
    PortRow("NameTooLong", Sec("2", {"{A}", string(60, 'p')}), NoType("-33", "2"),
            "{name too long}"),
    PortRow("NoCatalog", Sec("1", {"{A}"}), NoType("-10", "1"), "{no catalog}",
            [](const test::OnuPortKind& kind) { *kind.catalog = nullptr; }),
    PortRow("EmptyCatalog", Sec("1", {"{A}"}), NoType("-32", "1"), "",
            [](const test::OnuPortKind& kind) { *kind.catalog_count = 0; }),
    PortRow("CorruptCatalog", Sec("1", {"{A}"}), NoType("-16", "1"), "{corrupt catalog}",
            [](const test::OnuPortKind& kind) { *kind.catalog_count = 31; }),
    PortRow("CorruptType", Sec("2", {"{A}", "{C}"}), NoType("-33", "2"), "{corrupt type}",
            [](const test::OnuPortKind& kind) { (*kind.catalog)[1]->ulNameLen = 61; }),
};
INSTANTIATE_TEST_SUITE_P(Port, AddNoOnuPorts,
                         testing::Combine(testing::ValuesIn(kPortAdders),
                                          testing::ValuesIn(kPorts)),
                         test::KindAndRow());

// ---- Answers of the port types that no catalog gives --------------------------

struct OddRow {
  const char* name;
  test::OddPort answer;
  string console = "";  // empty: the port is had
  friend std::ostream& operator<<(std::ostream& out, const OddRow& row) { return out << row.name; }
};

class AddOddOnuPort : public OnuPortsTest,
                      public testing::WithParamInterface<std::tuple<PortAdder, OddRow>> {};

TEST_P(AddOddOnuPort, IsHadOrNoPortIs) {
  const auto& [adder, row] = GetParam();
  for (const int32_t debug : {0, 1}) {
    test::SetOddPort(adder.Kind(), row.answer);
    OnuFaults faults(adder.Text(Sec("3", {"{A}", "ODD", "{C}"})), debug);
    if (row.console.empty()) {
      ExpectToAdd(adder, faults, 0, adder.Types({"{A}", "{B}", "{C}"}));
    } else {
      ExpectToFail(adder, faults, adder.failed_code, Effect::kNoCountNoArray, row.console);
      EXPECT_EQ(faults.opens.count(), 3);  // the third port is not read
    }
  }
}

const OddRow kOdds[] = {
    {"PlaceZero", {.index = 0}},
    {"LastPlace", {.index = 29}},
    {"PlaceAtTheLimit", {.index = 30}},
    {"PlaceBehindTheLimit", {.index = 31}, "\r\n{f} err! strKey = {port}2, ulIndex = 31"},
    {"LargestPlace", {.index = 0xffffffff}, "\r\n{f} err! strKey = {port}2, ulIndex = -1"},
    {"NotSupported",
     {.supported = 0, .index = 0},
     "\r\n{f} err! strKey = {port}2, IsSupported = 0"},
    {"NotSupportedInAFarPlace",
     {.supported = 0, .index = 31},
     "\r\n{f} err! strKey = {port}2, IsSupported = 0"},
    {"LookupFails",
     {.lookup_code = -5, .index = 7},
     "\r\n{f}->{find} err! iResult = -5, strKey = {port}2, ulIndex = 7"},
    {"LookupFailsInAFarPlace",
     {.lookup_code = -32, .supported = 0, .index = 31},
     "\r\n{f}->{find} err! iResult = -32, strKey = {port}2, ulIndex = 31"},
    {"LookupAnswersAboveZero",
     {.lookup_code = 1, .index = 0},
     "\r\n{f}->{find} err! iResult = 1, strKey = {port}2, ulIndex = 0"},
    {"NoCopy", {.index = 0, .copy_code = -32}, "\r\n{f}->{copy} err! strKey = {port}2"},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, AddOddOnuPort,
                         testing::Combine(testing::ValuesIn(kPortAdders), testing::ValuesIn(kOdds)),
                         test::KindAndRow());

}  // namespace
