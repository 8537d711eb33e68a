/* What a shell has to do: keep the records, find the one that was typed, call its handler. */
#include "shell.h"

#include <stdarg.h>
#include <stdio.h>
#include <string.h>

#include "sys_context/platform.h"

enum { kRecords = 32, kArguments = 8, kLine = 256 };

static struct CommandRecord* records[kRecords];
static int record_count;

/* The library keeps its records for ever, so their addresses are enough. */
int32_t install_element(int32_t node, struct CommandRecord* record) {
  (void)node; /* 10, the node of the commands that show; this shell has one only */
  if (record_count == kRecords) {
    return -1;
  }
  records[record_count++] = record;
  return 0;
}

int32_t vk_install_element(int32_t node, struct CommandRecord* record, int32_t level,
                           int32_t reserved) {
  (void)level;
  (void)reserved;
  return install_element(node, record);
}

int32_t vty_out(void* vty, const char* format, ...) {
  va_list values;
  va_start(values, format);
  const int length = vfprintf((FILE*)vty, format, values);
  va_end(values);
  return length;
}

/* Cuts the next word off a text: ends it, and moves on behind it. NULL: there is none. */
static char* next_word(char** text) {
  char* const word = *text + strspn(*text, " ");
  if (*word == '\0') {
    return NULL;
  }
  char* const end = word + strcspn(word, " ");
  *text = *end == '\0' ? end : end + 1;
  *end = '\0';
  return word;
}

/* Do the words typed fit the record? A "<word>" of the record is an argument. Cuts the line
 * into its words either way. Returns the number of arguments, -1 when they do not fit. */
static int match(const struct CommandRecord* record, char* line, char** arguments) {
  char words[kLine];
  if (snprintf(words, sizeof words, "%s", record->string) >= (int)sizeof words) {
    return -1;
  }
  char* wanted_text = words;
  int count = 0;
  for (;;) {
    const char* const wanted = next_word(&wanted_text);
    char* const typed = next_word(&line);
    if (wanted == NULL || typed == NULL) {
      return wanted == NULL && typed == NULL ? count : -1;
    }
    if (wanted[0] == '<' && count < kArguments) {
      arguments[count++] = typed;
    } else if (strcmp(wanted, typed) != 0) {
      return -1;
    }
  }
}

int run_command(const char* line) {
  for (int i = 0; i < record_count; i++) {
    char typed[kLine];
    char* arguments[kArguments + 1] = {NULL};
    if (snprintf(typed, sizeof typed, "%s", line) >= (int)sizeof typed) {
      break;
    }
    const int count = match(records[i], typed, arguments);
    if (count >= 0) {
      records[i]->func(records[i], stdout, count, arguments);
      printf("\n");
      return 0;
    }
  }
  fprintf(stderr, "no such command: %s\n", line);
  return 1;
}
