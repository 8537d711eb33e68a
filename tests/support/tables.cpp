// Putting the library's state back.
#include "support/tables.h"

#include <cstdlib>

#include "sys_context/cfgfile.h"

namespace test {

void ResetTables() {
  for (uint32_t i = 0; i < gstModuleTypeList.ulModuleTypeNum; ++i) {
    if (gstModuleTypeList.pModuleTypeArray != nullptr) {
      std::free(gstModuleTypeList.pModuleTypeArray[i]);
    }
  }
  std::free(gstModuleTypeList.pModuleTypeArray);
  gstModuleTypeList = {};
  gstVersionInformation = {};
  gstSysSupportFuncType = {};
  gstrddSoftwareVer = "KT2200V4.0";
  strDeviceDefFilePath = "/mem/dd.ini";
  ddDebugPrint = 0;
  dosFsMsgLevel = 0;
  CFG_ssl = '[';
  CFG_ssr = ']';
  CFG_section_line_no = 0;
  CFG_key_line_no = 0;
  CFG_key_lines = 0;
}

}  // namespace test
