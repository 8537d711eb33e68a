// Asking for the splitting ratio of an OLT port type.
#include <ostream>
#include <string>

#include "catalog/olt/port_types.h"

namespace {

using std::string;
using test::PortTypes;

struct RatioRow {
  const char* name;
  PortTypes types;
  uint32_t type;
  int32_t code;
  uint32_t ratio = 0;
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const RatioRow& row) {
    return out << row.name;
  }
};

class PortTypeRatio : public test::PortTypesTest, public testing::WithParamInterface<RatioRow> {};

TEST_P(PortTypeRatio, ByType) {
  Put(GetParam().types);
  for (const int32_t debug : {0, 1, -1}) {
    ddDebugPrint = debug;
    uint32_t ratio = 77;
    EXPECT_EQ(ddGetOltPortSplittingRatioByType(GetParam().type, &ratio), GetParam().code);
    EXPECT_EQ(ratio, GetParam().ratio);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

constexpr char kCount31[] =
    "\r\nddGetOltPortSplittingRatioByType err! ulSupportedOltPortTypeNum = 31";

const RatioRow kRatios[] = {
    {"FirstOfTwo", PortTypes::kLoaded, 1, 0, 64},
    {"Second", PortTypes::kLoaded, 2, 0, 128},
    {"LargestRatio", PortTypes::kLoaded, 4, 0, 512},
    {"SameLow8Bits", PortTypes::kFull, 0x101, -12},
    {"SameLow16Bits", PortTypes::kFull, 0x10001, -12},
    {"SameLow31Bits", PortTypes::kFull, 0x80000001, -12},
    {"NoOnus", PortTypes::kLoaded, 0xffffffff, 0, 0},
    {"RatioTooLargeIsGivenAllTheSame", PortTypes::kLoaded, 0, 0, 513,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 0, ulSplittingRatio = 513, "
     "DD_MAX_ONU_NUM_PER_PON = 512"},
    {"RatioFarTooLargeIsGivenAllTheSame", PortTypes::kLoaded, 5, 0, 0xffffffff,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 5, ulSplittingRatio = -1, "
     "DD_MAX_ONU_NUM_PER_PON = 512"},
    {"Unknown", PortTypes::kLoaded, 6, -12},
    {"BehindEmptyPlaces", PortTypes::kEmptyPlaces, 2, 0, 128},
    {"FirstOfTwoBehindAnEmptyPlace", PortTypes::kEmptyPlaces, 1, 0, 64},
    {"UnknownWithEmptyPlaces", PortTypes::kEmptyPlaces, 6, -12},
    {"NamesAreNotLookedAt", PortTypes::kLengthTooLarge, 3, 0, 16},
    {"FirstOfAFullTable", PortTypes::kFull, 1, 0, 101},
    {"LastOfAFullTable", PortTypes::kFull, 30, 0, 130},
    {"UnknownToAFullTable", PortTypes::kFull, 31, -12},
    {"NoRecords", PortTypes::kNoRecords, 1, -12},
    {"NoArray", PortTypes::kNone, 9, -10, 0,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 9, pOltPortTypeArray = 0x0"},
    {"NoArrayButACount", PortTypes::kNoneButCount, 0xffffffff, -10, 0,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = -1, pOltPortTypeArray = 0x0"},
    {"CorruptCount", PortTypes::kCorrupt, 1, -11, 0, kCount31},
    {"CorruptCountAndNoArray", PortTypes::kCorruptNone, 1, -11, 0, kCount31},
    {"LargestCount", PortTypes::kCorruptMost, 1, -11, 0,
     "\r\nddGetOltPortSplittingRatioByType err! ulSupportedOltPortTypeNum = -1"},
};
INSTANTIATE_TEST_SUITE_P(Types, PortTypeRatio, testing::ValuesIn(kRatios),
                         testing::PrintToStringParamName());

using PortTypeRatios = test::PortTypesTest;

// The message names an argument that the function does not have.
TEST_F(PortTypeRatios, NullResult) {
  Put(PortTypes::kCorruptNone);  // looked at later only
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddGetOltPortSplittingRatioByType err! strOltPortTypeName = 0x0");
}

// Of two records of a type the first one is complained about, or none.
TEST_F(PortTypeRatios, OnlyTheAnsweringRecordIsComplainedAbout) {
  Put(PortTypes::kLoaded);
  ddDebugPrint = 1;
  uint32_t ratio = 77;
  records_[2].ulSplittingRatio = 600;  // the second one of type 1
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, &ratio), 0);
  EXPECT_EQ(ratio, 64u);
  EXPECT_EQ(console_.Text(), "");
  records_[0].ulSplittingRatio = 601;
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, &ratio), 0);
  EXPECT_EQ(ratio, 601u);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 1, ulSplittingRatio = 601, "
            "DD_MAX_ONU_NUM_PER_PON = 512");
}

}  // namespace
