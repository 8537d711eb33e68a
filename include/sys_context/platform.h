/*
 * What the host provides: the functions and the variable that libsys_context
 * uses on the control card. A program that links the library defines all of
 * them, with C linkage. The library also calls the C library by name (fopen, open,
 * malloc, printf, ...), and a host may put its own in front of those.
 *
 * Strings and buffers given to the host are valid during the call only, but
 * for command records and module names, which stay for ever. Queries call these
 * functions on the thread that asks, so they may be called from several at once.
 */
#ifndef SYS_CONTEXT_PLATFORM_H
#define SYS_CONTEXT_PLATFORM_H

#include "sys_context/api.h"

SYS_CONTEXT_BEGIN

/* ---- Command shell ------------------------------------------------------ */

/* One command of the host's shell. The library fills the first four fields and
 * leaves the host's own zero. */
typedef struct CommandRecord {
  const char* string; /* the command's words; "<word>" is an argument */
  int32_t (*func)(struct CommandRecord* self, void* vty, int32_t argc,
                  char** argv); /* argv: the arguments only */
  const char* doc;              /* help, one line per word */
  const char* name;             /* the record's own name */
  void* host[8];                /* the shell's own */
} CommandRecord;

/* Installs a record into a node of the command tree. The result is ignored. */
SYS_CONTEXT_API int32_t install_element(int32_t node, struct CommandRecord* record);

/* Another way to install a record; the library gives 10, record, 3, 0. */
SYS_CONTEXT_API int32_t vk_install_element(int32_t node, struct CommandRecord* record, int32_t,
                                           int32_t);

/* Writes formatted text to the terminal `vty`, which is what the shell gave to
 * the command's handler. Lines are parted by CR LF. */
SYS_CONTEXT_API int32_t vty_out(void* vty, const char* format, ...) SYS_CONTEXT_PRINTF(2, 3);

/* ---- Module framework and platform log ---------------------------------- */

/* Registers a module; the six numbers are 0. Returns its id, -1 on failure. */
SYS_CONTEXT_API int32_t modInitRegister(const char* name, int32_t, int32_t, int32_t, int32_t,
                                        int32_t, int32_t);

/* Tells the module's version; the second argument is 1. Negative: failure. */
SYS_CONTEXT_API int32_t setModVersion(int32_t modId, int32_t, const char* version);

/* The module id under which ulogPrintf is called. */
extern SYS_CONTEXT_API int32_t devmgrModuRegId;

/* Writes to the platform log. */
SYS_CONTEXT_API int32_t ulogPrintf(int32_t modId, int32_t level, const char* format, ...)
    SYS_CONTEXT_PRINTF(3, 4);

/* ---- Task delay ---------------------------------------------------------- */

/* Lets other tasks run for some clock ticks. */
SYS_CONTEXT_API int32_t bep_taskDelayEx(int32_t ticks);

/* ---- Flash store, decompression, FTP, address checks --------------------- */

/* Size in bytes of a file of the flash store. A negative answer, for a file that is not
 * there, is refused as a file too large would be. */
SYS_CONTEXT_API int32_t flash_sizeof(const char* name);

/* Reads a file of the flash store.
 *   length  in: what flash_sizeof answered, for which `buffer` has room;
 *           receives the number of bytes that were read
 * Returns 0 on success. */
SYS_CONTEXT_API int32_t flash_read(const char* name, char* buffer, int32_t* length);

/* Expands compressed data. `dstLength`: capacity in, length out. Returns 0 on
 * success. */
SYS_CONTEXT_API int32_t zUnCompress(uint8_t* dst, uint32_t* dstLength, const uint8_t* src,
                                    uint32_t srcLength);

/* Stores `length` bytes as `file` on the FTP server. Returns 0 on success. */
SYS_CONTEXT_API int32_t upload_buf_by_ftp(const char* address, const char* user,
                                          const char* password, const char* file,
                                          const char* buffer, uint32_t length);

/* Non-zero: the address (network byte order) is the device's own management
 * address. 0xffffffff for a text that is no address. */
SYS_CONTEXT_API int32_t is_manage_ipAddr(uint32_t address);

/* Non-zero: the address, as it was typed, is the out-of-band diagnostic address. */
SYS_CONTEXT_API int32_t diags_is_outbandip(const char* address);

/* ---- Equipment facts ----------------------------------------------------- */

SYS_CONTEXT_API int32_t get_system_device_type(void);

/* Card type configured for a slot; not positive when there is none. (The power limits of
 * optical modules take 0 for a card type: optmodule.h.) */
SYS_CONTEXT_API int32_t get_config_card_type(uint32_t slot);

/* The slot of the main card on which the library runs. */
SYS_CONTEXT_API int32_t get_core_card_self_cardnumber(void);

/* The type of the fitted main card. */
SYS_CONTEXT_API int32_t get_core_card_detect_type(void);

/* 0: the card type is of that kind. ddInit asks whether it is a PON card's of the type of
 * each service board that it loads, fitted or not. */
SYS_CONTEXT_API int32_t caCheckCardTypeIsEthCard(int16_t cardType);
SYS_CONTEXT_API int32_t caCheckCardTypeIsPonCard(int16_t cardType);
SYS_CONTEXT_API int32_t caCheckCardTypeIsServiceCard(int16_t cardType);
SYS_CONTEXT_API int32_t caCheckCardTypeIsUplinkCard(int16_t cardType);

/* ONU type of the ONU at an address; negative on failure. */
SYS_CONTEXT_API int32_t get_valid_onu_type(uint32_t, uint32_t, uint32_t);

/* ---- ONU type service ---------------------------------------------------- */

/* Asked about ONU types that the definition file does not hold. All return 0
 * on success and write their result through the last pointer. Ports count from
 * 1. The last function tells the largest LAN port count of all types; what it returns is
 * ignored. */
SYS_CONTEXT_API int32_t cs_get_onu_pon_num_by_type(uint32_t type, uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_onu_pon_port_type_by_type(uint32_t type, uint32_t port,
                                                         uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_onu_lan_port_num_by_type(uint32_t type, uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_onu_lan_port_type_by_type(uint32_t type, uint32_t port,
                                                         uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_onu_pots_port_num_by_type(uint32_t type, uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_onu_pots_port_type_by_type(uint32_t type, uint32_t port,
                                                          uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_onu_special_port_num_by_type(uint32_t type, uint32_t portType,
                                                            uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_onu_special_port_amount(uint32_t type, uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_onu_special_port_type_by_port_no(uint32_t type, uint32_t port,
                                                                uint32_t* result);

/* Distinct types of the special ports: `array` holds `arrayAmount` entries,
 * `amount` receives how many were written. */
SYS_CONTEXT_API int32_t cs_get_onu_special_port_type_list(uint32_t type, uint32_t* array,
                                                          uint32_t arrayAmount, uint32_t* amount);

/* `name` holds 60 bytes. */
SYS_CONTEXT_API int32_t cs_get_onu_name_by_type(uint32_t type, char* name);
SYS_CONTEXT_API int32_t cs_get_onu_type_by_name(const char* name, uint32_t* result);
SYS_CONTEXT_API int32_t cs_is_onu_supported_by_type(uint32_t type, uint32_t* result);
SYS_CONTEXT_API int32_t cs_get_supported_onu_max_lan_num(uint32_t* result);

SYS_CONTEXT_END

#endif
