// Copies of ONU port types by name. Lookups in front of the library's own give the
// answers that these never give.
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "catalog/onu/port_type_family.h"
#include "support/faults.h"

namespace {

struct Answer {
  int32_t code;
  uint32_t is_supported;
  uint32_t index;
};
std::optional<Answer> scripted;    // instead of what the table holds
std::vector<std::string> lookups;  // that were asked: the catalog and the name

using Lookup = int32_t(const char* name, uint32_t* is_supported, uint32_t* index);

int32_t LookUp(const char* catalog, Lookup* real, const char* name, uint32_t* is_supported,
               uint32_t* index) {
  lookups.push_back(std::string(catalog) + " " + (name == nullptr ? "null" : name));
  if (!scripted) {
    return real(name, is_supported, index);
  }
  *is_supported = scripted->is_supported;
  *index = scripted->index;
  return scripted->code;
}

}  // namespace

#define STAND_IN(catalog)                                                                        \
  extern "C" {                                                                                   \
  int32_t __real_ddIsOnu##catalog##TypeSupportedByName(const char* name, uint32_t* is_supported, \
                                                       uint32_t* index);                         \
  int32_t __wrap_ddIsOnu##catalog##TypeSupportedByName(const char* name, uint32_t* is_supported, \
                                                       uint32_t* index);                         \
  int32_t __wrap_ddIsOnu##catalog##TypeSupportedByName(const char* name, uint32_t* is_supported, \
                                                       uint32_t* index) {                        \
    return LookUp(#catalog, __real_ddIsOnu##catalog##TypeSupportedByName, name, is_supported,    \
                  index);                                                                        \
  }                                                                                              \
  }
STAND_IN(Pon)
STAND_IN(Lan)
STAND_IN(Pots)
STAND_IN(SpecialPort)

namespace {

using std::string;
using test::Hex;
using test::kPortTypeFamilies;
using test::PortType;
using test::PortTypeFamily;
using test::PortTypeTable;
using test::With;

PortType* const kUntouched = reinterpret_cast<PortType*>(0x1234);
const string k59(59, 'p');
const string k60(60, 'p');

struct Releaser {
  void operator()(PortType* copy) const { std::free(copy); }
};
using Owned = std::unique_ptr<PortType, Releaser>;

class OnuPortTypeCopies : public test::OnuPortTypesTest {
 protected:
  void SetUp() override {
    OnuPortTypesTest::SetUp();
    scripted.reset();
    lookups.clear();
  }
  void TearDown() override {
    scripted.reset();
    OnuPortTypesTest::TearDown();
  }

  // Asks for `name`; a copy of the record must come.
  void ExpectCopy(const PortTypeFamily& family, const string& name, const PortType& record);

  // What the catalog's copy says, with this debug switch.
  static string Said(const PortTypeFamily& family, int32_t debug, const string& text) {
    return family.copies_aloud || debug != 0 ? text : "";
  }
};

void OnuPortTypeCopies::ExpectCopy(const PortTypeFamily& family, const string& name,
                                   const PortType& record) {
  const PortType before = record;
  PortType* copy = kUntouched;
  lookups.clear();
  test::Faults faults;
  ASSERT_EQ(family.copy(name.c_str(), &copy), 0);
  EXPECT_EQ(lookups, std::vector<string>{string(family.name) + " " + name});
  ASSERT_EQ(faults.blocks.size(), 1u);
  ASSERT_EQ(faults.blocks.count(copy), 1u);
  EXPECT_EQ(faults.blocks.at(copy), sizeof(PortType));
  const Owned owner(copy);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(copy->ulPortType, record.ulPortType);
  EXPECT_EQ(copy->ulNameLen, record.ulNameLen);
  string field(record.acName, record.ulNameLen);
  field.resize(60);  // the rest is zero
  EXPECT_EQ(string(copy->acName, sizeof copy->acName), field);
  EXPECT_EQ(std::memcmp(&record, &before, sizeof record), 0);
}

// ---- Copies --------------------------------------------------------------------

struct CopyRow {
  const char* name;
  PortTypeTable types;
  string asked;
  size_t record;
  friend std::ostream& operator<<(std::ostream& out, const CopyRow& row) { return out << row.name; }
};

class CopyOnuPortType : public OnuPortTypeCopies,
                        public testing::WithParamInterface<std::tuple<PortTypeFamily, CopyRow>> {};

TEST_P(CopyOnuPortType, ByName) {
  const auto& [family, row] = GetParam();
  Put(family, row.types);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    ExpectCopy(family, row.asked, placed_.records[row.record]);
  }
}

const CopyRow kCopies[] = {
    {"FirstOfTwo", PortTypeTable::kLoaded, "GPON", 0},
    {"Second", PortTypeTable::kLoaded, "XGPON", 1},
    {"OtherCaseIsAnotherName", PortTypeTable::kLoaded, "gpon", 2},
    {"LongestName", PortTypeTable::kLoaded, k59, 4},
    {"EmptyName", PortTypeTable::kLoaded, "", 5},
    {"TypeZero", PortTypeTable::kLoaded, "ZERO", 6},
    {"BehindEmptyPlaces", PortTypeTable::kEmptyPlaces, "XGPON", 1},
    {"LastOfAFullTable", PortTypeTable::kFull, "T30", 29},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, CopyOnuPortType,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kCopies)),
                         test::KindAndRow());

// ---- Failures ------------------------------------------------------------------

struct FailRow {
  const char* name;
  PortTypeTable types;
  string asked;
  int32_t code;
  string length = "";  // of a name too long
  // What the lookup says in front, and what it shows.
  const char* PortTypeFamily::*debug_text = nullptr;
  string shown = "";
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToCopyOnuPortType
    : public OnuPortTypeCopies,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, FailRow>> {};

TEST_P(FailToCopyOnuPortType, GivesNoCopy) {
  const auto& [family, row] = GetParam();
  Put(family, row.types);
  string text = With(family.copy_too_long, "{n}", row.length);
  if (row.length.empty()) {
    text = With(With(family.copy_lookup, "{code}", std::to_string(row.code)), "{n}", "0");
    text = With(text, "{name}", row.asked);
  }
  const string lookup = row.debug_text == nullptr ? "" : family.*row.debug_text;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PortType* copy = kUntouched;
    test::Faults faults;
    EXPECT_EQ(family.copy(row.asked.c_str(), &copy), row.code);
    EXPECT_EQ(copy, nullptr);
    EXPECT_EQ(console_.Text(),
              (debug != 0 ? With(With(lookup, "{n}", row.shown), "{place}", "2") : "") +
                  Said(family, debug, text));
    EXPECT_EQ(faults.allocations.count(), 0);
  }
  EXPECT_EQ(lookups.size(), row.length.empty() ? 2u : 0u);
}

const FailRow kFails[] = {
    {"NameTooLong", PortTypeTable::kLoaded, k60, -33, "60"},
    {"NameFarTooLong", PortTypeTable::kLoaded, string(1000, 'p'), -33, "1000"},
    {"NameTooLongForACorruptCount", PortTypeTable::kCorrupt, k60, -33, "60"},
    {"NameTooLongForNoArray", PortTypeTable::kNone, k60, -33, "60"},
    {"Unknown", PortTypeTable::kLoaded, "EPON", -32},
    {"UnknownAndLongest", PortTypeTable::kLoaded, string(59, 'q'), -32},
    {"OtherCase", PortTypeTable::kLoaded, "Gpon", -32},
    {"OfAnotherCatalog", PortTypeTable::kLoaded, "OTHER", -32},
    {"EmptyNameIsUnknown", PortTypeTable::kFull, "", -32},
    {"NoRecords", PortTypeTable::kNoRecords, "GPON", -32},
    {"CorruptCount", PortTypeTable::kCorrupt, "GPON", -16, "", &PortTypeFamily::by_name_count,
     "31"},
    {"LargestCount", PortTypeTable::kCorruptMost, "GPON", -16, "", &PortTypeFamily::by_name_count,
     "-1"},
    {"NoArray", PortTypeTable::kNone, "GPON", -10, "", &PortTypeFamily::by_name_array},
    {"CorruptLength", PortTypeTable::kLengthTooLarge, "WIDE", -33, "",
     &PortTypeFamily::by_name_length, "61"},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, FailToCopyOnuPortType,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kFails)),
                         test::KindAndRow());

// ---- Answers that the lookup never gives -----------------------------------------

struct AnswerRow {
  const char* name;
  Answer answer;
  int32_t code;
  const char* PortTypeFamily::*text;
  string index;
  int allocations = 0;
  int failing_allocation = 0;
  friend std::ostream& operator<<(std::ostream& out, const AnswerRow& row) {
    return out << row.name;
  }
};

class OddOnuPortTypeAnswer
    : public OnuPortTypeCopies,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, AnswerRow>> {};

TEST_P(OddOnuPortTypeAnswer, GivesNoCopy) {
  const auto& [family, row] = GetParam();
  Put(family, PortTypeTable::kEmptyPlaces);  // without records from place 10 on
  placed_.slots.resize(40);
  *family.types = placed_.slots.data();
  scripted = row.answer;
  string text = With(With(family.*row.text, "{code}", std::to_string(row.code)), "{name}", "GPON");
  text = With(text, "{n}", row.index);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PortType* copy = kUntouched;
    test::Faults faults;
    faults.allocations.FailFrom(row.failing_allocation, 1);
    EXPECT_EQ(family.copy("GPON", &copy), row.code);
    EXPECT_EQ(copy, nullptr);
    EXPECT_EQ(console_.Text(), Said(family, debug, text));
    EXPECT_EQ(faults.allocations.count(), row.allocations);
    EXPECT_TRUE(faults.blocks.empty());
  }
}

AnswerRow Refused(const char* name, const Answer& answer, const string& index) {
  return {name, answer, answer.code, &PortTypeFamily::copy_lookup, index};
}
AnswerRow NotSupported(const char* name, uint32_t index) {
  return {name, {0, 0, index}, -32, &PortTypeFamily::copy_unsupported, ""};
}
AnswerRow IndexTooLarge(const char* name, uint32_t index, const string& shown) {
  return {name, {0, 1, index}, -16, &PortTypeFamily::copy_index, shown};
}
AnswerRow EmptyPlace(const char* name, uint32_t index, const string& shown) {
  return {name, {0, 1, index}, -2, &PortTypeFamily::copy_empty_place, shown, 1};
}

const AnswerRow kAnswers[] = {
    Refused("AnotherCode", {-5, 1, 7}, "7"),
    Refused("ACodeAboveZero", {3, 1, 1}, "1"),
    Refused("AnotherCodeWithAnIndexTooLarge", {-1, 0, 31}, "31"),
    NotSupported("NotSupported", 1),
    NotSupported("NotSupportedWithAnIndexTooLarge", 31),
    IndexTooLarge("IndexTooLarge", 31, "31"),
    IndexTooLarge("IndexFarTooLarge", 0xffffffff, "-1"),
    EmptyPlace("EmptyPlaceAtTheStart", 0, "0"),
    EmptyPlace("EmptyPlace", 2, "2"),
    EmptyPlace("EmptyPlaceOnePastTheCapacity", 30, "30"),
    {"NoMemoryForAnEmptyPlace", {0, 1, 2}, -27, &PortTypeFamily::copy_no_memory, "2", 1, 1},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, OddOnuPortTypeAnswer,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kAnswers)),
                         test::KindAndRow());

// ---- Every catalog ---------------------------------------------------------------

class CopyFromOnuPortTypes : public OnuPortTypeCopies,
                             public testing::WithParamInterface<PortTypeFamily> {};

TEST_P(CopyFromOnuPortTypes, EveryCopyIsItsOwn) {
  Put(GetParam(), PortTypeTable::kLoaded);
  const PortType before = placed_.records[0];
  PortType* copies[2] = {};
  ASSERT_EQ(GetParam().copy("GPON", &copies[0]), 0);
  ASSERT_EQ(GetParam().copy("GPON", &copies[1]), 0);
  Owned first(copies[0]);
  const Owned second(copies[1]);
  ASSERT_NE(first, second);
  std::memset(first.get(), 'x', sizeof(PortType));
  first.reset();
  EXPECT_EQ(second->ulPortType, 1u);
  EXPECT_EQ(second->ulNameLen, 5u);
  EXPECT_STREQ(second->acName, "GPON");
  EXPECT_EQ(std::memcmp(&placed_.records[0], &before, sizeof before), 0);
  placed_.records[0] = {};
  EXPECT_EQ(second->ulPortType, 1u);
  EXPECT_STREQ(second->acName, "GPON");
}

TEST_P(CopyFromOnuPortTypes, NullArgumentsTouchNothing) {
  Put(GetParam(), PortTypeTable::kLoaded);
  const string long_name = k60;  // looked at later only
  PortType* copy = kUntouched;
  for (const int32_t debug : {0, 1}) {
    for (unsigned given = 0; given < 3; ++given) {
      const char* const name = (given & 1) != 0 ? long_name.c_str() : nullptr;
      PortType** const output = (given & 2) != 0 ? &copy : nullptr;
      ddDebugPrint = debug;
      test::Faults faults;
      EXPECT_EQ(GetParam().copy(name, output), -2);
      EXPECT_EQ(faults.allocations.count(), 0);
      const string text = With(GetParam().copy_null, "{name}", Hex(name));
      EXPECT_EQ(console_.Text(), Said(GetParam(), debug, With(text, "{out0}", Hex(output))))
          << "given, as bits: " << given;
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
  EXPECT_EQ(copy, kUntouched);
  EXPECT_TRUE(lookups.empty());
}

TEST_P(CopyFromOnuPortTypes, NoMemory) {
  Put(GetParam(), PortTypeTable::kEmptyPlaces);
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      ddDebugPrint = debug;
      PortType* copy = kUntouched;
      test::Faults faults;
      faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(GetParam().copy("XGPON", &copy), -27);
      EXPECT_EQ(copy, nullptr);
      EXPECT_EQ(console_.Text(),
                Said(GetParam(), debug, With(GetParam().copy_no_memory, "{n}", "3")));
      EXPECT_TRUE(faults.blocks.empty());
    }
  }
}

// The bound lets one place more through than a table has.
TEST_P(CopyFromOnuPortTypes, OnePastTheCapacityIsLetThrough) {
  Put(GetParam(), PortTypeTable::kFull);
  PortType beyond = test::OnuPortTypeRecord(31, "T31");
  placed_.slots.push_back(&beyond);
  *GetParam().types = placed_.slots.data();
  scripted = Answer{0, 1, 30};
  ExpectCopy(GetParam(), "T31", beyond);
}

// The place that the lookup gives decides, not the name.
TEST_P(CopyFromOnuPortTypes, ThePlaceDecides) {
  Put(GetParam(), PortTypeTable::kLoaded);
  scripted = Answer{0, 1, 4};
  ExpectCopy(GetParam(), "GPON", placed_.records[4]);
  scripted = Answer{0, 2, 4};  // anything but 0 is supported
  ExpectCopy(GetParam(), "GPON", placed_.records[4]);
}

// As many bytes as the record says, be there a terminator among them or not.
TEST_P(CopyFromOnuPortTypes, TheStoredLengthIsCopied) {
  Put(GetParam(), PortTypeTable::kLoaded);
  placed_.records[1].ulNameLen = 2;  // "XG"
  ExpectCopy(GetParam(), "XGXXX", placed_.records[1]);
  scripted = Answer{0, 1, 4};
  std::memset(placed_.records[4].acName, 'p', sizeof placed_.records[4].acName);
  ExpectCopy(GetParam(), "GPON", placed_.records[4]);
}
INSTANTIATE_TEST_SUITE_P(PortTypes, CopyFromOnuPortTypes, testing::ValuesIn(kPortTypeFamilies),
                         testing::PrintToStringParamName());

}  // namespace
