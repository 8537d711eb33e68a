// OLT port types: as definition files describe them, and as a query may find them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "catalog/port_type_tables.h"
#include "support/records.h"
#include "support/tables.h"
#include "sys_context/olt.h"

namespace test {

// ---- In a definition file ----------------------------------------------------

inline std::string PortTypeSection(const std::string& section, const std::string& type,
                                   const std::string& name, const std::string& ratio) {
  return "[" + section + "]\nType=" + type + "\nName=" + name + "\nSplittingRatio=" + ratio + "\n";
}

// The head of a list that announces `number` port types.
inline std::string AnnouncePortTypes(const std::string& number) {
  return "[SupportedOltPortType]\nSupportedOltPortTypeNum=" + number + "\n";
}

// A list of the sections S1, S2 and S3, and behind it `sections`.
inline std::string ThreePortTypes(const std::string& sections) {
  return AnnouncePortTypes("3") +
         "SupportedOltPortType1=S1\nSupportedOltPortType2=S2\nSupportedOltPortType3=S3\n" +
         sections;
}

// ---- In the table ------------------------------------------------------------

// Behind the name, and in the reserved word, are traces that no copy may take over.
inline OltPortInformation PortTypeRecord(uint32_t type, const std::string& name, uint32_t ratio) {
  OltPortInformation record = {};
  record.ulPortType = type;
  StoreName(name, record.acName, record.ulNameLen);
  std::fill(record.acName + record.ulNameLen, std::end(record.acName), '#');
  record.ulSplittingRatio = ratio;
  record.ulLink = 0x5a5a;
  return record;
}

// In a full table the ratios are 101 to 130.
class PortTypesTest : public LibraryTest {
 protected:
  void TearDown() override {
    gstSupportedOltPortType = {};  // its records are this fixture's
    LibraryTest::TearDown();
  }

  void Put(PortTypeTable types) {
    placed_.Put(
        types, Eight(),
        [](uint32_t type, const std::string& name) {
          return PortTypeRecord(type, name, 100 + type);
        },
        gstSupportedOltPortType.ulSupportedOltPortTypeNum,
        gstSupportedOltPortType.pOltPortTypeArray);
  }

  Console console_;
  PlacedPortTypes<OltPortInformation> placed_;

 private:
  static std::vector<OltPortInformation> Eight() {
    return {PortTypeRecord(1, "GPON", 64),
            PortTypeRecord(2, "XGPON", 128),
            PortTypeRecord(1, "gpon", 32),
            PortTypeRecord(3, "GPON", 16),
            PortTypeRecord(4, std::string(59, 'p'), 512),
            PortTypeRecord(0xffffffff, "", 0),
            PortTypeRecord(0, "ZERO", 513),
            PortTypeRecord(5, "WIDE", 0xffffffff)};
  }
};

}  // namespace test
