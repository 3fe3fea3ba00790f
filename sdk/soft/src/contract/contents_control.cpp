// What a device holds: soft_contents.h.
#include "soft_contents.h"

#include "contract/resolve.hpp"
#include "profiles/selector.hpp"
#include "services/value_set.hpp"

using namespace soft;

bf_status_t soft_next_cell(bf_device_id_t device, pipe_object_handle_t handle, uint32_t from,
                           uint32_t *cell) {
  return on<&Object::next_cell>(Inside{device, handle}, from, given(cell));
}

bf_status_t soft_group_max_size(bf_device_id_t device, pipe_object_handle_t selector,
                                pipe_group_handle_t group, uint32_t *max_size) {
  return on<&Selector::max_size>(Inside{device, selector}, group, given(max_size));
}

bf_status_t soft_fallback_member(bf_device_id_t device, pipe_object_handle_t selector,
                                 pipe_member_handle_t *member) {
  return on<&Selector::fallback>(Inside{device, selector}, given(member));
}

bf_status_t soft_value_set_parsers(bf_device_id_t device, pipe_object_handle_t value_set,
                                   pipe_entry_handle_t entry, soft_parsers_t *parsers) {
  return on<&ValueSet::parsers_of>(Inside{device, value_set}, entry, given(parsers));
}
