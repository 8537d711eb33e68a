// The functions that the linker puts in front of the library's own.
#include "catalog/onu/onu_ports_stand_ins.h"

#include <cstring>
#include <optional>

namespace test {
namespace {

OddPort odd_port;
std::optional<OnuPortKind> odd_kind;

bool IsOdd(Names PortNames::*kind, const char* name) {
  return odd_kind && odd_kind->names == kind && name != nullptr && std::strcmp(name, "ODD") == 0;
}

int32_t FindOdd(uint32_t* supported, uint32_t* index) {
  *supported = odd_port.supported;
  *index = odd_port.index;
  return odd_port.lookup_code;
}

int32_t CopyOdd(OnuPortTypeInformation** type) {
  *type = odd_port.copy_code == 0 ? NewOnuPortType(*odd_kind, 1) : nullptr;
  return odd_port.copy_code;
}

}  // namespace

void SetOddPort(const OnuPortKind& kind, const OddPort& port) {
  odd_kind = kind;
  odd_port = port;
}

void ForgetOddPort() {
  odd_kind.reset();
}

}  // namespace test

#define STAND_IN_FRONT_OF(kind, find, copy)                                                   \
  int32_t __real_##find(const char* name, uint32_t* supported, uint32_t* index);              \
  int32_t __wrap_##find(const char* name, uint32_t* supported, uint32_t* index);              \
  int32_t __real_##copy(const char* name, OnuPortTypeInformation** type);                     \
  int32_t __wrap_##copy(const char* name, OnuPortTypeInformation** type);                     \
  int32_t __wrap_##find(const char* name, uint32_t* supported, uint32_t* index) {             \
    return test::IsOdd(&test::PortNames::kind, name) ? test::FindOdd(supported, index)        \
                                                     : __real_##find(name, supported, index); \
  }                                                                                           \
  int32_t __wrap_##copy(const char* name, OnuPortTypeInformation** type) {                    \
    return test::IsOdd(&test::PortNames::kind, name) ? test::CopyOdd(type)                    \
                                                     : __real_##copy(name, type);             \
  }

extern "C" {
STAND_IN_FRONT_OF(pon, ddIsOnuPonTypeSupportedByName, ddCreateOneOnuPonObjByName)
STAND_IN_FRONT_OF(lan, ddIsOnuLanTypeSupportedByName, ddCreateOneOnuLanObjByName)
STAND_IN_FRONT_OF(pots, ddIsOnuPotsTypeSupportedByName, ddCreateOneOnuPotsObjByName)
STAND_IN_FRONT_OF(special, ddIsOnuSpecialPortTypeSupportedByName,
                  ddCreateOneOnuSpecialPortObjByName)
}  // extern "C"
