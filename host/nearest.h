// Names that somebody may have meant.
#pragma once

#include <string>
#include <vector>

namespace sysctx {

// Up to five of `names` that are like `word`, the likest first, all without regard
// to case: the one that is equal; else those that contain it; else those that it
// becomes by adding letters, or by changes to half of its letters or less.
std::vector<std::string> NearestNames(const std::string& word,
                                      const std::vector<std::string>& names);

}  // namespace sysctx
