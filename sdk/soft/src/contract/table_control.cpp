// The host's control of tables, and memory figures.
#include "contract/resolve.hpp"
#include "soft_sdk.h"
#include "tables/match_engine.hpp"

using namespace soft;

namespace {

bf_status_t device_memory(const Device &device, uint64_t *bytes) {
  uint64_t sum = sizeof(device);
  for (const auto &object : device.objects()) sum += object->memory_bytes();
  *bytes = sum;
  return BF_SUCCESS;
}

}  // namespace

bf_status_t soft_table_capacity_set(bf_device_id_t device, pipe_object_handle_t table,
                                    uint32_t capacity) {
  return control<&MatchEngine::set_property>(Inside{device, table}, PIPE_TABLE_CAPACITY, capacity,
                                             0u);
}

bf_status_t soft_table_capacity_get(bf_device_id_t device, pipe_object_handle_t table,
                                    uint32_t *capacity) {
  uint32_t argument = 0;
  return control<&MatchEngine::get_property>(Inside{device, table}, PIPE_TABLE_CAPACITY,
                                             given(capacity), &argument);
}

bf_status_t soft_lookup(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t table,
                        const uint8_t *key, uint32_t length, pipe_entry_handle_t *entry,
                        bool *is_default) {
  return on<&MatchEngine::lookup>(InPipe{device, pipe, table}, pipe, key, length, given(entry),
                                  is_default);
}

bf_status_t soft_packet(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t table,
                        const uint8_t *key, uint32_t length, uint32_t packet_bytes,
                        pipe_entry_handle_t *entry, bool *is_default) {
  if (entry == nullptr) return BF_INVALID_ARGUMENT;
  const soft_traffic_t packet{key, length, nullptr, 0, 1, packet_bytes};
  soft_hit_t hit;
  const bf_status_t status = soft_traffic_hit(device, pipe, table, &packet, &hit);
  if (status != BF_SUCCESS) return status;
  *entry = hit.entry;
  if (is_default != nullptr) *is_default = hit.is_default;
  return BF_SUCCESS;
}

bf_status_t soft_memory_bytes(bf_device_id_t id, pipe_object_handle_t handle, uint64_t *bytes) {
  if (bytes == nullptr) return BF_INVALID_ARGUMENT;
  if (handle != 0) return read<&Object::memory_bytes>(Inside{id, handle}, bytes);
  return with_device(id, [&](const Device &device) { return device_memory(device, bytes); });
}
