// Rules and packets for benchmarks of access lists, in several shapes.
#pragma once

#include <cstdint>
#include <vector>

namespace bench {

// Bits without a mask are 0.
struct Masked {
  uint32_t value;
  uint32_t mask;
};

struct Rule {
  Masked source;
  Masked destination;
  Masked source_port;
  Masked destination_port;
  Masked protocol;
};

enum class Shape {
  access,    // pairs of nested networks, well-known services, few masks
  firewall,  // mostly any source, single hosts and services
  ranges,    // ranges of ports, as the prefixes that they fall into
  lengths,   // every rule with prefixes of its own lengths: as many masks as there can be
  overlaps,  // short prefixes everywhere: a packet matches hundreds of rules
};

// Exactly so many, no two the same, the same ones each time.
std::vector<Rule> make_rules(Shape shape, uint32_t count);

// Nine of ten packets match a rule, if not an earlier one; the masks are all ones.
std::vector<Rule> make_packets(const std::vector<Rule> &rules, uint32_t count);

}  // namespace bench
