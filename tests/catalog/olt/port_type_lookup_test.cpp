// Asking whether there is an OLT port type of a name.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/port_types.h"

namespace {

using std::string;
using test::Pointer;
using test::PortTypes;

struct LookupRow {
  const char* name;
  PortTypes types;
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
    {"FirstOfTwo", PortTypes::kLoaded, "GPON", 0, 0},
    {"Second", PortTypes::kLoaded, "XGPON", 0, 1},
    {"OtherCaseIsAnotherName", PortTypes::kLoaded, "gpon", 0, 2},
    {"Longest", PortTypes::kLoaded, k59, 0, 4},
    {"Empty", PortTypes::kLoaded, "", 0, 5},
    {"Last", PortTypes::kLoaded, "WIDE", 0, 7},
    {"StartOfAName", PortTypes::kLoaded, "GPO", -32},
    {"EndOfAName", PortTypes::kLoaded, "PON", -32},
    {"MoreThanAName", PortTypes::kLoaded, "GPONS", -32},
    {"NoCaseOfAName", PortTypes::kLoaded, "Gpon", -32},
    {"BlankAtTheEnd", PortTypes::kLoaded, "GPON ", -32},
    {"TraceBehindAName", PortTypes::kLoaded, "GPON#", -32},
    {"OneLessThanTheLongest", PortTypes::kLoaded, string(58, 'p'), -32},
    {"OtherOfTheLongest", PortTypes::kLoaded, string(58, 'p') + "P", -32},
    {"Unknown", PortTypes::kLoaded, "EPON", -32},
    {"BehindAnEmptyPlace", PortTypes::kEmptyPlaces, "GPON", 0, 1},
    {"BehindTwoEmptyPlaces", PortTypes::kEmptyPlaces, "XGPON", 0, 3},
    {"UnknownWithEmptyPlaces", PortTypes::kEmptyPlaces, "EPON", -32},
    {"FirstOfAFullTable", PortTypes::kFull, "T1", 0, 0},
    {"LastOfAFullTable", PortTypes::kFull, "T30", 0, 29},
    {"NoRecords", PortTypes::kNoRecords, "GPON", -32},
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
    {"NameTooLong", PortTypes::kLoaded, k60, -33, 0, kName60},
    {"NameFarTooLong", PortTypes::kLoaded, string(1000, 'p'), -33, 0,
     "\r\nddIsOltPortTypeSupportedByName err! strlen(strOltPortTypeName) = 1000"},
    {"NameTooLongForACorruptCount", PortTypes::kCorrupt, k60, -33, 0, kName60},
    {"NameTooLongForNoArray", PortTypes::kNone, k60, -33, 0, kName60},
    {"CorruptCount", PortTypes::kCorrupt, "GPON", -11, 0, kCount31},
    {"CorruptCountAndNoArray", PortTypes::kCorruptNone, "GPON", -11, 0, kCount31},
    {"LargestCount", PortTypes::kCorruptMost, "GPON", -11, 0,
     "\r\nddIsOltPortTypeSupportedByName err! ulSupportedOltPortTypeNum = -1"},
    {"NoArray", PortTypes::kNone, "GPON", -11, 0, kNoArray},
    {"NoArrayButACount", PortTypes::kNoneButCount, "GPON", -11, 0, kNoArray},
    {"InFrontOfACorruptLength", PortTypes::kLengthTooLarge, "XGPON", 0, 1},
    {"AtACorruptLength", PortTypes::kLengthTooLarge, "gpon", -33, 0, kLength61},
    {"BehindACorruptLength", PortTypes::kLengthTooLarge, "WIDE", -33, 0, kLength61},
    {"UnknownWithACorruptLength", PortTypes::kLengthTooLarge, "EPON", -33, 0, kLength61},
    {"LargestLength", PortTypes::kLengthFarTooLarge, "WIDE", -33, 0,
     "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = -1, ulSupportedOltPortTypeNumIndex = 2"},
};
INSTANTIATE_TEST_SUITE_P(Refusals, PortTypeLookup, testing::ValuesIn(kRefusals),
                         testing::PrintToStringParamName());

using PortTypeNames = test::PortTypesTest;

TEST_F(PortTypeNames, PlacesOfACorruptLengthCountEmptyOnes) {
  Put(PortTypes::kEmptyPlaces);
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
  Put(PortTypes::kLoaded);
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
  return "\r\nddIsOltPortTypeSupportedByName err! strOltPortTypeName = " + Pointer(name) +
         ", pIsSupported = " + Pointer(is_supported) + ", pIndex = " + Pointer(index);
}

TEST_F(PortTypeNames, NullArgumentsTouchNothing) {
  Put(PortTypes::kCorruptNone);  // looked at later only
  const string long_name = k60;  // and so is this
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
