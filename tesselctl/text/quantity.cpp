#include "tesselctl/text/quantity.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <span>

namespace tesselctl {

namespace {

struct Factor {
  std::string_view name;
  uint64_t value;
};
constexpr Factor kFactors[] = {{"k", 1'000},       {"M", 1'000'000},   {"G", 1'000'000'000},
                               {"Ki", 1ull << 10}, {"Mi", 1ull << 20}, {"Gi", 1ull << 30}};
// In nanoseconds.
constexpr Factor kTimes[] = {{"ns", 1},
                             {"us", 1'000},
                             {"ms", 1'000'000},
                             {"s", 1'000'000'000},
                             {"min", 60'000'000'000},
                             {"h", 3'600'000'000'000}};

[[noreturn]] void throw_other_unit(Word text, std::span<const Factor> factors, const Unit &unit,
                                   std::string_view what) {
  std::string names;
  for (const Factor &factor : factors) {
    names += fmt::format("{}{}", names.empty() ? "" : ", ", factor.name);
  }
  throw Fault(
      text, fmt::format("{} is a number of {}, or one with {} behind it", what, unit.name, names));
}

uint64_t factor_of(Word text, std::string_view name, const Unit &unit, std::string_view what) {
  const std::span<const Factor> factors = unit.is_time ? std::span<const Factor>(kTimes) : kFactors;
  const bool has_tail = !unit.tail.empty() && name.ends_with(unit.tail);
  if (has_tail) name.remove_suffix(unit.tail.size());
  if (name.empty()) return has_tail ? 1 : unit.one;
  const auto found = std::ranges::find(factors, name, &Factor::name);
  if (found == factors.end()) throw_other_unit(text, factors, unit, what);
  return found->value;
}

}  // namespace

uint64_t parse_quantity(Word text, const Unit &unit, std::string_view what) {
  const size_t end = std::min(text.text.find_first_not_of("0123456789."), text.text.size());
  const uint64_t factor = factor_of(text, text.text.substr(end), unit, what);
  uint64_t digits = 0;
  uint64_t divisor = unit.one;
  bool is_fraction = false;
  bool is_number = end > 0;
  bool is_too_large = false;
  for (const char c : text.text.substr(0, end)) {
    if (c == '.') {
      is_number = is_number && !is_fraction;
      is_fraction = true;
      continue;
    }
    is_too_large |= __builtin_mul_overflow(digits, uint64_t{10}, &digits) ||
                    __builtin_add_overflow(digits, static_cast<uint64_t>(c - '0'), &digits) ||
                    (is_fraction && __builtin_mul_overflow(divisor, uint64_t{10}, &divisor));
  }
  is_too_large |= __builtin_mul_overflow(digits, factor, &digits);
  if (!is_number) throw Fault(text, "this is not a number");
  if (is_too_large) throw Fault(text, fmt::format("{} has too many digits", what));
  if (digits % divisor == 0) return digits / divisor;
  throw Fault(text, fmt::format("this is no whole number of {}", unit.name));
}

}  // namespace tesselctl
