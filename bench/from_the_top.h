// The lookups of a load, each made from the top of the file.
#pragma once

#include <vector>

#include "bench/definition_file.h"

namespace bench {

// By CFG_get_key; false when one does not find its value.
bool LookUpFromTheTop(const TemporaryFile& file, const std::vector<Lookup>& lookups);

}  // namespace bench
