// The limits of an optical module: what the queries for a port and for an ONU have in
// common. How each finds kind and port type, see port_thresholds_test.cpp and
// onu_thresholds_test.cpp.
#include "optmodule/thresholds_test.h"

#include <initializer_list>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "support/optmodule_messages.h"
#include "support/rows.h"

namespace {

using std::string;
using test::FakePlatform;
using test::OptModule;
using test::OptModules;
using test::PathLimits;
using test::Paths;
using test::With;

// ---- The queries --------------------------------------------------------------------

// Both find port type 21, unless a row has another.
constexpr uint32_t kPortType = 21;

struct Query {
  const char* name;
  const char* function;
  uint16_t kind;  // of the modules that fit
  int32_t (*ask)(uint16_t phy_type, uint16_t* path_count, OptModuleThreshold* paths);
  std::vector<string> asked;
  friend std::ostream& operator<<(std::ostream& out, const Query& query) {
    return out << query.name;
  }
};

const Query kQueries[] = {
    {.name = "Port",
     .function = "get_port_optmodule_thresinfo",
     .kind = 1,
     .ask =
         [](uint16_t phy_type, uint16_t* path_count, OptModuleThreshold* paths) {
           return get_port_optmodule_thresinfo(4, 2, phy_type, path_count, paths);
         },
     .asked = {"slot 4", "pon 3102"}},
    {.name = "Onu",
     .function = "get_onu_optmodule_thresinfo",
     .kind = 3,
     .ask =
         [](uint16_t phy_type, uint16_t* path_count, OptModuleThreshold* paths) {
           return get_onu_optmodule_thresinfo(1, 2, 3, phy_type, path_count, paths);
         },
     .asked = {"onu 1 2 3"}},
};

class ThresholdsQuery : public test::ThresholdsTest {
 protected:
  static void PutPortType(uint32_t port_type) {
    FakePlatform::Get().configured_cards[4] = 3102;
    FakePlatform::Get().pon_cards = {3102};
    PutCard(3102, {11, port_type, 12});
    FakePlatform::Get().fitted_onu = 6001;
    PutOnu(6001, {port_type, 12});
  }

  // Asks with phy type 5. The texts have "{f}" for the query's name, "{kind}" for its kind.
  void ExpectQueryTold(const Query& query, uint16_t capacity, test::Told told) {
    told.asked = query.asked;
    for (string& line : told.log) {
      line = With(With(line, "{f}", query.function), "{kind}", std::to_string(query.kind));
    }
    ExpectTold(
        [&](uint16_t* count, OptModuleThreshold* paths) { return query.ask(5, count, paths); },
        capacity, told);
  }
};

// ---- Which module answers, and whether its paths fit --------------------------------

constexpr uint16_t kOwnKind = 999;  // stands for the query's

constexpr PathLimits kPath = {31, 32, 33, 34};
constexpr PathLimits kOther = {41, 42, 43, 44};
const Paths kFour = {
    {1, 2, 3, 4}, {-5, -6, -7, -8}, {INT32_MAX, INT32_MIN, 0, -1}, {0, INT32_MAX, INT32_MIN, 9}};

const OptModule kFits = {kOwnKind, kPortType, 5, {kPath}};
const OptModule kFitsToo = {kOwnKind, kPortType, 5, {kOther}};

OptModule FitsWith(Paths paths) {
  return {kOwnKind, kPortType, 5, std::move(paths)};
}

OptModule OfPortType(uint32_t port_type) {
  return {kOwnKind, port_type, 5, {kOther}};
}

// Modules that do not fit, and `last` behind them.
OptModules Behind(size_t others, const OptModule& last) {
  OptModules modules(others, OfPortType(22));
  modules.push_back(last);
  return modules;
}

test::Told NoModule(const string& port_type = "21") {
  return {.code = -1, .log = {test::optical::NoneFits("{f}", "{kind}", port_type, "5")}};
}

test::Told TooFew(const string& paths, const string& capacity) {
  return {.code = -35, .log = {test::optical::TooFewPlaces("{f}", paths, capacity)}};
}

struct ModuleRow {
  const char* name;
  OptModules modules;
  uint16_t capacity;
  test::Told told;
  uint32_t port_type = kPortType;
  friend std::ostream& operator<<(std::ostream& out, const ModuleRow& row) {
    return out << row.name;
  }
};

class ThresholdsOfModules : public ThresholdsQuery,
                            public testing::WithParamInterface<std::tuple<Query, ModuleRow>> {};

TEST_P(ThresholdsOfModules, AreTold) {
  const auto& [query, row] = GetParam();
  PutPortType(row.port_type);
  OptModules modules = row.modules;
  for (std::optional<OptModule>& module : modules) {
    if (module && module->kind == kOwnKind) {
      module->kind = query.kind;
    }
  }
  test::PutOptModules(modules);
  ExpectQueryTold(query, row.capacity, row.told);
}

const ModuleRow kModules[] = {
    {"OnePath", {kFits}, 1, {0, {kPath}}},
    {"FourPaths", {FitsWith(kFour)}, 4, {0, kFour}},
    {"RoomForOneMore", {FitsWith(kFour)}, 5, {0, kFour}},
    {"RoomForAsManyAsPossible", {FitsWith(kFour)}, 65535, {0, kFour}},
    {"RoomForOneLess", {FitsWith(kFour)}, 3, TooFew("4", "3")},
    {"RoomForTwoLess", {FitsWith(kFour)}, 2, TooFew("4", "2")},
    {"NoRoom", {kFits}, 0, TooFew("1", "0")},
    {"NoPathsAndNoRoom", {FitsWith({})}, 0, {0}},
    {"NoPathsAndRoom", {FitsWith({})}, 4, {0}},
    {"MorePathsThanFilesHave", {FitsWith(Paths(300, kPath))}, 300, {0, Paths(300, kPath)}},
    {"RoomForEightBitsOfTheirNumber", {FitsWith(Paths(300, kPath))}, 44, TooFew("300", "44")},
    {"RoomAbove8Bits", {kFits}, 256, {0, {kPath}}},
    {"PathsAbove15Bits",
     {FitsWith(Paths(40000, kPath))},
     39999,
     TooFew("40000", "39999")},  // unsigned
    {"NoList", {}, 4, NoModule()},
    {"OnlyEmptyPlaces", {std::nullopt, std::nullopt}, 4, NoModule()},
    {"OtherPortType", {OfPortType(22)}, 4, NoModule()},
    {"PortTypeZero", {OfPortType(0)}, 4, NoModule()},
    {"PortTypeOfTheSame16Bits", {OfPortType(65536 + 21)}, 4, NoModule()},
    {"PortTypeOfTheSame31Bits", {OfPortType(0x80000000 + 21)}, 4, NoModule()},
    {"PortTypeAbove31Bits", {OfPortType(0xfffffffe)}, 4, {0, {kOther}}, 0xfffffffe},
    {"PortTypeAbove31BitsAlone", {kFits}, 4, NoModule("-2"), 0xfffffffe},
    {"LargestPortTypeAlone", {kFits}, 4, NoModule("-1"), 0xffffffff},
    {"FirstOfTwo", {kFits, kFitsToo}, 4, {0, {kPath}}},
    {"FirstOfTwoTheOtherWayRound", {kFitsToo, kFits}, 4, {0, {kOther}}},
    {"FirstOfTwoThoughOnlyTheSecondHasRoom",
     {FitsWith({kPath, kOther}), kFitsToo},
     1,
     TooFew("2", "1")},
    {"BehindOthers", Behind(3, kFits), 4, {0, {kPath}}},
    {"AmongEmptyPlaces",
     {std::nullopt, OfPortType(22), std::nullopt, kFits, std::nullopt},
     4,
     {0, {kPath}}},
    {"FiftyFirst", Behind(50, kFits), 4, {0, {kPath}}},
    {"PlaceAbove8Bits", Behind(300, kFits), 4, {0, {kPath}}},
};
INSTANTIATE_TEST_SUITE_P(OptModule, ThresholdsOfModules,
                         testing::Combine(testing::ValuesIn(kQueries), testing::ValuesIn(kModules)),
                         test::KindAndRow());

// ---- The same for each query --------------------------------------------------------

class Thresholds : public ThresholdsQuery, public testing::WithParamInterface<Query> {};

TEST_P(Thresholds, NoneOfAnotherKind) {
  PutPortType(kPortType);
  const uint16_t same_low_bits = static_cast<uint16_t>(GetParam().kind + 256);
  for (const uint16_t kind : std::initializer_list<uint16_t>{0, 1, 2, 3, 4, same_low_bits, 65535}) {
    SCOPED_TRACE(kind);
    test::PutOptModules({OptModule{kind, kPortType, 5, {kPath}}});
    ExpectQueryTold(GetParam(), 4, kind == GetParam().kind ? test::Told{0, {kPath}} : NoModule());
  }
}

TEST_P(Thresholds, CountWithoutAList) {
  PutPortType(kPortType);
  g_optmdule_infolist.listnum = 2;
  ExpectQueryTold(GetParam(), 4, NoModule());
}

TEST_P(Thresholds, NoneBehindTheCount) {
  PutPortType(kPortType);
  OptModules modules = Behind(1, kFits);
  modules.back()->kind = GetParam().kind;
  test::PutOptModules(modules);
  g_optmdule_infolist.listnum = 1;
  ExpectQueryTold(GetParam(), 4, NoModule());
  g_optmdule_infolist.listnum = 2;
  ExpectQueryTold(GetParam(), 4, {0, {kPath}});
}

TEST_P(Thresholds, NullArguments) {
  PutPortType(kPortType);
  test::PutOptModules({OptModule{GetParam().kind, kPortType, 5, {kPath}}});
  AskTwice("", [] {
    uint16_t count = 4;
    OptModuleThreshold path = kOther.Record();
    EXPECT_EQ(GetParam().ask(5, nullptr, &path), -24);
    EXPECT_EQ(GetParam().ask(5, &count, nullptr), -24);
    EXPECT_EQ(GetParam().ask(5, nullptr, nullptr), -24);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(PathLimits::Of(path), kOther);
    EXPECT_EQ(FakePlatform::TakeAsked(), std::vector<string>{});
    EXPECT_EQ(FakePlatform::TakeLog(), std::vector<string>{});
  });
}

// Null arguments are refused first, whatever else is wrong.
TEST_P(Thresholds, NullArgumentsWithoutEquipment) {
  EXPECT_EQ(GetParam().ask(5, nullptr, nullptr), -24);
  EXPECT_EQ(FakePlatform::TakeAsked(), std::vector<string>{});
}

INSTANTIATE_TEST_SUITE_P(OptModule, Thresholds, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

}  // namespace
