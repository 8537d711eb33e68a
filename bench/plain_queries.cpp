// Straight loops over the library's tables; see the header.
#include "bench/plain_queries.h"

#include <cstring>

#include "sys_context/context.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"
#include "sys_context/platform.h"

namespace bench::plain {
namespace {

// The place of the first that is wanted.
template <typename Wanted>
uint32_t Place(uint32_t count, Wanted wanted) {
  for (uint32_t i = 0; i < count; ++i) {
    if (wanted(i)) {
      return i + 1;
    }
  }
  return 0;
}

// The places of all that are wanted.
template <typename Wanted>
uint32_t Places(uint32_t count, uint32_t* places, Wanted wanted) {
  uint32_t found = 0;
  for (uint32_t i = 0; i < count; ++i) {
    if (wanted(i)) {
      places[found++] = i + 1;
    }
  }
  return found;
}

}  // namespace

uint32_t Version(const char* version) {
  return Place(gstVersionInformation.ulSupportedSoftVerNum, [=](uint32_t i) {
    return std::strcmp(gstVersionInformation.astSupportedSoftVer[i].acSupportedSoftVer, version) ==
           0;
  });
}

uint32_t Module(uint32_t type) {
  return Place(gstModuleTypeList.ulModuleTypeNum, [=](uint32_t i) {
    return gstModuleTypeList.pModuleTypeArray[i]->ulModuleType == type;
  });
}

uint32_t Module(const char* name) {
  return Place(gstModuleTypeList.ulModuleTypeNum, [=](uint32_t i) {
    return std::strcmp(gstModuleTypeList.pModuleTypeArray[i]->acName, name) == 0;
  });
}

uint32_t SystemFunction(uint32_t type) {
  return Place(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, [=](uint32_t i) {
    return gstSysSupportFuncType.aulSupportedSysFunctionType[i] == type;
  });
}

uint32_t OltPortType(uint32_t type) {
  return Place(gstSupportedOltPortType.ulSupportedOltPortTypeNum, [=](uint32_t i) {
    return gstSupportedOltPortType.pOltPortTypeArray[i]->ulPortType == type;
  });
}

uint32_t OltPortType(const char* name) {
  return Place(gstSupportedOltPortType.ulSupportedOltPortTypeNum, [=](uint32_t i) {
    return std::strcmp(gstSupportedOltPortType.pOltPortTypeArray[i]->acName, name) == 0;
  });
}

uint32_t Board(uint32_t type) {
  return Place(gstSupportedBoardType.ulSupportedBoardTypeNum, [=](uint32_t i) {
    return gstSupportedBoardType.pBoardTypeArray[i]->ulType == type;
  });
}

uint32_t Board(const char* name) {
  return Place(gstSupportedBoardType.ulSupportedBoardTypeNum, [=](uint32_t i) {
    return std::strcmp(gstSupportedBoardType.pBoardTypeArray[i]->acName, name) == 0;
  });
}

uint32_t Card(const char* name) {
  const uint32_t main_board =
      Place(gstSupportedMainBoardType.ulSupportedBoardTypeNum, [=](uint32_t i) {
        return std::strcmp(gstSupportedMainBoardType.pBoardTypeArray[i]->acName, name) == 0;
      });
  return main_board != 0 ? main_board : Board(name);
}

uint32_t Slot(const SlotClassInformation& slots, uint32_t slot) {
  return Place(slots.ulSlotAmount, [&](uint32_t i) { return slots.ucSlotArray[i] == slot; });
}

uint32_t BoardOfSlot(uint32_t slot, uint32_t type) {
  const SlotSupportBoard& boards = gstFrame.pstSlotArray[slot];
  return Place(MAX_BOARD_TYPE_NUM_PER_SLOT,
               [&](uint32_t i) { return boards.aulBoardType[i] == type; });
}

uint32_t LogicPort(uint32_t slot, uint32_t port) {
  return Place(gstFrame.ulSwitchChipLogicPortNum, [=](uint32_t i) {
    const SwitchChipLogicPortToSlotPort& entry = gstFrame.astSwitchChipLogicPort[i];
    return entry.ucSlotOut == slot && entry.ucSlotPort == port;
  });
}

uint32_t BalancePort(uint32_t slot, uint32_t port, uint32_t chip) {
  return Place(gstFrame.ulType2SwitchChipLogicPortNum, [=](uint32_t i) {
    const BalanceSwitchLogicPortInfo& entry = gstFrame.astType2SwitchChipLogicPort[i];
    return entry.ucSlotOut == slot && entry.ucSlotPort == port && entry.usChipPort == chip;
  });
}

uint32_t OnuLanPortType(const char* name) {
  return Place(gstSupportedOnuLanType.ulSupportedOnuLanTypeNum, [=](uint32_t i) {
    return std::strcmp(gstSupportedOnuLanType.pOnuLanTypeArray[i]->acName, name) == 0;
  });
}

uint32_t OnuType(uint32_t type) {
  return Place(gstSupportedOnuType.ulSupportedOnuTypeNum,
               [=](uint32_t i) { return gstSupportedOnuType.pOnuTypeArray[i]->ulOnuType == type; });
}

uint32_t OnuType(const char* name) {
  return Place(gstSupportedOnuType.ulSupportedOnuTypeNum, [=](uint32_t i) {
    return std::strcmp(gstSupportedOnuType.pOnuTypeArray[i]->acName, name) == 0;
  });
}

uint32_t OptModule(uint16_t kind, uint32_t port_type, uint16_t phy_type) {
  return Place(g_optmdule_infolist.listnum, [=](uint32_t i) {
    const OptModuleInfo& module = *g_optmdule_infolist.objlist[i];
    return module.kind == kind && module.porttype == port_type && module.phytype == phy_type;
  });
}

uint32_t PhyPort(const PortMap& map, uint32_t logic_port) {
  for (const PortPair& pair : map.astPortPair) {
    if (pair.usLogicPort == logic_port) {
      return pair.usPhyPort;
    }
  }
  return 0;
}

uint32_t PhyPortUsers(const PortMap& map, uint32_t phy_port, uint32_t* logic_ports) {
  uint32_t found = 0;
  for (const PortPair& pair : map.astPortPair) {
    if (pair.usPhyPort == phy_port) {
      logic_ports[found++] = pair.usLogicPort;
    }
  }
  return found;
}

uint32_t Slots(const SlotClassInformation& slots, uint32_t* list) {
  std::memcpy(list, slots.ucSlotArray, slots.ulSlotAmount * sizeof *list);
  return slots.ulSlotAmount;
}

uint32_t PortsOfSlot(uint32_t slot, uint8_t flag, uint32_t* logic_ports) {
  return Places(gstFrame.ulSwitchChipLogicPortNum, logic_ports, [=](uint32_t i) {
    const SwitchChipLogicPortToSlotPort& entry = gstFrame.astSwitchChipLogicPort[i];
    return entry.ucSlotOut == slot && entry.ucSlotFlag == flag;
  });
}

uint32_t UserPorts(uint32_t* logic_ports) {
  return Places(gstFrame.ulSwitchChipLogicPortNum, logic_ports, [](uint32_t i) {
    const SwitchChipLogicPortToSlotPort& entry = gstFrame.astSwitchChipLogicPort[i];
    return entry.ucSlotOut != 0 || entry.ucSlotPort != 0 || entry.ucSlotFlag != 0;
  });
}

uint32_t UplinkPorts(uint32_t* logic_ports) {
  const SlotClassInformation& slots = gstFrame.stRealSlot;
  uint32_t found = 0;
  for (uint32_t i = 0; i < slots.ulSlotAmount; ++i) {
    const auto card = static_cast<int16_t>(get_config_card_type(slots.ucSlotArray[i]));
    const bool is_ethernet_card = caCheckCardTypeIsEthCard(card) == 0;
    if (!is_ethernet_card && caCheckCardTypeIsUplinkCard(card) != 0) {
      continue;
    }
    for (uint32_t j = 0; j < gstFrame.ulSwitchChipLogicPortNum; ++j) {
      const SwitchChipLogicPortToSlotPort& entry = gstFrame.astSwitchChipLogicPort[j];
      if (entry.ucSlotOut == slots.ucSlotArray[i] && entry.ucSlotPort != 0 &&
          entry.ucSlotFlag == (is_ethernet_card ? 1 : 0)) {
        logic_ports[found++] = j + 1;
      }
    }
  }
  return found;
}

uint32_t OnuTypes(uint32_t* types) {
  const SupportedOnuType& table = gstSupportedOnuType;
  for (uint32_t i = 0; i < table.ulSupportedOnuTypeNum; ++i) {
    types[i] = table.pOnuTypeArray[i]->ulOnuType;
  }
  return table.ulSupportedOnuTypeNum;
}

}  // namespace bench::plain
