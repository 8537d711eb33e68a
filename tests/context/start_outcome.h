// What a start comes to: the records that it leaves in the tables, and what it says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

#include "sys_context/context.h"
#include "sys_context/olt.h"

namespace test {

// How many records each table holds.
struct Counts {
  uint32_t versions = 0;
  uint32_t modules = 0;
  uint32_t functions = 0;
  uint32_t port_types = 0;
  uint32_t main_boards = 0;
  uint32_t boards = 0;

  static Counts OfTheTables() {
    return {gstVersionInformation.ulSupportedSoftVerNum,
            gstModuleTypeList.ulModuleTypeNum,
            gstSysSupportFuncType.ulSupportedSysFunctionTypeNum,
            gstSupportedOltPortType.ulSupportedOltPortTypeNum,
            gstSupportedMainBoardType.ulSupportedBoardTypeNum,
            gstSupportedBoardType.ulSupportedBoardTypeNum};
  }
  bool operator==(const Counts&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Counts& counts) {
    return out << counts.versions << " versions, " << counts.modules << " modules, "
               << counts.functions << " functions, " << counts.port_types << " port types, "
               << counts.main_boards << " main boards, " << counts.boards << " boards";
  }
};

// What a start that meets a fault comes to.
struct Outcome {
  int32_t code = 0;
  Counts loaded = {};
  size_t lost = 0;  // blocks that no table leads to any more
};

// What the driver and its callers say of a loader that failed with `code`.
inline std::string DriverSays(const std::string& loader, const std::string& code) {
  return "\r\nddParseContextFile->" + loader + " err! iResult = " + code +
         ", strDeviceDefFilePath = /mnt/work/device_definition.ini"
         "\r\nddReadContextFile->ddParseContextFile err! iResult = " +
         code + "ddInit initialize......failed!\r\n";
}

}  // namespace test
