// Running the registered benchmarks; see the header.
#include "bench/measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace bench {
namespace {

// Keeps the minima; the tables are printed at the end.
class MinimaReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration) {
        minima_.Add(run.run_name.function_name, run.GetAdjustedCPUTime());
      }
    }
  }

  const Minima& minima() const { return minima_; }

 private:
  Minima minima_;
};

}  // namespace

void Runs::Register(const std::string& scenario, const std::string& contestant,
                    const std::function<bool()>& run) {
  const auto measure = [this, run](benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
      all_succeeded_ = run() && all_succeeded_;
    }
  };
  benchmark::RegisterBenchmark(Minima::Name(scenario, contestant).c_str(), measure)
      ->Unit(unit_ == TimeUnit::kMicrosecond ? benchmark::kMicrosecond : benchmark::kMillisecond);
}

int Runs::ExitStatus() const {
  if (!all_succeeded_) {
    std::fputs("a run has failed\n", stderr);
    return 2;
  }
  return 0;
}

void Minima::Add(const std::string& name, double time) {
  const auto [place, is_new] = minima_.emplace(name, time);
  if (!is_new) {
    place->second = std::min(place->second, time);
  }
}

double Minima::Get(const std::string& scenario, const std::string& contestant) const {
  const auto place = minima_.find(Name(scenario, contestant));
  return place == minima_.end() ? 0 : place->second;
}

bool TakeOptions(int argc, char** argv, int repetitions) {
  std::string defaults[] = {"--benchmark_enable_random_interleaving=true",
                            "--benchmark_repetitions=" + std::to_string(repetitions),
                            "--benchmark_min_time=0.03"};
  std::vector<char*> arguments = {argv[0]};
  for (std::string& option : defaults) {
    arguments.push_back(option.data());
  }
  arguments.insert(arguments.end(), argv + 1, argv + argc);  // they come later and win
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

Minima Measure() {
  MinimaReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.minima();
}

}  // namespace bench
