#include "oracle.hpp"

#include <algorithm>
#include <cstring>

namespace pd_test {

// ---- Bits ----

Bits Bits::repeated(bool bit, size_t count) {
  Bits made;
  made.bits_.assign(count, bit);
  return made;
}

Bits Bits::of_bytes(const uint8_t *bytes, size_t count) {
  Bits made;
  for (size_t i = 0; i < 8 * count; ++i) made.bits_.push_back(bytes[i / 8] & 0x80u >> i % 8);
  return made;
}

Bits Bits::of_member(const uint8_t *record, const bindings::Member &member) {
  Bytes bytes(record + member.offset, record + member.offset + member.storage);
  if (member.storage != 16) std::ranges::reverse(bytes);  // the host is little-endian
  return of_bytes(bytes.data(), bytes.size());
}

Bits Bits::lowest(size_t count) const {
  Bits cut;
  cut.bits_.assign(bits_.end() - static_cast<std::ptrdiff_t>(count), bits_.end());
  return cut;
}

Bits Bits::operator&(const Bits &other) const {
  Bits both = *this;
  for (size_t i = 0; i < size(); ++i) both.bits_[i] = bits_.at(i) && other.bits_.at(i);
  return both;
}

Bits &Bits::operator+=(const Bits &other) {
  bits_.insert(bits_.end(), other.bits_.begin(), other.bits_.end());
  return *this;
}

uint32_t Bits::number() const {
  uint32_t value = 0;
  for (const bool bit : bits_) value = 2 * value + (bit ? 1 : 0);
  return value;
}

Bytes Bits::bytes() const {
  EXPECT_EQ(size() % 8, 0u);
  Bytes bytes(size() / 8);
  for (size_t i = 0; i < size(); ++i) {
    if (bits_[i]) bytes[i / 8] = static_cast<uint8_t>(bytes[i / 8] | 0x80u >> i % 8);
  }
  return bytes;
}

void Bits::store(uint8_t *record, const bindings::Member &member) const {
  Bits whole = repeated(false, 8 * member.storage - size()) + *this;
  Bytes bytes = whole.bytes();
  if (member.storage != 16) std::ranges::reverse(bytes);
  std::memcpy(record + member.offset, bytes.data(), bytes.size());
}

// ---- Keys ----

namespace {

size_t whole_bytes(unsigned width) { return (width + 7) / 8 * 8; }

// All bits of a field's bytes, those that take part set.
Bits ones_of_width(const pdgen::KeyField &field) {
  return Bits::repeated(false, whole_bytes(field.width) - field.width) +
         Bits::repeated(true, field.width);
}

struct FieldImage {
  Bits value;
  Bits mask;
  std::optional<uint32_t> priority;
  std::optional<uint32_t> prefix_length;  // as read back
};

FieldImage lpm_image(const pdgen::KeyField &field, Bits value, uint32_t length, uint32_t key_bits) {
  if (length > field.width) {
    return {value, Bits::repeated(true, field.width), key_bits + 1, field.width};
  }
  const Bits mask = Bits::repeated(true, length) + Bits::repeated(false, field.width - length);
  return {value & mask, mask, field.width - length, length};
}

FieldImage field_image(const pdgen::Table &table, const pdgen::KeyField &field,
                       const uint8_t *record) {
  const bindings::Record &layout = record_of(table);
  const auto bits_of = [&](const std::string &name) {
    return Bits::of_member(record, member_of(layout, name));
  };
  const size_t whole = whole_bytes(field.width);
  const Bits value = bits_of(field.name).lowest(whole);
  if (field.match == pdgen::Match::kLpm) {
    return lpm_image(field, value, bits_of(field.name + "_prefix_length").number(), table.key_bits);
  }
  if (field.match == pdgen::Match::kTernary) {
    const Bits mask = bits_of(field.name + "_mask").lowest(whole);
    return {value & mask, mask & ones_of_width(field), {}, {}};
  }
  if (table.kind == pdgen::TableKind::kTernary) return {value, ones_of_width(field), {}, {}};
  return {value, Bits::repeated(true, whole), {}, {}};
}

}  // namespace

KeyImage key_image(const pdgen::Table &table, const uint8_t *record, uint32_t priority) {
  KeyImage image;
  Bits value;
  Bits mask;
  if (table.kind == pdgen::TableKind::kTernary) image.priority = priority;
  for (const size_t index : table.key_order) {
    const pdgen::KeyField &field = table.key.at(index);
    const FieldImage part = field_image(table, field, record);
    value += part.value;
    mask += part.mask;
    if (part.priority) image.priority = *part.priority;
    image.bits = static_cast<uint16_t>(image.bits + field.width);
  }
  image.value = value.bytes();
  image.mask = mask.bytes();
  return image;
}

Bytes kept_match_spec(const pdgen::Table &table, const uint8_t *record) {
  const bindings::Record &layout = record_of(table);
  Bytes kept(layout.size);
  for (const pdgen::KeyField &field : table.key) {
    const FieldImage part = field_image(table, field, record);
    part.value.store(kept.data(), member_of(layout, field.name));
    if (field.match == pdgen::Match::kTernary) {
      part.mask.store(kept.data(), member_of(layout, field.name + "_mask"));
    }
    if (part.prefix_length) {
      const auto length = static_cast<uint16_t>(*part.prefix_length);
      std::memcpy(kept.data() + member_of(layout, field.name + "_prefix_length").offset, &length,
                  sizeof length);
    }
  }
  return kept;
}

// ---- Actions ----

ActionImage action_image(const pdgen::Action &action, const uint8_t *record) {
  const bindings::Record &layout = record_of(action);
  ActionImage image;
  Bits data;
  for (const pdgen::Param &param : action.params) {
    const size_t whole = whole_bytes(param.width);
    data += param.is_index() ? Bits::repeated(false, 32)
                             : Bits::of_member(record, member_of(layout, param.name)).lowest(whole);
    image.bits = static_cast<uint16_t>(image.bits + param.width);
  }
  image.data = data.bytes();
  return image;
}

namespace {

pipe_mgr_meter_spec_t meter_image(const p4_pd_bytes_meter_spec_t &spec) {
  pipe_mgr_meter_spec_t meter{};
  meter.type = 1;
  meter.committed_rate.value = spec.committed_rate;
  meter.committed_burst = spec.committed_burst;
  meter.peak_rate.value = spec.peak_rate;
  meter.peak_burst = spec.peak_burst;
  return meter;
}

uint32_t tag_of(const pdgen::ResourceItem &item, pdgen::Operation operation, bool has_meter) {
  switch (item.tag) {
    case pdgen::ResourceTag::kAttach:
      return 1;
    case pdgen::ResourceTag::kDetach:
      return 2;
    case pdgen::ResourceTag::kMeterSpec:
      if (has_meter) return 1;
      return operation == pdgen::Operation::kDefault ? 2 : 0;
  }
  return 99;
}

}  // namespace

ActionImage action_image(const pdgen::Pair &pair, pdgen::Operation operation, const uint8_t *record,
                         const p4_pd_bytes_meter_spec_t *meter) {
  ActionImage image = action_image(*pair.action, record);
  image.type = 1;
  for (const pdgen::ResourceItem &item : pair.sent_in(operation)) {
    pipe_mgr_resource_t resource{};
    resource.handle = item.resource->handle;
    if (item.index != nullptr) {
      const auto &member = member_of(record_of(*pair.action), item.index->name);
      resource.index = Bits::of_member(record, member).number();
    }
    resource.tag = tag_of(item, operation, meter != nullptr);
    if (item.tag == pdgen::ResourceTag::kMeterSpec && meter != nullptr) {
      resource.data.meter = meter_image(*meter);
    }
    image.resources.push_back(resource);
  }
  return image;
}

Bytes kept_action_spec(const pdgen::Action &action, const ActionImage &image) {
  const bindings::Record &layout = record_of(action);
  Bytes kept(layout.size);
  std::vector<pipe_mgr_resource_t> attached;
  for (const auto &resource : image.resources) {
    if (resource.tag == 1) attached.push_back(resource);
  }
  size_t at = 0;
  for (const pdgen::Param &param : action.params) {
    const size_t bytes = whole_bytes(param.width) / 8;
    Bits value = Bits::of_bytes(image.data.data() + at, bytes);
    at += bytes;
    if (param.is_index()) {
      uint32_t cell = attached.empty() ? 0xffffffffu : 0;
      for (const auto &source : param.index_of) {
        for (const auto &resource : attached) {
          if (resource.handle == source->handle) cell = resource.index;
        }
      }
      const uint8_t big_endian[] = {static_cast<uint8_t>(cell >> 24),
                                    static_cast<uint8_t>(cell >> 16),
                                    static_cast<uint8_t>(cell >> 8), static_cast<uint8_t>(cell)};
      value = Bits::of_bytes(big_endian, 4);
    }
    value.store(kept.data(), member_of(layout, param.name));
  }
  return kept;
}

}  // namespace pd_test
