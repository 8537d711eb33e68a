/*
 * A host in C: it includes all public headers, takes the address of everything
 * that is exported, starts the library and asks it a few questions.
 *     c_consumer EXPORTS    (the list of exported symbols)
 */
#define _POSIX_C_SOURCE 200809L

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "host.h"
#include "sys_context/cfgfile.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"
#include "sys_context/platform.h"

#define COUNT(array) (sizeof(array) / sizeof((array)[0]))

/* ---- Everything that is exported ------------------------------------------- */

typedef void (*AnyFunction)(void);

#define FUNCTION(name) \
  { #name, (AnyFunction)name }
static const struct {
  const char* name;
  AnyFunction address;
} functions[] = {
    FUNCTION(vkpJumpTableEntryBegin_0),
    FUNCTION(vkpJumpTableEntryBegin_1),
    FUNCTION(vkpJumpTableEntryEnd_0),
    FUNCTION(vkpJumpTableEntryEnd_1),
    FUNCTION(CFG_get_key),
    FUNCTION(CFG_get_key_offset),
    FUNCTION(alltrim),
    FUNCTION(ddStringToLowercase),
    FUNCTION(ddStringToUppercase),
    FUNCTION(fgetline),
    FUNCTION(ltrimstr),
    FUNCTION(rtrimstr),
    FUNCTION(split_key_val),
    FUNCTION(context_cmd_module_init),
    FUNCTION(context_module_init),
    FUNCTION(ddInit),
    FUNCTION(ddParseContextFile),
    FUNCTION(ddReadContextFile),
    FUNCTION(dosFsVolumeBioBufferSize),
    FUNCTION(ddReadContextFileToBuf),
    FUNCTION(read_compress_context_file),
    FUNCTION(ddIsContextVerMatchSoftVer),
    FUNCTION(ddReadVersionInformation),
    FUNCTION(ddGetModuleNameByType),
    FUNCTION(ddGetModuleSize),
    FUNCTION(ddGetModuleTypeByName),
    FUNCTION(ddIsModuleInList),
    FUNCTION(ddIsSysSupportFunc),
    FUNCTION(ddReadAllModuleInformation),
    FUNCTION(ddReadOneModuleInformation),
    FUNCTION(ddReadSysSupportFuncInformation),
    FUNCTION(ddCreateOneOltPortObjByName),
    FUNCTION(ddGetOltPortSplittingRatioByType),
    FUNCTION(ddIsOltPortTypeSupportedByName),
    FUNCTION(ddReadAllSupportedOltPortInformation),
    FUNCTION(ddReadOneSupportedOltPortInformation),
    FUNCTION(ddGetMainBoardNameByType),
    FUNCTION(ddGetMainBoardObjByType),
    FUNCTION(ddGetMainBoardTypeByName),
    FUNCTION(ddGetSpecialLogicPortToPhyPortObjByType),
    FUNCTION(ddGetSwitchChipLogicPortFromPhyPort),
    FUNCTION(ddGetSwitchChipPhyPortFromLogicPort),
    FUNCTION(ddReadAllSupportedMainBoardInformation),
    FUNCTION(ddReadAllSwitchChipLogicPortToPhyPort),
    FUNCTION(ddReadOneSupportedMainBoardInformation),
    FUNCTION(ddReadOneSwitchChipLogicPortToPhyPort),
    FUNCTION(ddReadSpecialSwitchChipLogicPortToPhyPort),
    FUNCTION(ddAddSupportedServePortToBoardObj),
    FUNCTION(ddAddSupportedSpecialPortToBoardObj),
    FUNCTION(ddFindSupportedBoardMaxPonNum),
    FUNCTION(ddFreeOneBoardAllObj),
    FUNCTION(ddReadAllSupportedBoardInformation),
    FUNCTION(ddReadOneSupportedBoardInformation),
    FUNCTION(ddGetBoardAllPortTypesByType),
    FUNCTION(ddGetBoardNameByType),
    FUNCTION(ddGetBoardOneTypePortsByType),
    FUNCTION(ddGetBoardServePortAmountByType),
    FUNCTION(ddGetBoardSpecialPortNumByType),
    FUNCTION(ddGetBoardTotailPortAmountByType),
    FUNCTION(ddGetBoardTotalSpecialPortNum),
    FUNCTION(ddGetBoardTypeByName),
    FUNCTION(ddGetPonMaxOnuNumByBoardType),
    FUNCTION(ddGetPortTypeByBoardType),
    FUNCTION(ddGetSpecialPortTypeByBoardType),
    FUNCTION(ddGetSupportedBoardMaxPonNum),
    FUNCTION(ddIsBoardTypeSupportedByName),
    FUNCTION(ddGetCardNameByType),
    FUNCTION(ddGetCardTypeByName),
    FUNCTION(ddGetCardTypeByNocaseName),
    FUNCTION(ddCheckFrameInformation),
    FUNCTION(ddEmptyFrameInformation),
    FUNCTION(ddGetFrameName),
    FUNCTION(ddInquireFrameName),
    FUNCTION(ddReadFrameInformation),
    FUNCTION(ddReadOneSlotClass),
    FUNCTION(ddReadSlotSupportBoard),
    FUNCTION(ddReadSwitchChipLogicPortToSlotPort),
    FUNCTION(read_balance_switch_logicport_to_portinfo),
    FUNCTION(ddCanBoardPlugInSlotByType),
    FUNCTION(ddGetAllSlotList),
    FUNCTION(ddGetBoardSlotList),
    FUNCTION(ddGetCioSlotList),
    FUNCTION(ddGetCioSlotRange),
    FUNCTION(ddGetFanSlotList),
    FUNCTION(ddGetFanSlotRange),
    FUNCTION(ddGetHcuSlotList),
    FUNCTION(ddGetHcuSlotRange),
    FUNCTION(ddGetMainBoardSlotList),
    FUNCTION(ddGetMainSlotRange),
    FUNCTION(ddGetMaxMainSlot),
    FUNCTION(ddGetMaxOnuNum),
    FUNCTION(ddGetMaxSlotNum),
    FUNCTION(ddGetMaxUserNum),
    FUNCTION(ddGetMinMainSlot),
    FUNCTION(ddGetPowerSlotList),
    FUNCTION(ddGetPowerSlotRange),
    FUNCTION(ddGetRealSlotList),
    FUNCTION(ddGetRealSlotRange),
    FUNCTION(ddGetServeBoardSlotAmount),
    FUNCTION(ddGetServeBoardSlotRange),
    FUNCTION(ddGetServeSlotList),
    FUNCTION(ddGetUplinkSlotList),
    FUNCTION(ddGetUplinkSlotRange),
    FUNCTION(ddGetVirtualSlotList),
    FUNCTION(ddGetVirtualSlotRange),
    FUNCTION(ddIsCioBoardSlot),
    FUNCTION(ddIsFanBoardSlot),
    FUNCTION(ddIsHcuBoardSlot),
    FUNCTION(ddIsMainBoardSlot),
    FUNCTION(ddIsPowerBoardSlot),
    FUNCTION(ddIsRealSlot),
    FUNCTION(ddIsServeBoardSlot),
    FUNCTION(ddIsSlotInSlotList),
    FUNCTION(ddIsUplinkBoardSlot),
    FUNCTION(ddIsValidSlot),
    FUNCTION(ddIsVectorBoardSlot),
    FUNCTION(ddIsVirtualSlot),
    FUNCTION(ddGetAllUserPortSwitchChipLogicPortList),
    FUNCTION(ddGetEthLogicportRange),
    FUNCTION(ddGetNonzeroPortSwitchChipLogicPortList),
    FUNCTION(ddGetObjectInfoFromSwitchChipLogicPort),
    FUNCTION(ddGetSlotPortFromSwitchChipLogicPort),
    FUNCTION(ddGetSwitchChipLogicPortAmount),
    FUNCTION(ddGetSwitchChipLogicPortFromSlotPort),
    FUNCTION(ddGetUplinkLogicPortList),
    FUNCTION(ddGetUplinkLogicPortListOnly),
    FUNCTION(ddGetUplinkPortLogicPortListFromSlot),
    FUNCTION(get_balance_chipno_phyport_from_switch_logicport),
    FUNCTION(get_balance_slotport_from_switch_logicport),
    FUNCTION(get_balance_switch_logicport_amount),
    FUNCTION(get_balance_switch_logicport_from_chipno_phyport),
    FUNCTION(get_balance_switch_logicport_from_phyport),
    FUNCTION(get_balance_switch_logicport_from_slotport),
    FUNCTION(get_balance_switch_logicport_from_slotport_chipno),
    FUNCTION(get_balance_switch_logicport_index_from_portno),
    FUNCTION(get_balance_switch_logicport_portno_from_index),
    FUNCTION(get_balance_switch_logicportlist_from_slot),
    FUNCTION(get_balance_switch_logicportlist_from_slotport),
    FUNCTION(get_balance_user_port_switch_logicportlist),
    FUNCTION(get_higicport_balance_switch_logicportlist),
    FUNCTION(get_switch_chip_logicport_index_from_portno),
    FUNCTION(get_switch_chip_logicport_portno_from_index),
    FUNCTION(get_switch_logicportlist_from_slot),
    FUNCTION(get_switch_logicportlist_from_slotport),
    FUNCTION(is_higigport_balance_switch_logicport),
    FUNCTION(ddRunGetMainSlotType),
    FUNCTION(ddRunGetSwitchChipLogicPortFromPhyPort),
    FUNCTION(ddRunGetSwitchChipPhyPortFromLogicPort),
    FUNCTION(get_current_frameno),
    FUNCTION(ddCreateOneOnuLanObjByName),
    FUNCTION(ddCreateOneOnuPonObjByName),
    FUNCTION(ddCreateOneOnuPotsObjByName),
    FUNCTION(ddCreateOneOnuSpecialPortObjByName),
    FUNCTION(ddIsOnuLanTypeSupportedByName),
    FUNCTION(ddIsOnuLanTypeSupportedByType),
    FUNCTION(ddIsOnuPonTypeSupportedByName),
    FUNCTION(ddIsOnuPonTypeSupportedByType),
    FUNCTION(ddIsOnuPotsTypeSupportedByName),
    FUNCTION(ddIsOnuPotsTypeSupportedByType),
    FUNCTION(ddIsOnuSpecialPortTypeSupportedByName),
    FUNCTION(ddIsOnuSpecialPortTypeSupportedByType),
    FUNCTION(ddReadAllSupportedOnuLanInformation),
    FUNCTION(ddReadAllSupportedOnuPonInformation),
    FUNCTION(ddReadAllSupportedOnuPotsInformation),
    FUNCTION(ddReadAllSupportedOnuSpecialPortInformation),
    FUNCTION(ddReadOneSupportedOnuLanInformation),
    FUNCTION(ddReadOneSupportedOnuPonInformation),
    FUNCTION(ddReadOneSupportedOnuPotsInformation),
    FUNCTION(ddReadOneSupportedOnuSpecialPortInformation),
    FUNCTION(ddAddSupportedLanToOnuObj),
    FUNCTION(ddAddSupportedPonToOnuObj),
    FUNCTION(ddAddSupportedPotsToOnuObj),
    FUNCTION(ddAddSupportedSpecialPortToOnuObj),
    FUNCTION(ddCheckSupportedOnuTypeNum),
    FUNCTION(ddFindSupportedOnuMaxLanNum),
    FUNCTION(ddFreeOneOnuAllObj),
    FUNCTION(ddReadAllSupportedOnuInformation),
    FUNCTION(ddReadOneSupportedOnuInformation),
    FUNCTION(ddGetAllSupportedOnuType),
    FUNCTION(ddGetOnuLanPortNumByType),
    FUNCTION(ddGetOnuLanPortTypeByType),
    FUNCTION(ddGetOnuNameByType),
    FUNCTION(ddGetOnuPonNumByType),
    FUNCTION(ddGetOnuPonPortTypeByType),
    FUNCTION(ddGetOnuPotsPortNumByType),
    FUNCTION(ddGetOnuPotsPortTypeByType),
    FUNCTION(ddGetOnuSpecialPortAmount),
    FUNCTION(ddGetOnuSpecialPortNumByType),
    FUNCTION(ddGetOnuSpecialPortTypeByPortNo),
    FUNCTION(ddGetOnuSpecialPortTypeList),
    FUNCTION(ddGetOnuTypeByName),
    FUNCTION(ddGetSupportedOnuMaxLanNum),
    FUNCTION(ddIsOnuSupportedByType),
    FUNCTION(init_optmodule_info),
    FUNCTION(optmodule_defines_fileparse),
    FUNCTION(optmodule_file_free),
    FUNCTION(optmodule_infolist_read),
    FUNCTION(optmodule_oneinfo_read),
    FUNCTION(optmodule_oneobj_free),
    FUNCTION(optmodule_onuthres_read),
    FUNCTION(get_onu_optmodule_thresinfo),
    FUNCTION(get_port_optmodule_thresinfo),
    FUNCTION(install_gepon_optmodule_inforead_element),
    FUNCTION(show_optmodule_fileinfo_byindex),
    FUNCTION(show_optmodule_info_func),
    FUNCTION(ddCmdInit),
    FUNCTION(ddShowAllBoardInfo_Func),
    FUNCTION(ddShowAllDevice_Func),
    FUNCTION(ddShowAllModuleInfo_Func),
    FUNCTION(ddShowAllSupportedOnuType_Func),
    FUNCTION(ddShowAllSupportedOnu_Func),
    FUNCTION(ddShowContextFile_Func),
    FUNCTION(ddShowFrameInfo_Func),
    FUNCTION(ddShowMainBoardInfo_Func),
    FUNCTION(ddShowOltPortInfo_Func),
    FUNCTION(ddShowOneSupportedOnuInfo_Func),
    FUNCTION(ddShowOnuLanInfo_Func),
    FUNCTION(ddShowOnuPonInfo_Func),
    FUNCTION(ddShowOnuPotsInfo_Func),
    FUNCTION(ddShowOnuSpecialPortInfo_Func),
    FUNCTION(ddShowSysSupportFuncInfo_Func),
    FUNCTION(ddShowVersionInfo_Func),
    FUNCTION(ddUploadContextFile_Func),
    FUNCTION(ddPrintAllContextInformation),
    FUNCTION(ddPrintAllModuleInformation),
    FUNCTION(ddPrintAllSupportedBoardInfomation),
    FUNCTION(ddPrintAllSupportedMainBoardInformation),
    FUNCTION(ddPrintAllSupportedOltPortInfomation),
    FUNCTION(ddPrintAllSupportedOnuLanInfomation),
    FUNCTION(ddPrintAllSupportedOnuPonInfomation),
    FUNCTION(ddPrintAllSupportedOnuPotsInfomation),
    FUNCTION(ddPrintAllSupportedOnuSpecialPortInfomation),
    FUNCTION(ddPrintAllSupportedOnuTypeBaseInfomation),
    FUNCTION(ddPrintAllSupportedOnuTypeInfomation),
    FUNCTION(ddPrintFrameInfomation),
    FUNCTION(ddPrintOneSupportedBoardInfomation),
    FUNCTION(ddPrintOneSupportedOnuInfomation),
    FUNCTION(ddPrintSlotClassInformation),
    FUNCTION(ddPrintSysSupportFuncInformation),
    FUNCTION(ddPrintVersionInformation),
    FUNCTION(ddPrintBuf),
    FUNCTION(ddPrintContextFile),
    FUNCTION(ddUploadContextFile),
};

#define VARIABLE(name) \
  { #name, &name }
static const struct {
  const char* name;
  const void* address;
} variables[] = {
    VARIABLE(CFG_key_line_no),
    VARIABLE(CFG_key_lines),
    VARIABLE(CFG_section_line_no),
    VARIABLE(CFG_ssl),
    VARIABLE(CFG_ssr),
    VARIABLE(ddDebugPrint),
    VARIABLE(dosFsMsgLevel),
    VARIABLE(strDeviceDefFilePath),
    VARIABLE(gstVersionInformation),
    VARIABLE(gstrddSoftwareVer),
    VARIABLE(gstModuleTypeList),
    VARIABLE(gstSysSupportFuncType),
    VARIABLE(gstSupportedOltPortType),
    VARIABLE(gstSupportedMainBoardType),
    VARIABLE(gstSupportedBoardType),
    VARIABLE(dd_gstrKeyFrameName),
    VARIABLE(dd_gstrKeyFrameType),
    VARIABLE(dd_gstrSectionFrameInfomation),
    VARIABLE(gstFrame),
    VARIABLE(gstSupportedOnuLanType),
    VARIABLE(gstSupportedOnuPonType),
    VARIABLE(gstSupportedOnuPotsType),
    VARIABLE(gstSupportedOnuSpecialPortType),
    VARIABLE(gstSupportedOnuType),
    VARIABLE(g_optmdule_infolist),
    VARIABLE(show_optmodule_info_cmd),
    VARIABLE(ddShowAllBoardInfo_CMD),
    VARIABLE(ddShowAllDevice_CMD),
    VARIABLE(ddShowAllModuleInfo_CMD),
    VARIABLE(ddShowAllSupportedOnuType_CMD),
    VARIABLE(ddShowAllSupportedOnu_CMD),
    VARIABLE(ddShowContextFile_CMD),
    VARIABLE(ddShowFrameInfo_CMD),
    VARIABLE(ddShowMainBoardInfo_CMD),
    VARIABLE(ddShowOltPortInfo_CMD),
    VARIABLE(ddShowOneSupportedOnuInfo_CMD),
    VARIABLE(ddShowOnuLanInfo_CMD),
    VARIABLE(ddShowOnuPonInfo_CMD),
    VARIABLE(ddShowOnuPotsInfo_CMD),
    VARIABLE(ddShowOnuSpecialPortInfo_CMD),
    VARIABLE(ddShowSysSupportFuncInfo_CMD),
    VARIABLE(ddShowVersionInfo_CMD),
    VARIABLE(ddUploadContextFile_CMD),
};

static int has_function(const char* name) {
  for (size_t i = 0; i < COUNT(functions); i++) {
    if (strcmp(functions[i].name, name) == 0) {
      return 1;
    }
  }
  return 0;
}

static int has_variable(const char* name) {
  for (size_t i = 0; i < COUNT(variables); i++) {
    if (strcmp(variables[i].name, name) == 0) {
      return 1;
    }
  }
  return 0;
}

/* Is the list of exported symbols what the tables above hold? */
static void compare_with(const char* path) {
  char line[200];
  char kind;
  char name[100];
  size_t listed[2] = {0, 0};
  FILE* const list = fopen(path, "r");
  CHECK(list != NULL);
  while (list != NULL && fgets(line, sizeof line, list) != NULL) {
    if (sscanf(line, "%c %99s", &kind, name) != 2 || kind == '#') {
      continue;
    }
    listed[kind == 'D']++;
    if (!(kind == 'D' ? has_variable(name) : has_function(name))) {
      fprintf(stderr, "%s is exported, but not in the tables of this program\n", name);
      CHECK(0);
    }
  }
  if (list != NULL) {
    fclose(list);
  }
  CHECK(listed[0] == COUNT(functions));
  CHECK(listed[1] == COUNT(variables));
}

static void addresses_are_good(void) {
  for (size_t i = 0; i < COUNT(functions); i++) {
    CHECK(functions[i].address != NULL);
    for (size_t j = 0; j < i; j++) {
      CHECK(functions[i].address != functions[j].address);
    }
  }
  for (size_t i = 0; i < COUNT(variables); i++) {
    CHECK(variables[i].address != NULL);
    for (size_t j = 0; j < i; j++) {
      CHECK(variables[i].address != variables[j].address);
    }
  }
}

/* ---- A start ----------------------------------------------------------------- */

static void variables_have_their_first_values(void) {
  CHECK(CFG_ssl == '[' && CFG_ssr == ']');
  CHECK(CFG_section_line_no == 0 && CFG_key_line_no == 0 && CFG_key_lines == 0);
  CHECK(ddDebugPrint == 0 && dosFsMsgLevel == 0);
  CHECK(strcmp(strDeviceDefFilePath, "/mem/dd.ini") == 0);
  CHECK(strcmp(gstrddSoftwareVer, "KT2200V4.0") == 0);
  CHECK(gstVersionInformation.ulSupportedSoftVerNum == 0);
  CHECK(gstModuleTypeList.ulModuleTypeNum == 0 && gstModuleTypeList.pModuleTypeArray == NULL);
  CHECK(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum == 0);
  CHECK(gstSupportedOltPortType.ulSupportedOltPortTypeNum == 0);
  CHECK(gstSupportedOltPortType.pOltPortTypeArray == NULL);
  CHECK(gstSupportedMainBoardType.ulSupportedBoardTypeNum == 0);
  CHECK(gstSupportedMainBoardType.pBoardTypeArray == NULL);
  CHECK(gstSupportedBoardType.ulSupportedBoardTypeNum == 0);
  CHECK(gstSupportedBoardType.pBoardTypeArray == NULL);
  CHECK(gstSupportedBoardType.ulSupportedBoardMaxPonType == 0);
  CHECK(gstSupportedBoardType.ulSupportedBoardMaxPonNum == 0);
  CHECK(gstFrame.ulNameLen == 0 && gstFrame.pstSlotArray == NULL);
  CHECK(gstSupportedOnuPonType.ulSupportedOnuPonTypeNum == 0);
  CHECK(gstSupportedOnuPonType.pOnuPonTypeArray == NULL);
  CHECK(gstSupportedOnuLanType.ulSupportedOnuLanTypeNum == 0);
  CHECK(gstSupportedOnuLanType.pOnuLanTypeArray == NULL);
  CHECK(gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum == 0);
  CHECK(gstSupportedOnuPotsType.pOnuPotsTypeArray == NULL);
  CHECK(gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum == 0);
  CHECK(gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray == NULL);
  CHECK(gstSupportedOnuType.ulSupportedOnuTypeNum == 0);
  CHECK(gstSupportedOnuType.pOnuTypeArray == NULL);
  CHECK(gstSupportedOnuType.ulSupportedOnuMaxLanOnuType == 0);
  CHECK(gstSupportedOnuType.ulSupportedOnuMaxLanNum == 0);
  CHECK(g_optmdule_infolist.listnum == 0 && g_optmdule_infolist.objlist == NULL);
  CHECK(strcmp(dd_gstrSectionFrameInfomation, "FrameInfomation") == 0);
  CHECK(strcmp(dd_gstrKeyFrameName, "Name") == 0);
  CHECK(strcmp(dd_gstrKeyFrameType, "Type") == 0);
}

static void a_missing_file_is_reported(void) {
  set_definition_file(NULL);
  catch_console();
  CHECK(ddInit() == -31);
  CHECK(strcmp(console_text(),
               "\r\nddReadVersionInformation err! iResult = -10, section = Version, key = Version"
               "\r\nddParseContextFile->ddReadVersionInformation err! iResult = -31, "
               "strDeviceDefFilePath = /mnt/work/device_definition.ini"
               "\r\nddReadContextFile->ddParseContextFile err! iResult = -31"
               "ddInit initialize......failed!\r\n") == 0);
  CHECK(strcmp(platform.log, "") == 0);
}

static void the_library_starts(void) {
  set_definition_file(
      "[Version]\nSupportedSoftwareVer = KT2200V3.8|KT2200V4.0\n"
      "[ModuleTypeList]\nModuleNum = 1\nModule1 = Module_VLAN\n"
      "[Module_VLAN]\nType = 3\nName = VLAN\nSize = 300\n"
      "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum = 1\n"
      "SupportedSysFunction1 = VLAN\n"
      "[SupportedOltPortType]\nSupportedOltPortTypeNum = 1\nSupportedOltPortType1 = Port_GPON\n"
      "[Port_GPON]\nType = 2\nName = GPON\nSplittingRatio = 128\n"
      "[SupportedMainBoardType]\nSupportedMainBoardTypeNum = 1\n"
      "SupportedMainBoardType1 = Board_MCXA\n"
      "[Board_MCXA]\nType = 101\nName = MCXA\nSwitchChipLogicPortNum = 2\n"
      "SwitchChipLogicPort1 = 5\nSwitchChipLogicPort2 = 9\n"
      "SpecialChipLogicPortMapPhyPortCardNum = 1\nSpecialChipLogicPortMapPhyPortCard1 = GP02A\n"
      "GP02A_SwitchChipLogicPort1 = 7\nGP02A_SwitchChipLogicPort2 = 8\n"
      "[SupportedBoardType]\nSupportedBoardTypeNum = 1\nSupportedBoardType1 = Board_GP02A\n"
      "[Board_GP02A]\nType = 3102\nName = GP02A\nPortNum = 2\n"
      "NameKeyPort1 = GPON\nNameKeyPort2 = GPON\nSpecialPortNum = 0\n"
      "[KT3300-N_FrameInfomation]\nType = 17\nName = KT3300-N\nMaxOnuNum = 4096\nMaxUserNum = 9\n"
      "RealSlotNum = 2\nRealSlotList = 1,2\nVirtualSlotNum = 0\nHcuSlotNum = 0\nFanSlotNum = 0\n"
      "CioSlotNum = 0\nPowerSlotNum = 0\nServeBoardSlotNum = 0\nMainSlotNum = 1\nMainSlotList = 1\n"
      "UplinkSlotNum = 1\nUplinkSlotList = 2\n"
      "SupportedBoardTypeSlot1 = MCXA\nSupportedBoardTypeSlot2 = GP02A\n"
      "SwitchChipLogicPortNum = 2\nSwitchChipLogicPort1 = 2,0,0\nSwitchChipLogicPort2 = 2,4,0\n"
      "Type2SwitchChipLogicPortNum = 2\nType2SwitchChipLogicPort1 = 2,4,0,31,0\n"
      "Type2SwitchChipLogicPort2 = 2,4,1,31,1\n"
      "[SupportedOnuPonType]\nSupportedOnuPonTypeNum = 1\nSupportedOnuPonType1 = OnuPon_GPON\n"
      "[OnuPon_GPON]\nType = 2\nName = GPON\n"
      "[SupportedOnuLanType]\nSupportedOnuLanTypeNum = 1\nSupportedOnuLanType1 = OnuLan_GE\n"
      "[OnuLan_GE]\nType = 3\nName = GE\n"
      "[SupportedOnuPotsType]\nSupportedOnuPotsTypeNum = 1\nSupportedOnuPotsType1 = OnuPots_FXS\n"
      "[OnuPots_FXS]\nType = 4\nName = FXS\n"
      "[SupportedOnuSpecialPortType]\nSupportedOnuSpecialPortTypeNum = 1\n"
      "SupportedOnuSpecialPortType1 = OnuSpecial_CATV\n"
      "[OnuSpecial_CATV]\nType = 5\nName = CATV\n"
      "[SupportedOnuType]\nSupportedOnuTypeNum = 1\nSupportedOnuType1 = Onu_KT-G104\n"
      "[Onu_KT-G104]\nType = 6003\nName = KT-G104\nPonNum = 1\nNameKeyPon1 = GPON\n"
      "LanPortNum = 2\nNameKeyLanPort1 = GE\nNameKeyLanPort2 = GE\n"
      "PotsPortNum = 1\nNameKeyPotsPort1 = FXS\n"
      "SpecialPortNum = 1\nNameKeySpecialPort1 = CATV\n");
  set_optical_file(
      "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum = 3\n"
      "SupportedOptModuleInfo1 = OltGpon\nSupportedOptModuleInfo2 = Broken\n"
      "SupportedOptModuleInfo3 = OnuGpon\n"
      "[OltGpon]\nPortKind = 1\nPortType = 2\nPhyType = 3\nPathNum = 2\n"
      "Path1 = 500,150,-800,-2800\nPath2 = 400,200,-900,-2600\n"
      "[Broken]\nPortKind = 1\nPortType = 2\n"
      "[OnuGpon]\nPortKind = 3\nPortType = 2\nPhyType = 1\nPathNum = 1\n"
      "Path1 = 500,50,-800,-2700\n");
  platform.pon_card = 3102;
  platform.uplink_card = 3102;
  platform.device_type = 17;
  catch_console();
  CHECK(ddInit() == 0);
  CHECK(ddCmdInit(0, 0, 0) == 0);
  CHECK(strcmp(console_text(), "") == 0);
  CHECK(gstVersionInformation.ulSupportedSoftVerNum == 2);
  CHECK(gstModuleTypeList.ulModuleTypeNum == 1);
  CHECK(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum == 1);
  CHECK(gstSupportedOltPortType.ulSupportedOltPortTypeNum == 1);
  CHECK(gstSupportedMainBoardType.ulSupportedBoardTypeNum == 1);
  CHECK(gstSupportedBoardType.ulSupportedBoardTypeNum == 1);
  CHECK(gstFrame.ulSwitchChipLogicPortNum == 2);
  CHECK(gstSupportedOnuPonType.ulSupportedOnuPonTypeNum == 1);
  CHECK(gstSupportedOnuPonType.pOnuPonTypeArray[0]->ulPonType == 2);
  CHECK(gstSupportedOnuLanType.ulSupportedOnuLanTypeNum == 1);
  CHECK(gstSupportedOnuLanType.pOnuLanTypeArray[0]->ulLanType == 3);
  CHECK(gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum == 1);
  CHECK(gstSupportedOnuPotsType.pOnuPotsTypeArray[0]->ulPortType == 4);
  CHECK(gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum == 1);
  CHECK(gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray[0]->ulPortType == 5);
  CHECK(gstSupportedOnuType.ulSupportedOnuTypeNum == 1);
  CHECK(gstSupportedOnuType.ulSupportedOnuMaxLanOnuType == 6003);
  CHECK(g_optmdule_infolist.listnum == 2);
  CHECK(strcmp(platform.log,
               "6 optmodule_oneinfo_read err! ret = -2, strSectionFrameNameBuf = Broken, "
               "Key = PhyType.\r\n"
               "6 optmodule_infolist_read:optmodule_onuinfo_read err! ret = -3, "
               "section = Broken.\r\n") == 0);
}

static void queries_are_answered(void) {
  char name[MAX_MODULE_NAME_LEN];
  uint32_t number = 0;
  uint8_t size = 0;
  CHECK(ddIsContextVerMatchSoftVer(&number) == 0 && number == 1);
  CHECK(ddGetModuleNameByType(3, name) == 0 && strcmp(name, "VLAN") == 0);
  CHECK(ddGetModuleTypeByName("VLAN", &number) == 0 && number == 3);
  CHECK(ddIsModuleInList(4, &number) == 0 && number == 0);
  CHECK(ddGetModuleSize(3, &size) == 0 && size == 44);
  CHECK(ddIsSysSupportFunc(3, &number) == 0 && number == 1);
}

static void olt_queries_are_answered(void) {
  char name[MAX_BOARD_NAME_LEN];
  uint32_t number = 0;
  PortMap* map = NULL;
  CHECK(ddGetOltPortSplittingRatioByType(2, &number) == 0 && number == 128);
  CHECK(ddGetMainBoardNameByType(101, name) == 0 && strcmp(name, "MCXA") == 0);
  CHECK(ddGetSpecialLogicPortToPhyPortObjByType(101, 3102, &map) == 0);
  CHECK(map != NULL && strcmp(map->acBoardName, "GP02A") == 0);
  CHECK(ddGetSwitchChipPhyPortFromLogicPort(2, map, &number) == 0 && number == 8);
  CHECK(ddGetBoardServePortAmountByType(3102, &number) == 0 && number == 2);
  CHECK(ddGetPonMaxOnuNumByBoardType(3102, 2, &number) == 0 && number == 128);
  CHECK(ddGetSupportedBoardMaxPonNum(&number) == 0 && number == 2);
  CHECK(ddGetCardTypeByNocaseName("gp02a", &number) == 0 && number == 3102);
}

static void frame_queries_are_answered(void) {
  char name[MAX_FRAME_NAME_LEN];
  uint32_t numbers[2] = {0, 0};
  uint32_t number = 0;
  CHECK(ddInquireFrameName(name) == 0 && strcmp(name, "KT3300-N") == 0);
  CHECK(ddGetFrameName(name) == 0 && strcmp(name, "KT3300-N") == 0);
  CHECK(ddGetMaxOnuNum(&number) == 0 && number == 4096);
  CHECK(ddGetRealSlotList(numbers, 2, &number) == 0 && number == 2 && numbers[1] == 2);
  CHECK(ddGetMaxMainSlot() == 1);
  CHECK(ddIsUplinkBoardSlot(2, &number) == 0 && number == 1);
  CHECK(ddCanBoardPlugInSlotByType(2, 3102, &number) == 0 && number == 1);
  CHECK(get_current_frameno() == 1);
}

/* The platform has its say in these: every slot has an uplink card. */
static void logic_ports_are_answered(void) {
  uint32_t numbers[2] = {0, 0};
  uint32_t number = 0;
  CHECK(ddGetSwitchChipLogicPortFromSlotPort(2, 4, &number) == 0 && number == 2);
  CHECK(get_balance_switch_logicport_from_slotport(2, 4, &number) == 0 && number == 2);
  CHECK(ddGetUplinkLogicPortList(numbers, 2, &number) == 0 && number == 1 && numbers[0] == 2);
  CHECK(get_higicport_balance_switch_logicportlist(numbers, 2, &number) == 0 && number == 1);
  CHECK(ddRunGetMainSlotType(&number) == 0 && number == 101);
  CHECK(ddRunGetSwitchChipPhyPortFromLogicPort(2, &number) == 0 && number == 8);
  CHECK(ddRunGetSwitchChipLogicPortFromPhyPort(9, &number) == -22);
}

static void onu_queries_are_answered(void) {
  char name[MAX_ONU_NAME_LEN];
  uint32_t types[MAX_ONU_SPECIAL_PORT_NUM_PER_ONU] = {0};
  uint32_t number = 0;
  CHECK(ddGetOnuNameByType(6003, name) == 0 && strcmp(name, "KT-G104") == 0);
  CHECK(ddGetOnuTypeByName("KT-G104", &number) == 0 && number == 6003);
  CHECK(ddGetOnuLanPortNumByType(6003, &number) == 0 && number == 2);
  CHECK(ddGetOnuLanPortTypeByType(6003, 2, &number) == 0 && number == 3);
  CHECK(ddGetOnuPotsPortTypeByType(6003, 1, &number) == 0 && number == 4);
  CHECK(ddGetOnuSpecialPortTypeList(6003, types, COUNT(types), &number) == 0);
  CHECK(number == 1 && types[0] == 5);
  number = 0;
  CHECK(ddGetAllSupportedOnuType(&number, types) == 0 && number == 1 && types[0] == 6003);
}

static void power_limits_are_answered(void) {
  OptModuleThreshold paths[2] = {{0, 0, 0, 0}, {0, 0, 0, 0}};
  uint16_t count = 2;
  CHECK(get_port_optmodule_thresinfo(2, 1, 3, &count, paths) == 0 && count == 2);
  CHECK(paths[0].outup == 500 && paths[0].outdn == 150);
  CHECK(paths[0].inup == -800 && paths[0].indn == -2800);
  CHECK(paths[1].indn == -2600);
  platform.fitted_onu = 6003;
  CHECK(get_onu_optmodule_thresinfo(1, 2, 3, 9, &count, paths) == 0 && count == 1);
  CHECK(paths[0].outdn == 50);
  CHECK(get_onu_optmodule_thresinfo(1, 2, 4, 9, &count, paths) == -7);
}

/* Of types that the definition file does not know. */
static void the_host_answers_for_other_onu_types(void) {
  char name[MAX_ONU_NAME_LEN];
  uint32_t number = 0;
  platform.onu_number = 3;
  CHECK(ddGetOnuPonNumByType(9001, &number) == 0 && number == 3);
  CHECK(ddGetOnuPonNumByType(9002, &number) == -20 && number == 0);
  CHECK(ddGetOnuNameByType(9001, name) == 0 && strcmp(name, "OnuOfTheHost") == 0);
  CHECK(ddGetOnuTypeByName("OnuOfTheHost", &number) == 0 && number == 9001);
  CHECK(ddGetSupportedOnuMaxLanNum(&number) == 0 && number == 3);
}

static void records_of_onus_can_be_freed_by_the_host(void) {
  OnuInformation* onu = NULL;
  OnuPortTypeInformation* type = NULL;
  CHECK(ddReadOneSupportedOnuInformation("/mnt/work/device_definition.ini", "Onu_KT-G104", 0,
                                         &onu) == 0);
  CHECK(onu != NULL && onu->ulTotalLanPortNum == 2);
  CHECK(ddFreeOneOnuAllObj(onu) == 0);
  CHECK(ddCreateOneOnuPotsObjByName("FXS", &type) == 0);
  CHECK(type != NULL && type->ulPortType == 4);
  free(type);
}

static void a_board_can_be_freed_by_the_host(void) {
  BoardInformation* board = NULL;
  CHECK(ddReadOneSupportedBoardInformation("/mnt/work/device_definition.ini", "Board_GP02A", 0,
                                           &board) == 0);
  CHECK(board != NULL && board->ulTotalServePortNum == 2);
  CHECK(ddFreeOneBoardAllObj(board) == 0);
}

static void optical_modules_can_be_freed_by_the_host(void) {
  OptModuleInfo* module = NULL;
  OptModuleThreshold* path = NULL;
  CHECK(optmodule_oneinfo_read("/mnt/work/optmodule_definition.ini", "OnuGpon", 0, &module) == 0);
  CHECK(module != NULL && module->kind == OPTMODULE_KIND_ONU_PON && module->pathnum == 1);
  CHECK(optmodule_oneobj_free(module) == 0);
  CHECK(optmodule_onuthres_read("-10,-30,-5,-28", &path) == 0);
  CHECK(path != NULL && path->outup == -10 && path->indn == -28);
  free(path);
}

static void commands_are_installed(void) {
  int terminal = 0;
  CHECK(platform.registered == 1 && platform.versions == 1);
  CHECK(platform.installed == 17);
  CHECK(platform.vk_record == &show_optmodule_info_cmd);
  CHECK(platform.records[6] == &ddShowFrameInfo_CMD);
  CHECK(platform.records[14] == &ddShowAllDevice_CMD);
  CHECK(platform.records[0] == &ddShowVersionInfo_CMD);
  CommandRecord* const record = platform.records[2];
  CHECK(strcmp(record->string, "show context sys_support_func") == 0);
  CHECK(record->func(record, &terminal, 0, NULL) == 0);
  CHECK(platform.terminal_used == &terminal);
  CHECK(strcmp(platform.terminal,
               "\r\nSysSupportFuncInformation:\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 1"
               "\r\n 0. ulModuleType =  3, aucModuleName = VLAN  \r\n\r\n") == 0);
}

static void boards_are_shown(void) {
  int terminal = 0;
  platform.terminal[0] = '\0';
  CHECK(ddPrintOneSupportedBoardInfomation(gstSupportedBoardType.pBoardTypeArray[0], &terminal) ==
        0);
  CHECK(platform.terminal_used == &terminal);
  CHECK(strcmp(platform.terminal,
               "\r\n ulType = 3102, ulSubType =  0, ulNameLen =  6, acName =    GP02A, "
               "ulTotalServePortNum =  2, ulTotalSpecialPortNum =  0"
               "\r\nServePort = 2"
               "\r\n   0. ulPortType =   2, ulNameLen =  5, acName =     GPON, "
               "ulSplittingRatio = 128"
               "\r\n   1. ulPortType =   2, ulNameLen =  5, acName =     GPON, "
               "ulSplittingRatio = 128"
               "\r\nSpecialPort = 0\r\n") == 0);
}

static void slots_are_shown(void) {
  int terminal = 0;
  platform.terminal[0] = '\0';
  CHECK(ddPrintSlotClassInformation(&terminal, &gstFrame.stRealSlot) == 0);
  CHECK(platform.terminal_used == &terminal);
  CHECK(strcmp(platform.terminal,
               "\r\nulSlotAmount =  2, ulSlotStart  =  1, ulSlotEnd  =  2"
               "\r\nucSlotArray = 1, 2, \r\n") == 0);
}

static void onu_types_are_shown(void) {
  int terminal = 0;
  char index[] = "0";
  char* words[] = {index, NULL};
  platform.terminal[0] = '\0';
  CommandRecord* const record = platform.records[12];
  CHECK(strcmp(record->string, "show context onu_detail index <indexno>") == 0);
  CHECK(record->func(record, &terminal, 1, words) == 0);
  CHECK(platform.terminal_used == &terminal);
  CHECK(strcmp(platform.terminal,
               "\r\nSupportedOneOnuInformation: KT-G104"
               "\r\nulOnuType = 6003, ulNameLen = 8, acName = KT-G104, ulTotalPonNum = 1, "
               "ulTotalLanPortNum = 2, ulTotalPotsNum = 1, ulTotalSpecialPortNum = 1"
               "\r\nOnu PON: 1 PON\r\n   0. ulPonType =   2, ulNameLen = 5, acName = GPON"
               "\r\nOnu LAN: 2 LAN\r\n   0. ulLanPortType =   3, ulNameLen =  3, acName = GE"
               "\r\n   1. ulLanPortType =   3, ulNameLen =  3, acName = GE"
               "\r\nOnu POTS: 1 POTS\r\n   0. ulPotsPortType =   4, ulNameLen =  4, acName = FXS"
               "\r\nOnu special port: 1 special port"
               "\r\n   0. ulSpecialPortType =   5, ulNameLen =  5, acName = CATV\r\n") == 0);
}

static void optical_modules_are_shown(void) {
  int terminal = 0;
  char index[] = "2";
  char* words[] = {index, NULL};
  platform.terminal[0] = '\0';
  CommandRecord* const record = platform.vk_record;
  CHECK(record != NULL && record->func(record, &terminal, 1, words) == 0);
  CHECK(platform.terminal_used == &terminal);
  CHECK(strcmp(platform.terminal,
               "ONU PON Optical Module Index 2:\r\nPortType: 2,  PhyType: 1  \r\n"
               "PON path num: 1 \r\n"
               "path 1: inup: -800, indn -2700, outup 500, outdn 50.\r\n") == 0);
  CHECK(install_gepon_optmodule_inforead_element() == 6);
}

static void the_stored_file_is_shown_and_uploaded(void) {
  int terminal = 0;
  char address[] = "192.168.8.2";
  char own_address[] = "192.168.8.1";
  char user[] = "user";
  char password[] = "word";
  char file[] = "dd.ini";
  char* words[] = {address, user, password, file, NULL};
  CommandRecord* const show = platform.records[15];
  CommandRecord* const upload = platform.records[16];
  CHECK(show == &ddShowContextFile_CMD && upload == &ddUploadContextFile_CMD);
  platform.flash = "zip\\Wfstjpo^"; /* [Version] */
  platform.terminal[0] = '\0';
  CHECK(show->func(show, &terminal, 0, NULL) == 0);
  CHECK(platform.terminal_used == &terminal);
  CHECK(strcmp(platform.terminal, "\r\n[Version]\r\n") == 0);
  CHECK(upload->func(upload, &terminal, 4, words) == 0);
  CHECK(strcmp(platform.uploaded, "192.168.8.2 user word dd.ini: [Version]") == 0);
  words[0] = own_address;
  platform.uploaded[0] = '\0';
  CHECK(upload->func(upload, &terminal, 4, words) == -1);
  CHECK(platform.uploaded[0] == '\0');
}

static void the_stored_file_is_written_to_the_memory_file(void) {
  char name[] = "/tmp/sys_context_host_XXXXXX";
  char text[100] = "";
  const int file = mkstemp(name);
  strDeviceDefFilePath = name;
  platform.flash = "[Version]\n";
  catch_console();
  const int32_t code = ddReadContextFileToBuf();
  console_text();
  CHECK(code == 0);
  CHECK(read(file, text, sizeof text - 1) == 10);
  CHECK(strcmp(text, "[Version]\n") == 0);
  close(file);
  unlink(name);
  strDeviceDefFilePath = "/mem/dd.ini";
}

static void bytes_are_dumped(void) {
  static const uint8_t bytes[] = {'A', 0};
  char expected[100];
  snprintf(expected, sizeof expected, "\r\nBufLen = 2\r\n0x%08x: 41 00 %18s| A . \r\n\r\n",
           (unsigned)(uintptr_t)bytes, "");
  catch_console();
  const int32_t printed = ddPrintBuf(bytes, 2);
  CHECK(strcmp(console_text(), expected) == 0);
  CHECK(printed == 2);
}

static void every_table_is_shown(void) {
  int terminal = 0;
  platform.terminal[0] = '\0';
  CHECK(ddPrintAllContextInformation(&terminal) == 0);
  CHECK(strstr(platform.terminal, "\r\nAll Onu detail information:") != NULL);
  CHECK(strstr(platform.terminal, "System device describe end!") != NULL);
}

static void hooks_do_nothing(void) {
  CHECK(context_module_init() == 0);
  CHECK(context_cmd_module_init() == 0);
  CHECK(dosFsVolumeBioBufferSize() == 0);
}

int main(int argc, char** argv) {
  CHECK(argc == 2);
  if (argc == 2) {
    compare_with(argv[1]);
  }
  addresses_are_good();
  variables_have_their_first_values();
  a_missing_file_is_reported();
  the_library_starts();
  queries_are_answered();
  olt_queries_are_answered();
  frame_queries_are_answered();
  logic_ports_are_answered();
  onu_queries_are_answered();
  power_limits_are_answered();
  the_host_answers_for_other_onu_types();
  a_board_can_be_freed_by_the_host();
  records_of_onus_can_be_freed_by_the_host();
  optical_modules_can_be_freed_by_the_host();
  commands_are_installed();
  boards_are_shown();
  slots_are_shown();
  onu_types_are_shown();
  optical_modules_are_shown();
  every_table_is_shown();
  the_stored_file_is_shown_and_uploaded();
  the_stored_file_is_written_to_the_memory_file();
  bytes_are_dumped();
  hooks_do_nothing();
  return failures() == 0 ? 0 : 1;
}
