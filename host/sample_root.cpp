// Where the sample chassis lies, seen from the program.
#include "host/sample_root.h"

#include <filesystem>

namespace sysctx {

std::string SampleRoot() {
  namespace fs = std::filesystem;
  constexpr const char* kSample = "kt3300-l";
  const fs::path folder = fs::read_symlink("/proc/self/exe").parent_path();
  const fs::path built = folder / "definitions" / kSample;
  return fs::exists(built) ? built : (folder / SYSCTX_DEFINITIONS / kSample).lexically_normal();
}

}  // namespace sysctx
