// The P4 program as families and outputs see it: one plain struct per row of the catalogue,
// references resolved, everything that is derived from a row (positions, sizes, tool names) filled
// in.
//
// Only load_program (load.hpp) builds a Program, and it hands one out only if every check has
// passed, so whoever reads it may rely on each rule that check/ states. References are pointers
// into the vectors of the same Program: it can be moved, not copied.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pdgen {

// Where a row or a value stands in the catalogue. The file is written as the user gave the
// directory; lines count from 1.
struct Place {
  std::string file;
  std::size_t line = 0;
};

// A row of another list, named by a row of this one. The target is set once the catalogue is
// checked; an optional reference that the catalogue leaves out has an empty name and no target.
template <typename T>
struct Ref {
  std::string name;
  Place place;
  const T *target = nullptr;

  explicit operator bool() const { return target != nullptr; }
  const T &operator*() const { return *target; }
  const T *operator->() const { return target; }
};

// A number of up to 128 bits.
struct Bits {
  std::uint64_t upper = 0;
  std::uint64_t lower = 0;

  bool operator==(const Bits &) const = default;
};

// The words for the values of an enumeration, in the catalogue and in what is generated.
template <typename Enum>
inline constexpr auto kNamesOf = nullptr;

// How tools show a value. Parameters have one of the first.
enum class Hint { kNone, kMac, kV4Addr, kVport, kPort, kV6Addr };
template <>
inline constexpr auto kNamesOf<Hint> = std::to_array<std::string_view>({"none", "mac", "v4addr",
                                                                        "vport", "port", "v6addr"});

struct Table;

// --- Stateful resources ---------------------------------------------------------------------

enum class ResourceKind { kCounter, kMeter, kRegister };
enum class MeterUnit { kBytes, kPackets };
template <>
inline constexpr auto kNamesOf<MeterUnit> = std::to_array<std::string_view>({"bytes", "packets"});

struct Resource {
  ResourceKind kind = ResourceKind::kCounter;
  std::string name;
  Place place;
  std::uint32_t handle = 0;
  Ref<Table> table;                    // counters and meters: the table whose entries carry it
  MeterUnit unit = MeterUnit::kBytes;  // meters only
  unsigned width = 0;                  // registers only: bits of a cell

  bool direct() const { return static_cast<bool>(table); }
};

// --- Actions --------------------------------------------------------------------------------

struct Param {
  std::string name;  // the record field is action_<name>, see names.hpp
  Place place;
  unsigned width = 0;          // significant bits, 1 to 32
  unsigned storage_bytes = 0;  // of the record field: 1, 2 or 4
  unsigned bytes = 0;          // of its slot in the action data: the width in whole bytes
  unsigned offset = 0;         // of its slot in the action data
  unsigned record_offset = 0;  // of the record field
  Hint hint = Hint::kNone;
  std::vector<Ref<Resource>> index_of;  // the resources whose cell it names, in look-up order

  // Such a parameter travels in the resource list; its slot in the action data stays zero.
  bool is_index() const { return !index_of.empty(); }
};

struct Action {
  std::string name;
  Place place;
  std::uint32_t value = 0;    // the enumeration value, equal to its index in Program::actions
  std::vector<Param> params;  // in record order
  unsigned data_bits = 0;     // sum of the parameters' widths
  unsigned data_bytes = 0;    // sum of their slots
  unsigned record_bytes = 0;  // size of the action record

  bool has_params() const { return !params.empty(); }
};

// --- Tables ---------------------------------------------------------------------------------

enum class Match { kExact, kTernary, kLpm };
template <>
inline constexpr auto kNamesOf<Match> = std::to_array<std::string_view>({"exact", "ternary",
                                                                         "lpm"});
enum class TableKind { kKeyless, kExact, kTernary, kLpm };
template <>
inline constexpr auto kNamesOf<TableKind> = std::to_array<std::string_view>({"keyless", "exact",
                                                                             "ternary", "lpm"});

struct KeyField {
  std::string name;
  Place place;
  Match match = Match::kExact;
  unsigned width = 0;          // bits: 1 to 32, or 128
  unsigned storage_bytes = 0;  // of the record field: 1, 2, 4, or 16 for a byte array
  unsigned bytes = 0;          // of its slot in the key bytes: the width in whole bytes
  unsigned offset = 0;         // of its slot in the key bytes, after key_order
  Bits key_bits;               // those that the key uses
  bool partial = false;        // the key uses fewer bits than the field has

  std::string cli_name;  // the name that tools show
  Hint hint = Hint::kNone;
  std::string width_name;  // middle of the width function's name: a validity bit's header, or name
  bool is_validity_bit = false;

  bool wide() const { return storage_bytes == 16; }
};

// One member of the match record: a key field or the companion that follows it.
enum class RecordRole { kValue, kMask, kPrefixLength };
template <>
inline constexpr auto kNamesOf<RecordRole> = std::to_array<std::string_view>({"value", "mask",
                                                                              "prefix_length"});

struct RecordField {
  RecordRole role = RecordRole::kValue;
  std::size_t key_index = 0;  // the field it is, or belongs to, in Table::key
  std::string name;
  std::string cli_name;
  Hint hint = Hint::kNone;     // none for companions
  unsigned width = 0;          // bits of the value: the field's; 16 for a prefix length
  unsigned storage_bytes = 0;  // the field's; 2 for a prefix length
  unsigned record_offset = 0;
};

enum class ResourceTag {
  kAttach,
  kDetach,
  kMeterSpec,  // attached with the meter spec that the caller passes
};
template <>
inline constexpr auto kNamesOf<ResourceTag> = std::to_array<std::string_view>({"attach", "detach",
                                                                               "meter_spec"});
enum class Operation { kAdd, kModify, kDefault };
template <>
inline constexpr auto kNamesOf<Operation> = std::to_array<std::string_view>({"add", "modify",
                                                                             "default"});
inline constexpr std::size_t kOperationCount = kNamesOf<Operation>.size();

// A row of a table's `resources`, as written.
struct ResourceRow {
  Place place;
  Ref<Resource> resource;
  std::vector<Ref<Action>> actions;  // empty: every action of the table
  std::string index;                 // parameter that names the cell; empty: cell 0
  Place index_place;
  ResourceTag tag = ResourceTag::kAttach;
  unsigned operations = 0;  // those that send it: a bit each, by Operation
};

// One item of the resource list that an operation of a (table, action) pair sends.
struct ResourceItem {
  const Resource *resource = nullptr;
  const Param *index = nullptr;  // of the pair's action; null: cell 0
  ResourceTag tag = ResourceTag::kAttach;
  unsigned operations = 0;  // those that send it: a bit each, by Operation

  bool sent_in(Operation operation) const {
    return (operations >> static_cast<unsigned>(operation) & 1) != 0;
  }
};

// An action that a table accepts.
struct Pair {
  Ref<Action> action;
  Place place;
  std::uint32_t handle = 0;         // action function handle of this table and action
  bool in_entries = false;          // entries may carry it; none does in a table without a key
  bool as_default = false;          // may be the default action
  std::vector<ResourceItem> items;  // in list order

  std::vector<ResourceItem> sent_in(Operation operation) const {
    std::vector<ResourceItem> sent = items;
    std::erase_if(sent, [=](const ResourceItem &item) { return !item.sent_in(operation); });
    return sent;
  }
  // Whether the operation takes the caller's meter spec.
  bool takes_meter_spec(Operation operation) const {
    return std::ranges::any_of(items, [=](const ResourceItem &item) {
      return item.tag == ResourceTag::kMeterSpec && item.sent_in(operation);
    });
  }
};

// The default entry of a fresh device.
struct DefaultEntry {
  Place place;
  Ref<Action> action;
  std::vector<std::uint32_t> values;  // of its parameters, in record order
  const Pair *pair = nullptr;         // of the action
  std::vector<ResourceItem> cells;    // that it refers to
};

struct Profile;

struct Table {
  std::string name;
  Place place;
  std::uint32_t handle = 0;
  TableKind kind = TableKind::kKeyless;  // that of its most general field
  std::vector<KeyField> key;             // in record order
  std::vector<Ref<KeyField>> key_order;  // the order of the key bytes
  std::vector<RecordField> record;       // the match record, companions included
  unsigned key_bits = 0;                 // sum of the fields' widths
  unsigned key_bytes = 0;                // sum of their slots
  unsigned record_bytes = 0;             // size of the match record
  bool idle_time = false;
  Ref<Profile> profile;     // set: entries point at members and groups, and pairs is empty
  std::vector<Pair> pairs;  // as the catalogue orders them
  unsigned size = 0;        // most entries; 0: unlimited
  // As the catalogue states it, else the one action that may be it with zeroes, if one alone may.
  std::optional<DefaultEntry> default_entry;
  const Table *first_of_key = nullptr;  // the first table whose key has the same schema
  std::vector<ResourceRow> resources;

  bool keyed() const { return kind != TableKind::kKeyless; }
  bool has_priority() const { return kind == TableKind::kTernary; }
  bool indirect() const { return static_cast<bool>(profile); }
};

struct ProfileAction {
  Ref<Action> action;
  Place place;
  std::uint32_t handle = 0;
};

struct Profile {
  std::string name;
  Place place;
  std::uint32_t action_data_handle = 0;
  std::uint32_t selector_handle = 0;
  unsigned most_members = 0;  // 0: unlimited
  unsigned most_groups = 0;
  std::vector<ProfileAction> actions;
};

// --- Hashes, digests, value sets ------------------------------------------------------------

struct Hash {
  std::string name;
  Place place;
  std::uint32_t handle = 0;
  std::uint32_t field_list_handle = 0;
  unsigned field_count = 0;
};

// A field of a record of bytes: of a digest's entry, or of a snapshot.
struct PacketField {
  std::string name;
  Place place;
  unsigned offset = 0;  // bytes from the start; in a snapshot, fields run on in order
  unsigned bytes = 0;   // 1, 2 or 4 in a layout; else any size
};

struct Digest {
  std::string name;
  Place place;
  std::uint32_t handle = 0;
  unsigned size = 0;  // bytes of one entry
  std::vector<PacketField> fields;
};

struct ValueSet {
  std::string name;
  Place place;
  std::uint32_t handle = 0;
};

// --- Snapshots ------------------------------------------------------------------------------

struct SnapshotLayout {
  std::string name;  // "ingress" or "egress"
  Place place;
  std::vector<PacketField> fields;  // what they leave over of the record is padding
};

struct Snapshots {
  unsigned record_bytes = 0;
  unsigned capture_limit = 0;
  std::vector<SnapshotLayout> layouts;
  std::vector<PacketField> capture;
};

// --- Labels of counted entries --------------------------------------------------------------

enum class LabelKind { kFlag, kNumber, kExact, kSilent, kMac, kV4Addr, kV6Addr };
template <>
inline constexpr auto kNamesOf<LabelKind> = std::to_array<std::string_view>(
    {"flag", "number", "exact", "silent", "mac", "v4addr", "v6addr"});

// Written, blanks included, in place of a number whose value AND mask is `value`.
struct LabelText {
  Place place;
  std::uint32_t value = 0;
  std::string text;
};

struct LabelItem {
  LabelKind kind = LabelKind::kSilent;
  Place place;
  // Fields of the table's key: the field, or the two halves of a MAC address.
  Ref<KeyField> field;
  Ref<KeyField> oui;
  Ref<KeyField> station;
  std::string label;             // flags and addresses
  std::uint32_t bit = 0;         // flags: the one bit that counts
  unsigned after = 1;            // flags: blanks that follow
  std::string format;            // numbers: the words before the value
  unsigned digits = 0;           // numbers: hexadecimal digits of the value
  std::vector<LabelText> texts;  // numbers
  std::uint32_t texts_mask =
      0xffffffff;  // numbers: texts apply if the mask has a bit of it; else all ones

  bool is_number() const { return kind == LabelKind::kNumber || kind == LabelKind::kExact; }
};

struct Label {
  Place place;
  Ref<Table> table;
  std::vector<LabelItem> items;  // in output order
};

// --- What is known of fields by their names -------------------------------------------------

struct FieldHint {
  Place place;
  Hint hint = Hint::kNone;
  std::vector<std::string> fields;  // whole names
  // Name endings. Two of mac: those of the upper and of the lower half of an address.
  std::vector<std::string> suffixes;
  unsigned width = 0;  // 0: no width
};

// What actions write into a field of later keys, as a next hop that tables look up.
struct Join {
  Place place;
  Ref<KeyField> field;  // of any table that has one of this name
  std::vector<std::string> params;
  std::vector<Ref<Action>> actions;  // that write it; empty: all with such a parameter
  std::vector<Ref<Table>> tables;    // that are to have an entry for each value
};

struct FieldFacts {
  std::vector<std::string> instance_prefixes;
  std::vector<FieldHint> hints;  // the first that fits decides
  // Fields and parameters that hold IPv4 addresses without a hint of their schema.
  std::vector<std::string> v4_addresses;
  // Fields and parameters of which numbers have names.
  std::vector<std::string> protocols;
  std::vector<std::string> services;
  std::vector<Join> joins;
};

// --- Routes ---------------------------------------------------------------------------------

// Where tools load routes into.
struct Routes {
  Place place;
  Ref<Action> action;  // of its one parameter, the next hop
  std::vector<Ref<Table>> tables;
};

// --- Access rules ---------------------------------------------------------------------------

// Where tools load access rules into.
struct Acl {
  Place place;
  Ref<Table> table;
  std::vector<Ref<KeyField>> fields;  // by kAclFields; flags may be missing
};
struct AclField {
  std::string_view key;
  unsigned width;  // bits that it must have; 0 for any
};
inline constexpr AclField kAclFields[] = {{"source", 32},      {"destination", 32},
                                          {"source_port", 16}, {"destination_port", 16},
                                          {"protocol", 8},     {"flags", 0}};

// --- Handles --------------------------------------------------------------------------------

struct Handle {
  std::uint32_t handle = 0;
  std::string object;  // "table fdb", "selector of profile ecmp"
  Place place;
};

// --- Records as tools see them --------------------------------------------------------------

struct ToolMember {
  std::string name;
  RecordRole role = RecordRole::kValue;
  std::string offset;  // an expression of C
  unsigned storage = 0;
  unsigned width = 0;
  bool is_bytes = false;  // in network order
};

struct ToolField {
  std::string label;  // short, unique in its record
  std::string name;   // of the member, or what two halves share
  std::string notation;
  Match match = Match::kExact;
  unsigned width = 0;
  Bits key_bits;
  std::vector<std::size_t> parts;  // members: one, or the upper and the lower half of an address
  std::vector<std::string> cells;  // counters and meters whose cell the value names
  std::string joined_field;        // of later keys, that a parameter is written into
  std::vector<std::string> joined_tables;
};

struct ToolRecord {
  std::string name;
  std::string number;
  std::string size;  // an expression of C
  std::vector<ToolMember> members;
  std::vector<ToolField> fields;  // those that are shown, then the halves that pairs stand for
  std::size_t shown = 0;
};

struct ToolRecords {
  std::string name;  // what they are records of
  std::vector<ToolRecord> records;
};

// --- The program ----------------------------------------------------------------------------

struct Program {
  std::string name;
  Place place;
  std::vector<Action> actions;  // by enumeration value
  std::vector<Table> tables;
  std::vector<Profile> profiles;
  std::vector<Resource> counters;
  std::vector<Resource> meters;
  std::vector<Resource> registers;
  std::uint32_t hash_algorithm = 0;
  std::vector<Hash> hashes;
  std::vector<Digest> digests;
  std::vector<ValueSet> value_sets;
  std::optional<Snapshots> snapshots;
  std::vector<Label> labels;
  FieldFacts field_facts;
  std::optional<Routes> routes;
  std::vector<Acl> acls;
  std::vector<Handle> handles;  // ascending
  std::vector<ToolRecords> tool_records;

  Program() = default;
  Program(Program &&) = default;
  Program &operator=(Program &&) = default;
  Program(const Program &) = delete;
  Program &operator=(const Program &) = delete;
};

// The lowest `width` bits.
inline Bits low_bits(unsigned width) {
  const auto half = [](unsigned bits) { return bits == 0 ? 0 : ~std::uint64_t{0} >> (64 - bits); };
  return {half(width < 64 ? 0 : std::min(width - 64, 64U)), half(std::min(width, 64U))};
}

// The row of that name in one of the lists above, null if there is none.
template <typename Row>
const Row *find_row(const std::vector<Row> &rows, std::string_view name) {
  const auto found = std::ranges::find(rows, name, &Row::name);
  return found == rows.end() ? nullptr : &*found;
}

}  // namespace pdgen
