// The whole platform as one object: it records what the library calls and
// answers as the test says. Every test starts with a fresh one.
#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "sys_context/platform.h"

namespace test {

struct FakePlatform {
  // The fake that the platform functions currently use.
  static FakePlatform& Get();
  // Forgets everything recorded and scripted.
  static void Reset();

  // Command shell: what was installed, by node, and what terminals show.
  struct Installed {
    int32_t node;
    CommandRecord* record;
  };
  std::vector<Installed> installed;
  int32_t install_result = 0;
  std::string terminal;               // all that vty_out wrote
  std::vector<void*> terminals_used;  // the handle of each call of vty_out

  // Module framework: what was registered, and what it answers.
  std::vector<std::string> registered_modules;
  std::vector<std::vector<int32_t>> register_numbers;
  int32_t register_result = 7;
  struct Version {
    int32_t module;
    int32_t number;
    std::string text;
  };
  std::vector<Version> versions;
  int32_t version_result = 0;

  // Task delay: the ticks of each call, and how many bytes the terminal showed
  // at that time.
  std::vector<int32_t> delays;
  std::vector<size_t> shown_before_delays;

  // Card kinds: which types are PON cards, and the types that were asked about.
  std::set<int16_t> pon_cards;
  int32_t not_a_pon_card = 1;  // what the others are answered
  std::vector<int16_t> asked_pon_cards;
};

}  // namespace test
