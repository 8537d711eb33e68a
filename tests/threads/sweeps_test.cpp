// Eight threads ask every query of the built library, with the tables of the large
// sample, and get what one thread got.
#include <gtest/gtest.h>

#include <barrier>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"
#include "threads/sweeps.h"

namespace {

using std::string;
using test::Answers;
using test::Sweep;

constexpr size_t kThreads = 8;

class Sweeps : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    for (const auto load :
         {ddReadVersionInformation, ddReadAllModuleInformation, ddReadSysSupportFuncInformation,
          ddReadAllSupportedOltPortInformation, ddReadAllSupportedMainBoardInformation,
          ddReadAllSupportedBoardInformation, ddReadFrameInformation,
          ddReadAllSupportedOnuPonInformation, ddReadAllSupportedOnuLanInformation,
          ddReadAllSupportedOnuPotsInformation, ddReadAllSupportedOnuSpecialPortInformation,
          ddReadAllSupportedOnuInformation}) {
      ASSERT_EQ(load(SYS_CONTEXT_SAMPLE), 0);
    }
    ASSERT_EQ(optmodule_infolist_read(SYS_CONTEXT_OPTICAL_SAMPLE), 0);
    sweeps_ = test::AllSweeps();
    for (const Sweep& sweep : sweeps_) {
      sweep.ask(expected_.emplace_back());
    }
  }

  // Runs `ask(thread, answers)` on all threads at once; each puts what it gets in the place of
  // the sweep.
  template <typename Ask>
  static void ExpectSameAnswersOnAllThreads(Ask ask) {
    std::vector<std::vector<Answers>> answers(kThreads, std::vector<Answers>(sweeps_.size()));
    std::vector<std::thread> threads;
    for (size_t i = 0; i < kThreads; ++i) {
      threads.emplace_back([&, i] { ask(i, answers[i]); });
    }
    for (std::thread& thread : threads) {
      thread.join();
    }
    for (size_t i = 0; i < kThreads; ++i) {
      for (size_t sweep = 0; sweep < sweeps_.size(); ++sweep) {
        EXPECT_TRUE(answers[i][sweep].words == expected_[sweep].words)
            << sweeps_[sweep].query << " on thread " << i;
      }
    }
  }

  static std::vector<Sweep> sweeps_;
  static std::vector<Answers> expected_;
};
std::vector<Sweep> Sweeps::sweeps_;
std::vector<Answers> Sweeps::expected_;

// What a query is stands in tests/host/queries_test.cpp, too, by the names of all that is
// none: a new export fails in both.
TEST_F(Sweeps, AskEveryQuery) {
  std::set<string> asked;
  for (const Sweep& sweep : sweeps_) {
    asked.insert(sweep.query);
  }
  std::set<string> exported;
  std::ifstream file(EXPORTS_FILE);
  for (string line; std::getline(file, line);) {
    for (const string prefix :
         {"ddGet", "ddIs", "ddCan", "ddCheck", "ddCreate", "ddRun", "get_", "is_"}) {
      if (line.rfind("T " + prefix, 0) == 0) {
        exported.insert(line.substr(2));
      }
    }
  }
  // It only reads the tables, too.
  exported.insert("ddInquireFrameName");
  EXPECT_EQ(asked, exported);
}

TEST_F(Sweeps, FindAnAnswerInTheSample) {
  for (size_t i = 0; i < sweeps_.size(); ++i) {
    EXPECT_EQ(expected_[i].has_success, sweeps_[i].succeeds) << sweeps_[i].query;
  }
}

TEST_F(Sweeps, EachOnAllThreadsAtOnce) {
  std::barrier together(kThreads);
  ExpectSameAnswersOnAllThreads([&](size_t, std::vector<Answers>& answers) {
    for (size_t i = 0; i < sweeps_.size(); ++i) {
      together.arrive_and_wait();
      sweeps_[i].ask(answers[i]);
    }
  });
}

TEST_F(Sweeps, OtherOnesOnEveryThread) {
  ExpectSameAnswersOnAllThreads([](size_t thread, std::vector<Answers>& answers) {
    for (size_t i = 0; i < sweeps_.size(); ++i) {
      const size_t sweep = (thread * sweeps_.size() / kThreads + i) % sweeps_.size();
      sweeps_[sweep].ask(answers[sweep]);
    }
  });
}

}  // namespace
