// Measures what a whole start costs: ddInit, beside one pass of other libraries over
// the same file.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <deque>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "bench/contestants.h"
#include "bench/definition_file.h"
#include "bench/measure.h"
#include "bench/names.h"
#include "bench/one_pass.h"
#include "bench/start.h"
#include "bench/table.h"

extern "C" FILE* fopen(const char* path, const char* mode) {
  return bench::OpenForStart(path, mode);
}

namespace bench {
namespace {

constexpr int kRepetitions = 7;
constexpr double kKilobyte = 1e3;

constexpr char kGKeyFile[] = "GKeyFile";

std::string TextOf(const char* path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// For GKeyFile: comments begin with "#", and each entry is one line.
std::string InOtherDialect(const std::string& text) {
  std::string other;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, "+\n") == 0) {
      ++i;
    } else {
      const bool is_comment = text[i] == ';' && (i == 0 || text[i - 1] == '\n');
      other += is_comment ? '#' : text[i];
    }
  }
  return other;
}

// What is measured on one file.
struct Subject {
  explicit Subject(const StartFile& its_file)
      : file(its_file), text(TextOf(its_file.path)), other_dialect(InOtherDialect(text)) {}

  const StartFile& file;
  std::string text;
  TemporaryFile other_dialect;
  size_t entries = 0;
};

// All libraries must find the same entries.
bool CountEntries(Subject& subject) {
  size_t of_glib = 0;
  const bool read = InihPass(subject.file.path, &subject.entries) &&
                    GKeyFilePass(subject.other_dialect.path(), &of_glib);
  if (!read || subject.entries != of_glib) {
    std::fprintf(stderr, "%s: %zu entries by inih, %zu by GKeyFile\n", subject.file.name,
                 subject.entries, of_glib);
    return false;
  }
  return true;
}

// Clears `all_succeeded` when a run fails.
void Register(const Subject& subject, const char* contestant, const std::function<bool()>& run,
              bool& all_succeeded) {
  const auto measure = [run, &all_succeeded](benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
      all_succeeded = run() && all_succeeded;
    }
  };
  const std::string name = Minima::Name(subject.file.name, contestant);
  benchmark::RegisterBenchmark(name.c_str(), measure)->Unit(benchmark::kMillisecond);
}

void RegisterAll(const Subject& subject, bool& all_succeeded) {
  Register(
      subject, kLibrary, [&] { return Start(subject.file); }, all_succeeded);
  Register(
      subject, kInih, [&] { return InihPass(subject.file.path, nullptr); }, all_succeeded);
  Register(
      subject, kGKeyFile, [&] { return GKeyFilePass(subject.other_dialect.path(), nullptr); },
      all_succeeded);
  Register(
      subject, kScanFloor,
      [&] {
        char value[CFG_VALUE_SIZE];
        return ScanFloor(subject.file.path, {{}, {}, {}, subject.text.size()}, value);
      },
      all_succeeded);
}

std::string RatioIfMeasured(double time, double base) {
  return time == 0 || base == 0 ? "-" : Time(time / base);
}

void PrintTable(const std::deque<Subject>& subjects, const Minima& minima) {
  std::printf("Starts: milliseconds per ddInit, and per pass of others.\n\n");
  Table table({"", "KB", "entries", "ddInit", kInih, kGKeyFile, kScanFloor, "ddInit / inih",
               "ddInit / GKeyFile"});
  for (const Subject& subject : subjects) {
    const auto time = [&](const char* contestant) {
      return minima.Get(subject.file.name, contestant);
    };
    table.Row({subject.file.name, Number(static_cast<double>(subject.text.size()) / kKilobyte, 0),
               std::to_string(subject.entries), Time(time(kLibrary)), Time(time(kInih)),
               Time(time(kGKeyFile)), Time(time(kScanFloor)),
               RatioIfMeasured(time(kLibrary), time(kInih)),
               RatioIfMeasured(time(kLibrary), time(kGKeyFile))});
  }
  table.Print();
}

int Main(int argc, char** argv) {
  if (!TakeOptions(argc, argv, kRepetitions)) {
    return 2;
  }
  bool all_succeeded = true;
  std::deque<Subject> subjects;
  for (const StartFile& file : kStartFiles) {
    Subject& subject = subjects.emplace_back(file);
    if (!CountEntries(subject)) {
      return 2;
    }
    RegisterAll(subject, all_succeeded);
  }
  PrintTable(subjects, Measure());
  if (!all_succeeded) {
    std::fputs("a start or a pass has failed\n", stderr);
    return 2;
  }
  return 0;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  return bench::Main(argc, argv);
}
