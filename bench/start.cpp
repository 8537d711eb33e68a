// Whole starts; see the header.
#include "bench/start.h"

#include <cstring>

#include "sys_context/context.h"
#include "sys_context/onu.h"

namespace bench {
namespace {

constexpr char kOwnPath[] = "/mnt/work/device_definition.ini";

const char* file_to_load = kOwnPath;

}  // namespace

bool Start(const StartFile& file) {
  file_to_load = file.path;
  return ddInit() == 0 && gstSupportedOnuType.ulSupportedOnuTypeNum != 0;
}

std::FILE* OpenForStart(const char* path, const char* mode) {
  // The C library's fopen by its other name.
  return fopen64(std::strcmp(path, kOwnPath) == 0 ? file_to_load : path, mode);
}

}  // namespace bench
