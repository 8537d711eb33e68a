// The table of all queries of the library that can be asked by name.
#pragma once

#include <vector>

#include "host/query.h"

namespace sysctx {

// The queries of one public header, in its order.
struct QueryFamily {
  const char* name;  // of the header, without ".h"
  std::vector<Query> queries;
};

const std::vector<QueryFamily>& AllQueries();

std::vector<Query> ContextQueries();
std::vector<Query> OltQueries();
std::vector<Query> FrameQueries();
std::vector<Query> OnuQueries();
std::vector<Query> OptmoduleQueries();

}  // namespace sysctx
