// What the rows of several tests have in common.
#pragma once

#include <gtest/gtest.h>

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

// The name of a test that runs each row for each of several kinds.
struct KindAndRow {
  template <typename Param>
  std::string operator()(const testing::TestParamInfo<Param>& info) const {
    return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
  }
};

}  // namespace test
