// The fuzzer's table of queries against the library's border, and its seeds against the table.
#include "fuzz/queries.h"

#include <gmock/gmock.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

#include "fuzz/files.h"
#include "fuzz/query_sequences.h"

namespace {

using std::string;
using Names = std::set<string>;

Names Queries() {
  Names names;
  for (const fuzz::Query& query : fuzz::AllQueries()) {
    names.insert(query.name);
  }
  return names;
}

TEST(FuzzedQueries, AreAllThatThereAre) {
  Names exported = {"ddInquireFrameName"};
  std::ifstream file(EXPORTS_FILE);
  for (string line; std::getline(file, line);) {
    for (const string prefix :
         {"ddGet", "ddIs", "ddCan", "ddCheck", "ddCreate", "ddRun", "get_", "is_"}) {
      if (line.starts_with("T " + prefix)) {
        exported.insert(line.substr(2));
      }
    }
  }
  EXPECT_EQ(Queries(), exported);
}

// Those of the names that no line of the seeds begins with.
Names NotInTheSeeds(Names names) {
  for (const test::File& file : test::FilesIn(FUZZ_FOLDER "/seeds/query_sequences")) {
    std::istringstream lines(file.Read());
    for (string line; std::getline(lines, line);) {
      names.erase(line.substr(0, line.find('\t')));
    }
  }
  return names;
}

TEST(FuzzedQueries, AreAllInTheSeeds) {
  EXPECT_THAT(NotInTheSeeds(Queries()), testing::IsEmpty());
}

TEST(FuzzedChanges, AreAllInTheSeeds) {
  Names names;
  for (const std::string_view name : fuzz::ChangeNames()) {
    names.emplace(name);
  }
  EXPECT_EQ(names.size(), 10u);
  EXPECT_THAT(NotInTheSeeds(names), testing::IsEmpty());
}

TEST(FuzzedQueries, AreFoundByName) {
  const fuzz::Query* const query = fuzz::QueryNamed("ddIsRealSlot");
  ASSERT_NE(query, nullptr);
  fuzz::Answer answer;
  EXPECT_TRUE(query->ask(fuzz::Words("!1\t5"), answer));
  EXPECT_EQ(answer, (fuzz::Answer{static_cast<uint32_t>(-2), fuzz::kUntouched}));
  EXPECT_EQ(fuzz::QueryNamed("ddIsRealSlo"), nullptr);
}

}  // namespace
