// What a logic port serves: slot and port, and the flag.
#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_maps.h"
#include "catalog/frame/slot_classes.h"
#include "support/asking.h"
#include "support/text.h"

namespace {

using std::string;
using test::kUntouched;
using test::LogicPort;
using test::Outputs;
using test::Signed;
using test::With;

using Values = std::array<uint32_t, 3>;
constexpr Values kAllUntouched = {kUntouched, kUntouched, kUntouched};

struct Query {
  const char* name;
  size_t outputs;
  int32_t (*ask)(uint32_t number, const Outputs& outputs);
  string null_output;
  string bad_port;
  friend std::ostream& operator<<(std::ostream& out, const Query& row) { return out << row.name; }
};

const Query kQueries[] = {
    {"SlotPort", 2,
     [](uint32_t number, const Outputs& outputs) {
       return ddGetSlotPortFromSwitchChipLogicPort(number, outputs[0], outputs[1]);
     },
     "\r\nddCanBoardPlugInSlot err! pulSlotOut = {out0}, pulSlotPort = {out1}",
     "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = {number}, ulSlotOut = {slot}, ulSlotStart = 3, ulSlotEnd = -2, ulSlotPort = {port}"},
    {"ObjectInfo", 3,
     [](uint32_t number, const Outputs& outputs) {
       return ddGetObjectInfoFromSwitchChipLogicPort(number, outputs[0], outputs[1], outputs[2]);
     },
     "\r\nddGetObjectInfoFromSwitchChipLogicPort: pulSlotOut = {out0}, pulSlotPort = {out1}, pulSlotFlag = {out2},",
     "\r\nddGetObjectInfoFromSwitchChipLogicPort err! ulChipLogicPort = {number}, ulSlotOut = {slot}, ulSlotPort = {port}"},
};

// Both queries have this one.
constexpr char kUnknownNumber[] =
    "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = {number}";

class LogicPorts : public test::SlotClassesTest, public testing::WithParamInterface<Query> {
 protected:
  void SetUp() override {
    SlotClassesTest::SetUp();
    PutDifferentClasses();
    gstFrame.stRealSlot.ulSlotStart = 3;
    gstFrame.stRealSlot.ulSlotEnd = 0xfffffffe;
  }

  // The outputs that the query has not stay untouched.
  void Expect(uint32_t number, int32_t code, const Values& values, const string& text) {
    AskTwice(text, [&] {
      Values outputs = kAllUntouched;
      EXPECT_EQ(GetParam().ask(number, {&outputs[0], &outputs[1], &outputs[2]}), code);
      EXPECT_EQ(outputs[0], values[0]);
      EXPECT_EQ(outputs[1], values[1]);
      EXPECT_EQ(outputs[2], GetParam().outputs == 3 ? values[2] : kUntouched);
    });
    EXPECT_EQ(test::FakePlatform::TakeAsked(), std::vector<string>());
  }

  void ExpectUnknown(uint32_t number) {
    Expect(number, -22, kAllUntouched, With(kUnknownNumber, "{number}", Signed(number)));
  }

  void ExpectKnown(uint32_t number, uint32_t slot, uint32_t port, uint32_t flag) {
    if (port <= 128) {
      Expect(number, 0, {slot, port, flag}, "");
      return;
    }
    const string text =
        With(With(GetParam().bad_port, "{number}", Signed(number)), "{slot}", std::to_string(slot));
    Expect(number, -5, kAllUntouched, With(text, "{port}", std::to_string(port)));
  }
};

// What logic port i + 1 of a full map serves.
uint32_t SlotOf(uint32_t i) {
  return (i + i / 256) % 256;
}

uint32_t PortOf(uint32_t i) {
  return i * 3 % 256;
}

uint32_t FlagOf(uint32_t i) {
  return i * 5 % 256;
}

void PutFullMap() {
  std::vector<LogicPort> ports;
  for (uint32_t i = 0; i < 1280; ++i) {
    ports.push_back(test::LogicPortOf(SlotOf(i), PortOf(i), FlagOf(i)));
  }
  test::PutLogicPorts(ports);
}

TEST_P(LogicPorts, OfAllNumbers) {
  PutFullMap();
  for (const uint32_t count : test::kLogicPortCounts) {
    gstFrame.ulSwitchChipLogicPortNum = count;
    for (uint32_t number = 0; number <= 1300; ++number) {
      SCOPED_TRACE(std::to_string(number) + " of " + std::to_string(count));
      if (count <= 1280 && number >= 1 && number <= count) {
        ExpectKnown(number, SlotOf(number - 1), PortOf(number - 1), FlagOf(number - 1));
      } else {
        ExpectUnknown(number);
      }
    }
    for (const uint32_t number : {0x10001u, 0x80000001u, 0xfffffffeu, 0xffffffffu}) {
      ExpectUnknown(number);
    }
  }
}

TEST_P(LogicPorts, OfAllStoredPorts) {
  for (uint32_t port = 0; port < 256; ++port) {
    SCOPED_TRACE(port);
    test::PutLogicPorts({{}, test::LogicPortOf(17, port, 2)});
    ExpectKnown(2, 17, port, 2);
  }
}

// Any slot and any flag is taken as it is.
TEST_P(LogicPorts, OfAllStoredSlotsAndFlags) {
  for (uint32_t value = 0; value < 256; ++value) {
    SCOPED_TRACE(value);
    test::PutLogicPorts({test::LogicPortOf(value, 128, 255 - value)});
    ExpectKnown(1, value, 128, 255 - value);
  }
}

// Refused before the number and the count are looked at.
TEST_P(LogicPorts, NullOutputs) {
  PutFullMap();
  Values values = kAllUntouched;
  Outputs outputs = {&values[0], &values[1], &values[2]};
  outputs.resize(GetParam().outputs);
  for (const uint32_t count : test::kLogicPortCounts) {
    gstFrame.ulSwitchChipLogicPortNum = count;
    for (const uint32_t number : {0u, 1u, 44u, 1281u}) {
      test::ForEachMissing(outputs, [&](const Outputs& given) {
        AskTwice(test::WithOutputs(GetParam().null_output, given),
                 [&] { EXPECT_EQ(GetParam().ask(number, given), -2); });
      });
    }
  }
  EXPECT_EQ(values, kAllUntouched);
}

INSTANTIATE_TEST_SUITE_P(All, LogicPorts, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

}  // namespace
