/*
 * The optical modules: kinds of pluggable module with the power limits of their paths,
 * read from "/mnt/work/optmodule_definition.ini", and the limits that hold for a port
 * or for an ONU.
 *
 * The list is loaded by ddInit (context.h) and then only read; it belongs to the
 * library. Hosts may read and fill it; whoever fills it gives each path its record.
 * Unlike the other tables it is released when it is loaded again: the host sees to it that
 * nobody asks or shows meanwhile. The loaders and the functions that release run on the
 * thread that calls ddInit; the queries may be asked from any thread after it, and call
 * the platform functions on that thread.
 *
 * These functions answer a null pointer with -24, where the rest of the library says
 * -2, and write their messages to the platform log (ulogPrintf under
 * devmgrModuRegId), whatever ddDebugPrint holds: level 11 for what became of the
 * whole file, level 6 for all else. What the queries that they ask of olt.h and onu.h
 * print while ddDebugPrint is set goes to the console as ever.
 */
#ifndef SYS_CONTEXT_OPTMODULE_H
#define SYS_CONTEXT_OPTMODULE_H

#include "sys_context/api.h"

SYS_CONTEXT_BEGIN

/* ---- The list -------------------------------------------------------------- */

#define MAX_OPTMODULE_INFO_NUM 50
#define MAX_OPTMODULE_PATH_NUM 4

/* Values of OptModuleInfo.kind. The show command takes any other for an ONU's, too. */
#define OPTMODULE_KIND_OLT_PON 1
#define OPTMODULE_KIND_OLT_ETH 2
#define OPTMODULE_KIND_ONU_PON 3

/* The limits of one path, in the units of the definition file. */
typedef struct OptModuleThreshold {
  int32_t inup;  /* received power, upper limit */
  int32_t indn;  /* received power, lower limit */
  int32_t outup; /* transmitted power, upper limit */
  int32_t outdn; /* transmitted power, lower limit */
} OptModuleThreshold;

typedef struct OptModuleInfo {
  uint16_t kind;
  uint32_t porttype; /* of the OLT port type or, of an ONU's module, ONU PON port type */
  uint16_t phytype;  /* tells modules of one port type apart */
  uint16_t pathnum;  /* 1..4; 0 when the file gave another number */
  OptModuleThreshold** pathinfo; /* a record for each path; null without paths */
} OptModuleInfo;

typedef struct OptModuleInfoList {
  uint16_t listnum;        /* records held, 0..50 */
  OptModuleInfo** objlist; /* a place for each module announced, null behind the last
                              record; null when none was announced */
} OptModuleInfoList;

extern SYS_CONTEXT_API OptModuleInfoList g_optmdule_infolist;

/* Forgets the list without releasing it. Returns 0. */
SYS_CONTEXT_API int32_t init_optmodule_info(void);

/* Loads the list from "/mnt/work/optmodule_definition.ini". Returns what
 * optmodule_infolist_read returns, and logs a failure. */
SYS_CONTEXT_API int32_t optmodule_defines_fileparse(void);

/*
 * Loads the list from the file at path `filename`. The sections of the modules stand
 * behind the list section and in its order. A module that cannot be read is logged and
 * left out; that is no failure.
 * Returns 0; -1 when the number of modules cannot be read; -15 when more than 50 are
 * announced; -22 without memory; -24 for a null path. The list that was there before
 * is released, except on -1, -15 and -24, which leave it alone; it is empty on -22.
 */
SYS_CONTEXT_API int32_t optmodule_infolist_read(const char* filename);

/*
 * Reads one module from its own section, searched from byte `iOffsetIn` of the file.
 * A number of paths other than 1 to 4 gives a module without paths.
 *   module  receives the record, which optmodule_oneobj_free releases; null after a
 *           failure other than -18 and -24, which leave it alone
 * Returns 0; -1, -2, -3 or -4 when "PortKind", "PortType", "PhyType" or "PathNum"
 * cannot be read; -6 when a path cannot be read; -7 when the value of one is longer than
 * 40 characters or there is no memory for it; -18 for a negative position; -22 without
 * memory; -24 for a null pointer.
 */
SYS_CONTEXT_API int32_t optmodule_oneinfo_read(const char* file, const char* section,
                                               int32_t iOffsetIn, OptModuleInfo** module);

/*
 * Reads the limits of a path from a text: outup, outdn, inup and indn as decimal
 * numbers parted by commas. What is missing is 0; the last number is always indn, and
 * what stands between the third and the last is ignored. Text without digits is 0.
 *   threshold  receives the record, the caller's to free(); null on -22 and -33
 * Returns 0; -22 without memory; -24 for a null pointer; -33 for a text of more than 40
 * characters.
 */
SYS_CONTEXT_API int32_t optmodule_onuthres_read(const char* text, OptModuleThreshold** threshold);

/* Releases a module with its paths. -24 without one. */
SYS_CONTEXT_API int32_t optmodule_oneobj_free(OptModuleInfo* module);

/* Releases the list with all modules and leaves it empty. Returns 0. */
SYS_CONTEXT_API int32_t optmodule_file_free(void);

/* ---- Power limits ---------------------------------------------------------- */

/*
 * The limits of the optical module in a port, or in an ONU.
 *   phyType    tells modules of one port type apart; an ONU's is not looked at
 *   pathCount  in: how many entries `paths` has, for which MAX_OPTMODULE_PATH_NUM always
 *              do; receives how many were stored
 *   paths      receives the limits of each path
 * A failure leaves both alone. The first module of the list that fits answers.
 * Return 0; -1 when there is no such module; -5 when the type of the port, or of the
 * ONU's first PON port, is not known or 0; -24 for a null `pathCount` or `paths`; -35
 * when `paths` has too few entries.
 */

/* Of port `port`, from 1, of the card that is configured for slot `slot`: a PON module
 * for a PON card, else an Ethernet module. -101 when get_config_card_type is negative
 * (card type 0, an empty slot, gives -5); -102 when the card is neither a PON card nor
 * what caCheckCardTypeIsUplinkCard takes for an uplink card. */
SYS_CONTEXT_API int32_t get_port_optmodule_thresinfo(uint32_t slot, uint32_t port, uint16_t phyType,
                                                     uint16_t* pathCount,
                                                     OptModuleThreshold* paths);

/* Of the ONU at an address: three numbers, as get_valid_onu_type of the platform takes
 * them. A negative answer of that function is returned as it is. */
SYS_CONTEXT_API int32_t get_onu_optmodule_thresinfo(uint32_t address1, uint32_t address2,
                                                    uint32_t address3, uint16_t phyType,
                                                    uint16_t* pathCount, OptModuleThreshold* paths);

SYS_CONTEXT_END

#endif
