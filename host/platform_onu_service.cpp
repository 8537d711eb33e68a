// The ONU type service: answers about the ONU types of equipment.toml. Every
// function fails with -1 for other types, for ports that a type does not have
// and for null pointers, and then writes nothing.
#include <algorithm>
#include <cstring>
#include <vector>

#include "host/equipment.h"
#include "sys_context/platform.h"

namespace {

using sysctx::ServiceOnuType;
using Ports = std::vector<uint32_t>;

constexpr int32_t kFailure = -1;

const ServiceOnuType* Find(uint32_t type) {
  for (const ServiceOnuType& onu : sysctx::TheEquipment().onu_types) {
    if (onu.type == type) {
      return &onu;
    }
  }
  return nullptr;
}

int32_t Answer(uint32_t* result, size_t value) {
  if (result == nullptr) {
    return kFailure;
  }
  *result = static_cast<uint32_t>(value);
  return 0;
}

int32_t AnswerCount(uint32_t type, Ports ServiceOnuType::*ports, uint32_t* result) {
  const ServiceOnuType* onu = Find(type);
  return onu == nullptr ? kFailure : Answer(result, (onu->*ports).size());
}

int32_t AnswerPort(uint32_t type, Ports ServiceOnuType::*ports, uint32_t port, uint32_t* result) {
  const ServiceOnuType* onu = Find(type);
  if (onu == nullptr || port == 0 || port > (onu->*ports).size()) {
    return kFailure;
  }
  return Answer(result, (onu->*ports)[port - 1]);
}

}  // namespace

extern "C" {

int32_t cs_get_onu_pon_num_by_type(uint32_t type, uint32_t* result) {
  return AnswerCount(type, &ServiceOnuType::pon_ports, result);
}

int32_t cs_get_onu_pon_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  return AnswerPort(type, &ServiceOnuType::pon_ports, port, result);
}

int32_t cs_get_onu_lan_port_num_by_type(uint32_t type, uint32_t* result) {
  return AnswerCount(type, &ServiceOnuType::lan_ports, result);
}

int32_t cs_get_onu_lan_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  return AnswerPort(type, &ServiceOnuType::lan_ports, port, result);
}

int32_t cs_get_onu_pots_port_num_by_type(uint32_t type, uint32_t* result) {
  return AnswerCount(type, &ServiceOnuType::pots_ports, result);
}

int32_t cs_get_onu_pots_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  return AnswerPort(type, &ServiceOnuType::pots_ports, port, result);
}

int32_t cs_get_onu_special_port_num_by_type(uint32_t type, uint32_t portType, uint32_t* result) {
  const ServiceOnuType* onu = Find(type);
  if (onu == nullptr) {
    return kFailure;
  }
  const Ports& ports = onu->special_ports;
  return Answer(result, static_cast<size_t>(std::count(ports.begin(), ports.end(), portType)));
}

int32_t cs_get_onu_special_port_amount(uint32_t type, uint32_t* result) {
  return AnswerCount(type, &ServiceOnuType::special_ports, result);
}

int32_t cs_get_onu_special_port_type_by_port_no(uint32_t type, uint32_t port, uint32_t* result) {
  return AnswerPort(type, &ServiceOnuType::special_ports, port, result);
}

int32_t cs_get_onu_special_port_type_list(uint32_t type, uint32_t* array, uint32_t arrayAmount,
                                          uint32_t* amount) {
  const ServiceOnuType* onu = Find(type);
  if (onu == nullptr || array == nullptr || amount == nullptr) {
    return kFailure;
  }
  uint32_t written = 0;
  for (const uint32_t port_type : onu->special_ports) {
    const bool seen = std::find(array, array + written, port_type) != array + written;
    if (!seen && written < arrayAmount) {
      array[written++] = port_type;
    }
  }
  *amount = written;
  return 0;
}

int32_t cs_get_onu_name_by_type(uint32_t type, char* name) {
  const ServiceOnuType* onu = Find(type);
  if (onu == nullptr || name == nullptr) {
    return kFailure;
  }
  memcpy(name, onu->name.c_str(), onu->name.size() + 1);
  return 0;
}

int32_t cs_get_onu_type_by_name(const char* name, uint32_t* result) {
  if (name == nullptr) {
    return kFailure;
  }
  for (const ServiceOnuType& onu : sysctx::TheEquipment().onu_types) {
    if (onu.name == name) {
      return Answer(result, onu.type);
    }
  }
  return kFailure;
}

int32_t cs_is_onu_supported_by_type(uint32_t type, uint32_t* result) {
  return Find(type) == nullptr ? kFailure : Answer(result, 1);
}

int32_t cs_get_supported_onu_max_lan_num(uint32_t* result) {
  return Answer(result, sysctx::TheEquipment().max_lan_ports);
}

}  // extern "C"
