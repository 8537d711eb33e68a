// Likeness by edit distance.
#include "host/nearest.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace sysctx {
namespace {

constexpr size_t kMostNames = 5;

struct Candidate {
  std::string name;
  size_t distance;
};

std::string Lowercase(std::string text) {
  for (char& letter : text) {
    letter = static_cast<char>(tolower(static_cast<unsigned char>(letter)));
  }
  return text;
}

// How many letters are to be added, left out or replaced to come from one text to
// the other.
size_t EditDistance(const std::string& from, const std::string& to) {
  std::vector<size_t> row(to.size() + 1);  // distances to the beginnings of `to`
  std::iota(row.begin(), row.end(), size_t{0});
  for (size_t i = 0; i < from.size(); ++i) {
    size_t diagonal = row[0];
    row[0] = i + 1;
    for (size_t j = 0; j < to.size(); ++j) {
      const size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row[to.size()];
}

// The letters of `word` are in the text in the same order, maybe with others between.
bool IsScattered(const std::string& word, const std::string& text) {
  size_t found = 0;
  for (const char letter : text) {
    if (found < word.size() && word[found] == letter) {
      ++found;
    }
  }
  return found == word.size();
}

std::vector<std::string> Best(std::vector<Candidate> candidates) {
  std::ranges::stable_sort(candidates, {}, &Candidate::distance);
  std::vector<std::string> names;
  for (size_t i = 0; i < std::min(candidates.size(), kMostNames); ++i) {
    names.push_back(candidates[i].name);
  }
  return names;
}

}  // namespace

std::vector<std::string> NearestNames(const std::string& word,
                                      const std::vector<std::string>& names) {
  const std::string wanted = Lowercase(word);
  if (wanted.empty()) {
    return {};
  }
  std::vector<Candidate> containing;
  std::vector<Candidate> close;
  for (const std::string& name : names) {
    const std::string known = Lowercase(name);
    const size_t distance = EditDistance(wanted, known);
    if (distance == 0) {
      return {name};
    }
    if (known.find(wanted) != std::string::npos) {
      containing.push_back({name, distance});
    }
    if (distance <= wanted.size() / 2 || IsScattered(wanted, known)) {
      close.push_back({name, distance});
    }
  }
  return Best(containing.empty() ? close : containing);
}

}  // namespace sysctx
