// Cards, which are main boards and service boards: their names and types.
#include <cstring>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cfgfile.h"
#include "sys_context/olt.h"

int32_t ddGetCardTypeByName(const char* pcCardName, uint32_t* pulCardType) {
  using namespace sys_context;
  if (pcCardName == nullptr || pulCardType == nullptr) {
    DebugConsole("\r\nddGetCardTypeByName err!, pcCardName = 0x%x, pulCardType = 0x%x",
                 LowBits(pcCardName), LowBits(pulCardType));
    return kNullArgument;
  }
  // kept as is: the second query asks the main boards once more.
  if (ddGetMainBoardTypeByName(pcCardName, pulCardType) == kOk ||
      ddGetBoardTypeByName(pcCardName, pulCardType) == kOk) {
    return kOk;
  }
  DebugConsole("\r\nddGetCardTypeByName err!, pcCardName = %s", pcCardName);
  return kNoSuchName;
}

// kept as is: only the argument is converted, not the names of the tables.
int32_t ddGetCardTypeByNocaseName(const char* pcCardName, uint32_t* pulCardType) {
  using namespace sys_context;
  if (pcCardName == nullptr || pulCardType == nullptr) {
    DebugConsole("\r\nddGetCardTypeByNocaseName err!, pcCardName = 0x%x, pulCardType = 0x%x",
                 LowBits(pcCardName), LowBits(pulCardType));
    return kNullArgument;
  }
  char name[MAX_BOARD_NAME_LEN] = {};
  const auto length = static_cast<uint32_t>(std::strlen(pcCardName) + 1);
  if (const int32_t code = ddStringToUppercase(pcCardName, length, name, sizeof name);
      code != kOk) {
    DebugConsole(
        "\r\nddGetCardTypeByNocaseName->ddStringToUppercase err! ulOriLen = %d, ulDstLen = %d",
        length, static_cast<uint32_t>(sizeof name));
    return code;
  }
  const int32_t code = ddGetCardTypeByName(name, pulCardType);
  if (code != kOk) {
    DebugConsole(
        "\r\nddGetCardTypeByNocaseName->ddGetCardTypeByName err! strCardNameUppercase = %s", name);
  }
  return code;
}

int32_t ddGetCardNameByType(uint32_t ulBoardType, char* pcCardName) {
  using namespace sys_context;
  if (pcCardName == nullptr) {
    DebugConsole("\r\nddGetCardNameByType err!, pcCardName = 0x%x", LowBits(pcCardName));
    return kNullArgument;
  }
  // kept as is: the second query asks the main boards once more.
  if (ddGetMainBoardNameByType(ulBoardType, pcCardName) == kOk ||
      ddGetBoardNameByType(ulBoardType, pcCardName) == kOk) {
    return kOk;
  }
  DebugConsole("\r\nddGetCardNameByType err!, ulBoardType = %d", ulBoardType);
  return kNoSuchBoard;
}
