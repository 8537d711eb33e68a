// Questions about a session's command tree: what may come next in a line (for
// Tab and "?"), which word of a line is ambiguous, and whether a line may hold a
// password.
#pragma once

#include <libcli.h>

#include <string>
#include <string_view>
#include <vector>

namespace sysctx {

struct Choice {
  std::string word;  // "<name>" for an argument
  std::string help;

  bool IsArgument() const { return word.front() == '<'; }
};

struct Choices {
  std::string typed;  // the unfinished word at the end of the line, maybe empty
  std::vector<Choice> list;
  bool can_end = false;  // the line is a whole command as it stands
};

Choices ChoicesAfter(const cli_def* cli, std::string_view line);

// The choices as lines for the terminal, each with its help.
std::string DescribeChoices(const Choices& choices);

// "Ambiguous command ..." when a word of the line fits several commands, else
// empty.
std::string DescribeAmbiguity(const cli_def* cli, std::string_view line);

// Whether the line is not to be remembered: it begins with the word of a command that
// takes a password, maybe abbreviated, or with one that may be such a word mistyped.
bool MayHoldPassword(const cli_def* cli, std::string_view line);

}  // namespace sysctx
