#include "tesselctl/wire_record.hpp"

#include <algorithm>
#include <map>

#include "tesselctl/library.hpp"

namespace tesselctl {

namespace {

// The bits of a field: as many as the tables match under this name. The halves of a MAC address
// have 24 bits under every name, and what no table knows has all its bits.
unsigned width_of(const WireField &field) {
  static const std::map<std::string_view, unsigned> widths = [] {
    std::map<std::string_view, unsigned> found;
    for (const bindings::Record &table : tables()) {
      for (const bindings::Member &member : table.member_list()) {
        if (member.role == bindings::Role::value) found.emplace(member.name, member.width);
      }
    }
    return found;
  }();
  const unsigned all = 8 * field.bytes;
  const std::string_view name = field.name;
  if (const auto found = widths.find(name); found != widths.end()) {
    return std::min(all, found->second);
  }
  const bool half = name.ends_with("Oui") || name.ends_with("Station");
  return half ? std::min(all, 24u) : all;
}

}  // namespace

WireLayout::WireLayout(const char *name, std::vector<WireField> fields, bool masked)
    : fields_(std::move(fields)) {
  mask_names_.reserve(fields_.size());
  size_t at = 0;
  for (const WireField &field : fields_) {
    const unsigned width = width_of(field);
    members_.push_back({field.name, bindings::Role::value, at, kSlot, width});
    if (masked) {
      mask_names_.push_back(std::string(field.name) + "_mask");
      members_.push_back(
          {mask_names_.back().c_str(), bindings::Role::mask, at + kSlot, kSlot, width});
    }
    at += 2 * kSlot;
  }
  record_ = {name, 0, members_.data(), members_.size(), at};
  shape_ = std::make_unique<Shape>(record_);
}

void WireLayout::pack(const uint8_t *record, size_t from, ByteOrder order, uint8_t *bytes) const {
  for (const WireField &field : fields_) {
    uint8_t *to = bytes + field.offset;
    std::copy_n(record + from + kSlot - field.bytes, field.bytes, to);
    if (order == ByteOrder::host) std::reverse(to, to + field.bytes);
    from += 2 * kSlot;
  }
}

void WireLayout::add_to(Row &row, const uint8_t *bytes, bool zeroes_too) const {
  std::vector<uint8_t> record(record_.size);
  size_t to = 0;
  for (const WireField &field : fields_) {
    std::copy_n(bytes + field.offset, field.bytes, record.data() + to + kSlot - field.bytes);
    to += 2 * kSlot;
  }
  for (const Field *field : shape_->shown()) {
    const FieldValue value = load_value(*field, record.data());
    if (!zeroes_too && value.value.is_zero()) continue;
    row.field("fields", field->label, format_value(*field, value),
              field->notation == Notation::number);
  }
}

}  // namespace tesselctl
