// Made by pdgen from the catalogue of tiny. Edit the catalogue and run
// scripts/generate, not this file.
#pragma once

#include "descriptor.hpp"
#include "p4_pd_tiny.h"

namespace pd {

namespace action {

struct pass {
  static constexpr Action action = {0, 0, 0, 0, 0, nullptr};
  static constexpr const Param *params = nullptr;
};
struct discard {
  static constexpr Action action = {1, 0, 0, 0, 0, nullptr};
  static constexpr const Param *params = nullptr;
};
struct sendTo {
  using Record = p4_pd_tiny_sendTo_action_spec_t;
  static constexpr Param params[] = {
    {offsetof(Record, action_port), 0, 2, 9, 2, {}},
    {offsetof(Record, action_queue), 2, 1, 5, 1, {}},
  };
  static constexpr Action action = {2, sizeof(Record), 14, 3, 2, params};
};
struct setHop {
  using Record = p4_pd_tiny_setHop_action_spec_t;
  static constexpr Param params[] = {
    {offsetof(Record, action_hop), 0, 4, 14, 2, {}},
  };
  static constexpr Action action = {3, sizeof(Record), 14, 2, 1, params};
};
struct setRouter {
  using Record = p4_pd_tiny_setRouter_action_spec_t;
  static constexpr Param params[] = {
    {offsetof(Record, action_gateIp), 0, 4, 32, 4, {}},
    {offsetof(Record, action_hwOui), 4, 4, 24, 3, {}},
    {offsetof(Record, action_hwStation), 7, 4, 24, 3, {}},
  };
  static constexpr Action action = {4, sizeof(Record), 80, 10, 3, params};
};
struct countOnly {
  using Record = p4_pd_tiny_countOnly_action_spec_t;
  static constexpr Param params[] = {
    {offsetof(Record, action_cell), 0, 4, 32, 4, {0x04000002}},
  };
  static constexpr Action action = {5, sizeof(Record), 32, 4, 1, params};
};
struct police {
  using Record = p4_pd_tiny_police_action_spec_t;
  static constexpr Param params[] = {
    {offsetof(Record, action_cell), 0, 4, 32, 4, {0x04000002, 0x05000001}},
    {offsetof(Record, action_mark), 4, 1, 1, 1, {}},
  };
  static constexpr Action action = {6, sizeof(Record), 33, 5, 2, params};
};
struct sample {
  using Record = p4_pd_tiny_sample_action_spec_t;
  static constexpr Param params[] = {
    {offsetof(Record, action_rateCell), 0, 4, 32, 4, {0x05000003}},
  };
  static constexpr Action action = {7, sizeof(Record), 32, 4, 1, params};
};
struct setMember {
  using Record = p4_pd_tiny_setMember_action_spec_t;
  static constexpr Param params[] = {
    {offsetof(Record, action_egress), 0, 2, 9, 2, {}},
  };
  static constexpr Action action = {8, sizeof(Record), 9, 2, 1, params};
};
struct seenBit {
  static constexpr Action action = {9, 0, 0, 0, 0, nullptr};
  static constexpr const Param *params = nullptr;
};

}  // namespace action

namespace table {

struct portMap {
  using Record = p4_pd_tiny_portMap_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, ig_intr_md_in_port), offsetof(Record, ig_intr_md_in_port), 0, 2, 9, 2, Match::exact},
  };
  static constexpr Pair pairs[] = {
    {0x20000001, &action::sendTo::action},
    {0x20000002, &action::pass::action},
  };
  static constexpr Table table = {0x01000001, Kind::exact, 1, 2, -1, sizeof(Record), 9, 2, key, pairs};
};
struct filter {
  using Record = p4_pd_tiny_filter_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, ig_intr_md_in_port), offsetof(Record, ig_intr_md_in_port), 0, 2, 9, 2, Match::exact},
    {offsetof(Record, eth_dstOui), offsetof(Record, eth_dstOui_mask), 14, 4, 24, 3, Match::ternary},
    {offsetof(Record, eth_dstStation), offsetof(Record, eth_dstStation_mask), 17, 4, 24, 3, Match::ternary},
    {offsetof(Record, ip4_src), offsetof(Record, ip4_src_mask), 10, 4, 32, 4, Match::ternary},
    {offsetof(Record, ip6_dst), offsetof(Record, ip6_dst_mask), 20, 16, 128, 16, Match::ternary},
    {offsetof(Record, meta_layer4), offsetof(Record, meta_layer4_mask), 8, 2, 16, 2, Match::ternary},
    {offsetof(Record, meta_bits), offsetof(Record, meta_bits_mask), 7, 1, 4, 1, Match::ternary},
    {offsetof(Record, tag_0__valid), offsetof(Record, tag_0__valid_mask), 4, 1, 1, 1, Match::ternary},
    {offsetof(Record, tag_0__tagId), offsetof(Record, tag_0__tagId_mask), 5, 2, 12, 2, Match::ternary},
    {offsetof(Record, meta_dead), offsetof(Record, meta_dead_mask), 2, 1, 1, 1, Match::ternary},
    {offsetof(Record, fw_dead), offsetof(Record, fw_dead_mask), 3, 1, 1, 1, Match::ternary},
  };
  static constexpr Pair pairs[] = {
    {0x20000003, &action::pass::action},
    {0x20000004, &action::discard::action},
    {0x20000005, &action::sendTo::action},
  };
  static constexpr Table table = {0x01000002, Kind::ternary, 11, 3, -1, sizeof(Record), 252, 36, key, pairs};
};
struct fib4 {
  using Record = p4_pd_tiny_fib4_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, l3_vrf), offsetof(Record, l3_vrf), 0, 1, 8, 1, Match::exact},
    {offsetof(Record, ip4_dst), offsetof(Record, ip4_dst_prefix_length), 1, 4, 32, 4, Match::lpm},
  };
  static constexpr Pair pairs[] = {
    {0x20000006, &action::setHop::action},
    {0x20000007, &action::pass::action},
  };
  static constexpr Table table = {0x01000003, Kind::lpm, 2, 2, -1, sizeof(Record), 40, 5, key, pairs};
};
struct fib6 {
  using Record = p4_pd_tiny_fib6_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, ip6_dst), offsetof(Record, ip6_dst_prefix_length), 0, 16, 128, 16, Match::lpm},
  };
  static constexpr Pair pairs[] = {
    {0x20000008, &action::setHop::action},
  };
  static constexpr Table table = {0x01000004, Kind::lpm, 1, 1, -1, sizeof(Record), 128, 16, key, pairs};
};
struct hops {
  using Record = p4_pd_tiny_hops_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, l3_hop), offsetof(Record, l3_hop), 0, 4, 14, 2, Match::exact},
  };
  static constexpr Pair pairs[] = {
    {0x20000009, &action::setRouter::action},
    {0x2000000a, &action::discard::action},
  };
  static constexpr Table table = {0x01000005, Kind::exact, 1, 2, -1, sizeof(Record), 14, 2, key, pairs};
};
struct paths {
  using Record = p4_pd_tiny_paths_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, l3_path), offsetof(Record, l3_path_mask), 0, 2, 14, 2, Match::ternary},
  };
  static constexpr Table table = {0x01000006, Kind::ternary, 1, 0, 0, sizeof(Record), 14, 2, key, nullptr};
};
struct flows {
  using Record = p4_pd_tiny_flows_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, meta_flowId), offsetof(Record, meta_flowId), 0, 4, 20, 3, Match::exact},
  };
  static constexpr Pair pairs[] = {
    {0x2000000b, &action::police::action},
    {0x2000000c, &action::countOnly::action},
  };
  static constexpr Table table = {0x01000007, Kind::exact, 1, 2, -1, sizeof(Record), 20, 3, key, pairs};
};
struct flood {
  using Record = p4_pd_tiny_flood_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, eth_dstOui), offsetof(Record, eth_dstOui_mask), 0, 4, 24, 3, Match::ternary},
    {offsetof(Record, meta_slice), offsetof(Record, meta_slice), 3, 1, 3, 1, Match::exact},
  };
  static constexpr Pair pairs[] = {
    {0x2000000d, &action::pass::action},
  };
  static constexpr Table table = {0x01000008, Kind::ternary, 2, 1, -1, sizeof(Record), 27, 4, key, pairs};
};
struct sampling {
  using Record = p4_pd_tiny_sampling_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, meta_layer4), offsetof(Record, meta_layer4), 0, 2, 16, 2, Match::exact},
  };
  static constexpr Pair pairs[] = {
    {0x2000000e, &action::sample::action},
  };
  static constexpr Table table = {0x01000009, Kind::exact, 1, 1, -1, sizeof(Record), 16, 2, key, pairs};
};
struct ticks {
  using Record = p4_pd_tiny_ticks_match_spec_t;
  static constexpr KeyField key[] = {
    {offsetof(Record, tag_0__valid), offsetof(Record, tag_0__valid), 0, 1, 1, 1, Match::exact},
  };
  static constexpr Pair pairs[] = {
    {0x2000000f, &action::seenBit::action},
  };
  static constexpr Table table = {0x0100000a, Kind::exact, 1, 1, -1, sizeof(Record), 1, 1, key, pairs};
};
struct seen {
  static constexpr Pair pairs[] = {
    {0x20000010, &action::seenBit::action},
  };
  static constexpr Table table = {0x0100000b, Kind::keyless, 0, 1, -1, 0, 0, 0, nullptr, pairs};
};
struct finish {
  static constexpr Pair pairs[] = {
    {0x20000011, &action::sendTo::action},
  };
  static constexpr Table table = {0x0100000c, Kind::keyless, 0, 1, -1, 0, 0, 0, nullptr, pairs};
};

}  // namespace table

namespace pair::portMap {
struct sendTo {
  using TableType = table::portMap;
  using ActionType = action::sendTo;
  static constexpr uint32_t handle = 0x20000001;
  static constexpr unsigned resource_count = 0;
};
struct pass {
  using TableType = table::portMap;
  using ActionType = action::pass;
  static constexpr uint32_t handle = 0x20000002;
  static constexpr unsigned resource_count = 0;
};
}
namespace pair::filter {
struct pass {
  using TableType = table::filter;
  using ActionType = action::pass;
  static constexpr uint32_t handle = 0x20000003;
  static constexpr Resource resources[] = {
    {0x04000001, no_index, Attach::attach, 5},
  };
  static constexpr unsigned resource_count = 1;
};
struct discard {
  using TableType = table::filter;
  using ActionType = action::discard;
  static constexpr uint32_t handle = 0x20000004;
  static constexpr Resource resources[] = {
    {0x04000001, no_index, Attach::attach, 5},
  };
  static constexpr unsigned resource_count = 1;
};
struct sendTo {
  using TableType = table::filter;
  using ActionType = action::sendTo;
  static constexpr uint32_t handle = 0x20000005;
  static constexpr Resource resources[] = {
    {0x04000001, no_index, Attach::attach, 5},
  };
  static constexpr unsigned resource_count = 1;
};
}
namespace pair::fib4 {
struct setHop {
  using TableType = table::fib4;
  using ActionType = action::setHop;
  static constexpr uint32_t handle = 0x20000006;
  static constexpr unsigned resource_count = 0;
};
struct pass {
  using TableType = table::fib4;
  using ActionType = action::pass;
  static constexpr uint32_t handle = 0x20000007;
  static constexpr unsigned resource_count = 0;
};
}
namespace pair::fib6 {
struct setHop {
  using TableType = table::fib6;
  using ActionType = action::setHop;
  static constexpr uint32_t handle = 0x20000008;
  static constexpr unsigned resource_count = 0;
};
}
namespace pair::hops {
struct setRouter {
  using TableType = table::hops;
  using ActionType = action::setRouter;
  static constexpr uint32_t handle = 0x20000009;
  static constexpr unsigned resource_count = 0;
};
struct discard {
  using TableType = table::hops;
  using ActionType = action::discard;
  static constexpr uint32_t handle = 0x2000000a;
  static constexpr unsigned resource_count = 0;
};
}
namespace pair::flows {
struct police {
  using TableType = table::flows;
  using ActionType = action::police;
  static constexpr uint32_t handle = 0x2000000b;
  static constexpr Resource resources[] = {
    {0x04000002, offsetof(ActionType::Record, action_cell), Attach::attach, 7},
    {0x05000001, offsetof(ActionType::Record, action_cell), Attach::attach, 7},
  };
  static constexpr unsigned resource_count = 2;
};
struct countOnly {
  using TableType = table::flows;
  using ActionType = action::countOnly;
  static constexpr uint32_t handle = 0x2000000c;
  static constexpr Resource resources[] = {
    {0x04000002, offsetof(ActionType::Record, action_cell), Attach::attach, 7},
    {0x05000001, no_index, Attach::detach, 3},
  };
  static constexpr unsigned resource_count = 2;
};
}
namespace pair::flood {
struct pass {
  using TableType = table::flood;
  using ActionType = action::pass;
  static constexpr uint32_t handle = 0x2000000d;
  static constexpr Resource resources[] = {
    {0x05000002, no_index, Attach::meter_spec, 7},
  };
  static constexpr unsigned resource_count = 1;
};
}
namespace pair::sampling {
struct sample {
  using TableType = table::sampling;
  using ActionType = action::sample;
  static constexpr uint32_t handle = 0x2000000e;
  static constexpr Resource resources[] = {
    {0x05000003, offsetof(ActionType::Record, action_rateCell), Attach::attach, 3},
  };
  static constexpr unsigned resource_count = 1;
};
}
namespace pair::ticks {
struct seenBit {
  using TableType = table::ticks;
  using ActionType = action::seenBit;
  static constexpr uint32_t handle = 0x2000000f;
  static constexpr Resource resources[] = {
    {0x06000002, no_index, Attach::attach, 7},
  };
  static constexpr unsigned resource_count = 1;
};
}
namespace pair::seen {
struct seenBit {
  using TableType = table::seen;
  using ActionType = action::seenBit;
  static constexpr uint32_t handle = 0x20000010;
  static constexpr Resource resources[] = {
    {0x06000001, no_index, Attach::attach, 4},
  };
  static constexpr unsigned resource_count = 1;
};
}
namespace pair::finish {
struct sendTo {
  using TableType = table::finish;
  using ActionType = action::sendTo;
  static constexpr uint32_t handle = 0x20000011;
  static constexpr unsigned resource_count = 0;
};
}

namespace profile {

struct pathMembers {
  struct setMember {
    using ActionType = action::setMember;
    static constexpr uint32_t handle = 0x20000012;
  };
  struct discard {
    using ActionType = action::discard;
    static constexpr uint32_t handle = 0x20000013;
  };
  static constexpr Pair pairs[] = {
    {0x20000012, &action::setMember::action},
    {0x20000013, &action::discard::action},
  };
  static constexpr Profile profile = {"pathMembers", 0x02000006, 0x03000001, 0, 2, pairs};
};

}  // namespace profile

namespace hash {

inline constexpr Hash flowHash = {0x22000001, 0x21000001, 0x23000001, 3};

}  // namespace hash

namespace snapshot {

inline constexpr TriggerField ingress[] = {
    {offsetof(p4_pd_tiny_snapshot_ingress_trigger_t, in_port), 2},
    {offsetof(p4_pd_tiny_snapshot_ingress_trigger_t, ip4_src), 4},
};
inline constexpr TriggerField egress[] = {
    {offsetof(p4_pd_tiny_snapshot_egress_trigger_t, out_port), 2},
};
inline constexpr Snapshots records = {16, 3, {{ingress, 2}, {egress, 1}}};

}  // namespace snapshot

}  // namespace pd
