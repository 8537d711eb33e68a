// The ports of a board or of an ONU: numbered keys of its section that name their
// types, of which each port gets a copy of its own.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "common/table_queries.h"

namespace sys_context {

// One kind of ports: where it is kept, in the file and in its owner's record, where
// its types are, and how its reader words its failures.
template <typename Owner, typename Port>
struct PortList {
  CountKey count_key;
  const char* port_key;  // the number follows
  uint32_t Owner::*count;
  Port** Owner::*ports;
  FindName find_type;
  int32_t (*copy_type)(const char* name, Port** port);
  uint32_t last_type_index;

  // An owner without ports.
  int32_t no_ports_code = kOk;
  std::optional<Message<uint32_t>> no_ports = {};
  bool no_ports_clear_array = false;

  // A port that cannot be had.
  int32_t port_failed_code = kPortNotLoaded;
  uint32_t Owner::*count_cleared = count;

  Message<uint32_t, uint32_t, uint32_t> null_argument;
  Message<int32_t> negative_start;
  KeyMessage key_unreadable;
  Message<uint32_t> no_memory;
  Message<int32_t, const char*, uint32_t> lookup_failed;
  Message<const char*, uint32_t> not_supported;
  Message<const char*, uint32_t> above_last_index;
  Message<const char*> copy_failed;
};

template <typename Owner, typename Port>
int32_t ReadPortCount(const PortList<Owner, Port>& list, const Source& source, const char* section,
                      uint32_t& count) {
  Value value;
  if (ReadKey(source, section, list.count_key.key, value, list.key_unreadable) != kOk) {
    return kKeyUnreadable;
  }
  return ParseCount(list.count_key, value, count);
}

// A copy of the type that the key names, or null.
template <typename Owner, typename Port>
Port* ReadPort(const PortList<Owner, Port>& list, const Source& source, const char* section,
               const char* key) {
  Value type;
  if (ReadKey(source, section, key, type, list.key_unreadable) != kOk) {
    return nullptr;
  }
  uint32_t is_supported = 0;
  uint32_t index = 0;
  if (const int32_t code = list.find_type(type.text, &is_supported, &index); code != kOk) {
    Report(Gate::kAlways, list.lookup_failed, code, key, index);
    return nullptr;
  }
  if (is_supported == 0) {
    Report(Gate::kAlways, list.not_supported, key, is_supported);
    return nullptr;
  }
  if (index > list.last_type_index) {
    Report(Gate::kAlways, list.above_last_index, key, index);
    return nullptr;
  }
  Port* port = nullptr;
  if (list.copy_type(type.text, &port) != kOk) {
    Report(Gate::kAlways, list.copy_failed, key);
    return nullptr;
  }
  return port;
}

// Reads the ports into the array; if one cannot be had, none stays.
template <typename Owner, typename Port>
int32_t ReadPorts(const PortList<Owner, Port>& list, const Source& source, const char* section,
                  uint32_t count, Port** ports) {
  for (uint32_t i = 0; i < count; ++i) {
    const NumberedKey key(list.port_key, i + 1);
    ports[i] = ReadPort(list, source, section, key.text);
    if (ports[i] == nullptr) {
      std::for_each(ports, ports + i, std::free);
      return list.port_failed_code;
    }
  }
  return kOk;
}

template <typename Owner, typename Port>
int32_t LeaveWithoutPorts(const PortList<Owner, Port>& list, Owner& owner) {
  owner.*list.count = 0;
  if (list.no_ports) {
    Report(Gate::kAlways, *list.no_ports, 0);
  }
  if (list.no_ports_clear_array) {
    owner.*list.ports = nullptr;
  }
  return list.no_ports_code;
}

template <typename Owner, typename Port>
int32_t AddPorts(const PortList<Owner, Port>& list, const char* file, const char* section,
                 int32_t start, Owner* owner) {
  if (file == nullptr || section == nullptr || owner == nullptr) {
    Report(Gate::kAlways, list.null_argument, LowBits(file), LowBits(section), LowBits(owner));
    return kNullArgument;
  }
  if (start < 0) {
    Report(Gate::kAlways, list.negative_start, start);
    return kKeyUnreadable;
  }
  const Source source(file, start);
  uint32_t count = 0;
  if (const int32_t code = ReadPortCount(list, source, section, count); code != kOk) {
    owner->*list.count = 0;
    return code;
  }
  if (count == 0) {
    return LeaveWithoutPorts(list, *owner);
  }
  owner->*list.ports = nullptr;  // an array that was there is forgotten, whatever comes
  auto ports = NewArray<Port*>(count);
  if (ports == nullptr) {
    Report(Gate::kAlways, list.no_memory, LowBits(ports.get()));
    owner->*list.count = 0;
    return kNoMemory;
  }
  if (const int32_t code = ReadPorts(list, source, section, count, ports.get()); code != kOk) {
    owner->*list.count_cleared = 0;
    return code;
  }
  owner->*list.ports = ports.release();
  owner->*list.count = count;
  return kOk;
}

// Releases a list of ports.
// kept as is: of a full list the ports themselves are not released.
template <typename Port>
void FreePorts(Port** ports, uint32_t count, uint32_t limit) {
  if (ports == nullptr) {
    return;
  }
  if (count < limit) {
    std::for_each(ports, ports + count, std::free);
  }
  std::free(ports);
}

}  // namespace sys_context
