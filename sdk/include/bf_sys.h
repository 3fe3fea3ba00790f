/* Allocator of the device SDK. */
#ifndef BF_SYS_H
#define BF_SYS_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Zeroed memory for count elements of size bytes each, aligned for any object, or null when there
 * is none. The caller releases it with bf_sys_free. Both may be called from any thread. */
void *bf_sys_calloc(size_t count, size_t size);

/* Releases memory from bf_sys_calloc; null is allowed. */
void bf_sys_free(void *memory);

#ifdef __cplusplus
}
#endif

#endif
