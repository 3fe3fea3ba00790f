// Reads the program's name, its objects other than tables, what tools show, and the layouts of
// snapshots.
#include <algorithm>

#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

constexpr unsigned kMostDigestBytes = 0xffff;

// --- Actions --------------------------------------------------------------------------------

void read_param(RowReader &row, Param &param) {
  row.name(param);
  row.number("width", param.width, 1, 32);
  read_sizes(row, param.width, param.storage_bytes, param.bytes);
  row.choice("hint", param.hint, kOptional, 1, 3);
  const Program &program = row.program();
  row.references("index_of", param.index_of, "counter or meter",
                 row.rows_of(program.counters, program.meters), kOptional);
  if (param.is_index() && param.width != 32) {
    row.report("width", "parameter {} names a cell, so it has 32 bits, not {}", param.name,
               param.width);
  }
}

void read_action(RowReader &row, Action &action) {
  row.name(action);
  row.number("value", action.value);
  row.rows("params", "parameter", "name", action.params, read_param, kOptional);
}

// --- Profiles -------------------------------------------------------------------------------

void read_profile_action(RowReader &row, ProfileAction &pair) {
  row.name(pair, pair.action, "action", row.program().actions);
  row.handle("handle", pair.handle, HandleKind::kActionFunction);
}

void read_profile(RowReader &row, Profile &profile) {
  row.name(profile);
  row.handle("action_data_handle", profile.action_data_handle, HandleKind::kActionData,
             "action data of " + row.what());
  row.handle("selector_handle", profile.selector_handle, HandleKind::kSelector,
             "selector of " + row.what());
  row.number("members", profile.most_members, 1, kAnyNumber, kOptional);
  row.number("groups", profile.most_groups, 1, kAnyNumber, kOptional);
  row.rows("actions", "action", "action", profile.actions, read_profile_action);
}

// --- Stateful resources ---------------------------------------------------------------------

// What counters and meters have.
void read_resource(RowReader &row, Resource &resource, HandleKind kind) {
  row.name(resource);
  row.handle("handle", resource.handle, kind);
  row.reference("table", resource.table, "table", row.rows_of(row.program().tables), kOptional);
}

void read_counter(RowReader &row, Resource &counter) {
  read_resource(row, counter, HandleKind::kCounter);
}

void read_meter(RowReader &row, Resource &meter) {
  meter.kind = ResourceKind::kMeter;
  read_resource(row, meter, HandleKind::kMeter);
  row.choice("unit", meter.unit);
}

void read_register(RowReader &row, Resource &reg) {
  reg.kind = ResourceKind::kRegister;
  row.name(reg);
  row.handle("handle", reg.handle, HandleKind::kRegister);
  row.number_of("width", reg.width, {1, 8, 16, 32});
}

// --- Hashes, digests, value sets ------------------------------------------------------------

void read_hash(RowReader &row, Hash &hash) {
  row.name(hash);
  row.handle("handle", hash.handle, HandleKind::kCalculation);
  row.handle("list", hash.field_list_handle, HandleKind::kFieldList, "field list of " + row.what());
  row.number("fields", hash.field_count, 1);
}

void read_digest_field(RowReader &row, PacketField &field) {
  row.name(field);
  row.number("offset", field.offset, 0, kMostDigestBytes);
  row.number("bytes", field.bytes, 1, kMostDigestBytes);
}

void read_digest(RowReader &row, Digest &digest) {
  row.name(digest);
  row.handle("handle", digest.handle, HandleKind::kFieldList);
  row.number("size", digest.size, 1, kMostDigestBytes);
  row.rows("fields", "field", "name", digest.fields, read_digest_field);
}

void read_value_set(RowReader &row, ValueSet &set) {
  row.name(set);
  row.handle("handle", set.handle, HandleKind::kAny);
}

void read_routes(RowReader &row, Routes &routes) {
  const Program &program = row.program();
  row.reference("action", routes.action, "action", row.rows_of(program.actions));
  row.references("tables", routes.tables, "table", row.rows_of(program.tables));
  routes.place = routes.action.place;
}

void read_acl(RowReader &row, Acl &acl) {
  row.name(acl, acl.table, "table", row.program().tables);
  acl.fields.resize(std::size(kAclFields));
  for (std::size_t i = 0; i < acl.fields.size(); ++i) {
    const auto keys = [&acl] {
      return acl.table ? RowReader::rows_of(acl.table->key)() : std::vector<Candidate>{};
    };
    row.reference(kAclFields[i].key, acl.fields[i], "key field of the table", keys,
                  kAclFields[i].key == "flags" ? kOptional : kRequired);
  }
}

// --- Field hints ----------------------------------------------------------------------------

bool begins(std::string_view field, std::string_view name) { return field.starts_with(name); }
bool ends(std::string_view field, std::string_view name) { return field.ends_with(name); }

RowReader::Candidates key_fields(const Program &program) {
  return [&program] {
    std::vector<Candidate> fields;
    for (const Table &table : program.tables) add_rows(fields, table.key);
    return fields;
  };
}

RowReader::Candidates parameters(const Program &program) {
  return [&program] {
    std::vector<Candidate> params;
    for (const Action &action : program.actions) add_rows(params, action.params);
    return params;
  };
}

// What may hold an address though no schema says so.
RowReader::Candidates bare_fields(const Program &program) {
  return [&program] {
    std::vector<Candidate> fields = parameters(program)();
    for (const Digest &digest : program.digests) add_rows(fields, digest.fields);
    if (program.snapshots) {
      for (const SnapshotLayout &layout : program.snapshots->layouts)
        add_rows(fields, layout.fields);
      add_rows(fields, program.snapshots->capture);
    }
    return fields;
  };
}

RowReader::Candidates all_fields(const Program &program) {
  return [&program] {
    std::vector<Candidate> fields = key_fields(program)();
    std::ranges::move(bare_fields(program)(), std::back_inserter(fields));
    return fields;
  };
}

void read_hint(RowReader &row, FieldHint &hint) {
  const RowReader::Candidates fields = key_fields(row.program());
  hint.place = row.place("hint");
  row.choice("hint", hint.hint, kRequired, 1);
  row.names("fields", hint.fields, "key field of any table", fields);
  row.names("suffixes", hint.suffixes, "ending of a key field of any table", fields, ends);
  row.number("width", hint.width, 1, 128, kOptional);
  if (!row.has("fields") && !row.has("suffixes") && !row.has("width")) {
    row.report("hint", "{} needs fields, suffixes or a width to go with", row.what());
  }
  if (hint.hint == Hint::kMac && row.has("suffixes") && hint.suffixes.size() != 2) {
    row.report("suffixes",
               "{} needs two suffixes, of the upper and of the lower half of an address",
               row.what());
  }
}

// --- Joins ----------------------------------------------------------------------------------

void read_join(RowReader &row, Join &join) {
  const Program &program = row.program();
  row.reference("field", join.field, "key field of any table", key_fields(program));
  join.place = join.field.place;
  row.names("params", join.params, "parameter of any action", parameters(program), Reference().fits,
            kRequired);
  row.references("actions", join.actions, "action", row.rows_of(program.actions), kOptional);
  row.references("tables", join.tables, "table", row.rows_of(program.tables), kOptional);
}

// --- Labels ---------------------------------------------------------------------------------

constexpr unsigned kMostDigits = 8;
constexpr unsigned kMostBlanks = 80;

void read_number_texts(RowReader &row, LabelItem &item) {
  row.number("texts_mask", item.texts_mask, 1, kAnyNumber, kOptional, kBits);
  if (row.has("texts_mask") && !row.has("texts")) {
    row.report("texts_mask", "{} has a texts_mask but no texts", row.what());
  }
  const auto read_text = [&](RowReader &reader, LabelText &text) {
    text.place = reader.place("value");
    reader.text("text", text.text);
    if (!reader.number("value", text.value, 0, kAnyNumber, kRequired, kBits)) return;
    if (std::ranges::count(item.texts, text.value, &LabelText::value) == 1) return;
    reader.report("value", "{} has two texts for {}", row.what(), hex(text.value));
  };
  row.rows("texts", "text", "", item.texts, read_text, kOptional);
}

void read_item(RowReader &row, const Ref<Table> &table, LabelItem &item) {
  item.place = row.place("kind");
  if (!row.choice("kind", item.kind)) return row.ignore_other_keys();
  const auto read_field = [&](const char *key, Ref<KeyField> &field) {
    row.reference(key, field, "key field of the table", [&table] {
      return table ? RowReader::rows_of(table->key)() : std::vector<Candidate>{};
    });
  };
  if (item.kind == LabelKind::kMac) {
    read_field("oui", item.oui);
    read_field("station", item.station);
  } else {
    read_field("field", item.field);
  }
  if (item.kind == LabelKind::kFlag) {
    row.number("bit", item.bit, 1, kAnyNumber, kOptional, kBits);
    row.number("after", item.after, 1, kMostBlanks, kOptional);
  }
  if (item.kind == LabelKind::kNumber) read_number_texts(row, item);
  if (item.is_number()) {
    row.text("format", item.format);
    row.number("digits", item.digits, 1, kMostDigits);
  } else if (item.kind != LabelKind::kSilent) {
    row.text("label", item.label);
  }
}

void read_label(RowReader &row, Label &label) {
  row.name(label, label.table, "table", row.program().tables);
  row.rows("items", "item", "field", label.items,
           [&](RowReader &reader, LabelItem &item) { read_item(reader, label.table, item); });
}

// --- Snapshots ------------------------------------------------------------------------------

// Fields follow one another; those of a trigger are integers.
void read_snapshot_fields(RowReader &row, const char *key, bool is_trigger,
                          std::vector<PacketField> &fields) {
  unsigned end = 0;
  row.rows(key, "field", "name", fields, [&](RowReader &reader, PacketField &field) {
    reader.name(field);
    if (field.name == kPadding) {
      reader.report("name", "{} is the name of a record's padding", field.name);
    }
    field.offset = end;
    if (is_trigger) reader.number_of("bytes", field.bytes, {1, 2, 4});
    if (!is_trigger) reader.number("bytes", field.bytes, 1, 0xffff);
    end += field.bytes;
  });
}

void read_layout(RowReader &row, SnapshotLayout &layout) {
  row.name(layout);
  if (!layout.name.empty() && layout.name != "ingress" && layout.name != "egress") {
    row.report("name", "\"{}\" of {} must be one of ingress, egress", layout.name, row.what());
  }
  read_snapshot_fields(row, "fields", true, layout.fields);
}

}  // namespace

void read_program(RowReader &file) {
  Program &program = file.program();
  file.identifier("name", program.name);
  program.place = file.place("name");
  file.row("routes", program.routes, read_routes);
  file.rows("acl", "rule table", "table", program.acls, read_acl, kOptional);
}

void read_actions(RowReader &file) {
  std::vector<Action> &actions = file.program().actions;
  file.rows("actions", "action", "name", actions, read_action);
  std::ranges::stable_sort(actions, {}, &Action::value);
}

void read_profiles(RowReader &file) {
  file.rows("profile", "profile", "name", file.program().profiles, read_profile);
}

void read_stateful(RowReader &file) {
  NameScope names;  // one for all kinds: resource items name them without the kind
  Program &program = file.program();
  file.rows("counters", "counter", "name", program.counters, read_counter, kOptional, &names);
  file.rows("meters", "meter", "name", program.meters, read_meter, kOptional, &names);
  file.rows("registers", "register", "name", program.registers, read_register, kOptional, &names);
}

void read_hashes(RowReader &file) {
  file.handle("algorithm", file.program().hash_algorithm, HandleKind::kAlgorithm,
              "algorithm of the hashes");
  file.rows("hashes", "hash", "name", file.program().hashes, read_hash);
}

void read_digests(RowReader &file) {
  file.rows("digest", "digest", "name", file.program().digests, read_digest);
}

void read_value_sets(RowReader &file) {
  file.rows("value_sets", "value set", "name", file.program().value_sets, read_value_set);
}

void read_fields(RowReader &file) {
  FieldFacts &facts = file.program().field_facts;
  file.names("instance_prefixes", facts.instance_prefixes, "beginning of a key field of any table",
             key_fields(file.program()), begins);
  file.names("v4_addresses", facts.v4_addresses,
             "parameter of an action or field of a digest or snapshot",
             bare_fields(file.program()));
  file.names("protocols", facts.protocols, "field or parameter", all_fields(file.program()));
  file.names("services", facts.services, "field or parameter", all_fields(file.program()));
  file.rows("hints", "hint", "hint", facts.hints, read_hint, kOptional);
  file.rows("joins", "join", "field", facts.joins, read_join, kOptional);
}

void read_labels(RowReader &file) {
  file.rows("label", "label", "table", file.program().labels, read_label);
}

void read_snapshots(RowReader &file) {
  Snapshots &snapshots = file.program().snapshots.emplace();
  file.number("record_bytes", snapshots.record_bytes, 1, 0xffff);
  file.number("capture_limit", snapshots.capture_limit, 1, 0xffff);
  file.rows("layout", "layout", "name", snapshots.layouts, read_layout);
  read_snapshot_fields(file, "capture", false, snapshots.capture);
}

}  // namespace pdgen
