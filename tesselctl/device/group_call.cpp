#include "tesselctl/device/group_call.hpp"

#include "tesselctl/device/handles.hpp"

namespace tesselctl {

namespace {

bool is_empty(const Device &device, const char *profile, uint32_t group) {
  bool is_empty = true;
  for_each_group_member(device, profile, group, {}, [&](uint32_t, bool) { is_empty = false; });
  return is_empty;
}

// A member of the profile is one of the group as long as this lives; a new one where there is none.
class LentMember {
 public:
  LentMember(const Device &device, const char *profile, uint32_t group)
      : device_(device), profile_(profile), group_(group) {
    visit_handles(members_of(device, profile), {}, [&](uint32_t member) {
      member_ = member;
      return false;
    });
    is_new_ = member_ == 0;
    if (is_new_) add();
    in_group("add_member_to_group");
  }
  ~LentMember() {
    in_group("del_member_from_group");
    if (is_new_) device_.prepare("del_member", profile_).set("member", uint64_t{member_}).run();
  }
  LentMember(const LentMember &) = delete;
  LentMember &operator=(const LentMember &) = delete;

 private:
  // By the first action that there is.
  void add() {
    for (const bindings::Record &action : actions()) {
      const bindings::Export *target = find_export("add_member", profile_, action.name);
      if (target == nullptr) continue;
      const std::vector<uint8_t> zeros(action.size);
      Call call = device_.prepare(*target);
      call.set_if_taken("action_spec", static_cast<const void *>(zeros.data()));
      return check(call.set("member", &member_).run(), {});
    }
  }
  // Where it fails, so does the call that it is for.
  void in_group(const char *family) const {
    Call call = device_.prepare(family, profile_);
    call.set("group", uint64_t{group_}).set("member", uint64_t{member_}).run();
  }

  const Device &device_;
  const char *profile_;
  uint32_t group_;
  uint32_t member_ = 0;
  bool is_new_;
};

}  // namespace

uint64_t run_with_group(const Device &device, const TableInfo &table, Call &call) {
  const uint64_t status = call.run();
  if (status != BF_OBJECT_NOT_FOUND || !call.takes("group")) return status;
  const char *const profile = table.profile()->name;
  const auto group = static_cast<uint32_t>(call.word("group"));
  if (!has_handle(device, profile, "group", group) || !is_empty(device, profile, group)) {
    return status;
  }
  const LentMember lent(device, profile, group);
  return call.run();
}

}  // namespace tesselctl
