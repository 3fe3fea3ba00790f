// Records as people name them: the fields of a match spec or action spec with short names, the two
// halves of a MAC address as one field, and the notation that suits each.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "bindings/export_table.hpp"
#include "tesselctl/fault.hpp"
#include "tesselctl/number.hpp"

namespace tesselctl {

enum class Match : uint8_t { exact, ternary, lpm };
enum class Notation : uint8_t { number, ipv4, ipv6, mac };

// One field of the record, with the member that qualifies it: its mask or its prefix length.
struct Part {
  const bindings::Member *value = nullptr;
  const bindings::Member *companion = nullptr;  // null for an exact field or a parameter
};

struct Field {
  std::string name;   // of the record: "egrMd_dmacOui"; of a pair what its halves share
  std::string label;  // short: "dmacOui"
  Match match = Match::exact;
  Notation notation = Notation::number;
  unsigned width = 0;  // bits; 48 for a pair
  Number key_bits;     // of a ternary field: the bits that take part in the key
  // One part, or two for a pair: the upper and the lower 24 bits.
  std::vector<Part> parts;
  // Positions of the parts among the record's own fields.
  std::vector<size_t> positions;

  bool is_pair() const { return parts.size() == 2; }
};

struct TableSchema;

class Shape {
 public:
  // Without a schema every bit of a field takes part in the key.
  explicit Shape(const bindings::Record &record, const TableSchema *schema = nullptr);

  std::string_view name() const { return record_->name; }
  const bindings::Record &record() const { return *record_; }
  // The fields of the record in its order, then the pairs.
  const std::vector<Field> &fields() const { return fields_; }
  size_t own_field_count() const { return own_count_; }
  // What to show: pairs stand for their halves, at the place of the first.
  const std::vector<const Field *> &shown() const { return shown_; }
  // Whether a field has exactly this name or label.
  bool has_field_named(std::string_view name) const { return try_find(name) != nullptr; }

  // Takes the full name, the label, or any end of the full name that begins behind a '_' and is
  // the end of no other field's name; '_' and upper and lower case make no difference. Throws
  // Fault for an unknown or ambiguous name; what says what has the fields, "table x".
  const Field &find(Word name, std::string_view what) const;

 private:
  const Field *try_find(std::string_view name) const;
  void add_own_fields(const TableSchema *schema);
  void add_pairs();
  void add_labels();
  void choose_shown();

  const bindings::Record *record_;
  std::vector<Field> fields_;
  size_t own_count_ = 0;
  std::vector<const Field *> shown_;
};

// Shapes are made at first use and kept. Any thread may ask.
const Shape &table_shape(const bindings::Record &table);
const Shape &action_shape(std::string_view action);

}  // namespace tesselctl
