// A load of ONU types; see the header.
#include "bench/onu_load.h"

#include <cstdlib>

#include "sys_context/onu.h"

namespace bench {
namespace {

// Are the ports as the file has them?
bool IsComplete(const OnuInformation& onu) {
  return onu.ulTotalPonNum == kOnuPonPorts && onu.ulTotalLanPortNum == kOnuLanPorts &&
         onu.ulTotalPotsNum == kOnuPotsPorts && onu.ulTotalSpecialPortNum == kOnuSpecialPorts &&
         onu.pOnuSpecialPortArray[kOnuSpecialPorts - 1]->acName[0] == 'W';
}

}  // namespace

bool LoadOnuPortTypes(const OnuLoad& load) {
  return ddReadAllSupportedOnuPonInformation(load.file.path()) == 0 &&
         ddReadAllSupportedOnuLanInformation(load.file.path()) == 0 &&
         ddReadAllSupportedOnuPotsInformation(load.file.path()) == 0 &&
         ddReadAllSupportedOnuSpecialPortInformation(load.file.path()) == 0;
}

bool LoadOnuTypes(const OnuLoad& load) {
  SupportedOnuType& table = gstSupportedOnuType;
  bool loaded = ddReadAllSupportedOnuInformation(load.file.path()) == 0 &&
                table.ulSupportedOnuTypeNum == load.types;
  for (uint32_t i = 0; i < table.ulSupportedOnuTypeNum; ++i) {
    loaded = loaded && IsComplete(*table.pOnuTypeArray[i]);
    ddFreeOneOnuAllObj(table.pOnuTypeArray[i]);
  }
  std::free(table.pOnuTypeArray);
  table = {};
  return loaded;
}

}  // namespace bench
