// Room for a list of logic ports: how much of the array is written.
#include <map>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"

namespace {

using std::string;
using std::vector;
using test::BalancePortOf;
using test::LogicPortOf;
using test::PutBalancePorts;
using test::PutLogicPorts;

// What each builder lists of the entries below for slot 5 and port 3.
const std::map<string, vector<uint32_t>> kListed = {
    {"OfSlotPort", {1, 7, 9}},
    {"OfSlot", {1, 5, 7, 8, 9}},
    {"BalanceOfSlot", {1, 2, 6, 8}},
    {"BalanceOfSlotPort", {1, 6, 8}},
    {"Higig", {1, 3, 7}},
    {"UplinkOfSlot", {1, 2, 4, 7, 8, 9, 12}},
    {"UplinkOnly", {2, 4, 12}},
    {"NonzeroPort", {1, 2, 3, 4, 7, 8, 9, 12}},
    {"AllUserPort", {1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12}},
    {"BalanceUserPort", {1, 2, 3, 6, 8, 9}},
    {"Uplink", {1, 7, 8, 9}},
};

class ListCapacity : public test::BuilderTest {
 protected:
  void SetUp() override {
    BuilderTest::SetUp();
    PutSlotFive();
  }

  static void PutEntries() {
    PutLogicPorts(
        {LogicPortOf(5, 3, 1), LogicPortOf(5, 3, 0), LogicPortOf(6, 3, 1), LogicPortOf(5, 3, 2),
         LogicPortOf(5, 0, 1), LogicPortOf(0, 0, 0), LogicPortOf(5, 3, 1), LogicPortOf(5, 4, 1),
         LogicPortOf(5, 3, 1), LogicPortOf(6, 0, 0), LogicPortOf(0, 0, 1), LogicPortOf(5, 3, 255)},
        LogicPortOf(5, 3, 1));
    PutBalancePorts(
        {BalancePortOf(5, 3, 0, 1, 1), BalancePortOf(5, 0, 1, 2, 0), BalancePortOf(6, 0, 0, 3, 1),
         BalancePortOf(6, 3, 1, 4, 2), BalancePortOf(7, 0, 0, 5, 0), BalancePortOf(5, 3, 1, 6, 255),
         BalancePortOf(0, 0, 0, 7, 1), BalancePortOf(5, 3, 1, 8, 0), BalancePortOf(4, 9, 0, 9, 0)},
        BalancePortOf(5, 3, 0, 0, 1));
  }

  void ExpectListed(const vector<uint32_t>& numbers, uint32_t room) {
    SCOPED_TRACE("room for " + std::to_string(room));
    ExpectAnswer(test::Listing(GetParam(), numbers, room), 5, 3, room);
  }
};

TEST_P(ListCapacity, OfEverySize) {
  PutEntries();
  const vector<uint32_t>& numbers = kListed.at(GetParam().name);
  for (uint32_t room = 0; room <= numbers.size() + 1; ++room) {
    ExpectListed(numbers, room);
  }
  for (const uint32_t room :
       {0x100u, 0x101u, 1280u, 0x10000u, 0x10001u, 0x80000000u, 0xffffffffu}) {
    ExpectListed(numbers, room);
  }
}

TEST_P(ListCapacity, OfAnEmptyList) {
  PutLogicPorts({}, LogicPortOf(5, 3, 1));
  PutBalancePorts({}, BalancePortOf(5, 3, 0, 0, 1));
  for (const uint32_t room : {0u, 1u, 1280u, 0xffffffffu}) {
    ExpectListed({}, room);
  }
}

// There are entries, but none of them is taken.
TEST_P(ListCapacity, OfAListWithoutMatch) {
  PutLogicPorts({LogicPortOf(0, 0, 0), LogicPortOf(0, 0, 0)}, LogicPortOf(5, 3, 1));
  PutBalancePorts({BalancePortOf(7, 3), BalancePortOf(6, 3, 0, 0, 2)},
                  BalancePortOf(5, 3, 0, 0, 1));
  for (const uint32_t room : {0u, 1u, 1280u, 0xffffffffu}) {
    ExpectListed({}, room);
  }
}

// All that builders take, to the last.
TEST_P(ListCapacity, OneLessThanTheMost) {
  PutLogicPorts(vector(1280, LogicPortOf(5, 3, GetParam().taken_flag)));
  PutBalancePorts(vector(128, BalancePortOf(5, 3, 0, 0, 1)));
  const uint32_t entries = gstFrame.*GetParam().entries;
  ExpectComputed(GetParam(), 5, 3, entries);
  ExpectComputed(GetParam(), 5, 3, entries - 1);
}

INSTANTIATE_TEST_SUITE_P(All, ListCapacity, testing::ValuesIn(test::Builders()),
                         testing::PrintToStringParamName());

}  // namespace
