#include "codec/decode.hpp"

#include <string.h>

#include "codec/bytes.hpp"

namespace pd {

namespace {

uint8_t *member(void *record, uint16_t offset) { return static_cast<uint8_t *>(record) + offset; }

void decode_field(const uint8_t *bytes, const KeyField &field, uint8_t *out) {
  if (field.storage == 16) {
    memcpy(out, bytes, 16);
  } else {
    store(out, field.storage, load_big_endian(bytes, field.bytes));
  }
}

// Counts from the lowest bit of the address upward.
uint16_t prefix_length(const uint8_t *mask, const KeyField &field) {
  for (unsigned zeros = 0; zeros < field.width; ++zeros) {
    const unsigned byte = field.bytes - 1u - zeros / 8;
    if ((mask[byte] >> zeros % 8 & 1) != 0) return static_cast<uint16_t>(field.width - zeros);
  }
  return 0;
}

}  // namespace

void decode_key(const Table &table, const uint8_t *value, void *match_spec) {
  memset(match_spec, 0, table.record_size);
  for (unsigned i = 0; i < table.field_count; ++i) {
    const KeyField &field = table.key[i];
    decode_field(value + field.position, field, member(match_spec, field.offset));
  }
}

void decode_mask(const Table &table, const uint8_t *mask, void *match_spec) {
  for (unsigned i = 0; i < table.field_count; ++i) {
    const KeyField &field = table.key[i];
    uint8_t *out = member(match_spec, field.companion);
    if (field.match == Match::ternary) {
      decode_field(mask + field.position, field, out);
    } else if (field.match == Match::lpm) {
      store(out, 2, prefix_length(mask + field.position, field));
    }
  }
}

uint32_t ResourceList::fill(p4_pd_res_spec_t *items, const pipe_mgr_action_spec_t &spec,
                            uint32_t listed) {
  uint32_t count = 0;
#pragma GCC unroll 4
  for (uint32_t i = 0; i < PIPE_RESOURCES_PER_ACTION; ++i) {
    const pipe_mgr_resource_t &resource = spec.resources[i];
    if (resource.tag == PIPE_RESOURCE_ATTACH) items[count++] = {resource.handle, resource.index};
    if (i + 1 == listed) break;
  }
  return count;
}

uint32_t resource_index(const Param &param, const p4_pd_res_spec_t *resources, uint32_t count) {
  if (count == 0) return 0xffffffffu;
  uint32_t index = 0;
  for (const uint32_t wanted : param.index_of) {
    if (wanted == 0) break;
    for (uint32_t i = 0; i < count; ++i) {
      if (resources[i].handle == wanted) index = resources[i].index;
    }
  }
  return index;
}

void decode_action(const Action &action, const uint8_t *data, const p4_pd_res_spec_t *resources,
                   uint32_t resource_count, void *action_spec) {
  memset(action_spec, 0, action.record_size);
  for (unsigned i = 0; i < action.param_count; ++i) {
    const Param &param = action.params[i];
    const uint32_t value = param.is_index() ? resource_index(param, resources, resource_count)
                                            : load_big_endian(data + param.position, param.bytes);
    store(member(action_spec, param.offset), param.storage, value);
  }
}

const Action *find_action(const Pair *pairs, uint32_t pair_count, uint32_t handle) {
  for (uint32_t i = 0; i < pair_count; ++i) {
    if (pairs[i].handle == handle) return pairs[i].action;
  }
  return nullptr;
}

ReadKey::ReadKey(const Table &table, bool with_counts) : table_(table) {
  clear(spec);
  if (table.kind == Kind::keyless) return;
  memset(value, 0, table.key_bytes);
  memset(mask, 0, table.key_bytes);
  spec.value = value;
  spec.mask = mask;
  if (with_counts) {
    spec.valid_bit_count = table.key_bits;
    spec.byte_count = table.key_bytes;
  }
}

void ReadKey::decode(void *match_spec) const {
  decode_key(table_, spec.value, match_spec);
  if (table_.kind != Kind::exact) decode_mask(table_, spec.mask, match_spec);
}

}  // namespace pd
