// Adds COUNT entries to a table over an SDK that does nothing, through the library or through the
// encoder written by hand:
//
//   encode_cost TABLE library|hand COUNT
//
// bench/encode_ratio counts the instructions of both.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "by_hand.h"

namespace {

constexpr p4_pd_device_target_t target = {0, 0xffff};
volatile uint32_t sink;

// Every byte of a record set, so that no field is a special case.
template <class Record>
Record filled(uint8_t seed) {
  Record record;
  std::memset(&record, seed, sizeof record);
  return record;
}

struct Case {
  std::string_view table;
  p4_pd_status_t (*library)(uint32_t i);
  p4_pd_status_t (*hand)(uint32_t i);
};

#define MATCH(table) static auto match = filled<p4_pd_tessel_switch_##table##_match_spec_t>(0x35)
#define ACTION(action) static auto spec = filled<p4_pd_tessel_switch_##action##_action_spec_t>(0x01)
#define ADD(table, action) p4_pd_tessel_switch_##table##_table_add_with_##action

const std::array<Case, 6> cases = {{
    {"cpuEncap",
     [](uint32_t i) {
       MATCH(cpuEncap);
       ACTION(copyPktToCpuSubintf);
       return ADD(cpuEncap, copyPktToCpuSubintf)(1, target, &match, i, &spec, nullptr);
     },
     [](uint32_t i) {
       MATCH(cpuEncap);
       ACTION(copyPktToCpuSubintf);
       return by_hand_cpuEncap(1, target, &match, i, &spec, nullptr);
     }},
    {"l2Lookup",
     [](uint32_t) {
       MATCH(l2Lookup);
       ACTION(l2LookupKnownUcast);
       return ADD(l2Lookup, l2LookupKnownUcast)(1, target, &match, &spec, nullptr);
     },
     [](uint32_t) {
       MATCH(l2Lookup);
       ACTION(l2LookupKnownUcast);
       return by_hand_l2Lookup(1, target, &match, &spec, nullptr);
     }},
    {"ipv4ShortMaskLpm",
     [](uint32_t i) {
       MATCH(ipv4ShortMaskLpm);
       ACTION(setNextHop);
       match.ingIpv4_dip_prefix_length = static_cast<uint16_t>(i % 33);
       return ADD(ipv4ShortMaskLpm, setNextHop)(1, target, &match, &spec, i, nullptr);
     },
     [](uint32_t i) {
       MATCH(ipv4ShortMaskLpm);
       ACTION(setNextHop);
       match.ingIpv4_dip_prefix_length = static_cast<uint16_t>(i % 33);
       return by_hand_ipv4ShortMaskLpm(1, target, &match, &spec, i, nullptr);
     }},
    {"ipv6ShortMaskLpm",
     [](uint32_t i) {
       MATCH(ipv6ShortMaskLpm);
       ACTION(setNextHop);
       match.ingIpv6_dip_prefix_length = static_cast<uint16_t>(i % 129);
       return ADD(ipv6ShortMaskLpm, setNextHop)(1, target, &match, &spec, i, nullptr);
     },
     [](uint32_t i) {
       MATCH(ipv6ShortMaskLpm);
       ACTION(setNextHop);
       match.ingIpv6_dip_prefix_length = static_cast<uint16_t>(i % 129);
       return by_hand_ipv6ShortMaskLpm(1, target, &match, &spec, i, nullptr);
     }},
    {"trapToCpu",
     [](uint32_t i) {
       MATCH(trapToCpu);
       ACTION(trapPacket);
       return ADD(trapToCpu, trapPacket)(1, target, &match, i, &spec, nullptr);
     },
     [](uint32_t i) {
       MATCH(trapToCpu);
       ACTION(trapPacket);
       return by_hand_trapToCpu(1, target, &match, i, &spec, nullptr);
     }},
    {"finalDropControl",
     [](uint32_t i) {
       MATCH(finalDropControl);
       return ADD(finalDropControl, dropCount)(1, target, &match, i, nullptr);
     },
     [](uint32_t i) {
       MATCH(finalDropControl);
       return by_hand_finalDropControl(1, target, &match, i, nullptr);
     }},
}};

}  // namespace

int main(int argc, char **argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: encode_cost TABLE library|hand COUNT\n");
    return 1;
  }
  for (const Case &c : cases) {
    if (c.table != argv[1]) continue;
    const auto add = std::string_view(argv[2]) == "library" ? c.library : c.hand;
    const auto count = static_cast<uint32_t>(std::strtoul(argv[3], nullptr, 10));
    for (uint32_t i = 0; i < count; ++i) sink = add(i);
    return 0;
  }
  std::fprintf(stderr, "encode_cost: no case for table %s\n", argv[1]);
  return 1;
}
