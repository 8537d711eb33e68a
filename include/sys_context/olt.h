/*
 * The OLT equipment catalog: OLT port types, main boards with the port maps of
 * their switch chips, service boards, and the names of cards.
 *
 * The tables are loaded once, by ddInit (context.h), and then only read; they
 * belong to the library and stay for the life of the process. Hosts may read
 * and fill them. The loaders and the functions that build records run on the
 * thread that calls ddInit; the queries may be asked from any thread after it.
 *
 * Names are compared exactly, case included; the first record of a type or name
 * answers, and one whose stored name is longer than its field has no name. An
 * output is untouched by a failure, unless its function says otherwise. The
 * messages of loaders are always printed on the console, those of queries while
 * ddDebugPrint is set; where it is the other way, the function says so.
 */
#ifndef SYS_CONTEXT_OLT_H
#define SYS_CONTEXT_OLT_H

#include "sys_context/api.h"

SYS_CONTEXT_BEGIN

/* ---- OLT port types ------------------------------------------------------ */

#define MAX_OLT_PORT_TYPE_NUM 30
#define DD_MAX_ONU_NUM_PER_PON 512

/* Bytes of a port type's name field. */
#define MAX_OLT_PORT_NAME_LEN 60

/* One kind of port that an OLT board can carry. */
typedef struct OltPortInformation {
  uint32_t ulPortType;
  uint32_t ulNameLen; /* with the terminator, 1..60 */
  char acName[MAX_OLT_PORT_NAME_LEN];
  uint32_t ulSplittingRatio; /* ONUs that one port may serve, 0..512 */
  uint32_t ulLink;           /* reserved, 0 */
} OltPortInformation;

typedef struct SupportedOltPortType {
  uint32_t ulSupportedOltPortTypeNum;     /* records held, 0..30 */
  OltPortInformation** pOltPortTypeArray; /* a place for each type announced, null behind
                                             the last record; null when none was */
} SupportedOltPortType;

extern SYS_CONTEXT_API SupportedOltPortType gstSupportedOltPortType;

/*
 * Loads gstSupportedOltPortType from the file at path `strFileName`. A port type
 * that cannot be read is reported and left out; that is no failure, nor is an
 * empty list.
 * Returns 0; -2 for a null path; -11 when more than 30 types are announced; -27
 * without memory; -31 when their number cannot be read. The count is 0 after a
 * failure. A second load forgets the first one's records without releasing them.
 */
SYS_CONTEXT_API int32_t ddReadAllSupportedOltPortInformation(const char* strFileName);

/*
 * Reads one port type from its own section.
 *   pOltPortTypeObjAddr  receives the record, the caller's to free(). Null after a
 *                        failure, but untouched on -2 and when the splitting
 *                        ratio cannot be had
 * Returns 0; -2 for a null pointer; -27 without memory; -31 when a key cannot
 * be read; -33 when the name has more than 59 characters; -34 when the ratio is
 * above 512.
 */
SYS_CONTEXT_API int32_t
ddReadOneSupportedOltPortInformation(const char* strFileName, const char* strOltPortTypeSection,
                                     OltPortInformation** pOltPortTypeObjAddr);

/*
 * Is there a port type of this name?
 *   pIsSupported  receives 1 or 0; 0 also after a failure other than -2
 *   pIndex        receives its place in the array; 0 after a failure other than -2
 * Returns 0 when there is, -32 when not; -2 for a null pointer; -11 without an
 * array or with a corrupt count; -33 when the name, or that of a record met on the
 * way, is longer than its field.
 */
SYS_CONTEXT_API int32_t ddIsOltPortTypeSupportedByName(const char* strOltPortTypeName,
                                                       uint32_t* pIsSupported, uint32_t* pIndex);

/*
 * Makes a copy of the port type of this name. Its messages are always printed.
 *   pulOltPortTypeObjAddr  receives the copy, the caller's to free(); null after
 *                          a failure other than -2
 * Returns 0; -2 for a null pointer; -27 without memory; otherwise as
 * ddIsOltPortTypeSupportedByName.
 */
SYS_CONTEXT_API int32_t ddCreateOneOltPortObjByName(const char* strOltPortTypeName,
                                                    OltPortInformation** pulOltPortTypeObjAddr);

/*
 * The splitting ratio of a port type. A stored ratio above 512 is reported, and
 * given all the same.
 *   pulSplittingRatio  0 after a failure other than -2
 * Returns 0; -2 for a null pointer; -10 without an array; -11 with a corrupt
 * count; -12 when there is no such type.
 */
SYS_CONTEXT_API int32_t ddGetOltPortSplittingRatioByType(uint32_t ulPortType,
                                                         uint32_t* pulSplittingRatio);

/* ---- Main boards ---------------------------------------------------------- */

/* Of main boards, and of service boards as well. */
#define MAX_OLT_BOARD_TYPE_NUM 100

#define MAX_SWITCH_CHIP_LOGIC_PORT_NUM 1280
#define MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM 20

/* Bytes of a board's name field and of the buffer a name is copied into. */
#define MAX_BOARD_NAME_LEN 60

/* A logic port of the switch chip and the physical port it is wired to. */
typedef struct PortPair {
  uint16_t usLogicPort; /* kept in 8 bits: 255 is followed by 0 */
  uint16_t usPhyPort;   /* 0: wired to nothing */
} PortPair;

/* How the logic ports are wired while a certain uplink board sits beside the
 * main board. */
typedef struct PortMap {
  uint32_t ulBoardNameLen; /* with the terminator, at most 60 */
  char acBoardName[MAX_BOARD_NAME_LEN];
  PortPair astPortPair[MAX_SWITCH_CHIP_LOGIC_PORT_NUM]; /* 0/0 behind the board's ports */
} PortMap;

typedef struct MainBoardInformation {
  uint32_t ulType;
  uint32_t ulSubType; /* 0 */
  uint32_t ulNameLen; /* with the terminator, 1..60 */
  char acName[MAX_BOARD_NAME_LEN];
  uint32_t ulSwitchChipLogicPortNum;                       /* pairs in use in every map, 0..1280 */
  uint32_t ulChipLogicPortToPhyPortTypeNum;                /* maps in use, 1..20 */
  PortMap astPortMap[MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM]; /* first the default map, named
                                                              "NoSpecialUplinkBoard" */
} MainBoardInformation;

typedef struct SupportedMainBoardType {
  uint32_t ulSupportedBoardTypeNum;       /* records held, 0..100 */
  MainBoardInformation** pBoardTypeArray; /* a place for each board announced, null behind
                                             the last record; null when none was */
} SupportedMainBoardType;

extern SYS_CONTEXT_API SupportedMainBoardType gstSupportedMainBoardType;

/*
 * Loads gstSupportedMainBoardType. A board that cannot be read is reported and
 * left out; that is no failure, nor is an empty list. Each record takes its full
 * size, 103,760 bytes, whatever it uses of it.
 * Returns 0; -2 for a null path; -19 when more than 100 boards are announced; -27
 * without memory; -31 when their number cannot be read. The count is 0 after a
 * failure. A second load forgets the first one's records without releasing them.
 */
SYS_CONTEXT_API int32_t ddReadAllSupportedMainBoardInformation(const char* strFileName);

/*
 * Reads one main board, with its maps, from its own section.
 *   pBoardTypeObjAddr  receives the record, the caller's to free(); null after a
 *                      failure other than -2
 * Returns 0; -2 for a null pointer; -27 without memory; -31 when a key cannot be
 * read; -33 when the name has more than 59 characters; or what
 * ddReadAllSwitchChipLogicPortToPhyPort returns.
 */
SYS_CONTEXT_API int32_t
ddReadOneSupportedMainBoardInformation(const char* strFileName, const char* strBoardTypeSection,
                                       MainBoardInformation** pBoardTypeObjAddr);

/*
 * Reads the number of logic ports and all maps of a main board into its record.
 * Returns 0; -2 for a null pointer; -24 when there are more than 1280 ports; -26
 * when there are more than 19 special maps; -31 when a key cannot be read; -32
 * when the board name of a special map has more than 59 characters.
 */
SYS_CONTEXT_API int32_t
ddReadAllSwitchChipLogicPortToPhyPort(const char* strFileName, const char* strBoardTypeSection,
                                      MainBoardInformation* pstMainBoardInformation);

/*
 * Reads the special maps, of `ulSwitchChipLogicPortNum` ports each (at most 1280,
 * which is not checked), behind the default map, and adds their number to the
 * record's. A failure part-way leaves the number alone and the maps read so far in
 * place. Returns as the function above, but never -24.
 */
SYS_CONTEXT_API int32_t ddReadSpecialSwitchChipLogicPortToPhyPort(
    const char* strFileName, const char* strBoardTypeSection, uint32_t ulSwitchChipLogicPortNum,
    MainBoardInformation* pstMainBoardInformation);

/*
 * Reads the pairs of one map; their keys are the prefix and the numbers from 1.
 *   pstChipLogicPortToPhyPort  room for `ulSwitchChipLogicPortNum` pairs
 * Returns 0; -2 for a null pointer; -31 when a key cannot be read: the pairs in
 * front of it are stored.
 */
SYS_CONTEXT_API int32_t ddReadOneSwitchChipLogicPortToPhyPort(
    const char* strFileName, const char* strBoardTypeSection, uint32_t ulSwitchChipLogicPortNum,
    const char* strSwitchChipLogicPortKeyIn, PortPair* pstChipLogicPortToPhyPort);

/*
 * Main boards by type and by name. All return -2 for a null pointer, -19 when
 * the table's count is corrupt, -10 when there is no array.
 */

/* pcBoardName: at least 60 bytes. -18 when no main board has this type. */
SYS_CONTEXT_API int32_t ddGetMainBoardNameByType(uint32_t ulType, char* pcBoardName);

/* -32 when no main board has this name. */
SYS_CONTEXT_API int32_t ddGetMainBoardTypeByName(const char* pcBoardName, uint32_t* pulBoardType);

/* Gives the table's own record, to be read only. -18 when no main board has this
 * type. The output is null then, and on -19. */
SYS_CONTEXT_API int32_t ddGetMainBoardObjByType(uint32_t ulType,
                                                MainBoardInformation** pBoardTypeObjAddr);

/*
 * The map of a main board that is special to a service board.
 *   pLogicPortToPhyPortTypeObjAddr  receives the table's own map, to be read only,
 *                                   never the default one; null after a failure
 *                                   other than -2
 * Returns 0; -2 for a null pointer; -1 when no such main board can be found, for
 * whatever reason; -24 when its record is corrupt; -18 when it has no such map: its
 * default map, the first of the record, applies then. Otherwise what
 * ddGetBoardNameByType returns for the service board, -18 as well if there is none.
 */
SYS_CONTEXT_API int32_t ddGetSpecialLogicPortToPhyPortObjByType(
    uint32_t ulMainBoardType, uint32_t ulBoardType, PortMap** pLogicPortToPhyPortTypeObjAddr);

/*
 * The logic ports of a map that are wired to a physical port, in the map's order.
 * All 1280 pairs are looked at, so physical port 0 also gives a 0 for every pair
 * that is not in use.
 *   pulLogicPort     room for 1280 numbers, of 8 bits each; after -23 the first is 0
 *   pulLogicPortNum  receives how many there are, possibly 0; must not be null
 * Returns 0; -2 when the map or the array is null; -23 for a port above 1280.
 */
SYS_CONTEXT_API int32_t ddGetSwitchChipLogicPortFromPhyPort(
    uint32_t ulPhyPortIn, const PortMap* pstChipLogicPortToPhyPortType, uint32_t* pulLogicPort,
    uint32_t* pulLogicPortNum);

/*
 * The physical port that a logic port is wired to. Logic ports are compared by
 * their low 8 bits; the first pair answers.
 *   pulPhyPort  0 when the port is above 1280
 * Returns 0; -2 for a null pointer; -22 when the map does not hold the port; -23
 * when it is wired to nothing, or above 1280.
 */
SYS_CONTEXT_API int32_t ddGetSwitchChipPhyPortFromLogicPort(
    uint32_t ulLogicPortIn, const PortMap* pstChipLogicPortToPhyPortType, uint32_t* pulPhyPort);

/* ---- Service boards ------------------------------------------------------- */

#define MAX_OLT_PORT_NUM_PER_BOARD 128
#define MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD 128

/* A service board with its ports; port n is entry n-1 of its array. */
typedef struct BoardInformation {
  uint32_t ulType;
  uint32_t ulSubType; /* 0 */
  uint32_t ulNameLen; /* with the terminator, 1..60 */
  char acName[MAX_BOARD_NAME_LEN];
  uint32_t ulTotalServePortNum;           /* 0..128 */
  OltPortInformation** pPortArray;        /* a copy of its port type for each port; null without */
  uint32_t ulTotalSpecialPortNum;         /* 0..128 */
  OltPortInformation** pSpecialPortArray; /* likewise */
  uint32_t ulReserved;                    /* 0 */
} BoardInformation;

typedef struct SupportedBoardType {
  uint32_t ulSupportedBoardTypeNum;    /* records held, 0..100 */
  BoardInformation** pBoardTypeArray;  /* a place for each board announced, null behind the
                                          last record; null when none was */
  uint32_t ulSupportedBoardMaxPonType; /* the PON board with most serving ports, 0 without */
  uint32_t ulSupportedBoardMaxPonNum;  /* its serving ports, 0 without */
} SupportedBoardType;

extern SYS_CONTEXT_API SupportedBoardType gstSupportedBoardType;

/*
 * Loads gstSupportedBoardType; the port types must be loaded. The boards'
 * sections stand behind the list section and in its order. A board that cannot be
 * read is reported and left out; that is no failure, nor is an empty list. When a
 * listed section, or its "Type", is not found, the load ends and the boards read
 * so far are lost to the count.
 * Returns 0; -2 for a null path; -19 when more than 100 boards are announced; -27
 * without memory; -31 when their number or the type of one cannot be read. The
 * count is 0 after a failure, but untouched on -27 and by a missing type. The array
 * is null then, or the new one: set the count to 0 before a second load. That
 * forgets the first one's records without releasing them.
 */
SYS_CONTEXT_API int32_t ddReadAllSupportedBoardInformation(const char* strFileName);

/*
 * Reads one board, with its ports, from its own section.
 *   iOffsetIn          byte position at which the search for the section begins: 0, or
 *                      what CFG_get_key_offset gave (cfgfile.h)
 *   pBoardTypeObjAddr  receives the record, for ddFreeOneBoardAllObj; null after a
 *                      failure, but untouched on -2 and by a negative position
 * Returns 0; -2 for a null pointer; -27 without memory; -31 for a negative position
 * or when a key cannot be read; -33 when the name has more than 59 characters; or
 * what the two functions below return.
 */
SYS_CONTEXT_API int32_t ddReadOneSupportedBoardInformation(const char* strFileName,
                                                           const char* strBoardTypeSection,
                                                           int32_t iOffsetIn,
                                                           BoardInformation** pBoardTypeObjAddr);

/*
 * Read the serving and the special ports of a board into its record. Ports that are
 * in it already are not released: their array stays when the number of ports is 0 or
 * cannot be had, and is forgotten otherwise. After a failure other than -2 and a
 * negative position the count of ports is 0; but when a special port cannot be had,
 * it is the count of serving ports that is cleared.
 * Return 0; -1 when a port cannot be had; -2 for a null pointer; -13 when there
 * are more than 128 ports; -27 without memory; -31 for a negative position or when
 * the number of ports cannot be read.
 */
SYS_CONTEXT_API int32_t ddAddSupportedServePortToBoardObj(const char* strFileName,
                                                          const char* strBoardTypeSection,
                                                          int32_t iOffsetIn,
                                                          BoardInformation* pstBoardInformation);
SYS_CONTEXT_API int32_t ddAddSupportedSpecialPortToBoardObj(const char* strFileName,
                                                            const char* strBoardTypeSection,
                                                            int32_t iOffsetIn,
                                                            BoardInformation* pstBoardInformation);

/*
 * Releases a board's record, its arrays and its ports. The ports of a list of 128
 * and more are not released.
 * Returns 0; -2 for a null pointer, which is always reported.
 */
SYS_CONTEXT_API int32_t ddFreeOneBoardAllObj(BoardInformation* pstBoardInformation);

/*
 * Finds the PON board with most serving ports, the first of several, and stores
 * its type and number of ports in gstSupportedBoardType. The loader calls it; its
 * messages depend on ddDebugPrint.
 * Returns 0; -10 without an array; -19 when the table's count is corrupt.
 */
SYS_CONTEXT_API int32_t ddFindSupportedBoardMaxPonNum(void);

/* ---- Questions about boards ----------------------------------------------- */

/*
 * All return -2 for a null pointer, -19 when the table's count is corrupt, -10 when
 * there is no array, -18 when there is no such board, unless they say otherwise.
 * Ports are counted from 1.
 */

/*
 * Is there a service board of this name? (Main boards are not asked.)
 *   pIsSupported  receives 1 or 0; 0 also after a failure other than -2
 *   pIndex        receives its place in the array; 0 after a failure other than -2
 * Returns 0 when there is, -32 when not; -33 when the name, or that of a record met
 * on the way, is longer than its field.
 */
SYS_CONTEXT_API int32_t ddIsBoardTypeSupportedByName(const char* strBoardTypeSection,
                                                     uint32_t* pIsSupported, uint32_t* pIndex);

/* Name and type of a board; main boards are asked first. pcBoardName: at least 60
 * bytes. The second returns -32 when no board has this name. */
SYS_CONTEXT_API int32_t ddGetBoardNameByType(uint32_t ulBoardType, char* pcBoardName);
SYS_CONTEXT_API int32_t ddGetBoardTypeByName(const char* pcBoardName, uint32_t* pulBoardType);

/* The number of serving ports. The output is 0 on -18. */
SYS_CONTEXT_API int32_t ddGetBoardServePortAmountByType(uint32_t ulBoardType,
                                                        uint32_t* pulBoardServePortAmount);

/* The number of special ports of one port type. -13 when the board's special
 * ports are corrupt. */
SYS_CONTEXT_API int32_t ddGetBoardSpecialPortNumByType(uint32_t ulBoardType, uint32_t ulPortType,
                                                       uint32_t* pulBoardSpecialPortNum);

/* The number of special ports. -13 when it is above 128. */
SYS_CONTEXT_API int32_t ddGetBoardTotalSpecialPortNum(uint32_t ulBoardType,
                                                      uint32_t* pulBoardSpecialPortNum);

/* The port type of a serving port, of a special port. -13 when the board has no
 * such port or a corrupt number of them, and for 0 and ports above 128 whatever
 * boards there are; -2 also when the port's record is missing. The output is 0 on
 * -18. */
SYS_CONTEXT_API int32_t ddGetPortTypeByBoardType(uint32_t ulBoardType, uint32_t ulPortNo,
                                                 uint32_t* pulPortType);
SYS_CONTEXT_API int32_t ddGetSpecialPortTypeByBoardType(uint32_t ulBoardType, uint32_t ulSpcPortNo,
                                                        uint32_t* pulPortType);

/* How many ONUs a serving port may serve: the splitting ratio of its type. Returns
 * the codes of ddGetPortTypeByBoardType and ddGetOltPortSplittingRatioByType; so -10
 * is a missing array of boards or of port types. */
SYS_CONTEXT_API int32_t ddGetPonMaxOnuNumByBoardType(uint32_t ulBoardType, uint32_t ulPonNo,
                                                     uint32_t* pulMaxOnuNumPerPon);

/* The most serving ports that any PON board has. -17 when none is known; there are
 * no other codes but -2. */
SYS_CONTEXT_API int32_t ddGetSupportedBoardMaxPonNum(uint32_t* pulSupportedBoardMaxPonNum);

/* Never tells a total: behind the checks, it gives 0 and returns -18 whatever boards
 * there are. */
SYS_CONTEXT_API int32_t ddGetBoardTotailPortAmountByType(uint32_t ulBoardType,
                                                         uint32_t* pulBoardServePortAmount);

/*
 * The port types of a board, each once, in the order in which they appear; serving
 * ports come before special ports. A port without a record is passed over.
 *   pulPortTypeList  room for `ulArrayAmount` types
 *   pulPortTypeNum   receives how many were stored; 0 on -18
 * Returns -9 when there are more types than room; the list is then full.
 */
SYS_CONTEXT_API int32_t ddGetBoardAllPortTypesByType(uint32_t ulBoardType,
                                                     uint32_t* pulPortTypeList,
                                                     uint32_t ulArrayAmount,
                                                     uint32_t* pulPortTypeNum);

/* The number of serving ports of one port type or, if there is none, of special
 * ports. -10 also when a port's record is missing. The output is 0 on -18, and when the
 * missing record is a special port's. */
SYS_CONTEXT_API int32_t ddGetBoardOneTypePortsByType(uint32_t ulBoardType, uint32_t ulPortType,
                                                     uint32_t* pulPortNum);

/* ---- Cards ---------------------------------------------------------------- */

/*
 * A card is a main board or a service board; main boards are asked first.
 */

/* -2 for a null pointer; -32 when no card has this name. */
SYS_CONTEXT_API int32_t ddGetCardTypeByName(const char* pcCardName, uint32_t* pulCardType);

/* The same for the name in upper case. Only the argument is converted: a card is
 * found when the definition file gives its name in upper case. -33 when the name
 * has more than 59 characters. */
SYS_CONTEXT_API int32_t ddGetCardTypeByNocaseName(const char* pcCardName, uint32_t* pulCardType);

/* pcCardName: at least 60 bytes. -2 for a null pointer; -18 when no card has this
 * type. */
SYS_CONTEXT_API int32_t ddGetCardNameByType(uint32_t ulBoardType, char* pcCardName);

SYS_CONTEXT_END

#endif
