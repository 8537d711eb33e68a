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

#include "cfgfile/words.h"

namespace sys_context {

constexpr size_t kLongestLine = 512;

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

  // Lines read and skipped so far.
  int32_t line_number() const { return line_number_; }

  // Byte position in the file of the next line.
  int32_t position() const {
    return static_cast<int32_t>(block_start_ + static_cast<uint32_t>(next_));
  }

 private:
  static constexpr size_t kFirstBlock = 4096;
  static constexpr size_t kBlock = 8192;

  bool Refill();
  int NextByte();
  bool Take(size_t length, size_t bytes, std::string_view& line);
  bool LineInBlock(std::string_view& line);
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

}  // namespace sys_context
