// Whole starts: ddInit, and the files that it loads.
#pragma once

#include <cstdio>

namespace bench {

struct StartFile {
  const char* name;
  const char* path;
};

// In the second every list is at its limit, but that of main boards: it holds one.
inline constexpr StartFile kStartFiles[] = {
    {"large sample", SYS_CONTEXT_SAMPLE},
    {"every limit, 1 main board", SYS_CONTEXT_LIMITS},
};

// Runs ddInit on a file; false when it fails. What was loaded before is forgotten, not
// released. ddInit has a path of its own, so the program needs an fopen in front of the
// C library's that opens by OpenForStart.
bool Start(const StartFile& file);
std::FILE* OpenForStart(const char* path, const char* mode);

}  // namespace bench
