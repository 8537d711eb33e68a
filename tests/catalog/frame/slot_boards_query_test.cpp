// Does a slot take boards of a type?
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/boards_of_slots.h"
#include "catalog/frame/slot_classes.h"
#include "support/numbers.h"

namespace {

using std::string;
using test::Boards;
using test::kAskedSlots;
using test::kEmptyFrame;
using test::kFullRow;
using test::kNotLoaded;
using test::kUntouched;
using test::NumbersFrom;

// ---- Any board ------------------------------------------------------------------------

struct PlugInRow {
  const char* name;
  Boards boards;
  uint32_t slot;
  uint32_t type;
  int32_t code;
  string text = "";
  friend std::ostream& operator<<(std::ostream& out, const PlugInRow& row) {
    return out << row.name;
  }
};

const Boards kThreeSlots = {
    .last_slot = 3,
    .rows = {{0, {9}}, {1, {5, 6}}, {2, kFullRow}, {3, {7, 0, 8, 0x10005, 0x80000006}}}};
const Boards kUpToHcu = {.last_slot = 801, .rows = {{801, {598}}}};

const PlugInRow kPlugIns[] = {
    // The HCU board in its slot, before anything is looked at.
    {"HcuBoardInAnEmptyFrame", kEmptyFrame, 801, 624, 0},
    {"HcuBoardWithoutLists", kNotLoaded, 801, 624, 0},
    {"HcuBoardBehindTheLastSlot", kThreeSlots, 801, 624, 0},
    {"HcuBoardThatItsRowLacks", kUpToHcu, 801, 624, 0},
    {"OtherBoardInTheHcuSlot", kEmptyFrame, 801, 623, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 801, ulSLotEnd = 0"},
    {"BoardBehindTheHcuBoard", kThreeSlots, 801, 625, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 801, ulSLotEnd = 3"},
    {"HcuBoardIn16Bits", kThreeSlots, 801, 0x10270, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 801, ulSLotEnd = 3"},
    {"HcuSlotIn16Bits", kThreeSlots, 0x10321, 624, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 66337, ulSLotEnd = 3"},
    {"HcuBoardInFrontOfItsSlot", kThreeSlots, 800, 624, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 800, ulSLotEnd = 3"},
    {"HcuBoardBehindItsSlot", kThreeSlots, 802, 624, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 802, ulSLotEnd = 3"},
    {"HcuBoardInAnOrdinarySlot", kThreeSlots, 1, 624, -18},
    {"HcuSlotWithARow", kUpToHcu, 801, 598, 0},
    {"HcuSlotWithoutThatBoard", kUpToHcu, 801, 599, -18},

    // The slot, before the lists.
    {"SlotZero", kThreeSlots, 0, 9, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 0, ulSLotEnd = 3"},
    {"SlotZeroOfAnEmptyFrame", kEmptyFrame, 0, 9, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 0, ulSLotEnd = 0"},
    {"SlotZeroWithoutLists", kNotLoaded, 0, 0, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 0, ulSLotEnd = 14"},
    {"SlotOfAnEmptyFrame", kEmptyFrame, 1, 5, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 1, ulSLotEnd = 0"},
    {"BehindTheLastSlot", kThreeSlots, 4, 0, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 4, ulSLotEnd = 3"},
    {"BehindTheLastSlotWithoutLists", kNotLoaded, 15, 5, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 15, ulSLotEnd = 14"},
    {"LargestSlot", kThreeSlots, 0xffffffff, 5, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = -1, ulSLotEnd = 3"},
    {"SlotIn8Bits", kThreeSlots, 0x101, 5, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 257, ulSLotEnd = 3"},
    {"SlotIn16Bits", kThreeSlots, 0x10001, 5, -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 65537, ulSLotEnd = 3"},
    {"SlotBehindACorruptLast",
     {.last_slot = 0x80000000, .are_loaded = false},
     0x80000001,
     5,
     -3,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = -2147483647, ulSLotEnd = -2147483648"},

    // The lists.
    {"FirstSlotWithoutLists", kNotLoaded, 1, 5, -10,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 1, pstSlotArray = 0x0"},
    {"LastSlotWithoutLists", kNotLoaded, 14, 0, -10,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = 14, pstSlotArray = 0x0"},
    {"LargestSlotWithoutLists",
     {.last_slot = 0xffffffff, .are_loaded = false},
     0xffffffff,
     5,
     -10,
     "\r\nddCanBoardPlugInSlot err! ulSlotOut = -1, pstSlotArray = 0x0"},

    // The boards.
    {"FirstBoardOfTheFirstSlot", kThreeSlots, 1, 5, 0},
    {"LastBoardOfTheFirstSlot", kThreeSlots, 1, 6, 0},
    {"FirstBoardOfAFullRow", kThreeSlots, 2, 501, 0},
    {"LastBoardOfAFullRow", kThreeSlots, 2, 600, 0},
    {"FirstBoardOfTheLastSlot", kThreeSlots, 3, 7, 0},
    {"BehindATypeZero", kThreeSlots, 3, 8, 0},
    {"LargeType", kThreeSlots, 3, 0x80000006, 0},
    {"TypeIn16Bits", kThreeSlots, 3, 5, -18},
    {"TypeIn31Bits", kThreeSlots, 3, 6, -18},
    {"InFrontOfAFullRow", kThreeSlots, 2, 500, -18},
    {"BehindAFullRow", kThreeSlots, 2, 601, -18},
    {"BoardOfTheSlotBefore", kThreeSlots, 1, 9, -18},
    {"BoardOfTheNextSlot", kThreeSlots, 2, 7, -18},
    {"FirstBoardOfTheNextSlot", kThreeSlots, 1, 501, -18},
    {"LargestType", kThreeSlots, 1, 0xffffffff, -18},
    {"TypeZeroInARow", kThreeSlots, 1, 0, 0},
    {"TypeZeroInAFullRow", kThreeSlots, 2, 0, -18},
    {"TypeZeroInAnEmptyRow", {.last_slot = 1}, 1, 0, 0},
    {"TypeInAnEmptyRow", {.last_slot = 1}, 1, 5, -18},
    {"TypeZeroAtTheEndOfARow", {.last_slot = 1, .rows = {{1, NumbersFrom(501, 99)}}}, 1, 0, 0},
};

class PlugIn : public test::SlotBoardsTest, public testing::WithParamInterface<PlugInRow> {};

TEST_P(PlugIn, ByType) {
  Put(GetParam().boards);
  AskTwice(GetParam().text, [] {
    uint32_t output = kUntouched;
    EXPECT_EQ(ddCanBoardPlugInSlotByType(GetParam().slot, GetParam().type, &output),
              GetParam().code);
    EXPECT_EQ(output, GetParam().code == 0 ? 1u : 0u);
  });
}

INSTANTIATE_TEST_SUITE_P(Boards, PlugIn, testing::ValuesIn(kPlugIns),
                         testing::PrintToStringParamName());

// ---- All slots -------------------------------------------------------------------------

constexpr uint32_t kAskedTypes[] = {0, 1, 597, 598, 599, 623, 624, 0x10256, 0x80000256, 0xffffffff};

class AllSlots : public test::SlotBoardsTest {};

TEST_F(AllSlots, PlugInByType) {
  for (const Boards& boards : test::kFrames) {
    Put(boards);
    for (const uint32_t slot : kAskedSlots) {
      for (const uint32_t type : kAskedTypes) {
        SCOPED_TRACE("type " + std::to_string(type) + " in " + std::to_string(slot) + " of " +
                     std::to_string(boards.last_slot));
        test::Refusal expected;
        if (slot != 801 || type != 624) {
          expected = RefusalOf(boards, slot);
          if (expected.code == 0 && !IsListed(slot, type)) {
            expected.code = -18;
          }
        }
        AskTwice(expected.text, [&] {
          uint32_t output = kUntouched;
          EXPECT_EQ(ddCanBoardPlugInSlotByType(slot, type, &output), expected.code);
          EXPECT_EQ(output, expected.code == 0 ? 1u : 0u);
        });
      }
    }
  }
}

TEST_F(AllSlots, NullOutputBeforeAnything) {
  for (const Boards& boards : test::kFrames) {
    Put(boards);
    for (const uint32_t slot : {0u, 1u, 14u, 801u}) {
      for (const uint32_t type : {0u, 598u, 624u}) {
        AskTwice("\r\nddCanBoardPlugInSlot err! pulCanPlugIn = 0x0",
                 [=] { EXPECT_EQ(ddCanBoardPlugInSlotByType(slot, type, nullptr), -2); });
      }
    }
  }
}

}  // namespace
