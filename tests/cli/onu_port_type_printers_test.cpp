// The printers of the four catalogs of ONU port types: whole listings, the places that
// end one, and its pauses.
#include <ostream>
#include <string>
#include <vector>

#include "cli/onu_printer_test.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::PortRecords;
using test::With;

// A catalog, and the texts of its listing, with words in braces for the values.
struct CatalogRow {
  const char* name;
  int32_t (*print)(void* vty);
  void (*set)(uint32_t count, OnuPortTypeInformation** types);
  string above_limit;
  string no_array;
  string empty_place;
  string head;
  string row;
  friend std::ostream& operator<<(std::ostream& out, const CatalogRow& catalog) {
    return out << catalog.name;
  }
};

const CatalogRow kCatalogs[] = {
    {.name = "Pon",
     .print = ddPrintAllSupportedOnuPonInfomation,
     .set =
         [](uint32_t count, OnuPortTypeInformation** types) {
           gstSupportedOnuPonType = {count, types};
         },
     .above_limit = "\r\nddPrintAllSupportedOnuPonInfomation err! ulSupportedOnuPonTypeNum = "
                    "{count}, MAX_ONU_PON_TYPE_NUM = 30",
     .no_array = "\r\nddPrintAllSupportedOnuPonInfomation err! pOnuPonTypeArray = 0x0",
     .empty_place =
         "\r\ndebug_ddPrintAllSupportedOnuPonInfomation err! pstOnuPonInformation = 0x0, "
         "ulSupportedOnuPonTypeIndex = {place}, ulSupportedOnuPonTypeNum = {count}",
     .head = "\r\nSupportedOnuPon:\r\nSupportedOnuPon.ulSupportedOnuPonTypeNum = {count}",
     .row = "\r\n{place}. ulPonType = {type}, ulNameLen = {length}, acName = {name}"},
    {.name = "Lan",
     .print = ddPrintAllSupportedOnuLanInfomation,
     .set =
         [](uint32_t count, OnuPortTypeInformation** types) {
           gstSupportedOnuLanType = {count, types};
         },
     .above_limit = "\r\nddPrintAllSupportedOnuLanInfomation err! ulSupportedOnuLanTypeNum = "
                    "{count}, MAX_ONU_LAN_TYPE_NUM = 30",
     .no_array = "\r\nddPrintAllSupportedOnuLanInfomation err! pOnuLanTypeArray = 0x0",
     .empty_place =
         "\r\ndebug_ddPrintAllSupportedOnuLanInfomation err! pstOnuLanPortInformation = 0x0, "
         "ulSupportedOnuLanTypeIndex = {place}, ulSupportedOnuLanTypeNum = {count}",
     .head = "\r\nSupportedOnuLan:\r\ngstSupportedOnuLanType.ulSupportedOnuLanTypeNum = {count}",
     .row = "\r\n{place}. ulLanType = {type}, ulNameLen = {length}, acName = {name}"},
    {.name = "Pots",
     .print = ddPrintAllSupportedOnuPotsInfomation,
     .set =
         [](uint32_t count, OnuPortTypeInformation** types) {
           gstSupportedOnuPotsType = {count, types};
         },
     .above_limit = "\r\nddPrintAllSupportedOnuPotsInfomation err! ulSupportedOnuPotsTypeNum = "
                    "{count}, MAX_ONU_POTS_TYPE_NUM = 30",
     .no_array = "\r\nddPrintAllSupportedOnuPotsInfomation err! pOnuPotsTypeArray = 0x0",
     .empty_place =
         "\r\ndebug_ddPrintAllSupportedOnuPotsInfomation err! pstOnuPotsPortInformation = 0x0, "
         "ulSupportedOnuPotsTypeIndex  = {place}, ulSupportedOnuPotsTypeNum = {count}",
     .head = "\r\nSupportedOnuPots:\r\ngstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum = {count}",
     .row = "\r\n{place}. ulPortType = {type}, ulNameLen = {length}, acName = {name}"},
    {.name = "SpecialPort",
     .print = ddPrintAllSupportedOnuSpecialPortInfomation,
     .set =
         [](uint32_t count, OnuPortTypeInformation** types) {
           gstSupportedOnuSpecialPortType = {count, types};
         },
     .above_limit = "\r\ndebug_ddPrintAllSupportedOnuSpecialPortInfomation err! "
                    "ulSupportedOnuSpecialPortTypeNum = {count}, "
                    "MAX_ONU_SPECIAL_PORT_TYPE_NUM = 30",
     .no_array = "\r\nddIsOnuSpecialPortTypeSupportedByName err! pOnuSpecialPortTypeArray = 0x0",
     .empty_place = "\r\ndebug_ddPrintAllSupportedOnuSpecialPortInfomation err! "
                    "pstOnuSpecialPortInformation = 0x0, "
                    "ulSupportedOnuSpecialPortTypeIndex = {place}, "
                    "ulSupportedOnuSpecialPortTypeNum = {count}",
     .head = "\r\nSupportedOnuSpecialPort:"
             "\r\ngstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum = {count}",
     .row = "\r\n{place}. ulPortType = {type}, ulNameLen = {length}, acName = {name}"},
};

class OnuPortTypes : public test::OnuPrinterTest {
 protected:
  // Makes these the types of the catalog.
  void Set(const CatalogRow& catalog, const PortRecords& types) {
    types_ = types;
    catalog.set(static_cast<uint32_t>(types_.size()), types_.data());
  }
  static string Head(const CatalogRow& catalog, const string& count) {
    return With(catalog.head, "{count}", count);
  }
  static string Row(const CatalogRow& catalog, const string& place, const string& type,
                    const string& length, const string& name) {
    const string numbered = With(With(catalog.row, "{place}", place), "{type}", type);
    return With(With(numbered, "{length}", length), "{name}", name);
  }
  static string EmptyPlace(const CatalogRow& catalog, const string& place, const string& count) {
    return With(With(catalog.empty_place, "{place}", place), "{count}", count);
  }

 private:
  PortRecords types_;
};

class OnuPortTypePrinters : public OnuPortTypes, public testing::WithParamInterface<CatalogRow> {};

TEST_P(OnuPortTypePrinters, ShowEveryType) {
  const CatalogRow& catalog = GetParam();
  Set(catalog, {OnuPort(1, "EPON"), OnuPort(31, "GE"), OnuPort(1234, "NAME-OF-16-BYTES"),
                OnuPort(0xffffffff, ""), OnuPort(0, "100%s"), OnuPort(42, string(59, 'n'))});
  EXPECT_PRINTED(catalog.print, 0,
                 Head(catalog, "6") + Row(catalog, " 0", "  1", " 5", "           EPON") +
                     Row(catalog, " 1", " 31", " 3", "             GE") +
                     Row(catalog, " 2", "1234", "17", "NAME-OF-16-BYTES") +
                     Row(catalog, " 3", " -1", " 1", "               ") +
                     Row(catalog, " 4", "  0", " 6", "          100%s") +
                     Row(catalog, " 5", " 42", "60", string(59, 'n')) + "\r\n\r\n");
}

TEST_P(OnuPortTypePrinters, ShowNoTypes) {
  OnuPortTypeInformation* place = nullptr;  // all announced types were left out
  GetParam().set(0, &place);
  EXPECT_PRINTED(GetParam().print, 0, Head(GetParam(), "0") + "\r\n\r\n");
}

TEST_P(OnuPortTypePrinters, NeedAList) {
  for (const int32_t debug : {0, 1}) {
    for (const uint32_t count : {0u, 1u, 30u}) {
      ddDebugPrint = debug;
      GetParam().set(count, nullptr);
      EXPECT_PRINTED(GetParam().print, -10, GetParam().no_array);
    }
  }
}

TEST_P(OnuPortTypePrinters, RefuseACorruptCount) {
  OnuPortTypeInformation* places[31] = {};
  for (const int32_t debug : {0, 1}) {
    for (OnuPortTypeInformation** const list :
         {places, static_cast<OnuPortTypeInformation**>(nullptr)}) {
      ddDebugPrint = debug;
      GetParam().set(31, list);
      EXPECT_PRINTED(GetParam().print, -14, With(GetParam().above_limit, "{count}", "31"));
      GetParam().set(0xffffffff, list);
      EXPECT_PRINTED(GetParam().print, -14, With(GetParam().above_limit, "{count}", "-1"));
    }
  }
}

TEST_P(OnuPortTypePrinters, EndAtAnEmptyPlace) {
  const CatalogRow& catalog = GetParam();
  OnuPortTypeInformation* const type = OnuPort(2, "GPON");
  const string first_row = Row(catalog, " 0", "  2", " 5", "           GPON");
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    Set(catalog, {nullptr});
    EXPECT_PRINTED(catalog.print, -2, Head(catalog, "1") + EmptyPlace(catalog, "0", "1"));
    Set(catalog, {nullptr, type, type});
    EXPECT_PRINTED(catalog.print, -2, Head(catalog, "3") + EmptyPlace(catalog, "0", "3"));
    Set(catalog, {type, nullptr, type});
    EXPECT_PRINTED(catalog.print, -2,
                   Head(catalog, "3") + first_row + EmptyPlace(catalog, "1", "3"));
    Set(catalog, {type, nullptr, nullptr});
    EXPECT_PRINTED(catalog.print, -2,
                   Head(catalog, "3") + first_row + EmptyPlace(catalog, "1", "3"));
  }
}

TEST_P(OnuPortTypePrinters, ShowTheirOwnTable) {
  PortRecords other = {OnuPort(9, "OTHER")};
  for (const CatalogRow& catalog : kCatalogs) {
    catalog.set(1, other.data());
  }
  Set(GetParam(), {OnuPort(3, "OWN")});
  EXPECT_PRINTED(
      GetParam().print, 0,
      Head(GetParam(), "1") + Row(GetParam(), " 0", "  3", " 4", "            OWN") + "\r\n\r\n");
}

INSTANTIATE_TEST_SUITE_P(Cli, OnuPortTypePrinters, testing::ValuesIn(kCatalogs),
                         testing::PrintToStringParamName());

// ---- Pauses ----------------------------------------------------------------------

struct PauseRow {
  const char* name;
  uint32_t places;
  uint32_t empty_place;  // where the listing ends; none: 99
  uint32_t paused_row;   // none: 99
  friend std::ostream& operator<<(std::ostream& out, const PauseRow& row) {
    return out << row.name;
  }
};

class PausesOfOnuPortTypes : public OnuPortTypes,
                             public testing::WithParamInterface<std::tuple<CatalogRow, PauseRow>> {
};

TEST_P(PausesOfOnuPortTypes, AreBeforeTheSixteenthRow) {
  const auto& [catalog, row] = GetParam();
  PortRecords types = OnuPortsOf(row.places, 7, "GE");
  string listing = Head(catalog, std::to_string(row.places));
  int32_t code = 0;
  for (uint32_t i = 0; i < row.places && code == 0; ++i) {
    if (i == row.empty_place) {
      types[i] = nullptr;
      listing += EmptyPlace(catalog, std::to_string(i), std::to_string(row.places));
      code = -2;
    } else {
      listing += string(i == row.paused_row ? "<pause 2>" : "") +
                 Row(catalog, test::Padded(i, 2), "  7", " 3", "             GE");
    }
  }
  Set(catalog, types);
  EXPECT_PRINTED(catalog.print, code, listing + (code == 0 ? "\r\n\r\n" : ""));
}

constexpr PauseRow kPauses[] = {
    {"One", 1, 99, 99},
    {"Fifteen", 15, 99, 99},
    {"Sixteen", 16, 99, 15},
    {"Seventeen", 17, 99, 15},
    {"AsManyAsPossible", 30, 99, 15},
    {"NotForAnEmptyPlace", 16, 15, 99},
    {"EmptyPlaceBehind", 17, 16, 15},
    {"LastPlaceEmpty", 30, 29, 15},
};
INSTANTIATE_TEST_SUITE_P(Cli, PausesOfOnuPortTypes,
                         testing::Combine(testing::ValuesIn(kCatalogs), testing::ValuesIn(kPauses)),
                         test::KindAndRow());

}  // namespace
