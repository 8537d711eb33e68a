// Reading lines in blocks; see the header.
#include "cfgfile/line_reader.h"

#include <algorithm>

#include "cfgfile/line.h"

namespace sys_context {
namespace {

constexpr char kFirstPrintable = ' ';

// Lines are skipped by chunks of some words.
constexpr size_t kChunkWords = 8;
constexpr size_t kChunk = kChunkWords * kWordBytes;

// So many chunks in a row without a line feed may belong to a line that must be
// cut. One less may not: with chunks of 64 bytes, 6 of them and at most 63 bytes
// of the chunk before and of the one behind make 510 characters.
constexpr size_t kSuspiciousChunks = (kLongestLine - 1 - 2 * (kChunk - 1)) / kChunk + 1;

// Bytes which the skipping must not pass over: they may begin a section or end
// a line. Of the line ends only the line feed is harmless.
constexpr Word MarkStops(Word word) {
  return MarkOpeningBracket(word) | MarkZero(word) | MarkEqual(word, kFormFeed) |
         MarkEqual(word, kSubstitute);
}

// Not zero exactly when MarkStops is not.
constexpr Word HintStops(Word word) {
  const Word hints = HintEqual(JoinOpeningBrackets(word), '{') | HintZero(word) |
                     HintEqual(word, kFormFeed) | HintEqual(word, kSubstitute);
  return hints & ~word & kTopBits;
}

// What one look at a chunk tells.
struct ChunkLook {
  size_t line_feeds = 0;
  bool has_stop = false;
};

ChunkLook LookAtChunk(const char* bytes) {
  Word line_feeds = 0;
  Word stops = 0;
  for (size_t i = 0; i < kChunkWords; ++i) {
    const Word word = LoadWord(bytes + i * kWordBytes);
    stops |= HintStops(word);
    line_feeds += MarkEqual(word, '\n') >> 7;
  }
  return {SumOfBytes(line_feeds), stops != 0};
}

// A closer look: the bytes up to the first stop (or the chunk's end), and the
// line feeds among them.
struct StopLook {
  size_t line_feeds = 0;
  size_t bytes = 0;
};

StopLook LookForStop(const char* bytes) {
  StopLook look;
  for (; look.bytes < kChunk; look.bytes += kWordBytes) {
    const Word word = LoadWord(bytes + look.bytes);
    if (const Word stops = MarkStops(word); stops != 0) {
      const char* const stop = bytes + look.bytes + FirstMarked(stops);
      look.line_feeds += static_cast<size_t>(std::count(bytes + look.bytes, stop, '\n'));
      look.bytes = static_cast<size_t>(stop - bytes);
      break;
    }
    look.line_feeds += CountMarked(MarkEqual(word, '\n'));
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
  const int32_t length =
      has_bytes && LineInBlock(line) ? static_cast<int32_t>(line.size()) : LineByteByByte(line);
  if (length >= 0) {
    ++line_number_;
  }
  return length;
}

// Takes the next `bytes` bytes, of which the first `length` are the line, if the
// block has so many.
bool LineReader::Take(size_t length, size_t bytes, std::string_view& line) {
  if (bytes > end_ - next_) {
    return false;
  }
  line = {block_ + next_, length};
  next_ += bytes;
  return true;
}

// Takes a line that lies within the block, ends in LF or CR LF or at the maximum
// and holds nothing that a copy would lose. The line feeds behind the block's
// bytes end the search.
bool LineReader::LineInBlock(std::string_view& line) {
  const char* const start = block_ + next_;
  const char* byte = start;
  for (;;) {
    const Word marks = MarkBelow(LoadWord(byte), kFirstPrintable);
    if (marks == 0) {
      byte += kWordBytes;
      continue;
    }
    byte += FirstMarked(marks);
    const auto length = static_cast<size_t>(byte - start);
    if (length >= kLongestLine) {
      return Take(kLongestLine, kLongestLine, line);
    }
    const size_t carriage_return = *byte == '\r' ? 1 : 0;
    if (byte[carriage_return] == '\n') {
      return Take(length, length + carriage_return + 1, line);
    }
    if (*byte == '\r' || *byte == '\0' || *byte == kFormFeed || *byte == kSubstitute) {
      return false;
    }
    ++byte;  // a tab, or another control byte that stands for itself
  }
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
  size_t line_feeds = 0;
  size_t chunks_without = 0;
  while (at + kChunk <= end_ && chunks_without < kSuspiciousChunks) {
    const ChunkLook chunk = LookAtChunk(block_ + at);
    if (chunk.has_stop) {
      const StopLook look = LookForStop(block_ + at);
      line_feeds += look.line_feeds;
      at += look.bytes;
      break;
    }
    line_feeds += chunk.line_feeds;
    at += kChunk;
    chunks_without = chunk.line_feeds == 0 ? chunks_without + 1 : 0;
  }
  // Back to the start of the line in which the looking stopped.
  while (at > next_ && block_[at - 1] != '\n') {
    --at;
  }
  next_ = at;
  line_number_ += static_cast<int32_t>(line_feeds);
}

}  // namespace sys_context
