// Definition files for tests.
#pragma once

#include <string>
#include <string_view>

namespace test {

// A temporary file with the given bytes, removed at the end of its life.
class DefinitionFile {
 public:
  explicit DefinitionFile(std::string_view bytes);
  ~DefinitionFile();
  DefinitionFile(const DefinitionFile&) = delete;
  DefinitionFile& operator=(const DefinitionFile&) = delete;

  const char* path() const { return path_.c_str(); }

 private:
  std::string path_;
};

}  // namespace test
