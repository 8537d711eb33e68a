// The queries that are measured, a representative of each kind, on the tables of
// the large sample; and the plain loops that stand beside them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace bench {

// What a query answered. Names answer with their first character, lists with
// their length, ranges with their end; a plain loop has no code.
struct Answer {
  int32_t code = 0;
  uint32_t value = 0;

  bool operator==(const Answer&) const = default;
};

// One query with its arguments.
struct Question {
  Answer (*ask)(size_t times) = nullptr;  // null: there is none
  Answer expected;
};

struct Query {
  const char* name;
  const char* scans;    // what is looked through; "-" when nothing is
  Question typical;     // what hosts ask for; of tables, an entry in the middle
  Question worst = {};  // what takes longest, mostly what is not there
  Question plain = {};  // the worst question, or else the typical one, by a plain loop
};

std::span<const Query> Queries();

// An exported function that does nothing: what every query costs at least.
Question EmptyCall();

// Loads the tables of the large sample.
bool LoadSample();

// Asks once; another answer than the expected one is printed to stderr.
bool AnswersAsExpected(const std::string& name, const Question& question);

}  // namespace bench
