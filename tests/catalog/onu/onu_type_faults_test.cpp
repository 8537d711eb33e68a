// The ONU types when memory runs out or the file fails: at every allocation and every
// lookup of a load.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "catalog/load_faults.h"
#include "catalog/onu/onu_type_loads.h"
#include "support/rows.h"

namespace {

using std::string;
using test::FaultyLoad;
using test::kFirst;
using test::kNone;
using test::kNoOnuLeft;
using test::kSecond;
using test::Left;
using test::LoadFailure;
using test::LoadFaults;
using test::LoadFileFaults;
using test::NoListKey;
using test::NoOwnKey;
using test::NoPorts;
using test::NoSection;
using test::OnuFaults;

// The second has as many PON ports as an ONU can have: they are lost if it fails later.
const string kFile =
    test::OnuList({"S1", "S2"}) +
    test::OnuSection("S1", "5", "N1", {{"GPON", "XGSPON"}, {"FE"}, {"FXS"}, {"WLAN"}}) +
    test::OnuSection("S2", "6", "N2", {test::Names(5, "GPON"), {"GE", "FE"}});

// ---- The load -----------------------------------------------------------------

std::shared_ptr<test::Faults> Watch(int32_t debug) {
  test::TheMaxLanSearch() = {};
  return std::make_shared<OnuFaults>(kFile, debug);
}

int32_t Load() {
  return ddReadAllSupportedOnuInformation(OnuFaults::kPath);
}

void ExpectTable(const LoadFailure& failure) {
  const auto kept = static_cast<uint32_t>(failure.kept.size());
  EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, failure.code == 0 ? kept : 0);
  const uint32_t last = failure.code == 0 && kept != 0 ? failure.kept.back() : 0;
  test::ExpectMaxLan(last, last == 5 ? 1 : last == 6 ? 2 : 0);  // the second has more ports
  gstSupportedOnuType.ulSupportedOnuTypeNum = kept;             // an abandoned load does not tell
  for (size_t i = 0; i < kept; ++i) {
    ASSERT_NE(gstSupportedOnuType.pOnuTypeArray[i], nullptr);
    EXPECT_EQ(gstSupportedOnuType.pOnuTypeArray[i]->ulOnuType, failure.kept[i]);
  }
}

// ---- Memory -------------------------------------------------------------------

string NoRecord(const string& section) {
  return "\r\nddReadOneSupportedOnuInformation->malloc err! pstOnuInformation = 0x0" +
         Left("-27", section);
}

// The array of PON, POTS or special ports.
string NoArray(const string& kind, const string& section, const string& array) {
  return NoPorts(kind, "-27", section, " err! pstOnuInformation->" + array + " = 0x0");
}
string NoLanArray(const string& section) {
  return "\r\nddAddSupportedPonToOnuObj err! pstOnuInformation->pOnuLanPortArray = 0x0"
         "\r\nddReadOneSupportedOnuInformation->ddAddSupportedLanToOnuObj err! strOnuTypeSection "
         "= " +
         section + Left("-27", section);
}

string PonCopy(const string& place) {
  return "\r\ndd_CreateOneOnuPonObjBySecName, pstOnuPonInformationOut = 0x0, ulIndex = " + place;
}
string NoPonCopy(const string& number, const string& section) {
  return NoPorts("Pon", "-1", section,
                 "->ddCreateOneOnuPonObjByName err! strKey = NameKeyPon" + number);
}
string NoLanCopy(const string& place, const string& number, const string& section) {
  return "\r\nddCreateOneOnuLanObjByName, pstOnuLanPortInformationOut = 0x0, ulIndex= " + place +
         NoPorts("Lan", "-27", section,
                 "->ddCreateOneOnuLanObjByName err! strKey = NameKeyLanPort" + number);
}
const string kNoPotsCopy =
    "\r\nddCreateOneOnuPotsObjByName, pstOnuPotsPortInformationOut = 0x0, ulIndex = 0" +
    NoPorts("Pots", "-1", "S1", "->ddCreateOneOnuPotsObjByName err! strKey = NameKeyPotsPort1");
const string kNoSpecialCopy =
    "\r\nddCreateOneOnuSpecialPortObjByName, pstOnuSpecialPortInformationOut = 0x0, ulIndex = 1" +
    NoPorts("SpecialPort", "-1", "S1",
            "->ddCreateOneOnuSpecialPortObjByName err! strKey = NameKeySpecialPort1");

const std::vector<LoadFailure>& Allocations() {
  static const std::vector<LoadFailure> allocations = {
      {-27, kNone, 0, "\r\nddReadAllSupportedOnuInformation->malloc err! pOnuLanTypeArray = 0x0"},
      {0, kSecond, 0, NoRecord("S1")},
      {0, kSecond, 0, NoArray("Pon", "S1", "pOnuPonArray")},
      {0, kSecond, 0, NoPonCopy("1", "S1"), PonCopy("0")},
      {0, kSecond, 0, NoPonCopy("2", "S1"), PonCopy("1")},
      {0, kSecond, 0, NoLanArray("S1")},
      {0, kSecond, 0, NoLanCopy("1", "1", "S1")},
      {0, kSecond, 0, NoArray("Pots", "S1", "pOnuPotsPortArray")},
      {0, kSecond, 0, kNoPotsCopy},
      {0, kSecond, 0, NoArray("SpecialPort", "S1", "pOnuSpecialPortArray")},
      {0, kSecond, 0, kNoSpecialCopy},
      {0, kFirst, 0, NoRecord("S2")},
      {0, kFirst, 0, NoArray("Pon", "S2", "pOnuPonArray")},
      {0, kFirst, 0, NoPonCopy("1", "S2"), PonCopy("0")},
      {0, kFirst, 0, NoPonCopy("2", "S2"), PonCopy("0")},
      {0, kFirst, 0, NoPonCopy("3", "S2"), PonCopy("0")},
      {0, kFirst, 0, NoPonCopy("4", "S2"), PonCopy("0")},
      {0, kFirst, 0, NoPonCopy("5", "S2"), PonCopy("0")},
      {0, kFirst, 5, NoLanArray("S2")},
      {0, kFirst, 5, NoLanCopy("0", "1", "S2")},
      {0, kFirst, 5, NoLanCopy("1", "2", "S2")},
  };
  return allocations;
}

// ---- The file -----------------------------------------------------------------

// The lookup's code stands for the "%".
string NoKey(const string& kind, const string& code, const string& section, const string& key) {
  return NoPorts(kind, code, section, " err! iResult = %, section = " + section + ", key = " + key);
}

const std::vector<LoadFailure>& Lookups() {
  static const std::vector<LoadFailure> lookups = {
      {-31, kNone, 0,
       "\r\nddReadAllSupportedOnuInformation err! iResult = %, section = SupportedOnuLanType, key "
       "= SupportedOnuLanTypeNum"},
      {0, kSecond, 0, NoListKey("%", "SupportedOnuType1")},
      {-31, kNone, 0, NoSection("%", "S1")},
      {0, kSecond, 0, NoOwnKey("%", "S1", "Type")},
      {0, kSecond, 0, NoOwnKey("%", "S1", "Speed")},
      {0, kSecond, 0, NoKey("Pon", "-31", "S1", "PonNum")},
      {0, kSecond, 0, NoKey("Pon", "-1", "S1", "NameKeyPon1")},
      {0, kSecond, 0, NoKey("Pon", "-1", "S1", "NameKeyPon2")},
      {0, kSecond, 0, NoKey("Lan", "-31", "S1", "LanPortNum")},
      {0, kSecond, 0, NoKey("Lan", "-27", "S1", "NameKeyLanPort1")},
      {0, kSecond, 0, NoKey("Pots", "-31", "S1", "PotsPortNum")},
      {0, kSecond, 0, NoKey("Pots", "-1", "S1", "NameKeyPotsPort1")},
      {0, kSecond, 0, NoKey("SpecialPort", "-31", "S1", "SpecialPortNum")},
      {0, kSecond, 0, NoKey("SpecialPort", "-1", "S1", "NameKeySpecialPort1")},
      {0, kFirst, 0, NoListKey("%", "SupportedOnuType2")},
      {-31, kFirst, 0, NoSection("%", "S2")},
      {0, kFirst, 0, NoOwnKey("%", "S2", "Type")},
      {0, kFirst, 0, NoOwnKey("%", "S2", "Speed")},
      {0, kFirst, 0, NoKey("Pon", "-31", "S2", "PonNum")},
      {0, kFirst, 0, NoKey("Pon", "-1", "S2", "NameKeyPon1")},
      {0, kFirst, 0, NoKey("Pon", "-1", "S2", "NameKeyPon2")},
      {0, kFirst, 0, NoKey("Pon", "-1", "S2", "NameKeyPon3")},
      {0, kFirst, 0, NoKey("Pon", "-1", "S2", "NameKeyPon4")},
      {0, kFirst, 0, NoKey("Pon", "-1", "S2", "NameKeyPon5")},
      {0, kFirst, 5, NoKey("Lan", "-31", "S2", "LanPortNum")},
      {0, kFirst, 5, NoKey("Lan", "-27", "S2", "NameKeyLanPort1")},
      {0, kFirst, 5, NoKey("Lan", "-27", "S2", "NameKeyLanPort2")},
      {0, kFirst, 5, NoKey("Pots", "-31", "S2", "PotsPortNum")},
      {0, kFirst, 5, NoKey("SpecialPort", "-31", "S2", "SpecialPortNum")},
  };
  return lookups;
}

// ---- The tests ----------------------------------------------------------------

const FaultyLoad& OnuTypes() {
  static const FaultyLoad load = {
      .name = "OnuTypes",
      .watch = Watch,
      .run = Load,
      .expect = ExpectTable,
      .port_size = sizeof(OnuPortTypeInformation),
      .allocations = Allocations,
      .lookups = Lookups,
      .also_no_record = NoRecord("S2") + kNoOnuLeft,
      .also_no_entry = NoListKey("%", "SupportedOnuType2") + kNoOnuLeft,
  };
  return load;
}
INSTANTIATE_TEST_SUITE_P(Of, LoadFaults, testing::Values(OnuTypes()),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Of, LoadFileFaults,
                         testing::Combine(testing::Values(OnuTypes()),
                                          testing::Values(test::kOpenFails, test::kSeekFails,
                                                          test::kReadFails)),
                         test::KindAndRow());

}  // namespace
