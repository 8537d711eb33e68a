// Forgetting and releasing optical modules.
#include <cstdint>
#include <ostream>
#include <vector>

#include "optmodule/optmodule_files.h"
#include "support/leaks.h"
#include "support/records.h"

namespace {

using test::FakePlatform;
using test::Names;
using test::ZeroedBlocks;

// A module with an array for paths, and the paths that are there.
OptModuleInfo* NewModuleWithHoles(const std::vector<bool>& there) {
  auto* const module = ZeroedBlocks<OptModuleInfo>(1);
  module->pathnum = static_cast<uint16_t>(there.size());
  module->pathinfo = ZeroedBlocks<OptModuleThreshold*>(there.size());
  for (size_t i = 0; i < there.size(); ++i) {
    module->pathinfo[i] = there[i] ? ZeroedBlocks<OptModuleThreshold>(1) : nullptr;
  }
  return module;
}

class OptModuleReleaseTest : public test::OptModuleTest {};

// ---- One module ---------------------------------------------------------------

TEST_F(OptModuleReleaseTest, NoModule) {
  Twice([](int32_t debug) {
    test::ModuleFaults faults("", debug);
    EXPECT_EQ(optmodule_oneobj_free(nullptr), -24);
    EXPECT_EQ(faults.frees, 0);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
  });
}

TEST_F(OptModuleReleaseTest, ModuleWithoutPaths) {
  for (const uint16_t announced : {uint16_t{0}, uint16_t{4}}) {  // an array may fail to come
    Twice([&](int32_t debug) {
      test::ModuleFaults faults("", debug);
      auto* const module = ZeroedBlocks<OptModuleInfo>(1);
      module->pathnum = announced;
      EXPECT_EQ(optmodule_oneobj_free(module), 0);
      EXPECT_EQ(faults.blocks.size(), 0u);
      EXPECT_EQ(FakePlatform::TakeLog(), Names());
    });
  }
}

struct PathsRow {
  const char* name;
  std::vector<bool> there;
  int blocks;
  friend std::ostream& operator<<(std::ostream& out, const PathsRow& row) {
    return out << row.name;
  }
};

class ReleaseModule : public OptModuleReleaseTest, public testing::WithParamInterface<PathsRow> {};

TEST_P(ReleaseModule, WithItsPaths) {
  Twice([&](int32_t debug) {
    test::ModuleFaults faults("", debug);
    EXPECT_EQ(optmodule_oneobj_free(NewModuleWithHoles(GetParam().there)), 0);
    EXPECT_EQ(faults.frees, GetParam().blocks);
    EXPECT_EQ(faults.blocks.size(), 0u);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
  });
}

const PathsRow kPaths[] = {
    {"OnePath", {true}, 3},
    {"FourPaths", {true, true, true, true}, 6},
    {"FirstMissing", {false, true, true}, 4},
    {"HoleInTheMiddle", {true, false, true, true}, 5},
    {"LastMissing", {true, true, false}, 4},
    {"AllMissing", {false, false, false, false}, 2},
};
INSTANTIATE_TEST_SUITE_P(Paths, ReleaseModule, testing::ValuesIn(kPaths),
                         testing::PrintToStringParamName());

// ---- The list -----------------------------------------------------------------

TEST_F(OptModuleReleaseTest, ListWithEmptyPlaces) {
  Twice([](int32_t debug) {
    test::ModuleFaults faults("", debug);
    auto** const modules = ZeroedBlocks<OptModuleInfo*>(5);
    modules[1] = NewModuleWithHoles({true, true});
    modules[3] = NewModuleWithHoles({false, true});
    g_optmdule_infolist = {4, modules};
    EXPECT_EQ(optmodule_file_free(), 0);
    EXPECT_EQ(g_optmdule_infolist.listnum, 0);
    EXPECT_EQ(g_optmdule_infolist.objlist, nullptr);
    EXPECT_EQ(faults.frees, 8);
    EXPECT_EQ(faults.blocks.size(), 0u);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
  });
}

TEST_F(OptModuleReleaseTest, ListOfNone) {
  test::ModuleFaults faults("");
  g_optmdule_infolist = {0, ZeroedBlocks<OptModuleInfo*>(3)};
  EXPECT_EQ(optmodule_file_free(), 0);
  EXPECT_EQ(g_optmdule_infolist.objlist, nullptr);
  EXPECT_EQ(faults.blocks.size(), 0u);
}

TEST_F(OptModuleReleaseTest, ListWithoutArray) {
  for (const uint16_t count : {uint16_t{0}, uint16_t{7}, uint16_t{65535}}) {
    Twice([&](int32_t debug) {
      test::ModuleFaults faults("", debug);
      g_optmdule_infolist = {count, nullptr};
      EXPECT_EQ(optmodule_file_free(), 0);
      EXPECT_EQ(g_optmdule_infolist.listnum, 0);
      EXPECT_EQ(g_optmdule_infolist.objlist, nullptr);
      EXPECT_EQ(FakePlatform::TakeLog(), Names());
    });
  }
}

TEST_F(OptModuleReleaseTest, ReleasedTwice) {
  test::ModuleFaults faults("");
  g_optmdule_infolist = {1, ZeroedBlocks<OptModuleInfo*>(1)};
  g_optmdule_infolist.objlist[0] = NewModuleWithHoles({true});
  EXPECT_EQ(optmodule_file_free(), 0);
  EXPECT_EQ(optmodule_file_free(), 0);
  EXPECT_EQ(faults.frees, 4);
  EXPECT_EQ(faults.blocks.size(), 0u);
}

TEST_F(OptModuleReleaseTest, InitForgetsWithoutReleasing) {
  Twice([](int32_t debug) {
    test::ModuleFaults faults("", debug);
    const OptModuleInfoList list = {1, ZeroedBlocks<OptModuleInfo*>(1)};
    list.objlist[0] = NewModuleWithHoles({true, true});
    g_optmdule_infolist = list;
    EXPECT_EQ(init_optmodule_info(), 0);
    EXPECT_EQ(g_optmdule_infolist.listnum, 0);
    EXPECT_EQ(g_optmdule_infolist.objlist, nullptr);
    EXPECT_EQ(faults.frees, 0);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());

    g_optmdule_infolist = list;
    optmodule_file_free();
    test::ExpectNoLeak(faults);
  });
}

}  // namespace
