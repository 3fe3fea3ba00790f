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

Json element(uint32_t handle, const ProfileShadow::Item &item) {
  Json object = made(cJSON_CreateObject());
  put(object.get(), kHandle, number(handle));
  if (item.action) put(object.get(), kAction, number(*item.action));
  if (!item.resources.empty()) put(object.get(), kResources, resource_list(item.resources));
  return object;
}

// Groups name their members, members do not name their groups.
Json item_list(const ProfileShadow::Items &items, bool with_partners) {
  std::vector<uint32_t> handles;
  handles.reserve(items.size());
  for (const auto &[handle, item] : items) handles.push_back(handle);
  std::ranges::sort(handles);
  Json list = made(cJSON_CreateArray());
  for (const uint32_t handle : handles) {
    Json object = element(handle, items.at(handle));
    if (with_partners) {
      Json partners = made(cJSON_CreateArray());
      for (const uint32_t partner : items.at(handle).partners) append(partners, number(partner));
      put(object.get(), kMembers, std::move(partners));
    }
    append(list, std::move(object));
  }
  return list;
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
  Json members = item_list(members_, false);
  Json groups = item_list(groups_, true);
  remove_contents(object);
  try {
    put(object, kMembers, std::move(members));
    put(object, kGroups, std::move(groups));
  } catch (const std::bad_alloc &) {
    remove_contents(object);
    throw;
  }
}

std::optional<uint32_t> ProfileShadow::read_item(Items &to, const cJSON *element) {
  const auto handle = word_of(element, kHandle);
  if (!handle || add(to, *handle) != BF_SUCCESS) return std::nullopt;
  Item &added = to.at(*handle);
  added.action = word_of(element, kAction);
  added.resources = resources_of(element);
  return handle;
}

void ProfileShadow::read(const cJSON *object) {
  const cJSON *item = nullptr;
  cJSON_ArrayForEach(item, list_of(object, kMembers)) read_item(members_, item);
  cJSON_ArrayForEach(item, list_of(object, kGroups)) {
    const auto group = read_item(groups_, item);
    const cJSON *members = group ? list_of(item, kMembers) : nullptr;
    const cJSON *held = nullptr;
    cJSON_ArrayForEach(held, members) {
      if (const auto member = word(held)) join(*member, *group);
    }
  }
}

bool is_json_object(const cJSON *document) { return cJSON_IsObject(document); }

bool is_profile_document(const cJSON *document) {
  return cJSON_IsObject(document) &&
         (list_of(document, kMembers) != nullptr || list_of(document, kGroups) != nullptr);
}

}  // namespace soft
