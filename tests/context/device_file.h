// A definition file in the place where start-up looks for it.
#pragma once

#include <string>
#include <string_view>

#include "support/definition_file.h"
#include "support/faults.h"

namespace test {

constexpr char kDeviceFile[] = "/mnt/work/device_definition.ini";

// A small, complete definition file: a section for each loader, in their order.
constexpr std::string_view kVersionPart = "[Version]\nSupportedSoftwareVer=KT2200V4.0|KT2200V4.1\n";
constexpr std::string_view kModulePart =
    "[ModuleTypeList]\nModuleNum=2\nModule1=S1\nModule2=S2\n"
    "[S1]\nType=1\nName=OMCI\nSize=64\n"
    "[S2]\nType=3\nName=VLAN\nSize=32\n";
constexpr std::string_view kFunctionPart =
    "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=2\n"
    "SupportedSysFunction1=VLAN\nSupportedSysFunction2=OMCI\n";
constexpr std::string_view kPortTypePart =
    "[SupportedOltPortType]\nSupportedOltPortTypeNum=2\n"
    "SupportedOltPortType1=P1\nSupportedOltPortType2=P2\n"
    "[P1]\nType=2\nName=GPON\nSplittingRatio=128\n"
    "[P2]\nType=31\nName=GE\nSplittingRatio=0\n";
constexpr std::string_view kMainBoardPart =
    "[SupportedMainBoardType]\nSupportedMainBoardTypeNum=1\nSupportedMainBoardType1=M1\n"
    "[M1]\nType=101\nName=MCXA\nSwitchChipLogicPortNum=1\nSwitchChipLogicPort1=5\n"
    "SpecialChipLogicPortMapPhyPortCardNum=1\nSpecialChipLogicPortMapPhyPortCard1=UP4X\n"
    "UP4X_SwitchChipLogicPort1=7\n";
constexpr std::string_view kBoardPart =
    "[SupportedBoardType]\nSupportedBoardTypeNum=2\n"
    "SupportedBoardType1=B1\nSupportedBoardType2=B2\n"
    "[B1]\nType=3102\nName=GP01A\nPortNum=1\nNameKeyPort1=GPON\nSpecialPortNum=0\n"
    "[B2]\nType=3201\nName=ET01G\nPortNum=1\nNameKeyPort1=GE\nSpecialPortNum=0\n";

constexpr std::string_view kFramePart =
    "[KT3300-L_FrameInfomation]\nType=15\nName=KT3300-L\nMaxOnuNum=64\nMaxUserNum=128\n"
    "RealSlotNum=2\nRealSlotList=1,2\nVirtualSlotNum=1\nVirtualSlotList=31\n"
    "HcuSlotNum=1\nHcuSlotList=801\nFanSlotNum=0\nCioSlotNum=0\nPowerSlotNum=0\n"
    "ServeBoardSlotNum=1\nServeBoardSlotList=1\nMainSlotNum=1\nMainSlotList=2\nUplinkSlotNum=0\n"
    "SupportedBoardTypeSlot1=GP01A|ET01G\nSupportedBoardTypeSlot2=MCXA\n"
    "SwitchChipLogicPortNum=2\nSwitchChipLogicPort1=1,0,0\nSwitchChipLogicPort2=2,4,1\n"
    "Type2SwitchChipLogicPortNum=2\nType2SwitchChipLogicPort1=1,3,0,5,0\n"
    "Type2SwitchChipLogicPort2=2,0,1,6,1\n";

// The parts of the first `loaders` loaders.
inline std::string FileFor(size_t loaders) {
  std::string file;
  for (const std::string_view part : {kVersionPart, kModulePart, kFunctionPart, kPortTypePart,
                                      kMainBoardPart, kBoardPart, kFramePart}) {
    file += loaders > 0 ? part : "";
    loaders -= loaders > 0 ? 1 : 0;
  }
  return file;
}
constexpr size_t kLoaders = 7;

// Watches the library while the given bytes are its definition file.
struct DeviceFile {
  explicit DeviceFile(std::string_view bytes = FileFor(kLoaders)) : file(bytes) {
    faults.paths[kDeviceFile] = file.path();
  }
  // The library finds no definition file at all.
  void Remove() { faults.paths[kDeviceFile] = "/nonexistent/device_definition.ini"; }

  DefinitionFile file;
  Faults faults;
};

}  // namespace test
