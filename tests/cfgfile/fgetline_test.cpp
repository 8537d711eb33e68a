// The exported line reader: what ends a line, what is dropped, and where a
// line is cut.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "support/definition_file.h"
#include "support/faults.h"
#include "sys_context/cfgfile.h"

namespace {

using namespace std::string_literals;

struct Line {
  int32_t result;
  std::string text = "";
};

struct Row {
  std::string name;
  std::string file;
  int32_t maximum;
  std::vector<Line> lines;  // one for each call
};

std::ostream& operator<<(std::ostream& stream, const Row& row) {
  return stream << row.name;
}

Line Text(std::string text) {
  const auto length = static_cast<int32_t>(text.size());
  return {length, std::move(text)};
}

const Line kEnd = {-1};

class Fgetline : public testing::TestWithParam<Row> {};

TEST_P(Fgetline, GivesLines) {
  const test::DefinitionFile file(GetParam().file);
  FILE* const stream = std::fopen(file.path(), "rb");
  ASSERT_NE(stream, nullptr);
  for (const Line& line : GetParam().lines) {
    // Room for the line and its terminator and not a byte more.
    std::vector<char> buffer(static_cast<size_t>(GetParam().maximum) + 1, '#');
    EXPECT_EQ(fgetline(stream, buffer.data(), GetParam().maximum), line.result);
    if (line.result >= 0) {
      EXPECT_EQ(std::memcmp(buffer.data(), line.text.c_str(), line.text.size() + 1), 0)
          << "expected " << testing::PrintToString(line.text);
      for (size_t i = line.text.size() + 1; i < buffer.size(); ++i) {
        ASSERT_EQ(buffer[i], '#') << "written behind the terminator";
      }
    }
  }
  std::fclose(stream);
}

std::string RowName(const testing::TestParamInfo<Row>& row) {
  return row.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Ends, Fgetline,
    testing::Values(
        Row{"EmptyFile", "", 512, {kEnd, kEnd}},
        Row{"EmptyLines", "\n\n", 512, {Text(""), Text(""), kEnd}},
        Row{"LineFeed", "ab\ncd\n", 512, {Text("ab"), Text("cd"), kEnd}},
        Row{"NoneAtTheEnd", "ab\ncd", 512, {Text("ab"), Text("cd"), kEnd, kEnd}},
        Row{"ZeroByte", "ab\0cd\0"s, 512, {Text("ab"), Text("cd"), kEnd}},
        Row{"ZeroByteOnly", "\0"s, 512, {Text(""), kEnd}},
        Row{"ZeroByteAndLineFeed", "ab\0\ncd"s, 512, {Text("ab"), Text(""), Text("cd")}},
        Row{"FormFeedIsStored", "ab\fcd", 512, {Text("ab\f"), Text("cd"), kEnd}},
        Row{"SubstituteIsStored", "ab\x1A\ncd", 512, {Text("ab\x1A"), Text(""), Text("cd"), kEnd}},
        Row{"FormFeedOnly", "\f\f", 512, {Text("\f"), Text("\f"), kEnd}}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Bytes, Fgetline,
    testing::Values(Row{"CarriageReturnLineFeed",
                        "ab\r\n\r\ncd\r\n",
                        512,
                        {Text("ab"), Text(""), Text("cd"), kEnd}},
                    Row{"CarriageReturnWithin", "\ra\rb\r\r\n", 512, {Text("ab"), kEnd}},
                    Row{"LoneCarriageReturnAtTheEnd", "ab\n\r", 512, {Text("ab"), Text(""), kEnd}},
                    Row{"CarriageReturnsOnly", "\r\r\r", 512, {Text(""), kEnd}},
                    Row{"BlanksAreKept", " \ta \t\n", 512, {Text(" \ta \t"), kEnd}},
                    Row{"OtherControlBytes",
                        "\x01\v\x08\x1B\x1F\x7F\n",
                        512,
                        {Text("\x01\v\x08\x1B\x1F\x7F"), kEnd}},
                    Row{"HighBytes",
                        "\x80\x8A\x8D\x9A\xFE\xFF\n",
                        512,
                        {Text("\x80\x8A\x8D\x9A\xFE\xFF"), kEnd}}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Maximum, Fgetline,
    testing::Values(
        Row{"OneLess", "abcd\nx", 5, {Text("abcd"), Text("x"), kEnd}},
        Row{"ReachedLeavesTheLineFeed", "abcde\nx", 5, {Text("abcde"), Text(""), Text("x"), kEnd}},
        Row{"ReachedLeavesTheCarriageReturn",
            "abcde\r\nx",
            5,
            {Text("abcde"), Text(""), Text("x"), kEnd}},
        Row{"ReachedLeavesTheZeroByte", "abcde\0x"s, 5, {Text("abcde"), Text(""), Text("x"), kEnd}},
        Row{"ReachedByFormFeed", "abcd\fx", 5, {Text("abcd\f"), Text("x"), kEnd}},
        Row{"ReachedAtTheEnd", "abcde", 5, {Text("abcde"), kEnd}},
        Row{"Exceeded", "abcdefg\nx", 5, {Text("abcde"), Text("fg"), Text("x"), kEnd}},
        Row{"ExceededTwice", "abcdefghijk", 5, {Text("abcde"), Text("fghij"), Text("k"), kEnd}},
        Row{"CarriageReturnsDoNotCount", "a\rb\rc\rd\re\rf", 5, {Text("abcde"), Text("f"), kEnd}},
        Row{"One", "ab\n", 1, {Text("a"), Text("b"), Text(""), kEnd}},
        Row{"Of512",
            std::string(512, 'x') + "\n",
            512,
            {Text(std::string(512, 'x')), Text(""), kEnd}},
        Row{"Of600",
            std::string(600, 'x') + "\n",
            512,
            {Text(std::string(512, 'x')), Text(std::string(88, 'x')), kEnd}},
        Row{"None", "ab", 0, {Text(""), Text("")}}),
    RowName);

TEST(FgetlineFailure, ReadErrorAtTheFirstByte) {
  FILE* const stream = std::fopen("/tmp", "rb");
  ASSERT_NE(stream, nullptr);
  char buffer[513];
  EXPECT_EQ(fgetline(stream, buffer, 512), -2);
  std::fclose(stream);
}

TEST(FgetlineFailure, ReadErrorWithinALine) {
  test::Faults faults;
  faults.contents["memory"] = "ab\ncdef\n";
  faults.unreadable_from = 5;
  FILE* const stream = std::fopen("memory", "rb");
  ASSERT_NE(stream, nullptr);
  char buffer[513];
  EXPECT_EQ(fgetline(stream, buffer, 512), 2);
  EXPECT_STREQ(buffer, "ab");
  EXPECT_EQ(fgetline(stream, buffer, 512), -2);
  std::fclose(stream);
}

// An error that the stream met before is none of this line's.
TEST(FgetlineFailure, EarlierErrorOfTheStream) {
  const test::DefinitionFile file("ab\ncd");
  FILE* const stream = std::fopen(file.path(), "rb");
  ASSERT_NE(stream, nullptr);
  ASSERT_EQ(std::fputc('x', stream), EOF);
  ASSERT_NE(std::ferror(stream), 0);
  char buffer[513];
  EXPECT_EQ(fgetline(stream, buffer, 512), 2);
  EXPECT_EQ(fgetline(stream, buffer, 512), 2);
  EXPECT_STREQ(buffer, "cd");
  EXPECT_EQ(fgetline(stream, buffer, 512), -1);
  std::fclose(stream);
}

TEST(FgetlineFailure, NullPointers) {
  const test::DefinitionFile file("ab\n");
  FILE* const stream = std::fopen(file.path(), "rb");
  ASSERT_NE(stream, nullptr);
  char buffer[4] = "###";
  EXPECT_EQ(fgetline(nullptr, buffer, 3), -2);
  EXPECT_STREQ(buffer, "###");
  EXPECT_EQ(fgetline(stream, nullptr, 3), -2);
  EXPECT_EQ(fgetline(stream, buffer, 3), 2) << "nothing was read meanwhile";
  std::fclose(stream);
}

}  // namespace
