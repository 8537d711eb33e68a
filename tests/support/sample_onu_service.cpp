// The platform's ONU type service, of one type. Constants, like sample_card.cpp, and for
// the same programs.
#include "support/sample_onu_service.h"

#include <cstring>

#include "sys_context/platform.h"

namespace {

using test::kServedOnuName;
using test::kServedOnuPorts;
using test::kServedOnuType;

int32_t Answer(bool is_known, uint32_t* result, uint32_t value) {
  if (!is_known) {
    return -1;
  }
  *result = value;
  return 0;
}

int32_t AnswerType(uint32_t type, uint32_t* result, uint32_t value = kServedOnuPorts) {
  return Answer(type == kServedOnuType, result, value);
}

int32_t AnswerPort(uint32_t type, uint32_t port, uint32_t* result) {
  return Answer(type == kServedOnuType && port >= 1 && port <= kServedOnuPorts, result,
                kServedOnuPorts);
}

}  // namespace

extern "C" {

int32_t cs_get_onu_pon_num_by_type(uint32_t type, uint32_t* result) {
  return AnswerType(type, result);
}

int32_t cs_get_onu_lan_port_num_by_type(uint32_t type, uint32_t* result) {
  return AnswerType(type, result);
}

int32_t cs_get_onu_pots_port_num_by_type(uint32_t type, uint32_t* result) {
  return AnswerType(type, result);
}

int32_t cs_get_onu_special_port_amount(uint32_t type, uint32_t* result) {
  return AnswerType(type, result);
}

int32_t cs_get_onu_special_port_num_by_type(uint32_t type, uint32_t port_type, uint32_t* result) {
  return AnswerType(type, result, port_type == kServedOnuPorts ? kServedOnuPorts : 0);
}

int32_t cs_get_onu_pon_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  return AnswerPort(type, port, result);
}

int32_t cs_get_onu_lan_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  return AnswerPort(type, port, result);
}

int32_t cs_get_onu_pots_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  return AnswerPort(type, port, result);
}

int32_t cs_get_onu_special_port_type_by_port_no(uint32_t type, uint32_t port, uint32_t* result) {
  return AnswerPort(type, port, result);
}

int32_t cs_get_onu_special_port_type_list(uint32_t type, uint32_t* array, uint32_t,
                                          uint32_t* amount) {
  return AnswerType(type, array) == 0 ? Answer(true, amount, 1) : -1;
}

int32_t cs_get_onu_name_by_type(uint32_t type, char* name) {
  if (type != kServedOnuType) {
    return -1;
  }
  std::memcpy(name, kServedOnuName, sizeof kServedOnuName);
  return 0;
}

int32_t cs_get_onu_type_by_name(const char* name, uint32_t* result) {
  return Answer(std::strcmp(name, kServedOnuName) == 0, result, kServedOnuType);
}

int32_t cs_is_onu_supported_by_type(uint32_t type, uint32_t* result) {
  return AnswerType(type, result, 1);
}

int32_t cs_get_supported_onu_max_lan_num(uint32_t* result) {
  return Answer(true, result, kServedOnuPorts);
}

}  // extern "C"
