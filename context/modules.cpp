// The kinds of module that the device knows: their loader and the queries.
#include <cstring>
#include <type_traits>

#include "cfgfile/keys.h"
#include "cfgfile/named_sections.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "common/names.h"
#include "common/numbers.h"
#include "common/table_queries.h"
#include "sys_context/context.h"

constinit ModuleTypeList gstModuleTypeList = {};

namespace sys_context {
namespace {

constexpr ListSection kModuleList = {
    .section = "ModuleTypeList",
    .count =
        {
            .key = "ModuleNum",
            .limit = MAX_SUPPORTED_MODULE_TYPE_NUM,
            .above_limit_code = kTooManyModules,
            .above_limit =
                "\r\nddReadAllModuleInformation err! ulModuleTypeNum = %d, MAX_SUPPORTED_MODULE_TYPE_NUM = %d",
        },
    .entry_key = "Module",
    .null_file = "\r\nddReadAllModuleInformation err!, strFileName = 0x%x",
    .key_unreadable = "\r\nddReadAllModuleInformation err! iResult = %d, section = %s, key = %s",
    .no_memory = "\r\nddReadAllModuleInformation->malloc err! pModuleTypeArray = 0x%x",
    .record_failed =
        "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = %d, section = %s",
};

// kept as is: "Type" is reported in the words of the chassis loader.
constexpr KeyMessage kTypeUnreadable =
    "\r\nddReadOneModuleInformation err! iResult = %d, strSectionFrameNameBuf = %s, Key = %s";
constexpr KeyMessage kUnreadable =
    "\r\nddReadOneModuleInformation err! iResult = %d, section = %s, key = %s";
constexpr Message<uint32_t> kNameTooLong = "\r\nddReadOneModuleInformation err! ulNameLen = %d";

int32_t ReadModule(const char* file, const char* section, ModuleInformation& module) {
  Value value;
  if (ReadKey(file, section, "Type", value, kTypeUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  module.ulModuleType = ParseUnsigned(value.text);
  if (const int32_t code =
          ReadName(file, section, module.acName, module.ulNameLen, kUnreadable, kNameTooLong);
      code != kOk) {
    return code;
  }
  if (ReadKey(file, section, "Size", value, kUnreadable) != kOk) {
    return kKeyUnreadable;
  }
  module.ulSize = ParseUnsigned(value.text);
  return kOk;
}

// What a query checks before it looks into the list, in its words.
consteval TableCheck ListCheck(const PartialMessage<uint32_t, uint32_t>& above_limit,
                               const Message<uint32_t>& no_array) {
  return {
      .limit = MAX_SUPPORTED_MODULE_TYPE_NUM,
      .above_limit_code = kTooManyModules,
      .no_array_code = kNoTable,
      .above_limit = above_limit,
      .no_array = no_array,
  };
}

int32_t CheckList(const TableCheck& check) {
  return CheckTable(check, gstModuleTypeList.ulModuleTypeNum, gstModuleTypeList.pModuleTypeArray);
}

// The first module that fulfils `wanted`, or null.
template <typename Wanted>
const ModuleInformation* FindModule(Wanted wanted) {
  return FindRecord(gstModuleTypeList.ulModuleTypeNum, gstModuleTypeList.pModuleTypeArray, wanted);
}

constexpr TableCheck kNameByType = ListCheck(
    "\r\nddGetModuleNameByType err!, ulModuleTypeNum = %d, MAX_SUPPORTED_MODULE_TYPE_NUM = %d",
    "\r\nddGetModuleNameByType err!, pModuleTypeArray = 0x%x");

// kept as is: shows the boards' limit, not the one that was exceeded.
constexpr TableCheck kTypeByName =
    ListCheck("\r\nddGetModuleTypeByName err!, ulModuleTypeNum = %d, MAX_OLT_BOARD_TYPE_NUM = 100",
              "\r\nddGetModuleTypeByName err!, pModuleTypeArray = 0x%x");

// ddIsModuleInList and ddGetModuleSize walk the list alike.
// kept as is: an empty place ends their walk, while the other queries pass over
// it, and a missing list alone leaves their output untouched.
struct StrictQuery {
  Message<uint32_t> null_output;
  TableCheck list;
  Message<uint32_t, uint32_t, uint32_t> empty_place;
};

constexpr StrictQuery kIsModuleInList = {
    .null_output = "\r\nddIsModuleInList err!, pulIsSupported = 0x%x",
    .list = ListCheck("\r\nddIsModuleInList err! ulModuleTypeNum = %d",
                      "\r\nddIsModuleInList err!, pModuleTypeArray = 0x%x"),
    .empty_place =
        "\r\nddIsModuleInList err! ulModuleTypeNum = %d, ulModuleTypeIndex = %d, pstModuleInformation = 0x%x",
};

constexpr StrictQuery kGetModuleSize = {
    .null_output = "\r\nddGetModuleSize err!, pulSize = 0x%x",
    .list = ListCheck("\r\nddGetModuleSize err! ulModuleTypeNum = %d",
                      "\r\nddGetModuleSize err!, pModuleTypeArray = 0x%x"),
    .empty_place =
        "\r\nddGetModuleSize err! ulModuleTypeNum = %d, ulModuleTypeIndex = %d, pstModuleInformation = 0x%x",
};

// Stores `answer` of the first module of the type, or 0. Returns kNoSuchModule
// when there is none.
template <typename Output, typename Answer>
int32_t AskStrictly(const StrictQuery& query, uint32_t type, Output* output, Answer answer) {
  if (output == nullptr) {
    Report(Gate::kDebug, query.null_output, LowBits(output));
    return kNullArgument;
  }
  const int32_t code = CheckList(query.list);
  if (code == kNoTable) {
    return code;
  }
  *output = 0;
  if (code != kOk) {
    return code;
  }
  const uint32_t count = gstModuleTypeList.ulModuleTypeNum;
  for (uint32_t i = 0; i < count; ++i) {
    const ModuleInformation* const module = gstModuleTypeList.pModuleTypeArray[i];
    if (module == nullptr) {
      Report(Gate::kDebug, query.empty_place, count, i, LowBits(module));
      return kEmptyPlace;
    }
    if (module->ulModuleType == type) {
      *output = answer(*module);
      return kOk;
    }
  }
  return kNoSuchModule;
}

}  // namespace
}  // namespace sys_context

int32_t ddReadAllModuleInformation(const char* strFileName) {
  using namespace sys_context;
  return LoadNamedSections<ModuleInformation>(
      kModuleList, strFileName, gstModuleTypeList.ulModuleTypeNum,
      gstModuleTypeList.pModuleTypeArray,
      [](const Source& source, const char* section, ModuleInformation** module) {
        return ddReadOneModuleInformation(source.file(), section, module);
      });
}

int32_t ddReadOneModuleInformation(const char* strFileName, const char* strModuleSection,
                                   ModuleInformation** pModuleObjAddr) {
  using namespace sys_context;
  if (strFileName == nullptr || strModuleSection == nullptr || pModuleObjAddr == nullptr) {
    Console(
        "\r\nddReadOneModuleInformation err! strFileName = 0x%x, strModuleSection = 0x%x, pModuleObjAddr = 0x%x",
        LowBits(strFileName), LowBits(strModuleSection), LowBits(pModuleObjAddr));
    return kNullArgument;
  }
  *pModuleObjAddr = nullptr;
  auto module = NewRecord<ModuleInformation>();
  if (module == nullptr) {
    Console("\r\nddReadOneModuleInformation->malloc err! pstModuleInformation = 0x%x",
            LowBits(module.get()));
    return kNoMemory;
  }
  const int32_t code = ReadModule(strFileName, strModuleSection, *module);
  if (code == kOk) {
    *pModuleObjAddr = module.release();
  }
  return code;
}

int32_t ddGetModuleNameByType(uint32_t ulModuleType, char* pcModuleName) {
  using namespace sys_context;
  if (pcModuleName == nullptr) {
    DebugConsole("\r\nddGetModuleNameByType err!, pcModuleName = 0x%x", LowBits(pcModuleName));
    return kNullArgument;
  }
  if (const int32_t code = CheckList(kNameByType); code != kOk) {
    return code;
  }
  const ModuleInformation* const module = FindModule([=](const ModuleInformation& candidate) {
    return candidate.ulModuleType == ulModuleType && candidate.ulNameLen <= MAX_MODULE_NAME_LEN;
  });
  if (module == nullptr) {
    return kNoSuchModule;
  }
  std::memcpy(pcModuleName, module->acName, module->ulNameLen);
  return kOk;
}

int32_t ddGetModuleTypeByName(const char* pcModuleName, uint32_t* pulModuleType) {
  using namespace sys_context;
  if (pcModuleName == nullptr || pulModuleType == nullptr) {
    DebugConsole("\r\nddGetModuleTypeByName err!, pcModuleName = 0x%x, pulModuleType = 0x%x",
                 LowBits(pcModuleName), LowBits(pulModuleType));
    return kNullArgument;
  }
  if (const int32_t code = CheckList(kTypeByName); code != kOk) {
    return code;
  }
  const ModuleInformation* const module = FindModule([=](const ModuleInformation& candidate) {
    return NameEquals(pcModuleName, candidate.acName, candidate.ulNameLen);
  });
  if (module == nullptr) {
    return kNoSuchName;
  }
  *pulModuleType = module->ulModuleType;
  return kOk;
}

int32_t ddIsModuleInList(uint32_t ulModuleType, uint32_t* pulIsSupported) {
  using namespace sys_context;
  const int32_t code = AskStrictly(kIsModuleInList, ulModuleType, pulIsSupported,
                                   [](const ModuleInformation&) { return uint32_t{1}; });
  // kept as is: a module that is not in the list is no failure here.
  return code == kNoSuchModule ? kOk : code;
}

int32_t ddGetModuleSize(uint32_t ulModuleType, uint8_t* pulSize) {
  using namespace sys_context;
  // kept as is: the size leaves as one byte, and what exceeds that is cut.
  return AskStrictly(kGetModuleSize, ulModuleType, pulSize, [](const ModuleInformation& module) {
    return static_cast<uint8_t>(module.ulSize);
  });
}
