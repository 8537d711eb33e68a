// The report of every table: its sections, in their order, and what stands in the place
// of those that cannot be shown.
#include "cli/report_texts.h"

#include <string>
#include <vector>

#include "cli/onu_printer_test.h"

namespace {

using std::string;

class DeviceReport : public test::OnuPrinterTest {
 protected:
  // One record in every table.
  void FillTables() {
    AddVersion("KT2200V4.0");
    AddModule(1, "OMCI", 64);
    AddFunction(1);
    MainBoardInformation* const main_board = MainBoard(101, "MCXA", 1);
    AddMap(*main_board, "NoSpecialUplinkBoard", {{1, 5}});
    AddMainBoard(main_board);
    AddPortType(Port(2, "GPON", 128));
    AddBoard(Board(3102, "GP01A", {Port(2, "GPON", 128)}, {}));
    gstFrame.stRealSlot = Slots({1});
    AddBoardRows();
    SetBoards(1, {3102});
    AddLogicPort({1, 4, 0});
    pon_ = OnuPort(2, "GPON");
    lan_ = OnuPort(3, "GE");
    pots_ = OnuPort(1, "FXS");
    special_ = OnuPort(5, "CATV");
    gstSupportedOnuPonType = {1, &pon_};
    gstSupportedOnuLanType = {1, &lan_};
    gstSupportedOnuPotsType = {1, &pots_};
    gstSupportedOnuSpecialPortType = {1, &special_};
    AddOnu(Onu(6001, "KT-G101", {pon_}, {lan_}, {}, {}));
  }

  OnuPortTypeInformation* pon_;
  OnuPortTypeInformation* lan_;
  OnuPortTypeInformation* pots_;
  OnuPortTypeInformation* special_;
};

constexpr char kVersions[] =
    "\r\nVersion:\r\nSupportedSoftwareVer:\r\ngstVersionInformation.ulSupportedSoftVerNum = 1"
    "\r\n 0. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.0\r\n\r\n";
constexpr char kModules[] =
    "\r\nModuleTypeList:\r\ngstModuleTypeList.ulModuleTypeNum = 1"
    "\r\n 0. ModuleType =  1, ulNameLen =  5, acName = OMCI         , ulSize = 64\r\n\r\n";
constexpr char kFunctions[] =
    "\r\nSysSupportFuncInformation:\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 1"
    "\r\n 0. ulModuleType =  1, aucModuleName = OMCI  \r\n\r\n";
constexpr char kMainBoards[] =
    "\r\n\r\nPrintAllSupportedMainBoardInformation: "
    "\r\ngstSupportedMainBoardType.ulSupportedBoardTypeNum = 1"
    "\r\n0. ulType = 101, ulSubType = 0, ulNameLen = 5, acName = MCXA"
    "\r\nulSwitchChipLogicPortNum = 1"
    "\r\n  0. ulBoardNameLen = 21, acBoardName = NoSpecialUplinkBoard"
    "\r\nNoSpecialUplinkBoard_SwitchChipLogicPort =  1  ---> PhyPort: 5"
    "\r\n\r\n\r\n";
constexpr char kOltPorts[] =
    "\r\n\r\nSupportedOltPort:\r\ngstSupportedOltPortType.ulSupportedOltPortTypeNum = 1"
    "\r\n 0. ulPortType =   2, ulNameLen =  5, acName =                 GPON, "
    "ulSplittingRatio = 128\r\n\r\n";
constexpr char kBoards[] =
    "\r\n\r\nAllSupportedBoard:\r\ngstSupportedBoardType.ulSupportedBoardTypeNum = 1"
    "\r\n 0. ulType = 3102, ulSubType = 0, ulNameLen = 6, acName = GP01A, ulTotalPortNum = 1, "
    "ulTotalSpecialPortNum = 0"
    "\r\n"
    "\r\nIndex = 0"
    "\r\n ulType = 3102, ulSubType =  0, ulNameLen =  6, acName =    GP01A, "
    "ulTotalServePortNum =  1, ulTotalSpecialPortNum =  0"
    "\r\nServePort = 1"
    "\r\n   0. ulPortType =   2, ulNameLen =  5, acName =     GPON, ulSplittingRatio = 128"
    "\r\nSpecialPort = 0"
    "\r\n\r\n\r\n";
string Frame() {
  return test::FrameListing(
      "\r\nulSlotAmount =  1, ulSlotStart  =  1, ulSlotEnd  =  1"
      "\r\nucSlotArray = 1, "
      "\r\n",
      "\r\nulSLotOut =  1, GP01A|"
      "\r\n\r\nulSwitchChipLogicPortNum =  1"
      "\r\nSwitchChipLogicPortNum =  1  ---> (SlotOut: 1, Port: 4)"
      "\r\n\r\nulType2SwitchChipLogicPortNum =  0\r\n\r\n");
}
constexpr char kOnuPorts[] =
    "\r\nSupportedOnuPon:\r\nSupportedOnuPon.ulSupportedOnuPonTypeNum = 1"
    "\r\n 0. ulPonType =   2, ulNameLen =  5, acName =            GPON\r\n\r\n"
    "\r\nSupportedOnuLan:\r\ngstSupportedOnuLanType.ulSupportedOnuLanTypeNum = 1"
    "\r\n 0. ulLanType =   3, ulNameLen =  3, acName =              GE\r\n\r\n"
    "\r\nSupportedOnuPots:\r\ngstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum = 1"
    "\r\n 0. ulPortType =   1, ulNameLen =  4, acName =             FXS\r\n\r\n"
    "\r\nSupportedOnuSpecialPort:"
    "\r\ngstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum = 1"
    "\r\n 0. ulPortType =   5, ulNameLen =  5, acName =            CATV\r\n\r\n";
constexpr char kOnus[] =
    "\r\nAllSupportedOnuType:\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = 1"
    "\r\n 0. ulOnuType = 6001, ulNameLen =  8, acName = KT-G101        , ulTotalPonNum = 1, "
    "ulTotalLanPortNum =  1\r\n\r\n"
    "\r\n\r\nAll Onu detail information:\r\n"
    "\r\n0. acName = KT-G101"
    "\r\nulOnuType = 6001, ulNameLen = 8, acName = KT-G101"
    "\r\nSupportedOneOnuInformation: KT-G101"
    "\r\nulOnuType = 6001, ulNameLen = 8, acName = KT-G101, ulTotalPonNum = 1, "
    "ulTotalLanPortNum = 1, ulTotalPotsNum = 0, ulTotalSpecialPortNum = 0"
    "\r\nOnu PON: 1 PON"
    "\r\n   0. ulPonType =   2, ulNameLen = 5, acName = GPON"
    "\r\nOnu LAN: 1 LAN"
    "\r\n   0. ulLanPortType =   3, ulNameLen =  3, acName = GE"
    "\r\nOnu POTS: 0 POTS"
    "\r\nOnu special port: 0 special port\r\n"
    "\r\n";

TEST_F(DeviceReport, ShowsEveryTableInOrder) {
  FillTables();
  EXPECT_PRINTED(ddPrintAllContextInformation, 0,
                 string(test::kReportBegins) + kVersions + kModules + kFunctions + kMainBoards +
                     kOltPorts + kBoards + Frame() + kOnuPorts + kOnus + test::kReportEnds);
}

TEST_F(DeviceReport, IsCompleteBeforeAnyLoad) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_PRINTED(ddPrintAllContextInformation, 0, test::EmptyReport());
  }
}

TEST_F(DeviceReport, ShowsErrorsInThePlacesOfCorruptTables) {
  gstVersionInformation.ulSupportedSoftVerNum = 31;
  gstModuleTypeList.ulModuleTypeNum = 201;
  gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 201;
  gstSupportedMainBoardType.ulSupportedBoardTypeNum = 101;
  gstSupportedOltPortType.ulSupportedOltPortTypeNum = 31;
  gstSupportedBoardType.ulSupportedBoardTypeNum = 101;
  gstFrame.stRealSlot.ulSlotAmount = 101;
  gstSupportedOnuPonType.ulSupportedOnuPonTypeNum = 31;
  gstSupportedOnuLanType.ulSupportedOnuLanTypeNum = 31;
  gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum = 31;
  gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum = 31;
  gstSupportedOnuType.ulSupportedOnuTypeNum = 201;
  const Printed printed = Print(ddPrintAllContextInformation);
  EXPECT_EQ(printed.code, 0);
  size_t from = 0;
  for (const char* const text :
       {test::kReportBegins, "\r\nddPrintVersionInformation err! ulSupportedSoftVerNum = 31, ",
        "\r\nddPrintAllModuleInformation err! ulModuleTypeNum = 201",
        "\r\ndebug_ddPrintSysSupportFuncInformation err! ulSysSupportFuncNum = 201, ",
        "\r\nddPrintAllSupportedMainBoardInformation err!, ulSupportedBoardTypeNum = 101, ",
        "\r\nddPrintAllSupportedOltPortInfomation err! ulSupportedOltPortTypeNum = 31",
        "\r\nddPrintAllSupportedBoardInfomation err! ulSupportedBoardTypeNum = 101",
        "\r\nddPrintSlotClassInformation err! ulSlotAmount = 101, MAX_SLOT_END = 100",
        "\r\nddPrintAllSupportedOnuPonInfomation err! ulSupportedOnuPonTypeNum = 31, ",
        "\r\nddPrintAllSupportedOnuLanInfomation err! ulSupportedOnuLanTypeNum = 31, ",
        "\r\nddPrintAllSupportedOnuPotsInfomation err! ulSupportedOnuPotsTypeNum = 31, ",
        "\r\ndebug_ddPrintAllSupportedOnuSpecialPortInfomation err! "
        "ulSupportedOnuSpecialPortTypeNum = 31, ",
        "\r\nddPrintAllSupportedOnuTypeInfomation err! ulSupportedOnuTypeNum = 201, ",
        test::kReportEnds}) {
    const size_t place = printed.text.find(text, from);
    ASSERT_NE(place, string::npos) << text;
    from = place + 1;
  }
}

TEST_F(DeviceReport, GoesOnBehindAMainBoardThatEndsItsSection) {
  FillTables();
  gstSupportedMainBoardType.pBoardTypeArray[0]->ulSwitchChipLogicPortNum = 1281;
  EXPECT_PRINTED(ddPrintAllContextInformation, 0,
                 string(test::kReportBegins) + kVersions + kModules + kFunctions +
                     "\r\n\r\nPrintAllSupportedMainBoardInformation: "
                     "\r\ngstSupportedMainBoardType.ulSupportedBoardTypeNum = 1"
                     "\r\n0. ulType = 101, ulSubType = 0, ulNameLen = 5, acName = MCXA"
                     "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! "
                     "ulSupportedBoardTypeIndex = 0, ulType = 101, acName = MCXA, "
                     "ulSwitchChipLogicPortNum = 1281, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280" +
                     kOltPorts + kBoards + Frame() + kOnuPorts + kOnus + test::kReportEnds);
}

TEST_F(DeviceReport, NeedsATerminal) {
  FillTables();
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    test::FakePlatform::Reset();
    EXPECT_EQ(ddPrintAllContextInformation(nullptr), -2);
    EXPECT_EQ(test::FakePlatform::Get().terminal, "");
    EXPECT_TRUE(test::FakePlatform::Get().terminals_used.empty());
    EXPECT_EQ(console_.Text(), "");
  }
}

}  // namespace
