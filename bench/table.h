// Tables of results.
#pragma once

#include <string>
#include <vector>

namespace bench {

// Markdown, with its cells padded so that it also reads well on a terminal.
class Table {
 public:
  using Cells = std::vector<std::string>;

  explicit Table(const Cells& head) : rows_(1, head) {}

  void Row(const Cells& cells) { rows_.push_back(cells); }
  void Print() const;

 private:
  std::vector<Cells> rows_;
};

std::string Number(double number, int decimals);
std::string Ratio(double ratio);

// Of two times; "-" when one of them was not measured.
std::string RatioIfMeasured(double time, double base);  // two decimals
std::string ThreeDigitRatio(double time, double base);

// A time, with three digits; "-" when there is none.
std::string Time(double time);

}  // namespace bench
