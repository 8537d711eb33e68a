// The layout of every public record. A host is linked against it, so it never
// changes: records without pointers look the same everywhere, the others are
// fixed on the card, where a pointer has 32 bits.
#include <cstddef>

#include "sys_context/cfgfile.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"
#include "sys_context/platform.h"

static_assert(sizeof(SupportedSoftVer) == 104);
static_assert(offsetof(SupportedSoftVer, ulSupportedSoftVerLen) == 0);
static_assert(offsetof(SupportedSoftVer, acSupportedSoftVer) == 4);
static_assert(sizeof(SupportedSoftVer::acSupportedSoftVer) == 100);

static_assert(sizeof(VersionInformation) == 3124);
static_assert(offsetof(VersionInformation, ulSupportedSoftVerNum) == 0);
static_assert(offsetof(VersionInformation, astSupportedSoftVer) == 4);

static_assert(sizeof(ModuleInformation) == 72);
static_assert(offsetof(ModuleInformation, ulModuleType) == 0);
static_assert(offsetof(ModuleInformation, ulNameLen) == 4);
static_assert(offsetof(ModuleInformation, acName) == 8);
static_assert(sizeof(ModuleInformation::acName) == 60);
static_assert(offsetof(ModuleInformation, ulSize) == 68);

static_assert(sizeof(SysSupportFuncType) == 804);
static_assert(offsetof(SysSupportFuncType, ulSupportedSysFunctionTypeNum) == 0);
static_assert(offsetof(SysSupportFuncType, aulSupportedSysFunctionType) == 4);

static_assert(sizeof(OltPortInformation) == 76);
static_assert(offsetof(OltPortInformation, ulPortType) == 0);
static_assert(offsetof(OltPortInformation, ulNameLen) == 4);
static_assert(offsetof(OltPortInformation, acName) == 8);
static_assert(sizeof(OltPortInformation::acName) == 60);
static_assert(offsetof(OltPortInformation, ulSplittingRatio) == 68);
static_assert(offsetof(OltPortInformation, ulLink) == 72);

static_assert(sizeof(PortPair) == 4);
static_assert(offsetof(PortPair, usLogicPort) == 0);
static_assert(offsetof(PortPair, usPhyPort) == 2);

static_assert(sizeof(PortMap) == 5184);
static_assert(offsetof(PortMap, ulBoardNameLen) == 0);
static_assert(offsetof(PortMap, acBoardName) == 4);
static_assert(sizeof(PortMap::acBoardName) == 60);
static_assert(offsetof(PortMap, astPortPair) == 64);
static_assert(sizeof(PortMap::astPortPair) == 5120);

static_assert(sizeof(MainBoardInformation) == 103760);
static_assert(offsetof(MainBoardInformation, ulType) == 0);
static_assert(offsetof(MainBoardInformation, ulSubType) == 4);
static_assert(offsetof(MainBoardInformation, ulNameLen) == 8);
static_assert(offsetof(MainBoardInformation, acName) == 12);
static_assert(sizeof(MainBoardInformation::acName) == 60);
static_assert(offsetof(MainBoardInformation, ulSwitchChipLogicPortNum) == 72);
static_assert(offsetof(MainBoardInformation, ulChipLogicPortToPhyPortTypeNum) == 76);
static_assert(offsetof(MainBoardInformation, astPortMap) == 80);
static_assert(sizeof(MainBoardInformation::astPortMap) == 103680);

static_assert(sizeof(SlotClassInformation) == 412);
static_assert(offsetof(SlotClassInformation, ulSlotAmount) == 0);
static_assert(offsetof(SlotClassInformation, ulSlotStart) == 4);
static_assert(offsetof(SlotClassInformation, ulSlotEnd) == 8);
static_assert(offsetof(SlotClassInformation, ucSlotArray) == 12);
static_assert(sizeof(SlotClassInformation::ucSlotArray) == 400);

static_assert(sizeof(SlotSupportBoard) == 400);
static_assert(offsetof(SlotSupportBoard, aulBoardType) == 0);
static_assert(sizeof(SlotSupportBoard::aulBoardType) == 400);

static_assert(sizeof(SwitchChipLogicPortToSlotPort) == 3);
static_assert(offsetof(SwitchChipLogicPortToSlotPort, ucSlotOut) == 0);
static_assert(offsetof(SwitchChipLogicPortToSlotPort, ucSlotPort) == 1);
static_assert(offsetof(SwitchChipLogicPortToSlotPort, ucSlotFlag) == 2);

static_assert(sizeof(BalanceSwitchLogicPortInfo) == 8);
static_assert(offsetof(BalanceSwitchLogicPortInfo, ucSlotOut) == 0);
static_assert(offsetof(BalanceSwitchLogicPortInfo, ucSlotPort) == 1);
static_assert(offsetof(BalanceSwitchLogicPortInfo, usChipPort) == 2);
static_assert(offsetof(BalanceSwitchLogicPortInfo, usPhyPort) == 4);
static_assert(offsetof(BalanceSwitchLogicPortInfo, ucHigigFlag) == 6);

static_assert(sizeof(OnuPortTypeInformation) == 68);
static_assert(offsetof(OnuPortTypeInformation, ulPonType) == 0);
static_assert(offsetof(OnuPortTypeInformation, ulLanType) == 0);
static_assert(offsetof(OnuPortTypeInformation, ulPortType) == 0);
static_assert(offsetof(OnuPortTypeInformation, ulNameLen) == 4);
static_assert(offsetof(OnuPortTypeInformation, acName) == 8);
static_assert(sizeof(OnuPortTypeInformation::acName) == 60);

static_assert(sizeof(OptModuleThreshold) == 16);
static_assert(offsetof(OptModuleThreshold, inup) == 0);
static_assert(offsetof(OptModuleThreshold, indn) == 4);
static_assert(offsetof(OptModuleThreshold, outup) == 8);
static_assert(offsetof(OptModuleThreshold, outdn) == 12);

constexpr bool kOnCard = sizeof(void*) == 4;

static_assert(!kOnCard || sizeof(SupportedOltPortType) == 8);
static_assert(!kOnCard || offsetof(SupportedOltPortType, ulSupportedOltPortTypeNum) == 0);
static_assert(!kOnCard || offsetof(SupportedOltPortType, pOltPortTypeArray) == 4);

static_assert(!kOnCard || sizeof(SupportedMainBoardType) == 8);
static_assert(!kOnCard || offsetof(SupportedMainBoardType, ulSupportedBoardTypeNum) == 0);
static_assert(!kOnCard || offsetof(SupportedMainBoardType, pBoardTypeArray) == 4);

static_assert(!kOnCard || sizeof(BoardInformation) == 92);
static_assert(!kOnCard || offsetof(BoardInformation, ulType) == 0);
static_assert(!kOnCard || offsetof(BoardInformation, ulSubType) == 4);
static_assert(!kOnCard || offsetof(BoardInformation, ulNameLen) == 8);
static_assert(!kOnCard || offsetof(BoardInformation, acName) == 12);
static_assert(!kOnCard || sizeof(BoardInformation::acName) == 60);
static_assert(!kOnCard || offsetof(BoardInformation, ulTotalServePortNum) == 72);
static_assert(!kOnCard || offsetof(BoardInformation, pPortArray) == 76);
static_assert(!kOnCard || offsetof(BoardInformation, ulTotalSpecialPortNum) == 80);
static_assert(!kOnCard || offsetof(BoardInformation, pSpecialPortArray) == 84);
static_assert(!kOnCard || offsetof(BoardInformation, ulReserved) == 88);

static_assert(!kOnCard || sizeof(SupportedBoardType) == 16);
static_assert(!kOnCard || offsetof(SupportedBoardType, ulSupportedBoardTypeNum) == 0);
static_assert(!kOnCard || offsetof(SupportedBoardType, pBoardTypeArray) == 4);
static_assert(!kOnCard || offsetof(SupportedBoardType, ulSupportedBoardMaxPonType) == 8);
static_assert(!kOnCard || offsetof(SupportedBoardType, ulSupportedBoardMaxPonNum) == 12);

static_assert(!kOnCard || sizeof(FrameInformation) == 17876);
static_assert(!kOnCard || offsetof(FrameInformation, eType) == 0);
static_assert(!kOnCard || offsetof(FrameInformation, ulNameLen) == 4);
static_assert(!kOnCard || offsetof(FrameInformation, acName) == 8);
static_assert(sizeof(FrameInformation::acName) == 60);
static_assert(!kOnCard || offsetof(FrameInformation, ulMaxOnuNum) == 68);
static_assert(!kOnCard || offsetof(FrameInformation, ulMaxUserNum) == 72);
static_assert(!kOnCard || offsetof(FrameInformation, stRealSlot) == 76);
static_assert(!kOnCard || offsetof(FrameInformation, stVirtualSlot) == 488);
static_assert(!kOnCard || offsetof(FrameInformation, stHcuSlot) == 900);
static_assert(!kOnCard || offsetof(FrameInformation, stFanSlot) == 1312);
static_assert(!kOnCard || offsetof(FrameInformation, stPowerSlot) == 1724);
static_assert(!kOnCard || offsetof(FrameInformation, stCioSlot) == 2136);
static_assert(!kOnCard || offsetof(FrameInformation, stServeBoardSlot) == 2548);
static_assert(!kOnCard || offsetof(FrameInformation, stMainSlot) == 2960);
static_assert(!kOnCard || offsetof(FrameInformation, stUplinkSlot) == 3372);
static_assert(!kOnCard || offsetof(FrameInformation, pstSlotArray) == 3784);
static_assert(!kOnCard || offsetof(FrameInformation, ulSwitchChipLogicPortNum) == 3788);
static_assert(!kOnCard || offsetof(FrameInformation, astSwitchChipLogicPort) == 3792);
static_assert(sizeof(FrameInformation::astSwitchChipLogicPort) == 3840);
static_assert(!kOnCard || offsetof(FrameInformation, ulType2SwitchChipLogicPortNum) == 7632);
static_assert(!kOnCard || offsetof(FrameInformation, astType2SwitchChipLogicPort) == 7636);
static_assert(sizeof(FrameInformation::astType2SwitchChipLogicPort) == 10240);

static_assert(!kOnCard || sizeof(SupportedOnuPonType) == 8);
static_assert(!kOnCard || offsetof(SupportedOnuPonType, ulSupportedOnuPonTypeNum) == 0);
static_assert(!kOnCard || offsetof(SupportedOnuPonType, pOnuPonTypeArray) == 4);

static_assert(!kOnCard || sizeof(SupportedOnuLanType) == 8);
static_assert(!kOnCard || offsetof(SupportedOnuLanType, ulSupportedOnuLanTypeNum) == 0);
static_assert(!kOnCard || offsetof(SupportedOnuLanType, pOnuLanTypeArray) == 4);

static_assert(!kOnCard || sizeof(SupportedOnuPotsType) == 8);
static_assert(!kOnCard || offsetof(SupportedOnuPotsType, ulSupportedOnuPotsTypeNum) == 0);
static_assert(!kOnCard || offsetof(SupportedOnuPotsType, pOnuPotsTypeArray) == 4);

static_assert(!kOnCard || sizeof(SupportedOnuSpecialPortType) == 8);
static_assert(!kOnCard ||
              offsetof(SupportedOnuSpecialPortType, ulSupportedOnuSpecialPortTypeNum) == 0);
static_assert(!kOnCard || offsetof(SupportedOnuSpecialPortType, pOnuSpecialPortTypeArray) == 4);

static_assert(!kOnCard || sizeof(OnuInformation) == 100);
static_assert(!kOnCard || offsetof(OnuInformation, ulOnuType) == 0);
static_assert(!kOnCard || offsetof(OnuInformation, ulNameLen) == 4);
static_assert(!kOnCard || offsetof(OnuInformation, acName) == 8);
static_assert(sizeof(OnuInformation::acName) == 60);
static_assert(!kOnCard || offsetof(OnuInformation, ulTotalPonNum) == 68);
static_assert(!kOnCard || offsetof(OnuInformation, pOnuPonArray) == 72);
static_assert(!kOnCard || offsetof(OnuInformation, ulTotalLanPortNum) == 76);
static_assert(!kOnCard || offsetof(OnuInformation, pOnuLanPortArray) == 80);
static_assert(!kOnCard || offsetof(OnuInformation, ulTotalPotsNum) == 84);
static_assert(!kOnCard || offsetof(OnuInformation, pOnuPotsPortArray) == 88);
static_assert(!kOnCard || offsetof(OnuInformation, ulTotalSpecialPortNum) == 92);
static_assert(!kOnCard || offsetof(OnuInformation, pOnuSpecialPortArray) == 96);

static_assert(!kOnCard || sizeof(SupportedOnuType) == 16);
static_assert(!kOnCard || offsetof(SupportedOnuType, ulSupportedOnuTypeNum) == 0);
static_assert(!kOnCard || offsetof(SupportedOnuType, pOnuTypeArray) == 4);
static_assert(!kOnCard || offsetof(SupportedOnuType, ulSupportedOnuMaxLanOnuType) == 8);
static_assert(!kOnCard || offsetof(SupportedOnuType, ulSupportedOnuMaxLanNum) == 12);

static_assert(!kOnCard || sizeof(OptModuleInfo) == 16);
static_assert(!kOnCard || offsetof(OptModuleInfo, kind) == 0);
static_assert(!kOnCard || offsetof(OptModuleInfo, porttype) == 4);
static_assert(!kOnCard || offsetof(OptModuleInfo, phytype) == 8);
static_assert(!kOnCard || offsetof(OptModuleInfo, pathnum) == 10);
static_assert(!kOnCard || offsetof(OptModuleInfo, pathinfo) == 12);
static_assert(sizeof(OptModuleInfo::kind) == 2);
static_assert(sizeof(OptModuleInfo::porttype) == 4);
static_assert(sizeof(OptModuleInfo::phytype) == 2);
static_assert(sizeof(OptModuleInfo::pathnum) == 2);

static_assert(!kOnCard || sizeof(OptModuleInfoList) == 8);
static_assert(!kOnCard || offsetof(OptModuleInfoList, listnum) == 0);
static_assert(!kOnCard || offsetof(OptModuleInfoList, objlist) == 4);
static_assert(sizeof(OptModuleInfoList::listnum) == 2);

static_assert(!kOnCard || sizeof(ModuleTypeList) == 8);
static_assert(!kOnCard || offsetof(ModuleTypeList, ulModuleTypeNum) == 0);
static_assert(!kOnCard || offsetof(ModuleTypeList, pModuleTypeArray) == 4);

static_assert(!kOnCard || sizeof(CommandRecord) == 48);
static_assert(!kOnCard || offsetof(CommandRecord, string) == 0);
static_assert(!kOnCard || offsetof(CommandRecord, func) == 4);
static_assert(!kOnCard || offsetof(CommandRecord, doc) == 8);
static_assert(!kOnCard || offsetof(CommandRecord, name) == 12);
static_assert(!kOnCard || offsetof(CommandRecord, host) == 16);

static_assert(MAX_SUPPORTED_SOFT_VER_NUM == 30);
static_assert(MAX_SUPPORTED_SOFT_VER_LEN == 100);
static_assert(MAX_SUPPORTED_MODULE_TYPE_NUM == 200);
static_assert(MAX_MODULE_NAME_LEN == 60);
static_assert(CFG_VALUE_SIZE == 513);
static_assert(MAX_OLT_PORT_TYPE_NUM == 30);
static_assert(DD_MAX_ONU_NUM_PER_PON == 512);
static_assert(MAX_OLT_PORT_NAME_LEN == 60);
static_assert(MAX_OLT_BOARD_TYPE_NUM == 100);
static_assert(MAX_SWITCH_CHIP_LOGIC_PORT_NUM == 1280);
static_assert(MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM == 20);
static_assert(MAX_BOARD_NAME_LEN == 60);
static_assert(MAX_OLT_PORT_NUM_PER_BOARD == 128);
static_assert(MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD == 128);
static_assert(MAX_FRAME_NAME_LEN == 60);
static_assert(MAX_ONU_NUM_PER_FRAME == 100000);
static_assert(MAX_USER_NUM_PER_FRAME == 2400000);
static_assert(MAX_SLOT_END == 100);
static_assert(MAX_BOARD_TYPE_NUM_PER_SLOT == 100);
static_assert(MAX_TYPEB_SWITCH_CHIP_LOGIC_PORT_NUM == 128);
static_assert(MAX_ONU_PON_TYPE_NUM == 30);
static_assert(MAX_ONU_LAN_TYPE_NUM == 30);
static_assert(MAX_ONU_POTS_TYPE_NUM == 30);
static_assert(MAX_ONU_SPECIAL_PORT_TYPE_NUM == 30);
static_assert(MAX_ONU_NAME_LEN == 60);
static_assert(MAX_ONU_TYPE_NUM == 200);
static_assert(MAX_ONU_PON_NUM_PER_ONU == 5);
static_assert(MAX_ONU_LAN_NUM_PER_ONU == 100);
static_assert(MAX_ONU_POTS_NUM_PER_ONU == 100);
static_assert(MAX_ONU_SPECIAL_PORT_NUM_PER_ONU == 100);
static_assert(MAX_OPTMODULE_INFO_NUM == 50);
static_assert(MAX_OPTMODULE_PATH_NUM == 4);
