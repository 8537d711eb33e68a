// Optical modules: as a query or a printer may find them, and as a load leaves them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "support/records.h"
#include "sys_context/optmodule.h"

namespace test {

// The limits of a path, in the order in which a definition file has them.
struct PathLimits {
  int32_t outup;
  int32_t outdn;
  int32_t inup;
  int32_t indn;

  static PathLimits Of(const OptModuleThreshold& path) {
    return {path.outup, path.outdn, path.inup, path.indn};
  }
  OptModuleThreshold Record() const {
    return {.inup = inup, .indn = indn, .outup = outup, .outdn = outdn};
  }
  bool operator==(const PathLimits&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const PathLimits& path) {
    return out << "outup " << path.outup << ", outdn " << path.outdn << ", inup " << path.inup
               << ", indn " << path.indn;
  }
};
using Paths = std::vector<PathLimits>;

// Without paths there is no array of them.
struct OptModule {
  uint16_t kind;
  uint32_t port_type;
  uint16_t phy_type;
  Paths paths = {};
};
using OptModules = std::vector<std::optional<OptModule>>;  // with places that are empty

inline OptModuleInfo* NewOptModule(const OptModule& module) {
  OptModuleInfo* const record = ZeroedBlocks<OptModuleInfo>(1);
  record->kind = module.kind;
  record->porttype = module.port_type;
  record->phytype = module.phy_type;
  record->pathnum = static_cast<uint16_t>(module.paths.size());
  if (!module.paths.empty()) {
    record->pathinfo = ZeroedBlocks<OptModuleThreshold*>(module.paths.size());
  }
  for (size_t i = 0; i < module.paths.size(); ++i) {
    record->pathinfo[i] = ZeroedBlocks<OptModuleThreshold>(1);
    *record->pathinfo[i] = module.paths[i].Record();
  }
  return record;
}

// In place of the list that was there. Without places there is no array.
inline void PutOptModules(const OptModules& modules) {
  optmodule_file_free();
  if (modules.empty()) {
    return;
  }
  g_optmdule_infolist = {static_cast<uint16_t>(modules.size()),
                         ZeroedBlocks<OptModuleInfo*>(modules.size())};
  for (size_t i = 0; i < modules.size(); ++i) {
    g_optmdule_infolist.objlist[i] = modules[i] ? NewOptModule(*modules[i]) : nullptr;
  }
}

inline void ExpectOptModule(const OptModuleInfo& record, const OptModule& module) {
  EXPECT_EQ(record.kind, module.kind);
  EXPECT_EQ(record.porttype, module.port_type);
  EXPECT_EQ(record.phytype, module.phy_type);
  ASSERT_EQ(record.pathnum, module.paths.size());
  if (module.paths.empty()) {
    EXPECT_EQ(record.pathinfo, nullptr);
  }
  for (size_t i = 0; i < module.paths.size(); ++i) {
    SCOPED_TRACE("path at " + std::to_string(i));
    EXPECT_EQ(PathLimits::Of(*record.pathinfo[i]), module.paths[i]);
  }
}

}  // namespace test
