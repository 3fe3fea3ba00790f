// Fills a device of the small program with something of every kind, and reads everything back.
#pragma once

#include <map>
#include <string>

#include "small_program.hpp"
#include "soft_traffic.h"

namespace soft_test {

constexpr uint32_t kMembers = 0x02000005;
constexpr uint32_t kSelector = 0x03000005;
constexpr uint32_t kWred = 0x07000001;

using Words = std::vector<uint64_t>;
using Contents = std::map<std::string, Words>;  // by kind

// One device as a host sees it. Every call must succeed.
struct Filled {
  pipe_session_handle_t session;
  bf_device_id_t device;

  uint32_t add(uint32_t table, const Key &key, uint32_t action, const pipe_mgr_action_spec_t &spec,
               uint32_t ttl = 0, bf_pipe_id_t pipe = BF_ALL_PIPES) const {
    uint32_t entry = 0;
    EXPECT_EQ(pipe_mgr_mat_ent_add(session, device, pipe, table, &key.spec, action, &spec, ttl, 0,
                                   &entry),
              BF_SUCCESS);
    return entry;
  }
  uint32_t add_host(uint8_t number) const {
    Action forward(9, {0x01, number});
    forward.resource(kHostCount, 0, PIPE_RESOURCE_ATTACH).data.counter = {100, number};
    forward.resource(kAclCount, number, PIPE_RESOURCE_ATTACH);
    return add(kHost, Key(20, {0x00, 0x10, number}, {0xff, 0xff, 0xff}), kForward, forward.spec);
  }
  uint32_t add_member(uint8_t port) const {
    Action send(9, {0x01, port});
    send.spec.type = 0;
    uint32_t member = 0;
    EXPECT_EQ(pipe_mgr_adt_ent_add(session, device, BF_ALL_PIPES, kMembers, kSend, &send.spec,
                                   &member, 0),
              BF_SUCCESS);
    return member;
  }
  uint32_t add_group() const {
    uint32_t group = 0;
    EXPECT_EQ(pipe_mgr_sel_grp_add(session, device, BF_ALL_PIPES, kSelector, 5, &group, 0),
              BF_SUCCESS);
    return group;
  }
  uint32_t add_value(uint32_t value) const {
    uint32_t entry = 0;
    EXPECT_EQ(pipe_mgr_pvs_entry_add(session, device, kPortSet, 0, 1, 7, value, 0xff, &entry),
              BF_SUCCESS);
    return entry;
  }
  uint32_t add_snapshot() const {
    uint32_t snapshot = 0;
    EXPECT_EQ(bf_snapshot_create(device, BF_ALL_PIPES, 2, 3, 0, &snapshot), BF_SUCCESS);
    return snapshot;
  }
  void packet(uint32_t table, Bytes key, uint32_t bytes) const {
    uint32_t entry = 0;
    bool is_default = true;
    EXPECT_EQ(soft_packet(device, 0, table, key.data(), static_cast<uint32_t>(key.size()), bytes,
                          &entry, &is_default),
              BF_SUCCESS);
    EXPECT_FALSE(is_default);
  }
  void learn(Bytes entry) const {
    EXPECT_EQ(soft_digest_inject(device, 0, kMacDigest, entry.data(), 1, 3, nullptr), BF_SUCCESS);
  }

  // Its digest must have a listener.
  void fill() const {
    const uint32_t hosts[] = {add_host(1), add_host(2), add_host(3)};
    EXPECT_EQ(pipe_mgr_mat_ent_del(session, device, kHost, hosts[1], 0), BF_SUCCESS);
    packet(kHost, {0x00, 0x10, 1}, 64);

    EXPECT_EQ(pipe_mgr_tbl_set_property(session, device, kAcl, PIPE_TABLE_ENTRY_SCOPE, 1, 0),
              BF_SUCCESS);
    EXPECT_EQ(soft_table_capacity_set(device, kAcl, 99), BF_SUCCESS);
    Action metered;
    metered.resource(kAclMeter, 0, PIPE_RESOURCE_ATTACH).data.meter = {
        PIPE_METER_COLOR_UNAWARE, {PIPE_RATE_BYTES, 0}, 1, {PIPE_RATE_BYTES, 0}, 2};
    for (uint8_t n = 0; n < 3; ++n) {  // twins
      add(kAcl, Key(16, {0x08, 0}, {0xff, 0}, n), kDeny, metered.spec, 0, n % 2);
    }
    packet(kAcl, {0x08, 0x11}, 125);
    uint32_t entry = 0;
    const Action permit(35, {1, 2, 3, 4, 5});
    EXPECT_EQ(
        pipe_mgr_mat_default_entry_set(session, device, 1, kAcl, kPermit, &permit.spec, 0, &entry),
        BF_SUCCESS);

    pipe_mgr_idle_params_t params{PIPE_IDLE_NOTIFY, 10, 9000, 10, 300, 0};
    EXPECT_EQ(pipe_mgr_idle_tmo_enable(session, device, kRoute, params), BF_SUCCESS);
    const Action hop(14, {0x20, 0x01});
    for (uint8_t n = 1; n < 4; ++n) {
      entry = add(kRoute, Key(40, {1, 10, n, 0, 0}, {0xff, 0xff, 0xff, 0, 0}), kNextHop, hop.spec,
                  n * 100u);
    }
    EXPECT_EQ(pipe_mgr_idle_time_update_hit_state(session, device, kRoute, entry, PIPE_ENTRY_IDLE),
              BF_SUCCESS);

    const uint32_t members[] = {add_member(1), add_member(2), add_member(3)};
    const uint32_t group = add_group();
    for (const uint32_t member : {members[0], members[1]}) {
      EXPECT_EQ(pipe_mgr_sel_grp_mbr_add(session, device, kSelector, group, kSend, member, 0),
                BF_SUCCESS);
    }
    EXPECT_EQ(pipe_mgr_sel_grp_mbr_disable(session, device, kSelector, group, members[0], 0),
              BF_SUCCESS);
    add_group();  // empty: the fallback stands in
    EXPECT_EQ(
        pipe_mgr_sel_fallback_mbr_set(session, device, BF_ALL_PIPES, kSelector, members[2], 0),
        BF_SUCCESS);
    EXPECT_EQ(soft_profile_capacity_set(device, kMembers, 9), BF_SUCCESS);
    EXPECT_EQ(soft_profile_capacity_set(device, kSelector, 8), BF_SUCCESS);
    pipe_mgr_action_spec_t to_group{};
    to_group.type = PIPE_ACTION_GROUP;
    to_group.group = group;
    add(kLag, Key(8, {1}, {0xff}), kSend, to_group);

    fill_stateful();
    learn({1, 2, 3});
  }

  void fill_stateful() const {
    EXPECT_EQ(soft_counter_count(device, 1, kAclCount, 700, 3, 300), BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_stat_database_sync(session, device, 1, kAclCount, nullptr, nullptr),
              BF_SUCCESS);
    EXPECT_EQ(soft_counter_count(device, 1, kAclCount, 700, 1, 64), BF_SUCCESS);
    const pipe_mgr_meter_spec_t spec{
        PIPE_METER_COLOR_AWARE, {PIPE_RATE_BYTES, 0}, 1, {PIPE_RATE_BYTES, 0}, 2};
    EXPECT_EQ(pipe_mgr_meter_ent_set(session, device, 1, kPoliceMeter, 600, &spec, 0), BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_meter_set_bytecount_adjust(session, device, 0, kPoliceMeter, 4), BF_SUCCESS);
    uint8_t color = 9;
    EXPECT_EQ(soft_meter_mark(device, 1, kPoliceMeter, 600, 1, 121, &color), BF_SUCCESS);
    EXPECT_EQ(color, SOFT_COLOR_GREEN);
    for (const uint32_t reg : {kBitRegister, kByteRegister, kHalfRegister, kWordRegister}) {
      pipe_stful_cell_t cell{};
      cell.word = 1;
      EXPECT_EQ(pipe_stful_table_reset_range(session, device, 0, reg, 1000, 100, &cell),
                BF_SUCCESS);
      EXPECT_EQ(soft_register_write(device, 1, reg, 2000, 0xff), BF_SUCCESS);
    }
    EXPECT_EQ(pipe_mgr_hash_calc_seed_set(session, device, kIpHash, 0x1234), BF_SUCCESS);
    const pipe_mgr_hash_attribute_t attribute{2, 1, 77};
    EXPECT_EQ(pipe_mgr_hash_calc_input_field_attribute_set(session, device, kIpHash, kIpFields, 1,
                                                           &attribute),
              BF_SUCCESS);
    const uint32_t gone = add_value(0x40);
    add_value(0x41);
    EXPECT_EQ(pipe_mgr_pvs_entry_delete(session, device, kPortSet, gone), BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_pvs_set_property(session, device, kPortSet, PIPE_PVS_CAPACITY, 6, 0, 0),
              BF_SUCCESS);
    const pipe_mgr_wred_spec_t wred{1, 2, 3, 0.5f};
    EXPECT_EQ(pipe_mgr_wred_ent_set(session, device, 1, kWred, 600, &wred, 0), BF_SUCCESS);
    const uint32_t snapshot = add_snapshot();
    const uint8_t records[] = {9, 8, 7, 6, 5, 4, 3, 2};
    EXPECT_EQ(bf_snapshot_capture_trigger_set(snapshot, records + 4, records), BF_SUCCESS);
    EXPECT_EQ(soft_snapshot_inject(device, 1, 0, 2, records, 2, 8, nullptr), BF_SUCCESS);
  }

  // Every handle of a table, profile or selector.
  Words handles(uint32_t object) const {
    Words all;
    uint32_t at = 0;
    for (bf_status_t found =
             pipe_mgr_get_first_entry_handle(session, object, device, BF_ALL_PIPES, &at);
         found == BF_SUCCESS; found = pipe_mgr_get_next_entry_handles(session, object, device,
                                                                      BF_ALL_PIPES, at, 1, &at)) {
      if (at == 0xffffffff) break;
      all.push_back(at);
    }
    return all;
  }

  // What can be read without changing anything.
  Contents read() const {
    Contents all;
    for (const uint32_t table : {kHost, kAcl, kRoute, kEncap, kLag}) read_table(table, &all);
    read_ageing(&all["ageing"]);
    read_profile(&all);
    read_stateful(&all);
    return all;
  }

  void read_action(const pipe_mgr_action_spec_t &spec, uint32_t action, Words *words) const {
    words->insert(words->end(), {action, spec.type, spec.member, spec.group});
    words->insert(words->end(), spec.data.bytes, spec.data.bytes + spec.data.byte_count);
    for (uint32_t i = 0; i < spec.resource_count; ++i) {
      const pipe_mgr_resource_t &resource = spec.resources[i];
      words->insert(words->end(), {resource.handle, resource.index});
      if (resource.handle == kAclMeter) words->push_back(resource.data.meter.peak_burst);
    }
  }

  void read_table(uint32_t table, Contents *all) const {
    const std::string name = std::to_string(table);
    Words &entries = (*all)["entries " + name];
    for (const uint64_t handle : handles(table)) {
      const auto entry = static_cast<uint32_t>(handle);
      Key key(0, Bytes(8), Bytes(8));
      Action data(0, Bytes(8));
      uint32_t action = 0;
      EXPECT_EQ(
          pipe_mgr_get_entry(session, table, device, entry, &key.spec, &data.spec, &action, false),
          BF_SUCCESS);
      entries.insert(entries.end(), {entry, key.spec.priority});
      entries.insert(entries.end(), key.value.begin(), key.value.end());
      entries.insert(entries.end(), key.mask.begin(), key.mask.end());
      read_action(data.spec, action, &entries);
      pipe_mgr_counter_t counted{};
      if (table == kHost) {
        EXPECT_EQ(pipe_mgr_mat_ent_direct_stat_query(session, device, table, entry, &counted),
                  BF_SUCCESS);
      }
      entries.insert(entries.end(), {counted.packets, counted.bytes});
      uint32_t same = 0;
      for (const bf_pipe_id_t pipe : {0u, 1u}) {  // found again, in its pipe or in both
        if (pipe_mgr_match_spec_to_ent_hdl(session, device, pipe, table, &key.spec, &same) ==
            BF_SUCCESS) {
          entries.push_back(same);
        }
      }
    }
    for (const bf_pipe_id_t pipe : {0u, 1u}) {
      Action data(0, Bytes(8));
      uint32_t action = 0, count = 0;
      const bf_status_t status = pipe_mgr_table_get_default_entry(session, device, pipe, table,
                                                                  &data.spec, &action, false);
      if (status == BF_SUCCESS) read_action(data.spec, action, &(*all)["defaults"]);
      EXPECT_EQ(pipe_mgr_get_entry_count(session, device, pipe, table, 0, &count), BF_SUCCESS);
      entries.push_back(count);
    }
    for (const uint32_t property : {1u, 2u, 3u}) {
      uint32_t value = 0, argument = 0;
      EXPECT_EQ(pipe_mgr_tbl_get_property(session, device, table, property, &value, &argument),
                BF_SUCCESS);
      (*all)["settings"].push_back(value);
    }
  }

  void read_ageing(Words *words) const {
    pipe_mgr_idle_params_t params{};
    words->push_back(pipe_mgr_idle_params_get(session, device, kRoute, &params));
    words->insert(words->end(), {params.mode, params.sweep_interval_ms, params.max_ttl_ms});
    for (const uint64_t handle : handles(kRoute)) {
      const auto entry = static_cast<uint32_t>(handle);
      uint32_t ttl = 0, state = 9;
      EXPECT_EQ(pipe_mgr_mat_ent_get_idle_ttl(session, device, kRoute, entry, &ttl), BF_SUCCESS);
      pipe_mgr_idle_time_get_hit_state(session, device, kRoute, entry, &state);
      words->insert(words->end(), {ttl, state});
    }
  }

  void read_profile(Contents *all) const {
    uint32_t members = 0, groups = 0;
    EXPECT_EQ(soft_profile_capacity_get(device, kMembers, &members), BF_SUCCESS);
    EXPECT_EQ(soft_profile_capacity_get(device, kSelector, &groups), BF_SUCCESS);
    (*all)["members"].push_back(members);
    (*all)["groups"].push_back(groups);
    for (const uint64_t member : handles(kMembers)) {
      Action data(0, Bytes(8));
      uint32_t action = 0;
      EXPECT_EQ(pipe_mgr_get_action_data_entry(kMembers, device, static_cast<uint32_t>(member),
                                               &data.spec.data, &action, false),
                BF_SUCCESS);
      (*all)["members"].insert((*all)["members"].end(), {member, data.bytes[0], data.bytes[1]});
    }
    for (const uint64_t handle : handles(kSelector)) {
      const auto group = static_cast<uint32_t>(handle);
      const uint8_t hash = 3;
      uint32_t size = 0, chosen = 0, member = 0;
      EXPECT_EQ(pipe_mgr_get_sel_grp_mbr_count(session, device, kSelector, group, &size),
                BF_SUCCESS);
      EXPECT_EQ(
          pipe_mgr_sel_grp_mbr_get_from_hash(session, device, kSelector, group, &hash, 1, &chosen),
          BF_SUCCESS);
      pipe_mgr_get_first_group_member(session, kSelector, device, group, &member);
      (*all)["groups"].insert((*all)["groups"].end(), {group, size, chosen, member});
    }
  }

  void read_stateful(Contents *all) const {
    pipe_mgr_counter_t counted{};
    EXPECT_EQ(pipe_mgr_stat_ent_query(session, device, 1, kAclCount, 700, &counted), BF_SUCCESS);
    (*all)["counter"] = {counted.packets, counted.bytes};
    pipe_mgr_meter_spec_t meter{};
    uint32_t adjustment = 0;
    EXPECT_EQ(pipe_mgr_meter_read_entry_idx(session, device, 1, kPoliceMeter, 600, &meter),
              BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_meter_get_bytecount_adjust(session, device, 0, kPoliceMeter, &adjustment),
              BF_SUCCESS);
    (*all)["meter"] = {meter.type, meter.committed_burst, meter.peak_burst, adjustment};
    for (const uint32_t reg : {kBitRegister, kByteRegister, kHalfRegister, kWordRegister}) {
      read_register(reg, false, &(*all)["register " + std::to_string(reg)]);
    }
    uint64_t seed = 0;
    pipe_mgr_hash_attribute_t attribute{};
    uint32_t filled = 0;
    EXPECT_EQ(pipe_mgr_hash_calc_seed_get(session, device, kIpHash, &seed), BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_hash_calc_input_field_attribute_get(session, device, kIpHash, kIpFields, 1,
                                                           &attribute, &filled),
              BF_SUCCESS);
    (*all)["hash"] = {seed, filled, attribute.field, attribute.value};
    uint32_t value = 0, entry = 0, capacity = 0;
    soft_value_set_match(device, kPortSet, 0, 1, 7, 0x41, &entry);
    pipe_mgr_pvs_entry_get(session, device, kPortSet, entry, &value, &capacity);
    EXPECT_EQ(
        pipe_mgr_pvs_get_property(session, device, kPortSet, PIPE_PVS_CAPACITY, &capacity, 0, 0),
        BF_SUCCESS);
    (*all)["value set"] = {entry, value, capacity};
    pipe_mgr_wred_spec_t wred{};
    (*all)["wred"] = {static_cast<uint64_t>(soft_wred_get(device, 1, kWred, 600, &wred)),
                      wred.min_threshold_cells, wred.max_threshold_cells};
    read_snapshot(device << 24 | 1 << 2 | 1, &(*all)["snapshot"]);
    uint32_t collected = 0;
    EXPECT_EQ(soft_digest_pending(device, kMacDigest, &collected, nullptr), BF_SUCCESS);
    (*all)["digest"] = {collected};
  }

  void read_register(uint32_t reg, bool hardware, Words *words) const {
    for (const uint32_t index : {0u, 1000u, 1099u, 2000u}) {
      pipe_stful_cell_t cells[2] = {};
      pipe_stful_query_t query{2, cells};
      EXPECT_EQ(pipe_stful_ent_query(session, device, BF_ALL_PIPES, reg, index, &query, hardware),
                BF_SUCCESS);
      words->insert(words->end(), {cells[0].word, cells[1].word});
    }
  }

  void read_snapshot(uint32_t snapshot, Words *words) const {
    uint8_t bytes[16] = {};
    uint32_t captures = 0;
    soft_snapshot_trigger_get(snapshot, bytes, bytes + 4);
    bf_snapshot_control_t control[2] = {};
    bf_snapshot_capture_get(snapshot, 1, bytes + 8, control, &captures);
    words->assign(bytes, bytes + 16);
    words->insert(words->end(), {captures, control[1].triggered});
  }

  // What is seen only by changing it: the hardware side of counters and registers, and tokens.
  Words disturb() const {
    Words seen;
    uint32_t entry = static_cast<uint32_t>(handles(kHost).at(0));
    EXPECT_EQ(pipe_mgr_direct_stat_ent_database_sync(session, device, BF_ALL_PIPES, kHost, entry),
              BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_stat_database_sync(session, device, 1, kAclCount, nullptr, nullptr),
              BF_SUCCESS);
    pipe_mgr_counter_t counted{};
    EXPECT_EQ(pipe_mgr_mat_ent_direct_stat_query(session, device, kHost, entry, &counted),
              BF_SUCCESS);
    seen.insert(seen.end(), {counted.packets, counted.bytes});
    EXPECT_EQ(pipe_mgr_stat_ent_query(session, device, 1, kAclCount, 700, &counted), BF_SUCCESS);
    seen.insert(seen.end(), {counted.packets, counted.bytes});
    uint8_t color = 9;
    EXPECT_EQ(soft_meter_mark(device, 1, kPoliceMeter, 600, 1, 121, &color), BF_SUCCESS);
    const uint8_t key[] = {0x08, 0x11};
    const soft_traffic_t traffic{key, 2, nullptr, 0, 1, 125};
    soft_hit_t hit{};
    EXPECT_EQ(soft_traffic_hit(device, 0, kAcl, &traffic, &hit), BF_SUCCESS);
    seen.insert(seen.end(), {color, hit.color});
    read_register(kByteRegister, true, &seen);
    return seen;
  }
};

}  // namespace soft_test
