// Arguments of queries, from words. What a query writes goes to memory of just the size that
// it must have, and is noted; a word "-" gives a null text or record.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "fuzz/lines.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"

namespace fuzz {

using Answer = std::vector<uint32_t>;

inline constexpr uint32_t kUntouched = 0xa5a5a5a5;  // in the outputs, before a query is asked

// The words of a question, which are parted by tabs. A first word "!N" makes those outputs
// null pointers that are bits of N, counted from the first output.
class Words {
 public:
  explicit Words(std::string_view words) : words_(words) {
    if (words.starts_with('!')) {
      null_outputs_ = NumberOf(Next().substr(1));
    }
  }

  std::string_view Next() { return Take(words_, "\t"); }
  uint32_t NextNumber() { return NumberOf(Next()); }

  bool NextOutputIsNull() {
    const bool is_null = (null_outputs_ & 1) != 0;
    null_outputs_ >>= 1;
    return is_null;
  }

 private:
  std::string_view words_;
  uint32_t null_outputs_ = 0;
};

// The argument of type T. Pass() is what the query gets; Note() adds what it wrote to the
// answer, and is false when that cannot be.
template <typename T>
class Argument;

template <std::integral T>
class Argument<T> {
 public:
  explicit Argument(Words& words) : number_(static_cast<T>(words.NextNumber())) {}
  T Pass() const { return number_; }
  bool Note(Answer&, int32_t) const { return true; }

 private:
  T number_;
};

template <>
class Argument<const char*> {
 public:
  explicit Argument(Words& words) : word_(words.Next()), text_(word_) {}
  const char* Pass() const { return word_ == "-" ? nullptr : text_.get(); }
  bool Note(Answer&, int32_t) const { return true; }

 private:
  std::string_view word_;
  Text text_;
};

// One of a table's records, by its number.
template <typename T>
class Argument<const T*> {
 public:
  explicit Argument(Words& words) : word_(words.Next()) {}
  const T* Pass() const { return word_ == "-" ? nullptr : Record(NumberOf(word_)); }
  bool Note(Answer&, int32_t) const { return true; }

 private:
  static const T* Record(uint32_t number) {
    if constexpr (std::is_same_v<T, PortMap>) {
      const uint32_t board = number / MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM;
      return board < gstSupportedMainBoardType.ulSupportedBoardTypeNum
                 ? &gstSupportedMainBoardType.pBoardTypeArray[board]
                        ->astPortMap[number % MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM]
                 : nullptr;
    } else {
      static_assert(std::is_same_v<T, SlotClassInformation>);
      constexpr SlotClassInformation FrameInformation::*kClasses[] = {
          &FrameInformation::stRealSlot,       &FrameInformation::stVirtualSlot,
          &FrameInformation::stHcuSlot,        &FrameInformation::stFanSlot,
          &FrameInformation::stPowerSlot,      &FrameInformation::stCioSlot,
          &FrameInformation::stServeBoardSlot, &FrameInformation::stMainSlot,
          &FrameInformation::stUplinkSlot,
      };
      return &(gstFrame.*kClasses[number % std::size(kClasses)]);
    }
  }

  std::string_view word_;
};

// A list of numbers, and an output of one number.
template <std::integral T>
class Numbers {
 public:
  Numbers(Words& words, size_t size) : is_null_(words.NextOutputIsNull()), size_(size) {
    numbers_.reset(new T[size]);
    std::fill_n(numbers_.get(), size, static_cast<T>(kUntouched));
  }
  T* Pass() const { return is_null_ ? nullptr : numbers_.get(); }
  bool Note(Answer& answer, int32_t) const {
    answer.insert(answer.end(), numbers_.get(), numbers_.get() + size_);
    return true;
  }

 private:
  bool is_null_;
  size_t size_;
  std::unique_ptr<T[]> numbers_;
};

template <std::integral T>
class Argument<T*> : public Numbers<T> {
 public:
  explicit Argument(Words& words) : Numbers<T>(words, 1) {}
};

// A name, which ends within its 60 bytes, or is not written at all.
template <>
class Argument<char*> {
 public:
  explicit Argument(Words& words) : is_null_(words.NextOutputIsNull()), name_(new char[kSize]) {
    std::fill_n(name_.get(), kSize, kUntouchedByte);
  }
  char* Pass() const { return is_null_ ? nullptr : name_.get(); }
  bool Note(Answer& answer, int32_t) const {
    const std::string_view name(name_.get(), kSize);
    answer.insert(answer.end(), name.begin(), name.end());
    return name.find('\0') != name.npos || name.find_first_not_of(kUntouchedByte) == name.npos;
  }

 private:
  static constexpr size_t kSize = 60;
  static constexpr char kUntouchedByte = '\xa5';

  bool is_null_;
  std::unique_ptr<char[]> name_;
};

// One of a table's records, or a copy of one, which is released.
template <typename T>
class Argument<T**> {
 public:
  explicit Argument(Words& words) : is_null_(words.NextOutputIsNull()) {}
  Argument(Argument&& other) : is_null_(other.is_null_) {}
  ~Argument() {
    if constexpr (kIsCopy) {
      std::free(record_);
    }
  }
  T** Pass() { return is_null_ ? nullptr : &record_; }
  bool Note(Answer& answer, int32_t code) const {
    if (record_ == nullptr) {
      return code != 0;
    }
    if constexpr (kIsCopy) {
      answer.push_back(record_->ulPortType);
    } else {
      answer.push_back(static_cast<uint32_t>(reinterpret_cast<uintptr_t>(record_)));
    }
    return true;
  }

 private:
  static constexpr bool kIsCopy =
      std::is_same_v<T, OltPortInformation> || std::is_same_v<T, OnuPortTypeInformation>;

  bool is_null_;
  T* record_ = nullptr;
};

}  // namespace fuzz
