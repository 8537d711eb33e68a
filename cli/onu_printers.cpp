// The listings of the ONU types.
#include "cli/listing.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cli.h"
#include "sys_context/onu.h"

namespace sys_context {
namespace {

// ---- One ONU type

// One kind of ports of an ONU type, and the texts that show it.
struct PortListing {
  uint32_t OnuInformation::*count;
  OnuPortTypeInformation** OnuInformation::*ports;
  uint32_t limit;

  Message<uint32_t, const char*, uint32_t, uint32_t> above_limit;  // index, name; count, limit
  Message<uint32_t> header;
  Message<uint32_t, uint32_t, uint32_t, const char*> row;
};

constexpr PortListing kPortListings[] = {
    {
        .count = &OnuInformation::ulTotalPonNum,
        .ports = &OnuInformation::pOnuPonArray,
        .limit = MAX_ONU_PON_NUM_PER_ONU,
        .above_limit =
            "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = %d, acName = %s, ulTotalPonNum = %d, MAX_ONU_PON_NUM_PER_ONU = %d",
        .header = "\r\nOnu PON: %d PON",
        .row = "\r\n  %2d. ulPonType = %3d, ulNameLen = %d, acName = %s",
    },
    {
        .count = &OnuInformation::ulTotalLanPortNum,
        .ports = &OnuInformation::pOnuLanPortArray,
        .limit = MAX_ONU_LAN_NUM_PER_ONU,
        .above_limit =
            "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = %d, acName = %s, ulTotalLanPortNum = %d, MAX_ONU_LAN_NUM_PER_ONU = %d",
        .header = "\r\nOnu LAN: %d LAN",
        .row = "\r\n  %2d. ulLanPortType = %3d, ulNameLen = %2d, acName = %s",
    },
    {
        .count = &OnuInformation::ulTotalPotsNum,
        .ports = &OnuInformation::pOnuPotsPortArray,
        .limit = MAX_ONU_POTS_NUM_PER_ONU,
        .above_limit =
            "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = %d, acName = %s, ulTotalPotsNum = %d, MAX_ONU_POTS_NUM_PER_ONU = %d",
        .header = "\r\nOnu POTS: %d POTS",
        .row = "\r\n  %2d. ulPotsPortType = %3d, ulNameLen = %2d, acName = %s",
    },
    {
        .count = &OnuInformation::ulTotalSpecialPortNum,
        .ports = &OnuInformation::pOnuSpecialPortArray,
        .limit = MAX_ONU_SPECIAL_PORT_NUM_PER_ONU,
        .above_limit =
            "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = %d, acName = %s, ulTotalSpecialPortNum = %d, MAX_ONU_SPECIAL_PORT_NUM_PER_ONU = %d",
        .header = "\r\nOnu special port: %d special port",
        .row = "\r\n  %2d. ulSpecialPortType = %3d, ulNameLen = %2d, acName = %s",
    },
};

void PrintPorts(const PortListing& listing, const OnuInformation& onu, void* vty) {
  const uint32_t count = onu.*listing.count;
  OnuPortTypeInformation* const* const ports = onu.*listing.ports;
  Write(vty, listing.header, count);
  for (uint32_t i = 0; ports != nullptr && i < count; ++i) {
    if (ports[i] != nullptr) {
      Write(vty, listing.row, i, ports[i]->ulPortType, ports[i]->ulNameLen, ports[i]->acName);
    }
  }
}

int32_t PrintOnu(uint32_t index, const OnuInformation& onu, void* vty) {
  for (const PortListing& listing : kPortListings) {
    if (const uint32_t count = onu.*listing.count; count > listing.limit) {
      Write(vty, listing.above_limit, index, onu.acName, count, listing.limit);
      return kCorruptOnuPorts;
    }
  }
  vty_out(vty, "\r\nSupportedOneOnuInformation: %s", onu.acName);
  vty_out(
      vty,
      "\r\nulOnuType = %d, ulNameLen = %d, acName = %s, ulTotalPonNum = %d, ulTotalLanPortNum = %d, ulTotalPotsNum = %d, ulTotalSpecialPortNum = %d",
      onu.ulOnuType, onu.ulNameLen, onu.acName, onu.ulTotalPonNum, onu.ulTotalLanPortNum,
      onu.ulTotalPotsNum, onu.ulTotalSpecialPortNum);
  for (const PortListing& listing : kPortListings) {
    PrintPorts(listing, onu, vty);
  }
  vty_out(vty, "\r\n");
  return kOk;
}

// ---- The table of ONU types

// How a listing words that the table is corrupt or is not there.
struct TableGuard {
  Message<uint32_t, uint32_t> above_limit;
  Message<uint32_t, uint32_t> no_array;
};

constexpr TableGuard kOneLineEachGuard = {
    .above_limit =
        "\r\nddPrintAllSupportedOnuTypeBaseInfomation err! ulSupportedOnuTypeNum = %d, MAX_ONU_TYPE_NUM = %d",
    .no_array =
        "\r\nddPrintAllSupportedOnuTypeBaseInfomation, ulSupportedOnuTypeNum = %d, pOnuTypeArray = 0x%x",
};

constexpr TableGuard kOneTypeGuard = {
    .above_limit =
        "\r\nddPrintOneSupportedOnuInfomation err! ulSupportedOnuTypeNum = %d, MAX_ONU_TYPE_NUM = %d",
    .no_array =
        "\r\nddPrintOneSupportedOnuInfomation, ulSupportedOnuTypeNum = %d, pOnuTypeArray = 0x%x",
};

// kept as is: the missing table is reported in the name of the listing of one type.
constexpr TableGuard kAllTypesGuard = {
    .above_limit =
        "\r\nddPrintAllSupportedOnuTypeInfomation err! ulSupportedOnuTypeNum = %d, MAX_ONU_TYPE_NUM = %d",
    .no_array = kOneTypeGuard.no_array,
};

// Writes why the table cannot be listed, if it cannot.
int32_t RefuseTable(const TableGuard& guard, void* vty) {
  const uint32_t count = gstSupportedOnuType.ulSupportedOnuTypeNum;
  if (count > MAX_ONU_TYPE_NUM) {
    Write(vty, guard.above_limit, count, MAX_ONU_TYPE_NUM);
    return kTooManyOnuTypes;
  }
  if (gstSupportedOnuType.pOnuTypeArray == nullptr) {
    Write(vty, guard.no_array, count, LowBits(gstSupportedOnuType.pOnuTypeArray));
    return kNoTable;
  }
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddPrintAllSupportedOnuTypeBaseInfomation(void* vty) {
  using namespace sys_context;
  if (const int32_t code = RefuseTable(kOneLineEachGuard, vty); code != kOk) {
    return code;
  }
  const uint32_t count = gstSupportedOnuType.ulSupportedOnuTypeNum;
  vty_out(vty, "\r\nAllSupportedOnuType:");
  vty_out(vty, "\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = %d", count);
  for (uint32_t i = 0; i < count; ++i) {
    const OnuInformation* const onu = gstSupportedOnuType.pOnuTypeArray[i];
    if (onu == nullptr) {
      continue;
    }
    PauseBeforeRow(i, 8);
    vty_out(
        vty,
        "\r\n%2d. ulOnuType = %3d, ulNameLen = %2d, acName = %-15s, ulTotalPonNum = %d, ulTotalLanPortNum = %2d",
        i, onu->ulOnuType, onu->ulNameLen, onu->acName, onu->ulTotalPonNum, onu->ulTotalLanPortNum);
  }
  EndListing(vty);
  return kOk;
}

int32_t ddPrintOneSupportedOnuInfomation(uint32_t ulOnuIndex, void* vty) {
  using namespace sys_context;
  if (const int32_t code = RefuseTable(kOneTypeGuard, vty); code != kOk) {
    return code;
  }
  const uint32_t count = gstSupportedOnuType.ulSupportedOnuTypeNum;
  if (count == 0) {
    vty_out(vty, "\r\nNo supported onu!");
    vty_out(vty, "\r\nulSupportedOnuTypeNum = %d", count);
    return kOk;
  }
  if (ulOnuIndex >= count) {
    vty_out(
        vty,
        "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = %d, ulSupportedOnuTypeNum = %d",
        ulOnuIndex, count);
    vty_out(vty, "\r\nIndex err! must from 0 to %d\r\n", count - 1);
    return kNoSuchOnuIndex;
  }
  const OnuInformation* const onu = gstSupportedOnuType.pOnuTypeArray[ulOnuIndex];
  if (onu == nullptr) {
    vty_out(
        vty,
        "\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = %d, pstOnuInformation = 0x%x",
        ulOnuIndex, LowBits(onu));
    return kEmptyPlace;
  }
  return PrintOnu(ulOnuIndex, *onu, vty);
}

int32_t ddPrintAllSupportedOnuTypeInfomation(void* vty) {
  using namespace sys_context;
  if (const int32_t code = RefuseTable(kAllTypesGuard, vty); code != kOk) {
    return code;
  }
  const uint32_t count = gstSupportedOnuType.ulSupportedOnuTypeNum;
  if (count == 0) {
    vty_out(vty, "\r\n");
    return kOk;
  }
  ddPrintAllSupportedOnuTypeBaseInfomation(vty);
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\nAll Onu detail information:");
  vty_out(vty, "\r\n");
  for (uint32_t i = 0; i < count; ++i) {
    const OnuInformation* const onu = gstSupportedOnuType.pOnuTypeArray[i];
    if (onu != nullptr) {
      vty_out(vty, "\r\n%d. acName = %s", i, onu->acName);
      vty_out(vty, "\r\nulOnuType = %3d, ulNameLen = %d, acName = %s", onu->ulOnuType,
              onu->ulNameLen, onu->acName);
      ddPrintOneSupportedOnuInfomation(i, vty);
    }
  }
  vty_out(vty, "\r\n");
  return kOk;
}
