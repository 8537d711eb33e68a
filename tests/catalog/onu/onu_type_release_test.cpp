// Releasing an ONU type that no load has made.
#include <cstdint>
#include <ostream>
#include <string>
#include <tuple>

#include "catalog/onu/onu_type_files.h"
#include "support/rows.h"

namespace {

using test::OnuFaults;
using test::OnuPortKind;
using test::OnuPortKinds;

class OnuReleaseTest : public test::LibraryTest {
 protected:
  // A port for each place, or for every second from the second on.
  static void PutPorts(const OnuPortKind& kind, OnuInformation& onu, uint32_t places,
                       bool with_empty_places = false) {
    onu.*kind.count = places;
    onu.*kind.ports = test::ZeroedBlocks<OnuPortTypeInformation*>(places + 1);
    for (uint32_t i = 0; i < places; ++i) {
      if (!with_empty_places || i % 2 == 1) {
        (onu.*kind.ports)[i] = test::NewOnuPortType(kind, 0);
      }
    }
  }

  test::Console console_;
};

struct ReleaseRow {
  const char* name;
  int places_from_limit;
  bool with_empty_places;
  bool ports_are_released;
  friend std::ostream& operator<<(std::ostream& out, const ReleaseRow& row) {
    return out << row.name;
  }
};

class ReleaseOnu : public OnuReleaseTest,
                   public testing::WithParamInterface<std::tuple<OnuPortKind, ReleaseRow>> {};

TEST_P(ReleaseOnu, PortsBelowTheLimitToo) {
  const auto& [kind, row] = GetParam();
  OnuFaults faults;
  auto* const onu = test::ZeroedBlocks<OnuInformation>(1);
  const uint32_t places = kind.most + static_cast<uint32_t>(row.places_from_limit);
  PutPorts(kind, *onu, places, row.with_empty_places);
  const size_t ports = faults.OwnBlocks() - 2;

  EXPECT_EQ(ddFreeOneOnuAllObj(onu), 0);

  EXPECT_EQ(console_.Text(), "");
  test::ExpectAndReleaseLostPorts(faults, row.ports_are_released ? 0 : ports);
  EXPECT_EQ(faults.OwnBlocks(), 0u);
}

const ReleaseRow kReleases[] = {
    {"TwoBelowTheLimit", -2, false, true},     {"OneBelowTheLimit", -1, false, true},
    {"EmptyPlaces", -1, true, true},           {"AtTheLimit", 0, false, false},
    {"EmptyPlacesAtTheLimit", 0, true, false}, {"AboveTheLimit", 1, false, false},
};
INSTANTIATE_TEST_SUITE_P(OnuTypes, ReleaseOnu,
                         testing::Combine(testing::ValuesIn(OnuPortKinds()),
                                          testing::ValuesIn(kReleases)),
                         test::KindAndRow());

TEST_F(OnuReleaseTest, AnArrayOfNoPorts) {
  for (const OnuPortKind& kind : OnuPortKinds()) {
    OnuFaults faults;
    auto* const onu = test::ZeroedBlocks<OnuInformation>(1);
    PutPorts(kind, *onu, 0);
    EXPECT_EQ(ddFreeOneOnuAllObj(onu), 0);
    EXPECT_EQ(faults.OwnBlocks(), 0u);
  }
}

TEST_F(OnuReleaseTest, LargestCounts) {
  for (const OnuPortKind& kind : OnuPortKinds()) {
    for (const uint32_t count : {0x7fffffffu, 0x80000000u, 0xffffffffu}) {
      OnuFaults faults;
      auto* const onu = test::ZeroedBlocks<OnuInformation>(1);
      PutPorts(kind, *onu, 3);
      onu->*kind.count = count;
      EXPECT_EQ(ddFreeOneOnuAllObj(onu), 0);
      test::ExpectAndReleaseLostPorts(faults, 3);
      EXPECT_EQ(faults.OwnBlocks(), 0u);
    }
  }
}

TEST_F(OnuReleaseTest, NoArrays) {
  for (const uint32_t count : {0u, 3u, 100u}) {
    OnuFaults faults;
    auto* const onu = test::ZeroedBlocks<OnuInformation>(1);
    for (const OnuPortKind& kind : OnuPortKinds()) {
      onu->*kind.count = count;
    }
    EXPECT_EQ(ddFreeOneOnuAllObj(onu), 0);
    EXPECT_EQ(console_.Text(), "");
    EXPECT_EQ(faults.OwnBlocks(), 0u);
  }
}

TEST_F(OnuReleaseTest, AllKindsAtOnce) {
  OnuFaults faults;
  auto* const onu = test::ZeroedBlocks<OnuInformation>(1);
  uint32_t places = 1;
  for (const OnuPortKind& kind : OnuPortKinds()) {
    PutPorts(kind, *onu, places++);
  }
  EXPECT_EQ(ddFreeOneOnuAllObj(onu), 0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(faults.frees, 1 + 4 + 1 + 2 + 3 + 4);  // record, arrays, ports
  EXPECT_EQ(faults.OwnBlocks(), 0u);
}

TEST_F(OnuReleaseTest, NoRecord) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(ddFreeOneOnuAllObj(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddAddSupportedLanToOnuObj err! pstOnuInformation = 0x0");
  }
}

}  // namespace
