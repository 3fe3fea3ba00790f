#include "calls.hpp"

#include <cjson/cJSON.h>

#include <atomic>
#include <cstring>

#include "bf_drv.h"

namespace soft_test {

std::vector<Calls> device_calls() {
  return {table_calls(kHost), table_calls(kAcl), table_calls(kRoute),
          profile_calls(),    cell_calls(),      service_calls()};
}

std::vector<Calls> all_calls() {
  std::vector<Calls> all = device_calls();
  all.push_back(frame_calls());
  return all;
}

namespace {

#define CALL(kind, ...)                                                                            \
  Call {                                                                                           \
    Call::kind, #__VA_ARGS__, [=]([[maybe_unused]] Hand &h) -> bf_status_t { return __VA_ARGS__; } \
  }
// What most calls begin with.
#define IN_DEVICE h.s(), h.d()
#define ON(object) IN_DEVICE, h.o(object)
#define IN(object) IN_DEVICE, h.p(), h.o(object)

#define CHANGE(...) CALL(kChange, __VA_ARGS__)
#define READ(...) CALL(kRead, __VA_ARGS__)
#define END(...) CALL(kEnd, __VA_ARGS__)
#define UNSUPPORTED(...) CALL(kUnsupported, __VA_ARGS__)

void append(Calls &calls, const Calls &more) {
  calls.insert(calls.end(), more.begin(), more.end());
}

const pipe_mgr_counter_t kCounted{7, 3};
const pipe_mgr_meter_spec_t kMetered = meter_spec(PIPE_RATE_BYTES, 1, 1, 1, 2);

// What calls of one table differ in.
struct TableCase {
  uint32_t table;
  const Key *keys;  // five of them
  uint32_t action;
  const pipe_mgr_action_spec_t *spec;
  uint32_t length;
};

TableCase table_case(uint32_t table) {
  const auto host = [](uint8_t i) { return Key(20, {0, 1, i}, {255, 255, 255}); };
  const auto route = [](uint8_t i) { return Key(40, {0, 1, i, 4, 5}, Bytes(5, 255)); };
  static const Key hosts[] = {host(0), host(1), host(2), host(3), host(4)};
  static const Key routes[] = {route(0), route(1), route(2), route(3), route(4)};
  static const Key rules[] = {{16, {0, 1}, {255, 255}, 1},
                              {16, {0, 1}, {255, 255}, 2},
                              {16, {0, 0}, {255, 0}, 3},
                              {16, {0, 1}, {255, 15}, 4},
                              {16, {0, 1}, {255, 255}, 5}};
  static Action forward(9, {0, 1}), deny, hop(14, {0, 1});
  deny.spec.resource_count = forward.spec.resource_count = 0;
  forward.resource(kHostCount).data.counter = kCounted;
  forward.resource(kAclCount, 9);
  deny.resource(kRuleCount);
  deny.resource(kAclMeter).data.meter = kMetered;
  if (table == kHost) return {table, hosts, kForward, &forward.spec, 3};
  if (table == kAcl) return {table, rules, kDeny, &deny.spec, 2};
  return {table, routes, kNextHop, &hop.spec, 5};
}

bf_status_t look_up(Hand &h, const TableCase &t) {
  const uint8_t key[5] = {0, 1, h.few(), 4, 5};
  return soft_lookup(h.d(), h.q(), h.o(t.table), h.x(key), t.length, h.word(), nullptr);
}

bf_status_t send(Hand &h, const TableCase &t, bool is_packet) {
  static const uint8_t hash = 0;
  const uint8_t key[5] = {0, 1, h.few(), 4, 5};
  if (is_packet) {
    return soft_packet(h.d(), h.q(), h.o(t.table), h.x(key), t.length, 64, h.word(), nullptr);
  }
  const soft_traffic_t traffic{key, t.length, &hash, 1, 1, 64};
  soft_hit_t hit{};
  return soft_traffic_hit(h.d(), h.q(), h.o(t.table), h.x(&traffic), h.x(&hit));
}

Calls counted_calls(uint32_t t) {
  return {
      CHANGE(pipe_mgr_mat_ent_direct_stat_set(ON(t), h.entry(), h.x(&kCounted))),
      READ(pipe_mgr_mat_ent_direct_stat_query(ON(t), h.entry(), h.x(&h.room.counter))),
      CHANGE(pipe_mgr_direct_stat_ent_database_sync(IN(t), h.entry())),
      CHANGE(pipe_mgr_direct_stat_database_sync(IN(t), nullptr, nullptr)),
  };
}

Calls ageing_calls(uint32_t t) {
  static const pipe_mgr_idle_params_t ageing{PIPE_IDLE_NOTIFY, 10, 9000, 10, 300, 0};
  const auto hear = [](bf_device_id_t, pipe_object_handle_t, pipe_entry_handle_t, void *) {};
  return {
      CHANGE(pipe_mgr_idle_tmo_enable(ON(t), ageing)),
      CHANGE(pipe_mgr_idle_register_tmo_cb(ON(t), hear, nullptr)),
      READ(pipe_mgr_idle_params_get(ON(t), h.x(&h.room.ageing))),
      CHANGE(pipe_mgr_mat_ent_set_idle_ttl(ON(t), h.entry(), 20, 0)),
      READ(pipe_mgr_mat_ent_get_idle_ttl(ON(t), h.entry(), h.word())),
      CHANGE(pipe_mgr_idle_time_update_hit_state(ON(t), h.entry(), h.few() % 2)),
      READ(pipe_mgr_idle_time_get_hit_state(ON(t), h.entry(), h.word())),
      CHANGE(soft_clock_advance(10), BF_SUCCESS),
      CHANGE(soft_device_clock_advance(h.d(), 10)),
      READ(soft_device_clock_now(h.d(), h.x(&h.room.number))),
      END(pipe_mgr_idle_tmo_disable(ON(t))),
  };
}

// The same calls on something that has no such part.
Calls unsupported(Calls calls) {
  std::erase_if(calls, [](const Call &call) { return std::strstr(call.text, "clock") != nullptr; });
  for (Call &call : calls) call.kind = Call::kUnsupported;
  return calls;
}

// Default entries; only some tables have actions for them.
Calls default_calls(uint32_t t) {
  static const Action none;
  const uint32_t preset = t == kHost ? kDrop : kDeny;
  return {
      CHANGE(pipe_mgr_mat_default_entry_set(IN(t), preset, h.x(&none.spec), 0, h.word())),
      READ(pipe_mgr_table_get_default_entry_handle(IN(t), h.word())),
      READ(pipe_mgr_table_get_default_entry(IN(t), h.x(&h.room.action), h.word(), false)),
  };
}

}  // namespace

Calls table_calls(uint32_t table) {
  const TableCase c = table_case(table);
  const uint32_t t = table;
  const auto key = [=](const Hand &h) { return &c.keys[h.few()].spec; };
  const auto hear = [](pipe_session_handle_t, bf_device_id_t, pipe_object_handle_t, uint32_t,
                       pipe_entry_handle_t, void *) {};
  Calls calls = {
      CHANGE(pipe_mgr_mat_ent_add(IN(t), h.x(key(h)), c.action, h.x(c.spec), 50, 0, h.x(&h.last))),
      CHANGE(pipe_mgr_mat_ent_set_action(ON(t), h.entry(), c.action, h.x(c.spec), 0)),
      CHANGE(
          pipe_mgr_mat_ent_set_action_by_match_spec(IN(t), h.x(key(h)), c.action, h.x(c.spec), 0)),
      CHANGE(pipe_mgr_mat_ent_set_resource(ON(t), h.entry(),
                                           t == kRoute ? nullptr : h.x(c.spec->resources),
                                           c.spec->resource_count, 0)),
      READ(pipe_mgr_match_spec_to_ent_hdl(IN(t), h.x(key(h)), h.word())),
      READ(pipe_mgr_get_entry(h.s(), h.o(t), h.d(), h.entry(), h.x(&h.room.match),
                              h.x(&h.room.action), h.word(), false)),
      READ(pipe_mgr_get_entry_count(IN(t), 0, h.word())),
      READ(pipe_mgr_get_first_entry_handle(h.s(), h.o(t), h.d(), h.p(), h.word())),
      CHANGE(pipe_mgr_get_next_entry_handles(h.s(), h.o(t), h.d(), h.p(), h.entry(), h.more(),
                                             h.word())),
      CHANGE(pipe_mgr_tbl_set_property(ON(t), PIPE_TABLE_CAPACITY, 9 + h.number, 0)),
      READ(pipe_mgr_tbl_get_property(ON(t), PIPE_TABLE_CAPACITY, h.word(), h.x(h.room.word + 1))),
      CHANGE(soft_table_capacity_set(h.d(), h.o(t), 9)),
      READ(soft_table_capacity_get(h.d(), h.o(t), h.word())),
      CHANGE(pipe_register_mat_update_cb(ON(t), hear, nullptr)),
      READ(look_up(h, c)),
      CHANGE(send(h, c, true)),
      CHANGE(send(h, c, false)),
      CHANGE(soft_placement_of_entry(h.d(), h.o(t), h.entry(), h.x(&h.placed))),
      READ(pipe_mgr_plcmt_mat_data_get_entry(h.x(h.placed), h.x(&h.room.match), h.x(&h.room.action),
                                             h.word())),
      END(soft_placement_free(h.placed), h.placed = nullptr, BF_SUCCESS),
  };
  append(calls, t == kRoute ? unsupported(counted_calls(t)) : unsupported(ageing_calls(t)));
  if (t != kRoute) append(calls, default_calls(t));
  append(calls, t == kRoute ? ageing_calls(t) : counted_calls(t));
  const Calls metered{READ(pipe_mgr_meter_read_entry(IN(t), h.entry(), h.x(&h.room.meter)))};
  append(calls, t == kAcl ? metered : unsupported(metered));
  append(
      calls,
      {
          END(pipe_mgr_mat_tbl_default_entry_reset(IN(t), 0)),
          END(pipe_mgr_mat_ent_del(ON(t), h.last, 0)),
          END(pipe_mgr_mat_ent_add(IN(t), h.x(key(h)), c.action, h.x(c.spec), 50, 0, h.x(&h.last))),
          END(pipe_mgr_mat_ent_del_by_match_spec(IN(t), h.x(key(h)), 0)),
      });
  return calls;
}

// Members, groups and entries that refer to them.
Calls profile_calls() {
  static Action send(9, {0, 1});
  send.spec.type = 0;
  static const Key lag(8, {1}, {255});
  static const uint8_t packet = 1, hash = 3;
  const auto hear_member = [](pipe_session_handle_t, bf_device_id_t, pipe_object_handle_t, uint32_t,
                              pipe_member_handle_t, void *) {};
  const auto hear_group = [](pipe_session_handle_t, bf_device_id_t, pipe_object_handle_t, uint32_t,
                             pipe_group_handle_t, pipe_member_handle_t, void *) {};
  constexpr uint32_t m = kMembers, g = kSelector;
  const auto add_lag = [=](Hand &h) {
    pipe_mgr_action_spec_t spec{};
    spec.type = PIPE_ACTION_GROUP;
    spec.group = h.group();
    return pipe_mgr_mat_ent_add(IN(kLag), h.x(&lag.spec), kSend, h.x(&spec), 0, 0, h.word());
  };
  Calls calls = {
      CHANGE(pipe_mgr_adt_ent_add(IN(m), kSend, h.x(&send.spec), h.x(&h.member), 0)),
      CHANGE(pipe_mgr_adt_ent_set(ON(m), h.one_member(), kSend, h.x(&send.spec), 0)),
      READ(pipe_mgr_get_action_data_entry(h.o(m), h.d(), h.one_member(), h.x(&h.room.data),
                                          h.word(), false)),
      CHANGE(soft_placement_of_member(h.d(), h.o(m), h.one_member(), h.x(&h.placed))),
      READ(pipe_mgr_plcmt_adt_data_get_entry(h.x(h.placed), h.x(&h.room.data), h.word())),
      END(soft_placement_free(h.placed), h.placed = nullptr, BF_SUCCESS),
      CHANGE(pipe_mgr_sel_grp_add(IN(g), 3, h.x(&h.last), 0)),
      CHANGE(pipe_mgr_sel_grp_mbr_add(ON(g), h.group(), kSend, h.one_member(), 0)),
      CHANGE(pipe_mgr_sel_grp_mbr_disable(ON(g), h.group(), h.one_member(), 0)),
      READ(pipe_mgr_sel_grp_mbr_state_get(ON(g), h.group(), h.one_member(), h.word())),
      CHANGE(pipe_mgr_sel_grp_mbr_enable(ON(g), h.group(), h.one_member(), 0)),
      READ(pipe_mgr_sel_grp_mbr_get_from_hash(ON(g), h.group(), h.x(&hash), 1, h.word())),
      CHANGE(pipe_mgr_sel_fallback_mbr_set(IN(g), h.one_member(), 0)),
      READ(soft_fallback_member(h.d(), h.o(g), h.word())),
      END(pipe_mgr_sel_fallback_mbr_reset(IN(g), 0)),
      READ(soft_group_max_size(h.d(), h.o(g), h.group(), h.word())),
      READ(pipe_mgr_get_first_group_member(h.s(), h.o(g), h.d(), h.group(), h.word())),
      READ(pipe_mgr_get_next_group_members(h.s(), h.o(g), h.d(), h.group(), 0, 3, h.word())),
      READ(pipe_mgr_get_sel_grp_mbr_count(ON(g), h.group(), h.word())),
      READ(pipe_mgr_get_word_llp_active_member_count(IN(g), 0, h.word())),
      READ(pipe_mgr_get_word_llp_active_members(IN(g), 0, 3, h.word())),
      CHANGE(pipe_register_adt_update_cb(ON(m), hear_member, nullptr)),
      CHANGE(pipe_mgr_sel_tbl_register_cb(ON(g), hear_group, nullptr)),
      CHANGE(pipe_register_sel_update_cb(ON(g), hear_group, nullptr)),
      CHANGE(add_lag(h)),
      CHANGE(soft_packet(h.d(), h.q(), h.o(kLag), h.x(&packet), 1, 64, h.word(), nullptr)),
  };
  for (const uint32_t t : {m, g}) {
    append(calls, {
                      READ(pipe_mgr_get_entry_count(IN(t), 0, h.word())),
                      READ(pipe_mgr_get_first_entry_handle(h.s(), h.o(t), h.d(), h.p(), h.word())),
                      CHANGE(pipe_mgr_get_next_entry_handles(h.s(), h.o(t), h.d(), h.p(), 1,
                                                             h.more(), h.word())),
                      CHANGE(soft_profile_capacity_set(h.d(), h.o(t), 50)),
                      READ(soft_profile_capacity_get(h.d(), h.o(t), h.word())),
                  });
  }
  append(calls, {
                    END(pipe_mgr_mat_ent_del_by_match_spec(IN(kLag), h.x(&lag.spec), 0)),
                    END(pipe_mgr_sel_grp_mbr_del(ON(g), h.group(), h.one_member(), 0)),
                    END(pipe_mgr_sel_grp_del(ON(g), h.spent(&h.last), 0)),
                    END(pipe_mgr_adt_ent_del(ON(m), h.spent(&h.member), 0)),
                });
  return calls;
}

namespace {

Calls counter_calls(uint32_t c) {
  return {
      CHANGE(soft_counter_count(h.d(), h.q(), h.o(c), h.few(), 1, 64)),
      READ(pipe_mgr_stat_ent_query(IN_DEVICE, h.p(0), h.o(c), h.few(), h.x(&h.room.counter))),
      CHANGE(pipe_mgr_stat_ent_set(IN(c), h.few(), h.x(&kCounted))),
      CHANGE(pipe_mgr_stat_ent_database_sync(IN_DEVICE, h.p(0), h.o(c), h.few())),
      READ(soft_next_cell(h.d(), h.o(c), 0, h.word())),
      END(pipe_mgr_stat_database_sync(IN(c), nullptr, nullptr)),
  };
}

Calls meter_calls(uint32_t m) {
  return {
      CHANGE(pipe_mgr_meter_ent_set(IN(m), h.few(), h.x(&kMetered), 0)),
      READ(pipe_mgr_meter_read_entry_idx(IN_DEVICE, h.p(0), h.o(m), h.few(), h.x(&h.room.meter))),
      CHANGE(soft_meter_mark(h.d(), h.q(), h.o(m), h.few(), 1, 64, h.x(h.room.bytes))),
      READ(soft_next_cell(h.d(), h.o(m), 0, h.word())),
  };
}

}  // namespace

Calls cell_calls() {
  static const pipe_mgr_wred_spec_t wred{1, 2, 3, 0.5f};
  static const pipe_stful_cell_t cell{7};
  constexpr uint32_t m = kPoliceMeter, r = kWordRegister;
  Calls calls = counter_calls(kAclCount);
  append(calls, meter_calls(m));
  append(calls, unsupported(counter_calls(kHostCount)));
  append(calls, unsupported(meter_calls(kAclMeter)));
  append(calls,
         {
             CHANGE(pipe_mgr_meter_set_bytecount_adjust(IN(m), h.few())),
             READ(pipe_mgr_meter_get_bytecount_adjust(IN(m), h.word())),
             CHANGE(pipe_mgr_wred_ent_set(IN(kWred), h.few(), h.x(&wred), 0)),
             READ(soft_wred_get(h.d(), h.q(), h.o(kWred), h.few(), h.x(&h.room.wred))),
             READ(soft_next_wred_cell(h.d(), h.q(), h.x(h.room.zero), h.x(h.room.zero + 1))),
             CHANGE(pipe_stful_ent_set(IN(r), h.few(), h.x(&cell), 0)),
             READ(pipe_stful_ent_query(IN(r), h.few(), h.x(&h.room.query), false)),
             CHANGE(soft_register_write(h.d(), h.p(0), h.o(r), 2000 + h.few(), h.number)),
             CHANGE(pipe_stful_ent_query(IN(r), 2000 + h.few(), h.x(&h.room.query), true)),
             READ(pipe_stful_ent_query_range(IN(r), 2000, 1, h.x(&h.room.query), h.word(), false)),
             CHANGE(pipe_stful_table_reset_range(IN(r), 1000, 4001, &cell)),
             READ(pipe_stful_query_get_sizes(ON(r), h.word())),
             READ(soft_next_cell(h.d(), h.o(r), 0, h.word())),
             CHANGE(soft_register_write(h.d(), h.p(), h.o(r), 0x3ffff, h.number)),
             CHANGE(pipe_stful_database_sync(IN(r), nullptr, nullptr)),
             END(pipe_stful_table_reset(IN(r), &cell)),
             UNSUPPORTED(pipe_stful_direct_ent_query(ON(kHost), 1, &h.room.query, false)),
             UNSUPPORTED(pipe_stful_direct_database_sync(IN(kHost), nullptr, nullptr)),
         });
  return calls;
}

namespace {

std::atomic<pipe_mgr_digest_message_t *> sent{nullptr};

bf_status_t keep(pipe_session_handle_t, pipe_mgr_digest_message_t *message, void *) {
  static_cast<void>(message->entry_count);
  sent = message;
  return BF_SUCCESS;
}

Calls hash_and_digest_calls() {
  static const pipe_mgr_hash_attribute_t attribute{0, 1, 2};
  static const uint8_t entries[5][3] = {{0, 1, 2}, {1, 1, 2}, {2, 1, 2}, {3, 1, 2}, {4, 1, 2}};
  constexpr uint32_t c = kIpHash, d = kMacDigest;
  return {
      CHANGE(pipe_mgr_hash_calc_input_set(ON(c), kIpFields)),
      READ(pipe_mgr_hash_calc_input_get(ON(c), h.word())),
      CHANGE(pipe_mgr_hash_calc_algorithm_set(ON(c), kCrc)),
      READ(pipe_mgr_hash_calc_algorithm_get(ON(c), h.word())),
      CHANGE(pipe_mgr_hash_calc_seed_set(ON(c), h.number)),
      READ(pipe_mgr_hash_calc_seed_get(ON(c), h.x(&h.room.number))),
      CHANGE(pipe_mgr_hash_calc_input_field_attribute_set(ON(c), kIpFields, 1, h.x(&attribute))),
      READ(pipe_mgr_hash_calc_input_field_attribute_count_get(ON(c), kIpFields, h.word())),
      READ(pipe_mgr_hash_calc_input_field_attribute_get(ON(c), kIpFields, 1, h.x(&h.room.attribute),
                                                        h.word())),
      READ(
          pipe_mgr_hash_calc_calculate_hash_value(ON(c), h.x(entries[0]), 3, h.x(h.room.bytes), 4)),
      CHANGE(pipe_mgr_lrn_digest_notification_register(ON(d), h.x(keep), nullptr)),
      CHANGE(soft_digest_inject(h.d(), h.q(), h.o(d), h.x(entries[h.few()]), 1, 3, h.room.word)),
      READ(soft_digest_pending(h.d(), h.o(d), h.room.word, h.room.word + 1)),
      CHANGE(pipe_mgr_flow_lrn_set_timeout(IN_DEVICE, h.few())),
      CHANGE(pipe_mgr_flow_lrn_notify_ack(h.s(), h.o(d), sent)),
      CHANGE(pipe_mgr_lrn_digest_notification_deregister(ON(d))),
  };
}

Calls value_set_calls() {
  const auto oldest = [](Hand &h) {
    uint32_t entry = h.last;
    if (!h.steady) pipe_mgr_pvs_entry_get_first(h.session, h.device, kPortSet, 0, 0, 1, &entry);
    return entry;
  };
  constexpr uint32_t v = kPortSet, all = SOFT_ALL_PARSERS;
  return {
      CHANGE(pipe_mgr_pvs_entry_add(ON(v), 0, h.p(), all, h.number, kNone, h.x(&h.last))),
      CHANGE(pipe_mgr_pvs_entry_modify(ON(v), h.last, h.few(), 15)),
      READ(pipe_mgr_pvs_entry_get(ON(v), h.last, h.word(), h.x(h.room.word + 1))),
      READ(soft_value_set_parsers(h.d(), h.o(v), h.last, h.x(&h.room.parsers))),
      READ(pipe_mgr_pvs_entry_handle_get(ON(v), 0, h.p(0), 1, h.few(), 15, h.word())),
      READ(pipe_mgr_pvs_entry_get_first(ON(v), 0, h.p(0), 1, h.word())),
      CHANGE(pipe_mgr_pvs_entry_get_next(ON(v), 0, h.p(0), 1, 1, h.more(), h.room.word)),
      READ(pipe_mgr_pvs_entry_get_count(ON(v), 0, h.p(0), 1, 0, h.word())),
      READ(soft_value_set_match(h.d(), h.o(v), 0, h.q(), 1, h.few(), h.word())),
      CHANGE(pipe_mgr_pvs_set_property(ON(v), PIPE_PVS_CAPACITY, 0, 0, 0)),
      READ(pipe_mgr_pvs_get_property(ON(v), PIPE_PVS_CAPACITY, h.word(), 0, 0)),
      END(pipe_mgr_pvs_entry_delete(ON(v), oldest(h))),
  };
}

Calls snapshot_calls() {
  static const Bytes record(kSnapshotBytes, 7);
  const uint8_t *const bytes = record.data();
  return {
      CHANGE(bf_snapshot_create(h.d(), h.p(), 0, 1, 0, h.x(&h.member))),
      CHANGE(bf_snapshot_capture_trigger_set(h.member, h.x(bytes), h.x(bytes))),
      READ(soft_snapshot_trigger_get(h.member, h.x(h.room.bytes), h.x(h.room.bytes + 8))),
      CHANGE(soft_snapshot_inject(h.d(), h.q(), 0, 0, h.x(bytes), 1, kSnapshotBytes, h.room.word)),
      READ(bf_snapshot_capture_get(h.member, 0, h.x(h.room.bytes), h.room.control, h.word())),
      READ(bf_snapshot_capture_phv_fields_dict_size(h.member, h.word(), h.x(h.room.word + 1))),
      END(bf_snapshot_delete(h.member)),
  };
}

}  // namespace

Calls service_calls() {
  Calls calls = hash_and_digest_calls();
  append(calls, value_set_calls());
  append(calls, snapshot_calls());
  return calls;
}

namespace {

bf_status_t ignore(pipe_session_handle_t, uint8_t, pipe_object_handle_t, pipe_object_handle_t,
                   pipe_group_handle_t, pipe_member_handle_t, uint32_t) {
  return BF_SUCCESS;
}
bf_status_t pass_by(uint8_t, pipe_member_handle_t, pipe_group_handle_t, void *) {
  return BF_SUCCESS;
}

template <class Body>
bf_status_t on_document(Body body) {
  cJSON *document = cJSON_Parse(R"({"members":[{"handle":0,"action":7,"resources":[[1,2]]}],)"
                                R"("groups":[{"handle":0,"action":8,"members":[0]}]})");
  const bf_status_t status = body(document);
  cJSON_Delete(document);
  return status;
}

Calls shadow_calls() {
  static p4_pd_ms_state_t *const state = p4_pd_ms_init_state();
  return {
      CHANGE(p4_pd_ms_new_mbr(h.session, h.x(state), 1, h.few())),
      CHANGE(p4_pd_ms_set_mbr_act(h.x(state), 1, h.few(), kSend)),
      READ(p4_pd_ms_get_mbr_act(h.x(state), 1, h.few(), h.word())),
      CHANGE(p4_pd_ms_new_grp(h.session, h.x(state), 1, h.few())),
      CHANGE(p4_pd_ms_set_grp_act(h.x(state), 1, h.few(), kSend)),
      READ(p4_pd_ms_get_grp_act(h.x(state), 1, h.few(), h.word())),
      CHANGE(p4_pd_ms_add_mbr_to_grp(h.session, h.x(state), 1, h.few(), h.few())),
      CHANGE(p4_pd_ms_mbr_apply_to_grps(h.x(state), 1, h.few(), h.x(pass_by), nullptr)),
      CHANGE(p4_pd_ms_grp_update_res(1, h.few(), h.few(), h.x(state))),
      CHANGE([&] {
        p4_pd_res_spec_t *held = nullptr;
        return p4_pd_ms_mbr_get_res(h.x(state), 1, h.few(), h.word(), h.x(&held));
      }()),
      CHANGE([&] {
        p4_pd_res_spec_t *held = nullptr;
        return p4_pd_ms_grp_get_res(h.x(state), 1, h.few(), h.word(), h.x(&held));
      }()),
      CHANGE(on_document([&](cJSON *d) { return p4_pd_ms_log_state(1, h.x(state), h.x(d)); })),
      CHANGE(on_document([&](cJSON *d) { return p4_pd_ms_restore_state(1, h.x(state), h.x(d)); })),
      END(p4_pd_ms_del_mbr_from_grp(h.session, h.x(state), 1, h.few(), h.few())),
      END(p4_pd_ms_del_grp(h.session, h.x(state), 1, h.few())),
      END(p4_pd_ms_del_mbr(h.session, h.x(state), 1, h.few())),
      END(p4_pd_ms_destroy_state_for_dev(h.x(state), 1)),
      CHANGE(p4_pd_ms_destroy_txn_state_for_dev(1)),
  };
}

}  // namespace

Calls frame_calls() {
  static const bf_drv_client_callbacks_t callbacks{};
  static const char *const names[] = {"0", "1", "2", "3", "4"};
  Calls calls = {
      CHANGE(bf_drv_register(h.x(names[h.few()]), h.x(&h.member))),
      CHANGE(bf_drv_client_register_callbacks(h.member, h.x(&callbacks), h.few())),
      CHANGE(soft_device_create(kOther, 2, h.x(&small_program()), false)),
      CHANGE(soft_device_copy(h.d(), kOther)),
      CHANGE(soft_device_create(kVirtual, 2, h.x(&small_program()), true)),
      CHANGE(pipe_mgr_hitless_ha_restore_virtual_dev_state(h.s(), h.d(kOther), kVirtual, h.p(), 0,
                                                           h.x(ignore))),
      CHANGE(soft_device_remove(kVirtual)),
      CHANGE(soft_device_list(h.room.word, 8), soft_device_remove(kOther)),
      CHANGE(soft_session_open(h.x(&h.last))),
      CHANGE(soft_session_close(h.last)),
      READ(soft_client_get(h.x("0"), h.room.word, nullptr, nullptr)),
      CHANGE(soft_client_count(), bf_drv_deregister(h.member)),
  };
  append(calls, shadow_calls());
  return calls;
}

}  // namespace soft_test
