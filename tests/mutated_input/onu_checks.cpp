// ONU port types and ONU types.
#include "mutated_input/checker.h"
#include "sys_context/onu.h"

namespace mutated {
namespace {

// One of the four lists of port types, or of the ports of an ONU type.
struct Ports {
  uint32_t count;
  OnuPortTypeInformation* const* array;
};

struct PortTypes : Ports {
  Place place;
  const char* name;
};

std::vector<PortTypes> AllPortTypes() {
  return {
      {{gstSupportedOnuPonType.ulSupportedOnuPonTypeNum, gstSupportedOnuPonType.pOnuPonTypeArray},
       kOnuPonTypes,
       "ONU PON port type"},
      {{gstSupportedOnuLanType.ulSupportedOnuLanTypeNum, gstSupportedOnuLanType.pOnuLanTypeArray},
       kOnuLanTypes,
       "ONU LAN port type"},
      {{gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
        gstSupportedOnuPotsType.pOnuPotsTypeArray},
       kOnuPotsTypes,
       "ONU POTS port type"},
      {{gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
        gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray},
       kOnuSpecialPortTypes,
       "ONU special port type"},
  };
}

void CheckPortTypes(Checker& checker, const PortTypes& types) {
  if (!checker.IsLoaded(types.place)) {
    checker.ExpectNone(types.count, types.array, types.name);
  }
  if (checker.ExpectRecords(types.count, MAX_ONU_PON_TYPE_NUM, types.array, types.name)) {
    for (uint32_t i = 0; i < types.count; ++i) {
      checker.ExpectName(types.array[i]->acName, types.array[i]->ulNameLen, types.name, i);
    }
  }
}

void CheckOnu(Checker& checker, const OnuInformation& onu, const std::vector<PortTypes>& types,
              uint32_t place) {
  checker.ExpectName(onu.acName, onu.ulNameLen, "ONU type's name", place);
  checker.Expect(onu.ulTotalPonNum != 0, "ONU type without PON port", place);
  const Ports kinds[] = {
      {onu.ulTotalPonNum, onu.pOnuPonArray},
      {onu.ulTotalLanPortNum, onu.pOnuLanPortArray},
      {onu.ulTotalPotsNum, onu.pOnuPotsPortArray},
      {onu.ulTotalSpecialPortNum, onu.pOnuSpecialPortArray},
  };
  constexpr uint32_t kLimits[] = {MAX_ONU_PON_NUM_PER_ONU, MAX_ONU_LAN_NUM_PER_ONU,
                                  MAX_ONU_POTS_NUM_PER_ONU, MAX_ONU_SPECIAL_PORT_NUM_PER_ONU};
  for (size_t i = 0; i < types.size(); ++i) {
    checker.ExpectPorts(kinds[i].count, kLimits[i], kinds[i].array, types[i].count, types[i].array,
                        "port of an ONU type");
  }
}

// The first of the ONU types with most LAN ports.
void CheckMaxLanType(Checker& checker) {
  const SupportedOnuType& table = gstSupportedOnuType;
  uint32_t type = 0;
  uint32_t most = 0;
  for (uint32_t i = 0; i < table.ulSupportedOnuTypeNum; ++i) {
    const OnuInformation& onu = *table.pOnuTypeArray[i];
    if (onu.ulTotalLanPortNum > most) {
      type = onu.ulOnuType;
      most = onu.ulTotalLanPortNum;
    }
  }
  checker.Expect(table.ulSupportedOnuMaxLanOnuType == type && table.ulSupportedOnuMaxLanNum == most,
                 "ONU type with most LAN ports", most);
}

void CheckOnuTypes(Checker& checker, const std::vector<PortTypes>& types) {
  const SupportedOnuType& table = gstSupportedOnuType;
  const uint32_t count = table.ulSupportedOnuTypeNum;
  if (checker.failed() == kOnus) {
    checker.ExpectUncounted(count, MAX_ONU_TYPE_NUM, table.pOnuTypeArray, "failed ONU type");
  } else if (!checker.IsLoaded(kOnus)) {
    checker.ExpectNone(count, table.pOnuTypeArray, "ONU types after a failure");
  } else if (checker.ExpectRecords(count, MAX_ONU_TYPE_NUM, table.pOnuTypeArray, "ONU type")) {
    for (uint32_t i = 0; i < count; ++i) {
      CheckOnu(checker, *table.pOnuTypeArray[i], types, i);
    }
    CheckMaxLanType(checker);
    return;
  }
  checker.Expect(table.ulSupportedOnuMaxLanOnuType == 0 && table.ulSupportedOnuMaxLanNum == 0,
                 "most LAN ports without ONU types", count);
}

}  // namespace

void CheckOnuTables(Checker& checker) {
  const std::vector<PortTypes> types = AllPortTypes();
  for (const PortTypes& each : types) {
    CheckPortTypes(checker, each);
  }
  CheckOnuTypes(checker, types);
}

}  // namespace mutated
