// Reading one ONU port type from its own section.
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>

#include "catalog/onu/port_type_family.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/null_arguments.h"

namespace {

using std::string;
using test::kPortTypeFamilies;
using test::PortType;
using test::PortTypeFamily;
using test::With;

PortType* const kUntouched = reinterpret_cast<PortType*>(0x1234);

string Sec(const string& type, const string& name) {
  return test::OnuPortTypeSection("Sec", type, name);
}

// ---- Records -------------------------------------------------------------------

struct RecordRow {
  const char* name;
  string file;
  uint32_t type;
  string port_name;
  friend std::ostream& operator<<(std::ostream& out, const RecordRow& row) {
    return out << row.name;
  }
};

class ReadOnuPortType : public test::LibraryTest,
                        public testing::WithParamInterface<std::tuple<PortTypeFamily, RecordRow>> {
 protected:
  test::Console console_;
};

TEST_P(ReadOnuPortType, HandsOverARecord) {
  const auto& [family, row] = GetParam();
  const test::DefinitionFile file(row.file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PortType* port = kUntouched;
    test::Faults faults;

    ASSERT_EQ(family.read_one(file.path(), "Sec", &port), 0);

    ASSERT_EQ(faults.blocks.count(port), 1u);
    EXPECT_EQ(faults.blocks.size(), 1u);
    EXPECT_EQ(faults.blocks.at(port), sizeof(PortType));
    EXPECT_EQ(faults.opens.count(), 2);
    EXPECT_EQ(faults.closes, 2);
    const std::unique_ptr<PortType, decltype(&std::free)> owner(port, &std::free);
    EXPECT_EQ(console_.Text(), "");
    EXPECT_EQ(port->*family.type, row.type);
    EXPECT_EQ(port->ulNameLen, row.port_name.size() + 1);
    string field = row.port_name;
    field.resize(60);  // the rest is zero
    EXPECT_EQ(string(port->acName, sizeof port->acName), field);
    EXPECT_EQ(*family.count, 0u);  // no table is touched
    EXPECT_EQ(*family.types, nullptr);
  }
}

const RecordRow kRecords[] = {
    {"Plain", Sec("7", "GPON"), 7, "GPON"},
    {"KeysInAnyOrder", "[Sec]\nName=GPON\nOther=1\nType=7\n", 7, "GPON"},
    {"FirstKeyWins", Sec("7", "GPON") + "Type=8\nName=B\n", 7, "GPON"},
    {"FirstSectionWins", Sec("7", "GPON") + Sec("8", "B"), 7, "GPON"},
    {"SpeedIsNoKey", "[Sec]\nSpeed=fast\nType=7\nName=GPON\n", 7, "GPON"},
    {"TypeZero", Sec("0", "N"), 0, "N"},
    {"TypeEmpty", Sec("", "N"), 0, "N"},
    {"TypeText", Sec("abc", "N"), 0, "N"},
    {"TypeWithText", Sec("12x", "N"), 12, "N"},
    {"TypeAboveOneByte", Sec("257", "N"), 257, "N"},
    {"TypeAboveTwoBytes", Sec("65537", "N"), 65537, "N"},
    {"TypeNegative", Sec("-1", "N"), 4294967295, "N"},
    {"TypeLargest", Sec("2147483647", "N"), 2147483647, "N"},
    {"TypeAbove31Bits", Sec("2147483648", "N"), 2147483647, "N"},
    {"TypeBelow32Bits", Sec("-4294967297", "N"), 2147483648, "N"},
    {"NameEmpty", Sec("1", ""), 1, ""},
    {"NameWithBlanks", Sec("1", "two words"), 1, "two words"},
    {"NameLongestBut1", Sec("1", string(58, 'n')), 1, string(58, 'n')},
    {"NameLongest", Sec("1", string(59, 'n')), 1, string(59, 'n')},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, ReadOnuPortType,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kRecords)),
                         test::KindAndRow());

// ---- Failures ------------------------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  const char* PortTypeFamily::*text;
  int32_t code;
  string shown;  // the lookup's code, or the name's length
  int allocations;
  int failing_read = 0;
  int failing_open = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToReadOnuPortType
    : public test::LibraryTest,
      public testing::WithParamInterface<std::tuple<PortTypeFamily, FailRow>> {
 protected:
  test::Console console_;
};

TEST_P(FailToReadOnuPortType, KeepsNothing) {
  const auto& [family, row] = GetParam();
  const test::DefinitionFile file(row.file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PortType* port = kUntouched;
    test::Faults faults;
    faults.reads.FailFrom(row.failing_read, 1);
    faults.opens.FailFrom(row.failing_open, 1);

    EXPECT_EQ(family.read_one(file.path(), "Sec", &port), row.code);

    EXPECT_EQ(port, nullptr);
    const string text = With(family.*row.text, "{section}", "Sec");
    EXPECT_EQ(console_.Text(), With(With(text, "{code}", row.shown), "{length}", row.shown));
    EXPECT_EQ(faults.allocations.count(), row.allocations);
    EXPECT_TRUE(faults.blocks.empty());
    EXPECT_EQ(faults.closes, faults.opens.count() - (row.failing_open != 0 ? 1 : 0));
  }
}

FailRow NoType(const char* name, const string& file, const string& code, int failing_read = 0,
               int failing_open = 0) {
  return {name, file, &PortTypeFamily::type_unreadable, -31, code, 0, failing_read, failing_open};
}

FailRow NoName(const char* name, const string& file, const string& code, int failing_read = 0,
               int failing_open = 0) {
  return {name, file, &PortTypeFamily::name_unreadable, -31, code, 1, failing_read, failing_open};
}

FailRow NameTooLong(const char* name, size_t length, const string& shown) {
  return {name, Sec("1", string(length, 'n')), &PortTypeFamily::name_too_long, -33, shown, 1};
}

const string kGood = Sec("1", "N");
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kFails[] = {
    NoType("NoSection", "[sec]\nType=1\nName=N\n", "-1"),
    NoType("EmptyFile", "", "-1"),
    NoType("EmptySection", "[Sec]\n[Next]\nType=1\n", "-2"),
    NoType("NoType", "[Sec]\nName=N\n", "-2"),
    NoType("TypeOfOtherCase", "[Sec]\ntype=1\nName=N\n", "-2"),
    NoType("NoTypeAndNameTooLong", "[Sec]\nName=" + string(60, 'n') + "\n", "-2"),
    NoType("BrokenBeforeType", "[Sec]\nnonsense\nType=1\nName=N\n", "-14"),
    NoType("BrokenHeader", "[Broken\n" + kGood, "-14"),
    NoType("TooLongBeforeType", "[Sec]\n" + kTooLong + "Type=1\nName=N\n", "-22"),
    NoType("TypeUnreadable", kGood, "-12", 1),
    NoType("TypeNotOpened", kGood, "-10", 0, 1),
    NoName("NoName", "[Sec]\nType=1\n", "-2"),
    NoName("SpeedInsteadOfName", "[Sec]\nType=1\nSpeed=N\n", "-2"),
    NoName("NameOfOtherCase", "[Sec]\nType=1\nNAME=N\n", "-2"),
    NoName("NameInTheNextSection", "[Sec]\nType=1\n[Next]\nName=N\n", "-2"),
    NoName("BrokenBeforeName", "[Sec]\nType=1\nnonsense\nName=N\n", "-14"),
    NoName("TooLongBeforeName", "[Sec]\nType=1\n" + kTooLong + "Name=N\n", "-22"),
    NoName("NameUnreadable", kGood, "-12", 2),
    NoName("NameNotOpened", kGood, "-10", 0, 2),
    NameTooLong("NameTooLong", 60, "61"),
    NameTooLong("NameTooLongBy2", 61, "62"),
    NameTooLong("NameFarTooLong", 507, "508"),
};
INSTANTIATE_TEST_SUITE_P(PortTypes, FailToReadOnuPortType,
                         testing::Combine(testing::ValuesIn(kPortTypeFamilies),
                                          testing::ValuesIn(kFails)),
                         test::KindAndRow());

class OnuPortTypeReader : public test::LibraryTest,
                          public testing::WithParamInterface<PortTypeFamily> {
 protected:
  test::Console console_;
};

TEST_P(OnuPortTypeReader, NullArgumentsTouchNothing) {
  PortType* port = kUntouched;
  test::ExpectNullArgumentsRefused(console_, GetParam().read_null, &port, GetParam().read_one);
  EXPECT_EQ(port, kUntouched);
}

// The memory is taken behind the type and in front of the name.
TEST_P(OnuPortTypeReader, NoMemory) {
  const test::DefinitionFile file("[Sec]\nType=1\n");
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      ddDebugPrint = debug;
      PortType* port = kUntouched;
      test::Faults faults;
      faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(GetParam().read_one(file.path(), "Sec", &port), -27);
      EXPECT_EQ(port, nullptr);
      EXPECT_EQ(console_.Text(), GetParam().no_record);
      EXPECT_EQ(faults.opens.count(), 1);
      EXPECT_EQ(faults.closes, 1);
      EXPECT_TRUE(faults.blocks.empty());
    }
  }
}

TEST_P(OnuPortTypeReader, MissingFile) {
  PortType* port = kUntouched;
  EXPECT_EQ(GetParam().read_one("/nonexistent/device_definition.ini", "Sec", &port), -31);
  EXPECT_EQ(port, nullptr);
  EXPECT_EQ(console_.Text(),
            With(With(GetParam().type_unreadable, "{code}", "-10"), "{section}", "Sec"));
}
INSTANTIATE_TEST_SUITE_P(PortTypes, OnuPortTypeReader, testing::ValuesIn(kPortTypeFamilies),
                         testing::PrintToStringParamName());

}  // namespace
