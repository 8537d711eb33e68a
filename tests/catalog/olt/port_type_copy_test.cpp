// Copies of OLT port types by name. A lookup in front of the library's own gives
// the answers that it never gives.
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "catalog/olt/port_types.h"
#include "support/faults.h"
#include "support/text.h"

namespace {

struct Answer {
  int32_t code;
  uint32_t is_supported;
  uint32_t index;
};
std::optional<Answer> scripted;  // instead of what the table holds

}  // namespace

extern "C" {

int32_t __real_ddIsOltPortTypeSupportedByName(const char* name, uint32_t* is_supported,
                                              uint32_t* index);
int32_t __wrap_ddIsOltPortTypeSupportedByName(const char* name, uint32_t* is_supported,
                                              uint32_t* index);

int32_t __wrap_ddIsOltPortTypeSupportedByName(const char* name, uint32_t* is_supported,
                                              uint32_t* index) {
  if (!scripted) {
    return __real_ddIsOltPortTypeSupportedByName(name, is_supported, index);
  }
  *is_supported = scripted->is_supported;
  *index = scripted->index;
  return scripted->code;
}

}  // extern "C"

namespace {

using std::string;
using test::Hex;
using test::PortTypeTable;

OltPortInformation* const kUntouched = reinterpret_cast<OltPortInformation*>(0x1234);
const string k59(59, 'p');
const string k60(60, 'p');

class PortTypeCopies : public test::PortTypesTest {
 protected:
  void SetUp() override {
    PortTypesTest::SetUp();
    scripted.reset();
  }
  void TearDown() override {
    scripted.reset();
    PortTypesTest::TearDown();
  }

  // Asks for `name`; a copy of the record must come.
  void ExpectCopy(const string& name, const OltPortInformation& record);
};

void PortTypeCopies::ExpectCopy(const string& name, const OltPortInformation& record) {
  const OltPortInformation before = record;
  OltPortInformation* copy = kUntouched;
  test::Faults faults;
  ASSERT_EQ(ddCreateOneOltPortObjByName(name.c_str(), &copy), 0);
  ASSERT_EQ(faults.blocks.size(), 1u);
  ASSERT_EQ(faults.blocks.count(copy), 1u);
  EXPECT_EQ(faults.blocks.at(copy), sizeof(OltPortInformation));
  const std::unique_ptr<OltPortInformation, decltype(&std::free)> owner(copy, &std::free);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(copy->ulPortType, record.ulPortType);
  EXPECT_EQ(copy->ulNameLen, record.ulNameLen);
  string field(record.acName, record.ulNameLen);
  field.resize(60);  // the rest is zero
  EXPECT_EQ(string(copy->acName, sizeof copy->acName), field);
  EXPECT_EQ(copy->ulSplittingRatio, record.ulSplittingRatio);
  EXPECT_EQ(copy->ulLink, 0u);
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

class CopyPortType : public PortTypeCopies, public testing::WithParamInterface<CopyRow> {};

TEST_P(CopyPortType, ByName) {
  Put(GetParam().types);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    ExpectCopy(GetParam().asked, placed_.records[GetParam().record]);
  }
}

const CopyRow kCopies[] = {
    {"FirstOfTwo", PortTypeTable::kLoaded, "GPON", 0},
    {"Second", PortTypeTable::kLoaded, "XGPON", 1},
    {"OtherCaseIsAnotherName", PortTypeTable::kLoaded, "gpon", 2},
    {"LongestName", PortTypeTable::kLoaded, k59, 4},
    {"EmptyName", PortTypeTable::kLoaded, "", 5},
    {"RatioTooLarge", PortTypeTable::kLoaded, "ZERO", 6},
    {"RatioFarTooLarge", PortTypeTable::kLoaded, "WIDE", 7},
    {"BehindEmptyPlaces", PortTypeTable::kEmptyPlaces, "XGPON", 1},
    {"LastOfAFullTable", PortTypeTable::kFull, "T30", 29},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, CopyPortType, testing::ValuesIn(kCopies),
                         testing::PrintToStringParamName());

TEST_F(PortTypeCopies, EveryCopyIsABlockOfItsOwn) {
  Put(PortTypeTable::kLoaded);
  OltPortInformation* first = nullptr;
  OltPortInformation* second = nullptr;
  ASSERT_EQ(ddCreateOneOltPortObjByName("GPON", &first), 0);
  ASSERT_EQ(ddCreateOneOltPortObjByName("GPON", &second), 0);
  EXPECT_NE(first, second);
  EXPECT_NE(first, &placed_.records[0]);
  EXPECT_NE(second, &placed_.records[0]);
  std::free(first);
  std::free(second);
}

// ---- Failures ------------------------------------------------------------------

struct FailRow {
  const char* name;
  PortTypeTable types;
  string asked;
  int32_t code;
  string debug_console;  // the lookup's words, in front
  string console;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToCopyPortType : public PortTypeCopies, public testing::WithParamInterface<FailRow> {};

TEST_P(FailToCopyPortType, GivesNoCopy) {
  Put(GetParam().types);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    OltPortInformation* copy = kUntouched;
    test::Faults faults;
    EXPECT_EQ(ddCreateOneOltPortObjByName(GetParam().asked.c_str(), &copy), GetParam().code);
    EXPECT_EQ(copy, nullptr);
    EXPECT_EQ(console_.Text(), (debug != 0 ? GetParam().debug_console : "") + GetParam().console);
    EXPECT_EQ(faults.allocations.count(), 0);
  }
}

string LookupFailed(const string& code, const string& name) {
  return "\r\nddCreateOneOltPortObjByName->ddIsOltPortTypeSupportedByName err! iResult = " + code +
         ", strOltPortTypeName = " + name + ", ulIndex = 0";
}

const FailRow kFails[] = {
    {"NameTooLong", PortTypeTable::kLoaded, k60, -33, "",
     "\r\nddCreateOneOltPortObjByName err! strlen(strOltPortTypeName) = 60"},
    {"NameFarTooLong", PortTypeTable::kLoaded, string(1000, 'p'), -33, "",
     "\r\nddCreateOneOltPortObjByName err! strlen(strOltPortTypeName) = 1000"},
    {"NameTooLongForACorruptCount", PortTypeTable::kCorrupt, k60, -33, "",
     "\r\nddCreateOneOltPortObjByName err! strlen(strOltPortTypeName) = 60"},
    {"Unknown", PortTypeTable::kLoaded, "EPON", -32, "", LookupFailed("-32", "EPON")},
    {"UnknownAndLongest", PortTypeTable::kLoaded, string(59, 'q'), -32, "",
     LookupFailed("-32", string(59, 'q'))},
    {"OtherCase", PortTypeTable::kLoaded, "Gpon", -32, "", LookupFailed("-32", "Gpon")},
    {"EmptyNameIsUnknown", PortTypeTable::kFull, "", -32, "", LookupFailed("-32", "")},
    {"CorruptCount", PortTypeTable::kCorrupt, "GPON", -11,
     "\r\nddIsOltPortTypeSupportedByName err! ulSupportedOltPortTypeNum = 31",
     LookupFailed("-11", "GPON")},
    {"NoArray", PortTypeTable::kNone, "GPON", -11,
     "\r\nddIsOltPortTypeSupportedByName err! pOltPortTypeArray = 0x0",
     LookupFailed("-11", "GPON")},
    {"CorruptLength", PortTypeTable::kLengthTooLarge, "WIDE", -33,
     "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = 61, ulSupportedOltPortTypeNumIndex = 2",
     LookupFailed("-33", "WIDE")},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, FailToCopyPortType, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

string NullArgument(const void* name, const void* output) {
  return "\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = " + Hex(name) +
         ", pulOltPortTypeObjAddr = " + Hex(output);
}

TEST_F(PortTypeCopies, NullArgumentsTouchNothing) {
  Put(PortTypeTable::kLoaded);
  const char* const name = k60.c_str();  // looked at later only
  OltPortInformation* copy = kUntouched;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    test::Faults faults;
    EXPECT_EQ(ddCreateOneOltPortObjByName(nullptr, &copy), -2);
    EXPECT_EQ(console_.Text(), NullArgument(nullptr, &copy));
    EXPECT_EQ(ddCreateOneOltPortObjByName(name, nullptr), -2);
    EXPECT_EQ(console_.Text(), NullArgument(name, nullptr));
    EXPECT_EQ(ddCreateOneOltPortObjByName(nullptr, nullptr), -2);
    EXPECT_EQ(console_.Text(),
              "\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = 0x0, "
              "pulOltPortTypeObjAddr = 0x0");
    EXPECT_EQ(faults.allocations.count(), 0);
  }
  EXPECT_EQ(copy, kUntouched);
}

TEST_F(PortTypeCopies, NoMemory) {
  Put(PortTypeTable::kEmptyPlaces);
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      ddDebugPrint = debug;
      OltPortInformation* copy = kUntouched;
      test::Faults faults;
      faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(ddCreateOneOltPortObjByName("XGPON", &copy), -27);
      EXPECT_EQ(copy, nullptr);
      EXPECT_EQ(console_.Text(),
                "\r\nddCreateOneOltPortObjByName->malloc err! pstOltPortInformationOut = 0x0, "
                "ulIndex = 3");
      EXPECT_TRUE(faults.blocks.empty());
    }
  }
}

// ---- Answers that the lookup never gives -----------------------------------------

struct AnswerRow {
  const char* name;
  Answer answer;
  int32_t code;
  string console;
  OltPortInformation* output = nullptr;
  int allocations = 0;
  int failing_allocation = 0;
  friend std::ostream& operator<<(std::ostream& out, const AnswerRow& row) {
    return out << row.name;
  }
};

class OddAnswer : public PortTypeCopies, public testing::WithParamInterface<AnswerRow> {};

TEST_P(OddAnswer, IsRefused) {
  Put(PortTypeTable::kEmptyPlaces);  // without records from place 10 on
  placed_.slots.resize(40);
  gstSupportedOltPortType.pOltPortTypeArray = placed_.slots.data();
  scripted = GetParam().answer;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    OltPortInformation* copy = kUntouched;
    test::Faults faults;
    faults.allocations.FailFrom(GetParam().failing_allocation, 1);
    EXPECT_EQ(ddCreateOneOltPortObjByName("GPON", &copy), GetParam().code);
    EXPECT_EQ(copy, GetParam().output);
    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(faults.allocations.count(), GetParam().allocations);
    EXPECT_TRUE(faults.blocks.empty());
  }
}

AnswerRow NotSupported(const char* name, uint32_t index) {
  return {name,
          {0, 0, index},
          -32,
          "\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = GPON, IsSupported = 0"};
}

AnswerRow IndexTooLarge(const char* name, uint32_t index, const string& printed) {
  return {name,
          {0, 1, index},
          -11,
          "\r\nddCreateOneOltPortObjByName err! strOltPortTypeName = GPON, ulIndex = " + printed};
}

AnswerRow EmptyPlace(const char* name, uint32_t index, const string& printed) {
  return {
      name,
      {0, 1, index},
      -2,
      "\r\nddCreateOneOltPortObjByName err! pstOltPortInformationSaved = 0x0, ulIndex = " + printed,
      kUntouched,
      1};
}

const AnswerRow kAnswers[] = {
    {"AnotherCode",
     {-5, 1, 7},
     -5,
     "\r\nddCreateOneOltPortObjByName->ddIsOltPortTypeSupportedByName err! iResult = -5, "
     "strOltPortTypeName = GPON, ulIndex = 7"},
    {"AnotherCodeWithAnIndexTooLarge",
     {-1, 0, 31},
     -1,
     "\r\nddCreateOneOltPortObjByName->ddIsOltPortTypeSupportedByName err! iResult = -1, "
     "strOltPortTypeName = GPON, ulIndex = 31"},
    NotSupported("NotSupported", 1),
    NotSupported("NotSupportedWithAnIndexTooLarge", 31),
    IndexTooLarge("IndexTooLarge", 31, "31"),
    IndexTooLarge("IndexFarTooLarge", 0xffffffff, "-1"),
    EmptyPlace("EmptyPlaceAtTheStart", 0, "0"),
    EmptyPlace("EmptyPlace", 2, "2"),
    EmptyPlace("EmptyPlaceOnePastTheCapacity", 30, "30"),
    {"NoMemoryForAnEmptyPlace",
     {0, 1, 2},
     -27,
     "\r\nddCreateOneOltPortObjByName->malloc err! pstOltPortInformationOut = 0x0, ulIndex = 2",
     nullptr,
     1,
     1},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, OddAnswer, testing::ValuesIn(kAnswers),
                         testing::PrintToStringParamName());

// The bound lets one place more through than a table has.
TEST_F(PortTypeCopies, OnePastTheCapacityIsLetThrough) {
  Put(PortTypeTable::kFull);
  OltPortInformation beyond = test::PortTypeRecord(31, "T31", 131);
  placed_.slots.push_back(&beyond);
  gstSupportedOltPortType.pOltPortTypeArray = placed_.slots.data();
  scripted = Answer{0, 1, 30};
  ExpectCopy("T31", beyond);
}

// The place that the lookup gives decides, not the name.
TEST_F(PortTypeCopies, ThePlaceDecides) {
  Put(PortTypeTable::kLoaded);
  scripted = Answer{0, 1, 4};
  ExpectCopy("GPON", placed_.records[4]);
}

// As many bytes as the record says, be there a terminator among them or not.
TEST_F(PortTypeCopies, TheStoredLengthIsCopied) {
  Put(PortTypeTable::kLoaded);
  placed_.records[1].ulNameLen = 2;  // "XG"
  ExpectCopy("XGXXX", placed_.records[1]);
  scripted = Answer{0, 1, 4};
  std::memset(placed_.records[4].acName, 'p', sizeof placed_.records[4].acName);
  ExpectCopy("GPON", placed_.records[4]);
}

}  // namespace
