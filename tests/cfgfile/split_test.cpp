// Splitting "key = value" in place.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "sys_context/cfgfile.h"

namespace {

struct Row {
  std::string name;
  std::string text;
  std::string key;
  std::string value;
  size_t key_at;
  size_t value_at;
};

std::ostream& operator<<(std::ostream& stream, const Row& row) {
  return stream << row.name;
}

class Split : public testing::TestWithParam<Row> {};

TEST_P(Split, SetsBothPointers) {
  std::string text = GetParam().text;
  char* key = nullptr;
  char* value = nullptr;
  ASSERT_EQ(split_key_val(text.data(), &key, &value), 1);
  EXPECT_EQ(static_cast<size_t>(key - text.data()), GetParam().key_at);
  EXPECT_EQ(static_cast<size_t>(value - text.data()), GetParam().value_at);
  EXPECT_STREQ(key, GetParam().key.c_str());
  EXPECT_STREQ(value, GetParam().value.c_str());
}

TEST_P(Split, ChangesTheFirstEqualsOnly) {
  std::string text = GetParam().text;
  char* key = nullptr;
  char* value = nullptr;
  ASSERT_EQ(split_key_val(text.data(), &key, &value), 1);
  std::string expected = GetParam().text;
  expected[expected.find('=')] = '\0';
  EXPECT_EQ(text, expected);
}

INSTANTIATE_TEST_SUITE_P(
    Entry, Split,
    testing::Values(Row{"Plain", "k=v", "k", "v", 0, 2},
                    Row{"BlanksAround", " \tk \t= \tv \t", "k \t", "v \t", 2, 8},
                    Row{"BlankWithin", "a b=c d", "a b", "c d", 0, 4},
                    Row{"SecondEquals", "k=a=b", "k", "a=b", 0, 2},
                    Row{"DoubleEquals", "k==b", "k", "=b", 0, 2},
                    Row{"EmptyValue", "key=", "key", "", 0, 4},
                    Row{"BlankValue", "k= \t ", "k", "", 0, 5},
                    Row{"OtherWhiteSpaceIsText", "\rk\n=\vv", "\rk\n", "\vv", 0, 4},
                    Row{"CommentSign", ";k=;v", ";k", ";v", 0, 3},
                    Row{"HighBytes", "\xA0=\xA0", "\xA0", "\xA0", 0, 2}),
    [](const auto& row) { return row.param.name; });

struct RefusedRow {
  std::string name;
  std::string text;
  int32_t result;
};

std::ostream& operator<<(std::ostream& stream, const RefusedRow& row) {
  return stream << row.name;
}

class SplitRefused : public testing::TestWithParam<RefusedRow> {};

TEST_P(SplitRefused, LeavesEverything) {
  std::string text = GetParam().text;
  char before = '#';
  char* key = &before;
  char* value = &before;
  EXPECT_EQ(split_key_val(text.data(), &key, &value), GetParam().result);
  EXPECT_EQ(text, GetParam().text);
  EXPECT_EQ(key, &before);
  EXPECT_EQ(value, &before);
}

INSTANTIATE_TEST_SUITE_P(Text, SplitRefused,
                         testing::Values(RefusedRow{"Empty", "", 0}, RefusedRow{"Blank", " \t ", 0},
                                         RefusedRow{"EqualsOnly", "=", -1},
                                         RefusedRow{"EqualsFirst", "=v", -1},
                                         RefusedRow{"EqualsBehindBlanks", " \t=v=w", -1},
                                         RefusedRow{"NoEquals", "name", -2},
                                         RefusedRow{"NoEqualsBehindBlanks", " a b ", -2},
                                         RefusedRow{"LineFeedIsNoBlank", "\n", -2}),
                         [](const auto& row) { return row.param.name; });

TEST(SplitNull, IsRefused) {
  char text[] = "k=v";
  char* key = nullptr;
  char* value = nullptr;
  EXPECT_EQ(split_key_val(nullptr, &key, &value), 0);
  EXPECT_EQ(split_key_val(text, nullptr, &value), 0);
  EXPECT_EQ(split_key_val(text, &key, nullptr), 0);
  EXPECT_STREQ(text, "k=v");
  EXPECT_EQ(key, nullptr);
  EXPECT_EQ(value, nullptr);
}

}  // namespace
