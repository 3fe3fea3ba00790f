// Sizes and offsets of the records that cross the library's border, worked out by hand: first those
// on x86-64, then those on i386, where 64-bit numbers stand on 4 bytes.
#include <cstddef>

#include "p4_pd_tessel_switch.h"

namespace {

constexpr size_t by_abi(size_t on_64, size_t on_32) { return sizeof(void *) == 8 ? on_64 : on_32; }

#define PIN_SIZE(type, on_64, on_32) static_assert(sizeof(type) == by_abi(on_64, on_32))
#define PIN(type, member, on_64, on_32) \
  static_assert(offsetof(type, member) == by_abi(on_64, on_32))

// ---- The library's own ----

PIN_SIZE(p4_pd_entry_handle_t, 4, 4);
PIN_SIZE(p4_pd_tessel_switch_action_names_t, 4, 4);

PIN(p4_pd_device_target_t, pipe_id, 4, 4);
PIN_SIZE(p4_pd_device_target_t, 8, 8);
PIN(p4_pd_parser_target_t, direction, 4, 4);
PIN(p4_pd_parser_target_t, pipe_id, 8, 8);
PIN(p4_pd_parser_target_t, parser_id, 10, 10);
PIN_SIZE(p4_pd_parser_target_t, 12, 12);

PIN(p4_pd_bytes_meter_spec_t, committed_burst, 4, 4);
PIN(p4_pd_bytes_meter_spec_t, peak_rate, 8, 8);
PIN(p4_pd_bytes_meter_spec_t, peak_burst, 12, 12);
PIN(p4_pd_bytes_meter_spec_t, meter_type, 16, 16);
PIN_SIZE(p4_pd_bytes_meter_spec_t, 20, 20);
PIN_SIZE(p4_pd_packets_meter_spec_t, 20, 20);

PIN(p4_pd_counter_values_t, bytes, 8, 8);
PIN_SIZE(p4_pd_counter_values_t, 16, 16);
PIN(p4_pd_wred_params_t, min_threshold_cells, 4, 4);
PIN(p4_pd_wred_params_t, max_threshold_cells, 8, 8);
PIN(p4_pd_wred_params_t, max_probability, 12, 12);
PIN_SIZE(p4_pd_wred_params_t, 16, 16);
PIN(p4_pd_idle_time_params_t, sweep_interval_ms, 4, 4);
PIN(p4_pd_idle_time_params_t, max_ttl_ms, 8, 8);
PIN(p4_pd_idle_time_params_t, min_ttl_ms, 12, 12);
PIN(p4_pd_idle_time_params_t, default_ttl_ms, 16, 16);
PIN_SIZE(p4_pd_idle_time_params_t, 24, 24);
PIN(p4_pd_hash_calc_attr_t, type, 4, 4);
PIN(p4_pd_hash_calc_attr_t, value, 8, 8);
PIN_SIZE(p4_pd_hash_calc_attr_t, 16, 12);
PIN(p4_pd_res_spec_t, index, 4, 4);
PIN_SIZE(p4_pd_res_spec_t, 8, 8);

// The generated test of layouts has match and action records.
PIN(p4_pd_tessel_switch_action_specs_t, spec, 4, 4);
PIN_SIZE(p4_pd_tessel_switch_action_specs_t, 28, 28);

// ---- The SDK's ----

PIN(pipe_mgr_match_spec_t, valid_bit_count, 4, 4);
PIN(pipe_mgr_match_spec_t, value, 8, 8);
PIN(pipe_mgr_match_spec_t, mask, 16, 12);
PIN(pipe_mgr_match_spec_t, priority, 32, 24);
PIN_SIZE(pipe_mgr_match_spec_t, 40, 28);

PIN(pipe_mgr_action_data_t, byte_count, 2, 2);
PIN(pipe_mgr_action_data_t, bytes, 8, 4);
PIN_SIZE(pipe_mgr_action_data_t, 16, 8);

PIN(pipe_mgr_rate_t, value, 8, 4);
PIN_SIZE(pipe_mgr_rate_t, 16, 12);
PIN(pipe_mgr_meter_spec_t, committed_rate, 8, 4);
PIN(pipe_mgr_meter_spec_t, committed_burst, 24, 16);
PIN(pipe_mgr_meter_spec_t, peak_rate, 32, 24);
PIN(pipe_mgr_meter_spec_t, peak_burst, 48, 36);
PIN_SIZE(pipe_mgr_meter_spec_t, 56, 44);

PIN_SIZE(pipe_stful_cell_t, 16, 16);
PIN(pipe_mgr_counter_t, packets, 8, 8);
PIN_SIZE(pipe_mgr_counter_t, 16, 16);
PIN(pipe_mgr_resource_t, index, 4, 4);
PIN(pipe_mgr_resource_t, data, 8, 8);
PIN(pipe_mgr_resource_t, tag, 64, 52);
PIN_SIZE(pipe_mgr_resource_t, 72, 56);

PIN(pipe_mgr_action_spec_t, data, 8, 4);
PIN(pipe_mgr_action_spec_t, member, 24, 12);
PIN(pipe_mgr_action_spec_t, group, 28, 16);
PIN(pipe_mgr_action_spec_t, resources, 32, 20);
PIN(pipe_mgr_action_spec_t, resource_count, 320, 244);
PIN_SIZE(pipe_mgr_action_spec_t, 328, 248);

PIN(pipe_stful_query_t, cells, 8, 4);
PIN_SIZE(pipe_stful_query_t, 16, 8);
PIN(pipe_mgr_digest_message_t, entry_size, 16, 16);
PIN(pipe_mgr_digest_message_t, entries, 24, 20);
PIN_SIZE(pipe_mgr_digest_message_t, 32, 24);

PIN(bf_drv_client_callbacks_t, device_remove, 24, 12);
PIN(bf_drv_client_callbacks_t, device_log, 32, 16);
PIN(bf_drv_client_callbacks_t, device_restore, 40, 20);
PIN_SIZE(bf_drv_client_callbacks_t, 232, 116);
PIN(bf_snapshot_control_t, valid, 1, 1);
PIN(bf_snapshot_control_t, triggered, 2, 2);
PIN_SIZE(bf_snapshot_control_t, 4, 4);

}  // namespace
