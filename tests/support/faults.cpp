// Stand-ins for functions of the C library; see the header.
#include "support/faults.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace test {
namespace {

Faults* current = nullptr;

// Notes a block, with the watching switched off meanwhile: the notes allocate.
void* Note(void* block, size_t size) {
  if (Faults* const faults = std::exchange(current, nullptr); faults != nullptr) {
    if (block != nullptr) {
      faults->blocks[block] = size;
    }
    current = faults;
  }
  return block;
}

void Forget(void* block) {
  Faults* const faults = std::exchange(current, nullptr);
  if (faults == nullptr) {
    return;
  }
  if (const auto found = faults->blocks.find(block); found != faults->blocks.end()) {
    ++faults->frees;
    if (faults->on_free != nullptr) {
      faults->on_free(block, found->second);
    }
    faults->blocks.erase(found);
  }
  current = faults;
}

// A stream over bytes in memory, which reads and seeks as a plain file does.
struct MemoryFile {
  std::string_view bytes;
  size_t unreadable_from;
  size_t position;
};

ssize_t ReadMemory(void* cookie, char* buffer, size_t size) {
  MemoryFile& file = *static_cast<MemoryFile*>(cookie);
  if (file.position >= file.bytes.size()) {
    return 0;
  }
  if (file.position >= file.unreadable_from) {
    errno = EIO;
    return -1;
  }
  const size_t end = std::min(file.bytes.size(), file.unreadable_from);
  size = std::min(size, end - file.position);
  std::memcpy(buffer, file.bytes.data() + file.position, size);
  file.position += size;
  return static_cast<ssize_t>(size);
}

int SeekMemory(void* cookie, off64_t* offset, int origin) {
  MemoryFile& file = *static_cast<MemoryFile*>(cookie);
  const size_t bases[] = {0, file.position, file.bytes.size()};
  const off64_t position = static_cast<off64_t>(bases[origin]) + *offset;
  if (position < 0) {
    errno = EINVAL;
    return -1;
  }
  file.position = static_cast<size_t>(position);
  *offset = position;
  return 0;
}

int CloseMemory(void* cookie) {
  delete static_cast<MemoryFile*>(cookie);
  return 0;
}

FILE* OpenMemory(std::string_view bytes, size_t unreadable_from, const char* mode) {
  return fopencookie(new MemoryFile{bytes, unreadable_from, 0}, mode,
                     {ReadMemory, nullptr, SeekMemory, CloseMemory});
}

constexpr int kFirstDescriptor = 1000;

// A call of the library on a file descriptor, with the watching switched off: the notes
// allocate.
class DescriptorCall {
 public:
  explicit DescriptorCall(const std::string& call) : faults_(std::exchange(current, nullptr)) {
    faults_->descriptor_calls.push_back(call);
  }
  ~DescriptorCall() { current = faults_; }
  DescriptorCall(const DescriptorCall&) = delete;
  DescriptorCall& operator=(const DescriptorCall&) = delete;

  Faults* operator->() const { return faults_; }

 private:
  Faults* faults_;
};

bool IsWatched(int descriptor) {
  return current != nullptr && descriptor >= kFirstDescriptor;
}

std::string Octal(int number) {
  char text[16];
  std::snprintf(text, sizeof text, "%o", static_cast<unsigned int>(number));
  return text;
}

}  // namespace

Faults::Faults() {
  current = this;
}
Faults::~Faults() {
  current = nullptr;
}

void ExpectAllClosed(const Faults& faults) {
  EXPECT_EQ(faults.closes, faults.opens.count());
  EXPECT_EQ(faults.seeks.count(), faults.opens.count());
}

}  // namespace test

extern "C" {

void* __real_malloc(size_t size);
void* __real_calloc(size_t count, size_t size);
void __real_free(void* block);
FILE* __real_fopen(const char* path, const char* mode);
int __real_fseek(FILE* stream, long position, int origin);
int __real_open(const char* path, int flags, ...);
ssize_t __real_write(int descriptor, const void* bytes, size_t size);
int __real_close(int descriptor);
size_t __real_fread(void* buffer, size_t size, size_t count, FILE* stream);
int __real_fclose(FILE* stream);

void* __wrap_malloc(size_t size);
void* __wrap_calloc(size_t count, size_t size);
void __wrap_free(void* block);
FILE* __wrap_fopen(const char* path, const char* mode);
int __wrap_fseek(FILE* stream, long position, int origin);
int __wrap_open(const char* path, int flags, ...);
ssize_t __wrap_write(int descriptor, const void* bytes, size_t size);
int __wrap_close(int descriptor);
size_t __wrap_fread(void* buffer, size_t size, size_t count, FILE* stream);
int __wrap_fclose(FILE* stream);

void* __wrap_malloc(size_t size) {
  if (test::current != nullptr && test::current->allocations.NextFails()) {
    return nullptr;
  }
  return test::Note(__real_malloc(size), size);
}

void* __wrap_calloc(size_t count, size_t size) {
  if (test::current != nullptr && test::current->allocations.NextFails()) {
    return nullptr;
  }
  return test::Note(__real_calloc(count, size), count * size);
}

void __wrap_free(void* block) {
  test::Forget(block);
  __real_free(block);
}

FILE* __wrap_fopen(const char* path, const char* mode) {
  test::Faults* const faults = std::exchange(test::current, nullptr);
  if (faults == nullptr) {
    return __real_fopen(path, mode);
  }
  FILE* stream = nullptr;
  if (!faults->opens.NextFails()) {
    const auto content = faults->contents.find(path);
    const auto mapped = faults->paths.find(path);
    if (content != faults->contents.end()) {
      stream = test::OpenMemory(content->second, faults->unreadable_from, mode);
    } else {
      stream = __real_fopen(mapped == faults->paths.end() ? path : mapped->second.c_str(), mode);
    }
  }
  test::current = faults;
  return stream;
}

int __wrap_fseek(FILE* stream, long position, int origin) {
  if (test::current != nullptr && test::current->seeks.NextFails()) {
    return -1;
  }
  return __real_fseek(stream, position, origin);
}

size_t __wrap_fread(void* buffer, size_t size, size_t count, FILE* stream) {
  if (test::current != nullptr && test::current->reads.NextFails()) {
    stream->_flags |= 0x20;  // glibc's mark of a read error, which ferror() looks at
    return 0;
  }
  size_t read = __real_fread(buffer, size, count, stream);
  if (test::current != nullptr && test::current->short_reads.NextFails()) {
    const size_t given = read / 2;
    std::memset(static_cast<char*>(buffer) + given * size, '#', (read - given) * size);
    read = given;
  }
  if (test::current != nullptr) {
    test::current->bytes_read += read * size;
  }
  return read;
}

int __wrap_fclose(FILE* stream) {
  if (test::current == nullptr) {
    return __real_fclose(stream);
  }
  ++test::current->closes;
  const bool fails = test::current->stream_closes.NextFails();
  const int result = __real_fclose(stream);
  return fails ? EOF : result;
}

int __wrap_open(const char* path, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  if (test::current == nullptr) {
    return __real_open(path, flags, mode);
  }
  const test::DescriptorCall call(std::string("open ") + path + " " + test::Octal(flags) + " " +
                                  test::Octal(static_cast<int>(mode)));
  if (call->descriptor_opens.NextFails()) {
    return -1;
  }
  call->descriptors.push_back(path);
  call->written[path] = "";
  return test::kFirstDescriptor + static_cast<int>(call->descriptors.size()) - 1;
}

ssize_t __wrap_write(int descriptor, const void* bytes, size_t size) {
  if (!test::IsWatched(descriptor)) {
    return __real_write(descriptor, bytes, size);
  }
  const test::DescriptorCall call("write " + std::to_string(descriptor) + " " +
                                  std::to_string(size));
  if (call->writes.NextFails()) {
    return -1;
  }
  const size_t taken = std::min(size, call->write_room);
  const std::string& path =
      call->descriptors[static_cast<size_t>(descriptor - test::kFirstDescriptor)];
  call->written[path].append(static_cast<const char*>(bytes), taken);
  return static_cast<ssize_t>(taken);
}

int __wrap_close(int descriptor) {
  if (!test::IsWatched(descriptor)) {
    return __real_close(descriptor);
  }
  const test::DescriptorCall call("close " + std::to_string(descriptor));
  call->blocks_at_closes.push_back(call->blocks.size());
  return call->descriptor_closes.NextFails() ? -1 : 0;
}

}  // extern "C"
