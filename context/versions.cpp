// The software versions that the definition file is written for.
#include <algorithm>
#include <string_view>

#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/messages.h"
#include "common/names.h"
#include "sys_context/context.h"

constinit VersionInformation gstVersionInformation = {};
constinit const char* gstrddSoftwareVer = "KT2200V4.0";

namespace sys_context {
namespace {

constexpr char kSection[] = "Version";
constexpr char kKey[] = "SupportedSoftwareVer";
constexpr char kSeparator = '|';

// Stores one version; one that is too long is reported and left out.
bool StoreVersion(std::string_view version, SupportedSoftVer& entry) {
  SupportedSoftVer stored = {};
  const uint32_t length =
      StoreName(version, stored.acSupportedSoftVer, stored.ulSupportedSoftVerLen);
  if (length > MAX_SUPPORTED_SOFT_VER_LEN) {
    Console(
        "\r\nddReadVersionInformation err! ulSupportedSoftVerLen = %d, MAX_SUPPORTED_SOFT_VER_LEN = %d",
        length, MAX_SUPPORTED_SOFT_VER_LEN);
    return false;
  }
  entry = stored;
  return true;
}

// Blanks around a separator belong to the versions, and a version may be empty.
uint32_t StoreVersions(std::string_view list) {
  uint32_t stored = 0;
  for (bool more = true; more && stored < MAX_SUPPORTED_SOFT_VER_NUM;) {
    const size_t separator = list.find(kSeparator);
    more = separator != std::string_view::npos;
    const std::string_view version(list.data(), more ? separator : list.size());
    if (StoreVersion(version, gstVersionInformation.astSupportedSoftVer[stored])) {
      ++stored;
    }
    list.remove_prefix(more ? separator + 1 : list.size());
  }
  return stored;
}

}  // namespace
}  // namespace sys_context

int32_t ddReadVersionInformation(const char* strFileName) {
  using namespace sys_context;
  if (strFileName == nullptr) {
    Console("\r\nddReadVersionInformation err!, strFileName = 0x%x", LowBits(strFileName));
    return kNullArgument;
  }
  Value versions;
  if (const int32_t code = CFG_get_key(strFileName, kSection, kKey, versions.text); code != kOk) {
    // kept as is: shows the section as the key, too.
    Console("\r\nddReadVersionInformation err! iResult = %d, section = %s, key = %s", code,
            kSection, kSection);
    return kKeyUnreadable;
  }
  gstVersionInformation.ulSupportedSoftVerNum = StoreVersions(versions.text);
  return kOk;
}

// kept as is: prints its messages whatever ddDebugPrint holds.
int32_t ddIsContextVerMatchSoftVer(uint32_t* pulIsSupported) {
  using namespace sys_context;
  if (pulIsSupported == nullptr) {
    Console("\r\nddIsContextVerMatchSoftVer err! pulIsSupported = 0x%x", LowBits(pulIsSupported));
    return kNullArgument;
  }
  const uint32_t count = gstVersionInformation.ulSupportedSoftVerNum;
  if (count > MAX_SUPPORTED_SOFT_VER_NUM) {
    Console(
        "\r\nddIsContextVerMatchSoftVer err! ulSupportedSoftVerNum = %d, MAX_SUPPORTED_SOFT_VER_NUM = %d",
        count, MAX_SUPPORTED_SOFT_VER_NUM);
    return kTooManyVersions;
  }
  const auto* const versions = gstVersionInformation.astSupportedSoftVer;
  const bool supported = gstrddSoftwareVer != nullptr &&
                         std::any_of(versions, versions + count, [](const auto& version) {
                           return NameEquals(gstrddSoftwareVer, version.acSupportedSoftVer,
                                             version.ulSupportedSoftVerLen);
                         });
  *pulIsSupported = supported ? 1 : 0;
  return supported ? kOk : kVersionNotSupported;
}
