#include "tesselctl/program/value.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cstring>

#include "common/nearest.hpp"
#include "tesselctl/program/known_numbers.hpp"
#include "tesselctl/text/row.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

namespace {

bool has(std::string_view text, char c) { return text.find(c) != std::string_view::npos; }

[[noreturn]] void throw_not_a(Word text, const char *what) {
  throw Fault(text, fmt::format("this is not {}", what));
}

[[noreturn]] void throw_no_value(const Field &field, Word text) {
  switch (field.notation) {
    case Notation::ipv4:
      throw_not_a(text, "an IPv4 address");
    case Notation::ipv6:
      throw_not_a(text, "an IPv6 address");
    case Notation::mac:
      throw_not_a(text, "a MAC address");
    default:
      break;
  }
  const auto known = known_numbers(field.notation);
  if (known.empty()) throw_not_a(text, "a number");
  common::Nearest near(text.text);
  for (const KnownNumber &one : known) near.consider(one.name);
  throw Fault(text,
              fmt::format("this is neither a number nor the name of a {}",
                          field.notation == Notation::protocol ? "protocol" : "service"),
              near.name());
}

std::string limit_text(unsigned width) {
  return width <= 32 ? decimal(low_ones(width).low) : hexadecimal(low_ones(width));
}

Number check_width(const Field &field, Word text, Number value) {
  if (value.fits(field.width)) return value;
  throw Fault(text, fmt::format("{} has {} bit{}, so at most {}", field.label, field.width,
                                field.width == 1 ? "" : "s", limit_text(field.width)));
}

}  // namespace

Number parse_single(const Field &field, Word text) {
  const bool colon = has(text.text, ':');
  const bool dot = has(text.text, '.');
  if (field.width == 48 && (colon || dot || has(text.text, '-'))) {
    const auto mac = parse_mac(text.text);
    if (!mac) throw_not_a(text, "a MAC address");
    return *mac;
  }
  if (field.width == 128 && colon) {
    const auto address = parse_ipv6(text.text);
    if (!address) throw_not_a(text, "an IPv6 address");
    return *address;
  }
  if (field.width == 32 && dot) {
    const auto address = parse_ipv4(text.text);
    if (address) return *address;
    throw Fault(text, "this is not an IPv4 address", completed_ipv4(text.text));
  }
  const auto number = parse_number(text.text);
  if (!number) {
    if (const KnownNumber *known = find_known_number(field.notation, text.text)) {
      return check_width(field, text, known->number);
    }
    throw_no_value(field, text);
  }
  return check_width(field, text, *number);
}

namespace {

void check_maskable(const Field &field, Word text) {
  if (field.match == Match::exact) {
    throw Fault(text, fmt::format("{} is matched exactly, so it takes one value", field.label));
  }
}

FieldValue parse_prefix(const Field &field, Word text, size_t slash) {
  check_maskable(field, text);
  const Number value = parse_single(field, text.first(slash));
  const Word length_word = text.from(slash + 1);
  const auto length = parse_number(length_word.text);
  if (!length) throw_not_a(length_word, "a prefix length");
  if (length->high != 0 || length->low > field.width) {
    throw Fault(length_word,
                fmt::format("a prefix of {} has at most {} bits", field.label, field.width));
  }
  const FieldValue parsed = {value, prefix_mask(static_cast<unsigned>(length->low), field.width)};
  if ((value & ~parsed.mask).is_zero()) return parsed;
  if (field.notation == Notation::protocol || field.notation == Notation::service) {
    throw Fault(text, "the value has bits behind its prefix",
                std::string(text.text.substr(0, slash)));
  }
  const bool is_short = field.notation == Notation::ipv4 && !has(text.text, '.');
  const auto meant =
      is_short ? parse_ipv4(completed_ipv4(text.text.substr(0, slash))) : std::nullopt;
  throw Fault(text, meant ? "the address is not whole" : "the address has bits behind its prefix",
              format_value(field, {(meant ? *meant : value) & parsed.mask, parsed.mask}));
}

}  // namespace

FieldValue parse_masked(const Field &field, Word text, size_t separator) {
  check_maskable(field, text);
  if (field.match == Match::lpm) {
    throw Fault(text, fmt::format("{} takes a prefix (VALUE/LENGTH), not a mask", field.label));
  }
  const FieldValue parsed = {parse_single(field, text.first(separator)),
                             parse_single(field, text.from(separator + 1))};
  if ((parsed.value & ~parsed.mask).is_zero()) return parsed;
  throw Fault(text, "the value has bits that its mask leaves out",
              format_value(field, {parsed.value & parsed.mask, parsed.mask}));
}

std::string format_single(const Field &field, Number value) {
  switch (field.notation) {
    case Notation::ipv4:
      return ipv4_text(static_cast<uint32_t>(value.low));
    case Notation::ipv6:
      return ipv6_text(value);
    case Notation::mac:
      return mac_text(value.low);
    default:
      break;
  }
  return value.high == 0 ? decimal(value.low) : hexadecimal(value);
}

FieldValue parse_value(const Field &field, Word text) {
  if (text.text.empty()) throw Fault(text, fmt::format("{} needs a value", field.label));
  if (text.text == "*") {
    check_maskable(field, text);
    return {};
  }
  if (const size_t at = text.text.find('&'); at != std::string_view::npos) {
    return parse_masked(field, text, at);
  }
  if (const size_t at = text.text.find('/'); at != std::string_view::npos) {
    return parse_prefix(field, text, at);
  }
  if (text.text.find(kRange) != std::string_view::npos) {
    throw Fault(text, fmt::format("{} takes one value here, not a range", field.label));
  }
  const Number value = parse_single(field, text);
  return {value, field.match == Match::ternary ? key_bits(field) : low_ones(field.width)};
}

uint64_t parse_limited(Word text, uint64_t limit, const std::string &what, uint64_t least,
                       const Unit *unit) {
  if (text.text.empty()) throw Fault(text, what + " needs a value");
  auto number = parse_number(text.text);
  if (!number && unit != nullptr) number = parse_quantity(text, *unit, what);
  if (!number) throw_not_a(text, "a number");
  if (number->high == 0 && number->low <= limit && number->low >= least) return number->low;
  throw Fault(text, least == 0 ? fmt::format("{} is at most {}", what, limit)
                               : fmt::format("{} is {} to {}", what, least, limit));
}

std::vector<uint64_t> number_list(Word word, uint64_t limit) {
  std::vector<uint64_t> numbers;
  const bool is_open = word.text.ends_with(',');
  while (!word.text.empty())
    numbers.push_back(parse_limited(take_until(word, ','), limit, "a number"));
  if (is_open) throw Fault(word, "a number needs a value");
  return numbers;
}

float parse_real(Word text, std::string_view what, float limit) {
  const auto number = parse_float(text.text);
  if (number && *number <= limit) return *number;
  throw Fault(text, fmt::format("{} is a number from 0 to {}, like 0.25", what, limit));
}

float parse_real(Word text, std::string_view what, const Unit &unit) {
  const bool has_unit = !text.text.empty() && std::isalpha(text.text.back()) != 0;
  return has_unit ? static_cast<float>(parse_quantity(text, unit, what)) : parse_real(text, what);
}

std::string format_value(const Field &field, const FieldValue &value) {
  if (field.match == Match::exact) return format_single(field, value.value);
  const auto length = prefix_length_of(value.mask, field.width);
  if (field.match == Match::lpm) {
    return fmt::format("{}/{}", format_single(field, value.value), length.value_or(field.width));
  }
  if (value.mask.is_zero()) return "*";
  if (value.mask == key_bits(field)) return format_single(field, value.value);
  const bool address = field.notation == Notation::ipv4 || field.notation == Notation::ipv6;
  if (address && length) return fmt::format("{}/{}", format_single(field, value.value), *length);
  if (!address && field.notation != Notation::mac) {
    return hexadecimal(value.value) + "&" + hexadecimal(value.mask);
  }
  return format_single(field, value.value) + "&" + format_single(field, value.mask);
}

namespace {

// Those that format_value makes values of.
std::string_view characters_of(const Field &field) {
  switch (field.notation) {
    case Notation::ipv4:
      return "0123456789./&";
    case Notation::ipv6:
      return "0123456789abcdef:./&";
    case Notation::mac:
      return "0123456789abcdef:/&";
    default:
      break;
  }
  const bool decimal = field.match != Match::ternary && field.width <= 64;
  return decimal ? "0123456789/" : "0123456789abcdefx/&";
}

}  // namespace

bool matches_value(const Field &field, std::string_view shown, Word written) {
  if (is_pattern(written.text)) return matches_pattern(shown, written, characters_of(field));
  Field maskable = field;
  if (field.match == Match::exact) maskable.match = Match::ternary;
  return parse_value(maskable, written) == parse_value(maskable, {shown, 0});
}

namespace {

// Both ABIs are little-endian, so the first bytes of a word are the integer of that size.
void store_member(const bindings::Member &member, Number value, uint8_t *record) {
  uint8_t *at = record + member.offset;
  if (member.is_bytes) {
    const auto bytes = to_bytes(value);
    std::copy(bytes.end() - member.storage, bytes.end(), at);
  } else {
    memcpy(at, &value.low, member.storage);
  }
}

Number load_member(const bindings::Member &member, const uint8_t *record) {
  const uint8_t *at = record + member.offset;
  if (member.is_bytes) return from_bytes(at, member.storage);
  uint64_t word = 0;
  memcpy(&word, at, member.storage);
  return word;
}

}  // namespace

void store_value(const Field &field, const FieldValue &value, uint8_t *record) {
  unsigned shift = field.width;
  for (size_t i = 0; i < field.part_count(); ++i) {
    const bindings::Member *part = field.parts[i];
    shift -= part->width;
    const Number ones = low_ones(part->width);
    store_member(*part, value.value >> shift & ones, record);
    if (field.match == Match::ternary) {
      store_member(part[1], value.mask >> shift & ones, record);
    } else if (field.match == Match::lpm) {
      store_member(part[1], *prefix_length_of(value.mask, field.width), record);
    }
  }
}

FieldValue load_value(const Field &field, const uint8_t *record) {
  FieldValue loaded;
  for (size_t i = 0; i < field.part_count(); ++i) {
    const bindings::Member *part = field.parts[i];
    const unsigned width = part->width;
    loaded.value = loaded.value << width | load_member(*part, record);
    Number mask = low_ones(width);
    if (field.match == Match::ternary) {
      mask = load_member(part[1], record);
    } else if (field.match == Match::lpm) {
      const uint64_t length = load_member(part[1], record).low;
      mask = prefix_mask(static_cast<unsigned>(std::min<uint64_t>(length, width)), width);
    }
    loaded.mask = loaded.mask << width | mask;
  }
  return loaded;
}

}  // namespace tesselctl
