// The list of optical modules: its loader, and its end.
#include <cstdlib>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/numbers.h"
#include "optmodule/log.h"
#include "sys_context/optmodule.h"

constinit OptModuleInfoList g_optmdule_infolist = {};

namespace sys_context {
namespace {

constexpr char kOpticalDefinitionFile[] = "/mnt/work/optmodule_definition.ini";

constexpr char kListSection[] = "SupportedOptModuleInfo";
constexpr char kCountKey[] = "SupportedOptModuleInfoNum";
constexpr char kEntryKey[] = "SupportedOptModuleInfo";  // the number follows

constexpr char kReader[] = "optmodule_infolist_read";

// Moves `source` to the list section.
int32_t ReadCount(Source& source, uint32_t& count) {
  Value value;
  if (const int32_t code = source.LookUpAndMove(kListSection, kCountKey, value); code != kOk) {
    Log(LogLevel::kDetail, "%s: err! ret = %d, section = %s, key = %s.\r\n", kReader, code,
        kListSection, kCountKey);
    return kNoOptModuleCount;
  }
  count = ParseUnsigned(value.text);
  if (count > MAX_OPTMODULE_INFO_NUM) {
    Log(LogLevel::kDetail, "%s:err! listnum = %d, MAX_OPTMODULE_INFO_NUM = %d\r\n", kReader, count,
        MAX_OPTMODULE_INFO_NUM);
    return kTooManyOptModules;
  }
  return kOk;
}

// Reads the module of an entry of the list. Moves `source` to the module's section when
// that and its kind are there.
int32_t ReadEntry(const Source& list, uint32_t number, Source& source, OptModuleInfo** module) {
  Value section;
  const NumberedKey key(kEntryKey, number);
  if (const int32_t code = list.LookUp(kListSection, key.text, section); code != kOk) {
    Log(LogLevel::kDetail, "%s: err! ret = %d, section = %s, key = %s\r\n", kReader, code,
        kListSection, key.text);
    return code;
  }
  // Looked up to find the section and move there; optmodule_oneinfo_read reads it again.
  Value kind;
  if (const int32_t code = source.LookUpAndMove(section.text, "PortKind", kind); code != kOk) {
    Log(LogLevel::kDetail, "%s: err! ret = %d, strSectionFrameNameBuf = %s, Key = %s.\r\n", kReader,
        code, section.text, "PortKind");
    return code;
  }
  const int32_t code = optmodule_oneinfo_read(source.file(), section.text, source.start(), module);
  if (code != kOk) {
    // kept as is: names a function that there is not.
    Log(LogLevel::kDetail, "%s:optmodule_onuinfo_read err! ret = %d, section = %s.\r\n", kReader,
        code, section.text);
  }
  return code;
}

}  // namespace
}  // namespace sys_context

int32_t init_optmodule_info() {
  using namespace sys_context;
  g_optmdule_infolist = {};
  return kOk;
}

int32_t optmodule_defines_fileparse() {
  using namespace sys_context;
  const int32_t code = optmodule_infolist_read(kOpticalDefinitionFile);
  if (code < 0) {
    // kept as is: "failded".
    Log(LogLevel::kWholeFile, "%s:read failded ,ret = %d.\r\n", "optmodule_defines_fileparse",
        code);
  }
  return code;
}

int32_t optmodule_infolist_read(const char* filename) {
  using namespace sys_context;
  if (filename == nullptr) {
    return kBadOptModuleArgument;
  }
  Source source(filename, 0);
  uint32_t announced = 0;
  if (const int32_t code = ReadCount(source, announced); code != kOk) {
    return code;
  }
  if (announced == 0) {
    Log(LogLevel::kWholeFile, "%s: ok! SupportedOptModuleInfoNum = %d.\r\n", kReader, announced);
    return optmodule_file_free();
  }
  optmodule_file_free();
  OptModuleInfoList& list = g_optmdule_infolist;
  list.objlist = NewArray<OptModuleInfo*>(announced).release();
  if (list.objlist == nullptr) {
    Log(LogLevel::kDetail, "%s:objlist malloc err!.\r\n", kReader);
    return kNoOptModuleMemory;
  }
  const Source list_section = source;
  for (uint32_t number = 1; number <= announced; ++number) {
    OptModuleInfo* module = nullptr;
    if (ReadEntry(list_section, number, source, &module) == kOk) {
      list.objlist[list.listnum++] = module;
    }
  }
  return kOk;
}

int32_t optmodule_file_free() {
  using namespace sys_context;
  OptModuleInfoList& list = g_optmdule_infolist;
  if (list.objlist != nullptr) {
    for (uint16_t i = 0; i < list.listnum; ++i) {
      optmodule_oneobj_free(list.objlist[i]);
    }
    std::free(list.objlist);
  }
  list = {};
  return kOk;
}
