// Definition files for tests, which no folder holds.
#include "support/definition_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <stdexcept>

namespace test {

DefinitionFile::DefinitionFile(std::string_view bytes)
    : file_(memfd_create("definition_file", MFD_CLOEXEC)),
      path_("/proc/self/fd/" + std::to_string(file_)) {
  if (file_ < 0 || write(file_, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
    throw std::runtime_error("cannot write " + path_);
  }
}

DefinitionFile::~DefinitionFile() {
  close(file_);
}

}  // namespace test
