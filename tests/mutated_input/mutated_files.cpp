// Starts with very many mutated pairs of definition files. The starts are made by a child
// process, so that a crash or a hang ends that only: the next one goes on behind it.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

#include "mutated_input/bytes.h"
#include "mutated_input/start.h"

namespace {

using std::string;

constexpr char kUsage[] =
    "usage: mutated_files [--count N] [--seed S] [--first K]\n"
    "\n"
    "Starts the library with N (1000000) pairs of definition files, from number K (0) of seed S\n"
    "(1). A few bytes of each are changed. The same seed and number give the same files. Those\n"
    "that fail are saved in the current folder as find_SEED_NUMBER_device.ini and\n"
    "find_SEED_NUMBER_optical.ini; --first NUMBER --count 1 repeats them.\n";

constexpr unsigned int kMostSeconds = 60;  // for one start
constexpr uint32_t kPerChild = 5000;
constexpr uint32_t kPerReport = 50000;
constexpr int32_t kLowestCode = -128;

struct Run {
  uint32_t count = 1000000;
  uint32_t seed = 1;
  uint32_t first = 0;
};

// What the children tell, in memory that they share with their parent.
struct Told {
  uint32_t next;                    // the number of the start at hand
  uint32_t finds;                   // starts after which something was wrong
  uint32_t codes[1 - kLowestCode];  // how often ddInit returned 0, -1 ...
};

bool ParseNumber(const char* text, uint32_t& number) {
  char* end = nullptr;
  const unsigned long parsed = std::strtoul(text, &end, 10);
  number = static_cast<uint32_t>(parsed);
  return *text >= '0' && *text <= '9' && *end == '\0' && parsed <= 0xffffffff;
}

bool ParseArguments(int count, char** words, Run& run) {
  for (int i = 1; i < count; i += 2) {
    const std::string_view option = words[i];
    uint32_t* const number = option == "--count"   ? &run.count
                             : option == "--seed"  ? &run.seed
                             : option == "--first" ? &run.first
                                                   : nullptr;
    if (number == nullptr || i + 1 == count || !ParseNumber(words[i + 1], *number)) {
      return false;
    }
  }
  return true;
}

void Save(const Run& run, uint32_t number) {
  const mutated::Files files = mutated::MutatedFilesOf(run.seed, number).files;
  const string name = "find_" + std::to_string(run.seed) + "_" + std::to_string(number);
  std::ofstream(name + "_device.ini", std::ios::binary) << files.device;
  std::ofstream(name + "_optical.ini", std::ios::binary) << files.optical;
}

void StartOne(const Run& run, Told& told) {
  const mutated::MutatedFiles mutated = mutated::MutatedFilesOf(run.seed, told.next);
  alarm(kMostSeconds);
  const mutated::Outcome outcome = mutated::Start(mutated.files, mutated.device_type, mutated.seed);
  ++told.codes[-std::clamp(outcome.code, kLowestCode, 0)];
  if (!outcome.wrong.empty()) {
    ++told.finds;
    Save(run, told.next);
    for (const string& wrong : outcome.wrong) {
      std::fprintf(stderr, "find: number %u, code %d: %s\n", told.next, outcome.code,
                   wrong.c_str());
    }
  }
}

// Starts up to the number `end` in a child; of one that it does not survive, the files are saved.
void RunChild(const Run& run, uint32_t end, Told& told) {
  std::fflush(stdout);
  const pid_t child = fork();
  if (child == 0) {
    for (; told.next < end; ++told.next) {
      StartOne(run, told);
    }
    std::_Exit(EXIT_SUCCESS);
  }
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) {
    std::perror("mutated_files");
    std::exit(EXIT_FAILURE);
  }
  if (!WIFEXITED(status) || WEXITSTATUS(status) != EXIT_SUCCESS) {
    std::fprintf(stderr, "find: number %u ended the process, wait status %d\n", told.next, status);
    ++told.finds;
    Save(run, told.next++);
  }
}

void Report(const Run& run, const Told& told, double seconds) {
  std::printf("%u files of seed %u, %u finds, %.0f s\n", told.next - run.first, run.seed,
              told.finds, seconds);
}

void ReportCodes(const Told& told) {
  for (int32_t code = 0; code >= kLowestCode; --code) {
    if (told.codes[-code] != 0) {
      std::printf("ddInit = %d: %u\n", code, told.codes[-code]);
    }
  }
}

}  // namespace

int main(int argument_count, char** arguments) {
  Run run;
  if (!ParseArguments(argument_count, arguments, run) || run.count > 0xffffffff - run.first) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  void* const shared =
      mmap(nullptr, sizeof(Told), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (shared == MAP_FAILED) {
    std::perror("mutated_files");
    return EXIT_FAILURE;
  }
  Told& told = *static_cast<Told*>(shared);
  told.next = run.first;
  const auto begin = std::chrono::steady_clock::now();
  const auto report = [&] {
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    Report(run, told, passed.count());
  };
  const uint32_t end = run.first + run.count;
  while (told.next < end) {
    const uint32_t before = told.next;
    RunChild(run, before + std::min(kPerChild, end - before), told);
    if ((before - run.first) / kPerReport != (told.next - run.first) / kPerReport) {
      report();
    }
  }
  report();
  ReportCodes(told);
  return told.finds == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
