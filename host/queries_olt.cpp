// Queries about the OLT equipment catalog.
#include "sys_context/olt.h"

#include "host/queries.h"
#include "host/query_row.h"

namespace sysctx {

std::vector<Query> OltQueries() {
  return {
      QUERY(ddIsOltPortTypeSupportedByName, TextIn("strOltPortTypeName"), Out("pIsSupported"),
            Out("pIndex")),
      QUERY(ddCreateOneOltPortObjByName, TextIn("strOltPortTypeName"),
            CopyOut("pulOltPortTypeObjAddr")),
      QUERY(ddGetOltPortSplittingRatioByType, In("ulPortType"), Out("pulSplittingRatio")),
      QUERY(ddGetMainBoardNameByType, In("ulType"), TextOut("pcBoardName")),
      QUERY(ddGetMainBoardTypeByName, TextIn("pcBoardName"), Out("pulBoardType")),
      QUERY(ddGetMainBoardObjByType, In("ulType"), RecordOut("pBoardTypeObjAddr")),
      QUERY(ddGetSpecialLogicPortToPhyPortObjByType, In("ulMainBoardType"), In("ulBoardType"),
            RecordOut("pLogicPortToPhyPortTypeObjAddr")),
      QUERY(ddGetSwitchChipLogicPortFromPhyPort, In("ulPhyPortIn"),
            RecordIn("pstChipLogicPortToPhyPortType"), List("pulLogicPort"),
            Out("pulLogicPortNum")),
      QUERY(ddGetSwitchChipPhyPortFromLogicPort, In("ulLogicPortIn"),
            RecordIn("pstChipLogicPortToPhyPortType"), Out("pulPhyPort")),
      QUERY(ddIsBoardTypeSupportedByName, TextIn("strBoardTypeSection"), Out("pIsSupported"),
            Out("pIndex")),
      QUERY(ddGetBoardNameByType, In("ulBoardType"), TextOut("pcBoardName")),
      QUERY(ddGetBoardTypeByName, TextIn("pcBoardName"), Out("pulBoardType")),
      QUERY(ddGetBoardServePortAmountByType, In("ulBoardType"), Out("pulBoardServePortAmount")),
      QUERY(ddGetBoardSpecialPortNumByType, In("ulBoardType"), In("ulPortType"),
            Out("pulBoardSpecialPortNum")),
      QUERY(ddGetBoardTotalSpecialPortNum, In("ulBoardType"), Out("pulBoardSpecialPortNum")),
      QUERY(ddGetPortTypeByBoardType, In("ulBoardType"), In("ulPortNo"), Out("pulPortType")),
      QUERY(ddGetSpecialPortTypeByBoardType, In("ulBoardType"), In("ulSpcPortNo"),
            Out("pulPortType")),
      QUERY(ddGetPonMaxOnuNumByBoardType, In("ulBoardType"), In("ulPonNo"),
            Out("pulMaxOnuNumPerPon")),
      QUERY(ddGetSupportedBoardMaxPonNum, Out("pulSupportedBoardMaxPonNum")),
      QUERY(ddGetBoardTotailPortAmountByType, In("ulBoardType"), Out("pulBoardServePortAmount")),
      QUERY(ddGetBoardAllPortTypesByType, In("ulBoardType"), List("pulPortTypeList"),
            In("ulArrayAmount"), Out("pulPortTypeNum")),
      QUERY(ddGetBoardOneTypePortsByType, In("ulBoardType"), In("ulPortType"), Out("pulPortNum")),
      QUERY(ddGetCardTypeByName, TextIn("pcCardName"), Out("pulCardType")),
      QUERY(ddGetCardTypeByNocaseName, TextIn("pcCardName"), Out("pulCardType")),
      QUERY(ddGetCardNameByType, In("ulBoardType"), TextOut("pcCardName")),
  };
}

}  // namespace sysctx
