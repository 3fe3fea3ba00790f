#include "tesselctl/value.hpp"

#include <fmt/format.h>

#include <cstring>

namespace tesselctl {

namespace {

bool has(std::string_view text, char c) { return text.find(c) != std::string_view::npos; }

[[noreturn]] void throw_not_a(Word text, const char *what) {
  throw Fault(text, fmt::format("this is not {}", what));
}

std::string limit_text(unsigned width) {
  return width <= 32 ? decimal(low_ones(width).low) : hexadecimal(low_ones(width));
}

Number check_width(const Field &field, Word text, Number value) {
  if (value.fits(field.width)) return value;
  throw Fault(text, fmt::format("{} has {} bit{}, so at most {}", field.label, field.width,
                                field.width == 1 ? "" : "s", limit_text(field.width)));
}

// One value in the notations that fit the width of the field.
Number parse_plain(const Field &field, Word text) {
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
    if (!address) throw_not_a(text, "an IPv4 address");
    return *address;
  }
  const auto number = parse_number(text.text);
  if (!number) {
    if (field.notation == Notation::ipv4) throw_not_a(text, "an IPv4 address");
    if (field.notation == Notation::ipv6) throw_not_a(text, "an IPv6 address");
    if (field.notation == Notation::mac) throw_not_a(text, "a MAC address");
    throw_not_a(text, "a number");
  }
  return check_width(field, text, *number);
}

void check_maskable(const Field &field, Word text) {
  if (field.match == Match::exact) {
    throw Fault(text, field.label + " is matched exactly, so it takes one value");
  }
}

FieldValue parse_prefix(const Field &field, Word text, size_t slash) {
  check_maskable(field, text);
  const Number value = parse_plain(field, text.first(slash));
  const Word length_word = text.from(slash + 1);
  const auto length = parse_number(length_word.text);
  if (!length) throw_not_a(length_word, "a prefix length");
  if (length->high != 0 || length->low > field.width) {
    throw Fault(length_word,
                fmt::format("a prefix of {} has at most {} bits", field.label, field.width));
  }
  const FieldValue parsed = {value, prefix_mask(static_cast<unsigned>(length->low), field.width)};
  if ((value & ~parsed.mask).is_zero()) return parsed;
  throw Fault(text, "the address has bits behind its prefix",
              format_value(field, {value & parsed.mask, parsed.mask}));
}

FieldValue parse_masked(const Field &field, Word text, size_t ampersand) {
  check_maskable(field, text);
  if (field.match == Match::lpm) {
    throw Fault(text, field.label + " takes a prefix (VALUE/LENGTH), not a mask");
  }
  const FieldValue parsed = {parse_plain(field, text.first(ampersand)),
                             parse_plain(field, text.from(ampersand + 1))};
  if ((parsed.value & ~parsed.mask).is_zero()) return parsed;
  throw Fault(text, "the value has bits that its mask leaves out",
              format_value(field, {parsed.value & parsed.mask, parsed.mask}));
}

std::string plain_text(const Field &field, Number value) {
  switch (field.notation) {
    case Notation::ipv4:
      return ipv4_text(static_cast<uint32_t>(value.low));
    case Notation::ipv6:
      return ipv6_text(value);
    case Notation::mac:
      return mac_text(value.low);
    case Notation::number:
      break;
  }
  return value.high == 0 ? decimal(value.low) : hexadecimal(value);
}

}  // namespace

FieldValue parse_value(const Field &field, Word text) {
  if (text.text.empty()) throw Fault(text, field.label + " needs a value");
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
  const Number value = parse_plain(field, text);
  return {value, field.match == Match::ternary ? field.key_bits : low_ones(field.width)};
}

uint64_t parse_limited(Word text, uint64_t limit, const std::string &what) {
  if (text.text.empty()) throw Fault(text, what + " needs a value");
  const auto number = parse_number(text.text);
  if (!number) throw_not_a(text, "a number");
  if (number->high == 0 && number->low <= limit) return number->low;
  throw Fault(text, fmt::format("{} is at most {}", what, limit));
}

std::string format_value(const Field &field, const FieldValue &value) {
  if (field.match == Match::exact) return plain_text(field, value.value);
  const auto length = prefix_length_of(value.mask, field.width);
  if (field.match == Match::lpm) {
    return fmt::format("{}/{}", plain_text(field, value.value), length.value_or(field.width));
  }
  if (value.mask.is_zero()) return "*";
  if (value.mask == field.key_bits) return plain_text(field, value.value);
  const bool address = field.notation == Notation::ipv4 || field.notation == Notation::ipv6;
  if (address && length) return fmt::format("{}/{}", plain_text(field, value.value), *length);
  if (field.notation == Notation::number) {
    return hexadecimal(value.value) + "&" + hexadecimal(value.mask);
  }
  return plain_text(field, value.value) + "&" + plain_text(field, value.mask);
}

namespace {

void store_member(const bindings::Member &member, Number value, uint8_t *record) {
  uint8_t *at = record + member.offset;
  if (member.storage == 16) {
    memcpy(at, to_bytes(value).data(), 16);
  } else if (member.storage == 4) {
    const auto word = static_cast<uint32_t>(value.low);
    memcpy(at, &word, sizeof word);
  } else if (member.storage == 2) {
    const auto word = static_cast<uint16_t>(value.low);
    memcpy(at, &word, sizeof word);
  } else {
    *at = static_cast<uint8_t>(value.low);
  }
}

Number load_member(const bindings::Member &member, const uint8_t *record) {
  const uint8_t *at = record + member.offset;
  if (member.storage == 16) return from_bytes(at, 16);
  if (member.storage == 4) {
    uint32_t word;
    memcpy(&word, at, sizeof word);
    return word;
  }
  if (member.storage == 2) {
    uint16_t word;
    memcpy(&word, at, sizeof word);
    return word;
  }
  return *at;
}

}  // namespace

void store_value(const Field &field, const FieldValue &value, uint8_t *record) {
  unsigned shift = field.width;
  for (const Part &part : field.parts) {
    shift -= part.value->width;
    const Number ones = low_ones(part.value->width);
    store_member(*part.value, value.value >> shift & ones, record);
    if (field.match == Match::ternary) {
      store_member(*part.companion, value.mask >> shift & ones, record);
    } else if (field.match == Match::lpm) {
      store_member(*part.companion, *prefix_length_of(value.mask, field.width), record);
    }
  }
}

FieldValue load_value(const Field &field, const uint8_t *record) {
  FieldValue loaded;
  for (const Part &part : field.parts) {
    const unsigned width = part.value->width;
    loaded.value = loaded.value << width | load_member(*part.value, record);
    Number mask = low_ones(width);
    if (field.match == Match::ternary) {
      mask = load_member(*part.companion, record);
    } else if (field.match == Match::lpm) {
      mask = prefix_mask(static_cast<unsigned>(load_member(*part.companion, record).low), width);
    }
    loaded.mask = loaded.mask << width | mask;
  }
  return loaded;
}

}  // namespace tesselctl
