// Where lookups start and what position they report; and the arguments that
// they refuse.
#include <limits>

#include "cfgfile/lookup_rows.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "sys_context/cfgfile.h"

namespace {

using lookup::Row;

class Offset : public testing::TestWithParam<Row> {};

TEST_P(Offset, LeavesBehind) {
  lookup::Check(GetParam());
}

// Sections "A" at 4 and 20 and "B" at 12; the file has 28 bytes.
constexpr char kFile[] = "; c\n[A]\nk=1\n[B]\nk=2\n[A]\nk=3\n";

Row From(std::string name, int32_t offset_in, std::string value, int32_t line, int32_t offset) {
  return {.name = std::move(name),
          .file = kFile,
          .code = 0,
          .value = std::move(value),
          .section_line = line,
          .key_line = line + 1,
          .key_lines = 1,
          .offset = offset,
          .offset_in = offset_in};
}

Row NothingFrom(std::string name, int32_t offset_in, int32_t offset) {
  return {
      .name = std::move(name), .file = kFile, .code = -1, .offset = offset, .offset_in = offset_in};
}

INSTANTIATE_TEST_SUITE_P(
    Start, Offset,
    testing::Values(From("Top", 0, "1", 2, 4), From("Header", 4, "1", 1, 4),
                    From("InsideComment", 3, "1", 2, 4), From("InsideHeader", 5, "3", 5, 20),
                    From("BehindHeader", 8, "3", 4, 20), From("NextSection", 12, "3", 3, 20),
                    From("LastHeader", 20, "3", 1, 20), NothingFrom("InsideLastHeader", 21, 28),
                    NothingFrom("LastEntry", 24, 28), NothingFrom("EndOfFile", 28, 28),
                    NothingFrom("OneBeyondTheEnd", 29, 29),
                    NothingFrom("FarBeyondTheEnd", 1'000'000, 1'000'000),
                    NothingFrom("LargestPosition", std::numeric_limits<int32_t>::max(),
                                std::numeric_limits<int32_t>::max())),
    lookup::RowName);

INSTANTIATE_TEST_SUITE_P(ReportsHeader, Offset,
                         testing::Values(Row{.name = "WhenTheKeyIsAbsent",
                                             .file = "x\n[A]\nj=1\n[B]\n",
                                             .code = -2,
                                             .section_line = 1,
                                             .key_line = 3,
                                             .key_lines = 1,
                                             .offset = 2,
                                             .offset_in = 2},
                                         Row{.name = "WhenTheFileEnds",
                                             .file = "x\n  [A]",
                                             .code = -2,
                                             .section_line = 2,
                                             .offset = 2},
                                         Row{.name = "WhenAnEntryIsNone",
                                             .file = "x\n[A]\nName\n",
                                             .code = -14,
                                             .section_line = 2,
                                             .key_line = 3,
                                             .key_lines = 1,
                                             .offset = 2},
                                         Row{.name = "WhenAnEntryIsTooLong",
                                             .file = "x\n[A]\nk=+\n" + lookup::Repeat(511, 'y') +
                                                     "\n",
                                             .code = -22,
                                             .section_line = 2,
                                             .key_line = 3,
                                             .key_lines = 2,
                                             .offset = 2},
                                         Row{.name = "BehindCarriageReturns",
                                             .file = "x\r\n\r\r\n\r[A]\r\nk=1\r\n",
                                             .code = 0,
                                             .value = "1",
                                             .section_line = 3,
                                             .key_line = 4,
                                             .key_lines = 1,
                                             .offset = 6},
                                         Row{.name = "FromInsideCarriageReturnLineFeed",
                                             .file = "x\r\n[A]\nk=1\n",
                                             .code = 0,
                                             .value = "1",
                                             .section_line = 2,
                                             .key_line = 3,
                                             .key_lines = 1,
                                             .offset = 3,
                                             .offset_in = 2},
                                         Row{.name = "MalformedOne",
                                             .file = "x\n; y\n \t[Board\n",
                                             .code = -14,
                                             .offset = 6,
                                             .offset_in = 2}),
                         lookup::RowName);

// A loader reads a list and its sections by going from header to header.
TEST(Offset, LeadsThroughAListOfSections) {
  const test::DefinitionFile file(
      "[Early]\nId=0\n[List]\nNum=2\nKey1=One\nKey2=Two\n[One]\nId=1\n[Two]\nId=2\n");
  char value[CFG_VALUE_SIZE];
  int32_t list = -77;
  ASSERT_EQ(CFG_get_key_offset(file.path(), "List", "Num", value, 0, &list), 0);
  EXPECT_STREQ(value, "2");
  EXPECT_EQ(list, 13);
  int32_t again = -77;
  ASSERT_EQ(CFG_get_key_offset(file.path(), "List", "Key2", value, list, &again), 0);
  EXPECT_STREQ(value, "Two");
  EXPECT_EQ(again, 13);
  EXPECT_EQ(CFG_section_line_no, 1);
  int32_t one = -77;
  ASSERT_EQ(CFG_get_key_offset(file.path(), "One", "Id", value, list, &one), 0);
  EXPECT_EQ(one, 44);
  // The same word for both positions, as loaders do.
  ASSERT_EQ(CFG_get_key_offset(file.path(), "Two", "Id", value, one, &one), 0);
  EXPECT_STREQ(value, "2");
  EXPECT_EQ(one, 55);
  EXPECT_EQ(CFG_get_key_offset(file.path(), "Early", "Id", value, list, &one), -1);
  EXPECT_STREQ(value, "2");
  EXPECT_EQ(one, 66);
}

TEST(Brackets, HoldTheirSigns) {
  EXPECT_EQ(CFG_ssl, '[');
  EXPECT_EQ(CFG_ssr, ']');
}

TEST(Brackets, MeanNothingToLookups) {
  CFG_ssl = '<';
  CFG_ssr = '>';
  lookup::Check({.name = "",
                 .file = "<A>\nk=0\n[A]\nk=1\n",
                 .code = 0,
                 .value = "1",
                 .section_line = 3,
                 .key_line = 4,
                 .key_lines = 1,
                 .offset = 8});
  EXPECT_EQ(CFG_ssl, '<');
  EXPECT_EQ(CFG_ssr, '>');
  CFG_ssl = '[';
  CFG_ssr = ']';
}

struct NullRow {
  const char* name;
  bool file = false;
  bool section = false;
  bool key = false;
  bool value = false;
  bool offset = false;
};

class NullArgument : public testing::TestWithParam<NullRow> {};

TEST_P(NullArgument, TouchesNothing) {
  const NullRow& null = GetParam();
  const test::DefinitionFile file("[A]\nk=1\n");
  const char* const path = null.file ? nullptr : file.path();
  const char* const section = null.section ? nullptr : "A";
  const char* const key = null.key ? nullptr : "k";
  char value[CFG_VALUE_SIZE] = "before";
  int32_t offset = -77;
  CFG_section_line_no = 11;
  CFG_key_line_no = 12;
  CFG_key_lines = 13;
  test::Faults faults;
  EXPECT_EQ(CFG_get_key_offset(path, section, key, null.value ? nullptr : value, 0,
                               null.offset ? nullptr : &offset),
            -2);
  if (!null.offset) {
    EXPECT_EQ(CFG_get_key(path, section, key, null.value ? nullptr : value), -2);
  }
  EXPECT_EQ(faults.opens.count(), 0);
  EXPECT_STREQ(value, "before");
  EXPECT_EQ(offset, -77);
  EXPECT_EQ(CFG_section_line_no, 11);
  EXPECT_EQ(CFG_key_line_no, 12);
  EXPECT_EQ(CFG_key_lines, 13);
}

INSTANTIATE_TEST_SUITE_P(Lookup, NullArgument,
                         testing::Values(NullRow{.name = "File", .file = true},
                                         NullRow{.name = "Section", .section = true},
                                         NullRow{.name = "Key", .key = true},
                                         NullRow{.name = "Value", .value = true},
                                         NullRow{.name = "Offset", .offset = true}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
