// A folder that goes away with its test.
#pragma once

#include <string>

namespace test {

class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::string& path() const { return path_; }
  std::string Path(const std::string& name) const { return path_ + "/" + name; }

  // Creates a file and the folders that lead to it; returns its path.
  std::string Write(const std::string& name, const std::string& content) const;

 private:
  std::string path_;
};

// The content of a file; empty when it cannot be read.
std::string ReadWhole(const std::string& file);

}  // namespace test
