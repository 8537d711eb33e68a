// Loads of a catalog when memory runs out or the file fails: at every allocation and every
// lookup, one at a time and all from one on. The tests are the same for each catalog; its
// messages, and what is kept, are its own.
#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "support/faults.h"
#include "support/tables.h"

namespace test {

// What comes of one step of a load, if it alone fails.
struct LoadFailure {
  int32_t code;
  std::vector<uint32_t> kept;  // the types of the records in the array
  size_t lost;                 // copies of ports that are not released
  std::string console;
  std::string debug_console = "";  // before `console`, under the debug switch
};

inline const std::vector<uint32_t> kNone = {};
inline const std::vector<uint32_t> kFirst = {5};
inline const std::vector<uint32_t> kSecond = {6};
inline const std::vector<uint32_t> kBoth = {5, 6};

// The load of a file that has two records, of types 5 and 6.
struct FaultyLoad {
  const char* name;

  // Puts the file and what the load needs in their places, and watches the library.
  std::shared_ptr<Faults> (*watch)(int32_t debug);
  int32_t (*run)();

  // Expects that the table is as such a failure leaves it.
  void (*expect)(const LoadFailure& failure);
  size_t port_size;  // of a copy that is lost

  // In the order in which they are made. In the messages of lookups "%" stands for the
  // code of the one that failed.
  const std::vector<LoadFailure>& (*allocations)();
  const std::vector<LoadFailure>& (*lookups)();

  // Said last, when the second record has no memory or no entry in the list either.
  std::string also_no_record;
  std::string also_no_entry;

  friend std::ostream& operator<<(std::ostream& out, const FaultyLoad& load) {
    return out << load.name;
  }
};

class LoadFaultsTest : public LibraryTest {
 protected:
  // Loads, and expects what that leads to. Whatever is kept is in order.
  void ExpectFailure(const FaultyLoad& load, Faults& faults, const LoadFailure& failure);

  Console console_;
};

// Both are instantiated for each catalog.
class LoadFaults : public LoadFaultsTest, public testing::WithParamInterface<FaultyLoad> {};
class LoadFileFaults : public LoadFaultsTest,
                       public testing::WithParamInterface<std::tuple<FaultyLoad, FileFault>> {};

}  // namespace test
