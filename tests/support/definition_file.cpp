// Definition files for tests, in the folder for temporary files.
#include "support/definition_file.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace test {

DefinitionFile::DefinitionFile(std::string_view bytes) : path_("/tmp/sys_context_test_XXXXXX") {
  const int file = mkstemp(path_.data());
  if (file < 0 || write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
    throw std::runtime_error("cannot write " + path_);
  }
  close(file);
}

DefinitionFile::~DefinitionFile() {
  unlink(path_.c_str());
}

}  // namespace test
