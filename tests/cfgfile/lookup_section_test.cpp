// The section search of a lookup: which line is the wanted header, and which
// lines stop the search.
#include <vector>

#include "cfgfile/lookup_rows.h"

namespace {

using lookup::Repeat;
using lookup::Row;
using namespace std::string_literals;

class SectionSearch : public testing::TestWithParam<Row> {};

TEST_P(SectionSearch, LeavesBehind) {
  lookup::Check(GetParam());
}

// A search that succeeds: the key is in the line behind the header.
Row Found(std::string name, std::string file, int32_t line, int32_t offset,
          const char* section = "A") {
  return {.name = std::move(name),
          .file = std::move(file),
          .code = 0,
          .value = "1",
          .section_line = line,
          .key_line = line + 1,
          .key_lines = 1,
          .offset = offset,
          .section = section};
}

// A search that reaches the end of the file, which is told.
Row Absent(std::string name, std::string file, int32_t end, const char* section = "A") {
  return {.name = std::move(name),
          .file = std::move(file),
          .code = -1,
          .offset = end,
          .section = section};
}

// A search that ends at a malformed header.
Row Malformed(std::string name, std::string file, int32_t offset) {
  return {.name = std::move(name), .file = std::move(file), .code = -14, .offset = offset};
}

INSTANTIATE_TEST_SUITE_P(
    Header, SectionSearch,
    testing::Values(Found("FirstLine", "[A]\nk=1\n", 1, 0),
                    Found("BehindOtherSections", "[B]\nx\n\n[A]\nk=1\n", 4, 7),
                    Found("CurlyBrackets", "{A}\nk=1\n", 1, 0),
                    Found("CurlyBehindSquare", "[B]\n{A}\nk=1\n", 2, 4),
                    Found("BlanksAround", "x\n \t[A]\t \nk=1\n", 2, 2),
                    Found("BlanksInsideAreName", "[A]\n[ A ]\nk=1\n", 2, 4, " A "),
                    Found("BlanksInsideDoNotMatch", "[ A ]\n[A]\nk=1\n", 2, 6),
                    Found("TabInsideIsName", "[A\t]\nk=1\n", 1, 0, "A\t"),
                    Found("CaseDiffers", "[a]\n[A]\nk=1\n", 2, 4),
                    Found("LongerNameAhead", "[AB]\n[A]\nk=1\n", 2, 5),
                    Found("ShorterNameAhead", "[A]\n[AB]\nk=1\n", 2, 4, "AB"),
                    Found("BracketsInName", "[[A]]\nk=1\n", 1, 0, "[A]"),
                    Found("TextBetweenBrackets", "[A]x]\nk=1\n", 1, 0, "A]x"),
                    Found("EqualsInName", "[a=b]\nk=1\n", 1, 0, "a=b"),
                    Found("HighBytesInName", "[\x80\xFF]\nk=1\n", 1, 0, "\x80\xFF"),
                    Found("GarbageInOtherSections", "[B]\nName\n=\n+\n[A]\nk=1\n", 5, 13),
                    Found("NoContinuationOutside", "[B]\nx=1+\n[A]\nk=1\n", 3, 9)),
    lookup::RowName);

INSTANTIATE_TEST_SUITE_P(
    ShortHeader, SectionSearch,
    testing::Values(
        Found("OpeningOnly", "[\nk=1\n", 1, 0, ""), Found("Pair", "x\n[]\nk=1\n", 2, 2, ""),
        Found("OpeningAndLetter", "[a\nk=1\n", 1, 0, ""), Found("CurlyOnly", "{\nk=1\n", 1, 0, ""),
        Found("CurlyPair", "{}\nk=1\n", 1, 0, ""), Found("CurlyAndLetter", "{a\nk=1\n", 1, 0, ""),
        Found("MixedPairOfTwo", "[}\nk=1\n", 1, 0, ""),
        Found("BlanksAround", " [ \nk=1\n", 1, 0, ""),
        Found("TwoNotChecked", "[B\n[A]\nk=1\n", 2, 3),
        Found("BracketAsName", "[]]\nk=1\n", 1, 0, "]"), Absent("IsNotItsLetter", "[A\nk=1\n", 7),
        Absent("TextLinesAreNoEmptyHeaders", "x\n=\n\n]\n}\n", 9, "")),
    lookup::RowName);

INSTANTIATE_TEST_SUITE_P(NoHeader, SectionSearch,
                         testing::Values(Absent("EmptyFile", "", 0), Absent("OneLineFeed", "\n", 1),
                                         Absent("CommentsAndBlanks", ";a\n\n  \n\t;[A]\n", 13),
                                         Absent("OtherCase", "[a]\nk=1\n", 8),
                                         Absent("OnlyOthers", "[B]\nk=1", 7),
                                         Absent("BehindText", "x [A]\nk=1\n", 10),
                                         Absent("Comment", ";[A]\nk=1\n", 9),
                                         Absent("CommentBehindBlanks", " \t;[A]\n", 7),
                                         Absent("HashIsText", "#[A]\nk=1\n", 9),
                                         Absent("EmptyNameWanted", "[A]\nk=1\n", 8, ""),
                                         Absent("LoneCarriageReturn", "\r", 1)),
                         lookup::RowName);

INSTANTIATE_TEST_SUITE_P(BadHeader, SectionSearch,
                         testing::Values(Malformed("Unclosed", "[Board\n[A]\nk=1\n", 0),
                                         Malformed("UnclosedCurly", "{Board\n[A]\nk=1\n", 0),
                                         Malformed("UnclosedBehindLines",
                                                   "x\n;\n  [Board\n[A]\nk=1\n", 4),
                                         Malformed("UnclosedWanted", "[AB\n", 0),
                                         Malformed("SquareThenCurly", "[A}\nk=1\n", 0),
                                         Malformed("CurlyThenSquare", "x\n{A]\nk=1\n", 2),
                                         Malformed("ThreeCharacters", "[ab\n", 0),
                                         Malformed("TextBehind", "[A] ; note\nk=1\n", 0),
                                         Malformed("PlusBehind", "[A]+\nk=1\n", 0),
                                         Malformed("LastLineWithoutEnd", "[B]\n[Board", 4),
                                         Malformed("FormFeedBehind", "[A]\f\nk=1\n", 0)),
                         lookup::RowName);

INSTANTIATE_TEST_SUITE_P(
    LineEnd, SectionSearch,
    testing::Values(Found("CarriageReturnLineFeed", "x\r\n[A]\r\nk=1\r\n", 2, 3),
                    Found("CarriageReturnsDropped", "\r[\rA\r]\r\r\nk=1\n", 1, 0),
                    Malformed("CarriageReturnEndsNoLine", "[A]\rk=1\n", 0),
                    Found("ZeroByte", "x\0[A]\0k=1\0"s, 2, 2),
                    Found("ZeroByteAndLineFeed", "x\0\n[A]\nk=1\n"s, 3, 3),
                    Found("FormFeed", "x\f[A]\nk=1\n", 2, 2),
                    Found("FormFeedAndLineFeed", "x\f\n[A]\nk=1\n", 3, 3),
                    Found("Substitute", "x\x1A[A]\nk=1\n", 2, 2),
                    Found("LineFeedCarriageReturn", "x\n\r[A]\n\rk=1\n\r", 2, 2),
                    Absent("VerticalTabIsNoEnd", "x\v[A]\nk=1\n", 10),
                    Absent("VerticalTabIsNoBlank", "\v[A]\nk=1\n", 9),
                    Absent("HighBlankIsNoBlank", "\xA0[A]\nk=1\n", 9),
                    Found("LastLineWithoutEnd", "[A]\nk=1", 1, 0)),
    lookup::RowName);

// A line is cut after 512 characters, and what is left is a line of its own.
INSTANTIATE_TEST_SUITE_P(
    LongLine, SectionSearch,
    testing::Values(Found("Of511", Repeat(511, 'x') + "\n[A]\nk=1\n", 2, 512),
                    Found("Of512LeavesItsLineFeed", Repeat(512, 'x') + "\n[A]\nk=1\n", 3, 513),
                    Found("Of513", Repeat(513, 'x') + "\n[A]\nk=1\n", 3, 514),
                    Found("Of600", Repeat(600, 'x') + "\n[A]\nk=1\n", 3, 601),
                    Found("Of1024", Repeat(1024, 'x') + "\n[A]\nk=1\n", 4, 1025),
                    Found("Of511AndCarriageReturn", Repeat(511, 'x') + "\r\n[A]\nk=1\n", 2, 513),
                    Found("Of512AndCarriageReturn", Repeat(512, 'x') + "\r\n[A]\nk=1\n", 3, 514),
                    Found("CarriageReturnsDoNotCount",
                          Repeat(900, '\r') + Repeat(511, 'x') + "\n[A]\nk=1\n", 2, 1412),
                    Found("TailIsHeader", Repeat(512, 'x') + "[A]\nk=1\n", 2, 512),
                    Found("TailOfBlanksIsHeader", Repeat(512, ' ') + "[A]\nk=1\n", 2, 512),
                    Absent("NoTailYet", Repeat(511, 'x') + "[A]\nk=1\n", 519),
                    Malformed("TailIsBadHeader", Repeat(512, 'x') + "[Board\n[A]\nk=1\n", 512),
                    Found("TailOfCommentIsHeader", ";" + Repeat(511, 'x') + "[A]\nk=1\n", 2, 512),
                    Malformed("HeaderOf513", "[" + Repeat(511, 'n') + "]\n[A]\nk=1\n", 0)),
    lookup::RowName);

TEST(LongHeader, Of512IsFound) {
  const std::string name = Repeat(510, 'n');
  Row row = Found("", "[" + name + "]\nk=1\n", 1, 0, name.c_str());
  row.key_line = 3;  // line 2 is the header's own line feed
  lookup::Check(row);
}

// Nothing of the file ahead of the wanted section is read as an entry, and
// nothing behind the key is read at all.
INSTANTIATE_TEST_SUITE_P(FirstWins, SectionSearch,
                         testing::Values(Row{.name = "SecondSectionOfTheNameIsInvisible",
                                             .file = "[A]\nx=1\n[B]\n[A]\nk=1\n",
                                             .code = -2,
                                             .section_line = 1,
                                             .key_line = 3,
                                             .key_lines = 1},
                                         Row{.name = "CurlyOfTheNameCounts",
                                             .file = "{A}\nx=1\n[A]\nk=1\n",
                                             .code = -2,
                                             .section_line = 1,
                                             .key_line = 3,
                                             .key_lines = 1},
                                         Found("BadHeaderBehindTheKey", "[A]\nk=1\n[Board\n", 1, 0),
                                         Found("BadEntryBehindTheKey", "[A]\nk=1\nName\n", 1, 0)),
                         lookup::RowName);

}  // namespace
