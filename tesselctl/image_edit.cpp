// Editing by lines of images: profiles and tables. image_edit_cells.cpp has the rest.
#include "tesselctl/image_edit.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>
#include <set>

#include "soft_state.h"
#include "tesselctl/read_back.hpp"
#include "tesselctl/value.hpp"

namespace tesselctl {

namespace {

constexpr uint64_t kMost32 = 0xffffffffu;

}  // namespace

bool ImageEditor::open(Word keyword, Word name) {
  if (keyword.text == "profile") {
    profile_ = &resolve_object<soft_profile_t>(name, "profile");
    numbers_ = &numbers_of(*profile_);
    section_ = Section::profile;
  } else if (keyword.text == "table") {
    table_ = resolve_table(name);
    value_ = {};
    actions_.clear();
    if (table_->indirect()) numbers_ = &profile_numbers_[table_->description->action_data_table];
    counter_ = nullptr;
    for (const soft_counter_t &counter : program_rows<soft_counter_t>()) {
      if (counter.table == table_->description->handle) counter_ = counter.name;
    }
    section_ = Section::table;
  } else if (keyword.text == "counter") {
    object_ = resolve_object<soft_counter_t>(name, "counter").name;
    section_ = Section::counter;
  } else if (keyword.text == "meter") {
    object_ = resolve_object<soft_meter_t>(name, "meter").name;
    section_ = Section::meter;
  } else if (keyword.text == "register") {
    register_ = &resolve_object<soft_register_t>(name, "register");
    section_ = Section::reg;
  } else if (keyword.text == "hash") {
    object_ = resolve_object<soft_hash_t>(name, "hash calculation").name;
    section_ = Section::hash;
  } else if (keyword.text == "valueset") {
    object_ = resolve_object<soft_value_set_t>(name, "value set").name;
    section_ = Section::value_set;
  } else {
    return false;
  }
  return true;
}

std::span<const ImageEditor::Reader> ImageEditor::readers() {
  static constexpr Reader kReaders[] = {
      {"entry", Section::table, &ImageEditor::edit_entry},
      {"default", Section::table, &ImageEditor::edit_default},
      {"ageing", Section::table, &ImageEditor::edit_ageing},
      {"member", Section::profile, &ImageEditor::edit_member},
      {"group", Section::profile, &ImageEditor::edit_group},
      {"fallback", Section::profile, &ImageEditor::edit_fallback},
      {"cell", Section::counter, &ImageEditor::edit_cell},
      {"cell", Section::meter, &ImageEditor::edit_cell},
      {"cell", Section::reg, &ImageEditor::edit_cell},
      {"all", Section::reg, &ImageEditor::edit_all},
      {"seed", Section::hash, &ImageEditor::edit_seed},
      {"value", Section::value_set, &ImageEditor::edit_set_value},
  };
  return kReaders;
}

void ImageEditor::edit(Edit edit, std::string_view line) {
  const size_t blank = std::min(line.find(' '), line.size());
  keyword_ = {line.substr(0, blank), 1};
  edit_ = edit;
  bool known = false;
  for (const Reader &reader : readers()) {
    if (keyword_.text != reader.keyword) continue;
    known = true;
    if (reader.section != section_) continue;
    const size_t behind = std::min(blank + 1, line.size());
    ValueScanner rest(line.substr(behind), behind + 1);
    return (this->*reader.read)(rest);
  }
  throw Fault(keyword_, known ? "this does not belong here" : "an image has no such line");
}

// ---- Profiles ----

uint32_t ImageEditor::handle_of(const std::map<uint32_t, uint32_t> &handles, uint64_t number,
                                Word word) {
  const auto found = handles.find(static_cast<uint32_t>(number));
  if (number <= kMost32 && found != handles.end()) return found->second;
  throw Fault(word, "nothing has this number");
}

// The number of a member or group, which is new or known as the edit wants it.
uint32_t ImageEditor::read_number(ValueScanner &rest,
                                  const std::map<uint32_t, uint32_t> &handles) const {
  const Word word = rest.word();
  const int64_t number = rest.decimal();
  if (number <= 0) throw Fault(word, "numbers begin with 1");
  const bool is_known = handles.contains(static_cast<uint32_t>(number));
  if (is_known == (edit_ == Edit::add)) {
    throw Fault(word, is_known ? "this number is taken" : "nothing has this number");
  }
  return static_cast<uint32_t>(number);
}

void ImageEditor::edit_member(ValueScanner &rest) {
  const uint32_t number = read_number(rest, numbers_->members);
  rest.expect(" ");
  ActionValue &action = value_.action;
  action.read(rest);
  Attributes(rest).refuse_others({});
  if (edit_ == Edit::remove) {
    Call call = device_.prepare("del_member", profile_->name);
    refused(call.set("member", uint64_t{numbers_->members.at(number)}).run());
    numbers_->members.erase(number);
    return;
  }
  const bool is_new = edit_ == Edit::add;
  const bindings::Export *target =
      find_export(is_new ? "add_member" : "modify_member", profile_->name, action.action->name);
  if (target == nullptr) throw Fault(action.name, "the profile has no action of this name");
  p4_pd_member_handle_t member = is_new ? 0 : numbers_->members.at(number);
  Call call = device_.prepare(*target);
  call.set_if_taken("action_spec", static_cast<const void *>(action.parameters.data()));
  if (is_new) {
    call.set("member", &member);
  } else {
    call.set("member", uint64_t{member});
  }
  refused(call.run());
  numbers_->members[number] = member;
  if (is_new) ++counts.members;
}

// The group of that number, made now when it is to be added.
uint32_t ImageEditor::need_group(uint32_t number, const Attributes &words) {
  if (edit_ != Edit::add) return numbers_->groups.at(number);
  p4_pd_group_handle_t group = 0;
  Call create = device_.prepare("create_group", profile_->name);
  create.set("max_size", words.number("size", kMost32, 0)).set("group", &group);
  refused(create.run());
  numbers_->groups.emplace(number, group);
  ++counts.groups;
  return group;
}

void ImageEditor::edit_group(ValueScanner &rest) {
  const uint32_t number = read_number(rest, numbers_->groups);
  const Attributes words(rest);
  words.refuse_others({"size", "members", "inactive"});
  const uint32_t group = need_group(number, words);
  const auto call = [&](const char *family) {
    Call prepared = device_.prepare(family, profile_->name);
    prepared.set("group", uint64_t{group});
    return prepared;
  };
  if (edit_ == Edit::remove) {
    refused(call("del_group").run());
    numbers_->groups.erase(number);
    return;
  }
  // Which members it is to have, by handle, and whether they are active.
  std::map<uint32_t, bool> wanted;
  for (const char *name : {"members", "inactive"}) {
    const Word *list = words.find(name);
    const bool active = std::string_view(name) == "members";
    for (const uint64_t member : number_list(list)) {
      const uint32_t handle = handle_of(numbers_->members, member, *list);
      if (!active && !wanted.contains(handle)) throw Fault(*list, "this is no member of the group");
      wanted[handle] = active;
    }
  }
  std::map<uint32_t, bool> has;
  if (edit_ == Edit::modify) {
    for_each_group_member(device_, profile_->name, group, keyword_,
                          [&](uint32_t member, bool active) { has[member] = active; });
  }
  Call leave = call("del_member_from_group");
  for (const auto &[member, active] : has) {
    if (!wanted.contains(member)) refused(leave.set("member", uint64_t{member}).run());
  }
  Call join = call("add_member_to_group");
  Call state = call("group_member_state_set");
  for (const auto &[member, active] : wanted) {
    const auto found = has.find(member);
    if (found == has.end()) refused(join.set("member", uint64_t{member}).run());
    if (active == (found == has.end() || found->second)) continue;
    state.set("state",
              uint64_t{active ? P4_PD_GRP_MBR_STATE_ACTIVE : P4_PD_GRP_MBR_STATE_INACTIVE});
    refused(state.set("member", uint64_t{member}).run());
  }
}

void ImageEditor::edit_fallback(ValueScanner &rest) {
  const bool reset = edit_ == Edit::remove;
  const Word word = rest.word();
  Call call = device_.prepare(reset ? "reset_dynamic_action_selection_fallback_member"
                                    : "set_dynamic_action_selection_fallback_member",
                              profile_->name);
  if (!reset) {
    const uint64_t number = parse_limited(word, kMost32, "the number");
    call.set("member", uint64_t{handle_of(numbers_->members, number, word)});
  }
  refused(call.run());
}

// ---- Tables ----

ImageEditor::ActionCalls &ImageEditor::calls_of(const ActionValue &action) {
  for (ActionCalls &known : actions_) {
    if (action.action == known.action) return known;
  }
  ActionCalls calls = {action.action, {}, {}, {}};
  const auto prepare = [&](const char *family, std::optional<Call> &call) {
    const bindings::Export *found = find_export(family, table_->name(), action.action->name);
    if (found != nullptr) call = device_.prepare(*found);
    return found != nullptr;
  };
  bool any = prepare("table_add", calls.add);
  any |= prepare("table_modify_by_match_spec", calls.modify);
  any |= prepare("set_default_action", calls.set_default);
  if (!any) throw Fault(action.name, "the table has no action of this name");
  return actions_.emplace_back(std::move(calls));
}

uint32_t ImageEditor::target_of(const ImageEntry &value) const {
  return handle_of(value.target_is_group ? numbers_->groups : numbers_->members, value.target,
                   value.target_word);
}

// The call that makes the entry that was read what it is to be, with its outcome.
Call ImageEditor::entry_call() {
  const bool add = edit_ == Edit::add;
  if (edit_ == Edit::remove) return device_.prepare("table_delete_by_match_spec", table_->name());
  if (value_.has_action) {
    ActionCalls &calls = calls_of(value_.action);
    std::optional<Call> &call = add ? calls.add : calls.modify;
    if (!call) throw Fault(value_.action.name, "this action is for default entries only");
    call->set_if_taken("action_spec", static_cast<const void *>(value_.action.parameters.data()));
    return *call;
  }
  if (!value_.has_target) throw Fault(keyword_, "the entry names no member and no group");
  const bool group = value_.target_is_group;
  const char *family =
      add ? (group ? "add_entry_with_selector" : "add_entry")
          : (group ? "modify_entry_with_selector_by_match_spec" : "modify_entry_by_match_spec");
  Call call = device_.prepare(family, table_->name());
  return call.set(group ? "group" : "member", uint64_t{target_of(value_)});
}

void ImageEditor::edit_entry(ValueScanner &rest) {
  value_.read(*table_, rest);
  if (!value_.has_key) throw Fault(keyword_, "an entry has a key");
  const Attributes words(rest);
  words.refuse_others({"ttl", "meter", "packets", "bytes"});
  const std::optional<p4_pd_bytes_meter_spec_t> meter = words.meter();
  p4_pd_entry_handle_t entry = 0;
  Call call = entry_call();
  call.set("match_spec", value_.key.data());
  call.set_if_taken("entry", static_cast<const void *>(&entry));
  call.set_if_taken("priority", uint64_t{value_.priority});
  call.set_if_taken("ttl", words.number("ttl", kMost32, 0));
  call.set_if_taken("meter_spec", static_cast<const void *>(meter ? &*meter : nullptr));
  refused(call.run());
  if (edit_ == Edit::remove) return;
  if (edit_ == Edit::add) {
    ++counts.entries;
  } else {
    Call find = device_.prepare("match_spec_to_entry_hdl", table_->name());
    find.set("match_spec", value_.key.data()).set("entry", &entry);
    refused(find.set_if_taken("priority", uint64_t{value_.priority}).run());
  }
  set_extras(words, entry, edit_ == Edit::modify && table_->ages());
}

// What the call of an entry cannot give.
void ImageEditor::set_extras(const Attributes &words, uint32_t entry, bool with_ttl) {
  if (with_ttl) {
    Call call = device_.prepare("set_ttl", table_->name());
    refused(call.set("entry", uint64_t{entry}).set("ttl", words.number("ttl", kMost32, 0)).run());
  }
  p4_pd_counter_values_t values = {};
  values.packets = words.number("packets", ~uint64_t{0}, 0);
  values.bytes = words.number("bytes", ~uint64_t{0}, 0);
  if (counter_ == nullptr) return;
  if (edit_ == Edit::add && (values.packets | values.bytes) == 0) return;
  Call call = device_.prepare("counter_write", counter_);
  const uint64_t status = call.set("entry", uint64_t{entry}).set("values", &values).run();
  // An entry without a counter has none to clear.
  if (status != BF_OBJECT_NOT_FOUND || (values.packets | values.bytes) != 0) refused(status);
}

Call ImageEditor::default_call() {
  if (edit_ == Edit::remove || (table_->indirect() && !value_.has_target)) {
    return device_.prepare("table_reset_default_entry", table_->name());
  }
  if (value_.has_action) {
    ActionCalls &calls = calls_of(value_.action);
    if (!calls.set_default) throw Fault(value_.action.name, "the action cannot be the default");
    Call call = *calls.set_default;
    call.set_if_taken("action_spec", static_cast<const void *>(value_.action.parameters.data()));
    return call;
  }
  const bool group = value_.target_is_group;
  Call call = device_.prepare(group ? "set_default_entry_with_selector" : "set_default_entry",
                              table_->name());
  return call.set(group ? "group" : "member", uint64_t{target_of(value_)});
}

// Whether the default entry has the action that was read already.
bool ImageEditor::is_default_now() const {
  p4_pd_entry_handle_t entry = 0;
  Call call = device_.prepare("table_get_default_entry_handle", table_->name());
  EntryReader now(device_, *table_);
  if (!value_.has_action || call.set("entry", &entry).run() != BF_SUCCESS ||
      now.read(entry) != BF_SUCCESS) {
    return false;
  }
  const bindings::Record &action = *value_.action.action;
  return now.action == action.number &&
         memcmp(now.action_record(), value_.action.parameters.data(), action.size) == 0;
}

void ImageEditor::edit_default(ValueScanner &rest) {
  value_.read(*table_, rest);
  if (value_.has_key) throw Fault(keyword_, "a default entry has no key");
  const Attributes words(rest);
  words.refuse_others({"meter", "packets", "bytes"});
  // The program's own default may have what no call can set: an index that names no cell.
  if (edit_ == Edit::add && words.words().empty() && is_default_now()) return;
  const std::optional<p4_pd_bytes_meter_spec_t> meter = words.meter();
  p4_pd_entry_handle_t entry = 0;
  Call call = default_call();
  call.set_if_taken("entry", static_cast<const void *>(&entry));
  call.set_if_taken("meter_spec", static_cast<const void *>(meter ? &*meter : nullptr));
  refused(call.run());
  if (edit_ != Edit::remove && entry != 0) set_extras(words, entry, false);
}

void ImageEditor::edit_ageing(ValueScanner &rest) {
  if (!table_->ages()) throw Fault(keyword_, "the table does not age its entries");
  if (edit_ == Edit::remove) {
    refused(device_.prepare("idle_tmo_disable", table_->name()).run());
    return;
  }
  const Attributes words(rest);
  words.refuse_others({"mode", "sweep", "max", "min", "ttl"});
  const auto word = [&](const char *name) {
    return static_cast<uint32_t>(words.number(name, kMost32, 0));
  };
  p4_pd_idle_time_params_t params = {};
  params.mode = word("mode");
  params.sweep_interval_ms = word("sweep");
  params.max_ttl_ms = word("max");
  params.min_ttl_ms = word("min");
  params.default_ttl_ms = word("ttl");
  Call call = device_.prepare("idle_tmo_enable", table_->name());
  refused(call.set("params", &params).run());
}

}  // namespace tesselctl
