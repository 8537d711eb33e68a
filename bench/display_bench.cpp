// Measures what it costs to show the stored definition file, which is handed to the
// terminal a character at a time. Beside it stand the same text by one call for each line,
// and by one copy. The platform is the simplest: an image in memory for the flash, and for
// the terminal a buffer that takes the formatted text.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "bench/measure.h"
#include "bench/table.h"
#include "sys_context/cli.h"
#include "sys_context/platform.h"

namespace bench {
namespace {

constexpr int kRepetitions = 9;
constexpr double kKilobyte = 1e3;
constexpr double kNanoseconds = 1e3;  // in a microsecond

constexpr char kScenario[] = "the stored file";
constexpr char kShown[] = "ddPrintContextFile";
constexpr char kFetched[] = "fetched, none of it shown";
constexpr char kByLine[] = "a call for each line";
constexpr char kCopied[] = "one copy";

struct Terminal {
  char text[1 << 20];
  size_t length;
  size_t calls;
};
Terminal terminal;

// What is in flash: the sample, or the same with a zero byte in front, of which nothing is
// shown.
struct Images {
  std::string sample;
  std::string hidden;
};

Images ReadImages() {
  std::ifstream stream(SYS_CONTEXT_SAMPLE, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  std::string hidden = text;
  hidden[0] = '\0';
  return {text, hidden};
}

const Images& TheImages() {
  static const Images images = ReadImages();
  return images;
}

const std::string* in_flash = nullptr;

// Each shows the file in `terminal`.
void Show() {
  in_flash = &TheImages().sample;
  ddPrintContextFile(&terminal);
}

void Fetch() {
  in_flash = &TheImages().hidden;
  ddPrintContextFile(&terminal);
}

void ShowByLine() {
  vty_out(&terminal, "\r\n");
  const std::string& text = TheImages().sample;
  for (size_t start = 0; start < text.size();) {
    const size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
    vty_out(&terminal, "%.*s", static_cast<int>(end - start), &text[start]);
    start = end;
  }
  vty_out(&terminal, "\r\n");
}

void Copy() {
  const std::string& text = TheImages().sample;
  char* const place = terminal.text;
  std::memcpy(place, "\r\n", 2);
  std::memcpy(place + 2, text.data(), text.size());
  std::memcpy(place + 2 + text.size(), "\r\n", 2);
  terminal.length = text.size() + 4;
}

constexpr struct {
  const char* name;
  void (*run)();
  bool shows;
} kContestants[] = {
    {kShown, Show, true},
    {kFetched, Fetch, false},
    {kByLine, ShowByLine, true},
    {kCopied, Copy, true},
};

void Run(void (*run)()) {
  terminal.length = 0;
  terminal.calls = 0;
  run();
  benchmark::DoNotOptimize(terminal.text);
  benchmark::ClobberMemory();
}

// Does each leave what it has to on the terminal?
bool AllShow() {
  const std::string text = "\r\n" + TheImages().sample + "\r\n";
  for (const auto& [name, run, shows] : kContestants) {
    Run(run);
    if (std::string_view(terminal.text, terminal.length) != (shows ? text : "\r\n\r\n")) {
      std::fprintf(stderr, "%s: %zu characters shown\n", name, terminal.length);
      return false;
    }
  }
  return true;
}

void PrintTable(const Minima& minima) {
  const std::string& text = TheImages().sample;
  const double shown = minima.Get(kScenario, kShown);
  std::printf("Showing the stored file of %.0f KB: microseconds.\n\n",
              static_cast<double>(text.size()) / kKilobyte);
  Table table({"", "calls of vty_out", "us", "ns per character", "ddPrintContextFile / this"});
  for (const auto& [name, run, shows] : kContestants) {
    Run(run);
    const double time = minima.Get(kScenario, name);
    table.Row({name, std::to_string(terminal.calls), Time(time),
               shows ? Time(time * kNanoseconds / static_cast<double>(text.size())) : "-",
               ThreeDigitRatio(shown, time)});
  }
  table.Print();
}

int Main(int argc, char** argv) {
  if (!TakeOptions(argc, argv, kRepetitions)) {
    return 2;
  }
  if (!AllShow()) {
    return 2;
  }
  for (const auto& [name, run, shows] : kContestants) {
    const auto measure = [run = run](benchmark::State& state) {
      for ([[maybe_unused]] auto _ : state) {
        Run(run);
      }
    };
    benchmark::RegisterBenchmark(Minima::Name(kScenario, name).c_str(), measure)
        ->Unit(benchmark::kMicrosecond);
  }
  PrintTable(Measure());
  return 0;
}

}  // namespace
}  // namespace bench

extern "C" {

int32_t vty_out(void*, const char* format, ...) {
  bench::Terminal& terminal = bench::terminal;
  va_list values;
  va_start(values, format);
  const int length = std::vsnprintf(terminal.text + terminal.length,
                                    sizeof terminal.text - terminal.length, format, values);
  va_end(values);
  terminal.length += static_cast<size_t>(length);
  ++terminal.calls;
  return length;
}

int32_t flash_sizeof(const char*) {
  return static_cast<int32_t>(bench::in_flash->size());
}

int32_t flash_read(const char*, char* image, int32_t* length) {
  std::memcpy(image, bench::in_flash->data(), bench::in_flash->size());
  *length = static_cast<int32_t>(bench::in_flash->size());
  return 0;
}

}  // extern "C"

int main(int argc, char** argv) {
  return bench::Main(argc, argv);
}
