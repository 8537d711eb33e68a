// Asking the sweeps; see the header.
#include "fuzz/ask_sweeps.h"

#include <string_view>
#include <vector>

#include "support/fake_platform.h"
#include "sys_context/olt.h"
#include "threads/sweeps.h"

namespace fuzz {
namespace {

// The sweeps of single maps take those of the first main board.
bool CanAsk(const test::Sweep& sweep) {
  const std::string_view query = sweep.query;
  return gstSupportedMainBoardType.ulSupportedBoardTypeNum != 0 ||
         (query != "ddGetSwitchChipPhyPortFromLogicPort" &&
          query != "ddGetSwitchChipLogicPortFromPhyPort");
}

}  // namespace

void AskSweeps(size_t first, size_t step) {
  const std::vector<test::Sweep> sweeps = test::AllSweeps();
  for (size_t i = first; i < sweeps.size(); i += step) {
    if (CanAsk(sweeps[i])) {
      test::Answers answers;
      sweeps[i].ask(answers);
      test::FakePlatform::TakeAsked();
    }
  }
}

}  // namespace fuzz
