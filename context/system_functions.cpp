// The module types that the system as a whole supports. The file names them,
// the table holds their types.
#include <algorithm>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/numbers.h"
#include "sys_context/context.h"

constinit SysSupportFuncType gstSysSupportFuncType = {};

namespace sys_context {
namespace {

constexpr char kSection[] = "SupportedSysFunctionType";
constexpr KeyMessage kUnreadable =
    "\r\nddReadSysSupportFuncInformation err! iResult = %d, section = %s, key = %s";

// Reads entry `number` and translates it into a module type.
bool ReadFunction(const char* file, uint32_t number, uint32_t& type) {
  Value name;
  const NumberedKey key("SupportedSysFunction", number);
  if (ReadKey(file, kSection, key.text, name, kUnreadable, Gate::kDebug) != kOk) {
    return false;
  }
  const int32_t code = ddGetModuleTypeByName(name.text, &type);
  if (code != kOk) {
    DebugConsole(
        "\r\nddReadSysSupportFuncInformation->ddGetModuleTypeByName err! iResult = %d, strValueBuf = %s",
        code, name.text);
  }
  return code == kOk;
}

}  // namespace
}  // namespace sys_context

// kept as is: alone among the loaders it prints only while ddDebugPrint is set.
int32_t ddReadSysSupportFuncInformation(const char* strFileName) {
  using namespace sys_context;
  if (strFileName == nullptr) {
    DebugConsole("\r\nddReadSysSupportFuncInformation err!, strFileName = 0x%x",
                 LowBits(strFileName));
    return kNullArgument;
  }
  Value number;
  const int32_t code = ReadKey(strFileName, kSection, "SupportedSysFunctionTypeNum", number,
                               kUnreadable, Gate::kDebug);
  if (code != kOk) {
    return kKeyUnreadable;
  }
  const uint32_t announced = ParseUnsigned(number.text);
  if (announced > MAX_SUPPORTED_MODULE_TYPE_NUM) {
    // kept as is: the code shown is the lookup's, which succeeded.
    DebugConsole(
        "\r\nddReadSysSupportFuncInformation err! iResult = %d, ulSupportedSysFunctionTypeNum = %d",
        code, announced);
    return kTooManyModules;
  }
  uint32_t stored = 0;
  for (uint32_t i = 1; i <= announced; ++i) {
    uint32_t type = 0;
    if (ReadFunction(strFileName, i, type)) {
      gstSysSupportFuncType.aulSupportedSysFunctionType[stored++] = type;
    }
  }
  gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = stored;
  return kOk;
}

int32_t ddIsSysSupportFunc(int32_t lFuncType, uint32_t* pulIsSupported) {
  using namespace sys_context;
  if (pulIsSupported == nullptr) {
    DebugConsole("\r\nddIsSysSupportFunc err! pulIsSupported = 0x%x", LowBits(pulIsSupported));
    return kNullArgument;
  }
  *pulIsSupported = 0;
  const uint32_t count = gstSysSupportFuncType.ulSupportedSysFunctionTypeNum;
  if (count > MAX_SUPPORTED_MODULE_TYPE_NUM) {
    DebugConsole("\r\nddIsSysSupportFunc err! ulFuncType = %d", lFuncType);
    return kTooManyModules;
  }
  const uint32_t* const types = gstSysSupportFuncType.aulSupportedSysFunctionType;
  if (std::find(types, types + count, static_cast<uint32_t>(lFuncType)) == types + count) {
    return kNoSuchModule;
  }
  *pulIsSupported = 1;
  return kOk;
}
