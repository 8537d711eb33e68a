// The definition files in the places where start-up looks for them.
#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

#include "support/definition_file.h"
#include "support/faults.h"
#include "support/loaders.h"

namespace test {

constexpr char kDeviceFile[] = "/mnt/work/device_definition.ini";
constexpr char kOpticalFile[] = "/mnt/work/optmodule_definition.ini";

// What start-up loads of the device file, in its order. Before a step, so many are done.
using Step = Loader;
constexpr size_t kSteps = kOpticalModules;
constexpr const char* kLoaderNames[] = {"ddReadVersionInformation",
                                        "ddReadAllModuleInformation",
                                        "ddReadSysSupportFuncInformation",
                                        "ddReadAllSupportedOltPortInformation",
                                        "ddReadAllSupportedMainBoardInformation",
                                        "ddReadAllSupportedBoardInformation",
                                        "ddReadFrameInformation",
                                        "ddReadAllSupportedOnuPonInformation",
                                        "ddReadAllSupportedOnuLanInformation",
                                        "ddReadAllSupportedOnuPotsInformation",
                                        "ddReadAllSupportedOnuSpecialPortInformation",
                                        "ddReadAllSupportedOnuInformation"};
static_assert(std::size(kLoaderNames) == kSteps);

// A small, complete definition file: a part for each step.
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

constexpr std::string_view kOnuPonPart =
    "[SupportedOnuPonType]\nSupportedOnuPonTypeNum=1\nSupportedOnuPonType1=OnuPon\n"
    "[OnuPon]\nType=2\nName=GPON\n";
constexpr std::string_view kOnuLanPart =
    "[SupportedOnuLanType]\nSupportedOnuLanTypeNum=1\nSupportedOnuLanType1=OnuLan\n"
    "[OnuLan]\nType=3\nName=FE\n";
constexpr std::string_view kOnuPotsPart =
    "[SupportedOnuPotsType]\nSupportedOnuPotsTypeNum=1\nSupportedOnuPotsType1=OnuPots\n"
    "[OnuPots]\nType=4\nName=FXS\n";
constexpr std::string_view kOnuSpecialPortPart =
    "[SupportedOnuSpecialPortType]\nSupportedOnuSpecialPortTypeNum=1\n"
    "SupportedOnuSpecialPortType1=OnuSpecial\n"
    "[OnuSpecial]\nType=5\nName=CATV\n";
constexpr std::string_view kOnuPart =
    "[SupportedOnuType]\nSupportedOnuTypeNum=2\nSupportedOnuType1=U1\nSupportedOnuType2=U2\n"
    "[U1]\nType=6001\nName=KT-G101\nPonNum=1\nNameKeyPon1=GPON\n"
    "LanPortNum=1\nNameKeyLanPort1=FE\nPotsPortNum=1\nNameKeyPotsPort1=FXS\n"
    "SpecialPortNum=1\nNameKeySpecialPort1=CATV\n"
    "[U2]\nType=6002\nName=KT-G100\nPonNum=1\nNameKeyPon1=GPON\n"
    "LanPortNum=0\nPotsPortNum=0\nSpecialPortNum=0\n";

constexpr std::string_view kParts[] = {
    kVersionPart, kModulePart, kFunctionPart, kPortTypePart, kMainBoardPart,      kBoardPart,
    kFramePart,   kOnuPonPart, kOnuLanPart,   kOnuPotsPart,  kOnuSpecialPortPart, kOnuPart};
static_assert(std::size(kParts) == kSteps);

// The parts of the steps in front of one, or of all.
inline std::string FileBefore(size_t step) {
  std::string file;
  for (size_t i = 0; i < step; ++i) {
    file += kParts[i];
  }
  return file;
}

// Optical modules: one with two paths, one with one.
constexpr std::string_view kOpticalPart =
    "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=2\n"
    "SupportedOptModuleInfo1=O1\nSupportedOptModuleInfo2=O2\n"
    "[O1]\nPortKind=1\nPortType=2\nPhyType=7\nPathNum=2\n"
    "Path1=-10,-30,-5,-28\nPath2=50,10,-70,-270\n"
    "[O2]\nPortKind=2\nPortType=31\nPhyType=0\nPathNum=1\nPath1=1,2,3,4\n";

// Watches the library while the given bytes are its definition files.
struct DeviceFile {
  explicit DeviceFile(std::string_view bytes = FileBefore(kSteps),
                      std::string_view optical_bytes = kOpticalPart)
      : file(bytes), optical(optical_bytes) {
    faults.paths[kDeviceFile] = file.path();
    faults.paths[kOpticalFile] = optical.path();
  }
  // The library finds no such file at all.
  void Remove() { faults.paths[kDeviceFile] = "/nonexistent/device_definition.ini"; }
  void RemoveOptical() { faults.paths[kOpticalFile] = "/nonexistent/optmodule_definition.ini"; }

  DefinitionFile file;
  DefinitionFile optical;
  Faults faults;
};

}  // namespace test
