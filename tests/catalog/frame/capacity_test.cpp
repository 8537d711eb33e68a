// What the chassis holds at most.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/slot_classes.h"
#include "support/text.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kUntouched;
using test::Signed;
using test::With;

constexpr uint32_t kNoLimit = 0xffffffff;

// The numbers that the capacities are asked for: both sides of each limit, and
// numbers that are others in fewer bits.
constexpr uint32_t kNumbers[] = {0,       1,       99,        100,        101,       801,
                                 16999,   17000,   100000,    100001,     0x10000,   2399999,
                                 2400000, 2400001, 0x1249f00, 0x80000001, 0xffffffff};

struct Query {
  const char* name;
  int32_t (*ask)(uint32_t* output);
  uint32_t& (*answer)();  // where the frame has it
  string null_output;
  uint32_t limit = kNoLimit;
  int32_t code = 0;
  string above_limit = "";
  friend std::ostream& operator<<(std::ostream& out, const Query& query) {
    return out << query.name;
  }
};

const Query kQueries[] = {
    {.name = "MaxOnuNum",
     .ask = ddGetMaxOnuNum,
     .answer = []() -> uint32_t& { return gstFrame.ulMaxOnuNum; },
     .null_output = "\r\nddGetMaxOnuNum err! pulMaxOnuNum = 0x0"},
    {.name = "MaxUserNum",
     .ask = ddGetMaxUserNum,
     .answer = []() -> uint32_t& { return gstFrame.ulMaxUserNum; },
     .null_output = "\r\nddGetMaxUserNum err! pulMaxUserNum = 0x0",
     .limit = 2400000,
     .code = -1,
     .above_limit =
         "\r\nddGetMaxUserNum err! ulMaxOnuNum = {number}, MAX_USER_NUM_PER_FRAME = 2400000"},
    {.name = "MaxSlotNum",
     .ask = ddGetMaxSlotNum,
     .answer = []() -> uint32_t& { return gstFrame.stRealSlot.ulSlotEnd; },
     .null_output = "\r\nddGetMaxSlotNum err! pulSlotRealNum = 0x0",
     .limit = 100,
     .code = -3,
     .above_limit = "\r\nddGetMaxSlotNum err! ulSLotEnd = {number}"},
    {.name = "ServeBoardSlotAmount",
     .ask = ddGetServeBoardSlotAmount,
     .answer = []() -> uint32_t& { return gstFrame.stServeBoardSlot.ulSlotAmount; },
     .null_output = "\r\nddGetMaxSlotNum err! pulServeBoardSlotAmount = 0x0"},
};

class Capacity : public test::SlotClassesTest, public testing::WithParamInterface<Query> {
 protected:
  void SetUp() override {
    SlotClassesTest::SetUp();
    PutDifferentClasses();
    gstFrame.ulMaxOnuNum = 41;
    gstFrame.ulMaxUserNum = 42;
    FakePlatform::Get().device_type = 17;  // the one that goes by its definition file
  }
};

TEST_P(Capacity, OfAllNumbers) {
  for (const uint32_t number : kNumbers) {
    SCOPED_TRACE(number);
    GetParam().answer() = number;
    const bool is_answered = number <= GetParam().limit;
    AskTwice(is_answered ? "" : With(GetParam().above_limit, "{number}", Signed(number)), [=] {
      uint32_t output = kUntouched;
      EXPECT_EQ(GetParam().ask(&output), is_answered ? 0 : GetParam().code);
      EXPECT_EQ(output, is_answered ? number : kUntouched);
    });
  }
}

TEST_P(Capacity, NullOutput) {
  for (const uint32_t number : kNumbers) {
    GetParam().answer() = number;
    AskTwice(GetParam().null_output, [] { EXPECT_EQ(GetParam().ask(nullptr), -2); });
  }
}

INSTANTIATE_TEST_SUITE_P(All, Capacity, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

// ---- The most ONUs by the device type ------------------------------------------------

class MaxOnuNum : public test::SlotClassesTest {
 protected:
  void Expect(int32_t device_type, uint32_t onus) {
    FakePlatform::Get().device_type = device_type;
    AskTwice("", [=] {
      uint32_t output = kUntouched;
      EXPECT_EQ(ddGetMaxOnuNum(&output), 0);
      EXPECT_EQ(output, onus);
      EXPECT_EQ(FakePlatform::TakeAsked(), std::vector<string>{"device type"});
    });
  }
};

TEST_F(MaxOnuNum, IsTheFramesOnDeviceType17Only) {
  gstFrame.ulMaxOnuNum = 4096;
  for (int32_t device_type = -300; device_type <= 2000; ++device_type) {
    SCOPED_TRACE(device_type);
    Expect(device_type, device_type == 17 ? 4096 : 17000);
  }
  for (const int32_t device_type : {0x10011, 0x1000011, 0x7fffffff, -0x7fffffef, INT32_MIN}) {
    SCOPED_TRACE(device_type);
    Expect(device_type, 17000);
  }
}

TEST_F(MaxOnuNum, IsAskedOfThePlatformEachTime) {
  gstFrame.ulMaxOnuNum = 4096;
  Expect(15, 17000);
  Expect(17, 4096);
  Expect(15, 17000);
}

TEST_F(MaxOnuNum, OfAnEmptyFrame) {
  Expect(15, 17000);
  Expect(17, 0);
}

}  // namespace
