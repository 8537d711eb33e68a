// Every call on the definition files of a whole start fails.
#include <algorithm>
#include <ostream>
#include <string>

#include "cfgfile/plain_reader.h"
#include "faults/sweep.h"
#include "support/temporary_folder.h"

namespace faults {
namespace {

struct Kind {
  const char* name;
  test::FaultPlan test::Faults::*plan;
  int Calls::*calls;
  int32_t code;  // of the lookup
  Times times;
  size_t step = 1;
  friend std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.name; }
};

constexpr Kind kKinds[] = {
    {"OpenOnce", &test::Faults::opens, &Calls::opens, -10, Times::kOnce},
    {"OpenForEver", &test::Faults::opens, &Calls::opens, -10, Times::kForEver},
    {"SeekOnce", &test::Faults::seeks, &Calls::seeks, -12, Times::kOnce},
    {"SeekForEver", &test::Faults::seeks, &Calls::seeks, -12, Times::kForEver},
    {"ReadOnce", &test::Faults::reads, &Calls::reads, -12, Times::kOnce},
    {"ReadForEver", &test::Faults::reads, &Calls::reads, -12, Times::kForEver},
    {"CloseOnce", &test::Faults::stream_closes, &Calls::closes, 0, Times::kOnce},
    // Nothing fails with these, so that all lookups behind the first one are really made: that
    // takes long.
    {"CloseForEver", &test::Faults::stream_closes, &Calls::closes, 0, Times::kForEver, 8},
};

int CallsOf(const Lookup& lookup, int Calls::*kind) {
  return lookup.behind.*kind - lookup.before.*kind;
}

// All is shown after every so many starts: that takes longer than a start from the tape.
constexpr size_t kShown = 64;

class DefinitionFiles : public Sweep {
 protected:
  // Calls try_one(lookup, call) for every call (from 1) of a kind, or for every so many.
  template <typename TryOne>
  void ForEachCall(int Calls::*kind, size_t step, TryOne try_one) {
    const std::vector<Lookup>& lookups = Tape::Get().lookups();
    size_t count = 0;
    for (size_t i = 0; i < lookups.size(); ++i) {
      for (int call = 1; call <= CallsOf(lookups[i], kind); ++call) {
        if (count++ % step == 0) {
          SCOPED_TRACE(testing::Message()
                       << "lookup " << i << " of " << lookups[i].question.key << ", call " << call);
          try_one(i, call);
          if (HasFailure()) {
            return;
          }
        }
      }
    }
    EXPECT_GT(count, 1000u);  // starts make so many
  }

  Then Next() { return starts_++ % kShown == 0 ? Then::kShow : Then::kLeave; }

 private:
  size_t starts_ = 0;
};

class DefinitionFileCalls : public DefinitionFiles, public testing::WithParamInterface<Kind> {
 protected:
  void Fail(size_t lookup, int call) {
    const Kind& kind = GetParam();
    const bool once = kind.times == Times::kOnce;
    const std::vector<Lookup>& lookups = Tape::Get().lookups();
    Tape::Get().Replay(lookup, once ? lookup + 1 : Tape::kToTheEnd);
    const Prediction prediction = Predict(
        [&](const Event& event) {
          const bool meets_it = once ? event.lookup == lookup : event.lookup >= lookup;
          return kind.code != 0 && !event.is_allocation && meets_it &&
                 CallsOf(lookups[event.lookup], kind.calls) != 0;
        },
        kind.code);
    Start({kind.plan, call, kind.times}, prediction, Next());
    ASSERT_EQ(Tape::Get().first_answers().size(), 1u);
    EXPECT_EQ(Tape::Get().first_answers().front().code, kind.code);
  }
};

TEST_P(DefinitionFileCalls, EachFails) {
  const Kind& kind = GetParam();
  const size_t step = std::max(kStep, kind.step);
  ForEachCall(kind.calls, step, [this](size_t lookup, int call) { Fail(lookup, call); });
  Tell(kind.name, step);
}

INSTANTIATE_TEST_SUITE_P(, DefinitionFileCalls, testing::ValuesIn(kKinds),
                         testing::PrintToStringParamName());

// Reads that give half of the bytes that there are: the file ends there.
class ShortReads : public DefinitionFiles {
 protected:
  static Loader LoaderOf(size_t lookup) {
    const std::vector<Event>& events = CleanStart::Get().events;
    return std::find_if(
               events.begin(), events.end(),
               [=](const Event& event) { return !event.is_allocation && event.lookup == lookup; })
        ->loader;
  }

  // Where the file ends for a lookup of which read number `call` (from 1) is short.
  static size_t EndOf(size_t start, int call, size_t size) {
    size_t place = start;
    size_t block = 4096;
    for (int i = 1; i < call; ++i) {
      place += block;
      block = 8192;
    }
    return place + std::min(block, size - place) / 2;
  }

  // What the lookup answers when the file ends in the middle of that read.
  Answer Expected(size_t number, int call) const {
    const Question& question = Tape::Get().lookups()[number].question;
    const std::string& file = LoaderOf(number) == kOpticalModules ? optical_file_ : device_file_;
    const int32_t start = std::max(question.start, 0);
    const size_t end = EndOf(static_cast<size_t>(start), call, file.size());
    const plain::Answer plain =
        plain::Lookup(std::string_view(file).substr(0, end), question.section, question.key, start);
    const bool tells_header = question.start != kFromTheTop;
    return {plain.code, plain.value.value_or(""), tells_header ? plain.offset.value_or(0) : 0};
  }

  void Shorten(size_t number, int call) {
    const Answer answer = Expected(number, call);
    const Prediction prediction = Predict(
        [&](const Event& event) {
          return answer.code != 0 && !event.is_allocation && event.lookup == number;
        },
        answer.code);
    const bool is_cut = answer.code == 0 && answer != Tape::Get().lookups()[number].answer;
    cut_values_ += is_cut ? 1 : 0;
    Tape::Get().Replay(number, number + 1);
    Start({&test::Faults::short_reads, call, Times::kOnce}, prediction, Next(),
          is_cut ? LoaderOf(number) : kLoaderCount);
    ASSERT_EQ(Tape::Get().first_answers().size(), 1u);
    EXPECT_TRUE(Tape::Get().first_answers().front() == answer)
        << Tape::Get().first_answers().front().code << " " << answer.code;
  }

  int cut_values_ = 0;  // lookups that succeeded, but whose value was cut off

 private:
  const std::string device_file_ = test::ReadWhole(SAMPLE_FOLDER "/device_definition.ini");
  const std::string optical_file_ = test::ReadWhole(SAMPLE_FOLDER "/optmodule_definition.ini");
};

TEST_F(ShortReads, EachEndsTheFile) {
  ForEachCall(&Calls::reads, kStep, [this](size_t lookup, int call) { Shorten(lookup, call); });
  EXPECT_LE(cut_values_, 2);  // of 10,129 short reads
  RecordProperty("cut_values", cut_values_);
  Tell("short reads", kStep);
}

}  // namespace
}  // namespace faults
