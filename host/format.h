// printf into a string of any length.
#pragma once

#include <cstdarg>
#include <string>

namespace sysctx {

__attribute__((format(printf, 1, 0))) std::string FormatList(const char* format, va_list arguments);

__attribute__((format(printf, 1, 2))) std::string Format(const char* format, ...);

}  // namespace sysctx
