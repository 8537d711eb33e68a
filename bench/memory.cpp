// Loads the tables of the definition files, as a host does, and prints what they
// take of the heap. Its own malloc, calloc, free and fopen stand in front of the
// C library's.
#include <fcntl.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>

#include "bench/loaders.h"
#include "bench/table.h"

extern "C" void* __libc_malloc(size_t size);
extern "C" void* __libc_calloc(size_t count, size_t size);
extern "C" void __libc_free(void* block);

namespace {

using bench::kLoaders;

// Blocks, the bytes that were asked for, and those that the allocator took.
struct Use {
  size_t blocks = 0;
  size_t asked = 0;
  size_t taken = 0;

  Use Since(const Use& before) const {
    return {blocks - before.blocks, asked - before.asked, taken - before.taken};
  }
};

struct Block {
  void* start;
  size_t asked;
};

// What is on the heap now. It must not allocate itself.
constinit Block blocks[400000] = {};
constinit Use now = {};
constinit Use peak = {};

size_t Taken(void* block) {
  return malloc_usable_size(block) + sizeof(size_t);  // the size word in front of it
}

void* Enter(void* start, size_t asked) {
  if (start == nullptr || now.blocks == std::size(blocks)) {
    std::abort();
  }
  blocks[now.blocks] = {start, asked};
  now = {now.blocks + 1, now.asked + asked, now.taken + Taken(start)};
  if (now.taken > peak.taken) {
    peak = now;
  }
  return start;
}

void Leave(void* start) {
  for (size_t i = now.blocks; i-- > 0;) {
    if (blocks[i].start == start) {
      now = {now.blocks - 1, now.asked - blocks[i].asked, now.taken - Taken(start)};
      blocks[i] = blocks[now.blocks];
      return;
    }
  }
}

// What is loaded, which ddInit opens by paths of its own.
constinit bench::Definitions files = {};

}  // namespace

extern "C" void* malloc(size_t size) noexcept {
  return Enter(__libc_malloc(size), size);
}

extern "C" void* calloc(size_t count, size_t size) noexcept {
  return Enter(__libc_calloc(count, size), count * size);
}

extern "C" void free(void* block) noexcept {
  Leave(block);
  __libc_free(block);
}

extern "C" FILE* fopen(const char* path, const char* mode) {
  const int descriptor = open(files.Meant(path), O_RDONLY);
  return descriptor < 0 ? nullptr : fdopen(descriptor, mode);
}

namespace {

void Check(int32_t code, const char* what) {
  if (code != 0) {
    std::fprintf(stderr, "%s: code %d\n", what, static_cast<int>(code));
    std::exit(1);
  }
}

void AddRow(bench::Table& table, const char* name, const Use& use) {
  table.Row(
      {name, std::to_string(use.blocks), std::to_string(use.asked), std::to_string(use.taken)});
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: %s FILE OPTICAL-FILE\n", argv[0]);
    return 2;
  }
  files = {.device = argv[1], .optical = argv[2]};

  // First all together.
  const Use before = now;
  peak = now;
  Check(ddInit(), "ddInit");
  const Use of_init = now.Since(before);
  const Use of_peak = peak.Since(before);

  // Then table by table. The frame and the optical modules would release what they hold.
  gstFrame = {};
  init_optmodule_info();
  Use of_tables[std::size(kLoaders)];
  for (size_t i = 0; i < std::size(kLoaders); ++i) {
    const Use before_table = now;
    Check(kLoaders[i].Load(files), kLoaders[i].table);
    of_tables[i] = now.Since(before_table);
  }

  bench::Table table({"", "blocks", "bytes asked for", "bytes taken"});
  for (size_t i = 0; i < std::size(kLoaders); ++i) {
    AddRow(table, kLoaders[i].table, of_tables[i]);
  }
  AddRow(table, "after ddInit", of_init);
  AddRow(table, "peak during ddInit", of_peak);
  table.Print();
  return 0;
}
