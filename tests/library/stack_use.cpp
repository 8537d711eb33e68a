// Starts the library on a painted stack, shows everything, asks it questions and lets starts
// fail at all depths; then tells how much of the stack was written. Unlike the frames that
// the compiler lays out, this has the C library in it, and the little that this host takes.
//     stack_use    ends with 1 when it is too much
#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string_view>

#include "bench/queries.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/platform.h"

namespace {

constexpr size_t kStack = 256 * 1024;
// The card's; on the desk the dynamic linker alone may save some KB of registers.
constexpr size_t kBound = (sizeof(void*) == 4 ? 16 : 24) * 1024;
constexpr int kCutFiles = 24;
constexpr unsigned char kPaint = 0xa5;

CommandRecord* records[32];
size_t record_count = 0;
const char* definition = SYS_CONTEXT_SAMPLE;

}  // namespace

// ---- The platform ------------------------------------------------------------------

extern "C" {

// In front of the C library's: ddInit opens the sample's files by paths of its own.
FILE* fopen(const char* path, const char* mode) {
  const std::string_view name = path;
  if (name == "/mnt/work/device_definition.ini") {
    path = definition;
  } else if (name == "/mnt/work/optmodule_definition.ini") {
    path = SYS_CONTEXT_OPTICAL_SAMPLE;
  }
  const int file = open(path, O_RDONLY);
  return file < 0 ? nullptr : fdopen(file, mode);
}

int32_t devmgrModuRegId = 31;

int32_t install_element(int32_t, CommandRecord* record) {
  if (record_count < std::size(records)) {
    records[record_count++] = record;
  }
  return 0;
}

int32_t vk_install_element(int32_t node, CommandRecord* record, int32_t, int32_t) {
  return install_element(node, record);
}

int32_t vty_out(void*, const char* format, ...) {
  va_list values;
  va_start(values, format);
  const int length = std::vsnprintf(nullptr, 0, format, values);
  va_end(values);
  return length;
}

int32_t ulogPrintf(int32_t, int32_t, const char*, ...) {
  return 0;
}
int32_t modInitRegister(const char*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t) {
  return 1;
}
int32_t setModVersion(int32_t, int32_t, const char*) {
  return 0;
}
int32_t bep_taskDelayEx(int32_t) {
  return 0;
}

constexpr char kStored[] = "[Version]\nSupportedSoftwareVer = KT2200V4.0\n";

int32_t flash_sizeof(const char*) {
  return sizeof kStored - 1;
}
int32_t flash_read(const char*, char* buffer, int32_t* length) {
  *length = sizeof kStored - 1;
  std::memcpy(buffer, kStored, sizeof kStored - 1);
  return 0;
}
int32_t zUnCompress(uint8_t*, uint32_t*, const uint8_t*, uint32_t) {
  return -1;
}
int32_t upload_buf_by_ftp(const char*, const char*, const char*, const char*, const char*,
                          uint32_t) {
  return 0;
}
int32_t is_manage_ipAddr(uint32_t) {
  return 0;
}
int32_t diags_is_outbandip(const char*) {
  return 0;
}

}  // extern "C"

namespace {

// ---- What is done ------------------------------------------------------------------

int failures = 0;

void Check(bool holds, const char* what) {
  if (!holds) {
    std::fprintf(stderr, "failed: %s\n", what);
    ++failures;
  }
}

void RunCommands() {
  char address[] = "192.0.2.1";
  char index[] = "1";
  char text[] = "word";
  for (size_t i = 0; i < record_count; ++i) {
    CommandRecord* const record = records[i];
    char* words[] = {record == &ddUploadContextFile_CMD ? address : index, text, text, text,
                     nullptr};
    record->func(record, nullptr, record == &ddUploadContextFile_CMD ? 4 : 1, words);
  }
}

// What no command shows by itself.
void RunPrinters() {
  ddPrintSlotClassInformation(nullptr, &gstFrame.stRealSlot);
  ddPrintOneSupportedBoardInfomation(gstSupportedBoardType.pBoardTypeArray[0], nullptr);
  ddPrintOneSupportedOnuInfomation(0, nullptr);
  ddPrintAllContextInformation(nullptr);
  ddPrintBuf(reinterpret_cast<const uint8_t*>(kStored), sizeof kStored);
}

void AskQuestions() {
  for (const bench::Query& query : bench::Queries()) {
    for (const bench::Question& question : {query.typical, query.worst}) {
      if (question.ask != nullptr) {
        question.ask(1);
      }
    }
  }
}

// The sample up to ever later places: what is missing is reported wherever it is missed.
void FailToStart() {
  char cut[] = "/tmp/sys_context_stack_XXXXXX";
  const int output = mkstemp(cut);
  const int input = open(SYS_CONTEXT_SAMPLE, O_RDONLY);
  const off_t size = lseek(input, 0, SEEK_END);
  lseek(input, 0, SEEK_SET);
  definition = cut;
  for (int part = 1; part < kCutFiles; ++part) {
    const off_t end = size * part / kCutFiles;
    char block[512];
    for (off_t at = lseek(output, 0, SEEK_END); at < end;) {
      const ssize_t taken =
          read(input, block, static_cast<size_t>(end - at < 512 ? end - at : 512));
      if (taken <= 0 || write(output, block, static_cast<size_t>(taken)) != taken) {
        Check(false, "the sample was cut");
        break;
      }
      at += taken;
    }
    Check(ddInit() != 0, "a start with a cut file fails");
  }
  definition = SYS_CONTEXT_SAMPLE;
  close(input);
  close(output);
  unlink(cut);
}

unsigned char* stack = nullptr;

// How much of the painted stack below this was written.
size_t Written(const unsigned char* top) {
  const unsigned char* lowest = stack;
  while (lowest < top && *lowest == kPaint) {
    ++lowest;
  }
  return static_cast<size_t>(top - lowest);
}

template <void (*act)()>
void* Measured(void* written) {
  const auto* const top = static_cast<const unsigned char*>(__builtin_frame_address(0));
  act();
  *static_cast<size_t*>(written) = Written(top);
  return nullptr;
}

template <void (*act)()>
void Measure(const char* what) {
  std::memset(stack, kPaint, kStack);
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstack(&attributes, stack, kStack);
  pthread_t thread;
  size_t written = kStack;
  Check(pthread_create(&thread, &attributes, Measured<act>, &written) == 0, "a thread");
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
  std::fprintf(stderr, "%-24s %6zu bytes of stack\n", what, written);
  Check(written > 0 && written < kBound, what);
}

void Start() {
  Check(ddInit() == 0, "ddInit");
  Check(ddCmdInit(0, 0, 0) == 0, "ddCmdInit");
}

}  // namespace

int main() {
  void* const room =
      mmap(nullptr, kStack, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (room == MAP_FAILED || std::freopen("/dev/null", "w", stdout) == nullptr) {
    return 1;
  }
  stack = static_cast<unsigned char*>(room);
  Measure<FailToStart>("starts that fail");
  Measure<Start>("a start");
  Measure<RunCommands>("the commands");
  Measure<RunPrinters>("the printers");
  Measure<AskQuestions>("the queries");
  std::fprintf(stderr, "each must stay below %zu\n", kBound);
  return failures == 0 ? 0 : 1;
}
