// Questions about the ONU port types.
#include <optional>

#include "catalog/onu/port_type_catalogs.h"
#include "common/codes.h"
#include "common/messages.h"
#include "common/table_queries.h"
#include "sys_context/onu.h"

namespace sys_context {
namespace {

// A question for the place of a type number.
struct TypeQuery {
  TableCheck table;
  int32_t not_found_code;
  bool not_found_clears_index;

  Message<uint32_t, uint32_t> null_argument;                       // both outputs
  std::optional<Message<uint32_t, uint32_t>> corrupt_length = {};  // set: names are checked
};

// The two questions that a catalog answers.
struct CatalogQueries {
  OnuPortTypeCatalog catalog;
  NameQuery by_name;
  TypeQuery by_type;
};

consteval TableCheck CatalogCheck(const OnuPortTypeCatalog& catalog,
                                  const PartialMessage<uint32_t, uint32_t>& above_limit,
                                  const Message<uint32_t>& no_array) {
  return {
      .limit = catalog.limit,
      .above_limit_code = kTooManyOnuPortTypes,
      .no_array_code = kNoTable,
      .above_limit = above_limit,
      .no_array = no_array,
  };
}

constexpr CatalogQueries kPonQueries = {
    .catalog = kOnuPonTypes,
    .by_name =
        {
            .table =
                CatalogCheck(kOnuPonTypes,
                             "\r\nddIsOnuPonTypeSupportedByName err! ulSupportedOnuPonTypeNum = %d",
                             "\r\nddIsOnuPonTypeSupportedByName err! pOnuPonTypeArray = 0x%x"),
            .null_argument =
                "\r\nddIsOnuPonTypeSupportedByName err! strOnuPonTypeName = 0x%x, pIsSupported = 0x%x, pIndex = 0x%x",
            .name_too_long =
                "\r\nddIsOnuPonTypeSupportedByName err! strlen(strOnuPonTypeName) = %d",
            .corrupt_length =
                "\r\nddIsOnuPonTypeSupportedByName err! ulNameLen = %d, ulSupportedOnuPonTypeNumIndex = %d",
        },
    .by_type =
        {
            .table =
                CatalogCheck(kOnuPonTypes,
                             "\r\nddIsOnuPonTypeSupportedByType err! ulSupportedOnuPonTypeNum = %d",
                             "\r\nddIsOnuPonTypeSupportedByType err! pOnuPonTypeArray = 0x%x"),
            .not_found_code = kNoSuchOnuPortType,
            .not_found_clears_index = true,
            .null_argument =
                "\r\nddIsOnuPonTypeSupportedByType err! pIsSupported = 0x%x, pIndex = 0x%x",
        },
};

// kept as is: the missing array is reported in the name of the PON types' query. An
// unknown type leaves the index alone, of LAN as of POTS ports.
constexpr CatalogQueries kLanQueries = {
    .catalog = kOnuLanTypes,
    .by_name =
        {
            .table =
                CatalogCheck(kOnuLanTypes,
                             "\r\nddIsOnuLanTypeSupportedByName err! ulSupportedOnuLanTypeNum = %d",
                             "\r\nddIsOnuPonTypeSupportedByName err! pOnuLanTypeArray = 0x%x"),
            .null_argument =
                "\r\nddIsOnuLanTypeSupportedByName err! strOnuLanTypeName = 0x%x, pIsSupported = 0x%x, pIndex = 0x%x",
            .name_too_long =
                "\r\nddIsOnuLanTypeSupportedByName err! strlen(strOnuLanTypeName) = %d",
            .corrupt_length =
                "\r\nddIsOnuLanTypeSupportedByName err! ulNameLen = %d, ulSupportedOnuLanTypeNumIndex = %d",
        },
    .by_type =
        {
            .table =
                CatalogCheck(kOnuLanTypes,
                             "\r\nddIsOnuLanTypeSupportedByType err! ulSupportedOnuLanTypeNum = %d",
                             "\r\nddIsOnuLanTypeSupportedByType err! pOnuLanTypeArray = 0x%x"),
            .not_found_code = kOnuPortTypeNotSupported,
            .not_found_clears_index = false,
            .null_argument =
                "\r\nddIsOnuLanTypeSupportedByType err! pIsSupported = 0x%x, pIndex = 0x%x",
            .corrupt_length = Message<uint32_t, uint32_t>(
                "\r\nddIsOnuLanTypeSupportedByType err! ulNameLen = %d, ulSupportedOnuLanTypeNumIndex = %d"),
        },
};

constexpr CatalogQueries kPotsQueries = {
    .catalog = kOnuPotsTypes,
    .by_name =
        {
            .table = CatalogCheck(
                kOnuPotsTypes,
                "\r\nddIsOnuPotsTypeSupportedByName err! ulSupportedOnuPotsTypeNum = %d",
                "\r\nddIsOnuPotsTypeSupportedByName err! pOnuPotsTypeArray = 0x%x"),
            .null_argument =
                "\r\nddIsOnuPotsTypeSupportedByName err! strOnuPotsTypeName = 0x%x, pIsSupported = 0x%x, pIndex = 0x%x",
            .name_too_long =
                "\r\nddIsOnuPotsTypeSupportedByName err! strlen(strOnuPotsTypeName) = %d",
            .corrupt_length =
                "\r\nddIsOnuPotsTypeSupportedByName err! ulNameLen = %d, ulSupportedOnuPotsTypeNumIndex = %d",
        },
    .by_type =
        {
            .table = CatalogCheck(
                kOnuPotsTypes,
                "\r\nddIsOnuPotsTypeSupportedByType err! ulSupportedOnuPotsTypeNum = %d",
                "\r\nddIsOnuPotsTypeSupportedByType err! pOnuPotsTypeArray = 0x%x"),
            .not_found_code = kOnuPortTypeNotSupported,
            .not_found_clears_index = false,
            .null_argument =
                "\r\nddIsOnuPotsTypeSupportedByType err! pIsSupported = 0x%x, pIndex = 0x%x",
            .corrupt_length = Message<uint32_t, uint32_t>(
                "\r\nddIsOnuPotsTypeSupportedByType err! ulNameLen = %d, ulSupportedOnuPotsTypeNumIndex = %d"),
        },
};

// kept as is: null arguments are reported in the name of the PON types' query.
constexpr CatalogQueries kSpecialPortQueries = {
    .catalog = kOnuSpecialPortTypes,
    .by_name =
        {
            .table = CatalogCheck(
                kOnuSpecialPortTypes,
                "\r\nddIsOnuSpecialPortTypeSupportedByName err! ulSupportedOnuSpecialPortTypeNum = %d",
                "\r\nddIsOnuSpecialPortTypeSupportedByName err! pOnuSpecialPortTypeArray = 0x%x"),
            .null_argument =
                "\r\nddIsOnuSpecialPortTypeSupportedByName err! strOnuPortTypeName = 0x%x, pIsSupported = 0x%x, pIndex = 0x%x",
            .name_too_long =
                "\r\nddIsOnuSpecialPortTypeSupportedByName err! strlen(strOnuPortTypeName) = %d",
            .corrupt_length =
                "\r\nddIsOnuSpecialPortTypeSupportedByName err! ulNameLen = %d, ulSupportedOnuSpecialPortTypeNumIndex = %d",
        },
    .by_type =
        {
            .table = CatalogCheck(
                kOnuSpecialPortTypes,
                "\r\nddIsOnuSpecialPortTypeSupportedByType err! ulSupportedOnuSpecialPortTypeNum = %d",
                "\r\nddIsOnuSpecialPortTypeSupportedByType err! pOnuSpecialPortTypeArray = 0x%x"),
            .not_found_code = kNoSuchOnuPortType,
            .not_found_clears_index = true,
            .null_argument =
                "\r\nddIsOnuPonTypeSupportedByType err! pIsSupported = 0x%x, pIndex = 0x%x",
        },
};

int32_t IsNameSupported(const CatalogQueries& queries, const char* name, uint32_t* is_supported,
                        uint32_t* index) {
  return AskForName(queries.by_name, *queries.catalog.count, *queries.catalog.types, name,
                    is_supported, index);
}

// The place of the first record of the type. A corrupt name met on the way is a failure,
// if the query minds.
int32_t FindType(const TypeQuery& query, const OnuPortTypeCatalog& catalog, uint32_t type,
                 uint32_t& index) {
  const uint32_t count = *catalog.count;
  for (uint32_t i = 0; i < count; ++i) {
    const OnuPortTypeInformation* const record = (*catalog.types)[i];
    if (record == nullptr) {
      continue;
    }
    if (query.corrupt_length && !NameFits(*record)) {
      Report(Gate::kDebug, *query.corrupt_length, record->ulNameLen, i);
      index = 0;
      return kTextTooLong;
    }
    if (record->ulPortType == type) {
      index = i;
      return kOk;
    }
  }
  if (query.not_found_clears_index) {
    index = 0;
  }
  return query.not_found_code;
}

int32_t IsTypeSupported(const CatalogQueries& queries, uint32_t type, uint32_t* is_supported,
                        uint32_t* index) {
  const TypeQuery& query = queries.by_type;
  if (is_supported == nullptr || index == nullptr) {
    Report(Gate::kDebug, query.null_argument, LowBits(is_supported), LowBits(index));
    return kNullArgument;
  }
  *is_supported = 0;
  const OnuPortTypeCatalog& catalog = queries.catalog;
  if (const int32_t code = CheckTable(query.table, *catalog.count, *catalog.types); code != kOk) {
    *index = 0;
    return code;
  }
  const int32_t code = FindType(query, catalog, type, *index);
  if (code == kOk) {
    *is_supported = 1;
  }
  return code;
}

}  // namespace
}  // namespace sys_context

int32_t ddIsOnuPonTypeSupportedByName(const char* strOnuPonTypeName, uint32_t* pIsSupported,
                                      uint32_t* pIndex) {
  using namespace sys_context;
  return IsNameSupported(kPonQueries, strOnuPonTypeName, pIsSupported, pIndex);
}

int32_t ddIsOnuPonTypeSupportedByType(uint32_t ulPonType, uint32_t* pIsSupported,
                                      uint32_t* pIndex) {
  using namespace sys_context;
  return IsTypeSupported(kPonQueries, ulPonType, pIsSupported, pIndex);
}

int32_t ddIsOnuLanTypeSupportedByName(const char* strOnuLanTypeName, uint32_t* pIsSupported,
                                      uint32_t* pIndex) {
  using namespace sys_context;
  return IsNameSupported(kLanQueries, strOnuLanTypeName, pIsSupported, pIndex);
}

int32_t ddIsOnuLanTypeSupportedByType(uint32_t ulLanType, uint32_t* pIsSupported,
                                      uint32_t* pIndex) {
  using namespace sys_context;
  return IsTypeSupported(kLanQueries, ulLanType, pIsSupported, pIndex);
}

int32_t ddIsOnuPotsTypeSupportedByName(const char* strOnuPotsTypeName, uint32_t* pIsSupported,
                                       uint32_t* pIndex) {
  using namespace sys_context;
  return IsNameSupported(kPotsQueries, strOnuPotsTypeName, pIsSupported, pIndex);
}

int32_t ddIsOnuPotsTypeSupportedByType(uint32_t ulPortType, uint32_t* pIsSupported,
                                       uint32_t* pIndex) {
  using namespace sys_context;
  return IsTypeSupported(kPotsQueries, ulPortType, pIsSupported, pIndex);
}

int32_t ddIsOnuSpecialPortTypeSupportedByName(const char* strOnuPortTypeName,
                                              uint32_t* pIsSupported, uint32_t* pIndex) {
  using namespace sys_context;
  return IsNameSupported(kSpecialPortQueries, strOnuPortTypeName, pIsSupported, pIndex);
}

int32_t ddIsOnuSpecialPortTypeSupportedByType(uint32_t ulPortType, uint32_t* pIsSupported,
                                              uint32_t* pIndex) {
  using namespace sys_context;
  return IsTypeSupported(kSpecialPortQueries, ulPortType, pIsSupported, pIndex);
}
