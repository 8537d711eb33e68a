// What all questions about an ONU type have in common: the refusals before the table is
// searched, which record answers, and what comes of the platform's answer.
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "catalog/onu/onu_query_tables.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kNull;
using test::kUntouched;
using test::PlacedOnu;

// ---- A check of the table as it never answers ------------------------------------------

struct CheckAnswer {
  int32_t code;
  uint32_t is_ok;
};
std::optional<CheckAnswer> check_answer;  // none: that of the library

}  // namespace

extern "C" {
int32_t __real_ddCheckSupportedOnuTypeNum(uint32_t* is_ok);
int32_t __wrap_ddCheckSupportedOnuTypeNum(uint32_t* is_ok);

int32_t __wrap_ddCheckSupportedOnuTypeNum(uint32_t* is_ok) {
  if (!check_answer) {
    return __real_ddCheckSupportedOnuTypeNum(is_ok);
  }
  *is_ok = check_answer->is_ok;
  return check_answer->code;
}
}

namespace {

// ---- The queries -------------------------------------------------------------------------

// All that the queries write to.
struct Output {
  uint32_t number = kUntouched;
  std::vector<uint32_t> list = {kUntouched, kUntouched, kUntouched, kUntouched};
  string name = string(60, '#');

  bool operator==(const Output&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Output& output) {
    return out << output.number << ", " << output.name << ", "
               << testing::PrintToString(output.list);
  }
};

uint32_t* Number(Output* output) {
  return output == nullptr ? nullptr : &output->number;
}

string Filled(const string& name) {
  return (name + '\0' + string(60, '#')).substr(0, 60);
}

// What of the platform's answer is passed on.
enum class Gives { kNumber, kNumberUpTo24, kList, kName };

// A query about ONU type 7, named KT-7.
struct Query {
  const char* name;
  int32_t (*ask)(Output* output);  // with null outputs when there are none
  string null_output;
  string check_failed;       // before the code
  bool tells_count = false;  // behind it, with the type
  string asked;
  Gives gives = Gives::kNumber;
  int32_t failure_code = -20;
  uint32_t failure_number = 0;
  Output answer;
  friend std::ostream& operator<<(std::ostream& out, const Query& query) {
    return out << query.name;
  }
};

const Query kQueries[] = {
    {.name = "GetOnuPonNumByType",
     .ask = [](Output* output) { return ddGetOnuPonNumByType(7, Number(output)); },
     .null_output = "\r\nddGetOnuPonNumByType, pulOnuPonNum = 0x0",
     .check_failed = "\r\nddGetOnuPonNumByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_pon_num_by_type 7",
     .answer = {.number = 1}},
    {.name = "GetOnuPonPortTypeByType",
     .ask = [](Output* output) { return ddGetOnuPonPortTypeByType(7, 1, Number(output)); },
     .null_output = "\r\nddGetOnuPonPortTypeByType, pulOnuPonType = 0x0",
     .check_failed = "\r\nddGetOnuPonPortTypeByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_pon_port_type_by_type 7 1",
     .answer = {.number = 31}},
    {.name = "GetOnuLanPortNumByType",
     .ask = [](Output* output) { return ddGetOnuLanPortNumByType(7, Number(output)); },
     .null_output = "\r\nddGetOnuLanPortNumByType, pulOnuLanPortNum = 0x0",
     .check_failed = "\r\nddGetOnuLanPortNumByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_lan_port_num_by_type 7",
     .gives = Gives::kNumberUpTo24,
     .answer = {.number = 2}},
    {.name = "GetOnuLanPortTypeByType",
     .ask = [](Output* output) { return ddGetOnuLanPortTypeByType(7, 2, Number(output)); },
     .null_output = "\r\nddGetOnuLanPortTypeByType, pulOnuLanPortType = 0x0",
     .check_failed = "\r\nddGetOnuPonPortTypeByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .tells_count = true,
     .asked = "cs_get_onu_lan_port_type_by_type 7 2",
     .answer = {.number = 33}},
    {.name = "GetOnuPotsPortNumByType",
     .ask = [](Output* output) { return ddGetOnuPotsPortNumByType(7, Number(output)); },
     .null_output = "\r\nddGetOnuPotsPortNumByType, pulOnuPotsPortNum = 0x0",
     .check_failed = "\r\nddGetOnuPotsPortNumByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_pots_port_num_by_type 7",
     .gives = Gives::kNumberUpTo24,
     .answer = {.number = 3}},
    {.name = "GetOnuPotsPortTypeByType",
     .ask = [](Output* output) { return ddGetOnuPotsPortTypeByType(7, 3, Number(output)); },
     .null_output = "\r\nddGetOnuPotsPortTypeByType, pulOnuPotsPortType = 0x0",
     .check_failed = "\r\nddGetOnuPotsPortTypeByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_pots_port_type_by_type 7 3",
     .failure_code = -1,
     .answer = {.number = 36}},
    {.name = "GetOnuSpecialPortNumByType",
     .ask = [](Output* output) { return ddGetOnuSpecialPortNumByType(7, 9, Number(output)); },
     .null_output = "\r\nddGetOnuSpecialPortNumByType, pulOnuSpecialPortNum = 0x0",
     .check_failed =
         "\r\nddGetOnuSpecialPortNumByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_special_port_num_by_type 7 9",
     .gives = Gives::kNumberUpTo24,
     .answer = {.number = 2}},
    {.name = "GetOnuSpecialPortAmount",
     .ask = [](Output* output) { return ddGetOnuSpecialPortAmount(7, Number(output)); },
     .null_output = "\r\nddGetOnuSpecialPortAmount, pulSpecialPortAmount = 0x0",
     .check_failed = "\r\nddGetOnuSpecialPortAmount->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_special_port_amount 7",
     .answer = {.number = 4}},
    {.name = "GetOnuSpecialPortTypeByPortNo",
     .ask = [](Output* output) { return ddGetOnuSpecialPortTypeByPortNo(7, 2, Number(output)); },
     .null_output = "\r\nddGetOnuSpecialPortTypeByPortNo, pulSpecialPortType = 0x0",
     .check_failed =
         "\r\nddGetOnuSpecialPortTypeByPortNo->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_special_port_type_by_port_no 7 2",
     .failure_number = kUntouched,
     .answer = {.number = 9}},
    {.name = "GetOnuSpecialPortTypeList",
     .ask =
         [](Output* output) {
           return ddGetOnuSpecialPortTypeList(7, output == nullptr ? nullptr : output->list.data(),
                                              100, Number(output));
         },
     .null_output =
         "\r\nddGetOnuSpecialPortTypeList, pulSpecialPortTypeArray = 0x0, pulSpecialPortTypeAmount = 0x0",
     .check_failed = "\r\nddGetOnuSpecialPortTypeList->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_special_port_type_list 7 100",
     .gives = Gives::kList,
     .answer = {.number = 3, .list = {8, 9, 6, kUntouched}}},
    {.name = "GetOnuNameByType",
     .ask =
         [](Output* output) {
           return ddGetOnuNameByType(7, output == nullptr ? nullptr : output->name.data());
         },
     .null_output = "\r\nddGetOnuNameByType, pcOnuName = 0x0",
     .check_failed = "\r\nddGetOnuNameByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_name_by_type 7",
     .gives = Gives::kName,
     .failure_number = kUntouched,
     .answer = {.name = Filled("KT-7")}},
    {.name = "GetOnuTypeByName",
     .ask =
         [](Output* output) {
           return ddGetOnuTypeByName(output == nullptr ? nullptr : "KT-7", Number(output));
         },
     .null_output = "\r\nddGetOnuTypeByName, strOnuName = 0x0, pulOnuType = 0x0",
     .check_failed = "\r\nddGetOnuTypeByName->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_get_onu_type_by_name KT-7",
     .failure_code = -32,
     .answer = {.number = 7}},
    {.name = "IsOnuSupportedByType",
     .ask = [](Output* output) { return ddIsOnuSupportedByType(7, Number(output)); },
     .null_output = "\r\nddIsOnuSupportedByType, pulIsSupported = 0x0",
     .check_failed = "\r\nddIsOnuSupportedByType->ddCheckSupportedOnuTypeNum err!, iResult = ",
     .asked = "cs_is_onu_supported_by_type 7",
     .answer = {.number = 1}},
};

const PlacedOnu kOnu7 = {.type = 7,
                         .name = "KT-7",
                         .pon = {{31}},
                         .lan = {{32, 33}},
                         .pots = {{34, 35, 36}},
                         .special = {{8, 9, 6, 9}}};
const PlacedOnu kOther = {.type = 8,
                          .name = "KT-8",
                          .pon = {{1, 1}},
                          .lan = {{1, 1, 1}},
                          .pots = {{1, 1, 1, 1}},
                          .special = {{1, 1, 1, 9, 9, 9}}};

class OnuQuery : public test::OnuTableTest, public testing::WithParamInterface<Query> {
 protected:
  void TearDown() override {
    check_answer.reset();
    OnuTableTest::TearDown();
  }

  void Expect(int32_t code, const Output& expected, const std::vector<string>& asked,
              const string& text = "") {
    AskPlatformTwice(asked, text, [&] {
      Output output;
      EXPECT_EQ(GetParam().ask(&output), code);
      EXPECT_EQ(output, expected);
    });
  }

  void ExpectNullRefused() {
    AskPlatformTwice({}, GetParam().null_output, [] { EXPECT_EQ(GetParam().ask(nullptr), -2); });
  }

  // The check says `check_text`, if it is the library's.
  void ExpectCheckFailure(int32_t code, uint32_t is_ok, const string& count,
                          const string& check_text) {
    string text = check_text + GetParam().check_failed + std::to_string(code) +
                  ", ulIsOk = " + std::to_string(is_ok);
    if (GetParam().tells_count) {
      text += ", ulOnuType = 7, ulSupportedOnuTypeNum = " + count;
    }
    Expect(code, Output(), {}, text);
  }

  // The platform answers 23, and this list and name.
  void ExpectPlatformAsked() {
    FakePlatform& platform = FakePlatform::Get();
    platform.onu_result = 0;
    platform.onu_number = 23;
    platform.onu_name = "KT-PLATFORM";
    platform.onu_list = {5, 4};
    Expect(0, PlatformAnswer(23), {GetParam().asked});
  }

  static Output PlatformAnswer(uint32_t number) {
    switch (GetParam().gives) {
      case Gives::kList:
        return {.number = 2, .list = {5, 4, kUntouched, kUntouched}};
      case Gives::kName:
        return {.name = Filled("KT-PLATFORM")};
      case Gives::kNumber:
      case Gives::kNumberUpTo24:
        break;
    }
    return {.number = number};
  }

  void ExpectAnswer() { Expect(0, GetParam().answer, {}); }
};

INSTANTIATE_TEST_SUITE_P(All, OnuQuery, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

// ---- Refusals ----------------------------------------------------------------------------

TEST_P(OnuQuery, NullOutput) {
  PutOnus({kOnu7});
  ExpectNullRefused();
}

TEST_P(OnuQuery, NullOutputBeforeTheCheckOfTheTable) {
  ExpectNullRefused();
  gstSupportedOnuType.ulSupportedOnuTypeNum = 201;
  ExpectNullRefused();
}

TEST_P(OnuQuery, CountAboveLimit) {
  const std::pair<uint32_t, const char*> rows[] = {
      {201, "201"}, {0x80000000, "-2147483648"}, {0xffffffff, "-1"}};
  for (const auto& [count, shown] : rows) {
    PutOnus({kOnu7});
    gstSupportedOnuType.ulSupportedOnuTypeNum = count;
    ExpectCheckFailure(-21, 0, shown,
                       string("\r\nddCheckSupportedOnuTypeNum, ulSupportedOnuTypeNum = ") + shown +
                           ", MAX_ONU_TYPE_NUM = 200");
  }
}

TEST_P(OnuQuery, NoArray) {
  const std::pair<uint32_t, const char*> rows[] = {{0, "0"}, {200, "200"}};
  for (const auto& [count, shown] : rows) {
    gstSupportedOnuType.ulSupportedOnuTypeNum = count;
    ExpectCheckFailure(-10, 0, shown,
                       string("\r\nddCheckSupportedOnuTypeNum, ulSupportedOnuTypeNum = ") + shown +
                           ", pOnuTypeArray = 0x0");
  }
}

TEST_P(OnuQuery, CheckWithoutCodeThatIsNotOk) {
  PutOnus({kOther, kOnu7});
  check_answer = CheckAnswer{0, 0};
  ExpectCheckFailure(0, 0, "2", "");
}

TEST_P(OnuQuery, CheckWithCodeThatIsOk) {
  PutOnus({kOther, kOnu7});
  for (const int32_t code : {-99, 1}) {
    check_answer = CheckAnswer{code, 1};
    ExpectCheckFailure(code, 1, "2", "");
  }
}

// ---- Which record answers ------------------------------------------------------------------

TEST_P(OnuQuery, OnlyOnu) {
  PutOnus({kOnu7});
  ExpectAnswer();
}

TEST_P(OnuQuery, BehindEmptyPlacesAndOthers) {
  PutOnus({kNull, kOther, kNull, kOnu7, kNull});
  ExpectAnswer();
}

TEST_P(OnuQuery, FirstOfThatTypeAndName) {
  PlacedOnu second = kOther;
  second.type = 7;
  PlacedOnu third = kOther;
  third.name = "KT-7";
  PutOnus({kOther, kOnu7, second, third});
  ExpectAnswer();
}

TEST_P(OnuQuery, LastOfAFullTable) {
  test::PlacedOnus onus(199, kOther);
  onus.push_back(kOnu7);
  PutOnus(onus);
  ExpectAnswer();
}

TEST_P(OnuQuery, ThePlatformIsAskedForAnotherTypeThanTheTables) {
  PlacedOnu wide = kOther;
  wide.type = 0x10007;
  PlacedOnu widest = kOther;
  widest.type = 0x80000007;
  PlacedOnu zero = kOther;
  zero.type = 0;
  PutOnus({kOther, wide, widest, zero});
  ExpectPlatformAsked();
}

TEST_P(OnuQuery, ThePlatformIsAskedWithoutTypes) {
  PutOnus({});
  ExpectPlatformAsked();
}

TEST_P(OnuQuery, ThePlatformIsAskedWithEmptyPlacesOnly) {
  PutOnus({kNull, kNull});
  ExpectPlatformAsked();
}

TEST_P(OnuQuery, ThePlatformIsAskedForWhatStandsBehindTheCount) {
  PutOnus({kOther, kOnu7});
  gstSupportedOnuType.ulSupportedOnuTypeNum = 1;
  ExpectPlatformAsked();
}

// ---- What the platform answers -------------------------------------------------------------

// A number, and as what it is passed on where there is a limit.
const std::pair<uint32_t, uint32_t> kNumbers[] = {
    {0, 0}, {1, 1}, {23, 23}, {24, 24}, {25, 24}, {32, 24}, {0x80000000, 24}, {0xffffffff, 24}};

TEST_P(OnuQuery, ThePlatformsAnswerIsPassedOn) {
  PutOnus({kOther});
  FakePlatform& platform = FakePlatform::Get();
  platform.onu_result = 0;
  platform.onu_name = "KT-PLATFORM";
  platform.onu_list = {5, 4};
  for (const auto& [number, limited] : kNumbers) {
    platform.onu_number = number;
    Expect(0, PlatformAnswer(GetParam().gives == Gives::kNumberUpTo24 ? limited : number),
           {GetParam().asked});
  }
}

TEST_P(OnuQuery, ThePlatformAnswersWithoutStoring) {
  PutOnus({kOther});
  FakePlatform& platform = FakePlatform::Get();
  platform.onu_result = 0;
  platform.onu_stores = false;
  Output expected;
  if (GetParam().gives == Gives::kNumber || GetParam().gives == Gives::kNumberUpTo24) {
    expected.number = 0;
  }
  Expect(0, expected, {GetParam().asked});
}

TEST_P(OnuQuery, ThePlatformFails) {
  PutOnus({kOther});
  FakePlatform& platform = FakePlatform::Get();
  platform.onu_stores = false;
  for (const int32_t result : {-1, 1, -20, INT32_MIN}) {
    platform.onu_result = result;
    Expect(GetParam().failure_code, {.number = GetParam().failure_number}, {GetParam().asked});
  }
}

// Numbers are stored with the library, names and lists with the caller.
TEST_P(OnuQuery, ThePlatformFailsAfterStoring) {
  PutOnus({kOther});
  FakePlatform& platform = FakePlatform::Get();
  platform.onu_number = 99;
  platform.onu_name = "GARBAGE";
  platform.onu_list = {3, 2, 1};
  Output expected = {.number = GetParam().failure_number};
  if (GetParam().gives == Gives::kList) {
    expected.list = {3, 2, 1, kUntouched};
  }
  if (GetParam().gives == Gives::kName) {
    expected.name = Filled("GARBAGE");
  }
  for (const int32_t result : {-1, 1}) {
    platform.onu_result = result;
    Expect(GetParam().failure_code, expected, {GetParam().asked});
  }
}

}  // namespace
