// Are all blocks that the library holds reachable from its tables?
#pragma once

#include <gtest/gtest.h>

#include <set>

#include "support/faults.h"
#include "sys_context/context.h"

namespace test {

// The library keeps exactly the blocks that its tables lead to.
inline void ExpectNoLeak(const test::Faults& faults) {
  std::set<const void*> owned;
  if (gstModuleTypeList.pModuleTypeArray != nullptr) {
    owned.insert(gstModuleTypeList.pModuleTypeArray);
  }
  for (uint32_t i = 0; i < gstModuleTypeList.ulModuleTypeNum; ++i) {
    owned.insert(gstModuleTypeList.pModuleTypeArray[i]);
  }
  std::set<const void*> kept;
  for (const auto& [block, size] : faults.blocks) {
    kept.insert(block);
  }
  EXPECT_EQ(kept, owned);
}

}  // namespace test
