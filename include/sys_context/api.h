/*
 * What every public header of libsys_context needs: C linkage and visibility.
 *
 * The headers are C11 and C++20. For all of them:
 * - "return code" is an int32_t: 0 is success, a negative value a failure.
 * - strings are terminated by a zero byte, and remain the caller's.
 * - a null pointer for an argument or a result is answered with -2 where nothing
 *   else is said, and then nothing is written through the other pointers.
 * - tables are written by ddInit on the start-up thread and only read later,
 *   so queries may be asked from any thread once ddInit has returned. A host
 *   that writes a table itself sees to it that nobody asks meanwhile.
 */
#ifndef SYS_CONTEXT_API_H
#define SYS_CONTEXT_API_H

#include <stdint.h>

#ifdef __cplusplus
#define SYS_CONTEXT_BEGIN extern "C" {
#define SYS_CONTEXT_END }
#else
#define SYS_CONTEXT_BEGIN
#define SYS_CONTEXT_END
#endif

/* A symbol that crosses the library's border. What the library exports is listed
 * in abi/exports.txt; platform.h has what it takes from its host. */
#define SYS_CONTEXT_API __attribute__((visibility("default")))

/* A function that takes a printf format as its argument number `text`, and what
 * is printed from argument number `first` on. */
#define SYS_CONTEXT_PRINTF(text, first) __attribute__((format(printf, text, first)))

#endif
