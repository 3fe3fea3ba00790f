// Placement data: the contract, and the making of it.
#include <algorithm>
#include <vector>

#include "action_data_table.hpp"
#include "contract_call.hpp"
#include "match_engine.hpp"
#include "pipe_mgr_placement.h"
#include "placement.hpp"
#include "resolve.hpp"
#include "soft_placement.h"

namespace {

using soft::Placed;

// Greatest number of bytes that an action of these takes.
uint16_t longest_data(std::span<const soft_action_t> actions) {
  uint16_t longest = 0;
  for (const soft_action_t &action : actions) longest = std::max(longest, action.data_bytes);
  return longest;
}

bf_status_t place_entry(soft::MatchEngine &table, pipe_entry_handle_t entry,
                        pipe_mgr_placement_t **placement) {
  const soft_table_t &description = table.description();
  std::vector<uint8_t> value(description.key_bytes);
  std::vector<uint8_t> mask(description.key_bytes);
  std::vector<uint8_t> data(
      longest_data(soft::described(description.actions, description.action_count)));
  Placed placed{};
  pipe_mgr_match_spec_t &match = placed.fixed.match;
  pipe_mgr_action_spec_t &spec = placed.fixed.spec;
  match.byte_count = description.key_bytes;
  match.value = value.data();
  match.mask = mask.data();
  spec.data.byte_count = static_cast<uint16_t>(data.size());
  spec.data.bytes = data.data();
  const bf_status_t status = table.read(entry, &match, &spec, &placed.fixed.action);
  if (status != BF_SUCCESS) return status;
  placed.fixed.kind = Placed::Kind::kEntry;
  placed.fixed.has_key = match.value != nullptr;
  if (placed.fixed.has_key != 0) {
    placed.value = value;
    placed.mask = mask;
  }
  placed.data = std::span(data).first(spec.data.byte_count);
  *placement = soft::make_placement(placed);
  return BF_SUCCESS;
}

bf_status_t place_member(const soft_profile_t &profile, soft::ActionDataTable &table,
                         pipe_member_handle_t member, pipe_mgr_placement_t **placement) {
  std::vector<uint8_t> data(longest_data(soft::described(profile.actions, profile.action_count)));
  Placed placed{};
  pipe_mgr_action_data_t &held = placed.fixed.spec.data;
  held = {0, static_cast<uint16_t>(data.size()), data.data()};
  const bf_status_t status = table.get(member, &held, &placed.fixed.action);
  if (status != BF_SUCCESS) return status;
  placed.fixed.kind = Placed::Kind::kMember;
  placed.data = std::span(data).first(held.byte_count);
  *placement = soft::make_placement(placed);
  return BF_SUCCESS;
}

void fill_data(const Placed &placed, pipe_mgr_action_data_t *data) {
  if (data->bytes != nullptr) std::copy(placed.data.begin(), placed.data.end(), data->bytes);
  data->valid_bit_count = placed.fixed.spec.data.valid_bit_count;
  data->byte_count = placed.fixed.spec.data.byte_count;
}

void fill_key(const Placed &placed, pipe_mgr_match_spec_t *match) {
  uint8_t *const value = match->value;
  uint8_t *const mask = match->mask;
  *match = placed.fixed.match;
  if (placed.fixed.has_key == 0) return;
  std::copy(placed.value.begin(), placed.value.end(), value);
  std::copy(placed.mask.begin(), placed.mask.end(), mask);
  match->value = value;
  match->mask = mask;
}

}  // namespace

bf_status_t pipe_mgr_plcmt_mat_data_get_entry(const pipe_mgr_placement_t *placement,
                                              pipe_mgr_match_spec_t *match,
                                              pipe_mgr_action_spec_t *action_spec,
                                              pipe_object_handle_t *action) {
  return SOFT_CALL((placement, match, action_spec, action), {
    if (match == nullptr || action_spec == nullptr || action == nullptr) return BF_INVALID_ARGUMENT;
    Placed placed{};
    const bf_status_t status = soft::open_placement(placement, Placed::Kind::kEntry, &placed);
    if (status != BF_SUCCESS) return status;
    if (placed.fixed.has_key != 0 && (match->value == nullptr || match->mask == nullptr)) {
      return BF_INVALID_ARGUMENT;
    }
    fill_key(placed, match);
    pipe_mgr_action_data_t data = action_spec->data;
    fill_data(placed, &data);
    *action_spec = placed.fixed.spec;
    action_spec->data = data;
    *action = placed.fixed.action;
    return status;
  });
}

bf_status_t pipe_mgr_plcmt_adt_data_get_entry(const pipe_mgr_placement_t *placement,
                                              pipe_mgr_action_data_t *data,
                                              pipe_object_handle_t *action) {
  return SOFT_CALL((placement, data, action), {
    if (data == nullptr || action == nullptr) return BF_INVALID_ARGUMENT;
    Placed placed{};
    const bf_status_t status = soft::open_placement(placement, Placed::Kind::kMember, &placed);
    if (status != BF_SUCCESS) return status;
    fill_data(placed, data);
    *action = placed.fixed.action;
    return status;
  });
}

bf_status_t soft_placement_of_entry(bf_device_id_t device, pipe_object_handle_t table,
                                    pipe_entry_handle_t entry, pipe_mgr_placement_t **placement) {
  auto make = [&] {
    return soft::with_device(device, [&](soft::Device &found) -> bf_status_t {
      if (placement == nullptr) return BF_INVALID_ARGUMENT;
      return soft::on_object<soft::MatchEngine>(found, table, [&](soft::MatchEngine &object) {
        return place_entry(object, entry, placement);
      });
    });
  };
  return soft::guarded(make);
}

bf_status_t soft_placement_of_member(bf_device_id_t device, pipe_object_handle_t action_data_table,
                                     pipe_member_handle_t member,
                                     pipe_mgr_placement_t **placement) {
  auto make = [&] {
    return soft::with_device(device, [&](soft::Device &found) -> bf_status_t {
      if (placement == nullptr) return BF_INVALID_ARGUMENT;
      const soft_program_t &program = found.program();
      const auto profiles = soft::described(program.profiles, program.profile_count);
      const auto profile =
          std::ranges::find(profiles, action_data_table, &soft_profile_t::action_data_table);
      auto *members = found.find<soft::ActionDataTable>(action_data_table);
      if (profile == profiles.end() || members == nullptr) return BF_INVALID_HANDLE;
      return place_member(*profile, *members, member, placement);
    });
  };
  return soft::guarded(make);
}

void soft_placement_free(pipe_mgr_placement_t *placement) { ::operator delete(placement); }

void soft_placement_corrupt(pipe_mgr_placement_t *placement) {
  placement->contents()[placement->length - 1] ^= 0x40;
}
