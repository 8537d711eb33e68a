// Of which types the ports of an ONU type are.
#include <algorithm>

#include "catalog/onu/onu_query.h"

namespace sys_context {
namespace {

struct PortTypeQuery {
  // Port numbers outside are refused whatever the type.
  uint32_t first_number;
  uint32_t last_number;
  int32_t bad_number_code;

  uint32_t OnuInformation::*count;
  OnuPortTypeInformation** OnuInformation::*ports;
  uint32_t limit;
  int32_t corrupt_count_code;
  int32_t no_such_port_code;

  int32_t (*ask_platform)(uint32_t type, uint32_t port, uint32_t* port_type);
  int32_t platform_failure_code = kOnuServiceFailed;
  bool platform_failure_clears_output = true;

  Message<uint32_t> null_output;
  CheckFailure check_failed;
};

constexpr PortTypeQuery kPonPortType = {
    .first_number = 1,
    .last_number = MAX_ONU_PON_NUM_PER_ONU,
    .bad_number_code = kNoSuchPonOrLanPort,
    .count = &OnuInformation::ulTotalPonNum,
    .ports = &OnuInformation::pOnuPonArray,
    .limit = MAX_ONU_PON_NUM_PER_ONU,
    .corrupt_count_code = kNoSuchPonPort,  // kept as is: here and below, no code of its own
    .no_such_port_code = kNoSuchPonPort,
    .ask_platform = cs_get_onu_pon_port_type_by_type,
    .null_output = "\r\nddGetOnuPonPortTypeByType, pulOnuPonType = 0x%x",
    .check_failed =
        "\r\nddGetOnuPonPortTypeByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
};

// kept as is: the platform is asked for any port; the failed check is reported in the
// name of the PON ports' query.
constexpr PortTypeQuery kLanPortType = {
    .first_number = 0,
    .last_number = kNoLimit,
    .bad_number_code = kNoSuchPonOrLanPort,
    .count = &OnuInformation::ulTotalLanPortNum,
    .ports = &OnuInformation::pOnuLanPortArray,
    .limit = MAX_ONU_LAN_NUM_PER_ONU,
    .corrupt_count_code = kNoSuchPonOrLanPort,
    .no_such_port_code = kNoSuchPonOrLanPort,
    .ask_platform = cs_get_onu_lan_port_type_by_type,
    .null_output = "\r\nddGetOnuLanPortTypeByType, pulOnuLanPortType = 0x%x",
    .check_failed =
        "\r\nddGetOnuPonPortTypeByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d, ulOnuType = %d, ulSupportedOnuTypeNum = %d",
};

// kept as is: alone in its code for a failure of the platform.
constexpr PortTypeQuery kPotsPortType = {
    .first_number = 1,
    .last_number = MAX_ONU_POTS_NUM_PER_ONU,
    .bad_number_code = kNoSuchPotsOrSpecialPort,
    .count = &OnuInformation::ulTotalPotsNum,
    .ports = &OnuInformation::pOnuPotsPortArray,
    .limit = MAX_ONU_POTS_NUM_PER_ONU,
    .corrupt_count_code = kNoSuchPotsOrSpecialPort,
    .no_such_port_code = kNoSuchPotsOrSpecialPort,
    .ask_platform = cs_get_onu_pots_port_type_by_type,
    .platform_failure_code = kPotsServiceFailed,
    .null_output = "\r\nddGetOnuPotsPortTypeByType, pulOnuPotsPortType = 0x%x",
    .check_failed =
        "\r\nddGetOnuPotsPortTypeByType->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
};

constexpr PortTypeQuery kSpecialPortType = {
    .first_number = 1,
    .last_number = kNoLimit,
    .bad_number_code = kNoSuchPotsOrSpecialPort,
    .count = &OnuInformation::ulTotalSpecialPortNum,
    .ports = &OnuInformation::pOnuSpecialPortArray,
    .limit = MAX_ONU_SPECIAL_PORT_NUM_PER_ONU,
    .corrupt_count_code = kCorruptOnuPorts,
    .no_such_port_code = kNoSuchPotsOrSpecialPort,
    .ask_platform = cs_get_onu_special_port_type_by_port_no,
    .platform_failure_clears_output = false,
    .null_output = "\r\nddGetOnuSpecialPortTypeByPortNo, pulSpecialPortType = 0x%x",
    .check_failed =
        "\r\nddGetOnuSpecialPortTypeByPortNo->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
};

int32_t PortTypeOf(const PortTypeQuery& query, const OnuInformation& onu, uint32_t number,
                   uint32_t* output) {
  const uint32_t count = onu.*query.count;
  if (count > query.limit) {
    return query.corrupt_count_code;
  }
  if (number == 0 || number > count) {
    return query.no_such_port_code;
  }
  const OnuPortTypeInformation* const port = (onu.*query.ports)[number - 1];
  if (port == nullptr) {
    return kEmptyPlace;
  }
  *output = port->ulPortType;
  return kOk;
}

int32_t AskPlatform(const PortTypeQuery& query, uint32_t type, uint32_t number, uint32_t* output) {
  uint32_t port_type = 0;
  if (query.ask_platform(type, number, &port_type) == 0) {
    *output = port_type;
    return kOk;
  }
  if (query.platform_failure_clears_output) {
    *output = 0;
  }
  return query.platform_failure_code;
}

int32_t AskPortType(const PortTypeQuery& query, uint32_t type, uint32_t number, uint32_t* output) {
  if (output == nullptr) {
    Report(Gate::kDebug, query.null_output, LowBits(output));
    return kNullArgument;
  }
  if (number < query.first_number || number > query.last_number) {
    return query.bad_number_code;
  }
  int32_t code = kOk;
  if (!CanSearch(query.check_failed, code, type)) {
    return code;
  }
  const OnuInformation* const onu = FindOnuOfType(type);
  return onu == nullptr ? AskPlatform(query, type, number, output)
                        : PortTypeOf(query, *onu, number, output);
}

// Stores the types of the special ports, each once; there is room for one of each port.
uint32_t ListTypes(const OnuInformation& onu, uint32_t* types) {
  uint32_t* end = types;
  for (uint32_t i = 0; i < onu.ulTotalSpecialPortNum; ++i) {
    const OnuPortTypeInformation* const port = onu.pOnuSpecialPortArray[i];
    if (port != nullptr && std::find(types, end, port->ulPortType) == end) {
      *end++ = port->ulPortType;
    }
  }
  return static_cast<uint32_t>(end - types);
}

}  // namespace
}  // namespace sys_context

int32_t ddGetOnuPonPortTypeByType(uint32_t ulOnuType, uint32_t ulPonNo, uint32_t* pulOnuPonType) {
  using namespace sys_context;
  return AskPortType(kPonPortType, ulOnuType, ulPonNo, pulOnuPonType);
}

int32_t ddGetOnuLanPortTypeByType(uint32_t ulOnuType, uint32_t ulOnuLanNo,
                                  uint32_t* pulOnuLanPortType) {
  using namespace sys_context;
  return AskPortType(kLanPortType, ulOnuType, ulOnuLanNo, pulOnuLanPortType);
}

int32_t ddGetOnuPotsPortTypeByType(uint32_t ulOnuType, uint32_t ulOnuPotsNo,
                                   uint32_t* pulOnuPotsPortType) {
  using namespace sys_context;
  return AskPortType(kPotsPortType, ulOnuType, ulOnuPotsNo, pulOnuPotsPortType);
}

int32_t ddGetOnuSpecialPortTypeByPortNo(uint32_t ulOnuType, uint32_t ulOnuSpecialPortNo,
                                        uint32_t* pulSpecialPortType) {
  using namespace sys_context;
  return AskPortType(kSpecialPortType, ulOnuType, ulOnuSpecialPortNo, pulSpecialPortType);
}

int32_t ddGetOnuSpecialPortTypeList(uint32_t ulOnuType, uint32_t* pulSpecialPortTypeArray,
                                    uint32_t ulArrayAmount, uint32_t* pulSpecialPortTypeAmount) {
  using namespace sys_context;
  if (pulSpecialPortTypeArray == nullptr || pulSpecialPortTypeAmount == nullptr) {
    DebugConsole(
        "\r\nddGetOnuSpecialPortTypeList, pulSpecialPortTypeArray = 0x%x, pulSpecialPortTypeAmount = 0x%x",
        LowBits(pulSpecialPortTypeArray), LowBits(pulSpecialPortTypeAmount));
    return kNullArgument;
  }
  if (ulArrayAmount < MAX_ONU_SPECIAL_PORT_NUM_PER_ONU) {
    return kTypeListTooSmall;
  }
  int32_t code = kOk;
  if (!CanSearch(
          "\r\nddGetOnuSpecialPortTypeList->ddCheckSupportedOnuTypeNum err!, iResult = %d, ulIsOk = %d",
          code)) {
    return code;
  }
  const OnuInformation* const onu = FindOnuOfType(ulOnuType);
  if (onu == nullptr) {
    if (cs_get_onu_special_port_type_list(ulOnuType, pulSpecialPortTypeArray, ulArrayAmount,
                                          pulSpecialPortTypeAmount) == 0) {
      return kOk;
    }
    *pulSpecialPortTypeAmount = 0;
    return kOnuServiceFailed;
  }
  if (onu->ulTotalSpecialPortNum > MAX_ONU_SPECIAL_PORT_NUM_PER_ONU) {
    return kCorruptOnuPorts;
  }
  *pulSpecialPortTypeAmount = ListTypes(*onu, pulSpecialPortTypeArray);
  return kOk;
}
