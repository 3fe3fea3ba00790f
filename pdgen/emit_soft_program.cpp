// The program as the soft SDK learns it (soft_program.h).
#include <fmt/format.h>

#include "pdgen/emit.hpp"

namespace pdgen {

namespace {

// One constant array of rows, or nothing; the reference that stands for it in another row.
class Arrays {
 public:
  std::string add(const std::string &type, const std::string &name, const std::string &rows) {
    if (rows.empty()) return "nullptr";
    text_ += expand("const $0 $1[] = {\n$2};\n\n", {type, name, rows});
    return name;
  }
  const std::string &text() const { return text_; }

 private:
  std::string text_;
};

std::string action_row(const Action &action, std::uint32_t handle, bool may_be_default) {
  return fmt::format("    {{\"{}\", {}, {}, {}, {}}},\n", action.name, hex32(handle),
                     action.data_bits, action.data_bytes, may_be_default);
}

// The bits of the key that packets are compared in; nothing when they are all of them.
std::string compared_bytes(const Table &table) {
  std::vector<unsigned> bytes(table.key_bytes, 0);
  bool partial = false;
  for (const KeyField &field : table.key) {
    partial |= field.partial;
    for (unsigned i = 0; i < field.bytes; ++i) {
      const unsigned below = 8 * (field.bytes - 1 - i);
      bytes[field.offset + i] =
          field.wide() ? field.wide_key_bits[i] : (field.key_bits >> below & 0xff);
    }
  }
  if (!partial) return "";
  constexpr std::size_t kLine = 16;
  std::string rows;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool last = i % kLine == kLine - 1 || i + 1 == bytes.size();
    rows += fmt::format("{}{:#04x},{}", i % kLine == 0 ? "    " : " ", bytes[i], last ? "\n" : "");
  }
  return rows;
}

std::string table_rows(const Program &program, Arrays &arrays) {
  std::string rows;
  for (const Table &table : program.tables) {
    std::string fields;
    for (const KeyField &field : table.key) {
      fields += fmt::format("    {{\"{}\", {}, {}, {}, {}}},\n", field.name,
                            static_cast<int>(field.match), field.width, field.offset, field.bytes);
    }
    std::string actions;
    for (const Pair &pair : table.pairs) {
      actions += action_row(*pair.action, pair.handle, pair.as_default);
    }
    const int kinds[] = {0, 0, 1, 2};  // keyless tables count as exact
    rows += fmt::format(
        "    {{\"{}\", {}, {}, {}, {}, {}, {},\n     {}, {}, {}, {}, {}}},\n", table.name,
        hex32(table.handle), kinds[static_cast<int>(table.kind)], table.key_bits, table.key_bytes,
        arrays.add("soft_key_field_t", "key_" + table.name, fields), table.key.size(),
        arrays.add("soft_action_t", "actions_" + table.name, actions), table.pairs.size(),
        table.profile ? hex32(table.profile->action_data_handle) : "0", table.idle_time,
        arrays.add("uint8_t", "compared_" + table.name, compared_bytes(table)));
  }
  return rows;
}

std::string profile_rows(const Program &program, Arrays &arrays) {
  std::string rows;
  for (const Profile &profile : program.profiles) {
    std::string actions;
    for (const ProfileAction &pair : profile.actions) {
      actions += action_row(*pair.action, pair.handle, true);
    }
    rows += fmt::format("    {{\"{}\", {}, {}, {}, {}}},\n", profile.name,
                        hex32(profile.action_data_handle), hex32(profile.selector_handle),
                        arrays.add("soft_action_t", "actions_" + profile.name, actions),
                        profile.actions.size());
  }
  return rows;
}

std::string resource_rows(const std::vector<Resource> &resources) {
  std::string rows;
  for (const Resource &resource : resources) {
    const std::string table = resource.direct() ? hex32(resource.table->handle) : "0";
    rows += fmt::format("    {{\"{}\", {}", resource.name, hex32(resource.handle));
    if (resource.kind == ResourceKind::kRegister) {
      rows += fmt::format(", {}", resource.width);
    } else {
      rows += ", " + table;
    }
    if (resource.kind == ResourceKind::kMeter) {
      rows += fmt::format(", {}", static_cast<int>(resource.unit));
    }
    rows += "},\n";
  }
  return rows;
}

std::string hash_rows(const Program &program) {
  std::string rows;
  for (const Hash &hash : program.hashes) {
    rows +=
        fmt::format("    {{\"{}\", {}, {}, {}, {}}},\n", hash.name, hex32(hash.handle),
                    hex32(hash.field_list_handle), hex32(program.hash_algorithm), hash.field_count);
  }
  return rows;
}

std::string digest_rows(const Program &program, Arrays &arrays) {
  std::string rows;
  for (const Digest &digest : program.digests) {
    std::string fields;
    for (const DigestField &field : digest.fields) {
      fields += fmt::format("    {{\"{}\", {}, {}}},\n", field.name, field.offset, field.bytes);
    }
    rows += fmt::format(
        "    {{\"{}\", {}, {}, {}, {}}},\n", digest.name, hex32(digest.handle), digest.size,
        arrays.add("soft_digest_field_t", "fields_" + digest.name, fields), digest.fields.size());
  }
  return rows;
}

std::string value_set_rows(const Program &program) {
  std::string rows;
  for (const ValueSet &set : program.value_sets) {
    rows += fmt::format("    {{\"{}\", {}}},\n", set.name, hex32(set.handle));
  }
  return rows;
}

// Where a field of a packet lies in a capture: under its own name, or, a part of a longer field,
// among the bytes of that one.
std::string captured_at(const Snapshots &snapshots, const SnapshotField &field) {
  for (const SnapshotField &captured : snapshots.capture) {
    if (captured.name == field.name && captured.bytes == field.bytes) {
      return fmt::format("{}", captured.offset);
    }
    if (!field.name.starts_with(captured.name + "_")) continue;
    const std::string part = field.name.substr(captured.name.size() + 1);
    if (part.size() != 1 || part[0] < '0' || part[0] > '9') continue;
    const unsigned at = static_cast<unsigned>(part[0] - '0') * field.bytes;
    if (at + field.bytes <= captured.bytes) return fmt::format("{}", captured.offset + at);
  }
  return "SOFT_NOT_CAPTURED";
}

std::string snapshot_layout(const Snapshots &snapshots, const std::string &name,
                            const std::vector<SnapshotField> &fields, Arrays &arrays) {
  std::string rows;
  for (const SnapshotField &field : fields) {
    rows += fmt::format("    {{\"{}\", {}, {}, {}}},\n", field.name, field.offset, field.bytes,
                        captured_at(snapshots, field));
  }
  return fmt::format("{{{}, {}}}", arrays.add("soft_snapshot_field_t", "snapshot_" + name, rows),
                     fields.size());
}

std::string snapshot_members(const Program &program, Arrays &arrays) {
  if (!program.snapshots) return "0, {{nullptr, 0}, {nullptr, 0}}, {nullptr, 0}";
  const Snapshots &snapshots = *program.snapshots;
  std::vector<std::string> layouts;
  for (const char *direction : {"ingress", "egress"}) {
    const SnapshotLayout *layout = find_row(snapshots.layouts, direction);
    layouts.push_back(
        snapshot_layout(snapshots, direction,
                        layout == nullptr ? std::vector<SnapshotField>() : layout->fields, arrays));
  }
  return fmt::format("{}, {{{}}}, {}", snapshots.record_bytes, join(layouts, ", "),
                     snapshot_layout(snapshots, "capture", snapshots.capture, arrays));
}

}  // namespace

std::string emit_soft_program(const Program &program) {
  Arrays arrays;
  const auto list = [&](const char *type, const char *name, const std::string &rows,
                        std::size_t count) {
    return fmt::format("    {}, {},\n", arrays.add(type, name, rows), count);
  };
  std::string members = "    \"" + program.name + "\",\n";
  members += list("soft_table_t", "tables", table_rows(program, arrays), program.tables.size());
  members +=
      list("soft_profile_t", "profiles", profile_rows(program, arrays), program.profiles.size());
  members +=
      list("soft_counter_t", "counters", resource_rows(program.counters), program.counters.size());
  members += list("soft_meter_t", "meters", resource_rows(program.meters), program.meters.size());
  members += list("soft_register_t", "registers", resource_rows(program.registers),
                  program.registers.size());
  members += list("soft_hash_t", "hashes", hash_rows(program), program.hashes.size());
  members += list("soft_digest_t", "digests", digest_rows(program, arrays), program.digests.size());
  members +=
      list("soft_value_set_t", "value_sets", value_set_rows(program), program.value_sets.size());
  members += "    " + snapshot_members(program, arrays) + "};\n";
  return origin(program, "// ") +
         expand(
             "#include \"soft_program.h\"\n\nnamespace {\n\n$0}  // namespace\n\n"
             "extern \"C\" {\nextern const soft_program_t soft_program_$1;\n}\n\n"
             "const soft_program_t soft_program_$1 = {\n$2",
             {arrays.text(), program.name, members});
}

}  // namespace pdgen
