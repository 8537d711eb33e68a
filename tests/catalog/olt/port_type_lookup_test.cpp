// Asking whether there is an OLT port type of a name.
#include <ostream>
#include <string>

#include "catalog/olt/port_types.h"
#include "catalog/port_type_names.h"
#include "support/text.h"

namespace {

using std::string;
using test::Hex;
using test::PortTypeTable;

using PortTypeNames = test::PortTypesTest;

class PortTypeLookup : public PortTypeNames,
                       public testing::WithParamInterface<test::PortTypeNameRow> {};

TEST_P(PortTypeLookup, ByName) {
  Put(GetParam().types);
  test::ExpectPortTypeNameAnswered(console_, ddIsOltPortTypeSupportedByName, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Names, PortTypeLookup, testing::ValuesIn(test::kPortTypeNames),
                         testing::PrintToStringParamName());

struct RefusalRow : test::PortTypeNameRow {
  string debug_console;
};

class PortTypeRefusal : public PortTypeNames, public testing::WithParamInterface<RefusalRow> {};

TEST_P(PortTypeRefusal, ByName) {
  Put(GetParam().types);
  test::ExpectPortTypeNameAnswered(console_, ddIsOltPortTypeSupportedByName, GetParam(),
                                   GetParam().debug_console);
}

const string k60(60, 'p');

constexpr char kNoArray[] = "\r\nddIsOltPortTypeSupportedByName err! pOltPortTypeArray = 0x0";
constexpr char kCount31[] =
    "\r\nddIsOltPortTypeSupportedByName err! ulSupportedOltPortTypeNum = 31";
constexpr char kName60[] =
    "\r\nddIsOltPortTypeSupportedByName err! strlen(strOltPortTypeName) = 60";
constexpr char kLength61[] =
    "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = 61, ulSupportedOltPortTypeNumIndex = 2";

const RefusalRow kRefusals[] = {
    {{"NameTooLong", PortTypeTable::kLoaded, k60, -33}, kName60},
    {{"NameFarTooLong", PortTypeTable::kLoaded, string(1000, 'p'), -33},
     "\r\nddIsOltPortTypeSupportedByName err! strlen(strOltPortTypeName) = 1000"},
    {{"NameTooLongForACorruptCount", PortTypeTable::kCorrupt, k60, -33}, kName60},
    {{"NameTooLongForNoArray", PortTypeTable::kNone, k60, -33}, kName60},
    {{"CorruptCount", PortTypeTable::kCorrupt, "GPON", -11}, kCount31},
    {{"CorruptCountAndNoArray", PortTypeTable::kCorruptNone, "GPON", -11}, kCount31},
    {{"LargestCount", PortTypeTable::kCorruptMost, "GPON", -11},
     "\r\nddIsOltPortTypeSupportedByName err! ulSupportedOltPortTypeNum = -1"},
    {{"NoArray", PortTypeTable::kNone, "GPON", -11}, kNoArray},
    {{"NoArrayButACount", PortTypeTable::kNoneButCount, "GPON", -11}, kNoArray},
    {{"AtACorruptLength", PortTypeTable::kLengthTooLarge, "gpon", -33}, kLength61},
    {{"BehindACorruptLength", PortTypeTable::kLengthTooLarge, "WIDE", -33}, kLength61},
    {{"UnknownWithACorruptLength", PortTypeTable::kLengthTooLarge, "EPON", -33}, kLength61},
    {{"LargestLength", PortTypeTable::kLengthFarTooLarge, "WIDE", -33},
     "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = -1, ulSupportedOltPortTypeNumIndex = 2"},
};
INSTANTIATE_TEST_SUITE_P(Names, PortTypeRefusal, testing::ValuesIn(kRefusals),
                         testing::PrintToStringParamName());

TEST_F(PortTypeNames, PlacesOfACorruptLengthCountEmptyOnes) {
  Put(PortTypeTable::kEmptyPlaces);
  placed_.records[2].ulNameLen = 61;  // at place 4
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
  placed_.records[1].ulNameLen = 2;  // "XG"
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
