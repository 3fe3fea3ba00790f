// What a report tells of tables, profiles, counters and meters.
#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <unordered_set>

#include "p4_pd_tessel_switch.h"
#include "soft_contents.h"
#include "tesselctl/entry_texts.hpp"
#include "tesselctl/read_back.hpp"
#include "tesselctl/report.hpp"
#include "tesselctl/value.hpp"

namespace tesselctl {

namespace {

// What the members and groups of a profile are called, and who names them.
struct Names {
  std::unordered_map<uint32_t, uint32_t> members;  // number by handle
  std::unordered_map<uint32_t, uint32_t> groups;
  std::unordered_map<uint32_t, Users> member_users;
  std::unordered_map<uint32_t, Users> group_users;
};

void append(std::string &text, std::string_view word) {
  if (!text.empty()) text += ' ';
  text += word;
}

// The value of the item as a handle.
uint32_t handle_of(const Item &item) {
  const auto number = parse_number(item.value);
  return number ? static_cast<uint32_t>(number->low) : 0;
}

EntryText entry_text(const Row &row, const TableInfo &table, const Names *names) {
  EntryText text;
  for (const Item &item : row.items()) {
    if (item.group == Row::kKey) {
      append(text.key, item_words(item));
    } else if (item.group == Row::kParameters) {
      append(text.parameters, item_words(item));
    } else if (item.name == "priority") {
      text.priority = item.value;
    } else if (item.name == "action") {
      text.action = item.value;
    } else if (table.indirect() && (item.name == "group" || item.name == "member")) {
      const auto &numbers = item.name == "group" ? names->groups : names->members;
      text.action = fmt::format("{} #{}", item.name, numbers.at(handle_of(item)));
    } else if (item.name == "ttl" && item.value != "0") {
      append(text.extras, item_words(item));
    }
  }
  return text;
}

// Key and outcome of one entry after another, as numbers.
class EntryReader {
 public:
  EntryReader(const Device &device, const TableInfo &table)
      : call_(device.prepare(table.indirect() ? "get_indirect_entry" : "get_entry", table.name())),
        key_(table.record->size) {
    call_.set("read_from_hardware", uint64_t{0});
    call_.set_if_taken("match_spec", static_cast<const void *>(key_.data()));
    call_.set_if_taken("priority", static_cast<const void *>(&priority_));
    call_.set_if_taken("no_key", static_cast<const void *>(&no_key_));
    if (table.indirect()) {
      call_.set("has_member", &has_member).set("has_group", &has_group);
      call_.set("group", &group).set("member", &member);
    } else {
      call_.set("action_name", static_cast<const void *>(nullptr)).set("action", &action);
      call_.set("action_spec", static_cast<const void *>(&parameters_));
    }
  }
  EntryReader(const EntryReader &) = delete;
  EntryReader &operator=(const EntryReader &) = delete;

  void read(uint32_t entry) { check(call_.set("entry", uint64_t{entry}).run(), {}); }
  const uint8_t *key() const { return key_.data(); }

  uint32_t action = 0;
  bool has_member = false;
  bool has_group = false;
  p4_pd_group_handle_t group = 0;
  p4_pd_member_handle_t member = 0;

 private:
  Call call_;
  std::vector<uint8_t> key_;
  p4_pd_tessel_switch_action_specs_t parameters_ = {};
  uint32_t priority_ = 0;
  bool no_key_ = false;
};

const char *match_name(const TableInfo &table) {
  if (!table.keyed()) return "keyless";
  if (table.description->match == SOFT_TERNARY) return "ternary";
  return table.description->match == SOFT_LPM ? "lpm" : "exact";
}

std::string fields_text(const TableInfo &table) {
  std::string text;
  for (const Field *field : table.shape().shown()) {
    if (!text.empty()) text += ", ";
    text += field->label;
    if (field->match != Match::exact) text += field->match == Match::lpm ? "/lpm" : "/mask";
  }
  return text;
}

const Field *prefix_field(const TableInfo &table) {
  for (const Field &field : table.shape().fields()) {
    if (field.match == Match::lpm) return &field;
  }
  return nullptr;
}

std::vector<Tally> action_tallies(const std::unordered_map<uint32_t, uint64_t> &counts) {
  std::vector<Tally> tallies;
  for (const bindings::Record &action : actions()) {
    const auto found = counts.find(action.number);
    if (found != counts.end()) tallies.push_back({action.name, found->second});
  }
  std::stable_sort(tallies.begin(), tallies.end(),
                   [](const Tally &a, const Tally &b) { return a.count > b.count; });
  return tallies;
}

class Collector {
 public:
  Collector(const Device &device, size_t limit) : device_(device), limit_(limit) {}

  void collect(DeviceReport &report) {
    for (const soft_profile_t &profile : program_rows<soft_profile_t>()) name_parts(profile);
    for (const bindings::Record &record : tables()) {
      report.tables.push_back(table_report(resolve_table({record.name, 0})));
    }
    for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
      report.profiles.push_back(profile_report(profile));
    }
    for (const soft_counter_t &counter : program_rows<soft_counter_t>()) {
      CounterReport found = counter_report(counter);
      if (found.cells != 0) report.counters.push_back(std::move(found));
    }
    for (const soft_meter_t &meter : program_rows<soft_meter_t>()) {
      MeterReport found = meter_report(meter);
      if (found.cells != 0) report.meters.push_back(std::move(found));
    }
  }

 private:
  void name_parts(const soft_profile_t &profile) {
    Names &names = names_[profile.action_data_table];
    for_each_member(device_, profile.name, {}, [&](uint32_t member) {
      names.members.emplace(member, static_cast<uint32_t>(names.members.size() + 1));
    });
    for_each_group(device_, profile.name, {}, [&](uint32_t group) {
      names.groups.emplace(group, static_cast<uint32_t>(names.groups.size() + 1));
    });
  }

  // ---- Tables ----

  uint64_t capacity_of(const TableInfo &table) const {
    uint32_t value = 0;
    uint32_t argument = 0;
    Call call = device_.prepare("get_property", table.name());
    call.set("property", uint64_t{PIPE_TABLE_CAPACITY});
    const uint64_t status = call.set("value", &value).set("argument", &argument).run();
    return status == BF_SUCCESS ? value : 0;
  }

  // The entry that a table answers with by default; nothing where it has none.
  std::optional<uint32_t> default_entry(const TableInfo &table) const {
    uint32_t entry = 0;
    Call call = device_.prepare("table_get_default_entry_handle", table.name());
    if (call.set("entry", &entry).run() != BF_SUCCESS) return std::nullopt;
    return entry;
  }

  EntryText text_of(const TableInfo &table, uint32_t entry) {
    Row row;
    add_entry(row, device_, table, entry, {});
    return entry_text(row, table, names_of(table));
  }

  const Names *names_of(const TableInfo &table) {
    return table.indirect() ? &names_[table.description->action_data_table] : nullptr;
  }

  TableReport table_report(const TableInfo &table) {
    TableReport report;
    report.name = table.name();
    report.match = match_name(table);
    report.fields = fields_text(table);
    report.capacity = capacity_of(table);
    if (default_entry(table)) {
      Row row;
      add_default_entry(row, device_, table, {});
      report.default_entry = entry_text(row, table, names_of(table));
    }
    if (table.keyed()) read_entries(table, report);
    return report;
  }

  void read_entries(const TableInfo &table, TableReport &report) {
    EntryReader reader(device_, table);
    const Field *prefix = prefix_field(table);
    std::unordered_map<uint32_t, uint64_t> actions;
    for_each_entry(device_, table, {}, [&](uint32_t entry) {
      reader.read(entry);
      if (report.first.size() < limit_) report.first.push_back(text_of(table, entry));
      ++report.entries;
      if (table.indirect()) return note_user(table, reader, entry);
      ++actions[reader.action];
      if (prefix == nullptr) return;
      if (report.lengths.empty()) report.lengths.resize(prefix->width + 1);
      ++report.lengths[*prefix_length_of(load_value(*prefix, reader.key()).mask, prefix->width)];
    });
    report.actions = action_tallies(actions);
  }

  void note_user(const TableInfo &table, const EntryReader &reader, uint32_t entry) {
    if (!reader.has_group && !reader.has_member) return;
    Names &names = names_[table.description->action_data_table];
    Users &users =
        reader.has_group ? names.group_users[reader.group] : names.member_users[reader.member];
    if (users.first.size() < kShownUsers) {
      users.first.push_back(fmt::format("{} {}", table.name(), text_of(table, entry).key));
    }
    ++users.count;
  }

  // ---- Profiles ----

  MemberReport member_report(const soft_profile_t &profile, uint32_t member, bool active) {
    Names &names = names_[profile.action_data_table];
    Row row;
    add_member(row, device_, profile.name, member, {});
    MemberReport report;
    report.number = names.members.at(member);
    report.active = active;
    report.users = names.member_users[member];
    for (const Item &item : row.items()) {
      if (item.group == Row::kParameters) append(report.parameters, item_words(item));
      if (item.name == "action") report.action = item.value;
    }
    return report;
  }

  ProfileReport profile_report(const soft_profile_t &profile) {
    Names &names = names_[profile.action_data_table];
    ProfileReport report;
    report.name = profile.name;
    report.members = names.members.size();
    report.groups = names.groups.size();
    for (const soft_table_t &table : program_rows<soft_table_t>()) {
      if (table.action_data_table == profile.action_data_table) append(report.tables, table.name);
    }
    std::unordered_set<uint32_t> grouped;
    for_each_group(device_, profile.name, {}, [&](uint32_t group) {
      GroupReport found;
      const bool kept = report.first_groups.size() < limit_;
      for_each_group_member(device_, profile.name, group, {}, [&](uint32_t member, bool active) {
        grouped.insert(member);
        ++found.members;
        found.active += active ? 1 : 0;
        if (!kept || found.first.size() >= limit_) return;
        found.first.push_back(member_report(profile, member, active));
      });
      finish_group(profile, group, found);
      if (found.is_remarkable()) note_remarkable(report, found);
      if (kept) report.first_groups.push_back(std::move(found));
    });
    for_each_member(device_, profile.name, {}, [&](uint32_t member) {
      if (grouped.contains(member)) return;
      ++report.loose;
      if (report.first_loose.size() < limit_)
        report.first_loose.push_back(member_report(profile, member, true));
    });
    pipe_member_handle_t fallback = 0;
    if (soft_fallback_member(device_.id(), profile.selector, &fallback) == BF_SUCCESS) {
      report.fallback = names.members.at(fallback);
    }
    return report;
  }

  void note_remarkable(ProfileReport &report, const GroupReport &group) const {
    if (report.remarkable++ >= limit_) return;
    report.first_remarkable.push_back(group);
    report.first_remarkable.back().first.clear();
  }

  void finish_group(const soft_profile_t &profile, uint32_t group, GroupReport &report) {
    Names &names = names_[profile.action_data_table];
    uint32_t size = 0;
    check(soft_group_max_size(device_.id(), profile.selector, group, &size), {});
    report.size = size;
    report.number = names.groups.at(group);
    report.users = names.group_users[group];
  }

  // ---- Cells ----

  // Visits the cells of a counter or meter: the entries of its table with the default entry, or
  // those cells that the device keeps something in.
  template <class Resource>
  void for_each_cell(const Resource &resource, const std::function<void(uint32_t)> &visit) {
    if (resource.table != 0) {
      const TableInfo table = table_of(resource.table);
      if (table.keyed()) for_each_entry(device_, table, {}, visit);
      if (const auto entry = default_entry(table)) visit(*entry);
      return;
    }
    uint32_t cell = 0;
    while (soft_next_cell(device_.id(), resource.handle, cell, &cell) == BF_SUCCESS) {
      check_interrupt();
      visit(cell);
      if (++cell == 0) return;
    }
  }

  static TableInfo table_of(uint32_t handle) {
    const auto rows = program_rows<soft_table_t>();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const soft_table_t &table) {
      return table.handle == handle;
    });
    return resolve_table({found->name, 0});
  }

  // What the library calls a counted entry, else its key.
  std::string label_of(uint32_t table_handle, uint32_t cell) {
    if (table_handle == 0) return fmt::format("cell {}", cell);
    const std::string label = counter_label(device_, table_handle, cell);
    if (!label.empty()) return label;
    return entry_label(table_handle, cell);
  }

  std::string entry_label(uint32_t table_handle, uint32_t entry) {
    const TableInfo table = table_of(table_handle);
    if (default_entry(table) == entry) return "default entry";
    const EntryText text = text_of(table, entry);
    if (!text.key.empty()) return text.key;
    return text.priority.empty() ? "any" : "any, priority " + text.priority;
  }

  CounterReport counter_report(const soft_counter_t &counter) {
    struct Counted {
      uint32_t cell;
      p4_pd_counter_values_t values;
    };
    CounterReport report;
    report.name = counter.name;
    if (counter.table != 0) report.table = table_of(counter.table).name();
    std::vector<Counted> cells;
    p4_pd_counter_values_t values = {};
    Call call = device_.prepare("counter_read", counter.name);
    call.set("flags", uint64_t{P4_PD_READ_FROM_HARDWARE}).set("values", &values);
    for_each_cell(counter, [&](uint32_t cell) {
      call.set(counter.table != 0 ? "entry" : "index", uint64_t{cell});
      // Default entries may be without a cell.
      if (call.run() != BF_SUCCESS) return;
      if ((values.packets | values.bytes) == 0) return;
      cells.push_back({cell, values});
      report.packets += values.packets;
      report.bytes += values.bytes;
    });
    report.cells = cells.size();
    std::stable_sort(cells.begin(), cells.end(), [](const Counted &a, const Counted &b) {
      return a.values.packets != b.values.packets ? a.values.packets > b.values.packets
                                                  : a.values.bytes > b.values.bytes;
    });
    cells.resize(std::min(cells.size(), limit_));
    for (const Counted &counted : cells) {
      report.top.push_back(
          {label_of(counter.table, counted.cell), counted.values.packets, counted.values.bytes});
    }
    return report;
  }

  MeterReport meter_report(const soft_meter_t &meter) {
    MeterReport report;
    report.name = meter.name;
    report.counts_packets = meter.unit == PIPE_RATE_PACKETS;
    if (meter.table != 0) report.table = table_of(meter.table).name();
    p4_pd_bytes_meter_spec_t spec = {};
    Call call = device_.prepare("meter_read", meter.name);
    call.set("meter_spec", &spec);
    for_each_cell(meter, [&](uint32_t cell) {
      call.set(meter.table != 0 ? "entry" : "index", uint64_t{cell});
      if (call.run() != BF_SUCCESS) return;
      ++report.cells;
      if (report.first.size() >= limit_) return;
      const std::string label =
          meter.table != 0 ? entry_label(meter.table, cell) : fmt::format("cell {}", cell);
      report.first.push_back(
          {label, {spec.committed_rate, spec.peak_rate}, {spec.committed_burst, spec.peak_burst}});
    });
    return report;
  }

  static constexpr size_t kShownUsers = 3;

  const Device &device_;
  size_t limit_;
  std::unordered_map<uint32_t, Names> names_;  // by action-data table
};

}  // namespace

DeviceReport collect_report(const Device &device, std::string source, size_t limit) {
  DeviceReport report;
  report.source = std::move(source);
  report.pipes = device.pipes();
  Collector(device, limit).collect(report);
  report.others = collect_others(device, limit);
  return report;
}

}  // namespace tesselctl
