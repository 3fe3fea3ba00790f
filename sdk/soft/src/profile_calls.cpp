// The functions of the contract that concern action profiles: members, groups, update callbacks.
//
// Members and groups are in all pipes; a pipe is checked and then of no account. Flags are not
// looked at.
#include "pipe_mgr_profile.h"

#include "contract_call.hpp"
#include "resolve.hpp"
#include "selector.hpp"

using soft::ActionDataTable;
using soft::Selector;

namespace {

using Word = std::array<pipe_member_handle_t, soft::SelectorSlots::kWordSlots>;

// As many members of a word as there is room for; the slots behind them hold 0xffffffff.
bf_status_t copy_word(Selector &selector, uint32_t word, uint32_t count,
                      pipe_member_handle_t *members) {
  if (members == nullptr && count != 0) return BF_INVALID_ARGUMENT;
  Word held;
  const uint32_t copied = std::min(selector.active_in_word(word, &held), count);
  std::copy_n(held.begin(), copied, members);
  std::fill_n(members + copied, count - copied, soft::kNoHandle);
  return BF_SUCCESS;
}

bf_status_t state_of(Selector &selector, pipe_group_handle_t group, pipe_member_handle_t member,
                     uint32_t *state) {
  if (state == nullptr) return BF_INVALID_ARGUMENT;
  bool active = false;
  const bf_status_t status = selector.is_active(group, member, &active);
  if (status == BF_SUCCESS) *state = active ? PIPE_MEMBER_ACTIVE : PIPE_MEMBER_INACTIVE;
  return status;
}

}  // namespace

// ---- Members ----

bf_status_t pipe_mgr_adt_ent_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t action_data_table,
                                 pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec,
                                 pipe_member_handle_t *member, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, action_data_table, action, action_spec, member, flags), {
    return soft::with_piped_object<ActionDataTable>(
        session, device, pipe, action_data_table,
        [&](ActionDataTable &table) { return table.add(session, action, action_spec, member); });
  });
}

bf_status_t pipe_mgr_adt_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t action_data_table,
                                 pipe_member_handle_t member, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec, uint32_t flags) {
  return SOFT_CALL((session, device, action_data_table, member, action, action_spec, flags), {
    return soft::with_object<ActionDataTable>(
        session, device, action_data_table,
        [&](ActionDataTable &table) { return table.set(session, member, action, action_spec); });
  });
}

bf_status_t pipe_mgr_adt_ent_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t action_data_table,
                                 pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL((session, device, action_data_table, member, flags), {
    return soft::with_object<ActionDataTable>(
        session, device, action_data_table,
        [&](ActionDataTable &table) { return table.remove(session, member); });
  });
}

bf_status_t pipe_mgr_get_action_data_entry(pipe_object_handle_t action_data_table,
                                           bf_device_id_t device, pipe_member_handle_t member,
                                           pipe_mgr_action_data_t *data,
                                           pipe_object_handle_t *action, bool read_from_hardware) {
  return SOFT_CALL((action_data_table, device, member, data, action, read_from_hardware), {
    return soft::with_device(device, [&](soft::Device &found) {
      return soft::on_object<ActionDataTable>(
          found, action_data_table,
          [&](ActionDataTable &table) { return table.get(member, data, action); });
    });
  });
}

// ---- Groups ----

bf_status_t pipe_mgr_sel_grp_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                 uint32_t max_size, pipe_group_handle_t *group, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, selector, max_size, group, flags), {
    return soft::with_piped_object<Selector>(session, device, pipe, selector, [&](Selector &found) {
      return found.add(session, max_size, group);
    });
  });
}

bf_status_t pipe_mgr_sel_grp_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t selector, pipe_group_handle_t group,
                                 uint32_t flags) {
  return SOFT_CALL((session, device, selector, group, flags), {
    return soft::with_object<Selector>(
        session, device, selector, [&](Selector &found) { return found.remove(session, group); });
  });
}

bf_status_t pipe_mgr_sel_grp_mbr_add(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t selector, pipe_group_handle_t group,
                                     pipe_object_handle_t action, pipe_member_handle_t member,
                                     uint32_t flags) {
  return SOFT_CALL((session, device, selector, group, action, member, flags), {
    return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
      return found.join(session, group, action, member);
    });
  });
}

bf_status_t pipe_mgr_sel_grp_mbr_del(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t selector, pipe_group_handle_t group,
                                     pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL((session, device, selector, group, member, flags), {
    return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
      return found.leave(session, group, member);
    });
  });
}

bf_status_t pipe_mgr_sel_grp_mbr_enable(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t selector, pipe_group_handle_t group,
                                        pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL((session, device, selector, group, member, flags), {
    return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
      return found.set_active(session, group, member, true);
    });
  });
}

bf_status_t pipe_mgr_sel_grp_mbr_disable(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t selector, pipe_group_handle_t group,
                                         pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL((session, device, selector, group, member, flags), {
    return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
      return found.set_active(session, group, member, false);
    });
  });
}

bf_status_t pipe_mgr_sel_grp_mbr_state_get(pipe_session_handle_t session, bf_device_id_t device,
                                           pipe_object_handle_t selector, pipe_group_handle_t group,
                                           pipe_member_handle_t member, uint32_t *state) {
  return SOFT_CALL((session, device, selector, group, member, state), {
    return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
      return state_of(found, group, member, state);
    });
  });
}

bf_status_t pipe_mgr_sel_grp_mbr_get_from_hash(pipe_session_handle_t session, bf_device_id_t device,
                                               pipe_object_handle_t selector,
                                               pipe_group_handle_t group, const uint8_t *hash,
                                               uint32_t hash_length, pipe_member_handle_t *member) {
  return SOFT_CALL(
      (session, device, selector, group, soft::list(hash, hash_length), hash_length, member), {
        return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
          return found.choose(group, hash, hash_length, member);
        });
      });
}

bf_status_t pipe_mgr_sel_fallback_mbr_set(pipe_session_handle_t session, bf_device_id_t device,
                                          bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                          pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, selector, member, flags), {
    return soft::with_piped_object<Selector>(session, device, pipe, selector, [&](Selector &found) {
      return found.set_fallback(member);
    });
  });
}

bf_status_t pipe_mgr_sel_fallback_mbr_reset(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                            uint32_t flags) {
  return SOFT_CALL((session, device, pipe, selector, flags), {
    return soft::with_piped_object<Selector>(session, device, pipe, selector,
                                             [&](Selector &found) -> bf_status_t {
                                               found.reset_fallback();
                                               return BF_SUCCESS;
                                             });
  });
}

bf_status_t pipe_mgr_get_first_group_member(pipe_session_handle_t session,
                                            pipe_object_handle_t selector, bf_device_id_t device,
                                            pipe_group_handle_t group,
                                            pipe_member_handle_t *member) {
  return SOFT_CALL((session, selector, device, group, member), {
    return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
      return found.first_member(group, member);
    });
  });
}

bf_status_t pipe_mgr_get_next_group_members(pipe_session_handle_t session,
                                            pipe_object_handle_t selector, bf_device_id_t device,
                                            pipe_group_handle_t group, pipe_member_handle_t member,
                                            uint32_t count, pipe_member_handle_t *members) {
  return SOFT_CALL((session, selector, device, group, member, count, soft::list(members, count)), {
    return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
      return found.next_members(group, member, count, members);
    });
  });
}

bf_status_t pipe_mgr_get_sel_grp_mbr_count(pipe_session_handle_t session, bf_device_id_t device,
                                           pipe_object_handle_t selector, pipe_group_handle_t group,
                                           uint32_t *count) {
  return SOFT_CALL((session, device, selector, group, count), {
    return soft::with_object<Selector>(session, device, selector, [&](Selector &found) {
      return found.member_count(group, count);
    });
  });
}

bf_status_t pipe_mgr_get_word_llp_active_member_count(pipe_session_handle_t session,
                                                      bf_device_id_t device, bf_pipe_id_t pipe,
                                                      pipe_object_handle_t selector, uint32_t word,
                                                      uint32_t *count) {
  return SOFT_CALL((session, device, pipe, selector, word, count), {
    return soft::with_piped_object<Selector>(session, device, pipe, selector,
                                             [&](Selector &found) -> bf_status_t {
                                               if (count == nullptr) return BF_INVALID_ARGUMENT;
                                               Word members;
                                               *count = found.active_in_word(word, &members);
                                               return BF_SUCCESS;
                                             });
  });
}

bf_status_t pipe_mgr_get_word_llp_active_members(pipe_session_handle_t session,
                                                 bf_device_id_t device, bf_pipe_id_t pipe,
                                                 pipe_object_handle_t selector, uint32_t word,
                                                 uint32_t count, pipe_member_handle_t *members) {
  return SOFT_CALL((session, device, pipe, selector, word, count, soft::list(members, count)), {
    return soft::with_piped_object<Selector>(session, device, pipe, selector, [&](Selector &found) {
      return copy_word(found, word, count, members);
    });
  });
}

// ---- Callbacks ----

// Session 0 stands for none: a listener may be there before the first session is.
bf_status_t pipe_mgr_sel_tbl_register_cb(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t selector,
                                         pipe_mgr_sel_update_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, selector, callback, cookie), {
    if (session != 0 && !soft::session_is_open(session)) return BF_INVALID_SESSION;
    return soft::with_device(device, [&](soft::Device &found_device) {
      return soft::on_object<Selector>(found_device, selector, [&](Selector &found) -> bf_status_t {
        found.listen(Selector::Ear::kOwner, callback, cookie);
        return BF_SUCCESS;
      });
    });
  });
}

bf_status_t pipe_register_adt_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t action_data_table,
                                        pipe_mgr_adt_update_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, action_data_table, callback, cookie), {
    return soft::with_object<ActionDataTable>(session, device, action_data_table,
                                              [&](ActionDataTable &table) -> bf_status_t {
                                                table.listen(callback, cookie);
                                                return BF_SUCCESS;
                                              });
  });
}

bf_status_t pipe_register_sel_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t selector,
                                        pipe_mgr_sel_update_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, selector, callback, cookie), {
    return soft::with_object<Selector>(session, device, selector,
                                       [&](Selector &found) -> bf_status_t {
                                         found.listen(Selector::Ear::kFurther, callback, cookie);
                                         return BF_SUCCESS;
                                       });
  });
}
