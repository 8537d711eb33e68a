/*
 * The chassis, called the frame: its slots by class, the boards each slot takes,
 * what the logic ports of the switch chip serve, and the way from a logic port to
 * the physical port of the main board at hand. A card is a board, main or service.
 *
 * gstFrame is filled once, by ddInit (context.h), and then only read; it belongs to
 * the library. Hosts may read and fill it. The loaders run on the thread that calls
 * ddInit; the queries may be asked from any thread after it, and call the platform
 * functions (platform.h) on that thread.
 *
 * An output is untouched by a failure, unless its function says otherwise. The
 * messages of loaders are always printed on the console, those of queries while
 * ddDebugPrint is set. One exception: that boards, logic ports or the check failed is
 * passed on by ddReadFrameInformation while ddDebugPrint is set only.
 */
#ifndef SYS_CONTEXT_FRAME_H
#define SYS_CONTEXT_FRAME_H

#include "sys_context/api.h"
#include "sys_context/olt.h" /* MAX_SWITCH_CHIP_LOGIC_PORT_NUM */

SYS_CONTEXT_BEGIN

/* ---- The frame ------------------------------------------------------------ */

/* Bytes of the name field, and of the buffer a name is copied into. */
#define MAX_FRAME_NAME_LEN 60

#define MAX_ONU_NUM_PER_FRAME 100000
#define MAX_USER_NUM_PER_FRAME 2400000

/* Slots of a class, and the highest number of an ordinary slot. */
#define MAX_SLOT_END 100

/* Board types that a slot can take. */
#define MAX_BOARD_TYPE_NUM_PER_SLOT 100

/* Type-2 logic ports that two of the queries can do with. */
#define MAX_TYPEB_SWITCH_CHIP_LOGIC_PORT_NUM 128

/* The slots of one class. Slots are counted from 1; 0 is never a slot. */
typedef struct SlotClassInformation {
  uint32_t ulSlotAmount;              /* 0..100 */
  uint32_t ulSlotStart;               /* the first slot listed, 0 without slots */
  uint32_t ulSlotEnd;                 /* the last slot listed, 0 without slots */
  uint32_t ucSlotArray[MAX_SLOT_END]; /* in the order of the file */
} SlotClassInformation;

/* The types of the boards that a slot takes; a 0 ends them. */
typedef struct SlotSupportBoard {
  uint32_t aulBoardType[MAX_BOARD_TYPE_NUM_PER_SLOT];
} SlotSupportBoard;

/* What a logic port serves. Logic port n is entry n-1. */
typedef struct SwitchChipLogicPortToSlotPort {
  uint8_t ucSlotOut;
  uint8_t ucSlotPort; /* 0..128; 0 is the link to the board as a whole */
  uint8_t ucSlotFlag; /* 1: in use while an Ethernet card is configured */
} SwitchChipLogicPortToSlotPort;

/* What a type-2 ("balance") logic port serves. Entries 0..55 are the logic ports
 * 1..56, entries 56 and 57 are 200 and 201; the other entries have no number. */
typedef struct BalanceSwitchLogicPortInfo {
  uint8_t ucSlotOut;
  uint8_t ucSlotPort;  /* 0..128 */
  uint16_t usChipPort; /* the switch chip */
  uint16_t usPhyPort;  /* the port on that chip */
  uint8_t ucHigigFlag; /* 1: a HiGig port, which links chip to chip */
} BalanceSwitchLogicPortInfo;

typedef struct FrameInformation {
  int32_t eType;
  uint32_t ulNameLen; /* with the terminator, 1..60; 0 when not loaded */
  char acName[MAX_FRAME_NAME_LEN];
  uint32_t ulMaxOnuNum;
  uint32_t ulMaxUserNum;
  SlotClassInformation stRealSlot; /* the slots of the chassis itself */
  SlotClassInformation stVirtualSlot;
  SlotClassInformation stHcuSlot;
  SlotClassInformation stFanSlot;
  SlotClassInformation stPowerSlot;
  SlotClassInformation stCioSlot;
  SlotClassInformation stServeBoardSlot;
  SlotClassInformation stMainSlot;
  SlotClassInformation stUplinkSlot;
  SlotSupportBoard* pstSlotArray; /* a row for each slot number from 0 to the last real slot;
                                     null when not loaded. From malloc: the library frees it */
  uint32_t ulSwitchChipLogicPortNum;
  SwitchChipLogicPortToSlotPort astSwitchChipLogicPort[MAX_SWITCH_CHIP_LOGIC_PORT_NUM];
  uint32_t ulType2SwitchChipLogicPortNum; /* entries read, those without number included */
  BalanceSwitchLogicPortInfo astType2SwitchChipLogicPort[MAX_SWITCH_CHIP_LOGIC_PORT_NUM];
} FrameInformation;

extern SYS_CONTEXT_API FrameInformation gstFrame;

/* Names in the definition file, which a host may change before ddInit:
 * "FrameInfomation", which nothing reads, and the keys "Name" and "Type". */
extern SYS_CONTEXT_API const char* dd_gstrSectionFrameInfomation;
extern SYS_CONTEXT_API const char* dd_gstrKeyFrameName;
extern SYS_CONTEXT_API const char* dd_gstrKeyFrameType;

/* ---- Loading -------------------------------------------------------------- */

/*
 * Loads gstFrame from the section of the file at path `strFileName` that belongs to
 * the platform's device type; main boards and service boards must be loaded. A slot
 * without list of boards, an unknown board and a missing logic port are reported
 * and left out; that is no failure.
 * Returns 0; -1 when the most ONUs or users are above their limits; -2 for a null
 * path; -31 when a key cannot be read; -33 when the name has more than 59
 * characters; or what the functions below return. What was read stays after a
 * failure, but nothing stays when ddCheckFrameInformation refuses the whole. A second
 * load releases the boards of the first when it comes to the slots; entries that it does
 * not read anew stay. A second ddInit forgets the first frame without releasing it.
 */
SYS_CONTEXT_API int32_t ddReadFrameInformation(const char* strFileName);

/*
 * The name of the frame that the platform's device type belongs to; "KT3300-L" for
 * unknown types, with a message. Its messages are always printed. (-32, for a name that
 * is too long, is not returned: all those names fit.)
 *   pcName  at least 60 bytes
 * Returns 0; -2 for a null pointer.
 */
SYS_CONTEXT_API int32_t ddInquireFrameName(char* pcName);

/*
 * Reads the slots of a class from its keys `strSlotClass`"Num" and "List". Numbers behind
 * the hundredth are dropped. When the real slots of gstFrame change, read their
 * boards anew (ddReadSlotSupportBoard) before anybody asks for them.
 * Returns 0; -2 for a null pointer; -4 when there are more than 100 slots; -31 when
 * their number cannot be read; the lookup's code when the list cannot be read: the
 * number is stored then.
 */
SYS_CONTEXT_API int32_t ddReadOneSlotClass(const char* strFileName, const char* strSectionFrameName,
                                           const char* strSlotClass,
                                           SlotClassInformation* pstSlotClass);

/*
 * Reads which boards each real slot takes, in place of what gstFrame held; the real
 * slots must be loaded. Boards behind the hundredth of a slot, and those of slots
 * behind the last of the list, are dropped.
 * Returns 0; -2 for a null pointer; -4 when the last real slot is 0; -27 without
 * memory: what gstFrame held is released then.
 */
SYS_CONTEXT_API int32_t ddReadSlotSupportBoard(const char* strFileName,
                                               const char* strSectionFrameName);

/*
 * Read the logic ports and the type-2 logic ports; the real slots must be loaded. A
 * number that a line leaves out keeps the value of the line before.
 * Return 0; -2 for a null pointer; -3 for a slot behind the last real one; -5 for a
 * port above 128; -22 when there are more than 1280; -31 when their number cannot be
 * read. The count of gstFrame is untouched by a failure, the entries are not.
 */
SYS_CONTEXT_API int32_t ddReadSwitchChipLogicPortToSlotPort(const char* strFileName,
                                                            const char* strSectionFrameName);
SYS_CONTEXT_API int32_t read_balance_switch_logicport_to_portinfo(const char* strFileName,
                                                                  const char* strSectionFrameName);

/* Is gstFrame consistent, namely numbers and ranges of the real, power, service board,
 * main and uplink slots, and the counts of logic ports? Returns 0, or -3 with a message
 * that is always printed. */
SYS_CONTEXT_API int32_t ddCheckFrameInformation(void);

/* Releases what gstFrame holds and clears it. Returns 0. */
SYS_CONTEXT_API int32_t ddEmptyFrameInformation(void);

/* ---- Name and capacity ---------------------------------------------------- */

/* All return 0, or -2 for a null pointer, unless they say otherwise. */

/* pcName: at least 60 bytes. Copies the name with its terminator; nothing, with 0, when
 * no frame is loaded. */
SYS_CONTEXT_API int32_t ddGetFrameName(char* pcName);

/* The most ONUs: those of the definition file on device type 17, else 17000. */
SYS_CONTEXT_API int32_t ddGetMaxOnuNum(uint32_t* pulMaxOnuNum);

/* -1 when it is above 2400000. */
SYS_CONTEXT_API int32_t ddGetMaxUserNum(uint32_t* pulMaxUserNum);

/* The last real slot. -3 when it is above 100. */
SYS_CONTEXT_API int32_t ddGetMaxSlotNum(uint32_t* pulSlotRealNum);

SYS_CONTEXT_API int32_t ddGetServeBoardSlotAmount(uint32_t* pulServeBoardSlotAmount);

/* The last and the first main board slot, as the function's value; a negative code
 * of ddGetMainSlotRange. */
SYS_CONTEXT_API int32_t ddGetMaxMainSlot(void);
SYS_CONTEXT_API int32_t ddGetMinMainSlot(void);

/* ---- Slot classes ---------------------------------------------------------- */

/*
 * The first and the last slot of a class; 0 and 0 without slots.
 * Return 0; -2 for a null pointer; -3 when one is above 100 or the last is below
 * the first. For the HCU class both must be 801, else -3.
 */
SYS_CONTEXT_API int32_t ddGetRealSlotRange(uint32_t* pulRealSlotStart, uint32_t* pulRealSlotEnd);
SYS_CONTEXT_API int32_t ddGetVirtualSlotRange(uint32_t* pulVirtualSlotStart,
                                              uint32_t* pulVirtualSlotEnd);
SYS_CONTEXT_API int32_t ddGetMainSlotRange(uint32_t* pulMainSlotStart, uint32_t* pulMainSlotEnd);
SYS_CONTEXT_API int32_t ddGetServeBoardSlotRange(uint32_t* pulServeBoardSlotStart,
                                                 uint32_t* pulServeBoardSlotEnd);
SYS_CONTEXT_API int32_t ddGetUplinkSlotRange(uint32_t* pulUplinkSlotStart,
                                             uint32_t* pulUplinkSlotEnd);
SYS_CONTEXT_API int32_t ddGetFanSlotRange(uint32_t* pulFanSlotStart, uint32_t* pulFanSlotEnd);
SYS_CONTEXT_API int32_t ddGetPowerSlotRange(uint32_t* pulSlotStart, uint32_t* pulSlotEnd);
SYS_CONTEXT_API int32_t ddGetCioSlotRange(uint32_t* pulSlotStart, uint32_t* pulSlotEnd);
SYS_CONTEXT_API int32_t ddGetHcuSlotRange(uint32_t* pulHcuSlotStart, uint32_t* pulHcuSlotEnd);

/*
 * The slots of a class, in the order of the file.
 *   pulSlotArray   room for `ulArrayAmount` numbers
 *   pulSlotAmount  receives how many were stored, possibly 0
 * Return 0; -2 for a null pointer; -25 when there are more than room, or more than
 * 100: nothing is stored then.
 */
SYS_CONTEXT_API int32_t ddGetRealSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                          uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetVirtualSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                             uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetMainBoardSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                               uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetServeSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                           uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetUplinkSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                            uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetFanSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                         uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetPowerSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                           uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetCioSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                         uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetHcuSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                         uint32_t* pulSlotAmount);
SYS_CONTEXT_API int32_t ddGetBoardSlotList(const SlotClassInformation* pstSlotClass,
                                           uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                           uint32_t* pulSlotAmount);

/*
 * The real slots and, behind them, the virtual slots. Each list must fit
 * `ulArrayAmount` on its own, or is left out: so the array needs room for twice as
 * many numbers.
 * Returns 0; -2 for a null pointer.
 */
SYS_CONTEXT_API int32_t ddGetAllSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                         uint32_t* pulSlotAmount);

/*
 * Is a slot of this class?
 *   the last argument  receives 1 or 0; 0 also after a failure other than -2
 * Return 0 when it is; -4 when not, and for slot 0; -2 for a null pointer; -25 when
 * the class is corrupt.
 */
SYS_CONTEXT_API int32_t ddIsRealSlot(uint32_t ulSlotOut, uint32_t* pulCanPlugIn);
SYS_CONTEXT_API int32_t ddIsVirtualSlot(uint32_t ulSlotOut, uint32_t* pulCanPlugIn);
SYS_CONTEXT_API int32_t ddIsMainBoardSlot(uint32_t ulSlotOut, uint32_t* pulCanPlugIn);
SYS_CONTEXT_API int32_t ddIsServeBoardSlot(uint32_t ulSlotOut, uint32_t* pulIsTrue);
SYS_CONTEXT_API int32_t ddIsUplinkBoardSlot(uint32_t ulSlotOut, uint32_t* pulIsTrue);
SYS_CONTEXT_API int32_t ddIsFanBoardSlot(uint32_t ulSlotOut, uint32_t* pulIsTrue);
SYS_CONTEXT_API int32_t ddIsPowerBoardSlot(uint32_t ulSlotOut, uint32_t* pulIsTrue);
SYS_CONTEXT_API int32_t ddIsCioBoardSlot(uint32_t ulSlotOut, uint32_t* pulIsTrue);
SYS_CONTEXT_API int32_t ddIsHcuBoardSlot(uint32_t ulSlotOut, uint32_t* pulIsTrue);
SYS_CONTEXT_API int32_t ddIsSlotInSlotList(uint32_t ulSlotOut,
                                           const SlotClassInformation* pstSlotClass,
                                           uint32_t* pulIsIn);

/* Is a slot real or virtual? The same, but -3 when it is neither, corrupt classes
 * included. */
SYS_CONTEXT_API int32_t ddIsValidSlot(uint32_t ulSlotOut, uint32_t* pulCanPlugIn);

/* Does a slot take the vector board, type 598? The same with -4 for slot 0, otherwise
 * returns what ddCanBoardPlugInSlotByType does. */
SYS_CONTEXT_API int32_t ddIsVectorBoardSlot(uint32_t ulSlotOut, uint32_t* pulIsTrue);

/*
 * Does a slot take boards of a type? Slot 801 always takes type 624. A list of less
 * than 100 boards also holds type 0.
 *   pulCanPlugIn  receives 1 or 0; 0 also after a failure other than -2
 * Returns 0 when it does, -18 when not; -2 for a null pointer; -3 for slot 0 and
 * those behind the last real slot; -10 when the boards are not loaded.
 */
SYS_CONTEXT_API int32_t ddCanBoardPlugInSlotByType(uint32_t ulSlotOut, uint32_t ulBoardType,
                                                   uint32_t* pulCanPlugIn);

/* ---- Logic ports: numbers --------------------------------------------------- */

/*
 * Entry of gstFrame to logic port number and back. Return 0; -2 for a null pointer;
 * -24 when the count of logic ports is corrupt.
 */

/* -24 also when there is no such entry. */
SYS_CONTEXT_API int32_t get_switch_chip_logicport_portno_from_index(uint32_t ulChipIndex,
                                                                    uint32_t* puChipLogicPort);

/* -1 when there is no such logic port. */
SYS_CONTEXT_API int32_t get_switch_chip_logicport_index_from_portno(uint32_t ulChipLogicPort,
                                                                    uint32_t* puChipIndex);

/* The same for type-2 logic ports, however many are loaded. Only -2, and -26 when
 * there is no such entry or number; the output is 0 then. */
SYS_CONTEXT_API int32_t get_balance_switch_logicport_portno_from_index(uint32_t ulChipIndex,
                                                                       uint32_t* puChipLogicPort);
SYS_CONTEXT_API int32_t get_balance_switch_logicport_index_from_portno(uint32_t ulChipLogicPort,
                                                                       uint32_t* puChipIndex);

/* How many entries were read. -24 when the count is corrupt. */
SYS_CONTEXT_API int32_t ddGetSwitchChipLogicPortAmount(uint32_t* pulAmount);
SYS_CONTEXT_API int32_t get_balance_switch_logicport_amount(uint32_t* pulAmount);

/* ---- Logic ports: what a number serves -------------------------------------- */

/*
 * Slot and port behind a logic port; the second function gives the flag as well.
 * Return 0; -2 for a null pointer; -5 when the stored port is above 128; -22 when
 * there is no such logic port, or their count is corrupt.
 */
SYS_CONTEXT_API int32_t ddGetSlotPortFromSwitchChipLogicPort(uint32_t ulChipLogicPort,
                                                             uint32_t* pulSlotOut,
                                                             uint32_t* pulSlotPort);
SYS_CONTEXT_API int32_t ddGetObjectInfoFromSwitchChipLogicPort(uint32_t ulChipLogicPort,
                                                               uint32_t* pulSlotOut,
                                                               uint32_t* pulSlotPort,
                                                               uint32_t* pulSlotFlag);

/*
 * Slot and port, chip and physical port behind a type-2 logic port, and whether it
 * is a HiGig port; for an entry that was not read, what it held before: zeros at start.
 * One of the outputs of the second function may be null.
 * Return 0; -2 for a null pointer; -26 when there is no such number.
 */
SYS_CONTEXT_API int32_t get_balance_slotport_from_switch_logicport(uint32_t ulChipLogicPort,
                                                                   uint32_t* pulSlotOut,
                                                                   uint32_t* pulSlotPort);
SYS_CONTEXT_API int32_t get_balance_chipno_phyport_from_switch_logicport(uint32_t ulChipLogicPort,
                                                                         uint32_t* pulChipPort,
                                                                         uint32_t* pulPhyPort);
SYS_CONTEXT_API int32_t is_higigport_balance_switch_logicport(uint32_t ulChipLogicPort,
                                                              uint32_t* pulIsTrue);

/* ---- Logic ports: which number serves --------------------------------------- */

/*
 * The logic port of a slot and port, compared by the low 8 bits of the slot. While
 * an Ethernet card is configured for the slot the last entry answers, else the first.
 * Returns 0; -1 when there is none, the output is 0 then; -2 for a null pointer; -3
 * when the slot is neither real nor virtual; -22 when the count is corrupt.
 */
SYS_CONTEXT_API int32_t ddGetSwitchChipLogicPortFromSlotPort(uint32_t ulSlotOut,
                                                             uint32_t ulSlotPort,
                                                             uint32_t* pulChipLogicPort);

/*
 * The first type-2 logic port of a chip and physical port. The low 8 bits of the
 * arguments are looked for; an entry with a number above 255 is never found. The second
 * function takes chip 0 when the library runs in slot 9, else chip 1.
 * Return 0; -2 for a null pointer; -23 when there is none, the output is 0 then.
 */
SYS_CONTEXT_API int32_t get_balance_switch_logicport_from_chipno_phyport(
    uint32_t ulChipPort, uint32_t ulPhyPort, uint32_t* pulChipLogicPort);
SYS_CONTEXT_API int32_t get_balance_switch_logicport_from_phyport(uint32_t ulPhyPort,
                                                                  uint32_t* pulChipLogicPort);

/*
 * The first type-2 logic port of a slot, port and chip, of which the low 8 bits are
 * looked for. The second function is asked without chip and compares in full: where a port
 * is served through several, it takes the first through chip 0 when the library runs
 * in slot 9, else through chip 1.
 * Return 0; -1 when there is none, the output is 0 then; -2 for a null pointer.
 */
SYS_CONTEXT_API int32_t get_balance_switch_logicport_from_slotport_chipno(
    uint32_t ulSlotOut, uint32_t ulSlotPort, uint32_t ulChipPort, uint32_t* pulChipLogicPort);
SYS_CONTEXT_API int32_t get_balance_switch_logicport_from_slotport(uint32_t ulSlotOut,
                                                                   uint32_t ulSlotPort,
                                                                   uint32_t* pulChipLogicPort);

/* The lowest and the highest logic port whose flag is 1. Returns 0; -2 for a null
 * pointer; -22 when the count is corrupt; -26 when there is none. */
SYS_CONTEXT_API int32_t ddGetEthLogicportRange(uint32_t* minLogicportNo, uint32_t* maxLogicPortNo);

/* ---- Logic ports: lists ------------------------------------------------------ */

/*
 * Lists of logic port numbers, in the order of the entries.
 *   the array   room for `ulArrayAmount` numbers
 *   the amount  receives how many there are
 * Return 0; -2 for a null pointer; -3 when there are none, the amount is 0 then; -9
 * when there are more than room: the array is full then, the amount untouched; -22
 * when the count of entries is corrupt. Where "counted first" is said, nothing is
 * stored on -9. A type-2 entry without number leaves its place in the array alone.
 */

/* Of a slot and port; those with flag 1 while an Ethernet card is configured for
 * the slot, else those with another flag. */
SYS_CONTEXT_API int32_t get_switch_logicportlist_from_slotport(uint32_t ulSlotOut,
                                                               uint32_t ulSlotPort,
                                                               uint32_t* pulChipLogicPort,
                                                               uint32_t ulArrayAmount,
                                                               uint32_t* pulChipPortCnt);

/*
 * Of a slot, as its card has them: all with flag 1 for an Ethernet card; for other
 * cards those with flag 0, namely all but port 0 for an uplink card in an uplink
 * slot, the first of port 0 for another card there, the first of all in other slots.
 * What the platform answers to get_config_card_type is returned when it is not above
 * 0, also 0, with nothing stored; -9 also when the array is full and a port is passed over.
 */
SYS_CONTEXT_API int32_t get_switch_logicportlist_from_slot(uint32_t ulSlotOut,
                                                           uint32_t* pulChipLogicPort,
                                                           uint32_t ulArrayAmount,
                                                           uint32_t* pulChipPortCnt);

/* Type-2 logic ports of a slot, of a slot and port. The second returns -22 when more
 * than 128 entries are loaded. */
SYS_CONTEXT_API int32_t get_balance_switch_logicportlist_from_slot(uint32_t ulSlotOut,
                                                                   uint32_t* pulChipLogicPort,
                                                                   uint32_t ulArrayAmount,
                                                                   uint32_t* pulChipPortCnt);
SYS_CONTEXT_API int32_t get_balance_switch_logicportlist_from_slotport(uint32_t ulSlotOut,
                                                                       uint32_t ulSlotPort,
                                                                       uint32_t* pulChipLogicPort,
                                                                       uint32_t ulArrayAmount,
                                                                       uint32_t* pulChipPortCnt);

/* Type-2 logic ports that are HiGig ports. -36 instead of -3. */
SYS_CONTEXT_API int32_t get_higicport_balance_switch_logicportlist(uint32_t* pulHigigPortList,
                                                                   uint32_t ulArrayAmount,
                                                                   uint32_t* pulChipPortCnt);

/* Of an uplink slot with an uplink card, but for port 0. None for other slots. */
SYS_CONTEXT_API int32_t ddGetUplinkPortLogicPortListFromSlot(uint32_t ulSlotOut,
                                                             uint32_t* pulChipLogicPort,
                                                             uint32_t ulArrayAmount,
                                                             uint32_t* pulChipPortCnt);

/* All but port 0 and those with flag 1. */
SYS_CONTEXT_API int32_t ddGetUplinkLogicPortListOnly(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                                     uint32_t* pulPortAmount);

/* All but port 0; counted first. -3 also when one of them has slot 0; the amount is
 * untouched then. */
SYS_CONTEXT_API int32_t ddGetNonzeroPortSwitchChipLogicPortList(uint32_t* pulChipLogicPort,
                                                                uint32_t ulArrayAmount,
                                                                uint32_t* pulChipPortCnt);

/* All that serve anything, or have a flag; counted first. */
SYS_CONTEXT_API int32_t ddGetAllUserPortSwitchChipLogicPortList(uint32_t* pulChipLogicPort,
                                                                uint32_t ulArrayAmount,
                                                                uint32_t* pulChipPortCnt);

/*
 * Type-2 logic ports of uplink slots, and those of service board slots with port 0;
 * counted first, the amount is 0 on -9. The numbers are those that the entries would
 * have as ordinary logic ports; where there are fewer of these, or their count is
 * corrupt, the place in the array is left alone. -24 when more than 128 entries are loaded.
 */
SYS_CONTEXT_API int32_t get_balance_user_port_switch_logicportlist(uint32_t* pulChipLogicPort,
                                                                   uint32_t ulArrayAmount,
                                                                   uint32_t* pulChipPortCnt);

/*
 * Of all real slots with an uplink or an Ethernet card, slot by slot, but for port 0;
 * those with flag 1 for an Ethernet card, with flag 0 for others; at most 1280;
 * counted first. There may be none, with 0. -4 when the real slots are corrupt.
 */
SYS_CONTEXT_API int32_t ddGetUplinkLogicPortList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                                 uint32_t* pulPortAmount);

/* ---- At run time ------------------------------------------------------------- */

/* 1: there is one frame. */
SYS_CONTEXT_API int32_t get_current_frameno(void);

/* The type of the main board fitted. Returns 0; -2 for a null pointer. */
SYS_CONTEXT_API int32_t ddRunGetMainSlotType(uint32_t* pulMainBoardType);

/*
 * The physical port of the main board fitted that a logic port is wired to, by the
 * map that is special to the card configured behind the logic port or, without
 * one, by the main board's default map; 0 in that one means that it is wired to
 * nothing.
 *   pulPhyPort  0xFFFFFFFF when the special map wires the port to nothing
 * Returns 0; -1 when the main board is of type 389, with a message that is always
 * printed, or cannot be found; -2 for a null pointer; -22 when there is no such
 * logic port, in the frame (or it is corrupt there) or in the map, or the special map
 * wires it to nothing. The maps compare logic ports by their low 8 bits.
 */
SYS_CONTEXT_API int32_t ddRunGetSwitchChipPhyPortFromLogicPort(uint32_t ulLogicPort,
                                                               uint32_t* pulPhyPort);

/*
 * The reverse never succeeds: logic port 0 is asked for where the one found is
 * meant.
 * Returns -1 as above; -2 for a null pointer; -22; -23 for physical port 0 and those
 * above 1280.
 */
SYS_CONTEXT_API int32_t ddRunGetSwitchChipLogicPortFromPhyPort(uint32_t ulPhyPort,
                                                               uint32_t* pulLogicPort);

SYS_CONTEXT_END

#endif
