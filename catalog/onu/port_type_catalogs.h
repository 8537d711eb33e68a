// The four catalogs of ONU port types, for what is done alike with each.
#pragma once

#include <cstdint>

#include "sys_context/onu.h"

namespace sys_context {

struct OnuPortTypeCatalog {
  uint32_t* count;
  OnuPortTypeInformation*** types;
  uint32_t limit;
};

inline constexpr OnuPortTypeCatalog kOnuPonTypes = {
    &gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
    &gstSupportedOnuPonType.pOnuPonTypeArray,
    MAX_ONU_PON_TYPE_NUM,
};
inline constexpr OnuPortTypeCatalog kOnuLanTypes = {
    &gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
    &gstSupportedOnuLanType.pOnuLanTypeArray,
    MAX_ONU_LAN_TYPE_NUM,
};
inline constexpr OnuPortTypeCatalog kOnuPotsTypes = {
    &gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
    &gstSupportedOnuPotsType.pOnuPotsTypeArray,
    MAX_ONU_POTS_TYPE_NUM,
};
inline constexpr OnuPortTypeCatalog kOnuSpecialPortTypes = {
    &gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
    &gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray,
    MAX_ONU_SPECIAL_PORT_TYPE_NUM,
};

}  // namespace sys_context
