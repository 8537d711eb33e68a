// All ONU types of the table.
#include <string>
#include <vector>

#include "catalog/onu/onu_query_tables.h"
#include "support/numbers.h"

namespace {

using std::string;
using test::kNull;
using test::kUntouched;
using test::PlacedOnu;

class AllOnuTypes : public test::OnuTableTest {
 protected:
  void Expect(uint32_t count_in, int32_t code, uint32_t count, std::vector<uint32_t> expected,
              const string& text = "") {
    expected.resize(201, kUntouched);
    AskPlatformTwice({}, text, [&] {
      std::vector<uint32_t> types(201, kUntouched);
      uint32_t number = count_in;
      EXPECT_EQ(ddGetAllSupportedOnuType(&number, types.data()), code);
      EXPECT_EQ(number, count);
      EXPECT_EQ(types, expected);
    });
  }
};

TEST_F(AllOnuTypes, AreThoseOfTheTableInItsOrder) {
  PutOnus({PlacedOnu{9}, PlacedOnu{0x10009}, PlacedOnu{3}, PlacedOnu{0xffffffff}, PlacedOnu{9}});
  Expect(0, 0, 5, {9, 0x10009, 3, 0xffffffff, 9});
}

TEST_F(AllOnuTypes, AreWithoutEmptyPlacesAndTypeZero) {
  PutOnus({kNull, PlacedOnu{4}, PlacedOnu{0}, kNull, PlacedOnu{0}, PlacedOnu{5}, kNull});
  Expect(0, 0, 2, {4, 5});
  PutOnus({kNull, PlacedOnu{0}});
  Expect(0, 0, 0, {});
}

TEST_F(AllOnuTypes, AreThoseUpToTheCount) {
  PutOnus({PlacedOnu{4}, PlacedOnu{5}});
  gstSupportedOnuType.ulSupportedOnuTypeNum = 1;
  Expect(1, 0, 1, {4});
}

TEST_F(AllOnuTypes, AreAllOfAFullTable) {
  test::PlacedOnus onus;
  for (uint32_t type = 1; type <= 200; ++type) {
    onus.push_back(PlacedOnu{type});
  }
  PutOnus(onus);
  Expect(0, 0, 200, test::NumbersFrom(1, 200));
  Expect(200, 0, 200, test::NumbersFrom(1, 200));
}

// kept as is: the number given limits nothing, and must not be above that of the types.
TEST_F(AllOnuTypes, ANumberAboveTheirsIsRefused) {
  PutOnus({PlacedOnu{4}, kNull, PlacedOnu{5}});
  for (const uint32_t count : {0u, 1u, 2u, 3u}) {
    Expect(count, 0, 2, {4, 5});
  }
  for (const uint32_t count : {4u, 100u, 0x80000000u, 0xffffffffu}) {
    Expect(count, -21, count, {}, "\r\nddGetAllSupportedOnuType, input buffer too small/r/n");
  }
}

TEST_F(AllOnuTypes, AreNoneInAnEmptyTable) {
  PutOnus({});
  Expect(0, 0, 0, {});
  Expect(1, -21, 1, {}, "\r\nddGetAllSupportedOnuType, input buffer too small/r/n");
}

TEST_F(AllOnuTypes, NeedAnArray) {
  Expect(0, -10, 0, {},
         "\r\nddGetAllSupportedOnuType, ulSupportedOnuTypeNum = 0, pOnuTypeArray = 0x0");
  Expect(1, -21, 1, {}, "\r\nddGetAllSupportedOnuType, input buffer too small/r/n");
  gstSupportedOnuType.ulSupportedOnuTypeNum = 2;
  Expect(2, -10, 2, {},
         "\r\nddGetAllSupportedOnuType, ulSupportedOnuTypeNum = 2, pOnuTypeArray = 0x0");
  gstSupportedOnuType.ulSupportedOnuTypeNum = 0xffffffff;
  Expect(0xffffffff, -10, 0xffffffff, {},
         "\r\nddGetAllSupportedOnuType, ulSupportedOnuTypeNum = -1, pOnuTypeArray = 0x0");
}

TEST_F(AllOnuTypes, NeedBothOutputs) {
  for (const bool has_types : {false, true}) {
    if (has_types) {
      PutOnus({PlacedOnu{4}});
    }
    uint32_t number = 9;
    uint32_t types = kUntouched;
    test::ForEachMissing({&number, &types}, [&](const test::Outputs& outputs) {
      AskPlatformTwice({}, "",
                       [&] { EXPECT_EQ(ddGetAllSupportedOnuType(outputs[0], outputs[1]), -2); });
    });
    EXPECT_EQ(number, 9u);
    EXPECT_EQ(types, kUntouched);
  }
}

}  // namespace
