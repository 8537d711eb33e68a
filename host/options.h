// The command line of sysctx.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace sysctx {

enum class Action { kTerminal, kRun, kServe, kHelp, kVersion };

struct Options {
  Action action = Action::kTerminal;
  std::string root;     // empty: the built-in sample
  std::string command;  // of kRun
  uint16_t port = 0;    // of kServe
};

class OptionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws OptionError for a line that makes no sense.
Options ParseOptions(const std::vector<std::string>& arguments);

extern const char* const kUsage;

}  // namespace sysctx
