// The types of an ONU type's special ports.
#include <string>
#include <vector>

#include "catalog/onu/onu_query_tables.h"
#include "support/numbers.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kNull;
using test::kUntouched;
using test::PlacedOnu;
using test::PlacedPorts;

class SpecialPortList : public test::OnuTableTest {
 protected:
  void PutPorts(const PlacedPorts& ports) {
    PutOnus({PlacedOnu{.type = 7, .special = ports}, PlacedOnu{.type = 7, .special = {{66}}}});
  }

  void Expect(uint32_t room, int32_t code, std::vector<uint32_t> expected, uint32_t amount,
              const std::vector<string>& asked = {}, const string& text = "") {
    expected.resize(101, kUntouched);
    AskPlatformTwice(asked, text, [&] {
      std::vector<uint32_t> types(101, kUntouched);
      uint32_t stored = kUntouched;
      EXPECT_EQ(ddGetOnuSpecialPortTypeList(7, types.data(), room, &stored), code);
      EXPECT_EQ(types, expected);
      EXPECT_EQ(stored, amount);
    });
  }
};

TEST_F(SpecialPortList, HasEachTypeOnceInOrderOfAppearance) {
  PutPorts({{7, 9, 7}});
  Expect(100, 0, {7, 9}, 2);
  PutPorts({{9, 7, 7, 9, 8}});
  Expect(100, 0, {9, 7, 8}, 3);
  PutPorts({{3}});
  Expect(100, 0, {3}, 1);
}

TEST_F(SpecialPortList, HasTypesOf32Bits) {
  PutPorts({{5, 0x10005, 0, 0x80000005, kUntouched, 5, 0, kUntouched, 0xffffffff}});
  Expect(100, 0, {5, 0x10005, 0, 0x80000005, kUntouched, 0xffffffff}, 6);
}

TEST_F(SpecialPortList, PassesOverEmptyPlaces) {
  PutPorts({{kNull, 7, kNull, 9, kNull}});
  Expect(100, 0, {7, 9}, 2);
  PutPorts({{kNull, kNull}});
  Expect(100, 0, {}, 0);
}

TEST_F(SpecialPortList, IsEmptyWithoutPorts) {
  PutPorts({});
  Expect(100, 0, {}, 0);
}

TEST_F(SpecialPortList, HasAllTypesOfAFullRecord) {
  PutPorts(test::PortsOfTypesFrom(1001, 100));
  Expect(100, 0, test::NumbersFrom(1001, 100), 100);
  PutPorts({std::vector<std::optional<uint32_t>>(100, 5)});
  Expect(100, 0, {5}, 1);
}

TEST_F(SpecialPortList, IsRefusedWhenTheRecordIsCorrupt) {
  for (const uint32_t count : {101u, 0x80000000u, 0xffffffffu}) {
    PlacedPorts ports = test::PortsOfTypesFrom(1001, 101);
    ports.count = count;
    PutPorts(ports);
    Expect(100, -14, {}, kUntouched);
  }
}

TEST_F(SpecialPortList, NeedsRoomForAHundred) {
  PutPorts({{7, 9, 7}});
  for (const uint32_t room : {0u, 1u, 2u, 99u}) {
    Expect(room, -25, {}, kUntouched);
  }
  for (const uint32_t room : {100u, 101u, 0x80000000u, 0xffffffffu}) {
    Expect(room, 0, {7, 9}, 2);
  }
}

TEST_F(SpecialPortList, NeedsRoomWhateverTheTable) {
  gstSupportedOnuType.ulSupportedOnuTypeNum = 201;
  Expect(99, -25, {}, kUntouched);
  PutOnus({});
  Expect(99, -25, {}, kUntouched);
  PutPorts({{}, 101});
  Expect(99, -25, {}, kUntouched);
}

TEST_F(SpecialPortList, ThePlatformIsToldTheRoom) {
  PutOnus({});
  FakePlatform::Get().onu_result = 0;
  FakePlatform::Get().onu_list = {4, 4, 2};
  Expect(100, 0, {4, 4, 2}, 3, {"cs_get_onu_special_port_type_list 7 100"});
  Expect(0xffffffff, 0, {4, 4, 2}, 3, {"cs_get_onu_special_port_type_list 7 4294967295"});
  FakePlatform::Get().onu_list = test::NumbersFrom(1, 101);  // more than is promised
  Expect(101, 0, test::NumbersFrom(1, 101), 101, {"cs_get_onu_special_port_type_list 7 101"});
}

TEST_F(SpecialPortList, NeedsBothOutputsBeforeRoom) {
  PutPorts({{7, 9, 7}});
  uint32_t types = kUntouched;
  uint32_t amount = kUntouched;
  test::ForEachMissing({&types, &amount}, [&](const test::Outputs& outputs) {
    for (const uint32_t room : {99u, 100u}) {
      AskPlatformTwice(
          {},
          test::WithOutputs("\r\nddGetOnuSpecialPortTypeList, pulSpecialPortTypeArray = {out0}, "
                            "pulSpecialPortTypeAmount = {out1}",
                            outputs),
          [&] { EXPECT_EQ(ddGetOnuSpecialPortTypeList(7, outputs[0], room, outputs[1]), -2); });
    }
  });
  EXPECT_EQ(types, kUntouched);
  EXPECT_EQ(amount, kUntouched);
}

}  // namespace
