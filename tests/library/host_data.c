/*
 * A host that writes the library's data, in one of the two ways there are:
 * OWN_DATA defines the variables itself; otherwise it uses the library's, of
 * which the linker puts copies into a program that is not position-independent.
 * Either way there is one of each, and the library must see it.
 */
#include <stdlib.h>
#include <string.h>

#include "host.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

#if OWN_DATA
int32_t ddDebugPrint = 1;
const char* gstrddSoftwareVer = "OwnV1";
const char* strDeviceDefFilePath = "/own/dd.ini";
#endif

static void the_debug_switch_is_seen(void) {
  ddDebugPrint = 1;
  catch_console();
  CHECK(ddIsSysSupportFunc(1, NULL) == -2);
  CHECK(strcmp(console_text(), "\r\nddIsSysSupportFunc err! pulIsSupported = 0x0") == 0);
  ddDebugPrint = 0;
  catch_console();
  CHECK(ddIsSysSupportFunc(1, NULL) == -2);
  CHECK(strcmp(console_text(), "") == 0);
}

static void the_software_version_is_seen(void) {
  uint32_t supported = 77;
  gstVersionInformation.ulSupportedSoftVerNum = 1;
  gstVersionInformation.astSupportedSoftVer[0].ulSupportedSoftVerLen = 7;
  strcpy(gstVersionInformation.astSupportedSoftVer[0].acSupportedSoftVer, "HostV2");
  CHECK(ddIsContextVerMatchSoftVer(&supported) == -1 && supported == 0);
  gstrddSoftwareVer = "HostV2";
  CHECK(ddIsContextVerMatchSoftVer(&supported) == 0 && supported == 1);
}

static void written_tables_are_seen(void) {
  static ModuleInformation module = {4, 5, "QINQ", 24};
  static ModuleInformation* list[] = {&module};
  uint32_t number = 0;
  gstModuleTypeList.ulModuleTypeNum = 1;
  gstModuleTypeList.pModuleTypeArray = list;
  gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 1;
  gstSysSupportFuncType.aulSupportedSysFunctionType[0] = 4;
  CHECK(ddGetModuleTypeByName("QINQ", &number) == 0 && number == 4);
  CHECK(ddIsSysSupportFunc(4, &number) == 0 && number == 1);
}

static void written_olt_tables_are_seen(void) {
  static OltPortInformation type = {
      .ulPortType = 2, .ulNameLen = 5, .acName = "GPON", .ulSplittingRatio = 128};
  static OltPortInformation* types[] = {&type};
  static MainBoardInformation main_board = {.ulType = 101, .ulNameLen = 5, .acName = "MCXA"};
  static MainBoardInformation* main_boards[] = {&main_board};
  static BoardInformation board = {.ulType = 3401, .ulNameLen = 5, .acName = "PWDA"};
  static BoardInformation* boards[] = {&board};
  uint32_t number = 0;
  gstSupportedOltPortType.ulSupportedOltPortTypeNum = 1;
  gstSupportedOltPortType.pOltPortTypeArray = types;
  gstSupportedMainBoardType.ulSupportedBoardTypeNum = 1;
  gstSupportedMainBoardType.pBoardTypeArray = main_boards;
  gstSupportedBoardType.ulSupportedBoardTypeNum = 1;
  gstSupportedBoardType.pBoardTypeArray = boards;
  CHECK(ddGetOltPortSplittingRatioByType(2, &number) == 0 && number == 128);
  CHECK(ddGetCardTypeByName("MCXA", &number) == 0 && number == 101);
  CHECK(ddGetCardTypeByName("PWDA", &number) == 0 && number == 3401);
}

static void a_written_frame_is_seen(void) {
  char name[MAX_FRAME_NAME_LEN];
  uint32_t number = 0;
  uint32_t port = 0;
  strcpy(gstFrame.acName, "HostFrame");
  gstFrame.ulNameLen = 10;
  gstFrame.stFanSlot.ulSlotAmount = 1;
  gstFrame.stFanSlot.ucSlotArray[0] = 7;
  gstFrame.ulSwitchChipLogicPortNum = 1280;
  gstFrame.astSwitchChipLogicPort[1279].ucSlotOut = 5;
  gstFrame.astSwitchChipLogicPort[1279].ucSlotPort = 6;
  gstFrame.astType2SwitchChipLogicPort[57].ucHigigFlag = 1;
  CHECK(ddGetFrameName(name) == 0 && strcmp(name, "HostFrame") == 0);
  CHECK(ddIsFanBoardSlot(7, &number) == 0 && number == 1);
  CHECK(ddGetSlotPortFromSwitchChipLogicPort(1280, &number, &port) == 0);
  CHECK(number == 5 && port == 6);
  CHECK(is_higigport_balance_switch_logicport(201, &number) == 0 && number == 1);
}

static void written_onu_tables_are_seen(void) {
  static OnuPortTypeInformation pon = {.ulPonType = 2, .ulNameLen = 5, .acName = "GPON"};
  static OnuPortTypeInformation lan = {.ulLanType = 3, .ulNameLen = 3, .acName = "GE"};
  static OnuPortTypeInformation pots = {.ulPortType = 4, .ulNameLen = 4, .acName = "FXS"};
  static OnuPortTypeInformation special = {.ulPortType = 5, .ulNameLen = 5, .acName = "CATV"};
  static OnuPortTypeInformation* pons[] = {&lan, &pon};
  static OnuPortTypeInformation* lans[] = {&lan};
  static OnuPortTypeInformation* all_pots[] = {NULL, NULL, &pots};
  static OnuPortTypeInformation* specials[] = {NULL, &special};
  static OnuInformation onu = {
      .ulOnuType = 6003, .ulNameLen = 8, .acName = "KT-G104", .ulTotalLanPortNum = 7};
  static OnuInformation* onus[] = {&onu};
  uint32_t number = 0;
  uint32_t place = 0;
  gstSupportedOnuPonType.ulSupportedOnuPonTypeNum = 2;
  gstSupportedOnuPonType.pOnuPonTypeArray = pons;
  gstSupportedOnuLanType.ulSupportedOnuLanTypeNum = 1;
  gstSupportedOnuLanType.pOnuLanTypeArray = lans;
  gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum = 3;
  gstSupportedOnuPotsType.pOnuPotsTypeArray = all_pots;
  gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum = 2;
  gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray = specials;
  gstSupportedOnuType.ulSupportedOnuTypeNum = 1;
  gstSupportedOnuType.pOnuTypeArray = onus;
  CHECK(ddIsOnuPonTypeSupportedByName("GPON", &number, &place) == 0 && place == 1);
  CHECK(ddIsOnuLanTypeSupportedByType(3, &number, &place) == 0 && place == 0);
  CHECK(ddIsOnuPotsTypeSupportedByName("FXS", &number, &place) == 0 && place == 2);
  CHECK(ddIsOnuSpecialPortTypeSupportedByType(5, &number, &place) == 0 && place == 1);
  CHECK(ddGetOnuTypeByName("KT-G104", &number) == 0 && number == 6003);
  CHECK(ddFindSupportedOnuMaxLanNum() == 0);
  CHECK(gstSupportedOnuType.ulSupportedOnuMaxLanOnuType == 6003);
  CHECK(gstSupportedOnuType.ulSupportedOnuMaxLanNum == 7);
}

static void a_written_list_of_optical_modules_is_seen(void) {
  static OptModuleThreshold path = {.inup = -5, .indn = -28, .outup = -10, .outdn = -30};
  static OptModuleThreshold* paths[] = {&path};
  static OptModuleInfo module = {
      .kind = OPTMODULE_KIND_ONU_PON, .porttype = 2, .phytype = 9, .pathnum = 1, .pathinfo = paths};
  static OptModuleInfo* modules[] = {&module};
  static OnuPortTypeInformation pon = {.ulPonType = 2, .ulNameLen = 5, .acName = "GPON"};
  static OnuPortTypeInformation* pons[] = {&pon};
  static OnuInformation onu = {.ulOnuType = 6003, .ulTotalPonNum = 1, .pOnuPonArray = pons};
  static OnuInformation* onus[] = {&onu};
  OptModuleThreshold told[1] = {{0, 0, 0, 0}};
  uint16_t count = 1;
  gstSupportedOnuType.ulSupportedOnuTypeNum = 1;
  gstSupportedOnuType.pOnuTypeArray = onus;
  g_optmdule_infolist.listnum = 1;
  g_optmdule_infolist.objlist = modules;
  platform.fitted_onu = 6003;
  CHECK(get_onu_optmodule_thresinfo(1, 2, 3, 0, &count, told) == 0 && count == 1);
  CHECK(memcmp(told, &path, sizeof path) == 0);
}

static void loaded_tables_are_seen(void) {
  set_definition_file(
      "[Version]\nSupportedSoftwareVer=HostV2\n"
      "[ModuleTypeList]\nModuleNum=1\nModule1=S\n[S]\nType=8\nName=N\nSize=1\n"
      "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=1\nSupportedSysFunction1=N\n"
      "[SupportedOltPortType]\nSupportedOltPortTypeNum=1\nSupportedOltPortType1=P\n"
      "[P]\nType=31\nName=GE\nSplittingRatio=0\n"
      "[SupportedMainBoardType]\nSupportedMainBoardTypeNum=1\nSupportedMainBoardType1=M\n"
      "[M]\nType=102\nName=MCXB\nSwitchChipLogicPortNum=0\n"
      "SpecialChipLogicPortMapPhyPortCardNum=0\n"
      "[SupportedBoardType]\nSupportedBoardTypeNum=1\nSupportedBoardType1=B\n"
      "[B]\nType=3411\nName=FANA\nPortNum=0\nSpecialPortNum=0\n"
      /* The keys of its name and type are the host's. */
      "[KT3300-L_FrameInfomation]\nKind=15\nLabel=KT\nMaxOnuNum=1\nMaxUserNum=2\n"
      "RealSlotNum=1\nRealSlotList=3\nVirtualSlotNum=0\nHcuSlotNum=0\nFanSlotNum=0\nCioSlotNum=0\n"
      "PowerSlotNum=0\nServeBoardSlotNum=0\nMainSlotNum=0\nUplinkSlotNum=0\n"
      "SupportedBoardTypeSlot3=FANA\nSwitchChipLogicPortNum=0\nType2SwitchChipLogicPortNum=0\n"
      "[SupportedOnuPonType]\nSupportedOnuPonTypeNum=1\nSupportedOnuPonType1=OP\n"
      "[OP]\nType=21\nName=XGSPON\n"
      "[SupportedOnuLanType]\nSupportedOnuLanTypeNum=1\nSupportedOnuLanType1=OL\n"
      "[OL]\nType=22\nName=FE\n"
      "[SupportedOnuPotsType]\nSupportedOnuPotsTypeNum=1\nSupportedOnuPotsType1=OT\n"
      "[OT]\nType=23\nName=FXS\n"
      "[SupportedOnuSpecialPortType]\nSupportedOnuSpecialPortTypeNum=1\n"
      "SupportedOnuSpecialPortType1=OS\n[OS]\nType=24\nName=USB\n"
      "[SupportedOnuType]\nSupportedOnuTypeNum=1\nSupportedOnuType1=O\n"
      "[O]\nType=6301\nName=KT-S101\nPonNum=1\nNameKeyPon1=XGSPON\n"
      "LanPortNum=0\nPotsPortNum=0\nSpecialPortNum=0\n");
  set_optical_file(
      "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=1\nSupportedOptModuleInfo1=OM\n"
      "[OM]\nPortKind=1\nPortType=31\nPhyType=4\nPathNum=1\nPath1=1,2,3,4\n");
  platform.device_type = 15;
  dd_gstrKeyFrameType = "Kind";
  dd_gstrKeyFrameName = "Label";
  CHECK(ddInit() == 0);
  CHECK(gstVersionInformation.ulSupportedSoftVerNum == 1);
  CHECK(gstModuleTypeList.ulModuleTypeNum == 1);
  CHECK(gstModuleTypeList.pModuleTypeArray[0]->ulModuleType == 8);
  CHECK(gstSysSupportFuncType.aulSupportedSysFunctionType[0] == 8);
  CHECK(gstSupportedOltPortType.pOltPortTypeArray[0]->ulPortType == 31);
  CHECK(gstSupportedMainBoardType.pBoardTypeArray[0]->ulType == 102);
  CHECK(gstSupportedBoardType.pBoardTypeArray[0]->ulType == 3411);
  CHECK(gstFrame.eType == 15 && strcmp(gstFrame.acName, "KT") == 0);
  CHECK(gstFrame.pstSlotArray[3].aulBoardType[0] == 3411);
  CHECK(gstSupportedOnuPonType.ulSupportedOnuPonTypeNum == 1);
  CHECK(gstSupportedOnuPonType.pOnuPonTypeArray[0]->ulPonType == 21);
  CHECK(gstSupportedOnuLanType.pOnuLanTypeArray[0]->ulLanType == 22);
  CHECK(gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum == 1);
  CHECK(gstSupportedOnuPotsType.pOnuPotsTypeArray[0]->ulPortType == 23);
  CHECK(gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum == 1);
  CHECK(gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray[0]->ulPortType == 24);
  CHECK(gstSupportedOnuType.pOnuTypeArray[0]->ulOnuType == 6301);
  CHECK(gstSupportedOnuType.ulSupportedOnuMaxLanNum == 0);
  CHECK(g_optmdule_infolist.listnum == 1);
  CHECK(g_optmdule_infolist.objlist[0]->porttype == 31);
  CHECK(g_optmdule_infolist.objlist[0]->pathinfo[0]->outup == 1);
}

int main(void) {
#if OWN_DATA
  /* From the first instruction on, before anything is written. */
  catch_console();
  CHECK(ddIsSysSupportFunc(1, NULL) == -2);
  CHECK(strcmp(console_text(), "\r\nddIsSysSupportFunc err! pulIsSupported = 0x0") == 0);
  CHECK(strcmp(strDeviceDefFilePath, "/own/dd.ini") == 0);
#else
  CHECK(ddDebugPrint == 0);
  CHECK(strcmp(gstrddSoftwareVer, "KT2200V4.0") == 0);
  CHECK(strcmp(strDeviceDefFilePath, "/mem/dd.ini") == 0);
  strDeviceDefFilePath = "/elsewhere/dd.ini";
#endif
  the_debug_switch_is_seen();
  the_software_version_is_seen();
  written_tables_are_seen();
  written_olt_tables_are_seen();
  a_written_frame_is_seen();
  written_onu_tables_are_seen();
  a_written_list_of_optical_modules_is_seen();
  loaded_tables_are_seen();
  return failures() == 0 ? 0 : 1;
}
