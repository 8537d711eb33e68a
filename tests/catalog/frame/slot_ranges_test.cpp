// The first and the last slot of each class.
#include <ostream>
#include <string>

#include "catalog/frame/slot_classes.h"
#include "support/text.h"

namespace {

using std::string;
using test::ForEachMissing;
using test::kUntouched;
using test::Outputs;
using test::Signed;
using test::SlotClass;
using test::With;
using test::WithOutputs;

// Both sides of the limit, the HCU slot, and numbers that are others in fewer bits.
constexpr uint32_t kEnds[] = {0,   1,       50,      99,      100,        101,       306,
                              801, 0x10000, 0x10032, 0x10321, 0x80000032, 0xffffffff};

bool IsOrdinary(uint32_t first, uint32_t last) {
  return first <= last && last <= 100;
}

bool IsHcu(uint32_t first, uint32_t last) {
  return first == 801 && last == 801;
}

// What all ranges print, with the function for {f} and the variables' name for {v}.
constexpr char kNullOutput[] = "\r\n{f} err! pul{v}Start = {out0}, pul{v}End = {out1}";
constexpr char kBadRange[] = "\r\n{f} err! ul{v}Start = {first}, ul{v}End = {last}";

struct Query {
  const char* name;
  SlotClass slots;
  int32_t (*ask)(uint32_t* first, uint32_t* last);
  const char* variables;
  bool (*is_range)(uint32_t first, uint32_t last) = IsOrdinary;
  const char* name_with_a_bad_range = name;
  friend std::ostream& operator<<(std::ostream& out, const Query& query) {
    return out << query.name;
  }
};

const Query kQueries[] = {
    {"ddGetRealSlotRange", &FrameInformation::stRealSlot, ddGetRealSlotRange, "RealSlot"},
    {"ddGetVirtualSlotRange", &FrameInformation::stVirtualSlot, ddGetVirtualSlotRange,
     "VirtualSlot"},
    {"ddGetMainSlotRange", &FrameInformation::stMainSlot, ddGetMainSlotRange, "MainSlot"},
    {"ddGetServeBoardSlotRange", &FrameInformation::stServeBoardSlot, ddGetServeBoardSlotRange,
     "ServeBoardSlot"},
    {"ddGetUplinkSlotRange", &FrameInformation::stUplinkSlot, ddGetUplinkSlotRange, "UplinkSlot",
     IsOrdinary, "ddGetMainSlotRange"},
    {"ddGetFanSlotRange", &FrameInformation::stFanSlot, ddGetFanSlotRange, "FanSlot"},
    {"ddGetPowerSlotRange", &FrameInformation::stPowerSlot, ddGetPowerSlotRange, "Slot"},
    {"ddGetCioSlotRange", &FrameInformation::stCioSlot, ddGetCioSlotRange, "Slot"},
    {"ddGetHcuSlotRange", &FrameInformation::stHcuSlot, ddGetHcuSlotRange, "HcuSlot", IsHcu},
};

string Filled(const string& text, uint32_t first, uint32_t last) {
  return With(With(text, "{first}", Signed(first)), "{last}", Signed(last));
}

class SlotRange : public test::SlotClassesTest, public testing::WithParamInterface<Query> {
 protected:
  void Expect(int32_t code, uint32_t first, uint32_t last, const string& text) {
    AskTwice(text, [=] {
      uint32_t start = kUntouched;
      uint32_t end = kUntouched;
      EXPECT_EQ(GetParam().ask(&start, &end), code);
      EXPECT_EQ(start, first);
      EXPECT_EQ(end, last);
    });
  }

  void ExpectNullOutput() {
    uint32_t first = kUntouched;
    uint32_t last = kUntouched;
    const string text = Named(kNullOutput, GetParam().name);
    ForEachMissing({&first, &last}, [&](const Outputs& given) {
      AskTwice(WithOutputs(text, given),
               [&] { EXPECT_EQ(GetParam().ask(given[0], given[1]), -2); });
    });
    EXPECT_EQ(first, kUntouched);
    EXPECT_EQ(last, kUntouched);
  }

  static string Named(const string& text, const string& function) {
    return With(With(text, "{f}", function), "{v}", GetParam().variables);
  }

  SlotClassInformation& slots() { return gstFrame.*GetParam().slots; }
};

// The slots themselves do not matter, even when they are corrupt.
TEST_P(SlotRange, OfAllEnds) {
  slots().ulSlotAmount = 0xffffffff;
  for (const uint32_t first : kEnds) {
    for (const uint32_t last : kEnds) {
      SCOPED_TRACE(std::to_string(first) + " to " + std::to_string(last));
      slots().ulSlotStart = first;
      slots().ulSlotEnd = last;
      if (GetParam().is_range(first, last)) {
        Expect(0, first, last, "");
      } else {
        Expect(-3, kUntouched, kUntouched,
               Filled(Named(kBadRange, GetParam().name_with_a_bad_range), first, last));
      }
    }
  }
}

TEST_P(SlotRange, IsOfItsOwnClass) {
  PutDifferentClasses();
  gstFrame.stHcuSlot.ulSlotStart = 801;
  gstFrame.stHcuSlot.ulSlotEnd = 801;
  Expect(0, slots().ulSlotStart, slots().ulSlotEnd, "");
}

TEST_P(SlotRange, NullOutput) {
  ExpectNullOutput();
}

TEST_P(SlotRange, NullOutputBeforeABadRange) {
  slots().ulSlotStart = 101;
  ExpectNullOutput();
}

INSTANTIATE_TEST_SUITE_P(All, SlotRange, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

using SlotRanges = test::SlotClassesTest;

TEST_F(SlotRanges, WithoutAnySlot) {
  uint32_t first = kUntouched;
  uint32_t last = kUntouched;
  EXPECT_EQ(ddGetRealSlotRange(&first, &last), 0);
  EXPECT_EQ(first, 0u);
  EXPECT_EQ(last, 0u);
  AskTwice("\r\nddGetHcuSlotRange err! ulHcuSlotStart = 0, ulHcuSlotEnd = 0",
           [&] { EXPECT_EQ(ddGetHcuSlotRange(&first, &last), -3); });
}

// ---- The first and the last main board slot, as the function's value ----------------

struct MainSlotQuery {
  const char* name;
  int32_t (*ask)();
  uint32_t SlotClassInformation::*answer;
  string bad_range;
  friend std::ostream& operator<<(std::ostream& out, const MainSlotQuery& query) {
    return out << query.name;
  }
};

const MainSlotQuery kMainSlotQueries[] = {
    {"Max", ddGetMaxMainSlot, &SlotClassInformation::ulSlotEnd,
     "\r\nddGetMainSlotRange err! ulMainSlotStart = {first}, ulMainSlotEnd = {last}\r\nddGetMaxMainSlot err!"},
    {"Min", ddGetMinMainSlot, &SlotClassInformation::ulSlotStart,
     "\r\nddGetMainSlotRange err! ulMainSlotStart = {first}, ulMainSlotEnd = {last}\r\nddGetMinMainSlot err!"},
};

class MainSlot : public test::SlotClassesTest, public testing::WithParamInterface<MainSlotQuery> {};

TEST_P(MainSlot, OfAllEnds) {
  PutDifferentClasses();
  for (const uint32_t first : kEnds) {
    for (const uint32_t last : kEnds) {
      SCOPED_TRACE(std::to_string(first) + " to " + std::to_string(last));
      SlotClassInformation& slots = gstFrame.stMainSlot;
      slots.ulSlotStart = first;
      slots.ulSlotEnd = last;
      if (IsOrdinary(first, last)) {
        const int32_t answer = static_cast<int32_t>(slots.*GetParam().answer);
        AskTwice("", [=] { EXPECT_EQ(GetParam().ask(), answer); });
      } else {
        AskTwice(Filled(GetParam().bad_range, first, last),
                 [] { EXPECT_EQ(GetParam().ask(), -3); });
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, MainSlot, testing::ValuesIn(kMainSlotQueries),
                         testing::PrintToStringParamName());

}  // namespace
