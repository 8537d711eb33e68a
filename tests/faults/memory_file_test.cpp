// Every call on the memory file, which is written after a whole start, fails.
#include <ostream>

#include "faults/sweep.h"

namespace faults {
namespace {

struct Row {
  const char* name;
  test::FaultPlan test::Faults::*plan;
  int32_t code;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class MemoryFileCalls : public Sweep, public testing::WithParamInterface<Row> {};

TEST_P(MemoryFileCalls, TheOneFails) {
  for (const Times times : {Times::kOnce, Times::kForEver}) {
    const Prediction prediction = Predict([](const Event&) { return false; }, 0);
    Tape::Get().Replay(Tape::kNone, Tape::kNone);
    EXPECT_EQ(Start({GetParam().plan, 1, times}, prediction, Then::kShow), GetParam().code);
  }
  Tell(GetParam().name);
}

// Only a close that fails is told to the caller.
INSTANTIATE_TEST_SUITE_P(, MemoryFileCalls,
                         testing::Values(Row{"Open", &test::Faults::descriptor_opens, 0},
                                         Row{"Write", &test::Faults::writes, 0},
                                         Row{"Close", &test::Faults::descriptor_closes, -1}),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace faults
