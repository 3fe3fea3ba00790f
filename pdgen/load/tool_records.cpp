// What tools see of records.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

constexpr unsigned kHalf = 24;

using Words = std::vector<std::string_view>;

// Of entries and packets.
const Words kEntryWords = {"action", "as",    "bytes",   "entry", "group",
                           "hash",   "meter", "packets", "pipe",  "member"};
const Words kPacketWords = {"direction", "first", "last", "pipe", "snapshot"};

std::string notation_of(Hint hint, unsigned width) {
  if (hint == Hint::kV4Addr && width == 32) return "ipv4";
  if (hint == Hint::kV6Addr && width == 128) return "ipv6";
  if (hint == Hint::kPort) return "port";
  return hint == Hint::kVport ? "vport" : "number";
}

// A field that may be a half of a MAC address.
struct OwnField : ToolField {
  std::string stem;  // of the name of a half; empty for any other field
  bool is_upper = false;
};

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
    const auto is_one_of = [&](const std::vector<std::string> &names) {
      return std::ranges::find(names, member.name) != names.end();
    };
    OwnField &field = own_.emplace_back();
    field.label = std::move(short_name);
    field.name = member.name;
    const bool is_v4 = is_one_of(facts_.v4_addresses);
    field.notation = is_one_of(facts_.protocols) ? "protocol"
                     : is_one_of(facts_.services)
                         ? "service"
                         : notation_of(is_v4 ? Hint::kV4Addr : hint, member.width);
    field.width = member.width;
    field.key_bits = key_bits;
    field.parts = {record_.members.size()};
    field.cells = std::move(cells);
    if (hint == Hint::kMac && member.width == kHalf) name_half(field);
    record_.members.push_back(member);
  }
  // The value before goes into a key.
  void add_join(const Join &join) {
    own_.back().joined_field = join.field.name;
    own_.back().joined_tables = projected(join.tables, &Ref<Table>::name);
  }
  // The mask or prefix length of the value before.
  void add_companion(const ToolMember &member) {
    own_.back().match = member.role == RecordRole::kMask ? Match::kTernary : Match::kLpm;
    record_.members.push_back(member);
  }

  // `words` stand in commands beside the fields, so none of them can be a field's name.
  ToolRecord take(std::string name, std::string number, std::string size, const Words &words) {
    join_halves();
    name_apart_from(words);
    name_apart();
    record_.name = std::move(name);
    record_.number = std::move(number);
    record_.size = std::move(size);
    return std::move(record_);
  }

 private:
  void name_half(OwnField &field) const {
    for (const std::string &ending : halves_) {
      if (!field.name.ends_with(ending)) continue;
      field.stem = field.name.substr(0, field.name.size() - ending.size());
      field.is_upper = ending == halves_[0];
    }
  }

  // Null if it is none, or the other half is no field of the record.
  const OwnField *other_half(const OwnField &half) const {
    const auto other = std::ranges::find_if(own_, [&](const OwnField &field) {
      return !half.stem.empty() && field.stem == half.stem && field.match == half.match &&
             field.is_upper != half.is_upper;
    });
    return other == own_.end() ? nullptr : &*other;
  }

  void join_halves() {
    for (const OwnField &field : own_) {
      const OwnField *other = other_half(field);
      if (other == nullptr) {
        record_.fields.push_back(field);
      } else if (&field < other) {
        record_.fields.push_back(field.is_upper ? pair_of(field, *other) : pair_of(*other, field));
      }
    }
    record_.shown = record_.fields.size();
    for (const OwnField &field : own_) {
      if (other_half(field) != nullptr) record_.fields.push_back(field);
    }
  }

  ToolField pair_of(const OwnField &upper, const OwnField &lower) const {
    return {.label = upper.label.substr(0, upper.label.size() - halves_[0].size()),
            .name = upper.stem,
            .notation = "mac",
            .match = upper.match,
            .width = 2 * kHalf,
            .key_bits = {0, upper.key_bits.lower << kHalf | lower.key_bits.lower},
            .parts = {upper.parts[0], lower.parts[0]},
            .cells = {},
            .joined_field = {},
            .joined_tables = {}};
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

  void name_apart_from(const Words &words) {
    const auto is_word = [&](const ToolField &field) {
      return std::ranges::find(words, field.label) != words.end();
    };
    for (ToolField &field : record_.fields) {
      if (is_word(field)) field.label = long_name(field.name);
      if (is_word(field)) field.label += "Field";
    }
  }

  const FieldFacts &facts_;
  std::vector<std::string> halves_;  // endings of names: of the upper and of the lower half
  ToolRecord record_;
  std::vector<OwnField> own_;
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

// Integers of the host have masks, in a record of their own behind that of the values; all other
// fields are bytes in network order.
ToolRecord packet_record(const Program &program, const std::string &name, std::string number,
                         unsigned size, const std::vector<PacketField> &fields,
                         bool has_masks = false) {
  RecordBuilder builder(program.field_facts);
  for (const PacketField &field : fields) {
    const unsigned width = width_of(program, field.name, field.bytes);
    ToolMember member = {.name = field.name,
                         .offset = std::to_string(field.offset),
                         .storage = field.bytes,
                         .width = width,
                         .is_bytes = !has_masks};
    builder.add(member, hint_by_name(program, field.name, width),
                short_name(field.name, program.field_facts.instance_prefixes), low_bits(width));
    if (!has_masks) continue;
    member.name += "_mask";
    member.role = RecordRole::kMask;
    member.offset = std::to_string(size + field.offset);
    builder.add_companion(member);
  }
  return builder.take(name, std::move(number), std::to_string(has_masks ? 2 * size : size),
                      kPacketWords);
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
  Words words = kEntryWords;
  if (table.has_priority()) words.push_back("priority");
  if (table.idle_time) words.push_back("ttl");
  return builder.take(table.name, hex32(table.handle), table.keyed() ? "sizeof(" + type + ")" : "0",
                      words);
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
    for (const Join &join : program.field_facts.joins) {
      if (writes(join, action, param)) builder.add_join(join);
    }
  }
  return builder.take(action.name, std::to_string(action.value),
                      action.has_params() ? "sizeof(" + type + ")" : "0", {});
}

ToolRecord tool_record(const Program &program, const Digest &digest) {
  return packet_record(program, digest.name, hex32(digest.handle), digest.size, digest.fields);
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
  const auto &[size, limit, layouts, capture] = *program.snapshots;
  for (const auto &[name, where, fields] : layouts) {
    lists[3].records.push_back(packet_record(program, name, "0", size, fields, true));
    lists[4].records.push_back(packet_record(program, name, "0", size, fields));
  }
  lists[5].records.push_back(packet_record(program, "capture", "0", size, capture));
  return lists;
}

}  // namespace pdgen
