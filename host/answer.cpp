// Answers as text.
#include "host/answer.h"

#include <algorithm>
#include <span>

namespace sysctx {
namespace {

using Items = std::span<const std::optional<std::string>>;
using Outputs = std::span<const Output>;

constexpr const char* kUntouched = "(untouched)";

// The items of a list that belong to it.
Items Counted(Items list, const std::optional<int64_t>& count) {
  if (count) {
    return list.first(static_cast<size_t>(std::clamp<int64_t>(*count, 0, std::ssize(list))));
  }
  while (!list.empty() && !list.back()) {
    list = list.first(list.size() - 1);
  }
  return list;
}

std::string DescribeList(const Output& output, const std::optional<int64_t>& count) {
  const Items counted = Counted(output.items, count);
  const bool is_empty = count && counted.empty();
  if (!is_empty &&
      std::ranges::none_of(counted, [](const auto& item) { return item.has_value(); })) {
    return std::string(" ") + kUntouched;
  }
  std::string text;
  for (const std::optional<std::string>& item : counted) {
    text += (text.empty() ? " " : output.between) + item.value_or(kUntouched);
  }
  return text;
}

std::string DescribeText(const std::optional<std::string>& text) {
  const std::string shown = text.value_or(kUntouched);
  return shown.empty() ? "" : " " + shown;
}

std::string DescribeNumber(const std::optional<int64_t>& number) {
  return " " + (number ? std::to_string(*number) : kUntouched);
}

bool IsNumber(const Output& output) {
  return output.kind == Output::Kind::kNumber;
}

// The number that tells how many a list has: the next one behind it or else in front.
std::optional<int64_t> CountOf(const Output& list, Outputs outputs) {
  const auto place = static_cast<size_t>(&list - outputs.data());
  const Outputs behind = outputs.subspan(place);
  if (const auto count = std::ranges::find_if(behind, IsNumber); count != behind.end()) {
    return count->number;
  }
  const Outputs in_front = outputs.first(place);
  const auto count = std::find_if(in_front.rbegin(), in_front.rend(), IsNumber);
  return count == in_front.rend() ? std::nullopt : count->number;
}

// What stands behind the "=": nothing for an empty list or text.
std::string DescribeOutput(const Output& output, Outputs outputs) {
  switch (output.kind) {
    case Output::Kind::kNumber:
      return DescribeNumber(output.number);
    case Output::Kind::kList:
      return DescribeList(output, CountOf(output, outputs));
    case Output::Kind::kText:
      break;
  }
  return DescribeText(output.items.at(0));
}

}  // namespace

std::string DescribeAnswer(const Answer& answer) {
  std::string text = std::string(answer.label) + " = " + std::to_string(answer.value) + "\n";
  for (const Output& output : answer.outputs) {
    text += std::string(output.name) + " =" + DescribeOutput(output, answer.outputs) + "\n";
  }
  return text;
}

int ExitStatus(const Answer& answer) {
  return answer.value < 0 ? answer.value & 0xff : 0;
}

}  // namespace sysctx
