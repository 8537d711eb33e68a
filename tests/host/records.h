// Command records for the shell's tests: handlers that tell what they got.
#pragma once

#include <string>
#include <vector>

#include "sys_context/platform.h"

namespace sysctx {

// What a handler of these records was called with, last call first.
struct Call {
  const CommandRecord* record = nullptr;
  std::vector<std::string> arguments;
  bool is_terminated = false;  // argv ends with a null pointer
};

extern Call last_call;
extern CommandRecord version_record;  // "show context version", prints lines
extern CommandRecord index_record;    // "show context detail index <indexno>"
extern CommandRecord upload_record;   // "upload ftp context <A.B.C.D> ... "
extern CommandRecord failing_record;  // "show failure", returns -1
extern CommandRecord long_record;     // "show long", 100000 characters at once

// Installs all of them, once per process.
void InstallRecords();

}  // namespace sysctx
