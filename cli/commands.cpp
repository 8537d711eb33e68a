// The command records, their handlers, and their installation in the shell.
#include <cstdio>

#include "common/codes.h"
#include "common/messages.h"
#include "common/numbers.h"
#include "sys_context/cli.h"

// The record of a command. `help` explains each word of the command in a line.
#define COMMAND(record, handler, words, help) \
  constinit CommandRecord record = {          \
      .string = (words),                      \
      .func = (handler),                      \
      .doc = (help),                          \
      .name = #record,                        \
      .host = {},                             \
  }

// A command that prints a table: its handler and its record.
#define SHOW_COMMAND(record, handler, words, help, printer)     \
  int32_t handler(CommandRecord*, void* vty, int32_t, char**) { \
    printer(vty);                                               \
    return sys_context::kOk;                                    \
  }                                                             \
  COMMAND(record, handler, words, help)

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
SHOW_COMMAND(ddShowOnuPonInfo_CMD, ddShowOnuPonInfo_Func, "show context onu_pon",
             "show info.\ncontext info.\nonu pon info.\n", ddPrintAllSupportedOnuPonInfomation);
SHOW_COMMAND(ddShowOnuLanInfo_CMD, ddShowOnuLanInfo_Func, "show context onu_lan",
             "show info.\ncontext info.\nonu lan info.\n", ddPrintAllSupportedOnuLanInfomation);
SHOW_COMMAND(ddShowOnuPotsInfo_CMD, ddShowOnuPotsInfo_Func, "show context onu_pots",
             "show info.\ncontext info.\nonu pots info.\n", ddPrintAllSupportedOnuPotsInfomation);
SHOW_COMMAND(ddShowOnuSpecialPortInfo_CMD, ddShowOnuSpecialPortInfo_Func,
             "show context onu_special_port", "show info.\ncontext info.\nonu special port info.\n",
             ddPrintAllSupportedOnuSpecialPortInfomation);
SHOW_COMMAND(ddShowAllSupportedOnuType_CMD, ddShowAllSupportedOnuType_Func,
             "show context onu_type_all", "show info.\ncontext info.\nall onu type info.\n",
             ddPrintAllSupportedOnuTypeBaseInfomation);

int32_t ddShowOneSupportedOnuInfo_Func(CommandRecord*, void* vty, int32_t argc, char** argv) {
  const uint32_t index = argc > 0 ? sys_context::ParseUnsigned(argv[0]) : 0;
  ddPrintOneSupportedOnuInfomation(index, vty);
  return sys_context::kOk;
}

// kept as is: the help announces one index more than there can be.
COMMAND(ddShowOneSupportedOnuInfo_CMD, ddShowOneSupportedOnuInfo_Func,
        "show context onu_detail index <indexno>",
        "show info.\ncontext info.\nall onu type info.\nindex info.\n"
        "please input index no 0~200.\n");

SHOW_COMMAND(ddShowAllSupportedOnu_CMD, ddShowAllSupportedOnu_Func, "show context onu_all",
             "show info.\ncontext info.\nall onu detail info.\n",
             ddPrintAllSupportedOnuTypeInfomation);
SHOW_COMMAND(ddShowAllDevice_CMD, ddShowAllDevice_Func, "show context device_all",
             "show info.\ncontext info.\nall devices info.\n", ddPrintAllContextInformation);

namespace sys_context {
namespace {

constexpr int32_t kDiagnosticNode = 10;

constexpr CommandRecord* kRecords[] = {
    &ddShowVersionInfo_CMD,         &ddShowAllModuleInfo_CMD,      &ddShowSysSupportFuncInfo_CMD,
    &ddShowMainBoardInfo_CMD,       &ddShowOltPortInfo_CMD,        &ddShowAllBoardInfo_CMD,
    &ddShowFrameInfo_CMD,           &ddShowOnuPonInfo_CMD,         &ddShowOnuLanInfo_CMD,
    &ddShowOnuPotsInfo_CMD,         &ddShowOnuSpecialPortInfo_CMD, &ddShowAllSupportedOnuType_CMD,
    &ddShowOneSupportedOnuInfo_CMD, &ddShowAllSupportedOnu_CMD,    &ddShowAllDevice_CMD,
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
