/* The card's work folder, on a desk. A host on the card does without. */
#ifndef DESK_H
#define DESK_H

/* Files of /mnt/work are read from this folder from now on. The text stays the caller's. */
void use_work_folder(const char* folder);

#endif
