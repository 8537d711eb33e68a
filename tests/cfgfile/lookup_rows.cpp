// How a row is checked.
#include "cfgfile/lookup_rows.h"

#include <gmock/gmock.h>

#include <array>

#include "support/definition_file.h"
#include "sys_context/cfgfile.h"

namespace lookup {
namespace {

using ValueBuffer = std::array<char, CFG_VALUE_SIZE>;

constexpr int32_t kUnwritten = -77;

ValueBuffer FreshBuffer() {
  ValueBuffer buffer;
  buffer.fill('#');
  CFG_section_line_no = CFG_key_line_no = CFG_key_lines = kUnwritten;
  return buffer;
}

void CheckTraces(const Row& row, int32_t code, const ValueBuffer& buffer) {
  EXPECT_EQ(code, row.code);
  if (row.code == 0) {
    ASSERT_NE(std::find(buffer.begin(), buffer.end(), '\0'), buffer.end()) << "not terminated";
    EXPECT_EQ(std::string(buffer.data()), row.value);
  } else {
    EXPECT_THAT(buffer, testing::Each('#'));
  }
  EXPECT_EQ(CFG_section_line_no, row.section_line);
  EXPECT_EQ(CFG_key_line_no, row.key_line);
  EXPECT_EQ(CFG_key_lines, row.key_lines);
}

}  // namespace

void Check(const Row& row) {
  const test::DefinitionFile file(row.file);
  {
    SCOPED_TRACE("CFG_get_key_offset");
    ValueBuffer buffer = FreshBuffer();
    int32_t offset = kUnwritten;
    const int32_t code = CFG_get_key_offset(file.path(), row.section, row.key, buffer.data(),
                                            row.offset_in, &offset);
    CheckTraces(row, code, buffer);
    EXPECT_EQ(offset, row.offset);
  }
  if (row.offset_in == 0) {
    SCOPED_TRACE("CFG_get_key");
    ValueBuffer buffer = FreshBuffer();
    const int32_t code = CFG_get_key(file.path(), row.section, row.key, buffer.data());
    CheckTraces(row, code, buffer);
  }
}

}  // namespace lookup
