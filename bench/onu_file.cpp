// Definition files with ONU types; see the header.
#include "bench/onu_file.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "bench/entry_writer.h"

namespace bench {
namespace {

constexpr char kListSection[] = "SupportedOnuType";

// One kind of ports. Their types are those of the sample.
struct Ports {
  const char* count_key;
  const char* key;
  size_t count;
  std::array<const char*, 2> types;
};
constexpr Ports kPorts[] = {
    {"PonNum", "NameKeyPon", kOnuPonPorts, {"GPON", "XGSPON"}},
    {"LanPortNum", "NameKeyLanPort", kOnuLanPorts, {"GE", "2.5GE"}},
    {"PotsPortNum", "NameKeyPotsPort", kOnuPotsPorts, {"FXS", "ISDN-BRI"}},
    {"SpecialPortNum", "NameKeySpecialPort", kOnuSpecialPorts, {"WLAN-5G", "USB"}},
};

// What stands in front of the ONU types: every other table.
std::string OtherTables() {
  std::ifstream stream(SYS_CONTEXT_SAMPLE, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  const size_t end = text.find(std::string("[") + kListSection + "]");
  if (end == std::string::npos) {
    std::fprintf(stderr, "%s: there are no ONU types\n", SYS_CONTEXT_SAMPLE);
    std::exit(1);
  }
  return text.substr(0, end);
}

void WriteOnuType(EntryWriter& writer, size_t number) {
  writer.Section("Onu_" + std::to_string(number));
  writer.Entry("Type", 6000 + number);
  writer.Entry("Name", "KT-ONU-" + std::to_string(number));
  for (const auto& [count_key, key, count, types] : kPorts) {
    writer.Entry(count_key, count);
    for (size_t port = 1; port <= count; ++port) {
      writer.Entry(key + std::to_string(port), types[port % types.size()]);
    }
  }
}

// The load reads the number of types, then for each its section's name and its
// section: the type once to find it, and once with the rest.
std::vector<Lookup> InOrderOfLoad(size_t types, const std::vector<Lookup>& written) {
  std::vector<Lookup> lookups = {written[0]};
  const size_t per_type = types == 0 ? 0 : written.size() / types - 1;
  for (size_t i = 0; i < types; ++i) {
    const auto section = written.begin() + static_cast<std::ptrdiff_t>(1 + types + i * per_type);
    lookups.push_back(written[1 + i]);
    lookups.push_back(*section);
    lookups.insert(lookups.end(), section, section + static_cast<std::ptrdiff_t>(per_type));
  }
  return lookups;
}

}  // namespace

OnuFile WriteOnuTypes(size_t types) {
  OnuFile file{OtherTables(), {}};
  std::vector<Lookup> written;
  EntryWriter writer(file.text, written);
  writer.Section(kListSection);
  writer.Entry("SupportedOnuTypeNum", types);
  for (size_t number = 1; number <= types; ++number) {
    writer.Entry(kListSection + std::to_string(number), "Onu_" + std::to_string(number));
  }
  for (size_t number = 1; number <= types; ++number) {
    WriteOnuType(writer, number);
  }
  file.lookups = InOrderOfLoad(types, written);
  return file;
}

}  // namespace bench
