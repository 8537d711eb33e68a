// What is fuzzed: each target takes arbitrary bytes and tells what went wrong.
#pragma once

#include <string>
#include <string_view>

namespace fuzz {

struct Target {
  const char* name;
  // Empty when all is well. Must leave nothing behind that the next run can tell.
  std::string (*check)(std::string_view bytes);
};

std::string CheckLookup(std::string_view bytes);
std::string CheckDefinitionFile(std::string_view bytes);
std::string CheckOpticalFile(std::string_view bytes);
std::string CheckStoredCopy(std::string_view bytes);
std::string CheckCommandLine(std::string_view bytes);
std::string CheckQuerySequences(std::string_view bytes);

inline constexpr Target kTargets[] = {
    {"lookup", CheckLookup},
    {"definition_file", CheckDefinitionFile},
    {"optical_file", CheckOpticalFile},
    {"stored_copy", CheckStoredCopy},
    {"command_line", CheckCommandLine},
    {"query_sequences", CheckQuerySequences},
};

}  // namespace fuzz
