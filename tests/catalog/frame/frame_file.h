// A frame for tests: its section, and what is loaded from it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "catalog/frame/frame_reader_stand_ins.h"
#include "catalog/olt/board_tables.h"
#include "sys_context/frame.h"

namespace test {

// The section of the KT3300-L, which loads without a word.
extern const std::string kFrameSection;

// What is loaded from it, as Shown() has it.
extern const std::vector<std::string> kFrameShown;

// With the boards that the section names: CTLA 11, GP16 71, XS08 72, ETHA 73 and
// VT48 74.
class FrameTest : public BoardTablesTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Puts a frame in place whose every number differs from those of the section, with
  // empty lists.
  static void PutOldFrame();
};

// The old frame, as Shown() has it.
extern const std::vector<std::string> kOldFrameShown;

// The old frame with the first `lines` lines of the new one, and behind them one that is
// loaded in part, if any.
std::vector<std::string> PartlyLoadedShown(size_t lines, const std::string& half_line);

}  // namespace test
