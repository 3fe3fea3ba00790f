// The members that stand in for groups without members.
#include "soft_contents.h"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/kinds/profile_items.hpp"

namespace tesselctl {

namespace {

constexpr const char *kSet = "set_dynamic_action_selection_fallback_member";
constexpr const char *kReset = "reset_dynamic_action_selection_fallback_member";

// "fallback 1": the number of the member.
class Fallback : public NumberItems {
 public:
  explicit Fallback(const soft_profile_t &profile)
      : NumberItems({.columns = {{.name = "member", .least = 1}}, .identity = 0, .nameless = 1}),
        profile_(profile) {}

  uint32_t profile() const override { return profile_.action_data_table; }
  void renumber(std::span<char>, std::span<char> value, const Renumbering &numbers) const override {
    numbers.replace(Numbered::members, value);
  }

 protected:
  void add_numbers(Row &row, const Numbers &member) const override {
    add_number(row.object("what", "fallback"), "member", static_cast<uint32_t>(member[0]),
               Naming::numbers);
  }
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    pipe_member_handle_t member = 0;
    if (soft_fallback_member(from.device.id(), profile_.selector, &member) != BF_SUCCESS) return;
    visit({from.numbering.of(profile_.action_data_table).members.number_of(member)});
  }
  void write_numbers(Target &to, Edit edit, const Numbers &member, Word word) const override {
    Call call = to.device.prepare(edit == Edit::remove ? kReset : kSet, profile_.name);
    if (edit != Edit::remove) {
      const NumberMap &members = to.numbering.of(profile_.action_data_table).members;
      const auto number = static_cast<uint32_t>(member[0]);
      call.set("member", uint64_t{need_handle(members, "member", number, word)});
    }
    check(call.run(), word);
  }

 private:
  const soft_profile_t &profile_;
};

void set(Context &context, const Invocation &invocation) {
  run_on_handles(context, invocation, kSet, {"member"}, "is the fallback");
}
void reset(Context &context, const Invocation &invocation) {
  run_on_handles(context, invocation, kReset, {}, "has no fallback");
}

constexpr Command kCommands[] = {
    {"fallback set", "PROFILE member=HANDLE", "sets what stands in for groups without members", set,
     Kind::changes},
    {"fallback reset", "PROFILE", "takes the fallback member back", reset, Kind::changes},
};

constexpr Step kSteps[] = {{Phase::fallback, Edit::add},
                           {Phase::fallback, Edit::modify},
                           {Phase::fallback_leaves, Edit::remove}};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_profile_t>,
                                "fallback",
                                12,
                                kSteps,
                                {"fallback set", {}, "fallback reset"},
                                open_items<Fallback, soft_profile_t>}};

}  // namespace

extern const Topic kFallbackTopic = {"Members and groups", kCommands, {}, kKinds};

}  // namespace tesselctl
