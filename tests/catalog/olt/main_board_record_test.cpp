// Reading one main board from its own section.
#include <cstdlib>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/main_boards.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/null_arguments.h"
#include "support/records.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::kSection;
using test::Replaced;

MainBoardInformation* const kUntouched = reinterpret_cast<MainBoardInformation*>(0x1234);

// ---- Boards that read well -----------------------------------------------------

struct RecordRow {
  const char* name;
  string from;  // piece of kSection
  string to;
  std::function<void(MainBoardInformation& board)> change;  // of what kSection describes
  friend std::ostream& operator<<(std::ostream& out, const RecordRow& row) {
    return out << row.name;
  }
};

class ReadMainBoard : public test::LibraryTest, public testing::WithParamInterface<RecordRow> {
 protected:
  test::Console console_;
};

TEST_P(ReadMainBoard, HandsOverARecord) {
  const test::DefinitionFile file(Replaced(kSection, GetParam().from, GetParam().to));
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    MainBoardInformation* board = kUntouched;
    test::Faults faults;

    ASSERT_EQ(ddReadOneSupportedMainBoardInformation(file.path(), "Sec", &board), 0);

    ASSERT_NE(board, nullptr);
    const std::unique_ptr<MainBoardInformation, decltype(&std::free)> owner(board, &std::free);
    EXPECT_EQ(console_.Text(), "");
    MainBoardInformation expected = test::SectionBoard();
    GetParam().change(expected);
    test::ExpectMainBoard(*board, expected);
    EXPECT_EQ(faults.allocations.count(), 1);
    EXPECT_EQ(faults.blocks.at(board), test::kMainBoardSize);
    EXPECT_EQ(faults.closes, faults.opens.count());
  }
}

using Record = MainBoardInformation;

void OnePortLess(Record& board) {
  board.ulSwitchChipLogicPortNum = 1;
  for (int i = 0; i < 3; ++i) {
    board.astPortMap[i].astPortPair[1] = {};
  }
}

void NoPorts(Record& board) {
  OnePortLess(board);
  board.ulSwitchChipLogicPortNum = 0;
  for (int i = 0; i < 3; ++i) {
    board.astPortMap[i].astPortPair[0] = {};
  }
}

void OneSpecialMap(Record& board) {
  board.ulChipLogicPortToPhyPortTypeNum = 2;
  board.astPortMap[2] = {};
}

void NoSpecialMap(Record& board) {
  OneSpecialMap(board);
  board.ulChipLogicPortToPhyPortTypeNum = 1;
  board.astPortMap[1] = {};
}

const RecordRow kRecords[] = {
    {"Plain", "Type=7", "Type=7", [](Record&) {}},
    {"KeysInAnyOrder", "[Sec]\nType=7\nName=MPU\nSwitchChipLogicPortNum=2\n",
     "[Sec]\nSwitchChipLogicPortNum=2\nOther=1\nName=MPU\nType=7\n", [](Record&) {}},
    {"FirstKeyWins", "Type=7\n", "Type=7\nType=8\nName=MPU\nName=B\n", [](Record&) {}},
    {"OtherSectionAround", "[Sec]\n", "[sec]\nType=9\n[Sec]\n", [](Record&) {}},
    {"NameEmpty", "=MPU", "=", [](Record& b) { test::StoreName("", b.acName, b.ulNameLen); }},
    {"NameWithBlanks", "=MPU", "=two words",
     [](Record& b) { test::StoreName("two words", b.acName, b.ulNameLen); }},
    {"NameLongest", "=MPU", "=" + string(59, 'n'),
     [](Record& b) { test::StoreName(string(59, 'n'), b.acName, b.ulNameLen); }},
    {"OnePortOfTwo", "LogicPortNum=2", "LogicPortNum=1", OnePortLess},
    {"NoPorts", "LogicPortNum=2", "LogicPortNum=0", NoPorts},
    {"PortCountEmpty", "LogicPortNum=2", "LogicPortNum=", NoPorts},
    {"PortCountText", "LogicPortNum=2", "LogicPortNum=two", NoPorts},
    {"PortCountWithText", "LogicPortNum=2", "LogicPortNum= +1x", OnePortLess},
    {"OneSpecialMapOfTwo", "CardNum=2", "CardNum=1", OneSpecialMap},
    {"NoSpecialMaps", "CardNum=2", "CardNum=0", NoSpecialMap},
    {"SpecialCountEmpty", "CardNum=2", "CardNum=", NoSpecialMap},
    {"SpecialCountText", "CardNum=2", "CardNum=two", NoSpecialMap},
    {"SpecialCountWithText", "CardNum=2", "CardNum=1x", OneSpecialMap},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, ReadMainBoard, testing::ValuesIn(kRecords),
                         testing::PrintToStringParamName());

std::vector<RecordRow> TypeRecords() {
  std::vector<RecordRow> rows;
  for (const test::TypeRow& row : test::kTypes) {
    rows.push_back({row.name, "Type=7", string("Type=") + row.text,
                    [type = row.type](Record& board) { board.ulType = type; }});
  }
  return rows;
}
INSTANTIATE_TEST_SUITE_P(Types, ReadMainBoard, testing::ValuesIn(TypeRecords()),
                         testing::PrintToStringParamName());

// ---- Boards that do not ----------------------------------------------------------

struct FailRow {
  const char* name;
  string from;
  string to;
  int32_t code;
  string console;
  int failing_read = 0;
  int failing_open = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToReadMainBoard : public test::LibraryTest, public testing::WithParamInterface<FailRow> {
 protected:
  test::Console console_;
};

TEST_P(FailToReadMainBoard, FreesTheRecordAndClearsThePointer) {
  const test::DefinitionFile file(Replaced(kSection, GetParam().from, GetParam().to));
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    MainBoardInformation* board = kUntouched;
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);
    faults.opens.FailFrom(GetParam().failing_open, 1);

    EXPECT_EQ(ddReadOneSupportedMainBoardInformation(file.path(), "Sec", &board), GetParam().code);

    EXPECT_EQ(board, nullptr);
    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(faults.allocations.count(), 1);  // in front of all keys
    EXPECT_EQ(faults.frees, 1);
    EXPECT_TRUE(faults.blocks.empty());
    EXPECT_EQ(faults.closes, faults.opens.count() - (GetParam().failing_open != 0 ? 1 : 0));
  }
}

string NoType(const string& code) {
  return "\r\nddReadOneSupportedMainBoardInformation err! iResult = " + code +
         ", strSectionFrameNameBuf = Sec, Key = Type";
}
string NoName(const string& code) {
  return "\r\nddReadOneSupportedMainBoardInformation err! iResult = " + code +
         ", section = Sec, key = Name";
}
string NameTooLong(const string& length) {
  return "\r\nddReadOneSupportedMainBoardInformation err! ulNameLen = " + length;
}
const string kMapsFailed =
    "\r\nddReadOneSupportedMainBoardInformation->ddReadAllSwitchChipLogicPortToPhyPort err! "
    "strBoardTypeSection = Sec";
string SpecialMapsFailed(const string& code) {
  return "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadSpecialSwitchChipLogicPortToPhyPort "
         "err! iResult = " +
         code + ", strSectionFrameNameBuf = Sec, ulSwitchChipLogicPortNum = 2" + kMapsFailed;
}
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kFails[] = {
    {"NoSection", "[Sec]", "[sec]", -31, NoType("-1")},
    {"EmptySection", "[Sec]\n", "[Sec]\n[Next]\n", -31, NoType("-2")},
    {"NoType", "Type=7\n", "", -31, NoType("-2")},
    {"TypeOfOtherCase", "Type=7\n", "type=7\n", -31, NoType("-2")},
    {"BrokenBeforeType", "Type=7\n", "nonsense\nType=7\n", -31, NoType("-14")},
    {"TooLongBeforeType", "Type=7\n", kTooLong + "Type=7\n", -31, NoType("-22")},
    {.name = "TypeUnreadable",
     .from = "Sec",
     .to = "Sec",
     .code = -31,
     .console = NoType("-12"),
     .failing_read = 1},
    {.name = "TypeNotOpened",
     .from = "Sec",
     .to = "Sec",
     .code = -31,
     .console = NoType("-10"),
     .failing_open = 1},
    {"NoName", "Name=MPU\n", "", -31, NoName("-2")},
    {"BrokenBeforeName", "Name=", "nonsense\nName=", -31, NoName("-14")},
    {"TooLongBeforeName", "Name=", kTooLong + "Name=", -31, NoName("-22")},
    {.name = "NameUnreadable",
     .from = "Sec",
     .to = "Sec",
     .code = -31,
     .console = NoName("-12"),
     .failing_read = 2},
    {.name = "NameNotOpened",
     .from = "Sec",
     .to = "Sec",
     .code = -31,
     .console = NoName("-10"),
     .failing_open = 2},
    {"NameTooLong", "=MPU", "=" + string(60, 'n'), -33, NameTooLong("61")},
    {"NameFarTooLong", "=MPU", "=" + string(507, 'n'), -33, NameTooLong("508")},
    {"NameTooLongAndNoPortCount", "=MPU\nSwitchChipLogicPortNum=2", "=" + string(60, 'n'), -33,
     NameTooLong("61")},
    {"NoPortCount", "SwitchChipLogicPortNum=2\n", "", -31,
     "\r\nddReadAllSwitchChipLogicPortToPhyPort err! iResult = -2, strSectionFrameNameBuf = Sec, "
     "Key = SwitchChipLogicPortNum" +
         kMapsFailed},
    {"TooManyPorts", "PortNum=2\n", "PortNum=1281\n", -24,
     "\r\nddReadAllSwitchChipLogicPortToPhyPort err! strSectionFrameNameBuf = Sec, "
     "ulSwitchChipLogicPortNum = 1281, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280" +
         kMapsFailed},
    {"NoSecondPort", "\nSwitchChipLogicPort2=12\n", "\n", -31,
     "\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = -2, strSectionFrameNameBuf = Sec, "
     "Key = SwitchChipLogicPort2, ulSwitchChipLogicPortIndex = 1"
     "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort err! "
     "iResult = -31, strSectionFrameNameBuf = Sec, ulSwitchChipLogicPortNum = 2, "
     "SwitchChipLogicPort" +
         kMapsFailed},
    {"NoSpecialCount", "SpecialChipLogicPortMapPhyPortCardNum=2\n", "", -31,
     "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = -2, strSectionFrameNameBuf = "
     "Sec, Key = SpecialChipLogicPortMapPhyPortNum" +
         SpecialMapsFailed("-31")},
    {"TooManySpecialMaps", "CardNum=2", "CardNum=20", -26,
     "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = 0, strSectionFrameNameBuf = "
     "Sec, ulSpecialMapNum = 20, MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM - 1 = 19" +
         SpecialMapsFailed("-26")},
    {"SecondSpecialNameTooLong", "=ETHB", "=" + string(60, 'b'), -32,
     "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = 0, strSectionFrameNameBuf = "
     "Sec, Key = SpecialChipLogicPortMapPhyPortCard2, ulSpecialMapIndex = 1, ulBoardNameLen + 1 = "
     "62, MAX_BOARD_NAME_LEN = 60" +
         SpecialMapsFailed("-32")},
    {"LastPortOfTheLastMapMissing", "ETHB_SwitchChipLogicPort2=32\n", "", -31,
     "\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = -2, strSectionFrameNameBuf = Sec, "
     "Key = ETHB_SwitchChipLogicPort2, ulSwitchChipLogicPortIndex = 1"
     "\r\nddReadSpecialSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort err! "
     "iResult = -31, strSectionFrameNameBuf = Sec, ulSwitchChipLogicPortNum = 2, Key = "
     "ETHB_SwitchChipLogicPort, ulSpecialMapIndex = 1" +
         SpecialMapsFailed("-31")},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, FailToReadMainBoard, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

class MainBoardRecord : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(MainBoardRecord, NullArgumentsTouchNothing) {
  MainBoardInformation* board = kUntouched;
  test::ExpectNullArgumentsRefused(
      console_,
      "\r\nddReadOneSupportedMainBoardInformation err! strFileName = {file}, strOltPonTypeSection = {section}, pOltPonTypeObjAddr = {record}",
      &board, ddReadOneSupportedMainBoardInformation);
  EXPECT_EQ(board, kUntouched);
}

TEST_F(MainBoardRecord, NoMemory) {
  const test::DefinitionFile file(Replaced(kSection, "Type=7\n", ""));  // not looked at
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      MainBoardInformation* board = kUntouched;
      test::Faults faults;
      faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(ddReadOneSupportedMainBoardInformation(file.path(), "Sec", &board), -27);
      EXPECT_EQ(board, nullptr);
      EXPECT_EQ(console_.Text(),
                "\r\nddReadOneSupportedMainBoardInformation->malloc err! "
                "pstMainBoardInformation = 0x0");
      EXPECT_EQ(faults.opens.count(), 0);
      EXPECT_TRUE(faults.blocks.empty());
    }
  }
}

TEST_F(MainBoardRecord, MissingFile) {
  MainBoardInformation* board = kUntouched;
  EXPECT_EQ(
      ddReadOneSupportedMainBoardInformation("/nonexistent/device_definition.ini", "Sec", &board),
      -31);
  EXPECT_EQ(board, nullptr);
  EXPECT_EQ(console_.Text(), NoType("-10"));
}

}  // namespace
