// Reading the limits of one path from a text.
#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <string>

#include "optmodule/optmodule_files.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"

namespace {

using std::string;
using test::FakePlatform;
using test::Names;

class PathTest : public test::OptModuleTest {
 protected:
  OptModuleThreshold old_{};
  OptModuleThreshold* path_ = &old_;
};

// ---- Texts --------------------------------------------------------------------

struct TextRow {
  const char* name;
  string text;
  test::PathLimits path;
  friend std::ostream& operator<<(std::ostream& out, const TextRow& row) { return out << row.name; }
};

class ReadPath : public PathTest, public testing::WithParamInterface<TextRow> {};

TEST_P(ReadPath, PartsTheNumbers) {
  Twice([&](int32_t debug) {
    test::ModuleFaults faults("", debug);
    EXPECT_EQ(optmodule_onuthres_read(GetParam().text.c_str(), &path_), 0);
    test::ExpectPath(faults, path_, GetParam().path);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
    EXPECT_EQ(faults.opens.count(), 0);
    std::free(path_);
    test::ExpectNoLeak(faults);
  });
}

const TextRow kTexts[] = {
    {"Four", "-10,-30,-5,-28", {-10, -30, -5, -28}},
    {"NoComma", "12", {0, 0, 0, 12}},
    {"OneComma", "1,2", {1, 0, 0, 2}},
    {"TwoCommas", "1,2,3", {1, 2, 0, 3}},
    {"FourCommas", "1,2,3,4,5", {1, 2, 3, 5}},
    {"FiveCommas", "1,2,3,4,5,6", {1, 2, 3, 6}},
    {"OnlyCommas40", string(40, ','), {0, 0, 0, 0}},
    {"ManyCommas", "1,2,3,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,4", {1, 2, 3, 4}},
    {"Empty", "", {0, 0, 0, 0}},
    {"OneCommaOnly", ",", {0, 0, 0, 0}},
    {"FirstEmpty", ",2,3,4", {0, 2, 3, 4}},
    {"SecondEmpty", "1,,3,4", {1, 0, 3, 4}},
    {"ThirdEmpty", "1,2,,4", {1, 2, 0, 4}},
    {"LastEmpty", "1,2,3,", {1, 2, 3, 0}},
    {"LastOfFiveEmpty", "1,2,3,4,", {1, 2, 3, 0}},
    {"Blanks", " 1 ,\t2\t, 3 , 4 ", {1, 2, 3, 4}},
    {"BlanksOnly", " , ,\t,  ", {0, 0, 0, 0}},
    {"NoDigits", "a,b,c,d", {0, 0, 0, 0}},
    {"TextBehind", "1dBm,2dBm,3dBm,4dBm", {1, 2, 3, 4}},
    {"TextInFront", "x1,2,x3,4", {0, 2, 0, 4}},
    {"Signs", "+1,-2,+3,-4", {1, -2, 3, -4}},
    {"DoubleSigns", "--1,+-2,- 3,-+4", {0, 0, 0, 0}},
    {"Fractions", "1.9,-2.9,0.5,-0.5", {1, -2, 0, 0}},
    {"Hexadecimal", "0x10,0x20,0x30,0x40", {0, 0, 0, 0}},
    {"LeadingZeros", "010,-0020,00,0000000000000000009", {10, -20, 0, 9}},
    {"OtherSeparators", "1;2;3;4", {0, 0, 0, 1}},
    {"Bounds", "2147483647,-2147483648,2147483647", {INT32_MAX, INT32_MIN, 0, INT32_MAX}},
    {"Beyond32Bits", "2147483648,-2147483649,4294967297", {INT32_MAX, INT32_MIN, 0, INT32_MAX}},
    {"LastBeyond32Bits", ",,99999999999999999999,-4294967295", {0, 0, INT32_MAX, INT32_MIN}},
    {"Of40Characters",
     "1000000001,-100000002,+100000003,1000004",
     {1000000001, -100000002, 100000003, 1000004}},
    {"OneNumberOf40Characters", string(39, '0') + "7", {0, 0, 0, 7}},
};
INSTANTIATE_TEST_SUITE_P(Texts, ReadPath, testing::ValuesIn(kTexts),
                         testing::PrintToStringParamName());

// ---- Refusals -----------------------------------------------------------------

TEST_F(PathTest, NullArgumentsLeaveTheOutputAlone) {
  Twice([&](int32_t debug) {
    test::ModuleFaults faults("", debug);
    EXPECT_EQ(optmodule_onuthres_read(nullptr, &path_), -24);
    EXPECT_EQ(path_, &old_);
    EXPECT_EQ(optmodule_onuthres_read("1,2,3,4", nullptr), -24);
    EXPECT_EQ(optmodule_onuthres_read(string(41, '1').c_str(), nullptr), -24);
    EXPECT_EQ(optmodule_onuthres_read(nullptr, nullptr), -24);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
  });
}

TEST_F(PathTest, TextIsTooLong) {
  for (const string& text : {"1,2,3," + string(35, '4'), string(41, ','), string(41, ' '),
                             "1,2,3,4" + string(505, ' ')}) {
    SCOPED_TRACE(text.size());
    Twice([&](int32_t debug) {
      test::ModuleFaults faults("", debug);
      path_ = &old_;
      EXPECT_EQ(optmodule_onuthres_read(text.c_str(), &path_), -33);
      EXPECT_EQ(path_, nullptr);
      EXPECT_EQ(faults.allocations.count(), 0);
      EXPECT_EQ(FakePlatform::TakeLog(), Names{test::optical::PathTooLong(text)});
    });
  }
}

TEST_F(PathTest, NoMemory) {
  Twice([&](int32_t debug) {
    test::ModuleFaults faults("", debug);
    faults.allocations.FailFrom(1, 1);
    path_ = &old_;
    EXPECT_EQ(optmodule_onuthres_read("1,2,3,4", &path_), -22);
    EXPECT_EQ(path_, nullptr);
    EXPECT_EQ(faults.allocations.count(), 1);
    EXPECT_EQ(FakePlatform::TakeLog(), Names{test::optical::kNoMemoryForPath});
    test::ExpectNoLeak(faults);
  });
}

}  // namespace
