// What a device holds: soft_contents.h.
#include "soft_contents.h"

#include "resolve.hpp"
#include "selector.hpp"
#include "value_set.hpp"

bf_status_t soft_next_cell(bf_device_id_t device, pipe_object_handle_t handle, uint32_t from,
                           uint32_t *cell) {
  if (cell == nullptr) return BF_INVALID_ARGUMENT;
  return soft::with_device(device, [&](soft::Device &found) {
    return soft::on_object<soft::Object>(
        found, handle, [&](soft::Object &object) { return object.next_cell(from, cell); });
  });
}

bf_status_t soft_group_max_size(bf_device_id_t device, pipe_object_handle_t selector,
                                pipe_group_handle_t group, uint32_t *max_size) {
  if (max_size == nullptr) return BF_INVALID_ARGUMENT;
  return soft::with_device(device, [&](soft::Device &found) {
    return soft::on_object<soft::Selector>(
        found, selector, [&](soft::Selector &object) { return object.max_size(group, max_size); });
  });
}

bf_status_t soft_fallback_member(bf_device_id_t device, pipe_object_handle_t selector,
                                 pipe_member_handle_t *member) {
  if (member == nullptr) return BF_INVALID_ARGUMENT;
  return soft::with_device(device, [&](soft::Device &found) {
    return soft::on_object<soft::Selector>(
        found, selector, [&](soft::Selector &object) { return object.fallback(member); });
  });
}

bf_status_t soft_value_set_parsers(bf_device_id_t device, pipe_object_handle_t value_set,
                                   pipe_entry_handle_t entry, soft_parsers_t *parsers) {
  if (parsers == nullptr) return BF_INVALID_ARGUMENT;
  return soft::with_device(device, [&](soft::Device &found) {
    return soft::on_object<soft::ValueSet>(
        found, value_set, [&](soft::ValueSet &set) { return set.parsers_of(entry, parsers); });
  });
}
