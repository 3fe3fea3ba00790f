// Reads tables: keys, actions and resource items.
#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

constexpr unsigned kWide = 128;

int nibble(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The 128-bit number "0x…", most significant byte first; nullopt if the text is none.
std::optional<std::array<std::uint8_t, 16>> parse_wide(std::string_view text) {
  constexpr std::size_t kMostDigits = kWide / 4;
  if (!text.starts_with("0x")) return std::nullopt;
  text.remove_prefix(2);
  if (text.empty() || text.size() > kMostDigits) return std::nullopt;
  std::array<std::uint8_t, 16> bytes{};
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int digit = nibble(text[text.size() - 1 - i]);
    if (digit < 0) return std::nullopt;
    bytes[15 - i / 2] = static_cast<std::uint8_t>(bytes[15 - i / 2] | digit << (i % 2 * 4));
  }
  return bytes;
}

void read_wide_key_bits(RowReader &row, KeyField &field) {
  field.wide_key_bits.fill(0xff);
  const TomlValue *given = row.optional_value("key_bits");
  if (given == nullptr) return;
  const auto *text = std::get_if<std::string>(&given->data);
  const auto bits = text == nullptr ? std::nullopt : parse_wide(*text);
  if (!bits) {
    row.report("key_bits", fmt::format("the key bits of {} must be a string, 0x and 1 to 32 "
                                       "hexadecimal digits",
                                       row.what()));
    return;
  }
  if (*bits == std::array<std::uint8_t, 16>{}) {
    row.report("key_bits", fmt::format("the key bits of {} are 0", row.what()));
  }
  field.partial = *bits != field.wide_key_bits;
  field.wide_key_bits = *bits;
}

void read_key_bits(RowReader &row, KeyField &field) {
  if (field.width == kWide) return read_wide_key_bits(row, field);
  const auto given = row.optional_number("key_bits", 0, 0xffffffff);
  if (field.width == 0) return;
  const std::uint32_t all = low_bits(field.width);
  field.key_bits = given.value_or(all);
  field.partial = field.key_bits != all;
  if (!given) return;
  if (*given == 0 || (*given & ~all) != 0) {
    row.report("key_bits", fmt::format("{} of {} must be some of the {} bits {}", hex(*given),
                                       row.what(), field.width, hex(all)));
  }
}

unsigned read_key_width(RowReader &row) {
  const auto width = row.number("width", 0, 0xffffffff);
  if (!width || (*width >= 1 && *width <= 32) || *width == kWide) return width.value_or(0);
  row.report("width",
             fmt::format("{} bits of {} must be 1 to 32, or {}", *width, row.what(), kWide));
  return 0;
}

KeyField read_key_field(const TomlValue &value, const std::string &owner, NameScope &names,
                        Diagnostics &diagnostics) {
  RowReader row(value, {"table.key", "field", "field", owner}, diagnostics);
  KeyField field;
  row.name("field", names, field);
  field.width = read_key_width(row);
  if (const auto match = row.optional_choice("match", {"ternary", "lpm"})) {
    field.match = *match == 0 ? Match::kTernary : Match::kLpm;
  }
  field.storage_bytes = read_storage_bytes(row, field.width);
  field.bytes = whole_bytes(field.width);
  read_key_bits(row, field);
  const std::string header = validity_header(field.name);
  field.is_validity_bit = field.width == 1 && !header.empty();
  field.width_name = field.is_validity_bit ? header : field.name;
  return field;
}

TableKind kind_of(const std::vector<KeyField> &key) {
  if (key.empty()) return TableKind::kKeyless;
  const auto has = [&](Match match) {
    return std::any_of(key.begin(), key.end(), [&](const KeyField &f) { return f.match == match; });
  };
  if (has(Match::kTernary)) return TableKind::kTernary;
  return has(Match::kLpm) ? TableKind::kLpm : TableKind::kExact;
}

void check_match_kinds(const RowReader &row, const Table &table) {
  const KeyField *lpm = nullptr;
  for (const KeyField &field : table.key) {
    if (field.match != Match::kLpm) continue;
    const auto report = [&](const std::string &message) {
      row.diagnostics().report(field.place, "table.key.match", message);
    };
    if (lpm != nullptr) {
      report(fmt::format("field {} of {} is lpm, as is {}; a key has at most one lpm field",
                         field.name, row.what(), lpm->name));
    }
    if (table.kind == TableKind::kTernary) {
      report(fmt::format("field {} of {} is lpm, but the key has ternary fields", field.name,
                         row.what()));
    }
    if (table.kind != TableKind::kTernary && field.width % 8 != 0) {
      report(fmt::format("field {} of {} is lpm, so its width is a multiple of 8, not {}",
                         field.name, row.what(), field.width));
    }
    lpm = &field;
  }
}

// Fills table.key_order, the identity unless given.
void read_key_order(RowReader &row, Table &table) {
  const std::vector<Word> words = row.optional_identifiers("key_order");
  const auto report = [&](const Place &place, const std::string &message) {
    row.diagnostics().report(place, row.path("key_order"), message);
  };
  if (!row.has("key_order")) {
    for (std::size_t i = 0; i < table.key.size(); ++i) table.key_order.push_back(i);
    return;
  }
  std::vector<bool> used(table.key.size(), false);
  for (const Word &word : words) {
    const KeyField *field = find_row(table.key, word.text);
    if (field == nullptr) {
      report(word.place, fmt::format("{} is no key field of {}", word.text, row.what()));
      continue;
    }
    const auto index = static_cast<std::size_t>(field - table.key.data());
    if (used[index]) {
      report(word.place,
             fmt::format("{} stands twice in the key order of {}", word.text, row.what()));
    }
    used[index] = true;
    table.key_order.push_back(index);
  }
  for (std::size_t i = 0; i < used.size(); ++i) {
    if (used[i]) continue;
    report(row.place("key_order"),
           fmt::format("{} is missing from the key order of {}", table.key[i].name, row.what()));
  }
}

Pair read_pair(const TomlValue &value, const std::string &owner, NameScope &names,
               LoadContext &context) {
  RowReader row(value, {"table.actions", "action", "action", owner}, context.diagnostics);
  Pair pair;
  pair.action = row.reference<Action>("action");
  pair.place = pair.action.place;
  names.add(pair.action.name, pair.place, row.path("action"), context.diagnostics);
  pair.handle = row.handle("handle", HandleKind::kActionFunction, context.handles);
  pair.as_default = row.optional_flag("default");
  return pair;
}

void read_operations(RowReader &row, bool keyed, ResourceRow &resource) {
  static constexpr std::string_view kNames[kOperationCount] = {"add", "modify", "default"};
  const std::vector<Word> words = row.identifiers("in");
  for (const Word &word : words) {
    const auto *name = std::find(std::begin(kNames), std::end(kNames), word.text);
    if (name == std::end(kNames)) {
      row.report("in", fmt::format("\"{}\" of {} must be one of {}", word.text, row.what(),
                                   fmt::join(kNames, ", ")));
      continue;
    }
    const auto operation = static_cast<std::size_t>(name - std::begin(kNames));
    if (!keyed && operation != static_cast<std::size_t>(Operation::kDefault)) {
      row.report("in", fmt::format("{} is sent in {}, but a table without a key has no entries",
                                   row.what(), word.text));
    }
    resource.in[operation] = true;
  }
}

ResourceRow read_resource(const TomlValue &value, const std::string &owner, bool keyed,
                          Diagnostics &diagnostics) {
  RowReader row(value, {"table.resources", "resource", "resource", owner}, diagnostics);
  ResourceRow resource;
  resource.resource = row.reference<Resource>("resource");
  resource.place = resource.resource.place;
  for (Word &word : row.optional_identifiers("actions")) {
    resource.actions.push_back({std::move(word.text), std::move(word.place), nullptr});
  }
  if (row.has("index")) resource.index = row.identifier("index");
  resource.index_place = row.place("index");
  if (const auto tag = row.optional_choice("tag", {"attach", "detach", "meter_spec"})) {
    resource.tag = static_cast<ResourceTag>(*tag);
  }
  if (row.has("index") && resource.tag == ResourceTag::kDetach) {
    row.report("index", fmt::format("{} is detached and needs no cell", row.what()));
  }
  read_operations(row, keyed, resource);
  return resource;
}

void check_actions(const RowReader &row, const Table &table) {
  const bool has_profile = row.has("profile");
  if (has_profile && !table.pairs.empty()) {
    row.report("profile",
               fmt::format("{} has both a profile and {} actions", row.what(), table.pairs.size()));
  }
  if (!has_profile && table.pairs.empty()) {
    row.report("actions", fmt::format("{} has neither actions nor a profile", row.what()));
  }
  if (has_profile && !table.resources.empty()) {
    row.report("resources",
               fmt::format("{} has a profile; resource items go with actions", row.what()));
  }
}

void check_keyless(const RowReader &row, const Table &table) {
  if (table.keyed()) return;
  if (table.idle_time) {
    row.report("idle_time", fmt::format("{} has no key, so no entries that could age", row.what()));
  }
  if (row.has("profile")) {
    row.report("profile", fmt::format("{} has no key, so no entries that could point into a "
                                      "profile",
                                      row.what()));
  }
  const auto defaults = std::count_if(table.pairs.begin(), table.pairs.end(),
                                      [](const Pair &pair) { return pair.as_default; });
  if (!table.pairs.empty() && (table.pairs.size() != 1 || defaults != 1)) {
    row.report("actions", fmt::format("{} has no key and must have one action, a default one; it "
                                      "has {} actions, {} of them default",
                                      row.what(), table.pairs.size(), defaults));
  }
}

Table read_table(const TomlValue &value, NameScope &table_names, LoadContext &context) {
  RowReader row(value, {"table", "table", "name", ""}, context.diagnostics);
  Table table;
  row.name("name", table_names, table);
  table.handle = row.handle("handle", HandleKind::kTable, context.handles);
  NameScope field_names;
  for (const TomlValue *field : row.optional_rows("key")) {
    table.key.push_back(read_key_field(*field, row.what(), field_names, context.diagnostics));
  }
  table.kind = kind_of(table.key);
  check_match_kinds(row, table);
  read_key_order(row, table);
  table.idle_time = row.optional_flag("idle_time");
  if (row.has("profile")) table.profile = row.reference<Profile>("profile");
  NameScope pair_names;
  for (const TomlValue *pair : row.optional_rows("actions")) {
    table.pairs.push_back(read_pair(*pair, row.what(), pair_names, context));
    table.pairs.back().in_entries = table.keyed();
  }
  for (const TomlValue *resource : row.optional_rows("resources")) {
    table.resources.push_back(
        read_resource(*resource, row.what(), table.keyed(), context.diagnostics));
  }
  check_actions(row, table);
  check_keyless(row, table);
  return table;
}

}  // namespace

unsigned read_storage_bytes(RowReader &row, unsigned width) {
  const auto bits = row.optional_number("storage", 0, 0xffffffff);
  if (width == kWide && bits) {
    row.report("storage",
               fmt::format("{} is 128 bits wide and always stored as 16 bytes", row.what()));
  }
  if (width == kWide) return kWide / 8;
  const unsigned least = width <= 8 ? 8 : width <= 16 ? 16 : 32;
  if (!bits) return least / 8;
  if (*bits != 8 && *bits != 16 && *bits != 32) {
    row.report("storage", fmt::format("{} bits of {} must be 8, 16 or 32", *bits, row.what()));
  } else if (*bits < width) {
    row.report("storage",
               fmt::format("{} bits of {} cannot hold its {} bits", *bits, row.what(), width));
  }
  return *bits / 8;
}

void read_tables(RowReader &file, LoadContext &context) {
  NameScope names;
  for (const TomlValue *table : file.rows("table")) {
    context.program.tables.push_back(read_table(*table, names, context));
  }
}

}  // namespace pdgen
