// Reading the port maps of a main board: the default one, and those that are
// special to an uplink board.
#include <cstdio>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/messages.h"
#include "common/names.h"
#include "common/numbers.h"
#include "sys_context/olt.h"

namespace sys_context {
namespace {

constexpr char kDefaultMapName[] = "NoSpecialUplinkBoard";
constexpr char kDefaultMapKey[] = "SwitchChipLogicPort";  // the number follows
constexpr uint32_t kMostSpecialMaps = MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM - 1;

constexpr KeyMessage kPortCountUnreadable =
    "\r\nddReadAllSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s";

int32_t ReadLogicPortCount(const char* file, const char* section, uint32_t& count) {
  Value value;
  if (ReadKey(file, section, "SwitchChipLogicPortNum", value, kPortCountUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  const uint32_t announced = ParseUnsigned(value.text);
  if (announced > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    Console(
        "\r\nddReadAllSwitchChipLogicPortToPhyPort err! strSectionFrameNameBuf = %s, ulSwitchChipLogicPortNum = %d, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = %d",
        section, announced, MAX_SWITCH_CHIP_LOGIC_PORT_NUM);
    return kTooManyChipPorts;
  }
  count = announced;
  return kOk;
}

int32_t ReadDefaultMap(const char* file, const char* section, uint32_t port_count, PortMap& map) {
  static_assert(sizeof kDefaultMapName <= sizeof map.acBoardName);
  static_cast<void>(StoreName(kDefaultMapName, map.acBoardName, map.ulBoardNameLen));
  const int32_t code = ddReadOneSwitchChipLogicPortToPhyPort(file, section, port_count,
                                                             kDefaultMapKey, map.astPortPair);
  if (code != kOk) {
    Console(
        "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, ulSwitchChipLogicPortNum = %d, %s",
        code, section, port_count, kDefaultMapKey);
  }
  return code;
}

int32_t ReadSpecialMapCount(const char* file, const char* section, uint32_t& count) {
  Value value;
  const int32_t code =
      CFG_get_key(file, section, "SpecialChipLogicPortMapPhyPortCardNum", value.text);
  if (code != kOk) {
    // kept as is: shows a shorter key than the one that was read.
    Console(
        "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s",
        code, section, "SpecialChipLogicPortMapPhyPortNum");
    return kKeyUnreadable;
  }
  count = ParseUnsigned(value.text);
  if (count > kMostSpecialMaps) {
    Console(
        "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, ulSpecialMapNum = %d, MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM - 1 = %d",
        code, section, count, kMostSpecialMaps);
    return kTooManySpecialMaps;
  }
  return kOk;
}

// Reads the name of the uplink board that special map `index` is for.
int32_t ReadSpecialMapName(const char* file, const char* section, uint32_t index, PortMap& map) {
  const NumberedKey key("SpecialChipLogicPortMapPhyPortCard", index + 1);
  Value name;
  const int32_t code = CFG_get_key(file, section, key.text, name.text);
  if (code != kOk) {
    Console(
        "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s, ulSpecialMapIndex = %d",
        code, section, key.text, index);
    return kKeyUnreadable;
  }
  if (const uint32_t length = StoreName(name.text, map.acBoardName, map.ulBoardNameLen);
      length > MAX_BOARD_NAME_LEN) {
    // kept as is: shows one more than the length with the terminator.
    Console(
        "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s, ulSpecialMapIndex = %d, ulBoardNameLen + 1 = %d, MAX_BOARD_NAME_LEN = %d",
        code, section, key.text, index, length + 1, MAX_BOARD_NAME_LEN);
    return kMapNameTooLong;
  }
  return kOk;
}

int32_t ReadSpecialMap(const char* file, const char* section, uint32_t port_count, uint32_t index,
                       PortMap& map) {
  if (const int32_t code = ReadSpecialMapName(file, section, index, map); code != kOk) {
    return code;
  }
  char key[MAX_BOARD_NAME_LEN + sizeof "_SwitchChipLogicPort"];
  std::snprintf(key, sizeof key, "%s_SwitchChipLogicPort", map.acBoardName);
  const int32_t code =
      ddReadOneSwitchChipLogicPortToPhyPort(file, section, port_count, key, map.astPortPair);
  if (code != kOk) {
    Console(
        "\r\nddReadSpecialSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, ulSwitchChipLogicPortNum = %d, Key = %s, ulSpecialMapIndex = %d",
        code, section, port_count, key, index);
  }
  return code;
}

}  // namespace
}  // namespace sys_context

int32_t ddReadAllSwitchChipLogicPortToPhyPort(const char* strFileName,
                                              const char* strBoardTypeSection,
                                              MainBoardInformation* pstMainBoardInformation) {
  using namespace sys_context;
  if (strFileName == nullptr || strBoardTypeSection == nullptr ||
      pstMainBoardInformation == nullptr) {
    // kept as is: here and below, no argument is called strOltPonTypeSection.
    Console(
        "\r\nddReadAllSwitchChipLogicPortToPhyPort err! strFileName = 0x%x, strOltPonTypeSection = 0x%x, pstMainBoardInformation = 0x%x",
        LowBits(strFileName), LowBits(strBoardTypeSection), LowBits(pstMainBoardInformation));
    return kNullArgument;
  }
  MainBoardInformation& board = *pstMainBoardInformation;
  if (const int32_t code =
          ReadLogicPortCount(strFileName, strBoardTypeSection, board.ulSwitchChipLogicPortNum);
      code != kOk) {
    return code;
  }
  const uint32_t port_count = board.ulSwitchChipLogicPortNum;
  if (const int32_t code =
          ReadDefaultMap(strFileName, strBoardTypeSection, port_count, board.astPortMap[0]);
      code != kOk) {
    return code;
  }
  board.ulChipLogicPortToPhyPortTypeNum = 1;
  const int32_t code = ddReadSpecialSwitchChipLogicPortToPhyPort(strFileName, strBoardTypeSection,
                                                                 port_count, &board);
  if (code != kOk) {
    Console(
        "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, ulSwitchChipLogicPortNum = %d",
        code, strBoardTypeSection, port_count);
  }
  return code;
}

int32_t ddReadSpecialSwitchChipLogicPortToPhyPort(const char* strFileName,
                                                  const char* strBoardTypeSection,
                                                  uint32_t ulSwitchChipLogicPortNum,
                                                  MainBoardInformation* pstMainBoardInformation) {
  using namespace sys_context;
  if (strFileName == nullptr || strBoardTypeSection == nullptr ||
      pstMainBoardInformation == nullptr) {
    Console(
        "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! strFileName = 0x%x, strOltPonTypeSection = 0x%x, pstMainBoardInformation = 0x%x",
        LowBits(strFileName), LowBits(strBoardTypeSection), LowBits(pstMainBoardInformation));
    return kNullArgument;
  }
  uint32_t count = 0;
  if (const int32_t code = ReadSpecialMapCount(strFileName, strBoardTypeSection, count);
      code != kOk) {
    return code;
  }
  for (uint32_t i = 0; i < count; ++i) {
    // The default map is in front.
    PortMap& map = pstMainBoardInformation->astPortMap[1 + i];
    if (const int32_t code =
            ReadSpecialMap(strFileName, strBoardTypeSection, ulSwitchChipLogicPortNum, i, map);
        code != kOk) {
      return code;
    }
  }
  pstMainBoardInformation->ulChipLogicPortToPhyPortTypeNum += count;
  return kOk;
}

int32_t ddReadOneSwitchChipLogicPortToPhyPort(const char* strFileName,
                                              const char* strBoardTypeSection,
                                              uint32_t ulSwitchChipLogicPortNum,
                                              const char* strSwitchChipLogicPortKeyIn,
                                              PortPair* pstChipLogicPortToPhyPort) {
  using namespace sys_context;
  if (strFileName == nullptr || strBoardTypeSection == nullptr ||
      strSwitchChipLogicPortKeyIn == nullptr || pstChipLogicPortToPhyPort == nullptr) {
    Console(
        "\r\nddReadOneSwitchChipLogicPortToPhyPort err! strFileName = 0x%x, strOltPonTypeSection = 0x%x,strSwitchChipLogicPortKeyIn = 0x%x, pstChipLogicPortToPhyPort = 0x%x",
        LowBits(strFileName), LowBits(strBoardTypeSection), LowBits(strSwitchChipLogicPortKeyIn),
        LowBits(pstChipLogicPortToPhyPort));
    return kNullArgument;
  }
  for (uint32_t i = 0; i < ulSwitchChipLogicPortNum; ++i) {
    const NumberedKey key(strSwitchChipLogicPortKeyIn, i + 1);
    Value phy_port;
    const int32_t code = CFG_get_key(strFileName, strBoardTypeSection, key.text, phy_port.text);
    if (code != kOk) {
      Console(
          "\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s, ulSwitchChipLogicPortIndex = %d",
          code, strBoardTypeSection, key.text, i);
      return kKeyUnreadable;
    }
    // kept as is: logic ports are counted in 8 bits, so 255 is followed by 0.
    pstChipLogicPortToPhyPort[i] = {
        .usLogicPort = static_cast<uint8_t>(i + 1),
        .usPhyPort = static_cast<uint16_t>(ParseUnsigned(phy_port.text)),
    };
  }
  return kOk;
}
