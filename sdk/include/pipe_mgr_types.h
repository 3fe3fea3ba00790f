/* Records and callbacks of the pipeline manager. Every pointer inside a record belongs to the
 * caller and is read or written during the call only. */
#ifndef PIPE_MGR_TYPES_H
#define PIPE_MGR_TYPES_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Match entries ---- */

/* A key: value and mask bytes of equal length. Read-back fills the caller's buffers; an entry
 * without a key (a default entry) leaves value and mask null. */
typedef struct pipe_mgr_match_spec {
  uint32_t scope;           /* 0: the whole table */
  uint16_t valid_bit_count; /* sum of the widths of the key fields */
  uint16_t byte_count;      /* length of value and of mask */
  uint8_t *value;
  uint8_t *mask;
  uint16_t reserved[3];
  uint32_t priority; /* of ternary and lpm entries; the smallest number wins */
} pipe_mgr_match_spec_t;

/* Parameters of an action, each in whole bytes, big-endian. On read-back byte_count is the
 * capacity of bytes before the call and the length after it. */
typedef struct pipe_mgr_action_data {
  uint16_t valid_bit_count;
  uint16_t byte_count;
  uint8_t *bytes;
} pipe_mgr_action_data_t;

enum { PIPE_METER_COLOR_AWARE = 0, PIPE_METER_COLOR_UNAWARE = 1 };

enum { PIPE_RATE_BYTES = 0, PIPE_RATE_PACKETS = 1 };

/* A rate per second: kilobits for a bytes-based meter, packets for a packets-based one. */
typedef struct pipe_mgr_rate {
  uint32_t unit; /* PIPE_RATE_BYTES or PIPE_RATE_PACKETS */
  uint64_t value;
} pipe_mgr_rate_t;

/* A two-rate meter. Bursts are in kilobits or packets, by the unit of the rates. */
typedef struct pipe_mgr_meter_spec {
  uint32_t type; /* PIPE_METER_COLOR_AWARE or PIPE_METER_COLOR_UNAWARE */
  pipe_mgr_rate_t committed_rate;
  uint64_t committed_burst;
  pipe_mgr_rate_t peak_rate;
  uint64_t peak_burst;
} pipe_mgr_meter_spec_t;

/* One instance of a register cell. A 1-bit register uses bit, a 32-bit register word. */
typedef union pipe_stful_cell {
  uint8_t bit;
  uint32_t word;
  uint8_t bytes[16];
} pipe_stful_cell_t;

/* A counter cell. */
typedef struct pipe_mgr_counter {
  uint64_t bytes;
  uint64_t packets;
} pipe_mgr_counter_t;

enum {
  PIPE_RESOURCE_KEEP = 0, /* leave the resource as it is */
  PIPE_RESOURCE_ATTACH = 1,
  PIPE_RESOURCE_DETACH = 2
};

/* A counter, meter or register that an entry refers to. */
typedef struct pipe_mgr_resource {
  pipe_object_handle_t handle;
  uint32_t index; /* cell of an indirect resource, 0 for a direct one */
  union {
    pipe_mgr_meter_spec_t meter;
    pipe_mgr_counter_t counter;
    pipe_stful_cell_t cell;
  } data;       /* initial contents of a direct resource, zero otherwise */
  uint32_t tag; /* PIPE_RESOURCE_KEEP, _ATTACH or _DETACH */
} pipe_mgr_resource_t;

enum {
  PIPE_ACTION_DATA = 1,   /* the action spec carries the action data itself */
  PIPE_ACTION_MEMBER = 2, /* it names a member of an action profile */
  PIPE_ACTION_GROUP = 4   /* it names a selector group */
};

#define PIPE_RESOURCES_PER_ACTION 4

/* What an entry does. */
typedef struct pipe_mgr_action_spec {
  uint32_t type; /* PIPE_ACTION_DATA, _MEMBER or _GROUP; 0 for the data of a member itself */
  pipe_mgr_action_data_t data;
  pipe_member_handle_t member;
  pipe_group_handle_t group;
  pipe_mgr_resource_t resources[PIPE_RESOURCES_PER_ACTION]; /* filled from index 0 without gaps */
  uint32_t resource_count;
} pipe_mgr_action_spec_t;

/* Table updates, as the callbacks below report them. */
enum {
  PIPE_UPDATE_ADD = 0,
  PIPE_UPDATE_MODIFY = 1,
  PIPE_UPDATE_DELETE = 2,
  PIPE_UPDATE_SET_DEFAULT = 3,
  PIPE_UPDATE_RESET_DEFAULT = 4,
  PIPE_UPDATE_GROUP_CREATE = 5,
  PIPE_UPDATE_GROUP_DELETE = 6,
  PIPE_UPDATE_MEMBER_JOIN = 7,
  PIPE_UPDATE_MEMBER_LEAVE = 8,
  PIPE_UPDATE_MEMBER_ENABLE = 9,
  PIPE_UPDATE_MEMBER_DISABLE = 10
};

/* An entry of a match table changed. Called on the thread that made the change, after it took
 * effect; update is one of PIPE_UPDATE_ADD to PIPE_UPDATE_RESET_DEFAULT. */
typedef void (*pipe_mgr_mat_update_cb_t)(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t table, uint32_t update,
                                         pipe_entry_handle_t entry, void *cookie);

/* A member of an action-data table changed; update is _ADD, _MODIFY or _DELETE. */
typedef void (*pipe_mgr_adt_update_cb_t)(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t action_data_table, uint32_t update,
                                         pipe_member_handle_t member, void *cookie);

/* A group of a selector changed; update is one of the _GROUP_ and _MEMBER_ updates. The member is 0
 * where the update concerns the group alone. Serves both registrations of a selector. */
typedef void (*pipe_mgr_sel_update_cb_t)(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t selector, uint32_t update,
                                         pipe_group_handle_t group, pipe_member_handle_t member,
                                         void *cookie);

/* ---- Table properties ---- */

enum {
  PIPE_TABLE_ENTRY_SCOPE = 1,     /* value: 0 entries go to all pipes, 1 to the named pipe */
  PIPE_TABLE_DUPLICATE_CHECK = 2, /* value: 1 refuse a second entry with the same key (default) */
  PIPE_TABLE_CAPACITY = 3         /* value: greatest number of entries, 0 unlimited (default) */
};

/* ---- Idle time ---- */

enum {
  PIPE_IDLE_POLL = 0,  /* the hit state of entries is read by the client */
  PIPE_IDLE_NOTIFY = 1 /* the client is called when an entry expires */
};

/* Ageing of a table. All words but the mode belong to PIPE_IDLE_NOTIFY. */
typedef struct pipe_mgr_idle_params {
  uint32_t mode;
  uint32_t sweep_interval_ms; /* how often entries are looked at */
  uint32_t max_ttl_ms;        /* greatest time to live that an entry may have, 0 no limit */
  uint32_t min_ttl_ms;        /* smallest one */
  uint32_t default_ttl_ms;    /* of an entry added with 0; 0 such an entry never expires */
  uint32_t reserved;
} pipe_mgr_idle_params_t;

enum { PIPE_ENTRY_IDLE = 0, PIPE_ENTRY_ACTIVE = 1 };

/* An entry was not hit for its time to live. The entry stays in the table. */
typedef void (*pipe_mgr_idle_cb_t)(bf_device_id_t device, pipe_object_handle_t table,
                                   pipe_entry_handle_t entry, void *client_data);

/* ---- Selectors ---- */

enum { PIPE_MEMBER_ACTIVE = 0, PIPE_MEMBER_INACTIVE = 1 };

/* ---- Counters, registers, WRED ---- */

/* A synchronisation is done; called once. */
typedef void (*pipe_mgr_sync_cb_t)(bf_device_id_t device, void *cookie);

/* Cells to fill: count is the capacity before the call and the number filled after it. cells is
 * null where the capacity is 0. */
typedef struct pipe_stful_query {
  uint32_t count;
  pipe_stful_cell_t *cells;
} pipe_stful_query_t;

/* A weighted random early detection profile. */
typedef struct pipe_mgr_wred_spec {
  float time_constant_ns;
  uint32_t min_threshold_cells;
  uint32_t max_threshold_cells;
  float max_probability;
} pipe_mgr_wred_spec_t;

/* ---- Hash calculations ---- */

/* An attribute of an input field, or one field value of a calculation. The value word holds a
 * value of at most 32 bits, or the address of the bytes of a wider one, most significant first. */
typedef struct pipe_mgr_hash_attribute {
  uint32_t field;
  uint32_t type;
  uintptr_t value;
} pipe_mgr_hash_attribute_t;

/* ---- Learning digests ---- */

/* Digest entries of one kind. The message and its entries stay with the SDK until they are
 * acknowledged. */
typedef struct pipe_mgr_digest_message {
  bf_device_id_t device;
  bf_pipe_id_t pipe;
  pipe_object_handle_t digest;
  uint32_t entry_count;
  uint32_t entry_size;    /* bytes */
  const uint8_t *entries; /* entry_count * entry_size bytes, multi-byte fields big-endian */
} pipe_mgr_digest_message_t;

/* Called with each message; its result is not looked at. */
typedef bf_status_t (*pipe_mgr_digest_cb_t)(pipe_session_handle_t session,
                                            pipe_mgr_digest_message_t *message, void *cookie);

/* ---- Parser value sets ---- */

enum {
  PIPE_PVS_CAPACITY = 1 /* value: greatest number of entries per parser */
};

/* ---- Placement data ---- */

/* What the pipeline manager holds of a placed entry or member; opaque. */
typedef struct pipe_mgr_placement pipe_mgr_placement_t;

/* Reports one restored object of a virtual device: a member (group 0), a group (member 0) or a
 * membership (both). A non-zero status ends the replay. */
typedef bf_status_t (*pipe_mgr_replay_cb_t)(pipe_session_handle_t session, uint8_t device,
                                            pipe_object_handle_t action_data_table,
                                            pipe_object_handle_t action, pipe_group_handle_t group,
                                            pipe_member_handle_t member, uint32_t has_resources);

#ifdef __cplusplus
}
#endif

#endif
