#include "tesselctl/candidates.hpp"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

#include "tesselctl/read_back.hpp"
#include "tesselctl/value.hpp"

namespace tesselctl {

namespace {

constexpr size_t kMostHandles = 50;
constexpr size_t kMostFiles = 1000;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool grammar_has(const std::vector<Argument> &grammar, std::string_view name) {
  return std::any_of(grammar.begin(), grammar.end(),
                     [&](const Argument &argument) { return argument.name == name; });
}

}  // namespace

// ---- Offers ----

bool Offers::begins(std::string_view word) const {
  return word.size() >= typed_.size() &&
         std::equal(typed_.begin(), typed_.end(), word.begin(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

void Offers::offer(std::string_view word, std::string_view help) {
  if (begins(word)) completion_.candidates.push_back({std::string(word), std::string(help)});
}

void Offers::offer_as_it_is(size_t start, std::string word, std::string_view help) {
  completion_.start = start;
  completion_.candidates.push_back({std::move(word), std::string(help)});
}

void Offers::hint(std::string_view text) {
  if (has_hint()) completion_.hint += "; or ";
  completion_.hint += text;
}

// ---- The subject ----

namespace {

template <class Row>
const Row *find_row(std::string_view name) {
  for (const Row &row : program_rows<Row>()) {
    if (name == row.name) return &row;
  }
  return nullptr;
}

std::optional<TableInfo> table_of_handle(uint32_t handle) {
  for (const bindings::Record &record : tables()) {
    if (record.number == handle) return resolve_table({record.name, 0});
  }
  return std::nullopt;
}

std::optional<TableInfo> table_of_name(std::string_view name) {
  for (const bindings::Record &record : tables()) {
    if (name == record.name) return resolve_table({name, 0});
  }
  return std::nullopt;
}

const soft_profile_t *profile_of_table(const TableInfo &table) {
  if (!table.indirect()) return nullptr;
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    if (profile.action_data_table == table.description->action_data_table) return &profile;
  }
  return nullptr;
}

bool has_own_meter(const TableInfo &table) {
  const auto meters = program_rows<soft_meter_t>();
  return std::any_of(meters.begin(), meters.end(), [&](const soft_meter_t &meter) {
    return meter.table != 0 && meter.table == table.description->handle;
  });
}

void choose_subject(Subject &subject, std::string_view placeholder, std::string_view name) {
  if (placeholder == "TABLE") {
    subject.table = table_of_name(name);
    if (subject.table) subject.profile = profile_of_table(*subject.table);
  } else if (placeholder == "PROFILE") {
    subject.profile = find_row<soft_profile_t>(name);
  } else if (placeholder == "SET") {
    subject.value_set = find_row<soft_value_set_t>(name);
  } else if (placeholder == "COUNTER" || placeholder == "METER") {
    const soft_counter_t *counter = find_row<soft_counter_t>(name);
    const soft_meter_t *meter = find_row<soft_meter_t>(name);
    const uint32_t table = placeholder == "COUNTER" ? (counter != nullptr ? counter->table : 0)
                                                    : (meter != nullptr ? meter->table : 0);
    subject.is_cells = true;
    if (table != 0) subject.table = table_of_handle(table);
  }
}

}  // namespace

Subject find_subject(const std::vector<Argument> &grammar, Word word) {
  Subject subject;
  for (const Argument &argument : grammar) {
    if (!argument.stands_alone()) continue;
    for (const std::string_view value : alternatives_of(argument.value)) {
      choose_subject(subject, value, word.text);
    }
    break;
  }
  return subject;
}

bool Subject::takes(std::string_view name) const {
  if (is_cells) return name != (table ? "index" : "entry");
  if (!table) return true;
  if (name == "priority") return table->has_priority();
  if (name == "ttl") return table->ages();
  if (name == "meter") return has_own_meter(*table);
  return true;
}

const Field *Subject::field_of(std::string_view name, const std::vector<Argument> &grammar) const {
  if (!table || !grammar_has(grammar, "FIELD")) return nullptr;
  if (name == "action" || name == "member" || name == "group") return nullptr;
  if (grammar_has(grammar, name) && takes(name)) return nullptr;
  return find_field(table->shape(), name);
}

const Shape *Subject::action_shape_of(std::string_view action) const {
  const auto among = [&](const soft_action_t *actions, uint32_t count) {
    return std::any_of(actions, actions + count,
                       [&](const soft_action_t &one) { return action == one.name; });
  };
  const bool known = table ? among(table->description->actions, table->description->action_count)
                           : profile != nullptr && among(profile->actions, profile->action_count);
  return known ? &action_shape(action) : nullptr;
}

void for_each_parameter(const Subject &subject, const std::function<void(const Field &)> &visit) {
  std::vector<std::string_view> seen;
  const auto visit_action = [&](const soft_action_t &action) {
    for (const Field *field : action_shape(action.name).shown()) {
      if (std::find(seen.begin(), seen.end(), field->label) != seen.end()) continue;
      seen.push_back(field->label);
      visit(*field);
    }
  };
  if (!subject.table) return;
  std::for_each_n(subject.table->description->actions, subject.table->description->action_count,
                  visit_action);
}

// ---- Fields and parameters ----

const Field *find_field(const Shape &shape, std::string_view name) {
  try {
    return &shape.find({name, 0}, "");
  } catch (const Fault &) {
    return nullptr;
  }
}

namespace {

std::string number_range(unsigned width) {
  return "0 to " + (width <= 64 ? decimal(low_ones(width).low) : hexadecimal(low_ones(width)));
}

std::string notation_help(const Field &field) {
  switch (field.notation) {
    case Notation::ipv4:
      return "10.0.0.1";
    case Notation::ipv6:
      return "2001:db8::1";
    case Notation::mac:
      return "00:11:22:33:44:55";
    default:
      return number_range(field.width);
  }
}

std::string prefix_help(const Field &field) {
  if (field.notation == Notation::ipv4) return "10.0.0.0/8";
  if (field.notation == Notation::ipv6) return "2001:db8::/32";
  return notation_help(field) + ", VALUE/LENGTH";
}

}  // namespace

std::string field_help(const Field &field, bool of_key) {
  const std::string bits = field.width == 1 ? "1 bit" : std::to_string(field.width) + " bits";
  if (!of_key) return bits + ", " + notation_help(field);
  switch (field.match) {
    case Match::lpm:
      return bits + ", prefix, " + prefix_help(field);
    case Match::ternary:
      return bits + ", ternary, " + notation_help(field) + ", VALUE&MASK; may be left out";
    default:
      return bits + ", exact, " + notation_help(field);
  }
}

namespace {

// Positions of the shape's own fields that the names fill.
std::vector<bool> filled(const Shape &shape, const std::vector<std::string_view> &given) {
  std::vector<bool> positions(shape.own_field_count());
  for (const std::string_view name : given) {
    const Field *field = find_field(shape, name);
    if (field == nullptr) continue;
    for (const size_t position : field->positions) positions[position] = true;
  }
  return positions;
}

template <class WordOf>
void offer_shape(Offers &offers, const Shape &shape, const std::vector<std::string_view> &given,
                 bool of_key, WordOf word_of) {
  const std::vector<bool> positions = filled(shape, given);
  const auto offer = [&](const Field &field) {
    const bool is_filled = std::any_of(field.positions.begin(), field.positions.end(),
                                       [&](size_t position) { return positions[position]; });
    if (!is_filled) offers.offer(word_of(field) + "=", field_help(field, of_key));
  };
  const size_t before = offers.count();
  for (const Field *field : shape.shown()) offer(*field);
  // The halves of a pair, for who asks for them by name.
  if (offers.count() != before || offers.typed().empty()) return;
  for (const Field &field : shape.fields()) {
    if (std::find(shape.shown().begin(), shape.shown().end(), &field) == shape.shown().end()) {
      offer(field);
    }
  }
}

}  // namespace

void offer_fields(Offers &offers, const Subject &subject, const std::vector<Argument> &grammar,
                  const std::vector<std::string_view> &given) {
  if (!subject.table) return;
  std::vector<std::string_view> fields = given;
  std::erase_if(fields,
                [&](std::string_view name) { return subject.field_of(name, grammar) == nullptr; });
  // A field whose short name is a word of the grammar goes by its full name.
  offer_shape(offers, subject.table->shape(), fields, true, [&](const Field &field) {
    return subject.field_of(field.label, grammar) == &field ? field.label : field.name;
  });
}

void offer_parameters(Offers &offers, const Shape &shape,
                      const std::vector<std::string_view> &given) {
  offer_shape(offers, shape, given, false, [](const Field &field) { return field.label; });
}

void offer_actions(Offers &offers, const Subject &subject, std::string_view command) {
  const auto offer = [&](const soft_action_t &action) {
    std::string parameters;
    for (const Field *field : action_shape(action.name).shown()) {
      parameters += (parameters.empty() ? "" : " ") + field->label + "=";
    }
    offers.offer(action.name, parameters.empty() ? "no parameters" : parameters);
  };
  const bool of_default = command.starts_with("default");
  if (subject.table) {
    const soft_table_t &table = *subject.table->description;
    for (uint32_t i = 0; i < table.action_count; ++i) {
      const soft_action_t &action = table.actions[i];
      if (!of_default || find_export("set_default_action", table.name, action.name) != nullptr) {
        offer(action);
      }
    }
  } else if (subject.profile != nullptr) {
    std::for_each_n(subject.profile->actions, subject.profile->action_count, offer);
  }
}

// ---- Handles ----

namespace {

struct Enough {};

// The words of the row without its first count items.
std::string words_from(const Row &row, size_t count) {
  std::string text;
  for (size_t i = count; i < row.items().size(); ++i) {
    text += (text.empty() ? "" : " ") + item_words(row.items()[i]);
  }
  return text;
}

// Offers handles until there are enough. describe may throw Fault.
template <class Describe>
void offer_each(Offers &offers, Enumeration enumeration, Describe describe) {
  const size_t limit = offers.count() + kMostHandles;
  try {
    for_each_handle(std::move(enumeration), {}, [&](uint32_t handle) {
      const std::string word = std::to_string(handle);
      if (!offers.begins(word)) return;
      offers.offer(word, describe(handle));
      if (offers.count() == limit) throw Enough();
    });
  } catch (const Enough &) {
    offers.hint("another handle; these are the first");
  } catch (const Fault &) {
    // The device does not tell; there is nothing to offer.
  }
}

void offer_entries(Offers &offers, const Device &device, const TableInfo &table) {
  if (!table.keyed()) return;
  offer_each(offers,
             {device.prepare("get_first_entry_handle", table.name()),
              device.prepare("get_next_entry_handles", table.name()), "entry", "entries", "entry"},
             [&](uint32_t entry) { return words_from(entry_row(device, table, entry, {}), 2); });
}

void offer_members(Offers &offers, const Device &device, const char *profile) {
  offer_each(offers,
             {device.prepare("get_first_member", profile),
              device.prepare("get_next_members", profile), "member", "members", "member"},
             [&](uint32_t member) {
               Row row;
               add_member(row, device, profile, member, {});
               return row.words();
             });
}

void offer_groups(Offers &offers, const Device &device, const soft_profile_t &profile) {
  if (profile.selector == 0) return;
  offer_each(offers,
             {device.prepare("get_first_group", profile.name),
              device.prepare("get_next_groups", profile.name), "group", "groups", "group"},
             [](uint32_t) { return std::string("a group"); });
}

void offer_set_entries(Offers &offers, const Device &device, const soft_value_set_t &set) {
  p4_pd_parser_target_t all = {};
  all.device_id = device.id();
  all.pipe_id = BF_ALL_PIPES;
  all.parser_id = 0xff;
  Call first = device.prepare("pvs_entry_get_first_entry_handle", set.name);
  Call next = device.prepare("pvs_entry_get_next_entry_handles", set.name);
  first.set("target", &all);
  next.set("target", &all);
  offer_each(offers, {first, next, "entry", "entries", "entry"},
             [](uint32_t) { return std::string("a value"); });
}

}  // namespace

void offer_handles(Offers &offers, const Context &context, const Subject &subject,
                   std::string_view name) {
  for (const auto &[label, handle] : context.labels) {
    offers.offer("$" + label, "remembered: " + std::to_string(handle));
  }
  if (offers.typed().starts_with('$')) return;
  const size_t before = offers.count();
  if (name == "member" && subject.profile != nullptr) {
    offer_members(offers, context.device, subject.profile->name);
  } else if (name == "group" && subject.profile != nullptr) {
    offer_groups(offers, context.device, *subject.profile);
  } else if (name == "entry" && subject.table) {
    offer_entries(offers, context.device, *subject.table);
  } else if (name == "entry" && subject.value_set != nullptr) {
    offer_set_entries(offers, context.device, *subject.value_set);
  }
  if (offers.count() == before) offers.hint(meaning_of_value("HANDLE"));
}

// ---- Objects and files ----

namespace {

std::string table_help(const TableInfo &table) {
  static constexpr const char *kMatches[] = {"exact", "ternary", "prefix"};
  if (!table.keyed()) return "no key";
  std::string text = kMatches[std::min<size_t>(table.description->match, 2)];
  text += ":";
  for (const Field *field : table.shape().shown()) text += " " + field->label;
  return text;
}

template <class Row, class Help>
void offer_rows(Offers &offers, Help help) {
  for (const Row &row : program_rows<Row>()) {
    if (offers.begins(row.name)) offers.offer(row.name, help(row));
  }
}

std::string cells_help(uint32_t table) {
  if (table == 0) return "cells by index=";
  for (const soft_table_t &row : program_rows<soft_table_t>()) {
    if (row.handle == table) return "of the entries of " + std::string(row.name);
  }
  return {};
}

void offer_tables(Offers &offers, std::string_view command, Words given) {
  const bool only_ageing = command.starts_with("age ");
  for (const bindings::Record &record : tables()) {
    if (!offers.begins(record.name)) continue;
    const bool is_given = std::any_of(given.begin(), given.end(),
                                      [&](const Word &word) { return word.text == record.name; });
    const TableInfo table = resolve_table({record.name, 0});
    if (!is_given && (!only_ageing || table.ages())) offers.offer(record.name, table_help(table));
  }
}

}  // namespace

bool offer_objects(Offers &offers, std::string_view placeholder, std::string_view command,
                   Words given) {
  if (placeholder == "TABLE") {
    offer_tables(offers, command, given);
  } else if (placeholder == "ACTION") {
    for (const bindings::Record &record : actions()) offers.offer(record.name, "an action");
  } else if (placeholder == "PROFILE") {
    offer_rows<soft_profile_t>(offers, [](const soft_profile_t &profile) {
      return profile.selector != 0 ? "members and groups" : "members";
    });
  } else if (placeholder == "COUNTER") {
    offer_rows<soft_counter_t>(offers,
                               [](const soft_counter_t &row) { return cells_help(row.table); });
  } else if (placeholder == "METER") {
    offer_rows<soft_meter_t>(offers, [](const soft_meter_t &row) { return cells_help(row.table); });
  } else if (placeholder == "REGISTER") {
    offer_rows<soft_register_t>(
        offers, [](const soft_register_t &row) { return std::to_string(row.width) + " bits"; });
  } else if (placeholder == "HASH") {
    offer_rows<soft_hash_t>(
        offers, [](const soft_hash_t &row) { return std::to_string(row.field_count) + " fields"; });
  } else if (placeholder == "DIGEST") {
    offer_rows<soft_digest_t>(offers, [](const soft_digest_t &row) {
      return std::to_string(row.field_count) + " fields";
    });
  } else if (placeholder == "SET") {
    offer_rows<soft_value_set_t>(offers, [](const soft_value_set_t &) { return "a value set"; });
  } else {
    return false;
  }
  return true;
}

bool is_file_placeholder(std::string_view placeholder) {
  return placeholder == "FILE" || placeholder.ends_with(".html") || placeholder.ends_with(".json");
}

namespace {

struct CloseFolder {
  void operator()(DIR *folder) const { closedir(folder); }
};

bool is_folder(const std::string &path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

void offer_files(Offers &offers, bool quoted) {
  const std::string_view typed = offers.typed();
  const size_t slash = typed.rfind('/');
  const std::string before(typed.substr(0, slash == std::string_view::npos ? 0 : slash + 1));
  const std::string_view beginning = typed.substr(before.size());
  const std::unique_ptr<DIR, CloseFolder> folder(opendir(before.empty() ? "." : before.c_str()));
  std::vector<std::string> paths;
  bool has_blanks = false;
  while (const dirent *entry = folder ? readdir(folder.get()) : nullptr) {
    const std::string_view name = entry->d_name;
    const bool hidden = name.starts_with('.') && !beginning.starts_with('.');
    if (hidden || name == "." || name == ".." || !name.starts_with(beginning)) continue;
    // No word can hold these.
    if (name.find_first_of("\"\n") != std::string_view::npos || paths.size() == kMostFiles)
      continue;
    std::string path = before + std::string(name);
    if (is_folder(path)) path += '/';
    has_blanks = has_blanks || path.find_first_of(" \t#") != std::string::npos;
    paths.push_back(std::move(path));
  }
  std::sort(paths.begin(), paths.end());
  const std::string quote = has_blanks && !quoted ? "\"" : "";
  for (const std::string &path : paths) {
    // The quote stays open behind a folder, where more is to come.
    const bool ends = (quoted || has_blanks) && !path.ends_with('/');
    offers.offer_as_it_is(offers.start(), quote + path + (ends ? "\"" : ""), "");
  }
  if (paths.empty()) offers.hint(meaning_of_value("FILE"));
}

}  // namespace tesselctl
