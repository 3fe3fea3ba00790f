#include "rules.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <set>

namespace bench {

namespace {

using Random = std::independent_bits_engine<std::mt19937, 32, uint32_t>;

uint32_t below(Random &random, uint32_t limit) { return random() % limit; }

Masked prefix(uint32_t value, unsigned length, unsigned width) {
  const uint32_t all = width == 32 ? 0xffffffffu : (1u << width) - 1;
  const uint32_t mask = length == 0 ? 0 : all << (width - length) & all;
  return {value & mask, mask};
}

constexpr Masked any = {0, 0};

Masked exactly(uint32_t value, unsigned width) { return prefix(value, width, width); }

template <size_t Size>
uint32_t one_of(Random &random, const std::array<uint32_t, Size> &values) {
  return values[below(random, Size)];
}

uint32_t service(Random &random) {
  return one_of(random,
                std::array<uint32_t, 12>{20, 21, 22, 25, 53, 80, 123, 161, 443, 445, 3389, 8080});
}

Masked protocol(Random &random) {
  const uint32_t kind = below(random, 10);
  return kind < 6 ? exactly(6, 8) : kind < 9 ? exactly(17, 8) : any;
}

// Half of the networks lie within one of 64 others.
Masked network(Random &random) {
  const uint32_t block = below(random, 64) * 0x02410000u + 0x0a000000u;
  const unsigned length = one_of(random, std::array<uint32_t, 8>{16, 20, 24, 24, 26, 28, 32, 32});
  return prefix(below(random, 2) == 0 ? block | random() % 0x10000 : random(), length, 32);
}

Rule access_rule(Random &random) {
  const bool has_port = below(random, 10) < 7;
  return {below(random, 8) == 0 ? any : network(random), network(random), any,
          has_port ? exactly(service(random), 16) : any, protocol(random)};
}

Rule firewall_rule(Random &random) {
  const bool has_source = below(random, 4) == 0;
  return {has_source ? network(random) : any, exactly(0x0a000000u | random() % 0x100000, 32), any,
          exactly(service(random), 16), protocol(random)};
}

// A prefix of those that a range from any port to any other falls into.
Masked range_part(Random &random) { return prefix(random(), 1 + below(random, 16), 16); }

Rule range_rule(Random &random) {
  return {network(random), network(random), below(random, 3) == 0 ? range_part(random) : any,
          range_part(random), protocol(random)};
}

Rule length_rule(Random &random) {
  return {prefix(random(), 1 + below(random, 32), 32), prefix(random(), 1 + below(random, 32), 32),
          prefix(random(), below(random, 17), 16), prefix(random(), below(random, 17), 16),
          protocol(random)};
}

Rule overlap_rule(Random &random) {
  return {prefix(random(), below(random, 9), 32), prefix(random(), below(random, 9), 32),
          prefix(random(), below(random, 5), 16), prefix(random(), below(random, 5), 16),
          protocol(random)};
}

bool is_less(const Rule &a, const Rule &b) { return std::memcmp(&a, &b, sizeof a) < 0; }

uint32_t filled(Random &random, const Masked &masked, uint32_t all) {
  return masked.value | (random() & all & ~masked.mask);
}

}  // namespace

std::vector<Rule> make_rules(Shape shape, uint32_t count) {
  static constexpr Rule (*makers[])(Random &) = {access_rule, firewall_rule, range_rule,
                                                 length_rule, overlap_rule};
  Random random(std::mt19937{1});
  std::set<Rule, decltype(&is_less)> seen(is_less);
  std::vector<Rule> rules;
  while (rules.size() < count) {
    const Rule rule = makers[static_cast<size_t>(shape)](random);
    if (seen.insert(rule).second) rules.push_back(rule);
  }
  return rules;
}

std::vector<Rule> make_packets(const std::vector<Rule> &rules, uint32_t count) {
  Random random(std::mt19937{2});
  std::vector<Rule> packets;
  for (uint32_t i = 0; i < count; ++i) {
    Rule from = rules[below(random, static_cast<uint32_t>(rules.size()))];
    if (below(random, 10) == 0) from = {any, any, any, any, any};
    packets.push_back({exactly(filled(random, from.source, 0xffffffffu), 32),
                       exactly(filled(random, from.destination, 0xffffffffu), 32),
                       exactly(filled(random, from.source_port, 0xffff), 16),
                       exactly(filled(random, from.destination_port, 0xffff), 16),
                       exactly(filled(random, from.protocol, 0xff), 8)});
  }
  return packets;
}

}  // namespace bench
