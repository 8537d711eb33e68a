// The loaders of port types, of an OLT or of ONUs, when memory runs out or the file cannot
// be had. A program with such loaders compiles port_type_faults.cpp as well, and
// instantiates PortTypeFaults with them.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "support/definition_file.h"
#include "support/faults.h"
#include "support/tables.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"

namespace test {

struct PortTypeLoad {
  const char* name;
  std::string file;  // lists the sections S1, S2 and S3, of the types 1, 2 and 3
  int32_t (*read_all)(const char* file);

  // The table.
  uint32_t* count;
  std::variant<OltPortInformation***, OnuPortTypeInformation***> types;

  // What is printed. {n} is the entry's number, {code} the lookup's.
  std::string no_array;
  std::string no_record;
  std::string number_unreadable;
  std::vector<std::string> entry_failed;  // by each of its lookups, in their order

  friend std::ostream& operator<<(std::ostream& out, const PortTypeLoad& load) {
    return out << load.name;
  }
};

class PortTypeFaults : public LibraryTest, public testing::WithParamInterface<PortTypeLoad> {
 protected:
  // An entry's lookups: the one in the list, and those in its section.
  static int LookupsPerEntry() { return static_cast<int>(GetParam().entry_failed.size()); }
  static int Lookups() { return 1 + 3 * LookupsPerEntry(); }

  static std::string NoRecord(int number);
  static std::string LookupFailure(int lookup, const std::string& code);
  static void ExpectTypes(std::initializer_list<uint32_t> types);
  void LoadWithAFailingLookup(int failing, FaultPlan Faults::*calls, const std::string& code);

  DefinitionFile file_{GetParam().file};
  Console console_;
};

}  // namespace test
