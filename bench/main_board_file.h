// Definition files with main boards to measure a load on.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "bench/definition_file.h"

namespace bench {

// So many main boards; each has so many maps, the default one included, of so
// many logic ports.
struct MainBoards {
  size_t boards;
  size_t ports;
  size_t maps;
};

// Where other sections stand, of as many bytes as the main boards'.
enum class OtherSections { kNone, kInFront, kBehind };

struct MainBoardFile {
  std::string text;
  std::vector<Lookup> lookups;  // those of a load: one for each entry of the main boards

  size_t BytesScanned() const;  // by all lookups together
};

MainBoardFile WriteMainBoards(const MainBoards& boards, OtherSections others);

}  // namespace bench
