#include "tesselctl/metrics/device_metrics.hpp"

#include "tesselctl/device/cells.hpp"
#include "tesselctl/device/entry_texts.hpp"
#include "tesselctl/device/handles.hpp"

namespace tesselctl {

namespace {

struct Cell {
  const soft_counter_t *counter;
  std::string number;
  std::string label;
  p4_pd_counter_values_t values;

  template <class Value>
  void add_to(MetricsText &metrics, Value p4_pd_counter_values_t::*value) const {
    metrics.sample(values.*value, {{"counter", counter->name},
                                   {counter->table != 0 ? "entry" : "index", number},
                                   {"label", label}});
  }
};

void add_tables(MetricsText &metrics, const Device &device) {
  metrics.gauge("tesselctl_table_entries", "Entries of a table.", "entries");
  for (const TableInfo &table : all_tables()) {
    metrics.sample(table.keyed() ? entry_count(device, table, {}) : 0, {{"table", table.name()}});
  }
  metrics.gauge("tesselctl_table_capacity_entries",
                "The most entries that a table may have, where there is a limit.", "entries");
  for (const TableInfo &table : all_tables()) {
    const uint32_t capacity = table_capacity(device, table);
    if (capacity != 0) metrics.sample(capacity, {{"table", table.name()}});
  }
}

struct ProfileCounts {
  const char *name;
  uint64_t members = 0, groups = 0, idle_groups = 0, active = 0, inactive = 0;
};

ProfileCounts counts_of(const Device &device, const char *profile) {
  ProfileCounts counts = {profile};
  for_each_member(device, profile, {}, [&](uint32_t) { ++counts.members; });
  for_each_group(device, profile, {}, [&](uint32_t group) {
    ++counts.groups;
    const uint64_t before = counts.active;
    for_each_group_member(device, profile, group, {}, [&](uint32_t, bool active) {
      ++(active ? counts.active : counts.inactive);
    });
    if (counts.active == before) ++counts.idle_groups;
  });
  return counts;
}

void add_profiles(MetricsText &metrics, const Device &device) {
  std::vector<ProfileCounts> profiles;
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    profiles.push_back(counts_of(device, profile.name));
  }
  const auto add = [&](std::string_view name, std::string_view help,
                       uint64_t ProfileCounts::*count) {
    metrics.gauge(name, help);
    for (const ProfileCounts &profile : profiles) {
      metrics.sample(profile.*count, {{"profile", profile.name}});
    }
  };
  add("tesselctl_profile_members", "Members of an action profile.", &ProfileCounts::members);
  add("tesselctl_profile_groups", "Groups of an action profile.", &ProfileCounts::groups);
  add("tesselctl_profile_idle_groups", "Groups without an active member.",
      &ProfileCounts::idle_groups);
  metrics.gauge("tesselctl_profile_group_members", "Places of members in groups, by their state.");
  for (const ProfileCounts &profile : profiles) {
    metrics.sample(profile.active, {{"profile", profile.name}, {"state", "active"}});
    metrics.sample(profile.inactive, {{"profile", profile.name}, {"state", "inactive"}});
  }
}

void add_meters(MetricsText &metrics, const Device &device) {
  metrics.gauge("tesselctl_meter_cells", "Cells of a meter that are set.", "cells");
  for (const soft_meter_t &meter : program_rows<soft_meter_t>()) {
    uint64_t cells = 0;
    for_each_set(device, meter, [&](uint32_t, const p4_pd_bytes_meter_spec_t &) { ++cells; });
    metrics.sample(cells, {{"meter", meter.name}});
  }
}

}  // namespace

MetricsText metrics_of(const Device &device, MetricsFormat format) {
  return {format, {{"program", program().name}, {"device", std::to_string(device.id())}}};
}

void add_counters(MetricsText &metrics, const Device &device,
                  std::span<const soft_counter_t> counters, uint64_t read_flags,
                  size_t most_cells) {
  std::vector<Cell> cells;
  uint64_t left_out = 0;
  metrics.gauge("tesselctl_counted_cells", "Cells of a counter that have counted.", "cells");
  for (const soft_counter_t &counter : counters) {
    uint64_t counted = 0;
    for_each_counted(
        device, counter, read_flags, [&](uint32_t cell, const p4_pd_counter_values_t &values) {
          ++counted;
          if (cells.size() == most_cells) return void(++left_out);
          cells.push_back(
              {&counter, std::to_string(cell), counter_label(device, counter.table, cell), values});
        });
    metrics.sample(counted, {{"counter", counter.name}});
  }
  metrics.gauge("tesselctl_counted_left_out_cells",
                "Cells that have counted and are not among the packets and bytes here.", "cells");
  metrics.sample(left_out);
  metrics.counter("tesselctl_counted_packets", "Packets that a cell has counted.", "packets");
  for (const Cell &cell : cells) cell.add_to(metrics, &p4_pd_counter_values_t::packets);
  metrics.counter("tesselctl_counted_bytes", "Bytes that a cell has counted.", "bytes");
  for (const Cell &cell : cells) cell.add_to(metrics, &p4_pd_counter_values_t::bytes);
}

void add_occupancy(MetricsText &metrics, const Device &device) {
  add_tables(metrics, device);
  add_profiles(metrics, device);
  add_meters(metrics, device);
}

}  // namespace tesselctl
