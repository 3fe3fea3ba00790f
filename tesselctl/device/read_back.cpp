#include "tesselctl/device/read_back.hpp"

#include <fmt/format.h>

#include <stdexcept>

#include "tesselctl/program/record.hpp"

namespace tesselctl {

const bindings::Record &action_of_number(uint32_t number) {
  static const std::vector<const bindings::Record *> by_number = [] {
    std::vector<const bindings::Record *> known;
    for (const bindings::Record &action : actions()) {
      if (known.size() <= action.number) known.resize(action.number + 1);
      known[action.number] = &action;
    }
    return known;
  }();
  if (number < by_number.size() && by_number[number] != nullptr) return *by_number[number];
  throw Fault("the device holds an unknown action");
}

void append_action_bytes(std::string &bytes, const bindings::Record &action,
                         const uint8_t *parameters) {
  bytes.append(reinterpret_cast<const char *>(parameters), action.size);
}

// ---- Entries ----

Call EntryReader::prepare(const char *direct, const char *indirect) {
  Call call = device_.prepare(table_.indirect() ? indirect : direct, table_.name());
  const auto bind = [&](const char *name, const void *object) { call.set_if_taken(name, object); };
  bind("match_spec", key_.data());
  bind("priority", &priority_);
  bind("no_key", &no_key_);
  bind("has_member", &has_member_);
  bind("has_group", &has_group_);
  bind("member", &member_);
  bind("group", &group_);
  bind("action_name", nullptr);
  bind("action", specs_.data());
  bind("action_spec", specs_.parameters());
  bind("action_specs", specs_.data());
  return call;
}

EntryReader::EntryReader(const Device &device, const TableInfo &table, Resources resources)
    : device_(device),
      table_(table),
      key_(table.record->size),
      entry_call_(
          prepare("get_entry", "get_indirect_entry").set("read_from_hardware", uint64_t{0})) {
  if (resources == Resources::none) return;
  if (table.ages()) {
    ttl_call_.emplace(device.prepare("get_ttl", table.name()).set("ttl", &head_.ttl));
  }
  if (const auto *meter = resource_of<soft_meter_t>(table)) {
    meter_call_.emplace(device.prepare("meter_read", meter->name).set("meter_spec", &meter_));
  }
  const auto *counter = resource_of<soft_counter_t>(table);
  if (resources != Resources::all || counter == nullptr) return;
  counter_call_.emplace(device.prepare("counter_read", counter->name)
                            .set("flags", uint64_t{P4_PD_READ_FROM_HARDWARE})
                            .set("values", &head_.counter));
}

uint64_t EntryReader::read(p4_pd_entry_handle_t entry, ItemBytes &item) {
  has_member_ = has_group_ = false;
  const uint64_t status = entry_call_.run(entry);
  if (status != BF_SUCCESS) return status;
  head_ = {};
  read_resources(entry);
  build(item);
  return status;
}

uint64_t EntryReader::decode(const pipe_mgr_placement_t *placement, ItemBytes &item) {
  if (!placement_call_) {
    placement_call_ = prepare("get_entry_from_plcmt_data", "get_indirect_entry_from_plcmt_data");
  }
  has_member_ = has_group_ = false;
  const uint64_t status = placement_call_->set("placement", placement).run();
  if (status != BF_SUCCESS) return status;
  head_ = {};
  build(item);
  return status;
}

// Default entries have no ttl, and may be without a meter and a counter.
void EntryReader::read_resources(p4_pd_entry_handle_t entry) {
  const auto read = [&](std::optional<EntryCall> &call) {
    return call && call->run(entry) == BF_SUCCESS;
  };
  if (!no_key_) head_.has_ttl = read(ttl_call_) ? 1 : 0;
  if (read(meter_call_)) {
    head_.has_meter = 1;
    head_.meter = numbers_of(meter_);
  }
  read(counter_call_);
}

void EntryReader::build(ItemBytes &item) {
  item.clear();
  if (!no_key_ && table_.keyed()) {
    item.identity.assign(reinterpret_cast<const char *>(key_.data()), key_.size());
    if (table_.has_priority()) append_bytes(item.identity, priority_);
  }
  if (!table_.indirect()) {
    head_.outcome = EntryHead::kAction;
    head_.number = specs_.action();
  } else if (has_group_ || has_member_) {
    head_.outcome = has_group_ ? EntryHead::kGroup : EntryHead::kMember;
    head_.number = has_group_ ? group_ : member_;
  }
  append_bytes(item.value, head_);
  if (head_.outcome != EntryHead::kAction) return;
  append_action_bytes(item.value, action_of_number(head_.number), specs_.parameters());
}

std::optional<p4_pd_entry_handle_t> EntryReader::default_entry(uint16_t pipe) const {
  p4_pd_entry_handle_t entry = 0;
  p4_pd_device_target_t target = device_.target();
  target.pipe_id = pipe;
  Call call = device_.prepare("table_get_default_entry_handle", table_.name());
  const uint64_t status = call.set("target", &target).set("entry", &entry).run();
  if (status == BF_OBJECT_NOT_FOUND) return std::nullopt;
  check(status, {});
  return entry;
}

// ---- Members ----

MemberReader::MemberReader(const Device &device, const char *profile)
    : call_(device.prepare("get_member", profile)) {
  call_.set("read_from_hardware", uint64_t{0}).set("action_specs", specs_.data());
}

uint64_t MemberReader::read(p4_pd_member_handle_t member, std::string &value) {
  const uint64_t status = call_.set("member", uint64_t{member}).run();
  if (status != BF_SUCCESS) return status;
  EntryHead head;
  head.outcome = EntryHead::kAction;
  head.number = specs_.action();
  value.clear();
  append_bytes(value, head);
  append_action_bytes(value, action_of_number(head.number), specs_.parameters());
  return status;
}

// ---- As answers ----

void add_number(Row &row, std::string_view name, uint32_t number, Naming naming) {
  if (naming == Naming::handles) {
    row.number(name, number);
  } else {
    row.field({}, name, fmt::format("#{}", number), {matches_numbered});
  }
}

void add_action(Row &row, std::string_view value) {
  add_action(row, action_of_number(head_of(value).number), parameters_of(value));
}

void add_key(Row &row, const TableInfo &table, const ItemView &item) {
  if (item.identity.empty()) return;
  add_record(row, Row::kKey, *table.record,
             reinterpret_cast<const uint8_t *>(item.identity.data()));
  if (table.has_priority()) row.number("priority", priority_of(table, item.identity));
}

void add_entry(Row &row, const TableInfo &table, const ItemView &item, Naming naming) {
  const EntryHead head = head_of(item.value);
  add_key(row, table, item);
  if (head.has_ttl != 0) row.number("ttl", head.ttl);
  if (head.has_meter != 0) add_meter(row, head.meter);
  if ((head.counter.packets | head.counter.bytes) != 0) {
    row.number("packets", head.counter.packets).number("bytes", head.counter.bytes);
  }
  if (head.outcome == EntryHead::kAction) return add_action(row, item.value);
  if (head.outcome == EntryHead::kNothing) return;
  add_number(row, head.outcome == EntryHead::kGroup ? "group" : "member", head.number, naming);
}

namespace {

template <class Owner>
void add_action_samples(Row &row, const Owner &owner) {
  for (const bindings::Record *action : actions_of(owner)) {
    row.choice("action", action->name);
    add_samples(row, Row::kParameters, *action);
  }
}

}  // namespace

void add_entry_samples(Row &row, const TableInfo &table) {
  add_samples(row, Row::kKey, *table.record);
  if (table.has_priority()) row.number("priority", 0u);
  if (table.ages()) row.number("ttl", 0u);
  row.list("meter", {}).number("packets", uint64_t{0}).number("bytes", uint64_t{0});
  if (table.indirect()) row.number("member", 0u).number("group", 0u);
  add_action_samples(row, *table.description);
}

void add_member_samples(Row &row, const soft_profile_t &profile) {
  add_action_samples(row, profile);
}

void expect_entries(Results &results, const TableInfo &table) {
  Row row;
  row.object("table", table.name()).number("entry", 0u);
  add_entry_samples(row, table);
  results.expect(row);
}

Row entry_row(const TableInfo &table, p4_pd_entry_handle_t entry, const ItemView &item) {
  Row row;
  row.object("table", table.name()).number("entry", entry);
  add_entry(row, table, item, Naming::handles);
  return row;
}

Row entry_row(EntryReader &reader, p4_pd_entry_handle_t entry, Word word) {
  ItemBytes item;
  check(reader.read(entry, item), word);
  return entry_row(reader.table(), entry, item.view());
}

Row entry_row(const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry, Word word) {
  EntryReader reader(device, table, EntryReader::Resources::settings);
  return entry_row(reader, entry, word);
}

Row default_entry_row(const Device &device, const TableInfo &table, Word word) {
  EntryReader reader(device, table, EntryReader::Resources::settings);
  const auto entry = reader.default_entry();
  check(entry ? BF_SUCCESS : BF_OBJECT_NOT_FOUND, word);
  ItemBytes item;
  check(reader.read(*entry, item), word);
  Row row;
  row.object("table", table.name()).object("which", "default");
  add_entry(row, table, item.view(), Naming::handles);
  return row;
}

void add_member(Row &row, const Device &device, const char *profile, p4_pd_member_handle_t member,
                Word word) {
  std::string value;
  check(MemberReader(device, profile).read(member, value), word);
  add_action(row, value);
}

uint32_t register_value(unsigned width, const void *values, size_t at) {
  const size_t size = width <= 8 ? 1 : width / 8;
  uint32_t value = 0;
  memcpy(&value, static_cast<const uint8_t *>(values) + at * size, size);
  return value;
}

}  // namespace tesselctl
