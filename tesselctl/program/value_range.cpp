#include "tesselctl/program/value_range.hpp"

#include <fmt/format.h>

namespace tesselctl {

namespace {

// Of an exact field.
constexpr uint64_t kMostValues = 65536;

ValueRange parse_bounds(const Field &field, Word text) {
  const size_t dots = text.text.find(kRange);
  const Word low = text.first(dots);
  const Word high = text.from(dots + kRange.size());
  if (low.text.empty() || high.text.empty()) throw Fault(text, "a range is LOW..HIGH");
  const ValueRange range = {parse_single(field, low), parse_single(field, high)};
  if (range.low <= range.high) return range;
  throw Fault(text, "the range ends before it begins",
              fmt::format("{}{}{}", high.text, kRange, low.text));
}

std::vector<FieldValue> each_of(const Field &field, const ValueRange &range, Word text) {
  if (range.high - range.low >= Number(kMostValues)) {
    throw Fault(text, fmt::format("{} is matched exactly, so each value is an entry, and these are "
                                  "more than {}",
                                  field.label, kMostValues));
  }
  std::vector<FieldValue> values;
  for (Number value = range.low;; value = value + 1) {
    values.push_back({value, low_ones(field.width)});
    if (value == range.high) return values;
  }
}

}  // namespace

std::vector<FieldValue> prefixes_of(ValueRange range, unsigned width) {
  std::vector<FieldValue> prefixes;
  while (true) {
    // The longest block that begins there and ends in the range.
    unsigned bits = 0;
    Number last = range.low;
    while (bits < width && (range.low & low_ones(bits + 1)).is_zero() &&
           (range.low | low_ones(bits + 1)) <= range.high) {
      ++bits;
      last = range.low | low_ones(bits);
    }
    prefixes.push_back({range.low, prefix_mask(width - bits, width)});
    if (last == range.high) return prefixes;
    range.low = last + 1;
  }
}

unsigned range_width(const Field &field) {
  return 128 - prefix_length_of(~key_bits(field), 128).value_or(128);
}

std::vector<FieldValue> parse_range(const Field &field, Word text) {
  const ValueRange range = parse_bounds(field, text);
  const unsigned width = range_width(field);
  if (range.high.fits(width)) {
    return field.match == Match::exact ? each_of(field, range, text) : prefixes_of(range, width);
  }
  throw Fault(
      text, width == 0
                ? fmt::format("the key takes single bits of {}, which have no ranges", field.label)
                : fmt::format("the key takes {} bits of {}, so a range ends at {}", width,
                              field.label, format_single(field, low_ones(width))));
}

std::string format_range(const Field &field, const ValueRange &range) {
  return fmt::format("{}{}{}", format_single(field, range.low), kRange,
                     format_single(field, range.high));
}

std::optional<ValueRange> range_of(const Field &field, const FieldValue &value) {
  const unsigned width = range_width(field);
  const bool is_prefix = value.mask.fits(width) && prefix_length_of(value.mask, width).has_value();
  if (width == 0 || !is_prefix || !(value.value & ~value.mask).is_zero()) return {};
  return ValueRange{value.value, value.value | (~value.mask & low_ones(width))};
}

}  // namespace tesselctl
