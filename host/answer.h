// What a query of the library answered, and how it is shown.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sysctx {

// One result besides the function's value. What is nullopt was left untouched.
struct Output {
  enum class Kind { kNumber, kList, kText };

  Kind kind;
  const char* name;
  std::vector<std::optional<std::string>> items = {};  // kText: one; kList: all there is room for
  std::optional<int64_t> number = std::nullopt;        // of kNumber: it may count a list
  const char* between = " ";                           // the items of a list
};

struct Answer {
  const char* label = "code";   // "value" when it is no return code
  int32_t value = 0;            // of the function
  std::vector<Output> outputs;  // in the order of the function's arguments
  std::string console;          // what was printed meanwhile
};

// One line each for the value and every output. A list ends where the number that follows it
// says (without one: the number in front of it) or, when that was left untouched, behind its
// last item written.
std::string DescribeAnswer(const Answer& answer);

// 0, or the low byte of a negative value.
int ExitStatus(const Answer& answer);

}  // namespace sysctx
