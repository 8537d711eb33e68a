// Definition files with main boards; see the header.
#include "bench/main_board_file.h"

#include <numeric>

#include "bench/entry_writer.h"

namespace bench {
namespace {

// Every map is another rotation of the ports.
void WriteMap(EntryWriter& writer, const std::string& prefix, size_t ports, size_t shift) {
  for (size_t port = 1; port <= ports; ++port) {
    writer.Entry(prefix + "SwitchChipLogicPort" + std::to_string(port), (port + shift) % ports + 1);
  }
}

void WriteMainBoard(EntryWriter& writer, size_t number, const MainBoards& boards) {
  writer.Section("MainBoard_" + std::to_string(number));
  writer.Entry("Type", 1000 + number);
  writer.Entry("Name", "M" + std::to_string(number));
  writer.Entry("SwitchChipLogicPortNum", boards.ports);
  WriteMap(writer, "", boards.ports, 0);
  writer.Entry("SpecialChipLogicPortMapPhyPortCardNum", boards.maps - 1);
  for (size_t map = 1; map < boards.maps; ++map) {
    writer.Entry("SpecialChipLogicPortMapPhyPortCard" + std::to_string(map),
                 "UP" + std::to_string(map));
  }
  for (size_t map = 1; map < boards.maps; ++map) {
    WriteMap(writer, "UP" + std::to_string(map) + "_", boards.ports, map);
  }
}

}  // namespace

size_t MainBoardFile::BytesScanned() const {
  return std::accumulate(lookups.begin(), lookups.end(), size_t{0},
                         [](size_t sum, const Lookup& lookup) { return sum + lookup.bytes; });
}

MainBoardFile WriteMainBoards(const MainBoards& boards, OtherSections others) {
  MainBoardFile file;
  EntryWriter writer(file.text, file.lookups);
  writer.Section("SupportedMainBoardType");
  writer.Entry("SupportedMainBoardTypeNum", boards.boards);
  for (size_t number = 1; number <= boards.boards; ++number) {
    writer.Entry("SupportedMainBoardType" + std::to_string(number),
                 "MainBoard_" + std::to_string(number));
  }
  for (size_t number = 1; number <= boards.boards; ++number) {
    WriteMainBoard(writer, number, boards);
  }
  if (others == OtherSections::kNone) {
    return file;
  }
  const std::string other_text = ManySections(file.text.size()).text;
  if (others == OtherSections::kBehind) {
    file.text += "\n" + other_text;
    return file;
  }
  file.text = other_text + file.text;
  for (Lookup& lookup : file.lookups) {
    lookup.bytes += other_text.size();
  }
  return file;
}

}  // namespace bench
