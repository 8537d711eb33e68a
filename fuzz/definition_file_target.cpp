// The fuzzer's way in.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "fuzz/definition_file.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size);

int LLVMFuzzerInitialize(int*, char***) {
  return std::freopen("/dev/null", "w", stdout) != nullptr ? 0 : -1;
}

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(bytes), size);
  for (const int32_t debug : {0, 1}) {
    const fuzz::Outcome outcome = fuzz::Run(file, debug, fuzz::Queries::kSome);
    if (!fuzz::IsAccountedFor(outcome)) {
      std::fprintf(stderr, "ddInit = %d, %zu blocks lost, %zu left\n", outcome.code,
                   outcome.lost.size(), outcome.left);
      std::abort();
    }
  }
  return 0;
}
