// The index of the ONU type that "show context onu_detail" shows.
#include <ostream>
#include <string>

#include "cli/onu_printer_test.h"
#include "sys_context/cli.h"

namespace {

using std::string;

struct IndexRow {
  const char* name;
  const char* word;
  string listing;
  friend std::ostream& operator<<(std::ostream& out, const IndexRow& row) {
    return out << row.name;
  }
};

class OnuDetail : public test::OnuPrinterTest {
 protected:
  void SetUp() override {
    OnuPrinterTest::SetUp();
    AddOnu(Onu(6001, "First", {}, {}, {}, {}));
    AddOnu(Onu(6002, "Second", {}, {}, {}, {}));
  }
  static void ExpectFirstLine(int32_t count, char** words, const string& line) {
    int terminal = 0;
    test::FakePlatform::Reset();
    EXPECT_EQ(ddShowOneSupportedOnuInfo_Func(nullptr, &terminal, count, words), 0);
    const string& shown = test::FakePlatform::Get().terminal;
    EXPECT_EQ(shown.substr(0, shown.find("\r\n", 2)), line) << count << " words";
  }
};

class IndexOfAnOnu : public OnuDetail, public testing::WithParamInterface<IndexRow> {};

constexpr char kFirst[] = "\r\nSupportedOneOnuInformation: First";
constexpr char kSecond[] = "\r\nSupportedOneOnuInformation: Second";

TEST_P(IndexOfAnOnu, IsTheFirstArgument) {
  string word = GetParam().word;
  char other[] = "1";
  char* words[] = {word.data(), other, nullptr};
  ExpectFirstLine(1, words, GetParam().listing);
  ExpectFirstLine(2, words, GetParam().listing);
}

TEST_F(OnuDetail, ShowsTheFirstTypeWithoutArguments) {
  char word[] = "1";
  char* words[] = {word, nullptr};
  for (const int32_t count : {0, -1}) {
    ExpectFirstLine(count, nullptr, kFirst);
    ExpectFirstLine(count, words, kFirst);
  }
}

string NoSuchIndex(const string& index) {
  return "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = " + index +
         ", ulSupportedOnuTypeNum = 2";
}

const IndexRow kIndexes[] = {
    {"Zero", "0", kFirst},
    {"One", "1", kSecond},
    {"LeadingZeros", "0001", kSecond},
    {"LeadingBlanksAndSign", "  +1", kSecond},
    {"DigitsOnly", "1st", kSecond},
    {"NoDigits", "abc", kFirst},
    {"Empty", "", kFirst},
    {"Hexadecimal", "0x1", kFirst},
    {"TheCount", "2", NoSuchIndex("2")},
    {"LastOfTheHelp", "200", NoSuchIndex("200")},
    {"Negative", "-1", NoSuchIndex("-1")},
    {"AsLargeAsPossible", "2147483647", NoSuchIndex("2147483647")},
};
INSTANTIATE_TEST_SUITE_P(Cli, IndexOfAnOnu, testing::ValuesIn(kIndexes),
                         testing::PrintToStringParamName());

}  // namespace
