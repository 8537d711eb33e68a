// What builders of lists of logic ports refuse before they look at any entry.
#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"

namespace {

using std::string;
using test::ArrayFor;
using test::BalancePortOf;
using test::FakePlatform;
using test::Hex;
using test::kUntouched;
using test::ListAnswer;
using test::LogicPortOf;
using test::PutBalancePorts;
using test::PutLogicPorts;
using test::Signed;
using test::With;
using testing::IsEmpty;

class ListRefusal : public test::BuilderTest {
 protected:
  void SetUp() override {
    BuilderTest::SetUp();
    PutSlotFive();
    PutLogicPorts({}, TakenPort());
    PutBalancePorts({}, BalancePortOf(5, 3, 0, 0, 1));
  }

  static test::LogicPort TakenPort() { return LogicPortOf(5, 3, GetParam().taken_flag); }

  void ExpectNullArgument(bool has_array, bool has_count, uint32_t room) {
    uint32_t array = kUntouched, count = kUntouched;
    uint32_t* const list = has_array ? &array : nullptr;
    uint32_t* const amount = has_count ? &count : nullptr;
    const string text = GetParam().Shown(GetParam().null_argument);
    AskTwice(With(With(text, "{array}", Hex(list)), "{count}", Hex(amount)), [&] {
      EXPECT_EQ(GetParam().ask(5, 3, list, room, amount), -2);
      EXPECT_EQ(array, kUntouched);
      EXPECT_EQ(count, kUntouched);
    });
  }

  void ExpectNullArguments() {
    for (const uint32_t room : {0u, 1u, 1280u}) {
      ExpectNullArgument(false, true, room);
      ExpectNullArgument(true, false, room);
      ExpectNullArgument(false, false, room);
    }
    EXPECT_THAT(FakePlatform::TakeAsked(), IsEmpty());
  }

  void ExpectTooManyEntries(uint32_t entries, uint32_t room) {
    gstFrame.*GetParam().entries = entries;
    const string text = GetParam().Shown(GetParam().above_limit);
    ExpectAnswer({.code = GetParam().above_limit_code,
                  .array = ArrayFor(room),
                  .text = With(text, "{entries}", Signed(entries))},
                 5, 3, room);
  }
};

TEST_P(ListRefusal, NullArgument) {
  gstFrame.*GetParam().entries = 1;
  ExpectNullArguments();
}

TEST_P(ListRefusal, NullArgumentBeforeTheCardAndTheCount) {
  FakePlatform::Get().configured_cards.clear();
  gstFrame.*GetParam().entries = GetParam().limit + 1;
  gstFrame.stRealSlot.ulSlotAmount = 101;
  ExpectNullArguments();
}

TEST_P(ListRefusal, TooManyEntries) {
  for (const uint32_t entries : {GetParam().limit + 1, 1281u, 0x10001u, 0x80000001u, 0xffffffffu}) {
    ExpectTooManyEntries(entries, 1280);
    ExpectTooManyEntries(entries, 0);
  }
  if (GetParam().asks_card_first) {
    EXPECT_THAT(FakePlatform::TakeAsked(),
                testing::AllOf(testing::SizeIs(20), testing::Each("slot 5")));
  } else {
    EXPECT_THAT(FakePlatform::TakeAsked(), IsEmpty());
  }
}

TEST_P(ListRefusal, TooManyEntriesBeforeCorruptSlots) {
  gstFrame.stRealSlot.ulSlotAmount = 101;
  gstFrame.stUplinkSlot.ulSlotAmount = 101;
  gstFrame.stServeBoardSlot.ulSlotAmount = 101;
  ExpectTooManyEntries(GetParam().limit + 1, 1280);
}

// Only the map that is walked counts; the type-2 user ports take the numbers of the other.
TEST_P(ListRefusal, TooManyEntriesOfTheOtherMap) {
  const bool is_plain = GetParam().entries == &FrameInformation::ulSwitchChipLogicPortNum;
  (is_plain ? gstFrame.ulType2SwitchChipLogicPortNum : gstFrame.ulSwitchChipLogicPortNum) = 1281;
  gstFrame.*GetParam().entries = 1;
  ListAnswer expected{.array = ArrayFor(4), .count = 1};
  expected.array[0] = GetParam().number(0) != 0 ? 1 : kUntouched;
  ExpectAnswer(expected, 5, 3, 4);
}

// Many entries, all taken. Those without number leave their places alone.
TEST_P(ListRefusal, NotAtTheLimit) {
  PutLogicPorts(std::vector(1280, TakenPort()));
  PutBalancePorts(std::vector(1280, BalancePortOf(5, 3, 0, 0, 1)));
  const uint32_t limit = GetParam().limit;
  gstFrame.*GetParam().entries = limit;
  ListAnswer expected{.array = ArrayFor(limit), .count = limit};
  for (uint32_t i = 0; i < limit; ++i) {
    const uint32_t number = GetParam().number(i);
    expected.array[i] = number != 0 ? number : kUntouched;
  }
  ExpectAnswer(expected, 5, 3, limit);
}

INSTANTIATE_TEST_SUITE_P(All, ListRefusal, testing::ValuesIn(test::Builders()),
                         testing::PrintToStringParamName());

}  // namespace
