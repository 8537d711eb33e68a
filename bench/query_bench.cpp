// Measures what a query costs, each kind on the tables of the large sample: with a
// typical argument, and with the worst. Beside each time stands its ratio to a
// call that does nothing and, where a table is looked through, to a plain loop.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

#include "bench/measure.h"
#include "bench/queries.h"
#include "bench/table.h"

namespace bench {
namespace {

constexpr int kRepetitions = 9;

// Calls in a row, so that counting them costs nothing.
constexpr size_t kBatch = 1000;

constexpr char kCall[] = "an empty call";
constexpr char kTypical[] = "typical";
constexpr char kWorst[] = "worst";
constexpr char kPlain[] = "plain";

// Clears `all_succeeded` when there is another answer than the expected one.
void Register(const char* query, const char* contestant, const Question& question,
              bool& all_succeeded) {
  if (question.ask == nullptr) {
    return;
  }
  const std::string name = Minima::Name(query, contestant);
  all_succeeded = AnswersAsExpected(name, question) && all_succeeded;
  const auto measure = [question](benchmark::State& state) {
    while (state.KeepRunningBatch(kBatch)) {
      benchmark::DoNotOptimize(question.ask(kBatch));
    }
  };
  benchmark::RegisterBenchmark(name.c_str(), measure);
}

void PrintTable(const Minima& minima) {
  const double call = minima.Get(kCall, kTypical);
  std::printf("Queries: nanoseconds per call; a call that does nothing takes %s.\n\n",
              Time(call).c_str());
  Table table({"", "looks through", "typical", "/ empty call", "worst", "/ empty call",
               "plain loop", "library / loop"});
  for (const Query& query : Queries()) {
    const double typical = minima.Get(query.name, kTypical);
    const double worst = minima.Get(query.name, kWorst);
    const double plain = minima.Get(query.name, kPlain);
    table.Row({query.name, query.scans, Time(typical), ThreeDigitRatio(typical, call), Time(worst),
               ThreeDigitRatio(worst, call), Time(plain),
               ThreeDigitRatio(worst == 0 ? typical : worst, plain)});
  }
  table.Print();
}

int Main(int argc, char** argv) {
  if (!TakeOptions(argc, argv, kRepetitions)) {
    return 2;
  }
  if (!LoadSample()) {
    std::fputs("the sample has not been loaded\n", stderr);
    return 2;
  }
  bool all_succeeded = true;
  Register(kCall, kTypical, EmptyCall(), all_succeeded);
  for (const Query& query : Queries()) {
    Register(query.name, kTypical, query.typical, all_succeeded);
    Register(query.name, kWorst, query.worst, all_succeeded);
    Register(query.name, kPlain, query.plain, all_succeeded);
  }
  if (!all_succeeded) {
    return 2;
  }
  PrintTable(Measure());
  return 0;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  return bench::Main(argc, argv);
}
