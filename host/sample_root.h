// The sample chassis that is loaded when no root is chosen.
#pragma once

#include <string>

namespace sysctx {

// The folder of the large sample: of the build tree when the program lies there, else of
// the installation that it belongs to.
std::string SampleRoot();

}  // namespace sysctx
