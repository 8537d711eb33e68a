// Every seed and every find of every target through what its fuzzer calls; those of the device
// definition file are replay_test.cpp's.
#include "fuzz/targets.h"

#include <gmock/gmock.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "fuzz/files.h"
#include "support/console.h"
#include "support/fake_platform.h"
#include "sys_context/cli.h"

namespace {

using std::string;

struct Row {
  fuzz::Target target;
  string folder;
  test::File file;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.file.path.string();
  }
};

std::vector<Row> Rows() {
  std::vector<Row> rows;
  for (const fuzz::Target& target : fuzz::kTargets) {
    for (const string folder : {"seeds", "finds"}) {
      for (const test::File& file :
           test::FilesIn(string(FUZZ_FOLDER) + "/" + folder + "/" + target.name)) {
        if (target.check != fuzz::CheckDefinitionFile) {
          rows.push_back({target, folder, file});
        }
      }
    }
  }
  return rows;
}

class ReplayTarget : public testing::TestWithParam<Row> {};

TEST_P(ReplayTarget, FindsNothing) {
  const string bytes = GetParam().file.Read();
  string wrong;
  {
    test::Console console;
    wrong = GetParam().target.check(bytes);
    console.Text();  // what is left would be shown
  }
  EXPECT_EQ(wrong, "");
}

string NameOf(const testing::TestParamInfo<Row>& info) {
  const Row& row = info.param;
  return row.target.name + ("_" + row.folder) + "_" + row.file.name;
}

INSTANTIATE_TEST_SUITE_P(, ReplayTarget, testing::ValuesIn(Rows()), NameOf);

// Each target has seeds, so none is left out above.
TEST(ReplayTargets, AllHaveSeeds) {
  for (const fuzz::Target& target : fuzz::kTargets) {
    EXPECT_FALSE(test::FilesIn(string(FUZZ_FOLDER "/seeds/") + target.name).empty()) << target.name;
  }
}

// A seed's first word is the name of a record.
TEST(FuzzedCommands, AreAllInTheSeeds) {
  test::FakePlatform::Reset();
  ddCmdInit(0, 0, 0);
  std::set<string> missing;
  for (const test::FakePlatform::Installed& command : test::FakePlatform::Get().installed) {
    missing.insert(command.record->name);
  }
  EXPECT_EQ(missing.size(), 18u);
  for (const test::File& file : test::FilesIn(FUZZ_FOLDER "/seeds/command_line")) {
    const string bytes = file.Read();
    missing.erase(bytes.substr(0, bytes.find_first_of(" \n")));
  }
  EXPECT_THAT(missing, testing::IsEmpty());
}

}  // namespace
