// The definition file's copy in flash, held against what should become of it. The bytes are
//
//   SIZE LENGTH READ EXPAND TOLD TIMES   a line of numbers, of which any may be missing ("-"):
//       what flash_sizeof tells and what flash_read stores, instead of the image's size; the
//       codes of flash_read and zUnCompress; the length that zUnCompress tells; how often the
//       text is repeated
//   the image, a line "--", and the text that it expands to if it is compressed
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "fuzz/lines.h"
#include "fuzz/targets.h"
#include "support/fake_platform.h"
#include "support/faults.h"
#include "support/tables.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"

namespace fuzz {
namespace {

using test::FakePlatform;

constexpr size_t kTextRoom = 3072000;
constexpr size_t kMemoryFileImageRoom = 1048576;
constexpr size_t kMostShown = 20000;  // byte by byte: more takes too long

char terminal;

std::optional<int32_t> TakeNumber(std::string_view& numbers) {
  const std::string_view word = Take(numbers, " ");
  if (word.empty() || word == "-") {
    return {};
  }
  return static_cast<int32_t>(NumberOf(word));
}

// What the platform promises is kept: no text beyond its room, and none longer than was
// written.
void FillFlash(std::string_view bytes) {
  FakePlatform& platform = FakePlatform::Get();
  std::string_view numbers = TakeLine(bytes);
  platform.flash_size = TakeNumber(numbers);
  platform.flash_length = TakeNumber(numbers);
  platform.flash_read_result = TakeNumber(numbers).value_or(0);
  platform.expand_result = TakeNumber(numbers).value_or(0);
  const std::optional<int32_t> told = TakeNumber(numbers);
  const auto times = static_cast<uint32_t>(TakeNumber(numbers).value_or(1));
  platform.flash = Take(bytes, "\n--\n");
  const size_t most = kTextRoom + 1;  // one more than there is room for
  for (uint32_t i = 0; i < times && !bytes.empty() && platform.expanded.size() < most; ++i) {
    platform.expanded += bytes;
  }
  platform.expanded.resize(std::min(platform.expanded.size(), most));
  if (told) {
    platform.expanded_length =
        std::min(static_cast<uint32_t>(*told), static_cast<uint32_t>(platform.expanded.size()));
  }
}

// The text that is fetched with so much room for the image, if it is.
std::optional<std::string> ExpectedText(size_t image_room) {
  const FakePlatform& platform = FakePlatform::Get();
  const auto size = static_cast<int32_t>(platform.flash.size());
  const auto is_too_large = [&](int32_t length) {
    return static_cast<uint32_t>(length) > image_room;
  };
  const int32_t length = platform.flash_length.value_or(size);
  if (is_too_large(platform.flash_size.value_or(size)) || platform.flash_read_result != 0 ||
      is_too_large(length)) {
    return {};
  }
  std::string image = platform.flash;
  image.resize(static_cast<size_t>(length));
  if (!image.starts_with("zip")) {
    return image;
  }
  if (platform.expand_result != 0 || platform.expanded.size() > kTextRoom) {
    return {};
  }
  return platform.expanded.substr(
      0, platform.expanded_length.value_or(static_cast<uint32_t>(platform.expanded.size())));
}

std::string CheckMemoryFile(test::Faults& faults) {
  ddReadContextFileToBuf();
  const auto expected = ExpectedText(kMemoryFileImageRoom);
  if (!expected) {
    return faults.written.empty() ? "" : "a memory file of nothing";
  }
  return faults.written["/mem/dd.ini"] == *expected ? "" : "another memory file";
}

std::string CheckUpload() {
  ddUploadContextFile("1.2.3.4", "user", "password", "file", &terminal);
  const auto expected = ExpectedText(kTextRoom);
  const auto& uploads = FakePlatform::Get().uploads;
  if (!expected) {
    return uploads.empty() ? "" : "an upload of nothing";
  }
  return uploads.size() == 1 && uploads[0].content == *expected ? "" : "another upload";
}

// What is shown goes on to the first zero byte, whatever length was told.
std::string CheckDisplay() {
  FakePlatform& platform = FakePlatform::Get();
  if (platform.flash.size() + platform.expanded.size() > kMostShown) {
    return "";
  }
  platform.expanded_length.reset();
  platform.terminal.clear();
  ddShowContextFile_Func(&ddShowContextFile_CMD, &terminal, 0, nullptr);
  const auto expected = ExpectedText(kTextRoom);
  if (!expected) {
    const bool tells_failure = platform.terminal.find("ddPrintContextFile") != std::string::npos;
    return tells_failure ? "" : "a display of nothing";
  }
  const std::string text = expected->substr(0, expected->find('\0'));
  return platform.terminal == "\r\n" + text + "\r\n" ? "" : "another display";
}

// The image alone, with as much room as there must be for its text.
std::string CheckImage() {
  const FakePlatform& platform = FakePlatform::Get();
  const std::string& image = platform.flash;
  const auto length = static_cast<uint32_t>(image.size());
  const auto bytes = std::make_unique<uint8_t[]>(length);
  std::copy(image.begin(), image.end(), bytes.get());
  const bool is_compressed = image.starts_with("zip");
  for (const size_t room : {platform.expanded.size(), platform.expanded.size() / 2}) {
    uint32_t text_length = static_cast<uint32_t>(room);
    const auto text = std::make_unique<uint8_t[]>(is_compressed ? room : length);
    const int32_t code = read_compress_context_file(bytes.get(), length, text.get(), &text_length);
    if (!is_compressed && (code != 0 || text_length != length ||
                           !std::equal(image.begin(), image.end(), text.get(),
                                       [](char a, uint8_t b) { return uint8_t(a) == b; }))) {
      return "a plain image is not copied";
    }
    if (is_compressed && code == 0 && text_length > room) {
      return "a text longer than its room";
    }
  }
  return "";
}

}  // namespace

std::string CheckStoredCopy(std::string_view bytes) {
  test::ResetTables();
  FakePlatform::Reset();
  FillFlash(bytes);
  test::Faults faults;
  for (std::string wrong : {CheckMemoryFile(faults), CheckUpload(), CheckImage(), CheckDisplay()}) {
    if (!wrong.empty()) {
      return wrong;
    }
  }
  return faults.blocks.empty() ? "" : "memory is kept";
}

}  // namespace fuzz
