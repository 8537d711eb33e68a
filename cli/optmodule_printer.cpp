// The printer of an optical module.
#include "cli/listing.h"
#include "common/codes.h"
#include "sys_context/cli.h"

namespace sys_context {
namespace {

const char* Title(uint16_t kind) {
  switch (kind) {
    case OPTMODULE_KIND_OLT_PON:
      return "OLT PON Optical Module";
    case OPTMODULE_KIND_OLT_ETH:
      return "OLT ETH Optical Module";
    default:
      return "ONU PON Optical Module";
  }
}

}  // namespace
}  // namespace sys_context

int32_t show_optmodule_fileinfo_byindex(uint16_t index, void* vty) {
  using namespace sys_context;
  if (vty == nullptr) {
    return kBadOptModuleArgument;
  }
  const OptModuleInfoList& list = g_optmdule_infolist;
  if (index == 0 || index > list.listnum) {
    vty_out(vty, "index %d is out of range 1 ~ %d.\r\n", index, list.listnum);
    return kNoSuchOptModuleIndex;
  }
  const OptModuleInfo* const module = list.objlist == nullptr ? nullptr : list.objlist[index - 1];
  if (module == nullptr) {
    vty_out(vty, "index %d 's optical module info is null.\r\n", index);
    return kNoOptModuleThere;
  }
  vty_out(vty, "%s Index %d:\r\n", Title(module->kind), index);
  vty_out(vty, "PortType: %d,  PhyType: %d  \r\n", module->porttype, module->phytype);
  vty_out(vty, "PON path num: %d \r\n", module->pathnum);
  for (uint16_t i = 0; i < module->pathnum; ++i) {
    const OptModuleThreshold& path = *module->pathinfo[i];
    vty_out(vty, "path %d: inup: %d, indn %d, outup %d, outdn %d.\r\n", i + 1, path.inup, path.indn,
            path.outup, path.outdn);
  }
  return kOk;
}
