// The report of the start: files, tables, and what came of them.
#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "host/equipment.h"
#include "host/large_sample.h"
#include "host/root.h"
#include "host/startup.h"
#include "support/temporary_folder.h"

namespace sysctx {
namespace {

using test::TemporaryFolder;
using testing::HasSubstr;

// ---- The large sample --------------------------------------------------------------

using StartUpReport = LargeSample;

std::string SizeOfSample(const char* name) {
  return std::to_string(std::filesystem::file_size(
      std::string(SYSCTX_SOURCE "/definitions/kt3300-l/mnt/work/") + name));
}

TEST_F(StartUpReport, TellsFilesAndTables) {
  EXPECT_THAT(
      DescribeStartUp({}),
      HasSubstr("  /mnt/work/device_definition.ini: " + SizeOfSample("device_definition.ini") +
                " bytes\n"
                "  /mnt/work/optmodule_definition.ini: " +
                SizeOfSample("optmodule_definition.ini") +
                " bytes\n"
                "loaded: 8 versions, 20 modules, 14 system functions\n"
                "loaded: 17 OLT port types, 2 main boards, 22 service boards\n"
                "loaded: frame KT3300-L, 24 real slots, 162 logic ports,"
                " 58 type-2 logic ports\n"
                "loaded: ONU port types: 6 PON, 6 LAN, 2 POTS, 7 special; 68 ONU types\n"
                "loaded: 26 optical modules\n"
                "commands: "));
}

// ---- Files -------------------------------------------------------------------------

class ReportOfFiles : public testing::Test {
 protected:
  ReportOfFiles() {
    folder_.Write("equipment.toml", "");
    folder_.Write("mnt/work/device_definition.ini", "12345");
    OpenRoot(folder_.path());
  }
  ~ReportOfFiles() override {
    SetRoot("");
    SetEquipment({});
  }

  TemporaryFolder folder_;
};

TEST_F(ReportOfFiles, TellsWhatIsThere) {
  EXPECT_THAT(DescribeStartUp({}), HasSubstr("  /mnt/work/device_definition.ini: 5 bytes\n"
                                             "  /mnt/work/optmodule_definition.ini: missing\n"
                                             "loaded: 0 versions,"));
}

TEST_F(ReportOfFiles, TellsOfCopiesInFlash) {
  folder_.Write("flash/mnt/work/device_definition.ini", "zip");
  folder_.Write("flash/mnt/work/optmodule_definition.ini/folder", "");
  EXPECT_THAT(DescribeStartUp({}),
              HasSubstr("  /mnt/work/device_definition.ini: 5 bytes; in flash: 3 bytes\n"
                        "  /mnt/work/optmodule_definition.ini: missing; in flash: cannot be read\n"
                        "loaded: 0 versions,"));
}

}  // namespace
}  // namespace sysctx
