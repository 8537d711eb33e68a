// Files to replay.
#pragma once

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace test {

struct File {
  std::string name;  // for tests
  std::filesystem::path path;

  std::string Read() const {
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) {
      throw std::runtime_error("cannot read " + path.string());
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  friend std::ostream& operator<<(std::ostream& out, const File& file) { return out << file.name; }
};

// A file for each entry of the folder, if that is there, by name: the entry itself, or what is
// at `path` in it.
inline std::vector<File> FilesIn(const std::filesystem::path& folder,
                                 const std::filesystem::path& path = {}) {
  std::vector<File> files;
  if (std::filesystem::exists(folder)) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      std::string name = entry.path().stem().string();
      std::replace_if(
          name.begin(), name.end(), [](unsigned char byte) { return std::isalnum(byte) == 0; },
          '_');
      files.push_back({name, path.empty() ? entry.path() : entry.path() / path});
    }
  }
  std::sort(files.begin(), files.end(),
            [](const File& left, const File& right) { return left.name < right.name; });
  return files;
}

}  // namespace test
