// Words as numbers, slot classes and port maps, and records as text.
#include "host/argument_words.h"

#include <gmock/gmock.h>

#include <cstring>
#include <memory>
#include <ostream>

namespace sysctx {
namespace {

using testing::ThrowsMessage;

struct NumberRow {
  const char* name;
  const char* word;
  int64_t number;
  friend std::ostream& operator<<(std::ostream& out, const NumberRow& row) {
    return out << row.name;
  }
};

class NumberWord : public testing::TestWithParam<NumberRow> {};

TEST_P(NumberWord, IsUnderstood) {
  EXPECT_EQ(ParseNumber("n", GetParam().word, -2147483648, 4294967295), GetParam().number);
}

const NumberRow kNumbers[] = {
    {"Zero", "0", 0},
    {"Decimal", "801", 801},
    {"LeadingZeros", "0010", 10},
    {"Largest", "4294967295", 4294967295},
    {"Hexadecimal", "0x1f", 31},
    {"HexadecimalCapitals", "0XFFFFFFFF", 4294967295},
    {"Negative", "-7", -7},
    {"NegativeHexadecimal", "-0x1f", -31},
    {"Lowest", "-2147483648", -2147483648},
    {"MinusZero", "-0", 0},
};

INSTANTIATE_TEST_SUITE_P(All, NumberWord, testing::ValuesIn(kNumbers),
                         testing::PrintToStringParamName());

TEST(BadNumberWord, IsRefused) {
  for (const char* word : {"",
                           "x",
                           "7x",
                           "7 ",
                           " 7",
                           "-",
                           "--7",
                           "- 7",
                           "-x",
                           "+1",
                           "1.5",
                           "0x",
                           "0x-1",
                           "0xg",
                           "0x0x1",
                           "1f",
                           "4294967296",
                           "0x100000000",
                           "99999999999999999999",
                           "-99999999999999999999"}) {
    EXPECT_THAT([&] { ParseNumber("ulSlotOut", word, -9, 4294967295); },
                ThrowsMessage<BadArgument>(std::string("bad ulSlotOut '") + word +
                                           "': a number from -9 to 4294967295 is wanted"));
  }
}

TEST(NumberLimits, AreTheLowestAndTheLargestNumber) {
  EXPECT_EQ(ParseNumber("n", "-9", -9, 65535), -9);
  EXPECT_EQ(ParseNumber("n", "65535", -9, 65535), 65535);
  for (const char* word : {"-10", "65536"}) {
    EXPECT_THAT([&] { ParseNumber("n", word, -9, 65535); },
                ThrowsMessage<BadArgument>(std::string("bad n '") + word +
                                           "': a number from -9 to 65535 is wanted"));
  }
}

TEST(SlotClassWord, IsThatOfTheDefinitionFile) {
  const std::pair<const char*, const SlotClassInformation*> rows[] = {
      {"RealSlot", &gstFrame.stRealSlot},
      {"VirtualSlot", &gstFrame.stVirtualSlot},
      {"HcuSlot", &gstFrame.stHcuSlot},
      {"FanSlot", &gstFrame.stFanSlot},
      {"CioSlot", &gstFrame.stCioSlot},
      {"PowerSlot", &gstFrame.stPowerSlot},
      {"ServeBoardSlot", &gstFrame.stServeBoardSlot},
      {"MainSlot", &gstFrame.stMainSlot},
      {"UplinkSlot", &gstFrame.stUplinkSlot},
  };
  for (const auto& [word, slot_class] : rows) {
    EXPECT_EQ(RecordWord<SlotClassInformation>::Find("c", word), slot_class) << word;
    EXPECT_THAT(RecordWord<SlotClassInformation>::Hint(), testing::HasSubstr(word));
  }
}

TEST(SlotClassWord, IsRefusedWhenUnknown) {
  for (const char* word : {"", "Real", "realslot", "RealSlots"}) {
    EXPECT_THAT([&] { RecordWord<SlotClassInformation>::Find("pstSlotClass", word); },
                ThrowsMessage<BadArgument>(std::string("bad pstSlotClass '") + word +
                                           "': there is no such slot class"));
  }
}

// Two main boards, the second with three maps, and an empty place between them.
class MainBoards : public testing::Test {
 protected:
  MainBoards() {
    first_->ulType = 101;
    first_->ulChipLogicPortToPhyPortTypeNum = 1;
    second_->ulType = 111;
    strcpy(second_->acName, "MCSA");
    second_->ulSwitchChipLogicPortNum = 22;
    second_->ulChipLogicPortToPhyPortTypeNum = 3;
    strcpy(second_->astPortMap[0].acBoardName, "NoSpecialUplinkBoard");
    strcpy(second_->astPortMap[1].acBoardName, "UP4X");
    strcpy(second_->astPortMap[2].acBoardName, "7");
    strcpy(second_->astPortMap[3].acBoardName, "UNUSED");
    gstSupportedMainBoardType = {3, boards_};
  }
  ~MainBoards() override { gstSupportedMainBoardType = {}; }

  const PortMap* Find(const std::string& word) { return RecordWord<PortMap>::Find("pstMap", word); }

  std::unique_ptr<MainBoardInformation> first_ = std::make_unique<MainBoardInformation>();
  std::unique_ptr<MainBoardInformation> second_ = std::make_unique<MainBoardInformation>();
  MainBoardInformation* boards_[3] = {first_.get(), nullptr, second_.get()};
};

TEST_F(MainBoards, GiveMapsByNumberAndByName) {
  EXPECT_EQ(Find("101:0"), &first_->astPortMap[0]);
  EXPECT_EQ(Find("111:0"), &second_->astPortMap[0]);
  EXPECT_EQ(Find("0x6f:2"), &second_->astPortMap[2]);
  EXPECT_EQ(Find("111:UP4X"), &second_->astPortMap[1]);
  EXPECT_EQ(Find("111:NoSpecialUplinkBoard"), &second_->astPortMap[0]);
  EXPECT_EQ(Find("111:7"), &second_->astPortMap[2]) << "a name that is a number too large";
}

TEST_F(MainBoards, RefuseMapsThatTheyDoNotHave) {
  const std::pair<const char*, const char*> rows[] = {
      {"111", "bad pstMap '111': MAINBOARD:MAP is wanted"},
      {"", "bad pstMap '': MAINBOARD:MAP is wanted"},
      {":0", "bad pstMap ':0': MAINBOARD:MAP is wanted"},
      {"MCSA:0", "bad pstMap 'MCSA:0': MAINBOARD:MAP is wanted"},
      {"112:0", "bad pstMap '112:0': there is no main board of type 112"},
      {"0:0", "bad pstMap '0:0': there is no main board of type 0"},
      {"111:3", "bad pstMap '111:3': main board 111 has no such map among its 3"},
      {"111:UNUSED", "bad pstMap '111:UNUSED': main board 111 has no such map among its 3"},
      {"111:up4x", "bad pstMap '111:up4x': main board 111 has no such map among its 3"},
      {"101:1", "bad pstMap '101:1': main board 101 has no such map among its 1"},
  };
  for (const auto& [word, message] : rows) {
    const auto find = [&, map = word] { Find(map); };
    EXPECT_THAT(find, ThrowsMessage<BadArgument>(message));
  }
}

TEST_F(MainBoards, HaveNoMoreMapsThanThereIsRoomFor) {
  second_->ulChipLogicPortToPhyPortTypeNum = 21;
  EXPECT_EQ(Find("111:19"), &second_->astPortMap[19]);
  EXPECT_THROW(Find("111:20"), BadArgument);
}

TEST_F(MainBoards, AreNoneWithoutTable) {
  gstSupportedMainBoardType = {3, nullptr};
  EXPECT_THROW(Find("111:0"), BadArgument);
}

TEST_F(MainBoards, AreDescribedByNameAndSizes) {
  EXPECT_EQ(DescribeRecord(*second_), "MCSA, type 111, 22 logic ports, 3 port maps");
  EXPECT_EQ(DescribeRecord(second_->astPortMap[1]), "111:UP4X, map 1, 22 logic ports");
}

TEST_F(MainBoards, NamesWithoutTerminatorEndWithTheirField) {
  memset(second_->acName, 'x', sizeof second_->acName);
  EXPECT_EQ(DescribeRecord(*second_),
            std::string(60, 'x') + ", type 111, 22 logic ports, 3 port maps");
}

TEST_F(MainBoards, OtherMapsAreDescribedByName) {
  const auto map = std::make_unique<PortMap>();
  strcpy(map->acBoardName, "UP4X");
  EXPECT_EQ(DescribeRecord(*map), "UP4X, in no main board");
}

TEST(PortTypes, AreDescribedByNameAndNumbers) {
  OltPortInformation olt = {};
  olt.ulPortType = 2;
  olt.ulSplittingRatio = 128;
  strcpy(olt.acName, "GPON");
  EXPECT_EQ(DescribeRecord(olt), "GPON, type 2, splitting ratio 128");
  OnuPortTypeInformation onu = {};
  onu.ulPortType = 4294967295;
  strcpy(onu.acName, "GE");
  EXPECT_EQ(DescribeRecord(onu), "GE, type 4294967295");
  memset(onu.acName, 'x', sizeof onu.acName);
  EXPECT_EQ(DescribeRecord(onu), std::string(60, 'x') + ", type 4294967295");
}

}  // namespace
}  // namespace sysctx
