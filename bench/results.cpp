// Tables and verdicts; see the header.
#include "bench/results.h"

#include <algorithm>
#include <cstdio>

#include "bench/names.h"
#include "bench/table.h"

namespace bench {
namespace {

class Results {
 public:
  Results(const std::vector<Scenario>& scenarios, const Minima& minima)
      : scenarios_(scenarios), minima_(minima) {}

  void PrintLookups(Scenario::Group group, const char* title) const {
    std::printf("%s: microseconds per lookup.\n\n", title);
    Table table({"", "bytes", kLibrary, kLibraryWithOffset, "floor", "library / floor", kFread,
                 kGetc, kInih, kIniparser});
    for (const Scenario& scenario : scenarios_) {
      if (scenario.group != group) {
        continue;
      }
      const auto cell = [&](const std::string& contestant) {
        return Time(minima_.Get(scenario.name, contestant));
      };
      table.Row({scenario.name, std::to_string(scenario.lookup.bytes), cell(kLibrary),
                 cell(kLibraryWithOffset), cell(scenario.floor), Ratio(AboveFloor(scenario)),
                 cell(kFread), cell(kGetc), cell(kInih), cell(kIniparser)});
    }
    table.Print();
  }

  void PrintOddLines() const {
    std::printf(
        "Odd lines: the library, per byte against the same file without them; what an odd\n"
        "line costs more than an ordinary one, in nanoseconds.\n\n");
    Table table({"", "us per lookup", "odd lines", "ratio", "ns per odd line"});
    for (const Scenario& scenario : scenarios_) {
      if (scenario.group == Scenario::Group::kOddLines) {
        table.Row({scenario.name, Time(Library(scenario)), std::to_string(scenario.odd_lines),
                   Ratio(AboveOrdinary(scenario)), Number(PerOddLine(scenario), 0)});
      }
    }
    table.Print();
  }

  bool PrintGoals() {
    Table table({"goal", "measured", "limit", "", "stretch", " "});
    for (const char* const name : {kMiddle, kEnd}) {
      Goal(table, std::string(name) + ": library / floor", AboveFloor(Find(name)), 2.0, 1.5);
    }
    Goal(table, "1 MB, one huge section: library / floor", AboveFloor(Find(kHuge)), 2.5, 2.0);
    Goal(table, "CR LF / LF, middle", PerByte(Find(kCrLfMiddle)) / PerByte(Find(kMiddle)), 1.4);
    Goal(table, "CR LF / LF, end", PerByte(Find(kCrLfEnd)) / PerByte(Find(kEnd)), 1.4);
    for (const char* const name : {kMiddle, kEnd}) {
      AtLeast(table, std::string(name) + ": fread byte by byte / library",
              minima_.Get(name, kFread) / Library(Find(name)), 35);
    }
    for (const char* const name : {kFirstSmall, kFirstMedium, kFirstLarge}) {
      Goal(table, std::string(name) + ": library / open + read 4 KB + close",
           AboveFloor(Find(name)), 1.7);
    }
    Goal(table, "first key, 20 MB / 600 KB",
         Library(Find(kFirstLarge)) / Library(Find(kFirstMedium)), 1.1);
    for (const Scenario& scenario : scenarios_) {
      if (scenario.group == Scenario::Group::kOddLines) {
        Goal(table, scenario.name + ": per byte / ordinary", AboveOrdinary(scenario), 1.5);
      }
    }
    table.Print();
    return all_met_;
  }

 private:
  const Scenario& Find(const std::string& name) const {
    return *std::find_if(scenarios_.begin(), scenarios_.end(),
                         [&](const Scenario& scenario) { return scenario.name == name; });
  }

  double Library(const Scenario& scenario) const { return minima_.Get(scenario.name, kLibrary); }

  double AboveFloor(const Scenario& scenario) const {
    return Library(scenario) / minima_.Get(scenario.name, scenario.floor);
  }

  double PerByte(const Scenario& scenario) const {
    return Library(scenario) / static_cast<double>(scenario.lookup.bytes);
  }

  double OrdinaryPerByte(const Scenario& scenario) const {
    return PerByte(Find(scenario.name == kHugeOddBytes ? kHuge : kEnd));
  }

  double AboveOrdinary(const Scenario& scenario) const {
    return PerByte(scenario) / OrdinaryPerByte(scenario);
  }

  double PerOddLine(const Scenario& scenario) const {
    const double more = (PerByte(scenario) - OrdinaryPerByte(scenario)) *
                        static_cast<double>(scenario.lookup.bytes);
    return 1000 * more / static_cast<double>(scenario.odd_lines);
  }

  std::string Verdict(bool met) {
    all_met_ = all_met_ && met;
    return met ? "met" : "MISSED";
  }

  void Goal(Table& table, const std::string& what, double measured, double limit,
            double stretch = 0) {
    const bool has_stretch = stretch != 0;
    table.Row({what, Ratio(measured), "<= " + Number(limit, 1), Verdict(measured <= limit),
               has_stretch ? "<= " + Number(stretch, 1) : "",
               has_stretch ? (measured <= stretch ? "met" : "missed") : ""});
  }

  void AtLeast(Table& table, const std::string& what, double measured, double limit) {
    table.Row(
        {what, Number(measured, 1), ">= " + Number(limit, 0), Verdict(measured >= limit), "", ""});
  }

  const std::vector<Scenario>& scenarios_;
  const Minima& minima_;
  bool all_met_ = true;
};

}  // namespace

bool PrintResults(const std::vector<Scenario>& scenarios, const Minima& minima) {
  Results results(scenarios, minima);
  results.PrintLookups(Scenario::Group::kScan, "Scans");
  results.PrintLookups(Scenario::Group::kFirstKey, "Short lookups");
  results.PrintOddLines();
  return results.PrintGoals();
}

}  // namespace bench
