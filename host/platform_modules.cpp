// Module framework, platform log and task delay.
#include <unistd.h>

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <string>

#include "host/format.h"
#include "host/modules.h"
#include "sys_context/platform.h"

namespace sysctx {
namespace {

constexpr int32_t kFailure = -1;
constexpr int32_t kDeviceManager = 0;
constexpr useconds_t kTickMicroseconds = 10000;

std::vector<Module>& Modules() {
  static std::vector<Module> modules;
  return modules;
}

constinit std::atomic<bool> g_delays_are_real = false;
constinit std::atomic<bool> g_logging_is_on = true;

std::string ModuleName(int32_t id) {
  if (id == kDeviceManager) {
    return "devmgr";
  }
  for (const Module& module : Modules()) {
    if (module.id == id) {
      return module.name;
    }
  }
  return "module " + std::to_string(id);
}

// Log texts begin with a line break on some callers and end with one on others;
// in the log each is one line.
std::string OneLine(std::string text) {
  text.erase(0, text.find_first_not_of("\r\n"));
  text.erase(text.find_last_not_of("\r\n") + 1);
  return text;
}

}  // namespace

const std::vector<Module>& RegisteredModules() {
  return Modules();
}

void SetTaskDelays(bool real) {
  g_delays_are_real = real;
}

void SetLogging(bool on) {
  g_logging_is_on = on;
}

}  // namespace sysctx

extern "C" {

// The device manager registers itself before everybody else.
int32_t devmgrModuRegId = sysctx::kDeviceManager;

int32_t modInitRegister(const char* name, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t) {
  if (name == nullptr) {
    return sysctx::kFailure;
  }
  auto& modules = sysctx::Modules();
  modules.push_back({static_cast<int32_t>(modules.size()) + 1, name, ""});
  return modules.back().id;
}

int32_t setModVersion(int32_t modId, int32_t, const char* version) {
  for (sysctx::Module& module : sysctx::Modules()) {
    if (module.id == modId && version != nullptr) {
      module.version = version;
      return 0;
    }
  }
  return sysctx::kFailure;
}

int32_t ulogPrintf(int32_t modId, int32_t level, const char* format, ...) {
  if (!sysctx::g_logging_is_on) {
    return 0;
  }
  va_list arguments;
  va_start(arguments, format);
  const std::string text = sysctx::OneLine(sysctx::FormatList(format, arguments));
  va_end(arguments);
  const std::string name = sysctx::ModuleName(modId);
  fprintf(stderr, "log %s level %d: %s\n", name.c_str(), level, text.c_str());
  return 0;
}

int32_t bep_taskDelayEx(int32_t ticks) {
  if (sysctx::g_delays_are_real && ticks > 0) {
    usleep(static_cast<useconds_t>(ticks) * sysctx::kTickMicroseconds);
  }
  return 0;
}

}  // extern "C"
