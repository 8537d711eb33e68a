// Packing a definition file, and what the flash store gives of the image.
#include "host/pack.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/root.h"
#include "support/temporary_folder.h"
#include "sys_context/context.h"
#include "sys_context/platform.h"

namespace sysctx {
namespace {

using test::ReadWhole;
using test::TemporaryFolder;
using testing::UnorderedElementsAre;

constexpr const char* kWorkFile = "/mnt/work/device_definition.ini";
constexpr size_t kMost = 3072000;

// Bytes that no compression makes fewer of.
std::string Noise(size_t size) {
  std::string bytes(size, '\0');
  uint32_t state = 1;
  for (char& byte : bytes) {
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    byte = static_cast<char>(state >> 11);
  }
  return bytes;
}

class PackedFile : public testing::Test {
 protected:
  std::vector<std::string> FolderContent() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
      names.push_back(entry.path().filename());
    }
    return names;
  }

  TemporaryFolder folder_;
};

struct Sample {
  const char* name;
  std::string text;
  friend std::ostream& operator<<(std::ostream& out, const Sample& row) { return out << row.name; }
};

class PackedText : public testing::TestWithParam<Sample> {
 protected:
  PackedText() { SetRoot(folder_.path()); }
  ~PackedText() override { SetRoot(""); }

  TemporaryFolder folder_;
};

TEST_P(PackedText, ComesBackOutOfFlash) {
  const std::string& text = GetParam().text;
  const std::string image = folder_.Write("flash/mnt/work/device_definition.ini", "older");
  const Packed packed = Pack(folder_.Write("text", text), image);
  EXPECT_EQ(packed.text_size, text.size());
  EXPECT_EQ(packed.image_size, ReadWhole(image).size());
  EXPECT_EQ(ReadWhole(folder_.Path("text")), text);

  ASSERT_EQ(flash_sizeof(kWorkFile), static_cast<int32_t>(packed.image_size));
  std::string bytes(packed.image_size, '#');
  auto length = static_cast<int32_t>(packed.image_size);
  ASSERT_EQ(flash_read(kWorkFile, bytes.data(), &length), 0);
  ASSERT_EQ(bytes.substr(0, 3), "zip");
  std::string expanded(kMost, '#');
  auto expanded_length = static_cast<uint32_t>(kMost);
  ASSERT_EQ(read_compress_context_file(
                reinterpret_cast<const uint8_t*>(bytes.data()), static_cast<uint32_t>(length),
                reinterpret_cast<uint8_t*>(expanded.data()), &expanded_length),
            0);
  EXPECT_EQ(expanded_length, text.size());
  EXPECT_TRUE(expanded.substr(0, expanded_length) == text);
}

const Sample kSamples[] = {
    {"Sample", ReadWhole(SYSCTX_SOURCE "/definitions/kt3300-l/mnt/work/device_definition.ini")},
    {"Empty", ""},
    {"OneByte", "x"},
    {"LikeAnImage", "zip and more"},
    {"AllBytes", std::string("\0\r\n\xFF\0", 5)},
    {"Largest", std::string(kMost, 'x')},
    {"LargeImage", Noise(1200000)},
};

INSTANTIATE_TEST_SUITE_P(All, PackedText, testing::ValuesIn(kSamples),
                         testing::PrintToStringParamName());

TEST_F(PackedFile, IsMadeSmall) {
  const std::string text(100000, 'x');
  const Packed packed = Pack(folder_.Write("text", text), folder_.Path("image"));
  EXPECT_LT(packed.image_size, 200u);
  EXPECT_THAT(FolderContent(), UnorderedElementsAre("text", "image"));
}

TEST_F(PackedFile, NewImageHasThePermissionsOfAnyNewFile) {
  const mode_t before = umask(027);
  Pack(folder_.Write("text", "x"), folder_.Path("image"));
  umask(before);
  struct stat status = {};
  ASSERT_EQ(stat(folder_.Path("image").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777u, 0640u);
}

TEST_F(PackedFile, ReplacedImageKeepsItsPermissions) {
  const std::string image = folder_.Write("image", "older");
  ASSERT_EQ(chmod(image.c_str(), 0604), 0);
  Pack(folder_.Write("text", "x"), image);
  struct stat status = {};
  ASSERT_EQ(stat(image.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777u, 0604u);
  EXPECT_EQ(ReadWhole(image).substr(0, 3), "zip");
}

// ---- What is refused -------------------------------------------------------------

// "text" is a file of 5 bytes, "image" one that holds "older".
struct RefusedFile {
  const char* name;
  std::function<void(const TemporaryFolder&)> prepare;
  const char* text;
  const char* image;
  const char* message;  // the folder's path stands for "%"
  friend std::ostream& operator<<(std::ostream& out, const RefusedFile& row) {
    return out << row.name;
  }
};

class RefusedPacking : public PackedFile, public testing::WithParamInterface<RefusedFile> {
 protected:
  std::string WithFolder(std::string message) const {
    return message.replace(message.find('%'), 1, folder_.path());
  }
};

TEST_P(RefusedPacking, SaysWhyAndLosesNothing) {
  folder_.Write("text", "12345");
  folder_.Write("image", "older");
  GetParam().prepare(folder_);
  const auto before = FolderContent();
  EXPECT_THAT([&] { Pack(folder_.Path(GetParam().text), folder_.Path(GetParam().image)); },
              testing::ThrowsMessage<std::runtime_error>(WithFolder(GetParam().message)));
  EXPECT_THAT(FolderContent(), testing::UnorderedElementsAreArray(before));
  EXPECT_EQ(ReadWhole(folder_.Path("image")), "older");
  EXPECT_EQ(ReadWhole(folder_.Path("text")), "12345");
}

void Nothing(const TemporaryFolder&) {}

const RefusedFile kRefused[] = {
    {"MissingText", Nothing, "missing", "image", "text '%/missing': No such file or directory"},
    {"TextInNoFolder", Nothing, "text/x", "image", "text '%/text/x': Not a directory"},
    {"FolderAsText", [](const TemporaryFolder& folder) { folder.Write("folder/file", ""); },
     "folder", "image", "text '%/folder': is no regular file"},
    {"PipeAsText", [](const TemporaryFolder& folder) { mkfifo(folder.Path("pipe").c_str(), 0600); },
     "pipe", "image", "text '%/pipe': is no regular file"},
    {"TextTooLarge",
     [](const TemporaryFolder& folder) { folder.Write("large", std::string(kMost + 1, 'x')); },
     "large", "image", "text '%/large': 3072001 bytes are too many, a card takes 3072000 at most"},
    {"OntoItself", Nothing, "text", "text", "image '%/text': is there, as the text itself"},
    {"OntoItselfByAnotherName",
     [](const TemporaryFolder& folder) {
       link(folder.Path("text").c_str(), folder.Path("other").c_str());
     },
     "text", "other", "image '%/other': is there, as the text itself"},
    {"OntoALink",
     [](const TemporaryFolder& folder) { symlink("text", folder.Path("link").c_str()); }, "text",
     "link", "image '%/link': is there, but no regular file"},
    {"ThroughALinkOntoItself",
     [](const TemporaryFolder& folder) { symlink("text", folder.Path("link").c_str()); }, "link",
     "text", "image '%/text': is there, as the text itself"},
    {"FolderAsImage", [](const TemporaryFolder& folder) { folder.Write("folder/file", ""); },
     "text", "folder", "image '%/folder': is there, but no regular file"},
    {"PipeAsImage",
     [](const TemporaryFolder& folder) { mkfifo(folder.Path("pipe").c_str(), 0600); }, "text",
     "pipe", "image '%/pipe': is there, but no regular file"},
    {"ImageInNoFolder", Nothing, "text", "missing/image",
     "image '%/missing/image': No such file or directory"},
    {"ImageBelowAFile", Nothing, "text", "image/image", "image '%/image/image': Not a directory"},
};

INSTANTIATE_TEST_SUITE_P(All, RefusedPacking, testing::ValuesIn(kRefused),
                         testing::PrintToStringParamName());

// How large noise becomes is for the compression to say.
TEST_F(PackedFile, ImageTooLargeIsRefused) {
  const std::string text = folder_.Write("text", Noise(kMost));
  const std::string image = folder_.Write("image", "older");
  EXPECT_THAT([&] { Pack(text, image); },
              testing::ThrowsMessage<std::runtime_error>(testing::AllOf(
                  testing::StartsWith("image '" + image + "': 307"),
                  testing::EndsWith(" bytes are too many, a card takes 3072000 at most"))));
  EXPECT_EQ(ReadWhole(image), "older");
  EXPECT_THAT(FolderContent(), UnorderedElementsAre("text", "image"));
}

TEST_F(PackedFile, DeviceIsNoImage) {
  EXPECT_THAT([&] { Pack(folder_.Write("text", "x"), "/dev/full"); },
              testing::ThrowsMessage<std::runtime_error>(
                  "image '/dev/full': is there, but no regular file"));
}

// While it lives, the tests are run by somebody to whom permissions matter.
class WithoutPrivileges {
 public:
  WithoutPrivileges() {
    constexpr uid_t kNobody = 65534;
    EXPECT_EQ(seteuid(before_ == 0 ? kNobody : before_), 0);
  }
  WithoutPrivileges(const WithoutPrivileges&) = delete;
  WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
  ~WithoutPrivileges() { EXPECT_EQ(seteuid(before_), 0); }

 private:
  const uid_t before_ = geteuid();
};

TEST_F(PackedFile, UnreadableTextIsRefused) {
  const std::string text = folder_.Write("text", "x");
  ASSERT_EQ(chmod(text.c_str(), 0), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
  const WithoutPrivileges user;
  struct stat status = {};
  ASSERT_EQ(stat(text.c_str(), &status), 0) << "the folder itself cannot be entered";
  EXPECT_THAT([&] { Pack(text, folder_.Path("image")); },
              testing::ThrowsMessage<std::runtime_error>("text '" + text + "': Permission denied"));
}

// A limit of the size of files acts as a disk that is full.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_before_(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, handler_before_);
  }

 private:
  void (*const handler_before_)(int);
  rlimit before_ = {};
};

TEST_F(PackedFile, FullDiskIsAnErrorAndTheOldImageStays) {
  const std::string text = folder_.Write("text", Noise(5000));
  const std::string image = folder_.Write("image", "older");
  std::string message = "nothing was said";
  {
    const FileSizeLimit limit(4096);
    try {
      Pack(text, image);
    } catch (const std::runtime_error& error) {
      message = error.what();
    }
  }
  EXPECT_EQ(message, "image '" + image + "': File too large");
  EXPECT_EQ(ReadWhole(image), "older");
  EXPECT_THAT(FolderContent(), UnorderedElementsAre("text", "image"));
}

// ---- What is said ----------------------------------------------------------------

TEST(PackReport, IsOneLine) {
  EXPECT_EQ(DescribePacked({113819, 20480}, "a.ini", "b/c.ini"),
            "packed a.ini: 113819 bytes into 20480 bytes, b/c.ini\n");
}

TEST(PackReport, TellsWhatACardDoesNotDoWithALargeImage) {
  EXPECT_EQ(DescribeLimits({3000000, 1048576}), "");
  EXPECT_EQ(DescribeLimits({3000000, 1048577}),
            "the image has more than 1048576 bytes: a card shows and uploads it, but does not"
            " expand it to its memory file\n");
}

}  // namespace
}  // namespace sysctx
