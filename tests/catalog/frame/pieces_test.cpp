// Cutting a list into its pieces.
#include "catalog/frame/pieces.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace {

using std::string;

struct Piece {
  string text;  // of the value, from the piece on
  uint32_t place;
  bool is_last;
  bool operator==(const Piece&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Piece& piece) {
    return out << piece.place << ": \"" << piece.text << "\"" << (piece.is_last ? " last" : "");
  }
};

struct Row {
  const char* name;
  const char* value;
  char separator;
  std::vector<Piece> pieces;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class Pieces : public testing::TestWithParam<Row> {};

TEST_P(Pieces, InOrder) {
  std::vector<Piece> pieces;
  sys_context::ForEachPiece(GetParam().value, GetParam().separator,
                            [&](const char* text, uint32_t place, bool is_last) {
                              pieces.push_back({text, place, is_last});
                            });
  EXPECT_EQ(pieces, GetParam().pieces);
}

const Row kRows[] = {
    {"Empty", "", ',', {{"", 0, true}}},
    {"One", "ab", ',', {{"ab", 0, true}}},
    {"Two", "a,b", ',', {{"a,b", 0, false}, {"b", 1, true}}},
    {"Three", "a,bc,d", ',', {{"a,bc,d", 0, false}, {"bc,d", 1, false}, {"d", 2, true}}},
    {"OneThatIsEnded", "a,", ',', {{"a,", 0, false}, {"", 1, true}}},
    {"SeparatorAlone", ",", ',', {{",", 0, false}, {"", 1, true}}},
    {"EmptyInBetween", "a||b", '|', {{"a||b", 0, false}, {"|b", 1, false}, {"b", 2, true}}},
    {"OtherSeparator", "a,b|c", '|', {{"a,b|c", 0, false}, {"c", 1, true}}},
    {"Blanks", " a , b ", ',', {{" a , b ", 0, false}, {" b ", 1, true}}},
};
INSTANTIATE_TEST_SUITE_P(Frame, Pieces, testing::ValuesIn(kRows),
                         testing::PrintToStringParamName());

}  // namespace
