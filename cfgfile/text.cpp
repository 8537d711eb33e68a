// Splitting and trimming, for the lookups and as exported functions.
#include "cfgfile/text.h"

#include <cstring>

#include "common/messages.h"
#include "sys_context/cfgfile.h"

namespace sys_context {

Split SplitEntry(std::string_view text, Entry& entry) {
  text = TrimLeft(text);
  if (text.empty()) {
    return Split::kEmpty;
  }
  if (text.front() == '=') {
    return Split::kNoKey;
  }
  const size_t equal_sign = text.find('=');
  if (equal_sign == std::string_view::npos) {
    return Split::kNoEqualSign;
  }
  entry.key = {text.data(), equal_sign};
  text.remove_prefix(equal_sign + 1);
  entry.value = TrimLeft(text);
  return Split::kEntry;
}

namespace {

// Makes `part`, which lies within `text`, the whole of it.
char* KeepOnly(char* text, std::string_view part) {
  std::memmove(text, part.data(), part.size());
  text[part.size()] = '\0';
  return text;
}

// Trims one side. The message shows source and destination, which are the same.
char* TrimInPlace(char* text, std::string_view (*trim)(std::string_view),
                  const Message<uint32_t, uint32_t>& null_text) {
  if (text == nullptr) {
    Report(Gate::kAlways, null_text, LowBits(text), LowBits(text));
    return text;
  }
  return KeepOnly(text, trim(text));
}

}  // namespace
}  // namespace sys_context

int32_t split_key_val(char* text, char** key, char** value) {
  using namespace sys_context;
  if (text == nullptr || key == nullptr || value == nullptr) {
    return static_cast<int32_t>(Split::kEmpty);
  }
  Entry entry;
  const auto split = SplitEntry(text, entry);
  if (split == Split::kEntry) {
    *key = text + (entry.key.data() - text);
    *value = text + (entry.value.data() - text);
    (*key)[entry.key.size()] = '\0';
  }
  return static_cast<int32_t>(split);
}

char* ltrimstr(char* text) {
  using namespace sys_context;
  return TrimInPlace(text, TrimLeft, "\r\nltrimstr err! dstr = 0x%x, sstr = 0x%x");
}

char* rtrimstr(char* text) {
  using namespace sys_context;
  return TrimInPlace(text, TrimRight, "\r\nrtrimstr err! dstr = 0x%x, sstr = 0x%x");
}

char* alltrim(char* text) {
  using namespace sys_context;
  if (text == nullptr) {
    // kept as is: names rtrim, a function that there is not.
    Console("\r\nrtrim err! str = 0x%x", LowBits(text));
    return text;
  }
  return KeepOnly(text, Trim(text));
}
