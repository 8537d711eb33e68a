// The fuzzer's way in, for the target of the name FUZZ_TARGET.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size);

namespace {

consteval fuzz::Target TargetNamed(std::string_view name) {
  for (const fuzz::Target& target : fuzz::kTargets) {
    if (target.name == name) {
      return target;
    }
  }
  return {};
}

constexpr fuzz::Target kTarget = TargetNamed(FUZZ_TARGET);
static_assert(kTarget.check != nullptr, "no such target");

}  // namespace

int LLVMFuzzerInitialize(int*, char***) {
  return std::freopen("/dev/null", "w", stdout) != nullptr ? 0 : -1;
}

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  const std::string wrong = kTarget.check({reinterpret_cast<const char*>(bytes), size});
  if (!wrong.empty()) {
    std::fprintf(stderr, "%s: %s\n", kTarget.name, wrong.c_str());
    std::abort();
  }
  return 0;
}
