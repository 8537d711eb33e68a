// Optical modules for tests: the files that describe them, and what is expected of their
// records.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "support/console.h"
#include "support/faults.h"
#include "support/optmodules.h"
#include "support/tables.h"
#include "support/text.h"
#include "sys_context/optmodule.h"

namespace test {

// ---- Files --------------------------------------------------------------------

// "[<section>]" with these values, and the paths. The number of paths is theirs unless
// another text is given.
inline std::string ModuleSection(const std::string& section, const std::string& kind,
                                 const std::string& port_type, const std::string& phy_type,
                                 const Names& paths = {}, const std::string& path_count = "") {
  return "[" + section + "]\nPortKind=" + kind + "\nPortType=" + port_type +
         "\nPhyType=" + phy_type +
         "\nPathNum=" + (path_count.empty() ? std::to_string(paths.size()) : path_count) + "\n" +
         Numbered("Path", paths);
}

// The list section that names these sections.
inline std::string ModuleList(const Names& sections) {
  return "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=" + std::to_string(sections.size()) +
         "\n" + Numbered("SupportedOptModuleInfo", sections);
}

// The library is watched from then on, with empty tables.
struct ModuleFaults : Faults {
  static constexpr char kPath[] = "/modules.ini";

  // `file` is what the library finds at that path.
  explicit ModuleFaults(std::string file, int32_t debug = 0, const std::string& path = kPath)
      : text(std::move(file)) {
    ResetTables();
    ddDebugPrint = debug;
    allocations = {};
    frees = 0;
    contents[path] = text;
  }

  const std::string text;  // of the file
};

// ---- Records ------------------------------------------------------------------

// A record, its array of paths and each path are one block each.
inline size_t BlocksOf(const OptModule& module) {
  return module.paths.empty() ? 1 : 2 + module.paths.size();
}

inline void ExpectPath(const Faults& faults, OptModuleThreshold* path, const PathLimits& limits) {
  ASSERT_EQ(faults.blocks.count(path), 1u);
  EXPECT_EQ(faults.blocks.at(path), sizeof(OptModuleThreshold));
  EXPECT_EQ(PathLimits::Of(*path), limits);
}

inline void ExpectModule(const Faults& faults, OptModuleInfo* record, const OptModule& module) {
  ASSERT_EQ(faults.blocks.count(record), 1u);
  EXPECT_EQ(faults.blocks.at(record), sizeof(OptModuleInfo));
  ASSERT_EQ(record->pathnum, module.paths.size());
  if (!module.paths.empty()) {
    ASSERT_EQ(faults.blocks.count(record->pathinfo), 1u);
    EXPECT_EQ(faults.blocks.at(record->pathinfo),
              module.paths.size() * sizeof(OptModuleThreshold*));
  }
  for (size_t i = 0; i < module.paths.size(); ++i) {
    SCOPED_TRACE("path at " + std::to_string(i));
    ExpectPath(faults, record->pathinfo[i], module.paths[i]);
  }
  ExpectOptModule(*record, module);
}

// The list has these modules at its start, nothing behind them, and holds no other block.
inline void ExpectModules(const Faults& faults, size_t announced,
                          const std::vector<OptModule>& modules) {
  const OptModuleInfoList& list = g_optmdule_infolist;
  ASSERT_EQ(list.listnum, modules.size());
  if (announced == 0) {
    EXPECT_EQ(list.objlist, nullptr);
    EXPECT_EQ(faults.blocks.size(), 0u);
    return;
  }
  ASSERT_EQ(faults.blocks.count(list.objlist), 1u);
  EXPECT_EQ(faults.blocks.at(list.objlist), announced * sizeof(OptModuleInfo*));
  size_t blocks = 1;
  for (size_t i = 0; i < announced; ++i) {
    SCOPED_TRACE("module at " + std::to_string(i));
    if (i >= modules.size()) {
      EXPECT_EQ(list.objlist[i], nullptr);
      continue;
    }
    ExpectModule(faults, list.objlist[i], modules[i]);
    blocks += BlocksOf(modules[i]);
  }
  EXPECT_EQ(faults.blocks.size(), blocks);
}

// Nothing is ever said on the console, whatever the debug switch.
class OptModuleTest : public LibraryTest {
 protected:
  void TearDown() override {
    if (!HasFailure()) {  // whose words are on the caught console
      EXPECT_EQ(console_.Text(), "");
    }
    LibraryTest::TearDown();
  }

  Console console_;
};

}  // namespace test
