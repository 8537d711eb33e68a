// An optical modules' file of arbitrary bytes: loaded twice, shown, asked, and read piece by
// piece.
#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "fuzz/lines.h"
#include "fuzz/platform.h"
#include "fuzz/samples.h"
#include "fuzz/targets.h"
#include "support/faults.h"
#include "sys_context/cli.h"
#include "sys_context/frame.h"
#include "sys_context/optmodule.h"

namespace fuzz {
namespace {

constexpr char kPath[] = "memory";
constexpr size_t kMostLines = 40;  // each is a piece

char terminal;

bool IsOneOf(int32_t code, std::initializer_list<int32_t> codes) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

bool IsSound(const OptModuleInfo* module) {
  return module != nullptr && module->pathnum <= MAX_OPTMODULE_PATH_NUM &&
         (module->pathnum == 0) == (module->pathinfo == nullptr);
}

// A failure leaves the list as it was, which is empty: a file that fails does so twice.
std::string CheckLoad(const char* path) {
  const OptModuleInfoList& list = g_optmdule_infolist;
  const int32_t code = optmodule_infolist_read(path);
  if (!IsOneOf(code, {0, -1, -15})) {
    return "the load returned " + std::to_string(code);
  }
  if (code != 0 && (list.listnum != 0 || list.objlist != nullptr)) {
    return "a failed load left modules";
  }
  if (list.listnum > MAX_OPTMODULE_INFO_NUM ||
      !std::all_of(list.objlist, list.objlist + list.listnum, IsSound)) {
    return "a module is not sound";
  }
  return "";
}

std::string CheckDisplay() {
  for (uint32_t index = 0; index <= g_optmdule_infolist.listnum + 1u; ++index) {
    const bool is_there = index != 0 && index <= g_optmdule_infolist.listnum;
    const int32_t code = show_optmodule_fileinfo_byindex(static_cast<uint16_t>(index), &terminal);
    if (code != (is_there ? 0 : -10)) {
      return "shown with " + std::to_string(code);
    }
  }
  return "";
}

// Asks with just so much room for the paths.
template <typename Query, typename... Inputs>
std::string CheckLimits(Query* query, size_t room, Inputs... inputs) {
  auto count = static_cast<uint16_t>(room);
  const auto paths = std::make_unique<OptModuleThreshold[]>(room);
  const int32_t code = query(inputs..., &count, paths.get());
  if (code == 0 ? count > room : count != room) {
    return "limits of " + std::to_string(count) + " paths, with " + std::to_string(code);
  }
  return "";
}

std::string CheckQueries() {
  std::set<uint16_t> phy_types = {0, 0xffff};
  for (uint16_t i = 0; i < g_optmdule_infolist.listnum; ++i) {
    phy_types.insert(g_optmdule_infolist.objlist[i]->phytype);
  }
  for (const uint16_t phy_type : phy_types) {
    for (size_t room = 0; room <= MAX_OPTMODULE_PATH_NUM; ++room) {
      std::string wrong = CheckLimits(get_onu_optmodule_thresinfo, room, 1u, 1u, 1u, phy_type);
      for (uint32_t slot = 1; slot <= gstFrame.stRealSlot.ulSlotEnd && wrong.empty(); ++slot) {
        wrong = CheckLimits(get_port_optmodule_thresinfo, room, slot, 1u, phy_type);
      }
      if (!wrong.empty()) {
        return wrong;
      }
    }
  }
  return "";
}

// Reads the line as a section's name, from where it stands, and as a path's text.
std::string CheckLine(std::string_view line, int32_t place) {
  const Text section(
      line.substr(line.empty() ? 0 : 1, line.size() - std::min<size_t>(line.size(), 2)));
  OptModuleInfo* module = nullptr;
  const int32_t code = optmodule_oneinfo_read(kPath, section.get(), place, &module);
  if (code == 0 ? !IsSound(module) : module != nullptr) {
    return "a module is not sound: " + std::to_string(code);
  }
  if (!IsOneOf(code, {0, -1, -2, -3, -4, -6, -7})) {
    return "a module was read with " + std::to_string(code);
  }
  optmodule_oneobj_free(module);

  const Text text(line);
  OptModuleThreshold* path = nullptr;
  const bool is_too_long = std::string_view(text.get()).size() > 40;
  if (optmodule_onuthres_read(text.get(), &path) != (is_too_long ? -33 : 0) ||
      (path == nullptr) != is_too_long) {
    return "a path was read otherwise";
  }
  std::free(path);
  return "";
}

std::string CheckPieces(std::string_view bytes) {
  std::string_view rest = bytes;
  for (size_t i = 0; i < kMostLines && !rest.empty(); ++i) {
    const auto place = static_cast<int32_t>(bytes.size() - rest.size());
    if (std::string wrong = CheckLine(TakeLine(rest), place); !wrong.empty()) {
      return wrong;
    }
  }
  return "";
}

std::string Check(std::string_view bytes) {
  for (int round = 0; round < 2; ++round) {
    for (const auto check : {+[] { return CheckLoad(kPath); }, CheckDisplay, CheckQueries}) {
      if (std::string wrong = check(); !wrong.empty()) {
        return wrong;
      }
    }
  }
  return CheckPieces(bytes);
}

}  // namespace

std::string CheckOpticalFile(std::string_view bytes) {
  test::Faults faults;
  PutTables(SampleNamed(""), faults);
  FitCards(SeedOf(bytes));
  optmodule_file_free();
  faults.contents[kPath] = bytes;
  std::string wrong = Check(bytes);
  RemoveTables();
  if (wrong.empty() && !faults.blocks.empty()) {
    wrong = "memory is kept";
  }
  return wrong;
}

}  // namespace fuzz
