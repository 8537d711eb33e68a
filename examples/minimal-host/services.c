/* What else the library asks for. This host has no flash store, no FTP client and no ONU
 * type service: it says so, and the library passes that on. */
#include <stdarg.h>
#include <stdio.h>

#include "sys_context/platform.h"

enum { kNotThere = -1 };

/* ---- Module framework, log, delay ---------------------------------------- */

int32_t devmgrModuRegId = 1;

int32_t modInitRegister(const char* name, int32_t a, int32_t b, int32_t c, int32_t d, int32_t e,
                        int32_t f) {
  (void)name, (void)a, (void)b, (void)c, (void)d, (void)e, (void)f;
  return 2;
}

int32_t setModVersion(int32_t modId, int32_t kind, const char* version) {
  (void)modId, (void)kind, (void)version;
  return 0;
}

int32_t ulogPrintf(int32_t modId, int32_t level, const char* format, ...) {
  va_list values;
  va_start(values, format);
  fprintf(stderr, "log, module %d, level %d: ", (int)modId, (int)level);
  vfprintf(stderr, format, values);
  va_end(values);
  return 0;
}

int32_t bep_taskDelayEx(int32_t ticks) {
  (void)ticks; /* nobody else wants to run */
  return 0;
}

/* ---- Flash store, compression, FTP, addresses ---------------------------- */

int32_t flash_sizeof(const char* name) {
  (void)name;
  return kNotThere;
}

int32_t flash_read(const char* name, char* buffer, int32_t* length) {
  (void)name, (void)buffer, (void)length;
  return kNotThere;
}

int32_t zUnCompress(uint8_t* dst, uint32_t* dstLength, const uint8_t* src, uint32_t srcLength) {
  (void)dst, (void)dstLength, (void)src, (void)srcLength;
  return kNotThere;
}

int32_t upload_buf_by_ftp(const char* address, const char* user, const char* password,
                          const char* file, const char* buffer, uint32_t length) {
  (void)address, (void)user, (void)password, (void)file, (void)buffer, (void)length;
  return kNotThere;
}

int32_t is_manage_ipAddr(uint32_t address) {
  (void)address;
  return 0;
}

int32_t diags_is_outbandip(const char* address) {
  (void)address;
  return 0;
}

/* ---- ONU type service ------------------------------------------------------ */

/* Asked about ONU types that the definition file does not have: this host knows none. */

#define KNOWS_NO_TYPE(function)                       \
  int32_t function(uint32_t type, uint32_t* result) { \
    (void)type, (void)result;                         \
    return kNotThere;                                 \
  }
#define KNOWS_NO_PORT(function)                                      \
  int32_t function(uint32_t type, uint32_t port, uint32_t* result) { \
    (void)type, (void)port, (void)result;                            \
    return kNotThere;                                                \
  }

KNOWS_NO_TYPE(cs_get_onu_pon_num_by_type)
KNOWS_NO_TYPE(cs_get_onu_lan_port_num_by_type)
KNOWS_NO_TYPE(cs_get_onu_pots_port_num_by_type)
KNOWS_NO_TYPE(cs_get_onu_special_port_amount)
KNOWS_NO_TYPE(cs_is_onu_supported_by_type)
KNOWS_NO_PORT(cs_get_onu_pon_port_type_by_type)
KNOWS_NO_PORT(cs_get_onu_lan_port_type_by_type)
KNOWS_NO_PORT(cs_get_onu_pots_port_type_by_type)
KNOWS_NO_PORT(cs_get_onu_special_port_num_by_type)
KNOWS_NO_PORT(cs_get_onu_special_port_type_by_port_no)

int32_t cs_get_onu_special_port_type_list(uint32_t type, uint32_t* array, uint32_t arrayAmount,
                                          uint32_t* amount) {
  (void)type, (void)array, (void)arrayAmount, (void)amount;
  return kNotThere;
}

int32_t cs_get_onu_name_by_type(uint32_t type, char* name) {
  (void)type, (void)name;
  return kNotThere;
}

int32_t cs_get_onu_type_by_name(const char* name, uint32_t* result) {
  (void)name, (void)result;
  return kNotThere;
}

int32_t cs_get_supported_onu_max_lan_num(uint32_t* result) {
  (void)result;
  return kNotThere;
}
