// Lines of the logic ports with other than the usual number of pieces: what they
// leave out keeps the value of the line before.
#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_readers.h"
#include "support/text.h"

namespace {

using std::string;
using test::kMaps;
using test::MapReaderTest;

// The numbers of a line, which are separated by commas; none are an empty line.
using Line = std::vector<uint32_t>;

string Text(const Line& line) {
  string text;
  for (const uint32_t number : line) {
    text += (text.empty() ? "" : ",") + std::to_string(number);
  }
  return text;
}

// ---- A second, plain computation ----------------------------------------------------

// Slot, port and flag.
using PlainEntry = std::array<uint32_t, 3>;

void TakeOver(const Line& line, PlainEntry& entry) {
  const size_t size = line.size();
  entry[2] = size == 0 ? 0 : line[size - 1];
  if (size >= 2) {
    entry[0] = line[0];
  }
  if (size >= 3) {
    entry[1] = line[size - 2];
  }
}

// Slot, port, chip port, physical port and flag.
using Type2Entry = std::array<uint32_t, 5>;

void TakeOver(const Line& line, Type2Entry& entry) {
  const size_t size = line.size();
  entry[4] = size == 0 ? 0 : line[size - 1];
  for (size_t i = 0; i < 4; ++i) {
    if (i + 1 < size) {
      entry[i] = line[i];
    }
  }
}

template <typename Entry>
string Expected(const std::vector<Line>& lines) {
  string text;
  Entry entry = {};
  for (const Line& line : lines) {
    TakeOver(line, entry);
    string numbers;
    for (const uint32_t number : entry) {
      numbers += (numbers.empty() ? "" : "/") + std::to_string(number);
    }
    text += (text.empty() ? "" : " ") + numbers;
  }
  return text;
}

// Three lines of each number of pieces from 0 to 7, with a 9 behind them: an entry of
// zeros at the end would not be shown.
TEST_F(MapReaderTest, LinesOfAnyNumberOfPieces) {
  gstFrame.stRealSlot.ulSlotEnd = 100;
  for (uint32_t code = 0; code < 8 * 8 * 8; ++code) {
    const uint32_t sizes[] = {code / 64, code / 8 % 8, code % 8};
    std::vector<Line> lines;
    for (uint32_t i = 0; i < 3; ++i) {
      Line line;
      for (uint32_t place = 0; place < sizes[i]; ++place) {
        line.push_back(10 * (i + 1) + place);
      }
      lines.push_back(line);
    }
    lines.push_back({9});
    std::vector<string> texts;
    for (const Line& line : lines) {
      texts.push_back(Text(line));
    }
    SCOPED_TRACE(texts[0] + " | " + texts[1] + " | " + texts[2]);
    ClearMaps();
    for (const test::MapKind& kind : kMaps) {
      string keys = kind.keys + string("Num=4\n");
      for (size_t i = 0; i < texts.size(); ++i) {
        keys += kind.keys + std::to_string(i + 1) + "=" + texts[i] + "\n";
      }
      ASSERT_EQ(Read(kind, keys), 0);
    }
    ASSERT_EQ(kMaps[0].shown(), Expected<PlainEntry>(lines));
    ASSERT_EQ(kMaps[1].shown(), Expected<Type2Entry>(lines));
    ASSERT_EQ(console_.Text(), "");
  }
}

// ---- Lines written out --------------------------------------------------------------

struct Row {
  const char* name;
  size_t map;  // of kMaps
  string keys;
  int32_t code;
  string ports;
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class OddLine : public MapReaderTest, public testing::WithParamInterface<Row> {};

TEST_P(OddLine, IsTakenApart) {
  const Row& row = GetParam();
  EXPECT_EQ(Read(kMaps[row.map], test::With(row.keys, "@", kMaps[row.map].keys)), row.code);
  EXPECT_EQ(kMaps[row.map].shown(), row.ports);
  EXPECT_EQ(console_.Text(), row.console);
}

const Row kRows[] = {
    {"OnlyAFlag", 0, "@Num=1\n@1=7\n", 0, "0/0/7"},
    {"SlotAndFlag", 0, "@Num=1\n@1=7,1\n", 0, "7/0/1"},
    {"LastPortHolds", 0, "@Num=1\n@1=7,200,3,4,1\n", 0, "7/4/1"},
    {"EmptyPieces", 0, "@Num=3\n@1=7,6,5\n@2=,,\n@3=4\n", 0, "7/6/5 0/0/0 0/0/4"},
    {"EmptyLine", 0, "@Num=2\n@1=7,6,5\n@2=\n", 0, "7/6/5 7/6/0"},
    {"EndsWithAComma", 0, "@Num=1\n@1=7,6,\n", 0, "7/6/0"},
    {"KeptOverAMissingLine", 0, "@Num=3\n@1=7,6,5\n@3=1\n", 0, "7/6/5 0/0/0 7/6/1",
     "\r\nddReadSwitchChipLogicPortToSlotPort err! iResult = -2, section = Sec, key = "
     "SwitchChipLogicPort2"},
    {"PortInPlaceOfABadOne", 0, "@Num=1\n@1=7,129,5,1\n", 0, "7/5/1"},
    {"BadPortInPlaceOfAGoodOne", 0, "@Num=1\n@1=7,5,129,1\n", -5, "",
     "\r\nddReadSwitchChipLogicPortToSlotPort err! ucSlotOut = 129, MAX_OLT_PORT_NUM_PER_BOARD "
     "= 128"},
    {"BadSlotAsAFlag", 0, "@Num=1\n@1=200\n", 0, "0/0/200"},

    {"Type2OnlyAFlag", 1, "@Num=1\n@1=7\n", 0, "0/0/0/0/7"},
    {"Type2SlotAndFlag", 1, "@Num=1\n@1=7,1\n", 0, "7/0/0/0/1"},
    {"Type2FifthIsIgnored", 1, "@Num=1\n@1=1,2,3,4,5,6,7\n", 0, "1/2/3/4/7"},
    {"Type2EmptyPieces", 1, "@Num=3\n@1=1,2,3,4,5\n@2=,,,,\n@3=6\n", 0,
     "1/2/3/4/5 0/0/0/0/0 0/0/0/0/6"},
    {"Type2KeptOverAMissingLine", 1, "@Num=3\n@1=1,2,3,4,5\n@3=6,7\n", 0,
     "1/2/3/4/5 0/0/0/0/0 6/2/3/4/7",
     "\r\nread_balance_switch_logicport_to_portinfo err! iResult = -2, section = Sec, key = "
     "Type2SwitchChipLogicPort2"},
    {"Type2LargestChipPort", 1, "@Num=1\n@1=1,2,65535,65535,0\n", 0, "1/2/65535/65535/0"},
    {"Type2ChipPortAbove16Bits", 1, "@Num=1\n@1=1,2,65536,65537,0\n", 0, "1/2/0/1/0"},
    {"Type2ChipPortAbove8Bits", 1, "@Num=1\n@1=1,2,256,300,0\n", 0, "1/2/256/300/0"},
    {"Type2NegativeChipPort", 1, "@Num=1\n@1=1,2,-1,-2,0\n", 0, "1/2/65535/65534/0"},
    {"Type2SaturatingChipPort", 1, "@Num=1\n@1=1,2,4294967297,-4294967297,1\n", 0, "1/2/65535/0/1"},
};
INSTANTIATE_TEST_SUITE_P(MapReader, OddLine, testing::ValuesIn(kRows),
                         testing::PrintToStringParamName());

}  // namespace
