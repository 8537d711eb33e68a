// The four adders of an ONU type's ports, for tests that go through all of them: by the
// same rows, in which "{f}" and so on stand for what differs.
#pragma once

#include <cstdint>
#include <cstring>
#include <ostream>
#include <string>
#include <utility>

#include "catalog/onu/onu_type_files.h"

namespace test {

struct PortAdder {
  const char* name;
  size_t kind;  // of OnuPortKinds()
  int32_t (*add)(const char* file, const char* section, int32_t start, OnuInformation* onu);
  const char* function;
  const char* refusal;  // the function that refuses arguments
  const char* field;    // of the message on too many
  const char* limit;
  int32_t none_code;
  const char* none;
  bool none_clears_array;
  int32_t failed_code;  // when a port cannot be had
  const char* no_memory;
  const char* find;
  const char* copy;
  const char* no_copy;        // the message of `copy` without memory
  bool copy_is_quiet;         // that one is for the debug switch
  const char* name_too_long;  // and what `find` says under it
  const char* no_catalog;
  const char* corrupt_catalog;
  const char* corrupt_type;

  const OnuPortKind& Kind() const { return OnuPortKinds()[kind]; }

  std::string Text(std::string text) const {
    const std::pair<std::string, std::string> words[] = {
        {"{f}", function},
        {"{refusal}", refusal},
        {"{count}", Kind().count_key},
        {"{port}", Kind().port_key},
        {"{field}", field},
        {"{limit}", limit},
        {"{none}", none},
        {"{no memory}", no_memory},
        {"{find}", find},
        {"{copy}", copy},
        {"{no copy}", no_copy},
        {"{name too long}", name_too_long},
        {"{no catalog}", no_catalog},
        {"{corrupt catalog}", corrupt_catalog},
        {"{corrupt type}", corrupt_type},
        {"{A}", Kind().types[0]},
        {"{B}", Kind().types[1]},
        {"{C}", Kind().types[2]},
    };
    for (const auto& [word, value] : words) {
      text = With(text, word, value);
    }
    return text;
  }

  Names Types(Names names) const {
    for (std::string& type : names) {
      type = Text(type);
    }
    return names;
  }

  friend std::ostream& operator<<(std::ostream& out, const PortAdder& adder) {
    return out << adder.name;
  }
};

inline constexpr PortAdder kPortAdders[] = {
    {
        .name = "Pon",
        .kind = 0,
        .add = ddAddSupportedPonToOnuObj,
        .function = "ddAddSupportedPonToOnuObj",
        .refusal = "ddReadOneSupportedOnuLanInformation",
        .field = "ulTotalPonNum",
        .limit = "MAX_ONU_PON_NUM_PER_ONU = 5",
        .none_code = -17,
        .none = "\r\nddAddSupportedPonToOnuObj ok! ulTotalPonNum = 0",
        .none_clears_array = false,
        .failed_code = -1,
        .no_memory = "\r\nddAddSupportedPonToOnuObj err! pstOnuInformation->pOnuPonArray = 0x0",
        .find = "ddIsOnuPonTypeSupportedByName",
        .copy = "ddCreateOneOnuPonObjByName",
        .no_copy = "\r\ndd_CreateOneOnuPonObjBySecName, pstOnuPonInformationOut = 0x0, ulIndex = ",
        .copy_is_quiet = true,
        .name_too_long = "\r\nddIsOnuPonTypeSupportedByName err! strlen(strOnuPonTypeName) = 60",
        .no_catalog = "\r\nddIsOnuPonTypeSupportedByName err! pOnuPonTypeArray = 0x0",
        .corrupt_catalog = "\r\nddIsOnuPonTypeSupportedByName err! ulSupportedOnuPonTypeNum = 31",
        .corrupt_type = "\r\nddIsOnuPonTypeSupportedByName err! ulNameLen = 61, "
                        "ulSupportedOnuPonTypeNumIndex = 1",
    },
    {
        .name = "Lan",
        .kind = 1,
        .add = ddAddSupportedLanToOnuObj,
        .function = "ddAddSupportedLanToOnuObj",
        .refusal = "ddAddSupportedLanToOnuObj",
        .field = "ulTotalLanNum",
        .limit = "MAX_ONU_LAN_NUM_PER_ONU = 100",
        .none_code = 0,
        .none = "",
        .none_clears_array = false,
        .failed_code = -27,
        .no_memory = "\r\nddAddSupportedPonToOnuObj err! pstOnuInformation->pOnuLanPortArray = 0x0",
        .find = "ddIsOnuLanTypeSupportedByName",
        .copy = "ddCreateOneOnuLanObjByName",
        .no_copy = "\r\nddCreateOneOnuLanObjByName, pstOnuLanPortInformationOut = 0x0, ulIndex= ",
        .copy_is_quiet = false,
        .name_too_long = "\r\nddIsOnuLanTypeSupportedByName err! strlen(strOnuLanTypeName) = 60",
        .no_catalog = "\r\nddIsOnuPonTypeSupportedByName err! pOnuLanTypeArray = 0x0",
        .corrupt_catalog = "\r\nddIsOnuLanTypeSupportedByName err! ulSupportedOnuLanTypeNum = 31",
        .corrupt_type = "\r\nddIsOnuLanTypeSupportedByName err! ulNameLen = 61, "
                        "ulSupportedOnuLanTypeNumIndex = 1",
    },
    {
        .name = "Pots",
        .kind = 2,
        .add = ddAddSupportedPotsToOnuObj,
        .function = "ddAddSupportedPotsToOnuObj",
        .refusal = "ddAddSupportedPotsToOnuObj",
        .field = "ulTotalPotsNum",
        .limit = "MAX_ONU_POTS_NUM_PER_ONU = 100",
        .none_code = 0,
        .none = "",
        .none_clears_array = true,
        .failed_code = -1,
        .no_memory =
            "\r\nddAddSupportedPotsToOnuObj err! pstOnuInformation->pOnuPotsPortArray = 0x0",
        .find = "ddIsOnuPotsTypeSupportedByName",
        .copy = "ddCreateOneOnuPotsObjByName",
        .no_copy =
            "\r\nddCreateOneOnuPotsObjByName, pstOnuPotsPortInformationOut = 0x0, ulIndex = ",
        .copy_is_quiet = false,
        .name_too_long = "\r\nddIsOnuPotsTypeSupportedByName err! strlen(strOnuPotsTypeName) = 60",
        .no_catalog = "\r\nddIsOnuPotsTypeSupportedByName err! pOnuPotsTypeArray = 0x0",
        .corrupt_catalog = "\r\nddIsOnuPotsTypeSupportedByName err! ulSupportedOnuPotsTypeNum = 31",
        .corrupt_type = "\r\nddIsOnuPotsTypeSupportedByName err! ulNameLen = 61, "
                        "ulSupportedOnuPotsTypeNumIndex = 1",
    },
    {
        .name = "Special",
        .kind = 3,
        .add = ddAddSupportedSpecialPortToOnuObj,
        .function = "ddAddSupportedSpecialPortToOnuObj",
        .refusal = "ddAddSupportedSpecialPortToOnuObj",
        .field = "ulTotalSpecialPortNum",
        .limit = "MAX_ONU_SPECIAL_PORT_NUM_PER_ONU = 100",
        .none_code = 0,
        .none = "",
        .none_clears_array = false,
        .failed_code = -1,
        .no_memory = "\r\nddAddSupportedSpecialPortToOnuObj err! "
                     "pstOnuInformation->pOnuSpecialPortArray = 0x0",
        .find = "ddIsOnuSpecialPortTypeSupportedByName",
        .copy = "ddCreateOneOnuSpecialPortObjByName",
        .no_copy = "\r\nddCreateOneOnuSpecialPortObjByName, pstOnuSpecialPortInformationOut = 0x0, "
                   "ulIndex = ",
        .copy_is_quiet = false,
        .name_too_long =
            "\r\nddIsOnuSpecialPortTypeSupportedByName err! strlen(strOnuPortTypeName) = 60",
        .no_catalog =
            "\r\nddIsOnuSpecialPortTypeSupportedByName err! pOnuSpecialPortTypeArray = 0x0",
        .corrupt_catalog =
            "\r\nddIsOnuSpecialPortTypeSupportedByName err! ulSupportedOnuSpecialPortTypeNum = 31",
        .corrupt_type = "\r\nddIsOnuSpecialPortTypeSupportedByName err! ulNameLen = 61, "
                        "ulSupportedOnuSpecialPortTypeNumIndex = 1",
    },
};

}  // namespace test
