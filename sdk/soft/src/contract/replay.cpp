// Replay of a virtual device. soft_placement.h says what is taken over.
#include "contract/resolve.hpp"
#include "pipe_mgr_placement.h"
#include "profiles/action_data_table.hpp"
#include "profiles/selector.hpp"
#include "tables/match_engine.hpp"

using namespace soft;

namespace {

bf_status_t check_devices(const Device &target, const Device &source, bf_pipe_id_t pipe) {
  if (!target.has_pipe(pipe)) return BF_INVALID_PIPE;
  if (&target == &source || !source.is_virtual()) return BF_INVALID_ARGUMENT;
  if (&target.program() != &source.program() || target.pipes() != source.pipes()) {
    return BF_INVALID_ARGUMENT;
  }
  return pipe == BF_ALL_PIPES || target.pipes() == 1 ? BF_SUCCESS : BF_NOT_SUPPORTED;
}

template <class T>
void copy_all(const Device &target, const Device &source) {
  for (const auto &object : target.objects()) {
    auto *mine = object->as<T>();
    auto *theirs = source.find<T>(object->handle());
    if (mine != nullptr && theirs != nullptr) mine->copy_from(*theirs);
  }
}

// Runs visit(handle) for the members or groups of an object, if there is one, until it fails.
template <class Visit>
bf_status_t for_each(Object *object, Visit visit) {
  if (object == nullptr) return BF_SUCCESS;
  uint32_t at = 0;
  for (bf_status_t found = object->first_entry(BF_ALL_PIPES, &at); found == BF_SUCCESS;
       found = object->next_entries(BF_ALL_PIPES, at, 1, &at)) {
    const bf_status_t status = visit(at);
    if (status != BF_SUCCESS) return status;
  }
  return BF_SUCCESS;
}

// What the callback hears of, profile by profile. It may change the profile meanwhile.
class Report {
 public:
  Report(const Device &device, pipe_session_handle_t session, pipe_mgr_replay_cb_t callback)
      : device_(static_cast<uint8_t>(device.id())), session_(session), callback_(callback) {}

  // Each of a profile's members and its selector, which may be null.
  bf_status_t members(ActionDataTable &table, Selector *) const {
    return for_each(&table, [&](pipe_member_handle_t member) -> bf_status_t {
      pipe_object_handle_t action = 0;
      if (table.action_of(member, &action) != BF_SUCCESS) return BF_SUCCESS;
      return report(table, action, 0, member);
    });
  }

  bf_status_t groups(ActionDataTable &table, Selector *selector) const {
    return for_each(selector,
                    [&](pipe_group_handle_t group) { return report(table, 0, group, 0); });
  }

  bf_status_t memberships(ActionDataTable &table, Selector *selector) const {
    return for_each(selector, [&](pipe_group_handle_t group) -> bf_status_t {
      pipe_member_handle_t member = 0;
      for (bf_status_t found = selector->first_member(group, &member); found == BF_SUCCESS;
           found = selector->next_members(group, member, {&member, 1})) {
        pipe_object_handle_t action = 0;
        if (table.action_of(member, &action) != BF_SUCCESS) continue;
        const bf_status_t status = report(table, action, group, member);
        if (status != BF_SUCCESS) return status;
      }
      return BF_SUCCESS;
    });
  }

 private:
  // Members hold no resources, so has_resources is 0.
  bf_status_t report(const ActionDataTable &table, pipe_object_handle_t action,
                     pipe_group_handle_t group, pipe_member_handle_t member) const {
    return callback_(session_, device_, table.handle(), action, group, member, 0);
  }

  uint8_t device_;
  pipe_session_handle_t session_;
  pipe_mgr_replay_cb_t callback_;
};

bf_status_t report_all(const Device &device, const Report &report) {
  const soft_program_t &program = device.program();
  for (const auto step : {&Report::members, &Report::groups, &Report::memberships}) {
    for (const soft_profile_t &profile : described(program.profiles, program.profile_count)) {
      auto *members = device.find<ActionDataTable>(profile.action_data_table);
      auto *selector = profile.selector == 0 ? nullptr : device.find<Selector>(profile.selector);
      const bf_status_t status = (report.*step)(*members, selector);
      if (status != BF_SUCCESS) return status;
    }
  }
  return BF_SUCCESS;
}

bf_status_t replay(Device &target, const Device &source, bf_pipe_id_t pipe,
                   pipe_session_handle_t session, pipe_mgr_replay_cb_t callback) {
  const bf_status_t status = check_devices(target, source, pipe);
  if (status != BF_SUCCESS) return status;
  if (callback == nullptr) return BF_INVALID_ARGUMENT;
  copy_all<ActionDataTable>(target, source);
  copy_all<Selector>(target, source);
  target.take_time_of(source);  // what entries age by
  copy_all<MatchEngine>(target, source);
  return report_all(target, Report(target, session, callback));
}

}  // namespace

bf_status_t pipe_mgr_hitless_ha_restore_virtual_dev_state(pipe_session_handle_t session,
                                                          bf_device_id_t device,
                                                          bf_device_id_t virtual_device,
                                                          bf_pipe_id_t pipe, uint32_t flags,
                                                          pipe_mgr_replay_cb_t callback) {
  return SOFT_CALL((session, device, virtual_device, pipe, flags, callback),
                   with_session(session, device, [&](Device &target) {
                     return with_device(virtual_device, [&](Device &source) {
                       return replay(target, source, pipe, session, callback);
                     });
                   }));
}
