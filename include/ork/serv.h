/* Service layer: memory and messages.
 *
 * libork_outer.so defines these; the kernels call them through the PLT, so a program
 * may define its own and have the library use them.
 */
#ifndef ORK_SERV_H
#define ORK_SERV_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A block of `size` bytes whose address is a multiple of `alignment` (a power of two;
 * the kernels ask for 128), or null. A size of 0 gives a block that may be released.
 * Thread-safe. */
void* ork_serv_allocate(size_t size, size_t alignment);

/* Releases a block of ork_serv_allocate; null is allowed. Thread-safe. */
void ork_serv_deallocate(void* block);

/* Writes one line to the standard error stream: the message with the given number, its
 * `count` values filled in. Error reports of vector kernels use the numbers 735 to 753:
 *
 *   735             name (char*), index (int)   a rejected argument
 *   736 to 741      name (char*)                head line of a report
 *   742 to 753      index (int), value (double) one argument or result
 *
 * `kind` is 1 in every call of the kernels and is not read. An unknown number gives a
 * line that names the number. Thread-safe: a line is written whole. */
void ork_serv_print(int kind, int message, int count, ...);

#ifdef __cplusplus
}
#endif

#endif
