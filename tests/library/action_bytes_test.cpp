// Action data and resource lists worked out by hand.
#include "typed.hpp"

namespace pd_test {
namespace {

using soft::journal::ActionSpec;

class ActionBytes : public LibraryTest {
 protected:
  // The action spec that the only call of body carries.
  template <class Body>
  static ActionSpec sent(Body &&body) {
    p4_pd_status_t status = BF_HARDWARE_FAULT;
    const Call call = only_call([&] { status = body(); });
    EXPECT_EQ(status, BF_SUCCESS) << call.function;
    return call.get<ActionSpec>("action_spec");
  }

  static void expect_action(const ActionSpec &spec, unsigned bits, const std::string &data,
                            const std::string &resources) {
    EXPECT_EQ(spec.type, 1u);
    EXPECT_EQ(spec.data.valid_bit_count, bits);
    EXPECT_EQ(spec.data.byte_count, (data.size() + 1) / 3);
    EXPECT_EQ(data_of(spec), data);
    EXPECT_EQ(resources_of(spec), resources);
    EXPECT_EQ(spec.resource_count, spec.resources.size());
    EXPECT_EQ(spec.member, 0u);
    EXPECT_EQ(spec.group, 0u);
  }

  p4_pd_entry_handle_t entry_ = 0;
};

TEST_F(ActionBytes, OfParameters) {
  const PD(setPhase0_action_spec_t) phase0 = {0x0123, 0x0456, 1, 2};
  const PD(ingressPortMapping_match_spec_t) port = {};
  expect_action(sent([&] {
                  return PD(ingressPortMapping_table_add_with_setPhase0)(session(), kTarget, &port,
                                                                         &phase0, &entry_);
                }),
                29, "01 23 04 56 01 02", "");

  const PD(setNextHopDetails_action_spec_t) details = {0x001122, 0x334455, 0x0abc};
  const PD(nextHop_match_spec_t) hop = {};
  expect_action(sent([&] {
                  return PD(nextHop_table_add_with_setNextHopDetails)(session(), kTarget, &hop,
                                                                      &details, &entry_);
                }),
                60, "00 11 22 33 44 55 0a bc", "");

  const PD(trapPktToCpuSubintf_action_spec_t) trap = {0x1ab, 0x1f};
  const PD(cpuEncap_match_spec_t) encap = {};
  expect_action(sent([&] {
                  return PD(cpuEncap_table_add_with_trapPktToCpuSubintf)(session(), kTarget, &encap,
                                                                         0, &trap, &entry_);
                }),
                14, "01 ab 1f", "");

  const PD(setMirrorPacketEncapGreIpv4_action_spec_t)
      gre = {0x0a000001, 0xc0a80102, 64, 0x2e, 0x88be, 0x0fed, 0x00abcdef, 0x00123456};
  const PD(mirrorPacketEncap_match_spec_t) mirror = {};
  expect_action(sent([&] {
                  return PD(mirrorPacketEncap_table_add_with_setMirrorPacketEncapGreIpv4)(
                      session(), kTarget, &mirror, &gre, &entry_);
                }),
                154, "0a 00 00 01 c0 a8 01 02 40 2e 88 be 0f ed ab cd ef 12 34 56", "");
}

TEST_F(ActionBytes, DropWhatIsAboveTheLastByte) {
  const PD(setNextHopDetails_action_spec_t) details = {0xff123456, 0xee654321, 0xf00d};
  const PD(nextHop_match_spec_t) hop = {7};
  expect_action(sent([&] {
                  return PD(nextHop_table_add_with_setNextHopDetails)(session(), kTarget, &hop,
                                                                      &details, &entry_);
                }),
                60, "12 34 56 65 43 21 f0 0d", "");
  PD(nextHop_match_spec_t) read_hop = {};
  PD(setNextHopDetails_action_spec_t) read = {};
  uint32_t action = 0;
  bool no_key = true;
  ASSERT_EQ(PD(nextHop_get_entry)(session(), kDevice, entry_, false, &read_hop, nullptr, &read,
                                  &action, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(read.action_dmacOui, 0x00123456u);
  EXPECT_EQ(read.action_dmacStation, 0x00654321u);
  EXPECT_EQ(read.action_domain, 0xf00d);
  EXPECT_EQ(action, 185u);

  // 14 bits held in 32.
  const PD(setNextHop_action_spec_t) wide = {0x00010005};
  const PD(ipv4ShortMaskLpm_match_spec_t) route = {};
  expect_action(sent([&] {
                  return PD(ipv4ShortMaskLpm_table_add_with_setNextHop)(session(), kTarget, &route,
                                                                        &wide, 0, &entry_);
                }),
                14, "00 05", "");
}

TEST_F(ActionBytes, OfAnActionWithoutParametersAreNoneAtAnAddress) {
  const PD(hashComputeInnerIpHdr_match_spec_t) header = {};
  const ActionSpec spec = sent([&] {
    return PD(hashComputeInnerIpHdr_table_add_with_hashComputeInnerIpv4HdrAction)(
        session(), kTarget, &header, &entry_);
  });
  expect_action(spec, 0, "", "");
  EXPECT_TRUE(spec.data.bytes.has_value());
}

// ---- Indirect resources ----

TEST_F(ActionBytes, CellsTravelInTheResourceList) {
  PD(firewallPolicy_match_spec_t) policy = {};
  const PD(setFirewallPolicyDrop_action_spec_t) drop = {7, 1, 0};
  expect_action(sent([&] {
                  return PD(firewallPolicy_table_add_with_setFirewallPolicyDrop)(
                      session(), kTarget, &policy, 1, &drop, &entry_);
                }),
                34, "00 00 00 00 01 00", "04000005:7:1");
  const PD(setFirewallPolicyPermit_action_spec_t) permit = {12, 1, 0, 1};
  expect_action(sent([&] {
                  return PD(firewallPolicy_table_modify_with_setFirewallPolicyPermit)(
                      session(), kDevice, entry_, &permit);
                }),
                35, "00 00 00 00 01 00 01", "04000005:c:1");
  PD(setFirewallPolicyPermit_action_spec_t) read = {};
  uint32_t priority = 0;
  bool no_key = true;
  ASSERT_EQ(PD(firewallPolicy_get_entry)(session(), kDevice, entry_, false, &policy, &priority,
                                         nullptr, &read, nullptr, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(read.action_counterIndex, 12u);
  EXPECT_EQ(read.action_response, 1);

  const PD(setFirewallPolicyDrop_action_spec_t) by_default = {9, 1, 1};
  expect_action(sent([&] {
                  return PD(firewallPolicy_set_default_action_setFirewallPolicyDrop)(
                      session(), kTarget, &by_default, &entry_);
                }),
                34, "00 00 00 00 01 01", "04000005:9:1");
  PD(action_specs_t) specs = {};
  ASSERT_EQ(PD(firewallPolicy_table_get_default_entry)(session(), kTarget, true, &specs),
            BF_SUCCESS);
  EXPECT_EQ(specs.action, 78u);
  EXPECT_EQ(specs.spec.setFirewallPolicyDrop.action_counterIndex, 9u);
}

TEST_F(ActionBytes, OneCellOfTwoResources) {
  const PD(pdpPolicy_match_spec_t) policy = {0x105, 3};
  const PD(pdpPolice_action_spec_t) police = {0x1234};
  expect_action(sent([&] {
                  return PD(pdpPolicy_table_add_with_pdpPolice)(session(), kTarget, &policy,
                                                                &police, &entry_);
                }),
                32, "00 00 00 00", "04000007:1234:1 05000001:1234:1");
  // The other action lets go of the meter; the counter alone tells the cell when it is read.
  const PD(setPdpClassCount_action_spec_t) count = {0x5678};
  expect_action(sent([&] {
                  return PD(pdpPolicy_table_modify_with_setPdpClassCount)(session(), kDevice,
                                                                          entry_, &count);
                }),
                32, "00 00 00 00", "04000007:5678:1 05000001:0:2");
  PD(pdpPolicy_match_spec_t) read_key = {};
  PD(setPdpClassCount_action_spec_t) read = {};
  bool no_key = true;
  ASSERT_EQ(PD(pdpPolicy_get_entry)(session(), kDevice, entry_, false, &read_key, nullptr, &read,
                                    nullptr, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(read.action_pdpResourceIndex, 0x5678u);
}

TEST_F(ActionBytes, DetachTheMeterOfAMirror) {
  const PD(egressMirrorRate_match_spec_t) mirror = {1};
  const PD(setEgressMirrorColor_action_spec_t) color = {44};
  expect_action(sent([&] {
                  return PD(egressMirrorRate_table_add_with_setEgressMirrorColor)(
                      session(), kTarget, &mirror, &color, &entry_);
                }),
                32, "00 00 00 00", "05000007:2c:1");
  expect_action(sent([&] {
                  return PD(egressMirrorRate_set_default_action_setEgressMirrorColorRed)(
                      session(), kTarget, &entry_);
                }),
                0, "", "05000007:0:2");
  const PD(ingressMirrorRate_match_spec_t) other = {1};
  expect_action(sent([&] {
                  return PD(ingressMirrorRate_table_add_with_setIngressMirrorColorRed)(
                      session(), kTarget, &other, &entry_);
                }),
                0, "", "05000006:0:2");
}

// ---- Direct resources ----

TEST_F(ActionBytes, AModifiedEntryKeepsItsDirectCounter) {
  const PD(trapToCpu_match_spec_t) trap = {};
  expect_action(sent([&] {
                  return PD(trapToCpu_table_add_with_noOp)(session(), kTarget, &trap, 1, &entry_);
                }),
                0, "", "0400000a:0:1");
  const PD(trapPacket_action_spec_t) reason = {0x42};
  expect_action(sent([&] {
                  return PD(trapToCpu_table_modify_with_trapPacket)(session(), kDevice, entry_,
                                                                    &reason);
                }),
                8, "42", "");
  const PD(l2DmacClassify_match_spec_t) dmac = {};
  p4_pd_entry_handle_t classified = 0;
  ASSERT_EQ(PD(l2DmacClassify_table_add_with_setMcast)(session(), kTarget, &dmac, 1, &classified),
            BF_SUCCESS);
  expect_action(sent([&] {
                  return PD(l2DmacClassify_table_modify_with_setBcast_by_match_spec)(
                      session(), kTarget, &dmac, 1);
                }),
                0, "", "");
}

TEST_F(ActionBytes, DefaultsAttachDirectCountersAndRegisters) {
  expect_action(sent([&] {
                  return PD(kiteFlow1Counter_set_default_action_onMiss)(session(), kTarget,
                                                                        &entry_);
                }),
                0, "", "04000002:0:1");
  expect_action(sent([&] {
                  return PD(egrStpCheck_set_default_action_egrStpAction)(session(), kTarget,
                                                                         &entry_);
                }),
                0, "", "06000009:0:1");
}

// ---- The meter that travels with an entry ----

class StormControl : public ActionBytes {
 protected:
  p4_pd_status_t add(const p4_pd_bytes_meter_spec_t *meter) {
    return PD(l2LookupMiss_table_add_with_l2LookupBcastHit)(session(), kTarget, &key_, 4, meter,
                                                            &entry_);
  }
  static void expect_meter(const ActionSpec &spec, uint64_t committed_rate) {
    const pipe_mgr_meter_spec_t &meter = spec.resources.at(0).data.meter;
    EXPECT_EQ(meter.type, 1u);
    EXPECT_EQ(meter.committed_rate.unit, 0u);
    EXPECT_EQ(meter.committed_rate.value, committed_rate);
    EXPECT_EQ(meter.committed_burst, 2000u);
    EXPECT_EQ(meter.peak_rate.unit, 0u);
    EXPECT_EQ(meter.peak_rate.value, 3000u);
    EXPECT_EQ(meter.peak_burst, 0xffffffffu);
  }

  PD(l2LookupMiss_match_spec_t) key_ = {};
  p4_pd_bytes_meter_spec_t meter_ = {1000, 2000, 3000, 0xffffffff, PD_METER_TYPE_COLOR_UNAWARE};
};

TEST_F(StormControl, AddNeedsTheSpec) {
  const auto calls = recorded([&] { EXPECT_EQ(add(nullptr), P4_PD_METER_SPEC_MISSING); });
  EXPECT_TRUE(calls.empty());
  EXPECT_EQ(entry_, 0u);
  const ActionSpec spec = sent([&] { return add(&meter_); });
  expect_action(spec, 0, "", "05000005:0:1");
  expect_meter(spec, 1000);
}

TEST_F(StormControl, ModifyWithoutSpecKeepsTheMeter) {
  ASSERT_EQ(add(&meter_), BF_SUCCESS);
  const ActionSpec kept = sent([&] {
    return PD(l2LookupMiss_table_modify_with_l2LookupUnknownUcastAction)(session(), kDevice, entry_,
                                                                         nullptr);
  });
  expect_action(kept, 0, "", "05000005:0:0");
  EXPECT_EQ(kept.resources.at(0).data.meter.committed_rate.value, 0u);
  p4_pd_bytes_meter_spec_t read = {};
  EXPECT_EQ(PD(meter_read_stormControlMeter)(session(), kTarget, entry_, &read), BF_SUCCESS);
  EXPECT_EQ(read.committed_rate, 1000u);

  meter_.committed_rate = 0xfffffff0;
  const ActionSpec changed = sent([&] {
    return PD(l2LookupMiss_table_modify_with_l2LookupBcastHit_by_match_spec)(session(), kTarget,
                                                                             &key_, 4, &meter_);
  });
  expect_action(changed, 0, "", "05000005:0:1");
  expect_meter(changed, 0xfffffff0);
}

TEST_F(StormControl, TheDefaultEntryLetsGoOfItWithoutSpec) {
  expect_action(sent([&] {
                  return PD(l2LookupMiss_set_default_action_l2LookupBcastHit)(session(), kTarget,
                                                                              nullptr, &entry_);
                }),
                0, "", "05000005:0:2");
  const ActionSpec spec = sent([&] {
    return PD(l2LookupMiss_set_default_action_l2LookupUnknownMcastAction)(session(), kTarget,
                                                                          &meter_, &entry_);
  });
  expect_action(spec, 0, "", "05000005:0:1");
  expect_meter(spec, 1000);
}

TEST_F(StormControl, RefusesAMeterThatLooksAtColours) {
  ASSERT_EQ(add(&meter_), BF_SUCCESS);
  for (const uint32_t type : {0u, 2u, 0xffffffffu}) {
    meter_.meter_type = type;
    const auto calls = recorded([&] {
      EXPECT_EQ(add(&meter_), P4_PD_METER_TYPE_REFUSED);
      EXPECT_EQ(
          PD(l2LookupMiss_table_modify_with_l2LookupBcastHit)(session(), kDevice, entry_, &meter_),
          P4_PD_METER_TYPE_REFUSED);
      EXPECT_EQ(PD(l2LookupMiss_set_default_action_l2LookupBcastHit)(session(), kTarget, &meter_,
                                                                     &entry_),
                P4_PD_METER_TYPE_REFUSED);
      EXPECT_EQ(PD(meter_set_stormControlMeter)(session(), kTarget, entry_, &meter_),
                P4_PD_METER_TYPE_REFUSED);
    });
    EXPECT_TRUE(calls.empty()) << type;
  }
}

}  // namespace
}  // namespace pd_test
