// The memory file, which is written from the copy in flash.
#include <sys/stat.h>
#include <unistd.h>

#include <ostream>
#include <string>

#include "context/stored_files.h"
#include "support/tables.h"
#include "support/temporary_folder.h"

namespace {

using std::string;
using test::BufferFaults;
using test::FakePlatform;
using test::FaultPlan;
using test::kSizeAsked;
using test::Names;
using test::ReadAsked;
using test::StoredFile;
using test::TemporaryFolder;
using test::UnfitFile;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr size_t kImageLimit = 1048576;
constexpr size_t kTextLimit = 3072000;
constexpr char kOpened[] = "open /mem/dd.ini 1102 0";  // O_RDWR | O_CREAT | O_TRUNC

constexpr test::UnfitWords kWords = {
    .too_large =
        "\r\nddReadContextFileToBuf err! memfile_length = {length}, "
        "FTP_CONTEXT_BUF_SIZE = 1048576, "
        "FLASH_CONTEXT_FILE_KXCB_NAME = /mnt/work/device_definition.ini",
    .not_read = "Read flash failed!\r\n",
    .not_expanded = "unpack the compress file failed !\r\n",
};

class MemoryFile : public test::LibraryTest {
 protected:
  static void ExpectBuffersReleased(const BufferFaults& faults) {
    EXPECT_THAT(BufferFaults::released, UnorderedElementsAre(kTextLimit, kImageLimit));
    EXPECT_EQ(faults.allocations.count(), 2);
    EXPECT_TRUE(faults.blocks.empty());
  }

  test::Console console_;
};

// ---- What is stored --------------------------------------------------------------

class MemoryFileOf : public MemoryFile, public testing::WithParamInterface<StoredFile> {};

TEST_P(MemoryFileOf, HasItsText) {
  const StoredFile& file = GetParam();
  file.flash.Put();
  BufferFaults faults;
  EXPECT_EQ(ddReadContextFileToBuf(), 0);
  EXPECT_EQ(FakePlatform::TakeAsked(), file.asked);
  EXPECT_THAT(faults.descriptor_calls,
              ElementsAre(kOpened, "write 1000 " + std::to_string(file.text.size()), "close 1000"));
  EXPECT_TRUE(faults.written["/mem/dd.ini"] == file.text);
  EXPECT_EQ(console_.Text(), "");
  ExpectBuffersReleased(faults);
}

INSTANTIATE_TEST_SUITE_P(, MemoryFileOf, testing::ValuesIn(test::kStoredFiles),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Limits, MemoryFileOf, testing::ValuesIn(test::FilesAtLimit(kImageLimit)),
                         testing::PrintToStringParamName());

class NoMemoryFileOf : public MemoryFile, public testing::WithParamInterface<UnfitFile> {};

TEST_P(NoMemoryFileOf, IsWritten) {
  const UnfitFile& file = GetParam();
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    ddDebugPrint = debug;
    file.flash.Put();
    BufferFaults faults;
    EXPECT_EQ(ddReadContextFileToBuf(), file.code);
    EXPECT_EQ(console_.Text(), kWords.Of(file));
    EXPECT_EQ(FakePlatform::TakeAsked(), file.asked);
    EXPECT_EQ(faults.descriptor_calls, Names());
    ExpectBuffersReleased(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, NoMemoryFileOf, testing::ValuesIn(test::kUnfitFiles),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Limits, NoMemoryFileOf,
                         testing::ValuesIn(test::FilesBeyondLimit(kImageLimit)),
                         testing::PrintToStringParamName());

// ---- What fails ------------------------------------------------------------------

TEST_F(MemoryFile, NoMemoryForTheText) {
  test::WithoutBuffer(1, {}, [this] {
    EXPECT_EQ(ddReadContextFileToBuf(), 0);
    EXPECT_EQ(console_.Text(), "Not enough memory for ftp buffer.\r\n");
  });
}

TEST_F(MemoryFile, NoMemoryForTheImage) {
  test::WithoutBuffer(2, {kTextLimit}, [this] {
    EXPECT_EQ(ddReadContextFileToBuf(), 0);
    EXPECT_EQ(console_.Text(), "Not enough memory for ftp compress buffer.\r\n");
  });
}

// Failures of the memory file itself.
struct WriteFault {
  const char* name;
  void (*plan)(test::Faults& faults);
  string text;  // to be written
  int32_t code;
  string console;
  Names calls;
  string written;
  std::vector<size_t> buffers_at_closes;  // not released yet
  friend std::ostream& operator<<(std::ostream& out, const WriteFault& fault) {
    return out << fault.name;
  }
};

class MemoryFileFails : public MemoryFile, public testing::WithParamInterface<WriteFault> {};

TEST_P(MemoryFileFails, IsToldOnTheConsole) {
  const WriteFault& fault = GetParam();
  for (const int32_t debug : {0, 1}) {
    SCOPED_TRACE(testing::Message() << "debug " << debug);
    ddDebugPrint = debug;
    FakePlatform::Get().flash = fault.text;
    BufferFaults faults;
    fault.plan(faults);
    EXPECT_EQ(ddReadContextFileToBuf(), fault.code);
    EXPECT_EQ(console_.Text(), fault.console);
    EXPECT_EQ(faults.descriptor_calls, fault.calls);
    EXPECT_EQ(faults.blocks_at_closes, fault.buffers_at_closes);
    EXPECT_EQ(faults.written["/mem/dd.ini"], fault.written);
    ExpectBuffersReleased(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
  }
}

const WriteFault kWriteFaults[] = {
    {"NotOpened",
     [](test::Faults& faults) { faults.descriptor_opens.FailFrom(1, 1); },
     "[A]\nB=1\n",
     0,
     "Cannot open memory device. fd = -1\r\n",
     {kOpened},
     "",
     {}},
    {"NeverOpened",
     [](test::Faults& faults) { faults.descriptor_opens.FailFrom(1, FaultPlan::kForEver); },
     "[A]\nB=1\n",
     0,
     "Cannot open memory device. fd = -1\r\n",
     {kOpened},
     "",
     {}},
    {"NotWritten",
     [](test::Faults& faults) { faults.writes.FailFrom(1, 1); },
     "[A]\nB=1\n",
     0,
     "write 8 bytes to /sdram failed!\r\n",
     {kOpened, "write 1000 8", "close 1000"},
     "",
     {0}},
    {"NeverWritten",
     [](test::Faults& faults) { faults.writes.FailFrom(1, FaultPlan::kForEver); },
     "[A]\nB=1\n",
     0,
     "write 8 bytes to /sdram failed!\r\n",
     {kOpened, "write 1000 8", "close 1000"},
     "",
     {0}},
    {"EmptyTextNotWritten",
     [](test::Faults& faults) { faults.writes.FailFrom(1, 1); },
     "",
     0,
     "write 0 bytes to /sdram failed!\r\n",
     {kOpened, "write 1000 0", "close 1000"},
     "",
     {0}},
    {"NoRoom",
     [](test::Faults& faults) { faults.write_room = 0; },
     "[A]\nB=1\n",
     0,
     "write 8 bytes to /sdram failed!\r\n",
     {kOpened, "write 1000 8", "close 1000"},
     "",
     {0}},
    {"RoomForAllButOneByte",
     [](test::Faults& faults) { faults.write_room = 7; },
     "[A]\nB=1\n",
     0,
     "write 8 bytes to /sdram failed!\r\n",
     {kOpened, "write 1000 8", "close 1000"},
     "[A]\nB=1",
     {0}},
    {"RoomForAll",
     [](test::Faults& faults) { faults.write_room = 8; },
     "[A]\nB=1\n",
     0,
     "",
     {kOpened, "write 1000 8", "close 1000"},
     "[A]\nB=1\n",
     {2}},
    {"NotWrittenNorClosed",
     [](test::Faults& faults) {
       faults.write_room = 3;
       faults.descriptor_closes.FailFrom(1, FaultPlan::kForEver);
     },
     "[A]\nB=1\n",
     0,
     "write 8 bytes to /sdram failed!\r\n",
     {kOpened, "write 1000 8", "close 1000"},
     "[A]",
     {0}},
    {"NotClosed",
     [](test::Faults& faults) { faults.descriptor_closes.FailFrom(1, 1); },
     "[A]\nB=1\n",
     -1,
     "iResult = close (fd);, iResult = -1, fd = 1000",
     {kOpened, "write 1000 8", "close 1000", "close 1000"},
     "[A]\nB=1\n",
     {2, 0}},
    {"NeverClosed",
     [](test::Faults& faults) { faults.descriptor_closes.FailFrom(1, FaultPlan::kForEver); },
     "[A]\nB=1\n",
     -1,
     "iResult = close (fd);, iResult = -1, fd = 1000",
     {kOpened, "write 1000 8", "close 1000", "close 1000"},
     "[A]\nB=1\n",
     {2, 0}},
};

INSTANTIATE_TEST_SUITE_P(, MemoryFileFails, testing::ValuesIn(kWriteFaults),
                         testing::PrintToStringParamName());

// ---- Where it is -----------------------------------------------------------------

TEST_F(MemoryFile, IsWhereTheHostSays) {
  FakePlatform::Get().flash = "[A]\n";
  strDeviceDefFilePath = "/run/other.ini";
  BufferFaults faults;
  EXPECT_EQ(ddReadContextFileToBuf(), 0);
  EXPECT_THAT(faults.descriptor_calls,
              ElementsAre("open /run/other.ini 1102 0", "write 1000 4", "close 1000"));
  EXPECT_EQ(faults.written["/run/other.ini"], "[A]\n");
  EXPECT_EQ(FakePlatform::TakeAsked(), (Names{kSizeAsked, ReadAsked("4")}));
}

// More bytes told than stored: the text's buffer shows, then the image's.
TEST_F(MemoryFile, HasZerosBehindAnExpandedText) {
  test::SoilFreeMemory();
  FakePlatform::Get().flash = "zip1";
  FakePlatform::Get().expanded = "abc";
  FakePlatform::Get().expanded_length = 100000;
  BufferFaults faults;
  EXPECT_EQ(ddReadContextFileToBuf(), 0);
  EXPECT_TRUE(faults.written["/mem/dd.ini"] == test::Padded("abc", 100000));
}

TEST_F(MemoryFile, IsMadeInABufferOfZeros) {
  test::SoilFreeMemory();
  FakePlatform::Get().flash = "abc";
  FakePlatform::Get().flash_length = 100000;
  BufferFaults faults;
  EXPECT_EQ(ddReadContextFileToBuf(), 0);
  EXPECT_TRUE(faults.written["/mem/dd.ini"] == test::Padded("abc", 100000));
}

// ---- In a real folder ------------------------------------------------------------

class RealMemoryFile : public test::LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    strDeviceDefFilePath = path_.c_str();
  }
  unsigned Permissions() const {
    struct stat status = {};
    EXPECT_EQ(stat(path_.c_str(), &status), 0);
    return status.st_mode & 07777u;
  }
  string Content() const {
    EXPECT_EQ(chmod(path_.c_str(), 0600), 0);
    return test::ReadWhole(path_);
  }

  const TemporaryFolder folder_;
  const string path_ = folder_.Path("dd.ini");
  test::Console console_;
};

TEST_F(RealMemoryFile, IsCreatedWithoutPermissions) {
  FakePlatform::Get().flash = "zip1";
  FakePlatform::Get().expanded = string("[A]\r\n\0B=1\n", 10);
  EXPECT_EQ(ddReadContextFileToBuf(), 0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(Permissions(), 0u);
  EXPECT_EQ(Content(), string("[A]\r\n\0B=1\n", 10));
}

TEST_F(RealMemoryFile, IsEmptiedAndKeepsItsPermissions) {
  folder_.Write("dd.ini", "[Old]\nLonger=than the new one\n");
  ASSERT_EQ(chmod(path_.c_str(), 0640), 0);
  FakePlatform::Get().flash = "[A]\n";
  EXPECT_EQ(ddReadContextFileToBuf(), 0);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(Permissions(), 0640u);
  EXPECT_EQ(Content(), "[A]\n");
}

TEST_F(RealMemoryFile, CannotBeOpenedInAFolderThatIsNotThere) {
  const string path = folder_.Path("nowhere/dd.ini");
  strDeviceDefFilePath = path.c_str();
  EXPECT_EQ(ddReadContextFileToBuf(), 0);
  EXPECT_EQ(console_.Text(), "Cannot open memory device. fd = -1\r\n");
}

TEST_F(RealMemoryFile, MayHaveTheFirstOfAllDescriptors) {
  const int input = dup(STDIN_FILENO);
  close(STDIN_FILENO);
  FakePlatform::Get().flash = "[A]\n";
  EXPECT_EQ(ddReadContextFileToBuf(), 0);
  EXPECT_EQ(close(STDIN_FILENO), -1);  // the library did
  dup2(input, STDIN_FILENO);
  close(input);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(Content(), "[A]\n");
}

}  // namespace
