// Asking whether there is a port type of a name, of an OLT or of ONUs: what all the
// lookups answer alike.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/port_type_tables.h"
#include "support/console.h"
#include "sys_context/context.h"

namespace test {

struct PortTypeNameRow {
  const char* name;
  PortTypeTable types;
  std::string asked;
  int32_t code;
  uint32_t index = 0;
  friend std::ostream& operator<<(std::ostream& out, const PortTypeNameRow& row) {
    return out << row.name;
  }
};

// The eight records of a loaded table have these names, in this order: GPON, XGPON, gpon,
// GPON, 59 times p, none, ZERO, WIDE.
inline const PortTypeNameRow kPortTypeNames[] = {
    {"FirstOfTwo", PortTypeTable::kLoaded, "GPON", 0, 0},
    {"Second", PortTypeTable::kLoaded, "XGPON", 0, 1},
    {"OtherCaseIsAnotherName", PortTypeTable::kLoaded, "gpon", 0, 2},
    {"Longest", PortTypeTable::kLoaded, std::string(59, 'p'), 0, 4},
    {"Empty", PortTypeTable::kLoaded, "", 0, 5},
    {"Last", PortTypeTable::kLoaded, "WIDE", 0, 7},
    {"StartOfAName", PortTypeTable::kLoaded, "GPO", -32},
    {"EndOfAName", PortTypeTable::kLoaded, "PON", -32},
    {"MoreThanAName", PortTypeTable::kLoaded, "GPONS", -32},
    {"NoCaseOfAName", PortTypeTable::kLoaded, "Gpon", -32},
    {"BlankAtTheEnd", PortTypeTable::kLoaded, "GPON ", -32},
    {"TraceBehindAName", PortTypeTable::kLoaded, "GPON#", -32},
    {"OneLessThanTheLongest", PortTypeTable::kLoaded, std::string(58, 'p'), -32},
    {"OtherOfTheLongest", PortTypeTable::kLoaded, std::string(58, 'p') + "P", -32},
    {"Unknown", PortTypeTable::kLoaded, "EPON", -32},
    {"BehindAnEmptyPlace", PortTypeTable::kEmptyPlaces, "GPON", 0, 1},
    {"BehindTwoEmptyPlaces", PortTypeTable::kEmptyPlaces, "XGPON", 0, 3},
    {"UnknownWithEmptyPlaces", PortTypeTable::kEmptyPlaces, "EPON", -32},
    {"FirstOfAFullTable", PortTypeTable::kFull, "T1", 0, 0},
    {"LastOfAFullTable", PortTypeTable::kFull, "T30", 0, 29},
    {"NoRecords", PortTypeTable::kNoRecords, "GPON", -32},
    {"InFrontOfACorruptLength", PortTypeTable::kLengthTooLarge, "XGPON", 0, 1},
};

using PortTypeByName = int32_t(const char* name, uint32_t* is_supported, uint32_t* index);

// Asks for the name of the row, without a word, or with this text if debug prints are on.
inline void ExpectPortTypeNameAnswered(Console& console, PortTypeByName* by_name,
                                       const PortTypeNameRow& row,
                                       const std::string& debug_text = "") {
  // Without a byte to spare, so that a look behind its end is noticed.
  const std::vector<char> asked(row.asked.c_str(), row.asked.c_str() + row.asked.size() + 1);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t is_supported = 77;
    uint32_t index = 77;
    EXPECT_EQ(by_name(asked.data(), &is_supported, &index), row.code);
    EXPECT_EQ(is_supported, row.code == 0 ? 1u : 0u);
    EXPECT_EQ(index, row.index);
    EXPECT_EQ(console.Text(), debug != 0 ? debug_text : "");
  }
}

}  // namespace test
