// Reading the boards that each slot takes.
#include <algorithm>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/frame_file.h"
#include "catalog/frame/frame_shown.h"
#include "support/definition_file.h"
#include "support/leaks.h"
#include "support/text.h"

namespace {

using std::string;
using test::FrameStandIns;
using test::Hex;

string Unknown(const string& code, const string& name, const string& place) {
  return "\r\nddReadSlotSupportBoard err! iResult = " + code + ", _tmp = " + name +
         ", ulSlotListIndex = " + place;
}
string NoKey(const string& code, const string& slot) {
  return "\r\nddReadSlotSupportBoard err! iResult = " + code +
         ", section = Sec, key = SupportedBoardTypeSlot" + slot;
}

// "A|B|A|..."
string Bars(const std::vector<string>& names, size_t count) {
  string list;
  for (size_t i = 0; i < count; ++i) {
    list += (i == 0 ? "" : "|") + names[i % names.size()];
  }
  return list;
}

int32_t Read(const string& keys) {
  const test::DefinitionFile file("[Sec]\n" + keys);
  return ddReadSlotSupportBoard(file.path(), "Sec");
}

// The real slots are these; the last of them ends the block.
void PutSlots(const std::vector<uint32_t>& slots) {
  gstFrame.stRealSlot.ulSlotAmount = static_cast<uint32_t>(slots.size());
  gstFrame.stRealSlot.ulSlotStart = slots.front();
  gstFrame.stRealSlot.ulSlotEnd = slots.back();
  std::copy(slots.begin(), slots.end(), gstFrame.stRealSlot.ucSlotArray);
}

using SlotBoards = test::FrameTest;

// ---- Lists --------------------------------------------------------------------------

struct Row {
  const char* name;
  std::vector<uint32_t> slots;
  string keys;
  string boards;
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class SlotBoardList : public SlotBoards, public testing::WithParamInterface<Row> {};

TEST_P(SlotBoardList, FillsARowOfEachSlot) {
  PutSlots(GetParam().slots);
  test::Faults faults;
  EXPECT_EQ(Read(GetParam().keys), 0);
  EXPECT_EQ(test::ShownBoards(gstFrame), GetParam().boards);
  EXPECT_EQ(console_.Text(), GetParam().console);
  ASSERT_EQ(faults.blocks.count(gstFrame.pstSlotArray), 1u);
  EXPECT_EQ(faults.blocks.at(gstFrame.pstSlotArray), (GetParam().slots.back() + 1) * 400);
  EXPECT_EQ(faults.blocks.size(), 1u);
  std::vector<string> asked;
  for (const uint32_t slot : GetParam().slots) {
    asked.push_back("Sec: SupportedBoardTypeSlot" + std::to_string(static_cast<int32_t>(slot)));
  }
  EXPECT_EQ(FrameStandIns::Get().keys, asked);
}

const string kEnd9 = ", ulSlotOut = 9, ulSLotEnd = 9";

const Row kRows[] = {
    {"OneBoard", {9}, "SupportedBoardTypeSlot9=GP16\n", "9: 71"},
    {"InTheOrderOfTheFile", {9}, "SupportedBoardTypeSlot9=XS08|VT48|GP16\n", "9: 72 74 71"},
    {"MainBoardToo", {9}, "SupportedBoardTypeSlot9=GP16|CTLA\n", "9: 71 11"},
    {"TheSameTwice", {9}, "SupportedBoardTypeSlot9=GP16|GP16\n", "9: 71 71"},
    {"EachSlot",
     {2, 3, 9},
     "SupportedBoardTypeSlot9=GP16\nSupportedBoardTypeSlot3=CTLA|ETHA\nSupportedBoardTypeSlot2="
     "XS08\n",
     "2: 72, 3: 11 73, 9: 71"},
    {"SlotsOfTheListAlone",
     {9},
     "SupportedBoardTypeSlot8=GP16\nSupportedBoardTypeSlot9=XS08\nSupportedBoardTypeSlot1=XS08\n",
     "9: 72"},
    {"SlotZero",
     {0, 9},
     "SupportedBoardTypeSlot0=GP16\nSupportedBoardTypeSlot9=XS08\n",
     "0: 71, 9: 72"},
    {"SlotAbove100",
     {1, 801},
     "SupportedBoardTypeSlot1=GP16\nSupportedBoardTypeSlot801=XS08\n",
     "1: 71, 801: 72"},
    {"SlotBehindTheLast",
     {12, 9},
     "SupportedBoardTypeSlot12=GP16\nSupportedBoardTypeSlot9=XS08\n",
     "9: 72"},
    {"SlotOneBehindTheLast",
     {10, 9},
     "SupportedBoardTypeSlot10=GP16|XS08\nSupportedBoardTypeSlot9=XS08\n",
     "9: 72"},
    {"SlotAboveTheSignedRange",
     {0xffffffff, 9},
     "SupportedBoardTypeSlot-1=GP16|NONE\nSupportedBoardTypeSlot9=XS08\n",
     "9: 72",
     Unknown("-32", "NONE", "0") + ", ulSlotOut = -1, ulSLotEnd = 9"},
    {"UnknownInASlotBehindTheLast",
     {12, 9},
     "SupportedBoardTypeSlot12=NONE\nSupportedBoardTypeSlot9=XS08\n",
     "9: 72",
     Unknown("-32", "NONE", "0") + ", ulSlotOut = 12, ulSLotEnd = 9"},
    {"MissingKey",
     {3, 7, 9},
     "SupportedBoardTypeSlot3=GP16\nSupportedBoardTypeSlot9=XS08\n",
     "3: 71, 9: 72",
     NoKey("-2", "7")},
    {"MissingKeys", {3, 9}, "X=1\n", "", NoKey("-2", "3") + NoKey("-2", "9")},
    {"NonsenseInBetween",
     {3, 9},
     "SupportedBoardTypeSlot3=GP16\nnonsense\nSupportedBoardTypeSlot9=XS08\n",
     "3: 71",
     NoKey("-14", "9")},
    {"UnknownName",
     {3, 9},
     "SupportedBoardTypeSlot3=GP16\nSupportedBoardTypeSlot9=GP16|NONE|XS08\n",
     "3: 71, 9: 71 72",
     Unknown("-32", "NONE", "1") + kEnd9},
    {"UnknownNames",
     {9},
     "SupportedBoardTypeSlot9=N1|N2\n",
     "",
     Unknown("-32", "N1", "0") + kEnd9 + Unknown("-32", "N2", "0") + kEnd9},
    {"UnknownNameLast",
     {9},
     "SupportedBoardTypeSlot9=GP16|GP1\n",
     "9: 71",
     Unknown("-32", "GP1", "0") + kEnd9},
    {"OtherCase",
     {9},
     "SupportedBoardTypeSlot9=gp16|GP16\n",
     "9: 71",
     Unknown("-32", "gp16", "0") + kEnd9},
    {"EmptyValue", {9}, "SupportedBoardTypeSlot9=\n", "", Unknown("-32", "", "0") + kEnd9},
    {"EmptyPieces",
     {9},
     "SupportedBoardTypeSlot9=|GP16||XS08|\n",
     "9: 71 72",
     Unknown("-32", "", "0") + kEnd9 + Unknown("-32", "", "0") + kEnd9 + Unknown("-32", "", "0") +
         kEnd9},
    {"BlanksInside",
     {9},
     "SupportedBoardTypeSlot9= GP16 | XS08|VT48 \n",
     "9: 74",
     Unknown("-32", "GP16 ", "0") + kEnd9 + Unknown("-32", " XS08", "0") + kEnd9},
    {"OtherSeparator",
     {9},
     "SupportedBoardTypeSlot9=GP16,XS08|VT48\n",
     "9: 74",
     Unknown("-32", "GP16,XS08", "0") + kEnd9},
    {"LongestValue",
     {9},
     "SupportedBoardTypeSlot9=+\n" + string(512 - 24, 'n') + "\n",
     "",
     Unknown("-32", string(512 - 24, 'n'), "0") + kEnd9},
    {"AsManyAsALineHolds",
     {9},
     "SupportedBoardTypeSlot9=" + Bars({"GP16"}, 50) + "|+\n" + Bars({"XS08"}, 47) + "\n",
     "9:" + test::With(string(50, 'a'), "a", " 71") + test::With(string(47, 'b'), "b", " 72")},
};
INSTANTIATE_TEST_SUITE_P(Frame, SlotBoardList, testing::ValuesIn(kRows),
                         testing::PrintToStringParamName());

// The code is what the query of the card's type answers.
TEST_F(SlotBoards, CodeOfAnUnknownBoard) {
  PutSlots({9});
  FrameStandIns::Get().card_code = -77;
  EXPECT_EQ(Read("SupportedBoardTypeSlot9=GP16\n"), 0);
  EXPECT_EQ(console_.Text(), Unknown("-77", "GP16", "0") + kEnd9);
  EXPECT_EQ(test::ShownBoards(gstFrame), "");
  EXPECT_EQ(FrameStandIns::Get().cards, std::vector<string>{"GP16"});
}

TEST_F(SlotBoards, DebugSwitchAddsTheWordsOfTheQuery) {
  PutSlots({3, 9});
  ddDebugPrint = 1;
  EXPECT_EQ(Read("SupportedBoardTypeSlot9=NONE\n"), 0);
  EXPECT_EQ(console_.Text(), NoKey("-2", "3") + "\r\nddGetCardTypeByName err!, pcCardName = NONE" +
                                 Unknown("-32", "NONE", "1") + kEnd9);
}

TEST_F(SlotBoards, NoSuchSectionOrFile) {
  PutSlots({3, 9});
  const test::DefinitionFile file("[Other]\nSupportedBoardTypeSlot9=GP16\n");
  EXPECT_EQ(ddReadSlotSupportBoard(file.path(), "Sec"), 0);
  EXPECT_EQ(console_.Text(), NoKey("-1", "3") + NoKey("-1", "9"));
  EXPECT_EQ(test::ShownBoards(gstFrame), "");
  EXPECT_EQ(ddReadSlotSupportBoard("/nonexistent/frame.ini", "Sec"), 0);
  EXPECT_EQ(console_.Text(), NoKey("-10", "3") + NoKey("-10", "9"));
  EXPECT_EQ(test::ShownBoards(gstFrame), "");
}

// ---- Many boards --------------------------------------------------------------------

// Boards A to E are of types 1 to 5; the empty name is of type 6, "Z" of type 0.
class ManySlotBoards : public test::BoardTablesTest {
 protected:
  void SetUp() override {
    BoardTablesTest::SetUp();
    FrameStandIns::Reset();
    PutBoards(
        {.places = {test::PlacedBoard{1, "A"}, test::PlacedBoard{2, "B"}, test::PlacedBoard{3, "C"},
                    test::PlacedBoard{4, "D"}, test::PlacedBoard{5, "E"}, test::PlacedBoard{6, ""},
                    test::PlacedBoard{0, "Z"}}});
  }

  // The first types of the row.
  static std::vector<uint32_t> Types(uint32_t slot, size_t count) {
    const uint32_t* const types = gstFrame.pstSlotArray[slot].aulBoardType;
    return {types, types + count};
  }
  // 1, 2, 3, 4, 5, 1, ...: a hundred types.
  static std::vector<uint32_t> HundredTypes() {
    std::vector<uint32_t> types;
    for (uint32_t i = 0; i < 100; ++i) {
      types.push_back(i % 5 + 1);
    }
    return types;
  }
};

TEST_F(ManySlotBoards, HundredFillARow) {
  PutSlots({3, 4, 5});
  EXPECT_EQ(Read("SupportedBoardTypeSlot4=" + Bars({"A", "B", "C", "D", "E"}, 100) +
                 "\nSupportedBoardTypeSlot3=A\nSupportedBoardTypeSlot5=B\n"),
            0);
  EXPECT_EQ(Types(4, 100), HundredTypes());
  EXPECT_EQ(Types(3, 2), (std::vector<uint32_t>{1, 0}));
  EXPECT_EQ(Types(5, 2), (std::vector<uint32_t>{2, 0}));
  EXPECT_EQ(console_.Text(), "");
}

// What lies behind the hundredth is looked up, and is not stored in the next row.
TEST_F(ManySlotBoards, MoreThanARowHolds) {
  PutSlots({4, 5});
  EXPECT_EQ(Read("SupportedBoardTypeSlot4=" + Bars({"A", "B", "C", "D", "E"}, 110) + "|X|A" + "\n"),
            0);
  EXPECT_EQ(Types(4, 100), HundredTypes());
  EXPECT_EQ(Types(5, 100), std::vector<uint32_t>(100, 0));
  EXPECT_EQ(FrameStandIns::Get().cards.size(), 112u);
  EXPECT_EQ(console_.Text(),
            Unknown("-32", "X", "0") + ", ulSlotOut = 4, ulSLotEnd = 5" + NoKey("-2", "5"));
}

// The last row ends the block.
TEST_F(ManySlotBoards, MoreThanTheLastRowHolds) {
  PutSlots({5});
  EXPECT_EQ(Read("SupportedBoardTypeSlot5=" + Bars({"A", "B", "C", "D", "E"}, 150) + "\n"), 0);
  EXPECT_EQ(Types(5, 100), HundredTypes());
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(ManySlotBoards, UnknownNamesTakeNoPlace) {
  PutSlots({5});
  EXPECT_EQ(Read("SupportedBoardTypeSlot5=X|" + Bars({"A", "B", "C", "D", "E"}, 50) + "|X|" +
                 Bars({"A", "B", "C", "D", "E"}, 51) + "\n"),
            0);
  EXPECT_EQ(Types(5, 100), HundredTypes());
  EXPECT_EQ(console_.Text(), Unknown("-32", "X", "0") + ", ulSlotOut = 5, ulSLotEnd = 5" +
                                 Unknown("-32", "X", "0") + ", ulSlotOut = 5, ulSLotEnd = 5");
}

TEST_F(ManySlotBoards, TypeZeroAndTheEmptyNameTakeTheirPlaces) {
  PutSlots({5});
  EXPECT_EQ(Read("SupportedBoardTypeSlot5=A|Z||B|\n"), 0);
  EXPECT_EQ(Types(5, 6), (std::vector<uint32_t>{1, 0, 6, 2, 6, 0}));
  EXPECT_EQ(FrameStandIns::Get().cards, (std::vector<string>{"A", "Z", "", "B", ""}));
  EXPECT_EQ(console_.Text(), "");
}

// ---- Slots --------------------------------------------------------------------------

TEST_F(SlotBoards, EndWithoutSlots) {
  gstFrame.stRealSlot = {0, 0, 3, {1, 2, 3}};
  test::Faults faults;
  EXPECT_EQ(Read("SupportedBoardTypeSlot1=GP16\nSupportedBoardTypeSlot3=GP16\n"), 0);
  EXPECT_TRUE(FrameStandIns::Get().keys.empty());
  EXPECT_EQ(test::ShownBoards(gstFrame), "");
  EXPECT_EQ(faults.blocks.at(gstFrame.pstSlotArray), 1600u);
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(SlotBoards, SlotsOfTheAmountAlone) {
  gstFrame.stRealSlot = {2, 1, 9, {1, 2, 3, 9}};
  EXPECT_EQ(Read("SupportedBoardTypeSlot1=GP16\nSupportedBoardTypeSlot2=XS08\n"), 0);
  EXPECT_EQ(test::ShownBoards(gstFrame), "1: 71, 2: 72");
  EXPECT_EQ(console_.Text(), "");
}

// Behind the hundredth slot stand the numbers of the virtual slots.
TEST_F(SlotBoards, AmountBeyondTheList) {
  for (const uint32_t amount : {100u, 101u, 0xffffffffu}) {
    FrameStandIns::Reset();
    gstFrame.stRealSlot = {amount, 1, 2, {}};
    gstFrame.stVirtualSlot = {7, 7, 7, {7}};
    std::fill_n(gstFrame.stRealSlot.ucSlotArray, 100, 2);
    EXPECT_EQ(Read("SupportedBoardTypeSlot2=GP16\n"), 0);
    EXPECT_EQ(FrameStandIns::Get().keys, std::vector<string>(100, "Sec: SupportedBoardTypeSlot2"));
    EXPECT_EQ(console_.Text(), "");
  }
}

TEST_F(SlotBoards, NoLastSlot) {
  PutSlots({3, 9});
  ASSERT_EQ(Read("SupportedBoardTypeSlot3=GP16\nSupportedBoardTypeSlot9=XS08\n"), 0);
  SlotSupportBoard* const before = gstFrame.pstSlotArray;
  FrameStandIns::Reset();
  gstFrame.stRealSlot.ulSlotEnd = 0;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(Read("SupportedBoardTypeSlot3=XS08\n"), -4);
    EXPECT_EQ(console_.Text(), "\r\nddReadSlotSupportBoard err!, ulSLotEnd = 0");
  }
  EXPECT_TRUE(FrameStandIns::Get().keys.empty());
  EXPECT_EQ(gstFrame.pstSlotArray, before);
  EXPECT_EQ(before[3].aulBoardType[0], 71u);
}

// ---- Memory -------------------------------------------------------------------------

TEST_F(SlotBoards, ASecondReadReplacesTheRows) {
  test::Faults faults;
  faults.blocks.clear();
  PutSlots({3, 9});
  ASSERT_EQ(Read("SupportedBoardTypeSlot3=GP16|XS08\nSupportedBoardTypeSlot9=XS08\n"), 0);
  PutSlots({2, 3, 5});
  EXPECT_EQ(Read("SupportedBoardTypeSlot2=VT48\nSupportedBoardTypeSlot3=ETHA\n"
                 "SupportedBoardTypeSlot5=GP16\n"),
            0);
  EXPECT_EQ(test::ShownBoards(gstFrame), "2: 74, 3: 73, 5: 71");
  EXPECT_EQ(faults.frees, 1);
  ASSERT_EQ(faults.blocks.size(), 1u);
  EXPECT_EQ(faults.blocks.count(gstFrame.pstSlotArray), 1u);
}

TEST_F(SlotBoards, NoMemoryForTheRows) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    test::Faults faults;
    PutSlots({3, 9});
    ASSERT_EQ(Read("SupportedBoardTypeSlot3=GP16\nSupportedBoardTypeSlot9=GP16\n"), 0);
    FrameStandIns::Reset();
    faults.allocations.FailFrom(faults.allocations.count() + 1, 1);
    EXPECT_EQ(Read("SupportedBoardTypeSlot3=GP16\nSupportedBoardTypeSlot9=GP16\n"), -27);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadSlotSupportBoard->malloc err! gstFrame.pstSlotArray = 0x0");
    EXPECT_EQ(gstFrame.pstSlotArray, nullptr);
    EXPECT_TRUE(faults.blocks.empty());  // the rows of the first read are gone
    EXPECT_TRUE(FrameStandIns::Get().keys.empty());
  }
}

// A row more than the largest slot number cannot be counted.
TEST_F(SlotBoards, LargestLastSlot) {
  test::Faults faults;
  PutSlots({9});
  ASSERT_EQ(Read("SupportedBoardTypeSlot9=GP16\n"), 0);
  gstFrame.stRealSlot.ulSlotEnd = 0xffffffff;
  EXPECT_EQ(Read("SupportedBoardTypeSlot9=GP16\n"), -27);
  EXPECT_EQ(console_.Text(), "\r\nddReadSlotSupportBoard->malloc err! gstFrame.pstSlotArray = 0x0");
  EXPECT_EQ(gstFrame.pstSlotArray, nullptr);
  EXPECT_TRUE(faults.blocks.empty());
}

// ---- Null arguments -----------------------------------------------------------------

TEST_F(SlotBoards, NullArguments) {
  const string file = "/nonexistent/frame.ini";
  const char* const path = file.c_str();
  struct {
    const char* path;
    const char* section;
  } const rows[] = {{nullptr, path + 1}, {path, nullptr}, {nullptr, nullptr}};
  PutSlots({9});
  ASSERT_EQ(Read("SupportedBoardTypeSlot9=GP16\n"), 0);
  FrameStandIns::Reset();
  for (const uint32_t end : {9u, 0u}) {  // looked at later only
    gstFrame.stRealSlot.ulSlotEnd = end;
    for (const auto& row : rows) {
      for (const int32_t debug : {0, 1}) {
        ddDebugPrint = debug;
        EXPECT_EQ(ddReadSlotSupportBoard(row.path, row.section), -2);
        EXPECT_EQ(console_.Text(),
                  "\r\nddReadSlotSupportBoard err!, strFileName = " + Hex(row.path) +
                      ", strSectionFrameName = " + Hex(row.section));
      }
    }
  }
  EXPECT_TRUE(FrameStandIns::Get().keys.empty());
  gstFrame.stRealSlot.ulSlotEnd = 9;
  EXPECT_EQ(test::ShownBoards(gstFrame), "9: 71");
}

}  // namespace
