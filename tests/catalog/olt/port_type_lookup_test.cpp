// Asking whether there is an OLT port type of a name.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/port_types.h"
#include "support/text.h"

namespace {

using std::string;
using test::Hex;
using test::PortTypeTable;

struct LookupRow {
  const char* name;
  PortTypeTable types;
  string asked;
  int32_t code;
  uint32_t index = 0;
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const LookupRow& row) {
    return out << row.name;
  }
};

class PortTypeLookup : public test::PortTypesTest, public testing::WithParamInterface<LookupRow> {};

TEST_P(PortTypeLookup, ByName) {
  Put(GetParam().types);
  // Without a byte to spare, so that a look behind its end is noticed.
  const string& text = GetParam().asked;
  const std::vector<char> asked(text.c_str(), text.c_str() + text.size() + 1);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t is_supported = 77;
    uint32_t index = 77;
    EXPECT_EQ(ddIsOltPortTypeSupportedByName(asked.data(), &is_supported, &index), GetParam().code);
    EXPECT_EQ(is_supported, GetParam().code == 0 ? 1u : 0u);
    EXPECT_EQ(index, GetParam().index);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

const string k59(59, 'p');
const string k60(60, 'p');

const LookupRow kNames[] = {
    {"FirstOfTwo", PortTypeTable::kLoaded, "GPON", 0, 0},
    {"Second", PortTypeTable::kLoaded, "XGPON", 0, 1},
    {"OtherCaseIsAnotherName", PortTypeTable::kLoaded, "gpon", 0, 2},
    {"Longest", PortTypeTable::kLoaded, k59, 0, 4},
    {"Empty", PortTypeTable::kLoaded, "", 0, 5},
    {"Last", PortTypeTable::kLoaded, "WIDE", 0, 7},
    {"StartOfAName", PortTypeTable::kLoaded, "GPO", -32},
    {"EndOfAName", PortTypeTable::kLoaded, "PON", -32},
    {"MoreThanAName", PortTypeTable::kLoaded, "GPONS", -32},
    {"NoCaseOfAName", PortTypeTable::kLoaded, "Gpon", -32},
    {"BlankAtTheEnd", PortTypeTable::kLoaded, "GPON ", -32},
    {"TraceBehindAName", PortTypeTable::kLoaded, "GPON#", -32},
    {"OneLessThanTheLongest", PortTypeTable::kLoaded, string(58, 'p'), -32},
    {"OtherOfTheLongest", PortTypeTable::kLoaded, string(58, 'p') + "P", -32},
    {"Unknown", PortTypeTable::kLoaded, "EPON", -32},
    {"BehindAnEmptyPlace", PortTypeTable::kEmptyPlaces, "GPON", 0, 1},
    {"BehindTwoEmptyPlaces", PortTypeTable::kEmptyPlaces, "XGPON", 0, 3},
    {"UnknownWithEmptyPlaces", PortTypeTable::kEmptyPlaces, "EPON", -32},
    {"FirstOfAFullTable", PortTypeTable::kFull, "T1", 0, 0},
    {"LastOfAFullTable", PortTypeTable::kFull, "T30", 0, 29},
    {"NoRecords", PortTypeTable::kNoRecords, "GPON", -32},
};
INSTANTIATE_TEST_SUITE_P(Names, PortTypeLookup, testing::ValuesIn(kNames),
                         testing::PrintToStringParamName());

constexpr char kNoArray[] = "\r\nddIsOltPortTypeSupportedByName err! pOltPortTypeArray = 0x0";
constexpr char kCount31[] =
    "\r\nddIsOltPortTypeSupportedByName err! ulSupportedOltPortTypeNum = 31";
constexpr char kName60[] =
    "\r\nddIsOltPortTypeSupportedByName err! strlen(strOltPortTypeName) = 60";
constexpr char kLength61[] =
    "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = 61, ulSupportedOltPortTypeNumIndex = 2";

const LookupRow kRefusals[] = {
    {"NameTooLong", PortTypeTable::kLoaded, k60, -33, 0, kName60},
    {"NameFarTooLong", PortTypeTable::kLoaded, string(1000, 'p'), -33, 0,
     "\r\nddIsOltPortTypeSupportedByName err! strlen(strOltPortTypeName) = 1000"},
    {"NameTooLongForACorruptCount", PortTypeTable::kCorrupt, k60, -33, 0, kName60},
    {"NameTooLongForNoArray", PortTypeTable::kNone, k60, -33, 0, kName60},
    {"CorruptCount", PortTypeTable::kCorrupt, "GPON", -11, 0, kCount31},
    {"CorruptCountAndNoArray", PortTypeTable::kCorruptNone, "GPON", -11, 0, kCount31},
    {"LargestCount", PortTypeTable::kCorruptMost, "GPON", -11, 0,
     "\r\nddIsOltPortTypeSupportedByName err! ulSupportedOltPortTypeNum = -1"},
    {"NoArray", PortTypeTable::kNone, "GPON", -11, 0, kNoArray},
    {"NoArrayButACount", PortTypeTable::kNoneButCount, "GPON", -11, 0, kNoArray},
    {"InFrontOfACorruptLength", PortTypeTable::kLengthTooLarge, "XGPON", 0, 1},
    {"AtACorruptLength", PortTypeTable::kLengthTooLarge, "gpon", -33, 0, kLength61},
    {"BehindACorruptLength", PortTypeTable::kLengthTooLarge, "WIDE", -33, 0, kLength61},
    {"UnknownWithACorruptLength", PortTypeTable::kLengthTooLarge, "EPON", -33, 0, kLength61},
    {"LargestLength", PortTypeTable::kLengthFarTooLarge, "WIDE", -33, 0,
     "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = -1, ulSupportedOltPortTypeNumIndex = 2"},
};
INSTANTIATE_TEST_SUITE_P(Refusals, PortTypeLookup, testing::ValuesIn(kRefusals),
                         testing::PrintToStringParamName());

using PortTypeNames = test::PortTypesTest;

TEST_F(PortTypeNames, PlacesOfACorruptLengthCountEmptyOnes) {
  Put(PortTypeTable::kEmptyPlaces);
  records_[2].ulNameLen = 61;  // at place 4
  ddDebugPrint = 1;
  uint32_t is_supported = 77;
  uint32_t index = 77;
  EXPECT_EQ(ddIsOltPortTypeSupportedByName("WIDE", &is_supported, &index), -33);
  EXPECT_EQ(is_supported, 0u);
  EXPECT_EQ(index, 0u);
  EXPECT_EQ(console_.Text(),
            "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = 61, "
            "ulSupportedOltPortTypeNumIndex = 4");
}

TEST_F(PortTypeNames, OnlyTheStoredLengthIsCompared) {
  Put(PortTypeTable::kLoaded);
  records_[1].ulNameLen = 2;  // "XG"
  uint32_t is_supported = 77;
  uint32_t index = 77;
  EXPECT_EQ(ddIsOltPortTypeSupportedByName("XGXXX", &is_supported, &index), 0);
  EXPECT_EQ(is_supported, 1u);
  EXPECT_EQ(index, 1u);
  EXPECT_EQ(ddIsOltPortTypeSupportedByName("XE", &is_supported, &index), -32);
  EXPECT_EQ(is_supported, 0u);
  EXPECT_EQ(index, 0u);
}

string NullArgument(const void* name, const void* is_supported, const void* index) {
  return "\r\nddIsOltPortTypeSupportedByName err! strOltPortTypeName = " + Hex(name) +
         ", pIsSupported = " + Hex(is_supported) + ", pIndex = " + Hex(index);
}

TEST_F(PortTypeNames, NullArgumentsTouchNothing) {
  Put(PortTypeTable::kCorruptNone);  // looked at later only
  const string long_name = k60;      // and so is this
  const char* const name = long_name.c_str();
  uint32_t is_supported = 77;
  uint32_t index = 78;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(ddIsOltPortTypeSupportedByName(nullptr, &is_supported, &index), -2);
    EXPECT_EQ(console_.Text(), debug != 0 ? NullArgument(nullptr, &is_supported, &index) : "");
    EXPECT_EQ(ddIsOltPortTypeSupportedByName(name, nullptr, &index), -2);
    EXPECT_EQ(console_.Text(), debug != 0 ? NullArgument(name, nullptr, &index) : "");
    EXPECT_EQ(ddIsOltPortTypeSupportedByName(name, &is_supported, nullptr), -2);
    EXPECT_EQ(console_.Text(), debug != 0 ? NullArgument(name, &is_supported, nullptr) : "");
    EXPECT_EQ(ddIsOltPortTypeSupportedByName(nullptr, nullptr, nullptr), -2);
    EXPECT_EQ(console_.Text(),
              debug != 0 ? "\r\nddIsOltPortTypeSupportedByName err! strOltPortTypeName = 0x0, "
                           "pIsSupported = 0x0, pIndex = 0x0"
                         : "");
  }
  EXPECT_EQ(is_supported, 77u);
  EXPECT_EQ(index, 78u);
}

}  // namespace
