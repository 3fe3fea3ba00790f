#include "counter.hpp"

namespace pd {

namespace {

void report_counter(const pipe_mgr_counter_t &record, p4_pd_counter_values_t &values) {
  values.packets = record.packets;
  values.bytes = record.bytes;
}

}  // namespace

p4_pd_status_t read_direct_counter(uint32_t table, p4_pd_session_handle_t session,
                                   p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
                                   uint32_t flags, p4_pd_counter_values_t *values) {
  if (values == nullptr) return P4_PD_NULL_ARGUMENT;
  p4_pd_status_t status = BF_SUCCESS;
  if ((flags & P4_PD_READ_FROM_HARDWARE) != 0) {
    status = pipe_mgr_direct_stat_ent_database_sync(session, target.device_id, target.pipe_id,
                                                    table, entry);
    if (status != BF_SUCCESS) return status;
  }
  pipe_mgr_counter_t record = {};
  status = pipe_mgr_mat_ent_direct_stat_query(session, target.device_id, table, entry, &record);
  if (status == BF_SUCCESS) report_counter(record, *values);
  return status;
}

p4_pd_status_t read_counter(uint32_t counter, p4_pd_session_handle_t session,
                            p4_pd_device_target_t target, uint32_t index, uint32_t flags,
                            p4_pd_counter_values_t *values) {
  if (values == nullptr) return P4_PD_NULL_ARGUMENT;
  p4_pd_status_t status = BF_SUCCESS;
  if ((flags & P4_PD_READ_FROM_HARDWARE) != 0) {
    status =
        pipe_mgr_stat_ent_database_sync(session, target.device_id, target.pipe_id, counter, index);
    if (status != BF_SUCCESS) return status;
  }
  pipe_mgr_counter_t record = {};
  status =
      pipe_mgr_stat_ent_query(session, target.device_id, target.pipe_id, counter, index, &record);
  if (status == BF_SUCCESS) report_counter(record, *values);
  return status;
}

}  // namespace pd
