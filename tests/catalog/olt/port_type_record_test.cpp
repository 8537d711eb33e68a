// Reading one OLT port type from its own section.
#include <cstdlib>
#include <memory>
#include <ostream>
#include <string>

#include "catalog/olt/port_types.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/null_arguments.h"
#include "support/text.h"

namespace {

using std::string;
using test::Hex;
using test::PortTypeSection;

OltPortInformation* const kUntouched = reinterpret_cast<OltPortInformation*>(0x1234);

string Sec(const string& type, const string& name, const string& ratio) {
  return PortTypeSection("Sec", type, name, ratio);
}

// ---- Records -------------------------------------------------------------------

struct RecordRow {
  const char* name;
  string file;
  uint32_t type;
  string port_name;
  uint32_t ratio;
  friend std::ostream& operator<<(std::ostream& out, const RecordRow& row) {
    return out << row.name;
  }
};

class ReadPortType : public test::LibraryTest, public testing::WithParamInterface<RecordRow> {
 protected:
  test::Console console_;
};

TEST_P(ReadPortType, HandsOverARecord) {
  const test::DefinitionFile file(GetParam().file);
  OltPortInformation* port = kUntouched;
  test::Faults faults;

  ASSERT_EQ(ddReadOneSupportedOltPortInformation(file.path(), "Sec", &port), 0);

  ASSERT_NE(port, nullptr);
  EXPECT_EQ(faults.blocks.size(), 1u);
  EXPECT_EQ(faults.blocks.at(port), sizeof(OltPortInformation));
  EXPECT_EQ(faults.closes, 3);
  const std::unique_ptr<OltPortInformation, decltype(&std::free)> owner(port, &std::free);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(port->ulPortType, GetParam().type);
  EXPECT_EQ(port->ulNameLen, GetParam().port_name.size() + 1);
  string field = GetParam().port_name;
  field.resize(60);
  EXPECT_EQ(string(port->acName, sizeof port->acName), field);
  EXPECT_EQ(port->ulSplittingRatio, GetParam().ratio);
  EXPECT_EQ(port->ulLink, 0u);
}

const RecordRow kRecords[] = {
    {"Plain", Sec("7", "GPON", "64"), 7, "GPON", 64},
    {"KeysInAnyOrder", "[Sec]\nSplittingRatio=64\nOther=1\nName=GPON\nType=7\n", 7, "GPON", 64},
    {"FirstKeyWins", Sec("7", "GPON", "64") + "Type=8\nName=B\nSplittingRatio=9\n", 7, "GPON", 64},
    {"FirstSectionWins", Sec("7", "GPON", "64") + Sec("8", "B", "9"), 7, "GPON", 64},
    {"TypeZero", Sec("0", "N", "1"), 0, "N", 1},
    {"TypeEmpty", Sec("", "N", "1"), 0, "N", 1},
    {"TypeText", Sec("abc", "N", "1"), 0, "N", 1},
    {"TypeWithText", Sec("12x", "N", "1"), 12, "N", 1},
    {"TypeNegative", Sec("-1", "N", "1"), 4294967295, "N", 1},
    {"TypeLargest", Sec("2147483647", "N", "1"), 2147483647, "N", 1},
    {"TypeAbove31Bits", Sec("2147483648", "N", "1"), 2147483647, "N", 1},
    {"TypeAbove32Bits", Sec("4294967296", "N", "1"), 2147483647, "N", 1},
    {"TypeSmallest", Sec("-2147483648", "N", "1"), 2147483648, "N", 1},
    {"TypeBelow32Bits", Sec("-4294967297", "N", "1"), 2147483648, "N", 1},
    {"RatioZero", Sec("1", "N", "0"), 1, "N", 0},
    {"RatioEmpty", Sec("1", "N", ""), 1, "N", 0},
    {"RatioText", Sec("1", "N", "many"), 1, "N", 0},
    {"RatioWithText", Sec("1", "N", "1:64"), 1, "N", 1},
    {"RatioAboveOneByte", Sec("1", "N", "256"), 1, "N", 256},
    {"RatioLargestBut1", Sec("1", "N", "511"), 1, "N", 511},
    {"RatioLargest", Sec("1", "N", "512"), 1, "N", 512},
    {"NameEmpty", Sec("1", "", "1"), 1, "", 1},
    {"NameWithBlanks", Sec("1", "two words", "1"), 1, "two words", 1},
    {"NameLongestBut1", Sec("1", string(58, 'n'), "1"), 1, string(58, 'n'), 1},
    {"NameLongest", Sec("1", string(59, 'n'), "1"), 1, string(59, 'n'), 1},
};
INSTANTIATE_TEST_SUITE_P(PortTypes, ReadPortType, testing::ValuesIn(kRecords),
                         testing::PrintToStringParamName());

// ---- Failures ------------------------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  int allocations;
  OltPortInformation* output;
  int failing_read = 0;
  int failing_open = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToReadPortType : public test::LibraryTest, public testing::WithParamInterface<FailRow> {
 protected:
  test::Console console_;
};

TEST_P(FailToReadPortType, KeepsNothing) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    OltPortInformation* port = kUntouched;
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);
    faults.opens.FailFrom(GetParam().failing_open, 1);

    EXPECT_EQ(ddReadOneSupportedOltPortInformation(file.path(), "Sec", &port), GetParam().code);

    EXPECT_EQ(port, GetParam().output);
    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(faults.allocations.count(), GetParam().allocations);
    EXPECT_TRUE(faults.blocks.empty());
    EXPECT_EQ(faults.closes, faults.opens.count() - (GetParam().failing_open != 0 ? 1 : 0));
  }
}

FailRow NoType(const char* name, const string& file, const string& code, int failing_read = 0,
               int failing_open = 0) {
  return {name,
          file,
          -31,
          "\r\nddReadOneSupportedOltPortInformation err! iResult = " + code +
              ", strSectionFrameNameBuf = Sec, Key = Type",
          0,
          nullptr,
          failing_read,
          failing_open};
}

FailRow NoName(const char* name, const string& file, const string& code, int failing_read = 0,
               int failing_open = 0) {
  return {name,
          file,
          -31,
          "\r\nddReadOneSupportedOltPortInformation err! iResult = " + code +
              ", section = Sec, key = Name",
          1,
          nullptr,
          failing_read,
          failing_open};
}

FailRow NameTooLong(const char* name, const string& file, const string& length) {
  return {name, file,   -33, "\r\nddReadOneSupportedOltPortInformation err! ulNameLen = " + length,
          1,    nullptr};
}

FailRow NoRatio(const char* name, const string& file, const string& code, int failing_read = 0,
                int failing_open = 0) {
  return {name,
          file,
          -31,
          "\r\nddReadOneSupportedOltPortInformation err! iResult = " + code +
              ", section = Sec, key = SplittingRatio",
          1,
          kUntouched,
          failing_read,
          failing_open};
}

FailRow RatioTooLarge(const char* name, const string& ratio, const string& printed) {
  return {name,
          Sec("1", "N", ratio),
          -34,
          "\r\nddReadOneSupportedOltPortInformation err! ulSplittingRatio = " + printed +
              ", DD_MAX_ONU_NUM_PER_PON = 512",
          1,
          kUntouched};
}

const string kGood = Sec("1", "N", "1");
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kTypeFails[] = {
    NoType("NoSection", "[sec]\nType=1\nName=N\nSplittingRatio=1\n", "-1"),
    NoType("EmptySection", "[Sec]\n[Next]\nType=1\n", "-2"),
    NoType("NoType", "[Sec]\nName=N\nSplittingRatio=1\n", "-2"),
    NoType("TypeOfOtherCase", "[Sec]\ntype=1\nName=N\nSplittingRatio=1\n", "-2"),
    NoType("NoTypeAndNameTooLong", "[Sec]\nName=" + string(60, 'n') + "\nSplittingRatio=600\n",
           "-2"),
    NoType("BrokenBeforeType", "[Sec]\nnonsense\nType=1\nName=N\nSplittingRatio=1\n", "-14"),
    NoType("BrokenHeader", "[Broken\n" + kGood, "-14"),
    NoType("TooLongBeforeType", "[Sec]\n" + kTooLong + "Type=1\nName=N\nSplittingRatio=1\n", "-22"),
    NoType("TypeUnreadable", kGood, "-12", 1),
    NoType("TypeNotOpened", kGood, "-10", 0, 1),
};
INSTANTIATE_TEST_SUITE_P(Type, FailToReadPortType, testing::ValuesIn(kTypeFails),
                         testing::PrintToStringParamName());

const FailRow kNameFails[] = {
    NoName("NoName", "[Sec]\nType=1\nSplittingRatio=1\n", "-2"),
    NoName("NoNameAndRatioTooLarge", "[Sec]\nType=1\nSplittingRatio=513\n", "-2"),
    NoName("NameOfOtherCase", "[Sec]\nType=1\nNAME=N\nSplittingRatio=1\n", "-2"),
    NoName("BrokenBeforeName", "[Sec]\nType=1\nnonsense\nName=N\nSplittingRatio=1\n", "-14"),
    NoName("TooLongBeforeName", "[Sec]\nType=1\n" + kTooLong + "Name=N\n", "-22"),
    NoName("NameUnreadable", kGood, "-12", 2),
    NoName("NameNotOpened", kGood, "-10", 0, 2),
    NameTooLong("NameTooLong", Sec("1", string(60, 'n'), "1"), "61"),
    NameTooLong("NameTooLongBy2", Sec("1", string(61, 'n'), "1"), "62"),
    NameTooLong("NameFarTooLong", Sec("1", string(507, 'n'), "1"), "508"),
    NameTooLong("NameTooLongAndNoRatio", "[Sec]\nType=1\nName=" + string(60, 'n') + "\n", "61"),
};
INSTANTIATE_TEST_SUITE_P(Name, FailToReadPortType, testing::ValuesIn(kNameFails),
                         testing::PrintToStringParamName());

const FailRow kRatioFails[] = {
    NoRatio("NoRatio", "[Sec]\nType=1\nName=N\n", "-2"),
    NoRatio("RatioOfOtherCase", "[Sec]\nType=1\nName=N\nSplittingratio=1\n", "-2"),
    NoRatio("RatioInTheNextSection", "[Sec]\nType=1\nName=N\n[Next]\nSplittingRatio=1\n", "-2"),
    NoRatio("BrokenBeforeRatio", "[Sec]\nType=1\nName=N\nnonsense\nSplittingRatio=1\n", "-14"),
    NoRatio("TooLongBeforeRatio", "[Sec]\nType=1\nName=N\n" + kTooLong, "-22"),
    NoRatio("RatioUnreadable", kGood, "-12", 3),
    NoRatio("RatioNotOpened", kGood, "-10", 0, 3),
    RatioTooLarge("RatioTooLarge", "513", "513"),
    RatioTooLarge("RatioNegative", "-1", "-1"),
    RatioTooLarge("RatioLargest", "2147483647", "2147483647"),
    RatioTooLarge("RatioAbove31Bits", "2147483648", "2147483647"),
    RatioTooLarge("RatioAbove32Bits", "4294967297", "2147483647"),
    RatioTooLarge("RatioBelow32Bits", "-4294967295", "-2147483648"),
};
INSTANTIATE_TEST_SUITE_P(Ratio, FailToReadPortType, testing::ValuesIn(kRatioFails),
                         testing::PrintToStringParamName());

class PortTypeRecord : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(PortTypeRecord, NullArgumentsTouchNothing) {
  OltPortInformation* port = kUntouched;
  test::ExpectNullArgumentsRefused(
      console_,
      "\r\nddReadOneSupportedOltPortInformation err! strFileName = {file}, strOltPortTypeSection = {section}, pOltPortTypeObjAddr = {record}",
      &port, ddReadOneSupportedOltPortInformation);
  EXPECT_EQ(port, kUntouched);
}

// The memory is taken behind the type and in front of the name.
TEST_F(PortTypeRecord, NoMemory) {
  const test::DefinitionFile file("[Sec]\nType=1\n");
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      ddDebugPrint = debug;
      OltPortInformation* port = kUntouched;
      test::Faults faults;
      faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(ddReadOneSupportedOltPortInformation(file.path(), "Sec", &port), -27);
      EXPECT_EQ(port, nullptr);
      EXPECT_EQ(console_.Text(),
                "\r\nddReadOneSupportedOltPortInformation->malloc err! pstOltPortInformation = "
                "0x0");
      EXPECT_EQ(faults.opens.count(), 1);
      EXPECT_EQ(faults.closes, 1);
      EXPECT_TRUE(faults.blocks.empty());
    }
  }
}

TEST_F(PortTypeRecord, MissingFile) {
  OltPortInformation* port = kUntouched;
  EXPECT_EQ(
      ddReadOneSupportedOltPortInformation("/nonexistent/device_definition.ini", "Sec", &port),
      -31);
  EXPECT_EQ(port, nullptr);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadOneSupportedOltPortInformation err! iResult = -10, strSectionFrameNameBuf = "
            "Sec, Key = Type");
}

}  // namespace
