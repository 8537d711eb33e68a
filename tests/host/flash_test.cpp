// The flash store and its decompression.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <cstdio>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "host/root.h"
#include "support/temporary_folder.h"
#include "sys_context/platform.h"

namespace sysctx {
namespace {

using test::ReadWhole;
using test::TemporaryFolder;

class Flash : public testing::Test {
 protected:
  Flash() { SetRoot(folder_.path()); }
  ~Flash() override { SetRoot(""); }

  TemporaryFolder folder_;
};

TEST_F(Flash, SizeOfAFile) {
  folder_.Write("mnt/work/device_definition.ini", "12345");
  folder_.Write("mnt/work/empty", "");
  EXPECT_EQ(flash_sizeof("/mnt/work/device_definition.ini"), 5);
  EXPECT_EQ(flash_sizeof("/mnt/work/empty"), 0);
  EXPECT_EQ(flash_sizeof("/mnt/work/missing"), -1);
  EXPECT_EQ(flash_sizeof("/mnt/work/"), -1);
  EXPECT_EQ(flash_sizeof(nullptr), -1);
}

TEST_F(Flash, ReadsAWholeFile) {
  const std::string content("text\0with\r\nall bytes\xFF", 21);
  folder_.Write("mnt/work/file", content);
  char buffer[64];
  memset(buffer, '#', sizeof buffer);
  int32_t length = sizeof buffer;
  ASSERT_EQ(flash_read("/mnt/work/file", buffer, &length), 0);
  EXPECT_EQ(length, 21);
  EXPECT_EQ(std::string(buffer, 21), content);
  EXPECT_EQ(buffer[21], '#');
}

TEST_F(Flash, FileMustFitTheBuffer) {
  folder_.Write("mnt/work/file", "12345");
  char buffer[5] = {'#', '#', '#', '#', '#'};
  int32_t length = 4;
  EXPECT_EQ(flash_read("/mnt/work/file", buffer, &length), -1);
  EXPECT_EQ(length, 4);
  EXPECT_EQ(buffer[0], '#');
  length = 5;
  EXPECT_EQ(flash_read("/mnt/work/file", buffer, &length), 0);
  EXPECT_EQ(length, 5);
}

TEST_F(Flash, ReadFailures) {
  folder_.Write("mnt/work/file", "12345");
  char buffer[8];
  int32_t length = sizeof buffer;
  EXPECT_EQ(flash_read("/mnt/work/missing", buffer, &length), -1);
  EXPECT_EQ(flash_read("/mnt/work/", buffer, &length), -1);
  EXPECT_EQ(flash_read(nullptr, buffer, &length), -1);
  EXPECT_EQ(flash_read("/mnt/work/file", nullptr, &length), -1);
  EXPECT_EQ(flash_read("/mnt/work/file", buffer, nullptr), -1);
  EXPECT_EQ(length, 8);
}

// ---- Copies of its own -----------------------------------------------------------

struct Copy {
  const char* name;
  void (*prepare)(const TemporaryFolder& folder);
  int32_t size;         // of "/mnt/work/file"
  const char* content;  // null: it cannot be read
  friend std::ostream& operator<<(std::ostream& out, const Copy& row) { return out << row.name; }
};

class FlashCopy : public Flash, public testing::WithParamInterface<Copy> {};

TEST_P(FlashCopy, IsWhatTheStoreHas) {
  folder_.Write("mnt/work/file", "work");
  GetParam().prepare(folder_);
  EXPECT_EQ(flash_sizeof("/mnt/work/file"), GetParam().size);
  char buffer[64];
  int32_t length = sizeof buffer;
  if (GetParam().content == nullptr) {
    EXPECT_EQ(flash_read("/mnt/work/file", buffer, &length), -1);
    EXPECT_EQ(length, 64);
  } else {
    ASSERT_EQ(flash_read("/mnt/work/file", buffer, &length), 0);
    EXPECT_EQ(std::string(buffer, static_cast<size_t>(length)), GetParam().content);
  }
  EXPECT_EQ(ReadWhole(folder_.Path("mnt/work/file")), "work");
}

constexpr Copy kCopies[] = {
    {"None", [](const TemporaryFolder&) {}, 4, "work"},
    {"OfAnotherFile", [](const TemporaryFolder& f) { f.Write("flash/mnt/work/other", "x"); }, 4,
     "work"},
    {"InAnotherPlace", [](const TemporaryFolder& f) { f.Write("flash/file", "x"); }, 4, "work"},
    {"File", [](const TemporaryFolder& f) { f.Write("flash/mnt/work/file", "in flash"); }, 8,
     "in flash"},
    {"Empty", [](const TemporaryFolder& f) { f.Write("flash/mnt/work/file", ""); }, 0, ""},
    {"Link",
     [](const TemporaryFolder& f) {
       f.Write("flash/mnt/work/other", "other");
       symlink("other", f.Path("flash/mnt/work/file").c_str());
     },
     5, "other"},
    {"LinkToNothing",
     [](const TemporaryFolder& f) {
       f.Write("flash/mnt/work/other", "");
       symlink("missing", f.Path("flash/mnt/work/file").c_str());
     },
     -1, nullptr},
    {"Folder", [](const TemporaryFolder& f) { f.Write("flash/mnt/work/file/x", ""); }, -1, nullptr},
    {"Pipe",
     [](const TemporaryFolder& f) {
       f.Write("flash/mnt/work/other", "");
       mkfifo(f.Path("flash/mnt/work/file").c_str(), 0600);
     },
     -1, nullptr},
    {"BelowAFile", [](const TemporaryFolder& f) { f.Write("flash/mnt", ""); }, -1, nullptr},
    {"StoreIsAFile", [](const TemporaryFolder& f) { f.Write("flash", ""); }, -1, nullptr},
};

INSTANTIATE_TEST_SUITE_P(All, FlashCopy, testing::ValuesIn(kCopies),
                         testing::PrintToStringParamName());

TEST_F(Flash, CopyIsReadByTheStoreOnly) {
  folder_.Write("mnt/work/file", "work");
  folder_.Write("flash/mnt/work/file", "in flash");
  FILE* file = fopen("/mnt/work/file", "r");
  ASSERT_NE(file, nullptr);
  char text[16] = "";
  EXPECT_EQ(fread(text, 1, sizeof text - 1, file), 4u);
  fclose(file);
  EXPECT_STREQ(text, "work");
}

TEST_F(Flash, CopyNeedsNoWorkFile) {
  folder_.Write("flash/mnt/work/file", "in flash");
  EXPECT_EQ(flash_sizeof("/mnt/work/file"), 8);
}

TEST_F(Flash, CopyMustFitTheBuffer) {
  folder_.Write("mnt/work/file", "work");
  folder_.Write("flash/mnt/work/file", "12345678");
  char buffer[8] = {'#'};
  int32_t length = 7;
  EXPECT_EQ(flash_read("/mnt/work/file", buffer, &length), -1);
  EXPECT_EQ(length, 7);
  EXPECT_EQ(buffer[0], '#');
}

TEST_F(Flash, OnlyWorkFilesHaveCopies) {
  folder_.Write("mem/file", "memory");
  folder_.Write("flash/mem/file", "x");
  EXPECT_EQ(flash_sizeof("/mem/file"), 6);
}

// "hello hello hello hello hello hello\n", deflated beforehand.
constexpr uint8_t kCompressed[] = {0x78, 0x9C, 0xCB, 0x48, 0xCD, 0xC9, 0xC9, 0x57, 0xC8,
                                   0xC0, 0x47, 0x72, 0x01, 0x00, 0xF8, 0x78, 0x0D, 0x23};
constexpr const char* kExpanded = "hello hello hello hello hello hello\n";

TEST(Decompression, Expands) {
  uint8_t buffer[64];
  uint32_t length = sizeof buffer;
  ASSERT_EQ(zUnCompress(buffer, &length, kCompressed, sizeof kCompressed), 0);
  EXPECT_EQ(length, 36u);
  EXPECT_EQ(std::string(reinterpret_cast<char*>(buffer), length), kExpanded);
}

TEST(Decompression, CapacityMayBeMetExactly) {
  std::vector<uint8_t> buffer(36);
  uint32_t length = 36;
  EXPECT_EQ(zUnCompress(buffer.data(), &length, kCompressed, sizeof kCompressed), 0);
  EXPECT_EQ(length, 36u);
}

TEST(Decompression, FailuresLeaveTheLength) {
  std::vector<uint8_t> buffer(64);
  uint32_t length = 35;
  EXPECT_EQ(zUnCompress(buffer.data(), &length, kCompressed, sizeof kCompressed), Z_BUF_ERROR);
  EXPECT_EQ(length, 35u);
  length = 64;
  const uint8_t garbage[] = {'n', 'o', 't', ' ', 'z', 'i', 'p'};
  EXPECT_EQ(zUnCompress(buffer.data(), &length, garbage, sizeof garbage), Z_DATA_ERROR);
  EXPECT_LT(zUnCompress(buffer.data(), &length, kCompressed, sizeof kCompressed - 5), 0);
  EXPECT_EQ(length, 64u);
  EXPECT_EQ(zUnCompress(nullptr, &length, kCompressed, sizeof kCompressed), Z_STREAM_ERROR);
  EXPECT_EQ(zUnCompress(buffer.data(), nullptr, kCompressed, sizeof kCompressed), Z_STREAM_ERROR);
  EXPECT_EQ(zUnCompress(buffer.data(), &length, nullptr, 1), Z_STREAM_ERROR);
}

}  // namespace
}  // namespace sysctx
