// Trimming at the left, at the right and at both ends.
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "support/tables.h"
#include "sys_context/cfgfile.h"

namespace {

struct Row {
  std::string name;
  std::string text;
  std::string left;
  std::string right;
  std::string both;
};

std::ostream& operator<<(std::ostream& stream, const Row& row) {
  return stream << row.name;
}

class Trim : public testing::TestWithParam<Row> {};

void Check(char* (*trim)(char*), const std::string& text, const std::string& expected) {
  // A buffer of its own, so that a look before its first byte is noticed.
  std::vector<char> buffer(text.c_str(), text.c_str() + text.size() + 1);
  EXPECT_EQ(trim(buffer.data()), buffer.data());
  EXPECT_STREQ(buffer.data(), expected.c_str());
}

TEST_P(Trim, Left) {
  Check(ltrimstr, GetParam().text, GetParam().left);
}

TEST_P(Trim, Right) {
  Check(rtrimstr, GetParam().text, GetParam().right);
}

TEST_P(Trim, BothEnds) {
  Check(alltrim, GetParam().text, GetParam().both);
}

std::string Long(size_t blanks, size_t letters, size_t more_blanks) {
  return std::string(blanks, ' ') + std::string(letters, 'x') + std::string(more_blanks, '\t');
}

INSTANTIATE_TEST_SUITE_P(
    Text, Trim,
    testing::Values(
        Row{"Empty", "", "", "", ""}, Row{"OneBlank", " ", "", "", ""},
        Row{"OneTab", "\t", "", "", ""}, Row{"Blanks", " \t \t", "", "", ""},
        Row{"NoBlanks", "abc", "abc", "abc", "abc"}, Row{"OneLetter", "a", "a", "a", "a"},
        Row{"BothEnds", " \ta b\t ", "a b\t ", " \ta b", "a b"},
        Row{"LeftOnly", "  a", "a", "  a", "a"}, Row{"RightOnly", "a  ", "a  ", "a", "a"},
        Row{"OtherWhiteSpaceStays", "\r\n\v\f a \v\f\r\n", "\r\n\v\f a \v\f\r\n",
            "\r\n\v\f a \v\f\r\n", "\r\n\v\f a \v\f\r\n"},
        Row{"BlankBehindOtherWhiteSpaceStays", " \n ", "\n ", " \n", "\n"},
        Row{"HighBlankStays", "\xA0 ", "\xA0 ", "\xA0", "\xA0"},
        Row{"Of4095", Long(1, 4093, 1), Long(0, 4093, 1), Long(1, 4093, 0), Long(0, 4093, 0)},
        Row{"Of4096", Long(1, 4094, 1), Long(0, 4094, 1), Long(1, 4094, 0), Long(0, 4094, 0)},
        Row{"Of100000", Long(30000, 40000, 30000), Long(0, 40000, 30000), Long(30000, 40000, 0),
            Long(0, 40000, 0)}),
    [](const auto& row) { return row.param.name; });

// Bytes behind the terminator belong to somebody else.
TEST(TrimRoom, BytesBehindTheTextStay) {
  char text[] = "  ab  \0cd";
  EXPECT_EQ(alltrim(text), text);
  EXPECT_STREQ(text, "ab");
  EXPECT_EQ(std::memcmp(text + 6, "\0cd", 4), 0);
}

class TrimNull : public test::LibraryTest, public testing::WithParamInterface<int32_t> {
 protected:
  std::string Printed(char* (*trim)(char*)) {
    ddDebugPrint = GetParam();
    test::Console console;
    EXPECT_EQ(trim(nullptr), nullptr);
    return console.Text();
  }
};

TEST_P(TrimNull, LeftIsReported) {
  EXPECT_EQ(Printed(ltrimstr), "\r\nltrimstr err! dstr = 0x0, sstr = 0x0");
}

TEST_P(TrimNull, RightIsReported) {
  EXPECT_EQ(Printed(rtrimstr), "\r\nrtrimstr err! dstr = 0x0, sstr = 0x0");
}

TEST_P(TrimNull, BothEndsIsReported) {
  EXPECT_EQ(Printed(alltrim), "\r\nrtrim err! str = 0x0");
}

INSTANTIATE_TEST_SUITE_P(WhateverTheSwitch, TrimNull, testing::Values(0, 1),
                         [](const auto& row) { return row.param != 0 ? "On" : "Off"; });

}  // namespace
