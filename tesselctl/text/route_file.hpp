// Files of routes: one "prefix[ nexthop]" a line, '#' comments, blank lines.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/text/files.hpp"

namespace tesselctl {

struct Ipv4Route {
  uint32_t address;
  uint8_t length;
  uint16_t nexthop;
  uint32_t line;  // of the file, counted from 1
};

struct Ipv6Route {
  std::array<uint8_t, 16> address;
  uint8_t length;
  uint16_t nexthop;
  uint32_t line;
};

struct RouteFault {
  uint32_t line;
  size_t column;
  std::string message;
};

struct RouteFile {
  std::vector<Ipv4Route> ipv4;
  std::vector<Ipv6Route> ipv6;
};

// Next hops are numbers up to limit; default_nexthop is that of lines without one. Lines that are
// no route are left out and given to fault.
RouteFile parse_routes(const LineSource &lines, uint16_t default_nexthop, uint16_t limit,
                       const std::function<void(const RouteFault &)> &fault);

}  // namespace tesselctl
