// The ports of an ONU type: the four kinds are read alike.
#include "cfgfile/port_list.h"
#include "sys_context/onu.h"

namespace sys_context {
namespace {

using OnuPorts = PortList<OnuInformation, OnuPortTypeInformation>;

// kept as is: bad arguments are reported in the name of the LAN types' reader; an ONU
// type without a PON port is refused with an "ok!".
constexpr OnuPorts kPonPorts = {
    .count_key =
        {
            .key = "PonNum",
            .limit = MAX_ONU_PON_NUM_PER_ONU,
            .above_limit_code = kOnuPortCountNotAllowed,
            .above_limit =
                "\r\nddAddSupportedPonToOnuObj err! ulTotalPonNum = %d, MAX_ONU_PON_NUM_PER_ONU = %d",
        },
    .port_key = "NameKeyPon",
    .count = &OnuInformation::ulTotalPonNum,
    .ports = &OnuInformation::pOnuPonArray,
    .find_type = ddIsOnuPonTypeSupportedByName,
    .copy_type = ddCreateOneOnuPonObjByName,
    .last_type_index = MAX_ONU_PON_TYPE_NUM,
    .no_ports_code = kOnuPortCountNotAllowed,
    .no_ports = Message<uint32_t>("\r\nddAddSupportedPonToOnuObj ok! ulTotalPonNum = %d"),
    .null_argument =
        "\r\nddReadOneSupportedOnuLanInformation err! strFileName = 0x%x, strOnuTypeSection = 0x%x, pstOnuInformation = 0x%x",
    .negative_start = "\r\nddReadOneSupportedOnuLanInformation err! iOffsetIn = %d",
    .key_unreadable = "\r\nddAddSupportedPonToOnuObj err! iResult = %d, section = %s, key = %s",
    .no_memory = "\r\nddAddSupportedPonToOnuObj err! pstOnuInformation->pOnuPonArray = 0x%x",
    .lookup_failed =
        "\r\nddAddSupportedPonToOnuObj->ddIsOnuPonTypeSupportedByName err! iResult = %d, strKey = %s, ulIndex = %d",
    .not_supported = "\r\nddAddSupportedPonToOnuObj err! strKey = %s, IsSupported = %d",
    .above_last_index = "\r\nddAddSupportedPonToOnuObj err! strKey = %s, ulIndex = %d",
    .copy_failed = "\r\nddAddSupportedPonToOnuObj->ddCreateOneOnuPonObjByName err! strKey = %s",
};

// kept as is: a port that cannot be had counts as lack of memory, and lack of memory is
// reported in the name of the PON ports.
constexpr OnuPorts kLanPorts = {
    .count_key =
        {
            .key = "LanPortNum",
            .limit = MAX_ONU_LAN_NUM_PER_ONU,
            .above_limit_code = kOnuPortCountNotAllowed,
            .above_limit =
                "\r\nddAddSupportedLanToOnuObj err! ulTotalLanNum = %d, MAX_ONU_LAN_NUM_PER_ONU = %d",
        },
    .port_key = "NameKeyLanPort",
    .count = &OnuInformation::ulTotalLanPortNum,
    .ports = &OnuInformation::pOnuLanPortArray,
    .find_type = ddIsOnuLanTypeSupportedByName,
    .copy_type = ddCreateOneOnuLanObjByName,
    .last_type_index = MAX_ONU_LAN_TYPE_NUM,
    .port_failed_code = kLanPortNotLoaded,
    .null_argument =
        "\r\nddAddSupportedLanToOnuObj err! strFileName = 0x%x, strOnuTypeSection = 0x%x, pstOnuInformation = 0x%x",
    .negative_start = "\r\nddAddSupportedLanToOnuObj err! iOffsetIn = %d",
    .key_unreadable = "\r\nddAddSupportedLanToOnuObj err! iResult = %d, section = %s, key = %s",
    .no_memory = "\r\nddAddSupportedPonToOnuObj err! pstOnuInformation->pOnuLanPortArray = 0x%x",
    .lookup_failed =
        "\r\nddAddSupportedLanToOnuObj->ddIsOnuLanTypeSupportedByName err! iResult = %d, strKey = %s, ulIndex = %d",
    .not_supported = "\r\nddAddSupportedLanToOnuObj err! strKey = %s, IsSupported = %d",
    .above_last_index = "\r\nddAddSupportedLanToOnuObj err! strKey = %s, ulIndex = %d",
    .copy_failed = "\r\nddAddSupportedLanToOnuObj->ddCreateOneOnuLanObjByName err! strKey = %s",
};

// kept as is: alone in that no ports means no array.
constexpr OnuPorts kPotsPorts = {
    .count_key =
        {
            .key = "PotsPortNum",
            .limit = MAX_ONU_POTS_NUM_PER_ONU,
            .above_limit_code = kOnuPortCountNotAllowed,
            .above_limit =
                "\r\nddAddSupportedPotsToOnuObj err! ulTotalPotsNum = %d, MAX_ONU_POTS_NUM_PER_ONU = %d",
        },
    .port_key = "NameKeyPotsPort",
    .count = &OnuInformation::ulTotalPotsNum,
    .ports = &OnuInformation::pOnuPotsPortArray,
    .find_type = ddIsOnuPotsTypeSupportedByName,
    .copy_type = ddCreateOneOnuPotsObjByName,
    .last_type_index = MAX_ONU_POTS_TYPE_NUM,
    .no_ports_clear_array = true,
    .null_argument =
        "\r\nddAddSupportedPotsToOnuObj err! strFileName = 0x%x, strOnuTypeSection = 0x%x, pstOnuInformation = 0x%x",
    .negative_start = "\r\nddAddSupportedPotsToOnuObj err! iOffsetIn = %d",
    .key_unreadable = "\r\nddAddSupportedPotsToOnuObj err! iResult = %d, section = %s, key = %s",
    .no_memory = "\r\nddAddSupportedPotsToOnuObj err! pstOnuInformation->pOnuPotsPortArray = 0x%x",
    .lookup_failed =
        "\r\nddAddSupportedPotsToOnuObj->ddIsOnuPotsTypeSupportedByName err! iResult = %d, strKey = %s, ulIndex = %d",
    .not_supported = "\r\nddAddSupportedPotsToOnuObj err! strKey = %s, IsSupported = %d",
    .above_last_index = "\r\nddAddSupportedPotsToOnuObj err! strKey = %s, ulIndex = %d",
    .copy_failed = "\r\nddAddSupportedPotsToOnuObj->ddCreateOneOnuPotsObjByName err! strKey = %s",
};

constexpr OnuPorts kSpecialPorts = {
    .count_key =
        {
            .key = "SpecialPortNum",
            .limit = MAX_ONU_SPECIAL_PORT_NUM_PER_ONU,
            .above_limit_code = kOnuPortCountNotAllowed,
            .above_limit =
                "\r\nddAddSupportedSpecialPortToOnuObj err! ulTotalSpecialPortNum = %d, MAX_ONU_SPECIAL_PORT_NUM_PER_ONU = %d",
        },
    .port_key = "NameKeySpecialPort",
    .count = &OnuInformation::ulTotalSpecialPortNum,
    .ports = &OnuInformation::pOnuSpecialPortArray,
    .find_type = ddIsOnuSpecialPortTypeSupportedByName,
    .copy_type = ddCreateOneOnuSpecialPortObjByName,
    .last_type_index = MAX_ONU_SPECIAL_PORT_TYPE_NUM,
    .null_argument =
        "\r\nddAddSupportedSpecialPortToOnuObj err! strFileName = 0x%x, strOnuTypeSection = 0x%x, pstOnuInformation = 0x%x",
    .negative_start = "\r\nddAddSupportedSpecialPortToOnuObj err! iOffsetIn = %d",
    .key_unreadable =
        "\r\nddAddSupportedSpecialPortToOnuObj err! iResult = %d, section = %s, key = %s",
    .no_memory =
        "\r\nddAddSupportedSpecialPortToOnuObj err! pstOnuInformation->pOnuSpecialPortArray = 0x%x",
    .lookup_failed =
        "\r\nddAddSupportedSpecialPortToOnuObj->ddIsOnuSpecialPortTypeSupportedByName err! iResult = %d, strKey = %s, ulIndex = %d",
    .not_supported = "\r\nddAddSupportedSpecialPortToOnuObj err! strKey = %s, IsSupported = %d",
    .above_last_index = "\r\nddAddSupportedSpecialPortToOnuObj err! strKey = %s, ulIndex = %d",
    .copy_failed =
        "\r\nddAddSupportedSpecialPortToOnuObj->ddCreateOneOnuSpecialPortObjByName err! strKey = %s",
};

}  // namespace
}  // namespace sys_context

int32_t ddAddSupportedPonToOnuObj(const char* strFileName, const char* strOnuTypeSection,
                                  int32_t iOffsetIn, OnuInformation* pstOnuInformation) {
  using namespace sys_context;
  return AddPorts(kPonPorts, strFileName, strOnuTypeSection, iOffsetIn, pstOnuInformation);
}

int32_t ddAddSupportedLanToOnuObj(const char* strFileName, const char* strOnuTypeSection,
                                  int32_t iOffsetIn, OnuInformation* pstOnuInformation) {
  using namespace sys_context;
  return AddPorts(kLanPorts, strFileName, strOnuTypeSection, iOffsetIn, pstOnuInformation);
}

int32_t ddAddSupportedPotsToOnuObj(const char* strFileName, const char* strOnuTypeSection,
                                   int32_t iOffsetIn, OnuInformation* pstOnuInformation) {
  using namespace sys_context;
  return AddPorts(kPotsPorts, strFileName, strOnuTypeSection, iOffsetIn, pstOnuInformation);
}

int32_t ddAddSupportedSpecialPortToOnuObj(const char* strFileName, const char* strOnuTypeSection,
                                          int32_t iOffsetIn, OnuInformation* pstOnuInformation) {
  using namespace sys_context;
  return AddPorts(kSpecialPorts, strFileName, strOnuTypeSection, iOffsetIn, pstOnuInformation);
}
