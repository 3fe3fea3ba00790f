// The host's control of tables, and memory figures.
#include "contract_call.hpp"
#include "match_engine.hpp"
#include "resolve.hpp"
#include "soft_sdk.h"

namespace {

using soft::MatchEngine;

template <class Body>
bf_status_t on_table(bf_device_id_t id, pipe_object_handle_t table, Body body) {
  auto guarded_body = [&] {
    return soft::with_device(id, [&](soft::Device &device) {
      return soft::on_object<MatchEngine>(device, table, body);
    });
  };
  return soft::guarded(guarded_body);
}

}  // namespace

bf_status_t soft_table_capacity_set(bf_device_id_t device, pipe_object_handle_t table,
                                    uint32_t capacity) {
  return on_table(device, table, [&](MatchEngine &engine) {
    return engine.set_property(PIPE_TABLE_CAPACITY, capacity, 0);
  });
}

bf_status_t soft_table_capacity_get(bf_device_id_t device, pipe_object_handle_t table,
                                    uint32_t *capacity) {
  return on_table(device, table, [&](MatchEngine &engine) {
    uint32_t argument = 0;
    return engine.get_property(PIPE_TABLE_CAPACITY, capacity, &argument);
  });
}

bf_status_t soft_lookup(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t table,
                        const uint8_t *key, uint32_t length, pipe_entry_handle_t *entry,
                        bool *is_default) {
  return soft::with_device(device, [&](soft::Device &found) -> bf_status_t {
    if (pipe >= found.pipes()) return BF_INVALID_PIPE;
    return soft::on_object<MatchEngine>(found, table, [&](MatchEngine &engine) {
      return engine.lookup(pipe, key, length, entry, is_default);
    });
  });
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
  return soft::with_device(id, [&](soft::Device &device) -> bf_status_t {
    if (handle != 0) {
      return soft::on_object<soft::Object>(device, handle, [&](soft::Object &object) {
        *bytes = object.memory_bytes();
        return bf_status_t{BF_SUCCESS};
      });
    }
    uint64_t sum = sizeof(device);
    for (const auto &object : device.objects()) sum += object->memory_bytes();
    *bytes = sum;
    return BF_SUCCESS;
  });
}
