// The host in C, compiled as C++: it takes the address of everything that is exported.
#include "c_consumer.c"
