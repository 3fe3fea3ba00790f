#include "tesselctl/program/value_scanner.hpp"

#include <cstring>

namespace tesselctl {

namespace {

// 16 for what is no hexadecimal digit.
unsigned digit_of(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
  return 16;
}

}  // namespace

Word ValueScanner::here() const {
  const std::string_view left = rest();
  size_t end = left.find_first_of(" ,()");
  if (end == 0) end = 1;
  return {left.substr(0, end), column()};
}

void ValueScanner::fail(std::string_view wanted) const {
  if (rest().empty())
    throw Fault({"end of line", column()}, std::string(wanted) + " should follow");
  throw Fault(here(), std::string(wanted) + " should stand here");
}

void ValueScanner::expect(std::string_view literal) {
  if (!accept(literal)) fail("'" + std::string(literal) + "'");
}

bool ValueScanner::accept(std::string_view literal) {
  if (!rest().starts_with(literal)) return false;
  at_ += literal.size();
  return true;
}

uint64_t ValueScanner::hexadecimal() {
  const ValueScanner before = *this;
  if (!accept("0x")) fail("a hexadecimal number");
  const size_t begin = at_;
  uint64_t value = 0;
  for (unsigned digit; at_ < text_.size() && (digit = digit_of(text_[at_])) < 16; ++at_) {
    if (value >> 60 != 0) throw Fault(before.here(), "this has more than 64 bits");
    value = value << 4 | digit;
  }
  if (at_ == begin) fail("a hexadecimal digit");
  return value;
}

int64_t ValueScanner::decimal() {
  const ValueScanner before = *this;
  const bool negative = accept("-");
  const size_t begin = at_;
  int64_t value = 0;
  for (; at_ < text_.size() && text_[at_] >= '0' && text_[at_] <= '9'; ++at_) {
    value = value * 10 + (text_[at_] - '0');
    if (value > INT64_C(0xffffffff)) throw Fault(before.here(), "this has more than 32 bits");
  }
  if (at_ == begin) fail("a decimal number");
  return negative ? -value : value;
}

std::string_view ValueScanner::quoted() {
  expect("'");
  const size_t end = rest().find('\'');
  if (end == std::string_view::npos) fail("a name in quotes");
  const std::string_view name = rest().substr(0, end);
  at_ += end + 1;
  return name;
}

void ValueScanner::array(uint8_t *bytes) {
  expect("0x");
  for (size_t i = 0; i < 16; ++i, at_ += 2) {
    const unsigned high = at_ < text_.size() ? digit_of(text_[at_]) : 16;
    const unsigned low = at_ + 1 < text_.size() ? digit_of(text_[at_ + 1]) : 16;
    if (high > 15 || low > 15) fail("a number of 32 hexadecimal digits");
    bytes[i] = static_cast<uint8_t>(high << 4 | low);
  }
}

void ValueScanner::record(const bindings::Record &record, uint8_t *bytes) {
  unsigned width = 0;  // of the field before
  for (const bindings::Member &member : record.member_list()) {
    if (member.is_bytes) {
      array(bytes + member.offset);
      width = member.width;
    } else {
      const ValueScanner before = *this;
      const uint64_t value = hexadecimal();
      if (member.width < 64 && value >> member.width != 0) {
        throw Fault(before.here(), std::string(member.name) + " has " +
                                       std::to_string(member.width) + " bits, so this is too much");
      }
      if (member.role == bindings::Role::prefix_length && value > width) {
        throw Fault(before.here(), "a prefix has at most " + std::to_string(width) + " bits");
      }
      width = member.width;
      memcpy(bytes + member.offset, &value, member.storage);
    }
    expect(",");
  }
}

}  // namespace tesselctl
