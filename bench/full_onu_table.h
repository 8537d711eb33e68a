// A table of as many ONU types as there may be.
#pragma once

#include <cstdint>

#include "sys_context/onu.h"

namespace bench {

// The types behind those of the sample: number n of the table is this type. Its name is
// "KT-FULL-" and n, its ports are those of a type of the sample.
constexpr uint32_t FullOnuType(uint32_t number) {
  return 7000 + number;
}

// Puts the full table in the place of the loaded one, for as long as it lives.
class FullOnuTable {
 public:
  FullOnuTable();
  ~FullOnuTable();
  FullOnuTable(const FullOnuTable&) = delete;
  FullOnuTable& operator=(const FullOnuTable&) = delete;

 private:
  SupportedOnuType loaded_;
};

}  // namespace bench
