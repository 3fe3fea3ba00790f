// The host's control of traffic and of what it meets.
#include "contract/resolve.hpp"
#include "profiles/selector.hpp"
#include "soft_traffic.h"
#include "stateful/counter.hpp"
#include "stateful/meter.hpp"
#include "stateful/wred.hpp"
#include "tables/match_engine.hpp"

using namespace soft;

bf_status_t soft_traffic_hit(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t table,
                             const soft_traffic_t *traffic, soft_hit_t *hit) {
  return control<&MatchEngine::pass>(InPipe{device, pipe, table}, pipe, given(traffic), given(hit));
}

bf_status_t soft_counter_count(bf_device_id_t device, bf_pipe_id_t pipe,
                               pipe_object_handle_t counter, uint32_t index, uint64_t packets,
                               uint64_t bytes) {
  return control<&Counter::count>(InPipe{device, pipe, counter}, pipe, index, packets, bytes);
}

bf_status_t soft_meter_mark(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t meter,
                            uint32_t index, uint64_t packets, uint64_t bytes, uint8_t *color) {
  return control<&Meter::mark>(InPipe{device, pipe, meter}, pipe, index, packets, bytes,
                               given(color));
}

bf_status_t soft_wred_get(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t wred,
                          uint32_t index, pipe_mgr_wred_spec_t *spec) {
  return control<&WredUnit::get>(InPipe{device, pipe, WredUnit::kHandle}, pipe, wred, index, spec);
}

bf_status_t soft_next_wred_cell(bf_device_id_t device, bf_pipe_id_t pipe,
                                pipe_object_handle_t *wred, uint32_t *index) {
  return control<&WredUnit::next>(InPipe{device, pipe, WredUnit::kHandle}, pipe, given(wred),
                                  given(index));
}

bf_status_t soft_profile_capacity_set(bf_device_id_t device, pipe_object_handle_t table,
                                      uint32_t capacity) {
  return on<&Object::set_capacity>(Inside{device, table}, capacity);
}

bf_status_t soft_profile_capacity_get(bf_device_id_t device, pipe_object_handle_t table,
                                      uint32_t *capacity) {
  return on<&Object::get_capacity>(Inside{device, table}, given(capacity));
}
