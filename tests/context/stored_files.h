// The device definition file as the flash store may hold it: what fetching it asks of the
// platform, and what comes of that. For all who fetch it.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "support/fake_platform.h"
#include "support/faults.h"
#include "support/text.h"

namespace test {

constexpr char kSizeAsked[] = "flash_sizeof /mnt/work/device_definition.ini";

inline std::string ReadAsked(const std::string& length) {
  return "flash_read /mnt/work/device_definition.ini " + length;
}

// What the flash store and the decompression give.
struct InFlash {
  std::string image = {};
  std::optional<int32_t> size = {};    // what is told instead of the image's
  std::optional<int32_t> length = {};  // what a read stores instead of it
  int32_t read_result = 0;
  std::string text = {};  // what the image expands to, if it is compressed
  int32_t expand_result = 0;

  void Put() const {
    FakePlatform& platform = FakePlatform::Get();
    platform.flash = image;
    platform.flash_size = size;
    platform.flash_length = length;
    platform.flash_read_result = read_result;
    platform.expanded = text;
    platform.expand_result = expand_result;
  }
};

// The text with zeros behind it.
inline std::string Padded(std::string text, size_t size) {
  text.resize(size);
  return text;
}

// A file that is fetched.
struct StoredFile {
  const char* name;
  InFlash flash;
  Names asked;
  std::string text;
  friend std::ostream& operator<<(std::ostream& out, const StoredFile& file) {
    return out << file.name;
  }
};

inline const StoredFile kStoredFiles[] = {
    {"Plain", {.image = "[A]\r\nB=1\n"}, {kSizeAsked, ReadAsked("9")}, "[A]\r\nB=1\n"},
    {"Empty", {.image = ""}, {kSizeAsked, ReadAsked("0")}, ""},
    {"OneByte", {.image = "z"}, {kSizeAsked, ReadAsked("1")}, "z"},
    {"ZeroByteInside",
     {.image = std::string("ab\0cd", 5)},
     {kSizeAsked, ReadAsked("5")},
     std::string("ab\0cd", 5)},
    {"Compressed",
     {.image = "zip12345", .text = "[A]\nB=1\n"},
     {kSizeAsked, ReadAsked("8"), "zUnCompress 3072000 12345"},
     "[A]\nB=1\n"},
    {"CompressedZeroByteInside",
     {.image = "zip1", .text = std::string("abc\0def", 7)},
     {kSizeAsked, ReadAsked("4"), "zUnCompress 3072000 1"},
     std::string("abc\0def", 7)},
    {"ExpandsToNothing",
     {.image = "zip"},
     {kSizeAsked, ReadAsked("3"), "zUnCompress 3072000 "},
     ""},
    {"ExpandsToTheLargestText",
     {.image = "zip12", .text = std::string(3072000, 'x')},
     {kSizeAsked, ReadAsked("5"), "zUnCompress 3072000 12"},
     std::string(3072000, 'x')},
    {"FewerBytesRead", {.image = "abcdef", .length = 4}, {kSizeAsked, ReadAsked("6")}, "abcd"},
    {"MoreBytesRead", {.image = "abcdef", .size = 2}, {kSizeAsked, ReadAsked("2")}, "abcdef"},
    {"FewerCompressedBytesRead",
     {.image = "zip12345", .length = 5, .text = "KT"},
     {kSizeAsked, ReadAsked("8"), "zUnCompress 3072000 12"},
     "KT"},
    {"MarkReadInPart", {.image = "zip1", .length = 2}, {kSizeAsked, ReadAsked("4")}, "zi"},
};

// Files of as many bytes as there is room for.
inline std::vector<StoredFile> FilesAtLimit(int32_t limit) {
  const size_t size = static_cast<size_t>(limit);
  const std::string largest = "KT" + std::string(1, '\0') + std::string(size - 3, 'x');
  return {
      {"LargestSize",
       {.image = "abc", .size = limit},
       {kSizeAsked, ReadAsked(std::to_string(limit))},
       "abc"},
      {"LargestLengthRead",
       {.image = "abc", .length = limit},
       {kSizeAsked, ReadAsked("3")},
       Padded("abc", size)},
      {"LargestPlain", {.image = largest}, {kSizeAsked, ReadAsked(std::to_string(limit))}, largest},
  };
}

// A file that is not fetched: what is said of it, and the numbers of that.
struct UnfitFile {
  enum class Failure { kTooLarge, kNotRead, kNotExpanded };

  const char* name;
  InFlash flash;
  Names asked;
  Failure failure;
  int32_t code;
  int32_t length;
  friend std::ostream& operator<<(std::ostream& out, const UnfitFile& file) {
    return out << file.name;
  }
};

inline const UnfitFile kUnfitFiles[] = {
    {"NotThere", {.size = -1}, {kSizeAsked}, UnfitFile::Failure::kTooLarge, 0, -1},
    {"SmallestSize",
     {.size = std::numeric_limits<int32_t>::min()},
     {kSizeAsked},
     UnfitFile::Failure::kTooLarge,
     0,
     std::numeric_limits<int32_t>::min()},
    {"LargestSize",
     {.size = std::numeric_limits<int32_t>::max()},
     {kSizeAsked},
     UnfitFile::Failure::kTooLarge,
     0,
     2147483647},
    {"NegativeLengthRead",
     {.image = "abc", .length = -1},
     {kSizeAsked, ReadAsked("3")},
     UnfitFile::Failure::kTooLarge,
     0,
     -1},
    {"NotRead",
     {.image = "abc", .read_result = -7},
     {kSizeAsked, ReadAsked("3")},
     UnfitFile::Failure::kNotRead,
     -7,
     3},
    {"CompressedNotRead",
     {.image = "zip1", .read_result = 5},
     {kSizeAsked, ReadAsked("4")},
     UnfitFile::Failure::kNotRead,
     5,
     4},
    {"NotExpanded",
     {.image = "zip12345", .expand_result = -3},
     {kSizeAsked, ReadAsked("8"), "zUnCompress 3072000 12345"},
     UnfitFile::Failure::kNotExpanded,
     -3,
     8},
    {"FewerBytesNotExpanded",
     {.image = "zip12345", .length = 4, .expand_result = 1},
     {kSizeAsked, ReadAsked("8"), "zUnCompress 3072000 1"},
     UnfitFile::Failure::kNotExpanded,
     1,
     4},
    {"TextTooLong",
     {.image = "zip12", .text = std::string(3072001, 'x')},
     {kSizeAsked, ReadAsked("5"), "zUnCompress 3072000 12"},
     UnfitFile::Failure::kNotExpanded,
     -5,
     5},
};

// Files of one byte more than there is room for.
inline std::vector<UnfitFile> FilesBeyondLimit(int32_t limit) {
  return {
      {"Size", {.size = limit + 1}, {kSizeAsked}, UnfitFile::Failure::kTooLarge, 0, limit + 1},
      {"LengthRead",
       {.image = "abc", .length = limit + 1},
       {kSizeAsked, ReadAsked("3")},
       UnfitFile::Failure::kTooLarge,
       0,
       limit + 1},
  };
}

// What is said of files that are not fetched, with {code} and {length} for the numbers.
struct UnfitWords {
  const char* too_large;
  const char* not_read;
  const char* not_expanded;

  std::string Of(const UnfitFile& file) const {
    const char* const text = file.failure == UnfitFile::Failure::kTooLarge  ? too_large
                             : file.failure == UnfitFile::Failure::kNotRead ? not_read
                                                                            : not_expanded;
    return With(With(text, "{code}", std::to_string(file.code)), "{length}",
                std::to_string(file.length));
  }
};

// Watches the buffers: the sizes of those that were released.
struct BufferFaults : Faults {
  BufferFaults() {
    released.clear();
    on_free = [](void*, size_t size) { released.push_back(size); };
  }
  static inline std::vector<size_t> released;
};

// Runs a call that gets no memory for its buffer number `missing` (from 1), once and for
// ever: it does nothing but release the others.
template <typename Call>
void WithoutBuffer(int missing, const std::vector<size_t>& released, Call call) {
  for (const int calls : {1, FaultPlan::kForEver}) {
    SCOPED_TRACE(testing::Message() << "failing allocations: " << calls);
    BufferFaults faults;
    faults.allocations.FailFrom(missing, calls);
    call();
    EXPECT_EQ(faults.allocations.count(), missing);
    EXPECT_EQ(BufferFaults::released, released);
    EXPECT_TRUE(faults.blocks.empty());
    EXPECT_EQ(FakePlatform::TakeAsked(), Names());
    EXPECT_EQ(faults.descriptor_calls, Names());
    if (testing::Test::HasFailure()) {
      return;  // its words may be on a caught console as well
    }
  }
}

// Leaves free memory behind, enough for the buffers, that is not zero.
inline void SoilFreeMemory() {
  for (const size_t size : {5000000u, 3100000u}) {  // the second time the heap keeps it
    const std::vector<std::string> blocks(2, std::string(size, '#'));
  }
}

}  // namespace test
