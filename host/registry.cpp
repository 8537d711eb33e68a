// install_element and vk_install_element: records become commands.
#include "host/registry.h"

#include <algorithm>
#include <sstream>

namespace sysctx {
namespace {

constexpr int32_t kFailure = -1;

std::vector<Command>& Commands() {
  static std::vector<Command> commands;
  return commands;
}

// Plain words first, at least one of them, then arguments only.
bool CanBeServed(const std::vector<Word>& words) {
  const auto is_argument = [](const Word& word) { return word.IsArgument(); };
  return !words.empty() && !is_argument(words.front()) &&
         std::is_partitioned(words.begin(), words.end(),
                             [&](const Word& word) { return !is_argument(word); });
}

int32_t Install(CommandRecord* record) {
  const Command command = MakeCommand(record);
  if (command.words.empty()) {
    return kFailure;
  }
  const bool known = std::any_of(Commands().begin(), Commands().end(),
                                 [&](const Command& other) { return other.record == record; });
  if (!known) {
    Commands().push_back(command);
  }
  return 0;
}

}  // namespace

std::string Command::Text() const {
  std::string text;
  for (const Word& word : words) {
    text += (text.empty() ? "" : " ") + word.text;
  }
  return text;
}

std::string Command::Help() const {
  std::string help;
  for (const Word& word : words) {
    help = word.IsArgument() ? help : word.help;
  }
  return help;
}

Command MakeCommand(CommandRecord* record) {
  Command command = {record, {}};
  if (record == nullptr || record->string == nullptr || record->func == nullptr) {
    return command;
  }
  std::istringstream words(record->string);
  std::istringstream helps(record->doc == nullptr ? "" : record->doc);
  for (Word word; words >> word.text;) {
    if (!std::getline(helps, word.help)) {
      word.help.clear();
    }
    command.words.push_back(word);
  }
  if (!CanBeServed(command.words)) {
    command.words.clear();
  }
  return command;
}

const std::vector<Command>& InstalledCommands() {
  return Commands();
}

}  // namespace sysctx

extern "C" {

// The simulated card has one node: whoever reaches the shell may use all
// commands, so node and level make no difference.
int32_t install_element(int32_t, struct CommandRecord* record) {
  return sysctx::Install(record);
}

int32_t vk_install_element(int32_t, struct CommandRecord* record, int32_t, int32_t) {
  return sysctx::Install(record);
}

}  // extern "C"
