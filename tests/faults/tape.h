// The lookups that a start makes in the definition files, kept on a tape.
//
// A start of the large sample makes thousands of lookups, and each reads its file anew. To
// start it once for every fault takes a tape of a clean start: it answers the lookups before
// the fault, and those behind it, as the files did. Only those in which calls are to fail are
// really made.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "support/faults.h"

namespace faults {

constexpr int32_t kFromTheTop = -1;

struct Question {
  std::string section;
  std::string key;
  int32_t start = kFromTheTop;
  bool operator==(const Question&) const = default;
};

struct Answer {
  int32_t code = 0;
  std::string value;   // "" unless the code is 0
  int32_t header = 0;  // of the section; 0 for a lookup from the top
  bool operator==(const Answer&) const = default;
};

// How often each kind of call was made.
struct Calls {
  int allocations = 0;
  int opens = 0;
  int seeks = 0;
  int reads = 0;
  int closes = 0;

  static Calls Of(const test::Faults& faults);
};

// A lookup, with the calls that were made before it and by it.
struct Lookup {
  Question question;
  Answer answer;
  Calls before;
  Calls behind;
};

class Tape {
 public:
  static Tape& Get();

  // Really makes every lookup and notes it.
  void Record(const test::Faults& faults);

  // Really makes the lookups from number `first` (from 0) to before `end`, and such as are
  // not on the tape; answers the others.
  static constexpr size_t kToTheEnd = std::numeric_limits<size_t>::max();
  static constexpr size_t kNone = kToTheEnd;
  void Replay(size_t first, size_t end);

  const std::vector<Lookup>& lookups() const { return lookups_; }

  // What the lookup number `first` was answered, if it was made.
  const std::vector<Answer>& first_answers() const { return first_answers_; }

  template <typename Make>
  int32_t LookUp(const Question& question, char* value, int32_t* header, Make make);

 private:
  size_t Find(const Question& question);

  std::vector<Lookup> lookups_;
  const test::Faults* recorded_ = nullptr;
  size_t first_ = 0;
  size_t end_ = kToTheEnd;
  size_t next_ = 0;  // on the tape
  std::vector<Answer> first_answers_;
};

}  // namespace faults
