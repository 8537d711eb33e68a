// Definition files with a few bytes changed; mutated_files does as many as one likes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mutated_input/bytes.h"
#include "mutated_input/start.h"

namespace {

using std::string;

constexpr uint32_t kSeed = 1;
constexpr uint32_t kFilesPerTest = FILES_PER_TEST;

class MutatedBytes : public testing::TestWithParam<uint32_t> {};

TEST_P(MutatedBytes, LeaveConsistentTables) {
  const uint32_t first = GetParam() * kFilesPerTest;
  for (uint32_t number = first; number < first + kFilesPerTest; ++number) {
    SCOPED_TRACE("mutated_files --seed " + std::to_string(kSeed) + " --first " +
                 std::to_string(number) + " --count 1");
    const mutated::MutatedFiles mutated = mutated::MutatedFilesOf(kSeed, number);
    const mutated::Outcome outcome =
        mutated::Start(mutated.files, mutated.device_type, mutated.seed);
    EXPECT_EQ(outcome.wrong, std::vector<string>());
  }
}

INSTANTIATE_TEST_SUITE_P(, MutatedBytes, testing::Range(0u, 8u));

}  // namespace
