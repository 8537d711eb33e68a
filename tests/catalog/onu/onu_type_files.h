// ONU types for tests: the port types that they are made of, the sections that
// describe them, and what is expected of their records.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "support/faults.h"
#include "support/leaks.h"
#include "support/records.h"
#include "support/tables.h"
#include "support/text.h"
#include "sys_context/onu.h"

namespace test {

// ---- Port types ---------------------------------------------------------------

// The names of the types of an ONU's ports.
struct PortNames {
  Names pon = {};
  Names lan = {};
  Names pots = {};
  Names special = {};
};

// A kind of ports: its place in an ONU type's record and section, and its catalog.
struct OnuPortKind {
  const char* name;
  Names PortNames::*names;
  uint32_t most;  // ports of an ONU
  uint32_t OnuInformation::*count;
  OnuPortTypeInformation** OnuInformation::*ports;
  const char* count_key;
  const char* port_key;
  uint32_t* catalog_count;
  OnuPortTypeInformation*** catalog;
  uint32_t first_type;  // the numbers of the types that follow
  Names types;
  friend std::ostream& operator<<(std::ostream& out, const OnuPortKind& kind) {
    return out << kind.name;
  }
};

// No two types of these catalogs have the same number.
inline const std::vector<OnuPortKind>& OnuPortKinds() {
  static const std::string p59(59, 'p');
  static const std::vector<OnuPortKind> kinds = {
      {"Pon",
       &PortNames::pon,
       5,
       &OnuInformation::ulTotalPonNum,
       &OnuInformation::pOnuPonArray,
       "PonNum",
       "NameKeyPon",
       &gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
       &gstSupportedOnuPonType.pOnuPonTypeArray,
       11,
       {"GPON", "XGSPON", p59}},
      {"Lan",
       &PortNames::lan,
       100,
       &OnuInformation::ulTotalLanPortNum,
       &OnuInformation::pOnuLanPortArray,
       "LanPortNum",
       "NameKeyLanPort",
       &gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
       &gstSupportedOnuLanType.pOnuLanTypeArray,
       21,
       {"GE", "FE", p59}},
      {"Pots",
       &PortNames::pots,
       100,
       &OnuInformation::ulTotalPotsNum,
       &OnuInformation::pOnuPotsPortArray,
       "PotsPortNum",
       "NameKeyPotsPort",
       &gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
       &gstSupportedOnuPotsType.pOnuPotsTypeArray,
       31,
       {"FXS", "FXO", p59}},
      {"Special",
       &PortNames::special,
       100,
       &OnuInformation::ulTotalSpecialPortNum,
       &OnuInformation::pOnuSpecialPortArray,
       "SpecialPortNum",
       "NameKeySpecialPort",
       &gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
       &gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray,
       41,
       {"E1", "WLAN", p59}},
  };
  return kinds;
}

inline OnuPortTypeInformation* NewOnuPortType(const OnuPortKind& kind, size_t place) {
  auto* const type = ZeroedBlocks<OnuPortTypeInformation>(1);
  type->ulPortType = kind.first_type + static_cast<uint32_t>(place);
  StoreName(kind.types[place], type->acName, type->ulNameLen);
  return type;
}

// Empty tables but for the port types; the library is watched from then on.
struct OnuFaults : Faults {
  static constexpr char kPath[] = "/onus.ini";

  // `file` is what the library finds at kPath.
  explicit OnuFaults(std::string file = "", int32_t debug = 0) : text(std::move(file)) {
    ResetTables();
    ddDebugPrint = debug;
    for (const OnuPortKind& kind : OnuPortKinds()) {
      *kind.catalog_count = static_cast<uint32_t>(kind.types.size());
      *kind.catalog = ZeroedBlocks<OnuPortTypeInformation*>(kind.types.size());
      for (size_t i = 0; i < kind.types.size(); ++i) {
        (*kind.catalog)[i] = NewOnuPortType(kind, i);
      }
    }
    catalog_blocks = blocks.size();
    allocations = {};
    contents[kPath] = text;
  }

  // The blocks that the port types do not account for.
  size_t OwnBlocks() const { return blocks.size() - catalog_blocks; }

  const std::string text;  // of the file
  size_t catalog_blocks;
};

// ---- Files --------------------------------------------------------------------

inline std::string OnuSection(const std::string& section, const std::string& type,
                              const std::string& name, const PortNames& ports) {
  std::string text = "[" + section + "]\nType=" + type + "\nName=" + name + "\n";
  for (const OnuPortKind& kind : OnuPortKinds()) {
    const Names& names = ports.*kind.names;
    text += std::string(kind.count_key) + "=" + std::to_string(names.size()) + "\n" +
            Numbered(kind.port_key, names);
  }
  return text;
}

// The list section that names these sections.
inline std::string OnuList(const Names& sections) {
  return "[SupportedOnuType]\nSupportedOnuTypeNum=" + std::to_string(sections.size()) + "\n" +
         Numbered("SupportedOnuType", sections);
}

// ---- Records ------------------------------------------------------------------

struct ExpectedOnu {
  uint32_t type;
  std::string name;
  PortNames ports;
};

inline void ExpectOnuPort(const OnuPortKind& kind, const OnuPortTypeInformation& port,
                          const std::string& name) {
  const auto place = std::find(kind.types.begin(), kind.types.end(), name) - kind.types.begin();
  EXPECT_EQ(port.ulPortType, kind.first_type + static_cast<uint32_t>(place));
  ExpectName(port.acName, port.ulNameLen, name);
}

// Expects an array of copies of these port types, which are not the catalog's own.
inline void ExpectOnuPorts(const Faults& faults, const OnuPortKind& kind,
                           OnuPortTypeInformation** ports, const Names& names) {
  ASSERT_EQ(faults.blocks.count(ports), 1u);
  EXPECT_EQ(faults.blocks.at(ports), names.size() * sizeof(OnuPortTypeInformation*));
  for (size_t i = 0; i < names.size(); ++i) {
    SCOPED_TRACE(i);
    ASSERT_EQ(faults.blocks.count(ports[i]), 1u);
    EXPECT_EQ(faults.blocks.at(ports[i]), sizeof(OnuPortTypeInformation));
    ExpectOnuPort(kind, *ports[i], names[i]);
    for (size_t place = 0; place < kind.types.size(); ++place) {
      EXPECT_NE(ports[i], (*kind.catalog)[place]);
    }
  }
}

inline void ExpectOnu(const Faults& faults, OnuInformation* onu, const ExpectedOnu& expected) {
  ASSERT_EQ(faults.blocks.count(onu), 1u);
  EXPECT_EQ(faults.blocks.at(onu), sizeof(OnuInformation));
  EXPECT_EQ(onu->ulOnuType, expected.type);
  ExpectName(onu->acName, onu->ulNameLen, expected.name);
  for (const OnuPortKind& kind : OnuPortKinds()) {
    SCOPED_TRACE(kind.name);
    const Names& names = expected.ports.*kind.names;
    ASSERT_EQ(onu->*kind.count, names.size());
    if (names.empty()) {
      EXPECT_EQ(onu->*kind.ports, nullptr);
    } else {
      ExpectOnuPorts(faults, kind, onu->*kind.ports, names);
    }
  }
}

// The blocks that such an ONU type consists of.
inline size_t BlocksOf(const ExpectedOnu& onu) {
  size_t blocks = 1;
  for (const OnuPortKind& kind : OnuPortKinds()) {
    const size_t ports = (onu.ports.*kind.names).size();
    blocks += ports == 0 ? 0 : ports + 1;
  }
  return blocks;
}

// The lookups that reading it takes.
inline int LookupsOf(const ExpectedOnu& onu) {
  size_t lookups = 6;  // Type, Name, four numbers
  for (const OnuPortKind& kind : OnuPortKinds()) {
    lookups += (onu.ports.*kind.names).size();
  }
  return static_cast<int>(lookups);
}

// Expects that so many port copies are lost, and nothing else; releases them.
inline void ExpectAndReleaseLostPorts(Faults& faults, size_t lost) {
  for (void* const block : LostBlocks(faults)) {
    EXPECT_EQ(faults.blocks.at(block), sizeof(OnuPortTypeInformation));
  }
  ExpectAndReleaseLost(faults, lost);
}

}  // namespace test
