// The device definition file as it is kept in flash: shown, and sent to an FTP server.
#include <optional>

#include "cli/listing.h"
#include "common/codes.h"
#include "common/memory.h"
#include "context/stored_file.h"
#include "sys_context/cli.h"

namespace sys_context {
namespace {

// How the commands on the file differ in their failures. The texts show the function's
// name first.
struct FileCommand {
  const char* name;
  int32_t no_image_buffer_code;

  Message<const char*> no_image_buffer;
  Message<const char*, int32_t, uint32_t, const char*> too_large;
  std::optional<Message<>> after_too_large = {};
  Message<const char*, int32_t, int32_t> not_expanded;
};

constexpr FileCommand kDisplay = {
    .name = "ddPrintContextFile",
    .no_image_buffer_code = kOk,
    .no_image_buffer = "\r\n%s: no enough memory for ftp buffer.\r\n",
    .too_large =
        "\r\n%s err! memfile_length = %d, FTP_CONTEXT_BUF_SIZE = %d, FLASH_CONTEXT_FILE_KXCB_NAME = %s",
    .not_expanded = "%s->read_compress_context_file failed: ret = %d, file_length = %d !\r\n",
};

constexpr FileCommand kUpload = {
    .name = "ddUploadContextFile",
    .no_image_buffer_code = kNoFtpBuffer,
    .no_image_buffer = "\r\n%s:no enough memory for ftp buffer.\r\n",
    .too_large =
        "\r\n%s->flash_sizeof err! memfile_length = %d, FTP_CONTEXT_BUF_SIZE = %d, FLASH_CONTEXT_FILE_KXCB_NAME = %s",
    .after_too_large = Message<>("File size err!\r\n"),
    .not_expanded = "%s->read_compress_context_file failed : ret = %d, file_length = %d!\r\n",
};

// Fetches the file and hands its text to `use(text, length)`; a failure is written to the
// terminal.
// kept as is: most are no failure to the caller.
template <typename Use>
int32_t WithStoredText(const FileCommand& command, void* vty, Use use) {
  const auto image = NewArray<char>(kStoredTextCapacity);
  if (image == nullptr) {
    Write(vty, command.no_image_buffer, command.name);
    return command.no_image_buffer_code;
  }
  const auto text = NewArray<uint8_t>(kStoredTextCapacity);
  if (text == nullptr) {
    vty_out(vty, "%s:no enough memory for uncompress context buffer.\r\n", command.name);
    return kOk;
  }
  const FetchedFile file = FetchStoredFile(image.get(), kStoredTextCapacity, text.get());
  using enum FetchedFile::Outcome;
  switch (file.outcome) {
    case kTooLarge:
      Write(vty, command.too_large, command.name, file.image_length, kStoredTextCapacity,
            kDeviceDefinitionFile);
      if (command.after_too_large) {
        Write(vty, *command.after_too_large);
      }
      break;
    case kNotRead:
      vty_out(vty, "%s:Read flash failed!\r\n", command.name);
      break;
    case kNotExpanded:
      Write(vty, command.not_expanded, command.name, file.code, file.image_length);
      break;
    case kDone:
      use(text.get(), file.text_length);
      break;
  }
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddPrintContextFile(void* vty) {
  using namespace sys_context;
  return WithStoredText(kDisplay, vty, [vty](const uint8_t* text, uint32_t) {
    vty_out(vty, "\r\n");
    // kept as is: a zero byte ends the text, whatever its length.
    for (uint32_t i = 0; i < kStoredTextCapacity && text[i] != 0; ++i) {
      vty_out(vty, "%1c", text[i]);
    }
    vty_out(vty, "\r\n");
  });
}

int32_t ddUploadContextFile(const char* address, const char* user, const char* password,
                            const char* file, void* vty) {
  using namespace sys_context;
  return WithStoredText(kUpload, vty, [=](const uint8_t* text, uint32_t length) {
    const int32_t result = upload_buf_by_ftp(address, user, password, file,
                                             reinterpret_cast<const char*>(text), length);
    vty_out(vty, result == 0
                     ? "Upload the context file success!\r\n"
                     : "Fail to upload the context file, please check the ftp setting!\r\n");
  });
}
