// Placement data: the contract, and the making of it.
#include <cstring>

#include "contract/resolve.hpp"
#include "pipe_mgr_placement.h"
#include "profiles/action_data_table.hpp"
#include "soft_placement.h"
#include "tables/match_engine.hpp"
#include "tables/placement.hpp"

using namespace soft;

namespace {

bf_status_t place_entry(MatchEngine &table, pipe_entry_handle_t entry,
                        pipe_mgr_placement_t **placement) {
  const soft_table_t &description = table.description();
  const uint16_t data_room = longest_data(described(description.actions, description.action_count));
  PlacementDraft draft(placement, data_room, description.key_bytes);
  pipe_mgr_match_spec_t match{};
  match.byte_count = description.key_bytes;
  match.value = draft.value();
  match.mask = draft.mask();
  pipe_mgr_action_spec_t spec{};
  spec.data = {0, data_room, draft.data()};
  pipe_object_handle_t action = 0;
  const bf_status_t status = table.read(entry, &match, &spec, &action);
  if (status == BF_SUCCESS) draft.complete(match, spec, action);
  return status;
}

bf_status_t place_member(ActionDataTable &table, pipe_member_handle_t member,
                         pipe_mgr_placement_t **placement) {
  const uint16_t room = longest_data(table.actions());
  PlacementDraft draft(placement, room, 0);
  pipe_mgr_action_data_t data = {0, room, draft.data()};
  pipe_object_handle_t action = 0;
  const bf_status_t status = table.get(member, &data, &action);
  if (status == BF_SUCCESS) draft.complete(data, action);
  return status;
}

void fill_data(const Placed &placed, pipe_mgr_action_data_t *data) {
  const pipe_mgr_action_data_t &held = placed.head.spec.data;
  if (data->bytes != nullptr) std::memcpy(data->bytes, placed.data(), held.byte_count);
  data->valid_bit_count = held.valid_bit_count;
  data->byte_count = held.byte_count;
}

void fill_key(const Placed &placed, pipe_mgr_match_spec_t *match) {
  uint8_t *const value = match->value;
  uint8_t *const mask = match->mask;
  *match = placed.head.match;
  if (placed.head.has_key == 0) return;
  match->value = value;
  match->mask = mask;
  std::memcpy(value, placed.value(), placed.head.key_room);
  std::memcpy(mask, placed.mask(), placed.head.key_room);
}

void fill_action(const Placed &placed, pipe_mgr_action_spec_t *spec) {
  const pipe_mgr_action_data_t data = spec->data;
  *spec = placed.head.spec;
  spec->data = data;
  fill_data(placed, &spec->data);
}

bf_status_t open_entry(const pipe_mgr_placement_t *placement, pipe_mgr_match_spec_t *match,
                       pipe_mgr_action_spec_t *action_spec, pipe_object_handle_t *action) {
  if (match == nullptr || action_spec == nullptr || action == nullptr) return BF_INVALID_ARGUMENT;
  Placed placed;
  const bf_status_t status = open_placement(placement, PlacedKind::kEntry, &placed);
  if (status != BF_SUCCESS) return status;
  if (placed.head.has_key != 0 && (match->value == nullptr || match->mask == nullptr)) {
    return BF_INVALID_ARGUMENT;
  }
  fill_key(placed, match);
  fill_action(placed, action_spec);
  *action = placed.head.action;
  return status;
}

bf_status_t open_member(const pipe_mgr_placement_t *placement, pipe_mgr_action_data_t *data,
                        pipe_object_handle_t *action) {
  if (data == nullptr || action == nullptr) return BF_INVALID_ARGUMENT;
  Placed placed;
  const bf_status_t status = open_placement(placement, PlacedKind::kMember, &placed);
  if (status != BF_SUCCESS) return status;
  fill_data(placed, data);
  *action = placed.head.action;
  return status;
}

}  // namespace

bf_status_t pipe_mgr_plcmt_mat_data_get_entry(const pipe_mgr_placement_t *placement,
                                              pipe_mgr_match_spec_t *match,
                                              pipe_mgr_action_spec_t *action_spec,
                                              pipe_object_handle_t *action) {
  return SOFT_CALL((placement, match, action_spec, action),
                   open_entry(placement, match, action_spec, action));
}

bf_status_t pipe_mgr_plcmt_adt_data_get_entry(const pipe_mgr_placement_t *placement,
                                              pipe_mgr_action_data_t *data,
                                              pipe_object_handle_t *action) {
  return SOFT_CALL((placement, data, action), open_member(placement, data, action));
}

bf_status_t soft_placement_of_entry(bf_device_id_t device, pipe_object_handle_t table,
                                    pipe_entry_handle_t entry, pipe_mgr_placement_t **placement) {
  return control<place_entry>(Inside{device, table}, entry, given(placement));
}

bf_status_t soft_placement_of_member(bf_device_id_t device, pipe_object_handle_t action_data_table,
                                     pipe_member_handle_t member,
                                     pipe_mgr_placement_t **placement) {
  return control<place_member>(Inside{device, action_data_table}, member, given(placement));
}

void soft_placement_free(pipe_mgr_placement_t *placement) { ::operator delete(placement); }

void soft_placement_corrupt(pipe_mgr_placement_t *placement) {
  placement->contents()[placement->length - 1] ^= 0x40;
}
