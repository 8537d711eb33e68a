// Queries about the power limits of optical modules.
#include "sys_context/optmodule.h"

#include "host/queries.h"
#include "host/query_row.h"

namespace sysctx {

std::vector<Query> OptmoduleQueries() {
  return {
      QUERY(get_port_optmodule_thresinfo, In("slot"), In("port"), In("phyType"), InOut("pathCount"),
            List("paths")),
      QUERY(get_onu_optmodule_thresinfo, In("address1"), In("address2"), In("address3"),
            In("phyType"), InOut("pathCount"), List("paths")),
  };
}

}  // namespace sysctx
