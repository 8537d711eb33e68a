/* The shared part of the C host programs; see the header. */
#define _POSIX_C_SOURCE 200809L

#include "host.h"

#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

struct Platform platform;

static int failed;
static int opened;
static const char* definition;
static const char* optical;

void check(int holds, const char* condition, const char* file, int line) {
  if (!holds) {
    fprintf(stderr, "%s:%d: failed: %s\n", file, line, condition);
    failed++;
  }
}

int failures(void) {
  return failed;
}

void set_definition_file(const char* bytes) {
  definition = bytes;
}

void set_optical_file(const char* bytes) {
  optical = bytes;
}

int files_opened(void) {
  return opened;
}

/* A nameless file with the text in it, at its start. */
static int text_file(const char* text) {
  char name[] = "/tmp/sys_context_host_XXXXXX";
  const int file = mkstemp(name);
  unlink(name);
  if (write(file, text, strlen(text)) != (ssize_t)strlen(text) || lseek(file, 0, SEEK_SET) != 0) {
    abort();
  }
  return file;
}

/* In front of the C library's: the library calls this one. */
FILE* fopen(const char* restrict path, const char* restrict mode) {
  const int is_device = strcmp(path, "/mnt/work/device_definition.ini") == 0;
  const int is_definition = is_device || strcmp(path, "/mnt/work/optmodule_definition.ini") == 0;
  const char* const text = is_device ? definition : optical;
  opened++;
  if (is_definition && text == NULL) {
    return NULL;
  }
  const int file = is_definition ? text_file(text) : open(path, O_RDONLY);
  return file < 0 ? NULL : fdopen(file, mode);
}

static int saved_output;
static int caught_output;

void catch_console(void) {
  fflush(stdout);
  saved_output = dup(STDOUT_FILENO);
  caught_output = text_file("");
  dup2(caught_output, STDOUT_FILENO);
}

const char* console_text(void) {
  static char text[8192];
  fflush(stdout);
  dup2(saved_output, STDOUT_FILENO);
  const ssize_t size = pread(caught_output, text, sizeof text - 1, 0);
  text[size < 0 ? 0 : size] = '\0';
  close(caught_output);
  close(saved_output);
  return text;
}

/* ---- The platform functions ------------------------------------------------ */

int32_t install_element(int32_t node, struct CommandRecord* record) {
  if (node == 10 && platform.installed < 32) {
    platform.records[platform.installed] = record;
  }
  platform.installed++;
  return 0;
}

int32_t vk_install_element(int32_t node, struct CommandRecord* record, int32_t a, int32_t b) {
  if (node == 10 && a == 3 && b == 0) {
    platform.vk_record = record;
  }
  return 6;
}

int32_t vty_out(void* vty, const char* format, ...) {
  const size_t used = strlen(platform.terminal);
  va_list values;
  va_start(values, format);
  const int length =
      vsnprintf(platform.terminal + used, sizeof platform.terminal - used, format, values);
  va_end(values);
  platform.terminal_used = vty;
  return length;
}

int32_t modInitRegister(const char* name, int32_t a, int32_t b, int32_t c, int32_t d, int32_t e,
                        int32_t f) {
  if (strcmp(name, "SysContext") == 0 && (a | b | c | d | e | f) == 0) {
    platform.registered++;
  }
  return 5;
}

int32_t setModVersion(int32_t modId, int32_t number, const char* version) {
  if (modId == 5 && number == 1 && strlen(version) == 20) {
    platform.versions++;
  }
  return 0;
}

int32_t devmgrModuRegId = 31;

int32_t ulogPrintf(int32_t modId, int32_t level, const char* format, ...) {
  const size_t used = strlen(platform.log);
  char* const end = platform.log + used;
  const size_t room = sizeof platform.log - used;
  if (modId != devmgrModuRegId) {
    return -1;
  }
  const int start = snprintf(end, room, "%d ", level);
  va_list values;
  va_start(values, format);
  vsnprintf(end + start, room - (size_t)start, format, values);
  va_end(values);
  return 0;
}

int32_t bep_taskDelayEx(int32_t ticks) {
  (void)ticks;
  return 0;
}

int32_t caCheckCardTypeIsPonCard(int16_t cardType) {
  return platform.pon_card != 0 && cardType == platform.pon_card ? 0 : 1;
}

int32_t caCheckCardTypeIsUplinkCard(int16_t cardType) {
  return platform.uplink_card != 0 && cardType == platform.uplink_card ? 0 : 1;
}

int32_t caCheckCardTypeIsEthCard(int16_t cardType) {
  (void)cardType;
  return 1;
}

int32_t caCheckCardTypeIsServiceCard(int16_t cardType) {
  (void)cardType;
  return 1;
}

int32_t get_system_device_type(void) {
  return platform.device_type;
}

int32_t get_config_card_type(uint32_t slot) {
  (void)slot;
  return platform.uplink_card;
}

int32_t get_core_card_self_cardnumber(void) {
  return 10;
}

int32_t get_core_card_detect_type(void) {
  return 101;
}

int32_t get_valid_onu_type(uint32_t a, uint32_t b, uint32_t c) {
  return a == 1 && b == 2 && c == 3 ? platform.fitted_onu : -7;
}

/* The flash store has one file. What is compressed is the text with every byte one up. */

static int is_stored(const char* name) {
  return platform.flash != NULL && strcmp(name, "/mnt/work/device_definition.ini") == 0;
}

int32_t flash_sizeof(const char* name) {
  return is_stored(name) ? (int32_t)strlen(platform.flash) : -1;
}

int32_t flash_read(const char* name, char* buffer, int32_t* length) {
  if (!is_stored(name) || *length < (int32_t)strlen(platform.flash)) {
    return -1;
  }
  *length = (int32_t)strlen(platform.flash);
  memcpy(buffer, platform.flash, (size_t)*length);
  return 0;
}

int32_t zUnCompress(uint8_t* dst, uint32_t* dstLength, const uint8_t* src, uint32_t srcLength) {
  if (*dstLength < srcLength) {
    return -5;
  }
  for (uint32_t i = 0; i < srcLength; i++) {
    dst[i] = (uint8_t)(src[i] - 1);
  }
  *dstLength = srcLength;
  return 0;
}

int32_t upload_buf_by_ftp(const char* address, const char* user, const char* password,
                          const char* file, const char* buffer, uint32_t length) {
  snprintf(platform.uploaded, sizeof platform.uploaded, "%s %s %s %s: %.*s", address, user,
           password, file, (int)length, buffer);
  return 0;
}

/* The card's own addresses: 192.168.8.1 and 10.10.0.1. */

int32_t is_manage_ipAddr(uint32_t address) {
  static const uint8_t own[4] = {192, 168, 8, 1};
  return memcmp(&address, own, sizeof own) == 0;
}

int32_t diags_is_outbandip(const char* address) {
  return strcmp(address, "10.10.0.1") == 0;
}

/* The ONU type service: it knows type 9001, and answers all that it is asked of it
 * with platform.onu_number. */

static int32_t onu_answer(uint32_t type, uint32_t* result) {
  if (type != 9001) {
    return -1;
  }
  *result = platform.onu_number;
  return 0;
}

int32_t cs_get_onu_pon_num_by_type(uint32_t type, uint32_t* result) {
  return onu_answer(type, result);
}

int32_t cs_get_onu_lan_port_num_by_type(uint32_t type, uint32_t* result) {
  return onu_answer(type, result);
}

int32_t cs_get_onu_pots_port_num_by_type(uint32_t type, uint32_t* result) {
  return onu_answer(type, result);
}

int32_t cs_get_onu_special_port_amount(uint32_t type, uint32_t* result) {
  return onu_answer(type, result);
}

int32_t cs_is_onu_supported_by_type(uint32_t type, uint32_t* result) {
  return onu_answer(type, result);
}

int32_t cs_get_onu_pon_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  (void)port;
  return onu_answer(type, result);
}

int32_t cs_get_onu_lan_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  (void)port;
  return onu_answer(type, result);
}

int32_t cs_get_onu_pots_port_type_by_type(uint32_t type, uint32_t port, uint32_t* result) {
  (void)port;
  return onu_answer(type, result);
}

int32_t cs_get_onu_special_port_num_by_type(uint32_t type, uint32_t portType, uint32_t* result) {
  (void)portType;
  return onu_answer(type, result);
}

int32_t cs_get_onu_special_port_type_by_port_no(uint32_t type, uint32_t port, uint32_t* result) {
  (void)port;
  return onu_answer(type, result);
}

int32_t cs_get_onu_special_port_type_list(uint32_t type, uint32_t* array, uint32_t arrayAmount,
                                          uint32_t* amount) {
  if (arrayAmount == 0 || onu_answer(type, array) != 0) {
    return -1;
  }
  *amount = 1;
  return 0;
}

int32_t cs_get_onu_name_by_type(uint32_t type, char* name) {
  if (type != 9001) {
    return -1;
  }
  strcpy(name, "OnuOfTheHost");
  return 0;
}

int32_t cs_get_onu_type_by_name(const char* name, uint32_t* result) {
  if (strcmp(name, "OnuOfTheHost") != 0) {
    return -1;
  }
  *result = 9001;
  return 0;
}

int32_t cs_get_supported_onu_max_lan_num(uint32_t* result) {
  return onu_answer(9001, result);
}
