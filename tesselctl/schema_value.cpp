#include "tesselctl/schema_value.hpp"

#include <algorithm>

#include "tesselctl/value.hpp"

namespace tesselctl {

namespace {

using Kind = Literal::Kind;

void want(bool holds, const Literal &literal, const char *message) {
  if (!holds) throw Fault(Word{literal.text, literal.column}, message);
}

std::vector<Number> numbers_of(const Literal &literal, size_t count) {
  want(literal.is_tuple(count), literal, "the schema has another number of values");
  std::vector<Number> numbers;
  for (const Literal &item : literal.items) {
    want(item.kind == Kind::number && !item.negative, item, "a number should stand here");
    numbers.push_back(item.number);
  }
  return numbers;
}

Notation notation_of(std::string_view hint) {
  if (hint == "v4addr") return Notation::ipv4;
  return hint == "v6addr" ? Notation::ipv6 : Notation::number;
}

constexpr std::string_view kUpperHalf = "Oui";
constexpr std::string_view kLowerHalf = "Station";

// Fields as they come; the lower half of a MAC address joins its upper half.
class Collector {
 public:
  void add(const SchemaField &own) {
    const auto &[label, name, width, key_bits, hint, match, position] = own;
    if (hint == "mac" && width == 24 && join(own)) return;
    ShownField shown{.field = {}, .position = position};
    shown.field.label = label;
    shown.field.match = match;
    shown.field.notation = notation_of(hint);
    shown.field.width = width;
    shown.field.key_bits = key_bits;
    if (hint == "mac" && width == 24 && label.ends_with(kUpperHalf))
      upper_.push_back(shown_.size());
    shown_.push_back(std::move(shown));
  }
  std::vector<ShownField> take() { return std::move(shown_); }

 private:
  bool join(const SchemaField &half) {
    if (!half.label.ends_with(kLowerHalf)) return false;
    const std::string stem = half.label.substr(0, half.label.size() - kLowerHalf.size());
    for (const size_t at : upper_) {
      Field &field = shown_[at].field;
      if (field.label != stem + std::string(kUpperHalf) || field.match != half.match) continue;
      field.label = stem;
      field.notation = Notation::mac;
      field.width = 48;
      field.key_bits = field.key_bits << 24 | half.key_bits;
      shown_[at].lower = half.position;
      return true;
    }
    return false;
  }

  std::vector<ShownField> shown_;
  std::vector<size_t> upper_;  // places in shown_
};

FieldValue value_of(const ShownField &shown, const std::vector<Number> &numbers) {
  const unsigned width = shown.lower ? shown.field.width / 2 : shown.field.width;
  FieldValue result;
  const auto add = [&](size_t at) {
    Number mask = low_ones(width);
    if (shown.field.match == Match::lpm) {
      const uint64_t length = std::min<uint64_t>(numbers[at + 1].low, width);
      mask = prefix_mask(static_cast<unsigned>(length), width);
    } else if (shown.field.match == Match::ternary) {
      mask = numbers[at + 1];
    }
    result.value = result.value << width | numbers[at];
    result.mask = result.mask << width | mask;
  };
  add(shown.position);
  if (shown.lower) add(*shown.lower);
  return result;
}

void add_fields(Row &row, std::string_view group, const std::vector<ShownField> &fields,
                const std::vector<Number> &numbers) {
  for (const ShownField &shown : fields) {
    const FieldValue value = value_of(shown, numbers);
    if (shown.field.match == Match::ternary && value.mask.is_zero()) continue;
    std::string text = format_value(shown.field, value);
    const bool is_number = text.find_first_not_of("0123456789") == std::string::npos;
    row.field(group, shown.field.label, std::move(text), is_number);
  }
}

}  // namespace

EntryValue read_entry_value(const Literal &literal, const TableSchema &schema) {
  want(literal.is_tuple(2) && literal.items[1].is_tuple(2), literal,
       "an entry should be a tuple of contents and priority");
  const Literal &contents = literal.items[0];
  const Literal &priority = literal.items[1].items[0];
  want(contents.is_tuple(1) || contents.is_tuple(2), contents, "key and action should stand here");
  want(priority.kind == Kind::number && priority.number.fits(32), priority,
       "a priority should stand here");
  EntryValue value;
  const auto magnitude = static_cast<uint32_t>(priority.number.low);
  value.priority = priority.negative ? 0u - magnitude : magnitude;
  const Literal &key = contents.items[0];
  if (!key.is_tuple(0)) value.key = numbers_of(key, schema.number_count);
  if (contents.items.size() == 1) return value;
  const Literal &action = contents.items[1];
  want(action.is_tuple(2) && action.items[0].kind == Kind::text, action,
       "an action should be a tuple of name and parameters");
  value.action = action.items[0].text;
  const ActionSchema *known = schema.find_action(value.action);
  want(known != nullptr, action.items[0], "the schema has no action of this name");
  value.parameters = numbers_of(action.items[1], known->parameters.size());
  return value;
}

EntryWords::EntryWords(const TableSchema &schema) : schema_(&schema) {
  Collector fields;
  for (const SchemaField &field : schema.fields) fields.add(field);
  fields_ = fields.take();
  for (const ActionSchema &action : schema.actions) {
    Collector parameters;
    for (size_t i = 0; i < action.parameters.size(); ++i) {
      const SchemaParameter &parameter = action.parameters[i];
      parameters.add({parameter.name, {}, parameter.width, {}, parameter.hint, Match::exact, i});
    }
    parameters_[action.name] = parameters.take();
  }
}

void EntryWords::add_to(Row &row, const EntryValue &value) const {
  if (value.key) {
    add_fields(row, Row::kKey, fields_, *value.key);
    if (schema_->match() == Match::ternary) row.number("priority", value.priority);
  }
  if (value.action.empty()) return;
  if (schema_->bound) {
    // Two pointers, each with a handle: to a member, and to a group.
    const bool member = value.action == schema_->actions.front().name;
    row.number(member ? "member" : "group", value.parameters.at(0).low);
    return;
  }
  row.text("action", value.action);
  add_fields(row, Row::kParameters, parameters_.at(value.action), value.parameters);
}

}  // namespace tesselctl
