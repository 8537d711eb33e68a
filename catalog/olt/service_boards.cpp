// The service boards: their loader, and their end.
#include <cstdlib>

#include "cfgfile/named_sections.h"
#include "cfgfile/port_list.h"
#include "cfgfile/port_owner.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/olt.h"

constinit SupportedBoardType gstSupportedBoardType = {};

namespace sys_context {
namespace {

// kept as is: several messages show the names of the ONU types' loader.
constexpr ListSection kBoardList = {
    .section = "SupportedBoardType",
    .count =
        {
            .key = "SupportedBoardTypeNum",
            .limit = MAX_OLT_BOARD_TYPE_NUM,
            .above_limit_code = kTooManyBoards,
            .above_limit =
                "\r\nddReadAllSupportedBoardInformation err! ulSupportedOnuTypeNum = %d, MAX_OLT_BOARD_TYPE_NUM = %d",
        },
    .entry_key = "SupportedBoardType",
    .no_memory_clears_count = false,  // kept as is: alone among the lists
    .null_file = "\r\nddReadAllSupportedBoardInformation err!, strFileName = 0x%x",
    .key_unreadable =
        "\r\nddReadAllSupportedBoardInformation err! iResult = %d, section = %s, key = %s",
    .empty_list =
        Message<uint32_t>("\r\nddReadAllSupportedBoardInformation ok! ulSupportedOnuTypeNum = %d"),
    .no_memory = "\r\nddReadAllSupportedOnuInformation->malloc err! pBoardTypeArray = 0x%x",
    .record_failed =
        "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! iResult = %d, section = %s",
    .section_not_found = KeyMessage(
        "\r\nddReadAllSupportedBoardInformation err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s"),
};

int32_t FindMaxPonBoard() {
  const int32_t code = ddFindSupportedBoardMaxPonNum();
  if (code != kOk) {
    Console("\r\nddReadAllSupportedBoardInformation->ddFindSupportedBoardMaxPonNum err!");
  }
  return code;
}

constexpr OwnerReader<BoardInformation, 2> kReader = {
    .type_and_name =
        {
            .type_unreadable =
                "\r\nddReadOneSupportedBoardInformation err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s",
            .no_memory =
                "\r\nddReadOneSupportedBoardInformation->malloc err! pstBoardInformation = 0x%x",
            .name_unreadable =
                "\r\nddReadOneSupportedBoardInformation err! iResult = %d, section = %s, key = %s",
            .name_too_long = "\r\nddReadOneSupportedBoardInformation err! ulNameLen = %d",
        },
    .type = &BoardInformation::ulType,
    .adders =
        {
            {ddAddSupportedServePortToBoardObj,
             "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! strBoardTypeSection = %s"},
            {ddAddSupportedSpecialPortToBoardObj,
             "\r\nddReadOneSupportedBoardInformation->ddAddSupportedSpecialPortToBoardObj err! strBoardTypeSection = %s"},
        },
    .release = ddFreeOneBoardAllObj,
    // kept as is: two of the arguments are called otherwise.
    .null_argument =
        "\r\nddReadOneSupportedBoardInformation err! strFileName = 0x%x, strOltPonTypeSection = 0x%x, pOltPonTypeObjAddr = 0x%x",
    .negative_start = "\r\nddReadOneSupportedBoardInformation err! iOffsetIn = %d",
};

}  // namespace
}  // namespace sys_context

int32_t ddReadAllSupportedBoardInformation(const char* strFileName) {
  using namespace sys_context;
  SupportedBoardType& table = gstSupportedBoardType;
  const int32_t code = LoadNamedSections<BoardInformation>(
      kBoardList, strFileName, table.ulSupportedBoardTypeNum, table.pBoardTypeArray,
      [](const Source& source, const char* section, BoardInformation** board) {
        return ddReadOneSupportedBoardInformation(source.file(), section, source.start(), board);
      });
  if (code != kOk || table.pBoardTypeArray == nullptr) {
    return code;
  }
  return FindMaxPonBoard();
}

int32_t ddReadOneSupportedBoardInformation(const char* strFileName, const char* strBoardTypeSection,
                                           int32_t iOffsetIn,
                                           BoardInformation** pBoardTypeObjAddr) {
  using namespace sys_context;
  return ReadOwner(kReader, strFileName, strBoardTypeSection, iOffsetIn, pBoardTypeObjAddr);
}

int32_t ddFreeOneBoardAllObj(BoardInformation* pstBoardInformation) {
  using namespace sys_context;
  if (pstBoardInformation == nullptr) {
    // kept as is: speaks in the name of an ONU loader.
    Console("\r\nddAddSupportedLanToOnuObj err! pstBoardInformation = 0x%x",
            LowBits(pstBoardInformation));
    return kNullArgument;
  }
  FreePorts(pstBoardInformation->pPortArray, pstBoardInformation->ulTotalServePortNum,
            MAX_OLT_PORT_NUM_PER_BOARD);
  FreePorts(pstBoardInformation->pSpecialPortArray, pstBoardInformation->ulTotalSpecialPortNum,
            MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD);
  std::free(pstBoardInformation);
  return kOk;
}
