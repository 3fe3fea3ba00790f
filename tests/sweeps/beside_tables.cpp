// Entries and default entries beside those of the model.
#include "beside.hpp"
#include "soft_sdk.h"

namespace pd_test {

using pdgen::Operation;

bool Beside::has_actions(const ModelTable &table, Operation operation) {
  return table.row->indirect() || std::ranges::any_of(table.row->pairs, [=](auto &pair) {
           return is_sent(pair, operation);
         });
}

uint32_t Beside::any_entry(const ModelTable &table) {
  if (table.entries.empty() || dice.one_in(20)) return dice.of(gone);
  return dice.of(table.entries).handle;
}

std::pair<uint32_t, ModelEntry *> Beside::any_of_all(ModelTable &table) {
  const uint32_t asked = any_entry(table);
  ModelEntry *const standing = table.default_in(dice.below(2));
  if (standing != nullptr && dice.one_in(4)) return {standing->handle, standing};
  return {asked, table.by_handle(asked)};
}

ModelEntry Beside::random_key(const ModelTable &table) {
  ModelEntry made;
  made.key = &dice.of(keys[table.row]);
  made.priority = table.row->has_priority() ? dice.below(4) : made.key->image.priority;
  made.pipe = table.stored_pipe(dice.one_in(4) ? dice.below(2) : kAll);
  return made;
}

Bytes Beside::random_packet(const ModelTable &table) {
  if (!table.row->keyed()) return {};
  Bytes packet = *random_key(table).key->image.value;
  if (!table.entries.empty() && dice.below(3) != 0) packet = dice.of(table.entries).value();
  if (dice.one_in(4)) dice.of(packet) ^= static_cast<uint8_t>(1u << dice.below(8));
  return packet;
}

Wanted Beside::random_reference(const ModelTable &table) {
  const ModelProfile &profile = model.profile_of(table);
  Wanted wanted;
  if (dice.one_in(2)) {
    const uint32_t group = any_of(profile.groups);
    const auto held = profile.groups.find(group);
    wanted.image.type = PIPE_ACTION_GROUP;
    wanted.image.group = group;
    wanted.action = held == profile.groups.end() ? 0 : held->second.action;
  } else {
    const uint32_t member = any_of(profile.members);
    const auto held = profile.members.find(member);
    wanted.image.type = PIPE_ACTION_MEMBER;
    wanted.image.member = member;
    wanted.action = held == profile.members.end() ? 0 : held->second.pair->handle;
  }
  if (wanted.action == 0) wanted.refusal = BF_OBJECT_NOT_FOUND;
  return wanted;
}

Wanted Beside::random_action(const ModelTable &table, Operation operation, const Deed *deed) {
  if (table.row->indirect()) return random_reference(table);
  static constexpr p4_pd_bytes_meter_spec_t kMeters[] = {{1, 1, 2, 2, PD_METER_TYPE_COLOR_UNAWARE},
                                                         {0, 3, 9, 5, PD_METER_TYPE_COLOR_UNAWARE},
                                                         {7, 0, 3, 1, PD_METER_TYPE_COLOR_UNAWARE},
                                                         {1, 1, 2, 2, PD_METER_TYPE_COLOR_AWARE},
                                                         {1, 1, 2, 2, 2}};
  Wanted wanted;
  const bool asked = deed != nullptr;  // and not to be refused
  while (deed == nullptr || !is_sent(*deed->pair, operation)) deed = &dice.of(deeds[table.row]);
  wanted.pair = deed->pair;
  wanted.record = deed->record;
  wanted.action = deed->pair->handle;
  wanted.image = deed->images[static_cast<size_t>(operation)];
  if (deed->pair->takes_meter_spec(operation)) {
    wanted.meter = &kMeters[dice.below(!asked && dice.one_in(20) ? 5 : 3)];
    if (!asked && dice.one_in(6)) wanted.meter = nullptr;
    wanted.image = action_image(*wanted.pair, operation, wanted.record.data(), wanted.meter);
    if (wanted.meter == nullptr && operation == Operation::kAdd) {
      wanted.refusal = P4_PD_METER_SPEC_MISSING;
    }
    if (wanted.meter != nullptr && wanted.meter->meter_type != PD_METER_TYPE_COLOR_UNAWARE) {
      wanted.refusal = P4_PD_METER_TYPE_REFUSED;
    }
  }
  for (const bindings::Field &field : record_of(*wanted.pair->action).field_list()) {
    if (asked || field.cells.empty() || !dice.one_in(40)) continue;
    const uint32_t cell = SOFT_COUNTER_CELLS;
    std::memcpy(&wanted.record[field.parts[0]->offset], &cell, field.parts[0]->storage);
    wanted.image = action_image(*wanted.pair, operation, wanted.record.data(), wanted.meter);
  }
  return wanted;
}

uint64_t Beside::call_for(const ModelTable &table, const Wanted &wanted, std::string_view direct,
                          std::string indirect, Given others, uint32_t pipe) {
  const Given given = with("action_spec", wanted.record.data(), "meter_spec", wanted.meter,
                           "member", wanted.image.member, "group", wanted.image.group);
  others.insert(others.end(), given.begin(), given.end());
  if (wanted.pair != nullptr) {
    return call(direct, table.row->name, wanted.pair->action->name, std::move(others), pipe);
  }
  if (wanted.image.type == PIPE_ACTION_GROUP) {
    const size_t at = indirect.find("_by_match_spec");
    indirect.insert(std::min(at, indirect.size()), "_with_selector");
  }
  return call(indirect, table.row->name, "", std::move(others), pipe);
}

// ---- Steps ----

void Beside::add_entry() {
  ModelTable *const chosen = any_table([&](const ModelTable &table) {
    return table.row->keyed() && has_actions(table, Operation::kAdd);
  });
  if (chosen != nullptr) add_to(*chosen);
}

void Beside::add_to(ModelTable &table, const Deed *deed) {
  ModelEntry entry = random_key(table);
  const Wanted wanted = random_action(table, Operation::kAdd, deed);
  p4_pd_status_t expected = wanted.refusal != 0 ? wanted.refusal : table.apply(wanted, &entry);
  const uint32_t asked = dice.one_in(4) ? 0 : dice() >> dice.below(32);
  entry.ttl = table.row->idle_time ? asked : 0;
  const bool there = table.checks != 0 && table.by_key(entry) != nullptr;
  if (expected == BF_SUCCESS) {
    expected = table.admit(&entry.ttl) != BF_SUCCESS ? p4_pd_status_t{BF_INVALID_ARGUMENT}
               : there                               ? p4_pd_status_t{BF_ALREADY_EXISTS}
               : table.capacity != 0 && table.entries.size() >= table.capacity
                   ? p4_pd_status_t{BF_TABLE_FULL}
                   : p4_pd_status_t{BF_SUCCESS};
  }
  entry.handle = 0xabcd;
  ASSERT_EQ(call_for(table, wanted, "table_add", "add_entry",
                     with("match_spec", entry.key->record.data(), "priority", entry.priority, "ttl",
                          asked, "entry", &entry.handle),
                     table.scope == 0 ? dice.below(2) : entry.pipe),
            expected);
  expect_update(expected, {table.row->handle, PIPE_UPDATE_ADD, entry.handle, 0});
  if (expected != BF_SUCCESS) return;
  ASSERT_EQ(table.by_handle(entry.handle), nullptr);
  entry.hit_ms = model.now();
  table.entries.push_back(entry);
}

// By handle or by key; default entries by handle, too.
void Beside::change_entry() {
  ModelTable *const chosen = any_table([&](const ModelTable &table) {
    return table.row->keyed() && has_actions(table, Operation::kModify);
  });
  if (chosen == nullptr) return;
  ModelTable &table = *chosen;
  const Wanted wanted = random_action(table, Operation::kModify);
  const bool by_key = dice.one_in(2);
  auto [handle, found] = any_of_all(table);
  ModelEntry key = random_key(table);
  if (by_key) {
    if (found != nullptr && found->key != nullptr) key = *found;
    found = table.by_key(key);
    handle = found == nullptr ? 0 : found->handle;
  }
  p4_pd_status_t expected = wanted.refusal;
  ModelEntry changed;
  if (expected == BF_SUCCESS && found == nullptr) expected = BF_OBJECT_NOT_FOUND;
  if (expected == BF_SUCCESS) {
    changed = *found;
    std::erase_if(changed.resources, [&](auto &held) { return !table.stays(held.first); });
    expected = table.apply(wanted, &changed);
    const bool is_default = found->key == nullptr && wanted.pair != nullptr;
    if (is_default && !wanted.pair->as_default) expected = BF_INVALID_ARGUMENT;
  }
  const Given given =
      with("entry", handle, "match_spec", key.key->record.data(), "priority", key.priority);
  ASSERT_EQ(by_key ? call_for(table, wanted, "table_modify_by_match_spec",
                              "modify_entry_by_match_spec", given, key.pipe)
                   : call_for(table, wanted, "table_modify", "modify_entry", given),
            expected);
  expect_update(expected, {table.row->handle, PIPE_UPDATE_MODIFY, handle, 0});
  if (expected == BF_SUCCESS) *found = changed;
}

void Beside::remove_entry() {
  ModelTable *const chosen = any_table([](const ModelTable &table) { return table.row->keyed(); });
  if (chosen == nullptr) return;
  ModelTable &table = *chosen;
  ModelEntry *found = table.by_handle(any_entry(table));
  const ModelEntry key = found == nullptr || dice.one_in(5) ? random_key(table) : *found;
  remove(table, found, key, dice.one_in(2));
}

void Beside::remove(ModelTable &table, ModelEntry *found, const ModelEntry &key, bool by_key) {
  if (by_key) found = table.by_key(key);
  const uint32_t entry = found == nullptr ? 0xfffffff : found->handle;
  const p4_pd_status_t expected = found == nullptr ? BF_OBJECT_NOT_FOUND : BF_SUCCESS;
  ASSERT_EQ(status_of(by_key ? "table_delete_by_match_spec" : "table_delete", table.row->name,
                      with("match_spec", key.key->record.data(), "priority", key.priority, "entry",
                           entry),
                      key.pipe),
            expected);
  expect_update(expected, {table.row->handle, PIPE_UPDATE_DELETE, entry, 0});
  if (found == nullptr) return;
  gone.push_back(entry);
  table.entries.erase(table.entries.begin() + (found - table.entries.data()));
}

void Beside::find_entry() {
  ModelTable *const table = any_table([](const ModelTable &one) { return one.row->keyed(); });
  if (table == nullptr) return;
  ModelEntry key = random_key(*table);
  if (!table->entries.empty() && dice.one_in(2)) key = dice.of(table->entries);
  const ModelEntry *found = table->by_key(key);
  uint32_t entry = 0xabcd;
  ASSERT_EQ(status_of("match_spec_to_entry_hdl", table->row->name,
                      with("match_spec", key.key->record.data(), "priority", key.priority, "entry",
                           &entry),
                      key.pipe),
            found == nullptr ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  ASSERT_EQ(entry, found == nullptr ? 0xabcd : found->handle);
}

// One that the program declares has a handle that the device chooses.
void Beside::learn_default(ModelTable &table, uint32_t pipe) {
  auto &place = table.defaults[table.default_index(pipe)];
  if (!place) return;
  ASSERT_EQ(status_of("table_get_default_entry_handle", table.row->name,
                      with("entry", &place->handle), pipe),
            BF_SUCCESS);
}

void Beside::change_default() {
  ModelTable &table = dice.of(model.tables);
  const uint32_t pipe = dice.one_in(3) ? kAll : dice.below(2);
  auto &place = table.defaults[table.default_index(pipe)];
  if (dice.one_in(3)) {
    ASSERT_EQ(status_of("table_reset_default_entry", table.row->name, {}, pipe), BF_SUCCESS);
    place = table.declared_default();
    learn_default(table, pipe);
    ASSERT_EQ(heard.size(), 1u);
    const uint32_t entry = place ? place->handle : heard[0].handle;
    expect_update(BF_SUCCESS, {table.row->handle, PIPE_UPDATE_RESET_DEFAULT, entry, 0});
    return;
  }
  if (has_actions(table, Operation::kDefault)) set_default(table, pipe);
}

void Beside::set_default(ModelTable &table, uint32_t pipe, const Deed *deed) {
  auto &place = table.defaults[table.default_index(pipe)];
  const Wanted wanted = random_action(table, Operation::kDefault, deed);
  ModelEntry changed = place.value_or(ModelEntry{});
  changed.resources.clear();
  const p4_pd_status_t expected =
      wanted.refusal != 0 ? wanted.refusal : table.apply(wanted, &changed);
  uint32_t entry = 0xabcd;
  ASSERT_EQ(call_for(table, wanted, "set_default_action", "set_default_entry",
                     with("entry", &entry), pipe),
            expected);
  expect_update(expected, {table.row->handle, PIPE_UPDATE_SET_DEFAULT, entry, 0});
  if (expected != BF_SUCCESS) return;
  ASSERT_TRUE(!place || place->handle == entry);
  place = changed;
  place->handle = entry;
}

void Beside::change_property() {
  const uint32_t property = shows_all ? uint32_t{PIPE_TABLE_CAPACITY} : 1 + dice.below(4);
  set_property(dice.of(model.tables), property);
}

void Beside::set_property(ModelTable &table, uint32_t property) {
  uint32_t value = dice.one_in(9) ? 2 : dice.below(2);
  p4_pd_status_t expected = property == 4 ? BF_INVALID_ARGUMENT : BF_SUCCESS;
  if (property == PIPE_TABLE_CAPACITY) {
    const auto entries = static_cast<uint32_t>(table.entries.size());
    value = dice.one_in(2) ? 0 : dice.below(2 * entries + 9) + (shows_all ? entries : 0);
    table.capacity = value;
  } else if (value == 2) {
    expected = BF_INVALID_ARGUMENT;
  } else if (property == PIPE_TABLE_DUPLICATE_CHECK) {
    table.checks = value;
  } else if (property == PIPE_TABLE_ENTRY_SCOPE && value != table.scope) {
    if (!table.entries.empty()) expected = BF_IN_USE;
    if (table.entries.empty()) {
      table.scope = value;
      table.defaults[1].reset();
      table.defaults[2].reset();
    }
  }
  ASSERT_EQ(status_of("set_property", table.row->name,
                      with("property", property, "value", value, "argument", 0)),
            expected);
}

// ---- Comparison ----

void Beside::compare_read(const ModelTable &table, const ModelEntry &entry, const Read &read) {
  const bool has_key = entry.key != nullptr;
  ASSERT_EQ(read.match_spec, has_key ? entry.key->kept : Bytes(read.match_spec.size(), 0xee));
  ASSERT_EQ(read.priority, !read.reports("priority") ? kUnset : has_key ? entry.priority : 0);
  ASSERT_EQ(read.no_key, !read.reports("no_key") ? 0xee : has_key ? 0 : 1);
  if (table.row->indirect()) {
    const bool is_group = entry.type == PIPE_ACTION_GROUP;
    ASSERT_EQ(read.has_group, is_group ? 1 : 0);
    ASSERT_EQ(read.has_member, is_group ? 0 : 1);
    ASSERT_EQ(is_group ? read.group : read.member, entry.reference);
    ASSERT_EQ(is_group ? read.member : read.group, kUnset);
    return;
  }
  Bytes specs(read.action_specs.size(), 0xee);
  std::memcpy(specs.data(), &entry.action->value, sizeof entry.action->value);
  if (entry.action->has_params()) {
    std::ranges::copy(entry.kept(), &specs[binding().sizes.action_spec]);
  }
  ASSERT_EQ(read.action_specs, specs);
  if (!read.reports("action_name")) return;
  ASSERT_EQ(reinterpret_cast<const char *>(read.action_name.data()), prefix() + entry.action->name);
}

void Beside::compare_entry(const ModelTable &table, const ModelEntry &entry) {
  const std::string get = table.row->indirect() ? "get_indirect_entry" : "get_entry";
  const std::string &name = table.row->name;
  compare_read(table, entry,
               Read(*find_export(get, name), table.row,
                    with("device", device, "entry", entry.handle, "read_from_hardware", 1)));
  compare_stateful(table, entry);
}

void Beside::compare_stateful(const ModelTable &table, const ModelEntry &entry) {
  const auto attached = [&](const pdgen::Resource &resource) {
    return entry.resources.contains(resource.handle) ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
  };
  if (table.counter != nullptr) {
    p4_pd_counter_values_t read{};
    ASSERT_EQ(status_of("counter_read", table.counter->name,
                        with("entry", entry.handle, "flags", 0, "values", &read)),
              attached(*table.counter));
    if (attached(*table.counter) == BF_SUCCESS) {
      ASSERT_EQ((Count{read.packets, read.bytes}), entry.counter.software);
    }
  }
  if (table.meter == nullptr) return;
  p4_pd_bytes_meter_spec_t read{};
  ASSERT_EQ(
      status_of("meter_read", table.meter->name, with("entry", entry.handle, "meter_spec", &read)),
      attached(*table.meter));
  if (attached(*table.meter) == BF_SUCCESS) {
    ASSERT_EQ(std::memcmp(&read, &entry.meter.spec, sizeof read), 0);
  }
}

Words Beside::walk(const std::string &object, const std::string &what, uint32_t pipe,
                   const std::string &of, const Given &where) {
  const bool is_entry = what == "entry";
  const std::string many = is_entry ? "entries" : what + "s";
  const std::string first = of + "get_first_" + what + (is_entry ? "_handle" : "");
  const std::string next = of + "get_next_" + (is_entry ? "entry_handles" : many);
  Words all, step(1);
  const auto go = [&](const std::string &family, Given given) {
    given.insert(given.end(), where.begin(), where.end());
    return status_of(family, object, std::move(given), pipe);
  };
  p4_pd_status_t status = go(first, with(what, step.data()));
  if (status != BF_SUCCESS) step = {kNone};
  while (status == BF_SUCCESS) {
    std::ranges::copy_if(step, std::back_inserter(all), [](uint32_t one) { return one != kNone; });
    if (step.back() == kNone) break;
    step.assign(1 + all.size() % 4, 0);
    status =
        go(next, with(what, all.back(), "count", step.size(), std::string_view(many), step.data()));
  }
  EXPECT_TRUE(status == BF_SUCCESS || status == BF_OBJECT_NOT_FOUND);
  std::ranges::sort(all);
  return all;
}

void Beside::compare_defaults(ModelTable &table, uint32_t pipe) {
  ModelEntry *const standing = table.default_in(pipe);
  uint32_t entry = 0;
  ASSERT_EQ(
      status_of("table_get_default_entry_handle", table.row->name, with("entry", &entry), pipe),
      standing == nullptr ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  if (standing == nullptr) return;
  ASSERT_EQ(entry, standing->handle);
  compare_entry(table, *standing);
  target = {device, static_cast<uint16_t>(pipe)};
  const Read read(*find_export("table_get_default_entry", table.row->name), table.row,
                  with("target", &target));
  compare_read(table, *standing, read);
}

// Those that there are, and one that is refused.
void Beside::compare_properties(const ModelTable &table) {
  const uint32_t held[] = {table.scope, table.checks, table.capacity, 0xffffffff};
  for (uint32_t property = PIPE_TABLE_ENTRY_SCOPE; property <= PIPE_TABLE_CAPACITY + 1;
       ++property) {
    uint32_t read = 99, argument = 99;
    const bool known = property <= PIPE_TABLE_CAPACITY;
    ASSERT_EQ(status_of("get_property", table.row->name,
                        with("property", property, "value", &read, "argument", &argument)),
              known ? BF_SUCCESS : BF_INVALID_ARGUMENT);
    ASSERT_EQ(read, held[property - 1]);
    ASSERT_EQ(argument, known ? 0 : 0xffffffff);
  }
}

void Beside::compare_tables() {
  for (ModelTable &table : model.tables) {
    SCOPED_TRACE(table.row->name);
    compare_properties(table);
    for (const ModelEntry &entry : table.entries) compare_entry(table, entry);
    for (const uint32_t pipe : {0u, 1u, kAll}) {
      Words expected;
      for (const ModelEntry &entry : table.entries) {
        if (entry.is_in(table.stored_pipe(pipe))) expected.push_back(entry.handle);
      }
      std::ranges::sort(expected);
      ASSERT_EQ(walk(table.row->name, "entry", pipe), expected);
      uint32_t count = 99;
      ASSERT_EQ(status_of("get_entry_count", table.row->name, with("count", &count), pipe),
                BF_SUCCESS);
      ASSERT_EQ(count, expected.size());
      compare_defaults(table, pipe);
    }
  }
}

}  // namespace pd_test
