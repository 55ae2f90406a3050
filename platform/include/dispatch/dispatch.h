/*
 * Grand Central Dispatch, the part the product uses: the main queue (blocks run in order on
 * the main run loop; delayed ones from a timer on it), the global queues (each block on a
 * background thread) and dispatch_once.
 */
#ifndef DISPATCH_DISPATCH_H
#define DISPATCH_DISPATCH_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#ifndef DISPATCH_EXPORT
#define DISPATCH_EXPORT extern __attribute__((visibility("default")))
#endif

typedef uint64_t dispatch_time_t;
typedef long dispatch_once_t;
typedef struct dispatch_queue_s *dispatch_queue_t;
typedef void (*dispatch_function_t)(void *context);
#ifdef __BLOCKS__
typedef void (^dispatch_block_t)(void);
#endif

#define DISPATCH_TIME_NOW (0ull)
#define DISPATCH_TIME_FOREVER (~0ull)

#ifndef NSEC_PER_SEC
#define NSEC_PER_SEC 1000000000ull
#endif
#ifndef NSEC_PER_MSEC
#define NSEC_PER_MSEC 1000000ull
#endif
#ifndef USEC_PER_SEC
#define USEC_PER_SEC 1000000ull
#endif
#ifndef NSEC_PER_USEC
#define NSEC_PER_USEC 1000ull
#endif

#define DISPATCH_QUEUE_PRIORITY_HIGH 2
#define DISPATCH_QUEUE_PRIORITY_DEFAULT 0
#define DISPATCH_QUEUE_PRIORITY_LOW (-2)
#define DISPATCH_QUEUE_PRIORITY_BACKGROUND (-32768)

DISPATCH_EXPORT dispatch_queue_t dispatch_get_main_queue(void);
DISPATCH_EXPORT dispatch_queue_t dispatch_get_global_queue(long identifier, unsigned long flags);
DISPATCH_EXPORT dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);

DISPATCH_EXPORT void dispatch_async_f(dispatch_queue_t queue, void *context, dispatch_function_t work);
DISPATCH_EXPORT void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void *context,
                                      dispatch_function_t work);
DISPATCH_EXPORT void dispatch_once_f(dispatch_once_t *predicate, void *context, dispatch_function_t function);

#ifdef __BLOCKS__
DISPATCH_EXPORT void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
DISPATCH_EXPORT void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
/* Runs the block and waits for it; on the queue's own thread it runs it at once. */
DISPATCH_EXPORT void dispatch_sync(dispatch_queue_t queue, dispatch_block_t block);
DISPATCH_EXPORT void dispatch_once(dispatch_once_t *predicate, dispatch_block_t block);
#endif

#ifdef __cplusplus
}
#endif

#endif
