// The command records that were installed while the program started. Every
// session of the shell builds its command tree from them.
#pragma once

#include <string>
#include <vector>

#include "sys_context/platform.h"

namespace sysctx {

struct Word {
  std::string text;  // "<name>" for an argument, with its brackets
  std::string help;

  bool IsArgument() const { return text.size() > 2 && text.front() == '<' && text.back() == '>'; }
};

struct Command {
  CommandRecord* record;
  std::vector<Word> words;  // the arguments come last

  std::string Text() const;
  std::string Help() const;  // of the last word that is no argument
};

// Takes a record apart. Returns no words for one that the shell cannot serve:
// without text, handler or leading word, or with a plain word behind an
// argument.
Command MakeCommand(CommandRecord* record);

// In the order of installation. Written before there are threads, then only
// read.
const std::vector<Command>& InstalledCommands();

}  // namespace sysctx
