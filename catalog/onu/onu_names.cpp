// Names and types of ONU types.
#include <cstring>

#include "catalog/onu/onu_query.h"
#include "common/names.h"

int32_t ddGetOnuNameByType(uint32_t ulOnuType, char* pcOnuName) {
  using namespace sys_context;
  if (pcOnuName == nullptr) {
    DebugConsole("\r\nddGetOnuNameByType, pcOnuName = 0x%x", LowBits(pcOnuName));
    return kNullArgument;
  }
  int32_t code = kOk;
  if (!CanSearch(
          "\r\nddGetOnuNameByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
          code)) {
    return code;
  }
  const OnuInformation* const onu = FindOnu([=](const OnuInformation& candidate) {
    return candidate.ulOnuType == ulOnuType && NameFits(candidate);
  });
  if (onu == nullptr) {
    return cs_get_onu_name_by_type(ulOnuType, pcOnuName) == 0 ? kOk : kOnuServiceFailed;
  }
  std::memcpy(pcOnuName, onu->acName, onu->ulNameLen);
  return kOk;
}

int32_t ddGetOnuTypeByName(const char* strOnuName, uint32_t* pulOnuType) {
  using namespace sys_context;
  if (strOnuName == nullptr || pulOnuType == nullptr) {
    DebugConsole("\r\nddGetOnuTypeByName, strOnuName = 0x%x, pulOnuType = 0x%x",
                 LowBits(strOnuName), LowBits(pulOnuType));
    return kNullArgument;
  }
  int32_t code = kOk;
  if (!CanSearch(
          "\r\nddGetOnuTypeByName->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
          code)) {
    return code;
  }
  const OnuInformation* const onu = FindOnu([=](const OnuInformation& candidate) {
    return NameEquals(strOnuName, candidate.acName, candidate.ulNameLen);
  });
  if (onu == nullptr) {
    uint32_t type = 0;
    const int32_t platform_code = cs_get_onu_type_by_name(strOnuName, &type);
    return PassOn(platform_code, type, pulOnuType, kNoSuchName);
  }
  *pulOnuType = onu->ulOnuType;
  return kOk;
}

int32_t ddIsOnuSupportedByType(uint32_t ulOnuType, uint32_t* pulIsSupported) {
  using namespace sys_context;
  if (pulIsSupported == nullptr) {
    DebugConsole("\r\nddIsOnuSupportedByType, pulIsSupported = 0x%x", LowBits(pulIsSupported));
    return kNullArgument;
  }
  int32_t code = kOk;
  if (!CanSearch(
          "\r\nddIsOnuSupportedByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
          code)) {
    return code;
  }
  if (FindOnuOfType(ulOnuType) == nullptr) {
    uint32_t is_supported = 0;
    const int32_t platform_code = cs_is_onu_supported_by_type(ulOnuType, &is_supported);
    return PassOn(platform_code, is_supported, pulIsSupported);
  }
  *pulIsSupported = 1;
  return kOk;
}
