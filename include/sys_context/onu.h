/*
 * The ONU catalog: the types of the ports that an ONU can carry, and the types of
 * ONU with their ports. What the definition file does not know of ONU types is asked
 * of the platform's ONU type service (platform.h).
 *
 * The tables are loaded once, by ddInit (context.h), and then only read; they
 * belong to the library and stay for the life of the process. Hosts may read
 * and fill them. The loaders and the functions that build or release records run on
 * the thread that calls ddInit; the queries may be asked from any thread after it,
 * and call the platform functions on that thread.
 *
 * Names are compared exactly, case included; the first record of a type or name
 * answers. An output is untouched by a failure, unless its function says otherwise.
 * The messages of loaders are always printed on the console, those of queries while
 * ddDebugPrint is set; where it is the other way, the function says so.
 */
#ifndef SYS_CONTEXT_ONU_H
#define SYS_CONTEXT_ONU_H

#include "sys_context/api.h"

SYS_CONTEXT_BEGIN

/* ---- ONU port types -------------------------------------------------------- */

/* Of each of the four catalogs. */
#define MAX_ONU_PON_TYPE_NUM 30
#define MAX_ONU_LAN_TYPE_NUM 30
#define MAX_ONU_POTS_TYPE_NUM 30
#define MAX_ONU_SPECIAL_PORT_TYPE_NUM 30

/* Bytes of the name field of a port type and of an ONU type, and of the buffer a name
 * is copied into. */
#define MAX_ONU_NAME_LEN 60

/* One kind of port, in any of the catalogs. */
typedef struct OnuPortTypeInformation {
  union { /* the same number; its name goes by the catalog */
    uint32_t ulPonType;
    uint32_t ulLanType;
    uint32_t ulPortType; /* POTS and special ports */
  };
  uint32_t ulNameLen; /* with the terminator, 1..60 */
  char acName[MAX_ONU_NAME_LEN];
} OnuPortTypeInformation;

/* The catalogs: the records held, 0..30, and a place for each type announced, null
 * behind the last record. There is no array when none was announced. */
typedef struct SupportedOnuPonType {
  uint32_t ulSupportedOnuPonTypeNum;
  OnuPortTypeInformation** pOnuPonTypeArray;
} SupportedOnuPonType;

typedef struct SupportedOnuLanType {
  uint32_t ulSupportedOnuLanTypeNum;
  OnuPortTypeInformation** pOnuLanTypeArray;
} SupportedOnuLanType;

typedef struct SupportedOnuPotsType {
  uint32_t ulSupportedOnuPotsTypeNum;
  OnuPortTypeInformation** pOnuPotsTypeArray;
} SupportedOnuPotsType;

typedef struct SupportedOnuSpecialPortType {
  uint32_t ulSupportedOnuSpecialPortTypeNum;
  OnuPortTypeInformation** pOnuSpecialPortTypeArray;
} SupportedOnuSpecialPortType;

extern SYS_CONTEXT_API SupportedOnuPonType gstSupportedOnuPonType;
extern SYS_CONTEXT_API SupportedOnuLanType gstSupportedOnuLanType;
extern SYS_CONTEXT_API SupportedOnuPotsType gstSupportedOnuPotsType;
extern SYS_CONTEXT_API SupportedOnuSpecialPortType gstSupportedOnuSpecialPortType;

/*
 * Load a catalog from the file at path `strFileName`. A port type that cannot be
 * read is reported and left out; that is no failure, nor is an empty list.
 * Return 0; -2 for a null path; -16 when more than 30 types are announced; -27
 * without memory; -31 when their number cannot be read. The count is 0 after a
 * failure. A second load forgets the first one's records without releasing them.
 */
SYS_CONTEXT_API int32_t ddReadAllSupportedOnuPonInformation(const char* strFileName);
SYS_CONTEXT_API int32_t ddReadAllSupportedOnuLanInformation(const char* strFileName);
SYS_CONTEXT_API int32_t ddReadAllSupportedOnuPotsInformation(const char* strFileName);
SYS_CONTEXT_API int32_t ddReadAllSupportedOnuSpecialPortInformation(const char* strFileName);

/*
 * Read one port type from its own section.
 *   last argument  receives the record, the caller's to free(); null after a failure
 *                  other than -2
 * Return 0; -2 for a null pointer; -27 without memory; -31 when a key cannot be
 * read; -33 when the name has more than 59 characters.
 */
SYS_CONTEXT_API int32_t
ddReadOneSupportedOnuPonInformation(const char* strFileName, const char* strOnuPonTypeSection,
                                    OnuPortTypeInformation** pOnuPonTypeObjAddr);
SYS_CONTEXT_API int32_t
ddReadOneSupportedOnuLanInformation(const char* strFileName, const char* strOnuLanTypeSection,
                                    OnuPortTypeInformation** pOnuLanTypeObjAddr);
SYS_CONTEXT_API int32_t
ddReadOneSupportedOnuPotsInformation(const char* strFileName, const char* strOnuPotsTypeSection,
                                     OnuPortTypeInformation** pOnuPotsTypeObjAddr);
SYS_CONTEXT_API int32_t ddReadOneSupportedOnuSpecialPortInformation(
    const char* strFileName, const char* strOnuSpecialPortTypeSection,
    OnuPortTypeInformation** pOnuSpecialPortTypeObjAddr);

/*
 * Is there a port type of this name?
 *   pIsSupported  receives 1 or 0; 0 also after a failure other than -2
 *   pIndex        receives its place in the array; 0 after a failure other than -2
 * Return 0 when there is, -32 when not; -2 for a null pointer; -10 without an
 * array; -16 when the count is corrupt; -33 when the name, or that of a record met on
 * the way, is longer than its field.
 */
SYS_CONTEXT_API int32_t ddIsOnuPonTypeSupportedByName(const char* strOnuPonTypeName,
                                                      uint32_t* pIsSupported, uint32_t* pIndex);
SYS_CONTEXT_API int32_t ddIsOnuLanTypeSupportedByName(const char* strOnuLanTypeName,
                                                      uint32_t* pIsSupported, uint32_t* pIndex);
SYS_CONTEXT_API int32_t ddIsOnuPotsTypeSupportedByName(const char* strOnuPotsTypeName,
                                                       uint32_t* pIsSupported, uint32_t* pIndex);
SYS_CONTEXT_API int32_t ddIsOnuSpecialPortTypeSupportedByName(const char* strOnuPortTypeName,
                                                              uint32_t* pIsSupported,
                                                              uint32_t* pIndex);

/*
 * Is there a port type of this number? Outputs as above, but when there is none,
 * LAN and POTS leave the index as it was.
 * Return 0 when there is; when not, -15 for PON and special ports and -32 for LAN
 * and POTS; -2 for a null pointer; -10 without an array; -16 when the count is
 * corrupt; LAN and POTS -33 when the name of a record met on the way is longer than
 * its field.
 */
SYS_CONTEXT_API int32_t ddIsOnuPonTypeSupportedByType(uint32_t ulPonType, uint32_t* pIsSupported,
                                                      uint32_t* pIndex);
SYS_CONTEXT_API int32_t ddIsOnuLanTypeSupportedByType(uint32_t ulLanType, uint32_t* pIsSupported,
                                                      uint32_t* pIndex);
SYS_CONTEXT_API int32_t ddIsOnuPotsTypeSupportedByType(uint32_t ulPortType, uint32_t* pIsSupported,
                                                       uint32_t* pIndex);
SYS_CONTEXT_API int32_t ddIsOnuSpecialPortTypeSupportedByType(uint32_t ulPortType,
                                                              uint32_t* pIsSupported,
                                                              uint32_t* pIndex);

/*
 * Make a copy of the port type of this name. Their messages are always printed, but
 * those of the PON ports while ddDebugPrint is set.
 *   last argument  receives the copy, the caller's to free(); null after a failure
 *                  other than a null pointer's -2
 * Return 0; -2 for a null pointer, and when the table's place is empty; -27 without
 * memory; otherwise as the lookups by name.
 */
SYS_CONTEXT_API int32_t ddCreateOneOnuPonObjByName(const char* strOnuPonTypeName,
                                                   OnuPortTypeInformation** pOnuPonTypeObjAddr);
SYS_CONTEXT_API int32_t ddCreateOneOnuLanObjByName(const char* strOnuLanTypeName,
                                                   OnuPortTypeInformation** pOnuLanTypeObjAddr);
SYS_CONTEXT_API int32_t ddCreateOneOnuPotsObjByName(const char* strOnuPotsTypeName,
                                                    OnuPortTypeInformation** pOnuPotsTypeObjAddr);
SYS_CONTEXT_API int32_t ddCreateOneOnuSpecialPortObjByName(
    const char* strOnuSpecialPortTypeName, OnuPortTypeInformation** pOnuSpecialPortTypeObjAddr);

/* ---- ONU types --------------------------------------------------------------- */

#define MAX_ONU_TYPE_NUM 200
#define MAX_ONU_PON_NUM_PER_ONU 5
#define MAX_ONU_LAN_NUM_PER_ONU 100
#define MAX_ONU_POTS_NUM_PER_ONU 100
#define MAX_ONU_SPECIAL_PORT_NUM_PER_ONU 100

/* A type of ONU. Its arrays hold a copy of its port type for each port; port n is
 * entry n-1. */
typedef struct OnuInformation {
  uint32_t ulOnuType;
  uint32_t ulNameLen; /* with the terminator, 1..60 */
  char acName[MAX_ONU_NAME_LEN];
  uint32_t ulTotalPonNum; /* 1..5 */
  OnuPortTypeInformation** pOnuPonArray;
  uint32_t ulTotalLanPortNum;                /* 0..100 */
  OnuPortTypeInformation** pOnuLanPortArray; /* null without ports, as the next two */
  uint32_t ulTotalPotsNum;                   /* 0..100 */
  OnuPortTypeInformation** pOnuPotsPortArray;
  uint32_t ulTotalSpecialPortNum; /* 0..100 */
  OnuPortTypeInformation** pOnuSpecialPortArray;
} OnuInformation;

typedef struct SupportedOnuType {
  uint32_t ulSupportedOnuTypeNum;       /* records held, 0..200 */
  OnuInformation** pOnuTypeArray;       /* a place for each type announced, null behind
                                           the last record; null when none was */
  uint32_t ulSupportedOnuMaxLanOnuType; /* the type with most LAN ports, 0 without */
  uint32_t ulSupportedOnuMaxLanNum;     /* its LAN ports, 0 without */
} SupportedOnuType;

extern SYS_CONTEXT_API SupportedOnuType gstSupportedOnuType;

/*
 * Loads gstSupportedOnuType; the port types must be loaded. The ONU types' sections
 * stand behind the list section and in its order. An ONU type that cannot be read is
 * reported and left out; that is no failure, nor is an empty list. When a listed
 * section, or its "Type", is not found, the load ends and the ONU types read so far
 * are lost to the count.
 * Returns 0; -2 for a null path; -21 when more than 200 types are announced; -27
 * without memory, and when types are announced but there is no array of LAN port types;
 * -31 when their number or the type of one cannot be read. The count is 0 after a failure.
 * Two failures leave more behind:
 *   -27             the array is null
 *   a missing type  the count is as it was before, the array new and partly filled: set
 *                   the count to 0 before a query or a second load
 * The most LAN ports are looked for at the end only: both fields are untouched by a
 * failure and an empty list. A second load forgets the first one's records without
 * releasing them.
 */
SYS_CONTEXT_API int32_t ddReadAllSupportedOnuInformation(const char* strFileName);

/*
 * Reads one ONU type, with its ports, from its own section.
 *   iOffsetIn       byte position at which the search for the section begins: 0, or
 *                   what CFG_get_key_offset gave (cfgfile.h)
 *   pOnuTypeObjAddr receives the record, for ddFreeOneOnuAllObj; null after a
 *                   failure, but untouched on a null pointer's -2 and by a negative
 *                   position
 * Returns 0; -2 for a null pointer; -27 without memory; -31 for a negative position
 * or when a key cannot be read; -33 when the name has more than 59 characters; or
 * what the four functions below return.
 */
SYS_CONTEXT_API int32_t ddReadOneSupportedOnuInformation(const char* strFileName,
                                                         const char* strOnuTypeSection,
                                                         int32_t iOffsetIn,
                                                         OnuInformation** pOnuTypeObjAddr);

/*
 * Read the ports of one kind of an ONU type into its record, which should have none:
 * ports that are there already are never released.
 * Return 0; -1 when a port cannot be had (LAN: -27); -2 for a null pointer; -17 when
 * there are more ports than an ONU can have, or no PON port; -27 without memory; -31
 * for a negative position or when the number of ports cannot be read. On -2 and for a
 * negative position the record is untouched. After any other failure the count is 0, and
 * the array null; but if the number of ports cannot be had, is too large or is 0, the
 * array is as it was (POTS: null for 0).
 */
SYS_CONTEXT_API int32_t ddAddSupportedPonToOnuObj(const char* strFileName,
                                                  const char* strOnuTypeSection, int32_t iOffsetIn,
                                                  OnuInformation* pstOnuInformation);
SYS_CONTEXT_API int32_t ddAddSupportedLanToOnuObj(const char* strFileName,
                                                  const char* strOnuTypeSection, int32_t iOffsetIn,
                                                  OnuInformation* pstOnuInformation);
SYS_CONTEXT_API int32_t ddAddSupportedPotsToOnuObj(const char* strFileName,
                                                   const char* strOnuTypeSection, int32_t iOffsetIn,
                                                   OnuInformation* pstOnuInformation);
SYS_CONTEXT_API int32_t ddAddSupportedSpecialPortToOnuObj(const char* strFileName,
                                                          const char* strOnuTypeSection,
                                                          int32_t iOffsetIn,
                                                          OnuInformation* pstOnuInformation);

/*
 * Releases an ONU type's record, its arrays and its ports. The ports of a list at its
 * limit (5 PON ports, 100 of another kind) and above are not released.
 * Returns 0; -2 for a null pointer, which is always reported.
 */
SYS_CONTEXT_API int32_t ddFreeOneOnuAllObj(OnuInformation* pstOnuInformation);

/*
 * Finds the ONU type with most LAN ports, the first of several, and stores its type
 * and number of ports in gstSupportedOnuType, whose array must be there if its count is
 * not 0. The loader calls it; its messages are always printed.
 * Returns 0; -21 when the table's count is corrupt. Without a LAN port, and after a
 * failure, it stores 0 and 0.
 */
SYS_CONTEXT_API int32_t ddFindSupportedOnuMaxLanNum(void);

/*
 * Can the table be searched?
 *   pulIsOk  receives 1 or 0; must not be null
 * Returns 0 when it can; -10 without an array; -21 when the count is corrupt.
 */
SYS_CONTEXT_API int32_t ddCheckSupportedOnuTypeNum(uint32_t* pulIsOk);

/* ---- Questions about ONU types ------------------------------------------------- */

/*
 * The definition file answers for the types it defines, down to their ports; for any
 * other type the platform is asked (platform.h), if the table can be searched at all.
 *
 * All return 0; -2 for a null pointer, and when the record of a port is missing; -10
 * without an array; -21 when the table's count is corrupt; -20 when the platform is
 * asked and fails, with an output of 0. Where it is otherwise, the function says so.
 * Ports are counted from 1.
 */

/* The number of PON ports, of LAN ports, of POTS ports. Of LAN and POTS ports the
 * platform's answer is given as 24 when it is more. */
SYS_CONTEXT_API int32_t ddGetOnuPonNumByType(uint32_t ulOnuType, uint32_t* pulOnuPonNum);
SYS_CONTEXT_API int32_t ddGetOnuLanPortNumByType(uint32_t ulOnuType, uint32_t* pulOnuLanPortNum);
SYS_CONTEXT_API int32_t ddGetOnuPotsPortNumByType(uint32_t ulOnuType, uint32_t* pulOnuPotsPortNum);

/* The number of special ports. -14 when a type of the table has more than 100; the
 * platform's answer is given as it is. */
SYS_CONTEXT_API int32_t ddGetOnuSpecialPortAmount(uint32_t ulOnuType,
                                                  uint32_t* pulSpecialPortAmount);

/* The number of special ports of one port type; the platform's answer is given as 24
 * when it is more. -14 when a type of the table has more than 100 special ports; missing
 * records are passed over. */
SYS_CONTEXT_API int32_t ddGetOnuSpecialPortNumByType(uint32_t ulOnuType, uint32_t ulPortType,
                                                     uint32_t* pulOnuSpecialPortNum);

/*
 * The port type of a port. Which ports there are is checked for types of the table only.
 * One of them that has more ports than an ONU can have has no such port.
 */

/* Of a PON port. -8 for port 0 and ports above 5 whatever the type; -5 when a type of the
 * table has no such port. */
SYS_CONTEXT_API int32_t ddGetOnuPonPortTypeByType(uint32_t ulOnuType, uint32_t ulPonNo,
                                                  uint32_t* pulOnuPonType);

/* Of a LAN port. -8 when a type of the table has no such port. */
SYS_CONTEXT_API int32_t ddGetOnuLanPortTypeByType(uint32_t ulOnuType, uint32_t ulOnuLanNo,
                                                  uint32_t* pulOnuLanPortType);

/* Of a POTS port. -17 for port 0 and ports above 100 whatever the type, and when a type
 * of the table has no such port; -1 when the platform fails. */
SYS_CONTEXT_API int32_t ddGetOnuPotsPortTypeByType(uint32_t ulOnuType, uint32_t ulOnuPotsNo,
                                                   uint32_t* pulOnuPotsPortType);

/* Of a special port. -17 for port 0 whatever the type, and when a type of the table has no
 * such port; -14 when it has more than 100. When the platform fails, the output is
 * untouched. */
SYS_CONTEXT_API int32_t ddGetOnuSpecialPortTypeByPortNo(uint32_t ulOnuType,
                                                        uint32_t ulOnuSpecialPortNo,
                                                        uint32_t* pulSpecialPortType);

/*
 * The types of the special ports, each once, in order of appearance.
 *   pulSpecialPortTypeArray   receives them; untouched by a failure of the table
 *   ulArrayAmount             entries that the array holds, at least 100
 *   pulSpecialPortTypeAmount  receives how many there are
 * -14 when a type of the table has more than 100 special ports; -25 when the array holds
 * less than 100. Missing records are passed over.
 */
SYS_CONTEXT_API int32_t ddGetOnuSpecialPortTypeList(uint32_t ulOnuType,
                                                    uint32_t* pulSpecialPortTypeArray,
                                                    uint32_t ulArrayAmount,
                                                    uint32_t* pulSpecialPortTypeAmount);

/* The name of a type. pcOnuName: at least 60 bytes, untouched when the platform fails
 * and does not write it itself. A record whose name is longer than its
 * field is passed over. */
SYS_CONTEXT_API int32_t ddGetOnuNameByType(uint32_t ulOnuType, char* pcOnuName);

/* The type of a name. -32, and 0, when the platform does not know it either. A record
 * whose name is longer than its field is passed over. */
SYS_CONTEXT_API int32_t ddGetOnuTypeByName(const char* strOnuName, uint32_t* pulOnuType);

/* Receives 1 for a type of the table; for others what the platform says. */
SYS_CONTEXT_API int32_t ddIsOnuSupportedByType(uint32_t ulOnuType, uint32_t* pulIsSupported);

/*
 * The types of the table, but for type 0, in its order. The platform is not asked.
 *   pulOnuTypeNum    in: 0, not the room in the array; out: how many were stored
 *   pulOnuTypeArray  room for every type of the table, 200 at most
 * Returns 0; -2 for a null pointer; -10 without an array; -21 when *pulOnuTypeNum was
 * above the number of types.
 */
SYS_CONTEXT_API int32_t ddGetAllSupportedOnuType(uint32_t* pulOnuTypeNum,
                                                 uint32_t* pulOnuTypeArray);

/*
 * The most LAN ports that a type of the table or of the platform has.
 * Returns 0, whatever the platform returns; -2 for a null pointer; -17 when the number
 * kept with the table is 0 (no type has a LAN port) or above 100: the platform is not
 * asked then.
 */
SYS_CONTEXT_API int32_t ddGetSupportedOnuMaxLanNum(uint32_t* pulSupportedOnuMaxLanNum);

SYS_CONTEXT_END

#endif
