// The default entry of a table that carries its actions directly.
#pragma once

#include "codec/action_encode.hpp"
#include "pipe_mgr_match.h"

namespace pd {

template <class P>
PD_INLINE p4_pd_status_t set_default_action(p4_pd_session_handle_t session,
                                            const p4_pd_device_target_t &target,
                                            const void *action_spec,
                                            const p4_pd_bytes_meter_spec_t *meter,
                                            p4_pd_entry_handle_t *entry) {
  if (P::ActionType::action.param_count != 0 && action_spec == nullptr) return P4_PD_NULL_ARGUMENT;
  ActionBytes<typename P::ActionType> data;
  pipe_mgr_action_spec_t action;
  const p4_pd_status_t status = encode_action<P, op_default>(action_spec, meter, data, action);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_mat_default_entry_set(session, target.device_id, target.pipe_id,
                                        P::TableType::table.handle, P::handle, &action, 0, entry);
}

}  // namespace pd
