// The command records, field by field, and the handlers behind them.
#include "sys_context/cli.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "cli/frame_printer_test.h"

namespace {

using std::string;
using Handler = int32_t (*)(CommandRecord*, void*, int32_t, char**);

struct RecordRow {
  const char* name;
  CommandRecord* record;
  const char* command;
  Handler handler;
  const char* help;
  void (*corrupt)();       // spoils the table that the command shows
  string empty_listing;    // what it shows of the table before any load
  string corrupt_listing;  // and of the spoilt one
  friend std::ostream& operator<<(std::ostream& out, const RecordRow& row) {
    return out << row.name;
  }
};

class CommandRecords : public test::LibraryTest, public testing::WithParamInterface<RecordRow> {
 protected:
  static const test::FakePlatform& Platform() { return test::FakePlatform::Get(); }

  // Calls the handler as a shell would, and expects its terminal to be used.
  static void ExpectShown(const string& listing) {
    char word[] = "word";
    char* words[] = {word, nullptr};
    int terminal = 0;
    for (const int32_t count : {0, 1, -1}) {
      test::FakePlatform::Reset();
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

TEST_P(CommandRecords, CanBeWrittenByTheShell) {
  CommandRecord& record = *GetParam().record;
  const CommandRecord before = record;
  for (void*& word : record.host) {
    word = &record;
  }
  EXPECT_EQ(record.host[7], &record);
  record = before;
}

TEST_P(CommandRecords, HaveOneHelpLinePerWord) {
  const string command = GetParam().record->string;
  const string help = GetParam().record->doc;
  EXPECT_EQ(std::count(help.begin(), help.end(), '\n'),
            std::count(command.begin(), command.end(), ' ') + 1);
  EXPECT_EQ(help.back(), '\n');
}

TEST_P(CommandRecords, ShowATableThatIsNotLoaded) {
  ExpectShown(GetParam().empty_listing);
  EXPECT_EQ(console_.Text(), "");
}

TEST_P(CommandRecords, AreDoneWithACorruptTableToo) {
  GetParam().corrupt();
  ExpectShown(GetParam().corrupt_listing);
  EXPECT_EQ(console_.Text(), "");
}

TEST_P(CommandRecords, NeedNothingButATerminal) {
  test::FakePlatform::Reset();
  EXPECT_EQ(GetParam().handler(nullptr, nullptr, 0, nullptr), 0);
  EXPECT_EQ(Platform().terminal, GetParam().empty_listing);
  EXPECT_EQ(Platform().terminals_used.front(), nullptr);
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
};
INSTANTIATE_TEST_SUITE_P(Cli, CommandRecords, testing::ValuesIn(kRecords),
                         testing::PrintToStringParamName());

}  // namespace
