// The shell on the local terminal, and on input that is none.
#pragma once

#include <cstdio>

#include "host/session.h"

namespace sysctx {

// Line editing, history, completion and help until the user leaves. Returns the
// program's exit status.
int RunTerminal(Session& session);

// Runs the lines of `input` one by one, without a prompt. Returns the exit
// status of the last command.
int RunScript(Session& session, FILE* input);

// Exit status for an unknown command or query, or wrong arguments.
inline constexpr int kBadRequest = 2;

// Exit status of one command: the low byte of its result, or kBadRequest.
int ExitStatus(const Outcome& outcome);

}  // namespace sysctx
