/* Control-plane interface of the P4 program tessel_switch.
 *
 * Every function runs on the caller's thread and returns the status of the pipeline manager
 * unchanged, or a code of the library (p4_pd_types.h). Records and buffers belong to the
 * caller and are used during the call only. Out-parameters are written on success only,
 * unless a family says otherwise. The functions are grouped by object; what the functions
 * of a family have in common is said once, below.
 *
 * Arguments
 *   A pointer is mandatory unless its family says otherwise. The library refuses a null one with
 *   P4_PD_NULL_ARGUMENT, and leaves to the pipeline manager what it hands on as it is:
 *   callbacks, the handle of an entry that is added, found or made the default, counts of
 *   entries, members and groups, the handles of walks, a time to live, a member chosen by hash
 *   and that hash, placement data, and the adjustment of meter_bytecount_adjust_get_.
 *   Functions that return a text's length return 0 for a null pointer. A device is a number of
 *   8 bits where it is a uint8_t and of 32 bits elsewhere; of a target's device_id the
 *   member-selector states use the low 8 bits, as entry_value does of its device.
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
 *   0xffffffff to both outputs when the pipeline manager refuses, and nothing when one of them
 *   is null. register_mat_update_cb has the pipeline manager call the caller after each
 *   change. table_reset_default_entry puts back the program's own default entry.
 *   supports_entry_priority returns 1 for a ternary table, else 0.
 *
 * Entries
 *   For every keyed table, and for each of its actions where the name ends in one. The pipeline
 *   manager chooses the entry's handle. priority (ternary tables): the smallest number wins.
 *   ttl (tables that age their entries): milliseconds. meter_spec (tables with a direct
 *   meter): required by add, P4_PD_METER_SPEC_MISSING without; null in modify keeps the meter.
 *   match_spec_to_entry_hdl finds the entry with exactly this key and priority. A field takes
 *   whole bytes of the key or of the action data, and as many low bytes of its value reach the
 *   pipeline manager, bits beyond the width included; the masks of ternary fields are cut to
 *   the width. A prefix length beyond the address stands for the whole address, and the entry
 *   comes after every other one. P4_PD_NULL_ARGUMENT for a null match spec or action spec.
 *
 * Default entries
 *   For every table. set_default_action_ exists for each action that may be the default; meter_spec
 *   (tables with a direct meter) may be null, which detaches the meter.
 *   table_get_default_entry of a table with actions of its own fills the action's value and,
 *   for an action with parameters, the member of spec that belongs to it; P4_PD_FOREIGN_ACTION
 *   when the default entry holds no direct action data or an action that the table does not
 *   have. Of a table bound to a profile it reports the member or the group that the default
 *   entry points at; the other handle is not written.
 *
 * Read-back
 *   get_entry fills match_spec, priority (ternary tables), no_key, action_name
 *   (P4_PD_TESSEL_SWITCH_ACTION_NAME_MAX bytes, or null), action (the enumeration value, or
 *   null) and action_spec, the record of whichever action the entry holds, written only for an
 *   action with parameters: &specs.spec of a p4_pd_tessel_switch_action_specs_t has room for
 *   any, and null is refused only for such an action. no_key is set for the default entry,
 *   whose match_spec stays as it was. P4_PD_NO_ACTION_DATA for an entry without action data,
 *   P4_PD_FOREIGN_ACTION for an action that the table does not have, P4_PD_NO_MEMORY when the
 *   resource list could not be allocated, P4_PD_NULL_ARGUMENT when a mandatory output is null;
 *   nothing is written then. get_first_entry_handle and get_next_entry_handles walk the
 *   entries; entries has room for count handles.
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
 *   sel_track_updates registers a callback without a session. get_adt_table_handle and
 *   get_sel_table_handle skip a null pointer. get_member fills the action's value and, for an
 *   action with parameters, the member of spec that belongs to it.
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
 *   else that many of the bytes it points at, whose last byte is the lowest. An array of no
 *   elements may be null. P4_PD_NO_MEMORY when a copy or the stream could not be allocated or
 *   the stream is longer than 32 bits can tell. p4_field_enum turns the common number of a
 *   field into the calculation's own, -1 when there is none, and cmn_field_enum back,
 *   0xffffffff (no field of any calculation) when there is none.
 *
 * Hash calculations by name
 *   The name is that of the calculation, whole and case-sensitive; P4_PD_UNKNOWN_SELECTION for any
 *   other, and for an attribute of a field that the calculation does not have. Fields go by
 *   their common number.
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
 *   value when the pipeline manager refuses. entry_get_next_entry_handles fills entries, which
 *   has room for count handles, with those behind entry.
 *
 * Snapshots
 *   direction is 0 for ingress and 1 for egress; bit 1 of the handle is set for an egress snapshot.
 *   The trigger records of the two directions differ in shape, and capture_trigger_set takes
 *   two of the snapshot's own direction in host order, field values and mask, and hands copies
 *   in network order on. A field that a trigger record splits ends in _0, _1 and so on, the
 *   most significant part first; captures have it whole. capture_data_get writes a record for
 *   each stage of the capture, at most 20; records has room for 20, control (null: not wanted)
 *   for one element a stage. captures is 0 unless the capture was asked for, and never above
 *   20. Records are written even when the capture itself fails; a stage that is shorter than a
 *   record fills it up with zeroes. P4_PD_NO_MEMORY, and no record written, when the capture
 *   could not be allocated.
 *
 * Schemas
 *   Objects described as literals of nested tuples, for tools that know none of them. The
 *   match-spec and action schemas are constants. The others are written into buffer with a NUL
 *   and their length is returned; P4_PD_TESSEL_SWITCH_SCHEMA_MAX bytes hold any of them.
 *   cli_schema takes the handle of a table or the action-data handle of a profile and writes
 *   "()" for any other. A null buffer gets 0.
 *
 * Value strings
 *   The numbers of a match spec, an action or an entry as a literal that lists what the schema
 *   lists, cut to the key bits, in hexadecimal. They are written into buffer with a NUL and
 *   their length is returned: P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX,
 *   P4_PD_TESSEL_SWITCH_ACTION_VALUE_MAX and P4_PD_TESSEL_SWITCH_VALUE_MAX bytes hold any of
 *   them. A table's value reads the entry by get_entry. When that fails, and for a null
 *   pointer, 0 is returned and buffer stays as it was.
 *
 * Printing
 *   match_spec_print and an action's print write one line a field to a file descriptor, in one
 *   write while the line has at most 512 bytes, its newline included. They return the length
 *   of the last line, -1 when it could not be written or is longer than an int can say, and 0
 *   for a null record. The header line of a match spec follows indent blanks, the others one
 *   blank more, and two at indent 0. The helpers _print_* write a label and an address into
 *   buffer and return the length. The ternary ones return 0 for a mask of 0; 0 goes with
 *   nothing written, also for a null pointer. IPv6 addresses have 16 bytes; MAC addresses come
 *   in halves of 24 bits.
 *
 * Labels of counted entries
 *   For the tables whose entries carry a counter that monitoring shows. A label names the fields
 *   that the entry matches on. It is written into buffer with a NUL and its length is
 *   returned; P4_PD_TESSEL_SWITCH_LABEL_MAX bytes hold any of them.
 *   stringify_counter_match_spec reads the entry from the hardware; the default entry, which
 *   has no key, has an empty label. When that fails, for a table without labels and for a null
 *   pointer, 0 is returned and buffer stays as it was.
 *
 * Comparison and names
 *   match_specs_are_equal compares member by member under the key bits: a value and its mask are
 *   two members, so entries that differ in what they do not care about differ.
 *   action_specs_are_equal compares the bits of each parameter's width. A null pointer equals
 *   nothing. width returns the bits of a key field. action_enum_to_string returns the full
 *   name of a value, null beyond the last; action_string_to_enum returns the value of a full
 *   name, else P4_PD_TESSEL_SWITCH_ACTION_COUNT.
 *
 * Rendering of placement data
 *   plcmt_data_print writes key and action of placement data to a file descriptor and returns 0,
 *   whether the lines could be written or not, or the status of the decoder after a line that
 *   says that it failed. plcmt_data_value writes a value string (P4_PD_TESSEL_SWITCH_VALUE_MAX
 *   bytes hold any) and returns its length, 0 when the data cannot be decoded.
 *   plcmt_data_eq_to_hw returns 1 when the data describes the entry that the hardware holds
 *   under the handle, priorities apart, and 0 otherwise, also when either cannot be read;
 *   entries that point at groups must point at the same one. The functions by handle do the
 *   same for a table or for the action-data table of a profile; an unknown handle is printed
 *   as not found (the result is that of the line: its length, or -1), has no value and equals
 *   nothing. entry_hdl_first, entry_hdl_next, entry_hdl_default and member_hdl_next walk
 *   entries and members; an unknown handle stores 0xffffffff and returns 0, member_hdl_next
 *   0xffffffff.
 *
 * Made by pdgen from the catalogue of tessel_switch. Edit the catalogue and run
 * scripts/generate, not this file.
 */
#ifndef P4_PD_TESSEL_SWITCH_H
#define P4_PD_TESSEL_SWITCH_H

#include "p4_pd_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Sizes ==== */

/* Sizes of what callers make room for, the NUL of a text included. */
enum {
  /* actions, whose values are 0 and up */
  P4_PD_TESSEL_SWITCH_ACTION_COUNT = 232,
  /* bytes that hold the full name of any action */
  P4_PD_TESSEL_SWITCH_ACTION_NAME_MAX = 61,
  /* the schema of any table or profile */
  P4_PD_TESSEL_SWITCH_SCHEMA_MAX = 3786,
  /* the value string of any match spec alone */
  P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX = 281,
  /* the value string of any action alone */
  P4_PD_TESSEL_SWITCH_ACTION_VALUE_MAX = 99,
  /* the value string of any entry */
  P4_PD_TESSEL_SWITCH_VALUE_MAX = 331,
  /* the label of any counted entry */
  P4_PD_TESSEL_SWITCH_LABEL_MAX = 461
};

/* ==== Start and stop ==== */

extern uint32_t bf_drv_hdl;

p4_pd_status_t p4_pd_tessel_switch_init(void);
p4_pd_status_t p4_pd_tessel_switch_cleanup(void);
void p4_pd_tessel_switch_device_state_cleanup(void);

/* ==== Actions ==== */

/* Every action of the program; an action that several tables use has one value. */
typedef enum p4_pd_tessel_switch_action_names {
  p4_pd_tessel_switch_trapPktToCpuUntagged = 0,
  p4_pd_tessel_switch_copyPktToCpuUntagged = 1,
  p4_pd_tessel_switch_trapPktToCpuTagged = 2,
  p4_pd_tessel_switch_copyPktToCpuTagged = 3,
  p4_pd_tessel_switch_trapPktToCpuSubintf = 4,
  p4_pd_tessel_switch_copyPktToCpuSubintf = 5,
  p4_pd_tessel_switch_encapPktToCpu = 6,
  p4_pd_tessel_switch_onMiss = 7,
  p4_pd_tessel_switch_setDecapEscapeIpv4 = 8,
  p4_pd_tessel_switch_setDecapEscapeIpv6 = 9,
  p4_pd_tessel_switch_removeOuterIpv4Hdr = 10,
  p4_pd_tessel_switch_removeOuterIpv6Hdr = 11,
  p4_pd_tessel_switch_restoreOuterIpv4HeaderL4 = 12,
  p4_pd_tessel_switch_restoreOuterIpv6HeaderL4 = 13,
  p4_pd_tessel_switch_dipHashCompute = 14,
  p4_pd_tessel_switch_kiteFlowSetDrop = 15,
  p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag = 16,
  p4_pd_tessel_switch_kiteFlowRemoveInnerTag = 17,
  p4_pd_tessel_switch_kiteFlowDontFlow = 18,
  p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf = 19,
  p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain = 20,
  p4_pd_tessel_switch_kiteFlowPreviousHit = 21,
  p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag = 22,
  p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit = 23,
  p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow = 24,
  p4_pd_tessel_switch_kiteFlowCopyEgrL2Aintf = 25,
  p4_pd_tessel_switch_setEcmpNextHop = 26,
  p4_pd_tessel_switch_setHashValuesEcmpOuterIpHdr = 27,
  p4_pd_tessel_switch_setHashValuesEcmpOuterL4Hdr = 28,
  p4_pd_tessel_switch_setHashValuesEcmpInnerIpHdr = 29,
  p4_pd_tessel_switch_setHashValuesEcmpInnerL4Hdr = 30,
  p4_pd_tessel_switch_setHashValuesEcmpInnerEthHdr = 31,
  p4_pd_tessel_switch_egrStpAction = 32,
  p4_pd_tessel_switch_egrVlanAction = 33,
  p4_pd_tessel_switch_setL2DomainReplicated = 34,
  p4_pd_tessel_switch_setEgrLagMemberSelector = 35,
  p4_pd_tessel_switch_setEgressMirrorColor = 36,
  p4_pd_tessel_switch_setEgressMirrorColorRed = 37,
  p4_pd_tessel_switch_egressMirrorAction = 38,
  p4_pd_tessel_switch_setEgressMirrorSession = 39,
  p4_pd_tessel_switch_setEgressDrop = 40,
  p4_pd_tessel_switch_egressSamePortBridgingTestDrop = 41,
  p4_pd_tessel_switch_setEgrVlan = 42,
  p4_pd_tessel_switch_setEgrVlanSubIntf = 43,
  p4_pd_tessel_switch_noXlate = 44,
  p4_pd_tessel_switch_noDecapNoEncapRouteIpv4 = 45,
  p4_pd_tessel_switch_noDecapNoEncapRouteIpv6 = 46,
  p4_pd_tessel_switch_noDecapNoEncapBridgeIpv4 = 47,
  p4_pd_tessel_switch_noDecapNoEncapBridgeIpv6 = 48,
  p4_pd_tessel_switch_encapFabricPktToCpu = 49,
  p4_pd_tessel_switch_encapPPIPktToCpu = 50,
  p4_pd_tessel_switch_decapPPIPktFromCpu = 51,
  p4_pd_tessel_switch_encapGreIpv4ForClone = 52,
  p4_pd_tessel_switch_noDecapNoEncapClone = 53,
  p4_pd_tessel_switch_decapIpIpEncapPPIPktToCpuIpv4 = 54,
  p4_pd_tessel_switch_decapIpIpEncapPPIPktToCpuIpv6 = 55,
  p4_pd_tessel_switch_decapIpIpRouteIpv4 = 56,
  p4_pd_tessel_switch_decapIpIpRouteIpv6 = 57,
  p4_pd_tessel_switch_setEgressPort = 58,
  p4_pd_tessel_switch_setDecapTypeVlan = 59,
  p4_pd_tessel_switch_setInvalidEgressPort = 60,
  p4_pd_tessel_switch_removeTesselHdrs = 61,
  p4_pd_tessel_switch_accept = 62,
  p4_pd_tessel_switch_acceptLog = 63,
  p4_pd_tessel_switch_dropCount = 64,
  p4_pd_tessel_switch_dropCountAndLog = 65,
  p4_pd_tessel_switch_finalDrop = 66,
  p4_pd_tessel_switch_finalizeMcResultIpmc = 67,
  p4_pd_tessel_switch_finalizeMcResultL2mc = 68,
  p4_pd_tessel_switch_finalizeMcResultL2mcFlood = 69,
  p4_pd_tessel_switch_finalizeMcResultCancel = 70,
  p4_pd_tessel_switch_finalizeMcResultFlood = 71,
  p4_pd_tessel_switch_finalizeMcResultL3Rpf = 72,
  p4_pd_tessel_switch_firewallDipMeterDropAction = 73,
  p4_pd_tessel_switch_setDstSegment = 74,
  p4_pd_tessel_switch_setSrcSegment = 75,
  p4_pd_tessel_switch_setFirewallPolicyPermit = 76,
  p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow = 77,
  p4_pd_tessel_switch_setFirewallPolicyDrop = 78,
  p4_pd_tessel_switch_firewallSipMeterDropAction = 79,
  p4_pd_tessel_switch_flowAddRecircHeaderAction = 80,
  p4_pd_tessel_switch_flowBusyActionFirst = 81,
  p4_pd_tessel_switch_flowBusyActionSecond = 82,
  p4_pd_tessel_switch_flowDigestGenerate = 83,
  p4_pd_tessel_switch_flowHashComputeTypeAFirst = 84,
  p4_pd_tessel_switch_flowHashComputeTypeASecond = 85,
  p4_pd_tessel_switch_flowHashComputeTypeBFirst = 86,
  p4_pd_tessel_switch_flowHashComputeTypeBSecond = 87,
  p4_pd_tessel_switch_selectTypeA = 88,
  p4_pd_tessel_switch_selectTypeB = 89,
  p4_pd_tessel_switch_setFlowLimitExceeded = 90,
  p4_pd_tessel_switch_flowRecircPacketAction = 91,
  p4_pd_tessel_switch_flowSetupL4PortsAction = 92,
  p4_pd_tessel_switch_flowStateLookupActionFirst = 93,
  p4_pd_tessel_switch_flowStateLookupActionSecond = 94,
  p4_pd_tessel_switch_setFlowPresent = 95,
  p4_pd_tessel_switch_flowStateUpdateActionFirst = 96,
  p4_pd_tessel_switch_flowStateUpdateActionSecond = 97,
  p4_pd_tessel_switch_setNonInitialFragment = 98,
  p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon = 99,
  p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4 = 100,
  p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB = 101,
  p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel = 102,
  p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel = 103,
  p4_pd_tessel_switch_setHaloXformDip = 104,
  p4_pd_tessel_switch_setHaloInvalidDip = 105,
  p4_pd_tessel_switch_setHaloXformIpv4Sip = 106,
  p4_pd_tessel_switch_setHaloInvalidSip = 107,
  p4_pd_tessel_switch_setHaloIpv4Common = 108,
  p4_pd_tessel_switch_setHaloXformIpv6Sip = 109,
  p4_pd_tessel_switch_setHaloIpv6Common = 110,
  p4_pd_tessel_switch_hashComputeInnerEthHdrAction = 111,
  p4_pd_tessel_switch_hashComputeInnerIpv4HdrAction = 112,
  p4_pd_tessel_switch_hashComputeInnerIpv6HdrAction = 113,
  p4_pd_tessel_switch_hashComputeIpAndL4HdrAction = 114,
  p4_pd_tessel_switch_hashComputeOuterIpv4HdrAction = 115,
  p4_pd_tessel_switch_hashComputeOuterIpv6HdrAction = 116,
  p4_pd_tessel_switch_ingStpAction = 117,
  p4_pd_tessel_switch_ingVlanAction = 118,
  p4_pd_tessel_switch_setLagMemberSelector = 119,
  p4_pd_tessel_switch_setIngressMirrorColor = 120,
  p4_pd_tessel_switch_setIngressMirrorColorRed = 121,
  p4_pd_tessel_switch_ingressMirrorAction = 122,
  p4_pd_tessel_switch_dropDatalink = 123,
  p4_pd_tessel_switch_setIngressMirrorSession = 124,
  p4_pd_tessel_switch_setDrop = 125,
  p4_pd_tessel_switch_setPhase0 = 126,
  p4_pd_tessel_switch_samplePacket = 127,
  p4_pd_tessel_switch_setTrafficClassAndEgressQid = 128,
  p4_pd_tessel_switch_setNextHop = 129,
  p4_pd_tessel_switch_setNextHop2 = 130,
  p4_pd_tessel_switch_setNextHop3 = 131,
  p4_pd_tessel_switch_setEcmp = 132,
  p4_pd_tessel_switch_ipv4ShortMaskLpmMiss = 133,
  p4_pd_tessel_switch_setFibMiss = 134,
  p4_pd_tessel_switch_setL2ControlFrame = 135,
  p4_pd_tessel_switch_setIllegalDmac = 136,
  p4_pd_tessel_switch_setMcast = 137,
  p4_pd_tessel_switch_setBcast = 138,
  p4_pd_tessel_switch_setUcast = 139,
  p4_pd_tessel_switch_setIpMcast = 140,
  p4_pd_tessel_switch_classifyL2ControlFrame = 141,
  p4_pd_tessel_switch_setL2DomainUntagged = 142,
  p4_pd_tessel_switch_setL2DomainVlanXlate = 143,
  p4_pd_tessel_switch_setL2DomainTagged = 144,
  p4_pd_tessel_switch_l2ForwardParamsSet = 145,
  p4_pd_tessel_switch_noOp = 146,
  p4_pd_tessel_switch_setL2LearningLookupMiss = 147,
  p4_pd_tessel_switch_l2LookupKnownUcast = 148,
  p4_pd_tessel_switch_l2LookupKnownMcast = 149,
  p4_pd_tessel_switch_l2LookupKnownUcastTunnel = 150,
  p4_pd_tessel_switch_l2LookupDrop = 151,
  p4_pd_tessel_switch_l2LookupBcastHit = 152,
  p4_pd_tessel_switch_l2LookupUnknownMcastAction = 153,
  p4_pd_tessel_switch_l2LookupUnknownUcastAction = 154,
  p4_pd_tessel_switch_setL2McResult = 155,
  p4_pd_tessel_switch_setIllegalSmac = 156,
  p4_pd_tessel_switch_setDropSmac = 157,
  p4_pd_tessel_switch_setL2XId = 158,
  p4_pd_tessel_switch_ignoreIngL3DmacValid = 159,
  p4_pd_tessel_switch_setIngL3DmacValid = 160,
  p4_pd_tessel_switch_setLagPort = 161,
  p4_pd_tessel_switch_setPhysicalPort = 162,
  p4_pd_tessel_switch_setTunnelInfo = 163,
  p4_pd_tessel_switch_invalidateUcastEgressPort = 164,
  p4_pd_tessel_switch_fixL2SubintfAlignment = 165,
  p4_pd_tessel_switch_setHashValuesLagOuterEthHdr = 166,
  p4_pd_tessel_switch_setHashValuesLagOuterIpHdr = 167,
  p4_pd_tessel_switch_setHashValuesLagOuterL4Hdr = 168,
  p4_pd_tessel_switch_setHashValuesLagInnerEthHdr = 169,
  p4_pd_tessel_switch_setHashValuesLagInnerIpHdr = 170,
  p4_pd_tessel_switch_setHashValuesLagInnerL4Hdr = 171,
  p4_pd_tessel_switch_generateMacLearningDigest = 172,
  p4_pd_tessel_switch_dot1xTrap = 173,
  p4_pd_tessel_switch_dot1xDrop = 174,
  p4_pd_tessel_switch_resetApplicationId = 175,
  p4_pd_tessel_switch_setPruneParams = 176,
  p4_pd_tessel_switch_setPruneParamsForL2Flood = 177,
  p4_pd_tessel_switch_setPruneParamsForL3Only = 178,
  p4_pd_tessel_switch_l3FloodEgressL2Aintf = 179,
  p4_pd_tessel_switch_setMirrorPacketEncapNone = 180,
  p4_pd_tessel_switch_setMirrorPacketEncapCpu = 181,
  p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4 = 182,
  p4_pd_tessel_switch_setMlagPrune = 183,
  p4_pd_tessel_switch_newFlowRateLimitAction = 184,
  p4_pd_tessel_switch_setNextHopDetails = 185,
  p4_pd_tessel_switch_setCosFromDefault = 186,
  p4_pd_tessel_switch_setCosFromPacket = 187,
  p4_pd_tessel_switch_setCosFromPacketWithInner = 188,
  p4_pd_tessel_switch_setDscpForNonIpPkt = 189,
  p4_pd_tessel_switch_setDscpForTTNonIpPkt = 190,
  p4_pd_tessel_switch_setDscpForIpv4Pkt = 191,
  p4_pd_tessel_switch_setDscpForIpv4OptionsPkt = 192,
  p4_pd_tessel_switch_setDscpForIpv6Pkt = 193,
  p4_pd_tessel_switch_noTunnelIpv4 = 194,
  p4_pd_tessel_switch_noTunnelIpv6 = 195,
  p4_pd_tessel_switch_onlyDecapInnerIpv4 = 196,
  p4_pd_tessel_switch_onlyDecapInnerIpv6 = 197,
  p4_pd_tessel_switch_encapOuterIpv4 = 198,
  p4_pd_tessel_switch_encapOuterIpv4InnerIpv4 = 199,
  p4_pd_tessel_switch_encapOuterIpv4InnerIpv6 = 200,
  p4_pd_tessel_switch_setPdpClass = 201,
  p4_pd_tessel_switch_setPdpClassCount = 202,
  p4_pd_tessel_switch_pdpPolice = 203,
  p4_pd_tessel_switch_setQosPortProperties = 204,
  p4_pd_tessel_switch_copyCosRewriteDscp = 205,
  p4_pd_tessel_switch_rewriteCosCopyDscp = 206,
  p4_pd_tessel_switch_rewriteCosRewriteDscp = 207,
  p4_pd_tessel_switch_setQosRewriteConfiguration = 208,
  p4_pd_tessel_switch_countEgressQueue = 209,
  p4_pd_tessel_switch_setNextHopToCpu = 210,
  p4_pd_tessel_switch_setRoutedMartian = 211,
  p4_pd_tessel_switch_setRouterNextHopDetails = 212,
  p4_pd_tessel_switch_samePortBridgingTestAction = 213,
  p4_pd_tessel_switch_sipHashCompute = 214,
  p4_pd_tessel_switch_setNyxIntfDetails = 215,
  p4_pd_tessel_switch_setSwitchToCpu = 216,
  p4_pd_tessel_switch_setVrfPropertiesTaggedPkt = 217,
  p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt = 218,
  p4_pd_tessel_switch_setTcDscp = 219,
  p4_pd_tessel_switch_trapPacket = 220,
  p4_pd_tessel_switch_copyPacket = 221,
  p4_pd_tessel_switch_setLlm = 222,
  p4_pd_tessel_switch_setTunnelTerminationTypeIpIp = 223,
  p4_pd_tessel_switch_setTunnelTerminationTypeIp6Ip6SwPath = 224,
  p4_pd_tessel_switch_setTunnelTerminationTypeNoneIpv6 = 225,
  p4_pd_tessel_switch_setTunnelTerminationTypeNoneIpv4AndL2 = 226,
  p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt = 227,
  p4_pd_tessel_switch_removeVlanHdr = 228,
  p4_pd_tessel_switch_noVlanEncap = 229,
  p4_pd_tessel_switch_needVlanEncap = 230,
  p4_pd_tessel_switch_setVlanProperties = 231
} p4_pd_tessel_switch_action_names_t;

/* The full name of each value, prefix included. */
extern const char *const p4_pd_tessel_switch_action_name_strings[P4_PD_TESSEL_SWITCH_ACTION_COUNT];

typedef struct p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec {
  uint16_t action_cpuPort; /* 9 bits */
  uint8_t action_trapPipelineQid; /* 5 bits */
} p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t;

typedef struct p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec {
  uint8_t action_copyPipelineQid; /* 5 bits */
} p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t;

typedef struct p4_pd_tessel_switch_trapPktToCpuTagged_action_spec {
  uint16_t action_cpuPort; /* 9 bits */
  uint8_t action_trapPipelineQid; /* 5 bits */
} p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t;

typedef struct p4_pd_tessel_switch_copyPktToCpuTagged_action_spec {
  uint8_t action_copyPipelineQid; /* 5 bits */
} p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t;

typedef struct p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec {
  uint16_t action_cpuPort; /* 9 bits */
  uint8_t action_trapPipelineQid; /* 5 bits */
} p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t;

typedef struct p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec {
  uint8_t action_copyPipelineQid; /* 5 bits */
} p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t;

typedef struct p4_pd_tessel_switch_encapPktToCpu_action_spec {
  uint8_t action_tagType; /* 2 bits */
} p4_pd_tessel_switch_encapPktToCpu_action_spec_t;

typedef struct p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec {
  uint8_t action_restore; /* 1 bit */
} p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t;

typedef struct p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec {
  uint8_t action_restore; /* 1 bit */
} p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowSetDrop_action_spec {
  uint16_t action_index; /* 12 bits */
} p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec {
  uint16_t action_index; /* 12 bits */
  uint32_t action_egrL2Aintf; /* 20 bits */
} p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec {
  uint16_t action_index; /* 12 bits */
} p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowDontFlow_action_spec {
  uint16_t action_index; /* 12 bits */
} p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec {
  uint16_t action_index; /* 12 bits */
  uint32_t action_egrL2Aintf; /* 20 bits */
} p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec {
  uint16_t action_index; /* 12 bits */
  uint32_t action_egrL2Aintf; /* 20 bits */
  uint16_t action_egrL2Domain; /* 12 bits */
} p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec {
  uint16_t action_index; /* 12 bits */
} p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec {
  uint16_t action_index; /* 12 bits */
  uint32_t action_egrL2Aintf; /* 20 bits */
  uint16_t action_vlanId; /* 12 bits */
  uint8_t action_priority; /* 3 bits */
} p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec {
  uint16_t action_index; /* 12 bits */
  uint16_t action_vlanId; /* 12 bits */
  uint8_t action_priority; /* 3 bits */
} p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t;

typedef struct p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec {
  uint16_t action_index; /* 12 bits */
  uint16_t action_vlanId; /* 12 bits */
  uint8_t action_priority; /* 3 bits */
} p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t;

typedef struct p4_pd_tessel_switch_setEcmpNextHop_action_spec {
  uint32_t action_nextHop; /* 14 bits */
} p4_pd_tessel_switch_setEcmpNextHop_action_spec_t;

typedef struct p4_pd_tessel_switch_setL2DomainReplicated_action_spec {
  uint16_t action_l2Domain; /* 12 bits */
} p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t;

typedef struct p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec {
  uint16_t action_lagMemberSelector; /* 10 bits */
} p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec_t;

typedef struct p4_pd_tessel_switch_setEgressMirrorColor_action_spec {
  uint32_t action_meterIndex; /* 32 bits, cell of egressMirrorMeter */
} p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t;

typedef struct p4_pd_tessel_switch_setEgressMirrorSession_action_spec {
  uint16_t action_sessionId; /* 10 bits */
} p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t;

typedef struct p4_pd_tessel_switch_setEgrVlan_action_spec {
  uint16_t action_vlanId; /* 12 bits */
} p4_pd_tessel_switch_setEgrVlan_action_spec_t;

typedef struct p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec {
  uint16_t action_vlanId; /* 12 bits */
} p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t;

typedef struct p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec {
  uint32_t action_routerMacOui; /* 24 bits, half of a MAC address */
  uint32_t action_routerMacStation; /* 24 bits, half of a MAC address */
} p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t;

typedef struct p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec {
  uint32_t action_routerMacOui; /* 24 bits, half of a MAC address */
  uint32_t action_routerMacStation; /* 24 bits, half of a MAC address */
} p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t;

typedef struct p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec {
  uint32_t action_routerMacOui; /* 24 bits, half of a MAC address */
  uint32_t action_routerMacStation; /* 24 bits, half of a MAC address */
} p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t;

typedef struct p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec {
  uint32_t action_routerMacOui; /* 24 bits, half of a MAC address */
  uint32_t action_routerMacStation; /* 24 bits, half of a MAC address */
} p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t;

typedef struct p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec {
  uint32_t action_routerMacOui; /* 24 bits, half of a MAC address */
  uint32_t action_routerMacStation; /* 24 bits, half of a MAC address */
} p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t;

typedef struct p4_pd_tessel_switch_setEgressPort_action_spec {
  uint32_t action_egrL2Aintf; /* 20 bits */
} p4_pd_tessel_switch_setEgressPort_action_spec_t;

typedef struct p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec {
  uint8_t action_copy; /* 1 bit */
} p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t;

typedef struct p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec {
  uint8_t action_copy; /* 1 bit */
} p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t;

typedef struct p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec {
  uint8_t action_copy; /* 1 bit */
} p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t;

typedef struct p4_pd_tessel_switch_finalizeMcResultCancel_action_spec {
  uint8_t action_copy; /* 1 bit */
} p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t;

typedef struct p4_pd_tessel_switch_finalizeMcResultFlood_action_spec {
  uint8_t action_copy; /* 1 bit */
} p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t;

typedef struct p4_pd_tessel_switch_setDstSegment_action_spec {
  uint8_t action_dstSegment; /* 8 bits */
} p4_pd_tessel_switch_setDstSegment_action_spec_t;

typedef struct p4_pd_tessel_switch_setSrcSegment_action_spec {
  uint8_t action_srcSegment; /* 8 bits */
} p4_pd_tessel_switch_setSrcSegment_action_spec_t;

typedef struct p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec {
  uint32_t action_counterIndex; /* 32 bits, cell of firewallPolicyCount */
  uint8_t action_updateFlowBusy; /* 1 bit */
  uint8_t action_finRstDigestEnabled; /* 1 bit */
  uint8_t action_response; /* 1 bit */
} p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t;

typedef struct p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec {
  uint32_t action_counterIndex; /* 32 bits, cell of firewallPolicyCount */
  uint8_t action_escortToRecircPort; /* 1 bit */
} p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t;

typedef struct p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec {
  uint32_t action_counterIndex; /* 32 bits, cell of firewallPolicyCount */
  uint8_t action_log; /* 1 bit */
  uint8_t action_meterDrop; /* 1 bit */
} p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t;

typedef struct p4_pd_tessel_switch_setFlowLimitExceeded_action_spec {
  uint8_t action_flowLimitExceeded; /* 1 bit */
} p4_pd_tessel_switch_setFlowLimitExceeded_action_spec_t;

typedef struct p4_pd_tessel_switch_flowRecircPacketAction_action_spec {
  uint16_t action_recircGrpId; /* 16 bits */
} p4_pd_tessel_switch_flowRecircPacketAction_action_spec_t;

typedef struct p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec {
  uint16_t action_dstPort; /* 16 bits */
  uint16_t action_pktLengthAdj; /* 16 bits */
  uint16_t action_vxlanRangeMask; /* 16 bits */
} p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t;

typedef struct p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec {
  uint32_t action_routerIp; /* 32 bits */
  uint16_t action_dstPort; /* 16 bits */
  uint16_t action_pktLengthAdj; /* 16 bits */
  uint16_t action_vxlanRangeMask; /* 16 bits */
} p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t;

typedef struct p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec {
  uint32_t action_routerIp; /* 32 bits */
  uint16_t action_dstPort; /* 16 bits */
  uint16_t action_pktLengthAdj; /* 16 bits */
  uint16_t action_vxlanRangeMask; /* 16 bits */
} p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t;

typedef struct p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec {
  uint16_t action_dstPort; /* 16 bits */
  uint16_t action_pktLengthAdj; /* 16 bits */
} p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t;

typedef struct p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec {
  uint16_t action_pktLengthAdj; /* 16 bits */
} p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t;

typedef struct p4_pd_tessel_switch_setHaloXformDip_action_spec {
  uint16_t action_val; /* 16 bits */
  uint16_t action_valMirror; /* 16 bits */
} p4_pd_tessel_switch_setHaloXformDip_action_spec_t;

typedef struct p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec {
  uint16_t action_val; /* 16 bits */
  uint16_t action_valMirror; /* 16 bits */
} p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t;

typedef struct p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec {
  uint16_t action_val; /* 16 bits */
  uint16_t action_valMirror; /* 16 bits */
} p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t;

typedef struct p4_pd_tessel_switch_setLagMemberSelector_action_spec {
  uint16_t action_lagMemberSelector; /* 10 bits */
} p4_pd_tessel_switch_setLagMemberSelector_action_spec_t;

typedef struct p4_pd_tessel_switch_setIngressMirrorColor_action_spec {
  uint32_t action_meterIndex; /* 32 bits, cell of ingressMirrorMeter */
} p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t;

typedef struct p4_pd_tessel_switch_ingressMirrorAction_action_spec {
  uint32_t action_mirrorSession; /* 32 bits */
} p4_pd_tessel_switch_ingressMirrorAction_action_spec_t;

typedef struct p4_pd_tessel_switch_setIngressMirrorSession_action_spec {
  uint16_t action_sessionId; /* 10 bits */
} p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t;

typedef struct p4_pd_tessel_switch_setPhase0_action_spec {
  uint16_t action_ingVPort; /* 14 bits */
  uint16_t action_nativeAintf; /* 12 bits */
  uint8_t action_switchPort; /* 1 bit */
  uint8_t action_physicalPort; /* 2 bits */
} p4_pd_tessel_switch_setPhase0_action_spec_t;

typedef struct p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec {
  uint8_t action_tc; /* 3 bits */
  uint8_t action_qid; /* 5 bits */
} p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t;

typedef struct p4_pd_tessel_switch_setNextHop_action_spec {
  uint32_t action_nextHop; /* 14 bits */
} p4_pd_tessel_switch_setNextHop_action_spec_t;

typedef struct p4_pd_tessel_switch_setNextHop2_action_spec {
  uint32_t action_nextHop; /* 14 bits */
} p4_pd_tessel_switch_setNextHop2_action_spec_t;

typedef struct p4_pd_tessel_switch_setNextHop3_action_spec {
  uint32_t action_nextHop; /* 14 bits */
} p4_pd_tessel_switch_setNextHop3_action_spec_t;

typedef struct p4_pd_tessel_switch_setEcmp_action_spec {
  uint16_t action_ecmpGroup; /* 14 bits */
} p4_pd_tessel_switch_setEcmp_action_spec_t;

typedef struct p4_pd_tessel_switch_setL2ControlFrame_action_spec {
  uint8_t action_cpuReasonCode; /* 8 bits */
  uint8_t action_highPriority; /* 1 bit */
} p4_pd_tessel_switch_setL2ControlFrame_action_spec_t;

typedef struct p4_pd_tessel_switch_classifyL2ControlFrame_action_spec {
  uint8_t action_cpuReasonCode; /* 8 bits */
  uint8_t action_highPriority; /* 1 bit */
} p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t;

typedef struct p4_pd_tessel_switch_setL2DomainUntagged_action_spec {
  uint32_t action_l2Aintf; /* 20 bits */
} p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t;

typedef struct p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec {
  uint16_t action_xlateVlan; /* 12 bits */
  uint32_t action_l2Aintf; /* 20 bits */
} p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t;

typedef struct p4_pd_tessel_switch_setL2DomainTagged_action_spec {
  uint32_t action_l2Aintf; /* 20 bits */
} p4_pd_tessel_switch_setL2DomainTagged_action_spec_t;

typedef struct p4_pd_tessel_switch_l2ForwardParamsSet_action_spec {
  uint32_t action_port; /* 20 bits */
} p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t;

typedef struct p4_pd_tessel_switch_l2LookupKnownUcast_action_spec {
  uint32_t action_egrL2Aintf; /* 20 bits */
} p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t;

typedef struct p4_pd_tessel_switch_l2LookupKnownMcast_action_spec {
  uint16_t action_l2McastId; /* 16 bits */
} p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t;

typedef struct p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec {
  uint32_t action_egrL2Aintf; /* 20 bits */
  uint16_t action_tunnelNextHop; /* 10 bits */
} p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t;

typedef struct p4_pd_tessel_switch_setL2McResult_action_spec {
  uint16_t action_mgrp; /* 16 bits */
  uint8_t action_eValid; /* 1 bit */
  uint8_t action_copy; /* 1 bit */
} p4_pd_tessel_switch_setL2McResult_action_spec_t;

typedef struct p4_pd_tessel_switch_setL2XId_action_spec {
  uint16_t action_l2XId; /* 9 bits */
} p4_pd_tessel_switch_setL2XId_action_spec_t;

typedef struct p4_pd_tessel_switch_setLagPort_action_spec {
  uint16_t action_egrL2AintfPort; /* 9 bits */
} p4_pd_tessel_switch_setLagPort_action_spec_t;

typedef struct p4_pd_tessel_switch_setPruneParams_action_spec {
  uint16_t action_l1xId; /* 16 bits */
} p4_pd_tessel_switch_setPruneParams_action_spec_t;

typedef struct p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec {
  uint16_t action_l1xId; /* 16 bits */
} p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t;

typedef struct p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec {
  uint16_t action_l1xId; /* 16 bits */
} p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t;

typedef struct p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec {
  uint8_t action_nyxSessionId; /* 8 bits */
} p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t;

typedef struct p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec {
  uint32_t action_srcIp; /* 32 bits, IPv4 address */
  uint32_t action_dstIp; /* 32 bits, IPv4 address */
  uint8_t action_ttl; /* 8 bits */
  uint8_t action_dscp; /* 6 bits */
  uint16_t action_greProto; /* 16 bits */
  uint16_t action_vlanId; /* 12 bits */
  uint32_t action_dmacOui; /* 24 bits, half of a MAC address */
  uint32_t action_dmacStation; /* 24 bits, half of a MAC address */
} p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t;

typedef struct p4_pd_tessel_switch_newFlowRateLimitAction_action_spec {
  uint32_t action_meterIndex; /* 32 bits, cell of newFlowMeter */
} p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t;

typedef struct p4_pd_tessel_switch_setNextHopDetails_action_spec {
  uint32_t action_dmacOui; /* 24 bits, half of a MAC address */
  uint32_t action_dmacStation; /* 24 bits, half of a MAC address */
  uint16_t action_domain; /* 12 bits */
} p4_pd_tessel_switch_setNextHopDetails_action_spec_t;

typedef struct p4_pd_tessel_switch_setCosFromDefault_action_spec {
  uint8_t action_cos; /* 3 bits */
} p4_pd_tessel_switch_setCosFromDefault_action_spec_t;

typedef struct p4_pd_tessel_switch_setCosFromPacket_action_spec {
  uint8_t action_pri; /* 3 bits */
} p4_pd_tessel_switch_setCosFromPacket_action_spec_t;

typedef struct p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec {
  uint8_t action_pri; /* 3 bits */
} p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t;

typedef struct p4_pd_tessel_switch_setPdpClass_action_spec {
  uint8_t action_pdpClassId; /* 5 bits */
} p4_pd_tessel_switch_setPdpClass_action_spec_t;

typedef struct p4_pd_tessel_switch_setPdpClassCount_action_spec {
  uint32_t action_pdpResourceIndex; /* 32 bits, cell of pdpClassCount */
} p4_pd_tessel_switch_setPdpClassCount_action_spec_t;

typedef struct p4_pd_tessel_switch_pdpPolice_action_spec {
  uint32_t action_pdpResourceIndex; /* 32 bits, cell of pdpClassCount and pdpMeter */
} p4_pd_tessel_switch_pdpPolice_action_spec_t;

typedef struct p4_pd_tessel_switch_setQosPortProperties_action_spec {
  uint8_t action_defaultCos; /* 3 bits */
  uint8_t action_defaultDscp; /* 6 bits */
  uint8_t action_trustMode; /* 2 bits */
} p4_pd_tessel_switch_setQosPortProperties_action_spec_t;

typedef struct p4_pd_tessel_switch_copyCosRewriteDscp_action_spec {
  uint8_t action_dscp; /* 6 bits */
} p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t;

typedef struct p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec {
  uint8_t action_cos; /* 3 bits */
} p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t;

typedef struct p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec {
  uint8_t action_cos; /* 3 bits */
  uint8_t action_dscp; /* 6 bits */
} p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t;

typedef struct p4_pd_tessel_switch_setQosRewriteConfiguration_action_spec {
  uint8_t action_cosRewrite; /* 1 bit */
  uint8_t action_dscpRewrite; /* 1 bit */
} p4_pd_tessel_switch_setQosRewriteConfiguration_action_spec_t;

typedef struct p4_pd_tessel_switch_setNextHopToCpu_action_spec {
  uint8_t action_cpuReasonCode; /* 8 bits */
} p4_pd_tessel_switch_setNextHopToCpu_action_spec_t;

typedef struct p4_pd_tessel_switch_setRouterNextHopDetails_action_spec {
  uint32_t action_egrL2AintfUnresolved; /* 20 bits */
  uint16_t action_tunnelNextHop; /* 10 bits */
  uint8_t action_egrMtuId; /* 2 bits */
} p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t;

typedef struct p4_pd_tessel_switch_setNyxIntfDetails_action_spec {
  uint8_t action_nyxSlice; /* 6 bits */
  uint16_t action_nyxPort; /* 10 bits */
  uint8_t action_nyxLane; /* 4 bits */
  uint16_t action_nyxLagId; /* 12 bits */
} p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t;

typedef struct p4_pd_tessel_switch_setSwitchToCpu_action_spec {
  uint32_t action_switchToCpuNextHop; /* 14 bits */
} p4_pd_tessel_switch_setSwitchToCpu_action_spec_t;

typedef struct p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec {
  uint32_t action_vrfIdHi; /* 32 bits */
  uint8_t action_vrfId; /* 8 bits */
  uint8_t action_ipRouting; /* 4 bits */
} p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t;

typedef struct p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec {
  uint16_t action_xlateVlan; /* 12 bits */
  uint32_t action_vrfIdHi; /* 32 bits */
  uint8_t action_vrfId; /* 8 bits */
  uint8_t action_ipRouting; /* 4 bits */
} p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t;

typedef struct p4_pd_tessel_switch_setTcDscp_action_spec {
  uint8_t action_dscp; /* 6 bits */
} p4_pd_tessel_switch_setTcDscp_action_spec_t;

typedef struct p4_pd_tessel_switch_trapPacket_action_spec {
  uint8_t action_cpuReasonCode; /* 8 bits */
} p4_pd_tessel_switch_trapPacket_action_spec_t;

typedef struct p4_pd_tessel_switch_copyPacket_action_spec {
  uint8_t action_cpuReasonCode; /* 8 bits */
  uint8_t action_llm; /* 1 bit */
} p4_pd_tessel_switch_copyPacket_action_spec_t;

typedef struct p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec {
  uint32_t action_vrfIdHi; /* 32 bits */
  uint8_t action_vrfId; /* 8 bits */
  uint8_t action_ipRouting; /* 4 bits */
} p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t;

typedef struct p4_pd_tessel_switch_setVlanProperties_action_spec {
  uint8_t action_igmpSnoopingEnabled; /* 1 bit */
  uint8_t action_sviEnabled; /* 1 bit */
  uint8_t action_vxlan; /* 1 bit */
} p4_pd_tessel_switch_setVlanProperties_action_spec_t;

/* An action with its parameters as read back; spec is written only for an action that has any.
 * spec has room for the record of any action. */
typedef struct p4_pd_tessel_switch_action_specs {
  uint32_t action; /* of p4_pd_tessel_switch_action_names_t */
  union {
    p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t trapPktToCpuUntagged;
    p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t copyPktToCpuUntagged;
    p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t trapPktToCpuTagged;
    p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t copyPktToCpuTagged;
    p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t trapPktToCpuSubintf;
    p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t copyPktToCpuSubintf;
    p4_pd_tessel_switch_encapPktToCpu_action_spec_t encapPktToCpu;
    p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t setDecapEscapeIpv4;
    p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t setDecapEscapeIpv6;
    p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t kiteFlowSetDrop;
    p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t kiteFlowSetEgrL2AintfAndRemoveInnerTag;
    p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t kiteFlowRemoveInnerTag;
    p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t kiteFlowDontFlow;
    p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t kiteFlowSetEgrL2Aintf;
    p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t kiteFlowSetEgrL2AintfAndL2Domain;
    p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t kiteFlowPreviousHit;
    p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t kiteFlowSetEgrL2AintfAndAddInnerTag;
    p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t kiteFlowAddInnerTagPreviousHit;
    p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t kiteFlowAddInnerTagDontFlow;
    p4_pd_tessel_switch_setEcmpNextHop_action_spec_t setEcmpNextHop;
    p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t setL2DomainReplicated;
    p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec_t setEgrLagMemberSelector;
    p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t setEgressMirrorColor;
    p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t setEgressMirrorSession;
    p4_pd_tessel_switch_setEgrVlan_action_spec_t setEgrVlan;
    p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t setEgrVlanSubIntf;
    p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t noDecapNoEncapRouteIpv4;
    p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t noDecapNoEncapRouteIpv6;
    p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t encapGreIpv4ForClone;
    p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t decapIpIpRouteIpv4;
    p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t decapIpIpRouteIpv6;
    p4_pd_tessel_switch_setEgressPort_action_spec_t setEgressPort;
    p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t finalizeMcResultIpmc;
    p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t finalizeMcResultL2mc;
    p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t finalizeMcResultL2mcFlood;
    p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t finalizeMcResultCancel;
    p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t finalizeMcResultFlood;
    p4_pd_tessel_switch_setDstSegment_action_spec_t setDstSegment;
    p4_pd_tessel_switch_setSrcSegment_action_spec_t setSrcSegment;
    p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t setFirewallPolicyPermit;
    p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t setFirewallPolicyPermitAndOpenFlow;
    p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t setFirewallPolicyDrop;
    p4_pd_tessel_switch_setFlowLimitExceeded_action_spec_t setFlowLimitExceeded;
    p4_pd_tessel_switch_flowRecircPacketAction_action_spec_t flowRecircPacketAction;
    p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t setGlobalFieldsForVxlanTunnelCommon;
    p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t setGlobalFieldsForVxlanTunnelIpv4;
    p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t setGlobalFieldsForVxlanTunnelIpv4UseDipB;
    p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t setGlobalFieldsForMplsOverUdpTunnel;
    p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t setGlobalFieldsForMplsTunnel;
    p4_pd_tessel_switch_setHaloXformDip_action_spec_t setHaloXformDip;
    p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t setHaloXformIpv4Sip;
    p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t setHaloXformIpv6Sip;
    p4_pd_tessel_switch_setLagMemberSelector_action_spec_t setLagMemberSelector;
    p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t setIngressMirrorColor;
    p4_pd_tessel_switch_ingressMirrorAction_action_spec_t ingressMirrorAction;
    p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t setIngressMirrorSession;
    p4_pd_tessel_switch_setPhase0_action_spec_t setPhase0;
    p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t setTrafficClassAndEgressQid;
    p4_pd_tessel_switch_setNextHop_action_spec_t setNextHop;
    p4_pd_tessel_switch_setNextHop2_action_spec_t setNextHop2;
    p4_pd_tessel_switch_setNextHop3_action_spec_t setNextHop3;
    p4_pd_tessel_switch_setEcmp_action_spec_t setEcmp;
    p4_pd_tessel_switch_setL2ControlFrame_action_spec_t setL2ControlFrame;
    p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t classifyL2ControlFrame;
    p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t setL2DomainUntagged;
    p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t setL2DomainVlanXlate;
    p4_pd_tessel_switch_setL2DomainTagged_action_spec_t setL2DomainTagged;
    p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t l2ForwardParamsSet;
    p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t l2LookupKnownUcast;
    p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t l2LookupKnownMcast;
    p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t l2LookupKnownUcastTunnel;
    p4_pd_tessel_switch_setL2McResult_action_spec_t setL2McResult;
    p4_pd_tessel_switch_setL2XId_action_spec_t setL2XId;
    p4_pd_tessel_switch_setLagPort_action_spec_t setLagPort;
    p4_pd_tessel_switch_setPruneParams_action_spec_t setPruneParams;
    p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t setPruneParamsForL2Flood;
    p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t setPruneParamsForL3Only;
    p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t setMirrorPacketEncapCpu;
    p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t setMirrorPacketEncapGreIpv4;
    p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t newFlowRateLimitAction;
    p4_pd_tessel_switch_setNextHopDetails_action_spec_t setNextHopDetails;
    p4_pd_tessel_switch_setCosFromDefault_action_spec_t setCosFromDefault;
    p4_pd_tessel_switch_setCosFromPacket_action_spec_t setCosFromPacket;
    p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t setCosFromPacketWithInner;
    p4_pd_tessel_switch_setPdpClass_action_spec_t setPdpClass;
    p4_pd_tessel_switch_setPdpClassCount_action_spec_t setPdpClassCount;
    p4_pd_tessel_switch_pdpPolice_action_spec_t pdpPolice;
    p4_pd_tessel_switch_setQosPortProperties_action_spec_t setQosPortProperties;
    p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t copyCosRewriteDscp;
    p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t rewriteCosCopyDscp;
    p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t rewriteCosRewriteDscp;
    p4_pd_tessel_switch_setQosRewriteConfiguration_action_spec_t setQosRewriteConfiguration;
    p4_pd_tessel_switch_setNextHopToCpu_action_spec_t setNextHopToCpu;
    p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t setRouterNextHopDetails;
    p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t setNyxIntfDetails;
    p4_pd_tessel_switch_setSwitchToCpu_action_spec_t setSwitchToCpu;
    p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t setVrfPropertiesTaggedPkt;
    p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t setVrfPropertiesTaggedXlatePkt;
    p4_pd_tessel_switch_setTcDscp_action_spec_t setTcDscp;
    p4_pd_tessel_switch_trapPacket_action_spec_t trapPacket;
    p4_pd_tessel_switch_copyPacket_action_spec_t copyPacket;
    p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t setVrfPropertiesUntaggedPkt;
    p4_pd_tessel_switch_setVlanProperties_action_spec_t setVlanProperties;
  } spec;
} p4_pd_tessel_switch_action_specs_t;

const char *p4_pd_tessel_switch_trapPktToCpuUntagged_schema(void);
const char *p4_pd_tessel_switch_copyPktToCpuUntagged_schema(void);
const char *p4_pd_tessel_switch_trapPktToCpuTagged_schema(void);
const char *p4_pd_tessel_switch_copyPktToCpuTagged_schema(void);
const char *p4_pd_tessel_switch_trapPktToCpuSubintf_schema(void);
const char *p4_pd_tessel_switch_copyPktToCpuSubintf_schema(void);
const char *p4_pd_tessel_switch_encapPktToCpu_schema(void);
const char *p4_pd_tessel_switch_onMiss_schema(void);
const char *p4_pd_tessel_switch_setDecapEscapeIpv4_schema(void);
const char *p4_pd_tessel_switch_setDecapEscapeIpv6_schema(void);
const char *p4_pd_tessel_switch_removeOuterIpv4Hdr_schema(void);
const char *p4_pd_tessel_switch_removeOuterIpv6Hdr_schema(void);
const char *p4_pd_tessel_switch_restoreOuterIpv4HeaderL4_schema(void);
const char *p4_pd_tessel_switch_restoreOuterIpv6HeaderL4_schema(void);
const char *p4_pd_tessel_switch_dipHashCompute_schema(void);
const char *p4_pd_tessel_switch_kiteFlowSetDrop_schema(void);
const char *p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_schema(void);
const char *p4_pd_tessel_switch_kiteFlowRemoveInnerTag_schema(void);
const char *p4_pd_tessel_switch_kiteFlowDontFlow_schema(void);
const char *p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_schema(void);
const char *p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_schema(void);
const char *p4_pd_tessel_switch_kiteFlowPreviousHit_schema(void);
const char *p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_schema(void);
const char *p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_schema(void);
const char *p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_schema(void);
const char *p4_pd_tessel_switch_kiteFlowCopyEgrL2Aintf_schema(void);
const char *p4_pd_tessel_switch_setEcmpNextHop_schema(void);
const char *p4_pd_tessel_switch_setHashValuesEcmpOuterIpHdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesEcmpOuterL4Hdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesEcmpInnerIpHdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesEcmpInnerL4Hdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesEcmpInnerEthHdr_schema(void);
const char *p4_pd_tessel_switch_egrStpAction_schema(void);
const char *p4_pd_tessel_switch_egrVlanAction_schema(void);
const char *p4_pd_tessel_switch_setL2DomainReplicated_schema(void);
const char *p4_pd_tessel_switch_setEgrLagMemberSelector_schema(void);
const char *p4_pd_tessel_switch_setEgressMirrorColor_schema(void);
const char *p4_pd_tessel_switch_setEgressMirrorColorRed_schema(void);
const char *p4_pd_tessel_switch_egressMirrorAction_schema(void);
const char *p4_pd_tessel_switch_setEgressMirrorSession_schema(void);
const char *p4_pd_tessel_switch_setEgressDrop_schema(void);
const char *p4_pd_tessel_switch_egressSamePortBridgingTestDrop_schema(void);
const char *p4_pd_tessel_switch_setEgrVlan_schema(void);
const char *p4_pd_tessel_switch_setEgrVlanSubIntf_schema(void);
const char *p4_pd_tessel_switch_noXlate_schema(void);
const char *p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_schema(void);
const char *p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_schema(void);
const char *p4_pd_tessel_switch_noDecapNoEncapBridgeIpv4_schema(void);
const char *p4_pd_tessel_switch_noDecapNoEncapBridgeIpv6_schema(void);
const char *p4_pd_tessel_switch_encapFabricPktToCpu_schema(void);
const char *p4_pd_tessel_switch_encapPPIPktToCpu_schema(void);
const char *p4_pd_tessel_switch_decapPPIPktFromCpu_schema(void);
const char *p4_pd_tessel_switch_encapGreIpv4ForClone_schema(void);
const char *p4_pd_tessel_switch_noDecapNoEncapClone_schema(void);
const char *p4_pd_tessel_switch_decapIpIpEncapPPIPktToCpuIpv4_schema(void);
const char *p4_pd_tessel_switch_decapIpIpEncapPPIPktToCpuIpv6_schema(void);
const char *p4_pd_tessel_switch_decapIpIpRouteIpv4_schema(void);
const char *p4_pd_tessel_switch_decapIpIpRouteIpv6_schema(void);
const char *p4_pd_tessel_switch_setEgressPort_schema(void);
const char *p4_pd_tessel_switch_setDecapTypeVlan_schema(void);
const char *p4_pd_tessel_switch_setInvalidEgressPort_schema(void);
const char *p4_pd_tessel_switch_removeTesselHdrs_schema(void);
const char *p4_pd_tessel_switch_accept_schema(void);
const char *p4_pd_tessel_switch_acceptLog_schema(void);
const char *p4_pd_tessel_switch_dropCount_schema(void);
const char *p4_pd_tessel_switch_dropCountAndLog_schema(void);
const char *p4_pd_tessel_switch_finalDrop_schema(void);
const char *p4_pd_tessel_switch_finalizeMcResultIpmc_schema(void);
const char *p4_pd_tessel_switch_finalizeMcResultL2mc_schema(void);
const char *p4_pd_tessel_switch_finalizeMcResultL2mcFlood_schema(void);
const char *p4_pd_tessel_switch_finalizeMcResultCancel_schema(void);
const char *p4_pd_tessel_switch_finalizeMcResultFlood_schema(void);
const char *p4_pd_tessel_switch_finalizeMcResultL3Rpf_schema(void);
const char *p4_pd_tessel_switch_firewallDipMeterDropAction_schema(void);
const char *p4_pd_tessel_switch_setDstSegment_schema(void);
const char *p4_pd_tessel_switch_setSrcSegment_schema(void);
const char *p4_pd_tessel_switch_setFirewallPolicyPermit_schema(void);
const char *p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_schema(void);
const char *p4_pd_tessel_switch_setFirewallPolicyDrop_schema(void);
const char *p4_pd_tessel_switch_firewallSipMeterDropAction_schema(void);
const char *p4_pd_tessel_switch_flowAddRecircHeaderAction_schema(void);
const char *p4_pd_tessel_switch_flowBusyActionFirst_schema(void);
const char *p4_pd_tessel_switch_flowBusyActionSecond_schema(void);
const char *p4_pd_tessel_switch_flowDigestGenerate_schema(void);
const char *p4_pd_tessel_switch_flowHashComputeTypeAFirst_schema(void);
const char *p4_pd_tessel_switch_flowHashComputeTypeASecond_schema(void);
const char *p4_pd_tessel_switch_flowHashComputeTypeBFirst_schema(void);
const char *p4_pd_tessel_switch_flowHashComputeTypeBSecond_schema(void);
const char *p4_pd_tessel_switch_selectTypeA_schema(void);
const char *p4_pd_tessel_switch_selectTypeB_schema(void);
const char *p4_pd_tessel_switch_setFlowLimitExceeded_schema(void);
const char *p4_pd_tessel_switch_flowRecircPacketAction_schema(void);
const char *p4_pd_tessel_switch_flowSetupL4PortsAction_schema(void);
const char *p4_pd_tessel_switch_flowStateLookupActionFirst_schema(void);
const char *p4_pd_tessel_switch_flowStateLookupActionSecond_schema(void);
const char *p4_pd_tessel_switch_setFlowPresent_schema(void);
const char *p4_pd_tessel_switch_flowStateUpdateActionFirst_schema(void);
const char *p4_pd_tessel_switch_flowStateUpdateActionSecond_schema(void);
const char *p4_pd_tessel_switch_setNonInitialFragment_schema(void);
const char *p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_schema(void);
const char *p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_schema(void);
const char *p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_schema(void);
const char *p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_schema(void);
const char *p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_schema(void);
const char *p4_pd_tessel_switch_setHaloXformDip_schema(void);
const char *p4_pd_tessel_switch_setHaloInvalidDip_schema(void);
const char *p4_pd_tessel_switch_setHaloXformIpv4Sip_schema(void);
const char *p4_pd_tessel_switch_setHaloInvalidSip_schema(void);
const char *p4_pd_tessel_switch_setHaloIpv4Common_schema(void);
const char *p4_pd_tessel_switch_setHaloXformIpv6Sip_schema(void);
const char *p4_pd_tessel_switch_setHaloIpv6Common_schema(void);
const char *p4_pd_tessel_switch_hashComputeInnerEthHdrAction_schema(void);
const char *p4_pd_tessel_switch_hashComputeInnerIpv4HdrAction_schema(void);
const char *p4_pd_tessel_switch_hashComputeInnerIpv6HdrAction_schema(void);
const char *p4_pd_tessel_switch_hashComputeIpAndL4HdrAction_schema(void);
const char *p4_pd_tessel_switch_hashComputeOuterIpv4HdrAction_schema(void);
const char *p4_pd_tessel_switch_hashComputeOuterIpv6HdrAction_schema(void);
const char *p4_pd_tessel_switch_ingStpAction_schema(void);
const char *p4_pd_tessel_switch_ingVlanAction_schema(void);
const char *p4_pd_tessel_switch_setLagMemberSelector_schema(void);
const char *p4_pd_tessel_switch_setIngressMirrorColor_schema(void);
const char *p4_pd_tessel_switch_setIngressMirrorColorRed_schema(void);
const char *p4_pd_tessel_switch_ingressMirrorAction_schema(void);
const char *p4_pd_tessel_switch_dropDatalink_schema(void);
const char *p4_pd_tessel_switch_setIngressMirrorSession_schema(void);
const char *p4_pd_tessel_switch_setDrop_schema(void);
const char *p4_pd_tessel_switch_setPhase0_schema(void);
const char *p4_pd_tessel_switch_samplePacket_schema(void);
const char *p4_pd_tessel_switch_setTrafficClassAndEgressQid_schema(void);
const char *p4_pd_tessel_switch_setNextHop_schema(void);
const char *p4_pd_tessel_switch_setNextHop2_schema(void);
const char *p4_pd_tessel_switch_setNextHop3_schema(void);
const char *p4_pd_tessel_switch_setEcmp_schema(void);
const char *p4_pd_tessel_switch_ipv4ShortMaskLpmMiss_schema(void);
const char *p4_pd_tessel_switch_setFibMiss_schema(void);
const char *p4_pd_tessel_switch_setL2ControlFrame_schema(void);
const char *p4_pd_tessel_switch_setIllegalDmac_schema(void);
const char *p4_pd_tessel_switch_setMcast_schema(void);
const char *p4_pd_tessel_switch_setBcast_schema(void);
const char *p4_pd_tessel_switch_setUcast_schema(void);
const char *p4_pd_tessel_switch_setIpMcast_schema(void);
const char *p4_pd_tessel_switch_classifyL2ControlFrame_schema(void);
const char *p4_pd_tessel_switch_setL2DomainUntagged_schema(void);
const char *p4_pd_tessel_switch_setL2DomainVlanXlate_schema(void);
const char *p4_pd_tessel_switch_setL2DomainTagged_schema(void);
const char *p4_pd_tessel_switch_l2ForwardParamsSet_schema(void);
const char *p4_pd_tessel_switch_noOp_schema(void);
const char *p4_pd_tessel_switch_setL2LearningLookupMiss_schema(void);
const char *p4_pd_tessel_switch_l2LookupKnownUcast_schema(void);
const char *p4_pd_tessel_switch_l2LookupKnownMcast_schema(void);
const char *p4_pd_tessel_switch_l2LookupKnownUcastTunnel_schema(void);
const char *p4_pd_tessel_switch_l2LookupDrop_schema(void);
const char *p4_pd_tessel_switch_l2LookupBcastHit_schema(void);
const char *p4_pd_tessel_switch_l2LookupUnknownMcastAction_schema(void);
const char *p4_pd_tessel_switch_l2LookupUnknownUcastAction_schema(void);
const char *p4_pd_tessel_switch_setL2McResult_schema(void);
const char *p4_pd_tessel_switch_setIllegalSmac_schema(void);
const char *p4_pd_tessel_switch_setDropSmac_schema(void);
const char *p4_pd_tessel_switch_setL2XId_schema(void);
const char *p4_pd_tessel_switch_ignoreIngL3DmacValid_schema(void);
const char *p4_pd_tessel_switch_setIngL3DmacValid_schema(void);
const char *p4_pd_tessel_switch_setLagPort_schema(void);
const char *p4_pd_tessel_switch_setPhysicalPort_schema(void);
const char *p4_pd_tessel_switch_setTunnelInfo_schema(void);
const char *p4_pd_tessel_switch_invalidateUcastEgressPort_schema(void);
const char *p4_pd_tessel_switch_fixL2SubintfAlignment_schema(void);
const char *p4_pd_tessel_switch_setHashValuesLagOuterEthHdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesLagOuterIpHdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesLagOuterL4Hdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesLagInnerEthHdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesLagInnerIpHdr_schema(void);
const char *p4_pd_tessel_switch_setHashValuesLagInnerL4Hdr_schema(void);
const char *p4_pd_tessel_switch_generateMacLearningDigest_schema(void);
const char *p4_pd_tessel_switch_dot1xTrap_schema(void);
const char *p4_pd_tessel_switch_dot1xDrop_schema(void);
const char *p4_pd_tessel_switch_resetApplicationId_schema(void);
const char *p4_pd_tessel_switch_setPruneParams_schema(void);
const char *p4_pd_tessel_switch_setPruneParamsForL2Flood_schema(void);
const char *p4_pd_tessel_switch_setPruneParamsForL3Only_schema(void);
const char *p4_pd_tessel_switch_l3FloodEgressL2Aintf_schema(void);
const char *p4_pd_tessel_switch_setMirrorPacketEncapNone_schema(void);
const char *p4_pd_tessel_switch_setMirrorPacketEncapCpu_schema(void);
const char *p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_schema(void);
const char *p4_pd_tessel_switch_setMlagPrune_schema(void);
const char *p4_pd_tessel_switch_newFlowRateLimitAction_schema(void);
const char *p4_pd_tessel_switch_setNextHopDetails_schema(void);
const char *p4_pd_tessel_switch_setCosFromDefault_schema(void);
const char *p4_pd_tessel_switch_setCosFromPacket_schema(void);
const char *p4_pd_tessel_switch_setCosFromPacketWithInner_schema(void);
const char *p4_pd_tessel_switch_setDscpForNonIpPkt_schema(void);
const char *p4_pd_tessel_switch_setDscpForTTNonIpPkt_schema(void);
const char *p4_pd_tessel_switch_setDscpForIpv4Pkt_schema(void);
const char *p4_pd_tessel_switch_setDscpForIpv4OptionsPkt_schema(void);
const char *p4_pd_tessel_switch_setDscpForIpv6Pkt_schema(void);
const char *p4_pd_tessel_switch_noTunnelIpv4_schema(void);
const char *p4_pd_tessel_switch_noTunnelIpv6_schema(void);
const char *p4_pd_tessel_switch_onlyDecapInnerIpv4_schema(void);
const char *p4_pd_tessel_switch_onlyDecapInnerIpv6_schema(void);
const char *p4_pd_tessel_switch_encapOuterIpv4_schema(void);
const char *p4_pd_tessel_switch_encapOuterIpv4InnerIpv4_schema(void);
const char *p4_pd_tessel_switch_encapOuterIpv4InnerIpv6_schema(void);
const char *p4_pd_tessel_switch_setPdpClass_schema(void);
const char *p4_pd_tessel_switch_setPdpClassCount_schema(void);
const char *p4_pd_tessel_switch_pdpPolice_schema(void);
const char *p4_pd_tessel_switch_setQosPortProperties_schema(void);
const char *p4_pd_tessel_switch_copyCosRewriteDscp_schema(void);
const char *p4_pd_tessel_switch_rewriteCosCopyDscp_schema(void);
const char *p4_pd_tessel_switch_rewriteCosRewriteDscp_schema(void);
const char *p4_pd_tessel_switch_setQosRewriteConfiguration_schema(void);
const char *p4_pd_tessel_switch_countEgressQueue_schema(void);
const char *p4_pd_tessel_switch_setNextHopToCpu_schema(void);
const char *p4_pd_tessel_switch_setRoutedMartian_schema(void);
const char *p4_pd_tessel_switch_setRouterNextHopDetails_schema(void);
const char *p4_pd_tessel_switch_samePortBridgingTestAction_schema(void);
const char *p4_pd_tessel_switch_sipHashCompute_schema(void);
const char *p4_pd_tessel_switch_setNyxIntfDetails_schema(void);
const char *p4_pd_tessel_switch_setSwitchToCpu_schema(void);
const char *p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_schema(void);
const char *p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_schema(void);
const char *p4_pd_tessel_switch_setTcDscp_schema(void);
const char *p4_pd_tessel_switch_trapPacket_schema(void);
const char *p4_pd_tessel_switch_copyPacket_schema(void);
const char *p4_pd_tessel_switch_setLlm_schema(void);
const char *p4_pd_tessel_switch_setTunnelTerminationTypeIpIp_schema(void);
const char *p4_pd_tessel_switch_setTunnelTerminationTypeIp6Ip6SwPath_schema(void);
const char *p4_pd_tessel_switch_setTunnelTerminationTypeNoneIpv6_schema(void);
const char *p4_pd_tessel_switch_setTunnelTerminationTypeNoneIpv4AndL2_schema(void);
const char *p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_schema(void);
const char *p4_pd_tessel_switch_removeVlanHdr_schema(void);
const char *p4_pd_tessel_switch_noVlanEncap_schema(void);
const char *p4_pd_tessel_switch_needVlanEncap_schema(void);
const char *p4_pd_tessel_switch_setVlanProperties_schema(void);
int p4_pd_tessel_switch_trapPktToCpuUntagged_value(
    const p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_copyPktToCpuUntagged_value(
    const p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_trapPktToCpuTagged_value(
    const p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_copyPktToCpuTagged_value(
    const p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_trapPktToCpuSubintf_value(
    const p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_copyPktToCpuSubintf_value(
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_encapPktToCpu_value(
    const p4_pd_tessel_switch_encapPktToCpu_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_onMiss_value(char *buffer);
int p4_pd_tessel_switch_setDecapEscapeIpv4_value(
    const p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setDecapEscapeIpv6_value(
    const p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_removeOuterIpv4Hdr_value(char *buffer);
int p4_pd_tessel_switch_removeOuterIpv6Hdr_value(char *buffer);
int p4_pd_tessel_switch_restoreOuterIpv4HeaderL4_value(char *buffer);
int p4_pd_tessel_switch_restoreOuterIpv6HeaderL4_value(char *buffer);
int p4_pd_tessel_switch_dipHashCompute_value(char *buffer);
int p4_pd_tessel_switch_kiteFlowSetDrop_value(
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_value(
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_kiteFlowRemoveInnerTag_value(
    const p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlowDontFlow_value(
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_value(
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_value(
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_kiteFlowPreviousHit_value(
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_value(
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_value(
    const p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_value(
    const p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlowCopyEgrL2Aintf_value(char *buffer);
int p4_pd_tessel_switch_setEcmpNextHop_value(
    const p4_pd_tessel_switch_setEcmpNextHop_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setHashValuesEcmpOuterIpHdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesEcmpOuterL4Hdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesEcmpInnerIpHdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesEcmpInnerL4Hdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesEcmpInnerEthHdr_value(char *buffer);
int p4_pd_tessel_switch_egrStpAction_value(char *buffer);
int p4_pd_tessel_switch_egrVlanAction_value(char *buffer);
int p4_pd_tessel_switch_setL2DomainReplicated_value(
    const p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setEgrLagMemberSelector_value(
    const p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setEgressMirrorColor_value(
    const p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setEgressMirrorColorRed_value(char *buffer);
int p4_pd_tessel_switch_egressMirrorAction_value(char *buffer);
int p4_pd_tessel_switch_setEgressMirrorSession_value(
    const p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setEgressDrop_value(char *buffer);
int p4_pd_tessel_switch_egressSamePortBridgingTestDrop_value(char *buffer);
int p4_pd_tessel_switch_setEgrVlan_value(
    const p4_pd_tessel_switch_setEgrVlan_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setEgrVlanSubIntf_value(
    const p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_noXlate_value(char *buffer);
int p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_value(
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_value(
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_noDecapNoEncapBridgeIpv4_value(char *buffer);
int p4_pd_tessel_switch_noDecapNoEncapBridgeIpv6_value(char *buffer);
int p4_pd_tessel_switch_encapFabricPktToCpu_value(char *buffer);
int p4_pd_tessel_switch_encapPPIPktToCpu_value(char *buffer);
int p4_pd_tessel_switch_decapPPIPktFromCpu_value(char *buffer);
int p4_pd_tessel_switch_encapGreIpv4ForClone_value(
    const p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_noDecapNoEncapClone_value(char *buffer);
int p4_pd_tessel_switch_decapIpIpEncapPPIPktToCpuIpv4_value(char *buffer);
int p4_pd_tessel_switch_decapIpIpEncapPPIPktToCpuIpv6_value(char *buffer);
int p4_pd_tessel_switch_decapIpIpRouteIpv4_value(
    const p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_decapIpIpRouteIpv6_value(
    const p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setEgressPort_value(
    const p4_pd_tessel_switch_setEgressPort_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setDecapTypeVlan_value(char *buffer);
int p4_pd_tessel_switch_setInvalidEgressPort_value(char *buffer);
int p4_pd_tessel_switch_removeTesselHdrs_value(char *buffer);
int p4_pd_tessel_switch_accept_value(char *buffer);
int p4_pd_tessel_switch_acceptLog_value(char *buffer);
int p4_pd_tessel_switch_dropCount_value(char *buffer);
int p4_pd_tessel_switch_dropCountAndLog_value(char *buffer);
int p4_pd_tessel_switch_finalDrop_value(char *buffer);
int p4_pd_tessel_switch_finalizeMcResultIpmc_value(
    const p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_finalizeMcResultL2mc_value(
    const p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_finalizeMcResultL2mcFlood_value(
    const p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_finalizeMcResultCancel_value(
    const p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_finalizeMcResultFlood_value(
    const p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_finalizeMcResultL3Rpf_value(char *buffer);
int p4_pd_tessel_switch_firewallDipMeterDropAction_value(char *buffer);
int p4_pd_tessel_switch_setDstSegment_value(
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setSrcSegment_value(
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setFirewallPolicyPermit_value(
    const p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_value(
    const p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_setFirewallPolicyDrop_value(
    const p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_firewallSipMeterDropAction_value(char *buffer);
int p4_pd_tessel_switch_flowAddRecircHeaderAction_value(char *buffer);
int p4_pd_tessel_switch_flowBusyActionFirst_value(char *buffer);
int p4_pd_tessel_switch_flowBusyActionSecond_value(char *buffer);
int p4_pd_tessel_switch_flowDigestGenerate_value(char *buffer);
int p4_pd_tessel_switch_flowHashComputeTypeAFirst_value(char *buffer);
int p4_pd_tessel_switch_flowHashComputeTypeASecond_value(char *buffer);
int p4_pd_tessel_switch_flowHashComputeTypeBFirst_value(char *buffer);
int p4_pd_tessel_switch_flowHashComputeTypeBSecond_value(char *buffer);
int p4_pd_tessel_switch_selectTypeA_value(char *buffer);
int p4_pd_tessel_switch_selectTypeB_value(char *buffer);
int p4_pd_tessel_switch_setFlowLimitExceeded_value(
    const p4_pd_tessel_switch_setFlowLimitExceeded_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_flowRecircPacketAction_value(
    const p4_pd_tessel_switch_flowRecircPacketAction_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_flowSetupL4PortsAction_value(char *buffer);
int p4_pd_tessel_switch_flowStateLookupActionFirst_value(char *buffer);
int p4_pd_tessel_switch_flowStateLookupActionSecond_value(char *buffer);
int p4_pd_tessel_switch_setFlowPresent_value(char *buffer);
int p4_pd_tessel_switch_flowStateUpdateActionFirst_value(char *buffer);
int p4_pd_tessel_switch_flowStateUpdateActionSecond_value(char *buffer);
int p4_pd_tessel_switch_setNonInitialFragment_value(char *buffer);
int p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_value(
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_value(
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_value(
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_value(
    const p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_value(
    const p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_setHaloXformDip_value(
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setHaloInvalidDip_value(char *buffer);
int p4_pd_tessel_switch_setHaloXformIpv4Sip_value(
    const p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setHaloInvalidSip_value(char *buffer);
int p4_pd_tessel_switch_setHaloIpv4Common_value(char *buffer);
int p4_pd_tessel_switch_setHaloXformIpv6Sip_value(
    const p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setHaloIpv6Common_value(char *buffer);
int p4_pd_tessel_switch_hashComputeInnerEthHdrAction_value(char *buffer);
int p4_pd_tessel_switch_hashComputeInnerIpv4HdrAction_value(char *buffer);
int p4_pd_tessel_switch_hashComputeInnerIpv6HdrAction_value(char *buffer);
int p4_pd_tessel_switch_hashComputeIpAndL4HdrAction_value(char *buffer);
int p4_pd_tessel_switch_hashComputeOuterIpv4HdrAction_value(char *buffer);
int p4_pd_tessel_switch_hashComputeOuterIpv6HdrAction_value(char *buffer);
int p4_pd_tessel_switch_ingStpAction_value(char *buffer);
int p4_pd_tessel_switch_ingVlanAction_value(char *buffer);
int p4_pd_tessel_switch_setLagMemberSelector_value(
    const p4_pd_tessel_switch_setLagMemberSelector_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setIngressMirrorColor_value(
    const p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setIngressMirrorColorRed_value(char *buffer);
int p4_pd_tessel_switch_ingressMirrorAction_value(
    const p4_pd_tessel_switch_ingressMirrorAction_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_dropDatalink_value(char *buffer);
int p4_pd_tessel_switch_setIngressMirrorSession_value(
    const p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setDrop_value(char *buffer);
int p4_pd_tessel_switch_setPhase0_value(
    const p4_pd_tessel_switch_setPhase0_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_samplePacket_value(char *buffer);
int p4_pd_tessel_switch_setTrafficClassAndEgressQid_value(
    const p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setNextHop_value(
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setNextHop2_value(
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setNextHop3_value(
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setEcmp_value(const p4_pd_tessel_switch_setEcmp_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_ipv4ShortMaskLpmMiss_value(char *buffer);
int p4_pd_tessel_switch_setFibMiss_value(char *buffer);
int p4_pd_tessel_switch_setL2ControlFrame_value(
    const p4_pd_tessel_switch_setL2ControlFrame_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setIllegalDmac_value(char *buffer);
int p4_pd_tessel_switch_setMcast_value(char *buffer);
int p4_pd_tessel_switch_setBcast_value(char *buffer);
int p4_pd_tessel_switch_setUcast_value(char *buffer);
int p4_pd_tessel_switch_setIpMcast_value(char *buffer);
int p4_pd_tessel_switch_classifyL2ControlFrame_value(
    const p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setL2DomainUntagged_value(
    const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setL2DomainVlanXlate_value(
    const p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setL2DomainTagged_value(
    const p4_pd_tessel_switch_setL2DomainTagged_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_l2ForwardParamsSet_value(
    const p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_noOp_value(char *buffer);
int p4_pd_tessel_switch_setL2LearningLookupMiss_value(char *buffer);
int p4_pd_tessel_switch_l2LookupKnownUcast_value(
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_l2LookupKnownMcast_value(
    const p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_l2LookupKnownUcastTunnel_value(
    const p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_l2LookupDrop_value(char *buffer);
int p4_pd_tessel_switch_l2LookupBcastHit_value(char *buffer);
int p4_pd_tessel_switch_l2LookupUnknownMcastAction_value(char *buffer);
int p4_pd_tessel_switch_l2LookupUnknownUcastAction_value(char *buffer);
int p4_pd_tessel_switch_setL2McResult_value(
    const p4_pd_tessel_switch_setL2McResult_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setIllegalSmac_value(char *buffer);
int p4_pd_tessel_switch_setDropSmac_value(char *buffer);
int p4_pd_tessel_switch_setL2XId_value(
    const p4_pd_tessel_switch_setL2XId_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_ignoreIngL3DmacValid_value(char *buffer);
int p4_pd_tessel_switch_setIngL3DmacValid_value(char *buffer);
int p4_pd_tessel_switch_setLagPort_value(
    const p4_pd_tessel_switch_setLagPort_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setPhysicalPort_value(char *buffer);
int p4_pd_tessel_switch_setTunnelInfo_value(char *buffer);
int p4_pd_tessel_switch_invalidateUcastEgressPort_value(char *buffer);
int p4_pd_tessel_switch_fixL2SubintfAlignment_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesLagOuterEthHdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesLagOuterIpHdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesLagOuterL4Hdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesLagInnerEthHdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesLagInnerIpHdr_value(char *buffer);
int p4_pd_tessel_switch_setHashValuesLagInnerL4Hdr_value(char *buffer);
int p4_pd_tessel_switch_generateMacLearningDigest_value(char *buffer);
int p4_pd_tessel_switch_dot1xTrap_value(char *buffer);
int p4_pd_tessel_switch_dot1xDrop_value(char *buffer);
int p4_pd_tessel_switch_resetApplicationId_value(char *buffer);
int p4_pd_tessel_switch_setPruneParams_value(
    const p4_pd_tessel_switch_setPruneParams_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setPruneParamsForL2Flood_value(
    const p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setPruneParamsForL3Only_value(
    const p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_l3FloodEgressL2Aintf_value(char *buffer);
int p4_pd_tessel_switch_setMirrorPacketEncapNone_value(char *buffer);
int p4_pd_tessel_switch_setMirrorPacketEncapCpu_value(
    const p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_value(
    const p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setMlagPrune_value(char *buffer);
int p4_pd_tessel_switch_newFlowRateLimitAction_value(
    const p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setNextHopDetails_value(
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setCosFromDefault_value(
    const p4_pd_tessel_switch_setCosFromDefault_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setCosFromPacket_value(
    const p4_pd_tessel_switch_setCosFromPacket_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setCosFromPacketWithInner_value(
    const p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setDscpForNonIpPkt_value(char *buffer);
int p4_pd_tessel_switch_setDscpForTTNonIpPkt_value(char *buffer);
int p4_pd_tessel_switch_setDscpForIpv4Pkt_value(char *buffer);
int p4_pd_tessel_switch_setDscpForIpv4OptionsPkt_value(char *buffer);
int p4_pd_tessel_switch_setDscpForIpv6Pkt_value(char *buffer);
int p4_pd_tessel_switch_noTunnelIpv4_value(char *buffer);
int p4_pd_tessel_switch_noTunnelIpv6_value(char *buffer);
int p4_pd_tessel_switch_onlyDecapInnerIpv4_value(char *buffer);
int p4_pd_tessel_switch_onlyDecapInnerIpv6_value(char *buffer);
int p4_pd_tessel_switch_encapOuterIpv4_value(char *buffer);
int p4_pd_tessel_switch_encapOuterIpv4InnerIpv4_value(char *buffer);
int p4_pd_tessel_switch_encapOuterIpv4InnerIpv6_value(char *buffer);
int p4_pd_tessel_switch_setPdpClass_value(
    const p4_pd_tessel_switch_setPdpClass_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setPdpClassCount_value(
    const p4_pd_tessel_switch_setPdpClassCount_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_pdpPolice_value(
    const p4_pd_tessel_switch_pdpPolice_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setQosPortProperties_value(
    const p4_pd_tessel_switch_setQosPortProperties_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_copyCosRewriteDscp_value(
    const p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_rewriteCosCopyDscp_value(
    const p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_rewriteCosRewriteDscp_value(
    const p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setQosRewriteConfiguration_value(
    const p4_pd_tessel_switch_setQosRewriteConfiguration_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_countEgressQueue_value(char *buffer);
int p4_pd_tessel_switch_setNextHopToCpu_value(
    const p4_pd_tessel_switch_setNextHopToCpu_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setRoutedMartian_value(char *buffer);
int p4_pd_tessel_switch_setRouterNextHopDetails_value(
    const p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_samePortBridgingTestAction_value(char *buffer);
int p4_pd_tessel_switch_sipHashCompute_value(char *buffer);
int p4_pd_tessel_switch_setNyxIntfDetails_value(
    const p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setSwitchToCpu_value(
    const p4_pd_tessel_switch_setSwitchToCpu_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_value(
    const p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_value(
    const p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec,
    char *buffer);
int p4_pd_tessel_switch_setTcDscp_value(
    const p4_pd_tessel_switch_setTcDscp_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_trapPacket_value(
    const p4_pd_tessel_switch_trapPacket_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_copyPacket_value(
    const p4_pd_tessel_switch_copyPacket_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_setLlm_value(char *buffer);
int p4_pd_tessel_switch_setTunnelTerminationTypeIpIp_value(char *buffer);
int p4_pd_tessel_switch_setTunnelTerminationTypeIp6Ip6SwPath_value(char *buffer);
int p4_pd_tessel_switch_setTunnelTerminationTypeNoneIpv6_value(char *buffer);
int p4_pd_tessel_switch_setTunnelTerminationTypeNoneIpv4AndL2_value(char *buffer);
int p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_value(
    const p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_removeVlanHdr_value(char *buffer);
int p4_pd_tessel_switch_noVlanEncap_value(char *buffer);
int p4_pd_tessel_switch_needVlanEncap_value(char *buffer);
int p4_pd_tessel_switch_setVlanProperties_value(
    const p4_pd_tessel_switch_setVlanProperties_action_spec_t *action_spec, char *buffer);
int p4_pd_tessel_switch_trapPktToCpuUntagged_print(int descriptor, int indent,
    const p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t *action_spec);
int p4_pd_tessel_switch_copyPktToCpuUntagged_print(int descriptor, int indent,
    const p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t *action_spec);
int p4_pd_tessel_switch_trapPktToCpuTagged_print(int descriptor, int indent,
    const p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t *action_spec);
int p4_pd_tessel_switch_copyPktToCpuTagged_print(int descriptor, int indent,
    const p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t *action_spec);
int p4_pd_tessel_switch_trapPktToCpuSubintf_print(int descriptor, int indent,
    const p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t *action_spec);
int p4_pd_tessel_switch_copyPktToCpuSubintf_print(int descriptor, int indent,
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *action_spec);
int p4_pd_tessel_switch_encapPktToCpu_print(int descriptor, int indent,
    const p4_pd_tessel_switch_encapPktToCpu_action_spec_t *action_spec);
int p4_pd_tessel_switch_setDecapEscapeIpv4_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t *action_spec);
int p4_pd_tessel_switch_setDecapEscapeIpv6_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowSetDrop_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowRemoveInnerTag_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowDontFlow_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowPreviousHit_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t *action_spec);
int p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t *action_spec);
int p4_pd_tessel_switch_setEcmpNextHop_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setEcmpNextHop_action_spec_t *action_spec);
int p4_pd_tessel_switch_setL2DomainReplicated_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t *action_spec);
int p4_pd_tessel_switch_setEgrLagMemberSelector_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec_t *action_spec);
int p4_pd_tessel_switch_setEgressMirrorColor_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t *action_spec);
int p4_pd_tessel_switch_setEgressMirrorSession_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t *action_spec);
int p4_pd_tessel_switch_setEgrVlan_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setEgrVlan_action_spec_t *action_spec);
int p4_pd_tessel_switch_setEgrVlanSubIntf_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t *action_spec);
int p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_print(int descriptor, int indent,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec);
int p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_print(int descriptor, int indent,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec);
int p4_pd_tessel_switch_encapGreIpv4ForClone_print(int descriptor, int indent,
    const p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t *action_spec);
int p4_pd_tessel_switch_decapIpIpRouteIpv4_print(int descriptor, int indent,
    const p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t *action_spec);
int p4_pd_tessel_switch_decapIpIpRouteIpv6_print(int descriptor, int indent,
    const p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t *action_spec);
int p4_pd_tessel_switch_setEgressPort_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setEgressPort_action_spec_t *action_spec);
int p4_pd_tessel_switch_finalizeMcResultIpmc_print(int descriptor, int indent,
    const p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t *action_spec);
int p4_pd_tessel_switch_finalizeMcResultL2mc_print(int descriptor, int indent,
    const p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t *action_spec);
int p4_pd_tessel_switch_finalizeMcResultL2mcFlood_print(int descriptor, int indent,
    const p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec);
int p4_pd_tessel_switch_finalizeMcResultCancel_print(int descriptor, int indent,
    const p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t *action_spec);
int p4_pd_tessel_switch_finalizeMcResultFlood_print(int descriptor, int indent,
    const p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t *action_spec);
int p4_pd_tessel_switch_setDstSegment_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec);
int p4_pd_tessel_switch_setSrcSegment_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec);
int p4_pd_tessel_switch_setFirewallPolicyPermit_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t *action_spec);
int p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t *action_spec);
int p4_pd_tessel_switch_setFirewallPolicyDrop_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t *action_spec);
int p4_pd_tessel_switch_setFlowLimitExceeded_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setFlowLimitExceeded_action_spec_t *action_spec);
int p4_pd_tessel_switch_flowRecircPacketAction_print(int descriptor, int indent,
    const p4_pd_tessel_switch_flowRecircPacketAction_action_spec_t *action_spec);
int p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec);
int p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec);
int p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec);
int p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t *action_spec);
int p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t *action_spec);
int p4_pd_tessel_switch_setHaloXformDip_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec);
int p4_pd_tessel_switch_setHaloXformIpv4Sip_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t *action_spec);
int p4_pd_tessel_switch_setHaloXformIpv6Sip_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t *action_spec);
int p4_pd_tessel_switch_setLagMemberSelector_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setLagMemberSelector_action_spec_t *action_spec);
int p4_pd_tessel_switch_setIngressMirrorColor_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t *action_spec);
int p4_pd_tessel_switch_ingressMirrorAction_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressMirrorAction_action_spec_t *action_spec);
int p4_pd_tessel_switch_setIngressMirrorSession_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t *action_spec);
int p4_pd_tessel_switch_setPhase0_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setPhase0_action_spec_t *action_spec);
int p4_pd_tessel_switch_setTrafficClassAndEgressQid_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec);
int p4_pd_tessel_switch_setNextHop_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec);
int p4_pd_tessel_switch_setNextHop2_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *action_spec);
int p4_pd_tessel_switch_setNextHop3_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *action_spec);
int p4_pd_tessel_switch_setEcmp_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setEcmp_action_spec_t *action_spec);
int p4_pd_tessel_switch_setL2ControlFrame_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setL2ControlFrame_action_spec_t *action_spec);
int p4_pd_tessel_switch_classifyL2ControlFrame_print(int descriptor, int indent,
    const p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t *action_spec);
int p4_pd_tessel_switch_setL2DomainUntagged_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *action_spec);
int p4_pd_tessel_switch_setL2DomainVlanXlate_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t *action_spec);
int p4_pd_tessel_switch_setL2DomainTagged_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setL2DomainTagged_action_spec_t *action_spec);
int p4_pd_tessel_switch_l2ForwardParamsSet_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t *action_spec);
int p4_pd_tessel_switch_l2LookupKnownUcast_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *action_spec);
int p4_pd_tessel_switch_l2LookupKnownMcast_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t *action_spec);
int p4_pd_tessel_switch_l2LookupKnownUcastTunnel_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec);
int p4_pd_tessel_switch_setL2McResult_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setL2McResult_action_spec_t *action_spec);
int p4_pd_tessel_switch_setL2XId_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setL2XId_action_spec_t *action_spec);
int p4_pd_tessel_switch_setLagPort_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setLagPort_action_spec_t *action_spec);
int p4_pd_tessel_switch_setPruneParams_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setPruneParams_action_spec_t *action_spec);
int p4_pd_tessel_switch_setPruneParamsForL2Flood_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t *action_spec);
int p4_pd_tessel_switch_setPruneParamsForL3Only_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t *action_spec);
int p4_pd_tessel_switch_setMirrorPacketEncapCpu_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec);
int p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec);
int p4_pd_tessel_switch_newFlowRateLimitAction_print(int descriptor, int indent,
    const p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t *action_spec);
int p4_pd_tessel_switch_setNextHopDetails_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t *action_spec);
int p4_pd_tessel_switch_setCosFromDefault_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setCosFromDefault_action_spec_t *action_spec);
int p4_pd_tessel_switch_setCosFromPacket_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setCosFromPacket_action_spec_t *action_spec);
int p4_pd_tessel_switch_setCosFromPacketWithInner_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t *action_spec);
int p4_pd_tessel_switch_setPdpClass_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setPdpClass_action_spec_t *action_spec);
int p4_pd_tessel_switch_setPdpClassCount_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setPdpClassCount_action_spec_t *action_spec);
int p4_pd_tessel_switch_pdpPolice_print(int descriptor, int indent,
    const p4_pd_tessel_switch_pdpPolice_action_spec_t *action_spec);
int p4_pd_tessel_switch_setQosPortProperties_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setQosPortProperties_action_spec_t *action_spec);
int p4_pd_tessel_switch_copyCosRewriteDscp_print(int descriptor, int indent,
    const p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t *action_spec);
int p4_pd_tessel_switch_rewriteCosCopyDscp_print(int descriptor, int indent,
    const p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t *action_spec);
int p4_pd_tessel_switch_rewriteCosRewriteDscp_print(int descriptor, int indent,
    const p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t *action_spec);
int p4_pd_tessel_switch_setQosRewriteConfiguration_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setQosRewriteConfiguration_action_spec_t *action_spec);
int p4_pd_tessel_switch_setNextHopToCpu_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setNextHopToCpu_action_spec_t *action_spec);
int p4_pd_tessel_switch_setRouterNextHopDetails_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t *action_spec);
int p4_pd_tessel_switch_setNyxIntfDetails_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t *action_spec);
int p4_pd_tessel_switch_setSwitchToCpu_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setSwitchToCpu_action_spec_t *action_spec);
int p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec);
int p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec);
int p4_pd_tessel_switch_setTcDscp_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setTcDscp_action_spec_t *action_spec);
int p4_pd_tessel_switch_trapPacket_print(int descriptor, int indent,
    const p4_pd_tessel_switch_trapPacket_action_spec_t *action_spec);
int p4_pd_tessel_switch_copyPacket_print(int descriptor, int indent,
    const p4_pd_tessel_switch_copyPacket_action_spec_t *action_spec);
int p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec);
int p4_pd_tessel_switch_setVlanProperties_print(int descriptor, int indent,
    const p4_pd_tessel_switch_setVlanProperties_action_spec_t *action_spec);
bool p4_pd_tessel_switch_trapPktToCpuUntagged_action_specs_are_equal(
    const p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t *a,
    const p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t *b);
bool p4_pd_tessel_switch_copyPktToCpuUntagged_action_specs_are_equal(
    const p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t *a,
    const p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t *b);
bool p4_pd_tessel_switch_trapPktToCpuTagged_action_specs_are_equal(
    const p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t *a,
    const p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t *b);
bool p4_pd_tessel_switch_copyPktToCpuTagged_action_specs_are_equal(
    const p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t *a,
    const p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t *b);
bool p4_pd_tessel_switch_trapPktToCpuSubintf_action_specs_are_equal(
    const p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t *a,
    const p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t *b);
bool p4_pd_tessel_switch_copyPktToCpuSubintf_action_specs_are_equal(
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *a,
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *b);
bool p4_pd_tessel_switch_encapPktToCpu_action_specs_are_equal(
    const p4_pd_tessel_switch_encapPktToCpu_action_spec_t *a,
    const p4_pd_tessel_switch_encapPktToCpu_action_spec_t *b);
bool p4_pd_tessel_switch_setDecapEscapeIpv4_action_specs_are_equal(
    const p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t *a,
    const p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t *b);
bool p4_pd_tessel_switch_setDecapEscapeIpv6_action_specs_are_equal(
    const p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t *a,
    const p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowSetDrop_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowDontFlow_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowPreviousHit_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t *b);
bool p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t *a,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t *b);
bool p4_pd_tessel_switch_setEcmpNextHop_action_specs_are_equal(
    const p4_pd_tessel_switch_setEcmpNextHop_action_spec_t *a,
    const p4_pd_tessel_switch_setEcmpNextHop_action_spec_t *b);
bool p4_pd_tessel_switch_setL2DomainReplicated_action_specs_are_equal(
    const p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t *a,
    const p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t *b);
bool p4_pd_tessel_switch_setEgrLagMemberSelector_action_specs_are_equal(
    const p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec_t *a,
    const p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec_t *b);
bool p4_pd_tessel_switch_setEgressMirrorColor_action_specs_are_equal(
    const p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t *a,
    const p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t *b);
bool p4_pd_tessel_switch_setEgressMirrorSession_action_specs_are_equal(
    const p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t *a,
    const p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t *b);
bool p4_pd_tessel_switch_setEgrVlan_action_specs_are_equal(
    const p4_pd_tessel_switch_setEgrVlan_action_spec_t *a,
    const p4_pd_tessel_switch_setEgrVlan_action_spec_t *b);
bool p4_pd_tessel_switch_setEgrVlanSubIntf_action_specs_are_equal(
    const p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t *a,
    const p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t *b);
bool p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_specs_are_equal(
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t *a,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t *b);
bool p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_specs_are_equal(
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t *a,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t *b);
bool p4_pd_tessel_switch_encapGreIpv4ForClone_action_specs_are_equal(
    const p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t *a,
    const p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t *b);
bool p4_pd_tessel_switch_decapIpIpRouteIpv4_action_specs_are_equal(
    const p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t *a,
    const p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t *b);
bool p4_pd_tessel_switch_decapIpIpRouteIpv6_action_specs_are_equal(
    const p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t *a,
    const p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t *b);
bool p4_pd_tessel_switch_setEgressPort_action_specs_are_equal(
    const p4_pd_tessel_switch_setEgressPort_action_spec_t *a,
    const p4_pd_tessel_switch_setEgressPort_action_spec_t *b);
bool p4_pd_tessel_switch_finalizeMcResultIpmc_action_specs_are_equal(
    const p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t *a,
    const p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t *b);
bool p4_pd_tessel_switch_finalizeMcResultL2mc_action_specs_are_equal(
    const p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t *a,
    const p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t *b);
bool p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_specs_are_equal(
    const p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t *a,
    const p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t *b);
bool p4_pd_tessel_switch_finalizeMcResultCancel_action_specs_are_equal(
    const p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t *a,
    const p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t *b);
bool p4_pd_tessel_switch_finalizeMcResultFlood_action_specs_are_equal(
    const p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t *a,
    const p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t *b);
bool p4_pd_tessel_switch_setDstSegment_action_specs_are_equal(
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *a,
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *b);
bool p4_pd_tessel_switch_setSrcSegment_action_specs_are_equal(
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *a,
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *b);
bool p4_pd_tessel_switch_setFirewallPolicyPermit_action_specs_are_equal(
    const p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t *a,
    const p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t *b);
bool p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_specs_are_equal(
    const p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t *a,
    const p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t *b);
bool p4_pd_tessel_switch_setFirewallPolicyDrop_action_specs_are_equal(
    const p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t *a,
    const p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t *b);
bool p4_pd_tessel_switch_setFlowLimitExceeded_action_specs_are_equal(
    const p4_pd_tessel_switch_setFlowLimitExceeded_action_spec_t *a,
    const p4_pd_tessel_switch_setFlowLimitExceeded_action_spec_t *b);
bool p4_pd_tessel_switch_flowRecircPacketAction_action_specs_are_equal(
    const p4_pd_tessel_switch_flowRecircPacketAction_action_spec_t *a,
    const p4_pd_tessel_switch_flowRecircPacketAction_action_spec_t *b);
bool p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_specs_are_equal(
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *a,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *b);
bool p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_specs_are_equal(
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *a,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *b);
bool p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_specs_are_equal(
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *a,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *b);
bool p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_specs_are_equal(
    const p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t *a,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t *b);
bool p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_specs_are_equal(
    const p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t *a,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t *b);
bool p4_pd_tessel_switch_setHaloXformDip_action_specs_are_equal(
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *a,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *b);
bool p4_pd_tessel_switch_setHaloXformIpv4Sip_action_specs_are_equal(
    const p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t *a,
    const p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t *b);
bool p4_pd_tessel_switch_setHaloXformIpv6Sip_action_specs_are_equal(
    const p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t *a,
    const p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t *b);
bool p4_pd_tessel_switch_setLagMemberSelector_action_specs_are_equal(
    const p4_pd_tessel_switch_setLagMemberSelector_action_spec_t *a,
    const p4_pd_tessel_switch_setLagMemberSelector_action_spec_t *b);
bool p4_pd_tessel_switch_setIngressMirrorColor_action_specs_are_equal(
    const p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t *a,
    const p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t *b);
bool p4_pd_tessel_switch_ingressMirrorAction_action_specs_are_equal(
    const p4_pd_tessel_switch_ingressMirrorAction_action_spec_t *a,
    const p4_pd_tessel_switch_ingressMirrorAction_action_spec_t *b);
bool p4_pd_tessel_switch_setIngressMirrorSession_action_specs_are_equal(
    const p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t *a,
    const p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t *b);
bool p4_pd_tessel_switch_setPhase0_action_specs_are_equal(
    const p4_pd_tessel_switch_setPhase0_action_spec_t *a,
    const p4_pd_tessel_switch_setPhase0_action_spec_t *b);
bool p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_specs_are_equal(
    const p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t *a,
    const p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t *b);
bool p4_pd_tessel_switch_setNextHop_action_specs_are_equal(
    const p4_pd_tessel_switch_setNextHop_action_spec_t *a,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *b);
bool p4_pd_tessel_switch_setNextHop2_action_specs_are_equal(
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *a,
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *b);
bool p4_pd_tessel_switch_setNextHop3_action_specs_are_equal(
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *a,
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *b);
bool p4_pd_tessel_switch_setEcmp_action_specs_are_equal(
    const p4_pd_tessel_switch_setEcmp_action_spec_t *a,
    const p4_pd_tessel_switch_setEcmp_action_spec_t *b);
bool p4_pd_tessel_switch_setL2ControlFrame_action_specs_are_equal(
    const p4_pd_tessel_switch_setL2ControlFrame_action_spec_t *a,
    const p4_pd_tessel_switch_setL2ControlFrame_action_spec_t *b);
bool p4_pd_tessel_switch_classifyL2ControlFrame_action_specs_are_equal(
    const p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t *a,
    const p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t *b);
bool p4_pd_tessel_switch_setL2DomainUntagged_action_specs_are_equal(
    const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *a,
    const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *b);
bool p4_pd_tessel_switch_setL2DomainVlanXlate_action_specs_are_equal(
    const p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t *a,
    const p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t *b);
bool p4_pd_tessel_switch_setL2DomainTagged_action_specs_are_equal(
    const p4_pd_tessel_switch_setL2DomainTagged_action_spec_t *a,
    const p4_pd_tessel_switch_setL2DomainTagged_action_spec_t *b);
bool p4_pd_tessel_switch_l2ForwardParamsSet_action_specs_are_equal(
    const p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t *a,
    const p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t *b);
bool p4_pd_tessel_switch_l2LookupKnownUcast_action_specs_are_equal(
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *a,
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *b);
bool p4_pd_tessel_switch_l2LookupKnownMcast_action_specs_are_equal(
    const p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t *a,
    const p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t *b);
bool p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_specs_are_equal(
    const p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t *a,
    const p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t *b);
bool p4_pd_tessel_switch_setL2McResult_action_specs_are_equal(
    const p4_pd_tessel_switch_setL2McResult_action_spec_t *a,
    const p4_pd_tessel_switch_setL2McResult_action_spec_t *b);
bool p4_pd_tessel_switch_setL2XId_action_specs_are_equal(
    const p4_pd_tessel_switch_setL2XId_action_spec_t *a,
    const p4_pd_tessel_switch_setL2XId_action_spec_t *b);
bool p4_pd_tessel_switch_setLagPort_action_specs_are_equal(
    const p4_pd_tessel_switch_setLagPort_action_spec_t *a,
    const p4_pd_tessel_switch_setLagPort_action_spec_t *b);
bool p4_pd_tessel_switch_setPruneParams_action_specs_are_equal(
    const p4_pd_tessel_switch_setPruneParams_action_spec_t *a,
    const p4_pd_tessel_switch_setPruneParams_action_spec_t *b);
bool p4_pd_tessel_switch_setPruneParamsForL2Flood_action_specs_are_equal(
    const p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t *a,
    const p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t *b);
bool p4_pd_tessel_switch_setPruneParamsForL3Only_action_specs_are_equal(
    const p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t *a,
    const p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t *b);
bool p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_specs_are_equal(
    const p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t *a,
    const p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t *b);
bool p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_specs_are_equal(
    const p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t *a,
    const p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t *b);
bool p4_pd_tessel_switch_newFlowRateLimitAction_action_specs_are_equal(
    const p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t *a,
    const p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t *b);
bool p4_pd_tessel_switch_setNextHopDetails_action_specs_are_equal(
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t *a,
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t *b);
bool p4_pd_tessel_switch_setCosFromDefault_action_specs_are_equal(
    const p4_pd_tessel_switch_setCosFromDefault_action_spec_t *a,
    const p4_pd_tessel_switch_setCosFromDefault_action_spec_t *b);
bool p4_pd_tessel_switch_setCosFromPacket_action_specs_are_equal(
    const p4_pd_tessel_switch_setCosFromPacket_action_spec_t *a,
    const p4_pd_tessel_switch_setCosFromPacket_action_spec_t *b);
bool p4_pd_tessel_switch_setCosFromPacketWithInner_action_specs_are_equal(
    const p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t *a,
    const p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t *b);
bool p4_pd_tessel_switch_setPdpClass_action_specs_are_equal(
    const p4_pd_tessel_switch_setPdpClass_action_spec_t *a,
    const p4_pd_tessel_switch_setPdpClass_action_spec_t *b);
bool p4_pd_tessel_switch_setPdpClassCount_action_specs_are_equal(
    const p4_pd_tessel_switch_setPdpClassCount_action_spec_t *a,
    const p4_pd_tessel_switch_setPdpClassCount_action_spec_t *b);
bool p4_pd_tessel_switch_pdpPolice_action_specs_are_equal(
    const p4_pd_tessel_switch_pdpPolice_action_spec_t *a,
    const p4_pd_tessel_switch_pdpPolice_action_spec_t *b);
bool p4_pd_tessel_switch_setQosPortProperties_action_specs_are_equal(
    const p4_pd_tessel_switch_setQosPortProperties_action_spec_t *a,
    const p4_pd_tessel_switch_setQosPortProperties_action_spec_t *b);
bool p4_pd_tessel_switch_copyCosRewriteDscp_action_specs_are_equal(
    const p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t *a,
    const p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t *b);
bool p4_pd_tessel_switch_rewriteCosCopyDscp_action_specs_are_equal(
    const p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t *a,
    const p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t *b);
bool p4_pd_tessel_switch_rewriteCosRewriteDscp_action_specs_are_equal(
    const p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t *a,
    const p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t *b);
bool p4_pd_tessel_switch_setQosRewriteConfiguration_action_specs_are_equal(
    const p4_pd_tessel_switch_setQosRewriteConfiguration_action_spec_t *a,
    const p4_pd_tessel_switch_setQosRewriteConfiguration_action_spec_t *b);
bool p4_pd_tessel_switch_setNextHopToCpu_action_specs_are_equal(
    const p4_pd_tessel_switch_setNextHopToCpu_action_spec_t *a,
    const p4_pd_tessel_switch_setNextHopToCpu_action_spec_t *b);
bool p4_pd_tessel_switch_setRouterNextHopDetails_action_specs_are_equal(
    const p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t *a,
    const p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t *b);
bool p4_pd_tessel_switch_setNyxIntfDetails_action_specs_are_equal(
    const p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t *a,
    const p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t *b);
bool p4_pd_tessel_switch_setSwitchToCpu_action_specs_are_equal(
    const p4_pd_tessel_switch_setSwitchToCpu_action_spec_t *a,
    const p4_pd_tessel_switch_setSwitchToCpu_action_spec_t *b);
bool p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_specs_are_equal(
    const p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t *a,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t *b);
bool p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_specs_are_equal(
    const p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *a,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *b);
bool p4_pd_tessel_switch_setTcDscp_action_specs_are_equal(
    const p4_pd_tessel_switch_setTcDscp_action_spec_t *a,
    const p4_pd_tessel_switch_setTcDscp_action_spec_t *b);
bool p4_pd_tessel_switch_trapPacket_action_specs_are_equal(
    const p4_pd_tessel_switch_trapPacket_action_spec_t *a,
    const p4_pd_tessel_switch_trapPacket_action_spec_t *b);
bool p4_pd_tessel_switch_copyPacket_action_specs_are_equal(
    const p4_pd_tessel_switch_copyPacket_action_spec_t *a,
    const p4_pd_tessel_switch_copyPacket_action_spec_t *b);
bool p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_specs_are_equal(
    const p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t *a,
    const p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t *b);
bool p4_pd_tessel_switch_setVlanProperties_action_specs_are_equal(
    const p4_pd_tessel_switch_setVlanProperties_action_spec_t *a,
    const p4_pd_tessel_switch_setVlanProperties_action_spec_t *b);
const char *p4_pd_tessel_switch_action_enum_to_string(uint32_t value);
uint32_t p4_pd_tessel_switch_action_string_to_enum(const char *name);

/* ==== Table ingressPortMapping (0x01000001), exact ==== */

/* Key of 9 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_ingressPortMapping_match_spec {
  uint16_t ig_intr_md_ingress_port; /* 9 bits */
} p4_pd_tessel_switch_ingressPortMapping_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingressPortMapping_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_table_add_with_setPhase0(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setPhase0_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_table_modify_with_setPhase0(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setPhase0_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_table_modify_with_setPhase0_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setPhase0_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_set_default_action_setPhase0(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setPhase0_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ingressPortMapping_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingressPortMapping_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ingressPortMapping_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ingressPortMapping_match_spec_schema(void);
int p4_pd_tessel_switch_ingressPortMapping_schema(char *buffer);
int p4_pd_tessel_switch_ingressPortMapping_match_spec_value(
    const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressPortMapping_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingressPortMapping_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ingressPortMapping_match_specs_are_equal(
    const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *a,
    const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ingressPortMapping_ig_intr_md_ingress_port_width(void);
int p4_pd_tessel_switch_ingressPortMapping_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingressPortMapping_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ingressPortMapping_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2DmacClassify (0x01000002), ternary ==== */

/* Key of 57 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_l2DmacClassify_match_spec {
  uint16_t ig_intr_md_ingress_port; /* 9 bits, key bits 0x7f */
  uint32_t outerEthHdr_dmacOui; /* 24 bits */
  uint32_t outerEthHdr_dmacOui_mask; /* set bits take part */
  uint32_t outerEthHdr_dmacStation; /* 24 bits */
  uint32_t outerEthHdr_dmacStation_mask; /* set bits take part */
} p4_pd_tessel_switch_l2DmacClassify_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2DmacClassify_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_add_with_setL2ControlFrame(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setL2ControlFrame_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setL2ControlFrame(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setL2ControlFrame_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setL2ControlFrame_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setL2ControlFrame_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_add_with_setIllegalDmac(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setIllegalDmac(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setIllegalDmac_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_add_with_setMcast(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setMcast(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setMcast_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_add_with_setBcast(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setBcast(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setBcast_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_add_with_setUcast(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setUcast(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setUcast_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_add_with_setIpMcast(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setIpMcast(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_setIpMcast_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_add_with_classifyL2ControlFrame(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_classifyL2ControlFrame(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_classifyL2ControlFrame_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_classifyL2ControlFrame_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2DmacClassify_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2DmacClassify_match_spec_schema(void);
int p4_pd_tessel_switch_l2DmacClassify_schema(char *buffer);
int p4_pd_tessel_switch_l2DmacClassify_match_spec_value(
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2DmacClassify_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2DmacClassify_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec);
int p4_pd_tessel_switch_l2DmacClassify_match_spec_stringify_for_counter(
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2DmacClassify_stringify_counter_match_spec(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tessel_switch_l2DmacClassify_match_specs_are_equal(
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *a,
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2DmacClassify_ig_intr_md_ingress_port_width(void);
uint32_t p4_pd_tessel_switch_l2DmacClassify_outerEthHdr_dmacOui_width(void);
uint32_t p4_pd_tessel_switch_l2DmacClassify_outerEthHdr_dmacStation_width(void);
int p4_pd_tessel_switch_l2DmacClassify_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2DmacClassify_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2DmacClassify_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2SmacCheck (0x01000003), ternary ==== */

/* Key of 48 bits in 6 bytes. */
typedef struct p4_pd_tessel_switch_l2SmacCheck_match_spec {
  uint32_t outerEthHdr_smacOui; /* 24 bits */
  uint32_t outerEthHdr_smacOui_mask; /* set bits take part */
  uint32_t outerEthHdr_smacStation; /* 24 bits */
  uint32_t outerEthHdr_smacStation_mask; /* set bits take part */
} p4_pd_tessel_switch_l2SmacCheck_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2SmacCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_table_add_with_setIllegalSmac(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2SmacCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_table_modify_with_setIllegalSmac(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_table_modify_with_setIllegalSmac_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2SmacCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2SmacCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2SmacCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_set_default_action_setIllegalSmac(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2SmacCheck_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2SmacCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l2SmacCheck_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2SmacCheck_match_spec_schema(void);
int p4_pd_tessel_switch_l2SmacCheck_schema(char *buffer);
int p4_pd_tessel_switch_l2SmacCheck_match_spec_value(
    const p4_pd_tessel_switch_l2SmacCheck_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2SmacCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2SmacCheck_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2SmacCheck_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2SmacCheck_match_specs_are_equal(
    const p4_pd_tessel_switch_l2SmacCheck_match_spec_t *a,
    const p4_pd_tessel_switch_l2SmacCheck_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2SmacCheck_outerEthHdr_smacOui_width(void);
uint32_t p4_pd_tessel_switch_l2SmacCheck_outerEthHdr_smacStation_width(void);
int p4_pd_tessel_switch_l2SmacCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2SmacCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2SmacCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table kiteFlow1 (0x01000004), ternary ==== */

/* Key of 28 bits in 6 bytes. */
typedef struct p4_pd_tessel_switch_kiteFlow1_match_spec {
  uint16_t phase0_ingVPort; /* 14 bits */
  uint16_t phase0_ingVPort_mask; /* set bits take part */
  uint8_t vlanHdr_1__valid; /* 1 bit */
  uint8_t vlanHdr_1__valid_mask; /* set bits take part */
  uint16_t vlanHdr_1__vlanId; /* 12 bits */
  uint16_t vlanHdr_1__vlanId_mask; /* set bits take part */
  uint8_t ingMd_l2Control; /* 1 bit */
  uint8_t ingMd_l2Control_mask; /* set bits take part */
} p4_pd_tessel_switch_kiteFlow1_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_kiteFlow1_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_add_with_kiteFlowSetDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_modify_with_kiteFlowSetDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_modify_with_kiteFlowSetDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_add_with_kiteFlowSetEgrL2AintfAndRemoveInnerTag(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_modify_with_kiteFlowSetEgrL2AintfAndRemoveInnerTag(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_modify_with_kiteFlowSetEgrL2AintfAndRemoveInnerTag_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndRemoveInnerTag_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_add_with_kiteFlowRemoveInnerTag(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_modify_with_kiteFlowRemoveInnerTag(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_modify_with_kiteFlowRemoveInnerTag_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowRemoveInnerTag_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_add_with_kiteFlowDontFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_modify_with_kiteFlowDontFlow(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_modify_with_kiteFlowDontFlow_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_set_default_action_kiteFlowDontFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, uint32_t *priority, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec,
    uint32_t *priority, p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_kiteFlow1_match_spec_schema(void);
int p4_pd_tessel_switch_kiteFlow1_schema(char *buffer);
int p4_pd_tessel_switch_kiteFlow1_match_spec_value(
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow1_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_kiteFlow1_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *match_spec);
bool p4_pd_tessel_switch_kiteFlow1_match_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *a,
    const p4_pd_tessel_switch_kiteFlow1_match_spec_t *b);
uint32_t p4_pd_tessel_switch_kiteFlow1_phase0_ingVPort_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow1_vlanHdr_1__width(void);
uint32_t p4_pd_tessel_switch_kiteFlow1_vlanHdr_1__vlanId_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow1_ingMd_l2Control_width(void);
int p4_pd_tessel_switch_kiteFlow1_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_kiteFlow1_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_kiteFlow1_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table kiteFlow2 (0x01000005), ternary ==== */

/* Key of 29 bits in 7 bytes. */
typedef struct p4_pd_tessel_switch_kiteFlow2_match_spec {
  uint8_t tesselCpuHdr_valid; /* 1 bit */
  uint16_t phase0_ingVPort; /* 14 bits */
  uint16_t phase0_ingVPort_mask; /* set bits take part */
  uint16_t ingMd_ingL2Domain; /* 12 bits */
  uint16_t ingMd_ingL2Domain_mask; /* set bits take part */
  uint8_t kflowMd_isHit; /* 1 bit */
  uint8_t kflowMd_isHit_mask; /* set bits take part */
  uint8_t ingMd_l2Control; /* 1 bit */
  uint8_t ingMd_l2Control_mask; /* set bits take part */
} p4_pd_tessel_switch_kiteFlow2_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_kiteFlow2_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_add_with_kiteFlowSetEgrL2Aintf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowSetEgrL2Aintf(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowSetEgrL2Aintf_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_add_with_kiteFlowSetEgrL2AintfAndL2Domain(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowSetEgrL2AintfAndL2Domain(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowSetEgrL2AintfAndL2Domain_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_add_with_kiteFlowSetDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowSetDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowSetDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_add_with_kiteFlowPreviousHit(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowPreviousHit(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowPreviousHit_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_add_with_kiteFlowDontFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowDontFlow(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_modify_with_kiteFlowDontFlow_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_set_default_action_kiteFlowDontFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, uint32_t *priority, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec,
    uint32_t *priority, p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_kiteFlow2_match_spec_schema(void);
int p4_pd_tessel_switch_kiteFlow2_schema(char *buffer);
int p4_pd_tessel_switch_kiteFlow2_match_spec_value(
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow2_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_kiteFlow2_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *match_spec);
bool p4_pd_tessel_switch_kiteFlow2_match_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *a,
    const p4_pd_tessel_switch_kiteFlow2_match_spec_t *b);
uint32_t p4_pd_tessel_switch_kiteFlow2_tesselCpuHdr_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow2_phase0_ingVPort_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow2_ingMd_ingL2Domain_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow2_kflowMd_isHit_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow2_ingMd_l2Control_width(void);
int p4_pd_tessel_switch_kiteFlow2_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_kiteFlow2_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_kiteFlow2_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table kiteFlow3 (0x01000007), ternary ==== */

/* Key of 150 bits in 23 bytes. */
typedef struct p4_pd_tessel_switch_kiteFlow3_match_spec {
  uint8_t tesselCpuHdr_valid; /* 1 bit */
  uint8_t kflowMd_isHit; /* 1 bit */
  uint8_t kflowMd_isHit_mask; /* set bits take part */
  uint16_t phase0_ingVPort; /* 14 bits */
  uint16_t phase0_ingVPort_mask; /* set bits take part */
  uint16_t ingMd_ingL2Domain; /* 12 bits */
  uint16_t ingMd_ingL2Domain_mask; /* set bits take part */
  uint16_t ingMd_etherType; /* 16 bits */
  uint16_t ingMd_etherType_mask; /* set bits take part */
  uint16_t ingMd_srcPort; /* 16 bits */
  uint16_t ingMd_srcPort_mask; /* set bits take part */
  uint16_t ingMd_dstPort; /* 16 bits */
  uint16_t ingMd_dstPort_mask; /* set bits take part */
  uint8_t ingMd_protocol; /* 8 bits */
  uint8_t ingMd_protocol_mask; /* set bits take part */
  uint32_t ingIpv4_sip; /* 32 bits */
  uint32_t ingIpv4_sip_mask; /* set bits take part */
  uint32_t ingIpv4_dip; /* 32 bits */
  uint32_t ingIpv4_dip_mask; /* set bits take part */
  uint8_t vlanHdr_0__valid; /* 1 bit */
  uint8_t vlanHdr_0__valid_mask; /* set bits take part */
  uint8_t ingMd_l2Control; /* 1 bit */
  uint8_t ingMd_l2Control_mask; /* set bits take part */
} p4_pd_tessel_switch_kiteFlow3_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_kiteFlow3_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_add_with_kiteFlowSetEgrL2Aintf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowSetEgrL2Aintf(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowSetEgrL2Aintf_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2Aintf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_add_with_kiteFlowSetEgrL2AintfAndL2Domain(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowSetEgrL2AintfAndL2Domain(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowSetEgrL2AintfAndL2Domain_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndL2Domain_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_add_with_kiteFlowSetEgrL2AintfAndAddInnerTag(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowSetEgrL2AintfAndAddInnerTag(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowSetEgrL2AintfAndAddInnerTag_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetEgrL2AintfAndAddInnerTag_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_add_with_kiteFlowAddInnerTagPreviousHit(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowAddInnerTagPreviousHit(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowAddInnerTagPreviousHit_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagPreviousHit_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_add_with_kiteFlowAddInnerTagDontFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowAddInnerTagDontFlow(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowAddInnerTagDontFlow_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowAddInnerTagDontFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_add_with_kiteFlowSetDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowSetDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowSetDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowSetDrop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_add_with_kiteFlowPreviousHit(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowPreviousHit(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowPreviousHit_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowPreviousHit_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_add_with_kiteFlowDontFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowDontFlow(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_modify_with_kiteFlowDontFlow_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_set_default_action_kiteFlowDontFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlowDontFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, uint32_t *priority, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec,
    uint32_t *priority, p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_kiteFlow3_match_spec_schema(void);
int p4_pd_tessel_switch_kiteFlow3_schema(char *buffer);
int p4_pd_tessel_switch_kiteFlow3_match_spec_value(
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow3_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_kiteFlow3_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *match_spec);
bool p4_pd_tessel_switch_kiteFlow3_match_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *a,
    const p4_pd_tessel_switch_kiteFlow3_match_spec_t *b);
uint32_t p4_pd_tessel_switch_kiteFlow3_tesselCpuHdr_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_kflowMd_isHit_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_phase0_ingVPort_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_ingMd_ingL2Domain_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_ingMd_etherType_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_ingMd_srcPort_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_ingMd_dstPort_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_ingIpv4_sip_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_ingIpv4_dip_width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_vlanHdr_0__width(void);
uint32_t p4_pd_tessel_switch_kiteFlow3_ingMd_l2Control_width(void);
int p4_pd_tessel_switch_kiteFlow3_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_kiteFlow3_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_kiteFlow3_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table kiteFlow1Counter (0x01000008), exact ==== */

/* Key of 12 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_kiteFlow1Counter_match_spec {
  uint16_t kflowMd_counterIndex; /* 12 bits, key bits 0x7ff */
} p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_kiteFlow1Counter_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow1Counter_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_kiteFlow1Counter_match_spec_schema(void);
int p4_pd_tessel_switch_kiteFlow1Counter_schema(char *buffer);
int p4_pd_tessel_switch_kiteFlow1Counter_match_spec_value(
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow1Counter_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_kiteFlow1Counter_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec);
int p4_pd_tessel_switch_kiteFlow1Counter_match_spec_stringify_for_counter(
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow1Counter_stringify_counter_match_spec(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tessel_switch_kiteFlow1Counter_match_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *a,
    const p4_pd_tessel_switch_kiteFlow1Counter_match_spec_t *b);
uint32_t p4_pd_tessel_switch_kiteFlow1Counter_kflowMd_counterIndex_width(void);
int p4_pd_tessel_switch_kiteFlow1Counter_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_kiteFlow1Counter_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_kiteFlow1Counter_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table kiteFlow2Counter (0x01000009), exact ==== */

/* Key of 12 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_kiteFlow2Counter_match_spec {
  uint16_t kflowMd_counterIndex; /* 12 bits */
} p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_kiteFlow2Counter_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow2Counter_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_kiteFlow2Counter_match_spec_schema(void);
int p4_pd_tessel_switch_kiteFlow2Counter_schema(char *buffer);
int p4_pd_tessel_switch_kiteFlow2Counter_match_spec_value(
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow2Counter_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_kiteFlow2Counter_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec);
int p4_pd_tessel_switch_kiteFlow2Counter_match_spec_stringify_for_counter(
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow2Counter_stringify_counter_match_spec(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tessel_switch_kiteFlow2Counter_match_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *a,
    const p4_pd_tessel_switch_kiteFlow2Counter_match_spec_t *b);
uint32_t p4_pd_tessel_switch_kiteFlow2Counter_kflowMd_counterIndex_width(void);
int p4_pd_tessel_switch_kiteFlow2Counter_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_kiteFlow2Counter_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_kiteFlow2Counter_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table kiteFlow3Counter (0x0100000a), exact ==== */

/* Key of 12 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_kiteFlow3Counter_match_spec {
  uint16_t kflowMd_counterIndex; /* 12 bits, key bits 0x7ff */
} p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_kiteFlow3Counter_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_kiteFlow3Counter_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_kiteFlow3Counter_match_spec_schema(void);
int p4_pd_tessel_switch_kiteFlow3Counter_schema(char *buffer);
int p4_pd_tessel_switch_kiteFlow3Counter_match_spec_value(
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow3Counter_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_kiteFlow3Counter_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec);
int p4_pd_tessel_switch_kiteFlow3Counter_match_spec_stringify_for_counter(
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_kiteFlow3Counter_stringify_counter_match_spec(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tessel_switch_kiteFlow3Counter_match_specs_are_equal(
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *a,
    const p4_pd_tessel_switch_kiteFlow3Counter_match_spec_t *b);
uint32_t p4_pd_tessel_switch_kiteFlow3Counter_kflowMd_counterIndex_width(void);
int p4_pd_tessel_switch_kiteFlow3Counter_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_kiteFlow3Counter_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_kiteFlow3Counter_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table tunnelTermination (0x0100000b), ternary ==== */

/* Key of 84 bits in 12 bytes. */
typedef struct p4_pd_tessel_switch_tunnelTermination_match_spec {
  uint8_t ingMd_tunnelType; /* 3 bits */
  uint8_t ingMd_tunnelType_mask; /* set bits take part */
  uint32_t outerEthHdr_dmacOui; /* 24 bits */
  uint32_t outerEthHdr_dmacOui_mask; /* set bits take part */
  uint32_t outerEthHdr_dmacStation; /* 24 bits */
  uint32_t outerEthHdr_dmacStation_mask; /* set bits take part */
  uint32_t outerIpv4Hdr_dip; /* 32 bits */
  uint32_t outerIpv4Hdr_dip_mask; /* set bits take part */
  uint8_t outerIpv6Hdr_valid; /* 1 bit */
} p4_pd_tessel_switch_tunnelTermination_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_tunnelTermination_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_add_with_setTunnelTerminationTypeIpIp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeIpIp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeIpIp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_add_with_setTunnelTerminationTypeIp6Ip6SwPath(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeIp6Ip6SwPath(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeIp6Ip6SwPath_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_add_with_setTunnelTerminationTypeNoneIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeNoneIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeNoneIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_add_with_setTunnelTerminationTypeNoneIpv4AndL2(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeNoneIpv4AndL2(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_modify_with_setTunnelTerminationTypeNoneIpv4AndL2_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_set_default_action_setTunnelTerminationTypeNoneIpv4AndL2(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_tunnelTermination_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_tunnelTermination_match_spec_schema(void);
int p4_pd_tessel_switch_tunnelTermination_schema(char *buffer);
int p4_pd_tessel_switch_tunnelTermination_match_spec_value(
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_tunnelTermination_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_tunnelTermination_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *match_spec);
bool p4_pd_tessel_switch_tunnelTermination_match_specs_are_equal(
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *a,
    const p4_pd_tessel_switch_tunnelTermination_match_spec_t *b);
uint32_t p4_pd_tessel_switch_tunnelTermination_ingMd_tunnelType_width(void);
uint32_t p4_pd_tessel_switch_tunnelTermination_outerEthHdr_dmacOui_width(void);
uint32_t p4_pd_tessel_switch_tunnelTermination_outerEthHdr_dmacStation_width(void);
uint32_t p4_pd_tessel_switch_tunnelTermination_outerIpv4Hdr_dip_width(void);
uint32_t p4_pd_tessel_switch_tunnelTermination_outerIpv6Hdr_width(void);
int p4_pd_tessel_switch_tunnelTermination_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_tunnelTermination_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_tunnelTermination_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2DomainLookup (0x0100000c), ternary ==== */

/* Key of 28 bits in 6 bytes. */
typedef struct p4_pd_tessel_switch_l2DomainLookup_match_spec {
  uint8_t phase0_switchPort; /* 1 bit */
  uint16_t phase0_ingVPort; /* 14 bits */
  uint8_t vlanHdr_0__valid; /* 1 bit */
  uint16_t vlanHdr_0__vlanId; /* 12 bits */
  uint16_t vlanHdr_0__vlanId_mask; /* set bits take part */
} p4_pd_tessel_switch_l2DomainLookup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2DomainLookup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_add_with_setL2DomainUntagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_modify_with_setL2DomainUntagged(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_modify_with_setL2DomainUntagged_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_add_with_setL2DomainVlanXlate(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_modify_with_setL2DomainVlanXlate(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_modify_with_setL2DomainVlanXlate_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_add_with_setL2DomainTagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setL2DomainTagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_modify_with_setL2DomainTagged(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setL2DomainTagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_modify_with_setL2DomainTagged_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setL2DomainTagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_set_default_action_setL2DomainUntagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_set_default_action_setL2DomainVlanXlate(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setL2DomainVlanXlate_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_set_default_action_setL2DomainTagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setL2DomainTagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2DomainLookup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2DomainLookup_match_spec_schema(void);
int p4_pd_tessel_switch_l2DomainLookup_schema(char *buffer);
int p4_pd_tessel_switch_l2DomainLookup_match_spec_value(
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2DomainLookup_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2DomainLookup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2DomainLookup_match_specs_are_equal(
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *a,
    const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2DomainLookup_phase0_switchPort_width(void);
uint32_t p4_pd_tessel_switch_l2DomainLookup_phase0_ingVPort_width(void);
uint32_t p4_pd_tessel_switch_l2DomainLookup_vlanHdr_0__width(void);
uint32_t p4_pd_tessel_switch_l2DomainLookup_vlanHdr_0__vlanId_width(void);
int p4_pd_tessel_switch_l2DomainLookup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2DomainLookup_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2DomainLookup_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table untaggedPktToL3 (0x0100000d), exact ==== */

/* Key of 12 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_untaggedPktToL3_match_spec {
  uint16_t phase0_nativeAintf; /* 12 bits */
} p4_pd_tessel_switch_untaggedPktToL3_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_untaggedPktToL3_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_table_add_with_setVrfPropertiesUntaggedPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_table_modify_with_setVrfPropertiesUntaggedPkt(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_table_modify_with_setVrfPropertiesUntaggedPkt_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_set_default_action_setVrfPropertiesUntaggedPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setVrfPropertiesUntaggedPkt_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_untaggedPktToL3_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_untaggedPktToL3_match_spec_schema(void);
int p4_pd_tessel_switch_untaggedPktToL3_schema(char *buffer);
int p4_pd_tessel_switch_untaggedPktToL3_match_spec_value(
    const p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_untaggedPktToL3_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_untaggedPktToL3_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *match_spec);
bool p4_pd_tessel_switch_untaggedPktToL3_match_specs_are_equal(
    const p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *a,
    const p4_pd_tessel_switch_untaggedPktToL3_match_spec_t *b);
uint32_t p4_pd_tessel_switch_untaggedPktToL3_phase0_nativeAintf_width(void);
int p4_pd_tessel_switch_untaggedPktToL3_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_untaggedPktToL3_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_untaggedPktToL3_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table taggedXlatePktToL3 (0x0100000e), exact ==== */

/* Key of 26 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_taggedXlatePktToL3_match_spec {
  uint16_t phase0_ingVPort; /* 14 bits */
  uint16_t vlanHdr_0__vlanId; /* 12 bits */
} p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_taggedXlatePktToL3_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_add_with_setVrfPropertiesTaggedXlatePkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_modify_with_setVrfPropertiesTaggedXlatePkt(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_modify_with_setVrfPropertiesTaggedXlatePkt_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedXlatePkt_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_taggedXlatePktToL3_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_schema(void);
int p4_pd_tessel_switch_taggedXlatePktToL3_schema(char *buffer);
int p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_value(
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_taggedXlatePktToL3_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *match_spec);
bool p4_pd_tessel_switch_taggedXlatePktToL3_match_specs_are_equal(
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *a,
    const p4_pd_tessel_switch_taggedXlatePktToL3_match_spec_t *b);
uint32_t p4_pd_tessel_switch_taggedXlatePktToL3_phase0_ingVPort_width(void);
uint32_t p4_pd_tessel_switch_taggedXlatePktToL3_vlanHdr_0__vlanId_width(void);
int p4_pd_tessel_switch_taggedXlatePktToL3_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_taggedXlatePktToL3_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_taggedXlatePktToL3_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table taggedPktToL3 (0x0100000f), exact ==== */

/* Key of 12 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_taggedPktToL3_match_spec {
  uint16_t vlanHdr_0__vlanId; /* 12 bits */
} p4_pd_tessel_switch_taggedPktToL3_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_taggedPktToL3_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_table_add_with_setVrfPropertiesTaggedPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedPktToL3_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_table_modify_with_setVrfPropertiesTaggedPkt(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_table_modify_with_setVrfPropertiesTaggedPkt_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedPktToL3_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedPktToL3_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_taggedPktToL3_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_set_default_action_setVrfPropertiesTaggedPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setVrfPropertiesTaggedPkt_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_taggedPktToL3_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_taggedPktToL3_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_taggedPktToL3_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_taggedPktToL3_match_spec_schema(void);
int p4_pd_tessel_switch_taggedPktToL3_schema(char *buffer);
int p4_pd_tessel_switch_taggedPktToL3_match_spec_value(
    const p4_pd_tessel_switch_taggedPktToL3_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_taggedPktToL3_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_taggedPktToL3_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_taggedPktToL3_match_spec_t *match_spec);
bool p4_pd_tessel_switch_taggedPktToL3_match_specs_are_equal(
    const p4_pd_tessel_switch_taggedPktToL3_match_spec_t *a,
    const p4_pd_tessel_switch_taggedPktToL3_match_spec_t *b);
uint32_t p4_pd_tessel_switch_taggedPktToL3_vlanHdr_0__vlanId_width(void);
int p4_pd_tessel_switch_taggedPktToL3_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_taggedPktToL3_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_taggedPktToL3_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowHashTypeSelect (0x01000014), ternary ==== */

/* Key of 64 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_flowHashTypeSelect_match_spec {
  uint32_t ingIpv4_sip; /* 32 bits */
  uint32_t ingIpv4_sip_mask; /* set bits take part */
  uint32_t ingIpv4_dip; /* 32 bits */
  uint32_t ingIpv4_dip_mask; /* set bits take part */
} p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowHashTypeSelect_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_add_with_selectTypeA(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_modify_with_selectTypeA(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_modify_with_selectTypeA_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_add_with_selectTypeB(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_modify_with_selectTypeB(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_modify_with_selectTypeB_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_set_default_action_selectTypeA(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_set_default_action_selectTypeB(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeSelect_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_flowHashTypeSelect_match_spec_schema(void);
int p4_pd_tessel_switch_flowHashTypeSelect_schema(char *buffer);
int p4_pd_tessel_switch_flowHashTypeSelect_match_spec_value(
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_flowHashTypeSelect_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowHashTypeSelect_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *match_spec);
bool p4_pd_tessel_switch_flowHashTypeSelect_match_specs_are_equal(
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *a,
    const p4_pd_tessel_switch_flowHashTypeSelect_match_spec_t *b);
uint32_t p4_pd_tessel_switch_flowHashTypeSelect_ingIpv4_sip_width(void);
uint32_t p4_pd_tessel_switch_flowHashTypeSelect_ingIpv4_dip_width(void);
int p4_pd_tessel_switch_flowHashTypeSelect_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowHashTypeSelect_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowHashTypeSelect_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table newFlowRateLimit (0x0100001f), exact ==== */

/* Key of 9 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_newFlowRateLimit_match_spec {
  uint8_t ingMd_protocol; /* 8 bits */
  uint8_t flowMgmt_present; /* 1 bit */
} p4_pd_tessel_switch_newFlowRateLimit_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_newFlowRateLimit_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_table_add_with_newFlowRateLimitAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *match_spec,
    const p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_table_modify_with_newFlowRateLimitAction(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_table_modify_with_newFlowRateLimitAction_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *match_spec,
    const p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_set_default_action_newFlowRateLimitAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_newFlowRateLimitAction_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_newFlowRateLimit_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_newFlowRateLimit_match_spec_schema(void);
int p4_pd_tessel_switch_newFlowRateLimit_schema(char *buffer);
int p4_pd_tessel_switch_newFlowRateLimit_match_spec_value(
    const p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_newFlowRateLimit_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_newFlowRateLimit_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *match_spec);
bool p4_pd_tessel_switch_newFlowRateLimit_match_specs_are_equal(
    const p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *a,
    const p4_pd_tessel_switch_newFlowRateLimit_match_spec_t *b);
uint32_t p4_pd_tessel_switch_newFlowRateLimit_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_newFlowRateLimit_flowMgmt_present_width(void);
int p4_pd_tessel_switch_newFlowRateLimit_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_newFlowRateLimit_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_newFlowRateLimit_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowDigestGeneration (0x01000021), ternary ==== */

/* Key of 19 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_flowDigestGeneration_match_spec {
  uint8_t flowMgmt_newFlow; /* 1 bit */
  uint8_t flowMgmt_newFlow_mask; /* set bits take part */
  uint8_t flowMgmt_recircNeeded; /* 1 bit */
  uint8_t flowMgmt_recircNeeded_mask; /* set bits take part */
  uint8_t ingMd_protocol; /* 8 bits */
  uint8_t ingMd_protocol_mask; /* set bits take part */
  uint8_t flowMgmt_finRstDigestEnabled; /* 1 bit */
  uint8_t flowMgmt_finRstDigestEnabled_mask; /* set bits take part */
  uint8_t ingMd_tcpFlags; /* 8 bits */
  uint8_t ingMd_tcpFlags_mask; /* set bits take part */
} p4_pd_tessel_switch_flowDigestGeneration_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowDigestGeneration_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_table_add_with_flowDigestGenerate(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_table_modify_with_flowDigestGenerate(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_table_modify_with_flowDigestGenerate_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_set_default_action_flowDigestGenerate(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowDigestGeneration_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_flowDigestGeneration_match_spec_schema(void);
int p4_pd_tessel_switch_flowDigestGeneration_schema(char *buffer);
int p4_pd_tessel_switch_flowDigestGeneration_match_spec_value(
    const p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_flowDigestGeneration_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowDigestGeneration_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *match_spec);
bool p4_pd_tessel_switch_flowDigestGeneration_match_specs_are_equal(
    const p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *a,
    const p4_pd_tessel_switch_flowDigestGeneration_match_spec_t *b);
uint32_t p4_pd_tessel_switch_flowDigestGeneration_flowMgmt_newFlow_width(void);
uint32_t p4_pd_tessel_switch_flowDigestGeneration_flowMgmt_recircNeeded_width(void);
uint32_t p4_pd_tessel_switch_flowDigestGeneration_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_flowDigestGeneration_flowMgmt_finRstDigestEnabled_width(void);
uint32_t p4_pd_tessel_switch_flowDigestGeneration_ingMd_tcpFlags_width(void);
int p4_pd_tessel_switch_flowDigestGeneration_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowDigestGeneration_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_flowDigestGeneration_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table firewallSrcSegmentLookup (0x01000022), ternary ==== */

/* Key of 26 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec {
  uint16_t phase0_ingVPort; /* 14 bits */
  uint16_t phase0_ingVPort_mask; /* set bits take part */
  uint16_t ingMd_ingL2Domain; /* 12 bits */
  uint16_t ingMd_ingL2Domain_mask; /* set bits take part */
} p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_firewallSrcSegmentLookup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_table_add_with_setSrcSegment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_table_modify_with_setSrcSegment(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_table_modify_with_setSrcSegment_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_set_default_action_setSrcSegment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_get_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    bool read_from_hardware, p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *match_spec,
    uint32_t *priority, char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_firewallSrcSegmentLookup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_schema(void);
int p4_pd_tessel_switch_firewallSrcSegmentLookup_schema(char *buffer);
int p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_value(
    const p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_firewallSrcSegmentLookup_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_firewallSrcSegmentLookup_match_specs_are_equal(
    const p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *a,
    const p4_pd_tessel_switch_firewallSrcSegmentLookup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_firewallSrcSegmentLookup_phase0_ingVPort_width(void);
uint32_t p4_pd_tessel_switch_firewallSrcSegmentLookup_ingMd_ingL2Domain_width(void);
int p4_pd_tessel_switch_firewallSrcSegmentLookup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_firewallSrcSegmentLookup_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_firewallSrcSegmentLookup_plcmt_data_eq_to_hw(
    p4_pd_session_handle_t session, uint8_t device, uint32_t table_handle,
    p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table firewallIpSrcSegmentLookup (0x01000023), ternary ==== */

/* Key of 40 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec {
  uint32_t ingIpv4_sip; /* 32 bits */
  uint32_t ingIpv4_sip_mask; /* set bits take part */
  uint8_t l3Info_vrfId; /* 8 bits */
  uint8_t l3Info_vrfId_mask; /* set bits take part */
} p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_get_mat_table_handle(
    uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_firewallIpSrcSegmentLookup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_table_add_with_setSrcSegment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *match_spec,
    uint32_t priority, const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_table_modify_with_setSrcSegment(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_table_modify_with_setSrcSegment_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *match_spec,
    uint32_t priority, const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *match_spec,
    uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_set_default_action_setSrcSegment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setSrcSegment_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_get_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    bool read_from_hardware,
    p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_schema(void);
int p4_pd_tessel_switch_firewallIpSrcSegmentLookup_schema(char *buffer);
int p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_value(
    const p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_firewallIpSrcSegmentLookup_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_specs_are_equal(
    const p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *a,
    const p4_pd_tessel_switch_firewallIpSrcSegmentLookup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_ingIpv4_sip_width(void);
uint32_t p4_pd_tessel_switch_firewallIpSrcSegmentLookup_l3Info_vrfId_width(void);
int p4_pd_tessel_switch_firewallIpSrcSegmentLookup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_firewallIpSrcSegmentLookup_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_firewallIpSrcSegmentLookup_plcmt_data_eq_to_hw(
    p4_pd_session_handle_t session, uint8_t device, uint32_t table_handle,
    p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table firewallDstSegmentLookup (0x01000024), ternary ==== */

/* Key of 32 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec {
  uint16_t egrMd_egrL2Domain; /* 12 bits */
  uint16_t egrMd_egrL2Domain_mask; /* set bits take part */
  uint32_t egrMd_egrL2AintfUnresolved; /* 20 bits */
  uint32_t egrMd_egrL2AintfUnresolved_mask; /* set bits take part */
} p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_firewallDstSegmentLookup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_table_add_with_setDstSegment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_table_modify_with_setDstSegment(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_table_modify_with_setDstSegment_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_set_default_action_setDstSegment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_get_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    bool read_from_hardware, p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *match_spec,
    uint32_t *priority, char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_firewallDstSegmentLookup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_schema(void);
int p4_pd_tessel_switch_firewallDstSegmentLookup_schema(char *buffer);
int p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_value(
    const p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_firewallDstSegmentLookup_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_firewallDstSegmentLookup_match_specs_are_equal(
    const p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *a,
    const p4_pd_tessel_switch_firewallDstSegmentLookup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_firewallDstSegmentLookup_egrMd_egrL2Domain_width(void);
uint32_t p4_pd_tessel_switch_firewallDstSegmentLookup_egrMd_egrL2AintfUnresolved_width(void);
int p4_pd_tessel_switch_firewallDstSegmentLookup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_firewallDstSegmentLookup_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_firewallDstSegmentLookup_plcmt_data_eq_to_hw(
    p4_pd_session_handle_t session, uint8_t device, uint32_t table_handle,
    p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table firewallIpDstSegmentLookup (0x01000025), ternary ==== */

/* Key of 40 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec {
  uint32_t ingIpv4_dip; /* 32 bits */
  uint32_t ingIpv4_dip_mask; /* set bits take part */
  uint8_t l3Info_vrfId; /* 8 bits */
  uint8_t l3Info_vrfId_mask; /* set bits take part */
} p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_get_mat_table_handle(
    uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_firewallIpDstSegmentLookup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_table_add_with_setDstSegment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *match_spec,
    uint32_t priority, const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_table_modify_with_setDstSegment(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_table_modify_with_setDstSegment_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *match_spec,
    uint32_t priority, const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *match_spec,
    uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_set_default_action_setDstSegment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setDstSegment_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_get_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    bool read_from_hardware,
    p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_schema(void);
int p4_pd_tessel_switch_firewallIpDstSegmentLookup_schema(char *buffer);
int p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_value(
    const p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_firewallIpDstSegmentLookup_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_specs_are_equal(
    const p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *a,
    const p4_pd_tessel_switch_firewallIpDstSegmentLookup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_ingIpv4_dip_width(void);
uint32_t p4_pd_tessel_switch_firewallIpDstSegmentLookup_l3Info_vrfId_width(void);
int p4_pd_tessel_switch_firewallIpDstSegmentLookup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_firewallIpDstSegmentLookup_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_firewallIpDstSegmentLookup_plcmt_data_eq_to_hw(
    p4_pd_session_handle_t session, uint8_t device, uint32_t table_handle,
    p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table firewallPolicy (0x01000026), ternary ==== */

/* Key of 138 bits in 19 bytes. */
typedef struct p4_pd_tessel_switch_firewallPolicy_match_spec {
  uint8_t fwMd_srcSegment; /* 8 bits */
  uint8_t fwMd_srcSegment_mask; /* set bits take part */
  uint8_t fwMd_dstSegment; /* 8 bits */
  uint8_t fwMd_dstSegment_mask; /* set bits take part */
  uint8_t flowMgmt_present; /* 1 bit */
  uint8_t flowMgmt_present_mask; /* set bits take part */
  uint32_t ingIpv4_sip; /* 32 bits */
  uint32_t ingIpv4_sip_mask; /* set bits take part */
  uint32_t ingIpv4_dip; /* 32 bits */
  uint32_t ingIpv4_dip_mask; /* set bits take part */
  uint8_t ingMd_protocol; /* 8 bits */
  uint8_t ingMd_protocol_mask; /* set bits take part */
  uint16_t ingMd_srcPort; /* 16 bits */
  uint16_t ingMd_srcPort_mask; /* set bits take part */
  uint16_t ingMd_dstPort; /* 16 bits */
  uint16_t ingMd_dstPort_mask; /* set bits take part */
  uint8_t ingMd_tcpFlags; /* 8 bits */
  uint8_t ingMd_tcpFlags_mask; /* set bits take part */
  uint8_t l3Info_vrfId; /* 8 bits */
  uint8_t l3Info_vrfId_mask; /* set bits take part */
  uint8_t egrMd_routed; /* 1 bit */
  uint8_t egrMd_routed_mask; /* set bits take part */
} p4_pd_tessel_switch_firewallPolicy_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_firewallPolicy_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_add_with_setFirewallPolicyPermit(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_modify_with_setFirewallPolicyPermit(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_modify_with_setFirewallPolicyPermit_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_add_with_setFirewallPolicyPermitAndOpenFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_modify_with_setFirewallPolicyPermitAndOpenFlow(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_modify_with_setFirewallPolicyPermitAndOpenFlow_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_add_with_setFirewallPolicyDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_modify_with_setFirewallPolicyDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_modify_with_setFirewallPolicyDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_set_default_action_setFirewallPolicyPermit(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setFirewallPolicyPermit_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_set_default_action_setFirewallPolicyPermitAndOpenFlow(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setFirewallPolicyPermitAndOpenFlow_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_set_default_action_setFirewallPolicyDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setFirewallPolicyDrop_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_firewallPolicy_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_firewallPolicy_match_spec_schema(void);
int p4_pd_tessel_switch_firewallPolicy_schema(char *buffer);
int p4_pd_tessel_switch_firewallPolicy_match_spec_value(
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_firewallPolicy_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_firewallPolicy_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *match_spec);
bool p4_pd_tessel_switch_firewallPolicy_match_specs_are_equal(
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *a,
    const p4_pd_tessel_switch_firewallPolicy_match_spec_t *b);
uint32_t p4_pd_tessel_switch_firewallPolicy_fwMd_srcSegment_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_fwMd_dstSegment_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_flowMgmt_present_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_ingIpv4_sip_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_ingIpv4_dip_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_ingMd_srcPort_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_ingMd_dstPort_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_ingMd_tcpFlags_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_l3Info_vrfId_width(void);
uint32_t p4_pd_tessel_switch_firewallPolicy_egrMd_routed_width(void);
int p4_pd_tessel_switch_firewallPolicy_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_firewallPolicy_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_firewallPolicy_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ipv4ShortMaskLpm (0x0100002c), longest prefix, ages its entries ==== */

/* Key of 40 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec {
  uint8_t l3Info_vrfId; /* 8 bits */
  uint32_t ingIpv4_dip; /* 32 bits */
  uint16_t ingIpv4_dip_prefix_length; /* 0 to 32 */
} p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ipv4ShortMaskLpm_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop2(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop2(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop2_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop3(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop3(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop3_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setEcmp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEcmp_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setEcmp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setEcmp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setEcmp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEcmp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_ipv4ShortMaskLpmMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_ipv4ShortMaskLpmMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_ipv4ShortMaskLpmMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_set_default_action_ipv4ShortMaskLpmMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_idle_tmo_enable(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_idle_time_params_t params);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_idle_tmo_disable(
    p4_pd_session_handle_t session, uint8_t device);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_idle_register_tmo_cb(
    p4_pd_session_handle_t session, uint8_t device, pipe_mgr_idle_cb_t callback, void *client_data);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_idle_params_get(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_idle_time_params_t *params);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_set_ttl(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t ttl);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_ttl(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t *ttl);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_update_hit_state(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, uint32_t hit_state);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_hit_state(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t *hit_state);
p4_pd_status_t p4_pd_tessel_switch_ipv4ShortMaskLpm_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_schema(void);
int p4_pd_tessel_switch_ipv4ShortMaskLpm_schema(char *buffer);
int p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_value(
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ipv4ShortMaskLpm_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ipv4ShortMaskLpm_match_specs_are_equal(
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *a,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ipv4ShortMaskLpm_l3Info_vrfId_width(void);
uint32_t p4_pd_tessel_switch_ipv4ShortMaskLpm_ingIpv4_dip_width(void);
int p4_pd_tessel_switch_ipv4ShortMaskLpm_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ipv4ShortMaskLpm_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ipv4ShortMaskLpm_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ipv6ShortMaskLpm (0x0100002d), longest prefix, ages its entries ==== */

/* Key of 136 bits in 17 bytes. */
typedef struct p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec {
  uint8_t l3Info_vrfId; /* 8 bits */
  uint8_t ingIpv6_dip[16]; /* 128 bits */
  uint16_t ingIpv6_dip_prefix_length; /* 0 to 128 */
} p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ipv6ShortMaskLpm_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_add_with_setNextHop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_add_with_setNextHop2(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop2(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop2_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop2_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_add_with_setNextHop3(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop3(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setNextHop3_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop3_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_add_with_setEcmp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEcmp_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setEcmp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setEcmp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setEcmp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEcmp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_add_with_setFibMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setFibMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_modify_with_setFibMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_set_default_action_setFibMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_idle_tmo_enable(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_idle_time_params_t params);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_idle_tmo_disable(
    p4_pd_session_handle_t session, uint8_t device);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_idle_register_tmo_cb(
    p4_pd_session_handle_t session, uint8_t device, pipe_mgr_idle_cb_t callback, void *client_data);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_idle_params_get(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_idle_time_params_t *params);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_set_ttl(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t ttl);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_ttl(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t *ttl);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_update_hit_state(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, uint32_t hit_state);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_hit_state(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t *hit_state);
p4_pd_status_t p4_pd_tessel_switch_ipv6ShortMaskLpm_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_schema(void);
int p4_pd_tessel_switch_ipv6ShortMaskLpm_schema(char *buffer);
int p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_value(
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ipv6ShortMaskLpm_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ipv6ShortMaskLpm_match_specs_are_equal(
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *a,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ipv6ShortMaskLpm_l3Info_vrfId_width(void);
uint32_t p4_pd_tessel_switch_ipv6ShortMaskLpm_ingIpv6_dip_width(void);
int p4_pd_tessel_switch_ipv6ShortMaskLpm_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ipv6ShortMaskLpm_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ipv6ShortMaskLpm_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table switchToCpu (0x0100002e), exact ==== */

/* Key of 7 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_switchToCpu_match_spec {
  uint8_t l3Info_ipRouting; /* 4 bits, key bits 0x1 */
  uint8_t ingMd_v4V6Valid; /* 3 bits */
} p4_pd_tessel_switch_switchToCpu_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_switchToCpu_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_switchToCpu_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_table_add_with_setSwitchToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_switchToCpu_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setSwitchToCpu_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_table_modify_with_setSwitchToCpu(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setSwitchToCpu_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_table_modify_with_setSwitchToCpu_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_switchToCpu_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setSwitchToCpu_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_switchToCpu_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_switchToCpu_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_set_default_action_setSwitchToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setSwitchToCpu_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_switchToCpu_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_switchToCpu_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_switchToCpu_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_switchToCpu_match_spec_schema(void);
int p4_pd_tessel_switch_switchToCpu_schema(char *buffer);
int p4_pd_tessel_switch_switchToCpu_match_spec_value(
    const p4_pd_tessel_switch_switchToCpu_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_switchToCpu_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_switchToCpu_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_switchToCpu_match_spec_t *match_spec);
bool p4_pd_tessel_switch_switchToCpu_match_specs_are_equal(
    const p4_pd_tessel_switch_switchToCpu_match_spec_t *a,
    const p4_pd_tessel_switch_switchToCpu_match_spec_t *b);
uint32_t p4_pd_tessel_switch_switchToCpu_l3Info_ipRouting_width(void);
uint32_t p4_pd_tessel_switch_switchToCpu_ingMd_v4V6Valid_width(void);
int p4_pd_tessel_switch_switchToCpu_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_switchToCpu_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_switchToCpu_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ecmpGroup (0x0100002f), exact, bound to ecmpMemberActionProfile ==== */

/* Key of 14 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_ecmpGroup_match_spec {
  uint16_t l3_ecmpGroup; /* 14 bits, key bits 0xff */
} p4_pd_tessel_switch_ecmpGroup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ecmpGroup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    bool *has_member, bool *has_group, p4_pd_group_handle_t *group, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_add_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec,
    p4_pd_member_handle_t member, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_modify_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_modify_entry_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_set_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_member_handle_t member, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_add_entry_with_selector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec, p4_pd_group_handle_t group,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_modify_entry_with_selector(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_modify_entry_with_selector_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec, p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_set_default_entry_with_selector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t group,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec, bool *has_member, bool *has_group,
    p4_pd_group_handle_t *group, p4_pd_member_handle_t *member, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ecmpGroup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec,
    p4_pd_member_handle_t *member, p4_pd_group_handle_t *group, bool *has_member, bool *has_group,
    bool *no_key);
const char *p4_pd_tessel_switch_ecmpGroup_match_spec_schema(void);
int p4_pd_tessel_switch_ecmpGroup_schema(char *buffer);
int p4_pd_tessel_switch_ecmpGroup_match_spec_value(
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ecmpGroup_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ecmpGroup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ecmpGroup_match_specs_are_equal(
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *a,
    const p4_pd_tessel_switch_ecmpGroup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ecmpGroup_l3_ecmpGroup_width(void);
int p4_pd_tessel_switch_ecmpGroup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ecmpGroup_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ecmpGroup_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table reservedNextHop (0x01000031), exact ==== */

/* Key of 14 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_reservedNextHop_match_spec {
  uint32_t l3_nextHop; /* 14 bits, key bits 0xf */
} p4_pd_tessel_switch_reservedNextHop_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_reservedNextHop_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_table_add_with_setNextHopToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_reservedNextHop_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHopToCpu_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_table_modify_with_setNextHopToCpu(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNextHopToCpu_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_table_modify_with_setNextHopToCpu_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_reservedNextHop_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHopToCpu_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_reservedNextHop_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_reservedNextHop_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_set_default_action_setNextHopToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setNextHopToCpu_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_reservedNextHop_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_reservedNextHop_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_reservedNextHop_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_reservedNextHop_match_spec_schema(void);
int p4_pd_tessel_switch_reservedNextHop_schema(char *buffer);
int p4_pd_tessel_switch_reservedNextHop_match_spec_value(
    const p4_pd_tessel_switch_reservedNextHop_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_reservedNextHop_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_reservedNextHop_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_reservedNextHop_match_spec_t *match_spec);
bool p4_pd_tessel_switch_reservedNextHop_match_specs_are_equal(
    const p4_pd_tessel_switch_reservedNextHop_match_spec_t *a,
    const p4_pd_tessel_switch_reservedNextHop_match_spec_t *b);
uint32_t p4_pd_tessel_switch_reservedNextHop_l3_nextHop_width(void);
int p4_pd_tessel_switch_reservedNextHop_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_reservedNextHop_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_reservedNextHop_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table nextHop (0x01000032), exact ==== */

/* Key of 14 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_nextHop_match_spec {
  uint32_t l3_nextHop; /* 14 bits */
} p4_pd_tessel_switch_nextHop_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_nextHop_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_nextHop_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_nextHop_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_nextHop_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_nextHop_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_nextHop_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_nextHop_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_nextHop_table_add_with_setNextHopDetails(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nextHop_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nextHop_table_modify_with_setNextHopDetails(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_nextHop_table_modify_with_setNextHopDetails_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nextHop_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_nextHop_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_nextHop_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nextHop_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_nextHop_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_nextHop_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nextHop_set_default_action_setNextHopDetails(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nextHop_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nextHop_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_nextHop_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_nextHop_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_nextHop_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nextHop_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_nextHop_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_nextHop_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_nextHop_match_spec_schema(void);
int p4_pd_tessel_switch_nextHop_schema(char *buffer);
int p4_pd_tessel_switch_nextHop_match_spec_value(
    const p4_pd_tessel_switch_nextHop_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_nextHop_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_nextHop_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_nextHop_match_spec_t *match_spec);
bool p4_pd_tessel_switch_nextHop_match_specs_are_equal(
    const p4_pd_tessel_switch_nextHop_match_spec_t *a,
    const p4_pd_tessel_switch_nextHop_match_spec_t *b);
uint32_t p4_pd_tessel_switch_nextHop_l3_nextHop_width(void);
int p4_pd_tessel_switch_nextHop_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_nextHop_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_nextHop_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table routerNextHop (0x01000033), exact ==== */

/* Key of 14 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_routerNextHop_match_spec {
  uint32_t l3_nextHop; /* 14 bits */
} p4_pd_tessel_switch_routerNextHop_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_routerNextHop_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_routerNextHop_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_table_add_with_setRouterNextHopDetails(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_routerNextHop_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_table_modify_with_setRouterNextHopDetails(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_table_modify_with_setRouterNextHopDetails_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_routerNextHop_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_routerNextHop_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_routerNextHop_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_set_default_action_setRouterNextHopDetails(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setRouterNextHopDetails_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_routerNextHop_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_routerNextHop_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_routerNextHop_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_routerNextHop_match_spec_schema(void);
int p4_pd_tessel_switch_routerNextHop_schema(char *buffer);
int p4_pd_tessel_switch_routerNextHop_match_spec_value(
    const p4_pd_tessel_switch_routerNextHop_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_routerNextHop_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_routerNextHop_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_routerNextHop_match_spec_t *match_spec);
bool p4_pd_tessel_switch_routerNextHop_match_specs_are_equal(
    const p4_pd_tessel_switch_routerNextHop_match_spec_t *a,
    const p4_pd_tessel_switch_routerNextHop_match_spec_t *b);
uint32_t p4_pd_tessel_switch_routerNextHop_l3_nextHop_width(void);
int p4_pd_tessel_switch_routerNextHop_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_routerNextHop_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_routerNextHop_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table hashComputeInnerIpHdr (0x01000038), exact ==== */

/* Key of 2 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec {
  uint8_t innerIpv4Hdr_valid; /* 1 bit */
  uint8_t innerIpv6Hdr_valid; /* 1 bit */
} p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_hashComputeInnerIpHdr_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_add_with_hashComputeInnerIpv4HdrAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_modify_with_hashComputeInnerIpv4HdrAction(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_modify_with_hashComputeInnerIpv4HdrAction_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_add_with_hashComputeInnerIpv6HdrAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_modify_with_hashComputeInnerIpv6HdrAction(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_modify_with_hashComputeInnerIpv6HdrAction_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerIpHdr_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_schema(void);
int p4_pd_tessel_switch_hashComputeInnerIpHdr_schema(char *buffer);
int p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_value(
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_hashComputeInnerIpHdr_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *match_spec);
bool p4_pd_tessel_switch_hashComputeInnerIpHdr_match_specs_are_equal(
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *a,
    const p4_pd_tessel_switch_hashComputeInnerIpHdr_match_spec_t *b);
uint32_t p4_pd_tessel_switch_hashComputeInnerIpHdr_innerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_hashComputeInnerIpHdr_innerIpv6Hdr_width(void);
int p4_pd_tessel_switch_hashComputeInnerIpHdr_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_hashComputeInnerIpHdr_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_hashComputeInnerIpHdr_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table lagHashSelection (0x0100003d), ternary ==== */

/* Key of 8 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_lagHashSelection_match_spec {
  uint8_t innerL4PortHdr_valid; /* 1 bit */
  uint8_t innerL4PortHdr_valid_mask; /* set bits take part */
  uint8_t innerIpv4Hdr_valid; /* 1 bit */
  uint8_t innerIpv4Hdr_valid_mask; /* set bits take part */
  uint8_t innerIpv6Hdr_valid; /* 1 bit */
  uint8_t innerIpv6Hdr_valid_mask; /* set bits take part */
  uint8_t innerEthHdr_valid; /* 1 bit */
  uint8_t innerEthHdr_valid_mask; /* set bits take part */
  uint8_t l4PortHdr_valid; /* 1 bit */
  uint8_t l4PortHdr_valid_mask; /* set bits take part */
  uint8_t outerIpv4Hdr_valid; /* 1 bit */
  uint8_t outerIpv4Hdr_valid_mask; /* set bits take part */
  uint8_t outerIpv6Hdr_valid; /* 1 bit */
  uint8_t outerIpv6Hdr_valid_mask; /* set bits take part */
  uint8_t outerEthHdr_valid; /* 1 bit */
  uint8_t outerEthHdr_valid_mask; /* set bits take part */
} p4_pd_tessel_switch_lagHashSelection_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_lagHashSelection_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_add_with_setHashValuesLagOuterEthHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterEthHdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterEthHdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_add_with_setHashValuesLagOuterIpHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterIpHdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterIpHdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_add_with_setHashValuesLagOuterL4Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterL4Hdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagOuterL4Hdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_add_with_setHashValuesLagInnerEthHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerEthHdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerEthHdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_add_with_setHashValuesLagInnerIpHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerIpHdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerIpHdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_add_with_setHashValuesLagInnerL4Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerL4Hdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_setHashValuesLagInnerL4Hdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_lagHashSelection_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_lagHashSelection_match_spec_schema(void);
int p4_pd_tessel_switch_lagHashSelection_schema(char *buffer);
int p4_pd_tessel_switch_lagHashSelection_match_spec_value(
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_lagHashSelection_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_lagHashSelection_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *match_spec);
bool p4_pd_tessel_switch_lagHashSelection_match_specs_are_equal(
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *a,
    const p4_pd_tessel_switch_lagHashSelection_match_spec_t *b);
uint32_t p4_pd_tessel_switch_lagHashSelection_innerL4PortHdr_width(void);
uint32_t p4_pd_tessel_switch_lagHashSelection_innerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_lagHashSelection_innerIpv6Hdr_width(void);
uint32_t p4_pd_tessel_switch_lagHashSelection_innerEthHdr_width(void);
uint32_t p4_pd_tessel_switch_lagHashSelection_l4PortHdr_width(void);
uint32_t p4_pd_tessel_switch_lagHashSelection_outerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_lagHashSelection_outerIpv6Hdr_width(void);
uint32_t p4_pd_tessel_switch_lagHashSelection_outerEthHdr_width(void);
int p4_pd_tessel_switch_lagHashSelection_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_lagHashSelection_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_lagHashSelection_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ecmpHashSelection (0x0100003e), ternary ==== */

/* Key of 7 bits in 7 bytes. */
typedef struct p4_pd_tessel_switch_ecmpHashSelection_match_spec {
  uint8_t innerL4PortHdr_valid; /* 1 bit */
  uint8_t innerL4PortHdr_valid_mask; /* set bits take part */
  uint8_t innerIpv4Hdr_valid; /* 1 bit */
  uint8_t innerIpv4Hdr_valid_mask; /* set bits take part */
  uint8_t innerIpv6Hdr_valid; /* 1 bit */
  uint8_t innerIpv6Hdr_valid_mask; /* set bits take part */
  uint8_t innerEthHdr_valid; /* 1 bit */
  uint8_t innerEthHdr_valid_mask; /* set bits take part */
  uint8_t l4PortHdr_valid; /* 1 bit */
  uint8_t l4PortHdr_valid_mask; /* set bits take part */
  uint8_t outerIpv6Hdr_valid; /* 1 bit */
  uint8_t outerIpv6Hdr_valid_mask; /* set bits take part */
  uint8_t outerIpv4Hdr_valid; /* 1 bit */
  uint8_t outerIpv4Hdr_valid_mask; /* set bits take part */
} p4_pd_tessel_switch_ecmpHashSelection_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ecmpHashSelection_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpOuterIpHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpOuterIpHdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpOuterIpHdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpOuterL4Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpOuterL4Hdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpOuterL4Hdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpInnerIpHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerIpHdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerIpHdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpInnerL4Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerL4Hdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerL4Hdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_add_with_setHashValuesEcmpInnerEthHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerEthHdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_setHashValuesEcmpInnerEthHdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_set_default_action_setHashValuesEcmpOuterIpHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_set_default_action_setHashValuesEcmpOuterL4Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_set_default_action_setHashValuesEcmpInnerIpHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_set_default_action_setHashValuesEcmpInnerL4Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_set_default_action_setHashValuesEcmpInnerEthHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ecmpHashSelection_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ecmpHashSelection_match_spec_schema(void);
int p4_pd_tessel_switch_ecmpHashSelection_schema(char *buffer);
int p4_pd_tessel_switch_ecmpHashSelection_match_spec_value(
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ecmpHashSelection_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ecmpHashSelection_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ecmpHashSelection_match_specs_are_equal(
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *a,
    const p4_pd_tessel_switch_ecmpHashSelection_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ecmpHashSelection_innerL4PortHdr_width(void);
uint32_t p4_pd_tessel_switch_ecmpHashSelection_innerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_ecmpHashSelection_innerIpv6Hdr_width(void);
uint32_t p4_pd_tessel_switch_ecmpHashSelection_innerEthHdr_width(void);
uint32_t p4_pd_tessel_switch_ecmpHashSelection_l4PortHdr_width(void);
uint32_t p4_pd_tessel_switch_ecmpHashSelection_outerIpv6Hdr_width(void);
uint32_t p4_pd_tessel_switch_ecmpHashSelection_outerIpv4Hdr_width(void);
int p4_pd_tessel_switch_ecmpHashSelection_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ecmpHashSelection_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ecmpHashSelection_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingressPortDropCheck (0x0100003f), ternary ==== */

/* Key of 32 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_ingressPortDropCheck_match_spec {
  uint16_t ig_intr_md_from_parser_aux_ingress_parser_err; /* 16 bits, key bits 0x1000 */
  uint16_t ig_intr_md_from_parser_aux_ingress_parser_err_mask; /* set bits take part */
  uint16_t ig_intr_md_ingress_port; /* 9 bits, key bits 0x7f */
  uint8_t ingMd_illegalDmac; /* 1 bit */
  uint8_t ingMd_illegalDmac_mask; /* set bits take part */
  uint8_t ingMd_illegalSmac; /* 1 bit */
  uint8_t ingMd_illegalSmac_mask; /* set bits take part */
  uint8_t ingMd_invalidTunnel; /* 1 bit */
  uint8_t ingMd_invalidTunnel_mask; /* set bits take part */
  uint8_t parserMd_outerHdrFlags; /* 4 bits, key bits 0x8 */
  uint8_t parserMd_outerHdrFlags_mask; /* set bits take part */
} p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingressPortDropCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_add_with_setDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_modify_with_setDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_modify_with_setDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingressPortDropCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ingressPortDropCheck_match_spec_schema(void);
int p4_pd_tessel_switch_ingressPortDropCheck_schema(char *buffer);
int p4_pd_tessel_switch_ingressPortDropCheck_match_spec_value(
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressPortDropCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingressPortDropCheck_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec);
int p4_pd_tessel_switch_ingressPortDropCheck_match_spec_stringify_for_counter(
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressPortDropCheck_stringify_counter_match_spec(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tessel_switch_ingressPortDropCheck_match_specs_are_equal(
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *a,
    const p4_pd_tessel_switch_ingressPortDropCheck_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ingressPortDropCheck_ig_intr_md_from_parser_aux_ingress_parser_err_width(
    void);
uint32_t p4_pd_tessel_switch_ingressPortDropCheck_ig_intr_md_ingress_port_width(void);
uint32_t p4_pd_tessel_switch_ingressPortDropCheck_ingMd_illegalDmac_width(void);
uint32_t p4_pd_tessel_switch_ingressPortDropCheck_ingMd_illegalSmac_width(void);
uint32_t p4_pd_tessel_switch_ingressPortDropCheck_ingMd_invalidTunnel_width(void);
uint32_t p4_pd_tessel_switch_ingressPortDropCheck_parserMd_outerHdrFlags_width(void);
int p4_pd_tessel_switch_ingressPortDropCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingressPortDropCheck_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_ingressPortDropCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2StaticMacSrcAddrDrop (0x01000040), exact ==== */

/* Key of 60 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec {
  uint32_t ingMd_smacOui; /* 24 bits */
  uint32_t ingMd_smacStation; /* 24 bits */
  uint16_t ingMd_ingL2Domain; /* 12 bits */
} p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_add_with_setDropSmac(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_modify_with_setDropSmac(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_modify_with_setDropSmac_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_schema(void);
int p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_schema(char *buffer);
int p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_value(
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_specs_are_equal(
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *a,
    const p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_ingMd_smacOui_width(void);
uint32_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_ingMd_smacStation_width(void);
uint32_t p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_ingMd_ingL2Domain_width(void);
int p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_l2StaticMacSrcAddrDrop_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2LearningLookup (0x01000041), exact, ages its entries ==== */

/* Key of 80 bits in 11 bytes. */
typedef struct p4_pd_tessel_switch_l2LearningLookup_match_spec {
  uint32_t ingMd_smacOui; /* 24 bits */
  uint32_t ingMd_smacStation; /* 24 bits */
  uint16_t ingMd_ingL2Domain; /* 12 bits */
  uint32_t ingMd_ingL2Aintf; /* 20 bits */
} p4_pd_tessel_switch_l2LearningLookup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2LearningLookup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_add_with_noOp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_modify_with_noOp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_modify_with_noOp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_add_with_setL2LearningLookupMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_modify_with_setL2LearningLookupMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_modify_with_setL2LearningLookupMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_set_default_action_setL2LearningLookupMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_idle_tmo_enable(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_idle_time_params_t params);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_idle_tmo_disable(
    p4_pd_session_handle_t session, uint8_t device);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_idle_register_tmo_cb(
    p4_pd_session_handle_t session, uint8_t device, pipe_mgr_idle_cb_t callback, void *client_data);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_idle_params_get(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_idle_time_params_t *params);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_set_ttl(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t ttl);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_ttl(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t *ttl);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_update_hit_state(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, uint32_t hit_state);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_hit_state(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, uint32_t *hit_state);
p4_pd_status_t p4_pd_tessel_switch_l2LearningLookup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2LearningLookup_match_spec_schema(void);
int p4_pd_tessel_switch_l2LearningLookup_schema(char *buffer);
int p4_pd_tessel_switch_l2LearningLookup_match_spec_value(
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2LearningLookup_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2LearningLookup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2LearningLookup_match_specs_are_equal(
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *a,
    const p4_pd_tessel_switch_l2LearningLookup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2LearningLookup_ingMd_smacOui_width(void);
uint32_t p4_pd_tessel_switch_l2LearningLookup_ingMd_smacStation_width(void);
uint32_t p4_pd_tessel_switch_l2LearningLookup_ingMd_ingL2Domain_width(void);
uint32_t p4_pd_tessel_switch_l2LearningLookup_ingMd_ingL2Aintf_width(void);
int p4_pd_tessel_switch_l2LearningLookup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2LearningLookup_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2LearningLookup_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table vlanProperties (0x01000042), exact ==== */

/* Key of 12 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_vlanProperties_match_spec {
  uint16_t ingMd_ingL2Domain; /* 12 bits */
} p4_pd_tessel_switch_vlanProperties_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_vlanProperties_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_vlanProperties_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_table_add_with_setVlanProperties(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanProperties_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setVlanProperties_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_table_modify_with_setVlanProperties(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setVlanProperties_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_table_modify_with_setVlanProperties_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanProperties_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setVlanProperties_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanProperties_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanProperties_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_set_default_action_setVlanProperties(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setVlanProperties_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_vlanProperties_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_vlanProperties_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_vlanProperties_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_vlanProperties_match_spec_schema(void);
int p4_pd_tessel_switch_vlanProperties_schema(char *buffer);
int p4_pd_tessel_switch_vlanProperties_match_spec_value(
    const p4_pd_tessel_switch_vlanProperties_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_vlanProperties_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_vlanProperties_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_vlanProperties_match_spec_t *match_spec);
bool p4_pd_tessel_switch_vlanProperties_match_specs_are_equal(
    const p4_pd_tessel_switch_vlanProperties_match_spec_t *a,
    const p4_pd_tessel_switch_vlanProperties_match_spec_t *b);
uint32_t p4_pd_tessel_switch_vlanProperties_ingMd_ingL2Domain_width(void);
int p4_pd_tessel_switch_vlanProperties_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_vlanProperties_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_vlanProperties_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table vrrpMacCheck (0x01000043), exact ==== */

/* Key of 60 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_vrrpMacCheck_match_spec {
  uint16_t ingMd_ingL3Aintf; /* 12 bits */
  uint32_t ingMd_dmacOui; /* 24 bits */
  uint32_t ingMd_dmacStation; /* 24 bits */
} p4_pd_tessel_switch_vrrpMacCheck_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_vrrpMacCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_table_add_with_setIngL3DmacValid(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_table_modify_with_setIngL3DmacValid(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_table_modify_with_setIngL3DmacValid_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_set_default_action_setIngL3DmacValid(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_vrrpMacCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_vrrpMacCheck_match_spec_schema(void);
int p4_pd_tessel_switch_vrrpMacCheck_schema(char *buffer);
int p4_pd_tessel_switch_vrrpMacCheck_match_spec_value(
    const p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_vrrpMacCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_vrrpMacCheck_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *match_spec);
bool p4_pd_tessel_switch_vrrpMacCheck_match_specs_are_equal(
    const p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *a,
    const p4_pd_tessel_switch_vrrpMacCheck_match_spec_t *b);
uint32_t p4_pd_tessel_switch_vrrpMacCheck_ingMd_ingL3Aintf_width(void);
uint32_t p4_pd_tessel_switch_vrrpMacCheck_ingMd_dmacOui_width(void);
uint32_t p4_pd_tessel_switch_vrrpMacCheck_ingMd_dmacStation_width(void);
int p4_pd_tessel_switch_vrrpMacCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_vrrpMacCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_vrrpMacCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l3DmacCheck (0x01000044), ternary ==== */

/* Key of 65 bits in 10 bytes. */
typedef struct p4_pd_tessel_switch_l3DmacCheck_match_spec {
  uint16_t ingMd_ingL3Aintf; /* 12 bits */
  uint16_t ingMd_ingL3Aintf_mask; /* set bits take part */
  uint32_t ingMd_dmacOui; /* 24 bits */
  uint32_t ingMd_dmacOui_mask; /* set bits take part */
  uint32_t ingMd_dmacStation; /* 24 bits */
  uint32_t ingMd_dmacStation_mask; /* set bits take part */
  uint8_t ingMd_v4V6Valid; /* 3 bits */
  uint8_t ingMd_v4V6Valid_mask; /* set bits take part */
  uint8_t phase0_portType; /* 2 bits */
  uint8_t phase0_portType_mask; /* set bits take part */
} p4_pd_tessel_switch_l3DmacCheck_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l3DmacCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_add_with_ignoreIngL3DmacValid(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_modify_with_ignoreIngL3DmacValid(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_modify_with_ignoreIngL3DmacValid_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_add_with_setIngL3DmacValid(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_modify_with_setIngL3DmacValid(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_modify_with_setIngL3DmacValid_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l3DmacCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l3DmacCheck_match_spec_schema(void);
int p4_pd_tessel_switch_l3DmacCheck_schema(char *buffer);
int p4_pd_tessel_switch_l3DmacCheck_match_spec_value(
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l3DmacCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l3DmacCheck_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l3DmacCheck_match_specs_are_equal(
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *a,
    const p4_pd_tessel_switch_l3DmacCheck_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l3DmacCheck_ingMd_ingL3Aintf_width(void);
uint32_t p4_pd_tessel_switch_l3DmacCheck_ingMd_dmacOui_width(void);
uint32_t p4_pd_tessel_switch_l3DmacCheck_ingMd_dmacStation_width(void);
uint32_t p4_pd_tessel_switch_l3DmacCheck_ingMd_v4V6Valid_width(void);
uint32_t p4_pd_tessel_switch_l3DmacCheck_phase0_portType_width(void);
int p4_pd_tessel_switch_l3DmacCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l3DmacCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l3DmacCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table learningDigestGeneration (0x01000045), ternary ==== */

/* Key of 35 bits in 10 bytes. */
typedef struct p4_pd_tessel_switch_learningDigestGeneration_match_spec {
  uint8_t learningDigestMd_applicationId; /* 2 bits */
  uint8_t ingMd_invalidTunnel; /* 1 bit */
  uint8_t ingMd_invalidTunnel_mask; /* set bits take part */
  uint16_t ig_intr_md_ingress_port; /* 9 bits */
  uint16_t ig_intr_md_ingress_port_mask; /* set bits take part */
  uint32_t ingMd_ingL2Aintf; /* 20 bits, key bits 0x80000 */
  uint32_t ingMd_ingL2Aintf_mask; /* set bits take part */
  uint8_t ingVlanStpCheck_stpBlocked; /* 1 bit */
  uint8_t ingVlanStpCheck_stpBlocked_mask; /* set bits take part */
  uint8_t ingVlanStpCheck_invalidVlan; /* 1 bit */
  uint8_t ingVlanStpCheck_invalidVlan_mask; /* set bits take part */
  uint8_t ingMd_l2Control; /* 1 bit */
  uint8_t ingMd_l2Control_mask; /* set bits take part */
} p4_pd_tessel_switch_learningDigestGeneration_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_learningDigestGeneration_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_add_with_generateMacLearningDigest(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_modify_with_generateMacLearningDigest(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_modify_with_generateMacLearningDigest_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_add_with_dot1xTrap(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_modify_with_dot1xTrap(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_modify_with_dot1xTrap_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_add_with_dot1xDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_modify_with_dot1xDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_modify_with_dot1xDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_add_with_resetApplicationId(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_modify_with_resetApplicationId(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_modify_with_resetApplicationId_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_set_default_action_resetApplicationId(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_get_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    bool read_from_hardware, p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec,
    uint32_t *priority, char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_learningDigestGeneration_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_learningDigestGeneration_match_spec_schema(void);
int p4_pd_tessel_switch_learningDigestGeneration_schema(char *buffer);
int p4_pd_tessel_switch_learningDigestGeneration_match_spec_value(
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_learningDigestGeneration_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_learningDigestGeneration_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *match_spec);
bool p4_pd_tessel_switch_learningDigestGeneration_match_specs_are_equal(
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *a,
    const p4_pd_tessel_switch_learningDigestGeneration_match_spec_t *b);
uint32_t p4_pd_tessel_switch_learningDigestGeneration_learningDigestMd_applicationId_width(void);
uint32_t p4_pd_tessel_switch_learningDigestGeneration_ingMd_invalidTunnel_width(void);
uint32_t p4_pd_tessel_switch_learningDigestGeneration_ig_intr_md_ingress_port_width(void);
uint32_t p4_pd_tessel_switch_learningDigestGeneration_ingMd_ingL2Aintf_width(void);
uint32_t p4_pd_tessel_switch_learningDigestGeneration_ingVlanStpCheck_stpBlocked_width(void);
uint32_t p4_pd_tessel_switch_learningDigestGeneration_ingVlanStpCheck_invalidVlan_width(void);
uint32_t p4_pd_tessel_switch_learningDigestGeneration_ingMd_l2Control_width(void);
int p4_pd_tessel_switch_learningDigestGeneration_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_learningDigestGeneration_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_learningDigestGeneration_plcmt_data_eq_to_hw(
    p4_pd_session_handle_t session, uint8_t device, uint32_t table_handle,
    p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table lagGroup (0x01000046), ternary, bound to lagPortActionProfile ==== */

/* Key of 20 bits in 3 bytes. */
typedef struct p4_pd_tessel_switch_lagGroup_match_spec {
  uint32_t egrMd_egrL2AintfUnresolved; /* 20 bits */
  uint32_t egrMd_egrL2AintfUnresolved_mask; /* set bits take part */
} p4_pd_tessel_switch_lagGroup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_lagGroup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_lagGroup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware, bool *has_member, bool *has_group,
    p4_pd_group_handle_t *group, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_add_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority, p4_pd_member_handle_t member, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_modify_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_modify_entry_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec, uint32_t priority,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_set_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_member_handle_t member, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_add_entry_with_selector(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec,
    uint32_t priority, p4_pd_group_handle_t group, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_modify_entry_with_selector(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_modify_entry_with_selector_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec, uint32_t priority,
    p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_set_default_entry_with_selector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t group,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec, uint32_t *priority, bool *has_member,
    bool *has_group, p4_pd_group_handle_t *group, p4_pd_member_handle_t *member, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_lagGroup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec,
    uint32_t *priority, p4_pd_member_handle_t *member, p4_pd_group_handle_t *group,
    bool *has_member, bool *has_group, bool *no_key);
const char *p4_pd_tessel_switch_lagGroup_match_spec_schema(void);
int p4_pd_tessel_switch_lagGroup_schema(char *buffer);
int p4_pd_tessel_switch_lagGroup_match_spec_value(
    const p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_lagGroup_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_lagGroup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_lagGroup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_lagGroup_match_specs_are_equal(
    const p4_pd_tessel_switch_lagGroup_match_spec_t *a,
    const p4_pd_tessel_switch_lagGroup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_lagGroup_egrMd_egrL2AintfUnresolved_width(void);
int p4_pd_tessel_switch_lagGroup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_lagGroup_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_lagGroup_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2ForwardParams (0x01000047), exact ==== */

/* Key of 1 bit in 1 bytes. */
typedef struct p4_pd_tessel_switch_l2ForwardParams_match_spec {
  uint8_t outerEthHdr_valid; /* 1 bit */
} p4_pd_tessel_switch_l2ForwardParams_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2ForwardParams_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_table_add_with_l2ForwardParamsSet(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2ForwardParams_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_table_modify_with_l2ForwardParamsSet(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_table_modify_with_l2ForwardParamsSet_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2ForwardParams_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2ForwardParams_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2ForwardParams_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_set_default_action_l2ForwardParamsSet(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2ForwardParamsSet_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2ForwardParams_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2ForwardParams_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l2ForwardParams_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2ForwardParams_match_spec_schema(void);
int p4_pd_tessel_switch_l2ForwardParams_schema(char *buffer);
int p4_pd_tessel_switch_l2ForwardParams_match_spec_value(
    const p4_pd_tessel_switch_l2ForwardParams_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2ForwardParams_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2ForwardParams_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2ForwardParams_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2ForwardParams_match_specs_are_equal(
    const p4_pd_tessel_switch_l2ForwardParams_match_spec_t *a,
    const p4_pd_tessel_switch_l2ForwardParams_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2ForwardParams_outerEthHdr_width(void);
int p4_pd_tessel_switch_l2ForwardParams_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2ForwardParams_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2ForwardParams_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2LookupMiss (0x01000048), ternary ==== */

/* Key of 57 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_l2LookupMiss_match_spec {
  uint16_t ig_intr_md_ingress_port; /* 9 bits, key bits 0x7f */
  uint16_t ig_intr_md_ingress_port_mask; /* set bits take part */
  uint32_t egrMd_dmacOui; /* 24 bits */
  uint32_t egrMd_dmacOui_mask; /* set bits take part */
  uint32_t egrMd_dmacStation; /* 24 bits */
  uint32_t egrMd_dmacStation_mask; /* set bits take part */
} p4_pd_tessel_switch_l2LookupMiss_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2LookupMiss_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_add_with_l2LookupBcastHit(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_bytes_meter_spec_t *meter_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_modify_with_l2LookupBcastHit(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_modify_with_l2LookupBcastHit_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_add_with_l2LookupUnknownMcastAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_bytes_meter_spec_t *meter_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_modify_with_l2LookupUnknownMcastAction(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_modify_with_l2LookupUnknownMcastAction_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_add_with_l2LookupUnknownUcastAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_bytes_meter_spec_t *meter_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_modify_with_l2LookupUnknownUcastAction(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_modify_with_l2LookupUnknownUcastAction_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_set_default_action_l2LookupBcastHit(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_bytes_meter_spec_t *meter_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_set_default_action_l2LookupUnknownMcastAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_bytes_meter_spec_t *meter_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_set_default_action_l2LookupUnknownUcastAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_bytes_meter_spec_t *meter_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2LookupMiss_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2LookupMiss_match_spec_schema(void);
int p4_pd_tessel_switch_l2LookupMiss_schema(char *buffer);
int p4_pd_tessel_switch_l2LookupMiss_match_spec_value(
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2LookupMiss_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2LookupMiss_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2LookupMiss_match_specs_are_equal(
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *a,
    const p4_pd_tessel_switch_l2LookupMiss_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2LookupMiss_ig_intr_md_ingress_port_width(void);
uint32_t p4_pd_tessel_switch_l2LookupMiss_egrMd_dmacOui_width(void);
uint32_t p4_pd_tessel_switch_l2LookupMiss_egrMd_dmacStation_width(void);
int p4_pd_tessel_switch_l2LookupMiss_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2LookupMiss_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2LookupMiss_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2Lookup (0x01000049), exact ==== */

/* Key of 60 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_l2Lookup_match_spec {
  uint32_t egrMd_dmacOui; /* 24 bits */
  uint32_t egrMd_dmacStation; /* 24 bits */
  uint16_t egrMd_egrL2Domain; /* 12 bits */
} p4_pd_tessel_switch_l2Lookup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2Lookup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2Lookup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_add_with_l2LookupKnownUcast(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_l2LookupKnownUcast(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_l2LookupKnownUcast_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_add_with_l2LookupKnownMcast(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_l2LookupKnownMcast(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_l2LookupKnownMcast_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2LookupKnownMcast_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_add_with_l2LookupKnownUcastTunnel(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_l2LookupKnownUcastTunnel(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_l2LookupKnownUcastTunnel_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2LookupKnownUcastTunnel_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_add_with_l2LookupDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_l2LookupDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_l2LookupDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_add_with_onMiss(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2Lookup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2Lookup_match_spec_schema(void);
int p4_pd_tessel_switch_l2Lookup_schema(char *buffer);
int p4_pd_tessel_switch_l2Lookup_match_spec_value(
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2Lookup_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2Lookup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2Lookup_match_specs_are_equal(
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *a,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2Lookup_egrMd_dmacOui_width(void);
uint32_t p4_pd_tessel_switch_l2Lookup_egrMd_dmacStation_width(void);
uint32_t p4_pd_tessel_switch_l2Lookup_egrMd_egrL2Domain_width(void);
int p4_pd_tessel_switch_l2Lookup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2Lookup_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2Lookup_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table mlagUcastPrune (0x0100004b), exact ==== */

/* Key of 20 bits in 3 bytes. */
typedef struct p4_pd_tessel_switch_mlagUcastPrune_match_spec {
  uint32_t egrMd_egrL2AintfUnresolved; /* 20 bits, key bits 0x7ff */
} p4_pd_tessel_switch_mlagUcastPrune_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_mlagUcastPrune_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_add_with_noOp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_modify_with_noOp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_modify_with_noOp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_add_with_setMlagPrune(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_modify_with_setMlagPrune(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_modify_with_setMlagPrune_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_set_default_action_noOp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_set_default_action_setMlagPrune(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_mlagUcastPrune_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_mlagUcastPrune_match_spec_schema(void);
int p4_pd_tessel_switch_mlagUcastPrune_schema(char *buffer);
int p4_pd_tessel_switch_mlagUcastPrune_match_spec_value(
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_mlagUcastPrune_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_mlagUcastPrune_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *match_spec);
bool p4_pd_tessel_switch_mlagUcastPrune_match_specs_are_equal(
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *a,
    const p4_pd_tessel_switch_mlagUcastPrune_match_spec_t *b);
uint32_t p4_pd_tessel_switch_mlagUcastPrune_egrMd_egrL2AintfUnresolved_width(void);
int p4_pd_tessel_switch_mlagUcastPrune_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_mlagUcastPrune_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_mlagUcastPrune_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egressVlanXlate (0x0100004c), exact ==== */

/* Key of 21 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_egressVlanXlate_match_spec {
  uint16_t eg_intr_md_egress_port; /* 9 bits, key bits 0x7f */
  uint16_t egrMd_egrL2Domain; /* 12 bits */
} p4_pd_tessel_switch_egressVlanXlate_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egressVlanXlate_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_add_with_setEgrVlan(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEgrVlan_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_modify_with_setEgrVlan(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setEgrVlan_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_modify_with_setEgrVlan_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEgrVlan_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_add_with_setEgrVlanSubIntf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_modify_with_setEgrVlanSubIntf(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_modify_with_setEgrVlanSubIntf_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_add_with_noXlate(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_modify_with_noXlate(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_modify_with_noXlate_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_set_default_action_setEgrVlan(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setEgrVlan_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_set_default_action_setEgrVlanSubIntf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setEgrVlanSubIntf_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_set_default_action_noXlate(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egressVlanXlate_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_egressVlanXlate_match_spec_schema(void);
int p4_pd_tessel_switch_egressVlanXlate_schema(char *buffer);
int p4_pd_tessel_switch_egressVlanXlate_match_spec_value(
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_egressVlanXlate_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egressVlanXlate_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *match_spec);
bool p4_pd_tessel_switch_egressVlanXlate_match_specs_are_equal(
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *a,
    const p4_pd_tessel_switch_egressVlanXlate_match_spec_t *b);
uint32_t p4_pd_tessel_switch_egressVlanXlate_eg_intr_md_egress_port_width(void);
uint32_t p4_pd_tessel_switch_egressVlanXlate_egrMd_egrL2Domain_width(void);
int p4_pd_tessel_switch_egressVlanXlate_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egressVlanXlate_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_egressVlanXlate_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table globalFields (0x0100004d), ternary ==== */

/* Key of 39 bits in 7 bytes. */
typedef struct p4_pd_tessel_switch_globalFields_match_spec {
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t egrMd_decapType_mask; /* set bits take part */
  uint8_t egrMd_encapType; /* 3 bits */
  uint8_t egrMd_ingressTagged; /* 1 bit */
  uint8_t egrMd_ingressTagged_mask; /* set bits take part */
  uint32_t egrMd_tunnelInfo; /* 32 bits, key bits 0x50000 */
  uint32_t egrMd_tunnelInfo_mask; /* set bits take part */
} p4_pd_tessel_switch_globalFields_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_globalFields_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_globalFields_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_globalFields_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_globalFields_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_globalFields_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_globalFields_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_add_with_setGlobalFieldsForVxlanTunnelCommon(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelCommon(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelCommon_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_add_with_setGlobalFieldsForVxlanTunnelIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_add_with_setGlobalFieldsForVxlanTunnelIpv4UseDipB(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelIpv4UseDipB(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForVxlanTunnelIpv4UseDipB_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_add_with_setGlobalFieldsForMplsOverUdpTunnel(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForMplsOverUdpTunnel(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForMplsOverUdpTunnel_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_add_with_setGlobalFieldsForMplsTunnel(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForMplsTunnel(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_modify_with_setGlobalFieldsForMplsTunnel_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_globalFields_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_set_default_action_setGlobalFieldsForVxlanTunnelCommon(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelCommon_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_set_default_action_setGlobalFieldsForVxlanTunnelIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_set_default_action_setGlobalFieldsForVxlanTunnelIpv4UseDipB(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_set_default_action_setGlobalFieldsForMplsOverUdpTunnel(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsOverUdpTunnel_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_set_default_action_setGlobalFieldsForMplsTunnel(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setGlobalFieldsForMplsTunnel_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_globalFields_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_globalFields_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_globalFields_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_globalFields_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_globalFields_match_spec_schema(void);
int p4_pd_tessel_switch_globalFields_schema(char *buffer);
int p4_pd_tessel_switch_globalFields_match_spec_value(
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_globalFields_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_globalFields_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_globalFields_match_spec_t *match_spec);
bool p4_pd_tessel_switch_globalFields_match_specs_are_equal(
    const p4_pd_tessel_switch_globalFields_match_spec_t *a,
    const p4_pd_tessel_switch_globalFields_match_spec_t *b);
uint32_t p4_pd_tessel_switch_globalFields_egrMd_decapType_width(void);
uint32_t p4_pd_tessel_switch_globalFields_egrMd_encapType_width(void);
uint32_t p4_pd_tessel_switch_globalFields_egrMd_ingressTagged_width(void);
uint32_t p4_pd_tessel_switch_globalFields_egrMd_tunnelInfo_width(void);
int p4_pd_tessel_switch_globalFields_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_globalFields_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_globalFields_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table cpuEncapFields (0x0100004e), exact ==== */

/* Key of 14 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_cpuEncapFields_match_spec {
  uint16_t eg_intr_md_egress_port; /* 9 bits */
  uint8_t phase0_switchPort; /* 1 bit */
  uint8_t egrMd_ingressTagged; /* 1 bit */
  uint8_t egrMd_decapType; /* 3 bits */
} p4_pd_tessel_switch_cpuEncapFields_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_cpuEncapFields_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_add_with_encapPktToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec,
    const p4_pd_tessel_switch_encapPktToCpu_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_modify_with_encapPktToCpu(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_encapPktToCpu_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_modify_with_encapPktToCpu_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec,
    const p4_pd_tessel_switch_encapPktToCpu_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_cpuEncapFields_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_cpuEncapFields_match_spec_schema(void);
int p4_pd_tessel_switch_cpuEncapFields_schema(char *buffer);
int p4_pd_tessel_switch_cpuEncapFields_match_spec_value(
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_cpuEncapFields_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_cpuEncapFields_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *match_spec);
bool p4_pd_tessel_switch_cpuEncapFields_match_specs_are_equal(
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *a,
    const p4_pd_tessel_switch_cpuEncapFields_match_spec_t *b);
uint32_t p4_pd_tessel_switch_cpuEncapFields_eg_intr_md_egress_port_width(void);
uint32_t p4_pd_tessel_switch_cpuEncapFields_phase0_switchPort_width(void);
uint32_t p4_pd_tessel_switch_cpuEncapFields_egrMd_ingressTagged_width(void);
uint32_t p4_pd_tessel_switch_cpuEncapFields_egrMd_decapType_width(void);
int p4_pd_tessel_switch_cpuEncapFields_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_cpuEncapFields_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_cpuEncapFields_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table srcIntfToNyxIntf (0x0100004f), exact ==== */

/* Key of 9 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec {
  uint16_t egrMd_ingressPort; /* 9 bits */
} p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_srcIntfToNyxIntf_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_table_add_with_setNyxIntfDetails(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_table_modify_with_setNyxIntfDetails(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_table_modify_with_setNyxIntfDetails_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_set_default_action_setNyxIntfDetails(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setNyxIntfDetails_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_srcIntfToNyxIntf_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_schema(void);
int p4_pd_tessel_switch_srcIntfToNyxIntf_schema(char *buffer);
int p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_value(
    const p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_srcIntfToNyxIntf_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *match_spec);
bool p4_pd_tessel_switch_srcIntfToNyxIntf_match_specs_are_equal(
    const p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *a,
    const p4_pd_tessel_switch_srcIntfToNyxIntf_match_spec_t *b);
uint32_t p4_pd_tessel_switch_srcIntfToNyxIntf_egrMd_ingressPort_width(void);
int p4_pd_tessel_switch_srcIntfToNyxIntf_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_srcIntfToNyxIntf_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_srcIntfToNyxIntf_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table vlanEncap (0x01000051), exact ==== */

/* Key of 22 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_vlanEncap_match_spec {
  uint16_t egrMd_vlanId; /* 12 bits */
  uint16_t eg_intr_md_egress_port; /* 9 bits, key bits 0x7f */
  uint8_t egrMd_subIntf; /* 1 bit */
} p4_pd_tessel_switch_vlanEncap_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_vlanEncap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_vlanEncap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_add_with_noVlanEncap(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_modify_with_noVlanEncap(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_modify_with_noVlanEncap_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_add_with_needVlanEncap(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_modify_with_needVlanEncap(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_modify_with_needVlanEncap_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_set_default_action_noVlanEncap(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_set_default_action_needVlanEncap(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_vlanEncap_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_vlanEncap_match_spec_schema(void);
int p4_pd_tessel_switch_vlanEncap_schema(char *buffer);
int p4_pd_tessel_switch_vlanEncap_match_spec_value(
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_vlanEncap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_vlanEncap_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *match_spec);
bool p4_pd_tessel_switch_vlanEncap_match_specs_are_equal(
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *a,
    const p4_pd_tessel_switch_vlanEncap_match_spec_t *b);
uint32_t p4_pd_tessel_switch_vlanEncap_egrMd_vlanId_width(void);
uint32_t p4_pd_tessel_switch_vlanEncap_eg_intr_md_egress_port_width(void);
uint32_t p4_pd_tessel_switch_vlanEncap_egrMd_subIntf_width(void);
int p4_pd_tessel_switch_vlanEncap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_vlanEncap_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_vlanEncap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table encapDecap (0x01000052), ternary ==== */

/* Key of 43 bits in 11 bytes. */
typedef struct p4_pd_tessel_switch_encapDecap_match_spec {
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t egrMd_encapType; /* 3 bits */
  uint8_t egrMd_routed; /* 1 bit */
  uint8_t outerIpv4Hdr_valid; /* 1 bit */
  uint8_t outerIpv4Hdr_valid_mask; /* set bits take part */
  uint8_t outerIpv6Hdr_valid; /* 1 bit */
  uint8_t outerIpv6Hdr_valid_mask; /* set bits take part */
  uint8_t innerIpv4Hdr_valid; /* 1 bit */
  uint8_t innerIpv4Hdr_valid_mask; /* set bits take part */
  uint8_t innerIpv6Hdr_valid; /* 1 bit */
  uint8_t innerIpv6Hdr_valid_mask; /* set bits take part */
  uint32_t egrMd_tunnelInfo; /* 32 bits, key bits 0xc0000 */
  uint32_t egrMd_tunnelInfo_mask; /* set bits take part */
} p4_pd_tessel_switch_encapDecap_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_encapDecap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_encapDecap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_noDecapNoEncapRouteIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapRouteIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapRouteIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_noDecapNoEncapRouteIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapRouteIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapRouteIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_noDecapNoEncapBridgeIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapBridgeIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapBridgeIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_noDecapNoEncapBridgeIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapBridgeIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapBridgeIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_encapFabricPktToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_encapFabricPktToCpu(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_encapFabricPktToCpu_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_encapPPIPktToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_encapPPIPktToCpu(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_encapPPIPktToCpu_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_decapPPIPktFromCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapPPIPktFromCpu(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapPPIPktFromCpu_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_encapGreIpv4ForClone(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_encapGreIpv4ForClone(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_encapGreIpv4ForClone_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_noDecapNoEncapClone(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapClone(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_noDecapNoEncapClone_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_decapIpIpEncapPPIPktToCpuIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapIpIpEncapPPIPktToCpuIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapIpIpEncapPPIPktToCpuIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_decapIpIpEncapPPIPktToCpuIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapIpIpEncapPPIPktToCpuIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapIpIpEncapPPIPktToCpuIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_decapIpIpRouteIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapIpIpRouteIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapIpIpRouteIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_add_with_decapIpIpRouteIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapIpIpRouteIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_modify_with_decapIpIpRouteIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_noDecapNoEncapRouteIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_noDecapNoEncapRouteIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_noDecapNoEncapRouteIpv6_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_noDecapNoEncapBridgeIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_noDecapNoEncapBridgeIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_encapFabricPktToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_encapPPIPktToCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_decapPPIPktFromCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_encapGreIpv4ForClone(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_encapGreIpv4ForClone_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_noDecapNoEncapClone(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_decapIpIpEncapPPIPktToCpuIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_decapIpIpEncapPPIPktToCpuIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_decapIpIpRouteIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIpIpRouteIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_set_default_action_decapIpIpRouteIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIpIpRouteIpv6_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, uint32_t *priority, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_encapDecap_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec,
    uint32_t *priority, p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_encapDecap_match_spec_schema(void);
int p4_pd_tessel_switch_encapDecap_schema(char *buffer);
int p4_pd_tessel_switch_encapDecap_match_spec_value(
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_encapDecap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_encapDecap_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *match_spec);
bool p4_pd_tessel_switch_encapDecap_match_specs_are_equal(
    const p4_pd_tessel_switch_encapDecap_match_spec_t *a,
    const p4_pd_tessel_switch_encapDecap_match_spec_t *b);
uint32_t p4_pd_tessel_switch_encapDecap_egrMd_decapType_width(void);
uint32_t p4_pd_tessel_switch_encapDecap_egrMd_encapType_width(void);
uint32_t p4_pd_tessel_switch_encapDecap_egrMd_routed_width(void);
uint32_t p4_pd_tessel_switch_encapDecap_outerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_encapDecap_outerIpv6Hdr_width(void);
uint32_t p4_pd_tessel_switch_encapDecap_innerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_encapDecap_innerIpv6Hdr_width(void);
uint32_t p4_pd_tessel_switch_encapDecap_egrMd_tunnelInfo_width(void);
int p4_pd_tessel_switch_encapDecap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_encapDecap_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_encapDecap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egressSamePortBridgingTest (0x01000053), exact ==== */

/* Key of 11 bits in 3 bytes. */
typedef struct p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec {
  uint8_t egrMd_ingressPortType; /* 2 bits */
  uint16_t eg_intr_md_egress_port; /* 9 bits, key bits 0x7f */
} p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_get_mat_table_handle(
    uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egressSamePortBridgingTest_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_table_add_with_egressSamePortBridgingTestDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_table_modify_with_egressSamePortBridgingTestDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_table_modify_with_egressSamePortBridgingTestDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_set_default_action_egressSamePortBridgingTestDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_get_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    bool read_from_hardware,
    p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egressSamePortBridgingTest_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_schema(void);
int p4_pd_tessel_switch_egressSamePortBridgingTest_schema(char *buffer);
int p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_value(
    const p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_egressSamePortBridgingTest_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *match_spec);
bool p4_pd_tessel_switch_egressSamePortBridgingTest_match_specs_are_equal(
    const p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *a,
    const p4_pd_tessel_switch_egressSamePortBridgingTest_match_spec_t *b);
uint32_t p4_pd_tessel_switch_egressSamePortBridgingTest_egrMd_ingressPortType_width(void);
uint32_t p4_pd_tessel_switch_egressSamePortBridgingTest_eg_intr_md_egress_port_width(void);
int p4_pd_tessel_switch_egressSamePortBridgingTest_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egressSamePortBridgingTest_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_egressSamePortBridgingTest_plcmt_data_eq_to_hw(
    p4_pd_session_handle_t session, uint8_t device, uint32_t table_handle,
    p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table qosPortProperties (0x01000054), exact ==== */

/* Key of 9 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_qosPortProperties_match_spec {
  uint16_t ig_intr_md_ingress_port; /* 9 bits */
} p4_pd_tessel_switch_qosPortProperties_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_qosPortProperties_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_table_add_with_setQosPortProperties(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosPortProperties_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setQosPortProperties_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_table_modify_with_setQosPortProperties(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setQosPortProperties_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_table_modify_with_setQosPortProperties_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosPortProperties_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setQosPortProperties_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosPortProperties_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosPortProperties_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_set_default_action_setQosPortProperties(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setQosPortProperties_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_qosPortProperties_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_qosPortProperties_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_qosPortProperties_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_qosPortProperties_match_spec_schema(void);
int p4_pd_tessel_switch_qosPortProperties_schema(char *buffer);
int p4_pd_tessel_switch_qosPortProperties_match_spec_value(
    const p4_pd_tessel_switch_qosPortProperties_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_qosPortProperties_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_qosPortProperties_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_qosPortProperties_match_spec_t *match_spec);
bool p4_pd_tessel_switch_qosPortProperties_match_specs_are_equal(
    const p4_pd_tessel_switch_qosPortProperties_match_spec_t *a,
    const p4_pd_tessel_switch_qosPortProperties_match_spec_t *b);
uint32_t p4_pd_tessel_switch_qosPortProperties_ig_intr_md_ingress_port_width(void);
int p4_pd_tessel_switch_qosPortProperties_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_qosPortProperties_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_qosPortProperties_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table normalizeCos (0x01000055), exact ==== */

/* Key of 8 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_normalizeCos_match_spec {
  uint8_t ingMd_vlanHdrValid; /* 1 bit */
  uint8_t qosMd_defaultCos; /* 3 bits */
  uint8_t vlanHdr_0__priority; /* 3 bits */
  uint8_t vlanHdr_1__valid; /* 1 bit */
} p4_pd_tessel_switch_normalizeCos_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_normalizeCos_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_normalizeCos_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_add_with_setCosFromDefault(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setCosFromDefault_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_modify_with_setCosFromDefault(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setCosFromDefault_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_modify_with_setCosFromDefault_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setCosFromDefault_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_add_with_setCosFromPacket(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setCosFromPacket_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_modify_with_setCosFromPacket(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setCosFromPacket_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_modify_with_setCosFromPacket_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setCosFromPacket_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_add_with_setCosFromPacketWithInner(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_modify_with_setCosFromPacketWithInner(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_modify_with_setCosFromPacketWithInner_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_set_default_action_setCosFromDefault(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setCosFromDefault_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_set_default_action_setCosFromPacket(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setCosFromPacket_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_set_default_action_setCosFromPacketWithInner(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setCosFromPacketWithInner_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_normalizeCos_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_normalizeCos_match_spec_schema(void);
int p4_pd_tessel_switch_normalizeCos_schema(char *buffer);
int p4_pd_tessel_switch_normalizeCos_match_spec_value(
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_normalizeCos_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_normalizeCos_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *match_spec);
bool p4_pd_tessel_switch_normalizeCos_match_specs_are_equal(
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *a,
    const p4_pd_tessel_switch_normalizeCos_match_spec_t *b);
uint32_t p4_pd_tessel_switch_normalizeCos_ingMd_vlanHdrValid_width(void);
uint32_t p4_pd_tessel_switch_normalizeCos_qosMd_defaultCos_width(void);
uint32_t p4_pd_tessel_switch_normalizeCos_vlanHdr_0__priority_width(void);
uint32_t p4_pd_tessel_switch_normalizeCos_vlanHdr_1__width(void);
int p4_pd_tessel_switch_normalizeCos_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_normalizeCos_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_normalizeCos_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table normalizeDscp (0x01000056), exact ==== */

/* Key of 6 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_normalizeDscp_match_spec {
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t ingMd_v4V6Valid; /* 3 bits */
} p4_pd_tessel_switch_normalizeDscp_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_normalizeDscp_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_add_with_setDscpForNonIpPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForNonIpPkt(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForNonIpPkt_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_add_with_setDscpForTTNonIpPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForTTNonIpPkt(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForTTNonIpPkt_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_add_with_setDscpForIpv4Pkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForIpv4Pkt(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForIpv4Pkt_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_add_with_setDscpForIpv4OptionsPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForIpv4OptionsPkt(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForIpv4OptionsPkt_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_add_with_setDscpForIpv6Pkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForIpv6Pkt(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_modify_with_setDscpForIpv6Pkt_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_set_default_action_setDscpForNonIpPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_set_default_action_setDscpForTTNonIpPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_set_default_action_setDscpForIpv4Pkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_set_default_action_setDscpForIpv4OptionsPkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_set_default_action_setDscpForIpv6Pkt(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_normalizeDscp_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_normalizeDscp_match_spec_schema(void);
int p4_pd_tessel_switch_normalizeDscp_schema(char *buffer);
int p4_pd_tessel_switch_normalizeDscp_match_spec_value(
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_normalizeDscp_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_normalizeDscp_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *match_spec);
bool p4_pd_tessel_switch_normalizeDscp_match_specs_are_equal(
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *a,
    const p4_pd_tessel_switch_normalizeDscp_match_spec_t *b);
uint32_t p4_pd_tessel_switch_normalizeDscp_egrMd_decapType_width(void);
uint32_t p4_pd_tessel_switch_normalizeDscp_ingMd_v4V6Valid_width(void);
int p4_pd_tessel_switch_normalizeDscp_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_normalizeDscp_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_normalizeDscp_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingressTrafficClass (0x01000057), ternary ==== */

/* Key of 23 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_ingressTrafficClass_match_spec {
  uint8_t qosMd_trustMode; /* 2 bits */
  uint8_t qosMd_trustMode_mask; /* set bits take part */
  uint8_t qosMd_defaultCos; /* 3 bits */
  uint8_t qosMd_defaultCos_mask; /* set bits take part */
  uint8_t qosMd_cos; /* 3 bits */
  uint8_t qosMd_cos_mask; /* set bits take part */
  uint8_t qosMd_dscp; /* 6 bits */
  uint8_t qosMd_dscp_mask; /* set bits take part */
  uint8_t qosMd_highPriority; /* 1 bit */
  uint8_t qosMd_highPriority_mask; /* set bits take part */
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t egrMd_decapType_mask; /* set bits take part */
  uint8_t tesselCpuHdr_trustMode; /* 2 bits */
  uint8_t tesselCpuHdr_trustMode_mask; /* set bits take part */
  uint8_t tesselCpuHdr_tc; /* 3 bits */
  uint8_t tesselCpuHdr_tc_mask; /* set bits take part */
} p4_pd_tessel_switch_ingressTrafficClass_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingressTrafficClass_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_table_add_with_setTrafficClassAndEgressQid(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_table_modify_with_setTrafficClassAndEgressQid(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_table_modify_with_setTrafficClassAndEgressQid_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_set_default_action_setTrafficClassAndEgressQid(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setTrafficClassAndEgressQid_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingressTrafficClass_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ingressTrafficClass_match_spec_schema(void);
int p4_pd_tessel_switch_ingressTrafficClass_schema(char *buffer);
int p4_pd_tessel_switch_ingressTrafficClass_match_spec_value(
    const p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressTrafficClass_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingressTrafficClass_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ingressTrafficClass_match_specs_are_equal(
    const p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *a,
    const p4_pd_tessel_switch_ingressTrafficClass_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ingressTrafficClass_qosMd_trustMode_width(void);
uint32_t p4_pd_tessel_switch_ingressTrafficClass_qosMd_defaultCos_width(void);
uint32_t p4_pd_tessel_switch_ingressTrafficClass_qosMd_cos_width(void);
uint32_t p4_pd_tessel_switch_ingressTrafficClass_qosMd_dscp_width(void);
uint32_t p4_pd_tessel_switch_ingressTrafficClass_qosMd_highPriority_width(void);
uint32_t p4_pd_tessel_switch_ingressTrafficClass_egrMd_decapType_width(void);
uint32_t p4_pd_tessel_switch_ingressTrafficClass_tesselCpuHdr_trustMode_width(void);
uint32_t p4_pd_tessel_switch_ingressTrafficClass_tesselCpuHdr_tc_width(void);
int p4_pd_tessel_switch_ingressTrafficClass_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingressTrafficClass_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ingressTrafficClass_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table qosRewrite (0x01000059), exact ==== */

/* Key of 10 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_qosRewrite_match_spec {
  uint8_t qosMd_trustMode; /* 2 bits */
  uint8_t qosMd_cosRewrite; /* 1 bit */
  uint8_t qosMd_dscpRewrite; /* 1 bit */
  uint8_t ig_intr_md_for_tm_ingress_cos; /* 3 bits */
  uint8_t egrMd_decapType; /* 3 bits */
} p4_pd_tessel_switch_qosRewrite_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_qosRewrite_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_qosRewrite_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_add_with_copyCosRewriteDscp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_modify_with_copyCosRewriteDscp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_modify_with_copyCosRewriteDscp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_add_with_rewriteCosCopyDscp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_modify_with_rewriteCosCopyDscp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_modify_with_rewriteCosCopyDscp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_add_with_rewriteCosRewriteDscp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_modify_with_rewriteCosRewriteDscp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_modify_with_rewriteCosRewriteDscp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec,
    const p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_set_default_action_copyCosRewriteDscp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_copyCosRewriteDscp_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_set_default_action_rewriteCosCopyDscp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_rewriteCosCopyDscp_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_set_default_action_rewriteCosRewriteDscp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_rewriteCosRewriteDscp_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_qosRewrite_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_qosRewrite_match_spec_schema(void);
int p4_pd_tessel_switch_qosRewrite_schema(char *buffer);
int p4_pd_tessel_switch_qosRewrite_match_spec_value(
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_qosRewrite_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_qosRewrite_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *match_spec);
bool p4_pd_tessel_switch_qosRewrite_match_specs_are_equal(
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *a,
    const p4_pd_tessel_switch_qosRewrite_match_spec_t *b);
uint32_t p4_pd_tessel_switch_qosRewrite_qosMd_trustMode_width(void);
uint32_t p4_pd_tessel_switch_qosRewrite_qosMd_cosRewrite_width(void);
uint32_t p4_pd_tessel_switch_qosRewrite_qosMd_dscpRewrite_width(void);
uint32_t p4_pd_tessel_switch_qosRewrite_ig_intr_md_for_tm_ingress_cos_width(void);
uint32_t p4_pd_tessel_switch_qosRewrite_egrMd_decapType_width(void);
int p4_pd_tessel_switch_qosRewrite_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_qosRewrite_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_qosRewrite_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table tcDscpMap (0x0100005a), exact ==== */

/* Key of 3 bits in 1 bytes. */
typedef struct p4_pd_tessel_switch_tcDscpMap_match_spec {
  uint8_t ig_intr_md_for_tm_ingress_cos; /* 3 bits */
} p4_pd_tessel_switch_tcDscpMap_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_tcDscpMap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_table_add_with_setTcDscp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tcDscpMap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setTcDscp_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_table_modify_with_setTcDscp(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setTcDscp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_table_modify_with_setTcDscp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tcDscpMap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setTcDscp_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tcDscpMap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_tcDscpMap_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_set_default_action_setTcDscp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setTcDscp_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_tcDscpMap_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_tcDscpMap_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_tcDscpMap_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_tcDscpMap_match_spec_schema(void);
int p4_pd_tessel_switch_tcDscpMap_schema(char *buffer);
int p4_pd_tessel_switch_tcDscpMap_match_spec_value(
    const p4_pd_tessel_switch_tcDscpMap_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_tcDscpMap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_tcDscpMap_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_tcDscpMap_match_spec_t *match_spec);
bool p4_pd_tessel_switch_tcDscpMap_match_specs_are_equal(
    const p4_pd_tessel_switch_tcDscpMap_match_spec_t *a,
    const p4_pd_tessel_switch_tcDscpMap_match_spec_t *b);
uint32_t p4_pd_tessel_switch_tcDscpMap_ig_intr_md_for_tm_ingress_cos_width(void);
int p4_pd_tessel_switch_tcDscpMap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_tcDscpMap_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_tcDscpMap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table packetDscpRewrite (0x0100005b), ternary ==== */

/* Key of 11 bits in 7 bytes. */
typedef struct p4_pd_tessel_switch_packetDscpRewrite_match_spec {
  uint8_t egrMd_encapType; /* 3 bits */
  uint8_t egrMd_encapType_mask; /* set bits take part */
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t egrMd_decapType_mask; /* set bits take part */
  uint8_t egrMd_routed; /* 1 bit */
  uint8_t egrMd_routed_mask; /* set bits take part */
  uint8_t outerIpv4Hdr_valid; /* 1 bit */
  uint8_t outerIpv4Hdr_valid_mask; /* set bits take part */
  uint8_t outerIpv6Hdr_valid; /* 1 bit */
  uint8_t outerIpv6Hdr_valid_mask; /* set bits take part */
  uint8_t innerIpv4Hdr_valid; /* 1 bit */
  uint8_t innerIpv4Hdr_valid_mask; /* set bits take part */
  uint8_t innerIpv6Hdr_valid; /* 1 bit */
  uint8_t innerIpv6Hdr_valid_mask; /* set bits take part */
} p4_pd_tessel_switch_packetDscpRewrite_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_packetDscpRewrite_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_add_with_noTunnelIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_noTunnelIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_noTunnelIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_add_with_noTunnelIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_noTunnelIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_noTunnelIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_add_with_onlyDecapInnerIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_onlyDecapInnerIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_onlyDecapInnerIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_add_with_onlyDecapInnerIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_onlyDecapInnerIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_onlyDecapInnerIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_add_with_encapOuterIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_add_with_encapOuterIpv4InnerIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4InnerIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4InnerIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_add_with_encapOuterIpv4InnerIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4InnerIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_modify_with_encapOuterIpv4InnerIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_set_default_action_noTunnelIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_set_default_action_noTunnelIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_set_default_action_onlyDecapInnerIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_set_default_action_onlyDecapInnerIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_set_default_action_encapOuterIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_set_default_action_encapOuterIpv4InnerIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_set_default_action_encapOuterIpv4InnerIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_packetDscpRewrite_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_packetDscpRewrite_match_spec_schema(void);
int p4_pd_tessel_switch_packetDscpRewrite_schema(char *buffer);
int p4_pd_tessel_switch_packetDscpRewrite_match_spec_value(
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_packetDscpRewrite_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_packetDscpRewrite_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *match_spec);
bool p4_pd_tessel_switch_packetDscpRewrite_match_specs_are_equal(
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *a,
    const p4_pd_tessel_switch_packetDscpRewrite_match_spec_t *b);
uint32_t p4_pd_tessel_switch_packetDscpRewrite_egrMd_encapType_width(void);
uint32_t p4_pd_tessel_switch_packetDscpRewrite_egrMd_decapType_width(void);
uint32_t p4_pd_tessel_switch_packetDscpRewrite_egrMd_routed_width(void);
uint32_t p4_pd_tessel_switch_packetDscpRewrite_outerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_packetDscpRewrite_outerIpv6Hdr_width(void);
uint32_t p4_pd_tessel_switch_packetDscpRewrite_innerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_packetDscpRewrite_innerIpv6Hdr_width(void);
int p4_pd_tessel_switch_packetDscpRewrite_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_packetDscpRewrite_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_packetDscpRewrite_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table pdpClassify (0x0100005c), ternary ==== */

/* Key of 51 bits in 9 bytes. */
typedef struct p4_pd_tessel_switch_pdpClassify_match_spec {
  uint8_t arpHdr_valid; /* 1 bit */
  uint8_t arpHdr_valid_mask; /* set bits take part */
  uint8_t egrMd_cpuReasonCode; /* 8 bits */
  uint8_t egrMd_cpuReasonCode_mask; /* set bits take part */
  uint8_t egrMd_trapToCpu; /* 1 bit */
  uint8_t egrMd_trapToCpu_mask; /* set bits take part */
  uint8_t ingMd_bcast; /* 1 bit */
  uint8_t ingMd_bcast_mask; /* set bits take part */
  uint8_t ingMd_protocol; /* 8 bits */
  uint8_t ingMd_protocol_mask; /* set bits take part */
  uint16_t ingMd_srcPort; /* 16 bits */
  uint16_t ingMd_srcPort_mask; /* set bits take part */
  uint16_t ingMd_dstPort; /* 16 bits */
  uint16_t ingMd_dstPort_mask; /* set bits take part */
} p4_pd_tessel_switch_pdpClassify_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_pdpClassify_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_pdpClassify_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_table_add_with_setPdpClass(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpClassify_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setPdpClass_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_table_modify_with_setPdpClass(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setPdpClass_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_table_modify_with_setPdpClass_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpClassify_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setPdpClass_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpClassify_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpClassify_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_set_default_action_setPdpClass(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setPdpClass_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_pdpClassify_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_pdpClassify_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_pdpClassify_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_pdpClassify_match_spec_schema(void);
int p4_pd_tessel_switch_pdpClassify_schema(char *buffer);
int p4_pd_tessel_switch_pdpClassify_match_spec_value(
    const p4_pd_tessel_switch_pdpClassify_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_pdpClassify_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_pdpClassify_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_pdpClassify_match_spec_t *match_spec);
bool p4_pd_tessel_switch_pdpClassify_match_specs_are_equal(
    const p4_pd_tessel_switch_pdpClassify_match_spec_t *a,
    const p4_pd_tessel_switch_pdpClassify_match_spec_t *b);
uint32_t p4_pd_tessel_switch_pdpClassify_arpHdr_width(void);
uint32_t p4_pd_tessel_switch_pdpClassify_egrMd_cpuReasonCode_width(void);
uint32_t p4_pd_tessel_switch_pdpClassify_egrMd_trapToCpu_width(void);
uint32_t p4_pd_tessel_switch_pdpClassify_ingMd_bcast_width(void);
uint32_t p4_pd_tessel_switch_pdpClassify_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_pdpClassify_ingMd_srcPort_width(void);
uint32_t p4_pd_tessel_switch_pdpClassify_ingMd_dstPort_width(void);
int p4_pd_tessel_switch_pdpClassify_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_pdpClassify_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_pdpClassify_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table pdpPolicy (0x0100005d), exact ==== */

/* Key of 14 bits in 3 bytes. */
typedef struct p4_pd_tessel_switch_pdpPolicy_match_spec {
  uint16_t ig_intr_md_ingress_port; /* 9 bits, key bits 0x7f */
  uint8_t qosMd_pdpClassId; /* 5 bits */
} p4_pd_tessel_switch_pdpPolicy_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_pdpPolicy_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_add_with_setPdpClassCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setPdpClassCount_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_modify_with_setPdpClassCount(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setPdpClassCount_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_modify_with_setPdpClassCount_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setPdpClassCount_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_add_with_pdpPolice(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec,
    const p4_pd_tessel_switch_pdpPolice_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_modify_with_pdpPolice(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_pdpPolice_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_modify_with_pdpPolice_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec,
    const p4_pd_tessel_switch_pdpPolice_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_set_default_action_setPdpClassCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setPdpClassCount_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_set_default_action_pdpPolice(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_pdpPolice_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_pdpPolicy_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_pdpPolicy_match_spec_schema(void);
int p4_pd_tessel_switch_pdpPolicy_schema(char *buffer);
int p4_pd_tessel_switch_pdpPolicy_match_spec_value(
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_pdpPolicy_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_pdpPolicy_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *match_spec);
bool p4_pd_tessel_switch_pdpPolicy_match_specs_are_equal(
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *a,
    const p4_pd_tessel_switch_pdpPolicy_match_spec_t *b);
uint32_t p4_pd_tessel_switch_pdpPolicy_ig_intr_md_ingress_port_width(void);
uint32_t p4_pd_tessel_switch_pdpPolicy_qosMd_pdpClassId_width(void);
int p4_pd_tessel_switch_pdpPolicy_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_pdpPolicy_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_pdpPolicy_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table cpuEncap (0x0100005e), ternary ==== */

/* Key of 12 bits in 5 bytes. */
typedef struct p4_pd_tessel_switch_cpuEncap_match_spec {
  uint8_t egrMd_trapToCpu; /* 1 bit */
  uint8_t ingMd_vlanHdrValid; /* 1 bit */
  uint8_t phase0_switchPort; /* 1 bit */
  uint8_t phase0_switchPort_mask; /* set bits take part */
  uint8_t egrMd_cpuReasonCode; /* 8 bits */
  uint8_t egrMd_cpuReasonCode_mask; /* set bits take part */
  uint8_t vlanHdr_0__valid; /* 1 bit */
  uint8_t vlanHdr_0__valid_mask; /* set bits take part */
} p4_pd_tessel_switch_cpuEncap_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_cpuEncap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_cpuEncap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_add_with_trapPktToCpuUntagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_trapPktToCpuUntagged(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_trapPktToCpuUntagged_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_trapPktToCpuUntagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_add_with_copyPktToCpuUntagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_copyPktToCpuUntagged(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_copyPktToCpuUntagged_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPktToCpuUntagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_add_with_trapPktToCpuTagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_trapPktToCpuTagged(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_trapPktToCpuTagged_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_trapPktToCpuTagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_add_with_copyPktToCpuTagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_copyPktToCpuTagged(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_copyPktToCpuTagged_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_add_with_trapPktToCpuSubintf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_trapPktToCpuSubintf(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_trapPktToCpuSubintf_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_trapPktToCpuSubintf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_add_with_copyPktToCpuSubintf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_copyPktToCpuSubintf(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_modify_with_copyPktToCpuSubintf_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_set_default_action_copyPktToCpuTagged(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_copyPktToCpuTagged_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t *priority, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_cpuEncap_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec,
    uint32_t *priority, p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_cpuEncap_match_spec_schema(void);
int p4_pd_tessel_switch_cpuEncap_schema(char *buffer);
int p4_pd_tessel_switch_cpuEncap_match_spec_value(
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_cpuEncap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_cpuEncap_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec);
bool p4_pd_tessel_switch_cpuEncap_match_specs_are_equal(
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *a,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *b);
uint32_t p4_pd_tessel_switch_cpuEncap_egrMd_trapToCpu_width(void);
uint32_t p4_pd_tessel_switch_cpuEncap_ingMd_vlanHdrValid_width(void);
uint32_t p4_pd_tessel_switch_cpuEncap_phase0_switchPort_width(void);
uint32_t p4_pd_tessel_switch_cpuEncap_egrMd_cpuReasonCode_width(void);
uint32_t p4_pd_tessel_switch_cpuEncap_vlanHdr_0__width(void);
int p4_pd_tessel_switch_cpuEncap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_cpuEncap_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_cpuEncap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table nyxIntfToPhysical (0x01000060), ternary ==== */

/* Key of 35 bits in 7 bytes. */
typedef struct p4_pd_tessel_switch_nyxIntfToPhysical_match_spec {
  uint8_t tesselCpuHdr_slice; /* 6 bits */
  uint16_t tesselCpuHdr_port; /* 10 bits */
  uint8_t tesselCpuHdr_lane; /* 4 bits */
  uint16_t tesselCpuHdr_portChannel; /* 12 bits */
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t egrMd_decapType_mask; /* set bits take part */
} p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_nyxIntfToPhysical_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_add_with_setEgressPort(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setEgressPort_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_modify_with_setEgressPort(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setEgressPort_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_modify_with_setEgressPort_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setEgressPort_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_add_with_setDecapTypeVlan(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_modify_with_setDecapTypeVlan(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_modify_with_setDecapTypeVlan_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_add_with_setInvalidEgressPort(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_modify_with_setInvalidEgressPort(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_modify_with_setInvalidEgressPort_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_add_with_removeTesselHdrs(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_modify_with_removeTesselHdrs(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_modify_with_removeTesselHdrs_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_set_default_action_setInvalidEgressPort(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_nyxIntfToPhysical_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_schema(void);
int p4_pd_tessel_switch_nyxIntfToPhysical_schema(char *buffer);
int p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_value(
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_nyxIntfToPhysical_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *match_spec);
bool p4_pd_tessel_switch_nyxIntfToPhysical_match_specs_are_equal(
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *a,
    const p4_pd_tessel_switch_nyxIntfToPhysical_match_spec_t *b);
uint32_t p4_pd_tessel_switch_nyxIntfToPhysical_tesselCpuHdr_slice_width(void);
uint32_t p4_pd_tessel_switch_nyxIntfToPhysical_tesselCpuHdr_port_width(void);
uint32_t p4_pd_tessel_switch_nyxIntfToPhysical_tesselCpuHdr_lane_width(void);
uint32_t p4_pd_tessel_switch_nyxIntfToPhysical_tesselCpuHdr_portChannel_width(void);
uint32_t p4_pd_tessel_switch_nyxIntfToPhysical_egrMd_decapType_width(void);
int p4_pd_tessel_switch_nyxIntfToPhysical_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_nyxIntfToPhysical_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_nyxIntfToPhysical_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2Multicast (0x01000061), exact ==== */

/* Key of 60 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_l2Multicast_match_spec {
  uint32_t egrMd_dmacOui; /* 24 bits */
  uint32_t egrMd_dmacStation; /* 24 bits */
  uint16_t egrMd_egrL2Domain; /* 12 bits */
} p4_pd_tessel_switch_l2Multicast_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2Multicast_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2Multicast_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_table_add_with_setL2McResult(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Multicast_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setL2McResult_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_table_modify_with_setL2McResult(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setL2McResult_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_table_modify_with_setL2McResult_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Multicast_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setL2McResult_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Multicast_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Multicast_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_set_default_action_setL2McResult(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setL2McResult_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2Multicast_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2Multicast_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_l2Multicast_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2Multicast_match_spec_schema(void);
int p4_pd_tessel_switch_l2Multicast_schema(char *buffer);
int p4_pd_tessel_switch_l2Multicast_match_spec_value(
    const p4_pd_tessel_switch_l2Multicast_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2Multicast_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2Multicast_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2Multicast_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2Multicast_match_specs_are_equal(
    const p4_pd_tessel_switch_l2Multicast_match_spec_t *a,
    const p4_pd_tessel_switch_l2Multicast_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2Multicast_egrMd_dmacOui_width(void);
uint32_t p4_pd_tessel_switch_l2Multicast_egrMd_dmacStation_width(void);
uint32_t p4_pd_tessel_switch_l2Multicast_egrMd_egrL2Domain_width(void);
int p4_pd_tessel_switch_l2Multicast_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2Multicast_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2Multicast_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table finalizeMcResult (0x01000062), ternary ==== */

/* Key of 26 bits in 9 bytes. */
typedef struct p4_pd_tessel_switch_finalizeMcResult_match_spec {
  uint8_t egrMd_trapToCpu; /* 1 bit */
  uint8_t egrMd_trapToCpu_mask; /* set bits take part */
  uint8_t ingIpmc_eValid; /* 1 bit */
  uint8_t ingIpmc_eValid_mask; /* set bits take part */
  uint8_t ingL2Mc_eValid; /* 1 bit */
  uint8_t ingL2Mc_eValid_mask; /* set bits take part */
  uint8_t ingMd_igmpSnoopingEnabled; /* 1 bit */
  uint8_t ingMd_igmpSnoopingEnabled_mask; /* set bits take part */
  uint8_t ingMd_ipMcast; /* 1 bit */
  uint8_t ingMd_ipMcast_mask; /* set bits take part */
  uint8_t ingMd_llm; /* 1 bit */
  uint8_t ingMd_llm_mask; /* set bits take part */
  uint8_t ingMd_protocol; /* 8 bits */
  uint8_t ingMd_protocol_mask; /* set bits take part */
  uint8_t ingMd_ttl; /* 8 bits */
  uint8_t ingMd_ttl_mask; /* set bits take part */
  uint8_t l3Info_ipRouting; /* 4 bits */
  uint8_t l3Info_ipRouting_mask; /* set bits take part */
} p4_pd_tessel_switch_finalizeMcResult_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_finalizeMcResult_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_add_with_finalizeMcResultIpmc(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultIpmc(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultIpmc_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_add_with_finalizeMcResultL2mc(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultL2mc(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultL2mc_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_add_with_finalizeMcResultL2mcFlood(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultL2mcFlood(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultL2mcFlood_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_add_with_finalizeMcResultCancel(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultCancel(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultCancel_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_add_with_finalizeMcResultFlood(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultFlood(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultFlood_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_add_with_finalizeMcResultL3Rpf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultL3Rpf(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_modify_with_finalizeMcResultL3Rpf_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_set_default_action_finalizeMcResultIpmc(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResultIpmc_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_set_default_action_finalizeMcResultL2mc(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResultL2mc_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_set_default_action_finalizeMcResultL2mcFlood(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResultL2mcFlood_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_set_default_action_finalizeMcResultCancel(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResultCancel_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_set_default_action_finalizeMcResultFlood(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalizeMcResultFlood_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_set_default_action_finalizeMcResultL3Rpf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_finalizeMcResult_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_finalizeMcResult_match_spec_schema(void);
int p4_pd_tessel_switch_finalizeMcResult_schema(char *buffer);
int p4_pd_tessel_switch_finalizeMcResult_match_spec_value(
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_finalizeMcResult_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_finalizeMcResult_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *match_spec);
bool p4_pd_tessel_switch_finalizeMcResult_match_specs_are_equal(
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *a,
    const p4_pd_tessel_switch_finalizeMcResult_match_spec_t *b);
uint32_t p4_pd_tessel_switch_finalizeMcResult_egrMd_trapToCpu_width(void);
uint32_t p4_pd_tessel_switch_finalizeMcResult_ingIpmc_eValid_width(void);
uint32_t p4_pd_tessel_switch_finalizeMcResult_ingL2Mc_eValid_width(void);
uint32_t p4_pd_tessel_switch_finalizeMcResult_ingMd_igmpSnoopingEnabled_width(void);
uint32_t p4_pd_tessel_switch_finalizeMcResult_ingMd_ipMcast_width(void);
uint32_t p4_pd_tessel_switch_finalizeMcResult_ingMd_llm_width(void);
uint32_t p4_pd_tessel_switch_finalizeMcResult_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_finalizeMcResult_ingMd_ttl_width(void);
uint32_t p4_pd_tessel_switch_finalizeMcResult_l3Info_ipRouting_width(void);
int p4_pd_tessel_switch_finalizeMcResult_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_finalizeMcResult_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_finalizeMcResult_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table l2XRemap (0x01000063), exact ==== */

/* Key of 9 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_l2XRemap_match_spec {
  uint16_t ig_intr_md_ingress_port; /* 9 bits */
} p4_pd_tessel_switch_l2XRemap_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_l2XRemap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_l2XRemap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_table_add_with_setL2XId(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_l2XRemap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setL2XId_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_table_modify_with_setL2XId(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setL2XId_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_table_modify_with_setL2XId_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2XRemap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setL2XId_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2XRemap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_match_spec_to_entry_hdl(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_l2XRemap_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_set_default_action_setL2XId(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setL2XId_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_l2XRemap_match_spec_t *match_spec, char *action_name, void *action_spec,
    uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_l2XRemap_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_l2XRemap_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_l2XRemap_match_spec_schema(void);
int p4_pd_tessel_switch_l2XRemap_schema(char *buffer);
int p4_pd_tessel_switch_l2XRemap_match_spec_value(
    const p4_pd_tessel_switch_l2XRemap_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_l2XRemap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_l2XRemap_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_l2XRemap_match_spec_t *match_spec);
bool p4_pd_tessel_switch_l2XRemap_match_specs_are_equal(
    const p4_pd_tessel_switch_l2XRemap_match_spec_t *a,
    const p4_pd_tessel_switch_l2XRemap_match_spec_t *b);
uint32_t p4_pd_tessel_switch_l2XRemap_ig_intr_md_ingress_port_width(void);
int p4_pd_tessel_switch_l2XRemap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_l2XRemap_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_l2XRemap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table mcastPrune (0x01000064), ternary ==== */

/* Key of 42 bits in 8 bytes. */
typedef struct p4_pd_tessel_switch_mcastPrune_match_spec {
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t egrMd_decapType_mask; /* set bits take part */
  uint8_t egrMd_routed; /* 1 bit */
  uint8_t egrMd_routed_mask; /* set bits take part */
  uint8_t phase0_portType; /* 2 bits */
  uint8_t phase0_portType_mask; /* set bits take part */
  uint32_t egrMd_egrL2AintfUnresolved; /* 20 bits, key bits 0xf0000 */
  uint32_t egrMd_egrL2AintfUnresolved_mask; /* set bits take part */
  uint16_t ig_intr_md_for_tm_mcast_grp_a; /* 16 bits, key bits 0xf000 */
  uint16_t ig_intr_md_for_tm_mcast_grp_a_mask; /* set bits take part */
} p4_pd_tessel_switch_mcastPrune_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_mcastPrune_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_mcastPrune_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_add_with_setPruneParams(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setPruneParams_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_modify_with_setPruneParams(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setPruneParams_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_modify_with_setPruneParams_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setPruneParams_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_add_with_setPruneParamsForL2Flood(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_modify_with_setPruneParamsForL2Flood(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_modify_with_setPruneParamsForL2Flood_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_add_with_setPruneParamsForL3Only(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_modify_with_setPruneParamsForL3Only(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_modify_with_setPruneParamsForL3Only_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setPruneParamsForL3Only_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_add_with_l3FloodEgressL2Aintf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_modify_with_l3FloodEgressL2Aintf(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_modify_with_l3FloodEgressL2Aintf_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_set_default_action_setPruneParamsForL2Flood(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setPruneParamsForL2Flood_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, uint32_t *priority, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_mcastPrune_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec,
    uint32_t *priority, p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_mcastPrune_match_spec_schema(void);
int p4_pd_tessel_switch_mcastPrune_schema(char *buffer);
int p4_pd_tessel_switch_mcastPrune_match_spec_value(
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_mcastPrune_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_mcastPrune_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *match_spec);
bool p4_pd_tessel_switch_mcastPrune_match_specs_are_equal(
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *a,
    const p4_pd_tessel_switch_mcastPrune_match_spec_t *b);
uint32_t p4_pd_tessel_switch_mcastPrune_egrMd_decapType_width(void);
uint32_t p4_pd_tessel_switch_mcastPrune_egrMd_routed_width(void);
uint32_t p4_pd_tessel_switch_mcastPrune_phase0_portType_width(void);
uint32_t p4_pd_tessel_switch_mcastPrune_egrMd_egrL2AintfUnresolved_width(void);
uint32_t p4_pd_tessel_switch_mcastPrune_ig_intr_md_for_tm_mcast_grp_a_width(void);
int p4_pd_tessel_switch_mcastPrune_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_mcastPrune_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_mcastPrune_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egressMcRemap (0x01000065), exact ==== */

/* Key of 16 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_egressMcRemap_match_spec {
  uint16_t eg_intr_md_egress_rid; /* 16 bits */
} p4_pd_tessel_switch_egressMcRemap_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egressMcRemap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_table_add_with_setL2DomainReplicated(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMcRemap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_table_modify_with_setL2DomainReplicated(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_table_modify_with_setL2DomainReplicated_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMcRemap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMcRemap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMcRemap_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_set_default_action_setL2DomainReplicated(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_egressMcRemap_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egressMcRemap_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_egressMcRemap_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_egressMcRemap_match_spec_schema(void);
int p4_pd_tessel_switch_egressMcRemap_schema(char *buffer);
int p4_pd_tessel_switch_egressMcRemap_match_spec_value(
    const p4_pd_tessel_switch_egressMcRemap_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_egressMcRemap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egressMcRemap_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_egressMcRemap_match_spec_t *match_spec);
bool p4_pd_tessel_switch_egressMcRemap_match_specs_are_equal(
    const p4_pd_tessel_switch_egressMcRemap_match_spec_t *a,
    const p4_pd_tessel_switch_egressMcRemap_match_spec_t *b);
uint32_t p4_pd_tessel_switch_egressMcRemap_eg_intr_md_egress_rid_width(void);
int p4_pd_tessel_switch_egressMcRemap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egressMcRemap_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_egressMcRemap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table haloXformIpv4Sip (0x01000066), ternary ==== */

/* Key of 32 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_haloXformIpv4Sip_match_spec {
  uint32_t ingIpv4_sip; /* 32 bits */
  uint32_t ingIpv4_sip_mask; /* set bits take part */
} p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_haloXformIpv4Sip_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_add_with_setHaloXformIpv4Sip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_modify_with_setHaloXformIpv4Sip(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_modify_with_setHaloXformIpv4Sip_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setHaloXformIpv4Sip_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_add_with_setHaloInvalidSip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_modify_with_setHaloInvalidSip(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_modify_with_setHaloInvalidSip_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_add_with_setHaloIpv4Common(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_modify_with_setHaloIpv4Common(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_modify_with_setHaloIpv4Common_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_set_default_action_setHaloIpv4Common(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Sip_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_schema(void);
int p4_pd_tessel_switch_haloXformIpv4Sip_schema(char *buffer);
int p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_value(
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_haloXformIpv4Sip_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *match_spec);
bool p4_pd_tessel_switch_haloXformIpv4Sip_match_specs_are_equal(
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *a,
    const p4_pd_tessel_switch_haloXformIpv4Sip_match_spec_t *b);
uint32_t p4_pd_tessel_switch_haloXformIpv4Sip_ingIpv4_sip_width(void);
int p4_pd_tessel_switch_haloXformIpv4Sip_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_haloXformIpv4Sip_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_haloXformIpv4Sip_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table haloXformIpv6Sip (0x01000067), ternary ==== */

/* Key of 128 bits in 16 bytes. */
typedef struct p4_pd_tessel_switch_haloXformIpv6Sip_match_spec {
  uint8_t ingIpv6_sip[16]; /* 128 bits */
  uint8_t ingIpv6_sip_mask[16]; /* set bits take part */
} p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_haloXformIpv6Sip_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_add_with_setHaloXformIpv6Sip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_modify_with_setHaloXformIpv6Sip(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_modify_with_setHaloXformIpv6Sip_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setHaloXformIpv6Sip_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_add_with_setHaloInvalidSip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_modify_with_setHaloInvalidSip(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_modify_with_setHaloInvalidSip_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_add_with_setHaloIpv6Common(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_modify_with_setHaloIpv6Common(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_modify_with_setHaloIpv6Common_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_set_default_action_setHaloIpv6Common(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Sip_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_schema(void);
int p4_pd_tessel_switch_haloXformIpv6Sip_schema(char *buffer);
int p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_value(
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_haloXformIpv6Sip_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *match_spec);
bool p4_pd_tessel_switch_haloXformIpv6Sip_match_specs_are_equal(
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *a,
    const p4_pd_tessel_switch_haloXformIpv6Sip_match_spec_t *b);
uint32_t p4_pd_tessel_switch_haloXformIpv6Sip_ingIpv6_sip_width(void);
int p4_pd_tessel_switch_haloXformIpv6Sip_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_haloXformIpv6Sip_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_haloXformIpv6Sip_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table haloXformIpv4Dip (0x01000068), ternary ==== */

/* Key of 32 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_haloXformIpv4Dip_match_spec {
  uint32_t ingIpv4_dip; /* 32 bits */
  uint32_t ingIpv4_dip_mask; /* set bits take part */
} p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_haloXformIpv4Dip_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_add_with_setHaloXformDip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_modify_with_setHaloXformDip(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_modify_with_setHaloXformDip_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_add_with_setHaloInvalidDip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_modify_with_setHaloInvalidDip(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_modify_with_setHaloInvalidDip_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_set_default_action_setHaloXformDip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_set_default_action_setHaloInvalidDip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv4Dip_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_schema(void);
int p4_pd_tessel_switch_haloXformIpv4Dip_schema(char *buffer);
int p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_value(
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_haloXformIpv4Dip_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *match_spec);
bool p4_pd_tessel_switch_haloXformIpv4Dip_match_specs_are_equal(
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *a,
    const p4_pd_tessel_switch_haloXformIpv4Dip_match_spec_t *b);
uint32_t p4_pd_tessel_switch_haloXformIpv4Dip_ingIpv4_dip_width(void);
int p4_pd_tessel_switch_haloXformIpv4Dip_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_haloXformIpv4Dip_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_haloXformIpv4Dip_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table haloXformIpv6Dip (0x01000069), ternary ==== */

/* Key of 128 bits in 16 bytes. */
typedef struct p4_pd_tessel_switch_haloXformIpv6Dip_match_spec {
  uint8_t ingIpv6_dip[16]; /* 128 bits */
  uint8_t ingIpv6_dip_mask[16]; /* set bits take part */
} p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_haloXformIpv6Dip_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_add_with_setHaloXformDip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_modify_with_setHaloXformDip(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_modify_with_setHaloXformDip_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_add_with_setHaloInvalidDip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_modify_with_setHaloInvalidDip(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_modify_with_setHaloInvalidDip_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_set_default_action_setHaloXformDip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setHaloXformDip_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_set_default_action_setHaloInvalidDip(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_haloXformIpv6Dip_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_schema(void);
int p4_pd_tessel_switch_haloXformIpv6Dip_schema(char *buffer);
int p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_value(
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_haloXformIpv6Dip_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *match_spec);
bool p4_pd_tessel_switch_haloXformIpv6Dip_match_specs_are_equal(
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *a,
    const p4_pd_tessel_switch_haloXformIpv6Dip_match_spec_t *b);
uint32_t p4_pd_tessel_switch_haloXformIpv6Dip_ingIpv6_dip_width(void);
int p4_pd_tessel_switch_haloXformIpv6Dip_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_haloXformIpv6Dip_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_haloXformIpv6Dip_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table finalDropControl (0x0100006a), ternary ==== */

/* Key of 72 bits in 32 bytes. */
typedef struct p4_pd_tessel_switch_finalDropControl_match_spec {
  uint8_t tesselFlowMgmtHdr_valid; /* 1 bit */
  uint8_t tesselFlowMgmtHdr_valid_mask; /* set bits take part */
  uint8_t kflowMd_drop; /* 1 bit */
  uint8_t kflowMd_drop_mask; /* set bits take part */
  uint32_t egrMd_egrL2AintfUnresolved; /* 20 bits */
  uint32_t egrMd_egrL2AintfUnresolved_mask; /* set bits take part */
  uint8_t egrMd_routed; /* 1 bit */
  uint8_t egrMd_routed_mask; /* set bits take part */
  uint8_t egrMd_trapToCpu; /* 1 bit */
  uint8_t egrMd_trapToCpu_mask; /* set bits take part */
  uint8_t flowMgmt_flowLimitDrop; /* 1 bit */
  uint8_t flowMgmt_flowLimitDrop_mask; /* set bits take part */
  uint8_t flowMgmt_newFlowMeterDrop; /* 1 bit */
  uint8_t flowMgmt_newFlowMeterDrop_mask; /* set bits take part */
  uint8_t fwMd_escortToRecircPort; /* 1 bit */
  uint8_t fwMd_escortToRecircPort_mask; /* set bits take part */
  uint8_t fwMd_fwDrop; /* 1 bit */
  uint8_t fwMd_fwDrop_mask; /* set bits take part */
  uint8_t fwMd_meterDrop; /* 1 bit */
  uint8_t fwMd_meterDrop_mask; /* set bits take part */
  uint8_t ig_intr_md_for_tm_copy_to_cpu; /* 1 bit */
  uint8_t ig_intr_md_for_tm_copy_to_cpu_mask; /* set bits take part */
  uint16_t ig_intr_md_for_tm_mcast_grp_a; /* 16 bits */
  uint16_t ig_intr_md_for_tm_mcast_grp_a_mask; /* set bits take part */
  uint16_t ig_intr_md_ingress_port; /* 9 bits, key bits 0x7f */
  uint16_t ig_intr_md_ingress_port_mask; /* set bits take part */
  uint8_t ingMd_bcast; /* 1 bit */
  uint8_t ingMd_bcast_mask; /* set bits take part */
  uint8_t ingMd_dot1xDrop; /* 1 bit */
  uint8_t ingMd_dot1xDrop_mask; /* set bits take part */
  uint8_t ingMd_drop; /* 1 bit */
  uint8_t ingMd_drop_mask; /* set bits take part */
  uint8_t ingMd_dropDatalink; /* 1 bit */
  uint8_t ingMd_dropDatalink_mask; /* set bits take part */
  uint8_t ingMd_dropDmac; /* 1 bit */
  uint8_t ingMd_dropDmac_mask; /* set bits take part */
  uint8_t ingMd_dropSmac; /* 1 bit */
  uint8_t ingMd_dropSmac_mask; /* set bits take part */
  uint8_t ingMd_invalidEgressPort; /* 1 bit */
  uint8_t ingMd_invalidEgressPort_mask; /* set bits take part */
  uint8_t ingMd_mcast; /* 1 bit */
  uint8_t ingMd_mcast_mask; /* set bits take part */
  uint8_t ingMd_mlagPrune; /* 1 bit */
  uint8_t ingMd_mlagPrune_mask; /* set bits take part */
  uint8_t ingMd_routedMartian; /* 1 bit */
  uint8_t ingMd_routedMartian_mask; /* set bits take part */
  uint8_t ingMd_samePortBridging; /* 1 bit */
  uint8_t ingMd_samePortBridging_mask; /* set bits take part */
  uint8_t ingMd_stormControlDrop; /* 1 bit */
  uint8_t ingMd_stormControlDrop_mask; /* set bits take part */
  uint8_t ingMd_v4V6Valid; /* 3 bits, key bits 0x4 */
  uint8_t ingMd_v4V6Valid_mask; /* set bits take part */
  uint8_t ingVlanStpCheck_invalidVlan; /* 1 bit */
  uint8_t ingVlanStpCheck_invalidVlan_mask; /* set bits take part */
  uint8_t ingVlanStpCheck_stpBlocked; /* 1 bit */
  uint8_t ingVlanStpCheck_stpBlocked_mask; /* set bits take part */
} p4_pd_tessel_switch_finalDropControl_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_finalDropControl_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_finalDropControl_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_add_with_accept(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_accept(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_accept_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_add_with_acceptLog(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_acceptLog(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_acceptLog_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_add_with_dropCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_dropCount(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_dropCount_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_add_with_dropCountAndLog(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_dropCountAndLog(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_dropCountAndLog_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_add_with_finalDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_finalDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_modify_with_finalDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_set_default_action_accept(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_finalDropControl_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_finalDropControl_match_spec_schema(void);
int p4_pd_tessel_switch_finalDropControl_schema(char *buffer);
int p4_pd_tessel_switch_finalDropControl_match_spec_value(
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_finalDropControl_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_finalDropControl_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec);
int p4_pd_tessel_switch_finalDropControl_match_spec_stringify_for_counter(
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_finalDropControl_stringify_counter_match_spec(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tessel_switch_finalDropControl_match_specs_are_equal(
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *a,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *b);
uint32_t p4_pd_tessel_switch_finalDropControl_tesselFlowMgmtHdr_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_kflowMd_drop_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_egrMd_egrL2AintfUnresolved_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_egrMd_routed_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_egrMd_trapToCpu_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_flowMgmt_flowLimitDrop_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_flowMgmt_newFlowMeterDrop_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_fwMd_escortToRecircPort_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_fwMd_fwDrop_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_fwMd_meterDrop_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ig_intr_md_for_tm_copy_to_cpu_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ig_intr_md_for_tm_mcast_grp_a_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ig_intr_md_ingress_port_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_bcast_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_dot1xDrop_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_drop_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_dropDatalink_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_dropDmac_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_dropSmac_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_invalidEgressPort_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_mcast_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_mlagPrune_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_routedMartian_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_samePortBridging_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_stormControlDrop_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingMd_v4V6Valid_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingVlanStpCheck_invalidVlan_width(void);
uint32_t p4_pd_tessel_switch_finalDropControl_ingVlanStpCheck_stpBlocked_width(void);
int p4_pd_tessel_switch_finalDropControl_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_finalDropControl_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_finalDropControl_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table decapIngress (0x0100006b), exact ==== */

/* Key of 13 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_decapIngress_match_spec {
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t ingMd_protocol; /* 8 bits, key bits 0x80 */
  uint8_t outerIpv4Hdr_valid; /* 1 bit */
  uint8_t outerIpv6Hdr_valid; /* 1 bit */
} p4_pd_tessel_switch_decapIngress_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_decapIngress_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_decapIngress_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_add_with_setDecapEscapeIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_modify_with_setDecapEscapeIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_modify_with_setDecapEscapeIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_add_with_setDecapEscapeIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_modify_with_setDecapEscapeIpv6(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_modify_with_setDecapEscapeIpv6_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_add_with_removeOuterIpv4Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_modify_with_removeOuterIpv4Hdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_modify_with_removeOuterIpv4Hdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_add_with_removeOuterIpv6Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_modify_with_removeOuterIpv6Hdr(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_modify_with_removeOuterIpv6Hdr_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_set_default_action_setDecapEscapeIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setDecapEscapeIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_set_default_action_setDecapEscapeIpv6(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setDecapEscapeIpv6_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_set_default_action_removeOuterIpv4Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_set_default_action_removeOuterIpv6Hdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_decapIngress_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_decapIngress_match_spec_schema(void);
int p4_pd_tessel_switch_decapIngress_schema(char *buffer);
int p4_pd_tessel_switch_decapIngress_match_spec_value(
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_decapIngress_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_decapIngress_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *match_spec);
bool p4_pd_tessel_switch_decapIngress_match_specs_are_equal(
    const p4_pd_tessel_switch_decapIngress_match_spec_t *a,
    const p4_pd_tessel_switch_decapIngress_match_spec_t *b);
uint32_t p4_pd_tessel_switch_decapIngress_egrMd_decapType_width(void);
uint32_t p4_pd_tessel_switch_decapIngress_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_decapIngress_outerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_decapIngress_outerIpv6Hdr_width(void);
int p4_pd_tessel_switch_decapIngress_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_decapIngress_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_decapIngress_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table decapRestore (0x0100006c), exact ==== */

/* Key of 3 bits in 3 bytes. */
typedef struct p4_pd_tessel_switch_decapRestore_match_spec {
  uint8_t egrMd_decapRestore; /* 1 bit */
  uint8_t outerIpv4Hdr_valid; /* 1 bit */
  uint8_t outerIpv6Hdr_valid; /* 1 bit */
} p4_pd_tessel_switch_decapRestore_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_decapRestore_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_decapRestore_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_add_with_restoreOuterIpv4HeaderL4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_modify_with_restoreOuterIpv4HeaderL4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_modify_with_restoreOuterIpv4HeaderL4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_add_with_restoreOuterIpv6HeaderL4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_modify_with_restoreOuterIpv6HeaderL4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_modify_with_restoreOuterIpv6HeaderL4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_set_default_action_restoreOuterIpv4HeaderL4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_set_default_action_restoreOuterIpv6HeaderL4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_decapRestore_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_decapRestore_match_spec_schema(void);
int p4_pd_tessel_switch_decapRestore_schema(char *buffer);
int p4_pd_tessel_switch_decapRestore_match_spec_value(
    const p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_decapRestore_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_decapRestore_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_decapRestore_match_spec_t *match_spec);
bool p4_pd_tessel_switch_decapRestore_match_specs_are_equal(
    const p4_pd_tessel_switch_decapRestore_match_spec_t *a,
    const p4_pd_tessel_switch_decapRestore_match_spec_t *b);
uint32_t p4_pd_tessel_switch_decapRestore_egrMd_decapRestore_width(void);
uint32_t p4_pd_tessel_switch_decapRestore_outerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_decapRestore_outerIpv6Hdr_width(void);
int p4_pd_tessel_switch_decapRestore_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_decapRestore_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_decapRestore_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table trapToCpu (0x0100006d), ternary ==== */

/* Key of 287 bits in 44 bytes. */
typedef struct p4_pd_tessel_switch_trapToCpu_match_spec {
  uint8_t arpHdr_valid; /* 1 bit */
  uint8_t arpHdr_valid_mask; /* set bits take part */
  uint16_t arpHdr_opcode; /* 16 bits */
  uint16_t arpHdr_opcode_mask; /* set bits take part */
  uint8_t egrMd_cpuReasonCode; /* 8 bits */
  uint8_t egrMd_cpuReasonCode_mask; /* set bits take part */
  uint8_t egrMd_decapType; /* 3 bits */
  uint8_t egrMd_decapType_mask; /* set bits take part */
  uint8_t egrMd_vxlanFlood; /* 1 bit */
  uint8_t egrMd_vxlanFlood_mask; /* set bits take part */
  uint32_t ingIpv4_dip; /* 32 bits */
  uint32_t ingIpv4_dip_mask; /* set bits take part */
  uint8_t ingIpv6_dip[16]; /* 128 bits, key bits 0xffff0000000000000000000000000000 */
  uint8_t ingIpv6_dip_mask[16]; /* set bits take part */
  uint8_t ingMd_bcast; /* 1 bit */
  uint8_t ingMd_bcast_mask; /* set bits take part */
  uint8_t ingMd_cpuMemberOfIngressVlan; /* 1 bit */
  uint8_t ingMd_cpuMemberOfIngressVlan_mask; /* set bits take part */
  uint16_t ingMd_dstPort; /* 16 bits */
  uint16_t ingMd_dstPort_mask; /* set bits take part */
  uint16_t ingMd_etherType; /* 16 bits */
  uint16_t ingMd_etherType_mask; /* set bits take part */
  uint8_t ingMd_igmpSnoopingEnabled; /* 1 bit */
  uint8_t ingMd_igmpSnoopingEnabled_mask; /* set bits take part */
  uint16_t ingMd_ingL3Aintf; /* 12 bits */
  uint16_t ingMd_ingL3Aintf_mask; /* set bits take part */
  uint8_t ingMd_l4Attr; /* 3 bits */
  uint8_t ingMd_l4Attr_mask; /* set bits take part */
  uint8_t ingMd_mcast; /* 1 bit */
  uint8_t ingMd_mcast_mask; /* set bits take part */
  uint8_t ingMd_protocol; /* 8 bits */
  uint8_t ingMd_protocol_mask; /* set bits take part */
  uint16_t ingMd_srcPort; /* 16 bits */
  uint16_t ingMd_srcPort_mask; /* set bits take part */
  uint8_t ingMd_ttl; /* 8 bits */
  uint8_t ingMd_ttl_mask; /* set bits take part */
  uint8_t l3Info_ingL3DmacValid; /* 1 bit */
  uint8_t l3Info_ingL3DmacValid_mask; /* set bits take part */
  uint16_t phase0_ingVPort; /* 14 bits */
  uint16_t phase0_ingVPort_mask; /* set bits take part */
} p4_pd_tessel_switch_trapToCpu_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_trapToCpu_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_trapToCpu_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_add_with_trapPacket(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_trapPacket_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_modify_with_trapPacket(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_trapPacket_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_modify_with_trapPacket_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_trapPacket_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_add_with_copyPacket(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPacket_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_modify_with_copyPacket(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_copyPacket_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_modify_with_copyPacket_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPacket_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_add_with_setLlm(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_modify_with_setLlm(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_modify_with_setLlm_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_add_with_noOp(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t priority, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_modify_with_noOp(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_modify_with_noOp_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_set_default_action_trapPacket(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_trapPacket_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_set_default_action_copyPacket(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_copyPacket_action_spec_t *action_spec, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_set_default_action_setLlm(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_set_default_action_noOp(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, uint32_t *priority, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_trapToCpu_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec,
    uint32_t *priority, p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_trapToCpu_match_spec_schema(void);
int p4_pd_tessel_switch_trapToCpu_schema(char *buffer);
int p4_pd_tessel_switch_trapToCpu_match_spec_value(
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_trapToCpu_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_trapToCpu_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec);
int p4_pd_tessel_switch_trapToCpu_match_spec_stringify_for_counter(
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_trapToCpu_stringify_counter_match_spec(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tessel_switch_trapToCpu_match_specs_are_equal(
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *a,
    const p4_pd_tessel_switch_trapToCpu_match_spec_t *b);
uint32_t p4_pd_tessel_switch_trapToCpu_arpHdr_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_arpHdr_opcode_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_egrMd_cpuReasonCode_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_egrMd_decapType_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_egrMd_vxlanFlood_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingIpv4_dip_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingIpv6_dip_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_bcast_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_cpuMemberOfIngressVlan_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_dstPort_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_etherType_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_igmpSnoopingEnabled_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_ingL3Aintf_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_l4Attr_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_mcast_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_srcPort_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_ingMd_ttl_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_l3Info_ingL3DmacValid_width(void);
uint32_t p4_pd_tessel_switch_trapToCpu_phase0_ingVPort_width(void);
int p4_pd_tessel_switch_trapToCpu_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_trapToCpu_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_trapToCpu_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingressMirrorSession (0x0100006e), ternary ==== */

/* Key of 122 bits in 19 bytes. */
typedef struct p4_pd_tessel_switch_ingressMirrorSession_match_spec {
  uint16_t haloKeyOrig_dipMirror; /* 16 bits */
  uint16_t haloKeyOrig_dipMirror_mask; /* set bits take part */
  uint8_t haloKeyOrig_flags; /* 8 bits */
  uint8_t haloKeyOrig_flags_mask; /* set bits take part */
  uint8_t haloKeyOrig_isFrag; /* 1 bit */
  uint8_t haloKeyOrig_isFrag_mask; /* set bits take part */
  uint16_t haloKeyOrig_sipMirror; /* 16 bits */
  uint16_t haloKeyOrig_sipMirror_mask; /* set bits take part */
  uint16_t ig_intr_md_ingress_port; /* 9 bits */
  uint16_t ig_intr_md_ingress_port_mask; /* set bits take part */
  uint8_t ingMd_protocol; /* 8 bits */
  uint8_t ingMd_protocol_mask; /* set bits take part */
  uint8_t ingMd_ttl; /* 8 bits */
  uint8_t ingMd_ttl_mask; /* set bits take part */
  uint8_t ingMd_v4V6Valid; /* 3 bits */
  uint8_t ingMd_v4V6Valid_mask; /* set bits take part */
  uint8_t l4PortHdr_valid; /* 1 bit */
  uint8_t l4PortHdr_valid_mask; /* set bits take part */
  uint16_t l4PortHdr_dstPort; /* 16 bits */
  uint16_t l4PortHdr_dstPort_mask; /* set bits take part */
  uint16_t l4PortHdr_srcPort; /* 16 bits */
  uint16_t l4PortHdr_srcPort_mask; /* set bits take part */
  uint16_t phase0_ingVPort; /* 14 bits */
  uint16_t phase0_ingVPort_mask; /* set bits take part */
  uint8_t qosMd_dscp; /* 6 bits */
  uint8_t qosMd_dscp_mask; /* set bits take part */
} p4_pd_tessel_switch_ingressMirrorSession_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingressMirrorSession_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_add_with_dropDatalink(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_modify_with_dropDatalink(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_modify_with_dropDatalink_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_add_with_setIngressMirrorSession(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_modify_with_setIngressMirrorSession(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_modify_with_setIngressMirrorSession_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_setIngressMirrorSession_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_set_default_action_dropDatalink(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorSession_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ingressMirrorSession_match_spec_schema(void);
int p4_pd_tessel_switch_ingressMirrorSession_schema(char *buffer);
int p4_pd_tessel_switch_ingressMirrorSession_match_spec_value(
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressMirrorSession_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingressMirrorSession_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ingressMirrorSession_match_specs_are_equal(
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *a,
    const p4_pd_tessel_switch_ingressMirrorSession_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_haloKeyOrig_dipMirror_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_haloKeyOrig_flags_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_haloKeyOrig_isFrag_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_haloKeyOrig_sipMirror_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_ig_intr_md_ingress_port_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_ingMd_protocol_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_ingMd_ttl_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_ingMd_v4V6Valid_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_l4PortHdr_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_l4PortHdr_dstPort_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_l4PortHdr_srcPort_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_phase0_ingVPort_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorSession_qosMd_dscp_width(void);
int p4_pd_tessel_switch_ingressMirrorSession_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingressMirrorSession_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_ingressMirrorSession_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingressMirrorRate (0x0100006f), exact ==== */

/* Key of 10 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_ingressMirrorRate_match_spec {
  uint16_t ingMirrorMd_mirrorBufId; /* 10 bits */
} p4_pd_tessel_switch_ingressMirrorRate_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingressMirrorRate_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_add_with_setIngressMirrorColor(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_modify_with_setIngressMirrorColor(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_modify_with_setIngressMirrorColor_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setIngressMirrorColor_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_add_with_setIngressMirrorColorRed(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_modify_with_setIngressMirrorColorRed(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_modify_with_setIngressMirrorColorRed_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_set_default_action_setIngressMirrorColorRed(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorRate_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ingressMirrorRate_match_spec_schema(void);
int p4_pd_tessel_switch_ingressMirrorRate_schema(char *buffer);
int p4_pd_tessel_switch_ingressMirrorRate_match_spec_value(
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressMirrorRate_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingressMirrorRate_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ingressMirrorRate_match_specs_are_equal(
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *a,
    const p4_pd_tessel_switch_ingressMirrorRate_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ingressMirrorRate_ingMirrorMd_mirrorBufId_width(void);
int p4_pd_tessel_switch_ingressMirrorRate_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingressMirrorRate_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ingressMirrorRate_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingressSflowSample (0x01000070), ternary ==== */

/* Key of 41 bits in 6 bytes. */
typedef struct p4_pd_tessel_switch_ingressSflowSample_match_spec {
  uint16_t ig_intr_md_ingress_port; /* 9 bits */
  uint16_t ig_intr_md_ingress_port_mask; /* set bits take part */
  uint32_t ingMd_rand; /* 32 bits, key bits 0xffffff00 */
  uint32_t ingMd_rand_mask; /* set bits take part */
} p4_pd_tessel_switch_ingressSflowSample_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingressSflowSample_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_add_with_samplePacket(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_modify_with_samplePacket(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_modify_with_samplePacket_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_set_default_action_samplePacket(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingressSflowSample_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ingressSflowSample_match_spec_schema(void);
int p4_pd_tessel_switch_ingressSflowSample_schema(char *buffer);
int p4_pd_tessel_switch_ingressSflowSample_match_spec_value(
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressSflowSample_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingressSflowSample_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ingressSflowSample_match_specs_are_equal(
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *a,
    const p4_pd_tessel_switch_ingressSflowSample_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ingressSflowSample_ig_intr_md_ingress_port_width(void);
uint32_t p4_pd_tessel_switch_ingressSflowSample_ingMd_rand_width(void);
int p4_pd_tessel_switch_ingressSflowSample_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingressSflowSample_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ingressSflowSample_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingressMirrorResult (0x01000071), exact ==== */

/* Key of 13 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_ingressMirrorResult_match_spec {
  uint8_t ingMd_sflowSample; /* 1 bit */
  uint8_t ingMirrorMd_mirrorColor; /* 2 bits, key bits 0x2 */
  uint16_t ingMirrorMd_mirrorSession; /* 10 bits */
} p4_pd_tessel_switch_ingressMirrorResult_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingressMirrorResult_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_table_add_with_ingressMirrorAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *match_spec,
    const p4_pd_tessel_switch_ingressMirrorAction_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_table_modify_with_ingressMirrorAction(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_ingressMirrorAction_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_table_modify_with_ingressMirrorAction_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *match_spec,
    const p4_pd_tessel_switch_ingressMirrorAction_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_set_default_action_ingressMirrorAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorAction_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorResult_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_ingressMirrorResult_match_spec_schema(void);
int p4_pd_tessel_switch_ingressMirrorResult_schema(char *buffer);
int p4_pd_tessel_switch_ingressMirrorResult_match_spec_value(
    const p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressMirrorResult_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingressMirrorResult_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ingressMirrorResult_match_specs_are_equal(
    const p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *a,
    const p4_pd_tessel_switch_ingressMirrorResult_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ingressMirrorResult_ingMd_sflowSample_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorResult_ingMirrorMd_mirrorColor_width(void);
uint32_t p4_pd_tessel_switch_ingressMirrorResult_ingMirrorMd_mirrorSession_width(void);
int p4_pd_tessel_switch_ingressMirrorResult_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingressMirrorResult_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ingressMirrorResult_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingressMirrorLagGroup (0x01000072), exact, bound to mirrorLagPortActionProfile ==== */

/* Key of 10 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec {
  uint16_t ingMirrorMd_mirrorSession; /* 10 bits, key bits 0x7f */
} p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingressMirrorLagGroup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    bool *has_member, bool *has_group, p4_pd_group_handle_t *group, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_add_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_member_handle_t member, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_modify_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_modify_entry_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_set_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_add_entry_with_selector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_group_handle_t group, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_modify_entry_with_selector(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_modify_entry_with_selector_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_set_default_entry_with_selector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t group,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec, bool *has_member,
    bool *has_group, p4_pd_group_handle_t *group, p4_pd_member_handle_t *member, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_ingressMirrorLagGroup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_member_handle_t *member, p4_pd_group_handle_t *group, bool *has_member, bool *has_group,
    bool *no_key);
const char *p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_schema(void);
int p4_pd_tessel_switch_ingressMirrorLagGroup_schema(char *buffer);
int p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_value(
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_ingressMirrorLagGroup_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_ingressMirrorLagGroup_match_specs_are_equal(
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *a,
    const p4_pd_tessel_switch_ingressMirrorLagGroup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_ingressMirrorLagGroup_ingMirrorMd_mirrorSession_width(void);
int p4_pd_tessel_switch_ingressMirrorLagGroup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingressMirrorLagGroup_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_ingressMirrorLagGroup_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table mirrorPacketEncap (0x01000073), exact ==== */

/* Key of 25 bits in 4 bytes. */
typedef struct p4_pd_tessel_switch_mirrorPacketEncap_match_spec {
  uint16_t eg_intr_md_egress_rid; /* 16 bits */
  uint16_t eg_intr_md_egress_port; /* 9 bits */
} p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_mirrorPacketEncap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_add_with_setMirrorPacketEncapNone(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapNone(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapNone_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_add_with_setMirrorPacketEncapCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapCpu(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapCpu_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_add_with_setMirrorPacketEncapGreIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapGreIpv4(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_modify_with_setMirrorPacketEncapGreIpv4_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_set_default_action_setMirrorPacketEncapNone(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_set_default_action_setMirrorPacketEncapCpu(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setMirrorPacketEncapCpu_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_set_default_action_setMirrorPacketEncapGreIpv4(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setMirrorPacketEncapGreIpv4_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_mirrorPacketEncap_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_mirrorPacketEncap_match_spec_schema(void);
int p4_pd_tessel_switch_mirrorPacketEncap_schema(char *buffer);
int p4_pd_tessel_switch_mirrorPacketEncap_match_spec_value(
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_mirrorPacketEncap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_mirrorPacketEncap_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *match_spec);
bool p4_pd_tessel_switch_mirrorPacketEncap_match_specs_are_equal(
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *a,
    const p4_pd_tessel_switch_mirrorPacketEncap_match_spec_t *b);
uint32_t p4_pd_tessel_switch_mirrorPacketEncap_eg_intr_md_egress_rid_width(void);
uint32_t p4_pd_tessel_switch_mirrorPacketEncap_eg_intr_md_egress_port_width(void);
int p4_pd_tessel_switch_mirrorPacketEncap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_mirrorPacketEncap_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_mirrorPacketEncap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egressMirrorSession (0x01000074), exact ==== */

/* Key of 9 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_egressMirrorSession_match_spec {
  uint16_t eg_intr_md_egress_port; /* 9 bits */
} p4_pd_tessel_switch_egressMirrorSession_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egressMirrorSession_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_table_add_with_setEgressMirrorSession(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorSession_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_table_modify_with_setEgressMirrorSession(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_table_modify_with_setEgressMirrorSession_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorSession_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorSession_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorSession_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_set_default_action_setEgressMirrorSession(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setEgressMirrorSession_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_egressMirrorSession_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorSession_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_egressMirrorSession_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_egressMirrorSession_match_spec_schema(void);
int p4_pd_tessel_switch_egressMirrorSession_schema(char *buffer);
int p4_pd_tessel_switch_egressMirrorSession_match_spec_value(
    const p4_pd_tessel_switch_egressMirrorSession_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_egressMirrorSession_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egressMirrorSession_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_egressMirrorSession_match_spec_t *match_spec);
bool p4_pd_tessel_switch_egressMirrorSession_match_specs_are_equal(
    const p4_pd_tessel_switch_egressMirrorSession_match_spec_t *a,
    const p4_pd_tessel_switch_egressMirrorSession_match_spec_t *b);
uint32_t p4_pd_tessel_switch_egressMirrorSession_eg_intr_md_egress_port_width(void);
int p4_pd_tessel_switch_egressMirrorSession_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egressMirrorSession_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_egressMirrorSession_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egressMirrorLagGroup (0x01000075), exact, bound to egrMirrorLagPortActionProfile ==== */

/* Key of 10 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_egressMirrorLagGroup_match_spec {
  uint16_t egrMirrorMd_mirrorSession; /* 10 bits, key bits 0x7f */
} p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egressMirrorLagGroup_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_table_delete(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    bool *has_member, bool *has_group, p4_pd_group_handle_t *group, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_add_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_member_handle_t member, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_modify_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_modify_entry_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_set_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_add_entry_with_selector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_group_handle_t group, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_modify_entry_with_selector(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_modify_entry_with_selector_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_set_default_entry_with_selector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t group,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec, bool *has_member,
    bool *has_group, p4_pd_group_handle_t *group, p4_pd_member_handle_t *member, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorLagGroup_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec,
    p4_pd_member_handle_t *member, p4_pd_group_handle_t *group, bool *has_member, bool *has_group,
    bool *no_key);
const char *p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_schema(void);
int p4_pd_tessel_switch_egressMirrorLagGroup_schema(char *buffer);
int p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_value(
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_egressMirrorLagGroup_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *match_spec);
bool p4_pd_tessel_switch_egressMirrorLagGroup_match_specs_are_equal(
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *a,
    const p4_pd_tessel_switch_egressMirrorLagGroup_match_spec_t *b);
uint32_t p4_pd_tessel_switch_egressMirrorLagGroup_egrMirrorMd_mirrorSession_width(void);
int p4_pd_tessel_switch_egressMirrorLagGroup_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egressMirrorLagGroup_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_egressMirrorLagGroup_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egressMirrorRate (0x01000076), exact ==== */

/* Key of 10 bits in 2 bytes. */
typedef struct p4_pd_tessel_switch_egressMirrorRate_match_spec {
  uint16_t egrMirrorMd_mirrorBufId; /* 10 bits */
} p4_pd_tessel_switch_egressMirrorRate_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egressMirrorRate_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_add_with_setEgressMirrorColor(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_modify_with_setEgressMirrorColor(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    const p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_modify_with_setEgressMirrorColor_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setEgressMirrorColor_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_add_with_setEgressMirrorColorRed(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_modify_with_setEgressMirrorColorRed(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_modify_with_setEgressMirrorColorRed_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_set_default_action_setEgressMirrorColorRed(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec, char *action_name,
    void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorRate_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_egressMirrorRate_match_spec_schema(void);
int p4_pd_tessel_switch_egressMirrorRate_schema(char *buffer);
int p4_pd_tessel_switch_egressMirrorRate_match_spec_value(
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_egressMirrorRate_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egressMirrorRate_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *match_spec);
bool p4_pd_tessel_switch_egressMirrorRate_match_specs_are_equal(
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *a,
    const p4_pd_tessel_switch_egressMirrorRate_match_spec_t *b);
uint32_t p4_pd_tessel_switch_egressMirrorRate_egrMirrorMd_mirrorBufId_width(void);
int p4_pd_tessel_switch_egressMirrorRate_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egressMirrorRate_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_egressMirrorRate_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egressPortDropCheck (0x01000078), ternary ==== */

/* Key of 23 bits in 9 bytes. */
typedef struct p4_pd_tessel_switch_egressPortDropCheck_match_spec {
  uint16_t eg_intr_md_egress_port; /* 9 bits, key bits 0x7f */
  uint8_t egrMd_routed; /* 1 bit */
  uint8_t egrMd_routed_mask; /* set bits take part */
  uint8_t egrVlanStpCheck_invalidVlan; /* 1 bit */
  uint8_t egrVlanStpCheck_invalidVlan_mask; /* set bits take part */
  uint8_t egrVlanStpCheck_stpBlocked; /* 1 bit */
  uint8_t egrVlanStpCheck_stpBlocked_mask; /* set bits take part */
  uint8_t fwMd_dipDrop; /* 1 bit */
  uint8_t fwMd_dipDrop_mask; /* set bits take part */
  uint8_t fwMd_sipDrop; /* 1 bit */
  uint8_t fwMd_sipDrop_mask; /* set bits take part */
  uint8_t outerIpv4Hdr_valid; /* 1 bit */
  uint8_t outerIpv4Hdr_valid_mask; /* set bits take part */
  uint8_t outerIpv4Hdr_ttl; /* 8 bits */
  uint8_t outerIpv4Hdr_ttl_mask; /* set bits take part */
} p4_pd_tessel_switch_egressPortDropCheck_match_spec_t;

p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egressPortDropCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_add_with_setEgressDrop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_modify_with_setEgressDrop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_modify_with_setEgressDrop_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_add_with_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_modify_with_onMiss(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_modify_with_onMiss_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_delete(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_delete_by_match_spec(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, uint32_t priority);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_match_spec_to_entry_hdl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_set_default_action_onMiss(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware,
    p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, uint32_t *priority,
    char *action_name, void *action_spec, uint32_t *action, bool *no_key);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egressPortDropCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, uint32_t *priority,
    p4_pd_tessel_switch_action_specs_t *action_specs, bool *no_key);
const char *p4_pd_tessel_switch_egressPortDropCheck_match_spec_schema(void);
int p4_pd_tessel_switch_egressPortDropCheck_schema(char *buffer);
int p4_pd_tessel_switch_egressPortDropCheck_match_spec_value(
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_egressPortDropCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egressPortDropCheck_match_spec_print(int descriptor, int indent,
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec);
int p4_pd_tessel_switch_egressPortDropCheck_match_spec_stringify_for_counter(
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *match_spec, char *buffer);
int p4_pd_tessel_switch_egressPortDropCheck_stringify_counter_match_spec(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, char *buffer);
bool p4_pd_tessel_switch_egressPortDropCheck_match_specs_are_equal(
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *a,
    const p4_pd_tessel_switch_egressPortDropCheck_match_spec_t *b);
uint32_t p4_pd_tessel_switch_egressPortDropCheck_eg_intr_md_egress_port_width(void);
uint32_t p4_pd_tessel_switch_egressPortDropCheck_egrMd_routed_width(void);
uint32_t p4_pd_tessel_switch_egressPortDropCheck_egrVlanStpCheck_invalidVlan_width(void);
uint32_t p4_pd_tessel_switch_egressPortDropCheck_egrVlanStpCheck_stpBlocked_width(void);
uint32_t p4_pd_tessel_switch_egressPortDropCheck_fwMd_dipDrop_width(void);
uint32_t p4_pd_tessel_switch_egressPortDropCheck_fwMd_sipDrop_width(void);
uint32_t p4_pd_tessel_switch_egressPortDropCheck_outerIpv4Hdr_width(void);
uint32_t p4_pd_tessel_switch_egressPortDropCheck_outerIpv4Hdr_ttl_width(void);
int p4_pd_tessel_switch_egressPortDropCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egressPortDropCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_egressPortDropCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table kiteFlowSetEgress (0x01000006), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_kiteFlowSetEgress_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_set_default_action_kiteFlowCopyEgrL2Aintf(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_kiteFlowSetEgress_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_kiteFlowSetEgress_schema(char *buffer);
int p4_pd_tessel_switch_kiteFlowSetEgress_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_kiteFlowSetEgress_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_kiteFlowSetEgress_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_kiteFlowSetEgress_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowHashTypeAFirst (0x01000010), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowHashTypeAFirst_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_set_default_action_flowHashComputeTypeAFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeAFirst_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowHashTypeAFirst_schema(char *buffer);
int p4_pd_tessel_switch_flowHashTypeAFirst_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowHashTypeAFirst_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowHashTypeAFirst_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowHashTypeAFirst_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowHashTypeASecond (0x01000011), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowHashTypeASecond_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_set_default_action_flowHashComputeTypeASecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeASecond_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowHashTypeASecond_schema(char *buffer);
int p4_pd_tessel_switch_flowHashTypeASecond_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowHashTypeASecond_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowHashTypeASecond_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowHashTypeASecond_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowHashTypeBFirst (0x01000012), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowHashTypeBFirst_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_set_default_action_flowHashComputeTypeBFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBFirst_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowHashTypeBFirst_schema(char *buffer);
int p4_pd_tessel_switch_flowHashTypeBFirst_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowHashTypeBFirst_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowHashTypeBFirst_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowHashTypeBFirst_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowHashTypeBSecond (0x01000013), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowHashTypeBSecond_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_set_default_action_flowHashComputeTypeBSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowHashTypeBSecond_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowHashTypeBSecond_schema(char *buffer);
int p4_pd_tessel_switch_flowHashTypeBSecond_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowHashTypeBSecond_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowHashTypeBSecond_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowHashTypeBSecond_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowSetupL4Ports (0x01000015), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowSetupL4Ports_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_set_default_action_flowSetupL4PortsAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowSetupL4Ports_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowSetupL4Ports_schema(char *buffer);
int p4_pd_tessel_switch_flowSetupL4Ports_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowSetupL4Ports_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowSetupL4Ports_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowSetupL4Ports_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowStateUpdateFirst (0x01000016), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowStateUpdateFirst_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_set_default_action_flowStateUpdateActionFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateFirst_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowStateUpdateFirst_schema(char *buffer);
int p4_pd_tessel_switch_flowStateUpdateFirst_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowStateUpdateFirst_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowStateUpdateFirst_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_flowStateUpdateFirst_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowStateCheckFirst (0x01000017), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowStateCheckFirst_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_set_default_action_flowStateLookupActionFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckFirst_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowStateCheckFirst_schema(char *buffer);
int p4_pd_tessel_switch_flowStateCheckFirst_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowStateCheckFirst_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowStateCheckFirst_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowStateCheckFirst_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowBusyFirst (0x01000018), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowBusyFirst_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_set_default_action_flowBusyActionFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowBusyFirst_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowBusyFirst_schema(char *buffer);
int p4_pd_tessel_switch_flowBusyFirst_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowBusyFirst_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowBusyFirst_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowBusyFirst_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowStateUpdateSecond (0x01000019), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowStateUpdateSecond_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_set_default_action_flowStateUpdateActionSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowStateUpdateSecond_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowStateUpdateSecond_schema(char *buffer);
int p4_pd_tessel_switch_flowStateUpdateSecond_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowStateUpdateSecond_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowStateUpdateSecond_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_flowStateUpdateSecond_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowStateCheckSecond (0x0100001a), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowStateCheckSecond_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_set_default_action_flowStateLookupActionSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowStateCheckSecond_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowStateCheckSecond_schema(char *buffer);
int p4_pd_tessel_switch_flowStateCheckSecond_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowStateCheckSecond_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowStateCheckSecond_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_flowStateCheckSecond_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowBusySecond (0x0100001b), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowBusySecond_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_set_default_action_flowBusyActionSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowBusySecond_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowBusySecond_schema(char *buffer);
int p4_pd_tessel_switch_flowBusySecond_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowBusySecond_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowBusySecond_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowBusySecond_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowStateConsolidate (0x0100001c), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowStateConsolidate_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_set_default_action_setFlowPresent(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowStateConsolidate_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowStateConsolidate_schema(char *buffer);
int p4_pd_tessel_switch_flowStateConsolidate_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowStateConsolidate_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowStateConsolidate_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_flowStateConsolidate_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowAddRecircHeader (0x0100001d), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowAddRecircHeader_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_set_default_action_flowAddRecircHeaderAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowAddRecircHeader_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowAddRecircHeader_schema(char *buffer);
int p4_pd_tessel_switch_flowAddRecircHeader_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowAddRecircHeader_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowAddRecircHeader_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowAddRecircHeader_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowLimit (0x0100001e), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowLimit_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowLimit_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_set_default_action_setFlowLimitExceeded(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setFlowLimitExceeded_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowLimit_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowLimit_schema(char *buffer);
int p4_pd_tessel_switch_flowLimit_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowLimit_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowLimit_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowLimit_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table flowRecircPacket (0x01000020), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_flowRecircPacket_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_set_default_action_flowRecircPacketAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_flowRecircPacketAction_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_flowRecircPacket_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_flowRecircPacket_schema(char *buffer);
int p4_pd_tessel_switch_flowRecircPacket_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_flowRecircPacket_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_flowRecircPacket_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_flowRecircPacket_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table firewallSipMeterDrop (0x01000027), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_firewallSipMeterDrop_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_set_default_action_firewallSipMeterDropAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_firewallSipMeterDrop_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_firewallSipMeterDrop_schema(char *buffer);
int p4_pd_tessel_switch_firewallSipMeterDrop_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_firewallSipMeterDrop_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_firewallSipMeterDrop_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_firewallSipMeterDrop_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table firewallDipMeterDrop (0x01000028), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_firewallDipMeterDrop_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_set_default_action_firewallDipMeterDropAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_firewallDipMeterDrop_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_firewallDipMeterDrop_schema(char *buffer);
int p4_pd_tessel_switch_firewallDipMeterDrop_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_firewallDipMeterDrop_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_firewallDipMeterDrop_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_firewallDipMeterDrop_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table fragCheck (0x01000029), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_fragCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_fragCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_set_default_action_setNonInitialFragment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_fragCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_fragCheck_schema(char *buffer);
int p4_pd_tessel_switch_fragCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_fragCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_fragCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_fragCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table sipHash (0x0100002a), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_sipHash_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_sipHash_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_sipHash_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_sipHash_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_sipHash_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_sipHash_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_sipHash_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_sipHash_set_default_action_sipHashCompute(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_sipHash_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_sipHash_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_sipHash_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_sipHash_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_sipHash_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_sipHash_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_sipHash_schema(char *buffer);
int p4_pd_tessel_switch_sipHash_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_sipHash_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_sipHash_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_sipHash_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table dipHash (0x0100002b), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_dipHash_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_dipHash_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_dipHash_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_dipHash_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_dipHash_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_dipHash_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_dipHash_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_dipHash_set_default_action_dipHashCompute(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_dipHash_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_dipHash_table_get_default_entry(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_dipHash_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_dipHash_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_dipHash_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_dipHash_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_dipHash_schema(char *buffer);
int p4_pd_tessel_switch_dipHash_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_dipHash_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_dipHash_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_dipHash_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);

/* ==== Table routedMartian (0x01000030), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_routedMartian_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_routedMartian_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_set_default_action_setRoutedMartian(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_routedMartian_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_routedMartian_schema(char *buffer);
int p4_pd_tessel_switch_routedMartian_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_routedMartian_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_routedMartian_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_routedMartian_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingVlanCheck (0x01000034), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingVlanCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_set_default_action_ingVlanAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingVlanCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_ingVlanCheck_schema(char *buffer);
int p4_pd_tessel_switch_ingVlanCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingVlanCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingVlanCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ingVlanCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table ingStpCheck (0x01000035), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_ingStpCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_set_default_action_ingStpAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_ingStpCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_ingStpCheck_schema(char *buffer);
int p4_pd_tessel_switch_ingStpCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_ingStpCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ingStpCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_ingStpCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egrVlanCheck (0x01000036), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egrVlanCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_set_default_action_egrVlanAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egrVlanCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_egrVlanCheck_schema(char *buffer);
int p4_pd_tessel_switch_egrVlanCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egrVlanCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egrVlanCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_egrVlanCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egrStpCheck (0x01000037), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egrStpCheck_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_set_default_action_egrStpAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egrStpCheck_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_egrStpCheck_schema(char *buffer);
int p4_pd_tessel_switch_egrStpCheck_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egrStpCheck_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egrStpCheck_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_egrStpCheck_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table hashComputeInnerEthHdr (0x01000039), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_hashComputeInnerEthHdr_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_set_default_action_hashComputeInnerEthHdrAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_hashComputeInnerEthHdr_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_hashComputeInnerEthHdr_schema(char *buffer);
int p4_pd_tessel_switch_hashComputeInnerEthHdr_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_hashComputeInnerEthHdr_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_hashComputeInnerEthHdr_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_hashComputeInnerEthHdr_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table hashComputeOuterIpv4Hdr (0x0100003a), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_set_default_action_hashComputeOuterIpv4HdrAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_get_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    bool read_from_hardware, char *action_name, void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_schema(char *buffer);
int p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_hashComputeOuterIpv4Hdr_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table hashComputeOuterIpv6Hdr (0x0100003b), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_set_default_action_hashComputeOuterIpv6HdrAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_get_entry(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
    bool read_from_hardware, char *action_name, void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_schema(char *buffer);
int p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_value(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_hashComputeOuterIpv6Hdr_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table hashComputeIpAndL4Hdr (0x0100003c), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_hashComputeIpAndL4Hdr_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_set_default_action_hashComputeIpAndL4HdrAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_hashComputeIpAndL4Hdr_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_hashComputeIpAndL4Hdr_schema(char *buffer);
int p4_pd_tessel_switch_hashComputeIpAndL4Hdr_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_hashComputeIpAndL4Hdr_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_hashComputeIpAndL4Hdr_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_hashComputeIpAndL4Hdr_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table samePortBridgingTest (0x0100004a), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_set_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t value,
    uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_get_property(
    p4_pd_session_handle_t session, uint8_t device, uint32_t property, uint32_t *value,
    uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_samePortBridgingTest_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_set_default_action_samePortBridgingTestAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_samePortBridgingTest_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_samePortBridgingTest_schema(char *buffer);
int p4_pd_tessel_switch_samePortBridgingTest_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_samePortBridgingTest_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_samePortBridgingTest_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_samePortBridgingTest_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table vlanDecap (0x01000050), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_vlanDecap_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_register_mat_update_cb(p4_pd_session_handle_t session,
    uint32_t device, pipe_mgr_mat_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_vlanDecap_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_set_default_action_removeVlanHdr(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_get_first_entry_handle(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_get_next_entry_handles(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
    p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_vlanDecap_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_vlanDecap_schema(char *buffer);
int p4_pd_tessel_switch_vlanDecap_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_vlanDecap_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_vlanDecap_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_vlanDecap_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table qosRewriteConfig (0x01000058), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_qosRewriteConfig_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_set_default_action_setQosRewriteConfiguration(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setQosRewriteConfiguration_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_qosRewriteConfig_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_qosRewriteConfig_schema(char *buffer);
int p4_pd_tessel_switch_qosRewriteConfig_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_qosRewriteConfig_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_qosRewriteConfig_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_qosRewriteConfig_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table queueCounters (0x0100005f), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_queueCounters_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_get_entry_count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_queueCounters_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_set_default_action_countEgressQueue(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_queueCounters_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_queueCounters_schema(char *buffer);
int p4_pd_tessel_switch_queueCounters_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_queueCounters_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_queueCounters_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_queueCounters_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Table egressMirrorResult (0x01000077), no key ==== */

p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_get_mat_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_get_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_set_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_get_property(p4_pd_session_handle_t session,
    uint8_t device, uint32_t property, uint32_t *value, uint32_t *argument);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_register_mat_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_mat_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_table_reset_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
int p4_pd_tessel_switch_egressMirrorResult_supports_entry_priority(void);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_set_default_action_egressMirrorAction(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_table_get_default_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_table_get_default_entry(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_get_entry(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_entry_handle_t entry, bool read_from_hardware, char *action_name,
    void *action_spec, uint32_t *action);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_egressMirrorResult_get_entry_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs,
    bool *no_key);
int p4_pd_tessel_switch_egressMirrorResult_schema(char *buffer);
int p4_pd_tessel_switch_egressMirrorResult_value(p4_pd_session_handle_t session, uint8_t device,
    p4_pd_entry_handle_t entry, bool read_from_hardware, char *buffer);
int p4_pd_tessel_switch_egressMirrorResult_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egressMirrorResult_plcmt_data_value(const pipe_mgr_placement_t *placement,
    char *buffer);
int p4_pd_tessel_switch_egressMirrorResult_plcmt_data_eq_to_hw(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table_handle, p4_pd_entry_handle_t entry,
    const pipe_mgr_placement_t *placement);

/* ==== Profile ecmpMemberActionProfile (action data 0x0200002f, selector 0x03000001) ==== */

p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setEcmpNextHop_action_spec_t *action_spec,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_modify_member_with_setEcmpNextHop(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member,
    const p4_pd_tessel_switch_setEcmpNextHop_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_del_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_create_group(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t max_size,
    p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_del_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_add_member_to_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_del_member_from_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_group_member_state_set(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t state);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_group_member_state_get(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t *state);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_group_member_get_from_hash(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    const uint8_t *hash, uint32_t hash_length, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_set_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_reset_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_register_callback(
    p4_pd_session_handle_t session, uint8_t device, pipe_mgr_sel_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_sel_track_updates(uint8_t device,
    pipe_mgr_sel_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_register_adt_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_adt_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_register_sel_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_sel_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_adt_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_sel_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member,
    bool read_from_hardware, p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_first_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_next_members(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member,
    uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_first_group(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_next_groups(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t group,
    uint32_t count, p4_pd_group_handle_t *groups);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_first_group_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_next_group_members(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_act_prof_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_selector_group_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_selector_group_member_count(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_word_llp_active_member_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_word_llp_active_members(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t count,
    p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_member_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_ecmpMemberActionProfile_get_full_member_info_from_plcmt_data(
    uint8_t device, p4_pd_member_handle_t member, const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_action_specs_t *action_specs);
int p4_pd_tessel_switch_ecmpMemberActionProfile_schema(char *buffer);
int p4_pd_tessel_switch_ecmpMemberActionProfile_adt_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_ecmpMemberActionProfile_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);

/* ==== Profile egrMirrorLagPortActionProfile (action data 0x02000075, selector 0x03000004) ==== */

p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_add_member_with_setEgrLagMemberSelector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec_t *action_spec,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_modify_member_with_setEgrLagMemberSelector(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member,
    const p4_pd_tessel_switch_setEgrLagMemberSelector_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_del_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_create_group(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t max_size,
    p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_del_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_add_member_to_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_del_member_from_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_group_member_state_set(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t state);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_group_member_state_get(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t *state);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_group_member_get_from_hash(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    const uint8_t *hash, uint32_t hash_length, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_set_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_reset_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_register_callback(
    p4_pd_session_handle_t session, uint8_t device, pipe_mgr_sel_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_sel_track_updates(uint8_t device,
    pipe_mgr_sel_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_register_adt_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_adt_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_register_sel_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_sel_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_adt_table_handle(
    uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_sel_table_handle(
    uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member,
    bool read_from_hardware, p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_first_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_next_members(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member,
    uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_first_group(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_next_groups(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t group,
    uint32_t count, p4_pd_group_handle_t *groups);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_first_group_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_next_group_members(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_act_prof_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_selector_group_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_selector_group_member_count(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_word_llp_active_member_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_word_llp_active_members(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t count,
    p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_member_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_egrMirrorLagPortActionProfile_get_full_member_info_from_plcmt_data(
    uint8_t device, p4_pd_member_handle_t member, const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_action_specs_t *action_specs);
int p4_pd_tessel_switch_egrMirrorLagPortActionProfile_schema(char *buffer);
int p4_pd_tessel_switch_egrMirrorLagPortActionProfile_adt_plcmt_data_print(int descriptor,
    int indent, const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_egrMirrorLagPortActionProfile_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);

/* ==== Profile mirrorLagPortActionProfile (action data 0x02000072, selector 0x03000003) ==== */

p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_add_member_with_setLagMemberSelector(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setLagMemberSelector_action_spec_t *action_spec,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_modify_member_with_setLagMemberSelector(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member,
    const p4_pd_tessel_switch_setLagMemberSelector_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_del_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_create_group(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t max_size,
    p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_del_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_add_member_to_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_del_member_from_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_group_member_state_set(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t state);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_group_member_state_get(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t *state);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_group_member_get_from_hash(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    const uint8_t *hash, uint32_t hash_length, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_set_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_reset_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_register_callback(
    p4_pd_session_handle_t session, uint8_t device, pipe_mgr_sel_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_sel_track_updates(uint8_t device,
    pipe_mgr_sel_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_register_adt_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_adt_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_register_sel_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_sel_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_adt_table_handle(
    uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_sel_table_handle(
    uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member,
    bool read_from_hardware, p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_first_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_next_members(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member,
    uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_first_group(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_next_groups(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t group,
    uint32_t count, p4_pd_group_handle_t *groups);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_first_group_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_next_group_members(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_act_prof_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_selector_group_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_selector_group_member_count(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_word_llp_active_member_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_word_llp_active_members(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t count,
    p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_member_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_mirrorLagPortActionProfile_get_full_member_info_from_plcmt_data(
    uint8_t device, p4_pd_member_handle_t member, const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_action_specs_t *action_specs);
int p4_pd_tessel_switch_mirrorLagPortActionProfile_schema(char *buffer);
int p4_pd_tessel_switch_mirrorLagPortActionProfile_adt_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_mirrorLagPortActionProfile_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);

/* ==== Profile lagPortActionProfile (action data 0x02000046, selector 0x03000002) ==== */

p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_add_member_with_setLagPort(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_setLagPort_action_spec_t *action_spec, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_modify_member_with_setLagPort(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member,
    const p4_pd_tessel_switch_setLagPort_action_spec_t *action_spec);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_add_member_with_setPhysicalPort(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_modify_member_with_setPhysicalPort(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_add_member_with_setTunnelInfo(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_modify_member_with_setTunnelInfo(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_add_member_with_invalidateUcastEgressPort(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_modify_member_with_invalidateUcastEgressPort(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_add_member_with_fixL2SubintfAlignment(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_modify_member_with_fixL2SubintfAlignment(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_del_member(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_create_group(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t max_size,
    p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_del_group(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_group_handle_t group);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_add_member_to_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_del_member_from_group(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_group_member_state_set(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t state);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_group_member_state_get(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t *state);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_group_member_get_from_hash(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    const uint8_t *hash, uint32_t hash_length, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_set_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_reset_dynamic_action_selection_fallback_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_register_callback(
    p4_pd_session_handle_t session, uint8_t device, pipe_mgr_sel_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_sel_track_updates(uint8_t device,
    pipe_mgr_sel_update_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_register_adt_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_adt_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_register_sel_update_cb(
    p4_pd_session_handle_t session, uint32_t device, pipe_mgr_sel_update_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_adt_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_sel_table_handle(uint32_t *handle);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_member(p4_pd_session_handle_t session,
    uint8_t device, p4_pd_member_handle_t member, bool read_from_hardware,
    p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_first_member(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_next_members(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_member_handle_t member,
    uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_first_group(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t *group);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_next_groups(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_group_handle_t group,
    uint32_t count, p4_pd_group_handle_t *groups);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_first_group_member(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t *member);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_next_group_members(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group,
    p4_pd_member_handle_t member, uint32_t count, p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_act_prof_entry_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_selector_group_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_selector_group_member_count(
    p4_pd_session_handle_t session, uint8_t device, p4_pd_group_handle_t group, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_word_llp_active_member_count(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_word_llp_active_members(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t word, uint32_t count,
    p4_pd_member_handle_t *members);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_member_from_plcmt_data(
    const pipe_mgr_placement_t *placement, p4_pd_tessel_switch_action_specs_t *action_specs);
p4_pd_status_t p4_pd_tessel_switch_lagPortActionProfile_get_full_member_info_from_plcmt_data(
    uint8_t device, p4_pd_member_handle_t member, const pipe_mgr_placement_t *placement,
    p4_pd_tessel_switch_action_specs_t *action_specs);
int p4_pd_tessel_switch_lagPortActionProfile_schema(char *buffer);
int p4_pd_tessel_switch_lagPortActionProfile_adt_plcmt_data_print(int descriptor, int indent,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_lagPortActionProfile_plcmt_data_value(
    const pipe_mgr_placement_t *placement, char *buffer);

/* ==== Meters ==== */

p4_pd_status_t p4_pd_tessel_switch_meter_set_pdpMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_read_pdpMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_set_pdpMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_get_pdpMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_set_newFlowMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const p4_pd_packets_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_read_newFlowMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_packets_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_set_newFlowMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_get_newFlowMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_set_firewallSipDropMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_read_firewallSipDropMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_set_firewallSipDropMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_get_firewallSipDropMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_set_firewallDipDropMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_read_firewallDipDropMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_set_firewallDipDropMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_get_firewallDipDropMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_set_stormControlMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_read_stormControlMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_set_stormControlMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_get_stormControlMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_set_ingressMirrorMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_read_ingressMirrorMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_set_ingressMirrorMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_get_ingressMirrorMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_set_egressMirrorMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_read_egressMirrorMeter(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_set_egressMirrorMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t adjustment);
p4_pd_status_t p4_pd_tessel_switch_meter_bytecount_adjust_get_egressMirrorMeter(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t *adjustment);
p4_pd_status_t p4_pd_tessel_switch_bytes_meter_set(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t meter, uint32_t index,
    const p4_pd_bytes_meter_spec_t *meter_spec, uint8_t has_pre_color);
p4_pd_status_t p4_pd_tessel_switch_bytes_meter_read(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t meter, uint32_t index,
    p4_pd_bytes_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_packets_meter_set(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t meter, uint32_t index,
    const p4_pd_packets_meter_spec_t *meter_spec, uint8_t has_pre_color);
p4_pd_status_t p4_pd_tessel_switch_packets_meter_read(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t meter, uint32_t index,
    p4_pd_packets_meter_spec_t *meter_spec);
p4_pd_status_t p4_pd_tessel_switch_wred_set(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t wred, uint32_t index, const p4_pd_wred_params_t *params);

/* ==== Virtual devices ==== */

p4_pd_status_t p4_pd_tessel_switch_restore_virtual_dev_state(p4_pd_session_handle_t session,
    uint32_t device, uint32_t virtual_device, uint32_t pipe, uint32_t flags);

/* ==== Counters ==== */

p4_pd_status_t p4_pd_tessel_switch_counter_read_l2DmacClassifyCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t flags,
    p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_l2DmacClassifyCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_l2DmacClassifyCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_kf1Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t flags,
    p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_kf1Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_kf1Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_kf2Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t flags,
    p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_kf2Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_kf2Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_kf3Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t flags,
    p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_kf3Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_kf3Count(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_firewallPolicyCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_firewallPolicyCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index,
    p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_firewallPolicyCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_ingressPortDropCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t flags, p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_ingressPortDropCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_ingressPortDropCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_pdpClassCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_pdpClassCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_pdpClassCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_egressPortQueueCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index, uint32_t flags,
    p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_egressPortQueueCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index,
    p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_egressPortQueueCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_finalDropControlCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    uint32_t flags, p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_finalDropControlCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_finalDropControlCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_trapToCpuCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t flags,
    p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_trapToCpuCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_trapToCpuCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_counter_read_egressPortDropCount(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, p4_pd_entry_handle_t entry, uint32_t flags,
    p4_pd_counter_values_t *values);
p4_pd_status_t p4_pd_tessel_switch_counter_write_egressPortDropCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
    p4_pd_counter_values_t values);
p4_pd_status_t p4_pd_tessel_switch_counter_hw_sync_egressPortDropCount(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);

/* ==== Registers ==== */

p4_pd_status_t p4_pd_tessel_switch_register_read_flowStateRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index, uint32_t flags,
    uint8_t *values, uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_flowStateRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index,
    const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_flowStateRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_flowStateRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_flowStateRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_flowStateRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_flowStateRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_flowBusyRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index, uint32_t flags,
    uint8_t *values, uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_flowBusyRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index,
    const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_flowBusyRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_flowBusyRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_flowBusyRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_flowBusyRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_flowBusyRegisterFirst(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_flowStateRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index, uint32_t flags,
    uint8_t *values, uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_flowStateRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index,
    const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_flowStateRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_flowStateRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_flowStateRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_flowStateRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_flowStateRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_flowBusyRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index, uint32_t flags,
    uint8_t *values, uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_flowBusyRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index,
    const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_flowBusyRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_flowBusyRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_flowBusyRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_flowBusyRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_flowBusyRegisterSecond(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_flowDigestCountReg(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, uint32_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_flowDigestCountReg(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t index,
    const uint32_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_flowDigestCountReg(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint32_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_flowDigestCountReg(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_flowDigestCountReg(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint32_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_flowDigestCountReg(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_flowDigestCountReg(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_ingVlanCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_ingVlanCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_ingVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_ingVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_ingVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_ingVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_ingVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_ingStpCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_ingStpCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_ingStpCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_ingStpCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_ingStpCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_ingStpCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_ingStpCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_egrVlanCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_egrVlanCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_egrVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_egrVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_egrVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_egrVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_egrVlanCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
    void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_egrStpCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, uint32_t flags, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_egrStpCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t index, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_egrStpCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, const uint8_t *value);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_egrStpCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target);
p4_pd_status_t p4_pd_tessel_switch_register_range_read_egrStpCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count, uint32_t flags, uint32_t *indexes_read, uint8_t *values,
    uint32_t *value_count);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_egrStpCheckData(
    p4_pd_session_handle_t session, p4_pd_device_target_t target, uint32_t first,
    uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_egrStpCheckData(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_direct(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table, p4_pd_entry_handle_t entry, uint32_t flags,
    pipe_stful_query_t *query);
p4_pd_status_t p4_pd_tessel_switch_register_write_direct(p4_pd_session_handle_t session,
    uint8_t device, uint32_t table, p4_pd_entry_handle_t entry, const pipe_stful_cell_t *cell);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_direct(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_read_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, uint32_t index, uint32_t flags,
    pipe_stful_query_t *query);
p4_pd_status_t p4_pd_tessel_switch_register_write_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, uint32_t index, const pipe_stful_cell_t *cell);
p4_pd_status_t p4_pd_tessel_switch_register_hw_sync_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, pipe_mgr_sync_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_register_reset_all_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg);
p4_pd_status_t p4_pd_tessel_switch_register_range_reset_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, uint32_t first, uint32_t index_count);
p4_pd_status_t p4_pd_tessel_switch_register_write_all_indirect(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t reg, const pipe_stful_cell_t *cell);

/* ==== Hash calculations ==== */

typedef p4_pd_hash_field_attr_t p4_pd_tessel_switch_hash_field_attr_t;

p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_input_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_input_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_algorithm_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_algorithm_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_seed_set(
    p4_pd_session_handle_t session, uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_seed_get(
    p4_pd_session_handle_t session, uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_calculate_hash_value(
    p4_pd_session_handle_t session, uint8_t device, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes, const uint32_t *attribute_sizes, uint8_t *hash,
    uint32_t hash_length);
int32_t p4_pd_tessel_switch_hashOuterEthHdr_p4_field_enum(uint32_t index);
uint32_t p4_pd_tessel_switch_hashOuterEthHdr_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_input_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_input_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_algorithm_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_algorithm_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_seed_set(
    p4_pd_session_handle_t session, uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_seed_get(
    p4_pd_session_handle_t session, uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerEthHdr_calculate_hash_value(
    p4_pd_session_handle_t session, uint8_t device, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes, const uint32_t *attribute_sizes, uint8_t *hash,
    uint32_t hash_length);
int32_t p4_pd_tessel_switch_hashInnerEthHdr_p4_field_enum(uint32_t index);
uint32_t p4_pd_tessel_switch_hashInnerEthHdr_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_algorithm_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_algorithm_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_seed_set(
    p4_pd_session_handle_t session, uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_seed_get(
    p4_pd_session_handle_t session, uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_calculate_hash_value(
    p4_pd_session_handle_t session, uint8_t device, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes, const uint32_t *attribute_sizes, uint8_t *hash,
    uint32_t hash_length);
int32_t p4_pd_tessel_switch_hashOuterIpv4Hdr_p4_field_enum(uint32_t index);
uint32_t p4_pd_tessel_switch_hashOuterIpv4Hdr_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_input_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_input_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_algorithm_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_algorithm_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_seed_set(
    p4_pd_session_handle_t session, uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_seed_get(
    p4_pd_session_handle_t session, uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv4Hdr_calculate_hash_value(
    p4_pd_session_handle_t session, uint8_t device, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes, const uint32_t *attribute_sizes, uint8_t *hash,
    uint32_t hash_length);
int32_t p4_pd_tessel_switch_hashInnerIpv4Hdr_p4_field_enum(uint32_t index);
uint32_t p4_pd_tessel_switch_hashInnerIpv4Hdr_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_input_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_input_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_algorithm_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_algorithm_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_seed_set(
    p4_pd_session_handle_t session, uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_seed_get(
    p4_pd_session_handle_t session, uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpv6Hdr_calculate_hash_value(
    p4_pd_session_handle_t session, uint8_t device, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes, const uint32_t *attribute_sizes, uint8_t *hash,
    uint32_t hash_length);
int32_t p4_pd_tessel_switch_hashOuterIpv6Hdr_p4_field_enum(uint32_t index);
uint32_t p4_pd_tessel_switch_hashOuterIpv6Hdr_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_input_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_input_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_algorithm_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_algorithm_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_seed_set(
    p4_pd_session_handle_t session, uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_seed_get(
    p4_pd_session_handle_t session, uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpv6Hdr_calculate_hash_value(
    p4_pd_session_handle_t session, uint8_t device, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes, const uint32_t *attribute_sizes, uint8_t *hash,
    uint32_t hash_length);
int32_t p4_pd_tessel_switch_hashInnerIpv6Hdr_p4_field_enum(uint32_t index);
uint32_t p4_pd_tessel_switch_hashInnerIpv6Hdr_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_input_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_input_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_algorithm_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_algorithm_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_seed_set(
    p4_pd_session_handle_t session, uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_seed_get(
    p4_pd_session_handle_t session, uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashOuterIpAndL4Hdr_calculate_hash_value(
    p4_pd_session_handle_t session, uint8_t device, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes, const uint32_t *attribute_sizes, uint8_t *hash,
    uint32_t hash_length);
int32_t p4_pd_tessel_switch_hashOuterIpAndL4Hdr_p4_field_enum(uint32_t index);
uint32_t p4_pd_tessel_switch_hashOuterIpAndL4Hdr_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_input_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_input_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *input);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_algorithm_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_algorithm_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t *algorithm);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_seed_set(
    p4_pd_session_handle_t session, uint8_t device, uint64_t seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_seed_get(
    p4_pd_session_handle_t session, uint8_t device, uint64_t *seed);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, uint32_t input, uint32_t max_count,
    p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_hashInnerIpAndL4Hdr_calculate_hash_value(
    p4_pd_session_handle_t session, uint8_t device, uint32_t attribute_count,
    const p4_pd_hash_calc_attr_t *attributes, const uint32_t *attribute_sizes, uint8_t *hash,
    uint32_t hash_length);
int32_t p4_pd_tessel_switch_hashInnerIpAndL4Hdr_p4_field_enum(uint32_t index);
uint32_t p4_pd_tessel_switch_hashInnerIpAndL4Hdr_cmn_field_enum(uint32_t field);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_input_set(p4_pd_session_handle_t session,
    uint8_t device, const char *name);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_input_field_attribute_count_get(
    p4_pd_session_handle_t session, uint8_t device, const char *name, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_input_field_attribute_set(
    p4_pd_session_handle_t session, uint8_t device, const char *name, uint32_t attribute_count,
    const p4_pd_tessel_switch_hash_field_attr_t *attributes);
p4_pd_status_t p4_pd_tessel_switch_hash_calc_input_field_attribute_get(
    p4_pd_session_handle_t session, uint8_t device, const char *name, uint32_t max_count,
    p4_pd_tessel_switch_hash_field_attr_t *attributes, uint32_t *filled);

/* ==== Learning digests ==== */

p4_pd_status_t p4_pd_tessel_switch_flowLearningDigest_register(p4_pd_session_handle_t session,
    uint8_t device, pipe_mgr_digest_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_flowLearningDigest_deregister(p4_pd_session_handle_t session,
    uint8_t device);
p4_pd_status_t p4_pd_tessel_switch_flowLearningDigest_notify_ack(p4_pd_session_handle_t session,
    pipe_mgr_digest_message_t *message);
p4_pd_status_t p4_pd_tessel_switch_macLearningDigest_register(p4_pd_session_handle_t session,
    uint8_t device, pipe_mgr_digest_cb_t callback, void *cookie);
p4_pd_status_t p4_pd_tessel_switch_macLearningDigest_deregister(p4_pd_session_handle_t session,
    uint8_t device);
p4_pd_status_t p4_pd_tessel_switch_macLearningDigest_notify_ack(p4_pd_session_handle_t session,
    pipe_mgr_digest_message_t *message);
p4_pd_status_t p4_pd_tessel_switch_set_learning_timeout(p4_pd_session_handle_t session,
    uint8_t device, uint32_t timeout);
uint32_t p4_pd_tessel_switch_get_digest_entry_size(const char *digest_name);
const uint8_t *p4_pd_tessel_switch_get_digest_entry_field(const uint8_t *entry,
    const char *digest_name, const char *field_name, uint32_t *size);

/* ==== Parser value sets ==== */

p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_set_property(p4_pd_session_handle_t session,
    uint32_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_get_property(p4_pd_session_handle_t session,
    uint32_t device, uint32_t property, uint32_t *value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_entry_add(p4_pd_session_handle_t session,
    p4_pd_parser_target_t target, uint32_t value, uint32_t mask, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_entry_modify(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry, uint32_t value, uint32_t mask);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_entry_delete(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_entry_get(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry, uint32_t *value, uint32_t *mask);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_entry_handle_get(
    p4_pd_session_handle_t session, p4_pd_parser_target_t target, uint32_t value, uint32_t mask,
    p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_entry_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_parser_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_entry_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_parser_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_pvs_recirc_ports_entry_get_count(p4_pd_session_handle_t session,
    p4_pd_parser_target_t target, uint8_t read_from_hardware, uint32_t *count);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_set_property(p4_pd_session_handle_t session,
    uint32_t device, uint32_t property, uint32_t value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_get_property(p4_pd_session_handle_t session,
    uint32_t device, uint32_t property, uint32_t *value, uint32_t argument);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_entry_add(p4_pd_session_handle_t session,
    p4_pd_parser_target_t target, uint32_t value, uint32_t mask, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_entry_modify(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry, uint32_t value, uint32_t mask);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_entry_delete(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_entry_get(p4_pd_session_handle_t session,
    uint32_t device, p4_pd_entry_handle_t entry, uint32_t *value, uint32_t *mask);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_entry_handle_get(p4_pd_session_handle_t session,
    p4_pd_parser_target_t target, uint32_t value, uint32_t mask, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_entry_get_first_entry_handle(
    p4_pd_session_handle_t session, p4_pd_parser_target_t target, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_entry_get_next_entry_handles(
    p4_pd_session_handle_t session, p4_pd_parser_target_t target, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_pvs_fabric_port_entry_get_count(p4_pd_session_handle_t session,
    p4_pd_parser_target_t target, uint8_t read_from_hardware, uint32_t *count);

/* ==== Snapshots ==== */

/* Trigger of ingress snapshots, 634 bytes: field values, or the bits of them that count. */
typedef struct __attribute__((packed)) p4_pd_tessel_switch_snapshot_ingress_trigger {
  uint16_t ig_intr_md_ingress_port;
  uint16_t ig_intr_md_from_parser_aux_ingress_parser_err;
  uint16_t ig_intr_md_from_parser_aux_ingress_global_tstamp_0;
  uint16_t ig_intr_md_from_parser_aux_ingress_global_tstamp_1;
  uint16_t ig_intr_md_from_parser_aux_ingress_global_tstamp_2;
  uint16_t ig_intr_md_for_tm_mcast_grp_a;
  uint8_t ig_intr_md_for_tm_ingress_cos;
  uint8_t ig_intr_md_for_tm_copy_to_cpu;
  uint16_t phase0_ingVPort;
  uint16_t phase0_nativeAintf;
  uint8_t phase0_switchPort;
  uint8_t phase0_portType;
  uint8_t outerEthHdr_valid;
  uint32_t outerEthHdr_dmacOui;
  uint32_t outerEthHdr_dmacStation;
  uint32_t outerEthHdr_smacOui;
  uint32_t outerEthHdr_smacStation;
  uint16_t outerEthHdr_etherType;
  uint8_t vlanHdr_0__valid;
  uint16_t vlanHdr_0__vlanId;
  uint16_t vlanHdr_0__etherType;
  uint8_t vlanHdr_0__priority;
  uint8_t vlanHdr_1__valid;
  uint16_t vlanHdr_1__vlanId;
  uint16_t vlanHdr_1__etherType;
  uint8_t vlanHdr_1__priority;
  uint8_t tesselCpuHdr_valid;
  uint16_t tesselCpuHdr_port;
  uint16_t tesselCpuHdr_portChannel;
  uint8_t tesselCpuHdr_trustMode;
  uint8_t tesselCpuHdr_tc;
  uint8_t arpHdr_valid;
  uint16_t arpHdr_hwType;
  uint16_t arpHdr_protoType;
  uint16_t arpHdr_opcode;
  uint16_t arpHdr_smac_0;
  uint16_t arpHdr_smac_1;
  uint16_t arpHdr_smac_2;
  uint16_t arpHdr_sip_0;
  uint16_t arpHdr_sip_1;
  uint16_t arpHdr_dip_0;
  uint16_t arpHdr_dip_1;
  uint8_t outerIpv4Hdr_valid;
  uint16_t outerIpv4Hdr_totalLen;
  uint16_t outerIpv4Hdr_identification;
  uint16_t outerIpv4Hdr_fragOffset;
  uint16_t outerIpv4Hdr_hdrChecksum;
  uint32_t outerIpv4Hdr_sip;
  uint32_t outerIpv4Hdr_dip;
  uint8_t outerIpv4Hdr_dscp;
  uint8_t outerIpv4Hdr_protocol;
  uint8_t outerIpv4Hdr_ttl;
  uint8_t outerIpv6Hdr_valid;
  uint16_t outerIpv6Hdr_payloadLen;
  uint32_t outerIpv6Hdr_sip_0;
  uint32_t outerIpv6Hdr_sip_1;
  uint32_t outerIpv6Hdr_sip_2;
  uint32_t outerIpv6Hdr_sip_3;
  uint32_t outerIpv6Hdr_dip_0;
  uint32_t outerIpv6Hdr_dip_1;
  uint32_t outerIpv6Hdr_dip_2;
  uint32_t outerIpv6Hdr_dip_3;
  uint8_t outerIpv6Hdr_hopLimit;
  uint8_t outerIpv6Hdr_nextHdr;
  uint8_t l4PortHdr_valid;
  uint16_t l4PortHdr_srcPort;
  uint16_t l4PortHdr_dstPort;
  uint16_t udpHdr_length;
  uint8_t innerEthHdr_valid;
  uint32_t innerEthHdr_dmacOui;
  uint32_t innerEthHdr_dmacStation;
  uint32_t innerEthHdr_smacOui;
  uint32_t innerEthHdr_smacStation;
  uint16_t innerEthHdr_etherType;
  uint8_t innerIpv4Hdr_valid;
  uint16_t innerIpv4Hdr_totalLen;
  uint16_t innerIpv4Hdr_identification;
  uint16_t innerIpv4Hdr_fragOffset;
  uint16_t innerIpv4Hdr_hdrChecksum;
  uint16_t innerIpv4Hdr_sip_0;
  uint16_t innerIpv4Hdr_sip_1;
  uint16_t innerIpv4Hdr_dip_0;
  uint16_t innerIpv4Hdr_dip_1;
  uint8_t innerIpv4Hdr_protocol;
  uint8_t innerIpv4Hdr_ttl;
  uint8_t innerIpv6Hdr_valid;
  uint16_t innerIpv6Hdr_payloadLen;
  uint16_t innerIpv6Hdr_sip_0;
  uint16_t innerIpv6Hdr_sip_1;
  uint16_t innerIpv6Hdr_sip_2;
  uint16_t innerIpv6Hdr_sip_3;
  uint16_t innerIpv6Hdr_sip_4;
  uint16_t innerIpv6Hdr_sip_5;
  uint16_t innerIpv6Hdr_sip_6;
  uint16_t innerIpv6Hdr_sip_7;
  uint16_t innerIpv6Hdr_dip_0;
  uint16_t innerIpv6Hdr_dip_1;
  uint16_t innerIpv6Hdr_dip_2;
  uint16_t innerIpv6Hdr_dip_3;
  uint16_t innerIpv6Hdr_dip_4;
  uint16_t innerIpv6Hdr_dip_5;
  uint16_t innerIpv6Hdr_dip_6;
  uint16_t innerIpv6Hdr_dip_7;
  uint8_t innerIpv6Hdr_hopLimit;
  uint8_t innerIpv6Hdr_nextHdr;
  uint8_t innerL4PortHdr_valid;
  uint16_t innerL4PortHdr_srcPort;
  uint16_t innerL4PortHdr_dstPort;
  uint32_t ingMd_dmacOui;
  uint32_t ingMd_dmacStation;
  uint32_t ingMd_smacOui;
  uint32_t ingMd_smacStation;
  uint32_t ingMd_ingL2Aintf;
  uint32_t ingMd_rand;
  uint16_t ingMd_ingL2Domain;
  uint16_t ingMd_ingL3Aintf;
  uint16_t ingMd_etherType;
  uint16_t ingMd_srcPort;
  uint16_t ingMd_dstPort;
  uint8_t ingMd_l2Control;
  uint8_t ingMd_protocol;
  uint8_t ingMd_tunnelType;
  uint8_t ingMd_tcpFlags;
  uint8_t ingMd_v4V6Valid;
  uint8_t ingMd_illegalDmac;
  uint8_t ingMd_illegalSmac;
  uint8_t ingMd_invalidTunnel;
  uint8_t ingMd_vlanHdrValid;
  uint8_t ingMd_bcast;
  uint8_t ingMd_igmpSnoopingEnabled;
  uint8_t ingMd_ipMcast;
  uint8_t ingMd_llm;
  uint8_t ingMd_ttl;
  uint8_t ingMd_dot1xDrop;
  uint8_t ingMd_drop;
  uint8_t ingMd_dropDatalink;
  uint8_t ingMd_dropDmac;
  uint8_t ingMd_dropSmac;
  uint8_t ingMd_invalidEgressPort;
  uint8_t ingMd_mcast;
  uint8_t ingMd_mlagPrune;
  uint8_t ingMd_routedMartian;
  uint8_t ingMd_samePortBridging;
  uint8_t ingMd_stormControlDrop;
  uint8_t ingMd_cpuMemberOfIngressVlan;
  uint8_t ingMd_l4Attr;
  uint8_t ingMd_sflowSample;
  uint32_t ingIpv4_sip;
  uint32_t ingIpv4_dip;
  uint32_t ingIpv6_sip_0;
  uint32_t ingIpv6_sip_1;
  uint32_t ingIpv6_sip_2;
  uint32_t ingIpv6_sip_3;
  uint32_t ingIpv6_dip_0;
  uint32_t ingIpv6_dip_1;
  uint32_t ingIpv6_dip_2;
  uint32_t ingIpv6_dip_3;
  uint32_t flowMgmt_hash1;
  uint32_t flowMgmt_hash2;
  uint32_t flowMgmt_flowDigestCount;
  uint8_t flowMgmt_present;
  uint8_t flowMgmt_newFlow;
  uint8_t flowMgmt_recircNeeded;
  uint8_t flowMgmt_finRstDigestEnabled;
  uint8_t flowMgmt_flowLimitDrop;
  uint8_t flowMgmt_newFlowMeterDrop;
  uint16_t kflowMd_counterIndex;
  uint8_t kflowMd_isHit;
  uint8_t kflowMd_drop;
  uint16_t l3_ecmpGroup;
  uint16_t l3_nextHop;
  uint16_t ingMirrorMd_mirrorBufId;
  uint16_t ingMirrorMd_mirrorSession;
  uint8_t ingMirrorMd_mirrorColor;
  uint16_t haloKeyOrig_sipMirror;
  uint16_t haloKeyOrig_dipMirror;
  uint8_t haloKeyOrig_flags;
  uint8_t haloKeyOrig_isFrag;
  uint32_t egrMd_dmacOui;
  uint32_t egrMd_dmacStation;
  uint32_t egrMd_egrL2AintfUnresolved;
  uint16_t egrMd_egrL2Domain;
  uint8_t egrMd_routed;
  uint8_t egrMd_decapType;
  uint8_t egrMd_cpuReasonCode;
  uint8_t egrMd_trapToCpu;
  uint8_t egrMd_vxlanFlood;
  uint8_t l3Info_vrfId;
  uint8_t l3Info_ipRouting;
  uint8_t l3Info_ingL3DmacValid;
  uint8_t fwMd_srcSegment;
  uint8_t fwMd_dstSegment;
  uint8_t fwMd_escortToRecircPort;
  uint8_t fwMd_fwDrop;
  uint8_t fwMd_meterDrop;
  uint8_t parserMd_outerHdrFlags;
  uint8_t learningDigestMd_applicationId;
  uint8_t ingVlanStpCheck_stpBlocked;
  uint8_t ingVlanStpCheck_invalidVlan;
  uint8_t qosMd_defaultCos;
  uint8_t qosMd_trustMode;
  uint8_t qosMd_cos;
  uint8_t qosMd_dscp;
  uint8_t qosMd_highPriority;
  uint8_t qosMd_cosRewrite;
  uint8_t qosMd_dscpRewrite;
  uint8_t qosMd_pdpClassId;
  uint8_t ingIpmc_eValid;
  uint8_t ingL2Mc_eValid;
  uint8_t tesselFlowMgmtHdr_valid;
  uint8_t reserved[230];
} p4_pd_tessel_switch_snapshot_ingress_trigger_t;

/* Trigger of egress snapshots, 634 bytes: field values, or the bits of them that count. */
typedef struct __attribute__((packed)) p4_pd_tessel_switch_snapshot_egress_trigger {
  uint16_t eg_intr_md_egress_port;
  uint16_t eg_intr_md_egress_rid;
  uint32_t outerEthHdr_dmacOui;
  uint32_t outerEthHdr_dmacStation;
  uint32_t outerEthHdr_smacOui;
  uint32_t outerEthHdr_smacStation;
  uint16_t outerEthHdr_etherType;
  uint8_t vlanHdr_0__valid;
  uint16_t vlanHdr_0__vlanId;
  uint16_t vlanHdr_0__etherType;
  uint16_t vlanHdr_1__vlanId;
  uint16_t vlanHdr_1__etherType;
  uint8_t vlanHdr_1__priority;
  uint16_t tesselCpuHdr_port;
  uint16_t tesselCpuHdr_portChannel;
  uint8_t tesselCpuHdr_slice;
  uint8_t tesselCpuHdr_lane;
  uint16_t arpHdr_hwType;
  uint16_t arpHdr_protoType;
  uint16_t arpHdr_opcode;
  uint16_t arpHdr_smac_0;
  uint16_t arpHdr_smac_1;
  uint16_t arpHdr_smac_2;
  uint16_t arpHdr_sip_0;
  uint16_t arpHdr_sip_1;
  uint16_t arpHdr_dmac_0;
  uint16_t arpHdr_dmac_1;
  uint16_t arpHdr_dmac_2;
  uint16_t arpHdr_dip_0;
  uint16_t arpHdr_dip_1;
  uint8_t outerIpv4Hdr_valid;
  uint16_t outerIpv4Hdr_totalLen;
  uint16_t outerIpv4Hdr_identification;
  uint16_t outerIpv4Hdr_fragOffset;
  uint16_t outerIpv4Hdr_hdrChecksum;
  uint32_t outerIpv4Hdr_sip;
  uint32_t outerIpv4Hdr_dip;
  uint8_t outerIpv4Hdr_ttl;
  uint8_t outerIpv4Hdr_dscp;
  uint8_t outerIpv4Hdr_protocol;
  uint8_t outerIpv6Hdr_valid;
  uint16_t outerIpv6Hdr_payloadLen;
  uint32_t outerIpv6Hdr_sip_0;
  uint32_t outerIpv6Hdr_sip_1;
  uint32_t outerIpv6Hdr_sip_2;
  uint32_t outerIpv6Hdr_sip_3;
  uint32_t outerIpv6Hdr_dip_0;
  uint32_t outerIpv6Hdr_dip_1;
  uint32_t outerIpv6Hdr_dip_2;
  uint32_t outerIpv6Hdr_dip_3;
  uint8_t outerIpv6Hdr_hopLimit;
  uint8_t outerIpv6Hdr_nextHdr;
  uint16_t l4PortHdr_srcPort;
  uint16_t l4PortHdr_dstPort;
  uint16_t udpHdr_length;
  uint16_t udpHdr_checksum;
  uint16_t tcpHdr_window;
  uint16_t tcpHdr_checksum;
  uint16_t tcpHdr_urgentPtr;
  uint16_t greHdr_flags;
  uint16_t greHdr_protocol;
  uint32_t innerEthHdr_dmacOui;
  uint32_t innerEthHdr_dmacStation;
  uint32_t innerEthHdr_smacOui;
  uint32_t innerEthHdr_smacStation;
  uint16_t innerEthHdr_etherType;
  uint8_t innerIpv4Hdr_valid;
  uint16_t innerIpv4Hdr_totalLen;
  uint16_t innerIpv4Hdr_identification;
  uint16_t innerIpv4Hdr_fragOffset;
  uint16_t innerIpv4Hdr_hdrChecksum;
  uint32_t innerIpv4Hdr_sip;
  uint32_t innerIpv4Hdr_dip;
  uint8_t innerIpv4Hdr_protocol;
  uint8_t innerIpv4Hdr_ttl;
  uint8_t innerIpv6Hdr_valid;
  uint16_t innerIpv6Hdr_payloadLen;
  uint32_t innerIpv6Hdr_sip_0;
  uint32_t innerIpv6Hdr_sip_1;
  uint32_t innerIpv6Hdr_sip_2;
  uint32_t innerIpv6Hdr_sip_3;
  uint32_t innerIpv6Hdr_dip_0;
  uint32_t innerIpv6Hdr_dip_1;
  uint32_t innerIpv6Hdr_dip_2;
  uint32_t innerIpv6Hdr_dip_3;
  uint8_t innerIpv6Hdr_hopLimit;
  uint8_t innerIpv6Hdr_nextHdr;
  uint16_t innerL4PortHdr_srcPort;
  uint16_t innerL4PortHdr_dstPort;
  uint32_t egrMd_dmacOui;
  uint32_t egrMd_dmacStation;
  uint32_t egrMd_egrL2AintfUnresolved;
  uint32_t egrMd_tunnelInfo;
  uint16_t egrMd_ingressPort;
  uint16_t egrMd_egrL2Domain;
  uint16_t egrMd_vlanId;
  uint8_t egrMd_decapType;
  uint8_t egrMd_encapType;
  uint8_t egrMd_ingressTagged;
  uint8_t egrMd_subIntf;
  uint8_t egrMd_routed;
  uint8_t egrMd_ingressPortType;
  uint8_t egrMd_trapToCpu;
  uint8_t egrMd_cpuReasonCode;
  uint8_t egrMd_decapRestore;
  uint16_t egrMirrorMd_mirrorBufId;
  uint16_t egrMirrorMd_mirrorSession;
  uint8_t phase0_switchPort;
  uint8_t ingMd_vlanHdrValid;
  uint8_t egrVlanStpCheck_invalidVlan;
  uint8_t egrVlanStpCheck_stpBlocked;
  uint8_t fwMd_dipDrop;
  uint8_t fwMd_sipDrop;
  uint8_t reserved[376];
} p4_pd_tessel_switch_snapshot_egress_trigger_t;

/* What one stage captured, 634 bytes. Fields of several bytes have the most significant first. */
typedef struct __attribute__((packed)) p4_pd_tessel_switch_snapshot_capture {
  uint8_t ig_intr_md_ingress_port[2];
  uint8_t ig_intr_md_from_parser_aux_ingress_parser_err[2];
  uint8_t ig_intr_md_from_parser_aux_ingress_global_tstamp[6];
  uint8_t ig_intr_md_for_tm_mcast_grp_a[2];
  uint8_t ig_intr_md_for_tm_ingress_cos;
  uint8_t ig_intr_md_for_tm_copy_to_cpu;
  uint8_t phase0_ingVPort[2];
  uint8_t phase0_nativeAintf[2];
  uint8_t phase0_switchPort;
  uint8_t phase0_portType;
  uint8_t outerEthHdr_valid;
  uint8_t outerEthHdr_dmacOui[4];
  uint8_t outerEthHdr_dmacStation[4];
  uint8_t outerEthHdr_smacOui[4];
  uint8_t outerEthHdr_smacStation[4];
  uint8_t outerEthHdr_etherType[2];
  uint8_t vlanHdr_0__valid;
  uint8_t vlanHdr_0__vlanId[2];
  uint8_t vlanHdr_0__etherType[2];
  uint8_t vlanHdr_0__priority;
  uint8_t vlanHdr_1__valid;
  uint8_t vlanHdr_1__vlanId[2];
  uint8_t vlanHdr_1__etherType[2];
  uint8_t vlanHdr_1__priority;
  uint8_t tesselCpuHdr_valid;
  uint8_t tesselCpuHdr_port[2];
  uint8_t tesselCpuHdr_portChannel[2];
  uint8_t tesselCpuHdr_trustMode;
  uint8_t tesselCpuHdr_tc;
  uint8_t arpHdr_valid;
  uint8_t arpHdr_hwType[2];
  uint8_t arpHdr_protoType[2];
  uint8_t arpHdr_opcode[2];
  uint8_t arpHdr_smac[6];
  uint8_t arpHdr_sip[4];
  uint8_t arpHdr_dip[4];
  uint8_t outerIpv4Hdr_valid;
  uint8_t outerIpv4Hdr_totalLen[2];
  uint8_t outerIpv4Hdr_identification[2];
  uint8_t outerIpv4Hdr_fragOffset[2];
  uint8_t outerIpv4Hdr_hdrChecksum[2];
  uint8_t outerIpv4Hdr_sip[4];
  uint8_t outerIpv4Hdr_dip[4];
  uint8_t outerIpv4Hdr_dscp;
  uint8_t outerIpv4Hdr_protocol;
  uint8_t outerIpv4Hdr_ttl;
  uint8_t outerIpv6Hdr_valid;
  uint8_t outerIpv6Hdr_payloadLen[2];
  uint8_t outerIpv6Hdr_sip[16];
  uint8_t outerIpv6Hdr_dip[16];
  uint8_t outerIpv6Hdr_hopLimit;
  uint8_t outerIpv6Hdr_nextHdr;
  uint8_t l4PortHdr_valid;
  uint8_t l4PortHdr_srcPort[2];
  uint8_t l4PortHdr_dstPort[2];
  uint8_t udpHdr_length[2];
  uint8_t innerEthHdr_valid;
  uint8_t innerEthHdr_dmacOui[4];
  uint8_t innerEthHdr_dmacStation[4];
  uint8_t innerEthHdr_smacOui[4];
  uint8_t innerEthHdr_smacStation[4];
  uint8_t innerEthHdr_etherType[2];
  uint8_t innerIpv4Hdr_valid;
  uint8_t innerIpv4Hdr_totalLen[2];
  uint8_t innerIpv4Hdr_identification[2];
  uint8_t innerIpv4Hdr_fragOffset[2];
  uint8_t innerIpv4Hdr_hdrChecksum[2];
  uint8_t innerIpv4Hdr_sip[4];
  uint8_t innerIpv4Hdr_dip[4];
  uint8_t innerIpv4Hdr_protocol;
  uint8_t innerIpv4Hdr_ttl;
  uint8_t innerIpv6Hdr_valid;
  uint8_t innerIpv6Hdr_payloadLen[2];
  uint8_t innerIpv6Hdr_sip[16];
  uint8_t innerIpv6Hdr_dip[16];
  uint8_t innerIpv6Hdr_hopLimit;
  uint8_t innerIpv6Hdr_nextHdr;
  uint8_t innerL4PortHdr_valid;
  uint8_t innerL4PortHdr_srcPort[2];
  uint8_t innerL4PortHdr_dstPort[2];
  uint8_t ingMd_dmacOui[4];
  uint8_t ingMd_dmacStation[4];
  uint8_t ingMd_smacOui[4];
  uint8_t ingMd_smacStation[4];
  uint8_t ingMd_ingL2Aintf[4];
  uint8_t ingMd_rand[4];
  uint8_t ingMd_ingL2Domain[2];
  uint8_t ingMd_ingL3Aintf[2];
  uint8_t ingMd_etherType[2];
  uint8_t ingMd_srcPort[2];
  uint8_t ingMd_dstPort[2];
  uint8_t ingMd_l2Control;
  uint8_t ingMd_protocol;
  uint8_t ingMd_tunnelType;
  uint8_t ingMd_tcpFlags;
  uint8_t ingMd_v4V6Valid;
  uint8_t ingMd_illegalDmac;
  uint8_t ingMd_illegalSmac;
  uint8_t ingMd_invalidTunnel;
  uint8_t ingMd_vlanHdrValid;
  uint8_t ingMd_bcast;
  uint8_t ingMd_igmpSnoopingEnabled;
  uint8_t ingMd_ipMcast;
  uint8_t ingMd_llm;
  uint8_t ingMd_ttl;
  uint8_t ingMd_dot1xDrop;
  uint8_t ingMd_drop;
  uint8_t ingMd_dropDatalink;
  uint8_t ingMd_dropDmac;
  uint8_t ingMd_dropSmac;
  uint8_t ingMd_invalidEgressPort;
  uint8_t ingMd_mcast;
  uint8_t ingMd_mlagPrune;
  uint8_t ingMd_routedMartian;
  uint8_t ingMd_samePortBridging;
  uint8_t ingMd_stormControlDrop;
  uint8_t ingMd_cpuMemberOfIngressVlan;
  uint8_t ingMd_l4Attr;
  uint8_t ingMd_sflowSample;
  uint8_t ingIpv4_sip[4];
  uint8_t ingIpv4_dip[4];
  uint8_t ingIpv6_sip[16];
  uint8_t ingIpv6_dip[16];
  uint8_t flowMgmt_hash1[4];
  uint8_t flowMgmt_hash2[4];
  uint8_t flowMgmt_flowDigestCount[4];
  uint8_t flowMgmt_present;
  uint8_t flowMgmt_newFlow;
  uint8_t flowMgmt_recircNeeded;
  uint8_t flowMgmt_finRstDigestEnabled;
  uint8_t flowMgmt_flowLimitDrop;
  uint8_t flowMgmt_newFlowMeterDrop;
  uint8_t kflowMd_counterIndex[2];
  uint8_t kflowMd_isHit;
  uint8_t kflowMd_drop;
  uint8_t l3_ecmpGroup[2];
  uint8_t l3_nextHop[2];
  uint8_t ingMirrorMd_mirrorBufId[2];
  uint8_t ingMirrorMd_mirrorSession[2];
  uint8_t ingMirrorMd_mirrorColor;
  uint8_t haloKeyOrig_sipMirror[2];
  uint8_t haloKeyOrig_dipMirror[2];
  uint8_t haloKeyOrig_flags;
  uint8_t haloKeyOrig_isFrag;
  uint8_t egrMd_dmacOui[4];
  uint8_t egrMd_dmacStation[4];
  uint8_t egrMd_egrL2AintfUnresolved[4];
  uint8_t egrMd_egrL2Domain[2];
  uint8_t egrMd_routed;
  uint8_t egrMd_decapType;
  uint8_t egrMd_cpuReasonCode;
  uint8_t egrMd_trapToCpu;
  uint8_t egrMd_vxlanFlood;
  uint8_t l3Info_vrfId;
  uint8_t l3Info_ipRouting;
  uint8_t l3Info_ingL3DmacValid;
  uint8_t fwMd_srcSegment;
  uint8_t fwMd_dstSegment;
  uint8_t fwMd_escortToRecircPort;
  uint8_t fwMd_fwDrop;
  uint8_t fwMd_meterDrop;
  uint8_t parserMd_outerHdrFlags;
  uint8_t learningDigestMd_applicationId;
  uint8_t ingVlanStpCheck_stpBlocked;
  uint8_t ingVlanStpCheck_invalidVlan;
  uint8_t qosMd_defaultCos;
  uint8_t qosMd_trustMode;
  uint8_t qosMd_cos;
  uint8_t qosMd_dscp;
  uint8_t qosMd_highPriority;
  uint8_t qosMd_cosRewrite;
  uint8_t qosMd_dscpRewrite;
  uint8_t qosMd_pdpClassId;
  uint8_t ingIpmc_eValid;
  uint8_t ingL2Mc_eValid;
  uint8_t tesselFlowMgmtHdr_valid;
  uint8_t eg_intr_md_egress_port[2];
  uint8_t eg_intr_md_egress_rid[2];
  uint8_t tesselCpuHdr_slice;
  uint8_t tesselCpuHdr_lane;
  uint8_t arpHdr_dmac[6];
  uint8_t udpHdr_checksum[2];
  uint8_t tcpHdr_window[2];
  uint8_t tcpHdr_checksum[2];
  uint8_t tcpHdr_urgentPtr[2];
  uint8_t greHdr_flags[2];
  uint8_t greHdr_protocol[2];
  uint8_t egrMd_tunnelInfo[4];
  uint8_t egrMd_ingressPort[2];
  uint8_t egrMd_vlanId[2];
  uint8_t egrMd_encapType;
  uint8_t egrMd_ingressTagged;
  uint8_t egrMd_subIntf;
  uint8_t egrMd_ingressPortType;
  uint8_t egrMd_decapRestore;
  uint8_t egrMirrorMd_mirrorBufId[2];
  uint8_t egrMirrorMd_mirrorSession[2];
  uint8_t egrVlanStpCheck_invalidVlan;
  uint8_t egrVlanStpCheck_stpBlocked;
  uint8_t fwMd_dipDrop;
  uint8_t fwMd_sipDrop;
  uint8_t reserved[185];
} p4_pd_tessel_switch_snapshot_capture_t;

p4_pd_status_t p4_pd_tessel_switch_snapshot_create(uint32_t device, uint16_t pipe,
    uint8_t first_stage, uint8_t last_stage, uint32_t direction, uint32_t *snapshot);
p4_pd_status_t p4_pd_tessel_switch_snapshot_delete(uint32_t snapshot);
p4_pd_status_t p4_pd_tessel_switch_snapshot_capture_trigger_set(uint32_t snapshot,
    const void *value, const void *mask);
p4_pd_status_t p4_pd_tessel_switch_snapshot_capture_data_get(uint32_t snapshot, uint16_t pipe,
    p4_pd_tessel_switch_snapshot_capture_t *records, bf_snapshot_control_t *control,
    uint32_t *captures);

/* ==== Introspection ==== */

int p4_pd_tessel_switch_cli_schema(uint32_t handle, char *buffer);
int p4_pd_tessel_switch__print_v4addr_exact(char *buffer, const char *label, uint32_t address);
int p4_pd_tessel_switch__print_v4addr_lpm(char *buffer, const char *label, uint32_t address,
    uint16_t prefix_length);
int p4_pd_tessel_switch__print_v4addr_ternary(char *buffer, const char *label, uint32_t address,
    uint32_t mask);
int p4_pd_tessel_switch__print_v6addr_exact(char *buffer, const char *label,
    const uint8_t *address);
int p4_pd_tessel_switch__print_v6addr_lpm(char *buffer, const char *label, const uint8_t *address,
    uint16_t prefix_length);
int p4_pd_tessel_switch__print_v6addr_ternary(char *buffer, const char *label,
    const uint8_t *address, const uint8_t *mask);
int p4_pd_tessel_switch__print_mac_exact(char *buffer, const char *label, uint32_t oui,
    uint32_t station);
int p4_pd_tessel_switch__print_mac_ternary(char *buffer, const char *label, uint32_t oui,
    uint32_t oui_mask, uint32_t station, uint32_t station_mask);
int p4_pd_tessel_switch_stringify_counter_matchspec(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, char *buffer);

/* ==== Rendering by handle ==== */

int p4_pd_tessel_switch_plcmt_data_print(int descriptor, int indent, uint32_t table_handle,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_adt_plcmt_data_print(int descriptor, int indent, uint32_t profile_handle,
    const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_plcmt_data_value(uint32_t table_handle,
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_adt_plcmt_data_value(uint32_t profile_handle,
    const pipe_mgr_placement_t *placement, char *buffer);
int p4_pd_tessel_switch_plcmt_data_eq_to_hw(p4_pd_session_handle_t session, uint8_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, const pipe_mgr_placement_t *placement);
int p4_pd_tessel_switch_entry_value(p4_pd_session_handle_t session, uint32_t device,
    uint32_t table_handle, p4_pd_entry_handle_t entry, uint32_t read_from_hardware, char *buffer);
p4_pd_status_t p4_pd_tessel_switch_entry_hdl_first(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table_handle, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_entry_hdl_next(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table_handle, p4_pd_entry_handle_t entry,
    uint32_t count, p4_pd_entry_handle_t *entries);
p4_pd_status_t p4_pd_tessel_switch_entry_hdl_default(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t table_handle, p4_pd_entry_handle_t *entry);
p4_pd_status_t p4_pd_tessel_switch_member_hdl_next(p4_pd_session_handle_t session,
    p4_pd_device_target_t target, uint32_t profile_handle, p4_pd_member_handle_t member,
    uint32_t count, p4_pd_member_handle_t *members);

#ifdef __cplusplus
}
#endif

#endif
