// Questions about the OLT port types.
#include "common/codes.h"
#include "common/messages.h"
#include "common/table_queries.h"
#include "sys_context/olt.h"

namespace sys_context {
namespace {

// kept as is: here a missing array has the code of a corrupt count.
constexpr NameQuery kPortTypeByName = {
    .table =
        {
            .limit = MAX_OLT_PORT_TYPE_NUM,
            .above_limit_code = kTooManyPortTypes,
            .no_array_code = kNoPortTypes,
            .above_limit = "\r\nddIsOltPortTypeSupportedByName err! ulSupportedOltPortTypeNum = %d",
            .no_array = "\r\nddIsOltPortTypeSupportedByName err! pOltPortTypeArray = 0x%x",
        },
    .null_argument =
        "\r\nddIsOltPortTypeSupportedByName err! strOltPortTypeName = 0x%x, pIsSupported = 0x%x, pIndex = 0x%x",
    .name_too_long = "\r\nddIsOltPortTypeSupportedByName err! strlen(strOltPortTypeName) = %d",
    .corrupt_length =
        "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = %d, ulSupportedOltPortTypeNumIndex = %d",
};

}  // namespace
}  // namespace sys_context

int32_t ddIsOltPortTypeSupportedByName(const char* strOltPortTypeName, uint32_t* pIsSupported,
                                       uint32_t* pIndex) {
  using namespace sys_context;
  return AskForName(kPortTypeByName, gstSupportedOltPortType.ulSupportedOltPortTypeNum,
                    gstSupportedOltPortType.pOltPortTypeArray, strOltPortTypeName, pIsSupported,
                    pIndex);
}

int32_t ddGetOltPortSplittingRatioByType(uint32_t ulPortType, uint32_t* pulSplittingRatio) {
  using namespace sys_context;
  if (pulSplittingRatio == nullptr) {
    // kept as is: names an argument that this function does not have.
    DebugConsole("\r\nddGetOltPortSplittingRatioByType err! strOltPortTypeName = 0x%x",
                 LowBits(pulSplittingRatio));
    return kNullArgument;
  }
  *pulSplittingRatio = 0;
  const SupportedOltPortType& types = gstSupportedOltPortType;
  if (types.ulSupportedOltPortTypeNum > MAX_OLT_PORT_TYPE_NUM) {
    DebugConsole("\r\nddGetOltPortSplittingRatioByType err! ulSupportedOltPortTypeNum = %d",
                 types.ulSupportedOltPortTypeNum);
    return kTooManyPortTypes;
  }
  if (types.pOltPortTypeArray == nullptr) {
    DebugConsole(
        "\r\nddGetOltPortSplittingRatioByType err! ulPortType = %d, pOltPortTypeArray = 0x%x",
        ulPortType, LowBits(types.pOltPortTypeArray));
    return kNoTable;
  }
  const OltPortInformation* const port =
      FindRecord(types.ulSupportedOltPortTypeNum, types.pOltPortTypeArray,
                 [=](const OltPortInformation& type) { return type.ulPortType == ulPortType; });
  if (port == nullptr) {
    return kNoSuchPortType;
  }
  // kept as is: a ratio that is too large is reported, and answered all the same.
  if (port->ulSplittingRatio > DD_MAX_ONU_NUM_PER_PON) {
    DebugConsole(
        "\r\nddGetOltPortSplittingRatioByType err! ulPortType = %d, ulSplittingRatio = %d, DD_MAX_ONU_NUM_PER_PON = %d",
        ulPortType, port->ulSplittingRatio, DD_MAX_ONU_NUM_PER_PON);
  }
  *pulSplittingRatio = port->ulSplittingRatio;
  return kOk;
}
