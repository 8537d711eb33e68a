// The four catalogs of ONU port types as their users see them: their functions, their
// part of a definition file, and what they say, each in its own words.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/port_type_tables.h"
#include "support/records.h"
#include "support/rows.h"
#include "support/tables.h"
#include "support/text.h"
#include "sys_context/onu.h"

namespace test {

using PortType = OnuPortTypeInformation;

struct PortTypeFamily {
  const char* name;

  uint32_t* count;
  PortType*** types;
  uint32_t PortType::*type;  // by the catalog's own name

  int32_t (*read_one)(const char* file, const char* section, PortType** type);
  int32_t (*read_all)(const char* file);
  int32_t (*by_name)(const char* name, uint32_t* is_supported, uint32_t* index);
  int32_t (*by_type)(uint32_t type, uint32_t* is_supported, uint32_t* index);
  int32_t (*copy)(const char* name, PortType** copy);

  // In a definition file.
  const char* section;
  const char* number_key;
  const char* entry_key;  // the number follows

  // The reader of one type. {file}, {section} and {record} are its arguments; {code} is
  // the lookup's, {length} the name's with its terminator.
  const char* read_null;
  const char* type_unreadable;
  const char* no_record;
  const char* name_unreadable;
  const char* name_too_long;

  // The loader. {n} is the number announced or the entry's, {section} the entry's.
  const char* no_path;
  const char* number_unreadable;
  const char* too_many;
  const char* none_announced;
  const char* no_array;
  const char* entry_unreadable;
  const char* entry_failed;

  // The lookup by name. {n} is the length of the name, the count, or a record's length;
  // {place} is the record's.
  const char* by_name_null;  // {name}, {out0}, {out1}
  const char* by_name_too_long;
  const char* by_name_count;
  const char* by_name_array;
  const char* by_name_length;

  // The lookup by type.
  int32_t unknown_type;
  bool unknown_clears_index;
  const char* by_type_null;  // {out0}, {out1}
  const char* by_type_count;
  const char* by_type_array;
  const char* by_type_length;  // null: names are not looked at

  // The copy by name.
  bool copies_aloud;      // or with the debug switch only
  const char* copy_null;  // {name}, {out0}
  const char* copy_too_long;
  const char* copy_lookup;  // {code}, {name}, {n}
  const char* copy_unsupported;
  const char* copy_index;
  const char* copy_no_memory;
  const char* copy_empty_place;

  friend std::ostream& operator<<(std::ostream& out, const PortTypeFamily& family) {
    return out << family.name;
  }
};

extern const PortTypeFamily kPortTypeFamilies[4];

// ---- In a definition file ----------------------------------------------------

inline std::string OnuPortTypeSection(const std::string& section, const std::string& type,
                                      const std::string& name) {
  return "[" + section + "]\nType=" + type + "\nName=" + name + "\n";
}

// In the texts of the rows, for each catalog: "{List}" is its list section, "{Num}" the
// key of the number and "{Entry}" that of the entries.
inline std::string FileOf(const PortTypeFamily& family, const std::string& text) {
  return With(With(With(text, "{List}", family.section), "{Num}", family.number_key), "{Entry}",
              family.entry_key);
}

// The head of a list that announces `number` port types.
inline std::string AnnounceOnuPortTypes(const std::string& number) {
  return "[{List}]\n{Num}=" + number + "\n";
}

// A list of the sections S1, S2 and S3, and behind it `sections`.
inline std::string ThreeOnuPortTypes(const std::string& sections) {
  return AnnounceOnuPortTypes("3") + "{Entry}1=S1\n{Entry}2=S2\n{Entry}3=S3\n" + sections;
}

// ---- In the tables -----------------------------------------------------------

// Behind the name are traces that no copy may take over.
inline PortType OnuPortTypeRecord(uint32_t type, const std::string& name) {
  PortType record = {};
  record.ulPortType = type;
  StoreName(name, record.acName, record.ulNameLen);
  std::fill(record.acName + record.ulNameLen, std::end(record.acName), '#');
  return record;
}

// Fills the table of one catalog; the others hold OTHER, type 1000, which must not be found.
class OnuPortTypesTest : public LibraryTest {
 protected:
  void TearDown() override {
    for (const PortTypeFamily& family : kPortTypeFamilies) {
      *family.count = 0;  // the records are this fixture's
      *family.types = nullptr;
    }
    LibraryTest::TearDown();
  }

  void Put(const PortTypeFamily& family, PortTypeTable types) {
    for (const PortTypeFamily& other : kPortTypeFamilies) {
      *other.count = 1;
      *other.types = &other_slot_;
    }
    placed_.Put(types, Eight(), OnuPortTypeRecord, *family.count, *family.types);
  }

  Console console_;
  PlacedPortTypes<PortType> placed_;

 private:
  static std::vector<PortType> Eight() {
    return {OnuPortTypeRecord(1, "GPON"),
            OnuPortTypeRecord(2, "XGPON"),
            OnuPortTypeRecord(7, "gpon"),
            OnuPortTypeRecord(1, "GPON"),
            OnuPortTypeRecord(4, std::string(59, 'p')),
            OnuPortTypeRecord(0xffffffff, ""),
            OnuPortTypeRecord(0, "ZERO"),
            OnuPortTypeRecord(5, "WIDE")};
  }

  PortType other_ = OnuPortTypeRecord(1000, "OTHER");
  PortType* other_slot_ = &other_;
};

}  // namespace test
