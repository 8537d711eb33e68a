// The ONU types: their loader, and their end.
#include <cstdlib>

#include "cfgfile/named_sections.h"
#include "cfgfile/port_list.h"
#include "cfgfile/port_owner.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/onu.h"

constinit SupportedOnuType gstSupportedOnuType = {};

namespace sys_context {
namespace {

// kept as is: without LAN port types there are no ONU types. The load ends as if the
// array of the LAN port types were its own and could not be had.
bool HasLanPortTypes() {
  return gstSupportedOnuLanType.pOnuLanTypeArray != nullptr;
}

constexpr ListSection kOnuTypeList = {
    .section = "SupportedOnuType",
    .count =
        {
            .key = "SupportedOnuTypeNum",
            .limit = MAX_ONU_TYPE_NUM,
            .above_limit_code = kTooManyOnuTypes,
            .above_limit =
                "\r\nddReadAllSupportedOnuInformation err! ulSupportedOnuTypeNum = %d, MAX_ONU_TYPE_NUM = %d",
        },
    .entry_key = "SupportedOnuType",
    .may_load = HasLanPortTypes,
    .null_file = "\r\nddReadAllSupportedOnuInformation err!, strFileName = 0x%x",
    .key_unreadable =
        "\r\nddReadAllSupportedOnuInformation err! iResult = %d, section = %s, key = %s",
    // kept as is: shows the section and key of the LAN port types.
    .count_unreadable =
        KeyMessage("\r\nddReadAllSupportedOnuInformation err! iResult = %d, section = %s, key = %s",
                   "SupportedOnuLanType", "SupportedOnuLanTypeNum"),
    .empty_list =
        Message<uint32_t>("\r\nddReadAllSupportedOnuInformation ok! ulSupportedOnuTypeNum = %d"),
    .no_memory = "\r\nddReadAllSupportedOnuInformation->malloc err! pOnuLanTypeArray = 0x%x",
    .record_failed =
        "\r\nddReadAllSupportedOnuInformation->ddReadOneSupportedOnuInformation err! iResult = %d, section = %s",
    .section_not_found = KeyMessage(
        "\r\nddReadAllSupportedOnuInformation err! iResult = %d, section = %s, key = %s"),
};

int32_t FindMaxLanType() {
  const int32_t code = ddFindSupportedOnuMaxLanNum();
  if (code != kOk) {
    // kept as is: an n too many.
    Console("\r\nnddReadAllSupportedOnuInformation->ddFindSupportedOnuMaxLanNum err!");
  }
  return code;
}

// kept as is: a "Name" that cannot be read is reported as "Speed".
constexpr OwnerReader<OnuInformation, 4> kReader = {
    .type_and_name =
        {
            .type_unreadable =
                "\r\nddReadOneSupportedOnuInformation err! iResult = %d, section = %s, key = %s",
            .no_memory =
                "\r\nddReadOneSupportedOnuInformation->malloc err! pstOnuInformation = 0x%x",
            .name_unreadable = KeyMessage(
                "\r\nddReadOneSupportedOnuInformation err! iResult = %d, section = %s, key = %s",
                nullptr, "Speed"),
            .name_too_long = "\r\nddReadOneSupportedOnuInformation err! ulNameLen = %d",
        },
    .type = &OnuInformation::ulOnuType,
    .adders =
        {
            {ddAddSupportedPonToOnuObj,
             "\r\nddReadOneSupportedOnuInformation->ddAddSupportedPonToOnuObj err! strOnuTypeSection = %s"},
            {ddAddSupportedLanToOnuObj,
             "\r\nddReadOneSupportedOnuInformation->ddAddSupportedLanToOnuObj err! strOnuTypeSection = %s"},
            {ddAddSupportedPotsToOnuObj,
             "\r\nddReadOneSupportedOnuInformation->ddAddSupportedPotsToOnuObj err! strOnuTypeSection = %s"},
            {ddAddSupportedSpecialPortToOnuObj,
             "\r\nddReadOneSupportedOnuInformation->ddAddSupportedSpecialPortToOnuObj err! strOnuTypeSection = %s"},
        },
    .release = ddFreeOneOnuAllObj,
    .null_argument =
        "\r\nddReadOneSupportedOnuInformation err! strFileName = 0x%x, strOnuTypeSection = 0x%x, pOnuTypeObjAddr = 0x%x",
    .negative_start = "\r\nddReadOneSupportedOnuInformation err! iOffsetIn = %d",
};

}  // namespace
}  // namespace sys_context

int32_t ddReadAllSupportedOnuInformation(const char* strFileName) {
  using namespace sys_context;
  SupportedOnuType& table = gstSupportedOnuType;
  const int32_t code = LoadNamedSections<OnuInformation>(
      kOnuTypeList, strFileName, table.ulSupportedOnuTypeNum, table.pOnuTypeArray,
      [](const Source& source, const char* section, OnuInformation** onu) {
        return ddReadOneSupportedOnuInformation(source.file(), section, source.start(), onu);
      });
  if (code != kOk || table.pOnuTypeArray == nullptr) {
    return code;
  }
  return FindMaxLanType();
}

int32_t ddReadOneSupportedOnuInformation(const char* strFileName, const char* strOnuTypeSection,
                                         int32_t iOffsetIn, OnuInformation** pOnuTypeObjAddr) {
  using namespace sys_context;
  return ReadOwner(kReader, strFileName, strOnuTypeSection, iOffsetIn, pOnuTypeObjAddr);
}

int32_t ddFreeOneOnuAllObj(OnuInformation* pstOnuInformation) {
  using namespace sys_context;
  if (pstOnuInformation == nullptr) {
    // kept as is: speaks in the name of the adder of LAN ports.
    Console("\r\nddAddSupportedLanToOnuObj err! pstOnuInformation = 0x%x",
            LowBits(pstOnuInformation));
    return kNullArgument;
  }
  const OnuInformation& onu = *pstOnuInformation;
  FreePorts(onu.pOnuPonArray, onu.ulTotalPonNum, MAX_ONU_PON_NUM_PER_ONU);
  FreePorts(onu.pOnuLanPortArray, onu.ulTotalLanPortNum, MAX_ONU_LAN_NUM_PER_ONU);
  FreePorts(onu.pOnuPotsPortArray, onu.ulTotalPotsNum, MAX_ONU_POTS_NUM_PER_ONU);
  FreePorts(onu.pOnuSpecialPortArray, onu.ulTotalSpecialPortNum, MAX_ONU_SPECIAL_PORT_NUM_PER_ONU);
  std::free(pstOnuInformation);
  return kOk;
}
