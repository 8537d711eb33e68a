// Asking whether there is an ONU port type of a name.
#include <ostream>
#include <string>
#include <tuple>

#include "catalog/onu/port_type_family.h"
#include "catalog/port_type_names.h"

namespace {

using std::string;
using test::Hex;
using test::kPortTypeFamilies;
using test::PortTypeFamily;
using test::PortTypeNameRow;
using test::PortTypeTable;
using test::With;

class OnuPortTypeLookup
    : public test::OnuPortTypesTest,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, PortTypeNameRow>> {};

TEST_P(OnuPortTypeLookup, ByName) {
  const auto& [family, row] = GetParam();
  Put(family, row.types);
  test::ExpectPortTypeNameAnswered(console_, family.by_name, row);
}
INSTANTIATE_TEST_SUITE_P(Names, OnuPortTypeLookup,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(test::kPortTypeNames)),
                         test::KindAndRow());

const PortTypeNameRow kOtherCatalogs[] = {
    {"OfAnotherCatalog", PortTypeTable::kLoaded, "OTHER", -32},
};
INSTANTIATE_TEST_SUITE_P(OtherNames, OnuPortTypeLookup,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kOtherCatalogs)),
                         test::KindAndRow());

struct RefusalRow : PortTypeNameRow {
  const char* PortTypeFamily::*debug_text;
  string shown = "";  // the length or count
};

class OnuPortTypeRefusal
    : public test::OnuPortTypesTest,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, RefusalRow>> {};

TEST_P(OnuPortTypeRefusal, ByName) {
  const auto& [family, row] = GetParam();
  Put(family, row.types);
  test::ExpectPortTypeNameAnswered(
      console_, family.by_name, row,
      With(With(family.*row.debug_text, "{n}", row.shown), "{place}", "2"));
}

const string k60(60, 'p');

constexpr auto kTooLong = &PortTypeFamily::by_name_too_long;
constexpr auto kCount = &PortTypeFamily::by_name_count;
constexpr auto kArray = &PortTypeFamily::by_name_array;
constexpr auto kLength = &PortTypeFamily::by_name_length;

const RefusalRow kRefusals[] = {
    {{"NameTooLong", PortTypeTable::kLoaded, k60, -33}, kTooLong, "60"},
    {{"NameFarTooLong", PortTypeTable::kLoaded, string(1000, 'p'), -33}, kTooLong, "1000"},
    {{"NameTooLongForACorruptCount", PortTypeTable::kCorrupt, k60, -33}, kTooLong, "60"},
    {{"NameTooLongForNoArray", PortTypeTable::kNone, k60, -33}, kTooLong, "60"},
    {{"CorruptCount", PortTypeTable::kCorrupt, "GPON", -16}, kCount, "31"},
    {{"CorruptCountAndNoArray", PortTypeTable::kCorruptNone, "GPON", -16}, kCount, "31"},
    {{"LargestCount", PortTypeTable::kCorruptMost, "GPON", -16}, kCount, "-1"},
    {{"NoArray", PortTypeTable::kNone, "GPON", -10}, kArray},
    {{"NoArrayButACount", PortTypeTable::kNoneButCount, "GPON", -10}, kArray},
    {{"AtACorruptLength", PortTypeTable::kLengthTooLarge, "gpon", -33}, kLength, "61"},
    {{"BehindACorruptLength", PortTypeTable::kLengthTooLarge, "WIDE", -33}, kLength, "61"},
    {{"UnknownWithACorruptLength", PortTypeTable::kLengthTooLarge, "EPON", -33}, kLength, "61"},
    {{"LargestLength", PortTypeTable::kLengthFarTooLarge, "WIDE", -33}, kLength, "-1"},
};
INSTANTIATE_TEST_SUITE_P(Names, OnuPortTypeRefusal,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kRefusals)),
                         test::KindAndRow());

class OnuPortTypeNames : public test::OnuPortTypesTest,
                         public testing::WithParamInterface<PortTypeFamily> {};

TEST_P(OnuPortTypeNames, PlacesOfACorruptLengthCountEmptyOnes) {
  Put(GetParam(), PortTypeTable::kEmptyPlaces);
  placed_.records[2].ulNameLen = 61;  // at place 4
  ddDebugPrint = 1;
  uint32_t is_supported = 77;
  uint32_t index = 77;
  EXPECT_EQ(GetParam().by_name("WIDE", &is_supported, &index), -33);
  EXPECT_EQ(is_supported, 0u);
  EXPECT_EQ(index, 0u);
  EXPECT_EQ(console_.Text(), With(With(GetParam().by_name_length, "{n}", "61"), "{place}", "4"));
}

TEST_P(OnuPortTypeNames, OnlyTheStoredLengthIsCompared) {
  Put(GetParam(), PortTypeTable::kLoaded);
  placed_.records[1].ulNameLen = 2;  // "XG"
  uint32_t is_supported = 77;
  uint32_t index = 77;
  EXPECT_EQ(GetParam().by_name("XGXXX", &is_supported, &index), 0);
  EXPECT_EQ(is_supported, 1u);
  EXPECT_EQ(index, 1u);
  EXPECT_EQ(GetParam().by_name("XE", &is_supported, &index), -32);
  EXPECT_EQ(is_supported, 0u);
  EXPECT_EQ(index, 0u);
}

TEST_P(OnuPortTypeNames, NullArgumentsTouchNothing) {
  Put(GetParam(), PortTypeTable::kCorruptNone);  // looked at later only
  const string long_name = k60;                  // and so is this
  uint32_t is_supported = 77;
  uint32_t index = 78;
  for (const int32_t debug : {0, 1}) {
    for (unsigned given = 0; given < 7; ++given) {
      const char* const name = (given & 1) != 0 ? long_name.c_str() : nullptr;
      uint32_t* const out0 = (given & 2) != 0 ? &is_supported : nullptr;
      uint32_t* const out1 = (given & 4) != 0 ? &index : nullptr;
      ddDebugPrint = debug;
      EXPECT_EQ(GetParam().by_name(name, out0, out1), -2);
      const string text = With(GetParam().by_name_null, "{name}", Hex(name));
      EXPECT_EQ(console_.Text(),
                debug != 0 ? With(With(text, "{out0}", Hex(out0)), "{out1}", Hex(out1)) : "")
          << "given, as bits: " << given;
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
  EXPECT_EQ(is_supported, 77u);
  EXPECT_EQ(index, 78u);
}
INSTANTIATE_TEST_SUITE_P(PortTypes, OnuPortTypeNames, testing::ValuesIn(kPortTypeFamilies),
                         testing::PrintToStringParamName());

}  // namespace
