// Reading lines in blocks; see the header.
#include "cfgfile/line_reader.h"

#include <algorithm>

namespace sys_context {
namespace {

// Lines are skipped by chunks of some words.
constexpr size_t kChunkWords = 8;
constexpr size_t kChunk = kChunkWords * kWordBytes;

// So many chunks in a row without a line end may belong to a line that must be
// cut. One less may not: with chunks of 64 bytes, 6 of them and at most 63 bytes
// of the chunk before and of the one behind make 510 characters.
constexpr size_t kSuspiciousChunks = (kLongestLine - 1 - 2 * (kChunk - 1)) / kChunk + 1;

// The ends of lines that the skipping counts: line feeds and 0x1A, which differ in one bit.
constexpr Word MarkLineEnds(Word word) {
  return MarkEqual(word & ~InEachByte('\n' ^ kSubstitute), '\n');
}

constexpr bool IsLineEnd(char c) {
  return c == '\n' || c == kSubstitute;
}

// Bytes which the skipping must not pass over, as they may begin a section or end a line:
// opening brackets, zero and form feed. The last two look alike without two bits, as do 4
// and 8, which are so rare that they may stop it, too.
constexpr Word JoinZeroAndFormFeed(Word word) {
  return word & ~InEachByte(kFormFeed);
}

constexpr Word MarkStops(Word word) {
  return MarkOpeningBracket(word) | MarkZero(JoinZeroAndFormFeed(word));
}

// Not zero exactly when MarkStops is not.
constexpr Word HintStops(Word word) {
  const Word hints =
      HintEqual(JoinOpeningBrackets(word), '{') | HintZero(JoinZeroAndFormFeed(word));
  return hints & ~word & kTopBits;
}

// What one look at a chunk tells.
struct ChunkLook {
  size_t line_ends = 0;
  bool has_stop = false;
};

ChunkLook LookAtChunk(const char* bytes) {
  Word line_ends = 0;
  Word stops = 0;
  for (size_t i = 0; i < kChunkWords; ++i) {
    const Word word = LoadWord(bytes + i * kWordBytes);
    stops |= HintStops(word);
    line_ends += MarkLineEnds(word) >> 7;
  }
  return {SumOfBytes(line_ends), stops != 0};
}

// A closer look: the bytes up to the first stop (or the chunk's end), and the
// line ends among them.
struct StopLook {
  size_t line_ends = 0;
  size_t bytes = 0;
};

StopLook LookForStop(const char* bytes) {
  StopLook look;
  for (; look.bytes < kChunk; look.bytes += kWordBytes) {
    const Word word = LoadWord(bytes + look.bytes);
    if (const Word stops = MarkStops(word); stops != 0) {
      const char* const stop = bytes + look.bytes + FirstMarked(stops);
      look.line_ends += static_cast<size_t>(std::count_if(bytes + look.bytes, stop, IsLineEnd));
      look.bytes = static_cast<size_t>(stop - bytes);
      break;
    }
    look.line_ends += CountMarked(MarkLineEnds(word));
  }
  return look;
}

}  // namespace

LineReader::LineReader(std::FILE* stream, int32_t start)
    : stream_(stream), block_start_(static_cast<uint32_t>(start)) {}

bool LineReader::Refill() {
  if (at_end_ != 0) {
    return false;
  }
  block_start_ += static_cast<uint32_t>(end_);
  next_ = 0;
  end_ = std::fread(block_, 1, to_read_, stream_);
  if (end_ < to_read_) {
    at_end_ = std::ferror(stream_) != 0 ? kSourceError : kSourceEnd;
  }
  to_read_ = kBlock;
  std::fill_n(block_ + end_, kWordBytes, '\n');
  return end_ != 0;
}

int LineReader::NextByte() {
  if (next_ == end_ && !Refill()) {
    return at_end_;
  }
  return static_cast<unsigned char>(block_[next_++]);
}

int32_t LineReader::Next(std::string_view& line) {
  const bool has_bytes = next_ != end_ || Refill();
  int32_t length = 0;
  if (LineInBlock found; has_bytes && FindLineEnd(block_ + next_, found)) {
    line = found.text;
    next_ = static_cast<size_t>(found.next - block_);
    length = static_cast<int32_t>(line.size());
  } else {
    length = LineByteByByte(line);
  }
  if (length >= 0) {
    ++line_number_;
  }
  return length;
}

int32_t LineReader::LineByteByByte(std::string_view& line) {
  const int32_t length =
      CopyLine([this] { return NextByte(); }, copy_, static_cast<int32_t>(kLongestLine));
  if (length >= 0) {
    line = {copy_, static_cast<size_t>(length)};
  }
  return length;
}

void LineReader::SkipLinesWithoutBracket() {
  size_t at = next_;
  size_t line_ends = 0;
  size_t chunks_without = 0;
  while (at + kChunk <= end_ && chunks_without < kSuspiciousChunks) {
    const ChunkLook chunk = LookAtChunk(block_ + at);
    if (chunk.has_stop) {
      const StopLook look = LookForStop(block_ + at);
      line_ends += look.line_ends;
      at += look.bytes;
      break;
    }
    line_ends += chunk.line_ends;
    at += kChunk;
    chunks_without = chunk.line_ends == 0 ? chunks_without + 1 : 0;
  }
  // Back to the start of the line in which the looking stopped.
  while (at > next_ && !IsLineEnd(block_[at - 1])) {
    --at;
  }
  next_ = at;
  line_number_ += static_cast<int32_t>(line_ends);
}

}  // namespace sys_context
