// Symbols that hosts link against and that have nothing to do here.
#include "sys_context/context.h"

constinit int32_t dosFsMsgLevel = 0;

int32_t dosFsVolumeBioBufferSize() {
  return 0;
}

// The host's module framework expects these two; the real work is done by
// ddInit and ddCmdInit.
int32_t context_module_init() {
  return 0;
}
int32_t context_cmd_module_init() {
  return 0;
}
