// Reads the program's name and its objects other than tables.
#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "pdgen/load/load_sections.hpp"

namespace pdgen {

namespace {

constexpr std::uint32_t kAnyNumber = 0xffffffff;
constexpr std::uint32_t kMostDigestBytes = 0xffff;

// --- Actions --------------------------------------------------------------------------------

Param read_param(const TomlValue &value, const std::string &owner, NameScope &names,
                 Diagnostics &diagnostics) {
  RowReader row(value, {"actions.params", "parameter", "name", owner}, diagnostics);
  Param param;
  row.name("name", names, param);
  param.width = row.number("width", 1, 32).value_or(0);
  param.storage_bytes = read_storage_bytes(row, param.width);
  param.bytes = whole_bytes(param.width);
  if (const auto hint = row.optional_choice("hint", {"mac", "v4addr", "vport"})) {
    constexpr Hint kHints[] = {Hint::kMac, Hint::kV4Addr, Hint::kVport};
    param.hint = kHints[*hint];
  }
  for (Word &word : row.optional_identifiers("index_of")) {
    param.index_of.push_back({std::move(word.text), std::move(word.place), nullptr});
  }
  if (param.is_index() && param.width != 32) {
    row.report("width", fmt::format("parameter {} names a cell, so it has 32 bits, not {}",
                                    param.name, param.width));
  }
  return param;
}

Action read_action(const TomlValue &value, NameScope &names, Diagnostics &diagnostics) {
  RowReader row(value, {"actions", "action", "name", ""}, diagnostics);
  Action action;
  row.name("name", names, action);
  NameScope param_names;
  for (const TomlValue *param : row.optional_rows("params")) {
    action.params.push_back(read_param(*param, row.what(), param_names, diagnostics));
  }
  action.value = row.number("value", 0, kAnyNumber - 1).value_or(kAnyNumber);
  return action;
}

// The values of an enumeration run from 0 without a gap. A value that could not be read comes last
// and hides what follows it.
void check_values(const std::vector<Action> &by_value, Diagnostics &diagnostics) {
  for (std::size_t i = 0; i < by_value.size(); ++i) {
    const Action &action = by_value[i];
    if (action.value == kAnyNumber) return;
    const std::uint32_t before = i == 0 ? 0 : by_value[i - 1].value;
    const std::uint32_t next = i == 0 ? 0 : before + 1;
    if (i > 0 && action.value == before) {
      diagnostics.report(action.place, "actions.value",
                         fmt::format("action {} has the value {}, which is that of action {}",
                                     action.name, action.value, by_value[i - 1].name));
    } else if (action.value != next) {
      diagnostics.report(action.place, "actions.value",
                         fmt::format("action {} has the value {}, but the next free one is {}",
                                     action.name, action.value, next));
    }
  }
}

// --- Profiles -------------------------------------------------------------------------------

Profile read_profile(const TomlValue &value, NameScope &names, LoadContext &context) {
  RowReader row(value, {"profile", "profile", "name", ""}, context.diagnostics);
  Profile profile;
  row.name("name", names, profile);
  profile.action_data_handle = row.handle("action_data_handle", HandleKind::kActionData,
                                          context.handles, "action data of " + row.what());
  profile.selector_handle = row.handle("selector_handle", HandleKind::kSelector, context.handles,
                                       "selector of " + row.what());
  NameScope action_names;
  for (const TomlValue *action : row.rows("actions")) {
    RowReader member(*action, {"profile.actions", "action", "action", row.what()},
                     context.diagnostics);
    ProfileAction pair;
    pair.action = member.reference<Action>("action");
    pair.place = pair.action.place;
    action_names.add(pair.action.name, pair.place, member.path("action"), context.diagnostics);
    pair.handle = member.handle("handle", HandleKind::kActionFunction, context.handles);
    profile.actions.push_back(std::move(pair));
  }
  return profile;
}

// --- Stateful resources ---------------------------------------------------------------------

void read_register_width(RowReader &row, Resource &resource) {
  const auto width = row.number("width", 0, kAnyNumber);
  resource.width = width.value_or(0);
  if (width && *width != 1 && *width != 8 && *width != 16 && *width != 32) {
    row.report("width", fmt::format("{} bits of {} must be 1, 8, 16 or 32", *width, row.what()));
  }
}

Resource read_resource(RowReader &row, ResourceKind kind, HandleKind handle_kind, NameScope &names,
                       LoadContext &context) {
  Resource resource;
  resource.kind = kind;
  row.name("name", names, resource);
  resource.handle = row.handle("handle", handle_kind, context.handles);
  if (kind == ResourceKind::kRegister) {
    read_register_width(row, resource);
  } else if (row.has("table")) {
    resource.table = row.reference<Table>("table");
  }
  if (kind == ResourceKind::kMeter) {
    const auto unit = row.choice("unit", {"bytes", "packets"});
    resource.unit = unit.value_or(0) == 0 ? MeterUnit::kBytes : MeterUnit::kPackets;
  }
  return resource;
}

// --- Digests --------------------------------------------------------------------------------

DigestField read_digest_field(const TomlValue &value, const std::string &owner, NameScope &names,
                              Diagnostics &diagnostics) {
  RowReader row(value, {"digest.fields", "field", "name", owner}, diagnostics);
  DigestField field;
  row.name("name", names, field);
  field.offset = row.number("offset", 0, kMostDigestBytes).value_or(0);
  field.bytes = row.number("bytes", 1, kMostDigestBytes).value_or(0);
  return field;
}

void check_digest_layout(const Digest &digest, Diagnostics &diagnostics) {
  std::vector<const DigestField *> by_offset;
  for (const DigestField &field : digest.fields) by_offset.push_back(&field);
  std::stable_sort(by_offset.begin(), by_offset.end(),
                   [](const auto *a, const auto *b) { return a->offset < b->offset; });
  std::uint64_t end = 0;
  const DigestField *before = nullptr;
  for (const DigestField *field : by_offset) {
    if (field->offset < end) {
      diagnostics.report(field->place, "digest.fields.offset",
                         fmt::format("field {} of digest {} begins at byte {} inside field {}, "
                                     "which ends before byte {}",
                                     field->name, digest.name, field->offset, before->name, end));
    }
    const std::uint64_t field_end = std::uint64_t{field->offset} + field->bytes;
    if (digest.size > 0 && field_end > digest.size) {
      diagnostics.report(field->place, "digest.fields.bytes",
                         fmt::format("field {} of digest {} ends at byte {}, beyond the {} bytes "
                                     "of an entry",
                                     field->name, digest.name, field_end, digest.size));
    }
    if (field_end >= end) before = field;
    end = std::max(end, field_end);
  }
}

Digest read_digest(const TomlValue &value, NameScope &names, LoadContext &context) {
  RowReader row(value, {"digest", "digest", "name", ""}, context.diagnostics);
  Digest digest;
  row.name("name", names, digest);
  digest.handle = row.handle("handle", HandleKind::kFieldList, context.handles);
  digest.size = row.number("size", 1, kMostDigestBytes).value_or(0);
  NameScope field_names;
  for (const TomlValue *field : row.rows("fields")) {
    digest.fields.push_back(
        read_digest_field(*field, row.what(), field_names, context.diagnostics));
  }
  check_digest_layout(digest, context.diagnostics);
  return digest;
}

}  // namespace

void read_program(RowReader &file, LoadContext &context) {
  context.program.name = file.identifier("name");
  context.program.place = file.place("name");
  if (!file.has("routes")) return;
  RowReader row(*file.optional_value("routes"), {"routes", "routes", "", ""}, context.diagnostics);
  Routes routes{row.place("action"), row.reference<Action>("action"), {}};
  for (Word &word : row.identifiers("tables")) {
    routes.tables.push_back({std::move(word.text), std::move(word.place), nullptr});
  }
  context.program.routes = std::move(routes);
}

void read_actions(RowReader &file, LoadContext &context) {
  std::vector<Action> &actions = context.program.actions;
  NameScope names;
  for (const TomlValue *action : file.rows("actions")) {
    actions.push_back(read_action(*action, names, context.diagnostics));
  }
  std::stable_sort(actions.begin(), actions.end(),
                   [](const Action &a, const Action &b) { return a.value < b.value; });
  check_values(actions, context.diagnostics);
}

void read_profiles(RowReader &file, LoadContext &context) {
  NameScope names;
  for (const TomlValue *profile : file.rows("profile")) {
    context.program.profiles.push_back(read_profile(*profile, names, context));
  }
}

void read_stateful(RowReader &file, LoadContext &context) {
  NameScope names;  // one for all kinds: resource items name them without telling the kind
  const auto read_list = [&](const char *key, const char *kind_text, ResourceKind kind,
                             HandleKind handle_kind, std::vector<Resource> &list) {
    for (const TomlValue *value : file.optional_rows(key)) {
      RowReader row(*value, {key, kind_text, "name", ""}, context.diagnostics);
      list.push_back(read_resource(row, kind, handle_kind, names, context));
    }
  };
  Program &program = context.program;
  read_list("counters", "counter", ResourceKind::kCounter, HandleKind::kCounter, program.counters);
  read_list("meters", "meter", ResourceKind::kMeter, HandleKind::kMeter, program.meters);
  read_list("registers", "register", ResourceKind::kRegister, HandleKind::kRegister,
            program.registers);
}

void read_hashes(RowReader &file, LoadContext &context) {
  context.program.hash_algorithm =
      file.handle("algorithm", HandleKind::kAlgorithm, context.handles, "algorithm of the hashes");
  NameScope names;
  for (const TomlValue *value : file.rows("hashes")) {
    RowReader row(*value, {"hashes", "hash", "name", ""}, context.diagnostics);
    Hash hash;
    row.name("name", names, hash);
    hash.handle = row.handle("handle", HandleKind::kCalculation, context.handles);
    hash.field_list_handle =
        row.handle("list", HandleKind::kFieldList, context.handles, "field list of " + row.what());
    hash.field_count = row.number("fields", 1, kAnyNumber).value_or(0);
    context.program.hashes.push_back(std::move(hash));
  }
}

void read_digests(RowReader &file, LoadContext &context) {
  NameScope names;
  for (const TomlValue *digest : file.rows("digest")) {
    context.program.digests.push_back(read_digest(*digest, names, context));
  }
}

void read_value_sets(RowReader &file, LoadContext &context) {
  NameScope names;
  for (const TomlValue *value : file.rows("value_sets")) {
    RowReader row(*value, {"value_sets", "value set", "name", ""}, context.diagnostics);
    ValueSet set;
    row.name("name", names, set);
    set.handle = row.handle("handle", HandleKind::kAny, context.handles);
    context.program.value_sets.push_back(std::move(set));
  }
}

}  // namespace pdgen
