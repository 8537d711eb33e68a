// The dialect of the definition files, read a byte at a time: what the library
// would cost without its blocks. It keeps no line numbers.
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

#include "bench/contestants.h"

namespace bench {
namespace {

constexpr size_t kLongestLine = 512;

int FreadByte(std::FILE* stream) {
  unsigned char byte = 0;
  return std::fread(&byte, 1, 1, stream) == 1 ? byte : EOF;
}

int GetcByte(std::FILE* stream) {
  return getc_unlocked(stream);
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.back())) {
    text.remove_suffix(1);
  }
  while (!text.empty() && IsBlank(text.front())) {
    text.remove_prefix(1);
  }
  return text;
}

// A template, so that each way to get a byte is compiled into the reader.
template <int (*next_byte)(std::FILE*)>
class Reader {
 public:
  explicit Reader(std::FILE* stream) : stream_(stream) {}

  // False at the end of the file.
  bool Next() {
    size_t length = 0;
    bool consumed = false;
    while (length < kLongestLine) {
      const int byte = next_byte(stream_);
      if (byte == EOF) {
        if (!consumed) {
          return false;
        }
        break;
      }
      consumed = true;
      if (byte == '\n' || byte == '\0') {
        break;
      }
      if (byte == '\r') {
        continue;
      }
      line_[length++] = static_cast<char>(byte);
      if (byte == '\f' || byte == '\x1a') {
        break;
      }
    }
    text_ = {line_, length};
    return true;
  }

  bool FindSection(std::string_view name) {
    while (Next()) {
      const std::string_view header = Trim(text_);
      if (header.empty() || (header.front() != '[' && header.front() != '{')) {
        continue;
      }
      const char closing = header.front() == '[' ? ']' : '}';
      if (header.size() > 2 && header.back() != closing) {
        return false;
      }
      if (header.size() >= 2 && header.substr(1, header.size() - 2) == name) {
        return true;
      }
    }
    return false;
  }

  bool FindKey(std::string_view key, char* value) {
    while (Next()) {
      std::string_view entry = Trim(text_);
      if (entry.empty() || entry.front() == ';') {
        continue;
      }
      if (entry.front() == '[' || entry.front() == '{') {
        return false;
      }
      if (entry.back() == '+' && !Join(entry)) {
        return false;
      }
      const size_t equal_sign = entry.find('=');
      if (equal_sign == 0 || equal_sign == std::string_view::npos) {
        return false;
      }
      if (Trim(entry.substr(0, equal_sign)) == key) {
        const std::string_view found = Trim(entry.substr(equal_sign + 1));
        std::memcpy(value, found.data(), found.size());
        value[found.size()] = '\0';
        return true;
      }
    }
    return false;
  }

 private:
  bool Join(std::string_view& entry) {
    size_t length = 0;
    std::string_view piece = entry;
    for (;;) {
      const bool continues = piece.ends_with('+');
      const size_t size = piece.size() - (continues ? 1 : 0);
      if (length + size > kLongestLine) {
        return false;
      }
      std::memcpy(joined_ + length, piece.data(), size);
      length += size;
      if (!continues || !Next()) {
        break;
      }
      piece = text_;
      while (!piece.empty() && IsBlank(piece.back())) {
        piece.remove_suffix(1);
      }
    }
    entry = {joined_, length};
    return true;
  }

  std::FILE* stream_;
  std::string_view text_;
  char line_[kLongestLine];
  char joined_[kLongestLine];
};

struct CloseFile {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};

template <int (*next_byte)(std::FILE*)>
bool Find(const char* file, const Lookup& lookup, char* value) {
  const std::unique_ptr<std::FILE, CloseFile> stream(std::fopen(file, "rb"));
  if (stream == nullptr) {
    return false;
  }
  Reader<next_byte> reader(stream.get());
  return reader.FindSection(lookup.section) && reader.FindKey(lookup.key, value);
}

}  // namespace

bool FreadByteByByte(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]) {
  return Find<FreadByte>(file, lookup, value);
}

bool GetcByteByByte(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]) {
  return Find<GetcByte>(file, lookup, value);
}

}  // namespace bench
