#include "tesselctl/device/entry_line.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/device/handles.hpp"

namespace tesselctl {

namespace {

Given parse_given(const Assignment &word, const Unit *unit = nullptr) {
  const auto value = parse_limited(word.value, 0xffffffffu, std::string(word.name.text), 0, unit);
  return {static_cast<uint32_t>(value), word.whole};
}

Given parse_given_handle(const Context &context, const Assignment &word) {
  return {parse_handle(context, word.value, std::string(word.name.text)), word.whole};
}

template <class T>
void set_once(std::optional<T> &slot, const Assignment &word, T value) {
  if (slot) throw Fault(word.name, std::string(word.name.text) + " is given twice");
  slot = value;
}

}  // namespace

bool is_entry_word(std::string_view name) {
  constexpr std::string_view kWords[] = {"priority", "ttl",   "meter", "entry",
                                         "member",   "group", "as",    "action"};
  return std::ranges::find(kWords, name) != std::end(kWords);
}

EntryLine::EntryLine(const Context &context, const Invocation &invocation)
    : table_word_(need_argument(invocation, 0, "the name of a table")),
      table_(resolve_table(table_word_)),
      key_(*table_.record, table_.name()) {
  for (const Word &word : invocation.arguments.subspan(1)) {
    read_word(context, split_assignment(word));
  }
  if (action_) action_->finish(action_word_);
}

void EntryLine::read_word(const Context &context, const Assignment &word) {
  if (action_ && has_field_named(action_->record(), word.name.text)) return action_->set(word);
  if (read_option(context, word)) return;
  if (action_) return action_->set(word);
  key_.set_values(word);
}

bool EntryLine::read_option(const Context &context, const Assignment &word) {
  const std::string_view name = word.name.text;
  const bool is_field = has_field_named(*table_.record, name);
  if (name == "priority" && (table_.has_priority() || !is_field)) {
    set_once(priority_, word, parse_given(word));
  } else if (name == "ttl" && (table_.ages() || !is_field)) {
    set_once(ttl_, word, parse_given(word, &kMilliseconds));
  } else if (name == "meter") {
    const auto *meter = resource_of<soft_meter_t>(table_);
    const MeterNumbers numbers =
        parse_meter(word.value, meter != nullptr ? units_of(*meter) : MeterUnits{});
    set_once(meter_, word, GivenMeter{meter_spec(numbers), word.whole});
  } else if (name == "entry") {
    set_once(entry_, word, parse_given_handle(context, word));
  } else if (name == "member") {
    set_once(member_, word, parse_given_handle(context, word));
  } else if (name == "group") {
    set_once(group_, word, parse_given_handle(context, word));
  } else if (name == "as") {
    if (word.value.text.empty()) throw Fault(word.whole, "as= needs a name");
    set_once(label_, word, word.value);
  } else if (name == "action") {
    if (action_) throw Fault(word.name, "action is given twice");
    read_action(word);
  } else {
    return false;
  }
  return true;
}

void EntryLine::read_action(const Assignment &word) {
  if (table_.indirect()) {
    throw Fault(word.whole, std::string(table_.name()) +
                                " is bound to a profile, so it takes member= or group=");
  }
  action_word_ = word.value;
  action_.emplace(resolve_action(*table_.description, word.value), std::string(word.value.text));
}

bool EntryLine::need_key_or_entry() {
  if (!table_.keyed()) {
    throw Fault(table_word_,
                std::string(table_.name()) + " has no key, so it has a default entry and no other");
  }
  if (entry_ && has_key()) throw Fault(entry_->word, "give entry= or a key, not both");
  if (!entry_) key_.finish(table_word_);
  return entry_.has_value();
}

void EntryLine::need_key() {
  refuse(entry_);
  need_key_or_entry();
  if (!label_ || count() == 1) return;
  throw Fault(*label_, fmt::format("the name would stand for one of {} entries", count()));
}

Fault EntryLine::with_chosen(const Fault &fault, size_t at, std::string_view more) const {
  if (count() == 1) return fault;
  return fault.with(fmt::format(" ({}, entry {} of {}{})", key_.chosen(), at + 1, count(), more));
}

void EntryLine::refuse_key() const {
  refuse(entry_);
  if (has_key()) throw Fault(table_word_, "a default entry has no key");
}

void EntryLine::refuse_outcome() const {
  if (action_) throw Fault(action_word_, "the command takes no action");
  refuse(member_);
  refuse(group_);
}

void EntryLine::refuse_label() const {
  if (label_) throw Fault(*label_, "the command makes no handle that could be remembered");
}

bool EntryLine::need_outcome() const {
  if (table_.indirect()) {
    if (member_ && group_) throw Fault(group_->word, "give member= or group=, not both");
    if (!member_ && !group_) throw Fault(table_word_, "member= or group= is missing");
    return false;
  }
  for (const std::optional<Given> *given : {&member_, &group_}) {
    if (!*given) continue;
    throw Fault((*given)->word,
                std::string(table_.name()) + " is bound to no profile, so it takes action=");
  }
  if (!action_) throw Fault(table_word_, "action= is missing");
  return true;
}

void EntryLine::fill(Call &call, bool meter_is_needed) const {
  check_words(call, meter_is_needed);
  give(call);
}

void EntryLine::check_words(const Call &call, bool meter_is_needed) const {
  const std::string name = table_.name();
  if (call.takes("priority") && !priority_) {
    throw Fault(table_word_, name + " is a ternary table, so it needs priority=N");
  }
  if (priority_ && !call.takes("priority")) {
    throw Fault(priority_->word, call.takes("match_spec") ? name + " has no priorities"
                                                          : "the command takes no priority");
  }
  if (ttl_ && !call.takes("ttl")) {
    throw Fault(ttl_->word,
                table_.ages() ? "the command takes no ttl" : name + " does not age its entries");
  }
  if (meter_is_needed && !meter_ && call.takes("meter_spec")) {
    throw Fault(table_word_,
                name + " has a meter for each entry, so it needs meter=" + "CIR,CBS,PIR,PBS");
  }
  if (meter_ && !call.takes("meter_spec")) {
    throw Fault(meter_->word, name + " has no meter for its entries");
  }
}

void EntryLine::give(Call &call) const {
  const auto address = [](const auto *object) { return static_cast<const void *>(object); };
  call.set_if_taken("match_spec", address(key_.data()));
  call.set_if_taken("priority", uint64_t{priority_ ? priority_->value : 0});
  call.set_if_taken("ttl", uint64_t{ttl()});
  call.set_if_taken("meter_spec", address(meter_ ? &meter_->value : nullptr));
  if (action_) call.set_if_taken("action_spec", address(action_->data()));
  if (member_) call.set_if_taken("member", uint64_t{member_->value});
  if (group_) call.set_if_taken("group", uint64_t{group_->value});
}

void check_outcome(uint64_t status, const Device &device, const EntryLine &line, Word otherwise) {
  const soft_profile_t *profile = line.table().profile();
  if (status == BF_SUCCESS || profile == nullptr) return check(status, otherwise);
  std::vector<WrittenHandle> handles;
  if (line.member()) handles.push_back({"member", line.member()->value, line.member()->word});
  if (line.group()) handles.push_back({"group", line.group()->value, line.group()->word});
  check_handles(status, device, profile->name, handles, otherwise);
}

}  // namespace tesselctl
