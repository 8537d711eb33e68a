// Loads of ONU types; see the header.
#include "catalog/onu/onu_type_loads.h"

extern "C" {
int32_t __real_ddFindSupportedOnuMaxLanNum();
int32_t __wrap_ddFindSupportedOnuMaxLanNum();

int32_t __wrap_ddFindSupportedOnuMaxLanNum() {
  test::MaxLanSearch& search = test::TheMaxLanSearch();
  ++search.calls;
  search.count = gstSupportedOnuType.ulSupportedOnuTypeNum;
  return search.code != 0 ? search.code : __real_ddFindSupportedOnuMaxLanNum();
}
}  // extern "C"

namespace test {

MaxLanSearch& TheMaxLanSearch() {
  static MaxLanSearch search;
  return search;
}

OnuInformation** OnuLoadTest::OldArray() {
  return reinterpret_cast<OnuInformation**>(uintptr_t{0x1230});
}

void OnuLoadTest::MarkTable() {
  gstSupportedOnuType = {9, OldArray(), 0x7e7e, 0x6d6d};
}

void ExpectMaxLan(uint32_t type, uint32_t ports) {
  EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuMaxLanOnuType, type);
  EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuMaxLanNum, ports);
}

void OnuLoadTest::ExpectOnus(const OnuFaults& faults, size_t announced,
                             const std::vector<ExpectedOnu>& onus) {
  OnuInformation** const places = gstSupportedOnuType.pOnuTypeArray;
  ASSERT_EQ(faults.blocks.count(places), 1u);
  EXPECT_EQ(faults.blocks.at(places), announced * sizeof(OnuInformation*));
  size_t blocks = 1;
  for (size_t i = 0; i < announced; ++i) {
    SCOPED_TRACE(i);
    if (i >= onus.size()) {
      EXPECT_EQ(places[i], nullptr);
      continue;
    }
    ASSERT_NE(places[i], nullptr);
    ExpectOnu(faults, places[i], onus[i]);
    blocks += BlocksOf(onus[i]);
  }
  EXPECT_EQ(faults.OwnBlocks() - LostBlocks(faults).size(), blocks);
}

namespace {

const PortNames& SamplePorts() {
  static const PortNames ports = {{"GPON", "XGSPON"}, {"GE", "FE"}, {"FXS"}, {"E1"}};
  return ports;
}

}  // namespace

std::string Section(uint32_t number) {
  const std::string n = std::to_string(number);
  return OnuSection("S" + n, n, "N" + n, SamplePorts());
}

ExpectedOnu Record(uint32_t number) {
  return {number, "N" + std::to_string(number), SamplePorts()};
}

std::string WithSecond(const std::string& second) {
  return OnuList({"S1", "S2", "S3"}) + Section(1) + second + Section(3);
}

std::string Announce(const std::string& number) {
  return "[SupportedOnuType]\nSupportedOnuTypeNum=" + number +
         "\nSupportedOnuType1=S1\nSupportedOnuType2=S2\n" + Section(1) + Section(2);
}

std::string ManyOnus(uint32_t count) {
  Names sections;
  std::string text;
  for (uint32_t i = 1; i <= count; ++i) {
    const std::string n = std::to_string(i);
    sections.push_back("S" + n);
    text += OnuSection("S" + n, n, "N" + n, {{"GPON"}});
  }
  return OnuList(sections) + text;
}

std::vector<ExpectedOnu> ManyRecords(uint32_t count) {
  std::vector<ExpectedOnu> onus;
  for (uint32_t i = 1; i <= count; ++i) {
    onus.push_back({i, "N" + std::to_string(i), {{"GPON"}}});
  }
  return onus;
}

}  // namespace test
