// A device definition file of arbitrary bytes, with the debug switch off and on.
#include "fuzz/definition_file_run.h"
#include "fuzz/targets.h"

namespace fuzz {

std::string CheckDefinitionFile(std::string_view bytes) {
  for (const int32_t debug : {0, 1}) {
    const Outcome outcome = Run(bytes, debug, Queries::kSome);
    if (!IsAccountedFor(outcome)) {
      return "ddInit = " + std::to_string(outcome.code) + ", " +
             std::to_string(outcome.lost.size()) + " blocks lost, " + std::to_string(outcome.left) +
             " left";
    }
  }
  return "";
}

}  // namespace fuzz
