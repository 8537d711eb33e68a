// The printers of the ONU types, in one line each, of one and of all: whole listings, and
// what is refused.
#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "cli/onu_printer_test.h"
#include "support/text.h"

namespace {

using std::string;
using test::Padded;
using test::PortRecords;
using test::With;

class OnuPrinters : public test::OnuPrinterTest {
 protected:
  static Printed PrintOne(uint32_t index) {
    return Print([index](void* vty) { return ddPrintOneSupportedOnuInfomation(index, vty); });
  }

  // Two types and an empty place between them.
  void AddTwoTypes() {
    AddOnu(Onu(6001, "KT-G101", {OnuPort(2, "GPON")}, {OnuPort(3, "GE")}, {}, {}));
    AddOnu(nullptr);
    AddOnu(Onu(6012, "KT-G142D", {OnuPort(2, "GPON"), OnuPort(4, "XGSPON")},
               {OnuPort(3, "GE"), OnuPort(1, "FE")}, {OnuPort(1, "FXS")}, {OnuPort(5, "CATV")}));
  }
};

// What the listing of one type shows, which is all that it does.
#define EXPECT_ONE_PRINTED(index, expected_code, expected_text) \
  do {                                                          \
    const Printed printed = PrintOne(index);                    \
    EXPECT_EQ(printed.code, expected_code);                     \
    EXPECT_EQ(printed.text, expected_text);                     \
    EXPECT_EQ(console_.Text(), "");                             \
  } while (false)

// ---- Of all listings -------------------------------------------------------------

struct ListingRow {
  const char* name;
  int32_t (*print)(void* vty);
  string above_limit;
  string no_array;
  friend std::ostream& operator<<(std::ostream& out, const ListingRow& row) {
    return out << row.name;
  }
};

class OnuListings : public OnuPrinters, public testing::WithParamInterface<ListingRow> {};

TEST_P(OnuListings, RefuseACorruptCount) {
  OnuInformation* places[201] = {};
  for (const int32_t debug : {0, 1}) {
    for (OnuInformation** const list : {places, static_cast<OnuInformation**>(nullptr)}) {
      ddDebugPrint = debug;
      gstSupportedOnuType = {201, list, 0, 0};
      EXPECT_PRINTED(GetParam().print, -21, With(GetParam().above_limit, "{count}", "201"));
      gstSupportedOnuType = {0xffffffff, list, 0, 0};
      EXPECT_PRINTED(GetParam().print, -21, With(GetParam().above_limit, "{count}", "-1"));
    }
  }
}

TEST_P(OnuListings, NeedAList) {
  for (const int32_t debug : {0, 1}) {
    for (const uint32_t count : {0u, 1u, 200u}) {
      ddDebugPrint = debug;
      gstSupportedOnuType = {count, nullptr, 0, 0};
      EXPECT_PRINTED(GetParam().print, -10,
                     With(GetParam().no_array, "{count}", std::to_string(count)));
    }
  }
}

const ListingRow kListings[] = {
    {.name = "OneLineEach",
     .print = ddPrintAllSupportedOnuTypeBaseInfomation,
     .above_limit = "\r\nddPrintAllSupportedOnuTypeBaseInfomation err! "
                    "ulSupportedOnuTypeNum = {count}, MAX_ONU_TYPE_NUM = 200",
     .no_array = "\r\nddPrintAllSupportedOnuTypeBaseInfomation, ulSupportedOnuTypeNum = {count}, "
                 "pOnuTypeArray = 0x0"},
    {.name = "OneType",
     .print = [](void* vty) { return ddPrintOneSupportedOnuInfomation(0, vty); },
     .above_limit = "\r\nddPrintOneSupportedOnuInfomation err! ulSupportedOnuTypeNum = {count}, "
                    "MAX_ONU_TYPE_NUM = 200",
     .no_array = "\r\nddPrintOneSupportedOnuInfomation, ulSupportedOnuTypeNum = {count}, "
                 "pOnuTypeArray = 0x0"},
    {.name = "IndexAboveTheCount",
     .print = [](void* vty) { return ddPrintOneSupportedOnuInfomation(0xffffffff, vty); },
     .above_limit = "\r\nddPrintOneSupportedOnuInfomation err! ulSupportedOnuTypeNum = {count}, "
                    "MAX_ONU_TYPE_NUM = 200",
     .no_array = "\r\nddPrintOneSupportedOnuInfomation, ulSupportedOnuTypeNum = {count}, "
                 "pOnuTypeArray = 0x0"},
    {.name = "AllTypes",
     .print = ddPrintAllSupportedOnuTypeInfomation,
     .above_limit = "\r\nddPrintAllSupportedOnuTypeInfomation err! ulSupportedOnuTypeNum = "
                    "{count}, MAX_ONU_TYPE_NUM = 200",
     .no_array = "\r\nddPrintOneSupportedOnuInfomation, ulSupportedOnuTypeNum = {count}, "
                 "pOnuTypeArray = 0x0"},
};
INSTANTIATE_TEST_SUITE_P(Cli, OnuListings, testing::ValuesIn(kListings),
                         testing::PrintToStringParamName());

TEST_F(OnuPrinters, ListWithoutTypes) {
  OnuInformation* place = nullptr;  // all announced types were left out
  gstSupportedOnuType = {0, &place, 0, 0};
  EXPECT_PRINTED(ddPrintAllSupportedOnuTypeBaseInfomation, 0,
                 "\r\nAllSupportedOnuType:"
                 "\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = 0\r\n\r\n");
  EXPECT_PRINTED(ddPrintAllSupportedOnuTypeInfomation, 0, "\r\n");
  for (const uint32_t index : {0u, 1u, 0xffffffffu}) {
    EXPECT_ONE_PRINTED(index, 0, "\r\nNo supported onu!\r\nulSupportedOnuTypeNum = 0");
  }
}

// ---- One line each ---------------------------------------------------------------

TEST_F(OnuPrinters, OneLineEach) {
  AddOnu(Onu(6001, "KT-G101", OnuPortsOf(1, 2, "GPON"), OnuPortsOf(1, 3, "GE"), {}, {}));
  AddOnu(Onu(7, "NAME-OF-16-BYTES", {}, OnuPortsOf(24, 3, "GE"), OnuPortsOf(2, 1, "FXS"), {}));
  AddOnu(nullptr);
  OnuInformation* const corrupt = Onu(0xffffffff, "100%s", {}, {}, {}, {});
  corrupt->ulTotalPonNum = 0xffffffff;
  corrupt->ulTotalLanPortNum = 101;
  AddOnu(corrupt);
  AddOnu(Onu(0, "", OnuPortsOf(5, 2, "GPON"), {}, {}, OnuPortsOf(3, 1, "CATV")));
  AddOnu(Onu(42, string(59, 'n'), {}, OnuPortsOf(100, 3, "GE"), {}, {}));
  AddOnu(nullptr);
  EXPECT_PRINTED(ddPrintAllSupportedOnuTypeBaseInfomation, 0,
                 "\r\nAllSupportedOnuType:"
                 "\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = 7"
                 "\r\n 0. ulOnuType = 6001, ulNameLen =  8, acName = KT-G101        , "
                 "ulTotalPonNum = 1, ulTotalLanPortNum =  1"
                 "\r\n 1. ulOnuType =   7, ulNameLen = 17, acName = NAME-OF-16-BYTES, "
                 "ulTotalPonNum = 0, ulTotalLanPortNum = 24"
                 "\r\n 3. ulOnuType =  -1, ulNameLen =  6, acName = 100%s          , "
                 "ulTotalPonNum = -1, ulTotalLanPortNum = 101"
                 "\r\n 4. ulOnuType =   0, ulNameLen =  1, acName =                , "
                 "ulTotalPonNum = 5, ulTotalLanPortNum =  0"
                 "\r\n 5. ulOnuType =  42, ulNameLen = 60, acName = " +
                     string(59, 'n') +
                     ", ulTotalPonNum = 0, ulTotalLanPortNum = 100"
                     "\r\n\r\n");
}

struct PauseRow {
  const char* name;
  uint32_t places;
  std::vector<uint32_t> empty;
  std::vector<uint32_t> paused;
  friend std::ostream& operator<<(std::ostream& out, const PauseRow& row) {
    return out << row.name;
  }
};

class PausesOfOnuTypes : public OnuPrinters, public testing::WithParamInterface<PauseRow> {};

TEST_P(PausesOfOnuTypes, AreBeforeEveryEighthRow) {
  const auto has = [](const std::vector<uint32_t>& places, uint32_t place) {
    return std::find(places.begin(), places.end(), place) != places.end();
  };
  OnuInformation* const onu = Onu(7, "KT", {}, {}, {}, {});
  string rows;
  for (uint32_t i = 0; i < GetParam().places; ++i) {
    AddOnu(has(GetParam().empty, i) ? nullptr : onu);
    if (!has(GetParam().empty, i)) {
      rows += string(has(GetParam().paused, i) ? "<pause 2>" : "") + "\r\n" + Padded(i, 2) +
              ". ulOnuType =   7, ulNameLen =  3, acName = KT             , ulTotalPonNum = 0, "
              "ulTotalLanPortNum =  0";
    }
  }
  EXPECT_PRINTED(ddPrintAllSupportedOnuTypeBaseInfomation, 0,
                 "\r\nAllSupportedOnuType:\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = " +
                     std::to_string(GetParam().places) + rows + "\r\n\r\n");
}

const PauseRow kPauses[] = {
    {"Seven", 7, {}, {}},
    {"Eight", 8, {}, {7}},
    {"Fifteen", 15, {}, {7}},
    {"Seventeen", 17, {}, {7, 15}},
    {"PlaceOfTheEighthIsEmpty", 17, {7}, {15}},
    {"PlacesAreCountedNotRows", 17, {0, 6, 14}, {7, 15}},
    {"AsManyAsPossible", 200, {}, {7,   15,  23,  31,  39,  47,  55,  63,  71,  79,  87,  95, 103,
                                   111, 119, 127, 135, 143, 151, 159, 167, 175, 183, 191, 199}},
};
INSTANTIATE_TEST_SUITE_P(Cli, PausesOfOnuTypes, testing::ValuesIn(kPauses),
                         testing::PrintToStringParamName());

// ---- One type --------------------------------------------------------------------

constexpr char kFirstOfTwo[] =
    "\r\nSupportedOneOnuInformation: KT-G101"
    "\r\nulOnuType = 6001, ulNameLen = 8, acName = KT-G101, ulTotalPonNum = 1, "
    "ulTotalLanPortNum = 1, ulTotalPotsNum = 0, ulTotalSpecialPortNum = 0"
    "\r\nOnu PON: 1 PON"
    "\r\n   0. ulPonType =   2, ulNameLen = 5, acName = GPON"
    "\r\nOnu LAN: 1 LAN"
    "\r\n   0. ulLanPortType =   3, ulNameLen =  3, acName = GE"
    "\r\nOnu POTS: 0 POTS"
    "\r\nOnu special port: 0 special port"
    "\r\n";
constexpr char kSecondOfTwo[] =
    "\r\nSupportedOneOnuInformation: KT-G142D"
    "\r\nulOnuType = 6012, ulNameLen = 9, acName = KT-G142D, ulTotalPonNum = 2, "
    "ulTotalLanPortNum = 2, ulTotalPotsNum = 1, ulTotalSpecialPortNum = 1"
    "\r\nOnu PON: 2 PON"
    "\r\n   0. ulPonType =   2, ulNameLen = 5, acName = GPON"
    "\r\n   1. ulPonType =   4, ulNameLen = 7, acName = XGSPON"
    "\r\nOnu LAN: 2 LAN"
    "\r\n   0. ulLanPortType =   3, ulNameLen =  3, acName = GE"
    "\r\n   1. ulLanPortType =   1, ulNameLen =  3, acName = FE"
    "\r\nOnu POTS: 1 POTS"
    "\r\n   0. ulPotsPortType =   1, ulNameLen =  4, acName = FXS"
    "\r\nOnu special port: 1 special port"
    "\r\n   0. ulSpecialPortType =   5, ulNameLen =  5, acName = CATV"
    "\r\n";

TEST_F(OnuPrinters, OneType) {
  AddTwoTypes();
  EXPECT_ONE_PRINTED(0, 0, kFirstOfTwo);
  EXPECT_ONE_PRINTED(2, 0, kSecondOfTwo);
}

TEST_F(OnuPrinters, OneTypeWithExtremeValues) {
  const PortRecords ports = {OnuPort(0xffffffff, ""), nullptr, OnuPort(12345, "100%s"),
                             OnuPort(0, string(59, 'p'))};
  AddOnu(Onu(0xffffffff, string(59, 'n'), ports, ports, ports, ports));
  const string name = string(59, 'n');
  const string port = string(59, 'p');
  EXPECT_ONE_PRINTED(0, 0,
                     "\r\nSupportedOneOnuInformation: " + name +
                         "\r\nulOnuType = -1, ulNameLen = 60, acName = " + name +
                         ", ulTotalPonNum = 4, ulTotalLanPortNum = 4, ulTotalPotsNum = 4, "
                         "ulTotalSpecialPortNum = 4"
                         "\r\nOnu PON: 4 PON"
                         "\r\n   0. ulPonType =  -1, ulNameLen = 1, acName = "
                         "\r\n   2. ulPonType = 12345, ulNameLen = 6, acName = 100%s"
                         "\r\n   3. ulPonType =   0, ulNameLen = 60, acName = " +
                         port +
                         "\r\nOnu LAN: 4 LAN"
                         "\r\n   0. ulLanPortType =  -1, ulNameLen =  1, acName = "
                         "\r\n   2. ulLanPortType = 12345, ulNameLen =  6, acName = 100%s"
                         "\r\n   3. ulLanPortType =   0, ulNameLen = 60, acName = " +
                         port +
                         "\r\nOnu POTS: 4 POTS"
                         "\r\n   0. ulPotsPortType =  -1, ulNameLen =  1, acName = "
                         "\r\n   2. ulPotsPortType = 12345, ulNameLen =  6, acName = 100%s"
                         "\r\n   3. ulPotsPortType =   0, ulNameLen = 60, acName = " +
                         port +
                         "\r\nOnu special port: 4 special port"
                         "\r\n   0. ulSpecialPortType =  -1, ulNameLen =  1, acName = "
                         "\r\n   2. ulSpecialPortType = 12345, ulNameLen =  6, acName = 100%s"
                         "\r\n   3. ulSpecialPortType =   0, ulNameLen = 60, acName = " +
                         port + "\r\n");
}

TEST_F(OnuPrinters, OneTypeWithoutItsListsOfPorts) {
  OnuInformation* const onu = Onu(7, "KT", {}, {}, {}, {});
  onu->ulTotalPonNum = 5;
  onu->ulTotalLanPortNum = 4;
  onu->ulTotalPotsNum = 3;
  onu->ulTotalSpecialPortNum = 2;
  AddOnu(onu);
  EXPECT_ONE_PRINTED(0, 0,
                     "\r\nSupportedOneOnuInformation: KT"
                     "\r\nulOnuType = 7, ulNameLen = 3, acName = KT, ulTotalPonNum = 5, "
                     "ulTotalLanPortNum = 4, ulTotalPotsNum = 3, ulTotalSpecialPortNum = 2"
                     "\r\nOnu PON: 5 PON"
                     "\r\nOnu LAN: 4 LAN"
                     "\r\nOnu POTS: 3 POTS"
                     "\r\nOnu special port: 2 special port"
                     "\r\n");
}

TEST_F(OnuPrinters, OneTypeWithAsManyPortsAsPossible) {
  AddOnu(Onu(7, "KT", OnuPortsOf(5, 2, "GPON"), OnuPortsOf(100, 3, "GE"), OnuPortsOf(100, 1, "FXS"),
             OnuPortsOf(100, 5, "USB")));
  const auto rows = [](uint32_t count, const string& behind) {
    string text;
    for (uint32_t i = 0; i < count; ++i) {
      text += "\r\n  " + Padded(i, 2) + behind;
    }
    return text;
  };
  EXPECT_ONE_PRINTED(
      0, 0,
      "\r\nSupportedOneOnuInformation: KT"
      "\r\nulOnuType = 7, ulNameLen = 3, acName = KT, ulTotalPonNum = 5, "
      "ulTotalLanPortNum = 100, ulTotalPotsNum = 100, ulTotalSpecialPortNum = 100"
      "\r\nOnu PON: 5 PON" +
          rows(5, ". ulPonType =   2, ulNameLen = 5, acName = GPON") + "\r\nOnu LAN: 100 LAN" +
          rows(100, ". ulLanPortType =   3, ulNameLen =  3, acName = GE") +
          "\r\nOnu POTS: 100 POTS" +
          rows(100, ". ulPotsPortType =   1, ulNameLen =  4, acName = FXS") +
          "\r\nOnu special port: 100 special port" +
          rows(100, ". ulSpecialPortType =   5, ulNameLen =  4, acName = USB") + "\r\n");
}

TEST_F(OnuPrinters, IndexOfOneType) {
  AddTwoTypes();
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_ONE_PRINTED(3, -21,
                       "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = 3, "
                       "ulSupportedOnuTypeNum = 3"
                       "\r\nIndex err! must from 0 to 2\r\n");
    EXPECT_ONE_PRINTED(4, -21,
                       "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = 4, "
                       "ulSupportedOnuTypeNum = 3"
                       "\r\nIndex err! must from 0 to 2\r\n");
    EXPECT_ONE_PRINTED(0xffffffff, -21,
                       "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = -1, "
                       "ulSupportedOnuTypeNum = 3"
                       "\r\nIndex err! must from 0 to 2\r\n");
    EXPECT_ONE_PRINTED(1, -2,
                       "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = 1, "
                       "pstOnuInformation = 0x0");
  }
}

TEST_F(OnuPrinters, LastPlaceOfAFullTable) {
  for (int i = 0; i < 199; ++i) {
    AddOnu(nullptr);
  }
  AddOnu(Onu(6001, "KT-G101", {OnuPort(2, "GPON")}, {OnuPort(3, "GE")}, {}, {}));
  EXPECT_ONE_PRINTED(199, 0, kFirstOfTwo);
  EXPECT_ONE_PRINTED(200, -21,
                     "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = 200, "
                     "ulSupportedOnuTypeNum = 200"
                     "\r\nIndex err! must from 0 to 199\r\n");
}

struct LimitRow {
  const char* name;
  uint32_t pon;
  uint32_t lan;
  uint32_t pots;
  uint32_t special;
  string refusal;
  friend std::ostream& operator<<(std::ostream& out, const LimitRow& row) {
    return out << row.name;
  }
};

class LimitsOfOneOnu : public OnuPrinters, public testing::WithParamInterface<LimitRow> {};

TEST_P(LimitsOfOneOnu, AreChecked) {
  OnuInformation* const onu = Onu(7, "100%s", {}, {}, {}, {});
  onu->ulTotalPonNum = GetParam().pon;
  onu->ulTotalLanPortNum = GetParam().lan;
  onu->ulTotalPotsNum = GetParam().pots;
  onu->ulTotalSpecialPortNum = GetParam().special;
  AddOnu(nullptr);
  AddOnu(onu);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_ONE_PRINTED(1, -14,
                       "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = 1, "
                       "acName = 100%s, " +
                           GetParam().refusal);
  }
}

const LimitRow kLimits[] = {
    {"Pon", 6, 0, 0, 0, "ulTotalPonNum = 6, MAX_ONU_PON_NUM_PER_ONU = 5"},
    {"PonFarAbove", 0xffffffff, 0, 0, 0, "ulTotalPonNum = -1, MAX_ONU_PON_NUM_PER_ONU = 5"},
    {"Lan", 5, 101, 0, 0, "ulTotalLanPortNum = 101, MAX_ONU_LAN_NUM_PER_ONU = 100"},
    {"LanFarAbove", 0, 0xffffffff, 0, 0, "ulTotalLanPortNum = -1, MAX_ONU_LAN_NUM_PER_ONU = 100"},
    {"Pots", 5, 100, 101, 0, "ulTotalPotsNum = 101, MAX_ONU_POTS_NUM_PER_ONU = 100"},
    {"PotsFarAbove", 0, 0, 0xffffffff, 0, "ulTotalPotsNum = -1, MAX_ONU_POTS_NUM_PER_ONU = 100"},
    {"Special", 5, 100, 100, 101,
     "ulTotalSpecialPortNum = 101, MAX_ONU_SPECIAL_PORT_NUM_PER_ONU = 100"},
    {"SpecialFarAbove", 0, 0, 0, 0xffffffff,
     "ulTotalSpecialPortNum = -1, MAX_ONU_SPECIAL_PORT_NUM_PER_ONU = 100"},
    {"PonFirst", 6, 101, 101, 101, "ulTotalPonNum = 6, MAX_ONU_PON_NUM_PER_ONU = 5"},
    {"LanNext", 5, 101, 101, 101, "ulTotalLanPortNum = 101, MAX_ONU_LAN_NUM_PER_ONU = 100"},
    {"PotsBeforeSpecial", 5, 100, 101, 101, "ulTotalPotsNum = 101, MAX_ONU_POTS_NUM_PER_ONU = 100"},
};
INSTANTIATE_TEST_SUITE_P(Cli, LimitsOfOneOnu, testing::ValuesIn(kLimits),
                         testing::PrintToStringParamName());

// ---- All types -------------------------------------------------------------------

constexpr char kTwoInOneLineEach[] =
    "\r\nAllSupportedOnuType:"
    "\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = 3"
    "\r\n 0. ulOnuType = 6001, ulNameLen =  8, acName = KT-G101        , "
    "ulTotalPonNum = 1, ulTotalLanPortNum =  1"
    "\r\n 2. ulOnuType = 6012, ulNameLen =  9, acName = KT-G142D       , "
    "ulTotalPonNum = 2, ulTotalLanPortNum =  2"
    "\r\n\r\n";

TEST_F(OnuPrinters, AllTypes) {
  AddTwoTypes();
  EXPECT_PRINTED(ddPrintAllSupportedOnuTypeInfomation, 0,
                 string(kTwoInOneLineEach) +
                     "\r\n"
                     "\r\nAll Onu detail information:"
                     "\r\n"
                     "\r\n0. acName = KT-G101"
                     "\r\nulOnuType = 6001, ulNameLen = 8, acName = KT-G101" +
                     kFirstOfTwo +
                     "\r\n2. acName = KT-G142D"
                     "\r\nulOnuType = 6012, ulNameLen = 9, acName = KT-G142D" +
                     kSecondOfTwo + "\r\n");
}

TEST_F(OnuPrinters, AllTypesWhenAllPlacesAreEmpty) {
  AddOnu(nullptr);
  EXPECT_PRINTED(ddPrintAllSupportedOnuTypeInfomation, 0,
                 "\r\nAllSupportedOnuType:"
                 "\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = 1"
                 "\r\n\r\n"
                 "\r\n"
                 "\r\nAll Onu detail information:"
                 "\r\n"
                 "\r\n");
}

TEST_F(OnuPrinters, AllTypesGoOnBehindACorruptOne) {
  OnuInformation* const corrupt = Onu(7, "100%s", {}, {}, {}, {});
  corrupt->ulTotalPonNum = 6;
  AddOnu(corrupt);
  AddOnu(Onu(0xffffffff, "", {}, {}, {}, {}));
  EXPECT_PRINTED(ddPrintAllSupportedOnuTypeInfomation, 0,
                 "\r\nAllSupportedOnuType:"
                 "\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = 2"
                 "\r\n 0. ulOnuType =   7, ulNameLen =  6, acName = 100%s          , "
                 "ulTotalPonNum = 6, ulTotalLanPortNum =  0"
                 "\r\n 1. ulOnuType =  -1, ulNameLen =  1, acName =                , "
                 "ulTotalPonNum = 0, ulTotalLanPortNum =  0"
                 "\r\n\r\n"
                 "\r\n"
                 "\r\nAll Onu detail information:"
                 "\r\n"
                 "\r\n0. acName = 100%s"
                 "\r\nulOnuType =   7, ulNameLen = 6, acName = 100%s"
                 "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = 0, "
                 "acName = 100%s, ulTotalPonNum = 6, MAX_ONU_PON_NUM_PER_ONU = 5"
                 "\r\n1. acName = "
                 "\r\nulOnuType =  -1, ulNameLen = 1, acName = "
                 "\r\nSupportedOneOnuInformation: "
                 "\r\nulOnuType = -1, ulNameLen = 1, acName = , ulTotalPonNum = 0, "
                 "ulTotalLanPortNum = 0, ulTotalPotsNum = 0, ulTotalSpecialPortNum = 0"
                 "\r\nOnu PON: 0 PON"
                 "\r\nOnu LAN: 0 LAN"
                 "\r\nOnu POTS: 0 POTS"
                 "\r\nOnu special port: 0 special port"
                 "\r\n"
                 "\r\n");
}

TEST_F(OnuPrinters, AllTypesPauseOnlyInTheLines) {
  OnuInformation* const onu = Onu(7, "KT", {}, {}, {}, {});
  for (int i = 0; i < 200; ++i) {
    AddOnu(onu);
  }
  const Printed printed = Print(ddPrintAllSupportedOnuTypeInfomation);
  EXPECT_EQ(printed.code, 0);
  EXPECT_EQ(test::FakePlatform::Get().delays, std::vector<int32_t>(25, 2));
  EXPECT_LT(printed.text.rfind("<pause 2>"), printed.text.find("All Onu detail information:"));
  EXPECT_NE(printed.text.find("\r\n199. acName = KT\r\nulOnuType =   7, ulNameLen = 3, acName = KT"
                              "\r\nSupportedOneOnuInformation: KT\r\n"),
            string::npos);
}

}  // namespace
