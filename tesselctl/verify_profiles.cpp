// Members, groups and memberships of a profile on both sides.
#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "p4_pd_tessel_switch.h"
#include "tesselctl/verify_parts.hpp"

namespace tesselctl {

namespace {

class ProfileCheck {
 public:
  ProfileCheck(Verification &run, const soft_profile_t &profile)
      : old_(run.old_device),
        new_(run.new_device),
        profile_(profile),
        report_(run.report),
        counts_(run.counts) {}

  void run() {
    for_each(old_, "member", [&](uint32_t member) { check_member(member); });
    for_each(new_, "member", [&](uint32_t member) {
      Specs specs;
      if (!read(old_, member, specs)) tell(Difference::extra, Compared::member, 0, member);
    });
    for_each(old_, "group", [&](uint32_t group) { check_group(group); });
    for_each(new_, "group", [&](uint32_t group) {
      if (!has_group(old_, group)) tell_group(Difference::extra, 0, group);
    });
  }

 private:
  using Specs = p4_pd_tessel_switch_action_specs_t;

  // Members or groups.
  template <class Visit>
  void for_each(const Device &device, const std::string &kind, Visit visit) {
    Call first = device.prepare("get_first_" + kind, profile_.name);
    Call next = device.prepare("get_next_" + kind + "s", profile_.name);
    walk(
        profile_.name, [&](uint32_t *out) { return first.set(kind, out).run(); },
        [&](uint32_t from, uint32_t count, uint32_t *out) {
          next.set(kind, uint64_t{from}).set("count", uint64_t{count});
          return next.set(kind + "s", out).run();
        },
        visit);
  }

  // False when the device has no such member.
  bool read(const Device &device, uint32_t member, Specs &specs) const {
    Call call = device.prepare("get_member", profile_.name);
    call.set("member", uint64_t{member}).set("read_from_hardware", uint64_t{1});
    const uint64_t status = call.set("action_specs", &specs).run();
    if (status == BF_OBJECT_NOT_FOUND) return false;
    need(status, "a member", profile_.name);
    return true;
  }

  static bool are_equal(const Specs &a, const Specs &b) {
    if (a.action != b.action) return false;
    const auto &action = *std::ranges::find(actions(), a.action, &bindings::Record::number);
    if (action.member_count == 0) return true;
    Call call(need_export("action_specs_are_equal", action.name));
    return call.set("a", &a.spec).set("b", &b.spec).run() != 0;
  }

  void check_member(uint32_t member) {
    ++counts_.members;
    Specs placed = {};
    Call call(need_export("get_full_member_info_from_plcmt_data", profile_.name));
    call.set("device", uint64_t{old_.id()}).set("member", uint64_t{member});
    call.set("placement", placement_.of_member(old_, profile_, member));
    need(call.set("action_specs", &placed).run(), "a member", profile_.name);
    Specs held = {};
    if (!read(new_, member, held)) return tell(Difference::missing, Compared::member, member, 0);
    if (are_equal(placed, held)) return;
    tell(Difference::different, Compared::member, member, member);
  }

  bool has_group(const Device &device, uint32_t group) const {
    uint32_t count = 0;
    Call call = device.prepare("get_selector_group_member_count", profile_.name);
    const uint64_t status = call.set("group", uint64_t{group}).set("count", &count).run();
    if (status == BF_OBJECT_NOT_FOUND) return false;
    need(status, "a group", profile_.name);
    return true;
  }

  struct Membership {
    uint32_t member;
    uint32_t state;
  };
  using Memberships = std::vector<Membership>;

  // Ascending by member.
  void list(const Device &device, uint32_t group, Memberships &list) const {
    list.clear();
    Call first = device.prepare("get_first_group_member", profile_.name);
    Call next = device.prepare("get_next_group_members", profile_.name);
    Call state = device.prepare("group_member_state_get", profile_.name);
    first.set("group", uint64_t{group});
    next.set("group", uint64_t{group});
    state.set("group", uint64_t{group});
    walk(
        profile_.name, [&](uint32_t *out) { return first.set("member", out).run(); },
        [&](uint32_t from, uint32_t count, uint32_t *out) {
          next.set("member", uint64_t{from}).set("count", uint64_t{count});
          return next.set("members", out).run();
        },
        [&](uint32_t member) {
          Membership found = {member, 0};
          state.set("member", uint64_t{member}).set("state", &found.state);
          need(state.run(), "a membership", profile_.name);
          list.push_back(found);
        });
    std::ranges::sort(list, {}, &Membership::member);
  }

  void check_group(uint32_t group) {
    ++counts_.groups;
    list(old_, group, old_list_);
    counts_.memberships += old_list_.size();
    if (!has_group(new_, group)) return tell_group(Difference::missing, group, 0);
    list(new_, group, new_list_);
    auto held = new_list_.begin();
    for (const Membership &wanted : old_list_) {
      for (; held != new_list_.end() && held->member < wanted.member; ++held) {
        tell_membership(Difference::extra, group, nullptr, &*held);
      }
      if (held == new_list_.end() || held->member != wanted.member) {
        tell_membership(Difference::missing, group, &wanted, nullptr);
        continue;
      }
      if (held->state != wanted.state) {
        tell_membership(Difference::different, group, &wanted, &*held);
      }
      ++held;
    }
    for (; held != new_list_.end(); ++held) {
      tell_membership(Difference::extra, group, nullptr, &*held);
    }
  }

  std::string text(const Device &device, uint32_t member) {
    if (member == 0) return "";
    char buffer[P4_PD_TESSEL_SWITCH_VALUE_MAX] = "";
    p4_pd_tessel_switch_adt_plcmt_data_value(
        profile_.action_data_table, placement_.of_member(device, profile_, member), buffer);
    return buffer;
  }

  void tell(Difference difference, Compared what, uint32_t old_member, uint32_t new_member) {
    ++counts_.differences;
    report_({difference, what, profile_.name, old_member, new_member, text(old_, old_member),
             text(new_, new_member)});
  }

  void tell_group(Difference difference, uint32_t old_group, uint32_t new_group) {
    ++counts_.differences;
    const auto words = [](uint32_t group) {
      return group == 0 ? std::string() : fmt::format("group={}", group);
    };
    report_({difference, Compared::group, profile_.name, old_group, new_group, words(old_group),
             words(new_group)});
  }

  void tell_membership(Difference difference, uint32_t group, const Membership *wanted,
                       const Membership *held) {
    ++counts_.differences;
    const auto words = [&](const Membership *one) {
      if (one == nullptr) return std::string();
      return fmt::format("group={} member={}{}", group, one->member,
                         one->state == P4_PD_GRP_MBR_STATE_INACTIVE ? "(inactive)" : "");
    };
    report_({difference, Compared::membership, profile_.name, wanted == nullptr ? 0 : group,
             held == nullptr ? 0 : group, words(wanted), words(held)});
  }

  const Device &old_;
  const Device &new_;
  const soft_profile_t &profile_;
  const std::function<void(const Finding &)> &report_;
  VerifyCounts &counts_;
  Placement placement_;
  Memberships old_list_;
  Memberships new_list_;
};

}  // namespace

void verify_profile(Verification &run, const soft_profile_t &profile) {
  ProfileCheck(run, profile).run();
}

}  // namespace tesselctl
