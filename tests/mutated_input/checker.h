// What the checks of the tables have in common.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "mutated_input/loaders.h"
#include "support/faults.h"

namespace mutated {

// Notes what does not hold of the tables as a start left them.
class Checker {
 public:
  Checker(const test::Faults& faults, Place failed) : faults_(faults), failed_(failed) {}

  const std::vector<std::string>& wrong() const { return wrong_; }

  bool IsLoaded(Place table) const { return table < failed_; }
  Place failed() const { return failed_; }

  void Expect(bool holds, const char* what, uint32_t index = 0) {
    if (!holds) {
      wrong_.push_back(std::string(what) + " (at " + std::to_string(index) + ")");
    }
  }

  // The size of a block that the library holds; 0 of anything else.
  size_t SizeOf(const void* block) const {
    const auto found = faults_.blocks.find(const_cast<void*>(block));
    return found == faults_.blocks.end() ? 0 : found->second;
  }

  // A name field holds a terminated text of the length that it says.
  template <size_t size>
  void ExpectName(const char (&name)[size], uint32_t length, const char* what, uint32_t index = 0) {
    const void* const end = std::memchr(name, '\0', size);
    Expect(
        end != nullptr && length == static_cast<uint32_t>(static_cast<const char*>(end) - name) + 1,
        what, index);
  }

  // An array holds `count` records, and then null to its end. Can they be looked at?
  template <typename Record>
  bool ExpectRecords(uint32_t count, uint32_t limit, Record* const* records, const char* what) {
    if (records == nullptr) {
      Expect(count == 0, what);
      return false;
    }
    const size_t places = SizeOf(records) / sizeof *records;
    if (places == 0 || places > limit || count > places) {
      Expect(false, what, count);
      return false;
    }
    const size_t wrong_before = wrong_.size();
    for (uint32_t i = 0; i < places; ++i) {
      Expect(i < count ? SizeOf(records[i]) == sizeof(Record) : records[i] == nullptr, what, i);
    }
    return wrong_.size() == wrong_before;
  }

  // A table that was not loaded: no records, and no array either.
  template <typename Record>
  void ExpectNone(uint32_t count, Record* const* records, const char* what) {
    Expect(count == 0 && records == nullptr, what, count);
  }

  // A failed load by order keeps the records so far in its array, but does not count them.
  template <typename Record>
  void ExpectUncounted(uint32_t count, uint32_t limit, Record* const* records, const char* what) {
    Expect(count == 0, what, count);
    uint32_t kept = 0;
    while (records != nullptr && kept < SizeOf(records) / sizeof *records &&
           records[kept] != nullptr) {
      ++kept;
    }
    ExpectRecords(kept, limit, records, what);
  }

  // Every port of an owner is a copy of the first port type of its name.
  template <typename Port>
  void ExpectPorts(uint32_t count, uint32_t limit, Port* const* ports, uint32_t type_count,
                   Port* const* types, const char* what) {
    Expect(count <= limit && (count == 0) == (ports == nullptr), what, count);
    if (count == 0 || ports == nullptr || SizeOf(ports) != count * sizeof *ports) {
      Expect(ports == nullptr, what, count);
      return;
    }
    for (uint32_t i = 0; i < count; ++i) {
      if (SizeOf(ports[i]) != sizeof(Port)) {
        Expect(false, what, i);
        continue;
      }
      uint32_t type = 0;
      while (type < type_count &&
             std::strncmp(types[type]->acName, ports[i]->acName, sizeof types[type]->acName) != 0) {
        ++type;
      }
      Expect(type < type_count && std::memcmp(types[type], ports[i], sizeof(Port)) == 0, what, i);
    }
  }

 private:
  const test::Faults& faults_;
  Place failed_;
  std::vector<std::string> wrong_;
};

// Each checks its tables; those of loaders behind the failed one must be empty.
void CheckContextTables(Checker& checker);
void CheckOltTables(Checker& checker);
void CheckFrame(Checker& checker);
void CheckOnuTables(Checker& checker);
void CheckOptModules(Checker& checker);

}  // namespace mutated
