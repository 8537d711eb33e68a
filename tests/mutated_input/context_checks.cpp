// Versions, modules, system functions; and the optical modules.
#include <algorithm>

#include "mutated_input/checker.h"
#include "sys_context/context.h"
#include "sys_context/optmodule.h"

namespace mutated {
namespace {

void CheckVersions(Checker& checker) {
  const VersionInformation& table = gstVersionInformation;
  const uint32_t count = table.ulSupportedSoftVerNum;
  checker.Expect(count <= MAX_SUPPORTED_SOFT_VER_NUM, "number of versions", count);
  checker.Expect((count != 0) <= checker.IsLoaded(kVersions), "versions after a failure", count);
  for (uint32_t i = 0; i < std::min<uint32_t>(count, MAX_SUPPORTED_SOFT_VER_NUM); ++i) {
    const SupportedSoftVer& version = table.astSupportedSoftVer[i];
    checker.ExpectName(version.acSupportedSoftVer, version.ulSupportedSoftVerLen, "version", i);
  }
}

void CheckModules(Checker& checker) {
  const ModuleTypeList& table = gstModuleTypeList;
  if (!checker.IsLoaded(kModules)) {
    checker.ExpectNone(table.ulModuleTypeNum, table.pModuleTypeArray, "modules after a failure");
  }
  if (checker.ExpectRecords(table.ulModuleTypeNum, MAX_SUPPORTED_MODULE_TYPE_NUM,
                            table.pModuleTypeArray, "module")) {
    for (uint32_t i = 0; i < table.ulModuleTypeNum; ++i) {
      const ModuleInformation& module = *table.pModuleTypeArray[i];
      checker.ExpectName(module.acName, module.ulNameLen, "module's name", i);
    }
  }
}

bool IsModule(uint32_t type) {
  ModuleInformation** const modules = gstModuleTypeList.pModuleTypeArray;
  return std::any_of(modules, modules + gstModuleTypeList.ulModuleTypeNum,
                     [&](const ModuleInformation* module) { return module->ulModuleType == type; });
}

void CheckFunctions(Checker& checker) {
  const SysSupportFuncType& table = gstSysSupportFuncType;
  const uint32_t count = table.ulSupportedSysFunctionTypeNum;
  checker.Expect(count <= MAX_SUPPORTED_MODULE_TYPE_NUM, "number of functions", count);
  checker.Expect((count != 0) <= checker.IsLoaded(kFunctions), "functions after a failure", count);
  for (uint32_t i = 0; i < std::min<uint32_t>(count, MAX_SUPPORTED_MODULE_TYPE_NUM); ++i) {
    checker.Expect(IsModule(table.aulSupportedSysFunctionType[i]), "function is no module", i);
  }
}

}  // namespace

void CheckContextTables(Checker& checker) {
  CheckVersions(checker);
  CheckModules(checker);
  CheckFunctions(checker);
}

void CheckOptModules(Checker& checker) {
  const OptModuleInfoList& table = g_optmdule_infolist;
  if (!checker.IsLoaded(kOpticalModules)) {
    checker.ExpectNone(table.listnum, table.objlist, "optical modules after a failure");
  }
  if (!checker.ExpectRecords(table.listnum, MAX_OPTMODULE_INFO_NUM, table.objlist,
                             "optical module")) {
    return;
  }
  for (uint32_t i = 0; i < table.listnum; ++i) {
    const OptModuleInfo& module = *table.objlist[i];
    checker.Expect((module.pathnum == 0) == (module.pathinfo == nullptr), "paths", i);
    checker.ExpectRecords(module.pathnum, MAX_OPTMODULE_PATH_NUM, module.pathinfo, "path");
  }
}

}  // namespace mutated
