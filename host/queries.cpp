// The families of queries.
#include "host/queries.h"

namespace sysctx {

const std::vector<QueryFamily>& AllQueries() {
  static const std::vector<QueryFamily> families = {
      {"context", ContextQueries()},     {"olt", OltQueries()},
      {"frame", FrameQueries()},         {"onu", OnuQueries()},
      {"optmodule", OptmoduleQueries()},
  };
  return families;
}

}  // namespace sysctx
