// Service boards for tests: the port types that they are made of, the sections
// that describe them, and what is expected of their records.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/faults.h"
#include "support/records.h"
#include "support/tables.h"
#include "support/text.h"
#include "sys_context/olt.h"

namespace test {

// ---- Port types ---------------------------------------------------------------

struct KnownPortType {
  std::string name;
  uint32_t type;
  uint32_t ratio;
};

inline const std::vector<KnownPortType>& KnownPortTypes() {
  static const std::vector<KnownPortType> types = {
      {"GPON", 11, 128}, {"XGSPON", 12, 256}, {"GE", 13, 0}, {std::string(59, 'p'), 0xffffffff, 1}};
  return types;
}

inline OltPortInformation* NewPort(const KnownPortType& type) {
  auto* const port = ZeroedBlocks<OltPortInformation>(1);
  port->ulPortType = type.type;
  StoreName(type.name, port->acName, port->ulNameLen);
  port->ulSplittingRatio = type.ratio;
  port->ulLink = 0x4c4b;  // not for copies
  return port;
}

// Empty tables but for the port types; the library is watched from then on.
struct BoardFaults : Faults {
  static constexpr char kPath[] = "/boards.ini";

  // `file` is what the library finds at kPath.
  explicit BoardFaults(std::string file = "", int32_t debug = 0) : text(std::move(file)) {
    ResetTables();
    ddDebugPrint = debug;
    const size_t count = KnownPortTypes().size();
    gstSupportedOltPortType = {static_cast<uint32_t>(count),
                               ZeroedBlocks<OltPortInformation*>(count)};
    for (size_t i = 0; i < count; ++i) {
      gstSupportedOltPortType.pOltPortTypeArray[i] = NewPort(KnownPortTypes()[i]);
    }
    allocations = {};
    contents[kPath] = text;
  }

  // The blocks that the port types do not account for.
  size_t OwnBlocks() const { return blocks.size() - (KnownPortTypes().size() + 1); }

  const std::string text;  // of the file
};

// ---- Files --------------------------------------------------------------------

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

struct ExpectedBoard {
  uint32_t type;
  std::string name;
  Names serving;
  Names special;
};

inline void ExpectCopy(const OltPortInformation& port, const std::string& name) {
  const KnownPortType* expected = nullptr;
  for (const KnownPortType& type : KnownPortTypes()) {
    if (type.name == name) {
      expected = &type;
    }
  }
  ASSERT_NE(expected, nullptr) << name;
  EXPECT_EQ(port.ulPortType, expected->type);
  ExpectName(port.acName, port.ulNameLen, name);
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

inline void ExpectServiceBoard(const Faults& faults, const BoardInformation* board,
                               const ExpectedBoard& expected) {
  ASSERT_EQ(faults.blocks.count(const_cast<BoardInformation*>(board)), 1u);
  EXPECT_EQ(faults.blocks.at(const_cast<BoardInformation*>(board)), sizeof(BoardInformation));
  EXPECT_EQ(board->ulType, expected.type);
  EXPECT_EQ(board->ulSubType, 0u);
  ExpectName(board->acName, board->ulNameLen, expected.name);
  EXPECT_EQ(board->ulReserved, 0u);
  ExpectPortsOrNone(faults, board->ulTotalServePortNum, board->pPortArray, expected.serving);
  ExpectPortsOrNone(faults, board->ulTotalSpecialPortNum, board->pSpecialPortArray,
                    expected.special);
}

// The blocks that such a board consists of.
inline size_t BlocksOf(const ExpectedBoard& board) {
  const auto list = [](const Names& names) { return names.empty() ? 0 : names.size() + 1; };
  return 1 + list(board.serving) + list(board.special);
}

}  // namespace test
