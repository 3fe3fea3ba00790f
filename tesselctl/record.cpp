#include "tesselctl/record.hpp"

#include <algorithm>

namespace tesselctl {

void RecordWriter::set(const Assignment &word) {
  const Field &field = shape_->find(word.name, what_);
  for (const size_t position : field.positions) {
    if (given_[position]) throw Fault(word.name, field.label + " is given twice");
  }
  store_value(field, parse_value(field, word.value), bytes_.data());
  for (const size_t position : field.positions) given_[position] = true;
}

bool RecordWriter::any_given() const {
  return std::find(given_.begin(), given_.end(), true) != given_.end();
}

void RecordWriter::finish(Word word) {
  std::string missing;
  for (const Field *field : shape_->shown()) {
    for (size_t i = 0; i < field->parts.size(); ++i) {
      if (given_[field->positions[i]]) continue;
      const Field &own = shape_->fields()[field->positions[i]];
      if (own.match == Match::ternary) {
        store_value(own, {}, bytes_.data());
        continue;
      }
      // Of a pair that is missing altogether, name the pair.
      const bool whole =
          field->is_pair() && !given_[field->positions[0]] && !given_[field->positions[1]];
      if (whole && i > 0) continue;
      missing += (missing.empty() ? "" : ", ") + (whole ? field->label : own.label);
    }
  }
  if (!missing.empty()) throw Fault(word, what_ + " also needs " + missing);
}

void add_record(Row &row, std::string_view group, const Shape &shape, const uint8_t *record) {
  for (const Field *field : shape.shown()) {
    const FieldValue value = load_value(*field, record);
    if (field->match == Match::ternary && value.mask.is_zero()) continue;
    std::string text = format_value(*field, value);
    const bool is_number = text.find_first_not_of("0123456789") == std::string::npos;
    row.field(group, field->label, std::move(text), is_number);
  }
}

}  // namespace tesselctl
