// Members of action profiles in images.
#include <fmt/format.h>

#include "tesselctl/kinds/profile_items.hpp"

namespace tesselctl {

const ObjectKind kProfileObjects = {"profile", "profile", row_name<&program_rows<soft_profile_t>>};

uint32_t parse_item_number(ValueScanner &line) {
  const Word word = line.here();
  const int64_t number = line.decimal();
  if (number <= 0) throw Fault(word, "numbers begin with 1");
  return static_cast<uint32_t>(number);
}

uint32_t need_handle(const NumberMap &numbers, const char *what, uint32_t number, Word word) {
  const uint32_t handle = numbers.handle_of(number);
  if (handle == 0) throw Fault(word, fmt::format("there is no {} #{}", what, number));
  return handle;
}

namespace {

// "member 1 ('setEcmpNextHop',(0x0009,)),": its number, and its action as entries have it.
class Members : public ObjectItems {
 public:
  explicit Members(const char *profile) : profile_(need_row<soft_profile_t>(profile)) {}

  void parse(ValueScanner &line, ItemBytes &item) override {
    item.clear();
    append_bytes(item.identity, parse_item_number(line));
    line.expect(" ");
    const Word action = parse_action(line, last_action_, item.value);
    need_call("add_member", action, item.value);
    LineWords(line, {});
  }
  void print(std::string &text, const ItemView &item) const override {
    fmt::format_to(std::back_inserter(text), "{} ", read_bytes<uint32_t>(item.identity));
    print_action(text, item.value);
  }
  void add_to(Row &row, const ItemView &item) const override {
    add_number(row, "member", read_bytes<uint32_t>(item.identity), Naming::numbers);
    add_action(row, item.value);
  }
  void add_samples_to(Row &row) const override {
    add_number(row, "member", 0, Naming::numbers);
    add_member_samples(row, profile_);
  }

  void read(Source &from, const ItemVisitor &visit) override {
    MemberReader reader(from.device, profile_.name);
    const NumberMap &numbers = from.numbering.of(profile_.action_data_table).members;
    ItemBytes item;
    for_each_member(from.device, profile_.name, {}, [&](p4_pd_member_handle_t member) {
      item.clear();
      append_bytes(item.identity, numbers.number_of(member));
      check(reader.read(member, item.value), {});
      visit(item.view());
    });
  }

  void write(Target &to, Edit edit, const ItemView &item, Word word) override {
    NumberMap &numbers = to.numbering.of(profile_.action_data_table).members;
    const auto number = read_bytes<uint32_t>(item.identity);
    if (edit == Edit::add) return add(to, numbers, item, word);
    const uint64_t member = need_handle(numbers, "member", number, word);
    if (edit == Edit::remove) {
      check(to.device.prepare("del_member", profile_.name).set("member", member).run(), word);
      return numbers.erase(number);
    }
    Call call = to.device.prepare(need_call("modify_member", word, item.value));
    call.set_if_taken("action_spec", static_cast<const void *>(parameters_of(item.value)));
    check(call.set("member", member).run(), word);
  }

  uint32_t profile() const override { return profile_.action_data_table; }
  void renumber(std::span<char> identity, std::span<char>,
                const Renumbering &numbers) const override {
    numbers.replace(Numbered::members, identity);
  }
  // The action.
  std::string_view lasting(std::string_view value) const override {
    return value.substr(0, offsetof(EntryHead, has_ttl));
  }

 private:
  void add(Target &to, NumberMap &numbers, const ItemView &item, Word word) {
    const auto number = read_bytes<uint32_t>(item.identity);
    if (numbers.handle_of(number) != 0) throw Fault(word, "this number is taken");
    p4_pd_member_handle_t member = 0;
    Call call = to.device.prepare(need_call("add_member", word, item.value));
    call.set_if_taken("action_spec", static_cast<const void *>(parameters_of(item.value)));
    check(call.set("member", &member).run(), word);
    numbers.add(number, member);
    ++to.counts.members;
  }

  const bindings::Export &need_call(const char *family, Word word, std::string_view value) const {
    const char *action = action_of_number(head_of(value).number).name;
    const bindings::Export *found = find_export(family, profile_.name, action);
    if (found != nullptr) return *found;
    throw Fault(word, "the profile has no action of this name");
  }

  const soft_profile_t &profile_;
  const bindings::Record *last_action_ = nullptr;
};

constexpr Step kSteps[] = {{Phase::members, Edit::add},
                           {Phase::members, Edit::modify},
                           {Phase::members_leave, Edit::remove}};

}  // namespace

extern const ItemKind kMemberKind = {kProfileObjects, "member", kSteps,
                                     [](const char *profile) -> std::unique_ptr<ObjectItems> {
                                       return std::make_unique<Members>(profile);
                                     },
                                     Numbered::members};

}  // namespace tesselctl
