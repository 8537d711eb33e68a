// The lookups: one key of one section of one file.
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

#include "cfgfile/line.h"
#include "cfgfile/line_reader.h"
#include "cfgfile/text.h"
#include "common/codes.h"
#include "sys_context/cfgfile.h"

// kept as is: hosts may look at the brackets, but nothing here does.
constinit char CFG_ssl = '[';
constinit char CFG_ssr = ']';

constinit int32_t CFG_section_line_no = 0;
constinit int32_t CFG_key_line_no = 0;
constinit int32_t CFG_key_lines = 0;

namespace sys_context {
namespace {

struct CloseFile {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

bool IsBlankOrComment(std::string_view text) {
  return text.empty() || text.front() == ';';
}

bool OpensSection(std::string_view text) {
  return text.front() == '[' || text.front() == '{';
}

// kept as is: headers of one or two characters need no closing bracket.
bool LacksClosingBracket(std::string_view header) {
  return header.size() > 2 && header.back() != (header.front() == '[' ? ']' : '}');
}

// kept as is: the last character is cut off, whatever it is; so "[", "[]" and
// "[a" all name the section "".
std::string_view SectionName(std::string_view header) {
  header.remove_suffix(1);
  if (!header.empty()) {
    header.remove_prefix(1);
  }
  return header;
}

// Reads up to the header of `section`. `header_position` follows the line
// being read.
int32_t FindSection(LineReader& lines, std::string_view section, int32_t& header_position) {
  for (;;) {
    lines.SkipLinesWithoutBracket();
    header_position = lines.position();
    std::string_view line;
    if (const int32_t length = lines.Next(line); length < 0) {
      return length == kLineReadError ? kReadError : kNoSection;
    }
    const std::string_view text = Trim(line);
    if (IsBlankOrComment(text) || !OpensSection(text)) {
      continue;
    }
    if (LacksClosingBracket(text)) {
      return kSyntaxError;
    }
    if (SectionName(text) == section) {
      CFG_section_line_no = lines.line_number();
      return kOk;
    }
  }
}

// An entry of several lines, joined.
class JoinedEntry {
 public:
  void Begin(std::string_view line) {
    length_ = 0;
    Append(line);
  }

  // Appends a line; if it ends in "+", without that.
  bool Append(std::string_view line) {
    continues_ = line.ends_with('+');
    if (continues_) {
      line.remove_suffix(1);
    }
    if (length_ + line.size() > kLongestLine) {
      return false;
    }
    std::memcpy(text_ + length_, line.data(), line.size());
    length_ += line.size();
    return true;
  }

  bool continues() const { return continues_; }
  std::string_view text() const { return {text_, length_}; }

 private:
  char text_[kLongestLine];
  size_t length_ = 0;
  bool continues_ = false;
};

// Joins the entry that begins with `first` and goes on in the following lines,
// which are text whatever they hold and keep their leading blanks. The end of
// the file ends the entry.
int32_t JoinLines(LineReader& lines, std::string_view first, JoinedEntry& entry) {
  entry.Begin(first);
  while (entry.continues()) {
    std::string_view line;
    if (const int32_t length = lines.Next(line); length < 0) {
      return length == kLineReadError ? kReadError : kOk;
    }
    ++CFG_key_lines;
    if (!entry.Append(TrimRight(line))) {
      return kEntryTooLong;
    }
  }
  return kOk;
}

void CopyValue(std::string_view text, char* value) {
  std::memcpy(value, text.data(), text.size());
  value[text.size()] = '\0';
}

// Knows entries that are certainly not of a key, which spares most lines of a section a
// closer look.
class OtherEntries {
 public:
  explicit OtherEntries(std::string_view key) : key_(key) {}

  bool operator()(std::string_view line) {
    return !line.empty() && IsOrdinary(line.front()) && line.back() != '+' &&
           !IsBlank(line.back()) && !MayBeOfKey(line) && HasEqualSign(line);
  }

 private:
  // Blanks, ";" and "=" are not above "="; nor are digits, but few keys begin with one.
  static bool IsOrdinary(char first) { return first > '=' && first != '[' && first != '{'; }

  // The last character is looked at first: the keys of a list differ in their numbers.
  bool MayBeOfKey(std::string_view line) const {
    return key_.empty() || (line.size() >= key_.size() && line[key_.size() - 1] == key_.back() &&
                            std::memcmp(line.data(), key_.data(), key_.size()) == 0);
  }

  // In most lines it stands where it stood in the one before.
  bool HasEqualSign(std::string_view line) {
    if (equal_sign_ >= line.size() || line[equal_sign_] != '=') {
      equal_sign_ = line.find('=');
    }
    return equal_sign_ != std::string_view::npos;
  }

  std::string_view key_;
  size_t equal_sign_ = 0;
};

// Reads the entries of a section up to the one of `key`.
int32_t FindKey(LineReader& lines, std::string_view key, char* value) {
  JoinedEntry joined;
  OtherEntries others(key);
  for (;;) {
    const int32_t lines_before = lines.line_number();
    std::string_view line;
    const int32_t length = lines.NextBut(others, line);
    if (lines.line_number() != lines_before) {  // also at the end, behind other entries
      CFG_key_line_no = lines.line_number();
      CFG_key_lines = 1;
    }
    if (length < 0) {
      return length == kLineReadError ? kReadError : kNoKey;
    }
    std::string_view text = Trim(line);
    if (IsBlankOrComment(text)) {
      continue;
    }
    if (OpensSection(text)) {
      return kNoKey;
    }
    if (text.back() == '+') {
      if (const int32_t code = JoinLines(lines, text, joined); code != kOk) {
        return code;
      }
      text = joined.text();
    }
    Entry entry;
    if (SplitEntry(text, entry) != Split::kEntry) {
      return kSyntaxError;
    }
    if (TrimRight(entry.key) == key) {
      CopyValue(entry.value, value);
      return kOk;
    }
  }
}

// `start` and `header_position` are null for a lookup from the top.
int32_t LookUp(const char* file, const char* section, const char* key, char* value,
               const int32_t* start, int32_t* header_position) {
  CFG_section_line_no = 0;
  CFG_key_line_no = 0;
  CFG_key_lines = 0;
  const File stream(std::fopen(file, "rb"));
  if (stream == nullptr) {
    return kNoFile;
  }
  std::setvbuf(stream.get(), nullptr, _IONBF, 0);  // the line reader has a buffer of its own
  if (start != nullptr && std::fseek(stream.get(), *start, SEEK_SET) != 0) {
    return kReadError;
  }
  LineReader lines(stream.get(), start != nullptr ? *start : 0);
  int32_t position = 0;
  const int32_t code = FindSection(lines, section, position);
  if (header_position != nullptr) {
    *header_position = position;
  }
  return code != kOk ? code : FindKey(lines, key, value);
}

}  // namespace
}  // namespace sys_context

int32_t CFG_get_key(const char* file, const char* section, const char* key, char* value) {
  using namespace sys_context;
  if (file == nullptr || section == nullptr || key == nullptr || value == nullptr) {
    return kNullArgument;
  }
  return LookUp(file, section, key, value, nullptr, nullptr);
}

int32_t CFG_get_key_offset(const char* file, const char* section, const char* key, char* value,
                           int32_t iOffsetIn, int32_t* piOffsetOut) {
  using namespace sys_context;
  if (file == nullptr || section == nullptr || key == nullptr || value == nullptr ||
      piOffsetOut == nullptr) {
    return kNullArgument;
  }
  return LookUp(file, section, key, value, &iOffsetIn, piOffsetOut);
}
