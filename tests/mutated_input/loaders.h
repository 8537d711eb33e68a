// The loaders of a start, and the codes that each may end it with.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "support/loaders.h"

namespace mutated {

using Place = test::Loader;
using enum test::Loader;
inline constexpr Place kNone = kLoaderCount;  // behind the last one: no loader failed

struct Loader {
  std::string_view name;
  std::vector<int32_t> codes;
};

const Loader& LoaderAt(Place place);

// The loader that failed, by what the start printed on the console.
Place FailedLoader(std::string_view console);

}  // namespace mutated
