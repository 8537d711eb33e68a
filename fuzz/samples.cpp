// Samples, from the definitions and from the seeds of the definition files.
#include "fuzz/samples.h"

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <tuple>
#include <vector>

#include "fuzz/platform.h"
#include "support/fake_platform.h"
#include "support/tables.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace fuzz {
namespace {

constexpr char kSmallSample[] = DEFINITIONS_FOLDER "/kt2200-a/mnt/work/";

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) {
    throw std::runtime_error("cannot read " + path);
  }
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<Sample> ReadSamples() {
  const std::string folder = kSmallSample;
  const std::string optical = ReadFile(folder + "optmodule_definition.ini");
  std::vector<Sample> samples = {{"kt2200-a", ReadFile(folder + "device_definition.ini"), optical}};
  for (const std::string name :
       {"complete_with_two_main_cards", "full_lists", "entries_left_out", "empty_lists"}) {
    samples.push_back(
        {name, ReadFile(FUZZ_FOLDER "/seeds/definition_file/" + name + ".ini"), optical});
  }
  return samples;
}

const std::vector<Sample>& Samples() {
  static const std::vector<Sample> samples = ReadSamples();
  return samples;
}

// All tables, as variables that can be set.
auto Tables() {
  return std::tie(gstVersionInformation, gstModuleTypeList, gstSysSupportFuncType,
                  gstSupportedOltPortType, gstSupportedMainBoardType, gstSupportedBoardType,
                  gstFrame, gstSupportedOnuPonType, gstSupportedOnuLanType, gstSupportedOnuPotsType,
                  gstSupportedOnuSpecialPortType, gstSupportedOnuType, g_optmdule_infolist);
}

// What they hold.
using Contents =
    std::tuple<VersionInformation, ModuleTypeList, SysSupportFuncType, SupportedOltPortType,
               SupportedMainBoardType, SupportedBoardType, FrameInformation, SupportedOnuPonType,
               SupportedOnuLanType, SupportedOnuPotsType, SupportedOnuSpecialPortType,
               SupportedOnuType, OptModuleInfoList>;

// The tables must be empty, and are so afterwards.
Contents LoadSample(const Sample& sample, test::Faults& faults) {
  const auto blocks = faults.blocks;
  test::FakePlatform::Reset();
  PreparePlatform(sample.device, 0);
  ddInit();
  const Contents contents = Tables();
  Tables() = Contents();
  faults.blocks = blocks;  // the tables stay
  return contents;
}

const Contents& ContentsOf(const Sample& sample, test::Faults& faults) {
  // Never destroyed: it leads to the tables until the leak check at the end.
  static auto& loaded = *new std::map<std::string, Contents>;
  const auto found = loaded.find(sample.name);
  return found != loaded.end()
             ? found->second
             : loaded.emplace(sample.name, LoadSample(sample, faults)).first->second;
}

// A copy of so many records, to be freed; null of none.
template <typename Record>
Record* CopyOf(const Record* records, size_t count) {
  if (records == nullptr) {
    return nullptr;
  }
  void* const copy = std::malloc(count * sizeof *records);
  std::memcpy(copy, records, count * sizeof *records);
  return static_cast<Record*>(copy);
}

OptModuleInfo* CopyOf(const OptModuleInfo& module) {
  OptModuleInfo* const copy = CopyOf(&module, 1);
  copy->pathinfo = CopyOf(module.pathinfo, module.pathnum);
  for (uint16_t i = 0; i < module.pathnum; ++i) {
    copy->pathinfo[i] = CopyOf(module.pathinfo[i], 1);
  }
  return copy;
}

// Puts copies in place of what the library can release.
void CopyWhatCanBeReleased() {
  gstFrame.pstSlotArray = CopyOf(gstFrame.pstSlotArray, gstFrame.stRealSlot.ulSlotEnd + 1);
  OptModuleInfoList& list = g_optmdule_infolist;
  list.objlist = CopyOf(list.objlist, list.listnum);
  for (uint16_t i = 0; i < list.listnum; ++i) {
    list.objlist[i] = CopyOf(*list.objlist[i]);
  }
}

}  // namespace

const Sample& SampleNamed(std::string_view name) {
  for (const Sample& sample : Samples()) {
    if (sample.name == name) {
      return sample;
    }
  }
  return Samples().front();
}

void RemoveTables() {
  ddEmptyFrameInformation();
  optmodule_file_free();
  Tables() = Contents();
}

void PutTables(const Sample& sample, test::Faults& faults) {
  RemoveTables();
  test::ResetTables();  // the switches, too
  faults.contents["/mnt/work/device_definition.ini"] = sample.device;
  faults.contents["/mnt/work/optmodule_definition.ini"] = sample.optical;
  Tables() = ContentsOf(sample, faults);
  CopyWhatCanBeReleased();
  test::FakePlatform::Reset();
  const uint32_t seed = SeedOf(sample.name);
  PreparePlatform(sample.device, seed);
  FitCards(seed);
}

}  // namespace fuzz
