// The service boards when memory runs out or the file fails: at every allocation
// and every lookup of a load.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "catalog/load_faults.h"
#include "catalog/olt/service_boards.h"
#include "support/rows.h"

namespace {

using std::string;
using test::BoardFaults;
using test::FaultyLoad;
using test::kFirst;
using test::kNone;
using test::kSecond;
using test::LoadFailure;
using test::LoadFaults;
using test::LoadFileFaults;

const string kFile = test::BoardList({"S1", "S2"}) +
                     test::BoardSection("S1", "5", "N1", {"GPON", "GE"}, {"XGSPON", "GE"}) +
                     test::BoardSection("S2", "6", "N2", {"XGSPON"});

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

// ---- The load -----------------------------------------------------------------

std::shared_ptr<test::Faults> Watch(int32_t debug) {
  test::FakePlatform::Get().pon_cards = {5, 6};
  return std::make_shared<BoardFaults>(kFile, debug);
}

int32_t Load() {
  return ddReadAllSupportedBoardInformation(BoardFaults::kPath);
}

void ExpectTable(const LoadFailure& failure) {
  const auto kept = static_cast<uint32_t>(failure.kept.size());
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, failure.code == 0 ? kept : 0);
  const uint32_t first = failure.code == 0 && kept != 0 ? failure.kept[0] : 0;
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonType, first);
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonNum, first == 5   ? 2u
                                                             : first == 6 ? 1u
                                                                          : 0u);
  gstSupportedBoardType.ulSupportedBoardTypeNum = kept;  // an abandoned load does not tell
  for (size_t i = 0; i < kept; ++i) {
    ASSERT_NE(gstSupportedBoardType.pBoardTypeArray[i], nullptr);
    EXPECT_EQ(gstSupportedBoardType.pBoardTypeArray[i]->ulType, failure.kept[i]);
  }
}

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

const std::vector<LoadFailure>& Allocations() {
  static const std::vector<LoadFailure> allocations = {
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

const std::vector<LoadFailure>& Lookups() {
  static const std::vector<LoadFailure> lookups = {
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

// ---- The tests ----------------------------------------------------------------

const FaultyLoad& ServiceBoards() {
  static const FaultyLoad load = {
      .name = "ServiceBoards",
      .watch = Watch,
      .run = Load,
      .expect = ExpectTable,
      .port_size = sizeof(OltPortInformation),
      .allocations = Allocations,
      .lookups = Lookups,
      .also_no_record = NoRecord("S2"),
      .also_no_entry = NoListKey("SupportedBoardType2"),
  };
  return load;
}
INSTANTIATE_TEST_SUITE_P(Of, LoadFaults, testing::Values(ServiceBoards()),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Of, LoadFileFaults,
                         testing::Combine(testing::Values(ServiceBoards()),
                                          testing::Values(test::kOpenFails, test::kSeekFails,
                                                          test::kReadFails)),
                         test::KindAndRow());

class ServiceBoardFaults : public test::LibraryTest {
 protected:
  test::Console console_;
};

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

}  // namespace
