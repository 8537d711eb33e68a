// Redirection of file descriptor 1, with C stdio kept in step.
#include "host/console.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace sysctx {
namespace {

[[noreturn]] void Fail(const char* what) {
  throw std::runtime_error(std::string(what) + ": " + strerror(errno));
}

// Standard output is another descriptor's while this lives.
class Redirection {
 public:
  explicit Redirection(int target) : before_(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3)) {
    fflush(stdout);
    dup2(target, STDOUT_FILENO);
  }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;
  ~Redirection() {
    fflush(stdout);
    if (before_.IsOpen()) {
      dup2(before_.get(), STDOUT_FILENO);
    } else {
      close(STDOUT_FILENO);  // as it was
    }
  }

 private:
  Descriptor before_;
};

std::string ReadAll(int descriptor) {
  std::string text;
  char buffer[4096];
  lseek(descriptor, 0, SEEK_SET);
  for (ssize_t got; (got = read(descriptor, buffer, sizeof buffer)) > 0;) {
    text.append(buffer, static_cast<size_t>(got));
  }
  return text;
}

}  // namespace

std::string CaptureConsole(const std::function<void()>& action) {
  const Descriptor memory(memfd_create("console", MFD_CLOEXEC));
  if (!memory.IsOpen()) {
    Fail("console");
  }
  {
    const Redirection redirection(memory.get());
    action();
  }
  return ReadAll(memory.get());
}

ConsoleOnStderr::ConsoleOnStderr() {
  fflush(stdout);
  const int before = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
  out_ = before < 0 ? nullptr : fdopen(before, "w");
  if (out_ == nullptr) {
    Fail("standard output");
  }
  dup2(STDERR_FILENO, STDOUT_FILENO);
}

ConsoleOnStderr::~ConsoleOnStderr() {
  fflush(stdout);
  dup2(fileno(out_), STDOUT_FILENO);
  fclose(out_);
}

bool ConsoleOnStderr::Finish() {
  return fflush(out_) == 0 && ferror(out_) == 0;
}

}  // namespace sysctx
