// Asking the library; see the header.
#include "cfgfile/library_answer.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "sys_context/cfgfile.h"

namespace plain {
namespace {

constexpr char kUntouched = '\x5A';
constexpr int32_t kUnwritten = -77;

}  // namespace

Answer AnswerOfLibrary(const char* path, const char* section, const char* key,
                       std::optional<int32_t> from) {
  CFG_section_line_no = CFG_key_line_no = CFG_key_lines = kUnwritten;
  // As much room as there must be, and no more.
  const auto value = std::make_unique<char[]>(CFG_VALUE_SIZE);
  std::fill_n(value.get(), CFG_VALUE_SIZE, kUntouched);
  int32_t offset = kUnwritten;
  Answer answer;
  answer.code = from ? CFG_get_key_offset(path, section, key, value.get(), *from, &offset)
                     : CFG_get_key(path, section, key, value.get());
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

}  // namespace plain
