// Members, groups and memberships of a profile on both sides.
#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/device/read_back.hpp"
#include "tesselctl/state/verify.hpp"

namespace tesselctl {

namespace {

class ProfileCheck {
 public:
  ProfileCheck(Verification &run, const soft_profile_t &profile)
      : run_(run),
        old_(run.old_device),
        new_(run.new_device),
        profile_(profile),
        word_{profile.name, 1} {}

  void run() {
    for_each_member(old_, profile_.name, word_, [&](uint32_t member) { check_member(member); });
    for_each_member(new_, profile_.name, word_, [&](uint32_t member) {
      ActionSpecs specs;
      if (!read(old_, member, specs)) report(Difference::extra, 0, member);
    });
    for_each_group(old_, profile_.name, word_, [&](uint32_t group) { check_group(group); });
    for_each_group(new_, profile_.name, word_, [&](uint32_t group) {
      if (!has_group(old_, group)) report_group(Difference::extra, 0, group);
    });
  }

 private:
  // False when the device has no such member.
  bool read(const Device &device, uint32_t member, ActionSpecs &specs) const {
    Call call = device.prepare("get_member", profile_.name);
    call.set("member", uint64_t{member}).set("read_from_hardware", uint64_t{1});
    const uint64_t status = call.set("action_specs", specs.data()).run();
    if (status == BF_OBJECT_NOT_FOUND) return false;
    check(status, word_);
    return true;
  }

  static bool are_equal(const ActionSpecs &a, const ActionSpecs &b) {
    if (a.action() != b.action()) return false;
    const bindings::Record &action = action_of_number(a.action());
    if (action.member_count == 0) return true;
    Call call(need_export("action_specs_are_equal", action.name));
    return call.set("a", a.parameters()).set("b", b.parameters()).run() != 0;
  }

  void check_member(uint32_t member) {
    ++run_.counts.members;
    ActionSpecs placed;
    Call call(need_export("get_full_member_info_from_plcmt_data", profile_.name));
    call.set("device", uint64_t{old_.id()}).set("member", uint64_t{member});
    call.set("placement", placement_.of_member(old_, profile_, member));
    check(call.set("action_specs", placed.data()).run(), word_);
    ActionSpecs held;
    if (!read(new_, member, held)) return report(Difference::missing, member, 0);
    if (!are_equal(placed, held)) report(Difference::different, member, member);
  }

  bool has_group(const Device &device, uint32_t group) const {
    uint32_t count = 0;
    Call call = device.prepare("get_selector_group_member_count", profile_.name);
    const uint64_t status = call.set("group", uint64_t{group}).set("count", &count).run();
    if (status == BF_OBJECT_NOT_FOUND) return false;
    check(status, word_);
    return true;
  }

  using Memberships = std::map<uint32_t, bool>;  // whether each member is active

  Memberships memberships(const Device &device, uint32_t group) const {
    Memberships list;
    for_each_group_member(device, profile_.name, group, word_,
                          [&](uint32_t member, bool active) { list.emplace(member, active); });
    return list;
  }

  void check_group(uint32_t group) {
    ++run_.counts.groups;
    const Memberships wanted = memberships(old_, group);
    run_.counts.memberships += wanted.size();
    if (!has_group(new_, group)) return report_group(Difference::missing, group, 0);
    const Memberships held = memberships(new_, group);
    for (const auto &one : wanted) {
      const auto found = held.find(one.first);
      if (found == held.end()) {
        report_membership(Difference::missing, group, &one, nullptr);
      } else if (found->second != one.second) {
        report_membership(Difference::different, group, &one, &*found);
      }
    }
    for (const auto &one : held) {
      if (!wanted.contains(one.first)) report_membership(Difference::extra, group, nullptr, &one);
    }
  }

  std::string text(const Device &device, uint32_t member) {
    if (member == 0) return "";
    return value_of(need_export("adt_plcmt_data_value", profile_.name),
                    placement_.of_member(device, profile_, member));
  }

  void report(Difference difference, uint32_t old_member, uint32_t new_member) {
    run_.find({difference, Compared::member, profile_.name, old_member, new_member,
               text(old_, old_member), text(new_, new_member)});
  }

  void report_group(Difference difference, uint32_t old_group, uint32_t new_group) {
    const auto words = [](uint32_t group) {
      return group == 0 ? std::string() : fmt::format("group=#{}", group);
    };
    run_.find({difference, Compared::group, profile_.name, old_group, new_group, words(old_group),
               words(new_group)});
  }

  void report_membership(Difference difference, uint32_t group,
                         const Memberships::value_type *wanted,
                         const Memberships::value_type *held) {
    const auto words = [&](const Memberships::value_type *one) {
      if (one == nullptr) return std::string();
      return fmt::format("group=#{} member=#{}{}", group, one->first,
                         one->second ? "" : "(inactive)");
    };
    run_.find({difference, Compared::membership, profile_.name, wanted == nullptr ? 0 : group,
               held == nullptr ? 0 : group, words(wanted), words(held)});
  }

  Verification &run_;
  const Device &old_;
  const Device &new_;
  const soft_profile_t &profile_;
  Word word_;
  Placement placement_;
};

}  // namespace

void verify_profile(Verification &run, const soft_profile_t &profile) {
  ProfileCheck(run, profile).run();
}

}  // namespace tesselctl
