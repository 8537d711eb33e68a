// All builders of lists of logic ports as rows: what they take, their limits, codes and
// texts.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_answers.h"
#include "catalog/frame/logic_port_lists.h"

namespace test {

// The rows give what is peculiar.
struct Builder {
  const char* name;
  std::string function;  // as the texts name it
  int32_t (*ask)(uint32_t slot, uint32_t port, uint32_t* array, uint32_t room, uint32_t* count);

  // What it answers; which entries it takes, if that is all, and their numbers.
  ListAnswer (*expected)(const Builder& builder, const ListQuestion& question,
                         uint32_t room) = ListingOfTaken;
  bool (*takes)(const ListQuestion& question, uint32_t index) = nullptr;
  uint32_t (*number)(uint32_t index) = PlainNumberOf;

  bool is_of_slot = false;       // the slot matters
  bool asks_card_first = false;  // before it looks at the count of entries
  bool counts_first = false;     // and writes nothing when there is not enough room
  bool clears_count = false;     // when there is not enough room
  uint32_t taken_flag = 1;       // of entries that it takes for slot 5 and port 3

  // Of the map that it walks: its count, the most entries, the code for more of them.
  uint32_t FrameInformation::*entries = &FrameInformation::ulSwitchChipLogicPortNum;
  uint32_t limit = 1280;
  int32_t above_limit_code = -22;

  // {array}, {count}: the pointers; {entries}; {room}, {found}: numbers.
  std::string null_argument =
      "\r\n{function} err! pulChipLogicPort = {array}, pulChipPortCnt = {count}";
  std::string above_limit = "\r\n{function} err! ulSwitchChipLogicPortNum = {entries}";
  std::string too_small =
      "\r\n{function} err! the range of list is small! ulPortListCnt = {room}, realCnt = {found}.";
  std::string empty =
      "\r\n{function} err! the range of list is small! ulPortListCnt = {room}, realCnt = 0.";
  int32_t empty_code = -3;

  // One of the texts, with the function.
  std::string Shown(const std::string& text) const { return With(text, "{function}", function); }

  friend std::ostream& operator<<(std::ostream& out, const Builder& builder) {
    return out << builder.name;
  }
};

const std::vector<Builder>& Builders();
const Builder& BuilderOf(const std::string& name);

// ---- Tests of them ------------------------------------------------------------------

class BuildersTest : public LogicPortListsTest {
 protected:
  AskList Asking(const Builder& builder, uint32_t slot, uint32_t port, uint32_t room) {
    return [&builder, slot, port, room](uint32_t* array, uint32_t* count) {
      return builder.ask(slot, port, array, room, count);
    };
  }

  // What the plain computation gives, with the debug switch off and on.
  void ExpectComputed(const Builder& builder, uint32_t slot, uint32_t port, uint32_t room) {
    ExpectAnswer(builder.expected(builder, {slot, port}, room), Asking(builder, slot, port, room));
  }

  // Slot 5 is an uplink slot and has a card of both kinds; slot 6 is a service slot.
  static void PutSlotFive() {
    PutSlots(&FrameInformation::stRealSlot, {5});
    PutSlots(&FrameInformation::stUplinkSlot, {4, 5});
    PutSlots(&FrameInformation::stServeBoardSlot, {6});
    PutCard(5, {.name = "", .type = 3204, .is_ethernet = true, .is_uplink = true});
  }
};

class BuilderTest : public BuildersTest, public testing::WithParamInterface<Builder> {
 protected:
  using BuildersTest::ExpectAnswer;
  void ExpectAnswer(const ListAnswer& expected, uint32_t slot, uint32_t port, uint32_t room) {
    ExpectAnswer(expected, Asking(GetParam(), slot, port, room));
  }
};

// ---- Maps ---------------------------------------------------------------------------

// What entries may be like in generated maps.
struct Choices {
  std::vector<uint32_t> slots;
  std::vector<uint32_t> ports;
  std::vector<uint32_t> flags = {0, 1, 2, 255};
};

// Both maps with entries that are the same in every run. The entries behind them are
// those of slot 5 and port 3.
void PutGenerated(const Choices& choices, uint32_t plain, uint32_t type2);

}  // namespace test
