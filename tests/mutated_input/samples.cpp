// Reading the files; see the header.
#include "mutated_input/samples.h"

#include <algorithm>
#include <filesystem>

#include "support/temporary_folder.h"

namespace mutated {

Files FilesOf(const Sample& sample) {
  const std::string folder = std::string(DEFINITIONS_FOLDER "/") + sample.name + "/mnt/work/";
  return {test::ReadWhole(folder + "device_definition.ini"),
          test::ReadWhole(folder + "optmodule_definition.ini")};
}

std::vector<std::string> Seeds() {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(SEEDS_FOLDER)) {
    paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> seeds;
  for (const std::filesystem::path& path : paths) {
    seeds.push_back(test::ReadWhole(path.string()));
  }
  return seeds;
}

}  // namespace mutated
