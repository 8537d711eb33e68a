// Copies of the ONU port types.
#include "common/codes.h"
#include "common/messages.h"
#include "common/table_queries.h"
#include "sys_context/onu.h"

namespace sys_context {
namespace {

// kept as is: three messages show names that no function has.
constexpr CopyQuery kPonCopy = {
    .gate = Gate::kDebug,
    .last_index = MAX_ONU_PON_TYPE_NUM,
    .above_last_index_code = kTooManyOnuPortTypes,
    .null_argument =
        "\r\nddCreateOneOnuPonObjByName err! strOnuPonTypeName = 0x%x, pOnuPonTypeObjAddr = 0x%x",
    .name_too_long = "\r\nddCreateOneOnuPonObjByName err! strlen(strOnuPonTypeName) = %d",
    .lookup_failed =
        "\r\nddCreateOneOnuPonObjByName->dd_IsOnuPonTypeSupportedBySecName err! iResult = %d, strOnuPonTypeName = %s, ulIndex = %d",
    .not_supported = "\r\nddCreateOneOnuPonObjByName err! strOnuPonTypeName = %s, IsSupported = %d",
    .above_last_index = "\r\nddCreateOneOnuPonObjByName err! strOnuPonTypeName = %s, ulIndex = %d",
    .no_memory = "\r\ndd_CreateOneOnuPonObjBySecName, pstOnuPonInformationOut = 0x%x, ulIndex = %d",
    .empty_place =
        "\r\ndd_CreateOneOnuPonObjBySecName, pstOnuPonInformationSaved = 0x%x, ulIndex = %d",
};

// kept as is: copies of the other types are asked for aloud.
constexpr CopyQuery kLanCopy = {
    .gate = Gate::kAlways,
    .last_index = MAX_ONU_LAN_TYPE_NUM,
    .above_last_index_code = kTooManyOnuPortTypes,
    .null_argument =
        "\r\nddCreateOneOnuLanObjByName err! strOnuLanTypeName = 0x%x, pOnuLanTypeObjAddr = 0x%x",
    .name_too_long = "\r\nddCreateOneOnuLanObjByName err! strlen(strOnuLanTypeName) = %d",
    .lookup_failed =
        "\r\nddCreateOneOnuLanObjByName->ddIsOnuLanTypeSupportedByName err! iResult = %d, strOnuLanTypeName = %s, ulIndex = %d",
    .not_supported = "\r\nddCreateOneOnuLanObjByName err! strOnuLanTypeName = %s, IsSupported = %d",
    .above_last_index = "\r\nddCreateOneOnuLanObjByName err! strOnuLanTypeName = %s, ulIndex = %d",
    .no_memory = "\r\nddCreateOneOnuLanObjByName, pstOnuLanPortInformationOut = 0x%x, ulIndex= %d",
    .empty_place =
        "\r\nddCreateOneOnuLanObjByName, pstOnuLanPortInformationSave = 0x%x, ulIndex = %d",
};

constexpr CopyQuery kPotsCopy = {
    .gate = Gate::kAlways,
    .last_index = MAX_ONU_POTS_TYPE_NUM,
    .above_last_index_code = kTooManyOnuPortTypes,
    .null_argument =
        "\r\nddCreateOneOnuPotsObjByName err! strOnuPotsTypeName = 0x%x, pOnuPotsTypeObjAddr = 0x%x",
    .name_too_long = "\r\nddCreateOneOnuPotsObjByName err! strlen(strOnuPotsTypeName) = %d",
    .lookup_failed =
        "\r\nddCreateOneOnuPotsObjByName->ddIsOnuPotsTypeSupportedByName err! iResult = %d, strOnuPotsTypeName = %s, ulIndex = %d",
    .not_supported =
        "\r\nddCreateOneOnuPotsObjByName err! strOnuPotsTypeName = %s, IsSupported = %d",
    .above_last_index =
        "\r\nddCreateOneOnuPotsObjByName err! strOnuPotsTypeName = %s, ulIndex = %d",
    .no_memory =
        "\r\nddCreateOneOnuPotsObjByName, pstOnuPotsPortInformationOut = 0x%x, ulIndex = %d",
    .empty_place =
        "\r\nddCreateOneOnuPotsObjByName, pstOnuPotsPortInformationSave = 0x%x, ulIndex = %d",
};

constexpr CopyQuery kSpecialPortCopy = {
    .gate = Gate::kAlways,
    .last_index = MAX_ONU_SPECIAL_PORT_TYPE_NUM,
    .above_last_index_code = kTooManyOnuPortTypes,
    .null_argument =
        "\r\nddCreateOneOnuSpecialPortObjByName err! strOnuSpecialPortTypeName = 0x%x, pOnuSpecialPortTypeObjAddr = 0x%x",
    .name_too_long =
        "\r\nddCreateOneOnuSpecialPortObjByName err! strlen(strOnuSpecialPortTypeName) = %d",
    .lookup_failed =
        "\r\nddCreateOneOnuSpecialPortObjByName->ddIsOnuSpecialPortTypeSupportedByName err! iResult = %d, strOnuSpecialPortTypeName = %s, ulIndex = %d",
    .not_supported =
        "\r\nddCreateOneOnuSpecialPortObjByName err! strOnuSpecialPortTypeName = %s, IsSupported = %d",
    .above_last_index =
        "\r\nddCreateOneOnuSpecialPortObjByName err! strOnuSpecialPortTypeName = %s, ulIndex = %d",
    .no_memory =
        "\r\nddCreateOneOnuSpecialPortObjByName, pstOnuSpecialPortInformationOut = 0x%x, ulIndex = %d",
    .empty_place =
        "\r\nddCreateOneOnuSpecialPortObjByName, pstOnuSpecialPortInformationSave = 0x%x, ulIndex = %d",
};

}  // namespace
}  // namespace sys_context

int32_t ddCreateOneOnuPonObjByName(const char* strOnuPonTypeName,
                                   OnuPortTypeInformation** pOnuPonTypeObjAddr) {
  using namespace sys_context;
  return CopyByName(kPonCopy, ddIsOnuPonTypeSupportedByName,
                    gstSupportedOnuPonType.pOnuPonTypeArray, strOnuPonTypeName, pOnuPonTypeObjAddr);
}

int32_t ddCreateOneOnuLanObjByName(const char* strOnuLanTypeName,
                                   OnuPortTypeInformation** pOnuLanTypeObjAddr) {
  using namespace sys_context;
  return CopyByName(kLanCopy, ddIsOnuLanTypeSupportedByName,
                    gstSupportedOnuLanType.pOnuLanTypeArray, strOnuLanTypeName, pOnuLanTypeObjAddr);
}

int32_t ddCreateOneOnuPotsObjByName(const char* strOnuPotsTypeName,
                                    OnuPortTypeInformation** pOnuPotsTypeObjAddr) {
  using namespace sys_context;
  return CopyByName(kPotsCopy, ddIsOnuPotsTypeSupportedByName,
                    gstSupportedOnuPotsType.pOnuPotsTypeArray, strOnuPotsTypeName,
                    pOnuPotsTypeObjAddr);
}

int32_t ddCreateOneOnuSpecialPortObjByName(const char* strOnuSpecialPortTypeName,
                                           OnuPortTypeInformation** pOnuSpecialPortTypeObjAddr) {
  using namespace sys_context;
  return CopyByName(kSpecialPortCopy, ddIsOnuSpecialPortTypeSupportedByName,
                    gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray,
                    strOnuSpecialPortTypeName, pOnuSpecialPortTypeObjAddr);
}
