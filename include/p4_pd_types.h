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

/* Codes of the library itself; p4_pd_describe_status says them in words. One marked (caller) stands
 * for an error in the arguments: the call made no SDK call and wrote nothing. The exception is a
 * null action_spec in get_entry, which counts only when the entry that was read has parameters.
 *
 * The numbers 2, 3, 6 and 15 are statuses of the SDK too (BF_NO_MEMORY, BF_INVALID_ARGUMENT,
 * BF_NO_ACTION_DATA and BF_FOREIGN_ACTION). A caller cannot tell which of the two was meant, and a
 * switch names one of them. */
#define P4_PD_NO_MEMORY 2u
#define P4_PD_UNKNOWN_SELECTION 3u
#define P4_PD_NO_ACTION_DATA 6u
#define P4_PD_FOREIGN_ACTION 15u
#define P4_PD_NULL_ARGUMENT 0x1001u        /* (caller) */
#define P4_PD_METER_SPEC_MISSING 0x1002u   /* (caller) */
#define P4_PD_METER_TYPE_REFUSED 0x1003u   /* (caller) */
#define P4_PD_MEMBER_STATE_REFUSED 0x1004u /* (caller) */
#define P4_PD_DRIVER_REFUSED 0x1005u
#define P4_PD_UNKNOWN_HANDLE 0x1006u
#define P4_PD_MEMBER_KEEPS_ACTION 0xffffffffu

/* A status in words: the name of its constant and one sentence. */
typedef struct p4_pd_status_info {
  p4_pd_status_t status;
  const char *name;
  const char *text;
} p4_pd_status_info_t;

/* The words for a code of the library; name and text are null for any other status. */
static inline p4_pd_status_info_t p4_pd_describe_status(p4_pd_status_t status) {
  static const p4_pd_status_info_t codes[] = {
      {P4_PD_NO_MEMORY, "P4_PD_NO_MEMORY", "Scratch memory could not be allocated."},
      {P4_PD_UNKNOWN_SELECTION, "P4_PD_UNKNOWN_SELECTION",
       "A selection that this object does not have: input, algorithm, field or name."},
      {P4_PD_NO_ACTION_DATA, "P4_PD_NO_ACTION_DATA", "The entry holds no action data of its own."},
      {P4_PD_FOREIGN_ACTION, "P4_PD_FOREIGN_ACTION",
       "The default entry holds no direct action data, or an action is not one of the table's or "
       "profile's."},
      {P4_PD_NULL_ARGUMENT, "P4_PD_NULL_ARGUMENT", "A mandatory pointer is null."},
      {P4_PD_METER_SPEC_MISSING, "P4_PD_METER_SPEC_MISSING",
       "The table's direct meter needs a meter spec on add."},
      {P4_PD_METER_TYPE_REFUSED, "P4_PD_METER_TYPE_REFUSED",
       "The meter type is unknown, or colour-aware for a meter without a pre-colour."},
      {P4_PD_MEMBER_STATE_REFUSED, "P4_PD_MEMBER_STATE_REFUSED",
       "The member state is neither active nor inactive."},
      {P4_PD_DRIVER_REFUSED, "P4_PD_DRIVER_REFUSED",
       "The driver framework refused the registration of the client."},
      {P4_PD_UNKNOWN_HANDLE, "P4_PD_UNKNOWN_HANDLE",
       "No profile of the program has this action-data handle."},
      {P4_PD_MEMBER_KEEPS_ACTION, "P4_PD_MEMBER_KEEPS_ACTION",
       "The member has another action, which it keeps for life."}};
  p4_pd_status_info_t info = {status, NULL, NULL}; /* C: NOLINT(modernize-use-nullptr) */
  size_t i;
  for (i = 0; i < sizeof codes / sizeof codes[0]; ++i) {
    if (codes[i].status == status) info = codes[i];
  }
  return info;
}

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
