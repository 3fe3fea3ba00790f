// Members and groups of action profiles.
#include <algorithm>

#include "soft_traffic.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/subject.hpp"
#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/text/suggest.hpp"

namespace tesselctl {

namespace {

// Of a group: as many as a device has cells of counters and registers.
constexpr uint64_t kMostMembers = SOFT_COUNTER_CELLS;

Word profile_word(const Invocation &invocation) {
  return need_argument(invocation, 0, "the name of a profile");
}

const soft_profile_t &profile_of(const Invocation &invocation) {
  return resolve_object<soft_profile_t>(profile_word(invocation), "profile");
}

Row profile_row(const soft_profile_t &profile) {
  Row row;
  row.object("profile", profile.name);
  return row;
}

// The action= word of the line and the parameters behind it; the words before it are for Options.
struct ActionWords {
  RecordWriter action;
  Invocation before;
};

ActionWords read_action(const Invocation &invocation, const soft_profile_t &profile) {
  const Words words = invocation.arguments;
  const auto found = std::find_if(words.begin(), words.end(), [](const Word &word) {
    return word.text.starts_with("action=");
  });
  if (found == words.end()) throw Fault(profile_word(invocation), "action= is missing");
  const Word name = found->from(7);
  Nearest near(name.text);
  for (uint32_t i = 0; i < profile.action_count; ++i) {
    near.consider(profile.actions[i].name);
    if (name.text != profile.actions[i].name) continue;
    RecordWriter action(action_record(name.text), std::string(name.text));
    for (auto word = found + 1; word != words.end(); ++word) action.set(split_assignment(*word));
    action.finish(name);
    const auto count = static_cast<size_t>(found - words.begin());
    return {std::move(action), {invocation.command, words.first(count)}};
  }
  throw Fault(name, std::string(profile.name) + " has no action of this name", near.name());
}

void member_add(Context &context, const Invocation &invocation) {
  const soft_profile_t &profile = profile_of(invocation);
  const ActionWords words = read_action(invocation, profile);
  const Options options(words.before, 1, {"as"});
  Call call = context.device.prepare("add_member", profile.name, words.action.record().name);
  p4_pd_member_handle_t member = 0;
  call.set_if_taken("action_spec", static_cast<const void *>(words.action.data()));
  check(call.set("member", &member).run(), profile_word(invocation));
  if (options.has("as")) remember(context, options.need("as"), member);
  context.results.done(profile_row(profile).number("member", member), "added");
}

void member_modify(Context &context, const Invocation &invocation) {
  const soft_profile_t &profile = profile_of(invocation);
  const ActionWords words = read_action(invocation, profile);
  const Options options(words.before, 1, {"member"});
  Call call = context.device.prepare("modify_member", profile.name, words.action.record().name);
  const uint32_t member = options.handle(context, "member");
  call.set("member", uint64_t{member});
  call.set_if_taken("action_spec", static_cast<const void *>(words.action.data()));
  check_handles(call.run(), context.device, profile.name,
                {{"member", member, options.need("member")}}, profile_word(invocation));
  context.results.done(profile_row(profile).number("member", member), "modified");
}

// The calls that take a group, a member or both and answer with a status alone.
void change(Context &context, const Invocation &invocation, const char *family,
            std::initializer_list<std::string_view> names, const char *done,
            const uint32_t *state = nullptr) {
  const soft_profile_t &profile = profile_of(invocation);
  const Options options(invocation, 1, names);
  Call call = context.device.prepare(family, profile.name);
  Row row = profile_row(profile);
  std::vector<WrittenHandle> handles;
  for (const std::string_view name : names) {
    const uint32_t handle = options.handle(context, name);
    call.set(name, uint64_t{handle});
    row.number(name, handle);
    handles.push_back({name, handle, options.need(name)});
  }
  if (state != nullptr) call.set("state", uint64_t{*state});
  check_handles(call.run(), context.device, profile.name, handles, profile_word(invocation));
  context.results.done(row, done);
}

void member_delete(Context &context, const Invocation &invocation) {
  change(context, invocation, "del_member", {"member"}, "deleted");
}
void group_delete(Context &context, const Invocation &invocation) {
  change(context, invocation, "del_group", {"group"}, "deleted");
}
void group_join(Context &context, const Invocation &invocation) {
  change(context, invocation, "add_member_to_group", {"group", "member"}, "joined");
}
void group_leave(Context &context, const Invocation &invocation) {
  change(context, invocation, "del_member_from_group", {"group", "member"}, "left");
}
void group_enable(Context &context, const Invocation &invocation) {
  const uint32_t state = P4_PD_GRP_MBR_STATE_ACTIVE;
  change(context, invocation, "group_member_state_set", {"group", "member"}, "enabled", &state);
}
void group_disable(Context &context, const Invocation &invocation) {
  const uint32_t state = P4_PD_GRP_MBR_STATE_INACTIVE;
  change(context, invocation, "group_member_state_set", {"group", "member"}, "disabled", &state);
}
void fallback_set(Context &context, const Invocation &invocation) {
  change(context, invocation, "set_dynamic_action_selection_fallback_member", {"member"},
         "is the fallback");
}
void fallback_reset(Context &context, const Invocation &invocation) {
  change(context, invocation, "reset_dynamic_action_selection_fallback_member", {},
         "has no fallback");
}

void group_add(Context &context, const Invocation &invocation) {
  const soft_profile_t &profile = profile_of(invocation);
  const Options options(invocation, 1, {"size", "as"});
  p4_pd_group_handle_t group = 0;
  Call call = context.device.prepare("create_group", profile.name);
  call.set("max_size", options.number("size", kMostMembers, 1)).set("group", &group);
  check(call.run(), profile_word(invocation));
  if (options.has("as")) remember(context, options.need("as"), group);
  context.results.done(profile_row(profile).number("group", group), "added");
}

void group_choose(Context &context, const Invocation &invocation) {
  const soft_profile_t &profile = profile_of(invocation);
  const Options options(invocation, 1, {"group", "hash"});
  const auto bytes = to_bytes(options.number("hash", 0xffffffffu));
  p4_pd_member_handle_t member = 0;
  Call call = context.device.prepare("group_member_get_from_hash", profile.name);
  const uint32_t group = options.handle(context, "group");
  call.set("group", uint64_t{group}).set("member", &member);
  call.set("hash", bytes.data() + 12).set("hash_length", uint64_t{4});
  check_handles(call.run(), context.device, profile.name, {{"group", group, options.need("group")}},
                profile_word(invocation));
  Row row = profile_row(profile).number("member", member);
  add_member(row, context.device, profile.name, member, profile_word(invocation));
  context.results.row(row);
}

void member_show(Context &context, const Invocation &invocation) {
  const soft_profile_t &profile = profile_of(invocation);
  const Device &device = context.device;
  const Options options(invocation, 1, {"member"});
  const Word word = options.has("member") ? options.need("member") : profile_word(invocation);
  const auto print = [&](p4_pd_member_handle_t member) {
    Row row = profile_row(profile).number("member", member);
    add_member(row, device, profile.name, member, word);
    context.results.row(row);
  };
  Row sample = profile_row(profile).number("member", 0);
  add_member_samples(sample, profile);
  context.results.expect(sample);
  if (options.has("member")) return print(options.handle(context, "member"));
  for_each_member(device, profile.name, word, print);
}

// "members=3,4 inactive=4"
void add_members(Row &row, const Device &device, const char *profile, p4_pd_group_handle_t group,
                 Word word) {
  std::vector<uint64_t> members;
  std::vector<uint64_t> inactive;
  for_each_group_member(device, profile, group, word, [&](uint32_t member, bool active) {
    members.push_back(member);
    if (!active) inactive.push_back(member);
  });
  row.list("members", members);
  if (!inactive.empty()) row.list("inactive", inactive);
}

void group_show(Context &context, const Invocation &invocation) {
  const soft_profile_t &profile = profile_of(invocation);
  const Device &device = context.device;
  const Options options(invocation, 1, {"group"});
  const Word word = options.has("group") ? options.need("group") : profile_word(invocation);
  const auto print = [&](p4_pd_group_handle_t group) {
    Row row = profile_row(profile).number("group", group);
    add_members(row, device, profile.name, group, word);
    context.results.row(row);
  };
  context.results.expect(
      profile_row(profile).number("group", 0).list("members", {}).list("inactive", {}));
  if (options.has("group")) {
    const uint32_t group = options.handle(context, "group");
    if (!has_handle(device, profile.name, "group", group)) check(BF_OBJECT_NOT_FOUND, word);
    return print(group);
  }
  for_each_group(device, profile.name, word, print);
}

void offer_profiles(Offers &offers, const Command &, Words) {
  offer_objects<soft_profile_t>(offers, [](const soft_profile_t &profile) {
    return profile.selector != 0 ? "members and groups" : "members";
  });
}

void choose(Subject &subject, std::string_view name) {
  if (const auto *profile = find_object<soft_profile_t>(name)) choose_profile(subject, *profile);
}

constexpr ObjectWord kWords[] = {{"PROFILE", offer_profiles, choose}};

constexpr Command kCommands[] = {
    {"member add", "PROFILE [as=NAME] action=NAME [PARAM=VALUE...]", "adds a member", member_add,
     Kind::changes},
    {"member modify", "PROFILE member=HANDLE action=NAME [PARAM=VALUE...]",
     "changes the parameters of a member", member_modify, Kind::changes},
    {"member delete", "PROFILE member=HANDLE", "deletes a member", member_delete, Kind::changes},
    {"member show", "PROFILE [member=HANDLE]", "prints members", member_show, Kind::lists},
    {"group add", "PROFILE size=N [as=NAME]", "adds a group for at most N members", group_add,
     Kind::changes},
    {"group delete", "PROFILE group=HANDLE", "deletes a group", group_delete, Kind::changes},
    {"group join", "PROFILE group=HANDLE member=HANDLE", "puts a member into a group", group_join,
     Kind::changes},
    {"group leave", "PROFILE group=HANDLE member=HANDLE", "takes a member out", group_leave,
     Kind::changes},
    {"group enable", "PROFILE group=HANDLE member=HANDLE", "makes a member active", group_enable,
     Kind::changes},
    {"group disable", "PROFILE group=HANDLE member=HANDLE", "makes a member inactive",
     group_disable, Kind::changes},
    {"group choose", "PROFILE group=HANDLE hash=N", "prints the member that a hash chooses",
     group_choose},
    {"group show", "PROFILE [group=HANDLE]", "prints groups with their members", group_show,
     Kind::lists},
    {"fallback set", "PROFILE member=HANDLE", "sets what stands in for groups without members",
     fallback_set, Kind::changes},
    {"fallback reset", "PROFILE", "takes the fallback member back", fallback_reset, Kind::changes},
};

}  // namespace

std::span<const Command> profile_commands() { return kCommands; }
std::span<const ObjectWord> profile_words() { return kWords; }

}  // namespace tesselctl
