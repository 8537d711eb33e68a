// A load of ONU types.
#pragma once

#include "bench/onu_file.h"

namespace bench {

inline constexpr size_t kOnuTypes[] = {50, 100, 200};  // 200 is the limit

// What is loaded. The port types must be loaded, for which LoadOnuPortTypes is there.
struct OnuLoad {
  explicit OnuLoad(size_t number_of_types)
      : types(number_of_types), content(WriteOnuTypes(number_of_types)), file(content.text) {}

  size_t types;
  OnuFile content;
  TemporaryFile file;
};

bool LoadOnuPortTypes(const OnuLoad& load);

// Loads the ONU types and releases them.
bool LoadOnuTypes(const OnuLoad& load);

}  // namespace bench
