// From the pipeline manager's bytes back to typed records, in loops over the descriptors that the
// encoders unroll. decode_unrolled.hpp does the same for one table.
#pragma once

#include "bf_sys.h"
#include "codec/bytes.hpp"
#include "descriptor.hpp"

namespace pd {

// Fills the match spec record of the table from value bytes; everything else in it becomes zero.
void decode_key(const Table &table, const uint8_t *value, void *match_spec);

// Adds the masks of ternary fields and the prefix lengths of lpm fields. An lpm mask with holes
// reads as the prefix that ends at its lowest set bit.
void decode_mask(const Table &table, const uint8_t *mask, void *match_spec);

// The resources that an action attaches, packed. Allocated by the SDK's allocator.
class ResourceList {
 public:
  ResourceList() = default;
  ResourceList(const ResourceList &) = delete;
  ResourceList &operator=(const ResourceList &) = delete;
  ~ResourceList() {
    if (items_ != nullptr) bf_sys_free(items_);
  }

  // P4_PD_NO_MEMORY, or BF_SUCCESS. A spec without resources allocates nothing.
  PD_INLINE p4_pd_status_t build(const pipe_mgr_action_spec_t &spec) {
    const uint32_t listed = held(spec.resource_count, PIPE_RESOURCES_PER_ACTION);
    if (listed == 0) return BF_SUCCESS;
    items_ = static_cast<p4_pd_res_spec_t *>(bf_sys_calloc(listed, sizeof *items_));
    if (items_ == nullptr) return P4_PD_NO_MEMORY;
    count_ = fill(items_, spec, listed);
    return BF_SUCCESS;
  }

  const p4_pd_res_spec_t *items() const { return items_; }
  uint32_t count() const { return count_; }

 private:
  // How many of the resources are attached. What it is given stays in registers.
  static uint32_t fill(p4_pd_res_spec_t *items, const pipe_mgr_action_spec_t &spec,
                       uint32_t listed);

  p4_pd_res_spec_t *items_ = nullptr;
  uint32_t count_ = 0;
};

// The value of a resource-index parameter.
uint32_t resource_index(const Param &param, const p4_pd_res_spec_t *resources, uint32_t count);

// Fills the action spec record of the action from action data. A resource-index parameter reads
// 0xffffffff when nothing is attached and 0 when only other resources are.
void decode_action(const Action &action, const uint8_t *data, const p4_pd_res_spec_t *resources,
                   uint32_t resource_count, void *action_spec);

// The action that a table or profile carries under a handle; null when it is foreign.
const Action *find_action(const Pair *pairs, uint32_t pair_count, uint32_t handle);

// An action spec with a zeroed buffer for the action data to be read back.
struct ReadAction {
  pipe_mgr_action_spec_t spec;
  uint8_t bytes[limits::action_data];

  explicit ReadAction(uint16_t byte_count) : bytes{} {
    clear(spec);
    spec.data.byte_count = byte_count;
    spec.data.bytes = bytes;
  }
};

// A match spec with zeroed buffers for the key to be read back.
struct ReadKey {
  pipe_mgr_match_spec_t spec;
  uint8_t value[limits::key];
  uint8_t mask[limits::key];

  // With the table's counts set as an encoder sets them, or left 0.
  ReadKey(const Table &table, bool with_counts);
  bool has_key() const { return spec.value != nullptr; }
  // The value, and the mask where the table's kind has one.
  void decode(void *match_spec) const;

 private:
  const Table &table_;
};

}  // namespace pd
