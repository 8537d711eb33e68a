// The command records, their handlers, and their installation in the shell.
#include <cstdio>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cli.h"

constinit CommandRecord ddShowVersionInfo_CMD = {
    .string = "show context version",
    .func = ddShowVersionInfo_Func,
    .doc = "show info.\ncontext info.\nversion info.\n",
    .name = "ddShowVersionInfo_CMD",
    .host = {},
};

constinit CommandRecord ddShowAllModuleInfo_CMD = {
    .string = "show context module_all",
    .func = ddShowAllModuleInfo_Func,
    .doc = "show info.\ncontext info.\nall module info.\n",
    .name = "ddShowAllModuleInfo_CMD",
    .host = {},
};

constinit CommandRecord ddShowSysSupportFuncInfo_CMD = {
    .string = "show context sys_support_func",
    .func = ddShowSysSupportFuncInfo_Func,
    .doc = "show info.\ncontext info.\nsys support func info.\n",
    .name = "ddShowSysSupportFuncInfo_CMD",
    .host = {},
};

int32_t ddShowVersionInfo_Func(CommandRecord*, void* vty, int32_t, char**) {
  ddPrintVersionInformation(vty);
  return sys_context::kOk;
}

int32_t ddShowAllModuleInfo_Func(CommandRecord*, void* vty, int32_t, char**) {
  ddPrintAllModuleInformation(vty);
  return sys_context::kOk;
}

int32_t ddShowSysSupportFuncInfo_Func(CommandRecord*, void* vty, int32_t, char**) {
  ddPrintSysSupportFuncInformation(vty);
  return sys_context::kOk;
}

namespace sys_context {
namespace {

constexpr int32_t kDiagnosticNode = 10;

constexpr CommandRecord* kRecords[] = {
    &ddShowVersionInfo_CMD,
    &ddShowAllModuleInfo_CMD,
    &ddShowSysSupportFuncInfo_CMD,
};

// Tells the module framework the library's name, and its build date as version.
int32_t RegisterModule() {
  const int32_t id = modInitRegister("SysContext", 0, 0, 0, 0, 0, 0);
  if (id == kNotRegistered) {
    Console("\r\nddCmdInit->modInitRegister err! iModId = %d", id);
    return kNotRegistered;
  }
  char version[32] = {};
  std::snprintf(version, sizeof version, "%s %s", __DATE__, __TIME__);
  const int32_t result = setModVersion(id, 1, version);
  if (result < 0) {
    Console("\r\nddCmdInit->setModVersion err! ret = %d, iModId = %d, date = %s", result, id,
            version);
    return result;
  }
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddCmdInit(int32_t, int32_t, int32_t) {
  using namespace sys_context;
  for (CommandRecord* const record : kRecords) {
    install_element(kDiagnosticNode, record);
  }
  return RegisterModule();
}
