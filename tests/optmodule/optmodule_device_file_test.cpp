// Loading the device's own optical module definition file.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "optmodule/optmodule_files.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"

namespace {

using std::string;
using test::FakePlatform;
using test::ModuleFaults;
using test::ModuleList;
using test::ModuleSection;
using test::Names;
using test::optical::kNoMemoryForList;
using test::optical::kNoneAnnounced;
using test::optical::NoCount;
using test::optical::NotLoaded;
using test::optical::TooMany;

constexpr char kDevicePath[] = "/mnt/work/optmodule_definition.ini";

struct FileRow {
  const char* name;
  string file;
  int32_t code;
  Names log;
  int failing_allocation = 0;
  friend std::ostream& operator<<(std::ostream& out, const FileRow& row) { return out << row.name; }
};

class DeviceFile : public test::OptModuleTest, public testing::WithParamInterface<FileRow> {};

TEST_P(DeviceFile, SaysWhatBecameOfIt) {
  Twice([](int32_t debug) {
    ModuleFaults faults(GetParam().file, debug, kDevicePath);
    faults.allocations.FailFrom(GetParam().failing_allocation, 1);
    EXPECT_EQ(optmodule_defines_fileparse(), GetParam().code);
    EXPECT_EQ(FakePlatform::TakeLog(), GetParam().log);
    test::ExpectModules(faults, 0, {});
  });
}

const FileRow kFiles[] = {
    {"NoModules", ModuleList({}), 0, {kNoneAnnounced}},
    {"NoCount", "[SupportedOptModuleInfo]\n", -1, {NoCount("-2"), NotLoaded("-1")}},
    {"TooMany",
     "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=51\n",
     -15,
     {TooMany("51"), NotLoaded("-15")}},
    {"NoMemory",
     ModuleList({"S1"}) + ModuleSection("S1", "1", "2", "3"),
     -22,
     {kNoMemoryForList, NotLoaded("-22")},
     1},
};
INSTANTIATE_TEST_SUITE_P(Files, DeviceFile, testing::ValuesIn(kFiles),
                         testing::PrintToStringParamName());

class OptModuleDeviceFileTest : public test::OptModuleTest {};

TEST_F(OptModuleDeviceFileTest, LoadsInSilence) {
  Twice([](int32_t debug) {
    ModuleFaults faults(ModuleList({"S1"}) + ModuleSection("S1", "1", "2", "3", {"-10,-30,-5,-28"}),
                        debug, kDevicePath);
    EXPECT_EQ(optmodule_defines_fileparse(), 0);
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
    test::ExpectModules(faults, 1, {{1, 2, 3, {{-10, -30, -5, -28}}}});
  });
}

TEST_F(OptModuleDeviceFileTest, FileMissing) {
  ModuleFaults faults(ModuleList({}), 0, "/elsewhere.ini");
  faults.opens.FailFrom(1, test::FaultPlan::kForEver);
  EXPECT_EQ(optmodule_defines_fileparse(), -1);
  EXPECT_EQ(faults.opens.count(), 1);
  EXPECT_EQ(FakePlatform::TakeLog(), Names({NoCount("-10"), NotLoaded("-1")}));
}

// The platform may number its modules as it starts.
TEST_F(OptModuleDeviceFileTest, LogsUnderTheNumberThatHoldsThen) {
  ModuleFaults faults(ModuleList({}), 0, kDevicePath);
  const int32_t before = devmgrModuRegId;
  devmgrModuRegId = 77;
  EXPECT_EQ(optmodule_defines_fileparse(), 0);
  devmgrModuRegId = before;
  EXPECT_EQ(FakePlatform::TakeLog(),
            Names{"77 11 optmodule_infolist_read: ok! SupportedOptModuleInfoNum = 0.\r\n"});
}

}  // namespace
