// The stored definition file, shown and uploaded.
#include <algorithm>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "context/stored_files.h"
#include "support/rows.h"
#include "support/tables.h"
#include "sys_context/cli.h"

namespace {

using std::string;
using test::BufferFaults;
using test::FakePlatform;
using test::kSizeAsked;
using test::Names;
using test::ReadAsked;
using test::StoredFile;
using test::UnfitFile;
using testing::ElementsAre;

constexpr size_t kLimit = 3072000;
constexpr char kUploaded[] = "Upload the context file success!\r\n";
constexpr char kNotUploaded[] =
    "Fail to upload the context file, please check the ftp setting!\r\n";

FakePlatform::Upload UploadOf(const string& text) {
  return {"10.20.30.40", "operator", "My-Secret", "backup/dd.ini", text};
}

int32_t Upload(void* vty) {
  return ddUploadContextFile("10.20.30.40", "operator", "My-Secret", "backup/dd.ini", vty);
}

// The two commands on the file, and what they make of a text that was fetched.
struct Command {
  const char* name;
  int32_t (*run)(void* vty);
  const char* no_first_buffer;
  int32_t no_first_buffer_code;
  const char* no_second_buffer;
  test::UnfitWords words;
  string (*terminal)(const string& text);
  Names asked;
  std::vector<FakePlatform::Upload> (*uploads)(const string& text);
  friend std::ostream& operator<<(std::ostream& out, const Command& command) {
    return out << command.name;
  }
};

const Command kCommands[] = {
    {
        .name = "Display",
        .run = ddPrintContextFile,
        .no_first_buffer = "\r\nddPrintContextFile: no enough memory for ftp buffer.\r\n",
        .no_first_buffer_code = 0,
        .no_second_buffer =
            "ddPrintContextFile:no enough memory for uncompress context buffer.\r\n",
        .words =
            {
                .too_large = "\r\nddPrintContextFile err! memfile_length = {length}, "
                             "FTP_CONTEXT_BUF_SIZE = 3072000, "
                             "FLASH_CONTEXT_FILE_KXCB_NAME = /mnt/work/device_definition.ini",
                .not_read = "ddPrintContextFile:Read flash failed!\r\n",
                .not_expanded = "ddPrintContextFile->read_compress_context_file failed: "
                                "ret = {code}, file_length = {length} !\r\n",
            },
        .terminal = [](const string& text) { return "\r\n" + string(text.c_str()) + "\r\n"; },
        .asked = {},
        .uploads = [](const string&) { return std::vector<FakePlatform::Upload>(); },
    },
    {
        .name = "Upload",
        .run = Upload,
        .no_first_buffer = "\r\nddUploadContextFile:no enough memory for ftp buffer.\r\n",
        .no_first_buffer_code = -1,
        .no_second_buffer =
            "ddUploadContextFile:no enough memory for uncompress context buffer.\r\n",
        .words =
            {
                .too_large = "\r\nddUploadContextFile->flash_sizeof err! "
                             "memfile_length = {length}, FTP_CONTEXT_BUF_SIZE = 3072000, "
                             "FLASH_CONTEXT_FILE_KXCB_NAME = /mnt/work/device_definition.ini"
                             "File size err!\r\n",
                .not_read = "ddUploadContextFile:Read flash failed!\r\n",
                .not_expanded = "ddUploadContextFile->read_compress_context_file failed : "
                                "ret = {code}, file_length = {length}!\r\n",
            },
        .terminal = [](const string&) { return string(kUploaded); },
        .asked = {"upload"},
        .uploads = [](const string& text) { return std::vector{UploadOf(text)}; },
    },
};

class ContextFile : public test::LibraryTest {
 protected:
  // Runs a command, and expects it to write to the terminal it is given, and nothing to
  // the console.
  int32_t Run(int32_t (*command)(void* vty), int32_t debug = 0) {
    FakePlatform& platform = FakePlatform::Get();
    ddDebugPrint = debug;
    platform.terminal.clear();
    platform.terminals_used.clear();
    platform.uploads.clear();
    int terminal = 0;
    const int32_t code = command(&terminal);
    const auto& used = platform.terminals_used;
    EXPECT_EQ(static_cast<size_t>(std::count(used.begin(), used.end(), &terminal)), used.size());
    EXPECT_EQ(console_.Text(), "");
    return code;
  }
  static void ExpectBuffersReleased(const BufferFaults& faults) {
    EXPECT_THAT(BufferFaults::released, ElementsAre(kLimit, kLimit));
    EXPECT_EQ(faults.allocations.count(), 2);
    EXPECT_TRUE(faults.blocks.empty());
    EXPECT_EQ(faults.descriptor_calls, Names());
  }

  test::Console console_;
};

// ---- Both ------------------------------------------------------------------------

using FetchedRow = std::tuple<Command, StoredFile>;
class ContextFileFetched : public ContextFile, public testing::WithParamInterface<FetchedRow> {};

TEST_P(ContextFileFetched, IsHandedOn) {
  const auto& [command, file] = GetParam();
  Names asked = file.asked;
  asked.insert(asked.end(), command.asked.begin(), command.asked.end());
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    file.flash.Put();
    BufferFaults faults;
    EXPECT_EQ(Run(command.run, debug), 0);
    EXPECT_EQ(FakePlatform::Get().terminal, command.terminal(file.text));
    EXPECT_EQ(FakePlatform::TakeAsked(), asked);
    EXPECT_TRUE(FakePlatform::Get().uploads == command.uploads(file.text));
    ExpectBuffersReleased(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, ContextFileFetched,
                         testing::Combine(testing::ValuesIn(kCommands),
                                          testing::ValuesIn(test::kStoredFiles)),
                         test::KindAndRow());
INSTANTIATE_TEST_SUITE_P(Limit, ContextFileFetched,
                         testing::Combine(testing::ValuesIn(kCommands),
                                          testing::ValuesIn(test::FilesAtLimit(kLimit))),
                         test::KindAndRow());

using UnfitRow = std::tuple<Command, UnfitFile>;
class ContextFileUnfit : public ContextFile, public testing::WithParamInterface<UnfitRow> {};

TEST_P(ContextFileUnfit, IsToldOnTheTerminal) {
  const auto& [command, file] = GetParam();
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    file.flash.Put();
    BufferFaults faults;
    EXPECT_EQ(Run(command.run, debug), 0);
    EXPECT_EQ(FakePlatform::Get().terminal, command.words.Of(file));
    EXPECT_EQ(FakePlatform::TakeAsked(), file.asked);
    ExpectBuffersReleased(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, ContextFileUnfit,
                         testing::Combine(testing::ValuesIn(kCommands),
                                          testing::ValuesIn(test::kUnfitFiles)),
                         test::KindAndRow());
INSTANTIATE_TEST_SUITE_P(Limit, ContextFileUnfit,
                         testing::Combine(testing::ValuesIn(kCommands),
                                          testing::ValuesIn(test::FilesBeyondLimit(kLimit))),
                         test::KindAndRow());

class ContextFileCommand : public ContextFile, public testing::WithParamInterface<Command> {};

TEST_P(ContextFileCommand, HasNoMemoryForTheFirstBuffer) {
  const Command& command = GetParam();
  test::WithoutBuffer(1, {}, [&] {
    EXPECT_EQ(Run(command.run), command.no_first_buffer_code);
    EXPECT_EQ(FakePlatform::Get().terminal, command.no_first_buffer);
  });
}

TEST_P(ContextFileCommand, HasNoMemoryForTheSecondBuffer) {
  const Command& command = GetParam();
  test::WithoutBuffer(2, {kLimit}, [&] {
    EXPECT_EQ(Run(command.run), 0);
    EXPECT_EQ(FakePlatform::Get().terminal, command.no_second_buffer);
  });
}

INSTANTIATE_TEST_SUITE_P(, ContextFileCommand, testing::ValuesIn(kCommands),
                         testing::PrintToStringParamName());

// ---- Display ---------------------------------------------------------------------

TEST_F(ContextFile, IsShownByteByByte) {
  string text;
  for (int byte = 1; byte < 256; ++byte) {
    text.push_back(static_cast<char>(byte));
  }
  FakePlatform::Get().flash = text;
  EXPECT_EQ(Run(ddPrintContextFile), 0);
  EXPECT_EQ(FakePlatform::Get().terminal, "\r\n" + text + "\r\n");
  EXPECT_EQ(FakePlatform::Get().terminals_used.size(), 1 + 255 + 1u);
}

TEST_F(ContextFile, IsShownUpToItsFirstZeroByte) {
  FakePlatform::Get().flash = string("[A]\0B\0C", 7);
  EXPECT_EQ(Run(ddPrintContextFile), 0);
  EXPECT_EQ(FakePlatform::Get().terminal, "\r\n[A]\r\n");
  EXPECT_EQ(FakePlatform::Get().terminals_used.size(), 1 + 3 + 1u);
}

TEST_F(ContextFile, IsShownToTheEndOfItsBuffer) {
  FakePlatform::Get().flash = "zip1";
  FakePlatform::Get().expanded.assign(kLimit, 'x');
  EXPECT_EQ(Run(ddPrintContextFile), 0);
  EXPECT_TRUE(FakePlatform::Get().terminal == "\r\n" + string(kLimit, 'x') + "\r\n");
  EXPECT_EQ(FakePlatform::Get().terminals_used.size(), 1 + kLimit + 1);
}

TEST_F(ContextFile, IsShownWhateverItsLength) {
  FakePlatform::Get().flash = "zip1";
  FakePlatform::Get().expanded = "abc";
  FakePlatform::Get().expanded_length = 1;
  EXPECT_EQ(Run(ddPrintContextFile), 0);
  EXPECT_EQ(FakePlatform::Get().terminal, "\r\nabc\r\n");
}

TEST_F(ContextFile, IsShownFromABufferOfZeros) {
  test::SoilFreeMemory();
  FakePlatform::Get().flash = "abc";
  EXPECT_EQ(Run(ddPrintContextFile), 0);
  EXPECT_TRUE(FakePlatform::Get().terminal == "\r\nabc\r\n");
}

// ---- Upload ----------------------------------------------------------------------

TEST_F(ContextFile, IsUploadedWithoutSuccess) {
  for (const int32_t result : {-1, 1, -550}) {
    SCOPED_TRACE(testing::Message() << "result " << result);
    FakePlatform::Get().flash = "[A]\n";
    FakePlatform::Get().upload_result = result;
    BufferFaults faults;
    EXPECT_EQ(Run(Upload), 0);
    EXPECT_EQ(FakePlatform::Get().terminal, kNotUploaded);
    EXPECT_THAT(FakePlatform::Get().uploads, ElementsAre(UploadOf("[A]\n")));
    EXPECT_EQ(FakePlatform::TakeAsked(), (Names{kSizeAsked, ReadAsked("4"), "upload"}));
    ExpectBuffersReleased(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
  }
}

// Nothing is made of what the operator typed.
TEST_F(ContextFile, IsUploadedWithTheWordsAsTheyAre) {
  const string long_word(300, 'w');
  const FakePlatform::Upload uploads[] = {
      {"10.20.30.40", "operator", "My-Secret", "dd.ini", "[A]\n"},
      {"", "", "", "", "[A]\n"},
      {" 010.1.1.1 ", "%s%n", "%d \xff", "../a b\\c", "[A]\n"},
      {"no address", long_word, long_word + "2", long_word + "3", "[A]\n"},
  };
  FakePlatform::Get().flash = "[A]\n";
  for (const FakePlatform::Upload& upload : uploads) {
    EXPECT_EQ(ddUploadContextFile(upload.address.c_str(), upload.user.c_str(),
                                  upload.password.c_str(), upload.file.c_str(), nullptr),
              0);
  }
  EXPECT_THAT(FakePlatform::Get().uploads, testing::ElementsAreArray(uploads));
}

}  // namespace
