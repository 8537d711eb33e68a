// Line editing by libedit: Tab completes, "?" lists what may come next, Ctrl-C
// abandons a line.
#include "host/terminal.h"

#include <histedit.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

#include "host/tree.h"

namespace sysctx {
namespace {

constexpr int kHistoryLines = 200;

std::string Trim(std::string line) {
  line.erase(0, std::min(line.find_first_not_of(" \t\r\n"), line.size()));
  line.erase(line.find_last_not_of(" \t\r\n") + 1);
  return line;
}

std::string BeforeCursor(EditLine* editor) {
  const LineInfo* info = el_line(editor);
  return {info->buffer, info->cursor};
}

const cli_def* CommandsOf(EditLine* editor) {
  Session* session = nullptr;
  el_get(editor, EL_CLIENTDATA, &session);
  return session->cli();
}

unsigned char List(const Choices& choices) {
  const std::string text = DescribeChoices(choices);
  if (text.empty()) {
    return CC_REFRESH_BEEP;
  }
  printf("\n%s", text.c_str());
  fflush(stdout);
  return CC_REDISPLAY;
}

unsigned char OnHelp(EditLine* editor, int) {
  return List(ChoicesAfter(CommandsOf(editor), BeforeCursor(editor)));
}

// What all choices that can be typed begin with.
std::string CommonBeginning(const Choices& choices) {
  std::string common;
  bool first = true;
  for (const Choice& choice : choices.list) {
    if (choice.IsArgument()) {
      continue;
    }
    if (first) {
      common = choice.word;
      first = false;
    }
    const auto [end, unused] =
        std::mismatch(common.begin(), common.end(), choice.word.begin(), choice.word.end());
    common.erase(end, common.end());
  }
  return common;
}

unsigned char OnTab(EditLine* editor, int) {
  const Choices choices = ChoicesAfter(CommandsOf(editor), BeforeCursor(editor));
  std::string word = CommonBeginning(choices);
  if (choices.list.size() == 1 && !word.empty()) {
    word += ' ';
  }
  if (word.size() <= choices.typed.size()) {
    return List(choices);
  }
  el_deletestr(editor, static_cast<int>(choices.typed.size()));
  return el_insertstr(editor, word.c_str()) == 0 ? CC_REFRESH : CC_REFRESH_BEEP;
}

unsigned char OnAbandon(EditLine* editor, int) {
  const LineInfo* info = el_line(editor);
  el_cursor(editor, static_cast<int>(info->lastchar - info->cursor));
  info = el_line(editor);
  el_deletestr(editor, static_cast<int>(info->lastchar - info->buffer));
  fputs("^C\n", stdout);
  fflush(stdout);
  return CC_REDISPLAY;
}

char* Prompt(EditLine*) {
  static char prompt[] = "sysctx> ";
  return prompt;
}

using Editor = std::unique_ptr<EditLine, decltype(&el_end)>;
using LineHistory = std::unique_ptr<History, decltype(&history_end)>;

void Bind(EditLine* editor, const char* key, const char* name,
          unsigned char (*function)(EditLine*, int)) {
  el_set(editor, EL_ADDFN, name, name, function);
  el_set(editor, EL_BIND, key, name, nullptr);
}

void SetUp(EditLine* editor, History* lines, Session* session) {
  HistEvent event;
  history(lines, &event, H_SETSIZE, kHistoryLines);
  history(lines, &event, H_SETUNIQUE, 1);
  el_set(editor, EL_CLIENTDATA, session);
  el_set(editor, EL_PROMPT, Prompt);
  el_set(editor, EL_EDITOR, "emacs");
  el_set(editor, EL_SIGNAL, 1);
  el_set(editor, EL_HIST, history, lines);
  el_set(editor, EL_SETTY, "-d", "-isig", nullptr);
  Bind(editor, "^I", "shell-complete", OnTab);
  Bind(editor, "?", "shell-help", OnHelp);
  Bind(editor, "^C", "shell-abandon", OnAbandon);
}

Outcome RunLine(Session& session, const std::string& line, FILE* messages) {
  session.AddHistory(line);
  const Outcome outcome = session.Run(line, stdout);
  fflush(stdout);
  fputs(outcome.message.c_str(), messages);
  return outcome;
}

}  // namespace

int ExitStatus(const Outcome& outcome) {
  return outcome.ran ? outcome.result & 0xff : kBadRequest;
}

int RunTerminal(Session& session) {
  const LineHistory lines(history_init(), history_end);
  const Editor editor(el_init("sysctx", stdin, stdout, stderr), el_end);
  if (lines == nullptr || editor == nullptr) {
    throw std::runtime_error("the terminal cannot be set up");
  }
  SetUp(editor.get(), lines.get(), &session);
  int count = 0;
  while (const char* typed = el_gets(editor.get(), &count)) {
    const std::string line = Trim(typed);
    if (line.empty()) {
      continue;
    }
    if (!MayHoldPassword(session.cli(), line)) {
      HistEvent event;
      history(lines.get(), &event, H_ENTER, line.c_str());
    }
    if (RunLine(session, line, stdout).quit) {
      return EXIT_SUCCESS;
    }
    // Output begins its lines with a line break and rarely ends the last one.
    fputs("\n", stdout);
  }
  fputs("\n", stdout);
  return EXIT_SUCCESS;
}

int RunScript(Session& session, FILE* input) {
  int status = EXIT_SUCCESS;
  char* text = nullptr;
  size_t size = 0;
  while (getline(&text, &size, input) >= 0) {
    const std::string line = Trim(text);
    if (line.empty()) {
      continue;
    }
    const Outcome outcome = RunLine(session, line, stderr);
    if (outcome.quit) {
      break;
    }
    status = ExitStatus(outcome);
  }
  free(text);
  return status;
}

}  // namespace sysctx
