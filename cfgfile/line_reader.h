// The lines of a definition file, read in blocks.
//
// Next() gives the same lines as fgetline with a maximum of 512 characters.
// Most lines are looked at where they lie in the block; only one that runs over
// the block's end or holds an odd byte is copied byte by byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "cfgfile/line.h"
#include "cfgfile/words.h"

namespace sys_context {

constexpr size_t kLongestLine = 512;
constexpr char kFirstPrintable = ' ';  // bytes below are control bytes

class LineReader {
 public:
  // Reads from the stream's position, which is byte `start` of the file.
  LineReader(std::FILE* stream, int32_t start);
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  // The next line, valid until the next call. Returns its length or one of
  // kLineEndOfFile and kLineReadError.
  int32_t Next(std::string_view& line);

  // Skips lines that hold no opening bracket, as many as are found at little
  // cost; the line behind them may be any.
  void SkipLinesWithoutBracket();

  // Next(), but passes over lines for which `pass_over` is true. Only lines that lie in the
  // block as they are are asked about; the first that does not is given unasked. Lines passed
  // over are counted, also when the answer is negative.
  template <typename PassOver>
  int32_t NextBut(PassOver& pass_over, std::string_view& line);

  // Lines read and skipped so far.
  int32_t line_number() const { return line_number_; }

  // Byte position in the file of the next line.
  int32_t position() const {
    return static_cast<int32_t>(block_start_ + static_cast<uint32_t>(next_));
  }

 private:
  static constexpr size_t kFirstBlock = 4096;
  static constexpr size_t kBlock = 8192;

  // A line that lies in the block as it is, and where the next one begins.
  struct LineInBlock {
    std::string_view text;
    const char* next = nullptr;
  };

  bool Refill();
  int NextByte();
  // Finds a line that ends in LF or CR LF or at the maximum and holds nothing that a copy
  // would lose. False when the line at `start` is none, or runs over the block's end.
  bool FindLineEnd(const char* start, LineInBlock& line) const;
  int32_t LineByteByByte(std::string_view& line);

  std::FILE* stream_;
  uint32_t block_start_;
  size_t next_ = 0;  // of the next line, in the block
  size_t end_ = 0;   // of the bytes in the block
  size_t to_read_ = kFirstBlock;
  int at_end_ = 0;  // kSourceEnd or kSourceError when the stream gives no more
  int32_t line_number_ = 0;
  char block_[kBlock + kWordBytes];  // line feeds stand behind the bytes
  char copy_[kLongestLine + 1];
};

// The first control byte; there must be one.
inline const char* FindControl(const char* bytes) {
  for (;; bytes += kWordBytes) {
    const Word word = LoadWord(bytes);
    if ((HintBelow(word, kFirstPrintable) & ~word & kTopBits) != 0) {
      return bytes + FirstMarked(MarkBelow(word, kFirstPrintable));
    }
  }
}

// The line feeds behind the block's bytes end the search.
inline bool LineReader::FindLineEnd(const char* start, LineInBlock& line) const {
  for (const char* byte = FindControl(start);; byte = FindControl(byte + 1)) {
    const auto length = static_cast<size_t>(byte - start);
    if (length >= kLongestLine) {
      line = {{start, kLongestLine}, start + kLongestLine};
      break;
    }
    if (*byte == '\n') {
      line = {{start, length}, byte + 1};
      break;
    }
    if (*byte == '\r' && byte[1] == '\n') {
      line = {{start, length}, byte + 2};
      break;
    }
    if (*byte == '\r' || *byte == '\0' || *byte == kFormFeed || *byte == kSubstitute) {
      return false;
    }
    // A tab, or another control byte that stands for itself.
  }
  return line.next <= block_ + end_;
}

// This is the innermost loop of a lookup: what it changes is kept in local variables.
template <typename PassOver>
int32_t LineReader::NextBut(PassOver& pass_over, std::string_view& line) {
  if (next_ == end_) {
    return Next(line);
  }
  PassOver passes_over = pass_over;
  const char* next = block_ + next_;
  int32_t lines = 0;
  LineInBlock found;
  bool stopped = false;
  while (!stopped && FindLineEnd(next, found)) {
    next = found.next;
    ++lines;
    stopped = !passes_over(found.text);
  }
  next_ = static_cast<size_t>(next - block_);
  line_number_ += lines;
  pass_over = passes_over;
  if (!stopped) {
    return Next(line);
  }
  line = found.text;
  return static_cast<int32_t>(line.size());
}

}  // namespace sys_context
