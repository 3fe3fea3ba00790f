// Traffic, counters, meters, registers and ageing beside those of the model.
#include <fmt/format.h>

#include "beside.hpp"
#include "soft_contents.h"
#include "soft_sdk.h"
#include "soft_state.h"

namespace pd_test {

namespace {

std::string in_c(const Bytes &bytes) {
  return fmt::format("(uint8_t[]){{{:#04x}}}", fmt::join(bytes, ", "));
}

}  // namespace

void Beside::send_traffic() {
  ModelTable &table = dice.of(model.tables);
  const uint32_t handle = table.row->handle, pipe = dice.below(2);
  const Bytes packet = random_packet(table);
  const auto length = static_cast<uint32_t>(packet.size());
  const uint8_t *const bytes = length == 0 ? nullptr : packet.data();
  Bytes hash(dice.below(4));
  for (uint8_t &byte : hash) byte = static_cast<uint8_t>(dice());
  const Count traffic{dice.below(3), dice.below(200)};
  uint32_t found = 0xabcd;
  bool is_default = false;
  note(fmt::format(
      "soft_traffic_hit({}, {}, {:#x}, &(soft_traffic_t){{{}, {}, {}, {}, {}, {}}}, &hit)", device,
      pipe, handle, in_c(packet), length, in_c(hash), hash.size(), traffic.packets, traffic.bytes));
  const bf_status_t status = soft_lookup(device, pipe, handle, bytes, length, &found, &is_default);
  const bool missed = table.look_up(packet, pipe) == nullptr && table.default_in(pipe) == nullptr;
  ASSERT_EQ(status, missed ? BF_TABLE_MISS : BF_SUCCESS);
  const soft_traffic_t sent{bytes,           length,
                            hash.data(),     static_cast<uint32_t>(hash.size()),
                            traffic.packets, traffic.bytes};
  soft_hit_t hit{};
  ASSERT_EQ(soft_traffic_hit(device, pipe, handle, &sent, &hit), status);
  if (missed) return;
  const soft_hit_t expected = model.pass(table, pipe, packet, traffic, hash);
  ASSERT_EQ(found, expected.entry);
  ASSERT_EQ(is_default, expected.is_default);
  ASSERT_EQ(hit.entry, expected.entry);
  ASSERT_EQ(hit.is_default, expected.is_default);
  ASSERT_EQ(hit.action, expected.action);
  ASSERT_EQ(hit.group, expected.group);
  ASSERT_EQ(hit.member, expected.member);
  ASSERT_EQ(hit.color, expected.color);
}

namespace {

constexpr auto kCountCalls = +[](bf_device_id_t, void *cookie) { ++*static_cast<int *>(cookie); };

p4_pd_bytes_meter_spec_t small_meter(Dice &dice) {
  return {dice.below(9), dice.below(4), dice.below(9), dice.below(6), PD_METER_TYPE_COLOR_UNAWARE};
}

}  // namespace

// ---- Of the entries of a table ----

void Beside::change_counter() {
  ModelTable *const table = any_table([](const ModelTable &one) { return one.counter != nullptr; });
  if (table == nullptr) return;
  const std::string &name = table->counter->name;
  if (dice.one_in(4)) {
    int calls = 0;
    ASSERT_EQ(
        status_of("counter_hw_sync", name,
                  with("callback", reinterpret_cast<const void *>(kCountCalls), "cookie", &calls)),
        BF_SUCCESS);
    ASSERT_EQ(calls, 1);
    for (ModelEntry &entry : table->entries) entry.counter.synchronise();
    for (auto &entry : table->defaults) {
      if (entry) entry->counter.synchronise();
    }
    return;
  }
  const auto [entry, found] = any_of_all(*table);
  const p4_pd_status_t expected =
      found != nullptr && found->resources.contains(table->counter->handle) ? BF_SUCCESS
                                                                            : BF_OBJECT_NOT_FOUND;
  if (dice.one_in(2)) {
    const p4_pd_counter_values_t value{dice.below(100), dice.below(100)};
    ASSERT_EQ(status_of("counter_write", name, with("entry", entry, "values", &value)), expected);
    if (expected == BF_SUCCESS) found->counter = {{}, {value.packets, value.bytes}};
    return;
  }
  p4_pd_counter_values_t read{};
  ASSERT_EQ(
      status_of("counter_read", name,
                with("entry", entry, "flags", dice() | P4_PD_READ_FROM_HARDWARE, "values", &read)),
      expected);
  if (expected != BF_SUCCESS) return;
  found->counter.synchronise();
  ASSERT_EQ((Count{read.packets, read.bytes}), found->counter.software);
}

void Beside::change_meter() {
  ModelTable *const table = any_table([](const ModelTable &one) { return one.meter != nullptr; });
  if (table == nullptr) return;
  const auto [entry, found] = any_of_all(*table);
  const uint32_t meter = table->meter->handle;
  const p4_pd_bytes_meter_spec_t spec = small_meter(dice);
  const bool full = found != nullptr && !found->resources.contains(meter) &&
                    found->resources.size() == PIPE_RESOURCES_PER_ACTION;
  const p4_pd_status_t expected = found == nullptr ? BF_OBJECT_NOT_FOUND
                                  : full           ? BF_INVALID_ARGUMENT
                                                   : BF_SUCCESS;
  ASSERT_EQ(status_of("meter_set", table->meter->name, with("entry", entry, "meter_spec", &spec)),
            expected);
  expect_update(expected, {table->row->handle, PIPE_UPDATE_MODIFY, entry, 0});
  if (expected != BF_SUCCESS) return;
  found->resources[meter] = 0;
  found->meter = {spec};
}

// ---- Ageing ----

void Beside::switch_ageing() {
  ModelTable *const table = any_table([](const ModelTable &one) { return one.row->idle_time; });
  if (table == nullptr) return;
  const std::string &name = table->row->name;
  const auto &held = table->ageing;
  p4_pd_idle_time_params_t read{9, 9, 9, 9, 9, 9}, expected = read;
  ASSERT_EQ(status_of("idle_params_get", name, with("params", &read)),
            held ? BF_SUCCESS : BF_NOT_READY);
  if (held) expected.mode = held->mode;
  if (held && held->mode == PIPE_IDLE_NOTIFY) expected = *held;
  ASSERT_EQ(std::memcmp(&read, &expected, sizeof read), 0);
  if (dice.one_in(4)) {
    ASSERT_EQ(status_of("idle_tmo_disable", name, {}), BF_SUCCESS);
    table->ageing.reset();
    return;
  }
  p4_pd_idle_time_params_t params{dice.below(dice.one_in(9) ? 3 : 2), 0, 0, 0, 0, 0};
  if (dice.one_in(2)) params.sweep_interval_ms = dice.below(200);
  if (dice.one_in(2)) params.max_ttl_ms = 200 + dice.below(9000);
  if (dice.one_in(2)) params.min_ttl_ms = dice.below(220);
  if (dice.one_in(2)) params.default_ttl_ms = dice.below(300);
  const uint32_t greatest = params.max_ttl_ms == 0 ? UINT32_MAX : params.max_ttl_ms;
  const uint32_t preset = params.default_ttl_ms;
  const bool notifies = params.mode == PIPE_IDLE_NOTIFY;
  const bool fits = params.min_ttl_ms <= greatest &&
                    (preset == 0 || (params.min_ttl_ms <= preset && preset <= greatest));
  const bool refused = params.mode == 2 || (notifies && !fits);
  ASSERT_EQ(status_of("idle_tmo_enable", name, with("params", &params)),
            refused ? BF_INVALID_ARGUMENT : BF_SUCCESS);
  if (refused) return;
  table->ageing = params;
  table->ageing_since_ms = model.now();
  for (ModelEntry &entry : table->entries) {
    if (notifies) {
      entry.ttl = entry.ttl == 0 ? preset : std::clamp(entry.ttl, params.min_ttl_ms, greatest);
    }
    entry.hit(model.now());
  }
}

void Beside::change_age() {
  ModelTable *const table = any_table([](const ModelTable &one) { return one.row->idle_time; });
  if (table == nullptr) return;
  const uint32_t entry = any_entry(*table);
  if (dice.one_in(2)) return change_ttl(*table, entry);
  const std::string &name = table->row->name;
  ModelEntry *const found = table->by_handle(entry);
  const p4_pd_status_t known = !table->ageing     ? BF_NOT_READY
                               : found == nullptr ? BF_OBJECT_NOT_FOUND
                                                  : BF_SUCCESS;
  uint32_t read = 99;
  ASSERT_EQ(status_of("get_hit_state", name, with("entry", entry, "hit_state", &read)), known);
  if (known == BF_SUCCESS) {
    ASSERT_EQ(read, found->expired || found->idle ? 0u : 1u);
  }
  const uint32_t state = dice.below(3);
  const p4_pd_status_t expected = state == 2 ? p4_pd_status_t{BF_INVALID_ARGUMENT} : known;
  ASSERT_EQ(status_of("update_hit_state", name, with("entry", entry, "hit_state", state)),
            expected);
  if (expected != BF_SUCCESS) return;
  if (state == PIPE_ENTRY_ACTIVE) found->hit(model.now());
  if (state == PIPE_ENTRY_IDLE) found->idle = true;
}

void Beside::change_ttl(ModelTable &table, uint32_t entry) {
  ModelEntry *const found = table.by_handle(entry);
  uint32_t ttl = dice.one_in(4) ? 0 : dice.below(400), read = 99;
  const Given given = with("entry", entry, "ttl", ttl);
  const p4_pd_status_t expected =
      found == nullptr ? p4_pd_status_t{BF_OBJECT_NOT_FOUND} : table.admit(&ttl);
  ASSERT_EQ(status_of("set_ttl", table.row->name, given), expected);
  if (expected == BF_SUCCESS) {
    found->ttl = ttl;
    found->hit(model.now());
  }
  if (found == nullptr) return;
  ASSERT_EQ(status_of("get_ttl", table.row->name, with("entry", entry, "ttl", &read)), BF_SUCCESS);
  ASSERT_EQ(read, found->ttl);
}

// Entries that were idle for their time are heard of, the oldest expiry first in each table.
void Beside::advance_clock() {
  expired.clear();
  const uint64_t step = dice.one_in(9) ? dice() >> dice.below(32) : dice.below(40);
  note(fmt::format("soft_device_clock_advance({}, {})", device, step));
  ASSERT_EQ(soft_device_clock_advance(device, step), BF_SUCCESS);
  model.lead_ms += step;
  uint64_t now = 0;
  ASSERT_EQ(soft_device_clock_now(device, &now), BF_SUCCESS);
  ASSERT_EQ(now, model.now());
  for (ModelTable &table : model.tables) {
    std::vector<std::pair<uint64_t, uint32_t>> expected, reported;  // times and entries
    uint64_t looked = now;
    const bool notifies = table.ageing && table.ageing->mode == PIPE_IDLE_NOTIFY;
    const uint64_t interval = notifies ? table.ageing->sweep_interval_ms : 0;
    if (interval != 0) looked -= (looked - table.ageing_since_ms) % interval;
    for (ModelEntry &entry : table.entries) {
      if (!notifies || entry.ttl == 0 || entry.expired || entry.ends_ms() > looked) continue;
      entry.expired = true;
      if (!entry.idle) expected.emplace_back(entry.ends_ms(), entry.handle);
    }
    for (const auto &[of, entry] : expired) {
      const ModelEntry *held = of == table.row->handle ? table.by_handle(entry) : nullptr;
      if (held != nullptr) reported.emplace_back(held->ends_ms(), entry);
    }
    ASSERT_TRUE(std::ranges::is_sorted(reported, {}, [](auto &one) { return one.first; }));
    std::ranges::sort(expected);
    std::ranges::sort(reported);
    ASSERT_EQ(reported, expected);
  }
}

// ---- Cells that are no entry's ----

void Beside::change_counter_cell() {
  if (counters.empty()) return;
  const pdgen::Resource &counter = *dice.of(counters);
  const std::string &name = counter.name;
  const uint32_t index = dice.below(3), named = dice.one_in(3) ? kAll : dice.below(2);
  const Count more{dice.below(9), dice.below(99)};
  const p4_pd_counter_values_t value{more.packets, more.bytes};
  const uint32_t what = dice.below(4);
  Count sum, rest = more;  // what is set for all pipes is their sum
  const auto each = [&](auto change) {
    for (const uint32_t pipe : {0u, 1u}) {
      if (named != kAll && named != pipe) continue;
      change(model.counters[{counter.handle, pipe, index}]);
      sum.add(model.counters[{counter.handle, pipe, index}].software);
    }
  };
  if (what == 0 && named != kAll) {
    note(fmt::format("soft_counter_count({}, {}, {:#x}, {}, {}, {})", device, named, counter.handle,
                     index, more.packets, more.bytes));
    ASSERT_EQ(soft_counter_count(device, named, counter.handle, index, more.packets, more.bytes),
              BF_SUCCESS);
    each([&](CounterCell &cell) { cell.hardware.add(more); });
  } else if (what == 1) {
    ASSERT_EQ(status_of("counter_write", name, with("index", index, "values", &value), named),
              BF_SUCCESS);
    each([&](CounterCell &cell) { cell = {{}, std::exchange(rest, Count{})}; });
  } else if (what == 2) {
    p4_pd_counter_values_t read{};
    ASSERT_EQ(
        status_of("counter_read", name,
                  with("index", index, "flags", dice() | P4_PD_READ_FROM_HARDWARE, "values", &read),
                  named),
        BF_SUCCESS);
    each([](CounterCell &cell) { cell.synchronise(); });
    ASSERT_EQ((Count{read.packets, read.bytes}), sum);
  } else {
    ASSERT_EQ(status_of("counter_hw_sync", name, with("callback", 0, "cookie", 0), named),
              BF_SUCCESS);
    for (auto &[cell, held] : model.counters) {
      if (cell[0] == counter.handle && (named == kAll || named == cell[1])) held.synchronise();
    }
  }
}

void Beside::change_meter_cell() {
  if (meters.empty()) return;
  const pdgen::Resource &meter = *dice.of(meters);
  const uint32_t index = dice.below(3), named = dice.one_in(3) ? kAll : dice.below(2);
  if (dice.one_in(4)) {
    const auto bytes = static_cast<int32_t>(dice.below(200)) - 100;
    uint32_t read = 1;
    ASSERT_EQ(status_of("meter_bytecount_adjust_set", meter.name,
                        with("adjustment", static_cast<uint32_t>(bytes)), named),
              BF_SUCCESS);
    ASSERT_EQ(status_of("meter_bytecount_adjust_get", meter.name, with("adjustment", &read)),
              BF_SUCCESS);
    ASSERT_EQ(static_cast<int32_t>(read), bytes);
    model.adjustments[meter.handle] = bytes;
  } else if (dice.one_in(3)) {
    const p4_pd_bytes_meter_spec_t spec = small_meter(dice);
    ASSERT_EQ(status_of("meter_set", meter.name, with("index", index, "meter_spec", &spec), named),
              BF_SUCCESS);
    for (uint32_t pipe = 0; pipe < 2; ++pipe) {
      if (named == kAll || named == pipe) model.meters[{meter.handle, pipe, index}] = {spec};
    }
  } else {
    const uint32_t pipe = dice.below(2);
    const Count traffic{dice.below(3), dice.below(200)};
    uint8_t color = 99;
    note(fmt::format("soft_meter_mark({}, {}, {:#x}, {}, {}, {}, &color)", device, pipe,
                     meter.handle, index, traffic.packets, traffic.bytes));
    ASSERT_EQ(
        soft_meter_mark(device, pipe, meter.handle, index, traffic.packets, traffic.bytes, &color),
        BF_SUCCESS);
    const auto cell = model.meters.find({meter.handle, pipe, index});
    ASSERT_EQ(color, cell == model.meters.end()
                         ? uint8_t{SOFT_COLOR_GREEN}
                         : cell->second.mark(model.cost(meter, traffic), model.now()));
  }
}

// Runs change(index, cell) on the cells of the pipes that are named. The last one stands for all
// others.
template <class Change>
void Beside::each_cell(const pdgen::Resource &reg, uint32_t named, Change change) {
  for (uint32_t pipe = 0; pipe < 2; ++pipe) {
    for (uint32_t cell = 0; cell < 4; ++cell) {
      if (named == kAll || named == pipe) change(cell, model.registers[{reg.handle, pipe, cell}]);
    }
  }
}

void Beside::change_register() {
  if (registers.empty()) return;
  const pdgen::Resource &reg = *dice.of(registers);
  const uint32_t index = dice.below(3), named = dice.one_in(3) ? kAll : dice.below(2);
  const uint32_t what = dice.below(dice.one_in(9) ? 7 : 4), value = dice.one_in(3) ? 0 : dice();
  const auto kept = static_cast<uint32_t>(value & ((uint64_t{1} << reg.width) - 1));
  const uint32_t written = reg.width == 1 ? (value & 0xff) != 0 : kept;
  const char *const families[] = {"register_write", "register_range_reset", "register_hw_sync",
                                  "register_write_all", "register_reset_all"};
  if (what == 0) {
    note(fmt::format("soft_register_write({}, {}, {:#x}, {}, {:#x})", device, named, reg.handle,
                     first_cell + index, value));
    ASSERT_EQ(soft_register_write(device, named, reg.handle, first_cell + index, value),
              BF_SUCCESS);
  } else if (what == 2) {
    return read_register(reg, index, named);
  } else {
    const Given given =
        with("index", first_cell + index, "value", &value, "first", first_cell + index,
             "index_count", 3 - index, "callback", 0, "cookie", 0);
    ASSERT_EQ(status_of(families[what == 1 ? 0 : what - 2], reg.name, given, named), BF_SUCCESS);
  }
  each_cell(reg, named, [&](uint32_t cell, RegisterCell &held) {
    if (what == 0 && cell == index) held.hardware = kept;
    if ((what == 1 && cell == index) || what == 5) held = {written, written};
    if (what == 3 && cell >= index && cell < 3) held = {};
    if (what == 4) held.software = held.hardware;
    if (what == 6) held = {};
  });
}

// Values come by index and then by pipe, up to the end of the register.
void Beside::read_register(const pdgen::Resource &reg, uint32_t index, uint32_t named) {
  const uint32_t flags = dice();  // one bit says something
  uint32_t indexes = 0, count = 0;
  Bytes values(6 * sizeof(uint32_t), 0xee), expected[4], all;
  ASSERT_EQ(
      status_of("register_range_read", reg.name,
                with("first", first_cell + index, "index_count", 3 - index, "flags", flags,
                     "indexes_read", &indexes, "values", values.data(), "value_count", &count),
                named),
      BF_SUCCESS);
  each_cell(reg, named, [&](uint32_t cell, RegisterCell &held) {
    if (cell < index || cell == 3) return;
    if ((flags & P4_PD_READ_FROM_HARDWARE) != 0) held.software = held.hardware;
    for (unsigned i = 0; i < std::max(8u, reg.width); i += 8) {
      expected[cell].push_back(static_cast<uint8_t>(held.software >> i));
    }
  });
  for (const Bytes &one : expected) all.insert(all.end(), one.begin(), one.end());
  ASSERT_EQ(indexes, 3 - index);
  ASSERT_EQ(count, (3 - index) * (named == kAll ? 2 : 1));
  all.resize(values.size(), 0xee);
  ASSERT_EQ(values, all);
}

// The next cell whose hardware differs from those that no call meets.
void Beside::compare_register(const pdgen::Resource &reg) {
  constexpr uint32_t kOthers = 3;
  uint32_t expected = kOthers, found = kOthers + first_cell;
  for (uint32_t pipe = 0; pipe < 2; ++pipe) {
    const auto value = [&](uint32_t cell) {
      return model.registers[{reg.handle, pipe, cell}].hardware;
    };
    for (uint32_t cell = 0; cell < expected; ++cell) {
      if (value(cell) != value(kOthers)) expected = cell;
    }
  }
  ASSERT_EQ(soft_next_cell(device, reg.handle, first_cell, &found),
            expected == kOthers ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  ASSERT_EQ(found, first_cell + expected);
}

void Beside::compare_cells() {
  for (const pdgen::Resource *reg : registers) compare_register(*reg);
  for (const pdgen::Resource *counter : counters) {
    for (uint32_t index = 0; index < 4; ++index) {
      Count sum;
      for (const uint32_t pipe : {0u, 1u, kAll}) {
        p4_pd_counter_values_t read{};
        ASSERT_EQ(
            status_of("counter_read", counter->name,
                      with("index", index, "flags", ~P4_PD_READ_FROM_HARDWARE, "values", &read),
                      pipe),
            BF_SUCCESS);
        const auto at = model.counters.find({counter->handle, pipe, index});
        const Count one = pipe == kAll                 ? sum
                          : at == model.counters.end() ? Count{}
                                                       : at->second.software;
        ASSERT_EQ((Count{read.packets, read.bytes}), one);
        sum.add(one);
      }
    }
  }
  for (const pdgen::Resource *meter : meters) {
    for (uint32_t index = 0; index < 4; ++index) {
      for (const uint32_t pipe : {0u, 1u}) {
        p4_pd_bytes_meter_spec_t read{}, none{};
        none.meter_type = read.meter_type;
        ASSERT_EQ(
            status_of("meter_read", meter->name, with("index", index, "meter_spec", &read), pipe),
            BF_SUCCESS);
        const auto at = model.meters.find({meter->handle, pipe, index});
        const auto &held = at == model.meters.end() ? none : at->second.spec;
        ASSERT_EQ(std::memcmp(&read, &held, 4 * sizeof(uint32_t)), 0);
      }
    }
  }
}

}  // namespace pd_test
