// How many ports an ONU type has.
#include <algorithm>

#include "catalog/onu/onu_query.h"

namespace sys_context {
namespace {

struct PortCountQuery {
  uint32_t OnuInformation::*count;
  uint32_t limit = kNoLimit;
  int32_t (*ask_platform)(uint32_t type, uint32_t* count);
  uint32_t platform_limit = kNoLimit;

  Message<uint32_t> null_output;
  CheckFailure check_failed;
};

constexpr PortCountQuery kPonPortCount = {
    .count = &OnuInformation::ulTotalPonNum,
    .ask_platform = cs_get_onu_pon_num_by_type,
    .null_output = "\r\nddGetOnuPonNumByType, pulOnuPonNum = 0x%x",
    .check_failed =
        "\r\nddGetOnuPonNumByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
};

constexpr PortCountQuery kLanPortCount = {
    .count = &OnuInformation::ulTotalLanPortNum,
    .ask_platform = cs_get_onu_lan_port_num_by_type,
    .platform_limit = kMaxPlatformPorts,
    .null_output = "\r\nddGetOnuLanPortNumByType, pulOnuLanPortNum = 0x%x",
    .check_failed =
        "\r\nddGetOnuLanPortNumByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
};

constexpr PortCountQuery kPotsPortCount = {
    .count = &OnuInformation::ulTotalPotsNum,
    .ask_platform = cs_get_onu_pots_port_num_by_type,
    .platform_limit = kMaxPlatformPorts,
    .null_output = "\r\nddGetOnuPotsPortNumByType, pulOnuPotsPortNum = 0x%x",
    .check_failed =
        "\r\nddGetOnuPotsPortNumByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
};

// kept as is: alone of the counts, it is held against its limit, and the platform's is
// not cut.
constexpr PortCountQuery kSpecialPortCount = {
    .count = &OnuInformation::ulTotalSpecialPortNum,
    .limit = MAX_ONU_SPECIAL_PORT_NUM_PER_ONU,
    .ask_platform = cs_get_onu_special_port_amount,
    .null_output = "\r\nddGetOnuSpecialPortAmount, pulSpecialPortAmount = 0x%x",
    .check_failed =
        "\r\nddGetOnuSpecialPortAmount->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
};

int32_t AskPortCount(const PortCountQuery& query, uint32_t type, uint32_t* output) {
  if (output == nullptr) {
    Report(Gate::kDebug, query.null_output, LowBits(output));
    return kNullArgument;
  }
  int32_t code = kOk;
  if (!CanSearch(query.check_failed, code)) {
    return code;
  }
  const OnuInformation* const onu = FindOnuOfType(type);
  if (onu == nullptr) {
    uint32_t count = 0;
    const int32_t platform_code = query.ask_platform(type, &count);
    return PassOn(platform_code, std::min(count, query.platform_limit), output);
  }
  if (onu->*query.count > query.limit) {
    return kCorruptOnuPorts;
  }
  *output = onu->*query.count;
  return kOk;
}

// How many of the special ports are of a type?
uint32_t CountPorts(const OnuInformation& onu, uint32_t port_type) {
  OnuPortTypeInformation* const* const ports = onu.pOnuSpecialPortArray;
  return static_cast<uint32_t>(std::count_if(
      ports, ports + onu.ulTotalSpecialPortNum, [=](const OnuPortTypeInformation* port) {
        return port != nullptr && port->ulPortType == port_type;
      }));
}

}  // namespace
}  // namespace sys_context

int32_t ddGetOnuPonNumByType(uint32_t ulOnuType, uint32_t* pulOnuPonNum) {
  using namespace sys_context;
  return AskPortCount(kPonPortCount, ulOnuType, pulOnuPonNum);
}

int32_t ddGetOnuLanPortNumByType(uint32_t ulOnuType, uint32_t* pulOnuLanPortNum) {
  using namespace sys_context;
  return AskPortCount(kLanPortCount, ulOnuType, pulOnuLanPortNum);
}

int32_t ddGetOnuPotsPortNumByType(uint32_t ulOnuType, uint32_t* pulOnuPotsPortNum) {
  using namespace sys_context;
  return AskPortCount(kPotsPortCount, ulOnuType, pulOnuPotsPortNum);
}

int32_t ddGetOnuSpecialPortAmount(uint32_t ulOnuType, uint32_t* pulSpecialPortAmount) {
  using namespace sys_context;
  return AskPortCount(kSpecialPortCount, ulOnuType, pulSpecialPortAmount);
}

int32_t ddGetOnuSpecialPortNumByType(uint32_t ulOnuType, uint32_t ulPortType,
                                     uint32_t* pulOnuSpecialPortNum) {
  using namespace sys_context;
  if (pulOnuSpecialPortNum == nullptr) {
    DebugConsole("\r\nddGetOnuSpecialPortNumByType, pulOnuSpecialPortNum = 0x%x",
                 LowBits(pulOnuSpecialPortNum));
    return kNullArgument;
  }
  int32_t code = kOk;
  if (!CanSearch(
          "\r\nddGetOnuSpecialPortNumByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
          code)) {
    return code;
  }
  const OnuInformation* const onu = FindOnuOfType(ulOnuType);
  if (onu == nullptr) {
    uint32_t count = 0;
    const int32_t platform_code =
        cs_get_onu_special_port_num_by_type(ulOnuType, ulPortType, &count);
    return PassOn(platform_code, std::min(count, kMaxPlatformPorts), pulOnuSpecialPortNum);
  }
  if (onu->ulTotalSpecialPortNum > MAX_ONU_SPECIAL_PORT_NUM_PER_ONU) {
    return kCorruptOnuPorts;
  }
  *pulOnuSpecialPortNum = CountPorts(*onu, ulPortType);
  return kOk;
}
