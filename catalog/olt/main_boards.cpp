// The main boards: their loader. Their port maps are read in
// port_maps.cpp.
#include "cfgfile/keys.h"
#include "cfgfile/named_sections.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "common/numbers.h"
#include "sys_context/olt.h"

constinit SupportedMainBoardType gstSupportedMainBoardType = {};

namespace sys_context {
namespace {

// kept as is: most messages show the names of the service boards' and the ONU
// types' loaders.
constexpr ListSection kMainBoardList = {
    .section = "SupportedMainBoardType",
    .count =
        {
            .key = "SupportedMainBoardTypeNum",
            .limit = MAX_OLT_BOARD_TYPE_NUM,
            .above_limit_code = kTooManyBoards,
            .above_limit =
                "\r\nddReadAllSupportedMainBoardInformation err! ulSupportedOnuTypeNum = %d, MAX_OLT_BOARD_TYPE_NUM = %d",
        },
    .entry_key = "SupportedMainBoardType",
    .null_file = "\r\nddReadAllSupportedMainBoardInformation err!, strFileName = 0x%x",
    .key_unreadable =
        "\r\nddReadAllSupportedBoardInformation err! iResult = %d, section = %s, key = %s",
    .empty_list = Message<uint32_t>(
        "\r\nddReadAllSupportedMainBoardInformation err! ulSupportedOnuTypeNum = %d"),
    .no_memory = "\r\nddReadAllSupportedOnuInformation->malloc err! pBoardTypeArray = 0x%x",
    .record_failed =
        "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! iResult = %d, section = %s",
};

constexpr KeyMessage kTypeUnreadable =
    "\r\nddReadOneSupportedMainBoardInformation err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s";
constexpr KeyMessage kNameUnreadable =
    "\r\nddReadOneSupportedMainBoardInformation err! iResult = %d, section = %s, key = %s";
constexpr Message<uint32_t> kNameTooLong =
    "\r\nddReadOneSupportedMainBoardInformation err! ulNameLen = %d";

int32_t ReadMainBoard(const char* file, const char* section, MainBoardInformation& board) {
  Value value;
  if (ReadKey(file, section, "Type", value, kTypeUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  board.ulType = ParseUnsigned(value.text);
  if (const int32_t code =
          ReadName(file, section, board.acName, board.ulNameLen, kNameUnreadable, kNameTooLong);
      code != kOk) {
    return code;
  }
  const int32_t code = ddReadAllSwitchChipLogicPortToPhyPort(file, section, &board);
  if (code != kOk) {
    Console(
        "\r\nddReadOneSupportedMainBoardInformation->ddReadAllSwitchChipLogicPortToPhyPort err! strBoardTypeSection = %s",
        section);
  }
  return code;
}

}  // namespace
}  // namespace sys_context

int32_t ddReadAllSupportedMainBoardInformation(const char* strFileName) {
  using namespace sys_context;
  return LoadNamedSections<MainBoardInformation>(
      kMainBoardList, strFileName, gstSupportedMainBoardType.ulSupportedBoardTypeNum,
      gstSupportedMainBoardType.pBoardTypeArray,
      [](const Source& source, const char* section, MainBoardInformation** board) {
        return ddReadOneSupportedMainBoardInformation(source.file(), section, board);
      });
}

int32_t ddReadOneSupportedMainBoardInformation(const char* strFileName,
                                               const char* strBoardTypeSection,
                                               MainBoardInformation** pBoardTypeObjAddr) {
  using namespace sys_context;
  if (strFileName == nullptr || strBoardTypeSection == nullptr || pBoardTypeObjAddr == nullptr) {
    // kept as is: two of the arguments are called otherwise.
    Console(
        "\r\nddReadOneSupportedMainBoardInformation err! strFileName = 0x%x, strOltPonTypeSection = 0x%x, pOltPonTypeObjAddr = 0x%x",
        LowBits(strFileName), LowBits(strBoardTypeSection), LowBits(pBoardTypeObjAddr));
    return kNullArgument;
  }
  *pBoardTypeObjAddr = nullptr;
  auto board = NewRecord<MainBoardInformation>();
  if (board == nullptr) {
    Console(
        "\r\nddReadOneSupportedMainBoardInformation->malloc err! pstMainBoardInformation = 0x%x",
        LowBits(board.get()));
    return kNoMemory;
  }
  const int32_t code = ReadMainBoard(strFileName, strBoardTypeSection, *board);
  if (code == kOk) {
    *pBoardTypeObjAddr = board.release();
  }
  return code;
}
