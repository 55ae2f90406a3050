/*
 * Darwin notifications: names posted by any process on the device reach every process that
 * registered for them; each name also carries a 64-bit state shared by all processes.
 */
#ifndef _NOTIFY_H_
#define _NOTIFY_H_

#include <stdbool.h>
#include <stdint.h>
#include <dispatch/dispatch.h>

#ifdef __cplusplus
extern "C" {
#endif

#define NOTIFY_STATUS_OK 0
#define NOTIFY_STATUS_INVALID_NAME 1
#define NOTIFY_STATUS_INVALID_TOKEN 2
#define NOTIFY_STATUS_INVALID_PORT 3
#define NOTIFY_STATUS_INVALID_FILE 4
#define NOTIFY_STATUS_INVALID_SIGNAL 5
#define NOTIFY_STATUS_INVALID_REQUEST 6
#define NOTIFY_STATUS_NOT_AUTHORIZED 7
#define NOTIFY_STATUS_OPT_DISABLE 8
#define NOTIFY_STATUS_SERVER_NOT_FOUND 9
#define NOTIFY_STATUS_NULL_INPUT 10
#define NOTIFY_STATUS_FAILED 1000000

#define NOTIFY_TOKEN_INVALID (-1)

#define NOTIFY_REUSE 0x00000001

#ifdef __BLOCKS__
typedef void (^notify_handler_t)(int token);
#endif

extern uint32_t notify_post(const char *name);
extern uint32_t notify_register_check(const char *name, int *out_token);
extern uint32_t notify_register_plain(const char *name, int *out_token);
#ifdef __BLOCKS__
extern uint32_t notify_register_dispatch(const char *name, int *out_token, dispatch_queue_t queue,
                                         notify_handler_t handler);
#endif
extern uint32_t notify_check(int token, int *check);
extern uint32_t notify_cancel(int token);
extern uint32_t notify_set_state(int token, uint64_t state64);
extern uint32_t notify_get_state(int token, uint64_t *state64);
extern bool notify_is_valid_token(int val_token);

#ifdef __cplusplus
}
#endif

#endif
