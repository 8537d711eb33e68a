// Queries about versions, modules and system functions.
#include "sys_context/context.h"

#include "host/queries.h"
#include "host/query_row.h"

namespace sysctx {

std::vector<Query> ContextQueries() {
  return {
      QUERY(ddIsContextVerMatchSoftVer, Out("pulIsSupported")),
      QUERY(ddGetModuleNameByType, In("ulModuleType"), TextOut("pcModuleName")),
      QUERY(ddGetModuleTypeByName, TextIn("pcModuleName"), Out("pulModuleType")),
      QUERY(ddIsModuleInList, In("ulModuleType"), Out("pulIsSupported")),
      QUERY(ddGetModuleSize, In("ulModuleType"), Out("pulSize")),
      QUERY(ddIsSysSupportFunc, In("lFuncType"), Out("pulIsSupported")),
  };
}

}  // namespace sysctx
