// The report of every table.
#include "common/codes.h"
#include "sys_context/cli.h"

namespace sys_context {
namespace {

using Printer = int32_t (*)(void* vty);

constexpr Printer kPrinters[] = {
    ddPrintVersionInformation,
    ddPrintAllModuleInformation,
    ddPrintSysSupportFuncInformation,
    ddPrintAllSupportedMainBoardInformation,
    ddPrintAllSupportedOltPortInfomation,
    ddPrintAllSupportedBoardInfomation,
    ddPrintFrameInfomation,
    ddPrintAllSupportedOnuPonInfomation,
    ddPrintAllSupportedOnuLanInfomation,
    ddPrintAllSupportedOnuPotsInfomation,
    ddPrintAllSupportedOnuSpecialPortInfomation,
    ddPrintAllSupportedOnuTypeInfomation,
};

}  // namespace
}  // namespace sys_context

int32_t ddPrintAllContextInformation(void* vty) {
  using namespace sys_context;
  if (vty == nullptr) {
    return kNullArgument;
  }
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\n/***************** System device describe begin! *****************/");
  vty_out(vty, "\r\n");
  for (const Printer print : kPrinters) {
    print(vty);  // a table that cannot be shown says so in its place
  }
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\n/***************** System device describe end! *****************/");
  vty_out(vty, "\r\n%64s\r\n", "");
  return kOk;
}
