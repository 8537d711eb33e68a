// The flash store: files below the root. And the decompression of what is stored
// there.
#include <fcntl.h>
#include <sys/stat.h>
#include <zlib.h>

#include <climits>
#include <cstdint>

#include "host/descriptor.h"
#include "host/root.h"
#include "sys_context/platform.h"

namespace {

constexpr int32_t kFailure = -1;

// A file of the flash store, open for reading.
class FlashFile {
 public:
  explicit FlashFile(const char* name) {
    char buffer[PATH_MAX];
    if (const char* path = sysctx::MapFlashName(name, buffer, sizeof buffer)) {
      // openat, since our own open() would map the name once more, were the root itself
      // below /mnt/work.
      descriptor_ = sysctx::Descriptor(openat(AT_FDCWD, path, sysctx::kReading));
    }
  }

  // -1 for what is no file of a size that the interface can tell.
  int32_t Size() const {
    struct stat status = {};
    if (fstat(descriptor_.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
      return kFailure;
    }
    return status.st_size > INT32_MAX ? kFailure : static_cast<int32_t>(status.st_size);
  }

  bool Read(char* buffer, size_t size) const {
    return sysctx::ReadUpTo(descriptor_.get(), buffer, size) == static_cast<ssize_t>(size);
  }

 private:
  sysctx::Descriptor descriptor_;
};

}  // namespace

extern "C" {

int32_t flash_sizeof(const char* name) {
  return name == nullptr ? kFailure : FlashFile(name).Size();
}

// A file that does not fit the buffer is refused: half of it would be worse.
int32_t flash_read(const char* name, char* buffer, int32_t* length) {
  if (name == nullptr || buffer == nullptr || length == nullptr) {
    return kFailure;
  }
  const FlashFile file(name);
  const int32_t size = file.Size();
  if (size < 0 || size > *length || !file.Read(buffer, static_cast<size_t>(size))) {
    return kFailure;
  }
  *length = size;
  return 0;
}

int32_t zUnCompress(uint8_t* dst, uint32_t* dstLength, const uint8_t* src, uint32_t srcLength) {
  if (dst == nullptr || dstLength == nullptr || src == nullptr) {
    return Z_STREAM_ERROR;
  }
  uLongf produced = *dstLength;
  const int result = uncompress(dst, &produced, src, srcLength);
  if (result != Z_OK) {
    return result;
  }
  *dstLength = static_cast<uint32_t>(produced);
  return 0;
}

}  // extern "C"
