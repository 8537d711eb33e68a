// What each of the four catalogs has of its own.
#include "catalog/onu/port_type_family.h"

namespace test {

constinit const PortTypeFamily kPortTypeFamilies[4] = {
    {
        .name = "Pon",
        .count = &gstSupportedOnuPonType.ulSupportedOnuPonTypeNum,
        .types = &gstSupportedOnuPonType.pOnuPonTypeArray,
        .type = &PortType::ulPonType,
        .read_one = ddReadOneSupportedOnuPonInformation,
        .read_all = ddReadAllSupportedOnuPonInformation,
        .by_name = ddIsOnuPonTypeSupportedByName,
        .by_type = ddIsOnuPonTypeSupportedByType,
        .copy = ddCreateOneOnuPonObjByName,
        .section = "SupportedOnuPonType",
        .number_key = "SupportedOnuPonTypeNum",
        .entry_key = "SupportedOnuPonType",
        .read_null =
            "\r\nddReadOneSupportedOnuPonInformation err! strFileName = {file}, strOnuPonTypeSection = {section}, pOnuPonTypeObjAddr = {record}",
        .type_unreadable =
            "\r\nddReadOneSupportedOnuPonInformation err! iResult = {code}, section = {section}, key = Type",
        .no_record =
            "\r\nddReadOneSupportedOnuPonInformation->malloc err! pstOnuPonInformation = 0x0",
        .name_unreadable =
            "\r\nddReadOneSupportedOnuPonInformation err! iResult = {code}, section = {section}, key = Speed",
        .name_too_long = "\r\nddReadOneSupportedOnuPonInformation err! ulNameLen = {length}",
        .no_path = "\r\nddReadAllSupportedOnuPonInformation err!, strFileName = 0x0",
        .number_unreadable =
            "\r\nddReadAllSupportedOnuPonInformation err! iResult = {code}, section = SupportedOltPonType, key = SupportedOltPonTypeNum",
        .too_many =
            "\r\nddReadAllSupportedOnuPonInformation err! ulSupportedOnuPonTypeNum = {n}, MAX_ONU_PON_TYPE_NUM = 30",
        .none_announced =
            "\r\nddReadAllSupportedOnuPonInformation ok! ulSupportedOnuPonTypeNum = 0",
        .no_array = "\r\nddReadAllSupportedOnuPonInformation->malloc err! pOnuPonTypeArray = 0x0",
        .entry_unreadable =
            "\r\nddReadAllSupportedOnuPonInformation err! iResult = {code}, section = SupportedOnuPonType, key = SupportedOnuPonType{n}",
        .entry_failed =
            "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOnuPonInformation err! iResult = {code}, strValueBuf = {section}",
        .by_name_null =
            "\r\nddIsOnuPonTypeSupportedByName err! strOnuPonTypeName = {name}, pIsSupported = {out0}, pIndex = {out1}",
        .by_name_too_long =
            "\r\nddIsOnuPonTypeSupportedByName err! strlen(strOnuPonTypeName) = {n}",
        .by_name_count = "\r\nddIsOnuPonTypeSupportedByName err! ulSupportedOnuPonTypeNum = {n}",
        .by_name_array = "\r\nddIsOnuPonTypeSupportedByName err! pOnuPonTypeArray = 0x0",
        .by_name_length =
            "\r\nddIsOnuPonTypeSupportedByName err! ulNameLen = {n}, ulSupportedOnuPonTypeNumIndex = {place}",
        .unknown_type = -15,
        .unknown_clears_index = true,
        .by_type_null =
            "\r\nddIsOnuPonTypeSupportedByType err! pIsSupported = {out0}, pIndex = {out1}",
        .by_type_count = "\r\nddIsOnuPonTypeSupportedByType err! ulSupportedOnuPonTypeNum = {n}",
        .by_type_array = "\r\nddIsOnuPonTypeSupportedByType err! pOnuPonTypeArray = 0x0",
        .by_type_length = nullptr,
        .copies_aloud = false,
        .copy_null =
            "\r\nddCreateOneOnuPonObjByName err! strOnuPonTypeName = {name}, pOnuPonTypeObjAddr = {out0}",
        .copy_too_long = "\r\nddCreateOneOnuPonObjByName err! strlen(strOnuPonTypeName) = {n}",
        .copy_lookup =
            "\r\nddCreateOneOnuPonObjByName->dd_IsOnuPonTypeSupportedBySecName err! iResult = {code}, strOnuPonTypeName = {name}, ulIndex = {n}",
        .copy_unsupported =
            "\r\nddCreateOneOnuPonObjByName err! strOnuPonTypeName = {name}, IsSupported = 0",
        .copy_index =
            "\r\nddCreateOneOnuPonObjByName err! strOnuPonTypeName = {name}, ulIndex = {n}",
        .copy_no_memory =
            "\r\ndd_CreateOneOnuPonObjBySecName, pstOnuPonInformationOut = 0x0, ulIndex = {n}",
        .copy_empty_place =
            "\r\ndd_CreateOneOnuPonObjBySecName, pstOnuPonInformationSaved = 0x0, ulIndex = {n}",
    },
    {
        .name = "Lan",
        .count = &gstSupportedOnuLanType.ulSupportedOnuLanTypeNum,
        .types = &gstSupportedOnuLanType.pOnuLanTypeArray,
        .type = &PortType::ulLanType,
        .read_one = ddReadOneSupportedOnuLanInformation,
        .read_all = ddReadAllSupportedOnuLanInformation,
        .by_name = ddIsOnuLanTypeSupportedByName,
        .by_type = ddIsOnuLanTypeSupportedByType,
        .copy = ddCreateOneOnuLanObjByName,
        .section = "SupportedOnuLanType",
        .number_key = "SupportedOnuLanTypeNum",
        .entry_key = "SupportedOnuLanType",
        .read_null =
            "\r\nddReadOneSupportedOnuLanInformation err! strFileName = {file}, strOnuLanTypeSection = {section}, pOnuLanTypeObjAddr = {record}",
        .type_unreadable =
            "\r\nddReadOneSupportedOnuLanInformation err! iResult = {code}, section = {section}, key = Type",
        .no_record =
            "\r\nddReadOneSupportedOnuLanInformation->malloc err! pstOnuLanPortInformation = 0x0",
        .name_unreadable =
            "\r\nddReadOneSupportedOnuLanInformation err! iResult = {code}, section = {section}, key = Speed",
        .name_too_long = "\r\nddReadOneSupportedOnuLanInformation err! ulNameLen = {length}",
        .no_path = "\r\nddReadAllSupportedOnuLanInformation err!, strFileName = 0x0",
        .number_unreadable =
            "\r\nddReadAllSupportedOnuLanInformation err! iResult = {code}, section = SupportedOnuLanType, key = SupportedOnuLanTypeNum",
        .too_many =
            "\r\nddReadAllSupportedOnuLanInformation err! ulSupportedOnuLanTypeNum = {n}, MAX_ONU_LAN_TYPE_NUM = 30",
        .none_announced =
            "\r\nddReadAllSupportedOnuLanInformation ok! ulSupportedOnuLanTypeNum = 0",
        .no_array = "\r\nddReadAllSupportedOnuLanInformation->malloc err! pOnuLanTypeArray = 0x0",
        .entry_unreadable =
            "\r\nddReadAllSupportedOnuPonInformation err! iResult = {code}, section = SupportedOnuLanType, key = SupportedOnuLanType{n}",
        .entry_failed =
            "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOnuPonInformation err! iResult = {code}, strValueBuf = {section}",
        .by_name_null =
            "\r\nddIsOnuLanTypeSupportedByName err! strOnuLanTypeName = {name}, pIsSupported = {out0}, pIndex = {out1}",
        .by_name_too_long =
            "\r\nddIsOnuLanTypeSupportedByName err! strlen(strOnuLanTypeName) = {n}",
        .by_name_count = "\r\nddIsOnuLanTypeSupportedByName err! ulSupportedOnuLanTypeNum = {n}",
        .by_name_array = "\r\nddIsOnuPonTypeSupportedByName err! pOnuLanTypeArray = 0x0",
        .by_name_length =
            "\r\nddIsOnuLanTypeSupportedByName err! ulNameLen = {n}, ulSupportedOnuLanTypeNumIndex = {place}",
        .unknown_type = -32,
        .unknown_clears_index = false,
        .by_type_null =
            "\r\nddIsOnuLanTypeSupportedByType err! pIsSupported = {out0}, pIndex = {out1}",
        .by_type_count = "\r\nddIsOnuLanTypeSupportedByType err! ulSupportedOnuLanTypeNum = {n}",
        .by_type_array = "\r\nddIsOnuLanTypeSupportedByType err! pOnuLanTypeArray = 0x0",
        .by_type_length =
            "\r\nddIsOnuLanTypeSupportedByType err! ulNameLen = {n}, ulSupportedOnuLanTypeNumIndex = {place}",
        .copies_aloud = true,
        .copy_null =
            "\r\nddCreateOneOnuLanObjByName err! strOnuLanTypeName = {name}, pOnuLanTypeObjAddr = {out0}",
        .copy_too_long = "\r\nddCreateOneOnuLanObjByName err! strlen(strOnuLanTypeName) = {n}",
        .copy_lookup =
            "\r\nddCreateOneOnuLanObjByName->ddIsOnuLanTypeSupportedByName err! iResult = {code}, strOnuLanTypeName = {name}, ulIndex = {n}",
        .copy_unsupported =
            "\r\nddCreateOneOnuLanObjByName err! strOnuLanTypeName = {name}, IsSupported = 0",
        .copy_index =
            "\r\nddCreateOneOnuLanObjByName err! strOnuLanTypeName = {name}, ulIndex = {n}",
        .copy_no_memory =
            "\r\nddCreateOneOnuLanObjByName, pstOnuLanPortInformationOut = 0x0, ulIndex= {n}",
        .copy_empty_place =
            "\r\nddCreateOneOnuLanObjByName, pstOnuLanPortInformationSave = 0x0, ulIndex = {n}",
    },
    {
        .name = "Pots",
        .count = &gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum,
        .types = &gstSupportedOnuPotsType.pOnuPotsTypeArray,
        .type = &PortType::ulPortType,
        .read_one = ddReadOneSupportedOnuPotsInformation,
        .read_all = ddReadAllSupportedOnuPotsInformation,
        .by_name = ddIsOnuPotsTypeSupportedByName,
        .by_type = ddIsOnuPotsTypeSupportedByType,
        .copy = ddCreateOneOnuPotsObjByName,
        .section = "SupportedOnuPotsType",
        .number_key = "SupportedOnuPotsTypeNum",
        .entry_key = "SupportedOnuPotsType",
        .read_null =
            "\r\nddReadOneSupportedOnuPotsInformation err! strFileName = {file}, strOnuPotsTypeSection = {section}, pOnuPotsTypeObjAddr = {record}",
        .type_unreadable =
            "\r\nddReadOneSupportedOnuPotsInformation err! iResult = {code}, section = {section}, key = Type",
        .no_record =
            "\r\nddReadOneSupportedOnuPotsInformation->malloc err! pstOnuPotsPortInformation = 0x0",
        .name_unreadable =
            "\r\nddReadOneSupportedOnuPotsInformation err! iResult = {code}, section = {section}, key = Speed",
        .name_too_long = "\r\nddReadOneSupportedOnuPotsInformation err! ulNameLen = {length}",
        .no_path = "\r\nddReadAllSupportedOnuPotsInformation err!, strFileName = 0x0",
        .number_unreadable =
            "\r\nddReadAllSupportedOnuPotsInformation err! iResult = {code}, section = SupportedOnuPotsType, key = SupportedOnuPotsTypeNum",
        .too_many =
            "\r\nddReadAllSupportedOnuPotsInformation err! ulSupportedOnuPotsTypeNum = {n}, MAX_ONU_POTS_TYPE_NUM = 30",
        .none_announced =
            "\r\nddReadAllSupportedOnuPotsInformation ok! ulSupportedOnuPotsTypeNum = 0",
        .no_array = "\r\nddReadAllSupportedOnuPotsInformation->malloc err! pOnuPotsTypeArray = 0x0",
        .entry_unreadable =
            "\r\nddReadAllSupportedOnuPotsInformation err! iResult = {code}, section = SupportedOnuPotsType, key = SupportedOnuPotsType{n}",
        .entry_failed =
            "\r\nddReadAllSupportedOnuPotsInformation->ddReadOneSupportedOnuPonInformation err! iResult = {code}, strValueBuf = {section}",
        .by_name_null =
            "\r\nddIsOnuPotsTypeSupportedByName err! strOnuPotsTypeName = {name}, pIsSupported = {out0}, pIndex = {out1}",
        .by_name_too_long =
            "\r\nddIsOnuPotsTypeSupportedByName err! strlen(strOnuPotsTypeName) = {n}",
        .by_name_count = "\r\nddIsOnuPotsTypeSupportedByName err! ulSupportedOnuPotsTypeNum = {n}",
        .by_name_array = "\r\nddIsOnuPotsTypeSupportedByName err! pOnuPotsTypeArray = 0x0",
        .by_name_length =
            "\r\nddIsOnuPotsTypeSupportedByName err! ulNameLen = {n}, ulSupportedOnuPotsTypeNumIndex = {place}",
        .unknown_type = -32,
        .unknown_clears_index = false,
        .by_type_null =
            "\r\nddIsOnuPotsTypeSupportedByType err! pIsSupported = {out0}, pIndex = {out1}",
        .by_type_count = "\r\nddIsOnuPotsTypeSupportedByType err! ulSupportedOnuPotsTypeNum = {n}",
        .by_type_array = "\r\nddIsOnuPotsTypeSupportedByType err! pOnuPotsTypeArray = 0x0",
        .by_type_length =
            "\r\nddIsOnuPotsTypeSupportedByType err! ulNameLen = {n}, ulSupportedOnuPotsTypeNumIndex = {place}",
        .copies_aloud = true,
        .copy_null =
            "\r\nddCreateOneOnuPotsObjByName err! strOnuPotsTypeName = {name}, pOnuPotsTypeObjAddr = {out0}",
        .copy_too_long = "\r\nddCreateOneOnuPotsObjByName err! strlen(strOnuPotsTypeName) = {n}",
        .copy_lookup =
            "\r\nddCreateOneOnuPotsObjByName->ddIsOnuPotsTypeSupportedByName err! iResult = {code}, strOnuPotsTypeName = {name}, ulIndex = {n}",
        .copy_unsupported =
            "\r\nddCreateOneOnuPotsObjByName err! strOnuPotsTypeName = {name}, IsSupported = 0",
        .copy_index =
            "\r\nddCreateOneOnuPotsObjByName err! strOnuPotsTypeName = {name}, ulIndex = {n}",
        .copy_no_memory =
            "\r\nddCreateOneOnuPotsObjByName, pstOnuPotsPortInformationOut = 0x0, ulIndex = {n}",
        .copy_empty_place =
            "\r\nddCreateOneOnuPotsObjByName, pstOnuPotsPortInformationSave = 0x0, ulIndex = {n}",
    },
    {
        .name = "SpecialPort",
        .count = &gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum,
        .types = &gstSupportedOnuSpecialPortType.pOnuSpecialPortTypeArray,
        .type = &PortType::ulPortType,
        .read_one = ddReadOneSupportedOnuSpecialPortInformation,
        .read_all = ddReadAllSupportedOnuSpecialPortInformation,
        .by_name = ddIsOnuSpecialPortTypeSupportedByName,
        .by_type = ddIsOnuSpecialPortTypeSupportedByType,
        .copy = ddCreateOneOnuSpecialPortObjByName,
        .section = "SupportedOnuSpecialPortType",
        .number_key = "SupportedOnuSpecialPortTypeNum",
        .entry_key = "SupportedOnuSpecialPortType",
        .read_null =
            "\r\nddReadOneSupportedOnuSpecialPortInformation err! strFileName = {file}, strOnuSpecialPortTypeSection = {section}, pOnuSpecialPortTypeObjAddr = {record}",
        .type_unreadable =
            "\r\nddReadOneSupportedOnuSpecialPortInformation err! iResult = {code}, section = {section}, key = Type",
        .no_record =
            "\r\nddReadOneSupportedOnuSpecialPortInformation->malloc err! pstOnuSpecialPortInformation = 0x0",
        .name_unreadable =
            "\r\nddReadOneSupportedOnuSpecialPortInformation err! iResult = {code}, section = {section}, key = Speed",
        .name_too_long =
            "\r\nddReadOneSupportedOnuSpecialPortInformation err! ulNameLen = {length}",
        .no_path = "\r\nddReadAllSupportedOnuSpecialPortInformation err!, strFileName = 0x0",
        .number_unreadable =
            "\r\nddReadAllSupportedOnuSpecialPortInformation err! iResult = {code}, section = SupportOnuSpecialPortType, key = SupportOnuSpecialPortTypeNum",
        .too_many =
            "\r\nddReadAllSupportedOnuSpecialPortInformation err! ulSupportedOnuSpecialPortTypeNum = {n}, MAX_ONU_SPECIAL_PORT_TYPE_NUM = 30",
        .none_announced =
            "\r\nddReadAllSupportedOnuSpecialPortInformation ok! ulSupportedOnuSpecialPortTypeNum = 0",
        .no_array =
            "\r\nddReadAllSupportedOnuSpecialPortInformation->malloc err! pOnuSpecialPortTypeArray = 0x0",
        .entry_unreadable =
            "\r\nddReadAllSupportedOnuSpecialPortInformation err! iResult = {code}, section = SupportedOnuSpecialPortType, key = SupportedOnuSpecialPortType{n}",
        .entry_failed =
            "\r\nddReadAllSupportedOnuSpecialPortInformation->ddReadOneSupportedOnuPonInformation err! iResult = {code}, strValueBuf = {section}",
        .by_name_null =
            "\r\nddIsOnuSpecialPortTypeSupportedByName err! strOnuPortTypeName = {name}, pIsSupported = {out0}, pIndex = {out1}",
        .by_name_too_long =
            "\r\nddIsOnuSpecialPortTypeSupportedByName err! strlen(strOnuPortTypeName) = {n}",
        .by_name_count =
            "\r\nddIsOnuSpecialPortTypeSupportedByName err! ulSupportedOnuSpecialPortTypeNum = {n}",
        .by_name_array =
            "\r\nddIsOnuSpecialPortTypeSupportedByName err! pOnuSpecialPortTypeArray = 0x0",
        .by_name_length =
            "\r\nddIsOnuSpecialPortTypeSupportedByName err! ulNameLen = {n}, ulSupportedOnuSpecialPortTypeNumIndex = {place}",
        .unknown_type = -15,
        .unknown_clears_index = true,
        .by_type_null =
            "\r\nddIsOnuPonTypeSupportedByType err! pIsSupported = {out0}, pIndex = {out1}",
        .by_type_count =
            "\r\nddIsOnuSpecialPortTypeSupportedByType err! ulSupportedOnuSpecialPortTypeNum = {n}",
        .by_type_array =
            "\r\nddIsOnuSpecialPortTypeSupportedByType err! pOnuSpecialPortTypeArray = 0x0",
        .by_type_length = nullptr,
        .copies_aloud = true,
        .copy_null =
            "\r\nddCreateOneOnuSpecialPortObjByName err! strOnuSpecialPortTypeName = {name}, pOnuSpecialPortTypeObjAddr = {out0}",
        .copy_too_long =
            "\r\nddCreateOneOnuSpecialPortObjByName err! strlen(strOnuSpecialPortTypeName) = {n}",
        .copy_lookup =
            "\r\nddCreateOneOnuSpecialPortObjByName->ddIsOnuSpecialPortTypeSupportedByName err! iResult = {code}, strOnuSpecialPortTypeName = {name}, ulIndex = {n}",
        .copy_unsupported =
            "\r\nddCreateOneOnuSpecialPortObjByName err! strOnuSpecialPortTypeName = {name}, IsSupported = 0",
        .copy_index =
            "\r\nddCreateOneOnuSpecialPortObjByName err! strOnuSpecialPortTypeName = {name}, ulIndex = {n}",
        .copy_no_memory =
            "\r\nddCreateOneOnuSpecialPortObjByName, pstOnuSpecialPortInformationOut = 0x0, ulIndex = {n}",
        .copy_empty_place =
            "\r\nddCreateOneOnuSpecialPortObjByName, pstOnuSpecialPortInformationSave = 0x0, ulIndex = {n}",
    },
};

}  // namespace test
