// The definition-file dialect read the plain way: one byte after the other,
// with a string for every line. Slow and obvious; the lookups are held against
// it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace plain {

// What one lookup leaves behind. An absent value or offset was not written.
struct Answer {
  int32_t code = 0;
  std::optional<std::string> value;
  std::optional<int32_t> offset;
  int32_t section_line_no = 0;
  int32_t key_line_no = 0;
  int32_t key_lines = 0;

  bool operator==(const Answer&) const = default;
};

// A file's bytes and a place in them.
class File {
 public:
  static constexpr size_t kReadable = std::string_view::npos;

  // From byte `unreadable_from` on, reading fails.
  explicit File(std::string_view bytes, size_t position = 0, size_t unreadable_from = kReadable)
      : bytes_(bytes), position_(position), unreadable_from_(unreadable_from) {}

  // Reads a line of at most `maximum` characters. Returns its length, -1 at the
  // end of the file, -2 when a byte cannot be read.
  int32_t ReadLine(std::string& line, int32_t maximum);

  size_t position() const { return position_; }

 private:
  std::string_view bytes_;
  size_t position_;
  size_t unreadable_from_;
};

// The lookup that starts at byte `offset_in`, which is not negative.
Answer Lookup(std::string_view bytes, std::string_view section, std::string_view key,
              int32_t offset_in, size_t unreadable_from = File::kReadable);

}  // namespace plain
