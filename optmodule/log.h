// Messages of the optical modules, which go to the platform log.
#pragma once

#include <type_traits>

#include "common/messages.h"
#include "sys_context/platform.h"

namespace sys_context {

enum class LogLevel : int32_t {
  kDetail = 6,
  kWholeFile = 11,
};

// Logs a text that begins with the name of the function that logs.
template <typename... Values>
void Log(LogLevel level, Message<const char*, std::type_identity_t<Values>...> text,
         const char* function, Values... values) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
  ulogPrintf(devmgrModuRegId, static_cast<int32_t>(level), text.text(), function, values...);
#pragma GCC diagnostic pop
}

}  // namespace sys_context
