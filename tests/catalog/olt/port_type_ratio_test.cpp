// Asking for the splitting ratio of an OLT port type.
#include <ostream>
#include <string>

#include "catalog/olt/port_types.h"

namespace {

using std::string;
using test::PortTypeTable;

struct RatioRow {
  const char* name;
  PortTypeTable types;
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
    {"FirstOfTwo", PortTypeTable::kLoaded, 1, 0, 64},
    {"Second", PortTypeTable::kLoaded, 2, 0, 128},
    {"LargestRatio", PortTypeTable::kLoaded, 4, 0, 512},
    {"SameLow8Bits", PortTypeTable::kFull, 0x101, -12},
    {"SameLow16Bits", PortTypeTable::kFull, 0x10001, -12},
    {"SameLow31Bits", PortTypeTable::kFull, 0x80000001, -12},
    {"NoOnus", PortTypeTable::kLoaded, 0xffffffff, 0, 0},
    {"RatioTooLargeIsGivenAllTheSame", PortTypeTable::kLoaded, 0, 0, 513,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 0, ulSplittingRatio = 513, "
     "DD_MAX_ONU_NUM_PER_PON = 512"},
    {"RatioFarTooLargeIsGivenAllTheSame", PortTypeTable::kLoaded, 5, 0, 0xffffffff,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 5, ulSplittingRatio = -1, "
     "DD_MAX_ONU_NUM_PER_PON = 512"},
    {"Unknown", PortTypeTable::kLoaded, 6, -12},
    {"BehindEmptyPlaces", PortTypeTable::kEmptyPlaces, 2, 0, 128},
    {"FirstOfTwoBehindAnEmptyPlace", PortTypeTable::kEmptyPlaces, 1, 0, 64},
    {"UnknownWithEmptyPlaces", PortTypeTable::kEmptyPlaces, 6, -12},
    {"NamesAreNotLookedAt", PortTypeTable::kLengthTooLarge, 3, 0, 16},
    {"FirstOfAFullTable", PortTypeTable::kFull, 1, 0, 101},
    {"LastOfAFullTable", PortTypeTable::kFull, 30, 0, 130},
    {"UnknownToAFullTable", PortTypeTable::kFull, 31, -12},
    {"NoRecords", PortTypeTable::kNoRecords, 1, -12},
    {"NoArray", PortTypeTable::kNone, 9, -10, 0,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 9, pOltPortTypeArray = 0x0"},
    {"NoArrayButACount", PortTypeTable::kNoneButCount, 0xffffffff, -10, 0,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = -1, pOltPortTypeArray = 0x0"},
    {"CorruptCount", PortTypeTable::kCorrupt, 1, -11, 0, kCount31},
    {"CorruptCountAndNoArray", PortTypeTable::kCorruptNone, 1, -11, 0, kCount31},
    {"LargestCount", PortTypeTable::kCorruptMost, 1, -11, 0,
     "\r\nddGetOltPortSplittingRatioByType err! ulSupportedOltPortTypeNum = -1"},
};
INSTANTIATE_TEST_SUITE_P(Types, PortTypeRatio, testing::ValuesIn(kRatios),
                         testing::PrintToStringParamName());

using PortTypeRatios = test::PortTypesTest;

// The message names an argument that the function does not have.
TEST_F(PortTypeRatios, NullResult) {
  Put(PortTypeTable::kCorruptNone);  // looked at later only
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddGetOltPortSplittingRatioByType err! strOltPortTypeName = 0x0");
}

// Of two records of a type the first one is complained about, or none.
TEST_F(PortTypeRatios, OnlyTheAnsweringRecordIsComplainedAbout) {
  Put(PortTypeTable::kLoaded);
  ddDebugPrint = 1;
  uint32_t ratio = 77;
  placed_.records[2].ulSplittingRatio = 600;  // the second one of type 1
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, &ratio), 0);
  EXPECT_EQ(ratio, 64u);
  EXPECT_EQ(console_.Text(), "");
  placed_.records[0].ulSplittingRatio = 601;
  EXPECT_EQ(ddGetOltPortSplittingRatioByType(1, &ratio), 0);
  EXPECT_EQ(ratio, 601u);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 1, ulSplittingRatio = 601, "
            "DD_MAX_ONU_NUM_PER_PON = 512");
}

}  // namespace
