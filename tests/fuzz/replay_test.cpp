// Every device definition file at hand through the function that the fuzzer calls, with all
// queries.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "fuzz/definition_file_run.h"
#include "fuzz/files.h"
#include "support/console.h"

namespace {

using std::string;
using test::File;
using test::FilesIn;

class Replay : public testing::TestWithParam<File> {
 protected:
  // Runs the file with the debug switch off and on. Whatever it holds, no other block is lost
  // than those that the interface lets go.
  void Run() {
    bytes_ = GetParam().Read();
    for (const int32_t debug : {0, 1}) {
      {
        test::Console console;
        outcomes_.push_back(fuzz::Run(bytes_, debug, fuzz::Queries::kAll));
        console.Text();  // what is left would be shown
      }
      EXPECT_TRUE(fuzz::IsAccountedFor(outcomes_.back())) << "debug switch: " << debug;
    }
  }

  void ExpectOutcomes(int32_t code, size_t lost) {
    ASSERT_EQ(outcomes_.size(), 2u);
    for (const fuzz::Outcome& outcome : outcomes_) {
      EXPECT_EQ(outcome.code, code);
      EXPECT_EQ(outcome.lost.size(), lost);
    }
  }

  string bytes_;
  std::vector<fuzz::Outcome> outcomes_;
};

class ReplaySeed : public Replay {};

// "; ddInit = -31", or "; ddInit = 0, 5 lost".
TEST_P(ReplaySeed, EndsAsItsFirstLineSays) {
  Run();
  int32_t code = 0;
  size_t lost = 0;
  ASSERT_GE(std::sscanf(bytes_.c_str(), "; ddInit = %d, %zu lost", &code, &lost), 1);
  ExpectOutcomes(code, lost);
}

class ReplaySample : public Replay {};

TEST_P(ReplaySample, Loads) {
  Run();
  ExpectOutcomes(0, 0);
}

class ReplayFind : public Replay {};

TEST_P(ReplayFind, LosesNothingElse) {
  Run();
}

const auto kName = [](const testing::TestParamInfo<File>& info) { return info.param.name; };
INSTANTIATE_TEST_SUITE_P(, ReplaySeed,
                         testing::ValuesIn(FilesIn(FUZZ_FOLDER "/seeds/definition_file")), kName);
INSTANTIATE_TEST_SUITE_P(, ReplaySample,
                         testing::ValuesIn(FilesIn(DEFINITIONS_FOLDER,
                                                   "mnt/work/device_definition.ini")),
                         kName);
INSTANTIATE_TEST_SUITE_P(, ReplayFind,
                         testing::ValuesIn(FilesIn(FUZZ_FOLDER "/finds/definition_file")), kName);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ReplayFind);  // there are none at best

}  // namespace
