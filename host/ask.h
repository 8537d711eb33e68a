// "sysctx ask": a query of the library, asked by its name.
#pragma once

#include <stdexcept>
#include <string>

#include "host/query.h"

namespace sysctx {

// What was asked makes no sense. The text is one or more whole lines.
class BadQuestion : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// `words`: the name of a query and its arguments, of which there must be as many as
// it takes. Asking the question throws BadQuestion, too, for an argument that names
// nothing in the tables loaded.
Question PrepareQuestion(const Words& words);

// All queries with their arguments, by family.
std::string DescribeQueries();

}  // namespace sysctx
