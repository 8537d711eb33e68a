// One lookup, held against the plain reader. The bytes are
//
//   SECTION            a line
//   KEY                a line
//   FROM UNREADABLE    where the search starts, and where the file cannot be read any more;
//                      without FROM it is CFG_get_key that is asked
//   the file           all that follows
#include <optional>
#include <string>
#include <string_view>

#include "cfgfile/library_answer.h"
#include "cfgfile/plain_reader.h"
#include "fuzz/lines.h"
#include "fuzz/targets.h"
#include "support/faults.h"

namespace fuzz {
namespace {

constexpr char kPath[] = "memory";

struct Question {
  Text section;
  Text key;
  std::optional<int32_t> from;
};

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
  const plain::Answer actual =
      plain::AnswerOfLibrary(kPath, question.section.get(), question.key.get(), question.from);
  const plain::Answer expected = Expected(bytes, question, faults.unreadable_from);
  if (faults.opens.count() != 1 || faults.closes != 1) {
    return "not opened and closed once";
  }
  return actual == expected ? "" : "expected " + Show(expected) + "\n  actual " + Show(actual);
}

}  // namespace fuzz
