// The queries of the library by name, asked with a line's words.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "fuzz/arguments.h"

namespace fuzz {

struct Query {
  const char* name;
  // Asks; adds what the query answered. False when it answered what cannot be.
  bool (*ask)(Words words, Answer& answer);
};

std::span<const Query> AllQueries();

// Null when there is none of that name.
const Query* QueryNamed(std::string_view name);

}  // namespace fuzz
