// Queries about the ONU catalog.
#include "sys_context/onu.h"

#include "host/queries.h"
#include "host/query_row.h"

namespace sysctx {

std::vector<Query> OnuQueries() {
  return {
      QUERY(ddIsOnuPonTypeSupportedByName, TextIn("strOnuPonTypeName"), Out("pIsSupported"),
            Out("pIndex")),
      QUERY(ddIsOnuLanTypeSupportedByName, TextIn("strOnuLanTypeName"), Out("pIsSupported"),
            Out("pIndex")),
      QUERY(ddIsOnuPotsTypeSupportedByName, TextIn("strOnuPotsTypeName"), Out("pIsSupported"),
            Out("pIndex")),
      QUERY(ddIsOnuSpecialPortTypeSupportedByName, TextIn("strOnuPortTypeName"),
            Out("pIsSupported"), Out("pIndex")),
      QUERY(ddIsOnuPonTypeSupportedByType, In("ulPonType"), Out("pIsSupported"), Out("pIndex")),
      QUERY(ddIsOnuLanTypeSupportedByType, In("ulLanType"), Out("pIsSupported"), Out("pIndex")),
      QUERY(ddIsOnuPotsTypeSupportedByType, In("ulPortType"), Out("pIsSupported"), Out("pIndex")),
      QUERY(ddIsOnuSpecialPortTypeSupportedByType, In("ulPortType"), Out("pIsSupported"),
            Out("pIndex")),
      QUERY(ddCreateOneOnuPonObjByName, TextIn("strOnuPonTypeName"), CopyOut("pOnuPonTypeObjAddr")),
      QUERY(ddCreateOneOnuLanObjByName, TextIn("strOnuLanTypeName"), CopyOut("pOnuLanTypeObjAddr")),
      QUERY(ddCreateOneOnuPotsObjByName, TextIn("strOnuPotsTypeName"),
            CopyOut("pOnuPotsTypeObjAddr")),
      QUERY(ddCreateOneOnuSpecialPortObjByName, TextIn("strOnuSpecialPortTypeName"),
            CopyOut("pOnuSpecialPortTypeObjAddr")),
      QUERY(ddCheckSupportedOnuTypeNum, Out("pulIsOk")),
      QUERY(ddGetOnuPonNumByType, In("ulOnuType"), Out("pulOnuPonNum")),
      QUERY(ddGetOnuLanPortNumByType, In("ulOnuType"), Out("pulOnuLanPortNum")),
      QUERY(ddGetOnuPotsPortNumByType, In("ulOnuType"), Out("pulOnuPotsPortNum")),
      QUERY(ddGetOnuSpecialPortAmount, In("ulOnuType"), Out("pulSpecialPortAmount")),
      QUERY(ddGetOnuSpecialPortNumByType, In("ulOnuType"), In("ulPortType"),
            Out("pulOnuSpecialPortNum")),
      QUERY(ddGetOnuPonPortTypeByType, In("ulOnuType"), In("ulPonNo"), Out("pulOnuPonType")),
      QUERY(ddGetOnuLanPortTypeByType, In("ulOnuType"), In("ulOnuLanNo"), Out("pulOnuLanPortType")),
      QUERY(ddGetOnuPotsPortTypeByType, In("ulOnuType"), In("ulOnuPotsNo"),
            Out("pulOnuPotsPortType")),
      QUERY(ddGetOnuSpecialPortTypeByPortNo, In("ulOnuType"), In("ulOnuSpecialPortNo"),
            Out("pulSpecialPortType")),
      QUERY(ddGetOnuSpecialPortTypeList, In("ulOnuType"), List("pulSpecialPortTypeArray"),
            In("ulArrayAmount"), Out("pulSpecialPortTypeAmount")),
      QUERY(ddGetOnuNameByType, In("ulOnuType"), TextOut("pcOnuName")),
      QUERY(ddGetOnuTypeByName, TextIn("strOnuName"), Out("pulOnuType")),
      QUERY(ddIsOnuSupportedByType, In("ulOnuType"), Out("pulIsSupported")),
      QUERY(ddGetAllSupportedOnuType, InOut("pulOnuTypeNum"), List("pulOnuTypeArray")),
      QUERY(ddGetSupportedOnuMaxLanNum, Out("pulSupportedOnuMaxLanNum")),
  };
}

}  // namespace sysctx
