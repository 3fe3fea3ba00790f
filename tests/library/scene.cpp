#include "scene.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace pd_test {

namespace {

// What must be there for a call of a family to succeed. An entry, member or group that a parameter
// names, and the entry of a match spec that only names one, are there without saying so.
enum Need : uint32_t {
  kEntry = 1,          // the table has an entry
  kSecond = 2,         // ... and another object behind it
  kDefault = 4,        // the default entry is set
  kAgeing = 8,         // the table ages its entries
  kMember = 16,        // the profile has a member
  kGroup = 32,         // ... and a group
  kJoined = 64,        // ... and the member is in it
  kNewKey = 128,       // the match spec names no entry yet
  kPlacement = 256,    // placement data of the entry or member
  kVirtual = 512,      // a second, virtual device
  kDeregistered = 1024  // the library is not registered with the driver framework
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
};

constexpr bf_device_id_t kVirtualDevice = 9;

// Arguments that are plain numbers.
struct NamedValue {
  const char *name;
  uint64_t value;
};
constexpr NamedValue kValues[] = {
    {"property", PIPE_TABLE_CAPACITY},
    {"value", 77777},
    {"argument", 0},
    {"count", 2},
    {"max_size", 8},
    {"state", P4_PD_GRP_MBR_STATE_INACTIVE},
    {"hash_length", 4},
    {"word", 0},
    {"ttl", 60000},
    {"hit_state", PIPE_ENTRY_ACTIVE},
    {"read_from_hardware", 1},
    {"index", 3},
    {"wred", 0x07000001},
    {"adjustment", 24},
    {"has_pre_color", 0},
    {"flags", 0},
    {"virtual_device", kVirtualDevice},
    {"pipe", BF_ALL_PIPES},
};

const p4_pd_idle_time_params_t kAgeingParams = {PIPE_IDLE_NOTIFY, 100, 70000, 0, 0, 0x5a5a5a5a};
const p4_pd_wred_params_t kWred = {12.5f, 100, 900, 0.25f};
const uint8_t kHash[] = {0x12, 0x34, 0x56, 0x78};
// Room for any record, zeroed: an input of a type that is not known here.
const uint64_t kAnyInput[512] = {};

void any_callback() {}

bool is_pointer(const bindings::Parameter &parameter) {
  return std::string_view(parameter.type).ends_with("*");
}

bool is_input(const bindings::Parameter &parameter) {
  return std::string_view(parameter.type).starts_with("const ");
}

// How much a call may write behind a pointer.
size_t output_size(const bindings::Parameter &parameter, const pdgen::Table *table) {
  const std::string_view type = parameter.type;
  const std::string_view name = parameter.name;
  constexpr std::string_view kLists[] = {"entries", "members", "groups"};
  if (type.ends_with("_match_spec_t *")) return record_of(*table).size;
  if (type.ends_with("_action_specs_t *")) return sizeof(p4_pd_tessel_switch_action_specs_t);
  if (type.ends_with("_meter_spec_t *")) return sizeof(p4_pd_bytes_meter_spec_t);
  if (type == "p4_pd_idle_time_params_t *") return sizeof(p4_pd_idle_time_params_t);
  if (type == "bool *" || type == "uint8_t *") return 1;
  if (type == "char *" && name == "action_name") return 61;
  if (type == "void *" && name == "action_spec") {
    return sizeof(p4_pd_tessel_switch_action_specs_t) - sizeof(uint32_t);
  }
  if (std::ranges::find(kLists, name) != std::end(kLists)) return 2 * sizeof(uint32_t);
  if (type == "uint32_t *" || type.ends_with("_handle_t *")) return sizeof(uint32_t);
  return 4096;
}

const pdgen::Table *table_of(const Export &exported) {
  if (const auto *table = pdgen::find_row(program().tables, exported.object)) return table;
  for (const auto *resources : {&program().counters, &program().meters}) {
    const pdgen::Resource *resource = pdgen::find_row(*resources, exported.object);
    if (resource != nullptr && resource->direct()) return resource->table.target;
  }
  return nullptr;
}

const pdgen::Profile *profile_of(const Export &exported, const pdgen::Table *table) {
  if (table != nullptr && table->indirect()) return table->profile.target;
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
// default has no default entry.
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
  if ((needs & kVirtual) != 0) virtual_device_.emplace(kVirtualDevice, true);
  if ((needs & (kMember | kGroup | kJoined)) != 0) member_ = add_member(exported_.action);
  if ((needs & (kGroup | kJoined)) != 0) group_ = create_group();
  if ((needs & kJoined) != 0) join(member_);
  if ((needs & kAgeing) != 0) set_up_ageing();
  if ((needs & kEntry) != 0) add_entry();
  if ((needs & kDefault) != 0) set_default_entry();
  if ((needs & kSecond) != 0 && (needs & kEntry) != 0) add_second_entry();
  if ((needs & kSecond) != 0 && (needs & kEntry) == 0) {
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
  expect_done(enable.set("params", &kAgeingParams));
}

void Scene::take_placement(uint32_t needs) {
  const bool member = (needs & kEntry) == 0;
  if (!member && entry_ == 0) return;
  EXPECT_EQ(member ? soft_placement_of_member(kDevice, profile_->action_data_handle, member_,
                                              &placement_)
                   : soft_placement_of_entry(kDevice, table_->handle, entry_, &placement_),
            BF_SUCCESS)
      << exported_.name;
}

// ---- Arguments ----

void Scene::fill_arguments() {
  for (const bindings::Parameter &parameter : exported_.parameter_list()) {
    const std::string_view name = parameter.name;
    if (name == "session" || name == "device" || name == "target") continue;
    if (fill_input(parameter) || fill_value(parameter)) continue;
    fill_output(parameter);
  }
}

bool Scene::fill_input(const bindings::Parameter &parameter) {
  const std::string_view type = parameter.type;
  const std::string_view name = parameter.name;
  const auto give = [&](const void *object) {
    arguments_.set(name, object);
    return true;
  };
  if (type.ends_with("_cb_t")) return give(reinterpret_cast<const void *>(&any_callback));
  if (name == "cookie" || name == "client_data") return give(kAnyInput);
  if (type == "p4_pd_idle_time_params_t") return give(&kAgeingParams);
  if (!is_pointer(parameter) || !is_input(parameter)) return false;
  if (name == "match_spec") return give(match_spec_.data());
  if (name == "action_spec") return give(action_spec_.data());
  if (name == "meter_spec") return give(&meter_spec_);
  if (name == "hash") return give(kHash);
  if (name == "placement") return give(placement_);
  if (type == "const p4_pd_wred_params_t *") return give(&kWred);
  return give(kAnyInput);
}

bool Scene::fill_value(const bindings::Parameter &parameter) {
  if (is_pointer(parameter)) return false;
  const std::string_view name = parameter.name;
  const auto give = [&](uint64_t word) {
    arguments_.set(name, word);
    return true;
  };
  if (name == "priority") return give(priority_);
  if (name == "entry") return give(entry_);
  if (name == "member") return give(member_);
  if (name == "group") return give(group_);
  if (name == "meter") {
    return give(std::string_view(exported_.family).starts_with("packets") ? 0x05000002
                                                                          : 0x05000001);
  }
  for (const NamedValue &row : kValues) {
    if (name == row.name) return give(row.value);
  }
  return give(1);
}

void Scene::fill_output(const bindings::Parameter &parameter) {
  Bytes &bytes = outputs_[parameter.name];
  bytes.assign(output_size(parameter, table_), kUntouched);
  arguments_.set(parameter.name, bytes.data());
}

const Bytes &Scene::output(std::string_view name) const {
  const auto found = outputs_.find(name);
  if (found == outputs_.end()) throw std::out_of_range(std::string(name));
  return found->second;
}

std::string Scene::written_outputs() const {
  std::string names;
  for (const auto &[name, bytes] : outputs_) {
    const bool untouched = std::ranges::all_of(bytes, [](uint8_t b) { return b == kUntouched; });
    if (!untouched) names += name + " ";
  }
  return names;
}

uint64_t Scene::play() {
  uint64_t result = 0;
  calls_ = recorded([&] { result = arguments_.call(); });
  return result;
}

}  // namespace pd_test
