// Service boards for tests: the port types that they are made of, the sections
// that describe them, and what is expected of their records.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "support/faults.h"
#include "support/tables.h"
#include "sys_context/olt.h"

namespace test {

// ---- Port types ---------------------------------------------------------------

struct PortType {
  std::string name;
  uint32_t type;
  uint32_t ratio;
};

inline const std::vector<PortType>& PortTypes() {
  static const std::vector<PortType> types = {
      {"GPON", 11, 128}, {"XGSPON", 12, 256}, {"GE", 13, 0}, {std::string(59, 'p'), 0xffffffff, 1}};
  return types;
}

template <typename T>
T* ZeroedBlocks(size_t count) {
  return static_cast<T*>(std::calloc(count, sizeof(T)));
}

inline OltPortInformation* NewPort(const PortType& type) {
  auto* const port = ZeroedBlocks<OltPortInformation>(1);
  port->ulPortType = type.type;
  port->ulNameLen = static_cast<uint32_t>(type.name.size() + 1);
  std::memcpy(port->acName, type.name.c_str(), type.name.size() + 1);
  port->ulSplittingRatio = type.ratio;
  port->ulLink = 0x4c4b;  // not for copies
  return port;
}

// Empty tables but for the port types; the library is watched from then on.
struct BoardFaults : Faults {
  static constexpr char kPath[] = "/boards.ini";

  // `file` is what the library finds at kPath. It is the caller's.
  explicit BoardFaults(const std::string& file = "", int32_t debug = 0) {
    ResetTables();
    ddDebugPrint = debug;
    const size_t count = PortTypes().size();
    gstSupportedOltPortType = {static_cast<uint32_t>(count),
                               ZeroedBlocks<OltPortInformation*>(count)};
    for (size_t i = 0; i < count; ++i) {
      gstSupportedOltPortType.pOltPortTypeArray[i] = NewPort(PortTypes()[i]);
    }
    allocations = {};
    contents[kPath] = file;
  }

  // The blocks that the port types do not account for.
  size_t OwnBlocks() const { return blocks.size() - (PortTypes().size() + 1); }
};

// ---- Files --------------------------------------------------------------------

using Names = std::vector<std::string>;

// "<prefix>1=<first>\n<prefix>2=<second>\n..."
inline std::string Numbered(const std::string& prefix, const Names& values) {
  std::string text;
  for (size_t i = 0; i < values.size(); ++i) {
    text += prefix + std::to_string(i + 1) + "=" + values[i] + "\n";
  }
  return text;
}

inline std::string ServingPorts(const Names& ports) {
  return "PortNum=" + std::to_string(ports.size()) + "\n" + Numbered("NameKeyPort", ports);
}

inline std::string SpecialPorts(const Names& ports) {
  return "SpecialPortNum=" + std::to_string(ports.size()) + "\n" +
         Numbered("NameKeySpecialPort", ports);
}

inline std::string BoardSection(const std::string& section, const std::string& type,
                                const std::string& name, const Names& serving = {},
                                const Names& special = {}) {
  return "[" + section + "]\nType=" + type + "\nName=" + name + "\n" + ServingPorts(serving) +
         SpecialPorts(special);
}

// The list section that names these sections.
inline std::string BoardList(const Names& sections) {
  return "[SupportedBoardType]\nSupportedBoardTypeNum=" + std::to_string(sections.size()) + "\n" +
         Numbered("SupportedBoardType", sections);
}

// ---- Records ------------------------------------------------------------------

struct Board {
  uint32_t type;
  std::string name;
  Names serving;
  Names special;
};

inline void ExpectCopy(const OltPortInformation& port, const std::string& name) {
  const PortType* expected = nullptr;
  for (const PortType& type : PortTypes()) {
    if (type.name == name) {
      expected = &type;
    }
  }
  ASSERT_NE(expected, nullptr) << name;
  EXPECT_EQ(port.ulPortType, expected->type);
  EXPECT_EQ(port.ulNameLen, name.size() + 1);
  std::string field = name;
  field.resize(sizeof port.acName);
  EXPECT_EQ(std::string(port.acName, sizeof port.acName), field);
  EXPECT_EQ(port.ulSplittingRatio, expected->ratio);
  EXPECT_EQ(port.ulLink, 0u);
}

// Expects an array of copies of these port types, which are not the table's own.
inline void ExpectPorts(const Faults& faults, OltPortInformation** ports, const Names& names) {
  ASSERT_EQ(faults.blocks.count(ports), 1u);
  EXPECT_EQ(faults.blocks.at(ports), names.size() * sizeof(OltPortInformation*));
  for (size_t i = 0; i < names.size(); ++i) {
    SCOPED_TRACE(i);
    ASSERT_EQ(faults.blocks.count(ports[i]), 1u);
    EXPECT_EQ(faults.blocks.at(ports[i]), sizeof(OltPortInformation));
    ExpectCopy(*ports[i], names[i]);
    for (uint32_t place = 0; place < gstSupportedOltPortType.ulSupportedOltPortTypeNum; ++place) {
      EXPECT_NE(ports[i], gstSupportedOltPortType.pOltPortTypeArray[place]);
    }
  }
}

inline void ExpectPortsOrNone(const Faults& faults, uint32_t count, OltPortInformation** ports,
                              const Names& names) {
  ASSERT_EQ(count, names.size());
  if (names.empty()) {
    EXPECT_EQ(ports, nullptr);
  } else {
    ExpectPorts(faults, ports, names);
  }
}

inline void ExpectBoard(const Faults& faults, const BoardInformation* board,
                        const Board& expected) {
  ASSERT_EQ(faults.blocks.count(const_cast<BoardInformation*>(board)), 1u);
  EXPECT_EQ(faults.blocks.at(const_cast<BoardInformation*>(board)), sizeof(BoardInformation));
  EXPECT_EQ(board->ulType, expected.type);
  EXPECT_EQ(board->ulSubType, 0u);
  EXPECT_EQ(board->ulNameLen, expected.name.size() + 1);
  std::string field = expected.name;
  field.resize(sizeof board->acName);  // the rest is zero
  EXPECT_EQ(std::string(board->acName, sizeof board->acName), field);
  EXPECT_EQ(board->ulReserved, 0u);
  ExpectPortsOrNone(faults, board->ulTotalServePortNum, board->pPortArray, expected.serving);
  ExpectPortsOrNone(faults, board->ulTotalSpecialPortNum, board->pSpecialPortArray,
                    expected.special);
}

// The blocks that such a board consists of.
inline size_t BlocksOf(const Board& board) {
  const auto list = [](const Names& names) { return names.empty() ? 0 : names.size() + 1; };
  return 1 + list(board.serving) + list(board.special);
}

// ---- Messages -----------------------------------------------------------------

// A pointer as the card prints it.
inline std::string Hex(const void* pointer) {
  char text[20];
  std::snprintf(text, sizeof text, "0x%x",
                static_cast<unsigned>(reinterpret_cast<uintptr_t>(pointer) & 0xffffffff));
  return text;
}

// The text with every `%` replaced.
inline std::string With(std::string text, const std::string& value) {
  for (size_t place = 0; (place = text.find('%', place)) != std::string::npos;) {
    text.replace(place, 1, value);
    place += value.size();
  }
  return text;
}

}  // namespace test
