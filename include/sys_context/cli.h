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

/* Their handlers. The show commands take no arguments and return 0. */
SYS_CONTEXT_API int32_t ddShowVersionInfo_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                               char** argv);
SYS_CONTEXT_API int32_t ddShowAllModuleInfo_Func(struct CommandRecord* self, void* vty,
                                                 int32_t argc, char** argv);
SYS_CONTEXT_API int32_t ddShowSysSupportFuncInfo_Func(struct CommandRecord* self, void* vty,
                                                      int32_t argc, char** argv);

/* ---- Printers ------------------------------------------------------------ */

/* Each prints one table and returns 0, also for an empty table. A corrupt
 * table is reported on the terminal instead. The terminal is handed to vty_out
 * as it is, a null one too. */

/* -30: more than 30 versions. */
SYS_CONTEXT_API int32_t ddPrintVersionInformation(void* vty);

/* -28: more than 200 modules; -10: modules, but no list. */
SYS_CONTEXT_API int32_t ddPrintAllModuleInformation(void* vty);

/* -28: more than 200 functions. */
SYS_CONTEXT_API int32_t ddPrintSysSupportFuncInformation(void* vty);

SYS_CONTEXT_END

#endif
