// The handler of the upload: which addresses it refuses, in which order it asks for them,
// and what it hands on.
#include <ostream>
#include <string>
#include <vector>

#include "support/faults.h"
#include "support/tables.h"
#include "sys_context/cli.h"

namespace {

using std::string;
using test::FakePlatform;

class UploadCommand : public test::LibraryTest {
 protected:
  // Calls the handler with the first of these words, as a shell would.
  void ExpectAnswer(int32_t code, std::vector<string> words, const string& text) {
    std::vector<char*> arguments;
    for (string& word : words) {
      arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    int terminal = 0;
    FakePlatform& platform = FakePlatform::Get();
    EXPECT_EQ(ddUploadContextFile_Func(&ddUploadContextFile_CMD, &terminal,
                                       static_cast<int32_t>(words.size()), arguments.data()),
              code);
    EXPECT_EQ(platform.terminal, text);
    for (const void* const used : platform.terminals_used) {
      EXPECT_EQ(used, &terminal);
    }
    EXPECT_EQ(console_.Text(), "");
    EXPECT_TRUE(platform.log.empty());
  }

  test::Console console_;
};

constexpr char kPleaseWait[] = "\r\nThis will need seconds of time, please wait...\r\n";
constexpr char kCommandError[] = "Command error!\r\n";

// ---- Refusals -----------------------------------------------------------------------------

struct RefusalRow {
  const char* name;
  std::vector<string> words;
  int32_t manage_result;
  int32_t outband_result;
  string text;
  std::vector<string> asked;
  friend std::ostream& operator<<(std::ostream& out, const RefusalRow& row) {
    return out << row.name;
  }
};

class RefusedUpload : public UploadCommand, public testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusedUpload, AsksNoFurther) {
  for (const int32_t debug : {0, 1}) {
    FakePlatform::Reset();
    ddDebugPrint = debug;
    FakePlatform::Get().manage_result = GetParam().manage_result;
    FakePlatform::Get().outband_result = GetParam().outband_result;
    ExpectAnswer(-1, GetParam().words, GetParam().text);
    EXPECT_EQ(FakePlatform::TakeAsked(), GetParam().asked);
    EXPECT_TRUE(FakePlatform::Get().uploads.empty());
  }
}

const std::vector<string> kFour = {"192.168.8.1", "operator", "secret", "dd.ini"};
const std::vector<string> kFive = {"192.168.8.1", "operator", "secret", "dd.ini", "more"};
const std::vector<string> kThree = {"192.168.8.1", "operator", "secret"};
const std::vector<string> kAskedForManage = {"manage 192.168.8.1"};
const std::vector<string> kAskedForBoth = {"manage 192.168.8.1", "outband 192.168.8.1"};

const RefusalRow kRefusals[] = {
    {"ManageAddress", kFour, 1, 0, "", kAskedForManage},
    {"ManageAddressByAnyOtherAnswer", kFour, -1, 0, "", kAskedForManage},
    {"ManageAddressByLargeAnswer", kFour, 256, 0, "", kAskedForManage},
    {"ManageAddressIsAskedForFirst", kFour, 1, 1, "", kAskedForManage},
    {"ManageAddressBeforeTooFewWords", {"192.168.8.1"}, 1, 0, "", kAskedForManage},
    {"ManageAddressBeforeTooManyWords", kFive, 1, 0, "", kAskedForManage},
    {"OutbandAddress", kFour, 0, 1, "", kAskedForBoth},
    {"OutbandAddressByAnyOtherAnswer", kFour, 0, -1, "", kAskedForBoth},
    {"OutbandAddressByLargeAnswer", kFour, 0, 256, "", kAskedForBoth},
    {"OutbandAddressBeforeTooFewWords", kThree, 0, 1, "", kAskedForBoth},
    {"OutbandAddressBeforeTooManyWords", kFive, 0, 1, "", kAskedForBoth},
    {"NoWord", {}, 0, 0, kCommandError, {}},
    {"NoWordWhateverTheAddresses", {}, 1, 1, kCommandError, {}},
    {"OneWord", {"192.168.8.1"}, 0, 0, kCommandError, kAskedForBoth},
    {"TwoWords", {"192.168.8.1", "operator"}, 0, 0, kCommandError, kAskedForBoth},
    {"ThreeWords", kThree, 0, 0, kCommandError, kAskedForBoth},
    {"FiveWords", kFive, 0, 0, kCommandError, kAskedForBoth},
};
INSTANTIATE_TEST_SUITE_P(Cli, RefusedUpload, testing::ValuesIn(kRefusals),
                         testing::PrintToStringParamName());

// ---- Addresses ----------------------------------------------------------------------------

struct AddressRow {
  const char* name;
  const char* word;
  const char* asked;  // for the manage address; the other question has the word as it is
  friend std::ostream& operator<<(std::ostream& out, const AddressRow& row) {
    return out << row.name;
  }
};

class UploadAddress : public UploadCommand, public testing::WithParamInterface<AddressRow> {};

TEST_P(UploadAddress, IsAskedFor) {
  ExpectAnswer(-1, {GetParam().word}, kCommandError);
  EXPECT_EQ(FakePlatform::TakeAsked(), (std::vector<string>{string("manage ") + GetParam().asked,
                                                            string("outband ") + GetParam().word}));
}

const AddressRow kAddresses[] = {
    {"Usual", "10.20.30.40", "10.20.30.40"},
    {"Zero", "0.0.0.0", "0.0.0.0"},
    {"Largest", "255.255.255.255", "255.255.255.255"},
    {"TwoNumbers", "10.1", "10.0.0.1"},
    {"Octal", "010.0.0.1", "8.0.0.1"},
    {"NoAddress", "server", "255.255.255.255"},
    {"TooLarge", "192.168.8.256", "255.255.255.255"},
    {"FiveNumbers", "1.2.3.4.5", "255.255.255.255"},
    {"Empty", "", "255.255.255.255"},
};
INSTANTIATE_TEST_SUITE_P(Cli, UploadAddress, testing::ValuesIn(kAddresses),
                         testing::PrintToStringParamName());

// ---- The upload ---------------------------------------------------------------------------

const std::vector<string> kAskedForAnUpload = {
    "manage 192.168.8.1", "outband 192.168.8.1", "flash_sizeof /mnt/work/device_definition.ini",
    "flash_read /mnt/work/device_definition.ini 8", "upload"};

TEST_F(UploadCommand, HandsOnTheFourWords) {
  FakePlatform::Get().flash = "[A]\nb=c\n";
  ExpectAnswer(0, kFour, string(kPleaseWait) + "Upload the context file success!\r\n");
  EXPECT_EQ(FakePlatform::Get().uploads,
            (std::vector<FakePlatform::Upload>{
                {"192.168.8.1", "operator", "secret", "dd.ini", "[A]\nb=c\n"}}));
  EXPECT_EQ(FakePlatform::TakeAsked(), kAskedForAnUpload);
}

TEST_F(UploadCommand, HandsOnWordsThatMeanNothing) {
  FakePlatform::Get().flash = "[A]\nb=c\n";
  ExpectAnswer(0, {"server", "", "%s%n", " "},
               string(kPleaseWait) + "Upload the context file success!\r\n");
  EXPECT_EQ(FakePlatform::Get().uploads,
            (std::vector<FakePlatform::Upload>{{"server", "", "%s%n", " ", "[A]\nb=c\n"}}));
}

TEST_F(UploadCommand, AnswersNothingOfAFailedUpload) {
  FakePlatform::Get().flash = "[A]\nb=c\n";
  for (const int32_t result : {-1, 1, 550}) {
    FakePlatform::Get().upload_result = result;
    FakePlatform::Get().terminal.clear();
    ExpectAnswer(
        0, kFour,
        string(kPleaseWait) + "Fail to upload the context file, please check the ftp setting!\r\n");
    EXPECT_EQ(FakePlatform::TakeAsked(), kAskedForAnUpload);
  }
}

// Here the upload itself answers -1.
TEST_F(UploadCommand, AnswersNothingOfMissingMemory) {
  test::Faults faults;
  faults.allocations.FailFrom(1, test::FaultPlan::kForEver);
  ExpectAnswer(
      0, kFour,
      string(kPleaseWait) + "\r\nddUploadContextFile:no enough memory for ftp buffer.\r\n");
  EXPECT_TRUE(FakePlatform::Get().uploads.empty());
}

TEST_F(UploadCommand, NeedsNoTerminalAndNoRecord) {
  string words[] = {"192.168.8.1", "operator", "secret", "dd.ini"};
  char* arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(), nullptr};
  EXPECT_EQ(ddUploadContextFile_Func(nullptr, nullptr, 4, arguments), 0);
  EXPECT_EQ(FakePlatform::Get().uploads.size(), 1u);
  EXPECT_EQ(ddUploadContextFile_Func(nullptr, nullptr, 0, nullptr), -1);
  for (const void* const used : FakePlatform::Get().terminals_used) {
    EXPECT_EQ(used, nullptr);
  }
}

TEST_F(UploadCommand, NegativeNumberOfWords) {
  int terminal = 0;
  EXPECT_EQ(ddUploadContextFile_Func(nullptr, &terminal, -1, nullptr), -1);
  EXPECT_EQ(FakePlatform::Get().terminal, kCommandError);
  EXPECT_TRUE(FakePlatform::Get().asked.empty());
}

}  // namespace
