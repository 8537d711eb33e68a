// The listings of the ONU port types.
#include "catalog/onu/port_type_catalogs.h"
#include "cli/listing.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cli.h"
#include "sys_context/onu.h"

namespace sys_context {
namespace {

// A catalog and the texts of its listing.
struct CatalogListing {
  OnuPortTypeCatalog catalog;

  Message<uint32_t, uint32_t> above_limit;
  Message<uint32_t> no_array;
  Message<uint32_t, uint32_t, uint32_t> empty_place;  // the record, its place, the count
  Message<> header;
  Message<uint32_t> count;
  Message<uint32_t, uint32_t, uint32_t, const char*> row;
};

// kept as is: alone in that its count line lacks the "gst".
constexpr CatalogListing kPonListing = {
    .catalog = kOnuPonTypes,
    .above_limit =
        "\r\nddPrintAllSupportedOnuPonInfomation err! ulSupportedOnuPonTypeNum = %d, MAX_ONU_PON_TYPE_NUM = %d",
    .no_array = "\r\nddPrintAllSupportedOnuPonInfomation err! pOnuPonTypeArray = 0x%x",
    .empty_place =
        "\r\ndebug_ddPrintAllSupportedOnuPonInfomation err! pstOnuPonInformation = 0x%x, ulSupportedOnuPonTypeIndex = %d, ulSupportedOnuPonTypeNum = %d",
    .header = "\r\nSupportedOnuPon:",
    .count = "\r\nSupportedOnuPon.ulSupportedOnuPonTypeNum = %d",
    .row = "\r\n%2d. ulPonType = %3d, ulNameLen = %2d, acName = %15s",
};

constexpr CatalogListing kLanListing = {
    .catalog = kOnuLanTypes,
    .above_limit =
        "\r\nddPrintAllSupportedOnuLanInfomation err! ulSupportedOnuLanTypeNum = %d, MAX_ONU_LAN_TYPE_NUM = %d",
    .no_array = "\r\nddPrintAllSupportedOnuLanInfomation err! pOnuLanTypeArray = 0x%x",
    .empty_place =
        "\r\ndebug_ddPrintAllSupportedOnuLanInfomation err! pstOnuLanPortInformation = 0x%x, ulSupportedOnuLanTypeIndex = %d, ulSupportedOnuLanTypeNum = %d",
    .header = "\r\nSupportedOnuLan:",
    .count = "\r\ngstSupportedOnuLanType.ulSupportedOnuLanTypeNum = %d",
    .row = "\r\n%2d. ulLanType = %3d, ulNameLen = %2d, acName = %15s",
};

constexpr CatalogListing kPotsListing = {
    .catalog = kOnuPotsTypes,
    .above_limit =
        "\r\nddPrintAllSupportedOnuPotsInfomation err! ulSupportedOnuPotsTypeNum = %d, MAX_ONU_POTS_TYPE_NUM = %d",
    .no_array = "\r\nddPrintAllSupportedOnuPotsInfomation err! pOnuPotsTypeArray = 0x%x",
    .empty_place =
        "\r\ndebug_ddPrintAllSupportedOnuPotsInfomation err! pstOnuPotsPortInformation = 0x%x, ulSupportedOnuPotsTypeIndex  = %d, ulSupportedOnuPotsTypeNum = %d",
    .header = "\r\nSupportedOnuPots:",
    .count = "\r\ngstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum = %d",
    .row = "\r\n%2d. ulPortType = %3d, ulNameLen = %2d, acName = %15s",
};

// kept as is: two refusals show another name than their own.
constexpr CatalogListing kSpecialPortListing = {
    .catalog = kOnuSpecialPortTypes,
    .above_limit =
        "\r\ndebug_ddPrintAllSupportedOnuSpecialPortInfomation err! ulSupportedOnuSpecialPortTypeNum = %d, MAX_ONU_SPECIAL_PORT_TYPE_NUM = %d",
    .no_array = "\r\nddIsOnuSpecialPortTypeSupportedByName err! pOnuSpecialPortTypeArray = 0x%x",
    .empty_place =
        "\r\ndebug_ddPrintAllSupportedOnuSpecialPortInfomation err! pstOnuSpecialPortInformation = 0x%x, ulSupportedOnuSpecialPortTypeIndex = %d, ulSupportedOnuSpecialPortTypeNum = %d",
    .header = "\r\nSupportedOnuSpecialPort:",
    .count = "\r\ngstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum = %d",
    .row = "\r\n%2d. ulPortType = %3d, ulNameLen = %2d, acName = %15s",
};

int32_t PrintCatalog(const CatalogListing& listing, void* vty) {
  const uint32_t count = *listing.catalog.count;
  if (count > listing.catalog.limit) {
    Write(vty, listing.above_limit, count, listing.catalog.limit);
    return kCorruptOnuPortTypes;
  }
  OnuPortTypeInformation* const* const types = *listing.catalog.types;
  if (types == nullptr) {
    Write(vty, listing.no_array, LowBits(types));
    return kNoTable;
  }
  Write(vty, listing.header);
  Write(vty, listing.count, count);
  for (uint32_t i = 0; i < count; ++i) {
    const OnuPortTypeInformation* const type = types[i];
    if (type == nullptr) {
      Write(vty, listing.empty_place, LowBits(type), i, count);
      return kEmptyPlace;
    }
    PauseBeforeRow(i, 16);
    Write(vty, listing.row, i, type->ulPortType, type->ulNameLen, type->acName);
  }
  EndListing(vty);
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddPrintAllSupportedOnuPonInfomation(void* vty) {
  using namespace sys_context;
  return PrintCatalog(kPonListing, vty);
}

int32_t ddPrintAllSupportedOnuLanInfomation(void* vty) {
  using namespace sys_context;
  return PrintCatalog(kLanListing, vty);
}

int32_t ddPrintAllSupportedOnuPotsInfomation(void* vty) {
  using namespace sys_context;
  return PrintCatalog(kPotsListing, vty);
}

int32_t ddPrintAllSupportedOnuSpecialPortInfomation(void* vty) {
  using namespace sys_context;
  return PrintCatalog(kSpecialPortListing, vty);
}
