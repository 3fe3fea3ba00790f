// Every family of exports with the SDK calls that it makes.
#include <algorithm>

#include "expected_calls.hpp"

namespace pd_test {

const std::vector<FamilyCalls> &family_calls() {
  static const std::vector<FamilyCalls> rows = {
      // Start and stop. The states were made by the first init of the process.
      {"init", 1,
       "p4_pd_ms_init(); bf_drv_register(client_name, local); "
       "bf_drv_client_register_callbacks(client, callbacks, 2)"},
      {"cleanup", 1, "bf_drv_deregister(client)"},
      {"device_state_cleanup", 1, ""},

      // Tables.
      {"get_mat_table_handle", 120, ""},
      {"supports_entry_priority", 120, ""},
      {"get_entry_count", 120,
       "pipe_mgr_get_entry_count(session, device_id, pipe_id, table, 0, out count)"},
      {"set_property", 120,
       "pipe_mgr_tbl_set_property(session, device, table, property, value, argument)"},
      {"get_property", 120,
       "pipe_mgr_tbl_get_property(session, device, table, property, local, local)"},
      {"register_mat_update_cb", 120,
       "pipe_register_mat_update_cb(session, device, table, callback, cookie)"},
      {"table_reset_default_entry", 120,
       "pipe_mgr_mat_tbl_default_entry_reset(session, device_id, pipe_id, table, 0)"},

      // Entries.
      {"table_add", 221,
       "pipe_mgr_mat_ent_add(session, device_id, pipe_id, table, match, action, add, ttl?, 0, "
       "out entry)"},
      {"table_modify", 221,
       "pipe_mgr_mat_ent_set_action(session, device, table, entry, action, modify, 0)"},
      {"table_modify_by_match_spec", 221,
       "pipe_mgr_mat_ent_set_action_by_match_spec(session, device_id, pipe_id, table, match, "
       "action, modify, 0)"},
      {"table_delete", 85, "pipe_mgr_mat_ent_del(session, device, table, entry, 0)"},
      {"table_delete_by_match_spec", 85,
       "pipe_mgr_mat_ent_del_by_match_spec(session, device_id, pipe_id, table, match, 0)"},
      {"match_spec_to_entry_hdl", 85,
       "pipe_mgr_match_spec_to_ent_hdl(session, device_id, pipe_id, table, match, out entry)"},

      // Default entries.
      {"set_default_action", 179,
       "pipe_mgr_mat_default_entry_set(session, device_id, pipe_id, table, action, default, 0, "
       "out entry)"},
      {"table_get_default_entry_handle", 120,
       "pipe_mgr_table_get_default_entry_handle(session, device_id, pipe_id, table, out entry)"},
      {"table_get_default_entry", 120,
       "pipe_mgr_table_get_default_entry(session, device_id, pipe_id, table, data_buffer, local, "
       "read_from_hardware)"},

      // Read-back.
      {"get_entry", 116,
       "pipe_mgr_get_entry(session, table, device, entry, key_buffer, data_buffer, local, "
       "read_from_hardware)"},
      {"get_first_entry_handle", 120,
       "pipe_mgr_get_first_entry_handle(session, table, device_id, pipe_id, out entry)"},
      {"get_next_entry_handles", 120,
       "pipe_mgr_get_next_entry_handles(session, table, device_id, pipe_id, entry, count, "
       "out entries)"},

      // Idle time.
      {"idle_tmo_enable", 3, "pipe_mgr_idle_tmo_enable(session, device, table, ageing)"},
      {"idle_tmo_disable", 3, "pipe_mgr_idle_tmo_disable(session, device, table)"},
      {"idle_register_tmo_cb", 3,
       "pipe_mgr_idle_register_tmo_cb(session, device, table, callback, client_data)"},
      {"idle_params_get", 3, "pipe_mgr_idle_params_get(session, device, table, local)"},
      {"set_ttl", 3, "pipe_mgr_mat_ent_set_idle_ttl(session, device, table, entry, ttl, 0)"},
      {"get_ttl", 3, "pipe_mgr_mat_ent_get_idle_ttl(session, device, table, entry, out ttl)"},
      {"update_hit_state", 3,
       "pipe_mgr_idle_time_update_hit_state(session, device, table, entry, hit_state)"},
      {"get_hit_state", 3,
       "pipe_mgr_idle_time_get_hit_state(session, device, table, entry, local)"},

      // Entries of tables bound to a profile.
      {"add_entry", 4,
       "p4_pd_ms_get_mbr_act(state, device_id, member, local); pipe_mgr_mat_ent_add(session, "
       "device_id, pipe_id, table, match, member_action, to_member, 0, 0, out entry)"},
      {"add_entry_with_selector", 4,
       "p4_pd_ms_get_grp_act(state, device_id, group, local); pipe_mgr_mat_ent_add(session, "
       "device_id, pipe_id, table, match, member_action, to_group, 0, 0, out entry)"},
      {"modify_entry", 4,
       "p4_pd_ms_get_mbr_act(state, device, member, local); pipe_mgr_mat_ent_set_action(session, "
       "device, table, entry, member_action, to_member, 0)"},
      {"modify_entry_with_selector", 4,
       "p4_pd_ms_get_grp_act(state, device, group, local); pipe_mgr_mat_ent_set_action(session, "
       "device, table, entry, member_action, to_group, 0)"},
      {"modify_entry_by_match_spec", 4,
       "p4_pd_ms_get_mbr_act(state, device_id, member, local); "
       "pipe_mgr_mat_ent_set_action_by_match_spec(session, device_id, pipe_id, table, match, "
       "member_action, to_member, 0)"},
      {"modify_entry_with_selector_by_match_spec", 4,
       "p4_pd_ms_get_grp_act(state, device_id, group, local); "
       "pipe_mgr_mat_ent_set_action_by_match_spec(session, device_id, pipe_id, table, match, "
       "member_action, to_group, 0)"},
      {"set_default_entry", 4,
       "p4_pd_ms_get_mbr_act(state, device_id, member, local); "
       "pipe_mgr_mat_default_entry_set(session, device_id, pipe_id, table, member_action, "
       "to_member, 0, out entry)"},
      {"set_default_entry_with_selector", 4,
       "p4_pd_ms_get_grp_act(state, device_id, group, local); "
       "pipe_mgr_mat_default_entry_set(session, device_id, pipe_id, table, member_action, "
       "to_group, 0, out entry)"},
      {"get_indirect_entry", 4,
       "pipe_mgr_get_entry(session, table, device, entry, key_buffer, no_buffer, local, "
       "read_from_hardware)"},

      // Members and groups.
      {"add_member", 8,
       "pipe_mgr_adt_ent_add(session, device_id, pipe_id, adt, action, member_data, out member, "
       "0); p4_pd_ms_new_mbr(session, state, device_id, got member); p4_pd_ms_set_mbr_act(state, "
       "device_id, got member, action)"},
      {"modify_member", 8,
       "p4_pd_ms_get_mbr_act(state, device, member, local); pipe_mgr_adt_ent_set(session, device, "
       "adt, member, action, member_data, 0)"},
      {"del_member", 4,
       "pipe_mgr_adt_ent_del(session, device, adt, member, 0); p4_pd_ms_del_mbr(session, state, "
       "device, member)"},
      {"create_group", 4,
       "pipe_mgr_sel_grp_add(session, device_id, pipe_id, sel, max_size, out group, 0); "
       "p4_pd_ms_new_grp(session, state, device_id, got group)"},
      {"del_group", 4,
       "pipe_mgr_sel_grp_del(session, device, sel, group, 0); p4_pd_ms_del_grp(session, state, "
       "device, group)"},
      {"add_member_to_group", 4,
       "p4_pd_ms_get_mbr_act(state, device, member, local); pipe_mgr_sel_grp_mbr_add(session, "
       "device, sel, group, member_action, member, 0); p4_pd_ms_add_mbr_to_grp(session, state, "
       "device, member, group); p4_pd_ms_set_grp_act(state, device, group, member_action)"},
      {"del_member_from_group", 4,
       "pipe_mgr_sel_grp_mbr_del(session, device, sel, group, member, 0); "
       "p4_pd_ms_del_mbr_from_grp(session, state, device, member, group)"},
      {"group_member_state_set", 4,
       "pipe_mgr_sel_grp_mbr_disable(session, device, sel, group, member, 0)"},
      {"group_member_state_get", 4,
       "pipe_mgr_sel_grp_mbr_state_get(session, device, sel, group, member, local)"},
      {"group_member_get_from_hash", 4,
       "pipe_mgr_sel_grp_mbr_get_from_hash(session, device, sel, group, hash, hash_length, "
       "out member)"},
      {"set_dynamic_action_selection_fallback_member", 4,
       "pipe_mgr_sel_fallback_mbr_set(session, device_id, pipe_id, sel, member, 0)"},
      {"reset_dynamic_action_selection_fallback_member", 4,
       "pipe_mgr_sel_fallback_mbr_reset(session, device_id, pipe_id, sel, 0)"},
      {"register_callback", 4,
       "pipe_mgr_sel_tbl_register_cb(session, device, sel, callback, cookie)"},
      {"sel_track_updates", 4, "pipe_mgr_sel_tbl_register_cb(0, device, sel, callback, cookie)"},
      {"register_adt_update_cb", 4,
       "pipe_register_adt_update_cb(session, device, adt, callback, cookie)"},
      {"register_sel_update_cb", 4,
       "pipe_register_sel_update_cb(session, device, sel, callback, cookie)"},
      {"get_adt_table_handle", 4, ""},
      {"get_sel_table_handle", 4, ""},

      // Profiles read back. A member without parameters needs no resources.
      {"get_member", 4,
       "pipe_mgr_get_action_data_entry(adt, device, member, member_buffer, local, "
       "read_from_hardware); p4_pd_ms_mbr_get_res(state, device, member, local, local)"},
      {"get_first_member", 4,
       "pipe_mgr_get_first_entry_handle(session, adt, device_id, pipe_id, out member)"},
      {"get_next_members", 4,
       "pipe_mgr_get_next_entry_handles(session, adt, device_id, pipe_id, member, count, "
       "out members)"},
      {"get_first_group", 4,
       "pipe_mgr_get_first_entry_handle(session, sel, device_id, pipe_id, out group)"},
      {"get_next_groups", 4,
       "pipe_mgr_get_next_entry_handles(session, sel, device_id, pipe_id, group, count, "
       "out groups)"},
      {"get_first_group_member", 4,
       "pipe_mgr_get_first_group_member(session, sel, device, group, out member)"},
      {"get_next_group_members", 4,
       "pipe_mgr_get_next_group_members(session, sel, device, group, member, count, out members)"},
      {"get_act_prof_entry_count", 4,
       "pipe_mgr_get_entry_count(session, device_id, pipe_id, adt, 0, out count)"},
      {"get_selector_group_count", 4,
       "pipe_mgr_get_entry_count(session, device_id, pipe_id, sel, 0, out count)"},
      {"get_selector_group_member_count", 4,
       "pipe_mgr_get_sel_grp_mbr_count(session, device, sel, group, out count)"},
      {"get_word_llp_active_member_count", 4,
       "pipe_mgr_get_word_llp_active_member_count(session, device_id, pipe_id, sel, word, "
       "out count)"},
      {"get_word_llp_active_members", 4,
       "pipe_mgr_get_word_llp_active_members(session, device_id, pipe_id, sel, word, count, "
       "out members)"},

      // Meters. The direct one is in the meter scenarios.
      {"bytes_meter_set", 1,
       "pipe_mgr_meter_ent_set(session, device_id, pipe_id, meter, index, meter_record, 0)"},
      {"packets_meter_set", 1,
       "pipe_mgr_meter_ent_set(session, device_id, pipe_id, meter, index, meter_record, 0)"},
      {"bytes_meter_read", 1,
       "pipe_mgr_meter_read_entry_idx(session, device_id, pipe_id, meter, index, local)"},
      {"packets_meter_read", 1,
       "pipe_mgr_meter_read_entry_idx(session, device_id, pipe_id, meter, index, local)"},
      {"meter_bytecount_adjust_set", 7,
       "pipe_mgr_meter_set_bytecount_adjust(session, device_id, pipe_id, resource, adjustment)"},
      {"meter_bytecount_adjust_get", 7,
       "pipe_mgr_meter_get_bytecount_adjust(session, device_id, pipe_id, resource, "
       "out adjustment)"},
      {"wred_set", 1, "pipe_mgr_wred_ent_set(session, device_id, pipe_id, wred, index, params, 0)"},
      {"meter_set", 7,
       "pipe_mgr_meter_ent_set(session, device_id, pipe_id, resource, index, meter_record, 0) | "
       "pipe_mgr_mat_ent_set_resource(session, device_id, table, entry, direct_meter, 1, 0)"},
      {"meter_read", 7,
       "pipe_mgr_meter_read_entry_idx(session, device_id, pipe_id, resource, index, local) | "
       "pipe_mgr_meter_read_entry(session, device_id, pipe_id, table, entry, local)"},

      // Counters. The second way is that of a direct one.
      {"counter_read", 11,
       "pipe_mgr_stat_ent_database_sync(session, device_id, pipe_id, resource, index); "
       "pipe_mgr_stat_ent_query(session, device_id, pipe_id, resource, index, local) | "
       "pipe_mgr_direct_stat_ent_database_sync(session, device_id, pipe_id, table, entry); "
       "pipe_mgr_mat_ent_direct_stat_query(session, device_id, table, entry, local)"},
      {"counter_write", 11,
       "pipe_mgr_stat_ent_set(session, device_id, pipe_id, resource, index, local) | "
       "pipe_mgr_mat_ent_direct_stat_set(session, device_id, table, entry, local)"},
      {"counter_hw_sync", 11,
       "pipe_mgr_stat_database_sync(session, device_id, pipe_id, resource, callback, cookie) | "
       "pipe_mgr_direct_stat_database_sync(session, device_id, pipe_id, table, callback, cookie)"},

      // Registers. No register belongs to the entries of a table: the device refuses those.
      {"register_read", 9,
       "pipe_stful_query_get_sizes(session, device_id, resource, local); "
       "pipe_stful_ent_query(session, device_id, pipe_id, resource, index, local, flags)"},
      {"register_range_read", 9,
       "pipe_stful_query_get_sizes(session, device_id, resource, local); "
       "pipe_stful_ent_query_range(session, device_id, pipe_id, resource, first, index_count, "
       "local, local, flags)"},
      {"register_write", 9,
       "pipe_stful_ent_set(session, device_id, pipe_id, resource, index, local, 0)"},
      {"register_write_all", 9,
       "pipe_stful_table_reset(session, device_id, pipe_id, resource, local)"},
      {"register_reset_all", 9,
       "pipe_stful_table_reset(session, device_id, pipe_id, resource, null)"},
      {"register_range_reset", 9,
       "pipe_stful_table_reset_range(session, device_id, pipe_id, resource, first, index_count, "
       "null)"},
      {"register_hw_sync", 9,
       "pipe_stful_database_sync(session, device_id, pipe_id, resource, callback, cookie)"},
      {"register_read_indirect", 1,
       "pipe_stful_ent_query(session, device_id, pipe_id, reg, index, local, flags)"},
      {"register_write_indirect", 1,
       "pipe_stful_ent_set(session, device_id, pipe_id, reg, index, local, 0)"},
      {"register_write_all_indirect", 1,
       "pipe_stful_table_reset(session, device_id, pipe_id, reg, local)"},
      {"register_reset_all_indirect", 1,
       "pipe_stful_table_reset(session, device_id, pipe_id, reg, null)"},
      {"register_range_reset_indirect", 1,
       "pipe_stful_table_reset_range(session, device_id, pipe_id, reg, first, index_count, null)"},
      {"register_hw_sync_indirect", 1,
       "pipe_stful_database_sync(session, device_id, pipe_id, reg, callback, cookie)"},
      {"register_read_direct", 1,
       "pipe_stful_direct_ent_query(session, device_id, table, entry, local, flags)"},
      {"register_write_direct", 1,
       "pipe_mgr_mat_ent_set_resource(session, device, table, entry, local, 1, 0)"},
      {"register_hw_sync_direct", 1,
       "pipe_stful_direct_database_sync(session, device_id, pipe_id, table, callback, cookie)"},

      // Hash calculations. The values of the scene are no bits wide.
      {"hash_calc_input_set", 8,
       "pipe_mgr_hash_calc_input_set(session, device, resource, field_list)"},
      {"hash_calc_input_get", 8, "pipe_mgr_hash_calc_input_get(session, device, resource, local)"},
      {"hash_calc_algorithm_set", 8,
       "pipe_mgr_hash_calc_algorithm_set(session, device, resource, 587202565)"},
      {"hash_calc_algorithm_get", 8,
       "pipe_mgr_hash_calc_algorithm_get(session, device, resource, local)"},
      {"hash_calc_seed_set", 8, "pipe_mgr_hash_calc_seed_set(session, device, resource, seed)"},
      {"hash_calc_seed_get", 8, "pipe_mgr_hash_calc_seed_get(session, device, resource, local)"},
      {"hash_calc_input_field_attribute_set", 8,
       "pipe_mgr_hash_calc_input_field_attribute_set(session, device, resource, field_list, "
       "attribute_count, local)"},
      {"hash_calc_input_field_attribute_count_get", 8,
       "pipe_mgr_hash_calc_input_get(session, device, resource, local); "
       "pipe_mgr_hash_calc_input_field_attribute_count_get(session, device, resource, field_list, "
       "local)"},
      {"hash_calc_input_field_attribute_get", 8,
       "pipe_mgr_hash_calc_input_get(session, device, resource, local); "
       "pipe_mgr_hash_calc_input_field_attribute_get(session, device, resource, field_list, "
       "max_count, local, local)"},
      {"hash_calc_calculate_hash_value", 8,
       "pipe_mgr_hash_calc_calculate_hash_value(session, device, resource, null, 0, local, "
       "hash_length)"},
      {"hash_calc_input_set_by_name", 1,
       "pipe_mgr_hash_calc_input_set(session, device, resource, field_list)"},
      {"hash_calc_input_field_attribute_set_by_name", 1,
       "pipe_mgr_hash_calc_input_field_attribute_set(session, device, resource, field_list, "
       "attribute_count, local)"},
      {"hash_calc_input_field_attribute_count_get_by_name", 1,
       "pipe_mgr_hash_calc_input_get(session, device, resource, local); "
       "pipe_mgr_hash_calc_input_field_attribute_count_get(session, device, resource, field_list, "
       "local)"},
      {"hash_calc_input_field_attribute_get_by_name", 1,
       "pipe_mgr_hash_calc_input_get(session, device, resource, local); "
       "pipe_mgr_hash_calc_input_field_attribute_get(session, device, resource, field_list, "
       "max_count, local, local)"},

      // Digests, value sets and snapshots.
      {"digest_register", 2,
       "pipe_mgr_lrn_digest_notification_register(session, device, resource, callback, cookie)"},
      {"digest_deregister", 2,
       "pipe_mgr_lrn_digest_notification_deregister(session, device, resource)"},
      {"digest_notify_ack", 2, "pipe_mgr_flow_lrn_notify_ack(session, resource, message)"},
      {"set_learning_timeout", 1, "pipe_mgr_flow_lrn_set_timeout(session, device, timeout)"},
      {"pvs_set_property", 2,
       "pipe_mgr_pvs_set_property(session, device, resource, property, value, argument, 0)"},
      {"pvs_get_property", 2,
       "pipe_mgr_pvs_get_property(session, device, resource, property, local, argument, 0)"},
      {"pvs_entry_add", 2,
       "pipe_mgr_pvs_entry_add(session, 5, resource, 1, 2, 3, value, mask, local)"},
      {"pvs_entry_modify", 2,
       "pipe_mgr_pvs_entry_modify(session, device, resource, entry, value, mask)"},
      {"pvs_entry_delete", 2, "pipe_mgr_pvs_entry_delete(session, device, resource, entry)"},
      {"pvs_entry_get", 2,
       "pipe_mgr_pvs_entry_get(session, device, resource, entry, local, local)"},
      {"pvs_entry_handle_get", 2,
       "pipe_mgr_pvs_entry_handle_get(session, 5, resource, 1, 2, 3, value, mask, local)"},
      {"pvs_entry_get_first_entry_handle", 2,
       "pipe_mgr_pvs_entry_get_first(session, 5, resource, 1, 2, 3, local)"},
      {"pvs_entry_get_next_entry_handles", 2,
       "pipe_mgr_pvs_entry_get_next(session, 5, resource, 1, 2, 3, entry, count, local)"},
      {"pvs_entry_get_count", 2,
       "pipe_mgr_pvs_entry_get_count(session, 5, resource, 1, 2, 3, read_from_hardware, local)"},
      {"snapshot_create", 1,
       "bf_snapshot_create(device, pipe, first_stage, last_stage, direction, local)"},
      {"snapshot_delete", 1, "bf_snapshot_delete(snapshot)"},
      {"snapshot_capture_trigger_set", 1,
       "bf_snapshot_capture_trigger_set(snapshot, local, local)"},
      {"snapshot_capture_data_get", 1,
       "bf_snapshot_capture_phv_fields_dict_size(snapshot, local, local); "
       "bf_snapshot_capture_get(snapshot, pipe, local, local, local)"},

      // Placement data.
      {"get_entry_from_plcmt_data", 116,
       "pipe_mgr_plcmt_mat_data_get_entry(placement, local, local, local)"},
      {"get_indirect_entry_from_plcmt_data", 4,
       "pipe_mgr_plcmt_mat_data_get_entry(placement, local, local, local)"},
      {"get_member_from_plcmt_data", 4,
       "pipe_mgr_plcmt_adt_data_get_entry(placement, local, local)"},
      {"get_full_member_info_from_plcmt_data", 4,
       "pipe_mgr_plcmt_adt_data_get_entry(placement, local, local); p4_pd_ms_mbr_get_res(state, "
       "device, member, local, local)"},
      {"restore_virtual_dev_state", 1,
       "pipe_mgr_hitless_ha_restore_virtual_dev_state(session, device, virtual_device, pipe, "
       "flags, local)"},
  };
  return rows;
}

const FamilyCalls *calls_of_family(std::string_view family) {
  const auto &rows = family_calls();
  const auto found =
      std::ranges::find_if(rows, [&](auto &row) { return std::string_view(row.family) == family; });
  return found == rows.end() ? nullptr : &*found;
}

bool hands_on(const FamilyCalls &row, std::string_view parameter) {
  const std::string_view calls = row.calls;
  return calls.find("out " + std::string(parameter)) != std::string_view::npos ||
         (parameter == "hash" && calls.find("hash,") != std::string_view::npos) ||
         (parameter == "callback" && calls.find("callback") != std::string_view::npos) ||
         (parameter == "placement" && calls.find("(placement") != std::string_view::npos);
}

}  // namespace pd_test
