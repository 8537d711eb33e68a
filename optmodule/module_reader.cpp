// Reading one optical module with its paths.
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>
#include <type_traits>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/numbers.h"
#include "optmodule/log.h"
#include "sys_context/optmodule.h"

namespace sys_context {
namespace {

constexpr size_t kMaxPathText = 40;

constexpr char kReader[] = "optmodule_oneinfo_read";

struct FreeModule {
  void operator()(OptModuleInfo* module) const { optmodule_oneobj_free(module); }
};
using OwnedModule = std::unique_ptr<OptModuleInfo, FreeModule>;

// A key of a module's section that gives a number.
struct NumberKey {
  const char* key;
  int32_t unreadable_code;
  void (*store)(OptModuleInfo& module, int32_t number);
};

template <auto field>
void Store(OptModuleInfo& module, int32_t number) {
  auto& stored = module.*field;
  stored = static_cast<std::remove_reference_t<decltype(stored)>>(number);
}

constexpr NumberKey kNumbers[] = {
    {"PortKind", kNoPortKind, Store<&OptModuleInfo::kind>},
    {"PortType", kNoPortType, Store<&OptModuleInfo::porttype>},
    {"PhyType", kNoPhyType, Store<&OptModuleInfo::phytype>},
    {"PathNum", kNoPathNum, Store<&OptModuleInfo::pathnum>},
};

int32_t ReadNumbers(const Source& source, const char* section, OptModuleInfo& module) {
  for (const NumberKey& number : kNumbers) {
    Value value;
    if (const int32_t code = source.LookUp(section, number.key, value); code != kOk) {
      Log(LogLevel::kDetail, "%s err! ret = %d, strSectionFrameNameBuf = %s, Key = %s.\r\n",
          kReader, code, section, number.key);
      return number.unreadable_code;
    }
    number.store(module, ParseNumber(value.text));
  }
  return kOk;
}

int32_t ReadPath(const Source& source, const char* section, uint32_t number,
                 OptModuleThreshold** path) {
  Value value;
  const NumberedKey key("Path", number);
  if (const int32_t code = source.LookUp(section, key.text, value); code != kOk) {
    Log(LogLevel::kDetail, "%s get err! ret = %d, strSectionFrameNameBuf = %s, Key = %s.\r\n",
        kReader, code, section, key.text);
    return kNoPath;
  }
  if (const int32_t code = optmodule_onuthres_read(value.text, path); code != kOk) {
    Log(LogLevel::kDetail, "%s optmodule_onuthres_read err! ret = %d, strBuf = %s.\r\n", kReader,
        code, value.text);
    return kBadPath;
  }
  return kOk;
}

int32_t ReadPaths(const Source& source, const char* section, OptModuleInfo& module) {
  if (module.pathnum == 0 || module.pathnum > MAX_OPTMODULE_PATH_NUM) {
    Log(LogLevel::kDetail, "%s err! pOptModInfo->pathnum = %d, out of range1-4.\r\n", kReader,
        module.pathnum);
    // kept as is: the module stays, without paths.
    module.pathnum = 0;
    return kOk;
  }
  module.pathinfo = NewArray<OptModuleThreshold*>(module.pathnum).release();
  if (module.pathinfo == nullptr) {
    Log(LogLevel::kDetail, "%s err! pOptModInfo.pathinfo malloc failed, pathnum = %d.\r\n", kReader,
        module.pathnum);
    return kNoOptModuleMemory;
  }
  for (uint32_t i = 0; i < module.pathnum; ++i) {
    const int32_t code = ReadPath(source, section, i + 1, &module.pathinfo[i]);
    if (code != kOk) {
      return code;
    }
  }
  return kOk;
}

// Stores the numbers of a path's text, which are parted by commas.
void ParsePath(const char* text, OptModuleThreshold& threshold) {
  int32_t* const before_commas[] = {&threshold.outup, &threshold.outdn, &threshold.inup};
  size_t next = 0;
  const char* comma = std::strchr(text, ',');
  while (comma != nullptr) {
    if (next < std::size(before_commas)) {
      *before_commas[next++] = ParseNumber(text);  // it ends at the comma
    }
    text = comma + 1;
    comma = std::strchr(text, ',');
  }
  threshold.indn = ParseNumber(text);
}

}  // namespace
}  // namespace sys_context

int32_t optmodule_oneinfo_read(const char* file, const char* section, int32_t iOffsetIn,
                               OptModuleInfo** module) {
  using namespace sys_context;
  if (file == nullptr || section == nullptr || module == nullptr) {
    return kBadOptModuleArgument;
  }
  if (iOffsetIn < 0) {
    return kNegativeStart;
  }
  *module = nullptr;
  OwnedModule record(NewRecord<OptModuleInfo>().release());
  if (record == nullptr) {
    Log(LogLevel::kDetail, "%s pOptModInfo malloc failed.\r\n", kReader);
    return kNoOptModuleMemory;
  }
  const Source source(file, iOffsetIn);
  if (const int32_t code = ReadNumbers(source, section, *record); code != kOk) {
    return code;
  }
  if (const int32_t code = ReadPaths(source, section, *record); code != kOk) {
    return code;
  }
  *module = record.release();
  return kOk;
}

int32_t optmodule_onuthres_read(const char* text, OptModuleThreshold** threshold) {
  using namespace sys_context;
  if (text == nullptr || threshold == nullptr) {
    return kBadOptModuleArgument;
  }
  *threshold = nullptr;
  if (std::strlen(text) > kMaxPathText) {
    Log(LogLevel::kDetail, "%s: input info %s 's length is out of 40. \r\n",
        "optmodule_onuthres_read", text);
    return kPathTooLong;
  }
  auto record = NewRecord<OptModuleThreshold>();
  if (record == nullptr) {
    Log(LogLevel::kDetail, "%s poptthres malloc failed.\r\n", "optmodule_onuthres_read");
    return kNoOptModuleMemory;
  }
  ParsePath(text, *record);
  *threshold = record.release();
  return kOk;
}

int32_t optmodule_oneobj_free(OptModuleInfo* module) {
  using namespace sys_context;
  if (module == nullptr) {
    return kBadOptModuleArgument;
  }
  if (module->pathinfo != nullptr) {
    for (uint16_t i = 0; i < module->pathnum; ++i) {
      std::free(module->pathinfo[i]);
    }
    std::free(module->pathinfo);
  }
  std::free(module);
  return kOk;
}
