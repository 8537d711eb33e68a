/*
 * Compiled as C and as C++: the smallest program that needs the installed package.
 * abi/platform_symbols.c stands in for the platform.
 */
#include <stdio.h>

#include "sys_context/frame.h"

int main(void) {
  uint32_t can = 0;
  printf("ddIsRealSlot 0: %d\n", (int)ddIsRealSlot(0, &can));
  return 0;
}
