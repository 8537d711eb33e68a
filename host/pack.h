// "sysctx pack": the compressed image of a definition file, as the flash store keeps
// it.
#pragma once

#include <cstddef>
#include <string>

namespace sysctx {

struct Packed {
  size_t text_size = 0;
  size_t image_size = 0;
};

// Makes the image of a text. The image's file is replaced as a whole or, when anything
// fails, left as it is. Throws std::runtime_error.
Packed Pack(const std::string& text_file, const std::string& image_file);

// One line for what was packed.
std::string DescribePacked(const Packed& packed, const std::string& text_file,
                           const std::string& image_file);

// A line for an image that a card cannot use for everything, else empty.
std::string DescribeLimits(const Packed& packed);

}  // namespace sysctx
