// Walks over libcli's command tree. libcli itself answers the same questions on
// telnet connections only, inside its own loop.
#include "host/tree.h"

#include <strings.h>

#include <algorithm>
#include <cctype>
#include <cstring>

#include "host/format.h"

namespace sysctx {
namespace {

using Words = std::vector<std::string>;

bool IsBlank(char c) {
  return std::isspace(static_cast<unsigned char>(c)) != 0;
}

// A line cut into words, and those into the stages between "|".
struct Line {
  std::vector<Words> stages{1};
  bool word_is_open = false;  // no blank behind the last word

  explicit Line(std::string_view text) {
    char quote = 0;
    for (const char c : text) {
      Take(c, quote);
    }
  }

 private:
  void Take(char c, char& quote) {
    if (quote != 0) {
      if (c == quote) {
        quote = 0;
      } else {
        Append(c);
      }
    } else if (c == '"' || c == '\'') {
      quote = c;
      Open();
    } else if (c == '|') {
      stages.emplace_back();
      word_is_open = false;
    } else if (IsBlank(c)) {
      word_is_open = false;
    } else {
      Append(c);
    }
  }

  void Open() {
    if (!word_is_open) {
      stages.back().emplace_back();
      word_is_open = true;
    }
  }

  void Append(char c) {
    Open();
    stages.back().back().push_back(c);
  }
};

bool IsExact(const cli_command* command, const std::string& word) {
  return strcasecmp(command->command, word.c_str()) == 0;
}

// The commands of one level that a word may mean: the one that it spells out,
// or all that it begins.
std::vector<const cli_command*> Matches(const cli_command* level, int type,
                                        const std::string& word) {
  std::vector<const cli_command*> matches;
  for (const cli_command* c = level; c != nullptr; c = c->next) {
    if (c->command_type != type) {
      continue;
    }
    if (IsExact(c, word)) {
      return {c};
    }
    if (strncasecmp(c->command, word.c_str(), word.size()) == 0) {
      matches.push_back(c);
    }
  }
  return matches;
}

int TypeOfStage(size_t stage) {
  return stage == 0 ? CLI_REGULAR_COMMAND : CLI_FILTER_COMMAND;
}

// How far the words lead into the tree.
struct Walk {
  const cli_command* command = nullptr;  // the last one reached
  const cli_command* level = nullptr;    // what may follow it
  size_t words = 0;                      // words used so far
  std::vector<const cli_command*> ambiguous;

  Walk(const cli_def* cli, int type, const Words& line) : level(cli->commands) {
    while (words < line.size() && level != nullptr) {
      const auto matches = Matches(level, type, line[words]);
      if (matches.size() > 1) {
        ambiguous = matches;
      }
      if (matches.size() != 1) {
        return;
      }
      command = matches.front();
      level = command->children;
      ++words;
    }
  }
};

const cli_optarg* ArgumentNumber(const cli_command* command, size_t number) {
  for (const cli_optarg* o = command->optargs; o != nullptr; o = o->next) {
    if ((o->flags & CLI_CMD_ARGUMENT) != 0 && number-- == 0) {
      return o;
    }
  }
  return nullptr;
}

std::string Text(const char* text) {
  return text == nullptr ? "" : text;
}

bool CanEnd(const cli_command* command, size_t arguments) {
  const bool runs = command->callback != nullptr || command->filter != nullptr;
  return runs && (arguments > 0 || ArgumentNumber(command, 0) == nullptr);
}

bool TakesPassword(const cli_command* command) {
  for (const cli_optarg* o = command->optargs; o != nullptr; o = o->next) {
    if (strcasestr(o->name, "password") != nullptr) {
      return true;
    }
  }
  for (const cli_command* c = command->children; c != nullptr; c = c->next) {
    if (TakesPassword(c)) {
      return true;
    }
  }
  return false;
}

void AddArgument(const cli_command* command, size_t number, Choices& choices) {
  if (const cli_optarg* argument = ArgumentNumber(command, number)) {
    choices.list.push_back({Format("<%s>", argument->name), Text(argument->help)});
  }
}

}  // namespace

Choices ChoicesAfter(const cli_def* cli, std::string_view text) {
  Line line(text);
  Words words = line.stages.back();
  Choices choices;
  if (line.word_is_open) {
    choices.typed = words.back();
    words.pop_back();
  }
  const int type = TypeOfStage(line.stages.size() - 1);
  const Walk walk(cli, type, words);
  if (walk.words == words.size()) {
    for (const cli_command* c = walk.level; c != nullptr; c = c->next) {
      const bool fits = strncasecmp(c->command, choices.typed.c_str(), choices.typed.size()) == 0;
      if (c->command_type == type && fits) {
        choices.list.push_back({c->command, Text(c->help)});
      }
    }
  }
  if (walk.command != nullptr && walk.ambiguous.empty()) {
    const size_t arguments = words.size() - walk.words;
    AddArgument(walk.command, arguments, choices);
    const bool counted = arguments == 0 || ArgumentNumber(walk.command, 0) != nullptr;
    choices.can_end = choices.typed.empty() && counted && CanEnd(walk.command, arguments);
  }
  return choices;
}

std::string DescribeChoices(const Choices& choices) {
  std::string text;
  for (const Choice& choice : choices.list) {
    text += Format("  %-20s %s\n", choice.word.c_str(), choice.help.c_str());
  }
  return choices.can_end ? text + "  <cr>\n" : text;
}

std::string DescribeAmbiguity(const cli_def* cli, std::string_view text) {
  const Line line(text);
  for (size_t stage = 0; stage < line.stages.size(); ++stage) {
    const Walk walk(cli, TypeOfStage(stage), line.stages[stage]);
    if (walk.ambiguous.empty()) {
      continue;
    }
    std::string begin;
    for (size_t i = 0; i <= walk.words; ++i) {
      begin += (i == 0 ? "" : " ") + line.stages[stage][i];
    }
    std::string message = "Ambiguous command \"" + begin + "\":";
    for (const cli_command* command : walk.ambiguous) {
      message += Format(" %s", command->command);
    }
    return message;
  }
  return "";
}

bool MayHoldPassword(const cli_def* cli, std::string_view text) {
  const Line line(text);
  for (const Words& stage : line.stages) {
    if (stage.empty()) {
      continue;
    }
    const auto commands = Matches(cli->commands, CLI_REGULAR_COMMAND, stage.front());
    const bool is_unknown = commands.empty() && &stage == &line.stages.front();
    if (is_unknown || std::ranges::any_of(commands, TakesPassword)) {
      return true;
    }
  }
  return false;
}

}  // namespace sysctx
