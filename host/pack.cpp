// Packing: the mark "zip" and the compressed text behind it.
#include "host/pack.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "host/descriptor.h"
#include "host/format.h"

namespace sysctx {
namespace {

constexpr std::string_view kMark = "zip";
constexpr size_t kMostBytes = 3072000;          // a card's buffers for text and image
constexpr size_t kMostForMemoryFile = 1048576;  // its buffer for an image on that way

[[noreturn]] void Fail(const char* what, const std::string& file, const std::string& reason) {
  throw std::runtime_error(Format("%s '%s': %s", what, file.c_str(), reason.c_str()));
}

void CheckSize(const char* what, const std::string& file, size_t size) {
  if (size > kMostBytes) {
    Fail(what, file, Format("%zu bytes are too many, a card takes %zu at most", size, kMostBytes));
  }
}

// ---- The text --------------------------------------------------------------------

struct Text {
  std::string bytes;
  struct stat status = {};
};

Text ReadText(const std::string& file) {
  const Descriptor descriptor(open(file.c_str(), kReading));
  Text text;
  if (!descriptor.IsOpen() || fstat(descriptor.get(), &text.status) != 0) {
    Fail("text", file, strerror(errno));
  }
  if (!S_ISREG(text.status.st_mode)) {
    Fail("text", file, "is no regular file");
  }
  // The status tells the true size; the read, whether the file grew since.
  CheckSize("text", file, static_cast<size_t>(text.status.st_size));
  text.bytes.resize(kMostBytes + 1);
  const ssize_t size = ReadUpTo(descriptor.get(), text.bytes.data(), text.bytes.size());
  if (size < 0) {
    Fail("text", file, strerror(errno));
  }
  text.bytes.resize(static_cast<size_t>(size));
  CheckSize("text", file, text.bytes.size());
  return text;
}

// ---- The image -------------------------------------------------------------------

std::string Compress(const std::string& text) {
  uLongf size = compressBound(text.size());
  std::string image(kMark.size() + size, '\0');
  image.replace(0, kMark.size(), kMark);
  const int code =
      compress2(reinterpret_cast<Bytef*>(image.data() + kMark.size()), &size,
                reinterpret_cast<const Bytef*>(text.data()), text.size(), Z_BEST_COMPRESSION);
  if (code != Z_OK) {
    throw std::runtime_error(Format("the text cannot be compressed: zlib says %d", code));
  }
  image.resize(kMark.size() + size);
  return image;
}

// The permissions that the image gets: those of the file that is there, or of a new one.
// Throws when what is there is no regular file, or is the text.
mode_t PermissionsFor(const std::string& file, const struct stat& text) {
  struct stat status = {};
  if (lstat(file.c_str(), &status) != 0) {
    if (errno != ENOENT) {
      Fail("image", file, strerror(errno));
    }
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
  }
  if (!S_ISREG(status.st_mode)) {
    Fail("image", file, "is there, but no regular file");
  }
  if (status.st_dev == text.st_dev && status.st_ino == text.st_ino) {
    Fail("image", file, "is there, as the text itself");
  }
  return status.st_mode & 07777;
}

// A file beside the place of another, which it takes in the end. Until then it goes
// away with its owner.
class Replacement {
 public:
  explicit Replacement(const std::string& file)
      : file_(file), name_(file + ".XXXXXX"), descriptor_(mkostemp(name_.data(), O_CLOEXEC)) {
    if (!descriptor_.IsOpen()) {
      name_.clear();
      Fail("image", file_, strerror(errno));
    }
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (!name_.empty()) {
      unlink(name_.c_str());
    }
  }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = write(descriptor_.get(), bytes.data(), bytes.size());
      Check(written >= 0 || errno == EINTR);
      bytes.remove_prefix(written < 0 ? 0 : static_cast<size_t>(written));
    }
  }

  void TakePlace(mode_t mode) {
    Check(fchmod(descriptor_.get(), mode) == 0);
    Check(fsync(descriptor_.get()) == 0);
    Check(close(descriptor_.Release()) == 0);
    Check(rename(name_.c_str(), file_.c_str()) == 0);
    name_.clear();
  }

 private:
  void Check(bool done) const {
    if (!done) {
      Fail("image", file_, strerror(errno));
    }
  }

  const std::string file_;
  std::string name_;  // empty when there is nothing to take away
  Descriptor descriptor_;
};

}  // namespace

Packed Pack(const std::string& text_file, const std::string& image_file) {
  const Text text = ReadText(text_file);
  const mode_t mode = PermissionsFor(image_file, text.status);
  const std::string image = Compress(text.bytes);
  CheckSize("image", image_file, image.size());
  Replacement replacement(image_file);
  replacement.Write(image);
  replacement.TakePlace(mode);
  return {text.bytes.size(), image.size()};
}

std::string DescribePacked(const Packed& packed, const std::string& text_file,
                           const std::string& image_file) {
  return Format("packed %s: %zu bytes into %zu bytes, %s\n", text_file.c_str(), packed.text_size,
                packed.image_size, image_file.c_str());
}

std::string DescribeLimits(const Packed& packed) {
  return packed.image_size <= kMostForMemoryFile
             ? ""
             : Format(
                   "the image has more than %zu bytes: a card shows and uploads it, but does"
                   " not expand it to its memory file\n",
                   kMostForMemoryFile);
}

}  // namespace sysctx
