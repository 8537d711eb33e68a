// Reading a key for a loader: its value, or a message that says which section
// and key failed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>

#include "common/messages.h"
#include "sys_context/cfgfile.h"

namespace sys_context {

// The value of a key, as the lookups fill it.
struct Value {
  char text[CFG_VALUE_SIZE] = {};
};

// "... iResult = %d, section = %s, key = %s"; some loaders word it otherwise, and
// some show another section or key than those they looked for.
class KeyMessage : public Message<int32_t, const char*, const char*> {
 public:
  template <size_t size>
  consteval KeyMessage(const char (&text)[size], const char* shown_section = nullptr,
                       const char* shown_key = nullptr)
      : BasicMessage(text), shown_section_(shown_section), shown_key_(shown_key) {}

  const char* Section(const char* looked_for) const {
    return shown_section_ == nullptr ? looked_for : shown_section_;
  }
  const char* Key(const char* looked_for) const {
    return shown_key_ == nullptr ? looked_for : shown_key_;
  }

 private:
  const char* shown_section_;
  const char* shown_key_;
};

// The name of a numbered key: "Module" and 3 give "Module3". Numbers above the signed
// range become negative, as in the messages.
struct NumberedKey {
  NumberedKey(const char* prefix, uint32_t number) {
    std::snprintf(text, sizeof text, "%s%d", prefix, static_cast<int>(number));
  }
  char text[CFG_VALUE_SIZE];
};

// Where a loader looks keys up: in the whole file, or in what follows a position.
class Source {
 public:
  Source(const char* file) : file_(file) {}  // implicit: a path is a source
  Source(const char* file, int32_t start) : file_(file), start_(start) {}

  const char* file() const { return file_; }
  int32_t start() const { return start_.value_or(0); }

  // Returns the lookup's code. LookUpAndMove lets a source that has a position
  // begin at the section's header from then on, if the key was found.
  [[nodiscard]] int32_t LookUp(const char* section, const char* key, Value& value) const;
  [[nodiscard]] int32_t LookUpAndMove(const char* section, const char* key, Value& value);

 private:
  const char* file_;
  std::optional<int32_t> start_;
};

// Read a key; a failure is reported. Return the lookup's code.
[[nodiscard]] int32_t ReadKey(const Source& source, const char* section, const char* key,
                              Value& value, const KeyMessage& failure, Gate gate = Gate::kAlways);
[[nodiscard]] int32_t ReadKeyAndMove(Source& source, const char* section, const char* key,
                                     Value& value, const KeyMessage& failure);

// A key that gives a number of things.
struct CountKey {
  const char* key;
  uint32_t limit;
  int32_t above_limit_code;
  Message<uint32_t, uint32_t> above_limit;  // the number, the limit
};

// Converts its value. A number above the limit is reported; the key's own code is
// returned.
[[nodiscard]] int32_t ParseCount(const CountKey& key, const Value& value, uint32_t& count);

// Reads a key, mostly "Name", into a name field; a failure is reported. Returns kOk,
// kKeyUnreadable or, with the length needed in the message, kTextTooLong.
[[nodiscard]] int32_t ReadName(const Source& source, const char* section, char* field, size_t size,
                               uint32_t& length, const KeyMessage& unreadable,
                               const Message<uint32_t>& too_long, const char* key = "Name");

template <size_t size>
[[nodiscard]] int32_t ReadName(const Source& source, const char* section, char (&field)[size],
                               uint32_t& length, const KeyMessage& unreadable,
                               const Message<uint32_t>& too_long, const char* key = "Name") {
  return ReadName(source, section, field, size, length, unreadable, too_long, key);
}

}  // namespace sys_context
