// The service boards: their loader, and their end.
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "cfgfile/keys.h"
#include "cfgfile/named_sections.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "common/numbers.h"
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

constexpr KeyMessage kTypeUnreadable =
    "\r\nddReadOneSupportedBoardInformation err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s";
constexpr KeyMessage kNameUnreadable =
    "\r\nddReadOneSupportedBoardInformation err! iResult = %d, section = %s, key = %s";
constexpr Message<uint32_t> kNameTooLong =
    "\r\nddReadOneSupportedBoardInformation err! ulNameLen = %d";

struct PortAdder {
  int32_t (*add)(const char* file, const char* section, int32_t start, BoardInformation* board);
  Message<const char*> failure;
};
constexpr PortAdder kPortAdders[] = {
    {ddAddSupportedServePortToBoardObj,
     "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! strBoardTypeSection = %s"},
    {ddAddSupportedSpecialPortToBoardObj,
     "\r\nddReadOneSupportedBoardInformation->ddAddSupportedSpecialPortToBoardObj err! strBoardTypeSection = %s"},
};

int32_t AddAllPorts(const Source& source, const char* section, BoardInformation& board) {
  for (const PortAdder& adder : kPortAdders) {
    if (const int32_t code = adder.add(source.file(), section, source.start(), &board);
        code != kOk) {
      Report(Gate::kAlways, adder.failure, section);
      return code;
    }
  }
  return kOk;
}

struct FreeBoard {
  void operator()(BoardInformation* board) const { ddFreeOneBoardAllObj(board); }
};
using OwnedBoard = std::unique_ptr<BoardInformation, FreeBoard>;

int32_t ReadBoard(const Source& source, const char* section, OwnedBoard& board) {
  Value type;
  if (ReadKey(source, section, "Type", type, kTypeUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  board.reset(NewRecord<BoardInformation>().release());  // freed another way than records are
  if (board == nullptr) {
    Console("\r\nddReadOneSupportedBoardInformation->malloc err! pstBoardInformation = 0x%x",
            LowBits(board.get()));
    return kNoMemory;
  }
  board->ulType = ParseUnsigned(type.text);
  const int32_t code =
      ReadName(source, section, board->acName, board->ulNameLen, kNameUnreadable, kNameTooLong);
  return code == kOk ? AddAllPorts(source, section, *board) : code;
}

// Releases a list of ports.
// kept as is: of a full list the ports themselves are not released.
void FreePorts(OltPortInformation** ports, uint32_t count, uint32_t limit) {
  if (ports == nullptr) {
    return;
  }
  if (count < limit) {
    std::for_each(ports, ports + count, std::free);
  }
  std::free(ports);
}

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
  const bool none_announced = code == kOk && table.pBoardTypeArray == nullptr;
  return code != kOk || none_announced ? code : FindMaxPonBoard();
}

int32_t ddReadOneSupportedBoardInformation(const char* strFileName, const char* strBoardTypeSection,
                                           int32_t iOffsetIn,
                                           BoardInformation** pBoardTypeObjAddr) {
  using namespace sys_context;
  if (strFileName == nullptr || strBoardTypeSection == nullptr || pBoardTypeObjAddr == nullptr) {
    Console(
        "\r\nddReadOneSupportedBoardInformation err! strFileName = 0x%x, strOltPonTypeSection = 0x%x, pOltPonTypeObjAddr = 0x%x",
        LowBits(strFileName), LowBits(strBoardTypeSection), LowBits(pBoardTypeObjAddr));
    return kNullArgument;
  }
  if (iOffsetIn < 0) {
    Console("\r\nddReadOneSupportedBoardInformation err! iOffsetIn = %d", iOffsetIn);
    return kKeyUnreadable;
  }
  OwnedBoard board;
  const int32_t code = ReadBoard(Source(strFileName, iOffsetIn), strBoardTypeSection, board);
  *pBoardTypeObjAddr = code == kOk ? board.release() : nullptr;
  return code;
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
