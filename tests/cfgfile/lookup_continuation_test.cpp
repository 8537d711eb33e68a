// Entries that go on in further lines.
#include "cfgfile/lookup_rows.h"

namespace {

using lookup::Repeat;
using lookup::Row;
using namespace std::string_literals;

class Continuation : public testing::TestWithParam<Row> {};

TEST_P(Continuation, LeavesBehind) {
  lookup::Check(GetParam());
}

// The section is line 1, the entry begins in line 2 and has `lines`.
Row Joined(std::string name, std::string entry, std::string value, int32_t lines,
           const char* key = "k") {
  return {.name = std::move(name),
          .file = "[A]\n" + std::move(entry),
          .code = 0,
          .value = std::move(value),
          .section_line = 1,
          .key_line = 2,
          .key_lines = lines,
          .key = key};
}

// The lookup ends with `code` at the entry of `lines` that begins in `line`.
Row Fails(std::string name, std::string entries, int32_t code, int32_t line, int32_t lines,
          const char* key = "k") {
  return {.name = std::move(name),
          .file = "[A]\n" + std::move(entries),
          .code = code,
          .section_line = 1,
          .key_line = line,
          .key_lines = lines,
          .key = key};
}

INSTANTIATE_TEST_SUITE_P(
    Joined, Continuation,
    testing::Values(Joined("ThreeLines", "k = 1,2,+\n   3,4+\n5\n", "1,2,   3,45", 3),
                    Joined("BlankAheadOfPlusIsKept", "k = 1 +\n2\n", "1 2", 2),
                    Joined("BlankBehindPlusIsNot", "k = 1+ \t\n2 \t\n", "12", 2),
                    Joined("LeadingBlanksAreKept", "k = 1+\n \t2\n", "1 \t2", 2),
                    Joined("BlankAheadOfSecondPlus", "k = 1+\n2 + \n3\n", "12 3", 3),
                    Joined("BlanksBehindEqualsAreNot", "k =+\n \t2\n", "2", 2),
                    Joined("EqualsInNextLine", "k+\n=1\n", "1", 2),
                    Joined("KeyInNextLine", "+\n k = 1\n", "1", 2),
                    Joined("KeyInTwoLines", "k+\nk = 1\n", "1", 2, "kk"),
                    Joined("OnePlusIsCut", "k=1++\n2\n", "1+2", 2),
                    Joined("OnePlusOfPieceIsCut", "k=1+\n2++\n3\n", "12+3", 3),
                    Joined("PlusOnlyPiece", "k=1+\n+\n2\n", "12", 3),
                    Joined("EmptyLineEnds", "k=1 +\n\n2\n", "1 ", 2),
                    Joined("BlankLineEnds", "k=1+\n \t\nj\n", "1", 2),
                    Joined("CommentIsText", "k=1+\n;2+\n;3\n", "1;2;3", 3),
                    Joined("HeaderIsText", "k=1+\n[A]+\n[Board\n", "1[A][Board", 3),
                    Joined("EqualsIsText", "k=1+\n=2\n", "1=2", 2),
                    Joined("CarriageReturnLineFeed", "k=1+\r\n 2+\r\n3\r\n", "1 23", 3),
                    Joined("ZeroByte", "k=1+\0 2\n"s, "1 2", 2),
                    Joined("FormFeedBehindPlus", "k=1+\f2\n", "1+\f", 1),
                    Joined("FormFeedInPiece", "k=1+\n2+\f3\n", "12+\f", 2),
                    Joined("SubstituteIsPiece", "k=1+\n\x1A", "1\x1A", 2)),
    lookup::RowName);

INSTANTIATE_TEST_SUITE_P(EndOfFile, Continuation,
                         testing::Values(Joined("BehindPlus", "k=1+", "1", 1),
                                         Joined("BehindPlusAndLineFeed", "k=1 +\n", "1 ", 1),
                                         Joined("BehindSecondPlus", "k=1+\n2 +", "12 ", 2),
                                         Joined("LoneCarriageReturnIsLine", "k=1+\n\r", "1", 2),
                                         Joined("NothingButEquals", "k=+", "", 1),
                                         Fails("NoEquals", "k+\n", -14, 2, 1),
                                         Fails("NothingAtAll", "+", -14, 2, 1)),
                         lookup::RowName);

INSTANTIATE_TEST_SUITE_P(Around, Continuation,
                         testing::Values(Fails("CountsLinesOfTheLastEntry", "j=1+\n2+\n3\n", -2, 2,
                                               3),
                                         Fails("CountsAgainForTheNext", "j=1+\n2\n;c\n", -2, 4, 1),
                                         Fails("NextHeaderCountsOne", "j=1+\n2\n[B]\n", -2, 4, 1),
                                         Fails("CommentIsNotContinued", "; c +\n[B]\n", -2, 3, 1),
                                         Fails("NoEquals", "j+\nk\nk=1\n", -14, 2, 2),
                                         Fails("NoKey", "+\n =1\nk=1\n", -14, 2, 2),
                                         Fails("OnlyBlank", "+\n \nk=1\n", -14, 2, 2),
                                         Row{.name = "LineNumbersGoOn",
                                             .file = "[A]\nj=1+\n2\nk=3\n",
                                             .code = 0,
                                             .value = "3",
                                             .section_line = 1,
                                             .key_line = 4,
                                             .key_lines = 1},
                                         Row{.name = "CommentWithPlusAhead",
                                             .file = "[A]\n;c+\nk=3\n",
                                             .code = 0,
                                             .value = "3",
                                             .section_line = 1,
                                             .key_line = 3,
                                             .key_lines = 1}),
                         lookup::RowName);

const std::string k500 = "k=" + Repeat(498, 'x');  // 500 characters

INSTANTIATE_TEST_SUITE_P(
    At512Characters, Continuation,
    testing::Values(
        Joined("Reached", k500 + "+\n" + Repeat(12, 'y') + "\n", Repeat(498, 'x') + Repeat(12, 'y'),
               2),
        Fails("Exceeded", k500 + "+\n" + Repeat(13, 'y') + "\n", -22, 2, 2),
        Fails("ExceededByLeadingBlank", k500 + "+\n " + Repeat(12, 'y') + "\n", -22, 2, 2),
        Joined("NotByTrailingBlank", k500 + "+\n" + Repeat(12, 'y') + " \t\n",
               Repeat(498, 'x') + Repeat(12, 'y'), 2),
        Joined("NotByPlus", k500 + "+\n" + Repeat(12, 'y') + "+\n\n",
               Repeat(498, 'x') + Repeat(12, 'y'), 3),
        Joined("NotByEndOfFile", k500 + "+\n" + Repeat(12, 'y') + "+",
               Repeat(498, 'x') + Repeat(12, 'y'), 2),
        Fails("ExceededByThirdLine", k500 + "+\n" + Repeat(12, 'y') + "+\nz\n", -22, 2, 3),
        Fails("ExceededAheadOfTheKey",
              "j=" + Repeat(498, 'x') + "+\n" + Repeat(13, 'y') + "\nk=1\n", -22, 2, 2),
        Fails("ExceededBeforeSplitting", Repeat(500, 'x') + "+\n" + Repeat(13, 'y') + "\n", -22, 2,
              2),
        Joined("PieceOf512", "+\nk=" + Repeat(510, 'y') + "\n", Repeat(510, 'y'), 2),
        Joined("PieceIsCut", "+\nk=" + Repeat(511, 'y') + "\n", Repeat(510, 'y'), 2),
        Fails("PieceOf512BehindOne", "k+\n=" + Repeat(511, 'y') + "\n", -22, 2, 2),
        // Of 511 characters the last is the plus sign, and two more fit.
        Joined("LineOf511", "k=" + Repeat(508, 'x') + "+\nyy\n", Repeat(508, 'x') + "yy", 2),
        Fails("LineOf511Exceeded", "k=" + Repeat(508, 'x') + "+\nyyy\n", -22, 2, 2),
        // A full line leaves its line feed, which then is the empty last piece.
        Joined("LineOf512", "k=" + Repeat(509, 'x') + "+\nyy\n", Repeat(509, 'x'), 2),
        // What is left of a longer line is the next piece.
        Joined("LineOf513", "k=" + Repeat(509, 'x') + "+y\n", Repeat(509, 'x') + "y", 2),
        Joined("LineOf513Plus", "k=" + Repeat(509, 'x') + "++\n\n", Repeat(509, 'x'), 3)),
    lookup::RowName);

}  // namespace
