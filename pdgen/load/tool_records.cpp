// What tools see of records.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

constexpr unsigned kHalf = 24;

std::string notation_of(Hint hint, unsigned width) {
  switch (hint) {
    case Hint::kV4Addr:
      return width == 32 ? "ipv4" : "number";
    case Hint::kV6Addr:
      return width == 128 ? "ipv6" : "number";
    case Hint::kPort:
      return "port";
    case Hint::kVport:
      return "vport";
    default:
      return "number";
  }
}

// Takes the members one after another, then joins halves and names all fields.
class RecordBuilder {
 public:
  explicit RecordBuilder(const FieldFacts &facts) : facts_(facts) {
    for (const FieldHint &row : facts.hints) {
      if (row.hint == Hint::kMac && row.suffixes.size() == 2) halves_ = row.suffixes;
    }
  }

  // A value with its short name.
  void add(const ToolMember &member, Hint hint, std::string short_name, const Bits &key_bits,
           std::vector<std::string> cells = {}) {
    const bool is_v4 =
        std::ranges::find(facts_.v4_addresses, member.name) != facts_.v4_addresses.end();
    own_.push_back({.label = std::move(short_name),
                    .name = member.name,
                    .notation = notation_of(is_v4 ? Hint::kV4Addr : hint, member.width),
                    .width = member.width,
                    .key_bits = key_bits,
                    .parts = {record_.members.size()},
                    .cells = std::move(cells)});
    is_mac_.push_back(hint == Hint::kMac && member.width == kHalf);
    record_.members.push_back(member);
  }
  // The mask or prefix length of the value before.
  void add_companion(const ToolMember &member) {
    own_.back().match = member.role == RecordRole::kMask ? Match::kTernary : Match::kLpm;
    record_.members.push_back(member);
  }

  ToolRecord take(std::string name, std::string number, std::string size) {
    join_halves();
    name_apart();
    record_.name = std::move(name);
    record_.number = std::move(number);
    record_.size = std::move(size);
    return std::move(record_);
  }

 private:
  // The lower half that belongs to an upper one, or none.
  std::size_t other_half(std::size_t upper) const {
    if (halves_.empty() || !is_mac_[upper] || !own_[upper].name.ends_with(halves_[0])) return kNone;
    const std::string stem = stem_of(own_[upper].name);
    for (std::size_t i = 0; i < own_.size(); ++i) {
      const bool fits = is_mac_[i] && own_[i].match == own_[upper].match;
      if (fits && own_[i].name == stem + halves_[1]) return i;
    }
    return kNone;
  }
  std::string stem_of(const std::string &upper) const {
    return upper.substr(0, upper.size() - halves_[0].size());
  }

  void join_halves() {
    std::vector<std::size_t> pair_at(own_.size(), kNone);  // the upper half, by the half that leads
    std::vector<bool> is_half(own_.size());
    for (std::size_t upper = 0; upper < own_.size(); ++upper) {
      const std::size_t lower = other_half(upper);
      if (lower == kNone) continue;
      is_half[upper] = is_half[lower] = true;
      pair_at[std::min(upper, lower)] = upper;
    }
    for (std::size_t i = 0; i < own_.size(); ++i) {
      if (pair_at[i] != kNone) record_.fields.push_back(pair_of(pair_at[i]));
      if (!is_half[i]) record_.fields.push_back(own_[i]);
    }
    record_.shown = record_.fields.size();
    for (std::size_t i = 0; i < own_.size(); ++i) {
      if (is_half[i]) record_.fields.push_back(own_[i]);
    }
  }

  ToolField pair_of(std::size_t upper) const {
    const ToolField &high = own_[upper];
    const ToolField &low = own_[other_half(upper)];
    const std::string stem = stem_of(high.name);
    const std::string label = high.label.substr(0, high.label.size() - halves_[0].size());
    return {.label = label,
            .name = stem,
            .notation = "mac",
            .match = high.match,
            .width = 2 * kHalf,
            .key_bits = {0, high.key_bits.lower << kHalf | low.key_bits.lower},
            .parts = {high.parts[0], low.parts[0]},
            .cells = {}};
  }

  // Fields that share a name take all their words, until no two do.
  void name_apart() {
    for (bool changed = true; changed;) {
      changed = false;
      std::vector<std::string> labels;
      for (const ToolField &field : record_.fields) labels.push_back(field.label);
      for (std::size_t i = 0; i < labels.size(); ++i) {
        if (std::ranges::count(labels, labels[i]) == 1) continue;
        record_.fields[i].label = long_name(record_.fields[i].name);
        changed = changed || record_.fields[i].label != labels[i];
      }
    }
  }

  static constexpr std::size_t kNone = ~std::size_t{0};

  const FieldFacts &facts_;
  std::vector<std::string> halves_;  // the endings of their names
  ToolRecord record_;
  std::vector<ToolField> own_;
  std::vector<bool> is_mac_;  // by own field: a half of an address
};

std::string offset_of(const std::string &type, std::string_view member) {
  return fmt::format("offsetof({}, {})", type, member);
}

Hint hint_by_name(const Program &program, const std::string &name, unsigned width) {
  const FieldHint *hint = hint_of(name, width, program.field_facts);
  return hint == nullptr ? Hint::kNone : hint->hint;
}

// The bits of a field that no schema describes: those that tables match under its name, 24 of half
// a MAC address, otherwise all of its bytes.
unsigned width_of(const Program &program, const std::string &name, unsigned bytes) {
  const unsigned all = 8 * bytes;
  for (const Table &table : program.tables) {
    if (const KeyField *field = find_row(table.key, name)) return std::min(all, field->width);
  }
  return hint_by_name(program, name, all) == Hint::kMac ? std::min(all, kHalf) : all;
}

void add_bytes(RecordBuilder &builder, const Program &program, const std::string &name,
               unsigned offset, unsigned bytes, bool is_bytes) {
  const unsigned width = width_of(program, name, bytes);
  builder.add({.name = name,
               .offset = std::to_string(offset),
               .storage = bytes,
               .width = width,
               .is_bytes = is_bytes},
              hint_by_name(program, name, width),
              short_name(name, program.field_facts.instance_prefixes), low_bits(width));
}

ToolRecord tool_record(const Program &program, const Table &table) {
  RecordBuilder builder(program.field_facts);
  const std::string type = table.keyed() ? match_spec_type(program, table) : "";
  for (const RecordField &field : table.record) {
    const ToolMember member = {.name = field.name,
                               .role = field.role,
                               .offset = offset_of(type, field.name),
                               .storage = field.storage_bytes,
                               .width = field.width,
                               .is_bytes = field.storage_bytes == 16};
    if (field.role == RecordRole::kValue) {
      builder.add(member, field.hint, field.cli_name, member_bits(table, field));
    } else {
      builder.add_companion(member);
    }
  }
  return builder.take(table.name, hex32(table.handle),
                      table.keyed() ? "sizeof(" + type + ")" : "0");
}

ToolRecord tool_record(const Program &program, const Action &action) {
  RecordBuilder builder(program.field_facts);
  const std::string type = action.has_params() ? action_spec_type(program, action) : "";
  for (const Param &param : action.params) {
    std::vector<std::string> cells;
    for (const Ref<Resource> &resource : param.index_of) cells.push_back(resource.name);
    builder.add({.name = param.name,
                 .offset = offset_of(type, param_member(param)),
                 .storage = param.storage_bytes,
                 .width = param.width},
                param.hint, param.name, low_bits(param.width), std::move(cells));
  }
  return builder.take(action.name, std::to_string(action.value),
                      action.has_params() ? "sizeof(" + type + ")" : "0");
}

ToolRecord tool_record(const Program &program, const Digest &digest) {
  RecordBuilder builder(program.field_facts);
  for (const DigestField &field : digest.fields) {
    add_bytes(builder, program, field.name, field.offset, field.bytes, true);
  }
  return builder.take(digest.name, hex32(digest.handle), std::to_string(digest.size));
}

ToolRecord trigger_record(const Program &program, const SnapshotLayout &layout) {
  const unsigned size = program.snapshots->record_bytes;
  RecordBuilder builder(program.field_facts);
  for (const SnapshotField &field : layout.fields) {
    add_bytes(builder, program, field.name, field.offset, field.bytes, false);
    builder.add_companion({.name = field.name + "_mask",
                           .role = RecordRole::kMask,
                           .offset = std::to_string(size + field.offset),
                           .storage = field.bytes,
                           .width = width_of(program, field.name, field.bytes)});
  }
  return builder.take(layout.name, "0", std::to_string(2 * size));
}

ToolRecord snapshot_record(const Program &program, const std::string &name,
                           const std::vector<SnapshotField> &fields) {
  RecordBuilder builder(program.field_facts);
  for (const SnapshotField &field : fields) {
    add_bytes(builder, program, field.name, field.offset, field.bytes, true);
  }
  return builder.take(name, "0", std::to_string(program.snapshots->record_bytes));
}

template <class Row>
ToolRecords records_of(const char *name, const Program &program, const std::vector<Row> &rows) {
  ToolRecords list{name, {}};
  for (const Row &row : rows) list.records.push_back(tool_record(program, row));
  return list;
}

}  // namespace

std::vector<ToolRecords> tool_records(const Program &program) {
  std::vector<ToolRecords> lists = {records_of("table", program, program.tables),
                                    records_of("action", program, program.actions),
                                    records_of("digest", program, program.digests),
                                    {"trigger", {}},
                                    {"packet", {}},
                                    {"capture", {}}};
  if (!program.snapshots) return lists;
  for (const SnapshotLayout &layout : program.snapshots->layouts) {
    lists[3].records.push_back(trigger_record(program, layout));
    lists[4].records.push_back(snapshot_record(program, layout.name, layout.fields));
  }
  lists[5].records.push_back(snapshot_record(program, "capture", program.snapshots->capture));
  return lists;
}

}  // namespace pdgen
