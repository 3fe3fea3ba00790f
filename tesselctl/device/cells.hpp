// The cells of counters and meters that hold something.
#pragma once

#include <functional>

#include "p4_pd_types.h"
#include "tesselctl/device/device.hpp"
#include "tesselctl/program/library.hpp"

namespace tesselctl {

// Cells are the entries of the object's table, among them its default entry, or go by an index.
// Visits those that have counted, and those that are set. Throws Fault.
void for_each_counted(const Device &device, const soft_counter_t &counter, uint64_t read_flags,
                      const std::function<void(uint32_t, const p4_pd_counter_values_t &)> &visit);
void for_each_set(const Device &device, const soft_meter_t &meter,
                  const std::function<void(uint32_t, const p4_pd_bytes_meter_spec_t &)> &visit);

}  // namespace tesselctl
