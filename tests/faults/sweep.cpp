// A start with a fault, and what holds after it.
#include "faults/sweep.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "support/leaks.h"
#include "sys_context/olt.h"

namespace faults {
namespace {

using test::FaultPlan;
using test::Faults;

// Only ports of boards that are left out may be lost.
void ReleaseLost(Faults& faults, size_t lost) {
  EXPECT_EQ(test::ReleaseLost(faults), std::vector<size_t>(lost, sizeof(OltPortInformation)));
}

}  // namespace

void Sweep::SetUp() {
  LibraryTest::SetUp();
  console_.emplace();
  CleanStart::Get();
}

void Sweep::TearDown() {
  console_.reset();
  LibraryTest::TearDown();
}

int32_t Sweep::Start(const Fault& fault, const Prediction& prediction, Then then, size_t known) {
  ++faults_;
  console_->Text();
  PreparePlatform();
  Faults faults;
  GiveSample(faults);
  FaultPlan& plan = faults.*fault.kind;
  plan.FailFrom(fault.first, fault.times == Times::kOnce ? 1 : FaultPlan::kForEver);

  const int32_t code = ddInit();
  EXPECT_EQ(faults.closes, faults.opens.count() - faults.opens.failed());
  if (!prediction.forgets) {
    ExpectMostPorts();
  }
  int32_t memory_file_code = 0;
  if (then == Then::kShow) {
    const Contents before = Contents::Take(CleanStart::Get().frame_keys);
    memory_file_code = ShowAll();
    EXPECT_EQ(Difference(before, Contents::Take(CleanStart::Get().frame_keys)), "");
  }
  EXPECT_GT(plan.failed(), 0) << "there was no such call";
  if (prediction.forgets || known < kLoaderCount) {
    test::CountForgotten(faults);
  }
  Contents contents = Contents::Take(CleanStart::Get().frame_keys);
  if (known == kLoaderCount) {
    EXPECT_EQ(code, prediction.code);
    EXPECT_EQ(Difference(prediction.contents, contents), "");
  } else {
    std::copy(prediction.contents.tables.begin() + static_cast<std::ptrdiff_t>(known),
              prediction.contents.tables.end(),
              contents.tables.begin() + static_cast<std::ptrdiff_t>(known));
    EXPECT_EQ(Difference(prediction.contents, contents), "");
  }
  ReleaseLost(faults, prediction.lost);
  test::ResetTables();
  EXPECT_EQ(faults.blocks.size(), 0u);
  return memory_file_code;
}

void Sweep::Tell(const std::string& kind, size_t step) {
  if (!HasFailure()) {
    console_->Text();
  }
  console_.reset();
  RecordProperty("faults", faults_);
  RecordProperty("step", static_cast<int>(step));
  std::printf("%s: %d faults", kind.c_str(), faults_);
  if (step != 1) {
    std::printf(", every %zuth", step);
  }
  std::printf("\n");
}

}  // namespace faults
