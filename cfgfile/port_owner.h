// The record of a board or of an ONU type: a type, a name, and kinds of ports.
#pragma once

#include <memory>

#include "cfgfile/named_sections.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"

namespace sys_context {

// Reads one kind of ports into the record; port_list.h is how.
template <typename Owner>
struct PortAdder {
  int32_t (*add)(const char* file, const char* section, int32_t start, Owner* owner);
  Message<const char*> failure;  // the section
};

// How such a record is read and released, and how its reader words its failures.
template <typename Owner, size_t adder_count>
struct OwnerReader {
  TypeAndName type_and_name;
  uint32_t Owner::*type;
  PortAdder<Owner> adders[adder_count];
  int32_t (*release)(Owner* owner);

  Message<uint32_t, uint32_t, uint32_t> null_argument;
  Message<int32_t> negative_start;
};

template <typename Owner, size_t adder_count>
int32_t AddAllPorts(const OwnerReader<Owner, adder_count>& reader, const Source& source,
                    const char* section, Owner& owner) {
  for (const PortAdder<Owner>& adder : reader.adders) {
    if (const int32_t code = adder.add(source.file(), section, source.start(), &owner);
        code != kOk) {
      Report(Gate::kAlways, adder.failure, section);
      return code;
    }
  }
  return kOk;
}

template <typename Owner, size_t adder_count>
int32_t ReadOwner(const OwnerReader<Owner, adder_count>& reader, const char* file,
                  const char* section, int32_t start, Owner** output) {
  if (file == nullptr || section == nullptr || output == nullptr) {
    Report(Gate::kAlways, reader.null_argument, LowBits(file), LowBits(section), LowBits(output));
    return kNullArgument;
  }
  if (start < 0) {
    Report(Gate::kAlways, reader.negative_start, start);
    return kKeyUnreadable;
  }
  *output = nullptr;
  const Source source(file, start);
  Owned<Owner> record;
  if (const int32_t code =
          ReadTypeAndName(reader.type_and_name, source, section, reader.type, record);
      code != kOk) {
    return code;
  }
  Owner* const owner = record.release();  // with ports, it is released another way
  if (const int32_t code = AddAllPorts(reader, source, section, *owner); code != kOk) {
    reader.release(owner);
    return code;
  }
  *output = owner;
  return kOk;
}

}  // namespace sys_context
