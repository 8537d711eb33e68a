// The key search of a lookup: entries of one line, what ends a section, and
// what is no entry.
#include "cfgfile/lookup_rows.h"

namespace {

using lookup::Repeat;
using lookup::Row;
using namespace std::string_literals;

class KeySearch : public testing::TestWithParam<Row> {};

TEST_P(KeySearch, LeavesBehind) {
  lookup::Check(GetParam());
}

// The section is the first line of each file; `line` is the entry's.
Row Value(std::string name, std::string entries, std::string value, int32_t line = 2,
          const char* key = "k") {
  return {.name = std::move(name),
          .file = "[A]\n" + std::move(entries),
          .code = 0,
          .value = std::move(value),
          .section_line = 1,
          .key_line = line,
          .key_lines = 1,
          .key = key};
}

// The lookup fails; `line` is the last line that began an entry.
Row Fails(std::string name, std::string entries, int32_t code, int32_t line,
          const char* key = "k") {
  return {.name = std::move(name),
          .file = "[A]\n" + std::move(entries),
          .code = code,
          .section_line = 1,
          .key_line = line,
          .key_lines = line == 0 ? 0 : 1,
          .key = key};
}

INSTANTIATE_TEST_SUITE_P(
    Value, KeySearch,
    testing::Values(
        Value("Plain", "k=1\n", "1"), Value("Blanks", "k = 1\n", "1"),
        Value("BlanksEverywhere", "  k\t=\t value  \n", "value"),
        Value("WithEquals", "k = a=b\n", "a=b"), Value("OnlyEquals", "k==\n", "="),
        Value("Empty", "k=\n", ""), Value("Blank", "k= \t \n", ""),
        Value("EmptyAtEndOfFile", "k=", ""), Value("InnerBlanks", "k= a  b\tc \n", "a  b\tc"),
        Value("CommentSignIsText", "k=1 ; note\n", "1 ; note"),
        Value("CommentSignFirst", "k=;1\n", ";1"), Value("Header", "k=[A]\n", "[A]"),
        Value("PlusWithin", "k=1+2\n", "1+2"), Value("HighBytes", "k=\x80\xFF\n", "\x80\xFF"),
        Value("ControlBytes", "k=\x01\v\x1F\x7F\n", "\x01\v\x1F\x7F"),
        Value("NoLineEnd", "k=1", "1"), Value("CarriageReturnLineFeed", "k=1\r\n", "1"),
        Value("CarriageReturnWithin", "k=1\r2\r\n", "12"),
        Value("CarriageReturnAtEndOfFile", "k=1\r", "1"),
        Value("FormFeedIsKept", "k=1\f2\n", "1\f"), Value("SubstituteIsKept", "k=1 \x1A", "1 \x1A"),
        Value("ZeroByteEnds", "k=1\0002\n"s, "1"), Value("LineFeedInsideNot", "k=1\n=2\n", "1")),
    lookup::RowName);

INSTANTIATE_TEST_SUITE_P(
    Key, KeySearch,
    testing::Values(Value("Second", "j=1\nk=2\n", "2", 3), Value("FirstOfTwo", "k=1\nk=2\n", "1"),
                    Value("LongerAhead", "kk=1\nk=2\n", "2", 3),
                    Value("ShorterAhead", "k=1\nkk=2\n", "2", 3, "kk"),
                    Value("CaseDiffers", "K=1\nk=2\n", "2", 3),
                    Value("BlankWithin", "k k = 1\n", "1", 2, "k k"),
                    Value("BehindCommentsAndBlanks", ";k=0\n\n \t\n  ;\nk=1\n", "1", 6),
                    Value("HashIsName", "#k=1\nk=2\n", "1", 2, "#k"),
                    Value("HashIsNoComment", "#k=1\nk=2\n", "2", 3),
                    Value("ClosingBracketIsName", "]=1\nk=2\n", "1", 2, "]"),
                    Value("VerticalTabIsNoBlank", "\vk=1\nk=2\n", "2", 3),
                    Value("BehindZeroByte", "j=1\0k=2\0"s, "2", 3),
                    Value("BehindFormFeed", "j=1\fk=2\n", "2", 3),
                    Value("BehindSubstitute", "j=1\x1Ak=2\n", "2", 3),
                    Fails("WantedWithBlank", "k=1\n", -2, 2, " k"),
                    Fails("WantedEmpty", "k=1\n", -2, 2, ""),
                    Fails("WantedHighByte", "k=1\n", -2, 2, "\xEB")),
    lookup::RowName);

INSTANTIATE_TEST_SUITE_P(EndOfSection, KeySearch,
                         testing::Values(Fails("FileEndsAtHeader", "", -2, 0),
                                         Fails("FileEnds", "j=1\n", -2, 2),
                                         Fails("FileEndsWithoutLineEnd", "j=1", -2, 2),
                                         Fails("BlankAndCommentLinesCount", "j=1\n\n;c\n", -2, 4),
                                         Fails("LoneCarriageReturnCounts", "j=1\n\r", -2, 3),
                                         Fails("NextHeader", "[B]\nk=1\n", -2, 2),
                                         Fails("NextCurlyHeader", "j=1\n{B}\nk=1\n", -2, 3),
                                         Fails("NextHeaderBehindBlanks", "\n \t[B]\nk=1\n", -2, 3),
                                         Fails("BadHeaderEndsToo", "[Board\nk=1\n", -2, 2),
                                         Fails("MixedHeaderEndsToo", "[B}\nk=1\n", -2, 2),
                                         Fails("HeaderWithPlusEndsToo", "[B+\nk=1\n", -2, 2),
                                         Fails("ShortHeaderEndsToo", "{\nk=1\n", -2, 2),
                                         Fails("HeaderLikeEntryEndsToo", "[k]=1\nk=1\n", -2, 2)),
                         lookup::RowName);

INSTANTIATE_TEST_SUITE_P(NoEntry, KeySearch,
                         testing::Values(Fails("NoEquals", "Name\nk=1\n", -14, 2),
                                         Fails("NoEqualsBehindEntry", "j=1\n\nName\nk=1\n", -14, 4),
                                         Fails("WantedWithoutEquals", "k\n", -14, 2),
                                         Fails("NoKey", "=1\nk=1\n", -14, 2),
                                         Fails("NoKeyBehindBlanks", " \t=1\nk=1\n", -14, 2),
                                         Fails("EqualsOnly", "=\n", -14, 2),
                                         Fails("Hash", "# text\nk=1\n", -14, 2),
                                         Fails("ClosingBracket", "]\nk=1\n", -14, 2),
                                         Fails("FormFeedOnly", "\fk=1\n", -14, 2),
                                         Fails("SubstituteOnly", "j=1\n\x1A", -14, 3),
                                         Fails("TextBehindZeroByte", "j=1\0002\nk=1\n"s, -14, 3)),
                         lookup::RowName);

// A line is cut after 512 characters, and what is left is a line of its own.
INSTANTIATE_TEST_SUITE_P(
    LongLine, KeySearch,
    testing::Values(Value("Of511", "k=" + Repeat(509, 'x') + "\n", Repeat(509, 'x')),
                    Value("Of512", "k=" + Repeat(510, 'x') + "\n", Repeat(510, 'x')),
                    Value("Of513IsCut", "k=" + Repeat(511, 'x') + "\n", Repeat(510, 'x')),
                    Value("BehindOneOf511", "j=" + Repeat(509, 'x') + "\nk=1\n", "1", 3),
                    Value("BehindOneOf512", "j=" + Repeat(510, 'x') + "\nk=1\n", "1", 4),
                    Fails("TailOf513IsNoEntry", "j=" + Repeat(511, 'x') + "\nk=1\n", -14, 3),
                    Value("TailIsEntry", "j=" + Repeat(510, 'x') + "k=1\n", "1", 3),
                    Fails("TailIsHeader", "j=" + Repeat(510, 'x') + "[B]\nk=1\n", -2, 3),
                    Value("TailIsComment", "j=" + Repeat(510, 'x') + ";xyz\nk=1\n", "1", 4),
                    Value("BlanksCount", "k=" + Repeat(510, ' ') + "1\n", ""),
                    Value("BehindKeyOf509", Repeat(509, 'q') + "=1\nk=2\n", "2", 3),
                    Value("BehindKeyOf510", Repeat(510, 'q') + "=1\nk=2\n", "2", 4),
                    Fails("KeyOf512", Repeat(512, 'q') + "=1\nk=2\n", -14, 2)),
    lookup::RowName);

TEST(KeySearchOfEmptySection, NamesTheNextHeader) {
  lookup::Check({.name = "",
                 .file = "[Version]\n[Module1]\n",
                 .code = -2,
                 .section_line = 1,
                 .key_line = 2,
                 .key_lines = 1,
                 .section = "Version",
                 .key = "Any"});
}

}  // namespace
