// Definition files for tests.
#pragma once

#include <string>
#include <string_view>

namespace test {

// A file with the given bytes, in memory: nothing of it stays, even when a test is killed.
class DefinitionFile {
 public:
  explicit DefinitionFile(std::string_view bytes);
  ~DefinitionFile();
  DefinitionFile(const DefinitionFile&) = delete;
  DefinitionFile& operator=(const DefinitionFile&) = delete;

  const char* path() const { return path_.c_str(); }

 private:
  int file_;
  std::string path_;
};

}  // namespace test
