// Putting the library's state back.
#include "support/tables.h"

#include <cstdlib>

#include "sys_context/cfgfile.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"

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
