// A dump of bytes on the console, for whoever debugs the card.
#include <algorithm>
#include <cstdio>

#include "common/messages.h"
#include "sys_context/cli.h"

namespace sys_context {
namespace {

constexpr int32_t kBytesPerLine = 8;

// The first `count` bytes of a line, as numbers and as characters.
void PrintLine(const uint8_t* bytes, int32_t count) {
  constexpr uint8_t kBlank = ' ';
  std::printf("0x%08x: ", LowBits(bytes));
  for (int32_t i = 0; i < kBytesPerLine; ++i) {
    if (i < count) {
      std::printf("%02x ", bytes[i]);
    } else {
      std::printf("   ");
    }
  }
  std::printf("| ");
  for (int32_t i = 0; i < count; ++i) {
    std::printf("%1c ", bytes[i] <= kBlank ? '.' : bytes[i]);
  }
  std::printf("\r\n");
}

}  // namespace
}  // namespace sys_context

int32_t ddPrintBuf(const uint8_t* buffer, int32_t length) {
  using namespace sys_context;
  if (buffer == nullptr) {
    return std::printf("\r\nErr!!! pBuf == NULL,return!");
  }
  std::printf("\r\n");
  std::printf("BufLen = %d\r\n", length);
  for (int32_t left = length; left > 0; left -= kBytesPerLine) {
    PrintLine(buffer + (length - left), std::min(kBytesPerLine, left));
  }
  return std::printf("\r\n");
}
