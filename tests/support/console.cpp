// Standard output is pointed at a nameless temporary file.
#include "support/console.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace test {

Console::Console() {
  std::fflush(stdout);
  char name[] = "/tmp/sys_context_console_XXXXXX";
  file_ = mkstemp(name);
  saved_output_ = dup(STDOUT_FILENO);
  if (file_ < 0 || saved_output_ < 0 || dup2(file_, STDOUT_FILENO) < 0) {
    throw std::runtime_error("standard output cannot be caught");
  }
  unlink(name);
}

Console::~Console() {
  // What nobody asked for goes where it belongs: there are the words of a
  // failing test among it.
  const std::string rest = Text();
  dup2(saved_output_, STDOUT_FILENO);
  std::fwrite(rest.data(), 1, rest.size(), stdout);
  std::fflush(stdout);
  close(saved_output_);
  close(file_);
}

std::string Console::Text() {
  std::fflush(stdout);
  std::string text;
  char piece[4096];
  lseek(file_, 0, SEEK_SET);
  for (ssize_t size; (size = read(file_, piece, sizeof piece)) > 0;) {
    text.append(piece, static_cast<size_t>(size));
  }
  if (ftruncate(file_, 0) != 0) {
    throw std::runtime_error("the caught output cannot be emptied");
  }
  lseek(file_, 0, SEEK_SET);
  return text;
}

}  // namespace test
