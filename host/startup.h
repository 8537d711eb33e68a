// Starting the card: the root, the equipment facts, the library's two entry
// points, and the report about them.
#pragma once

#include <cstdint>
#include <string>

namespace sysctx {

// Makes `folder` the root and reads its equipment.toml. Throws
// std::runtime_error for a folder that cannot be one.
void OpenRoot(const std::string& folder);

struct StartUp {
  int32_t init_result = 0;      // ddInit
  int32_t commands_result = 0;  // ddCmdInit
  std::string console;          // what the library printed meanwhile

  bool Failed() const { return init_result != 0 || commands_result != 0; }
};

// Calls ddInit and ddCmdInit, as the firmware does.
StartUp StartLibrary();

// Console text as lines that say where they come from.
std::string DescribeConsole(const std::string& console);

// What was loaded and from where, and what failed with which code.
std::string DescribeStartUp(const StartUp& start_up);

}  // namespace sysctx
