#include "support.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>

#include "bf_sys.h"
#include "pdgen/load/load.hpp"
#include "soft_traffic.h"

extern "C" void bf_sys_free(void *memory) {
  static auto *const free_memory = pd_test::soft_function(bf_sys_free, "bf_sys_free");
  EXPECT_NE(memory, nullptr) << "the library frees what it has allocated";
  free_memory(memory);
}

namespace pd_test {

// ---- The program ----

namespace {

const bindings::Binding *chosen = nullptr;
std::string chosen_catalogue;

}  // namespace

void choose_program(const bindings::Binding &binding, std::string catalogue) {
  chosen = &binding;
  chosen_catalogue = std::move(catalogue);
}

const bindings::Binding &binding() { return *chosen; }

const pdgen::Program &program() {
  static const pdgen::LoadResult loaded = pdgen::load_program(chosen_catalogue);
  if (!loaded.program) ADD_FAILURE() << loaded.diagnostics.text();
  return loaded.program.value();
}

std::string prefix() { return fmt::format("p4_pd_{}_", binding().program); }

const pdgen::Table &table_named(std::string_view name) {
  return *pdgen::find_row(program().tables, name);
}

const pdgen::Action &action_named(std::string_view name) {
  return *pdgen::find_row(program().actions, name);
}

namespace {

template <class Pairs>
auto named_pair(const Pairs &pairs, std::string_view action) {
  const auto found =
      std::ranges::find_if(pairs, [&](auto &pair) { return pair.action->name == action; });
  return found == pairs.end() ? nullptr : &*found;
}

}  // namespace

const pdgen::Pair *pair_of(const pdgen::Table &table, std::string_view action) {
  return named_pair(table.pairs, action);
}

const pdgen::ProfileAction *pair_of(const pdgen::Profile &profile, std::string_view action) {
  return named_pair(profile.actions, action);
}

namespace {

const bindings::Record &record_named(std::span<const bindings::Record> all, std::string_view name) {
  return *std::ranges::find_if(all, [&](auto &record) { return record.name == name; });
}

}  // namespace

const bindings::Record &record_of(const pdgen::Table &table) {
  return record_named(binding().tables.list(), table.name);
}

const bindings::Record &record_of(const pdgen::Action &action) {
  return record_named(binding().actions.list(), action.name);
}

// ---- The exports ----

const std::vector<const Export *> &all_exports() {
  static const std::vector<const Export *> all = [] {
    std::vector<const Export *> list;
    for (size_t i = 0; i < binding().list_count; ++i) {
      const bindings::ExportList &part = *binding().lists[i];
      for (size_t row = 0; row < part.count; ++row) list.push_back(&part.rows[row]);
    }
    return list;
  }();
  return all;
}

std::vector<const Export *> exports_of(std::string_view family) {
  std::vector<const Export *> found;
  std::ranges::copy_if(all_exports(), std::back_inserter(found),
                       [&](auto *exported) { return exported->family == family; });
  return found;
}

const Export *find_export(std::string_view family, std::string_view object,
                          std::string_view action) {
  using Index = std::map<std::string, const Export *, std::less<>>;
  static const Index index = [] {
    Index all;
    for (const Export *e : all_exports()) {
      all[fmt::format("{} {} {}", e->family, e->object, e->action)] = e;
    }
    return all;
  }();
  const auto found = index.find(fmt::format("{} {} {}", family, object, action));
  if (found != index.end()) return found->second;
  ADD_FAILURE() << "no export " << family << " " << object << " " << action;
  return nullptr;
}

// ---- The process ----

namespace {

p4_pd_session_handle_t open_session;
FirstInit first;

class Process : public testing::Environment {
 public:
  void SetUp() override {
    ASSERT_EQ(soft_session_open(&open_session), BF_SUCCESS);
    const auto profiles = static_cast<uint32_t>(program().profiles.size());
    if (profiles != 0) {
      soft::faults::fail_call("p4_pd_ms_init_state", profiles, BF_NO_MEMORY);
      first.failed_calls = recorded([] { first.failed_status = initialise(); });
    }
    first.calls = recorded([] { first.status = initialise(); });
    ASSERT_EQ(first.status, BF_SUCCESS);
  }
  void TearDown() override {
    EXPECT_EQ(clean_up(), BF_SUCCESS);
    EXPECT_EQ(soft_session_close(open_session), BF_SUCCESS);
    EXPECT_EQ(soft_allocations_live(), 0u);
  }
};

testing::Environment *const process = testing::AddGlobalTestEnvironment(new Process);

}  // namespace

p4_pd_session_handle_t session() { return open_session; }

const FirstInit &first_init() { return first; }

p4_pd_status_t initialise() { return Arguments(*find_export("init")).status(); }
p4_pd_status_t clean_up() { return Arguments(*find_export("cleanup")).status(); }

uint32_t client() {
  static uint32_t last = 0;
  soft_client_get((prefix() + "pd").c_str(), &last, nullptr, nullptr);
  return last;
}

Device::Device(bf_device_id_t id, bool is_virtual) : id_(id) {
  EXPECT_EQ(soft_device_create(id, kPipes, binding().description, is_virtual), BF_SUCCESS);
}

Device::~Device() { EXPECT_EQ(soft_device_remove(id_), BF_SUCCESS); }

void lift_limits(bf_device_id_t device) {
  for (const pdgen::Table &table : program().tables) {
    EXPECT_EQ(soft_table_capacity_set(device, table.handle, 0), BF_SUCCESS);
  }
  for (const pdgen::Profile &profile : program().profiles) {
    EXPECT_EQ(soft_profile_capacity_set(device, profile.action_data_handle, 0), BF_SUCCESS);
    EXPECT_EQ(soft_profile_capacity_set(device, profile.selector_handle, 0), BF_SUCCESS);
  }
}

LibraryTest::LibraryTest() : allocations_before_(soft_allocations_live()) {
  soft::faults::clear();
  soft::journal::clear();
}

LibraryTest::~LibraryTest() {
  soft::journal::stop();
  EXPECT_EQ(soft::faults::pending(), 0u) << "a planned fault did not strike";
  EXPECT_EQ(soft_allocations_live(), allocations_before_);
}

std::vector<std::string> names_of(const std::vector<Call> &calls) {
  std::vector<std::string> names;
  for (const Call &call : calls) names.push_back(call.function);
  return names;
}

// ---- Calls through data ----

Arguments::Arguments(const Export &exported)
    : exported_(&exported), words_(exported.parameter_count), given_(exported.parameter_count) {
  if (takes("session")) set("session", session());
  if (takes("device")) set("device", kDevice);
  // A parser target has the name too; a scene gives it.
  for (const bindings::Parameter &parameter : exported.parameter_list()) {
    const bool device_target = std::string_view(parameter.type) == "p4_pd_device_target_t";
    if (device_target) set(parameter.name, &kTarget);
  }
}

size_t Arguments::index_of(std::string_view name) const {
  const auto list = exported_->parameter_list();
  const auto named = [&](auto &parameter) { return parameter.name == name; };
  return static_cast<size_t>(std::ranges::find_if(list, named) - list.begin());
}

bool Arguments::takes(std::string_view name) const { return index_of(name) < words_.size(); }

Arguments &Arguments::set(std::string_view name, uint64_t word) {
  EXPECT_TRUE(takes(name)) << exported_->name << " has no parameter " << name;
  words_.at(index_of(name)) = word;
  given_[index_of(name)] = true;
  return *this;
}

Arguments &Arguments::set(std::string_view name, const void *object) {
  return set(name, word(object));
}

Arguments &Arguments::give(const Given &given) {
  for (const auto &[name, value] : given) {
    const size_t at = index_of(name);
    if (at == words_.size()) continue;
    words_[at] = value;
    given_[at] = true;
  }
  return *this;
}

uint64_t Arguments::get(std::string_view name) const { return words_.at(index_of(name)); }

uint64_t Arguments::call() const {
  for (size_t i = 0; i < words_.size(); ++i) {
    EXPECT_TRUE(given_[i]) << exported_->name << ": " << exported_->parameters[i].name
                           << " is not given";
  }
  return exported_->call(words_.data());
}

p4_pd_status_t run(std::string_view family, std::string_view object, const Given &given) {
  return Arguments(*find_export(family, object)).give(given).status();
}

uint32_t make(std::string_view family, std::string_view object, std::string_view action,
              const Given &given) {
  static constexpr p4_pd_bytes_meter_spec_t kMeter = {1, 2, 3, 4, PD_METER_TYPE_COLOR_UNAWARE};
  uint32_t handle = 0;
  Arguments arguments(*find_export(family, object, action));
  arguments.give(with("ttl", 50000, "meter_spec", &kMeter)).give(given);
  arguments.set(arguments.exported().parameter_list().back().name, &handle);
  EXPECT_EQ(arguments.status(), BF_SUCCESS) << arguments.exported().name;
  return handle;
}

// ---- Records ----

Random random_for(std::string_view text) {
  uint64_t seed = 0x7e55e1;
  for (const char c : text) seed = seed * 131 + static_cast<unsigned char>(c);
  return Random(seed);
}

Bytes random_record(const bindings::Record &record, Random &random) {
  Bytes bytes(record.size);
  for (uint8_t &byte : bytes) byte = static_cast<uint8_t>(random());
  unsigned width = 0;
  for (const bindings::Member &member : record.member_list()) {
    if (member.role != bindings::Role::prefix_length) {
      width = member.width;
      continue;
    }
    const auto length = static_cast<uint16_t>(random() % (width + 2));
    std::memcpy(bytes.data() + member.offset, &length, sizeof length);
  }
  // Cells that every counter and meter of the device has.
  for (const bindings::Field &field : record.field_list()) {
    if (field.cells.empty()) continue;
    const bindings::Member &member = *field.parts[0];
    uint32_t cell = 0;
    std::memcpy(&cell, bytes.data() + member.offset, member.storage);
    cell %= SOFT_COUNTER_CELLS;
    std::memcpy(bytes.data() + member.offset, &cell, member.storage);
  }
  return bytes;
}

p4_pd_bytes_meter_spec_t random_meter_spec(Random &random) {
  const auto word = [&] { return static_cast<uint32_t>(random()); };
  return {word(), word(), word(), word(), PD_METER_TYPE_COLOR_UNAWARE};
}

const bindings::Member &member_of(const bindings::Record &record, std::string_view name,
                                  size_t guess) {
  const auto all = record.member_list();
  if (guess < all.size() && all[guess].name == name) return all[guess];
  const auto found = std::ranges::find_if(all, [&](auto &member) { return member.name == name; });
  if (found == all.end()) throw std::out_of_range(fmt::format("{}.{}", record.name, name));
  return *found;
}

std::string hex(const Bytes &bytes) { return fmt::format("{:02x}", fmt::join(bytes, " ")); }

std::string text_of(const cJSON *item) {
  const std::unique_ptr<char, decltype(&cJSON_free)> text(cJSON_PrintUnformatted(item), cJSON_free);
  return text == nullptr ? "" : text.get();
}

}  // namespace pd_test
