// What the tables hold, as bytes to compare.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "support/loaders.h"

namespace faults {

using test::Loader;
using enum test::Loader;

struct Record {
  std::string name;
  std::string bytes;
  bool operator==(const Record&) const = default;
};

struct Table {
  bool has_array = false;
  std::vector<Record> records;
};

// The tables in the order of their loaders.
struct Contents {
  std::array<Table, kLoaderCount> tables;

  // Of the frame, a record for each of the keys: what the key is read into.
  static Contents Take(const std::vector<std::string>& frame_keys);
};

// The first difference in words, or "".
std::string Difference(const Contents& expected, const Contents& actual);

// What the loaders of the boards and of the ONU types find out about their tables is so.
void ExpectMostPorts();

// Is the key one of a list of keys: `prefix` with a number behind it?
bool IsNumbered(const std::string& key, const std::string& prefix);

}  // namespace faults
