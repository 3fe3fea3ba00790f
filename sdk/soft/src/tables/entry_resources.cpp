#include "tables/entry_resources.hpp"

namespace soft {

bool ResourceList::has(pipe_object_handle_t handle) const {
  return std::ranges::find(all(), handle, &EntryResource::handle) != all().end();
}

bool ResourceList::attach(EntryResource resource) {
  for (uint32_t i = 0; i < count_; ++i) {
    if (items_[i].handle != resource.handle) continue;
    items_[i] = resource;
    return true;
  }
  if (count_ == items_.size()) return false;
  items_[count_++] = resource;
  return true;
}

void ResourceList::detach(pipe_object_handle_t handle) {
  const auto begin = items_.begin();
  const auto end = std::remove_if(begin, begin + count_,
                                  [&](const EntryResource &r) { return r.handle == handle; });
  count_ = static_cast<uint32_t>(end - begin);
}

bf_status_t ResourceList::apply(const pipe_mgr_resource_t &resource) {
  switch (resource.tag) {
    case PIPE_RESOURCE_KEEP:
      return BF_SUCCESS;
    case PIPE_RESOURCE_ATTACH:
      return attach({resource.handle, resource.index}) ? BF_SUCCESS : BF_INVALID_ARGUMENT;
    case PIPE_RESOURCE_DETACH:
      detach(resource.handle);
      return BF_SUCCESS;
    default:
      return BF_INVALID_ARGUMENT;
  }
}

}  // namespace soft
