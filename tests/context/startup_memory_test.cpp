// Start-up when memory runs out: at every allocation, once and for ever.
#include <string>

#include "context/device_file.h"
#include "context/leaks.h"
#include "support/tables.h"

namespace {

using std::string;
using test::DeviceFile;
using test::FaultPlan;

constexpr char kNoBuffer[] =
    "\r\nddReadContextFile err! Not enough memory for pFileBuf buffer.\r\n";

class StartupMemory : public test::LibraryTest {
 protected:
  test::Console console_;
};

TEST_F(StartupMemory, AStartAllocatesTheWorkBufferTheListAndItsRecords) {
  DeviceFile device;
  EXPECT_EQ(ddInit(), 0);
  EXPECT_EQ(device.faults.allocations.count(), 4);
  EXPECT_EQ(device.faults.frees, 1);
  test::ExpectNoLeak(device.faults);
}

TEST_F(StartupMemory, NoMemoryForTheWorkBuffer) {
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, FaultPlan::kForEver}) {
      ddDebugPrint = debug;
      DeviceFile device;
      device.faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(ddReadContextFile(), -1);
      EXPECT_EQ(console_.Text(), kNoBuffer);
      EXPECT_EQ(device.faults.opens.count(), 0);
      EXPECT_EQ(device.faults.allocations.count(), 1);
    }
  }
}

TEST_F(StartupMemory, NoMemoryForTheWorkBufferLeavesEmptyTables) {
  gstVersionInformation.ulSupportedSoftVerNum = 9;
  gstModuleTypeList.ulModuleTypeNum = 9;
  gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 9;
  DeviceFile device;
  device.faults.allocations.FailFrom(1, 1);
  EXPECT_EQ(ddInit(), -1);
  EXPECT_EQ(console_.Text(), string(kNoBuffer) + "ddInit initialize......failed!\r\n");
  EXPECT_EQ(device.faults.opens.count(), 0);
  EXPECT_EQ(gstVersionInformation.ulSupportedSoftVerNum, 0u);
  EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, 0u);
  EXPECT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, 0u);
}

TEST_F(StartupMemory, NoMemoryForTheModuleList) {
  for (const int calls : {1, FaultPlan::kForEver}) {
    DeviceFile device;
    device.faults.allocations.FailFrom(2, calls);
    EXPECT_EQ(ddInit(), -27);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllModuleInformation->malloc err! pModuleTypeArray = 0x0"
              "\r\nddParseContextFile->ddReadAllModuleInformation err! iResult = -27, "
              "strDeviceDefFilePath = /mnt/work/device_definition.ini"
              "\r\nddReadContextFile->ddParseContextFile err! iResult = -27"
              "ddInit initialize......failed!\r\n");
    EXPECT_EQ(gstVersionInformation.ulSupportedSoftVerNum, 2u);
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, 0u);
    EXPECT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, 0u);
    EXPECT_TRUE(device.faults.blocks.empty());
  }
}

TEST_F(StartupMemory, NoMemoryForModuleRecords) {
  for (const int calls : {1, FaultPlan::kForEver}) {
    for (int failing = 1; failing <= 2; ++failing) {
      DeviceFile device;
      device.faults.allocations.FailFrom(failing + 2, calls);
      EXPECT_EQ(ddInit(), 0);
      const uint32_t kept = calls == 1 ? 1u : static_cast<uint32_t>(failing - 1);
      EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, kept);
      EXPECT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, kept);
      test::ExpectNoLeak(device.faults);
      if (HasFailure()) {
        return;
      }
      test::ResetTables();
    }
  }
}

}  // namespace
