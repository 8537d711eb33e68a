// OLT port types: as definition files describe them, and as a query may find them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

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

enum class PortTypeTable {
  kLoaded,             // eight records, see below
  kEmptyPlaces,        // the same with empty places at 0 and 2
  kLengthTooLarge,     // the same; the name length of the third one is 61
  kLengthFarTooLarge,  // the same; it is the largest number
  kFull,               // 30 records: types 1 to 30, names T1 to T30, ratios 101 to 130
  kNone,               // no array, count 0
  kNoneButCount,       // no array, count 3
  kNoRecords,          // array there, count 0
  kCorrupt,            // count 31, array there
  kCorruptNone,        // count 31, no array
  kCorruptMost,        // the largest count, array there
};

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

class PortTypesTest : public LibraryTest {
 protected:
  void TearDown() override {
    gstSupportedOltPortType = {};  // its records are this fixture's
    LibraryTest::TearDown();
  }

  void Put(PortTypeTable types) {
    records_ = types == PortTypeTable::kFull ? Thirty() : Eight();
    slots_.clear();
    for (OltPortInformation& record : records_) {
      slots_.push_back(&record);
    }
    if (types == PortTypeTable::kEmptyPlaces) {
      slots_.insert(slots_.begin(), nullptr);
      slots_.insert(slots_.begin() + 2, nullptr);
    }
    if (types == PortTypeTable::kLengthTooLarge) {
      records_[2].ulNameLen = 61;
    }
    if (types == PortTypeTable::kLengthFarTooLarge) {
      records_[2].ulNameLen = 0xffffffff;
    }
    gstSupportedOltPortType = {Count(types), HasArray(types) ? slots_.data() : nullptr};
  }

  Console console_;
  std::vector<OltPortInformation> records_;
  std::vector<OltPortInformation*> slots_;

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

  static std::vector<OltPortInformation> Thirty() {
    std::vector<OltPortInformation> records;
    for (uint32_t i = 1; i <= 30; ++i) {
      records.push_back(PortTypeRecord(i, "T" + std::to_string(i), 100 + i));
    }
    return records;
  }

  uint32_t Count(PortTypeTable types) const {
    switch (types) {
      case PortTypeTable::kNone:
      case PortTypeTable::kNoRecords:
        return 0;
      case PortTypeTable::kNoneButCount:
        return 3;
      case PortTypeTable::kCorrupt:
      case PortTypeTable::kCorruptNone:
        return 31;
      case PortTypeTable::kCorruptMost:
        return 0xffffffff;
      default:
        return static_cast<uint32_t>(slots_.size());
    }
  }

  static bool HasArray(PortTypeTable types) {
    return types != PortTypeTable::kNone && types != PortTypeTable::kNoneButCount &&
           types != PortTypeTable::kCorruptNone;
  }
};

}  // namespace test
