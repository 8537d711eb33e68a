// One start; see the header.
#include "mutated_input/start.h"

#include <algorithm>

#include "fuzz/ask_sweeps.h"
#include "fuzz/definition_file_run.h"
#include "fuzz/hostile_names.h"
#include "fuzz/platform.h"
#include "fuzz/show.h"
#include "mutated_input/checker.h"
#include "support/console.h"
#include "support/definition_file.h"
#include "support/fake_platform.h"
#include "support/leaks.h"
#include "support/tables.h"
#include "sys_context/context.h"

namespace mutated {
namespace {

using test::FakePlatform;
using test::Faults;

void PreparePlatform(int32_t device_type, uint32_t seed) {
  FakePlatform::Reset();
  fuzz::PreparePlatform("", seed);
  FakePlatform& platform = FakePlatform::Get();
  platform.device_type = device_type;
  platform.pon_cards = {3101, 3102, 3103, 3105, 3111, 3114};
}

void Check(Outcome& outcome, const Faults& faults) {
  Checker checker(faults, outcome.failed);
  const std::vector<int32_t>& codes = LoaderAt(outcome.failed).codes;
  checker.Expect(std::find(codes.begin(), codes.end(), outcome.code) != codes.end(),
                 "code of the loader", outcome.failed);
  for (const auto check :
       {CheckContextTables, CheckOltTables, CheckFrame, CheckOnuTables, CheckOptModules}) {
    check(checker);
  }
  outcome.wrong = checker.wrong();
}

void Release(Outcome& outcome, Faults& faults) {
  test::CountForgotten(faults);
  fuzz::Outcome blocks;
  blocks.lost = test::ReleaseLost(faults);
  test::ResetTables();
  blocks.left = faults.blocks.size();
  if (!fuzz::IsAccountedFor(blocks)) {
    outcome.wrong.push_back(std::to_string(blocks.lost.size()) + " blocks lost, " +
                            std::to_string(blocks.left) + " left");
  }
}

}  // namespace

Outcome Start(const Files& files, int32_t device_type, uint32_t seed, const Shares& shares,
              const std::function<void()>& look) {
  test::ResetTables();
  PreparePlatform(device_type, seed);
  ddDebugPrint = static_cast<int32_t>(seed % 2);

  Outcome outcome;
  test::Console console;
  const test::DefinitionFile device(files.device);  // read faster than Faults::contents
  const test::DefinitionFile optical(files.optical);
  Faults faults;
  faults.paths["/mnt/work/device_definition.ini"] = device.path();
  faults.paths["/mnt/work/optmodule_definition.ini"] = optical.path();
  outcome.code = ddInit();
  outcome.failed = FailedLoader(console.Text());
  Check(outcome, faults);
  if (look) {
    look();
  }
  if (outcome.wrong.empty()) {
    fuzz::FitCards(seed);
    const uint32_t share = seed / 2;
    if (share % shares.show_one_in == 0) {
      fuzz::ShowEverything();
    }
    if (share % shares.ask_one_in == 1) {
      fuzz::AskSweeps(share / shares.ask_one_in % shares.sweeps_one_in, shares.sweeps_one_in);
      fuzz::AskHostileNames();
    }
  }
  Release(outcome, faults);
  console.Text();  // what is left would be shown
  return outcome;
}

}  // namespace mutated
