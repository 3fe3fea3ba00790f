/* Control of the soft SDK: what a host does to the device itself, beside the contract that a
 * control-plane library calls. Every function may be called from any thread. Out-parameters are
 * written on success only. */
#ifndef SOFT_SDK_H
#define SOFT_SDK_H

#include "bf_drv.h"
#include "bf_types.h"
#include "soft_program.h"

#ifdef __cplusplus
extern "C" {
#endif

struct cJSON;

/* ---- Devices ---- */
#define SOFT_DEVICE_LIMIT 256u /* device ids are 0 to 255 */
#define SOFT_PIPE_LIMIT 8u     /* pipes of a device */

/* Creates a device of pipe_count pipes (1 to SOFT_PIPE_LIMIT) that runs the program. Its tables are
 * empty and have the default entries that the program declares. A virtual device takes the same
 * calls; its state can be replayed onto another device.
 * BF_ALREADY_EXISTS: the id is taken. BF_INVALID_ARGUMENT: a null program, a pipe count out of
 * range, or a program that describes two objects under one handle. */
bf_status_t soft_device_create(bf_device_id_t device, uint32_t pipe_count,
                               const soft_program_t *program, bool virtual_device);

/* Removes a device: runs the device_remove callbacks of the registered clients in ascending order
 * of priority while the device still answers, waits for calls in progress, and drops all contents.
 * Callbacks are all run; their statuses are not looked at.
 * BF_IN_USE: called from inside a callback of the SDK, which would wait for itself.
 * BF_NOT_READY: another thread is removing the device. BF_NO_MEMORY: nothing has happened. */
bf_status_t soft_device_remove(bf_device_id_t device);

/* Makes a device the same as another one of the same program and number of pipes: entries, default
 * entries, members, groups and fallbacks under the same handles, settings of tables and profiles,
 * ageing, counters, meters with the tokens that they have, registers with both copies of each cell,
 * hash calculations, value sets, WRED profiles, snapshots, and digest entries that wait to be sent.
 * What is added to either device afterwards gets the same handles. What the device held before is
 * gone. It stays virtual or not, and its snapshots have its own number in their handles.
 *
 * The listeners of both devices stay and hear nothing. A digest message that was sent stays with
 * the device that sent it, readable until it is acknowledged; its entries are unknown to the copy.
 * What the member-selector states (p4_pd_ms.h) hold of the device is copied with it. State that a
 * driver client keeps elsewhere is not: soft_device_log and soft_device_restore bring it over.
 *
 * Nobody may change either device meanwhile. Calls that read meet the old contents or the new ones,
 * never something between; those in progress on the device are waited for.
 * BF_INVALID_ARGUMENT: one device twice, or two that differ in program or pipes.
 * BF_IN_USE: called from inside a callback of the SDK.
 * BF_NOT_READY: another thread is removing the device or copying to it.
 * BF_NO_MEMORY: nothing has changed; nor has it after any other failure. */
bf_status_t soft_device_copy(bf_device_id_t from, bf_device_id_t to);

/* Whether a device has this id. */
bool soft_device_exists(bf_device_id_t device);

/* Writes up to capacity ids in ascending order and returns how many devices there are. */
uint32_t soft_device_list(bf_device_id_t *devices, uint32_t capacity);

/* ---- Sessions ---- */
/* A session is good for every device and, at a time, for any number of threads. BF_NO_MEMORY: 1024
 * sessions are open. */
bf_status_t soft_session_open(pipe_session_handle_t *session);
bf_status_t soft_session_close(pipe_session_handle_t session);

/* ---- Driver clients ---- */
/* How many clients are registered. */
uint32_t soft_client_count(void);

/* The registration of a client: handle, priority and callbacks. A client that has registered no
 * callbacks yet has priority 0 and empty ones. Null out-parameters are skipped. */
bf_status_t soft_client_get(const char *client_name, uint32_t *client, uint32_t *priority,
                            bf_drv_client_callbacks_t *callbacks);

/* Saves or restores the state that the clients keep for a device, through their callbacks, in
 * ascending order of priority. The document is an object of the caller; log adds to it
 *   "clients": [ { "client": <name>, "state": <object filled by the callback> }, ... ]
 * with one element for each client that has a log callback. Restore hands each state to the client
 * of that name and skips clients that are not registered. The first status other than BF_SUCCESS
 * ends the call. BF_CORRUPT_DATA: the document is not of this shape. */
bf_status_t soft_device_log(bf_device_id_t device, struct cJSON *document);
bf_status_t soft_device_restore(bf_device_id_t device, const struct cJSON *document);

/* ---- Statuses ---- */
/* The name of a status ("BF_TABLE_FULL") and what it says, as one sentence. Both are constants,
 * also for a status that does not exist. */
const char *soft_status_name(bf_status_t status);
const char *soft_status_text(bf_status_t status);

/* ---- Tables ---- */
/* Greatest number of entries of a match table, 0 unlimited: the property PIPE_TABLE_CAPACITY
 * without a session, at first the size that the program states. A capacity below the number of
 * entries keeps them and refuses new ones. */
bf_status_t soft_table_capacity_set(bf_device_id_t device, pipe_object_handle_t table,
                                    uint32_t capacity);
bf_status_t soft_table_capacity_get(bf_device_id_t device, pipe_object_handle_t table,
                                    uint32_t *capacity);

/* Which entry does a key hit in a pipe? key has the length of the table's key; exact, longest
 * prefix, or the smallest priority number (among equals the oldest entry) by the kind of table.
 * Without a hit the default entry is the answer and is_default is set (null: not wanted).
 * BF_TABLE_MISS: no hit and no default entry. Nothing is counted and no entry grows young. */
bf_status_t soft_lookup(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t table,
                        const uint8_t *key, uint32_t length, pipe_entry_handle_t *entry,
                        bool *is_default);

/* Sends a packet of packet_bytes through the table: the same question, and then what traffic does
 * to the entry that was hit. Its idle time starts anew, its hit state is active, and its counters
 * count the packet in the device (software copies follow with a synchronisation). soft_traffic.h
 * has the whole of it, with meters and with members of profiles. */
bf_status_t soft_packet(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t table,
                        const uint8_t *key, uint32_t length, uint32_t packet_bytes,
                        pipe_entry_handle_t *entry, bool *is_default);

/* ---- Virtual clock ---- */
/* Milliseconds since the process started its clock at 0; time passes only here. Advancing ages the
 * entries of all devices and runs expiry callbacks on the calling thread, oldest expiry first in
 * each table, before it returns. */
void soft_clock_advance(uint64_t milliseconds);
uint64_t soft_clock_now(void);

/* The clock of one device alone, which runs ahead of the process. A copy of a device, and
 * what its state is replayed to, have its time. BF_INVALID_DEVICE means what it says,
 * BF_INVALID_ARGUMENT: the out-parameter is null. */
bf_status_t soft_device_clock_advance(bf_device_id_t device, uint64_t milliseconds);
bf_status_t soft_device_clock_now(bf_device_id_t device, uint64_t *milliseconds);

/* ---- Memory ---- */
/* Bytes that an object of a device holds for its contents, or the whole device when handle is 0. */
bf_status_t soft_memory_bytes(bf_device_id_t device, pipe_object_handle_t handle, uint64_t *bytes);

/* Blocks from bf_sys_calloc that are not released yet, and all that were ever handed out. */
uint64_t soft_allocations_live(void);
uint64_t soft_allocations_made(void);

#ifdef __cplusplus
}
#endif

#endif
