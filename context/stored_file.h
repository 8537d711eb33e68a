// The device definition file as it is kept in flash, on its way to text.
#pragma once

#include <cstdint>

namespace sys_context {

// Its name in flash is that of the work file.
inline constexpr char kDeviceDefinitionFile[] = "/mnt/work/device_definition.ini";

// Bytes of a buffer for the text.
constexpr uint32_t kStoredTextCapacity = 3072000;

// What became of fetching it.
struct FetchedFile {
  enum class Outcome { kDone, kTooLarge, kNotRead, kNotExpanded };

  Outcome outcome = Outcome::kDone;
  int32_t code = 0;          // of the step that failed
  int32_t image_length = 0;  // of the file as it is stored
  uint32_t text_length = 0;
};

// Reads the stored file into `image`, which has `image_capacity` bytes, at most
// kStoredTextCapacity; and expands it into `text`, which has kStoredTextCapacity.
[[nodiscard]] FetchedFile FetchStoredFile(char* image, uint32_t image_capacity, uint8_t* text);

}  // namespace sys_context
