// Whole starts; see the header.
#include "bench/start.h"

#include "sys_context/context.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace bench {
namespace {

Definitions files_to_load = kStartFiles[0].files;

}  // namespace

bool Start(const StartFile& file) {
  files_to_load = file.files;
  return ddInit() == 0 && gstSupportedOnuType.ulSupportedOnuTypeNum != 0 &&
         g_optmdule_infolist.listnum != 0;
}

std::FILE* OpenForStart(const char* path, const char* mode) {
  // The C library's fopen by its other name.
  return fopen64(files_to_load.Meant(path), mode);
}

}  // namespace bench
