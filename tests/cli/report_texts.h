// The report of every table before any load.
#pragma once

#include <string>

#include "cli/frame_printer_test.h"

namespace test {

constexpr char kReportBegins[] =
    "\r\n"
    "\r\n/***************** System device describe begin! *****************/"
    "\r\n";
constexpr char kReportEnds[] =
    "\r\n"
    "\r\n/***************** System device describe end! *****************/"
    "\r\n                                                                "
    "\r\n";

inline std::string EmptyReport() {
  return std::string(kReportBegins) +
         "\r\nVersion:\r\nSupportedSoftwareVer:"
         "\r\ngstVersionInformation.ulSupportedSoftVerNum = 0\r\n\r\n"
         "\r\nModuleTypeList:\r\ngstModuleTypeList.ulModuleTypeNum = 0\r\n\r\n"
         "\r\nSysSupportFuncInformation:"
         "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 0\r\n\r\n"
         "\r\nddPrintAllSupportedMainBoardInformation err!, pBoardTypeArray = 0x0"
         "\r\nddPrintAllSupportedOltPortInfomation err! pOltPortTypeArray = 0x0"
         "\r\n\r\nAllSupportedBoard:"
         "\r\ngstSupportedBoardType.ulSupportedBoardTypeNum = 0\r\n\r\n" +
         FrameListing(kNoSlots,
                      "\r\n\r\nulSwitchChipLogicPortNum =  0"
                      "\r\n\r\nulType2SwitchChipLogicPortNum =  0\r\n\r\n") +
         "\r\nddPrintAllSupportedOnuPonInfomation err! pOnuPonTypeArray = 0x0"
         "\r\nddPrintAllSupportedOnuLanInfomation err! pOnuLanTypeArray = 0x0"
         "\r\nddPrintAllSupportedOnuPotsInfomation err! pOnuPotsTypeArray = 0x0"
         "\r\nddIsOnuSpecialPortTypeSupportedByName err! pOnuSpecialPortTypeArray = 0x0"
         "\r\nddPrintOneSupportedOnuInfomation, ulSupportedOnuTypeNum = 0, pOnuTypeArray = 0x0" +
         kReportEnds;
}

}  // namespace test
