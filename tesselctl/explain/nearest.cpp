#include "tesselctl/explain/nearest.hpp"

#include <algorithm>
#include <bit>
#include <compare>

#include "tesselctl/program/trace.hpp"
#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

// How far an entry is from the key; the smaller the nearer.
struct Distance {
  unsigned fields = 0;
  unsigned behind_prefix = 0;  // bits of the address behind what it shares with the prefix
  unsigned bits = 0;
  uint32_t priority = 0;

  auto operator<=>(const Distance &) const = default;  // NOLINT(modernize-use-nullptr)
};

class Measure {
 public:
  Measure(const TableInfo &table, const uint8_t *key) : table_(table) {
    for (const Field &field : table.record->shown()) {
      fields_.push_back({&field, load_value(field, key).value});
    }
  }

  Distance of(const ItemView &item) const {
    Distance distance;
    distance.priority = priority_of(table_, item.identity);
    for (const Asked &asked : fields_) {
      const FieldValue there = value_of(asked, item);
      const Number differing = bits_that_differ(asked, there);
      if (!differing.is_zero()) ++distance.fields;
      if (asked.field->match == Match::lpm) {
        const unsigned shared =
            differing.is_zero() ? ones(there.mask) : asked.field->width - width(differing);
        distance.behind_prefix += asked.field->width - shared;
      }
      distance.bits += ones(differing);
    }
    return distance;
  }

  std::vector<const Field *> differing(const ItemView &item) const {
    std::vector<const Field *> fields;
    for (const Asked &asked : fields_) {
      if (!bits_that_differ(asked, value_of(asked, item)).is_zero()) fields.push_back(asked.field);
    }
    return fields;
  }

 private:
  struct Asked {
    const Field *field;
    Number value;
  };
  static unsigned ones(Number number) {
    return static_cast<unsigned>(std::popcount(number.high) + std::popcount(number.low));
  }
  static unsigned width(Number number) {
    return static_cast<unsigned>(number.high != 0 ? 64 + std::bit_width(number.high)
                                                  : std::bit_width(number.low));
  }
  static FieldValue value_of(const Asked &asked, const ItemView &item) {
    return load_value(*asked.field, reinterpret_cast<const uint8_t *>(item.identity.data()));
  }
  static Number bits_that_differ(const Asked &asked, const FieldValue &there) {
    const Number either = (asked.value & ~there.value) | (there.value & ~asked.value);
    return either & there.mask & key_bits(*asked.field);
  }

  const TableInfo &table_;
  std::vector<Asked> fields_;
};

}  // namespace

std::vector<NearEntry> nearest_entries(const Device &device, const TableInfo &table,
                                       const uint8_t *key, Word word, size_t count) {
  // The reads are no calls behind the command.
  const TraceScope quiet(nullptr);
  const Measure measure(table, key);
  EntryReader reader(device, table, EntryReader::Resources::none);
  std::vector<std::pair<Distance, p4_pd_entry_handle_t>> nearest;
  ItemBytes item;
  for_each_entry(device, table, word, [&](p4_pd_entry_handle_t entry) {
    tesselctl::check(reader.read(entry, item), word);
    const std::pair one = {measure.of(item.view()), entry};
    if (nearest.size() == count && nearest.back() <= one) return;
    if (nearest.size() == count) nearest.pop_back();
    nearest.insert(std::ranges::upper_bound(nearest, one), one);
  });
  std::vector<NearEntry> entries;
  for (const auto &[distance, entry] : nearest) {
    tesselctl::check(reader.read(entry, item), word);
    entries.push_back({entry, item, measure.differing(item.view())});
  }
  return entries;
}

}  // namespace tesselctl
