// The mapping of the card's paths, and the fopen and open that apply it.
#include "host/root.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <stdexcept>

#include "support/temporary_folder.h"

namespace sysctx {
namespace {

using test::ReadWhole;
using test::TemporaryFolder;

class Root : public testing::Test {
 protected:
  Root() { SetRoot(folder_.path()); }
  ~Root() override { SetRoot(""); }

  bool Exists(const std::string& name) const {
    return access(folder_.Path(name).c_str(), F_OK) == 0;
  }

  TemporaryFolder folder_;
};

struct PathRow {
  const char* name;
  const char* path;
  bool is_mapped;
  friend std::ostream& operator<<(std::ostream& out, const PathRow& row) { return out << row.name; }
};

class RootPath : public Root, public testing::WithParamInterface<PathRow> {};

TEST_P(RootPath, IsMappedBelowTheRootOrLeftAlone) {
  char buffer[PATH_MAX];
  const char* mapped = MapPath(GetParam().path, buffer, sizeof buffer);
  if (GetParam().is_mapped) {
    EXPECT_EQ(std::string(mapped), folder_.path() + GetParam().path);
  } else {
    EXPECT_EQ(mapped, GetParam().path);  // the very same pointer
  }
}

constexpr PathRow kPaths[] = {
    {"WorkFile", "/mnt/work/device_definition.ini", true},
    {"WorkFileInFolder", "/mnt/work/a/b", true},
    {"WorkFolder", "/mnt/work/", true},
    {"MemoryFile", "/mem/dd.ini", true},
    {"MemoryFolder", "/mem/", true},
    {"WorkWithoutSlash", "/mnt/work", false},
    {"OtherMount", "/mnt/working/file", false},
    {"OtherMemory", "/memory/file", false},
    {"Relative", "mnt/work/file", false},
    {"Deeper", "/x/mnt/work/file", false},
    {"DoubledSlash", "//mnt/work/file", false},
    {"UpperCase", "/MEM/dd.ini", false},
    {"Device", "/dev/null", false},
    {"Empty", "", false},
};

INSTANTIATE_TEST_SUITE_P(All, RootPath, testing::ValuesIn(kPaths),
                         testing::PrintToStringParamName());

TEST_F(Root, WithoutARootNothingIsMapped) {
  SetRoot("");
  char buffer[PATH_MAX];
  const char* path = "/mem/dd.ini";
  EXPECT_EQ(MapPath(path, buffer, sizeof buffer), path);
}

TEST_F(Root, NullStaysNull) {
  char buffer[PATH_MAX];
  EXPECT_EQ(MapPath(nullptr, buffer, sizeof buffer), nullptr);
}

TEST_F(Root, MappedNameMustFitTheBuffer) {
  const size_t length = folder_.path().size() + strlen("/mem/x");
  std::string buffer(length + 1, '?');
  EXPECT_EQ(MapPath("/mem/x", buffer.data(), length + 1), buffer.data());
  EXPECT_EQ(MapPath("/mem/x", buffer.data(), length), nullptr);
}

TEST_F(Root, FlashNameMustFitTheBuffer) {
  const std::string flash = folder_.Write("flash/mnt/work/x", "");
  std::string buffer(flash.size() + 1, '?');
  ASSERT_EQ(MapFlashName("/mnt/work/x", buffer.data(), flash.size() + 1), buffer.data());
  EXPECT_STREQ(buffer.data(), flash.c_str());
  EXPECT_EQ(MapFlashName("/mnt/work/x", buffer.data(), flash.size()), nullptr);
}

TEST_F(Root, WithoutARootNothingIsInFlash) {
  SetRoot("");
  char buffer[PATH_MAX];
  const char* path = "/mnt/work/x";
  EXPECT_EQ(MapFlashName(path, buffer, sizeof buffer), path);
  EXPECT_EQ(MapFlashName(nullptr, buffer, sizeof buffer), nullptr);
}

TEST_F(Root, TellsItsFolder) {
  EXPECT_EQ(sysctx::Root(), folder_.path());
  SetRoot("");
  EXPECT_EQ(sysctx::Root(), "");
}

TEST_F(Root, TooLongARootIsRefused) {
  EXPECT_THROW(SetRoot(std::string(PATH_MAX, 'x')), std::runtime_error);
}

TEST_F(Root, FopenReadsBelowTheRoot) {
  folder_.Write("mnt/work/file", "text");
  FILE* file = fopen("/mnt/work/file", "r");
  ASSERT_NE(file, nullptr);
  char buffer[8] = "";
  EXPECT_EQ(fread(buffer, 1, sizeof buffer, file), 4u);
  EXPECT_STREQ(buffer, "text");
  fclose(file);
}

TEST_F(Root, FopenOfAMissingFileFailsAsEver) {
  EXPECT_EQ(fopen("/mnt/work/missing", "r"), nullptr);
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(fopen("/mem/missing", "r"), nullptr);
  EXPECT_FALSE(Exists("mem"));  // reading creates no folder
}

TEST_F(Root, FopenForWritingCreatesTheMemoryFolder) {
  FILE* file = fopen("/mem/file", "w");
  ASSERT_NE(file, nullptr);
  fputs("text", file);
  fclose(file);
  EXPECT_EQ(ReadWhole(folder_.Path("mem/file")), "text");
}

TEST_F(Root, FopenForWritingCreatesNoWorkFolder) {
  EXPECT_EQ(fopen("/mnt/work/file", "w"), nullptr);
  EXPECT_FALSE(Exists("mnt"));
}

TEST_F(Root, FopenElsewherePassesThrough) {
  const std::string path = folder_.Write("plain", "text");
  FILE* file = fopen(path.c_str(), "r");
  ASSERT_NE(file, nullptr);
  fclose(file);
}

TEST_F(Root, FopenOfATooLongNameFails) {
  const std::string path = "/mnt/work/" + std::string(PATH_MAX, 'x');
  EXPECT_EQ(fopen(path.c_str(), "r"), nullptr);
  EXPECT_EQ(errno, ENAMETOOLONG);
  EXPECT_EQ(open(path.c_str(), O_RDONLY), -1);
  EXPECT_EQ(errno, ENAMETOOLONG);
}

TEST_F(Root, OpenReadsBelowTheRoot) {
  folder_.Write("mnt/work/file", "text");
  const int descriptor = open("/mnt/work/file", O_RDONLY);
  ASSERT_GE(descriptor, 0);
  close(descriptor);
  EXPECT_EQ(open("/mnt/work/missing", O_RDONLY), -1);
  EXPECT_EQ(errno, ENOENT);
}

// The memory file is created with permission bits 0 and opened again later.
TEST_F(Root, FileCreatedWithoutPermissionsOpensAgain) {
  for (const char* text : {"first", "second time"}) {
    const int descriptor = open("/mem/dd.ini", O_RDWR | O_CREAT | O_TRUNC, 0);
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(write(descriptor, text, strlen(text)), static_cast<ssize_t>(strlen(text)));
    close(descriptor);
    EXPECT_EQ(ReadWhole(folder_.Path("mem/dd.ini")), text);
  }
  struct stat status = {};
  ASSERT_EQ(stat(folder_.Path("mem/dd.ini").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0600u);
}

TEST_F(Root, OpenElsewhereKeepsThePermissions) {
  const std::string path = folder_.Path("plain");
  const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT, 0400);
  ASSERT_GE(descriptor, 0);
  close(descriptor);
  struct stat status = {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0400u);
}

}  // namespace
}  // namespace sysctx
