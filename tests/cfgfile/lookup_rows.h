// The table rows of the lookup tests: a file, a question, and everything that
// the lookup has to leave behind.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>

namespace lookup {

struct Row {
  std::string name;
  std::string file;
  int32_t code;
  std::string value = "";  // when the code is 0
  int32_t section_line = 0;
  int32_t key_line = 0;
  int32_t key_lines = 0;
  int32_t offset = 0;  // what CFG_get_key_offset reports
  const char* section = "A";
  const char* key = "k";
  int32_t offset_in = 0;
};

// Asks CFG_get_key_offset, and CFG_get_key too when the row starts at the top.
// What a lookup must not touch is checked to be untouched.
void Check(const Row& row);

inline std::ostream& operator<<(std::ostream& stream, const Row& row) {
  return stream << row.name;
}

inline std::string RowName(const testing::TestParamInfo<Row>& row) {
  return row.param.name;
}

inline std::string Repeat(size_t times, char c) {
  return std::string(times, c);
}

}  // namespace lookup
