// Tables of results; see the header.
#include "bench/table.h"

#include <algorithm>
#include <cstdio>

namespace bench {
namespace {

void PrintRow(const Table::Cells& row, const std::vector<size_t>& widths) {
  for (size_t i = 0; i < row.size(); ++i) {
    const int width = static_cast<int>(widths[i]);
    std::printf(i == 0 ? "| %-*s " : "| %*s ", width, row[i].c_str());
  }
  std::printf("|\n");
}

}  // namespace

void Table::Print() const {
  std::vector<size_t> widths(rows_[0].size());
  for (const Cells& row : rows_) {
    for (size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], row[i].size());
    }
  }
  PrintRow(rows_[0], widths);
  for (size_t i = 0; i < widths.size(); ++i) {
    const std::string dashes(widths[i], '-');
    std::printf("|%s%s", dashes.c_str(), i == 0 ? "--" : "-:");
  }
  std::printf("|\n");
  for (size_t i = 1; i < rows_.size(); ++i) {
    PrintRow(rows_[i], widths);
  }
  std::printf("\n");
}

std::string Number(double number, int decimals) {
  char text[32];
  std::snprintf(text, sizeof text, "%.*f", decimals, number);
  return text;
}

std::string Ratio(double ratio) {
  return Number(ratio, 2);
}

std::string RatioIfMeasured(double time, double base) {
  return time == 0 || base == 0 ? "-" : Ratio(time / base);
}

std::string ThreeDigitRatio(double time, double base) {
  return time == 0 || base == 0 ? "-" : Time(time / base);
}

std::string Time(double time) {
  if (time == 0) {
    return "-";
  }
  return Number(time, time < 10 ? 2 : time < 100 ? 1 : 0);
}

}  // namespace bench
