/* Driver framework: clients of the device and the callbacks through which it reaches them. */
#ifndef BF_DRV_H
#define BF_DRV_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

struct cJSON;

/* What a client offers to the framework: 29 slots, each empty (null) or a callback. The framework
 * copies the record during registration. The document passed to log and restore belongs to the
 * framework: log adds to an object, and restore is given the object that log has filled. */
typedef struct bf_drv_client_callbacks {
  void (*reserved_before[3])(void);
  bf_status_t (*device_remove)(bf_device_id_t device);
  bf_status_t (*device_log)(uint8_t device, struct cJSON *document);
  bf_status_t (*device_restore)(uint8_t device, struct cJSON *document);
  void (*reserved_after[23])(void);
} bf_drv_client_callbacks_t;

/* Registers a client under its name, which is read during the call, and writes its handle. A name
 * that is registered already is refused. */
bf_status_t bf_drv_register(const char *client_name, uint32_t *client);

/* Binds callbacks to a client. Clients are called in ascending order of priority. */
bf_status_t bf_drv_client_register_callbacks(uint32_t client,
                                             const bf_drv_client_callbacks_t *callbacks,
                                             uint32_t priority);

/* Removes a client and its callbacks. */
bf_status_t bf_drv_deregister(uint32_t client);

#ifdef __cplusplus
}
#endif

#endif
