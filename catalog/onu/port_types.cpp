// The ONU port types: the loaders of their four catalogs.
#include "catalog/onu/port_type_catalogs.h"
#include "cfgfile/named_sections.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"
#include "sys_context/onu.h"

constinit SupportedOnuPonType gstSupportedOnuPonType = {};
constinit SupportedOnuLanType gstSupportedOnuLanType = {};
constinit SupportedOnuPotsType gstSupportedOnuPotsType = {};
constinit SupportedOnuSpecialPortType gstSupportedOnuSpecialPortType = {};

namespace sys_context {
namespace {

using ReadOne = int32_t (*)(const char* file, const char* section, OnuPortTypeInformation** type);

// A catalog, the reader of one of its types, and how the two word their failures.
struct CatalogReader {
  OnuPortTypeCatalog catalog;
  ListSection list;
  Message<uint32_t, uint32_t, uint32_t> null_argument;
  TypeAndName record;
};

// kept as is, throughout: a "Name" that cannot be read is reported as "Speed", and an
// entry that fails under the names of other loaders.

constexpr CatalogReader kPonReader = {
    .catalog = kOnuPonTypes,
    .list =
        {
            .section = "SupportedOnuPonType",
            .count =
                {
                    .key = "SupportedOnuPonTypeNum",
                    .limit = MAX_ONU_PON_TYPE_NUM,
                    .above_limit_code = kTooManyOnuPortTypes,
                    .above_limit =
                        "\r\nddReadAllSupportedOnuPonInformation err! ulSupportedOnuPonTypeNum = %d, MAX_ONU_PON_TYPE_NUM = %d",
                },
            .entry_key = "SupportedOnuPonType",
            .null_file = "\r\nddReadAllSupportedOnuPonInformation err!, strFileName = 0x%x",
            .key_unreadable =
                "\r\nddReadAllSupportedOnuPonInformation err! iResult = %d, section = %s, key = %s",
            // kept as is: shows another section and key than those of the file.
            .count_unreadable = KeyMessage(
                "\r\nddReadAllSupportedOnuPonInformation err! iResult = %d, section = %s, key = %s",
                "SupportedOltPonType", "SupportedOltPonTypeNum"),
            .empty_list = Message<uint32_t>(
                "\r\nddReadAllSupportedOnuPonInformation ok! ulSupportedOnuPonTypeNum = %d"),
            .no_memory =
                "\r\nddReadAllSupportedOnuPonInformation->malloc err! pOnuPonTypeArray = 0x%x",
            .record_failed =
                "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOnuPonInformation err! iResult = %d, strValueBuf = %s",
        },
    .null_argument =
        "\r\nddReadOneSupportedOnuPonInformation err! strFileName = 0x%x, strOnuPonTypeSection = 0x%x, pOnuPonTypeObjAddr = 0x%x",
    .record =
        {
            .type_unreadable =
                "\r\nddReadOneSupportedOnuPonInformation err! iResult = %d, section = %s, key = %s",
            .no_memory =
                "\r\nddReadOneSupportedOnuPonInformation->malloc err! pstOnuPonInformation = 0x%x",
            .name_unreadable = KeyMessage(
                "\r\nddReadOneSupportedOnuPonInformation err! iResult = %d, section = %s, key = %s",
                nullptr, "Speed"),
            .name_too_long = "\r\nddReadOneSupportedOnuPonInformation err! ulNameLen = %d",
        },
};

constexpr CatalogReader kLanReader = {
    .catalog = kOnuLanTypes,
    .list =
        {
            .section = "SupportedOnuLanType",
            .count =
                {
                    .key = "SupportedOnuLanTypeNum",
                    .limit = MAX_ONU_LAN_TYPE_NUM,
                    .above_limit_code = kTooManyOnuPortTypes,
                    .above_limit =
                        "\r\nddReadAllSupportedOnuLanInformation err! ulSupportedOnuLanTypeNum = %d, MAX_ONU_LAN_TYPE_NUM = %d",
                },
            .entry_key = "SupportedOnuLanType",
            .null_file = "\r\nddReadAllSupportedOnuLanInformation err!, strFileName = 0x%x",
            .key_unreadable =
                "\r\nddReadAllSupportedOnuPonInformation err! iResult = %d, section = %s, key = %s",
            // kept as is: the entries' keys are reported in the name of the PON loader.
            .count_unreadable = KeyMessage(
                "\r\nddReadAllSupportedOnuLanInformation err! iResult = %d, section = %s, key = %s"),
            .empty_list = Message<uint32_t>(
                "\r\nddReadAllSupportedOnuLanInformation ok! ulSupportedOnuLanTypeNum = %d"),
            .no_memory =
                "\r\nddReadAllSupportedOnuLanInformation->malloc err! pOnuLanTypeArray = 0x%x",
            .record_failed =
                "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOnuPonInformation err! iResult = %d, strValueBuf = %s",
        },
    .null_argument =
        "\r\nddReadOneSupportedOnuLanInformation err! strFileName = 0x%x, strOnuLanTypeSection = 0x%x, pOnuLanTypeObjAddr = 0x%x",
    .record =
        {
            .type_unreadable =
                "\r\nddReadOneSupportedOnuLanInformation err! iResult = %d, section = %s, key = %s",
            .no_memory =
                "\r\nddReadOneSupportedOnuLanInformation->malloc err! pstOnuLanPortInformation = 0x%x",
            .name_unreadable = KeyMessage(
                "\r\nddReadOneSupportedOnuLanInformation err! iResult = %d, section = %s, key = %s",
                nullptr, "Speed"),
            .name_too_long = "\r\nddReadOneSupportedOnuLanInformation err! ulNameLen = %d",
        },
};

constexpr CatalogReader kPotsReader = {
    .catalog = kOnuPotsTypes,
    .list =
        {
            .section = "SupportedOnuPotsType",
            .count =
                {
                    .key = "SupportedOnuPotsTypeNum",
                    .limit = MAX_ONU_POTS_TYPE_NUM,
                    .above_limit_code = kTooManyOnuPortTypes,
                    .above_limit =
                        "\r\nddReadAllSupportedOnuPotsInformation err! ulSupportedOnuPotsTypeNum = %d, MAX_ONU_POTS_TYPE_NUM = %d",
                },
            .entry_key = "SupportedOnuPotsType",
            .null_file = "\r\nddReadAllSupportedOnuPotsInformation err!, strFileName = 0x%x",
            .key_unreadable =
                "\r\nddReadAllSupportedOnuPotsInformation err! iResult = %d, section = %s, key = %s",
            .empty_list = Message<uint32_t>(
                "\r\nddReadAllSupportedOnuPotsInformation ok! ulSupportedOnuPotsTypeNum = %d"),
            .no_memory =
                "\r\nddReadAllSupportedOnuPotsInformation->malloc err! pOnuPotsTypeArray = 0x%x",
            .record_failed =
                "\r\nddReadAllSupportedOnuPotsInformation->ddReadOneSupportedOnuPonInformation err! iResult = %d, strValueBuf = %s",
        },
    .null_argument =
        "\r\nddReadOneSupportedOnuPotsInformation err! strFileName = 0x%x, strOnuPotsTypeSection = 0x%x, pOnuPotsTypeObjAddr = 0x%x",
    .record =
        {
            .type_unreadable =
                "\r\nddReadOneSupportedOnuPotsInformation err! iResult = %d, section = %s, key = %s",
            .no_memory =
                "\r\nddReadOneSupportedOnuPotsInformation->malloc err! pstOnuPotsPortInformation = 0x%x",
            .name_unreadable = KeyMessage(
                "\r\nddReadOneSupportedOnuPotsInformation err! iResult = %d, section = %s, key = %s",
                nullptr, "Speed"),
            .name_too_long = "\r\nddReadOneSupportedOnuPotsInformation err! ulNameLen = %d",
        },
};

constexpr CatalogReader kSpecialPortReader = {
    .catalog = kOnuSpecialPortTypes,
    .list =
        {
            .section = "SupportedOnuSpecialPortType",
            .count =
                {
                    .key = "SupportedOnuSpecialPortTypeNum",
                    .limit = MAX_ONU_SPECIAL_PORT_TYPE_NUM,
                    .above_limit_code = kTooManyOnuPortTypes,
                    .above_limit =
                        "\r\nddReadAllSupportedOnuSpecialPortInformation err! ulSupportedOnuSpecialPortTypeNum = %d, MAX_ONU_SPECIAL_PORT_TYPE_NUM = %d",
                },
            .entry_key = "SupportedOnuSpecialPortType",
            .null_file = "\r\nddReadAllSupportedOnuSpecialPortInformation err!, strFileName = 0x%x",
            .key_unreadable =
                "\r\nddReadAllSupportedOnuSpecialPortInformation err! iResult = %d, section = %s, key = %s",
            // kept as is: shows another section and key than those of the file.
            .count_unreadable = KeyMessage(
                "\r\nddReadAllSupportedOnuSpecialPortInformation err! iResult = %d, section = %s, key = %s",
                "SupportOnuSpecialPortType", "SupportOnuSpecialPortTypeNum"),
            .empty_list = Message<uint32_t>(
                "\r\nddReadAllSupportedOnuSpecialPortInformation ok! ulSupportedOnuSpecialPortTypeNum = %d"),
            .no_memory =
                "\r\nddReadAllSupportedOnuSpecialPortInformation->malloc err! pOnuSpecialPortTypeArray = 0x%x",
            .record_failed =
                "\r\nddReadAllSupportedOnuSpecialPortInformation->ddReadOneSupportedOnuPonInformation err! iResult = %d, strValueBuf = %s",
        },
    .null_argument =
        "\r\nddReadOneSupportedOnuSpecialPortInformation err! strFileName = 0x%x, strOnuSpecialPortTypeSection = 0x%x, pOnuSpecialPortTypeObjAddr = 0x%x",
    .record =
        {
            .type_unreadable =
                "\r\nddReadOneSupportedOnuSpecialPortInformation err! iResult = %d, section = %s, key = %s",
            .no_memory =
                "\r\nddReadOneSupportedOnuSpecialPortInformation->malloc err! pstOnuSpecialPortInformation = 0x%x",
            .name_unreadable = KeyMessage(
                "\r\nddReadOneSupportedOnuSpecialPortInformation err! iResult = %d, section = %s, key = %s",
                nullptr, "Speed"),
            .name_too_long = "\r\nddReadOneSupportedOnuSpecialPortInformation err! ulNameLen = %d",
        },
};

int32_t ReadType(const CatalogReader& reader, const char* file, const char* section,
                 OnuPortTypeInformation** output) {
  if (file == nullptr || section == nullptr || output == nullptr) {
    Report(Gate::kAlways, reader.null_argument, LowBits(file), LowBits(section), LowBits(output));
    return kNullArgument;
  }
  Owned<OnuPortTypeInformation> type;
  const int32_t code =
      ReadTypeAndName(reader.record, file, section, &OnuPortTypeInformation::ulPortType, type);
  *output = code == kOk ? type.release() : nullptr;
  return code;
}

template <ReadOne read_one>
int32_t LoadCatalog(const CatalogReader& reader, const char* file) {
  return LoadNamedSections<OnuPortTypeInformation>(
      reader.list, file, *reader.catalog.count, *reader.catalog.types,
      [](const Source& source, const char* section, OnuPortTypeInformation** type) {
        return read_one(source.file(), section, type);
      });
}

}  // namespace
}  // namespace sys_context

int32_t ddReadAllSupportedOnuPonInformation(const char* strFileName) {
  using namespace sys_context;
  return LoadCatalog<ddReadOneSupportedOnuPonInformation>(kPonReader, strFileName);
}

int32_t ddReadOneSupportedOnuPonInformation(const char* strFileName,
                                            const char* strOnuPonTypeSection,
                                            OnuPortTypeInformation** pOnuPonTypeObjAddr) {
  using namespace sys_context;
  return ReadType(kPonReader, strFileName, strOnuPonTypeSection, pOnuPonTypeObjAddr);
}

int32_t ddReadAllSupportedOnuLanInformation(const char* strFileName) {
  using namespace sys_context;
  return LoadCatalog<ddReadOneSupportedOnuLanInformation>(kLanReader, strFileName);
}

int32_t ddReadOneSupportedOnuLanInformation(const char* strFileName,
                                            const char* strOnuLanTypeSection,
                                            OnuPortTypeInformation** pOnuLanTypeObjAddr) {
  using namespace sys_context;
  return ReadType(kLanReader, strFileName, strOnuLanTypeSection, pOnuLanTypeObjAddr);
}

int32_t ddReadAllSupportedOnuPotsInformation(const char* strFileName) {
  using namespace sys_context;
  return LoadCatalog<ddReadOneSupportedOnuPotsInformation>(kPotsReader, strFileName);
}

int32_t ddReadOneSupportedOnuPotsInformation(const char* strFileName,
                                             const char* strOnuPotsTypeSection,
                                             OnuPortTypeInformation** pOnuPotsTypeObjAddr) {
  using namespace sys_context;
  return ReadType(kPotsReader, strFileName, strOnuPotsTypeSection, pOnuPotsTypeObjAddr);
}

int32_t ddReadAllSupportedOnuSpecialPortInformation(const char* strFileName) {
  using namespace sys_context;
  return LoadCatalog<ddReadOneSupportedOnuSpecialPortInformation>(kSpecialPortReader, strFileName);
}

int32_t ddReadOneSupportedOnuSpecialPortInformation(
    const char* strFileName, const char* strOnuSpecialPortTypeSection,
    OnuPortTypeInformation** pOnuSpecialPortTypeObjAddr) {
  using namespace sys_context;
  return ReadType(kSpecialPortReader, strFileName, strOnuSpecialPortTypeSection,
                  pOnuSpecialPortTypeObjAddr);
}
