// Putting the library's state back.
#include "support/tables.h"

#include <cstdlib>

#include "sys_context/cfgfile.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace test {

namespace {

template <typename Record, typename Release>
void ReleaseRecords(uint32_t count, Record** records, Release release) {
  for (uint32_t i = 0; records != nullptr && i < count; ++i) {
    release(records[i]);
  }
  std::free(records);
}

void ReleaseBoard(BoardInformation* board) {
  if (board != nullptr) {
    ReleaseRecords(board->ulTotalServePortNum, board->pPortArray, std::free);
    ReleaseRecords(board->ulTotalSpecialPortNum, board->pSpecialPortArray, std::free);
    std::free(board);
  }
}

void ReleaseOnu(OnuInformation* onu) {
  if (onu != nullptr) {
    ReleaseRecords(onu->ulTotalPonNum, onu->pOnuPonArray, std::free);
    ReleaseRecords(onu->ulTotalLanPortNum, onu->pOnuLanPortArray, std::free);
    ReleaseRecords(onu->ulTotalPotsNum, onu->pOnuPotsPortArray, std::free);
    ReleaseRecords(onu->ulTotalSpecialPortNum, onu->pOnuSpecialPortArray, std::free);
    std::free(onu);
  }
}

}  // namespace

void ResetTables() {
  ReleaseRecords(gstModuleTypeList.ulModuleTypeNum, gstModuleTypeList.pModuleTypeArray, std::free);
  gstModuleTypeList = {};
  ReleaseRecords(gstSupportedOltPortType.ulSupportedOltPortTypeNum,
                 gstSupportedOltPortType.pOltPortTypeArray, std::free);
  gstSupportedOltPortType = {};
  ReleaseRecords(gstSupportedMainBoardType.ulSupportedBoardTypeNum,
                 gstSupportedMainBoardType.pBoardTypeArray, std::free);
  gstSupportedMainBoardType = {};
  ReleaseRecords(gstSupportedBoardType.ulSupportedBoardTypeNum,
                 gstSupportedBoardType.pBoardTypeArray, ReleaseBoard);
  gstSupportedBoardType = {};
  ddEmptyFrameInformation();
  ReleaseRecords(gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
                 gstSupportedOnuPonType.pOnuPonTypeArray, std::free);
  gstSupportedOnuPonType = {};
  ReleaseRecords(gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
                 gstSupportedOnuLanType.pOnuLanTypeArray, std::free);
  gstSupportedOnuLanType = {};
  ReleaseRecords(gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
                 gstSupportedOnuPotsType.pOnuPotsTypeArray, std::free);
  gstSupportedOnuPotsType = {};
  ReleaseRecords(gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
                 gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray, std::free);
  gstSupportedOnuSpecialPortType = {};
  ReleaseRecords(gstSupportedOnuType.ulSupportedOnuTypeNum, gstSupportedOnuType.pOnuTypeArray,
                 ReleaseOnu);
  gstSupportedOnuType = {};
  optmodule_file_free();
  gstVersionInformation = {};
  gstSysSupportFuncType = {};
  gstrddSoftwareVer = "KT2200V4.0";
  strDeviceDefFilePath = "/mem/dd.ini";
  dd_gstrSectionFrameInfomation = "FrameInfomation";
  dd_gstrKeyFrameName = "Name";
  dd_gstrKeyFrameType = "Type";
  ddDebugPrint = 0;
  dosFsMsgLevel = 0;
  CFG_ssl = '[';
  CFG_ssr = ']';
  CFG_section_line_no = 0;
  CFG_key_line_no = 0;
  CFG_key_lines = 0;
}

}  // namespace test
