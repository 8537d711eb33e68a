// What the loader of ONU types says of what it cannot read.
#pragma once

#include <string>

namespace test {

inline constexpr char kNoOnuLeft[] =
    "\r\nddFindSupportedOnuMaxLanNum ok! ulSupportedOnuTypeNum = 0";

inline std::string NoListKey(const std::string& code, const std::string& key) {
  return "\r\nddReadAllSupportedOnuInformation err! iResult = " + code +
         ", section = SupportedOnuType, key = " + key;
}
inline std::string NoSection(const std::string& code, const std::string& section) {
  return "\r\nddReadAllSupportedOnuInformation err! iResult = " + code + ", section = " + section +
         ", key = Type";
}
inline std::string Left(const std::string& code, const std::string& section) {
  return "\r\nddReadAllSupportedOnuInformation->ddReadOneSupportedOnuInformation err! iResult = " +
         code + ", section = " + section;
}

// A key of the section itself, and then the section, cannot be had.
inline std::string NoOwnKey(const std::string& code, const std::string& section,
                            const std::string& key) {
  return "\r\nddReadOneSupportedOnuInformation err! iResult = " + code + ", section = " + section +
         ", key = " + key + Left("-31", section);
}

// An adder of ports, and then the section, fails.
inline std::string NotAdded(const std::string& adder, const std::string& code,
                            const std::string& section) {
  return "\r\nddReadOneSupportedOnuInformation->" + adder + " err! strOnuTypeSection = " + section +
         Left(code, section);
}

// The ports of a kind, and then the section, cannot be had: "Lan", " err! ...".
inline std::string NoPorts(const std::string& kind, const std::string& code,
                           const std::string& section, const std::string& reason) {
  const std::string adder = "ddAddSupported" + kind + "ToOnuObj";
  return "\r\n" + adder + reason + NotAdded(adder, code, section);
}

}  // namespace test
