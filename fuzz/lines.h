// A fuzzer's bytes as lines, and lines as words: what people can read, and write.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

// Takes what stands in front of the first `end`, and that, off the bytes; all of them
// without one.
inline std::string_view Take(std::string_view& bytes, std::string_view end) {
  const size_t length = bytes.find(end);
  const std::string_view taken = bytes.substr(0, length);
  bytes.remove_prefix(length == std::string_view::npos ? bytes.size() : length + end.size());
  return taken;
}

inline std::string_view TakeLine(std::string_view& bytes) {
  return Take(bytes, "\n");
}

// Decimal, "0x..." or negative; the low bits of what is too large, 0 without digits.
inline uint32_t NumberOf(std::string_view word) {
  return static_cast<uint32_t>(std::strtoull(std::string(word).c_str(), nullptr, 0));
}

// A text with nothing behind its terminator: AddressSanitizer sees who reads on.
class Text {
 public:
  explicit Text(std::string_view text) : bytes_(text.begin(), text.end()) {
    bytes_.push_back('\0');
    bytes_.shrink_to_fit();
  }
  char* get() { return bytes_.data(); }
  const char* get() const { return bytes_.data(); }

 private:
  std::vector<char> bytes_;
};

}  // namespace fuzz
