#include "tesselctl/shape.hpp"

#include <algorithm>
#include <cctype>
#include <map>
#include <memory>
#include <mutex>

#include "tesselctl/library.hpp"
#include "tesselctl/schema.hpp"
#include "tesselctl/suggest.hpp"

namespace tesselctl {

namespace {

constexpr std::string_view kUpperHalf = "Oui";
constexpr std::string_view kLowerHalf = "Station";
constexpr unsigned kHalfWidth = 24;

std::string normalized(std::string_view name) {
  std::string text;
  for (const char c : name) {
    if (c != '_') text += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return text;
}

bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string camel_case(std::string_view words) {
  std::string joined;
  bool word_begins = false;
  for (const char c : words) {
    if (c == '_') {
      word_begins = !joined.empty();
      continue;
    }
    joined += word_begins ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
    word_begins = false;
  }
  return joined;
}

// The name without the header or metadata instance that it begins with: "vlanId" of
// "vlan_0__vlanId", "ingress_port" of "ig_intr_md_ingress_port".
std::string_view without_instance(std::string_view name) {
  if (const size_t intrinsic = name.find("_intr_md_"); intrinsic != std::string_view::npos) {
    return name.substr(intrinsic + 9);
  }
  const size_t underscore = name.find('_');
  if (underscore == std::string_view::npos) return name;
  std::string_view rest = name.substr(underscore + 1);
  size_t digits = 0;
  while (digits < rest.size() && is_digit(rest[digits])) ++digits;
  if (digits > 0 && rest.substr(digits).starts_with("__")) rest.remove_prefix(digits + 2);
  return rest;
}

// "vlanHdrValid" of "vlanHdr_0__valid".
std::string validity_label(std::string_view name) {
  std::string_view header = name.substr(0, name.size() - 6);
  while (!header.empty() && (is_digit(header.back()) || header.back() == '_')) {
    header.remove_suffix(1);
  }
  return camel_case(header) + "Valid";
}

std::string label_of(std::string_view name) {
  return name.ends_with("_valid") ? validity_label(name) : camel_case(without_instance(name));
}

Notation notation_of(std::string_view name, unsigned width) {
  if (width == 128) return Notation::ipv6;
  if (width == 32 && normalized(name).ends_with("ip")) return Notation::ipv4;
  return Notation::number;
}

// Whether name, normalized, is an end of the field's name that begins at a '_' or is all of it.
bool is_end_of(std::string_view name, std::string_view field) {
  for (size_t at = 0; at != std::string_view::npos; at = field.find('_', at)) {
    while (at < field.size() && field[at] == '_') ++at;
    if (normalized(field.substr(at)) == name) return true;
  }
  return false;
}

}  // namespace

Shape::Shape(const bindings::Record &record, const TableSchema *schema) : record_(&record) {
  add_own_fields(schema);
  add_pairs();
  add_labels();
  choose_shown();
}

void Shape::add_own_fields(const TableSchema *schema) {
  for (const bindings::Member &member : record_->member_list()) {
    if (member.role != bindings::Role::value) {
      Field &field = fields_.back();
      field.parts[0].companion = &member;
      field.match = member.role == bindings::Role::mask ? Match::ternary : Match::lpm;
      continue;
    }
    Field field;
    field.name = member.name;
    field.width = member.width;
    field.key_bits =
        schema == nullptr ? low_ones(field.width) : schema->fields[fields_.size()].key_bits;
    field.notation = notation_of(field.name, field.width);
    field.parts = {{&member, nullptr}};
    field.positions = {fields_.size()};
    fields_.push_back(std::move(field));
  }
  own_count_ = fields_.size();
}

void Shape::add_pairs() {
  for (size_t i = 0; i < own_count_; ++i) {
    if (!fields_[i].name.ends_with(kUpperHalf) || fields_[i].width != kHalfWidth) continue;
    const std::string stem = fields_[i].name.substr(0, fields_[i].name.size() - kUpperHalf.size());
    for (size_t j = 0; j < own_count_; ++j) {
      if (fields_[j].name != stem + std::string(kLowerHalf)) continue;
      if (fields_[j].width != kHalfWidth || fields_[j].match != fields_[i].match) continue;
      Field pair;
      pair.name = stem;
      pair.match = fields_[i].match;
      pair.notation = Notation::mac;
      pair.width = 2 * kHalfWidth;
      pair.key_bits = fields_[i].key_bits << kHalfWidth | fields_[j].key_bits;
      pair.parts = {fields_[i].parts[0], fields_[j].parts[0]};
      pair.positions = {i, j};
      fields_.push_back(std::move(pair));
      break;
    }
  }
}

void Shape::add_labels() {
  for (Field &field : fields_) field.label = label_of(field.name);
  std::vector<std::string> labels;
  for (const Field &field : fields_) labels.push_back(field.label);
  for (size_t i = 0; i < fields_.size(); ++i) {
    if (std::count(labels.begin(), labels.end(), labels[i]) > 1) {
      fields_[i].label = camel_case(fields_[i].name);
    }
  }
}

void Shape::choose_shown() {
  std::vector<const Field *> at(own_count_);
  for (size_t i = 0; i < own_count_; ++i) at[i] = &fields_[i];
  for (size_t i = own_count_; i < fields_.size(); ++i) {
    for (const size_t position : fields_[i].positions) at[position] = nullptr;
    at[std::min(fields_[i].positions[0], fields_[i].positions[1])] = &fields_[i];
  }
  for (const Field *field : at) {
    if (field != nullptr) shown_.push_back(field);
  }
}

const Field *Shape::try_find(std::string_view name) const {
  for (const Field &field : fields_) {
    if (name == field.name || name == field.label) return &field;
  }
  return nullptr;
}

const Field &Shape::find(Word name, std::string_view what) const {
  if (const Field *field = try_find(name.text)) return *field;
  const std::string wanted = normalized(name.text);
  std::vector<const Field *> found;
  for (const Field &field : fields_) {
    const bool whole = wanted == normalized(field.name) || wanted == normalized(field.label);
    if (whole || is_end_of(wanted, field.name)) found.push_back(&field);
  }
  if (found.size() == 1) return *found[0];
  if (found.size() > 1) {
    throw Fault(name, std::string(what) + " has " + found[0]->label + " and " + found[1]->label +
                          ", so this name does not say which");
  }
  Nearest near(name.text);
  for (const Field &field : fields_) near.consider(field.label);
  for (const Field &field : fields_) near.consider(field.name);
  throw Fault(name, std::string(what) + " has no field of this name", near.name());
}

namespace {

const Shape &cached_shape(const bindings::Record &record, bool is_table) {
  static std::mutex mutex;
  static std::map<const bindings::Record *, std::unique_ptr<Shape>> shapes;
  const std::lock_guard lock(mutex);
  std::unique_ptr<Shape> &shape = shapes[&record];
  if (shape) return *shape;
  if (is_table) {
    const TableSchema schema = table_schema(record.name);
    shape = std::make_unique<Shape>(record, &schema);
  } else {
    shape = std::make_unique<Shape>(record);
  }
  return *shape;
}

}  // namespace

const Shape &table_shape(const bindings::Record &table) { return cached_shape(table, true); }

const Shape &action_shape(std::string_view action) {
  return cached_shape(action_record(action), false);
}

}  // namespace tesselctl
