// Tables to print, and what a printer makes of them.
#pragma once

#include <cstring>
#include <functional>
#include <string>

#include "support/tables.h"
#include "sys_context/cli.h"

namespace test {

class PrinterTest : public LibraryTest {
 protected:
  void TearDown() override {
    gstModuleTypeList = {};  // its records are this fixture's
    LibraryTest::TearDown();
  }

  static void AddVersion(const std::string& text) {
    SupportedSoftVer& entry =
        gstVersionInformation.astSupportedSoftVer[gstVersionInformation.ulSupportedSoftVerNum++];
    entry.ulSupportedSoftVerLen = static_cast<uint32_t>(text.size() + 1);
    std::memcpy(entry.acSupportedSoftVer, text.c_str(), text.size() + 1);
  }
  void AddModule(uint32_t type, const std::string& name, uint32_t size) {
    records_[used_] = {type, static_cast<uint32_t>(name.size() + 1), "", size};
    std::memcpy(records_[used_].acName, name.c_str(), name.size() + 1);
    AddPlace(&records_[used_++]);
  }
  void AddPlace(ModuleInformation* record) {
    places_[gstModuleTypeList.ulModuleTypeNum++] = record;
    gstModuleTypeList.pModuleTypeArray = places_;
  }
  static void AddFunction(uint32_t type) {
    SysSupportFuncType& table = gstSysSupportFuncType;
    table.aulSupportedSysFunctionType[table.ulSupportedSysFunctionTypeNum++] = type;
  }

  // What a printer writes on the terminal it is given, and nowhere else. Where
  // it pauses for 2 ticks, there is a "<pause 2>" in the text.
  struct Printed {
    int32_t code;
    std::string text;
  };
  static Printed Print(const std::function<int32_t(void* vty)>& printer) {
    FakePlatform::Reset();
    int terminal = 0;
    const int32_t code = printer(&terminal);
    for (const void* const used : FakePlatform::Get().terminals_used) {
      EXPECT_EQ(used, &terminal);
    }
    return {code, TerminalWithPauses()};
  }
  static std::string TerminalWithPauses() {
    const FakePlatform& platform = FakePlatform::Get();
    std::string text = platform.terminal;
    for (size_t i = platform.delays.size(); i > 0; --i) {
      text.insert(platform.shown_before_delays[i - 1],
                  "<pause " + std::to_string(platform.delays[i - 1]) + ">");
    }
    return text;
  }
  static void ExpectNoPause(const Printed& printed) {
    EXPECT_EQ(printed.text.find("<pause"), std::string::npos) << printed.text;
  }

  ModuleInformation records_[MAX_SUPPORTED_MODULE_TYPE_NUM] = {};
  ModuleInformation* places_[MAX_SUPPORTED_MODULE_TYPE_NUM] = {};
  size_t used_ = 0;
  Console console_;
};

#define EXPECT_PRINTED(printer, expected_code, expected_text) \
  do {                                                        \
    const Printed printed = Print(printer);                   \
    EXPECT_EQ(printed.code, expected_code);                   \
    EXPECT_EQ(printed.text, expected_text);                   \
    EXPECT_EQ(console_.Text(), "");                           \
  } while (false)

}  // namespace test
