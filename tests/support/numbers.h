// Runs of numbers.
#pragma once

#include <cstdint>
#include <numeric>
#include <vector>

namespace test {

// `count` numbers from `first` on.
inline std::vector<uint32_t> NumbersFrom(uint32_t first, uint32_t count) {
  std::vector<uint32_t> numbers(count);
  std::iota(numbers.begin(), numbers.end(), first);
  return numbers;
}

}  // namespace test
