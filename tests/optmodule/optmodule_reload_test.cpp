// What becomes of the list that is there before a load, and loads that load nothing.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "optmodule/optmodule_files.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"
#include "support/rows.h"

namespace {

using std::string;
using test::FakePlatform;
using test::ModuleFaults;
using test::ModuleList;
using test::ModuleSection;
using test::Names;
using test::OptModule;
using test::optical::kNoneAnnounced;
using test::optical::NoCount;
using test::optical::TooMany;

constexpr char kNewPath[] = "/new.ini";

const string kOldFile = ModuleList({"S1", "S2"}) +
                        ModuleSection("S1", "1", "11", "7", {"1,2,3,4", "5,6,7,8"}) +
                        ModuleSection("S2", "3", "12", "8");
const std::vector<OptModule> kOldModules = {{1, 11, 7, {{1, 2, 3, 4}, {5, 6, 7, 8}}},
                                            {3, 12, 8, {}}};
constexpr int kOldBlocks = 6;

// The old list is loaded, and nothing of that is counted.
struct OldList : ModuleFaults {
  explicit OldList(const string& new_file, int32_t debug) : ModuleFaults(kOldFile, debug) {
    EXPECT_EQ(optmodule_infolist_read(kPath), 0);
    before = g_optmdule_infolist;
    allocations = {};
    opens = {};
    seeks = {};
    reads = {};
    contents[kNewPath] = new_text = new_file;
    FakePlatform::TakeLog();
  }

  // Everything is where it was.
  void ExpectKept() {
    EXPECT_EQ(g_optmdule_infolist.objlist, before.objlist);
    test::ExpectModules(*this, 2, kOldModules);
    EXPECT_EQ(frees, 0);
    EXPECT_EQ(allocations.count(), 0);
  }

  string new_text;
  OptModuleInfoList before;
};

class OptModuleReloadTest : public test::OptModuleTest {};

string Announce(const string& count) {
  return "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=" + count +
         "\nSupportedOptModuleInfo1=S1\n" + ModuleSection("S1", "2", "21", "9", {"4,3,2,1"});
}
const std::vector<OptModule> kNewModules = {{2, 21, 9, {{4, 3, 2, 1}}}};

// ---- Loads that fail ----------------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string log;
  test::FaultPlan test::Faults::*plan = nullptr;  // the first such call fails
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadOptModules : public OptModuleReloadTest,
                             public testing::WithParamInterface<FailRow> {};

TEST_P(FailToLoadOptModules, KeepsTheOldList) {
  Twice([&](int32_t debug) {
    OldList faults(GetParam().file, debug);
    if (GetParam().plan != nullptr) {
      (faults.*GetParam().plan).FailFrom(1, 1);
    }
    EXPECT_EQ(optmodule_infolist_read(kNewPath), GetParam().code);
    EXPECT_EQ(FakePlatform::TakeLog(), Names{GetParam().log});
    EXPECT_EQ(faults.opens.count(), 1);
    faults.ExpectKept();
  });
}

const FailRow kFails[] = {
    {"TooMany", Announce("51"), -15, TooMany("51")},
    {"Of16Bits", Announce("65535"), -15, TooMany("65535")},
    {"ZeroBeyond16Bits", Announce("65536"), -15, TooMany("65536")},
    {"OneBeyond16Bits", Announce("65537"), -15, TooMany("65537")},
    {"Largest", Announce("2147483647"), -15, TooMany("2147483647")},
    {"Beyond32Bits", Announce("4294967297"), -15, TooMany("2147483647")},
    {"Negative", Announce("-1"), -15, TooMany("-1")},
    {"MinusFifty", Announce("-50"), -15, TooMany("-50")},
    {"Smallest", Announce("-2147483648"), -15, TooMany("-2147483648")},
    {"OneFarBelowZero", Announce("-65535"), -15, TooMany("-65535")},
    {"NoSection", ModuleSection("S1", "1", "2", "3"), -1, NoCount("-1")},
    {"EmptyFile", "", -1, NoCount("-1")},
    {"SectionOfOtherCase", "[supportedoptmoduleinfo]\nSupportedOptModuleInfoNum=1\n", -1,
     NoCount("-1")},
    {"NoKey", "[SupportedOptModuleInfo]\nSupportedOptModuleInfo1=S1\n", -1, NoCount("-2")},
    {"SecondListHasTheKey", "[SupportedOptModuleInfo]\n" + Announce("1"), -1, NoCount("-2")},
    {"NonsenseInFront", "[SupportedOptModuleInfo]\nnonsense\nSupportedOptModuleInfoNum=1\n", -1,
     NoCount("-14")},
    {"BrokenHeader", "[Broken\n" + Announce("1"), -1, NoCount("-14")},
    {"EntryTooLong",
     "[SupportedOptModuleInfo]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') +
         "\nSupportedOptModuleInfoNum=1\n",
     -1, NoCount("-22")},
    {"NotOpened", Announce("1"), -1, NoCount("-10"), &test::Faults::opens},
    {"NotSought", Announce("1"), -1, NoCount("-12"), &test::Faults::seeks},
    {"NotRead", Announce("1"), -1, NoCount("-12"), &test::Faults::reads},
};
INSTANTIATE_TEST_SUITE_P(Counts, FailToLoadOptModules, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

TEST_F(OptModuleReloadTest, NoPathKeepsTheOldList) {
  Twice([](int32_t debug) {
    OldList faults("", debug);
    EXPECT_EQ(optmodule_infolist_read(nullptr), -24);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
    EXPECT_EQ(faults.opens.count(), 0);
    faults.ExpectKept();
  });
}

// What is not loaded yet stays so, too.
TEST_F(OptModuleReloadTest, FailureWithoutOldList) {
  ModuleFaults faults(Announce("51"));
  EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), -15);
  test::ExpectModules(faults, 0, {});
  EXPECT_EQ(optmodule_infolist_read("/none.ini"), -1);
  test::ExpectModules(faults, 0, {});
  EXPECT_EQ(FakePlatform::TakeLog(), Names({TooMany("51"), NoCount("-10")}));
}

// ---- No modules ---------------------------------------------------------------

class AnnounceNone : public OptModuleReloadTest,
                     public testing::WithParamInterface<test::ZeroRow> {};

TEST_P(AnnounceNone, ReleasesTheOldList) {
  Twice([](int32_t debug) {
    OldList faults(Announce(GetParam().text), debug);
    EXPECT_EQ(optmodule_infolist_read(kNewPath), 0);
    EXPECT_EQ(FakePlatform::TakeLog(), Names{kNoneAnnounced});
    EXPECT_EQ(faults.frees, kOldBlocks);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    test::ExpectModules(faults, 0, {});
  });
}

INSTANTIATE_TEST_SUITE_P(Counts, AnnounceNone, testing::ValuesIn(test::kZeros),
                         testing::PrintToStringParamName());

TEST_F(OptModuleReloadTest, NoneAnnouncedWithoutOldList) {
  for (const uint16_t count : {uint16_t{0}, uint16_t{7}}) {
    ModuleFaults faults(Announce("0"));
    g_optmdule_infolist = {count, nullptr};
    EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), 0);
    EXPECT_EQ(FakePlatform::TakeLog(), Names{kNoneAnnounced});
    test::ExpectModules(faults, 0, {});
  }
}

// ---- Loads over an old list ---------------------------------------------------

TEST_F(OptModuleReloadTest, ReloadReleasesTheOldList) {
  Twice([](int32_t debug) {
    OldList faults(Announce("1"), debug);
    EXPECT_EQ(optmodule_infolist_read(kNewPath), 0);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
    EXPECT_EQ(faults.frees, kOldBlocks);
    test::ExpectModules(faults, 1, kNewModules);
    test::ExpectNoLeak(faults);
  });
}

TEST_F(OptModuleReloadTest, SameFileTwice) {
  OldList faults(kOldFile, 0);
  EXPECT_EQ(optmodule_infolist_read(kNewPath), 0);
  EXPECT_EQ(faults.frees, kOldBlocks);
  test::ExpectModules(faults, 2, kOldModules);
}

TEST_F(OptModuleReloadTest, NothingLeftOfTheFileReleasesTheOldList) {
  OldList faults("[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=3\n", 0);
  EXPECT_EQ(optmodule_infolist_read(kNewPath), 0);
  EXPECT_EQ(faults.frees, kOldBlocks);
  test::ExpectModules(faults, 3, {});
}

TEST_F(OptModuleReloadTest, CountWithoutArrayIsForgotten) {
  ModuleFaults faults(Announce("1"));
  g_optmdule_infolist = {7, nullptr};
  EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), 0);
  test::ExpectModules(faults, 1, kNewModules);
}

// The allocations that a load has made when a block is freed.
const test::Faults* watched = nullptr;
std::vector<int> allocations_at_frees;

TEST_F(OptModuleReloadTest, OldListIsReleasedInFrontOfTheNewArray) {
  OldList faults(Announce("1"), 0);
  watched = &faults;
  allocations_at_frees = {};
  faults.on_free = [](void*, size_t) {
    allocations_at_frees.push_back(watched->allocations.count());
  };
  EXPECT_EQ(optmodule_infolist_read(kNewPath), 0);
  faults.on_free = nullptr;
  EXPECT_EQ(allocations_at_frees, std::vector<int>(kOldBlocks, 0));
}

TEST_F(OptModuleReloadTest, NoMemoryForTheArrayLeavesNothing) {
  for (const int calls : {1, test::FaultPlan::kForEver}) {
    Twice([&](int32_t debug) {
      OldList faults(Announce("1"), debug);
      faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(optmodule_infolist_read(kNewPath), -22);
      EXPECT_EQ(FakePlatform::TakeLog(), Names{test::optical::kNoMemoryForList});
      EXPECT_EQ(faults.frees, kOldBlocks);
      EXPECT_EQ(faults.allocations.count(), 1);
      EXPECT_EQ(faults.opens.count(), 1);
      test::ExpectModules(faults, 0, {});
    });
  }
}

}  // namespace
