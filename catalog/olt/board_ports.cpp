// The ports of a service board: the serving and the special ones are read alike.
#include "cfgfile/port_list.h"
#include "sys_context/olt.h"

namespace sys_context {
namespace {

using BoardPorts = PortList<BoardInformation, OltPortInformation>;

// kept as is: two messages name functions that are called otherwise, and the place of a
// port type is held against the limit of a board's ports.
constexpr BoardPorts kServingPorts = {
    .count_key =
        {
            .key = "PortNum",
            .limit = MAX_OLT_PORT_NUM_PER_BOARD,
            .above_limit_code = kTooManyPorts,
            .above_limit =
                "\r\nddAddSupportedServePortToBoardObj err! ulTotalServePortNum = %d, MAX_OLT_PORT_NUM_PER_BOARD = %d",
        },
    .port_key = "NameKeyPort",
    .count = &BoardInformation::ulTotalServePortNum,
    .ports = &BoardInformation::pPortArray,
    .find_type = ddIsOltPortTypeSupportedByName,
    .copy_type = ddCreateOneOltPortObjByName,
    .last_type_index = MAX_OLT_PORT_NUM_PER_BOARD,
    .null_argument =
        "\r\nddAddSupportedServePortToBoardObj err! strFileName = 0x%x, strBoardTypeSection = 0x%x, pstBoardInformation = 0x%x",
    .negative_start = "\r\nddAddSupportedServePortToBoardObj err! iOffsetIn = %d",
    .key_unreadable =
        "\r\nddAddSupportedServePortToBoardObj err! iResult = %d, section = %s, key = %s",
    .no_memory =
        "\r\nddAddSupportedServePortToBoardObj err! pstBoardInformation->pPortArray = 0x%x",
    .lookup_failed =
        "\r\nddAddSupportedServePortToBoardObj->dd_IsOltPonTypeSupportedBySecName err! iResult = %d, strKey = %s, ulIndex = %d",
    .not_supported = "\r\nddAddSupportedServePortToBoardObj err! strKey = %s, IsSupported = %d",
    .above_last_index = "\r\nddAddSupportedServePortToBoardObj err! strKey = %s, ulIndex = %d",
    .copy_failed =
        "\r\nddAddSupportedServePortToBoardObj->dd_CreateOneOnuPonObjBySecName err! strKey = %s",
};

// kept as is: a special port that cannot be had clears the count of the serving ports,
// so that their copies stay when the board goes.
constexpr BoardPorts kSpecialPorts = {
    .count_key =
        {
            .key = "SpecialPortNum",
            .limit = MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD,
            .above_limit_code = kTooManyPorts,
            .above_limit =
                "\r\nddAddSupportedSpecialPortToBoardObj err! ulTotalSpecialPortNum = %d, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = %d",
        },
    .port_key = "NameKeySpecialPort",
    .count = &BoardInformation::ulTotalSpecialPortNum,
    .ports = &BoardInformation::pSpecialPortArray,
    .find_type = ddIsOltPortTypeSupportedByName,
    .copy_type = ddCreateOneOltPortObjByName,
    .last_type_index = MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD,
    .count_cleared = &BoardInformation::ulTotalServePortNum,
    .null_argument =
        "\r\nddAddSupportedSpecialPortToBoardObj err! strFileName = 0x%x, strBoardTypeSection = 0x%x, pstBoardInformation = 0x%x",
    .negative_start = "\r\nddAddSupportedSpecialPortToBoardObj err! iOffsetIn = %d",
    .key_unreadable =
        "\r\nddAddSupportedSpecialPortToBoardObj err! iResult = %d, section = %s, key = %s",
    .no_memory =
        "\r\nddAddSupportedSpecialPortToBoardObj err! pstBoardInformation->pSpecialPortArray = 0x%x",
    .lookup_failed =
        "\r\nddAddSupportedSpecialPortToBoardObj->dd_IsOltPonTypeSupportedBySecName err! iResult = %d, strKey = %s, ulIndex = %d",
    .not_supported = "\r\nddAddSupportedSpecialPortToBoardObj err! strKey = %s, IsSupported = %d",
    .above_last_index = "\r\nddAddSupportedSpecialPortToBoardObj err! strKey = %s, ulIndex = %d",
    .copy_failed =
        "\r\nddAddSupportedSpecialPortToBoardObj->dd_CreateOneOnuPonObjBySecName err! strKey = %s",
};

}  // namespace
}  // namespace sys_context

int32_t ddAddSupportedServePortToBoardObj(const char* strFileName, const char* strBoardTypeSection,
                                          int32_t iOffsetIn,
                                          BoardInformation* pstBoardInformation) {
  using namespace sys_context;
  return AddPorts(kServingPorts, strFileName, strBoardTypeSection, iOffsetIn, pstBoardInformation);
}

int32_t ddAddSupportedSpecialPortToBoardObj(const char* strFileName,
                                            const char* strBoardTypeSection, int32_t iOffsetIn,
                                            BoardInformation* pstBoardInformation) {
  using namespace sys_context;
  return AddPorts(kSpecialPorts, strFileName, strBoardTypeSection, iOffsetIn, pstBoardInformation);
}
