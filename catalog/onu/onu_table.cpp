// The table of ONU types as a whole: whether it can be searched, all its types, and the
// most LAN ports that one of them has.
#include <algorithm>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/onu.h"
#include "sys_context/platform.h"

int32_t ddFindSupportedOnuMaxLanNum() {
  using namespace sys_context;
  SupportedOnuType& table = gstSupportedOnuType;
  table.ulSupportedOnuMaxLanOnuType = 0;
  table.ulSupportedOnuMaxLanNum = 0;
  const uint32_t count = table.ulSupportedOnuTypeNum;
  if (count > MAX_ONU_TYPE_NUM) {
    Console(
        "\r\nddFindSupportedOnuMaxLanNum err! ulSupportedOnuTypeNum = %d, MAX_ONU_TYPE_NUM = %d",
        count, MAX_ONU_TYPE_NUM);
    return kTooManyOnuTypes;
  }
  if (count == 0) {
    Console("\r\nddFindSupportedOnuMaxLanNum ok! ulSupportedOnuTypeNum = %d", count);
    return kOk;
  }
  for (uint32_t i = 0; i < count; ++i) {
    const OnuInformation* const onu = table.pOnuTypeArray[i];
    if (onu != nullptr && onu->ulTotalLanPortNum > table.ulSupportedOnuMaxLanNum) {
      table.ulSupportedOnuMaxLanOnuType = onu->ulOnuType;
      table.ulSupportedOnuMaxLanNum = onu->ulTotalLanPortNum;
    }
  }
  return kOk;
}

int32_t ddCheckSupportedOnuTypeNum(uint32_t* pulIsOk) {
  using namespace sys_context;
  const uint32_t count = gstSupportedOnuType.ulSupportedOnuTypeNum;
  *pulIsOk = 0;
  if (count > MAX_ONU_TYPE_NUM) {
    DebugConsole(
        "\r\nddCheckSupportedOnuTypeNum, ulSupportedOnuTypeNum = %d, MAX_ONU_TYPE_NUM = %d", count,
        MAX_ONU_TYPE_NUM);
    return kTooManyOnuTypes;
  }
  if (gstSupportedOnuType.pOnuTypeArray == nullptr) {
    DebugConsole("\r\nddCheckSupportedOnuTypeNum, ulSupportedOnuTypeNum = %d, pOnuTypeArray = 0x%x",
                 count, LowBits(gstSupportedOnuType.pOnuTypeArray));
    return kNoTable;
  }
  *pulIsOk = 1;
  return kOk;
}

int32_t ddGetAllSupportedOnuType(uint32_t* pulOnuTypeNum, uint32_t* pulOnuTypeArray) {
  using namespace sys_context;
  if (pulOnuTypeNum == nullptr || pulOnuTypeArray == nullptr) {
    return kNullArgument;
  }
  const SupportedOnuType& table = gstSupportedOnuType;
  // kept as is: the number given must not be above that of the types, and the line end of
  // the message is misspelt.
  if (*pulOnuTypeNum > table.ulSupportedOnuTypeNum) {
    DebugConsole("\r\nddGetAllSupportedOnuType, input buffer too small/r/n");
    return kCountAboveOnuTypes;
  }
  if (table.pOnuTypeArray == nullptr) {
    DebugConsole("\r\nddGetAllSupportedOnuType, ulSupportedOnuTypeNum = %d, pOnuTypeArray = 0x%x",
                 table.ulSupportedOnuTypeNum, LowBits(table.pOnuTypeArray));
    return kNoTable;
  }
  *pulOnuTypeNum = 0;
  for (uint32_t i = 0; i < table.ulSupportedOnuTypeNum; ++i) {
    const OnuInformation* const onu = table.pOnuTypeArray[i];
    if (onu != nullptr && onu->ulOnuType != 0) {
      pulOnuTypeArray[(*pulOnuTypeNum)++] = onu->ulOnuType;
    }
  }
  return kOk;
}

int32_t ddGetSupportedOnuMaxLanNum(uint32_t* pulSupportedOnuMaxLanNum) {
  using namespace sys_context;
  if (pulSupportedOnuMaxLanNum == nullptr) {
    DebugConsole("\r\nddGetSupportedOnuMaxLanNum, pulSupportedOnuMaxLanNum = 0x%x",
                 LowBits(pulSupportedOnuMaxLanNum));
    return kNullArgument;
  }
  const uint32_t from_table = gstSupportedOnuType.ulSupportedOnuMaxLanNum;
  if (from_table == 0 || from_table > MAX_ONU_LAN_NUM_PER_ONU) {
    DebugConsole(
        "\r\nddGetSupportedOnuMaxLanNum err! ulSupportedOnuMaxLanNum = %d, MAX_ONU_LAN_NUM_PER_ONU = %d",
        from_table, MAX_ONU_LAN_NUM_PER_ONU);
    return kBadMaxLanPorts;
  }
  uint32_t from_platform = 0;
  cs_get_supported_onu_max_lan_num(&from_platform);  // kept as is: whatever it returns
  *pulSupportedOnuMaxLanNum = std::max(from_table, from_platform);
  return kOk;
}
