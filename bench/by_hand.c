#include "by_hand.h"

#include <string.h>

#include "bf_sys.h"
#include "pipe_mgr.h"

/* The prefix of what is defined: BY_HAND, by_hand_ or another one of by_hand.h. */
#define NAMED_2(prefix, name) prefix##name
#define NAMED_1(prefix, name) NAMED_2(prefix, name)
#define NAMED(name) NAMED_1(BY_HAND, name)
#define SPEC(name) p4_pd_tessel_switch_##name##_spec_t

/* Sixteen bytes at a time: a plain clear becomes a slow string instruction. */
static inline void clear(void *record, size_t size) {
  typedef uint32_t chunk __attribute__((vector_size(16), aligned(4), may_alias));
  chunk *chunks = (chunk *)record;
  const chunk zero = {0, 0, 0, 0};
#pragma GCC unroll 32
  for (size_t i = 0; i < size / 16; ++i) chunks[i] = zero;
  memset(chunks + size / 16, 0, size % 16);
}

#ifndef STORES_ONLY

/* ---- Big-endian bytes ---- */

static inline void put16(uint8_t *bytes, uint32_t value) {
  const uint16_t swapped = __builtin_bswap16((uint16_t)value);
  memcpy(bytes, &swapped, 2);
}

static inline void put24(uint8_t *bytes, uint32_t value) {
  bytes[0] = (uint8_t)(value >> 16);
  put16(bytes + 1, value);
}

static inline void put32(uint8_t *bytes, uint32_t value) {
  const uint32_t swapped = __builtin_bswap32(value);
  memcpy(bytes, &swapped, 4);
}

static inline uint16_t get16(const uint8_t *bytes) { return (uint16_t)(bytes[0] << 8 | bytes[1]); }

static inline uint32_t get24(const uint8_t *bytes) {
  return (uint32_t)bytes[0] << 16 | get16(bytes + 1);
}

static inline uint32_t get32(const uint8_t *bytes) {
  uint32_t value;
  memcpy(&value, bytes, 4);
  return __builtin_bswap32(value);
}

#endif

/* ---- Keys ---- */

#ifdef STORES_ONLY

#define DEFINE_KEY(table, kind, key_bits, key_bytes, ...)                                        \
  static inline void table##_key(const SPEC(table##_match) * m, pipe_mgr_match_spec_t * match) { \
    (void)m;                                                                                     \
    memset(match->value, 0, key_bytes);                                                          \
    memset(match->mask, 0xff, key_bytes);                                                        \
  }                                                                                              \
  static inline void table##_read_key(const pipe_mgr_match_spec_t *match,                        \
                                      SPEC(table##_match) * m) {                                 \
    (void)match;                                                                                 \
    clear(m, sizeof *m);                                                                         \
  }
BY_HAND_TABLES(DEFINE_KEY)

#else

#define PUT_EXACT8(at, field) \
  value[at] = m->field;       \
  mask[at] = 1;
#define PUT8(at, field, bits)             \
  value[at] = m->field & m->field##_mask; \
  mask[at] = m->field##_mask & bits;
#define PUT16(at, field, bits)                     \
  put16(value + at, (m->field & m->field##_mask)); \
  put16(mask + at, m->field##_mask & bits);
#define PUT24(at, field, bits)                   \
  put24(value + at, m->field & m->field##_mask); \
  put24(mask + at, m->field##_mask & bits);
#define PUT32(at, field)                         \
  put32(value + at, m->field & m->field##_mask); \
  put32(mask + at, m->field##_mask);
#define PUT128(at, field)                             \
  for (int i = 0; i < 16; ++i) {                      \
    mask[at + i] = m->field##_mask[i];                \
    value[at + i] = m->field[i] & m->field##_mask[i]; \
  }

#define GET_EXACT8(at, field) m->field = match->value[at];
#define GET8(at, field, bits)  \
  m->field = match->value[at]; \
  m->field##_mask = match->mask[at];
#define GET16(at, field, bits)         \
  m->field = get16(match->value + at); \
  m->field##_mask = get16(match->mask + at);
#define GET24(at, field, bits)         \
  m->field = get24(match->value + at); \
  m->field##_mask = get24(match->mask + at);
#define GET32(at, field)               \
  m->field = get32(match->value + at); \
  m->field##_mask = get32(match->mask + at);
#define GET128(at, field)                  \
  memcpy(m->field, match->value + at, 16); \
  memcpy(m->field##_mask, match->mask + at, 16);

#define DEFINE_TERNARY_KEY(table)                                                                \
  static inline void table##_key(const SPEC(table##_match) * m, pipe_mgr_match_spec_t * match) { \
    uint8_t *value = match->value;                                                               \
    uint8_t *mask = match->mask;                                                                 \
    table##_FIELDS(PUT_EXACT8, PUT8, PUT16, PUT24, PUT32, PUT128)                                \
  }                                                                                              \
  static inline void table##_read_key(const pipe_mgr_match_spec_t *match,                        \
                                      SPEC(table##_match) * m) {                                 \
    memset(m, 0, sizeof *m);                                                                     \
    table##_FIELDS(GET_EXACT8, GET8, GET16, GET24, GET32, GET128)                                \
  }
DEFINE_TERNARY_KEY(cpuEncap)
DEFINE_TERNARY_KEY(trapToCpu)
DEFINE_TERNARY_KEY(finalDropControl)

static inline void l2Lookup_key(const SPEC(l2Lookup_match) * m, pipe_mgr_match_spec_t *match) {
  memset(match->mask, 0xff, 8);
  put24(match->value, m->egrMd_dmacOui);
  put24(match->value + 3, m->egrMd_dmacStation);
  put16(match->value + 6, m->egrMd_egrL2Domain);
}

static inline void l2Lookup_read_key(const pipe_mgr_match_spec_t *match, SPEC(l2Lookup_match) * m) {
  memset(m, 0, sizeof *m);
  m->egrMd_dmacOui = get24(match->value);
  m->egrMd_dmacStation = get24(match->value + 3);
  m->egrMd_egrL2Domain = get16(match->value + 6);
}

static inline void ipv4ShortMaskLpm_key(const SPEC(ipv4ShortMaskLpm_match) * m,
                                        pipe_mgr_match_spec_t *match) {
  const uint32_t wildcard = 32u - m->ingIpv4_dip_prefix_length;
  const uint32_t bits = wildcard > 32 ? 0xffffffffu : wildcard == 32 ? 0 : 0xffffffffu << wildcard;
  match->value[0] = m->l3Info_vrfId;
  match->mask[0] = 0xff;
  put32(match->value + 1, m->ingIpv4_dip & bits);
  put32(match->mask + 1, bits);
  match->priority = wildcard > 32 ? 41 : wildcard;
}

static inline void ipv4ShortMaskLpm_read_key(const pipe_mgr_match_spec_t *match,
                                             SPEC(ipv4ShortMaskLpm_match) * m) {
  const uint32_t mask = get32(match->mask + 1);
  memset(m, 0, sizeof *m);
  m->l3Info_vrfId = match->value[0];
  m->ingIpv4_dip = get32(match->value + 1);
  m->ingIpv4_dip_prefix_length = mask == 0 ? 0 : (uint16_t)(32 - __builtin_ctz(mask));
}

static inline void ipv6ShortMaskLpm_key(const SPEC(ipv6ShortMaskLpm_match) * m,
                                        pipe_mgr_match_spec_t *match) {
  const unsigned length = m->ingIpv6_dip_prefix_length;
  memset(match->mask, 0xff, 17);
  match->value[0] = m->l3Info_vrfId;
  if (length <= 128) {
    const unsigned whole = length / 8;
    memset(match->mask + 1 + whole, 0, 16 - whole);
    if (length % 8 != 0) match->mask[1 + whole] = (uint8_t)(0xff00u >> length % 8);
  }
  for (int i = 0; i < 16; ++i) match->value[1 + i] = m->ingIpv6_dip[i] & match->mask[1 + i];
  match->priority = length > 128 ? 137 : 128 - length;
}

static inline void ipv6ShortMaskLpm_read_key(const pipe_mgr_match_spec_t *match,
                                             SPEC(ipv6ShortMaskLpm_match) * m) {
  uint64_t words[2];
  memcpy(words, match->mask + 1, 16);
  memset(m, 0, sizeof *m);
  m->l3Info_vrfId = match->value[0];
  memcpy(m->ingIpv6_dip, match->value + 1, 16);
  if (words[1] != 0) {
    m->ingIpv6_dip_prefix_length = (uint16_t)(128 - __builtin_ctzll(__builtin_bswap64(words[1])));
  } else if (words[0] != 0) {
    m->ingIpv6_dip_prefix_length = (uint16_t)(64 - __builtin_ctzll(__builtin_bswap64(words[0])));
  }
}

#endif

/* ---- Actions ---- */

#ifdef STORES_ONLY
#define PUT_PARAMETER(put) memset(data, 0, sizeof data), (void)action_spec
#else
#define PUT_PARAMETER(put) put
#endif
#define DATA_copyPktToCpuSubintf PUT_PARAMETER(data[0] = action_spec->action_copyPipelineQid);
#define DATA_copyPktToCpuTagged DATA_copyPktToCpuSubintf
#define DATA_l2LookupKnownUcast PUT_PARAMETER(put24(data, action_spec->action_egrL2Aintf));
#define DATA_setNextHop PUT_PARAMETER(put16(data, action_spec->action_nextHop));
#define DATA_trapPacket PUT_PARAMETER(data[0] = action_spec->action_cpuReasonCode);
#define DATA_dropCount (void)data;
#define DATA_onMiss (void)data;
#define DATA_ipv4ShortMaskLpmMiss (void)data;
#define DATA_setFibMiss (void)data;
#define DATA_accept (void)data;

/* What an entry that was read holds: the record of its action, and which one it is. */
#ifdef STORES_ONLY
#define READ_ACTION(table, name, data_size) \
  memset(action_spec, 0, data_size);        \
  value_of_action = p4_pd_tessel_switch_##name;
#else
#define GET_PARAMETER8(at, field) held->action_##field = data[at];
#define GET_PARAMETER16(at, field) held->action_##field = get16(data + at);
#define GET_PARAMETER24(at, field) held->action_##field = get24(data + at);
#define CASE_PLAIN(name, handle)                  \
  case handle:                                    \
    (void)action_spec;                            \
    action_text = "p4_pd_tessel_switch_" #name;   \
    value_of_action = p4_pd_tessel_switch_##name; \
    break;
#define CASE_ACTION(name, handle, parameters)              \
  case handle: {                                           \
    SPEC(name##_action) *held = action_spec;               \
    if (held == NULL) return P4_PD_NULL_ARGUMENT;          \
    memset(held, 0, sizeof *held);                         \
    parameters action_text = "p4_pd_tessel_switch_" #name; \
    value_of_action = p4_pd_tessel_switch_##name;          \
    break;                                                 \
  }
#define READ_ACTION(table, name, data_size)                                   \
  switch (action_handle) {                                                    \
    table##_ACTIONS(CASE_ACTION, CASE_PLAIN, GET_PARAMETER8, GET_PARAMETER16, \
                    GET_PARAMETER24) default : return P4_PD_FOREIGN_ACTION;   \
  }
#endif

/* ---- Calls ---- */

/* What callers may get wrong is checked as the library does it; by the bytes of the parameters. */
#ifdef STORES_ONLY
#define REFUSE(is_wrong)
#else
#define REFUSE(is_wrong) \
  if (is_wrong) return P4_PD_NULL_ARGUMENT;
#endif
#define LACKS_0 false
#define LACKS_1 action_spec == NULL
#define LACKS_2 action_spec == NULL
#define LACKS_3 action_spec == NULL
#define LACKS_PRIORITY_TERNARY priority == NULL
#define LACKS_PRIORITY_EXACT false
#define LACKS_PRIORITY_LPM false

#define SET_PRIORITY_TERNARY match.priority = priority;
#define SET_PRIORITY_EXACT
#define SET_PRIORITY_LPM
#define READ_PRIORITY_OF_TERNARY *priority = match.priority;
#define READ_PRIORITY_OF_EXACT
#define READ_PRIORITY_OF_LPM
#define PASS_TTL_TERNARY 0
#define PASS_TTL_EXACT 0
#define PASS_TTL_LPM ttl

#define KEY(table, KIND, key_bits, key_bytes) \
  uint8_t value[key_bytes];                   \
  uint8_t mask[key_bytes];                    \
  pipe_mgr_match_spec_t match;                \
  clear(&match, sizeof match);                \
  match.valid_bit_count = key_bits;           \
  match.byte_count = key_bytes;               \
  match.value = value;                        \
  match.mask = mask;                          \
  table##_key(match_spec, &match);            \
  SET_PRIORITY_##KIND

#define ACTION(name, data_bits, data_size, attached) \
  uint8_t data[data_size == 0 ? 1 : data_size];      \
  pipe_mgr_action_spec_t action;                     \
  clear(&action, sizeof action);                     \
  DATA_##name action.type = PIPE_ACTION_DATA;        \
  action.data.valid_bit_count = data_bits;           \
  action.data.byte_count = data_size;                \
  action.data.bytes = data;                          \
  if (attached != 0) {                               \
    action.resources[0].handle = attached;           \
    action.resources[0].tag = PIPE_RESOURCE_ATTACH;  \
    action.resource_count = 1;                       \
  }

/* What an entry attaches; callers release it. */
static p4_pd_res_spec_t *resources_of(const pipe_mgr_action_spec_t *action) {
  const uint32_t listed = action->resource_count < PIPE_RESOURCES_PER_ACTION
                              ? action->resource_count
                              : PIPE_RESOURCES_PER_ACTION;
  p4_pd_res_spec_t *resources = bf_sys_calloc(listed, sizeof *resources);
  uint32_t count = 0;
  for (uint32_t i = 0; resources != NULL && i < listed; ++i) {
    if (action->resources[i].tag != PIPE_RESOURCE_ATTACH) continue;
    resources[count].handle = action->resources[i].handle;
    resources[count++].index = action->resources[i].index;
  }
  return resources;
}

#define DEFINE_READ(table, KIND, key_bits, key_bytes, handle, name, data_size)                     \
  p4_pd_status_t NAMED(table##_read)(p4_pd_session_handle_t session, uint8_t device,               \
                                     p4_pd_entry_handle_t entry, bool read_from_hardware,          \
                                     p4_pd_tessel_switch_##table##_match_spec_t *match_spec,       \
                                     READ_PRIORITY_##KIND char *action_name, void *action_spec,    \
                                     uint32_t *action_value, bool *no_key) {                       \
    REFUSE(match_spec == NULL || no_key == NULL || LACKS_PRIORITY_##KIND)                          \
    uint8_t value[key_bytes] = {0}, mask[key_bytes] = {0}, data[28] = {0};                         \
    pipe_mgr_match_spec_t match;                                                                   \
    pipe_mgr_action_spec_t action;                                                                 \
    uint32_t action_handle = 0;                                                                    \
    clear(&match, sizeof match);                                                                   \
    clear(&action, sizeof action);                                                                 \
    match.valid_bit_count = key_bits;                                                              \
    match.byte_count = key_bytes;                                                                  \
    match.value = value;                                                                           \
    match.mask = mask;                                                                             \
    action.data.byte_count = sizeof data;                                                          \
    action.data.bytes = data;                                                                      \
    const p4_pd_status_t status = pipe_mgr_get_entry(session, handle, device, entry, &match,       \
                                                     &action, &action_handle, read_from_hardware); \
    if (status != BF_SUCCESS) return status;                                                       \
    if (action.type != PIPE_ACTION_DATA) return P4_PD_NO_ACTION_DATA;                              \
    p4_pd_res_spec_t *resources = NULL;                                                            \
    if (action.resource_count != 0) {                                                              \
      resources = resources_of(&action);                                                           \
      if (resources == NULL) return P4_PD_NO_MEMORY;                                               \
    }                                                                                              \
    if (resources != NULL) bf_sys_free(resources);                                                 \
    const char *action_text = "p4_pd_tessel_switch_" #name;                                        \
    uint32_t value_of_action;                                                                      \
    READ_ACTION(table, name, data_size)                                                            \
    if (action_name != NULL) strcpy(action_name, action_text);                                     \
    if (action_value != NULL) *action_value = value_of_action;                                     \
    *no_key = match.value == NULL;                                                                 \
    if (match.value != NULL) table##_read_key(&match, match_spec);                                 \
    READ_PRIORITY_OF_##KIND return BF_SUCCESS;                                                     \
  }

#define DEFINE_CALLS(table, KIND, key_bits, key_bytes, handle, name, name_handle, bits, bytes,    \
                     counter, default_name, default_handle, default_bits, default_bytes,          \
                     default_counter)                                                             \
  p4_pd_status_t NAMED(table##_add)(p4_pd_session_handle_t session, p4_pd_device_target_t target, \
                                    MATCH_OF(table) PRIORITY_##KIND ACTION_##bytes(name)          \
                                            TTL_##KIND p4_pd_entry_handle_t *                     \
                                        entry) {                                                  \
    REFUSE(match_spec == NULL || LACKS_##bytes)                                                   \
    KEY(table, KIND, key_bits, key_bytes)                                                         \
    ACTION(name, bits, bytes, counter)                                                            \
    return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, handle, &match,        \
                                name_handle, &action, PASS_TTL_##KIND, 0, entry);                 \
  }                                                                                               \
  p4_pd_status_t NAMED(table##_modify)(p4_pd_session_handle_t session, uint8_t device,            \
                                       p4_pd_entry_handle_t entry MODIFY_##bytes(name)) {         \
    REFUSE(LACKS_##bytes)                                                                         \
    ACTION(name, bits, bytes, 0)                                                                  \
    return pipe_mgr_mat_ent_set_action(session, device, handle, entry, name_handle, &action, 0);  \
  }                                                                                               \
  p4_pd_status_t NAMED(table##_delete)(p4_pd_session_handle_t session, uint8_t device,            \
                                       p4_pd_entry_handle_t entry) {                              \
    return pipe_mgr_mat_ent_del(session, device, handle, entry, 0);                               \
  }                                                                                               \
  p4_pd_status_t NAMED(table##_find)(                                                             \
      p4_pd_session_handle_t session, p4_pd_device_target_t target,                               \
      MATCH_OF(table) PRIORITY_##KIND p4_pd_entry_handle_t * entry) {                             \
    REFUSE(match_spec == NULL)                                                                    \
    KEY(table, KIND, key_bits, key_bytes)                                                         \
    return pipe_mgr_match_spec_to_ent_hdl(session, target.device_id, target.pipe_id, handle,      \
                                          &match, entry);                                         \
  }                                                                                               \
  p4_pd_status_t NAMED(table##_set_default)(                                                      \
      p4_pd_session_handle_t session, p4_pd_device_target_t target,                               \
      ACTION_##default_bytes(default_name) p4_pd_entry_handle_t * entry) {                        \
    REFUSE(LACKS_##default_bytes)                                                                 \
    ACTION(default_name, default_bits, default_bytes, default_counter)                            \
    return pipe_mgr_mat_default_entry_set(session, target.device_id, target.pipe_id, handle,      \
                                          default_handle, &action, 0, entry);                     \
  }                                                                                               \
  DEFINE_READ(table, KIND, key_bits, key_bytes, handle, name, bytes)
BY_HAND_TABLES(DEFINE_CALLS)
