// What the library prints on the console, as the bytes that arrive there.
#pragma once

#include <string>

namespace test {

// Catches standard output from its construction to the end of its life.
class Console {
 public:
  Console();
  ~Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  // What was printed since the construction or the last call.
  std::string Text();

 private:
  int saved_output_;
  int file_;
};

}  // namespace test
