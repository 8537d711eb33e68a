/*
 * The least that a host can be: starts the library, runs the commands that it is
 * given, and asks a question.
 *
 *   minimal-host FOLDER [COMMAND...]
 *
 *   FOLDER    has the definition files; the card has them in /mnt/work
 *   COMMAND   such as "show context version"; without one, that
 */
#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>

#include "desk.h"
#include "shell.h"
#include "sys_context/cli.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"

static void show_slots(void) {
  uint32_t first = 0;
  uint32_t last = 0;
  const int32_t code = ddGetServeBoardSlotRange(&first, &last);
  if (code != 0) {
    printf("no range of service board slots: %" PRId32 "\n", code);
    return;
  }
  printf("service boards go into slots %" PRIu32 " to %" PRIu32 "\n", first, last);
}

int main(int argc, char** argv) {
  if (argc < 2) {
    fprintf(stderr, "usage: minimal-host FOLDER [COMMAND...]\n");
    return 2;
  }
  use_work_folder(argv[1]);

  const int32_t code = ddInit();
  if (code != 0) {
    fprintf(stderr, "ddInit: %" PRId32 "; the tables are loaded as far as it came\n", code);
  }
  ddCmdInit(0, 0, 0); /* also after a failure: the commands show how far it came */

  int failed = code != 0;
  if (argc == 2) {
    failed |= run_command("show context version");
  }
  for (int i = 2; i < argc; i++) {
    failed |= run_command(argv[i]);
  }
  show_slots();
  return failed ? EXIT_FAILURE : EXIT_SUCCESS;
}
