// The printer of an optical module, and the command that shows one.
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "cli/printer_test.h"
#include "support/optmodules.h"
#include "support/text.h"

namespace {

using std::string;
using test::FakePlatform;
using test::Names;
using test::OptModule;

// ---- What is printed ------------------------------------------------------------------

struct ModuleRow {
  const char* name;
  OptModule module;
  string text;
  friend std::ostream& operator<<(std::ostream& out, const ModuleRow& row) {
    return out << row.name;
  }
};

class OptModulePrinter : public test::PrinterTest {};
class OptModuleListing : public OptModulePrinter, public testing::WithParamInterface<ModuleRow> {};

TEST_P(OptModuleListing, IsPrinted) {
  Twice([this](int32_t) {
    test::PutOptModules({GetParam().module});
    EXPECT_PRINTED([](void* vty) { return show_optmodule_fileinfo_byindex(1, vty); }, 0,
                   GetParam().text);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
  });
}

string WithoutPaths(const string& title) {
  return title + " Index 1:\r\nPortType: 21,  PhyType: 5  \r\nPON path num: 0 \r\n";
}

const ModuleRow kModules[] = {
    {"OltPon", {1, 21, 5}, WithoutPaths("OLT PON Optical Module")},
    {"OltEthernet", {2, 21, 5}, WithoutPaths("OLT ETH Optical Module")},
    {"OnuPon", {3, 21, 5}, WithoutPaths("ONU PON Optical Module")},
    {"KindZero", {0, 21, 5}, WithoutPaths("ONU PON Optical Module")},
    {"KindFour", {4, 21, 5}, WithoutPaths("ONU PON Optical Module")},
    {"KindOfTheSame8Bits", {257, 21, 5}, WithoutPaths("ONU PON Optical Module")},
    {"LargestKind", {65535, 21, 5}, WithoutPaths("ONU PON Optical Module")},
    {"OnePath",
     {1, 21, 5, {{50, 10, -80, -280}}},
     "OLT PON Optical Module Index 1:\r\n"
     "PortType: 21,  PhyType: 5  \r\n"
     "PON path num: 1 \r\n"
     "path 1: inup: -80, indn -280, outup 50, outdn 10.\r\n"},
    {"FourPaths",
     {2, 7, 0, {{3, 4, 1, 2}, {0, 0, 0, 0}, {-3, -4, -1, -2}, {7, 6, 9, 8}}},
     "OLT ETH Optical Module Index 1:\r\n"
     "PortType: 7,  PhyType: 0  \r\n"
     "PON path num: 4 \r\n"
     "path 1: inup: 1, indn 2, outup 3, outdn 4.\r\n"
     "path 2: inup: 0, indn 0, outup 0, outdn 0.\r\n"
     "path 3: inup: -1, indn -2, outup -3, outdn -4.\r\n"
     "path 4: inup: 9, indn 8, outup 7, outdn 6.\r\n"},
    {"LargestNumbers",
     {3, 0xffffffff, 65535, {{INT32_MAX, INT32_MIN, INT32_MAX, INT32_MIN}}},
     "ONU PON Optical Module Index 1:\r\n"
     "PortType: -1,  PhyType: 65535  \r\n"
     "PON path num: 1 \r\n"
     "path 1: inup: 2147483647, indn -2147483648, outup 2147483647, outdn -2147483648.\r\n"},
};
INSTANTIATE_TEST_SUITE_P(Cli, OptModuleListing, testing::ValuesIn(kModules),
                         testing::PrintToStringParamName());

// ---- Of which module --------------------------------------------------------------------

// Three places, and the one in the middle is empty.
void PutThreePlaces() {
  test::PutOptModules({OptModule{1, 21, 5}, std::nullopt, OptModule{3, 23, 6}});
}

constexpr char kFirstOfThree[] =
    "OLT PON Optical Module Index 1:\r\nPortType: 21,  PhyType: 5  \r\nPON path num: 0 \r\n";
constexpr char kSecondOfThree[] = "index 2 's optical module info is null.\r\n";
constexpr char kLastOfThree[] =
    "ONU PON Optical Module Index 3:\r\nPortType: 23,  PhyType: 6  \r\nPON path num: 0 \r\n";

string OutOfRange(const string& index, const string& count) {
  return "index " + index + " is out of range 1 ~ " + count + ".\r\n";
}

struct IndexRow {
  uint16_t index;
  int32_t code;
  string text;
};

TEST_F(OptModulePrinter, PrintsThePlaceOfTheIndex) {
  const IndexRow rows[] = {
      {1, 0, kFirstOfThree},
      {2, -24, kSecondOfThree},
      {3, 0, kLastOfThree},
      {0, -10, OutOfRange("0", "3")},
      {4, -10, OutOfRange("4", "3")},
      {257, -10, OutOfRange("257", "3")},
      {32768, -10, OutOfRange("32768", "3")},
      {65535, -10, OutOfRange("65535", "3")},
  };
  PutThreePlaces();
  for (const IndexRow& row : rows) {
    SCOPED_TRACE(row.index);
    EXPECT_PRINTED([&](void* vty) { return show_optmodule_fileinfo_byindex(row.index, vty); },
                   row.code, row.text);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
  }
}

TEST_F(OptModulePrinter, EmptyList) {
  for (const auto& [index, text] : {std::pair<uint16_t, string>{0, OutOfRange("0", "0")},
                                    {1, OutOfRange("1", "0")},
                                    {65535, OutOfRange("65535", "0")}}) {
    EXPECT_PRINTED(
        [index = index](void* vty) { return show_optmodule_fileinfo_byindex(index, vty); }, -10,
        text);
  }
}

TEST_F(OptModulePrinter, CountWithoutAList) {
  g_optmdule_infolist.listnum = 2;
  EXPECT_PRINTED([](void* vty) { return show_optmodule_fileinfo_byindex(2, vty); }, -24,
                 kSecondOfThree);
  EXPECT_PRINTED([](void* vty) { return show_optmodule_fileinfo_byindex(3, vty); }, -10,
                 OutOfRange("3", "2"));
}

// As long as a count can tell; the help and the loader know of fewer.
TEST_F(OptModulePrinter, LongestList) {
  test::PutOptModules(test::OptModules(65535));
  g_optmdule_infolist.objlist[26] = test::NewOptModule({1, 27, 5});
  g_optmdule_infolist.objlist[299] = test::NewOptModule({1, 300, 5});
  g_optmdule_infolist.objlist[65534] = test::NewOptModule({1, 65535, 5});
  for (const uint16_t index : std::initializer_list<uint16_t>{27, 300, 65535}) {
    const string number = std::to_string(index);
    EXPECT_PRINTED([=](void* vty) { return show_optmodule_fileinfo_byindex(index, vty); }, 0,
                   "OLT PON Optical Module Index " + number + ":\r\nPortType: " + number +
                       ",  PhyType: 5  \r\nPON path num: 0 \r\n");
  }
  EXPECT_PRINTED([](void* vty) { return show_optmodule_fileinfo_byindex(0, vty); }, -10,
                 OutOfRange("0", "65535"));
}

TEST_F(OptModulePrinter, NoTerminal) {
  PutThreePlaces();
  for (const uint16_t index : std::initializer_list<uint16_t>{0, 1, 2, 4}) {
    EXPECT_EQ(show_optmodule_fileinfo_byindex(index, nullptr), -24);
  }
  EXPECT_TRUE(FakePlatform::Get().terminals_used.empty());
  EXPECT_EQ(FakePlatform::TakeLog(), Names());
  EXPECT_EQ(console_.Text(), "");
}

// ---- The command --------------------------------------------------------------------------

struct WordRow {
  const char* name;
  const char* word;
  string text;
  friend std::ostream& operator<<(std::ostream& out, const WordRow& row) { return out << row.name; }
};

class OptModuleCommand : public OptModulePrinter, public testing::WithParamInterface<WordRow> {};

TEST_P(OptModuleCommand, ShowsTheIndexOfTheFirstArgument) {
  PutThreePlaces();
  string word = GetParam().word;
  char other[] = "3";
  char* words[] = {word.data(), other, nullptr};
  for (const int32_t count : {1, 2}) {
    EXPECT_PRINTED([&](void* vty) { return show_optmodule_info_func(nullptr, vty, count, words); },
                   0, GetParam().text);
  }
}

const WordRow kWords[] = {
    {"First", "1", kFirstOfThree},
    {"EmptyPlace", "2", kSecondOfThree},
    {"Last", "3", kLastOfThree},
    {"TheCountAndOne", "4", OutOfRange("4", "3")},
    {"Zero", "0", OutOfRange("0", "3")},
    {"LastOfTheHelp", "26", OutOfRange("26", "3")},
    {"LeadingZeros", "0003", kLastOfThree},
    {"LeadingBlanksAndSign", "  +3", kLastOfThree},
    {"DigitsOnly", "3rd", kLastOfThree},
    {"NoDigits", "abc", OutOfRange("0", "3")},
    {"Empty", "", OutOfRange("0", "3")},
    {"Hexadecimal", "0x1", OutOfRange("0", "3")},
    {"SixteenBits", "65535", OutOfRange("65535", "3")},
    {"SixteenBitsAndOne", "65536", OutOfRange("0", "3")},
    {"SixteenBitsAndTwo", "65537", kFirstOfThree},
    {"LowBitsOfALargeNumber", "16777219", kLastOfThree},
    {"Negative", "-1", OutOfRange("65535", "3")},
    {"NegativeLowBits", "-65535", kFirstOfThree},
};
INSTANTIATE_TEST_SUITE_P(Cli, OptModuleCommand, testing::ValuesIn(kWords),
                         testing::PrintToStringParamName());

TEST_F(OptModulePrinter, CommandWithoutArguments) {
  PutThreePlaces();
  char word[] = "1";
  char* words[] = {word, nullptr};
  for (const int32_t count : {0, -1}) {
    for (char** const given : {static_cast<char**>(words), static_cast<char**>(nullptr)}) {
      EXPECT_PRINTED(
          [&](void* vty) { return show_optmodule_info_func(nullptr, vty, count, given); }, 0,
          OutOfRange("0", "3"));
    }
  }
}

TEST_F(OptModulePrinter, CommandWithoutTerminal) {
  PutThreePlaces();
  char word[] = "1";
  char* words[] = {word, nullptr};
  EXPECT_EQ(show_optmodule_info_func(nullptr, nullptr, 1, words), 0);
  EXPECT_TRUE(FakePlatform::Get().terminals_used.empty());
}

}  // namespace
