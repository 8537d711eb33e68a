// The rows of the builders, and generated maps.
#include "catalog/frame/logic_port_list_builders.h"

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/type2_numbers.h"

namespace test {
namespace {

const LogicPort& Plain(uint32_t index) {
  return gstFrame.astSwitchChipLogicPort[index];
}

const BalancePort& Type2(uint32_t index) {
  return gstFrame.astType2SwitchChipLogicPort[index];
}

// Builders that are asked for a slot, and such that are asked for nothing.
template <int32_t (*kList)(uint32_t slot, uint32_t* array, uint32_t room, uint32_t* count)>
int32_t OfSlot(uint32_t slot, uint32_t, uint32_t* array, uint32_t room, uint32_t* count) {
  return kList(slot, array, room, count);
}

template <int32_t (*kList)(uint32_t* array, uint32_t room, uint32_t* count)>
int32_t OfAll(uint32_t, uint32_t, uint32_t* array, uint32_t room, uint32_t* count) {
  return kList(array, room, count);
}

constexpr auto kType2Entries = &FrameInformation::ulType2SwitchChipLogicPortNum;

const std::vector<Builder> kBuilders = {
    {.name = "OfSlotPort",
     .function = "get_switch_logicportlist_from_slotport",
     .ask = get_switch_logicportlist_from_slotport,
     .takes =
         [](const ListQuestion& question, uint32_t i) {
           return Plain(i).ucSlotOut == question.slot && Plain(i).ucSlotPort == question.port &&
                  (question.has_ethernet_card ? Plain(i).ucSlotFlag == 1
                                              : Plain(i).ucSlotFlag != 1);
         },
     .is_of_slot = true},
    {.name = "OfSlot",
     .function = "get_switch_logicportlist_from_slot",
     .ask = OfSlot<get_switch_logicportlist_from_slot>,
     .expected = ListingOfSlot,
     .is_of_slot = true,
     .asks_card_first = true},
    {.name = "BalanceOfSlot",
     .function = "get_balance_switch_logicportlist_from_slot",
     .ask = OfSlot<get_balance_switch_logicportlist_from_slot>,
     .takes = [](const ListQuestion& question,
                 uint32_t i) { return Type2(i).ucSlotOut == question.slot; },
     .number = Type2NumberOf,
     .is_of_slot = true,
     .entries = kType2Entries},
    {.name = "BalanceOfSlotPort",
     .function = "get_balance_switch_logicportlist_from_slotport",
     .ask = get_balance_switch_logicportlist_from_slotport,
     .takes =
         [](const ListQuestion& question, uint32_t i) {
           return Type2(i).ucSlotOut == question.slot && Type2(i).ucSlotPort == question.port;
         },
     .number = Type2NumberOf,
     .is_of_slot = true,
     .entries = kType2Entries,
     .limit = 128},
    {.name = "Higig",
     .function = "get_higicport_balance_switch_logicportlist",
     .ask = OfAll<get_higicport_balance_switch_logicportlist>,
     .takes = [](const ListQuestion&, uint32_t i) { return Type2(i).ucHigigFlag == 1; },
     .number = Type2NumberOf,
     .entries = kType2Entries,
     .null_argument = "\r\n{function} err! pulHigigPortList = {array}, pulChipPortCnt = {count}",
     .empty = "\r\n{function} err! the system has no higig port! realCnt = 0.",
     .empty_code = -36},
    {.name = "UplinkOfSlot",
     .function = "ddGetUplinkPortLogicPortListFromSlot",
     .ask = OfSlot<ddGetUplinkPortLogicPortListFromSlot>,
     .takes =
         [](const ListQuestion& question, uint32_t i) {
           return question.is_uplink_slot && question.has_uplink_card &&
                  Plain(i).ucSlotOut == question.slot && Plain(i).ucSlotPort > 0;
         },
     .is_of_slot = true},
    {.name = "UplinkOnly",
     .function = "ddGetUplinkLogicPortListOnly",
     .ask = OfAll<ddGetUplinkLogicPortListOnly>,
     .takes = [](const ListQuestion&,
                 uint32_t i) { return Plain(i).ucSlotPort > 0 && Plain(i).ucSlotFlag != 1; },
     .taken_flag = 0,
     .null_argument =
         "\r\n{function}: pointer is null! pulSlotArray = {array}, pulPortAmount = {count}\r\n",
     .too_small =
         "\r\n{function}: array space is not enough! ulArrayAmount = {room}, ulUplinkLogicPortCount = {found}"},
    {.name = "NonzeroPort",
     .function = "ddGetNonzeroPortSwitchChipLogicPortList",
     .ask = OfAll<ddGetNonzeroPortSwitchChipLogicPortList>,
     .expected = ListingOfNonzeroPorts,
     .counts_first = true,
     .too_small = "\r\n{function} err! ulArrayAmount = {room}, ulChipLogicPortCount = {found}"},
    // Speaks of the one above.
    {.name = "AllUserPort",
     .function = "ddGetNonzeroPortSwitchChipLogicPortList",
     .ask = OfAll<ddGetAllUserPortSwitchChipLogicPortList>,
     .takes =
         [](const ListQuestion&, uint32_t i) {
           return Plain(i).ucSlotOut > 0 || Plain(i).ucSlotPort > 0 || Plain(i).ucSlotFlag > 0;
         },
     .counts_first = true,
     .too_small = "\r\n{function} err! ulArrayAmount = {room}, ulChipLogicPortCount = {found}"},
    {.name = "BalanceUserPort",
     .function = "get_balance_user_port_switch_logicportlist",
     .ask = OfAll<get_balance_user_port_switch_logicportlist>,
     .takes =
         [](const ListQuestion&, uint32_t i) {
           const uint32_t slot = Type2(i).ucSlotOut;
           return IsInClass(&FrameInformation::stUplinkSlot, slot) ||
                  (IsInClass(&FrameInformation::stServeBoardSlot, slot) &&
                   Type2(i).ucSlotPort == 0);
         },
     .counts_first = true,
     .clears_count = true,
     .entries = kType2Entries,
     .limit = 128,
     .above_limit_code = -24,
     .above_limit =
         "\r\n{function} err! ulSwitchChipLogicPortNum = {entries}, MAX_TYPEB_SWITCH_CHIP_LOGIC_PORT_NUM = 128",
     .too_small =
         "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulArrayAmount = {room}, ulChipLogicPortCount = {found}"},
    {.name = "Uplink",
     .function = "ddGetUplinkLogicPortList",
     .ask = OfAll<ddGetUplinkLogicPortList>,
     .expected = ListingOfUplinks,
     .counts_first = true,
     .null_argument =
         "\r\n{function}: pointer is null! pulSlotArray = {array}, pulPortAmount = {count}\r\n",
     .above_limit = "\r\n{function}: SwitchChipLogicPortNum({entries}) is out of range(1280)!\r\n",
     .too_small =
         "\r\n{function}: array space is not enough! ulArrayAmount = {room}, ulUplinkLogicPortCount = {found}",
     .empty = "",
     .empty_code = 0},
};

}  // namespace

const std::vector<Builder>& Builders() {
  return kBuilders;
}

const Builder& BuilderOf(const std::string& name) {
  for (const Builder& builder : kBuilders) {
    if (builder.name == name) {
      return builder;
    }
  }
  throw std::logic_error("no such builder: " + name);
}

void PutGenerated(const Choices& choices, uint32_t plain, uint32_t type2) {
  std::mt19937 random(plain * 2000 + type2);
  const auto any = [&](const std::vector<uint32_t>& of) { return of[random() % of.size()]; };
  std::vector<LogicPort> ports(plain);
  for (LogicPort& port : ports) {
    const uint32_t slot = any(choices.slots), number = any(choices.ports);
    port = LogicPortOf(slot, number, any(choices.flags));
  }
  PutLogicPorts(ports, LogicPortOf(5, 3, 1));
  std::vector<BalancePort> balance_ports(type2);
  for (BalancePort& port : balance_ports) {
    const uint32_t slot = any(choices.slots), number = any(choices.ports);
    port = BalancePortOf(slot, number, 0, 0, any(choices.flags));
  }
  PutBalancePorts(balance_ports, BalancePortOf(5, 3, 0, 0, 1));
}

}  // namespace test
