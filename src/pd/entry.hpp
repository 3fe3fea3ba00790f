// Entries of keyed tables that carry their actions directly: add, modify, delete, find. Each verb
// builds the pipeline manager's records on the stack and makes one call.
#pragma once

#include "codec/action_encode.hpp"
#include "codec/key_encode.hpp"
#include "pipe_mgr_match.h"

namespace pd {

// Arguments that only some tables have.
struct EntryOptions {
  uint32_t priority = 0;
  uint32_t ttl = 0;
  const p4_pd_bytes_meter_spec_t *meter = nullptr;
};

// An action with parameters needs its record.
template <class P>
PD_INLINE bool lacks_action(const void *action_spec) {
  return P::ActionType::action.param_count != 0 && action_spec == nullptr;
}

template <class P>
PD_INLINE p4_pd_status_t add_entry(p4_pd_session_handle_t session,
                                   const p4_pd_device_target_t &target,
                                   const typename P::TableType::Record *match_spec,
                                   const void *action_spec, EntryOptions options,
                                   p4_pd_entry_handle_t *entry) {
  if (match_spec == nullptr || lacks_action<P>(action_spec)) return P4_PD_NULL_ARGUMENT;
  using T = typename P::TableType;
  KeyBytes<T> key;
  ActionBytes<typename P::ActionType> data;
  pipe_mgr_match_spec_t match;
  pipe_mgr_action_spec_t action;
  encode_key<T>(*match_spec, options.priority, key, match);
  const p4_pd_status_t status = encode_action<P, op_add>(action_spec, options.meter, data, action);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, T::table.handle, &match,
                              P::handle, &action, options.ttl, 0, entry);
}

template <class P>
PD_INLINE p4_pd_status_t modify_entry(p4_pd_session_handle_t session, uint8_t device,
                                      p4_pd_entry_handle_t entry, const void *action_spec,
                                      EntryOptions options) {
  if (lacks_action<P>(action_spec)) return P4_PD_NULL_ARGUMENT;
  ActionBytes<typename P::ActionType> data;
  pipe_mgr_action_spec_t action;
  const p4_pd_status_t status =
      encode_action<P, op_modify>(action_spec, options.meter, data, action);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_mat_ent_set_action(session, device, P::TableType::table.handle, entry, P::handle,
                                     &action, 0);
}

template <class P>
PD_INLINE p4_pd_status_t modify_entry_by_match_spec(p4_pd_session_handle_t session,
                                                    const p4_pd_device_target_t &target,
                                                    const typename P::TableType::Record *match_spec,
                                                    const void *action_spec, EntryOptions options) {
  if (match_spec == nullptr || lacks_action<P>(action_spec)) return P4_PD_NULL_ARGUMENT;
  using T = typename P::TableType;
  KeyBytes<T> key;
  ActionBytes<typename P::ActionType> data;
  pipe_mgr_match_spec_t match;
  pipe_mgr_action_spec_t action;
  encode_key<T>(*match_spec, options.priority, key, match);
  const p4_pd_status_t status =
      encode_action<P, op_modify>(action_spec, options.meter, data, action);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_mat_ent_set_action_by_match_spec(session, target.device_id, target.pipe_id,
                                                   T::table.handle, &match, P::handle, &action, 0);
}

template <class T>
PD_INLINE p4_pd_status_t delete_entry(p4_pd_session_handle_t session, uint8_t device,
                                      p4_pd_entry_handle_t entry) {
  return pipe_mgr_mat_ent_del(session, device, T::table.handle, entry, 0);
}

template <class T>
PD_INLINE p4_pd_status_t delete_entry_by_match_spec(p4_pd_session_handle_t session,
                                                    const p4_pd_device_target_t &target,
                                                    const typename T::Record *match_spec,
                                                    EntryOptions options) {
  if (match_spec == nullptr) return P4_PD_NULL_ARGUMENT;
  KeyBytes<T> key;
  pipe_mgr_match_spec_t match;
  encode_key<T>(*match_spec, options.priority, key, match);
  return pipe_mgr_mat_ent_del_by_match_spec(session, target.device_id, target.pipe_id,
                                            T::table.handle, &match, 0);
}

template <class T>
PD_INLINE p4_pd_status_t find_entry(p4_pd_session_handle_t session,
                                    const p4_pd_device_target_t &target,
                                    const typename T::Record *match_spec, EntryOptions options,
                                    p4_pd_entry_handle_t *entry) {
  if (match_spec == nullptr) return P4_PD_NULL_ARGUMENT;
  KeyBytes<T> key;
  pipe_mgr_match_spec_t match;
  encode_key<T>(*match_spec, options.priority, key, match);
  return pipe_mgr_match_spec_to_ent_hdl(session, target.device_id, target.pipe_id, T::table.handle,
                                        &match, entry);
}

}  // namespace pd
