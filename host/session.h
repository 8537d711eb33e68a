// One user of the shell: a libcli instance with the installed commands, and the
// terminal that vty_out writes to. Sessions share nothing, so each may run on a
// thread of its own.
#pragma once

#include <libcli.h>

#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/registry.h"

namespace sysctx {

struct Outcome {
  bool ran = false;     // a command was found and called
  bool quit = false;    // it was one of those that leave the shell
  int32_t result = 0;   // what it returned
  std::string message;  // the shell's own complaint when none was called
};

class Session {
 public:
  Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Runs one line; the command's output goes to `out`.
  Outcome Run(const std::string& line, FILE* out);

  // Serves a telnet client until it leaves. Closes `socket`.
  void Serve(int socket);

  // vty_out: writes to whoever runs the command.
  void Write(const std::string& text);

  // Lists all commands.
  void ShowHelp();

  const cli_def* cli() const { return cli_.get(); }

  // Remembers a line, unless it may hold a password.
  void AddHistory(const std::string& line);

 private:
  using Builtin = int (*)(cli_def*, const char*, char**, int);
  using Filter = int (*)(cli_def*, int, char**, cli_filter*);
  using Cli = std::unique_ptr<cli_def, int (*)(cli_def*)>;

  static int OnFilter(cli_def* cli, int argc, char** argv, cli_filter* filter);
  static int OnCommand(cli_def* cli, const char* name, char** argv, int argc);
  static int OnArgument(cli_def* cli, const char* name, const char* value);
  static void OnPrint(cli_def* cli, const char* text);

  void AddBuiltins();
  void WrapFilters();
  void AddCommand(const Command& command);
  void AddArguments(cli_command* node, const Command& command);
  int Call(cli_command* node, std::vector<char*> arguments);
  int CallRecord(CommandRecord* record, std::vector<char*> arguments);
  void Print(const char* text);
  void PrintLines();
  void ShowChoices(const std::string& line);
  void ForgetPassword();

  Cli cli_;
  std::map<const cli_command*, CommandRecord*> records_;
  std::map<const cli_command*, Builtin> builtins_;
  std::map<const cli_command*, Filter> filters_;
  std::vector<cli_optarg*> later_arguments_;  // all but the first of each command
  bool is_calling_ = false;                   // what is printed is a command's
  bool keep_messages_ = false;                // the shell's complaints go to the outcome
  Outcome outcome_;
  std::string unprinted_;  // the unfinished line of filtered output
};

}  // namespace sysctx
