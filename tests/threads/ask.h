// Queries as functions that ask for everything they are told to, and note the answers.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

namespace test {

using Numbers = std::vector<uint32_t>;
using Names = std::vector<const char*>;

constexpr uint32_t kUntouched = 7777;  // in the outputs, before a query is asked

// What a query answered: its codes and its outputs, in the order in which it was asked.
struct Answers {
  std::vector<uint32_t> words;
  bool has_success = false;

  void AddCode(int32_t code) {
    words.push_back(static_cast<uint32_t>(code));
    has_success = has_success || code >= 0;
  }
};

using Asker = std::function<void(Answers& answers)>;

// Calls `visit` with every choice of one input from each list.
template <typename Visit>
void ForEachOf(const Visit& visit) {
  visit();
}
template <typename Visit, typename Input, typename... Others>
void ForEachOf(const Visit& visit, const std::vector<Input>& list,
               const std::vector<Others>&... lists) {
  for (const Input input : list) {
    ForEachOf([&](Others... others) { visit(input, others...); }, lists...);
  }
}

// Its inputs' types are given, so that those of the outputs can be deduced.
template <typename... Inputs>
struct WithInputs {
  template <typename... Outputs>
  static void NoteOutputs(Answers& answers, int32_t (*query)(Inputs..., Outputs*...),
                          Inputs... inputs) {
    std::tuple<Outputs...> outputs{static_cast<Outputs>(kUntouched)...};
    answers.AddCode(
        std::apply([&](Outputs&... each) { return query(inputs..., &each...); }, outputs));
    std::apply([&](const Outputs&... each) { (answers.words.push_back(each), ...); }, outputs);
  }
};

// Asks a query whose outputs are one number each.
template <typename Query, typename... Inputs>
Asker Ask(Query* query, const std::vector<Inputs>&... lists) {
  return [=](Answers& answers) {
    ForEachOf(
        [&](Inputs... inputs) { WithInputs<Inputs...>::NoteOutputs(answers, query, inputs...); },
        lists...);
  };
}

// Asks one that fills a list, with much room and with little.
template <typename Query, typename... Inputs>
Asker AskList(Query* query, const std::vector<Inputs>&... lists) {
  return [=](Answers& answers) {
    ForEachOf(
        [&](Inputs... inputs) {
          for (const uint32_t room : {200u, 1u}) {
            Numbers list(2 * 200, kUntouched);  // two lists of that size, at most
            uint32_t count = kUntouched;
            answers.AddCode(query(inputs..., list.data(), room, &count));
            answers.words.push_back(count);
            while (!list.empty() && list.back() == kUntouched) {
              list.pop_back();
            }
            answers.words.insert(answers.words.end(), list.begin(), list.end());
          }
        },
        lists...);
  };
}

// Asks one that fills a name.
template <typename Query, typename... Inputs>
Asker AskName(Query* query, const std::vector<Inputs>&... lists) {
  return [=](Answers& answers) {
    ForEachOf(
        [&](Inputs... inputs) {
          std::string name(60, '#');
          answers.AddCode(query(inputs..., name.data()));
          answers.words.insert(answers.words.end(), name.begin(), name.end());
        },
        lists...);
  };
}

}  // namespace test
