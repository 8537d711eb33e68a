// Queries one after the other, on tables that change in between. A line of the bytes is a
// query's name and its arguments, or a change and its argument, parted by tabs. Between two
// changes a query answers the same whenever it is asked: it only reads.
#include "fuzz/query_sequences.h"

#include <string>
#include <string_view>
#include <vector>

#include "fuzz/lines.h"
#include "fuzz/platform.h"
#include "fuzz/queries.h"
#include "fuzz/samples.h"
#include "fuzz/targets.h"
#include "support/fake_platform.h"
#include "support/faults.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace fuzz {
namespace {

using test::FakePlatform;

constexpr size_t kMostQuestions = 200;

// What changes may change, besides the library's own tables.
struct State {
  test::Faults faults;
  const Sample* sample = &SampleNamed("");
  // One load of each at most: they take their time.
  int frame_loads = 0;
  int optical_loads = 0;
};

struct Change {
  std::string_view name;
  void (*make)(State& state, std::string_view argument);
};

constexpr Change kChanges[] = {
    {"restart",
     [](State& state, std::string_view argument) {
       state.sample = &SampleNamed(argument);
       PutTables(*state.sample, state.faults);
     }},
    {"cards",
     [](State& state, std::string_view argument) {
       PreparePlatform(state.sample->device, NumberOf(argument));
       FitCards(NumberOf(argument));
     }},
    {"device_type",
     [](State&, std::string_view argument) {
       FakePlatform::Get().device_type = static_cast<int32_t>(NumberOf(argument));
     }},
    {"debug",
     [](State&, std::string_view argument) {
       ddDebugPrint = static_cast<int32_t>(NumberOf(argument));
     }},
    {"ddEmptyFrameInformation", [](State&, std::string_view) { ddEmptyFrameInformation(); }},
    {"ddReadFrameInformation",
     [](State& state, std::string_view) {
       if (state.frame_loads++ == 0) {
         ddReadFrameInformation("/mnt/work/device_definition.ini");
       }
     }},
    {"optmodule_defines_fileparse",
     [](State& state, std::string_view) {
       if (state.optical_loads++ == 0) {
         optmodule_defines_fileparse();
       }
     }},
    {"optmodule_file_free", [](State&, std::string_view) { optmodule_file_free(); }},
    {"ddFindSupportedBoardMaxPonNum",
     [](State&, std::string_view) { ddFindSupportedBoardMaxPonNum(); }},
    {"ddFindSupportedOnuMaxLanNum",
     [](State&, std::string_view) { ddFindSupportedOnuMaxLanNum(); }},
};

class Sequence {
 public:
  // What is wrong; empty when nothing is.
  std::string Run(std::string_view lines) {
    PutTables(*state_.sample, state_.faults);
    std::string wrong;
    for (size_t i = 0; i < kMostQuestions && !lines.empty() && wrong.empty(); ++i) {
      std::string_view line = TakeLine(lines);
      const std::string_view name = Take(line, "\t");
      if (const Query* const query = QueryNamed(name); query != nullptr) {
        wrong = Ask(*query, line);
      } else {
        wrong = AskAgain();
        asked_.clear();
        MakeChange(name, line);
      }
    }
    if (wrong.empty()) {
      wrong = AskAgain();
    }
    RemoveTables();
    if (wrong.empty() && !state_.faults.blocks.empty()) {
      wrong = "memory is kept";
    }
    return wrong;
  }

 private:
  struct Asked {
    const Query* query;
    std::string_view words;
    Answer answer;
  };

  std::string Ask(const Query& query, std::string_view words) {
    Asked asked = {&query, words, {}};
    const bool is_sound = query.ask(Words(words), asked.answer);
    FakePlatform::TakeAsked();
    FakePlatform::TakeLog();
    asked_.push_back(std::move(asked));
    return is_sound ? "" : std::string(query.name) + " answered what cannot be";
  }

  // The other way round.
  std::string AskAgain() {
    for (auto asked = asked_.rbegin(); asked != asked_.rend(); ++asked) {
      Answer answer;
      asked->query->ask(Words(asked->words), answer);
      if (answer != asked->answer) {
        return std::string(asked->query->name) + " answers otherwise when it is asked again";
      }
    }
    FakePlatform::TakeAsked();
    FakePlatform::TakeLog();
    return "";
  }

  // Names that are none change nothing.
  void MakeChange(std::string_view name, std::string_view argument) {
    for (const Change& change : kChanges) {
      if (change.name == name) {
        change.make(state_, argument);
      }
    }
  }

  State state_;
  std::vector<Asked> asked_;
};

}  // namespace

std::vector<std::string_view> ChangeNames() {
  std::vector<std::string_view> names;
  for (const Change& change : kChanges) {
    names.push_back(change.name);
  }
  return names;
}

std::string CheckQuerySequences(std::string_view bytes) {
  return Sequence().Run(bytes);
}

}  // namespace fuzz
