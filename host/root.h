// Where the card's work and memory file systems lie on the desk. The program's
// own fopen and open (root.cpp) stand in front of the C library's and map
// "/mnt/work/..." and "/mem/..." below the chosen folder.
#pragma once

#include <cstddef>
#include <string>

namespace sysctx {

// Maps from now on below `folder`; an empty one stops the mapping. Called
// before there are threads. Throws std::runtime_error for a path too long.
void SetRoot(const std::string& folder);

// The folder that SetRoot was given last.
std::string Root();

// The name under which `path` is really found. Writes it to `buffer` when it is
// mapped, and returns `buffer`; returns `path` itself when it is not. A mapped
// name that does not fit gives nullptr.
const char* MapPath(const char* path, char* buffer, size_t size);

// The same for a file of the flash store. Anything at ROOT/flash/mnt/work/..., readable or
// not, is what the store has in place of the work file; without it, the work file.
const char* MapFlashName(const char* name, char* buffer, size_t size);

// Whether the store has something in place of the work file `name`.
bool HasFlashCopy(const char* name);

}  // namespace sysctx
