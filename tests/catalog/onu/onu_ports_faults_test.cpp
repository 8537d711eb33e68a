// The ports of an ONU type: their number, arguments, positions, memory and the file.
#include <cstdint>
#include <string>

#include "catalog/onu/onu_ports_fixture.h"
#include "support/null_arguments.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::Effect;
using test::Names;
using test::NoKey;
using test::OnuFaults;
using test::PortAdder;
using test::Sec;

class EachAdder : public test::OnuPortsTest, public testing::WithParamInterface<PortAdder> {};
INSTANTIATE_TEST_SUITE_P(OnuTypes, EachAdder, testing::ValuesIn(test::kPortAdders),
                         testing::PrintToStringParamName());

// ---- How many -----------------------------------------------------------------

TEST_P(EachAdder, NoPorts) {
  const Effect effect = GetParam().none_clears_array ? Effect::kNoCountNoArray : Effect::kNoCount;
  for (const test::ZeroRow& zero : test::kZeros) {
    SCOPED_TRACE(zero.name);
    for (const int32_t debug : {0, 1}) {
      OnuFaults faults(GetParam().Text(Sec(zero.text, {"{A}"})), debug);
      ExpectToFail(GetParam(), faults, GetParam().none_code, effect, "{none}");
      EXPECT_EQ(faults.opens.count(), 1);
      EXPECT_EQ(faults.allocations.count(), 0);
    }
  }
}

TEST_P(EachAdder, AsManyAsPossible) {
  const size_t most = GetParam().Kind().most;
  OnuFaults faults(GetParam().Text(Sec(std::to_string(most), Names(most, "{B}"))));
  ExpectToAdd(GetParam(), faults, 0, GetParam().Types(Names(most, "{B}")));
}

TEST_P(EachAdder, OneTooMany) {
  const size_t too_many = GetParam().Kind().most + 1;
  for (const int32_t debug : {0, 1}) {
    OnuFaults faults(GetParam().Text(Sec(std::to_string(too_many), Names(too_many, "{A}"))), debug);
    ExpectToFail(GetParam(), faults, -17, Effect::kNoCount,
                 "\r\n{f} err! {field} = " + std::to_string(too_many) + ", {limit}");
    EXPECT_EQ(faults.opens.count(), 1);
  }
}

TEST_P(EachAdder, LastOfMostMissing) {
  const size_t most = GetParam().Kind().most;
  OnuFaults faults(GetParam().Text(Sec(std::to_string(most), Names(most - 1, "{A}"))));
  ExpectToFail(GetParam(), faults, GetParam().failed_code, Effect::kNoCountNoArray,
               NoKey("-2", "{port}" + std::to_string(most)));
  EXPECT_EQ(faults.frees, static_cast<int>(most));  // the array, and the copies
}

// ---- Arguments and positions --------------------------------------------------

TEST_P(EachAdder, NullArgumentsTouchNothing) {
  for (const int32_t start : {0, -1}) {  // looked at later only
    OnuInformation onu = test::MarkedOnu();
    test::ExpectNullArgumentsRefused(
        console_,
        GetParam().Text("\r\n{refusal} err! strFileName = {file}, strOnuTypeSection = {section}, "
                        "pstOnuInformation = {record}"),
        &onu, [&](const char* file, const char* section, OnuInformation* record) {
          return GetParam().add(file, section, start, record);
        });
    test::ExpectMarkedBut(onu, GetParam(), Effect::kNone);
  }
}

TEST_P(EachAdder, NegativePositionsTouchNothing) {
  for (const int32_t debug : {0, 1}) {
    for (const int32_t start : {-1, INT32_MIN}) {
      OnuFaults faults(GetParam().Text(Sec("1", {"{A}"})), debug);
      OnuInformation onu = test::MarkedOnu();
      EXPECT_EQ(GetParam().add(OnuFaults::kPath, "Sec", start, &onu), -31);
      EXPECT_EQ(console_.Text(),
                GetParam().Text("\r\n{refusal} err! iOffsetIn = " + std::to_string(start)));
      test::ExpectMarkedBut(onu, GetParam(), Effect::kNone);
      EXPECT_EQ(faults.opens.count(), 0);
      EXPECT_EQ(faults.allocations.count(), 0);
    }
  }
}

TEST_P(EachAdder, EveryKeyIsSearchedFromThePosition) {
  const string first = GetParam().Text(Sec("1", {"{A}"}));
  const string file = first + GetParam().Text(Sec("2", {"{B}", "{C}"}));
  const auto header = static_cast<int32_t>(first.size());
  for (const int32_t start : {0, 1, header, header + 1}) {
    SCOPED_TRACE(start);
    OnuFaults faults(file);
    if (start == 0) {
      ExpectToAdd(GetParam(), faults, start, GetParam().Types({"{A}"}));
    } else if (start <= header) {
      ExpectToAdd(GetParam(), faults, start, GetParam().Types({"{B}", "{C}"}));
    } else {
      OnuInformation onu = test::MarkedOnu();
      EXPECT_EQ(GetParam().add(OnuFaults::kPath, "Sec", start, &onu), -31);
      EXPECT_EQ(console_.Text(), GetParam().Text(NoKey("-1", "{count}")));
    }
  }
}

TEST_P(EachAdder, PositionsBehindTheFile) {
  const string file = GetParam().Text(Sec("1", {"{A}"}));
  for (const int32_t start : {static_cast<int32_t>(file.size()), 100000, INT32_MAX}) {
    OnuFaults faults(file);
    OnuInformation onu = test::MarkedOnu();
    EXPECT_EQ(GetParam().add(OnuFaults::kPath, "Sec", start, &onu), -31);
    EXPECT_EQ(console_.Text(), GetParam().Text(NoKey("-1", "{count}")));
    test::ExpectMarkedBut(onu, GetParam(), Effect::kNoCount);
  }
}

// ---- Memory -------------------------------------------------------------------

TEST_P(EachAdder, NoMemoryForTheArray) {
  const string file = GetParam().Text(Sec("2", {"{A}", "{B}"}));
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      OnuFaults faults(file, debug);
      faults.allocations.FailFrom(1, calls);
      ExpectToFail(GetParam(), faults, -27, Effect::kNoCountNoArray, "{no memory}");
      EXPECT_EQ(faults.opens.count(), 1);  // no port is read
    }
  }
}

TEST_P(EachAdder, NoMemoryForACopy) {
  const string file = GetParam().Text(Sec("3", {"{C}", "{B}", "{A}"}));
  const string places[] = {"2", "1", "0"};
  for (const int32_t debug : {0, 1}) {
    for (int failing = 1; failing <= 3; ++failing) {
      SCOPED_TRACE(failing);
      OnuFaults faults(file, debug);
      faults.allocations.FailFrom(failing + 1, 1);
      const bool quiet = GetParam().copy_is_quiet && debug == 0;
      ExpectToFail(GetParam(), faults, GetParam().failed_code, Effect::kNoCountNoArray,
                   (quiet ? "" : "{no copy}" + places[failing - 1]) +
                       "\r\n{f}->{copy} err! strKey = {port}" + std::to_string(failing));
      EXPECT_EQ(faults.frees, failing);  // the array, and the copies made so far
    }
  }
}

// ---- The file -----------------------------------------------------------------

TEST_P(EachAdder, MissingFile) {
  OnuFaults faults;
  OnuInformation onu = test::MarkedOnu();
  EXPECT_EQ(GetParam().add("/nonexistent/onus.ini", "Sec", 0, &onu), -31);
  EXPECT_EQ(console_.Text(), GetParam().Text(NoKey("-10", "{count}")));
  test::ExpectMarkedBut(onu, GetParam(), Effect::kNoCount);
}

// A lookup that cannot open, seek or read: once, at each key.
TEST_P(EachAdder, OneLookupFails) {
  const string file = GetParam().Text(Sec("2", {"{A}", "{B}"}));
  for (const test::FileFault& fault : {test::kOpenFails, test::kSeekFails, test::kReadFails}) {
    for (int failing = 1; failing <= 3; ++failing) {
      SCOPED_TRACE(failing);
      OnuFaults faults(file);
      (faults.*fault.plan).FailFrom(failing, 1);
      OnuInformation onu = test::MarkedOnu();
      EXPECT_EQ(GetParam().add(OnuFaults::kPath, "Sec", 0, &onu),
                failing == 1 ? -31 : GetParam().failed_code);
      const string key = failing == 1 ? "{count}" : "{port}" + std::to_string(failing - 1);
      EXPECT_EQ(console_.Text(), GetParam().Text(NoKey(fault.code, key)));
      test::ExpectMarkedBut(onu, GetParam(),
                            failing == 1 ? Effect::kNoCount : Effect::kNoCountNoArray);
      EXPECT_EQ(faults.opens.count(), failing);
      EXPECT_EQ(faults.closes, failing - fault.not_closed);
      EXPECT_EQ(faults.OwnBlocks(), 0u);
      if (HasFailure()) {
        return;
      }
    }
  }
}

}  // namespace
