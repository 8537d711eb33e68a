// What the queries do with a table: finding a record, finding a name, and copying the
// record of a name.
#include "common/table_queries.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "support/faults.h"
#include "support/tables.h"
#include "support/text.h"

namespace {

using std::string;
using sys_context::FindRecord;
using sys_context::Gate;
using test::Hex;

// ---- A record ------------------------------------------------------------------

struct Number {
  uint32_t type;
};

struct FindRow {
  const char* name;
  std::vector<int> types;  // of the places; -1 is an empty one
  uint32_t count;
  uint32_t wanted;
  int place;                    // of the record that is found, -1 for none
  std::vector<uint32_t> asked;  // the types that were looked at, in order
  friend std::ostream& operator<<(std::ostream& out, const FindRow& row) { return out << row.name; }
};

class RecordSearch : public testing::TestWithParam<FindRow> {};

TEST_P(RecordSearch, GivesTheFirstWantedRecord) {
  std::vector<Number> records;
  for (const int type : GetParam().types) {
    records.push_back({static_cast<uint32_t>(type)});
  }
  std::vector<Number*> places;
  for (size_t i = 0; i < records.size(); ++i) {
    places.push_back(GetParam().types[i] < 0 ? nullptr : &records[i]);
  }
  std::vector<uint32_t> asked;

  Number* const found = FindRecord(GetParam().count, places.data(), [&](const Number& number) {
    asked.push_back(number.type);
    return number.type == GetParam().wanted;
  });

  EXPECT_EQ(found,
            GetParam().place < 0 ? nullptr : &records[static_cast<size_t>(GetParam().place)]);
  EXPECT_EQ(asked, GetParam().asked);
}

const FindRow kFinds[] = {
    {"First", {1, 2, 3}, 3, 1, 0, {1}},
    {"Middle", {1, 2, 3}, 3, 2, 1, {1, 2}},
    {"Last", {1, 2, 3}, 3, 3, 2, {1, 2, 3}},
    {"None", {1, 2, 3}, 3, 4, -1, {1, 2, 3}},
    {"FirstOfTwo", {1, 2, 2}, 3, 2, 1, {1, 2}},
    {"NotBehindTheCount", {1, 2, 3}, 2, 3, -1, {1, 2}},
    {"NothingInTheCount", {1, 2, 3}, 0, 1, -1, {}},
    {"EmptyPlacesArePassedOver", {-1, 1, -1, 2}, 4, 2, 3, {1, 2}},
    {"OnlyEmptyPlaces", {-1, -1}, 2, 1, -1, {}},
    {"EmptyPlaceAtTheEnd", {1, -1}, 2, 2, -1, {1}},
    {"One", {7}, 1, 7, 0, {7}},
};
INSTANTIATE_TEST_SUITE_P(Tables, RecordSearch, testing::ValuesIn(kFinds),
                         testing::PrintToStringParamName());

TEST(RecordSearch, OfNoTable) {
  Number* const* const none = nullptr;
  EXPECT_EQ(FindRecord(0, none, [](const Number&) { return true; }), nullptr);
}

TEST(RecordSearch, LeavesReadOnlyRecordsReadOnly) {
  const Number number = {5};
  const Number* const places[] = {&number};
  const Number* const found = FindRecord(1, places, [](const Number&) { return true; });
  EXPECT_EQ(found, &number);
}

// ---- A name --------------------------------------------------------------------

struct Named {
  uint32_t ulNameLen;
  char acName[5];
};

constexpr sys_context::NameQuery kQuery = {
    .table =
        {
            .limit = 3,
            .above_limit_code = -101,
            .no_array_code = -102,
            .above_limit = "count %d;",
            .no_array = "array %x;",
        },
    .null_argument = "null 0x%x 0x%x 0x%x;",
    .name_too_long = "long %d;",
    .corrupt_length = "length %d at %d;",
};

struct AskRow {
  const char* name;
  uint32_t count;
  bool has_array;
  string asked;
  int32_t code;
  uint32_t index = 0;
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const AskRow& row) { return out << row.name; }
};

class NameSearch : public test::LibraryTest, public testing::WithParamInterface<AskRow> {
 protected:
  test::Console console_;
  Named first_ = {3, "AB"};
  Named last_ = {5, "ABCD"};
  Named* places_[3] = {&first_, nullptr, &last_};
};

TEST_P(NameSearch, GivesThePlace) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    uint32_t is_supported = 77;
    uint32_t index = 77;
    EXPECT_EQ(AskForName(kQuery, GetParam().count, GetParam().has_array ? places_ : nullptr,
                         GetParam().asked.c_str(), &is_supported, &index),
              GetParam().code);
    EXPECT_EQ(is_supported, GetParam().code == 0 ? 1u : 0u);
    EXPECT_EQ(index, GetParam().index);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

const AskRow kAsks[] = {
    {"First", 3, true, "AB", 0, 0},
    {"LastWithALengthThatFillsTheField", 3, true, "ABCD", 0, 2},
    {"Unknown", 3, true, "ABC", -32},
    {"BehindTheCount", 2, true, "ABCD", -32},
    {"NameTooLongForTheField", 4, false, "ABCDE", -33, 0, "long 5;"},
    {"CountAboveTheLimit", 4, false, "AB", -101, 0, "count 4;"},
    {"LargestCount", 0xffffffff, true, "AB", -101, 0, "count -1;"},
    {"NoArray", 3, false, "AB", -102, 0, "array 0;"},
};
INSTANTIATE_TEST_SUITE_P(Tables, NameSearch, testing::ValuesIn(kAsks),
                         testing::PrintToStringParamName());

TEST_F(NameSearch, StopsAtALengthThatTheFieldCannotHold) {
  ddDebugPrint = 1;
  last_.ulNameLen = 6;
  uint32_t is_supported = 77;
  uint32_t index = 77;
  EXPECT_EQ(AskForName(kQuery, 3, places_, "ABCD", &is_supported, &index), -33);
  EXPECT_EQ(console_.Text(), "length 6 at 2;");
  EXPECT_EQ(is_supported, 0u);
  EXPECT_EQ(index, 0u);
}

string NullArguments(const void* name, const void* is_supported, const void* index) {
  return "null " + Hex(name) + " " + Hex(is_supported) + " " + Hex(index) + ";";
}

TEST_F(NameSearch, NullArgumentsTouchNothing) {
  const char* const name = "AB";
  const char* const no_name = nullptr;
  uint32_t is_supported = 77;
  uint32_t index = 78;
  uint32_t* const no_output = nullptr;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(AskForName(kQuery, 3, places_, no_name, &is_supported, &index), -2);
    EXPECT_EQ(console_.Text(), debug != 0 ? NullArguments(nullptr, &is_supported, &index) : "");
    EXPECT_EQ(AskForName(kQuery, 3, places_, name, no_output, &index), -2);
    EXPECT_EQ(console_.Text(), debug != 0 ? NullArguments(name, nullptr, &index) : "");
    EXPECT_EQ(AskForName(kQuery, 3, places_, name, &is_supported, no_output), -2);
    EXPECT_EQ(console_.Text(), debug != 0 ? NullArguments(name, &is_supported, nullptr) : "");
    EXPECT_EQ(AskForName(kQuery, 3, places_, no_name, no_output, no_output), -2);
    EXPECT_EQ(console_.Text(), debug != 0 ? "null 0x0 0x0 0x0;" : "");
  }
  EXPECT_EQ(is_supported, 77u);
  EXPECT_EQ(index, 78u);
}

// ---- A copy --------------------------------------------------------------------

constexpr sys_context::CopyQuery Copying(Gate gate, bool empty_place_clears_output) {
  return {
      .gate = gate,
      .last_index = 3,
      .above_last_index_code = -103,
      .empty_place_clears_output = empty_place_clears_output,
      .null_argument = "null 0x%x 0x%x;",
      .name_too_long = "long %d;",
      .lookup_failed = "code %d, %s at %d;",
      .not_supported = "%s is %d;",
      .above_last_index = "%s at %d;",
      .no_memory = "memory %d at %d;",
      .empty_place = "empty %d at %d;",
  };
}

struct Found {
  int32_t code;
  uint32_t is_supported;
  uint32_t index;
};
Found found;        // what the lookup answers
string looked_for;  // the name that it was asked for

int32_t Find(const char* name, uint32_t* is_supported, uint32_t* index) {
  looked_for = name;
  *is_supported = found.is_supported;
  *index = found.index;
  return found.code;
}

struct CopyRow {
  const char* name;
  string asked;
  Found found;
  int32_t code;
  string console = "";
  int failing_allocation = 0;
  bool empty_place_clears_output = true;
  friend std::ostream& operator<<(std::ostream& out, const CopyRow& row) { return out << row.name; }
};

class NameCopy : public test::LibraryTest, public testing::WithParamInterface<CopyRow> {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    looked_for = "nothing";
  }

  test::Console console_;
  Named traces_ = {3, {'A', 'B', 0, '#', '#'}};
  Named full_ = {5, "ABCD"};
  Named beyond_ = {1, {0, '#', '#', '#', '#'}};
  Named* places_[5] = {&traces_, nullptr, &full_, &beyond_, nullptr};
};

TEST_P(NameCopy, IsTheCallersOwn) {
  found = GetParam().found;
  for (const Gate gate : {Gate::kAlways, Gate::kDebug}) {
    for (const int32_t debug : {0, 1}) {
      ddDebugPrint = debug;
      Named* copy = &full_;
      test::Faults faults;
      faults.allocations.FailFrom(GetParam().failing_allocation, 1);
      EXPECT_EQ(CopyByName(Copying(gate, GetParam().empty_place_clears_output), Find, places_,
                           GetParam().asked.c_str(), &copy),
                GetParam().code);
      EXPECT_EQ(console_.Text(), gate == Gate::kAlways || debug != 0 ? GetParam().console : "");
      if (GetParam().code != 0) {
        EXPECT_EQ(copy, GetParam().empty_place_clears_output ? nullptr : &full_);
        EXPECT_TRUE(faults.blocks.empty());
        continue;
      }
      EXPECT_EQ(looked_for, GetParam().asked);
      ASSERT_EQ(faults.blocks.count(copy), 1u);
      EXPECT_EQ(faults.blocks.size(), 1u);
      const Named& saved = *places_[found.index];
      Named expected = {saved.ulNameLen, ""};
      std::memcpy(expected.acName, saved.acName, saved.ulNameLen);
      EXPECT_EQ(copy->ulNameLen, expected.ulNameLen);
      EXPECT_EQ(string(copy->acName, 5), string(expected.acName, 5));
      std::free(copy);
    }
  }
}

const CopyRow kCopies[] = {
    {"WithoutTheTracesBehindTheName", "AB", {0, 1, 0}, 0},
    {"OfANameThatFillsTheField", "ABCD", {0, 1, 2}, 0},
    {"FromTheLastIndex", "", {0, 1, 3}, 0},
    {"NameTooLongForTheField", "ABCDE", {0, 1, 0}, -33, "long 5;"},
    {"LookupFailed", "AB", {-5, 1, 2}, -5, "code -5, AB at 2;"},
    {"NotSupported", "AB", {0, 0, 4}, -32, "AB is 0;"},
    {"AboveTheLastIndex", "AB", {0, 1, 4}, -103, "AB at 4;"},
    {"FarAboveTheLastIndex", "AB", {0, 1, 0xffffffff}, -103, "AB at -1;"},
    {"NoMemory", "AB", {0, 1, 1}, -27, "memory 0 at 1;", 1},
    {"EmptyPlace", "AB", {0, 1, 1}, -2, "empty 0 at 1;"},
    {"EmptyPlaceThatLeavesTheOutput", "AB", {0, 1, 1}, -2, "empty 0 at 1;", 0, false},
};
INSTANTIATE_TEST_SUITE_P(Tables, NameCopy, testing::ValuesIn(kCopies),
                         testing::PrintToStringParamName());

// A lookup that a host puts in front of the library's may give such a record.
TEST_F(NameCopy, OfALengthThatTheFieldCannotHold) {
  full_ = {0xFFFFFFFFu, {'A', 'B', 'C', 'D', 'E'}};
  found = {0, 1, 2};
  Named* copy = nullptr;
  ASSERT_EQ(CopyByName(Copying(Gate::kAlways, true), Find, places_, "ABCD", &copy), 0);
  EXPECT_EQ(copy->ulNameLen, 0xFFFFFFFFu);
  EXPECT_EQ(string(copy->acName, 5), "ABCDE");
  std::free(copy);
}

TEST_F(NameCopy, NullArgumentsTouchNothing) {
  const char* const name = "ABCDE";  // looked at later only
  const char* const no_name = nullptr;
  Named* copy = &full_;
  Named** const no_output = nullptr;
  constexpr sys_context::CopyQuery kCopying = Copying(Gate::kAlways, true);
  EXPECT_EQ(CopyByName(kCopying, Find, places_, no_name, &copy), -2);
  EXPECT_EQ(console_.Text(), "null 0x0 " + Hex(&copy) + ";");
  EXPECT_EQ(CopyByName(kCopying, Find, places_, name, no_output), -2);
  EXPECT_EQ(console_.Text(), "null " + Hex(name) + " 0x0;");
  EXPECT_EQ(CopyByName(kCopying, Find, places_, no_name, no_output), -2);
  EXPECT_EQ(console_.Text(), "null 0x0 0x0;");
  EXPECT_EQ(copy, &full_);
  EXPECT_EQ(looked_for, "nothing");
}

}  // namespace
