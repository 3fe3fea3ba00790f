// Entries and default entries beside those of the model.
#include "model_calls.hpp"

namespace soft_test {

ModelTable &Beside::any_table() {
  static const Words handles{kHost, kAcl, kAcl, kRoute, kRoute, kTunnel, kLag, kLag, kBridge};
  return model.tables[random.of(handles)];
}

uint32_t Beside::any_entry(const ModelTable &table) {
  if (table.entries.empty() || random.one_in(20)) return random.of(gone);
  return random.of(table.entries).handle;
}

// Few distinct bytes and masks, so that keys meet often.
ModelEntry Beside::random_key(const ModelTable &table) {
  ModelEntry key;
  if (table.description->key_bytes == 0) return key;
  key.value.assign(table.description->key_bytes, 0x11);
  key.mask.assign(key.value.size(), 0xff);
  key.value.back() = static_cast<uint8_t>(random.below(40));
  key.value.front() ^= static_cast<uint8_t>(random.below(2) << 7);
  key.pipe = table.stored_pipe(random.one_in(4) ? random.below(2) : kAll);
  if (table.is_exact()) return key;
  if (table.description->match == SOFT_LPM) {
    key.priority = random.below(9);
    key.mask.back() = static_cast<uint8_t>(0xff << key.priority);
    return key;
  }
  key.priority = random.below(4);
  key.mask.back() = static_cast<uint8_t>(random.below(2) * 0x0f | random.below(2) * 0xf0);
  key.mask.front() = static_cast<uint8_t>(random.below(4) * 0x55);
  return key;
}

// With a byte behind it that is not of the key.
Bytes Beside::random_packet(const ModelTable &table) {
  Bytes packet = random_key(table).value;
  if (!table.entries.empty() && random.below(3) != 0) packet = random.of(table.entries).value;
  packet.push_back(static_cast<uint8_t>(random()));
  return packet;
}

// An exact table does not look at mask and priority.
pipe_mgr_match_spec_t Beside::record_of(const ModelTable &table, ModelEntry *key) {
  static const uint8_t any_mask[10] = {1, 2, 3, 4, 5};
  const bool odd = table.is_exact() && random.one_in(3);
  return {0,
          table.description->key_bits,
          table.description->key_bytes,
          key->value.data(),
          odd ? const_cast<uint8_t *>(any_mask) : key->mask.data(),
          {},
          odd ? 7 : key->priority};
}

void Beside::add_random_resources(const ModelTable &table, Wanted *wanted) {
  static const Words handles{kHostCount, kHostCount,    kRuleCount,   kRuleCount,
                             kAclMeter,  kAclMeter,     kAclCount,    kPoliceMeter,
                             kFlowMeter, kByteRegister, kWordRegister};
  while (random.one_in(2) && wanted->resources.size() < PIPE_RESOURCES_PER_ACTION) {
    pipe_mgr_resource_t &resource = wanted->resources.emplace_back();
    resource.handle = random.of(handles);
    const bool direct = table.is_direct(resource.handle);
    // One that belongs to another table only now and then.
    const bool foreign = !direct && (resource.handle == kHostCount ||
                                     resource.handle == kAclMeter || resource.handle == kRuleCount);
    if (foreign && !random.one_in(9)) {
      wanted->resources.pop_back();
      continue;
    }
    resource.tag = random.below(random.one_in(20) ? 4 : 3);
    resource.index = direct ? 0 : random.below(3);
    if (random.one_in(40)) resource.index = SOFT_COUNTER_CELLS;
    if (random.one_in(40)) resource.handle = 0x04000099;
    if (resource.handle == kAclMeter) {
      const uint32_t unit = random.one_in(20) ? PIPE_RATE_PACKETS : PIPE_RATE_BYTES;
      resource.data.meter = meter_spec(unit, random.below(3), 1, random.below(3), 2);
    } else {
      resource.data.counter = {random.below(100), random.below(10)};
    }
  }
}

Wanted Beside::random_action(ModelTable &table) {
  Wanted wanted;
  const auto actions = table.actions();
  const soft_action_t &action = *random.of(actions);
  wanted.action = random.one_in(30) ? 0x20000099 : action.handle;
  if (table.members == 0) {
    wanted.data.resize(action.data_bytes + (random.one_in(30) ? 1u : 0u));
    for (uint8_t &byte : wanted.data) byte = static_cast<uint8_t>(random());
  } else if (random.one_in(2)) {
    wanted.type = PIPE_ACTION_GROUP;
    wanted.reference = any_group();
  } else {
    wanted.type = PIPE_ACTION_MEMBER;
    wanted.reference = any_member(table.members);
  }
  if (random.one_in(40)) wanted.type = PIPE_ACTION_DATA + PIPE_ACTION_MEMBER - wanted.type % 3;
  add_random_resources(table, &wanted);
  wanted.spec.type = wanted.type;
  wanted.spec.data = {action.data_bits, static_cast<uint16_t>(wanted.data.size()),
                      wanted.data.data()};
  (wanted.type == PIPE_ACTION_GROUP ? wanted.spec.group : wanted.spec.member) = wanted.reference;
  std::ranges::copy(wanted.resources, wanted.spec.resources);
  wanted.spec.resource_count = static_cast<uint32_t>(wanted.resources.size());
  return wanted;
}

bf_status_t Beside::apply(ModelTable &table, const Wanted &wanted, ModelEntry *entry) {
  const auto actions = table.actions();
  const auto named = std::ranges::find(actions, wanted.action, &soft_action_t::handle);
  if (named == actions.end()) return BF_FOREIGN_ACTION;
  const bool to_group = wanted.type == PIPE_ACTION_GROUP;
  if (table.members == 0) {
    if (wanted.type != PIPE_ACTION_DATA) return BF_INVALID_ARGUMENT;
    const auto &data = wanted.spec.data;
    if (data.byte_count != (*named)->data_bytes || data.valid_bit_count != (*named)->data_bits) {
      return BF_WRONG_LENGTH;
    }
  } else if (wanted.type == PIPE_ACTION_DATA || (to_group && table.selector == 0)) {
    return BF_INVALID_ARGUMENT;
  }
  if (const bf_status_t status = table.apply(wanted.resources, entry); status != BF_SUCCESS) {
    return status;
  }
  entry->action = wanted.action;
  entry->type = wanted.type;
  entry->data = wanted.data;
  entry->reference = wanted.reference;
  const bool there = wanted.type == PIPE_ACTION_DATA ||
                     (to_group ? model.groups.contains(wanted.reference)
                               : model.profiles[table.members].contains(wanted.reference));
  return there ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
}

bf_status_t Beside::apply_keyed(ModelTable &table, const Wanted &wanted, ModelEntry *entry) {
  const bf_status_t status = apply(table, wanted, entry);
  for (const soft_action_t *action : table.actions()) {
    if (status == BF_SUCCESS && action->handle == wanted.action && action->default_only) {
      return BF_INVALID_ARGUMENT;
    }
  }
  return status;
}

void Beside::add_entry() {
  ModelTable &table = any_table();
  ModelEntry entry = random_key(table);
  const Wanted wanted = random_action(table);
  bf_status_t expected = apply_keyed(table, wanted, &entry);
  entry.ttl = random.one_in(4) ? 0 : random() >> random.below(32);
  const uint32_t asked = entry.ttl;
  const bool there = table.checks != 0 && table.by_key(entry) != nullptr;
  const bool refused = expected != BF_SUCCESS && expected != BF_OBJECT_NOT_FOUND;
  if (!refused && table.admit(&entry.ttl) != BF_SUCCESS) {
    expected = BF_INVALID_ARGUMENT;
  } else if (!refused && table.capacity != 0 && table.entries.size() >= table.capacity) {
    expected = there ? BF_ALREADY_EXISTS : BF_TABLE_FULL;
  } else if (expected == BF_SUCCESS && there) {
    expected = BF_ALREADY_EXISTS;
  }
  entry.handle = 0xabcd;
  const auto key = record_of(table, &entry);
  const uint32_t handle = table.description->handle;
  ASSERT_EQ(
      pipe_mgr_mat_ent_add(session, device, table.scope == 0 ? random.below(2) : entry.pipe, handle,
                           &key, wanted.action, &wanted.spec, asked, 0, &entry.handle),
      expected);
  expect_update(expected, {handle, PIPE_UPDATE_ADD, entry.handle, 0});
  if (expected != BF_SUCCESS) return;
  ASSERT_EQ(table.by_handle(entry.handle), nullptr);
  entry.hit_ms = model.now();
  if (!table.description->ages_entries) entry.ttl = 0;
  table.entries.push_back(entry);
}

// By handle or by key; default entries by handle, too.
void Beside::change_entry() {
  ModelTable &table = any_table();
  const uint32_t handle = table.description->handle;
  const Wanted wanted = random_action(table);
  ModelEntry key = random_key(table);
  const uint32_t asked = any_entry(table);
  ModelEntry *found = table.by_handle(asked);
  if (found != nullptr && random.one_in(2)) key = *found;
  const bool by_key = random.one_in(2);
  ModelEntry *standing = table.default_in(random.below(2));
  if (by_key) found = table.by_key(key);
  if (!by_key && standing != nullptr && random.one_in(3)) found = standing;
  const uint32_t entry = found == nullptr ? asked : found->handle;
  bf_status_t expected = BF_OBJECT_NOT_FOUND;
  ModelEntry changed;
  if (found != nullptr) {
    changed = *found;
    std::erase_if(changed.resources, [&](auto &held) { return !table.is_direct(held.first); });
    expected =
        found == standing ? apply(table, wanted, &changed) : apply_keyed(table, wanted, &changed);
  }
  const auto record = record_of(table, &key);
  const bf_status_t status =
      by_key ? pipe_mgr_mat_ent_set_action_by_match_spec(session, device, key.pipe, handle, &record,
                                                         wanted.action, &wanted.spec, 0)
             : pipe_mgr_mat_ent_set_action(session, device, handle, entry == 0 ? 0xfffffff : entry,
                                           wanted.action, &wanted.spec, 0);
  ASSERT_EQ(status, expected);
  expect_update(expected, {handle, PIPE_UPDATE_MODIFY, entry, 0});
  if (expected == BF_SUCCESS) *found = changed;
}

void Beside::change_resources() {
  ModelTable &table = any_table();
  Wanted wanted;
  add_random_resources(table, &wanted);
  uint32_t entry = any_entry(table);
  ModelEntry *found = table.by_handle(entry);
  ModelEntry *standing = table.default_in(random.below(2));
  if (standing != nullptr && random.one_in(4)) found = standing;
  if (found != nullptr) entry = found->handle;
  ModelEntry changed = found == nullptr ? ModelEntry{} : *found;
  const bf_status_t expected =
      found == nullptr ? bf_status_t{BF_OBJECT_NOT_FOUND} : table.apply(wanted.resources, &changed);
  const uint32_t handle = table.description->handle;
  ASSERT_EQ(pipe_mgr_mat_ent_set_resource(session, device, handle, entry, wanted.resources.data(),
                                          static_cast<uint32_t>(wanted.resources.size()), 0),
            expected);
  expect_update(expected, {handle, PIPE_UPDATE_MODIFY, entry, 0});
  if (expected == BF_SUCCESS) *found = changed;
}

void Beside::remove_entry() {
  ModelTable &table = any_table();
  const uint32_t handle = table.description->handle;
  ModelEntry *found = table.by_handle(any_entry(table));
  ModelEntry key = found == nullptr || random.one_in(5) ? random_key(table) : *found;
  const bool by_key = random.one_in(2);
  if (by_key) found = table.by_key(key);
  const uint32_t entry = found == nullptr ? 0xfffffff : found->handle;
  const auto record = record_of(table, &key);
  const bf_status_t expected = found == nullptr ? BF_OBJECT_NOT_FOUND : BF_SUCCESS;
  ASSERT_EQ(by_key
                ? pipe_mgr_mat_ent_del_by_match_spec(session, device, key.pipe, handle, &record, 0)
                : pipe_mgr_mat_ent_del(session, device, handle, entry, 0),
            expected);
  expect_update(expected, {handle, PIPE_UPDATE_DELETE, entry, 0});
  if (found == nullptr) return;
  gone.push_back(entry);
  table.entries.erase(table.entries.begin() + (found - table.entries.data()));
}

void Beside::find_entry() {
  ModelTable &table = any_table();
  ModelEntry key = random_key(table);
  if (!table.entries.empty() && random.one_in(2)) key = random.of(table.entries);
  const ModelEntry *found = table.by_key(key);
  const auto record = record_of(table, &key);
  uint32_t entry = 0xabcd;
  ASSERT_EQ(pipe_mgr_match_spec_to_ent_hdl(session, device, key.pipe, table.description->handle,
                                           &record, &entry),
            found == nullptr ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  ASSERT_EQ(entry, found == nullptr ? 0xabcd : found->handle);
}

void Beside::change_default() {
  ModelTable &table = random.one_in(3) ? model.tables[kEncap] : any_table();
  const uint32_t handle = table.description->handle;
  const uint32_t pipe = random.one_in(3) ? kAll : random.below(2);
  auto &place = table.defaults[table.default_index(pipe)];
  uint32_t entry = 0xabcd;
  if (random.one_in(3)) {
    OK(pipe_mgr_mat_tbl_default_entry_reset(session, device, pipe, handle, 0));
    place = table.declared_default();
    if (place) {
      OK(pipe_mgr_table_get_default_entry_handle(session, device, pipe, handle, &entry));
      place->handle = entry;
    }
    ASSERT_EQ(heard.size(), 1u);
    if (!place) entry = heard[0].handle;
    expect_update(BF_SUCCESS, {handle, PIPE_UPDATE_RESET_DEFAULT, entry, 0});
    return;
  }
  const Wanted wanted = random_action(table);
  ModelEntry changed = place.value_or(ModelEntry{});
  changed.resources.clear();
  bf_status_t expected = apply(table, wanted, &changed);
  for (const soft_action_t *action : table.actions()) {
    const bool refused = action->handle == wanted.action && !action->may_be_default;
    if (table.members == 0 && refused && expected == BF_SUCCESS) expected = BF_INVALID_ARGUMENT;
  }
  ASSERT_EQ(pipe_mgr_mat_default_entry_set(session, device, pipe, handle, wanted.action,
                                           &wanted.spec, 0, &entry),
            expected);
  expect_update(expected, {handle, PIPE_UPDATE_SET_DEFAULT, entry, 0});
  if (expected != BF_SUCCESS) return;
  ASSERT_TRUE(!place || place->handle == 0 || place->handle == entry);
  place = changed;
  place->handle = entry;
}

void Beside::change_property() {
  ModelTable &table = random.one_in(5) ? model.tables[kEncap] : any_table();
  const uint32_t handle = table.description->handle;
  const uint32_t property = 1 + random.below(4);
  uint32_t value = random.one_in(9) ? 2 : random.below(2);
  bf_status_t expected = property == 4 ? BF_INVALID_ARGUMENT : BF_SUCCESS;
  if (property == PIPE_TABLE_CAPACITY) {
    value =
        random.one_in(2) ? 0 : random.below(2 * static_cast<uint32_t>(table.entries.size()) + 9);
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
  ASSERT_EQ(pipe_mgr_tbl_set_property(session, device, handle, property, value, 0), expected);
  const uint32_t held[] = {table.scope, table.checks, table.capacity};
  for (uint32_t known : {PIPE_TABLE_ENTRY_SCOPE, PIPE_TABLE_DUPLICATE_CHECK, PIPE_TABLE_CAPACITY}) {
    uint32_t read = 99, argument = 99;
    OK(pipe_mgr_tbl_get_property(session, device, handle, known, &read, &argument));
    ASSERT_EQ(read, held[known - 1]);
    ASSERT_EQ(argument, 0u);
  }
}

// ---- Comparison ----

void Beside::compare_action(const ModelEntry &entry, uint32_t action,
                            const pipe_mgr_action_spec_t &spec) {
  ASSERT_EQ(action, entry.action);
  ASSERT_EQ(spec.type, entry.type);
  ASSERT_EQ(Bytes(spec.data.bytes, spec.data.bytes + spec.data.byte_count), entry.data);
  ASSERT_EQ(spec.data.bytes[spec.data.byte_count], 0xa5) << "written behind the data";
  ASSERT_EQ(spec.member, entry.type == PIPE_ACTION_MEMBER ? entry.reference : 0);
  ASSERT_EQ(spec.group, entry.type == PIPE_ACTION_GROUP ? entry.reference : 0);
  std::map<uint32_t, uint32_t> resources;
  for (uint32_t i = 0; i < spec.resource_count; ++i) {
    const pipe_mgr_resource_t &held = spec.resources[i];
    resources[held.handle] = held.index;
    ASSERT_EQ(held.tag, uint32_t{PIPE_RESOURCE_ATTACH});
    if (held.handle != kAclMeter) continue;
    ASSERT_EQ(held.data.meter.peak_burst, entry.meter.spec.peak_burst);
    ASSERT_EQ(held.data.meter.peak_rate.value, entry.meter.spec.peak_rate.value);
  }
  ASSERT_EQ(resources, entry.resources);
}

// Of a read-back into the room, by the table or from placement data.
void Beside::compare_entry(const ModelTable &table, const ModelEntry &entry, const Room &room) {
  compare_action(entry, room.word[0], room.action);
  ASSERT_EQ(room.match.priority, entry.priority);
  ASSERT_EQ(room.match.scope, 0u);
  const size_t bytes = entry.value.size();
  ASSERT_EQ(room.match.value, bytes == 0 ? nullptr : room.bytes);
  ASSERT_EQ(Bytes(room.bytes, room.bytes + bytes), entry.value);
  ASSERT_EQ(Bytes(room.bytes + 16, room.bytes + 16 + bytes), entry.mask);
  ASSERT_EQ(room.bytes[bytes], 0xa5) << "written behind the key";
  ASSERT_EQ(room.match.byte_count, bytes);
  ASSERT_EQ(room.match.valid_bit_count, bytes == 0 ? 0 : table.description->key_bits);
}

void Beside::compare(const ModelTable &table, const ModelEntry &entry) {
  Room room;
  room.clear();
  const uint32_t handle = table.description->handle;
  OK(pipe_mgr_get_entry(session, handle, device, entry.handle, &room.match, &room.action, room.word,
                        random.one_in(2)));
  ASSERT_NO_FATAL_FAILURE(compare_entry(table, entry, room));
  room.clear();
  OK(soft_placement_of_entry(device, handle, entry.handle, &placed));
  OK(pipe_mgr_plcmt_mat_data_get_entry(placed, &room.match, &room.action, room.word));
  ASSERT_NO_FATAL_FAILURE(compare_entry(table, entry, room));
  const auto attached = [&](uint32_t resource) {
    if (resource == 0) return BF_NOT_SUPPORTED;
    return entry.resources.contains(resource) ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
  };
  ASSERT_EQ(
      pipe_mgr_mat_ent_direct_stat_query(session, device, handle, entry.handle, &room.counter),
      attached(table.counter));
  if (attached(table.counter) == BF_SUCCESS) {
    ASSERT_EQ((Count{room.counter.packets, room.counter.bytes}), entry.counter.software);
  }
  ASSERT_EQ(pipe_mgr_meter_read_entry(session, device, kAll, handle, entry.handle, &room.meter),
            attached(table.meter));
  if (attached(table.meter) != BF_SUCCESS) return;
  ASSERT_EQ(room.meter.committed_burst, entry.meter.spec.committed_burst);
  ASSERT_EQ(room.meter.committed_rate.value, entry.meter.spec.committed_rate.value);
}

Words Beside::walk(uint32_t object, uint32_t pipe) {
  Words all;
  uint32_t first = 0;
  bf_status_t status = pipe_mgr_get_first_entry_handle(session, object, device, pipe, &first);
  Words step{first};
  while (status == BF_SUCCESS) {
    for (const uint32_t handle : step) {
      if (handle != kNone) all.push_back(handle);
    }
    if (step.back() == kNone) break;
    step.resize(1 + random.below(4));
    status = pipe_mgr_get_next_entry_handles(session, object, device, pipe, all.back(),
                                             static_cast<uint32_t>(step.size()), step.data());
  }
  EXPECT_TRUE(step.back() == kNone || status == BF_OBJECT_NOT_FOUND);
  std::ranges::sort(all);
  return all;
}

void Beside::compare_tables() {
  for (auto &[handle, table] : model.tables) {
    for (const ModelEntry &entry : table.entries) ASSERT_NO_FATAL_FAILURE(compare(table, entry));
    for (const uint32_t pipe : {0u, 1u, kAll}) {
      Words expected;
      for (const ModelEntry &entry : table.entries) {
        if (entry.is_in(table.stored_pipe(pipe))) expected.push_back(entry.handle);
      }
      std::ranges::sort(expected);
      ASSERT_EQ(walk(handle, pipe), expected);
      uint32_t count = 0, entry = 0;
      OK(pipe_mgr_get_entry_count(session, device, pipe, handle, 0, &count));
      ASSERT_EQ(count, expected.size());
      ModelEntry *standing = table.default_in(pipe);
      ASSERT_EQ(pipe_mgr_table_get_default_entry_handle(session, device, pipe, handle, &entry),
                standing == nullptr ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
      if (standing == nullptr) continue;
      if (standing->handle == 0) standing->handle = entry;  // declared by the program
      ASSERT_EQ(entry, standing->handle);
      ASSERT_NO_FATAL_FAILURE(compare(table, *standing));
      Room room;
      room.clear();
      OK(pipe_mgr_table_get_default_entry(session, device, pipe, handle, &room.action, room.word,
                                          false));
      ASSERT_NO_FATAL_FAILURE(compare_action(*standing, room.word[0], room.action));
    }
  }
}

}  // namespace soft_test
