// The commands' handlers and the printers; see the header.
#include "fuzz/show.h"

#include <cstdint>
#include <limits>
#include <string>

#include "support/fake_platform.h"
#include "sys_context/cli.h"

namespace fuzz {
namespace {

using test::FakePlatform;

char terminal;
void* const kTerminal = &terminal;

// What was shown is of no use, and may be much.
void Clear() {
  FakePlatform& platform = FakePlatform::Get();
  platform.terminal.clear();
  platform.terminals_used.clear();
  platform.asked.clear();
  platform.delays.clear();
  platform.shown_before_delays.clear();
}

constexpr CommandRecord* kCommands[] = {
    &ddShowVersionInfo_CMD,         &ddShowAllModuleInfo_CMD,      &ddShowSysSupportFuncInfo_CMD,
    &ddShowMainBoardInfo_CMD,       &ddShowOltPortInfo_CMD,        &ddShowAllBoardInfo_CMD,
    &ddShowFrameInfo_CMD,           &ddShowOnuPonInfo_CMD,         &ddShowOnuLanInfo_CMD,
    &ddShowOnuPotsInfo_CMD,         &ddShowOnuSpecialPortInfo_CMD, &ddShowAllSupportedOnuType_CMD,
    &ddShowOneSupportedOnuInfo_CMD, &ddShowAllSupportedOnu_CMD,    &ddShowAllDevice_CMD,
    &show_optmodule_info_cmd,
};

void RunCommands() {
  for (CommandRecord* const command : kCommands) {
    char index[] = "1";
    char* words[] = {index, nullptr};
    command->func(command, kTerminal, 1, words);
    Clear();
  }
  for (std::string index : {"0", "199", "200", "4294967295", "4294967296", "-1", "", "many"}) {
    char* words[] = {index.data(), nullptr};
    ddShowOneSupportedOnuInfo_Func(&ddShowOneSupportedOnuInfo_CMD, kTerminal, 1, words);
    Clear();
  }
}

// What no command shows by itself.
void RunPrinters() {
  for (const SlotClassInformation* slots :
       {&gstFrame.stRealSlot, &gstFrame.stVirtualSlot, &gstFrame.stHcuSlot, &gstFrame.stFanSlot,
        &gstFrame.stCioSlot, &gstFrame.stPowerSlot, &gstFrame.stServeBoardSlot,
        &gstFrame.stMainSlot, &gstFrame.stUplinkSlot}) {
    ddPrintSlotClassInformation(kTerminal, slots);
  }
  for (uint32_t i = 0; i < gstSupportedBoardType.ulSupportedBoardTypeNum; ++i) {
    ddPrintOneSupportedBoardInfomation(gstSupportedBoardType.pBoardTypeArray[i], kTerminal);
  }
  ddPrintOneSupportedBoardInfomation(nullptr, kTerminal);
  for (uint32_t i = 0; i <= gstSupportedOnuType.ulSupportedOnuTypeNum; ++i) {
    ddPrintOneSupportedOnuInfomation(i, kTerminal);
  }
  ddPrintOneSupportedOnuInfomation(std::numeric_limits<uint32_t>::max(), kTerminal);
  Clear();
}

}  // namespace

void ShowEverything() {
  RunCommands();
  RunPrinters();
}

}  // namespace fuzz
