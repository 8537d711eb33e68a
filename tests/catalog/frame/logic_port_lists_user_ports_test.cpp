// Lists of the logic ports of all users.
#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"

namespace {

using std::string;
using std::vector;
using test::ArrayFor;
using test::BalancePort;
using test::BalancePortOf;
using test::ListAnswer;
using test::LogicPort;
using test::LogicPortOf;
using test::PutBalancePorts;
using test::PutLogicPorts;
using test::PutSlots;

class UserPortsTest : public test::BuildersTest {
 protected:
  using Ask = int32_t (*)(uint32_t* array, uint32_t room, uint32_t* count);

  void Expect(Ask ask, const ListAnswer& expected, uint32_t room, Lines lines) {
    ExpectAnswer(
        expected, [=](uint32_t* array, uint32_t* count) { return ask(array, room, count); }, lines);
  }

  // A number 0 leaves its place alone.
  void ExpectListed(Ask ask, const vector<uint32_t>& numbers, uint32_t room, Lines lines) {
    ListAnswer expected{.array = ArrayFor(room), .count = static_cast<uint32_t>(numbers.size())};
    for (size_t i = 0; i < numbers.size(); ++i) {
      expected.array[i] = numbers[i] != 0 ? numbers[i] : expected.array[i];
    }
    Expect(ask, expected, room, lines);
  }
};

// ---- A user port without slot -------------------------------------------------------

struct CorruptRow {
  const char* name;
  vector<LogicPort> entries;
  string text;  // empty: the list is not corrupt
  vector<uint32_t> numbers = {};
  friend std::ostream& operator<<(std::ostream& out, const CorruptRow& row) {
    return out << row.name;
  }
};

const CorruptRow kCorrupt[] = {
    {"First",
     {LogicPortOf(0, 3), LogicPortOf(5, 3)},
     "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulChipLogicPortIndex = 0, ulSlotOut = 0, ulSlotPort = 3"},
    {"Last",
     {LogicPortOf(5, 3), LogicPortOf(5, 4), LogicPortOf(0, 255, 1)},
     "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulChipLogicPortIndex = 2, ulSlotOut = 0, ulSlotPort = 255"},
    {"FirstOfTwo",
     {LogicPortOf(5, 3), LogicPortOf(0, 1, 2), LogicPortOf(0, 2)},
     "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulChipLogicPortIndex = 1, ulSlotOut = 0, ulSlotPort = 1"},
    {"BehindAFreeEntry",
     {LogicPortOf(0, 0), LogicPortOf(0, 0, 1), LogicPortOf(0, 7)},
     "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulChipLogicPortIndex = 2, ulSlotOut = 0, ulSlotPort = 7"},
    {"FreeEntry", {LogicPortOf(0, 0), LogicPortOf(5, 3)}, "", {2}},
    {"FreeEntryWithFlag", {LogicPortOf(5, 3), LogicPortOf(0, 0, 1)}, "", {1}},
    {"BehindTheCount", {LogicPortOf(5, 3)}, "", {1}},
};

class UserPortWithoutSlot : public UserPortsTest, public testing::WithParamInterface<CorruptRow> {
 protected:
  void SetUp() override {
    UserPortsTest::SetUp();
    PutLogicPorts(GetParam().entries, LogicPortOf(0, 3));
  }
};

TEST_P(UserPortWithoutSlot, MakesTheListCorrupt) {
  for (const uint32_t room : {4u, 1u}) {
    if (!GetParam().text.empty()) {
      Expect(ddGetNonzeroPortSwitchChipLogicPortList,
             {.code = -3, .array = ArrayFor(room), .text = GetParam().text}, room, Lines::kAll);
    } else {
      ExpectListed(ddGetNonzeroPortSwitchChipLogicPortList, GetParam().numbers, room, Lines::kAll);
    }
  }
}

// Not even one number fits.
TEST_P(UserPortWithoutSlot, BeforeALackOfRoom) {
  ListAnswer expected{.code = -3, .array = ArrayFor(0), .text = GetParam().text};
  if (expected.text.empty()) {
    expected.code = -9;
    expected.text =
        "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulArrayAmount = 0, ulChipLogicPortCount = 1";
  }
  Expect(ddGetNonzeroPortSwitchChipLogicPortList, expected, 0, Lines::kAll);
}

INSTANTIATE_TEST_SUITE_P(All, UserPortWithoutSlot, testing::ValuesIn(kCorrupt),
                         testing::PrintToStringParamName());

using UserPorts = UserPortsTest;

// No entry is corrupt there.
TEST_F(UserPorts, AllThatAreNotFree) {
  PutLogicPorts({LogicPortOf(0, 0), LogicPortOf(0, 3), LogicPortOf(5, 0), LogicPortOf(0, 0, 1),
                 LogicPortOf(0, 0), LogicPortOf(0, 0, 255), LogicPortOf(255, 0),
                 LogicPortOf(0, 255), LogicPortOf(0, 0)},
                LogicPortOf(5, 3));
  ExpectListed(ddGetAllUserPortSwitchChipLogicPortList, {2, 3, 4, 6, 7, 8}, 6, Lines::kAll);
}

// ---- Type-2 ports -------------------------------------------------------------------

struct BalanceRow {
  const char* name;
  BalancePort entry;
  bool is_taken;
  friend std::ostream& operator<<(std::ostream& out, const BalanceRow& row) {
    return out << row.name;
  }
};

// Slots 5 and 7 are uplink slots, 6 and 7 service slots.
const BalanceRow kBalanceRows[] = {
    {"LinkOfUplinkSlot", BalancePortOf(5, 0), true},
    {"PortOfUplinkSlot", BalancePortOf(5, 3), true},
    {"HighPortOfUplinkSlot", BalancePortOf(5, 255), true},
    {"LinkOfServiceSlot", BalancePortOf(6, 0), true},
    {"PortOfServiceSlot", BalancePortOf(6, 1), false},
    {"HighPortOfServiceSlot", BalancePortOf(6, 128), false},
    {"LinkOfBoth", BalancePortOf(7, 0), true},
    {"PortOfBoth", BalancePortOf(7, 3), true},
    {"LinkOfAnotherSlot", BalancePortOf(8, 0), false},
    {"PortOfAnotherSlot", BalancePortOf(8, 3), false},
    {"NoSlot", BalancePortOf(0, 0), false},
    {"HigigPortOfAnotherSlot", BalancePortOf(8, 0, 1, 1, 1), false},
};

class BalanceUserPort : public UserPortsTest, public testing::WithParamInterface<BalanceRow> {};

TEST_P(BalanceUserPort, IsTaken) {
  PutLogicPorts(vector(9, LogicPortOf(1, 1)));
  PutSlots(&FrameInformation::stUplinkSlot, {5, 7});
  PutSlots(&FrameInformation::stServeBoardSlot, {7, 6});
  PutBalancePorts({BalancePortOf(8, 0), GetParam().entry, BalancePortOf(6, 0)},
                  BalancePortOf(5, 3));
  ExpectListed(get_balance_user_port_switch_logicportlist,
               GetParam().is_taken ? vector<uint32_t>{2, 3} : vector<uint32_t>{3}, 4, Lines::kOwn);
}

INSTANTIATE_TEST_SUITE_P(All, BalanceUserPort, testing::ValuesIn(kBalanceRows),
                         testing::PrintToStringParamName());

class BalanceUserPorts : public UserPortsTest {
 protected:
  void SetUp() override {
    UserPortsTest::SetUp();
    PutSlots(&FrameInformation::stUplinkSlot, {5});
    PutSlots(&FrameInformation::stServeBoardSlot, {5});
  }

  // All type-2 entries are taken; numbered are as many as there are plain ones.
  void ExpectNumbered(uint32_t type2, uint32_t plain, uint32_t numbered) {
    SCOPED_TRACE(std::to_string(type2) + " type-2 ports, " + std::to_string(plain));
    PutBalancePorts(vector(type2, BalancePortOf(5, 0)), BalancePortOf(5, 0));
    gstFrame.ulSwitchChipLogicPortNum = plain;
    vector<uint32_t> numbers = test::NumbersFrom(1, numbered);
    numbers.resize(type2, 0);
    ExpectListed(get_balance_user_port_switch_logicportlist, numbers, type2, Lines::kOwn);
  }
};

TEST_F(BalanceUserPorts, HaveTheNumbersOfPlainPorts) {
  ExpectNumbered(128, 1280, 128);
  ExpectNumbered(128, 128, 128);
  ExpectNumbered(128, 127, 127);
  ExpectNumbered(60, 57, 57);
  ExpectNumbered(60, 61, 60);
  ExpectNumbered(3, 2, 2);
  ExpectNumbered(3, 1, 1);
}

TEST_F(BalanceUserPorts, HaveNoNumbersWithoutPlainPorts) {
  ExpectNumbered(1, 0, 0);
  ExpectNumbered(128, 0, 0);
}

TEST_F(BalanceUserPorts, HaveNoNumbersWhereTheCountOfPlainPortsIsCorrupt) {
  for (const uint32_t plain : {1281u, 0x10003u, 0x80000003u, 0xffffffffu}) {
    ExpectNumbered(128, plain, 0);
  }
}

// Those that have no number are between those that have.
TEST_F(BalanceUserPorts, CountAlsoWithoutNumber) {
  PutLogicPorts({LogicPortOf(1, 1), LogicPortOf(1, 1), LogicPortOf(1, 1)});
  PutBalancePorts({BalancePortOf(8, 0), BalancePortOf(5, 0), BalancePortOf(8, 0),
                   BalancePortOf(5, 1), BalancePortOf(5, 2)});
  ExpectListed(get_balance_user_port_switch_logicportlist, {2, 0, 0}, 3, Lines::kOwn);
  Expect(
      get_balance_user_port_switch_logicportlist,
      {.code = -9,
       .array = ArrayFor(2),
       .count = 0,
       .text =
           "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulArrayAmount = 2, ulChipLogicPortCount = 3"},
      2, Lines::kOwn);
}

// What the other queries print is printed, too.
TEST_F(BalanceUserPorts, PrintWhichHasNoNumber) {
  PutLogicPorts({LogicPortOf(1, 1)});
  PutBalancePorts({BalancePortOf(5, 0), BalancePortOf(5, 0)});
  ListAnswer expected{
      .array = ArrayFor(2),
      .count = 2,
      .text =
          "\r\nget_switch_chip_logicport_portno_from_index err! ulChipIndex = 1, ulSwitchChipLogicPortNum = 1"};
  expected.array[0] = 1;
  Expect(get_balance_user_port_switch_logicportlist, expected, 2, Lines::kAll);
}

// Both classes are asked about each slot, and twice: to count and to list.
TEST_F(BalanceUserPorts, PrintWhichSlotsAreInNoClass) {
  PutLogicPorts(vector(9, LogicPortOf(1, 1)));
  PutSlots(&FrameInformation::stUplinkSlot, {6});
  PutBalancePorts({BalancePortOf(8, 0), BalancePortOf(6, 0), BalancePortOf(5, 0)});
  const string lines =
      "\r\nddIsServeBoardSlot->ddIsSlotInSlotList err! iResult = -4, ulSlotOut = 8"
      "\r\nddIsUplinkBoardSlot->ddIsSlotInSlotList err! iResult = -4, ulSlotOut = 8"
      "\r\nddIsServeBoardSlot->ddIsSlotInSlotList err! iResult = -4, ulSlotOut = 6"
      "\r\nddIsUplinkBoardSlot->ddIsSlotInSlotList err! iResult = -4, ulSlotOut = 5";
  ListAnswer expected{.array = ArrayFor(2), .count = 2, .text = lines + lines};
  expected.array = {2, 3};
  Expect(get_balance_user_port_switch_logicportlist, expected, 2, Lines::kAll);
}

TEST_F(BalanceUserPorts, CorruptClassesHaveNoSlot) {
  PutLogicPorts(vector(9, LogicPortOf(1, 1)));
  PutSlots(&FrameInformation::stServeBoardSlot, {6});
  PutBalancePorts({BalancePortOf(5, 0), BalancePortOf(6, 0)});
  gstFrame.stServeBoardSlot.ulSlotAmount = 101;
  ExpectListed(get_balance_user_port_switch_logicportlist, {1}, 2, Lines::kOwn);
  PutSlots(&FrameInformation::stServeBoardSlot, {6});
  gstFrame.stUplinkSlot.ulSlotAmount = 101;
  ExpectListed(get_balance_user_port_switch_logicportlist, {2}, 2, Lines::kOwn);
}

}  // namespace
