// Changes of single lines.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mutated {

enum class LineChange { kDelete, kDouble, kSwap, kEmpty, kCut };

// What a line is: nothing to the reader, a section's header, an entry, or part of an entry that
// goes on over several lines.
enum class LineKind { kIdle, kHeader, kEntry, kJoined };

// The lines of a file, without their ends.
class Lines {
 public:
  explicit Lines(std::string_view text);

  size_t size() const { return lines_.size(); }
  std::string_view at(size_t i) const { return lines_[i]; }
  LineKind kind(size_t i) const { return kinds_[i]; }

  // The file with one line changed: left out, twice, behind the next one, without its text, or
  // its first half only. The last line has no next one, and stays where it is.
  std::string With(LineChange change, size_t i) const;

 private:
  std::vector<std::string_view> lines_;
  std::vector<LineKind> kinds_;
};

}  // namespace mutated
