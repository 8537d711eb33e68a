// The floors: system calls and memchr, nothing else.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include <benchmark/benchmark.h>

#include "bench/contestants.h"

namespace bench {
namespace {

constexpr size_t kScanBlock = 65536;
constexpr size_t kOpenBlock = 4096;

size_t CountLineEnds(const char* bytes, size_t size) {
  size_t lines = 0;
  const char* const end = bytes + size;
  while (bytes < end) {
    const void* const line_end = std::memchr(bytes, '\n', static_cast<size_t>(end - bytes));
    if (line_end == nullptr) {
      break;
    }
    bytes = static_cast<const char*>(line_end) + 1;
    ++lines;
  }
  return lines;
}

}  // namespace

bool ScanFloor(const char* file, const Lookup& lookup, char (&)[CFG_VALUE_SIZE]) {
  const int descriptor = open(file, O_RDONLY);
  if (descriptor < 0) {
    return false;
  }
  char block[kScanBlock];
  size_t left = lookup.bytes;
  size_t lines = 0;
  while (left > 0) {
    const ssize_t size = read(descriptor, block, std::min(left, sizeof block));
    if (size <= 0) {
      break;
    }
    lines += CountLineEnds(block, static_cast<size_t>(size));
    left -= static_cast<size_t>(size);
  }
  benchmark::DoNotOptimize(lines);
  return close(descriptor) == 0 && left == 0;
}

bool OpenFloor(const char* file, const Lookup&, char (&)[CFG_VALUE_SIZE]) {
  const int descriptor = open(file, O_RDONLY);
  if (descriptor < 0) {
    return false;
  }
  char block[kOpenBlock];
  const ssize_t size = read(descriptor, block, sizeof block);
  benchmark::DoNotOptimize(block);
  return close(descriptor) == 0 && size > 0;
}

}  // namespace bench
