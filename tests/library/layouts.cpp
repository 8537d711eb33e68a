// The layout of every public record. A host is linked against it, so it never
// changes: records without pointers look the same everywhere, the others are
// fixed on the card, where a pointer has 32 bits.
#include <cstddef>

#include "sys_context/cfgfile.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"
#include "sys_context/platform.h"

static_assert(sizeof(SupportedSoftVer) == 104);
static_assert(offsetof(SupportedSoftVer, ulSupportedSoftVerLen) == 0);
static_assert(offsetof(SupportedSoftVer, acSupportedSoftVer) == 4);
static_assert(sizeof(SupportedSoftVer::acSupportedSoftVer) == 100);

static_assert(sizeof(VersionInformation) == 3124);
static_assert(offsetof(VersionInformation, ulSupportedSoftVerNum) == 0);
static_assert(offsetof(VersionInformation, astSupportedSoftVer) == 4);

static_assert(sizeof(ModuleInformation) == 72);
static_assert(offsetof(ModuleInformation, ulModuleType) == 0);
static_assert(offsetof(ModuleInformation, ulNameLen) == 4);
static_assert(offsetof(ModuleInformation, acName) == 8);
static_assert(sizeof(ModuleInformation::acName) == 60);
static_assert(offsetof(ModuleInformation, ulSize) == 68);

static_assert(sizeof(SysSupportFuncType) == 804);
static_assert(offsetof(SysSupportFuncType, ulSupportedSysFunctionTypeNum) == 0);
static_assert(offsetof(SysSupportFuncType, aulSupportedSysFunctionType) == 4);

constexpr bool kOnCard = sizeof(void*) == 4;

static_assert(!kOnCard || sizeof(ModuleTypeList) == 8);
static_assert(!kOnCard || offsetof(ModuleTypeList, ulModuleTypeNum) == 0);
static_assert(!kOnCard || offsetof(ModuleTypeList, pModuleTypeArray) == 4);

static_assert(!kOnCard || sizeof(CommandRecord) == 48);
static_assert(!kOnCard || offsetof(CommandRecord, string) == 0);
static_assert(!kOnCard || offsetof(CommandRecord, func) == 4);
static_assert(!kOnCard || offsetof(CommandRecord, doc) == 8);
static_assert(!kOnCard || offsetof(CommandRecord, name) == 12);
static_assert(!kOnCard || offsetof(CommandRecord, host) == 16);

static_assert(MAX_SUPPORTED_SOFT_VER_NUM == 30);
static_assert(MAX_SUPPORTED_SOFT_VER_LEN == 100);
static_assert(MAX_SUPPORTED_MODULE_TYPE_NUM == 200);
static_assert(MAX_MODULE_NAME_LEN == 60);
static_assert(CFG_VALUE_SIZE == 513);
