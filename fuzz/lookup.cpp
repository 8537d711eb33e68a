// One lookup, held against the plain reader. The bytes are
//
//   SECTION            a line
//   KEY                a line
//   FROM UNREADABLE    where the search starts, and where the file cannot be read any more;
//                      without FROM it is CFG_get_key that is asked
//   the file           all that follows
#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "cfgfile/plain_reader.h"
#include "fuzz/lines.h"
#include "fuzz/targets.h"
#include "support/faults.h"
#include "sys_context/cfgfile.h"

namespace fuzz {
namespace {

constexpr char kPath[] = "memory";
constexpr char kUntouched = '\x5A';
constexpr int32_t kUnwritten = -77;

struct Question {
  Text section;
  Text key;
  std::optional<int32_t> from;
};

// What the library answers; an untouched value or offset is absent.
plain::Answer Ask(const Question& question) {
  // As much room as there must be, and no more.
  const auto value = std::make_unique<char[]>(CFG_VALUE_SIZE);
  std::fill_n(value.get(), CFG_VALUE_SIZE, kUntouched);
  int32_t offset = kUnwritten;
  plain::Answer answer;
  answer.code = question.from
                    ? CFG_get_key_offset(kPath, question.section.get(), question.key.get(),
                                         value.get(), *question.from, &offset)
                    : CFG_get_key(kPath, question.section.get(), question.key.get(), value.get());
  if (std::any_of(value.get(), value.get() + CFG_VALUE_SIZE,
                  [](char byte) { return byte != kUntouched; })) {
    answer.value.emplace(value.get(), strnlen(value.get(), CFG_VALUE_SIZE));
  }
  if (offset != kUnwritten) {
    answer.offset = offset;
  }
  answer.section_line_no = CFG_section_line_no;
  answer.key_line_no = CFG_key_line_no;
  answer.key_lines = CFG_key_lines;
  return answer;
}

plain::Answer Expected(std::string_view file, const Question& question, size_t unreadable_from) {
  if (question.from && *question.from < 0) {
    plain::Answer answer;
    answer.code = -12;  // there is no such place
    return answer;
  }
  plain::Answer answer = plain::Lookup(file, question.section.get(), question.key.get(),
                                       question.from.value_or(0), unreadable_from);
  if (!question.from) {
    answer.offset.reset();
  }
  return answer;
}

std::string Show(const plain::Answer& answer) {
  return "code " + std::to_string(answer.code) + ", value \"" + answer.value.value_or("(none)") +
         "\", offset " + (answer.offset ? std::to_string(*answer.offset) : "-") +
         ", section line " + std::to_string(answer.section_line_no) + ", key line " +
         std::to_string(answer.key_line_no) + ", lines " + std::to_string(answer.key_lines);
}

}  // namespace

std::string CheckLookup(std::string_view bytes) {
  Question question = {Text(TakeLine(bytes)), Text(TakeLine(bytes)), {}};
  std::string_view places = TakeLine(bytes);
  if (const std::string_view from = Take(places, " "); !from.empty()) {
    question.from = static_cast<int32_t>(NumberOf(from));
  }
  test::Faults faults;
  if (!places.empty()) {
    faults.unreadable_from = NumberOf(places);
  }
  faults.contents[kPath] = bytes;
  const plain::Answer actual = Ask(question);
  const plain::Answer expected = Expected(bytes, question, faults.unreadable_from);
  if (faults.opens.count() != 1 || faults.closes != 1) {
    return "not opened and closed once";
  }
  return actual == expected ? "" : "expected " + Show(expected) + "\n  actual " + Show(actual);
}

}  // namespace fuzz
