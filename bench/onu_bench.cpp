// Measures what it costs to load ONU types, and how that grows with their number.
// Beside it stand the same lookups, each made from the top of the file.
#include <cstdio>
#include <deque>
#include <string>

#include "bench/from_the_top.h"
#include "bench/measure.h"
#include "bench/onu_load.h"
#include "bench/table.h"

namespace bench {
namespace {

constexpr int kRepetitions = 5;
constexpr double kKilobyte = 1e3;
constexpr double kMicroseconds = 1e3;  // in a millisecond

constexpr char kLoad[] = "load";
constexpr char kFromTheTop[] = "from the top";

std::string Scenario(size_t types) {
  return std::to_string(types) + " ONU types";
}

bool FromTheTop(const OnuLoad& load) {
  return LookUpFromTheTop(load.file, load.content.lookups);
}

void PrintTable(const std::deque<OnuLoad>& loads, const Minima& minima) {
  std::printf("Loads of ONU types with %zu ports each: milliseconds per load.\n\n", kOnuPorts);
  Table table({"", "KB", "lookups", "library", "us per port key", "library / half the types",
               "all from the top", "from the top / half the types", "from the top / library"});
  for (const OnuLoad& load : loads) {
    const double library = minima.Get(Scenario(load.types), kLoad);
    const double top = minima.Get(Scenario(load.types), kFromTheTop);
    const std::string half = Scenario(load.types / 2);
    table.Row({Scenario(load.types),
               Number(static_cast<double>(load.content.text.size()) / kKilobyte, 0),
               std::to_string(load.content.lookups.size()), Time(library),
               Time(library * kMicroseconds / static_cast<double>(load.types * kOnuPorts)),
               RatioIfMeasured(library, minima.Get(half, kLoad)), Time(top),
               RatioIfMeasured(top, minima.Get(half, kFromTheTop)), RatioIfMeasured(top, library)});
  }
  table.Print();
}

int Main(int argc, char** argv) {
  if (!TakeOptions(argc, argv, kRepetitions)) {
    return 2;
  }
  Runs runs(TimeUnit::kMillisecond);
  std::deque<OnuLoad> loads;
  for (const size_t types : kOnuTypes) {
    const OnuLoad& load = loads.emplace_back(types);
    runs.Register(Scenario(types), kLoad, [&] { return LoadOnuTypes(load); });
    runs.Register(Scenario(types), kFromTheTop, [&] { return FromTheTop(load); });
  }
  if (!LoadOnuPortTypes(loads.front())) {  // the same in every file
    std::fputs("the port types have not been loaded\n", stderr);
    return 2;
  }
  PrintTable(loads, Measure());
  return runs.ExitStatus();
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  return bench::Main(argc, argv);
}
