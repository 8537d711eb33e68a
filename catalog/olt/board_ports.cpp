// The ports of a service board: the serving and the special ones are read alike.
#include <algorithm>
#include <cstdlib>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "sys_context/olt.h"

namespace sys_context {
namespace {

// Where a kind of port is kept, in the file and in the record, and how its
// reader words its failures.
struct PortList {
  CountKey count_key;
  const char* port_key;  // the number follows
  uint32_t BoardInformation::*count;
  OltPortInformation** BoardInformation::*ports;

  Message<uint32_t, uint32_t, uint32_t> null_argument;
  Message<int32_t> negative_start;
  KeyMessage key_unreadable;
  Message<uint32_t> no_memory;
  Message<int32_t, const char*, uint32_t> lookup_failed;
  Message<const char*, uint32_t> not_supported;
  Message<const char*, uint32_t> index_above_limit;
  Message<const char*> copy_failed;
};

// kept as is: two messages name functions that are called otherwise.
constexpr PortList kServingPorts = {
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
    .index_above_limit = "\r\nddAddSupportedServePortToBoardObj err! strKey = %s, ulIndex = %d",
    .copy_failed =
        "\r\nddAddSupportedServePortToBoardObj->dd_CreateOneOnuPonObjBySecName err! strKey = %s",
};

constexpr PortList kSpecialPorts = {
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
    .index_above_limit = "\r\nddAddSupportedSpecialPortToBoardObj err! strKey = %s, ulIndex = %d",
    .copy_failed =
        "\r\nddAddSupportedSpecialPortToBoardObj->dd_CreateOneOnuPonObjBySecName err! strKey = %s",
};

int32_t ReadPortCount(const PortList& list, const Source& source, const char* section,
                      uint32_t& count) {
  Value value;
  if (ReadKey(source, section, list.count_key.key, value, list.key_unreadable) != kOk) {
    return kKeyUnreadable;
  }
  return ParseCount(list.count_key, value, count);
}

// A copy of the port type that the key names, or null.
OltPortInformation* ReadPort(const PortList& list, const Source& source, const char* section,
                             const char* key) {
  Value type;
  if (ReadKey(source, section, key, type, list.key_unreadable) != kOk) {
    return nullptr;
  }
  uint32_t is_supported = 0;
  uint32_t index = 0;
  if (const int32_t code = ddIsOltPortTypeSupportedByName(type.text, &is_supported, &index);
      code != kOk) {
    Report(Gate::kAlways, list.lookup_failed, code, key, index);
    return nullptr;
  }
  if (is_supported == 0) {
    Report(Gate::kAlways, list.not_supported, key, is_supported);
    return nullptr;
  }
  // kept as is: the place of a port type is held against the limit of a board's ports.
  if (index > list.count_key.limit) {
    Report(Gate::kAlways, list.index_above_limit, key, index);
    return nullptr;
  }
  OltPortInformation* port = nullptr;
  if (ddCreateOneOltPortObjByName(type.text, &port) != kOk) {
    Report(Gate::kAlways, list.copy_failed, key);
    return nullptr;
  }
  return port;
}

// Reads the ports into the array; if one cannot be had, none stays.
int32_t ReadPorts(const PortList& list, const Source& source, const char* section, uint32_t count,
                  OltPortInformation** ports) {
  for (uint32_t i = 0; i < count; ++i) {
    const NumberedKey key(list.port_key, i + 1);
    ports[i] = ReadPort(list, source, section, key.text);
    if (ports[i] == nullptr) {
      std::for_each(ports, ports + i, std::free);
      return kPortNotLoaded;
    }
  }
  return kOk;
}

int32_t AddPorts(const PortList& list, const char* file, const char* section, int32_t start,
                 BoardInformation* board) {
  if (file == nullptr || section == nullptr || board == nullptr) {
    Report(Gate::kAlways, list.null_argument, LowBits(file), LowBits(section), LowBits(board));
    return kNullArgument;
  }
  if (start < 0) {
    Report(Gate::kAlways, list.negative_start, start);
    return kKeyUnreadable;
  }
  const Source source(file, start);
  uint32_t count = 0;
  if (const int32_t code = ReadPortCount(list, source, section, count); code != kOk || count == 0) {
    board->*list.count = 0;
    return code;
  }
  board->*list.ports = nullptr;  // an array that was there is forgotten, whatever comes
  auto ports = NewArray<OltPortInformation*>(count);
  if (ports == nullptr) {
    Report(Gate::kAlways, list.no_memory, LowBits(ports.get()));
    board->*list.count = 0;
    return kNoMemory;
  }
  if (const int32_t code = ReadPorts(list, source, section, count, ports.get()); code != kOk) {
    // kept as is: a special port that cannot be had, too, clears this count and not
    // its own, so that the copies of the serving ports stay when the board goes.
    board->ulTotalServePortNum = 0;
    return code;
  }
  board->*list.ports = ports.release();
  board->*list.count = count;
  return kOk;
}

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
