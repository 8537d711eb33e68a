// The plain computation of lists of logic ports.
#include "catalog/frame/logic_port_list_answers.h"

#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"

namespace test {
namespace {

std::string Filled(const std::string& text, uint32_t room, size_t found) {
  return With(With(text, "{room}", Signed(room)), "{found}", std::to_string(found));
}

const LogicPort& Plain(uint32_t index) {
  return gstFrame.astSwitchChipLogicPort[index];
}

}  // namespace

uint32_t PlainNumberOf(uint32_t index) {
  const uint32_t count = gstFrame.ulSwitchChipLogicPortNum;
  return count <= 1280 && index < count ? index + 1 : 0;
}

ListAnswer Listing(const Builder& builder, const std::vector<uint32_t>& numbers, uint32_t room) {
  ListAnswer answer{.array = ArrayFor(room)};
  const bool fits = numbers.size() <= room;
  for (size_t i = 0; i < numbers.size() && i < room && (fits || !builder.counts_first); ++i) {
    answer.array[i] = numbers[i] != 0 ? numbers[i] : kUntouched;
  }
  if (!fits) {
    answer.code = -9;
    answer.count = builder.clears_count ? 0 : kUntouched;
    answer.text = Filled(builder.Shown(builder.too_small), room,
                         builder.counts_first ? numbers.size() : room);
    return answer;
  }
  answer.count = static_cast<uint32_t>(numbers.size());
  if (numbers.empty()) {
    answer.code = builder.empty_code;
    answer.text = Filled(builder.Shown(builder.empty), room, 0);
  }
  return answer;
}

ListAnswer ListingOfTaken(const Builder& builder, const ListQuestion& question, uint32_t room) {
  std::vector<uint32_t> numbers;
  for (uint32_t i = 0; i < gstFrame.*builder.entries; ++i) {
    if (builder.takes(question, i)) {
      numbers.push_back(builder.number(i));
    }
  }
  return Listing(builder, numbers, room);
}

ListAnswer ListingOfSlot(const Builder& builder, const ListQuestion& question, uint32_t room) {
  ListAnswer answer{.array = ArrayFor(room)};
  if (question.card_type <= 0) {
    answer.code = question.card_type;
    answer.text =
        "\r\nget_switch_logicportlist_from_slot err! get_config_card_type failed! ret = " +
        std::to_string(question.card_type);
    return answer;
  }
  std::vector<uint32_t> numbers;
  for (uint32_t i = 0; i < gstFrame.ulSwitchChipLogicPortNum; ++i) {
    const uint32_t flag = question.has_ethernet_card ? 1 : 0;
    if (Plain(i).ucSlotOut != question.slot || Plain(i).ucSlotFlag != flag) {
      continue;
    }
    if (numbers.size() == room) {  // also when the entry would be skipped
      numbers.push_back(i + 1);
      return Listing(builder, numbers, room);
    }
    const bool is_only =
        !question.has_ethernet_card &&
        (!question.is_uplink_slot || (!question.has_uplink_card && Plain(i).ucSlotPort == 0));
    if (is_only) {
      answer.array[numbers.size()] = i + 1;
      answer.count = 1;
      return answer;
    }
    if (question.has_ethernet_card || (question.has_uplink_card && Plain(i).ucSlotPort > 0)) {
      numbers.push_back(i + 1);
    }
  }
  return Listing(builder, numbers, room);
}

ListAnswer ListingOfNonzeroPorts(const Builder& builder, const ListQuestion&, uint32_t room) {
  std::vector<uint32_t> numbers;
  for (uint32_t i = 0; i < gstFrame.ulSwitchChipLogicPortNum; ++i) {
    if (Plain(i).ucSlotPort == 0) {
      continue;
    }
    if (Plain(i).ucSlotOut == 0) {
      return {.code = -3,
              .array = ArrayFor(room),
              .text = "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulChipLogicPortIndex = " +
                      std::to_string(i) +
                      ", ulSlotOut = 0, ulSlotPort = " + std::to_string(Plain(i).ucSlotPort)};
    }
    numbers.push_back(i + 1);
  }
  return Listing(builder, numbers, room);
}

ListAnswer ListingOfUplinks(const Builder& builder, const ListQuestion&, uint32_t room) {
  std::vector<uint32_t> numbers;
  for (uint32_t place = 0; place < gstFrame.stRealSlot.ulSlotAmount; ++place) {
    const ListQuestion real(gstFrame.stRealSlot.ucSlotArray[place], 0);
    if (!real.has_ethernet_card && !real.has_uplink_card) {
      continue;
    }
    for (uint32_t i = 0; i < gstFrame.ulSwitchChipLogicPortNum; ++i) {
      if (Plain(i).ucSlotOut == real.slot && Plain(i).ucSlotPort > 0 &&
          Plain(i).ucSlotFlag == (real.has_ethernet_card ? 1 : 0) && numbers.size() < 1280) {
        numbers.push_back(i + 1);
      }
    }
  }
  return Listing(builder, numbers, room);
}

}  // namespace test
