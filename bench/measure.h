// Running the registered benchmarks. All repetitions of all contestants run in
// random order, and the fastest of each counts, so that what else the machine
// does falls on all alike. Times are processor time.
#pragma once

#include <functional>
#include <map>
#include <string>

namespace bench {

// The fastest repetition of each contestant in each scenario.
class Minima {
 public:
  // What a contestant's benchmark in a scenario is called.
  static std::string Name(const std::string& scenario, const std::string& contestant) {
    return scenario + ": " + contestant;
  }

  void Add(const std::string& name, double time);
  // In the benchmark's unit; 0 for what was not measured.
  double Get(const std::string& scenario, const std::string& contestant) const;

 private:
  std::map<std::string, double> minima_;
};

// The unit of a benchmark's times.
enum class TimeUnit { kMicrosecond, kMillisecond };

// What a program measures: contestants in scenarios, each a function that is false when a
// run fails.
class Runs {
 public:
  explicit Runs(TimeUnit unit) : unit_(unit) {}

  void Register(const std::string& scenario, const std::string& contestant,
                const std::function<bool()>& run);
  // The exit status of the program, which says so when a run has failed.
  int ExitStatus() const;

 private:
  const TimeUnit unit_;
  bool all_succeeded_ = true;
};

// Takes the options of the command line; it may change the repetitions, too.
// False when there is one that nobody knows.
bool TakeOptions(int argc, char** argv, int repetitions);

// Runs what is registered.
Minima Measure();

}  // namespace bench
