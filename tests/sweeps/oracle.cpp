#include "oracle.hpp"

#include <algorithm>
#include <bitset>
#include <cstring>

namespace pd_test {

namespace {

// ---- Bits ----

// Digits '0' and '1', the most significant first.
using Bits = std::string;

Bits repeated(bool bit, size_t count) { return Bits(count, bit ? '1' : '0'); }

// The first byte is the highest.
Bits bits_of(const uint8_t *bytes, size_t count) {
  Bits made;
  for (size_t i = 0; i < count; ++i) made += std::bitset<8>(bytes[i]).to_string();
  return made;
}

// Whole bytes only.
Bytes bytes_of(const Bits &bits) {
  EXPECT_EQ(bits.size() % 8, 0u);
  Bytes bytes;
  for (size_t i = 0; i < bits.size(); i += 8) {
    bytes.push_back(static_cast<uint8_t>(std::bitset<8>(bits, i, 8).to_ulong()));
  }
  return bytes;
}

// A member of a record: an integer in host order, which is little-endian, or an array of 16 bytes.
Bits bits_of(const uint8_t *record, const bindings::Member &member) {
  Bytes bytes(record + member.offset, record + member.offset + member.storage);
  if (member.storage != 16) std::ranges::reverse(bytes);
  return bits_of(bytes.data(), bytes.size());
}
void store(const Bits &bits, uint8_t *record, const bindings::Member &member) {
  Bytes bytes = bytes_of(repeated(false, 8 * member.storage - bits.size()) + bits);
  if (member.storage != 16) std::ranges::reverse(bytes);
  std::memcpy(record + member.offset, bytes.data(), bytes.size());
}

Bits lowest(const Bits &bits, size_t count) { return bits.substr(bits.size() - count); }

Bits both(Bits left, const Bits &right) {
  for (size_t i = 0; i < left.size(); ++i) left[i] = std::min(left[i], right.at(i));
  return left;
}

uint32_t number(const Bits &bits) {
  return static_cast<uint32_t>(std::bitset<32>(bits).to_ulong());
}

// ---- Keys ----

size_t whole_bytes(unsigned width) { return (width + 7) / 8 * 8; }

// All bits of a field's bytes, those that take part set.
Bits ones_of_width(const pdgen::KeyField &field) {
  return repeated(false, whole_bytes(field.width) - field.width) + repeated(true, field.width);
}

struct FieldImage {
  Bits value;
  Bits mask;
  std::optional<uint32_t> priority;
  std::optional<uint32_t> prefix_length;  // as read back
};

FieldImage lpm_image(const pdgen::KeyField &field, Bits value, uint32_t length, uint32_t key_bits) {
  if (length > field.width) {
    return {value, repeated(true, field.width), key_bits + 1, field.width};
  }
  const Bits mask = repeated(true, length) + repeated(false, field.width - length);
  return {both(value, mask), mask, field.width - length, length};
}

FieldImage field_image(const pdgen::Table &table, const pdgen::KeyField &field,
                       const uint8_t *record) {
  const bindings::Record &layout = record_of(table);
  const auto bits_of = [&](const std::string &name) {
    return pd_test::bits_of(record, member_of(layout, name));
  };
  const size_t whole = whole_bytes(field.width);
  const Bits value = lowest(bits_of(field.name), whole);
  if (field.match == pdgen::Match::kLpm) {
    return lpm_image(field, value, number(bits_of(field.name + "_prefix_length")), table.key_bits);
  }
  if (field.match == pdgen::Match::kTernary) {
    const Bits mask = lowest(bits_of(field.name + "_mask"), whole);
    return {both(value, mask), both(mask, ones_of_width(field)), {}, {}};
  }
  if (table.kind == pdgen::TableKind::kTernary) return {value, ones_of_width(field), {}, {}};
  return {value, repeated(true, whole), {}, {}};
}

}  // namespace

MatchSpec key_image(const pdgen::Table &table, const uint8_t *record, uint32_t priority) {
  MatchSpec image;
  Bits value;
  Bits mask;
  if (table.kind == pdgen::TableKind::kTernary) image.priority = priority;
  for (const auto &name : table.key_order) {
    const pdgen::KeyField &field = *name;
    const FieldImage part = field_image(table, field, record);
    value += part.value;
    mask += part.mask;
    if (part.priority) image.priority = *part.priority;
    image.valid_bit_count = static_cast<uint16_t>(image.valid_bit_count + field.width);
  }
  image.value = bytes_of(value);
  image.mask = bytes_of(mask);
  image.byte_count = static_cast<uint16_t>(image.value->size());
  return image;
}

Bytes kept_match_spec(const pdgen::Table &table, const uint8_t *record) {
  const bindings::Record &layout = record_of(table);
  Bytes kept(layout.size);
  for (const pdgen::KeyField &field : table.key) {
    const FieldImage part = field_image(table, field, record);
    store(part.value, kept.data(), member_of(layout, field.name));
    if (field.match == pdgen::Match::kTernary) {
      store(part.mask, kept.data(), member_of(layout, field.name + "_mask"));
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

ActionSpec action_image(const pdgen::Action &action, const uint8_t *record) {
  const bindings::Record &layout = record_of(action);
  ActionSpec image;
  Bits data;
  for (size_t at = 0; at < action.params.size(); ++at) {
    const pdgen::Param &param = action.params[at];
    const size_t whole = whole_bytes(param.width);
    data += param.is_index() ? repeated(false, 32)
                             : lowest(bits_of(record, member_of(layout, param.name, at)), whole);
    image.data.valid_bit_count = static_cast<uint16_t>(image.data.valid_bit_count + param.width);
  }
  image.data.bytes = bytes_of(data);
  image.data.byte_count = static_cast<uint16_t>(image.data.bytes->size());
  return image;
}

pipe_mgr_meter_spec_t meter_image(const p4_pd_bytes_meter_spec_t &spec, const pdgen::Resource &of) {
  const uint32_t unit = of.unit == pdgen::MeterUnit::kPackets ? PIPE_RATE_PACKETS : PIPE_RATE_BYTES;
  pipe_mgr_meter_spec_t meter{};
  meter.type = 1;
  meter.committed_rate = {unit, spec.committed_rate};
  meter.committed_burst = spec.committed_burst;
  meter.peak_rate = {unit, spec.peak_rate};
  meter.peak_burst = spec.peak_burst;
  return meter;
}

namespace {

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

ActionSpec action_image(const pdgen::Pair &pair, pdgen::Operation operation, const uint8_t *record,
                        const p4_pd_bytes_meter_spec_t *meter) {
  ActionSpec image = action_image(*pair.action, record);
  image.type = 1;
  for (const pdgen::ResourceItem &item : pair.sent_in(operation)) {
    pipe_mgr_resource_t resource{};
    resource.handle = item.resource->handle;
    if (item.index != nullptr) {
      const auto &member = member_of(record_of(*pair.action), item.index->name);
      resource.index = number(bits_of(record, member));
    }
    resource.tag = tag_of(item, operation, meter != nullptr);
    if (item.tag == pdgen::ResourceTag::kMeterSpec && meter != nullptr) {
      resource.data.meter = meter_image(*meter, *item.resource);
    }
    image.resources.push_back(resource);
    ++image.resource_count;
  }
  return image;
}

Bytes kept_action_spec(const pdgen::Action &action, const ActionSpec &image) {
  const bindings::Record &layout = record_of(action);
  Bytes kept(layout.size);
  std::vector<pipe_mgr_resource_t> attached;
  for (const auto &resource : image.resources) {
    if (resource.tag == 1) attached.push_back(resource);
  }
  size_t at = 0;
  for (size_t i = 0; i < action.params.size(); ++i) {
    const pdgen::Param &param = action.params[i];
    const size_t bytes = whole_bytes(param.width) / 8;
    Bits value = bits_of(image.data.bytes->data() + at, bytes);
    at += bytes;
    if (param.is_index()) {
      uint32_t cell = attached.empty() ? 0xffffffffu : 0;
      for (const auto &source : param.index_of) {
        for (const auto &resource : attached) {
          if (resource.handle == source->handle) cell = resource.index;
        }
      }
      value = std::bitset<32>(cell).to_string();
    }
    store(value, kept.data(), member_of(layout, param.name, i));
  }
  return kept;
}

}  // namespace pd_test
