// Definition files made up at random: well-formed ones, damaged ones, and heaps
// of whatever the reader takes for special. The same seed gives the same file
// on every machine.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace generated {

// Random numbers that are the same everywhere.
class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed) {}

  // A number below `limit`, which is not 0.
  size_t Below(size_t limit) { return static_cast<size_t>((uint64_t{Next()} * limit) >> 32); }
  // A number from `first` to `last`, both included.
  size_t Between(size_t first, size_t last) { return first + Below(last - first + 1); }
  bool OneIn(size_t times) { return Below(times) == 0; }

  template <typename Choice, size_t kAmount>
  const Choice& From(const Choice (&choices)[kAmount]) {
    return choices[Below(kAmount)];
  }

 private:
  uint32_t Next() {
    state_ += 0x9E3779B97F4A7C15u;
    uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return static_cast<uint32_t>(mixed >> 32);
  }

  uint64_t state_;
};

// The kinds of files.
struct Kind {
  const char* name;
  std::string (*make)(Random& random);
  int files;  // how many of them a run makes
};
extern const std::array<Kind, 8> kKinds;

// The seed of file number `number` of a kind.
uint64_t SeedOf(size_t kind, int number);

// A name of a section or key that files may or may not hold.
std::string_view SectionName(Random& random);
std::string_view KeyName(Random& random);

}  // namespace generated
