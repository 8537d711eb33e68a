// The stored definition file, expanded into the memory file.
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "context/stored_file.h"
#include "sys_context/context.h"

namespace sys_context {
namespace {

constexpr uint32_t kMemoryFileImageCapacity = 1048576;

// Fetches the text for the memory file; a failure is reported.
FetchedFile FetchForMemoryFile(char* image, uint8_t* text) {
  const FetchedFile file = FetchStoredFile(image, kMemoryFileImageCapacity, text);
  using enum FetchedFile::Outcome;
  switch (file.outcome) {
    case kTooLarge:
      // kept as is: it is not the size of an FTP buffer.
      Console(
          "\r\nddReadContextFileToBuf err! memfile_length = %d, FTP_CONTEXT_BUF_SIZE = %d, FLASH_CONTEXT_FILE_KXCB_NAME = %s",
          file.image_length, kMemoryFileImageCapacity, kDeviceDefinitionFile);
      break;
    case kNotRead:
      std::puts("Read flash failed!\r");
      break;
    case kNotExpanded:
      std::puts("unpack the compress file failed !\r");
      break;
    case kDone:
      break;
  }
  return file;
}

// The descriptor of the memory file. What the writing leaves open is closed at the end.
class Descriptor {
 public:
  Descriptor() = default;
  ~Descriptor() {
    if (number >= 0) {
      close(number);
    }
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int number = -1;
};

// kept as is: only a failing close is told to the caller, and it is tried twice; one
// message names /sdram, whatever the path, and one shows a line of code.
int32_t WriteMemoryFile(const uint8_t* text, uint32_t length, Descriptor& file) {
  constexpr mode_t kNoPermissions = 0;
  file.number = open(strDeviceDefFilePath, O_RDWR | O_CREAT | O_TRUNC, kNoPermissions);
  if (file.number < 0) {
    Console("Cannot open memory device. fd = %d\r\n", file.number);
    return kOk;
  }
  if (write(file.number, text, length) < static_cast<ssize_t>(length)) {
    Console("write %d bytes to /sdram failed!\r\n", length);
    return kOk;
  }
  if (close(file.number) != 0) {
    Console("iResult = close (fd);, iResult = %d, fd = %d", kNotClosed, file.number);
    return kNotClosed;
  }
  file.number = -1;
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddReadContextFileToBuf() {
  using namespace sys_context;
  // kept as is: what is not flash, expansion or close is told on the console only.
  Descriptor memory_file;  // goes behind the buffers
  const auto text = NewArray<uint8_t>(kStoredTextCapacity);
  if (text == nullptr) {
    std::puts("Not enough memory for ftp buffer.\r");
    return kOk;
  }
  const auto image = NewArray<char>(kMemoryFileImageCapacity);
  if (image == nullptr) {
    std::puts("Not enough memory for ftp compress buffer.\r");
    return kOk;
  }
  const FetchedFile file = FetchForMemoryFile(image.get(), text.get());
  if (file.outcome != FetchedFile::Outcome::kDone) {
    return file.code;
  }
  return WriteMemoryFile(text.get(), file.text_length, memory_file);
}
