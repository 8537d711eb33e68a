// The loaders of the tables, in the order in which a start calls them.
#pragma once

#include <cstdint>

#include "bench/definitions.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace bench {

struct Loader {
  const char* table;
  int32_t (*load)(const char* file);
  const char* Definitions::*file = &Definitions::device;

  int32_t Load(const Definitions& files) const { return load(files.*file); }
};

inline constexpr Loader kLoaders[] = {
    {"versions", ddReadVersionInformation},
    {"module types", ddReadAllModuleInformation},
    {"system functions", ddReadSysSupportFuncInformation},
    {"OLT port types", ddReadAllSupportedOltPortInformation},
    {"main boards", ddReadAllSupportedMainBoardInformation},
    {"service boards", ddReadAllSupportedBoardInformation},
    {"frame", ddReadFrameInformation},
    {"ONU PON port types", ddReadAllSupportedOnuPonInformation},
    {"ONU LAN port types", ddReadAllSupportedOnuLanInformation},
    {"ONU POTS port types", ddReadAllSupportedOnuPotsInformation},
    {"ONU special port types", ddReadAllSupportedOnuSpecialPortInformation},
    {"ONU types", ddReadAllSupportedOnuInformation},
    {"optical modules", optmodule_infolist_read, &Definitions::optical},
};

}  // namespace bench
