// Asking whether there is an ONU port type of a number. The catalogs answer differently
// when there is none, and when they meet a record whose name is too long.
#include <optional>
#include <ostream>
#include <string>
#include <tuple>

#include "catalog/onu/port_type_family.h"

namespace {

using std::string;
using test::Hex;
using test::kPortTypeFamilies;
using test::PortTypeFamily;
using test::PortTypeTable;
using test::With;

constexpr uint32_t kUntouched = 77;

// ---- Found or not --------------------------------------------------------------

struct TypeRow {
  const char* name;
  PortTypeTable types;
  uint32_t asked;
  std::optional<uint32_t> place;  // none: there is no such type
  friend std::ostream& operator<<(std::ostream& out, const TypeRow& row) { return out << row.name; }
};

class OnuPortTypeByType : public test::OnuPortTypesTest,
                          public testing::WithParamInterface<std::tuple<PortTypeFamily, TypeRow>> {
};

TEST_P(OnuPortTypeByType, GivesThePlaceOfTheFirst) {
  const auto& [family, row] = GetParam();
  Put(family, row.types);
  const uint32_t unknown = family.unknown_clears_index ? 0 : kUntouched;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t is_supported = kUntouched;
    uint32_t index = kUntouched;
    EXPECT_EQ(family.by_type(row.asked, &is_supported, &index),
              row.place ? 0 : family.unknown_type);
    EXPECT_EQ(is_supported, row.place ? 1u : 0u);
    EXPECT_EQ(index, row.place.value_or(unknown));
    EXPECT_EQ(console_.Text(), "");
  }
}

const TypeRow kTypes[] = {
    {"FirstOfTwo", PortTypeTable::kLoaded, 1, 0},
    {"Second", PortTypeTable::kLoaded, 2, 1},
    {"Largest", PortTypeTable::kLoaded, 0xffffffff, 5},
    {"Zero", PortTypeTable::kLoaded, 0, 6},
    {"Last", PortTypeTable::kLoaded, 5, 7},
    {"Unknown", PortTypeTable::kLoaded, 3, {}},
    {"OfAnotherCatalog", PortTypeTable::kLoaded, 1000, {}},
    {"SameLowByte", PortTypeTable::kLoaded, 0x101, {}},
    {"SameLowHalf", PortTypeTable::kLoaded, 0x10001, {}},
    {"SameLowBits", PortTypeTable::kLoaded, 0x80000001, {}},
    {"BehindAnEmptyPlace", PortTypeTable::kEmptyPlaces, 1, 1},
    {"BehindTwoEmptyPlaces", PortTypeTable::kEmptyPlaces, 2, 3},
    {"UnknownWithEmptyPlaces", PortTypeTable::kEmptyPlaces, 3, {}},
    {"FirstOfAFullTable", PortTypeTable::kFull, 1, 0},
    {"LastOfAFullTable", PortTypeTable::kFull, 30, 29},
    {"UnknownInAFullTable", PortTypeTable::kFull, 31, {}},
    {"NoRecords", PortTypeTable::kNoRecords, 1, {}},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, OnuPortTypeByType,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kTypes)),
                         test::KindAndRow());

// ---- Tables that cannot be searched ----------------------------------------------

struct RefusalRow {
  const char* name;
  PortTypeTable types;
  int32_t code;
  const char* PortTypeFamily::*debug_text;
  string count;
  friend std::ostream& operator<<(std::ostream& out, const RefusalRow& row) {
    return out << row.name;
  }
};

class NoOnuPortTypeByType
    : public test::OnuPortTypesTest,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, RefusalRow>> {};

TEST_P(NoOnuPortTypeByType, OfACorruptTable) {
  const auto& [family, row] = GetParam();
  Put(family, row.types);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t is_supported = kUntouched;
    uint32_t index = kUntouched;
    EXPECT_EQ(family.by_type(1, &is_supported, &index), row.code);
    EXPECT_EQ(is_supported, 0u);
    EXPECT_EQ(index, 0u);
    EXPECT_EQ(console_.Text(), debug != 0 ? With(family.*row.debug_text, "{n}", row.count) : "");
  }
}

const RefusalRow kRefusals[] = {
    {"CorruptCount", PortTypeTable::kCorrupt, -16, &PortTypeFamily::by_type_count, "31"},
    {"CorruptCountAndNoArray", PortTypeTable::kCorruptNone, -16, &PortTypeFamily::by_type_count,
     "31"},
    {"LargestCount", PortTypeTable::kCorruptMost, -16, &PortTypeFamily::by_type_count, "-1"},
    {"NoArray", PortTypeTable::kNone, -10, &PortTypeFamily::by_type_array, ""},
    {"NoArrayButACount", PortTypeTable::kNoneButCount, -10, &PortTypeFamily::by_type_array, ""},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, NoOnuPortTypeByType,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kRefusals)),
                         test::KindAndRow());

// ---- Names too long for their field ------------------------------------------------

struct LengthRow {
  const char* name;
  PortTypeTable types;
  uint32_t asked;
  std::optional<uint32_t> place;  // for those who do not mind
  string length;                  // that the others show; "": they do not get there
  friend std::ostream& operator<<(std::ostream& out, const LengthRow& row) {
    return out << row.name;
  }
};

class OnuPortTypeLength
    : public test::OnuPortTypesTest,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, LengthRow>> {};

TEST_P(OnuPortTypeLength, StopsTheSearchOfSome) {
  const auto& [family, row] = GetParam();
  Put(family, row.types);
  const bool stops = family.by_type_length != nullptr && !row.length.empty();
  int32_t code = row.place ? 0 : family.unknown_type;
  uint32_t place = row.place.value_or(0);
  string text;
  if (stops) {
    code = -33;
    place = 0;
    text = With(With(family.by_type_length, "{n}", row.length), "{place}", "2");
  }
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t is_supported = kUntouched;
    uint32_t index = kUntouched;
    EXPECT_EQ(family.by_type(row.asked, &is_supported, &index), code);
    EXPECT_EQ(is_supported, code == 0 ? 1u : 0u);
    EXPECT_EQ(index, place);
    EXPECT_EQ(console_.Text(), debug != 0 ? text : "");
  }
}

const LengthRow kLengths[] = {
    {"InFront", PortTypeTable::kLengthTooLarge, 2, 1, ""},
    {"There", PortTypeTable::kLengthTooLarge, 7, 2, "61"},
    {"Behind", PortTypeTable::kLengthTooLarge, 5, 7, "61"},
    {"Unknown", PortTypeTable::kLengthTooLarge, 3, {}, "61"},
    {"LargestLength", PortTypeTable::kLengthFarTooLarge, 5, 7, "-1"},
    {"LongestAllowed", PortTypeTable::kLoaded, 0, 6, ""},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, OnuPortTypeLength,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kLengths)),
                         test::KindAndRow());

// ---- Every catalog ---------------------------------------------------------------

class OnuPortTypeNumbers : public test::OnuPortTypesTest,
                           public testing::WithParamInterface<PortTypeFamily> {};

TEST_P(OnuPortTypeNumbers, NullArgumentsTouchNothing) {
  Put(GetParam(), PortTypeTable::kCorruptNone);  // looked at later only
  uint32_t is_supported = 77;
  uint32_t index = 78;
  for (const int32_t debug : {0, 1}) {
    for (unsigned given = 0; given < 3; ++given) {
      uint32_t* const out0 = (given & 1) != 0 ? &is_supported : nullptr;
      uint32_t* const out1 = (given & 2) != 0 ? &index : nullptr;
      ddDebugPrint = debug;
      EXPECT_EQ(GetParam().by_type(1, out0, out1), -2);
      EXPECT_EQ(console_.Text(),
                debug != 0
                    ? With(With(GetParam().by_type_null, "{out0}", Hex(out0)), "{out1}", Hex(out1))
                    : "")
          << "given, as bits: " << given;
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
  EXPECT_EQ(is_supported, 77u);
  EXPECT_EQ(index, 78u);
}

// Empty places count in the place that is shown.
TEST_P(OnuPortTypeNumbers, PlacesOfACorruptLengthCountEmptyOnes) {
  Put(GetParam(), PortTypeTable::kEmptyPlaces);
  placed_.records[2].ulNameLen = 61;  // at place 4
  const bool stops = GetParam().by_type_length != nullptr;
  ddDebugPrint = 1;
  uint32_t is_supported = kUntouched;
  uint32_t index = kUntouched;
  EXPECT_EQ(GetParam().by_type(5, &is_supported, &index), stops ? -33 : 0);
  EXPECT_EQ(is_supported, stops ? 0u : 1u);
  EXPECT_EQ(index, stops ? 0u : 9u);
  EXPECT_EQ(console_.Text(),
            stops ? With(With(GetParam().by_type_length, "{n}", "61"), "{place}", "4") : "");
}
INSTANTIATE_TEST_SUITE_P(PortTypes, OnuPortTypeNumbers, testing::ValuesIn(kPortTypeFamilies),
                         testing::PrintToStringParamName());

}  // namespace
