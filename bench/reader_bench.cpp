// Measures what a lookup costs.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "bench/contestants.h"
#include "bench/definition_file.h"
#include "bench/measure.h"
#include "bench/names.h"
#include "bench/results.h"

namespace bench {
namespace {

constexpr int kRepetitions = 9;
constexpr size_t kKilobyte = 1000;
constexpr size_t kMegabyte = 1000 * kKilobyte;

struct Contestant {
  const char* name;
  LookUp look_up;
  bool is_floor;
};

constexpr Contestant kLibraries[] = {
    {kLibrary, Library, false},
    {kLibraryWithOffset, LibraryWithOffset, false},
};
constexpr Contestant kByteByByte[] = {
    {kFread, FreadByteByByte, false},
    {kGetc, GetcByteByByte, false},
};
constexpr Contestant kPeers[] = {
    {kInih, Inih, false},
    {kIniparser, Iniparser, false},
};
constexpr Contestant kFloors[] = {
    {kScanFloor, ScanFloor, true},
    {kOpenFloor, OpenFloor, true},
};

// Collects the scenarios, and checks every contestant before it is measured.
class Bench {
 public:
  // `lookup` is one of the lookups of `file`.
  void Add(Scenario::Group group, const char* name, const DefinitionFile& file,
           const Lookup& lookup) {
    Write(file);
    AddForLastFile(group, name, file, lookup);
  }

  void Write(const DefinitionFile& file) {
    files_.push_back(std::make_unique<TemporaryFile>(file.text));
  }

  void AddForLastFile(Scenario::Group group, const char* name, const DefinitionFile& file,
                      const Lookup& lookup) {
    const bool is_first = group == Scenario::Group::kFirstKey;
    const bool is_odd = group == Scenario::Group::kOddLines;
    scenarios_.push_back({group, name, is_first ? kOpenFloor : kScanFloor, lookup, file.odd_lines});
    for (const Contestant& contestant : kLibraries) {
      Register(contestant);
    }
    for (const Contestant& contestant : kByteByByte) {
      Register(contestant);
    }
    Register(kFloors[is_first ? 1 : 0]);
    for (const Contestant& contestant : kPeers) {
      // The peers read odd lines otherwise, and to load a file into a
      // dictionary takes too long when it is large.
      const bool loads_all = contestant.look_up == Iniparser;
      if (!is_odd && (!loads_all || file.text.size() < 2 * kMegabyte)) {
        Register(contestant);
      }
    }
  }

  bool all_agree() const { return all_agree_; }
  const std::vector<Scenario>& scenarios() const { return scenarios_; }

 private:
  void Register(const Contestant& contestant) {
    const Scenario& scenario = scenarios_.back();
    const char* const path = files_.back()->path();
    char value[CFG_VALUE_SIZE] = {};
    const bool found = contestant.look_up(path, scenario.lookup, value);
    if (!found || (!contestant.is_floor && scenario.lookup.value != value)) {
      std::fprintf(stderr, "%s: %s %s '%s' instead of '%s'\n", scenario.name.c_str(),
                   contestant.name, found ? "answers" : "fails with", value,
                   scenario.lookup.value.c_str());
      all_agree_ = false;
      return;
    }
    const auto measure = [path, lookup = scenario.lookup,
                          look_up = contestant.look_up](benchmark::State& state) {
      char result[CFG_VALUE_SIZE];
      for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(look_up(path, lookup, result));
        benchmark::DoNotOptimize(result);
      }
    };
    const std::string name = Minima::Name(scenario.name, contestant.name);
    benchmark::RegisterBenchmark(name.c_str(), measure)->Unit(benchmark::kMicrosecond);
  }

  std::vector<std::unique_ptr<TemporaryFile>> files_;
  std::vector<Scenario> scenarios_;
  bool all_agree_ = true;
};

void AddScenarios(Bench& bench) {
  using enum Scenario::Group;
  const DefinitionFile ordinary = ManySections(600 * kKilobyte);
  bench.Write(ordinary);
  bench.AddForLastFile(kScan, kMiddle, ordinary, ordinary.middle);
  bench.AddForLastFile(kScan, kEnd, ordinary, ordinary.last);
  bench.AddForLastFile(kFirstKey, kFirstMedium, ordinary, ordinary.first);

  const DefinitionFile cr_lf = ManySections(600 * kKilobyte, LineEnd::kCrLf);
  bench.Write(cr_lf);
  bench.AddForLastFile(kScan, kCrLfMiddle, cr_lf, cr_lf.middle);
  bench.AddForLastFile(kScan, kCrLfEnd, cr_lf, cr_lf.last);

  const DefinitionFile huge = HugeSection(kMegabyte);
  bench.Add(kScan, kHuge, huge, huge.last);

  const DefinitionFile small = ManySections(2 * kKilobyte);
  bench.Add(kFirstKey, kFirstSmall, small, small.first);
  const DefinitionFile large = ManySections(20 * kMegabyte);
  bench.Add(kFirstKey, kFirstLarge, large, large.first);

  using Kind = OddLines::Kind;
  const auto odd = [](Kind kind, size_t every) {
    return ManySections(600 * kKilobyte, LineEnd::kLf, {kind, every});
  };
  const DefinitionFile long_lines = odd(Kind::kLong, 200);
  bench.Add(kOddLines, kLongLines, long_lines, long_lines.last);
  const DefinitionFile odd_bytes = odd(Kind::kOddByte, 50);
  bench.Add(kOddLines, kOddBytes, odd_bytes, odd_bytes.last);
  const DefinitionFile all_tabs = odd(Kind::kTabs, 1);
  bench.Add(kOddLines, kAllTabs, all_tabs, all_tabs.last);
  const DefinitionFile huge_odd = HugeSection(kMegabyte, {Kind::kOddByte, 50});
  bench.Add(kOddLines, kHugeOddBytes, huge_odd, huge_odd.last);
}

int Main(int argc, char** argv) {
  if (!TakeOptions(argc, argv, kRepetitions)) {
    return 2;
  }
  Bench bench;
  AddScenarios(bench);
  if (!bench.all_agree()) {
    return 2;
  }
  const bool all_met = PrintResults(bench.scenarios(), Measure());
  return all_met ? 0 : 1;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  return bench::Main(argc, argv);
}
