// The listing of the frame.
#include "catalog/frame/slot_boards.h"
#include "cli/listing.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cli.h"
#include "sys_context/frame.h"

namespace sys_context {
namespace {

constexpr uint32_t kNoBoard = 0;

void PrintHeader(void* vty) {
  vty_out(vty, "\r\nFrameInfomation:");
  vty_out(vty, "\r\neType = %d, ulNameLen = %d, acName = %s", gstFrame.eType, gstFrame.ulNameLen,
          gstFrame.acName);
  vty_out(vty, "\r\nulMaxOnuNum       = %2d, ulMaxUserNum    = %2d", gstFrame.ulMaxOnuNum,
          gstFrame.ulMaxUserNum);
}

// kept as is: the virtual and the HCU slots are not shown.
void PrintSlotClasses(void* vty) {
  struct Shown {
    const char* header;
    const SlotClassInformation& slots;
  };
  const Shown classes[] = {
      {"\r\nRealSlot:", gstFrame.stRealSlot},
      {"\r\nFanSlot:", gstFrame.stFanSlot},
      {"\r\nPowerSlot:", gstFrame.stPowerSlot},
      {"\r\nCioSlot:", gstFrame.stCioSlot},
      {"\r\nServeBoardClassSlot:", gstFrame.stServeBoardSlot},
      {"\r\nMainBoardClassSlot:", gstFrame.stMainSlot},
      {"\r\nUplinkBoardClassSlot:", gstFrame.stUplinkSlot},
  };
  for (const Shown& shown : classes) {
    vty_out(vty, "\r\n");
    vty_out(vty, "%s", shown.header);
    ddPrintSlotClassInformation(vty, &shown.slots);
  }
}

void PrintBoardName(void* vty, uint32_t slot, uint32_t board_type) {
  char name[MAX_BOARD_NAME_LEN + 1] = {};  // ends, even if a name of the table does not
  if (const int32_t code = ddGetCardNameByType(board_type, name); code != kOk) {
    vty_out(
        vty,
        "\r\nddPrintFrameInfomation->ddGetCardNameByType err! iResult = %d, ulSLotOut = %d, ulBoardType = %d",
        code, slot, board_type);
    return;
  }
  vty_out(vty, "%s|", name);
}

void PrintSlotBoards(void* vty) {
  const SlotClassInformation& real = gstFrame.stRealSlot;
  for (uint32_t i = 0; i < real.ulSlotAmount && i < MAX_SLOT_END; ++i) {
    const uint32_t slot = real.ucSlotArray[i];
    vty_out(vty, "\r\nulSLotOut = %2d, ", slot);
    const SlotSupportBoard* const boards = FindSlotBoards(slot);
    if (boards == nullptr) {
      continue;
    }
    for (const uint32_t board_type : boards->aulBoardType) {
      if (board_type != 0) {
        PrintBoardName(vty, slot, board_type);
      }
    }
  }
}

void PrintLogicPorts(void* vty) {
  const uint32_t count = gstFrame.ulSwitchChipLogicPortNum;
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\nulSwitchChipLogicPortNum = %2d", count);
  for (uint32_t i = 0; i < count; ++i) {
    const uint32_t number = i + 1;
    uint32_t slot = 0;
    uint32_t port = 0;
    if (const int32_t code = ddGetSlotPortFromSwitchChipLogicPort(number, &slot, &port);
        code != kOk) {
      // kept as is: names the query for card names, and shows a board that there is not.
      vty_out(
          vty,
          "\r\nddPrintFrameInfomation->ddGetCardNameByType err! iResult = %d, ulSwitchChipLogicPortNumIndex = %d, ulSLotOut = %d, ulBoardType = %d",
          code, number, slot, kNoBoard);
      continue;
    }
    vty_out(vty, "\r\nSwitchChipLogicPortNum = %2d  ---> (SlotOut:%2d, Port:%2d)", number, slot,
            port);
  }
}

// kept as is: the messages show a board that there is not. Once an entry has its number,
// the lookups do not fail.
void PrintBalancePort(void* vty, uint32_t index) {
  uint32_t number = 0;
  if (const int32_t code = get_balance_switch_logicport_portno_from_index(index, &number);
      code != kOk) {
    vty_out(
        vty,
        "\r\nddPrintFrameInfomation->get_balance_switch_logicport_portno_from_index err! iResult = %d, ulSwitchChipLogicPortNumIndex = %d, ulChipLogicPort = %d",
        code, index, number);
    return;
  }
  uint32_t slot = 0;
  uint32_t port = 0;
  if (const int32_t code = get_balance_slotport_from_switch_logicport(number, &slot, &port);
      code != kOk) {
    vty_out(
        vty,
        "\r\nddPrintFrameInfomation->get_balance_slotport_from_switch_logicport err! iResult = %d, ulChipLogicPort = %d, ulSLotOut = %d, ulBoardType = %d",
        code, number, slot, kNoBoard);
    return;
  }
  uint32_t chip = 0;
  uint32_t phy_port = 0;
  if (const int32_t code =
          get_balance_chipno_phyport_from_switch_logicport(number, &chip, &phy_port);
      code != kOk) {
    vty_out(
        vty,
        "\r\nddPrintFrameInfomation->get_balance_chipno_phyport_from_switch_logicport err! iResult = %d, ulChipLogicPort = %d, ulSLotOut = %d, ulBoardType = %d",
        code, number, slot, kNoBoard);
    return;
  }
  uint32_t is_higig = 0;
  if (const int32_t code = is_higigport_balance_switch_logicport(number, &is_higig); code != kOk) {
    vty_out(
        vty,
        "\r\nddPrintFrameInfomation->is_higigport_balance_switch_logicport err! iResult = %d, ulChipLogicPort = %d, ulHigigFlag = %d",
        code, number, is_higig);
    return;
  }
  vty_out(
      vty,
      "\r\nType2SwitchChipLogicPortNum = %2d --->(SlotOut:%2d, Port:%2d, ChipPort:%2d, PhyPort:%2d, HigigFlag:%2d )",
      number, slot, port, chip, phy_port, is_higig);
}

void PrintBalancePorts(void* vty) {
  const uint32_t count = gstFrame.ulType2SwitchChipLogicPortNum;
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\nulType2SwitchChipLogicPortNum = %2d", count);
  for (uint32_t i = 0; i < count; ++i) {
    PrintBalancePort(vty, i);
  }
}

}  // namespace
}  // namespace sys_context

int32_t ddPrintSlotClassInformation(void* vty, const SlotClassInformation* slotClass) {
  using namespace sys_context;
  if (slotClass == nullptr) {
    vty_out(vty, "\r\nddPrintSlotClassInformation, pstSlotClass = 0x%x", LowBits(slotClass));
    return kNullArgument;
  }
  const uint32_t amount = slotClass->ulSlotAmount;
  if (amount > MAX_SLOT_END) {
    vty_out(vty, "\r\nddPrintSlotClassInformation err! ulSlotAmount = %2d, MAX_SLOT_END = %d",
            amount, MAX_SLOT_END);
    return kTooManySlots;
  }
  vty_out(vty, "\r\nulSlotAmount = %2d, ulSlotStart  = %2d, ulSlotEnd  = %2d", amount,
          slotClass->ulSlotStart, slotClass->ulSlotEnd);
  vty_out(vty, "\r\nucSlotArray = ");
  for (uint32_t i = 0; i < amount; ++i) {
    vty_out(vty, "%d, ", slotClass->ucSlotArray[i]);
  }
  if (amount == 0) {
    vty_out(vty, "Empty");
  }
  vty_out(vty, "\r\n");
  return kOk;
}

int32_t ddPrintFrameInfomation(void* vty) {
  using namespace sys_context;
  PrintHeader(vty);
  PrintSlotClasses(vty);
  PrintSlotBoards(vty);
  PrintLogicPorts(vty);
  PrintBalancePorts(vty);
  EndListing(vty);
  return kOk;
}
