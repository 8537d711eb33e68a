// The gate of the console messages.
#include "common/messages.h"

#include "sys_context/context.h"

namespace sys_context {

bool IsOpen(Gate gate) {
  return gate == Gate::kAlways || ddDebugPrint != 0;
}

}  // namespace sys_context
