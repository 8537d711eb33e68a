// Looking at as many bytes at a time as a machine word holds, in portable C++:
// no byte order, no alignment and no vector unit is assumed.
//
// Each Mark function sets the top bit of exactly those bytes that fulfil its
// condition and clears every other bit.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace sys_context {

using Word = uintptr_t;

constexpr size_t kWordBytes = sizeof(Word);
constexpr Word kEachByteOne = ~Word{0} / 0xFF;
constexpr Word kTopBits = kEachByteOne * 0x80;
constexpr Word kLowBits = ~kTopBits;

inline Word LoadWord(const char* bytes) {
  Word word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

constexpr Word InEachByte(char c) {
  return kEachByteOne * static_cast<unsigned char>(c);
}

constexpr Word MarkZero(Word word) {
  return ~(((word & kLowBits) + kLowBits) | word | kLowBits);
}

constexpr Word MarkEqual(Word word, char c) {
  return MarkZero(word ^ InEachByte(c));
}

// Bytes below `limit`, which is at most 0x80.
constexpr Word MarkBelow(Word word, char limit) {
  return ~(((word & kLowBits) + (kTopBits - InEachByte(limit))) | word) & kTopBits;
}

// "[" and "{", which differ in one bit, look alike: both are then "{".
constexpr Word JoinOpeningBrackets(Word word) {
  return word | InEachByte('[' ^ '{');
}

constexpr Word MarkOpeningBracket(Word word) {
  return MarkEqual(JoinOpeningBrackets(word), '{');
}

// Cheaper than a mark, and enough to know whether there is any: cleared of the top bits of
// the word, it is not zero exactly when the mark is not. Which byte it was, it does not tell.
constexpr Word HintZero(Word word) {
  return word - kEachByteOne;
}

constexpr Word HintEqual(Word word, char c) {
  return HintZero(word ^ InEachByte(c));
}

// The same for bytes below `limit`, which is at most 0x80.
constexpr Word HintBelow(Word word, char limit) {
  return word - InEachByte(limit);
}

// The sum of a word's bytes; at most 255.
constexpr size_t SumOfBytes(Word counts) {
  return (counts * kEachByteOne) >> (8 * (kWordBytes - 1));
}

constexpr size_t CountMarked(Word marks) {
  return SumOfBytes(marks >> 7);
}

// Place of the first marked byte in memory; there must be one.
constexpr size_t FirstMarked(Word marks) {
  const int bit = std::endian::native == std::endian::little ? std::countr_zero(marks)
                                                             : std::countl_zero(marks);
  return static_cast<size_t>(bit) / 8;
}

}  // namespace sys_context
