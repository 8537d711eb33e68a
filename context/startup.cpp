// Start-up: empties the tables and runs the loaders in their fixed order.
#include <cstdio>
#include <cstring>

#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "context/stored_file.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

constinit int32_t ddDebugPrint = 0;

// kept as is: names the copy in memory, which is not what the loaders read.
constinit const char* strDeviceDefFilePath = "/mem/dd.ini";

namespace sys_context {
namespace {

constexpr size_t kWorkBufferSize = 3072000;

struct Loader {
  int32_t (*load)(const char* file);
  // kept as is: the text says strDeviceDefFilePath, but shows the path that was read.
  Message<int32_t, const char*> failure;
};

// Later tables refer to earlier ones, so the order is part of the file format.
constexpr Loader kLoaders[] = {
    {ddReadVersionInformation,
     "\r\nddParseContextFile->ddReadVersionInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllModuleInformation,
     "\r\nddParseContextFile->ddReadAllModuleInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadSysSupportFuncInformation,
     "\r\nddParseContextFile->ddReadSysSupportFuncInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllSupportedOltPortInformation,
     "\r\nddParseContextFile->ddReadAllSupportedOltPortInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllSupportedMainBoardInformation,
     "\r\nddParseContextFile->ddReadAllSupportedMainBoardInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllSupportedBoardInformation,
     "\r\nddParseContextFile->ddReadAllSupportedBoardInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadFrameInformation,
     "\r\nddParseContextFile->ddReadFrameInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllSupportedOnuPonInformation,
     "\r\nddParseContextFile->ddReadAllSupportedOnuPonInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllSupportedOnuLanInformation,
     "\r\nddParseContextFile->ddReadAllSupportedOnuLanInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllSupportedOnuPotsInformation,
     "\r\nddParseContextFile->ddReadAllSupportedOnuPotsInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllSupportedOnuSpecialPortInformation,
     "\r\nddParseContextFile->ddReadAllSupportedOnuSpecialPortInformation err! iResult = %d, strDeviceDefFilePath = %s"},
    {ddReadAllSupportedOnuInformation,
     "\r\nddParseContextFile->ddReadAllSupportedOnuInformation err! iResult = %d, strDeviceDefFilePath = %s"},
};

// Forgets what the tables hold; nothing is released.
void ClearTables() {
  gstVersionInformation = {};
  gstSysSupportFuncType = {};
  gstModuleTypeList = {};
  gstFrame = {};
  gstSupportedOltPortType = {};
  gstSupportedBoardType = {};
  gstSupportedMainBoardType = {};
  gstSupportedOnuPonType = {};
  gstSupportedOnuLanType = {};
  gstSupportedOnuPotsType = {};
  gstSupportedOnuSpecialPortType = {};
  gstSupportedOnuType = {};
}

// Proves that the memory is there, by touching all of it. The call goes through a
// volatile pointer: compilers drop an allocation that they see is not used.
class WorkBuffer {
 public:
  WorkBuffer() : bytes_(std::malloc(kWorkBufferSize)) {
    if (bytes_ != nullptr) {
      void* (*volatile fill)(void*, int, size_t) = std::memset;
      fill(bytes_.get(), 0, kWorkBufferSize);
    }
  }
  bool is_there() const { return bytes_ != nullptr; }

 private:
  Owned<void> bytes_;
};

}  // namespace
}  // namespace sys_context

int32_t ddInit() {
  using namespace sys_context;
  ClearTables();
  init_optmodule_info();
  if (const int32_t code = ddReadContextFile(); code != kOk) {
    std::puts("ddInit initialize......failed!\r");
    return code;
  }
  if (const int32_t code = optmodule_defines_fileparse(); code != kOk) {
    std::puts("ddInit optfile initialize......failed!\r");
    return code;
  }
  return kOk;
}

int32_t ddReadContextFile() {
  using namespace sys_context;
  // kept as is: the loaders read the file by its path and never see the buffer.
  const WorkBuffer buffer;
  if (!buffer.is_there()) {
    std::puts("\r\nddReadContextFile err! Not enough memory for pFileBuf buffer.\r");
    return kNoWorkBuffer;
  }
  const int32_t code = ddParseContextFile();
  if (code != kOk) {
    Console("\r\nddReadContextFile->ddParseContextFile err! iResult = %d", code);
  }
  return code;
}

int32_t ddParseContextFile() {
  using namespace sys_context;
  for (const Loader& loader : kLoaders) {
    if (const int32_t code = loader.load(kDeviceDefinitionFile); code != kOk) {
      Report(Gate::kAlways, loader.failure, code, kDeviceDefinitionFile);
      return code;
    }
  }
  return kOk;
}
