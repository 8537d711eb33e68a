// The command records, their handlers, and their installation in the shell.
#include <cstdio>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cli.h"

// A command that prints a table: its handler and its record. `help` explains each
// word of the command in a line.
#define SHOW_COMMAND(record, handler, words, help, printer)     \
  int32_t handler(CommandRecord*, void* vty, int32_t, char**) { \
    printer(vty);                                               \
    return sys_context::kOk;                                    \
  }                                                             \
  constinit CommandRecord record = {                            \
      .string = (words),                                        \
      .func = (handler),                                        \
      .doc = (help),                                            \
      .name = #record,                                          \
      .host = {},                                               \
  }

SHOW_COMMAND(ddShowVersionInfo_CMD, ddShowVersionInfo_Func, "show context version",
             "show info.\ncontext info.\nversion info.\n", ddPrintVersionInformation);
SHOW_COMMAND(ddShowAllModuleInfo_CMD, ddShowAllModuleInfo_Func, "show context module_all",
             "show info.\ncontext info.\nall module info.\n", ddPrintAllModuleInformation);
SHOW_COMMAND(ddShowSysSupportFuncInfo_CMD, ddShowSysSupportFuncInfo_Func,
             "show context sys_support_func", "show info.\ncontext info.\nsys support func info.\n",
             ddPrintSysSupportFuncInformation);
SHOW_COMMAND(ddShowMainBoardInfo_CMD, ddShowMainBoardInfo_Func, "show context main_board",
             "show info.\ncontext info.\nmain board info.\n",
             ddPrintAllSupportedMainBoardInformation);
SHOW_COMMAND(ddShowOltPortInfo_CMD, ddShowOltPortInfo_Func, "show context olt_port",
             "show info.\ncontext info.\nolt port info.\n", ddPrintAllSupportedOltPortInfomation);
SHOW_COMMAND(ddShowAllBoardInfo_CMD, ddShowAllBoardInfo_Func, "show context board_all",
             "show info.\ncontext info.\nall board info.\n", ddPrintAllSupportedBoardInfomation);
SHOW_COMMAND(ddShowFrameInfo_CMD, ddShowFrameInfo_Func, "show context frame",
             "show info.\ncontext info.\nframe info.\n", ddPrintFrameInfomation);

namespace sys_context {
namespace {

constexpr int32_t kDiagnosticNode = 10;

constexpr CommandRecord* kRecords[] = {
    &ddShowVersionInfo_CMD,   &ddShowAllModuleInfo_CMD, &ddShowSysSupportFuncInfo_CMD,
    &ddShowMainBoardInfo_CMD, &ddShowOltPortInfo_CMD,   &ddShowAllBoardInfo_CMD,
    &ddShowFrameInfo_CMD,
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
