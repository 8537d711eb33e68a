// One pass over a whole definition file, as another library makes it.
#pragma once

#include <cstddef>

namespace bench {

// Return false when the file cannot be read. `entries`, unless null, receives how many
// were found.

// Hands every entry to a function, which only counts it.
bool InihPass(const char* file, size_t* entries);

// Keeps every entry in tables. Comments must begin with "#", and an entry is one line.
bool GKeyFilePass(const char* file, size_t* entries);

}  // namespace bench
