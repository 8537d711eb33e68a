// Queries of the library, told by the names and roles of their arguments, made
// into something that takes words and gives an answer. A row whose roles do not
// fit the function's signature does not compile.
//
//   QUERY(ddIsRealSlot, In("ulSlotOut"), Out("pulCanPlugIn"))
#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "host/argument_words.h"
#include "host/console.h"
#include "host/modules.h"
#include "host/query.h"

namespace sysctx {

// ---- Roles -------------------------------------------------------------------

struct Role {
  constexpr explicit Role(const char* text) : name(text) {}
  const char* name;
};

struct In : Role {  // a number
  using Role::Role;
};
struct TextIn : Role {
  using Role::Role;
};
struct RecordIn : Role {  // one of those that RecordWord finds
  using Role::Role;
};
struct Out : Role {  // a number
  using Role::Role;
};
struct InOut : Role {  // a number that the query may change
  using Role::Role;
};
// An array of numbers, or of records that DescribeRecord knows; the next Out is its
// count, or an InOut in front of it.
struct List : Role {
  using Role::Role;
};
struct TextOut : Role {  // a buffer of kTextSize bytes
  using Role::Role;
};
struct RecordOut : Role {  // one of those that DescribeRecord knows
  using Role::Role;
};
struct CopyOut : Role {  // a copy of such a record, which the asker releases
  using Role::Role;
};

inline constexpr size_t kListRoom = 1280;  // the most numbers that a list can have
inline constexpr size_t kTextSize = 60;

// ---- Arguments of a call -----------------------------------------------------

// Outputs are found to be untouched by asking twice: whatever keeps what it was
// filled with, both times, was not written.
inline constexpr std::array<unsigned char, 2> kFillings = {0xa5, 0x5a};

template <typename T>
class OutputStorage {
 public:
  explicit OutputStorage(size_t size) {
    for (size_t round = 0; round < kFillings.size(); ++round) {
      values_[round].assign(size, Filling(round));
    }
  }

  T* Start(size_t round) { return values_[round].data(); }

  std::optional<T> Get(size_t place) const {
    for (size_t round = 0; round < kFillings.size(); ++round) {
      const T filling = Filling(round);
      if (memcmp(&values_[round][place], &filling, sizeof filling) != 0) {
        return values_[0][place];
      }
    }
    return std::nullopt;
  }

 private:
  static T Filling(size_t round) {
    T value;
    memset(&value, kFillings[round], sizeof value);
    return value;
  }

  std::array<std::vector<T>, kFillings.size()> values_;
};

// The argument of type T that a parameter of this role gets, where these fit each
// other. Inputs take their word when they are made; outputs give their part of the
// answer.
template <typename RoleType, typename T>
class Argument;

template <typename T>
concept Number = std::is_integral_v<T> && !std::is_const_v<T> && !std::is_same_v<T, char> &&
                 sizeof(T) <= sizeof(uint32_t);

template <typename RoleType, typename T>
concept Fits = sizeof(Argument<RoleType, T>) > 0;

template <Number T>
class Argument<In, T> {
 public:
  static constexpr Parameter Describe(In role) { return {role.name, true}; }
  // Signed numbers may be given as unsigned ones, too: bit patterns.
  Argument(In role, const std::string& word)
      : number_(static_cast<T>(ParseNumber(role.name, word, std::numeric_limits<T>::min(),
                                           std::numeric_limits<std::make_unsigned_t<T>>::max()))) {}
  T Pass(size_t) const { return number_; }

 private:
  T number_;
};

template <>
class Argument<TextIn, const char*> {
 public:
  static constexpr Parameter Describe(TextIn role) { return {role.name, true}; }
  Argument(TextIn, std::string word) : text_(std::move(word)) {}
  const char* Pass(size_t) const { return text_.c_str(); }

 private:
  std::string text_;
};

template <typename T>
class Argument<RecordIn, const T*> {
 public:
  static Parameter Describe(RecordIn role) { return {role.name, true, RecordWord<T>::Hint()}; }
  Argument(RecordIn role, std::string word) : name_(role.name), word_(std::move(word)) {}
  const T* Pass(size_t) const { return RecordWord<T>::Find(name_, word_); }

 private:
  const char* name_;
  std::string word_;
};

template <Number T>
class Argument<Out, T*> {
 public:
  static constexpr Parameter Describe(Out role) { return {role.name, false}; }
  explicit Argument(Out role) : name_(role.name) {}
  T* Pass(size_t round) { return number_.Start(round); }
  Output Result() const { return {Output::Kind::kNumber, name_, {}, number_.Get(0)}; }

 private:
  const char* name_;
  OutputStorage<T> number_ = OutputStorage<T>(1);
};

template <Number T>
class Argument<InOut, T*> {
 public:
  static constexpr Parameter Describe(InOut role) { return {role.name, true}; }
  Argument(InOut role, const std::string& word) : name_(role.name) {
    numbers_.fill(Argument<In, T>(In(role.name), word).Pass(0));
  }
  T* Pass(size_t round) { return &numbers_[round]; }
  Output Result() const { return {Output::Kind::kNumber, name_, {}, numbers_[0]}; }

 private:
  const char* name_;
  std::array<T, kFillings.size()> numbers_;
};

template <typename T>
concept Record = std::is_class_v<T> && !std::is_const_v<T>;

template <Number T>
std::string DescribeItem(T number) {
  return std::to_string(number);
}

template <Record T>
std::string DescribeItem(const T& record) {
  return DescribeRecord(record);
}

template <typename T>
requires Number<T> || Record<T>
class Argument<List, T*> {
 public:
  static constexpr Parameter Describe(List role) { return {role.name, false}; }
  explicit Argument(List role) : name_(role.name) {}
  T* Pass(size_t round) { return items_.Start(round); }
  Output Result() const {
    Output output = {.kind = Output::Kind::kList, .name = name_};
    output.between = Number<T> ? " " : "; ";
    for (size_t i = 0; i < kListRoom; ++i) {
      const std::optional<T> item = items_.Get(i);
      output.items.push_back(item ? std::optional(DescribeItem(*item)) : std::nullopt);
    }
    return output;
  }

 private:
  const char* name_;
  OutputStorage<T> items_ = OutputStorage<T>(kListRoom);
};

template <>
class Argument<TextOut, char*> {
 public:
  static constexpr Parameter Describe(TextOut role) { return {role.name, false}; }
  explicit Argument(TextOut role) : name_(role.name) {}
  char* Pass(size_t round) { return text_.Start(round); }
  Output Result() const {
    std::optional<std::string> text;
    for (size_t i = 0; i < kTextSize && text_.Get(i); ++i) {
      text = text.value_or("");
      if (text_.Get(i) == '\0') {
        break;
      }
      *text += *text_.Get(i);
    }
    return {Output::Kind::kText, name_, {text}};
  }

 private:
  const char* name_;
  OutputStorage<char> text_ = OutputStorage<char>(kTextSize);
};

template <typename T>
class Argument<RecordOut, T**> {
 public:
  static constexpr Parameter Describe(RecordOut role) { return {role.name, false}; }
  explicit Argument(RecordOut role) : name_(role.name) {}
  T** Pass(size_t round) { return record_.Start(round); }
  Output Result() const {
    std::optional<std::string> text;
    if (const std::optional<T*> record = record_.Get(0)) {
      text = *record == nullptr ? "(null)" : DescribeRecord(**record);
    }
    return {Output::Kind::kText, name_, {text}};
  }

 private:
  const char* name_;
  OutputStorage<T*> record_ = OutputStorage<T*>(1);
};

// A copy is made in both calls, or in none.
template <typename T>
class Argument<CopyOut, T**> {
 public:
  static constexpr Parameter Describe(CopyOut role) { return {role.name, false}; }
  explicit Argument(CopyOut role) : copies_(RecordOut(role.name)) {}
  T** Pass(size_t round) { return copies_.Pass(round); }
  Output Result() const { return copies_.Result(); }
  void Release() {
    if (Result().items.at(0)) {
      for (size_t round = 0; round < kFillings.size(); ++round) {
        free(*Pass(round));
      }
    }
  }

 private:
  Argument<RecordOut, T**> copies_;
};

// ---- Rows --------------------------------------------------------------------

// Makes arguments in their order; inputs take the next word.
class ArgumentMaker {
 public:
  explicit ArgumentMaker(const Words& words) : words_(words) {}

  template <typename T, typename RoleType>
  Argument<RoleType, T> Make(RoleType role) {
    if constexpr (std::is_constructible_v<Argument<RoleType, T>, RoleType, std::string>) {
      return Argument<RoleType, T>(role, words_.at(next_++));
    } else {
      return Argument<RoleType, T>(role);
    }
  }

 private:
  const Words& words_;
  size_t next_ = 0;
};

template <typename Function, typename... Arguments>
Answer Ask(const char* label, Function function, std::tuple<Arguments...> arguments) {
  const auto call = [&](size_t round) {
    return std::apply([&](auto&... each) { return function(each.Pass(round)...); }, arguments);
  };
  Answer answer;
  answer.label = label;
  answer.console = CaptureConsole([&] { answer.value = call(0); });
  SetLogging(false);
  CaptureConsole([&] { call(1); });
  SetLogging(true);
  const auto add = [&](auto& argument) {
    if constexpr (requires { argument.Result(); }) {
      answer.outputs.push_back(argument.Result());
    }
    if constexpr (requires { argument.Release(); }) {
      argument.Release();
    }
  };
  std::apply([&](auto&... each) { (add(each), ...); }, arguments);
  return answer;
}

// There is an Out behind every List, or an InOut in front.
template <typename... Roles>
consteval bool ListsAreCounted() {
  struct Kind {
    bool is_list;
    bool is_out;
    bool is_in_out;
  };
  const std::array<Kind, sizeof...(Roles)> kinds = {Kind{
      std::is_same_v<Roles, List>, std::is_same_v<Roles, Out>, std::is_same_v<Roles, InOut>}...};
  bool has_count = false;
  bool is_open = false;
  for (const Kind& kind : kinds) {
    if (kind.is_list && !has_count) {
      is_open = true;
    } else if (kind.is_out) {
      is_open = false;
    } else if (kind.is_in_out) {
      has_count = true;
    }
  }
  return !is_open;
}

template <typename... Types, typename... Roles>
Query MakeQuery(const char* label, const char* name, int32_t (*function)(Types...),
                Roles... roles) {
  static_assert(sizeof...(Types) == sizeof...(Roles), "each parameter needs a role");
  static_assert((Fits<Roles, Types> && ...), "a role does not fit the type of its parameter");
  static_assert(ListsAreCounted<Roles...>(), "the count of a list is missing");
  return {name, {Argument<Roles, Types>::Describe(roles)...}, [=](const Words& words) -> Question {
            ArgumentMaker maker(words);
            // Braces make the arguments from left to right.
            const std::tuple<Argument<Roles, Types>...> arguments{maker.Make<Types>(roles)...};
            return [=] { return Ask(label, function, arguments); };
          }};
}

// A query whose value is a return code, and one whose value is the answer.
#define QUERY(function, ...) \
  ::sysctx::MakeQuery("code", #function, function __VA_OPT__(, ) __VA_ARGS__)
#define VALUE(function, ...) \
  ::sysctx::MakeQuery("value", #function, function __VA_OPT__(, ) __VA_ARGS__)

}  // namespace sysctx
