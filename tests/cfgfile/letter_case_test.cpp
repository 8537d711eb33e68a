// The case converters: results, messages, and how often they yield.
#include <cctype>
#include <clocale>
#include <ostream>
#include <string>
#include <vector>

#include "support/tables.h"
#include "support/text.h"
#include "sys_context/cfgfile.h"

namespace {

// In this locale 0xe4 and 0xc4 are letters.
bool has_more_letters = false;

}  // namespace

// The linker's --wrap leads the C library's converters here.
extern "C" {
int __real_toupper(int character);
int __real_tolower(int character);
int __wrap_toupper(int character);
int __wrap_tolower(int character);

int __wrap_toupper(int character) {
  return has_more_letters && character == 0xe4 ? 0xc4 : __real_toupper(character);
}
int __wrap_tolower(int character) {
  return has_more_letters && character == 0xc4 ? 0xe4 : __real_tolower(character);
}
}

namespace {

using test::Hex;
using Converter = int32_t (*)(const char*, uint32_t, char*, uint32_t);

struct Member {
  std::string name;
  Converter convert;
  int (*plain)(int);
  const char* null_message;      // before the two pointers
  const char* length_message;    // before the length
  const char* capacity_message;  // before the length
};

const Member kMembers[] = {
    {"Upper", ddStringToUppercase, std::toupper, "\r\nddStringToUppercase, strOri = ",
     "\r\nddStringToUppercase, ulOriLen = ", "\r\nddStringToUppercase, ulOriLen = "},
    {"Lower", ddStringToLowercase, std::tolower, "\r\nddStringToLowercase, strOri = ",
     "\r\nddStringToLowercase, ulOriLen = ", "\r\nddStringToLowercase, ulOriLen = "},
};

std::ostream& operator<<(std::ostream& stream, const Member& member) {
  return stream << member.name;
}

std::string MemberName(const testing::TestParamInfo<Member>& member) {
  return member.param.name;
}

class LetterCase : public test::LibraryTest, public testing::WithParamInterface<Member> {
 protected:
  // Converts with the switch off, then on. The destination stays as it is, the
  // processor is not yielded. Returns what is printed with the switch on.
  std::string Refused(int32_t code, const char* source, uint32_t length, char* destination,
                      uint32_t capacity) {
    test::Console console;
    ddDebugPrint = 0;
    EXPECT_EQ(GetParam().convert(source, length, destination, capacity), code);
    EXPECT_EQ(console.Text(), "");
    ddDebugPrint = 1;
    EXPECT_EQ(GetParam().convert(source, length, destination, capacity), code);
    EXPECT_TRUE(test::FakePlatform::Get().delays.empty());
    return console.Text();
  }
};

TEST_P(LetterCase, ConvertsEveryByte) {
  std::string source;
  std::string expected;
  for (int byte = 0; byte < 256; ++byte) {
    source += static_cast<char>(byte);
    const bool letter = byte < 128 && std::isalpha(byte) != 0;
    expected += static_cast<char>(letter ? GetParam().plain(byte) : byte);
  }
  ASSERT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C");
  std::string destination(256, '#');
  EXPECT_EQ(GetParam().convert(source.data(), 256, destination.data(), 256), 0);
  EXPECT_EQ(destination, expected);
}

TEST_P(LetterCase, ConvertsTheLettersOfTheLocale) {
  has_more_letters = true;
  std::string destination(3, '#');
  EXPECT_EQ(GetParam().convert("\xc4-\xe4", 3, destination.data(), 3), 0);
  has_more_letters = false;
  EXPECT_EQ(destination, GetParam().name == "Upper" ? "\xc4-\xc4" : "\xe4-\xe4");
}

TEST_P(LetterCase, WritesNoTerminator) {
  std::string destination = "########";
  EXPECT_EQ(GetParam().convert("12345", 5, destination.data(), 8), 0);
  EXPECT_EQ(destination, "12345###");
}

TEST_P(LetterCase, ConvertsTheTerminatorWhenCounted) {
  std::string destination = "########";
  EXPECT_EQ(GetParam().convert("123", 4, destination.data(), 4), 0);
  EXPECT_EQ(destination, std::string("123\0####", 8));
}

TEST_P(LetterCase, ConvertsInPlace) {
  std::string text = "a1B2";
  EXPECT_EQ(GetParam().convert(text.data(), 4, text.data(), 4), 0);
  EXPECT_EQ(text, GetParam().name == "Upper" ? "A1B2" : "a1b2");
}

TEST_P(LetterCase, ConvertsNothing) {
  char destination = '#';
  ddDebugPrint = 1;
  test::Console console;
  EXPECT_EQ(GetParam().convert("a", 0, &destination, 0), 0);
  EXPECT_EQ(destination, '#');
  EXPECT_EQ(console.Text(), "");
}

TEST_P(LetterCase, Converts500) {
  const std::string source(500, GetParam().name == "Upper" ? 'q' : 'Q');
  std::string expected(501, GetParam().name == "Upper" ? 'Q' : 'q');
  expected.back() = '#';
  std::string destination(501, '#');
  EXPECT_EQ(GetParam().convert(source.data(), 500, destination.data(), 500), 0);
  EXPECT_EQ(destination, expected);
}

TEST_P(LetterCase, NullSource) {
  char destination[] = "#";
  EXPECT_EQ(Refused(-2, nullptr, 1, destination, 1),
            GetParam().null_message + std::string("0x0, strDst = ") + Hex(destination));
  EXPECT_STREQ(destination, "#");
}

TEST_P(LetterCase, NullDestination) {
  const char source[] = "a";
  EXPECT_EQ(Refused(-2, source, 1, nullptr, 1),
            GetParam().null_message + Hex(source) + ", strDst = 0x0");
}

TEST_P(LetterCase, NullsWinOverLengths) {
  EXPECT_EQ(Refused(-2, nullptr, 501, nullptr, 0),
            GetParam().null_message + std::string("0x0, strDst = 0x0"));
}

TEST_P(LetterCase, LengthOf501) {
  const std::string source(501, 'a');
  std::string destination(501, '#');
  EXPECT_EQ(Refused(-33, source.data(), 501, destination.data(), 501),
            GetParam().length_message + std::string("501"));
  EXPECT_EQ(destination, std::string(501, '#'));
}

TEST_P(LetterCase, LengthWinsOverCapacity) {
  char destination[] = "#";
  EXPECT_EQ(Refused(-33, "a", 501, destination, 1), GetParam().length_message + std::string("501"));
}

// Lengths are unsigned: this one is not below 500, though it is shown as -1.
TEST_P(LetterCase, LargestLength) {
  char destination[] = "#";
  EXPECT_EQ(Refused(-33, "a", 0xFFFF'FFFF, destination, 0xFFFF'FFFF),
            GetParam().length_message + std::string("-1"));
  EXPECT_STREQ(destination, "#");
}

TEST_P(LetterCase, CapacityOneTooSmall) {
  char destination[] = "##";
  EXPECT_EQ(Refused(-33, "abc", 3, destination, 2),
            GetParam().capacity_message + std::string("3, ulDstLen = 2"));
  EXPECT_STREQ(destination, "##");
}

TEST_P(LetterCase, LargestCapacity) {
  char destination[] = "#";
  EXPECT_EQ(GetParam().convert("1", 1, destination, 0xFFFF'FFFF), 0);
  EXPECT_STREQ(destination, "1");
}

TEST_P(LetterCase, YieldsOneTickAfterEach64) {
  const std::string source(500, 'a');
  std::string destination(500, '#');
  const std::pair<uint32_t, size_t> kYields[] = {{0, 0},   {1, 0},   {63, 0},  {64, 1}, {65, 1},
                                                 {127, 1}, {128, 2}, {129, 2}, {500, 7}};
  for (const auto& [length, yields] : kYields) {
    SCOPED_TRACE(length);
    test::FakePlatform::Reset();
    EXPECT_EQ(GetParam().convert(source.data(), length, destination.data(), 500), 0);
    EXPECT_EQ(test::FakePlatform::Get().delays, std::vector<int32_t>(yields, 1));
  }
}

TEST_P(LetterCase, YieldsBeforeItGoesOn) {
  static std::string destination;
  static std::vector<size_t> converted;
  destination.assign(130, '#');
  converted.clear();
  test::FakePlatform::Get().on_delay = [] { converted.push_back(destination.find('#')); };
  EXPECT_EQ(GetParam().convert(std::string(130, 'a').data(), 130, destination.data(), 130), 0);
  EXPECT_EQ(converted, (std::vector<size_t>{64, 128}));
}

INSTANTIATE_TEST_SUITE_P(To, LetterCase, testing::ValuesIn(kMembers), MemberName);

TEST(LetterCaseText, Upper) {
  char destination[12];
  ASSERT_EQ(ddStringToUppercase("gPon-1 {az}", 12, destination, 12), 0);
  EXPECT_STREQ(destination, "GPON-1 {AZ}");
}

TEST(LetterCaseText, Lower) {
  char destination[12];
  ASSERT_EQ(ddStringToLowercase("gPON-1 [AZ]", 12, destination, 12), 0);
  EXPECT_STREQ(destination, "gpon-1 [az]");
}

}  // namespace
