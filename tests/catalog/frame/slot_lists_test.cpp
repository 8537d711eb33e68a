// The slots of each class as lists.
#include <algorithm>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "catalog/frame/slot_classes.h"
#include "support/text.h"

namespace {

using std::string;
using test::ClassOf;
using test::Decimal;
using test::ForEachMissing;
using test::Hex;
using test::kSlots;
using test::kUntouched;
using test::NumbersFrom;
using test::Outputs;
using test::Signed;
using test::SlotClass;
using test::Slots;
using test::With;

// None, all up to one more than are listed, and numbers that are others in fewer bits.
std::set<uint32_t> CapacitiesFor(const Slots& slots) {
  std::set<uint32_t> capacities = {99,      100,     101,        0x100,     0x103,
                                   0x10000, 0x10003, 0x80000000, 0xffffffff};
  for (uint32_t capacity = 0; capacity <= slots.listed.size() + 1; ++capacity) {
    capacities.insert(capacity);
  }
  return capacities;
}

bool Fits(const Slots& slots, uint32_t capacity) {
  return slots.amount() <= 100 && slots.amount() <= capacity;
}

// What a list builder writes to: an array longer than any list, and the amount.
struct Output {
  std::vector<uint32_t> array = std::vector<uint32_t>(205, kUntouched);
  uint32_t amount = kUntouched;

  bool operator==(const Output&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Output& output) {
    return out << output.amount << " of " << testing::PrintToString(output.array);
  }
};

Output Listed(const std::vector<uint32_t>& slots) {
  Output output;
  std::copy(slots.begin(), slots.end(), output.array.begin());
  output.amount = static_cast<uint32_t>(slots.size());
  return output;
}

// What all lists print, with the function for {f}.
constexpr char kNullArgument[] = "\r\n{f} err! pulSlotArray = {array}, pulSlotAmount = {amount}";
constexpr char kNotListed[] =
    "\r\nddGetBoardSlotList err! ulSlotAmount = {slots}, MAX_SLOT_END = 100, ulArrayAmount = {capacity}"
    "\r\n{f}->ddGetBoardSlotList err! iResult = -25, ulArrayAmount = {capacity}";

struct Query {
  const char* name;
  SlotClass slots;
  int32_t (*ask)(uint32_t* array, uint32_t capacity, uint32_t* amount);
  friend std::ostream& operator<<(std::ostream& out, const Query& query) {
    return out << query.name;
  }
};

const Query kQueries[] = {
    {"ddGetRealSlotList", &FrameInformation::stRealSlot, ddGetRealSlotList},
    {"ddGetVirtualSlotList", &FrameInformation::stVirtualSlot, ddGetVirtualSlotList},
    {"ddGetMainBoardSlotList", &FrameInformation::stMainSlot, ddGetMainBoardSlotList},
    {"ddGetServeSlotList", &FrameInformation::stServeBoardSlot, ddGetServeSlotList},
    {"ddGetUplinkSlotList", &FrameInformation::stUplinkSlot, ddGetUplinkSlotList},
    {"ddGetFanSlotList", &FrameInformation::stFanSlot, ddGetFanSlotList},
    {"ddGetPowerSlotList", &FrameInformation::stPowerSlot, ddGetPowerSlotList},
    {"ddGetCioSlotList", &FrameInformation::stCioSlot, ddGetCioSlotList},
    {"ddGetHcuSlotList", &FrameInformation::stHcuSlot, ddGetHcuSlotList},
};

string Filled(const string& text, const Slots& slots, uint32_t capacity) {
  return With(With(text, "{slots}", Signed(slots.amount())), "{capacity}", Signed(capacity));
}

class SlotList : public test::SlotClassesTest, public testing::WithParamInterface<Query> {
 protected:
  void Expect(uint32_t capacity, int32_t code, const Output& expected, const string& text) {
    AskTwice(text, [&] {
      Output output;
      EXPECT_EQ(GetParam().ask(output.array.data(), capacity, &output.amount), code);
      EXPECT_EQ(output, expected);
    });
  }

  void ExpectNullArgument(uint32_t capacity) {
    Output output;
    ForEachMissing({output.array.data(), &output.amount}, [&](const Outputs& given) {
      const string text = With(kNullArgument, "{f}", GetParam().name);
      AskTwice(With(With(text, "{array}", Hex(given[0])), "{amount}", Decimal(given[1])),
               [&] { EXPECT_EQ(GetParam().ask(given[0], capacity, given[1]), -2); });
    });
    EXPECT_EQ(output, Output());
  }

  void Put(const Slots& slots) { gstFrame.*GetParam().slots = ClassOf(slots); }
};

TEST_P(SlotList, OfAllSlotsWithAllCapacities) {
  for (const Slots& slots : kSlots) {
    Put(slots);
    for (const uint32_t capacity : CapacitiesFor(slots)) {
      SCOPED_TRACE(string(slots.name) + ", room for " + std::to_string(capacity));
      if (Fits(slots, capacity)) {
        Expect(capacity, 0, Listed(slots.listed), "");
      } else {
        Expect(capacity, -25, Output(),
               Filled(With(kNotListed, "{f}", GetParam().name), slots, capacity));
      }
    }
  }
}

TEST_P(SlotList, IsOfItsOwnClass) {
  PutDifferentClasses();
  const SlotClassInformation& slots = gstFrame.*GetParam().slots;
  Expect(100, 0, Listed(NumbersFrom(slots.ulSlotStart, slots.ulSlotAmount)), "");
}

TEST_P(SlotList, NullArgument) {
  PutDifferentClasses();
  ExpectNullArgument(100);
}

TEST_P(SlotList, NullArgumentForNoSlots) {
  ExpectNullArgument(0);
}

TEST_P(SlotList, NullArgumentBeforeACorruptClass) {
  Put({"Corrupt", {}, 101});
  ExpectNullArgument(0);
}

INSTANTIATE_TEST_SUITE_P(All, SlotList, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

// ---- The list of any class ------------------------------------------------------------

class AnySlotList : public test::SlotClassesTest {};

TEST_F(AnySlotList, OfAllSlotsWithAllCapacities) {
  PutDifferentClasses();
  for (const Slots& slots : kSlots) {
    const SlotClassInformation own = ClassOf(slots);
    for (const uint32_t capacity : CapacitiesFor(slots)) {
      SCOPED_TRACE(string(slots.name) + ", room for " + std::to_string(capacity));
      const bool fits = Fits(slots, capacity);
      const string text = Filled(
          "\r\nddGetBoardSlotList err! ulSlotAmount = {slots}, MAX_SLOT_END = 100, ulArrayAmount = {capacity}",
          slots, capacity);
      AskTwice(fits ? "" : text, [&] {
        Output output;
        EXPECT_EQ(ddGetBoardSlotList(&own, output.array.data(), capacity, &output.amount),
                  fits ? 0 : -25);
        EXPECT_EQ(output, fits ? Listed(slots.listed) : Output());
      });
    }
  }
}

TEST_F(AnySlotList, NullArgument) {
  Output output;
  for (const Slots& slots : kSlots) {
    const SlotClassInformation own = ClassOf(slots);
    for (int given = 0; given < 7; ++given) {  // all but the one with all three
      const SlotClassInformation* const asked = (given & 1) != 0 ? &own : nullptr;
      uint32_t* const array = (given & 2) != 0 ? output.array.data() : nullptr;
      uint32_t* const amount = (given & 4) != 0 ? &output.amount : nullptr;
      AskTwice("\r\nddGetBoardSlotList err! pstSlotClass = " + Hex(asked) +
                   ", pulSlotArray = " + Hex(array) + ", pulSlotSlotAmount = " + Decimal(amount),
               [=] { EXPECT_EQ(ddGetBoardSlotList(asked, array, 100, amount), -2); });
    }
  }
  EXPECT_EQ(output, Output());
}

// ---- Real and virtual slots in one list ------------------------------------------------

class AllSlotList : public test::SlotClassesTest {
 protected:
  void Expect(uint32_t capacity, const std::vector<uint32_t>& slots, const string& text) {
    AskTwice(text, [&] {
      Output output;
      EXPECT_EQ(ddGetAllSlotList(output.array.data(), capacity, &output.amount), 0);
      EXPECT_EQ(output, Listed(slots));
    });
  }
};

// Each list is checked against the whole room.
TEST_F(AllSlotList, OfAllSlotsWithAllCapacities) {
  PutDifferentClasses();
  for (const Slots& real : kSlots) {
    gstFrame.stRealSlot = ClassOf(real);
    for (const Slots& others : kSlots) {
      gstFrame.stVirtualSlot = ClassOf(others);
      std::set<uint32_t> capacities = CapacitiesFor(real);
      capacities.merge(CapacitiesFor(others));
      for (const uint32_t capacity : capacities) {
        SCOPED_TRACE(string(real.name) + " and " + others.name + ", room for " +
                     std::to_string(capacity));
        std::vector<uint32_t> slots;
        string text;
        if (Fits(real, capacity)) {
          slots = real.listed;
        } else {
          text = Filled(
              "\r\nddGetBoardSlotList err! ulSlotAmount = {slots}, MAX_SLOT_END = 100, ulArrayAmount = {capacity}\r\nddGetAllSlotList->ddGetBoardSlotList err!             iResult = -25, ulArrayAmount = {capacity}, ulSlotAmount = {slots}",
              real, capacity);
        }
        if (Fits(others, capacity)) {
          slots.insert(slots.end(), others.listed.begin(), others.listed.end());
        } else {
          text += Filled(
              "\r\nddGetBoardSlotList err! ulSlotAmount = {slots}, MAX_SLOT_END = 100, ulArrayAmount = {capacity}\r\nddGetVirtualSlotList->ddGetBoardSlotList err!             iResult = -25, ulArrayAmount = {capacity}, ulSlotAmount = {slots}",
              others, capacity);
        }
        Expect(capacity, slots, text);
      }
    }
  }
}

TEST_F(AllSlotList, RoomForEachButNotForBoth) {
  gstFrame.stRealSlot = ClassOf({"Real", {1, 2, 3}});
  gstFrame.stVirtualSlot = ClassOf({"Virtual", {51, 52}});
  Expect(3, {1, 2, 3, 51, 52}, "");
}

TEST_F(AllSlotList, NoRoomForTheRealSlots) {
  gstFrame.stRealSlot = ClassOf({"Real", {1, 2, 3}});
  gstFrame.stVirtualSlot = ClassOf({"Virtual", {51, 52}});
  Expect(
      2, {51, 52},
      "\r\nddGetBoardSlotList err! ulSlotAmount = 3, MAX_SLOT_END = 100, ulArrayAmount = 2"
      "\r\nddGetAllSlotList->ddGetBoardSlotList err!             iResult = -25, ulArrayAmount = 2, ulSlotAmount = 3");
}

TEST_F(AllSlotList, CorruptVirtualSlots) {
  gstFrame.stRealSlot = ClassOf({"Real", {1, 2, 3}});
  gstFrame.stVirtualSlot = ClassOf({"Virtual", {51, 52}, 0xffffffff});
  Expect(
      3, {1, 2, 3},
      "\r\nddGetBoardSlotList err! ulSlotAmount = -1, MAX_SLOT_END = 100, ulArrayAmount = 3"
      "\r\nddGetVirtualSlotList->ddGetBoardSlotList err!             iResult = -25, ulArrayAmount = 3, ulSlotAmount = -1");
}

TEST_F(AllSlotList, NoRoomAtAll) {
  gstFrame.stRealSlot = ClassOf({"Real", {1, 2, 3}});
  gstFrame.stVirtualSlot = ClassOf({"Virtual", {51, 52}});
  Expect(
      0, {},
      "\r\nddGetBoardSlotList err! ulSlotAmount = 3, MAX_SLOT_END = 100, ulArrayAmount = 0"
      "\r\nddGetAllSlotList->ddGetBoardSlotList err!             iResult = -25, ulArrayAmount = 0, ulSlotAmount = 3"
      "\r\nddGetBoardSlotList err! ulSlotAmount = 2, MAX_SLOT_END = 100, ulArrayAmount = 0"
      "\r\nddGetVirtualSlotList->ddGetBoardSlotList err!             iResult = -25, ulArrayAmount = 0, ulSlotAmount = 2");
}

TEST_F(AllSlotList, NullArgument) {
  Output output;
  for (const Slots& slots : kSlots) {
    gstFrame.stRealSlot = ClassOf(slots);
    gstFrame.stVirtualSlot = ClassOf(slots);
    ForEachMissing({output.array.data(), &output.amount}, [&](const Outputs& given) {
      AskTwice("\r\nddddGetAllSlotList err! pulSlotArray = " + Hex(given[0]) +
                   ", pulSlotAmount = " + Decimal(given[1]),
               [&] { EXPECT_EQ(ddGetAllSlotList(given[0], 200, given[1]), -2); });
    });
  }
  EXPECT_EQ(output, Output());
}

}  // namespace
