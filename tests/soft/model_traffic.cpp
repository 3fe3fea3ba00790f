// Traffic, counters, meters and ageing beside those of the model.
#include "model_calls.hpp"

namespace soft_test {

void Beside::send_traffic() {
  ModelTable &table = random.one_in(9) ? model.tables[kEncap] : any_table();
  const uint32_t handle = table.description->handle, pipe = random.below(2);
  const Bytes key = random_packet(table);
  const uint32_t length = table.description->key_bytes;
  const uint8_t *bytes = length == 0 ? nullptr : key.data();
  Bytes hash(random.below(4));
  for (uint8_t &byte : hash) byte = static_cast<uint8_t>(random());
  const Count traffic{random.below(3), random.below(200)};
  uint32_t found = 0xabcd;
  bool is_default = false;
  const bf_status_t status = soft_lookup(device, pipe, handle, bytes, length, &found, &is_default);
  const bool missed = table.look_up(key, pipe) == nullptr && table.default_in(pipe) == nullptr;
  ASSERT_EQ(status, missed ? BF_TABLE_MISS : BF_SUCCESS);
  const soft_traffic_t sent{bytes,           length,
                            hash.data(),     static_cast<uint32_t>(hash.size()),
                            traffic.packets, traffic.bytes};
  soft_hit_t hit{};
  ASSERT_EQ(soft_traffic_hit(device, pipe, handle, &sent, &hit), status);
  if (missed) return;
  soft_hit_t expected = model.pass(table, pipe, key, traffic, hash);
  if (expected.entry == 0) expected.entry = found;  // a default entry that was not read yet
  ASSERT_EQ(found, expected.entry);
  ASSERT_EQ(is_default, expected.is_default);
  ASSERT_EQ(hit.entry, expected.entry);
  ASSERT_EQ(hit.is_default, expected.is_default);
  ASSERT_EQ(hit.action, expected.action);
  ASSERT_EQ(hit.group, expected.group);
  ASSERT_EQ(hit.member, expected.member);
  ASSERT_EQ(hit.color, expected.color);
}

// Of the entries of a table.
void Beside::change_counter() {
  ModelTable &table = model.tables[random.one_in(2) ? kHost : kAcl];
  const uint32_t handle = table.description->handle;
  if (random.one_in(4)) {
    static int calls;
    const auto count = [](bf_device_id_t, void *cookie) { ++*static_cast<int *>(cookie); };
    calls = 0;
    OK(pipe_mgr_direct_stat_database_sync(session, device, kAll, handle, count, &calls));
    ASSERT_EQ(calls, 1);
    for (ModelEntry &entry : table.entries) entry.counter.synchronise();
    for (auto &entry : table.defaults) {
      if (entry) entry->counter.synchronise();
    }
    return;
  }
  const uint32_t asked = any_entry(table);
  ModelEntry *found = table.by_handle(asked);
  ModelEntry *standing = table.default_in(random.below(2));
  if (standing != nullptr && standing->handle != 0 && random.one_in(3)) found = standing;
  const bf_status_t expected = found != nullptr && found->resources.contains(table.counter)
                                   ? BF_SUCCESS
                                   : BF_OBJECT_NOT_FOUND;
  const uint32_t entry = found == nullptr ? asked : found->handle;
  if (random.one_in(2)) {
    ASSERT_EQ(pipe_mgr_direct_stat_ent_database_sync(session, device, kAll, handle, entry),
              expected);
    if (expected == BF_SUCCESS) found->counter.synchronise();
    return;
  }
  const pipe_mgr_counter_t value{random.below(100), random.below(100)};
  ASSERT_EQ(pipe_mgr_mat_ent_direct_stat_set(session, device, handle, entry, &value), expected);
  if (expected == BF_SUCCESS) found->counter = {{}, {value.packets, value.bytes}};
}

// ---- Ageing ----

void Beside::switch_ageing() {
  ModelTable &table = model.tables[kRoute];
  pipe_mgr_idle_params_t read{};
  ASSERT_EQ(pipe_mgr_idle_params_get(session, device, kRoute, &read),
            table.ageing ? BF_SUCCESS : BF_NOT_READY);
  ASSERT_EQ(read.default_ttl_ms, table.ageing ? table.ageing->default_ttl_ms : 0);
  if (random.one_in(4)) {
    OK(pipe_mgr_idle_tmo_disable(session, device, kRoute));
    table.ageing.reset();
    return;
  }
  pipe_mgr_idle_params_t params{random.below(random.one_in(9) ? 3 : 2), 0, 0, 0, 0, 0};
  if (random.one_in(2)) params.sweep_interval_ms = random.below(200);
  if (random.one_in(2)) params.max_ttl_ms = 200 + random.below(9000);
  if (random.one_in(2)) params.min_ttl_ms = random.below(220);
  if (random.one_in(2)) params.default_ttl_ms = random.below(300);
  const uint32_t greatest = params.max_ttl_ms == 0 ? UINT32_MAX : params.max_ttl_ms;
  const uint32_t preset = params.default_ttl_ms;
  const bool notifies = params.mode == PIPE_IDLE_NOTIFY;
  const bool fits = params.min_ttl_ms <= greatest &&
                    (preset == 0 || (params.min_ttl_ms <= preset && preset <= greatest));
  const bool refused = params.mode == 2 || (notifies && !fits);
  ASSERT_EQ(pipe_mgr_idle_tmo_enable(session, device, kRoute, params),
            refused ? BF_INVALID_ARGUMENT : BF_SUCCESS);
  if (refused) return;
  table.ageing = params;
  table.ageing_since_ms = model.now();
  for (ModelEntry &entry : table.entries) {
    if (notifies) {
      entry.ttl = entry.ttl == 0 ? preset : std::clamp(entry.ttl, params.min_ttl_ms, greatest);
    }
    entry.hit(model.now());
  }
}

void Beside::change_age() {
  ModelTable &table = model.tables[kRoute];
  const uint32_t entry = any_entry(table);
  ModelEntry *found = table.by_handle(entry);
  uint32_t read = 99;
  ASSERT_EQ(pipe_mgr_idle_time_get_hit_state(session, device, kRoute, entry, &read),
            !table.ageing      ? BF_NOT_READY
            : found == nullptr ? BF_OBJECT_NOT_FOUND
                               : BF_SUCCESS);
  const bool idle = found != nullptr && (found->expired || found->idle);
  ASSERT_EQ(read, found == nullptr || !table.ageing ? 99u : idle ? 0u : 1u);
  if (random.one_in(2)) {
    const uint32_t state = random.below(3);
    const bf_status_t expected = state == 2         ? BF_INVALID_ARGUMENT
                                 : !table.ageing    ? BF_NOT_READY
                                 : found == nullptr ? BF_OBJECT_NOT_FOUND
                                                    : BF_SUCCESS;
    ASSERT_EQ(pipe_mgr_idle_time_update_hit_state(session, device, kRoute, entry, state), expected);
    if (expected != BF_SUCCESS) return;
    if (state == PIPE_ENTRY_ACTIVE) found->hit(model.now());
    if (state == PIPE_ENTRY_IDLE) found->idle = true;
    return;
  }
  uint32_t ttl = random.one_in(4) ? 0 : random.below(400);
  const uint32_t asked = ttl, restart = random.below(2);
  bf_status_t expected = found == nullptr ? BF_OBJECT_NOT_FOUND : BF_SUCCESS;
  if (found != nullptr && restart == 0) expected = table.admit(&ttl);
  ASSERT_EQ(pipe_mgr_mat_ent_set_idle_ttl(session, device, kRoute, entry, asked, restart),
            expected);
  if (expected == BF_SUCCESS) {
    if (restart == 0) found->ttl = ttl;
    found->hit(model.now());
  }
  if (found == nullptr) return;
  OK(pipe_mgr_mat_ent_get_idle_ttl(session, device, kRoute, entry, &read));
  ASSERT_EQ(read, found->ttl);
}

// Entries that were idle for their time are heard of, the oldest expiry first.
void Beside::advance_clock() {
  ModelTable &table = model.tables[kRoute];
  expired.clear();
  const uint64_t step = random.one_in(9) ? random() >> random.below(32) : random.below(40);
  if (random.one_in(2)) {
    soft_clock_advance(step);
  } else {
    OK(soft_device_clock_advance(device, step));
    model.lead_ms += step;
  }
  uint64_t now = 0;
  OK(soft_device_clock_now(device, &now));
  ASSERT_EQ(now, model.now());
  std::vector<Expiry> expected;
  if (table.ageing && table.ageing->mode == PIPE_IDLE_NOTIFY) {
    uint64_t looked = model.now();
    const uint64_t interval = table.ageing->sweep_interval_ms;
    if (interval != 0) looked -= (looked - table.ageing_since_ms) % interval;
    for (ModelEntry &entry : table.entries) {
      if (entry.ttl == 0 || entry.expired || entry.ends_ms() > looked) continue;
      entry.expired = true;
      if (!entry.idle) expected.push_back({entry.handle, entry.ends_ms()});
    }
  }
  ASSERT_EQ(expired.size(), expected.size());
  uint64_t before = 0;
  for (const Expiry &heard_of : expired) {
    const auto at = std::ranges::find(expected, heard_of.entry, &Expiry::entry);
    ASSERT_NE(at, expected.end());
    ASSERT_GE(at->at_ms, before);
    before = at->at_ms;
  }
}

// ---- Cells that are no entry's ----

void Beside::change_counter_cell() {
  const uint32_t index = random.below(3), named = random.one_in(3) ? kAll : random.below(2);
  const Count more{random.below(9), random.below(99)};
  const uint32_t what = random.below(4);
  const auto each = [&](auto change) {
    for (uint32_t pipe = 0; pipe < 2; ++pipe) {
      if (named == kAll || named == pipe) change(model.counters[{pipe, index}]);
    }
  };
  if (what == 0 && named != kAll) {
    OK(soft_counter_count(device, named, kAclCount, index, more.packets, more.bytes));
    each([&](CounterCell &cell) { cell.hardware.add(more); });
  } else if (what == 1) {
    const pipe_mgr_counter_t value{more.bytes, more.packets};
    OK(pipe_mgr_stat_ent_set(session, device, named, kAclCount, index, &value));
    Count rest = more;  // what is set for all pipes is their sum
    each([&](CounterCell &cell) { cell = {{}, std::exchange(rest, Count{})}; });
  } else if (what == 2) {
    OK(pipe_mgr_stat_ent_database_sync(session, device, named, kAclCount, index));
    each([](CounterCell &cell) { cell.synchronise(); });
  } else {
    OK(pipe_mgr_stat_database_sync(session, device, named, kAclCount, nullptr, nullptr));
    for (auto &[where, cell] : model.counters) {
      if (named == kAll || named == where.first) cell.synchronise();
    }
  }
}

void Beside::change_meter_cell() {
  const uint32_t meter = random.one_in(2) ? kPoliceMeter : kFlowMeter;
  const uint32_t index = random.below(3), named = random.one_in(3) ? kAll : random.below(2);
  if (random.one_in(4)) {
    const uint32_t adjusted = random.one_in(3) ? kAclMeter : meter;
    const int32_t bytes = static_cast<int32_t>(random.below(200)) - 100;
    uint32_t read = 1;
    OK(pipe_mgr_meter_set_bytecount_adjust(session, device, named, adjusted,
                                           static_cast<uint32_t>(bytes)));
    OK(pipe_mgr_meter_get_bytecount_adjust(session, device, kAll, adjusted, &read));
    ASSERT_EQ(static_cast<int32_t>(read), bytes);
    model.adjustments[adjusted] = bytes;
  } else if (random.one_in(3)) {
    const uint32_t unit = meter == kFlowMeter ? PIPE_RATE_PACKETS : PIPE_RATE_BYTES;
    const auto spec =
        meter_spec(unit, random.below(9), random.below(4), random.below(9), random.below(6));
    OK(pipe_mgr_meter_ent_set(session, device, named, meter, index, &spec, 0));
    for (uint32_t pipe = 0; pipe < 2; ++pipe) {
      if (named == kAll || named == pipe) model.meters[{meter, pipe, index}] = {spec};
    }
  } else {
    const uint32_t pipe = random.below(2);
    const Count traffic{random.below(3), random.below(200)};
    uint8_t color = 99;
    OK(soft_meter_mark(device, pipe, meter, index, traffic.packets, traffic.bytes, &color));
    const auto cell = model.meters.find({meter, pipe, index});
    ASSERT_EQ(color, cell == model.meters.end()
                         ? uint8_t{SOFT_COLOR_GREEN}
                         : cell->second.mark(model.cost(meter, traffic), model.now()));
  }
}

void Beside::compare_cells() {
  for (uint32_t index = 0; index < 4; ++index) {
    Count sum;
    pipe_mgr_counter_t read{};
    for (const uint32_t pipe : {0u, 1u, kAll}) {
      OK(pipe_mgr_stat_ent_query(session, device, pipe, kAclCount, index, &read));
      const Count one = pipe == kAll ? sum : model.counters[{pipe, index}].software;
      ASSERT_EQ((Count{read.packets, read.bytes}), one);
      sum.add(one);
      for (const uint32_t meter : {kPoliceMeter, kFlowMeter}) {
        const auto cell = model.meters.find({meter, pipe == kAll ? 0 : pipe, index});
        const pipe_mgr_meter_spec_t none{};
        const auto &spec = cell == model.meters.end() ? none : cell->second.spec;
        pipe_mgr_meter_spec_t held{};
        OK(pipe_mgr_meter_read_entry_idx(session, device, pipe, meter, index, &held));
        ASSERT_EQ(held.committed_burst, spec.committed_burst);
        ASSERT_EQ(held.peak_rate.value, spec.peak_rate.value);
        ASSERT_EQ(held.peak_rate.unit, meter == kFlowMeter ? 1u : 0u);
      }
    }
  }
  for (const uint32_t object : {kAclCount, kPoliceMeter, kFlowMeter}) {
    uint32_t next = 99, first = 99;
    const bf_status_t status = soft_next_cell(device, object, 0, &next);
    for (const auto &[where, cell] : model.counters) {
      const bool counts = cell.hardware != Count{} || cell.software != Count{};
      if (object == kAclCount && counts) first = std::min(first, where.second);
    }
    for (const auto &[where, cell] : model.meters) {
      if (object == where[0]) first = std::min(first, where[2]);
    }
    ASSERT_EQ(next, first);
    ASSERT_EQ(status, first == 99 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  }
}

}  // namespace soft_test
