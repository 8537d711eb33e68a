// A folder that goes away with its test.
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace test {

TemporaryFolder::TemporaryFolder() {
  std::string name = testing::TempDir() + "sysctx_XXXXXX";
  if (mkdtemp(name.data()) == nullptr) {
    abort();
  }
  path_ = std::filesystem::canonical(name);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::Write(const std::string& name, const std::string& content) const {
  const std::string file = Path(name);
  std::filesystem::create_directories(std::filesystem::path(file).parent_path());
  std::ofstream(file, std::ios::binary) << content;
  return file;
}

std::string ReadWhole(const std::string& file) {
  std::ostringstream content;
  content << std::ifstream(file, std::ios::binary).rdbuf();
  return content.str();
}

}  // namespace test
