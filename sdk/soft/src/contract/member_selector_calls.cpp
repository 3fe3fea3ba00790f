// The member-selector helper: states that shadow a profile on every device. It works beside the
// devices, not in them: a state knows what was recorded, whether or not a device of that id exists.
//
// Every change takes effect at once, whatever session makes it; the helper holds no transaction
// records. A null state or out-pointer is BF_INVALID_ARGUMENT.
#include <functional>

#include "contract/contract_call.hpp"
#include "profiles/shadow_states.hpp"

using namespace soft;

namespace {

using Item = ProfileShadow::Item;

// function(ProfileShadow &, arguments...) under the lock of the state; a device of which nothing is
// known begins empty.
template <class Function, class... Arguments>
bf_status_t on_shadow(p4_pd_ms_state_t *state, uint8_t device, const Function &function,
                      const Arguments &...arguments) {
  if (state == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(state->mutex);
  return std::invoke(function, state->devices[device], arguments...);
}

using Find = Item *(ProfileShadow::*)(uint32_t);
constexpr Find kMember = &ProfileShadow::member;
constexpr Find kGroup = &ProfileShadow::group;

// function(Item &, arguments...) for a member or a group that is there.
template <class Function, class... Arguments>
bf_status_t on_item(Find find, p4_pd_ms_state_t *state, uint8_t device, uint32_t handle,
                    const Function &function, const Arguments &...arguments) {
  return on_shadow(state, device, [&](ProfileShadow &shadow) -> bf_status_t {
    Item *item = (shadow.*find)(handle);
    if (item == nullptr) return BF_OBJECT_NOT_FOUND;
    return function(*item, arguments...);
  });
}

bf_status_t give_action(const Item &item, pipe_object_handle_t *action) {
  if (action == nullptr) return BF_INVALID_ARGUMENT;
  if (!item.action) return BF_OBJECT_NOT_FOUND;
  *action = *item.action;
  return BF_SUCCESS;
}

bf_status_t give_resources(Item &item, uint32_t *count, p4_pd_res_spec_t **resources) {
  if (count == nullptr || resources == nullptr) return BF_INVALID_ARGUMENT;
  *count = static_cast<uint32_t>(item.resources.size());
  *resources = item.resources.empty() ? nullptr : item.resources.data();
  return BF_SUCCESS;
}

// Every group that holds the member when the call begins gets its turn, in ascending order. The
// lock is not held: the callback may come back to the state.
bf_status_t apply_to_groups(p4_pd_ms_state_t *state, uint8_t device, pipe_member_handle_t member,
                            p4_pd_ms_group_cb_t callback, void *cookie) {
  if (callback == nullptr) return BF_INVALID_ARGUMENT;
  std::vector<pipe_group_handle_t> groups;
  bf_status_t status = on_item(kMember, state, device, member, [&](const Item &found) {
    groups.assign(found.partners.begin(), found.partners.end());
    return BF_SUCCESS;
  });
  for (const pipe_group_handle_t group : groups) {
    const bf_status_t result = callback(device, member, group, cookie);
    if (status == BF_SUCCESS) status = result;
  }
  return status;
}

bf_status_t copy_resources(p4_pd_ms_state_t *state, uint8_t device, pipe_member_handle_t member,
                           pipe_group_handle_t group) {
  return on_shadow(state, device, [&](ProfileShadow &shadow) -> bf_status_t {
    const Item *from = shadow.member(member);
    Item *to = shadow.group(group);
    if (from == nullptr || to == nullptr) return BF_OBJECT_NOT_FOUND;
    to->resources = from->resources;
    return BF_SUCCESS;
  });
}

// Replaces all that the state holds for the device. A document that does not look like one of a
// state changes nothing.
bf_status_t restore(p4_pd_ms_state_t *state, uint8_t device, const cJSON *document) {
  if (state == nullptr || document == nullptr) return BF_INVALID_ARGUMENT;
  if (!is_profile_document(document)) return BF_CORRUPT_DATA;
  ProfileShadow restored;
  restored.read(document);
  const std::lock_guard lock(state->mutex);
  state->devices.insert_or_assign(device, std::move(restored));
  return BF_SUCCESS;
}

bf_status_t log_state(p4_pd_ms_state_t *state, uint8_t device, cJSON *document) {
  if (!is_json_object(document)) return BF_INVALID_ARGUMENT;
  return on_shadow(state, device, [&](ProfileShadow &shadow) {
    shadow.write(document);
    return BF_SUCCESS;
  });
}

bf_status_t forget_device(p4_pd_ms_state_t *state, uint8_t device) {
  if (state == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(state->mutex);
  state->devices.erase(device);
  return BF_SUCCESS;
}

bf_status_t set_action(Item &item, pipe_object_handle_t action) {
  item.action = action;
  return BF_SUCCESS;
}

bf_status_t new_state(p4_pd_ms_state_t **state) {
  *state = new_shadow_state();
  return BF_SUCCESS;
}

}  // namespace

void p4_pd_ms_init(void) { SOFT_CALL((), BF_SUCCESS); }

p4_pd_ms_state_t *p4_pd_ms_init_state(void) {
  p4_pd_ms_state_t *state = nullptr;
  SOFT_CALL((), new_state(&state));
  return state;
}

// ---- Members ----

bf_status_t p4_pd_ms_new_mbr(pipe_session_handle_t session, p4_pd_ms_state_t *state, uint8_t device,
                             pipe_member_handle_t member) {
  return SOFT_CALL((session, state, device, member),
                   on_shadow(state, device, &ProfileShadow::add_member, member));
}

bf_status_t p4_pd_ms_set_mbr_act(p4_pd_ms_state_t *state, uint8_t device,
                                 pipe_member_handle_t member, pipe_object_handle_t action) {
  return SOFT_CALL((state, device, member, action),
                   on_item(kMember, state, device, member, set_action, action));
}

bf_status_t p4_pd_ms_get_mbr_act(p4_pd_ms_state_t *state, uint8_t device,
                                 pipe_member_handle_t member, pipe_object_handle_t *action) {
  return SOFT_CALL((state, device, member, action),
                   on_item(kMember, state, device, member, give_action, action));
}

bf_status_t p4_pd_ms_del_mbr(pipe_session_handle_t session, p4_pd_ms_state_t *state, uint8_t device,
                             pipe_member_handle_t member) {
  return SOFT_CALL((session, state, device, member),
                   on_shadow(state, device, &ProfileShadow::remove_member, member));
}

// ---- Groups ----

bf_status_t p4_pd_ms_new_grp(pipe_session_handle_t session, p4_pd_ms_state_t *state, uint8_t device,
                             pipe_group_handle_t group) {
  return SOFT_CALL((session, state, device, group),
                   on_shadow(state, device, &ProfileShadow::add_group, group));
}

bf_status_t p4_pd_ms_del_grp(pipe_session_handle_t session, p4_pd_ms_state_t *state, uint8_t device,
                             pipe_group_handle_t group) {
  return SOFT_CALL((session, state, device, group),
                   on_shadow(state, device, &ProfileShadow::remove_group, group));
}

bf_status_t p4_pd_ms_add_mbr_to_grp(pipe_session_handle_t session, p4_pd_ms_state_t *state,
                                    uint8_t device, pipe_member_handle_t member,
                                    pipe_group_handle_t group) {
  return SOFT_CALL((session, state, device, member, group),
                   on_shadow(state, device, &ProfileShadow::join, member, group));
}

bf_status_t p4_pd_ms_del_mbr_from_grp(pipe_session_handle_t session, p4_pd_ms_state_t *state,
                                      uint8_t device, pipe_member_handle_t member,
                                      pipe_group_handle_t group) {
  return SOFT_CALL((session, state, device, member, group),
                   on_shadow(state, device, &ProfileShadow::leave, member, group));
}

bf_status_t p4_pd_ms_set_grp_act(p4_pd_ms_state_t *state, uint8_t device, pipe_group_handle_t group,
                                 pipe_object_handle_t action) {
  return SOFT_CALL((state, device, group, action),
                   on_item(kGroup, state, device, group, set_action, action));
}

bf_status_t p4_pd_ms_get_grp_act(p4_pd_ms_state_t *state, uint8_t device, pipe_group_handle_t group,
                                 pipe_object_handle_t *action) {
  return SOFT_CALL((state, device, group, action),
                   on_item(kGroup, state, device, group, give_action, action));
}

// ---- Resource references ----

bf_status_t p4_pd_ms_mbr_get_res(p4_pd_ms_state_t *state, uint8_t device,
                                 pipe_member_handle_t member, uint32_t *count,
                                 p4_pd_res_spec_t **resources) {
  return SOFT_CALL((state, device, member, count, resources),
                   on_item(kMember, state, device, member, give_resources, count, resources));
}

bf_status_t p4_pd_ms_grp_get_res(p4_pd_ms_state_t *state, uint8_t device, pipe_group_handle_t group,
                                 uint32_t *count, p4_pd_res_spec_t **resources) {
  return SOFT_CALL((state, device, group, count, resources),
                   on_item(kGroup, state, device, group, give_resources, count, resources));
}

bf_status_t p4_pd_ms_mbr_apply_to_grps(p4_pd_ms_state_t *state, uint8_t device,
                                       pipe_member_handle_t member, p4_pd_ms_group_cb_t callback,
                                       void *cookie) {
  return SOFT_CALL((state, device, member, callback, cookie),
                   apply_to_groups(state, device, member, callback, cookie));
}

bf_status_t p4_pd_ms_grp_update_res(uint8_t device, pipe_member_handle_t member,
                                    pipe_group_handle_t group, void *cookie) {
  return SOFT_CALL((device, member, group, cookie),
                   copy_resources(static_cast<p4_pd_ms_state_t *>(cookie), device, member, group));
}

// ---- Device state ----

bf_status_t p4_pd_ms_log_state(uint8_t device, p4_pd_ms_state_t *state, cJSON *document) {
  return SOFT_CALL((device, state, document), log_state(state, device, document));
}

bf_status_t p4_pd_ms_restore_state(uint8_t device, p4_pd_ms_state_t *state, const cJSON *document) {
  return SOFT_CALL((device, state, document), restore(state, device, document));
}

bf_status_t p4_pd_ms_destroy_state_for_dev(p4_pd_ms_state_t *state, uint8_t device) {
  return SOFT_CALL((state, device), forget_device(state, device));
}

// There are no transaction records, so a device never has one to drop.
bf_status_t p4_pd_ms_destroy_txn_state_for_dev(uint8_t device) {
  return SOFT_CALL((device), BF_SUCCESS);
}
