// Whole starts: ddInit, and the files that it loads.
#pragma once

#include <cstdio>

#include "bench/definitions.h"

namespace bench {

struct StartFile {
  const char* name;
  Definitions files;
};

// In the second every list is at its limit, but that of main boards: it holds one.
inline constexpr StartFile kStartFiles[] = {
    {"large sample", {SYS_CONTEXT_SAMPLE, SYS_CONTEXT_OPTICAL_SAMPLE}},
    {"every limit, 1 main board", {SYS_CONTEXT_LIMITS, SYS_CONTEXT_OPTICAL_LIMITS}},
};

// Runs ddInit on the files; false when it fails. What was loaded before is forgotten, not
// released. ddInit has paths of its own, so the program needs an fopen in front of the
// C library's that opens by OpenForStart.
bool Start(const StartFile& file);
std::FILE* OpenForStart(const char* path, const char* mode);

}  // namespace bench
