// Changing lines; see the header.
#include "mutated_input/lines.h"

#include <utility>

namespace mutated {
namespace {

LineKind KindOf(std::string_view line, bool goes_on) {
  if (goes_on) {
    return LineKind::kJoined;
  }
  if (line.empty() || line.front() == ';') {
    return LineKind::kIdle;
  }
  if (line.front() == '[') {
    return LineKind::kHeader;
  }
  return line.back() == '+' ? LineKind::kJoined : LineKind::kEntry;
}

}  // namespace

Lines::Lines(std::string_view text) {
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(line.size() + (line.size() < text.size() ? 1 : 0));
    const bool goes_on =
        !lines_.empty() && kinds_.back() == LineKind::kJoined && lines_.back().ends_with('+');
    kinds_.push_back(KindOf(line, goes_on));
    lines_.push_back(line);
  }
}

std::string Lines::With(LineChange change, size_t i) const {
  std::vector<std::string_view> lines = lines_;
  const auto line = lines.begin() + static_cast<std::ptrdiff_t>(i);
  switch (change) {
    case LineChange::kDelete:
      lines.erase(line);
      break;
    case LineChange::kDouble:
      lines.insert(line, *line);
      break;
    case LineChange::kSwap:
      if (i + 1 < lines.size()) {
        std::swap(*line, *(line + 1));
      }
      break;
    case LineChange::kEmpty:
      *line = "";
      break;
    case LineChange::kCut:
      *line = line->substr(0, line->size() / 2);
      break;
  }
  std::string text;
  for (const std::string_view each : lines) {
    text.append(each).append("\n");
  }
  return text;
}

}  // namespace mutated
