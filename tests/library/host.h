/*
 * What the C host programs of these tests share: counting failures,
 * definition files of their own in the card's places, and the platform.
 */
#ifndef TESTS_LIBRARY_HOST_H
#define TESTS_LIBRARY_HOST_H

#include <stddef.h>

#include "sys_context/platform.h"

SYS_CONTEXT_BEGIN

/* Notes a failure, with the line, when the condition does not hold. */
#define CHECK(condition) check((condition) != 0, #condition, __FILE__, __LINE__)
void check(int holds, const char* condition, const char* file, int line);
int failures(void);

/* The bytes that the library reads as "/mnt/work/device_definition.ini"; null:
 * there is no such file. */
void set_definition_file(const char* bytes);
/* As "/mnt/work/optmodule_definition.ini". */
void set_optical_file(const char* bytes);

/* Files that were opened since the start. */
int files_opened(void);

/* What the platform was asked and answers, and what the terminal shows. */
struct Platform {
  int installed;
  CommandRecord* records[32];
  int registered;
  int versions;
  void* terminal_used;
  char terminal[8192];
  int16_t pon_card;    /* the card type that is a PON card; 0: none is */
  int16_t uplink_card; /* the one that is an uplink card, and configured for every slot */
  int32_t device_type;
  uint32_t onu_number;      /* what the ONU type service answers for type 9001 */
  int32_t fitted_onu;       /* the type of the ONU at 1, 2, 3; elsewhere is none */
  CommandRecord* vk_record; /* what vk_install_element was given with 10, 3, 0 */
  char log[1024];           /* what was logged under devmgrModuRegId, with its level */
  const char* flash;        /* the text of the stored definition file; null: none */
  char uploaded[1024];      /* the words of the last upload, and its content */
};
extern struct Platform platform;

/* Catches what the library prints on the console from here ... */
void catch_console(void);
/* ... to here. The text is valid until the next call. */
const char* console_text(void);

SYS_CONTEXT_END

#endif
