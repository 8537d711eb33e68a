// A full table of ONU types; see the header.
#include "bench/full_onu_table.h"

#include <cstdio>

namespace bench {
namespace {

struct Records {
  OnuInformation records[MAX_ONU_TYPE_NUM];
  OnuInformation* places[MAX_ONU_TYPE_NUM];
};

Records Fill() {
  Records full = {};
  const SupportedOnuType& loaded = gstSupportedOnuType;
  for (uint32_t i = 0; i < MAX_ONU_TYPE_NUM; ++i) {
    OnuInformation& onu = full.records[i];
    onu = *loaded.pOnuTypeArray[i % loaded.ulSupportedOnuTypeNum];
    if (i >= loaded.ulSupportedOnuTypeNum) {
      onu.ulOnuType = FullOnuType(i + 1);
      onu.ulNameLen = 1 + static_cast<uint32_t>(
                              std::snprintf(onu.acName, sizeof onu.acName, "KT-FULL-%u", i + 1U));
    }
  }
  return full;
}

}  // namespace

FullOnuTable::FullOnuTable() : loaded_(gstSupportedOnuType) {
  static Records full = Fill();
  for (uint32_t i = 0; i < MAX_ONU_TYPE_NUM; ++i) {
    full.places[i] = &full.records[i];
  }
  gstSupportedOnuType.ulSupportedOnuTypeNum = MAX_ONU_TYPE_NUM;
  gstSupportedOnuType.pOnuTypeArray = full.places;
}

FullOnuTable::~FullOnuTable() {
  gstSupportedOnuType = loaded_;
}

}  // namespace bench
