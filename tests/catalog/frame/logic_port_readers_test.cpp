// Reading what the logic ports serve: counts, keys, limits and failures of both maps.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_readers.h"
#include "support/faults.h"
#include "support/rows.h"
#include "support/text.h"
#include "support/type2_numbers.h"

namespace {

using std::string;
using test::FrameStandIns;
using test::Hex;
using test::kMaps;
using test::MapKind;
using test::MapReaderTest;
using test::With;

// Of rows for both maps: the plain one is of entries "slot,port,flag", the other one
// of "slot,port,7,8,flag". "%" stands for the reader's name, "@" for the start of its
// keys, "~" for the numbers 7 and 8 as the file has them, "^" as they are shown, "&"
// for an entry that was not stored.
string For(const MapKind& kind, string text) {
  const bool is_plain = string(kind.name) == "Plain";
  text = With(text, "%", kind.reader);
  text = With(text, "@", kind.keys);
  text = With(text, "~", is_plain ? "" : ",7,8");
  text = With(text, "^", is_plain ? "" : "/7/8");
  return With(text, "&", is_plain ? "0/0/0" : "0/0/0/0/0");
}

struct Row {
  const char* name;
  string keys;
  int32_t code;
  uint32_t count;  // stored; 99 is the old one
  string ports;    // stored
  string console = "";
  uint32_t last_slot = 9;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class BothMaps : public MapReaderTest,
                 public testing::WithParamInterface<std::tuple<MapKind, Row>> {};

TEST_P(BothMaps, AreReadAlike) {
  const auto& [kind, row] = GetParam();
  gstFrame.stRealSlot.ulSlotEnd = row.last_slot;
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    ClearMaps();
    EXPECT_EQ(Read(kind, For(kind, row.keys)), row.code);
    EXPECT_EQ(gstFrame.*kind.count, row.count);
    EXPECT_EQ(kind.shown(), For(kind, row.ports));
    EXPECT_EQ(console_.Text(), For(kind, row.console));
    ExpectOtherMapUntouched(kind);
  }
}

string NoKey(const string& code, const string& key) {
  return "\r\n% err! iResult = " + code + ", section = Sec, key = @" + key;
}
string TooMany(const string& count) {
  return "\r\n% err! ulSwitchChipLogicPortNum = " + count;
}
string BadSlot(const string& slot, const string& last_slot) {
  return "\r\n% err! ucSlotOut = " + slot + ", ulSLotEnd = " + last_slot;
}
string BadPort(const string& port) {
  return "\r\n% err! ucSlotOut = " + port + ", MAX_OLT_PORT_NUM_PER_BOARD = 128";
}

const Row kRows[] = {
    // Counts
    {"Two", "@Num=2\n@1=3,5~,1\n@2=9,128~,0\n", 0, 2, "3/5^/1 9/128^/0"},
    {"InAnyOrderOfTheFile", "@2=4,1~,0\n@1=3,5~,1\n@Num=2\n", 0, 2, "3/5^/1 4/1^/0"},
    {"FewerThanTheFileHas", "@Num=1\n@1=3,5~,1\n@2=9,128~,0\n", 0, 1, "3/5^/1"},
    {"CountWithText", "@Num=2x\n@1=3,5~,1\n@2=4,1~,0\n", 0, 2, "3/5^/1 4/1^/0"},
    {"OneTooMany", "@Num=1281\n@1=3,5~,1\n", -22, 99, "", TooMany("1281")},
    {"Negative", "@Num=-1\n@1=3,5~,1\n", -22, 99, "", TooMany("-1")},
    {"MuchTooMany", "@Num=99999999999\n@1=3,5~,1\n", -22, 99, "", TooMany("2147483647")},
    {"MuchTooFew", "@Num=-99999999999\n@1=3,5~,1\n", -22, 99, "", TooMany("-2147483648")},
    {"NoCount", "@1=3,5~,1\n", -31, 99, "", NoKey("-2", "Num")},
    {"CountBehindNonsense", "nonsense\n@Num=1\n", -31, 99, "", NoKey("-14", "Num")},

    // Missing entries
    {"NoEntries", "@Num=2\n", 0, 2, "", NoKey("-2", "1") + NoKey("-2", "2")},
    {"NoFirstEntry", "@Num=2\n@2=4,1~,0\n", 0, 2, "& 4/1^/0", NoKey("-2", "1")},
    {"NoSecondEntry", "@Num=3\n@1=3,5~,1\n@3=4,1~,0\n", 0, 3, "3/5^/1 & 4/1^/0", NoKey("-2", "2")},
    {"EntryBehindNonsense", "@Num=2\n@1=3,5~,1\nnonsense\n@2=4,1~,0\n", 0, 2, "3/5^/1",
     NoKey("-14", "2")},

    // Limits
    {"SlotZero", "@Num=1\n@1=0,5~,1\n", 0, 1, "0/5^/1"},
    {"LastSlot", "@Num=1\n@1=9,5~,1\n", 0, 1, "9/5^/1"},
    {"SlotBehindTheLast", "@Num=1\n@1=10,5~,1\n", -3, 99, "", BadSlot("10", "9")},
    {"NoRealSlots", "@Num=1\n@1=0,5~,1\n", 0, 1, "0/5^/1", "", 0},
    {"SlotWithoutRealSlots", "@Num=1\n@1=1,5~,1\n", -3, 99, "", BadSlot("1", "0"), 0},
    {"LargestSlot", "@Num=1\n@1=255,5~,1\n", 0, 1, "255/5^/1", "", 255},
    {"LastSlotAbove8Bits", "@Num=1\n@1=255,5~,1\n", 0, 1, "255/5^/1", "", 256},
    {"LargestLastSlot", "@Num=1\n@1=255,5~,1\n", 0, 1, "255/5^/1", "", 0xffffffff},
    {"PortZero", "@Num=1\n@1=3,0~,1\n", 0, 1, "3/0^/1"},
    {"LastPort", "@Num=1\n@1=3,128~,1\n", 0, 1, "3/128^/1"},
    {"PortBehindTheLast", "@Num=1\n@1=3,129~,1\n", -5, 99, "", BadPort("129")},
    {"LargestPort", "@Num=1\n@1=3,255~,1\n", -5, 99, "", BadPort("255")},
    {"BadSlotBeforeBadPort", "@Num=1\n@1=10,129~,1\n", -3, 99, "", BadSlot("10", "9")},
    {"LargestFlag", "@Num=1\n@1=3,5~,255\n", 0, 1, "3/5^/255"},

    // A failure ends the reading; what was read stays
    {"BadSlotBehindGoodOnes", "@Num=4\n@1=3,5~,1\n@2=4,6~,0\n@3=10,1~,1\n@4=5,1~,1\n", -3, 99,
     "3/5^/1 4/6^/0", BadSlot("10", "9")},
    {"BadPortBehindGoodOnes", "@Num=4\n@1=3,5~,1\n@2=4,6~,0\n@3=5,129~,1\n@4=5,1~,1\n", -5, 99,
     "3/5^/1 4/6^/0", BadPort("129")},
    {"MissingAndBad", "@Num=2\n@2=10,5~,1\n", -3, 99, "", NoKey("-2", "1") + BadSlot("10", "9")},

    // Slots, ports and flags are kept in 8 bits, and tested so
    {"SlotOf256", "@Num=1\n@1=256,5~,1\n", 0, 1, "0/5^/1"},
    {"SlotOf257", "@Num=1\n@1=257,5~,1\n", 0, 1, "1/5^/1"},
    {"SlotOf266", "@Num=1\n@1=266,5~,1\n", -3, 99, "", BadSlot("10", "9")},
    {"NegativeSlot", "@Num=1\n@1=-1,5~,1\n", -3, 99, "", BadSlot("255", "9")},
    {"NegativeSlotOfFew", "@Num=1\n@1=-255,5~,1\n", 0, 1, "1/5^/1"},
    {"SaturatingSlot", "@Num=1\n@1=4294967297,5~,1\n", -3, 99, "", BadSlot("255", "9")},
    {"SaturatingNegativeSlot", "@Num=1\n@1=-4294967297,5~,1\n", 0, 1, "0/5^/1"},
    {"PortOf384", "@Num=1\n@1=3,384~,1\n", 0, 1, "3/128^/1"},
    {"PortOf385", "@Num=1\n@1=3,385~,1\n", -5, 99, "", BadPort("129")},
    {"NegativePort", "@Num=1\n@1=3,-1~,1\n", -5, 99, "", BadPort("255")},
    {"NegativePortOfFew", "@Num=1\n@1=3,-128~,1\n", 0, 1, "3/128^/1"},
    {"FlagOf256", "@Num=1\n@1=3,5~,256\n", 0, 1, "3/5^/0"},
    {"FlagOf257", "@Num=1\n@1=3,5~,257\n", 0, 1, "3/5^/1"},
    {"NegativeFlag", "@Num=1\n@1=3,5~,-1\n", 0, 1, "3/5^/255"},

    // Numbers
    {"Blanks", "@Num=1\n@1= 3 ,\t5 ~, 1 \n", 0, 1, "3/5^/1"},
    {"TextBehindNumbers", "@Num=1\n@1=3a,5.9~,1;x\n", 0, 1, "3/5^/1"},
    {"NoNumbers", "@Num=2\n@1=a,b~,c\n@2=x,3~,1\n", 0, 2, "0/0^/0 0/3^/1"},
    {"SignedNumbers", "@Num=1\n@1=+3,+5~,+1\n", 0, 1, "3/5^/1"},
};
INSTANTIATE_TEST_SUITE_P(MapReader, BothMaps,
                         testing::Combine(testing::ValuesIn(kMaps), testing::ValuesIn(kRows)),
                         test::KindAndRow());

class EmptyMap : public MapReaderTest,
                 public testing::WithParamInterface<std::tuple<MapKind, test::ZeroRow>> {};

TEST_P(EmptyMap, HasNoEntries) {
  const auto& [kind, row] = GetParam();
  EXPECT_EQ(Read(kind, For(kind, "@Num=" + string(row.text) + "\n@1=3,5~,1\n")), 0);
  EXPECT_EQ(gstFrame.*kind.count, 0u);
  EXPECT_EQ(kind.shown(), "");
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(FrameStandIns::Get().keys, std::vector<string>{For(kind, "Sec: @Num")});
}

INSTANTIATE_TEST_SUITE_P(MapReader, EmptyMap,
                         testing::Combine(testing::ValuesIn(kMaps),
                                          testing::ValuesIn(test::kZeros)),
                         test::KindAndRow());

class OneMap : public MapReaderTest, public testing::WithParamInterface<MapKind> {};

INSTANTIATE_TEST_SUITE_P(MapReader, OneMap, testing::ValuesIn(kMaps),
                         testing::PrintToStringParamName());

TEST_P(OneMap, NullArguments) {
  const MapKind& kind = GetParam();
  const string file = "/nonexistent/frame.ini";
  const char* const path = file.c_str();
  struct {
    const char* path;
    const char* section;
  } const rows[] = {{nullptr, path + 1}, {path, nullptr}, {nullptr, nullptr}};
  for (const auto& row : rows) {
    for (const int32_t debug : {0, 1}) {
      ddDebugPrint = debug;
      EXPECT_EQ(kind.read(row.path, row.section), -2);
      EXPECT_EQ(console_.Text(), For(kind, "\r\n% err!, strFileName = " + Hex(row.path) +
                                               ", strSectionFrameName = " + Hex(row.section)));
    }
  }
  EXPECT_TRUE(FrameStandIns::Get().keys.empty());
  EXPECT_EQ(gstFrame.*kind.count, 99u);
}

TEST_P(OneMap, NoSuchSectionOrFile) {
  const MapKind& kind = GetParam();
  const test::DefinitionFile file(For(kind, "[Other]\n@Num=1\n@1=3,5~,1\n"));
  EXPECT_EQ(kind.read(file.path(), "Sec"), -31);
  EXPECT_EQ(console_.Text(), For(kind, NoKey("-1", "Num")));
  EXPECT_EQ(kind.read("/nonexistent/frame.ini", "Sec"), -31);
  EXPECT_EQ(console_.Text(), For(kind, NoKey("-10", "Num")));
  EXPECT_EQ(gstFrame.*kind.count, 99u);
}

TEST_P(OneMap, UnreadableEntryIsLeftOut) {
  const MapKind& kind = GetParam();
  const string keys = For(kind, "@Num=3\n@1=3,5~,1\n@2=4,6~,0\n@3=5,7~,1\n");
  test::Faults faults;
  faults.reads.FailFrom(3, 1);
  EXPECT_EQ(Read(kind, keys), 0);
  EXPECT_EQ(console_.Text(), For(kind, NoKey("-12", "2")));
  EXPECT_EQ(gstFrame.*kind.count, 3u);
  EXPECT_EQ(kind.shown(), For(kind, "3/5^/1 & 5/7^/1"));
}

// The keys of the plain map end those of the type-2 map.
TEST_F(MapReaderTest, KeysOfTheOtherMap) {
  for (size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(Read(kMaps[i], For(kMaps[1 - i], "@Num=1\n@1=3,5~,1\n")), -31);
    EXPECT_EQ(console_.Text(), For(kMaps[i], NoKey("-2", "Num")));
  }
}

// ---- As many as possible ------------------------------------------------------------

TEST_F(MapReaderTest, AsManyAsPossible) {
  string keys = "SwitchChipLogicPortNum=1280\n";
  string ports;
  std::vector<string> asked = {"Sec: SwitchChipLogicPortNum"};
  for (int i = 1; i <= 1280; ++i) {
    const string number = std::to_string(i);
    const string slot = std::to_string(i % 9 + 1);
    const string port = std::to_string(i % 129);
    keys += "SwitchChipLogicPort" + number + "=" + slot + "," + port + ",1\n";
    ports += (ports.empty() ? "" : " ") + slot + "/" + port + "/1";
    asked.push_back("Sec: SwitchChipLogicPort" + number);
  }
  EXPECT_EQ(Read(kMaps[0], keys), 0);
  EXPECT_EQ(gstFrame.ulSwitchChipLogicPortNum, 1280u);
  EXPECT_EQ(kMaps[0].shown(), ports);
  EXPECT_EQ(FrameStandIns::Get().keys, asked);
  EXPECT_EQ(console_.Text(), "");
  ExpectOtherMapUntouched(kMaps[0]);
}

// ---- Numbers of the type-2 logic ports ----------------------------------------------

string NoNumber(const string& index) {
  return "\r\nread_balance_switch_logicport_to_portinfo err! iResult = -26, ulChipLogciIndex = " +
         index;
}

// All 58 entries, and those that the numbers would have without the gap.
string Type2Keys(const string& count) {
  string keys = "Type2SwitchChipLogicPortNum=" + count + "\n";
  for (const int gap : {57, 58, 59, 60, 199, 202, 1280}) {
    keys += "Type2SwitchChipLogicPort" + std::to_string(gap) + "=9,99,99,99,99\n";
  }
  for (int number = 1; number <= 56; ++number) {
    keys += "Type2SwitchChipLogicPort" + std::to_string(number) + "=1,2,3," +
            std::to_string(number) + ",0\n";
  }
  return keys + "Type2SwitchChipLogicPort201=2,3,4,5,1\nType2SwitchChipLogicPort200=3,4,5,6,1\n";
}

struct Type2Row {
  const char* name;
  string count;
  int entries;
  std::vector<string> behind;  // indexes without number
  friend std::ostream& operator<<(std::ostream& out, const Type2Row& row) {
    return out << row.name;
  }
};

class Type2Numbers : public MapReaderTest, public testing::WithParamInterface<Type2Row> {};

TEST_P(Type2Numbers, AreThoseOfTheIndexes) {
  string ports;
  std::vector<string> asked = {"Sec: Type2SwitchChipLogicPortNum"};
  for (int index = 0; index < GetParam().entries; ++index) {
    const string number = std::to_string(test::Type2NumberOf(static_cast<uint32_t>(index)));
    ports += (index == 0    ? "1/2/3/1/0"
              : index < 56  ? " 1/2/3/" + number + "/0"
              : index == 56 ? " 3/4/5/6/1"
                            : " 2/3/4/5/1");
    asked.push_back("Sec: Type2SwitchChipLogicPort" + number);
  }
  string console;
  for (const string& index : GetParam().behind) {
    console += NoNumber(index);
  }
  EXPECT_EQ(Read(kMaps[1], Type2Keys(GetParam().count)), 0);
  EXPECT_EQ(std::to_string(gstFrame.ulType2SwitchChipLogicPortNum), GetParam().count);
  EXPECT_EQ(kMaps[1].shown(), ports);
  EXPECT_EQ(FrameStandIns::Get().keys, asked);
  EXPECT_EQ(console_.Text(), console);
  ExpectOtherMapUntouched(kMaps[1]);
}

// 58, 59, ..., 1279
std::vector<string> FromIndex58() {
  std::vector<string> indexes;
  for (int index = 58; index < 1280; ++index) {
    indexes.push_back(std::to_string(index));
  }
  return indexes;
}

const Type2Row kType2[] = {
    {"BelowTheGap", "56", 56, {}},
    {"OneBehindTheGap", "57", 57, {}},
    {"Numbered", "58", 58, {}},
    {"OneWithoutNumber", "59", 58, {"58"}},
    {"TwoWithoutNumber", "60", 58, {"58", "59"}},
    {"AsManyAsPossible", "1280", 58, FromIndex58()},
};
INSTANTIATE_TEST_SUITE_P(MapReader, Type2Numbers, testing::ValuesIn(kType2),
                         testing::PrintToStringParamName());

TEST_F(MapReaderTest, AnOldEntryStaysWhenItsKeyIsMissing) {
  for (const test::MapKind& kind : kMaps) {
    ClearMaps();
    ASSERT_EQ(Read(kind, For(kind, "@Num=2\n@1=3,5~,1\n@2=4,1~,0\n")), 0);
    EXPECT_EQ(Read(kind, For(kind, "@Num=2\n@1=5,6~,0\n")), 0);
    EXPECT_EQ(kind.shown(), For(kind, "5/6^/0 4/1^/0"));
    EXPECT_EQ(console_.Text(), For(kind, NoKey("-2", "2")));
  }
}

TEST_F(MapReaderTest, Type2KeysBehindTheGapAreNamedByTheirNumbers) {
  EXPECT_EQ(Read(kMaps[1], test::Replaced(Type2Keys("59"), "LogicPort200=", "LogicPort204=")), 0);
  EXPECT_EQ(console_.Text(), For(kMaps[1], NoKey("-2", "200")) + NoNumber("58"));
  EXPECT_EQ(gstFrame.ulType2SwitchChipLogicPortNum, 59u);
  EXPECT_EQ(gstFrame.astType2SwitchChipLogicPort[56].ucSlotOut, 0);
  EXPECT_EQ(gstFrame.astType2SwitchChipLogicPort[57].ucSlotOut, 2);
}

}  // namespace
