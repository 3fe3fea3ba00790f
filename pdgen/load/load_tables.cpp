// Reads tables: keys, actions and resource items.
#include <algorithm>
#include <charconv>

#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

constexpr unsigned kWide = 128;

// "0x" and 1 to 32 digits.
std::optional<Bits> wide_number(std::string_view text) {
  constexpr std::size_t kHalf = 16;  // digits of 64 bits
  if (!text.starts_with("0x") || text.size() > 2 + 2 * kHalf) return {};
  text.remove_prefix(2);
  if (text.find_first_not_of("0123456789abcdefABCDEF") != text.npos || text.empty()) return {};
  const std::size_t upper = text.size() > kHalf ? text.size() - kHalf : 0;
  Bits bits;
  std::from_chars(text.data(), text.data() + upper, bits.upper, 16);
  std::from_chars(text.data() + upper, text.data() + text.size(), bits.lower, 16);
  return bits;
}

void read_wide_key_bits(RowReader &row, KeyField &field) {
  const TomlValue *given = row.value("key_bits", kOptional);
  if (given == nullptr) return;
  const auto *text = std::get_if<std::string>(&given->data);
  const auto bits = text == nullptr ? std::nullopt : wide_number(*text);
  field.key_bits = bits.value_or(Bits{});
  if (!bits) {
    row.report("key_bits", "the key bits of {} must be a string, 0x and 1 to 32 hexadecimal digits",
               row.what());
  } else if (bits == Bits{}) {
    row.report("key_bits", "the key bits of {} are 0", row.what());
  }
}

void read_key_bits(RowReader &row, KeyField &field) {
  const Bits all = low_bits(field.width);
  field.key_bits = all;
  if (field.width == kWide) {
    read_wide_key_bits(row, field);
  } else if (std::uint32_t given = 0;
             row.number("key_bits", given, 0, kAnyNumber, kOptional, kBits)) {
    field.key_bits.lower = given;
    if (field.width != 0 && (given == 0 || (given & ~all.lower) != 0)) {
      row.report("key_bits", "{} of {} must be some of the {} bits {:#x}", hex(given), row.what(),
                 field.width, all.lower);
    }
  }
  field.partial = field.key_bits != all;
}

void read_key_field(RowReader &row, KeyField &field) {
  row.name(field);
  const bool given = row.number("width", field.width);
  if (given && field.width != kWide && (field.width < 1 || field.width > 32)) {
    row.report("width", "{} bits of {} must be 1 to 32, or {}", field.width, row.what(), kWide);
    field.width = 0;
  }
  row.choice("match", field.match, kOptional);
  read_sizes(row, field.width, field.storage_bytes, field.bytes);
  read_key_bits(row, field);
  const std::string header = validity_header(field.name);
  field.is_validity_bit = field.width == 1 && !header.empty();
  field.width_name = field.is_validity_bit ? header : field.name;
}

TableKind kind_of(const std::vector<KeyField> &key) {
  TableKind kind = key.empty() ? TableKind::kKeyless : TableKind::kExact;
  for (const KeyField &field : key) {
    if (field.match == Match::kTernary) return TableKind::kTernary;
    if (field.match == Match::kLpm) kind = TableKind::kLpm;
  }
  return kind;
}

void check_match_kinds(RowReader &row, const Table &table) {
  const auto is_lpm = [](const KeyField &field) { return field.match == Match::kLpm; };
  const auto count = std::ranges::count_if(table.key, is_lpm);
  if (count == 0) return;
  const KeyField &last = *std::ranges::find_if(table.key.rbegin(), table.key.rend(), is_lpm);
  const char *fault = table.kind == TableKind::kTernary ? "but the key has ternary fields"
                      : count > 1                       ? "and a key has at most one such field"
                      : last.width % 8 != 0             ? "so its width must be a multiple of 8"
                                                        : nullptr;
  if (fault == nullptr) return;
  row.report_at(last.place, "key.match", "field {} of {} is lpm, {}", last.name, row.what(), fault);
}

// Whether the action may be the default, or nothing else.
void read_use(RowReader &row, bool keyed, Pair &pair) {
  pair.in_entries = keyed;
  const TomlValue *given = row.value("default", kOptional);
  if (given == nullptr) return;
  const auto *flag = std::get_if<bool>(&given->data);
  const auto *text = std::get_if<std::string>(&given->data);
  if (flag == nullptr && (text == nullptr || *text != "only")) {
    row.report("default", "{} has {} here, which must be true, false or \"only\"", row.what(),
               text == nullptr ? std::string(given->kind_text()) : '"' + *text + '"');
    return;
  }
  pair.as_default = flag == nullptr || *flag;
  if (flag != nullptr) return;
  pair.in_entries = false;
  if (keyed) return;
  row.report("default",
             "\"only\" of {} is for tables with a key; the action of a table without one is true",
             row.what());
}

void read_pair(RowReader &row, bool keyed, Pair &pair) {
  row.name(pair, pair.action, "action", row.program().actions);
  row.handle("handle", pair.handle, HandleKind::kActionFunction);
  read_use(row, keyed, pair);
}

void read_operations(RowReader &row, ResourceRow &resource) {
  for (const auto &[name, place] : row.words("in", kRequired)) {
    const auto *found = std::ranges::find(kNamesOf<Operation>, name);
    if (found == kNamesOf<Operation>.end()) {
      row.report("in", "\"{}\" of {} must be one of {}", name, row.what(),
                 fmt::join(kNamesOf<Operation>, ", "));
    }
    resource.operations |= 1u << (found - kNamesOf<Operation>.begin());
  }
}

// The actions of those pairs of the table that have what is asked.
template <typename Has>
std::vector<Candidate> actions_of(const Table &table, Has has) {
  std::vector<Candidate> actions;
  for (const Pair &pair : table.pairs) {
    if (pair.action && has(pair))
      actions.push_back({pair.action.name, pair.place, pair.action.target});
  }
  return actions;
}

// A value for each parameter of the action. No width, no limit: that is the parameter's fault.
void read_values(RowReader &row, const Action &action, DefaultEntry &entry) {
  if (!row.has("params") && !action.params.empty()) {
    row.report("params", "{} has no values for the {} of action {}", row.what(),
               action.params.size() == 1 ? "parameter" : "parameters", action.name);
  }
  std::optional<std::vector<std::uint32_t>> values;
  row.row("params", values, [&](RowReader &params, std::vector<std::uint32_t> &read) {
    for (const Param &param : action.params) {
      const auto most = static_cast<std::uint32_t>(low_bits(param.width).lower);
      params.number(param.name, read.emplace_back(), 0, param.width == 0 ? kAnyNumber : most);
    }
  });
  entry.values = values.value_or(std::vector<std::uint32_t>(action.params.size()));
}

void read_default_entry(RowReader &row, const Table &table, DefaultEntry &entry) {
  const Program &program = row.program();
  const auto is_it = [&table](const Pair &pair) { return pair.as_default || !table.keyed(); };
  const auto defaults = [&table, is_it] { return actions_of(table, is_it); };
  row.reference("action", entry.action, "default action of the table", defaults);
  entry.place = entry.action.place;
  const Action *action = find_row(program.actions, entry.action.name);
  const auto named = [&](const Pair &pair) {
    return is_it(pair) && pair.action.name == entry.action.name;
  };
  if (action == nullptr || std::ranges::none_of(table.pairs, named) || !row.knows("parameter")) {
    return row.ignore_other_keys();
  }
  read_values(row, *action, entry);
}

void read_resource(RowReader &row, const Table &table, ResourceRow &resource) {
  const Program &program = row.program();
  row.reference("resource", resource.resource, "counter, meter or register",
                row.rows_of(program.counters, program.meters, program.registers));
  resource.place = resource.resource.place;
  const auto offered = [&table] { return actions_of(table, [](const Pair &) { return true; }); };
  row.references("actions", resource.actions, "action of the table", offered, kOptional);
  row.identifier("index", resource.index, kOptional);
  resource.index_place = row.place("index");
  row.choice("tag", resource.tag, kOptional);
  if (row.has("index") && resource.tag == ResourceTag::kDetach) {
    row.report("index", "{} is detached and needs no cell", row.what());
  }
  read_operations(row, resource);
}

void check_actions(RowReader &row, const Table &table) {
  const bool has_profile = row.has("profile");
  if (has_profile && !table.pairs.empty()) {
    row.report("profile", "{} has both a profile and {} actions", row.what(), table.pairs.size());
  }
  if (!has_profile && table.pairs.empty()) {
    row.report("actions", "{} has neither actions nor a profile", row.what());
  } else if (!has_profile && table.keyed() &&
             std::ranges::none_of(table.pairs, &Pair::in_entries)) {
    row.report("actions", "{} has no action that its entries may carry", row.what());
  }
  if (has_profile && row.has("default_entry")) {
    row.report("default_entry", "{} has a profile, whose members a fresh device lacks", row.what());
  }
  if (has_profile && !table.resources.empty()) {
    row.report("resources", "{} has a profile; resource items go with actions", row.what());
  }
}

void check_keyless(RowReader &row, const Table &table) {
  if (table.keyed()) return;
  if (table.idle_time) {
    row.report("idle_time", "{} has no key, so no entries that could age", row.what());
  }
  if (row.has("profile")) {
    row.report("profile", "{} has no key, so no entries that could point into a profile",
               row.what());
  }
  const auto defaults = std::ranges::count(table.pairs, true, &Pair::as_default);
  if (!table.pairs.empty() && (table.pairs.size() != 1 || defaults != 1)) {
    row.report("actions",
               "{} has no key and must have one action, a default one; it has {} actions, {} of "
               "them default",
               row.what(), table.pairs.size(), defaults);
  }
  if (row.has("size")) {
    row.report("size", "{} has no key, so no entries that could be limited", row.what());
  }
}

void read_table(RowReader &row, Table &table) {
  row.name(table);
  row.handle("handle", table.handle, HandleKind::kTable);
  row.rows("key", "field", "field", table.key, read_key_field, kOptional);
  table.kind = kind_of(table.key);
  check_match_kinds(row, table);
  row.references("key_order", table.key_order, "key field of the table", row.rows_of(table.key),
                 kOptional);
  row.flag("idle_time", table.idle_time);
  row.reference("profile", table.profile, "profile", row.rows_of(row.program().profiles),
                kOptional);
  row.number("size", table.size, 1, kAnyNumber, kOptional);
  row.rows(
      "actions", "action", "action", table.pairs,
      [&](RowReader &action, Pair &pair) { read_pair(action, table.keyed(), pair); }, kOptional);
  row.row("default_entry", table.default_entry, [&](RowReader &entry, DefaultEntry &read) {
    if (row.has("profile")) return entry.ignore_other_keys();
    read_default_entry(entry, table, read);
  });
  row.rows(
      "resources", "resource", "resource", table.resources,
      [&](RowReader &item, ResourceRow &resource) { read_resource(item, table, resource); },
      kOptional);
  check_actions(row, table);
  check_keyless(row, table);
}

}  // namespace

void read_sizes(RowReader &row, unsigned width, unsigned &storage_bytes, unsigned &bytes) {
  unsigned bits = width == kWide ? kWide : width <= 8 ? 8 : width <= 16 ? 16 : 32;
  if (width == kWide && row.has("storage")) {
    row.value("storage", kOptional);
    row.report("storage", "{} is 128 bits wide and always stored as 16 bytes", row.what());
  } else if (row.number_of("storage", bits, {8, 16, 32}, kOptional) && bits < width) {
    row.report("storage", "{} bits of {} cannot hold its {} bits", bits, row.what(), width);
  }
  storage_bytes = bits / 8;
  bytes = (width + 7) / 8;
}

void read_tables(RowReader &file) {
  file.rows("table", "table", "name", file.program().tables, read_table);
}

}  // namespace pdgen
