// The printer of the OLT port types: whole listings, and its pauses.
#include <ostream>
#include <string>

#include "cli/olt_printer_test.h"

namespace {

using std::string;
using OltPortTypePrinter = test::OltPrinterTest;

TEST_F(OltPortTypePrinter, PortTypes) {
  AddPortType(Port(1, "EPON", 64));
  AddPortType(Port(31, "GE", 0));
  AddPortType(Port(1234, "COMBO-GPON-XGSPON-PORT", 512));
  AddPortType(Port(0xffffffff, "", 0xffffffff));
  AddPortType(Port(0, "100%s", 8));
  EXPECT_PRINTED(ddPrintAllSupportedOltPortInfomation, 0,
                 "\r\n"
                 "\r\nSupportedOltPort:"
                 "\r\ngstSupportedOltPortType.ulSupportedOltPortTypeNum = 5"
                 "\r\n 0. ulPortType =   1, ulNameLen =  5, acName =                 EPON, "
                 "ulSplittingRatio = 64"
                 "\r\n 1. ulPortType =  31, ulNameLen =  3, acName =                   GE, "
                 "ulSplittingRatio =  0"
                 "\r\n 2. ulPortType = 1234, ulNameLen = 23, acName = COMBO-GPON-XGSPON-PORT, "
                 "ulSplittingRatio = 512"
                 "\r\n 3. ulPortType =  -1, ulNameLen =  1, acName =                     , "
                 "ulSplittingRatio = -1"
                 "\r\n 4. ulPortType =   0, ulNameLen =  6, acName =                100%s, "
                 "ulSplittingRatio =  8"
                 "\r\n\r\n");
}

TEST_F(OltPortTypePrinter, LongestNameOfAPortType) {
  AddPortType(Port(2, string(59, 'n'), 128));
  EXPECT_PRINTED(ddPrintAllSupportedOltPortInfomation, 0,
                 "\r\n"
                 "\r\nSupportedOltPort:"
                 "\r\ngstSupportedOltPortType.ulSupportedOltPortTypeNum = 1"
                 "\r\n 0. ulPortType =   2, ulNameLen = 60, acName = " +
                     string(59, 'n') + ", ulSplittingRatio = 128\r\n\r\n");
}

TEST_F(OltPortTypePrinter, EmptyPlacesOfPortTypesKeepTheirNumbers) {
  AddPortType(nullptr);
  AddPortType(Port(2, "GPON", 128));
  AddPortType(nullptr);
  AddPortType(Port(4, "XGSPON", 256));
  AddPortType(nullptr);
  EXPECT_PRINTED(ddPrintAllSupportedOltPortInfomation, 0,
                 "\r\n"
                 "\r\nSupportedOltPort:"
                 "\r\ngstSupportedOltPortType.ulSupportedOltPortTypeNum = 5"
                 "\r\n 1. ulPortType =   2, ulNameLen =  5, acName =                 GPON, "
                 "ulSplittingRatio = 128"
                 "\r\n 3. ulPortType =   4, ulNameLen =  7, acName =               XGSPON, "
                 "ulSplittingRatio = 256"
                 "\r\n\r\n");
}

TEST_F(OltPortTypePrinter, NoPortTypes) {
  OltPortInformation* place = nullptr;  // all announced types were left out
  gstSupportedOltPortType = {0, &place};
  EXPECT_PRINTED(ddPrintAllSupportedOltPortInfomation, 0,
                 "\r\n"
                 "\r\nSupportedOltPort:"
                 "\r\ngstSupportedOltPortType.ulSupportedOltPortTypeNum = 0"
                 "\r\n\r\n");
}

TEST_F(OltPortTypePrinter, PortTypesWithoutTheirList) {
  for (const int32_t debug : {0, 1}) {
    for (const uint32_t count : {0u, 1u, 30u}) {
      ddDebugPrint = debug;
      gstSupportedOltPortType = {count, nullptr};
      EXPECT_PRINTED(ddPrintAllSupportedOltPortInfomation, -11,
                     "\r\nddPrintAllSupportedOltPortInfomation err! pOltPortTypeArray = 0x0");
    }
  }
}

TEST_F(OltPortTypePrinter, CorruptPortTypeCount) {
  OltPortInformation* places[31] = {};
  for (const int32_t debug : {0, 1}) {
    for (OltPortInformation** const list : {places, static_cast<OltPortInformation**>(nullptr)}) {
      ddDebugPrint = debug;
      gstSupportedOltPortType = {31, list};
      EXPECT_PRINTED(
          ddPrintAllSupportedOltPortInfomation, -11,
          "\r\nddPrintAllSupportedOltPortInfomation err! ulSupportedOltPortTypeNum = 31");
      gstSupportedOltPortType = {0xffffffff, list};
      EXPECT_PRINTED(
          ddPrintAllSupportedOltPortInfomation, -11,
          "\r\nddPrintAllSupportedOltPortInfomation err! ulSupportedOltPortTypeNum = -1");
    }
  }
}

// ---- Pauses ----------------------------------------------------------------------

struct PauseRow {
  const char* name;
  int places;
  int empty_place;  // -1: none is
  int paused_row;   // -1: none is
  friend std::ostream& operator<<(std::ostream& out, const PauseRow& row) {
    return out << row.name;
  }
};

class PausesOfPortTypes : public OltPortTypePrinter,
                          public testing::WithParamInterface<PauseRow> {};

TEST_P(PausesOfPortTypes, AreBeforeTheSixteenthRow) {
  const PauseRow& row = GetParam();
  string rows;
  for (int i = 0; i < row.places; ++i) {
    if (i == row.empty_place) {
      AddPortType(nullptr);
      continue;
    }
    AddPortType(Port(7, "GE", 64));
    rows += string(i == row.paused_row ? "<pause 2>" : "") + (i < 10 ? "\r\n " : "\r\n") +
            std::to_string(i) +
            ". ulPortType =   7, ulNameLen =  3, acName =                   GE, "
            "ulSplittingRatio = 64";
  }
  EXPECT_PRINTED(ddPrintAllSupportedOltPortInfomation, 0,
                 "\r\n"
                 "\r\nSupportedOltPort:"
                 "\r\ngstSupportedOltPortType.ulSupportedOltPortTypeNum = " +
                     std::to_string(row.places) + rows + "\r\n\r\n");
}

constexpr PauseRow kPauses[] = {
    {"One", 1, -1, -1},
    {"Fifteen", 15, -1, -1},
    {"Sixteen", 16, -1, 15},
    {"Seventeen", 17, -1, 15},
    {"AsManyAsPossible", 30, -1, 15},
    {"PlaceOfTheSixteenthIsEmpty", 30, 15, -1},
    {"PlacesAreCountedNotRows", 30, 14, 15},
    {"NotBeforeThePlaceBehind", 17, 16, 15},
    {"NotForAnEmptyLastPlace", 16, 15, -1},
};
INSTANTIATE_TEST_SUITE_P(Cli, PausesOfPortTypes, testing::ValuesIn(kPauses),
                         testing::PrintToStringParamName());

}  // namespace
