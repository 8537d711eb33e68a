// The large sample as the program finds it.
#pragma once

#include <gtest/gtest.h>

#include "host/equipment.h"
#include "host/root.h"
#include "host/startup.h"
#include "support/tables.h"
#include "sys_context/context.h"

namespace sysctx {

class LargeSample : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    OpenRoot(SYSCTX_SOURCE "/definitions/kt3300-l");
    ASSERT_EQ(ddInit(), 0);
  }
  static void TearDownTestSuite() {
    test::ResetTables();
    SetRoot("");
    SetEquipment({});
  }
};

}  // namespace sysctx
