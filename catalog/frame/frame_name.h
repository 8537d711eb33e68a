// The name of the chassis.
#pragma once

#include <cstdint>

namespace sys_context {

// Copies a name of the library's own list of frames for ddInquireFrameName; apart from
// it, so that a test can ask for what none of these names causes: kOwnFrameNameTooLong,
// with a message.
[[nodiscard]] int32_t CopyFrameName(const char* name, char* buffer);

}  // namespace sys_context
