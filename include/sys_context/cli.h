/*
 * The diagnostic commands: records for the host's shell, their handlers, and
 * the printers behind them.
 *
 * Handlers and printers run on the shell's thread, read the tables and write to
 * the terminal `vty` with vty_out (platform.h). What the queries that they ask
 * print while ddDebugPrint is set goes to the console as ever.
 */
#ifndef SYS_CONTEXT_CLI_H
#define SYS_CONTEXT_CLI_H

#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/platform.h"

SYS_CONTEXT_BEGIN

/*
 * Installs the command records into node 10 of the shell, then registers the
 * module "SysContext" with the date and time at which the library was compiled
 * as its version. The three arguments are ignored. To be called once, at start.
 * Returns 0, -1 when the module cannot be registered, or the negative result
 * of setModVersion. The commands stay installed either way.
 */
SYS_CONTEXT_API int32_t ddCmdInit(int32_t, int32_t, int32_t);

/* ---- Command records ----------------------------------------------------- */

extern SYS_CONTEXT_API struct CommandRecord ddShowVersionInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowAllModuleInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowSysSupportFuncInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowMainBoardInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowOltPortInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowAllBoardInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowFrameInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowOnuPonInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowOnuLanInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowOnuPotsInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowOnuSpecialPortInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowAllSupportedOnuType_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowOneSupportedOnuInfo_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowAllSupportedOnu_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddShowAllDevice_CMD;

/* Their handlers, which return 0. ddShowOneSupportedOnuInfo_Func takes the index from its
 * first argument, a decimal text; without one, or without digits, it is 0. The others
 * ignore their arguments. */
SYS_CONTEXT_API int32_t ddShowVersionInfo_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                               char** argv);
SYS_CONTEXT_API int32_t ddShowAllModuleInfo_Func(struct CommandRecord* self, void* vty,
                                                 int32_t argc, char** argv);
SYS_CONTEXT_API int32_t ddShowSysSupportFuncInfo_Func(struct CommandRecord* self, void* vty,
                                                      int32_t argc, char** argv);
SYS_CONTEXT_API int32_t ddShowMainBoardInfo_Func(struct CommandRecord* self, void* vty,
                                                 int32_t argc, char** argv);
SYS_CONTEXT_API int32_t ddShowOltPortInfo_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                               char** argv);
SYS_CONTEXT_API int32_t ddShowAllBoardInfo_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                                char** argv);
SYS_CONTEXT_API int32_t ddShowFrameInfo_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                             char** argv);
SYS_CONTEXT_API int32_t ddShowOnuPonInfo_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                              char** argv);
SYS_CONTEXT_API int32_t ddShowOnuLanInfo_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                              char** argv);
SYS_CONTEXT_API int32_t ddShowOnuPotsInfo_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                               char** argv);
SYS_CONTEXT_API int32_t ddShowOnuSpecialPortInfo_Func(struct CommandRecord* self, void* vty,
                                                      int32_t argc, char** argv);
SYS_CONTEXT_API int32_t ddShowAllSupportedOnuType_Func(struct CommandRecord* self, void* vty,
                                                       int32_t argc, char** argv);
SYS_CONTEXT_API int32_t ddShowOneSupportedOnuInfo_Func(struct CommandRecord* self, void* vty,
                                                       int32_t argc, char** argv);
SYS_CONTEXT_API int32_t ddShowAllSupportedOnu_Func(struct CommandRecord* self, void* vty,
                                                   int32_t argc, char** argv);
SYS_CONTEXT_API int32_t ddShowAllDevice_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                             char** argv);

/* ---- Printers ------------------------------------------------------------ */

/* Each prints one table and returns 0, also for an empty table. A corrupt table is
 * reported on the terminal instead, and so is the lack of a list where a code for
 * it is given: an announced count of 0 leaves none. The terminal is handed to
 * vty_out as it is, a null one too. */

/* -30: more than 30 versions. */
SYS_CONTEXT_API int32_t ddPrintVersionInformation(void* vty);

/* -28: more than 200 modules; -10: modules, but no list. */
SYS_CONTEXT_API int32_t ddPrintAllModuleInformation(void* vty);

/* -28: more than 200 functions. */
SYS_CONTEXT_API int32_t ddPrintSysSupportFuncInformation(void* vty);

/* With all maps. -19: more than 100 boards; -10: no list; -24: a board of more
 * than 1280 logic ports, of more than 20 maps or of none, which ends the listing. */
SYS_CONTEXT_API int32_t ddPrintAllSupportedMainBoardInformation(void* vty);

/* Yields the processor for two ticks before every sixteenth row. -11: more than 30
 * types, or no list. */
SYS_CONTEXT_API int32_t ddPrintAllSupportedOltPortInfomation(void* vty);

/* A line for each service board, then each with its ports. -19: more than 100
 * boards; -10: boards, but no list. */
SYS_CONTEXT_API int32_t ddPrintAllSupportedBoardInfomation(void* vty);

/* One service board with its ports. -2, and nothing printed, without one. */
SYS_CONTEXT_API int32_t ddPrintOneSupportedBoardInfomation(const BoardInformation* board,
                                                           void* vty);

/* The frame: slots by class but for virtual and HCU slots, the boards of each slot, both
 * tables of logic ports. What is corrupt is reported in its place; 0 always. */
SYS_CONTEXT_API int32_t ddPrintFrameInfomation(void* vty);

/* One class of slots. -2 without one; -4: more than 100 slots. */
SYS_CONTEXT_API int32_t ddPrintSlotClassInformation(void* vty,
                                                    const SlotClassInformation* slotClass);

/* The port types of one catalog. Yield the processor for two ticks before every
 * sixteenth row. -14: more than 30 types; -10: no list; -2: an empty place, which ends
 * the listing. */
SYS_CONTEXT_API int32_t ddPrintAllSupportedOnuPonInfomation(void* vty);
SYS_CONTEXT_API int32_t ddPrintAllSupportedOnuLanInfomation(void* vty);
SYS_CONTEXT_API int32_t ddPrintAllSupportedOnuPotsInfomation(void* vty);
SYS_CONTEXT_API int32_t ddPrintAllSupportedOnuSpecialPortInfomation(void* vty);

/* A line for each ONU type; empty places are passed over. Yields the processor for two
 * ticks before every eighth. -21: more than 200 types; -10: no list. */
SYS_CONTEXT_API int32_t ddPrintAllSupportedOnuTypeBaseInfomation(void* vty);

/* The ONU type at a place of the list, from 0, with its ports. An empty list is said to
 * be empty, whatever the place. -21: more than 200 types, or a place behind the last one;
 * -10: no list; -2: the place is empty; -14: more ports than an ONU can have. */
SYS_CONTEXT_API int32_t ddPrintOneSupportedOnuInfomation(uint32_t ulOnuIndex, void* vty);

/* A line for each ONU type, with the pauses of that listing, then each with its ports;
 * empty places are passed over. -21: more than 200 types; -10: no list. */
SYS_CONTEXT_API int32_t ddPrintAllSupportedOnuTypeInfomation(void* vty);

/* Every table, with the pauses of their listings. -2 without a terminal. A table that
 * cannot be shown says so in its place. */
SYS_CONTEXT_API int32_t ddPrintAllContextInformation(void* vty);

SYS_CONTEXT_END

#endif
