// Records as the library allocates them, and their names: storing one, what is stored, and
// what a query copies of it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace test {

// For blocks that the library frees.
template <typename T>
T* ZeroedBlocks(size_t count) {
  return static_cast<T*>(std::calloc(count, sizeof(T)));
}

// Stores the name with its terminator, zeros behind it, and the length of both.
// A name that does not fit fills its field, and its length is too large.
template <size_t size>
void StoreName(const std::string& name, char (&field)[size], uint32_t& length) {
  std::fill_n(field, size, '\0');
  std::copy_n(name.c_str(), std::min(name.size() + 1, size), field);
  length = static_cast<uint32_t>(name.size() + 1);
}

// Expects the name with zeros behind it, and the length with the terminator.
template <size_t size>
void ExpectName(const char (&field)[size], uint32_t length, const std::string& name) {
  EXPECT_EQ(length, name.size() + 1);
  std::string expected = name;
  expected.resize(size);
  EXPECT_EQ(std::string(field, size), expected);
}

// Asks for the name of a type, and expects that code. With code 0 the name is
// copied with its terminator, and not a byte more; else nothing is.
inline void ExpectNameCopied(int32_t (*ask)(uint32_t type, char* name), uint32_t type, int32_t code,
                             const std::string& name) {
  std::string buffer(60, '#');
  EXPECT_EQ(ask(type, buffer.data()), code);
  std::string expected(60, '#');
  if (code == 0) {
    std::copy_n(name.c_str(), name.size() + 1, expected.begin());
  }
  EXPECT_EQ(buffer, expected);
}

}  // namespace test
