// The command records, their handlers, and their installation in the shell.
#include <arpa/inet.h>

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

namespace sys_context {
namespace {

// The first argument as a decimal number; 0 without one.
uint32_t FirstNumber(int32_t argc, char** argv) {
  return argc > 0 ? ParseUnsigned(argv[0]) : 0;
}

// The card does not upload to itself.
bool IsOwnAddress(const char* address) {
  return is_manage_ipAddr(inet_addr(address)) != 0 || diags_is_outbandip(address) != 0;
}

}  // namespace
}  // namespace sys_context

int32_t ddShowOneSupportedOnuInfo_Func(CommandRecord*, void* vty, int32_t argc, char** argv) {
  ddPrintOneSupportedOnuInfomation(sys_context::FirstNumber(argc, argv), vty);
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
SHOW_COMMAND(ddShowContextFile_CMD, ddShowContextFile_Func, "show context file",
             "show info.\ncontext info.\ncontext file info.\n", ddPrintContextFile);

int32_t ddUploadContextFile_Func(CommandRecord*, void* vty, int32_t argc, char** argv) {
  using namespace sys_context;
  if (argc > 0 && IsOwnAddress(argv[0])) {
    return kUploadNotTried;
  }
  constexpr int32_t kWords = 4;  // address, user name, password, file name
  if (argc != kWords) {
    vty_out(vty, "Command error!\r\n");
    return kUploadNotTried;
  }
  vty_out(vty, "\r\nThis will need seconds of time, please wait...\r\n");
  ddUploadContextFile(argv[0], argv[1], argv[2], argv[3], vty);
  return kOk;
}

// kept as is: the command ends in a blank, the help has words of its own, "protocal" and
// "contex" among them.
COMMAND(ddUploadContextFile_CMD, ddUploadContextFile_Func,
        "upload ftp context <A.B.C.D> <username> <password> <filename> ",
        "Upload file for context file.\nUpload file to ftp server use ftp protocal.\n"
        "Upload contex file.\nPlease input ftp server's IP address, such as A.B.C.D\n"
        "Please input ftp user name.\nPlease input password for that ftp user.\n"
        "Please input the file name.\n");

int32_t show_optmodule_info_func(CommandRecord*, void* vty, int32_t argc, char** argv) {
  // kept as is: the low 16 bits are the index.
  show_optmodule_fileinfo_byindex(static_cast<uint16_t>(sys_context::FirstNumber(argc, argv)), vty);
  return sys_context::kOk;
}

// kept as is: the help announces 26 modules, however many there are.
COMMAND(show_optmodule_info_cmd, show_optmodule_info_func,
        "show optmodule fileinfo index <indexno>",
        "show .\noptmodule.\nfile info.\nindex info.\nplease input index no 1~26.\n");

namespace sys_context {
namespace {

constexpr int32_t kDiagnosticNode = 10;

constexpr CommandRecord* kRecords[] = {
    &ddShowVersionInfo_CMD,         &ddShowAllModuleInfo_CMD,      &ddShowSysSupportFuncInfo_CMD,
    &ddShowMainBoardInfo_CMD,       &ddShowOltPortInfo_CMD,        &ddShowAllBoardInfo_CMD,
    &ddShowFrameInfo_CMD,           &ddShowOnuPonInfo_CMD,         &ddShowOnuLanInfo_CMD,
    &ddShowOnuPotsInfo_CMD,         &ddShowOnuSpecialPortInfo_CMD, &ddShowAllSupportedOnuType_CMD,
    &ddShowOneSupportedOnuInfo_CMD, &ddShowAllSupportedOnu_CMD,    &ddShowAllDevice_CMD,
    &ddShowContextFile_CMD,         &ddUploadContextFile_CMD,
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

int32_t install_gepon_optmodule_inforead_element() {
  using namespace sys_context;
  return vk_install_element(kDiagnosticNode, &show_optmodule_info_cmd, 3, 0);
}

int32_t ddCmdInit(int32_t, int32_t, int32_t) {
  using namespace sys_context;
  for (CommandRecord* const record : kRecords) {
    install_element(kDiagnosticNode, record);
  }
  install_gepon_optmodule_inforead_element();
  return RegisterModule();
}
