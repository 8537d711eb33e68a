// Which names are suggested for one that nobody knows.
#include "host/nearest.h"

#include <gmock/gmock.h>

#include <ostream>

namespace sysctx {
namespace {

const std::vector<std::string> kNames = {
    "ddGetSlotA", "ddGetSlotBc", "ddGetSlotDef", "ddGetSlotGhij", "ddGetSlotKlmno",
    "ddGetSlotP", "ddIsReal",    "ddIsRealToo",  "get_amount",    "Get_Count"};

struct Row {
  const char* name;
  const char* word;
  std::vector<std::string> nearest;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class Nearest : public testing::TestWithParam<Row> {};

TEST_P(Nearest, AreTheLikestFirst) {
  EXPECT_EQ(NearestNames(GetParam().word, kNames), GetParam().nearest);
}

const Row kRows[] = {
    {"EqualButForCase", "DDISREAL", {"ddIsReal"}},
    {"EqualButForCaseOfTheName", "get_count", {"Get_Count"}},
    {"Contained", "amount", {"get_amount"}},
    {"ContainedInOtherCase", "AMOUNT", {"get_amount"}},
    {"ContainedInSeveral", "IsReal", {"ddIsReal", "ddIsRealToo"}},
    {"ContainedInManyTheFiveLikest",
     "GetSlot",
     {"ddGetSlotA", "ddGetSlotP", "ddGetSlotBc", "ddGetSlotDef", "ddGetSlotGhij"}},
    {"ContainedIsBetterThanClose", "ddGetSlotK", {"ddGetSlotKlmno"}},
    {"LetterReplaced", "ddIsRael", {"ddIsReal"}},
    {"LetterTooMuch", "get_amounts", {"get_amount", "Get_Count"}},
    {"LetterLeftOut", "gt_amount", {"get_amount", "Get_Count"}},
    {"HalfIsDifferent", "get_vwxyzt", {"get_amount", "Get_Count"}},
    {"MoreThanHalfIsDifferent", "get_uvwxyz", {}},
    {"ManyLettersLeftOut", "ddGtlmno", {"ddGetSlotKlmno"}},
    {"LettersInOtherOrder", "ddGtonml", {}},
    {"Unlike", "foobarbaz", {}},
    {"Nothing", "", {}},
};

INSTANTIATE_TEST_SUITE_P(All, Nearest, testing::ValuesIn(kRows), testing::PrintToStringParamName());

}  // namespace
}  // namespace sysctx
