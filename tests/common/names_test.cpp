// Name fields: what fits into them, and what equals them.
#include "common/names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

namespace {

using sys_context::NameEquals;
using sys_context::StoreName;

struct StoreRow {
  const char* name;
  size_t characters;
  bool stored;
  friend std::ostream& operator<<(std::ostream& out, const StoreRow& row) {
    return out << row.name;
  }
};

class StoreNameInto60 : public testing::TestWithParam<StoreRow> {};

TEST_P(StoreNameInto60, StoresWhatFits) {
  const std::string text(GetParam().characters, 'n');
  char field[60];
  std::memset(field, '#', sizeof field);
  uint32_t length = 77;

  EXPECT_EQ(StoreName(text.c_str(), field, length), text.size() + 1);

  if (GetParam().stored) {
    EXPECT_EQ(length, text.size() + 1);
    EXPECT_STREQ(field, text.c_str());
  }
  const size_t written = GetParam().stored ? text.size() + 1 : 0;
  EXPECT_EQ(std::string(field + written, sizeof field - written),
            std::string(sizeof field - written, '#'));
  if (!GetParam().stored) {
    EXPECT_EQ(length, 77u);
  }
}

constexpr StoreRow kStores[] = {
    {.name = "Empty", .characters = 0, .stored = true},
    {.name = "OneCharacter", .characters = 1, .stored = true},
    {.name = "LongestBut1", .characters = 58, .stored = true},
    {.name = "Longest", .characters = 59, .stored = true},
    {.name = "OneTooMany", .characters = 60, .stored = false},
    {.name = "FarTooMany", .characters = 512, .stored = false},
};
INSTANTIATE_TEST_SUITE_P(Names, StoreNameInto60, testing::ValuesIn(kStores),
                         testing::PrintToStringParamName());

struct EqualRow {
  const char* name;
  const char* text;
  const char* field;
  uint32_t length;
  bool equal;
  friend std::ostream& operator<<(std::ostream& out, const EqualRow& row) {
    return out << row.name;
  }
};

class NameEquality : public testing::TestWithParam<EqualRow> {};

TEST_P(NameEquality, ComparesTheWholeName) {
  // Both without a byte to spare, so that a look behind their ends is noticed.
  const size_t text_size = std::strlen(GetParam().text) + 1;
  const std::vector<char> text(GetParam().text, GetParam().text + text_size);
  std::vector<char> field(8);
  std::copy_n(GetParam().field, std::strlen(GetParam().field), field.begin());

  EXPECT_EQ(NameEquals(text.data(), field.data(), field.size(), GetParam().length),
            GetParam().equal);
}

constexpr EqualRow kEquals[] = {
    {.name = "Same", .text = "GPON", .field = "GPON", .length = 5, .equal = true},
    {.name = "OtherCase", .text = "gPON", .field = "GPON", .length = 5, .equal = false},
    {.name = "TextShorter", .text = "GPO", .field = "GPON", .length = 5, .equal = false},
    {.name = "TextLonger", .text = "GPON8", .field = "GPON", .length = 5, .equal = false},
    {.name = "TextEmpty", .text = "", .field = "GPON", .length = 5, .equal = false},
    {.name = "BothEmpty", .text = "", .field = "", .length = 1, .equal = true},
    {.name = "FieldEmpty", .text = "GPON", .field = "", .length = 1, .equal = false},
    {.name = "BlankAtTheEnd", .text = "GPON ", .field = "GPON", .length = 5, .equal = false},
    {.name = "FieldFull", .text = "1234567", .field = "1234567", .length = 8, .equal = true},
    {.name = "FieldFullOther", .text = "1234568", .field = "1234567", .length = 8, .equal = false},
    {.name = "LengthOnlyOfTheStart", .text = "GPXX", .field = "GPON", .length = 2, .equal = true},
    {.name = "LengthOfNothing", .text = "GPON", .field = "", .length = 0, .equal = true},
    {.name = "LengthBeyondTheField",
     .text = "1234567",
     .field = "1234567",
     .length = 9,
     .equal = false},
    {.name = "LargestLength",
     .text = "GPON",
     .field = "GPON",
     .length = 0xffffffff,
     .equal = false},
};
INSTANTIATE_TEST_SUITE_P(Names, NameEquality, testing::ValuesIn(kEquals),
                         testing::PrintToStringParamName());

TEST(NameEquality, KnowsTheSizeOfAField) {
  char field[5] = {'G', 'P', 'O', 'N', '\0'};
  EXPECT_TRUE(NameEquals("GPON", field, 5));
  EXPECT_FALSE(NameEquals("GPO", field, 5));
}

}  // namespace
