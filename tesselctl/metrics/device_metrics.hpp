// What a device holds, as metrics.
#pragma once

#include <span>

#include "tesselctl/device/device.hpp"
#include "tesselctl/metrics/metrics_text.hpp"
#include "tesselctl/program/library.hpp"

namespace tesselctl {

// Their samples name the program and the device.
MetricsText metrics_of(const Device &device, MetricsFormat format);

// Packets and bytes of the cells that have counted, of at most so many, and how many there are.
// Throws Fault.
void add_counters(MetricsText &metrics, const Device &device,
                  std::span<const soft_counter_t> counters, uint64_t read_flags, size_t most_cells);
// Entries and capacities of tables, members and groups of profiles, meters that are set. Throws
// Fault.
void add_occupancy(MetricsText &metrics, const Device &device);

}  // namespace tesselctl
