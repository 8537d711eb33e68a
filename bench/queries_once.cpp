// Asks every query, for scripts/count-instructions, which counts between signals.
// Prints the names; behind each, the query is asked once and then twice, with a signal
// in front of, between and behind the two. The first line is the empty call.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/queries.h"

namespace {

// Not inlined, so that between two signals all but the calls is the same.
[[gnu::noinline]] void AskAndSignal(const bench::Question& question, size_t times) {
  question.ask(times);
  std::raise(SIGUSR1);
}

void Ask(const char* name, const char* argument, const bench::Question& question) {
  if (question.ask == nullptr) {
    return;
  }
  const std::string line = std::string(name) + " " + argument;
  std::puts(line.c_str());
  if (!bench::AnswersAsExpected(line, question)) {  // also binds what the query calls
    std::exit(1);
  }
  for (const size_t times : {1u, 1u, 2u}) {
    AskAndSignal(question, times);
  }
}

}  // namespace

int main() {
  std::signal(SIGUSR1, [](int) {});
  if (!bench::LoadSample()) {
    std::fputs("the sample has not been loaded\n", stderr);
    return 1;
  }
  Ask("empty-call", "typical", bench::EmptyCall());
  for (const bench::Query& query : bench::Queries()) {
    Ask(query.name, "typical", query.typical);
    Ask(query.name, "worst", query.worst);
  }
  return 0;
}
