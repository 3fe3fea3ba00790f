#include "tesselctl/read_back.hpp"

#include <algorithm>
#include <cstring>

#include "p4_pd_tessel_switch.h"
#include "tesselctl/status.hpp"

namespace tesselctl {

namespace {

using ActionSpecs = p4_pd_tessel_switch_action_specs_t;

// The meter that every entry of the table has.
void add_meter(Row &row, const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry) {
  for (const soft_meter_t &meter : program_rows<soft_meter_t>()) {
    if (meter.table == 0 || meter.table != table.description->handle) continue;
    p4_pd_bytes_meter_spec_t spec = {};
    Call call = device.prepare("meter_read", meter.name);
    if (call.set("entry", uint64_t{entry}).set("meter_spec", &spec).run() != BF_SUCCESS) return;
    row.list("meter", {spec.committed_rate, spec.committed_burst, spec.peak_rate, spec.peak_burst});
  }
}

void add_ttl(Row &row, const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry) {
  if (!table.ages()) return;
  uint32_t ttl = 0;
  Call call = device.prepare("get_ttl", table.name());
  call.set("entry", uint64_t{entry}).set("ttl", &ttl);
  if (call.run() == BF_SUCCESS) row.number("ttl", ttl);
}

void add_target(Row &row, const EntryReader &reader) {
  if (reader.has_group) row.number("group", reader.group);
  if (!reader.has_group && reader.has_member) row.number("member", reader.member);
}

}  // namespace

EntryReader::EntryReader(const Device &device, const TableInfo &table)
    : key(table.record->size),
      keyed_(table.keyed()),
      call_(device.prepare(table.indirect() ? "get_indirect_entry" : "get_entry", table.name())) {
  static_assert(sizeof parameters_ >= sizeof(ActionSpecs));
  call_.set("read_from_hardware", uint64_t{0});
  call_.set_if_taken("match_spec", static_cast<const void *>(key.data()));
  call_.set_if_taken("priority", static_cast<const void *>(&priority));
  call_.set_if_taken("no_key", static_cast<const void *>(&no_key));
  if (table.indirect()) {
    call_.set("has_member", &has_member).set("has_group", &has_group);
    call_.set("group", &group).set("member", &member);
  } else {
    call_.set("action_name", static_cast<const void *>(nullptr)).set("action", &action);
    call_.set("action_spec", parameters_);
  }
}

uint64_t EntryReader::read(p4_pd_entry_handle_t entry) {
  has_member = has_group = false;
  return call_.set("entry", uint64_t{entry}).run();
}

void add_outcome(Row &row, uint32_t action, const uint8_t *record) {
  for (const bindings::Record &known : actions()) {
    if (known.number != action) continue;
    row.text("action", known.name);
    return add_record(row, Row::kParameters, action_shape(known.name), record);
  }
  row.number("action", action);
}

void add_entry(Row &row, const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry,
               Word word) {
  EntryReader reader(device, table);
  check(reader.read(entry), word);
  if (reader.has_key()) add_record(row, Row::kKey, table.shape(), reader.key.data());
  if (reader.has_key() && table.has_priority()) row.number("priority", reader.priority);
  if (reader.has_key()) add_ttl(row, device, table, entry);
  add_meter(row, device, table, entry);
  if (table.indirect()) return add_target(row, reader);
  add_outcome(row, reader.action, reader.action_record());
}

Row entry_row(const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry, Word word) {
  Row row;
  row.object("table", table.name()).number("entry", entry);
  add_entry(row, device, table, entry, word);
  return row;
}

void add_default_entry(Row &row, const Device &device, const TableInfo &table, Word word) {
  p4_pd_entry_handle_t entry = 0;
  Call call = device.prepare("table_get_default_entry_handle", table.name());
  check(call.set("entry", &entry).run(), word);
  EntryReader reader(device, table);
  check(reader.read(entry), word);
  if (table.indirect()) return add_target(row, reader);
  add_outcome(row, reader.action, reader.action_record());
}

void add_member(Row &row, const Device &device, const char *profile, p4_pd_member_handle_t member,
                Word word) {
  ActionSpecs specs = {};
  Call call = device.prepare("get_member", profile);
  call.set("member", uint64_t{member}).set("read_from_hardware", uint64_t{0});
  check(call.set("action_specs", &specs).run(), word);
  add_outcome(row, specs.action, reinterpret_cast<const uint8_t *>(&specs.spec));
}

void for_each_handle(Enumeration enumeration, Word word,
                     const std::function<void(uint32_t)> &visit) {
  constexpr uint32_t kNone = 0xffffffffu;
  uint32_t first = 0;
  uint64_t status = enumeration.first.set(enumeration.one, &first).run();
  if (status == BF_OBJECT_NOT_FOUND) return;
  check(status, word);
  visit(first);
  uint32_t batch[256] = {first};
  uint32_t last = first;
  enumeration.next.set("count", uint64_t{std::size(batch)}).set(enumeration.many, batch);
  while (true) {
    status = enumeration.next.set(enumeration.from, uint64_t{last}).run();
    if (status == BF_OBJECT_NOT_FOUND) return;
    check(status, word);
    check_interrupt();
    for (const uint32_t handle : batch) {
      if (handle == kNone) return;
      visit(handle);
    }
    last = batch[std::size(batch) - 1];
  }
}

void for_each_entry(const Device &device, const TableInfo &table, Word word,
                    const std::function<void(p4_pd_entry_handle_t)> &visit) {
  for_each_handle(
      {device.prepare("get_first_entry_handle", table.name()),
       device.prepare("get_next_entry_handles", table.name()), "entry", "entries", "entry"},
      word, visit);
}

void for_each_member(const Device &device, const char *profile, Word word,
                     const std::function<void(p4_pd_member_handle_t)> &visit) {
  for_each_handle({device.prepare("get_first_member", profile),
                   device.prepare("get_next_members", profile), "member", "members", "member"},
                  word, visit);
}

void for_each_group(const Device &device, const char *profile, Word word,
                    const std::function<void(p4_pd_group_handle_t)> &visit) {
  for_each_handle({device.prepare("get_first_group", profile),
                   device.prepare("get_next_groups", profile), "group", "groups", "group"},
                  word, visit);
}

void for_each_group_member(const Device &device, const char *profile, p4_pd_group_handle_t group,
                           Word word,
                           const std::function<void(p4_pd_member_handle_t, bool active)> &visit) {
  Call first = device.prepare("get_first_group_member", profile);
  Call next = device.prepare("get_next_group_members", profile);
  first.set("group", uint64_t{group});
  next.set("group", uint64_t{group});
  for_each_handle({first, next, "member", "members", "member"}, word, [&](uint32_t member) {
    uint32_t state = P4_PD_GRP_MBR_STATE_ACTIVE;
    Call call = device.prepare("group_member_state_get", profile);
    call.set("group", uint64_t{group}).set("member", uint64_t{member}).set("state", &state);
    check(call.run(), word);
    visit(member, state != P4_PD_GRP_MBR_STATE_INACTIVE);
  });
}

uint32_t register_value(unsigned width, const void *values, size_t at) {
  const size_t size = width <= 8 ? 1 : width / 8;
  uint32_t value = 0;
  memcpy(&value, static_cast<const uint8_t *>(values) + at * size, size);
  return value;
}

}  // namespace tesselctl
