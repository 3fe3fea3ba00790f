// Groups of action profiles.
#include <fmt/format.h>

#include <algorithm>

#include "soft_contents.h"
#include "soft_traffic.h"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/kinds/profile_items.hpp"
#include "tesselctl/kinds/table_items.hpp"
#include "tesselctl/state/line_words.hpp"
#include "tesselctl/state/script.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

GroupValue::GroupValue(std::string_view value) : size(read_bytes<uint32_t>(value)) {
  for (size_t at = sizeof size; at < value.size(); at += sizeof(Membership)) {
    members.push_back(read_bytes<Membership>(value, at));
  }
}

void GroupValue::store(std::string &value) {
  std::ranges::sort(members);
  value.clear();
  append_bytes(value, size);
  for (const Membership &member : members) append_bytes(value, member);
}

namespace {

std::vector<uint64_t> numbers_of(const GroupValue &group, bool with_active) {
  std::vector<uint64_t> numbers;
  for (const Membership &member : group.members) {
    if (with_active || member.is_active == 0) numbers.push_back(member.member);
  }
  return numbers;
}

// The members of "1,2,3" and those of them that are inactive; list reads such a word.
template <class List>
void parse_members(Word members, const Word *inactive, GroupValue &group, List list) {
  for (const uint64_t number : list(members)) {
    group.members.push_back({static_cast<uint32_t>(number), 1});
  }
  std::ranges::sort(group.members);
  const auto twice = std::ranges::adjacent_find(group.members);
  if (twice != group.members.end()) {
    throw Fault(members, fmt::format("member {} is there twice", twice->member));
  }
  if (inactive == nullptr) return;
  for (const uint64_t number : list(*inactive)) {
    const Membership wanted = {static_cast<uint32_t>(number), 1};
    const auto found = std::ranges::lower_bound(group.members, wanted);
    if (found == group.members.end() || *found != wanted) {
      throw Fault(*inactive, fmt::format("member {} is no active member of the group", number));
    }
    found->is_active = 0;
  }
}

// What is done to a member of a group: by which function and by which command.
struct MemberStep {
  const char *family;
  std::string_view command;
  uint64_t state = 0;
};
constexpr MemberStep kLeave = {"del_member_from_group", "group leave"};
constexpr MemberStep kJoin = {"add_member_to_group", "group join"};
constexpr MemberStep kEnable = {"group_member_state_set", "group enable",
                                P4_PD_GRP_MBR_STATE_ACTIVE};
constexpr MemberStep kDisable = {"group_member_state_set", "group disable",
                                 P4_PD_GRP_MBR_STATE_INACTIVE};

using States = std::map<uint32_t, bool>;  // members, and whether they are active

States states_of(const GroupValue &group) {
  States states;
  for (const Membership &member : group.members) states[member.member] = member.is_active != 0;
  return states;
}

// Visits what makes a group that has the ones have the others.
template <class Visit>
void for_each_step(const States &has, const States &wanted, Visit visit) {
  for (const auto &[member, active] : has) {
    if (!wanted.contains(member)) visit(kLeave, member);
  }
  for (const auto &[member, active] : wanted) {
    const auto found = has.find(member);
    if (found == has.end()) visit(kJoin, member);
    if (active == (found == has.end() || found->second)) continue;
    visit(active ? kEnable : kDisable, member);
  }
}

// "group 1 size=4 members=1,2 inactive=2"
class Groups : public ObjectItems {
 public:
  explicit Groups(const soft_profile_t &profile) : profile_(profile) {}

  void parse(ValueScanner &line, ItemBytes &item) override {
    item.clear();
    append_bytes(item.identity, parse_counted(line, 1));
    const LineWords words(line, {"size", "members", "inactive"});
    GroupValue group;
    group.size = words.number32("size");
    parse_members(words.need("members"), words.find("inactive"), group,
                  [](Word word) { return number_list(word); });
    group.store(item.value);
  }
  void print(std::string &text, const ItemView &item) const override {
    const GroupValue group(item.value);
    const auto inactive = numbers_of(group, false);
    const auto out = std::back_inserter(text);
    fmt::format_to(out, "{} size={} members={}", read_bytes<uint32_t>(item.identity), group.size,
                   fmt::join(numbers_of(group, true), ","));
    if (!inactive.empty()) fmt::format_to(out, " inactive={}", fmt::join(inactive, ","));
  }
  void add_to(Row &row, const ItemView &item, Naming naming) const override {
    const GroupValue group(item.value);
    add_number(row, "group", read_bytes<uint32_t>(item.identity), naming);
    if (naming == Naming::numbers) row.number("size", group.size);
    row.list("members", numbers_of(group, true));
    const auto inactive = numbers_of(group, false);
    if (!inactive.empty()) row.list("inactive", inactive);
  }
  void add_samples_to(Row &row, Naming naming) const override {
    add_number(row, "group", 0, naming);
    if (naming == Naming::numbers) row.number("size", 0u);
    row.list("members", {}).list("inactive", {});
  }

  void read(Source &from, const ItemVisitor &visit) override {
    const ProfileNumbers &numbers = from.numbering.of(profile_.action_data_table);
    ItemBytes item;
    const auto read_one = [&](p4_pd_group_handle_t handle) {
      GroupValue group;
      const uint64_t status =
          soft_group_max_size(from.device.id(), profile_.selector, handle, &group.size);
      if (status == BF_OBJECT_NOT_FOUND) return;
      check(status, {});
      for_each_group_member(
          from.device, profile_.name, handle, {}, [&](uint32_t member, bool active) {
            group.members.push_back({numbers.members.number_of(member), active ? 1u : 0u});
          });
      item.clear();
      append_bytes(item.identity, numbers.groups.number_of(handle));
      group.store(item.value);
      visit(item.view());
    };
    if (from.only) return read_one(*from.only);
    for_each_group(from.device, profile_.name, {}, read_one);
  }

  void write(Target &to, Edit edit, const ItemView &item, Word word) override {
    NumberMap &groups = to.numbering.of(profile_.action_data_table).groups;
    const auto number = read_bytes<uint32_t>(item.identity);
    const GroupValue group(item.value);
    if (edit == Edit::add) add(to, groups, number, group.size, word);
    const uint32_t handle = need_handle(groups, "group", number, word);
    if (edit == Edit::remove) {
      Call call = to.device.prepare("del_group", profile_.name);
      check(call.set("group", uint64_t{handle}).run(), word);
      return groups.erase(number);
    }
    change_members(to, handle, group, word);
  }

  void print_commands(Script &script, const ItemEdit &edit) const override {
    const auto number = read_bytes<uint32_t>(edit.item.identity);
    const GroupValue group(edit.item.value);
    if (edit.edit == Edit::add) {
      script.begin(edit).word("size",
                              group.size == 0 ? std::string(kUnlimited) : decimal(group.size));
      script.name(Numbered::groups, edit, profile(), number).end();
    } else if (edit.edit == Edit::remove) {
      return script.begin(edit).reference(Numbered::groups, profile(), number).end();
    }
    const auto had = edit.before ? states_of(GroupValue(edit.before->value)) : States();
    for_each_step(had, states_of(group), [&](const MemberStep &step, uint32_t member) {
      script.begin(edit, step.command).reference(Numbered::groups, profile(), number);
      script.reference(Numbered::members, profile(), member).end();
    });
  }

  uint32_t profile() const override { return profile_.action_data_table; }
  void renumber(std::span<char> identity, std::span<char> value,
                const Renumbering &numbers) const override {
    numbers.replace(Numbered::groups, identity);
    for (size_t at = sizeof(GroupValue::size); at < value.size(); at += sizeof(Membership)) {
      numbers.replace(Numbered::members, value, at);
    }
    std::string bytes;
    GroupValue({value.data(), value.size()}).store(bytes);
    memcpy(value.data(), bytes.data(), bytes.size());
  }
  // The size.
  std::string_view lasting(std::string_view value) const override {
    return value.substr(0, sizeof(GroupValue::size));
  }

 private:
  void add(Target &to, NumberMap &groups, uint32_t number, uint32_t size, Word word) const {
    if (groups.handle_of(number) != 0) throw Fault(word, "this number is taken");
    p4_pd_group_handle_t group = 0;
    Call create = to.device.prepare("create_group", profile_.name);
    check(create.set("max_size", uint64_t{size}).set("group", &group).run(), word);
    groups.add(number, group);
    ++to.counts.groups;
  }

  void change_members(Target &to, uint32_t handle, const GroupValue &group, Word word) const {
    const NumberMap &members = to.numbering.of(profile_.action_data_table).members;
    States wanted;
    for (const auto &[number, active] : states_of(group)) {
      wanted[need_handle(members, "member", number, word)] = active;
    }
    States has;
    for_each_group_member(to.device, profile_.name, handle, word,
                          [&](uint32_t member, bool active) { has[member] = active; });
    for_each_step(has, wanted, [&](const MemberStep &step, uint32_t member) {
      Call call = to.device.prepare(step.family, profile_.name);
      call.set("group", uint64_t{handle}).set("member", uint64_t{member});
      check(call.set_if_taken("state", step.state).run(), word);
    });
  }

  const soft_profile_t &profile_;
};

constexpr Step kSteps[] = {
    {Phase::groups, Edit::add}, {Phase::groups, Edit::modify}, {Phase::groups_leave, Edit::remove}};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_profile_t>,
                                "group",
                                11,
                                kSteps,
                                {"group add", {}, "group delete"},
                                open_items<Groups, soft_profile_t>,
                                Numbered::groups}};

// ---- Commands ----

// Of a group: as many as a device has cells of counters and registers.
constexpr uint64_t kMostMembers = SOFT_COUNTER_CELLS;

uint32_t size_of(const ProfileLine &line) {
  if (line.options.need("size").text == kUnlimited) return 0;
  return static_cast<uint32_t>(line.options.number("size", kMostMembers, 1));
}

void add(Context &context, const Invocation &invocation) {
  const ProfileLine line(context, invocation, {"size", "as"});
  const uint64_t size = size_of(line);
  p4_pd_group_handle_t group = 0;
  line.run(line.call("create_group").set("max_size", size).set("group", &group));
  line.remember(group);
  line.done(line.row().number("group", group), "added");
}

// "1,$a,3": members of the profile.
std::vector<uint32_t> member_list(const ProfileLine &line, Word word) {
  std::vector<uint32_t> members;
  while (!word.text.empty()) {
    const Word one = take_until(word, ',');
    members.push_back(parse_handle(line.context, one, "member"));
    if (has_handle(line.context.device, line.object.name, "member", members.back())) continue;
    check(BF_OBJECT_NOT_FOUND, one);
  }
  return members;
}

GroupValue wanted_group(const ProfileLine &line) {
  GroupValue group;
  group.size = size_of(line);
  const Word members = line.options.need("members");
  parse_members(members, line.options.find("inactive"), group,
                [&](Word word) { return member_list(line, word); });
  if (group.size == 0 || group.members.size() <= group.size) return group;
  throw Fault(members, fmt::format("the group is for at most {} members", group.size));
}

void replace(Context &context, const Invocation &invocation) {
  const ProfileLine line(context, invocation, {"group", "size", "members", "inactive", "as"});
  std::string value;
  const GroupValue wanted = wanted_group(line);
  GroupValue(wanted).store(value);
  std::optional<ItemBytes> before = find_item(line, kKinds[0], value);
  p4_pd_group_handle_t group = before ? read_bytes<uint32_t>(before->identity) : 0;
  if (!before) {
    line.run(line.call("create_group").set("max_size", uint64_t{wanted.size}).set("group", &group));
  } else if (const uint32_t size = GroupValue(before->value).size; size != wanted.size) {
    throw Fault(line.options.need("size"),
                fmt::format("group {} is for at most {} members, and stays so", group, size));
  }
  if (!before || before->value != value) {
    ItemBytes item = {{}, value};
    append_bytes(item.identity, group);
    Numbering numbering = Numbering::by_handle();
    Target to = {context.device, numbering};
    Groups(line.object).write(to, Edit::modify, item.view(), line.word);
  }
  done_replacing(line, kKinds[0], group, before, value);
}

void remove(Context &context, const Invocation &invocation) {
  run_on_handles(context, invocation, "del_group", {"group"}, "deleted");
}
void join(Context &context, const Invocation &invocation) {
  run_on_handles(context, invocation, "add_member_to_group", {"group", "member"}, "joined");
}
void leave(Context &context, const Invocation &invocation) {
  run_on_handles(context, invocation, "del_member_from_group", {"group", "member"}, "left");
}

void set_state(Context &context, const Invocation &invocation, uint32_t state, const char *done) {
  run_on_handles(context, invocation, "group_member_state_set", {"group", "member"}, done, &state);
}
void enable(Context &context, const Invocation &invocation) {
  set_state(context, invocation, P4_PD_GRP_MBR_STATE_ACTIVE, "enabled");
}
void disable(Context &context, const Invocation &invocation) {
  set_state(context, invocation, P4_PD_GRP_MBR_STATE_INACTIVE, "disabled");
}

void choose_member(Context &context, const Invocation &invocation) {
  const ProfileLine line(context, invocation, {"group", "hash"});
  const auto hash = static_cast<uint32_t>(line.options.number("hash", 0xffffffffu));
  const uint32_t group = line.options.handle(context, "group");
  p4_pd_member_handle_t member = 0;
  check_handles(tesselctl::choose_member(context.device, line.object.name, group, hash, member),
                context.device, line.object.name, {{"group", group, line.options.need("group")}},
                line.word);
  Row row = line.row().number("member", member);
  add_member(row, context.device, line.object.name, member, line.word);
  context.results.row(row);
}

void show(Context &context, const Invocation &invocation) {
  print_items({context, invocation, {"group"}}, kKinds[0], "group");
}

constexpr Command kCommands[] = {
    {"group add", "PROFILE size=N|unlimited [as=NAME]", "adds a group for at most N members", add,
     Kind::changes},
    {"group replace",
     "PROFILE [group=HANDLE] size=N|unlimited members=HANDLES [inactive=HANDLES] [as=NAME]",
     "gives this group those members, keeps one that has them, or adds one", replace,
     Kind::changes},
    {"group delete", "PROFILE group=HANDLE", "deletes a group", remove, Kind::changes},
    {"group join", "PROFILE group=HANDLE member=HANDLE", "puts a member into a group", join,
     Kind::changes},
    {"group leave", "PROFILE group=HANDLE member=HANDLE", "takes a member out", leave,
     Kind::changes},
    {"group enable", "PROFILE group=HANDLE member=HANDLE", "makes a member active", enable,
     Kind::changes},
    {"group disable", "PROFILE group=HANDLE member=HANDLE", "makes a member inactive", disable,
     Kind::changes},
    {"group choose", "PROFILE group=HANDLE hash=N", "prints the member that a hash chooses",
     choose_member},
    {"group show", "PROFILE [group=HANDLE]", "prints groups with their members", show, Kind::lists},
};

}  // namespace

extern const Topic kGroupTopic = {"Members and groups", kCommands, {}, kKinds};

}  // namespace tesselctl
