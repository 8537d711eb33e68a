/*
 * The reserved code areas: 8192 zero bytes at the start (AREA 0) and at the end
 * (AREA 1) of the library's code, between two exported labels. Nothing in the
 * library reads or writes them.
 *
 * The first one lies in .text.unlikely, which the GNU linker puts in front of
 * .text's other parts; cmake/library.cmake links the two objects first and last.
 */
#define PASTE(a, b) a##b
#define LABEL(name, area) PASTE(name, area)
#define BEGIN_LABEL LABEL(vkpJumpTableEntryBegin_, AREA)
#define END_LABEL LABEL(vkpJumpTableEntryEnd_, AREA)

#ifdef __arm__
    .arm /* labels at even addresses */
#endif
#if AREA == 0
    .section .text.unlikely, "ax", %progbits
#else
    .section .text, "ax", %progbits
#endif
    .balign 16
    .globl BEGIN_LABEL
    .globl END_LABEL
    .type BEGIN_LABEL, %function
    .type END_LABEL, %function
BEGIN_LABEL:
    .zero 8192
    .size BEGIN_LABEL, 8192
END_LABEL:

    .section .note.GNU-stack, "", %progbits
