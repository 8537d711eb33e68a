// The two definition files of a chassis.
#pragma once

#include <string_view>

namespace bench {

struct Definitions {
  const char* device;
  const char* optical;

  // ddInit opens them by paths of its own: the file that is meant by such a path, or else
  // the path.
  const char* Meant(const char* path) const {
    if (std::string_view(path) == "/mnt/work/device_definition.ini") {
      return device;
    }
    return std::string_view(path) == "/mnt/work/optmodule_definition.ini" ? optical : path;
  }
};

}  // namespace bench
