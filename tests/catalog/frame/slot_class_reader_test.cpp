// Reading the slots of one class.
#include <algorithm>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/frame_reader_stand_ins.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/rows.h"
#include "support/tables.h"
#include "support/text.h"
#include "sys_context/frame.h"

namespace {

using std::string;
using test::FrameStandIns;
using test::Hex;

constexpr uint32_t kOld = 5555;  // in every number, before a read

// The numbers of a class, with those that stand in front of it and behind it.
struct Surrounded {
  uint32_t front = kOld;
  SlotClassInformation slots = {kOld, kOld, kOld, {}};
  uint32_t behind[20] = {};

  Surrounded() {
    std::fill(std::begin(slots.ucSlotArray), std::end(slots.ucSlotArray), kOld);
    std::fill(std::begin(behind), std::end(behind), kOld);
  }
};

class SlotClassReader : public test::LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    FrameStandIns::Reset();
  }

  int32_t Read(const string& keys) {
    const test::DefinitionFile file("[Sec]\n" + keys);
    return ddReadOneSlotClass(file.path(), "Sec", "FanSlot", &read_.slots);
  }

  // Expects these numbers, `listed` first in the list, and `rest` behind them.
  void Expect(uint32_t amount, uint32_t start, uint32_t end, const std::vector<uint32_t>& listed,
              uint32_t rest) {
    EXPECT_EQ(read_.slots.ulSlotAmount, amount);
    EXPECT_EQ(read_.slots.ulSlotStart, start);
    EXPECT_EQ(read_.slots.ulSlotEnd, end);
    std::vector<uint32_t> expected(100, rest);
    std::copy(listed.begin(), listed.end(), expected.begin());
    EXPECT_EQ(std::vector<uint32_t>(std::begin(read_.slots.ucSlotArray),
                                    std::end(read_.slots.ucSlotArray)),
              expected);
    EXPECT_EQ(read_.front, kOld);
    EXPECT_EQ(std::count(std::begin(read_.behind), std::end(read_.behind), kOld), 20);
  }
  void ExpectUntouched() { Expect(kOld, kOld, kOld, {}, kOld); }

  Surrounded read_;
  test::Console console_;
};

// first, first+1, ..., last
std::vector<uint32_t> Slots(uint32_t first, uint32_t last) {
  std::vector<uint32_t> slots;
  for (uint32_t slot = first; slot <= last; ++slot) {
    slots.push_back(slot);
  }
  return slots;
}
string List(const std::vector<uint32_t>& slots) {
  string list;
  for (const uint32_t slot : slots) {
    list += (list.empty() ? "" : ",") + std::to_string(slot);
  }
  return list;
}

// ---- Lists --------------------------------------------------------------------------

struct ListRow {
  const char* name;
  string amount;
  string list;
  uint32_t shown_amount;
  uint32_t start;
  uint32_t end;
  std::vector<uint32_t> listed;
  friend std::ostream& operator<<(std::ostream& out, const ListRow& row) { return out << row.name; }
};

class SlotList : public SlotClassReader, public testing::WithParamInterface<ListRow> {};

TEST_P(SlotList, IsStoredInTheOrderOfTheFile) {
  const ListRow& row = GetParam();
  EXPECT_EQ(Read("FanSlotNum=" + row.amount + "\nFanSlotList=" + row.list + "\n"), 0);
  Expect(row.shown_amount, row.start, row.end, row.listed, kOld);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(FrameStandIns::Get().keys,
            (std::vector<string>{"Sec: FanSlotNum", "Sec: FanSlotList"}));
}

const ListRow kLists[] = {
    {"One", "1", "24", 1, 24, 24, {24}},
    {"Ascending", "3", "3,5,9", 3, 3, 9, {3, 5, 9}},
    {"AnyOrder", "3", "5,3,9", 3, 5, 9, {5, 3, 9}},
    {"EndsBelowItsStart", "3", "9,5,3", 3, 9, 3, {9, 5, 3}},
    {"MoreThanTheAmount", "2", "5,3,9", 2, 5, 3, {5, 3, 9}},
    {"ManyMoreThanTheAmount", "1", List(Slots(1, 50)), 1, 1, 1, Slots(1, 50)},
    {"LessThanTheAmount", "4", "5,3,9", 4, 5, kOld, {5, 3, 9}},
    {"OneLessThanTheLargestAmount", "100", List(Slots(1, 99)), 100, 1, kOld, Slots(1, 99)},
    {"LargestAmount", "100", List(Slots(1, 100)), 100, 1, 100, Slots(1, 100)},
    {"OneMoreThanThePlaces", "100", List(Slots(11, 111)), 100, 11, 110, Slots(11, 110)},
    {"ManyMoreThanThePlaces", "3", List(Slots(1, 120)), 3, 1, 3, Slots(1, 100)},
    {"OnlySeparators", "2", string(500, ','), 2, 0, 0, std::vector<uint32_t>(100, 0)},
    {"TheSameTwice", "2", "7,7", 2, 7, 7, {7, 7}},
    {"AboveTheEnd", "1", "801", 1, 801, 801, {801}},
    {"EmptyValue", "1", "", 1, 0, 0, {0}},
    {"EmptyPieces", "3", ",,9", 3, 0, 9, {0, 0, 9}},
    {"EndsWithASeparator", "3", "5,9,", 3, 5, 0, {5, 9, 0}},
    {"Blanks", "3", " 5 , 3 ,\t9 ", 3, 5, 9, {5, 3, 9}},
    {"OtherSeparator", "2", "5;3,9", 2, 5, 9, {5, 9}},
    {"Text", "4", "x,7th,0x9,4.9", 4, 0, 4, {0, 7, 0, 4}},
    {"Signs", "4", "+5,-1,--1,-2147483648", 4, 5, 0x80000000, {5, 0xffffffff, 0, 0x80000000}},
    {"Saturating",
     "3",
     "99999999999,-99999999999,4294967296",
     3,
     0x7fffffff,
     0x7fffffff,
     {0x7fffffff, 0x80000000, 0x7fffffff}},
    {"AmountWithText", "2 slots", "5,3", 2, 5, 3, {5, 3}},
    {"AmountWithFraction", "2.9", "5,3", 2, 5, 3, {5, 3}},
    {"AmountWithSign", "+2", "5,3", 2, 5, 3, {5, 3}},
};
INSTANTIATE_TEST_SUITE_P(SlotClassReader, SlotList, testing::ValuesIn(kLists),
                         testing::PrintToStringParamName());

// ---- Empty classes ------------------------------------------------------------------

class EmptySlotClass : public SlotClassReader, public testing::WithParamInterface<test::ZeroRow> {};

TEST_P(EmptySlotClass, IsClearedWithoutItsList) {
  EXPECT_EQ(Read("FanSlotNum=" + string(GetParam().text) + "\nFanSlotList=5,3\n"), 0);
  Expect(0, 0, 0, {}, 0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(FrameStandIns::Get().keys, std::vector<string>{"Sec: FanSlotNum"});
}

INSTANTIATE_TEST_SUITE_P(SlotClassReader, EmptySlotClass, testing::ValuesIn(test::kZeros),
                         testing::PrintToStringParamName());

// ---- Failures -----------------------------------------------------------------------

struct FailRow {
  const char* name;
  string keys;
  int32_t code;
  string console;
  uint32_t amount = kOld;  // what is stored of it
  int failing_read = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToReadSlots : public SlotClassReader, public testing::WithParamInterface<FailRow> {};

TEST_P(FailToReadSlots, KeepsTheAmountAlone) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    read_ = {};
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);
    EXPECT_EQ(Read(GetParam().keys), GetParam().code);
    Expect(GetParam().amount, kOld, kOld, {}, kOld);
    EXPECT_EQ(console_.Text(), GetParam().console);
  }
}

string TooMany(const string& amount) {
  return "\r\nddReadOneSlotClass err! ulSlotAmount = " + amount + ", MAX_SLOT_END = 100";
}
string NoAmount(const string& code) {
  return "\r\nddReadOneSlotClass err! iResult = " + code + ", section = Sec, key = FanSlotNum";
}
string NoList(const string& code) {
  return "\r\nddReadOneSlotClass err! iResult = " + code + ", section = Sec, key = FanSlotList";
}
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kFails[] = {
    {"OneTooMany", "FanSlotNum=101\nFanSlotList=5\n", -4, TooMany("101")},
    {"Negative", "FanSlotNum=-1\nFanSlotList=5\n", -4, TooMany("-1")},
    {"MuchTooMany", "FanSlotNum=99999999999\nFanSlotList=5\n", -4, TooMany("2147483647")},
    {"MuchTooFew", "FanSlotNum=-99999999999\nFanSlotList=5\n", -4, TooMany("-2147483648")},
    {"NoAmount", "FanSlotList=5\n", -31, NoAmount("-2")},
    {"AmountInAnotherSection", "[Other]\nFanSlotNum=1\nFanSlotList=5\n", -31, NoAmount("-2")},
    {"AmountOfAnotherClass", "MainSlotNum=1\nFanSlotList=5\n", -31, NoAmount("-2")},
    {"AmountInOtherCase", "FanSlotnum=1\nFanSlotList=5\n", -31, NoAmount("-2")},
    {"AmountBehindNonsense", "nonsense\nFanSlotNum=1\nFanSlotList=5\n", -31, NoAmount("-14")},
    {"AmountBehindALongEntry", kTooLong + "FanSlotNum=1\nFanSlotList=5\n", -31, NoAmount("-22")},
    {"AmountUnreadable", "FanSlotNum=1\nFanSlotList=5\n", -31, NoAmount("-12"), kOld, 1},
    {"NoList", "FanSlotNum=100\n", -2, NoList("-2"), 100},
    {"ListOfAnotherClass", "FanSlotNum=1\nMainSlotList=5\n", -2, NoList("-2"), 1},
    {"ListBehindNonsense", "FanSlotNum=1\nnonsense\nFanSlotList=5\n", -14, NoList("-14"), 1},
    {"ListBehindALongEntry", "FanSlotNum=1\n" + kTooLong + "FanSlotList=5\n", -22, NoList("-22"),
     1},
    {"ListUnreadable", "FanSlotNum=1\nFanSlotList=5\n", -12, NoList("-12"), 1, 2},
};
INSTANTIATE_TEST_SUITE_P(SlotClassReader, FailToReadSlots, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

TEST_F(SlotClassReader, NoSuchSection) {
  const test::DefinitionFile file("[Other]\nFanSlotNum=1\nFanSlotList=5\n");
  EXPECT_EQ(ddReadOneSlotClass(file.path(), "Sec", "FanSlot", &read_.slots), -31);
  EXPECT_EQ(console_.Text(), NoAmount("-1"));
  ExpectUntouched();
}

TEST_F(SlotClassReader, NoSuchFile) {
  EXPECT_EQ(ddReadOneSlotClass("/nonexistent/frame.ini", "Sec", "FanSlot", &read_.slots), -31);
  EXPECT_EQ(console_.Text(), NoAmount("-10"));
  ExpectUntouched();
}

TEST_F(SlotClassReader, FileGoneBeforeTheList) {
  test::Faults faults;
  faults.opens.FailFrom(2, 1);
  EXPECT_EQ(Read("FanSlotNum=2\nFanSlotList=5,3\n"), -10);
  EXPECT_EQ(console_.Text(), NoList("-10"));
  Expect(2, kOld, kOld, {}, kOld);
}

// ---- Class words --------------------------------------------------------------------

TEST_F(SlotClassReader, AnyWordBeginsTheKeys) {
  const test::DefinitionFile file("[Sec]\nNum=1\nList=7\nX1_Num=1\nX1_List=8\n");
  EXPECT_EQ(ddReadOneSlotClass(file.path(), "Sec", "", &read_.slots), 0);
  Expect(1, 7, 7, {7}, kOld);
  EXPECT_EQ(ddReadOneSlotClass(file.path(), "Sec", "X1_", &read_.slots), 0);
  Expect(1, 8, 8, {8}, kOld);
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(SlotClassReader, WordLongerThanAnyKey) {
  const test::DefinitionFile file("[Sec]\nNum=1\nList=7\n");
  EXPECT_EQ(ddReadOneSlotClass(file.path(), "Sec", string(2000, 'w').c_str(), &read_.slots), -31);
  EXPECT_THAT(console_.Text(), testing::StartsWith("\r\nddReadOneSlotClass err! iResult = -2, "
                                                   "section = Sec, key = wwww"));
  ExpectUntouched();
}

// ---- Null arguments -----------------------------------------------------------------

TEST_F(SlotClassReader, NullArguments) {
  const string file = "/nonexistent/frame.ini";
  const char* const path = file.c_str();
  const char* const section = path + 1;
  const char* const word = path + 2;
  struct {
    const char* path;
    const char* section;
    const char* word;
    SlotClassInformation* slots;
  } const rows[] = {
      {nullptr, section, word, &read_.slots}, {path, nullptr, word, &read_.slots},
      {path, section, nullptr, &read_.slots}, {path, section, word, nullptr},
      {nullptr, nullptr, nullptr, nullptr},
  };
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    for (const auto& row : rows) {
      EXPECT_EQ(ddReadOneSlotClass(row.path, row.section, row.word, row.slots), -2);
      EXPECT_EQ(console_.Text(), "\r\nddReadOneSlotClass err!, strFileName = " + Hex(row.path) +
                                     ", strSectionFrameName = " + Hex(row.section) +
                                     ", strSlotClass = " + Hex(row.word) +
                                     ", pstSlotClass = " + Hex(row.slots));
    }
  }
  EXPECT_TRUE(FrameStandIns::Get().keys.empty());
  ExpectUntouched();
}

}  // namespace
