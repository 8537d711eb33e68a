// A fixture that gives every test empty tables, a fresh platform and fresh
// switches, whatever the test before did.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>

#include "support/console.h"
#include "support/fake_platform.h"
#include "sys_context/context.h"

namespace test {

// Releases what the tables hold and sets every exported variable to its value
// at the library's load.
void ResetTables();

class LibraryTest : public testing::Test {
 protected:
  void SetUp() override {
    ResetTables();
    FakePlatform::Reset();
  }
  void TearDown() override { ResetTables(); }

  // With the debug switch off and on.
  static void Twice(const std::function<void(int32_t debug)>& run) {
    for (const int32_t debug : {0, 1}) {
      SCOPED_TRACE("ddDebugPrint " + std::to_string(debug));
      ddDebugPrint = debug;
      run(debug);
    }
  }
};

}  // namespace test
