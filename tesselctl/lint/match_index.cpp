#include "tesselctl/lint/match_index.hpp"

#include <algorithm>
#include <bit>

#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

constexpr unsigned kPartBits = 32;  // unless one field is wider

// Visits the fields with the part of the key that each begins in, and its place there. Fields of
// 128 bits take two parts.
template <class Visit>
size_t for_each_place(const bindings::Record &record, Visit visit) {
  size_t part = 0;
  unsigned used = 0;
  for (const Field &field : record.shown()) {
    if (used != 0 && used + field.width > kPartBits) ++part, used = 0;
    visit(field, part, used);
    used += field.width;
    if (field.width > 64) ++part;
  }
  return part + 1;
}

}  // namespace

MatchIndex::MatchIndex(const TableInfo &table, std::span<const ItemStore::Item> entries)
    : places_(for_each_place(*table.record, [](const Field &, size_t, unsigned) {})),
      next_(entries.size(), kNone) {
  parts_.reserve(entries.size() * places_.size());
  for (const ItemStore::Item &entry : entries) {
    append(reinterpret_cast<const uint8_t *>(entry.bytes), *table.record);
  }
  for (uint32_t entry = 0; entry < entries.size(); ++entry) {
    for (size_t at = 0; at < places_.size(); ++at) {
      const auto &[mask, value] = parts_of(entry)[at];
      ++places_[at][mask].entries[value].count;
    }
  }
}

void MatchIndex::append(const uint8_t *key, const bindings::Record &record) {
  const size_t first = parts_.size();
  parts_.resize(first + places_.size());
  for_each_place(record, [&](const Field &field, size_t at, unsigned shift) {
    const FieldValue loaded = load_value(field, key);
    const Number mask = loaded.mask & key_bits(field);
    const Number value = loaded.value & mask;
    Part &part = parts_[first + at];
    part = {part.mask | mask.low << shift, part.value | value.low << shift};
    if (field.width > 64) parts_[first + at + 1] = {mask.high, value.high};
  });
}

void MatchIndex::add(uint32_t entry) {
  Group *group = nullptr;
  Alike *alike = nullptr;
  for (size_t at = 0; at < places_.size(); ++at) {
    const auto &[mask, value] = parts_of(entry)[at];
    Group &one = places_[at].at(mask);
    Alike &like = one.entries.at(value);
    if (alike != nullptr && alike->count <= like.count) continue;
    group = &one;
    alike = &like;
  }
  group->is_searched = true;
  next_[entry] = std::exchange(alike->first, entry);
}

bool MatchIndex::covers(uint32_t entry, uint32_t other) const {
  return std::equal(parts_of(entry), parts_of(entry) + places_.size(), parts_of(other),
                    [](const Part &own, const Part &one) {
                      return ((own.mask & ~one.mask) | ((own.value ^ one.value) & own.mask)) == 0;
                    });
}

unsigned MatchIndex::compared_bits(uint32_t entry) const {
  unsigned bits = 0;
  for (size_t at = 0; at < places_.size(); ++at) {
    bits += static_cast<unsigned>(std::popcount(parts_of(entry)[at].mask));
  }
  return bits;
}

}  // namespace tesselctl
