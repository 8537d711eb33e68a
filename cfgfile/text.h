// Blanks, and the parts of an entry. Only space and tab are blanks.
#pragma once

#include <string_view>

namespace sys_context {

constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

constexpr std::string_view TrimLeft(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) {
    text.remove_prefix(1);
  }
  return text;
}

constexpr std::string_view TrimRight(std::string_view text) {
  while (!text.empty() && IsBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

constexpr std::string_view Trim(std::string_view text) {
  return TrimLeft(TrimRight(text));
}

// How a text splits at its first "="; the numbers are those of split_key_val.
enum class Split { kEntry = 1, kEmpty = 0, kNoKey = -1, kNoEqualSign = -2 };

struct Entry {
  std::string_view key;    // blanks before the "=" are still there
  std::string_view value;  // from the first non-blank on
};

Split SplitEntry(std::string_view text, Entry& entry);

}  // namespace sys_context
