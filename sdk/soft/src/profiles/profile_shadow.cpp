#include "profiles/profile_shadow.hpp"

namespace soft {

bf_status_t ProfileShadow::add_member(pipe_member_handle_t member) {
  return members_.try_emplace(member).second ? BF_SUCCESS : BF_ALREADY_EXISTS;
}

bf_status_t ProfileShadow::add_group(pipe_group_handle_t group) {
  return groups_.try_emplace(group).second ? BF_SUCCESS : BF_ALREADY_EXISTS;
}

bf_status_t ProfileShadow::remove_member(pipe_member_handle_t member) {
  const auto at = members_.find(member);
  if (at == members_.end()) return BF_OBJECT_NOT_FOUND;
  for (const pipe_group_handle_t held_by : at->second.groups) {
    group(held_by)->members.erase(member);
  }
  members_.erase(at);
  return BF_SUCCESS;
}

bf_status_t ProfileShadow::remove_group(pipe_group_handle_t group) {
  const auto at = groups_.find(group);
  if (at == groups_.end()) return BF_OBJECT_NOT_FOUND;
  for (const pipe_member_handle_t held : at->second.members) member(held)->groups.erase(group);
  groups_.erase(at);
  return BF_SUCCESS;
}

bf_status_t ProfileShadow::join(pipe_member_handle_t member_handle,
                                pipe_group_handle_t group_handle) {
  Member *joining = member(member_handle);
  Group *joined = group(group_handle);
  if (joining == nullptr || joined == nullptr) return BF_OBJECT_NOT_FOUND;
  joined->members.reserve();
  if (!joining->groups.insert(group_handle)) return BF_ALREADY_EXISTS;
  joined->members.insert(member_handle);
  return BF_SUCCESS;
}

bf_status_t ProfileShadow::leave(pipe_member_handle_t member_handle,
                                 pipe_group_handle_t group_handle) {
  Member *leaving = member(member_handle);
  if (leaving == nullptr || !leaving->groups.erase(group_handle)) return BF_OBJECT_NOT_FOUND;
  group(group_handle)->members.erase(member_handle);
  return BF_SUCCESS;
}

}  // namespace soft
