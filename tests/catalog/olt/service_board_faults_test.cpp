// The service boards when memory runs out or the file fails: at every allocation
// and every lookup of a load.
#include <cstdint>
#include <string>
#include <vector>

#include "catalog/olt/service_boards.h"
#include "support/leaks.h"
#include "support/text.h"

namespace {

using std::string;
using test::BoardFaults;
using test::With;

const string kFile = test::BoardList({"S1", "S2"}) +
                     test::BoardSection("S1", "5", "N1", {"GPON", "GE"}, {"XGSPON", "GE"}) +
                     test::BoardSection("S2", "6", "N2", {"XGSPON"});

// What comes of one step of the load, if it alone fails.
struct Failure {
  int32_t code;
  std::vector<uint32_t> kept;  // the types of the boards in the array
  size_t lost;                 // copies of serving ports that are not released
  string console;
};

const std::vector<uint32_t> kNone = {};
const std::vector<uint32_t> kFirst = {5};
const std::vector<uint32_t> kSecond = {6};

string Left(const string& code, const string& section) {
  return "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! iResult "
         "= " +
         code + ", section = " + section;
}
string NoServing(const string& code, const string& section) {
  return "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! "
         "strBoardTypeSection = " +
         section + Left(code, section);
}
string NoSpecial(const string& code, const string& section) {
  return "\r\nddReadOneSupportedBoardInformation->ddAddSupportedSpecialPortToBoardObj err! "
         "strBoardTypeSection = " +
         section + Left(code, section);
}

class ServiceBoardFaults : public test::LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    test::FakePlatform::Get().pon_cards = {5, 6};
  }

  // Loads, and expects what that leads to. Whatever is kept is in order.
  void ExpectFailure(BoardFaults& faults, const Failure& failure) {
    EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), failure.code);
    EXPECT_EQ(console_.Text(), failure.console);
    const auto kept = static_cast<uint32_t>(failure.kept.size());
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, failure.code == 0 ? kept : 0);
    ExpectMaximum(failure);
    gstSupportedBoardType.ulSupportedBoardTypeNum = kept;  // an abandoned load does not tell
    for (size_t i = 0; i < kept; ++i) {
      ASSERT_NE(gstSupportedBoardType.pBoardTypeArray[i], nullptr);
      EXPECT_EQ(gstSupportedBoardType.pBoardTypeArray[i]->ulType, failure.kept[i]);
    }
    for (void* const block : test::LostBlocks(faults)) {
      EXPECT_EQ(faults.blocks.at(block), sizeof(OltPortInformation));
    }
    test::ExpectAndReleaseLost(faults, failure.lost);
    test::ExpectNoLeak(faults);
  }

  test::Console console_;

 private:
  static void ExpectMaximum(const Failure& failure) {
    const bool found = failure.code == 0 && !failure.kept.empty();
    const uint32_t type = found ? failure.kept[0] : 0;
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonType, type);
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonNum, type == 5   ? 2u
                                                               : type == 6 ? 1u
                                                                           : 0u);
  }
};

// ---- Memory -------------------------------------------------------------------

string NoRecord(const string& section) {
  return "\r\nddReadOneSupportedBoardInformation->malloc err! pstBoardInformation = 0x0" +
         Left("-27", section);
}
string NoServingCopy(const string& place, const string& number, const string& section) {
  return "\r\nddCreateOneOltPortObjByName->malloc err! pstOltPortInformationOut = 0x0, ulIndex = " +
         place +
         "\r\nddAddSupportedServePortToBoardObj->dd_CreateOneOnuPonObjBySecName err! strKey = "
         "NameKeyPort" +
         number + NoServing("-1", section);
}
string NoSpecialCopy(const string& place, const string& number, const string& section) {
  return "\r\nddCreateOneOltPortObjByName->malloc err! pstOltPortInformationOut = 0x0, ulIndex = " +
         place +
         "\r\nddAddSupportedSpecialPortToBoardObj->dd_CreateOneOnuPonObjBySecName err! strKey = "
         "NameKeySpecialPort" +
         number + NoSpecial("-1", section);
}

const std::vector<Failure>& Allocations() {
  static const std::vector<Failure> allocations = {
      {-27, kNone, 0, "\r\nddReadAllSupportedOnuInformation->malloc err! pBoardTypeArray = 0x0"},
      {0, kSecond, 0, NoRecord("S1")},
      {0, kSecond, 0,
       "\r\nddAddSupportedServePortToBoardObj err! pstBoardInformation->pPortArray = 0x0" +
           NoServing("-27", "S1")},
      {0, kSecond, 0, NoServingCopy("0", "1", "S1")},
      {0, kSecond, 0, NoServingCopy("2", "2", "S1")},
      {0, kSecond, 0,
       "\r\nddAddSupportedSpecialPortToBoardObj err! pstBoardInformation->pSpecialPortArray = "
       "0x0" +
           NoSpecial("-27", "S1")},
      {0, kSecond, 2, NoSpecialCopy("1", "1", "S1")},
      {0, kSecond, 2, NoSpecialCopy("2", "2", "S1")},
      {0, kFirst, 0, NoRecord("S2")},
      {0, kFirst, 0,
       "\r\nddAddSupportedServePortToBoardObj err! pstBoardInformation->pPortArray = 0x0" +
           NoServing("-27", "S2")},
      {0, kFirst, 0, NoServingCopy("1", "1", "S2")},
  };
  return allocations;
}

TEST_F(ServiceBoardFaults, ALoadAllocatesWhatItsTableHolds) {
  BoardFaults faults(kFile);
  ExpectFailure(faults, {0, {5, 6}, 0, ""});
  EXPECT_EQ(faults.allocations.count(), static_cast<int>(Allocations().size()));
  EXPECT_EQ(faults.frees, 0);
}

TEST_F(ServiceBoardFaults, OneAllocationFails) {
  for (const int32_t debug : {0, 1}) {
    for (size_t failing = 1; failing <= Allocations().size(); ++failing) {
      SCOPED_TRACE(failing);
      BoardFaults faults(kFile, debug);
      faults.allocations.FailFrom(static_cast<int>(failing), 1);
      ExpectFailure(faults, Allocations()[failing - 1]);
      EXPECT_EQ(faults.closes, faults.opens.count());
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
}

TEST_F(ServiceBoardFaults, NoAllocationSucceedsFromOneOn) {
  for (size_t failing = 1; failing <= Allocations().size(); ++failing) {
    SCOPED_TRACE(failing);
    BoardFaults faults(kFile);
    faults.allocations.FailFrom(static_cast<int>(failing), test::FaultPlan::kForEver);
    Failure failure = Allocations()[failing - 1];
    if (failure.kept == kSecond) {
      failure.kept = kNone;
      failure.console += NoRecord("S2");
    }
    ExpectFailure(faults, failure);
    EXPECT_EQ(faults.closes, faults.opens.count());
    if (HasFailure()) {
      return;
    }
  }
}

TEST_F(ServiceBoardFaults, NoMemoryForTheListLeavesTheCount) {
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      BoardFaults faults(kFile, debug);
      faults.allocations.FailFrom(1, calls);
      gstSupportedBoardType = {9, nullptr, 0x7e7e, 0x6d6d};
      EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), -27);
      EXPECT_EQ(console_.Text(),
                "\r\nddReadAllSupportedOnuInformation->malloc err! pBoardTypeArray = 0x0");
      EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, 9u);
      EXPECT_EQ(gstSupportedBoardType.pBoardTypeArray, nullptr);
      EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonType, 0x7e7eu);
      EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonNum, 0x6d6du);
      EXPECT_EQ(faults.opens.count(), 1);  // the number; no entry is read
      EXPECT_EQ(faults.OwnBlocks(), 0u);
      EXPECT_TRUE(test::FakePlatform::Get().asked.empty());
    }
  }
}

// ---- The file -----------------------------------------------------------------

// The lookup's code stands for the "%".
string NoListKey(const string& key) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = %, section = SupportedBoardType, "
         "key = " +
         key;
}
string NotFound(const string& section) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = %, strSectionFrameNameBuf = " +
         section + ", Key = Type";
}
string NoType(const string& section) {
  return "\r\nddReadOneSupportedBoardInformation err! iResult = %, strSectionFrameNameBuf = " +
         section + ", Key = Type" + Left("-31", section);
}
string NoName(const string& section) {
  return "\r\nddReadOneSupportedBoardInformation err! iResult = %, section = " + section +
         ", key = Name" + Left("-31", section);
}
string NoServingKey(const string& code, const string& section, const string& key) {
  return "\r\nddAddSupportedServePortToBoardObj err! iResult = %, section = " + section +
         ", key = " + key + NoServing(code, section);
}
string NoSpecialKey(const string& code, const string& section, const string& key) {
  return "\r\nddAddSupportedSpecialPortToBoardObj err! iResult = %, section = " + section +
         ", key = " + key + NoSpecial(code, section);
}

const std::vector<Failure>& Lookups() {
  static const std::vector<Failure> lookups = {
      {-31, kNone, 0, NoListKey("SupportedBoardTypeNum")},
      {0, kSecond, 0, NoListKey("SupportedBoardType1")},
      {-31, kNone, 0, NotFound("S1")},
      {0, kSecond, 0, NoType("S1")},
      {0, kSecond, 0, NoName("S1")},
      {0, kSecond, 0, NoServingKey("-31", "S1", "PortNum")},
      {0, kSecond, 0, NoServingKey("-1", "S1", "NameKeyPort1")},
      {0, kSecond, 0, NoServingKey("-1", "S1", "NameKeyPort2")},
      {0, kSecond, 0, NoSpecialKey("-31", "S1", "SpecialPortNum")},
      {0, kSecond, 2, NoSpecialKey("-1", "S1", "NameKeySpecialPort1")},
      {0, kSecond, 2, NoSpecialKey("-1", "S1", "NameKeySpecialPort2")},
      {0, kFirst, 0, NoListKey("SupportedBoardType2")},
      {-31, kFirst, 0, NotFound("S2")},
      {0, kFirst, 0, NoType("S2")},
      {0, kFirst, 0, NoName("S2")},
      {0, kFirst, 0, NoServingKey("-31", "S2", "PortNum")},
      {0, kFirst, 0, NoServingKey("-1", "S2", "NameKeyPort1")},
      {0, kFirst, 0, NoSpecialKey("-31", "S2", "SpecialPortNum")},
  };
  return lookups;
}

// The file is small: each lookup opens it, seeks and reads once.
TEST_F(ServiceBoardFaults, LookupsOfALoad) {
  BoardFaults faults(kFile);
  ExpectFailure(faults, {0, {5, 6}, 0, ""});
  const int lookups = static_cast<int>(Lookups().size());
  EXPECT_EQ(faults.opens.count(), lookups);
  EXPECT_EQ(faults.seeks.count(), lookups);
  EXPECT_EQ(faults.reads.count(), lookups);
  EXPECT_EQ(faults.closes, lookups);
}

struct Step {
  const char* name;
  test::FaultPlan test::Faults::*plan;
  string code;
  int not_closed;  // failing steps whose file is never opened
  friend std::ostream& operator<<(std::ostream& out, const Step& step) { return out << step.name; }
};

class ServiceBoardLookups : public ServiceBoardFaults, public testing::WithParamInterface<Step> {};

INSTANTIATE_TEST_SUITE_P(ServiceBoards, ServiceBoardLookups,
                         testing::Values(Step{"Open", &test::Faults::opens, "-10", 1},
                                         Step{"Seek", &test::Faults::seeks, "-12", 0},
                                         Step{"Read", &test::Faults::reads, "-12", 0}),
                         testing::PrintToStringParamName());

TEST_P(ServiceBoardLookups, OneFails) {
  for (const int32_t debug : {0, 1}) {
    for (size_t failing = 1; failing <= Lookups().size(); ++failing) {
      SCOPED_TRACE(failing);
      BoardFaults faults(kFile, debug);
      (faults.*GetParam().plan).FailFrom(static_cast<int>(failing), 1);
      Failure failure = Lookups()[failing - 1];
      failure.console = With(failure.console, "%", GetParam().code);
      ExpectFailure(faults, failure);
      EXPECT_EQ(faults.closes, faults.opens.count() - GetParam().not_closed);
      if (HasFailure()) {
        return;
      }
    }
  }
}

// From a failing lookup on nothing can be read. The next board's place in the
// list is then missing, which leaves it out.
TEST_P(ServiceBoardLookups, NoneSucceedsFromOneOn) {
  for (size_t failing = 1; failing <= Lookups().size(); ++failing) {
    SCOPED_TRACE(failing);
    BoardFaults faults(kFile);
    (faults.*GetParam().plan).FailFrom(static_cast<int>(failing), test::FaultPlan::kForEver);
    Failure failure = Lookups()[failing - 1];
    if (failure.kept == kSecond) {
      failure.kept = kNone;
      failure.console += NoListKey("SupportedBoardType2");
    }
    failure.console = With(failure.console, "%", GetParam().code);
    ExpectFailure(faults, failure);
    if (HasFailure()) {
      return;
    }
  }
}

}  // namespace
