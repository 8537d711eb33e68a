// Answers as text.
#include "host/answer.h"

#include <algorithm>
#include <span>

namespace sysctx {
namespace {

using Numbers = std::span<const std::optional<int64_t>>;

constexpr const char* kUntouched = "(untouched)";

std::string DescribeNumber(const std::optional<int64_t>& number) {
  return number ? std::to_string(*number) : kUntouched;
}

// The numbers of a list that belong to it.
Numbers Counted(Numbers list, const std::optional<int64_t>& count) {
  if (count) {
    return list.first(static_cast<size_t>(std::clamp<int64_t>(*count, 0, std::ssize(list))));
  }
  while (!list.empty() && !list.back()) {
    list = list.first(list.size() - 1);
  }
  return list;
}

std::string DescribeList(Numbers list, const std::optional<int64_t>& count) {
  const Numbers counted = Counted(list, count);
  const bool is_empty = count && counted.empty();
  if (!is_empty && std::ranges::none_of(counted, [](const auto& n) { return n.has_value(); })) {
    return std::string(" ") + kUntouched;
  }
  std::string text;
  for (const std::optional<int64_t>& number : counted) {
    text += " " + DescribeNumber(number);
  }
  return text;
}

std::string DescribeText(const std::optional<std::string>& text) {
  const std::string shown = text.value_or(kUntouched);
  return shown.empty() ? "" : " " + shown;
}

// The number that tells how many a list has: the next one behind it.
std::optional<int64_t> CountBehind(const Output* output, const Output* end) {
  output =
      std::find_if(output, end, [](const Output& o) { return o.kind == Output::Kind::kNumber; });
  return output == end ? std::nullopt : output->numbers.at(0);
}

// What stands behind the "=": nothing for an empty list or text.
std::string DescribeOutput(const Output& output, const Output* end) {
  switch (output.kind) {
    case Output::Kind::kNumber:
      return " " + DescribeNumber(output.numbers.at(0));
    case Output::Kind::kList:
      return DescribeList(output.numbers, CountBehind(&output, end));
    case Output::Kind::kText:
      break;
  }
  return DescribeText(output.text);
}

}  // namespace

std::string DescribeAnswer(const Answer& answer) {
  std::string text = std::string(answer.label) + " = " + std::to_string(answer.value) + "\n";
  const Output* end = answer.outputs.data() + answer.outputs.size();
  for (const Output& output : answer.outputs) {
    text += std::string(output.name) + " =" + DescribeOutput(output, end) + "\n";
  }
  return text;
}

int ExitStatus(const Answer& answer) {
  return answer.value < 0 ? answer.value & 0xff : 0;
}

}  // namespace sysctx
