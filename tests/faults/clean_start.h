// A start of the large sample without a fault: what it does, in order, and what it loads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "faults/contents.h"
#include "faults/tape.h"

namespace faults {

// A record of a table: the place that it has there.
struct Place {
  Loader loader;
  size_t record;
  bool operator==(const Place&) const = default;
  bool operator<(const Place& other) const {
    return loader != other.loader ? loader < other.loader : record < other.record;
  }
};

// A lookup, or an allocation behind it.
struct Event {
  Loader loader;
  bool is_allocation;
  size_t lookup;                // its number, from 0; of an allocation the last one before it
  int number;                   // of an allocation, from 1
  std::optional<Place> record;  // what it is for
  std::optional<Place> needs;   // what the lookup's value names

  // If it fails the load ends; else the record is left out. An end that belongs to a record
  // is one after which the loader has not counted the records before.
  bool ends_load;
  bool forgets() const { return ends_load && record.has_value(); }
};

struct CleanStart {
  static const CleanStart& Get();  // made when it is first asked for

  std::vector<Event> events;
  std::vector<std::string> frame_keys;
  std::vector<size_t> serving_ports;  // of each board
  Contents contents;
  int start_allocations = 0;  // of ddInit
  int allocations = 0;        // with all that is shown
};

// Lets the library find the sample.
void GiveSample(test::Faults& faults);

// The card of the sample, with a small file in flash.
void PreparePlatform();

// Whatever there is to call behind ddInit. Returns the code of ddReadContextFileToBuf.
int32_t ShowAll();

}  // namespace faults
