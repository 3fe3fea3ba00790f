#include "tesselctl/text/route_file.hpp"

#include <fmt/format.h>

#include <cstring>
#include <optional>

#include "tesselctl/text/number.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

namespace {

constexpr const char *kBitsBehind = "the address has bits behind its prefix";

// A cursor over one line.
struct Cursor {
  const char *at;
  const char *end;

  bool take(char c) {
    if (at == end || *at != c) return false;
    ++at;
    return true;
  }
  // A decimal number of at most 5 digits.
  bool number(uint32_t &value) {
    const char *begin = at;
    value = 0;
    while (at != end && at - begin < 5 && *at >= '0' && *at <= '9') {
      value = value * 10 + static_cast<uint32_t>(*at++ - '0');
    }
    return at != begin;
  }
  void skip_space() {
    while (at != end && (*at == ' ' || *at == '\t')) ++at;
  }
  bool done() {
    skip_space();
    return at == end || *at == '#' || (*at == '\r' && at + 1 == end);
  }
};

class RouteParser {
 public:
  RouteParser(uint16_t default_nexthop, uint16_t limit)
      : default_nexthop_(default_nexthop), limit_(limit) {}

  RouteFile take() { return std::move(file_); }

  // Adds the route of the line, or gives what is wrong with it.
  std::optional<RouteFault> parse_line(std::string_view text, uint32_t line) {
    Cursor cursor{text.data(), text.data() + text.size()};
    const char *const begin = cursor.at;
    if (cursor.done()) return {};
    Ipv4Route route4;
    Ipv6Route route6;
    uint32_t length = 0;
    const bool is_ipv6 =
        memchr(cursor.at, ':', static_cast<size_t>(cursor.end - cursor.at)) != nullptr;
    const char *problem = is_ipv6 ? parse_ipv6_prefix(cursor, route6, length)
                                  : parse_ipv4_prefix(cursor, route4, length);
    std::string suggestion;
    if (problem != nullptr && !is_ipv6) {
      const std::string_view prefix = trimmed(text);
      suggestion = suggestion_for(prefix.substr(0, prefix.find_first_of(" \t#")));
    }
    uint32_t nexthop = default_nexthop_;
    if (problem == nullptr && !cursor.done()) problem = parse_nexthop(cursor, nexthop, suggestion);
    if (problem != nullptr) {
      return RouteFault{line, static_cast<size_t>(cursor.at - begin) + 1, problem + suggestion};
    }
    if (is_ipv6) {
      route6.length = static_cast<uint8_t>(length);
      route6.nexthop = static_cast<uint16_t>(nexthop);
      route6.line = line;
      file_.ipv6.push_back(route6);
    } else {
      route4.length = static_cast<uint8_t>(length);
      route4.nexthop = static_cast<uint16_t>(nexthop);
      route4.line = line;
      file_.ipv4.push_back(route4);
    }
    return {};
  }

 private:
  // Of a network whose address is not whole, or has bits behind its prefix.
  static std::string suggestion_for(std::string_view prefix) {
    const size_t slash = std::min(prefix.find('/'), prefix.size());
    const std::string address = completed_ipv4(prefix.substr(0, slash));
    const std::string meant = address + std::string(prefix.substr(slash));
    Cursor cursor{meant.data(), meant.data() + meant.size()};
    Ipv4Route route;
    uint32_t length = 0;
    const char *const problem = parse_ipv4_prefix(cursor, route, length);
    if (!cursor.done() || (problem != nullptr && problem != kBitsBehind)) return {};
    const auto mask = static_cast<uint32_t>(~uint64_t{0} << (32 - length));
    return fmt::format("; did you mean '{}/{}'?", ipv4_text(route.address & mask), length);
  }

  const char *parse_nexthop(Cursor &cursor, uint32_t &nexthop, std::string &suggestion) const {
    const char *const begin = cursor.at;
    if (!cursor.number(nexthop)) return "this is not a next hop";
    if (nexthop > limit_) {
      cursor.at = begin;
      suggestion = fmt::format("; it is at most {}", limit_);
      return "the next hop is too large";
    }
    return cursor.done() ? nullptr : "nothing should stand here";
  }

  // The problem, with the cursor where it is, or null with the cursor behind the prefix.
  static const char *parse_ipv4_prefix(Cursor &cursor, Ipv4Route &route, uint32_t &length) {
    uint32_t address = 0;
    for (int part = 0; part < 4; ++part) {
      uint32_t value;
      if (part > 0 && !cursor.take('.')) return "this is not an IPv4 address";
      if (!cursor.number(value) || value > 255) return "this is not an IPv4 address";
      address = address << 8 | value;
    }
    if (!cursor.take('/')) return "there should be a '/' and a prefix length";
    if (!cursor.number(length) || length > 32) return "this is not a prefix length";
    route.address = address;
    return length < 32 && (address << length) != 0 ? kBitsBehind : nullptr;
  }

  static const char *parse_ipv6_prefix(Cursor &cursor, Ipv6Route &route, uint32_t &length) {
    const char *begin = cursor.at;
    while (cursor.at != cursor.end && *cursor.at != '/' && *cursor.at != ' ') ++cursor.at;
    const auto address = parse_ipv6({begin, static_cast<size_t>(cursor.at - begin)});
    if (!address) {
      cursor.at = begin;
      return "this is not an IPv6 address";
    }
    if (!cursor.take('/')) return "there should be a '/' and a prefix length";
    if (!cursor.number(length) || length > 128) return "this is not a prefix length";
    if (!(*address & ~prefix_mask(length, 128)).is_zero()) {
      return kBitsBehind;
    }
    route.address = to_bytes(*address);
    return nullptr;
  }

  RouteFile file_;
  uint16_t default_nexthop_;
  uint16_t limit_;
};

}  // namespace

RouteFile parse_routes(const LineSource &lines, uint16_t default_nexthop, uint16_t limit,
                       const std::function<void(const RouteFault &)> &fault) {
  RouteParser parser(default_nexthop, limit);
  std::string_view text;
  for (uint32_t line = 1; lines(text); ++line) {
    if (const auto wrong = parser.parse_line(text, line)) fault(*wrong);
  }
  return parser.take();
}

}  // namespace tesselctl
