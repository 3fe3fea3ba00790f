/* Types shared by every control-plane library that this generator makes. A program's own header
 * adds its records and functions. */
#ifndef P4_PD_TYPES_H
#define P4_PD_TYPES_H

#include "bf_drv.h"
#include "bf_snapshot.h"
#include "p4_pd_ms.h"
#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Status of every operation: BF_SUCCESS, a status of the SDK (bf_types.h) passed on unchanged, or
 * one of the codes below. */
typedef uint32_t p4_pd_status_t;

/* A session of the SDK; the caller opens and closes it there. */
typedef uint32_t p4_pd_session_handle_t;

/* A device and one of its pipes, or BF_ALL_PIPES. */
typedef struct p4_pd_device_target {
  uint32_t device_id;
  uint16_t pipe_id;
} p4_pd_device_target_t;

/* A parser of a device: direction is 0 for ingress and 1 for egress. */
typedef struct p4_pd_parser_target {
  uint32_t device_id;
  uint32_t direction;
  uint16_t pipe_id;
  uint8_t parser_id;
} p4_pd_parser_target_t;

/* Handles that the pipeline manager issues for entries, members and groups of a device. */
typedef uint32_t p4_pd_entry_handle_t;
typedef uint32_t p4_pd_member_handle_t;
typedef uint32_t p4_pd_group_handle_t;

/* Codes of the library itself. A call that returns one of those marked (caller) has found an error
 * in its arguments: it made no SDK call and wrote nothing. */
enum {
  /* Scratch memory could not be allocated. */
  P4_PD_NO_MEMORY = 2,
  /* A selection that this object does not have: input, algorithm, field or name. */
  P4_PD_UNKNOWN_SELECTION = 3,
  /* The entry holds no action data of its own. */
  P4_PD_NO_ACTION_DATA = 6,
  /* The default entry holds no direct action data, or an action is not one of the table's. */
  P4_PD_FOREIGN_ACTION = 15,
  /* (caller) A mandatory pointer is null. */
  P4_PD_NULL_ARGUMENT = 0x1001,
  /* (caller) The table's direct meter needs a meter spec on add. */
  P4_PD_METER_SPEC_MISSING = 0x1002,
  /* (caller) The meter type is unknown, or colour-aware for a meter without a pre-colour. */
  P4_PD_METER_TYPE_REFUSED = 0x1003,
  /* (caller) The member state is neither active nor inactive. */
  P4_PD_MEMBER_STATE_REFUSED = 0x1004,
  /* The driver framework refused the registration of the client. */
  P4_PD_DRIVER_REFUSED = 0x1005,
  /* (caller) No table or profile of the program has this handle. */
  P4_PD_UNKNOWN_HANDLE = 0x1006,
  /* The member has another action, which it keeps for life. */
  P4_PD_MEMBER_KEEPS_ACTION = -1
};

/* ---- Meters ---- */

enum { PD_METER_TYPE_COLOR_AWARE = 0, PD_METER_TYPE_COLOR_UNAWARE = 1 };

/* A two-rate meter of bytes: rates in kilobits per second, bursts in kilobits. */
typedef struct p4_pd_bytes_meter_spec {
  uint32_t committed_rate;
  uint32_t committed_burst;
  uint32_t peak_rate;
  uint32_t peak_burst;
  uint32_t meter_type; /* PD_METER_TYPE_* */
} p4_pd_bytes_meter_spec_t;

/* A two-rate meter of packets: rates in packets per second, bursts in packets. */
typedef struct p4_pd_packets_meter_spec {
  uint32_t committed_rate;
  uint32_t committed_burst;
  uint32_t peak_rate;
  uint32_t peak_burst;
  uint32_t meter_type; /* PD_METER_TYPE_* */
} p4_pd_packets_meter_spec_t;

/* A weighted random early detection profile, in the SDK's units. */
typedef pipe_mgr_wred_spec_t p4_pd_wred_params_t;

/* ---- Counters ---- */

/* One counter cell. */
typedef struct p4_pd_counter_values {
  uint64_t packets;
  uint64_t bytes;
} p4_pd_counter_values_t;

/* Flags of counter and register reads: bring the value up to date from the hardware first. */
#define P4_PD_READ_FROM_HARDWARE 1u

/* ---- Idle time ---- */

typedef pipe_mgr_idle_params_t p4_pd_idle_time_params_t;

/* ---- Groups ---- */

enum { P4_PD_GRP_MBR_STATE_ACTIVE = 0, P4_PD_GRP_MBR_STATE_INACTIVE = 1 };

/* ---- Hash calculations ---- */

/* An attribute of an input field, or one field value of a calculation; the value word of a field
 * wider than 32 bits is the address of its bytes, most significant first. */
typedef pipe_mgr_hash_attribute_t p4_pd_hash_calc_attr_t;

/* The same for the functions that take the name of a calculation. */
typedef struct p4_pd_hash_field_attr {
  uint32_t field; /* common field index */
  uint32_t value;
  uint32_t reserved; /* read back as 0, not looked at when set */
} p4_pd_hash_field_attr_t;

#ifdef __cplusplus
}
#endif

#endif
