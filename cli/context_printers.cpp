// The listings of versions, modules and system functions.
#include "cli/listing.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"

int32_t ddPrintVersionInformation(void* vty) {
  using namespace sys_context;
  const uint32_t count = gstVersionInformation.ulSupportedSoftVerNum;
  if (count > MAX_SUPPORTED_SOFT_VER_NUM) {
    vty_out(
        vty,
        "\r\nddPrintVersionInformation err! ulSupportedSoftVerNum = %d, MAX_SUPPORTED_SOFT_VER_NUM = %d",
        count, MAX_SUPPORTED_SOFT_VER_NUM);
    return kTooManyVersions;
  }
  vty_out(vty, "\r\nVersion:");
  vty_out(vty, "\r\nSupportedSoftwareVer:");
  vty_out(vty, "\r\ngstVersionInformation.ulSupportedSoftVerNum = %d", count);
  for (uint32_t i = 0; i < count; ++i) {
    const SupportedSoftVer& version = gstVersionInformation.astSupportedSoftVer[i];
    vty_out(vty, "\r\n%2d. ulSupportedSoftVerLen = %2d, acSupportedSoftVer = %-6s", i,
            version.ulSupportedSoftVerLen, version.acSupportedSoftVer);
  }
  EndListing(vty);
  return kOk;
}

int32_t ddPrintAllModuleInformation(void* vty) {
  using namespace sys_context;
  const uint32_t count = gstModuleTypeList.ulModuleTypeNum;
  if (count > MAX_SUPPORTED_MODULE_TYPE_NUM) {
    vty_out(vty, "\r\nddPrintAllModuleInformation err! ulModuleTypeNum = %d", count);
    return kTooManyModules;
  }
  if (count != 0 && gstModuleTypeList.pModuleTypeArray == nullptr) {
    vty_out(vty, "\r\nddPrintAllModuleInformation err!, pModuleTypeArray = 0x%x",
            LowBits(gstModuleTypeList.pModuleTypeArray));
    return kNoTable;
  }
  vty_out(vty, "\r\nModuleTypeList:");
  vty_out(vty, "\r\ngstModuleTypeList.ulModuleTypeNum = %d", count);
  for (uint32_t i = 0; i < count; ++i) {
    const ModuleInformation* const module = gstModuleTypeList.pModuleTypeArray[i];
    if (module == nullptr) {
      continue;
    }
    vty_out(vty, "\r\n%2d. ModuleType = %2d, ulNameLen = %2d, acName = %-13s, ulSize = %d", i,
            module->ulModuleType, module->ulNameLen, module->acName, module->ulSize);
  }
  EndListing(vty);
  return kOk;
}

int32_t ddPrintSysSupportFuncInformation(void* vty) {
  using namespace sys_context;
  const uint32_t count = gstSysSupportFuncType.ulSupportedSysFunctionTypeNum;
  if (count > MAX_SUPPORTED_MODULE_TYPE_NUM) {
    // kept as is: the messages of this listing name themselves "debug_...".
    vty_out(
        vty,
        "\r\ndebug_ddPrintSysSupportFuncInformation err! ulSysSupportFuncNum = %d, MAX_SUPPORTED_MODULE_TYPE_NUM = %d",
        count, MAX_SUPPORTED_MODULE_TYPE_NUM);
    return kTooManyModules;
  }
  vty_out(vty, "\r\nSysSupportFuncInformation:");
  vty_out(vty, "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = %d", count);
  for (uint32_t i = 0; i < count; ++i) {
    const uint32_t type = gstSysSupportFuncType.aulSupportedSysFunctionType[i];
    char name[MAX_MODULE_NAME_LEN + 1] = {};  // ends, even if a name of the table does not
    if (ddGetModuleNameByType(type, name) != kOk) {
      vty_out(
          vty,
          "\r\ndebug_ddPrintSysSupportFuncInformation->ddGetModuleNameByType err! ulIndex = %d, ulModuleType = %d",
          i, type);
      continue;
    }
    vty_out(vty, "\r\n%2d. ulModuleType = %2d, aucModuleName = %-6s", i, type, name);
  }
  EndListing(vty);
  return kOk;
}
