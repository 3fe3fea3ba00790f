#include "tesselctl/lint/lint.hpp"

#include <algorithm>
#include <optional>
#include <tuple>
#include <unordered_set>

#include "tesselctl/device/device_copy.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/kinds/profile_items.hpp"
#include "tesselctl/lint/entries.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

using Names = std::set<std::string_view>;
using Part = DeviceState::Part;
using Item = ItemStore::Item;

// The objects that are to be read to look at some of them: what their actions are joined to, and
// all that may use the same members.
Names objects_around(const Names &objects) {
  Names around = objects;
  const auto add_joined = [&](const auto &object) {
    for (const bindings::Record *action : actions_of(object)) {
      for (const Field &field : action->field_list()) {
        around.insert(field.joined_tables.begin(), field.joined_tables.end());
      }
    }
  };
  for (const TableInfo &table : all_tables()) {
    const soft_profile_t *profile = table.profile();
    if (objects.contains(table.name())) add_joined(*table.description);
    if (profile == nullptr || !objects.contains(profile->name)) continue;
    add_joined(*profile);
    around.insert(table.name());
  }
  return around;
}

// The values of a key field that entries match.
class JoinedField {
 public:
  JoinedField(const Field &key_field, const Part *entries) : field(key_field) {
    if (entries == nullptr) return;
    for (const Item &item : entries->items) {
      const auto *const key = reinterpret_cast<const uint8_t *>(item.bytes);
      const FieldValue loaded = load_value(field, key);
      const Number mask = loaded.mask & key_bits(field);
      const Number value = loaded.value & mask;
      // Parameters have no more bits.
      if (value.high == 0) values_[mask.low].insert(value.low);
    }
  }

  bool is_of_empty_table() const { return values_.empty(); }
  bool holds(uint64_t value) const {
    return std::ranges::any_of(
        values_, [&](const auto &one) { return one.second.contains(value & one.first); });
  }

  const Field &field;
  // Of an empty table: how many actions write a value for it, and the first one.
  uint64_t actions = 0;
  uint64_t first = 0;

 private:
  std::map<uint64_t, std::unordered_set<uint64_t>> values_;  // by mask
};

class Lint {
 public:
  Lint(const DeviceState &state, const DeviceState &fresh,
       const std::function<void(const Row &)> &report)
      : report_(report), state_(state), fresh_(fresh) {
    for (const auto &[place, part] : state.parts()) note_uses(part);
  }

  void look_at(const DeviceState::Place &place, const Part &part) {
    const std::string_view what = part.kind->keyword;
    if (what == "entry" || what == "member" || what == "default") look_for_dangling(place, part);
    if (what == "entry") look_at_entries(part);
    if (what == "group") look_at_groups(part);
    if (what == "member") report_unused(kUnusedMember, part);
  }

  void report_empty_tables() const {
    for (const auto &[names, joined] : joined_) {
      if (joined.actions == 0) continue;
      Row row;
      row.object("check", kEmptyTable).object("table", names.first);
      row.number("actions", joined.actions);
      report_(row.append("missing", value_row(joined.field, joined.first)));
    }
  }

 private:
  // Members and groups by what they are, the profile and the number.
  using Use = std::tuple<Numbered, uint32_t, uint32_t>;

  static Row row_of(std::string_view check, const Part &part, const ItemView &item) {
    Row row;
    row.object("check", check).object(part.kind->object.keyword, part.object);
    part.access->add_to(row, item, Naming::handles);
    return row;
  }
  static Row value_row(const Field &field, uint64_t value) {
    Row row;
    row.field({}, field.label, format_value(field, {value, key_bits(field)}), {matches_text});
    return row;
  }

  // ---- Members and groups ----

  void note_uses(const Part &part) {
    const uint32_t profile = part.access->profile();
    if (profile == 0) return;
    const std::string_view what = part.kind->keyword;
    for (const Item &item : part.items) {
      const std::string_view value = item.view().value;
      if (what == "fallback") {
        used_.emplace(Numbered::members, profile,
                      static_cast<uint32_t>(read_bytes<uint64_t>(value)));
      } else if (what == "group") {
        for (const Membership &one : GroupValue(value).members) {
          used_.emplace(Numbered::members, profile, one.member);
        }
      } else if (what == "entry" || what == "default") {
        const EntryHead head = head_of(value);
        const bool is_group = head.outcome == EntryHead::kGroup;
        used_.emplace(is_group ? Numbered::groups : Numbered::members, profile, head.number);
      }
    }
  }

  void report_unused(std::string_view check, const Part &part) const {
    for (const Item &item : part.items) {
      const auto number = read_bytes<uint32_t>(item.view().identity);
      if (used_.contains({part.kind->numbered, part.access->profile(), number})) continue;
      report_(row_of(check, part, item.view()));
    }
  }

  void look_at_groups(const Part &part) const {
    for (const Item &item : part.items) {
      const GroupValue group(item.view().value);
      const auto is_active = [](const Membership &one) { return one.is_active != 0; };
      if (std::ranges::any_of(group.members, is_active)) continue;
      report_(row_of(kInactiveGroup, part, item.view()));
    }
    report_unused(kUnusedGroup, part);
  }

  // ---- Joins ----

  JoinedField &joined(std::string_view table, std::string_view field) {
    const auto found = joined_.find({table, field});
    if (found != joined_.end()) return found->second;
    const Part *entries = nullptr;
    for (const auto &[place, part] : state_.parts()) {
      if (part.object == table && part.kind->keyword == std::string_view("entry")) entries = &part;
    }
    const bindings::Record &record = *find_record(tables(), table);
    const Field &key = find_field(record, {field, 0}, table);
    return joined_.try_emplace({table, field}, key, entries).first->second;
  }

  // Nobody wrote the default entries of a fresh device.
  bool is_fresh(const DeviceState::Place &place, const ItemView &item) const {
    const Part *fresh = fresh_.find(place);
    return item.identity.empty() && fresh != nullptr &&
           have_same_outcome(fresh->items.front().view().value, item.value);
  }

  void look_for_dangling(const DeviceState::Place &place, const Part &part) {
    for (const Item &item : part.items) {
      const EntryHead head = head_of(item.view().value);
      if (head.outcome != EntryHead::kAction || is_fresh(place, item.view())) continue;
      for (const Field &field : action_of_number(head.number).field_list()) {
        if (field.joined_tables.empty()) continue;
        const uint64_t value = load_value(field, parameters_of(item.view().value)).value.low;
        for (const char *table : field.joined_tables) {
          look_up(joined(table, field.joined_field), value, table, part, item);
        }
      }
    }
  }

  void look_up(JoinedField &joined, uint64_t value, const char *table, const Part &part,
               const Item &item) const {
    if (joined.is_of_empty_table()) {
      if (joined.actions++ == 0) joined.first = value;
    } else if (!joined.holds(value)) {
      Row missing;
      missing.object("table", table).append(value_row(joined.field, value));
      report_(row_of(kDangling, part, item.view()).append("missing", missing));
    }
  }

  // ---- Entries ----

  void look_at_entries(const Part &part) const {
    const TableInfo table = resolve_table({part.object, 0});
    if (match_of(*table.record) != Match::lpm) {
      for (const auto &[entry, other] : covered_entries(table, part.items)) {
        Row by;
        add_key(by, table, other);
        add_outcome(by, table, other.value);
        report_(row_of(kCovered, part, entry).append("by", by));
      }
      return;
    }
    for (const auto &[entry, other] : repeated_parents(table, part.items)) {
      Row parent;
      add_key(parent, table, other);
      report_(row_of(kRepeatsParent, part, entry).append("parent", parent));
    }
  }

  static void add_outcome(Row &row, const TableInfo &table, std::string_view value) {
    EntryHead head;
    head.outcome = head_of(value).outcome;
    head.number = head_of(value).number;
    std::string bytes;
    append_bytes(bytes, head);
    add_entry(row, table, {{}, bytes.append(value.substr(sizeof head))}, Naming::handles);
  }

  const std::function<void(const Row &)> &report_;
  const DeviceState &state_;
  const DeviceState &fresh_;
  std::set<Use> used_;
  std::map<std::pair<std::string_view, std::string_view>, JoinedField> joined_;
};

}  // namespace

void lint(const Device &device, const Names &objects,
          const std::function<void(const Row &)> &report) {
  const Names around = objects_around(objects);
  const auto is_wanted = [&](const ObjectKind &kind, const char *object) {
    const bool holds_entries =
        &kind == &kObjectKind<soft_table_t> || &kind == &kObjectKind<soft_profile_t>;
    return holds_entries && (objects.empty() || around.contains(object));
  };
  const DeviceState state = DeviceState::of_device(device, is_wanted, Naming::handles);
  const Device new_device({.id = free_device_id(), .pipes = 1});
  const DeviceState fresh = DeviceState::of_device(new_device, is_wanted, Naming::handles);
  Lint run(state, fresh, report);
  for (const auto &[place, part] : state.parts()) {
    check_interrupt();
    if (objects.empty() || objects.contains(part.object)) run.look_at(place, part);
  }
  run.report_empty_tables();
}

}  // namespace tesselctl
