// The OLT port types: their loader, and copies of their records.
#include "cfgfile/keys.h"
#include "cfgfile/named_sections.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "common/numbers.h"
#include "common/table_queries.h"
#include "sys_context/olt.h"

constinit SupportedOltPortType gstSupportedOltPortType = {};

namespace sys_context {
namespace {

constexpr ListSection kPortTypeList = {
    .section = "SupportedOltPortType",
    .count =
        {
            .key = "SupportedOltPortTypeNum",
            .limit = MAX_OLT_PORT_TYPE_NUM,
            .above_limit_code = kTooManyPortTypes,
            .above_limit =
                "\r\nddReadAllSupportedOltPortInformation err! ulSupportedOltPortTypeNum = %d, MAX_OLT_PORT_TYPE_NUM = %d",
        },
    .entry_key = "SupportedOltPortType",
    .null_file = "\r\nddReadAllSupportedOltPortInformation err!, strFileName = 0x%x",
    .key_unreadable =
        "\r\nddReadAllSupportedOltPortInformation err! iResult = %d, section = %s, key = %s",
    .empty_list = Message<uint32_t>(
        "\r\nddReadAllSupportedOltPortInformation err! ulSupportedOltPortTypeNum = %d"),
    .no_memory = "\r\nddReadAllSupportedOltPortInformation->malloc err! pOltPortTypeArray = 0x%x",
    .record_failed =
        "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOltPortInformation err! iResult = %d, strValueBuf = %s",
};

constexpr KeyMessage kUnreadable =
    "\r\nddReadOneSupportedOltPortInformation err! iResult = %d, section = %s, key = %s";

// kept as is: "Type" is reported in the words of the chassis loader.
constexpr TypeAndName kTypeAndName = {
    .type_unreadable =
        "\r\nddReadOneSupportedOltPortInformation err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s",
    .no_memory =
        "\r\nddReadOneSupportedOltPortInformation->malloc err! pstOltPortInformation = 0x%x",
    .name_unreadable = kUnreadable,
    .name_too_long = "\r\nddReadOneSupportedOltPortInformation err! ulNameLen = %d",
};

int32_t ReadSplittingRatio(const char* file, const char* section, OltPortInformation& port) {
  Value value;
  if (ReadKey(file, section, "SplittingRatio", value, kUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  port.ulSplittingRatio = ParseUnsigned(value.text);
  if (port.ulSplittingRatio > DD_MAX_ONU_NUM_PER_PON) {
    Console(
        "\r\nddReadOneSupportedOltPortInformation err! ulSplittingRatio = %d, DD_MAX_ONU_NUM_PER_PON = %d",
        port.ulSplittingRatio, DD_MAX_ONU_NUM_PER_PON);
    return kRatioTooLarge;
  }
  return kOk;
}

// kept as is: the copy is asked for aloud, and an empty place leaves the output alone.
constexpr CopyQuery kCopyByName = {
    .gate = Gate::kAlways,
    .last_index = MAX_OLT_PORT_TYPE_NUM,
    .above_last_index_code = kTooManyPortTypes,
    .empty_place_clears_output = false,
    .null_argument =
        "\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = 0x%x, pulOltPortTypeObjAddr = 0x%x",
    .name_too_long = "\r\nddCreateOneOltPortObjByName err! strlen(strOltPortTypeName) = %d",
    .lookup_failed =
        "\r\nddCreateOneOltPortObjByName->ddIsOltPortTypeSupportedByName err! iResult = %d, strOltPortTypeName = %s, ulIndex = %d",
    .not_supported =
        "\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = %s, IsSupported = %d",
    .above_last_index =
        "\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = %s, ulIndex = %d",
    .no_memory =
        "\r\nddCreateOneOltPortObjByName->malloc err! pstOltPortInformationOut = 0x%x, ulIndex = %d",
    .empty_place =
        "\r\nddCreateOneOltPortObjByName err! pstOltPortInformationSaved = 0x%x, ulIndex = %d",
};

}  // namespace
}  // namespace sys_context

int32_t ddReadAllSupportedOltPortInformation(const char* strFileName) {
  using namespace sys_context;
  return LoadNamedSections<OltPortInformation>(
      kPortTypeList, strFileName, gstSupportedOltPortType.ulSupportedOltPortTypeNum,
      gstSupportedOltPortType.pOltPortTypeArray,
      [](const Source& source, const char* section, OltPortInformation** type) {
        return ddReadOneSupportedOltPortInformation(source.file(), section, type);
      });
}

int32_t ddReadOneSupportedOltPortInformation(const char* strFileName,
                                             const char* strOltPortTypeSection,
                                             OltPortInformation** pOltPortTypeObjAddr) {
  using namespace sys_context;
  if (strFileName == nullptr || strOltPortTypeSection == nullptr ||
      pOltPortTypeObjAddr == nullptr) {
    Console(
        "\r\nddReadOneSupportedOltPortInformation err! strFileName = 0x%x, strOltPortTypeSection = 0x%x, pOltPortTypeObjAddr = 0x%x",
        LowBits(strFileName), LowBits(strOltPortTypeSection), LowBits(pOltPortTypeObjAddr));
    return kNullArgument;
  }
  Owned<OltPortInformation> port;
  if (const int32_t code = ReadTypeAndName(kTypeAndName, strFileName, strOltPortTypeSection,
                                           &OltPortInformation::ulPortType, port);
      code != kOk) {
    *pOltPortTypeObjAddr = nullptr;
    return code;
  }
  // kept as is: a ratio that cannot be had, alone, leaves the output untouched.
  if (const int32_t code = ReadSplittingRatio(strFileName, strOltPortTypeSection, *port);
      code != kOk) {
    return code;
  }
  *pOltPortTypeObjAddr = port.release();
  return kOk;
}

int32_t ddCreateOneOltPortObjByName(const char* strOltPortTypeName,
                                    OltPortInformation** pulOltPortTypeObjAddr) {
  using namespace sys_context;
  const int32_t code = CopyByName(kCopyByName, ddIsOltPortTypeSupportedByName,
                                  gstSupportedOltPortType.pOltPortTypeArray, strOltPortTypeName,
                                  pulOltPortTypeObjAddr);
  if (code == kOk) {
    (*pulOltPortTypeObjAddr)->ulLink = 0;
  }
  return code;
}
