#include "tesselctl/kinds/table_items.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "tesselctl/state/script.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

void append_number(std::string &text, std::string_view name, uint64_t value) {
  text += name;
  fmt::format_to(std::back_inserter(text), "{}", value);
}

EntryHead take_head(std::string &value) { return read_bytes<EntryHead>(value); }
void store_head(std::string &value, const EntryHead &head) {
  memcpy(value.data(), &head, sizeof head);
}

}  // namespace

TableItems::TableItems(const soft_table_t &table, bool keyed, Families families)
    : table_(resolve_table({table.name, 0})),
      keyed_(keyed),
      families_(families),
      counter_(resource_of<soft_counter_t>(table_)) {}

// ---- Text ----

void TableItems::parse(ValueScanner &line, ItemBytes &item) {
  const ValueScanner before = line;
  const Word action = parse_entry(line, table_, last_action_, item);
  if (item.identity.empty() == keyed_) {
    throw Fault(before.here(), keyed_ ? "an entry has a key" : "a default entry has no key");
  }
  EntryHead head = take_head(item.value);
  if (head.outcome == EntryHead::kAction) check_action(*last_action_, action);
  parse_resources(line, head);
  store_head(item.value, head);
}

void TableItems::parse_resources(const ValueScanner &line, EntryHead &head) const {
  if (line.rest().empty()) return;
  const LineWords words(line, {"ttl", "meter", "packets", "bytes"});
  if (const Word *ttl = words.find("ttl")) {
    if (!keyed_) throw Fault(*ttl, "a default entry has no ttl");
    if (!table_.ages()) throw Fault(*ttl, "the table does not age its entries");
    head.has_ttl = 1;
    head.ttl = words.number32("ttl");
  }
  if (const Word *meter = words.find("meter")) {
    if (resource_of<soft_meter_t>(table_) == nullptr) throw Fault(*meter, "the table has no meter");
    head.has_meter = 1;
    head.meter = parse_meter(*meter);
  }
  head.counter.packets = words.number("packets", ~uint64_t{0});
  head.counter.bytes = words.number("bytes", ~uint64_t{0});
  if ((head.counter.packets | head.counter.bytes) != 0 && counter_ == nullptr) {
    throw Fault(line.here(), "the table has no counter");
  }
}

void TableItems::print(std::string &text, const ItemView &item) const {
  print_entry(text, table_, item);
  const EntryHead head = head_of(item.value);
  if (head.has_ttl != 0) append_number(text, " ttl=", head.ttl);
  if (head.has_meter != 0) {
    text += ' ';
    append_meter(text, head.meter);
  }
  if ((head.counter.packets | head.counter.bytes) == 0) return;
  append_number(text, " packets=", head.counter.packets);
  append_number(text, " bytes=", head.counter.bytes);
}

// Counters have a command of their own.
void TableItems::print_commands(Script &script, const ItemEdit &edit) const {
  EntryHead head = head_of(edit.item.value);
  Row row;
  if (edit.edit == Edit::remove || head.outcome == EntryHead::kNothing) {
    add_key(row, table_, edit.item);
    return script.begin(edit, edit.kind.verbs.removes).words(row).end();
  }
  script.begin(edit);
  const auto counter = std::exchange(head.counter, {});
  const auto before = edit.before ? head_of(edit.before->value).counter : EntryHead().counter;
  const bool counts = counter.packets != before.packets || counter.bytes != before.bytes;
  if (counts) script.word("as", "counted");
  std::string value(edit.item.value);
  store_head(value, head);
  add_entry(row, table_, {edit.item.identity, value}, Naming::numbers);
  script.words(row, profile()).end();
  if (!counts) return;
  script.begin("counter write", counter_->name).word("entry", "$counted");
  script.number("packets", counter.packets).number("bytes", counter.bytes).end();
}

void TableItems::renumber(std::span<char>, std::span<char> value,
                          const Renumbering &numbers) const {
  const EntryHead head = head_of({value.data(), value.size()});
  if (head.outcome == EntryHead::kNothing) return;
  numbers.replace(head.outcome == EntryHead::kGroup ? Numbered::groups : Numbered::members, value,
                  offsetof(EntryHead, number));
}

// ---- Devices ----

bool TableItems::read_entry(Source &from, EntryReader &reader, p4_pd_entry_handle_t entry,
                            ItemBytes &item) {
  const uint64_t status = reader.read(entry, item);
  if (status == BF_OBJECT_NOT_FOUND) return false;
  check(status, {});
  if (!table_.indirect()) return true;
  EntryHead head = take_head(item.value);
  ProfileNumbers &numbers = from.numbering.of(table_.description->action_data_table);
  head.number =
      (head.outcome == EntryHead::kGroup ? numbers.groups : numbers.members).number_of(head.number);
  store_head(item.value, head);
  return true;
}

TableItems::ActionCalls &TableItems::calls_of(const bindings::Record &action) {
  for (ActionCalls &known : calls_) {
    if (&action == known.action) return known;
  }
  return calls_.emplace_back(
      ActionCalls{&action, find_export(families_.add, table_.name(), action.name),
                  find_export(families_.modify, table_.name(), action.name)});
}

void TableItems::check_action(const bindings::Record &action, Word word) {
  if (calls_of(action).add != nullptr) return;
  const bool is_own = find_action(*table_.description, action.name) != nullptr;
  throw Fault(word, !is_own  ? "the table has no action of this name"
                    : keyed_ ? "this action is for default entries only"
                             : "the action cannot be the default");
}

Call &TableItems::action_call(const Target &to, std::string_view value, Edit edit) {
  ActionCalls &calls = calls_of(action_of_number(head_of(value).number));
  if (calls.device != &to.device) {
    const auto prepare = [&](const bindings::Export *target, std::optional<Call> &call) {
      if (target != nullptr) call = to.device.prepare(*target);
    };
    prepare(calls.add, calls.add_call);
    prepare(calls.modify, calls.modify_call);
    calls.device = &to.device;
  }
  std::optional<Call> &call = edit == Edit::add ? calls.add_call : calls.modify_call;
  if (!call) throw Fault("the table has no entries with this action");
  call->set_if_taken("action_spec", static_cast<const void *>(parameters_of(value)));
  return *call;
}

uint32_t TableItems::target_of(Target &to, const EntryHead &head, Word word) const {
  const bool group = head.outcome == EntryHead::kGroup;
  ProfileNumbers &numbers = to.numbering.of(table_.description->action_data_table);
  const uint32_t handle = (group ? numbers.groups : numbers.members).handle_of(head.number);
  if (handle != 0) return handle;
  throw Fault(word, fmt::format("there is no {} #{}", group ? "group" : "member", head.number));
}

void TableItems::write_counter(const Target &to, Edit edit, const EntryHead &head, uint32_t entry,
                               Word word) const {
  const bool is_zero = (head.counter.packets | head.counter.bytes) == 0;
  if (counter_ == nullptr || (edit == Edit::add && is_zero)) return;
  Call call = to.device.prepare("counter_write", counter_->name);
  const uint64_t status = call.set("entry", uint64_t{entry}).set("values", &head.counter).run();
  // An entry without a counter has none to clear.
  if (status != BF_OBJECT_NOT_FOUND || !is_zero) check(status, word);
}

}  // namespace tesselctl
