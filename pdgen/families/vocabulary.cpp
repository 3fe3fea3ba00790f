// What placeholders and conditions mean.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/families/scope.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

using S = const Scope &;

// --- Placeholders ---------------------------------------------------------------------------

std::string number(std::size_t value) { return std::to_string(value); }
std::string word(const char *text) { return text; }

const std::string kKinds[] = {"keyless", "exact", "ternary", "lpm"};
const std::string kMatches[] = {"EXACT", "TERNARY", "LPM"};

// A table without a key counts as exact.
std::size_t soft_match(const Table &table) {
  return table.keyed() ? static_cast<std::size_t>(table.kind) - 1 : 0;
}

std::size_t index_of(const Program &program, const Profile &profile) {
  return static_cast<std::size_t>(&profile - program.profiles.data());
}

std::string profile_index(const Program &program, const Table &table) {
  return table.profile ? number(index_of(program, *table.profile)) : "-1";
}

bool is_partial(const Table &table) {
  return std::any_of(table.key.begin(), table.key.end(),
                     [](const KeyField &field) { return field.partial; });
}

std::string companion(const KeyField &field) {
  if (field.match == Match::kTernary) return mask_member(field.name);
  return field.match == Match::kLpm ? prefix_length_member(field.name) : field.name;
}

std::string cells(const Param &param) {
  std::vector<std::string> handles;
  for (const Ref<Resource> &resource : param.index_of) handles.push_back(hex32(resource->handle));
  return join(handles, ", ");
}

std::string action_texts(const Profile &profile) {
  std::vector<std::string> names;
  for (const ProfileAction &row : profile.actions) {
    names.push_back("text::action::" + row.action.name);
  }
  return join(names, ", ");
}

// The array of a direction's fields and their number.
std::string layout_fields(const Program &program, const std::string &direction) {
  const SnapshotLayout *layout =
      program.snapshots ? find_row(program.snapshots->layouts, direction) : nullptr;
  if (layout == nullptr) return "{nullptr, 0}";
  return fmt::format("{{snapshot_{}, {}}}", direction, layout->fields.size());
}

std::string table_handle(S s) { return hex32(s.resource->table->handle); }

std::string action_values(const Program &program) {
  std::vector<std::string> rows;
  for (const Action &action : program.actions) {
    rows.push_back(fmt::format("  {} = {}", action_constant(program, action), action.value));
  }
  return join(rows, ",\n");
}

std::string spec_members(const Program &program) {
  std::vector<std::string> rows;
  for (const Action &action : program.actions) {
    if (!action.has_params()) continue;
    rows.push_back(fmt::format("    {} {};", action_spec_type(program, action), action.name));
  }
  if (rows.empty()) rows.push_back("    uint32_t none;");
  return join(rows, "\n");
}

template <auto Size>
std::string greatest(S scope) {
  return number(text_sizes(*scope.program).*Size);
}

std::string rate_unit(const Resource &meter) {
  return meter.unit == MeterUnit::kBytes ? "PIPE_RATE_BYTES" : "PIPE_RATE_PACKETS";
}

std::string meter_spec(const Resource &meter) {
  return meter.unit == MeterUnit::kBytes ? "p4_pd_bytes_meter_spec" : "p4_pd_packets_meter_spec";
}

// The smallest integer that holds a cell.
std::string value_type(const Resource &reg) {
  return fmt::format("uint{}_t", reg.width <= 8 ? 8 : reg.width);
}

const Placeholder kPlaceholders[] = {
    {"program", "program", [](S s) { return s.program->name; }},
    {"program", "table_count", [](S s) { return number(s.program->tables.size()); }},
    {"program", "profile_count", [](S s) { return number(s.program->profiles.size()); }},
    {"program", "counter_count", [](S s) { return number(s.program->counters.size()); }},
    {"program", "meter_count", [](S s) { return number(s.program->meters.size()); }},
    {"program", "register_count", [](S s) { return number(s.program->registers.size()); }},
    {"program", "hash_count", [](S s) { return number(s.program->hashes.size()); }},
    {"program", "digest_count", [](S s) { return number(s.program->digests.size()); }},
    {"program", "value_set_count", [](S s) { return number(s.program->value_sets.size()); }},
    {"program", "trigger_layouts", [](S s) { return trigger_layouts(*s.program); }},
    {"program", "snapshot_bytes",
     [](S s) { return number(s.program->snapshots ? s.program->snapshots->record_bytes : 0); }},
    {"program", "captured_count",
     [](S s) { return number(s.program->snapshots ? s.program->snapshots->capture.size() : 0); }},
    {"program", "ingress_fields", [](S s) { return layout_fields(*s.program, "ingress"); }},
    {"program", "egress_fields", [](S s) { return layout_fields(*s.program, "egress"); }},
    {"program", "action_names", [](S s) { return type_tag(action_names_type(*s.program)); }},
    {"program", "action_name_strings", [](S s) { return action_name_strings(*s.program); }},
    {"program", "action_values", [](S s) { return action_values(*s.program); }},
    {"program", "action_count", [](S s) { return number(s.program->actions.size()); }},
    {"program", "action_specs", [](S s) { return type_tag(action_specs_type(*s.program)); }},
    {"program", "spec_members", [](S s) { return spec_members(*s.program); }},
    {"program", "hash_field_attr", [](S s) { return type_tag(hash_field_attr_type(*s.program)); }},
    {"program", "ACTION_COUNT", [](S s) { return size_constant(*s.program, "ACTION_COUNT"); }},
    {"program", "ACTION_NAME_MAX",
     [](S s) { return size_constant(*s.program, "ACTION_NAME_MAX"); }},
    {"program", "SCHEMA_MAX", [](S s) { return size_constant(*s.program, "SCHEMA_MAX"); }},
    {"program", "MATCH_SPEC_VALUE_MAX",
     [](S s) { return size_constant(*s.program, "MATCH_SPEC_VALUE_MAX"); }},
    {"program", "ACTION_VALUE_MAX",
     [](S s) { return size_constant(*s.program, "ACTION_VALUE_MAX"); }},
    {"program", "VALUE_MAX", [](S s) { return size_constant(*s.program, "VALUE_MAX"); }},
    {"program", "LABEL_MAX", [](S s) { return size_constant(*s.program, "LABEL_MAX"); }},
    {"program", "action_name_size", greatest<&TextSizes::action_name>},
    {"program", "schema_size", greatest<&TextSizes::schema>},
    {"program", "match_spec_value_size", greatest<&TextSizes::match_spec_value>},
    {"program", "action_value_size", greatest<&TextSizes::action_value>},
    {"program", "value_size", greatest<&TextSizes::value>},
    {"program", "label_size", greatest<&TextSizes::label>},
    {"program", "capture", [](S s) { return type_tag(snapshot_capture_type(*s.program)); }},
    {"program", "capture_limit", [](S s) { return number(s.program->snapshots->capture_limit); }},
    {"program", "record_bytes", [](S s) { return number(s.program->snapshots->record_bytes); }},
    {"program", "capture_members", [](S s) { return capture_members(*s.program->snapshots); }},
    {"table", "table", [](S s) { return s.table->name; }},
    {"table", "handle", [](S s) { return hex32(s.table->handle); }},
    {"table", "match_spec", [](S s) { return type_tag(match_spec_type(*s.program, *s.table)); }},
    {"table", "key_size", [](S s) { return bit_count(s.table->key_bits); }},
    {"table", "key_bytes", [](S s) { return number(s.table->key_bytes); }},
    {"table", "members", [](S s) { return match_spec_members(*s.table); }},
    {"table", "kind", [](S s) { return kKinds[static_cast<std::size_t>(s.table->kind)]; }},
    {"table", "MATCH", [](S s) { return kMatches[soft_match(*s.table)]; }},
    {"table", "field_count", [](S s) { return number(s.table->key.size()); }},
    {"table", "pair_count", [](S s) { return number(s.table->pairs.size()); }},
    {"table", "profile_index", [](S s) { return profile_index(*s.program, *s.table); }},
    {"table", "record_size", [](S s) { return word(s.table->keyed() ? "sizeof(Record)" : "0"); }},
    {"table", "key_bits", [](S s) { return number(s.table->key_bits); }},
    {"table", "key", [](S s) { return word(s.table->keyed() ? "key" : "nullptr"); }},
    {"table", "pairs", [](S s) { return word(s.table->indirect() ? "nullptr" : "pairs"); }},
    {"table", "ageing", [](S s) { return word(s.table->idle_time ? "true" : "false"); }},
    {"table", "action_data",
     [](S s) {
       return s.table->profile ? hex32(s.table->profile->action_data_handle) : word("0");
     }},
    {"table", "compared", [](S s) { return compared_bytes(*s.table); }},
    {"table", "compared_array",
     [](S s) { return is_partial(*s.table) ? "compared_" + s.table->name : word("nullptr"); }},
    {"field", "name", [](S s) { return s.field->name; }},
    {"field", "companion", [](S s) { return companion(*s.field); }},
    {"field", "offset", [](S s) { return number(s.field->offset); }},
    {"field", "storage", [](S s) { return number(s.field->storage_bytes); }},
    {"field", "bytes", [](S s) { return number(s.field->bytes); }},
    {"field", "match", [](S s) { return kKinds[static_cast<std::size_t>(s.field->match) + 1]; }},
    {"field", "MATCH", [](S s) { return kMatches[static_cast<std::size_t>(s.field->match)]; }},
    {"pair", "action_handle", [](S s) { return hex32(s.pair->handle); }},
    {"pair", "as_default", [](S s) { return word(s.pair->as_default ? "true" : "false"); }},
    {"pair", "resource_rows", [](S s) { return resource_rows(*s.pair); }},
    {"pair", "resource_count", [](S s) { return number(resource_count(*s.pair)); }},
    {"member", "action_handle", [](S s) { return hex32(s.member->handle); }},
    {"action", "value", [](S s) { return number(s.action->value); }},
    {"action", "data_bits", [](S s) { return number(s.action->data_bits); }},
    {"action", "data_bytes", [](S s) { return number(s.action->data_bytes); }},
    {"action", "param_count", [](S s) { return number(s.action->params.size()); }},
    {"param", "param", [](S s) { return s.param->name; }},
    {"param", "offset", [](S s) { return number(s.param->offset); }},
    {"param", "storage", [](S s) { return number(s.param->storage_bytes); }},
    {"param", "width", [](S s) { return number(s.param->width); }},
    {"param", "bytes", [](S s) { return number(s.param->bytes); }},
    {"param", "cells", [](S s) { return cells(*s.param); }},
    {"field", "field", [](S s) { return s.field->width_name; }},
    {"field", "width", [](S s) { return number(s.field->width); }},
    {"action", "action", [](S s) { return s.action->name; }},
    {"action", "action_spec",
     [](S s) { return type_tag(action_spec_type(*s.program, *s.action)); }},
    {"action", "members", [](S s) { return action_spec_members(*s.action); }},
    {"profile", "profile", [](S s) { return s.profile->name; }},
    {"profile", "action_data", [](S s) { return hex32(s.profile->action_data_handle); }},
    {"profile", "selector", [](S s) { return hex32(s.profile->selector_handle); }},
    {"profile", "index", [](S s) { return number(index_of(*s.program, *s.profile)); }},
    {"profile", "action_count", [](S s) { return number(s.profile->actions.size()); }},
    {"profile", "action_texts", [](S s) { return action_texts(*s.profile); }},
    {"counter", "counter", [](S s) { return s.resource->name; }},
    {"meter", "meter", [](S s) { return s.resource->name; }},
    {"meter", "rate_unit", [](S s) { return rate_unit(*s.resource); }},
    {"meter", "meter_spec", [](S s) { return meter_spec(*s.resource); }},
    {"register", "register", [](S s) { return s.resource->name; }},
    {"register", "width", [](S s) { return number(s.resource->width); }},
    {"register", "value_type", [](S s) { return value_type(*s.resource); }},
    {"resource", "handle", [](S s) { return hex32(s.resource->handle); }},
    {"resource", "table_handle", table_handle},
    {"resource", "owner", [](S s) { return s.resource->table ? table_handle(s) : word("0"); }},
    {"hash", "hash", [](S s) { return s.hash->name; }},
    {"hash", "handle", [](S s) { return hex32(s.hash->handle); }},
    {"hash", "field_list", [](S s) { return hex32(s.hash->field_list_handle); }},
    {"hash", "algorithm", [](S s) { return hex32(s.program->hash_algorithm); }},
    {"hash", "field_count", [](S s) { return number(s.hash->field_count); }},
    {"digest", "size", [](S s) { return number(s.digest->size); }},
    {"digest", "field_count", [](S s) { return number(s.digest->fields.size()); }},
    {"digest_field", "name", [](S s) { return s.digest_field->name; }},
    {"digest_field", "offset", [](S s) { return number(s.digest_field->offset); }},
    {"digest_field", "bytes", [](S s) { return number(s.digest_field->bytes); }},
    {"packet_field", "name", [](S s) { return s.packet_field->name; }},
    {"packet_field", "offset", [](S s) { return number(s.packet_field->offset); }},
    {"packet_field", "bytes", [](S s) { return number(s.packet_field->bytes); }},
    {"packet_field", "captured_at",
     [](S s) { return captured_at(*s.program->snapshots, *s.packet_field); }},
    {"digest", "digest", [](S s) { return s.digest->name; }},
    {"digest", "handle", [](S s) { return hex32(s.digest->handle); }},
    {"value_set", "value_set", [](S s) { return s.value_set->name; }},
    {"value_set", "handle", [](S s) { return hex32(s.value_set->handle); }},
    {"layout", "layout", [](S s) { return s.layout->name; }},
    {"layout", "trigger",
     [](S s) { return type_tag(snapshot_trigger_type(*s.program, *s.layout)); }},
    {"layout", "members", [](S s) { return trigger_members(*s.program->snapshots, *s.layout); }},
};

// --- Conditions -----------------------------------------------------------------------------

const Condition kConditions[] = {
    {"program", "snapshots", [](S s) { return s.program->snapshots.has_value(); }},
    {"table", "keyed", [](S s) { return s.table->keyed(); }},
    {"table", "prioritized", [](S s) { return s.table->has_priority(); }},
    {"table", "ageing", [](S s) { return s.table->idle_time; }},
    {"table", "indirect", [](S s) { return s.table->indirect(); }},
    {"table", "partial", [](S s) { return is_partial(*s.table); }},
    {"action", "parameters", [](S s) { return s.action->has_params(); }},
    {"pair", "metered", [](S s) { return s.pair->takes_meter_spec(Operation::kAdd); }},
    {"pair", "resources", [](S s) { return resource_count(*s.pair) != 0; }},
    {"default", "metered", [](S s) { return s.pair->takes_meter_spec(Operation::kDefault); }},
    {"resource", "direct", [](S s) { return s.resource->direct(); }},
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

const Placeholder *find_placeholder(const Kinds &kinds, std::string_view name) {
  return find_in_reach(kPlaceholders, kinds, name);
}

const Condition *find_condition(const Kinds &kinds, std::string_view name) {
  return find_in_reach(kConditions, kinds, name);
}

}  // namespace pdgen
