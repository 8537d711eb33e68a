// sysctx, the simulated control card: starts the library as the firmware does
// and serves its commands.
#include <curl/curl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/ask.h"
#include "host/console.h"
#include "host/modules.h"
#include "host/options.h"
#include "host/pack.h"
#include "host/sample_root.h"
#include "host/session.h"
#include "host/startup.h"
#include "host/telnet_server.h"
#include "host/terminal.h"
#include "sys_context/context.h"

namespace sysctx {
namespace {

constexpr const char* kNoOutput = "the output cannot be written";

void StartAndReport() {
  const StartUp start_up = StartLibrary();
  fputs(DescribeStartUp(start_up).c_str(), stdout);
  fflush(stdout);
}

// Starts the library for one answer, which `action` writes to the file that it is
// given: console text and the report of a failed start go to standard error.
// Returns what `action` does.
int OnCard(const std::function<int(FILE* out)>& action) {
  ConsoleOnStderr console;
  const StartUp start_up = StartLibrary();
  if (start_up.Failed()) {
    fputs(DescribeStartUp(start_up).c_str(), stderr);
  } else {
    fputs(DescribeConsole(start_up.console).c_str(), stderr);
  }
  const int status = action(console.out());
  if (!console.Finish()) {
    throw std::runtime_error(kNoOutput);
  }
  return status;
}

int RunOne(const std::string& command) {
  return OnCard([&](FILE* out) {
    Session session;
    const Outcome outcome = session.Run(command, out);
    if (!outcome.ran) {
      const std::string& message = outcome.message;
      fprintf(stderr, "sysctx: %s",
              message.empty() ? "the command was refused\n" : message.c_str());
    }
    return ExitStatus(outcome);
  });
}

int AskOne(const Words& words) {
  try {
    const Question question = PrepareQuestion(words);
    return OnCard([&](FILE* out) {
      const Answer answer = question();
      fputs(DescribeConsole(answer.console).c_str(), stderr);
      fputs(DescribeAnswer(answer).c_str(), out);
      return ExitStatus(answer);
    });
  } catch (const BadQuestion& error) {
    fprintf(stderr, "sysctx: %s", error.what());
    return kBadRequest;
  }
}

int PackFile(const std::string& text, const std::string& image) {
  signal(SIGXFSZ, SIG_IGN);  // a file too large for the limits is an error as a full disk is
  const Packed packed = Pack(text, image);
  if (const std::string limits = DescribeLimits(packed); !limits.empty()) {
    fprintf(stderr, "sysctx: %s", limits.c_str());
  }
  fputs(DescribePacked(packed, text, image).c_str(), stdout);
  if (fflush(stdout) != 0) {
    throw std::runtime_error(kNoOutput);
  }
  return EXIT_SUCCESS;
}

int ServeTelnet(uint16_t port) {
  TelnetServer server(port);
  StartAndReport();
  printf("listening on 127.0.0.1 port %d\n", server.port());
  fflush(stdout);
  SetTaskDelays(true);
  server.Run();
  return EXIT_SUCCESS;
}

int ServeLocally() {
  StartAndReport();
  Session session;
  if (isatty(STDIN_FILENO) == 0 || isatty(STDOUT_FILENO) == 0) {
    return RunScript(session, stdin);
  }
  SetTaskDelays(true);
  puts("Type ? for help, quit to leave.");
  return RunTerminal(session);
}

int Main(const std::vector<std::string>& arguments) {
  const Options options = ParseOptions(arguments);
  if (options.action == Action::kHelp) {
    fputs(kUsage, stdout);
    return EXIT_SUCCESS;
  }
  if (options.action == Action::kVersion) {
    printf("sysctx %s\n", SYSCTX_VERSION);
    return EXIT_SUCCESS;
  }
  if (options.action == Action::kAsk && options.question.empty()) {
    fputs(DescribeQueries().c_str(), stdout);
    return EXIT_SUCCESS;
  }
  if (options.action == Action::kPack) {
    return PackFile(options.files.at(0), options.files.at(1));
  }
  ddDebugPrint = options.debug ? 1 : 0;
  OpenRoot(options.root.empty() ? SampleRoot() : options.root);
  curl_global_init(CURL_GLOBAL_DEFAULT);
  if (options.action == Action::kRun) {
    return RunOne(options.command);
  }
  if (options.action == Action::kAsk) {
    return AskOne(options.question);
  }
  return options.action == Action::kServe ? ServeTelnet(options.port) : ServeLocally();
}

}  // namespace
}  // namespace sysctx

int main(int argc, char** argv) {
  try {
    return sysctx::Main(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& error) {
    fflush(stdout);
    fprintf(stderr, "sysctx: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
