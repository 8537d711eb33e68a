// Reading the port maps of a main board.
#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>
#include <utility>

#include "catalog/olt/main_boards.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/null_arguments.h"
#include "support/records.h"
#include "support/text.h"

namespace {

using std::string;
using test::Hex;
using test::kSection;
using test::Numbered;
using test::Numbers;
using test::Replaced;

class PortMaps : public test::LibraryTest {
 protected:
  int32_t ReadAll(const string& bytes) {
    const test::DefinitionFile file(bytes);
    return ddReadAllSwitchChipLogicPortToPhyPort(file.path(), "Sec", &board_);
  }
  int32_t ReadSpecial(const string& bytes, uint32_t ports) {
    const test::DefinitionFile file(bytes);
    return ddReadSpecialSwitchChipLogicPortToPhyPort(file.path(), "Sec", ports, &board_);
  }

  MainBoardInformation board_ = {};
  test::Console console_;
};

// A record whose fields in front of the maps show what is stored in them.
MainBoardInformation Marked() {
  MainBoardInformation board = {};
  board.ulType = 71;
  board.ulSubType = 72;
  test::StoreName("MARK", board.acName, board.ulNameLen);
  board.ulSwitchChipLogicPortNum = 73;
  board.ulChipLogicPortToPhyPortTypeNum = 5;
  return board;
}

// The marked record with the maps of `board` and the given counts.
MainBoardInformation MarkedWith(const MainBoardInformation& board, uint32_t ports, uint32_t maps) {
  MainBoardInformation marked = Marked();
  marked.ulSwitchChipLogicPortNum = ports;
  marked.ulChipLogicPortToPhyPortTypeNum = maps;
  std::copy(std::begin(board.astPortMap), std::end(board.astPortMap), marked.astPortMap);
  return marked;
}

// ---- All maps ------------------------------------------------------------------

TEST_F(PortMaps, CountsOfAnEarlierReadAreReplaced) {
  board_ = Marked();
  EXPECT_EQ(ReadAll(kSection), 0);
  test::ExpectMainBoard(board_, MarkedWith(test::SectionBoard(), 2, 3));
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(PortMaps, AsManyPortsAsPossible) {
  EXPECT_EQ(
      ReadAll("[Sec]\nSwitchChipLogicPortNum=1280\nSpecialChipLogicPortMapPhyPortCardNum=0\n" +
              Numbered("SwitchChipLogicPort", Numbers(1001, 1280))),
      0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(board_.ulSwitchChipLogicPortNum, 1280u);
  EXPECT_EQ(board_.ulChipLogicPortToPhyPortTypeNum, 1u);
  PortMap expected = {};
  test::StoreMap({"NoSpecialUplinkBoard", {}}, expected);
  EXPECT_EQ(expected.ulBoardNameLen, 21u);
  for (uint32_t i = 0; i < 1280; ++i) {
    expected.astPortPair[i] = {static_cast<uint16_t>((i + 1) % 256),
                               static_cast<uint16_t>(1001 + i)};
  }
  test::ExpectMap(board_.astPortMap[0], expected);
}

TEST_F(PortMaps, EveryMapHasAsManyPorts) {
  EXPECT_EQ(ReadAll("[Sec]\nSwitchChipLogicPortNum=300\nSpecialChipLogicPortMapPhyPortCardNum=1\n"
                    "SpecialChipLogicPortMapPhyPortCard1=ETHA\n" +
                    Numbered("SwitchChipLogicPort", Numbers(1, 300)) +
                    Numbered("ETHA_SwitchChipLogicPort", Numbers(500, 301))),
            0);
  EXPECT_EQ(board_.ulChipLogicPortToPhyPortTypeNum, 2u);
  for (const auto& [map, first] : {std::pair{0, 1}, std::pair{1, 500}}) {
    const PortPair* const pairs = board_.astPortMap[map].astPortPair;
    for (uint32_t i = 0; i < 300; ++i) {
      EXPECT_EQ(pairs[i].usPhyPort, static_cast<uint32_t>(first) + i);
    }
    EXPECT_EQ(pairs[254].usLogicPort, 255);
    EXPECT_EQ(pairs[255].usLogicPort, 0);
    EXPECT_EQ(pairs[256].usLogicPort, 1);
    EXPECT_EQ(pairs[299].usLogicPort, 44);
    EXPECT_EQ(pairs[300].usLogicPort, 0);
    EXPECT_EQ(pairs[300].usPhyPort, 0);
  }
}

struct FailRow {
  const char* name;
  string from;  // piece of kSection
  string to;
  int32_t code;
  string console;
  uint32_t ports_stored;  // 73: untouched
  uint32_t maps_stored;   // 5: untouched
  // Leaves of all maps those that are stored.
  void (*change)(MainBoardInformation& all);
  int failing_read = 0;
  int failing_open = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

void Fail(test::Faults& faults, const FailRow& row) {
  faults.reads.FailFrom(row.failing_read, 1);
  faults.opens.FailFrom(row.failing_open, 1);
}

MainBoardInformation Stored(const FailRow& row) {
  MainBoardInformation all = test::SectionBoard();
  row.change(all);
  return MarkedWith(all, row.ports_stored, row.maps_stored);
}

class FailToReadAllPortMaps : public PortMaps, public testing::WithParamInterface<FailRow> {};

TEST_P(FailToReadAllPortMaps, KeepsWhatWasRead) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    board_ = Marked();
    test::Faults faults;
    Fail(faults, GetParam());
    EXPECT_EQ(ReadAll(Replaced(kSection, GetParam().from, GetParam().to)), GetParam().code);
    EXPECT_EQ(console_.Text(), GetParam().console);
    test::ExpectMainBoard(board_, Stored(GetParam()));
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.closes, faults.opens.count() - (GetParam().failing_open != 0 ? 1 : 0));
  }
}

string NoPortCount(const string& code) {
  return "\r\nddReadAllSwitchChipLogicPortToPhyPort err! iResult = " + code +
         ", strSectionFrameNameBuf = Sec, Key = SwitchChipLogicPortNum";
}
string TooManyPorts(const string& number) {
  return "\r\nddReadAllSwitchChipLogicPortToPhyPort err! strSectionFrameNameBuf = Sec, "
         "ulSwitchChipLogicPortNum = " +
         number + ", MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280";
}
string NoPort(const string& code, const string& key, const string& index) {
  return "\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = " + code +
         ", strSectionFrameNameBuf = Sec, Key = " + key + ", ulSwitchChipLogicPortIndex = " + index;
}
string NoDefaultPort(const string& code, const string& key, const string& index) {
  return NoPort(code, key, index) +
         "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort err! "
         "iResult = -31, strSectionFrameNameBuf = Sec, ulSwitchChipLogicPortNum = 2, "
         "SwitchChipLogicPort";
}

void NoMap(MainBoardInformation& all) {
  for (PortMap& map : all.astPortMap) {
    map = {};
  }
}
void FirstPairOnly(MainBoardInformation& all) {
  NoMap(all);
  test::StoreMap({"NoSpecialUplinkBoard", {{1, 11}}}, all.astPortMap[0]);
}
void DefaultNameOnly(MainBoardInformation& all) {
  NoMap(all);
  test::StoreMap({"NoSpecialUplinkBoard", {}}, all.astPortMap[0]);
}

const FailRow kFails[] = {
    {"NoSection", "[Sec]", "[sec]", -31, NoPortCount("-1"), 73, 5, NoMap},
    {"NoPortCount", "SwitchChipLogicPortNum=2\n", "", -31, NoPortCount("-2"), 73, 5, NoMap},
    {"BrokenBeforePortCount", "Type=7", "nonsense", -31, NoPortCount("-14"), 73, 5, NoMap},
    {"PortCountUnreadable", "Sec", "Sec", -31, NoPortCount("-12"), 73, 5, NoMap, 1},
    {"PortCountNotOpened", "Sec", "Sec", -31, NoPortCount("-10"), 73, 5, NoMap, 0, 1},
    {"OnePortTooMany", "PortNum=2", "PortNum=1281", -24, TooManyPorts("1281"), 73, 5, NoMap},
    {"PortCountNegative", "PortNum=2", "PortNum=-1", -24, TooManyPorts("-1"), 73, 5, NoMap},
    {"PortCountAbove31Bits", "PortNum=2", "PortNum=2147483648", -24, TooManyPorts("2147483647"), 73,
     5, NoMap},
    {"PortCountAbove32Bits", "PortNum=2", "PortNum=4294967297", -24, TooManyPorts("2147483647"), 73,
     5, NoMap},
    {"PortCountBelow32Bits", "PortNum=2", "PortNum=-4294967295", -24, TooManyPorts("-2147483648"),
     73, 5, NoMap},
    {"NoFirstPort", "\nSwitchChipLogicPort1=11\n", "\n", -31,
     NoDefaultPort("-2", "SwitchChipLogicPort1", "0"), 2, 5, DefaultNameOnly},
    {"NoSecondPort", "\nSwitchChipLogicPort2=12\n", "\n", -31,
     NoDefaultPort("-2", "SwitchChipLogicPort2", "1"), 2, 5, FirstPairOnly},
    {"BrokenBeforeTheSecondPort", "\nSwitchChipLogicPort2=12\n",
     "\nnonsense\nSwitchChipLogicPort2=12\n", -31,
     NoDefaultPort("-14", "SwitchChipLogicPort2", "1"), 2, 5, FirstPairOnly},
    {"SecondPortUnreadable", "Sec", "Sec", -31, NoDefaultPort("-12", "SwitchChipLogicPort2", "1"),
     2, 5, FirstPairOnly, 3},
    {"SecondPortNotOpened", "Sec", "Sec", -31, NoDefaultPort("-10", "SwitchChipLogicPort2", "1"), 2,
     5, FirstPairOnly, 0, 3},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, FailToReadAllPortMaps, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

TEST_F(PortMaps, NullArgumentsOfAllMaps) {
  board_ = Marked();
  test::ExpectNullArgumentsRefused(
      console_,
      "\r\nddReadAllSwitchChipLogicPortToPhyPort err! strFileName = {file}, strOltPonTypeSection = {section}, pstMainBoardInformation = {record}",
      &board_, ddReadAllSwitchChipLogicPortToPhyPort);
  test::ExpectMainBoard(board_, Marked());
}

// ---- Special maps ----------------------------------------------------------------

TEST_F(PortMaps, SpecialMapsAddToTheCount) {
  board_ = Marked();
  EXPECT_EQ(ReadSpecial(kSection, 2), 0);
  MainBoardInformation all = test::SectionBoard();
  all.astPortMap[0] = {};
  test::ExpectMainBoard(board_, MarkedWith(all, 73, 7));
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(PortMaps, SpecialMapsHaveThePortsOfTheCall) {
  board_ = Marked();
  EXPECT_EQ(ReadSpecial(kSection, 1), 0);
  MainBoardInformation all =
      test::MainBoardRecord(0, "", 0, {{"", {}}, {"ETHA", {{1, 21}}}, {"ETHB", {{1, 31}}}});
  all.astPortMap[0] = {};
  test::ExpectMainBoard(board_, MarkedWith(all, 73, 7));
}

TEST_F(PortMaps, SpecialMapsWithoutPorts) {
  EXPECT_EQ(ReadSpecial("[Sec]\nSpecialChipLogicPortMapPhyPortCardNum=1\n"
                        "SpecialChipLogicPortMapPhyPortCard1=ETHA\n",
                        0),
            0);
  MainBoardInformation expected = test::MainBoardRecord(0, "", 0, {{"", {}}, {"ETHA", {}}});
  expected.ulNameLen = 0;
  expected.astPortMap[0] = {};
  expected.ulChipLogicPortToPhyPortTypeNum = 1;
  test::ExpectMainBoard(board_, expected);
}

TEST_F(PortMaps, NoSpecialMapsLeaveTheCount) {
  for (const char* const number : {"0", "", "none", "0x1"}) {
    board_ = Marked();
    EXPECT_EQ(ReadSpecial(string("[Sec]\nSpecialChipLogicPortMapPhyPortCardNum=") + number, 2), 0);
    test::ExpectMainBoard(board_, Marked());
  }
  EXPECT_EQ(console_.Text(), "");
}

// The names and wires of special maps for the boards U1, U2, ...
string SpecialMaps(int count) {
  string text = "[Sec]\nSpecialChipLogicPortMapPhyPortCardNum=" + std::to_string(count) + "\n";
  for (int i = 1; i <= count; ++i) {
    const string n = std::to_string(i);
    text += "SpecialChipLogicPortMapPhyPortCard" + n + "=U" + n + "\n";
    text += Numbered("U" + n + "_SwitchChipLogicPort", Numbers(i * 10, 1));
  }
  return text;
}

TEST_F(PortMaps, AsManySpecialMapsAsPossible) {
  board_.ulChipLogicPortToPhyPortTypeNum = 1;
  EXPECT_EQ(ReadSpecial(SpecialMaps(19), 1), 0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(board_.ulChipLogicPortToPhyPortTypeNum, 20u);
  for (int i = 1; i <= 19; ++i) {
    PortMap expected = {};
    test::StoreMap({"U" + std::to_string(i), {{1, static_cast<uint16_t>(i * 10)}}}, expected);
    test::ExpectMap(board_.astPortMap[i], expected);
  }
}

struct NameRow {
  const char* name;
  string board;
  friend std::ostream& operator<<(std::ostream& out, const NameRow& row) { return out << row.name; }
};

class SpecialMapName : public PortMaps, public testing::WithParamInterface<NameRow> {};

TEST_P(SpecialMapName, BeginsItsKeys) {
  const string& name = GetParam().board;
  EXPECT_EQ(ReadSpecial("[Sec]\nSpecialChipLogicPortMapPhyPortCardNum=1\n"
                        "SpecialChipLogicPortMapPhyPortCard1=" +
                            name + "\n" + Numbered(name + "_SwitchChipLogicPort", {"41", "42"}),
                        2),
            0);
  PortMap expected = {};
  test::StoreMap({name, {{1, 41}, {2, 42}}}, expected);
  test::ExpectMap(board_.astPortMap[1], expected);
  EXPECT_EQ(console_.Text(), "");
}

const NameRow kNames[] = {
    {"Empty", ""},
    {"OneCharacter", "U"},
    {"WithBlanks", "up link"},
    {"OfTheDefaultMap", "NoSpecialUplinkBoard"},
    {"Longest", string(59, 'u')},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, SpecialMapName, testing::ValuesIn(kNames),
                         testing::PrintToStringParamName());

TEST_F(PortMaps, TwoSpecialMapsOfOneBoard) {
  EXPECT_EQ(ReadSpecial(Replaced(kSection, "=ETHB", "=ETHA"), 2), 0);
  EXPECT_EQ(board_.ulChipLogicPortToPhyPortTypeNum, 2u);
  test::ExpectMap(board_.astPortMap[1], test::SectionBoard().astPortMap[1]);
  test::ExpectMap(board_.astPortMap[2], test::SectionBoard().astPortMap[1]);
}

class FailToReadSpecialPortMaps : public PortMaps, public testing::WithParamInterface<FailRow> {};

TEST_P(FailToReadSpecialPortMaps, KeepsWhatWasRead) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    board_ = Marked();
    test::Faults faults;
    Fail(faults, GetParam());
    EXPECT_EQ(ReadSpecial(Replaced(kSection, GetParam().from, GetParam().to), 2), GetParam().code);
    EXPECT_EQ(console_.Text(), GetParam().console);
    MainBoardInformation expected = Stored(GetParam());
    expected.astPortMap[0] = {};
    test::ExpectMainBoard(board_, expected);
    EXPECT_EQ(faults.closes, faults.opens.count() - (GetParam().failing_open != 0 ? 1 : 0));
  }
}

// The same behind the default map, of whose count of 1 nothing is added to.
TEST_P(FailToReadSpecialPortMaps, FailsAllMaps) {
  board_ = Marked();
  test::Faults faults;
  if (GetParam().failing_read != 0) {
    faults.reads.FailFrom(GetParam().failing_read + 3, 1);
  }
  if (GetParam().failing_open != 0) {
    faults.opens.FailFrom(GetParam().failing_open + 3, 1);
  }
  EXPECT_EQ(ReadAll(Replaced(kSection, GetParam().from, GetParam().to)), GetParam().code);
  EXPECT_EQ(console_.Text(), GetParam().console +
                                 "\r\nddReadAllSwitchChipLogicPortToPhyPort->"
                                 "ddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = " +
                                 std::to_string(GetParam().code) +
                                 ", strSectionFrameNameBuf = Sec, ulSwitchChipLogicPortNum = 2");
  MainBoardInformation expected = Stored(GetParam());
  expected.ulSwitchChipLogicPortNum = 2;
  expected.ulChipLogicPortToPhyPortTypeNum = 1;
  test::ExpectMainBoard(board_, expected);
}

string NoSpecialCount(const string& code) {
  return "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = " + code +
         ", strSectionFrameNameBuf = Sec, Key = SpecialChipLogicPortMapPhyPortNum";
}
string TooManySpecial(const string& number) {
  return "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = 0, strSectionFrameNameBuf = "
         "Sec, ulSpecialMapNum = " +
         number + ", MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM - 1 = 19";
}
string NoCard(const string& code, const string& number, const string& index) {
  return "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = " + code +
         ", strSectionFrameNameBuf = Sec, Key = SpecialChipLogicPortMapPhyPortCard" + number +
         ", ulSpecialMapIndex = " + index;
}
string CardTooLong(const string& number, const string& index, const string& length) {
  return "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = 0, strSectionFrameNameBuf = "
         "Sec, Key = SpecialChipLogicPortMapPhyPortCard" +
         number + ", ulSpecialMapIndex = " + index + ", ulBoardNameLen + 1 = " + length +
         ", MAX_BOARD_NAME_LEN = 60";
}
string NoSpecialPort(const string& code, const string& board, const string& port,
                     const string& port_index, const string& map_index) {
  return NoPort(code, board + "_SwitchChipLogicPort" + port, port_index) +
         "\r\nddReadSpecialSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort "
         "err! iResult = -31, strSectionFrameNameBuf = Sec, ulSwitchChipLogicPortNum = 2, Key = " +
         board + "_SwitchChipLogicPort, ulSpecialMapIndex = " + map_index;
}

void DefaultOnly(MainBoardInformation& all) {
  all.astPortMap[1] = {};
  all.astPortMap[2] = {};
}
void FirstSpecialOnly(MainBoardInformation& all) {
  all.astPortMap[2] = {};
}
void FirstSpecialPairOnly(MainBoardInformation& all) {
  DefaultOnly(all);
  test::StoreMap({"ETHA", {{1, 21}}}, all.astPortMap[1]);
}
void FirstSpecialNameOnly(MainBoardInformation& all) {
  DefaultOnly(all);
  test::StoreMap({"ETHA", {}}, all.astPortMap[1]);
}
void SecondSpecialPairMissing(MainBoardInformation& all) {
  all.astPortMap[2].astPortPair[1] = {};
}

const string kFirstCard = "SpecialChipLogicPortMapPhyPortCard1=ETHA\n";
const string kSecondCard = "SpecialChipLogicPortMapPhyPortCard2=ETHB\n";

// Of special maps alone, the reads and opens 1 to 7 are: their number; the name
// and both ports of the first; those of the second.
const FailRow kSpecialFails[] = {
    {"NoCount", "SpecialChipLogicPortMapPhyPortCardNum=2\n", "", -31, NoSpecialCount("-2"), 73, 5,
     DefaultOnly},
    {"CountUnderTheKeyOfItsMessage", "SpecialChipLogicPortMapPhyPortCardNum",
     "SpecialChipLogicPortMapPhyPortNum", -31, NoSpecialCount("-2"), 73, 5, DefaultOnly},
    {"BrokenBeforeCount", "Special", "nonsense\nSpecial", -31, NoSpecialCount("-14"), 73, 5,
     DefaultOnly},
    {"CountUnreadable", "Sec", "Sec", -31, NoSpecialCount("-12"), 73, 5, DefaultOnly, 1},
    {"CountNotOpened", "Sec", "Sec", -31, NoSpecialCount("-10"), 73, 5, DefaultOnly, 0, 1},
    {"OneTooMany", "CardNum=2", "CardNum=20", -26, TooManySpecial("20"), 73, 5, DefaultOnly},
    {"CountNegative", "CardNum=2", "CardNum=-1", -26, TooManySpecial("-1"), 73, 5, DefaultOnly},
    {"CountAbove31Bits", "CardNum=2", "CardNum=2147483648", -26, TooManySpecial("2147483647"), 73,
     5, DefaultOnly},
    {"CountAbove32Bits", "CardNum=2", "CardNum=4294967297", -26, TooManySpecial("2147483647"), 73,
     5, DefaultOnly},
    {"CountBelow32Bits", "CardNum=2", "CardNum=-4294967295", -26, TooManySpecial("-2147483648"), 73,
     5, DefaultOnly},
    {"NoFirstCard", kFirstCard, "", -31, NoCard("-2", "1", "0"), 73, 5, DefaultOnly},
    {"FirstCardUnreadable", "Sec", "Sec", -31, NoCard("-12", "1", "0"), 73, 5, DefaultOnly, 2},
    {"NoSecondCard", kSecondCard, "", -31, NoCard("-2", "2", "1"), 73, 5, FirstSpecialOnly},
    {"BrokenBeforeTheSecondCard", kSecondCard, "nonsense\n" + kSecondCard, -31,
     NoCard("-14", "2", "1"), 73, 5, FirstSpecialOnly},
    {"SecondCardNotOpened", "Sec", "Sec", -31, NoCard("-10", "2", "1"), 73, 5, FirstSpecialOnly, 0,
     5},
    {"MoreAnnouncedThanListed", "CardNum=2", "CardNum=3", -31, NoCard("-2", "3", "2"), 73, 5,
     [](MainBoardInformation&) {}},
    {"FirstNameTooLong", "=ETHA", "=" + string(60, 'u'), -32, CardTooLong("1", "0", "62"), 73, 5,
     DefaultOnly},
    {"SecondNameTooLong", "=ETHB", "=" + string(61, 'u'), -32, CardTooLong("2", "1", "63"), 73, 5,
     FirstSpecialOnly},
    {"SecondNameFarTooLong", "=ETHB", "=" + string(476, 'u'), -32, CardTooLong("2", "1", "478"), 73,
     5, FirstSpecialOnly},
    {"NoPortOfTheFirst", "ETHA_SwitchChipLogicPort1=21\n", "", -31,
     NoSpecialPort("-2", "ETHA", "1", "0", "0"), 73, 5, FirstSpecialNameOnly},
    {"SecondPortOfTheFirstUnreadable", "Sec", "Sec", -31,
     NoSpecialPort("-12", "ETHA", "2", "1", "0"), 73, 5, FirstSpecialPairOnly, 4},
    {"NoSecondPortOfTheFirst", "ETHA_SwitchChipLogicPort2=22\n", "", -31,
     NoSpecialPort("-2", "ETHA", "2", "1", "0"), 73, 5, FirstSpecialPairOnly},
    {"NoSecondPortOfTheSecond", "ETHB_SwitchChipLogicPort2=32\n", "", -31,
     NoSpecialPort("-2", "ETHB", "2", "1", "1"), 73, 5, SecondSpecialPairMissing},
    {"SecondPortOfTheSecondNotOpened", "Sec", "Sec", -31,
     NoSpecialPort("-10", "ETHB", "2", "1", "1"), 73, 5, SecondSpecialPairMissing, 0, 7},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, FailToReadSpecialPortMaps, testing::ValuesIn(kSpecialFails),
                         testing::PrintToStringParamName());

TEST_F(PortMaps, NullArgumentsOfSpecialMaps) {
  board_ = Marked();
  test::ExpectNullArgumentsRefused(
      console_,
      "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! strFileName = {file}, strOltPonTypeSection = {section}, pstMainBoardInformation = {record}",
      &board_, [](const char* file, const char* section, MainBoardInformation* board) {
        return ddReadSpecialSwitchChipLogicPortToPhyPort(file, section, 2, board);
      });
  test::ExpectMainBoard(board_, Marked());
}

// ---- One map ---------------------------------------------------------------------

struct ValueRow {
  const char* name;
  string value;
  uint16_t phy_port;
  friend std::ostream& operator<<(std::ostream& out, const ValueRow& row) {
    return out << row.name;
  }
};

class PhysicalPort : public PortMaps, public testing::WithParamInterface<ValueRow> {};

TEST_P(PhysicalPort, IsKeptIn16Bits) {
  const test::DefinitionFile file("[Sec]\nP1=" + GetParam().value + "\n");
  PortPair pairs[2] = {{91, 92}, {93, 94}};
  EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(file.path(), "Sec", 1, "P", pairs), 0);
  EXPECT_EQ(pairs[0].usLogicPort, 1);
  EXPECT_EQ(pairs[0].usPhyPort, GetParam().phy_port);
  EXPECT_EQ(pairs[1].usLogicPort, 93);
  EXPECT_EQ(pairs[1].usPhyPort, 94);
  EXPECT_EQ(console_.Text(), "");
}

const ValueRow kValues[] = {
    {"Zero", "0", 0},
    {"Plain", "25", 25},
    {"LastChipPort", "1280", 1280},
    {"AboveTheChipPorts", "1281", 1281},
    {"Largest", "65535", 65535},
    {"OneMore", "65536", 0},
    {"MoreThan16Bits", "70000", 4464},
    {"MoreThan31Bits", "2147483648", 65535},
    {"MoreThan32Bits", "4294967301", 65535},
    {"LessThan32Bits", "-4294967297", 0},
    {"Negative", "-1", 65535},
    {"VeryNegative", "-65530", 6},
    {"Empty", "", 0},
    {"Text", "abc", 0},
    {"NumberAndText", "12x", 12},
    {"Signed", "+12", 12},
    {"Hexadecimal", "0x10", 0},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, PhysicalPort, testing::ValuesIn(kValues),
                         testing::PrintToStringParamName());

TEST_F(PortMaps, OneMapOfNoPortsReadsNothing) {
  PortPair pair = {91, 92};
  test::Faults faults;
  EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort("/nonexistent/file", "Sec", 0, "P", &pair), 0);
  EXPECT_EQ(faults.opens.count(), 0);
  EXPECT_EQ(pair.usLogicPort, 91);
  EXPECT_EQ(pair.usPhyPort, 92);
}

TEST_F(PortMaps, OneMapUnderAnyPrefix) {
  const test::DefinitionFile file("[Sec]\nP2=7\nP1=6\n1=4\n2=5\nP=9\nP3=8\n");
  PortPair pairs[3] = {};
  EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(file.path(), "Sec", 2, "", pairs), 0);
  EXPECT_EQ(pairs[0].usPhyPort, 4);
  EXPECT_EQ(pairs[1].usPhyPort, 5);
  EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(file.path(), "Sec", 2, "P", pairs), 0);
  EXPECT_EQ(pairs[0].usPhyPort, 6);
  EXPECT_EQ(pairs[1].usPhyPort, 7);
  EXPECT_EQ(pairs[2].usPhyPort, 0);
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(PortMaps, OneMapKeepsThePairsInFrontOfAFailure) {
  const test::DefinitionFile file("[Sec]\nP1=6\nP2=7\nP4=8\n");
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PortPair pairs[4] = {{91, 92}, {91, 92}, {91, 92}, {91, 92}};
    EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(file.path(), "Sec", 4, "P", pairs), -31);
    EXPECT_EQ(console_.Text(), NoPort("-2", "P3", "2"));
    EXPECT_EQ(pairs[0].usLogicPort, 1);
    EXPECT_EQ(pairs[0].usPhyPort, 6);
    EXPECT_EQ(pairs[1].usLogicPort, 2);
    EXPECT_EQ(pairs[1].usPhyPort, 7);
    for (const int untouched : {2, 3}) {
      EXPECT_EQ(pairs[untouched].usLogicPort, 91);
      EXPECT_EQ(pairs[untouched].usPhyPort, 92);
    }
  }
}

string NullForOne(const void* file, const void* section, const void* key, const void* pairs) {
  return "\r\nddReadOneSwitchChipLogicPortToPhyPort err! strFileName = " + Hex(file) +
         ", strOltPonTypeSection = " + Hex(section) + ",strSwitchChipLogicPortKeyIn = " + Hex(key) +
         ", pstChipLogicPortToPhyPort = " + Hex(pairs);
}

TEST_F(PortMaps, NullArgumentsOfOneMap) {
  const test::DefinitionFile file("[Sec]\nP1=6\n");
  const char* const path = file.path();
  const char section[] = "Sec";
  const char key[] = "P";
  PortPair pair = {91, 92};
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    test::Faults faults;
    EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(nullptr, section, 1, key, &pair), -2);
    EXPECT_EQ(console_.Text(), NullForOne(nullptr, section, key, &pair));
    EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(path, nullptr, 1, key, &pair), -2);
    EXPECT_EQ(console_.Text(), NullForOne(path, nullptr, key, &pair));
    EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(path, section, 1, nullptr, &pair), -2);
    EXPECT_EQ(console_.Text(), NullForOne(path, section, nullptr, &pair));
    EXPECT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(path, section, 0, key, nullptr), -2);
    EXPECT_EQ(console_.Text(), NullForOne(path, section, key, nullptr));
    EXPECT_EQ(faults.opens.count(), 0);
  }
  EXPECT_EQ(pair.usLogicPort, 91);
  EXPECT_EQ(pair.usPhyPort, 92);
}

}  // namespace
