// Tables that a definition file describes by a list section: it gives the
// number of entries and, in numbered keys, the name of each entry's own
// section. The records land in a dense array; an entry that cannot be read is
// reported and left out.
#pragma once

#include <optional>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "common/numbers.h"

namespace sys_context {

// One such list, and how its loader words its failures.
struct ListSection {
  const char* section;
  CountKey count;
  const char* entry_key;               // the number follows
  bool no_memory_clears_count = true;  // of the table's records

  // Set: asked when the array has been made. A "no" ends the load as lack of memory does.
  bool (*may_load)() = nullptr;

  Message<uint32_t> null_file;
  KeyMessage key_unreadable;
  std::optional<KeyMessage> count_unreadable = {};   // null: as any other key
  std::optional<Message<uint32_t>> empty_list = {};  // the number announced, 0
  Message<uint32_t> no_memory;
  Message<int32_t, const char*> record_failed;  // its code, its section

  // Set: the entries' sections stand behind the list, in its order, so the search
  // for each begins where the one before was found. One that is not found there,
  // or has no "Type", ends the load.
  std::optional<KeyMessage> section_not_found = {};
  bool goes_by_order() const { return section_not_found.has_value(); }
};

// Reads how many entries the list announces; they are within the limit on kOk.
[[nodiscard]] int32_t ReadAnnounced(const ListSection& list, Source& source, uint32_t& announced);

// Moves `source` to the section of an entry of a list that goes by order.
[[nodiscard]] int32_t FindEntry(const ListSection& list, Source& source, const char* section);

// Loads the list of `file` into a table's `count` and `records`. On kOk there is
// an array unless no entry was announced.
template <typename Record>
[[nodiscard]] int32_t LoadNamedSections(
    const ListSection& list, const char* file, uint32_t& count, Record**& records,
    int32_t (*read_record)(const Source& source, const char* section, Record** record)) {
  Source source = list.goes_by_order() ? Source(file, 0) : Source(file);
  uint32_t announced = 0;
  if (const int32_t code = ReadAnnounced(list, source, announced); code != kOk) {
    count = 0;
    return code;
  }
  if (announced == 0) {
    count = 0;
    records = nullptr;
    return kOk;
  }
  auto array = NewArray<Record*>(announced);
  if (array != nullptr && list.may_load != nullptr && !list.may_load()) {
    array.reset();
  }
  records = array.release();
  if (records == nullptr) {
    Report(Gate::kAlways, list.no_memory, LowBits(records));
    if (list.no_memory_clears_count) {
      count = 0;
    }
    return kNoMemory;
  }
  const Source list_section = source;
  uint32_t stored = 0;
  for (uint32_t number = 1; number <= announced; ++number) {
    Value section;
    const NumberedKey key(list.entry_key, number);
    if (ReadKey(list_section, list.section, key.text, section, list.key_unreadable) != kOk) {
      continue;
    }
    if (const int32_t code = FindEntry(list, source, section.text); code != kOk) {
      // kept as is: the count stays as it was, though the array is new.
      return code;
    }
    Record* record = nullptr;
    if (const int32_t code = read_record(source, section.text, &record); code != kOk) {
      Report(Gate::kAlways, list.record_failed, code, section.text);
      continue;
    }
    records[stored++] = record;
  }
  count = stored;
  return kOk;
}

// How the reader of a record words its failures to read what most records begin
// with.
struct TypeAndName {
  KeyMessage type_unreadable;
  Message<uint32_t> no_memory;
  KeyMessage name_unreadable;
  Message<uint32_t> name_too_long;
};

// Makes a record and reads its type and name.
template <typename Record>
[[nodiscard]] int32_t ReadTypeAndName(const TypeAndName& texts, const Source& source,
                                      const char* section, uint32_t Record::*type,
                                      Owned<Record>& record) {
  Value value;
  if (ReadKey(source, section, "Type", value, texts.type_unreadable) != kOk) {
    return kKeyUnreadable;
  }
  record = NewRecord<Record>();
  if (record == nullptr) {
    Report(Gate::kAlways, texts.no_memory, LowBits(record.get()));
    return kNoMemory;
  }
  record.get()->*type = ParseUnsigned(value.text);
  return ReadName(source, section, record->acName, record->ulNameLen, texts.name_unreadable,
                  texts.name_too_long);
}

}  // namespace sys_context
