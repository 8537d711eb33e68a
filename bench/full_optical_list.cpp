// A full list of optical modules; see the header.
#include "bench/full_optical_list.h"

#include <algorithm>
#include <iterator>

namespace bench {
namespace {

struct Records {
  OptModuleInfo records[MAX_OPTMODULE_INFO_NUM];
  OptModuleInfo* places[MAX_OPTMODULE_INFO_NUM];
  OptModuleThreshold threshold;
  OptModuleThreshold* paths[MAX_OPTMODULE_PATH_NUM];
};

void Fill(Records& full) {
  full.threshold = {.inup = -700, .indn = -2800, .outup = 500, .outdn = 100};
  std::fill(std::begin(full.paths), std::end(full.paths), &full.threshold);
  for (uint32_t i = 0; i < MAX_OPTMODULE_INFO_NUM; ++i) {
    const bool is_last = i + 1 == MAX_OPTMODULE_INFO_NUM;
    full.records[i] = {
        .kind = OPTMODULE_KIND_OLT_PON,
        .porttype = kFullListPortType,
        .phytype = FullListPhyType(i + 1),
        .pathnum =
            static_cast<uint16_t>(is_last ? MAX_OPTMODULE_PATH_NUM : MAX_OPTMODULE_PATH_NUM - 1),
        .pathinfo = full.paths,
    };
    full.places[i] = &full.records[i];
  }
}

}  // namespace

FullOpticalList::FullOpticalList() : loaded_(g_optmdule_infolist) {
  static Records full;
  if (full.places[0] == nullptr) {
    Fill(full);
  }
  g_optmdule_infolist = {.listnum = MAX_OPTMODULE_INFO_NUM, .objlist = full.places};
}

FullOpticalList::~FullOpticalList() {
  g_optmdule_infolist = loaded_;
}

}  // namespace bench
