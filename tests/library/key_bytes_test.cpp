// Key bytes worked out by hand: what one typed record of a table comes to on the wire.
#include "typed.hpp"

namespace pd_test {
namespace {

class KeyBytes : public LibraryTest {
 protected:
  // The match spec that the only call of body carries.
  template <class Body>
  static soft::journal::MatchSpec sent(Body &&body) {
    p4_pd_status_t status = BF_HARDWARE_FAULT;
    const Call call = only_call([&] { status = body(); });
    EXPECT_EQ(status, BF_SUCCESS);
    return call.get<soft::journal::MatchSpec>("match");
  }

  static void expect_key(const soft::journal::MatchSpec &match, unsigned bits,
                         const std::string &value, const std::string &mask, uint32_t priority) {
    EXPECT_EQ(match.scope, 0u);
    EXPECT_EQ(match.valid_bit_count, bits);
    EXPECT_EQ(match.byte_count, (value.size() + 1) / 3);
    EXPECT_EQ(hex(match.value.value()), value);
    EXPECT_EQ(hex(match.mask.value()), mask);
    EXPECT_EQ(match.priority, priority);
  }

  p4_pd_entry_handle_t entry_ = 0;
};

// ---- Ternary ----

TEST_F(KeyBytes, OfATernaryTable) {
  PD(cpuEncap_match_spec_t) key = {};
  key.egrMd_trapToCpu = 1;
  key.phase0_switchPort = 1;
  key.phase0_switchPort_mask = 1;
  key.egrMd_cpuReasonCode = 0x25;
  key.egrMd_cpuReasonCode_mask = 0xf0;
  const PD(copyPktToCpuSubintf_action_spec_t) action = {};
  const Call call = only_call([&] {
    EXPECT_EQ(PD(cpuEncap_table_add_with_copyPktToCpuSubintf)(session(), kTarget, &key, 10, &action,
                                                              &entry_),
              BF_SUCCESS);
  });
  const auto &match = call.get<soft::journal::MatchSpec>("match");
  expect_key(match, 12, "01 00 01 20 00", "01 01 01 f0 00", 10);
  EXPECT_EQ(call.function, "pipe_mgr_mat_ent_add");
  EXPECT_EQ(call.scalar("session"), session());
  EXPECT_EQ(call.scalar("device"), 5u);
  EXPECT_EQ(call.scalar("pipe"), 2u);
  EXPECT_EQ(call.scalar("table"), 0x0100005eu);
  EXPECT_EQ(call.scalar("action"), 0x200002d0u);
  EXPECT_EQ(call.scalar("ttl"), 0u);
  EXPECT_EQ(call.scalar("flags"), 0u);

  // Delete and find name the entry with the very same bytes.
  p4_pd_entry_handle_t found = 0;
  expect_key(sent([&] {
               return PD(cpuEncap_match_spec_to_entry_hdl)(session(), kTarget, &key, 10, &found);
             }),
             12, "01 00 01 20 00", "01 01 01 f0 00", 10);
  EXPECT_EQ(found, entry_);
  expect_key(
      sent([&] { return PD(cpuEncap_table_delete_by_match_spec)(session(), kTarget, &key, 10); }),
      12, "01 00 01 20 00", "01 01 01 f0 00", 10);
}

TEST_F(KeyBytes, StartWithTheFirstFieldInKeyOrder) {
  PD(egressPortDropCheck_match_spec_t) port = {};
  port.eg_intr_md_egress_port = 0x105;
  port.outerIpv4Hdr_ttl = 0x7f;
  port.outerIpv4Hdr_ttl_mask = 0xff;
  port.egrMd_routed = 1;
  port.egrMd_routed_mask = 0xff;
  // Bits of the value above the width live as long as the mask has them.
  port.fwMd_sipDrop = 0xff;
  port.fwMd_sipDrop_mask = 0x81;
  expect_key(sent([&] {
               return PD(egressPortDropCheck_table_add_with_onMiss)(session(), kTarget, &port, 3,
                                                                    &entry_);
             }),
             23, "01 05 00 00 81 00 7f 00 01", "01 ff 00 00 01 00 ff 00 01", 3);

  PD(trapToCpu_match_spec_t) trap = {};
  trap.arpHdr_valid = 1;
  trap.arpHdr_valid_mask = 1;
  trap.arpHdr_opcode = 0x0102;
  trap.arpHdr_opcode_mask = 0xffff;
  trap.egrMd_cpuReasonCode = 0xab;
  trap.egrMd_cpuReasonCode_mask = 0x0f;
  trap.ingIpv4_dip = 0x0a010203;
  trap.ingIpv4_dip_mask = 0xffffff00;
  trap.ingIpv6_dip[0] = 0xff;
  trap.ingIpv6_dip[1] = 0x02;
  trap.ingIpv6_dip[15] = 0x16;
  trap.ingIpv6_dip_mask[0] = 0xff;
  trap.ingIpv6_dip_mask[15] = 0x03;
  trap.ingMd_etherType = 0x0806;
  trap.ingMd_etherType_mask = 0xffff;
  trap.ingMd_srcPort = 0x1234;
  trap.ingMd_srcPort_mask = 0xff00;
  trap.phase0_ingVPort = 0x2fff;
  trap.phase0_ingVPort_mask = 0xffff;
  expect_key(sent([&] {
               return PD(trapToCpu_table_add_with_noOp)(session(), kTarget, &trap, 0x80000001,
                                                        &entry_);
             }),
             287,
             "08 06 00 00 00 12 00 00 00 2f ff 00 00 00 00 01 01 02 00 0a 01 02 00 00 00 00 "
             "ff 00 00 00 00 00 00 00 00 00 00 00 00 00 00 02 00 0b",
             "ff ff 00 00 00 ff 00 00 00 3f ff 00 00 00 00 01 ff ff 00 ff ff ff 00 00 00 00 "
             "ff 00 00 00 00 00 00 00 00 00 00 00 00 00 00 03 00 0f",
             0x80000001);
}

TEST_F(KeyBytes, CutTheMaskButNotTheValue) {
  PD(mcastPrune_match_spec_t) prune = {};
  prune.egrMd_egrL2AintfUnresolved = 0x123;
  prune.egrMd_egrL2AintfUnresolved_mask = 0xfffff;
  const PD(setPruneParams_action_spec_t) params = {};
  expect_key(sent([&] {
               return PD(mcastPrune_table_add_with_setPruneParams)(session(), kTarget, &prune, 1,
                                                                   &params, &entry_);
             }),
             42, "00 00 00 00 01 23 00 00", "00 00 00 0f ff ff 00 00", 1);

  PD(kiteFlow1_match_spec_t) flow = {};
  flow.vlanHdr_1__vlanId = 0xffff;  // 12 bits
  flow.vlanHdr_1__vlanId_mask = 0xffff;
  const PD(kiteFlowDontFlow_action_spec_t) dont = {};
  expect_key(sent([&] {
               return PD(kiteFlow1_table_add_with_kiteFlowDontFlow)(session(), kTarget, &flow, 0,
                                                                    &dont, &entry_);
             }),
             28, "00 00 00 ff ff 00", "00 00 00 0f ff 00", 0);
}

// ---- Exact ----

TEST_F(KeyBytes, OfAnExactTable) {
  PD(l2Lookup_match_spec_t) lookup = {};
  lookup.egrMd_dmacOui = 0x001122;
  lookup.egrMd_dmacStation = 0x334455;
  lookup.egrMd_egrL2Domain = 10;
  p4_pd_entry_handle_t found = 0;
  const auto match = recorded([&] {
    EXPECT_EQ(PD(l2Lookup_match_spec_to_entry_hdl)(session(), kTarget, &lookup, &found),
              BF_OBJECT_NOT_FOUND);
  });
  ASSERT_EQ(match.size(), 1u);
  expect_key(match[0].get<soft::journal::MatchSpec>("match"), 60, "00 11 22 33 44 55 00 0a",
             "ff ff ff ff ff ff ff ff", 0);

  // One bit of width, yet the mask stays whole and the value as it is.
  PD(decapRestore_match_spec_t) restore = {0x81, 0, 1};
  const auto calls = recorded([&] {
    PD(decapRestore_match_spec_to_entry_hdl)(session(), kTarget, &restore, &found);
  });
  ASSERT_EQ(calls.size(), 1u);
  expect_key(calls[0].get<soft::journal::MatchSpec>("match"), 3, "81 00 01", "ff ff ff", 0);

  // 14 bits held in 32: two bytes travel.
  PD(nextHop_match_spec_t) hop = {0xabcd1234};
  const PD(setNextHopDetails_action_spec_t) details = {};
  expect_key(sent([&] {
               return PD(nextHop_table_add_with_setNextHopDetails)(session(), kTarget, &hop,
                                                                   &details, &entry_);
             }),
             14, "12 34", "ff ff", 0);
}

// ---- Longest prefix ----

struct Prefix {
  uint16_t length;
  const char *value;
  const char *mask;
  uint32_t priority;
  uint16_t read_back;
};

TEST_F(KeyBytes, OfIpv4Prefixes) {
  const Prefix prefixes[] = {
      {0, "03 00 00 00 00", "ff 00 00 00 00", 32, 0},
      {8, "03 0a 00 00 00", "ff ff 00 00 00", 24, 8},
      {20, "03 0a 01 00 00", "ff ff ff f0 00", 12, 20},
      {31, "03 0a 01 02 02", "ff ff ff ff fe", 1, 31},
      {32, "03 0a 01 02 03", "ff ff ff ff ff", 0, 32},
      {33, "03 0a 01 02 03", "ff ff ff ff ff", 41, 32},
  };
  const PD(setNextHop_action_spec_t) hop = {5};
  for (const Prefix &prefix : prefixes) {
    SCOPED_TRACE(prefix.length);
    PD(ipv4ShortMaskLpm_match_spec_t) key = {};
    key.l3Info_vrfId = 3;
    key.ingIpv4_dip = 0x0a010203;
    key.ingIpv4_dip_prefix_length = prefix.length;
    const Call call = only_call([&] {
      EXPECT_EQ(PD(ipv4ShortMaskLpm_table_add_with_setNextHop)(session(), kTarget, &key, &hop, 777,
                                                               &entry_),
                BF_SUCCESS);
    });
    expect_key(call.get<soft::journal::MatchSpec>("match"), 40, prefix.value, prefix.mask,
               prefix.priority);
    EXPECT_EQ(call.scalar("table"), 0x0100002cu);
    EXPECT_EQ(call.scalar("action"), 0x20000139u);
    EXPECT_EQ(call.scalar("ttl"), 777u);
    EXPECT_EQ(call.get<soft::journal::ActionSpec>("action_spec").data.bytes, (Bytes{0, 5}));
    p4_pd_entry_handle_t found = 0;
    EXPECT_EQ(PD(ipv4ShortMaskLpm_match_spec_to_entry_hdl)(session(), kTarget, &key, &found),
              BF_SUCCESS);
    EXPECT_EQ(found, entry_);

    PD(ipv4ShortMaskLpm_match_spec_t) read = {};
    PD(setNextHop_action_spec_t) read_hop = {};
    bool no_key = true;
    EXPECT_EQ(PD(ipv4ShortMaskLpm_get_entry)(session(), kDevice, entry_, false, &read, nullptr,
                                             &read_hop, nullptr, &no_key),
              BF_SUCCESS);
    EXPECT_EQ(read.ingIpv4_dip_prefix_length, prefix.read_back);
    EXPECT_EQ(PD(ipv4ShortMaskLpm_table_delete)(session(), kDevice, entry_), BF_SUCCESS);
  }
}

TEST_F(KeyBytes, OfIpv6Prefixes) {
  const Prefix prefixes[] = {
      {0, "09 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00",
       "ff 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00", 128, 0},
      {61, "09 20 01 0d b8 00 00 ff f8 00 00 00 00 00 00 00 00",
       "ff ff ff ff ff ff ff ff f8 00 00 00 00 00 00 00 00", 67, 61},
      {64, "09 20 01 0d b8 00 00 ff ff 00 00 00 00 00 00 00 00",
       "ff ff ff ff ff ff ff ff ff 00 00 00 00 00 00 00 00", 64, 64},
      {127, "09 20 01 0d b8 00 00 ff ff 01 02 03 04 05 06 07 fe",
       "ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff fe", 1, 127},
      {128, "09 20 01 0d b8 00 00 ff ff 01 02 03 04 05 06 07 ff",
       "ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff", 0, 128},
      {129, "09 20 01 0d b8 00 00 ff ff 01 02 03 04 05 06 07 ff",
       "ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff", 137, 128},
  };
  const PD(setNextHop_action_spec_t) hop = {5};
  for (const Prefix &prefix : prefixes) {
    SCOPED_TRACE(prefix.length);
    PD(ipv6ShortMaskLpm_match_spec_t)
    key = {9, {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0xff, 0xff, 1, 2, 3, 4, 5, 6, 7, 0xff}, prefix.length};
    const Call call = only_call([&] {
      EXPECT_EQ(PD(ipv6ShortMaskLpm_table_add_with_setNextHop)(session(), kTarget, &key, &hop, 0,
                                                               &entry_),
                BF_SUCCESS);
    });
    expect_key(call.get<soft::journal::MatchSpec>("match"), 136, prefix.value, prefix.mask,
               prefix.priority);
    EXPECT_EQ(call.scalar("table"), 0x0100002du);
    EXPECT_EQ(call.scalar("action"), 0x20000148u);
    PD(ipv6ShortMaskLpm_match_spec_t) read = {};
    PD(setNextHop_action_spec_t) read_hop = {};
    bool no_key = true;
    EXPECT_EQ(PD(ipv6ShortMaskLpm_get_entry)(session(), kDevice, entry_, false, &read, nullptr,
                                             &read_hop, nullptr, &no_key),
              BF_SUCCESS);
    EXPECT_EQ(read.l3Info_vrfId, 9);
    EXPECT_EQ(read.ingIpv6_dip_prefix_length, prefix.read_back);
    EXPECT_EQ(PD(ipv6ShortMaskLpm_table_delete)(session(), kDevice, entry_), BF_SUCCESS);
  }
}

}  // namespace
}  // namespace pd_test
