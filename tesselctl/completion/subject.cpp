#include "tesselctl/completion/subject.hpp"

#include <algorithm>

namespace tesselctl {

namespace {

constexpr size_t kMostHandles = 50;

bool grammar_has(const std::vector<Argument> &grammar, std::string_view name) {
  return std::any_of(grammar.begin(), grammar.end(),
                     [&](const Argument &argument) { return argument.name == name; });
}

// The words of the row without its first count items.
std::string words_from(const Row &row, size_t count) {
  std::string text;
  for (size_t i = count; i < row.items().size(); ++i) {
    text += (text.empty() ? "" : " ") + item_words(row.items()[i]);
  }
  return text;
}

void offer_entries(Offers &offers, const Device &device, const TableInfo &table) {
  if (!table.keyed()) return;
  offer_handles(offers, entries_of(device, table),
                [&](uint32_t entry) { return words_from(entry_row(device, table, entry, {}), 2); });
}

void offer_members(Offers &offers, const Device &device, const soft_profile_t &profile) {
  offer_handles(offers, members_of(device, profile.name), [&](uint32_t member) {
    Row row;
    add_member(row, device, profile.name, member, {});
    return row.words();
  });
}

}  // namespace

bool Subject::takes(std::string_view name) const {
  if (is_cells) return name != (table ? "index" : "entry");
  if (!table) return true;
  if (name == "priority") return table->has_priority();
  if (name == "ttl") return table->ages();
  if (name == "meter") return resource_of<soft_meter_t>(*table) != nullptr;
  return true;
}

const Field *Subject::field_of(std::string_view name, const std::vector<Argument> &grammar) const {
  if (!table || !grammar_has(grammar, "FIELD")) return nullptr;
  if (name == "action" || name == "member" || name == "group") return nullptr;
  if (grammar_has(grammar, name) && takes(name)) return nullptr;
  return find_field(*table->record, name);
}

std::span<const soft_action_t> Subject::actions() const {
  if (table) return {table->description->actions, table->description->action_count};
  if (profile != nullptr) return {profile->actions, profile->action_count};
  return {};
}

const bindings::Record *Subject::action_of(std::string_view action) const {
  for (const soft_action_t &one : actions()) {
    if (action == one.name) return &action_record(action);
  }
  return nullptr;
}

void choose_profile(Subject &subject, const soft_profile_t &profile) {
  subject.profile = &profile;
  subject.handles["member"] = [&profile](Offers &offers, const Device &device) {
    offer_members(offers, device, profile);
  };
  if (profile.selector == 0) return;
  subject.handles["group"] = [&profile](Offers &offers, const Device &device) {
    offer_handles(offers, groups_of(device, profile.name), [](uint32_t) { return "a group"; });
  };
}

void choose_table(Subject &subject, const TableInfo &table) {
  subject.table = table;
  subject.handles["entry"] = [table](Offers &offers, const Device &device) {
    offer_entries(offers, device, table);
  };
  if (const soft_profile_t *profile = table.profile()) choose_profile(subject, *profile);
}

void choose_cells(Subject &subject, uint32_t table) {
  subject.is_cells = true;
  if (table != 0) choose_table(subject, table_of_handle(table));
}

std::string cells_help(uint32_t table) {
  if (table == 0) return "cells by index=";
  return std::string("of the entries of ") + table_of_handle(table).name();
}

void offer_handles(Offers &offers, Enumeration enumeration,
                   const std::function<std::string(uint32_t)> &describe) {
  const size_t limit = offers.count() + kMostHandles;
  visit_handles(std::move(enumeration), {}, [&](uint32_t handle) {
    const std::string word = std::to_string(handle);
    if (offers.begins(word)) offers.offer(word, describe(handle));
    return offers.count() < limit;
  });
  if (offers.count() == limit) offers.hint("another handle; these are the first");
}

}  // namespace tesselctl
