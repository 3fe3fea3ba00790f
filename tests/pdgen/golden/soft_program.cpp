// Made by pdgen from the catalogue of tiny. Edit the catalogue and run
// scripts/generate, not this file.
#include "soft_program.h"

namespace {

const uint8_t compared_portMap[] = {
    0x00, 0x7f,
};

const soft_action_t actions_portMap[] = {
    {"sendTo", 0x20000001, 14, 3, true},
    {"pass", 0x20000002, 0, 0, false},
};

const soft_key_field_t key_portMap[] = {
    {"ig_intr_md_in_port", 0, 9, 0, 2},
};

const uint8_t compared_filter[] = {
    0x01, 0xff, 0x01, 0x01, 0x01, 0x0f, 0xff, 0x08, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff,
    0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00,
};

const soft_action_t actions_filter[] = {
    {"pass", 0x20000003, 0, 0, true},
    {"discard", 0x20000004, 0, 0, false},
    {"sendTo", 0x20000005, 14, 3, false},
};

const soft_key_field_t key_filter[] = {
    {"ig_intr_md_in_port", 0, 9, 0, 2},
    {"eth_dstOui", 1, 24, 14, 3},
    {"eth_dstStation", 1, 24, 17, 3},
    {"ip4_src", 1, 32, 10, 4},
    {"ip6_dst", 1, 128, 20, 16},
    {"meta_layer4", 1, 16, 8, 2},
    {"meta_bits", 1, 4, 7, 1},
    {"tag_0__valid", 1, 1, 4, 1},
    {"tag_0__tagId", 1, 12, 5, 2},
    {"meta_dead", 1, 1, 2, 1},
    {"fw_dead", 1, 1, 3, 1},
};

const soft_action_t actions_fib4[] = {
    {"setHop", 0x20000006, 14, 2, false},
    {"pass", 0x20000007, 0, 0, true},
};

const soft_key_field_t key_fib4[] = {
    {"l3_vrf", 0, 8, 0, 1},
    {"ip4_dst", 2, 32, 1, 4},
};

const soft_action_t actions_fib6[] = {
    {"setHop", 0x20000008, 14, 2, false},
};

const soft_key_field_t key_fib6[] = {
    {"ip6_dst", 2, 128, 0, 16},
};

const soft_action_t actions_hops[] = {
    {"setRouter", 0x20000009, 80, 10, false},
    {"discard", 0x2000000a, 0, 0, true},
};

const soft_key_field_t key_hops[] = {
    {"l3_hop", 0, 14, 0, 2},
};

const soft_key_field_t key_paths[] = {
    {"l3_path", 1, 14, 0, 2},
};

const soft_action_t actions_flows[] = {
    {"police", 0x2000000b, 33, 5, true},
    {"countOnly", 0x2000000c, 32, 4, false},
};

const soft_key_field_t key_flows[] = {
    {"meta_flowId", 0, 20, 0, 3},
};

const soft_action_t actions_flood[] = {
    {"pass", 0x2000000d, 0, 0, true},
};

const soft_key_field_t key_flood[] = {
    {"eth_dstOui", 1, 24, 0, 3},
    {"meta_slice", 0, 3, 3, 1},
};

const soft_action_t actions_sampling[] = {
    {"sample", 0x2000000e, 32, 4, false},
};

const soft_key_field_t key_sampling[] = {
    {"meta_layer4", 0, 16, 0, 2},
};

const soft_action_t actions_ticks[] = {
    {"seenBit", 0x2000000f, 0, 0, true},
};

const soft_key_field_t key_ticks[] = {
    {"tag_0__valid", 0, 1, 0, 1},
};

const soft_action_t actions_seen[] = {
    {"seenBit", 0x20000010, 0, 0, true},
};

const soft_action_t actions_finish[] = {
    {"sendTo", 0x20000011, 14, 3, true},
};

const soft_table_t tables[] = {
    {"portMap", 0x01000001, 0, 9, 2, key_portMap, 1,
     actions_portMap, 2, 0, false, compared_portMap},
    {"filter", 0x01000002, 1, 252, 36, key_filter, 11,
     actions_filter, 3, 0, false, compared_filter},
    {"fib4", 0x01000003, 2, 40, 5, key_fib4, 2,
     actions_fib4, 2, 0, true, nullptr},
    {"fib6", 0x01000004, 2, 128, 16, key_fib6, 1,
     actions_fib6, 1, 0, false, nullptr},
    {"hops", 0x01000005, 0, 14, 2, key_hops, 1,
     actions_hops, 2, 0, true, nullptr},
    {"paths", 0x01000006, 1, 14, 2, key_paths, 1,
     nullptr, 0, 0x02000006, false, nullptr},
    {"flows", 0x01000007, 0, 20, 3, key_flows, 1,
     actions_flows, 2, 0, false, nullptr},
    {"flood", 0x01000008, 1, 27, 4, key_flood, 2,
     actions_flood, 1, 0, false, nullptr},
    {"sampling", 0x01000009, 0, 16, 2, key_sampling, 1,
     actions_sampling, 1, 0, false, nullptr},
    {"ticks", 0x0100000a, 0, 1, 1, key_ticks, 1,
     actions_ticks, 1, 0, false, nullptr},
    {"seen", 0x0100000b, 0, 0, 0, nullptr, 0,
     actions_seen, 1, 0, false, nullptr},
    {"finish", 0x0100000c, 0, 0, 0, nullptr, 0,
     actions_finish, 1, 0, false, nullptr},
};

const soft_action_t actions_pathMembers[] = {
    {"setMember", 0x20000012, 9, 2, true},
    {"discard", 0x20000013, 0, 0, true},
};

const soft_profile_t profiles[] = {
    {"pathMembers", 0x02000006, 0x03000001, actions_pathMembers, 2},
};

const soft_counter_t counters[] = {
    {"filterHits", 0x04000001, 0x01000002},
    {"flowCount", 0x04000002, 0},
};

const soft_meter_t meters[] = {
    {"flowRate", 0x05000001, 0, 0},
    {"floodRate", 0x05000002, 0x01000008, 0},
    {"sampleRate", 0x05000003, 0, 1},
};

const soft_register_t registers[] = {
    {"seenReg", 0x06000001, 1},
    {"tickReg", 0x06000002, 32},
};

const soft_hash_t hashes[] = {
    {"flowHash", 0x22000001, 0x21000001, 0x23000001, 3},
};

const soft_digest_field_t fields_arrival[] = {
    {"eth_src", 0, 6},
    {"in_port", 7, 2},
};

const soft_digest_t digests[] = {
    {"arrival", 0x21000002, 9, fields_arrival, 2},
};

const soft_value_set_t value_sets[] = {
    {"trunk_ports", 0x00000101},
};

const soft_snapshot_field_t snapshot_ingress[] = {
    {"in_port", 0, 2, 6},
    {"slice", 2, 1, SOFT_NOT_CAPTURED},
    {"ip4_src", 3, 4, SOFT_NOT_CAPTURED},
};

const soft_snapshot_field_t snapshot_egress[] = {
    {"out_port", 0, 2, SOFT_NOT_CAPTURED},
};

const soft_snapshot_field_t snapshot_capture[] = {
    {"eth_src", 0, 6, 0},
    {"in_port", 6, 2, 6},
};

}  // namespace

extern "C" {
extern const soft_program_t soft_program_tiny;
}

const soft_program_t soft_program_tiny = {
    "tiny",
    tables, 12,
    profiles, 1,
    counters, 2,
    meters, 3,
    registers, 2,
    hashes, 1,
    digests, 1,
    value_sets, 1,
    16, {{snapshot_ingress, 3}, {snapshot_egress, 1}}, {snapshot_capture, 2}};
