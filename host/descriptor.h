// A file descriptor with an owner, and reading from one.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

namespace sysctx {

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) {
      close(number_);
    }
  }

  int get() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }
  int Release() { return std::exchange(number_, -1); }

 private:
  int number_ = -1;
};

// Opening does not wait for the other end of a pipe.
inline constexpr int kReading = O_RDONLY | O_CLOEXEC | O_NONBLOCK;

// Reads until `size` bytes are there or there are no more; how many there are, or -1
// with errno.
inline ssize_t ReadUpTo(int descriptor, char* buffer, size_t size) {
  size_t done = 0;
  while (done < size) {
    const ssize_t got = read(descriptor, buffer + done, size - done);
    if (got < 0 && errno != EINTR) {
      return -1;
    }
    if (got == 0) {
      break;
    }
    done += got < 0 ? 0 : static_cast<size_t>(got);
  }
  return static_cast<ssize_t>(done);
}

}  // namespace sysctx
