// What placeholders and conditions mean.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/families/members.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

using S = const Scope &;
using Text = std::string;

// --- Placeholders ---------------------------------------------------------------------------

template <auto Member>
Text name_of(S scope) {
  const auto value = value_of<Member>(scope);
  return Text(kNamesOf<std::remove_const_t<decltype(value)>>[static_cast<std::size_t>(value)]);
}
template <auto Member>
Text capitals(S scope) {
  return in_capitals(name_of<Member>(scope));
}

// The type of an unsigned integer and its storage: uint<storage_bits>_t.
template <auto Bytes>
Text bits_of(S scope) {
  return text_of(8 * value_of<Bytes>(scope));
}

template <auto Rows>
std::size_t index_of(S scope, const auto &row) {
  return static_cast<std::size_t>(&row - value_of<Rows>(scope).data());
}

template <auto Rows, auto Size, unsigned Least = 1>
Text greatest(S scope) {
  unsigned size = Least;
  for (const auto &row : value_of<Rows>(scope)) size = std::max(size, row.*Size);
  return text_of(size);
}

template <auto Size>
Text longest(S scope) {
  return text_of(text_sizes(scope.get<Program>()).*Size);
}

const Snapshots &snapshots(S scope) { return *scope.get<Program>().snapshots; }

Text origin(S s) {
  return fmt::format(
      "Made by pdgen from the catalogue of {}. Edit the catalogue and run\n"
      "scripts/generate, not this file.",
      s.get<Program>().name);
}

// The type of a record, without its ending.
template <auto TypeName, typename Row>
Text tag(S scope) {
  const std::string type = TypeName(scope.get<Program>(), scope.get<Row>());
  return type.substr(0, type.size() - 2);
}

bool is_partial(S s) { return std::ranges::any_of(s.get<Table>().key, &KeyField::partial); }
bool is_keyed(S s) { return s.get<Table>().keyed(); }
bool is_indirect(S s) { return s.get<Table>().indirect(); }

// The member that goes with the value in the core: itself for an exact one.
Text companion(S s) {
  const KeyField &field = s.get<KeyField>();
  return field.match == Match::kExact ? field.name : companion_member(field);
}

// The byte of that number, 0 the least significant.
unsigned byte_of(const Bits &bits, unsigned number) {
  return static_cast<uint8_t>(number < 8 ? bits.lower >> 8 * number
                                         : bits.upper >> 8 * (number - 8));
}

Text hex64(std::uint64_t value) { return fmt::format("{:#018x}", value); }
Text low_hex(const Bits &bits) { return hex32(static_cast<std::uint32_t>(bits.lower)); }

// Of so many bytes, the most significant first.
void append_bytes(std::vector<unsigned> &bytes, const Bits &bits, unsigned count) {
  while (count-- > 0) bytes.push_back(byte_of(bits, count));
}

// The bits that are compared in each byte of a key.
Text compared_bytes(S s) {
  std::vector<unsigned> bytes;
  for (const auto &field : s.get<Table>().key_order) {
    append_bytes(bytes, field->key_bits, field->bytes);
  }
  return fmt::format("{:#04x}", fmt::join(bytes, ", "));
}

// What a parameter is in the default entry of a fresh device.
std::uint32_t initial_value(S s, const Param &param) {
  const auto at = index_of<&Action::params>(s, param);
  return s.get<DefaultEntry>().values[at];
}

// Its action data; a value that names a cell is no part of them.
Text initial_data(S s) {
  std::vector<unsigned> bytes;
  for (const Param &param : s.get<Action>().params) {
    append_bytes(bytes, {0, param.is_index() ? 0 : initial_value(s, param)}, param.bytes);
  }
  return fmt::format("{:#04x}", fmt::join(bytes, ", "));
}

Text initial_index(S s) {
  const Param *index = s.get<ResourceItem>().index;
  return text_of(index == nullptr ? 0 : initial_value(s, *index));
}

// Where a field of a packet lies in a capture: under its own name or, a part of a longer field,
// among the bytes of that one.
Text captured_at(S s) {
  const PacketField &field = s.get<PacketField>();
  const PacketField *captured = find_row(snapshots(s).capture, field.name);
  if (captured != nullptr && captured->bytes == field.bytes) return text_of(captured->offset);
  const CapturedPart part = captured_part(snapshots(s), field.name);
  const unsigned at = part.number * field.bytes;
  if (part.whole == nullptr || at + field.bytes > part.whole->bytes) return "SOFT_NOT_CAPTURED";
  return text_of(part.whole->offset + at);
}

// What the fields leave over of a record.
unsigned padding(S s, const std::vector<PacketField> &fields) {
  return snapshots(s).record_bytes - fields.back().offset - fields.back().bytes;
}

Text bit_count(unsigned width) { return fmt::format("{} bit{}", width, width == 1 ? "" : "s"); }

// What stands behind a member in the header.
Text field_remark(S s) {
  const RecordField &field = s.get<RecordField>();
  const KeyField &key = s.get<Table>().key[field.key_index];
  if (field.role == RecordRole::kMask) return "set bits take part";
  if (field.role == RecordRole::kPrefixLength) return fmt::format("0 to {}", key.width);
  if (!key.partial) return bit_count(key.width);
  return bit_count(key.width) + ", key bits " +
         (key.wide() ? fmt::format("0x{:016x}{:016x}", key.key_bits.upper, key.key_bits.lower)
                     : fmt::format("{:#x}", key.key_bits.lower));
}

Text param_remark(S s) {
  const Param &param = s.get<Param>();
  std::string remark = bit_count(param.width);
  const auto cells = projected(param.index_of, &Ref<Resource>::name);
  if (param.is_index()) remark += fmt::format(", cell of {}", fmt::join(cells, " and "));
  if (param.hint == Hint::kMac) remark += ", half of a MAC address";
  if (param.hint == Hint::kV4Addr) remark += ", IPv4 address";
  return remark;
}

Text digits_at(const ValueText &value) {
  return fmt::format("{}", fmt::join(value.digits_at, ", "));
}

// --- Labels ---

Text label_text(S s) {
  const LabelItem &item = s.get<LabelItem>();
  if (item.kind == LabelKind::kFlag) {
    return c_literal("!" + item.label + std::string(item.after, ' '));
  }
  return c_literal(item.is_number() ? item.format + " 0x" : item.label);
}

// Silent items have no number.
Text item_number(S s) {
  const std::vector<LabelItem> &items = s.get<Label>().items;
  return text_of(static_cast<std::size_t>(
      std::count_if(items.data(), &s.get<LabelItem>(),
                    [](const LabelItem &item) { return item.kind != LabelKind::kSilent; })));
}

// --- The rows ---

struct Placeholder {
  std::string_view kind;
  std::string_view name;
  Text (*text)(S scope);
};

const Placeholder kPlaceholders[] = {
    {"program", "program", text<&Program::name>},
    {"program", "PROGRAM", [](S s) { return in_capitals(s.get<Program>().name); }},
    {"program", "origin", origin},
    {"program", "soname", text<&Api::soname>},
    {"program", "snapshot_bytes",
     [](S s) { return text_of(s.get<Program>().snapshots ? snapshots(s).record_bytes : 0); }},
    {"program", "capture_limit", [](S s) { return text_of(snapshots(s).capture_limit); }},
    {"program", "padding", [](S s) { return text_of(padding(s, snapshots(s).capture)); }},
    {"program", "route_action", [](S s) { return s.get<Program>().routes->action.name; }},
    {"program", "schema_count",
     [](S s) {
       const Program &program = s.get<Program>();
       return text_of(program.tables.size() + program.profiles.size());
     }},
    {"program", "action_name_size", longest<&TextSizes::action_name>},
    {"program", "schema_size", longest<&TextSizes::schema>},
    {"program", "match_spec_value_size", longest<&TextSizes::match_spec_value>},
    {"program", "action_value_size", longest<&TextSizes::action_value>},
    {"program", "value_size", longest<&TextSizes::value>},
    {"program", "label_size", longest<&TextSizes::label>},
    // The pipeline manager may hand back so much action data whatever the program has.
    {"program", "greatest_action_data", greatest<&Program::actions, &Action::data_bytes, 28>},
    {"program", "greatest_action_spec", greatest<&Program::actions, &Action::record_bytes>},
    {"program", "greatest_match_spec", greatest<&Program::tables, &Table::record_bytes>},
    {"program", "greatest_key", greatest<&Program::tables, &Table::key_bytes>},
    {"program", "at_least_one_profile",
     [](S s) { return text_of(std::max<std::size_t>(1, s.get<Program>().profiles.size())); }},
    {"table", "table", text<&Table::name>},
    {"table", "handle", hex<&Table::handle>},
    {"table", "match_spec", tag<match_spec_type, Table>},
    {"table", "key_size", [](S s) { return bit_count(s.get<Table>().key_bits); }},
    {"table", "key_bits", text<&Table::key_bits>},
    {"table", "key_bytes", text<&Table::key_bytes>},
    {"table", "record_bytes", text<&Table::record_bytes>},
    {"table", "kind", name_of<&Table::kind>},
    // A table without a key counts as exact.
    {"table", "MATCH", [](S s) { return is_keyed(s) ? capitals<&Table::kind>(s) : "EXACT"; }},
    {"table", "size", text<&Table::size>},
    {"table", "profile_index",
     [](S s) {
       if (!is_indirect(s)) return Text("-1");
       return text_of(index_of<&Program::profiles>(s, *s.get<Table>().profile));
     }},
    {"table", "action_data",
     [](S s) { return is_indirect(s) ? hex32(s.get<Table>().profile->action_data_handle) : "0"; }},
    {"table", "compared", compared_bytes},
    {"table", "schema", [](S s) { return c_literal(table_schema(s.get<Table>())); }},
    {"table", "key_schema", [](S s) { return c_literal(match_spec_schema(s.get<Table>())); }},
    {"table", "first_of_key_name", [](S s) { return s.get<Table>().first_of_key->name; }},
    {"table", "value_text", [](S s) { return c_literal(match_spec_value(s.get<Table>()).text); }},
    {"table", "digits_at", [](S s) { return digits_at(match_spec_value(s.get<Table>())); }},
    {"table", "lines",
     [](S s) { return c_literal_lines(match_spec_lines(s.get<Program>(), s.get<Table>())); }},
    {"field", "name", text<&KeyField::name>},
    {"field", "field", text<&KeyField::width_name>},
    {"field", "companion", companion},
    {"field", "offset", text<&KeyField::offset>},
    {"field", "storage", text<&KeyField::storage_bytes>},
    {"field", "width", text<&KeyField::width>},
    {"field", "bytes", text<&KeyField::bytes>},
    {"field", "key_bits", [](S s) { return low_hex(s.get<KeyField>().key_bits); }},
    {"field", "match", name_of<&KeyField::match>},
    {"field", "MATCH", capitals<&KeyField::match>},
    {"record_field", "name", text<&RecordField::name>},
    {"record_field", "offset", text<&RecordField::record_offset>},
    {"record_field", "storage", text<&RecordField::storage_bytes>},
    {"record_field", "storage_bits", bits_of<&RecordField::storage_bytes>},
    {"record_field", "digits", [](S s) { return text_of(digit_count(s.get<RecordField>().width)); }},
    {"record_field", "bits",
     // Those of a wide one stand in <wide_bits>.
     [](S s) {
       const auto &field = s.get<RecordField>();
       return low_hex(field.storage_bytes == 16 ? Bits{} : member_bits(s.get<Table>(), field));
     }},
    {"record_field", "wide_bits",
     [](S s) {
       std::vector<unsigned> bytes;
       append_bytes(bytes, member_bits(s.get<Table>(), s.get<RecordField>()), 16);
       return fmt::format("{:#x}", fmt::join(bytes, ", "));
     }},
    {"record_field", "remark", field_remark},
    {"pair", "action_handle", hex<&Pair::handle>},
    {"initial", "data", initial_data},
    {"initial_cell", "index", initial_index},
    {"item", "index", [](S s) { return s.get<ResourceItem>().index->name; }},
    {"item", "tag", name_of<&ResourceItem::tag>},
    {"item", "UNIT",
     [](S s) {
       const auto unit = static_cast<std::size_t>(s.get<ResourceItem>().resource->unit);
       return in_capitals(kNamesOf<MeterUnit>[unit]);
     }},
    {"item", "operations", text<&ResourceItem::operations>},
    {"member", "action_handle", hex<&ProfileAction::handle>},
    {"action", "action", text<&Action::name>},
    {"action", "action_spec", tag<action_spec_type, Action>},
    {"action", "value", text<&Action::value>},
    {"action", "data_bits", text<&Action::data_bits>},
    {"action", "data_bytes", text<&Action::data_bytes>},
    {"action", "record_bytes", text<&Action::record_bytes>},
    {"action", "schema", [](S s) { return c_literal(action_schema(s.get<Action>())); }},
    {"action", "value_text", [](S s) { return c_literal(action_value(s.get<Action>()).text); }},
    {"action", "digits_at", [](S s) { return digits_at(action_value(s.get<Action>())); }},
    {"action", "lines", [](S s) { return c_literal_lines(action_lines(s.get<Action>())); }},
    {"param", "param", text<&Param::name>},
    {"param", "offset", text<&Param::offset>},
    {"param", "record_offset", text<&Param::record_offset>},
    {"param", "storage", text<&Param::storage_bytes>},
    {"param", "storage_bits", bits_of<&Param::storage_bytes>},
    {"param", "width", text<&Param::width>},
    {"param", "bytes", text<&Param::bytes>},
    {"param", "digits", [](S s) { return text_of(digit_count(s.get<Param>().width)); }},
    {"param", "bits", [](S s) { return low_hex(low_bits(s.get<Param>().width)); }},
    {"param", "remark", param_remark},
    {"profile", "profile", text<&Profile::name>},
    {"profile", "action_data", hex<&Profile::action_data_handle>},
    {"profile", "selector", hex<&Profile::selector_handle>},
    {"profile", "most_members", text<&Profile::most_members>},
    {"profile", "most_groups", text<&Profile::most_groups>},
    {"profile", "index",
     [](S s) { return text_of(index_of<&Program::profiles>(s, s.get<Profile>())); }},
    {"profile", "schema", [](S s) { return c_literal(profile_schema(s.get<Profile>())); }},
    {"counter", "counter", text<&Resource::name>},
    {"meter", "meter", text<&Resource::name>},
    {"meter", "unit", name_of<&Resource::unit>},
    {"meter", "UNIT", capitals<&Resource::unit>},
    {"register", "register", text<&Resource::name>},
    {"register", "width", text<&Resource::width>},
    // The smallest integer that holds a cell.
    {"register", "value_type",
     [](S s) { return fmt::format("uint{}_t", std::max(8u, s.get<Resource>().width)); }},
    {"resource", "handle", hex<&Resource::handle>},
    {"resource", "table_handle", [](S s) { return hex32(s.get<Resource>().table->handle); }},
    {"hash", "hash", text<&Hash::name>},
    {"hash", "handle", hex<&Hash::handle>},
    {"hash", "field_list", hex<&Hash::field_list_handle>},
    {"hash", "algorithm", hex<&Program::hash_algorithm>},
    {"hash", "field_count", text<&Hash::field_count>},
    {"digest", "digest", text<&Digest::name>},
    {"digest", "handle", hex<&Digest::handle>},
    {"digest", "size", text<&Digest::size>},
    {"value_set", "value_set", text<&ValueSet::name>},
    {"value_set", "handle", hex<&ValueSet::handle>},
    {"layout", "layout", text<&SnapshotLayout::name>},
    {"layout", "padding", [](S s) { return text_of(padding(s, s.get<SnapshotLayout>().fields)); }},
    {"packet_field", "name", text<&PacketField::name>},
    {"packet_field", "offset", text<&PacketField::offset>},
    {"packet_field", "bytes", text<&PacketField::bytes>},
    {"packet_field", "storage_bits", bits_of<&PacketField::bytes>},
    {"packet_field", "captured_at", captured_at},
    {"label_item", "item", item_number},
    {"label_item", "kind", name_of<&LabelItem::kind>},
    {"label_item", "digits", text<&LabelItem::digits>},
    {"label_item", "bits",
     [](S s) {
       const LabelItem &item = s.get<LabelItem>();
       return hex32(item.kind == LabelKind::kFlag ? item.bit : item.texts_mask);
     }},
    {"label_item", "label_text", label_text},
    {"label_item", "masked_text",
     [](S s) { return c_literal(s.get<LabelItem>().format + " & 0x"); }},
    {"label_text", "value", hex<&LabelText::value>},
    {"label_text", "literal", [](S s) { return c_literal(s.get<LabelText>().text); }},
    {"record_list", "list", text<&ToolRecords::name>},
    {"record", "record", text<&ToolRecord::name>},
    {"record", "number", text<&ToolRecord::number>},
    {"record", "size", text<&ToolRecord::size>},
    {"record", "shown", text<&ToolRecord::shown>},
    {"tool_member", "name", text<&ToolMember::name>},
    {"tool_member", "role", name_of<&ToolMember::role>},
    {"tool_member", "offset", text<&ToolMember::offset>},
    {"tool_member", "storage", text<&ToolMember::storage>},
    {"tool_member", "width", text<&ToolMember::width>},
    {"tool_field", "index",
     [](S s) { return text_of(index_of<&ToolRecord::fields>(s, s.get<ToolField>())); }},
    {"tool_field", "label", text<&ToolField::label>},
    {"tool_field", "name", text<&ToolField::name>},
    {"tool_field", "notation", text<&ToolField::notation>},
    {"tool_field", "match", name_of<&ToolField::match>},
    {"tool_field", "width", text<&ToolField::width>},
    {"tool_field", "upper_bits", [](S s) { return hex64(s.get<ToolField>().key_bits.upper); }},
    {"tool_field", "lower_bits", [](S s) { return hex64(s.get<ToolField>().key_bits.lower); }},
    {"part", "part", [](S s) { return text_of(s.get<std::size_t>()); }},
    {"tool_field", "joined_field", text<&ToolField::joined_field>},
    {"word", "word", [](S s) { return s.get<Text>(); }},
    {"include", "include", [](S s) { return s.get<Text>(); }},
    {"export", "export", [](S s) { return s.get<Text>(); }},
    {"handle", "handle", hex<&Handle::handle>},
    {"handle", "object", text<&Handle::object>},
    {"note", "title", text<&Note::title>},
    {"note", "text", [](S s) { return fill(words(s.get<Note>().text), 95, " *   "); }},
    {"note", "text_literal", [](S s) { return c_literal(s.get<Note>().text); }},
    {"group", "title", text<&Group::title>},
    // Without the last newline.
    {"group", "declarations",
     [](S s) {
       const std::string &text = s.get<Group>().declarations;
       return text.substr(0, text.size() - 1);
     }},
    {"unit", "unit", text<&Unit::name>},
    {"parameter_list", "list", text<&ParameterList::name>},
    {"parameter", "type", text<&Parameter::type>},
    {"parameter", "name", text<&Parameter::name>},
    {"function", "function", text<&Function::name>},
    {"function", "family", text<&Function::family>},
    {"function", "object", text<&Function::object>},
    {"function", "action", text<&Function::action>},
    {"function", "result", text<&Function::result>},
    {"function", "list", text<&Function::list>},
    {"function", "note_number", text<&Function::note>},
    {"function", "statement", text<&Function::statement>},
    {"function", "declaration", [](S s) { return declaration(s.get<Function>(), 99); }},
    {"function", "declaration_line", [](S s) { return declaration(s.get<Function>()); }},
};

// --- Conditions -----------------------------------------------------------------------------

struct Condition {
  std::string_view kind;
  std::string_view name;
  bool (*holds)(S scope);
};

template <auto Member>
bool flag(S scope) {
  return value_of<Member>(scope);
}

const Condition kConditions[] = {
    {"program", "snapshots", [](S s) { return s.get<Program>().snapshots.has_value(); }},
    {"program", "padded", [](S s) { return padding(s, snapshots(s).capture) != 0; }},
    {"table", "keyed", is_keyed},
    {"table", "prioritized", [](S s) { return s.get<Table>().has_priority(); }},
    {"table", "ageing", flag<&Table::idle_time>},
    {"table", "indirect", is_indirect},
    {"table", "partial", is_partial},
    {"table", "first_of_key", [](S s) { return s.get<Table>().first_of_key == s.find<Table>(); }},
    {"record_field", "wide", [](S s) { return s.get<RecordField>().storage_bytes == 16; }},
    {"action", "parameters", [](S s) { return s.get<Action>().has_params(); }},
    {"pair", "as_default", flag<&Pair::as_default>},
    {"pair", "in_entries", flag<&Pair::in_entries>},
    {"pair", "default_only", [](S s) { return is_keyed(s) && !s.get<Pair>().in_entries; }},
    {"pair", "metered", [](S s) { return s.get<Pair>().takes_meter_spec(Operation::kAdd); }},
    {"default", "metered", [](S s) { return s.get<Pair>().takes_meter_spec(Operation::kDefault); }},
    {"item", "indexed", [](S s) { return s.get<ResourceItem>().index != nullptr; }},
    {"resource", "direct", [](S s) { return s.get<Resource>().direct(); }},
    {"layout", "padded", [](S s) { return padding(s, s.get<SnapshotLayout>().fields) != 0; }},
    {"packet_field", "many", [](S s) { return s.get<PacketField>().bytes > 1; }},
    {"label_item", "number", [](S s) { return s.get<LabelItem>().kind == LabelKind::kNumber; }},
    {"label_item", "any_number", [](S s) { return s.get<LabelItem>().is_number(); }},
    {"label_item", "bits",
     [](S s) {
       const LabelItem &item = s.get<LabelItem>();
       return item.kind == LabelKind::kFlag || !item.texts.empty();
     }},
    {"tool_member", "is_bytes", flag<&ToolMember::is_bytes>},
    {"tool_field", "optional", [](S s) { return s.get<ToolField>().match == Match::kTernary; }},
    {"group", "declarations", [](S s) { return !s.get<Group>().declarations.empty(); }},
    {"function", "statement", [](S s) { return !s.get<Function>().statement.empty(); }},
};

// The row of the innermost kind that has the name.
template <typename Row, std::size_t N>
const Row *find_in_reach(const Row (&rows)[N], const Kinds &kinds, std::string_view name) {
  for (auto kind = kinds.rbegin(); kind != kinds.rend(); ++kind) {
    for (const Row &row : rows) {
      if (row.kind == *kind && row.name == name) return &row;
    }
  }
  return nullptr;
}

}  // namespace

std::function<bool(S)> find_condition(const Kinds &kinds, std::string_view name) {
  if (const Condition *row = find_in_reach(kConditions, kinds, name)) return row->holds;
  if (!name.starts_with("any ")) return nullptr;
  const std::size_t end = std::min(name.find(" where "), name.size());
  const Walk *walk = find_walk(kinds, name.substr(4, end - 4));
  if (walk == nullptr) return nullptr;
  if (end == name.size()) return [walk](S scope) { return !walk->objects(scope).empty(); };
  const auto holds = find_condition(kinds_within(kinds, *walk), name.substr(end + 7));
  if (!holds) return nullptr;
  return [walk, holds](S scope) { return std::ranges::any_of(walk->objects(scope), holds); };
}

std::function<Text(S)> find_placeholder(const Kinds &kinds, std::string_view name) {
  if (const Placeholder *row = find_in_reach(kPlaceholders, kinds, name)) return row->text;
  if (const auto holds = find_condition(kinds, name)) {
    return [holds](S scope) { return Text(holds(scope) ? "true" : "false"); };
  }
  if (const auto python = find_python_placeholder(kinds, name)) return python;
  constexpr std::string_view kCount = "_count";
  if (!name.ends_with(kCount)) return nullptr;
  const Walk *walk = find_walk(kinds, name.substr(0, name.size() - kCount.size()));
  if (walk == nullptr) return nullptr;
  return [walk](S scope) { return text_of(walk->objects(scope).size()); };
}

}  // namespace pdgen
