// Measures what it costs to load the list of optical modules, and how that grows with their
// number. Beside it stand the same lookups, each made from the top of the file, and the
// floor under them.
#include <algorithm>
#include <cstdio>
#include <deque>
#include <string>

#include "bench/contestants.h"
#include "bench/from_the_top.h"
#include "bench/measure.h"
#include "bench/names.h"
#include "bench/optical_file.h"
#include "bench/table.h"
#include "sys_context/optmodule.h"

namespace bench {
namespace {

constexpr int kRepetitions = 9;
constexpr double kKilobyte = 1e3;

constexpr size_t kModules[] = {12, 25, MAX_OPTMODULE_INFO_NUM};

constexpr char kFromTheTop[] = "from the top";

// What is loaded.
struct OpticalLoad {
  explicit OpticalLoad(size_t number_of_modules)
      : modules(number_of_modules),
        name(std::to_string(modules) + " modules"),
        content(WriteOptModules(modules)),
        file(content.text) {}

  size_t modules;
  std::string name;
  OpticalFile content;
  TemporaryFile file;
};

// Each load releases the list of the one before.
bool Load(const OpticalLoad& load) {
  const OptModuleInfoList& list = g_optmdule_infolist;
  return optmodule_infolist_read(load.file.path()) == 0 && list.listnum == load.modules &&
         list.objlist[list.listnum - 1]->pathnum == kOptModulePaths;
}

bool FromTheTop(const OpticalLoad& load) {
  return LookUpFromTheTop(load.file, load.content.lookups);
}

bool Floor(const OpticalLoad& load) {
  char value[CFG_VALUE_SIZE];
  return std::all_of(
      load.content.lookups.begin(), load.content.lookups.end(),
      [&](const Lookup& lookup) { return OpenFloor(load.file.path(), lookup, value); });
}

void PrintTable(const std::deque<OpticalLoad>& loads, const Minima& minima) {
  std::printf("Loads of optical modules with %zu paths each: microseconds per load.\n\n",
              kOptModulePaths);
  Table table({"", "KB", "lookups", "library", "per lookup", "library / row above", "floor",
               "library / floor", "all from the top", "from the top / library"});
  double above = 0;
  for (const OpticalLoad& load : loads) {
    const size_t lookups = load.content.lookups.size();
    const double library = minima.Get(load.name, kLibrary);
    const double floor = minima.Get(load.name, kOpenFloor);
    const double top = minima.Get(load.name, kFromTheTop);
    table.Row({load.name, Number(static_cast<double>(load.content.text.size()) / kKilobyte, 1),
               std::to_string(lookups), Time(library), Time(library / static_cast<double>(lookups)),
               RatioIfMeasured(library, above), Time(floor), RatioIfMeasured(library, floor),
               Time(top), RatioIfMeasured(top, library)});
    above = library;
  }
  table.Print();
}

int Main(int argc, char** argv) {
  if (!TakeOptions(argc, argv, kRepetitions)) {
    return 2;
  }
  Runs runs(TimeUnit::kMicrosecond);
  std::deque<OpticalLoad> loads;
  for (const size_t modules : kModules) {
    const OpticalLoad& load = loads.emplace_back(modules);
    runs.Register(load.name, kLibrary, [&] { return Load(load); });
    runs.Register(load.name, kOpenFloor, [&] { return Floor(load); });
    runs.Register(load.name, kFromTheTop, [&] { return FromTheTop(load); });
  }
  PrintTable(loads, Measure());
  return runs.ExitStatus();
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  return bench::Main(argc, argv);
}
