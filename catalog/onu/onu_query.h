// How questions about ONU types are answered: by the table for the types it holds, by
// the platform's ONU type service for any other.
#pragma once

#include <cstdint>

#include "common/codes.h"
#include "common/messages.h"
#include "common/table_queries.h"
#include "sys_context/onu.h"
#include "sys_context/platform.h"

namespace sys_context {

// The platform's numbers of LAN ports, of POTS ports and of special ports of one port type
// are cut to this.
inline constexpr uint32_t kMaxPlatformPorts = 24;
inline constexpr uint32_t kNoLimit = UINT32_MAX;

// That the table cannot be searched: the check's code and answer; the type asked for, the
// number of types.
using CheckFailure = PartialMessage<int32_t, uint32_t, uint32_t, uint32_t>;

// Can the table be searched? If not, `code` is what the query returns.
[[nodiscard]] inline bool CanSearch(const CheckFailure& failure, int32_t& code,
                                    uint32_t type_shown = 0) {
  uint32_t is_ok = 0;
  code = ddCheckSupportedOnuTypeNum(&is_ok);
  if (code == kOk && is_ok != 0) {
    return true;
  }
  Report(Gate::kDebug, failure, code, is_ok, type_shown, gstSupportedOnuType.ulSupportedOnuTypeNum);
  return false;
}

// The first record that fulfils `wanted`, or null.
template <typename Wanted>
const OnuInformation* FindOnu(Wanted wanted) {
  return FindRecord(gstSupportedOnuType.ulSupportedOnuTypeNum, gstSupportedOnuType.pOnuTypeArray,
                    wanted);
}

inline const OnuInformation* FindOnuOfType(uint32_t type) {
  return FindOnu([=](const OnuInformation& onu) { return onu.ulOnuType == type; });
}

// Passes on what the platform answered; 0 if it failed.
[[nodiscard]] inline int32_t PassOn(int32_t platform_code, uint32_t answer, uint32_t* output,
                                    int32_t failure_code = kOnuServiceFailed) {
  const bool failed = platform_code != 0;
  *output = failed ? 0 : answer;
  return failed ? failure_code : kOk;
}

}  // namespace sys_context
