// What the library asks of the platform besides what support/sample_card.cpp and
// support/sample_onu_service.cpp answer, from any thread.
#include "sys_context/platform.h"

#include <thread>

int32_t devmgrModuRegId = 31;

int32_t ulogPrintf(int32_t, int32_t, const char*, ...) {
  return 0;
}

int32_t bep_taskDelayEx(int32_t) {
  std::this_thread::yield();
  return 0;
}

// ---- Not asked by queries ------------------------------------------------------------

int32_t install_element(int32_t, CommandRecord*) {
  return 0;
}

int32_t vk_install_element(int32_t, CommandRecord*, int32_t, int32_t) {
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

int32_t flash_sizeof(const char*) {
  return -1;
}

int32_t flash_read(const char*, char*, int32_t*) {
  return -1;
}

int32_t zUnCompress(uint8_t*, uint32_t*, const uint8_t*, uint32_t) {
  return -1;
}

int32_t upload_buf_by_ftp(const char*, const char*, const char*, const char*, const char*,
                          uint32_t) {
  return -1;
}

int32_t is_manage_ipAddr(uint32_t) {
  return 0;
}

int32_t diags_is_outbandip(const char*) {
  return 0;
}
