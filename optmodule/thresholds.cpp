// The power limits of the optical module in a port, or in an ONU.
#include "common/card_kinds.h"
#include "common/codes.h"
#include "common/table_queries.h"
#include "optmodule/log.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace sys_context {
namespace {

struct Wanted {
  const char* query;  // who asks
  uint16_t kind;
  uint32_t port_type;
  uint16_t phy_type;
  bool any_phy_type;
};

bool Fits(const OptModuleInfo& module, const Wanted& wanted) {
  return module.kind == wanted.kind && module.porttype == wanted.port_type &&
         (wanted.any_phy_type || module.phytype == wanted.phy_type);
}

const OptModuleInfo* FindModule(const Wanted& wanted) {
  const OptModuleInfoList& list = g_optmdule_infolist;
  const uint32_t count = list.objlist == nullptr ? 0 : list.listnum;
  return FindRecord(count, list.objlist,
                    [&](const OptModuleInfo& module) { return Fits(module, wanted); });
}

int32_t TellThresholds(const Wanted& wanted, uint16_t* path_count, OptModuleThreshold* paths) {
  const OptModuleInfo* const module = FindModule(wanted);
  if (module == nullptr) {
    Log(LogLevel::kDetail, "%s:get thresinfo failed, kind = %d, porttype = %d, phytype = %d.\r\n",
        wanted.query, wanted.kind, wanted.port_type, wanted.phy_type);
    return kNoSuchOptModule;
  }
  if (*path_count < module->pathnum) {
    Log(LogLevel::kDetail, "%s:get thresinfo failed, curnum = %d, inputnum %d is less.\r\n",
        wanted.query, module->pathnum, *path_count);
    return kTooFewPathEntries;
  }
  for (uint16_t i = 0; i < module->pathnum; ++i) {
    paths[i] = *module->pathinfo[i];
  }
  *path_count = module->pathnum;
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t get_port_optmodule_thresinfo(uint32_t slot, uint32_t port, uint16_t phyType,
                                     uint16_t* pathCount, OptModuleThreshold* paths) {
  using namespace sys_context;
  if (pathCount == nullptr || paths == nullptr) {
    return kBadOptModuleArgument;
  }
  const int32_t card_type = get_config_card_type(slot);
  if (card_type < 0) {
    return kCardTypeUnknown;
  }
  uint32_t port_type = 0;
  if (ddGetPortTypeByBoardType(static_cast<uint32_t>(card_type), port, &port_type) != kOk ||
      port_type == 0) {
    return kPortTypeUnknown;
  }
  uint16_t kind = OPTMODULE_KIND_OLT_PON;
  if (!IsCardOfKind(card_type, caCheckCardTypeIsPonCard)) {
    // kept as is: of the other cards it is the uplink cards whose modules are told.
    if (!IsCardOfKind(card_type, caCheckCardTypeIsUplinkCard)) {
      return kNoOpticalCard;
    }
    kind = OPTMODULE_KIND_OLT_ETH;
  }
  const Wanted wanted = {
      .query = "get_port_optmodule_thresinfo",
      .kind = kind,
      .port_type = port_type,
      .phy_type = phyType,
      .any_phy_type = false,
  };
  return TellThresholds(wanted, pathCount, paths);
}

int32_t get_onu_optmodule_thresinfo(uint32_t address1, uint32_t address2, uint32_t address3,
                                    uint16_t phyType, uint16_t* pathCount,
                                    OptModuleThreshold* paths) {
  using namespace sys_context;
  if (pathCount == nullptr || paths == nullptr) {
    return kBadOptModuleArgument;
  }
  const int32_t onu_type = get_valid_onu_type(address1, address2, address3);
  if (onu_type < 0) {
    return onu_type;
  }
  constexpr uint32_t kFirstPonPort = 1;
  uint32_t port_type = 0;
  if (ddGetOnuPonPortTypeByType(static_cast<uint32_t>(onu_type), kFirstPonPort, &port_type) !=
          kOk ||
      port_type == 0) {
    return kPortTypeUnknown;
  }
  const Wanted wanted = {
      .query = "get_onu_optmodule_thresinfo",
      .kind = OPTMODULE_KIND_ONU_PON,
      .port_type = port_type,
      .phy_type = phyType,
      .any_phy_type = true,  // kept as is: it is shown in the message only
  };
  return TellThresholds(wanted, pathCount, paths);
}
