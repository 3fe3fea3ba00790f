#include "tesselctl/program/record.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/program/library.hpp"
#include "tesselctl/program/value_range.hpp"

namespace tesselctl {

namespace {

constexpr uint64_t kMostRecords = 65536;

}  // namespace

void RecordWriter::give(const Field &field, Word name) {
  if (is_given(field)) throw Fault(name, fmt::format("{} is given twice", field.label));
  for (size_t i = 0; i < field.part_count(); ++i) given_[place_of(field.parts[i])] = true;
}

const Field &RecordWriter::take_field(Word name) {
  const Field &field = find_field(*record_, name, what_);
  give(field, name);
  return field;
}

bool RecordWriter::is_given(const Field &field) const {
  return std::any_of(field.parts, field.parts + field.part_count(),
                     [&](const bindings::Member *part) { return given_[place_of(part)]; });
}

void RecordWriter::set(const Assignment &word) {
  const Field &field = take_field(word.name);
  store(field, parse_value(field, word.value));
}

void RecordWriter::set_values(const Assignment &word) {
  if (!is_range(word.value.text)) return set(word);
  const Field &field = take_field(word.name);
  put(field, parse_range(field, word.value));
  if (count() <= kMostRecords) return;
  throw Fault(word.value, fmt::format("the ranges are {} entries, and a command takes {} at most",
                                      count(), kMostRecords));
}

void RecordWriter::put(const Field &field, std::vector<FieldValue> values) {
  store(field, values.front());
  std::erase_if(spreads_, [&](const Spread &spread) { return spread.field == &field; });
  if (values.size() > 1) spreads_.push_back({&field, std::move(values)});
}

uint64_t RecordWriter::count() const {
  uint64_t count = 1;
  for (const Spread &spread : spreads_) count *= spread.values.size();
  return count;
}

void RecordWriter::choose(uint64_t at) {
  for (size_t i = spreads_.size(); i-- > 0;) {
    const auto &[field, values] = spreads_[i];
    store(*field, values[static_cast<size_t>(at % values.size())]);
    at /= values.size();
  }
}

std::string RecordWriter::chosen() const {
  std::string text;
  for (const auto &[field, values] : spreads_) {
    text += fmt::format("{}{}={}", text.empty() ? "" : " ", field->label,
                        format_value(*field, load_value(*field, bytes_.data())));
  }
  return text;
}

bool RecordWriter::any_given() const {
  return std::find(given_.begin(), given_.end(), true) != given_.end();
}

void RecordWriter::finish(Word word) {
  std::string missing;
  const auto miss = [&](std::string_view label) {
    missing += fmt::format("{}{}", missing.empty() ? "" : ", ", label);
  };
  const auto is_given = [&](const bindings::Member *member) { return given_[place_of(member)]; };
  for (const Field &field : record_->shown()) {
    if (field.match == Match::ternary) continue;
    const bool upper = is_given(field.parts[0]);
    const bool lower = field.is_pair() ? is_given(field.parts[1]) : upper;
    if (!upper && !lower) {
      miss(field.label);
    } else if (!upper || !lower) {
      miss(find_field(*record_, {field.parts[upper ? 1 : 0]->name, 0}, what_).label);
    }
  }
  if (!missing.empty()) throw Fault(word, what_ + " also needs " + missing);
}

namespace {

ValueKind kind_of(const Field &field) {
  const auto matches = [](const void *what, std::string_view shown, Word wanted) {
    return matches_value(*static_cast<const Field *>(what), shown, wanted);
  };
  return {matches, &field, field.name};
}

}  // namespace

void add_record(Row &row, std::string_view group, const bindings::Record &record,
                const uint8_t *bytes, LeaveOut leave_out) {
  for (const Field &field : record.shown()) {
    const FieldValue value = load_value(field, bytes);
    if (field.match == Match::ternary && value.mask.is_zero()) {
      row.anything(field.label, kind_of(field));
      continue;
    }
    if (leave_out == LeaveOut::zeroes && value.value.is_zero()) continue;
    row.field(group, field.label, format_value(field, value), kind_of(field));
  }
}

void add_action(Row &row, const bindings::Record &action, const uint8_t *bytes) {
  row.choice("action", action.name);
  add_record(row, Row::kParameters, action, bytes);
}

void add_samples(Row &row, std::string_view group, const bindings::Record &record) {
  for (const Field &field : record.shown()) {
    const std::string value = format_value(field, {{}, low_ones(field.width)});
    row.field(group, field.label, value, kind_of(field));
  }
}

}  // namespace tesselctl
