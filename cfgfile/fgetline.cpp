// The exported line reader, over a stream.
#include "cfgfile/line.h"

#include <cstdio>

#include "sys_context/cfgfile.h"

int32_t fgetline(FILE* stream, char* buffer, int32_t maximum) {
  using namespace sys_context;
  if (stream == nullptr || buffer == nullptr) {
    return kLineReadError;
  }
  const auto next_byte = [stream] {
    const int byte = std::getc(stream);
    if (byte != EOF) {
      return byte;
    }
    // Not ferror: an error that the stream met earlier is none of this line's.
    return std::feof(stream) != 0 ? kSourceEnd : kSourceError;
  };
  return CopyLine(next_byte, buffer, maximum);
}
