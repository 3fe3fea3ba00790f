// A run: what it is about, its devices and its calls.
#include "beside.hpp"

#include <fmt/format.h>

#include <cstring>

#include "pipe_mgr_match.h"
#include "soft_sdk.h"
#include "soft_state.h"
#include "tesselctl/program/c_call.hpp"
#include "tesselctl/program/status.hpp"
#include "tesselctl/state/image.hpp"

namespace pd_test {

// ---- What a run is about ----

Beside::Beside(uint64_t of_seed, bool prints)
    : random(of_seed), seed(of_seed), trace(prints), allocations_before(soft_allocations_live()) {
  shows_all = seed % 2 == 0;
  constexpr uint32_t kFirst[] = {0, 1022, 4095, SOFT_REGISTER_CELLS - 3};
  first_cell = kFirst[random() % std::size(kFirst)];
  choose_tables();
  for (ModelTable &table : model.tables) {
    choose_keys(*table.row);
    choose_deeds(*table.row);
    if (!shows_all) turns.push_back({&table, nullptr, nullptr, nullptr});
    for (const Deed &deed : deeds[table.row]) turns.push_back({&table, &deed, nullptr, nullptr});
  }
  for (const pdgen::ValueSet &row : program().value_sets) model.sets.push_back({&row, {}, 0, 0});
  for (ModelProfile &profile : model.profiles) {
    for (auto &pair : profile.row->actions) turns.push_back({nullptr, nullptr, &profile, &pair});
  }
  create(device, is_virtual);
  for (ModelTable &table : model.tables) learn_default(table, kAll);
}

Beside::~Beside() {
  EXPECT_EQ(soft_device_remove(device), BF_SUCCESS);
  EXPECT_EQ(soft_allocations_live(), allocations_before);
}

// Tables one after the other, in each seed the next ones, and two that are bound to one profile, if
// there are such. Of the resources with cells of their own those that these tables' entries refer
// to, and one more.
void Beside::choose_tables() {
  const auto &all = program().tables;
  std::vector<const pdgen::Table *> rows, bound;
  for (size_t i = 0; i < kTables; ++i)
    rows.push_back(&all[static_cast<size_t>((seed * kTables + i) % all.size())]);
  for (const pdgen::Table &row : all) {
    if (row.indirect()) bound.push_back(&row);
  }
  std::ranges::shuffle(bound, random);
  for (const pdgen::Table *row : bound) {
    if (row->profile.target == bound[0]->profile.target) rows.push_back(row);
    if (rows.size() == kTables + 2) break;
  }
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  for (const pdgen::Table *row : rows) model.add_table(*row);
  const auto choose = [&](auto &list, auto *chosen) {
    const auto is_chosen = [&](const pdgen::Resource &resource) {
      return std::ranges::any_of(rows, [&](const pdgen::Table *row) {
        return std::ranges::find(row->resources, &resource, [](auto &of) {
                 return of.resource.target;
               }) != row->resources.end();
      });
    };
    std::vector<const pdgen::Resource *> others;
    for (const pdgen::Resource &resource : list) {
      if (!resource.direct()) (is_chosen(resource) ? *chosen : others).push_back(&resource);
    }
    if (!others.empty()) chosen->push_back(others[static_cast<size_t>(seed % others.size())]);
  };
  choose(program().counters, &counters);
  choose(program().meters, &meters);
  choose(program().registers, &registers);
}

void Beside::cut_key(const pdgen::Table &table, uint8_t *record) {
  unsigned width = 0;
  for (const bindings::Member &member : record_of(table).member_list()) {
    const Bytes bits = key_bits(table, member);
    for (size_t at = 0; at < bits.size(); ++at) record[member.offset + at] &= bits[at];
    if (member.role == bindings::Role::prefix_length) {
      uint16_t length = 0;
      std::memcpy(&length, &record[member.offset], sizeof length);
      length = std::min(length, static_cast<uint16_t>(width));
      std::memcpy(&record[member.offset], &length, sizeof length);
    }
    width = member.width;
  }
}

// Records that differ in little, so that keys meet and overlap.
void Beside::choose_keys(const pdgen::Table &table) {
  const bindings::Record &record = record_of(table);
  const Bytes bases[] = {random_record(record, random), random_record(record, random)};
  for (size_t i = 0; table.keyed() && i < 24; ++i) {
    Bytes made = bases[random() % 2];
    for (const bindings::Member &member : record.member_list()) {
      uint8_t *const at = &made[member.offset];
      const uint64_t what = random() % 6;
      if (member.role == bindings::Role::value) {
        if (what == 0)
          *(member.is_bytes ? at + member.storage - 1 : at) ^= static_cast<uint8_t>(random() % 8);
      } else if (member.role == bindings::Role::mask) {
        if (what < 4) std::memset(at, what < 2 ? 0xff : 0, member.storage);
      } else if (what < 4) {
        const auto length = static_cast<uint16_t>(*at * 7u % 32 + random() % 100);
        std::memcpy(at, &length, sizeof length);
      }
    }
    if (shows_all) cut_key(table, made.data());
    Key &key = keys[&table].emplace_back(
        Key{made, key_image(table, made.data(), 0), kept_match_spec(table, made.data()), {}});
    for (const bindings::Member &member : record.member_list()) {
      const Bytes bits = key_bits(table, member);
      for (size_t at = 0; at < bits.size(); ++at) {
        key.compared.push_back(key.kept[member.offset + at] & bits[at]);
      }
    }
  }
}

void Beside::choose_deeds(const pdgen::Table &table) {
  for (const pdgen::Pair &pair : table.pairs) {
    for (int i = 0; i < 2; ++i) {
      Deed &deed = deeds[&table].emplace_back();
      const bindings::Record &record = record_of(*pair.action);
      deed.pair = &pair;
      deed.record = random_record(record, random);
      if (shows_all) cut_action(*pair.action, deed.record.data());
      for (const bindings::Field &field : record.field_list()) {
        if (field.cells.empty()) continue;
        const auto cell = static_cast<uint32_t>(random() % 3);
        std::memcpy(&deed.record[field.parts[0]->offset], &cell, field.parts[0]->storage);
      }
      for (size_t operation = 0; operation < pdgen::kOperationCount; ++operation) {
        deed.images[operation] = action_image(pair, static_cast<pdgen::Operation>(operation),
                                              deed.record.data(), nullptr);
      }
    }
  }
}

// ---- Devices ----

void Beside::create(bf_device_id_t id, bool as_virtual) {
  note(fmt::format("soft_device_create({}, 2, &soft_program_{}, {})", id, binding().program,
                   as_virtual));
  ASSERT_EQ(soft_device_create(id, 2, binding().description, as_virtual), BF_SUCCESS);
  listen(id);
}

void Beside::listen(bf_device_id_t id) {
  const auto listener = [&](std::string_view family, const std::string &object, auto *hear) {
    const void *const callback = reinterpret_cast<const void *>(hear);
    ASSERT_EQ(run(family, object,
                  with("device", id, "callback", callback, "cookie", this, "client_data", this)),
              BF_SUCCESS);
  };
  const auto count = +[](pipe_session_handle_t, bf_device_id_t, uint32_t, uint32_t, uint32_t,
                         uint32_t, void *cookie) { ++static_cast<Beside *>(cookie)->owner_heard; };
  const auto of_group = +[](pipe_session_handle_t, bf_device_id_t, uint32_t object, uint32_t update,
                            uint32_t group, uint32_t member, void *cookie) {
    static_cast<Beside *>(cookie)->heard.push_back({object, update, group, member});
  };
  const auto of_member = +[](pipe_session_handle_t, bf_device_id_t, uint32_t object,
                             uint32_t update, uint32_t member, void *cookie) {
    static_cast<Beside *>(cookie)->heard.push_back({object, update, 0, member});
  };
  const auto of_entry = +[](pipe_session_handle_t, bf_device_id_t on, uint32_t object,
                            uint32_t update, uint32_t entry, void *cookie) {
    static_cast<Beside *>(cookie)->heard.push_back({object, update, entry, 0});
    uint32_t entries = 0;  // the table is not locked: a callback may ask it
    EXPECT_EQ(pipe_mgr_get_entry_count(session(), on, kAll, object, 0, &entries), BF_SUCCESS);
  };
  const auto of_expiry = +[](bf_device_id_t, uint32_t table, uint32_t entry, void *cookie) {
    static_cast<Beside *>(cookie)->expired.emplace_back(table, entry);
  };
  for (const ModelProfile &profile : model.profiles) {
    listener("register_adt_update_cb", profile.row->name, of_member);
    listener("register_sel_update_cb", profile.row->name, of_group);
    listener("sel_track_updates", profile.row->name, count);
  }
  for (const ModelTable &table : model.tables) {
    listener("register_mat_update_cb", table.row->name, of_entry);
    if (table.row->idle_time) listener("idle_register_tmo_cb", table.row->name, of_expiry);
  }
}

void Beside::move() {
  const Json document(cJSON_CreateObject()), again(cJSON_CreateObject());
  ASSERT_EQ(soft_device_log(device, document.get()), BF_SUCCESS);
  create(other, !is_virtual);
  const bool replays = is_virtual && dice.one_in(2), restores = !replays || dice.one_in(2);
  if (replays) {
    const bf_device_id_t source = std::exchange(device, other);
    ASSERT_EQ(status_of("restore_virtual_dev_state", "",
                        with("virtual_device", source, "pipe", kAll, "flags", 0)),
              BF_SUCCESS);
    device = source;
    model.counters.clear();
    model.meters.clear();
    model.registers.clear();
    model.adjustments.clear();
    model.seeds.clear();
    for (ModelSet &set : model.sets) set = {set.row, {}, 0, 0};
  } else {
    note(fmt::format("soft_device_copy({}, {})", device, other));
    ASSERT_EQ(soft_device_copy(device, other), BF_SUCCESS);
  }
  // A replay records the actions of the members that are in a group.
  for (ModelProfile &profile : model.profiles) {
    for (auto &[handle, group] : profile.groups) {
      if (restores) break;
      group.action = group.members.empty()
                         ? 0
                         : profile.members.at(group.members.rbegin()->first).pair->handle;
    }
  }
  if (restores) {
    note(fmt::format("soft_device_restore({}, what soft_device_log said of {})", other, device));
    ASSERT_EQ(soft_device_restore(other, document.get()), BF_SUCCESS);
    ASSERT_EQ(soft_device_log(other, again.get()), BF_SUCCESS);
    ASSERT_EQ(text_of(again.get()), text_of(document.get()));
  }
  ASSERT_TRUE(heard.empty());
  note(fmt::format("soft_device_remove({})", device));
  ASSERT_EQ(soft_device_remove(device), BF_SUCCESS);
  std::swap(device, other);
  is_virtual = !is_virtual;
}

void Beside::save_and_load() {
  if (!shows_all) return;
  const tesselctl::Device saved({.id = 22, .pipes = 2}), loaded({.id = 23, .pipes = 2});
  note(fmt::format("soft_device_copy({}, 22)", device));
  ASSERT_EQ(soft_device_copy(device, 22), BF_SUCCESS);
  const std::string image = image_of(saved);
  for (const ModelProfile &profile : model.profiles) {  // limits that no image holds
    soft_profile_capacity_set(23, profile.row->action_data_handle, 0);
    soft_profile_capacity_set(23, profile.row->selector_handle, 0);
  }
  try {
    tesselctl::load_image(loaded, "image", tesselctl::lines_of(image));
    ASSERT_EQ(image_of(loaded), image);
  } catch (const std::exception &fault) {
    FAIL() << fault.what() << " of\n" << image;
  }
}

// ---- Calls ----

uint64_t Beside::call(std::string_view family, std::string_view object, std::string_view action,
                      Given given, uint32_t pipe) {
  target = {device, static_cast<uint16_t>(pipe)};
  Arguments arguments(*find_export(family, object, action));
  arguments.give(with("device", device, "target", &target)).give(given);
  const uint64_t result = arguments.call();
  if (trace) {
    if (arguments.takes("target")) note(fmt::format("target.pipe_id = {:#x}", pipe));
    const Export &made = arguments.exported();
    const bool is_status = std::string_view(made.result) == "p4_pd_status_t";
    fmt::print("{}",
               tesselctl::c_call(made, arguments.words().data(),
                                 is_status ? tesselctl::status_name(static_cast<uint32_t>(result))
                                           : std::to_string(result)));
  }
  return result;
}

void Beside::note(const std::string &text) const {
  if (trace) fmt::print("  {};\n", text);
}

void Beside::expect_update(p4_pd_status_t status, const Update &update) {
  ASSERT_EQ(heard, status == BF_SUCCESS ? std::vector{update} : std::vector<Update>{});
  const bool of_group = status == BF_SUCCESS && update.object >> 24 == 3;
  ASSERT_EQ(owner_heard, of_group ? 1 : 0);
  owner_heard = 0;
  heard.clear();
}

// ---- Steps ----

void Beside::step(uint32_t number) {
  using Step = void (Beside::*)();
  static const std::vector<Step> often = {
      &Beside::add_entry,         &Beside::add_entry,         &Beside::add_entry,
      &Beside::add_entry,         &Beside::add_entry,         &Beside::change_entry,
      &Beside::change_entry,      &Beside::change_entry,      &Beside::remove_entry,
      &Beside::find_entry,        &Beside::change_default,    &Beside::send_traffic,
      &Beside::send_traffic,      &Beside::send_traffic,      &Beside::send_traffic,
      &Beside::change_counter,    &Beside::change_meter,      &Beside::change_age,
      &Beside::change_age,        &Beside::advance_clock,     &Beside::change_counter_cell,
      &Beside::change_meter_cell, &Beside::change_meter_cell, &Beside::change_register,
      &Beside::change_register,   &Beside::examine_entry,     &Beside::change_value,
      &Beside::change_value};
  static const std::vector<Step> of_profiles = {
      &Beside::change_member,     &Beside::change_member,     &Beside::change_group,
      &Beside::change_membership, &Beside::change_membership, &Beside::change_membership,
      &Beside::change_membership, &Beside::change_fallback};
  static const std::vector<Step> seldom = {&Beside::change_property, &Beside::switch_ageing,
                                           &Beside::change_limit, &Beside::change_seed};
  dice = Dice(seed << 20 | number);
  if (number < turns.size()) return take(turns[number]);
  const bool drains = number / 250 % 3 == 2 && dice.one_in(2);
  const bool profile = !model.profiles.empty() && dice.one_in(3);
  const Step made = drains             ? &Beside::remove_entry
                    : dice.one_in(250) ? &Beside::move
                    : dice.one_in(250) ? &Beside::save_and_load
                    : dice.one_in(40)  ? dice.of(seldom)
                    : profile          ? dice.of(of_profiles)
                                       : dice.of(often);
  (this->*made)();
}

void Beside::take(const Turn &turn) {
  if (turn.table == nullptr) {
    add_member(*turn.profile, *turn.member);
    for (const auto &[member, held] : turn.profile->members) examine_member(*turn.profile, member);
    return;
  }
  ModelTable &table = *turn.table;
  if (turn.deed == nullptr) return set_property(table, PIPE_TABLE_ENTRY_SCOPE);
  if (is_sent(*turn.deed->pair, pdgen::Operation::kDefault)) {
    set_default(table, kAll, turn.deed);
    const ModelEntry *const standing = table.default_in(kAll);
    if (standing != nullptr) examine(table, standing->handle, standing);
  }
  if (!is_sent(*turn.deed->pair, pdgen::Operation::kAdd)) return;
  if (!table.entries.empty()) remove(table, &table.entries[0], table.entries[0], false);
  add_to(table, turn.deed);
  if (!table.entries.empty()) examine(table, table.entries[0].handle, &table.entries[0]);
}

void Beside::compare() {
  const bool traced = std::exchange(trace, false);
  compare_tables();
  for (const ModelProfile &profile : model.profiles) {
    compare_members(profile);
    compare_groups(profile);
    compare_slots(profile);
  }
  compare_cells();
  const auto id = static_cast<uint32_t>(device);
  for (const ModelSet &set : model.sets) {
    compare_values(set, {id, 0, kAll, SOFT_ALL_PARSERS});
    compare_values(set, {id, 1, 1, 0});
  }
  trace = traced;
}

}  // namespace pd_test
