// Fetching the stored definition file, plain or compressed.
#include "context/stored_file.h"

#include <cstring>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/context.h"
#include "sys_context/platform.h"

namespace sys_context {
namespace {

// The compressed text follows the mark.
constexpr char kCompressedMark[] = "zip";
constexpr uint32_t kMarkLength = sizeof kCompressedMark - 1;

bool IsCompressed(const uint8_t* image, uint32_t length) {
  return length >= kMarkLength && std::memcmp(image, kCompressedMark, kMarkLength) == 0;
}

}  // namespace

FetchedFile FetchStoredFile(char* image, uint32_t image_capacity, uint8_t* text) {
  using enum FetchedFile::Outcome;
  FetchedFile file;
  // A negative length is too large as well.
  const auto is_too_large = [&] {
    return static_cast<uint32_t>(file.image_length) > image_capacity;
  };
  file.image_length = flash_sizeof(kDeviceDefinitionFile);
  if (is_too_large()) {
    file.outcome = kTooLarge;
    return file;
  }
  file.code = flash_read(kDeviceDefinitionFile, image, &file.image_length);
  if (file.code != kOk) {
    file.outcome = kNotRead;
    return file;
  }
  if (is_too_large()) {  // the file has grown; a plain text would not fit
    file.outcome = kTooLarge;
    return file;
  }
  file.text_length = kStoredTextCapacity;
  file.code =
      read_compress_context_file(reinterpret_cast<const uint8_t*>(image),
                                 static_cast<uint32_t>(file.image_length), text, &file.text_length);
  file.outcome = file.code == kOk ? kDone : kNotExpanded;
  return file;
}

}  // namespace sys_context

int32_t read_compress_context_file(const uint8_t* image, uint32_t length, uint8_t* destination,
                                   uint32_t* destinationLength) {
  using namespace sys_context;
  if (image == nullptr || destination == nullptr || destinationLength == nullptr) {
    DebugConsole("\r\n%s err! input is null.", "read_compress_context_file");
    return kNullArgument;
  }
  if (IsCompressed(image, length)) {
    return zUnCompress(destination, destinationLength, image + kMarkLength, length - kMarkLength);
  }
  // kept as is: the capacity is not looked at.
  std::memcpy(destination, image, length);
  *destinationLength = length;
  return kOk;
}
