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
  const std::string family = fmt::format(" {} ", exported_.family);
  for (const Needs &row : kNeeds) {
    if (row.families.find(family) != row.families.npos) needs = row.needs;
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
  const pdgen::Pair *pair = table_->indirect() ? nullptr : &richest_pair(*table_);
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
    entry_ = make("set_default_entry", table_->name, "", given({}));
    return;
  }
  const auto pair = std::ranges::find_if(table_->pairs, &pdgen::Pair::as_default);
  if (pair == table_->pairs.end()) return;
  const Bytes spec = random_record(record_of(*pair->action), random_);
  entry_ = make("set_default_action", table_->name, pair->action->name, given(spec));
}

uint32_t Scene::add_member(std::string_view action) {
  const pdgen::ProfileAction *pair = pair_of(*profile_, action);
  if (pair == nullptr) pair = &profile_->actions.front();
  member_action_ = pair->handle;
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
  const p4_pd_hash_calc_attr_t attribute = {1, 0, 0x77};
  for (const pdgen::Hash &hash : program().hashes) {
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
  snapshot_ = make("snapshot_create", "", "",
                   with("pipe", kPipe, "direction", 0, "first_stage", 1, "last_stage", 1));
  EXPECT_EQ(run("snapshot_capture_trigger_set", "",
                with("snapshot", snapshot_, "value", any.data(), "mask", any.data())),
            BF_SUCCESS);
  uint32_t captures = 0;
  EXPECT_EQ(soft_snapshot_inject(kDevice, kPipe, 0, 1, any.data(), 1, bytes, &captures),
            BF_SUCCESS);
  EXPECT_EQ(captures, 1u);
}

}  // namespace pd_test
