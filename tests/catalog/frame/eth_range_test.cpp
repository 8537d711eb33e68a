// The lowest and the highest logic port of Ethernet cards.
#include <string>
#include <vector>

#include "catalog/frame/cards.h"
#include "catalog/frame/logic_port_maps.h"
#include "support/asking.h"
#include "support/text.h"

namespace {

using std::string;
using test::ForEachMissing;
using test::kUntouched;
using test::LogicPort;
using test::LogicPortOf;
using test::Outputs;
using test::Signed;
using test::With;
using test::WithOutputs;

class EthRange : public test::AskingTest {
 protected:
  void SetUp() override {
    AskingTest::SetUp();
    test::PutCard(1, test::kEthernetCard);
  }

  void Expect(int32_t code, uint32_t lowest, uint32_t highest, const string& text) {
    AskTwice(text, [=] {
      uint32_t low = kUntouched;
      uint32_t high = kUntouched;
      EXPECT_EQ(ddGetEthLogicportRange(&low, &high), code);
      EXPECT_EQ(low, lowest);
      EXPECT_EQ(high, highest);
    });
    EXPECT_EQ(test::FakePlatform::TakeAsked(), std::vector<string>());
  }

  void ExpectNone() {
    Expect(-26, kUntouched, kUntouched,
           "\r\nddGetEthLogicportRange: Range error, min = 0, max = 0!\r\n");
  }
};

TEST_F(EthRange, OfOneLogicPort) {
  for (uint32_t number = 1; number <= 1280; ++number) {
    SCOPED_TRACE(number);
    test::PutLogicPorts(std::vector<LogicPort>(1280, LogicPortOf(1, 1, 0)));
    gstFrame.astSwitchChipLogicPort[number - 1].ucSlotFlag = 1;
    Expect(0, number, number, "");
  }
}

TEST_F(EthRange, OfSeveralLogicPorts) {
  const std::vector<uint32_t> numbers = {1, 2, 48, 127, 128, 129, 255, 256, 257, 1279, 1280};
  for (const uint32_t lowest : numbers) {
    for (const uint32_t highest : numbers) {
      SCOPED_TRACE(std::to_string(lowest) + " to " + std::to_string(highest));
      if (lowest < highest) {
        test::PutLogicPorts(std::vector<LogicPort>(1280));
        gstFrame.astSwitchChipLogicPort[lowest - 1].ucSlotFlag = 1;
        gstFrame.astSwitchChipLogicPort[(lowest + highest) / 2 - 1].ucSlotFlag = 1;
        gstFrame.astSwitchChipLogicPort[highest - 1].ucSlotFlag = 1;
        Expect(0, lowest, highest, "");
      }
    }
  }
}

// Whatever slot and port: an entry of zeros and port 255 count as well.
TEST_F(EthRange, OfAllFlags) {
  for (uint32_t flag = 0; flag < 256; ++flag) {
    SCOPED_TRACE(flag);
    test::PutLogicPorts({LogicPortOf(1, 1, flag), LogicPortOf(0, 0, flag),
                         LogicPortOf(2, 255, flag), LogicPortOf(1, 1, 0)});
    if (flag == 1) {
      Expect(0, 1, 3, "");
    } else {
      ExpectNone();
    }
  }
}

TEST_F(EthRange, OfAllCounts) {
  for (const uint32_t count : test::kLogicPortCounts) {
    SCOPED_TRACE(count);
    test::PutLogicPorts({}, LogicPortOf(1, 1, 1));
    gstFrame.ulSwitchChipLogicPortNum = count;
    if (count > 1280) {
      Expect(
          -22, kUntouched, kUntouched,
          With(
              "\r\nddGetEthLogicportRange: SwitchChipLogicPortNum({count}) is out of range(1280)!\r\n",
              "{count}", Signed(count)));
    } else if (count == 0) {
      ExpectNone();
    } else {
      Expect(0, 1, count, "");
    }
  }
}

TEST_F(EthRange, TypeTwoLogicPortsDoNotCount) {
  test::PutLogicPorts({LogicPortOf(1, 1, 1), LogicPortOf(1, 2, 0)});
  test::PutBalancePorts({}, test::BalancePortOf(1, 1, 0, 1, 1));
  gstFrame.ulType2SwitchChipLogicPortNum = 1281;
  Expect(0, 1, 1, "");
}

// Refused before the count is looked at.
TEST_F(EthRange, NullOutputs) {
  test::PutLogicPorts({}, LogicPortOf(1, 1, 1));
  for (const uint32_t count : test::kLogicPortCounts) {
    gstFrame.ulSwitchChipLogicPortNum = count;
    uint32_t low = kUntouched;
    uint32_t high = kUntouched;
    ForEachMissing({&low, &high}, [&](const Outputs& given) {
      AskTwice(
          WithOutputs(
              "\r\nddGetEthLogicportRange: pointer is null! minLogicportNo = {out0}, maxLogicPortNo = {out1}\r\n",
              given),
          [&] { EXPECT_EQ(ddGetEthLogicportRange(given[0], given[1]), -2); });
    });
    EXPECT_EQ(low, kUntouched);
    EXPECT_EQ(high, kUntouched);
  }
}

}  // namespace
