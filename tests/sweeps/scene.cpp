// What is there before the call of a scene.
#include <fmt/format.h>

#include <algorithm>

#include "scene.hpp"
#include "scene_values.hpp"
#include "soft_learning.h"
#include "soft_snapshot.h"

namespace pd_test {

namespace {

using pdgen::Pair;

// What must be there for a call of a family to succeed. An entry, member or group that a parameter
// names, and the entry of a match spec that only names one, are there without saying so.
enum Need : uint32_t {
  kEntry = 1,            // the table has an entry
  kSecond = 2,           // ... and another object behind it
  kDefault = 4,          // the default entry is set
  kAgeing = 8,           // the table ages its entries
  kMember = 16,          // the profile has a member
  kGroup = 32,           // ... and a group
  kJoined = 64,          // ... and the member is in it
  kNewKey = 128,         // the match spec names no entry yet
  kPlacement = 256,      // placement data of the entry or member
  kVirtual = 512,        // a second, virtual device
  kDeregistered = 1024,  // the library is not registered with the driver framework
  kValueEntry = 2048,    // the value set has an entry
  kDigest = 4096,        // the digest has a callback, and a message waits
  kHash = 8192,          // the hash calculation has its field list and algorithm, and an attribute
  kSnapshot = 16384      // there is a snapshot with a capture
};

struct Needs {
  uint32_t needs;
  std::string_view families;
};

constexpr Needs kNeeds[] = {
    {kDeregistered, " init "},
    {kNewKey, " table_add add_entry "},
    {kNewKey | kJoined, " add_entry_with_selector "},
    {kJoined,
     " modify_entry_with_selector modify_entry_with_selector_by_match_spec "
     "set_default_entry_with_selector del_member_from_group group_member_state_set "
     "group_member_state_get group_member_get_from_hash get_first_group_member "},
    {kDefault,
     " table_get_default_entry table_get_default_entry_handle by_handle_entry_hdl_default "},
    {kEntry,
     " get_first_entry_handle table_value stringify_counter_match_spec stringify_counter_matchspec "
     "by_handle_entry_value by_handle_entry_hdl_first "},
    {kEntry | kSecond, " get_next_entry_handles by_handle_entry_hdl_next "},
    {kAgeing, " idle_params_get idle_tmo_disable set_ttl update_hit_state get_hit_state "},
    {kGroup, " add_member_to_group get_first_group "},
    {kJoined | kSecond, " get_next_group_members "},
    {kMember, " get_first_member "},
    {kMember | kSecond, " get_next_members by_handle_member_hdl_next "},
    {kGroup | kSecond, " get_next_groups "},
    {kPlacement | kEntry,
     " get_entry_from_plcmt_data get_indirect_entry_from_plcmt_data plcmt_data_print "
     "plcmt_data_value plcmt_data_eq_to_hw by_handle_plcmt_data_print by_handle_plcmt_data_value "
     "by_handle_plcmt_data_eq_to_hw "},
    {kPlacement | kMember,
     " get_member_from_plcmt_data get_full_member_info_from_plcmt_data adt_plcmt_data_print "
     "adt_plcmt_data_value by_handle_adt_plcmt_data_print by_handle_adt_plcmt_data_value "},
    {kVirtual, " restore_virtual_dev_state "},
    {kDigest, " digest_deregister digest_notify_ack "},
    {kValueEntry,
     " pvs_entry_modify pvs_entry_delete pvs_entry_get pvs_entry_handle_get "
     "pvs_entry_get_first_entry_handle "},
    {kValueEntry | kSecond, " pvs_entry_get_next_entry_handles "},
    {kSnapshot, " snapshot_delete snapshot_capture_trigger_set snapshot_capture_data_get "},
};

bool is_by_handle(std::string_view family) { return family.starts_with("by_handle_"); }

bool takes_profile_handle(std::string_view family) {
  return family.find("_adt_") != family.npos || family.find("_member_") != family.npos;
}

bool holds_entries(const pdgen::Table &table) {
  return table.indirect() || (table.keyed() && std::ranges::any_of(table.pairs, &Pair::in_entries));
}
bool has_default(const pdgen::Table &table) {
  return table.indirect() || std::ranges::any_of(table.pairs, &Pair::as_default);
}

template <class Row, class Fits>
const Row *first(const std::vector<Row> &rows, Fits fits) {
  const auto found = std::ranges::find_if(rows, fits);
  return found == rows.end() ? nullptr : &*found;
}
template <class Row>
const Row *first(const std::vector<Row> &rows) {
  return rows.empty() ? nullptr : &rows.front();
}

// Whether an operation of the pair attaches the resource, or it is null.
bool attaches(const Pair &pair, pdgen::Operation operation, const pdgen::Resource *resource) {
  return resource == nullptr || std::ranges::any_of(pair.items, [&](auto &item) {
           return item.resource == resource && item.sent_in(operation) &&
                  item.tag != pdgen::ResourceTag::kDetach;
         });
}

// The pair for an entry with the resource, if it is not null: the one that refers to most others,
// as read-back has most to do for it. Null where no entry of the table can have it.
const Pair *entry_pair(const pdgen::Table &table, const pdgen::Resource *resource) {
  const Pair *richest = nullptr;
  const auto riches = [](const Pair &pair) {
    return pair.sent_in(pdgen::Operation::kAdd).size() * 2 + (pair.action->has_params() ? 1 : 0);
  };
  for (const Pair &pair : table.pairs) {
    if (!pair.in_entries || !attaches(pair, pdgen::Operation::kAdd, resource)) continue;
    if (richest == nullptr || riches(pair) > riches(*richest)) richest = &pair;
  }
  return table.keyed() ? richest : nullptr;
}
const Pair *default_pair(const pdgen::Table &table, const pdgen::Resource *resource) {
  for (const Pair &pair : table.pairs) {
    if (pair.as_default && attaches(pair, pdgen::Operation::kDefault, resource)) return &pair;
  }
  return nullptr;
}

// The table of functions that belong to none but take the handle of any.
const pdgen::Table *table_for_all(std::string_view family) {
  const std::vector<pdgen::Table> &tables = program().tables;
  if (family == "stringify_counter_matchspec") {
    const auto &labels = program().labels;
    return labels.empty() ? nullptr : labels.front().table.target;
  }
  if (family.ends_with("_default")) return first(tables, has_default);
  const pdgen::Table *direct =
      first(tables, [](auto &table) { return holds_entries(table) && !table.indirect(); });
  return direct != nullptr ? direct : first(tables, holds_entries);
}

// The functions that take a meter's handle say its unit.
const pdgen::Resource *meter_for_all(std::string_view family) {
  const bool of_packets = family.starts_with("packets_");
  const auto unit = of_packets ? pdgen::MeterUnit::kPackets : pdgen::MeterUnit::kBytes;
  return first(program().meters,
               [=](auto &meter) { return !meter.direct() && meter.unit == unit; });
}

template <class Row>
const Row *named_or_first(const std::vector<Row> &rows, const Export &exported) {
  return exported.object[0] == 0 ? first(rows) : pdgen::find_row(rows, exported.object);
}

Subject with_handle(const auto *row) {
  Subject subject;
  if (row != nullptr) subject.handle = row->handle;
  subject.is_there = row != nullptr;
  return subject;
}

Subject about_resource(const pdgen::Resource *resource) {
  Subject subject = with_handle(resource);
  subject.resource = resource;
  if (resource == nullptr || !resource->direct()) return subject;
  subject.table = resource->table.target;
  subject.is_there = entry_pair(*subject.table, resource) != nullptr ||
                     default_pair(*subject.table, resource) != nullptr;
  return subject;
}

Subject about_table(const pdgen::Table *table) {
  Subject subject;
  subject.table = table;
  subject.is_there = table != nullptr;
  if (subject.is_there && table->indirect()) subject.profile = table->profile.target;
  return subject;
}

}  // namespace

Subject subject_of(const Export &exported) {
  const std::string_view family = exported.family;
  const auto &all = program();
  if (family.starts_with("action_")) return {};
  if (family.starts_with("counter_")) {
    return about_resource(pdgen::find_row(all.counters, exported.object));
  }
  if (family.starts_with("meter_")) {
    return about_resource(pdgen::find_row(all.meters, exported.object));
  }
  if (family.find("s_meter_") != family.npos) return about_resource(meter_for_all(family));
  if (family.starts_with("register_") && !family.ends_with("_direct") &&
      !family.starts_with("register_callback") && family.find("_update_cb") == family.npos) {
    return about_resource(named_or_first(all.registers, exported));
  }
  if (family.starts_with("hash_calc_")) {
    Subject subject = with_handle(named_or_first(all.hashes, exported));
    subject.hash = named_or_first(all.hashes, exported);
    return subject;
  }
  if (family.starts_with("digest_") || family.starts_with("get_digest_")) {
    return with_handle(named_or_first(all.digests, exported));
  }
  if (family.starts_with("pvs_"))
    return with_handle(pdgen::find_row(all.value_sets, exported.object));
  if (is_by_handle(family) && takes_profile_handle(family)) {
    Subject subject;
    subject.profile = first(all.profiles);
    subject.is_there = subject.profile != nullptr;
    return subject;
  }
  if (is_by_handle(family) || family.ends_with("_direct") ||
      family == "stringify_counter_matchspec") {
    return about_table(table_for_all(family));
  }
  if (const auto *table = pdgen::find_row(all.tables, exported.object)) return about_table(table);
  Subject subject;
  subject.profile = pdgen::find_row(all.profiles, exported.object);
  return subject;
}

// A table that can hold no entry has nothing to enumerate, and a table none of whose actions may be
// the default has no default entry. No register belongs to the entries of a table.
p4_pd_status_t expected_status(const Export &exported) {
  const std::string_view family = exported.family;
  if (family == "register_read_direct" || family == "register_hw_sync_direct") {
    return BF_NOT_SUPPORTED;
  }
  if (family == "register_write_direct") return BF_INVALID_HANDLE;
  bool succeeds = true;
  if (family == "get_first_entry_handle" || family == "get_next_entry_handles") {
    succeeds = holds_entries(*subject_of(exported).table);
  }
  if (family == "table_get_default_entry" || family == "table_get_default_entry_handle") {
    succeeds = has_default(*subject_of(exported).table);
  }
  return succeeds ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
}

namespace {

uint32_t needs_of(const Export &exported, const Subject &subject) {
  uint32_t needs = 0;
  const std::string family = fmt::format(" {} ", exported.family);
  for (const Needs &row : kNeeds) {
    if (row.families.find(family) != row.families.npos) needs = row.needs;
  }
  if (std::string_view(exported.family).starts_with("hash_calc_")) needs |= kHash;
  for (const bindings::Parameter &parameter : exported.parameter_list()) {
    const std::string_view name = parameter.name;
    if (name == "match_spec" && is_input(parameter)) needs |= kEntry;
    if (is_pointer(parameter)) continue;
    if (name == "entry" && subject.table != nullptr) needs |= kEntry;
    if (name == "member" && subject.profile != nullptr) needs |= kMember;
    if (name == "group" && subject.profile != nullptr) needs |= kGroup;
  }
  if ((needs & kNewKey) != 0) needs &= ~uint32_t{kEntry};
  if ((needs & (kEntry | kDefault)) != 0 && subject.table->indirect()) needs |= kMember;
  return needs;
}

std::vector<const Export *> exports_by_scene(bool has_scene) {
  std::vector<const Export *> chosen;
  std::ranges::copy_if(all_exports(), std::back_inserter(chosen), [&](const Export *exported) {
    return subject_of(*exported).is_there == has_scene;
  });
  return chosen;
}

}  // namespace

const std::vector<const Export *> &exports_with_scene() {
  static const std::vector<const Export *> all = exports_by_scene(true);
  return all;
}
const std::vector<const Export *> &exports_without_scene() {
  static const std::vector<const Export *> all = exports_by_scene(false);
  return all;
}

// ---- Setting up ----

Scene::Scene(const Export &exported, std::string_view variation)
    : exported_(exported),
      allocations_before_(soft_allocations_live()),
      random_(random_for(fmt::format("{} {}", exported.name, variation))),
      arguments_(exported),
      subject_(subject_of(exported)),
      table_(subject_.table),
      profile_(subject_.profile),
      meter_spec_(random_meter_spec(random_)),
      priority_(static_cast<uint32_t>(random_())) {
  if (table_ != nullptr) match_spec_ = random_record(record_of(*table_), random_);
  client();
  lift_limits(kDevice);
  set_up(needs_of(exported, subject_));
  if (const auto *action = pdgen::find_row(program().actions, exported.action)) {
    action_spec_ = random_record(record_of(*action), random_);
  }
  fill_arguments();
}

Scene::~Scene() {
  soft_placement_free(placement_);
  if (soft_client_count() == 0) {
    EXPECT_EQ(initialise(), BF_SUCCESS);
  }
  EXPECT_EQ(soft_allocations_live(), allocations_before_) << exported_.name;
}

void Scene::set_up(uint32_t needs) {
  if ((needs & kDeregistered) != 0) {
    EXPECT_EQ(clean_up(), BF_SUCCESS);
  }
  if ((needs & kVirtual) != 0) virtual_device_.emplace(kSceneVirtualDevice, true);
  if ((needs & kValueEntry) != 0) add_value_entries();
  if ((needs & kDigest) != 0) send_digest();
  if ((needs & kHash) != 0) configure_hashes();
  if ((needs & kSnapshot) != 0) take_snapshot();
  if ((needs & (kMember | kGroup | kJoined)) != 0) member_ = add_member(exported_.action);
  if ((needs & (kGroup | kJoined)) != 0) group_ = create_group();
  if ((needs & kJoined) != 0) join(member_);
  if ((needs & kAgeing) != 0) set_up_ageing();
  if ((needs & kEntry) != 0) add_entry();
  if ((needs & kDefault) != 0) set_default_entry();
  if ((needs & kSecond) != 0 && (needs & kEntry) != 0) add_second_entry();
  if ((needs & kSecond) != 0 && profile_ != nullptr) {
    const uint32_t other = add_member(exported_.action);
    if ((needs & kJoined) != 0) join(other);
    if ((needs & kJoined) == 0 && (needs & kGroup) != 0) create_group();
  }
  if ((needs & kPlacement) != 0) take_placement(needs);
}

p4_pd_status_t Scene::add_entry_of(const Bytes &match_spec, uint32_t *entry) {
  const Pair *pair = entry_pair(*table_, direct_resource());
  const Bytes spec = pair == nullptr ? Bytes() : random_record(record_of(*pair->action), random_);
  Arguments add(pair == nullptr ? *find_export("add_entry", table_->name)
                                : *find_export("table_add", table_->name, pair->action->name));
  add.give(given(spec)).give(with("match_spec", match_spec.data(), "entry", entry));
  return add.status();
}

// What objects of the scene are made with.
Given Scene::given(const Bytes &spec) const {
  return with("action_spec", spec.data(), "meter_spec", &meter_spec_, "priority", priority_, "ttl",
              50000, "member", member_);
}

// Of the entries that the export is about.
const pdgen::Resource *Scene::direct_resource() const {
  const pdgen::Resource *resource = subject_.resource;
  return resource != nullptr && resource->direct() ? resource : nullptr;
}

// The entry of a table that can hold none is its default entry.
void Scene::add_entry() {
  if (!table_->indirect() && entry_pair(*table_, direct_resource()) == nullptr) {
    return set_default_entry();
  }
  EXPECT_EQ(add_entry_of(match_spec_, &entry_), BF_SUCCESS) << table_->name;
}

// A key of few bits may come up twice.
void Scene::add_second_entry() {
  if (!holds_entries(*table_)) return;
  uint32_t entry = 0;
  p4_pd_status_t status = BF_ALREADY_EXISTS;
  while (status == BF_ALREADY_EXISTS) {
    status = add_entry_of(random_record(record_of(*table_), random_), &entry);
  }
  EXPECT_EQ(status, BF_SUCCESS) << table_->name;
}

void Scene::set_default_entry() {
  if (table_->indirect()) {
    entry_ = make("set_default_entry", table_->name, "", given({}));
    return;
  }
  const Pair *pair = default_pair(*table_, direct_resource());
  if (pair == nullptr) return;
  const Bytes spec = random_record(record_of(*pair->action), random_);
  entry_ = make("set_default_action", table_->name, pair->action->name, given(spec));
}

uint32_t Scene::add_member(std::string_view action) {
  const pdgen::ProfileAction *pair = pair_of(*profile_, action);
  if (pair == nullptr)
    pair = &profile_->actions[static_cast<size_t>(random_()) % profile_->actions.size()];
  member_action_ = pair->handle;
  member_has_params_ = pair->action->has_params();
  const Bytes spec = random_record(record_of(*pair->action), random_);
  return make("add_member", profile_->name, pair->action->name, given(spec));
}

uint32_t Scene::create_group() {
  return make("create_group", profile_->name, "", with("max_size", 8));
}

void Scene::join(uint32_t member) {
  EXPECT_EQ(run("add_member_to_group", profile_->name, with("group", group_, "member", member)),
            BF_SUCCESS);
}

void Scene::set_up_ageing() {
  EXPECT_EQ(run("idle_tmo_enable", table_->name, with("params", &kSceneAgeing)), BF_SUCCESS);
}

void Scene::take_placement(uint32_t needs) {
  const bool member = (needs & kEntry) == 0;
  if (!member && entry_ == 0) return;
  EXPECT_EQ(
      member ? soft_placement_of_member(kDevice, profile_->action_data_handle, member_, &placement_)
             : soft_placement_of_entry(kDevice, table_->handle, entry_, &placement_),
      BF_SUCCESS)
      << exported_.name;
}

// ---- Stateful services ----

void Scene::add_value_entries() {
  for (uint64_t value = 21; value <= 22; ++value) {
    const uint32_t entry = make("pvs_entry_add", exported_.object, "",
                                with("value", value, "mask", 23, "target", &kSceneParser));
    if (value == 21) entry_ = entry;
  }
}

void Scene::send_digest() {
  const pdgen::Digest &digest = *pdgen::find_row(program().digests, exported_.object);
  const pipe_mgr_digest_cb_t keep = [](pipe_session_handle_t, pipe_mgr_digest_message_t *message,
                                       void *cookie) -> bf_status_t {
    *static_cast<pipe_mgr_digest_message_t **>(cookie) = message;
    return BF_SUCCESS;
  };
  EXPECT_EQ(run("digest_register", digest.name,
                with("callback", reinterpret_cast<const void *>(keep), "cookie", &message_)),
            BF_SUCCESS);
  const Bytes entry(digest.size, 0x11);
  EXPECT_EQ(
      soft_digest_inject(kDevice, kPipe, digest.handle, entry.data(), 1, digest.size, nullptr),
      BF_SUCCESS);
  EXPECT_NE(message_, nullptr);
}

// Also those that are only named by a text.
void Scene::configure_hashes() {
  for (const pdgen::Hash &hash : program().hashes) {
    const p4_pd_hash_calc_attr_t attribute = {hash.field_count - 1, 0, 0x77};
    for (const char *family : {"hash_calc_input_set", "hash_calc_algorithm_set",
                               "hash_calc_input_field_attribute_set"}) {
      EXPECT_EQ(
          run(family, hash.name,
              with("input", 0, "algorithm", 0, "attribute_count", 1, "attributes", &attribute)),
          BF_SUCCESS);
    }
  }
}

void Scene::take_snapshot() {
  const unsigned bytes = program().snapshots->record_bytes;
  const Bytes any(bytes);
  snapshot_ = make(
      "snapshot_create", "", "",
      with("pipe", kPipe, "direction", snapshot_direction(), "first_stage", 1, "last_stage", 1));
  EXPECT_EQ(run("snapshot_capture_trigger_set", "",
                with("snapshot", snapshot_, "value", any.data(), "mask", any.data())),
            BF_SUCCESS);
  uint32_t captures = 0;
  EXPECT_EQ(soft_snapshot_inject(kDevice, kPipe, snapshot_direction(), 1, any.data(), 1, bytes,
                                 &captures),
            BF_SUCCESS);
  EXPECT_EQ(captures, 1u);
}

}  // namespace pd_test
