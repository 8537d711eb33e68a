/*
 * The definition-file reader: one lookup answers one question, the value of
 * one key in one section of one INI-style file. It opens the file, scans it
 * and closes it again; nothing is remembered between lookups.
 *
 * The dialect in short: "[Section]" or "{Section}" opens a section, entries
 * are "key = value", a line whose first non-blank character is ";" is a
 * comment (nothing else is one), an entry that ends in "+" goes on in the next
 * line, whatever that holds, a line is cut after 512 characters and its rest is
 * the next line, and the first section and the first key of a name win. Blanks
 * are space and tab.
 *
 * Threads: lookups share the line-number variables below, unguarded. They
 * belong to the single thread that loads the tables.
 */
#ifndef SYS_CONTEXT_CFGFILE_H
#define SYS_CONTEXT_CFGFILE_H

#include <stdio.h>

#include "sys_context/api.h"

SYS_CONTEXT_BEGIN

/* Bytes that a value buffer must hold: 512 characters and the terminator. */
#define CFG_VALUE_SIZE 513

/* The section brackets, '[' and ']'. Kept for programs that look at them;
 * the lookups do not. */
extern SYS_CONTEXT_API char CFG_ssl;
extern SYS_CONTEXT_API char CFG_ssr;

/* Where the last lookup found what it found. All three are 0 when a lookup
 * starts, and count lines from 1 at the place where the scan started.
 *   CFG_section_line_no  the header that matched, 0 while none has
 *   CFG_key_line_no      the last line that the key search looked at as the
 *                        start of an entry, be it a comment, a blank line or
 *                        the next section's header
 *   CFG_key_lines        lines which that entry spans: 1, and one for each
 *                        continuation line */
extern SYS_CONTEXT_API int32_t CFG_section_line_no;
extern SYS_CONTEXT_API int32_t CFG_key_line_no;
extern SYS_CONTEXT_API int32_t CFG_key_lines;

/*
 * Looks up the value of `key` in `section` of `file`. Names are compared
 * exactly, case included.
 *   value  receives the value with its terminator, when the result is 0;
 *          at least CFG_VALUE_SIZE bytes, the caller's
 * Returns
 *     0  found
 *    -1  the file holds no such section
 *    -2  the section has no such key; or an argument is null (then nothing at
 *        all is touched)
 *   -10  the file cannot be opened
 *   -12  read error
 *   -14  syntax error before the key was found: a bracketed line of three or
 *        more characters without its closing bracket in front of the section,
 *        or a line of the section that is no "key = value"
 *   -22  an entry in front of the key, or its own, is longer than 512 characters
 *        with its continuation lines
 */
SYS_CONTEXT_API int32_t CFG_get_key(const char* file, const char* section, const char* key,
                                    char* value);

/*
 * CFG_get_key, with the section search starting at byte `iOffsetIn`. Within a
 * line, the rest of it counts as a line.
 *   piOffsetOut  receives the byte position of the last line that the section
 *                search read: the header, when the section was found (also if
 *                the key was not); the malformed header after -14; the end of
 *                the file (or iOffsetIn, if that is behind it) after -1.
 *                Untouched when the file cannot be opened or the position not
 *                be sought.
 * Returns as CFG_get_key; -1 when the section is not at or behind the position,
 * -12 also for a position that cannot be sought.
 */
SYS_CONTEXT_API int32_t CFG_get_key_offset(const char* file, const char* section, const char* key,
                                           char* value, int32_t iOffsetIn, int32_t* piOffsetOut);

/*
 * Reads one line of at most `maximum` characters. A line feed or a zero byte
 * ends it and is not stored; a form feed or 0x1A ends it and is stored; a
 * carriage return is dropped wherever it stands. What exceeds the maximum is
 * the next call's line.
 *   buffer  `maximum` + 1 bytes, the caller's; receives the line, terminated;
 *           of no use after -1 and -2
 * Returns the number of characters stored (0 for an empty line), -1 at the end
 * of the file (a last line without line feed comes first), -2 on a read error or
 * a null pointer.
 */
SYS_CONTEXT_API int32_t fgetline(FILE* stream, char* buffer, int32_t maximum);

/*
 * Splits "key = value" in place, at its first "=".
 *   key    receives the first non-blank character of `text`; blanks between
 *          the key and the "=" are left for the caller to trim
 *   value  receives the first character behind the "=" that is no blank
 * Both point into `text`. Returns 1 when split, 0 for an empty or blank text
 * (or a null pointer), -1 when the first non-blank character is "=", -2
 * without "=".
 */
SYS_CONTEXT_API int32_t split_key_val(char* text, char** key, char** value);

/*
 * Remove blanks (space, tab) at the start, at the end, at both ends of `text`,
 * in place. Return `text`; a null pointer is reported on the console and
 * returned.
 */
SYS_CONTEXT_API char* ltrimstr(char* text);
SYS_CONTEXT_API char* rtrimstr(char* text);
SYS_CONTEXT_API char* alltrim(char* text);

/*
 * Convert exactly `ulOriLen` bytes of `strOri` to upper or lower case, in the
 * current locale; give a length that includes the terminator to have one in
 * the destination. The processor is yielded for one tick after every 64 bytes.
 *   ulOriLen  bytes to convert, at most 500
 *   strDst    destination, the caller's
 *   ulDstLen  bytes that the destination holds, at least ulOriLen
 * Return 0; -2 for a null pointer; -33 when a length is out of range.
 */
SYS_CONTEXT_API int32_t ddStringToUppercase(const char* strOri, uint32_t ulOriLen, char* strDst,
                                            uint32_t ulDstLen);
SYS_CONTEXT_API int32_t ddStringToLowercase(const char* strOri, uint32_t ulOriLen, char* strDst,
                                            uint32_t ulDstLen);

SYS_CONTEXT_END

#endif
