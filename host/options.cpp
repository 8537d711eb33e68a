// The command line of sysctx.
#include "host/options.h"

#include <charconv>
#include <optional>
#include <string_view>

namespace sysctx {

const char* const kUsage =
    "Usage: sysctx [--root DIR] [--debug]\n"
    "              [run COMMAND | ask [QUERY [ARGUMENT ...]] | serve --telnet PORT]\n"
    "       sysctx pack TEXT-FILE IMAGE-FILE\n"
    "\n"
    "A simulated control card: loads the definition files below DIR and serves the\n"
    "diagnostic commands.\n"
    "\n"
    "  (nothing)            a shell on this terminal; commands are read line by line\n"
    "                       when the input is no terminal\n"
    "  run COMMAND          print one command's output and exit with its result\n"
    "  ask QUERY ARGUMENT ...\n"
    "                       call a query of the library by name and print what it\n"
    "                       answers: \"sysctx ask ddIsRealSlot 7\"\n"
    "  ask                  list the queries with their arguments\n"
    "  serve --telnet PORT  the shell for telnet clients on 127.0.0.1; 0 chooses a port\n"
    "  pack TEXT-FILE IMAGE-FILE\n"
    "                       compress a definition file into what the flash store may\n"
    "                       keep; no card is started\n"
    "\n"
    "  --root DIR           the card's files: DIR/equipment.toml, and \"/mnt/work/...\" and\n"
    "                       \"/mem/...\" as DIR/mnt/work/... and DIR/mem/...;\n"
    "                       DIR/flash/mnt/work/... is what flash holds instead, if there\n"
    "                       (default: a sample chassis)\n"
    "  --debug              print the messages that depend on ddDebugPrint, too\n"
    "  --help               this text\n"
    "  --version            the version of sysctx\n"
    "\n"
    "Options stand in front of COMMAND and QUERY; all that follows these belongs to them.\n"
    "\n"
    "Exit status: the command's result (its low 8 bits) with run; with ask 0, or the\n"
    "low 8 bits of a negative code; 2 for an unknown command or query and for wrong\n"
    "arguments of a query; 1 when sysctx cannot start or a file cannot be packed.\n";

namespace {

constexpr const char* kHint = " (see sysctx --help)";

class Parser {
 public:
  explicit Parser(const std::vector<std::string>& arguments) : arguments_(arguments) {}

  Options Parse() {
    while (next_ < arguments_.size()) {
      TakeOne(arguments_[next_++]);
    }
    Check();
    return options_;
  }

 private:
  void TakeOne(const std::string& argument) {
    if (argument == "--help" || argument == "-h") {
      SetAction(Action::kHelp);
    } else if (argument == "--version") {
      SetAction(Action::kVersion);
    } else if (IsOption(argument, "--root")) {
      options_.root = Value(argument, "--root");
    } else if (IsOption(argument, "--telnet")) {
      port_ = Value(argument, "--telnet");
    } else if (argument == "--debug") {
      options_.debug = true;
    } else if (argument.starts_with("-")) {
      throw OptionError("unknown option '" + argument + "'" + kHint);
    } else {
      TakeWord(argument);
    }
  }

  void TakeWord(const std::string& word) {
    if (owner_ == Action::kAsk) {
      TakeQuestion();
    } else if (owner_ == Action::kPack) {
      options_.files.push_back(word);
    } else if (word == "run") {
      SetAction(Action::kRun);
      TakeCommand();
    } else if (word == "ask") {
      SetAction(Action::kAsk);
      owner_ = Action::kAsk;
    } else if (word == "serve") {
      SetAction(Action::kServe);
    } else if (word == "pack") {
      SetAction(Action::kPack);
      owner_ = Action::kPack;
    } else {
      throw OptionError("unknown word '" + word + "'" + kHint);
    }
  }

  // Everything behind "run" is the command, quoted as one word or not.
  void TakeCommand() {
    for (; next_ < arguments_.size(); ++next_) {
      options_.command += (options_.command.empty() ? "" : " ") + arguments_[next_];
    }
    if (options_.command.find_first_not_of(" \t") == std::string::npos) {
      throw OptionError(std::string("'run' needs a command") + kHint);
    }
  }

  // The word just met is the query, and everything behind it its arguments.
  void TakeQuestion() {
    options_.question.assign(arguments_.begin() + static_cast<ptrdiff_t>(next_) - 1,
                             arguments_.end());
    next_ = arguments_.size();
  }

  void SetAction(Action action) {
    // --help and --version win over what stands beside them.
    if (options_.action == Action::kHelp || options_.action == Action::kVersion) {
      return;
    }
    options_.action = action;
  }

  static bool IsOption(std::string_view argument, std::string_view name) {
    return argument == name || (argument.starts_with(name) && argument[name.size()] == '=');
  }

  std::string Value(const std::string& argument, std::string_view name) {
    const bool attached = argument.size() > name.size();
    if (!attached && next_ == arguments_.size()) {
      throw OptionError("option '" + argument + "' needs a value" + kHint);
    }
    std::string value = attached ? argument.substr(name.size() + 1) : arguments_[next_++];
    if (value.empty()) {
      throw OptionError("option '" + std::string(name) + "' needs a value" + kHint);
    }
    return value;
  }

  void Check() {
    if (options_.action == Action::kServe && !port_) {
      throw OptionError(std::string("'serve' needs --telnet PORT") + kHint);
    }
    if (options_.action != Action::kServe && port_) {
      throw OptionError(std::string("--telnet goes with 'serve'") + kHint);
    }
    if (options_.action == Action::kPack) {
      CheckPack();
    }
    if (port_) {
      options_.port = PortNumber(*port_);
    }
  }

  void CheckPack() const {
    if (options_.files.size() != 2) {
      throw OptionError(std::string("'pack' needs TEXT-FILE and IMAGE-FILE") + kHint);
    }
    if (!options_.root.empty()) {
      throw OptionError(std::string("--root does not go with 'pack'") + kHint);
    }
    if (options_.debug) {
      throw OptionError(std::string("--debug does not go with 'pack'") + kHint);
    }
  }

  static uint16_t PortNumber(const std::string& text) {
    uint16_t port = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, port);
    if (error != std::errc() || rest != end) {
      throw OptionError("bad port '" + text + "': a number from 0 to 65535 is wanted");
    }
    return port;
  }

  const std::vector<std::string>& arguments_;
  size_t next_ = 0;
  Action owner_ = Action::kTerminal;  // whose words follow, also when --help has won
  std::optional<std::string> port_;
  Options options_;
};

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments) {
  return Parser(arguments).Parse();
}

}  // namespace sysctx
