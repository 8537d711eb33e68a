// The loaders; see the header. The codes are those of docs/definition-file.md, without lack of
// memory where a file cannot bring it about.
#include "mutated_input/loaders.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace mutated {
namespace {

const Loader kLoaderRows[] = {
    {"ddReadVersionInformation", {-31}},
    {"ddReadAllModuleInformation", {-31, -28}},
    {"ddReadSysSupportFuncInformation", {-31, -28}},
    {"ddReadAllSupportedOltPortInformation", {-31, -11}},
    {"ddReadAllSupportedMainBoardInformation", {-31, -19}},
    {"ddReadAllSupportedBoardInformation", {-31, -19}},
    // -14 and, of an entry too long, -22 are the lookup's own, for the list of a slot class; -27
    // comes from a real slot with a huge number.
    {"ddReadFrameInformation", {-1, -2, -3, -4, -5, -14, -22, -27, -31, -33}},
    {"ddReadAllSupportedOnuPonInformation", {-31, -16}},
    {"ddReadAllSupportedOnuLanInformation", {-31, -16}},
    {"ddReadAllSupportedOnuPotsInformation", {-31, -16}},
    {"ddReadAllSupportedOnuSpecialPortInformation", {-31, -16}},
    // -27: there are no LAN port types.
    {"ddReadAllSupportedOnuInformation", {-31, -21, -27}},
    {"optmodule_infolist_read", {-1, -15}},
    {"", {0}},
};
static_assert(std::size(kLoaderRows) == kNone + 1);

constexpr std::string_view kDeviceFileFailed = "\r\nddParseContextFile->";
constexpr std::string_view kOpticalFileFailed = "ddInit optfile initialize......failed!";

}  // namespace

const Loader& LoaderAt(Place place) {
  return kLoaderRows[place];
}

Place FailedLoader(std::string_view console) {
  const size_t failed = console.rfind(kDeviceFileFailed);
  if (failed == std::string_view::npos) {
    const bool optical_failed = console.find(kOpticalFileFailed) != std::string_view::npos;
    return optical_failed ? kOpticalModules : kNone;
  }
  console.remove_prefix(failed + kDeviceFileFailed.size());
  const std::string_view name = console.substr(0, console.find(' '));
  const Loader* const loader = std::find_if(std::begin(kLoaderRows), std::end(kLoaderRows),
                                            [&](const Loader& each) { return each.name == name; });
  return static_cast<Place>(std::min<std::ptrdiff_t>(loader - kLoaderRows, kNone));
}

}  // namespace mutated
