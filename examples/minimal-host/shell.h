/* A shell that knows the library's commands and prints on standard output. */
#ifndef SHELL_H
#define SHELL_H

/* Runs a command. Returns 0, or 1 when there is none of these words. */
int run_command(const char* line);

#endif
