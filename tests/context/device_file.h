// A definition file in the place where start-up looks for it.
#pragma once

#include <string>
#include <string_view>

#include "support/definition_file.h"
#include "support/faults.h"

namespace test {

constexpr char kDeviceFile[] = "/mnt/work/device_definition.ini";

// A small, complete definition file: two of everything.
constexpr std::string_view kCompleteFile =
    "[Version]\nSupportedSoftwareVer=KT2200V4.0|KT2200V4.1\n"
    "[ModuleTypeList]\nModuleNum=2\nModule1=S1\nModule2=S2\n"
    "[S1]\nType=1\nName=OMCI\nSize=64\n"
    "[S2]\nType=3\nName=VLAN\nSize=32\n"
    "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=2\n"
    "SupportedSysFunction1=VLAN\nSupportedSysFunction2=OMCI\n";

// Watches the library while the given bytes are its definition file.
struct DeviceFile {
  explicit DeviceFile(std::string_view bytes = kCompleteFile) : file(bytes) {
    faults.paths[kDeviceFile] = file.path();
  }
  // The library finds no definition file at all.
  void Remove() { faults.paths[kDeviceFile] = "/nonexistent/device_definition.ini"; }

  DefinitionFile file;
  Faults faults;
};

}  // namespace test
