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
#include "sys_context/optmodule.h"
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
extern SYS_CONTEXT_API struct CommandRecord ddShowContextFile_CMD;
extern SYS_CONTEXT_API struct CommandRecord ddUploadContextFile_CMD;
extern SYS_CONTEXT_API struct CommandRecord show_optmodule_info_cmd;

/* The handlers of the show commands, which return 0. ddShowOneSupportedOnuInfo_Func takes
 * the index from its first argument, a decimal text; without one, or without digits, it
 * is 0. The others ignore their arguments. */
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
SYS_CONTEXT_API int32_t ddShowContextFile_Func(struct CommandRecord* self, void* vty, int32_t argc,
                                               char** argv);

/*
 * The handler of the upload, whose arguments are the server's address, user name,
 * password and file name. Returns 0 once the upload was tried, however it ended, which is
 * told on the terminal; -1 when the address, which is looked at first, is one of the card's
 * own (is_manage_ipAddr, diags_is_outbandip), silently, or when there are not four
 * arguments.
 */
SYS_CONTEXT_API int32_t ddUploadContextFile_Func(struct CommandRecord* self, void* vty,
                                                 int32_t argc, char** argv);

/* The handler of "show optmodule", which returns 0. The index is its first argument, a
 * decimal text, of which the low 16 bits count (65537 shows module 1); without one, or
 * without digits, it is 0. */
SYS_CONTEXT_API int32_t show_optmodule_info_func(struct CommandRecord* self, void* vty,
                                                 int32_t argc, char** argv);

/* Installs show_optmodule_info_cmd, which ddCmdInit does, too. Returns what
 * vk_install_element returns. */
SYS_CONTEXT_API int32_t install_gepon_optmodule_inforead_element(void);

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

/* The optical module of an index, from 1. -10: no such index; -24: no terminal, or the
 * place is empty. */
SYS_CONTEXT_API int32_t show_optmodule_fileinfo_byindex(uint16_t index, void* vty);

/* ---- The stored definition file ------------------------------------------ */

/*
 * These fetch the device definition file as it is kept in flash (flash_sizeof,
 * flash_read), at most 3,072,000 bytes, and expand it if it is compressed (context.h). For
 * the time of the call they take 6,144,000 bytes of memory. What fails is told on the
 * terminal, and mostly not in the return code.
 */

/* Writes the text up to its first zero byte to the terminal, byte by byte, between two
 * line ends. Returns 0, always. */
SYS_CONTEXT_API int32_t ddPrintContextFile(void* vty);

/* Hands the text and the four strings as they are to upload_buf_by_ftp (platform.h). The
 * password is kept nowhere. Returns 0, or -1 without memory for the first buffer. */
SYS_CONTEXT_API int32_t ddUploadContextFile(const char* address, const char* user,
                                            const char* password, const char* file, void* vty);

/* ---- Dump ---------------------------------------------------------------- */

/* Prints `length` bytes on the console, eight a line, each line with its address (the low
 * 32 bits), the bytes in hexadecimal and as characters. Returns what printf returned last;
 * without a buffer that is the length of a message. For debugging; no command uses it. */
SYS_CONTEXT_API int32_t ddPrintBuf(const uint8_t* buffer, int32_t length);

SYS_CONTEXT_END

#endif
