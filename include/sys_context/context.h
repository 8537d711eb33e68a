/*
 * Start-up, the definition file's copy in flash, software versions, module types and
 * system functions.
 *
 * The host calls ddInit once, before anybody asks a query; it reads
 * "/mnt/work/device_definition.ini" into the tables below and into those of olt.h,
 * frame.h and onu.h, and "/mnt/work/optmodule_definition.ini" into that of optmodule.h.
 * Tables stay for the life of the process and belong to the library; hosts may
 * read and fill them.
 */
#ifndef SYS_CONTEXT_CONTEXT_H
#define SYS_CONTEXT_CONTEXT_H

#include "sys_context/api.h"

SYS_CONTEXT_BEGIN

/* ---- Start-up ---------------------------------------------------------- */

/* Non-zero: the argument checks of the queries print their messages on the
 * console (a few always do, and say so). 0 at start, and only ever written from
 * outside. */
extern SYS_CONTEXT_API int32_t ddDebugPrint;

/* The memory file that ddReadContextFileToBuf writes, "/mem/dd.ini" at start. The host
 * may point it at another string, which it keeps. Loading does not read it. */
extern SYS_CONTEXT_API const char* strDeviceDefFilePath;

/*
 * Empties every table and loads the device definition file, then the list of optical
 * modules. Meant to be called once: a second call forgets the first one's tables without
 * releasing them.
 * Returns 0, -1 without memory for the work buffer, or the code of the first
 * loader that failed (of the optical modules: optmodule.h); the tables before it are then
 * loaded, those behind it empty. Its own holds no records, or, of the frame, what was read.
 */
SYS_CONTEXT_API int32_t ddInit(void);

/* The middle of ddInit: proves that 3,072,000 bytes of memory can be had,
 * then calls ddParseContextFile. Returns 0, -1 without that memory, or the
 * failing loader's code. */
SYS_CONTEXT_API int32_t ddReadContextFile(void);

/* Calls the loaders in their fixed order. Returns 0 or the first failure. */
SYS_CONTEXT_API int32_t ddParseContextFile(void);

/* Registration hooks of the host's module framework. Do nothing, return 0;
 * the commands are installed by ddCmdInit (cli.h). */
SYS_CONTEXT_API int32_t context_module_init(void);
SYS_CONTEXT_API int32_t context_cmd_module_init(void);

/* Placeholders for hosts that link against them: 0, and a function returning 0.
 * Nothing in the library uses them. */
extern SYS_CONTEXT_API int32_t dosFsMsgLevel;
SYS_CONTEXT_API int32_t dosFsVolumeBioBufferSize(void);

/* The borders of two reserved areas of 8192 zero bytes at the start and at the
 * end of the library's code. They are addresses, not functions to call. */
SYS_CONTEXT_API void vkpJumpTableEntryBegin_0(void);
SYS_CONTEXT_API void vkpJumpTableEntryEnd_0(void);
SYS_CONTEXT_API void vkpJumpTableEntryBegin_1(void);
SYS_CONTEXT_API void vkpJumpTableEntryEnd_1(void);

/* ---- The copy in flash ------------------------------------------------- */

/*
 * The text of a stored definition file: what follows its first three bytes, expanded by
 * zUnCompress, if those are "zip"; else all of it as it is.
 *   destinationLength  in: the bytes of `destination`; receives the length of the text
 * The bytes of `destination` are told to zUnCompress, but not looked at for a plain image:
 * it must have room for `length` bytes.
 * Returns 0, -2 for a null pointer, or the code of zUnCompress.
 */
SYS_CONTEXT_API int32_t read_compress_context_file(const uint8_t* image, uint32_t length,
                                                   uint8_t* destination,
                                                   uint32_t* destinationLength);

/*
 * Writes the text of the definition file that is kept in flash, at most 1,048,576 bytes as
 * it is stored and 3,072,000 as text, to the memory file. For the time of the call it
 * takes 4,120,576 bytes of memory.
 * Every failure is told on the console. Returns the code of flash_read or of
 * read_compress_context_file, -1 when the memory file cannot be closed, and otherwise 0:
 * also without memory, for a file too large, and when the memory file cannot be opened or
 * is not written in full. The memory file is created without permission bits or, if it is
 * there, emptied; it stays as far as it was written.
 */
SYS_CONTEXT_API int32_t ddReadContextFileToBuf(void);

/* ---- Software versions ------------------------------------------------- */

#define MAX_SUPPORTED_SOFT_VER_NUM 30
#define MAX_SUPPORTED_SOFT_VER_LEN 100

typedef struct SupportedSoftVer {
  uint32_t ulSupportedSoftVerLen; /* with the terminator, 1..100 */
  char acSupportedSoftVer[MAX_SUPPORTED_SOFT_VER_LEN];
} SupportedSoftVer;

/* The software versions that the definition file is written for. */
typedef struct VersionInformation {
  uint32_t ulSupportedSoftVerNum; /* entries in use, 0..30 */
  SupportedSoftVer astSupportedSoftVer[MAX_SUPPORTED_SOFT_VER_NUM];
} VersionInformation;

extern SYS_CONTEXT_API VersionInformation gstVersionInformation;

/* The version of the running software, "KT2200V4.0" at start. The host may
 * point it at another string, which it keeps. */
extern SYS_CONTEXT_API const char* gstrddSoftwareVer;

/*
 * Loads gstVersionInformation from the file at path `strFileName`. Versions are
 * parted by "|"; blanks around it belong to them, and a version may be empty.
 * One of 100 and more characters is reported and left out. When thirty are
 * stored, the rest is ignored silently. A failure leaves the table alone.
 * Returns 0; -2 for a null path; -31 when the file, its section "Version" or
 * the key "SupportedSoftwareVer" cannot be read.
 */
SYS_CONTEXT_API int32_t ddReadVersionInformation(const char* strFileName);

/*
 * Is gstrddSoftwareVer one of the supported versions? Compared exactly; a null
 * gstrddSoftwareVer is none. The messages are printed whatever ddDebugPrint
 * holds.
 *   pulIsSupported  receives 1 or 0; untouched on -2 and -30
 * Returns 0 when it is, -1 when it is not, -2 for a null pointer, -30 when the
 * table's count is corrupt.
 */
SYS_CONTEXT_API int32_t ddIsContextVerMatchSoftVer(uint32_t* pulIsSupported);

/* ---- Module types ------------------------------------------------------ */

#define MAX_SUPPORTED_MODULE_TYPE_NUM 200

/* Bytes of a name field and of the buffer a name is copied into. */
#define MAX_MODULE_NAME_LEN 60

typedef struct ModuleInformation {
  uint32_t ulModuleType;
  uint32_t ulNameLen; /* with the terminator, 1..60 */
  char acName[MAX_MODULE_NAME_LEN];
  uint32_t ulSize;
} ModuleInformation;

/* The kinds of module that the device knows. */
typedef struct ModuleTypeList {
  uint32_t ulModuleTypeNum;             /* records held, 0..200 */
  ModuleInformation** pModuleTypeArray; /* a place for each module announced, null
                                           behind the last record; null when
                                           none was announced */
} ModuleTypeList;

extern SYS_CONTEXT_API ModuleTypeList gstModuleTypeList;

/*
 * Loads gstModuleTypeList. A module that cannot be read is reported and left
 * out; that is no failure.
 * Returns 0; -2 for a null path; -27 without memory; -28 when more than 200
 * modules are announced; -31 when their number cannot be read. The count is 0
 * after a failure. A second load forgets the first one's records without
 * releasing them.
 */
SYS_CONTEXT_API int32_t ddReadAllModuleInformation(const char* strFileName);

/*
 * Reads one module from its own section.
 *   pModuleObjAddr  receives the record, the caller's to free(); null on a
 *                   failure other than -2
 * Returns 0; -2 for a null pointer; -27 without memory; -31 when a key cannot
 * be read; -33 when the name has more than 59 characters.
 */
SYS_CONTEXT_API int32_t ddReadOneModuleInformation(const char* strFileName,
                                                   const char* strModuleSection,
                                                   ModuleInformation** pModuleObjAddr);

/*
 * Queries on the module list; the first record of a type or name answers.
 * All return -2 for a null pointer, -28 when the table's count is corrupt, -10
 * when there is no array. Outputs are untouched by a failure, but for those
 * that are named.
 */

/* pcModuleName: at least 60 bytes. -29 when no module has this type. */
SYS_CONTEXT_API int32_t ddGetModuleNameByType(uint32_t ulModuleType, char* pcModuleName);

/* Exact and case-sensitive. -32 when no module has this name. */
SYS_CONTEXT_API int32_t ddGetModuleTypeByName(const char* pcModuleName, uint32_t* pulModuleType);

/* Stores 1 or 0 and returns 0 either way. -2 also when an empty place is met
 * before the module. The flag is 0 then, and on -28. */
SYS_CONTEXT_API int32_t ddIsModuleInList(uint32_t ulModuleType, uint32_t* pulIsSupported);

/* Stores the low 8 bits of the module's size. -29 when no module has this type,
 * -2 also when an empty place is met before one. The size is 0 on -29, on -28
 * and after an empty place. */
SYS_CONTEXT_API int32_t ddGetModuleSize(uint32_t ulModuleType, uint8_t* pulSize);

/* ---- System functions -------------------------------------------------- */

/* The module types that the system as a whole supports. */
typedef struct SysSupportFuncType {
  uint32_t ulSupportedSysFunctionTypeNum; /* entries in use, 0..200 */
  uint32_t aulSupportedSysFunctionType[MAX_SUPPORTED_MODULE_TYPE_NUM];
} SysSupportFuncType;

extern SYS_CONTEXT_API SysSupportFuncType gstSysSupportFuncType;

/*
 * Loads gstSysSupportFuncType; the file gives module names, so the module list
 * must be loaded. Entries that cannot be read or name no module are left out.
 * All messages depend on ddDebugPrint, and a failure leaves the table alone.
 * Returns 0; -2 for a null path; -28 when more than 200 are announced; -31
 * when their number cannot be read.
 */
SYS_CONTEXT_API int32_t ddReadSysSupportFuncInformation(const char* strFileName);

/*
 * Does the system support the module type?
 *   pulIsSupported  receives 1 or 0; untouched on -2
 * Returns 0 when it does, -29 when it does not, -2 for a null pointer, -28
 * when the table's count is corrupt.
 */
SYS_CONTEXT_API int32_t ddIsSysSupportFunc(int32_t lFuncType, uint32_t* pulIsSupported);

SYS_CONTEXT_END

#endif
