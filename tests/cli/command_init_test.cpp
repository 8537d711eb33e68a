// Installing the commands and registering the module.
#include <ostream>
#include <string>
#include <vector>

#include "support/tables.h"
#include "sys_context/cli.h"

namespace {

using std::string;
using test::FakePlatform;

// How many commands are installed when the module is registered.
size_t installed_before = 0;

}  // namespace

extern "C" {
int32_t __real_modInitRegister(const char* name, int32_t a, int32_t b, int32_t c, int32_t d,
                               int32_t e, int32_t f);
int32_t __wrap_modInitRegister(const char* name, int32_t a, int32_t b, int32_t c, int32_t d,
                               int32_t e, int32_t f);

int32_t __wrap_modInitRegister(const char* name, int32_t a, int32_t b, int32_t c, int32_t d,
                               int32_t e, int32_t f) {
  installed_before = FakePlatform::Get().installed.size();
  return __real_modInitRegister(name, a, b, c, d, e, f);
}
}  // extern "C"

namespace {

using Numbers = std::vector<int32_t>;

class CommandInit : public test::LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    installed_before = 0;
  }

  // All records into node 10, in the order of the command table. Only the last has further
  // numbers.
  static void ExpectInstalled() {
    CommandRecord* const expected[] = {
        &ddShowVersionInfo_CMD,         &ddShowAllModuleInfo_CMD,
        &ddShowSysSupportFuncInfo_CMD,  &ddShowMainBoardInfo_CMD,
        &ddShowOltPortInfo_CMD,         &ddShowAllBoardInfo_CMD,
        &ddShowFrameInfo_CMD,           &ddShowOnuPonInfo_CMD,
        &ddShowOnuLanInfo_CMD,          &ddShowOnuPotsInfo_CMD,
        &ddShowOnuSpecialPortInfo_CMD,  &ddShowAllSupportedOnuType_CMD,
        &ddShowOneSupportedOnuInfo_CMD, &ddShowAllSupportedOnu_CMD,
        &ddShowAllDevice_CMD,           &ddShowContextFile_CMD,
        &ddUploadContextFile_CMD,       &show_optmodule_info_cmd,
    };
    const std::vector<FakePlatform::Installed>& installed = FakePlatform::Get().installed;
    ASSERT_EQ(installed.size(), std::size(expected));
    for (size_t i = 0; i < installed.size(); ++i) {
      EXPECT_EQ(installed[i].node, 10) << i;
      EXPECT_EQ(installed[i].record, expected[i]) << i;
      EXPECT_EQ(installed[i].further, i < 17 ? Numbers{} : (Numbers{3, 0})) << i;
    }
    EXPECT_EQ(installed_before, 18u);
  }

  // The build date and time, such as "Sep  2 2021 03:51:06".
  static void ExpectBuildDate(const string& text) {
    ASSERT_EQ(text.size(), 20u) << text;
    constexpr string::size_type kNone = string::npos;
    const string months = " Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec ";
    EXPECT_NE(months.find(" " + text.substr(0, 3) + " "), kNone) << text;
    for (size_t i = 3; i < text.size(); ++i) {
      const string allowed[] = {
          " ",          " 123",       "0123456789", " ",       "0123456789", "0123456789",
          "0123456789", "0123456789", " ",          "012",     "0123456789", ":",
          "012345",     "0123456789", ":",          "0123456", "0123456789"};
      EXPECT_NE(allowed[i - 3].find(text[i]), kNone) << text << ", at " << i;
    }
    EXPECT_NE(text.substr(4, 2), " 0") << text;
  }

  test::Console console_;
};

TEST_F(CommandInit, InstallsThenRegisters) {
  FakePlatform& platform = FakePlatform::Get();
  platform.register_result = 42;
  EXPECT_EQ(ddCmdInit(0, 0, 0), 0);
  ExpectInstalled();
  EXPECT_EQ(platform.registered_modules, std::vector<string>{"SysContext"});
  EXPECT_EQ(platform.register_numbers, (std::vector<std::vector<int32_t>>{{0, 0, 0, 0, 0, 0}}));
  ASSERT_EQ(platform.versions.size(), 1u);
  EXPECT_EQ(platform.versions[0].module, 42);
  EXPECT_EQ(platform.versions[0].number, 1);
  ExpectBuildDate(platform.versions[0].text);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(platform.terminal, "");
}

TEST_F(CommandInit, IgnoresItsArguments) {
  EXPECT_EQ(ddCmdInit(-1, 17, INT32_MIN), 0);
  ExpectInstalled();
  EXPECT_EQ(FakePlatform::Get().register_numbers.front(), std::vector<int32_t>(6, 0));
  EXPECT_EQ(FakePlatform::Get().versions.front().number, 1);
}

TEST_F(CommandInit, IgnoresWhatTheShellAnswers) {
  for (const int32_t answer : {-1, -5, 1}) {
    FakePlatform::Reset();
    FakePlatform::Get().install_result = answer;
    FakePlatform::Get().vk_install_result = answer;
    EXPECT_EQ(ddCmdInit(0, 0, 0), 0);
    ExpectInstalled();
    EXPECT_EQ(FakePlatform::Get().versions.size(), 1u);
    EXPECT_EQ(console_.Text(), "");
  }
}

// Alone, the command of the optical modules is told what the shell answers.
TEST_F(CommandInit, InstallsTheOpticalModulesCommandAlone) {
  for (const int32_t answer : {0, 1, -1, -5, INT32_MIN}) {
    FakePlatform::Reset();
    FakePlatform::Get().install_result = 9;
    FakePlatform::Get().vk_install_result = answer;
    EXPECT_EQ(install_gepon_optmodule_inforead_element(), answer);
    const std::vector<FakePlatform::Installed>& installed = FakePlatform::Get().installed;
    ASSERT_EQ(installed.size(), 1u);
    EXPECT_EQ(installed[0].node, 10);
    EXPECT_EQ(installed[0].record, &show_optmodule_info_cmd);
    EXPECT_EQ(installed[0].further, (Numbers{3, 0}));
    EXPECT_TRUE(FakePlatform::Get().registered_modules.empty());
  }
}

TEST_F(CommandInit, ModuleNotRegistered) {
  for (const int32_t debug : {0, 1}) {
    FakePlatform::Reset();
    ddDebugPrint = debug;
    FakePlatform::Get().register_result = -1;
    EXPECT_EQ(ddCmdInit(0, 0, 0), -1);
    EXPECT_EQ(console_.Text(), "\r\nddCmdInit->modInitRegister err! iModId = -1");
    EXPECT_TRUE(FakePlatform::Get().versions.empty());
    ExpectInstalled();
    // The commands remain usable.
    CommandRecord* const record = FakePlatform::Get().installed.front().record;
    EXPECT_EQ(record->func(record, nullptr, 0, nullptr), 0);
    EXPECT_NE(FakePlatform::Get().terminal, "");
  }
}

struct AnswerRow {
  const char* name;
  int32_t module;
  int32_t answer;
  int32_t code;
  string console_start = "";  // the build date follows
  friend std::ostream& operator<<(std::ostream& out, const AnswerRow& row) {
    return out << row.name;
  }
};

class ModuleVersion : public CommandInit, public testing::WithParamInterface<AnswerRow> {};

TEST_P(ModuleVersion, AnswerDecides) {
  for (const int32_t debug : {0, 1}) {
    FakePlatform::Reset();
    FakePlatform& platform = FakePlatform::Get();
    ddDebugPrint = debug;
    platform.register_result = GetParam().module;
    platform.version_result = GetParam().answer;
    EXPECT_EQ(ddCmdInit(0, 0, 0), GetParam().code);
    ASSERT_EQ(platform.versions.size(), 1u);
    EXPECT_EQ(platform.versions[0].module, GetParam().module);
    const string& start = GetParam().console_start;
    EXPECT_EQ(console_.Text(), start.empty() ? "" : start + platform.versions[0].text);
    ExpectInstalled();
  }
}

const AnswerRow kAnswers[] = {
    {"Zero", 7, 0, 0},
    {"Positive", 7, 3, 0},
    {"MinusOne", 7, -1, -1, "\r\nddCmdInit->setModVersion err! ret = -1, iModId = 7, date = "},
    {"MinusNine", 7, -9, -9, "\r\nddCmdInit->setModVersion err! ret = -9, iModId = 7, date = "},
    {"Lowest", 7, INT32_MIN, INT32_MIN,
     "\r\nddCmdInit->setModVersion err! ret = -2147483648, iModId = 7, date = "},
    {"ModuleZero", 0, 0, 0},
    {"OnlyMinusOneIsNoModule", -2, 0, 0},
    {"ModuleMinusTwoFails", -2, -4, -4,
     "\r\nddCmdInit->setModVersion err! ret = -4, iModId = -2, date = "},
};
INSTANTIATE_TEST_SUITE_P(Cli, ModuleVersion, testing::ValuesIn(kAnswers),
                         testing::PrintToStringParamName());

TEST_F(CommandInit, ReadsNoTableAndNoFile) {
  gstVersionInformation.ulSupportedSoftVerNum = 0xffffffff;
  gstModuleTypeList.ulModuleTypeNum = 0xffffffff;
  gstSupportedOltPortType.ulSupportedOltPortTypeNum = 0xffffffff;
  gstSupportedMainBoardType.ulSupportedBoardTypeNum = 0xffffffff;
  gstSupportedBoardType.ulSupportedBoardTypeNum = 0xffffffff;
  gstFrame.ulSwitchChipLogicPortNum = 0xffffffff;
  gstSupportedOnuPonType.ulSupportedOnuPonTypeNum = 0xffffffff;
  gstSupportedOnuLanType.ulSupportedOnuLanTypeNum = 0xffffffff;
  gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum = 0xffffffff;
  gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum = 0xffffffff;
  gstSupportedOnuType.ulSupportedOnuTypeNum = 0xffffffff;
  g_optmdule_infolist.listnum = 0xffff;
  EXPECT_EQ(ddCmdInit(0, 0, 0), 0);
  EXPECT_EQ(FakePlatform::Get().terminal, "");
  EXPECT_TRUE(FakePlatform::Get().asked.empty());
  EXPECT_TRUE(FakePlatform::Get().log.empty());
  EXPECT_EQ(console_.Text(), "");
}

}  // namespace
