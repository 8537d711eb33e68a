// Who is measured: ways to look one key up, and the floors under them.
#pragma once

#include "bench/definition_file.h"
#include "sys_context/cfgfile.h"

namespace bench {

// Makes the lookup in `file`; true when the key was found and `value` filled.
using LookUp = bool (*)(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);

bool Library(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);
bool LibraryWithOffset(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);

// The same dialect, a byte at a time.
bool FreadByteByByte(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);
bool GetcByteByByte(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);

// Other libraries.
bool Inih(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);
bool Iniparser(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);

// No lookups, but the least that one can cost. The first finds the line ends of
// the bytes that a lookup has to look at; the second opens the file, reads
// 4 KB and closes it. Both leave `value` alone; false when the file cannot be
// read.
bool ScanFloor(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);
bool OpenFloor(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]);

}  // namespace bench
