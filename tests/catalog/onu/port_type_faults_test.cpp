// The ONU port types when memory runs out or the file cannot be had.
#include <string>
#include <vector>

#include "catalog/onu/port_type_family.h"
#include "catalog/port_type_faults.h"

namespace {

using std::string;
using test::OnuPortTypeSection;
using test::PortTypeFamily;
using test::PortTypeFaults;
using test::PortTypeLoad;
using test::With;

PortTypeLoad LoadOf(const PortTypeFamily& family) {
  const auto of_entry = [](const string& text) { return With(text, "{section}", "S{n}"); };
  const string entry_failed = of_entry(family.entry_failed);
  const string not_read = With(entry_failed, "{code}", "-31");
  return {
      .name = family.name,
      .file = test::FileOf(family, test::ThreeOnuPortTypes(OnuPortTypeSection("S1", "1", "N1") +
                                                           OnuPortTypeSection("S2", "2", "N2") +
                                                           OnuPortTypeSection("S3", "3", "N3"))),
      .read_all = family.read_all,
      .count = family.count,
      .types = family.types,
      .no_array = family.no_array,
      .no_record = family.no_record + With(entry_failed, "{code}", "-27"),
      .number_unreadable = family.number_unreadable,
      .entry_failed =
          {
              of_entry(family.entry_unreadable),
              of_entry(family.type_unreadable) + not_read,
              of_entry(family.name_unreadable) + not_read,
          },
  };
}

std::vector<PortTypeLoad> Loads() {
  std::vector<PortTypeLoad> loads;
  for (const PortTypeFamily& family : test::kPortTypeFamilies) {
    loads.push_back(LoadOf(family));
  }
  return loads;
}
INSTANTIATE_TEST_SUITE_P(PortTypes, PortTypeFaults, testing::ValuesIn(Loads()),
                         testing::PrintToStringParamName());

}  // namespace
