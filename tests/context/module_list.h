// The module list as a query may find it.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "support/tables.h"

namespace test {

enum class List {
  kLoaded,        // eight records, see below
  kEmptyPlace,    // the same with an empty place behind the first record
  kFull,          // 200 records, of type and name 1 to 200
  kNone,          // no list, count 0
  kNoneButCount,  // no list, count 3
  kCorrupt,       // 201 records announced, list there
  kCorruptNone,   // 201 records announced, no list
  kCorruptMost,   // the largest count, list there
};

inline ModuleInformation Record(uint32_t type, const std::string& name, uint32_t size) {
  ModuleInformation record = {};
  record.ulModuleType = type;
  record.ulNameLen = static_cast<uint32_t>(name.size() + 1);
  std::memcpy(record.acName, name.c_str(), name.size() + 1);
  record.ulSize = size;
  return record;
}

class ModuleListTest : public LibraryTest {
 protected:
  void TearDown() override {
    gstModuleTypeList = {};  // its records are this fixture's
    LibraryTest::TearDown();
  }

  void Put(List list) {
    records_ = {Record(1, "OMCI", 64),          Record(3, "VLAN", 300),
                Record(4, "vlan", 255),         Record(3, "VLAN2", 7),
                Record(5, "VLAN", 256),         Record(6, std::string(59, 'n'), 0xffffffff),
                Record(0xffffffff, "", 0x1234), Record(0, "ZERO", 0)};
    if (list == List::kFull) {
      records_.clear();
      for (uint32_t i = 1; i <= 200; ++i) {
        records_.push_back(Record(i, std::to_string(i), i));
      }
    }
    slots_.clear();
    for (ModuleInformation& record : records_) {
      slots_.push_back(&record);
    }
    if (list == List::kEmptyPlace) {
      slots_.insert(slots_.begin() + 1, nullptr);
    }
    gstModuleTypeList = {static_cast<uint32_t>(slots_.size()), slots_.data()};
    if (list == List::kNone || list == List::kNoneButCount || list == List::kCorruptNone) {
      gstModuleTypeList.pModuleTypeArray = nullptr;
    }
    switch (list) {
      case List::kNone:
        gstModuleTypeList.ulModuleTypeNum = 0;
        break;
      case List::kNoneButCount:
        gstModuleTypeList.ulModuleTypeNum = 3;
        break;
      case List::kCorrupt:
      case List::kCorruptNone:
        gstModuleTypeList.ulModuleTypeNum = 201;
        break;
      case List::kCorruptMost:
        gstModuleTypeList.ulModuleTypeNum = 0xffffffff;
        break;
      default:
        break;
    }
  }

  Console console_;
  std::vector<ModuleInformation> records_;
  std::vector<ModuleInformation*> slots_;
};

}  // namespace test
