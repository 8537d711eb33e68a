// The library's console is this program's standard output. These send it
// somewhere else for a while.
#pragma once

#include <cstdio>
#include <functional>
#include <string>

#include "host/descriptor.h"

namespace sysctx {

// Runs `action` and returns what it wrote to standard output.
std::string CaptureConsole(const std::function<void()>& action);

// While it lives, standard output is standard error, and `out` leads where
// standard output led before.
class ConsoleOnStderr {
 public:
  ConsoleOnStderr();
  ConsoleOnStderr(const ConsoleOnStderr&) = delete;
  ConsoleOnStderr& operator=(const ConsoleOnStderr&) = delete;
  ~ConsoleOnStderr();

  FILE* out() const { return out_; }

  // Everything written to `out` has arrived.
  bool Finish();

 private:
  FILE* out_;
};

}  // namespace sysctx
