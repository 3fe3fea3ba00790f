// What the member-selector state knows of one profile on one device: members, groups, who is in
// which group, the action of each and its resource references.
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "p4_pd_ms.h"
#include "store/handle_set.hpp"

struct cJSON;

namespace soft {

// Not thread-safe. Functions that add something may throw std::bad_alloc, and then nothing has
// changed.
class ProfileShadow {
 public:
  using Resources = std::vector<p4_pd_res_spec_t>;
  // A member or a group.
  struct Item {
    std::optional<pipe_object_handle_t> action;
    Resources resources;
    HandleSet partners;  // groups of a member, members of a group
  };
  using Items = std::unordered_map<uint32_t, Item>;

  // Null when there is none.
  Item *member(pipe_member_handle_t handle) { return find(members_, handle); }
  Item *group(pipe_group_handle_t handle) { return find(groups_, handle); }

  // BF_ALREADY_EXISTS.
  bf_status_t add_member(pipe_member_handle_t member) { return add(members_, member); }
  bf_status_t add_group(pipe_group_handle_t group) { return add(groups_, group); }
  // BF_OBJECT_NOT_FOUND. Memberships go as well.
  bf_status_t remove_member(pipe_member_handle_t handle) {
    return remove(members_, groups_, handle);
  }
  bf_status_t remove_group(pipe_group_handle_t handle) { return remove(groups_, members_, handle); }

  // BF_OBJECT_NOT_FOUND unless both are there; BF_ALREADY_EXISTS.
  bf_status_t join(pipe_member_handle_t member, pipe_group_handle_t group);
  // BF_OBJECT_NOT_FOUND without such a membership. The action of the group stays.
  bf_status_t leave(pipe_member_handle_t member, pipe_group_handle_t group);

  // Adds the contents to a JSON object, in place of earlier ones, in ascending order of handles:
  //   "members": [ { "handle": 7, "action": 536871358, "resources": [[handle, index], ...] }, ... ]
  //   "groups":  [ { "handle": 3, "action": ..., "resources": ..., "members": [7, ...] }, ... ]
  // "action" is missing where none is recorded, "resources" where there are none. Without memory
  // it throws std::bad_alloc and leaves neither key in the object.
  void write(cJSON *object) const;

  // Adds what an object of this form says. Whatever is of another type, out of range, named twice
  // (the first one counts) or refers to a member that is not there is skipped; other keys are not
  // looked at.
  void read(const cJSON *object);

 private:
  static Item *find(Items &items, uint32_t handle);
  static bf_status_t add(Items &to, uint32_t handle);
  static bf_status_t remove(Items &from, Items &partners, uint32_t handle);
  // The handle of what an element of a list adds, if it adds anything.
  static std::optional<uint32_t> read_item(Items &to, const cJSON *element);

  Items members_;
  Items groups_;
};

// Whether a document is an object at all, and whether it has the form that ProfileShadow::write
// gives it, on the outside.
bool is_json_object(const cJSON *document);
bool is_profile_document(const cJSON *document);

}  // namespace soft
