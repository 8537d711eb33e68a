// A command with arguments, on the tables of a sample. The bytes are
//
//   COMMAND ARGC NULL   a line: the name of its record; how many of the words are told to be
//                       there, all of them without a number; "null" for no terminal
//   a word              a line each
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/lines.h"
#include "fuzz/platform.h"
#include "fuzz/samples.h"
#include "fuzz/targets.h"
#include "support/fake_platform.h"
#include "support/faults.h"
#include "sys_context/cli.h"

namespace fuzz {
namespace {

using test::FakePlatform;

constexpr char kStoredText[] = "[Version]\nSupportedSoftwareVer=1\n";

char terminal;

CommandRecord* CommandNamed(std::string_view name) {
  static const std::vector<FakePlatform::Installed> installed = [] {
    FakePlatform::Reset();
    ddCmdInit(0, 0, 0);
    return FakePlatform::Get().installed;
  }();
  for (const FakePlatform::Installed& command : installed) {
    if (command.record->name == name) {
      return command.record;
    }
  }
  return nullptr;
}

// What a command returned and wrote.
struct Result {
  int32_t code = 0;
  std::string shown;
  std::vector<FakePlatform::Upload> uploads = {};
  bool operator==(const Result&) const = default;
};

template <typename Call>
Result ResultOf(const Call& call) {
  FakePlatform& platform = FakePlatform::Get();
  platform.terminal.clear();
  platform.uploads.clear();
  Result result;
  result.code = call();
  result.shown = platform.terminal;
  result.uploads = platform.uploads;
  platform.terminals_used.clear();
  platform.asked.clear();
  platform.delays.clear();
  platform.shown_before_delays.clear();
  return result;
}

Result ExpectedUpload(const std::vector<std::string>& words) {
  const FakePlatform& platform = FakePlatform::Get();
  if (!words.empty() && (platform.manage_result != 0 || platform.outband_result != 0)) {
    return {-1, ""};
  }
  if (words.size() != 4) {
    return {-1, "Command error!\r\n"};
  }
  return {0,
          std::string("\r\nThis will need seconds of time, please wait...\r\n") +
              (platform.upload_result == 0
                   ? "Upload the context file success!\r\n"
                   : "Fail to upload the context file, please check the ftp setting!\r\n"),
          {{words[0], words[1], words[2], words[3], kStoredText}}};
}

int32_t FirstNumber(const std::vector<std::string>& words) {
  const long long number = words.empty() ? 0 : std::strtoll(words[0].c_str(), nullptr, 10);
  return static_cast<int32_t>(std::clamp<long long>(number, INT_MIN, INT_MAX));
}

// The words count for three commands; the others show what they show without any.
Result Expected(CommandRecord* command, void* vty, const std::vector<std::string>& words) {
  if (command == &ddUploadContextFile_CMD) {
    return ExpectedUpload(words);
  }
  const int32_t number = FirstNumber(words);
  return ResultOf([&] {
    if (command == &ddShowOneSupportedOnuInfo_CMD) {
      ddPrintOneSupportedOnuInfomation(static_cast<uint32_t>(number), vty);
    } else if (command == &show_optmodule_info_cmd) {
      show_optmodule_fileinfo_byindex(static_cast<uint16_t>(number), vty);
    } else {
      command->func(command, vty, 0, nullptr);
    }
    return 0;
  });
}

// The answers of the platform to an upload.
void PrepareUploads(uint32_t seed) {
  FakePlatform& platform = FakePlatform::Get();
  platform.flash = kStoredText;
  platform.manage_result = seed % 7 == 0 ? 1 : 0;
  platform.outband_result = seed % 11 == 0 ? -1 : 0;
  platform.upload_result = seed % 3 == 0 ? -550 : 0;
}

// `head` is the rest of the first line.
std::string CheckCommand(CommandRecord* command, std::string_view head, std::string_view bytes) {
  const std::string_view told = Take(head, " ");
  void* const vty = head == "null" ? nullptr : &terminal;
  std::vector<Text> texts;
  while (!bytes.empty()) {
    texts.emplace_back(TakeLine(bytes));
  }
  const size_t count = told.empty() ? texts.size() : std::min<size_t>(NumberOf(told), texts.size());
  std::vector<char*> argv;
  std::vector<std::string> words;
  for (size_t i = 0; i < count; ++i) {
    argv.push_back(texts[i].get());
    words.emplace_back(texts[i].get());
  }
  argv.shrink_to_fit();

  const Result actual = ResultOf(
      [&] { return command->func(command, vty, static_cast<int32_t>(count), argv.data()); });
  if (!(actual == Expected(command, vty, words))) {
    return "returned " + std::to_string(actual.code) + " and showed " + actual.shown;
  }
  if (!std::equal(words.begin(), words.end(), argv.begin())) {
    return "a word is changed";
  }
  return "";
}

}  // namespace

std::string CheckCommandLine(std::string_view bytes) {
  const uint32_t seed = SeedOf(bytes);
  std::string_view head = TakeLine(bytes);
  CommandRecord* const command = CommandNamed(Take(head, " "));
  if (command == nullptr) {
    return "";
  }
  test::Faults faults;
  PutTables(SampleNamed(""), faults);
  PrepareUploads(seed);
  std::string wrong = CheckCommand(command, head, bytes);
  RemoveTables();
  if (wrong.empty() && !faults.blocks.empty()) {
    wrong = "memory is kept";
  }
  return wrong;
}

}  // namespace fuzz
