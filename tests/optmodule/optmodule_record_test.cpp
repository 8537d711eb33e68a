// Reading one module from its section.
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

#include "optmodule/optmodule_files.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"
#include "sys_context/cfgfile.h"

namespace {

using std::string;
using test::FakePlatform;
using test::ModuleFaults;
using test::ModuleSection;
using test::Names;
using test::OptModule;
using test::optical::BadPathCount;
using test::optical::NoNumber;
using test::optical::NoPath;
using test::optical::PathNotRead;
using test::optical::PathTooLong;

class OptModuleRecordTest : public test::OptModuleTest {
 protected:
  OptModuleInfo old_{};
  OptModuleInfo* module_ = &old_;
};

const string kPath = "-10,-30,-5,-28";

// A section with these values, and one path that is there.
string Values(const string& kind, const string& port_type, const string& phy_type,
              const string& path_count = "1") {
  return ModuleSection("Sec", kind, port_type, phy_type, {kPath}, path_count);
}

// A section with this number of paths, and five paths that are there.
string WithPathCount(const string& count) {
  return ModuleSection("Sec", "1", "2", "3",
                       {"1,2,3,4", "5,6,7,8", "9,10,11,12", "13,14,15,16", "17,18,19,20"}, count);
}

// ---- What is read -------------------------------------------------------------

struct GoodRow {
  const char* name;
  string file;
  OptModule module;
  Names log = {};
  friend std::ostream& operator<<(std::ostream& out, const GoodRow& row) { return out << row.name; }
};

class ReadModule : public OptModuleRecordTest, public testing::WithParamInterface<GoodRow> {};

TEST_P(ReadModule, GivesItsRecord) {
  Twice([&](int32_t debug) {
    ModuleFaults faults(GetParam().file, debug);
    EXPECT_EQ(optmodule_oneinfo_read(ModuleFaults::kPath, "Sec", 0, &module_), 0);
    test::ExpectModule(faults, module_, GetParam().module);
    EXPECT_EQ(faults.blocks.size(), test::BlocksOf(GetParam().module));
    EXPECT_EQ(FakePlatform::TakeLog(), GetParam().log);
    EXPECT_EQ(optmodule_oneobj_free(module_), 0);
    EXPECT_EQ(faults.blocks.size(), 0u);
    test::ExpectAllClosed(faults);
  });
}

const OptModule kWithoutPaths = {1, 2, 3, {}};
const OptModule kOnePath = {1, 2, 3, {{1, 2, 3, 4}}};
const OptModule kFourPaths = {
    1, 2, 3, {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}}};

const GoodRow kNumbers[] = {
    {"Kinds", Values("1", "2", "3"), {1, 2, 3, {{-10, -30, -5, -28}}}},
    {"Zeros", Values("0", "0", "0"), {0, 0, 0, {{-10, -30, -5, -28}}}},
    {"NoDigits", Values("PON", "", "0x5"), {0, 0, 0, {{-10, -30, -5, -28}}}},
    {"TextBehind", Values(" +1x", "2 3", "4.9"), {1, 2, 4, {{-10, -30, -5, -28}}}},
    {"Of16Bits", Values("65535", "65535", "65535"), {65535, 65535, 65535, {{-10, -30, -5, -28}}}},
    {"Beyond16Bits", Values("65537", "65538", "65539"), {1, 65538, 3, {{-10, -30, -5, -28}}}},
    {"Of31Bits",
     Values("2147483647", "2147483647", "2147483647"),
     {65535, 2147483647, 65535, {{-10, -30, -5, -28}}}},
    {"Beyond32Bits",
     Values("4294967297", "4294967298", "4294967299"),
     {65535, 2147483647, 65535, {{-10, -30, -5, -28}}}},
    {"Negative", Values("-1", "-2", "-3"), {65535, 4294967294, 65533, {{-10, -30, -5, -28}}}},
    {"FarBelowZero",
     Values("-2147483648", "-2147483648", "-2147418113"),
     {0, 2147483648, 65535, {{-10, -30, -5, -28}}}},
};
INSTANTIATE_TEST_SUITE_P(Numbers, ReadModule, testing::ValuesIn(kNumbers),
                         testing::PrintToStringParamName());

const GoodRow kPathCounts[] = {
    {"One", WithPathCount("1"), kOnePath},
    {"Two", WithPathCount("2"), {1, 2, 3, {{1, 2, 3, 4}, {5, 6, 7, 8}}}},
    {"Three", WithPathCount("3"), {1, 2, 3, {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}}}},
    {"Four", WithPathCount("4"), kFourPaths},
    {"FourBeyond16Bits", WithPathCount("65540"), kFourPaths},
    {"OneBeyond16Bits", WithPathCount("65537"), kOnePath},
    {"OneFarBelowZero", WithPathCount("-65535"), kOnePath},
    {"TextBehind", WithPathCount("1 of 4"), kOnePath},
    {"Zero", WithPathCount("0"), kWithoutPaths, {BadPathCount("0")}},
    {"Five", WithPathCount("5"), kWithoutPaths, {BadPathCount("5")}},
    {"Of16Bits", WithPathCount("65535"), kWithoutPaths, {BadPathCount("65535")}},
    {"ZeroBeyond16Bits", WithPathCount("65536"), kWithoutPaths, {BadPathCount("0")}},
    {"FiveBeyond16Bits", WithPathCount("65541"), kWithoutPaths, {BadPathCount("5")}},
    {"Negative", WithPathCount("-1"), kWithoutPaths, {BadPathCount("65535")}},
    {"Beyond32Bits", WithPathCount("4294967297"), kWithoutPaths, {BadPathCount("65535")}},
    {"Text", WithPathCount("abc"), kWithoutPaths, {BadPathCount("0")}},
    {"Empty", WithPathCount(" "), kWithoutPaths, {BadPathCount("0")}},
};
INSTANTIATE_TEST_SUITE_P(PathCounts, ReadModule, testing::ValuesIn(kPathCounts),
                         testing::PrintToStringParamName());

const string k40 = "1000000001,-100000002,+100000003,1000004";
const GoodRow kFiles[] = {
    {"KeysInAnyOrder",
     "[Sec]\nPath2=5,6,7,8\nPathNum=2\nPath1=1,2,3,4\nPhyType=3\nPortType=2\nPortKind=1\n",
     {1, 2, 3, {{1, 2, 3, 4}, {5, 6, 7, 8}}}},
    {"OtherKeys",
     "[Sec]\nX=9\nPortKind=1\nPortkind=9\nPortType=2\nPath=9\nPhyType=3\nPath0=9,9,9,9"
     "\nPathNum=1\nPath01=9,9,9,9\nPath11=9,9,9,9\nPath1=1,2,3,4\n",
     kOnePath},
    {"OtherSections",
     ModuleSection("Sec1", "9", "9", "9") + ModuleSection("Sec", "1", "2", "3", {"1,2,3,4"}) +
         ModuleSection("Sec", "8", "8", "8"),
     kOnePath},
    {"BadSectionBehind", ModuleSection("Sec", "1", "2", "3", {"1,2,3,4"}) + "[Broken\n", kOnePath},
    {"ValueOf40Characters",
     ModuleSection("Sec", "1", "2", "3", {k40 + "  \t"}),
     {1, 2, 3, {{1000000001, -100000002, 100000003, 1000004}}}},
    {"ValueOnTwoLines", ModuleSection("Sec", "1", "2", "3", {"1,2,+\n3,4"}), kOnePath},
    {"EmptyValue", ModuleSection("Sec", "1", "2", "3", {""}), {1, 2, 3, {{0, 0, 0, 0}}}},
};
INSTANTIATE_TEST_SUITE_P(Files, ReadModule, testing::ValuesIn(kFiles),
                         testing::PrintToStringParamName());

// ---- What is missing ----------------------------------------------------------

struct BadRow {
  const char* name;
  string file;
  int32_t code;
  Names log;
  friend std::ostream& operator<<(std::ostream& out, const BadRow& row) { return out << row.name; }
};

class FailToReadModule : public OptModuleRecordTest, public testing::WithParamInterface<BadRow> {};

TEST_P(FailToReadModule, GivesNoneAndKeepsNothing) {
  Twice([&](int32_t debug) {
    ModuleFaults faults(GetParam().file, debug);
    module_ = &old_;
    EXPECT_EQ(optmodule_oneinfo_read(ModuleFaults::kPath, "Sec", 0, &module_), GetParam().code);
    EXPECT_EQ(module_, nullptr);
    EXPECT_EQ(FakePlatform::TakeLog(), GetParam().log);
    EXPECT_EQ(faults.blocks.size(), 0u);
    test::ExpectAllClosed(faults);
  });
}

Names TooLong(const string& path) {
  return {PathTooLong(path), PathNotRead("-33", path)};
}
// A section with four paths and one key left out.
string Without(const string& line) {
  return test::Replaced(
      ModuleSection("Sec", "1", "2", "3", {"1,2,3,4", "5,6,7,8", "9,10,11,12", "13,14,15,16"}),
      line, "");
}
const string k41 = "1000000001,-100000002,+100000003,10000004";

const BadRow kBad[] = {
    {"NoSection", "[sec]\nPortKind=1\n", -1, {NoNumber("-1", "Sec", "PortKind")}},
    {"EmptyFile", "", -1, {NoNumber("-1", "Sec", "PortKind")}},
    {"NoKey", "[Sec]\n", -1, {NoNumber("-2", "Sec", "PortKind")}},
    {"NoKind", Without("PortKind=1\n"), -1, {NoNumber("-2", "Sec", "PortKind")}},
    {"NoPortType", Without("PortType=2\n"), -2, {NoNumber("-2", "Sec", "PortType")}},
    {"NoPhyType", Without("PhyType=3\n"), -3, {NoNumber("-2", "Sec", "PhyType")}},
    {"NoPathCount", Without("PathNum=4\n"), -4, {NoNumber("-2", "Sec", "PathNum")}},
    {"KeysOfOtherCase", "[Sec]\nportkind=1\n", -1, {NoNumber("-2", "Sec", "PortKind")}},
    {"OnlyPathCount", "[Sec]\nPathNum=9\n", -1, {NoNumber("-2", "Sec", "PortKind")}},
    {"OnlyKind", "[Sec]\nPortKind=1\n", -2, {NoNumber("-2", "Sec", "PortType")}},
    {"KindAndPortType", "[Sec]\nPortKind=1\nPortType=1\n", -3, {NoNumber("-2", "Sec", "PhyType")}},
    {"KeyInAnotherSection",
     "[Sec]\nPortKind=1\n[Other]\nPortType=2\n",
     -2,
     {NoNumber("-2", "Sec", "PortType")}},
    {"NonsenseInFront", "[Sec]\nnonsense\nPortKind=1\n", -1, {NoNumber("-14", "Sec", "PortKind")}},
    {"NonsenseBetween",
     test::Replaced(Without(""), "PhyType", "nonsense\nPhyType"),
     -3,
     {NoNumber("-14", "Sec", "PhyType")}},
    {"BrokenHeader", "[Broken\n" + Without(""), -1, {NoNumber("-14", "Sec", "PortKind")}},
    {"NoPath1", Without("Path1=1,2,3,4\n"), -6, {NoPath("-2", "Sec", "Path1")}},
    {"NoPath2", Without("Path2=5,6,7,8\n"), -6, {NoPath("-2", "Sec", "Path2")}},
    {"NoPath3", Without("Path3=9,10,11,12\n"), -6, {NoPath("-2", "Sec", "Path3")}},
    {"NoPath4", Without("Path4=13,14,15,16\n"), -6, {NoPath("-2", "Sec", "Path4")}},
    {"NonsenseInFrontOfPath",
     test::Replaced(Without(""), "Path2", "nonsense\nPath2"),
     -6,
     {NoPath("-14", "Sec", "Path2")}},
    {"PathBeyond512Characters",
     ModuleSection("Sec", "1", "2", "3", {string(400, '1') + "+\n" + string(200, '2')}),
     -6,
     {NoPath("-22", "Sec", "Path1")}},
    {"FirstPathTooLong", ModuleSection("Sec", "1", "2", "3", {k41, k40}), -7, TooLong(k41)},
    {"SecondPathTooLong", ModuleSection("Sec", "1", "2", "3", {k40, k41}), -7, TooLong(k41)},
    {"FourthPathTooLong", ModuleSection("Sec", "1", "2", "3", {k40, "", k40, k41}), -7,
     TooLong(k41)},
    {"LongestPath", ModuleSection("Sec", "1", "2", "3", {string(505, '1')}), -7,
     TooLong(string(505, '1'))},
};
INSTANTIATE_TEST_SUITE_P(Bad, FailToReadModule, testing::ValuesIn(kBad),
                         testing::PrintToStringParamName());

// ---- The start ----------------------------------------------------------------

TEST_F(OptModuleRecordTest, ReadsFromTheStartOn) {
  const string first = ModuleSection("Sec", "9", "9", "9", {"9,9,9,9"});
  const string second = ModuleSection("Sec", "1", "2", "3", {"1,2,3,4"});
  ModuleFaults faults(first + second);
  EXPECT_EQ(optmodule_oneinfo_read(ModuleFaults::kPath, "Sec", static_cast<int32_t>(first.size()),
                                   &module_),
            0);
  test::ExpectModule(faults, module_, kOnePath);
  EXPECT_EQ(CFG_section_line_no, 1);  // also for the last key
  EXPECT_EQ(CFG_key_line_no, 6);
  optmodule_oneobj_free(module_);

  // Within the first header: that is no header then.
  EXPECT_EQ(optmodule_oneinfo_read(ModuleFaults::kPath, "Sec", 1, &module_), 0);
  test::ExpectModule(faults, module_, kOnePath);
  EXPECT_EQ(CFG_section_line_no, 7);
  optmodule_oneobj_free(module_);
  EXPECT_EQ(FakePlatform::TakeLog(), Names());
}

TEST_F(OptModuleRecordTest, StartsBehindTheSection) {
  const string text = ModuleSection("Sec", "1", "2", "3", {"1,2,3,4"});
  for (const int32_t start :
       {1, static_cast<int32_t>(text.size()), std::numeric_limits<int32_t>::max()}) {
    SCOPED_TRACE(start);
    ModuleFaults faults(text);
    module_ = &old_;
    EXPECT_EQ(optmodule_oneinfo_read(ModuleFaults::kPath, "Sec", start, &module_), -1);
    EXPECT_EQ(module_, nullptr);
    EXPECT_EQ(FakePlatform::TakeLog(), Names{NoNumber("-1", "Sec", "PortKind")});
    EXPECT_EQ(faults.blocks.size(), 0u);
  }
}

// ---- Refusals -----------------------------------------------------------------

TEST_F(OptModuleRecordTest, NegativeStart) {
  for (const int32_t start : {-1, -100, std::numeric_limits<int32_t>::min()}) {
    Twice([&](int32_t debug) {
      ModuleFaults faults(Values("1", "2", "3"), debug);
      EXPECT_EQ(optmodule_oneinfo_read(ModuleFaults::kPath, "Sec", start, &module_), -18);
      EXPECT_EQ(module_, &old_);
      EXPECT_EQ(faults.opens.count(), 0);
      EXPECT_EQ(faults.allocations.count(), 0);
      EXPECT_EQ(FakePlatform::TakeLog(), Names());
    });
  }
}

TEST_F(OptModuleRecordTest, NullArguments) {
  for (const int32_t start : {0, -1}) {  // their code wins
    for (unsigned given = 0; given < 7; ++given) {
      SCOPED_TRACE("given, as bits: " + std::to_string(given));
      Twice([&](int32_t debug) {
        ModuleFaults faults(Values("1", "2", "3"), debug);
        EXPECT_EQ(optmodule_oneinfo_read((given & 1) != 0 ? ModuleFaults::kPath : nullptr,
                                         (given & 2) != 0 ? "Sec" : nullptr, start,
                                         (given & 4) != 0 ? &module_ : nullptr),
                  -24);
        EXPECT_EQ(module_, &old_);
        EXPECT_EQ(faults.opens.count(), 0);
        EXPECT_EQ(faults.allocations.count(), 0);
        EXPECT_EQ(FakePlatform::TakeLog(), Names());
      });
    }
  }
}

}  // namespace
