// Measures what it costs to load main boards, and how that grows when the file
// doubles. A load looks every entry of the main boards up from the top of the
// file; the floor makes the same lookups with ScanFloor.
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <string>
#include <vector>

#include "bench/contestants.h"
#include "bench/main_board_file.h"
#include "bench/measure.h"
#include "bench/names.h"
#include "bench/table.h"
#include "sys_context/olt.h"

namespace bench {
namespace {

constexpr double kKilobyte = 1e3;
constexpr double kMegabyte = 1e6;

constexpr int kRepetitions = 5;

// The floor makes one lookup of so many; its time is multiplied by as much.
constexpr size_t kFloorSample = 8;

// A file to load. One that is twice as large as another says what that is.
struct Scenario {
  const char* name;
  const char* half;
  MainBoards boards;
  OtherSections others = OtherSections::kNone;
};

constexpr char kOneBoard[] = "1 board, 640 ports, 20 maps";
constexpr char kManyBoards[] = "50 boards, 64 ports, 2 maps";

constexpr Scenario kScenarios[] = {
    {"2 boards, 162 ports, 3 maps", nullptr, {2, 162, 3}},  // as in the large sample
    {kOneBoard, nullptr, {1, 640, 20}},
    {"1 board, 1280 ports, 20 maps", kOneBoard, {1, 1280, 20}},  // the limits
    {"1 board; other sections in front", kOneBoard, {1, 640, 20}, OtherSections::kInFront},
    {"1 board; other sections behind", kOneBoard, {1, 640, 20}, OtherSections::kBehind},
    {kManyBoards, nullptr, {50, 64, 2}},
    {"100 boards, 64 ports, 2 maps", kManyBoards, {100, 64, 2}},
    {"50 boards; other sections in front", kManyBoards, {50, 64, 2}, OtherSections::kInFront},
    {"50 boards; other sections behind", kManyBoards, {50, 64, 2}, OtherSections::kBehind},
};

// What a scenario is measured on.
struct Subject {
  explicit Subject(const Scenario& its_scenario)
      : scenario(its_scenario),
        content(WriteMainBoards(its_scenario.boards, its_scenario.others)),
        file(content.text) {}

  const Scenario& scenario;
  MainBoardFile content;
  TemporaryFile file;
};

// Is the last port of the last map as the file has it?
bool IsComplete(const MainBoards& boards, const MainBoardInformation& board) {
  const PortMap& map = board.astPortMap[boards.maps - 1];
  return board.ulChipLogicPortToPhyPortTypeNum == boards.maps &&
         map.astPortPair[boards.ports - 1].usPhyPort == (boards.maps - 1) % boards.ports + 1;
}

// Loads the main boards and releases them.
bool Load(const Subject& subject) {
  const MainBoards& boards = subject.scenario.boards;
  SupportedMainBoardType& table = gstSupportedMainBoardType;
  bool loaded = ddReadAllSupportedMainBoardInformation(subject.file.path()) == 0 &&
                table.ulSupportedBoardTypeNum == boards.boards;
  for (uint32_t i = 0; i < table.ulSupportedBoardTypeNum; ++i) {
    loaded = loaded && IsComplete(boards, *table.pBoardTypeArray[i]);
    std::free(table.pBoardTypeArray[i]);
  }
  std::free(table.pBoardTypeArray);
  table = {};
  return loaded;
}

bool SampleOfFloor(const Subject& subject) {
  const std::vector<Lookup>& lookups = subject.content.lookups;
  char value[CFG_VALUE_SIZE];
  bool read = true;
  for (size_t i = 0; i < lookups.size(); i += kFloorSample) {
    read = ScanFloor(subject.file.path(), lookups[i], value) && read;
  }
  return read;
}

void PrintTable(const std::deque<Subject>& subjects, const Minima& minima) {
  std::printf("Loads of main boards: milliseconds per load.\n\n");
  Table table({"", "KB", "lookups", "MB scanned", kLibrary, kScanFloor, "library / floor",
               "library / half the file"});
  for (const Subject& subject : subjects) {
    const auto& [name, half, boards, others] = subject.scenario;
    const MainBoardFile& content = subject.content;
    const double library = minima.Get(name, kLibrary);
    const double floor = minima.Get(name, kScanFloor) * kFloorSample;
    const double half_library = half == nullptr ? 0 : minima.Get(half, kLibrary);
    table.Row({name, Number(static_cast<double>(content.text.size()) / kKilobyte, 0),
               std::to_string(content.lookups.size()),
               Number(static_cast<double>(content.BytesScanned()) / kMegabyte, 0), Time(library),
               Time(floor), RatioIfMeasured(library, floor),
               RatioIfMeasured(library, half_library)});
  }
  table.Print();
}

int Main(int argc, char** argv) {
  if (!TakeOptions(argc, argv, kRepetitions)) {
    return 2;
  }
  Runs runs(TimeUnit::kMillisecond);
  std::deque<Subject> subjects;
  for (const Scenario& scenario : kScenarios) {
    const Subject& subject = subjects.emplace_back(scenario);
    runs.Register(scenario.name, kLibrary, [&] { return Load(subject); });
    runs.Register(scenario.name, kScanFloor, [&] { return SampleOfFloor(subject); });
  }
  PrintTable(subjects, Measure());
  return runs.ExitStatus();
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  return bench::Main(argc, argv);
}
