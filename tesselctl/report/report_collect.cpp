// What a report shows of tables, profiles, counters and meters.
#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <unordered_set>

#include "p4_pd_types.h"
#include "soft_contents.h"
#include "tesselctl/device/cells.hpp"
#include "tesselctl/device/entry_texts.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/kinds/profile_items.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/report/report.hpp"

namespace tesselctl {

namespace {

// Who names the members and groups of a profile, by their numbers.
struct UsersOf {
  std::unordered_map<uint32_t, Users> members;
  std::unordered_map<uint32_t, Users> groups;
};

void append(std::string &text, std::string_view word) {
  if (!text.empty()) text += ' ';
  text += word;
}

EntryText entry_text(const Row &row) {
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
    } else if (item.name == "group" || item.name == "member") {
      text.action = item.name + " " + item.value;
    } else if (item.name == "ttl" && item.value != "0") {
      append(text.extras, item_words(item));
    }
  }
  return text;
}

EntryText entry_text(const TableInfo &table, const ItemView &item) {
  Row row;
  add_entry(row, table, item, Naming::numbers);
  return entry_text(row);
}

const Field *prefix_field(const TableInfo &table) {
  for (const Field &field : table.record->shown()) {
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

// Whether the page has a section of its own for such objects.
bool has_section(const ItemKind &kind) {
  static constexpr std::string_view kSections[] = {"table", "profile", "counter", "meter"};
  return std::ranges::find(kSections, kind.object.keyword) != std::end(kSections);
}

class Collector {
 public:
  Collector(const Device &device, size_t limit)
      : device_(device),
        limit_(limit),
        numbering_(Numbering::of_device(device)),
        from_{device, numbering_} {}

  void collect(DeviceReport &report) {
    for (const TableInfo &table : all_tables()) report.tables.push_back(table_report(table));
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
    for (const ItemKind *kind : kinds()) {
      for (size_t i = 0; const char *name = kind->object.name(i); ++i) {
        if (!has_section(*kind)) add_other(report.others, *kind, name);
      }
    }
  }

 private:
  // ---- Tables ----

  TableReport table_report(const TableInfo &table) {
    TableReport report;
    report.name = table.name();
    report.match = match_name(table);
    report.fields = key_text(table, ", ");
    report.capacity = table_capacity(device_, table);
    read_items("default", table.name(),
               [&](const ItemView &item) { report.default_entry = entry_text(table, item); });
    read_entries(table, report);
    return report;
  }

  void read_entries(const TableInfo &table, TableReport &report) {
    const Field *prefix = prefix_field(table);
    std::unordered_map<uint32_t, uint64_t> actions;
    read_items("entry", table.name(), [&](const ItemView &item) {
      const EntryHead head = head_of(item.value);
      if (report.first.size() < limit_) report.first.push_back(entry_text(table, item));
      ++report.entries;
      if (table.indirect()) return note_user(table, head, item);
      ++actions[head.number];
      if (prefix == nullptr) return;
      if (report.lengths.empty()) report.lengths.resize(prefix->width + 1);
      const auto *key = reinterpret_cast<const uint8_t *>(item.identity.data());
      ++report.lengths[*prefix_length_of(load_value(*prefix, key).mask, prefix->width)];
    });
    report.actions = action_tallies(actions);
  }

  void note_user(const TableInfo &table, const EntryHead &head, const ItemView &item) {
    if (head.outcome == EntryHead::kNothing) return;
    UsersOf &users = users_[table.description->action_data_table];
    Users &of_one = (head.outcome == EntryHead::kGroup ? users.groups : users.members)[head.number];
    if (of_one.first.size() < kShownUsers) {
      of_one.first.push_back(fmt::format("{} {}", table.name(), entry_text(table, item).key));
    }
    ++of_one.count;
  }

  // ---- Profiles ----

  ProfileReport profile_report(const soft_profile_t &profile) {
    ProfileReport report;
    report.name = profile.name;
    for (const soft_table_t &table : program_rows<soft_table_t>()) {
      if (table.action_data_table == profile.action_data_table) append(report.tables, table.name);
    }
    std::map<uint32_t, MemberReport> members;
    read_items("member", profile.name, [&](const ItemView &item) {
      ++report.members;
      MemberReport &member = members[read_bytes<uint32_t>(item.identity)];
      Row row;
      add_action(row, item.value);
      const EntryText text = entry_text(row);
      member.action = text.action;
      member.parameters = text.parameters;
    });
    UsersOf &users = users_[profile.action_data_table];
    for (auto &[number, member] : members) {
      member.number = number;
      member.users = users.members[number];
    }
    std::unordered_set<uint32_t> grouped;
    read_items("group", profile.name, [&](const ItemView &item) {
      GroupReport group = group_report(item, members, grouped);
      group.users = users.groups[group.number];
      ++report.groups;
      if (group.is_remarkable()) note_remarkable(report, group);
      if (report.first_groups.size() < limit_) report.first_groups.push_back(std::move(group));
    });
    for (const auto &[number, member] : members) {
      if (grouped.contains(number)) continue;
      ++report.loose;
      if (report.first_loose.size() < limit_) report.first_loose.push_back(member);
    }
    read_items("fallback", profile.name,
               [&](const ItemView &item) { report.fallback = read_bytes<uint32_t>(item.value); });
    return report;
  }

  GroupReport group_report(const ItemView &item, const std::map<uint32_t, MemberReport> &members,
                           std::unordered_set<uint32_t> &grouped) const {
    const GroupValue value(item.value);
    GroupReport group;
    group.number = read_bytes<uint32_t>(item.identity);
    group.size = value.size;
    group.members = value.members.size();
    for (const Membership &membership : value.members) {
      grouped.insert(membership.member);
      group.active += membership.is_active;
      if (group.first.size() >= limit_) continue;
      group.first.push_back(members.at(membership.member));
      group.first.back().active = membership.is_active != 0;
    }
    return group;
  }

  void note_remarkable(ProfileReport &report, const GroupReport &group) const {
    if (report.remarkable++ >= limit_) return;
    report.first_remarkable.push_back(group);
    report.first_remarkable.back().first.clear();
  }

  // The items of a table or profile whose kind has that keyword.
  void read_items(std::string_view keyword, const char *object, const ItemVisitor &visit) {
    for (const ItemKind *kind : kinds()) {
      if (kind->keyword != keyword) continue;
      const auto items = kind->open(object);
      if (items) items->read(from_, visit);
    }
  }

  // ---- Cells ----

  // What the library calls a counted entry, else its key.
  std::string label_of(uint32_t table_handle, uint32_t cell) {
    if (table_handle == 0) return fmt::format("cell {}", cell);
    const std::string label = counter_label(device_, table_handle, cell);
    if (!label.empty()) return label;
    return entry_label(table_handle, cell);
  }

  std::string entry_label(uint32_t table_handle, uint32_t entry) {
    EntryReader reader(device_, table_of_handle(table_handle), EntryReader::Resources::none);
    if (reader.default_entry() == entry) return "default entry";
    ItemBytes item;
    check(reader.read(entry, item), {});
    const EntryText text = entry_text(reader.table(), item.view());
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
    if (counter.table != 0) report.table = table_of_handle(counter.table).name();
    std::vector<Counted> cells;
    const auto note = [&](uint32_t cell, const p4_pd_counter_values_t &values) {
      cells.push_back({cell, values});
      report.packets += values.packets;
      report.bytes += values.bytes;
    };
    for_each_counted(device_, counter, P4_PD_READ_FROM_HARDWARE, note);
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
    if (meter.table != 0) report.table = table_of_handle(meter.table).name();
    for_each_set(device_, meter, [&](uint32_t cell, const p4_pd_bytes_meter_spec_t &spec) {
      ++report.cells;
      if (report.first.size() >= limit_) return;
      const std::string label =
          meter.table != 0 ? entry_label(meter.table, cell) : fmt::format("cell {}", cell);
      report.first.push_back(
          {label, {spec.committed_rate, spec.peak_rate}, {spec.committed_burst, spec.peak_burst}});
    });
    return report;
  }

  // ---- What else the device holds ----

  void add_other(std::vector<OtherReport> &others, const ItemKind &kind, const char *name) {
    const auto items = kind.open(name);
    if (!items) return;
    OtherReport other = {std::string(kind.object.noun), name, {}};
    uint64_t count = 0;
    items->read(from_, [&](const ItemView &item) {
      if (count++ >= limit_) return;
      Row row;
      items->add_to(row, item, Naming::numbers);
      other.text += (count == 1 ? "" : "; ") + row.words();
    });
    if (count > limit_) other.text += fmt::format(" and {} more", grouped(count - limit_));
    if (count != 0) others.push_back(std::move(other));
  }

  static constexpr size_t kShownUsers = 3;

  const Device &device_;
  size_t limit_;
  Numbering numbering_;
  Source from_;
  std::unordered_map<uint32_t, UsersOf> users_;  // by action-data table
};

}  // namespace

DeviceReport collect_report(const Device &device, std::string source, size_t limit) {
  DeviceReport report;
  report.source = std::move(source);
  report.pipes = device.pipes();
  Collector(device, limit).collect(report);
  return report;
}

}  // namespace tesselctl
