// What is there before the call of a scene.
#include <fmt/format.h>

#include <algorithm>

#include "scene.hpp"
#include "scene_values.hpp"
#include "soft_learning.h"
#include "soft_snapshot.h"

namespace pd_test {

namespace {

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

struct FamilyNeeds {
  const char *family;
  uint32_t needs;
};

constexpr FamilyNeeds kFamilyNeeds[] = {
    {"init", kDeregistered},
    {"table_add", kNewKey},
    {"add_entry", kNewKey},
    {"add_entry_with_selector", kNewKey | kJoined},
    {"modify_entry_with_selector", kJoined},
    {"modify_entry_with_selector_by_match_spec", kJoined},
    {"set_default_entry_with_selector", kJoined},
    {"table_get_default_entry", kDefault},
    {"table_get_default_entry_handle", kDefault},
    {"get_first_entry_handle", kEntry},
    {"get_next_entry_handles", kEntry | kSecond},
    {"idle_params_get", kAgeing},
    {"idle_tmo_disable", kAgeing},
    {"set_ttl", kAgeing},
    {"update_hit_state", kAgeing},
    {"get_hit_state", kAgeing},
    {"add_member_to_group", kGroup},
    {"del_member_from_group", kJoined},
    {"group_member_state_set", kJoined},
    {"group_member_state_get", kJoined},
    {"group_member_get_from_hash", kJoined},
    {"get_first_group_member", kJoined},
    {"get_next_group_members", kJoined | kSecond},
    {"get_first_member", kMember},
    {"get_next_members", kMember | kSecond},
    {"get_first_group", kGroup},
    {"get_next_groups", kGroup | kSecond},
    {"get_entry_from_plcmt_data", kPlacement | kEntry},
    {"get_indirect_entry_from_plcmt_data", kPlacement | kEntry},
    {"get_member_from_plcmt_data", kPlacement | kMember},
    {"get_full_member_info_from_plcmt_data", kPlacement | kMember},
    {"restore_virtual_dev_state", kVirtual},
    {"table_value", kEntry},
    {"stringify_counter_match_spec", kEntry},
    {"stringify_counter_matchspec", kEntry},
    {"plcmt_data_print", kPlacement | kEntry},
    {"plcmt_data_value", kPlacement | kEntry},
    {"plcmt_data_eq_to_hw", kPlacement | kEntry},
    {"adt_plcmt_data_print", kPlacement | kMember},
    {"adt_plcmt_data_value", kPlacement | kMember},
    {"by_handle_plcmt_data_print", kPlacement | kEntry},
    {"by_handle_plcmt_data_value", kPlacement | kEntry},
    {"by_handle_plcmt_data_eq_to_hw", kPlacement | kEntry},
    {"by_handle_adt_plcmt_data_print", kPlacement | kMember},
    {"by_handle_adt_plcmt_data_value", kPlacement | kMember},
    {"by_handle_entry_value", kEntry},
    {"by_handle_entry_hdl_first", kEntry},
    {"by_handle_entry_hdl_next", kEntry | kSecond},
    {"by_handle_entry_hdl_default", kDefault},
    {"by_handle_member_hdl_next", kMember | kSecond},
    {"digest_deregister", kDigest},
    {"digest_notify_ack", kDigest},
    {"pvs_entry_modify", kValueEntry},
    {"pvs_entry_delete", kValueEntry},
    {"pvs_entry_get", kValueEntry},
    {"pvs_entry_handle_get", kValueEntry},
    {"pvs_entry_get_first_entry_handle", kValueEntry},
    {"pvs_entry_get_next_entry_handles", kValueEntry | kSecond},
    {"snapshot_delete", kSnapshot},
    {"snapshot_capture_trigger_set", kSnapshot},
    {"snapshot_capture_data_get", kSnapshot},
};

bool is_by_handle(std::string_view family) { return family.starts_with("by_handle_"); }

bool takes_profile_handle(std::string_view family) {
  return family.find("_adt_") != family.npos || family.find("_member_") != family.npos;
}

// The functions that take a table's handle know no table of their own.
const pdgen::Table *table_of(const Export &exported) {
  const std::string_view family = exported.family;
  if (family.ends_with("_direct")) return &table_named("flowDigestGeneration");
  if (family == "stringify_counter_matchspec") return &table_named("trapToCpu");
  if (is_by_handle(family) && !takes_profile_handle(family)) return &table_named("firewallPolicy");
  if (const auto *table = pdgen::find_row(program().tables, exported.object)) return table;
  for (const auto *resources : {&program().counters, &program().meters}) {
    const pdgen::Resource *resource = pdgen::find_row(*resources, exported.object);
    if (resource != nullptr && resource->direct()) return resource->table.target;
  }
  return nullptr;
}

const pdgen::Profile *profile_of(const Export &exported, const pdgen::Table *table) {
  if (table != nullptr && table->indirect()) return table->profile.target;
  if (is_by_handle(exported.family) && takes_profile_handle(exported.family)) {
    return &program().profiles.front();
  }
  return pdgen::find_row(program().profiles, exported.object);
}

// The pair whose entries refer to most resources: read-back has most to do for it.
const pdgen::Pair &richest_pair(const pdgen::Table &table) {
  return *std::ranges::max_element(table.pairs, {}, [](const pdgen::Pair &pair) {
    return pair.sent_in(pdgen::Operation::kAdd).size() * 2 + (pair.action->has_params() ? 1 : 0);
  });
}

void expect_done(const Arguments &arguments) {
  EXPECT_EQ(arguments.status(), BF_SUCCESS) << arguments.exported().name << " of the scene";
}

}  // namespace

// A table without a key has nothing to enumerate, and a table none of whose actions may be the
// default has no default entry. No register belongs to the entries of a table.
p4_pd_status_t expected_status(const Export &exported) {
  const std::string_view family = exported.family;
  const pdgen::Table *table = table_of(exported);
  bool succeeds = true;
  if (family == "get_first_entry_handle" || family == "get_next_entry_handles") {
    succeeds = table->keyed();
  }
  if (family == "table_get_default_entry" || family == "table_get_default_entry_handle") {
    succeeds = table->indirect() || std::ranges::any_of(table->pairs, &pdgen::Pair::as_default);
  }
  if (family == "register_read_direct" || family == "register_hw_sync_direct") {
    return BF_NOT_SUPPORTED;
  }
  if (family == "register_write_direct") return BF_INVALID_HANDLE;
  return succeeds ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
}

// ---- Setting up ----

Scene::Scene(const Export &exported, std::string_view variation)
    : exported_(exported),
      allocations_before_(soft_allocations_live()),
      random_(random_for(fmt::format("{} {}", exported.name, variation))),
      arguments_(exported),
      table_(table_of(exported)),
      profile_(profile_of(exported, table_)),
      meter_spec_(random_meter_spec(random_)),
      priority_(static_cast<uint32_t>(random_())) {
  if (table_ != nullptr) match_spec_ = random_record(record_of(*table_), random_);
  set_up(find_needs());
  if (const auto *action = pdgen::find_row(program().actions, exported.action)) {
    action_spec_ = random_record(record_of(*action), random_);
  }
  fill_arguments();
}

Scene::~Scene() {
  soft_placement_free(placement_);
  if (soft_client_count() == 0) {
    EXPECT_EQ(p4_pd_tessel_switch_init(), BF_SUCCESS);
  }
  EXPECT_EQ(soft_allocations_live(), allocations_before_) << exported_.name;
}

uint32_t Scene::find_needs() const {
  uint32_t needs = 0;
  for (const FamilyNeeds &row : kFamilyNeeds) {
    if (exported_.family == std::string_view(row.family)) needs = row.needs;
  }
  if (std::string_view(exported_.family).starts_with("hash_calc_")) needs |= kHash;
  for (const bindings::Parameter &parameter : exported_.parameter_list()) {
    const std::string_view name = parameter.name;
    if (name == "match_spec" && is_input(parameter)) needs |= kEntry;
    if (is_pointer(parameter)) continue;
    if (name == "entry" && table_ != nullptr) needs |= kEntry;
    if (name == "member" && profile_ != nullptr) needs |= kMember;
    if (name == "group" && profile_ != nullptr) needs |= kGroup;
  }
  if ((needs & kNewKey) != 0) needs &= ~uint32_t{kEntry};
  if ((needs & (kEntry | kDefault)) != 0 && table_->indirect()) needs |= kMember;
  return needs;
}

void Scene::set_up(uint32_t needs) {
  if ((needs & kDeregistered) != 0) {
    EXPECT_EQ(p4_pd_tessel_switch_cleanup(), BF_SUCCESS);
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
  const bool indirect = table_->indirect();
  const pdgen::Pair *pair = indirect ? nullptr : &richest_pair(*table_);
  Arguments add(indirect ? *find_export("add_entry", table_->name)
                         : *find_export("table_add", table_->name, pair->action->name));
  const Bytes spec = indirect ? Bytes() : random_record(record_of(*pair->action), random_);
  add.set("match_spec", match_spec.data()).set("entry", entry);
  if (add.takes("priority")) add.set("priority", priority_);
  if (add.takes("action_spec")) add.set("action_spec", spec.data());
  if (add.takes("meter_spec")) add.set("meter_spec", &meter_spec_);
  if (add.takes("ttl")) add.set("ttl", uint64_t{50000});
  if (add.takes("member")) add.set("member", uint64_t{member_});
  return add.status();
}

// The entry of a table without a key is its default entry.
void Scene::add_entry() {
  if (!table_->keyed()) return set_default_entry();
  EXPECT_EQ(add_entry_of(match_spec_, &entry_), BF_SUCCESS) << table_->name;
}

// A key of few bits may come up twice.
void Scene::add_second_entry() {
  if (!table_->keyed()) return;
  uint32_t entry = 0;
  p4_pd_status_t status = BF_ALREADY_EXISTS;
  while (status == BF_ALREADY_EXISTS) {
    status = add_entry_of(random_record(record_of(*table_), random_), &entry);
  }
  EXPECT_EQ(status, BF_SUCCESS) << table_->name;
}

void Scene::set_default_entry() {
  if (table_->indirect()) {
    Arguments set(*find_export("set_default_entry", table_->name));
    return expect_done(set.set("member", uint64_t{member_}).set("entry", &entry_));
  }
  const auto pair = std::ranges::find_if(table_->pairs, &pdgen::Pair::as_default);
  if (pair == table_->pairs.end()) return;
  Arguments set(*find_export("set_default_action", table_->name, pair->action->name));
  const Bytes spec = random_record(record_of(*pair->action), random_);
  if (set.takes("action_spec")) set.set("action_spec", spec.data());
  if (set.takes("meter_spec")) set.set("meter_spec", &meter_spec_);
  expect_done(set.set("entry", &entry_));
}

uint32_t Scene::add_member(std::string_view action) {
  const pdgen::ProfileAction *pair = pair_of(*profile_, action);
  if (pair == nullptr) pair = &profile_->actions.front();
  member_action_ = pair->handle;
  Arguments add(*find_export("add_member", profile_->name, pair->action->name));
  const Bytes spec = random_record(record_of(*pair->action), random_);
  if (add.takes("action_spec")) add.set("action_spec", spec.data());
  uint32_t member = 0;
  expect_done(add.set("member", &member));
  return member;
}

uint32_t Scene::create_group() {
  Arguments create(*find_export("create_group", profile_->name));
  uint32_t group = 0;
  expect_done(create.set("max_size", uint64_t{8}).set("group", &group));
  return group;
}

void Scene::join(uint32_t member) {
  Arguments add(*find_export("add_member_to_group", profile_->name));
  expect_done(add.set("group", uint64_t{group_}).set("member", uint64_t{member}));
}

void Scene::set_up_ageing() {
  Arguments enable(*find_export("idle_tmo_enable", table_->name));
  expect_done(enable.set("params", &kSceneAgeing));
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
    uint32_t entry = 0;
    Arguments add(*find_export("pvs_entry_add", exported_.object));
    add.set("value", value).set("mask", uint64_t{23}).set("entry", &entry);
    expect_done(add.set("target", &kSceneParser));
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
  Arguments listen(*find_export("digest_register", digest.name));
  listen.set("callback", reinterpret_cast<const void *>(keep)).set("cookie", &message_);
  expect_done(listen);
  const Bytes entry(digest.size, 0x11);
  EXPECT_EQ(
      soft_digest_inject(kDevice, kPipe, digest.handle, entry.data(), 1, digest.size, nullptr),
      BF_SUCCESS);
  EXPECT_NE(message_, nullptr);
}

// Also those that are only named by a text.
void Scene::configure_hashes() {
  const p4_pd_hash_calc_attr_t attribute = {1, 0, 0x77};
  for (const pdgen::Hash &hash : program().hashes) {
    expect_done(
        Arguments(*find_export("hash_calc_input_set", hash.name)).set("input", uint64_t{0}));
    Arguments algorithm(*find_export("hash_calc_algorithm_set", hash.name));
    expect_done(algorithm.set("algorithm", uint64_t{0}));
    Arguments set(*find_export("hash_calc_input_field_attribute_set", hash.name));
    set.set("input", uint64_t{0}).set("attribute_count", uint64_t{1});
    expect_done(set.set("attributes", &attribute));
  }
}

void Scene::take_snapshot() {
  const unsigned bytes = program().snapshots->record_bytes;
  const Bytes any(bytes);
  Arguments create(*find_export("snapshot_create"));
  create.set("pipe", uint64_t{kPipe}).set("direction", uint64_t{0});
  create.set("first_stage", uint64_t{1}).set("last_stage", uint64_t{1});
  expect_done(create.set("snapshot", &snapshot_));
  Arguments trigger(*find_export("snapshot_capture_trigger_set"));
  trigger.set("snapshot", uint64_t{snapshot_});
  expect_done(trigger.set("value", any.data()).set("mask", any.data()));
  uint32_t captures = 0;
  EXPECT_EQ(soft_snapshot_inject(kDevice, kPipe, 0, 1, any.data(), 1, bytes, &captures),
            BF_SUCCESS);
  EXPECT_EQ(captures, 1u);
}

}  // namespace pd_test
