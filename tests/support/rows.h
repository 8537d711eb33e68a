// What the rows of several tests have in common.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <tuple>

namespace test {

// Texts that a definition file may have for a number, and that are read as 0.
struct ZeroRow {
  const char* name;
  const char* text;
  friend std::ostream& operator<<(std::ostream& out, const ZeroRow& row) { return out << row.name; }
};
inline constexpr ZeroRow kZeros[] = {
    {"Zero", "0"},    {"MinusZero", "-0"},    {"Empty", ""},
    {"Text", "many"}, {"Hexadecimal", "0x1"}, {"Fraction", "0.9"},
};

// Texts that a definition file may have for the type of a record, and the types that are
// read of them.
struct TypeRow {
  const char* name;
  const char* text;
  uint32_t type;
};
inline constexpr TypeRow kTypes[] = {
    {"TypeZero", "0", 0},
    {"TypeEmpty", "", 0},
    {"TypeText", "abc", 0},
    {"TypeHexadecimal", "0x7", 0},
    {"TypeWithText", " +12x", 12},
    {"TypeAbove16Bits", "65537", 65537},
    {"TypeLargest", "2147483647", 2147483647},
    {"TypeAbove31Bits", "2147483648", 2147483647},
    {"TypeAbove32Bits", "4294967297", 2147483647},
    {"TypeNegative", "-1", 4294967295},
    {"TypeSmallest", "-2147483648", 2147483648},
    {"TypeBelow32Bits", "-4294967297", 2147483648},
};

// The name of a test that runs each row for each of several kinds.
struct KindAndRow {
  template <typename Param>
  std::string operator()(const testing::TestParamInfo<Param>& info) const {
    return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
  }
};

}  // namespace test
