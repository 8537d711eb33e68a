// What the library asks of the platform besides what support/sample_card.cpp and
// support/sample_onu_service.cpp answer, from any thread.
#include "sys_context/platform.h"

#include <thread>

int32_t bep_taskDelayEx(int32_t) {
  std::this_thread::yield();
  return 0;
}

// ---- Not asked by queries ------------------------------------------------------------

int32_t install_element(int32_t, CommandRecord*) {
  return 0;
}

int32_t vty_out(void*, const char*, ...) {
  return 0;
}

int32_t modInitRegister(const char*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t) {
  return -1;
}

int32_t setModVersion(int32_t, int32_t, const char*) {
  return -1;
}
