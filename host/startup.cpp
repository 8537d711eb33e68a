// Starting the card, and the report about it.
#include "host/startup.h"

#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <stdexcept>

#include "host/console.h"
#include "host/equipment.h"
#include "host/format.h"
#include "host/modules.h"
#include "host/registry.h"
#include "host/root.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"
#include "sys_context/platform.h"

namespace sysctx {
namespace {

constexpr const char* kDefinitionFile = "/mnt/work/device_definition.ini";
constexpr const char* kOpticalFile = "/mnt/work/optmodule_definition.ini";

std::string AbsoluteFolder(const std::string& folder) {
  char path[PATH_MAX];
  struct stat status = {};
  if (realpath(folder.c_str(), path) == nullptr || stat(path, &status) != 0) {
    throw std::runtime_error("root '" + folder + "': " + strerror(errno));
  }
  if (!S_ISDIR(status.st_mode)) {
    throw std::runtime_error("root '" + folder + "' is no folder");
  }
  return path;
}

std::string DescribeWorkFile(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode)
             ? std::to_string(status.st_size) + " bytes"
             : "missing";
}

// A copy that the flash store has of its own.
std::string DescribeFlashCopy(const char* name) {
  const int32_t size = flash_sizeof(name);
  return size < 0 ? "cannot be read" : std::to_string(size) + " bytes";
}

std::string DescribeFile(const char* name) {
  std::string text = DescribeWorkFile(Root() + name);
  if (HasFlashCopy(name)) {
    text += "; in flash: " + DescribeFlashCopy(name);
  }
  return Format("  %s: %s\n", name, text.c_str());
}

std::string DescribeEquipment() {
  const Equipment& facts = TheEquipment();
  return Format("  equipment.toml: device type %d, main card %d in slot %d, %zu configured cards\n",
                facts.device_type, facts.main_card_type, facts.main_card_slot,
                facts.configured_cards.size());
}

std::string DescribeTables() {
  return Format(
      "loaded: %u versions, %u modules, %u system functions\n"
      "loaded: %u OLT port types, %u main boards, %u service boards\n"
      "loaded: frame %s, %u real slots, %u logic ports, %u type-2 logic ports\n"
      "loaded: ONU port types: %u PON, %u LAN, %u POTS, %u special; %u ONU types\n"
      "loaded: %u optical modules\n",
      gstVersionInformation.ulSupportedSoftVerNum, gstModuleTypeList.ulModuleTypeNum,
      gstSysSupportFuncType.ulSupportedSysFunctionTypeNum,
      gstSupportedOltPortType.ulSupportedOltPortTypeNum,
      gstSupportedMainBoardType.ulSupportedBoardTypeNum,
      gstSupportedBoardType.ulSupportedBoardTypeNum,
      gstFrame.ulNameLen == 0 ? "(none)" : gstFrame.acName, gstFrame.stRealSlot.ulSlotAmount,
      gstFrame.ulSwitchChipLogicPortNum, gstFrame.ulType2SwitchChipLogicPortNum,
      gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
      gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
      gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
      gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
      gstSupportedOnuType.ulSupportedOnuTypeNum, uint32_t{g_optmdule_infolist.listnum});
}

std::string DescribeModules() {
  std::string text = Format("commands: %zu installed\n", InstalledCommands().size());
  for (const Module& module : RegisteredModules()) {
    text += Format("module %d: %s, version \"%s\"\n", module.id, module.name.c_str(),
                   module.version.c_str());
  }
  return text;
}

std::string DescribeFailures(const StartUp& start_up) {
  std::string text;
  if (start_up.init_result != 0) {
    text += Format("ddInit failed with %d: tables behind the failure are empty\n",
                   start_up.init_result);
  }
  if (start_up.commands_result != 0) {
    text += Format("ddCmdInit failed with %d: the module is not registered\n",
                   start_up.commands_result);
  }
  return text.empty() ? text : text + "the shell is usable all the same\n";
}

}  // namespace

void OpenRoot(const std::string& folder) {
  const std::string root = AbsoluteFolder(folder);
  SetEquipment(ReadEquipment(root + "/equipment.toml"));
  SetRoot(root);
}

StartUp StartLibrary() {
  StartUp start_up;
  start_up.console = CaptureConsole([&] {
    start_up.init_result = ddInit();
    start_up.commands_result = ddCmdInit(0, 0, 0);
  });
  return start_up;
}

std::string DescribeConsole(const std::string& console) {
  std::string text;
  std::istringstream lines(console);
  for (std::string line; std::getline(lines, line);) {
    line.erase(line.find_last_not_of('\r') + 1);
    text += line.empty() ? "" : "console: " + line + "\n";
  }
  return text;
}

std::string DescribeStartUp(const StartUp& start_up) {
  return Format("sysctx %s, simulated control card\nroot: %s\n", SYSCTX_VERSION, Root().c_str()) +
         DescribeEquipment() + DescribeFile(kDefinitionFile) + DescribeFile(kOpticalFile) +
         DescribeConsole(start_up.console) + DescribeTables() + DescribeModules() +
         DescribeFailures(start_up);
}

}  // namespace sysctx
