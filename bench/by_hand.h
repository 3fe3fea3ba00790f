/* What an engineer would write for six tables without a generator: straight-line code that makes
 * the same SDK calls with the same bytes. The measure that the library is held to, compiled twice:
 * as it stands (by_hand_), and with everything unrolled that a compiler can unroll (unrolled_). And
 * what no code can go without (stores_): the stores that fill the records of the call, with nothing
 * to fill them with. */
#ifndef BY_HAND_H
#define BY_HAND_H

#include "by_hand_tables.h"
#include "p4_pd_tessel_switch.h"

#ifdef __cplusplus
extern "C" {
#endif

#define MATCH_OF(table) const p4_pd_tessel_switch_##table##_match_spec_t *match_spec,
#define PRIORITY_TERNARY uint32_t priority,
#define PRIORITY_EXACT
#define PRIORITY_LPM
#define TTL_TERNARY
#define TTL_EXACT
#define TTL_LPM uint32_t ttl,
#define READ_PRIORITY_TERNARY uint32_t *priority,
#define READ_PRIORITY_EXACT
#define READ_PRIORITY_LPM
/* By the bytes of its parameters. */
#define ACTION_0(action)
#define ACTION_1(action) const p4_pd_tessel_switch_##action##_action_spec_t *action_spec,
#define ACTION_2(action) ACTION_1(action)
#define ACTION_3(action) ACTION_1(action)

#define MODIFY_0(action)
#define MODIFY_1(action) , const p4_pd_tessel_switch_##action##_action_spec_t *action_spec
#define MODIFY_2(action) MODIFY_1(action)
#define MODIFY_3(action) MODIFY_1(action)

/* clang-format off */
#define DECLARE_BY_HAND(prefix, table, KIND, action, bytes, default_action, default_bytes) \
  p4_pd_status_t prefix##table##_add( \
      p4_pd_session_handle_t session, p4_pd_device_target_t target, MATCH_OF(table) \
      PRIORITY_##KIND ACTION_##bytes(action) TTL_##KIND p4_pd_entry_handle_t *entry); \
  p4_pd_status_t prefix##table##_modify( \
      p4_pd_session_handle_t session, uint8_t device, \
      p4_pd_entry_handle_t entry MODIFY_##bytes(action)); \
  p4_pd_status_t prefix##table##_delete( \
      p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry); \
  p4_pd_status_t prefix##table##_find( \
      p4_pd_session_handle_t session, p4_pd_device_target_t target, MATCH_OF(table) \
      PRIORITY_##KIND p4_pd_entry_handle_t *entry); \
  p4_pd_status_t prefix##table##_read( \
      p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry, \
      bool read_from_hardware, p4_pd_tessel_switch_##table##_match_spec_t *match_spec, \
      READ_PRIORITY_##KIND char *action_name, void *action_spec, uint32_t *action_value, \
      bool *no_key); \
  p4_pd_status_t prefix##table##_set_default( \
      p4_pd_session_handle_t session, p4_pd_device_target_t target, \
      ACTION_##default_bytes(default_action) p4_pd_entry_handle_t *entry);

#define DECLARE_ALL(table, KIND, key_bits, key_bytes, handle, action, action_handle, bits, bytes, \
                    counter, default_action, default_handle, default_bits, default_bytes, ...) \
  DECLARE_BY_HAND(by_hand_, table, KIND, action, bytes, default_action, default_bytes) \
  DECLARE_BY_HAND(unrolled_, table, KIND, action, bytes, default_action, default_bytes) \
  DECLARE_BY_HAND(stores_, table, KIND, action, bytes, default_action, default_bytes)
/* clang-format on */
BY_HAND_TABLES(DECLARE_ALL)

#ifdef __cplusplus
}
#endif

#endif
