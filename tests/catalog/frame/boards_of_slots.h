// The boards that slots take as a query may find them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "support/asking.h"
#include "support/numbers.h"
#include "support/text.h"
#include "sys_context/frame.h"

namespace test {

// The boards that a slot takes.
struct BoardsOfSlot {
  uint32_t slot;
  std::vector<uint32_t> types;
};

// Those of all slots; the other rows are empty.
struct Boards {
  uint32_t last_slot = 0;
  std::vector<BoardsOfSlot> rows = {};
  bool are_loaded = true;
};

inline const std::vector<uint32_t> kFullRow = NumbersFrom(501, 100);
inline const Boards kEmptyFrame = {.are_loaded = false};
inline const Boards kNotLoaded = {.last_slot = 14, .are_loaded = false};
inline const Boards kFrames[] = {
    kEmptyFrame,
    kNotLoaded,
    {.last_slot = 14,
     .rows = {{0, {598}},
              {1, {598}},
              {2, {1, 598}},
              {3, kFullRow},
              {4, {597, 599, 0x10256}},
              {5, NumbersFrom(499, 100)},
              {6, NumbersFrom(598, 100)},
              {7, NumbersFrom(498, 100)},
              {8, {0, 0, 598}},
              {9, {0x80000256}},
              {14, {598}}}},
    {.last_slot = 100, .rows = {{50, {624, 598}}, {100, {598}}}},
    {.last_slot = 801, .rows = {{100, {598}}, {101, {598}}, {801, {1}}}},
};

// What is refused before the slot's boards are looked at.
struct Refusal {
  int32_t code = 0;
  std::string text = "";
};
inline Refusal RefusalOf(const Boards& boards, uint32_t slot) {
  if (slot == 0 || slot > boards.last_slot) {
    return {-3, "\r\nddCanBoardPlugInSlot err! ulSlotOut = " + Signed(slot) +
                    ", ulSLotEnd = " + Signed(boards.last_slot)};
  }
  if (!boards.are_loaded) {
    return {-10,
            "\r\nddCanBoardPlugInSlot err! ulSlotOut = " + Signed(slot) + ", pstSlotArray = 0x0"};
  }
  return {};
}

class SlotBoardsTest : public AskingTest {
 protected:
  void TearDown() override {
    gstFrame.pstSlotArray = nullptr;
    AskingTest::TearDown();
  }

  void Put(const Boards& boards) {
    gstFrame.stRealSlot.ulSlotEnd = boards.last_slot;
    rows_.clear();
    if (boards.are_loaded) {
      rows_.resize(boards.last_slot + 1);
    }
    for (const BoardsOfSlot& row : boards.rows) {
      std::copy(row.types.begin(), row.types.end(), rows_.at(row.slot).aulBoardType);
    }
    gstFrame.pstSlotArray = boards.are_loaded ? rows_.data() : nullptr;
  }

  // In a row that is not full, type 0 is listed too.
  bool IsListed(uint32_t slot, uint32_t type) const {
    const auto& row = rows_.at(slot).aulBoardType;
    return std::count(std::begin(row), std::end(row), type) != 0;
  }

 private:
  std::vector<SlotSupportBoard> rows_;
};

}  // namespace test
