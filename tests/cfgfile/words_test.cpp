// The word-at-a-time helpers, held against a look at every single byte: all
// byte values at all places with all neighbours that could disturb, and random
// words.
#include "cfgfile/words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <random>

namespace {

using namespace sys_context;
using Bytes = std::array<char, kWordBytes>;

// Marks every byte of which `holds` says so.
template <typename Holds>
Word Marked(const Bytes& bytes, Holds holds) {
  Bytes marks;
  std::transform(bytes.begin(), bytes.end(), marks.begin(),
                 [&](char c) { return holds(c) ? '\x80' : '\0'; });
  return std::bit_cast<Word>(marks);
}

bool IsBelow(char c, char limit) {
  return static_cast<unsigned char>(c) < static_cast<unsigned char>(limit);
}

constexpr char kSought[] = {'\0', '\n', '\r', '\f', '\x1A', '[', '{', '\x7F', '\x80', '\xFF'};
constexpr char kLimits[] = {'\x01', '\n', ' ', '\x7F', '\x80'};

// Hints, cleared of what bytes from 0x80 on leave, tell whether there is a mark.
bool Hinted(Word hints, Word word) {
  return (hints & ~word & kTopBits) != 0;
}

void CheckHints(Word word) {
  ASSERT_EQ(Hinted(HintZero(word), word), MarkZero(word) != 0) << std::hex << word;
  for (const char sought : kSought) {
    if (IsBelow(sought, '\x80')) {
      ASSERT_EQ(Hinted(HintEqual(word, sought), word), MarkEqual(word, sought) != 0)
          << std::hex << word << " " << int{sought};
    }
  }
  for (const char limit : kLimits) {
    ASSERT_EQ(Hinted(HintBelow(word, limit), word), MarkBelow(word, limit) != 0)
        << std::hex << word << " " << int{limit};
  }
  const Word joined = JoinOpeningBrackets(word);
  ASSERT_EQ(Hinted(HintEqual(joined, '{'), word), MarkOpeningBracket(word) != 0)
      << std::hex << word;
}

void CheckMarks(const Bytes& bytes) {
  const Word word = LoadWord(bytes.data());
  ASSERT_EQ(MarkZero(word), Marked(bytes, [](char c) { return c == '\0'; })) << std::hex << word;
  for (const char sought : kSought) {
    ASSERT_EQ(MarkEqual(word, sought), Marked(bytes, [&](char c) { return c == sought; }))
        << std::hex << word << " " << int{sought};
  }
  for (const char limit : kLimits) {
    ASSERT_EQ(MarkBelow(word, limit), Marked(bytes, [&](char c) { return IsBelow(c, limit); }))
        << std::hex << word << " " << int{limit};
  }
  ASSERT_EQ(MarkOpeningBracket(word), Marked(bytes, [](char c) { return c == '[' || c == '{'; }))
      << std::hex << word;
  ASSERT_NO_FATAL_FAILURE(CheckHints(word));
}

TEST(Words, MarkEveryByteBesideEveryOther) {
  for (int byte = 0; byte < 256; ++byte) {
    for (int other = 0; other < 256; ++other) {
      for (size_t place = 0; place < kWordBytes; ++place) {
        Bytes bytes;
        bytes.fill(static_cast<char>(other));
        bytes[place] = static_cast<char>(byte);
        ASSERT_NO_FATAL_FAILURE(CheckMarks(bytes));
      }
    }
  }
}

TEST(Words, MarkRandomBytes) {
  std::mt19937 random(1);
  constexpr char kLikely[] = {'\0', '\x01', '\n', '\r', '\f', '\x1A', ' ',    '\x1F',
                              '[',  '{',    'Z',  '\\', 'z',  '|',    '\x80', '\xDB'};
  for (int i = 0; i < 200'000; ++i) {
    Bytes bytes;
    for (char& byte : bytes) {
      const auto number = static_cast<uint32_t>(random());
      byte = (number & 0x100) != 0 ? static_cast<char>(number) : kLikely[number % 16];
    }
    ASSERT_NO_FATAL_FAILURE(CheckMarks(bytes));
  }
}

// Every set of marked bytes.
TEST(Words, CountAndPlaceOfMarks) {
  for (unsigned set = 0; set < 1u << kWordBytes; ++set) {
    Bytes bytes;
    for (size_t place = 0; place < kWordBytes; ++place) {
      bytes[place] = (set >> place & 1) != 0 ? '\x80' : '\0';
    }
    const Word marks = LoadWord(bytes.data());
    ASSERT_EQ(CountMarked(marks), static_cast<size_t>(std::popcount(set))) << set;
    if (set != 0) {
      ASSERT_EQ(FirstMarked(marks), static_cast<size_t>(std::countr_zero(set))) << set;
    }
  }
}

TEST(Words, SumOfBytesUpTo255) {
  std::mt19937 random(2);
  for (int i = 0; i < 100'000; ++i) {
    Bytes bytes;
    unsigned left = 255;
    unsigned sum = 0;
    for (char& byte : bytes) {
      const unsigned part = static_cast<unsigned>(random()) % (left + 1);
      byte = static_cast<char>(part);
      sum += part;
      left -= part;
    }
    std::shuffle(bytes.begin(), bytes.end(), random);
    ASSERT_EQ(SumOfBytes(LoadWord(bytes.data())), sum);
  }
  for (size_t place = 0; place < kWordBytes; ++place) {
    Bytes bytes{};
    bytes[place] = '\xFF';
    EXPECT_EQ(SumOfBytes(LoadWord(bytes.data())), 255u);
  }
}

TEST(Words, LoadAtEveryAddress) {
  std::array<char, 3 * kWordBytes> bytes;
  for (size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<char>(i * 7 + 1);
  }
  for (size_t start = 0; start + kWordBytes <= bytes.size(); ++start) {
    Bytes expected;
    std::copy_n(bytes.begin() + static_cast<ptrdiff_t>(start), kWordBytes, expected.begin());
    EXPECT_EQ(std::bit_cast<Bytes>(LoadWord(bytes.data() + start)), expected);
  }
}

TEST(Words, OneByteInEachPlace) {
  for (int byte = 0; byte < 256; ++byte) {
    Bytes expected;
    expected.fill(static_cast<char>(byte));
    ASSERT_EQ(std::bit_cast<Bytes>(InEachByte(static_cast<char>(byte))), expected);
  }
}

}  // namespace
