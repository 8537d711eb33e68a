// What the queries do with a table: records behind a count and an array of
// pointers, in which places may be empty.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "common/names.h"

namespace sys_context {

// The first record that fulfils `wanted`, or null; empty places are passed over.
template <typename Record, typename Wanted>
Record* FindRecord(uint32_t count, Record* const* records, Wanted wanted) {
  Record* const* const end = records + count;
  Record* const* const found = std::find_if(
      records, end, [&](Record* record) { return record != nullptr && wanted(*record); });
  return found == end ? nullptr : *found;
}

// What a query checks before it looks into a table, and how it words a refusal.
struct TableCheck {
  uint32_t limit;  // of records
  int32_t above_limit_code;
  int32_t no_array_code;

  PartialMessage<uint32_t, uint32_t> above_limit;  // the count, the limit
  Message<uint32_t> no_array;
};

[[nodiscard]] inline int32_t CheckTable(const TableCheck& check, uint32_t count,
                                        const void* records) {
  if (count > check.limit) {
    Report(Gate::kDebug, check.above_limit, count, check.limit);
    return check.above_limit_code;
  }
  if (records == nullptr) {
    Report(Gate::kDebug, check.no_array, LowBits(records));
    return check.no_array_code;
  }
  return kOk;
}

// Can the record's field hold its name?
template <typename Record>
bool NameFits(const Record& record) {
  return record.ulNameLen <= sizeof record.acName;
}

// Has the record this type, and a name that its field can hold?
template <typename Record>
bool HasTypeAndName(const Record& record, uint32_t type) {
  return record.ulType == type && NameFits(record);
}

// A query for the place of a name in a table.
struct NameQuery {
  TableCheck table;

  Message<uint32_t, uint32_t, uint32_t> null_argument;  // the name and both outputs
  Message<uint32_t> name_too_long;                      // its length
  Message<uint32_t, uint32_t> corrupt_length;           // a record's name length, its place
};

// Asks it. Stores 1 and the place of the first record of that name; 0 and 0 when
// there is none and after a failure other than a null argument.
template <typename Record>
int32_t AskForName(const NameQuery& query, uint32_t count, Record* const* records, const char* name,
                   uint32_t* is_supported, uint32_t* index) {
  if (name == nullptr || is_supported == nullptr || index == nullptr) {
    Report(Gate::kDebug, query.null_argument, LowBits(name), LowBits(is_supported), LowBits(index));
    return kNullArgument;
  }
  *is_supported = 0;
  *index = 0;
  constexpr size_t kFieldSize = sizeof(Record::acName);
  if (const size_t length = std::strlen(name); length + 1 > kFieldSize) {
    Report(Gate::kDebug, query.name_too_long, static_cast<uint32_t>(length));
    return kTextTooLong;
  }
  if (const int32_t code = CheckTable(query.table, count, records); code != kOk) {
    return code;
  }
  for (uint32_t i = 0; i < count; ++i) {
    const Record* const record = records[i];
    if (record == nullptr) {
      continue;
    }
    if (!NameFits(*record)) {
      Report(Gate::kDebug, query.corrupt_length, record->ulNameLen, i);
      return kTextTooLong;
    }
    if (NameEquals(name, record->acName, record->ulNameLen)) {
      *is_supported = 1;
      *index = i;
      return kOk;
    }
  }
  return kNoSuchName;
}

// A request for a copy of the record of a name.
struct CopyQuery {
  Gate gate;
  // kept as is: one place more than the tables have.
  uint32_t last_index;
  int32_t above_last_index_code;
  bool empty_place_clears_output = true;

  Message<uint32_t, uint32_t> null_argument;  // the name, the output
  Message<uint32_t> name_too_long;            // its length
  Message<int32_t, const char*, uint32_t> lookup_failed;
  Message<const char*, uint32_t> not_supported;
  Message<const char*, uint32_t> above_last_index;
  Message<uint32_t, uint32_t> no_memory;  // the copy, the index
  Message<uint32_t, uint32_t> empty_place;
};

// Looks up the place of a name with a query as AskForName answers it. The library's own
// never succeed with "not supported" or a place that the table does not have; one that a
// host puts in front of them may, which is what is checked after them.
using FindName = int32_t (*)(const char* name, uint32_t* is_supported, uint32_t* index);

template <size_t field_size>
int32_t FindToCopy(const CopyQuery& query, FindName find, const char* name, uint32_t& index) {
  if (const size_t length = std::strlen(name); length + 1 > field_size) {
    Report(query.gate, query.name_too_long, static_cast<uint32_t>(length));
    return kTextTooLong;
  }
  uint32_t is_supported = 0;
  if (const int32_t code = find(name, &is_supported, &index); code != kOk) {
    Report(query.gate, query.lookup_failed, code, name, index);
    return code;
  }
  if (is_supported == 0) {
    Report(query.gate, query.not_supported, name, is_supported);
    return kNoSuchName;
  }
  if (index > query.last_index) {
    Report(query.gate, query.above_last_index, name, index);
    return query.above_last_index_code;
  }
  return kOk;
}

// Answers it with a record of the caller's own. After a failure other than a null
// argument the output is null, unless the query keeps it at an empty place.
template <typename Record>
int32_t CopyByName(const CopyQuery& query, FindName find, Record* const* records, const char* name,
                   Record** output) {
  if (name == nullptr || output == nullptr) {
    Report(query.gate, query.null_argument, LowBits(name), LowBits(output));
    return kNullArgument;
  }
  uint32_t index = 0;
  if (const int32_t code = FindToCopy<sizeof(Record::acName)>(query, find, name, index);
      code != kOk) {
    *output = nullptr;
    return code;
  }
  auto copy = NewRecord<Record>();
  if (copy == nullptr) {
    Report(query.gate, query.no_memory, LowBits(copy.get()), index);
    *output = nullptr;
    return kNoMemory;
  }
  const Record* const saved = records[index];
  if (saved == nullptr) {
    Report(query.gate, query.empty_place, LowBits(saved), index);
    if (query.empty_place_clears_output) {
      *output = nullptr;
    }
    return kEmptyPlace;
  }
  *copy = *saved;
  std::fill(copy->acName + std::min<size_t>(copy->ulNameLen, sizeof copy->acName),
            std::end(copy->acName), '\0');
  *output = copy.release();
  return kOk;
}

}  // namespace sys_context
