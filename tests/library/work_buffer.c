/*
 * The work buffer of ddReadContextFile: nobody uses its bytes, so a compiler
 * might do without it. This host stands its own allocator in front of the C
 * library's and watches the delivered library take the memory, zero all of it
 * and give it back.
 */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "host.h"
#include "sys_context/context.h"

#define WORK_BUFFER 3072000u
#define LARGE 1000000u

/* ---- The allocator ------------------------------------------------------------ */

/* Blocks are cut from one arena and never used again. Each has its size in
 * front of it. */
static union {
  max_align_t align;
  unsigned char bytes[32u << 20];
} arena;
static size_t arena_used;

#define HEADER sizeof(max_align_t)

/* What was seen of large blocks. */
static struct {
  int refuse;
  int allocations;
  size_t size;
  unsigned char* block;
  int opened_before;
  int frees;
  int opened_until_free;
  int bytes_not_zero;
} seen;

static void* take(size_t size, int filling) {
  if (size >= LARGE && seen.refuse) {
    seen.allocations++;
    return NULL;
  }
  const size_t whole = HEADER + (size + HEADER - 1) / HEADER * HEADER;
  if (whole < size || whole > sizeof arena.bytes - arena_used) {
    return NULL;
  }
  unsigned char* const start = arena.bytes + arena_used;
  arena_used += whole;
  memcpy(start, &size, sizeof size);
  memset(start + HEADER, filling, size);
  if (size >= LARGE) {
    seen.allocations++;
    seen.size = size;
    seen.block = start + HEADER;
    seen.opened_before = files_opened();
  }
  return start + HEADER;
}

void* malloc(size_t size) {
  return take(size, 0xa5);
}

void* calloc(size_t count, size_t size) {
  return size != 0 && count > SIZE_MAX / size ? NULL : take(count * size, 0);
}

void* realloc(void* block, size_t size) {
  void* const larger = take(size, 0xa5);
  if (block != NULL && larger != NULL) {
    size_t old;
    memcpy(&old, (unsigned char*)block - HEADER, sizeof old);
    memcpy(larger, block, old < size ? old : size);
  }
  return larger;
}

void free(void* block) {
  if (block == NULL || block != seen.block) {
    return;
  }
  seen.frees++;
  seen.opened_until_free = files_opened();
  for (size_t i = 0; i < seen.size; i++) {
    seen.bytes_not_zero += seen.block[i] != 0;
  }
}

/* ---- What is expected ----------------------------------------------------------- */

static void the_buffer_was_taken_zeroed_and_given_back(void) {
  CHECK(seen.allocations == 1);
  CHECK(seen.size == WORK_BUFFER);
  CHECK(seen.frees == 1);
  CHECK(seen.bytes_not_zero == 0);
}

static void around_a_good_parse(void) {
  memset(&seen, 0, sizeof seen);
  set_definition_file(
      "[Version]\nSupportedSoftwareVer=V\n[ModuleTypeList]\nModuleNum=0\n"
      "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=0\n"
      "[SupportedOltPortType]\nSupportedOltPortTypeNum=1\nSupportedOltPortType1=P\n"
      "[P]\nType=2\nName=GPON\nSplittingRatio=128\n"
      "[SupportedMainBoardType]\nSupportedMainBoardTypeNum=1\nSupportedMainBoardType1=M\n"
      "[M]\nType=101\nName=MCXA\nSwitchChipLogicPortNum=0\n"
      "SpecialChipLogicPortMapPhyPortCardNum=0\n"
      "[SupportedBoardType]\nSupportedBoardTypeNum=1\nSupportedBoardType1=B\n"
      "[B]\nType=3401\nName=PWDA\nPortNum=0\nSpecialPortNum=0\n"
      "[KT3300-L_FrameInfomation]\nType=15\nName=F\nMaxOnuNum=1\nMaxUserNum=2\n"
      "RealSlotNum=1\nRealSlotList=1\nVirtualSlotNum=0\nHcuSlotNum=0\nFanSlotNum=0\nCioSlotNum=0\n"
      "PowerSlotNum=0\nServeBoardSlotNum=0\nMainSlotNum=0\nUplinkSlotNum=0\n"
      "SupportedBoardTypeSlot1=PWDA\nSwitchChipLogicPortNum=0\nType2SwitchChipLogicPortNum=0\n"
      "[SupportedOnuPonType]\nSupportedOnuPonTypeNum=1\nSupportedOnuPonType1=OP\n"
      "[OP]\nType=2\nName=GPON\n"
      "[SupportedOnuLanType]\nSupportedOnuLanTypeNum=1\nSupportedOnuLanType1=OL\n"
      "[OL]\nType=2\nName=GE\n"
      "[SupportedOnuPotsType]\nSupportedOnuPotsTypeNum=1\nSupportedOnuPotsType1=OT\n"
      "[OT]\nType=1\nName=FXS\n"
      "[SupportedOnuSpecialPortType]\nSupportedOnuSpecialPortTypeNum=1\n"
      "SupportedOnuSpecialPortType1=OS\n[OS]\nType=1\nName=CATV\n"
      "[SupportedOnuType]\nSupportedOnuTypeNum=1\nSupportedOnuType1=O\n"
      "[O]\nType=6001\nName=KT-G101\nPonNum=1\nNameKeyPon1=GPON\n"
      "LanPortNum=0\nPotsPortNum=0\nSpecialPortNum=0\n");
  platform.device_type = 15;
  const int before = files_opened();
  catch_console();
  const int32_t code = ddReadContextFile();
  const char* const said = console_text();
  CHECK(code == 0);
  CHECK(strcmp(said, "") == 0);
  the_buffer_was_taken_zeroed_and_given_back();
  const int after = files_opened();
  CHECK(after > before);
  CHECK(seen.opened_before == before);    /* nothing was read before */
  CHECK(seen.opened_until_free == after); /* and all of it meanwhile */
}

static void around_a_failing_parse(void) {
  memset(&seen, 0, sizeof seen);
  set_definition_file(NULL);
  const int before = files_opened();
  catch_console();
  const int32_t code = ddReadContextFile();
  console_text();
  CHECK(code == -31);
  the_buffer_was_taken_zeroed_and_given_back();
  CHECK(seen.opened_before == before);
  CHECK(seen.opened_until_free == before + 1);
}

static void without_memory(void) {
  memset(&seen, 0, sizeof seen);
  seen.refuse = 1;
  set_definition_file("[Version]\nSupportedSoftwareVer=V\n");
  const int before = files_opened();
  catch_console();
  const int32_t code = ddReadContextFile();
  const char* const said = console_text();
  CHECK(code == -1);
  CHECK(strcmp(said, "\r\nddReadContextFile err! Not enough memory for pFileBuf buffer.\r\n") == 0);
  CHECK(seen.allocations == 1 && seen.frees == 0);
  CHECK(files_opened() == before);
}

int main(void) {
  around_a_good_parse();
  around_a_failing_parse();
  without_memory();
  return failures() == 0 ? 0 : 1;
}
