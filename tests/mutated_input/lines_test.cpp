// Every line of the samples' definition files changed, one at a time, and what that must not do.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "mutated_input/contents.h"
#include "mutated_input/lines.h"
#include "mutated_input/samples.h"
#include "mutated_input/start.h"

namespace {

using mutated::Files;
using mutated::LineChange;
using mutated::LineKind;
using mutated::Lines;
using std::string;

// How many tests change lines below.
constexpr size_t kTests = 4;

// The lines of one file of a sample, or a share of them: `slice` of `slices`. Of the large
// sample, each line is changed by one of the tests.
struct Slice {
  mutated::Sample sample;
  string Files::*file;
  size_t slice;
  size_t slices;

  bool IsLarge() const { return sample.device_type == mutated::kLargeSample.device_type; }
  friend std::ostream& operator<<(std::ostream& out, const Slice& share) {
    return out << share.sample.name << " part " << share.slice;
  }
};

// A start and what it left in the tables.
struct Seen {
  mutated::Outcome outcome;
  string contents;
  bool operator==(const Seen& other) const {
    return outcome.code == other.outcome.code && outcome.failed == other.outcome.failed &&
           contents == other.contents;
  }
};

class MutatedLines : public testing::TestWithParam<Slice> {
 protected:
  void SetUp() override {
    original_ = FilesOf(GetParam().sample);
    clean_ = SeeStart(original_, 0);
    ASSERT_EQ(clean_.outcome.code, 0);
  }

  Seen SeeStart(const Files& files, size_t line) {
    Seen seen;
    seen.outcome = Start(files, GetParam().sample.device_type, static_cast<uint32_t>(line),
                         mutated::Shares(), [&] { seen.contents = mutated::Contents(); });
    return seen;
  }

  // Starts with one line changed; nothing may be wrong after it.
  Seen SeeChange(const Lines& lines, LineChange change, size_t line) {
    Files files = original_;
    files.*GetParam().file = lines.With(change, line);
    Seen seen = SeeStart(files, line);
    EXPECT_EQ(seen.outcome.wrong, std::vector<string>());
    return seen;
  }

  // `turn` is the place of the test among them all.
  template <typename Check>
  void ForEachLine(size_t turn, Check check) {
    const Slice& slice = GetParam();
    const Lines lines(original_.*slice.file);
    const size_t first = lines.size() * slice.slice / slice.slices;
    const size_t end = lines.size() * (slice.slice + 1) / slice.slices;
    for (size_t i = first; i < end; ++i) {
      if (slice.IsLarge() && i % kTests != turn) {
        continue;
      }
      SCOPED_TRACE("line " + std::to_string(i + 1) + ": " + string(lines.at(i)));
      check(lines, i);
    }
  }

  bool IsClean(const Seen& seen) const { return seen == clean_; }

 private:
  Files original_;
  Seen clean_;
};

// A line without text is no line; a header or an entry never goes unnoticed.
TEST_P(MutatedLines, DeletedOrEmptied) {
  ForEachLine(0, [&](const Lines& lines, size_t i) {
    const Seen deleted = SeeChange(lines, LineChange::kDelete, i);
    const Seen emptied = SeeChange(lines, LineChange::kEmpty, i);
    EXPECT_TRUE(deleted == emptied || lines.kind(i) == LineKind::kJoined);
    EXPECT_EQ(IsClean(deleted), lines.kind(i) == LineKind::kIdle);
  });
}

// The first entry of a key holds; the second of two headers is not seen, so that its section
// is empty.
TEST_P(MutatedLines, Doubled) {
  ForEachLine(1, [&](const Lines& lines, size_t i) {
    const Seen doubled = SeeChange(lines, LineChange::kDouble, i);
    EXPECT_TRUE(IsClean(doubled) == (lines.kind(i) != LineKind::kHeader) ||
                lines.kind(i) == LineKind::kJoined);
  });
}

// The order of entries does not matter, nor where comments stand.
TEST_P(MutatedLines, SwappedWithTheNext) {
  ForEachLine(2, [&](const Lines& lines, size_t i) {
    const Seen swapped = SeeChange(lines, LineChange::kSwap, i);
    if (i + 1 == lines.size()) {
      return;
    }
    const LineKind first = lines.kind(i);
    const LineKind second = lines.kind(i + 1);
    const bool is_joined = first == LineKind::kJoined || second == LineKind::kJoined;
    const bool is_idle = first == LineKind::kIdle || second == LineKind::kIdle;
    if (!is_joined) {
      EXPECT_EQ(IsClean(swapped), is_idle || first == second);
    }
  });
}

TEST_P(MutatedLines, Cut) {
  ForEachLine(3, [&](const Lines& lines, size_t i) {
    const Seen cut = SeeChange(lines, LineChange::kCut, i);
    EXPECT_TRUE(IsClean(cut) || lines.kind(i) != LineKind::kIdle);
  });
}

std::vector<Slice> Slices(const mutated::Sample& sample, string Files::*file, size_t count) {
  std::vector<Slice> slices;
  for (size_t i = 0; i < count; ++i) {
    slices.push_back({sample, file, i, count});
  }
  return slices;
}

const auto kName = [](const testing::TestParamInfo<Slice>& info) {
  return "Part" + std::to_string(info.param.slice);
};
INSTANTIATE_TEST_SUITE_P(SmallDevice, MutatedLines,
                         testing::ValuesIn(Slices(mutated::kSmallSample, &Files::device, 2)),
                         kName);
INSTANTIATE_TEST_SUITE_P(SmallOptical, MutatedLines,
                         testing::ValuesIn(Slices(mutated::kSmallSample, &Files::optical, 1)),
                         kName);
#if LARGE_SAMPLE  // which takes too long in some builds
INSTANTIATE_TEST_SUITE_P(LargeDevice, MutatedLines,
                         testing::ValuesIn(Slices(mutated::kLargeSample, &Files::device, 2)),
                         kName);
INSTANTIATE_TEST_SUITE_P(LargeOptical, MutatedLines,
                         testing::ValuesIn(Slices(mutated::kLargeSample, &Files::optical, 1)),
                         kName);
#endif

}  // namespace
