// Reading what the logic ports serve, in both tables.
#include "catalog/frame/logic_port.h"
#include "catalog/frame/pieces.h"
#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/messages.h"
#include "common/numbers.h"

namespace sys_context {
namespace {

// One table, and how its reader words its failures.
template <typename Entry>
struct TableReader {
  const char* name;  // of the reader, as its messages show it
  const char* count_key;
  const char* entry_key;  // the number follows
  const LogicPortTable<Entry>& table;
  KeyMessage unreadable;

  // Numbers the entry; a failure is reported.
  int32_t (*number_of)(uint32_t index, uint32_t& number);

  // Takes over one piece of an entry's line.
  void (*take_piece)(Entry& entry, uint32_t place, bool is_last, uint32_t number);
};

constexpr TableReader<PlainEntry> kPlain = {
    .name = "ddReadSwitchChipLogicPortToSlotPort",
    .count_key = "SwitchChipLogicPortNum",
    .entry_key = "SwitchChipLogicPort",
    .table = kPlainTable,
    .unreadable =
        "\r\nddReadSwitchChipLogicPortToSlotPort err! iResult = %d, section = %s, key = %s",
    .number_of =
        [](uint32_t index, uint32_t& number) {
          number = index + 1;
          return kOk;
        },
    // kept as is: of several ports the last one holds.
    .take_piece =
        [](PlainEntry& entry, uint32_t place, bool is_last, uint32_t number) {
          const auto value = static_cast<uint8_t>(number);
          if (is_last) {
            entry.ucSlotFlag = value;
          } else if (place == 0) {
            entry.ucSlotOut = value;
          } else {
            entry.ucSlotPort = value;
          }
        },
};

// kept as is: what stands between the fourth and the last number is ignored.
void TakeBalancePiece(BalanceEntry& entry, uint32_t place, bool is_last, uint32_t number) {
  if (is_last) {
    entry.ucHigigFlag = static_cast<uint8_t>(number);
    return;
  }
  switch (place) {
    case 0:
      entry.ucSlotOut = static_cast<uint8_t>(number);
      break;
    case 1:
      entry.ucSlotPort = static_cast<uint8_t>(number);
      break;
    case 2:
      entry.usChipPort = static_cast<uint16_t>(number);
      break;
    case 3:
      entry.usPhyPort = static_cast<uint16_t>(number);
      break;
    default:
      break;
  }
}

constexpr TableReader<BalanceEntry> kBalance = {
    .name = "read_balance_switch_logicport_to_portinfo",
    .count_key = "Type2SwitchChipLogicPortNum",
    .entry_key = "Type2SwitchChipLogicPort",
    .table = kBalanceTable,
    .unreadable =
        "\r\nread_balance_switch_logicport_to_portinfo err! iResult = %d, section = %s, key = %s",
    .number_of =
        [](uint32_t index, uint32_t& number) {
          const int32_t code = get_balance_switch_logicport_portno_from_index(index, &number);
          if (code != kOk) {
            // kept as is: "Logci".
            Console(
                "\r\nread_balance_switch_logicport_to_portinfo err! iResult = %d, ulChipLogciIndex = %d",
                code, index);
          }
          return code;
        },
    .take_piece = TakeBalancePiece,
};

template <typename Entry>
int32_t CheckEntry(const TableReader<Entry>& reader, const Entry& entry) {
  const uint32_t last_slot = gstFrame.stRealSlot.ulSlotEnd;
  if (entry.ucSlotOut > last_slot) {
    Console("\r\n%s err! ucSlotOut = %d, ulSLotEnd = %d", reader.name, uint32_t{entry.ucSlotOut},
            last_slot);
    return kBadSlot;
  }
  if (entry.ucSlotPort > MAX_OLT_PORT_NUM_PER_BOARD) {
    // kept as is: shows the port as ucSlotOut.
    Console("\r\n%s err! ucSlotOut = %d, MAX_OLT_PORT_NUM_PER_BOARD = %d", reader.name,
            uint32_t{entry.ucSlotPort}, MAX_OLT_PORT_NUM_PER_BOARD);
    return kBadSlotPort;
  }
  return kOk;
}

template <typename Entry>
int32_t ReadTable(const TableReader<Entry>& reader, const char* file, const char* section) {
  if (file == nullptr || section == nullptr) {
    Console("\r\n%s err!, strFileName = 0x%x, strSectionFrameName = 0x%x", reader.name,
            LowBits(file), LowBits(section));
    return kNullArgument;
  }
  Value value;
  if (ReadKey(file, section, reader.count_key, value, reader.unreadable) != kOk) {
    return kKeyUnreadable;
  }
  const uint32_t count = ParseUnsigned(value.text);
  if (count > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    Console("\r\n%s err! ulSwitchChipLogicPortNum = %d", reader.name, count);
    return kTooManyLogicPorts;
  }
  // kept as is: what a line leaves out keeps the value of the line before.
  Entry entry = {};
  for (uint32_t i = 0; i < count; ++i) {
    uint32_t number = 0;
    if (reader.number_of(i, number) != kOk) {
      continue;
    }
    const NumberedKey key(reader.entry_key, number);
    if (ReadKey(file, section, key.text, value, reader.unreadable) != kOk) {
      continue;
    }
    ForEachPiece(value.text, ',', [&](const char* piece, uint32_t place, bool is_last) {
      reader.take_piece(entry, place, is_last, ParseUnsigned(piece));
    });
    if (const int32_t code = CheckEntry(reader, entry); code != kOk) {
      return code;
    }
    (gstFrame.*reader.table.entries)[i] = entry;
  }
  gstFrame.*reader.table.count = count;
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddReadSwitchChipLogicPortToSlotPort(const char* strFileName,
                                            const char* strSectionFrameName) {
  using namespace sys_context;
  return ReadTable(kPlain, strFileName, strSectionFrameName);
}

int32_t read_balance_switch_logicport_to_portinfo(const char* strFileName,
                                                  const char* strSectionFrameName) {
  using namespace sys_context;
  return ReadTable(kBalance, strFileName, strSectionFrameName);
}
