// What can be asked: queries of the library, by the names of their arguments.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/answer.h"

namespace sysctx {

using Words = std::vector<std::string>;

struct Parameter {
  const char* name;
  bool is_input;
  const char* hint = nullptr;  // what is to be given, if it is neither number nor text
};

// A query with its arguments, ready to be asked. Copyable.
using Question = std::function<Answer()>;

struct Query {
  const char* name;
  std::vector<Parameter> parameters;  // in the order of the C function

  // `words` are the inputs, as many as there are. It throws BadArgument, and so may
  // the question.
  std::function<Question(const Words& words)> prepare;
};

}  // namespace sysctx
