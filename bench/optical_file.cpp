// Definition files of optical modules; see the header.
#include "bench/optical_file.h"

#include "bench/entry_writer.h"

namespace bench {
namespace {

constexpr char kListSection[] = "SupportedOptModuleInfo";
constexpr size_t kEntries = 4 + kOptModulePaths;  // of a module's section

void WriteModule(EntryWriter& writer, size_t number) {
  writer.Section("OptModule_" + std::to_string(number));
  writer.Entry("PortKind", number % 3 + 1);
  writer.Entry("PortType", number);
  writer.Entry("PhyType", 1);
  writer.Entry("PathNum", kOptModulePaths);
  for (size_t path = 1; path <= kOptModulePaths; ++path) {
    writer.Entry("Path" + std::to_string(path), "500,100,-700,-" + std::to_string(2800 + path));
  }
}

// The load reads the number of modules, then for each its section's name and its section:
// the kind once to find it, and once with the rest.
std::vector<Lookup> InOrderOfLoad(size_t modules, const std::vector<Lookup>& written) {
  std::vector<Lookup> lookups = {written[0]};
  for (size_t i = 0; i < modules; ++i) {
    const auto section = written.begin() + static_cast<std::ptrdiff_t>(1 + modules + i * kEntries);
    lookups.push_back(written[1 + i]);
    lookups.push_back(*section);
    lookups.insert(lookups.end(), section, section + kEntries);
  }
  return lookups;
}

}  // namespace

OpticalFile WriteOptModules(size_t modules) {
  OpticalFile file{"; Optical modules\n", {}};
  std::vector<Lookup> written;
  EntryWriter writer(file.text, written);
  writer.Section(kListSection);
  writer.Entry("SupportedOptModuleInfoNum", modules);
  for (size_t number = 1; number <= modules; ++number) {
    writer.Entry(kListSection + std::to_string(number), "OptModule_" + std::to_string(number));
  }
  for (size_t number = 1; number <= modules; ++number) {
    WriteModule(writer, number);
  }
  file.lookups = InOrderOfLoad(modules, written);
  return file;
}

}  // namespace bench
