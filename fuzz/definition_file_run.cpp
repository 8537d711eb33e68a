// One run of the library; see the header.
#include "fuzz/definition_file_run.h"

#include <algorithm>

#include "fuzz/ask_sweeps.h"
#include "fuzz/hostile_names.h"
#include "fuzz/platform.h"
#include "fuzz/show.h"
#include "support/definition_file.h"
#include "support/fake_platform.h"
#include "support/faults.h"
#include "support/leaks.h"
#include "support/tables.h"
#include "sys_context/context.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"

// The card's memory: with AddressSanitizer, more than this cannot be had.
extern "C" const char* __asan_default_options();
const char* __asan_default_options() {
  return "max_allocation_size_mb=64:allocator_may_return_null=1:quarantine_size_mb=16";
}

namespace fuzz {
namespace {

using test::FakePlatform;
using test::Faults;

// The optical modules' file, which is no file of the fuzzer's: an empty list.
constexpr std::string_view kNoOpticalModules =
    "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=0\n";

// Some are one in so many.
constexpr size_t kShares = 8;

}  // namespace

Outcome Run(std::string_view bytes, int32_t debug, Queries queries) {
  const uint32_t seed = SeedOf(bytes);
  test::ResetTables();
  FakePlatform::Reset();
  PreparePlatform(bytes, seed);
  ddDebugPrint = debug;

  Outcome outcome;
  const test::DefinitionFile file(bytes);
  const test::DefinitionFile optical_file(kNoOpticalModules);
  Faults faults;
  faults.paths["/mnt/work/device_definition.ini"] = file.path();
  faults.paths["/mnt/work/optmodule_definition.ini"] = optical_file.path();
  outcome.code = ddInit();
  FitCards(seed);
  ShowEverything();
  AskHostileNames();
  if (queries == Queries::kAll) {
    AskSweeps(0, 1);
  } else {
    AskSweeps(seed % kShares, kShares);
  }
  test::CountForgotten(faults);
  outcome.lost = test::ReleaseLost(faults);
  test::ResetTables();
  outcome.left = faults.blocks.size();
  return outcome;
}

// kept as is in the library: of a full list the ports themselves are not released, and a
// board's serving ports are not when one of its special ports cannot be had.
bool IsAccountedFor(const Outcome& outcome) {
  const auto lost = [&](size_t size) {
    return static_cast<size_t>(std::count(outcome.lost.begin(), outcome.lost.end(), size));
  };
  static_assert(sizeof(OltPortInformation) != sizeof(OnuPortTypeInformation));
  static_assert(MAX_ONU_LAN_NUM_PER_ONU % MAX_ONU_PON_NUM_PER_ONU == 0);
  const size_t board_ports = lost(sizeof(OltPortInformation));
  const size_t onu_ports = lost(sizeof(OnuPortTypeInformation));
  return outcome.left == 0 && board_ports + onu_ports == outcome.lost.size() &&
         onu_ports % MAX_ONU_PON_NUM_PER_ONU == 0;
}

}  // namespace fuzz
