// The libcli side of the shell: how records become commands, how handlers are
// called, and where their text goes.
#include "host/session.h"

#include <algorithm>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

#include "host/format.h"
#include "host/tree.h"

namespace sysctx {
namespace {

constexpr const char* kBanner = "Simulated control card. Type ? for help.";

Session* SessionOf(cli_def* cli) {
  return static_cast<Session*>(cli_get_context(cli));
}

// libcli's own help leaves out arguments and does not line up long commands.
int ShowHelp(cli_def* cli, const char*, char**, int) {
  SessionOf(cli)->ShowHelp();
  return CLI_OK;
}

struct BuiltinCommand {
  const char* word;
  int (*function)(cli_def*, const char*, char**, int);
  const char* help;
};

// What remains of libcli's own commands: there is neither a configuration mode
// nor a privileged one here.
constexpr BuiltinCommand kBuiltins[] = {
    {"help", ShowHelp, "Show available commands"},
    {"history", cli_history, "Show a list of previously run commands"},
    {"quit", cli_quit, "Leave the shell"},
    {"exit", cli_quit, "Leave the shell"},
};

cli_command* Find(cli_command* level, const std::string& word) {
  for (cli_command* c = level; c != nullptr; c = c->next) {
    if (c->command_type == CLI_REGULAR_COMMAND && word == c->command) {
      return c;
    }
  }
  return nullptr;
}

cli_command* FindOrAdd(cli_def* cli, cli_command* parent, const Word& word) {
  cli_command* level = parent == nullptr ? cli->commands : parent->children;
  if (cli_command* known = Find(level, word.text)) {
    return known;
  }
  cli_command* added = cli_register_command(cli, parent, word.text.c_str(), nullptr,
                                            PRIVILEGE_UNPRIVILEGED, MODE_EXEC, word.help.c_str());
  if (added == nullptr) {
    throw std::bad_alloc();
  }
  return added;
}

// A "?" behind a whole command reaches the command as its last argument.
bool AsksForHelp(const std::vector<char*>& arguments) {
  if (arguments.empty()) {
    return false;
  }
  const std::string_view last = arguments.back();
  return !last.empty() && last.back() == '?';
}

}  // namespace

Session::Session() : cli_(cli_init(), cli_done) {
  if (cli_ == nullptr) {
    throw std::bad_alloc();
  }
  cli_set_context(cli_.get(), this);
  cli_set_hostname(cli_.get(), "sysctx");
  cli_set_banner(cli_.get(), kBanner);
  cli_print_callback(cli_.get(), OnPrint);
  cli_unregister_all_commands(cli_.get());
  for (const Command& command : InstalledCommands()) {
    AddCommand(command);
  }
  AddBuiltins();
  WrapFilters();
  // libcli works out the abbreviations when the privilege changes.
  cli_set_privilege(cli_.get(), PRIVILEGE_PRIVILEGED);
  cli_set_privilege(cli_.get(), PRIVILEGE_UNPRIVILEGED);
}

void Session::AddBuiltins() {
  for (const BuiltinCommand& builtin : kBuiltins) {
    if (Find(cli_->commands, builtin.word) != nullptr) {
      continue;  // an installed record of that name wins
    }
    cli_command* node = FindOrAdd(cli_.get(), nullptr, {builtin.word, builtin.help});
    node->callback = OnCommand;
    builtins_[node] = builtin.function;
  }
}

void Session::AddCommand(const Command& command) {
  cli_command* node = nullptr;
  for (const Word& word : command.words) {
    if (!word.IsArgument()) {
      node = FindOrAdd(cli_.get(), node, word);
    }
  }
  if (!records_.emplace(node, command.record).second) {
    return;  // the same words were installed before
  }
  node->callback = OnCommand;
  AddArguments(node, command);
}

void Session::AddArguments(cli_command* node, const Command& command) {
  size_t number = 0;
  for (const Word& word : command.words) {
    if (!word.IsArgument()) {
      continue;
    }
    std::string name = word.text.substr(1, word.text.size() - 2);
    const auto add = [&] {
      return cli_register_optarg(node, name.c_str(), CLI_CMD_ARGUMENT, PRIVILEGE_UNPRIVILEGED,
                                 MODE_ANY, word.help.c_str(), nullptr,
                                 number == 0 ? OnArgument : nullptr, nullptr);
    };
    cli_optarg* argument = add();
    while (argument == nullptr && name.size() < 100) {
      name += "'";  // libcli wants the names of one command to differ
      argument = add();
    }
    if (argument != nullptr && number > 0) {
      later_arguments_.push_back(argument);
    }
    ++number;
  }
}

// Handlers judge the number of their arguments themselves; the shell only asks
// for the first one. libcli however wants all of an argument list, or it shows
// no help for them. It asks this check of the first argument both when a line
// is run and when help is wanted, and only a line that is run has a pipeline:
// then the later arguments are declared to be none of libcli's business.
int Session::OnArgument(cli_def* cli, const char*, const char*) {
  const bool running = cli->pipeline != nullptr;
  for (cli_optarg* argument : SessionOf(cli)->later_arguments_) {
    argument->flags = CLI_CMD_ARGUMENT | (running ? CLI_CMD_DO_NOT_RECORD : 0);
  }
  return CLI_OK;
}

// libcli's filters find out what they are by the word that was typed, and take
// an abbreviated one for another filter. So they are shown the whole word.
void Session::WrapFilters() {
  for (cli_command* c = cli_->commands; c != nullptr; c = c->next) {
    if (c->command_type == CLI_FILTER_COMMAND) {
      filters_[c] = std::exchange(c->init, OnFilter);
    }
  }
}

int Session::OnFilter(cli_def* cli, int argc, char** argv, cli_filter* filter) {
  cli_pipeline_stage* stage = cli->pipeline->current_stage;
  char* const typed = std::exchange(stage->words[0], stage->command->command);
  const int result = SessionOf(cli)->filters_.at(stage->command)(cli, argc, argv, filter);
  stage->words[0] = typed;
  return result;
}

int Session::OnCommand(cli_def* cli, const char*, char**, int) {
  const cli_pipeline_stage* stage = cli->pipeline->current_stage;
  const std::vector<char*> arguments(stage->words + stage->first_optarg,
                                     stage->words + stage->num_words);
  Session* const session = SessionOf(cli);
  session->ForgetPassword();
  session->is_calling_ = true;
  const int result = session->Call(stage->command, arguments);
  session->is_calling_ = false;
  return result;
}

// libcli remembers a line before it runs it or complains about it.
void Session::ForgetPassword() {
  char** last = nullptr;
  for (char*& entry : cli_->history) {
    last = entry == nullptr ? last : &entry;
  }
  if (last != nullptr && MayHoldPassword(cli_.get(), *last)) {
    explicit_bzero(*last, strlen(*last));
    free(std::exchange(*last, nullptr));
  }
}

int Session::Call(cli_command* node, std::vector<char*> arguments) {
  if (AsksForHelp(arguments) && node->optargs == nullptr) {
    outcome_.ran = true;
    cli_print(cli_.get(), "  <cr>");
    return CLI_OK;
  }
  if (!arguments.empty() && node->optargs == nullptr) {
    cli_error(cli_.get(), "Invalid argument \"%s\": the command takes none", arguments.front());
    return CLI_ERROR;
  }
  outcome_.ran = true;
  const auto builtin = builtins_.find(node);
  if (builtin == builtins_.end()) {
    return CallRecord(records_.at(node), std::move(arguments));
  }
  const int result = builtin->second(cli_.get(), node->command, nullptr, 0);
  outcome_.quit = result == CLI_QUIT;
  return result;
}

// libcli acts on many results, so it never sees a handler's.
int Session::CallRecord(CommandRecord* record, std::vector<char*> arguments) {
  const int32_t count = static_cast<int32_t>(arguments.size());
  arguments.push_back(nullptr);
  outcome_.result = record->func(record, this, count, arguments.data());
  if (!unprinted_.empty()) {
    cli_print(cli_.get(), "%s", unprinted_.c_str());
    unprinted_.clear();
  }
  return CLI_OK;
}

void Session::Write(const std::string& text) {
  if (cli_->filters == nullptr) {
    fwrite(text.data(), 1, text.size(), cli_->client);
    return;
  }
  unprinted_ += text;
  PrintLines();
}

// Filters look at lines. Handlers write "\r\n" as it comes, mostly in front of
// a line, so the last line waits here until the handler has returned.
void Session::PrintLines() {
  size_t start = 0;
  for (size_t end; (end = unprinted_.find('\n', start)) != std::string::npos; start = end + 1) {
    std::string line = unprinted_.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') {
      line.pop_back();
    }
    cli_print(cli_.get(), "%s", line.c_str());
  }
  unprinted_.erase(0, start);
}

void Session::ShowHelp() {
  std::vector<std::pair<std::string, std::string>> rows;
  size_t width = 0;
  for (const Command& command : InstalledCommands()) {
    rows.emplace_back(command.Text(), command.Help());
  }
  for (const BuiltinCommand& builtin : kBuiltins) {
    rows.emplace_back(builtin.word, builtin.help);
  }
  for (const auto& [text, help] : rows) {
    width = std::max(width, text.size());
  }
  cli_print(cli_.get(), "Commands available:");
  for (const auto& [text, help] : rows) {
    cli_print(cli_.get(), "  %-*s  %s", static_cast<int>(width), text.c_str(), help.c_str());
  }
}

void Session::OnPrint(cli_def* cli, const char* text) {
  SessionOf(cli)->Print(text);
}

void Session::Print(const char* text) {
  if (!is_calling_) {
    ForgetPassword();  // a line that is not understood is seen only through its complaint
  }
  std::string line = text;
  if (line.starts_with("Invalid command") && cli_->pipeline != nullptr) {
    const std::string better = DescribeAmbiguity(cli_.get(), cli_->pipeline->cmdline);
    line = better.empty() ? line : better;
  }
  if (keep_messages_ && !outcome_.ran) {
    outcome_.message += line + "\n";
    return;
  }
  fprintf(cli_->client, "%s\r\n", line.c_str());
}

void Session::ShowChoices(const std::string& line) {
  const std::string choices = DescribeChoices(ChoicesAfter(cli_.get(), line));
  outcome_.ran = !choices.empty();
  outcome_.message = choices.empty() ? "No help for this\n" : "";
  fputs(choices.c_str(), cli_->client);
}

Outcome Session::Run(const std::string& line, FILE* out) {
  outcome_ = {};
  keep_messages_ = true;
  cli_->client = out;
  if (line.ends_with('?')) {
    ShowChoices(line.substr(0, line.size() - 1));
  } else {
    cli_run_command(cli_.get(), line.c_str());
  }
  cli_->client = nullptr;
  return outcome_;
}

void Session::Serve(int socket) {
  keep_messages_ = false;
  cli_loop(cli_.get(), socket);
}

// libcli keeps the history of telnet sessions itself.
void Session::AddHistory(const std::string& line) {
  if (MayHoldPassword(cli_.get(), line)) {
    return;
  }
  char** const entries = cli_->history;
  size_t used = 0;
  while (used < MAX_HISTORY && entries[used] != nullptr) {
    ++used;
  }
  if (used == MAX_HISTORY) {
    free(entries[0]);
    memmove(entries, entries + 1, (MAX_HISTORY - 1) * sizeof *entries);
    --used;
  }
  entries[used] = strdup(line.c_str());
}

}  // namespace sysctx

extern "C" int32_t vty_out(void* vty, const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  const std::string text = sysctx::FormatList(format, arguments);
  va_end(arguments);
  static_cast<sysctx::Session*>(vty)->Write(text);
  return static_cast<int32_t>(text.size());
}
