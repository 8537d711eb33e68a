// What the ONU type service of sample_onu_service.cpp knows: one type, of which the
// tables know nothing.
#pragma once

#include <cstdint>

namespace test {

inline constexpr uint32_t kServedOnuType = 9001;
inline constexpr char kServedOnuName[] = "KT-PLATFORM-ONU-1";
// The amount of its ports of each kind, each of the port type of this number.
inline constexpr uint32_t kServedOnuPorts = 32;

}  // namespace test
