// Tables that a definition file describes by a list section: it gives the
// number of entries and, in numbered keys, the name of each entry's own
// section. The records land in a dense array; an entry that cannot be read is
// reported and left out.
#pragma once

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/numbers.h"

namespace sys_context {

// One such list, and how its loader words its failures.
struct ListSection {
  const char* section;
  const char* count_key;
  const char* entry_key;  // the number follows
  uint32_t limit;
  int32_t above_limit_code;

  Message<uint32_t> null_file;
  KeyMessage key_unreadable;
  Message<uint32_t, uint32_t> above_limit;  // the number announced, the limit
  Message<uint32_t> no_memory;
  Message<int32_t, const char*> record_failed;  // its code, its section
};

// Reads how many entries the list announces; they are within the limit on kOk.
[[nodiscard]] int32_t ReadAnnounced(const ListSection& list, const char* file, uint32_t& announced);

// Loads the list of `file` into a table's `count` and `records`. `read_record`
// reads one record from its section.
template <typename Record>
[[nodiscard]] int32_t LoadNamedSections(
    const ListSection& list, const char* file, uint32_t& count, Record**& records,
    int32_t (*read_record)(const char* file, const char* section, Record** record)) {
  count = 0;
  uint32_t announced = 0;
  if (const int32_t code = ReadAnnounced(list, file, announced); code != kOk) {
    return code;
  }
  records = nullptr;
  if (announced == 0) {
    return kOk;
  }
  records = NewArray<Record*>(announced).release();
  if (records == nullptr) {
    Report(Gate::kAlways, list.no_memory, LowBits(records));
    return kNoMemory;
  }
  uint32_t stored = 0;
  for (uint32_t number = 1; number <= announced; ++number) {
    Value section;
    const NumberedKey key(list.entry_key, number);
    if (ReadKey(file, list.section, key.text, section, list.key_unreadable) != kOk) {
      continue;
    }
    Record* record = nullptr;
    if (const int32_t code = read_record(file, section.text, &record); code != kOk) {
      Report(Gate::kAlways, list.record_failed, code, section.text);
      continue;
    }
    records[stored++] = record;
  }
  count = stored;
  return kOk;
}

}  // namespace sys_context
