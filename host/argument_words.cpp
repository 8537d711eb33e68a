// Numbers and records that are given by a word.
#include "host/argument_words.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>

#include "host/format.h"

namespace sysctx {
namespace {

// A name field, which a terminator may be missing in.
template <size_t size>
std::string_view NameIn(const char (&field)[size]) {
  return {field, strnlen(field, size)};
}

[[noreturn]] void ThrowBadArgument(const char* name, const std::string& word,
                                   const std::string& reason) {
  throw BadArgument(Format("bad %s '%s': %s", name, word.c_str(), reason.c_str()));
}

std::optional<uint32_t> ReadUnsigned(std::string_view word) {
  const bool is_hexadecimal = word.starts_with("0x") || word.starts_with("0X");
  const std::string_view digits = is_hexadecimal ? word.substr(2) : word;
  uint32_t number = 0;
  const char* end = digits.data() + digits.size();
  const auto [rest, error] = std::from_chars(digits.data(), end, number, is_hexadecimal ? 16 : 10);
  return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

std::optional<int64_t> ReadSigned(std::string_view word) {
  const bool is_negative = word.starts_with('-');
  const std::optional<uint32_t> amount = ReadUnsigned(word.substr(is_negative ? 1 : 0));
  if (!amount) {
    return std::nullopt;
  }
  return is_negative ? -int64_t{*amount} : int64_t{*amount};
}

struct SlotClass {
  const char* word;
  const SlotClassInformation* slots;
};

// By their words in the definition file.
const SlotClass kSlotClasses[] = {
    {"RealSlot", &gstFrame.stRealSlot},
    {"VirtualSlot", &gstFrame.stVirtualSlot},
    {"HcuSlot", &gstFrame.stHcuSlot},
    {"FanSlot", &gstFrame.stFanSlot},
    {"CioSlot", &gstFrame.stCioSlot},
    {"PowerSlot", &gstFrame.stPowerSlot},
    {"ServeBoardSlot", &gstFrame.stServeBoardSlot},
    {"MainSlot", &gstFrame.stMainSlot},
    {"UplinkSlot", &gstFrame.stUplinkSlot},
};

std::string SlotClassHint() {
  std::string hint;
  for (const SlotClass& slot_class : kSlotClasses) {
    hint += (hint.empty() ? "one of " : ", ") + std::string(slot_class.word);
  }
  return hint;
}

std::span<MainBoardInformation* const> MainBoards() {
  const SupportedMainBoardType& table = gstSupportedMainBoardType;
  return {table.pBoardTypeArray,
          table.pBoardTypeArray == nullptr ? 0 : table.ulSupportedBoardTypeNum};
}

const MainBoardInformation* FindMainBoard(uint32_t type) {
  for (const MainBoardInformation* board : MainBoards()) {
    if (board != nullptr && board->ulType == type) {
      return board;
    }
  }
  return nullptr;
}

std::span<const PortMap> MapsOf(const MainBoardInformation& board) {
  const std::span<const PortMap> maps = board.astPortMap;
  return maps.first(std::min<size_t>(board.ulChipLogicPortToPhyPortTypeNum, maps.size()));
}

// `word` is a number or a board name.
const PortMap* FindMap(std::span<const PortMap> maps, std::string_view word) {
  if (const std::optional<uint32_t> index = ReadUnsigned(word); index && *index < maps.size()) {
    return &maps[*index];
  }
  for (const PortMap& map : maps) {
    if (NameIn(map.acBoardName) == word) {
      return &map;
    }
  }
  return nullptr;
}

}  // namespace

int64_t ParseNumber(const char* name, const std::string& word, int64_t least, int64_t most) {
  const std::optional<int64_t> number = ReadSigned(word);
  if (!number || *number < least || *number > most) {
    ThrowBadArgument(
        name, word,
        "a number from " + std::to_string(least) + " to " + std::to_string(most) + " is wanted");
  }
  return *number;
}

const char* RecordWord<SlotClassInformation>::Hint() {
  static const std::string hint = SlotClassHint();
  return hint.c_str();
}

const SlotClassInformation* RecordWord<SlotClassInformation>::Find(const char* name,
                                                                   const std::string& word) {
  for (const SlotClass& slot_class : kSlotClasses) {
    if (slot_class.word == word) {
      return slot_class.slots;
    }
  }
  ThrowBadArgument(name, word, "there is no such slot class");
}

const char* RecordWord<PortMap>::Hint() {
  return "MAINBOARD:MAP, a main board's type and one of its port maps by number from 0 or by"
         " board name";
}

const PortMap* RecordWord<PortMap>::Find(const char* name, const std::string& word) {
  const size_t colon = std::min(word.find(':'), word.size());
  const std::optional<uint32_t> type = ReadUnsigned(std::string_view(word).substr(0, colon));
  if (!type || colon == word.size()) {
    ThrowBadArgument(name, word, "MAINBOARD:MAP is wanted");
  }
  const MainBoardInformation* board = FindMainBoard(*type);
  if (board == nullptr) {
    ThrowBadArgument(name, word, Format("there is no main board of type %u", *type));
  }
  const std::span<const PortMap> maps = MapsOf(*board);
  const PortMap* map = FindMap(maps, std::string_view(word).substr(colon + 1));
  if (map == nullptr) {
    ThrowBadArgument(name, word,
                     Format("main board %u has no such map among its %zu", *type, maps.size()));
  }
  return map;
}

std::string DescribeRecord(const MainBoardInformation& board) {
  return Format("%s, type %u, %u logic ports, %u port maps",
                std::string(NameIn(board.acName)).c_str(), board.ulType,
                board.ulSwitchChipLogicPortNum, board.ulChipLogicPortToPhyPortTypeNum);
}

std::string DescribeRecord(const PortMap& map) {
  for (const MainBoardInformation* board : MainBoards()) {
    const std::span<const PortMap> maps =
        board == nullptr ? std::span<const PortMap>() : MapsOf(*board);
    for (size_t i = 0; i < maps.size(); ++i) {
      if (&maps[i] == &map) {
        return Format("%u:%s, map %zu, %u logic ports", board->ulType,
                      std::string(NameIn(map.acBoardName)).c_str(), i,
                      board->ulSwitchChipLogicPortNum);
      }
    }
  }
  return std::string(NameIn(map.acBoardName)) + ", in no main board";
}

std::string DescribeRecord(const OltPortInformation& port_type) {
  return Format("%s, type %u, splitting ratio %u", std::string(NameIn(port_type.acName)).c_str(),
                port_type.ulPortType, port_type.ulSplittingRatio);
}

std::string DescribeRecord(const OnuPortTypeInformation& port_type) {
  return Format("%s, type %u", std::string(NameIn(port_type.acName)).c_str(), port_type.ulPortType);
}

std::string DescribeRecord(const OptModuleThreshold& path) {
  return Format("inup %d, indn %d, outup %d, outdn %d", path.inup, path.indn, path.outup,
                path.outdn);
}

}  // namespace sysctx
