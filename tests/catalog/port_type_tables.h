// The tables of port types, of an OLT or of ONUs, that a query may find.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace test {

enum class PortTypeTable {
  kLoaded,             // eight records, the catalog's own
  kEmptyPlaces,        // the same with empty places at 0 and 2
  kLengthTooLarge,     // the same; the name length of the third one is 61
  kLengthFarTooLarge,  // the same; it is the largest number
  kFull,               // 30 records: types 1 to 30, names T1 to T30
  kNone,               // no array, count 0
  kNoneButCount,       // no array, count 3
  kNoRecords,          // array there, count 0
  kCorrupt,            // count 31, array there
  kCorruptNone,        // count 31, no array
  kCorruptMost,        // the largest count, array there
};

// The records of a table, and the places that point to them.
template <typename Record>
struct PlacedPortTypes {
  std::vector<Record> records;
  std::vector<Record*> slots;

  // Fills a table with `eight`, or with thirty that `make` makes.
  void Put(PortTypeTable types, const std::vector<Record>& eight,
           Record (*make)(uint32_t type, const std::string& name), uint32_t& count,
           Record**& array) {
    records = types == PortTypeTable::kFull ? Thirty(make) : eight;
    slots.clear();
    for (Record& record : records) {
      slots.push_back(&record);
    }
    if (types == PortTypeTable::kEmptyPlaces) {
      slots.insert(slots.begin(), nullptr);
      slots.insert(slots.begin() + 2, nullptr);
    }
    if (types == PortTypeTable::kLengthTooLarge) {
      records[2].ulNameLen = 61;
    }
    if (types == PortTypeTable::kLengthFarTooLarge) {
      records[2].ulNameLen = 0xffffffff;
    }
    count = Count(types);
    array = HasArray(types) ? slots.data() : nullptr;
  }

 private:
  static std::vector<Record> Thirty(Record (*make)(uint32_t type, const std::string& name)) {
    std::vector<Record> thirty;
    for (uint32_t i = 1; i <= 30; ++i) {
      thirty.push_back(make(i, "T" + std::to_string(i)));
    }
    return thirty;
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
        return static_cast<uint32_t>(slots.size());
    }
  }

  static bool HasArray(PortTypeTable types) {
    return types != PortTypeTable::kNone && types != PortTypeTable::kNoneButCount &&
           types != PortTypeTable::kCorruptNone;
  }
};

}  // namespace test
