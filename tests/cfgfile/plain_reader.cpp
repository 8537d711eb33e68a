// See the header. Nothing of the library is used here.
#include "cfgfile/plain_reader.h"

namespace plain {
namespace {

constexpr size_t kMaxLine = 512;

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

void TrimRight(std::string& text) {
  while (!text.empty() && IsBlank(text.back())) {
    text.pop_back();
  }
}

void TrimLeft(std::string& text) {
  size_t blanks = 0;
  while (blanks < text.size() && IsBlank(text[blanks])) {
    ++blanks;
  }
  text.erase(0, blanks);
}

void Trim(std::string& text) {
  TrimRight(text);
  TrimLeft(text);
}

bool CutPlus(std::string& text) {
  if (text.empty() || text.back() != '+') {
    return false;
  }
  text.pop_back();
  return true;
}

// One lookup under way.
class Search {
 public:
  Search(File& file, Answer& answer) : file_(file), answer_(answer) {}

  int32_t FindSection(std::string_view section) {
    while (true) {
      answer_.offset = static_cast<int32_t>(file_.position());
      const int32_t length = file_.ReadLine(line_, kMaxLine);
      if (length < 0) {
        return length == -2 ? -12 : -1;
      }
      ++line_no_;
      Trim(line_);
      if (line_.empty() || line_[0] == ';') {
        continue;
      }
      if (line_.size() > 2) {
        if (line_[0] == '[' && line_.back() != ']') {
          return -14;
        }
        if (line_[0] == '{' && line_.back() != '}') {
          return -14;
        }
      }
      if (line_[0] != '[' && line_[0] != '{') {
        continue;
      }
      line_.pop_back();
      const std::string name = line_.empty() ? "" : line_.substr(1);
      if (name == section) {
        answer_.section_line_no = line_no_;
        return 0;
      }
    }
  }

  int32_t FindKey(std::string_view key) {
    while (true) {
      const int32_t length = file_.ReadLine(line_, kMaxLine);
      if (length < 0) {
        return length == -2 ? -12 : -2;
      }
      answer_.key_line_no = ++line_no_;
      answer_.key_lines = 1;
      Trim(line_);
      if (line_.empty() || line_[0] == ';') {
        continue;
      }
      if (line_[0] == '[' || line_[0] == '{') {
        return -2;
      }
      if (CutPlus(line_)) {
        if (const int32_t code = AppendContinuation(); code != 0) {
          return code;
        }
      }
      if (!SplitEntry()) {
        return -14;
      }
      if (key_ == key) {
        answer_.value = value_;
        return 0;
      }
    }
  }

 private:
  int32_t AppendContinuation() {
    while (true) {
      std::string piece;
      const int32_t length = file_.ReadLine(piece, kMaxLine);
      if (length == -1) {
        return 0;
      }
      if (length == -2) {
        return -12;
      }
      ++line_no_;
      ++answer_.key_lines;
      TrimRight(piece);
      const bool goes_on = CutPlus(piece);
      if (line_.size() + piece.size() > kMaxLine) {
        return -22;
      }
      line_ += piece;
      if (!goes_on) {
        return 0;
      }
    }
  }

  bool SplitEntry() {
    TrimLeft(line_);
    const size_t equals = line_.find('=');
    if (equals == 0 || equals == std::string::npos) {
      return false;
    }
    key_ = line_.substr(0, equals);
    Trim(key_);
    value_ = line_.substr(equals + 1);
    TrimLeft(value_);
    return true;
  }

  File& file_;
  Answer& answer_;
  int32_t line_no_ = 0;
  std::string line_;
  std::string key_;
  std::string value_;
};

}  // namespace

int32_t File::ReadLine(std::string& line, int32_t maximum) {
  line.clear();
  bool consumed = false;
  while (static_cast<int32_t>(line.size()) < maximum) {
    if (position_ >= bytes_.size()) {
      return consumed ? static_cast<int32_t>(line.size()) : -1;
    }
    if (position_ >= unreadable_from_) {
      return -2;
    }
    const char c = bytes_[position_++];
    consumed = true;
    if (c == '\n' || c == '\0') {
      break;
    }
    if (c == '\r') {
      continue;
    }
    line += c;
    if (c == '\f' || c == '\x1A') {
      break;
    }
  }
  return static_cast<int32_t>(line.size());
}

Answer Lookup(std::string_view bytes, std::string_view section, std::string_view key,
              int32_t offset_in, size_t unreadable_from) {
  Answer answer;
  File file(bytes, static_cast<size_t>(offset_in), unreadable_from);
  Search search(file, answer);
  answer.code = search.FindSection(section);
  if (answer.code == 0) {
    answer.code = search.FindKey(key);
  }
  return answer;
}

}  // namespace plain
