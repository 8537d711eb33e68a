// The command line of sysctx.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace sysctx {

enum class Action { kTerminal, kRun, kAsk, kServe, kPack, kHelp, kVersion };

struct Options {
  Action action = Action::kTerminal;
  std::string root;                   // empty: the built-in sample
  bool debug = false;                 // the library's gated messages are printed
  std::string command;                // of kRun
  std::vector<std::string> question;  // of kAsk: the query and its arguments; none: list them
  uint16_t port = 0;                  // of kServe
  std::vector<std::string> files;     // of kPack: the text and the image
};

class OptionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws OptionError for a line that makes no sense.
Options ParseOptions(const std::vector<std::string>& arguments);

extern const char* const kUsage;

}  // namespace sysctx
