// The number conversion: decimal, forgiving, and stopping at 32 bits.
#include "common/numbers.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct NumberRow {
  const char* name;
  const char* text;
  int32_t number;
  uint32_t as_unsigned;
  friend std::ostream& operator<<(std::ostream& out, const NumberRow& row) {
    return out << row.name;
  }
};

class Numbers : public testing::TestWithParam<NumberRow> {};

TEST_P(Numbers, AreConverted) {
  EXPECT_EQ(sys_context::ParseNumber(GetParam().text), GetParam().number);
  EXPECT_EQ(sys_context::ParseUnsigned(GetParam().text), GetParam().as_unsigned);
}

constexpr NumberRow kNumbers[] = {
    {"Zero", "0", 0, 0u},
    {"MinusZero", "-0", 0, 0u},
    {"One", "1", 1, 1u},
    {"MinusOne", "-1", -1, 4294967295u},
    {"PlusFive", "+5", 5, 5u},
    {"LeadingZeros", "007", 7, 7u},
    {"ManyLeadingZeros", "0000000000000000000000000000000042", 42, 42u},
    {"NotOctal", "010", 10, 10u},
    {"NotOctalDigits", "089", 89, 89u},
    {"NotHexadecimal", "0x10", 0, 0u},
    {"NotHexadecimalDigits", "ff", 0, 0u},
    {"NotBinary", "0b11", 0, 0u},
    {"Empty", "", 0, 0u},
    {"OnlyBlanks", " \t ", 0, 0u},
    {"OnlySign", "-", 0, 0u},
    {"TwoSigns", "--1", 0, 0u},
    {"MixedSigns", "+-1", 0, 0u},
    {"BlankBehindSign", "- 1", 0, 0u},
    {"Text", "abc", 0, 0u},
    {"TextBeforeDigits", "x12", 0, 0u},
    {"TextBehindDigits", " 12x", 12, 12u},
    {"SecondNumber", "1 2", 1, 1u},
    {"Fraction", "12.9", 12, 12u},
    {"Comma", "1,000", 1, 1u},
    {"AllWhiteSpace", " \t\n\v\f\r7", 7, 7u},
    {"BehindBlanksNegative", "  -12  ", -12, 4294967284u},
    {"LargestSigned", "2147483647", 2147483647, 2147483647u},
    {"AboveSigned", "2147483648", 2147483647, 2147483647u},
    {"LargestUnsigned", "4294967295", 2147483647, 2147483647u},
    {"AboveUnsigned", "4294967296", 2147483647, 2147483647u},
    {"AboveUnsignedByFive", "4294967301", 2147483647, 2147483647u},
    {"Above64Bits", "18446744073709551617", 2147483647, 2147483647u},
    {"FortyDigits", "9999999999999999999999999999999999999999", 2147483647, 2147483647u},
    {"SmallestSigned", "-2147483648", INT32_MIN, 2147483648u},
    {"BelowSigned", "-2147483649", INT32_MIN, 2147483648u},
    {"BelowUnsigned", "-4294967295", INT32_MIN, 2147483648u},
    {"Below64Bits", "-18446744073709551617", INT32_MIN, 2147483648u},
    {"FortyDigitsBelow", "-9999999999999999999999999999999999999999", INT32_MIN, 2147483648u},
};
INSTANTIATE_TEST_SUITE_P(Numbers, Numbers, testing::ValuesIn(kNumbers),
                         testing::PrintToStringParamName());

}  // namespace
