// Console messages: printed always (Console), while ddDebugPrint is set
// (DebugConsole), or as a family of functions has it (Report).
//
// A text is a Message, whose type says what it shows: it does not compile with
// a text that shows anything else, be it written in the call or in a table. A
// PartialMessage may leave out the last of its values, for families in which
// some texts show less than others.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <type_traits>

namespace sys_context {

// Pointers are shown by their low 32 bits, which on the card is all of them.
inline uint32_t LowBits(const void* pointer) {
  return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(pointer));
}

// Who decides whether a message of a family is printed.
enum class Gate { kAlways, kDebug };
bool IsOpen(Gate gate);

// A message text and the values it shows: integers ("%d", "%x") and texts
// ("%s"), with "-" and widths.
template <bool partial, typename... Values>
class BasicMessage {
 public:
  template <size_t size>
  consteval BasicMessage(const char (&text)[size]) : text_(text) {
    if (!Fits(text, size - 1)) {
      TextDoesNotFitItsValues();
    }
  }

  const char* text() const { return text_; }

 private:
  static void TextDoesNotFitItsValues() {}  // not constexpr, so that calling it is an error

  static consteval bool Fits(const char* text, size_t length) {
    static_assert(((std::is_pointer_v<Values> || sizeof(Values) <= sizeof(int)) && ...));
    constexpr bool kIsText[] = {std::is_pointer_v<Values>..., false};
    size_t shown = 0;
    for (size_t i = 0; i < length; ++i) {
      if (text[i] != '%') {
        continue;
      }
      for (++i; text[i] == '-' || (text[i] >= '0' && text[i] <= '9');) {
        ++i;
      }
      const bool shows_text = text[i] == 's';
      const bool shows_integer = text[i] == 'd' || text[i] == 'x';
      if (shown == sizeof...(Values) || !(kIsText[shown] ? shows_text : shows_integer)) {
        return false;
      }
      ++shown;
    }
    return partial || shown == sizeof...(Values);
  }

  const char* text_;
};

template <typename... Values>
using Message = BasicMessage<false, Values...>;

template <typename... Values>
using PartialMessage = BasicMessage<true, Values...>;

// Prints a message of a table. The C library's printf is called by its name, so
// that a host may stand in front of it. (A few texts are put with puts,
// which a host may catch as well.)
template <bool partial, typename... Values>
void Report(Gate gate, const BasicMessage<partial, Values...>& message,
            std::type_identity_t<Values>... values) {
  if (IsOpen(gate)) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
    std::printf(message.text(), values...);
#pragma GCC diagnostic pop
  }
}

// Print a message that is written in the call.
template <typename... Values>
void Console(Message<std::type_identity_t<Values>...> message, Values... values) {
  Report(Gate::kAlways, message, values...);
}

template <typename... Values>
void DebugConsole(Message<std::type_identity_t<Values>...> message, Values... values) {
  Report(Gate::kDebug, message, values...);
}

}  // namespace sys_context
