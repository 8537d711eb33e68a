// What a type-2 logic port serves: slot and port, chip and physical port, and whether
// it is a HiGig port.
#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_maps.h"
#include "support/asking.h"
#include "support/numbers.h"
#include "support/text.h"
#include "support/type2_numbers.h"

namespace {

using std::string;
using test::BalancePort;
using test::BalancePortOf;
using test::ForEachMissing;
using test::kUntouched;
using test::Outputs;
using test::Signed;
using test::With;

using Values = std::array<uint32_t, 2>;
constexpr Values kAllUntouched = {kUntouched, kUntouched};

constexpr char kNoChipPhyPort[] =
    "\r\nget_balance_switch_logicport_index_from_portno err! ulChipLogicPort = {number}"
    "\r\nget_balance_chipno_phyport_from_switch_logicport->get_balance_switch_logicport_index_from_portno err! ChipLogicPort = {number}, iResult = -26";

struct Query {
  const char* name;
  size_t outputs;
  int32_t (*ask)(uint32_t number, const Outputs& outputs);
  Values (*plain)(const BalancePort& entry);
  string null_output;
  string bad_number;
  bool one_output_will_do = false;
  friend std::ostream& operator<<(std::ostream& out, const Query& row) { return out << row.name; }
};

const Query kQueries[] = {
    {"SlotPort", 2,
     [](uint32_t number, const Outputs& outputs) {
       return get_balance_slotport_from_switch_logicport(number, outputs[0], outputs[1]);
     },
     [](const BalancePort& entry) {
       return Values{entry.ucSlotOut, entry.ucSlotPort};
     },
     "\r\nget_balance_slotport_from_switch_logicport err! pulSlotOut = {out0}, pulSlotPort = {out1}",
     "\r\nget_balance_switch_logicport_index_from_portno err! ulChipLogicPort = {number}"
     "\r\nget_balance_slotport_from_switch_logicport->get_balance_switch_logicport_index_from_portno err! ChipLogicPort = {number}, iResult = -26"},
    {"ChipPhyPort", 2,
     [](uint32_t number, const Outputs& outputs) {
       return get_balance_chipno_phyport_from_switch_logicport(number, outputs[0], outputs[1]);
     },
     [](const BalancePort& entry) {
       return Values{entry.usChipPort, entry.usPhyPort};
     },
     "\r\nget_balance_chipno_phyport_from_switch_logicport err! pulChipPort = {out0}, pulPhyPort = {out1}",
     kNoChipPhyPort, true},
    {"Higig", 1,
     [](uint32_t number, const Outputs& outputs) {
       return is_higigport_balance_switch_logicport(number, outputs[0]);
     },
     [](const BalancePort& entry) {
       return Values{entry.ucHigigFlag == 1 ? 1u : 0u, kUntouched};
     },
     "\r\nis_higigport_balance_switch_logicport err! pulIsTrue = {out0}",
     "\r\nget_balance_switch_logicport_index_from_portno err! ulChipLogicPort = {number}"
     "\r\nis_higigport_balance_switch_logicport->get_balance_switch_logicport_index_from_portno err! ChipLogicPort = {number}, iResult = -26"},
};

// Entries that differ in all fields, of more than 8 bits where a field has more.
BalancePort EntryOf(uint32_t i) {
  return BalancePortOf(i + 1, 250 - i, 300 + 7 * i, 65535 - i, i % 3);
}

// The place of a number in the map; 58 when it has none.
uint32_t PlainPlace(uint32_t number) {
  uint32_t place = 0;
  while (place < 58 && test::Type2NumberOf(place) != number) {
    ++place;
  }
  return place;
}

class BalancePortsTest : public test::AskingTest {
 protected:
  void SetUp() override {
    AskingTest::SetUp();
    std::vector<BalancePort> ports;
    for (uint32_t i = 0; i < 1280; ++i) {
      ports.push_back(EntryOf(i));
    }
    test::PutBalancePorts(ports);
  }
};

class BalancePorts : public BalancePortsTest, public testing::WithParamInterface<Query> {
 protected:
  void Expect(uint32_t number, int32_t code, const Values& values, const string& text) {
    AskTwice(text, [&] {
      Values outputs = kAllUntouched;
      EXPECT_EQ(GetParam().ask(number, {&outputs[0], &outputs[1]}), code);
      EXPECT_EQ(outputs, values);
    });
    EXPECT_EQ(test::FakePlatform::TakeAsked(), std::vector<string>());
  }
};

// However many entries are loaded, and whatever the other map holds.
TEST_P(BalancePorts, OfAllNumbers) {
  std::vector<uint32_t> numbers = test::NumbersFrom(0, 1301);
  numbers.insert(numbers.end(), {0x10001, 0x100c8, 0x80000001, 0xffffff01, 0xffffffff});
  for (const uint32_t count : {0u, 1u, 57u, 58u, 59u, 1280u, 1281u, 0xffffffffu}) {
    gstFrame.ulType2SwitchChipLogicPortNum = count;
    gstFrame.ulSwitchChipLogicPortNum = 0xffffffff - count;
    for (const uint32_t number : numbers) {
      SCOPED_TRACE(std::to_string(number) + " of " + std::to_string(count));
      const uint32_t place = PlainPlace(number);
      if (place < 58) {
        Expect(number, 0, GetParam().plain(EntryOf(place)), "");
      } else {
        Expect(number, -26, kAllUntouched, With(GetParam().bad_number, "{number}", Signed(number)));
      }
    }
  }
}

// Refused before the number is looked at, but where one output will do.
TEST_P(BalancePorts, NullOutputs) {
  Values values = kAllUntouched;
  Outputs outputs = {&values[0], &values[1]};
  outputs.resize(GetParam().outputs);
  for (const uint32_t number : {0u, 1u, 57u, 201u}) {
    SCOPED_TRACE(number);
    ForEachMissing(outputs, [&](const Outputs& given) {
      if (!GetParam().one_output_will_do || given == Outputs{nullptr, nullptr}) {
        AskTwice(test::WithOutputs(GetParam().null_output, given),
                 [&] { EXPECT_EQ(GetParam().ask(number, given), -2); });
      }
    });
  }
  EXPECT_EQ(values, kAllUntouched);
}

INSTANTIATE_TEST_SUITE_P(All, BalancePorts, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

// ---- One output of two -------------------------------------------------------------------

class BalanceChipPhyPort : public BalancePortsTest {};

TEST_F(BalanceChipPhyPort, EachOutputAlone) {
  struct Row {
    uint32_t number, chip, phy_port;
  };
  for (const Row& row : {Row{1, 300, 65535}, Row{201, 699, 65478}}) {
    uint32_t chip = kUntouched;
    uint32_t phy_port = kUntouched;
    AskTwice("", [&] {
      EXPECT_EQ(get_balance_chipno_phyport_from_switch_logicport(row.number, &chip, nullptr), 0);
      EXPECT_EQ(get_balance_chipno_phyport_from_switch_logicport(row.number, nullptr, &phy_port),
                0);
    });
    EXPECT_EQ(chip, row.chip);
    EXPECT_EQ(phy_port, row.phy_port);
  }
}

TEST_F(BalanceChipPhyPort, EachOutputAloneForUnknownNumbers) {
  for (const uint32_t number : {0u, 57u}) {
    uint32_t output = kUntouched;
    for (const Outputs& given : {Outputs{&output, nullptr}, Outputs{nullptr, &output}}) {
      AskTwice(With(kNoChipPhyPort, "{number}", Signed(number)), [&] {
        EXPECT_EQ(get_balance_chipno_phyport_from_switch_logicport(number, given[0], given[1]),
                  -26);
      });
    }
    EXPECT_EQ(output, kUntouched);
  }
}

// ---- Every value of a field -------------------------------------------------------------

class BalancePortFields : public test::AskingTest {};

TEST_F(BalancePortFields, OfAllHigigFlags) {
  for (uint32_t flag = 0; flag < 256; ++flag) {
    test::PutBalancePorts({BalancePortOf(1, 1, 1, 1, flag)}, BalancePortOf(1, 1, 1, 1, 1));
    uint32_t is_higig = kUntouched;
    EXPECT_EQ(is_higigport_balance_switch_logicport(1, &is_higig), 0);
    EXPECT_EQ(is_higig, flag == 1 ? 1u : 0u) << flag;
  }
}

TEST_F(BalancePortFields, OfAllSlotsAndPorts) {
  for (uint32_t value = 0; value < 256; ++value) {
    test::PutBalancePorts({{}, BalancePortOf(value, 255 - value)});
    uint32_t slot = kUntouched;
    uint32_t port = kUntouched;
    EXPECT_EQ(get_balance_slotport_from_switch_logicport(2, &slot, &port), 0);
    EXPECT_EQ(slot, value);
    EXPECT_EQ(port, 255 - value);
  }
}

TEST_F(BalancePortFields, OfAllChipsAndPhysicalPorts) {
  for (uint32_t value = 0; value < 65536; ++value) {
    gstFrame.astType2SwitchChipLogicPort[57] = BalancePortOf(1, 1, value, 65535 - value);
    uint32_t chip = kUntouched;
    uint32_t phy_port = kUntouched;
    ASSERT_EQ(get_balance_chipno_phyport_from_switch_logicport(201, &chip, &phy_port), 0);
    ASSERT_EQ(chip, value);
    ASSERT_EQ(phy_port, 65535 - value);
  }
}

}  // namespace
