// The two maps of logic ports, and a file to read them from.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "catalog/frame/frame_reader_stand_ins.h"
#include "catalog/frame/frame_shown.h"
#include "support/definition_file.h"
#include "support/tables.h"
#include "sys_context/frame.h"

namespace test {

struct MapKind {
  const char* name;
  int32_t (*read)(const char* file, const char* section);
  const char* reader;  // as its messages show it
  const char* keys;    // how its keys begin
  uint32_t FrameInformation::*count;
  std::string (*shown)();
  friend std::ostream& operator<<(std::ostream& out, const MapKind& kind) {
    return out << kind.name;
  }
};

inline const MapKind kMaps[] = {
    {"Plain", ddReadSwitchChipLogicPortToSlotPort, "ddReadSwitchChipLogicPortToSlotPort",
     "SwitchChipLogicPort", &FrameInformation::ulSwitchChipLogicPortNum,
     [] { return Shown(gstFrame.astSwitchChipLogicPort); }},
    {"Type2", read_balance_switch_logicport_to_portinfo,
     "read_balance_switch_logicport_to_portinfo", "Type2SwitchChipLogicPort",
     &FrameInformation::ulType2SwitchChipLogicPortNum,
     [] { return Shown(gstFrame.astType2SwitchChipLogicPort); }},
};

// The maps are empty but for their counts, which are 99; the last real slot is 9.
class MapReaderTest : public LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    FrameStandIns::Reset();
    gstFrame.stRealSlot.ulSlotEnd = 9;
    ClearMaps();
  }

  static void ClearMaps() {
    const SlotClassInformation real = gstFrame.stRealSlot;
    gstFrame = {};
    gstFrame.stRealSlot = real;
    gstFrame.ulSwitchChipLogicPortNum = 99;
    gstFrame.ulType2SwitchChipLogicPortNum = 99;
  }

  static int32_t Read(const MapKind& kind, const std::string& keys) {
    const DefinitionFile file("[Sec]\n" + keys);
    return kind.read(file.path(), "Sec");
  }

  static void ExpectOtherMapUntouched(const MapKind& kind) {
    for (const MapKind& other : kMaps) {
      if (other.count != kind.count) {
        EXPECT_EQ(gstFrame.*other.count, 99u);
        EXPECT_EQ(other.shown(), "");
      }
    }
  }

  Console console_;
};

}  // namespace test
