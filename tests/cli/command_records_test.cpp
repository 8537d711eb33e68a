// The command records, field by field, and the handlers behind them.
#include "sys_context/cli.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <sstream>
#include <string>

#include "cli/frame_printer_test.h"
#include "cli/report_texts.h"
#include "support/text.h"

namespace {

using std::string;
using Handler = int32_t (*)(CommandRecord*, void*, int32_t, char**);

struct RecordRow {
  const char* name;
  CommandRecord* record;
  const char* command;
  Handler handler;
  const char* help;
  // Of the show commands:
  void (*corrupt)() = nullptr;  // spoils the table that the command shows
  string empty_listing = "";    // what it shows of the table before any load
  string corrupt_listing = "";  // and of the spoilt one
  bool needs_terminal = false;
  friend std::ostream& operator<<(std::ostream& out, const RecordRow& row) {
    return out << row.name;
  }
};

class CommandRecords : public test::LibraryTest, public testing::WithParamInterface<RecordRow> {
 protected:
  static test::FakePlatform& Platform() { return test::FakePlatform::Get(); }

  // Calls the handler as a shell would, and expects its terminal to be used.
  static void ExpectShown(const string& listing) {
    char word[] = "word";
    char* words[] = {word, nullptr};
    int terminal = 0;
    for (const int32_t count : {0, 1, -1}) {
      Platform().terminal.clear();
      Platform().terminals_used.clear();
      EXPECT_EQ(GetParam().record->func(GetParam().record, &terminal, count, words), 0);
      EXPECT_EQ(Platform().terminal, listing);
      ASSERT_FALSE(Platform().terminals_used.empty());
      for (const void* const used : Platform().terminals_used) {
        EXPECT_EQ(used, &terminal);
      }
    }
  }

  test::Console console_;
};
class ShowCommands : public CommandRecords {};

TEST_P(CommandRecords, HaveFourFields) {
  const CommandRecord& record = *GetParam().record;
  EXPECT_STREQ(record.string, GetParam().command);
  EXPECT_EQ(record.func, GetParam().handler);
  EXPECT_STREQ(record.doc, GetParam().help);
  EXPECT_STREQ(record.name, GetParam().name);
}

TEST_P(CommandRecords, LeaveTheShellsFieldsZero) {
  for (const void* const word : GetParam().record->host) {
    EXPECT_EQ(word, nullptr);
  }
}

// They are no constants, and their handlers look at none of the shell's fields.
TEST_P(ShowCommands, CanBeWrittenByTheShell) {
  CommandRecord& record = *GetParam().record;
  const CommandRecord before = record;
  for (void*& word : record.host) {
    word = &record;
  }
  int terminal = 0;
  EXPECT_EQ(record.func(&record, &terminal, 0, nullptr), 0);
  record = before;
  EXPECT_EQ(Platform().terminal, GetParam().empty_listing);
}

TEST_P(CommandRecords, HaveOneHelpLinePerWord) {
  std::istringstream command(GetParam().record->string);
  const std::istream_iterator<string> words(command);
  const string help = GetParam().record->doc;
  EXPECT_EQ(std::count(help.begin(), help.end(), '\n'), std::distance(words, {}));
  EXPECT_EQ(help.back(), '\n');
}

TEST_P(ShowCommands, ShowATableThatIsNotLoaded) {
  ExpectShown(GetParam().empty_listing);
  EXPECT_EQ(console_.Text(), "");
}

TEST_P(ShowCommands, AreDoneWithACorruptTableToo) {
  GetParam().corrupt();
  ExpectShown(GetParam().corrupt_listing);
  EXPECT_EQ(console_.Text(), "");
}

TEST_P(ShowCommands, NeedNoArguments) {
  int terminal = 0;
  EXPECT_EQ(GetParam().handler(nullptr, &terminal, 0, nullptr), 0);
  EXPECT_EQ(Platform().terminal, GetParam().empty_listing);
  ASSERT_FALSE(Platform().terminals_used.empty());
  EXPECT_EQ(Platform().terminals_used.front(), &terminal);
}

// All hand on what they are given, but the report and the optical modules' printer, which
// show nothing then.
TEST_P(ShowCommands, AreDoneWithoutATerminalToo) {
  EXPECT_EQ(GetParam().handler(nullptr, nullptr, 0, nullptr), 0);
  if (GetParam().needs_terminal) {
    EXPECT_EQ(Platform().terminal, "");
    EXPECT_TRUE(Platform().terminals_used.empty());
  } else {
    EXPECT_EQ(Platform().terminal, GetParam().empty_listing);
    ASSERT_FALSE(Platform().terminals_used.empty());
    EXPECT_EQ(Platform().terminals_used.front(), nullptr);
  }
}

const RecordRow kRecords[] = {
    {.name = "ddShowVersionInfo_CMD",
     .record = &ddShowVersionInfo_CMD,
     .command = "show context version",
     .handler = ddShowVersionInfo_Func,
     .help = "show info.\ncontext info.\nversion info.\n",
     .corrupt = [] { gstVersionInformation.ulSupportedSoftVerNum = 31; },
     .empty_listing = "\r\nVersion:\r\nSupportedSoftwareVer:"
                      "\r\ngstVersionInformation.ulSupportedSoftVerNum = 0\r\n\r\n",
     .corrupt_listing = "\r\nddPrintVersionInformation err! ulSupportedSoftVerNum = 31, "
                        "MAX_SUPPORTED_SOFT_VER_NUM = 30"},
    {.name = "ddShowAllModuleInfo_CMD",
     .record = &ddShowAllModuleInfo_CMD,
     .command = "show context module_all",
     .handler = ddShowAllModuleInfo_Func,
     .help = "show info.\ncontext info.\nall module info.\n",
     .corrupt = [] { gstModuleTypeList.ulModuleTypeNum = 200; },
     .empty_listing = "\r\nModuleTypeList:\r\ngstModuleTypeList.ulModuleTypeNum = 0\r\n\r\n",
     .corrupt_listing = "\r\nddPrintAllModuleInformation err!, pModuleTypeArray = 0x0"},
    {.name = "ddShowSysSupportFuncInfo_CMD",
     .record = &ddShowSysSupportFuncInfo_CMD,
     .command = "show context sys_support_func",
     .handler = ddShowSysSupportFuncInfo_Func,
     .help = "show info.\ncontext info.\nsys support func info.\n",
     .corrupt = [] { gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 201; },
     .empty_listing = "\r\nSysSupportFuncInformation:"
                      "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 0\r\n\r\n",
     .corrupt_listing =
         "\r\ndebug_ddPrintSysSupportFuncInformation err! ulSysSupportFuncNum = 201, "
         "MAX_SUPPORTED_MODULE_TYPE_NUM = 200"},
    {.name = "ddShowMainBoardInfo_CMD",
     .record = &ddShowMainBoardInfo_CMD,
     .command = "show context main_board",
     .handler = ddShowMainBoardInfo_Func,
     .help = "show info.\ncontext info.\nmain board info.\n",
     .corrupt = [] { gstSupportedMainBoardType.ulSupportedBoardTypeNum = 101; },
     .empty_listing = "\r\nddPrintAllSupportedMainBoardInformation err!, pBoardTypeArray = 0x0",
     .corrupt_listing =
         "\r\nddPrintAllSupportedMainBoardInformation err!, ulSupportedBoardTypeNum = 101, "
         "MAX_OLT_BOARD_TYPE_NUM = 100"},
    {.name = "ddShowOltPortInfo_CMD",
     .record = &ddShowOltPortInfo_CMD,
     .command = "show context olt_port",
     .handler = ddShowOltPortInfo_Func,
     .help = "show info.\ncontext info.\nolt port info.\n",
     .corrupt = [] { gstSupportedOltPortType.ulSupportedOltPortTypeNum = 31; },
     .empty_listing = "\r\nddPrintAllSupportedOltPortInfomation err! pOltPortTypeArray = 0x0",
     .corrupt_listing =
         "\r\nddPrintAllSupportedOltPortInfomation err! ulSupportedOltPortTypeNum = 31"},
    {.name = "ddShowAllBoardInfo_CMD",
     .record = &ddShowAllBoardInfo_CMD,
     .command = "show context board_all",
     .handler = ddShowAllBoardInfo_Func,
     .help = "show info.\ncontext info.\nall board info.\n",
     .corrupt = [] { gstSupportedBoardType.ulSupportedBoardTypeNum = 1; },
     .empty_listing = "\r\n\r\nAllSupportedBoard:"
                      "\r\ngstSupportedBoardType.ulSupportedBoardTypeNum = 0\r\n\r\n",
     .corrupt_listing = "\r\nddPrintAllSupportedBoardInfomation err! pBoardTypeArray = 0x0"},
    {.name = "ddShowFrameInfo_CMD",
     .record = &ddShowFrameInfo_CMD,
     .command = "show context frame",
     .handler = ddShowFrameInfo_Func,
     .help = "show info.\ncontext info.\nframe info.\n",
     .corrupt =
         [] {
           gstFrame.ulSwitchChipLogicPortNum = 1;
           gstFrame.astSwitchChipLogicPort[0].ucSlotPort = 129;
         },
     .empty_listing = test::FrameListing(test::kNoSlots,
                                         "\r\n\r\nulSwitchChipLogicPortNum =  0"
                                         "\r\n\r\nulType2SwitchChipLogicPortNum =  0\r\n\r\n"),
     .corrupt_listing =
         test::FrameListing(test::kNoSlots,
                            "\r\n\r\nulSwitchChipLogicPortNum =  1"
                            "\r\nddPrintFrameInfomation->ddGetCardNameByType err! iResult = -5, "
                            "ulSwitchChipLogicPortNumIndex = 1, ulSLotOut = 0, ulBoardType = 0"
                            "\r\n\r\nulType2SwitchChipLogicPortNum =  0\r\n\r\n")},
    {.name = "ddShowOnuPonInfo_CMD",
     .record = &ddShowOnuPonInfo_CMD,
     .command = "show context onu_pon",
     .handler = ddShowOnuPonInfo_Func,
     .help = "show info.\ncontext info.\nonu pon info.\n",
     .corrupt = [] { gstSupportedOnuPonType.ulSupportedOnuPonTypeNum = 31; },
     .empty_listing = "\r\nddPrintAllSupportedOnuPonInfomation err! pOnuPonTypeArray = 0x0",
     .corrupt_listing =
         "\r\nddPrintAllSupportedOnuPonInfomation err! ulSupportedOnuPonTypeNum = 31, "
         "MAX_ONU_PON_TYPE_NUM = 30"},
    {.name = "ddShowOnuLanInfo_CMD",
     .record = &ddShowOnuLanInfo_CMD,
     .command = "show context onu_lan",
     .handler = ddShowOnuLanInfo_Func,
     .help = "show info.\ncontext info.\nonu lan info.\n",
     .corrupt = [] { gstSupportedOnuLanType.ulSupportedOnuLanTypeNum = 31; },
     .empty_listing = "\r\nddPrintAllSupportedOnuLanInfomation err! pOnuLanTypeArray = 0x0",
     .corrupt_listing =
         "\r\nddPrintAllSupportedOnuLanInfomation err! ulSupportedOnuLanTypeNum = 31, "
         "MAX_ONU_LAN_TYPE_NUM = 30"},
    {.name = "ddShowOnuPotsInfo_CMD",
     .record = &ddShowOnuPotsInfo_CMD,
     .command = "show context onu_pots",
     .handler = ddShowOnuPotsInfo_Func,
     .help = "show info.\ncontext info.\nonu pots info.\n",
     .corrupt = [] { gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum = 31; },
     .empty_listing = "\r\nddPrintAllSupportedOnuPotsInfomation err! pOnuPotsTypeArray = 0x0",
     .corrupt_listing =
         "\r\nddPrintAllSupportedOnuPotsInfomation err! ulSupportedOnuPotsTypeNum = 31, "
         "MAX_ONU_POTS_TYPE_NUM = 30"},
    {.name = "ddShowOnuSpecialPortInfo_CMD",
     .record = &ddShowOnuSpecialPortInfo_CMD,
     .command = "show context onu_special_port",
     .handler = ddShowOnuSpecialPortInfo_Func,
     .help = "show info.\ncontext info.\nonu special port info.\n",
     .corrupt = [] { gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum = 31; },
     .empty_listing =
         "\r\nddIsOnuSpecialPortTypeSupportedByName err! pOnuSpecialPortTypeArray = 0x0",
     .corrupt_listing =
         "\r\ndebug_ddPrintAllSupportedOnuSpecialPortInfomation err! "
         "ulSupportedOnuSpecialPortTypeNum = 31, MAX_ONU_SPECIAL_PORT_TYPE_NUM = 30"},
    {.name = "ddShowAllSupportedOnuType_CMD",
     .record = &ddShowAllSupportedOnuType_CMD,
     .command = "show context onu_type_all",
     .handler = ddShowAllSupportedOnuType_Func,
     .help = "show info.\ncontext info.\nall onu type info.\n",
     .corrupt = [] { gstSupportedOnuType.ulSupportedOnuTypeNum = 201; },
     .empty_listing = "\r\nddPrintAllSupportedOnuTypeBaseInfomation, ulSupportedOnuTypeNum = 0, "
                      "pOnuTypeArray = 0x0",
     .corrupt_listing =
         "\r\nddPrintAllSupportedOnuTypeBaseInfomation err! ulSupportedOnuTypeNum = 201, "
         "MAX_ONU_TYPE_NUM = 200"},
    {.name = "ddShowOneSupportedOnuInfo_CMD",
     .record = &ddShowOneSupportedOnuInfo_CMD,
     .command = "show context onu_detail index <indexno>",
     .handler = ddShowOneSupportedOnuInfo_Func,
     .help = "show info.\ncontext info.\nall onu type info.\nindex info.\n"
             "please input index no 0~200.\n",
     .corrupt = [] { gstSupportedOnuType.ulSupportedOnuTypeNum = 201; },
     .empty_listing = "\r\nddPrintOneSupportedOnuInfomation, ulSupportedOnuTypeNum = 0, "
                      "pOnuTypeArray = 0x0",
     .corrupt_listing = "\r\nddPrintOneSupportedOnuInfomation err! ulSupportedOnuTypeNum = 201, "
                        "MAX_ONU_TYPE_NUM = 200"},
    {.name = "ddShowAllSupportedOnu_CMD",
     .record = &ddShowAllSupportedOnu_CMD,
     .command = "show context onu_all",
     .handler = ddShowAllSupportedOnu_Func,
     .help = "show info.\ncontext info.\nall onu detail info.\n",
     .corrupt = [] { gstSupportedOnuType.ulSupportedOnuTypeNum = 201; },
     .empty_listing = "\r\nddPrintOneSupportedOnuInfomation, ulSupportedOnuTypeNum = 0, "
                      "pOnuTypeArray = 0x0",
     .corrupt_listing =
         "\r\nddPrintAllSupportedOnuTypeInfomation err! ulSupportedOnuTypeNum = 201, "
         "MAX_ONU_TYPE_NUM = 200"},
    {.name = "ddShowAllDevice_CMD",
     .record = &ddShowAllDevice_CMD,
     .command = "show context device_all",
     .handler = ddShowAllDevice_Func,
     .help = "show info.\ncontext info.\nall devices info.\n",
     .corrupt = [] { gstSupportedOltPortType.ulSupportedOltPortTypeNum = 31; },
     .empty_listing = test::EmptyReport(),
     .corrupt_listing = test::Replaced(
         test::EmptyReport(),
         "\r\nddPrintAllSupportedOltPortInfomation err! pOltPortTypeArray = 0x0",
         "\r\nddPrintAllSupportedOltPortInfomation err! ulSupportedOltPortTypeNum = 31"),
     .needs_terminal = true},
    {.name = "ddShowContextFile_CMD",
     .record = &ddShowContextFile_CMD,
     .command = "show context file",
     .handler = ddShowContextFile_Func,
     .help = "show info.\ncontext info.\ncontext file info.\n",
     .corrupt = [] { test::FakePlatform::Get().flash_size = 3072001; },
     .empty_listing = "\r\n\r\n",
     .corrupt_listing = "\r\nddPrintContextFile err! memfile_length = 3072001, "
                        "FTP_CONTEXT_BUF_SIZE = 3072000, FLASH_CONTEXT_FILE_KXCB_NAME = "
                        "/mnt/work/device_definition.ini"},
    {.name = "show_optmodule_info_cmd",
     .record = &show_optmodule_info_cmd,
     .command = "show optmodule fileinfo index <indexno>",
     .handler = show_optmodule_info_func,
     .help = "show .\noptmodule.\nfile info.\nindex info.\nplease input index no 1~26.\n",
     .corrupt = [] { g_optmdule_infolist.listnum = 51; },
     .empty_listing = "index 0 is out of range 1 ~ 0.\r\n",
     .corrupt_listing = "index 0 is out of range 1 ~ 51.\r\n",
     .needs_terminal = true},
};
INSTANTIATE_TEST_SUITE_P(Cli, CommandRecords, testing::ValuesIn(kRecords),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Cli, ShowCommands, testing::ValuesIn(kRecords),
                         testing::PrintToStringParamName());

// What its handler does, see upload_command_test.cpp.
const RecordRow kUpload = {
    .name = "ddUploadContextFile_CMD",
    .record = &ddUploadContextFile_CMD,
    .command = "upload ftp context <A.B.C.D> <username> <password> <filename> ",
    .handler = ddUploadContextFile_Func,
    .help =
        "Upload file for context file.\nUpload file to ftp server use ftp protocal.\n"
        "Upload contex file.\nPlease input ftp server's IP address, such as A.B.C.D\n"
        "Please input ftp user name.\nPlease input password for that ftp user.\n"
        "Please input the file name.\n"};
INSTANTIATE_TEST_SUITE_P(CliUpload, CommandRecords, testing::Values(kUpload),
                         testing::PrintToStringParamName());

}  // namespace
