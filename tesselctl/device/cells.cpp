#include "tesselctl/device/cells.hpp"

#include "tesselctl/device/handles.hpp"
#include "tesselctl/device/read_back.hpp"

namespace tesselctl {

namespace {

// Runs a call that reads a cell, for each that there can be; visits those that the device reads.
// Default entries may be without a cell.
template <class Resource>
void for_each_read(const Device &device, const Resource &resource, Call &call,
                   const std::function<void(uint32_t)> &visit) {
  uint64_t &address = call.word(resource.table != 0 ? "entry" : "index");
  const auto read = [&](uint32_t cell) {
    address = cell;
    if (call.run() == BF_SUCCESS) visit(cell);
  };
  if (resource.table == 0) return for_each_cell(device, resource.handle, read);
  const EntryReader reader(device, table_of_handle(resource.table), EntryReader::Resources::none);
  if (reader.table().keyed()) for_each_entry(device, reader.table(), {}, read);
  if (const auto entry = reader.default_entry()) read(*entry);
}

}  // namespace

void for_each_counted(const Device &device, const soft_counter_t &counter, uint64_t read_flags,
                      const std::function<void(uint32_t, const p4_pd_counter_values_t &)> &visit) {
  p4_pd_counter_values_t values = {};
  Call call = device.prepare("counter_read", counter.name);
  call.set("flags", read_flags).set("values", &values);
  for_each_read(device, counter, call, [&](uint32_t cell) {
    if ((values.packets | values.bytes) != 0) visit(cell, values);
  });
}

void for_each_set(const Device &device, const soft_meter_t &meter,
                  const std::function<void(uint32_t, const p4_pd_bytes_meter_spec_t &)> &visit) {
  p4_pd_bytes_meter_spec_t spec = {};
  Call call = device.prepare("meter_read", meter.name);
  call.set("meter_spec", &spec);
  for_each_read(device, meter, call, [&](uint32_t cell) { visit(cell, spec); });
}

}  // namespace tesselctl
