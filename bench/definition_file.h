// Definition files to measure on: made up, but of the lines that real ones
// hold, and the same in every run.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

// One lookup in one file, and what it has to answer.
struct Lookup {
  std::string section;
  std::string key;
  std::string value;
  size_t bytes = 0;  // from the top of the file to the end of the key's line
};

// A file that a lookup is made in.
struct DefinitionFile {
  std::string text;
  Lookup first;   // the first key of the file
  Lookup middle;  // the last key of the section in the middle
  Lookup last;    // the last key of the file
  size_t odd_lines = 0;
};

// Every so many lines is odd; 0: none is. Odd lines stay clear of the keys
// that are looked up.
struct OddLines {
  enum class Kind { kNone, kLong, kOddByte, kTabs };
  Kind kind = Kind::kNone;
  size_t every = 0;
};

enum class LineEnd { kLf, kCrLf };

// Sections of 5 to 30 entries, with blank and comment lines between them.
DefinitionFile ManySections(size_t bytes, LineEnd line_end = LineEnd::kLf, OddLines odd = {});

// A short first section, then one that fills the file.
DefinitionFile HugeSection(size_t bytes, OddLines odd = {});

// A file on disk, for as long as the object lives.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::string_view text);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const char* path() const { return path_.c_str(); }

 private:
  std::string path_;
};

}  // namespace bench
