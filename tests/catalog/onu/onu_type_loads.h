// Loads of ONU types: the table before and after, and the search that ends them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "catalog/onu/onu_type_files.h"
#include "support/console.h"
#include "support/leaks.h"
#include "support/onu_messages.h"

namespace test {

// What the search for most LAN ports finds when it is called; it fails, untried, when a
// test says so.
struct MaxLanSearch {
  int calls = 0;
  int32_t code = 0;
  uint32_t count = 0;
};
MaxLanSearch& TheMaxLanSearch();

// The ONU type that has most LAN ports, as the table has it.
void ExpectMaxLan(uint32_t type, uint32_t ports);

class OnuLoadTest : public LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    TheMaxLanSearch() = {};
  }

  // A table that shows what a load leaves alone.
  static void MarkTable();
  static OnuInformation** OldArray();

  // The array has these ONU types at its start, and nothing else.
  void ExpectOnus(const OnuFaults& faults, size_t announced, const std::vector<ExpectedOnu>& onus);

  Console console_;
};

// ---- Sections "S1", "S2", ... of types 1, 2, ... ------------------------------

std::string Section(uint32_t number);
ExpectedOnu Record(uint32_t number);

inline std::string Decoy(const std::string& section) {
  return OnuSection(section, "91", "Decoy", {{"XGSPON"}, {"FE"}});
}

// A list of S1, S2 and S3, the second of which is this.
std::string WithSecond(const std::string& second);

// A list of S1 and S2 under this number.
std::string Announce(const std::string& number);

// So many ONU types of one PON port, and their records.
std::string ManyOnus(uint32_t count);
std::vector<ExpectedOnu> ManyRecords(uint32_t count);

}  // namespace test
