#include "tesselctl/device/range_rows.hpp"

#include <fmt/format.h>

namespace tesselctl {

namespace {

FieldValue value_of(const Field &field, const ItemBytes &item) {
  return load_value(field, reinterpret_cast<const uint8_t *>(item.identity.data()));
}

// "1..3,7": handles that follow one another as a range.
std::string handles_text(const std::vector<p4_pd_entry_handle_t> &handles) {
  std::string text;
  for (size_t at = 0; at < handles.size();) {
    const size_t first = at++;
    while (at < handles.size() && handles[at] == handles[at - 1] + 1) ++at;
    text += fmt::format("{}{}", text.empty() ? "" : ",", handles[first]);
    if (at - first > 1) text += fmt::format("{}{}", kRange, handles[at - 1]);
  }
  return text;
}

Row row_of(const TableInfo &table, const JoinedEntries &entries) {
  Row row = entry_row(table, entries.handles[0], entries.item.view());
  if (entries.handles.size() > 1) row.change("entry", handles_text(entries.handles));
  for (const auto &[field, range] : entries.parts) {
    row.change(field->label, format_range(*field, range));
  }
  return row;
}

}  // namespace

// Null unless there is one, and it is a ternary field.
const Field *RangeJoiner::only_difference(const JoinedEntries &next) const {
  const std::string &a = joined_.item.identity;
  const std::string &b = next.item.identity;
  const size_t size = record_.size;
  if (joined_.item.value != next.item.value || joined_.parts != next.parts) return nullptr;
  if (a.compare(size, a.npos, b, size, b.npos) != 0) return nullptr;
  const Field *different = nullptr;
  for (const Field &field : record_.shown()) {
    if (value_of(field, joined_.item) == value_of(field, next.item)) continue;
    if (different != nullptr || field.match != Match::ternary) return nullptr;
    different = &field;
  }
  return different;
}

// Adds it to what is joined if that is the fewest prefixes of a range then. What begins such a list
// is one by itself, so there is no need to look ahead.
bool RangeJoiner::joins(const JoinedEntries &next) {
  const Field *field = joined_.handles.empty() ? nullptr : only_difference(next);
  if (field == nullptr || (field_ != nullptr && field_ != field)) return false;
  const auto before = field_ != nullptr ? range_ : range_of(*field, value_of(*field, joined_.item));
  const auto last = range_of(*field, value_of(*field, next.item));
  if (!before || !last || before->high >= last->low || before->high + 1 != last->low) return false;
  const ValueRange range = {before->low, last->high};
  if (prefixes_of(range, range_width(*field)).size() != count_ + 1) return false;
  field_ = field;
  range_ = range;
  return true;
}

void RangeJoiner::add(JoinedEntries &&next) {
  if (joins(next)) {
    joined_.handles.insert(joined_.handles.end(), next.handles.begin(), next.handles.end());
    ++count_;
    return;
  }
  finish();
  joined_ = std::move(next);
  count_ = 1;
}

void RangeJoiner::finish() {
  if (joined_.handles.empty()) return;
  if (field_ != nullptr) joined_.parts.push_back({field_, range_});
  field_ = nullptr;
  visit_(std::move(joined_));
  joined_ = {};
}

RangeRows::RangeRows(const TableInfo &table, std::function<void(const Row &)> visit)
    : outer_(*table.record, [table, visit = std::move(visit)](
                                const JoinedEntries &entries) { visit(row_of(table, entries)); }),
      inner_(*table.record, [this](JoinedEntries &&entries) { outer_.add(std::move(entries)); }) {}

}  // namespace tesselctl
