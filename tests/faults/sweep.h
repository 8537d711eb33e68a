// One start after the other, each with another fault.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "faults/prediction.h"
#include "support/faults.h"
#include "support/tables.h"

namespace faults {

// Of the calls on the definition files, one in so many fails: every one, but where starts take
// long.
constexpr size_t kStep = STEP;

enum class Times { kOnce, kForEver };

// Which calls fail: from number `first` (from 1) of those that are really made.
struct Fault {
  test::FaultPlan test::Faults::*kind;
  int first;
  Times times;
};

class Sweep : public test::LibraryTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Whether all is shown after a start.
  enum class Then { kShow, kLeave };

  // Starts with the fault; expects what is predicted, as far as the tables of the loaders
  // before `known` go (and all else only if that is all of them). Returns the code of
  // ddReadContextFileToBuf.
  int32_t Start(const Fault& fault, const Prediction& prediction, Then then,
                size_t known = kLoaderCount);

  // Says how many faults there were.
  void Tell(const std::string& kind, size_t step = 1);

 private:
  std::optional<test::Console> console_;
  int faults_ = 0;
};

}  // namespace faults
