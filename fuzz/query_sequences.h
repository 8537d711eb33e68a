// What the target "query_sequences" knows besides the queries.
#pragma once

#include <string_view>
#include <vector>

namespace fuzz {

// The changes between two questions.
std::vector<std::string_view> ChangeNames();

}  // namespace fuzz
