// The limits of the optical module of an ONU: its type and its first PON port. The phy
// type is not looked at.
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "optmodule/thresholds_test.h"
#include "support/optmodule_messages.h"

namespace {

using std::string;
using test::FakePlatform;
using test::OptModule;
using test::PathLimits;

constexpr PathLimits kFirst = {11, 12, 13, 14};
constexpr PathLimits kSecond = {21, 22, 23, 24};
constexpr PathLimits kOfAnotherPort = {31, 32, 33, 34};

string NoneFits(const string& kind, const string& port_type, const string& phy_type) {
  return test::optical::NoneFits("get_onu_optmodule_thresinfo", kind, port_type, phy_type);
}

class OnuThresholds : public test::ThresholdsTest {
 protected:
  OnuThresholds()
      : ThresholdsTest({OptModule{3, 22, 5, {kOfAnotherPort}}, OptModule{3, 21, 6, {kFirst}},
                        OptModule{3, 21, 5, {kSecond}}}) {}

  void ExpectOnuTold(uint16_t phy_type, const test::Told& told) {
    ExpectTold(
        [=](uint16_t* count, OptModuleThreshold* paths) {
          return get_onu_optmodule_thresinfo(0xffffffff, 0, 77, phy_type, count, paths);
        },
        told);
  }
};

const std::vector<string> kAskedForTheOnu = {"onu 4294967295 0 77"};
const std::vector<string> kAskedForItsPort = {"onu 4294967295 0 77",
                                              "cs_get_onu_pon_port_type_by_type 6009 1"};

TEST_F(OnuThresholds, AreTheFirstModulesWhateverThePhyType) {
  FakePlatform::Get().fitted_onu = 6001;
  PutOnu(6001, {21});
  for (const uint16_t phy_type : std::initializer_list<uint16_t>{0, 5, 6, 7, 65535}) {
    ExpectOnuTold(phy_type, {.code = 0, .paths = {kFirst}, .asked = kAskedForTheOnu});
  }
}

TEST_F(OnuThresholds, ShowThePhyTypeWhenThereIsNoModule) {
  FakePlatform::Get().fitted_onu = 6001;
  PutOnu(6001, {23});
  for (const uint16_t phy_type : std::initializer_list<uint16_t>{0, 5, 65535}) {
    ExpectOnuTold(phy_type, {.code = -1,
                             .log = {NoneFits("3", "23", std::to_string(phy_type))},
                             .asked = kAskedForTheOnu});
  }
}

// ---- The ONU type and its port --------------------------------------------------------

struct OnuRow {
  const char* name;
  int32_t fitted;
  std::vector<uint32_t> pon_port_types;  // of the only ONU type of the table
  test::Told told;
  uint32_t known_onu = 6001;
  friend std::ostream& operator<<(std::ostream& out, const OnuRow& row) { return out << row.name; }
};

class OnuThresholdsType : public OnuThresholds, public testing::WithParamInterface<OnuRow> {};

TEST_P(OnuThresholdsType, AndItsFirstPortDecide) {
  const OnuRow& row = GetParam();
  PutOnu(row.known_onu, row.pon_port_types);
  FakePlatform::Get().fitted_onu = row.fitted;
  ExpectOnuTold(5, row.told);
}

test::Told Found(const PathLimits& path) {
  return {.code = 0, .paths = {path}, .asked = kAskedForTheOnu};
}

test::Told Failed(int32_t code) {
  return {.code = code, .asked = kAskedForTheOnu};
}

const OnuRow kOnus[] = {
    {"OnePort", 6001, {21}, Found(kFirst)},
    {"FirstOfTwoPorts", 6001, {21, 22}, Found(kFirst)},
    {"FirstOfTwoPortsTheOtherWayRound", 6001, {22, 21}, Found(kOfAnotherPort)},
    {"OnuZeroIsAType", 0, {21}, Found(kFirst), 0},
    {"LargestType", INT32_MAX, {21}, Found(kFirst), 0x7fffffff},
    {"PortTypeZero", 6001, {0, 21}, Failed(-5)},
    {"NoPonPort", 6001, {}, Failed(-5)},
    {"MinusOne", -1, {21}, Failed(-1)},
    {"MinusOneThoughItIsKnown", -1, {21}, Failed(-1), 0xffffffff},
    {"MinusSeventySeven", -77, {21}, Failed(-77)},
    {"AsLowAsPossible", INT32_MIN, {21}, Failed(INT32_MIN)},
};
INSTANTIATE_TEST_SUITE_P(OptModule, OnuThresholdsType, testing::ValuesIn(kOnus),
                         testing::PrintToStringParamName());

// ---- An ONU type that the table does not hold -----------------------------------------

struct ServiceRow {
  const char* name;
  int32_t result;
  uint32_t port_type;
  int32_t code;
  test::Paths paths = {};
  friend std::ostream& operator<<(std::ostream& out, const ServiceRow& row) {
    return out << row.name;
  }
};

class OnuThresholdsService : public OnuThresholds,
                             public testing::WithParamInterface<ServiceRow> {};

TEST_P(OnuThresholdsService, TellsThePortType) {
  PutOnu(6001, {22});
  FakePlatform& platform = FakePlatform::Get();
  platform.fitted_onu = 6009;
  platform.onu_result = GetParam().result;
  platform.onu_number = GetParam().port_type;
  ExpectOnuTold(5, {.code = GetParam().code, .paths = GetParam().paths, .asked = kAskedForItsPort});
}

const ServiceRow kAnswers[] = {
    {"Known", 0, 21, 0, {kFirst}},
    {"AnotherType", 0, 22, 0, {kOfAnotherPort}},
    {"TypeZero", 0, 0, -5},
    {"Failed", -1, 21, -5},
};
INSTANTIATE_TEST_SUITE_P(OptModule, OnuThresholdsService, testing::ValuesIn(kAnswers),
                         testing::PrintToStringParamName());

}  // namespace
