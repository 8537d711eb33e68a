// Adding ports to a record in which everything is set, so that every change is seen.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "catalog/onu/onu_ports_adders.h"
#include "catalog/onu/onu_ports_stand_ins.h"

namespace test {

// What a call does to the record.
enum class Effect {
  kNone,
  kNoCount,         // the kind's own count is cleared
  kNoCountNoArray,  // and its array
  kFilled,
};

inline OnuInformation MarkedOnu() {
  OnuInformation onu = {};
  onu.ulOnuType = 101;
  onu.ulNameLen = 102;
  std::memset(onu.acName, 'x', sizeof onu.acName);
  uintptr_t mark = 0x1030;
  for (const OnuPortKind& kind : OnuPortKinds()) {
    onu.*kind.count = static_cast<uint32_t>(mark);
    onu.*kind.ports = reinterpret_cast<OnuPortTypeInformation**>(mark + 0x1000);
    mark += 0x10;
  }
  return onu;
}

inline void ExpectMarkedBut(const OnuInformation& onu, const PortAdder& adder, Effect effect) {
  OnuInformation expected = MarkedOnu();
  const OnuPortKind& own = adder.Kind();
  if (effect == Effect::kFilled) {  // looked at elsewhere
    expected.*own.count = onu.*own.count;
    expected.*own.ports = onu.*own.ports;
  } else if (effect != Effect::kNone) {
    expected.*own.count = 0;
  }
  if (effect == Effect::kNoCountNoArray) {
    expected.*own.ports = nullptr;
  }
  EXPECT_EQ(onu.ulOnuType, 101u);
  EXPECT_EQ(onu.ulNameLen, 102u);
  EXPECT_EQ(std::string(onu.acName, sizeof onu.acName), std::string(60, 'x'));
  for (const OnuPortKind& kind : OnuPortKinds()) {
    EXPECT_EQ(onu.*kind.count, expected.*kind.count) << kind;
    EXPECT_EQ(onu.*kind.ports, expected.*kind.ports) << kind;
  }
}

// The words of a failure go to the caught console as well. So nothing is called
// after one: each further failure would repeat those before.
class OnuPortsTest : public LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    ForgetOddPort();
  }

  // Reads the ports of section "Sec", and expects that it goes without a word.
  void ExpectToAdd(const PortAdder& adder, OnuFaults& faults, int32_t start, const Names& ports) {
    if (HasFailure()) {
      return;
    }
    const OnuPortKind& kind = adder.Kind();
    OnuInformation onu = MarkedOnu();
    EXPECT_EQ(adder.add(OnuFaults::kPath, "Sec", start, &onu), 0);
    EXPECT_EQ(console_.Text(), "");
    ExpectMarkedBut(onu, adder, Effect::kFilled);
    ASSERT_EQ(onu.*kind.count, ports.size());
    ExpectOnuPorts(faults, kind, onu.*kind.ports, ports);
    EXPECT_EQ(faults.OwnBlocks(), ports.size() + 1);
    ExpectAllClosed(faults);
    for (size_t i = 0; i < ports.size(); ++i) {
      std::free((onu.*kind.ports)[i]);
    }
    std::free(onu.*kind.ports);
  }

  // Reads them, and expects that nothing is kept of it.
  void ExpectToFail(const PortAdder& adder, OnuFaults& faults, int32_t code, Effect effect,
                    const std::string& console) {
    if (HasFailure()) {
      return;
    }
    OnuInformation onu = MarkedOnu();
    EXPECT_EQ(adder.add(OnuFaults::kPath, "Sec", 0, &onu), code);
    EXPECT_EQ(console_.Text(), adder.Text(console));
    ExpectMarkedBut(onu, adder, effect);
    EXPECT_EQ(faults.OwnBlocks(), 0u);
    ExpectAllClosed(faults);
  }

  Console console_;
};

// "Sec" with this number, and ports of these types.
inline std::string Sec(const std::string& number, const Names& ports) {
  return "[Sec]\n{count}=" + number + "\n" + Numbered("{port}", ports);
}

inline std::string NoKey(const std::string& code, const std::string& key) {
  return "\r\n{f} err! iResult = " + code + ", section = Sec, key = " + key;
}

}  // namespace test
