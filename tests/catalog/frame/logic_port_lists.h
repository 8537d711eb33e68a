// Builders of lists of logic ports: what they are asked, answer, write and print.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/cards.h"
#include "catalog/frame/logic_port_maps.h"
#include "catalog/frame/slot_classes.h"
#include "support/asking.h"
#include "support/text.h"
#include "sys_context/frame.h"

namespace test {

// ---- Slots and their cards ----------------------------------------------------------

// Where there is no card, the platform would take its answer for a card of both kinds.
inline constexpr Card kCards[] = {
    {.name = "NoCard", .type = -1, .is_ethernet = true, .is_uplink = true},
    {.name = "OtherFailure", .type = -37, .is_ethernet = true, .is_uplink = true},
    {.name = "FailureWithLowBits",
     .type = static_cast<int32_t>(0x80000007),
     .is_ethernet = true,
     .is_uplink = true},
    {.name = "Zero", .type = 0, .is_ethernet = true, .is_uplink = true},
    {.name = "First", .type = 1},
    {.name = "Other", .type = 3201},
    {.name = "Ethernet", .type = 3202, .is_ethernet = true},
    {.name = "Uplink", .type = 3203, .is_uplink = true},
    {.name = "EthernetUplink", .type = 3204, .is_ethernet = true, .is_uplink = true},
    {.name = "NegativeIn16Bits", .type = 0xfff0, .is_ethernet = true, .is_uplink = true},
};

// The slots of a class.
inline void PutSlots(SlotClass slots, const std::vector<uint32_t>& listed) {
  gstFrame.*slots = ClassOf({"Listed", listed});
}

inline bool IsInClass(SlotClass slots, uint32_t slot) {
  const SlotClassInformation& found = gstFrame.*slots;
  if (slot == 0 || found.ulSlotAmount > 100) {
    return false;
  }
  const uint32_t* const end = found.ucSlotArray + found.ulSlotAmount;
  return std::find(found.ucSlotArray, end, slot) != end;
}

// ---- One question ------------------------------------------------------------------

// The slot and port that a builder is asked for, and what is known of that slot.
struct ListQuestion {
  ListQuestion(uint32_t asked_slot, uint32_t asked_port) : slot(asked_slot), port(asked_port) {
    const FakePlatform& platform = FakePlatform::Get();
    const auto card = platform.configured_cards.find(slot);
    card_type = card == platform.configured_cards.end() ? platform.no_card : card->second;
    const auto type = static_cast<int16_t>(card_type);
    has_ethernet_card = card_type > 0 && platform.ethernet_cards.count(type) != 0;
    has_uplink_card = card_type > 0 && platform.uplink_cards.count(type) != 0;
    is_uplink_slot = IsInClass(&FrameInformation::stUplinkSlot, slot);
  }

  uint32_t slot;
  uint32_t port;
  int32_t card_type;
  bool has_ethernet_card;
  bool has_uplink_card;
  bool is_uplink_slot;
};

// Room for as many numbers, and some places behind them.
inline std::vector<uint32_t> ArrayFor(uint32_t room) {
  return std::vector<uint32_t>(std::min(room, 1300u) + 3, kUntouched);
}

struct ListAnswer {
  int32_t code = 0;
  std::vector<uint32_t> array;
  uint32_t count = kUntouched;
  std::string text = "";

  bool operator==(const ListAnswer&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const ListAnswer& answer) {
    return out << "code " << answer.code << ", " << answer.count << " of "
               << testing::PrintToString(answer.array) << ", \"" << answer.text << '"';
  }
};

// A text without the lines of the queries that the builders ask: they may be asked
// more than once.
inline std::string OwnLines(const std::string& text) {
  static const char* const kOthers[] = {
      "\r\nddIsUplinkBoardSlot",
      "\r\nddIsServeBoardSlot",
      "\r\nddGetBoardSlotList",
      "\r\nget_switch_chip_logicport_portno_from_index",
      "\r\nget_balance_switch_logicport_portno_from_index",
  };
  std::string own;
  for (size_t begin = 0, end = 0; begin < text.size(); begin = end) {
    end = std::min(text.find("\r\n", begin + 1), text.size());
    const std::string line = text.substr(begin, end - begin);
    const bool is_own = std::none_of(
        std::begin(kOthers), std::end(kOthers),
        [&](const char* other) { return line.compare(0, std::strlen(other), other) == 0; });
    own += is_own ? line : "";
  }
  return own;
}

class LogicPortListsTest : public AskingTest {
 protected:
  using AskList = std::function<int32_t(uint32_t* array, uint32_t* count)>;
  enum class Lines { kAll, kOwn };

  // Asks with the debug switch off and on: the text is printed with it only.
  void ExpectAnswer(const ListAnswer& expected, const AskList& ask, Lines lines = Lines::kOwn) {
    AskTwice("", [&] {
      ListAnswer shown = expected;
      shown.text = ddDebugPrint != 0 ? expected.text : "";
      EXPECT_EQ(AnswerTo(ask, expected.array.size(), lines), shown);
    });
  }

  // Takes the text from the console.
  ListAnswer AnswerTo(const AskList& ask, size_t size, Lines lines) {
    ListAnswer answer{.array = std::vector<uint32_t>(size, kUntouched)};
    answer.code = ask(answer.array.data(), &answer.count);
    answer.text = lines == Lines::kAll ? console_.Text() : OwnLines(console_.Text());
    return answer;
  }
};

}  // namespace test
