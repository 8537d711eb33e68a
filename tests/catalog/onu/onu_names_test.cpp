// Names and types of ONU types; whether a type is supported.
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "catalog/onu/onu_query_tables.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kUntouched;
using test::PlacedOnu;

const string k59(59, 'n');

// ---- The name of a type --------------------------------------------------------------------

class OnuNameByType : public test::OnuTableTest {
 protected:
  // Of a buffer of 60 characters, all '#'.
  void Expect(uint32_t type, int32_t code, const string& buffer,
              const std::vector<string>& asked = {}) {
    ASSERT_EQ(buffer.size(), 60u);
    AskPlatformTwice(asked, "", [&] {
      string name(60, '#');
      EXPECT_EQ(ddGetOnuNameByType(type, name.data()), code);
      EXPECT_EQ(name, buffer);
    });
  }
};

TEST_F(OnuNameByType, IsCopiedWithItsTerminatorOnly) {
  PutOnus({PlacedOnu{1, "KT-G101"}, PlacedOnu{2, k59}, PlacedOnu{3, ""},
           PlacedOnu{.type = 4, .name = "KT 4 \xc3\xa4"}});
  Expect(1, 0, string("KT-G101\0", 8) + string(52, '#'));
  Expect(2, 0, k59 + '\0');
  Expect(3, 0, '\0' + string(59, '#'));
  Expect(4, 0, string("KT 4 \xc3\xa4\0", 8) + string(52, '#'));
}

TEST_F(OnuNameByType, HasTheStoredLength) {
  PutOnus({PlacedOnu{.type = 1, .name = "KT-G101", .name_length = 4},
           PlacedOnu{.type = 2, .name = string(60, 'n'), .name_length = 60},
           PlacedOnu{.type = 3, .name = "KT-G103", .name_length = 10}});
  Expect(1, 0, "KT-G" + string(56, '#'));
  Expect(2, 0, string(60, 'n'));
  Expect(3, 0, string("KT-G103\0\0\0", 10) + string(50, '#'));
}

TEST_F(OnuNameByType, ACorruptOneIsPassedOver) {
  for (const uint32_t length : {61u, 0x80000000u, 0xffffffffu}) {
    const PlacedOnu corrupt = {.type = 7, .name = "CORRUPT", .name_length = length};
    PutOnus({corrupt, PlacedOnu{8, "OTHER"}, PlacedOnu{7, "SECOND"}, PlacedOnu{7, "THIRD"}});
    Expect(7, 0, string("SECOND\0", 7) + string(53, '#'));
    PutOnus({corrupt, PlacedOnu{8, "OTHER"}});
    Expect(7, -20, string(60, '#'), {"cs_get_onu_name_by_type 7"});
    Expect(8, 0, string("OTHER\0", 6) + string(54, '#'));
  }
}

// ---- The type of a name --------------------------------------------------------------------

struct NameRow {
  const char* name;
  string asked;
  PlacedOnu onu;
  bool is_found;
  friend std::ostream& operator<<(std::ostream& out, const NameRow& row) { return out << row.name; }
};

const NameRow kNames[] = {
    {"Same", "KT-G101", {1, "KT-G101"}, true},
    {"Empty", "", {1, ""}, true},
    {"Longest", k59, {1, k59}, true},
    {"WithBlanks", " KT G ", {1, " KT G "}, true},
    {"BeginningOfTheStored", "KT-G10", {1, "KT-G101"}, false},
    {"StoredIsItsBeginning", "KT-G1012", {1, "KT-G101"}, false},
    {"EmptyForAnyStored", "", {1, "KT-G101"}, false},
    {"AnyForEmptyStored", "KT-G101", {1, ""}, false},
    {"OtherCase", "kt-g101", {1, "KT-G101"}, false},
    {"OtherCaseOfOneLetter", "KT-g101", {1, "KT-G101"}, false},
    {"OtherFirst", "XT-G101", {1, "KT-G101"}, false},
    {"OtherLast", "KT-G102", {1, "KT-G101"}, false},
    {"LongerThanAnyField", k59 + "n", {1, k59}, false},
    {"MuchLonger", string(300, 'n'), {1, k59}, false},
    {"StoredFillsItsField",
     string(60, 'n'),
     {.type = 1, .name = string(60, 'n'), .name_length = 61},
     false},
    {"CorruptLength", "KT-G101", {.type = 1, .name = "KT-G101", .name_length = 61}, false},
    {"LengthOverflow", "KT-G101", {.type = 1, .name = "KT-G101", .name_length = 0xffffffff}, false},
    {"StoredLengthOnly", "KT-X", {.type = 1, .name = "KT-G101", .name_length = 3}, true},
    {"OtherInStoredLength", "KTX", {.type = 1, .name = "KT-G101", .name_length = 3}, false},
    {"NoTerminatorInALengthOf60",
     string(60, 'n') + "x",
     {.type = 1, .name = string(60, 'n'), .name_length = 60},
     true},
};

class OnuTypeByName : public test::OnuTableTest, public testing::WithParamInterface<NameRow> {};

TEST_P(OnuTypeByName, IsThatOfTheRecordOrThePlatforms) {
  const NameRow& row = GetParam();
  PutOnus({PlacedOnu{9, "OTHER"}, row.onu});
  FakePlatform::Get().onu_result = 0;
  FakePlatform::Get().onu_number = 77;
  std::vector<string> asked;
  if (!row.is_found) {
    asked.push_back("cs_get_onu_type_by_name " + row.asked);
  }
  AskPlatformTwice(asked, "", [&] {
    uint32_t type = kUntouched;
    EXPECT_EQ(ddGetOnuTypeByName(row.asked.c_str(), &type), 0);
    EXPECT_EQ(type, row.is_found ? 1u : 77u);
  });
}

INSTANTIATE_TEST_SUITE_P(All, OnuTypeByName, testing::ValuesIn(kNames),
                         testing::PrintToStringParamName());

class OnuTypes : public test::OnuTableTest {};

TEST_F(OnuTypes, OfANameWithAPointerMissing) {
  PutOnus({PlacedOnu{1, "KT-G101"}});
  const char* const name = "KT-G101";
  AskPlatformTwice({},
                   "\r\nddGetOnuTypeByName, strOnuName = " + test::Hex(name) + ", pulOnuType = 0x0",
                   [=] { EXPECT_EQ(ddGetOnuTypeByName(name, nullptr), -2); });
  uint32_t type = kUntouched;
  AskPlatformTwice({}, "\r\nddGetOnuTypeByName, strOnuName = 0x0, pulOnuType = " + test::Hex(&type),
                   [&] { EXPECT_EQ(ddGetOnuTypeByName(nullptr, &type), -2); });
  EXPECT_EQ(type, kUntouched);
}

TEST_F(OnuTypes, ZeroIsOneLikeOthers) {
  PutOnus({PlacedOnu{.type = 5, .name = "FIVE", .lan = {{1}}},
           PlacedOnu{.type = 0, .name = "ZERO", .lan = {{8, 9}}}});
  uint32_t number = kUntouched;
  EXPECT_EQ(ddGetOnuLanPortNumByType(0, &number), 0);
  EXPECT_EQ(number, 2u);
  EXPECT_EQ(ddGetOnuLanPortTypeByType(0, 2, &number), 0);
  EXPECT_EQ(number, 9u);
  EXPECT_EQ(ddIsOnuSupportedByType(0, &number), 0);
  EXPECT_EQ(number, 1u);
  EXPECT_EQ(ddGetOnuTypeByName("ZERO", &number), 0);
  EXPECT_EQ(number, 0u);
  test::ExpectNameCopied(ddGetOnuNameByType, 0, 0, "ZERO");
  EXPECT_TRUE(FakePlatform::TakeAsked().empty());
}

TEST_F(OnuTypes, AreAskedOfThePlatformAsTheyAre) {
  PutOnus({PlacedOnu{.type = 5}});
  const std::pair<uint32_t, const char*> rows[] = {
      {0, "cs_is_onu_supported_by_type 0"},
      {0x10005, "cs_is_onu_supported_by_type 65541"},
      {0x80000005, "cs_is_onu_supported_by_type 2147483653"},
      {0xffffffff, "cs_is_onu_supported_by_type 4294967295"}};
  for (const auto& [type, asked] : rows) {
    uint32_t is_supported = kUntouched;
    EXPECT_EQ(ddIsOnuSupportedByType(type, &is_supported), -20);
    EXPECT_EQ(is_supported, 0u);
    EXPECT_EQ(FakePlatform::TakeAsked(), std::vector<string>{asked});
  }
}

}  // namespace
