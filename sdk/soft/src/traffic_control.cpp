// The host's control of traffic and of what it meets.
#include "contract_call.hpp"
#include "counter.hpp"
#include "match_engine.hpp"
#include "meter.hpp"
#include "resolve.hpp"
#include "selector.hpp"
#include "soft_traffic.h"
#include "wred.hpp"

namespace {

// body(T &) with the object of that type, in a pipe that the device has.
template <class T, class Body>
bf_status_t in_pipe(bf_device_id_t id, bf_pipe_id_t pipe, pipe_object_handle_t handle, Body body) {
  auto guarded_body = [&] {
    return soft::with_device(id, [&](soft::Device &device) -> bf_status_t {
      if (pipe >= device.pipes()) return BF_INVALID_PIPE;
      return soft::on_object<T>(device, handle, body);
    });
  };
  return soft::guarded(guarded_body);
}

// body(ActionDataTable &) or body(Selector &), whichever has the handle.
template <class Body>
bf_status_t on_profile(bf_device_id_t id, pipe_object_handle_t handle, Body body) {
  return soft::with_device(id, [&](soft::Device &device) -> bf_status_t {
    if (auto *members = device.find<soft::ActionDataTable>(handle)) return body(*members);
    return soft::on_object<soft::Selector>(device, handle, body);
  });
}

}  // namespace

bf_status_t soft_traffic_hit(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t table,
                             const soft_traffic_t *traffic, soft_hit_t *hit) {
  if (traffic == nullptr || hit == nullptr) return BF_INVALID_ARGUMENT;
  return in_pipe<soft::MatchEngine>(device, pipe, table, [&](soft::MatchEngine &engine) {
    return engine.pass(pipe, *traffic, hit);
  });
}

bf_status_t soft_counter_count(bf_device_id_t device, bf_pipe_id_t pipe,
                               pipe_object_handle_t counter, uint32_t index, uint64_t packets,
                               uint64_t bytes) {
  return in_pipe<soft::Counter>(device, pipe, counter, [&](soft::Counter &found) {
    return found.count(pipe, index, packets, bytes);
  });
}

bf_status_t soft_meter_mark(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t meter,
                            uint32_t index, uint64_t packets, uint64_t bytes, uint8_t *color) {
  if (color == nullptr) return BF_INVALID_ARGUMENT;
  return in_pipe<soft::Meter>(device, pipe, meter, [&](soft::Meter &found) {
    return found.mark(pipe, index, packets, bytes, color);
  });
}

bf_status_t soft_wred_get(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t wred,
                          uint32_t index, pipe_mgr_wred_spec_t *spec) {
  return in_pipe<soft::WredUnit>(device, pipe, soft::WredUnit::kHandle, [&](soft::WredUnit &unit) {
    return unit.get(pipe, wred, index, spec);
  });
}

bf_status_t soft_profile_capacity_set(bf_device_id_t device, pipe_object_handle_t table,
                                      uint32_t capacity) {
  return on_profile(device, table, [&](auto &found) -> bf_status_t {
    found.set_capacity(capacity);
    return BF_SUCCESS;
  });
}

bf_status_t soft_profile_capacity_get(bf_device_id_t device, pipe_object_handle_t table,
                                      uint32_t *capacity) {
  if (capacity == nullptr) return BF_INVALID_ARGUMENT;
  return on_profile(device, table, [&](auto &found) -> bf_status_t {
    *capacity = found.capacity();
    return BF_SUCCESS;
  });
}
