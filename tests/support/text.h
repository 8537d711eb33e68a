// Texts for definition files, and texts to compare with.
#pragma once

#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace test {

using Names = std::vector<std::string>;

// A pointer as messages show it: its low 32 bits.
inline std::string Hex(const void* pointer) {
  char text[sizeof "0xffffffff"];
  std::snprintf(text, sizeof text, "0x%x",
                static_cast<unsigned>(reinterpret_cast<uintptr_t>(pointer) & 0xffffffff));
  return text;
}

// An unsigned number as "%d" shows it.
inline std::string Signed(uint32_t number) {
  return std::to_string(static_cast<int32_t>(number));
}

// A pointer as "%d" shows it.
inline std::string Decimal(const void* pointer) {
  return Signed(static_cast<uint32_t>(reinterpret_cast<uintptr_t>(pointer)));
}

// "<prefix>1=<first>\n<prefix>2=<second>\n..."
inline std::string Numbered(const std::string& prefix, const Names& values) {
  std::string text;
  for (size_t i = 0; i < values.size(); ++i) {
    text += prefix + std::to_string(i + 1) + "=" + values[i] + "\n";
  }
  return text;
}

// The text with `to` in the first place of `from`, of which there must be one.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  const size_t place = text.find(from);
  if (place == std::string::npos) {
    throw std::logic_error("no such piece: " + from);
  }
  return text.replace(place, from.size(), to);
}

// The text with `value` in every place of `word`, if there is any.
inline std::string With(std::string text, const std::string& word, const std::string& value) {
  for (size_t place = 0; (place = text.find(word, place)) != std::string::npos;) {
    text.replace(place, word.size(), value);
    place += value.size();
  }
  return text;
}

}  // namespace test
