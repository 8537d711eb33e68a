// Answers as text, and the exit status that they give.
#include "host/answer.h"

#include <gmock/gmock.h>

#include <ostream>

namespace sysctx {
namespace {

using Kind = Output::Kind;
using Items = std::vector<std::optional<std::string>>;
constexpr std::nullopt_t kNone = std::nullopt;

struct Shown {
  const char* name;
  std::vector<Output> outputs;
  const char* text;
  friend std::ostream& operator<<(std::ostream& out, const Shown& row) { return out << row.name; }
};

class AnswerText : public testing::TestWithParam<Shown> {};

TEST_P(AnswerText, IsOneLineForEachItem) {
  EXPECT_EQ(DescribeAnswer({"code", 0, GetParam().outputs, ""}),
            std::string("code = 0\n") + GetParam().text);
}

Output Count(std::optional<int64_t> number) {
  return {Kind::kNumber, "count", {}, number};
}

Output TheText(const std::optional<std::string>& text) {
  return {Kind::kText, "text", {text}};
}

Output TheList(const Items& numbers) {
  return {Kind::kList, "list", numbers};
}

Output TheRecords(const Items& records) {
  return {Kind::kList, "records", records, kNone, "; "};
}

const Shown kShown[] = {
    {"Nothing", {}, ""},
    {"Number", {Count(7)}, "count = 7\n"},
    {"LargestNumber", {Count(4294967295)}, "count = 4294967295\n"},
    {"NegativeNumber", {Count(-7)}, "count = -7\n"},
    {"NumberUntouched", {Count(kNone)}, "count = (untouched)\n"},
    {"Text", {TheText("KT 1")}, "text = KT 1\n"},
    {"EmptyText", {TheText("")}, "text =\n"},
    {"TextUntouched", {TheText(kNone)}, "text = (untouched)\n"},
    {"List", {TheList({"4", "5", "6"}), Count(2)}, "list = 4 5\ncount = 2\n"},
    {"ListOfAll", {TheList({"4", "5", "6"}), Count(3)}, "list = 4 5 6\ncount = 3\n"},
    {"CountTooLarge", {TheList({"4", "5"}), Count(4294967295)}, "list = 4 5\ncount = 4294967295\n"},
    {"CountNegative", {TheList({"4", "5"}), Count(-1)}, "list =\ncount = -1\n"},
    {"ListEmpty", {TheList({kNone, kNone}), Count(0)}, "list =\ncount = 0\n"},
    {"ListEmptyButWritten", {TheList({"4", kNone}), Count(0)}, "list =\ncount = 0\n"},
    {"PlacesLeftAlone",
     {TheList({"4", kNone, "6", kNone}), Count(4)},
     "list = 4 (untouched) 6 (untouched)\ncount = 4\n"},
    {"ListUntouched", {TheList({kNone, kNone}), Count(2)}, "list = (untouched)\ncount = 2\n"},
    {"AllUntouched",
     {TheList({kNone, kNone}), Count(kNone)},
     "list = (untouched)\ncount = (untouched)\n"},
    {"CountUntouched",
     {TheList({"4", kNone, "6", kNone}), Count(kNone)},
     "list = 4 (untouched) 6\ncount = (untouched)\n"},
    {"TwoLists",
     {TheList({"4", "5"}), Count(1), TheList({"6", "7"}), Count(2)},
     "list = 4\ncount = 1\nlist = 6 7\ncount = 2\n"},
    {"CountInFront", {Count(2), TheList({"4", "5", "6"})}, "count = 2\nlist = 4 5\n"},
    {"NearestCountInFront",
     {Count(3), Count(1), TheList({"4", "5", "6"})},
     "count = 3\ncount = 1\nlist = 4\n"},
    {"CountInFrontUntouched",
     {Count(kNone), TheList({"4", "5", kNone})},
     "count = (untouched)\nlist = 4 5\n"},
    {"CountBehindBeforeTheOneInFront",
     {Count(3), TheList({"4", "5", "6"}), Count(2)},
     "count = 3\nlist = 4 5\ncount = 2\n"},
    {"NoCount", {TheList({"4", "5", kNone})}, "list = 4 5\n"},
    {"Records",
     {Count(2), TheRecords({"a 1, b 2", "a 3", "a 4"})},
     "count = 2\nrecords = a 1, b 2; a 3\n"},
    {"OneRecord", {Count(1), TheRecords({"a 1", kNone})}, "count = 1\nrecords = a 1\n"},
    {"NoRecord", {Count(0), TheRecords({"a 1", kNone})}, "count = 0\nrecords =\n"},
    {"RecordLeftAlone",
     {Count(3), TheRecords({"a 1", kNone, "a 3"})},
     "count = 3\nrecords = a 1; (untouched); a 3\n"},
    {"RecordsUntouched",
     {Count(2), TheRecords({kNone, kNone})},
     "count = 2\nrecords = (untouched)\n"},
    {"TextInFrontOfTheCount",
     {TheList({"4", "5"}), TheText("t"), Count(1)},
     "list = 4\ntext = t\ncount = 1\n"},
};

INSTANTIATE_TEST_SUITE_P(All, AnswerText, testing::ValuesIn(kShown),
                         testing::PrintToStringParamName());

TEST(AnswerText, BeginsWithTheValue) {
  EXPECT_EQ(DescribeAnswer({"code", -25, {}, ""}), "code = -25\n");
  EXPECT_EQ(DescribeAnswer({"value", 10, {}, ""}), "value = 10\n");
}

TEST(AnswerStatus, IsZeroOrTheLowByteOfANegativeCode) {
  const std::pair<int32_t, int> rows[] = {{0, 0},    {1, 0},     {258, 0},   {INT32_MAX, 0},
                                          {-1, 255}, {-25, 231}, {-257, 255}};
  for (const auto& [code, status] : rows) {
    EXPECT_EQ(ExitStatus(Answer{"code", code, {}, ""}), status) << code;
  }
}

}  // namespace
}  // namespace sysctx
