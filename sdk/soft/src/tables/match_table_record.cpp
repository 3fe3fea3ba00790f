#include "tables/match_table_record.hpp"

#include <algorithm>

#include "device/device.hpp"
#include "store/expiry_wheel.hpp"

namespace soft {

EntryLayout EntryLayout::of(const soft_table_t &table) {
  EntryLayout layout;
  layout.data_bytes = longest_data(described(table.actions, table.action_count));
  layout.references = table.action_data_table != 0;
  layout.ages = table.ages_entries;
  return layout;
}

RecordLayout::RecordLayout(const soft_table_t &table, const EntryLayout &layout)
    : key_bytes(table.key_bytes),
      data_bytes(std::min(layout.data_bytes, kMostDataBytes)),
      has_mask(table.match != SOFT_EXACT),
      has_age(table.match == SOFT_TERNARY || table.compared != nullptr),
      has_reference(layout.references),
      ages(layout.ages),
      has_counter(layout.direct_counter),
      has_meter(layout.direct_meter),
      resources(std::min<uint8_t>(layout.resources, PIPE_RESOURCES_PER_ACTION)) {
  size_t at = 8;
  const auto place = [&at](bool present, size_t size) {
    const size_t offset = at;
    if (present) at += size;
    return offset;
  };
  mask = place(has_mask, sizeof(uint32_t));
  priority = place(has_mask, sizeof(uint32_t));
  value = place(true, key_bytes);
  data = place(true, data_bytes);
  reference = place(has_reference, sizeof(uint32_t));
  resource = place(resources != 0, 1 + resources * sizeof(EntryResource));
  at = (at + 3) & ~size_t{3};
  age = place(has_age, sizeof(uint64_t));
  ageing = place(ages, ExpiryWheel::kBytes);
  counter = place(has_counter, sizeof(EntryCounters));
  meter = place(has_meter, sizeof(pipe_mgr_meter_spec_t));
  bytes = at;
}

}  // namespace soft
