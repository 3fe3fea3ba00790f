#include "profiles/profile_shadow.hpp"

namespace soft {

ProfileShadow::Item *ProfileShadow::find(Items &items, uint32_t handle) {
  const auto at = items.find(handle);
  return at == items.end() ? nullptr : &at->second;
}

bf_status_t ProfileShadow::add(Items &to, uint32_t handle) {
  return to.try_emplace(handle).second ? BF_SUCCESS : BF_ALREADY_EXISTS;
}

bf_status_t ProfileShadow::remove(Items &from, Items &partners, uint32_t handle) {
  const auto at = from.find(handle);
  if (at == from.end()) return BF_OBJECT_NOT_FOUND;
  for (const uint32_t partner : at->second.partners) partners.at(partner).partners.erase(handle);
  from.erase(at);
  return BF_SUCCESS;
}

bf_status_t ProfileShadow::join(pipe_member_handle_t member_handle,
                                pipe_group_handle_t group_handle) {
  Item *joining = member(member_handle);
  Item *joined = group(group_handle);
  if (joining == nullptr || joined == nullptr) return BF_OBJECT_NOT_FOUND;
  joined->partners.reserve();
  if (!joining->partners.insert(group_handle)) return BF_ALREADY_EXISTS;
  joined->partners.insert(member_handle);
  return BF_SUCCESS;
}

bf_status_t ProfileShadow::leave(pipe_member_handle_t member_handle,
                                 pipe_group_handle_t group_handle) {
  Item *leaving = member(member_handle);
  if (leaving == nullptr || !leaving->partners.erase(group_handle)) return BF_OBJECT_NOT_FOUND;
  group(group_handle)->partners.erase(member_handle);
  return BF_SUCCESS;
}

}  // namespace soft
