// Is a slot of this class?
#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/boards_of_slots.h"
#include "catalog/frame/slot_classes.h"
#include "support/text.h"

namespace {

using std::string;
using test::ClassOf;
using test::Hex;
using test::kAskedSlots;
using test::kSlotClasses;
using test::kSlots;
using test::kUntouched;
using test::Signed;
using test::SlotClass;
using test::Slots;
using test::With;

bool IsListed(const Slots& slots, uint32_t slot) {
  return std::find(slots.listed.begin(), slots.listed.end(), slot) != slots.listed.end();
}

// What the lookup in such a class returns, and prints.
int32_t LookupCode(const Slots& slots, uint32_t slot) {
  if (slot == 0) {
    return -4;
  }
  return slots.is_corrupt() ? -25 : IsListed(slots, slot) ? 0 : -4;
}

string LookupText(const Slots& slots) {
  const string text =
      "\r\nddGetBoardSlotList err! ulSlotAmount = {amount}, MAX_SLOT_END = 100, ulSlotAmount = {amount}";
  return slots.is_corrupt() ? With(text, "{amount}", Signed(slots.amount())) : "";
}

// What all classes print, with the function for {f} and its output for {o}. The last
// text is that of some classes only: the others say nothing of a slot that they lack.
constexpr char kNullOutput[] = "\r\n{f} err! {o} = 0x0, ulSlotOut = {slot}";
constexpr char kSlotZero[] = "\r\n{f} err! ulSlotOut = 0";
constexpr char kNotInList[] =
    "\r\n{f}->ddIsSlotInSlotList err! iResult = {code}, ulSlotOut = {slot}";

struct Query {
  const char* name;
  SlotClass slots;
  int32_t (*ask)(uint32_t slot, uint32_t* output);
  const char* output;
  const char* not_in_list = "";
  friend std::ostream& operator<<(std::ostream& out, const Query& query) {
    return out << query.name;
  }
};

const Query kQueries[] = {
    {"ddIsRealSlot", &FrameInformation::stRealSlot, ddIsRealSlot, "pulCanPlugIn", kNotInList},
    {"ddIsVirtualSlot", &FrameInformation::stVirtualSlot, ddIsVirtualSlot, "pulCanPlugIn",
     kNotInList},
    {"ddIsMainBoardSlot", &FrameInformation::stMainSlot, ddIsMainBoardSlot, "pulCanPlugIn"},
    {"ddIsServeBoardSlot", &FrameInformation::stServeBoardSlot, ddIsServeBoardSlot, "pulIsTrue",
     kNotInList},
    {"ddIsUplinkBoardSlot", &FrameInformation::stUplinkSlot, ddIsUplinkBoardSlot, "pulIsTrue",
     kNotInList},
    {"ddIsFanBoardSlot", &FrameInformation::stFanSlot, ddIsFanBoardSlot, "pulIsTrue"},
    {"ddIsPowerBoardSlot", &FrameInformation::stPowerSlot, ddIsPowerBoardSlot, "pulIsTrue"},
    {"ddIsCioBoardSlot", &FrameInformation::stCioSlot, ddIsCioBoardSlot, "pulIsTrue"},
    {"ddIsHcuBoardSlot", &FrameInformation::stHcuSlot, ddIsHcuBoardSlot, "pulIsTrue"},
};

class MembershipTest : public test::SlotClassesTest {
 protected:
  using Ask = int32_t (*)(uint32_t slot, uint32_t* output);

  // The output is 1 with code 0, else 0.
  void Expect(Ask ask, uint32_t slot, int32_t code, const string& text) {
    AskTwice(text, [=] {
      uint32_t output = kUntouched;
      EXPECT_EQ(ask(slot, &output), code);
      EXPECT_EQ(output, code == 0 ? 1u : 0u);
    });
  }

  void ExpectNullOutput(Ask ask, const string& text) {
    for (const uint32_t slot : {0u, 5u, 801u, 0xffffffffu}) {
      AskTwice(With(text, "{slot}", Signed(slot)), [=] { EXPECT_EQ(ask(slot, nullptr), -2); });
    }
  }
};

class SlotMembership : public MembershipTest, public testing::WithParamInterface<Query> {
 protected:
  void Put(const Slots& slots) { gstFrame.*GetParam().slots = ClassOf(slots); }

  static string Named(const string& text) {
    return With(With(text, "{f}", GetParam().name), "{o}", GetParam().output);
  }
};

TEST_P(SlotMembership, OfAllSlots) {
  for (const Slots& slots : kSlots) {
    Put(slots);
    for (const uint32_t slot : kAskedSlots) {
      SCOPED_TRACE(std::to_string(slot) + " in " + slots.name);
      const int32_t code = LookupCode(slots, slot);
      string text;
      if (slot == 0) {
        text = Named(kSlotZero);
      } else if (code != 0) {
        text = LookupText(slots) +
               With(With(Named(GetParam().not_in_list), "{code}", std::to_string(code)), "{slot}",
                    Signed(slot));
      }
      Expect(GetParam().ask, slot, code, text);
    }
  }
}

TEST_P(SlotMembership, IsOfItsOwnClass) {
  PutDifferentClasses();
  for (const SlotClass slots : kSlotClasses) {
    uint32_t output = kUntouched;
    const bool is_own = slots == GetParam().slots;
    EXPECT_EQ(GetParam().ask((gstFrame.*slots).ulSlotStart, &output), is_own ? 0 : -4);
    EXPECT_EQ(output, is_own ? 1u : 0u);
  }
}

TEST_P(SlotMembership, NullOutput) {
  for (const Slots& slots : kSlots) {
    Put(slots);
    ExpectNullOutput(GetParam().ask, Named(kNullOutput));
  }
}

INSTANTIATE_TEST_SUITE_P(All, SlotMembership, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

// ---- The lookup in any class ------------------------------------------------------------

class SlotInAnyClass : public MembershipTest {};

TEST_F(SlotInAnyClass, OfAllSlots) {
  PutDifferentClasses();
  for (const Slots& slots : kSlots) {
    const SlotClassInformation own = ClassOf(slots);
    for (const uint32_t slot : kAskedSlots) {
      SCOPED_TRACE(std::to_string(slot) + " in " + slots.name);
      const int32_t code = LookupCode(slots, slot);
      AskTwice(slot == 0 ? "\r\nddIsSlotInSlotList err! ulSlotOut = 0" : LookupText(slots), [&] {
        uint32_t output = kUntouched;
        EXPECT_EQ(ddIsSlotInSlotList(slot, &own, &output), code);
        EXPECT_EQ(output, code == 0 ? 1u : 0u);
      });
    }
  }
}

TEST_F(SlotInAnyClass, NullArgument) {
  uint32_t output = kUntouched;
  for (const Slots& slots : kSlots) {
    const SlotClassInformation own = ClassOf(slots);
    for (const uint32_t slot : {0u, 5u}) {
      AskTwice("\r\nddIsSlotInSlotList err! pstSlotClass = 0x0, pulIsIn = " + Hex(&output),
               [&] { EXPECT_EQ(ddIsSlotInSlotList(slot, nullptr, &output), -2); });
      AskTwice("\r\nddIsSlotInSlotList err! pstSlotClass = " + Hex(&own) + ", pulIsIn = 0x0",
               [&] { EXPECT_EQ(ddIsSlotInSlotList(slot, &own, nullptr), -2); });
      AskTwice("\r\nddIsSlotInSlotList err! pstSlotClass = 0x0, pulIsIn = 0x0",
               [=] { EXPECT_EQ(ddIsSlotInSlotList(slot, nullptr, nullptr), -2); });
    }
  }
  EXPECT_EQ(output, kUntouched);
}

// ---- Valid slots: real or virtual -------------------------------------------------------

class ValidSlot : public MembershipTest {};

// Both classes are looked at, even if the first has the slot.
TEST_F(ValidSlot, OfAllSlots) {
  PutDifferentClasses();
  for (const Slots& real : kSlots) {
    gstFrame.stRealSlot = ClassOf(real);
    for (const Slots& others : kSlots) {
      gstFrame.stVirtualSlot = ClassOf(others);
      for (const uint32_t slot : kAskedSlots) {
        SCOPED_TRACE(std::to_string(slot) + " in " + real.name + " and " + others.name);
        const int32_t in_real = LookupCode(real, slot);
        const int32_t in_others = LookupCode(others, slot);
        if (slot == 0) {
          Expect(ddIsValidSlot, slot, -4, "\r\nddIsVirtualSlot err! ulSlotOut = 0");
        } else if (in_real == 0 || in_others == 0) {
          Expect(ddIsValidSlot, slot, 0, LookupText(real) + LookupText(others));
        } else {
          Expect(ddIsValidSlot, slot, -3,
                 LookupText(real) + LookupText(others) +
                     "\r\nddddIsValidSlot->ddIsSlotInSlotList err!             iResult1 = " +
                     std::to_string(in_real) + ", iResult2 = " + std::to_string(in_others) +
                     ", ulSlotOut = " + Signed(slot));
        }
      }
    }
  }
}

TEST_F(ValidSlot, InNeitherClass) {
  gstFrame.stRealSlot = ClassOf({"Real", {1, 2, 3}});
  gstFrame.stVirtualSlot = ClassOf({"Corrupt", {}, 101});
  Expect(
      ddIsValidSlot, 4, -3,
      "\r\nddGetBoardSlotList err! ulSlotAmount = 101, MAX_SLOT_END = 100, ulSlotAmount = 101"
      "\r\nddddIsValidSlot->ddIsSlotInSlotList err!             iResult1 = -4, iResult2 = -25, ulSlotOut = 4");
}

TEST_F(ValidSlot, OtherClassesDoNotCount) {
  PutDifferentClasses();
  for (const SlotClass slots : kSlotClasses) {
    uint32_t output = kUntouched;
    const bool counts =
        slots == &FrameInformation::stRealSlot || slots == &FrameInformation::stVirtualSlot;
    EXPECT_EQ(ddIsValidSlot((gstFrame.*slots).ulSlotStart, &output), counts ? 0 : -3);
    EXPECT_EQ(output, counts ? 1u : 0u);
  }
}

TEST_F(ValidSlot, NullOutput) {
  PutDifferentClasses();
  ExpectNullOutput(ddIsValidSlot,
                   "\r\nddddIsValidSlot err! pulCanPlugIn = 0x0, ulSlotOut = {slot}");
}

// ---- Slots that take the vector board -----------------------------------------------------

class VectorBoardSlot : public test::SlotBoardsTest {};

TEST_F(VectorBoardSlot, OfAllSlots) {
  for (const test::Boards& boards : test::kFrames) {
    Put(boards);
    for (const uint32_t slot : kAskedSlots) {
      SCOPED_TRACE(std::to_string(slot) + " of " + std::to_string(boards.last_slot));
      test::Refusal expected = RefusalOf(boards, slot);
      if (slot == 0) {
        expected = {-4, "\r\nddIsCioBoardSlot err! ulSlotOut = 0"};
      } else if (expected.code == 0 && !IsListed(slot, 598)) {
        expected.code = -18;
      }
      AskTwice(expected.text, [&] {
        uint32_t output = kUntouched;
        EXPECT_EQ(ddIsVectorBoardSlot(slot, &output), expected.code);
        EXPECT_EQ(output, expected.code == 0 ? 1u : 0u);
      });
      AskTwice(With("\r\nddIsCioBoardSlot err! pulIsTrue = 0x0, ulSlotOut = {slot}", "{slot}",
                    Signed(slot)),
               [=] { EXPECT_EQ(ddIsVectorBoardSlot(slot, nullptr), -2); });
    }
  }
}

}  // namespace
