// Every function of the SDK that locks something, called from several threads at once while devices
// come and go. What a missing lock does is seen under ThreadSanitizer: each call is made many times
// in a row by one thread, so that nothing but its own lock orders it with what the others do.
#include <atomic>
#include <barrier>
#include <functional>
#include <set>
#include <thread>

#include "p4_pd_ms.h"
#include "small_program.hpp"
#include "soft_contents.h"
#include "soft_journal.hpp"
#include "soft_traffic.h"

namespace {

using namespace soft_test;

constexpr uint32_t kMembers = 0x02000005, kSelector = 0x03000005, kWred = 0x07000001;
constexpr bf_device_id_t kDevice = 8, kOther = 9;
constexpr uint32_t kAll = BF_ALL_PIPES;

// What a thread has in hand.
struct Hand {
  pipe_session_handle_t s = 0;
  uint32_t number = 0;  // of the call, so that keys and handles vary
  uint32_t last = 0;    // handle that it was given last
  uint32_t member = 0;
  uint32_t out[8] = {};  // for what is not looked at
  pipe_mgr_digest_message_t *message = nullptr;

  uint8_t few() const { return static_cast<uint8_t>(number % 5); }
};

using Call = std::function<bf_status_t(Hand &)>;
using Calls = std::vector<Call>;
#define CALL(...) [=]([[maybe_unused]] Hand &h) -> bf_status_t { return __VA_ARGS__; }

const Key &host_key(uint8_t n) {
  static const Key keys[] = {{20, {0, 1, 0}, {255, 255, 255}},
                             {20, {0, 1, 1}, {255, 255, 255}},
                             {20, {0, 1, 2}, {255, 255, 255}},
                             {20, {0, 1, 3}, {255, 255, 255}},
                             {20, {0, 1, 4}, {255, 255, 255}}};
  return keys[n];
}

// Of a table with a counter (kHost), with a meter (kAcl) or that ages (kRoute).
Calls table_calls(uint32_t table) {
  static const Key acl(16, {8, 0}, {255, 255}, 1), route(40, {1, 2, 3, 4, 5}, Bytes(5, 255));
  static Action forward(9, {0, 1}), deny, hop(14, {0, 1});
  deny.spec.resource_count = forward.spec.resource_count = 0;
  forward.resource(kHostCount, 0, PIPE_RESOURCE_ATTACH);
  deny.resource(kAclMeter, 0, PIPE_RESOURCE_ATTACH).data.meter = {
      PIPE_METER_COLOR_UNAWARE, {PIPE_RATE_BYTES, 1}, 1, {PIPE_RATE_BYTES, 1}, 1};
  const auto key = [=](const Hand &h) {
    return &(table == kHost ? host_key(h.few()) : table == kAcl ? acl : route).spec;
  };
  const uint32_t preset = table == kHost ? kDrop : table == kAcl ? kDeny : kNextHop;
  const uint32_t action = table == kHost ? kForward : table == kAcl ? kDeny : kNextHop;
  const auto *spec = &(table == kHost ? forward : table == kAcl ? deny : hop).spec;
  const auto bytes = static_cast<uint32_t>(table == kHost ? 3 : table == kAcl ? 2 : 5);
  const auto entry = [](const Hand &h) { return h.number % 2 == 0 ? h.last : 1 + h.few(); };
  static const Action none;
  static const pipe_mgr_counter_t counted{1, 1};
  static const pipe_mgr_idle_params_t ageing{PIPE_IDLE_NOTIFY, 10, 9000, 10, 300, 0};
  return {
      CALL(pipe_mgr_mat_ent_add(h.s, kDevice, kAll, table, key(h), action, spec, 50, 0, &h.last)),
      CALL(pipe_mgr_mat_ent_set_action(h.s, kDevice, table, entry(h), action, spec, 0)),
      CALL(pipe_mgr_mat_ent_set_resource(h.s, kDevice, table, entry(h), spec->resources,
                                         spec->resource_count, 0)),
      CALL(pipe_mgr_match_spec_to_ent_hdl(h.s, kDevice, kAll, table, key(h), h.out)),
      [=](Hand &h) {
        uint8_t value[5], mask[5], data[28];
        pipe_mgr_match_spec_t match{};
        match.byte_count = 5, match.value = value, match.mask = mask;
        pipe_mgr_action_spec_t read{};
        read.data = {0, 28, data};
        return pipe_mgr_get_entry(h.s, table, kDevice, entry(h), &match, &read, h.out, false);
      },
      CALL(pipe_mgr_get_entry_count(h.s, kDevice, kAll, table, 0, h.out)),
      CALL(pipe_mgr_get_first_entry_handle(h.s, table, kDevice, 0, h.out)),
      CALL(pipe_mgr_get_next_entry_handles(h.s, table, kDevice, 0, entry(h), 3, h.out)),
      CALL(pipe_mgr_mat_default_entry_set(h.s, kDevice, 0, table, preset,
                                          &(table == kRoute ? hop : none).spec, 0, h.out)),
      CALL(pipe_mgr_table_get_default_entry_handle(h.s, kDevice, 0, table, h.out)),
      [=](Hand &h) {
        pipe_mgr_action_spec_t read{};
        return pipe_mgr_table_get_default_entry(h.s, kDevice, 0, table, &read, h.out, false);
      },
      CALL(pipe_mgr_mat_tbl_default_entry_reset(h.s, kDevice, 0, table, 0)),
      CALL(pipe_mgr_tbl_set_property(h.s, kDevice, table, PIPE_TABLE_CAPACITY, h.number, 0)),
      CALL(pipe_mgr_tbl_get_property(h.s, kDevice, table, PIPE_TABLE_CAPACITY, h.out, h.out + 1)),
      [=](Hand &h) {
        const auto hear = [](pipe_session_handle_t, bf_device_id_t, pipe_object_handle_t, uint32_t,
                             pipe_entry_handle_t, void *) {};
        return pipe_register_mat_update_cb(h.s, kDevice, table, hear, nullptr);
      },
      [=](Hand &h) {
        const uint8_t packet[5] = {0, 1, h.few(), 4, 5};
        return soft_lookup(kDevice, 0, table, packet, bytes, h.out, nullptr);
      },
      [=](Hand &h) {
        const uint8_t packet[5] = {0, 1, h.few(), 4, 5};
        return soft_packet(kDevice, 0, table, packet, bytes, 64, h.out, nullptr);
      },
      CALL(pipe_mgr_direct_stat_ent_database_sync(h.s, kDevice, 0, table, entry(h))),
      CALL(pipe_mgr_direct_stat_database_sync(h.s, kDevice, 0, table, nullptr, nullptr)),
      [=](Hand &h) {
        pipe_mgr_counter_t read;
        return pipe_mgr_mat_ent_direct_stat_query(h.s, kDevice, table, entry(h), &read);
      },
      CALL(pipe_mgr_mat_ent_direct_stat_set(h.s, kDevice, table, entry(h), &counted)),
      [=](Hand &h) {
        pipe_mgr_meter_spec_t read;
        return pipe_mgr_meter_read_entry(h.s, kDevice, 0, table, entry(h), &read);
      },
      CALL(pipe_mgr_idle_tmo_enable(h.s, kDevice, table, ageing)),
      [=](Hand &h) {
        const auto hear = [](bf_device_id_t, pipe_object_handle_t, pipe_entry_handle_t, void *) {};
        return pipe_mgr_idle_register_tmo_cb(h.s, kDevice, table, hear, nullptr);
      },
      [=](Hand &h) {
        pipe_mgr_idle_params_t read;
        return pipe_mgr_idle_params_get(h.s, kDevice, table, &read);
      },
      CALL(pipe_mgr_mat_ent_set_idle_ttl(h.s, kDevice, table, entry(h), 20, 0)),
      CALL(pipe_mgr_mat_ent_get_idle_ttl(h.s, kDevice, table, entry(h), h.out)),
      CALL(pipe_mgr_idle_time_update_hit_state(h.s, kDevice, table, entry(h), h.number % 2)),
      CALL(pipe_mgr_idle_time_get_hit_state(h.s, kDevice, table, entry(h), h.out)),
      [=](Hand &) {
        soft_clock_advance(10);
        return bf_status_t{BF_SUCCESS};
      },
      CALL(pipe_mgr_idle_tmo_disable(h.s, kDevice, table)),
      [=](Hand &h) {
        pipe_mgr_placement_t *placed = nullptr;
        const bf_status_t status = soft_placement_of_entry(kDevice, table, entry(h), &placed);
        soft_placement_free(placed);
        return status;
      },
      CALL(pipe_mgr_mat_ent_del(h.s, kDevice, table, h.last, 0)),
      CALL(pipe_mgr_mat_ent_del_by_match_spec(h.s, kDevice, kAll, table, key(h), 0)),
  };
}

// Members, groups and entries that refer to them.
Calls profile_calls() {
  static Action send(9, {0, 1});
  send.spec.type = 0;
  static const Key lag(8, {1}, {255});
  const auto hear_member = [](pipe_session_handle_t, bf_device_id_t, pipe_object_handle_t, uint32_t,
                              pipe_member_handle_t, void *) {};
  const auto hear_group = [](pipe_session_handle_t, bf_device_id_t, pipe_object_handle_t, uint32_t,
                             pipe_group_handle_t, pipe_member_handle_t, void *) {};
  const auto group = [](const Hand &h) { return h.number % 2 == 0 ? h.last : 1; };
  const auto member = [](const Hand &h) { return h.number % 3 == 0 ? h.member : 1; };
  Calls calls = {
      CALL(pipe_mgr_adt_ent_add(h.s, kDevice, 0, kMembers, kSend, &send.spec, &h.member, 0)),
      CALL(pipe_mgr_adt_ent_set(h.s, kDevice, kMembers, member(h), kSend, &send.spec, 0)),
      [=](Hand &h) {
        uint8_t bytes[2];
        pipe_mgr_action_data_t data{0, 2, bytes};
        return pipe_mgr_get_action_data_entry(kMembers, kDevice, member(h), &data, h.out, false);
      },
      CALL(pipe_mgr_sel_grp_add(h.s, kDevice, 0, kSelector, 3, &h.last, 0)),
      CALL(pipe_mgr_sel_grp_mbr_add(h.s, kDevice, kSelector, group(h), kSend, member(h), 0)),
      CALL(pipe_mgr_sel_grp_mbr_disable(h.s, kDevice, kSelector, group(h), member(h), 0)),
      CALL(pipe_mgr_sel_grp_mbr_state_get(h.s, kDevice, kSelector, group(h), member(h), h.out)),
      CALL(pipe_mgr_sel_grp_mbr_enable(h.s, kDevice, kSelector, group(h), member(h), 0)),
      [=](Hand &h) {
        const uint8_t hash = h.few();
        return pipe_mgr_sel_grp_mbr_get_from_hash(h.s, kDevice, kSelector, group(h), &hash, 1,
                                                  h.out);
      },
      CALL(pipe_mgr_sel_fallback_mbr_set(h.s, kDevice, 0, kSelector, member(h), 0)),
      CALL(soft_fallback_member(kDevice, kSelector, h.out)),
      CALL(pipe_mgr_sel_fallback_mbr_reset(h.s, kDevice, 0, kSelector, 0)),
      CALL(soft_group_max_size(kDevice, kSelector, group(h), h.out)),
      CALL(pipe_mgr_get_first_group_member(h.s, kSelector, kDevice, group(h), h.out)),
      CALL(pipe_mgr_get_next_group_members(h.s, kSelector, kDevice, group(h), 0, 3, h.out)),
      CALL(pipe_mgr_get_sel_grp_mbr_count(h.s, kDevice, kSelector, group(h), h.out)),
      CALL(pipe_mgr_get_word_llp_active_member_count(h.s, kDevice, 0, kSelector, 0, h.out)),
      CALL(pipe_register_adt_update_cb(h.s, kDevice, kMembers, hear_member, nullptr)),
      CALL(pipe_mgr_sel_tbl_register_cb(h.s, kDevice, kSelector, hear_group, nullptr)),
      [=](Hand &h) {
        pipe_mgr_action_spec_t spec{};
        spec.type = PIPE_ACTION_GROUP, spec.group = group(h);
        return pipe_mgr_mat_ent_add(h.s, kDevice, 0, kLag, &lag.spec, kSend, &spec, 0, 0, h.out);
      },
      [=](Hand &h) {
        const uint8_t packet = 1;
        return soft_packet(kDevice, 0, kLag, &packet, 1, 64, h.out, nullptr);
      },
      CALL(pipe_mgr_mat_ent_del_by_match_spec(h.s, kDevice, 0, kLag, &lag.spec, 0)),
      CALL(pipe_mgr_sel_grp_mbr_del(h.s, kDevice, kSelector, group(h), member(h), 0)),
      CALL(pipe_mgr_sel_grp_del(h.s, kDevice, kSelector, h.last--, 0)),
      CALL(pipe_mgr_adt_ent_del(h.s, kDevice, kMembers, h.member--, 0)),
  };
  for (const uint32_t handle : {kMembers, kSelector}) {
    calls.push_back(CALL(pipe_mgr_get_entry_count(h.s, kDevice, kAll, handle, 0, h.out)));
    calls.push_back(CALL(pipe_mgr_get_first_entry_handle(h.s, handle, kDevice, 0, h.out)));
    calls.push_back(CALL(pipe_mgr_get_next_entry_handles(h.s, handle, kDevice, 0, 1, 3, h.out)));
    calls.push_back(CALL(soft_profile_capacity_set(kDevice, handle, 50)));
    calls.push_back(CALL(soft_profile_capacity_get(kDevice, handle, h.out)));
  }
  return calls;
}

Calls cell_calls() {
  static const pipe_mgr_counter_t counted{1, 1};
  static const pipe_mgr_meter_spec_t meter{
      PIPE_METER_COLOR_UNAWARE, {PIPE_RATE_BYTES, 1}, 1, {PIPE_RATE_BYTES, 1}, 1};
  static const pipe_mgr_wred_spec_t wred{1, 2, 3, 0.5f};
  static const pipe_stful_cell_t cell{};
  constexpr uint32_t kReg = kWordRegister;
  return {
      CALL(soft_counter_count(kDevice, 0, kAclCount, h.few(), 1, 64)),
      [](Hand &h) {
        pipe_mgr_counter_t read;
        return pipe_mgr_stat_ent_query(h.s, kDevice, 0, kAclCount, h.few(), &read);
      },
      CALL(pipe_mgr_stat_ent_set(h.s, kDevice, 0, kAclCount, h.few(), &counted)),
      CALL(pipe_mgr_stat_ent_database_sync(h.s, kDevice, 0, kAclCount, h.few())),
      CALL(soft_next_cell(kDevice, kAclCount, 0, h.out)),
      CALL(pipe_mgr_stat_database_sync(h.s, kDevice, kAll, kAclCount, nullptr, nullptr)),
      CALL(pipe_mgr_meter_ent_set(h.s, kDevice, 0, kPoliceMeter, h.few(), &meter, 0)),
      [](Hand &h) {
        pipe_mgr_meter_spec_t read;
        return pipe_mgr_meter_read_entry_idx(h.s, kDevice, 0, kPoliceMeter, h.few(), &read);
      },
      CALL(pipe_mgr_meter_set_bytecount_adjust(h.s, kDevice, 0, kPoliceMeter, h.few())),
      CALL(pipe_mgr_meter_get_bytecount_adjust(h.s, kDevice, 0, kPoliceMeter, h.out)),
      [](Hand &h) {
        uint8_t color = 0;
        return soft_meter_mark(kDevice, 0, kPoliceMeter, h.few(), 1, 64, &color);
      },
      CALL(soft_next_cell(kDevice, kPoliceMeter, 0, h.out)),
      CALL(pipe_mgr_wred_ent_set(h.s, kDevice, 0, kWred, h.few(), &wred, 0)),
      [](Hand &h) {
        pipe_mgr_wred_spec_t read;
        return soft_wred_get(kDevice, 0, kWred, h.few(), &read);
      },
      CALL(pipe_stful_ent_set(h.s, kDevice, 0, kReg, h.few(), &cell, 0)),
      [](Hand &h) {
        pipe_stful_cell_t cells[2];
        pipe_stful_query_t query{2, cells};
        return pipe_stful_ent_query(h.s, kDevice, kAll, kReg, h.few(), &query, true);
      },
      [](Hand &h) {
        pipe_stful_cell_t cells[2];
        pipe_stful_query_t query{2, cells};
        return pipe_stful_ent_query_range(h.s, kDevice, 0, kReg, 0, 1, &query, h.out, false);
      },
      CALL(soft_register_write(kDevice, 0, kReg, h.few(), h.number)),
      CALL(soft_next_cell(kDevice, kReg, 0, h.out)),
      CALL(pipe_stful_database_sync(h.s, kDevice, kAll, kReg, nullptr, nullptr)),
      CALL(pipe_stful_table_reset(h.s, kDevice, 0, kReg, &cell)),
  };
}

Calls service_calls() {
  static const pipe_mgr_hash_attribute_t attribute{0, 1, 2};
  static const Bytes record(kSnapshotBytes, 7);
  constexpr uint32_t kSet = kPortSet;
  return {
      CALL(pipe_mgr_hash_calc_seed_set(h.s, kDevice, kIpHash, h.number)),
      [](Hand &h) {
        uint64_t seed = 0;
        return pipe_mgr_hash_calc_seed_get(h.s, kDevice, kIpHash, &seed);
      },
      CALL(pipe_mgr_hash_calc_input_field_attribute_set(h.s, kDevice, kIpHash, kIpFields, 1,
                                                        &attribute)),
      CALL(pipe_mgr_hash_calc_input_field_attribute_count_get(h.s, kDevice, kIpHash, kIpFields,
                                                              h.out)),
      [](Hand &h) {
        pipe_mgr_hash_attribute_t read;
        return pipe_mgr_hash_calc_input_field_attribute_get(h.s, kDevice, kIpHash, kIpFields, 1,
                                                            &read, h.out);
      },
      [](Hand &h) {
        const auto keep = [](pipe_session_handle_t, pipe_mgr_digest_message_t *message,
                             void *) -> bf_status_t {
          static_cast<void>(message->entry_count);
          return BF_SUCCESS;
        };
        return pipe_mgr_lrn_digest_notification_register(h.s, kDevice, kMacDigest, keep, nullptr);
      },
      [](Hand &h) {
        const uint8_t entry[3] = {h.few(), 1, 2};
        return soft_digest_inject(kDevice, 0, kMacDigest, entry, 1, 3, h.out);
      },
      CALL(soft_digest_pending(kDevice, kMacDigest, h.out, h.out + 1)),
      CALL(pipe_mgr_flow_lrn_set_timeout(h.s, kDevice, h.few())),
      CALL(pipe_mgr_flow_lrn_notify_ack(h.s, kMacDigest, h.message)),
      CALL(pipe_mgr_lrn_digest_notification_deregister(h.s, kDevice, kMacDigest)),
      CALL(pipe_mgr_pvs_entry_add(h.s, kDevice, kSet, 0, kAll, 255, h.number, 0xffffffff, &h.last)),
      CALL(pipe_mgr_pvs_entry_modify(h.s, kDevice, kSet, h.last, h.few(), 15)),
      CALL(pipe_mgr_pvs_entry_get(h.s, kDevice, kSet, h.last, h.out, h.out + 1)),
      [](Hand &h) {
        soft_parsers_t parsers;
        return soft_value_set_parsers(kDevice, kSet, h.last, &parsers);
      },
      CALL(pipe_mgr_pvs_entry_handle_get(h.s, kDevice, kSet, 0, 0, 1, h.few(), 15, h.out)),
      CALL(pipe_mgr_pvs_entry_get_first(h.s, kDevice, kSet, 0, 0, 1, h.out)),
      CALL(pipe_mgr_pvs_entry_get_next(h.s, kDevice, kSet, 0, 0, 1, 1, 3, h.out)),
      CALL(pipe_mgr_pvs_entry_get_count(h.s, kDevice, kSet, 0, 0, 1, 0, h.out)),
      CALL(soft_value_set_match(kDevice, kSet, 0, 0, 1, h.few(), h.out)),
      CALL(pipe_mgr_pvs_set_property(h.s, kDevice, kSet, PIPE_PVS_CAPACITY, 0, 0, 0)),
      CALL(pipe_mgr_pvs_get_property(h.s, kDevice, kSet, PIPE_PVS_CAPACITY, h.out, 0, 0)),
      [](Hand &h) {  // the oldest one
        pipe_mgr_pvs_entry_get_next(h.s, kDevice, kSet, 0, 0, 1, 1, 1, h.out);
        return pipe_mgr_pvs_entry_delete(h.s, kDevice, kSet, h.number % 2 == 0 ? h.out[0] : 1);
      },
      CALL(bf_snapshot_create(kDevice, kAll, 0, 1, 0, &h.member)),
      CALL(bf_snapshot_capture_trigger_set(h.member, record.data(), record.data())),
      [](Hand &h) {
        Bytes value(kSnapshotBytes), mask(kSnapshotBytes);
        return soft_snapshot_trigger_get(h.member, value.data(), mask.data());
      },
      CALL(soft_snapshot_inject(kDevice, 0, 0, 0, record.data(), 1, kSnapshotBytes, h.out)),
      [](Hand &h) {
        Bytes fields(2 * kSnapshotBytes);
        return bf_snapshot_capture_get(h.member, kAll, fields.data(), nullptr, h.out);
      },
      CALL(bf_snapshot_capture_phv_fields_dict_size(h.member, h.out, h.out + 1)),
      CALL(bf_snapshot_delete(h.member)),
  };
}

// Devices, sessions, clients, the journal and states that belong to no device.
Calls frame_calls() {
  static p4_pd_ms_state_t *const state = p4_pd_ms_init_state();
  return {
      CALL(soft_device_create(kOther, 1, &small_program(), false)),
      CALL(soft_device_copy(kDevice, kOther)),
      CALL(soft_device_remove(kOther)),
      [](Hand &h) {
        soft_device_list(h.out, 8);
        const bf_status_t status = soft_session_open(&h.last);
        return status == BF_SUCCESS ? soft_session_close(h.last) : status;
      },
      CALL(bf_drv_register(std::to_string(h.number % 20).c_str(), &h.member)),
      [](Hand &h) {
        const bf_drv_client_callbacks_t callbacks{};
        return bf_drv_client_register_callbacks(h.member, &callbacks, h.few());
      },
      CALL(soft_client_get("1", nullptr, nullptr, nullptr)),
      [](Hand &h) {
        soft_client_count();
        return bf_drv_deregister(h.member);
      },
      [](Hand &) {
        soft::journal::start();
        return bf_status_t{BF_SUCCESS};
      },
      [](Hand &) {
        soft::journal::calls("bf_drv_register");
        soft::journal::clear();
        return bf_status_t{BF_SUCCESS};
      },
      [](Hand &) {
        soft::faults::fail_call("p4_pd_ms_new_mbr", 1, BF_NO_MEMORY);
        soft::faults::clear();
        soft::journal::stop();
        return bf_status_t{BF_SUCCESS};
      },
      CALL(p4_pd_ms_new_mbr(h.s, state, 1, h.few())),
      CALL(p4_pd_ms_set_mbr_act(state, 1, h.few(), kSend)),
      CALL(p4_pd_ms_get_mbr_act(state, 1, h.few(), h.out)),
      CALL(p4_pd_ms_new_grp(h.s, state, 1, h.few())),
      CALL(p4_pd_ms_add_mbr_to_grp(h.s, state, 1, h.few(), h.few())),
      CALL(p4_pd_ms_del_mbr_from_grp(h.s, state, 1, h.few(), h.few())),
      CALL(p4_pd_ms_del_mbr(h.s, state, 1, h.few())),
      CALL(p4_pd_ms_destroy_state_for_dev(state, 1)),
  };
}

// What may come of a call when another thread was quicker.
bool is_expected(bf_status_t status) {
  static const std::set<bf_status_t> never = {BF_HARDWARE_FAULT, BF_INVALID_PIPE, BF_FOREIGN_ACTION,
                                              BF_WRONG_LENGTH, BF_CORRUPT_DATA};
  return !never.contains(status) && status <= BF_TABLE_MISS;
}

void make(const Call &call, Hand &hand, uint32_t *succeeded) {
  ++hand.number;
  const bf_status_t status = call(hand);
  EXPECT_TRUE(is_expected(status)) << status;
  if (status == BF_SUCCESS) ++*succeeded;
  std::this_thread::yield();
}

TEST(Threads, DoEverythingAtOnce) {
  constexpr size_t kThreads = 3, kRounds = 3;
  std::vector<Calls> groups = {table_calls(kHost), table_calls(kAcl), table_calls(kRoute),
                               profile_calls(),    cell_calls(),      service_calls(),
                               frame_calls()};
  for (Calls &calls : groups) {
    for (const uint32_t handle : {kHost, kAclCount, kPoliceMeter, kWordRegister, kIpHash,
                                  kMacDigest, kPortSet, kMembers, kSelector, 0u}) {
      calls.push_back([=](Hand &) {
        uint64_t bytes = 0;
        return soft_memory_bytes(kDevice, handle, &bytes);
      });
    }
  }
  ASSERT_EQ(soft_device_create(kDevice, 2, &small_program(), false), BF_SUCCESS);
  std::barrier together(kThreads);
  std::atomic<uint32_t> succeeded{0};
  // One thread makes one call over and over while the others make all calls of the group.
  const auto work = [&](size_t thread) {
    Hand hand;
    uint32_t mine = 0;
    ASSERT_EQ(soft_session_open(&hand.s), BF_SUCCESS);
    for (const Calls &calls : groups) {
      hand.last = 0;
      for (size_t one = 0; one < calls.size(); ++one) {
        together.arrive_and_wait();
        for (size_t at = 0; at < kRounds * calls.size(); ++at) {
          make(calls[thread == 0 ? one : (at + one + thread) % calls.size()], hand, &mine);
        }
        if (thread != 1 || one != calls.size() / 2) continue;
        EXPECT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
        EXPECT_EQ(soft_device_create(kDevice, 2, &small_program(), false), BF_SUCCESS);
      }
    }
    succeeded += mine;
    EXPECT_EQ(soft_session_close(hand.s), BF_SUCCESS);
  };
  std::vector<std::thread> threads;
  for (size_t thread = 0; thread < kThreads; ++thread) threads.emplace_back(work, thread);
  for (std::thread &thread : threads) thread.join();
  soft::journal::stop();
  EXPECT_GT(succeeded, 5000u);
  EXPECT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
  soft_device_remove(kOther);
}

}  // namespace
