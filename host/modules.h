// The module framework of the simulated card: who registered under which id
// and with which version.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sysctx {

struct Module {
  int32_t id = 0;
  std::string name;
  std::string version;
};

// Modules in the order in which they registered. Modules register while the
// program starts, before there are threads.
const std::vector<Module>& RegisteredModules();

// Whether bep_taskDelayEx really waits: a person sees the pauses of a long
// listing, a script has no use for them.
void SetTaskDelays(bool real);

// Whether ulogPrintf writes, as it does at first. The second call of a question would log
// everything twice.
void SetLogging(bool on);

}  // namespace sysctx
