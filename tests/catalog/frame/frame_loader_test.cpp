// Loading the frame: which section and keys are read, in which order, and what comes
// of them.
#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/frame_file.h"
#include "catalog/frame/frame_shown.h"
#include "support/definition_file.h"
#include "support/leaks.h"
#include "support/text.h"

namespace {

using std::string;
using test::FrameStandIns;
using test::Replaced;

class FrameLoader : public test::FrameTest {
 protected:
  static int32_t Load(const string& bytes) {
    const test::DefinitionFile file(bytes);
    return ddReadFrameInformation(file.path());
  }
};

// The frame of the sample section with other words in one line.
std::vector<string> FrameWith(const string& from, const string& to) {
  std::vector<string> shown = test::kFrameShown;
  std::replace(shown.begin(), shown.end(), from, to);
  return shown;
}

TEST_F(FrameLoader, TakesOverTheWholeSection) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PutOldFrame();
    EXPECT_EQ(Load(test::kFrameSection), 0);
    EXPECT_EQ(test::Shown(gstFrame), test::kFrameShown);
    EXPECT_EQ(console_.Text(), "");
  }
}

// The keys stand in the section in the order in which they are asked for.
TEST_F(FrameLoader, AsksForTheKeysInOrder) {
  std::vector<string> keys;
  for (size_t start = test::kFrameSection.find('\n') + 1; start < test::kFrameSection.size();) {
    const size_t sign = test::kFrameSection.find('=', start);
    keys.push_back("KT3300-L_FrameInfomation: " + test::kFrameSection.substr(start, sign - start));
    start = test::kFrameSection.find('\n', sign) + 1;
  }
  ASSERT_EQ(keys.size(), 31u);
  EXPECT_EQ(Load(test::kFrameSection), 0);
  EXPECT_EQ(FrameStandIns::Get().keys, keys);
  EXPECT_EQ(FrameStandIns::Get().cards,
            (std::vector<string>{"CTLA", "GP16", "XS08", "VT48", "ETHA", "GP16"}));
  EXPECT_EQ(test::FakePlatform::Get().asked, std::vector<string>{"device type"});
}

TEST_F(FrameLoader, FileInAnyOrderAmongOtherSections) {
  string lines;
  for (size_t end = test::kFrameSection.size(); end > test::kFrameSection.find('\n') + 1;) {
    const size_t start = test::kFrameSection.rfind('\n', end - 2) + 1;
    lines += test::kFrameSection.substr(start, end - start);
    end = start;
  }
  EXPECT_EQ(Load("[KT3300_FrameInfomation]\nType=1\n[KT3300-L]\nType=2\n"
                 "[KT3300-L_FrameInformation]\nType=3\n[KT3300-L_FrameInfomation]\n" +
                 lines + "[KT3300-L_FrameInfomation]\nType=4\n"),
            0);
  EXPECT_EQ(test::Shown(gstFrame), test::kFrameShown);
  EXPECT_EQ(console_.Text(), "");
}

// ---- The section --------------------------------------------------------------------

struct SectionRow {
  const char* name;
  int32_t device_type;
  string section;
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const SectionRow& row) {
    return out << row.name;
  }
};

class FrameSection : public FrameLoader, public testing::WithParamInterface<SectionRow> {};

TEST_P(FrameSection, IsThatOfTheDeviceType) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    test::FakePlatform::Get().device_type = GetParam().device_type;
    EXPECT_EQ(Load(Replaced(test::kFrameSection, "KT3300-L_FrameInfomation", GetParam().section)),
              0);
    EXPECT_EQ(test::Shown(gstFrame), test::kFrameShown);  // whatever the section's name
    EXPECT_EQ(console_.Text(), GetParam().console);
  }
}

const SectionRow kSections[] = {
    {"Shortest", 6, "KT2200-A_FrameInfomation"},
    {"Longest", 14, "KT2200-CX_FrameInfomation"},
    {"Last", 1520, "KT3300-Q_FrameInfomation"},
    {"Default", 15, "KT3300-L_FrameInfomation"},
    {"Unknown", 99, "KT3300-L_FrameInfomation",
     "\r\nddGetFrameName err!, iFrameType = 99,set default KT3300_L_FRAME"},
};
INSTANTIATE_TEST_SUITE_P(Frame, FrameSection, testing::ValuesIn(kSections),
                         testing::PrintToStringParamName());

TEST_F(FrameLoader, SectionOfAnotherFrame) {
  PutOldFrame();
  test::FakePlatform::Get().device_type = 16;
  EXPECT_EQ(Load(test::kFrameSection), -31);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadFrameInformation err! iResult = -1, strSectionFrameNameBuf = "
            "KT3301-M_FrameInfomation, dd_gstrKeyFrameType = Type");
  EXPECT_EQ(test::Shown(gstFrame), test::kOldFrameShown);
}

TEST_F(FrameLoader, NoSuchFile) {
  PutOldFrame();
  EXPECT_EQ(ddReadFrameInformation("/nonexistent/frame.ini"), -31);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadFrameInformation err! iResult = -10, strSectionFrameNameBuf = "
            "KT3300-L_FrameInfomation, dd_gstrKeyFrameType = Type");
  EXPECT_EQ(test::Shown(gstFrame), test::kOldFrameShown);
}

TEST_F(FrameLoader, NullPath) {
  PutOldFrame();
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(ddReadFrameInformation(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddReadFrameInformation err!, strFileName = 0x0");
  }
  EXPECT_EQ(test::Shown(gstFrame), test::kOldFrameShown);
  EXPECT_TRUE(test::FakePlatform::Get().asked.empty());
}

TEST_F(FrameLoader, NoNameOfTheFrame) {
  PutOldFrame();
  FrameStandIns::Get().frame_code = -32;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(Load(test::kFrameSection), -31);
    EXPECT_EQ(console_.Text(), "\r\nddReadFrameInformation->ddInquireFrameName err! iResult = -32");
  }
  EXPECT_TRUE(FrameStandIns::Get().keys.empty());
  EXPECT_EQ(test::Shown(gstFrame), test::kOldFrameShown);
}

// ---- Names that a host may change ---------------------------------------------------

TEST_F(FrameLoader, KeysOfTheHost) {
  dd_gstrKeyFrameType = "Kind";
  dd_gstrKeyFrameName = "Called";
  const string section =
      Replaced(Replaced(test::kFrameSection, "Type=15", "Kind=15"), "Name=", "Called=");
  EXPECT_EQ(Load(section), 0);
  EXPECT_EQ(test::Shown(gstFrame), test::kFrameShown);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(Load(Replaced(section, "Called=", "Name=")), -31);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadFrameInformation err! iResult = -2, strSectionFrameNameBuf = "
            "KT3300-L_FrameInfomation, dd_gstrKeyFrameName = Called");
  EXPECT_EQ(Load(test::kFrameSection), -31);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadFrameInformation err! iResult = -2, strSectionFrameNameBuf = "
            "KT3300-L_FrameInfomation, dd_gstrKeyFrameType = Kind");
}

TEST_F(FrameLoader, NobodyReadsTheNameOfTheSection) {
  dd_gstrSectionFrameInfomation = nullptr;
  EXPECT_EQ(Load(test::kFrameSection), 0);
  EXPECT_EQ(test::Shown(gstFrame), test::kFrameShown);
}

// ---- Values -------------------------------------------------------------------------

struct ValueRow {
  const char* name;
  string from;  // piece of the section
  string to;
  string line;  // of the loaded frame
  string changed_line;
  friend std::ostream& operator<<(std::ostream& out, const ValueRow& row) {
    return out << row.name;
  }
};

class FrameValue : public FrameLoader, public testing::WithParamInterface<ValueRow> {};

TEST_P(FrameValue, IsStored) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    ddEmptyFrameInformation();
    EXPECT_EQ(Load(Replaced(test::kFrameSection, GetParam().from, GetParam().to)), 0);
    EXPECT_EQ(test::Shown(gstFrame), FrameWith(GetParam().line, GetParam().changed_line));
    EXPECT_EQ(console_.Text(), "");
  }
}

const string k59(59, 'f');

const ValueRow kValues[] = {
    {"TypeZero", "Type=15", "Type=0", "type 15", "type 0"},
    {"NegativeType", "Type=15", "Type=-15", "type 15", "type -15"},
    {"TypeOf32Bits", "Type=15", "Type=99999999999", "type 15", "type 2147483647"},
    {"TypeBelow32Bits", "Type=15", "Type=-99999999999", "type 15", "type -2147483648"},
    {"TextType", "Type=15", "Type=KT", "type 15", "type 0"},
    {"OtherName", "Name=KT3300-L", "Name=My frame", "name 9 KT3300-L", "name 9 My frame"},
    {"ShortName", "Name=KT3300-L", "Name=K", "name 9 KT3300-L", "name 2 K"},
    {"EmptyName", "Name=KT3300-L", "Name=", "name 9 KT3300-L", "name 1 "},
    {"LongestName", "Name=KT3300-L", "Name=" + k59, "name 9 KT3300-L", "name 60 " + k59},
    {"NoOnus", "MaxOnuNum=32768", "MaxOnuNum=0", "onus 32768", "onus 0"},
    {"MostOnus", "MaxOnuNum=32768", "MaxOnuNum=100000", "onus 32768", "onus 100000"},
    {"EmptyOnus", "MaxOnuNum=32768", "MaxOnuNum=", "onus 32768", "onus 0"},
    {"TextBehindOnus", "MaxOnuNum=32768", "MaxOnuNum=+12k", "onus 32768", "onus 12"},
    {"NoUsers", "MaxUserNum=1048576", "MaxUserNum=0", "users 1048576", "users 0"},
    {"MostUsers", "MaxUserNum=1048576", "MaxUserNum=2400000", "users 1048576", "users 2400000"},
    {"NoMainSlot", "MainSlotNum=1\nMainSlotList=1\n", "MainSlotNum=0\n", "main 1 1..1: 1",
     "main 0 0..0: "},
    {"ListNotReadWithoutSlots", "MainSlotNum=1\nMainSlotList=1\n",
     "MainSlotNum=0\nMainSlotList=5,4\n", "main 1 1..1: 1", "main 0 0..0: "},
    {"AnyHcuSlot", "HcuSlotList=801", "HcuSlotList=7", "hcu 1 801..801: 801", "hcu 1 7..7: 7"},
    {"UncheckedFanSlots", "FanSlotNum=1\nFanSlotList=24", "FanSlotNum=2\nFanSlotList=801,1",
     "fan 1 24..24: 24", "fan 2 801..1: 801 1"},
    {"LargestPowerSlot", "PowerSlotList=21,22", "PowerSlotList=100,100", "power 2 21..22: 21 22",
     "power 2 100..100: 100 100"},
    {"NoLogicPorts", "SwitchChipLogicPortNum=2\nSwitchChipLogicPort1",
     "SwitchChipLogicPortNum=0\nSwitchChipLogicPort1", "ports 2: 2/1/0 4/128/1", "ports 0: "},
    {"NoType2LogicPorts", "Type2SwitchChipLogicPortNum=2", "Type2SwitchChipLogicPortNum=0",
     "type-2 ports 2: 2/1/3/5/1 4/128/300/65535/0", "type-2 ports 0: "},
};
INSTANTIATE_TEST_SUITE_P(Frame, FrameValue, testing::ValuesIn(kValues),
                         testing::PrintToStringParamName());

TEST_F(FrameLoader, AnUnknownBoardIsReportedAndLeftOut) {
  EXPECT_EQ(Load(Replaced(test::kFrameSection, "GP16|XS08|VT48", "GP16|XS09|VT48")), 0);
  EXPECT_EQ(test::Shown(gstFrame),
            FrameWith("boards 1: 11, 2: 71 72 74, 4: 73 71", "boards 1: 11, 2: 71 74, 4: 73 71"));
  EXPECT_EQ(console_.Text(),
            "\r\nddReadSlotSupportBoard err! iResult = -32, _tmp = XS09, ulSlotListIndex = 1, "
            "ulSlotOut = 2, ulSLotEnd = 4");
}

// ---- A second load ------------------------------------------------------------------

TEST_F(FrameLoader, ASecondLoadReleasesTheFirstRows) {
  test::Faults faults;
  gstFrame = {};
  ASSERT_EQ(Load(test::kFrameSection), 0);
  EXPECT_EQ(faults.blocks.size(), 1u);
  EXPECT_EQ(faults.frees, 0);
  ASSERT_EQ(Load(Replaced(test::kFrameSection, "RealSlotList=1,2,4", "RealSlotList=1,2,5")), 0);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadSlotSupportBoard err! iResult = -2, section = KT3300-L_FrameInfomation, key "
            "= SupportedBoardTypeSlot5");
  EXPECT_EQ(faults.frees, 1);
  ASSERT_EQ(faults.blocks.size(), 1u);
  EXPECT_EQ(faults.blocks.at(gstFrame.pstSlotArray), 6u * 400);
  ddEmptyFrameInformation();
  EXPECT_TRUE(faults.blocks.empty());
}

// Its real slots may go beyond the rows of the first.
TEST_F(FrameLoader, ASecondLoadThatFailsAmongTheSlotsReleasesTheFirstRows) {
  test::Faults faults;
  gstFrame = {};
  ASSERT_EQ(Load(test::kFrameSection), 0);
  ASSERT_EQ(faults.blocks.size(), 1u);
  string section = Replaced(test::kFrameSection, "RealSlotList=1,2,4", "RealSlotList=1,2,99");
  EXPECT_EQ(Load(Replaced(section, "VirtualSlotNum=2\n", "")), -31);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadOneSlotClass err! iResult = -2, section = KT3300-L_FrameInfomation, key = "
            "VirtualSlotNum"
            "\r\nddReadFrameInformation->ddReadOneSlotClass err! iResult = -31, "
            "strSectionFrameNameBuf = KT3300-L_FrameInfomation, Key = VirtualSlot");
  EXPECT_EQ(gstFrame.stRealSlot.ulSlotEnd, 99u);
  EXPECT_EQ(gstFrame.pstSlotArray, nullptr);
  EXPECT_TRUE(faults.blocks.empty());
}

}  // namespace
