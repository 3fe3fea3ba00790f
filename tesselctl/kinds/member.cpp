// Members of action profiles.
#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/entry_value.hpp"
#include "tesselctl/kinds/profile_items.hpp"
#include "tesselctl/program/record.hpp"
#include "tesselctl/state/line_words.hpp"
#include "tesselctl/state/script.hpp"

namespace tesselctl {

uint32_t need_handle(const NumberMap &numbers, const char *what, uint32_t number, Word word) {
  const uint32_t handle = numbers.handle_of(number);
  if (handle == 0) throw Fault(word, fmt::format("there is no {} #{}", what, number));
  return handle;
}

void print_items(const ProfileLine &line, const ItemKind &kind, const char *option) {
  Numbering numbering = Numbering::by_handle();
  Source from = {line.context.device, numbering};
  if (line.options.has(option)) from.only = line.options.handle(line.context, option);
  bool found = !from.only;
  const auto items = kind.open(line.object.name);
  Row sample = line.row();
  items->add_samples_to(sample, Naming::handles);
  line.context.results.expect(sample);
  items->read(from, [&](const ItemView &item) {
    found = true;
    Row row = line.row();
    items->add_to(row, item, Naming::handles);
    line.context.results.row(row);
  });
  if (!found) check(BF_OBJECT_NOT_FOUND, line.options.need(option));
}

std::optional<ItemBytes> find_item(const ProfileLine &line, const ItemKind &kind,
                                   std::string_view value) {
  const uint32_t wanted =
      line.options.has(kind.keyword) ? line.options.handle(line.context, kind.keyword) : 0;
  std::optional<ItemBytes> by_handle, by_value;
  Numbering numbering = Numbering::by_handle();
  Source from = {line.context.device, numbering};
  kind.open(line.object.name)->read(from, [&](const ItemView &item) {
    const auto keep = [&](std::optional<ItemBytes> &as) {
      as = {std::string(item.identity), std::string(item.value)};
    };
    if (read_bytes<uint32_t>(item.identity) == wanted) keep(by_handle);
    if (!by_value && item.value == value) keep(by_value);
  });
  return by_handle ? by_handle : by_value;
}

void done_replacing(const ProfileLine &line, const ItemKind &kind, uint32_t handle,
                    const std::optional<ItemBytes> &before, std::string_view value) {
  line.remember(handle);
  line.done(line.row().number(kind.keyword, handle), !before                  ? "added"
                                                     : before->value == value ? "kept"
                                                                              : "modified");
}

void run_on_handles(Context &context, const Invocation &invocation, const char *family,
                    std::initializer_list<std::string_view> names, const char *done,
                    const uint32_t *state) {
  const ProfileLine line(context, invocation, names);
  Call call = line.call(family);
  Row row = line.row();
  std::vector<WrittenHandle> handles;
  for (const std::string_view name : names) {
    const uint32_t handle = line.options.handle(context, name);
    call.set(name, uint64_t{handle});
    row.number(name, handle);
    handles.push_back({name, handle, line.options.need(name)});
  }
  if (state != nullptr) call.set("state", uint64_t{*state});
  check_handles(call.run(), context.device, line.object.name, handles, line.word);
  line.done(row, done);
}

namespace {

// ---- Items ----

// "member 1 ('setEcmpNextHop',(0x0009,)),": its number, and its action as entries have it.
class Members : public ObjectItems {
 public:
  explicit Members(const soft_profile_t &profile) : profile_(profile) {}

  void parse(ValueScanner &line, ItemBytes &item) override {
    item.clear();
    append_bytes(item.identity, parse_counted(line, 1));
    line.expect(" ");
    const Word action = parse_action(line, last_action_, item.value);
    need_call("add_member", action, item.value);
    LineWords(line, {});
  }
  void print(std::string &text, const ItemView &item) const override {
    fmt::format_to(std::back_inserter(text), "{} ", read_bytes<uint32_t>(item.identity));
    print_action(text, item.value);
  }
  void add_to(Row &row, const ItemView &item, Naming naming) const override {
    add_number(row, "member", read_bytes<uint32_t>(item.identity), naming);
    add_action(row, item.value);
  }
  void add_samples_to(Row &row, Naming naming) const override {
    add_number(row, "member", 0, naming);
    add_member_samples(row, profile_);
  }

  void read(Source &from, const ItemVisitor &visit) override {
    MemberReader reader(from.device, profile_.name);
    const NumberMap &numbers = from.numbering.of(profile_.action_data_table).members;
    ItemBytes item;
    const auto read_one = [&](p4_pd_member_handle_t member) {
      item.clear();
      append_bytes(item.identity, numbers.number_of(member));
      const uint64_t status = reader.read(member, item.value);
      if (status == BF_OBJECT_NOT_FOUND) return;
      check(status, {});
      visit(item.view());
    };
    if (from.only) return read_one(*from.only);
    for_each_member(from.device, profile_.name, {}, read_one);
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

  void print_commands(Script &script, const ItemEdit &edit) const override {
    const auto number = read_bytes<uint32_t>(edit.item.identity);
    script.begin(edit);
    if (edit.edit == Edit::add) {
      script.name(Numbered::members, edit, profile(), number);
    } else {
      script.reference(Numbered::members, profile(), number);
    }
    Row row;
    if (edit.edit != Edit::remove) add_action(row, edit.item.value);
    script.words(row).end();
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

constexpr ItemKind kKinds[] = {{kObjectKind<soft_profile_t>,
                                "member",
                                10,
                                kSteps,
                                {"member add", "member modify", "member delete"},
                                open_items<Members, soft_profile_t>,
                                Numbered::members}};

// ---- Commands ----

// "PROFILE [NAME=VALUE...] action=NAME [PARAM=VALUE...]"
struct MemberLine {
  MemberLine(Context &context, const Invocation &invocation,
             std::initializer_list<std::string_view> options)
      : words(invocation.arguments),
        action_at(static_cast<size_t>(std::ranges::find_if(words, is_action) - words.begin())),
        line(context, {invocation.command, words.first(has_action() ? action_at : object_words())},
             options),
        action(read_action()) {}

  // Sets the parameters, as far as the action has any.
  Call call(std::string_view family) const {
    Call call = line.context.device.prepare(family, line.object.name, action.record().name);
    return call.set_if_taken("action_spec", static_cast<const void *>(action.data()));
  }

  // As the value of an item.
  std::string value() const {
    EntryHead head;
    head.outcome = EntryHead::kAction;
    head.number = action.record().number;
    std::string bytes;
    append_bytes(bytes, head);
    append_action_bytes(bytes, action.record(), action.data());
    return bytes;
  }

  Words words;
  size_t action_at;
  ProfileLine line;
  RecordWriter action;

 private:
  static bool is_action(const Word &word) { return word.text.starts_with("action="); }
  bool has_action() const { return action_at != words.size(); }
  size_t object_words() const { return std::min<size_t>(1, words.size()); }
  RecordWriter read_action() const {
    if (!has_action()) throw Fault(line.word, "action= is missing");
    const Word name = words[action_at].from(7);
    RecordWriter read(resolve_action(line.object, name), std::string(name.text));
    for (const Word &word : words.subspan(action_at + 1)) read.set(split_assignment(word));
    read.finish(name);
    return read;
  }
};

void add(Context &context, const Invocation &invocation) {
  const MemberLine words(context, invocation, {"as"});
  p4_pd_member_handle_t member = 0;
  words.line.run(words.call("add_member").set("member", &member));
  words.line.remember(member);
  words.line.done(words.line.row().number("member", member), "added");
}

void replace(Context &context, const Invocation &invocation) {
  const MemberLine words(context, invocation, {"member", "as"});
  const ProfileLine &line = words.line;
  const std::string value = words.value();
  const std::optional<ItemBytes> before = find_item(line, kKinds[0], value);
  p4_pd_member_handle_t member = before ? read_bytes<uint32_t>(before->identity) : 0;
  if (!before) {
    line.run(words.call("add_member").set("member", &member));
  } else if (before->value != value) {
    line.run(words.call("modify_member").set("member", uint64_t{member}));
  }
  done_replacing(line, kKinds[0], member, before, value);
}

void modify(Context &context, const Invocation &invocation) {
  const MemberLine words(context, invocation, {"member"});
  const ProfileLine &line = words.line;
  const uint32_t member = line.options.handle(context, "member");
  check_handles(words.call("modify_member").set("member", uint64_t{member}).run(), context.device,
                line.object.name, {{"member", member, line.options.need("member")}}, line.word);
  line.done(line.row().number("member", member), "modified");
}

void remove(Context &context, const Invocation &invocation) {
  run_on_handles(context, invocation, "del_member", {"member"}, "deleted");
}

void show(Context &context, const Invocation &invocation) {
  print_items({context, invocation, {"member"}}, kKinds[0], "member");
}

std::string help_of(const soft_profile_t &profile) {
  return profile.selector != 0 ? "members and groups" : "members";
}

constexpr ObjectWord kWords[] = {{"PROFILE", offer_objects<soft_profile_t, help_of>,
                                  choose_object<soft_profile_t, choose_profile>}};

constexpr Command kCommands[] = {
    {"member add", "PROFILE [as=NAME] action=NAME [PARAM=VALUE...]", "adds a member", add,
     Kind::changes},
    {"member modify", "PROFILE member=HANDLE action=NAME [PARAM=VALUE...]",
     "changes the parameters of a member", modify, Kind::changes},
    {"member replace", "PROFILE [member=HANDLE] [as=NAME] action=NAME [PARAM=VALUE...]",
     "modifies this member, keeps one that does the same, or adds one", replace, Kind::changes},
    {"member delete", "PROFILE member=HANDLE", "deletes a member", remove, Kind::changes},
    {"member show", "PROFILE [member=HANDLE]", "prints members", show, Kind::lists},
};

}  // namespace

extern const Topic kMemberTopic = {"Members and groups", kCommands, kWords, kKinds};

}  // namespace tesselctl
