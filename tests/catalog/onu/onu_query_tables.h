// The table of ONU types as a query may find it.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "support/asking.h"
#include "support/fake_platform.h"
#include "support/records.h"
#include "sys_context/onu.h"

namespace test {

constexpr std::nullopt_t kNull = std::nullopt;  // an empty place of an array

// Ports by their types. Without places there is no array.
struct PlacedPorts {
  std::vector<std::optional<uint32_t>> types = {};
  std::optional<uint32_t> count = {};  // stored, if it is not the number of places
};

// A name of 60 characters fills its field, and its length does not fit.
struct PlacedOnu {
  uint32_t type;
  std::string name = {};
  PlacedPorts pon = {};
  PlacedPorts lan = {};
  PlacedPorts pots = {};
  PlacedPorts special = {};
  std::optional<uint32_t> name_length = {};  // stored, if it is not the name's
};
using PlacedOnus = std::vector<std::optional<PlacedOnu>>;

// Ports of the types `first`, `first` + 1, ...
inline PlacedPorts PortsOfTypesFrom(uint32_t first, uint32_t count) {
  PlacedPorts ports;
  for (uint32_t i = 0; i < count; ++i) {
    ports.types.push_back(first + i);
  }
  return ports;
}

// Records belong to the fixture, so that their counts may be corrupt.
class OnuTableTest : public AskingTest {
 protected:
  void TearDown() override {
    gstSupportedOnuType = {};
    AskingTest::TearDown();
  }

  // There is an array, also of no places.
  void PutOnus(const PlacedOnus& onus) {
    places_.assign(1, nullptr);
    for (const std::optional<PlacedOnu>& onu : onus) {
      places_.insert(places_.end() - 1, onu ? MakeOnu(*onu) : nullptr);
    }
    places_.pop_back();
    gstSupportedOnuType.ulSupportedOnuTypeNum = static_cast<uint32_t>(onus.size());
    gstSupportedOnuType.pOnuTypeArray = places_.data();
  }

  // As AskTwice; the platform is asked just this each time.
  void AskPlatformTwice(const std::vector<std::string>& asked, const std::string& text,
                        const std::function<void()>& ask) {
    AskTwice(text, [&] {
      FakePlatform::TakeAsked();
      ask();
      EXPECT_EQ(FakePlatform::TakeAsked(), asked);
    });
  }

 private:
  OnuInformation* MakeOnu(const PlacedOnu& onu) {
    OnuInformation& record = records_.emplace_back();
    record.ulOnuType = onu.type;
    StoreName(onu.name, record.acName, record.ulNameLen);
    record.ulNameLen = onu.name_length.value_or(record.ulNameLen);
    PutPorts(onu.pon, record.ulTotalPonNum, record.pOnuPonArray);
    PutPorts(onu.lan, record.ulTotalLanPortNum, record.pOnuLanPortArray);
    PutPorts(onu.pots, record.ulTotalPotsNum, record.pOnuPotsPortArray);
    PutPorts(onu.special, record.ulTotalSpecialPortNum, record.pOnuSpecialPortArray);
    return &record;
  }

  void PutPorts(const PlacedPorts& ports, uint32_t& count, OnuPortTypeInformation**& array) {
    count = ports.count.value_or(static_cast<uint32_t>(ports.types.size()));
    if (ports.types.empty()) {
      return;
    }
    std::vector<OnuPortTypeInformation*>& places = arrays_.emplace_back();
    for (const std::optional<uint32_t>& type : ports.types) {
      places.push_back(nullptr);
      if (type) {
        places.back() = &ports_.emplace_back();
        places.back()->ulPortType = *type;
      }
    }
    array = places.data();
  }

  std::vector<OnuInformation*> places_;
  std::deque<OnuInformation> records_;
  std::deque<OnuPortTypeInformation> ports_;
  std::deque<std::vector<OnuPortTypeInformation*>> arrays_;
};

}  // namespace test
