// The members that stand in for groups without members.
#include <fmt/format.h>

#include "tesselctl/kinds/profile_items.hpp"

namespace tesselctl {

namespace {

// "fallback 1": the number of the member.
class Fallback : public CellItems<NoIdentity, uint32_t> {
 public:
  explicit Fallback(const char *profile) : profile_(need_row<soft_profile_t>(profile)) {}

  uint32_t profile() const override { return profile_.action_data_table; }
  void renumber(std::span<char>, std::span<char> value, const Renumbering &numbers) const override {
    numbers.replace(Numbered::members, value);
  }

 protected:
  void parse_cell(ValueScanner &line, NoIdentity &, uint32_t &member) const override {
    member = parse_item_number(line);
    LineWords(line, {});
  }
  void print_cell(std::string &text, const NoIdentity &, const uint32_t &member) const override {
    text += std::to_string(member);
  }
  void add_cell(Row &row, const NoIdentity &, const uint32_t &member) const override {
    add_number(row.object("what", "fallback"), "member", member, Naming::numbers);
  }
  void read_cells(Source &from, const CellVisitor &visit) const override {
    pipe_member_handle_t member = 0;
    if (soft_fallback_member(from.device.id(), profile_.selector, &member) != BF_SUCCESS) return;
    visit({}, from.numbering.of(profile_.action_data_table).members.number_of(member));
  }
  void write_cell(Target &to, Edit edit, const NoIdentity &, const uint32_t &member,
                  Word word) const override {
    const bool reset = edit == Edit::remove;
    Call call = to.device.prepare(reset ? "reset_dynamic_action_selection_fallback_member"
                                        : "set_dynamic_action_selection_fallback_member",
                                  profile_.name);
    if (!reset) {
      const NumberMap &members = to.numbering.of(profile_.action_data_table).members;
      call.set("member", uint64_t{need_handle(members, "member", member, word)});
    }
    check(call.run(), word);
  }

 private:
  const soft_profile_t &profile_;
};

constexpr Step kSteps[] = {{Phase::fallback, Edit::add},
                           {Phase::fallback, Edit::modify},
                           {Phase::fallback_leaves, Edit::remove}};

}  // namespace

extern const ItemKind kFallbackKind = {kProfileObjects, "fallback", kSteps,
                                       [](const char *profile) -> std::unique_ptr<ObjectItems> {
                                         return std::make_unique<Fallback>(profile);
                                       }};

}  // namespace tesselctl
