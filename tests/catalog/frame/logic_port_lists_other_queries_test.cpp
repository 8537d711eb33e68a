// What builders of lists of logic ports ask other queries, and what those print.
#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"
#include "support/type2_numbers.h"

namespace {

using std::string;
using std::vector;
using test::ArrayFor;
using test::BalancePortOf;
using test::ListAnswer;
using test::LogicPortOf;
using test::PutBalancePorts;
using test::PutLogicPorts;
using test::PutSlots;

class AskedOfQueries : public test::BuildersTest {
 protected:
  // Of slot 5 and port 3, with all that is printed.
  void Expect(const char* builder, const ListAnswer& expected, uint32_t room) {
    ExpectAnswer(expected, Asking(test::BuilderOf(builder), 5, 3, room), Lines::kAll);
  }

  // 60 entries, 58 of which have numbers.
  static ListAnswer SixtyType2Ports() {
    ListAnswer answer{.array = ArrayFor(60), .count = 60};
    for (uint32_t i = 0; i < 58; ++i) {
      answer.array[i] = test::Type2NumberOf(i);
    }
    answer.text =
        "\r\nget_balance_switch_logicport_portno_from_index err! ulChipIndex = 58, max switchIndex = 57"
        "\r\nget_balance_switch_logicport_portno_from_index err! ulChipIndex = 59, max switchIndex = 57";
    return answer;
  }
};

TEST_F(AskedOfQueries, NumbersOfType2Ports) {
  PutBalancePorts(vector(60, BalancePortOf(5, 3, 0, 0, 1)));
  for (const char* const builder : {"BalanceOfSlot", "BalanceOfSlotPort", "Higig"}) {
    Expect(builder, SixtyType2Ports(), 60);
  }
}

// The numbered ones are elsewhere: places are counted, and left alone.
TEST_F(AskedOfQueries, NumbersOfUnnumberedType2PortsOnly) {
  vector<test::BalancePort> ports(57, BalancePortOf(8, 3));
  ports.resize(60, BalancePortOf(5, 3, 0, 0, 1));
  PutBalancePorts(ports);
  ListAnswer expected = {.array = ArrayFor(3), .count = 3, .text = SixtyType2Ports().text};
  expected.array[0] = 201;
  for (const char* const builder : {"BalanceOfSlot", "BalanceOfSlotPort", "Higig"}) {
    Expect(builder, expected, 3);
  }
}

// A list may be full of places that are left alone.
TEST_F(AskedOfQueries, NumbersOfMoreUnnumberedType2PortsThanRoom) {
  vector<test::BalancePort> ports(58, BalancePortOf(8, 3));
  ports.resize(61, BalancePortOf(5, 3, 0, 0, 1));
  PutBalancePorts(ports);
  const string numbers = SixtyType2Ports().text;
  Expect(
      "BalanceOfSlot",
      {.code = -9,
       .array = ArrayFor(2),
       .text =
           numbers +
           "\r\nget_balance_switch_logicportlist_from_slot err! the range of list is small! ulPortListCnt = 2, realCnt = 2."},
      2);
  Expect(
      "BalanceOfSlotPort",
      {.code = -9,
       .array = ArrayFor(2),
       .text =
           numbers +
           "\r\nget_balance_switch_logicportlist_from_slotport err! the range of list is small! ulPortListCnt = 2, realCnt = 2."},
      2);
  Expect(
      "Higig",
      {.code = -9,
       .array = ArrayFor(2),
       .text =
           numbers +
           "\r\nget_higicport_balance_switch_logicportlist err! the range of list is small! ulPortListCnt = 2, realCnt = 2."},
      2);
}

TEST_F(AskedOfQueries, IsItAnUplinkSlot) {
  PutCard(5, test::kUplinkCard);
  PutLogicPorts({LogicPortOf(5, 3), LogicPortOf(5, 3)});
  PutSlots(&FrameInformation::stUplinkSlot, {4});
  Expect(
      "UplinkOfSlot",
      {.code = -3,
       .array = ArrayFor(2),
       .count = 0,
       .text =
           "\r\nddIsUplinkBoardSlot->ddIsSlotInSlotList err! iResult = -4, ulSlotOut = 5"
           "\r\nddGetUplinkPortLogicPortListFromSlot err! the range of list is small! ulPortListCnt = 2, realCnt = 0."},
      2);
}

TEST_F(AskedOfQueries, IsItAnUplinkSlotOfACorruptClass) {
  PutCard(5, test::kUplinkCard);
  PutLogicPorts({LogicPortOf(5, 3), LogicPortOf(5, 3)});
  PutSlots(&FrameInformation::stUplinkSlot, {5});
  gstFrame.stUplinkSlot.ulSlotAmount = 101;
  Expect(
      "UplinkOfSlot",
      {.code = -3,
       .array = ArrayFor(2),
       .count = 0,
       .text =
           "\r\nddGetBoardSlotList err! ulSlotAmount = 101, MAX_SLOT_END = 100, ulSlotAmount = 101"
           "\r\nddIsUplinkBoardSlot->ddIsSlotInSlotList err! iResult = -25, ulSlotOut = 5"
           "\r\nddGetUplinkPortLogicPortListFromSlot err! the range of list is small! ulPortListCnt = 2, realCnt = 0."},
      2);
}

}  // namespace
