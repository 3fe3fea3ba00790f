/* Control-plane interface of the P4 program tiny.
 *
 * Every function runs on the caller's thread and returns the status of the pipeline manager
 * unchanged, or a code of the library (p4_pd_types.h). Records and buffers belong to the
 * caller and are used during the call only. Out-parameters are written on success only,
 * unless a family says otherwise. The functions are grouped by object; what the functions
 * of a family have in common is said once, below.
 *
 * Start and stop
 *   init creates the member-selector states, registers the client with the driver framework and
 *   binds the callbacks for device removal, log and restore. Call it once, before any other
 *   function; P4_PD_NO_MEMORY when a state cannot be made and P4_PD_DRIVER_REFUSED when the
 *   framework refuses the client. cleanup deregisters the client. device_state_cleanup does
 *   nothing. bf_drv_hdl is the client's handle.
 *
 * Tables
 *   For every table. get_mat_table_handle writes the table's handle (a null pointer is skipped).
 *   get_entry_count counts the entries without the default entry. set_property and
 *   get_property take a property of the pipeline manager (PIPE_TABLE_*); get_property writes
 *   0xffffffff to both outputs when it fails. register_mat_update_cb has the pipeline manager
 *   call the caller after each change. table_reset_default_entry puts back the program's own
 *   default entry. supports_entry_priority returns 1 for a ternary table, else 0.
 *
 * Entries
 *   For every keyed table, and for each of its actions where the name ends in one. The pipeline
 *   manager chooses the entry's handle. priority (ternary tables): the smallest number wins.
 *   ttl (tables that age their entries): milliseconds. meter_spec (tables with a direct
 *   meter): required by add, P4_PD_METER_SPEC_MISSING without; null in modify keeps the meter.
 *   match_spec_to_entry_hdl finds the entry with exactly this key and priority. Values beyond
 *   a field's width reach the pipeline manager as they stand, except that masks are cut to the
 *   width. P4_PD_NULL_ARGUMENT for a null match spec or action spec.
 *
 * Default entries
 *   For every table. set_default_action_ exists for each action that may be the default; meter_spec
 *   (tables with a direct meter) may be null, which detaches the meter.
 *   table_get_default_entry of a table with actions of its own fills the action's value and,
 *   for an action with parameters, the member of spec that belongs to it; P4_PD_FOREIGN_ACTION
 *   when the default entry holds no direct action data or an action that the table does not
 *   have. Of a table bound to a profile it tells the member or the group that the default
 *   entry points at; the other handle is not written.
 *
 * Read-back
 *   get_entry fills match_spec, priority (ternary tables), no_key, action_name (at least 61 bytes,
 *   or null), action (the enumeration value, or null) and action_spec, the record of whichever
 *   action the entry holds, written only for an action with parameters. no_key is set for the
 *   default entry, whose match_spec stays as it was. P4_PD_NO_ACTION_DATA for an entry without
 *   action data, P4_PD_FOREIGN_ACTION for an action that the table does not have,
 *   P4_PD_NO_MEMORY when the resource list could not be allocated, P4_PD_NULL_ARGUMENT when a
 *   mandatory output is null; nothing is written then. get_first_entry_handle and
 *   get_next_entry_handles walk the entries; entries has room for count handles.
 *
 * Idle time
 *   For the tables that age their entries. idle_params_get writes the mode alone unless the mode is
 *   PIPE_IDLE_NOTIFY. get_hit_state writes a state without meaning when it fails.
 *
 * Indirect entries
 *   For the tables that are bound to a profile. An entry points at a member or, in the functions
 *   with _with_selector, at a group. The member or group must be known to the profile's
 *   member-selector state, and a group must have had a member; otherwise the state's status is
 *   returned and the pipeline manager is not called. get_entry sets has_member or has_group
 *   and writes the handle that applies; the other one stays as it was.
 *
 * Profiles
 *   For every action profile. Members and groups are made by the pipeline manager and recorded in
 *   the profile's member-selector state once it has succeeded. A member keeps its action for
 *   life: modify_member_with_ another one returns P4_PD_MEMBER_KEEPS_ACTION. A member that the
 *   state does not know cannot be modified or join a group; the state's status is returned.
 *   group_member_state_set takes P4_PD_GRP_MBR_STATE_*, else P4_PD_MEMBER_STATE_REFUSED.
 *   sel_track_updates registers a callback without a session. get_member fills the action's
 *   value and, for an action with parameters, the member of spec that belongs to it.
 *
 * Meters
 *   meter_set_ and meter_read_ name the cell by entry handle for the direct meter of a table, else
 *   by index. No meter of the program has a pre-colour input, so its type must be
 *   PD_METER_TYPE_COLOR_UNAWARE; the functions that take a meter handle accept a colour-aware
 *   type when has_pre_color is not 0. P4_PD_METER_TYPE_REFUSED otherwise. A read reports the
 *   low 32 bits of what the device holds. The byte-count adjustment is added to the length of
 *   every packet that the meter sees.
 *
 * Placement data
 *   What the pipeline manager holds of a placed entry or member, decoded into the records of
 *   read-back; all outputs are mandatory. no_key is set for a default entry and for every
 *   entry of a table without a key; match_spec then stays as it was. P4_PD_FOREIGN_ACTION for
 *   an action that the table or profile does not have. restore_virtual_dev_state replays a
 *   virtual device onto a device; members, groups and memberships are recorded in the
 *   member-selector states on the way.
 *
 * Counters
 *   counter_read_ and counter_write_ name the cell by entry handle for the counter of a table, else
 *   by index. A read with P4_PD_READ_FROM_HARDWARE in flags brings the cell up to date first;
 *   other flags mean nothing. counter_hw_sync_ does so for the whole counter and has the
 *   pipeline manager call the caller when it is done. For the counter of a table the pipe of
 *   the target matters to synchronisation only.
 *
 * Registers
 *   One index of a register yields a value for each of its instances, one a pipe as the pipeline
 *   manager counts them. register_read_ and register_range_read_ write them one after another,
 *   those of an index behind those of the index before it, and how many they are; values must
 *   have room for all. P4_PD_READ_FROM_HARDWARE in flags asks for the values in the device;
 *   other flags mean nothing. A range may end early: indexes_read says how far it came. A
 *   range of no indexes yields no values; the register and the first index are looked at all
 *   the same. A 1-bit register stores 1 for any value but 0. P4_PD_NO_MEMORY when the cells
 *   could not be allocated. The functions whose names end in _direct or _indirect take a
 *   table's or register's handle and the pipeline manager's own records; register_write_direct
 *   gives the table's handle for the register's too.
 *
 * Hash calculations
 *   A calculation has one input field list and one algorithm; 0 stands for either. Setting any
 *   other number passes handle 0 on, which the pipeline manager refuses. input_get and
 *   algorithm_get return P4_PD_UNKNOWN_SELECTION when the device reports another one or none.
 *   The attribute reads ask for the list that is configured; P4_PD_UNKNOWN_SELECTION when that
 *   is the calculation's own and input is not 0. attribute_get sets filled to 0 before
 *   anything else. calculate_hash_value lays the values end to end, the last one in the lowest
 *   bits of the stream, and takes attribute_sizes[i] bits of value i: its low bits up to 32,
 *   else that many of the bytes it points at, whose last byte is the lowest. P4_PD_NO_MEMORY
 *   when a copy or the stream could not be allocated or the stream is longer than 32 bits can
 *   tell.
 *
 * Hash calculations by name
 *   The name is that of the calculation, whole and case-sensitive; P4_PD_UNKNOWN_SELECTION for any
 *   other, and for an attribute of a field that the calculation does not have. Fields go by
 *   their common number: p4_field_enum turns it into the calculation's own, -1 when there is
 *   none, and cmn_field_enum back, 0xffffffff (no field of any calculation) when there is
 *   none.
 *
 * Learning digests
 *   A callback is registered per digest and device and receives the pipeline manager's own
 *   messages, each of which is given back with notify_ack. set_learning_timeout (microseconds)
 *   applies to all digests of a device. get_digest_entry_size returns the bytes of one entry,
 *   0 for an unknown digest. get_digest_entry_field returns where a field starts in an entry,
 *   and its bytes in size (null: not wanted); null and 0 for an unknown digest or field. Names
 *   are case-sensitive; multi-byte fields are big-endian.
 *
 * Parser value sets
 *   An entry is a value and a mask in one parser of a device; the pipeline manager chooses its
 *   handle. set_property and get_property take PIPE_PVS_*; get_property writes 0xffffffff to
 *   value when it fails. entry_get_next_entry_handles fills entries, which has room for count
 *   handles, with those behind entry.
 *
 * Snapshots
 *   direction is 0 for ingress and 1 for egress; bit 1 of the handle is set for an egress snapshot.
 *   capture_trigger_set takes two trigger records of that layout in host order, field values
 *   and mask, and hands copies in network order on. capture_data_get writes a record for each
 *   stage of the capture, at most 3; records has room for 3, control (null: not wanted) for
 *   one element a stage. captures is 0 unless the capture was asked for. Records are written
 *   even when the capture itself fails; a stage that is shorter than a record fills it up with
 *   zeroes. P4_PD_NO_MEMORY, and no record written, when the capture could not be allocated.
 *
 * Schemas
 *   Objects described as literals of nested tuples, for tools that know none of them. The
 *   match-spec and action schemas are constants. The others are written into buffer with a NUL
 *   and their length is returned; P4_PD_TINY_SCHEMA_MAX bytes hold any of them. cli_schema
 *   takes the handle of a table or the action-data handle of a profile and writes "()" for any
 *   other. A null buffer gets 0.
 *
 * Value strings
 *   The numbers of a match spec, an action or an entry as a literal that lists what the schema
 *   lists, cut to the key bits, in hexadecimal. They are written into buffer with a NUL and
 *   their length is returned: P4_PD_TINY_MATCH_SPEC_VALUE_MAX, P4_PD_TINY_ACTION_VALUE_MAX and
 *   P4_PD_TINY_VALUE_MAX bytes hold any of them. A table's value reads the entry by get_entry.
 *   When that fails, and for a null pointer, 0 is returned and buffer stays as it was.
 *
 * Printing
 *   match_spec_print and an action's print write one line a field to a file descriptor, one write a
 *   line, and return the length of the last line, or -1 when it could not be written. The
 *   header line of a match spec follows indent blanks, the others one blank more, and two at
 *   indent 0. The helpers _print_* write a label and an address into buffer and return the
 *   length. The ternary ones return 0 for a mask of 0; 0 goes with nothing written, also for a
 *   null pointer. IPv6 addresses have 16 bytes; MAC addresses come in halves of 24 bits.
 *
 * Labels of counted entries
 *   For the tables whose entries carry a counter that monitoring shows. A label names the fields
 *   that the entry matches on. It is written into buffer with a NUL and its length is
 *   returned; P4_PD_TINY_LABEL_MAX bytes hold any of them. stringify_counter_match_spec reads
 *   the entry from the hardware; the default entry, which has no key, has an empty label. When
 *   that fails, for a table without labels and for a null pointer, 0 is returned and buffer
 *   stays as it was.
 *
 * Comparison and names
 *   match_specs_are_equal compares member by member under the key bits: a value and its mask are
 *   two members, so entries that differ in what they do not care about differ.
 *   action_specs_are_equal compares the bits of each parameter's width. A null pointer equals
 *   nothing. width returns the bits of a key field. action_enum_to_string returns the full
 *   name of a value, null beyond the last; action_string_to_enum returns the value of a full
 *   name, else the number of actions.
 *
 * Rendering of placement data
 *   plcmt_data_print writes key and action of placement data to a file descriptor and returns 0, or
 *   the status of the decoder after a line that says that it failed. plcmt_data_value writes a
 *   value string (P4_PD_TINY_VALUE_MAX bytes hold any) and returns its length, 0 when the data
 *   cannot be decoded. plcmt_data_eq_to_hw returns 1 when the data describes the entry that
 *   the hardware holds under the handle, priorities apart, and 0 otherwise, also when either
 *   cannot be read; entries that point at groups must point at the same one. The functions by
 *   handle do the same for a table or for the action-data table of a profile; an unknown
 *   handle is printed as not found, has no value and equals nothing. entry_hdl_first,
 *   entry_hdl_next, entry_hdl_default and member_hdl_next walk entries and members; an unknown
 *   handle stores 0xffffffff and returns 0, member_hdl_next 0xffffffff.
 *
 * Made by pdgen from the catalogue of tiny. Edit the catalogue and run
 * scripts/generate, not this file.
 */
#ifndef P4_PD_TINY_H
#define P4_PD_TINY_H

#include "p4_pd_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Start and stop ==== */

extern uint32_t bf_drv_hdl;

p4_pd_status_t p4_pd_tiny_init(void);
p4_pd_status_t p4_pd_tiny_cleanup(void);
void p4_pd_tiny_device_state_cleanup(void);

/* ==== Actions ==== */

/* Every action of the program; an action that several tables use has one value. */
typedef enum p4_pd_tiny_action_names {
  p4_pd_tiny_pass = 0,
  p4_pd_tiny_discard = 1,
  p4_pd_tiny_sendTo = 2,
  p4_pd_tiny_setHop = 3,
  p4_pd_tiny_setRouter = 4,
  p4_pd_tiny_countOnly = 5,
  p4_pd_tiny_police = 6,
  p4_pd_tiny_sample = 7,
  p4_pd_tiny_setMember = 8,
  p4_pd_tiny_seenBit = 9
} p4_pd_tiny_action_names_t;

/* The full name of each value, prefix included. */
extern const char *const p4_pd_tiny_action_name_strings[10];

typedef struct p4_pd_tiny_sendTo_action_spec {
  uint16_t action_port; /* 9 bits */
  uint8_t action_queue; /* 5 bits */
} p4_pd_tiny_sendTo_action_spec_t;

typedef struct p4_pd_tiny_setHop_action_spec {
  uint32_t action_hop; /* 14 bits */
} p4_pd_tiny_setHop_action_spec_t;

typedef struct p4_pd_tiny_setRouter_action_spec {
  uint32_t action_gateIp; /* 32 bits, IPv4 address */
  uint32_t action_hwOui; /* 24 bits, half of a MAC address */
  uint32_t action_hwStation; /* 24 bits, half of a MAC address */
} p4_pd_tiny_setRouter_action_spec_t;

typedef struct p4_pd_tiny_countOnly_action_spec {
  uint32_t action_cell; /* 32 bits, cell of flowCount */
} p4_pd_tiny_countOnly_action_spec_t;

typedef struct p4_pd_tiny_police_action_spec {
  uint32_t action_cell; /* 32 bits, cell of flowCount and flowRate */
  uint8_t action_mark; /* 1 bit */
} p4_pd_tiny_police_action_spec_t;

typedef struct p4_pd_tiny_sample_action_spec {
  uint32_t action_rateCell; /* 32 bits, cell of sampleRate */
} p4_pd_tiny_sample_action_spec_t;

typedef struct p4_pd_tiny_setMember_action_spec {
  uint16_t action_egress; /* 9 bits */
} p4_pd_tiny_setMember_action_spec_t;

/* An action with its parameters as read back; spec is written only for an action that has any. */
typedef struct p4_pd_tiny_action_specs {
  uint32_t action; /* of p4_pd_tiny_action_names_t */
  union {
    p4_pd_tiny_sendTo_action_spec_t sendTo;
    p4_pd_tiny_setHop_action_spec_t setHop;
    p4_pd_tiny_setRouter_action_spec_t setRouter;
    p4_pd_tiny_countOnly_action_spec_t countOnly;
    p4_pd_tiny_police_action_spec_t police;
    p4_pd_tiny_sample_action_spec_t sample;
    p4_pd_tiny_setMember_action_spec_t setMember;
  } spec;
} p4_pd_tiny_action_specs_t;

const char *p4_pd_tiny_pass_schema(void);
const char *p4_pd_tiny_discard_schema(void);
const char *p4_pd_tiny_sendTo_schema(void);
const char *p4_pd_tiny_setHop_schema(void);
const char *p4_pd_tiny_setRouter_schema(void);
const char *p4_pd_tiny_countOnly_schema(void);
const char *p4_pd_tiny_police_schema(void);
const char *p4_pd_tiny_sample_schema(void);
const char *p4_pd_tiny_setMember_schema(void);
const char *p4_pd_tiny_seenBit_schema(void);
int p4_pd_tiny_pass_value(char *buffer);
int p4_pd_tiny_discard_value(char *buffer);
int p4_pd_tiny_sendTo_value(const p4_pd_tiny_sendTo_action_spec_t *action_spec, char *buffer);
int p4_pd_tiny_setHop_value(const p4_pd_tiny_setHop_action_spec_t *action_spec, char *buffer);
int p4_pd_tiny_setRouter_value(const p4_pd_tiny_setRouter_action_spec_t *action_spec, char *buffer);
int p4_pd_tiny_countOnly_value(const p4_pd_tiny_countOnly_action_spec_t *action_spec, char *buffer);
int p4_pd_tiny_police_value(const p4_pd_tiny_police_action_spec_t *action_spec, char *buffer);
int p4_pd_tiny_sample_value(const p4_pd_tiny_sample_action_spec_t *action_spec, char *buffer);
int p4_pd_tiny_setMember_value(const p4_pd_tiny_setMember_action_spec_t *action_spec, char *buffer);
int p4_pd_tiny_seenBit_value(char *buffer);
int p4_pd_tiny_sendTo_print(int descriptor, int indent,
    const p4_pd_tiny_sendTo_action_spec_t *action_spec);
int p4_pd_tiny_setHop_print(int descriptor, int indent,
    const p4_pd_tiny_setHop_action_spec_t *action_spec);
int p4_pd_tiny_setRouter_print(int descriptor, int indent,
    const p4_pd_tiny_setRouter_action_spec_t *action_spec);
int p4_pd_tiny_countOnly_print(int descriptor, int indent,
    const p4_pd_tiny_countOnly_action_spec_t *action_spec);
int p4_pd_tiny_police_print(int descriptor, int indent,
    const p4_pd_tiny_police_action_spec_t *action_spec);
int p4_pd_tiny_sample_print(int descriptor, int indent,
    const p4_pd_tiny_sample_action_spec_t *action_spec);
int p4_pd_tiny_setMember_print(int descriptor, int indent,
    const p4_pd_tiny_setMember_action_spec_t *action_spec);
bool p4_pd_tiny_sendTo_action_specs_are_equal(const p4_pd_tiny_sendTo_action_spec_t *a,
    const p4_pd_tiny_sendTo_action_spec_t *b);
bool p4_pd_tiny_setHop_action_specs_are_equal(const p4_pd_tiny_setHop_action_spec_t *a,
    const p4_pd_tiny_setHop_action_spec_t *b);
bool p4_pd_tiny_setRouter_action_specs_are_equal(const p4_pd_tiny_setRouter_action_spec_t *a,
    const p4_pd_tiny_setRouter_action_spec_t *b);
bool p4_pd_tiny_countOnly_action_specs_are_equal(const p4_pd_tiny_countOnly_action_spec_t *a,
    const p4_pd_tiny_countOnly_action_spec_t *b);
bool p4_pd_tiny_police_action_specs_are_equal(const p4_pd_tiny_police_action_spec_t *a,
    const p4_pd_tiny_police_action_spec_t *b);
bool p4_pd_tiny_sample_action_specs_are_equal(const p4_pd_tiny_sample_action_spec_t *a,
    const p4_pd_tiny_sample_action_spec_t *b);
bool p4_pd_tiny_setMember_action_specs_are_equal(const p4_pd_tiny_setMember_action_spec_t *a,
    const p4_pd_tiny_setMember_action_spec_t *b);
const char *p4_pd_tiny_action_enum_to_string(uint32_t value);
uint32_t p4_pd_tiny_action_string_to_enum(const char *name);

/* ==== Table portMap (0x01000001), exact ==== */

/* Key of 9 bits in 2 bytes. */
typedef struct p4_pd_tiny_portMap_match_spec {
  uint16_t ig_intr_md_in_port; /* 9 bits, key bits 0x7f */
} p4_pd_tiny_portMap_match_spec_t;

p4_pd_status_t p4_pd_tiny_portMap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_portMap_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_portMap_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_portMap_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_portMap_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_portMap_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_portMap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_portMap_table_add_with_sendTo(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_portMap_match_spec_t *match_spec,
    const p4_pd_tiny_sendTo_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_portMap_table_modify_with_sendTo(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, const p4_pd_tiny_sendTo_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_portMap_table_modify_with_sendTo_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_portMap_match_spec_t *match_spec,
    const p4_pd_tiny_sendTo_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_portMap_table_add_with_pass(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_portMap_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_portMap_table_modify_with_pass(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_portMap_table_modify_with_pass_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_portMap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_portMap_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_portMap_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_portMap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_portMap_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_portMap_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_portMap_set_default_action_sendTo(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_sendTo_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_portMap_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_portMap_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_portMap_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tiny_portMap_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_portMap_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_portMap_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_portMap_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_portMap_match_spec_t *match_spec, p4_pd_tiny_action_specs_t *action_specs,
    bool *no_key);
const char *p4_pd_tiny_portMap_match_spec_schema(void);
int p4_pd_tiny_portMap_schema(char *buffer);
int p4_pd_tiny_portMap_match_spec_value(const p4_pd_tiny_portMap_match_spec_t *match_spec,
    char *buffer);
int p4_pd_tiny_portMap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_portMap_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_portMap_match_spec_t *match_spec);
bool p4_pd_tiny_portMap_match_specs_are_equal(const p4_pd_tiny_portMap_match_spec_t *a,
    const p4_pd_tiny_portMap_match_spec_t *b);
uint32_t p4_pd_tiny_portMap_ig_intr_md_in_port_width(void);
int p4_pd_tiny_portMap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_portMap_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_portMap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table filter (0x01000002), ternary ==== */

/* Key of 252 bits in 36 bytes. */
typedef struct p4_pd_tiny_filter_match_spec {
  uint16_t ig_intr_md_in_port; /* 9 bits */
  uint32_t eth_dstOui; /* 24 bits */
  uint32_t eth_dstOui_mask; /* set bits take part */
  uint32_t eth_dstStation; /* 24 bits */
  uint32_t eth_dstStation_mask; /* set bits take part */
  uint32_t ip4_src; /* 32 bits */
  uint32_t ip4_src_mask; /* set bits take part */
  uint8_t ip6_dst[16]; /* 128 bits, key bits 0xffff0000000000000000000000000000 */
  uint8_t ip6_dst_mask[16]; /* set bits take part */
  uint16_t meta_layer4; /* 16 bits */
  uint16_t meta_layer4_mask; /* set bits take part */
  uint8_t meta_bits; /* 4 bits, key bits 0x8 */
  uint8_t meta_bits_mask; /* set bits take part */
  uint8_t tag_0__valid; /* 1 bit */
  uint8_t tag_0__valid_mask; /* set bits take part */
  uint16_t tag_0__tagId; /* 12 bits */
  uint16_t tag_0__tagId_mask; /* set bits take part */
  uint8_t meta_dead; /* 1 bit */
  uint8_t meta_dead_mask; /* set bits take part */
  uint8_t fw_dead; /* 1 bit */
  uint8_t fw_dead_mask; /* set bits take part */
} p4_pd_tiny_filter_match_spec_t;

p4_pd_status_t p4_pd_tiny_filter_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_filter_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_filter_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_filter_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_filter_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_filter_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_filter_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_filter_table_add_with_pass(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_filter_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_filter_table_modify_with_pass(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_filter_table_modify_with_pass_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_filter_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tiny_filter_table_add_with_discard(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_filter_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_filter_table_modify_with_discard(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_filter_table_modify_with_discard_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_filter_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tiny_filter_table_add_with_sendTo(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_filter_match_spec_t *match_spec,
    uint32_t priority, const p4_pd_tiny_sendTo_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_filter_table_modify_with_sendTo(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, const p4_pd_tiny_sendTo_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_filter_table_modify_with_sendTo_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_filter_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tiny_sendTo_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_filter_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_filter_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_filter_match_spec_t *match_spec,
    uint32_t priority);
p4_pd_status_t p4_pd_tiny_filter_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_filter_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_filter_set_default_action_pass(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_filter_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_filter_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_filter_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tiny_filter_match_spec_t *match_spec, uint32_t *priority, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_filter_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_filter_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_filter_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_filter_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tiny_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tiny_filter_match_spec_schema(void);
int p4_pd_tiny_filter_schema(char *buffer);
int p4_pd_tiny_filter_match_spec_value(const p4_pd_tiny_filter_match_spec_t *match_spec,
    char *buffer);
int p4_pd_tiny_filter_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_filter_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_filter_match_spec_t *match_spec);
int p4_pd_tiny_filter_match_spec_stringify_for_counter(
    const p4_pd_tiny_filter_match_spec_t *match_spec, char *buffer);
int p4_pd_tiny_filter_stringify_counter_match_spec(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tiny_filter_match_specs_are_equal(const p4_pd_tiny_filter_match_spec_t *a,
    const p4_pd_tiny_filter_match_spec_t *b);
uint32_t p4_pd_tiny_filter_ig_intr_md_in_port_width(void);
uint32_t p4_pd_tiny_filter_eth_dstOui_width(void);
uint32_t p4_pd_tiny_filter_eth_dstStation_width(void);
uint32_t p4_pd_tiny_filter_ip4_src_width(void);
uint32_t p4_pd_tiny_filter_ip6_dst_width(void);
uint32_t p4_pd_tiny_filter_meta_layer4_width(void);
uint32_t p4_pd_tiny_filter_meta_bits_width(void);
uint32_t p4_pd_tiny_filter_tag_0__width(void);
uint32_t p4_pd_tiny_filter_tag_0__tagId_width(void);
uint32_t p4_pd_tiny_filter_meta_dead_width(void);
uint32_t p4_pd_tiny_filter_fw_dead_width(void);
int p4_pd_tiny_filter_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_filter_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_filter_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table fib4 (0x01000003), longest prefix, ages its entries ==== */

/* Key of 40 bits in 5 bytes. */
typedef struct p4_pd_tiny_fib4_match_spec {
  uint8_t l3_vrf; /* 8 bits */
  uint32_t ip4_dst; /* 32 bits */
  uint16_t ip4_dst_prefix_length; /* 0 to 32 */
} p4_pd_tiny_fib4_match_spec_t;

p4_pd_status_t p4_pd_tiny_fib4_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_fib4_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_fib4_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_fib4_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_fib4_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_fib4_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_fib4_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_fib4_table_add_with_setHop(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_fib4_match_spec_t *match_spec,
    const p4_pd_tiny_setHop_action_spec_t *action_spec, uint32_t ttl, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib4_table_modify_with_setHop(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, const p4_pd_tiny_setHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_fib4_table_modify_with_setHop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_fib4_match_spec_t *match_spec,
    const p4_pd_tiny_setHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_fib4_table_add_with_pass(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_fib4_match_spec_t *match_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib4_table_modify_with_pass(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_fib4_table_modify_with_pass_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_fib4_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_fib4_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_fib4_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_fib4_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_fib4_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_fib4_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib4_set_default_action_pass(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib4_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib4_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_fib4_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, p4_pd_tiny_fib4_match_spec_t *match_spec,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_fib4_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib4_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_fib4_idle_tmo_enable(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_idle_time_params_t params);
p4_pd_status_t p4_pd_tiny_fib4_idle_tmo_disable(p4_pd_session_handle_t session, uint8_t device);
p4_pd_status_t p4_pd_tiny_fib4_idle_register_tmo_cb(p4_pd_session_handle_t session, uint8_t device,
    pipe_mgr_idle_cb_t callback, void *client_data);
p4_pd_status_t p4_pd_tiny_fib4_idle_params_get(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_idle_time_params_t *params);
p4_pd_status_t p4_pd_tiny_fib4_set_ttl(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, uint32_t ttl);
p4_pd_status_t p4_pd_tiny_fib4_get_ttl(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, uint32_t *ttl);
p4_pd_status_t p4_pd_tiny_fib4_update_hit_state(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, uint32_t hit_state);
p4_pd_status_t p4_pd_tiny_fib4_get_hit_state(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, uint32_t *hit_state);
p4_pd_status_t p4_pd_tiny_fib4_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_fib4_match_spec_t *match_spec, p4_pd_tiny_action_specs_t *action_specs,
    bool *no_key);
const char *p4_pd_tiny_fib4_match_spec_schema(void);
int p4_pd_tiny_fib4_schema(char *buffer);
int p4_pd_tiny_fib4_match_spec_value(const p4_pd_tiny_fib4_match_spec_t *match_spec, char *buffer);
int p4_pd_tiny_fib4_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_fib4_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_fib4_match_spec_t *match_spec);
bool p4_pd_tiny_fib4_match_specs_are_equal(const p4_pd_tiny_fib4_match_spec_t *a,
    const p4_pd_tiny_fib4_match_spec_t *b);
uint32_t p4_pd_tiny_fib4_l3_vrf_width(void);
uint32_t p4_pd_tiny_fib4_ip4_dst_width(void);
int p4_pd_tiny_fib4_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_fib4_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_fib4_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table fib6 (0x01000004), longest prefix ==== */

/* Key of 128 bits in 16 bytes. */
typedef struct p4_pd_tiny_fib6_match_spec {
  uint8_t ip6_dst[16]; /* 128 bits */
  uint16_t ip6_dst_prefix_length; /* 0 to 128 */
} p4_pd_tiny_fib6_match_spec_t;

p4_pd_status_t p4_pd_tiny_fib6_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_fib6_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_fib6_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_fib6_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_fib6_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_fib6_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_fib6_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_fib6_table_add_with_setHop(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_fib6_match_spec_t *match_spec,
    const p4_pd_tiny_setHop_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib6_table_modify_with_setHop(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, const p4_pd_tiny_setHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_fib6_table_modify_with_setHop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_fib6_match_spec_t *match_spec,
    const p4_pd_tiny_setHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_fib6_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_fib6_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_fib6_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_fib6_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_fib6_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib6_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib6_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_fib6_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, p4_pd_tiny_fib6_match_spec_t *match_spec,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_fib6_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_fib6_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_fib6_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_fib6_match_spec_t *match_spec, p4_pd_tiny_action_specs_t *action_specs,
    bool *no_key);
const char *p4_pd_tiny_fib6_match_spec_schema(void);
int p4_pd_tiny_fib6_schema(char *buffer);
int p4_pd_tiny_fib6_match_spec_value(const p4_pd_tiny_fib6_match_spec_t *match_spec, char *buffer);
int p4_pd_tiny_fib6_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_fib6_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_fib6_match_spec_t *match_spec);
bool p4_pd_tiny_fib6_match_specs_are_equal(const p4_pd_tiny_fib6_match_spec_t *a,
    const p4_pd_tiny_fib6_match_spec_t *b);
uint32_t p4_pd_tiny_fib6_ip6_dst_width(void);
int p4_pd_tiny_fib6_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_fib6_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_fib6_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table hops (0x01000005), exact, ages its entries ==== */

/* Key of 14 bits in 2 bytes. */
typedef struct p4_pd_tiny_hops_match_spec {
  uint32_t l3_hop; /* 14 bits */
} p4_pd_tiny_hops_match_spec_t;

p4_pd_status_t p4_pd_tiny_hops_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_hops_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_hops_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_hops_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_hops_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_hops_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_hops_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_hops_table_add_with_setRouter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_hops_match_spec_t *match_spec,
    const p4_pd_tiny_setRouter_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_hops_table_modify_with_setRouter(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tiny_setRouter_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_hops_table_modify_with_setRouter_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_hops_match_spec_t *match_spec,
    const p4_pd_tiny_setRouter_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_hops_table_add_with_discard(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_hops_match_spec_t *match_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_hops_table_modify_with_discard(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_hops_table_modify_with_discard_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_hops_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_hops_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_hops_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_hops_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_hops_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_hops_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_hops_set_default_action_discard(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_hops_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_hops_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_hops_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, p4_pd_tiny_hops_match_spec_t *match_spec,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_hops_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_hops_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_hops_idle_tmo_enable(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_idle_time_params_t params);
p4_pd_status_t p4_pd_tiny_hops_idle_tmo_disable(p4_pd_session_handle_t session, uint8_t device);
p4_pd_status_t p4_pd_tiny_hops_idle_register_tmo_cb(p4_pd_session_handle_t session, uint8_t device,
    pipe_mgr_idle_cb_t callback, void *client_data);
p4_pd_status_t p4_pd_tiny_hops_idle_params_get(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_idle_time_params_t *params);
p4_pd_status_t p4_pd_tiny_hops_set_ttl(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, uint32_t ttl);
p4_pd_status_t p4_pd_tiny_hops_get_ttl(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, uint32_t *ttl);
p4_pd_status_t p4_pd_tiny_hops_update_hit_state(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, uint32_t hit_state);
p4_pd_status_t p4_pd_tiny_hops_get_hit_state(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, uint32_t *hit_state);
p4_pd_status_t p4_pd_tiny_hops_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_hops_match_spec_t *match_spec, p4_pd_tiny_action_specs_t *action_specs,
    bool *no_key);
const char *p4_pd_tiny_hops_match_spec_schema(void);
int p4_pd_tiny_hops_schema(char *buffer);
int p4_pd_tiny_hops_match_spec_value(const p4_pd_tiny_hops_match_spec_t *match_spec, char *buffer);
int p4_pd_tiny_hops_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_hops_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_hops_match_spec_t *match_spec);
bool p4_pd_tiny_hops_match_specs_are_equal(const p4_pd_tiny_hops_match_spec_t *a,
    const p4_pd_tiny_hops_match_spec_t *b);
uint32_t p4_pd_tiny_hops_l3_hop_width(void);
int p4_pd_tiny_hops_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_hops_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_hops_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table paths (0x01000006), ternary, bound to pathMembers ==== */

/* Key of 14 bits in 2 bytes. */
typedef struct p4_pd_tiny_paths_match_spec {
  uint16_t l3_path; /* 14 bits */
  uint16_t l3_path_mask; /* set bits take part */
} p4_pd_tiny_paths_match_spec_t;

p4_pd_status_t p4_pd_tiny_paths_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_paths_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_paths_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_paths_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_paths_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_paths_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_paths_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_paths_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_paths_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_paths_match_spec_t *match_spec,
    uint32_t priority);
p4_pd_status_t p4_pd_tiny_paths_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_paths_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_paths_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_paths_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, bool *has_member, bool *has_group,
    p4_pd_group_handle_t *group, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tiny_paths_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_paths_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_paths_add_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_paths_match_spec_t *match_spec,
    uint32_t priority, p4_pd_member_handle_t member, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_paths_modify_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tiny_paths_modify_entry_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_paths_match_spec_t *match_spec,
    uint32_t priority, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tiny_paths_set_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_member_handle_t member, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_paths_add_entry_with_selector(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_paths_match_spec_t *match_spec,
    uint32_t priority, p4_pd_group_handle_t group, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_paths_modify_entry_with_selector(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tiny_paths_modify_entry_with_selector_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_paths_match_spec_t *match_spec, uint32_t priority, p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tiny_paths_set_default_entry_with_selector(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_group_handle_t group, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_paths_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, p4_pd_tiny_paths_match_spec_t *match_spec,
    uint32_t *priority, bool *has_member, bool *has_group, p4_pd_group_handle_t *group,
    p4_pd_member_handle_t *member, bool *no_key);
p4_pd_status_t p4_pd_tiny_paths_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_paths_match_spec_t *match_spec, uint32_t *priority, p4_pd_member_handle_t *member,
    p4_pd_group_handle_t *group, bool *has_member, bool *has_group, bool *no_key);
const char *p4_pd_tiny_paths_match_spec_schema(void);
int p4_pd_tiny_paths_schema(char *buffer);
int p4_pd_tiny_paths_match_spec_value(const p4_pd_tiny_paths_match_spec_t *match_spec,
    char *buffer);
int p4_pd_tiny_paths_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_paths_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_paths_match_spec_t *match_spec);
bool p4_pd_tiny_paths_match_specs_are_equal(const p4_pd_tiny_paths_match_spec_t *a,
    const p4_pd_tiny_paths_match_spec_t *b);
uint32_t p4_pd_tiny_paths_l3_path_width(void);
int p4_pd_tiny_paths_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_paths_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_paths_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table flows (0x01000007), exact ==== */

/* Key of 20 bits in 3 bytes. */
typedef struct p4_pd_tiny_flows_match_spec {
  uint32_t meta_flowId; /* 20 bits */
} p4_pd_tiny_flows_match_spec_t;

p4_pd_status_t p4_pd_tiny_flows_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_flows_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_flows_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_flows_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_flows_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_flows_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_flows_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_flows_table_add_with_police(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_flows_match_spec_t *match_spec,
    const p4_pd_tiny_police_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flows_table_modify_with_police(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, const p4_pd_tiny_police_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_flows_table_modify_with_police_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_flows_match_spec_t *match_spec,
    const p4_pd_tiny_police_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_flows_table_add_with_countOnly(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_flows_match_spec_t *match_spec,
    const p4_pd_tiny_countOnly_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flows_table_modify_with_countOnly(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tiny_countOnly_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_flows_table_modify_with_countOnly_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_flows_match_spec_t *match_spec,
    const p4_pd_tiny_countOnly_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_flows_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_flows_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_flows_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_flows_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_flows_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flows_set_default_action_police(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_police_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flows_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flows_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_flows_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, p4_pd_tiny_flows_match_spec_t *match_spec,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_flows_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flows_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_flows_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_flows_match_spec_t *match_spec, p4_pd_tiny_action_specs_t *action_specs,
    bool *no_key);
const char *p4_pd_tiny_flows_match_spec_schema(void);
int p4_pd_tiny_flows_schema(char *buffer);
int p4_pd_tiny_flows_match_spec_value(const p4_pd_tiny_flows_match_spec_t *match_spec,
    char *buffer);
int p4_pd_tiny_flows_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_flows_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_flows_match_spec_t *match_spec);
bool p4_pd_tiny_flows_match_specs_are_equal(const p4_pd_tiny_flows_match_spec_t *a,
    const p4_pd_tiny_flows_match_spec_t *b);
uint32_t p4_pd_tiny_flows_meta_flowId_width(void);
int p4_pd_tiny_flows_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_flows_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_flows_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table flood (0x01000008), ternary ==== */

/* Key of 27 bits in 4 bytes. */
typedef struct p4_pd_tiny_flood_match_spec {
  uint32_t eth_dstOui; /* 24 bits */
  uint32_t eth_dstOui_mask; /* set bits take part */
  uint8_t meta_slice; /* 3 bits */
} p4_pd_tiny_flood_match_spec_t;

p4_pd_status_t p4_pd_tiny_flood_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_flood_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_flood_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_flood_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_flood_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_flood_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_flood_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_flood_table_add_with_pass(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_flood_match_spec_t *match_spec,
    uint32_t priority, const p4_pd_bytes_meter_spec_t *meter_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flood_table_modify_with_pass(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_flood_table_modify_with_pass_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_flood_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_flood_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_flood_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_flood_match_spec_t *match_spec,
    uint32_t priority);
p4_pd_status_t p4_pd_tiny_flood_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_flood_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flood_set_default_action_pass(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_bytes_meter_spec_t *meter_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flood_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flood_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_flood_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, p4_pd_tiny_flood_match_spec_t *match_spec,
    uint32_t *priority, char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_flood_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_flood_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_flood_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_flood_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tiny_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tiny_flood_match_spec_schema(void);
int p4_pd_tiny_flood_schema(char *buffer);
int p4_pd_tiny_flood_match_spec_value(const p4_pd_tiny_flood_match_spec_t *match_spec,
    char *buffer);
int p4_pd_tiny_flood_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_flood_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_flood_match_spec_t *match_spec);
bool p4_pd_tiny_flood_match_specs_are_equal(const p4_pd_tiny_flood_match_spec_t *a,
    const p4_pd_tiny_flood_match_spec_t *b);
uint32_t p4_pd_tiny_flood_eth_dstOui_width(void);
uint32_t p4_pd_tiny_flood_meta_slice_width(void);
int p4_pd_tiny_flood_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_flood_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_flood_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table sampling (0x01000009), exact ==== */

/* Key of 16 bits in 2 bytes. */
typedef struct p4_pd_tiny_sampling_match_spec {
  uint16_t meta_layer4; /* 16 bits */
} p4_pd_tiny_sampling_match_spec_t;

p4_pd_status_t p4_pd_tiny_sampling_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_sampling_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_sampling_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_sampling_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_sampling_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_sampling_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_sampling_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_sampling_table_add_with_sample(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_sampling_match_spec_t *match_spec,
    const p4_pd_tiny_sample_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_sampling_table_modify_with_sample(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, const p4_pd_tiny_sample_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_sampling_table_modify_with_sample_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_sampling_match_spec_t *match_spec,
    const p4_pd_tiny_sample_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_sampling_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_sampling_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_sampling_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_sampling_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_sampling_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_sampling_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_sampling_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_sampling_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tiny_sampling_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_sampling_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_sampling_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_sampling_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_sampling_match_spec_t *match_spec, p4_pd_tiny_action_specs_t *action_specs,
    bool *no_key);
const char *p4_pd_tiny_sampling_match_spec_schema(void);
int p4_pd_tiny_sampling_schema(char *buffer);
int p4_pd_tiny_sampling_match_spec_value(const p4_pd_tiny_sampling_match_spec_t *match_spec,
    char *buffer);
int p4_pd_tiny_sampling_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_sampling_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_sampling_match_spec_t *match_spec);
bool p4_pd_tiny_sampling_match_specs_are_equal(const p4_pd_tiny_sampling_match_spec_t *a,
    const p4_pd_tiny_sampling_match_spec_t *b);
uint32_t p4_pd_tiny_sampling_meta_layer4_width(void);
int p4_pd_tiny_sampling_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_sampling_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_sampling_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table ticks (0x0100000a), exact ==== */

/* Key of 1 bit in 1 bytes. */
typedef struct p4_pd_tiny_ticks_match_spec {
  uint8_t tag_0__valid; /* 1 bit */
} p4_pd_tiny_ticks_match_spec_t;

p4_pd_status_t p4_pd_tiny_ticks_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_ticks_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_ticks_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_ticks_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_ticks_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_ticks_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_ticks_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_ticks_table_add_with_seenBit(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_ticks_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_ticks_table_modify_with_seenBit(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_ticks_table_modify_with_seenBit_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tiny_ticks_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_ticks_table_delete(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_ticks_table_delete_by_match_spec(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_ticks_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tiny_ticks_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_ticks_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_ticks_set_default_action_seenBit(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_ticks_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_ticks_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_ticks_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, p4_pd_tiny_ticks_match_spec_t *match_spec,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tiny_ticks_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_ticks_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_ticks_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_ticks_match_spec_t *match_spec, p4_pd_tiny_action_specs_t *action_specs,
    bool *no_key);
const char *p4_pd_tiny_ticks_match_spec_schema(void);
int p4_pd_tiny_ticks_schema(char *buffer);
int p4_pd_tiny_ticks_match_spec_value(const p4_pd_tiny_ticks_match_spec_t *match_spec,
    char *buffer);
int p4_pd_tiny_ticks_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_ticks_match_spec_print(int descriptor, int indent,
    const p4_pd_tiny_ticks_match_spec_t *match_spec);
bool p4_pd_tiny_ticks_match_specs_are_equal(const p4_pd_tiny_ticks_match_spec_t *a,
    const p4_pd_tiny_ticks_match_spec_t *b);
uint32_t p4_pd_tiny_ticks_tag_0__width(void);
int p4_pd_tiny_ticks_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_ticks_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_ticks_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table seen (0x0100000b), no key ==== */

p4_pd_status_t p4_pd_tiny_seen_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_seen_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_seen_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_seen_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_seen_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_seen_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_seen_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_seen_set_default_action_seenBit(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_seen_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_seen_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_seen_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name, void *action_spec,
    uint32_t *action);
p4_pd_status_t p4_pd_tiny_seen_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_seen_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_seen_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_action_specs_t *action_specs, bool *no_key);
int p4_pd_tiny_seen_schema(char *buffer);
int p4_pd_tiny_seen_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_seen_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_seen_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_seen_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table finish (0x0100000c), no key ==== */

p4_pd_status_t p4_pd_tiny_finish_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_finish_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_finish_set_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_finish_get_property(p4_pd_session_handle_t session, uint8_t device,
    uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tiny_finish_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_finish_table_reset_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
int p4_pd_tiny_finish_supports_entry_priority(void);
p4_pd_status_t p4_pd_tiny_finish_set_default_action_sendTo(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_sendTo_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_finish_table_get_default_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_finish_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_finish_get_entry(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name, void *action_spec,
    uint32_t *action);
p4_pd_status_t p4_pd_tiny_finish_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_finish_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_finish_get_entry_from_plcmt_data(const pipe_mgr_placement_t *placement,
    p4_pd_tiny_action_specs_t *action_specs, bool *no_key);
int p4_pd_tiny_finish_schema(char *buffer);
int p4_pd_tiny_finish_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tiny_finish_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_finish_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tiny_finish_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Profile pathMembers (action data 0x02000006, selector 0x03000001) ==== */

p4_pd_status_t p4_pd_tiny_pathMembers_add_member_with_setMember(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tiny_setMember_action_spec_t *action_spec,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tiny_pathMembers_modify_member_with_setMember(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_member_handle_t member,
    const p4_pd_tiny_setMember_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tiny_pathMembers_add_member_with_discard(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tiny_pathMembers_modify_member_with_discard(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tiny_pathMembers_del_member(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tiny_pathMembers_create_group(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t max_size, p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tiny_pathMembers_del_group(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tiny_pathMembers_add_member_to_group(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_group_handle_t group, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tiny_pathMembers_del_member_from_group(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_group_handle_t group, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tiny_pathMembers_group_member_state_set(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_group_handle_t group, p4_pd_member_handle_t member, uint32_t state);
p4_pd_status_t p4_pd_tiny_pathMembers_group_member_state_get(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_group_handle_t group, p4_pd_member_handle_t member, uint32_t *state);
p4_pd_status_t p4_pd_tiny_pathMembers_group_member_get_from_hash(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_group_handle_t group, const uint8_t *hash, uint32_t hash_length,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tiny_pathMembers_set_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tiny_pathMembers_reset_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tiny_pathMembers_register_callback(p4_pd_session_handle_t session,
    uint8_t device, pipe_mgr_sel_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_pathMembers_sel_track_updates(uint8_t device,
    pipe_mgr_sel_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_pathMembers_register_adt_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_adt_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_pathMembers_register_sel_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_sel_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_pathMembers_get_adt_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_pathMembers_get_sel_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tiny_pathMembers_get_member(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_member_handle_t member, bool read_from_hardware, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_pathMembers_get_first_member(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tiny_pathMembers_get_next_members(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_member_handle_t member, uint32_t count,
    p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tiny_pathMembers_get_first_group(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tiny_pathMembers_get_next_groups(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_group_handle_t group, uint32_t count,
    p4_pd_group_handle_t *groups);
p4_pd_status_t p4_pd_tiny_pathMembers_get_first_group_member(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_group_handle_t group, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tiny_pathMembers_get_next_group_members(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_group_handle_t group, p4_pd_member_handle_t member, uint32_t count,
    p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tiny_pathMembers_get_act_prof_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_pathMembers_get_selector_group_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tiny_pathMembers_get_selector_group_member_count(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group, uint32_t *count);
p4_pd_status_t p4_pd_tiny_pathMembers_get_word_llp_active_member_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t *count);
p4_pd_status_t p4_pd_tiny_pathMembers_get_word_llp_active_members(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t word, uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tiny_pathMembers_get_member_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tiny_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tiny_pathMembers_get_full_member_info_from_plcmt_data(uint8_t device,
    p4_pd_member_handle_t member, const pipe_mgr_placement_t *placement,
    p4_pd_tiny_action_specs_t *action_specs);
int p4_pd_tiny_pathMembers_schema(char *buffer);
int p4_pd_tiny_pathMembers_adt_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_pathMembers_plcmt_data_value(const pipe_mgr_placement_t *placement, char *buffer);

/* ==== Meters ==== */

p4_pd_status_t p4_pd_tiny_meter_set_flowRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_meter_read_flowRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_meter_bytecount_adjust_set_flowRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tiny_meter_bytecount_adjust_get_flowRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tiny_meter_set_floodRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_meter_read_floodRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_meter_bytecount_adjust_set_floodRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tiny_meter_bytecount_adjust_get_floodRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tiny_meter_set_sampleRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const p4_pd_packets_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_meter_read_sampleRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_packets_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_meter_bytecount_adjust_set_sampleRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tiny_meter_bytecount_adjust_get_sampleRate(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tiny_bytes_meter_set(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t meter, uint32_t index,
    const p4_pd_bytes_meter_spec_t *meter_spec, uint8_t has_pre_color);
p4_pd_status_t p4_pd_tiny_bytes_meter_read(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t meter, uint32_t index,
    p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_packets_meter_set(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t meter, uint32_t index,
    const p4_pd_packets_meter_spec_t *meter_spec, uint8_t has_pre_color);
p4_pd_status_t p4_pd_tiny_packets_meter_read(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t meter, uint32_t index,
    p4_pd_packets_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tiny_wred_set(p4_pd_session_handle_t session, p4_pd_device_target_t target,
    uint32_t wred, uint32_t index, const p4_pd_wred_params_t *params);

/* ==== Virtual devices ==== */

p4_pd_status_t p4_pd_tiny_restore_virtual_dev_state(p4_pd_session_handle_t session,
    uint32_t device, uint32_t virtual_device, uint32_t pipe, uint32_t flags);

/* ==== Counters ==== */

p4_pd_status_t p4_pd_tiny_counter_read_filterHits(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t flags,
    p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tiny_counter_write_filterHits(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tiny_counter_hw_sync_filterHits(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_counter_read_flowCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tiny_counter_write_flowCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tiny_counter_hw_sync_flowCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);

/* ==== Registers ==== */

p4_pd_status_t p4_pd_tiny_register_read_seenReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tiny_register_write_seenReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const uint8_t *value);
p4_pd_status_t p4_pd_tiny_register_write_all_seenReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tiny_register_reset_all_seenReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tiny_register_range_read_seenReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t first, uint32_t index_count, uint32_t flags,
    uint32_t *indexes_read, uint8_t *values, uint32_t *value_count);
p4_pd_status_t p4_pd_tiny_register_range_reset_seenReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t first, uint32_t index_count);
p4_pd_status_t p4_pd_tiny_register_hw_sync_seenReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_register_read_tickReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, uint32_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tiny_register_write_tickReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const uint32_t *value);
p4_pd_status_t p4_pd_tiny_register_write_all_tickReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const uint32_t *value);
p4_pd_status_t p4_pd_tiny_register_reset_all_tickReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tiny_register_range_read_tickReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t first, uint32_t index_count, uint32_t flags,
    uint32_t *indexes_read, uint32_t *values, uint32_t *value_count);
p4_pd_status_t p4_pd_tiny_register_range_reset_tickReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t first, uint32_t index_count);
p4_pd_status_t p4_pd_tiny_register_hw_sync_tickReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_register_read_direct(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table, p4_pd_entry_handle_t entry, uint32_t flags,
    pipe_stful_query_t *query);
p4_pd_status_t p4_pd_tiny_register_write_direct(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table, p4_pd_entry_handle_t entry, const pipe_stful_cell_t *cell);
p4_pd_status_t p4_pd_tiny_register_hw_sync_direct(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_register_read_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, uint32_t index, uint32_t flags,
    pipe_stful_query_t *query);
p4_pd_status_t p4_pd_tiny_register_write_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, uint32_t index, const pipe_stful_cell_t *cell);
p4_pd_status_t p4_pd_tiny_register_hw_sync_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_register_reset_all_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg);
p4_pd_status_t p4_pd_tiny_register_range_reset_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, uint32_t first, uint32_t index_count);
p4_pd_status_t p4_pd_tiny_register_write_all_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, const pipe_stful_cell_t *cell);

/* ==== Hash calculations ==== */

typedef p4_pd_hash_field_attr_t p4_pd_tiny_hash_field_attr_t;

p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_input_set(p4_pd_session_handle_t session,
    uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_input_get(p4_pd_session_handle_t session,
    uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_algorithm_set(p4_pd_session_handle_t session,
    uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_algorithm_get(p4_pd_session_handle_t session,
    uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_seed_set(p4_pd_session_handle_t session,
    uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_seed_get(p4_pd_session_handle_t session,
    uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tiny_hash_calc_flowHash_calculate_hash_value(p4_pd_session_handle_t session,
    uint8_t device, uint32_t attribute_count, const p4_pd_hash_calc_attr_t *attributes,
    const uint32_t *attribute_sizes, uint8_t *hash, uint32_t hash_length);
int32_t p4_pd_tiny_flowHash_p4_field_enum(uint32_t index);
uint32_t p4_pd_tiny_flowHash_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tiny_hash_calc_input_set(p4_pd_session_handle_t session, uint8_t device,
    const char *name);
p4_pd_status_t p4_pd_tiny_hash_calc_input_field_attribute_count_get(p4_pd_session_handle_t session,
    uint8_t device, const char *name, uint32_t *count);
p4_pd_status_t p4_pd_tiny_hash_calc_input_field_attribute_set(p4_pd_session_handle_t session,
    uint8_t device, const char *name, uint32_t attribute_count,
    const p4_pd_tiny_hash_field_attr_t *attributes);
p4_pd_status_t p4_pd_tiny_hash_calc_input_field_attribute_get(p4_pd_session_handle_t session,
    uint8_t device, const char *name, uint32_t max_count, p4_pd_tiny_hash_field_attr_t *attributes,
    uint32_t *filled);

/* ==== Learning digests ==== */

p4_pd_status_t p4_pd_tiny_arrival_register(p4_pd_session_handle_t session, uint8_t device,
    pipe_mgr_digest_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tiny_arrival_deregister(p4_pd_session_handle_t session, uint8_t device);
p4_pd_status_t p4_pd_tiny_arrival_notify_ack(p4_pd_session_handle_t session,
    pipe_mgr_digest_message_t *message);
p4_pd_status_t p4_pd_tiny_set_learning_timeout(p4_pd_session_handle_t session, uint8_t device,
    uint32_t timeout);
uint32_t p4_pd_tiny_get_digest_entry_size(const char *digest_name);
const uint8_t *p4_pd_tiny_get_digest_entry_field(const uint8_t *entry, const char *digest_name,
    const char *field_name, uint32_t *size);

/* ==== Parser value sets ==== */

p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_set_property(p4_pd_session_handle_t session,
    uint32_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_get_property(p4_pd_session_handle_t session,
    uint32_t device, uint32_t property, uint32_t *value, uint32_t argument);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_entry_add(p4_pd_session_handle_t session,
    p4_pd_parser_target_t target, uint32_t value, uint32_t mask, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_entry_modify(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry, uint32_t value, uint32_t mask);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_entry_delete(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_entry_get(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry, uint32_t *value, uint32_t *mask);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_entry_handle_get(p4_pd_session_handle_t session,
    p4_pd_parser_target_t target, uint32_t value, uint32_t mask, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_entry_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_parser_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_entry_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_parser_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_pvs_trunk_ports_entry_get_count(p4_pd_session_handle_t session,
    p4_pd_parser_target_t target, uint8_t read_from_hardware, uint32_t *count);

/* ==== Snapshots ==== */

/* Trigger of ingress snapshots, 16 bytes: field values, or the bits of them that count. */
typedef struct __attribute__((packed)) p4_pd_tiny_snapshot_ingress_trigger {
  uint16_t in_port;
  uint8_t slice;
  uint32_t ip4_src;
  uint8_t reserved[9];
} p4_pd_tiny_snapshot_ingress_trigger_t;

/* Trigger of egress snapshots, 16 bytes: field values, or the bits of them that count. */
typedef struct __attribute__((packed)) p4_pd_tiny_snapshot_egress_trigger {
  uint16_t out_port;
  uint8_t reserved[14];
} p4_pd_tiny_snapshot_egress_trigger_t;

/* What one stage captured, 16 bytes. Fields of several bytes have the most significant first. */
typedef struct __attribute__((packed)) p4_pd_tiny_snapshot_capture {
  uint8_t eth_src[6];
  uint8_t in_port[2];
  uint8_t reserved[8];
} p4_pd_tiny_snapshot_capture_t;

p4_pd_status_t p4_pd_tiny_snapshot_create(uint32_t device, uint16_t pipe, uint8_t first_stage,
    uint8_t last_stage, uint32_t direction, uint32_t *snapshot);
p4_pd_status_t p4_pd_tiny_snapshot_delete(uint32_t snapshot);
p4_pd_status_t p4_pd_tiny_snapshot_capture_trigger_set(uint32_t snapshot, const void *value,
    const void *mask);
p4_pd_status_t p4_pd_tiny_snapshot_capture_data_get(uint32_t snapshot, uint16_t pipe,
    p4_pd_tiny_snapshot_capture_t *records, bf_snapshot_control_t *control, uint32_t *captures);

/* ==== Introspection ==== */

/* Bytes that hold any text of a family, its NUL included. */
enum {
  P4_PD_TINY_SCHEMA_MAX = 1324, /* schema of a table or profile */
  P4_PD_TINY_MATCH_SPEC_VALUE_MAX = 197, /* a match spec alone */
  P4_PD_TINY_ACTION_VALUE_MAX = 47, /* an action alone */
  P4_PD_TINY_VALUE_MAX = 245, /* an entry */
  P4_PD_TINY_LABEL_MAX = 221, /* label of a counted entry */
};

int p4_pd_tiny_cli_schema(uint32_t handle, char *buffer);
int p4_pd_tiny__print_v4addr_exact(char *buffer, const char *label, uint32_t address);
int p4_pd_tiny__print_v4addr_lpm(char *buffer, const char *label, uint32_t address,
    uint16_t prefix_length);
int p4_pd_tiny__print_v4addr_ternary(char *buffer, const char *label, uint32_t address,
    uint32_t mask);
int p4_pd_tiny__print_v6addr_exact(char *buffer, const char *label, const uint8_t *address);
int p4_pd_tiny__print_v6addr_lpm(char *buffer, const char *label, const uint8_t *address,
    uint16_t prefix_length);
int p4_pd_tiny__print_v6addr_ternary(char *buffer, const char *label, const uint8_t *address,
    const uint8_t *mask);
int p4_pd_tiny__print_mac_exact(char *buffer, const char *label, uint32_t oui, uint32_t station);
int p4_pd_tiny__print_mac_ternary(char *buffer, const char *label, uint32_t oui, uint32_t oui_mask,
    uint32_t station, uint32_t station_mask);
int p4_pd_tiny_stringify_counter_matchspec(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, char *buffer);

/* ==== Rendering by handle ==== */

int p4_pd_tiny_plcmt_data_print(int descriptor, int indent, uint32_t table_handle,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_adt_plcmt_data_print(int descriptor, int indent, uint32_t profile_handle,
    const pipe_mgr_placement_t *placement);
int p4_pd_tiny_plcmt_data_value(uint32_t table_handle, const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tiny_adt_plcmt_data_value(uint32_t profile_handle, const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tiny_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);
int p4_pd_tiny_entry_value(p4_pd_session_handle_t session, uint32_t device, uint32_t table_handle,
    p4_pd_entry_handle_t entry, uint32_t read_from_hardware, char *buffer);
p4_pd_status_t p4_pd_tiny_entry_hdl_first(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table_handle, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_entry_hdl_next(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table_handle, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tiny_entry_hdl_default(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table_handle, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tiny_member_hdl_next(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t profile_handle, p4_pd_member_handle_t member,
    uint32_t count, p4_pd_member_handle_t *members);

#ifdef __cplusplus
}
#endif

#endif
