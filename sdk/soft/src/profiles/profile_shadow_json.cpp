// The JSON form of a profile shadow. Documents that are read come from outside: nothing is assumed
// of them, and nothing is walked deeper than the form goes.
#include <cjson/cJSON.h>

#include <cmath>
#include <memory>
#include <new>

#include "profiles/profile_shadow.hpp"

namespace soft {
namespace {

constexpr char kMembers[] = "members";
constexpr char kGroups[] = "groups";
constexpr char kHandle[] = "handle";
constexpr char kAction[] = "action";
constexpr char kResources[] = "resources";

// ---- Writing: a null from the JSON library means that there was no memory ----

struct JsonDelete {
  void operator()(cJSON *item) const { cJSON_Delete(item); }
};
using Json = std::unique_ptr<cJSON, JsonDelete>;

Json made(cJSON *item) {
  if (item == nullptr) throw std::bad_alloc();
  return Json(item);
}

Json number(uint32_t value) { return made(cJSON_CreateNumber(value)); }

void append(const Json &list, Json item) {
  if (!cJSON_AddItemToArray(list.get(), item.get())) throw std::bad_alloc();
  static_cast<void>(item.release());
}

void put(cJSON *object, const char *key, Json item) {
  if (!cJSON_AddItemToObject(object, key, item.get())) throw std::bad_alloc();
  static_cast<void>(item.release());
}

Json resource_list(const ProfileShadow::Resources &resources) {
  Json list = made(cJSON_CreateArray());
  for (const p4_pd_res_spec_t &resource : resources) {
    Json pair = made(cJSON_CreateArray());
    append(pair, number(resource.handle));
    append(pair, number(resource.index));
    append(list, std::move(pair));
  }
  return list;
}

// What a member and a group have in common.
template <class T>
Json element(uint32_t handle, const T &described) {
  Json object = made(cJSON_CreateObject());
  put(object.get(), kHandle, number(handle));
  if (described.action) put(object.get(), kAction, number(*described.action));
  if (!described.resources.empty()) {
    put(object.get(), kResources, resource_list(described.resources));
  }
  return object;
}

Json group_element(uint32_t handle, const ProfileShadow::Group &group) {
  Json object = element(handle, group);
  Json members = made(cJSON_CreateArray());
  for (const pipe_member_handle_t member : group.members) append(members, number(member));
  put(object.get(), kMembers, std::move(members));
  return object;
}

template <class T>
std::vector<uint32_t> sorted_handles(const std::unordered_map<uint32_t, T> &map) {
  std::vector<uint32_t> handles;
  handles.reserve(map.size());
  for (const auto &[handle, described] : map) handles.push_back(handle);
  std::ranges::sort(handles);
  return handles;
}

void remove_contents(cJSON *object) {
  cJSON_DeleteItemFromObjectCaseSensitive(object, kMembers);
  cJSON_DeleteItemFromObjectCaseSensitive(object, kGroups);
}

// ---- Reading ----

std::optional<uint32_t> word(const cJSON *item) {
  if (!cJSON_IsNumber(item)) return std::nullopt;
  const double value = item->valuedouble;
  if (!(value >= 0 && value <= 0xffffffffu) || value != std::floor(value)) return std::nullopt;
  return static_cast<uint32_t>(value);
}

std::optional<uint32_t> word_of(const cJSON *object, const char *key) {
  return word(cJSON_GetObjectItemCaseSensitive(object, key));
}

// The array under a key, null (which has no elements) when it is of another type.
const cJSON *list_of(const cJSON *object, const char *key) {
  const cJSON *list = cJSON_GetObjectItemCaseSensitive(object, key);
  return cJSON_IsArray(list) ? list : nullptr;
}

ProfileShadow::Resources resources_of(const cJSON *object) {
  ProfileShadow::Resources resources;
  const cJSON *pair = nullptr;
  cJSON_ArrayForEach(pair, list_of(object, kResources)) {
    if (!cJSON_IsArray(pair) || pair->child == nullptr) continue;
    const auto handle = word(pair->child);
    const auto index = word(pair->child->next);
    if (handle && index && pair->child->next->next == nullptr) {
      resources.push_back({*handle, *index});
    }
  }
  return resources;
}

}  // namespace

void ProfileShadow::write(cJSON *object) const {
  Json members = made(cJSON_CreateArray());
  for (const uint32_t handle : sorted_handles(members_)) {
    append(members, element(handle, members_.at(handle)));
  }
  Json groups = made(cJSON_CreateArray());
  for (const uint32_t handle : sorted_handles(groups_)) {
    append(groups, group_element(handle, groups_.at(handle)));
  }
  remove_contents(object);
  try {
    put(object, kMembers, std::move(members));
    put(object, kGroups, std::move(groups));
  } catch (const std::bad_alloc &) {
    remove_contents(object);
    throw;
  }
}

void ProfileShadow::read(const cJSON *object) {
  const cJSON *item = nullptr;
  cJSON_ArrayForEach(item, list_of(object, kMembers)) {
    const auto handle = word_of(item, kHandle);
    if (!handle || add_member(*handle) != BF_SUCCESS) continue;
    member(*handle)->action = word_of(item, kAction);
    member(*handle)->resources = resources_of(item);
  }
  cJSON_ArrayForEach(item, list_of(object, kGroups)) {
    const auto handle = word_of(item, kHandle);
    if (!handle || add_group(*handle) != BF_SUCCESS) continue;
    group(*handle)->action = word_of(item, kAction);
    group(*handle)->resources = resources_of(item);
    const cJSON *held = nullptr;
    cJSON_ArrayForEach(held, list_of(item, kMembers)) {
      if (const auto held_handle = word(held)) join(*held_handle, *handle);
    }
  }
}

bool is_json_object(const cJSON *document) { return cJSON_IsObject(document); }

bool is_profile_document(const cJSON *document) {
  return cJSON_IsObject(document) &&
         (list_of(document, kMembers) != nullptr || list_of(document, kGroups) != nullptr);
}

}  // namespace soft
