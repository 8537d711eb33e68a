// The frame when a key cannot be read or memory runs out: at every lookup and every
// allocation of a load.
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "catalog/frame/frame_file.h"
#include "catalog/frame/frame_shown.h"
#include "support/definition_file.h"
#include "support/leaks.h"
#include "support/text.h"

namespace {

using std::string;

// One of the lines that show a frame.
struct Line {
  size_t place;
  string text;
};

// What comes of one lookup, if it alone fails.
struct Lookup {
  string key;
  string code;           // of the load; "%" is the lookup's
  string console;        // the same
  string debug_console;  // behind it, under the debug switch
  size_t lines;          // of the frame that are loaded; the others are the old ones
  string half_line;      // behind them, loaded in part
  std::optional<Line> other_line = {};
};

constexpr size_t kAllLines = 16;

string NoKeyOfTheFrame(const string& what) {
  return "\r\nddReadFrameInformation err! iResult = %, strSectionFrameNameBuf = "
         "KT3300-L_FrameInfomation, " +
         what;
}

// The two keys of a class. Without its list the amount is stored.
Lookup NoAmount(const string& word, size_t lines) {
  return {
      word + "Num",
      "-31",
      "\r\nddReadOneSlotClass err! iResult = %, section = KT3300-L_FrameInfomation, key = " + word +
          "Num"
          "\r\nddReadFrameInformation->ddReadOneSlotClass err! iResult = -31, "
          "strSectionFrameNameBuf = KT3300-L_FrameInfomation, Key = " +
          word,
      "",
      lines,
      ""};
}
Lookup NoList(const string& word, size_t lines, const string& half_line) {
  return {
      word + "List",
      "%",
      "\r\nddReadOneSlotClass err! iResult = %, section = KT3300-L_FrameInfomation, key = " + word +
          "List"
          "\r\nddReadFrameInformation->ddReadOneSlotClass err! iResult = %, "
          "strSectionFrameNameBuf = KT3300-L_FrameInfomation, Key = " +
          word,
      "",
      lines,
      half_line};
}

string NoKey(const string& reader, const string& key) {
  return "\r\n" + reader + " err! iResult = %, section = KT3300-L_FrameInfomation, key = " + key;
}
Lookup NoCount(const string& reader, const string& key, size_t lines) {
  return {key,
          "-31",
          NoKey(reader, key),
          "\r\nddReadFrameInformation->" + reader +
              " err! iResult = -31, strSectionFrameNameBuf = KT3300-L_FrameInfomation",
          lines,
          ""};
}

// The frame can do without: all is loaded, but one line otherwise.
Lookup Without(const string& reader, const string& key, const Line& line) {
  return {key, "0", NoKey(reader, key), "", kAllLines, "", line};
}
Lookup NoBoards(const string& key, const string& line) {
  return Without("ddReadSlotSupportBoard", key, {13, line});
}
Lookup NoPort(const string& key, const string& line) {
  return Without("ddReadSwitchChipLogicPortToSlotPort", key, {14, line});
}
Lookup NoType2Port(const string& key, const string& line) {
  return Without("read_balance_switch_logicport_to_portinfo", key, {15, line});
}

// In the order in which they are made.
const std::vector<Lookup>& Lookups() {
  static const std::vector<Lookup> lookups = {
      {"Type", "-31", NoKeyOfTheFrame("dd_gstrKeyFrameType = Type"), "", 0, ""},
      {"Name", "-31", NoKeyOfTheFrame("dd_gstrKeyFrameName = Name"), "", 1, ""},
      {"MaxOnuNum", "-31", NoKeyOfTheFrame("Key = MaxOnuNum"), "", 2, ""},
      {"MaxUserNum", "-31", NoKeyOfTheFrame("Key = MaxUserNum"), "", 3, ""},
      NoAmount("RealSlot", 4),
      NoList("RealSlot", 4, "real 3 61..9: "),
      NoAmount("VirtualSlot", 5),
      NoList("VirtualSlot", 5, "virtual 2 62..9: "),
      NoAmount("HcuSlot", 6),
      NoList("HcuSlot", 6, "hcu 1 63..9: "),
      NoAmount("FanSlot", 7),
      NoList("FanSlot", 7, "fan 1 64..9: "),
      NoAmount("CioSlot", 8),
      NoList("CioSlot", 8, "cio 1 65..9: "),
      NoAmount("PowerSlot", 9),
      NoList("PowerSlot", 9, "power 2 66..9: "),
      NoAmount("ServeBoardSlot", 10),
      NoList("ServeBoardSlot", 10, "service 1 67..9: "),
      NoAmount("MainSlot", 11),
      NoList("MainSlot", 11, "main 1 68..9: "),
      NoAmount("UplinkSlot", 12),
      NoList("UplinkSlot", 12, "uplink 1 69..9: "),
      NoBoards("SupportedBoardTypeSlot1", "boards 2: 71 72 74, 4: 73 71"),
      NoBoards("SupportedBoardTypeSlot2", "boards 1: 11, 4: 73 71"),
      NoBoards("SupportedBoardTypeSlot4", "boards 1: 11, 2: 71 72 74"),
      NoCount("ddReadSwitchChipLogicPortToSlotPort", "SwitchChipLogicPortNum", 14),
      NoPort("SwitchChipLogicPort1", "ports 2: 0/0/0 4/128/1"),
      NoPort("SwitchChipLogicPort2", "ports 2: 2/1/0"),
      NoCount("read_balance_switch_logicport_to_portinfo", "Type2SwitchChipLogicPortNum", 15),
      NoType2Port("Type2SwitchChipLogicPort1", "type-2 ports 2: 0/0/0/0/0 4/128/300/65535/0"),
      NoType2Port("Type2SwitchChipLogicPort2", "type-2 ports 2: 2/1/3/5/1"),
  };
  return lookups;
}

// The frame that such a failure leaves.
std::vector<string> FrameAfter(const Lookup& lookup) {
  std::vector<string> frame = test::PartlyLoadedShown(lookup.lines, lookup.half_line);
  if (lookup.other_line) {
    frame[lookup.other_line->place] = lookup.other_line->text;
  }
  return frame;
}

class FrameFaults : public test::FrameTest {
 protected:
  // Loads, and expects what such a failure leads to.
  void ExpectFailure(test::Faults& faults, const char* path, const Lookup& lookup,
                     const string& code) {
    EXPECT_EQ(std::to_string(ddReadFrameInformation(path)), test::With(lookup.code, "%", code));
    EXPECT_EQ(console_.Text(), test::With(lookup.console, "%", code) +
                                   (ddDebugPrint != 0 ? lookup.debug_console : ""));
    EXPECT_EQ(test::Shown(gstFrame), FrameAfter(lookup));
    EXPECT_EQ(faults.blocks.size(), lookup.lines < 14 ? 0u : 1u);
    ddEmptyFrameInformation();
    EXPECT_TRUE(faults.blocks.empty());
  }
};

// ---- Lookups ------------------------------------------------------------------------

TEST_F(FrameFaults, KeyIsMissing) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    for (const Lookup& lookup : Lookups()) {
      SCOPED_TRACE(lookup.key);
      const test::DefinitionFile file(
          test::Replaced(test::kFrameSection, "\n" + lookup.key + "=", "\nNo" + lookup.key + "="));
      PutOldFrame();
      test::Faults faults;
      ExpectFailure(faults, file.path(), lookup, "-2");
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
}

class FrameLookups : public FrameFaults, public testing::WithParamInterface<test::FileFault> {
 protected:
  test::DefinitionFile file_{test::kFrameSection};
};

INSTANTIATE_TEST_SUITE_P(Frame, FrameLookups, testing::Values(test::kOpenFails, test::kReadFails),
                         testing::PrintToStringParamName());

// The file is small: each lookup opens it and reads once.
TEST_P(FrameLookups, OfALoad) {
  PutOldFrame();
  test::Faults faults;
  EXPECT_EQ(ddReadFrameInformation(file_.path()), 0);
  EXPECT_EQ((faults.*GetParam().plan).count(), static_cast<int>(Lookups().size()));
  EXPECT_EQ(faults.closes, static_cast<int>(Lookups().size()));
}

TEST_P(FrameLookups, OneFails) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    for (size_t failing = 0; failing < Lookups().size(); ++failing) {
      SCOPED_TRACE(Lookups()[failing].key);
      PutOldFrame();
      test::Faults faults;
      (faults.*GetParam().plan).FailFrom(static_cast<int>(failing) + 1, 1);
      ExpectFailure(faults, file_.path(), Lookups()[failing], GetParam().code);
      EXPECT_EQ(faults.closes, faults.opens.count() - GetParam().not_closed);
      if (HasFailure()) {
        return;
      }
    }
  }
}

// ---- Memory -------------------------------------------------------------------------

TEST_F(FrameFaults, NoMemory) {
  const test::DefinitionFile file(test::kFrameSection);
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      ddDebugPrint = debug;
      PutOldFrame();
      test::Faults faults;
      faults.allocations.FailFrom(1, calls);
      ExpectFailure(
          faults, file.path(),
          {"", "-27", "\r\nddReadSlotSupportBoard->malloc err! gstFrame.pstSlotArray = 0x0",
           "\r\nddReadFrameInformation->ddReadSlotSupportBoard err! iResult = -27, "
           "strSectionFrameNameBuf = KT3300-L_FrameInfomation",
           13, ""},
          "");
      EXPECT_EQ(faults.allocations.count(), 1);
      EXPECT_EQ(faults.opens.count(), 22);  // the boards are not asked for
      EXPECT_EQ(faults.closes, 22);
    }
  }
}

TEST_F(FrameFaults, ALoadAllocatesTheRowsAlone) {
  const test::DefinitionFile file(test::kFrameSection);
  test::Faults faults;
  EXPECT_EQ(ddReadFrameInformation(file.path()), 0);
  EXPECT_EQ(faults.allocations.count(), 1);
  EXPECT_EQ(faults.frees, 0);
  ASSERT_EQ(faults.blocks.count(gstFrame.pstSlotArray), 1u);
  EXPECT_EQ(faults.blocks.at(gstFrame.pstSlotArray), 5u * 400);
}

}  // namespace
