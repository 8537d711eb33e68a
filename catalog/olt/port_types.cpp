// The OLT port types: their loader, and copies of their records.
#include <cstring>

#include "cfgfile/keys.h"
#include "cfgfile/named_sections.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "common/numbers.h"
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

// kept as is: "Type" is reported in the words of the chassis loader.
constexpr KeyMessage kTypeUnreadable =
    "\r\nddReadOneSupportedOltPortInformation err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s";
constexpr KeyMessage kUnreadable =
    "\r\nddReadOneSupportedOltPortInformation err! iResult = %d, section = %s, key = %s";
constexpr Message<uint32_t> kNameTooLong =
    "\r\nddReadOneSupportedOltPortInformation err! ulNameLen = %d";

// Reads a port type but for its splitting ratio.
int32_t ReadTypeAndName(const char* file, const char* section, Owned<OltPortInformation>& port) {
  Value type;
  if (ReadKey(file, section, "Type", type, kTypeUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  port = NewRecord<OltPortInformation>();
  if (port == nullptr) {
    Console("\r\nddReadOneSupportedOltPortInformation->malloc err! pstOltPortInformation = 0x%x",
            LowBits(port.get()));
    return kNoMemory;
  }
  port->ulPortType = ParseUnsigned(type.text);
  return ReadName(file, section, port->acName, port->ulNameLen, kUnreadable, kNameTooLong);
}

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

// The place of the port type that is to be copied.
int32_t FindPortType(const char* name, uint32_t& index) {
  if (const size_t length = std::strlen(name); length + 1 > MAX_OLT_PORT_NAME_LEN) {
    Console("\r\nddCreateOneOltPortObjByName err! strlen(strOltPortTypeName) = %d",
            static_cast<uint32_t>(length));
    return kTextTooLong;
  }
  uint32_t is_supported = 0;
  if (const int32_t code = ddIsOltPortTypeSupportedByName(name, &is_supported, &index);
      code != kOk) {
    Console(
        "\r\nddCreateOneOltPortObjByName->ddIsOltPortTypeSupportedByName err! iResult = %d, strOltPortTypeName = %s, ulIndex = %d",
        code, name, index);
    return code;
  }
  if (is_supported == 0) {
    Console("\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = %s, IsSupported = %d", name,
            is_supported);
    return kNoSuchName;
  }
  // kept as is: the bound lets one place more through than the table has.
  if (index > MAX_OLT_PORT_TYPE_NUM) {
    Console("\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = %s, ulIndex = %d", name,
            index);
    return kTooManyPortTypes;
  }
  return kOk;
}

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
  if (const int32_t code = ReadTypeAndName(strFileName, strOltPortTypeSection, port); code != kOk) {
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

// kept as is: prints its messages whatever ddDebugPrint holds.
int32_t ddCreateOneOltPortObjByName(const char* strOltPortTypeName,
                                    OltPortInformation** pulOltPortTypeObjAddr) {
  using namespace sys_context;
  if (strOltPortTypeName == nullptr || pulOltPortTypeObjAddr == nullptr) {
    Console(
        "\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = 0x%x, pulOltPortTypeObjAddr = 0x%x",
        LowBits(strOltPortTypeName), LowBits(pulOltPortTypeObjAddr));
    return kNullArgument;
  }
  uint32_t index = 0;
  if (const int32_t code = FindPortType(strOltPortTypeName, index); code != kOk) {
    *pulOltPortTypeObjAddr = nullptr;
    return code;
  }
  auto copy = NewRecord<OltPortInformation>();
  if (copy == nullptr) {
    Console(
        "\r\nddCreateOneOltPortObjByName->malloc err! pstOltPortInformationOut = 0x%x, ulIndex = %d",
        LowBits(copy.get()), index);
    *pulOltPortTypeObjAddr = nullptr;
    return kNoMemory;
  }
  const OltPortInformation* const saved = gstSupportedOltPortType.pOltPortTypeArray[index];
  if (saved == nullptr) {
    Console("\r\nddCreateOneOltPortObjByName err! pstOltPortInformationSaved = 0x%x, ulIndex = %d",
            LowBits(saved), index);
    return kEmptyPlace;  // kept as is: the output is untouched.
  }
  copy->ulPortType = saved->ulPortType;
  copy->ulNameLen = saved->ulNameLen;
  std::memcpy(copy->acName, saved->acName, saved->ulNameLen);
  copy->ulSplittingRatio = saved->ulSplittingRatio;
  copy->ulLink = 0;
  *pulOltPortTypeObjAddr = copy.release();
  return kOk;
}
