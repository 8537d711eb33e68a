// Entry to logic port number and back in both maps, and how many entries there are.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_maps.h"
#include "support/asking.h"
#include "support/numbers.h"
#include "support/text.h"

namespace {

using std::string;
using test::kUntouched;
using test::Signed;
using test::With;

// All that a map may hold and more, and numbers that are others in fewer bits.
const std::vector<uint32_t> kNumbers = [] {
  std::vector<uint32_t> numbers = test::NumbersFrom(0, 1301);
  numbers.insert(numbers.end(), {0x10000, 0x10001, 0x100c8, 0x7fffffff, 0x80000000, 0x80000001,
                                 0xffffff01, 0xfffffffe, 0xffffffff});
  return numbers;
}();

struct Answer {
  int32_t code;
  uint32_t output;
  string text = "";
};

Answer PlainNumber(uint32_t count, uint32_t index) {
  if (count > 1280) {
    return {
        -24, kUntouched,
        "\r\nget_switch_chip_logicport_portno_from_index err! ulSwitchChipLogicPortNum = {count}, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"};
  }
  if (index < count) {
    return {0, index + 1};
  }
  return {
      -24, kUntouched,
      "\r\nget_switch_chip_logicport_portno_from_index err! ulChipIndex = {asked}, ulSwitchChipLogicPortNum = {count}"};
}

Answer PlainIndex(uint32_t count, uint32_t number) {
  if (count > 1280) {
    return {
        -24, kUntouched,
        "\r\nget_switch_chip_logicport_index_from_portno err! ulSwitchChipLogicPortNum = {count}, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"};
  }
  for (uint32_t index = 0; index < count; ++index) {
    if (index + 1 == number) {
      return {0, index};
    }
  }
  return {
      -1, kUntouched,
      "\r\nget_switch_chip_logicport_index_from_portno err! ulSwitchChipLogicPortNum = {count}, ulChipLogicPort = {asked}"};
}

// The numbers of the type-2 entries that have one, in their order.
const std::vector<uint32_t> kBalanceNumbers = [] {
  std::vector<uint32_t> numbers = test::NumbersFrom(1, 56);
  numbers.insert(numbers.end(), {200, 201});
  return numbers;
}();

Answer PlainBalanceNumber(uint32_t, uint32_t index) {
  if (index < kBalanceNumbers.size()) {
    return {0, kBalanceNumbers[index]};
  }
  return {
      -26, 0,
      "\r\nget_balance_switch_logicport_portno_from_index err! ulChipIndex = {asked}, max switchIndex = 57"};
}

Answer PlainBalanceIndex(uint32_t, uint32_t number) {
  for (uint32_t index = 0; index < kBalanceNumbers.size(); ++index) {
    if (kBalanceNumbers[index] == number) {
      return {0, index};
    }
  }
  return {-26, 0,
          "\r\nget_balance_switch_logicport_index_from_portno err! ulChipLogicPort = {asked}"};
}

struct Conversion {
  const char* name;
  int32_t (*ask)(uint32_t number, uint32_t* output);
  uint32_t FrameInformation::*own_count;
  uint32_t FrameInformation::*other_count;
  Answer (*plain)(uint32_t count, uint32_t asked);
  string null_output;
  friend std::ostream& operator<<(std::ostream& out, const Conversion& row) {
    return out << row.name;
  }
};

const Conversion kConversions[] = {
    {"Number", get_switch_chip_logicport_portno_from_index,
     &FrameInformation::ulSwitchChipLogicPortNum, &FrameInformation::ulType2SwitchChipLogicPortNum,
     PlainNumber, "\r\nget_switch_chip_logicport_portno_from_index err! puChipLogicPort = 0x0"},
    {"Index", get_switch_chip_logicport_index_from_portno,
     &FrameInformation::ulSwitchChipLogicPortNum, &FrameInformation::ulType2SwitchChipLogicPortNum,
     PlainIndex, "\r\nget_switch_chip_logicport_index_from_portno err! puChipIndex = 0x0"},
    {"BalanceNumber", get_balance_switch_logicport_portno_from_index,
     &FrameInformation::ulType2SwitchChipLogicPortNum, &FrameInformation::ulSwitchChipLogicPortNum,
     PlainBalanceNumber,
     "\r\nget_balance_switch_logicport_portno_from_index err! puChipLogicPort = 0x0"},
    {"BalanceIndex", get_balance_switch_logicport_index_from_portno,
     &FrameInformation::ulType2SwitchChipLogicPortNum, &FrameInformation::ulSwitchChipLogicPortNum,
     PlainBalanceIndex,
     "\r\nget_balance_switch_logicport_index_from_portno err! puChipIndex = 0x0"},
};

class LogicPortNumbers : public test::AskingTest, public testing::WithParamInterface<Conversion> {};

// Only the map's own count decides, if any.
TEST_P(LogicPortNumbers, OfAllNumbers) {
  for (const uint32_t count : test::kLogicPortCounts) {
    for (const uint32_t other_count : {1280u, 1281u}) {
      gstFrame.*GetParam().own_count = count;
      gstFrame.*GetParam().other_count = other_count;
      for (const uint32_t number : kNumbers) {
        SCOPED_TRACE(std::to_string(number) + " of " + std::to_string(count));
        const Answer expected = GetParam().plain(count, number);
        AskTwice(With(With(expected.text, "{count}", Signed(count)), "{asked}", Signed(number)),
                 [&] {
                   uint32_t output = kUntouched;
                   EXPECT_EQ(GetParam().ask(number, &output), expected.code);
                   EXPECT_EQ(output, expected.output);
                 });
      }
    }
  }
  EXPECT_EQ(test::FakePlatform::TakeAsked(), std::vector<string>());
}

// Refused before the count and the number are looked at.
TEST_P(LogicPortNumbers, NullOutput) {
  for (const uint32_t count : test::kLogicPortCounts) {
    gstFrame.*GetParam().own_count = count;
    for (const uint32_t number : {0u, 1u, 57u, 1281u, 0xffffffffu}) {
      AskTwice(GetParam().null_output, [&] { EXPECT_EQ(GetParam().ask(number, nullptr), -2); });
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, LogicPortNumbers, testing::ValuesIn(kConversions),
                         testing::PrintToStringParamName());

// ---- Single cases, in numbers -----------------------------------------------------------

struct Case {
  const char* name;
  int32_t (*ask)(uint32_t number, uint32_t* output);
  uint32_t number;
  int32_t code;
  uint32_t output;
  friend std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }
};

const Case kCases[] = {
    {"FirstNumber", get_switch_chip_logicport_portno_from_index, 0, 0, 1},
    {"LastNumber", get_switch_chip_logicport_portno_from_index, 47, 0, 48},
    {"NumberBehindLast", get_switch_chip_logicport_portno_from_index, 48, -24, kUntouched},
    {"IndexOfFirst", get_switch_chip_logicport_index_from_portno, 1, 0, 0},
    {"IndexOfLast", get_switch_chip_logicport_index_from_portno, 48, 0, 47},
    {"IndexBehindLast", get_switch_chip_logicport_index_from_portno, 49, -1, kUntouched},
    {"LastLowBalanceNumber", get_balance_switch_logicport_portno_from_index, 55, 0, 56},
    {"FirstHighBalanceNumber", get_balance_switch_logicport_portno_from_index, 56, 0, 200},
    {"LastHighBalanceNumber", get_balance_switch_logicport_portno_from_index, 57, 0, 201},
    {"NoBalanceNumber", get_balance_switch_logicport_portno_from_index, 58, -26, 0},
    {"IndexOf56", get_balance_switch_logicport_index_from_portno, 56, 0, 55},
    {"IndexOf57", get_balance_switch_logicport_index_from_portno, 57, -26, 0},
    {"IndexOf199", get_balance_switch_logicport_index_from_portno, 199, -26, 0},
    {"IndexOf200", get_balance_switch_logicport_index_from_portno, 200, 0, 56},
    {"IndexOf201", get_balance_switch_logicport_index_from_portno, 201, 0, 57},
    {"IndexOf202", get_balance_switch_logicport_index_from_portno, 202, -26, 0},
};

class LogicPortNumberCase : public test::AskingTest, public testing::WithParamInterface<Case> {};

TEST_P(LogicPortNumberCase, With48LogicPorts) {
  gstFrame.ulSwitchChipLogicPortNum = 48;
  uint32_t output = kUntouched;
  EXPECT_EQ(GetParam().ask(GetParam().number, &output), GetParam().code);
  EXPECT_EQ(output, GetParam().output);
}

INSTANTIATE_TEST_SUITE_P(All, LogicPortNumberCase, testing::ValuesIn(kCases),
                         testing::PrintToStringParamName());

// ---- How many ---------------------------------------------------------------------------

struct Amount {
  const char* name;
  int32_t (*ask)(uint32_t* amount);
  uint32_t FrameInformation::*own_count;
  uint32_t FrameInformation::*other_count;
  string null_output;
  string above_limit;
  friend std::ostream& operator<<(std::ostream& out, const Amount& row) { return out << row.name; }
};

const Amount kAmounts[] = {
    {"Plain", ddGetSwitchChipLogicPortAmount, &FrameInformation::ulSwitchChipLogicPortNum,
     &FrameInformation::ulType2SwitchChipLogicPortNum,
     "\r\nddGetSwitchChipLogicPortAmount err! pulAmount = 0x0",
     "\r\nddGetSwitchChipLogicPortAmount err! ulSwitchChipLogicPortNum = {count}, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"},
    {"Balance", get_balance_switch_logicport_amount,
     &FrameInformation::ulType2SwitchChipLogicPortNum, &FrameInformation::ulSwitchChipLogicPortNum,
     "\r\nget_balance_switch_logicport_amount err! pulAmount = 0x0",
     "\r\nget_balance_switch_logicport_amount err! ulSwitchChipLogicPortNum = {count}, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"},
};

class LogicPortAmount : public test::AskingTest, public testing::WithParamInterface<Amount> {};

TEST_P(LogicPortAmount, OfAllCounts) {
  std::vector<uint32_t> counts = kNumbers;
  counts.insert(counts.end(), test::kLogicPortCounts.begin(), test::kLogicPortCounts.end());
  for (const uint32_t count : counts) {
    SCOPED_TRACE(count);
    const bool is_above = count > 1280;
    gstFrame.*GetParam().own_count = count;
    gstFrame.*GetParam().other_count = is_above ? 5 : 1281;
    AskTwice(is_above ? With(GetParam().above_limit, "{count}", Signed(count)) : "", [&] {
      uint32_t amount = kUntouched;
      EXPECT_EQ(GetParam().ask(&amount), is_above ? -24 : 0);
      EXPECT_EQ(amount, is_above ? kUntouched : count);
    });
    AskTwice(GetParam().null_output, [&] { EXPECT_EQ(GetParam().ask(nullptr), -2); });
  }
}

INSTANTIATE_TEST_SUITE_P(All, LogicPortAmount, testing::ValuesIn(kAmounts),
                         testing::PrintToStringParamName());

}  // namespace
