// Memory of tables and records: from the C allocator, zeroed, and released
// unless it was handed over (`release()`).
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace sys_context {

struct Free {
  void operator()(void* block) const { std::free(block); }
};

template <typename T>
using Owned = std::unique_ptr<T, Free>;

// One zeroed record, or null.
template <typename T>
Owned<T> NewRecord() {
  return Owned<T>(static_cast<T*>(std::calloc(1, sizeof(T))));
}

// A zeroed array, or null.
template <typename T>
Owned<T[]> NewArray(size_t count) {
  return Owned<T[]>(static_cast<T*>(std::calloc(count, sizeof(T))));
}

}  // namespace sys_context
