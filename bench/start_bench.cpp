// Measures what a whole start costs: ddInit, beside one pass of other libraries over
// the same two files.
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

// One of the files of a start.
struct File {
  explicit File(const char* its_path)
      : path(its_path), text(TextOf(its_path)), other_dialect(InOtherDialect(text)) {}

  const char* path;
  std::string text;
  TemporaryFile other_dialect;
};

bool Inih(const File& file, size_t* entries) {
  return InihPass(file.path, entries);
}

bool GKeyFile(const File& file, size_t* entries) {
  return GKeyFilePass(file.other_dialect.path(), entries);
}

bool Floor(const File& file, size_t*) {
  char value[CFG_VALUE_SIZE];
  return ScanFloor(file.path, {{}, {}, {}, file.text.size()}, value);
}

// What is measured on the files of one start.
struct Subject {
  explicit Subject(const StartFile& its_start)
      : start(its_start), device(its_start.files.device), optical(its_start.files.optical) {}

  size_t Bytes() const { return device.text.size() + optical.text.size(); }

  const StartFile& start;
  File device;
  File optical;
  size_t entries = 0;
};

using Pass = bool (*)(const File& file, size_t* entries);

// The entries of both files; 0 when one cannot be read.
size_t EntriesBy(Pass pass, const Subject& subject) {
  size_t of_device = 0;
  size_t of_optical = 0;
  return pass(subject.device, &of_device) && pass(subject.optical, &of_optical)
             ? of_device + of_optical
             : 0;
}

// All libraries must find the same entries.
bool CountEntries(Subject& subject) {
  subject.entries = EntriesBy(Inih, subject);
  const size_t of_glib = EntriesBy(GKeyFile, subject);
  if (subject.entries == 0 || subject.entries != of_glib) {
    std::fprintf(stderr, "%s: %zu entries by inih, %zu by GKeyFile\n", subject.start.name,
                 subject.entries, of_glib);
    return false;
  }
  return true;
}

void RegisterAll(const Subject& subject, Runs& runs) {
  runs.Register(subject.start.name, kLibrary, [&] { return Start(subject.start); });
  constexpr struct {
    const char* contestant;
    Pass pass;
  } kPasses[] = {{kInih, Inih}, {kGKeyFile, GKeyFile}, {kScanFloor, Floor}};
  for (const auto& [contestant, pass] : kPasses) {
    runs.Register(subject.start.name, contestant, [&subject, pass = pass] {
      return pass(subject.device, nullptr) && pass(subject.optical, nullptr);
    });
  }
}

void PrintTable(const std::deque<Subject>& subjects, const Minima& minima) {
  std::printf("Starts: milliseconds per ddInit, and per pass of others.\n\n");
  Table table({"", "KB", "entries", "ddInit", kInih, kGKeyFile, kScanFloor, "ddInit / inih",
               "ddInit / GKeyFile"});
  for (const Subject& subject : subjects) {
    const auto time = [&](const char* contestant) {
      return minima.Get(subject.start.name, contestant);
    };
    table.Row({subject.start.name, Number(static_cast<double>(subject.Bytes()) / kKilobyte, 0),
               std::to_string(subject.entries), Time(time(kLibrary)), Time(time(kInih)),
               Time(time(kGKeyFile)), Time(time(kScanFloor)),
               ThreeDigitRatio(time(kLibrary), time(kInih)),
               ThreeDigitRatio(time(kLibrary), time(kGKeyFile))});
  }
  table.Print();
}

int Main(int argc, char** argv) {
  if (!TakeOptions(argc, argv, kRepetitions)) {
    return 2;
  }
  Runs runs(TimeUnit::kMillisecond);
  std::deque<Subject> subjects;
  for (const StartFile& file : kStartFiles) {
    Subject& subject = subjects.emplace_back(file);
    if (!CountEntries(subject)) {
      return 2;
    }
    RegisterAll(subject, runs);
  }
  PrintTable(subjects, Measure());
  return runs.ExitStatus();
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  return bench::Main(argc, argv);
}
