/* A P4 program as the soft SDK learns it: objects, handles, key shapes and widths, as data. The
 * generator of a control-plane library emits one description per program, the constant
 * soft_program_<program> in a shared library of that name. A host that links it declares it,
 *   extern const soft_program_t soft_program_<program>;
 * one that loads it by name looks the symbol up; either hands it over when it creates a device.
 * The SDK keeps the pointer, so the description must outlive the device. */
#ifndef SOFT_PROGRAM_H
#define SOFT_PROGRAM_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

enum soft_match_kind { SOFT_EXACT = 0, SOFT_TERNARY = 1, SOFT_LPM = 2 };

/* One key field; its bytes stand big-endian at offset in the key. */
typedef struct soft_key_field {
  const char *name;
  uint8_t match;  /* enum soft_match_kind */
  uint16_t width; /* bits */
  uint16_t offset;
  uint16_t bytes;
} soft_key_field_t;

/* An action that entries of a table or members of a profile may carry. */
typedef struct soft_action {
  const char *name;
  uint32_t handle;
  uint16_t data_bits;
  uint16_t data_bytes;
  bool may_be_default;
  bool default_only; /* of a table with a key: entries may not carry it */
} soft_action_t;

/* A counter, meter or register that an entry refers to, and which of its cells; 0 of a direct one.
 */
typedef struct soft_cell {
  uint32_t resource;
  uint32_t index;
} soft_cell_t;

/* The default entry of a table on a fresh device, and after a reset. */
typedef struct soft_default {
  uint32_t action;     /* handle of one that may be the default */
  const uint8_t *data; /* data_bytes of the action */
  const soft_cell_t *cells;
  uint32_t cell_count; /* at most PIPE_RESOURCES_PER_ACTION */
} soft_default_t;

typedef struct soft_table {
  const char *name;
  uint32_t handle;
  uint8_t match; /* the most general kind of its fields */
  uint16_t key_bits;
  uint16_t key_bytes;             /* 0: a keyless table */
  const soft_key_field_t *fields; /* in declaration order */
  uint32_t field_count;
  const soft_action_t *actions; /* none when the table is bound to a profile */
  uint32_t action_count;
  uint32_t action_data_table; /* of the profile it is bound to, or 0 */
  bool ages_entries;
  /* The bits that packets are compared in, key_bytes of them; null: all. Entries hold whole fields
   * none the less, and two that differ elsewhere are two. */
  const uint8_t *compared;
  const soft_default_t *default_entry; /* null: none */
  uint32_t size;                       /* capacity of a fresh device; 0: unlimited */
} soft_table_t;

typedef struct soft_profile {
  const char *name;
  uint32_t action_data_table;
  uint32_t selector;
  const soft_action_t *actions;
  uint32_t action_count;
  uint32_t most_members; /* capacities of a fresh device; 0: unlimited */
  uint32_t most_groups;
} soft_profile_t;

/* Counter: a cell per entry of table, or an array of cells when table is 0. */
typedef struct soft_counter {
  const char *name;
  uint32_t handle;
  uint32_t table;
} soft_counter_t;

/* Meter: as above; unit is PIPE_RATE_BYTES or PIPE_RATE_PACKETS. */
typedef struct soft_meter {
  const char *name;
  uint32_t handle;
  uint32_t table;
  uint32_t unit;
} soft_meter_t;

typedef struct soft_register {
  const char *name;
  uint32_t handle;
  uint16_t width; /* bits of a cell: 1, 8, 16 or 32 */
} soft_register_t;

typedef struct soft_hash {
  const char *name;
  uint32_t handle;
  uint32_t field_list;
  uint32_t algorithm;
  uint32_t field_count;
} soft_hash_t;

typedef struct soft_digest_field {
  const char *name;
  uint16_t offset;
  uint16_t bytes;
} soft_digest_field_t;

typedef struct soft_digest {
  const char *name;
  uint32_t handle;
  uint16_t entry_bytes;
  const soft_digest_field_t *fields;
  uint32_t field_count;
} soft_digest_t;

typedef struct soft_value_set {
  const char *name;
  uint32_t handle;
} soft_value_set_t;

#define SOFT_NOT_CAPTURED 0xffffu

/* A field of a snapshot record, big-endian at offset. A capture has it at captured_at. */
typedef struct soft_snapshot_field {
  const char *name;
  uint16_t offset;
  uint16_t bytes;
  uint16_t captured_at; /* or SOFT_NOT_CAPTURED */
} soft_snapshot_field_t;

typedef struct soft_snapshot_layout {
  const soft_snapshot_field_t *fields;
  uint32_t field_count;
} soft_snapshot_layout_t;

typedef struct soft_program {
  const char *name;
  const soft_table_t *tables;
  uint32_t table_count;
  const soft_profile_t *profiles;
  uint32_t profile_count;
  const soft_counter_t *counters;
  uint32_t counter_count;
  const soft_meter_t *meters;
  uint32_t meter_count;
  const soft_register_t *registers;
  uint32_t register_count;
  const soft_hash_t *hashes;
  uint32_t hash_count;
  const soft_digest_t *digests;
  uint32_t digest_count;
  const soft_value_set_t *value_sets;
  uint32_t value_set_count;
  uint32_t snapshot_bytes; /* size of a trigger or capture record, 0 when there are no snapshots */
  soft_snapshot_layout_t snapshot_layouts[2]; /* of packets and triggers: ingress, egress */
  soft_snapshot_layout_t snapshot_capture;    /* of captures; without fields: as the packet's */
} soft_program_t;

#ifdef __cplusplus
}
#endif

#endif
