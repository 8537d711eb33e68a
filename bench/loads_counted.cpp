// Counts what loads read: how often they open the file, and the bytes that they get of
// it. Its own fopen and fread stand in front of the C library's, so nothing is measured
// here.
#include <cstdio>
#include <string>

#include "bench/definition_file.h"
#include "bench/from_the_top.h"
#include "bench/loaders.h"
#include "bench/onu_load.h"
#include "bench/start.h"
#include "bench/table.h"

namespace {

constexpr double kKilobyte = 1e3;
constexpr double kMegabyte = 1e6;

struct Use {
  size_t opened = 0;
  size_t bytes = 0;
};
constinit Use now = {};

}  // namespace

extern "C" FILE* fopen(const char* path, const char* mode) {
  ++now.opened;
  return bench::OpenForStart(path, mode);
}

extern "C" size_t fread(void* bytes, size_t size, size_t count, FILE* stream) {
  const size_t read = fread_unlocked(bytes, size, count, stream);  // the C library's
  now.bytes += read * size;
  return read;
}

namespace bench {
namespace {

// Runs `load`; false when it fails.
template <typename Load>
bool Count(const char* name, Load load, Use& use) {
  now = {};
  if (!load()) {
    std::fprintf(stderr, "%s: the load has failed\n", name);
    return false;
  }
  use = now;
  return true;
}

double PerLookup(const Use& use) {
  return use.opened == 0 ? 0 : static_cast<double>(use.bytes) / static_cast<double>(use.opened);
}

size_t SizeOf(const char* path) {
  std::FILE* const stream = std::fopen(path, "rb");
  if (stream == nullptr || std::fseek(stream, 0, SEEK_END) != 0) {
    return 0;
  }
  const long size = std::ftell(stream);
  std::fclose(stream);
  return static_cast<size_t>(size);
}

void AddRow(Table& table, const char* name, const Use& use, size_t file_size) {
  table.Row({name, std::to_string(use.opened),
             Number(static_cast<double>(use.bytes) / kMegabyte, 2), Number(PerLookup(use), 0),
             Number(static_cast<double>(use.bytes) / static_cast<double>(file_size), 2)});
}

// Loads the files at once, then table by table.
bool PrintStart(const StartFile& file) {
  const size_t device_size = SizeOf(file.files.device);
  const size_t optical_size = SizeOf(file.files.optical);
  const size_t size = device_size + optical_size;
  Use of_start;
  if (device_size == 0 || optical_size == 0 ||
      !Count(
          file.name, [&] { return Start(file); }, of_start)) {
    return false;
  }
  std::printf("Reads of a start, %s of %.0f KB and %.1f KB of optical modules.\n\n", file.name,
              static_cast<double>(device_size) / kKilobyte,
              static_cast<double>(optical_size) / kKilobyte);
  Table table({"", "lookups", "MB read", "bytes / lookup", "bytes / byte of the file"});
  Use sum;
  for (const Loader& loader : kLoaders) {
    Use use;
    if (!Count(
            loader.table, [&] { return loader.Load(file.files) == 0; }, use)) {
      return false;
    }
    AddRow(table, loader.table, use,
           loader.file == &Definitions::device ? device_size : optical_size);
    sum = {sum.opened + use.opened, sum.bytes + use.bytes};
  }
  AddRow(table, "ddInit", of_start, size);
  table.Print();
  if (sum.opened != of_start.opened || sum.bytes != of_start.bytes) {
    std::fprintf(stderr, "%s: the tables read %zu bytes, ddInit %zu\n", file.name, sum.bytes,
                 of_start.bytes);
    return false;
  }
  return true;
}

bool PrintOnuLoads() {
  std::printf("Reads of loads of ONU types with %zu ports each.\n\n", kOnuPorts);
  Table table({"", "KB", "lookups", "opens", "MB read", "bytes / lookup", "from the top: MB read",
               "bytes / lookup"});
  for (const size_t types : kOnuTypes) {
    const OnuLoad load(types);
    const std::string name = std::to_string(types) + " ONU types";
    Use of_load;
    Use of_top;
    if (!LoadOnuPortTypes(load) ||
        !Count(
            name.c_str(), [&] { return LoadOnuTypes(load); }, of_load) ||
        !Count(
            name.c_str(), [&] { return LookUpFromTheTop(load.file, load.content.lookups); },
            of_top)) {
      return false;
    }
    table.Row(
        {name, Number(static_cast<double>(load.content.text.size()) / kKilobyte, 0),
         std::to_string(load.content.lookups.size()), std::to_string(of_load.opened),
         Number(static_cast<double>(of_load.bytes) / kMegabyte, 1), Number(PerLookup(of_load), 0),
         Number(static_cast<double>(of_top.bytes) / kMegabyte, 0), Number(PerLookup(of_top), 0)});
  }
  table.Print();
  return true;
}

bool PrintAll() {
  for (const StartFile& file : kStartFiles) {
    if (!PrintStart(file)) {
      return false;
    }
  }
  return PrintOnuLoads();
}

}  // namespace
}  // namespace bench

int main() {
  return bench::PrintAll() ? 0 : 2;
}
